// WH: the Wichmann-Hill set of 273 combined generators, each four multiplicative
// congruential components x' = a x mod m with primes m just below 2^24 and one-byte
// multipliers (rng/brng/wh_table.cpp). The stream's id names the member. Every step
// runs in double precision, where x a stays exact, and reduces by the reciprocal:
// x' = y - m trunc(y / m). The output is the fractional part of x1/m1 + ... + x4/m4,
// each quotient taken as x times the member's rounded reciprocal, or the four words.
// Runs of eight elements step eight lanes by a^8.
#include <smmintrin.h>

#include "frame/export.h"
#include "rng/brng/wh_table.h"
#include "rng/brng/word_forms.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct WhState {
    uint32_t x[4]; // the next output's components
    uint32_t a[4]; // the multipliers; a leapfrog replaces them
};
static_assert(sizeof(StreamHeader) + sizeof(WhState) <= 48, "record size of WH");

int32_t MemberOf(const void* stream) {
    int32_t family, member;
    __qesGetBrngBaseOffset(Header(stream)->brng, &family, &member);
    return member;
}

// x a mod m in double: exact while x a stays below 2^53, and the reciprocal's error
// stays far below the distance 1/m of x a / m from any integer (m is prime and
// neither factor is a multiple of it).
inline double Step(double x, double a, double m, double r) {
    double y = x * a;
    return y - m * static_cast<double>(static_cast<int64_t>(y * r));
}

inline __m128d StepLanes(__m128d x, __m128d a, __m128d m, __m128d r) {
    __m128d y = _mm_mul_pd(x, a);
    __m128d q = _mm_round_pd(_mm_mul_pd(y, r), _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC);
    return _mm_sub_pd(y, _mm_mul_pd(q, m));
}

struct Member {
    double m[4], r[4];
};

// Lanes of eight elements: lane[j][k] is component j of element k of the run.
using Lanes = double[4][8];

struct WhWords {
    uint32_t* r;
    void Put(int32_t i, const double* x) {
        for (int j = 0; j < 4; ++j)
            r[4 * i + j] = static_cast<uint32_t>(x[j]);
    }
    void Put8(int32_t i, const Lanes& lane, const Member&) {
        for (int k = 0; k < 8; ++k)
            for (int j = 0; j < 4; ++j)
                r[4 * (i + k) + j] = static_cast<uint32_t>(lane[j][k]);
    }
};

// Fraction of x1 r1 + x2 r2 + x3 r3 + x4 r4, summed in that order, then
// u (b - a) + a in double; singles are narrowed at the store.
template <typename T>
struct WhReals {
    T* r;
    double span, shift;
    void Put(int32_t i, const double* x, const Member& g) {
        double v = x[0] * g.r[0] + x[1] * g.r[1] + x[2] * g.r[2] + x[3] * g.r[3];
        double u = v - static_cast<double>(static_cast<int64_t>(v));
        r[i] = static_cast<T>(u * span + shift);
    }
    void Put8(int32_t i, const Lanes& lane, const Member& g) {
        for (int k = 0; k < 8; k += 2) {
            __m128d v = _mm_mul_pd(_mm_loadu_pd(&lane[0][k]), _mm_set1_pd(g.r[0]));
            for (int j = 1; j < 4; ++j)
                v = _mm_add_pd(v, _mm_mul_pd(_mm_loadu_pd(&lane[j][k]), _mm_set1_pd(g.r[j])));
            __m128d u = _mm_sub_pd(v, _mm_round_pd(v, _MM_FROUND_TO_ZERO | _MM_FROUND_NO_EXC));
            StoreTwo(r + i + k, _mm_add_pd(_mm_mul_pd(u, _mm_set1_pd(span)), _mm_set1_pd(shift)));
        }
    }
};

// The integer form ignores the member's reciprocals.
inline void PutOne(WhWords& out, int32_t i, const double* x, const Member&) {
    out.Put(i, x);
}
template <typename T>
inline void PutOne(WhReals<T>& out, int32_t i, const double* x, const Member& g) {
    out.Put(i, x, g);
}

template <typename Out>
void Generate(void* stream, int32_t n, Out out) {
    WhState* s = StateOf<WhState>(stream);
    const int32_t member = MemberOf(stream);
    Member g;
    double x[4], a[4];
    for (int j = 0; j < 4; ++j) {
        g.m[j] = kWhModuli[member][j];
        g.r[j] = kWhReciprocals[member][j];
        x[j] = s->x[j];
        a[j] = s->a[j];
    }
    int32_t i = 0;
    if (n > 7) {
        // Elements 0 to 7 by single steps, then each lane steps by a^8.
        alignas(16) Lanes lane;
        __m128d a8[4], m[4], r[4];
        for (int j = 0; j < 4; ++j) {
            for (int k = 0; k < 8; ++k) {
                lane[j][k] = x[j];
                x[j] = Step(x[j], a[j], g.m[j], g.r[j]);
            }
            double p = a[j];
            for (int k = 0; k < 3; ++k)
                p = Step(p, p, g.m[j], g.r[j]);
            a8[j] = _mm_set1_pd(p);
            m[j] = _mm_set1_pd(g.m[j]);
            r[j] = _mm_set1_pd(g.r[j]);
        }
        out.Put8(0, lane, g);
        const int32_t run = n & ~7;
        for (i = 8; i < run; i += 8) {
            for (int j = 0; j < 4; ++j)
                for (int k = 0; k < 8; k += 2)
                    _mm_store_pd(&lane[j][k],
                                 StepLanes(_mm_load_pd(&lane[j][k]), a8[j], m[j], r[j]));
            out.Put8(i, lane, g);
        }
        for (int j = 0; j < 4; ++j)
            x[j] = Step(lane[j][7], a[j], g.m[j], g.r[j]);
    }
    for (; i < n; ++i) {
        PutOne(out, i, x, g);
        for (int j = 0; j < 4; ++j)
            x[j] = Step(x[j], a[j], g.m[j], g.r[j]);
    }
    for (int j = 0; j < 4; ++j)
        s->x[j] = static_cast<uint32_t>(x[j]);
}

uint32_t MulMod(uint32_t x, uint32_t y, uint32_t m) {
    return static_cast<uint32_t>(static_cast<uint64_t>(x) * y % m);
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngWHInitStream(int32_t method, void* stream, int32_t n,
                                           const void* params) {
    WhState* s = StateOf<WhState>(stream);
    const uint32_t* m = kWhModuli[MemberOf(stream)];
    switch (method) {
    case QES_INIT_SEED: {
        const uint32_t* seed = static_cast<const uint32_t*>(params);
        uint32_t packed = kWhMultipliers[MemberOf(stream)];
        for (int j = 0; j < 4; ++j) {
            uint32_t x = n > j ? seed[j] % m[j] : 1;
            s->x[j] = x == 0 ? 1 : x;
            s->a[j] = (packed >> (8 * j)) & 0xFF;
        }
        return QES_STATUS_OK;
    }
    case QES_INIT_LEAPFROG: {
        // This stream serves elements k, k + n, k + 2n, ... of the base sequence.
        uint32_t k = static_cast<const uint32_t*>(params)[0];
        uint64_t count = static_cast<uint64_t>(static_cast<int64_t>(n));
        for (int j = 0; j < 4; ++j) {
            s->x[j] = MulMod(s->x[j], __qesiPowMod(s->a[j], k, 0, m[j]), m[j]);
            s->a[j] = __qesiPowMod(s->a[j], static_cast<uint32_t>(count),
                                   static_cast<uint32_t>(count >> 32), m[j]);
        }
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP: {
        // With the current multipliers: on a leapfrogged stream the count is the
        // stream's own elements.
        uint64_t count = *static_cast<const uint64_t*>(params);
        for (int j = 0; j < 4; ++j)
            s->x[j] = MulMod(s->x[j],
                             __qesiPowMod(s->a[j], static_cast<uint32_t>(count),
                                          static_cast<uint32_t>(count >> 32), m[j]),
                             m[j]);
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngWH(void* stream, int32_t n, void* r) {
    Generate(stream, n, WhWords{static_cast<uint32_t*>(r)});
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngWH(void* stream, int32_t n, double* r, double a, double b) {
    Generate(stream, n, WhReals<double>{r, b - a, a});
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngWH(void* stream, int32_t n, float* r, float a, float b) {
    Generate(
        stream, n,
        WhReals<float>{r, static_cast<double>(b) - static_cast<double>(a), static_cast<double>(a)});
    return QES_STATUS_OK;
}
