/* ARS5's round keys and the block runs of its two instruction sets: 128-bit AES
 * (any processor that has AES) and 512-bit vector AES, four blocks a register,
 * which the entries choose at run time for long requests. */
#ifndef BRENN_RNG_BRNG_ARS5_H
#define BRENN_RNG_BRNG_ARS5_H

#include <stdint.h>

namespace brenn::rng {

// K0 = key, K(i+1) = K(i) + W, as two 64-bit lanes each.
struct Ars5Keys {
    uint64_t k[6][2];
};

// Blocks for the counters count, count + 1, ... (low 64-bit word first), written
// to out four words each; count is left past the last one. The vector form makes
// only runs whose counters do not carry into the high word, and returns how many
// blocks it made (a multiple of 16, at most nblocks).
void Ars5BlocksAes(const Ars5Keys& keys, uint64_t count[2], int64_t nblocks, uint32_t* out);
int64_t Ars5RunsVaes(const Ars5Keys& keys, uint64_t count[2], int64_t nblocks, uint32_t* out);

// Whether the processor and the system run 512-bit registers, which the vector
// form needs besides the vector AES that __qesCPUisVAES reports.
bool Ars5WideRegisters();

} // namespace brenn::rng

#endif
