/* Squaring over GF(2) spreads bits apart: bit i of a polynomial's square is bit i/2
 * of the polynomial for even i and zero for odd i. Used by the jump remainders and
 * by the table tools' polynomial arithmetic. */
#ifndef BRENN_RNG_CORE_BITSPREAD_H
#define BRENN_RNG_CORE_BITSPREAD_H

#include <stdint.h>

namespace brenn::rng {

// Spreads the low 32 bits of v so that bit i lands on bit 2i.
inline uint64_t Spread32(uint64_t v) {
    v &= 0xFFFFFFFFull;
    v = (v | (v << 16)) & 0x0000FFFF0000FFFFull;
    v = (v | (v << 8)) & 0x00FF00FF00FF00FFull;
    v = (v | (v << 4)) & 0x0F0F0F0F0F0F0F0Full;
    v = (v | (v << 2)) & 0x3333333333333333ull;
    v = (v | (v << 1)) & 0x5555555555555555ull;
    return v;
}

} // namespace brenn::rng

#endif
