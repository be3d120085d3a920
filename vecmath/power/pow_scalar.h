/* The scalar routines of Pow, Powr and Powx for one element, both types: the special
 * values in a fixed order, then |x|^y in double (pow_core.h) with the sign of an odd
 * power.
 *
 * Pow, in this order:
 *   1. y = +1 or +-0, x = +1, or x or y NaN: x = 1 or y = 0 gives 1.0 even beside a
 *      NaN; otherwise x*y (x itself for y = 1, a NaN quieted);
 *   2. x = +-0: the sign factor (-1 for a negative zero and an odd y) times x*x for
 *      y > 0, over x*x for y < 0: a signed infinity with the domain status (1), not
 *      the singularity status;
 *   3. x = -1 and y an integer or infinite: -1 for odd y, else 1;
 *   4. x negative and finite, y finite and not an integer: NaN, domain status;
 *   5. other infinities: 0 or infinity by the sign of y and whether |x| is above 1
 *      (with the sign factor for x = -inf);
 *   6. the value, with the sign factor for negative x (for single, PowValue: a denormal
 *      x scaled by 2^64, its exponent taken back). A result beyond the range
 *      overflows to infinity, one below it is zero or denormal. The double rows report
 *      them (overflow 3, underflow 4 for a zero or denormal result); the single rows
 *      return status 0, and only the hardware's flags show them.
 * Powr has the domain x >= 0: after the NaN cases of step 1 any negative x gives NaN
 * with the domain status (x^0 too), and no integer class is taken, so -0 is +0. */
#ifndef BRENN_VECMATH_POWER_POW_SCALAR_H
#define BRENN_VECMATH_POWER_POW_SCALAR_H

#include <cfloat>
#include <limits>

#include "vecmath/frame/scalar.h"
#include "vecmath/power/pow_core.h"

namespace brenn::vm {

enum class PowDomain { Real, NonNegative };

// The integer class of y: 0 not an integer (also |y| below 1, infinities, NaN), 1 odd,
// 2 even. At 2^(p+1) and above every value is even; below, the bits of the significand
// under the units bit are the fraction, and the units bit tells odd from even.
template <class T>
inline int IntegerClass(T y) {
    using F = Format<T>;
    using U = UInt<T>;
    const U a = BitsOf(y) & F::kAbs;
    if (a < F::kOne || a >= F::kExpField) return 0;
    const int e = int(a >> F::kMantBits) - F::kBias;
    if (e > F::kMantBits) return 2;
    const U mant = (a & F::kMant) | (U(1) << F::kMantBits);
    const int fraction = F::kMantBits - e; // bits below the units bit
    if (mant & ((U(1) << fraction) - 1)) return 0;
    return (mant >> fraction) & 1 ? 1 : 2;
}

// |x|^y in single: a denormal x is scaled by 2^64 (exact) and its exponent taken back
// in the logarithm; w = y*ln x and e^w are carried in one double, which holds the
// extra bits the value needs; a result beyond the single range is infinity by the
// product of the largest values (overflow and inexact raised, no status); one below it is
// zero or a denormal from the one rounding of the double value, with the hardware's
// underflow flag.
// The logarithm and e^w are not the single steps with a head and tail split by 4097,
// log2(e) in two parts (head 0x3FB88000), the polynomial -0.3471936, 0.1605812,
// -0.08355451, 0.0008941205 and 2^f by 98304 and 0.6931472, 0.2402265, 0.05550411:
// that polynomial's terms follow those of log2(1 + t*ln2) in t, their quadratic term
// 0.18 % off, which leaves log2 x no better than 2^-17.7 relative on any interval
// around 0, where the result, within an ulp for |w| up to 104, needs about 2^-33.
inline float PowValue(float ax, float y) {
    double k0 = 0.0;
    if (ax < FLT_MIN) {
        ax *= 0x1p64f;
        k0 = -64.0;
    }
    const double v = PowMagnitude<true>(double(ax), double(y), k0);
    if (v >= 0x1.ffffffp127) return Keep(FLT_MAX) * FLT_MAX;
    return float(v);
}
inline double PowValue(double ax, double y) {
    return PowMagnitude<false>(ax, y);
}

template <PowDomain D, class T>
inline int PowScalar(T x, T y, T* r) {
    constexpr T kSignFactor[2] = {T(1), T(-1)};
    // Step 1, with Powr's domain test between its NaN part and the rest.
    const bool nan = __builtin_isnan(x) || __builtin_isnan(y);
    if constexpr (D == PowDomain::NonNegative) {
        if (!nan && x < T(0)) {
            *r = Keep(T(0)) / Keep(T(0));
            return status::kDomain;
        }
    }
    if (nan || y == T(1) || y == T(0) || x == T(1)) {
        *r = (x == T(1) || y == T(0)) ? T(1) : x * y;
        return status::kNone;
    }
    const int cls = D == PowDomain::Real ? IntegerClass(y) : 0;
    const bool negative = BitsOf(x) >> (sizeof(T) * 8 - 1);
    const T sign = kSignFactor[negative && cls == 1];
    if (x == T(0)) {
        if (y > T(0)) {
            *r = sign * (x * x);
            return status::kNone;
        }
        *r = sign / Keep(x * x);
        return status::kDomain;
    }
    if (x == T(-1) && (cls != 0 || __builtin_isinf(y))) {
        *r = kSignFactor[cls == 1];
        return status::kNone;
    }
    if (x < T(0) && !__builtin_isinf(x) && !__builtin_isinf(y) && cls == 0) {
        *r = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    const T ax = __builtin_fabs(x);
    if (__builtin_isinf(x) || __builtin_isinf(y)) {
        // Infinity for y > 0 with |x| above 1 and for y < 0 with |x| below 1; else 0
        // (|x| = 1 with an infinite y gives 1).
        const T inf = __builtin_inf();
        if (ax == T(1)) {
            *r = T(1);
        } else {
            const bool big = (ax > T(1)) == (y > T(0));
            *r = sign * (big ? inf : T(0));
        }
        return status::kNone;
    }
    *r = sign * PowValue(ax, y);
    if constexpr (sizeof(T) == sizeof(double)) {
        const T m = __builtin_fabs(*r);
        if (m > std::numeric_limits<T>::max()) return status::kOverflow;
        if (m < std::numeric_limits<T>::min()) return status::kUnderflow;
    }
    return status::kNone;
}

} // namespace brenn::vm

#endif
