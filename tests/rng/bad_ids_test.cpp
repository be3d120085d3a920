// Ids, and streams whose id names no generator of this build, through every entry of
// the random-number service that takes one: creation and allocation, properties,
// copies, jumps, saving and every distribution generator. Families that are
// registered but not built, legacy ids, members past a family's count, negative ids
// and ids past the registry each give a status: nothing calls through a null entry,
// reads outside the tables or is left allocated.
#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/bad_input.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

TEST(RngBadIds, NewStreamMakesStreamsOfBuiltGeneratorsOnly) {
    ToyBrngId(); // one family registered at run time among the current ids
    std::vector<int32_t> ids = EveryId();
    ids.push_back(ToyBrngId());
    for (int32_t id : ids) {
        int64_t live = brenn_serv_live_allocations();
        void* s = nullptr;
        uint32_t seed = 5;
        int32_t status = __qesNewStreamEx(&s, id, 1, &seed);
        if (HasGenerator(id) && !IsAbstract(id)) {
            EXPECT_EQ(status, 0) << IdName(id);
            ASSERT_NE(s, nullptr) << IdName(id);
            uint64_t words[4];
            EXPECT_EQ(_qesiRngUniformBits(0, s, 1, words), 0) << IdName(id);
            __qesDeleteStream(&s);
        } else {
            EXPECT_EQ(status, QES_RNG_STATUS_BAD_BRNG) << IdName(id);
            EXPECT_EQ(s, nullptr) << IdName(id);
        }
        EXPECT_EQ(brenn_serv_live_allocations(), live) << IdName(id);
    }
}

// Rows of families without a generator are described (their sizes are the registry's
// to give); the blank legacy rows below the bound read as zeros; ids that name no row
// inside a table leave the caller's record alone.
TEST(RngBadIds, PropertiesDescribeEveryRowAndRefuseIdsOutsideTheTables) {
    for (int32_t id : EveryId()) {
        BrngRecord r;
        std::memset(&r, 0x5A, sizeof r);
        BrngRecord untouched = r;
        int32_t status = __qesGetBrngProperties(id, &r);
        if (const BrngRecord* row = RowNamed(id)) {
            EXPECT_EQ(status, 0) << IdName(id);
            EXPECT_EQ(std::memcmp(&r, row, sizeof r), 0) << IdName(id);
        } else {
            EXPECT_EQ(status, QES_RNG_STATUS_BAD_BRNG) << IdName(id);
            EXPECT_EQ(std::memcmp(&r, &untouched, sizeof r), 0) << IdName(id);
        }
    }
}

TEST(RngBadIds, AllocateStreamHoldsOnlyBuiltGenerators) {
    for (int32_t id : EveryId()) {
        int32_t family, member;
        BrngRecord* table = __qesGetBrngBaseOffset(id, &family, &member);
        void* s = nullptr;
        int32_t status = __qesAllocateStream(&s, table, id, family, member);
        if (HasGenerator(id)) {
            EXPECT_EQ(status, 0) << IdName(id);
            EXPECT_EQ(__qesGetStreamStateBrng(s), id);
            __qesDeleteStream(&s);
        } else {
            EXPECT_EQ(status, QES_RNG_STATUS_BAD_BRNG) << IdName(id);
            EXPECT_EQ(s, nullptr) << IdName(id);
        }
    }
    // A family index below the legacy table passes the legacy test, but names no row.
    void* s = nullptr;
    EXPECT_EQ(__qesAllocateStream(&s, __RegBrngs, -3, -3, 0), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(s, nullptr);
}

// One call of an entry on `stream`, with what it must return. Results go to `out`,
// which holds a sentinel that a refused call must leave.
struct StreamEntry {
    const char* name;
    std::function<int32_t(void* stream)> call;
    int32_t expect;
};

constexpr uint8_t kSentinel = 0xC5;
uint8_t out[256];

std::vector<StreamEntry> EveryStreamEntry(void* other, const std::string& path,
                                          int32_t geometricRefusal) {
    auto fresh = [] { return out; };
    const int32_t bad = QES_RNG_STATUS_BAD_BRNG;
    return {
        {"CopyStream",
         [](void* s) {
             void* c = nullptr;
             int32_t status = __qesCopyStream(&c, s);
             if (c != nullptr) __qesDeleteStream(&c);
             return status;
         },
         bad},
        {"CopyStreamState from", [other](void* s) { return __qesCopyStreamState(other, s); }, bad},
        {"CopyStreamState into", [other](void* s) { return __qesCopyStreamState(s, other); }, bad},
        {"Leapfrog", [](void* s) { return __qesLeapfrogStream(s, 0, 2); }, bad},
        {"Leapfrog of a negative count", [](void* s) { return __qesLeapfrogStream(s, 0, -1); },
         QES_RNG_STATUS_BAD_STREAM_COUNT},
        {"SkipAhead", [](void* s) { return __qesSkipAheadStream(s, 10); }, bad},
        {"SkipAheadEx",
         [](void* s) {
             uint64_t w[2] = {10, 1};
             return __qesSkipAheadStreamEx(s, 2, w);
         },
         bad},
        {"GetStreamSize", [](void* s) { return __qesGetStreamSize(s); }, bad},
        {"SaveStreamM", [fresh](void* s) { return __qesSaveStreamM(s, fresh()); }, bad},
        {"SaveStreamF", [path](void* s) { return __qesSaveStreamF(s, path.c_str(), -1); }, bad},
        {"sUniform",
         [fresh](void* s) {
             return _qessRngUniform(0, s, 4, reinterpret_cast<float*>(fresh()), 0, 1);
         },
         bad},
        {"dUniform",
         [fresh](void* s) {
             return _qesdRngUniform(0, s, 4, reinterpret_cast<double*>(fresh()), 0, 1);
         },
         bad},
        {"dUniform accurate",
         [fresh](void* s) {
             return _qesdRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, s, 4,
                                    reinterpret_cast<double*>(fresh()), 0, 1);
         },
         bad},
        {"iUniform",
         [fresh](void* s) {
             return _qesiRngUniform(0, s, 4, reinterpret_cast<int32_t*>(fresh()), 0, 9);
         },
         bad},
        {"UniformBits", [fresh](void* s) { return _qesiRngUniformBits(0, s, 4, fresh()); }, bad},
        {"UniformBits32",
         [fresh](void* s) {
             return _qesiRngUniformBits32(0, s, 4, reinterpret_cast<uint32_t*>(fresh()));
         },
         bad},
        {"UniformBits64",
         [fresh](void* s) {
             return _qesiRngUniformBits64(0, s, 4, reinterpret_cast<uint64_t*>(fresh()));
         },
         bad},
        {"Bernoulli",
         [fresh](void* s) {
             return _qesiRngBernoulli(0, s, 4, reinterpret_cast<int32_t*>(fresh()), 0.5);
         },
         bad},
        {"Geometric",
         [fresh](void* s) {
             return _qesiRngGeometric(0, s, 4, reinterpret_cast<int32_t*>(fresh()), 0.5);
         },
         geometricRefusal},
    };
}

// Geometric refuses before it looks at the stream when the build has no logarithm.
int32_t GeometricRefusal() {
    void* s = NewSeeded(QES_BRNG_MCG31M1, 1);
    int32_t r[1];
    int32_t status = _qesiRngGeometric(0, s, 1, r, 0.5);
    __qesDeleteStream(&s);
    return status == QES_STATUS_BAD_METHOD ? status : QES_RNG_STATUS_BAD_BRNG;
}

TEST(RngBadIds, EveryStreamEntryRefusesAStreamWithoutAGenerator) {
    void* other = NewSeeded(QES_BRNG_MT19937, 3);
    std::vector<uint8_t> otherState(static_cast<uint8_t*>(other),
                                    static_cast<uint8_t*>(other) + 2520);
    TempFile file("entries");
    auto entries = EveryStreamEntry(other, file.path, GeometricRefusal());
    int64_t live = brenn_serv_live_allocations();
    int checked = 0;
    for (int32_t id : EveryId()) {
        if (HasGenerator(id)) continue;
        ForgedStream forged(id);
        std::vector<uint8_t> record(static_cast<uint8_t*>(forged.get()),
                                    static_cast<uint8_t*>(forged.get()) + 4096);
        for (const StreamEntry& e : entries) {
            std::remove(file.path.c_str());
            std::memset(out, kSentinel, sizeof out);
            EXPECT_EQ(e.call(forged.get()), e.expect) << e.name << ", " << IdName(id);
            // Nothing was written: no output, no file, neither stream changed.
            for (uint8_t b : out)
                if (b != kSentinel) {
                    ADD_FAILURE() << e.name << " wrote results for " << IdName(id);
                    break;
                }
            if (FILE* f = std::fopen(file.path.c_str(), "rb")) {
                ADD_FAILURE() << e.name << " made a file for " << IdName(id);
                std::fclose(f);
            }
            ++checked;
        }
        EXPECT_EQ(std::memcmp(forged.get(), record.data(), record.size()), 0) << IdName(id);
        EXPECT_EQ(std::memcmp(other, otherState.data(), otherState.size()), 0) << IdName(id);
    }
    EXPECT_GT(checked, 0);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    __qesDeleteStream(&other);
}

// The state copy moves the source generator's seed words: a destination whose record
// cannot hold them is refused, whatever the two ids; one family under its legacy and
// current ids, or a larger destination, takes them.
TEST(RngBadIds, CopyStateNeedsRoomForTheSourcesSeedWords) {
    void* mt = NewSeeded(QES_BRNG_MT19937, 1);
    void* mcg = NewSeeded(QES_BRNG_MCG31M1, 2);
    void* legacy = NewSeeded(0, 3);
    uint8_t before[24];
    std::memcpy(before, mcg, sizeof before);
    EXPECT_EQ(__qesCopyStreamState(mcg, mt), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(std::memcmp(mcg, before, sizeof before), 0);
    EXPECT_EQ(__qesCopyStreamState(legacy, mcg), 0);
    EXPECT_EQ(std::memcmp(static_cast<char*>(legacy) + 16, static_cast<char*>(mcg) + 16, 4), 0);
    EXPECT_EQ(__qesCopyStreamState(mt, mcg), 0);
    for (void* s : {mt, mcg, legacy})
        __qesDeleteStream(&s);
}

} // namespace
