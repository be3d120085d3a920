/* Abs and Arg of single (c) and double (z) complex vectors, three levels each; real
 * results, nothing reported.
 *
 * Double Abs: s = re^2 + im^2 and its square root.
 *   HA: s carried in two parts (exact products), the root of the head corrected once by
 *       the exact residual s - r^2. Lanes whose larger part lies outside [2^-450, 2^500]
 *       by its high word (zeros, denormals and huge parts among them) and non-finite
 *       lanes go to the scalar routine.
 *   LA: the root from the single reciprocal-root estimate y of the rounded s, refined by
 *       the series of (1 + e)^(-1/2) to degree 4 (e = y^2 s - 1, coefficients -1/2, 3/8,
 *       -5/16, 35/128), times s.
 *   EP: the same series to degree 2.
 *   LA and EP send s outside [2^-67, 2^66), where the single estimate does not reach,
 *   to the scalar routine.
 * Single Abs, HA: the squares are exact in double; their sum's root in double, rounded
 *   once more to single. Only infinite and NaN parts go to the scalar routine.
 *   LA and EP: the same in single, with a window on the larger part.
 * The scalar routine: an infinite part gives +inf even beside a NaN; a NaN beside a
 * finite part gives NaN; both zero give +0; otherwise the larger part is brought near 1
 * by a power of two, the root taken as HA takes it, and the power restored at the end,
 * so that the result overflows or underflows only when |z| does.
 *
 * Arg is the real Atan2 of (im, re), its bodies and its scalar routine at the same
 * level (invtrig/atan_body.h), with the quadrant rules of C99 Annex F; double LA and HA
 * on the table steps of the real row's own kernel. */
#include "vecmath/complex/cframe.h"
#include "vecmath/complex/exact.h"
#include "vecmath/complex/phase_steps.h"
#include "vecmath/frame/level.h"
#include "vecmath/invtrig/atan_body.h"

namespace brenn::vm::cx {
namespace {

// sqrt(sh + sl) from the rounded root r of sh, corrected by the residual e = sh - r^2 + sl
// over 2r. With r cut to 26 bits (h) and l = r - h, sh - h^2 is exact (h^2 has 52 bits and
// lies within 2^-24 of sh) and l (h + r) is r^2 - h^2 to within 2^-77 sh, so e is known to
// 2^-24 of itself, as is 1/(2r) = r (0.5 / sh): the correction is good to 2^-23 ulp. The
// quotient is formed beside the root, not after it: the chain from s to the result is
// short enough to keep the machine busy with fewer groups in flight.
BRENN_VEC __m128d CorrectedRoot(__m128d sh, __m128d sl) {
    __m128d r = Sqrt(sh), half = Div(Set<double>(0.5), sh);
    __m128d e = Add(RootResidual(sh, SplitByMask(r)), sl);
    return Add(r, Mul(e, Mul(r, half)));
}
inline double CorrectedRoot(double sh, double sl) {
    double r = __builtin_sqrt(sh), ph, pl;
    ExactProduct(r, r, ph, pl);
    return r + (((sh - ph) - pl) + sl) * 0.5 / r;
}

// |z| of finite parts, scaled so that only the result can overflow or underflow.
inline double ScaledAbs(double a, double b) {
    int k;
    Normalized(fabs(a) > fabs(b) ? a : b, k);
    a = ldexp(a, -k), b = ldexp(b, -k);
    double sh, sl;
    SumOfProducts(a, a, b, b, sh, sl);
    return ldexp(CorrectedRoot(sh, sl), k);
}

template <class E, class R>
int AbsScalar(const E* x, const E*, R* y) {
    double a = x->re, b = x->im;
    if (__builtin_isinf(a) || __builtin_isinf(b)) {
        double inf = __builtin_isinf(a) ? a : b;
        *y = R(inf * inf);
    } else if (__builtin_isnan(a) || __builtin_isnan(b)) {
        *y = R(a + b);
    } else if (a == 0 && b == 0) {
        *y = R(0);
    } else if constexpr (sizeof(R) == 4) {
        *y = R(__builtin_sqrt(a * a + b * b));
    } else {
        *y = ScaledAbs(a, b);
    }
    return status::kNone;
}

// Coefficients of (1 + e)^(-1/2) after the constant term: degree 2 (EP) and 4 (LA).
constexpr double kRootSeries2[] = {-0.5, 0.375};
constexpr double kRootSeries4[] = {-0.5, 0.375, -0.3125, 0.2734375};

template <Level L>
struct AbsZ {
    using T = double;
    using In = BrennComplex16;
    using Out = double;
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        __m128d sh, sl;
        if constexpr (L == Level::HA) {
            // the squares and their errors, the sum's rounding error kept (the squares
            // are not negative: the larger first, Fast2Sum); sh + sl not renormalised (sl
            // stays within 2^-51 sh, which the root's correction takes as it is)
            RawSumOfSquaresNear(SplitByMask(x->re), SplitByMask(x->im), sh, sl);
            y.re = CorrectedRoot(sh, sl);
            constexpr int32_t kLo = 0x23D00000, kHi = 0x5F2FFFFF; // 2^-450, 2^500
            return HighWordBits(LargerHighWordOutside<kLo, kHi>(x->re, x->im));
        } else {
            sh = Add(Mul(x->re, x->re), Mul(x->im, x->im));
            constexpr int32_t kLo = 0x3BC00000, kHi = 0x440FFFFF; // 2^-67, 2^66
            __m128d special = HighWordsToLanes(HighWordOutside<kLo, kHi>(sh));
            __m128d s = NaNWhere(special, sh); // no estimate of lanes out of its reach
            __m128 f = ApproxRecipSqrt(Narrow(s, s));
            __m128d r = WidenLower(f);
            __m128d e = Sub(Mul(Mul(r, r), s), Set<double>(1));
            __m128d p;
            if constexpr (L == Level::LA)
                p = Horner(e, kRootSeries4);
            else
                p = Horner(e, kRootSeries2);
            r = Add(r, Mul(Mul(r, e), p));
            y.re = Mul(sh, r);
            return MaskBits(special);
        }
    }
    static int Scalar(const In* x, const In* w, Out* y) { return AbsScalar(x, w, y); }
};

struct AbsC {
    using T = float;
    using In = BrennComplex8;
    using Out = float;
    static __m128d Root(__m128d a, __m128d b) { return Sqrt(Add(Mul(a, a), Mul(b, b))); }
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        y.re = Narrow(Root(WidenLower(x->re), WidenLower(x->im)),
                      Root(WidenUpper(x->re), WidenUpper(x->im)));
        const I32x4 inf = Set<int32_t>(0x7F800000);
        I32x4 o = Or(Eq(And(AsInt(x->re), inf), inf), Eq(And(AsInt(x->im), inf), inf));
        return MaskBits(o);
    }
    static int Scalar(const In* x, const In* w, Out* y) { return AbsScalar(x, w, y); }
};

// Single LA and EP: the squares and their sum in single, and its root (about an ulp). Lanes
// whose larger part lies outside [2^-50, 2^60] (zeros, denormals, huge parts, infinities,
// NaNs) go to the scalar routine; inside, neither square overflows and the smaller one's
// underflow is far below the sum's rounding.
struct AbsCLight {
    using T = float;
    using In = BrennComplex8;
    using Out = float;
    static constexpr uint32_t kLo = 0x26800000, kHi = 0x5D800000; // 2^-50, 2^60
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        const __m128 mag = AbsMask<float>();
        __m128 larger = AsFloat(Max(AsInt(And(x->re, mag)), AsInt(And(x->im, mag))));
        __m128 special =
            RangeTest(larger, Range32{0xFFFFFFFFu, 0x80000000u - kLo, 0x80000000u + (kHi - kLo)});
        __m128 re = NaNWhere(special, x->re), im = NaNWhere(special, x->im);
        y.re = Sqrt(Add(Mul(re, re), Mul(im, im)));
        return MaskBits(special);
    }
    static int Scalar(const In* x, const In* w, Out* y) { return AbsScalar(x, w, y); }
};

// The phase: Atan2 of (im, re) at the level.
template <class Tp, Level L>
struct ArgBody {
    using T = Tp;
    using In = ComplexOf<Tp>;
    using Out = Tp;
    using Atan2 = invtrig::Atan2Body<Tp, L, invtrig::Unit::Radian>;
    static int Eval(const Cx<Tp>* x, const Cx<Tp>*, Cx<Tp>& y) {
        Vec<Tp> special;
        y.re = Atan2::Eval(x->im, x->re, special);
        return MaskBits(special);
    }
    static int Scalar(const In* x, const In*, Out* y) { return Atan2::Scalar(&x->im, &x->re, y); }
};

// Double: the phase's three steps (phase_steps.h: HA on the real Atan2's table steps,
// LA and EP on its double steps), in rounds of eight groups at HA and six at LA and EP,
// each step over all the groups before the next, so that the divisions issue together
// and the chains overlap. The scalar routine is Atan2's at every level.
template <Level L>
struct ArgZ : ArgBody<double, L> {
    using Phase = PhaseSteps<L>;
    static constexpr bool kTable = L == Level::HA;
    static constexpr int kGroups = kTable ? 8 : 6;
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        if constexpr (kTable) {
            typename Phase::State s;
            __m128d special = Phase::Start(x->im, x->re, s);
            Phase::Middle(s);
            y.re = Phase::End(s);
            return MaskBits(special);
        } else {
            return ArgBody<double, L>::Eval(x, nullptr, y);
        }
    }
    // The round's range tested once: where no part lies outside, no lane is blended.
    BRENN_VEC static int EvalGroups(const Cx<double>* x, const Cx<double>*, Cx<double>* y) {
        using S = typename Phase::State;
        auto end = [](const S& s, Cx<double>& r) BRENN_STEP { r.re = Phase::End(s); };
        auto middle = [](S& s) BRENN_STEP { Phase::Middle(s); };
        if (__builtin_expect(!AnyOutside<kPartLo, kPartLo, kPartTop, kGroups>(x), 1))
            return StepGroups<S, kGroups>(
                x, y,
                [](const Cx<double>& z, S& s) BRENN_STEP {
                    Phase::StartInside(z.im, z.re, s);
                    return 0;
                },
                end, middle);
        return StepGroups<S, kGroups>(
            x, y,
            [](const Cx<double>& z, S& s) BRENN_STEP {
                return MaskBits(Phase::Start(z.im, z.re, s));
            },
            end, middle);
    }
};

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

extern "C" {
ZAR_COMPLEX_KERNEL(z, Abs, LA, AbsArg, AbsZ<Level::LA>)
ZAR_COMPLEX_KERNEL(z, Abs, HA, AbsArg, AbsZ<Level::HA>)
ZAR_COMPLEX_KERNEL(z, Abs, EP, AbsArg, AbsZ<Level::EP>)
ZAR_COMPLEX_KERNEL(c, Abs, LA, AbsArg, AbsCLight)
ZAR_COMPLEX_KERNEL(c, Abs, HA, AbsArg, AbsC)
ZAR_COMPLEX_KERNEL(c, Abs, EP, AbsArg, AbsCLight)

ZAR_COMPLEX_KERNEL(z, Arg, LA, AbsArg, ArgZ<Level::LA>)
ZAR_COMPLEX_KERNEL(z, Arg, HA, AbsArg, ArgZ<Level::HA>)
ZAR_COMPLEX_KERNEL(z, Arg, EP, AbsArg, ArgZ<Level::EP>)
ZAR_COMPLEX_KERNEL(c, Arg, LA, AbsArg, ArgBody<float, Level::LA>)
ZAR_COMPLEX_KERNEL(c, Arg, HA, AbsArg, ArgBody<float, Level::HA>)
ZAR_COMPLEX_KERNEL(c, Arg, EP, AbsArg, ArgBody<float, Level::EP>)
}
