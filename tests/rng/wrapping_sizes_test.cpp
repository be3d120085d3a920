// Sizes that a caller's counts would carry past their type: the size of a stream's
// image beyond what an int32 announces, 64-bit bit requests whose word count passes an
// int32, and negative counts that would turn into huge byte counts. Each gives a
// status (the allocation status where a block would be sized) and writes nothing.
#include <unistd.h>

#include <climits>
#include <cstdio>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/bad_input.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

TEST(RngWrappingSizes, ImagesPastTheLargestAnnouncedSizeAreRefused) {
    void* s = NewSeeded(QES_BRNG_MCG31M1, 1);
    const int32_t base = __qesGetStreamSize(s);
    ASSERT_EQ(base, 24 + 8);
    // Chunk sizes are claims here: the blocks are small, and nothing reads them.
    const uint32_t upTo = static_cast<uint32_t>(INT32_MAX - base - 24);
    ASSERT_EQ(__qesAddChunk(s, 5, nullptr, FilledBlock(16, 1), upTo), 0);
    EXPECT_EQ(__qesGetStreamSize(s), INT32_MAX);
    ASSERT_EQ(__qesAddChunk(s, 6, nullptr, FilledBlock(16, 2), 0), 0);
    EXPECT_EQ(__qesGetStreamSize(s), QES_STATUS_NO_MEMORY);
    __qesDeleteChunks(s);
    // One claim near 4 GiB, which as a signed count would have made the size small.
    ASSERT_EQ(__qesAddChunk(s, 5, nullptr, FilledBlock(16, 3), 0xFFFFFFF0u), 0);
    EXPECT_EQ(__qesGetStreamSize(s), QES_STATUS_NO_MEMORY);
    std::vector<uint8_t> block(256, 0xEE);
    EXPECT_EQ(__qesSaveStreamM(s, block.data()), QES_STATUS_NO_MEMORY);
    EXPECT_EQ(block, std::vector<uint8_t>(256, 0xEE));
    TempFile file("huge");
    EXPECT_EQ(__qesSaveStreamF(s, file.path.c_str(), -1), QES_STATUS_NO_MEMORY);
    EXPECT_NE(access(file.path.c_str(), F_OK), 0) << "a refused save made a file";
    __qesDeleteStream(&s);
}

// Word counts of each request that reached the generator.
std::vector<int32_t> requests;

int32_t CountingInit(int32_t, void*, int32_t, const void*) {
    return 0;
}
int32_t CountingS(void*, int32_t, float*, float, float) {
    return 0;
}
int32_t CountingD(void*, int32_t, double*, double, double) {
    return 0;
}
int32_t CountingI(void*, int32_t n, void*) {
    requests.push_back(n);
    return 0;
}

// A 64-bit element is two words, so 2^30 elements and more are more words than an
// int32 counts: they must reach the generator as several positive requests. A family
// with two-word bit elements lends its row to a counter that writes nothing, for the
// length of the test.
TEST(RngWrappingSizes, SixtyFourBitRequestsReachTheGeneratorInCountablePieces) {
    const int family = (QES_BRNG_PHILOX4X32X10 >> 20) - 1;
    BrngRecord saved = __RegBrngsNew[family];
    __RegBrngsNew[family].initStream = CountingInit;
    __RegBrngsNew[family].sGenerate = CountingS;
    __RegBrngsNew[family].dGenerate = CountingD;
    __RegBrngsNew[family].iGenerate = CountingI;
    ForgedStream s(QES_BRNG_PHILOX4X32X10);
    uint64_t r[1];
    for (int32_t n : {(1 << 30) + 3, INT32_MAX, 5}) {
        requests.clear();
        EXPECT_EQ(_qesiRngUniformBits64(0, s.get(), n, r), 0);
        int64_t words = 0;
        for (int32_t k : requests) {
            EXPECT_GT(k, 0);
            words += k;
        }
        EXPECT_EQ(words, 2 * int64_t{n});
    }
    __RegBrngsNew[family] = saved;
}

int32_t Prepared(void*, uint64_t*, int32_t*) {
    return 1; // the jump goes on to the polynomial
}
void NoState(void*) {}
void NoPair(void*, const void*) {}
void NoFinish(void*, const void*, int32_t) {}

const int32_t kTerms[] = {0, 3, 7};

// Negative counts of words or state bytes, which as sizes would wrap to nearly the
// whole address space, give the allocation status before any block is asked for.
TEST(RngWrappingSizes, NegativeCountsGiveTheAllocationStatus) {
    uint32_t state[8] = {};
    int64_t live = brenn_serv_live_allocations();
    using Driver = decltype(&__qes_SkipAheadHorner);
    for (Driver jump : {&__qes_SkipAheadHorner, &__qes_SkipAheadSWin}) {
        for (auto [words, bytes] :
             {std::pair{-1, 32}, std::pair{1, -1}, std::pair{INT_MIN, 32}, std::pair{1, INT_MIN}}) {
            EXPECT_EQ(jump(state, NoState, NoPair, NoPair, NoState, NoFinish, Prepared, 100, 0,
                           words, 7, bytes, 3, kTerms),
                      QES_STATUS_NO_MEMORY)
                << words << " words, " << bytes << " bytes";
        }
    }
    // x^2 mod a polynomial of degree 7 clears the remainder first: with a negative
    // word count there is nothing it may clear.
    uint32_t out[4] = {0xAAAAAAAA, 0xAAAAAAAA, 0xAAAAAAAA, 0xAAAAAAAA};
    EXPECT_EQ(__qesPolyRem(2, 7, 3, kTerms, -1, out), QES_STATUS_NO_MEMORY);
    EXPECT_EQ(out[0], 0xAAAAAAAAu);
    EXPECT_EQ(__qesPolyRem(2, 7, 3, kTerms, 1, out), 0);
    EXPECT_EQ(out[0], 4u);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

} // namespace
