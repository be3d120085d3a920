/* The extended-precision sine, cosine, hyperbolic sine and cosine of the complex rows
 * computed element by element (extended.h), in place of the C library's long double
 * functions, which cost several times as much (the unit's transcendental instructions
 * and general reductions). They need the x87 precision field at 64 bits (the kernels'
 * entry rule) and finite arguments within the bounds told below; errors a few extended
 * ulps, so that a part rounded to double is within about half an ulp and 2^-9 of one.
 * Constants and tables are exact pairs of doubles (gamma/ext_const.h: an 80-bit load is
 * microcoded), the polynomials' coefficients fitted by tools/complex/ext_core.sollya.
 *   SinCosCore(y), |y| < 2^26: y = k pi/64 + r, |r| <= pi/128, with pi/64 in three
 *     parts (the first two of 32 bits, so that k times them is exact and the first
 *     difference too); with a = (k mod 128) pi/64 from one table of sines,
 *       sin y = sin a + (sin a (cos r - 1) + cos a sin r)
 *       cos y = cos a + (cos a (cos r - 1) - sin a sin r)
 *     and short polynomials in r. Where sin a or cos a is 0 the other is +-1 and the
 *     result is +-sin r or +-cos r, which keeps its relative accuracy near the zeros.
 *   CoshSinhCore(x), |x| <= 11000: near zero (|x| < 1/4) sinh x by its polynomial and
 *     cosh x = sqrt(1 + sinh^2 x); above, from E = e^|x| (gamma/ext_math.h) and 1/E. */
#ifndef BRENN_VECMATH_COMPLEX_EXT_CORE_H
#define BRENN_VECMATH_COMPLEX_EXT_CORE_H

#include <stdint.h>

#include "vecmath/complex/ext_core_tables.h"
#include "vecmath/gamma/ext_math.h"

namespace brenn::vm::cx {

namespace core {
using gamma::Join;
using gamma::Poly;
inline constexpr auto kSinSteps2 = gamma::Split2(kSinSteps);
inline constexpr gamma::Ext2 kPiStepC2 = gamma::Split2(kPiStepC);
inline constexpr auto kSinP = gamma::SplitPoly<1>(kSinRest);
inline constexpr auto kCosP = gamma::SplitPoly<1>(kCosRest);
inline constexpr auto kSinhP = gamma::SplitPoly<1>(kSinhSmall);

// The square root by the unit's instruction (correctly rounded; sqrtl adds a test for
// errno).
[[gnu::always_inline]] inline long double SqrtX(long double v) {
    long double r;
    __asm__("fsqrt" : "=t"(r) : "0"(v));
    return r;
}
} // namespace core

// sin y and cos y for |y| < 2^26.
[[gnu::always_inline]] inline void SinCosCore(long double y, long double& s, long double& c) {
    constexpr double kShifter = 0x1.8p63;
    const long double t = (y * kStepsPerRadian + kShifter) - kShifter; // the nearest step
    const int k = int(static_cast<int64_t>(t) & 127);
    const long double r = ((y - t * kPiStepA) - t * kPiStepB) - t * core::Join(core::kPiStepC2);
    const long double r2 = r * r;
    const long double sr = r + r * r2 * core::Poly(r2, core::kSinP);
    const long double cm = r2 * core::Poly(r2, core::kCosP); // cos r - 1
    const long double sa = core::Join(core::kSinSteps2.v[k]);
    const long double ca = core::Join(core::kSinSteps2.v[(k + 32) & 127]);
    s = sa + (sa * cm + ca * sr);
    c = ca + (ca * cm - sa * sr);
}

// cosh x and sinh x for |x| <= 11000.
[[gnu::always_inline]] inline void CoshSinhCore(long double x, long double& ch, long double& sh) {
    const long double a = __builtin_fabsl(x);
    if (a < 0.25L) {
        sh = x + x * (x * x) * core::Poly(x * x, core::kSinhP);
        ch = core::SqrtX(1 + sh * sh);
        return;
    }
    const long double e = gamma::ext::Exp(a), h = 0.5L / e;
    ch = 0.5L * e + h;
    sh = __builtin_copysignl(0.5L * e - h, x);
}

} // namespace brenn::vm::cx

#endif
