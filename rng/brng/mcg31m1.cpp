// MCG31M1: x(n+1) = 1132489760 x(n) mod (2^31 - 1). The state is the next value and
// the multiplier; a call produces its block with eight lanes that step by a^8 from
// the first eight values, which gives exactly the scalar sequence, and the stored
// value continues it whatever the cut of a request into calls.
#include <emmintrin.h>
#include <smmintrin.h>

#include "frame/export.h"
#include "rng/core/modarith.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct Mcg31State {
    uint32_t x; // the next output, 1 .. 2^31 - 2
    uint32_t a; // the multiplier; a leapfrog replaces it
};

constexpr uint32_t kMultiplier = 1132489760;
// 1 / (2^31 - 1): the largest output maps just below 1.
constexpr double kScale = 4.656612875245797e-10;

// Two residues in the low dwords of 64-bit lanes times a broadcast multiplier,
// reduced: t = (p >> 31) + (p & 0x7FFFFFFF), then less 2^31 - 1 above 0x7FFFFFFE.
inline __m128i MulLanes(__m128i v, __m128i m) {
    const __m128i low31 = _mm_set1_epi64x(kM31);
    const __m128i top = _mm_set1_epi64x(0x7FFFFFFE);
    __m128i p = _mm_mul_epu32(v, m);
    __m128i t = _mm_add_epi64(_mm_srli_epi64(p, 31), _mm_and_si128(p, low31));
    __m128i over = _mm_cmpgt_epi64(t, top);
    return _mm_sub_epi64(t, _mm_and_si128(over, low31));
}

// Exact int-to-double of the residues in 64-bit lanes: put them under 2^52's
// exponent and take 2^52 away again.
inline __m128d LanesToDouble(__m128i v) {
    const __m128i magic = _mm_set1_epi64x(0x4330000000000000ll);
    return _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(v, magic)), _mm_set1_pd(4503599627370496.0));
}

struct OutInt {
    uint32_t* r;
    void Put(int i, uint32_t x) { r[i] = x; }
    void Put8(int i, __m128i v0, __m128i v1, __m128i v2, __m128i v3) {
        __m128i lo = _mm_unpacklo_epi64(_mm_shuffle_epi32(v0, 0x08), _mm_shuffle_epi32(v1, 0x08));
        __m128i hi = _mm_unpacklo_epi64(_mm_shuffle_epi32(v2, 0x08), _mm_shuffle_epi32(v3, 0x08));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), lo);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i + 4), hi);
    }
};

struct OutDouble {
    double* r;
    double scale, shift;
    void Put(int i, uint32_t x) { r[i] = static_cast<double>(x) * scale + shift; }
    void Put2(double* to, __m128i v) {
        __m128d d =
            _mm_add_pd(_mm_mul_pd(LanesToDouble(v), _mm_set1_pd(scale)), _mm_set1_pd(shift));
        _mm_storeu_pd(to, d);
    }
    void Put8(int i, __m128i v0, __m128i v1, __m128i v2, __m128i v3) {
        Put2(r + i, v0);
        Put2(r + i + 2, v1);
        Put2(r + i + 4, v2);
        Put2(r + i + 6, v3);
    }
};

// Single results are computed in double and narrowed only at the store.
struct OutFloat {
    float* r;
    double scale, shift;
    void Put(int i, uint32_t x) {
        r[i] = static_cast<float>(static_cast<double>(x) * scale + shift);
    }
    __m128 Two(__m128i v) {
        __m128d d =
            _mm_add_pd(_mm_mul_pd(LanesToDouble(v), _mm_set1_pd(scale)), _mm_set1_pd(shift));
        return _mm_cvtpd_ps(d);
    }
    void Put8(int i, __m128i v0, __m128i v1, __m128i v2, __m128i v3) {
        _mm_storeu_ps(r + i, _mm_movelh_ps(Two(v0), Two(v1)));
        _mm_storeu_ps(r + i + 4, _mm_movelh_ps(Two(v2), Two(v3)));
    }
};

template <typename Out>
void Generate(void* stream, int32_t n, Out& out) {
    if (n <= 0) return;
    Mcg31State* s = StateOf<Mcg31State>(stream);
    const uint32_t a = s->a;
    uint32_t x = s->x;
    out.Put(0, x);
    int32_t i = 1;
    if (n > 7) {
        uint32_t first[8];
        first[0] = x;
        for (; i < 8; ++i) {
            x = MulM31(x, a);
            first[i] = x;
            out.Put(i, x);
        }
        uint32_t a8 = MulM31(a, a);
        a8 = MulM31(a8, a8);
        a8 = MulM31(a8, a8);
        const __m128i m = _mm_set1_epi64x(a8);
        __m128i v0 = _mm_set_epi64x(first[1], first[0]);
        __m128i v1 = _mm_set_epi64x(first[3], first[2]);
        __m128i v2 = _mm_set_epi64x(first[5], first[4]);
        __m128i v3 = _mm_set_epi64x(first[7], first[6]);
        const int32_t run = n & ~7;
        for (; i < run; i += 8) {
            v0 = MulLanes(v0, m);
            v1 = MulLanes(v1, m);
            v2 = MulLanes(v2, m);
            v3 = MulLanes(v3, m);
            out.Put8(i, v0, v1, v2, v3);
        }
        x = static_cast<uint32_t>(_mm_cvtsi128_si32(_mm_srli_si128(v3, 8)));
    }
    for (; i < n; ++i) {
        x = MulM31(x, a);
        out.Put(i, x);
    }
    s->x = MulM31(x, a);
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngMCG31M1InitStream(int32_t method, void* stream, int32_t n,
                                                const void* params) {
    Mcg31State* s = StateOf<Mcg31State>(stream);
    switch (method) {
    case QES_INIT_SEED: {
        uint32_t x = 1;
        if (n >= 1) {
            x = static_cast<const uint32_t*>(params)[0] % kM31;
            if (x == 0) x = 1;
        }
        s->x = x;
        s->a = kMultiplier;
        return QES_STATUS_OK;
    }
    case QES_INIT_LEAPFROG: {
        // This stream serves elements k, k + n, k + 2n, ... of the base sequence.
        uint32_t k = static_cast<const uint32_t*>(params)[0];
        uint64_t count = static_cast<uint64_t>(static_cast<int64_t>(n));
        uint32_t ak = __qesiPowMod2P31M1(s->a, k, 0);
        s->x = static_cast<uint32_t>(static_cast<uint64_t>(s->x) * ak % kM31);
        s->a = __qesiPowMod2P31M1(s->a, static_cast<uint32_t>(count),
                                  static_cast<uint32_t>(count >> 32));
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP: {
        // With the current multiplier: on a leapfrogged stream the count is the
        // stream's own elements.
        uint64_t count = *static_cast<const uint64_t*>(params);
        uint32_t as = __qesiPowMod2P31M1(s->a, static_cast<uint32_t>(count),
                                         static_cast<uint32_t>(count >> 32));
        s->x = static_cast<uint32_t>(static_cast<uint64_t>(s->x) * as % kM31);
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngMCG31M1(void* stream, int32_t n, void* r) {
    OutInt out{static_cast<uint32_t*>(r)};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngMCG31M1(void* stream, int32_t n, double* r, double a, double b) {
    OutDouble out{r, (b - a) * kScale, a};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngMCG31M1(void* stream, int32_t n, float* r, float a, float b) {
    OutFloat out{r, (static_cast<double>(b) - static_cast<double>(a)) * kScale,
                 static_cast<double>(a)};
    Generate(stream, n, out);
    return QES_STATUS_OK;
}
