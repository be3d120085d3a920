/* Element forms shared by the generators whose words are 32-bit unsigned values
 * scaled by one constant: the word as it is, and double(u) x ((b - a) c) + a, the
 * single form computed in double and narrowed at the store. Each form takes single
 * words (Put) and runs of words (Run) whose conversion goes two lanes at a time. */
#ifndef BRENN_RNG_BRNG_WORD_FORMS_H
#define BRENN_RNG_BRNG_WORD_FORMS_H

#include <emmintrin.h>
#include <stdint.h>
#include <string.h>

namespace brenn::rng {

struct WordsOut {
    uint32_t* r;
    void Put(int32_t i, uint32_t u) { r[i] = u; }
    void Run(int32_t i, const uint32_t* u, int32_t count) {
        memcpy(r + i, u, static_cast<size_t>(count) * sizeof(uint32_t));
    }
};

// Two words as exact doubles: placed under the exponent of 2^52, which is then
// taken away again. Rounding downward, 2^52 - 2^52 is -0; the sign is cleared so
// that a zero word gives +0 in every mode, as the scalar conversion does.
inline __m128d TwoWordsToDouble(const uint32_t* u) {
    __m128i w = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(u));
    w = _mm_unpacklo_epi32(w, _mm_setzero_si128());
    const __m128i magic = _mm_set1_epi64x(0x4330000000000000ll);
    const __m128d d =
        _mm_sub_pd(_mm_castsi128_pd(_mm_or_si128(w, magic)), _mm_set1_pd(4503599627370496.0));
    return _mm_andnot_pd(_mm_set1_pd(-0.0), d);
}

inline void StoreTwo(double* to, __m128d v) {
    _mm_storeu_pd(to, v);
}
inline void StoreTwo(float* to, __m128d v) {
    _mm_storel_pi(reinterpret_cast<__m64*>(to), _mm_cvtpd_ps(v));
}

// T is double or float; scale and shift are already in double.
template <typename T>
struct RealOut {
    T* r;
    double scale, shift;
    void Put(int32_t i, uint32_t u) {
        r[i] = static_cast<T>(static_cast<double>(u) * scale + shift);
    }
    void Run(int32_t i, const uint32_t* u, int32_t count) {
        const __m128d s = _mm_set1_pd(scale), a = _mm_set1_pd(shift);
        int32_t k = 0;
        for (; k + 2 <= count; k += 2)
            StoreTwo(r + i + k, _mm_add_pd(_mm_mul_pd(TwoWordsToDouble(u + k), s), a));
        for (; k < count; ++k)
            Put(i + k, u[k]);
    }
};

// The forms on [a, b) with the word scale c: (b - a) c for doubles, and
// (double(b) - double(a)) c for singles.
inline RealOut<double> DoubleForm(double* r, double a, double b, double c) {
    return {r, (b - a) * c, a};
}
inline RealOut<float> SingleForm(float* r, float a, float b, double c) {
    return {r, (static_cast<double>(b) - static_cast<double>(a)) * c, static_cast<double>(a)};
}

} // namespace brenn::rng

#endif
