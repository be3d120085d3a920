/* Log10 of single (c) and double (z) complex vectors, one kernel for every level.
 *
 * Double: each part first in the SSE unit, two elements a register, as an unevaluated
 * sum P + Q of doubles with a bound E on its error, and rounded there where the bound
 * decides the rounding (P + (Q + E) and P + (Q - E) round alike); the other elements go
 * to the extended routine below. About one element in a hundred or fewer goes on, most
 * of them with |z| near 1. The steps are those of double_words.h:
 *   Real part: |z|^2 = sh + sl from exact squares (as zLn), LnWords of sh's reduction
 *     and sl/sh, times log10(e)/2. E: 2^-58 |r| for the polynomial, 2^-70 for the
 *     roundings (2^-104 where the rows' rests vanish), 2^-100 |P| for the product.
 *   Imaginary part: PhaseQuotient and PhaseFinish (within 2^-62.2), times log10(e); E = 2^-61 |P|.
 *   log10(e) in two parts, the head's product exact: about 2^-104 more.
 * The windows: the larger part in [2^-450, 2^500], both in [2^-500, 2^500) (zLn's);
 * zeros, infinities, NaNs and parts outside go to the extended routine.
 * Extended routine: element by element in 80-bit extended precision (extended.h): ln|z|
 * (LogAbsX of ext_elem.h: near |z| = 1 log1p of x^2 + y^2 - 1 summed from exact partial
 * products, x the larger magnitude, y the smaller) and arg z (Phase of ext_phase.h), each
 * times log10(e) in two parts and rounded once.
 * Single: the squares are exact in double, so the vector steps of Ln in double at HA
 * (ln_body.h), times log10(e) and rounded once to single, are correctly rounded but for
 * results within about 2^-26 ulp of a midpoint; zeros, infinities and NaNs go to the
 * extended routine.
 * A zero gives -inf with status 2; the other special values are those of Ln scaled. */
#include "vecmath/complex/double_words.h"
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"
#include "vecmath/complex/ln_body.h"
#include "vecmath/complex/phase_steps.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kLog10OfE = 0.434294481903251827651128918916605082L;
// log10(e) as a double and its double rest, so that a product with it is as exact as
// with the extended constant and costs no 80-bit load
constexpr double kLog10OfEHi = 0x1.bcb7b1526e50ep-2, kLog10OfELo = 0x1.95355baaafad3p-57;

[[gnu::always_inline]] inline LD TimesLog10OfE(LD v) {
    return v * kLog10OfEHi + v * kLog10OfELo;
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

struct Log10Z : ExtendedScalarBody<double, BrennComplex16, BrennComplex16, ExtendedScalar<BrennComplex16, Log10Of>>,
                TwoStepRounds<Log10Z, double> {
    static constexpr const char* kName = "vzLog10";
    static constexpr int32_t kLo = 0x23D00000, kHi = 0x5F2FFFFF; // 2^-450, 2^500
    // A group's first steps: the windows, |z|^2 and the log's reduction, the phase's
    // quotient; then the rest.
    struct Start {
        __m128d special, sign, ratio;
        LnReduction red;
        PhaseStart phase;
    };
    BRENN_VEC static void Begin(const Cx<double>& x, Start& s) {
        constexpr Range32 w = invtrig::kRange<double>;
        const __m128d one = Set<double>(1);
        s.special = Or(HighWordsToLanes(LargerHighWordOutside<kLo, kHi>(x.re, x.im)),
                       Or(RangeTest(x.im, w), RangeTest(x.re, w)));
        s.sign = SignBit(x.im);
        const __m128d re = IfThenElse(s.special, one, x.re), im = IfThenElse(s.special, one, x.im);
        __m128d sh, sl;
        RawSumOfSquares(SplitRounded(re), SplitRounded(im), sh, sl);
        s.red = LnReduce(sh);
        s.ratio = Div(sl, sh);
        s.phase = PhaseQuotient(im, re);
    }
    BRENN_VEC static int Finish(const Start& s, Cx<double>& y) {
        __m128d special = s.special;
        __m128d lh, ll, r, rowsExact, ah, al, p, q;
        LnWords(s.red, s.ratio, lh, ll, r, rowsExact);
        PhaseFinish(s.phase, Zero<double>(), ah, al);
        // ln|z| = ln(|z|^2)/2: log10(e)/2 in two parts
        ScaledWords(lh, ll, kLog10OfEHi / 2, kLog10OfELo / 2, p, q);
        // 2^-58 |r| for the polynomial, 2^-70 for the roundings of the rows' rests and
        // of k ln2 (2^-104 where both are zero), 2^-100 |p| for the rest
        const __m128d fixed = IfThenElse(rowsExact, Set<double>(0x1p-104), Set<double>(0x1p-70));
        __m128d e = Add(Add(Mul(Abs(r), Set<double>(0x1p-58)), fixed),
                        Mul(Abs(p), Set<double>(0x1p-100)));
        y.re = Decided(p, q, e, special);
        ScaledWords(ah, al, kLog10OfEHi, kLog10OfELo, p, q);
        y.im = Or(Decided(p, q, Mul(Abs(p), Set<double>(0x1p-61)), special), s.sign);
        return MaskBits(special);
    }
    // Rounds of four groups: every group's first steps, these held apart, then the rest.
    BRENN_VEC static void Hold(Start& s) {
        s.ratio = Opaque(s.ratio);
        s.phase.t = Opaque(s.phase.t);
        s.red.ml = Opaque(s.red.ml);
    }
};

struct Log10C : ExtendedScalarBody<float, BrennComplex8, BrennComplex8, ExtendedScalar<BrennComplex8, Log10Of>> {
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
