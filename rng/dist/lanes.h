/* The SSE vocabulary of the distribution generators' element passes, by precision:
 * loads and stores, products, sums and negation (never fused: the passes round each step as
 * the scalar code does), the maximum, and the shuffles that split interleaved pairs
 * and interleave two arrays again. */
#ifndef BRENN_RNG_DIST_LANES_H
#define BRENN_RNG_DIST_LANES_H

#include <emmintrin.h>

namespace brenn::rng {

template <typename T>
struct Lanes;

template <>
struct Lanes<double> {
    using V = __m128d;
    static constexpr int kCount = 2;
    static V Set(double x) { return _mm_set1_pd(x); }
    static V Load(const double* p) { return _mm_load_pd(p); }
    static V LoadU(const double* p) { return _mm_loadu_pd(p); }
    static void Store(double* p, V v) { _mm_store_pd(p, v); }
    static void StoreU(double* p, V v) { _mm_storeu_pd(p, v); }
    static V Mul(V x, V y) { return _mm_mul_pd(x, y); }
    static V Add(V x, V y) { return _mm_add_pd(x, y); }
    // -x by the sign bit, as the scalar negation does it (zeros and NaNs included).
    static V Neg(V x) { return _mm_xor_pd(x, _mm_set1_pd(-0.0)); }
    static V Fma(V x, V s, V t) { return _mm_add_pd(_mm_mul_pd(x, s), t); }
    static V Max(V x, V m) { return _mm_max_pd(x, m); }
    // All ones where x <= y (false for a NaN), zero elsewhere; and the bitwise mixers.
    static V AtMost(V x, V y) { return _mm_cmple_pd(x, y); }
    static V And(V x, V y) { return _mm_and_pd(x, y); }
    static V Xor(V x, V y) { return _mm_xor_pd(x, y); }
    // Elements 0, 2, ... and 1, 3, ... of the pairs in x then y.
    static V Evens(V x, V y) { return _mm_unpacklo_pd(x, y); }
    static V Odds(V x, V y) { return _mm_unpackhi_pd(x, y); }
    // x0 y0 x1 y1 ...: the first and second halves of the interleaving.
    static V InterleaveLow(V x, V y) { return _mm_unpacklo_pd(x, y); }
    static V InterleaveHigh(V x, V y) { return _mm_unpackhi_pd(x, y); }
};

template <>
struct Lanes<float> {
    using V = __m128;
    static constexpr int kCount = 4;
    static V Set(float x) { return _mm_set1_ps(x); }
    static V Load(const float* p) { return _mm_load_ps(p); }
    static V LoadU(const float* p) { return _mm_loadu_ps(p); }
    static void Store(float* p, V v) { _mm_store_ps(p, v); }
    static void StoreU(float* p, V v) { _mm_storeu_ps(p, v); }
    static V Mul(V x, V y) { return _mm_mul_ps(x, y); }
    static V Add(V x, V y) { return _mm_add_ps(x, y); }
    static V Neg(V x) { return _mm_xor_ps(x, _mm_set1_ps(-0.0f)); }
    static V Fma(V x, V s, V t) { return _mm_add_ps(_mm_mul_ps(x, s), t); }
    static V Max(V x, V m) { return _mm_max_ps(x, m); }
    static V AtMost(V x, V y) { return _mm_cmple_ps(x, y); }
    static V And(V x, V y) { return _mm_and_ps(x, y); }
    static V Xor(V x, V y) { return _mm_xor_ps(x, y); }
    static V Evens(V x, V y) { return _mm_shuffle_ps(x, y, _MM_SHUFFLE(2, 0, 2, 0)); }
    static V Odds(V x, V y) { return _mm_shuffle_ps(x, y, _MM_SHUFFLE(3, 1, 3, 1)); }
    static V InterleaveLow(V x, V y) { return _mm_unpacklo_ps(x, y); }
    static V InterleaveHigh(V x, V y) { return _mm_unpackhi_ps(x, y); }
};

} // namespace brenn::rng

#endif
