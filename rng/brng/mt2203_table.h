/* The member parameters of MT2203: twist constant and the two tempering masks of
 * each member, verified by tools/mt/mt2203_dc (primitive characteristic polynomial
 * of degree 2203, distinct twist constants). */
#ifndef BRENN_RNG_BRNG_MT2203_TABLE_H
#define BRENN_RNG_BRNG_MT2203_TABLE_H

#include <stdint.h>

namespace brenn::rng {

struct Mt2203Member {
    uint32_t matrixA, temperB, temperC;
};

constexpr int32_t kMt2203Members = 6024;

// The member's row; null outside the family or when the member has no row.
const Mt2203Member* FindMt2203Member(int32_t member);

} // namespace brenn::rng

#endif
