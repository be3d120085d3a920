/* Element forms of the quasi-random generators. Each form writes one element from a
 * coordinate word (Put), or the first L of four coordinates held in a vector
 * register (Lanes<L>) with the same bits as Put. The state path delivers 31-bit
 * reals, double(int32(x >> 1)) s + a; the chunk path 32-bit ones,
 * double(x as unsigned) s + a; singles the same in single precision. */
#ifndef BRENN_RNG_BRNG_QRNG_FORMS_H
#define BRENN_RNG_BRNG_QRNG_FORMS_H

#include <smmintrin.h>
#include <stdint.h>
#include <string.h>

#include <type_traits>

namespace brenn::rng {

// The first L lanes of v at r.
template <int L>
inline void StoreLanes(uint32_t* r, __m128i v) {
    if constexpr (L == 4) _mm_storeu_si128(reinterpret_cast<__m128i*>(r), v);
    if constexpr (L == 2 || L == 3) _mm_storel_epi64(reinterpret_cast<__m128i*>(r), v);
    if constexpr (L == 3) r[2] = static_cast<uint32_t>(_mm_extract_epi32(v, 2));
    if constexpr (L == 1) r[0] = static_cast<uint32_t>(_mm_cvtsi128_si32(v));
}
template <int L>
inline void StoreLanes(float* r, __m128 v) {
    if constexpr (L == 4) _mm_storeu_ps(r, v);
    if constexpr (L == 2 || L == 3) _mm_storel_pi(reinterpret_cast<__m64*>(r), v);
    if constexpr (L == 3) _mm_store_ss(r + 2, _mm_movehl_ps(v, v));
    if constexpr (L == 1) _mm_store_ss(r, v);
}
// Lanes 0, 1 in lo, 2, 3 in hi.
template <int L>
inline void StoreLanes(double* r, __m128d lo, __m128d hi) {
    if constexpr (L >= 2) _mm_storeu_pd(r, lo);
    if constexpr (L == 4) _mm_storeu_pd(r + 2, hi);
    if constexpr (L == 3) _mm_store_sd(r + 2, hi);
    if constexpr (L == 1) _mm_store_sd(r, lo);
}

// Words below 2^32 as exact doubles: each placed under the exponent of 2^52, which
// is then taken away again. Rounding down makes the zero difference -0, so the
// sign, always +, is cleared. Low takes lanes 0, 1; High lanes 2, 3.
inline __m128d FromUnderExponent(__m128i placed) {
    const __m128d d = _mm_sub_pd(_mm_castsi128_pd(placed), _mm_set1_pd(4503599627370496.0));
    return _mm_and_pd(d, _mm_castsi128_pd(_mm_set1_epi64x(0x7FFFFFFFFFFFFFFFll)));
}
inline __m128d LowWordsToDouble(__m128i x) {
    return FromUnderExponent(_mm_unpacklo_epi32(x, _mm_set1_epi32(0x43300000)));
}
inline __m128d HighWordsToDouble(__m128i x) {
    return FromUnderExponent(_mm_unpackhi_epi32(x, _mm_set1_epi32(0x43300000)));
}

// Four words below 2^32 rounded once to single, as the scalar conversion does: the
// high and low halves convert exactly and their sum is the only rounding.
inline __m128 WordsToFloat(__m128i x) {
    const __m128 high = _mm_cvtepi32_ps(_mm_srli_epi32(x, 16));
    const __m128 low = _mm_cvtepi32_ps(_mm_blend_epi16(x, _mm_setzero_si128(), 0xAA));
    return _mm_add_ps(_mm_mul_ps(high, _mm_set1_ps(65536.0f)), low);
}

struct Words {
    uint32_t* r;
    void Put(int64_t i, uint32_t x) const { r[i] = x; }
    template <int L>
    void Lanes(int64_t i, __m128i x) const {
        StoreLanes<L>(r + i, x);
    }
};

// A power-of-two scale s = 2^k: a word x' placed under the exponent of 2^(52 + k)
// is exactly 2^(52 + k) + x' s, so taking 2^(52 + k) away leaves the product x' s
// exactly, as the multiplication does, and the sum with a rounds as before.
// ExponentScale holds when this is so: 2^(53 + k) is finite, x' s is normal or
// zero, and rounding is to nearest (rounding down would make the zero difference
// -0 where the product is +0).
inline bool ExponentScale(double s, uint32_t* highWord) {
    uint64_t bits;
    memcpy(&bits, &s, sizeof bits);
    const uint64_t biased = bits >> 52; // the sign is 0 for s > 0
    if ((bits & 0xFFFFFFFFFFFFFull) != 0 || biased < 1 || biased > 2046 - 53) return false;
    if ((_mm_getcsr() & 0x6000u) != 0) return false;
    *highWord = static_cast<uint32_t>((biased + 52) << 20);
    return true;
}

// Doubles x' s + a, where x' is the word shifted right by 1 (31 bits) or the word
// itself (32 bits). kByExponent: s is a power of two and `high` the high word of
// 2^(52 + k), so no multiplication; else `high` is that of 2^52 when rounding is to
// nearest (for RunByExponent), or 0.
template <bool k31, bool kByExponent>
struct Double {
    static constexpr int kShift = k31 ? 1 : 0;
    static constexpr bool kMultiply = !kByExponent;
    double* r;
    double s, a;
    uint32_t high;
    void Put(int64_t i, uint32_t x) const { r[i] = static_cast<double>(k31 ? x >> 1 : x) * s + a; }
    template <int L>
    void Lanes(int64_t i, __m128i x) const {
        const __m128d vs = _mm_set1_pd(s), va = _mm_set1_pd(a);
        __m128d lo, hi;
        if constexpr (k31) x = _mm_srli_epi32(x, 1);
        if constexpr (kByExponent) {
            const __m128i e = _mm_set1_epi32(static_cast<int32_t>(high));
            const __m128d bias = _mm_castsi128_pd(_mm_unpacklo_epi32(_mm_setzero_si128(), e));
            lo = _mm_sub_pd(_mm_castsi128_pd(_mm_unpacklo_epi32(x, e)), bias);
            hi = _mm_sub_pd(_mm_castsi128_pd(_mm_unpackhi_epi32(x, e)), bias);
        } else if constexpr (k31) { // below 2^31: the signed conversion is exact
            lo = _mm_cvtepi32_pd(x);
            hi = _mm_cvtepi32_pd(_mm_shuffle_epi32(x, 0xEE));
        } else {
            lo = LowWordsToDouble(x);
            hi = HighWordsToDouble(x);
        }
        if constexpr (!kByExponent) {
            lo = _mm_mul_pd(lo, vs);
            hi = _mm_mul_pd(hi, vs);
        }
        StoreLanes<L>(r + i, _mm_add_pd(lo, va), _mm_add_pd(hi, va));
    }
};
using Double31 = Double<true, false>;
using Double32 = Double<false, false>;
template <bool k31>
using DoubleByExponent = Double<k31, true>;

// The double forms, whose whole points may go by RunByExponent.
template <typename Form>
struct IsDoubleForm : std::false_type {};
template <bool k31, bool kByExponent>
struct IsDoubleForm<Double<k31, kByExponent>> : std::true_type {};

struct Float31 {
    float* r;
    float s, a;
    void Put(int64_t i, uint32_t x) const {
        r[i] = static_cast<float>(static_cast<int32_t>(x >> 1)) * s + a;
    }
    template <int L>
    void Lanes(int64_t i, __m128i x) const {
        const __m128 f = _mm_cvtepi32_ps(_mm_srli_epi32(x, 1));
        StoreLanes<L>(r + i, _mm_add_ps(_mm_mul_ps(f, _mm_set1_ps(s)), _mm_set1_ps(a)));
    }
};
struct Float32 {
    float* r;
    float s, a;
    void Put(int64_t i, uint32_t x) const { r[i] = static_cast<float>(x) * s + a; }
    template <int L>
    void Lanes(int64_t i, __m128i x) const {
        StoreLanes<L>(r + i,
                      _mm_add_ps(_mm_mul_ps(WordsToFloat(x), _mm_set1_ps(s)), _mm_set1_ps(a)));
    }
};

// n coordinates from p: four lanes at a time, the rest one by one.
template <typename Form>
inline void FormRun(const Form& f, int64_t i, const uint32_t* p, int n) {
    int k = 0;
    for (; k + 4 <= n; k += 4)
        f.template Lanes<4>(i + k, _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + k)));
    for (; k < n; ++k)
        f.Put(i + k, p[k]);
}

} // namespace brenn::rng

#endif
