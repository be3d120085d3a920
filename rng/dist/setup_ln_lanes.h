/* The scalar set-up logarithm __qesdLn over an array, two lanes at a time with its
 * own steps in the same order (so with its bits): for the rejection tests that the
 * generators take from it one trial at a time. Pairs with a lane that is not a
 * positive normal go to __qesdLn itself. */
#ifndef BRENN_RNG_DIST_SETUP_LN_LANES_H
#define BRENN_RNG_DIST_SETUP_LN_LANES_H

#include <smmintrin.h>
#include <stdint.h>

#include "vecmath/explog/log_core.h"
#include "vecmath/explog/scalar_log.h"

namespace brenn::rng {

// x[i] = __qesdLn(x[i]) for i below m.
inline void SetupLnLanes(int32_t m, double* x) {
    using F = brenn::vm::Format<double>;
    using K = brenn::vm::LogConst<double>;
    const double* c = brenn::vm::kLnScalarPoly;
    const __m128d one = _mm_set1_pd(1.0);
    auto poly = [&](__m128d r) {
        __m128d p = _mm_set1_pd(c[6]);
        for (int i = 5; i >= 0; --i)
            p = _mm_add_pd(_mm_set1_pd(c[i]), _mm_mul_pd(r, p));
        return _mm_mul_pd(_mm_mul_pd(r, r), p);
    };
    auto row = [](int j0, int j1, int e) {
        return _mm_set_pd(brenn::vm::lnTable128[j1][e], brenn::vm::lnTable128[j0][e]);
    };
    int32_t i = 0;
    for (; i + 2 <= m; i += 2) {
        const __m128d v = _mm_loadu_pd(x + i);
        const __m128d normal = _mm_and_pd(_mm_cmpge_pd(v, _mm_set1_pd(0x1p-1022)),
                                          _mm_cmplt_pd(v, _mm_set1_pd(__builtin_inf())));
        if (_mm_movemask_pd(normal) != 3) {
            x[i] = __qesdLn(x[i]);
            x[i + 1] = __qesdLn(x[i + 1]);
            continue;
        }
        // Near 1: r + P(r) on r = x - 1.
        const __m128d r0 = _mm_sub_pd(v, one);
        const __m128d nearOne =
            _mm_cmple_pd(_mm_andnot_pd(_mm_set1_pd(-0.0), r0), _mm_set1_pd(0x1p-7));
        const __m128d near = _mm_add_pd(r0, poly(r0));
        // Elsewhere: x = 2^k m, the row of m's first 7 fraction bits and its centre.
        const __m128i b = _mm_castpd_si128(v);
        const __m128d k = _mm_sub_pd(_mm_cvtepi32_pd(_mm_shuffle_epi32(
                                         _mm_srli_epi64(b, F::kMantBits), _MM_SHUFFLE(3, 1, 2, 0))),
                                     _mm_set1_pd(F::kBias));
        const __m128d mm =
            _mm_castsi128_pd(_mm_or_si128(_mm_and_si128(b, _mm_set1_epi64x(int64_t(F::kMant))),
                                          _mm_set1_epi64x(int64_t(F::kOne))));
        const __m128i j = _mm_cvttpd_epi32(_mm_mul_pd(_mm_sub_pd(mm, one), _mm_set1_pd(128.0)));
        const int j0 = _mm_cvtsi128_si32(j), j1 = _mm_extract_epi32(j, 1);
        const __m128d t0 = row(j0, j1, 0), t1 = row(j0, j1, 1), t2 = row(j0, j1, 2);
        const __m128d centre = _mm_add_pd(
            one, _mm_mul_pd(_mm_cvtepi32_pd(_mm_add_epi32(_mm_add_epi32(j, j), _mm_set1_epi32(1))),
                            _mm_set1_pd(0x1p-8)));
        const __m128d r = _mm_add_pd(_mm_sub_pd(_mm_mul_pd(centre, t0), one),
                                     _mm_mul_pd(_mm_sub_pd(mm, centre), t0));
        const __m128d head = _mm_add_pd(_mm_mul_pd(k, _mm_set1_pd(K::kLn2Hi)), t1);
        const __m128d tail = _mm_add_pd(_mm_mul_pd(k, _mm_set1_pd(K::kLn2Lo)), t2);
        const __m128d far = _mm_add_pd(head, _mm_add_pd(r, _mm_add_pd(poly(r), tail)));
        _mm_storeu_pd(x + i, _mm_blendv_pd(far, near, nearOne));
    }
    if (i < m) x[i] = __qesdLn(x[i]);
}

} // namespace brenn::rng

#endif
