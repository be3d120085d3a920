// MT2203 members against a plain implementation of the 69-word twister written
// here: the tabled members' constants, outputs that differ between members from the
// first word, cuts around the 69-word block, real forms, the member bound, and the
// refusal of jumps and of members that have no verified row yet.
#include <cstring>
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

TEST(RngMt2203, TabledMembersFollowThePlainRecurrence) {
    std::vector<uint32_t> firsts;
    for (const Row& row : kTabled) {
        WordBrng g = Member(row.member);
        void* s = New(g);
        uint32_t params[3];
        std::memcpy(params, static_cast<char*>(s) + 16 + 70 * 4, 12);
        EXPECT_EQ(params[0], row.a);
        EXPECT_EQ(params[1], row.b);
        EXPECT_EQ(params[2], row.c);
        __qesDeleteStream(&s);
        // Cuts across the block edge, one request of several blocks, and the rest.
        auto expect = Ref(row, 5000);
        ExpectCutsMatch(g, expect, {{68, 1, 1, 69, 70, 300, 1, 4490}}, row.member);
        firsts.push_back(expect[0]);
    }
    // Members with the same seed differ from the first output on.
    for (size_t i = 1; i < firsts.size(); ++i)
        EXPECT_NE(firsts[i], firsts[0]);
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
    // A member inside the family whose row is not verified yet is refused; the
    // record stays with the caller, as after any failed initialisation.
    void* pending = NewKeyed(QES_BRNG_MT2203 + 4, kKey, QES_RNG_STATUS_BAD_BRNG);
    if (pending != nullptr) __qesDeleteStream(&pending);
}

} // namespace
