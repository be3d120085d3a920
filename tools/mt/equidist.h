// Dimension of equidistribution of a tempered Mersenne Twister: k(v) for the top v
// bits, v = 1..32, computed exactly by lattice reduction over F2[t] on state
// vectors, and by plain Gaussian elimination on the output functionals (slow, the
// reference the fast method is checked against).
//
// The lattice of the top v output bits is spanned by the unit vectors and by the
// vectors of generating functions of the v bit sequences seen from every state.
// A reduced basis of it (pivots distinct, in the weak Popov sense) has v vectors
// whose leading outputs lie at delays n_i with sum (n_i + 1) = p, and
// k(v) = min (n_i + 1). Every basis vector is held as a generator state aligned at
// its leading output, so that adding a shifted vector to another is a plain XOR
// of two states, and a delay grows by running the recurrence forward. Going from
// v + 1 bits to v only drops a coordinate, so all k(v) come from one reduction at
// v = 32 followed by 31 cheap re-reductions.
#ifndef BRENN_TOOLS_MT_EQUIDIST_H
#define BRENN_TOOLS_MT_EQUIDIST_H

#include <array>
#include <cstdint>

namespace brenn::mt {

// One twisted generalised feedback shift register with its tempering, 32-bit words.
struct MtParams {
    int n = 69;                // words of state
    int m = 34;                // middle distance
    int r = 5;                 // lower bits taken from the younger word
    uint32_t a = 0;            // twist constant
    int u = 12;                // first right shift of the tempering
    int s = 7, t = 15, l = 18; // the other tempering shifts
    uint32_t b = 0, c = 0;     // tempering masks
    int Degree() const { return n * 32 - r; }
};

MtParams Mt2203Params(uint32_t a, uint32_t b, uint32_t c);
MtParams Mt19937Params();

// k(v) at index v - 1; bound(v) = floor(p / v).
using EquidistProfile = std::array<int, 32>;

inline int EquidistBound(int degree, int v) {
    return degree / v;
}
int TotalDefect(const EquidistProfile& k, int degree);

// k(1..vmax) (entries above vmax are left 0). Returns false when the recurrence
// is not of full period on the top bit (a reducible characteristic polynomial
// shows up as a degenerate lattice), true otherwise. Work is O(p) states per v.
bool ComputeEquidist(const MtParams& p, EquidistProfile* k, int vmax = 32);

// k(v) alone (one reduction instead of vmax of them); -1 when degenerate.
int EquidistAt(const MtParams& p, int v);

// k(v) for one v by Gaussian elimination on the p-bit functionals of the
// tempered output bits; roughly p^3/64 word operations, for checks only.
int EquidistBySlowElimination(const MtParams& p, int v);

} // namespace brenn::mt

#endif
