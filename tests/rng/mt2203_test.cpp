// MT2203 members against a plain implementation of the 69-word twister written
// here: the published members' constants, every member's row well formed and its
// twist constant its own, outputs that differ between members from the first word,
// cuts around the 69-word block, real forms, the member bound, and the refusal of
// jumps. (Primitivity and equidistribution of the rows: tools/mt, mt2203_dc verify.)
#include <cstring>
#include <set>
#include <vector>

#include <gtest/gtest.h>

#include "tests/rng/brng_harness.h"

namespace {

using namespace brenn::test;

struct Row {
    int32_t member;
    uint32_t a, b, c;
};
const Row kTabled[] = {{0, 0xAF81055Fu, 0xDD7EEF80u, 0xEFD78000u},
                       {1, 0x832604E1u, 0x66AD7F80u, 0xEBD58000u},
                       {2, 0x92F70739u, 0x656D7780u, 0xEFC50000u},
                       {3, 0x8B75046Eu, 0x76957780u, 0xEFC48000u},
                       {6023, 0xE8761D4Bu, 0x72967680u, 0xEFEB0000u}};

const Words32 kKey = {7, 77, 777};

WordBrng Member(int32_t member) {
    return {QES_BRNG_MT2203 + member, kKey, __qesiBRngMT2203, __qessBRngMT2203, __qesdBRngMT2203};
}

// The 69-word twister with the member's twist and tempering masks.
Words32 Ref(const Row& row, size_t n) {
    return Draw(RefTwister({69, 34, 0xFFFFFFE0u, row.a, 12, row.b, row.c}, kKey), n);
}

// The member's constants as seeding copied them into the state.
Row RowOf(int32_t member) {
    void* s = New(Member(member));
    uint32_t params[3];
    std::memcpy(params, static_cast<char*>(s) + 16 + 70 * 4, 12);
    __qesDeleteStream(&s);
    return {member, params[0], params[1], params[2]};
}

TEST(RngMt2203, MembersFollowThePlainRecurrenceWithTheirRows) {
    std::vector<Row> rows;
    for (const Row& row : kTabled) {
        Row got = RowOf(row.member);
        EXPECT_EQ(got.a, row.a) << row.member;
        EXPECT_EQ(got.b, row.b) << row.member;
        EXPECT_EQ(got.c, row.c) << row.member;
        rows.push_back(row);
    }
    // Found members (the first, one in the middle, the last) run the same recurrence
    // with the constants of their rows.
    for (int32_t member : {4, 3001, 6022})
        rows.push_back(RowOf(member));
    std::vector<uint32_t> firsts;
    for (const Row& row : rows) {
        // Cuts across the block edge, one request of several blocks, and the rest.
        auto expect = Ref(row, 5000);
        ExpectCutsMatch(Member(row.member), expect, {{68, 1, 1, 69, 70, 300, 1, 4490}},
                        row.member);
        firsts.push_back(expect[0]);
    }
    // Members with the same seed differ from the first output on.
    for (size_t i = 1; i < firsts.size(); ++i)
        EXPECT_NE(firsts[i], firsts[0]);
}

TEST(RngMt2203, EveryMemberHasADistinctWellFormedRow) {
    std::set<uint32_t> twists;
    for (int32_t member = 0; member < 6024; ++member) {
        Row row = RowOf(member);
        EXPECT_TRUE(twists.insert(row.a).second) << member;
        EXPECT_NE(row.a >> 31, 0u) << member;
        EXPECT_EQ(row.b & 0x7Fu, 0u) << member;   // shifted left by 7 before the mask
        EXPECT_EQ(row.c & 0x7FFFu, 0u) << member; // and by 15
    }
}

TEST(RngMt2203, RealForms) {
    ExpectRealForms(Member(1), Ref(kTabled[1], 701), {701},
                    {0.0, 4.0, -1.0f, 1.0f, UnsignedD, UnsignedF});
}

TEST(RngMt2203, MembersJumpsAndRefusals) {
    void* s = New(Member(0));
    EXPECT_EQ(__qesSkipAheadStream(s, 10), QES_RNG_STATUS_NO_SKIPAHEAD);
    ExpectNoLeapfrogNorSkipEx(s);
    __qesDeleteStream(&s);
    void* none = NewKeyed(QES_BRNG_MT2203 + 6024, kKey, QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(none, nullptr);
}

} // namespace
