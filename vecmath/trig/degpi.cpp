/* Sind, Cosd, Tand (arguments in degrees) and Sinpi, Cospi, Tanpi (in units of pi), in
 * single and double, three levels: one body for all twelve rows.
 *
 * The reduction is exact: j = round(|x| 64/180) (or round(|x| 64)), and
 * d = |x| - j * 2.8125 (or j / 64) is exact, since the step is a short binary number
 * and d is the difference of two close numbers (or |x| itself for j = 0). Only then is
 * d turned into radians, by pi/180 (or pi) in two parts, and the result is
 * sin(j pi/64 + d') from the table, cosine at j + 32, tangent as their quotient. So
 * whole multiples of 180 degrees (of pi) give zeros exactly, and 0 gives cos = 1.
 * Single works in double, two lanes at a time; HA carries the conversion to radians and
 * the table product exactly. No fitted set: the table of sin and cos at multiples of
 * pi/64 and the short Taylor series of reduce.h are all there is.
 *
 * Above the limit (single: 16777306 degrees, 4194304 units of pi; double: 2^45) the
 * scalar routine takes |x| modulo the period by fmod, which is exact, and runs the same
 * body on the remainder. Infinity gives NaN with the domain status, NaN itself none.
 *
 * Measured (brenn_accuracy, 250000 inputs a row): single, every row at every level,
 * 0.500 ulp (24.0 bits). Double, EP (bits) / LA (ulp) / HA (ulp): dSind 52.1 / 1.267 /
 * 0.531, dCosd 52.2 / 1.196 / 0.542, dTand 51.5 / 1.398 / 0.517, dSinpi 52.2 / 1.288 /
 * 0.534, dCospi 52.2 / 1.352 / 0.522, dTanpi 51.6 / 1.340 / 0.507. */
#include <bit>
#include <cmath>
#include <limits>

#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/trig/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

enum class Unit { Degree, Pi };
enum class Fn { Sin, Cos, Tan };

template <Unit U>
struct UnitConst;
template <>
struct UnitConst<Unit::Degree> {
    static constexpr double kScale = 64.0 / 180.0;         // rounded; j is checked by d's size
    static constexpr double kStep = 2.8125;                // 180/64, exact
    static constexpr double kRadHi = 0x1.1df46a2529d39p-6; // pi/180
    static constexpr double kRadLo = 0x1.5c1d8becdd291p-62;
    static constexpr double kPeriod = 360.0;
    static constexpr uint32_t kLimitS = 0x4B80002D; // 16777306.0
};
template <>
struct UnitConst<Unit::Pi> {
    static constexpr double kScale = 64.0;
    static constexpr double kStep = 1.0 / 64;
    static constexpr double kRadHi = 0x1.921fb54442d18p+1; // pi
    static constexpr double kRadLo = 0x1.1a62633145c07p-53;
    static constexpr double kPeriod = 2.0;
    static constexpr uint32_t kLimitS = 0x4A800000; // 4194304.0
};

// The largest magnitude of the vector path, as bits: a single limit a unit (where the
// single reduction stays exact in double), 2^45 for double in both.
template <class T, Unit U>
constexpr UInt<T> kLimit = std::bit_cast<uint64_t>(0x1p45);
template <Unit U>
constexpr uint32_t kLimit<float, U> = UnitConst<U>::kLimitS;

// The function of two double magnitudes (at most 2^45); Tiny: magnitudes below 2^-900
// may come (not from single arguments).
template <Unit U, Fn F, Level L, bool Tiny = true>
inline __m128d OnMagnitude(__m128d a) {
    using C = UnitConst<U>;
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    a = Min(a, Set<double>(0x1p45)); // lanes for the scalar routine raise nothing
    // Near zero the exact product's split would underflow. HA takes such a lane up by
    // 2^512 (exact), through the same arithmetic, and brings its sine or tangent back
    // down from two parts (down), rounded once; LA and EP take the argument in radians,
    // one rounded product (a cosine is 1 there anyway).
    constexpr bool scaled = L == Level::HA && Tiny && F != Fn::Cos;
    const __m128d tiny = Lt(a, Set<double>(0x1p-900));
    // Every register takes the same path, so that an element's result does not depend on
    // its neighbours.
    if constexpr (scaled) a = IfThenElse(tiny, Mul(a, Set<double>(0x1p512)), a);
    __m128d t = Add(Mul(a, Set<double>(C::kScale)), shifter);
    alignas(16) int32_t J[2] = {LowWord<0>(AsInt(t)), LowWord<1>(AsInt(t))};
    __m128d d = Sub(a, Mul(Sub(t, shifter), Set<double>(C::kStep)));
    __m128d rh, rl;
    if constexpr (L == Level::HA) {
        __m128d p, e;
        TwoProd(d, Set<double>(C::kRadHi), p, e);
        e = Add(e, Mul(d, Set<double>(C::kRadLo)));
        rh = Add(p, e);
        rl = Sub(e, Sub(rh, p));
    } else {
        rh = Mul(d, Set<double>(C::kRadHi));
        rl = Mul(d, Set<double>(C::kRadLo));
    }
    constexpr bool exact = L == Level::HA;
    if constexpr (F == Fn::Cos) {
        J[0] += 32;
        J[1] += 32;
    }
    __m128d sh, sl;
    TableSin(J, rh, rl, sh, sl, exact);
    const __m128d direct = Mul(a, Set<double>(C::kRadHi));
    // h + l times 2^-512 on tiny lanes, h + l elsewhere. A normal result is the sum
    // rounded at the scale above, brought down exactly; a denormal one is h rounded to
    // that grid plus the rest (h's remainder, exact at the scale above, and l) rounded to
    // it, so that the sum is rounded once.
    auto down = [&](__m128d h, __m128d l) {
        const __m128d back = IfThenElse(tiny, Set<double>(0x1p-512), Set<double>(1.0));
        const __m128d up = Set<double>(0x1p512);
        const __m128d n = Mul(Add(h, l), back);
        const __m128d ht = IfThenElse(tiny, h, Zero<double>());
        const __m128d hd = Mul(ht, back);
        const __m128d rest = Add(Sub(ht, Mul(hd, up)), IfThenElse(tiny, l, Zero<double>()));
        const __m128d d = Add(hd, Mul(rest, back));
        return IfThenElse(Lt(Abs(n), Set<double>(0x1p-1022)), d, n);
    };
    if constexpr (F == Fn::Sin) {
        if constexpr (scaled) return down(sh, sl);
        if constexpr (L == Level::HA) return Add(sh, sl);
        return IfThenElse(tiny, direct, Add(sh, sl));
    }
    if constexpr (F == Fn::Cos) return Add(sh, sl);
    alignas(16) int32_t K[2] = {J[0] + 32, J[1] + 32};
    __m128d ch, cl;
    TableSin(K, rh, rl, ch, cl, exact);
    __m128d s = Add(sh, sl), c = Add(ch, cl);
    if constexpr (L == Level::EP) return IfThenElse(tiny, direct, Div(s, c));
    // One correction of the quotient by its residual on the renormalised parts; at an
    // exact pole (c = 0) the quotient is the infinity itself.
    sl = Sub(sl, Sub(s, sh));
    cl = Sub(cl, Sub(c, ch));
    __m128d q = Div(s, c);
    __m128d p, pe;
    TwoProd(q, c, p, pe);
    __m128d res = Sub(Add(Sub(Sub(s, p), pe), sl), Mul(q, cl));
    __m128d ql = IfThenElse(Eq(c, Zero<double>()), Zero<double>(), Div(res, c));
    if constexpr (scaled) return down(q, ql);
    q = Add(q, ql);
    if constexpr (L == Level::HA) return q;
    return IfThenElse(tiny, direct, q);
}

// Four single magnitudes as two double registers, or two double magnitudes as they are.
template <Unit U, Fn F, Level L>
inline __m128 OnMagnitudes(__m128 a) {
    __m128d p0 = OnMagnitude<U, F, L, false>(WidenLower(a));
    __m128d p1 = OnMagnitude<U, F, L, false>(WidenUpper(a));
    return Narrow(p0, p1);
}
template <Unit U, Fn F, Level L>
inline __m128d OnMagnitudes(__m128d a) {
    return OnMagnitude<U, F, L>(a);
}

// A double result as a register of the row's type (the scalar routine's, lane 0).
inline __m128 InType(__m128d p, __m128) {
    return Narrow(p, p);
}
inline __m128d InType(__m128d p, __m128d) {
    return p;
}

// Sine and tangent are odd, cosine even.
template <Fn F, class V>
inline V ApplySign(V p, V x) {
    return F == Fn::Cos ? p : Xor(p, SignBit(x));
}

template <class T, Unit U, Fn F>
constexpr const char* RowName() {
    if constexpr (U == Unit::Degree)
        return F == Fn::Sin   ? ZAR_ERROR_NAME_OF(T, Sind)
               : F == Fn::Cos ? ZAR_ERROR_NAME_OF(T, Cosd)
                              : ZAR_ERROR_NAME_OF(T, Tand);
    else
        return F == Fn::Sin   ? ZAR_ERROR_NAME_OF(T, Sinpi)
               : F == Fn::Cos ? ZAR_ERROR_NAME_OF(T, Cospi)
                              : ZAR_ERROR_NAME_OF(T, Tanpi);
}

template <class Tp, Level L, Unit U, Fn F>
struct Body {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = RowName<T, U, F>();
    static V Eval(V x, V& special) {
        V a = Abs(x);
        special = AsFloat(Gt(AsInt(a), Set<UInt<T>>(kLimit<T, U>)));
        V p = OnMagnitudes<U, F, L>(a);
        return ApplySign<F>(p, x);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        if (!(std::fabs(x) <= std::numeric_limits<T>::max())) return InfNanScalar(a, y);
        // |x| modulo the period, exactly, then the body on that one value.
        double r = std::fmod(std::fabs(double(x)), UnitConst<U>::kPeriod);
        V p = InType(OnMagnitude<U, F, L>(Set<double>(r)), V{});
        *y = GetLane(ApplySign<F>(p, Set<T>(x)));
        return status::kNone;
    }
};

template <class T, Level L>
using SindBody = Body<T, L, Unit::Degree, Fn::Sin>;
template <class T, Level L>
using CosdBody = Body<T, L, Unit::Degree, Fn::Cos>;
template <class T, Level L>
using TandBody = Body<T, L, Unit::Degree, Fn::Tan>;
template <class T, Level L>
using SinpiBody = Body<T, L, Unit::Pi, Fn::Sin>;
template <class T, Level L>
using CospiBody = Body<T, L, Unit::Pi, Fn::Cos>;
template <class T, Level L>
using TanpiBody = Body<T, L, Unit::Pi, Fn::Tan>;

} // namespace
} // namespace brenn::vm::trig

using namespace brenn::vm::trig;

extern "C" {
ZAR_ROW_KERNELS(Sind, Unary, SindBody)
ZAR_ROW_KERNELS(Cosd, Unary, CosdBody)
ZAR_ROW_KERNELS(Tand, Unary, TandBody)
ZAR_ROW_KERNELS(Sinpi, Unary, SinpiBody)
ZAR_ROW_KERNELS(Cospi, Unary, CospiBody)
ZAR_ROW_KERNELS(Tanpi, Unary, TanpiBody)
}
