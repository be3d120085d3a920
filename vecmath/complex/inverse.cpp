/* Acos, Asin, Acosh and Asinh of single (c) and double (z) complex vectors,
 * element by element in 80-bit extended precision (extended.h), one kernel for
 * every level, from one routine: the algorithm of Hull, Fairgrieve and Tang
 * ("Implementing the complex arcsine and arccosine functions using exception
 * handling", ACM TOMS 23, 1997) on x = |re|, y = |im|:
 *   R = |z + 1|, S = |z - 1|, A = (R + S)/2, B = x/A
 *   real part: asin B or acos B while B <= 0.6417; above, where they lose
 *     accuracy, atan of x/D or D/x with
 *       D = sqrt((A + x)/2 (y^2/(R + x + 1) + (S + 1 - x)))             (x <= 1)
 *       D = y sqrt((A + x)/2 (1/(R + x + 1) + 1/(S + x - 1)))           (x > 1)
 *   imaginary magnitude L = ln(A + sqrt(A^2 - 1)); while A <= 1.5 as
 *     log1p(Am1 + sqrt(Am1 (A + 1))) with A - 1 found without cancellation,
 *       Am1 = (y^2/(R + x + 1) + y^2/(S + 1 - x))/2                     (x < 1)
 *       Am1 = (y^2/(R + x + 1) + (S + x - 1))/2                          (x >= 1)
 * Double parts squared stay inside the extended range, so the scaling of the
 * algorithm's working-precision form is not needed. Fewer divisions, same quantities:
 * B <= 0.6417 is tested as x <= 0.6417 A, and there the angle is the arctangent of
 * x / sqrt((A - x)(A + x)) (ext_phase.h); D for x > 1 is y (A + x) / sqrt((R + x + 1)
 * (S + x - 1)) and Am1 for x < 1 is y^2 (A + 1) / ((R + x + 1)(S + 1 - x)), the two
 * fractions over one denominator. The signs then place the
 * result: acos reflects its real part about pi/2 for a negative re and gives the
 * imaginary part the sign opposite to im's; asin z = -i asinh(iz) and
 * asinh(x + iy) = L + i asin-angle with the signs of re and im; acosh is
 * |Im acos| + i Re acos with im's sign. The sign of a zero part picks the side of
 * the cuts (the real axis beyond +-1 for Acos and Asin, the imaginary axis beyond
 * +-i for Asinh, the real axis below 1 for Acosh).
 *
 * Special values follow C99 Annex G (cacos G.6.1.1, cacosh G.6.2.1, casinh
 * G.6.2.2): infinite parts give the angles of atan2 on the infinities (0, pi/4,
 * pi/2, 3pi/4, pi) beside an infinite magnitude; NaNs spread, except that cacos
 * and cacosh keep pi/2 for a zero real part and casinh a zero imaginary part. Nothing is
 * reported: none of the four has a pole or a domain error. */
#include <math.h>

#include "vecmath/complex/ext_core.h"
#include "vecmath/complex/ext_phase.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kPiOver2 = 1.57079632679489661923132169163975144L;

// The quantities of Hull, Fairgrieve and Tang for finite x, y >= 0: the real
// angle in its sine form (asin) and cosine form (acos), and L.
struct Hft {
    LD asinAngle, acosAngle, L;
};

[[gnu::always_inline]] inline Hft HftOf(LD x, LD y) {
    // pi/2 as a double and its double rest: no 80-bit load
    constexpr double kPio2Hi = 0x1.921fb54442d18p+0, kPio2Lo = 0x1.1a62633145c07p-54;
    const LD y2 = y * y;
    const LD R = core::SqrtX((x + 1) * (x + 1) + y2), S = core::SqrtX((x - 1) * (x - 1) + y2);
    const LD A = (R + S) * 0.5L;
    Hft h;
    if (x <= 0.6417 * A) { // B <= 0.6417
        // the angle's tangent B / sqrt(1 - B^2) = x / sqrt((A - x)(A + x)), below 0.84
        const LD a = AtanUnit(x / core::SqrtX((A - x) * (A + x)));
        h.asinAngle = a;
        h.acosAngle = kPio2Hi + (kPio2Lo - a);
    } else {
        // x > 1: 1/(R + x + 1) + 1/(S + x - 1) = 2 (A + x) / ((R + x + 1)(S + x - 1))
        const LD D = x <= 1
                         ? core::SqrtX(0.5L * (A + x) * (y2 / (R + x + 1) + (S + (1 - x))))
                         : y * (A + x) / core::SqrtX((R + x + 1) * (S + (x - 1)));
        // D = 0 on the real axis beyond 1: the angles are exact there (no division)
        h.asinAngle = D == 0 ? kPio2Hi + static_cast<LD>(kPio2Lo) : Phase(x, D);
        h.acosAngle = D == 0 ? 0 : Phase(D, x);
    }
    if (A <= 1.5L) {
        // x < 1: (y^2/(R + x + 1) + y^2/(S + 1 - x))/2 = y^2 (A + 1) / ((R + x + 1)(S + 1 - x))
        const LD am1 = x < 1 ? y2 * (A + 1) / ((R + x + 1) * (S + (1 - x)))
                             : 0.5L * (y2 / (R + x + 1) + (S + (x - 1)));
        h.L = Log1pX(am1 + core::SqrtX(am1 * (A + 1)));
    } else {
        h.L = LnX(A + core::SqrtX(A * A - 1));
    }
    return h;
}

[[gnu::always_inline]] inline int AcosOf(LD x, LD y, LD& re, LD& im) {
    if (__builtin_isnan(x) || __builtin_isnan(y)) {
        if (__builtin_isinf(x)) { // NaN +- i inf, the sign free
            re = y;
            im = -__builtin_infl();
        } else if (__builtin_isinf(y)) {
            re = x;
            im = -y;
        } else {
            re = x == 0 ? kPiOver2 : x + y;
            im = x + y;
        }
    } else if (__builtin_isinf(x) || __builtin_isinf(y)) {
        re = atan2l(fabsl(y), x);
        im = -__builtin_copysignl(__builtin_infl(), y);
    } else {
        Hft h = HftOf(fabsl(x), fabsl(y));
        // pi as a double and its double rest
        constexpr double kPiHi = 0x1.921fb54442d18p+1, kPiLo = 0x1.1a62633145c07p-53;
        re = __builtin_signbit(x) ? kPiHi + (kPiLo - h.acosAngle) : h.acosAngle;
        im = __builtin_copysignl(h.L, -y);
    }
    return status::kNone;
}

[[gnu::always_inline]] inline int AsinhOf(LD x, LD y, LD& re, LD& im) {
    if (__builtin_isnan(x) || __builtin_isnan(y)) {
        if (__builtin_isinf(x)) {
            re = x;
            im = y + y;
        } else if (__builtin_isinf(y)) { // +-inf + i NaN, the sign free
            re = __builtin_infl();
            im = x + x;
        } else {
            re = x + y;
            im = y == 0 ? y : x + y;
        }
    } else if (__builtin_isinf(x) || __builtin_isinf(y)) {
        re = __builtin_copysignl(__builtin_infl(), x);
        im = __builtin_copysignl(atan2l(fabsl(y), fabsl(x)), y);
    } else {
        // asinh(x + iy) = -i asin(-y + ix)... in magnitudes: the roles of the parts
        // swapped
        Hft h = HftOf(fabsl(y), fabsl(x));
        re = __builtin_copysignl(h.L, x);
        im = __builtin_copysignl(h.asinAngle, y);
    }
    return status::kNone;
}

[[gnu::always_inline]] inline int AcoshOf(LD x, LD y, LD& re, LD& im) {
    LD a, b;
    AcosOf(x, y, a, b);
    re = fabsl(b);
    if (__builtin_isnan(y))
        im = x == 0 ? a : y; // +-0 + i NaN: NaN + i pi/2, as cacos keeps pi/2
    else
        im = __builtin_copysignl(a, y);
    return status::kNone;
}

} // namespace
} // namespace brenn::vm::cx

ZAR_EXTENDED_ROW(Acos, AcosOf, false)
ZAR_EXTENDED_ROW(Acosh, AcoshOf, false)
ZAR_EXTENDED_ROW(Asinh, AsinhOf, false)
ZAR_EXTENDED_ROW(Asin, (Rotated<AsinhOf, true>), false)
