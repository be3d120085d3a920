// MRG32K3A against the published generator: its recurrence in exact integers and its
// published floating code; the seeding rules; the three forms across the block of 16;
// skip-ahead by both methods against generating and discarding, over short, long and
// 128-bit counts, the table and the generic path; and the jumps it refuses.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "platform/serv.h"
#include "tests/rng/brng_harness.h"

namespace {

using namespace brenn::test;

constexpr int64_t kM1 = 4294967087, kM2 = 4294944443;

// The published recurrence, oldest word first, in plain 64-bit integers (the
// products stay below 2^53).
struct RefMrg {
    int64_t x[3], y[3];
    explicit RefMrg(const Words32& s) : x{s[0], s[1], s[2]}, y{s[3], s[4], s[5]} {}
    uint32_t Next() {
        int64_t nx = ((1403580 * x[1] - 810728 * x[0]) % kM1 + kM1) % kM1;
        int64_t ny = ((527612 * y[2] - 1370589 * y[0]) % kM2 + kM2) % kM2;
        x[0] = x[1], x[1] = x[2], x[2] = nx;
        y[0] = y[1], y[1] = y[2], y[2] = ny;
        return static_cast<uint32_t>(((nx - ny) % kM1 + kM1) % kM1);
    }
};

// The published floating-point code of the generator, as printed with the paper.
struct PublishedMrg {
    double s1[3], s2[3];
    double Next() {
        const double norm = 2.328306549295728e-10, m1 = 4294967087.0, m2 = 4294944443.0;
        double p1 = 1403580.0 * s1[1] - 810728.0 * s1[0];
        double k = std::floor(p1 / m1);
        p1 -= k * m1;
        if (p1 < 0.0) p1 += m1;
        s1[0] = s1[1], s1[1] = s1[2], s1[2] = p1;
        double p2 = 527612.0 * s2[2] - 1370589.0 * s2[0];
        k = std::floor(p2 / m2);
        p2 -= k * m2;
        if (p2 < 0.0) p2 += m2;
        s2[0] = s2[1], s2[1] = s2[2], s2[2] = p2;
        return p1 > p2 ? (p1 - p2) * norm : (p1 - p2 + m1) * norm;
    }
};

const Words32 kKey = {12345, 12345, 12345, 12345, 12345, 12345};
const Words32 kOther = {4294967086u, 7, 0, 4294944442u, 1, 99};

WordBrng Mrg(const Words32& key) {
    const BrngRecord* row = RowOf(QES_BRNG_MRG32K3A);
    return {QES_BRNG_MRG32K3A, key, row->iGenerate, row->sGenerate, row->dGenerate};
}

Words32 State(void* s) {
    Words32 w(6);
    std::memcpy(w.data(), static_cast<char*>(s) + 16, 24);
    return w;
}

TEST(RngMrg32k3a, IntegersEqualThePublishedRecurrence) {
    for (const Words32& key : {kKey, kOther}) {
        Words32 ref = Draw(RefMrg(key), 100000);
        EXPECT_EQ(FirstWords(Mrg(key), key, 100000), ref);
    }
    // The legacy id runs the same generator.
    EXPECT_EQ(FirstWords(Mrg(kKey), kKey, 50), FirstWords({2, kKey, Mrg(kKey).iGen}, kKey, 50));
}

// The published code's output is z / (m1 + 1), m1 itself where z is 0; its first
// value with six seeds of 12345 is 0.127011122046577.
TEST(RngMrg32k3a, PublishedFloatingCodeIsTheWordOverM1PlusOne) {
    PublishedMrg pub{{12345, 12345, 12345}, {12345, 12345, 12345}};
    Words32 z = FirstWords(Mrg(kKey), kKey, 100000);
    EXPECT_NEAR(z[0] * (1.0 / 4294967088.0), 0.127011122046577, 5e-16);
    for (size_t i = 0; i < z.size(); ++i) {
        double expect = (z[i] == 0 ? 4294967087.0 : z[i]) * 2.328306549295728e-10;
        ASSERT_EQ(pub.Next(), expect) << i;
    }
}

TEST(RngMrg32k3a, SeedingRules) {
    struct {
        Words32 seed;
        Words32 state;
    } cases[] = {
        {{}, {1, 1, 1, 1, 1, 1}},
        {{0, 0, 0, 0, 0, 0}, {1, 0, 0, 1, 0, 0}},
        {{5}, {5, 1, 1, 1, 1, 1}},
        {{0, 0, 0}, {1, 0, 0, 1, 1, 1}},
        {{4294967087u, 4294967086u, 0xFFFFFFFFu, 4294944443u, 4294944442u, 0xFFFFFFFFu},
         {0, 4294967086u, 208, 0, 4294944442u, 22852}},
        {{4294967087u, 0, 0, 4294944443u, 0, 0}, {1, 0, 0, 1, 0, 0}},
        {{1, 2, 3, 4, 5, 6, 7, 8}, {1, 2, 3, 4, 5, 6}},
    };
    for (const auto& c : cases) {
        void* s = NewKeyed(QES_BRNG_MRG32K3A, c.seed);
        EXPECT_EQ(State(s), c.state) << c.seed.size();
        // Whatever the seed, the words follow the recurrence from that state.
        EXPECT_EQ(Take(Mrg(c.seed), s, 40), Draw(RefMrg(c.state), 40));
        __qesDeleteStream(&s);
    }
}

double FormD(uint32_t z, double a, double b) {
    return static_cast<double>(z) * ((b - a) * 2.328306549837829e-10) + a;
}
float FormF(uint32_t z, float a, float b) {
    double span = static_cast<double>(b) - static_cast<double>(a);
    return static_cast<float>(static_cast<double>(z) * (span * 2.328306549837829e-10) + a);
}

TEST(RngMrg32k3a, FormsAndCutsAcrossTheBlock) {
    static_assert(2.328306549837829e-10 == 1.0 / 4294967087.0);
    Words32 ref = Draw(RefMrg(kKey), 20000);
    ExpectRealForms(Mrg(kKey), ref, {1, 15, 16, 17, 33, 1000},
                    {-2.0, 3.0, 0.5f, 1.5f, FormD, FormF});
    ExpectCutsMatch(Mrg(kKey), ref, {{15, 1, 16, 17, 0, 31, 32, 33, 5}, {16, 16, 15, 17}}, 7);
}

// After skipping by the long count `words` by method 3, the stream equals `expect`
// skipped by `lo` by method 2 (each from kKey).
void ExpectSkipEx(const Words32& expectState, const std::vector<uint64_t>& words) {
    void* s = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    ASSERT_EQ(__qesSkipAheadStreamEx(s, static_cast<int32_t>(words.size()), words.data()), 0);
    EXPECT_EQ(State(s), expectState) << words.size();
    __qesDeleteStream(&s);
}

Words32 SkippedState(uint64_t count) {
    void* s = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    EXPECT_EQ(__qesSkipAheadStream(s, count), 0);
    Words32 w = State(s);
    __qesDeleteStream(&s);
    return w;
}

TEST(RngMrg32k3a, SkipsEqualGenerateAndDiscard) {
    const uint64_t kMillion = 1000000;
    Words32 seq = Draw(RefMrg(kKey), kMillion + 2000);
    ExpectSkipsMatch(Mrg(kKey), seq, {0, 5, 16}, {0, 1, 2, 3, 16, 17, 1000, kMillion}, 600);
    // Method 3 with one word, and with trailing zero words, is method 2.
    for (uint64_t count : {uint64_t{0}, uint64_t{1}, uint64_t{2}, uint64_t{3}, uint64_t{16},
                           uint64_t{17}, kMillion}) {
        Words32 expect = SkippedState(count);
        ExpectSkipEx(expect, {count});
        ExpectSkipEx(expect, {count, 0, 0, 0, 0});
        ExpectSkipEx(expect, {count, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0});
    }
    ExpectLongJumpsCommute(Mrg(kKey), uint64_t{1} << 40, 1234);
}

// A 128-bit count: the high word alone, then the low word by method 2, in either
// order, and 2^64 as two jumps of 2^63.
TEST(RngMrg32k3a, LongCountsComposeFromShortJumps) {
    const uint64_t lo = 0x0123456789ABCDEFull, hi = 0xFEDCBA9876543210ull;
    void* a = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    void* b = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    void* c = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    const uint64_t both[2] = {lo, hi}, high[2] = {0, hi};
    ASSERT_EQ(__qesSkipAheadStreamEx(a, 2, both), 0);
    ASSERT_EQ(__qesSkipAheadStreamEx(b, 2, high), 0);
    ASSERT_EQ(__qesSkipAheadStream(b, lo), 0);
    ASSERT_EQ(__qesSkipAheadStream(c, lo), 0);
    ASSERT_EQ(__qesSkipAheadStreamEx(c, 2, high), 0);
    EXPECT_EQ(State(a), State(b));
    EXPECT_EQ(State(a), State(c));
    for (void* s : {a, b, c})
        __qesDeleteStream(&s);
    Words32 twice = SkippedState(uint64_t{1} << 63);
    void* d = NewKeyed(QES_BRNG_MRG32K3A, twice);
    // Reseeding with a state's words gives that state, so the second half goes on it.
    ASSERT_EQ(__qesSkipAheadStream(d, uint64_t{1} << 63), 0);
    ExpectSkipEx(State(d), {0, 1});
    __qesDeleteStream(&d);
}

// Little-endian multiprecision product of two counts.
std::vector<uint64_t> Times(const std::vector<uint64_t>& a, const std::vector<uint64_t>& b) {
    std::vector<uint64_t> p(a.size() + b.size(), 0);
    for (size_t i = 0; i < a.size(); ++i) {
        unsigned __int128 carry = 0;
        for (size_t j = 0; j < b.size(); ++j) {
            unsigned __int128 t = static_cast<unsigned __int128>(a[i]) * b[j] + p[i + j] + carry;
            p[i + j] = static_cast<uint64_t>(t);
            carry = t >> 64;
        }
        p[i + b.size()] = static_cast<uint64_t>(carry);
    }
    return p;
}

std::vector<uint64_t> CubeLessOne(uint64_t m) {
    std::vector<uint64_t> c = Times(Times({m}, {m}), {m});
    c[0] -= 1; // m^3 is odd: no borrow
    return c;
}

// Each component's matrix has order m^3 - 1 (its polynomial is primitive), so a
// multiple P of both orders plus 5 is a skip by 5: P + 5 is below 2^193 and takes
// the table path, P 2^256 + 5 the generic one, with allocated scratch over 10 words.
TEST(RngMrg32k3a, TableAndGenericPathsReduceByThePeriod) {
    std::vector<uint64_t> period = Times(CubeLessOne(kM1), CubeLessOne(kM2));
    while (period.back() == 0)
        period.pop_back();
    ASSERT_EQ(period.size(), 3u);
    Words32 five = SkippedState(5);
    std::vector<uint64_t> table = period;
    table[0] += 5; // P is even: no carry
    ExpectSkipEx(five, table);
    std::vector<uint64_t> generic(4, 0);
    generic.insert(generic.end(), period.begin(), period.end());
    generic[0] = 5;
    ExpectSkipEx(five, generic);
    generic.resize(12, 0);
    ExpectSkipEx(five, generic);
    // The scratch of a long count may fail: the stream stays as it was.
    void* s = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    const Words32 start = State(s);
    SweepNoMemory([&] {
        std::memcpy(static_cast<char*>(s) + 16, start.data(), 24);
        int32_t status = __qesSkipAheadStreamEx(s, 12, generic.data());
        EXPECT_EQ(State(s), status == 0 ? five : start);
        return status;
    });
    __qesDeleteStream(&s);
}

TEST(RngMrg32k3a, RefusedMethodsLeaveTheStream) {
    void* s = NewKeyed(QES_BRNG_MRG32K3A, kKey);
    Words32 start = State(s);
    EXPECT_EQ(__qesLeapfrogStream(s, 1, 4), QES_RNG_STATUS_NO_LEAPFROG);
    EXPECT_EQ(__qesLeapfrogStream(s, 0, -1), QES_RNG_STATUS_BAD_STREAM_COUNT);
    ExpectBadMethodsAndNoBitForms(s);
    EXPECT_EQ(State(s), start);
    __qesDeleteStream(&s);
}

} // namespace
