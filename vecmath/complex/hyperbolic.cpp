/* Cosh, Sinh and the trigonometric Cos and Sin of single (c) and double (z)
 * complex vectors, element by element in 80-bit extended precision
 * (extended.h), one kernel for every level.
 *
 *   cosh(x + iy) = cosh x cos y + i sinh x sin y
 *   sinh(x + iy) = sinh x cos y + i cosh x sin y
 *   cos z = cosh(-y + ix), sin z = -i sinh(-y + ix); the sign of -y is not
 * turned for a NaN, so that its sign stays. The extended functions of the parts
 * (ext_core.h) have errors of a few extended ulps, so every part rounds to the
 * element's type within about half an ulp and 2^-9 of one. Special values follow C99
 * Annex G (G.6.2.4, G.6.2.5): zero imaginary parts stay zeros of the right sign
 * where the formulas would make inf * 0, infinite real parts give the
 * infinities of cis y, and NaNs spread. An overflow (3) is reported where
 * finite parts give an infinite result. */
#include <math.h>

#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

// cosh x and sinh x by the core of ext_core.h; beyond |x| = 11000, where e^|x| leaves
// the extended range, the library's own cosh and sinh give the infinities.
[[gnu::always_inline]] inline void CoshSinh(LD x, LD& ch, LD& sh) {
    if (__builtin_expect(!(fabsl(x) <= 11000), 0)) {
        ch = coshl(x);
        sh = sinhl(x);
        return;
    }
    CoshSinhCore(x, ch, sh);
}

[[gnu::always_inline]] inline int CoshOf(LD x, LD y, LD& re, LD& im) {
    LD ch, sh, c, sn;
    if (__builtin_expect(InCores(x, y, 11000), 1)) {
        CoshSinhCore(x, ch, sh);
        SinCosCore(y, sn, c);
    } else if (y == 0) { // cosh x + i 0, the zero signed as sinh(x) * y
        re = coshl(x);
        im = __builtin_isnan(x) ? y : (__builtin_signbit(x) ? -y : y);
        return status::kNone;
    } else if (x == 0 && !__builtin_isfinite(y)) { // NaN + i0
        re = y - y;
        im = 0 * x;
        return status::kNone;
    } else if (__builtin_isinf(x) && !__builtin_isfinite(y)) { // +inf + i NaN
        re = x * x;
        im = y - y;
        return status::kNone;
    } else {
        CoshSinh(x, ch, sh);
        SinCosX(y, sn, c);
    }
    re = ch * c;
    im = sh * sn;
    return status::kNone;
}

[[gnu::always_inline]] inline int SinhOf(LD x, LD y, LD& re, LD& im) {
    LD ch, sh, c, sn;
    if (__builtin_expect(InCores(x, y, 11000), 1)) {
        CoshSinhCore(x, ch, sh);
        SinCosCore(y, sn, c);
    } else if (y == 0) { // sinh x + i0, y's zero (cosh x > 0)
        re = sinhl(x);
        im = y;
        return status::kNone;
    } else if (x == 0 && !__builtin_isfinite(y)) { // +-0 + i NaN
        re = x;
        im = y - y;
        return status::kNone;
    } else if (__builtin_isinf(x) && !__builtin_isfinite(y)) { // +-inf + i NaN
        re = x;
        im = y - y;
        return status::kNone;
    } else {
        CoshSinh(x, ch, sh);
        SinCosX(y, sn, c);
    }
    re = sh * c;
    im = ch * sn;
    return status::kNone;
}

} // namespace
} // namespace brenn::vm::cx

ZAR_EXTENDED_ROW(Cosh, CoshOf, true)
ZAR_EXTENDED_ROW(Sinh, SinhOf, true)
ZAR_EXTENDED_ROW(Cos, (Rotated<CoshOf, false>), true)
ZAR_EXTENDED_ROW(Sin, (Rotated<SinhOf, true>), true)
