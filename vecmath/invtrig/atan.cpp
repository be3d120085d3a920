/* Atan, Atan2, Atanpi and Atan2pi in single and double, three levels.
 *
 * Atan(x) is the angle of the point (1, x), so one body serves both: with the
 * magnitudes of the ordinate a and the abscissa b, the smaller over the larger is
 * t in [0, 1]; where |a| is the larger (the swapped lanes) the angle is pi/2 - atan(t),
 * where b is negative it is pi less that, and the sign of a goes on at the end.
 *
 * Single EP and LA run in single: t by the reciprocal estimate (Atan EP: -1/|x| as it
 * stands; Atan LA and Atan2 EP: with one Newton step) or a division (Atan2 LA), and one
 * polynomial on [0, 1] (EP five terms in two halves, LA eight in two chains).
 * Atan in radians at double LA/HA (one kernel) and single HA runs a table reduction
 * (atan_tables.h): c is a = |x| with its significand cut to a few bits (4 in double, 5 in
 * single) for a in [2^-10, 2^5) ([2^-16, 2^6) in single), so that a - c is exact, and
 * atan(a) = atan(c) + atan(u), u = (a - c)/(1 + a c), |u| at most 2^-5 (2^-6): atan(c)
 * from the table in two parts, atan(u) a short odd series (four terms in double, one in
 * single), the head of atan(c) and u joined by the fast exact sum in double. Below the
 * table u = a, above it u = -1/a and atan(c) is pi/2. One division and no correction of
 * it: its rounding reaches the result scaled by |u|/atan(a), below a twelfth.
 * Atan2 HA in both precisions, and double Atan2 LA (a kernel of its own on HA's steps,
 * which run faster than the double steps it had), takes the same table by its quotient
 * t = n/d: c is t cut to 5 bits (4 in double), u = (n - c d)/(d + c n) from n and d (c d in two
 * exact products, so that the numerator rounds once), below the table c = 0 in single
 * (the rounded t is the angle there) and atan(c) from the series in double, the base of
 * 0, 2 or 4 quarter turns joined to the row's head by the fast exact sum, in rounds of
 * sixteen taken step by step; single keeps its lanes to magnitudes in [2^-50, 2^50) (the
 * complex Arg and Ln keep the double steps at every level). The double steps, which the
 * pi-scaled single LA and HA take on widened lanes, fold once more at tan(pi/8): t =
 * (n - d)/(n + d), a quarter turn added, and a short odd series on [-tan(pi/8),
 * tan(pi/8)]; Atan's own form of them (b = 1; pi-scaled LA and HA, double EP) puts the
 * sign in the quotient, -1/a or (a - 1)/(a + 1), with no swap and no flip. The pi-scaled
 * double rows (and Atan2's scalar routine) carry the quotient's error from its exact
 * residual and join the base exactly (common.h); without them the quotient's rounding
 * near the fold (|x| just below 1/2, where a - 1 is not exact) costs up to 1.4 ulp.
 *
 * Atan has no range test: infinity gives pi/2 through t = 1/inf = 0 (-1/inf in the
 * table's top row), NaN passes. Atan2 sends zeros, infinities, NaN and magnitudes outside
 * [2^-125, 2^123] in single ([2^-50, 2^50) at HA; [2^-500, 2^500) in double) to the
 * scalar routine, which gives the special values of C99 Annex F and, for the others, the
 * compensated double steps (in double after both arguments are scaled by one power of
 * two). Nothing is reported.
 *
 * Measured (brenn_accuracy, 250000 inputs a row), LA / HA in ulp, EP in bits: sAtan
 * 2.62 / 0.525 / 12.3, sAtan2 2.16 / 0.515 / 14.9, sAtanpi 0.510 / 0.510 / 12.3,
 * sAtan2pi 0.507 / 0.507 / 14.9; dAtan 0.531 (one kernel) / 30.5, dAtan2 0.961 / 0.531 /
 * 30.5, dAtanpi 0.743 / 0.743 / 30.5, dAtan2pi 0.692 / 0.692 / 30.5. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/invtrig/atan_body.h"

using namespace brenn::vm::invtrig;
using brenn::vm::Level;

extern "C" {
ZAR_KERNEL_OF(s, Atan, EP, Unary, AtanRadian<float, Level::EP>)
BRENN_FLAT ZAR_KERNEL_OF(s, Atan, LA, Unary, AtanRadian<float, Level::LA>)
ZAR_KERNEL_OF(s, Atan, HA, Unary, AtanRadian<float, Level::HA>)
ZAR_KERNEL_OF(d, Atan, LaHa, Unary, AtanRadian<double, Level::HA>)
ZAR_KERNEL_OF(d, Atan, EP, Unary, AtanRadian<double, Level::EP>)
// The single kernels of Atanpi, Atan2 and Atan2pi flattened: left to itself GCC keeps
// the HA body (and the pi-scaled LA, in double) out of line, one call a quad.
BRENN_FLAT_LEVEL_KERNELS(s, Atanpi, Unary, AtanpiBody)
ZAR_LEVEL_KERNELS(d, Atanpi, Unary, AtanpiBody)
BRENN_FLAT_LEVEL_KERNELS(s, Atan2, Binary, Atan2Radian)
// Double Atan2 EP flattened, its round of eight in the kernel's loop (LA and HA measured
// no faster so).
BRENN_FLAT ZAR_KERNEL_OF(d, Atan2, EP, Binary, Atan2Radian<double, Level::EP>)
ZAR_KERNEL_OF(d, Atan2, LA, Binary, Atan2Radian<double, Level::LA>)
ZAR_KERNEL_OF(d, Atan2, HA, Binary, Atan2Radian<double, Level::HA>)
BRENN_FLAT_LEVEL_KERNELS(s, Atan2pi, Binary, Atan2piBody)
ZAR_LEVEL_KERNELS(d, Atan2pi, Binary, Atan2piBody)
}
