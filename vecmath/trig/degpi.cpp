/* Sind, Cosd, Tand (arguments in degrees) and Sinpi, Cospi, Tanpi (in units of pi), in
 * single and double, three levels.
 *
 * Single: a whole multiple of the half period taken off by the shifter:
 * k = round(|x|/180) (or round(|x|)), r = |x| - 180 k (or |x| - k), exact in single below
 * the limit, and sin x = (-1)^k sin r; cosine takes the half-integer
 * k = round(|x|/180 + 1/2) - 1/2, so that cos x = sin(x + 90) = (-1)^(k + 1/2) sin r (its
 * r rounds where |x| is below a quarter period).
 * r in [-90, 90] (or [-1/2, 1/2]) is turned into radians by pi/180 (pi) in single and an
 * odd series applied: at EP r (1 + u (c3 + u c5)) as given (tools/trig/sin_single_ep.sollya
 * measures it), at LA the single sine's LA series on the single product. Tangent: r from
 * sine's reduction (tan has the half period), the series at r and at 90 - |r| (1/2 - |r|)
 * as sine and cosine, and their quotient. HA holds to its bound only in double from the
 * reduction's difference on: r = |x| - 180 k again in double (exact there, where in single
 * the cosine's half-integer k makes it round), times pi/180 (pi) in double (the single
 * constant alone is 2^-27 off, 2^-25 for pi), the single sine's HA series in double and the
 * tangent's quotient in double, narrowed once. So whole multiples of 180 degrees (of pi)
 * give zeros exactly, and 90 degrees a cosine of zero.
 *
 * Double: j = round(|x| 64/180) (or round(|x| 64)), and d = |x| - j * 2.8125 (or j / 64)
 * is exact, since the step is a short binary number and d is the difference of two close
 * numbers (or |x| itself for j = 0). Only then is d turned into radians, by pi/180 (or
 * pi) in two parts, and the result is sin(j pi/64 + d') from the table, cosine at j + 32,
 * tangent as their quotient. HA carries the conversion to radians and the table product
 * exactly. No fitted set: the table of sin and cos at multiples of pi/64 and the short
 * Taylor series of reduce.h are all there is.
 *
 * Above the limit (single: 16777306 degrees, 4194304 units of pi; double: 2^45) the
 * scalar routine takes |x| modulo the period by fmod, which is exact, and runs the same
 * body on the remainder. Infinity gives NaN with the domain status, NaN itself none.
 *
 * Measured (brenn_accuracy, 250000 inputs a row), EP (bits) / LA (ulp) / HA (ulp):
 * single, sSind 12.2 / 1.67 / 0.599, sCosd 12.2 / 1.72 / 0.599, sTand 12.9 / 2.91 / 0.630,
 * sSinpi 12.2 / 1.89 / 0.601, sCospi 12.2 / 1.95 / 0.599, sTanpi 12.9 / 3.11 / 0.630;
 * double, dSind 52.1 / 1.267 / 0.531, dCosd 52.2 / 1.196 / 0.542, dTand 51.5 / 1.398 /
 * 0.517, dSinpi 52.2 / 1.288 / 0.534, dCospi 52.2 / 1.352 / 0.522, dTanpi 51.6 / 1.340 /
 * 0.507. */
#include <bit>
#include <cmath>
#include <limits>

#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/trig/sin_series_single.h"
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

// The single constants a unit: 1/180 (0x3BB60B61) and 180, or none and 1; pi/180
// (0x3C8EFA35) or pi (0x40490FDB) in single, and in double for HA; a quarter period.
template <Unit U>
struct UnitSingle;
template <>
struct UnitSingle<Unit::Degree> {
    static constexpr float kInv = 0x1.6c16c2p-8f;
    static constexpr float kStep = 180.0f;
    static constexpr float kRad = 0x1.1df46ap-6f;
    static constexpr double kRadD = 0x1.1df46a2529d39p-6;
    static constexpr float kQuarter = 90.0f;
};
template <>
struct UnitSingle<Unit::Pi> {
    static constexpr float kInv = 1.0f;
    static constexpr float kStep = 1.0f;
    static constexpr float kRad = 0x1.921fb6p1f;
    static constexpr double kRadD = 0x1.921fb54442d18p+1;
    static constexpr float kQuarter = 0.5f;
};

// The odd series on r, in the unit, at the level: sin(r in radians) for r within a
// quarter period.
// EP: c3 0xBE29F1BE, c5 0x3BF831A5 after c1 = 1.
constexpr float kSinUnitEP[] = {-0x1.53e37cp-3f, 0x1.f0634ap-8f};
// LA and HA: the single sine's sets, kSinLA and kSinHA (sin_series_single.h).

// sin of r in the unit (|r| at most a quarter period) at EP and LA: r times the single
// pi/180 (pi), and the series in single.
template <Unit U, Level L>
inline __m128 SeriesInUnit(__m128 r) {
    __m128 rr = Mul(r, Set<float>(UnitSingle<U>::kRad));
    __m128 u = Mul(rr, rr);
    if constexpr (L == Level::EP) return Mul(rr, MulAdd(u, Horner(u, kSinUnitEP), Set<float>(1)));
    return Add(rr, Mul(Mul(rr, u), Horner(u, kSinLA)));
}
// HA, in double: r times pi/180 (pi) in double and the series in double.
template <Unit U>
inline __m128d SeriesInUnitHA(__m128d r) {
    __m128d rr = Mul(r, Set<double>(UnitSingle<U>::kRadD));
    __m128d u = Mul(rr, rr);
    return Mul(rr, MulAdd(u, Horner(u, kSinHA), Set<double>(1.0)));
}

// The function of r, reduced, and k's parity as a sign (t's low bit), at EP and LA in
// single; at HA the difference a - step k again in double, where it is exact (in single it
// rounds for the cosine's half-integer k, a below a quarter period: up to 1.1 ulp at
// HA), and the series and the tangent's quotient in double (the quotient of two rounded
// single values reached 2.3 ulp), narrowed once.
template <Unit U, Fn F, Level L>
inline __m128 OfReduced(__m128 a, __m128 k, __m128 r, __m128 t) {
    using C = UnitSingle<U>;
    const __m128 sign = AsFloat(ShiftLeft<31>(AsInt(t)));
    if constexpr (L == Level::HA) {
        const __m128d ad[2] = {WidenLower(a), WidenUpper(a)},
                      kd[2] = {WidenLower(k), WidenUpper(k)};
        __m128d p[2];
#pragma GCC unroll 2
        for (int i = 0; i < 2; ++i) {
            __m128d rd = U == Unit::Degree ? Sub(ad[i], Mul(kd[i], Set<double>(C::kStep)))
                                           : Sub(ad[i], kd[i]);
            p[i] = SeriesInUnitHA<U>(rd);
            if constexpr (F == Fn::Tan)
                p[i] = Div(p[i], SeriesInUnitHA<U>(Sub(Set<double>(C::kQuarter), Abs(rd))));
        }
        __m128 q = Narrow(p[0], p[1]);
        return F == Fn::Tan ? q : Xor(q, sign);
    } else {
        if constexpr (F == Fn::Tan)
            return Div(SeriesInUnit<U, L>(r),
                       SeriesInUnit<U, L>(Sub(Set<float>(C::kQuarter), Abs(r))));
        return Xor(SeriesInUnit<U, L>(r), sign);
    }
}

// The function of four single magnitudes, at most the limit (16777306 or 4194304; the
// scalar routine's lanes are clamped), without the sign of x.
template <Unit U, Fn F, Level L>
inline __m128 OnMagnitudes(__m128 a) {
    using C = UnitSingle<U>;
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    a = Min(a, AsFloat(Set<uint32_t>(UnitConst<U>::kLimitS)));
    __m128 t = U == Unit::Degree ? Mul(a, Set<float>(C::kInv)) : a;
    if constexpr (F == Fn::Cos) t = Add(t, Set<float>(0.5f));
    t = Add(t, shifter);
    __m128 k = Sub(t, shifter);
    if constexpr (F == Fn::Cos) k = Sub(k, Set<float>(0.5f));
    __m128 r = L == Level::HA      ? a
               : U == Unit::Degree ? Sub(a, Mul(k, Set<float>(C::kStep)))
                                   : Sub(a, k);
    return OfReduced<U, F, L>(a, k, r, t);
}

template <Unit U, Fn F, Level L>
inline __m128d OnMagnitudes(__m128d a) {
    return OnMagnitude<U, F, L>(a);
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
        V p = OnMagnitudes<U, F, L>(Set<T>(T(r))); // r is exact in T
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
