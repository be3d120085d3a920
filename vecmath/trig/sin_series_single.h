/* The single sine's odd series beyond the first term, as the coefficients of a
 * polynomial in u = r^2, lowest degree first: shared by Sin, Cos and SinCos and by the
 * rows in degrees and units of pi, whose reduced argument is taken to radians first. */
#ifndef BRENN_VECMATH_TRIG_SIN_SERIES_SINGLE_H
#define BRENN_VECMATH_TRIG_SIN_SERIES_SINGLE_H

namespace brenn::vm {

// LA: sin r ~ r + r u (c3 + c5 u + c7 u^2 + c9 u^3) in single coefficients.
// tools/trig/sin_single.sollya.
inline constexpr float kSinLA[] = {-0x1.55554cp-3f, 0x1.110edap-7f, -0x1.9f70fp-13f,
                                   0x1.5dc908p-19f};
// HA: r (1 + u (c3 + c5 u + c7 u^2 + c9 u^3)) in double coefficients, evaluated in double
// (c3 0xBFC55554BC836587, c9 0x3EC5DBDF0E4C7DEE). tools/trig/sin_single_ha.sollya.
inline constexpr double kSinHA[] = {-0x1.55554bc836587p-3, 0x1.110ed3804ca96p-7,
                                    -0x1.9f6ffeea73463p-13, 0x1.5dbdf0e4c7deep-19};

} // namespace brenn::vm

#endif
