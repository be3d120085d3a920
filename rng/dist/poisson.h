/* What the Poisson generators share: the chunk of the exact method, the Cornish-Fisher
 * rows with their evaluation (the transforming method's range B and PoissonV's second
 * group), the bound E of range A and the constants of range C. */
#ifndef BRENN_RNG_DIST_POISSON_H
#define BRENN_RNG_DIST_POISSON_H

#include <stdint.h>

namespace brenn::rng {

// Chunk 3 of the exact method: the lambda of its set-up, which way it took, and the
// set-up itself, either the cumulative table of the inversion or the constants of
// the rejection method. 696 bytes.
constexpr int32_t kPoissonChunkId = 3;
constexpr int32_t kPoissonInversionTable = 84;

struct PoissonChunk {
    double lambda; // -1 until a set-up is made
    int32_t way;   // 0 inversion, 1 rejection
    int32_t count; // inversion: entries of the table
    union {
        struct {
            double cdf[kPoissonInversionTable]; // F(0) to F(83)
            double last;                        // the probability of the last entry
        } inversion;
        struct {
            double m, p1, c, inverseC, cornerL, xm, xl, xr, lambdaL, lambdaR, p2, p3, p4, stirlingM;
            // f(M + k) / f(M) for k from -20 to 20, by the products of the test.
            double near[41];
        } ptpe;
    };
};
static_assert(sizeof(PoissonChunk) == 696, "chunk 3 holds 696 bytes");

// The exact method's two ways, each (stream, n, r, chunk) with its set-up; the entry
// finds the chunk and puts the frame around them.
constexpr double kPoissonRejectionFrom = 27.0;
void PoissonInversionSetUp(double lambda, PoissonChunk* chunk);
int32_t PoissonInversion(void* stream, int32_t n, int32_t* r, const PoissonChunk* chunk);
void PoissonPtpeSetUp(double lambda, PoissonChunk* chunk);
int32_t PoissonPtpe(void* stream, int32_t n, int32_t* r, const PoissonChunk* chunk);
// The transforming method, one uniform a variate.
int32_t PoissonTransform(void* stream, int32_t n, int32_t* r, double lambda);

// The Cornish-Fisher rows: index = binary exponent of lambda + 4, for exponents -4
// to 6 (poisson_rows.cpp).
constexpr int32_t kPoissonRowCount = 11;
constexpr int32_t kPoissonRowLength = 23;
constexpr int32_t kPoissonRowBias = 4;
extern const double kPoissonRows[kPoissonRowCount][kPoissonRowLength];

// The six coefficients of a row at the mantissa fraction t, rounded to float.
struct CornishFisher {
    float c0, c1, c2, c3, c4, c5;
};

// For lambda as a float in [2^-4, 128): the row of its exponent at its fraction.
CornishFisher CornishFisherOf(float lambda);

// trunc(max(0, c0 + (z c1) (c2 + z (c3 + z (c4 + z c5))))) in single precision.
inline int32_t CornishFisherCount(const CornishFisher& k, float z) {
    float v = k.c0 + (z * k.c1) * (k.c2 + z * (k.c3 + z * (k.c4 + z * k.c5)));
    return static_cast<int32_t>(v > 0.0f ? v : 0.0f);
}

// Range C, lambda from 100: the mean and sigma of the normal and the cubic in
// d = z - mean, each rounded to float.
struct PoissonLarge {
    float mean, sigma, k1, k2, k3;
};
PoissonLarge PoissonLargeOf(double lambda);

inline int32_t PoissonLargeCount(const PoissonLarge& k, float z) {
    float d = z - k.mean;
    float v = z + 1.0f + d * (k.k1 + d * (k.k2 + d * k.k3));
    return static_cast<int32_t>(v > 0.0f ? v : 0.0f);
}

// PoissonV's work for one lambda, made once for a run of equal lambdas or, in
// Multinomial, once for all rows: its group and coefficients.
struct PoissonVCell {
    int32_t way; // 0 the partial sums (lambda below 1/16), 1 a row, 2 range C
    union {
        struct {
            double lambda, bound; // lambda and E(lambda)
        } small;
        CornishFisher row;
        PoissonLarge large;
    };
};
void PoissonVCellOf(double lambda, PoissonVCell* cell);
// PoissonV over n elements whose cells are made: the Gaussians, then the counts.
int32_t PoissonVDraw(void* stream, int32_t n, int32_t* r, const PoissonVCell* cells);

// The lambdas at which the transforming method changes range.
constexpr double kPoissonRangeB = 1.0;
constexpr double kPoissonRangeC = 100.0;

} // namespace brenn::rng

#endif
