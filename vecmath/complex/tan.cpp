/* Tanh and the trigonometric Tan of single (c) and double (z) complex vectors,
 * element by element in 80-bit extended precision (extended.h), one kernel for
 * every level.
 *
 * tanh(x + iy) from the cores of ext_core.h, with s = sinh x, c = cosh x and
 * sin y, cos y:
 *   tanh z = (s c + i sin y cos y) / (s^2 + cos^2 y)
 * (Kahan's form, its parts times cos^2 y), which has no cancellation: each part is a
 * few extended roundings from the exact value, so that both round to the element's
 * type within about half an ulp. From |x| = 23, where tanh x rounds to +-1 in extended
 * precision, the real part is +-1 and the imaginary part 4 sin y cos y e^(-2|x|),
 * which underflows gracefully. tan z = -i tanh(iz), through the turn of extended.h.
 *
 * Special values follow C99 Annex G (G.6.2.6): an infinite real part gives
 * +-1 + i0 sin(2y) (the zero's sign that of sin 2y, of y where y is not finite);
 * a NaN real part gives NaN, with a zero imaginary part kept; a finite real part
 * beside an infinite or NaN imaginary part gives NaN + i NaN (invalid for an
 * infinity), but a zero real part stays a zero of its sign, as the C library
 * gives. Nothing is reported: tanh is bounded near its poles in floating point. */
#include <math.h>

#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

[[gnu::always_inline]] inline int TanhOf(LD x, LD y, LD& re, LD& im) {
    LD ch, sh, sn, cs;
    if (__builtin_expect(InCores(x, y, 23), 1)) {
        CoshSinhCore(x, ch, sh);
        SinCosCore(y, sn, cs);
    } else if (__builtin_isinf(x)) {
        re = __builtin_copysignl(1, x);
        LD s = __builtin_isfinite(y) && y != 0 ? sinl(y) * cosl(y) : y;
        im = __builtin_copysignl(0, s);
        return status::kNone;
    } else if (__builtin_isnan(x)) {
        re = x + x;
        im = y == 0 ? y : x + y;
        return status::kNone;
    } else if (!__builtin_isfinite(y)) {
        re = x == 0 ? x : y - y; // NaN, invalid for an infinity
        im = y - y;
        return status::kNone;
    } else if (fabsl(x) >= 23) {
        re = __builtin_copysignl(1, x);
        SinCosX(y, sn, cs);
        // e^(-4000) is far below the least double; the zero keeps the sign of sin 2y
        const LD a = fabsl(x);
        im = 4 * sn * cs * (a < 2000 ? gamma::ext::Exp(-2 * a) : 0.0L);
        return status::kNone;
    } else {
        CoshSinhCore(x, ch, sh);
        SinCosX(y, sn, cs);
    }
    const LD q = 1 / (sh * sh + cs * cs);
    re = sh * ch * q;
    im = sn * cs * q;
    return status::kNone;
}

} // namespace
} // namespace brenn::vm::cx

ZAR_EXTENDED_ROW(Tanh, TanhOf, false)
ZAR_EXTENDED_ROW(Tan, (Rotated<TanhOf, true>), false)
