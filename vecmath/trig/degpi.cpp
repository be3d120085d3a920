/* Sind, Cosd, Tand (arguments in degrees) and Sinpi, Cospi, Tanpi (in units of pi), in
 * single and double, three levels.
 *
 * The reduction is exact: j = round(|x| 64/180) (or round(|x| 64)), and
 * d = |x| - j * 2.8125 (or j / 64) is exact, since the step is a short binary number
 * and d is the difference of two close numbers (or |x| itself for j = 0). Only then is
 * d turned into radians, by pi/180 (or pi) in two parts, and the result is
 * sin(j pi/64 + d') from the table, cosine at j + 32, tangent as their quotient. So
 * whole multiples of 180 degrees (of pi) give zeros exactly, and 0 gives cos = 1.
 * Single works in double; HA carries the conversion to radians and the table product
 * exactly.
 *
 * Above the limit (single: 16777306 degrees, 4194304 units of pi; double: 2^45) the
 * scalar routine takes |x| modulo the period by fmod, which is exact, and runs the same
 * body on the remainder. Infinity gives NaN with status 1, NaN itself with status 0. */
#include <math.h>

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
constexpr uint64_t kLimitD = 0x42C0000000000000ull; // 2^45

// The function of two double magnitudes (at most 2^45).
template <Unit U, Fn F, Level L>
inline __m128d OnMagnitude(__m128d a) {
    using C = UnitConst<U>;
    const __m128d shifter = _mm_set1_pd(Format<double>::kShifter);
    a = _mm_min_pd(a, _mm_set1_pd(0x1p45)); // lanes for the scalar routine raise nothing
    __m128d t = _mm_add_pd(_mm_mul_pd(a, _mm_set1_pd(C::kScale)), shifter);
    __m128i ti = _mm_castpd_si128(t);
    alignas(16) int32_t J[2] = {_mm_cvtsi128_si32(ti), _mm_extract_epi32(ti, 2)};
    __m128d d = _mm_sub_pd(a, _mm_mul_pd(_mm_sub_pd(t, shifter), _mm_set1_pd(C::kStep)));
    __m128d rh, rl;
    if constexpr (L == Level::HA) {
        __m128d p, e;
        TwoProd(d, _mm_set1_pd(C::kRadHi), p, e);
        e = _mm_add_pd(e, _mm_mul_pd(d, _mm_set1_pd(C::kRadLo)));
        rh = _mm_add_pd(p, e);
        rl = _mm_sub_pd(e, _mm_sub_pd(rh, p));
    } else {
        rh = _mm_mul_pd(d, _mm_set1_pd(C::kRadHi));
        rl = _mm_mul_pd(d, _mm_set1_pd(C::kRadLo));
    }
    constexpr bool exact = L == Level::HA;
    if constexpr (F == Fn::Cos) {
        J[0] += 32;
        J[1] += 32;
    }
    __m128d sh, sl;
    TableSin(J, rh, rl, sh, sl, exact);
    // Near zero the exact product's split would underflow: there the result is the
    // argument in radians, one rounded product (cosine is 1 there anyway).
    const __m128d tiny = _mm_cmplt_pd(a, _mm_set1_pd(0x1p-900));
    const __m128d direct = _mm_mul_pd(a, _mm_set1_pd(C::kRadHi));
    if constexpr (F == Fn::Sin) return _mm_blendv_pd(_mm_add_pd(sh, sl), direct, tiny);
    if constexpr (F == Fn::Cos) return _mm_add_pd(sh, sl);
    alignas(16) int32_t K[2] = {J[0] + 32, J[1] + 32};
    __m128d ch, cl;
    TableSin(K, rh, rl, ch, cl, exact);
    __m128d s = _mm_add_pd(sh, sl), c = _mm_add_pd(ch, cl);
    if constexpr (L == Level::EP) return _mm_blendv_pd(_mm_div_pd(s, c), direct, tiny);
    // One correction of the quotient by its residual on the renormalised parts; at an
    // exact pole (c = 0) the quotient is the infinity itself.
    sl = _mm_sub_pd(sl, _mm_sub_pd(s, sh));
    cl = _mm_sub_pd(cl, _mm_sub_pd(c, ch));
    __m128d q = _mm_div_pd(s, c);
    __m128d p, pe;
    TwoProd(q, c, p, pe);
    __m128d res = _mm_sub_pd(_mm_add_pd(_mm_sub_pd(_mm_sub_pd(s, p), pe), sl), _mm_mul_pd(q, cl));
    q = _mm_blendv_pd(_mm_add_pd(q, _mm_div_pd(res, c)), q, _mm_cmpeq_pd(c, _mm_setzero_pd()));
    return _mm_blendv_pd(q, direct, tiny);
}

template <Fn F>
inline __m128 ApplySign(__m128 p, __m128 x) {
    return F == Fn::Cos ? p : _mm_xor_ps(p, _mm_and_ps(x, SignMask<float>()));
}
template <Fn F>
inline __m128d ApplySign(__m128d p, __m128d x) {
    return F == Fn::Cos ? p : _mm_xor_pd(p, _mm_and_pd(x, SignMask<double>()));
}

template <Unit U, Fn F>
constexpr const char* NameS() {
    if constexpr (U == Unit::Degree)
        return F == Fn::Sin   ? ZAR_ERROR_NAME(sSind)
               : F == Fn::Cos ? ZAR_ERROR_NAME(sCosd)
                              : ZAR_ERROR_NAME(sTand);
    else
        return F == Fn::Sin   ? ZAR_ERROR_NAME(sSinpi)
               : F == Fn::Cos ? ZAR_ERROR_NAME(sCospi)
                              : ZAR_ERROR_NAME(sTanpi);
}
template <Unit U, Fn F>
constexpr const char* NameD() {
    if constexpr (U == Unit::Degree)
        return F == Fn::Sin   ? ZAR_ERROR_NAME(dSind)
               : F == Fn::Cos ? ZAR_ERROR_NAME(dCosd)
                              : ZAR_ERROR_NAME(dTand);
    else
        return F == Fn::Sin   ? ZAR_ERROR_NAME(dSinpi)
               : F == Fn::Cos ? ZAR_ERROR_NAME(dCospi)
                              : ZAR_ERROR_NAME(dTanpi);
}

template <Unit U, Fn F, Level L>
struct BodyS {
    using T = float;
    static constexpr const char* kName = NameS<U, F>();
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 a = _mm_and_ps(x, AbsMask<float>());
        special = _mm_castsi128_ps(
            _mm_cmpgt_epi32(_mm_castps_si128(a), _mm_set1_epi32(int(UnitConst<U>::kLimitS))));
        __m128d p0 = OnMagnitude<U, F, L>(_mm_cvtps_pd(a));
        __m128d p1 = OnMagnitude<U, F, L>(_mm_cvtps_pd(_mm_movehl_ps(a, a)));
        return ApplySign<F>(_mm_movelh_ps(_mm_cvtpd_ps(p0), _mm_cvtpd_ps(p1)), x);
    }
    static int Scalar(const float* a, float* y) {
        float x = *a;
        if (!(__builtin_fabsf(x) <= 0x1.fffffep+127f)) return InfNanScalar(a, y);
        // |x| modulo the period, exactly, then the body on that one value.
        double r = fmod(__builtin_fabs(double(x)), UnitConst<U>::kPeriod);
        __m128d p = OnMagnitude<U, F, L>(_mm_set1_pd(r));
        *y = _mm_cvtss_f32(ApplySign<F>(_mm_cvtpd_ps(p), _mm_set1_ps(x)));
        return 0;
    }
};

template <Unit U, Fn F, Level L>
struct BodyD {
    using T = double;
    static constexpr const char* kName = NameD<U, F>();
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d a = _mm_and_pd(x, AbsMask<double>());
        special = _mm_castsi128_pd(
            _mm_cmpgt_epi64(_mm_castpd_si128(a), _mm_set1_epi64x(int64_t(kLimitD))));
        return ApplySign<F>(OnMagnitude<U, F, L>(a), x);
    }
    static int Scalar(const double* a, double* y) {
        double x = *a;
        if (!(__builtin_fabs(x) <= 0x1.fffffffffffffp+1023)) return InfNanScalar(a, y);
        double r = fmod(__builtin_fabs(x), UnitConst<U>::kPeriod);
        __m128d p = OnMagnitude<U, F, L>(_mm_set1_pd(r));
        *y = _mm_cvtsd_f64(ApplySign<F>(p, _mm_set1_pd(x)));
        return 0;
    }
};

} // namespace
} // namespace brenn::vm::trig

using namespace brenn::vm;
using namespace brenn::vm::trig;

#define BRENN_TRIG_UNIT(row, t, Body, U, F)                                                        \
    void ZAR_KERNEL(row, EP) BRENN_SIG(t, Unary) {                                                 \
        RunUnary(Body<U, F, Level::EP>{}, n, a, y);                                                \
    }                                                                                              \
    void ZAR_KERNEL(row, LA) BRENN_SIG(t, Unary) {                                                 \
        RunUnary(Body<U, F, Level::LA>{}, n, a, y);                                                \
    }                                                                                              \
    void ZAR_KERNEL(row, HA) BRENN_SIG(t, Unary) {                                                 \
        RunUnary(Body<U, F, Level::HA>{}, n, a, y);                                                \
    }

extern "C" {
BRENN_TRIG_UNIT(sSind, s, BodyS, Unit::Degree, Fn::Sin)
BRENN_TRIG_UNIT(sCosd, s, BodyS, Unit::Degree, Fn::Cos)
BRENN_TRIG_UNIT(sTand, s, BodyS, Unit::Degree, Fn::Tan)
BRENN_TRIG_UNIT(sSinpi, s, BodyS, Unit::Pi, Fn::Sin)
BRENN_TRIG_UNIT(sCospi, s, BodyS, Unit::Pi, Fn::Cos)
BRENN_TRIG_UNIT(sTanpi, s, BodyS, Unit::Pi, Fn::Tan)
BRENN_TRIG_UNIT(dSind, d, BodyD, Unit::Degree, Fn::Sin)
BRENN_TRIG_UNIT(dCosd, d, BodyD, Unit::Degree, Fn::Cos)
BRENN_TRIG_UNIT(dTand, d, BodyD, Unit::Degree, Fn::Tan)
BRENN_TRIG_UNIT(dSinpi, d, BodyD, Unit::Pi, Fn::Sin)
BRENN_TRIG_UNIT(dCospi, d, BodyD, Unit::Pi, Fn::Cos)
BRENN_TRIG_UNIT(dTanpi, d, BodyD, Unit::Pi, Fn::Tan)
}
