/* The thin vector vocabulary that kernel bodies are written against: one register type
 * per element type, unaligned loads and stores, bit views for the integer range tests,
 * blends and lane masks. Only SSE up to 4.2 is used, so that results do not depend on
 * the machine. */
#ifndef BRENN_VECMATH_FRAME_SIMD_H
#define BRENN_VECMATH_FRAME_SIMD_H

#include <nmmintrin.h>
#include <stdint.h>

namespace brenn::vm {

template <class T>
struct Simd;

template <>
struct Simd<float> {
    using V = __m128;
    using Bits = uint32_t;
    static constexpr int kLanes = 4;
    static V Load(const float* p) { return _mm_loadu_ps(p); }
    static void Store(float* p, V v) { _mm_storeu_ps(p, v); }
    static V Splat(float v) { return _mm_set1_ps(v); }
    static V SplatBits(uint32_t b) { return _mm_castsi128_ps(_mm_set1_epi32(int(b))); }
    static int LaneBits(V mask) { return _mm_movemask_ps(mask); }
    static __m128i AsInt(V v) { return _mm_castps_si128(v); }
    static V FromInt(__m128i v) { return _mm_castsi128_ps(v); }
    // Signed compare of integer views, lane by lane; all ones where a > b.
    static V GreaterInt(__m128i a, __m128i b) { return FromInt(_mm_cmpgt_epi32(a, b)); }
    static __m128i AddInt(__m128i a, __m128i b) { return _mm_add_epi32(a, b); }
    static __m128i SplatInt(uint32_t b) { return _mm_set1_epi32(int(b)); }
    static V Blend(V f, V t, V mask) { return _mm_blendv_ps(f, t, mask); }
};

template <>
struct Simd<double> {
    using V = __m128d;
    using Bits = uint64_t;
    static constexpr int kLanes = 2;
    static V Load(const double* p) { return _mm_loadu_pd(p); }
    static void Store(double* p, V v) { _mm_storeu_pd(p, v); }
    static V Splat(double v) { return _mm_set1_pd(v); }
    static V SplatBits(uint64_t b) { return _mm_castsi128_pd(_mm_set1_epi64x(int64_t(b))); }
    static int LaneBits(V mask) { return _mm_movemask_pd(mask); }
    static __m128i AsInt(V v) { return _mm_castpd_si128(v); }
    static V FromInt(__m128i v) { return _mm_castsi128_pd(v); }
    static V GreaterInt(__m128i a, __m128i b) { return FromInt(_mm_cmpgt_epi64(a, b)); }
    static __m128i AddInt(__m128i a, __m128i b) { return _mm_add_epi64(a, b); }
    static __m128i SplatInt(uint64_t b) { return _mm_set1_epi64x(int64_t(b)); }
    static V Blend(V f, V t, V mask) { return _mm_blendv_pd(f, t, mask); }
};

// Sign-clearing and sign-only masks of the element type.
template <class T>
inline typename Simd<T>::V AbsMask() {
    if constexpr (sizeof(T) == 4)
        return Simd<T>::SplatBits(0x7FFFFFFFu);
    else
        return Simd<T>::SplatBits(0x7FFFFFFFFFFFFFFFull);
}
template <class T>
inline typename Simd<T>::V SignMask() {
    if constexpr (sizeof(T) == 4)
        return Simd<T>::SplatBits(0x80000000u);
    else
        return Simd<T>::SplatBits(0x8000000000000000ull);
}

// The range test every family uses: (bits(x) & mask) + offset, read as signed, greater
// than limit. Offset turns an unsigned window into one signed compare.
template <class T>
inline typename Simd<T>::V RangeTest(typename Simd<T>::V x, typename Simd<T>::Bits andMask,
                                     typename Simd<T>::Bits offset, typename Simd<T>::Bits limit) {
    using S = Simd<T>;
    __m128i b = _mm_and_si128(S::AsInt(x), S::SplatInt(andMask));
    b = S::AddInt(b, S::SplatInt(offset));
    return S::GreaterInt(b, S::SplatInt(limit));
}

// Scalar bit views.
inline uint32_t BitsOf(float x) {
    return __builtin_bit_cast(uint32_t, x);
}
inline uint64_t BitsOf(double x) {
    return __builtin_bit_cast(uint64_t, x);
}
inline float FloatOf(uint32_t b) {
    return __builtin_bit_cast(float, b);
}
inline double DoubleOf(uint64_t b) {
    return __builtin_bit_cast(double, b);
}

// Forces a value through memory so that the compiler keeps an operation that exists
// for its flag (a division making an infinity, an invalid operation making a NaN).
template <class T>
inline T Keep(T v) {
    volatile T t = v;
    return t;
}

} // namespace brenn::vm

#endif
