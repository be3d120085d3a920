/* The logarithm and the phase of double lanes as unevaluated sums hi + lo of doubles,
 * within about 2^-62 of the value, for the complex rows that compute their parts in the
 * SSE unit first and round them there where an error bound decides the rounding (Log10,
 * Atanh, Atan); the other elements go on to their extended routines.
 *   LnWords(red, ratio): ln(sh + sl) for the double core's reduction of sh (explog/
 *     log_core.h: sh = 2^k m, the row of mh, r = mh rcp - 1 + ml rcp) and ratio = sl/sh,
 *     with r exact in two words (ml rcp by Dekker's product, the sum by Knuth's):
 *     (k ln2hi + th) + r + (rl + t + ratio), t the polynomial's terms and the rows'
 *     rests. The polynomial's relative error, 2^-56.6 of ln(1 + r) on |r| <= 2^-10
 *     (tools/explog/ln_double.sollya's fit), gives a bound's term in |r|; the roundings of
 *     t, of the rests and of k ln2lo stay below 2^-71 absolutely, and below 2^-105 where
 *     the head and the rests are zero (the first row at k = 0, the last at k = -1).
 *   PhaseQuotient(a, b), then PhaseFinish: |atan2(a, b)| by the table steps of the
 *     real Atan2 (its quotient t = n/d of the magnitudes, Atan2DoubleQuotient; c = t cut
 *     to 4 bits, atan c from the rows or, below 2^-10, c + c^3 (p0 + p1 c^2)), with the
 *     reduced quotient u = (n - c d)/(d + c n) in two words: the numerator exact in two
 *     words (c dh, c dl and n - c dh are exact), the denominator within 2^-105, the
 *     rounded quotient's remainder by Dekker's product, its correction ul taken into
 *     atan by 1 - u^2. atan u = u + u^3 P(u^2) is within 2^-62.3 of itself for |u| <=
 *     2^-5, the short series below the rows within 2^-62.8: the angle within 2^-62.2 of
 *     itself. b may carry a second word (a difference the caller formed in two), which
 *     enters the numerator and the denominator as a rounded term.
 *   Decided(p, q, e): the rounding of p + q where e bounds its error, the lanes that it
 *     does not decide marked. */
#ifndef BRENN_VECMATH_COMPLEX_DOUBLE_WORDS_H
#define BRENN_VECMATH_COMPLEX_DOUBLE_WORDS_H

#include "vecmath/complex/exact.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/invtrig/atan_body.h"
#include "vecmath/invtrig/atan_tables.h"

namespace brenn::vm::cx {

// The rounding of p + q (any two doubles with |p| >= |q|, normalised first) decided by
// the error bound e: the result, and the lanes where p + q -+ e round apart added to
// undecided. e may exceed the exact error by the roundings of lo -+ e (an ulp of lo).
BRENN_VEC __m128d Decided(__m128d p, __m128d q, __m128d e, __m128d& undecided) {
    __m128d hi, lo;
    FastTwoSum(p, q, hi, lo);
    const __m128d up = Add(hi, Add(lo, e)), down = Add(hi, Sub(lo, e));
    undecided = Or(undecided, Ne(up, down));
    return up;
}

// (hi + lo)(ch + cl) as p + q, p the rounded product of the heads and q the rest (within
// about 2^-104 of p of the exact product).
BRENN_VEC void ScaledWords(__m128d hi, __m128d lo, double ch, double cl, __m128d& p, __m128d& q) {
    const __m128d h = Set<double>(ch);
    __m128d pl;
    TwoProductExact(hi, h, p, pl);
    q = Add(pl, Add(Mul(hi, Set<double>(cl)), Mul(lo, h)));
}

// ln(sh + sl) as hi + lo from the reduction of sh and ratio = sl/sh; r for the bound, and
// rowsExact where the head and the rests are zero.
BRENN_VEC void LnWords(const LnReduction& red, __m128d ratio, __m128d& hi, __m128d& lo, __m128d& r,
                       __m128d& rowsExact) {
    using K = LogConst<double>;
    __m128d p, pl, rl;
    TwoProductExact(red.ml, red.rcp, p, pl);
    TwoSum(red.a, p, r, rl);
    rl = Add(rl, pl);
    const __m128d r2 = Mul(r, r);
    const __m128d poly = Estrin(r, K::kCore);
    const __m128d h = Add(Mul(red.k, Set<double>(K::kLn2Hi)), red.th);
    const __m128d tail = Add(Mul(red.k, Set<double>(K::kLn2Lo)), red.tl);
    const __m128d t = Add(Mul(r2, poly), tail);
    rowsExact = And(Eq(h, Zero<double>()), Eq(tail, Zero<double>()));
    __m128d se;
    TwoSum(h, r, hi, se);
    lo = Add(se, Add(rl, Add(t, ratio)));
}

// |atan2(a, b + bl)| as hi + lo, bl a second word of b or zero (Low false). Magnitudes of
// a and b in Atan2's window (2^-500 to 2^500), b's second word at most half its ulp.
// In two steps, the quotient of the magnitudes and the rest, for rounds that take each
// step over several registers.
// The first step is the real Atan2's quotient (no special lane here).
using PhaseStart = invtrig::Atan2DoubleState;
BRENN_VEC PhaseStart PhaseQuotient(__m128d a, __m128d b) {
    PhaseStart s;
    invtrig::Atan2DoubleQuotient(a, b, Zero<double>(), s);
    return s;
}
template <bool Low = false>
BRENN_VEC void PhaseFinish(const PhaseStart& ps, __m128d bl, __m128d& hi, __m128d& lo) {
    using P = invtrig::AtanTableSeries<double>;
    using Q = invtrig::Quarter<double, invtrig::Unit::Radian>;
    const __m128d b = ps.b, swap = ps.swap, n = ps.n, d = ps.d, t = ps.t;
    const I64x2 i = invtrig::AtanRowIndex(t);
    __m128d th, tl;
    GatherPairs(invtrig::atanRowsD, i, -1, th, tl, 2);
    const __m128d c = And(t, AsFloat(Set<uint64_t>(0xFFFF000000000000ull)));
    const __m128d below = AsFloat(Eq(i, Zero<uint64_t>()));
    const __m128d cz = Mul(c, c);
    const __m128d cl = Mul(Mul(c, cz), Add(Mul(cz, Set<double>(P::kP[1])), Set<double>(P::kP[0])));
    th = IfThenElse(below, c, th);
    tl = IfThenElse(below, cl, tl);
    // n - c d exactly in two words, d + c n to 2^-105 in two
    const __m128d cut = AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull));
    const __m128d dh = And(d, cut), nh = And(n, cut);
    __m128d numH, numL, denS, denE, denH, denL;
    TwoDiff(Sub(n, Mul(c, dh)), Mul(c, Sub(d, dh)), numH, numL);
    TwoSum(d, Mul(c, nh), denS, denE);
    __m128d denRest = Add(denE, Mul(c, Sub(n, nh)));
    if constexpr (Low) { // |b|'s second word with n or d
        const __m128d l = Xor(bl, SignBit(b));
        const __m128d nl = IfThenElseZero(swap, l), dl = IfThenZeroElse(swap, l);
        numL = Add(numL, Sub(nl, Mul(c, dl)));
        denRest = Add(denRest, Add(dl, Mul(c, nl)));
    }
    FastTwoSum(denS, denRest, denH, denL);
    // u + ul = num/den: the remainder of the rounded quotient is exact
    const __m128d u = Div(numH, denH);
    __m128d ph, pl;
    TwoProductExact(u, denH, ph, pl);
    const __m128d rem = Add(Sub(Sub(numH, ph), pl), Sub(numL, Mul(u, denL)));
    const __m128d ul = Div(rem, denH);
    const __m128d z = Mul(u, u);
    const __m128d series = Mul(Mul(u, z), Horner(z, P::kP));
    __m128d s, se;
    FastTwoSum(th, u, s, se);
    // atan(u + ul) = atan u + ul/(1 + u^2), within 2^-100 of u
    const __m128d sl = Add(se, Add(tl, Add(Mul(ul, Sub(Set<double>(1), z)), series)));
    const __m128d flip = Xor(And(swap, SignMask<double>()), SignBit(b));
    const __m128d k = IfThenElse(swap, Set<double>(2), IfThenElse(b, Set<double>(4), Zero<double>()));
    __m128d e;
    FastTwoSum(Mul(k, Set<double>(Q::kHi)), Xor(s, flip), hi, e);
    lo = Add(e, Add(Mul(k, Set<double>(Q::kLo)), Xor(sl, flip)));
}

} // namespace brenn::vm::cx

#endif
