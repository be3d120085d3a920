// Small generators registered at run time for tests: the toy of the stream-core tests,
// whose state is one counter word and a second word that the seed does not reach; a
// stepping generator that fails on demand, for the distribution tests; and stream
// helpers of those tests.
#ifndef BRENN_TESTS_RNG_TOY_BRNG_H
#define BRENN_TESTS_RNG_TOY_BRNG_H

#include <stdint.h>

#include <cstring>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"

namespace brenn::test {

// A stream of generator `id` seeded with the one word `seed`, and a copy of a stream;
// both fail the test on error.
void* NewSeeded(int32_t id, uint32_t seed);
void* CopyOf(void* stream);

// Expects a and b to give the same next raw word, so that both have used the same
// number of words; then deletes both.
void ExpectInStepAndDelete(void* a, void* b);

// Registers the toy family once per process and returns its id.
int32_t ToyBrngId();

// A stream of the toy generator seeded with `seed`; fails the test on error.
void* NewToyStream(uint32_t seed);

// A block of the service allocator filled with `fill`, as a chunk's data.
inline void* FilledBlock(uint32_t size, unsigned char fill) {
    void* p = brenn_serv_allocate(size, 128);
    std::memset(p, fill, size);
    return p;
}

// Adds `size` bytes of `fill` as the private chunk `id`; returns its data.
inline void* AddPrivate(void* stream, int32_t id, uint32_t size, unsigned char fill) {
    void* data = FilledBlock(size, fill);
    EXPECT_EQ(__qesAddChunk(stream, id, nullptr, data, size), 0);
    return data;
}

// The head of a stream's chunk list: its newest cell.
inline QesChunk* HeadChunk(const void* stream) {
    QesChunk* c;
    std::memcpy(&c, static_cast<const char*>(stream) + 8, sizeof c);
    return c;
}

// The toy state after the header: counter, extra.
inline uint32_t* ToyState(void* stream) {
    return reinterpret_cast<uint32_t*>(static_cast<char*>(stream) + 16);
}

// The stepping generator: its uniforms run through k / 7 for k = 0, 1, 2, ... (so an
// exact 0 comes every seventh word), its integer words are k mod 7, and a request that
// would pass `limit` words in all fails with QES_RNG_STATUS_RDRAND_FAILED.
int32_t StepBrngId();
void* NewStepStream(uint32_t limit);

} // namespace brenn::test

#endif
