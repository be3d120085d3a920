/* The scalar routines of Asinh, Acosh and Atanh, one text for both precisions, in double
 * on the scalar logarithm of the explog family (LnScalarD). The vector bodies leave them
 * the lanes outside their domains, infinities and NaN; a finite lane inside the domain
 * gets the value by the log1p form, ln(1 + u) with the rounding of 1 + u recovered. */
#ifndef BRENN_VECMATH_HYPER_INVERSE_SCALAR_H
#define BRENN_VECMATH_HYPER_INVERSE_SCALAR_H

#include <cmath>

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"
#include "vecmath/hyper/log_pair.h"

namespace brenn::vm {

// ln(1 + u) for u >= 0.
inline double Log1pScalarD(double u) {
    double w = 1.0 + u;
    double c = u <= 1.0 ? u - (w - 1.0) : 1.0 - (w - u);
    return LnScalarD(w) + c / w;
}

constexpr double kLn2D = 0x1.62e42fefa39efp-1;

// Asinh never reports: NaN quieted, the infinities themselves.
template <class T>
inline int AsinhScalar(const T* in, T* y) {
    T x = *in;
    double a = std::fabs(double(x)), v;
    if (!std::isfinite(x) || a < 0x1p-28)
        v = a + a; // NaN quieted, inf, and 2a for the tiny (halved below)
    else if (a > kSquareEnd)
        v = 2.0 * (LnScalarD(a) + kLn2D);
    else
        v = 2.0 * Log1pScalarD(a + a * a / (1.0 + std::sqrt(1.0 + a * a)));
    *y = T(std::copysign(0.5 * v, double(x)));
    return status::kNone;
}

// Acosh: NaN quieted (status 0); below 1, -inf included, NaN with the domain status;
// +inf itself.
template <class T>
inline int AcoshScalar(const T* in, T* y) {
    T x = *in;
    if (std::isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x < T(1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    double xd = double(x), d = xd - 1.0;
    if (std::isinf(x))
        *y = x;
    else if (xd > kSquareEnd)
        *y = T(LnScalarD(xd) + kLn2D);
    else
        *y = T(Log1pScalarD(d + std::sqrt(d * (xd + 1.0))));
    return status::kNone;
}

// Atanh: NaN quieted; +-1 the infinity of x's sign by a division (the divide-by-zero
// flag) with the singularity status; |x| above 1 NaN with the domain status.
template <class T>
inline int AtanhScalar(const T* in, T* y) {
    T x = *in;
    if (std::isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    T a = std::fabs(x);
    if (a == T(1)) {
        *y = x / Keep(T(0));
        return status::kSingularity;
    }
    if (a > T(1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    double ad = double(a);
    *y = T(std::copysign(0.5 * Log1pScalarD(2.0 * ad / (1.0 - ad)), double(x)));
    return status::kNone;
}

} // namespace brenn::vm

#endif
