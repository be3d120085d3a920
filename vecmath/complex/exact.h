/* Exact products and sums of products for the double complex arithmetic, on registers
 * and on single elements, and the range window inside which they need no scaling.
 *
 * A product a*b is carried as hi + lo with hi = a*b rounded and lo its exact error:
 * both factors split by Veltkamp's constant 2^27 + 1 into halves of at most 26 bits,
 * whose four partial products are exact, added to the head's negation from the largest
 * to the smallest (Dekker), so that each partial sum is exact as well. (The shared
 * TwoProduct adds the cross products first and may be off by 2^-78 of the product;
 * complex Mul must give exact answers where two products cancel.)
 *
 * A sum of two such products, a*c + b*d, is the two heads' exact sum (Knuth) with the
 * errors added to its error term: hi + lo within about 2^-104 of the exact value,
 * hi the value rounded (correctly unless the error term lies within that margin of a
 * half ulp). */
#ifndef BRENN_VECMATH_COMPLEX_EXACT_H
#define BRENN_VECMATH_COMPLEX_EXACT_H

#include <stdint.h>

#include "vecmath/frame/scalar.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm::cx {

constexpr double kVeltkamp = 134217729.0; // 2^27 + 1

template <class V>
BRENN_VEC void ExactProduct(V a, V b, V& hi, V& lo) {
    const V split = Set<double>(kVeltkamp);
    V ta = Mul(a, split), tb = Mul(b, split);
    V ah = Sub(ta, Sub(ta, a)), al = Sub(a, ah);
    V bh = Sub(tb, Sub(tb, b)), bl = Sub(b, bh);
    hi = Mul(a, b);
    lo = Add(Add(Add(Sub(Mul(ah, bh), hi), Mul(ah, bl)), Mul(al, bh)), Mul(al, bl));
}

// A factor split once into Veltkamp halves, for factors that meet several others.
template <class V>
struct Halves {
    V v, hi, lo;
};
template <class V>
BRENN_VEC Halves<V> SplitOnce(V a) {
    V t = Mul(a, Set<double>(kVeltkamp));
    V hi = Sub(t, Sub(t, a));
    return {a, hi, Sub(a, hi)};
}
// The same split with the head rounded to 26 bits in the integer view: half an ulp of
// the head added to the magnitude and the low 27 bits masked off, one integer addition
// and one mask instead of Veltkamp's product and two subtractions, which is what Mul and
// Div are short of. Both halves fit 26 bits with their signs, as Veltkamp's do, so
// every partial product stays exact (ties split the other way, the products are the
// same). For finite parts below 2^1023: the windows of Mul and Div.
template <class V>
BRENN_VEC Halves<V> SplitRounded(V a) {
    const I64x2 half = Set<int64_t>(int64_t(1) << 26);
    const I64x2 mask = Set<int64_t>(int64_t(0xFFFFFFFFF8000000ull));
    V hi = AsFloat(And(Add(AsInt(a), half), mask));
    return {a, hi, Sub(a, hi)};
}
// A cheaper split, the low 27 bits masked off: halves of 26 and 27 bits, so that the
// product of the two low halves may round (by 2^-104 of the product). Enough for the
// squares of Abs, whose sum does not cancel and whose root's correction needs the
// residual to far fewer bits. Beside a factor split by SplitRounded every partial product
// is exact again (26 bits times at most 27) and so is each step of ProductError below,
// so Mul splits one factor of each product that way and the other by the mask.
template <class V>
BRENN_VEC Halves<V> SplitByMask(V a) {
    V hi = And(a, AsFloat(Set<int64_t>(int64_t(0xFFFFFFFFF8000000ull))));
    return {a, hi, Sub(a, hi)};
}
// The exact product of two split factors (as ExactProduct).
template <class V>
BRENN_VEC void ExactProduct(const Halves<V>& a, const Halves<V>& b, V& hi, V& lo) {
    hi = Mul(a.v, b.v);
    lo = Add(Add(Add(Sub(Mul(a.hi, b.hi), hi), Mul(a.hi, b.lo)), Mul(a.lo, b.hi)), Mul(a.lo, b.lo));
}
// s + e = a - b exactly: TwoSum of a and -b, without the negation.
template <class V>
BRENN_VEC void TwoDiff(V a, V b, V& s, V& e) {
    s = Sub(a, b);
    V bb = Sub(s, a);
    e = Sub(Sub(a, Sub(s, bb)), Add(b, bb));
}
// hi + lo = a*c + b*d (Minus: a*c - b*d) from split factors, hi the rounded value (as
// SumOfProducts below); the sign of the second product is taken by the operations.
template <bool Minus = false, class V>
BRENN_VEC void SumOfProducts(const Halves<V>& a, const Halves<V>& c, const Halves<V>& b,
                             const Halves<V>& d, V& hi, V& lo) {
    V p, pl, q, ql, e;
    ExactProduct(a, c, p, pl);
    ExactProduct(b, d, q, ql);
    if constexpr (Minus) {
        TwoDiff(p, q, hi, e);
        lo = Add(e, Sub(pl, ql));
    } else {
        TwoSum(p, q, hi, e);
        lo = Add(e, Add(pl, ql));
    }
    FastTwoSum(hi, lo, hi, lo);
}
// The exact square of a split factor, as ExactProduct(a, a) with its two cross products
// added as one, 2 hi lo: the partial sum that Dekker's order reaches after both is the
// same value, exact.
template <class V>
BRENN_VEC void ExactSquare(const Halves<V>& a, V& hi, V& lo) {
    hi = Mul(a.v, a.v);
    lo = Add(Add(Sub(Mul(a.hi, a.hi), hi), Mul(a.hi, Add(a.lo, a.lo))), Mul(a.lo, a.lo));
}
// hi + lo = a^2 + b^2 as SumOfSquares below gives it, without its last renormalisation:
// hi is the rounded sum of the rounded squares and lo (the sum's exact error and the
// squares' errors, rounded once) may reach an ulp and a half of hi. hi waits on two
// products and one addition only, so that a root or a logarithm of it starts while lo
// is still being formed.
template <class V>
BRENN_VEC void RawSumOfSquares(const Halves<V>& a, const Halves<V>& b, V& hi, V& lo) {
    V p, pl, q, ql, e;
    ExactSquare(a, p, pl);
    ExactSquare(b, q, ql);
    TwoSum(p, q, hi, e);
    lo = Add(e, Add(pl, ql));
}
// p = v^2 rounded and its error v^2 - p to within 2^-77 p, from v's halves by the mask
// (h of 26 bits, l = v - h): h^2 is exact and within 2^-25 of p, so h^2 - p is exact,
// and v^2 - h^2 = l (h + v) is rounded twice, about 2^-25 p: the error is known to 2^-24
// of an ulp of p, for roots whose correction needs no more.
template <class V>
BRENN_VEC void SquareAndError(const Halves<V>& v, V& p, V& pl) {
    p = Mul(v.v, v.v);
    pl = Add(Sub(Mul(v.hi, v.hi), p), Mul(v.lo, Add(v.hi, v.v)));
}
// s - r^2 for a root r of s within an ulp or so, from r's halves by the mask, to within
// 2^-77 s (as SquareAndError: s - h^2 exact, l (h + r) rounded twice).
template <class V>
BRENN_VEC V RootResidual(V s, const Halves<V>& r) {
    return Sub(Sub(s, Mul(r.hi, r.hi)), Mul(r.lo, Add(r.hi, r.v)));
}
// hi + lo = a^2 + b^2 as RawSumOfSquares gives it, from halves by the mask, the squares'
// errors by SquareAndError (lo within 2^-76 of hi's value), the squares summed by
// Fast2Sum of the larger and the smaller (the same hi and sum error as TwoSum).
template <class V>
BRENN_VEC void RawSumOfSquaresNear(const Halves<V>& a, const Halves<V>& b, V& hi, V& lo) {
    V p, pl, q, ql, e;
    SquareAndError(a, p, pl);
    SquareAndError(b, q, ql);
    FastTwoSum(Max(p, q), Min(p, q), hi, e);
    lo = Add(e, Add(pl, ql));
}
// hi + lo = a^2 + b^2 from split factors, as SumOfProducts(a, a, b, b) gives it.
template <class V>
BRENN_VEC void SumOfSquares(const Halves<V>& a, const Halves<V>& b, V& hi, V& lo) {
    RawSumOfSquares(a, b, hi, lo);
    FastTwoSum(hi, lo, hi, lo);
}
// The exact error a*c - p of the rounded product p = a*c, from split factors: Dekker's
// partial products added to -p from the largest to the smallest, each step exact (one
// factor split by SplitRounded, the other by it or by the mask; parts in the window below).
template <class V>
BRENN_VEC V ProductError(const Halves<V>& a, const Halves<V>& c, V p) {
    return Add(Add(Add(Sub(Mul(a.hi, c.hi), p), Mul(a.hi, c.lo)), Mul(a.lo, c.hi)),
               Mul(a.lo, c.lo));
}
// p + q (Minus: p - q) for rounded products with their exact errors pl and ql, rounded
// once: the heads' exact sum, its error and the products' errors added to it, as
// SumOfProducts forms its head.
template <bool Minus, class V>
BRENN_VEC V RoundedSumOfProducts(V p, V pl, V q, V ql) {
    V s, e;
    if constexpr (Minus) {
        TwoDiff(p, q, s, e);
        return Add(s, Add(e, Sub(pl, ql)));
    } else {
        TwoSum(p, q, s, e);
        return Add(s, Add(e, Add(pl, ql)));
    }
}

// hi + lo = a*c + s*b*d (s = +1 or -1 by Neg), hi the rounded value.
template <class V>
BRENN_VEC void SumOfProducts(V a, V c, V b, V d, V& hi, V& lo) {
    V p, pl, q, ql, e;
    ExactProduct(a, c, p, pl);
    ExactProduct(b, d, q, ql);
    TwoSum(p, q, hi, e);
    lo = Add(e, Add(pl, ql));
    FastTwoSum(hi, lo, hi, lo);
}

// The window of the vector bodies: a part whose high word, sign cleared, lies in
// [0x23400000, top] keeps every product, its splitting and its error term normal and
// finite. Mul's top is 0x5FD6A09D (|x| < 2^510.5). Div's is 0x5EFFFFFF (|x| < 2^497):
// its divisor c^2 + d^2 is split as well, for the residual of the quotient, and must
// stay below 2^996. Inside both, every quotient of such parts is normal and finite.
// Zeros, denormals, huge parts, infinities and NaNs fall outside. The test is one
// subtraction and one signed compare: the window moved to the bottom of the signed range.
constexpr int32_t kWindowBottom = 0x23400000;
constexpr int32_t kMulWindowTop = 0x5FD6A09D;
constexpr int32_t kDivWindowTop = 0x5EFFFFFF;

// Each 32-bit lane all ones where mag, a high word with its sign cleared, lies outside
// [Bottom, Top]: one subtraction and one signed compare, the window moved to the bottom
// of the signed range. A NaN lies above every window. HighWordOutside: the same for the
// high words of v's lanes (verdicts in the odd 32-bit lanes).
template <int32_t Bottom, int32_t Top>
BRENN_VEC I32x4 MagnitudeWordOutside(I32x4 mag) {
    constexpr uint32_t kBase = uint32_t(Bottom) + 0x80000000u;
    const I32x4 base = Set<int32_t>(int32_t(kBase));
    const I32x4 top = Set<int32_t>(int32_t(uint32_t(Top) - kBase));
    return Gt(Sub(mag, base), top);
}
template <int32_t Bottom, int32_t Top>
BRENN_VEC I32x4 HighWordOutside(__m128d v) {
    return MagnitudeWordOutside<Bottom, Top>(And(BitCast<I32x4>(v), Set<int32_t>(0x7FFFFFFF)));
}
// The verdicts of the high words over their whole 64-bit lanes.
BRENN_VEC __m128d HighWordsToLanes(I32x4 o) {
    return AsFloat(BitCast<I64x2>(I32x4{_mm_shuffle_epi32(o.v, _MM_SHUFFLE(3, 3, 1, 1))}));
}

// The high words of two registers' lanes in one: a0, a1, b0, b1.
BRENN_VEC __m128d HighWordsOf(__m128d a, __m128d b) {
    return _mm_castps_pd(
        _mm_shuffle_ps(_mm_castpd_ps(a), _mm_castpd_ps(b), _MM_SHUFFLE(3, 1, 3, 1)));
}
// Bit k set where one of the four parts of element k lies outside the window: the high
// words of a and b, c and d four at a time, each moved as in HighWordOutside, so that one
// signed maximum and one compare against the moved top judge both ends.
template <int32_t Top>
BRENN_VEC int OutsideWindowBits(__m128d a, __m128d b, __m128d c, __m128d d) {
    constexpr uint32_t kBase = uint32_t(kWindowBottom) + 0x80000000u;
    const I32x4 mag = Set<int32_t>(0x7FFFFFFF), base = Set<int32_t>(int32_t(kBase));
    I32x4 ab = Sub(And(BitCast<I32x4>(HighWordsOf(a, b)), mag), base);
    I32x4 cd = Sub(And(BitCast<I32x4>(HighWordsOf(c, d)), mag), base);
    int m = MaskBits(Gt(Max(ab, cd), Set<int32_t>(int32_t(uint32_t(Top) - kBase))));
    return (m | (m >> 2)) & 3;
}

// HighWordOutside of the larger magnitude of x and y without choosing it: the high
// words' signed maximum, signs cleared, is the larger part's high word; the verdicts in
// the odd 32-bit lanes, as HighWordOutside leaves them. A NaN lies above every window.
template <int32_t Bottom, int32_t Top>
BRENN_VEC I32x4 LargerHighWordOutside(__m128d x, __m128d y) {
    const I32x4 mag = Set<int32_t>(0x7FFFFFFF);
    return MagnitudeWordOutside<Bottom, Top>(
        Max(And(BitCast<I32x4>(x), mag), And(BitCast<I32x4>(y), mag)));
}
// Its verdicts as the special-lane bits of a group (bit k for element k).
BRENN_VEC int HighWordBits(I32x4 o) {
    int b = MaskBits(o);
    return ((b >> 1) & 1) | ((b >> 2) & 2);
}

// Whether any element of N groups (parts re and im) has a part whose high word, sign
// cleared, lies outside [PartLo, Top], or a larger part below LargerLo (the windows of
// LargerHighWordOutside and of Atan2's range, for a whole round at once): the parts'
// magnitudes' maximum folded over the round against Top, each group's smaller part
// against PartLo and larger against LargerLo. The low words are masked to zero and the
// lower limits carry the most negative low word, so that they never count. A NaN lies
// above every window.
template <int32_t PartLo, int32_t LargerLo, int32_t Top, int N, class G>
BRENN_VEC bool AnyOutside(const G* x) {
    const I32x4 mag = BitCast<I32x4>(Set<uint64_t>(0x7FFFFFFF00000000ull));
    const I32x4 partLo = BitCast<I32x4>(Set<uint64_t>((uint64_t(PartLo) << 32) | 0x80000000u));
    const I32x4 largerLo =
        BitCast<I32x4>(Set<uint64_t>((uint64_t(LargerLo) << 32) | 0x80000000u));
    I32x4 big = Zero<int32_t>(), low = Zero<int32_t>();
#pragma GCC unroll 16
    for (int g = 0; g < N; ++g) {
        I32x4 a = And(BitCast<I32x4>(x[g].re), mag), b = And(BitCast<I32x4>(x[g].im), mag);
        I32x4 larger = Max(a, b);
        big = Max(big, larger);
        low = Or(low, Or(Gt(partLo, Min(a, b)), Gt(largerLo, larger)));
    }
    const I32x4 top = BitCast<I32x4>(Set<uint64_t>((uint64_t(Top) << 32) | 0x7FFFFFFFu));
    return MaskBits(Or(low, Gt(big, top))) != 0;
}

// x = m * 2^e with 1 <= |m| < 2 for a finite non-zero x (denormals renormalised);
// e = 0 and m = x for zero.
inline double Normalized(double x, int& e) {
    uint64_t b = BitsOf(x);
    int f = int((b >> 52) & 0x7FF);
    e = 0;
    if (f == 0) {
        if (x == 0) return x;
        x *= 0x1p64; // a denormal: its exponent field made normal first
        b = BitsOf(x);
        f = int((b >> 52) & 0x7FF);
        e = -64;
    }
    e += f - 1023;
    return DoubleOf((b & 0x800FFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
}

// The same products on single elements.
inline void ExactProduct(double a, double b, double& hi, double& lo) {
    double ta = a * kVeltkamp, tb = b * kVeltkamp;
    double ah = ta - (ta - a), al = a - ah;
    double bh = tb - (tb - b), bl = b - bh;
    hi = a * b;
    lo = (((ah * bh - hi) + ah * bl) + al * bh) + al * bl;
}

inline void SumOfProducts(double a, double c, double b, double d, double& hi, double& lo) {
    double p, pl, q, ql;
    ExactProduct(a, c, p, pl);
    ExactProduct(b, d, q, ql);
    hi = p + q;
    double bb = hi - p;
    double e = (p - (hi - bb)) + (q - bb);
    lo = e + (pl + ql);
    double s = hi + lo;
    lo = lo - (s - hi);
    hi = s;
}

} // namespace brenn::vm::cx

#endif
