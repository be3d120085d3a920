/* InvSqrt, single and double.
 *
 * sInvSqrt: EP the approximate root reciprocal as it stands (about 11.4 bits); LA one
 * Newton step y = (-0.5*r)*(x*r*r - 3) (within 4 ulp); HA that step twice, in double
 * on the widened x and r, rounded once to single.
 * dInvSqrt: LA and EP share one kernel, the seed on the significand with the exponent
 * apart and the series of (1 - e)^(-1/2) to fourth order (within 2 ulp); HA the seed
 * cut short so that the residual is exact, and the series to fifth order (within 0.5
 * ulp and a little). None divides or takes a square root.
 *
 * Scalar routine: +-0 gives the signed infinity with status 2; -inf and negatives NaN
 * with status 1; +inf gives +0, NaN itself; denormals and values near the top of the
 * range, status 0, in single from the table's seed and Goldschmidt steps as Sqrt's
 * routine (root_scalar.h), in double by the accurate chain with scaling. */
#include "frame/kernels.h"
#include "vecmath/arith/ranges.h"
#include "vecmath/arith/root_scalar.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

// One lane of the accurate double chain, with scaling for denormals and large values.
inline double InvSqrtAccurate(double x) {
    double scale = 1.0;
    if (x < 0x1p-1022) {
        x *= 0x1p200;
        scale = 0x1p100;
    } else if (x >= 0x1p995) {
        x *= 0x1p-200;
        scale = 0x1p-100;
    }
    return GetLane(AccurateInvSqrt(Set<double>(x))) * scale;
}

// Double: other x through the accurate chain with scaling.
int InvSqrtScalar(const double* a, double* y) {
    return PoleAtZeroScalar(
        *a, y, [](double x) { return 1 / Keep(x); }, 0.0,
        [](double x) { return InvSqrtAccurate(x); });
}
// Single: other x (denormals, the top of the range) as for Sqrt, 2h * 2^-q from the
// table's seed and Goldschmidt steps in double (root_scalar.h), narrowed once.
int InvSqrtScalar(const float* a, float* y) {
    return PoleAtZeroScalar(
        *a, y, [](float x) { return 1 / Keep(x); }, 0.0f,
        [](float x) {
            RootParts parts = SingleRootSteps(x);
            return float(2 * parts.h * TwoTo(-parts.q));
        });
}

// One Newton step for 1/sqrt(x) from r: (-0.5*r)*(x*r*r - 3).
template <class V>
inline V NewtonStep(V x, V r) {
    using T = ElemOf<V>;
    V t = Sub(Mul(Mul(x, r), r), Set<T>(3.0));
    return Mul(Mul(Set<T>(-0.5), r), t);
}

// Single, from the estimate r: EP r as it stands; LA one Newton step; HA two. The two
// steps in single leave up to 1.57 ulp (each step's roundings, a few of them near an
// ulp of the result, add up), so HA runs them in double on the widened x and r and
// rounds once to single: within 0.5 ulp and about 2^-18.
template <Level L>
inline __m128 InvRootOf(__m128 x, __m128 special) {
    __m128 r = NaNWhere(special, ApproxRecipSqrt(x));
    if constexpr (L == Level::EP) return r;
    if constexpr (L == Level::LA) return NewtonStep(x, r);
    __m128d xl = WidenLower(x), xh = WidenUpper(x);
    return Narrow(NewtonStep(xl, NewtonStep(xl, WidenLower(r))),
                  NewtonStep(xh, NewtonStep(xh, WidenUpper(r))));
}

// The exact series of (1 - e)^(-1/2) beyond 1, to e^5, for the double HA chain.
constexpr double kRootSeries5[] = {0.5, 3.0 / 8, 5.0 / 16, 35.0 / 128, 63.0 / 256};

// Double. LA and EP: the seed r, e = 1 - x*r^2 and r + r*e*P(e), P to fourth order.
// HA, from the seed alone and with no division: r is the seed cut to 13 significant
// bits, so that s = r*r is exact in 26 bits; x is split by its bits into xh (26 bits)
// and xl, so that xh*s and xl*s are exact too, and the residual e = 1 - x*s =
// (1 - xh*s) - xl*s is formed with one rounding of a term near 2^-37 (1 - xh*s is
// exact, xh*s being near 1). With |e| below 2^-9.8 the series to e^5 leaves about
// 2^-61, and r + r*e*P(e) is within 0.5 ulp and a little of 1/sqrt(x).
template <Level L>
inline __m128d InvRootOf(__m128d x, __m128d special) {
    const __m128d one = Set<double>(1.0);
    if constexpr (L == Level::HA) {
        __m128d r = And(NaNWhere(special, RootSeed(x)), SplatBits<double>(0xFFFFFF0000000000ull));
        __m128d s = Mul(r, r);
        __m128d xx = NaNWhere(special, x);
        __m128d xh = And(xx, SplatBits<double>(0xFFFFFFFFF8000000ull));
        __m128d xl = Sub(xx, xh);
        __m128d e = Sub(Sub(one, Mul(xh, s)), Mul(xl, s));
        return Add(r, Mul(Mul(r, e), Horner(e, kRootSeries5)));
    } else {
        __m128d r = NaNWhere(special, RootSeed(x));
        __m128d e = Sub(one, Mul(Mul(x, r), r));
        return Add(r, Mul(Mul(r, e), Horner(e, kRootSeries)));
    }
}

// Single EP returns the estimate on Sqrt's window; the chains (and every double level:
// the double EP kernel is the LA one) take their own.
template <class T, Level L>
constexpr Range32 kInvSqrtWindow =
    L == Level::EP ? ArithRanges<T>::kRoot : ArithRanges<T>::kInvRoot;

template <class Tp, Level L>
struct InvSqrtBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, InvSqrt);
    static V Eval(V x, V& special) {
        special = RangeTest(x, kInvSqrtWindow<T, L>);
        return InvRootOf<L>(x, special);
    }
    static int Scalar(const T* a, T* y) { return InvSqrtScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_LEVEL_KERNELS(s, InvSqrt, Unary, InvSqrtBody)
ZAR_KERNEL_OF(d, InvSqrt, LaEp, Unary, InvSqrtBody<double, Level::LA>)
ZAR_KERNEL_OF(d, InvSqrt, HA, Unary, InvSqrtBody<double, Level::HA>)
}
