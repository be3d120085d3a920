// MT19937 against a plain textbook implementation (array seeding, whole-block
// regeneration, tempering word by word): the published reference key, every way of
// cutting a request, the element forms, the seeding rules, and skip-ahead against
// generating and discarding on both sides of the switch to the polynomial jump.
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "tests/rng/brng_harness.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::test;

const Words32 kKey = {0x123, 0x234, 0x345, 0x456};
const WordBrng kMt = {QES_BRNG_MT19937, kKey, __qesiBRngMT19937, __qessBRngMT19937,
                      __qesdBRngMT19937};

Words32 Ref(const Words32& key, size_t n) {
    return Draw(RefTwister(kMt19937Shape, key), n);
}

// The index of the next unread word of the block.
int32_t Position(void* s) {
    int32_t p;
    std::memcpy(&p, static_cast<char*>(s) + 16 + 624 * 4, 4);
    return p;
}

TEST(RngMt19937, PublishedReferenceKey) {
    auto got = FirstWords(kMt, kKey, 1000);
    // The first words of the published reference output of this key.
    const uint32_t published[] = {1067595299u, 955945823u, 477289528u, 4107218783u, 4228976476u};
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(got[i], published[i]) << i;
    EXPECT_EQ(got, Ref(kKey, 1000));
    // The uniform on [0, 1) through the distribution layer is the same first word.
    void* s = New(kMt);
    double u;
    _qesdRngUniform(0, s, 1, &u, 0.0, 1.0);
    EXPECT_EQ(u, 1067595299.0 * 0x1p-32);
    __qesDeleteStream(&s);
}

TEST(RngMt19937, SeedingAlwaysUsesTheArrayForm) {
    // The single-word key 5489 is not the single-word published initialisation.
    EXPECT_NE(FirstWords(kMt, {5489}, 1)[0], std::mt19937(5489)());
    // No key means the key {1}; keys longer than the state are used in full, down to
    // their last word.
    EXPECT_EQ(FirstWords(kMt, {}, 700), Ref({1}, 700));
    Words32 longKey(1500);
    for (size_t i = 0; i < longKey.size(); ++i)
        longKey[i] = static_cast<uint32_t>(i * 2654435761u);
    auto w = FirstWords(kMt, longKey, 700);
    EXPECT_EQ(w, Ref(longKey, 700));
    longKey.back() ^= 1;
    EXPECT_NE(FirstWords(kMt, longKey, 700), w);
}

TEST(RngMt19937, AnyCutGivesTheSameSequence) {
    ExpectCutsMatch(kMt, Ref(kKey, 200000),
                    {{624, 1, 623, 625},
                     {625, 1, 1},
                     {1, 623, 1, 1248, 1249, 3},
                     {5000, 17},
                     {0, 3, 0, 1500, 2},
                     {623, 2, 622, 627, 1}},
                    7);
}

// A fresh stream has all words used, so its first request runs the recurrence; after
// a request of one block, and of one block and a word, the position stands at 624.
TEST(RngMt19937, BlockBoundaryPositions) {
    auto ref = Ref(kKey, 1300);
    for (int32_t first : {624, 625}) {
        void* s = New(kMt);
        EXPECT_EQ(Position(s), 624);
        Take(kMt, s, first);
        EXPECT_EQ(Position(s), 624) << first;
        EXPECT_EQ(Take(kMt, s, 1)[0], ref[first]);
        if (first == 624) EXPECT_EQ(Position(s), 1);
        __qesDeleteStream(&s);
    }
}

TEST(RngMt19937, RealFormsScaleTheTemperedWord) {
    // Past a block, with tails that are not a multiple of four.
    ExpectRealForms(kMt, Ref(kKey, 2000), {1, 3, 7, 624, 625, 1997},
                    {-2.5, 7.0, 1.0f, 3.0f, UnsignedD, UnsignedF});
}

TEST(RngMt19937, SkipEqualsGenerateAndDiscard) {
    ExpectSkipsMatch(kMt, Ref(kKey, 10000000 + 1300 + 2000), {0, 1, 300, 624, 1000},
                     {0, 1, 623, 624, 625, 0xFFFFF, 0x100000, 0x100001, 10000000});
}

TEST(RngMt19937, LongJumpsCommuteAndCompose) {
    ExpectLongJumpsCommute(kMt, uint64_t{1} << 40, 10000000 + 7);
}

TEST(RngMt19937, UnsupportedMethodsAndFailedJumps) {
    void* s = New(kMt);
    ExpectNoLeapfrogNorSkipEx(s);
    EXPECT_EQ(__qesBRngMT19937InitStream(4, s, 0, nullptr), QES_STATUS_BAD_METHOD);
    // A polynomial jump that cannot allocate leaves the stream as it was. (The
    // unread words of the block are passed over before the allocation, so the
    // stream starts with its block used up.)
    Take(kMt, s, 624);
    void* before = nullptr;
    ASSERT_EQ(__qesCopyStream(&before, s), 0);
    auto expect = Take(kMt, before, 50);
    __qesDeleteStream(&before);
    SweepNoMemory([&] {
        void* t = nullptr;
        int32_t status = __qesCopyStream(&t, s);
        if (status == 0) status = __qesSkipAheadStream(t, uint64_t{1} << 30);
        if (t == nullptr) return status;
        if (status != 0) EXPECT_EQ(Take(kMt, t, 50), expect);
        __qesDeleteStream(&t);
        return status;
    });
    __qesDeleteStream(&s);
}

} // namespace
