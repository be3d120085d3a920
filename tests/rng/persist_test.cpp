// Stream images in files and memory: round trips that continue the sequence for
// every generator built, with private and shared chunks; the image's bytes; the
// older header form; and every way a load or save can fail, with nothing left
// allocated and the caller's pointer cleared.
#include <unistd.h>

#include <cstdio>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/brng_harness.h"
#include "tests/rng/toy_brng.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::test;

struct Gen {
    int32_t brng;
    int32_t wordBytes;
};
const Gen kGenerators[] = {{QES_BRNG_MCG31M1, 4}, {0, 4},
                           {QES_BRNG_MCG59, 8},   {3, 8},
                           {QES_BRNG_MT19937, 4}, {QES_BRNG_SFMT19937, 4},
                           {QES_BRNG_MT2203, 4},  {QES_BRNG_MT2203 + 6023, 4},
                           {QES_BRNG_MRG32K3A, 4}, {2, 4},
                           {QES_BRNG_R250, 4},    {1, 4},
                           {QES_BRNG_WH, 16},     {QES_BRNG_WH + 272, 16},
                           {276, 16}};

std::string TempPath(const char* tag) {
    return std::string(::testing::TempDir()) + "brenn_persist_" + tag + "_" +
           std::to_string(getpid());
}

void* NewStream(int32_t brng) {
    return NewKeyed(brng, {12345, 678, 9});
}

std::vector<uint8_t> Next(void* s, int32_t wordBytes, int n = 700) {
    std::vector<uint8_t> w(static_cast<size_t>(n) * wordBytes);
    EXPECT_EQ(_qesiRngUniformBits(0, s, n, w.data()), 0);
    return w;
}

std::vector<uint8_t> SaveM(void* s) {
    int32_t size = __qesGetStreamSize(s);
    std::vector<uint8_t> image(static_cast<size_t>(size) + 64, 0xEE);
    EXPECT_EQ(__qesSaveStreamM(s, image.data()), 0);
    // Exactly the announced size is written.
    for (size_t i = static_cast<size_t>(size); i < image.size(); ++i)
        EXPECT_EQ(image[i], 0xEE);
    image.resize(static_cast<size_t>(size));
    return image;
}

std::vector<uint8_t> ReadFile(const std::string& path) {
    std::vector<uint8_t> v;
    FILE* f = std::fopen(path.c_str(), "rb");
    if (f == nullptr) return v;
    int c;
    while ((c = std::fgetc(f)) != EOF)
        v.push_back(static_cast<uint8_t>(c));
    std::fclose(f);
    return v;
}

void WriteFile(const std::string& path, const std::vector<uint8_t>& bytes) {
    FILE* f = std::fopen(path.c_str(), "wb");
    ASSERT_NE(f, nullptr);
    if (!bytes.empty()) std::fwrite(bytes.data(), bytes.size(), 1, f);
    std::fclose(f);
}

// A load from memory that fails with `status`, clears the caller's pointer and leaves
// nothing allocated.
void ExpectLoadRefused(const std::vector<uint8_t>& image, int32_t status) {
    int64_t live = brenn_serv_live_allocations();
    void* m = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesLoadStreamM(&m, image.data()), status);
    EXPECT_EQ(m, nullptr);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

uint32_t Le32(const std::vector<uint8_t>& v, size_t at) {
    uint32_t x;
    std::memcpy(&x, v.data() + at, 4);
    return x;
}

// ---- Round trips -------------------------------------------------------------------

TEST(RngPersist, RoundTripsContinueTheSequence) {
    std::string path = TempPath("trip");
    for (const Gen& g : kGenerators) {
        for (bool chunks : {false, true}) {
            void* s = NewStream(g.brng);
            Next(s, g.wordBytes, 1001); // inside a block, and inside an SFMT group
            if (chunks) {
                AddPrivate(s, 5, 40, 0x11);
                AddPrivate(s, 7, 1, 0x22);
            }
            auto image = SaveM(s);
            ASSERT_EQ(__qesSaveStreamF(s, path.c_str(), -1), 0);
            EXPECT_EQ(ReadFile(path), image) << "file and memory hold one format";
            void* m = reinterpret_cast<void*>(1);
            void* f = reinterpret_cast<void*>(1);
            ASSERT_EQ(__qesLoadStreamM(&m, image.data()), 0);
            ASSERT_EQ(__qesLoadStreamF(&f, path.c_str(), -1), 0);
            EXPECT_EQ(__qesGetStreamStateBrng(m), g.brng);
            auto expect = Next(s, g.wordBytes);
            EXPECT_EQ(Next(m, g.wordBytes), expect) << g.brng;
            EXPECT_EQ(Next(f, g.wordBytes), expect) << g.brng;
            if (chunks) {
                // Both cells come back, the list reversed: the oldest is now newest.
                ASSERT_EQ(__qesGetNumChunks(f), 2);
                const QesChunk* head = HeadChunk(f);
                EXPECT_EQ(head->id, 5);
                EXPECT_EQ(head->size, 40u);
                EXPECT_EQ(static_cast<uint8_t*>(head->data)[39], 0x11);
                EXPECT_EQ(head->next->id, 7);
                // Saving the loaded stream again gives the reversed list in the image.
                auto again = SaveM(f);
                EXPECT_EQ(again.size(), image.size());
                EXPECT_EQ(Le32(again, again.size() - 1 - 24), 7u);
            }
            for (void* x : {s, m, f})
                __qesDeleteStream(&x);
        }
    }
    std::remove(path.c_str());
}

TEST(RngPersist, ImageBytes) {
    void* s = NewStream(QES_BRNG_MT19937);
    Next(s, 4, 3);
    AddPrivate(s, 9, 12, 0x5A);
    uint64_t guid[2] = {0x0102030405060708ull, 0x1112131415161718ull};
    void* shared = FilledBlock(8, 0x77);
    ASSERT_EQ(__qesAddChunk(s, 13, guid, shared, 8), 0);
    auto image = SaveM(s);
    const size_t state = 2520 - 16;
    ASSERT_EQ(image.size(), 24 + state + (24 + 8) + (24 + 12));
    EXPECT_EQ(image[0], 2);
    EXPECT_EQ(std::memcmp(image.data() + 4, "RNG", 3), 0);
    EXPECT_EQ(image[8] | image[9] << 8, 24);
    EXPECT_EQ(Le32(image, 12), state);
    EXPECT_EQ(image[16] | image[17] << 8, 2);
    EXPECT_EQ(Le32(image, 20), static_cast<uint32_t>(QES_BRNG_MT19937));
    EXPECT_EQ(std::memcmp(image.data() + 24, static_cast<char*>(s) + 16, state), 0);
    // The newest chunk first: id, guid low word first, size, data.
    size_t at = 24 + state;
    EXPECT_EQ(Le32(image, at), 13u);
    uint64_t g[2];
    std::memcpy(g, image.data() + at + 4, 16);
    EXPECT_EQ(g[0], guid[0]);
    EXPECT_EQ(g[1], guid[1]);
    EXPECT_EQ(Le32(image, at + 20), 8u);
    EXPECT_EQ(image[at + 24], 0x77);
    at += 32;
    EXPECT_EQ(Le32(image, at), 9u);
    EXPECT_EQ(Le32(image, at + 4) | Le32(image, at + 12), 0u);
    EXPECT_EQ(image[at + 24 + 11], 0x5A);
    // Loading the shared chunk joins the live row of the table: the loaded stream
    // shares the block, and the copy read from the image is not kept.
    int64_t live = brenn_serv_live_allocations();
    void* m = nullptr;
    ASSERT_EQ(__qesLoadStreamM(&m, image.data()), 0);
    EXPECT_EQ(__qesSearchChunk(m, 13), shared);
    __qesDeleteStream(&m);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    __qesDeleteStream(&s);
}

// The 20-byte header of the older form, with its version byte deciding whether a
// chunk has a guid.
std::vector<uint8_t> OldImage(uint8_t version, bool magicFirst, const void* stream,
                              int32_t stateBytes, std::vector<uint8_t> chunk) {
    std::vector<uint8_t> v(20, 0);
    v[0] = version;
    std::memcpy(v.data() + (magicFirst ? 0 : 4), "RNG", 3);
    v[10] = static_cast<uint8_t>(stateBytes);
    v[11] = static_cast<uint8_t>(stateBytes >> 8);
    v[12] = chunk.empty() ? 0 : 1;
    int32_t brng = __qesGetStreamStateBrng(stream);
    std::memcpy(v.data() + 16, &brng, 4);
    const uint8_t* state = static_cast<const uint8_t*>(stream) + 16;
    v.insert(v.end(), state, state + stateBytes);
    v.insert(v.end(), chunk.begin(), chunk.end());
    return v;
}

TEST(RngPersist, OlderHeaderForm) {
    void* s = NewStream(QES_BRNG_MT19937);
    Next(s, 4, 100);
    const int32_t state = 2504;
    // Version 0: chunk with id, size, data and no guid.
    std::vector<uint8_t> chunk = {5, 0, 0, 0, 3, 0, 0, 0, 0xA, 0xB, 0xC};
    auto v0 = OldImage(0, false, s, state, chunk);
    void* m = nullptr;
    ASSERT_EQ(__qesLoadStreamM(&m, v0.data()), 0);
    ASSERT_EQ(__qesGetNumChunks(m), 1);
    EXPECT_EQ(static_cast<uint8_t*>(__qesSearchChunk(m, 5))[2], 0xC);
    auto expect = Next(s, 4);
    EXPECT_EQ(Next(m, 4), expect);
    __qesDeleteStream(&m);
    // Version 1: the chunk carries a guid (zero here: private).
    std::vector<uint8_t> withGuid = {5, 0, 0, 0};
    withGuid.insert(withGuid.end(), 16, 0);
    withGuid.insert(withGuid.end(), {1, 0, 0, 0, 0x42});
    auto v1 = OldImage(1, false, s, state, withGuid);
    ASSERT_EQ(__qesLoadStreamM(&m, v1.data()), 0);
    EXPECT_EQ(*static_cast<uint8_t*>(__qesSearchChunk(m, 5)), 0x42);
    __qesDeleteStream(&m);
    // The magic at offset 0 makes the version byte "R": no chunk layout for it, so
    // it loads without chunks and fails with one.
    auto r0 = OldImage(0, true, s, state, {});
    ASSERT_EQ(__qesLoadStreamM(&m, r0.data()), 0);
    __qesDeleteStream(&m);
    ExpectLoadRefused(OldImage(0, true, s, state, chunk), QES_RNG_STATUS_FILE_READ);
    __qesDeleteStream(&s);
}

// ---- Failures ------------------------------------------------------------------------

TEST(RngPersist, MalformedImages) {
    std::string path = TempPath("bad");
    void* s = NewStream(QES_BRNG_MCG59);
    auto good = SaveM(s);
    int64_t live = brenn_serv_live_allocations();
    auto both = [&](std::vector<uint8_t> bytes, int32_t fileStatus, int32_t memoryStatus) {
        WriteFile(path, bytes);
        void* f = reinterpret_cast<void*>(1);
        EXPECT_EQ(__qesLoadStreamF(&f, path.c_str(), -1), fileStatus);
        EXPECT_EQ(f, nullptr);
        bytes.resize(bytes.size() + 256, 0); // the block is as long as it claims
        if (memoryStatus != 0) ExpectLoadRefused(bytes, memoryStatus);
        EXPECT_EQ(brenn_serv_live_allocations(), live);
    };
    both({2, 0, 0}, QES_RNG_STATUS_FILE_READ, 0); // a file of 3 bytes
    both({}, QES_RNG_STATUS_FILE_READ, 0);
    auto wrongMagic = good;
    wrongMagic[5] = 'X';
    both(wrongMagic, QES_RNG_STATUS_BAD_FILE_FORMAT, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    auto wrongSize = good;
    wrongSize[12] += 1;
    both(wrongSize, QES_RNG_STATUS_BAD_FILE_FORMAT, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    auto shortHeader = good;
    shortHeader[8] = 20;
    both(shortHeader, QES_RNG_STATUS_BAD_FILE_FORMAT, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    for (int32_t id : {0x1100000, 0x800001, 0x900000 + 6024, 281, -5}) {
        auto unknown = good;
        std::memcpy(unknown.data() + 20, &id, 4);
        both(unknown, QES_RNG_STATUS_BAD_FILE_FORMAT, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    }
    // Truncated state, truncated chunk fields and data.
    both(std::vector<uint8_t>(good.begin(), good.end() - 1), QES_RNG_STATUS_FILE_READ, 0);
    AddPrivate(s, 4, 100, 1);
    live = brenn_serv_live_allocations();
    auto chunked = SaveM(s);
    for (size_t cut : {size_t{1}, size_t{50}, size_t{100}, size_t{110}, size_t{124}})
        both(std::vector<uint8_t>(chunked.begin(), chunked.end() - cut), QES_RNG_STATUS_FILE_READ,
             0);
    __qesDeleteStream(&s);
    std::remove(path.c_str());
}

TEST(RngPersist, FileNamesAndFileErrors) {
    void* s = NewStream(QES_BRNG_MT19937);
    std::string path = TempPath("name");
    // A counted name is not read past its length.
    std::string padded = path + "TRAILING";
    ASSERT_EQ(__qesSaveStreamF(s, padded.c_str(), static_cast<int32_t>(path.size())), 0);
    void* f = nullptr;
    ASSERT_EQ(__qesLoadStreamF(&f, padded.c_str(), static_cast<int32_t>(path.size())), 0);
    __qesDeleteStream(&f);
    std::remove(path.c_str());
    // Length 0 names the empty file name, which cannot be opened.
    EXPECT_EQ(__qesSaveStreamF(s, path.c_str(), 0), QES_RNG_STATUS_FILE_OPEN);
    f = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesLoadStreamF(&f, path.c_str(), 0), QES_RNG_STATUS_FILE_OPEN);
    EXPECT_EQ(f, nullptr);
    EXPECT_EQ(__qesSaveStreamF(s, "/nonexistent-dir/x", -1), QES_RNG_STATUS_FILE_OPEN);
    // A directory opens for reading but gives no bytes.
    EXPECT_EQ(__qesLoadStreamF(&f, "/", -1), QES_RNG_STATUS_FILE_READ);
    // A full device takes the buffered writes and fails at the close.
    // A chunk larger than the buffer is written at once, and that write fails.
    if (access("/dev/full", W_OK) == 0) {
        EXPECT_EQ(__qesSaveStreamF(s, "/dev/full", -1), QES_RNG_STATUS_FILE_CLOSE);
        AddPrivate(s, 5, 1 << 16, 0x5A);
        EXPECT_EQ(__qesSaveStreamF(s, "/dev/full", -1), QES_RNG_STATUS_FILE_WRITE);
    }
    __qesDeleteStream(&s);
}

TEST(RngPersist, AllocationFailuresLeaveNothing) {
    void* s = NewStream(QES_BRNG_MT19937);
    AddPrivate(s, 3, 64, 3);
    AddPrivate(s, 4, 16, 4);
    auto image = SaveM(s);
    std::string path = TempPath("oom");
    std::string counted = path + "zz";
    SweepNoMemory(
        [&] { return __qesSaveStreamF(s, counted.c_str(), static_cast<int32_t>(path.size())); });
    EXPECT_EQ(ReadFile(path), image);
    auto load = [&](bool file) {
        void* t = reinterpret_cast<void*>(1);
        int32_t status =
            file ? __qesLoadStreamF(&t, counted.c_str(), static_cast<int32_t>(path.size()))
                 : __qesLoadStreamM(&t, image.data());
        if (status != 0) {
            EXPECT_EQ(t, nullptr);
            return status;
        }
        EXPECT_EQ(__qesGetNumChunks(t), 2);
        return __qesDeleteStream(&t);
    };
    SweepNoMemory([&] { return load(false); });
    SweepNoMemory([&] { return load(true); });
    __qesDeleteStream(&s);
    std::remove(path.c_str());
}

} // namespace
