// Stream images that the loaders must refuse or load safely: well-formed images of
// every registered family, built or not, and of ids outside the registry, in both
// header forms and both media; chunk claims past what the medium holds, weighed
// before anything is allocated for them; and pairs of images that give one shared
// guid two sizes, which must never leave a cell whose size disagrees with its block.
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/bad_input.h"

namespace {

using namespace brenn::test;

// The status of a load of a well-formed image of `id`: only generators of this build
// load, abstract streams never (their state holds another process's addresses), and
// the processor checks come after the image is read.
int32_t ExpectedLoad(int32_t id, int32_t bad) {
    if (!HasGenerator(id) || IsAbstract(id)) return bad;
    if (id == QES_BRNG_TRNG && !__qesCPUisRDRAND()) return QES_RNG_STATUS_NO_RDRAND;
    if (id == QES_BRNG_ARS5 && !__qesCPUisAES()) return QES_RNG_STATUS_NO_AES;
    return 0;
}

// Loads `image` from memory and from a file; each load gives `expect` (with the
// medium's own status for a bad image), clears the caller's pointer on failure and
// leaves nothing behind. A loaded stream continues with `next` when that is given.
void ExpectLoads(const std::vector<uint8_t>& image, int32_t id, const std::vector<uint8_t>& next,
                 const std::string& what) {
    TempFile file("family");
    file.Write(image);
    for (bool fromFile : {false, true}) {
        int32_t bad = fromFile ? QES_RNG_STATUS_BAD_FILE_FORMAT : QES_RNG_STATUS_BAD_IMAGE_FORMAT;
        int32_t expect = ExpectedLoad(id, bad);
        int64_t live = brenn_serv_live_allocations();
        void* s = reinterpret_cast<void*>(1);
        int32_t status = fromFile ? __qesLoadStreamF(&s, file.path.c_str(), -1)
                                  : __qesLoadStreamM(&s, image.data());
        EXPECT_EQ(status, expect) << what << (fromFile ? " from a file" : " from memory");
        if (status < 0) {
            EXPECT_EQ(s, nullptr) << what;
        } else if (s != nullptr) {
            std::vector<uint8_t> words(5 * 16); // five words of the widest generator
            EXPECT_EQ(_qesiRngUniformBits(0, s, 5, words.data()), 0) << what;
            if (!next.empty())
                EXPECT_EQ(std::vector<uint8_t>(words.begin(), words.begin() + next.size()), next)
                    << what;
            __qesDeleteStream(&s);
        }
        EXPECT_EQ(brenn_serv_live_allocations(), live) << what;
    }
}

TEST(RngBadImages, ImagesOfEveryRegisteredFamilyBuiltOrNot) {
    const uint64_t guid[2] = {0xFA, 0x11};
    for (int32_t id : EveryId()) {
        const BrngRecord* row = RowNamed(id);
        std::vector<uint8_t> next, state(8, 0);
        if (row != nullptr && row->stateSize >= 16) state = StateFor(id, &next);
        if (id == QES_BRNG_TRNG) next.clear(); // its words are the processor's, never repeated
        std::vector<ChunkImage> chunks = {{3, {0, 0}, 40, 0x33}, {9, {guid[0], guid[1]}, 64, 0x99}};
        ExpectLoads(ImageOf(id, state), id, next, IdName(id));
        ExpectLoads(ImageOf(id, state, chunks), id, next, IdName(id) + " with chunks");
        if (state.size() <= 0xFFFF)
            ExpectLoads(ImageOf(id, state, chunks, true), id, next, IdName(id) + " older form");
    }
}

// A chunk whose size passes the rest of a file is a short read, found before the
// block is allocated: the load makes the stream record and nothing more. A memory
// block's length is not given, so there the bound is the longest image that
// __qesGetStreamSize can announce.
TEST(RngBadImages, ChunkClaimsPastTheMediumAreRefusedBeforeAllocating) {
    const int32_t id = QES_BRNG_MCG59;
    std::vector<uint8_t> state = StateFor(id);
    TempFile file("claims");
    int64_t live = brenn_serv_live_allocations();
    for (uint32_t claim : {101u, 4096u, 0x7FFFFFFFu, 0x80000000u, 0xFFFFFFFFu}) {
        file.Write(ImageOf(id, state, {{5, {1, 2}, claim, 0x44, 100}}));
        void* s = reinterpret_cast<void*>(1);
        int32_t status = 0;
        int64_t made =
            AllocationsMadeBy([&] { status = __qesLoadStreamF(&s, file.path.c_str(), -1); });
        EXPECT_EQ(status, QES_RNG_STATUS_FILE_READ) << claim;
        EXPECT_EQ(made, 1) << "a block of " << claim << " bytes allocated before the check";
        EXPECT_EQ(s, nullptr);
    }
    // Many chunks claimed, none present.
    std::vector<uint8_t> counted = ImageOf(id, state);
    counted[16] = counted[17] = 0xFF;
    file.Write(counted);
    void* s = nullptr;
    EXPECT_EQ(__qesLoadStreamF(&s, file.path.c_str(), -1), QES_RNG_STATUS_FILE_READ);

    const uint32_t header = 24 + static_cast<uint32_t>(state.size()) + 24;
    for (uint32_t claim : {0x7FFFFFFFu - header + 1, 0x80000000u, 0xFFFFFFFFu}) {
        std::vector<uint8_t> image = ImageOf(id, state, {{5, {1, 2}, claim, 0x44, 64}});
        int32_t status = 0;
        int64_t made = AllocationsMadeBy([&] { status = __qesLoadStreamM(&s, image.data()); });
        EXPECT_EQ(status, QES_RNG_STATUS_BAD_IMAGE_FORMAT) << claim;
        EXPECT_EQ(made, 1) << claim;
        EXPECT_EQ(s, nullptr);
    }
    // A claim that fits the file still loads.
    file.Write(ImageOf(id, state, {{5, {0, 0}, 100, 0x44}}));
    ASSERT_EQ(__qesLoadStreamF(&s, file.path.c_str(), -1), 0);
    EXPECT_EQ(static_cast<uint8_t*>(__qesSearchChunk(s, 5))[99], 0x44);
    __qesDeleteStream(&s);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

std::vector<uint8_t> SaveM(void* s) {
    int32_t size = __qesGetStreamSize(s);
    EXPECT_GT(size, 0);
    std::vector<uint8_t> image(static_cast<size_t>(size > 0 ? size : 0));
    EXPECT_EQ(__qesSaveStreamM(s, image.data()), 0);
    return image;
}

void* Load(const std::vector<uint8_t>& image, bool fromFile) {
    void* s = nullptr;
    if (fromFile) {
        TempFile file("pair");
        file.Write(image);
        EXPECT_EQ(__qesLoadStreamF(&s, file.path.c_str(), -1), 0);
    } else {
        EXPECT_EQ(__qesLoadStreamM(&s, image.data()), 0);
    }
    return s;
}

// Two images that give one guid two sizes: whichever comes second keeps a private
// block of its own size, so that saving it gives its own bytes back (with the guid
// cleared, as for a chunk that the full table could not take); with equal sizes the
// second shares the first one's block.
TEST(RngBadImages, PairsGivingOneGuidTwoSizesNeverShareABlock) {
    const int32_t id = QES_BRNG_MT19937;
    std::vector<uint8_t> state = StateFor(id);
    const uint64_t guid[2] = {0x5EED, 0xF00D};
    for (uint32_t firstSize : {8u, 4096u}) {
        for (bool fromFile : {false, true}) {
            uint32_t secondSize = firstSize == 8 ? 4096 : 8;
            int64_t live = brenn_serv_live_allocations();
            auto first = ImageOf(id, state, {{9, {guid[0], guid[1]}, firstSize, 0x11}});
            auto second = ImageOf(id, state, {{9, {guid[0], guid[1]}, secondSize, 0x22}});
            void* a = Load(first, fromFile);
            void* b = Load(second, !fromFile);
            ASSERT_NE(a, nullptr);
            ASSERT_NE(b, nullptr);
            GlobRODataEntry* e = nullptr;
            ASSERT_EQ(__qesFindGlobRODataTableEntry(&e, guid), 0);
            EXPECT_EQ(e->refCount, 1u);
            EXPECT_EQ(__qesSearchChunk(a, 9), e->data);
            EXPECT_NE(__qesSearchChunk(b, 9), e->data);
            EXPECT_EQ(SaveM(a), first);
            auto expect = second;
            std::memset(expect.data() + 24 + state.size() + 4, 0, 16);
            EXPECT_EQ(SaveM(b), expect) << "the second image's own block, guid cleared";
            // Either may go first; the row goes with the first stream's cell.
            __qesDeleteStream(firstSize == 8 ? &a : &b);
            __qesDeleteStream(firstSize == 8 ? &b : &a);
            EXPECT_EQ(__qesFindGlobRODataTableEntry(&e, guid), QES_RNG_STATUS_GLOB_NOT_FOUND);
            EXPECT_EQ(brenn_serv_live_allocations(), live);
        }
    }
    auto image = ImageOf(id, state, {{9, {guid[0], guid[1]}, 64, 0x11}});
    void* a = Load(image, false);
    void* b = Load(image, true);
    EXPECT_EQ(__qesSearchChunk(a, 9), __qesSearchChunk(b, 9));
    EXPECT_EQ(SaveM(b), image);
    __qesDeleteStream(&a);
    __qesDeleteStream(&b);
}

// Within one image too: the later cell of another size stays private.
TEST(RngBadImages, OneImageGivingAGuidTwoSizesLoadsTheSecondPrivately) {
    const int32_t id = QES_BRNG_MCG31M1;
    std::vector<uint8_t> state = StateFor(id);
    int64_t live = brenn_serv_live_allocations();
    auto image = ImageOf(id, state, {{9, {0xAB, 0xCD}, 1, 0x33}, {9, {0xAB, 0xCD}, 9, 0x34}});
    void* s = Load(image, false);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(__qesGetNumChunks(s), 2);
    // The list runs newest first: the cell of 9 bytes, read second, holds its own.
    const uint8_t* newest = static_cast<const uint8_t*>(__qesSearchChunk(s, 9));
    EXPECT_EQ(std::vector<uint8_t>(newest, newest + 9), std::vector<uint8_t>(9, 0x34));
    std::vector<uint8_t> saved = SaveM(s);
    EXPECT_EQ(saved.size(), image.size());
    __qesDeleteStream(&s);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

// The size rule at the chunk functions themselves: a cell joins a row only with the
// row's size; rows made by the exported entry carry none, and no cell joins them by
// guid, though a cell may still be pointed at one explicitly.
TEST(RngSharedGuids, ACellJoinsARowOnlyWithTheRowsSize) {
    const int32_t id = QES_BRNG_MCG31M1;
    uint32_t seed = 1;
    void *s = nullptr, *t = nullptr;
    ASSERT_EQ(__qesNewStreamEx(&s, id, 1, &seed), 0);
    ASSERT_EQ(__qesNewStreamEx(&t, id, 1, &seed), 0);
    int64_t live = brenn_serv_live_allocations();
    const uint64_t guid[2] = {0x600D, 0x512E};
    void* shared = brenn_serv_allocate(32, 128);
    ASSERT_EQ(__qesAddChunk(s, 9, guid, shared, 32), 0);
    void* other = brenn_serv_allocate(16, 128);
    ASSERT_EQ(__qesAddChunk(t, 9, guid, other, 16), 0);
    EXPECT_EQ(__qesSearchChunk(t, 9), other);
    uint8_t zeroGuid[16] = {};
    QesChunk* head;
    std::memcpy(&head, static_cast<char*>(t) + 8, sizeof head);
    EXPECT_EQ(std::memcmp(head->guid, zeroGuid, 16), 0);
    QesChunk wrongSize{};
    wrongSize.size = 5;
    __qesRegisterGlobRODataReference(&wrongSize, guid);
    EXPECT_EQ(wrongSize.data, nullptr);
    // A copy of the sharing stream shares; the private one is duplicated.
    void *cs = nullptr, *ct = nullptr;
    ASSERT_EQ(__qesCopyStream(&cs, s), 0);
    ASSERT_EQ(__qesCopyStream(&ct, t), 0);
    EXPECT_EQ(__qesSearchChunk(cs, 9), shared);
    EXPECT_NE(__qesSearchChunk(ct, 9), other);
    for (void* x : {s, t, cs, ct})
        __qesDeleteChunks(x);
    for (void* x : {cs, ct})
        __qesDeleteStream(&x);

    const uint64_t made[2] = {0x3ADE, 1};
    GlobRODataEntry* e = nullptr;
    void* block = brenn_serv_allocate(8, 128);
    ASSERT_EQ(__qesCreateGlobRODataTableEntry(&e, made, block), 0);
    void* mine = brenn_serv_allocate(8, 128);
    ASSERT_EQ(__qesAddChunk(s, 9, made, mine, 8), 0);
    EXPECT_EQ(__qesSearchChunk(s, 9), mine);
    QesChunk cell{};
    cell.size = 8;
    __qesRegisterGlobRODataReference(&cell, made);
    EXPECT_EQ(cell.data, block);
    EXPECT_EQ(e->refCount, 2u);
    __qesUnregisterGlobRODataReference(made);
    __qesUnregisterGlobRODataReference(made);
    __qesDeleteChunks(s);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    __qesDeleteStream(&s);
    __qesDeleteStream(&t);
}

} // namespace
