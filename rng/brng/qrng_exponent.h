/* Runs of whole points in double, rounding being to nearest, with each coordinate
 * kept as the bit pattern of the double 2^(52 + k) + x' 2^k (x' the coordinate
 * word shifted right by `shift`), which the row XOR keeps in that form. */
#ifndef BRENN_RNG_BRNG_QRNG_EXPONENT_H
#define BRENN_RNG_BRNG_QRNG_EXPONENT_H

#include <stdint.h>

#include "rng/brng/qrng_core.h"

namespace brenn::rng {

// The rows taken by counters c0 to c0 + q - 1 (`used`) and those taken an odd
// number of times (`odd`), as bit masks.
void RowsOfRun(uint32_t c0, uint32_t q, uint32_t* used, uint32_t* odd);

// Fewer points than this are cheaper by the vector forms than by setting up rows.
constexpr uint32_t kExponentMinPoints = 16;

// q whole points into r, x' s + a: with `multiply`, k is 0 (`high` that of 2^52)
// and x' is multiplied by s; without, s is 2^k and x' 2^k is exact as it stands.
// The point is advanced; returns the end counter.
uint32_t RunByExponent(const QrngView& v, uint32_t q, double* r, uint32_t high, double s, double a,
                       int shift, bool multiply);

} // namespace brenn::rng

#endif
