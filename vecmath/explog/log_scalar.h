/* The scalar routines of the logarithm family, shared by Ln, Log10 and Log2 in both
 * types: NaN stays (quieted), +inf stays, -inf and negatives give NaN with the domain
 * status, zero of either sign gives -inf with the singularity status (by a division,
 * which raises the divide-by-zero flag), and a positive finite x (denormals included)
 * the value of `fn`. In double the value comes from the x87 fyl2x at extended
 * precision; in single from the double core, rounded once. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_SCALAR_H
#define BRENN_VECMATH_EXPLOG_LOG_SCALAR_H

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {

template <class T, class Fn>
inline int LogScalar(T x, T* y, Fn fn) {
    return PoleAtZeroScalar(
        x, y, [](T) { return T(-1) / Keep(T(0)); }, x, fn);
}

// factor * log2(x) at extended precision (fyl2x), x positive finite; denormal doubles
// are normal numbers in the extended format, so no scaling is needed.
inline double Fyl2x(double x, long double factor) {
    long double r;
    __asm__("fyl2x" : "=t"(r) : "0"((long double)x), "u"(factor) : "st(1)");
    return double(r);
}

constexpr long double kLn2L = 0.693147180559945309417232121458176568L;
constexpr long double kLog10Of2L = 0.301029995663981195213738894724493027L;

} // namespace brenn::vm

#endif
