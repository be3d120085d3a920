/* Scalar natural logarithms for set-up code (random-number distributions and others):
 * __qesdLn in double, __qessLn in single, within an ulp of the format, with the usual
 * special values (ln 0 = -inf, ln of a negative = NaN, ln +inf = +inf) and no status or
 * report. Internal to the library. */
#ifndef BRENN_VECMATH_EXPLOG_SCALAR_LOG_H
#define BRENN_VECMATH_EXPLOG_SCALAR_LOG_H

extern "C" {
__attribute__((visibility("hidden"))) double __qesdLn(double x);
__attribute__((visibility("hidden"))) float __qessLn(float x);
}

#endif
