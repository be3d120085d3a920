// Modular powers behind the congruential jumps: a general 32-bit modulus, 2^31 - 1
// by folding, and 2^59 by masking. All run right-to-left binary powering over a
// 64-bit count given as two words.
#include "frame/export.h"
#include "rng/core/modarith.h"
#include "rng/core/stream.h"

using namespace brenn::rng;

BRENN_EXPORT uint32_t __qesiPowMod(uint32_t base, uint32_t countLow, uint32_t countHigh,
                                   uint32_t modulus) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    uint64_t result = 1, b = base;
    while (count != 0) {
        if (count & 1) result = (result * b) % modulus;
        b = (b * b) % modulus;
        count >>= 1;
    }
    return static_cast<uint32_t>(result);
}

BRENN_EXPORT uint32_t __qesiPowMod2P31M1(uint32_t base, uint32_t countLow, uint32_t countHigh) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    // The fold needs operands below 2^31; a base up to 2^32 - 1 is brought there first.
    uint32_t b = (base & kM31) + (base >> 31);
    if (b >= kM31) b -= kM31;
    uint32_t result = 1;
    while (count != 0) {
        if (count & 1) result = MulM31(result, b);
        b = MulM31(b, b);
        count >>= 1;
    }
    return result;
}

BRENN_EXPORT uint64_t __qesiPowMod2P59(uint32_t baseLow, uint32_t baseHigh, uint32_t countLow,
                                       uint32_t countHigh) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    uint64_t b = ((static_cast<uint64_t>(baseHigh) << 32) | baseLow) & kMask59;
    uint64_t result = 1;
    while (count != 0) {
        if (count & 1) result = MulMod59(result, b);
        b = MulMod59(b, b);
        count >>= 1;
    }
    return result;
}
