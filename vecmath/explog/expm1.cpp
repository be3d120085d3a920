/* Expm1, single (one kernel for all levels) and double (three levels).
 *
 * e^x - 1 = 2^m*T*(1 + p) - 1 on the double core of exp_core.h, with the subtraction of 1
 * placed by m so that nothing cancels: for -1 <= m <= 52, 2^m*((Thi - 2^-m) + s), the
 * inner difference exact; for m > 52, 2^m*(Thi + (s - 2^-m)); for m <= -2, 2^m*(Thi + s)
 * - 1, the result then being near -1. Here s = Thi*p + Tlo. For small |x| (m = 0, j = 0)
 * this is p itself, whose polynomial is fitted for relative error. HA has degree 6 and
 * carries th*r and the middle sum exactly; LA degree 6 in plain arithmetic; EP degree 4;
 * the single kernel widens to double with degree 5 and rounds once.
 * Range test |x| above 708 (double) or 86.6433945 (single); the scalar routine gives
 * +inf above the overflow limit (an overflow), -1 for large negative x, e^x itself
 * above 709 (where the core's scale 2^m would pass 2^1022), and the core's value
 * otherwise. Error mode 0x2000 blends the overflow lanes to +inf.
 *
 * Measured (brenn_accuracy, full run): sExpm1 0.50 ulp (one kernel for every level);
 * dExpm1 LA 1.51 ulp, HA 0.74 ulp, EP 39.6 bits. The polynomials are the core's
 * (tools/explog/expm1_double.sollya). */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

template <ExpDegree D, bool Exact>
inline __m128d Expm1Core(__m128d x) {
    using S = ExpStep64;
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d t = Add(Mul(x, Set<double>(S::kInvStep)), shifter);
    __m128d n = Sub(t, shifter);
    // r = rh + rl: the head exact (the constant's trailing zeros), the tail kept apart
    // for HA, where its rounding into r would be magnified by the table value.
    __m128d rh = Sub(x, Mul(n, Set<double>(S::kStepHi)));
    __m128d rl = Mul(n, Set<double>(-S::kStepLo));
    __m128d r = Add(rh, rl);
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d scale = ExpScale64(t), inv = ExpInvScale64(t);
    __m128d tail = ExpPolyTail<D>(r);
    __m128d s = Add(Mul(th, Add(r, tail)), tl);
    __m128d mid;
    if constexpr (Exact) {
        // Near the ends of the middle range th - 2^-m and th*p are of the result's size
        // and of opposite sign: th*rh and the sum are carried exactly (Dekker, Knuth), so
        // that only the last addition rounds at the result's scale.
        __m128d ph, pl, a = Sub(th, inv);
        TwoProduct(th, rh, ph, pl);
        __m128d sum, err;
        TwoSum(a, ph, sum, err);
        __m128d lo = Add(pl, Add(Mul(th, Add(tail, rl)), tl));
        mid = Mul(scale, Add(sum, Add(err, lo)));
    } else {
        mid = Mul(scale, Add(Sub(th, inv), s));
    }
    __m128d big = Mul(scale, Add(th, Sub(s, inv)));
    __m128d neg = Sub(Mul(scale, Add(th, s)), Set<double>(1.0));
    I32x4 m = DupEven(ExpPower64(t)); // m over the whole lane: 32-bit compares are lane masks
    __m128d isBig = BitCast<__m128d>(Gt(m, Set<int32_t>(52)));
    __m128d isNeg = BitCast<__m128d>(Lt(m, Set<int32_t>(-1)));
    __m128d y = IfThenElse(isNeg, neg, IfThenElse(isBig, big, mid));
    // Below 2^-60 the result is x itself; this also keeps the sign of -0.
    __m128d tiny = Lt(Abs(x), Set<double>(0x1p-60));
    return IfThenElse(tiny, x, y);
}

// By precision: the range window on |x| (86.6433945 in single, 708 in double), and by
// level the vector degree, whether the middle sum is carried exactly, and the degree of
// the scalar routine. The single kernel (every level) has degree 5 and its scalar
// routine rounds from degree 6; double HA is degree 6 exact, LA degree 6, EP degree 4.
template <class T>
struct Expm1Const;
template <>
struct Expm1Const<float> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x42AD496Bu};
    template <Level L>
    static constexpr ExpDegree kDegree = ExpDegree::Five;
    template <Level L>
    static constexpr bool kExact = false;
    template <Level L>
    static constexpr ExpDegree kScalarDegree = ExpDegree::Six;
};
template <>
struct Expm1Const<double> {
    static constexpr Range64 kWindow = {0x7FFFFFFFFFFFFFFFull, 0ull, 0x4086200000000000ull};
    template <Level L>
    static constexpr ExpDegree kDegree = L == Level::EP ? ExpDegree::Four : ExpDegree::Six;
    template <Level L>
    static constexpr bool kExact = L == Level::HA;
    template <Level L>
    static constexpr ExpDegree kScalarDegree = kDegree<L>;
};

// The scalar routine's value for a finite x below the overflow limit.
template <ExpDegree D, bool Exact>
inline double Expm1Value(double x) {
    if (x < -700.0) return -1.0 + 0x1p-1000; // -1, inexact
    // From 709.08 up (m = 1023) the core's 2^-m is a denormal that its exponent field
    // cannot hold, and from 709.7773 (m = 1024) its 2^m is 2^1024, an overflow where the
    // result is still finite. Up here e^x - 1 is e^x far below its last place, and the
    // scalar exponential applies its power of two in two steps.
    if (x > 709.0) return ExpScalarCore(x);
    return GetLane(Expm1Core<D, Exact>(Set<double>(x)));
}

// Single lanes widened to double, run on the core and rounded once.
template <ExpDegree D, bool Exact>
inline __m128 Expm1Of(__m128 x) {
    __m128d lo = Expm1Core<D, Exact>(WidenLower(x));
    __m128d hi = Expm1Core<D, Exact>(WidenUpper(x));
    return Narrow(lo, hi);
}
template <ExpDegree D, bool Exact>
inline __m128d Expm1Of(__m128d x) {
    return Expm1Core<D, Exact>(x);
}

template <class Tp, Level L>
struct Expm1Body {
    using T = Tp;
    using V = Vec<T>;
    using K = Expm1Const<T>;
    static constexpr ExpDegree kDegree = K::template kDegree<L>;
    static constexpr bool kExact = K::template kExact<L>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Expm1);
    static V Eval(V x, V& special) {
        special = RangeTest(x, K::kWindow);
        x = IfThenZeroElse(special, x); // special lanes run on 0: no flags of their own
        return Expm1Of<kDegree, kExact>(x);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = x + x;
            return status::kNone;
        }
        if (__builtin_isinf(x)) {
            *y = x > 0 ? x : T(-1);
            return status::kNone;
        }
        if (x > ExpLimits<T>::kOver) {
            volatile T big = std::numeric_limits<T>::max();
            *y = big * big;
            return status::kOverflow;
        }
        *y = T(Expm1Value<K::template kScalarDegree<L>, kExact>(double(x)));
        return status::kNone;
    }
    static int FixNoError(const V* x, V* y, int bits) {
        return FixExpLimits<T>(x, y, bits, ExpLimits<T>::kOver,
                               -std::numeric_limits<T>::infinity());
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_KERNEL_OF(s, Expm1, All, Unary, brenn::vm::Expm1Body<float, brenn::vm::Level::LA>)
ZAR_LEVEL_KERNELS(d, Expm1, Unary, brenn::vm::Expm1Body)
}
