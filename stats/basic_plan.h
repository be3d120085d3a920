// The checks of the basic compute that come before any data is read: the method word,
// the packed estimate set and the requirement tables.
#ifndef BRENN_STATS_BASIC_PLAN_H
#define BRENN_STATS_BASIC_PLAN_H

#include <stdint.h>

#include "stats/task.h"

namespace brenn::stats {

enum MethodKind { MethodRawFirst, MethodOnePass, MethodOnePassB, MethodFromSums };

// Positions of the packed estimate set.
enum Position : int {
    PosMean = 0,
    PosRaw2 = 1, // raw moments 2, 3, 4 at 1, 2, 3
    PosCen2 = 4, // central moments 2, 3, 4 at 4, 5, 6
    PosCov = 7,
    PosCor = 8,
    PosKurtosis = 9,
    PosSkewness = 10,
    PosVariation = 11,
    PosSum = 12,
    PosRawSum2 = 13, // 13, 14, 15
    PosCenSum2 = 16, // 16, 17, 18
    PosCrossProduct = 19,
    PosNothing = 20 // stands for an array that does not exist
};

inline bool Has(uint32_t set, int position) {
    return (set >> position) & 1u;
}

// False for a word that is not one of the legal method words.
bool ParseMethod(uint64_t method, MethodKind* kind);

// The 64-bit estimates word as a set of positions.
uint32_t PackEstimates(uint64_t estimates);

// The positions whose arrays the task holds.
uint32_t PresentSet(const SSTask* task);

// The union of the requirements of `requested` under the method; 0 when all are
// present, else the status of the lowest missing position.
int32_t CheckRequirements(uint32_t requested, uint32_t present, MethodKind kind, uint32_t* needed);

// The task's array of a position (positions 0 to 19).
void* PositionArray(const SSTask* task, int position);

} // namespace brenn::stats

#endif
