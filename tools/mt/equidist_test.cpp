// k(v) by lattice reduction against plain elimination, against the published
// dimension defects of MT19937, and on recurrences that are not of full period.
#include <gtest/gtest.h>

#include "tools/mt/equidist.h"

namespace brenn::mt {
namespace {

struct Row {
    int member;
    uint32_t a, b, c;
};
constexpr Row kMember0{0, 0xAF81055Fu, 0xDD7EEF80u, 0xEFD78000u};
constexpr Row kMember6023{6023, 0xE8761D4Bu, 0x72967680u, 0xEFEB0000u};

TEST(Equidist, LatticeAgreesWithEliminationOnPublishedRows) {
    for (const Row& row : {kMember0, kMember6023}) {
        const MtParams p = Mt2203Params(row.a, row.b, row.c);
        EquidistProfile k;
        ASSERT_TRUE(ComputeEquidist(p, &k));
        // Both sides of the bits where the published masks fall short of the bound
        // (3, 17) and where they reach it (2, 16, 32).
        for (int v : {2, 3, 16, 17, 32}) {
            SCOPED_TRACE(testing::Message() << "member " << row.member << " v " << v);
            EXPECT_EQ(k[v - 1], EquidistBySlowElimination(p, v));
            EXPECT_EQ(k[v - 1], EquidistAt(p, v));
        }
    }
}

TEST(Equidist, LatticeAgreesWithEliminationOnPlainAndPartialTempering) {
    // Without tempering the top bits are a plain shift register: k(v) falls far
    // short of the bound; a tempering with only b set moves other bits.
    for (uint32_t b : {0u, 0xDD7EEF80u}) {
        const MtParams p = Mt2203Params(kMember0.a, b, 0);
        EquidistProfile k;
        ASSERT_TRUE(ComputeEquidist(p, &k));
        for (int v : {1, 5, 11}) {
            SCOPED_TRACE(testing::Message() << "b " << std::hex << b << std::dec << " v " << v);
            EXPECT_EQ(k[v - 1], EquidistBySlowElimination(p, v));
        }
    }
}

TEST(Equidist, ProfileStaysWithinBoundsAndPublishedRowsAreGood) {
    const Row rows[] = {kMember0,
                        {1, 0x832604E1u, 0x66AD7F80u, 0xEBD58000u},
                        {2, 0x92F70739u, 0x656D7780u, 0xEFC50000u},
                        {3, 0x8B75046Eu, 0x76957780u, 0xEFC48000u},
                        kMember6023};
    for (const Row& row : rows) {
        SCOPED_TRACE(row.member);
        EquidistProfile k;
        ASSERT_TRUE(ComputeEquidist(Mt2203Params(row.a, row.b, row.c), &k));
        for (int v = 1; v <= 32; ++v) {
            EXPECT_LE(k[v - 1], EquidistBound(2203, v));
            EXPECT_GE(k[v - 1], 68) << v; // no v falls below the 32-bit bound
        }
        EXPECT_EQ(k[0], 2203); // one bit is always fully equidistributed
        EXPECT_EQ(k[31], 68);  // and the published rows reach the bound at 32
        EXPECT_LE(TotalDefect(k, 2203), 720);
    }
}

TEST(Equidist, Mt19937HasThePublishedDefects) {
    const MtParams p = Mt19937Params();
    EquidistProfile k;
    ASSERT_TRUE(ComputeEquidist(p, &k));
    EXPECT_EQ(TotalDefect(k, p.Degree()), 6750);
    // Reaches the bound at v = 1, 2, 4, 8, 16, 32 and nowhere else.
    for (int v = 1; v <= 32; ++v)
        EXPECT_EQ(k[v - 1] == EquidistBound(p.Degree(), v), (v & (v - 1)) == 0) << v;
}

TEST(Equidist, DegenerateRecurrencesAreRefused) {
    // a = 0 drops the low bit of every twisted word: the map is not invertible, so
    // a nonzero state can die and the top bit cannot see the whole state.
    EquidistProfile k;
    EXPECT_FALSE(ComputeEquidist(Mt2203Params(0, 0xDD7EEF80u, 0xEFD78000u), &k));
    EXPECT_EQ(EquidistAt(Mt2203Params(0, 0xDD7EEF80u, 0xEFD78000u), 4), -1);
    EXPECT_FALSE(ComputeEquidist(Mt2203Params(kMember0.a, 0, 0), &k, 0));
    EXPECT_FALSE(ComputeEquidist(Mt2203Params(kMember0.a, 0, 0), &k, 33));
}

} // namespace
} // namespace brenn::mt
