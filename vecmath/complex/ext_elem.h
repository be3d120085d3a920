/* The complex exponential and logarithm of one element in 80-bit extended precision,
 * with the special values of C99 Annex G (cexp G.6.3.1, clog G.6.3.2): the scalar
 * routines of Exp and Ln, and the steps of Log10, are made from them.
 * Double parts never overflow or underflow in the extended range, so the finite case
 * needs no scaling; the caller rounds the parts once to its type. The quarter-turn
 * reduction of the trigonometric functions' arguments serves the rows of extended.h too. */
#ifndef BRENN_VECMATH_COMPLEX_EXT_ELEM_H
#define BRENN_VECMATH_COMPLEX_EXT_ELEM_H

#include <math.h>

#include "vecmath/complex/ext_core.h"
#include "vecmath/complex/ext_phase.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"

namespace brenn::vm::cx {

// pi/2 in three parts, the first two of 32 bits, so that their products with a count of
// quarter turns below 2^30 are exact (Cody and Waite).
constexpr long double kPio2A = 1.570796326734125614166259765625L;
constexpr long double kPio2B = 6.077100506303965976595549136618501506746e-11L;
constexpr long double kPio2C = 2.022266248795950732376519042844277273704e-21L;

// v brought to [-pi/4, pi/4] by whole quarter turns, added to j; the rest keeps v's
// relative accuracy (the first difference is exact, the others round relative to the
// result). Beyond 2^30 v stays as it is, for sincosl's own reduction.
inline long double QuarterReduced(long double v, int& j) {
    if (!(fabsl(v) > 0.785398163397448309615660845819875721L && fabsl(v) < 0x1p30L)) return v;
    // the nearest integer by the 64-bit significand's rounding (rintl's instruction is slow)
    const long double q =
        (v * 0.636619772367581343075535053490057448L + 0x1.8p63L) - 0x1.8p63L;
    j += int(q);
    return ((v - q * kPio2A) - q * kPio2B) - q * kPio2C;
}

// sin and cos of a finite y: below 2^26 by the table-driven core (ext_core.h), a zero
// kept with its sign; beyond, from the quarter-turn reduction and glibc's sincosl,
// which reduces anything beyond pi/4 by its slow general method.
[[gnu::always_inline]] inline void SinCosX(long double y, long double& s, long double& c) {
    if (y == 0) {
        s = y, c = 1;
        return;
    }
    if (__builtin_expect(fabsl(y) < 0x1p26L, 1)) return SinCosCore(y, s, c);
    int j = 0;
    long double sr, cr;
    sincosl(QuarterReduced(y, j), &sr, &cr);
    switch (j & 3) {
    case 0:
        s = sr, c = cr;
        break;
    case 1:
        s = cr, c = -sr;
        break;
    case 2:
        s = -sr, c = -cr;
        break;
    default:
        s = -cr, c = sr;
        break;
    }
}

// exp(a) (cos b + i sin b). Status: an infinite b beside a finite or +inf a is a domain
// error (NaN with the invalid flag); otherwise none.
inline int CExpX(long double a, long double b, long double& re, long double& im) {
    if (b == 0) { // exp(a) + i b, a NaN included
        re = __builtin_isnan(a) ? a + a : expl(a);
        im = b;
        return status::kNone;
    }
    if (__builtin_isnan(a)) {
        re = im = a + b;
    } else if (__builtin_isinf(a) && a < 0) { // +0 (cos b + i sin b); signs unspecified
        long double s = __builtin_isfinite(b) ? sinl(b) : 1,
                    c = __builtin_isfinite(b) ? cosl(b) : 1;
        re = __builtin_copysignl(0, c);
        im = __builtin_copysignl(0, s);
    } else if (__builtin_isfinite(b)) { // finite b, a finite or +inf
        long double e = expl(a);
        re = e * cosl(b);
        im = e * sinl(b);
    } else { // b infinite or NaN: NaN, invalid for an infinity; +inf a keeps its real part
        re = __builtin_isinf(a) ? a : Keep(b - b);
        im = Keep(b - b);
        if (__builtin_isinf(b)) return status::kDomain;
    }
    return status::kNone;
}

// ln|z| of finite parts, not both zero (the real part of CLogX below), x the larger
// magnitude and w the smaller. Near |z| = 1 (x in [1/2, 2]) log1p(g)/2 with
// g = x^2 + w^2 - 1 from the parts' 32-bit halves (Veltkamp's split by 2^32 + 1): xh^2 - 1
// and the five other partial products are exact, and their sum by a cascade of exact
// sums whose errors are added last is g within about 2^-64 of itself, where the rounded
// (x - 1)(x + 1) + w^2 loses g's relative accuracy when w^2 is near 1 - x^2. Elsewhere
// ln(x^2 + w^2)/2.
inline long double LogAbsX(long double a, long double b) {
    long double x = fabsl(a), w = fabsl(b);
    if (x < w) {
        long double t = x;
        x = w;
        w = t;
    }
    if (!(x >= 0.5L && x <= 2.0L)) return 0.5L * LnX(x * x + w * w);
    constexpr long double kSplit = 4294967297.0L; // 2^32 + 1
    const long double tx = x * kSplit, tw = w * kSplit;
    const long double xh = tx - (tx - x), wh = tw - (tw - w);
    const long double xl = x - xh, wl = w - wh;
    const long double parts[5] = {wh * wh, 2 * (xh * xl), 2 * (wh * wl), xl * xl, wl * wl};
    long double g = xh * xh - 1, err = 0;
    for (long double p : parts) {
        const long double s = g + p, pp = s - g;
        err += (g - (s - pp)) + (p - pp);
        g = s;
    }
    return 0.5L * Log1pX(g + err);
}

// ln|z| + i arg z. Near |z| = 1 the real part is log1p(x^2 + w^2 - 1)/2 of the larger
// magnitude x and the smaller w, the argument summed exactly (LogAbsX), so that it keeps
// its relative accuracy; elsewhere ln(x^2 + w^2)/2. An infinite part gives +inf, the phase by the quadrant rules of
// atan2; zero gives -inf by a division, with status 2.
inline int CLogX(long double a, long double b, long double& re, long double& im) {
    if (__builtin_isinf(a) || __builtin_isinf(b)) {
        re = __builtin_infl();
        im = atan2l(b, a); // NaN beside an infinity stays NaN
    } else if (__builtin_isnan(a) || __builtin_isnan(b)) {
        re = im = a + b;
    } else if (a == 0 && b == 0) {
        re = Keep(-1.0L) / Keep(0.0L);
        im = Phase(b, a);
        return status::kSingularity;
    } else {
        re = LogAbsX(a, b);
        im = Phase(b, a);
    }
    return status::kNone;
}

} // namespace brenn::vm::cx

#endif
