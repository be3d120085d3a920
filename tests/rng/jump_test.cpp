// The number theory of the jumps: 3 x 3 matrix powers and their tables, and the two
// polynomial jump drivers on a small GF(2)-linear generator written here, against
// stepping it. (The GF(2) remainder itself is tested in polyrem_test.cpp.)
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "rng/core/jumptables.h"
#include "tests/rng/brng_harness.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::rng;

// ---- 3 x 3 powers -------------------------------------------------------------

using u128 = unsigned __int128;

void Step(uint32_t* v, const uint32_t* row, uint64_t m) {
    u128 s = u128{row[0]} * v[0] + u128{row[1]} * v[1] + u128{row[2]} * v[2];
    uint32_t next = static_cast<uint32_t>(s % m);
    v[0] = v[1];
    v[1] = v[2];
    v[2] = next;
}

TEST(RngVect3, PowersEqualRepeatedSteps) {
    for (int c = 0; c < 2; ++c) {
        const uint32_t* row = c == 0 ? kMrgRow1 : kMrgRow2;
        uint64_t m = c == 0 ? kMrgModulus1 : kMrgModulus2;
        int32_t neg = static_cast<int32_t>(static_cast<uint32_t>(m));
        uint32_t ref[3] = {12345, 67890, 13579};
        for (uint32_t k = 0; k <= 300; ++k) {
            uint32_t v[3] = {12345, 67890, 13579};
            __qesiVect3PowMod(v, row, neg, k, 0);
            ASSERT_EQ(std::memcmp(v, ref, sizeof v), 0) << c << " " << k;
            uint64_t word = k;
            uint32_t w[3] = {12345, 67890, 13579};
            ASSERT_EQ(__qesiVect3PowArrayMod(w, row, neg, 1, &word), 0);
            ASSERT_EQ(std::memcmp(w, ref, sizeof w), 0);
            uint32_t t[3] = {12345, 67890, 13579};
            if (c == 0)
                __qesiVect3PowArrayMod_M1(t, 1, &word, kMrgJumpTable1);
            else
                __qesiVect3PowArrayMod_M2(t, 1, &word, kMrgJumpTable2);
            ASSERT_EQ(std::memcmp(t, ref, sizeof t), 0);
            Step(ref, row, m);
        }
    }
}

// Entry 0 is the published companion matrix itself, and entry b + 1 the square of
// entry b.
TEST(RngVect3, TableEntriesAreRepeatedSquares) {
    const uint32_t first1[9] = {0, 1, 0, 0, 0, 1, 4294967087u - 810728, 1403580, 0};
    const uint32_t first2[9] = {0, 1, 0, 0, 0, 1, 4294944443u - 1370589, 0, 527612};
    EXPECT_EQ(std::memcmp(kMrgJumpTable1, first1, sizeof first1), 0);
    EXPECT_EQ(std::memcmp(kMrgJumpTable2, first2, sizeof first2), 0);
    for (int c = 0; c < 2; ++c) {
        const uint32_t* table = c == 0 ? kMrgJumpTable1 : kMrgJumpTable2;
        uint64_t m = c == 0 ? kMrgModulus1 : kMrgModulus2;
        for (int b = 0; b + 1 < kVect3TableEntries; ++b) {
            const uint32_t* x = table + 9 * b;
            for (int i = 0; i < 3; ++i)
                for (int j = 0; j < 3; ++j) {
                    u128 s = 0;
                    for (int k = 0; k < 3; ++k)
                        s += u128{x[3 * i + k]} * x[3 * k + j];
                    ASSERT_EQ(table[9 * (b + 1) + 3 * i + j], static_cast<uint32_t>(s % m)) << b;
                }
        }
    }
}

// Long counts: the table path, the generic path over many words, and a count
// split into its two 64-bit halves all agree.
TEST(RngVect3, LongCountsAgreeAcrossPaths) {
    int32_t neg = static_cast<int32_t>(static_cast<uint32_t>(kMrgModulus1));
    std::vector<uint64_t> words = {
        0x0123456789ABCDEFull, 0xFEDCBA9876543210ull, 0x1ull, 0, 0, 0, 0, 0, 0, 0, 0, 0};
    uint32_t a[3] = {1, 2, 3}, b[3] = {1, 2, 3}, c[3] = {1, 2, 3};
    __qesiVect3PowArrayMod_M1(a, 3, words.data(), kMrgJumpTable1);
    ASSERT_EQ(__qesiVect3PowArrayMod(b, kMrgRow1, neg, 12, words.data()), 0);
    EXPECT_EQ(std::memcmp(a, b, sizeof a), 0);
    // Powering word by word: M^(w0 + 2^64 w1 + 2^128 w2).
    __qesiVect3PowMod(c, kMrgRow1, neg, 0x89ABCDEF, 0x01234567);
    uint64_t high[3] = {0, 0xFEDCBA9876543210ull, 1};
    __qesiVect3PowArrayMod(c, kMrgRow1, neg, 3, high);
    EXPECT_EQ(std::memcmp(a, c, sizeof a), 0);
    // More than ten words need an allocated scratch; its failure leaves the vector.
    const uint32_t start[3] = {1, 2, 3};
    brenn::test::SweepNoMemory([&] {
        uint32_t v[3] = {1, 2, 3};
        int32_t status = __qesiVect3PowArrayMod(v, kMrgRow1, neg, 12, words.data());
        EXPECT_EQ(std::memcmp(v, status == 0 ? a : start, sizeof v), 0);
        return status;
    });
}

// ---- Polynomial jump drivers ------------------------------------------------------

// A Fibonacci shift register over GF(2) with the trinomial x^89 + x^38 + 1 as its
// characteristic polynomial, kept as a ring of bits with a position, so that adding
// two states has to line their rings up as a real generator's would.
constexpr int kDegree = 89;
const int32_t kTerms[] = {0, 38, 89};

struct Lfsr {
    uint8_t bits[kDegree]; // bits[(pos + j) % degree] is s(n + j)
    int32_t pos;
};

void LfsrStep(void* p) {
    Lfsr* s = static_cast<Lfsr*>(p);
    uint8_t next = s->bits[s->pos] ^ s->bits[(s->pos + 38) % kDegree];
    s->bits[s->pos] = next;
    s->pos = (s->pos + 1) % kDegree;
}
void LfsrZero(void* p) {
    std::memset(p, 0, sizeof(Lfsr));
}
void LfsrCopy(void* d, const void* s) {
    std::memcpy(d, s, sizeof(Lfsr));
}
void LfsrAdd(void* d, const void* s) {
    Lfsr* x = static_cast<Lfsr*>(d);
    const Lfsr* y = static_cast<const Lfsr*>(s);
    for (int j = 0; j < kDegree; ++j)
        x->bits[(x->pos + j) % kDegree] ^= y->bits[(y->pos + j) % kDegree];
}
void LfsrFinish(void* stream, const void* result, int32_t) {
    LfsrCopy(stream, result);
}
int32_t LfsrPrepare(void*, uint64_t* count, int32_t* remainder) {
    *remainder = 0;
    return *count != 0;
}

Lfsr Seeded(uint32_t seed) {
    Lfsr s{};
    for (int j = 0; j < kDegree; ++j) {
        seed = seed * 1103515245 + 12345;
        s.bits[j] = (seed >> 16) & 1;
    }
    s.pos = 17;
    return s;
}

std::vector<int> Window(const Lfsr& s) {
    std::vector<int> w(kDegree);
    for (int j = 0; j < kDegree; ++j)
        w[j] = s.bits[(s.pos + j) % kDegree];
    return w;
}

using Driver = decltype(&__qes_SkipAheadHorner);

int32_t Jump(Driver driver, Lfsr* s, uint64_t count) {
    return driver(s, LfsrZero, LfsrAdd, LfsrCopy, LfsrStep, LfsrFinish, LfsrPrepare,
                  static_cast<uint32_t>(count), static_cast<uint32_t>(count >> 32), 4, kDegree,
                  sizeof(Lfsr), 3, kTerms);
}

TEST(RngGf2Jump, HornerAndWindowEqualStepping) {
    for (Driver d : {&__qes_SkipAheadHorner, &__qes_SkipAheadSWin}) {
        for (uint64_t count :
             {0ull, 1ull, 7ull, 8ull, 88ull, 89ull, 90ull, 255ull, 1000ull, 123457ull}) {
            Lfsr stepped = Seeded(5), jumped = Seeded(5);
            for (uint64_t k = 0; k < count; ++k)
                LfsrStep(&stepped);
            ASSERT_EQ(Jump(d, &jumped, count), 0);
            EXPECT_EQ(Window(jumped), Window(stepped)) << count;
        }
    }
}

// Counts beyond stepping: both drivers agree, and jumps compose.
TEST(RngGf2Jump, LongJumpsAgreeAndCompose) {
    uint64_t a = 0x3FFFFFFFFFull, b = 0x1234567890ABCull;
    Lfsr h = Seeded(9), w = Seeded(9), twice = Seeded(9);
    ASSERT_EQ(Jump(&__qes_SkipAheadHorner, &h, a + b), 0);
    ASSERT_EQ(Jump(&__qes_SkipAheadSWin, &w, a + b), 0);
    Jump(&__qes_SkipAheadSWin, &twice, a);
    Jump(&__qes_SkipAheadHorner, &twice, b);
    EXPECT_EQ(Window(h), Window(w));
    EXPECT_EQ(Window(h), Window(twice));
    // All ones: 2^64 - 1 steps on both drivers.
    Lfsr p = Seeded(3), q = Seeded(3);
    Jump(&__qes_SkipAheadSWin, &p, ~0ull);
    Jump(&__qes_SkipAheadHorner, &q, ~0ull);
    EXPECT_EQ(Window(p), Window(q));
}

TEST(RngGf2Jump, AllocationFailuresLeaveTheStream) {
    for (Driver d : {&__qes_SkipAheadHorner, &__qes_SkipAheadSWin}) {
        Lfsr reference = Seeded(4);
        Jump(d, &reference, 5000);
        brenn::test::SweepNoMemory([&] {
            Lfsr s = Seeded(4);
            int32_t status = Jump(d, &s, 5000);
            EXPECT_EQ(Window(s), Window(status == 0 ? reference : Seeded(4)));
            return status;
        });
    }
}

} // namespace
