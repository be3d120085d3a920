/* Log10 of single (c) and double (z) complex vectors, element by element in 80-bit
 * extended precision (extended.h), one kernel for every level: the extended Ln
 * (ext_elem.h), both parts times log10(e), rounded once. A zero gives -inf with status 2;
 * the other special values are those of Ln scaled. */
#include "vecmath/complex/ext_elem.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kLog10OfE = 0.434294481903251827651128918916605082L;

int Log10Of(LD x, LD y, LD& re, LD& im) {
    int st = CLogX(x, y, re, im);
    re *= kLog10OfE;
    im *= kLog10OfE;
    return st;
}

} // namespace
} // namespace brenn::vm::cx

ZAR_EXTENDED_ROW(Log10, Log10Of, false)
