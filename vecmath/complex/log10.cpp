/* Log10 of single (c) and double (z) complex vectors, one kernel for every level.
 *
 * Double: each part first in the SSE unit, two elements a register, as an unevaluated
 * sum P + Q of doubles with a bound E on its error, and rounded there where the bound
 * decides the rounding (P + (Q + E) and P + (Q - E) round alike; Q within half an ulp
 * of P); the other elements go to the extended routine below. About one element in a
 * hundred or fewer goes on, most of them with |z| near 1.
 *   Real part: |z|^2 = sh + sl from exact squares (as zLn), ln sh from the double core
 *     of the logarithm (explog/log_core.h: sh = 2^k m, the row of mh, r = mh rcp - 1 +
 *     ml rcp) with r carried exactly in two words (ml rcp by Dekker's product, the sum
 *     by Knuth's), so that ln sh = (k ln2hi + th) + r + rl + t, t the polynomial's
 *     terms and the rows' rests; sl/sh added, halved. The polynomial's relative error
 *     (2^-56.6 of ln(1 + r), |r| <= 2^-10) is the bound's term in |r|, the roundings of
 *     t and of the rests (about 2^-71) its absolute term.
 *   Imaginary part: the table steps of the real Atan2 (t = n/d, c = t cut to 4 bits,
 *     atan c from the rows or, below 2^-10, c + c^3 (p0 + p1 c^2)), with the reduced
 *     quotient u = (n - c d)/(d + c n) in two words: the numerator exact in two words
 *     (c dh, c dl and n - c dh exact), the denominator within 2^-105, the quotient's
 *     remainder by Dekker's product, its correction ul taken into atan by 1 - u^2. atan u = u + u^3 P(u^2) within 2^-62.3 of itself
 *     (|u| <= 2^-5), the series below the rows within 2^-62.8: the angle within
 *     2^-62.2 of itself, bounded by 2^-61.
 *   Both times log10(e) in two parts (the head's product exact), about 2^-100 more.
 * The windows: the larger part in [2^-450, 2^500], both in [2^-500, 2^500) (zLn's);
 * zeros, infinities, NaNs and parts outside go to the extended routine.
 * Extended routine: element by element in 80-bit extended precision (extended.h): ln|z|
 * and arg z of the extended logarithm (LogAbsX of ext_elem.h: log1p of (x - 1)(x + 1) +
 * y^2 near |z| = 1, x the larger magnitude, y the smaller; the table-driven cores of
 * ext_phase.h), each times log10(e) in two parts and rounded once to double.
 * Single: the squares are exact in double, so the vector steps of Ln in double at HA
 * (ln_body.h), times log10(e) and rounded once to single, are correctly rounded but for
 * results within about 2^-26 ulp of a midpoint; zeros, infinities and NaNs go to the
 * extended routine.
 * A zero gives -inf with status 2; the other special values are those of Ln scaled. */
#include "vecmath/complex/exact.h"
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"
#include "vecmath/complex/ln_body.h"
#include "vecmath/complex/phase_steps.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/invtrig/atan_tables.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kLog10OfE = 0.434294481903251827651128918916605082L;
// log10(e) as a double and its double rest, so that a product with it is as exact as
// with the extended constant and costs no 80-bit load
constexpr double kLog10OfEHi = 0x1.bcb7b1526e50ep-2, kLog10OfELo = 0x1.95355baaafad3p-57;

[[gnu::always_inline]] inline LD TimesLog10OfE(LD v) {
    return v * kLog10OfEHi + v * kLog10OfELo;
}

// s + e = a + b exactly (Knuth), in the extended format.
[[gnu::always_inline]] inline void TwoSumX(LD a, LD b, LD& s, LD& e) {
    s = a + b;
    const LD bb = s - a;
    e = (a - (s - bb)) + (b - bb);
}

// ln|z| of double parts, not both zero. Near |z| = 1 (the larger magnitude x in [1/2, 2])
// log1p(g)/2 with g = x^2 + w^2 - 1 from the halves of the parts (26 and 27 bits, split
// in double): xh^2 - 1 and the five other partial products are exact in the extended
// format, and their sum by a cascade of exact sums whose errors are added last is g
// within 2^-64 of itself and 2^-119 absolutely, where the rounded (x - 1)(x + 1) + w^2
// of LogAbsX loses g's relative accuracy to cancellation.
[[gnu::always_inline]] inline LD LogAbsOfDoubles(double a, double b) {
    double x = __builtin_fabs(a), w = __builtin_fabs(b);
    if (x < w) {
        const double t = x;
        x = w;
        w = t;
    }
    if (!(x >= 0.5 && x <= 2.0)) return LogAbsX(a, b);
    constexpr double kVeltkampX = 134217729.0; // 2^27 + 1
    const double tx = x * kVeltkampX, tw = w * kVeltkampX;
    const double xh = tx - (tx - x), wh = tw - (tw - w);
    const LD xl = LD(x) - xh, wl = LD(w) - wh;
    const LD parts[5] = {LD(wh) * wh, 2 * (LD(xh) * xl), 2 * (LD(wh) * wl), xl * xl, wl * wl};
    LD g = LD(xh) * xh - 1, err = 0;
    for (LD p : parts) {
        LD e;
        TwoSumX(g, p, g, e);
        err += e;
    }
    return 0.5L * Log1pX(g + err);
}

[[gnu::always_inline]] inline int Log10Of(LD a, LD b, LD& re, LD& im) {
    if (!(__builtin_isfinite(a) && __builtin_isfinite(b)) || (a == 0 && b == 0)) {
        int st = CLogX(a, b, re, im);
        re *= kLog10OfE;
        im *= kLog10OfE;
        return st;
    }
    re = TimesLog10OfE(LogAbsX(a, b));
    im = TimesLog10OfE(Phase(b, a));
    return status::kNone;
}

int Log10Scalar(const BrennComplex8* z, const BrennComplex8*, BrennComplex8* y) {
    LD re, im;
    int st = Log10Of(z->re, z->im, re, im);
    y->re = float(re);
    y->im = float(im);
    return st;
}
// Double elements: the finite ones with ln|z| from LogAbsOfDoubles.
int Log10ScalarZ(const BrennComplex16* z, const BrennComplex16*, BrennComplex16* y) {
    LD re, im;
    int st = status::kNone;
    if (__builtin_isfinite(z->re) && __builtin_isfinite(z->im) && !(z->re == 0 && z->im == 0)) {
        re = TimesLog10OfE(LogAbsOfDoubles(z->re, z->im));
        im = TimesLog10OfE(Phase(z->im, z->re));
    } else {
        st = Log10Of(z->re, z->im, re, im);
    }
    y->re = double(re);
    y->im = double(im);
    return st;
}

// The rounding of p + q (|q| at most half an ulp of p, or p and q any exact sum when
// normalised first) decided by the error bound e: the result, and the lanes where
// p + q -+ e round apart added to undecided.
BRENN_VEC __m128d Decided(__m128d p, __m128d q, __m128d e, __m128d& undecided) {
    __m128d hi, lo;
    FastTwoSum(p, q, hi, lo);
    __m128d up = Add(hi, Add(lo, e)), down = Add(hi, Sub(lo, e));
    undecided = Or(undecided, Ne(up, down));
    return up;
}

// v log10(e) for v = hi + lo as p + q, p the rounded product of the heads and q the
// rest (about 2^-104 of p off the exact product).
BRENN_VEC void ScaledWords(__m128d hi, __m128d lo, __m128d& p, __m128d& q) {
    const __m128d ch = Set<double>(kLog10OfEHi), cl = Set<double>(kLog10OfELo);
    __m128d pl;
    TwoProductExact(hi, ch, p, pl);
    q = Add(pl, Add(Mul(hi, cl), Mul(lo, ch)));
}

// ln|z| as hi + lo from the reduction of sh and sl/sh, with r (for the bound).
BRENN_VEC void HalfLnWords(const LnReduction& red, __m128d ratio, __m128d& hi, __m128d& lo,
                           __m128d& r, __m128d& rowsExact) {
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
    __m128d s, se;
    TwoSum(h, r, s, se);
    const __m128d half = Set<double>(0.5);
    hi = Mul(s, half);
    lo = Mul(Add(se, Add(rl, Add(t, ratio))), half);
}

// |arg z| as hi + lo (a = im, b = re, magnitudes in Atan2's window).
BRENN_VEC void PhaseWords(__m128d a, __m128d b, __m128d& hi, __m128d& lo) {
    using P = invtrig::AtanTableSeries<double>;
    using Q = invtrig::Quarter<double, invtrig::Unit::Radian>;
    const __m128d ay = Abs(a), ax = Abs(b);
    const __m128d swap = AsFloat(Gt(AsInt(ay), AsInt(ax)));
    const __m128d n = IfThenElse(swap, ax, ay), d = IfThenElse(swap, ay, ax);
    const __m128d t = Div(n, d);
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
    FastTwoSum(denS, Add(denE, Mul(c, Sub(n, nh))), denH, denL);
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

struct Log10Z : ExtendedScalarBody<double, BrennComplex16, BrennComplex16, Log10ScalarZ> {
    static constexpr const char* kName = "vzLog10";
    static constexpr int32_t kLo = 0x23D00000, kHi = 0x5F2FFFFF; // 2^-450, 2^500
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        constexpr Range32 w = invtrig::kRange<double>;
        const __m128d one = Set<double>(1);
        __m128d special = Or(HighWordsToLanes(LargerHighWordOutside<kLo, kHi>(x->re, x->im)),
                             Or(RangeTest(x->im, w), RangeTest(x->re, w)));
        const __m128d re = IfThenElse(special, one, x->re), im = IfThenElse(special, one, x->im);
        __m128d sh, sl;
        RawSumOfSquares(SplitRounded(re), SplitRounded(im), sh, sl);
        const LnReduction red = LnReduce(sh);
        __m128d lh, ll, r, rowsExact, ah, al, p, q;
        HalfLnWords(red, Div(sl, sh), lh, ll, r, rowsExact);
        PhaseWords(im, re, ah, al);
        ScaledWords(lh, ll, p, q);
        // 2^-58 |r| for the polynomial, 2^-70 for the roundings of the rows' rests and
        // of k ln2 (2^-104 where both are zero: the first row at k = 0, or the last at
        // k = -1, where they cancel), 2^-100 |p| for the rest
        const __m128d fixed = IfThenElse(rowsExact, Set<double>(0x1p-104), Set<double>(0x1p-70));
        __m128d e = Add(Add(Mul(Abs(r), Set<double>(0x1p-58)), fixed),
                        Mul(Abs(p), Set<double>(0x1p-100)));
        y.re = Decided(p, q, e, special);
        ScaledWords(ah, al, p, q);
        y.im = Or(Decided(p, q, Mul(Abs(p), Set<double>(0x1p-61)), special), SignBit(x->im));
        return MaskBits(special);
    }
};

struct Log10C : ExtendedScalarBody<float, BrennComplex8, BrennComplex8, Log10Scalar> {
    static constexpr const char* kName = "vcLog10";
    static __m128 Scaled(__m128d lo, __m128d hi) {
        const __m128d s = Set<double>(double(kLog10OfE));
        return Narrow(Mul(lo, s), Mul(hi, s));
    }
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        __m128d r0, i0, s0, r1, i1, s1;
        LnOfWidened<Level::HA>(WidenLower(x->re), WidenLower(x->im), r0, i0, s0);
        LnOfWidened<Level::HA>(WidenUpper(x->re), WidenUpper(x->im), r1, i1, s1);
        y.re = Scaled(r0, r1);
        y.im = Scaled(i0, i1);
        return MaskBits(s0) | (MaskBits(s1) << 2);
    }
};

} // namespace
} // namespace brenn::vm::cx

extern "C" {
ZAR_COMPLEX_KERNEL(z, Log10, All, Unary, brenn::vm::cx::Log10Z)
ZAR_COMPLEX_KERNEL(c, Log10, All, Unary, brenn::vm::cx::Log10C)
}
