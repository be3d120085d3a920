/* The logarithm and the exponential in the x87 extended format for the double gamma
 * rows, in place of the C library's long double functions, which cost three to five
 * times as much. They need the x87 precision field at 64 bits (the kernels' entry rule)
 * and finite, positive, normal arguments; errors about 2^-63 relative (the logarithm:
 * absolute, and relative where Log1p takes its series).
 *   Log(x):   x = 2^e m, m in [1, 2); with R the 10-bit reciprocal of m's 1/128 cell,
 *             ln x = e ln2 - ln R + ln(1 + u), u = m R - 1 (exact for m of 54 bits),
 *             |u| < 2^-7.4, by its Taylor series to u^10.
 *   Log1p(g): the series itself for |g| < 2^-7 (relative accuracy near 0), else Log(1 + g).
 *   Exp(y):   y = (64 k + j) ln2/64 + r, |r| <= ln2/128; e^y = 2^k 2^(j/64) e^r, e^r by
 *             its Taylor series to r^7. */
#ifndef BRENN_VECMATH_GAMMA_EXT_MATH_H
#define BRENN_VECMATH_GAMMA_EXT_MATH_H

#include <stdint.h>
#include <string.h>

#include "vecmath/gamma/ext_tables.h"
#include "vecmath/gamma/poly.h"

namespace brenn::vm::gamma::ext {

struct Bits80 {
    uint64_t mantissa; // explicit integer bit on top
    uint16_t signExponent;
};

inline Bits80 BitsOf(long double x) {
    Bits80 b;
    memcpy(&b, &x, sizeof b);
    return b;
}
inline long double FromBits(uint64_t mantissa, uint16_t signExponent) {
    long double x = 0;
    Bits80 b{mantissa, signExponent};
    memcpy(&x, &b, sizeof b);
    return x;
}

// ln(1 + u) - u for |u| < 2^-7: u^2 (-1/2 + u/3 - ... - u^8/10).
inline long double Log1pTail(long double u) {
    static constexpr long double kC[9] = {-1.0L / 2, 1.0L / 3,  -1.0L / 4, 1.0L / 5,  -1.0L / 6,
                                          1.0L / 7,  -1.0L / 8, 1.0L / 9,  -1.0L / 10};
    return u * u * Poly(u, kC);
}

inline long double Log(long double x) {
    // ln 2 in two parts, the head of 44 bits so that e times it is exact
    constexpr long double kLn2Hi = 0xb17217f7d1d00000p-64L;
    constexpr long double kLn2Lo = -0x8654361c4c67fc0dp-112L;
    Bits80 b = BitsOf(x);
    int e = static_cast<int>(b.signExponent & 0x7FFF) - 16383;
    long double m = FromBits(b.mantissa, 16383);
    int j = static_cast<int>((b.mantissa >> 56) & 127);
    long double u = m * kLogRecip[j] - 1;
    long double de = e;
    return de * kLn2Hi + (kLogOfRecip[j] + (de * kLn2Lo + (u + Log1pTail(u))));
}

inline long double Log1p(long double g) {
    if (g < 0x1p-7L && g > -0x1p-7L) return g + Log1pTail(g);
    return Log(1 + g);
}

inline long double Exp(long double y) {
    constexpr long double kInvStep = 0xb8aa3b295c17f0bcp-57L;  // 64 / ln 2
    constexpr long double kStepHi = 0xb17217f7d2000000p-70L;   // ln2/64, 40 bits
    constexpr long double kStepLo = -0xc21950d871319ff0p-112L; // the rest
    constexpr long double kShifter = 0x1.8p63L;
    long double s = y * kInvStep + kShifter;
    long double t = s - kShifter; // y / step rounded to an integer
    int64_t n = static_cast<int64_t>(t);
    long double r = (y - t * kStepHi) - t * kStepLo;
    long double p = 1.0L / 5040;
    p = p * r + 1.0L / 720;
    p = p * r + 1.0L / 120;
    p = p * r + 1.0L / 24;
    p = p * r + 1.0L / 6;
    p = p * r + 1.0L / 2;
    p = 1 + (r + r * r * p);
    int k = static_cast<int>(n >> 6);
    long double scale = FromBits(0x8000000000000000ull, static_cast<uint16_t>(16383 + k));
    return kExp2Steps[n & 63] * p * scale;
}

} // namespace brenn::vm::gamma::ext

#endif
