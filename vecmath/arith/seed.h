/* Seeds for the double reciprocal and root chains. The approximate instructions work
 * on single values only, so the seed is taken on the significand (narrowed to single)
 * and the exponent is handled apart with integer arithmetic on the bits; the chains
 * that follow run in double. Only lanes that pass their kernel's range test (positive
 * or non-zero normals whose results stay normal) make sense here. Also the range test
 * of those chains, on the high words of the lanes. */
#ifndef BRENN_VECMATH_ARITH_SEED_H
#define BRENN_VECMATH_ARITH_SEED_H

#include "vecmath/frame/simd.h"

namespace brenn::vm {

// The double range test (bits(x) & mask) + offset > limit, signed, for a mask, offset
// and limit whose low 32 bits are all ones, 0 and all ones: the low words can then
// neither carry into the high words nor decide the compare, so the test is the 32-bit
// compare of the high words, which is cheaper than the 64-bit one. The compare of the
// low words (anything > 0x7FFFFFFF) is false, so the result is all ones in the high
// word of a special lane and zero elsewhere: OR-ed onto a double it makes a quiet NaN
// of that lane alone, and its sign bits are those of the 64-bit test. A mask of all
// ones costs nothing.
inline __m128d HighWordTest(__m128d x, uint32_t mask, uint32_t offset, uint32_t limit) {
    __m128i b = _mm_castpd_si128(x);
    if (mask != 0xFFFFFFFFu)
        b = _mm_and_si128(b, _mm_set1_epi64x(int64_t((uint64_t(mask) << 32) | 0xFFFFFFFFu)));
    b = _mm_add_epi32(b, _mm_set1_epi64x(int64_t(offset) << 32));
    return _mm_castsi128_pd(
        _mm_cmpgt_epi32(b, _mm_set1_epi64x(int64_t((uint64_t(limit) << 32) | 0x7FFFFFFFu))));
}

// The approximate instructions see single values; a double's significand is moved into
// a single's by shifts alone. Shifting the bits right by 29 puts the top 23 bits of the
// significand in the low word's significand field (the low exponent bits land above
// them and are masked off), and shifting a single result left by 29 puts its exponent
// and significand back in the double's fields, with the single's exponent bias. The
// low word of each lane carries the value; the high word is zero going in, its result
// (the approximation of +0, an infinity with zero low bits) is shifted out. No
// conversion and no multiplication is needed, and the exponent is then added as an
// integer. `keep` selects the bits kept from x, `exponent` the single's exponent bits.
inline __m128 SignificandAsSingle(__m128i xi, int64_t keep, int64_t exponent) {
    __m128i t = _mm_and_si128(_mm_srli_epi64(xi, 29), _mm_set1_epi64x(keep));
    return _mm_castsi128_ps(_mm_or_si128(t, _mm_set1_epi64x(exponent)));
}
// The double whose exponent field is `s` plus the single r's biased exponent.
inline __m128d SingleScaled(__m128 r, __m128i s) {
    return _mm_castsi128_pd(_mm_add_epi64(_mm_slli_epi64(_mm_castps_si128(r), 29), s));
}

// About 1/x to 12 bits, for |x| with biased exponent 1 to 2044 (so 1/x is normal).
// With x = m * 2^(E-1023), m in [1, 2) truncated to single: r = rcp(m) has a single
// exponent e8 of 126 or 127, and 1/x = r * 2^(1023-E), whose biased exponent is
// e8 + 896 + 1023 - E, between 1 and 2045 in the range above. Subtracting x's sign and
// exponent bits from that constant as one 64-bit integer puts x's sign on the result
// too (the borrow into bit 63 is the sign).
inline __m128d ReciprocalSeed(__m128d x) {
    __m128i xi = _mm_castpd_si128(x);
    __m128 r = _mm_rcp_ps(SignificandAsSingle(xi, 0x007FFFFF, 0x3F800000));
    __m128i s = _mm_sub_epi64(_mm_set1_epi64x(int64_t(896 + 1023) << 52),
                              _mm_and_si128(xi, _mm_set1_epi64x(int64_t(0xFFF0000000000000ull))));
    return SingleScaled(r, s);
}

// About 1/sqrt(x) to 12 bits, for positive normal x. The low bit of x's biased exponent
// E sits just above the 23 significand bits after the shift; kept, it makes the single
// exponent 127 for odd E and 126 for even E, so that m is in [1, 2) or [0.5, 1) and
// x = m * 2^(2q) with q = (E >> 1) - 511. r = rsqrt(m) has exponent e8 of 126 or 127,
// and 1/sqrt(x) = r * 2^-q has the biased exponent e8 + 896 + 511 - (E >> 1).
inline __m128d RootSeed(__m128d x) {
    __m128i xi = _mm_castpd_si128(x);
    __m128 r = _mm_rsqrt_ps(SignificandAsSingle(xi, 0x00FFFFFF, 0x3F000000));
    __m128i half = _mm_and_si128(_mm_srli_epi64(xi, 1), _mm_set1_epi64x(0x3FF0000000000000ll));
    __m128i s = _mm_sub_epi64(_mm_set1_epi64x(int64_t(896 + 511) << 52), half);
    return SingleScaled(r, s);
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
