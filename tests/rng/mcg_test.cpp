// The congruential generators against a plain recurrence written here: integer,
// double and single outputs for ordinary and edge seeds, any cut of a request into
// calls, and leapfrog and skip-ahead against generating and discarding.
#include <algorithm>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/rng/brng_harness.h"

namespace {

using brenn::test::NewKeyed;

constexpr uint64_t kM31 = 2147483647;
constexpr uint64_t kA31 = 1132489760;
constexpr uint64_t kMask59 = (uint64_t{1} << 59) - 1;
constexpr uint64_t kA59 = 302875106592253ull;
// The MCG31M1 scale is the double nearest 1 / (2^31 - 1), written as the library has it.
constexpr double kScale31 = 4.656612875245797e-10;
static_assert(kScale31 == 1.0 / 2147483647.0);

bool Is59(int32_t brng) {
    return brng == QES_BRNG_MCG59 || brng == 3;
}

// Element i of a fresh stream, straight from the recurrence.
std::vector<uint64_t> Ref(bool is59, uint64_t x, int n) {
    std::vector<uint64_t> v(n);
    for (int i = 0; i < n; ++i, x = is59 ? x * kA59 & kMask59 : x * kA31 % kM31)
        v[i] = x;
    return v;
}

// The next n raw words, widened to 64 bits.
std::vector<uint64_t> Words(void* s, int n, bool is59) {
    std::vector<uint64_t> out(n);
    if (is59) {
        EXPECT_EQ(_qesiRngUniformBits(0, s, n, out.data()), 0);
    } else {
        std::vector<uint32_t> w(n);
        EXPECT_EQ(_qesiRngUniformBits(0, s, n, w.data()), 0);
        std::copy(w.begin(), w.end(), out.begin());
    }
    return out;
}

TEST(RngMcgSeeding, EdgeSeedsFoldToOne) {
    struct {
        int32_t brng;
        std::vector<uint32_t> seed;
        uint64_t first;
    } cases[] = {{QES_BRNG_MCG31M1, {0}, 1},
                 {QES_BRNG_MCG31M1, {0x7FFFFFFF}, 1},
                 {QES_BRNG_MCG31M1, {0x80000000u}, 1},
                 {QES_BRNG_MCG31M1, {0xFFFFFFFFu}, 0xFFFFFFFFu % kM31},
                 {QES_BRNG_MCG31M1, {}, 1},
                 {QES_BRNG_MCG59, {0, 0x8000000}, 1},
                 {QES_BRNG_MCG59, {0}, 1},
                 {QES_BRNG_MCG59, {}, 1},
                 {QES_BRNG_MCG59, {5, 0xFFFFFFFFu, 7}, 5 + (uint64_t{0x7FFFFFF} << 32)}};
    for (const auto& c : cases) {
        void* s = NewKeyed(c.brng, c.seed);
        EXPECT_EQ(Words(s, 1, Is59(c.brng))[0], c.first) << c.brng << " " << c.seed.size();
        __qesDeleteStream(&s);
    }
    // MCG59 keeps the multiplier beside the state word.
    void* s = NewKeyed(QES_BRNG_MCG59, {0});
    uint64_t state[2];
    std::memcpy(state, static_cast<char*>(s) + 16, 16);
    EXPECT_EQ(state[0], 1u);
    EXPECT_EQ(state[1], kA59);
    __qesDeleteStream(&s);
}

struct Case {
    int32_t brng;
    std::vector<uint32_t> seed;
    uint64_t x0;
};

std::vector<Case> Cases() {
    return {{QES_BRNG_MCG31M1, {1}, 1},
            {QES_BRNG_MCG31M1, {0x7FFFFFFE}, 0x7FFFFFFE},
            {QES_BRNG_MCG31M1, {123456789}, 123456789},
            {0, {0}, 1}, // the legacy id runs the same generator
            {QES_BRNG_MCG59, {1}, 1},
            {QES_BRNG_MCG59, {0xFFFFFFFFu, 0x7FFFFFF}, kMask59},
            {QES_BRNG_MCG59, {987654321, 12345}, 987654321 + (uint64_t{12345} << 32)},
            {3, {42}, 42}};
}

// Expected real outputs, by the element formulas of each generator.
double RefDouble(bool is59, uint64_t x, double a, double b) {
    if (!is59) return static_cast<double>(x) * ((b - a) * kScale31) + a;
    double s = (b - a) * 0x1p-59;
    return static_cast<double>(x & 0xFFFFFFFF) * s +
           static_cast<double>(x & ~uint64_t{0xFFFFFFFF}) * s + a;
}

float RefFloat(bool is59, uint64_t x, float a, float b) {
    double span = static_cast<double>(b) - static_cast<double>(a);
    if (!is59) return static_cast<float>(static_cast<double>(x) * (span * kScale31) + a);
    double v = static_cast<double>(x & 0xFFFFFFFF) + static_cast<double>(x & ~uint64_t{0xFFFFFFFF});
    return static_cast<float>(v * (span * 0x1p-59) + static_cast<double>(a));
}

TEST(RngMcgOutput, ThreeFormsEqualTheRecurrence) {
    const int n = 1000;
    for (const Case& c : Cases()) {
        bool is59 = Is59(c.brng);
        auto ref = Ref(is59, c.x0, n + 1);
        void* s = NewKeyed(c.brng, c.seed);
        void* t = NewKeyed(c.brng, c.seed);
        void* u = NewKeyed(c.brng, c.seed);
        auto w = Words(s, n, is59);
        std::vector<double> d(n);
        std::vector<float> f(n);
        ASSERT_EQ(_qesdRngUniform(0, t, n, d.data(), -3.0, 5.5), 0);
        ASSERT_EQ(_qessRngUniform(0, u, n, f.data(), 2.0f, 2.5f), 0);
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(w[i], ref[i]) << c.brng << " element " << i;
            ASSERT_EQ(d[i], RefDouble(is59, ref[i], -3.0, 5.5)) << c.brng << " element " << i;
            ASSERT_EQ(f[i], RefFloat(is59, ref[i], 2.0f, 2.5f)) << c.brng << " element " << i;
        }
        // The next call continues with element n whichever form it uses.
        double next;
        ASSERT_EQ(_qesdRngUniform(0, s, 1, &next, 0.0, 1.0), 0);
        EXPECT_EQ(next, RefDouble(is59, ref[n], 0.0, 1.0));
        __qesDeleteStream(&s);
        __qesDeleteStream(&t);
        __qesDeleteStream(&u);
    }
}

// The largest residue of MCG31M1 maps just below 1.
TEST(RngMcgOutput, UnitIntervalStaysBelowOne) {
    void* s = NewKeyed(QES_BRNG_MCG31M1, {0x7FFFFFFE});
    double d;
    _qesdRngUniform(0, s, 1, &d, 0.0, 1.0);
    EXPECT_LT(d, 1.0);
    __qesDeleteStream(&s);
}

// A request cut into calls at every pair of points in the first 40 elements gives
// the same words as one call; this crosses the block edges 3, 4, 7, 8 and 15.
TEST(RngMcgOutput, AnyCutGivesTheSameSequence) {
    for (int32_t brng : {QES_BRNG_MCG31M1, QES_BRNG_MCG59}) {
        bool is59 = Is59(brng);
        auto ref = Ref(is59, 777, 40);
        for (int cut1 = 1; cut1 < 40; ++cut1) {
            for (int cut2 = cut1; cut2 < 40; ++cut2) {
                void* s = NewKeyed(brng, {777});
                std::vector<double> d(40);
                _qesdRngUniform(0, s, cut1, d.data(), 0.0, 1.0);
                if (cut2 > cut1) _qesdRngUniform(0, s, cut2 - cut1, d.data() + cut1, 0.0, 1.0);
                _qesdRngUniform(0, s, 40 - cut2, d.data() + cut2, 0.0, 1.0);
                for (int i = 0; i < 40; ++i)
                    ASSERT_EQ(d[i], RefDouble(is59, ref[i], 0.0, 1.0))
                        << brng << " cuts " << cut1 << "," << cut2 << " element " << i;
                __qesDeleteStream(&s);
            }
        }
        // Unaligned result arrays take the same path.
        void* s = NewKeyed(brng, {777});
        std::vector<float> f(41);
        _qessRngUniform(0, s, 40, f.data() + 1, 0.0f, 1.0f);
        for (int i = 0; i < 40; ++i)
            ASSERT_EQ(f[i + 1], RefFloat(is59, ref[i], 0.0f, 1.0f));
        __qesDeleteStream(&s);
    }
}

TEST(RngMcgJumps, LeapfrogAndSkipEqualGenerateAndDiscard) {
    for (int32_t brng : {QES_BRNG_MCG31M1, QES_BRNG_MCG59}) {
        bool is59 = Is59(brng);
        auto ref = Ref(is59, 99, 2000);
        // Element 1, 4, 7, ... for k = 1 of 3 streams; a skip by 2 then counts the
        // stream's own elements.
        void* s = NewKeyed(brng, {99});
        ASSERT_EQ(__qesLeapfrogStream(s, 1, 3), 0);
        auto w = Words(s, 3, is59);
        EXPECT_EQ(w[0], ref[1]);
        EXPECT_EQ(w[1], ref[4]);
        EXPECT_EQ(w[2], ref[7]);
        __qesDeleteStream(&s);
        s = NewKeyed(brng, {99});
        __qesLeapfrogStream(s, 1, 3);
        ASSERT_EQ(__qesSkipAheadStream(s, 2), 0);
        w = Words(s, 40, is59);
        for (int i = 0; i < 40; ++i)
            ASSERT_EQ(w[i], ref[7 + 3 * i]);
        __qesDeleteStream(&s);

        for (uint64_t skip : {0ull, 1ull, 7ull, 8ull, 999ull, 1500ull}) {
            s = NewKeyed(brng, {99});
            ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
            w = Words(s, 100, is59);
            for (int i = 0; i < 100; ++i)
                ASSERT_EQ(w[i], ref[skip + i]) << skip;
            __qesDeleteStream(&s);
        }
        // A huge skip against the period: MCG31M1's period is 2^31 - 2, MCG59's
        // 2^57, so these land back on element 5.
        s = NewKeyed(brng, {99});
        uint64_t period = is59 ? (uint64_t{1} << 57) : kM31 - 1;
        ASSERT_EQ(__qesSkipAheadStream(s, 3 * period + 5), 0);
        EXPECT_EQ(Words(s, 1, is59)[0], ref[5]);
        __qesDeleteStream(&s);

        s = NewKeyed(brng, {99});
        EXPECT_EQ(__qesLeapfrogStream(s, 0, -1), QES_RNG_STATUS_BAD_STREAM_COUNT);
        EXPECT_EQ(__qesLeapfrogStream(s, 0, 1), 0);
        uint64_t one = 1;
        EXPECT_EQ(__qesSkipAheadStreamEx(s, 1, &one), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
        EXPECT_EQ(Words(s, 1, is59)[0], ref[0]);
        int32_t f, m;
        BrngRecord* row = __qesGetBrngBaseOffset(brng, &f, &m) + f;
        EXPECT_EQ(row->initStream(9, s, 0, nullptr), QES_STATUS_BAD_METHOD);
        // Reseeding undoes a leapfrog.
        __qesLeapfrogStream(s, 2, 5);
        uint32_t seed = 99;
        row->initStream(QES_INIT_SEED, s, 1, &seed);
        w = Words(s, 3, is59);
        EXPECT_EQ(w[1], ref[1]);
        __qesDeleteStream(&s);
    }
}

TEST(RngPowers, BinaryPoweringAgreesWithRepeatedProducts) {
    EXPECT_EQ(__qesiPowMod2P59(0, 0, 0, 0), 1u);
    EXPECT_EQ(__qesiPowMod2P59(0, 0, 1, 0), 0u);
    EXPECT_EQ(__qesiPowMod2P31M1(12345, 0, 0), 1u);
    EXPECT_EQ(__qesiPowMod(7, 0, 0, 1), 1u);
    uint64_t p31 = 1, pg = 1, p59 = 1;
    for (uint32_t k = 1; k < 300; ++k) {
        p31 = p31 * kA31 % kM31;
        pg = pg * 48271 % 4294967291u;
        p59 = p59 * kA59 & kMask59;
        ASSERT_EQ(__qesiPowMod2P31M1(kA31, k, 0), p31);
        ASSERT_EQ(__qesiPowMod(48271, k, 0, 4294967291u), pg);
        ASSERT_EQ(__qesiPowMod2P59(static_cast<uint32_t>(kA59), kA59 >> 32, k, 0), p59);
    }
    // Fermat: a^(p-1) = 1 for the prime 2^31 - 1, with a base above the modulus.
    EXPECT_EQ(__qesiPowMod2P31M1(0xFFFFFFF0u, 0x7FFFFFFE, 0), 1u);
    EXPECT_EQ(__qesiPowMod2P31M1(kA31, 0x7FFFFFFE, 1), __qesiPowMod2P31M1(kA31, 0, 1));
}

} // namespace
