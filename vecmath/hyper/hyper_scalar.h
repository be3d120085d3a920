/* The scalar routines of Cosh, Sinh and Tanh, one text for both precisions, run in
 * double on a table exponential of their own (HyperExpScalar): the lanes the vector bodies
 * leave (exponent all ones, and for Cosh and Sinh the arguments near overflow) come
 * here. Thresholds in this order:
 *   exponent all ones   Cosh x*x, Sinh x + x, Tanh 1 with x's sign or the NaN;
 *   Sinh of a denormal  x + x*2^-1022, which raises the underflow flag;
 *   |x| < 2^-53         Cosh 1 + |x|, Sinh x*(1 + 2^-1022);
 *   |x| >= the overflow point of the format: infinity (Sinh with x's sign), status 3;
 *   |x| >= 21.487562597358306, where e^-|x| is below the last bit: e^|x|/2 alone,
 *                       its scaling split in two inside the core;
 *   below               (e^|x| +- e^-|x|)/2, Sinh by its series under 1/2, where the
 *                       difference would cancel (no lane of the vector bodies comes here
 *                       below 1/2). */
#ifndef BRENN_VECMATH_HYPER_HYPER_SCALAR_H
#define BRENN_VECMATH_HYPER_HYPER_SCALAR_H

#include <cfloat>
#include <cmath>

#include "vecmath/explog/exp_scalar.h"
#include "vecmath/frame/status.h"
#include "vecmath/hyper/hyper_core.h"

namespace brenn::vm {

// The least |x| whose Cosh and Sinh overflow in each format.
template <class T>
struct HyperLimits;
template <>
struct HyperLimits<float> {
    static constexpr double kOver = 0x1.65a9fap+6; // 89.4159927368164
};
template <>
struct HyperLimits<double> {
    static constexpr double kOver = 0x1.633ce8fb9f87ep+9; // 710.475860073944
};

// Above this e^-a adds nothing to e^a/2 in double.
constexpr double kOneExpEnough = 0x1.57cd0e702682p+4; // 21.487562597358306

// The routines' own exponential (ExpRoutineParts), e^(x + xl) for x in [-711, 711], the
// power of two applied in two halves, so that it stays inside the double range.
inline double HyperExpScalar(double x, double xl = 0.0) {
    ExpParts64 e = ExpRoutineParts(x, xl);
    int m1 = e.m / 2;
    return (e.hi + e.lo) * Pow2D(m1) * Pow2D(e.m - m1);
}

// e^a/2 for a in [0, 711]: the exponential of a - ln2, ln2 in the reduction's two parts
// (a - the head is exact for a >= 1, as the head ends at 2^-37).
inline double HalfExpScalar(double a) {
    constexpr double kLn2Hi = 64 * ExpStep64::kStepHi, kLn2Lo = 64 * ExpStep64::kStepLo;
    return HyperExpScalar(a - kLn2Hi, -kLn2Lo);
}

// The series of sinh on |x| <= 1/2, by a scalar Horner over the vector's coefficients.
inline double SinhSeriesScalar(double x) {
    return x + x * (x * x) * HornerScalar<SinhSeriesHA>(x * x);
}

template <class T>
inline bool ExponentAllOnes(T x) {
    return (BitsOf(x) & Format<T>::kExpField) == Format<T>::kExpField;
}

template <class T>
inline int CoshScalar(const T* in, T* y) {
    T x = *in;
    if (ExponentAllOnes(x)) {
        *y = x * x;
        return status::kNone;
    }
    double a = std::fabs(double(x));
    if (a < 0x1p-53) {
        *y = T(1.0 + a);
        return status::kNone;
    }
    if (a >= HyperLimits<T>::kOver) {
        *y = T(Keep(DBL_MAX) * DBL_MAX);
        return status::kOverflow;
    }
    if (a >= kOneExpEnough)
        *y = T(HalfExpScalar(a));
    else
        *y = T(0.5 * (HyperExpScalar(a) + HyperExpScalar(-a)));
    return status::kNone;
}

template <class T>
inline int SinhScalar(const T* in, T* y) {
    T x = *in;
    if (ExponentAllOnes(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (std::fpclassify(x) == FP_SUBNORMAL) {
        *y = T(double(x) + double(x) * Keep(DBL_MIN));
        return status::kNone;
    }
    double a = std::fabs(double(x));
    if (a < 0x1p-53) {
        *y = T(double(x) * (1.0 + DBL_MIN));
        return status::kNone;
    }
    if (a >= HyperLimits<T>::kOver) {
        *y = T(Keep(DBL_MAX) * double(x));
        return status::kOverflow;
    }
    double v;
    if (a >= kOneExpEnough)
        v = HalfExpScalar(a);
    else if (a < kSinhSeriesEnd)
        v = SinhSeriesScalar(a);
    else
        v = 0.5 * (HyperExpScalar(a) - HyperExpScalar(-a));
    *y = T(std::copysign(v, double(x)));
    return status::kNone;
}

// Tanh reports nothing: only the exponent-all-ones lanes come here.
template <class T>
inline int TanhScalar(const T* in, T* y) {
    T x = *in;
    if (std::isnan(x))
        *y = x + x;
    else
        *y = std::copysign(T(1), x);
    return status::kNone;
}

} // namespace brenn::vm

#endif
