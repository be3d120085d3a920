/* The vector fix-up of the exponential family for error mode exactly 0x2000 (no error
 * handling at all): lanes above the overflow limit become +infinity and lanes below the
 * underflow limit +0 by blends, and leave the lane mask, so that no scalar routine runs
 * and nothing is reported for them. NaN lanes compare false and stay in the mask.
 * The frame calls a body's FixNoError with the quad's inputs and results. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_FIXUP_H
#define BRENN_VECMATH_EXPLOG_EXP_FIXUP_H

#include <limits>

#include "vecmath/frame/simd.h"

namespace brenn::vm {

template <class T>
inline typename Simd<T>::V CmpGt(typename Simd<T>::V a, typename Simd<T>::V b) {
    if constexpr (sizeof(T) == 4)
        return _mm_cmpgt_ps(a, b);
    else
        return _mm_cmpgt_pd(a, b);
}
template <class T>
inline typename Simd<T>::V CmpLt(typename Simd<T>::V a, typename Simd<T>::V b) {
    if constexpr (sizeof(T) == 4)
        return _mm_cmplt_ps(a, b);
    else
        return _mm_cmplt_pd(a, b);
}
template <class T>
inline typename Simd<T>::V Or(typename Simd<T>::V a, typename Simd<T>::V b) {
    if constexpr (sizeof(T) == 4)
        return _mm_or_ps(a, b);
    else
        return _mm_or_pd(a, b);
}

// x and y hold the four elements of a quad (one single or two double registers).
template <class T>
inline int FixExpLimits(const typename Simd<T>::V* x, typename Simd<T>::V* y, int bits, T over,
                        T under) {
    using S = Simd<T>;
    constexpr int L = S::kLanes;
    const typename S::V inf = S::Splat(std::numeric_limits<T>::infinity());
    const typename S::V zero = S::Splat(T(0));
    int fixed = 0;
    for (int k = 0; k < 4 / L; ++k) {
        typename S::V hi = CmpGt<T>(x[k], S::Splat(over));
        typename S::V lo = CmpLt<T>(x[k], S::Splat(under));
        y[k] = S::Blend(S::Blend(y[k], inf, hi), zero, lo);
        fixed |= S::LaneBits(Or<T>(hi, lo)) << (k * L);
    }
    return bits & ~fixed;
}

} // namespace brenn::vm

#endif
