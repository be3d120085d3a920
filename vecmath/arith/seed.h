/* Seeds for the double reciprocal and root chains. The approximate instructions work
 * on single values only, so the seed is taken on the significand (narrowed to single)
 * and the exponent is handled apart with integer arithmetic on the bits; the chains
 * that follow run in double. Only lanes that pass their kernel's range test (positive
 * or non-zero normals whose results stay normal) make sense here. */
#ifndef BRENN_VECMATH_ARITH_SEED_H
#define BRENN_VECMATH_ARITH_SEED_H

#include "vecmath/frame/simd.h"

namespace brenn::vm {

// About 1/x to 12 bits, for |x| with biased exponent 1 to 2045 (so 1/x is normal).
inline __m128d ReciprocalSeed(__m128d x) {
    __m128i xi = _mm_castpd_si128(x);
    // Significand with x's sign in [1, 2).
    __m128i m = _mm_or_si128(_mm_and_si128(xi, _mm_set1_epi64x(0x800FFFFFFFFFFFFFll)),
                             _mm_set1_epi64x(0x3FF0000000000000ll));
    __m128d r = _mm_cvtps_pd(_mm_rcp_ps(_mm_cvtpd_ps(_mm_castsi128_pd(m))));
    // 2^-E has the biased exponent 2046 - Eb.
    __m128i e = _mm_and_si128(xi, _mm_set1_epi64x(0x7FF0000000000000ll));
    __m128i s = _mm_sub_epi64(_mm_set1_epi64x(0x7FE0000000000000ll), e);
    return _mm_mul_pd(r, _mm_castsi128_pd(s));
}

// About 1/sqrt(x) to 12 bits, for positive normal x. x = 2^(2q) * m with m in [1, 4):
// the seed is rsqrt(m) scaled by 2^-q.
inline __m128d RootSeed(__m128d x) {
    __m128i xi = _mm_castpd_si128(x);
    // m's biased exponent is 1023 for an odd biased exponent of x (even E), else 1024.
    __m128i odd = _mm_and_si128(xi, _mm_set1_epi64x(0x0010000000000000ll));
    __m128i me = _mm_sub_epi64(_mm_set1_epi64x(0x4000000000000000ll), odd);
    __m128i m = _mm_or_si128(_mm_and_si128(xi, _mm_set1_epi64x(0x000FFFFFFFFFFFFFll)), me);
    __m128d r = _mm_cvtps_pd(_mm_rsqrt_ps(_mm_cvtpd_ps(_mm_castsi128_pd(m))));
    // High words of x - m hold 2q << 20 (low words cancel); halve with an arithmetic
    // shift and subtract from the bias to get 2^-q.
    __m128i q = _mm_srai_epi32(_mm_sub_epi32(xi, m), 1);
    __m128i s = _mm_sub_epi32(_mm_set1_epi64x(0x3FF0000000000000ll), q);
    return _mm_mul_pd(r, _mm_castsi128_pd(s));
}

// Dekker's exact product a*b = hi + lo (no FMA available), for |a|, |b| below 2^995.
inline void ExactProduct(__m128d a, __m128d b, __m128d& hi, __m128d& lo) {
    const __m128d split = _mm_set1_pd(134217729.0); // 2^27 + 1
    __m128d ta = _mm_mul_pd(a, split), tb = _mm_mul_pd(b, split);
    __m128d ah = _mm_sub_pd(ta, _mm_sub_pd(ta, a)), al = _mm_sub_pd(a, ah);
    __m128d bh = _mm_sub_pd(tb, _mm_sub_pd(tb, b)), bl = _mm_sub_pd(b, bh);
    hi = _mm_mul_pd(a, b);
    lo = _mm_add_pd(_mm_add_pd(_mm_sub_pd(_mm_mul_pd(ah, bh), hi),
                               _mm_add_pd(_mm_mul_pd(ah, bl), _mm_mul_pd(al, bh))),
                    _mm_mul_pd(al, bl));
}

// 1/sqrt(x) to within about half an ulp: the quotient of the rounded root, then one
// correction whose residual 1 - x*y*y is formed exactly. Positive normal x below
// 2^995 (the exact products need head room).
inline __m128d AccurateInvSqrt(__m128d x) {
    const __m128d one = _mm_set1_pd(1.0);
    __m128d y = _mm_div_pd(one, _mm_sqrt_pd(x));
    __m128d ph, pl, qh, ql;
    ExactProduct(x, y, ph, pl);  // x*y = ph + pl, near sqrt(x)
    ExactProduct(ph, y, qh, ql); // ph*y = qh + ql, near 1
    __m128d e = _mm_sub_pd(_mm_sub_pd(one, qh), _mm_add_pd(ql, _mm_mul_pd(pl, y)));
    return _mm_add_pd(y, _mm_mul_pd(y, _mm_mul_pd(_mm_set1_pd(0.5), e)));
}

} // namespace brenn::vm

#endif
