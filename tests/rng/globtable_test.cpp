// The shared read-only table under two threads: streams that share one guid are
// made, copied and deleted concurrently; the reference count stays right, the
// shared block is freed exactly once, and the row goes with the last reference.
#include <atomic>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/toy_brng.h"

namespace {

using brenn::test::NewToyStream;

constexpr uint64_t kGuid[2] = {0x1234, 9};

// Makes a stream and attaches the table under the shared guid, as a quasi-random
// generator does with its direction numbers: whoever comes first provides the block.
void* StreamWithSharedTable() {
    void* s = NewToyStream(1);
    void* block = brenn_serv_allocate(256, 128);
    EXPECT_EQ(__qesAddChunk(s, 9, kGuid, block, 256), 0);
    if (__qesSearchChunk(s, 9) != block) brenn_serv_deallocate(block);
    return s;
}

TEST(RngGlobTableThreads, StreamsSharingAGuidAcrossTwoThreads) {
    brenn::test::ToyBrngId(); // registration happens before threads start
    int64_t live = brenn_serv_live_allocations();
    void* keeper = StreamWithSharedTable(); // holds the row through the run
    GlobRODataEntry* e = nullptr;
    ASSERT_EQ(__qesFindGlobRODataTableEntry(&e, kGuid), 0);
    void* shared = e->data;

    std::atomic<int> wrong{0};
    auto worker = [&] {
        for (int round = 0; round < 2000; ++round) {
            void* s = StreamWithSharedTable();
            void* c = nullptr;
            if (__qesCopyStream(&c, s) != 0) wrong++;
            if (__qesSearchChunk(s, 9) != shared || __qesSearchChunk(c, 9) != shared) wrong++;
            __qesDeleteStream(&s);
            __qesDeleteStream(&c);
        }
    };
    std::thread a(worker), b(worker);
    a.join();
    b.join();
    EXPECT_EQ(wrong.load(), 0);
    ASSERT_EQ(__qesFindGlobRODataTableEntry(&e, kGuid), 0);
    EXPECT_EQ(e->refCount, 1u);
    __qesDeleteStream(&keeper);
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, kGuid), QES_RNG_STATUS_GLOB_NOT_FOUND);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

// Without a keeper the row is made and dropped over and over; whichever thread
// deletes last frees the block, and nothing is left behind.
TEST(RngGlobTableThreads, RowComesAndGoesWithoutLeaks) {
    brenn::test::ToyBrngId();
    int64_t live = brenn_serv_live_allocations();
    auto worker = [] {
        for (int round = 0; round < 2000; ++round) {
            void* s = StreamWithSharedTable();
            __qesDeleteStream(&s);
        }
    };
    std::thread a(worker), b(worker);
    a.join();
    b.join();
    GlobRODataEntry* e = nullptr;
    EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, kGuid), QES_RNG_STATUS_GLOB_NOT_FOUND);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

} // namespace
