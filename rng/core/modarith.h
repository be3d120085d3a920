/* Modular arithmetic shared by the jumps and the congruential generators: the
 * division-free reduction modulo 2^31 - 1 and products modulo 2^59. */
#ifndef BRENN_RNG_CORE_MODARITH_H
#define BRENN_RNG_CORE_MODARITH_H

#include <stdint.h>

namespace brenn::rng {

constexpr uint32_t kM31 = 0x7FFFFFFF;
constexpr uint64_t kMask59 = 0x7FFFFFFFFFFFFFFull;

// p mod (2^31 - 1) for p below 2^62 (a product of two residues): 2^31 folds to 1 and
// 2^32 to 2, so one conditional subtraction finishes it.
inline uint32_t FoldM31(uint64_t p) {
    uint32_t t = static_cast<uint32_t>(p & kM31) + static_cast<uint32_t>((p >> 31) & 1) +
                 2 * static_cast<uint32_t>(p >> 32);
    if (t >= kM31) t -= kM31;
    return t;
}

inline uint32_t MulM31(uint32_t a, uint32_t b) {
    return FoldM31(static_cast<uint64_t>(a) * b);
}

inline uint64_t MulMod59(uint64_t a, uint64_t b) {
    return (a * b) & kMask59;
}

} // namespace brenn::rng

#endif
