/* PHILOX4X32X10's runs on 256-bit registers, which the generator takes at run time
 * when the processor and the system have them: four blocks a register, the same
 * words as the 128-bit form. */
#ifndef BRENN_RNG_BRNG_PHILOX_H
#define BRENN_RNG_BRNG_PHILOX_H

#include <stdint.h>

namespace brenn::rng {

// Whether the 256-bit integer instructions may run (asked once).
bool PhiloxWideRegisters();

// Blocks for the counters count, count + 1, ... under the key (k0, k1), in runs of
// twelve whose low counter words do not wrap; returns how many it made (a multiple
// of 12, at most nblocks) and leaves count past them.
int64_t PhiloxRunsAvx2(uint32_t k0, uint32_t k1, uint64_t count[2], int64_t nblocks, uint32_t* out);

} // namespace brenn::rng

#endif
