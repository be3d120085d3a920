/* Cbrt, InvCbrt and Pow2o3, single and double: x^(1/3), x^(-1/3) and x^(2/3) from the
 * core of root_core.h.
 *
 * The single rows split the exponent and take the seed in single lanes; HA runs a fitted
 * line in e on widened lanes and rounds once, in rounds of sixteen that take each step
 * over their four registers (RootRoundWide), LA (one term of the series, within
 * about 1.6 ulp) and EP (the seed alone) stay in single. Single denormals go to the
 * scalar routine, which runs the double form. The double rows take four terms of the
 * series at HA, with the seed rounded so that its powers and products are exact, and a
 * fitted cubic in place of the series at LA and a fitted line at EP, in rounds of sixteen
 * that take each step over their eight registers (RootRound). dInvCbrt has one kernel, at
 * HA, for the three slots; dCbrt one for LA and EP, LA's cubic, and HA's own.
 *
 * Special lanes: zeros, infinities, NaN, and denormals. Cbrt gives +-0 and +-inf
 * themselves; InvCbrt the signed infinity for a zero (singularity status in double, no
 * report in single) and the signed zero for an infinity; Pow2o3 +0 and +inf. Double
 * denormals are scaled by 2^54 and the result by 2^-18, 2^18 or 2^-36. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/power/root_core.h"

namespace brenn::vm {
namespace {

template <class T>
struct RootRanges;
template <>
struct RootRanges<float> {
    // |x| zero, denormal, infinite or NaN.
    template <Level L>
    static constexpr Range32 kSpecial{0x7FFFFFFFu, 0x7F800000u, 0xFEFFFFFFu};
};
template <>
struct RootRanges<double> {
    // |x| zero, denormal, infinite or NaN.
    template <Level L>
    static constexpr Range64 kSpecial{0x7FFFFFFFFFFFFFFFull, 0x7FF0000000000000ull,
                                      0xFFDFFFFFFFFFFFFFull};
};

// The double step of each level: the exact series at HA, the cubic at LA, at EP the
// line (29.1 bits for Pow2o3; dCbrt's EP slot is its LA kernel, dInvCbrt keeps its one
// kernel, at HA).
template <Level L>
inline constexpr int kRootTerms = L == Level::HA ? 4 : L == Level::LA ? 3 : 2;

// The root of normal double lanes, with x's sign where the root is odd.
template <Root R, Level L>
inline __m128d SignedRoot(__m128d x) {
    return RootOf<R, kRootTerms<L>, L == Level::HA>(x);
}

template <Root R, Level L>
inline __m128 RootLanes(__m128 x) {
    constexpr int terms = L == Level::EP ? 0 : 1;
    constexpr bool wide = L == Level::HA;
    __m128 v = RootOf<R, terms, wide>(Abs(x));
    return R == Root::Pow2o3 ? v : Or(v, SignBit(x));
}
template <Root R, Level L>
inline __m128d RootLanes(__m128d x) {
    return SignedRoot<R, L>(x);
}

// One element of a special lane: zero, infinity, NaN, or (double) a denormal.
template <Root R, class T>
int RootScalar(const T* a, T* y) {
    const T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == T(0) || __builtin_isinf(x)) {
        if constexpr (R == Root::Cbrt) {
            *y = x;
        } else if constexpr (R == Root::Pow2o3) {
            *y = x * x;
        } else {
            *y = T(1) / Keep(x);
            // The single kernels make no report.
            if (x == T(0) && sizeof(T) == 8) return status::kSingularity;
        }
        return status::kNone;
    }
    // A denormal: in double, scaled; a single one is a normal double.
    constexpr double kUp = 0x1p54;
    constexpr double kBack = R == Root::Cbrt ? 0x1p-18 : R == Root::InvCbrt ? 0x1p18 : 0x1p-36;
    const bool tiny = __builtin_fabs(double(x)) < 0x1p-1022;
    __m128d v = SignedRoot<R, Level::HA>(SetFirst<double>(tiny ? double(x) * kUp : double(x)));
    *y = T(GetLane(v) * (tiny ? kBack : 1.0));
    return status::kNone;
}

template <Root R, class Tp, Level L>
struct RootBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = R == Root::InvCbrt ? ZAR_ERROR_NAME_OF(T, InvCbrt)
                                         : R == Root::Cbrt  ? ZAR_ERROR_NAME_OF(T, Cbrt)
                                                            : ZAR_ERROR_NAME_OF(T, Pow2o3);
    static V Eval(V x, V& special) {
        // Special lanes run as they are: the body reads x by its bits alone (the exponent
        // field and the significand), so that they make ordinary values and no flag.
        special = RangeTest(x, RootRanges<T>::template kSpecial<L>);
        return RootLanes<R, L>(x);
    }
    static int Scalar(const T* a, T* y) { return RootScalar<R>(a, y); }
    static constexpr int kRound = sizeof(T) == 8 || L == Level::HA ? 16 : 8;
    // Double rounds of sixteen, each step over the round's eight registers (RootRound), and
    // single HA ones over four (RootRoundWide: measured 10 % faster than rounds of eight,
    // where the four registers one after the other were no faster); special lanes run as
    // they are, as in Eval.
    static BRENN_VEC int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8 || L == Level::HA) {
            constexpr int N = 16 / kLanes<T>;
            int bits = 0;
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k)
                bits |= MaskBits(RangeTest(x[k], RootRanges<T>::template kSpecial<L>))
                        << (kLanes<T> * k);
            if constexpr (sizeof(T) == 8) {
                RootRound<R, kRootTerms<L>, L == Level::HA, N>(x, y);
            } else {
                V ax[N];
#pragma GCC unroll 8
                for (int k = 0; k < N; ++k)
                    ax[k] = Abs(x[k]);
                RootRoundWide<R, N>(ax, y);
                if constexpr (R != Root::Pow2o3) {
#pragma GCC unroll 8
                    for (int k = 0; k < N; ++k)
                        y[k] = Or(y[k], SignBit(x[k]));
                }
            }
            return bits;
        } else {
            return EvalByRegister<RootBody>(x, y);
        }
    }
};

template <class T, Level L>
using CbrtBody = RootBody<Root::Cbrt, T, L>;
template <class T, Level L>
using InvCbrtBody = RootBody<Root::InvCbrt, T, L>;
template <class T, Level L>
using Pow2o3Body = RootBody<Root::Pow2o3, T, L>;

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
// The single Cbrt and InvCbrt kernels flattened: their rounds of sixteen stay in the
// kernel's loop with the constants in registers (the double kernels measured no faster so).
BRENN_FLAT_LEVEL_KERNELS(s, Cbrt, Unary, CbrtBody)
ZAR_KERNEL_OF(d, Cbrt, LaEp, Unary, CbrtBody<double, Level::LA>)
ZAR_KERNEL_OF(d, Cbrt, HA, Unary, CbrtBody<double, Level::HA>)
BRENN_FLAT_LEVEL_KERNELS(s, InvCbrt, Unary, InvCbrtBody)
ZAR_KERNEL_OF(d, InvCbrt, All, Unary, InvCbrtBody<double, Level::HA>)
ZAR_ROW_KERNELS(Pow2o3, Unary, Pow2o3Body)
}
