// Binomial variates: inversion against the table search written out over the same
// uniforms, one uniform a variate, cuts and lost chunks that change nothing; BTPE's
// whole batches, its range and moments at the switch and at extreme trial counts;
// the flip at p = 0.5, p at 0 and 1, ntrial 0; failures with the frame undone.
#include <algorithm>
#include <climits>
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "frame/dispatch.h"
#include "tests/rng/discrete_harness.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

// Inversion as written: f(0) = (1 - q)^ntrial by the HA Powx, f(k) = f(k - 1) (a / k
// - s), m + 32 cumulative values each the total less the sum above it, the first k
// whose value exceeds u, the recurrence beyond the table; flipped for p from 0.5.
std::vector<int32_t> InversionWrittenOut(int32_t ntrial, double p, const std::vector<double>& u) {
    const bool flip = p >= 0.5;
    const double q = flip ? 1 - p : p, s = q / (1 - q), a = (ntrial + 1.0) * s;
    const int32_t m = std::max(0, static_cast<int32_t>(std::trunc(ntrial * q))), top = m + 32;
    std::vector<double> f(top);
    f[0] = 1 - q;
    ZAR_SLOT(dPowx, brenn::frame::SlotHA)(1, &f[0], ntrial, &f[0]);
    for (int32_t k = 1; k < top; ++k)
        f[k] = f[k - 1] * (a / k - s);
    const std::vector<double> cdf = CumulativeFromTop(f);
    std::vector<int32_t> x;
    for (double v : u) {
        int32_t k = 0;
        while (k < top && v >= cdf[k])
            ++k;
        if (k == top) {
            double fk = f[top - 1], sum = cdf[top - 1];
            for (; k < ntrial; ++k) {
                fk *= a / k - s;
                sum += fk;
                if (sum > v) break;
            }
            k = std::min(k, ntrial);
        }
        x.push_back(flip ? ntrial - k : k);
    }
    return x;
}

struct Case {
    int32_t ntrial;
    double p;
};

// Every way below 30 the test value ntrial min(p, 1 - p) allows: a flip, the top of
// the range at 29, tiny p with the most trials, a table longer than the support.
const Case kInversionCases[] = {{1, 0.3},    {5, 0.2},    {10, 0.5},     {40, 0.5},
                                {100, 0.29}, {100, 0.71}, {1000, 0.029}, {INT_MAX, 1e-9},
                                {7, 0.999},  {60, 0.49},  {33, 0.9},     {2, 1e-300}};

TEST(RngBinomial, InversionIsTheTableSearchOfEachUniform) {
    for (const Case& c : kInversionCases) {
        for (int32_t n : {1, 1024, 3001}) {
            void* s = NewSeeded(QES_BRNG_MT19937, 11);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngBinomial(0, s, n, r.data(), c.ntrial, c.p), 0);
            EXPECT_EQ(r, InversionWrittenOut(c.ntrial, c.p, DoubleUniforms(t, n)))
                << c.ntrial << " " << c.p << " n " << n;
            ExpectInStepAndDelete(s, t); // one uniform a variate
        }
    }
}

TEST(RngBinomial, InversionIsCutInvariantAndItsChunkOnlyACache) {
    const int32_t n = 2500;
    for (const Case& c : {Case{100, 0.29}, Case{20, 0.6}}) {
        void* s = NewSeeded(QES_BRNG_MT19937, 3);
        void* t = CopyOf(s);
        std::vector<int32_t> whole(n), cut(n);
        ASSERT_EQ(_qesiRngBinomial(0, s, n, whole.data(), c.ntrial, c.p), 0);
        EXPECT_EQ(__qesGetNumChunks(s), 1);
        int32_t done = 0;
        for (int32_t piece : {1, 1023, 1, 700, 775}) {
            ASSERT_EQ(_qesiRngBinomial(0, t, piece, cut.data() + done, c.ntrial, c.p), 0);
            done += piece;
            if (piece == 1) __qesDeleteChunks(t);
        }
        EXPECT_EQ(whole, cut);
        ExpectInStepAndDelete(s, t);
    }
    // Parameters changing between calls redo the set-up in the same chunk.
    void* s = NewSeeded(QES_BRNG_MT19937, 5);
    void* t = CopyOf(s);
    std::vector<int32_t> a(10), b(10);
    for (double p : {0.1, 0.2, 0.1}) {
        ASSERT_EQ(_qesiRngBinomial(0, s, 10, a.data(), 50, p), 0);
        __qesDeleteChunks(t);
        ASSERT_EQ(_qesiRngBinomial(0, t, 10, b.data(), 50, p), 0);
        EXPECT_EQ(a, b) << p;
    }
    EXPECT_EQ(__qesGetNumChunks(s), 1);
    EXPECT_EQ(HeadChunk(s)->size, 544u);
    ExpectInStepAndDelete(s, t);
}

TEST(RngBinomial, BtpeTakesWholeBatchesOfSinglePairs) {
    void* s = NewSeeded(CountingBrngId(), 9);
    for (int32_t n : {1, 5, 1024, 3000}) {
        Requests().clear();
        std::vector<int32_t> r(n);
        ASSERT_EQ(_qesiRngBinomial(0, s, n, r.data(), 1000, 0.3), 0);
        ASSERT_FALSE(Requests().empty());
        int32_t pairs = 0;
        for (const Request& q : Requests()) {
            EXPECT_EQ(q.kind, 's');
            EXPECT_EQ(q.n % 2, 0);
            // Each batch asks for the variates still owed, at most 1024 pairs.
            EXPECT_LE(q.n, 2 * std::min(1024, n - (pairs == 0 ? 0 : 1)));
            pairs += q.n / 2;
        }
        EXPECT_EQ(Requests()[0].n, 2 * std::min(n, 1024));
        // Acceptance is about 0.9 here: a handful of batches at most.
        EXPECT_LE(pairs, n + n / 2 + 16);
    }
    // ntrial 0 draws nothing and makes no chunk.
    Requests().clear();
    std::vector<int32_t> r(7, -1);
    ASSERT_EQ(_qesiRngBinomial(0, s, 7, r.data(), 0, 0.4), 0);
    EXPECT_TRUE(Requests().empty());
    EXPECT_EQ(r, std::vector<int32_t>(7, 0));
    __qesDeleteChunks(s);
    ASSERT_EQ(_qesiRngBinomial(0, s, 7, r.data(), 0, 0.4), 0);
    EXPECT_EQ(__qesGetNumChunks(s), 0);
    __qesDeleteStream(&s);
}

// BTPE keeps the accepted values of the pairs in their order and a batch is never
// larger than the count still owed, so any shorter call gives a prefix of a longer
// one: batch lengths around the four-candidate groups and the 1024-pair batch must
// neither leak a rejected candidate's value nor reorder the accepted ones.
TEST(RngBinomial, BtpeCallsArePrefixesOfLongerOnes) {
    const struct {
        int32_t ntrial;
        double p;
    } kCases[] = {{30, 0.5},    {61, 0.49},      {1000, 0.3},
                  {1000, 0.97}, {1 << 20, 1e-4}, {INT_MAX, 0.5}};
    for (const auto& c : kCases) {
        void* s = NewSeeded(QES_BRNG_MCG59, 17);
        std::vector<int32_t> whole(3000);
        ASSERT_EQ(_qesiRngBinomial(0, s, 3000, whole.data(), c.ntrial, c.p), 0);
        __qesDeleteStream(&s);
        for (int32_t n : {1, 2, 3, 4, 5, 6, 7, 8, 9, 1023, 1025, 2049}) {
            s = NewSeeded(QES_BRNG_MCG59, 17);
            std::vector<int32_t> r(n + 1, -1);
            ASSERT_EQ(_qesiRngBinomial(0, s, n, r.data(), c.ntrial, c.p), 0);
            EXPECT_TRUE(std::equal(r.begin(), r.begin() + n, whole.begin()))
                << c.ntrial << " " << c.p << " n " << n;
            EXPECT_EQ(r[n], -1);
            __qesDeleteStream(&s);
        }
    }
}

TEST(RngBinomial, ExtremeProbabilitiesAndTheFlip) {
    void* s = NewSeeded(QES_BRNG_MT19937, 21);
    std::vector<int32_t> r(2000);
    for (int32_t ntrial : {1, 29, 30, 1000, INT_MAX}) {
        ASSERT_EQ(_qesiRngBinomial(0, s, 2000, r.data(), ntrial, 0.0), 0);
        EXPECT_EQ(r, std::vector<int32_t>(2000, 0)) << ntrial;
        ASSERT_EQ(_qesiRngBinomial(0, s, 2000, r.data(), ntrial, 1.0), 0);
        EXPECT_EQ(r, std::vector<int32_t>(2000, ntrial)) << ntrial;
    }
    // p = 0.5 flips in both ways: the results mirror those of the same uniforms
    // searched for q = 0.5 without the flip (a p just below 0.5 is that search).
    for (int32_t ntrial : {59, 62, 1000}) {
        void* a = NewSeeded(QES_BRNG_MT19937, 4);
        void* b = CopyOf(a);
        std::vector<int32_t> x(5000), y(5000);
        ASSERT_EQ(_qesiRngBinomial(0, a, 5000, x.data(), ntrial, 0.5), 0);
        ASSERT_EQ(_qesiRngBinomial(0, b, 5000, y.data(), ntrial, std::nextafter(0.5, 0.0)), 0);
        int32_t mirrored = 0;
        for (int32_t i = 0; i < 5000; ++i)
            mirrored += x[i] == ntrial - y[i];
        EXPECT_GT(mirrored, 4990) << ntrial;
        __qesDeleteStream(&a);
        __qesDeleteStream(&b);
    }
    __qesDeleteStream(&s);
}

// Moments on both sides of the switch at 29 and 30, flipped or not, and at the
// largest trial counts, where BTPE's location must still reach every count.
TEST(RngBinomial, MomentsOnEitherSideOfTheSwitch) {
    const Case cases[] = {{100, 0.29},     {100, 0.3},         {100, 0.7},  {100, 0.71},
                          {60, 0.5},       {1000, 0.3},        {30, 0.999}, {INT_MAX, 0.5},
                          {INT_MAX, 1e-7}, {INT_MAX, 0.999999}};
    void* s = NewSeeded(QES_BRNG_MT19937, 77);
    const int32_t n = 200000;
    std::vector<int32_t> r(n);
    for (const Case& c : cases) {
        ASSERT_EQ(_qesiRngBinomial(0, s, n, r.data(), c.ntrial, c.p), 0);
        int64_t odd = 0;
        for (int32_t x : r) {
            ASSERT_GE(x, 0);
            ASSERT_LE(x, c.ntrial);
            odd += x & 1;
        }
        const double mean = c.ntrial * c.p, var = c.ntrial * c.p * (1 - c.p);
        ExpectMoments(r, mean, var, 5,
                      (std::to_string(c.ntrial) + " " + std::to_string(c.p)).c_str());
        if (var > 100) EXPECT_NEAR(double(odd) / n, 0.5, 0.01); // no lattice of even counts
    }
    __qesDeleteStream(&s);
}

TEST(RngBinomial, FailuresComeBackWithTheFrameUndone) {
    for (const Case& c : {Case{100, 0.2}, Case{1000, 0.6}})
        ExpectFailuresUndoTheFrame(
            [&](void* s, int32_t n, int32_t* r) {
                return _qesiRngBinomial(0, s, n, r, c.ntrial, c.p);
            },
            3000, 1500);
}

} // namespace
