/* The logarithm and the exponential in the x87 extended format for the double gamma
 * rows, in place of the C library's long double functions, which cost three to five
 * times as much. They need the x87 precision field at 64 bits (the kernels' entry rule)
 * and finite, positive, normal arguments; errors about 2^-63 relative (the logarithm:
 * absolute, and relative where Log1p takes its series).
 *   Log(x):   x = 2^e m, m in [1, 2); with R the 10-bit reciprocal of m's 1/128 cell,
 *             ln x = e ln2 - ln R + ln(1 + u), u = m R - 1 (one rounding, 2^-64),
 *             |u| < 2^-7.4, by its Taylor series to u^10.
 *   Log1p(g): the series itself for |g| < 2^-7 (relative accuracy near 0), else Log(1 + g).
 *   Exp(y):   y = (64 k + j) ln2/64 + r, |r| <= ln2/128; e^y = 2^k 2^(j/64) e^r, e^r by
 *             its Taylor series to r^7. */
#ifndef BRENN_VECMATH_GAMMA_EXT_MATH_H
#define BRENN_VECMATH_GAMMA_EXT_MATH_H

#include <stdint.h>
#include <string.h>

#include "vecmath/gamma/ext_const.h"
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
[[gnu::always_inline]] inline long double FromBits(uint64_t mantissa, uint16_t signExponent) {
    long double x = 0;
    Bits80 b{mantissa, signExponent};
    memcpy(&x, &b, sizeof b);
    return x;
}

// The tables as exact pairs of doubles (ext_const.h).
inline constexpr auto kLogOfRecip2 = Split2(kLogOfRecip);
inline constexpr auto kExp2Steps2 = Split2(kExp2Steps);

// 2^k as a double for -1022 <= k <= 1023.
inline double Pow2(int k) {
    uint64_t b = static_cast<uint64_t>(k + 1023) << 52;
    double d;
    memcpy(&d, &b, sizeof d);
    return d;
}

// ln(1 + u) - u for |u| < 2^-7: u^2 (-1/2 + u/3 - ... - u^8/10); the coefficients past
// the first are doubles (their terms are below 2^-21 of the sum).
[[gnu::always_inline]] inline long double Log1pTail(long double u) {
    static constexpr long double kC[9] = {-1.0L / 2, 1.0L / 3,  -1.0L / 4, 1.0L / 5,  -1.0L / 6,
                                          1.0L / 7,  -1.0L / 8, 1.0L / 9,  -1.0L / 10};
    static constexpr auto kP = SplitPoly<0>(kC);
    return u * u * Poly(u, kP);
}

// The exponent e of a double x = 2^e m, m in [1, 2) (-1023 for zeros and denormals,
// 1024 for infinities and NaNs), and the cell j of m (its top seven fraction bits), from
// x's bits.
struct Cell {
    int e, j;
};
[[gnu::always_inline]] inline Cell CellOf(double x) {
    uint64_t b;
    memcpy(&b, &x, sizeof b);
    return {static_cast<int>(b >> 52) - 1023, static_cast<int>((b >> 45) & 127)};
}

// The exponent e and the significand m in [1, 2) of x = 2^e m, taken from x rounded to
// double (an 80-bit store and reload costs far more) and m = x 2^-e exact; x rounded up
// to a power of 2 leaves m just below 1, where the reduction below still holds. Outside
// the double's normal range the bits of x itself.
[[gnu::always_inline]] inline long double Reduce(long double x, int& e, int& j) {
    const Cell c = CellOf(static_cast<double>(x));
    if (c.e >= -1022 && c.e < 1023) [[likely]] {
        e = c.e;
        j = c.j;
        return x * Pow2(-e);
    }
    Bits80 xb = BitsOf(x);
    e = static_cast<int>(xb.signExponent & 0x7FFF) - 16383;
    j = static_cast<int>((xb.mantissa >> 56) & 127);
    return FromBits(xb.mantissa, 16383);
}

// ln 2 in two parts, the head of 44 bits so that e times it is exact
inline constexpr double kLn2Hi = 0xb17217f7d1d00000p-64;
inline constexpr long double kLn2Lo = -0x8654361c4c67fc0dp-112L;

// ln x = e ln2 - ln R + ln(1 + u) from the reduced m = x 2^-e, its cell j and e.
[[gnu::always_inline]] inline long double LogOfReduced(long double m, int e, int j) {
    long double u = m * kLogRecip[j] - 1;
    long double de = e;
    return de * kLn2Hi +
           (Join(kLogOfRecip2.v[j]) + (de * static_cast<double>(kLn2Lo) + (u + Log1pTail(u))));
}

[[gnu::always_inline]] inline long double Log(long double x) {
    int e, j;
    long double m = Reduce(x, e, j);
    return LogOfReduced(m, e, j);
}

// LogOfReduced with m also given as md, m to within a few ulps of double: the terms of
// ln(1 + u) from u^6 on are summed in double in the SSE unit from ud = md R - 1 (|ud - u|
// a few 2^-53), beside the x87 head: they are below 2^-44, and their error below 2^-85.
[[gnu::always_inline]] inline long double LogOfReducedDouble(long double m, double md, int e, int j) {
    static constexpr long double kC[4] = {-1.0L / 2, 1.0L / 3, -1.0L / 4, 1.0L / 5};
    static constexpr auto kP = SplitPoly<0>(kC);
    static constexpr double kTail[5] = {-1.0 / 6, 1.0 / 7, -1.0 / 8, 1.0 / 9, -1.0 / 10};
    double ud = md * kLogRecip[j] - 1;
    double ud2 = ud * ud;
    double tail = (ud2 * ud2 * ud2) *
                  (kTail[0] + ud * (kTail[1] + ud * (kTail[2] + ud * (kTail[3] + ud * kTail[4]))));
    long double u = m * kLogRecip[j] - 1;
    long double de = e;
    return de * kLn2Hi + (Join(kLogOfRecip2.v[j]) +
                          (de * static_cast<double>(kLn2Lo) + (u + (u * u * Poly(u, kP) + tail))));
}

// Log of a positive normal x from the reduction of xd, x rounded to double or a value
// within a few ulps of it computed beside x: the rounding through memory that Log makes
// for its reduction is skipped, and the series' tail is summed from xd in double.
// m = x 2^-e may then stand by those ulps outside [1, 2) or its cell, which the series
// allows (as it does Log's own rounding up).
[[gnu::always_inline]] inline long double LogBeside(long double x, double xd) {
    const Cell c = CellOf(xd);
    const double scale = Pow2(-c.e);
    return LogOfReducedDouble(x * scale, xd * scale, c.e, c.j);
}

// Log of a positive finite double: e, j and m from x's own bits, where Log would round
// its 80-bit argument to double through memory for them, and the series' tail in double
// (LogOfReducedDouble).
[[gnu::always_inline]] inline long double LogOfDouble(double x) {
    const Cell c = CellOf(x);
    if (c.e == -1023) [[unlikely]]
        return Log(static_cast<long double>(x));
    uint64_t mb;
    memcpy(&mb, &x, sizeof mb);
    mb = (mb & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull;
    double m;
    memcpy(&m, &mb, sizeof m);
    return LogOfReducedDouble(m, m, c.e, c.j);
}

// ln m for a double m in [1, 2): Log without the reduction and the exponent's terms
// (the same value as Log(m)).
[[gnu::always_inline]] inline long double LogSignificand(double m) {
    const int j = CellOf(m).j;
    long double u = static_cast<long double>(m) * kLogRecip[j] - 1;
    return Join(kLogOfRecip2.v[j]) + (u + Log1pTail(u));
}

[[gnu::always_inline]] inline long double Log1p(long double g) {
    if (g < 0x1p-7 && g > -0x1p-7) return g + Log1pTail(g);
    return Log(1 + g);
}

[[gnu::always_inline]] inline long double Exp(long double y) {
    constexpr double kInvStep = 0x1.71547652b82fep+6;    // 64 / ln 2, to double
    constexpr double kStepHi = 0xb17217f7d2000000p-70;   // ln2/64, 40 bits
    constexpr double kStepLo = -0xc21950d871319ff0p-112; // the rest, to double
    constexpr double kShifter = 0x1.8p63;
    static constexpr long double kC[6] = {1.0L / 2,   1.0L / 6,   1.0L / 24,
                                          1.0L / 120, 1.0L / 720, 1.0L / 5040};
    static constexpr auto kP = SplitPoly<0>(kC);
    long double s = y * kInvStep + kShifter;
    long double t = s - kShifter; // y / step rounded to an integer
    int64_t n = static_cast<int64_t>(t);
    long double r = (y - t * kStepHi) - t * kStepLo;
    long double p = 1 + (r + r * r * Poly(r, kP));
    int k = static_cast<int>(n >> 6);
    long double v = Join(kExp2Steps2.v[n & 63]) * p;
    if (k >= -1022 && k <= 1023) [[likely]]
        return v * Pow2(k);
    return v * FromBits(0x8000000000000000ull, static_cast<uint16_t>(16383 + k));
}

} // namespace brenn::vm::gamma::ext

#endif
