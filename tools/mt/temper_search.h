// The search of the tempering masks b, c of an MT2203 member for a given twist
// constant: the bits of both masks are fixed from the most significant down, so
// that k(v) is as large as it can be for v = 1, 2, ... in turn, with a bounded
// beam of partial assignments carried from each step to the next.
#ifndef BRENN_TOOLS_MT_TEMPER_SEARCH_H
#define BRENN_TOOLS_MT_TEMPER_SEARCH_H

#include <cstdint>

#include "tools/mt/equidist.h"

namespace brenn::mt {

struct TemperSearchOptions {
    // Partial assignments kept from one step to the next; each costs up to eight
    // evaluations of k(v) a step.
    int beamWidth = 8;
    // Extensions of one assignment that may survive a step.
    int perParent = 8;
    // Rounds of single-bit changes tried on the result (each up to 42 full
    // profiles); a round that improves nothing ends them.
    int repairPasses = 2;
    // Whole searches repeated with other tie orders while the total defect stays
    // above retryAbove (the published rows have 699 to 713).
    int retries = 2;
    int retryAbove = 730;
};

struct TemperMasks {
    bool ok = false; // false: the recurrence is degenerate (a is not primitive)
    uint32_t b = 0, c = 0;
    EquidistProfile k{};
    int totalDefect = 0;
    int evaluations = 0; // k(v) computations spent
};

// Deterministic for a given a: ties are ordered by a generator seeded from a.
TemperMasks SearchTempering(uint32_t a, const TemperSearchOptions& options = {});

// The mask bits that first reach the top v output bits (v = 1..17; beyond that
// every bit is already in use). Bit positions count from the least significant.
struct StepBits {
    int count;
    uint32_t bBits[3], cBits[3];
};
StepBits TemperStepBits(int v);

} // namespace brenn::mt

#endif
