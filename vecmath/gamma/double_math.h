/* The logarithm and sin(pi r) in double for the single gamma rows, whose working type
 * is double: inline, in place of the C library's functions, whose calls took half the
 * single LGamma's time. Finite, positive, normal arguments for the logarithms (anything
 * else goes to the C library), |r| <= 1/2 for the sine.
 *   Log(x):   x = 2^e m, m in [1, 2); with R the 10-bit reciprocal of m's 1/128 cell (the
 *             extended logarithm's table, ext_tables.h), ln x = e ln2 - ln R + ln(1 + u),
 *             u = m R - 1 with one rounding (m's head of 43 bits times R is exact, and so
 *             is its difference from 1), |u| < 2^-7.4, ln(1 + u) - u by its Taylor series
 *             to u^8. Error about 2^-52 relative, and 2^-61 absolute near x = 1, where
 *             the cell's -ln R and u cancel (as in the extended logarithm).
 *   Log1p(g): the series itself for |g| < 2^-7 (relative accuracy near 0), else Log(1 + g).
 *   SinPi(r): r P(r^2), P of degree 7 by tools/gamma/sinpi_double.sollya (2^-52.3
 *             relative). */
#ifndef BRENN_VECMATH_GAMMA_DOUBLE_MATH_H
#define BRENN_VECMATH_GAMMA_DOUBLE_MATH_H

#include <math.h>
#include <stdint.h>
#include <string.h>

#include "vecmath/gamma/ext_math.h"

namespace brenn::vm::gamma::dbl {

[[gnu::always_inline]] inline uint64_t Bits(double x) {
    uint64_t b;
    memcpy(&b, &x, sizeof b);
    return b;
}
[[gnu::always_inline]] inline double FromBits(uint64_t b) {
    double x;
    memcpy(&x, &b, sizeof x);
    return x;
}

// ln(1 + u) - u for |u| < 2^-7: u^2 (-1/2 + u/3 - ... + u^6/8), by Estrin's scheme (the
// first term left out, u^9/9, is below 2^-59 of u).
[[gnu::always_inline]] inline double Log1pTail(double u) {
    double u2 = u * u;
    double u4 = u2 * u2;
    double p01 = -1.0 / 2 + u * (1.0 / 3);
    double p23 = -1.0 / 4 + u * (1.0 / 5);
    double p45 = -1.0 / 6 + u * (1.0 / 7);
    double p6 = -1.0 / 8;
    return u2 * ((p01 + u2 * p23) + u4 * (p45 + u2 * p6));
}

[[gnu::always_inline]] inline double Log(double x) {
    // ln 2 in two parts, the head of 32 bits so that e times it is exact
    constexpr double kLn2Hi = 0x1.62e42fee00000p-1;
    constexpr double kLn2Lo = 0x1.a39ef35793c76p-33;
    const uint64_t b = Bits(x);
    const uint64_t be = b >> 52;
    if (be - 1 >= 0x7FE) [[unlikely]]
        return log(x);
    const int j = static_cast<int>((b >> 45) & 127);
    const double m = FromBits((b & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
    const double mh = FromBits(Bits(m) & ~uint64_t(0x3FF));
    const double r = kLogRecip[j];
    const double u = (mh * r - 1) + (m - mh) * r;
    const Ext2& t = ext::kLogOfRecip2.v[j];
    const double e = static_cast<double>(static_cast<int>(be) - 1023);
    return (e * kLn2Hi + t.hi) + ((e * kLn2Lo + t.lo) + (u + Log1pTail(u)));
}

[[gnu::always_inline]] inline double Log1p(double g) {
    if (g < 0x1p-7 && g > -0x1p-7) return g + Log1pTail(g);
    return Log(1 + g);
}

[[gnu::always_inline]] inline double SinPi(double r) {
    // by tools/gamma/sinpi_double.sollya
    static constexpr double kS[8] = {
        0x1.921fb54442d17p1,  -0x1.4abbce625bd4bp2,  0x1.466bc67750a3fp1,   -0x1.32d2cce1612b5p-1,
        0x1.507832417bce6p-4, -0x1.e3062119b6071p-8, 0x1.e89c7aa14122dp-12, -0x1.625b1709dece6p-16};
    double s = r * r;
    double s2 = s * s;
    double s4 = s2 * s2;
    double p = ((kS[0] + s * kS[1]) + s2 * (kS[2] + s * kS[3])) +
               s4 * ((kS[4] + s * kS[5]) + s2 * (kS[6] + s * kS[7]));
    return r * p;
}

} // namespace brenn::vm::gamma::dbl

#endif
