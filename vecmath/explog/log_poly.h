/* Horner evaluation of a single polynomial given as a coefficient list, lowest first,
 * for the logarithm bodies. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_POLY_H
#define BRENN_VECMATH_EXPLOG_LOG_POLY_H

#include <initializer_list>

#include "vecmath/frame/simd.h"

namespace brenn::vm {

inline __m128 PolyS(__m128 r, std::initializer_list<float> c) {
    const float* b = c.begin();
    int n = int(c.size());
    __m128 p = _mm_set1_ps(b[n - 1]);
    for (int i = n - 2; i >= 0; --i)
        p = _mm_add_ps(_mm_set1_ps(b[i]), _mm_mul_ps(r, p));
    return p;
}

// A single body that widens its lanes to double, runs Core and rounds once.
template <class Core>
inline __m128 WidenToDouble(__m128 x, Core core) {
    __m128d lo = core(_mm_cvtps_pd(x));
    __m128d hi = core(_mm_cvtps_pd(_mm_movehl_ps(x, x)));
    return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
}

} // namespace brenn::vm

#endif
