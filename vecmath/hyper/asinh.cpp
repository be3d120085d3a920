/* Asinh, single and double, three levels each (dAsinh one kernel for LA and EP).
 *
 * asinh a = ln(w), w = a + sqrt(a^2 + 1), a = |x|, x's sign put back at the end; the
 * logarithm of the pair w by the explog core (log_pair.h).
 * Double HA: a^2 + 1 and its root carried as pairs, so that w is exact to far below an ulp.
 * Double LA and EP: the log1p form w = 1 + u,
 * u = a + a^2/(1 + sqrt(a^2 + 1)), the rounding of 1 + u recovered, so that small
 * arguments keep their relative accuracy. Above 2^28 the square is left out: ln(2a) as
 * ln a plus ln 2; below 2^-28 the result is a.
 * Single HA on widened lanes, w = a + sqrt(a^2 + 1) in double and its logarithm; the
 * series below 2^-7 in single.
 * Single LA and EP in single arithmetic: the odd series up to 3/4 (LA) or 1.2 (EP), above
 * it the root by sqrtps (LA) or rsqrtps (EP) and the logarithm by the split of the explog
 * family (LA) or by exponent and significand (EP), with a guard above 0x5F7FFFFF.
 * Only infinities and NaN go to the scalar routine; nothing is reported. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/quiet_body.h"
#include "vecmath/hyper/inverse_scalar.h"
#include "vecmath/hyper/log_pair.h"
#include "vecmath/hyper/single_ep.h"

namespace brenn::vm {
namespace {

// Below this asinh a is a to the last bit.
constexpr double kAsinhTiny = 0x1p-28;

// The Taylor coefficients of (asinh a - a)/a^3 in a^2, and where the series serves at HA.
constexpr double kAsinhSeries[] = {-1.0 / 6, 3.0 / 40, -15.0 / 336, 105.0 / 3456};
constexpr double kSeriesEnd = 0x1p-7;

template <Level L>
inline __m128d AsinhOf(__m128d x) {
    const __m128d one = Set<double>(1.0);
    __m128d a = Abs(x);
    __m128d big = Gt(a, Set<double>(kSquareEnd));
    __m128d ac = Min(a, Set<double>(kSquareEnd));
    Pair w;
    if constexpr (L == Level::HA) {
        Pair s = SqrtOfPair(SumOf(ProductOf(ac, ac), Pair{one, Zero<double>()}));
        __m128d e;
        FastTwoSum(s.hi, ac, w.hi, e); // the root is the larger
        w.lo = Add(e, s.lo);
    } else {
        __m128d s = Sqrt(Add(Mul(ac, ac), one));
        w = OnePlus(Add(ac, Div(Mul(ac, ac), Add(one, s))));
    }
    w.hi = IfThenElse(big, a, w.hi);
    w.lo = IfThenZeroElse(big, w.lo);
    __m128d y = LnOfPair<L>(w, IfThenElseZero(big, one));
    if constexpr (L == Level::HA) {
        // Below 2^-7 the logarithm of a w within a few ulps of 1 rounds its parts about as
        // often as it keeps them: the series a + a^3*(-1/6 + 3a^2/40 - 15a^4/336 + 105a^6/3456).
        __m128d z = Mul(a, a);
        __m128d series = Add(a, Mul(Mul(a, z), Horner(z, kAsinhSeries)));
        y = IfThenElse(Lt(a, Set<double>(kSeriesEnd)), series, y);
    } else {
        y = IfThenElse(Lt(a, Set<double>(kAsinhTiny)), a, y);
    }
    return Or(y, SignBit(x));
}

// Single EP: a = |x|, q = a^2. Up to 1.20000005 the odd series; above, ln(a + sqrt(1 + q))
// with the root as (1 + q)*rsqrtps(1 + q) and the logarithm by exponent and significand;
// lanes above 0x5F7FFFFF, whose square is out of range, take a to the logarithm and ln 2
// on top: ln a alone, short of asinh a = ln 2a by ln 2, would be 1.5 % off at 2^64 (6
// bits, below the level's 11).
constexpr float kAsinhSmallEP[] = {-0.163027272f, 0.056370344f, -0.011921552f};
constexpr float kAsinhSmallEnd = 0x1.333334p+0f; // 1.20000005
constexpr uint32_t kAsinhSquareGuard = 0x5F7FFFFFu;

inline __m128 AsinhSingleEP(__m128 x) {
    const __m128 one = Set<float>(1.0f);
    __m128 a = Abs(x);
    __m128 guard = AsFloat(Gt(AsInt(a), Set<uint32_t>(kAsinhSquareGuard)));
    __m128 q = Mul(a, a);
    __m128 ys = Add(a, Mul(Mul(a, q), Horner(q, kAsinhSmallEP)));
    __m128 ag = IfThenZeroElse(guard, a); // their square would overflow
    __m128 p = Add(Mul(ag, ag), one);
    __m128 s = IfThenElse(guard, a, Add(a, Mul(p, ApproxRecipSqrt(p))));
    __m128 yl = Add(LnByFields<kLnSignificandAsinh>(s), IfThenElseZero(guard, Set<float>(LogConst<float>::kLn2)));
    __m128 y = IfThenElse(Le(a, Set<float>(kAsinhSmallEnd)), ys, yl);
    return Or(y, SignBit(x));
}

// Single HA: ln(w), w = a + sqrt(a^2 + 1) in double on the widened lanes, where a^2 of
// any single a is in range; w is within 2^-52 of itself, which the logarithm (the EP core,
// 2^-33) keeps far below a single ulp from 2^-7 on. Below, the series a + a^3*(-1/6 +
// 3a^2/40) in single, whose tail is under 2^-16 of a; the choice and the sign on the
// four single lanes.
constexpr float kAsinhSeriesHA[] = {-1.0f / 6, 3.0f / 40};

inline __m128d AsinhWide(__m128d a) {
    __m128d h, l;
    LnCore<Level::EP>(Add(a, Sqrt(Add(Mul(a, a), Set<double>(1.0)))), h, l);
    return Add(h, l);
}

inline __m128 AsinhSingleHA(__m128 x) {
    __m128 a = Abs(x);
    __m128 y = WidenToDouble(a, AsinhWide);
    __m128 z = Mul(a, a);
    __m128 series = Add(a, Mul(Mul(a, z), Horner(z, kAsinhSeriesHA)));
    y = IfThenElse(Lt(a, Set<float>(float(kSeriesEnd))), series, y);
    return Or(y, SignBit(x));
}

// Single LA in single arithmetic: up to 3/4 the odd series a + a^3*P(a^2), P fitted by
// tools/hyper/asinh_single_la.sollya; above, ln(a + sqrt(1 + a^2)) by sqrtps and
// LnSingleLA (single_ep.h), with the EP body's guard on the square.
constexpr float kAsinhSeriesLA[] = {-0x1.555556p-3f, 0x1.333372p-4f,  -0x1.6dbaf8p-5f,
                                    0x1.f186b8p-6f,  -0x1.69adecp-6f, 0x1.ffe292p-7f,
                                    -0x1.205026p-7f, 0x1.5a97aep-9f};

inline __m128 AsinhSingleLA(__m128 x) {
    __m128 a = Abs(x);
    __m128 guard = AsFloat(Gt(AsInt(a), Set<uint32_t>(kAsinhSquareGuard)));
    __m128 q = Mul(a, a);
    __m128 ys = Add(a, Mul(Mul(a, q), Horner(q, kAsinhSeriesLA)));
    __m128 ag = IfThenZeroElse(guard, a); // their square would overflow
    __m128 w = IfThenElse(guard, a, Add(a, Sqrt(Add(Mul(ag, ag), Set<float>(1.0f)))));
    __m128 yl = Add(LnSingleLA(w), IfThenElseZero(guard, Set<float>(LogConst<float>::kLn2)));
    __m128 y = IfThenElse(Lt(a, Set<float>(0.75f)), ys, yl);
    return Or(y, SignBit(x));
}

template <Level L>
inline __m128 AsinhOf(__m128 x) {
    if constexpr (L == Level::EP)
        return AsinhSingleEP(x);
    else if constexpr (L == Level::LA)
        return AsinhSingleLA(x);
    else
        return AsinhSingleHA(x);
}

BRENN_QUIET_BODY(Asinh)

} // namespace
} // namespace brenn::vm

extern "C" {
// The single kernels flattened: the rounds stay in the kernel's loop with the constants
// in registers.
BRENN_FLAT_LEVEL_KERNELS(s, Asinh, Unary, brenn::vm::AsinhBody)
ZAR_KERNEL_OF(d, Asinh, LaEp, Unary, brenn::vm::AsinhBody<double, brenn::vm::Level::LA>)
ZAR_KERNEL_OF(d, Asinh, HA, Unary, brenn::vm::AsinhBody<double, brenn::vm::Level::HA>)
}
