// The generator registry: how ids split into table, family and member, which ids
// are valid, what registration checks and returns, and which built-in families have
// their generators in this build.
#include <cstdio>
#include <fstream>
#include <string>

#include <gtest/gtest.h>

#include "brenn_rng.h"

namespace {

int32_t Dummy4(int32_t, void*, int32_t, const void*) {
    return 0;
}
int32_t DummyS(void*, int32_t, float*, float, float) {
    return 0;
}
int32_t DummyD(void*, int32_t, double*, double, double) {
    return 0;
}
int32_t DummyI(void*, int32_t, void*) {
    return 0;
}

// Legacy ids below 281 index the old table, with the WH members on row four; current
// ids split into family and member.
TEST(RngRegistry, IdsSplitIntoTableFamilyAndMember) {
    struct {
        int32_t id;
        BrngRecord* table;
        int32_t family, member;
    } cases[] = {{0, __RegBrngs, 0, 0},
                 {3, __RegBrngs, 3, 0},
                 {4, __RegBrngs, 4, 0},
                 {5, __RegBrngs, 4, 1},
                 {276, __RegBrngs, 4, 272},
                 {277, __RegBrngs, 277, 0},
                 {278, __RegBrngs, 278, 0},
                 {-7, __RegBrngs, -7, 0},
                 {QES_BRNG_WH + 272, __RegBrngsNew, 4, 272},
                 {QES_BRNG_PHILOX4X32X10, __RegBrngsNew, 15, 0}};
    for (auto& c : cases) {
        int32_t family, member;
        EXPECT_EQ(__qesGetBrngBaseOffset(c.id, &family, &member), c.table) << c.id;
        EXPECT_EQ(family, c.family) << c.id;
        EXPECT_EQ(member, c.member) << c.id;
    }
}

TEST(RngRegistry, ValidityFollowsMemberCountsAndTheLegacyBound) {
    BrngRecord r;
    EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_WH + 272, &r), 0);
    EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_WH + 273, &r), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_MT2203 + 6023, &r), 0);
    EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_MT2203 + 6024, &r), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(__qesGetBrngProperties(QES_BRNG_MCG31M1 + 1, &r), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(__qesGetBrngProperties(0x1100000, &r), QES_RNG_STATUS_BAD_BRNG);
    // The legacy bound is 281 although rows 279 and 280 are blank, and the member is
    // not looked at there.
    EXPECT_EQ(__qesIsBrngValid(__RegBrngs, 280, 0), 0);
    EXPECT_EQ(__qesIsBrngValid(__RegBrngs, 281, 0), QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(__qesIsBrngValid(__RegBrngs, 2, 99), 0);
    EXPECT_EQ(__qesIsBrngValid(__RegBrngsNew, -1 + 0, 0) == 0, false);
    EXPECT_EQ(__qesGetBrngProperties(280, &r), 0);
    EXPECT_EQ(r.stateSize, 0);
    EXPECT_EQ(r.initStream, nullptr);
}

TEST(RngRegistry, RowsCarryTheTabledSizes) {
    constexpr bool kPointer32 = sizeof(void*) == 4;
    struct {
        int32_t id, state, seeds, zero, word, bits;
    } rows[] = {{0x100000, 24, 1, 0, 4, 31},
                {0x200000, 1024, 252, 1, 4, 32},
                {0x300000, 40, 6, 1, 4, 32},
                {0x400000, 32, 1, 0, 8, 59},
                {0x500000, 48, 4, 1, 16, 24},
                {0x600000, 11712, 2604, 0, 4, 32},
                {0x700000, 84288, 10498, 0, 4, 32},
                {0x800000, 2520, 625, 1, 4, 32},
                {0x900000, 312, 70, 1, 4, 32},
                // The abstract records hold two native pointers.
                {0xA00000, kPointer32 ? 40 : 48, 0, 1, 4, 32},
                {0xB00000, kPointer32 ? 56 : 64, 0, 1, 4, 32},
                {0xC00000, kPointer32 ? 48 : 56, 0, 1, 4, 32},
                {0xD00000, 2536, 625, 1, 4, 32},
                {0xE00000, 24, 1, 0, 4, 32},
                {0xF00000, 72, 8, 1, 4, 32},
                {0x1000000, 64, 8, 1, 4, 32},
                {0, 24, 1, 0, 4, 31},
                {3, 32, 1, 0, 8, 59},
                {150, 48, 4, 1, 16, 24},
                {277, 11712, 2604, 0, 4, 32},
                {278, 84288, 10498, 0, 4, 32}};
    for (auto& e : rows) {
        BrngRecord r;
        ASSERT_EQ(__qesGetBrngProperties(e.id, &r), 0) << std::hex << e.id;
        EXPECT_EQ(r.stateSize, e.state) << std::hex << e.id;
        EXPECT_EQ(r.seedCount, e.seeds) << std::hex << e.id;
        EXPECT_EQ(r.includesZero, e.zero) << std::hex << e.id;
        EXPECT_EQ(r.wordSize, e.word) << std::hex << e.id;
        EXPECT_EQ(r.bitCount, e.bits) << std::hex << e.id;
    }
    for (int row = 279; row < 512; ++row)
        EXPECT_EQ(__RegBrngs[row].stateSize, 0);
    for (int row = 5; row <= 276; ++row)
        EXPECT_EQ(__RegBrngs[row].iGenerate, __RegBrngs[4].iGenerate);
}

// The congruential rows are built here; rows of other families keep null entries
// until their generators land, and the list shows which.
TEST(RngRegistry, FamiliesWithoutGeneratorsHaveNullEntries) {
    static const char* names[16] = {"MCG31M1",   "R250",      "MRG32K3A",  "MCG59",
                                    "WH",        "Sobol",     "Niederr",   "MT19937",
                                    "MT2203",    "iAbstract", "dAbstract", "sAbstract",
                                    "SFMT19937", "TRNG",      "ARS5",      "PHILOX4X32X10"};
    int built = 0;
    for (int f = 0; f < 16; ++f) {
        const BrngRecord& r = __RegBrngsNew[f];
        bool any = r.initStream || r.sGenerate || r.dGenerate || r.iGenerate;
        bool all = r.initStream && r.sGenerate && r.dGenerate && r.iGenerate;
        EXPECT_EQ(any, all) << names[f] << " is partly built";
        if (all)
            ++built;
        else
            std::printf("family %2d %-14s no generator in this build\n", f, names[f]);
    }
    std::printf("families with generators: %d of 16\n", built);
    EXPECT_NE(__RegBrngsNew[0].iGenerate, nullptr);
    EXPECT_NE(__RegBrngsNew[3].iGenerate, nullptr);
    EXPECT_EQ(__RegBrngs[0].iGenerate, __RegBrngsNew[0].iGenerate);
}

TEST(RngRegistry, RegistrationChecksInOrderAndAppendsFamilies) {
    EXPECT_EQ(__qesGetNumRegBrngs(), 16);
    BrngRecord r{-1, 0, 0, 3, 0, nullptr, nullptr, nullptr, nullptr};
    EXPECT_EQ(__qesRegisterBrng(&r), QES_RNG_STATUS_BAD_STATE_SIZE);
    r.stateSize = 0;
    EXPECT_EQ(__qesRegisterBrng(&r), QES_RNG_STATUS_BAD_WORD_SIZE);
    r.wordSize = 8;
    EXPECT_EQ(__qesRegisterBrng(&r), QES_RNG_STATUS_BAD_SEED_COUNT);
    r.seedCount = 1;
    EXPECT_EQ(__qesRegisterBrng(&r), QES_RNG_STATUS_BAD_BIT_COUNT);
    r.bitCount = 64;
    EXPECT_EQ(__qesRegisterBrng(&r), QES_STATUS_NULL_POINTER);
    r.initStream = Dummy4;
    r.sGenerate = DummyS;
    r.dGenerate = DummyD;
    EXPECT_EQ(__qesRegisterBrng(&r), QES_STATUS_NULL_POINTER);
    EXPECT_EQ(__qesGetNumRegBrngs(), 16);

    BrngRecord got;
    EXPECT_EQ(__qesGetBrngProperties(0x1100000, &got), QES_RNG_STATUS_BAD_BRNG);
    r.iGenerate = DummyI;
    r.includesZero = 7; // copied as it stands
    EXPECT_EQ(__qesRegisterBrng(&r), 0x1100000);
    EXPECT_EQ(__qesRegisterBrng(&r), 0x1200000);
    EXPECT_EQ(__qesGetNumRegBrngs(), 18);
    ASSERT_EQ(__qesGetBrngProperties(0x1100000, &got), 0);
    EXPECT_EQ(got.includesZero, 7);
    EXPECT_EQ(got.iGenerate, DummyI);
    EXPECT_EQ(__qesGetBrngProperties(0x1100001, &got), QES_RNG_STATUS_BAD_BRNG);
}

// The processor checks agree with what the kernel says of this machine.
TEST(RngRegistry, ProcessorQueriesAgreeWithTheKernelsFlags) {
    std::ifstream in("/proc/cpuinfo");
    std::string line;
    while (std::getline(in, line) && line.rfind("flags", 0) != 0) {
    }
    if (line.empty()) GTEST_SKIP() << "no /proc/cpuinfo flags";
    line += ' ';
    EXPECT_EQ(__qesCPUisAES() != 0, line.find(" aes ") != std::string::npos);
    EXPECT_EQ(__qesCPUisRDRAND() != 0, line.find(" rdrand ") != std::string::npos);
}

} // namespace
