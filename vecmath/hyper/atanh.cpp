/* Atanh, single and double, three levels each.
 *
 * atanh a = ln(w)/2, w = (1 + a)/(1 - a), a = |x|, x's sign put back at the end; the
 * logarithm of the pair w by the explog core (log_pair.h).
 * Double HA: 1 + a and 1 - a as exact pairs, their quotient wh and its relative correction
 * c (remainder over an estimate of 1 + a), ln w = ln wh + c.
 * Double LA and EP: w = 1 + u, u = 2a/(1 - a), the
 * rounding of 1 + u recovered, so that small arguments keep their relative accuracy.
 * Single HA: w from a single division corrected once in double, its logarithm by the
 * single lanes' split with the double core.
 * Single LA and EP in single arithmetic: the odd series for x^2 below 1/4, else w by
 * division (LA) or rcpps (EP) and ln(w)/2 by the split of the explog family (LA) or by
 * exponent and significand (EP).
 * Double: |x| at or above 1 and NaN go to the scalar routine (an infinity with the
 * singularity status at +-1, NaN with the domain status above).
 * Single: no scalar routine for values. A register wholly inside (-1, 1) runs the body
 * alone; in the others the body runs on every lane and the lanes with
 * |x| at or above 1 are found by two masks after it and fixed in place: the signed
 * infinity at +-1, NaN above, a NaN input quieted. The frame's per-lane hook then only
 * makes the report, one a lane, and returns the fixed value. */
#include <limits>

#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/inverse_scalar.h"
#include "vecmath/hyper/log_pair.h"
#include "vecmath/hyper/single_ep.h"

namespace brenn::vm {
namespace {

// The Taylor coefficients of (atanh a - a)/a^3 in a^2, and where the series serves.
constexpr double kAtanhSeries[] = {1.0 / 3, 1.0 / 5, 1.0 / 7, 1.0 / 9};
constexpr double kSeriesEnd = 0x1p-7;

template <Level L>
inline __m128d AtanhOf(__m128d x) {
    const __m128d one = Set<double>(1.0);
    __m128d a = Abs(x);
    // Below 2^-7 (HA) the series a + a^3*(1/3 + a^2/5 + a^4/7 + a^6/9): the logarithm of
    // a w within an ulp or two of 1 rounds its parts about as often as it keeps them.
    // A register with no such lane skips it, one with only such lanes skips the logarithm.
    int small = 0;
    __m128d series = a;
    if constexpr (L == Level::HA) {
        small = MaskBits(Lt(a, Set<double>(kSeriesEnd)));
        if (small) {
            __m128d z = Mul(a, a);
            series = Add(a, Mul(Mul(a, z), Horner(z, kAtanhSeries)));
            if (small == 3) return Or(series, SignBit(x));
        }
    }
    __m128d y;
    if constexpr (L == Level::HA) {
        // w = wh*(1 + c): c = (n - wh*d)/(wh*d), the remainder over n's single reciprocal
        // estimate (wh*d is n to 2^-53, and c is about 2^-53).
        Pair n, d;
        FastTwoSum(one, a, n.hi, n.lo);
        FastTwoSum(one, Neg(a), d.hi, d.lo);
        __m128d wh = Div(n.hi, d.hi);
        __m128d ph, pl;
        TwoProduct(wh, d.hi, ph, pl);
        __m128d rem = Sub(Add(Sub(Sub(n.hi, ph), pl), n.lo), Mul(wh, d.lo));
        y = LnOfScaled<L>(wh, Mul(rem, RecipEstimate(n.hi)), Zero<double>());
    } else {
        y = LnOfPair<L>(OnePlus(Div(Add(a, a), Sub(one, a))), Zero<double>());
    }
    y = Mul(Set<double>(0.5), y);
    if (small) y = IfThenElse(Lt(a, Set<double>(kSeriesEnd)), series, y);
    return Or(y, SignBit(x));
}

// Single EP, |x| < 1: for x^2 below 1/4 the odd series; else w = (1 + a)*rcpps(1 - a) and
// ln(w)/2 = e*ln2/2 + f*P(f), e and f the exponent and the significand less one of w.
constexpr float kAtanhSmallEP[] = {0.327951103f, 0.263935477f};
constexpr float kAtanhLogEP[] = {0.499970585f, -0.24844794f, 0.15290828f, -0.0782667622f,
                                 0.0204208214f};
constexpr float kHalfLn2 = 0.346573591f;

inline __m128 AtanhSingleEP(__m128 x) {
    using F = Format<float>;
    const __m128 one = Set<float>(1.0f);
    __m128 a = Abs(x);
    __m128 x2 = Mul(x, x);
    __m128 ys = Add(a, Mul(Mul(a, x2), Horner(x2, kAtanhSmallEP)));
    __m128 w = Mul(Add(one, a), ApproxRecip(Sub(one, a)));
    I32x4 b = AsInt(w);
    __m128 e = ToFloat(Sub(ShiftRight<F::kMantBits>(b), Set<int32_t>(F::kBias)));
    __m128 f = Sub(AsFloat(Or(And(b, Set<uint32_t>(F::kMant)), Set<uint32_t>(F::kOne))), one);
    __m128 yl = Add(Mul(e, Set<float>(kHalfLn2)), Mul(f, Horner(f, kAtanhLogEP)));
    __m128 y = IfThenElse(Lt(x2, Set<float>(0.25f)), ys, yl);
    return Or(y, SignBit(x));
}

// Single LA in single arithmetic: for x^2 below 1/4 a + a^3*P(a^2); above, w = (1 + a)/(1 - a)
// by division and ln(w)/2 by LnSingleLA (single_ep.h). P fitted by
// tools/hyper/atanh_single_la.sollya.
constexpr float kAtanhSeriesLA[] = {0x1.555556p-2f, 0x1.9998dap-3f, 0x1.24b13ep-3f, 0x1.c2bd5cp-4f,
                                    0x1.9c49aep-4f, 0x1.f822aep-6f, 0x1.59e448p-3f};

inline __m128 AtanhSingleLA(__m128 x) {
    const __m128 one = Set<float>(1.0f);
    __m128 a = Abs(x);
    __m128 x2 = Mul(a, a);
    __m128 ys = Add(a, Mul(Mul(a, x2), Horner(x2, kAtanhSeriesLA)));
    __m128 yl = Mul(Set<float>(0.5f), LnSingleLA(Div(Add(one, a), Sub(one, a))));
    __m128 y = IfThenElse(Lt(x2, Set<float>(0.25f)), ys, yl);
    return Or(y, SignBit(x));
}

// Single HA: w = n/d, n = 1 + a and d = 1 - a, exact in double for a single a. The
// quotient is taken in single (four lanes a division) as ws, and ln w = ln ws + ln(1 + e)
// with e = (n - ws*d)/(ws*d), under 2^-23: n - ws*d is exact in double (ws*d has 48 bits
// and is within a few ulps of n), and e is taken as that remainder times the single
// reciprocal estimate of n, within about 2^-35 of it. ln ws by the split of the single lanes
// with the EP core in double (2^-33, log_core.h), so that ln(w)/2 is far below a single ulp
// from 2^-7 on; below, a + a^3/3 + a^5/5 in single, whose tail is under 2^-15 of a. The
// correction joins in double, off the logarithm's chain.
constexpr float kAtanhSeriesHA[] = {1.0f / 3, 1.0f / 5};

inline __m128d AtanhCorrection(__m128d a, __m128d ws, __m128d rn) {
    const __m128d one = Set<double>(1.0);
    return Mul(Sub(Add(one, a), Mul(ws, Sub(one, a))), rn);
}

inline __m128 AtanhWide(__m128 x) {
    const __m128 one = Set<float>(1.0f);
    __m128 a = Abs(x);
    __m128 n = Add(one, a);
    __m128 ws = Div(n, Sub(one, a));
    __m128 rn = ApproxRecip(n);
    __m128d elo = AtanhCorrection(WidenLower(a), WidenLower(ws), WidenLower(rn));
    __m128d ehi = AtanhCorrection(WidenUpper(a), WidenUpper(ws), WidenUpper(rn));
    // Halved after the narrowing, exactly: the results here are far above the denormals.
    __m128 y = LnOfSingleLanes(ws, [&](__m128d lo, __m128d hi) {
        return Mul(Set<float>(0.5f), Narrow(Add(lo, elo), Add(hi, ehi)));
    });
    __m128 z = Mul(a, a);
    __m128 series = Add(a, Mul(Mul(a, z), Horner(z, kAtanhSeriesHA)));
    y = IfThenElse(Lt(a, Set<float>(float(kSeriesEnd))), series, y);
    return Or(y, SignBit(x));
}

template <Level L>
inline __m128 AtanhOf(__m128 x) {
    if constexpr (L == Level::EP)
        return AtanhSingleEP(x);
    else if constexpr (L == Level::LA)
        return AtanhSingleLA(x);
    else
        return AtanhWide(x);
}

template <class Tp, Level L>
struct AtanhBody;

// Double: the lanes outside (-1, 1) and NaN to the scalar routine.
template <Level L>
struct AtanhBody<double, L> {
    using T = double;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Atanh);
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x3FEFFFFFu}; // high word of |x|
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        return AtanhOf<L>(IfThenElse(special, Zero<T>(), x)); // special lanes run on 0
    }
    static int Scalar(const T* a, T* y) { return AtanhScalar(a, y); }
};

// Single: the fix-up after the body.
template <Level L>
struct AtanhBody<float, L> {
    using T = float;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Atanh);
    static V Eval(V x, V& special) {
        I32x4 ai = AsInt(Abs(x));
        const I32x4 one = Set<uint32_t>(Format<float>::kOne);
        const I32x4 inf = Set<uint32_t>(Format<float>::kExpField);
        // A register wholly inside (-1, 1), the rule, skips the masks and the fix-up.
        if (MaskBits(Gt(ai, Set<uint32_t>(Format<float>::kOne - 1))) == 0) {
            special = Zero<T>();
            return AtanhOf<L>(x);
        }
        V atOne = AsFloat(Eq(ai, one));
        V above = AsFloat(AndNot(Gt(ai, inf), Gt(ai, one))); // 1 < |x| <= inf
        V nan = AsFloat(Gt(ai, inf));
        V outside = Or(Or(atOne, above), nan);
        V y = AtanhOf<L>(IfThenZeroElse(outside, x)); // those lanes run on 0
        y = IfThenElse(atOne, Or(AsFloat(inf), SignBit(x)), y);
        y = IfThenElse(above, Set<float>(std::numeric_limits<float>::quiet_NaN()), y);
        y = IfThenElse(nan, Or(x, Set<float>(std::numeric_limits<float>::quiet_NaN())), y);
        special = Or(atOne, above);
        return y;
    }
    // The report of a lane the fix-up settled: its status, and the value the fix-up gave.
    static int Scalar(const T* a, T* y) {
        float x = *a;
        if (std::fabs(x) == 1.0f) {
            *y = std::copysign(std::numeric_limits<float>::infinity(), x);
            return status::kSingularity;
        }
        *y = std::numeric_limits<float>::quiet_NaN();
        return status::kDomain;
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
// The single kernels flattened: the rounds stay in the kernel's loop with the constants
// in registers.
BRENN_FLAT_LEVEL_KERNELS(s, Atanh, Unary, brenn::vm::AtanhBody)
ZAR_LEVEL_KERNELS(d, Atanh, Unary, brenn::vm::AtanhBody)
}
