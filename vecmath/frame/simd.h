/* The register struct Simd<T> and the range test RangeTest<T>(x, mask, offset, limit)
 * in the form that the exponential, logarithm, trigonometric and min-max bodies were
 * written against before the vocabulary of vec.h. New code uses vec.h; this header
 * goes once those bodies have moved to it. */
#ifndef BRENN_VECMATH_FRAME_SIMD_H
#define BRENN_VECMATH_FRAME_SIMD_H

#include "vecmath/frame/scalar.h"
#include "vecmath/frame/vec.h"

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

// The full-width range test of vec_range.h with the window as three arguments.
template <class T>
inline typename Simd<T>::V RangeTest(typename Simd<T>::V x, typename Simd<T>::Bits andMask,
                                     typename Simd<T>::Bits offset, typename Simd<T>::Bits limit) {
    if constexpr (sizeof(T) == 4)
        return RangeTest(x, Range32{andMask, offset, limit});
    else
        return RangeTest(x, Range64{andMask, offset, limit});
}

} // namespace brenn::vm

#endif
