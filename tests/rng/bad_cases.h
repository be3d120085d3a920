// Every kind of generator id that a caller can pass, a model of the registry that
// judges them written apart from it, and a builder of stream images field by field.
// Shared by the bad-input tests and the loader fuzzer, so free of the test framework.
#ifndef BRENN_TESTS_RNG_BAD_CASES_H
#define BRENN_TESTS_RNG_BAD_CASES_H

#include <stdint.h>

#include <vector>

#include "brenn_rng.h"

namespace brenn::test {

// The first and last members of every family of the current table, members past a
// family's count, families past the registry, every class of legacy id (the blank
// rows and the bound included), and negative ids.
std::vector<int32_t> EveryId();

// The row that an id names, or null: a family past the registered ones, a member past
// its family's count, a legacy row past the bound, or a negative id, which names a row
// below the table.
const BrngRecord* RowNamed(int32_t id);

// True when the id names a row whose generator is in this build: all four entries.
bool HasGenerator(int32_t id);

// True for the three abstract kinds, which only their own constructors make.
bool IsAbstract(int32_t id);

// One chunk of an image: `size` is the size field; the data written are `size` bytes
// of `fill`, or `dataBytes` bytes when given (a claim past what follows).
struct ChunkImage {
    int32_t tag;
    uint64_t guid[2];
    uint32_t size;
    uint8_t fill;
    int64_t dataBytes = -1;
};

// A version-2 image of `id` with the given state bytes and chunks; `older` writes the
// 20-byte header of the earlier form (version byte 1) instead.
std::vector<uint8_t> ImageOf(int32_t id, const std::vector<uint8_t>& state,
                             const std::vector<ChunkImage>& chunks = {}, bool older = false);

// The state bytes of a stream of `id` (a registered row at least as long as the stream
// header), seeded with a fixed key and moved five words in, as its image holds them;
// `next` gets the five words that follow. For a family without a generator (or an
// abstract one), zeros of its row's length.
std::vector<uint8_t> StateFor(int32_t id, std::vector<uint8_t>* next = nullptr);

} // namespace brenn::test

#endif
