/* Runs of whole points in double at a power-of-two scale 2^k, with each coordinate
 * kept as the bit pattern of the double 2^(52 + k) + x' 2^k (x' the coordinate
 * word shifted right by `shift`), which the row XOR keeps in that form. */
#ifndef BRENN_RNG_BRNG_QRNG_EXPONENT_H
#define BRENN_RNG_BRNG_QRNG_EXPONENT_H

#include <stdint.h>

#include "rng/brng/qrng_core.h"

namespace brenn::rng {

// Fewer points than this are cheaper by the vector forms than by setting up rows.
constexpr uint32_t kExponentMinPoints = 16;

// q whole points into r: x' 2^k + a with 2^(52 + k) of high word `high`, the same
// bits as the multiplication by 2^k. The point is advanced; returns the end counter.
uint32_t RunByExponent(const QrngView& v, uint32_t q, double* r, uint32_t high, double a,
                       int shift);

} // namespace brenn::rng

#endif
