// MCG59: x(n+1) = 13^13 x(n) mod 2^59. The state is the next value and the
// multiplier; a call runs lanes x, xa, xa^2, ... that step by a power of a, with the
// 64-bit products built from 32-bit halves, and a scalar tail.
#include <emmintrin.h>
#include <smmintrin.h>

#include "frame/export.h"
#include "rng/core/modarith.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct Mcg59State {
    uint64_t x; // the next output
    uint64_t a; // the multiplier; a leapfrog replaces it
};

constexpr uint64_t kMultiplier = 302875106592253ull; // 13^13
constexpr double kScale = 1.734723475976807e-18;     // 2^-59

// Product mod 2^59 of two lanes: lo x lo' + ((hi x lo' + lo x hi') << 32), masked.
inline __m128i MulLanes(__m128i v, __m128i m, __m128i mHigh) {
    __m128i p0 = _mm_mul_epu32(v, m);
    __m128i p1 = _mm_mul_epu32(_mm_srli_epi64(v, 32), m);
    __m128i p2 = _mm_mul_epu32(v, mHigh);
    __m128i sum = _mm_add_epi64(p0, _mm_slli_epi64(_mm_add_epi64(p1, p2), 32));
    return _mm_and_si128(sum, _mm_set1_epi64x(static_cast<long long>(kMask59)));
}

// The low and high halves as exact doubles: lo under 2^52's exponent, hi under
// 2^84's, each with its power taken away again.
inline __m128d LowHalf(__m128i v) {
    __m128i lo = _mm_and_si128(v, _mm_set1_epi64x(0xFFFFFFFFll));
    return _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(lo, _mm_set1_epi64x(0x4330000000000000ll))),
                      _mm_set1_pd(4503599627370496.0));
}
inline __m128d HighHalf(__m128i v) {
    __m128i hi = _mm_srli_epi64(v, 32);
    return _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(hi, _mm_set1_epi64x(0x4530000000000000ll))),
                      _mm_set1_pd(19342813113834066795298816.0));
}

inline double LowHalf(uint64_t x) {
    return static_cast<double>(static_cast<uint32_t>(x));
}
inline double HighHalf(uint64_t x) {
    return static_cast<double>(x & 0xFFFFFFFF00000000ull);
}

struct OutInt {
    uint64_t* r;
    void Put(int i, uint64_t x) { r[i] = x; }
    void Put2(int i, __m128i v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), v); }
};

// Double results: the two halves are scaled apart, then summed, then shifted.
struct OutDouble {
    double* r;
    double scale, shift;
    void Put(int i, uint64_t x) { r[i] = LowHalf(x) * scale + HighHalf(x) * scale + shift; }
    void Put2(int i, __m128i v) {
        __m128d s = _mm_set1_pd(scale);
        __m128d d = _mm_add_pd(_mm_mul_pd(LowHalf(v), s), _mm_mul_pd(HighHalf(v), s));
        _mm_storeu_pd(r + i, _mm_add_pd(d, _mm_set1_pd(shift)));
    }
};

// Single results: the halves are summed first, scaled once, narrowed at the store.
struct OutFloat {
    float* r;
    double scale, shift;
    void Put(int i, uint64_t x) {
        r[i] = static_cast<float>((LowHalf(x) + HighHalf(x)) * scale + shift);
    }
    void Put2(int i, __m128i v) {
        __m128d d = _mm_add_pd(_mm_mul_pd(_mm_add_pd(LowHalf(v), HighHalf(v)), _mm_set1_pd(scale)),
                               _mm_set1_pd(shift));
        _mm_storel_pi(reinterpret_cast<__m64*>(r + i), _mm_cvtpd_ps(d));
    }
};

inline __m128i Broadcast(uint64_t m) {
    return _mm_set1_epi64x(static_cast<long long>(m));
}

inline uint64_t Lane0(__m128i v) {
    uint64_t w[2];
    _mm_storeu_si128(reinterpret_cast<__m128i*>(w), v);
    return w[0];
}

// Four lanes stepping by a^4 give the sequence, but each step is a chain of about
// ten cycles of dependent multiplies; running two such groups, the second four
// elements ahead, with both stepping by a^8, keeps the multiplier busy. The words
// are the same either way: the arithmetic is exact.
template <typename Out>
void Generate(void* stream, int32_t n, Out& out) {
    if (n <= 0) return;
    Mcg59State* s = StateOf<Mcg59State>(stream);
    const uint64_t a = s->a;
    uint64_t x = s->x;
    int32_t i = 0;
    const int32_t run = n & ~3;
    if (run > 0) {
        uint64_t p[8];
        p[0] = x;
        for (int k = 1; k < 8; ++k)
            p[k] = MulMod59(p[k - 1], a);
        uint64_t a8 = a;
        for (int k = 0; k < 3; ++k)
            a8 = MulMod59(a8, a8);
        auto pair = [&](int k) {
            return _mm_set_epi64x(static_cast<long long>(p[k + 1]), static_cast<long long>(p[k]));
        };
        __m128i v0 = pair(0), v1 = pair(2), v2 = pair(4), v3 = pair(6);
        const __m128i m = Broadcast(a8), mHigh = Broadcast(a8 >> 32);
        for (; i + 8 <= run; i += 8) {
            out.Put2(i, v0);
            out.Put2(i + 2, v1);
            out.Put2(i + 4, v2);
            out.Put2(i + 6, v3);
            v0 = MulLanes(v0, m, mHigh);
            v1 = MulLanes(v1, m, mHigh);
            v2 = MulLanes(v2, m, mHigh);
            v3 = MulLanes(v3, m, mHigh);
        }
        // The lanes hold the next eight; four of them may still belong to the run.
        if (i < run) {
            out.Put2(i, v0);
            out.Put2(i + 2, v1);
            i += 4;
            x = Lane0(v2);
        } else {
            x = Lane0(v0);
        }
    }
    for (; i < n; ++i) {
        out.Put(i, x);
        x = MulMod59(x, a);
    }
    s->x = x;
}

uint64_t Power(uint64_t base, uint64_t count) {
    return __qesiPowMod2P59(static_cast<uint32_t>(base), static_cast<uint32_t>(base >> 32),
                            static_cast<uint32_t>(count), static_cast<uint32_t>(count >> 32));
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngMCG59InitStream(int32_t method, void* stream, int32_t n,
                                              const void* params) {
    Mcg59State* s = StateOf<Mcg59State>(stream);
    const uint32_t* words = static_cast<const uint32_t*>(params);
    switch (method) {
    case QES_INIT_SEED: {
        uint64_t x = 0;
        if (n == 1) x = words[0];
        // Only 27 bits of the second word fit the 59-bit state; further words are
        // ignored.
        if (n >= 2) x = words[0] + (static_cast<uint64_t>(words[1] & 0x7FFFFFF) << 32);
        if (n < 1 || x == 0) x = 1;
        s->x = x;
        s->a = kMultiplier;
        return QES_STATUS_OK;
    }
    case QES_INIT_LEAPFROG: {
        uint32_t k = words[0];
        s->x = MulMod59(s->x, Power(s->a, k));
        s->a = Power(s->a, static_cast<uint64_t>(static_cast<int64_t>(n)));
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP:
        s->x = MulMod59(s->x, Power(s->a, *static_cast<const uint64_t*>(params)));
        return QES_STATUS_OK;
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngMCG59(void* stream, int32_t n, void* r) {
    OutInt out{static_cast<uint64_t*>(r)};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngMCG59(void* stream, int32_t n, double* r, double a, double b) {
    OutDouble out{r, (b - a) * kScale, a};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngMCG59(void* stream, int32_t n, float* r, float a, float b) {
    OutFloat out{r, (static_cast<double>(b) - static_cast<double>(a)) * kScale,
                 static_cast<double>(a)};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}
