// A small generator registered at run time for tests of the stream core: its state
// is one counter word and a second word that the seed does not reach.
#ifndef BRENN_TESTS_RNG_TOY_BRNG_H
#define BRENN_TESTS_RNG_TOY_BRNG_H

#include <stdint.h>

#include "brenn_rng.h"

namespace brenn::test {

// Registers the toy family once per process and returns its id.
int32_t ToyBrngId();

// A stream of the toy generator seeded with `seed`; fails the test on error.
void* NewToyStream(uint32_t seed);

// The toy state after the header: counter, extra.
inline uint32_t* ToyState(void* stream) {
    return reinterpret_cast<uint32_t*>(static_cast<char*>(stream) + 16);
}

} // namespace brenn::test

#endif
