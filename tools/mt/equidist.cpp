// k(v) of a tempered Mersenne Twister: the lattice reduction on aligned states and
// the slow Gaussian elimination used to check it. See equidist.h for the method.
#include "tools/mt/equidist.h"

#include <cstring>
#include <vector>

namespace brenn::mt {

MtParams Mt2203Params(uint32_t a, uint32_t b, uint32_t c) {
    MtParams p;
    p.a = a;
    p.b = b;
    p.c = c;
    return p;
}

MtParams Mt19937Params() {
    MtParams p;
    p.n = 624;
    p.m = 397;
    p.r = 31;
    p.a = 0x9908B0DFu;
    p.u = 11;
    p.b = 0x9D2C5680u;
    p.c = 0xEFC60000u;
    return p;
}

int TotalDefect(const EquidistProfile& k, int degree) {
    int sum = 0;
    for (int v = 1; v <= 32; ++v)
        sum += EquidistBound(degree, v) - k[v - 1];
    return sum;
}

namespace {

inline uint32_t Temper(const MtParams& p, uint32_t x) {
    uint32_t y = x ^ (x >> p.u);
    y ^= (y << p.s) & p.b;
    y ^= (y << p.t) & p.c;
    return y ^ (y >> p.l);
}

inline uint32_t TopMask(int v) {
    return v >= 32 ? ~0u : ~(~0u >> v);
}

// A lattice vector aligned at its leading output: the stream of tempered words
// lead, out(state, 0), out(state, 1), ...; `delay` is the time index of `lead`
// (-1 for the unit vectors, whose state is zero). The state is a window of n
// words inside a longer buffer so that stepping is a single store.
struct Vec {
    uint32_t* buf;
    int off;
    int delay;
    uint32_t lead;
    bool alive;
};

struct Reducer {
    const MtParams& p;
    uint32_t upper, lower;
    int bufWords;
    std::vector<uint32_t> storage;
    std::vector<Vec> vecs;

    Reducer(const MtParams& params, int count)
        : p(params), upper(~0u << params.r), lower(~(~0u << params.r)), bufWords(params.n * 4),
          storage(static_cast<size_t>(bufWords) * count, 0u), vecs(count) {
        for (int i = 0; i < count; ++i)
            vecs[i] = Vec{storage.data() + static_cast<size_t>(i) * bufWords, 0, -1, 0, true};
    }

    // One step of the recurrence on the window; returns the tempered new word.
    uint32_t Step(Vec& v) const {
        uint32_t* x = v.buf + v.off;
        uint32_t y = (x[0] & upper) | (x[1] & lower);
        uint32_t w = x[p.m] ^ (y >> 1) ^ ((0u - (y & 1u)) & p.a);
        x[p.n] = w;
        if (++v.off + p.n == bufWords) {
            std::memmove(v.buf, v.buf + v.off, sizeof(uint32_t) * p.n);
            v.off = 0;
        }
        return Temper(p, w);
    }

    // The lower bits of the oldest word are never read again, so they are not
    // part of the state.
    bool StateIsZero(const Vec& v) const {
        const uint32_t* x = v.buf + v.off;
        uint32_t acc = x[0] & upper;
        for (int i = 1; i < p.n; ++i)
            acc |= x[i];
        return acc == 0;
    }

    void AddAligned(Vec& into, const Vec& from) const {
        uint32_t* d = into.buf + into.off;
        const uint32_t* s = from.buf + from.off;
        for (int i = 0; i < p.n; ++i)
            d[i] ^= s[i];
        into.lead ^= from.lead;
    }

    // Moves the vector forward to its first output with a bit under the mask.
    // No nonzero vector of the lattice leads later than p - 1; going past that
    // means some state is invisible to the top bits (reducible recurrence).
    bool Normalize(Vec& v, uint32_t mask) const {
        const int limit = p.Degree();
        while ((v.lead & mask) == 0) {
            if (++v.delay >= limit) return false;
            v.lead = Step(v);
        }
        return true;
    }

    // Weak Popov reduction: the pivot of a vector is the lowest-order set bit of
    // its leading output under the mask; while two vectors share a pivot, the one
    // leading earlier (the longer) absorbs the other, shifted to align.
    bool Reduce(uint32_t mask) {
        int slot[32];
        for (int& s : slot)
            s = -1;
        for (int start = 0; start < static_cast<int>(vecs.size()); ++start) {
            int i = start;
            if (!vecs[i].alive) continue;
            for (;;) {
                int piv = __builtin_ctz(vecs[i].lead & mask);
                int j = slot[piv];
                if (j < 0) {
                    slot[piv] = i;
                    break;
                }
                if (vecs[j].delay < vecs[i].delay) {
                    slot[piv] = i;
                    i = j;
                    j = slot[piv];
                }
                Vec& target = vecs[i];
                AddAligned(target, vecs[j]);
                if ((target.lead & mask) == 0) {
                    if (StateIsZero(target)) {
                        target.alive = false;
                        break;
                    }
                    if (!Normalize(target, mask)) return false;
                }
            }
        }
        return true;
    }
};

} // namespace

namespace {

// The lattice of the top vmax bits from its generators: vmax unit vectors and the
// vector of one nonzero state.
bool StartLattice(Reducer& red, int vmax) {
    for (int j = 0; j < vmax; ++j)
        red.vecs[j].lead = 0x80000000u >> j;
    Vec& seed = red.vecs[vmax];
    uint32_t x = 19650218u;
    for (int i = 0; i < red.p.n; ++i) {
        seed.buf[i] = x;
        x = 1812433253u * (x ^ (x >> 30)) + static_cast<uint32_t>(i + 1);
    }
    seed.delay = 0;
    seed.lead = red.Step(seed);
    return red.Normalize(seed, TopMask(vmax));
}

// Reduces for the top v bits and reads k(v) off the basis; -1 when degenerate.
int ReduceAndRead(Reducer& red, int v) {
    const uint32_t mask = TopMask(v);
    for (Vec& vec : red.vecs)
        if (vec.alive && !red.Normalize(vec, mask)) return -1;
    if (!red.Reduce(mask)) return -1;
    int alive = 0, sum = 0, best = red.p.Degree();
    for (const Vec& vec : red.vecs) {
        if (!vec.alive) continue;
        ++alive;
        sum += vec.delay + 1;
        if (vec.delay + 1 < best) best = vec.delay + 1;
    }
    // A reduced basis has exactly v vectors whose lengths add up to p.
    if (alive != v || sum != red.p.Degree()) return -1;
    return best;
}

} // namespace

bool ComputeEquidist(const MtParams& p, EquidistProfile* k, int vmax) {
    k->fill(0);
    if (vmax < 1 || vmax > 32) return false;
    Reducer red(p, vmax + 1);
    if (!StartLattice(red, vmax)) return false;
    for (int v = vmax; v >= 1; --v) {
        int kv = ReduceAndRead(red, v);
        if (kv < 0) return false;
        (*k)[v - 1] = kv;
    }
    return true;
}

int EquidistAt(const MtParams& p, int v) {
    if (v < 1 || v > 32) return -1;
    Reducer red(p, v + 1);
    if (!StartLattice(red, v)) return -1;
    return ReduceAndRead(red, v);
}

namespace {

// Functionals of the state as p-bit rows.
struct Bits {
    std::vector<uint64_t> w;
    explicit Bits(int words) : w(words, 0) {}
    void Xor(const Bits& o) {
        for (size_t i = 0; i < w.size(); ++i)
            w[i] ^= o.w[i];
    }
    int HighestBit() const {
        for (int i = static_cast<int>(w.size()) - 1; i >= 0; --i)
            if (w[i]) return i * 64 + 63 - __builtin_clzll(w[i]);
        return -1;
    }
};

using SymWord = std::vector<Bits>; // bit i (from the least significant) of a word

SymWord TemperSym(const MtParams& p, SymWord y) {
    for (int i = 0; i + p.u < 32; ++i)
        y[i].Xor(y[i + p.u]);
    for (int i = 31; i >= p.s; --i)
        if (p.b >> i & 1) y[i].Xor(y[i - p.s]);
    for (int i = 31; i >= p.t; --i)
        if (p.c >> i & 1) y[i].Xor(y[i - p.t]);
    for (int i = 0; i + p.l < 32; ++i)
        y[i].Xor(y[i + p.l]);
    return y;
}

} // namespace

int EquidistBySlowElimination(const MtParams& p, int v) {
    const int degree = p.Degree();
    const int words = (degree + 63) / 64;
    std::vector<SymWord> mt(p.n, SymWord(32, Bits(words)));
    int var = 0;
    for (int j = 0; j < p.n; ++j)
        for (int i = 0; i < 32; ++i) {
            if (j == 0 && i < p.r) continue; // never read: not state
            mt[j][i].w[var / 64] |= uint64_t{1} << (var % 64);
            ++var;
        }
    std::vector<Bits> pivots(degree, Bits(0));
    std::vector<bool> have(degree, false);
    int rows = 0;
    for (int k = 0;; ++k) {
        const int at = k % p.n;
        const SymWord& w0 = mt[at];
        const SymWord& w1 = mt[(k + 1) % p.n];
        const SymWord& wm = mt[(k + p.m) % p.n];
        SymWord y(32, Bits(words));
        for (int i = 0; i < 32; ++i)
            y[i] = i >= p.r ? w0[i] : w1[i];
        SymWord next = wm;
        for (int i = 0; i < 31; ++i)
            next[i].Xor(y[i + 1]);
        for (int i = 0; i < 32; ++i)
            if (p.a >> i & 1) next[i].Xor(y[0]);
        mt[at] = next;
        SymWord out = TemperSym(p, next);
        for (int j = 0; j < v; ++j) {
            Bits row = out[31 - j];
            for (;;) {
                int h = row.HighestBit();
                if (h < 0) {
                    int kv = rows / v;
                    int bound = EquidistBound(degree, v);
                    return kv < bound ? kv : bound;
                }
                if (!have[h]) {
                    pivots[h] = row;
                    have[h] = true;
                    break;
                }
                row.Xor(pivots[h]);
            }
            ++rows;
        }
    }
}

} // namespace brenn::mt
