// Streams and chunk lists: creation and refusal, copies of record and state, the
// saved-image size, the order and replacement of chunks, sharing through guids, and
// every allocation failure path.
#include <cstring>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/toy_brng.h"
#include "tests/rng/brng_harness.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::test;

TEST(RngStream, NewStreamFillsHeaderAndSeeds) {
    void* s = NewToyStream(41);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(reinterpret_cast<uintptr_t>(s) % 128, 0u);
    EXPECT_EQ(__qesGetStreamStateBrng(s), ToyBrngId());
    EXPECT_EQ(static_cast<unsigned char*>(s)[4], 1);
    EXPECT_EQ(static_cast<unsigned char*>(s)[5], 0);
    EXPECT_EQ(HeadChunk(s), nullptr);
    EXPECT_EQ(ToyState(s)[0], 41u);
    EXPECT_EQ(__qesGetStreamSize(s), 24 + 8);
    EXPECT_EQ(__qesDeleteStream(&s), 0);
    EXPECT_EQ(s, nullptr);
}

TEST(RngStream, AbstractAndUnknownIdsAreRefusedWithoutAllocating) {
    int64_t live = brenn_serv_live_allocations();
    for (int32_t id : {0xA00000, 0xB00000, 0xC00000, 0x100001, 0x5000000, 281}) {
        void* s = nullptr;
        EXPECT_EQ(__qesNewStreamEx(&s, id, 0, nullptr), QES_RNG_STATUS_BAD_BRNG) << std::hex << id;
        EXPECT_EQ(s, nullptr);
    }
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

TEST(RngStream, AllocateStreamValidatesAndLeavesTheState) {
    void* s = nullptr;
    int32_t f, m;
    BrngRecord* t = __qesGetBrngBaseOffset(ToyBrngId(), &f, &m);
    EXPECT_EQ(__qesAllocateStream(&s, t, ToyBrngId(), f, 1), QES_RNG_STATUS_BAD_BRNG);
    ASSERT_EQ(__qesAllocateStream(&s, t, ToyBrngId(), f, m), 0);
    EXPECT_EQ(__qesGetStreamStateBrng(s), ToyBrngId());
    __qesDeleteStream(&s);
}

TEST(RngChunks, SearchFindsTheNewestCellAndSizeCountsEveryCell) {
    void* s = NewToyStream(1);
    ASSERT_EQ(__qesAddChunk(s, 5, nullptr, FilledBlock(40, 1), 40), 0);
    void* newer = FilledBlock(8, 2);
    ASSERT_EQ(__qesAddChunk(s, 5, nullptr, newer, 8), 0);
    ASSERT_EQ(__qesAddChunk(s, 3, nullptr, FilledBlock(16, 3), 16), 0);
    EXPECT_EQ(__qesSearchChunk(s, 5), newer);
    EXPECT_EQ(__qesSearchChunk(s, 9), nullptr);
    EXPECT_EQ(__qesGetNumChunks(s), 3);
    EXPECT_EQ(__qesGetStreamSize(s), 24 + 8 + (40 + 24) + (8 + 24) + (16 + 24));
    int64_t live = brenn_serv_live_allocations();
    __qesDeleteChunks(s);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 6);
    EXPECT_EQ(__qesGetNumChunks(s), 0);
    __qesDeleteStream(&s);
}

// The head ends at the last kept cell: with A (the id), B, C newest first, the list
// becomes C alone and B drops out of it.
TEST(RngChunks, DeleteByIdLeavesTheHeadAtTheLastKeptCell) {
    void* s = NewToyStream(1);
    AddPrivate(s, 2, 4, 0); // C
    AddPrivate(s, 3, 4, 0); // B
    AddPrivate(s, 6, 4, 0); // A
    QesChunk* b = HeadChunk(s)->next;
    QesChunk* c = b->next;
    __qesDeleteChunksById(s, 6);
    EXPECT_EQ(HeadChunk(s), c);
    EXPECT_EQ(__qesGetNumChunks(s), 1);
    // B is out of the list and still the caller's to free.
    brenn_serv_deallocate(b->data);
    brenn_serv_deallocate(b);

    // The hypergeometric use: one own cell replaced by a new one.
    AddPrivate(s, 6, 4, 0);
    __qesDeleteChunksById(s, 6);
    EXPECT_EQ(HeadChunk(s), c);
    __qesDeleteChunksById(s, 2);
    EXPECT_EQ(HeadChunk(s), nullptr);
    __qesDeleteStream(&s);
}

TEST(RngStream, CopyDuplicatesPrivateChunksInReverseOrder) {
    void* s = NewToyStream(77);
    ToyState(s)[1] = 5;
    AddPrivate(s, 1, 12, 0x11);
    AddPrivate(s, 2, 20, 0x22);
    void* c = nullptr;
    ASSERT_EQ(__qesCopyStream(&c, s), 0);
    EXPECT_EQ(ToyState(c)[0], 77u);
    EXPECT_EQ(ToyState(c)[1], 5u);
    EXPECT_EQ(HeadChunk(c)->id, 1);
    EXPECT_EQ(HeadChunk(c)->next->id, 2);
    EXPECT_NE(__qesSearchChunk(c, 2), __qesSearchChunk(s, 2));
    EXPECT_EQ(std::memcmp(__qesSearchChunk(c, 2), __qesSearchChunk(s, 2), 20), 0);
    __qesDeleteStream(&c);
    __qesDeleteStream(&s);
}

TEST(RngStream, CopyStateMovesOnlyTheSeedWordsAndTheChunks) {
    void* a = NewToyStream(10);
    void* b = NewToyStream(20);
    ToyState(b)[1] = 99;
    AddPrivate(a, 4, 8, 4);
    AddPrivate(b, 7, 8, 7);
    EXPECT_EQ(__qesCopyStreamState(a, a), 0);
    EXPECT_EQ(__qesGetNumChunks(a), 1);
    ASSERT_EQ(__qesCopyStreamState(b, a), 0);
    EXPECT_EQ(ToyState(b)[0], 10u);
    EXPECT_EQ(ToyState(b)[1], 99u); // beyond wordSize x seedCount
    EXPECT_EQ(__qesSearchChunk(b, 7), nullptr);
    EXPECT_NE(__qesSearchChunk(b, 4), nullptr);
    __qesDeleteStream(&a);
    __qesDeleteStream(&b);
}

TEST(RngChunks, SharedGuidRaisesTheReferenceAndFreesOnce) {
    uint64_t guid[2];
    __qesGenerateNewGlobalRODataTableEntryId(guid, 9);
    EXPECT_EQ(guid[1], 9u);
    void* s = NewToyStream(1);
    void* first = FilledBlock(64, 1);
    ASSERT_EQ(__qesAddChunk(s, 9, guid, first, 64), 0);
    GlobRODataEntry* e = nullptr;
    ASSERT_EQ(__qesFindGlobRODataTableEntry(&e, guid), 0);
    EXPECT_EQ(e->refCount, 1u);
    EXPECT_EQ(e->data, first);

    // A second stream bringing its own block gets the shared one; its block stays
    // its own.
    void* t = NewToyStream(2);
    void* mine = FilledBlock(64, 2);
    ASSERT_EQ(__qesAddChunk(t, 9, guid, mine, 64), 0);
    EXPECT_EQ(__qesSearchChunk(t, 9), first);
    EXPECT_EQ(e->refCount, 2u);
    brenn_serv_deallocate(mine);

    void* c = nullptr;
    ASSERT_EQ(__qesCopyStream(&c, t), 0);
    EXPECT_EQ(__qesSearchChunk(c, 9), first);
    EXPECT_EQ(e->refCount, 3u);

    int64_t live = brenn_serv_live_allocations();
    __qesDeleteStream(&s);
    __qesDeleteStream(&c);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 4); // two records, two cells
    __qesDeleteStream(&t);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 7); // and the shared block once
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, guid), QES_RNG_STATUS_GLOB_NOT_FOUND);
}

TEST(RngGlobTable, LimitsAreOneTwentySevenUnlockedAndOneTwentyEightLocked) {
    uint64_t zero[2] = {0, 0};
    GlobRODataEntry* e = nullptr;
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, zero), QES_RNG_STATUS_GLOB_NOT_FOUND);
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, nullptr), QES_RNG_STATUS_GLOB_NOT_FOUND);
    uint64_t guids[128][2];
    for (int i = 0; i < 127; ++i) {
        guids[i][0] = 1000 + i;
        guids[i][1] = 1;
        ASSERT_EQ(__qesCreateGlobRODataTableEntry(&e, guids[i], nullptr), 0);
    }
    // At 127 rows a new guid makes a private cell, freed directly with its stream.
    void* s = NewToyStream(1);
    uint64_t fresh[2] = {5, 5};
    void* data = FilledBlock(16, 0);
    ASSERT_EQ(__qesAddChunk(s, 9, fresh, data, 16), 0);
    EXPECT_EQ(HeadChunk(s)->guid[0], 0u);
    EXPECT_EQ(HeadChunk(s)->guid[1], 0u);
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, fresh), QES_RNG_STATUS_GLOB_NOT_FOUND);
    // The locked limit still takes the 128th row, and refuses the 129th.
    guids[127][0] = 9999;
    guids[127][1] = 1;
    EXPECT_EQ(__qesCreateGlobRODataTableEntry(&e, guids[127], nullptr), 0);
    EXPECT_EQ(__qesCreateGlobRODataTableEntry(&e, fresh, nullptr), QES_RNG_STATUS_GLOB_TABLE_FULL);
    int64_t live = brenn_serv_live_allocations();
    __qesDeleteStream(&s);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 3);
    for (auto& g : guids)
        __qesUnregisterGlobRODataReference(g);
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, guids[5]), QES_RNG_STATUS_GLOB_NOT_FOUND);
}

TEST(RngGlobTable, RegisterReferenceHandsOutTheRowsData) {
    uint64_t guid[2] = {42, 43};
    GlobRODataEntry* e = nullptr;
    void* data = FilledBlock(8, 0);
    ASSERT_EQ(__qesCreateGlobRODataTableEntry(&e, guid, data), 0);
    QesChunk cell{};
    __qesRegisterGlobRODataReference(&cell, guid);
    EXPECT_EQ(cell.data, data);
    EXPECT_EQ(e->refCount, 2u);
    int64_t live = brenn_serv_live_allocations();
    __qesUnregisterGlobRODataReference(guid);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    __qesUnregisterGlobRODataReference(guid);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 1);
}

TEST(RngStream, EveryAllocationFailureReturnsNoMemoryWithoutLeaks) {
    void* s = NewToyStream(3);
    AddPrivate(s, 1, 12, 1);
    AddPrivate(s, 2, 24, 2);
    // A copy that fails part way keeps no chunk; a failed copy of the state leaves
    // the target without chunks.
    brenn::test::SweepNoMemory([&] {
        void* c = nullptr;
        int32_t status = __qesCopyStream(&c, s);
        if (c != nullptr) {
            EXPECT_TRUE(status == 0 || __qesGetNumChunks(c) == 0);
            __qesDeleteStream(&c);
        }
        return status;
    });
    brenn::test::SweepNoMemory([&] {
        void* t = nullptr;
        uint32_t seed = 9;
        int32_t status = __qesNewStreamEx(&t, ToyBrngId(), 1, &seed);
        if (status == 0) {
            status = __qesCopyStreamState(t, s);
            if (status != 0) EXPECT_EQ(__qesGetNumChunks(t), 0);
            __qesDeleteStream(&t);
        }
        return status;
    });
    void* d = NewToyStream(4);
    brenn::test::SweepNoMemory([&] {
        void* data = brenn_serv_allocate(8, 128);
        if (data == nullptr) return int32_t{QES_STATUS_NO_MEMORY};
        int32_t status = __qesAddChunk(d, 3, nullptr, data, 8);
        if (status != 0) brenn_serv_deallocate(data);
        __qesDeleteChunksById(d, 3);
        return status;
    });
    __qesDeleteStream(&d);
    __qesDeleteStream(&s);
}

} // namespace
