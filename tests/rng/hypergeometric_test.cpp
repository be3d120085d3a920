// Hypergeometric variates: inversion against the folded table search written out over
// the same uniforms, one uniform a variate, cuts and lost chunks that change nothing,
// the chunk made anew for new parameters; H2PE's whole batches and its moments on
// every fold; degenerate lots, samples and marked counts; failures with the frame
// undone.
#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "tests/rng/discrete_harness.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

struct Case {
    int32_t l, s, m;
};

std::string Name(const Case& c) {
    return std::to_string(c.l) + " " + std::to_string(c.s) + " " + std::to_string(c.m);
}

// Inversion as written: sample and marked count folded to at most half the lot,
// f(0) of the folded distribution by its product, f(x + 1) = f(x) (n1 - x) (k - x) /
// ((x + 1) (n2 - k + x + 1)), up to 66 cumulative values each the total less the sum
// above it, the first x whose value exceeds u, the recurrence beyond; then the folds
// undone.
std::vector<int32_t> InversionWrittenOut(const Case& c, const std::vector<double>& u) {
    const bool sampleFolded = 2.0 * c.s > c.l;
    const int32_t k = sampleFolded ? c.l - c.s : c.s;
    const bool markedFolded = 2.0 * c.m > c.l;
    const int32_t n1 = markedFolded ? c.l - c.m : c.m, n2 = c.l - n1, top = std::min(n1, k);
    double f0 = 1;
    for (int32_t i = 0; i < top; ++i)
        f0 *= (double(c.l) - std::max(n1, k) - i) / (double(c.l) - i);
    auto ratio = [&](double x) { return (n1 - x) * (k - x) / ((x + 1) * (n2 - k + x + 1)); };
    const int32_t count = std::min(top + 1, 66);
    std::vector<double> f(count, f0);
    for (int32_t x = 1; x < count; ++x)
        f[x] = f[x - 1] * ratio(x - 1);
    const std::vector<double> cdf = CumulativeFromTop(f);
    std::vector<int32_t> out;
    for (double v : u) {
        int32_t x = 0;
        while (x < count && v >= cdf[x])
            ++x;
        if (x == count) {
            double fx = f[count - 1], sum = cdf[count - 1];
            for (; x < top; ++x) {
                fx *= ratio(x - 1);
                sum += fx;
                if (sum > v) break;
            }
            x = std::min(x, top);
        }
        // x counts marked (or unmarked) in the sample (or outside it).
        int32_t y = markedFolded ? k - x : x;
        out.push_back(sampleFolded ? c.m - y : y);
    }
    return out;
}

// Modes below 10 after the fold, every fold, degenerate samples and marked counts,
// an empty lot, the largest lot with a table shorter than the support.
const Case kInversionCases[] = {{100, 20, 30},
                                {100, 80, 30},
                                {100, 20, 70},
                                {100, 80, 70},
                                {50, 0, 20},
                                {50, 50, 20},
                                {50, 20, 0},
                                {50, 20, 50},
                                {0, 0, 0},
                                {1, 1, 1},
                                {10, 5, 5},
                                {400, 200, 15},
                                {INT_MAX, 100000, 100000},
                                {INT_MAX, INT_MAX - 9, 300}};

TEST(RngHypergeometric, InversionIsTheFoldedTableSearchOfEachUniform) {
    for (const Case& c : kInversionCases) {
        for (int32_t n : {1, 1024, 2049}) {
            void* s = NewSeeded(QES_BRNG_MT19937, 13);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngHypergeometric(0, s, n, r.data(), c.l, c.s, c.m), 0);
            EXPECT_EQ(r, InversionWrittenOut(c, DoubleUniforms(t, n))) << Name(c) << " n " << n;
            ExpectInStepAndDelete(s, t); // one uniform a variate
        }
    }
}

TEST(RngHypergeometric, InversionIsCutInvariantAndItsChunkRemadeForNewParameters) {
    const int32_t n = 2100;
    const Case c{100, 80, 30};
    void* s = NewSeeded(QES_BRNG_MT19937, 3);
    void* t = CopyOf(s);
    std::vector<int32_t> whole(n), cut(n), other(5);
    ASSERT_EQ(_qesiRngHypergeometric(0, s, n, whole.data(), c.l, c.s, c.m), 0);
    int32_t done = 0;
    for (int32_t piece : {1, 1023, 1, 1075}) {
        ASSERT_EQ(_qesiRngHypergeometric(0, t, piece, cut.data() + done, c.l, c.s, c.m), 0);
        done += piece;
        if (piece == 1) __qesDeleteChunks(t);
    }
    EXPECT_EQ(whole, cut);
    // Other parameters replace the chunk; the old ones then replace it again.
    void* u = CopyOf(s);
    ASSERT_EQ(_qesiRngHypergeometric(0, s, 5, other.data(), 1000, 400, 450), 0);
    ASSERT_EQ(_qesiRngHypergeometric(0, s, n, whole.data(), c.l, c.s, c.m), 0);
    EXPECT_EQ(__qesGetNumChunks(s), 1);
    EXPECT_EQ(HeadChunk(s)->size, 600u);
    ASSERT_EQ(_qesiRngHypergeometric(0, u, 5, other.data(), 1000, 400, 450), 0);
    __qesDeleteChunks(u);
    ASSERT_EQ(_qesiRngHypergeometric(0, u, n, cut.data(), c.l, c.s, c.m), 0);
    EXPECT_EQ(whole, cut);
    ExpectInStepAndDelete(s, u);
    __qesDeleteStream(&t);
}

TEST(RngHypergeometric, H2peTakesWholeBatchesOfSinglePairs) {
    void* s = NewSeeded(CountingBrngId(), 9);
    for (int32_t n : {1, 7, 1024, 3000}) {
        Requests().clear();
        std::vector<int32_t> r(n);
        ASSERT_EQ(_qesiRngHypergeometric(0, s, n, r.data(), 1000, 400, 450), 0);
        ASSERT_FALSE(Requests().empty());
        EXPECT_EQ(Requests()[0], (Request{2 * std::min(n, 1024), 's'}));
        for (const Request& q : Requests()) {
            EXPECT_EQ(q.kind, 's');
            EXPECT_EQ(q.n % 2, 0);
            EXPECT_LE(q.n, 2048);
        }
    }
    __qesDeleteStream(&s);
}

// Moments of H2PE on each fold, at modes from 10 (explicit ratios) and from 100 (the
// squeeze and the four log-factorials), and of the inversion at its largest lots.
TEST(RngHypergeometric, MomentsOnEveryFold) {
    const Case cases[] = {{1000, 100, 100},
                          {1000, 400, 450},
                          {1000, 600, 550},
                          {1000, 400, 550},
                          {1000, 600, 450},
                          {100000, 5000, 7000},
                          {10000000, 5000000, 4000000},
                          {INT_MAX, INT_MAX / 2, INT_MAX / 3},
                          {INT_MAX, 100000, 100000},
                          {200, 30, 70}};
    void* s = NewSeeded(QES_BRNG_MT19937, 77);
    const int32_t n = 200000;
    std::vector<int32_t> r(n);
    for (const Case& c : cases) {
        ASSERT_EQ(_qesiRngHypergeometric(0, s, n, r.data(), c.l, c.s, c.m), 0);
        const double lot = c.l, p = c.m / lot;
        const double mean = c.s * p, var = c.s * p * (1 - p) * (lot - c.s) / (lot - 1);
        for (int32_t x : r) {
            ASSERT_GE(x, std::max(0, c.s - (c.l - c.m))) << Name(c);
            ASSERT_LE(x, std::min(c.s, c.m)) << Name(c);
        }
        ExpectMoments(r, mean, var, 5, Name(c).c_str());
    }
    __qesDeleteStream(&s);
}

TEST(RngHypergeometric, FailuresComeBackWithTheFrameUndone) {
    for (const Case& c : {Case{100, 80, 30}, Case{1000, 400, 450}})
        ExpectFailuresUndoTheFrame(
            [&](void* s, int32_t n, int32_t* r) {
                return _qesiRngHypergeometric(0, s, n, r, c.l, c.s, c.m);
            },
            3000, 1500);
}

} // namespace
