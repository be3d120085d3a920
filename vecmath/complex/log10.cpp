/* Log10 of single (c) and double (z) complex vectors, one kernel for every level.
 *
 * Double: element by element in 80-bit extended precision (extended.h): ln|z| and arg z
 * of the extended logarithm (LogAbsX of ext_elem.h: log1p of (x - 1)(x + 1) + y^2 near
 * |z| = 1, x the larger magnitude, y the smaller; the table-driven cores of ext_phase.h),
 * each times log10(e) in two parts and rounded once to double.
 * Single: the squares are exact in double, so the vector steps of Ln in double at HA
 * (ln_body.h), times log10(e) and rounded once to single, are correctly rounded but for
 * results within about 2^-26 ulp of a midpoint; zeros, infinities and NaNs go to the
 * extended routine.
 * A zero gives -inf with status 2; the other special values are those of Ln scaled. */
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"
#include "vecmath/complex/ln_body.h"

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

struct Log10Row {
    static constexpr bool kOverflow = false;
    static constexpr const char* kName = "vzLog10";
    static int Eval(LD x, LD y, LD& re, LD& im) { return Log10Of(x, y, re, im); }
};

int Log10Scalar(const BrennComplex8* z, const BrennComplex8*, BrennComplex8* y) {
    LD re, im;
    int st = Log10Of(z->re, z->im, re, im);
    y->re = float(re);
    y->im = float(im);
    return st;
}

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
void ZAR_KERNEL(zLog10, All) BRENN_SIG(z, Unary) {
    brenn::vm::cx::RunExtended<brenn::vm::cx::Log10Row>(n, a, y);
}
ZAR_COMPLEX_KERNEL(c, Log10, All, Unary, brenn::vm::cx::Log10C)
}
