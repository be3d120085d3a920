/* Bit access to a GF(2) polynomial held as little-endian 32-bit words, shared by the
 * remainder and the polynomial jump drivers. */
#ifndef BRENN_RNG_CORE_POLYREM_H
#define BRENN_RNG_CORE_POLYREM_H

#include <stdint.h>

namespace brenn::rng {

inline bool PolyBit(const uint32_t* p, int32_t i) {
    return (p[i >> 5] >> (i & 31)) & 1;
}

} // namespace brenn::rng

#endif
