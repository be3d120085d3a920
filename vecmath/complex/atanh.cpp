/* Atanh and the trigonometric Atan of single (c) and double (z) complex vectors,
 * element by element in 80-bit extended precision (extended.h), one kernel for
 * every level.
 *
 * atanh(x + iy), from ln((1 + z)/(1 - z))/2 taken apart:
 *   real part       sign(x) log1p(4|x| / ((1 - |x|)^2 + y^2)) / 4
 *   imaginary part  atan2(2y, (1 - |x|)(1 + |x|) - y^2) / 2
 * 1 - |x| is exact for the element's parts, the squares of double parts neither
 * overflow nor underflow in the extended range, and log1p keeps the real part's
 * relative accuracy where it is small. The cuts lie on the real axis beyond +-1,
 * where the sign of a zero imaginary part picks +-pi/2. atan z = -i atanh(iz),
 * through the turn of extended.h.
 *
 * Special values follow C99 Annex G (catanh G.6.2.3): +-1 + i0 gives +-inf + i0
 * with the divide-by-zero flag and the singularity status 2 (Atanh's status, as
 * the real kernel's at +-1; Atan's row never reports, and atan(+-i) gives its
 * infinity silently); an infinite part gives +-0 + i pi/2 with the signs of the
 * parts; NaNs spread, except beside an infinite part and for a zero real part,
 * which stays. */
#include <math.h>

#include "vecmath/complex/ext_core.h"
#include "vecmath/complex/ext_phase.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kPiOver2 = 1.57079632679489661923132169163975144L;

[[gnu::always_inline]] inline int AtanhOf(LD x, LD y, LD& re, LD& im) {
    if (__builtin_isnan(x) || __builtin_isnan(y)) {
        if (__builtin_isinf(x)) {
            re = __builtin_copysignl(0, x);
            im = y + y;
        } else if (__builtin_isinf(y)) { // +-0 + i pi/2, the real zero's sign free
            re = __builtin_copysignl(0, x);
            im = __builtin_copysignl(kPiOver2, y);
        } else {
            re = x == 0 ? x : x + y;
            im = x + y;
        }
    } else if (__builtin_isinf(x) || __builtin_isinf(y)) {
        re = __builtin_copysignl(0, x);
        im = __builtin_copysignl(kPiOver2, y);
    } else {
        const LD ax = fabsl(x), d = 1 - ax;
        if (d == 0 && y == 0) {
            re = __builtin_copysignl(1, x) / Keep(0.0L);
            im = y;
            return status::kSingularity;
        }
        re = __builtin_copysignl(0.25L * Log1pX(4 * ax / (d * d + y * y)), x);
        im = 0.5L * Phase(2 * y, d * (1 + ax) - y * y);
    }
    return status::kNone;
}

// Atan's row never reports: the status of atanh's pole is dropped.
[[gnu::always_inline]] inline int AtanOf(LD x, LD y, LD& re, LD& im) {
    Rotated<AtanhOf, true>(x, y, re, im);
    return status::kNone;
}

} // namespace
} // namespace brenn::vm::cx

ZAR_EXTENDED_ROW(Atanh, AtanhOf, false)
ZAR_EXTENDED_ROW(Atan, AtanOf, false)
