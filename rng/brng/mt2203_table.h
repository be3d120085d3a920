/* The member parameters of MT2203: twist constant and the two tempering masks of
 * each member whose row has been verified (primitive characteristic polynomial of
 * degree 2203, by tools/mt/mt2203_dc). Members without a row cannot be seeded. */
#ifndef BRENN_RNG_BRNG_MT2203_TABLE_H
#define BRENN_RNG_BRNG_MT2203_TABLE_H

#include <stdint.h>

namespace brenn::rng {

struct Mt2203Member {
    int32_t member;
    uint32_t matrixA, temperB, temperC;
};

constexpr int32_t kMt2203Members = 6024;

// Rows sorted by member; null when the member has no verified row.
const Mt2203Member* FindMt2203Member(int32_t member);

} // namespace brenn::rng

#endif
