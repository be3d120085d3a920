/* Seeds for the double reciprocal and root chains. The approximate instructions work
 * on single values only, so the seed is taken on the significand (narrowed to single)
 * and the exponent is handled apart with integer arithmetic on the bits; the chains
 * that follow run in double. Only lanes that pass their kernel's range test (positive
 * or non-zero normals whose results stay normal) make sense here. Also the series
 * coefficients and the accurate root reciprocal that the chains share. */
#ifndef BRENN_VECMATH_ARITH_SEED_H
#define BRENN_VECMATH_ARITH_SEED_H

#include "vecmath/frame/vec.h"

namespace brenn::vm {

// The approximate instructions see single values; a double's significand is moved into
// a single's by shifts alone. Shifting the bits right by 29 puts the top 23 bits of the
// significand in the low word's significand field (the low exponent bits land above
// them and are masked off), and shifting a single result left by 29 puts its exponent
// and significand back in the double's fields, with the single's exponent bias. The
// low word of each lane carries the value; the high word is zero going in, its result
// (the approximation of +0, an infinity with zero low bits) is shifted out. No
// conversion and no multiplication is needed, and the exponent is then added as an
// integer. `keep` selects the bits kept from x, `exponent` the single's exponent bits.
inline __m128 SignificandAsSingle(I64x2 xi, int64_t keep, int64_t exponent) {
    I64x2 t = And(ShiftRight<29>(xi), Set<int64_t>(keep));
    return BitCast<__m128>(Or(t, Set<int64_t>(exponent)));
}
// The double whose exponent field is `s` plus the single r's biased exponent.
inline __m128d SingleScaled(__m128 r, I64x2 s) {
    return AsFloat(Add(ShiftLeft<29>(BitCast<I64x2>(r)), s));
}

// The single exponent bias seen from the double's: a single's biased exponent e8 is the
// double exponent field e8 + kRebias.
constexpr int64_t kRebias = Format<double>::kBias - Format<float>::kBias; // 896

// About 1/x to 12 bits, for |x| with biased exponent 1 to 2044 (so 1/x is normal).
// With x = m * 2^(E-1023), m in [1, 2) truncated to single: r = rcp(m) has a single
// exponent e8 of 126 or 127, and 1/x = r * 2^(1023-E), whose biased exponent is
// e8 + 896 + 1023 - E, between 1 and 2045 in the range above. Subtracting x's sign and
// exponent bits from that constant as one 64-bit integer puts x's sign on the result
// too (the borrow into bit 63 is the sign).
inline __m128d ReciprocalSeed(__m128d x) {
    I64x2 xi = AsInt(x);
    __m128 r = ApproxRecip(SignificandAsSingle(xi, 0x007FFFFF, 0x3F800000));
    I64x2 s = Sub(Set<int64_t>((kRebias + 1023) << 52),
                  And(xi, Set<uint64_t>(Format<double>::kSign | Format<double>::kExpField)));
    return SingleScaled(r, s);
}

// About 1/sqrt(x) to 12 bits, for positive normal x. The low bit of x's biased exponent
// E sits just above the 23 significand bits after the shift; kept, it makes the single
// exponent 127 for odd E and 126 for even E, so that m is in [1, 2) or [0.5, 1) and
// x = m * 2^(2q) with q = (E >> 1) - 511. r = rsqrt(m) has exponent e8 of 126 or 127,
// and 1/sqrt(x) = r * 2^-q has the biased exponent e8 + 896 + 511 - (E >> 1).
inline __m128d RootSeed(__m128d x) {
    I64x2 xi = AsInt(x);
    __m128 r = ApproxRecipSqrt(SignificandAsSingle(xi, 0x00FFFFFF, 0x3F000000));
    I64x2 half = And(ShiftRight<1>(xi), Set<int64_t>(0x3FF0000000000000ll)); // E >> 1
    I64x2 s = Sub(Set<int64_t>((kRebias + 511) << 52), half);
    return SingleScaled(r, s);
}

// (1 - e)^(-1/2) = 1 + e*P(e): P to fourth order, its coefficients moved from the
// series' 1/2, 3/8, 5/16, 35/128 for the seed's range of e, so that the chains of dSqrt
// LA and dInvSqrt LA and EP stay within 2 ulp.
constexpr double kRootSeries[] = {0.49999999999997785, 0.37500000000001366, 0.31250016501874495,
                                  0.27343754675366555};

// 1/sqrt(x) to within about half an ulp: the quotient of the rounded root, then one
// correction whose residual 1 - x*y*y is formed exactly. Positive normal x below
// 2^995 (the exact products need head room).
inline __m128d AccurateInvSqrt(__m128d x) {
    const __m128d one = Set<double>(1.0);
    __m128d y = Div(one, Sqrt(x));
    __m128d ph, pl, qh, ql;
    TwoProduct(x, y, ph, pl);  // x*y = ph + pl, near sqrt(x)
    TwoProduct(ph, y, qh, ql); // ph*y = qh + ql, near 1
    __m128d e = Sub(Sub(one, qh), Add(ql, Mul(pl, y)));
    return Add(y, Mul(y, Mul(Set<double>(0.5), e)));
}

} // namespace brenn::vm

#endif
