/* The core of the single Sqrt and InvSqrt scalar routines, for a positive finite x that
 * their bodies leave out (denormals, the top of the range): x in double, a denormal
 * times 2^200 (1.6069380442589903e60), is m * 2^(2q + p) with m in [1, 2) and p the
 * exponent's low bit; M = m * 2^p (m times the parity's constant row) and the seed r =
 * 1/sqrt(M) from the table at m's top eight bits (sqrt_tables.h); then Goldschmidt on M
 * and r, g = M*r, h = r/2, e = 0.5 - g*h, each step g + g*e and h + h*e with e formed
 * again, so that g goes to sqrt(M) and h to 1/(2 sqrt(M)).
 *
 * One step from the eight-bit seed leaves 2^-17.4 (68 ulp of a single root); two leave
 * 2^-34, within 0.5 ulp and 2^-11 of it but misround 304 of the inputs that come here;
 * after three, only the roundings of double are left, and every such input (all
 * denormals, the top 4095 values) gets its correctly rounded root and reciprocal root. */
#ifndef BRENN_VECMATH_ARITH_ROOT_SCALAR_H
#define BRENN_VECMATH_ARITH_ROOT_SCALAR_H

#include "vecmath/arith/sqrt_tables.h"
#include "vecmath/frame/constants.h"
#include "vecmath/frame/scalar.h"

namespace brenn::vm {

// sqrt(x) = g * 2^q and 1/sqrt(x) = 2h * 2^-q.
struct RootParts {
    double g, h;
    int q;
};

inline constexpr double kParityRow[2] = {1.0, 2.0};
inline constexpr int kRootScalarSteps = 3;

inline RootParts SingleRootSteps(float x) {
    double xd = x;
    int scale = 0;
    if ((BitsOf(x) & Format<float>::kExpField) == 0) {
        xd *= 0x1p200;
        scale = -100;
    }
    uint64_t b = BitsOf(xd);
    int e = int(b >> 52) - 1023;
    int p = e & 1;
    double m = FromBits<double>((b & Format<double>::kMant) | Format<double>::kOne);
    double mm = m * kParityRow[p];
    double r = kSqrtSeeds[256 * p + int((b >> 44) & 0xFF)];
    double g = mm * r, h = 0.5 * r;
    for (int k = 0; k < kRootScalarSteps; ++k) {
        double d = 0.5 - g * h;
        g = g + g * d;
        h = h + h * d;
    }
    return {g, h, (e - p) / 2 + scale};
}

// 2^k for k in double's normal range.
inline double TwoTo(int k) {
    return FromBits<double>(uint64_t(k + 1023) << 52);
}

} // namespace brenn::vm

#endif
