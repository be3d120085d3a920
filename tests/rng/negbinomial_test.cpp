// Negative binomial variates: inversion against the table search from p^a written out
// over the same uniforms, one uniform a variate, cuts and lost chunks that change
// nothing; the rejection ways on either side of the mode 100 and the mean
// 10737418.24 (a below and above 1), by their moments and the uniforms they ask for;
// p = 1; failures with the frame undone.
#include <climits>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "frame/dispatch.h"
#include "tests/rng/discrete_harness.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

struct Case {
    double a, p;
};

std::string Name(const Case& c) {
    return std::to_string(c.a) + " " + std::to_string(c.p);
}

// Inversion as written: f(0) = p^a by the HA Powx, f(k + 1) = f(k) (1 - p) (a + k) /
// (k + 1) up to the mode's index plus 61 values, each cumulative value the total less
// the sum above it, the first k whose value exceeds u, the recurrence beyond until
// the sum passes u or stops growing.
std::vector<int32_t> InversionWrittenOut(const Case& c, const std::vector<double>& u) {
    const double q = 1 - c.p, mode = (c.a - 1) * q / c.p;
    const int32_t count = (mode > 0 ? static_cast<int32_t>(mode) : 0) + 61;
    std::vector<double> f(count);
    f[0] = c.p;
    ZAR_SLOT(dPowx, brenn::frame::SlotHA)(1, &f[0], c.a, &f[0]);
    for (int32_t k = 1; k < count; ++k)
        f[k] = f[k - 1] * q * (c.a + k - 1) / k;
    const std::vector<double> cdf = CumulativeFromTop(f);
    std::vector<int32_t> out;
    for (double v : u) {
        int32_t k = 0;
        while (k < count && v >= cdf[k])
            ++k;
        for (double fk = f[count - 1], sum = cdf[count - 1]; k == count || sum <= v; ++k) {
            fk *= q * (c.a + k - 1) / k;
            if (sum + fk > v || sum + fk == sum) break;
            sum += fk;
        }
        out.push_back(k);
    }
    return out;
}

// Below both thresholds: a below 1, a just above 1 with the mode at 0, the mode just
// below 100, long tails past the table, a huge a, p = 1.
const Case kInversionCases[] = {{5, 0.3},    {0.5, 0.01}, {1.0, 0.0101},
                                {60, 0.38},  {1, 0.5},    {1e6, 0.99999},
                                {0.01, 0.5}, {3.7, 1.0},  {1.0000001, 2e-4}};

TEST(RngNegbinomial, InversionIsTheTableSearchOfEachUniform) {
    for (const Case& c : kInversionCases) {
        for (int32_t n : {1, 2048, 4097}) {
            void* s = NewSeeded(QES_BRNG_MT19937, 17);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngNegbinomial(0, s, n, r.data(), c.a, c.p), 0);
            EXPECT_EQ(r, InversionWrittenOut(c, DoubleUniforms(t, n))) << Name(c) << " n " << n;
            ExpectInStepAndDelete(s, t); // one uniform a variate
        }
    }
}

TEST(RngNegbinomial, InversionIsCutInvariantAndItsChunkOnlyACache) {
    const int32_t n = 4500;
    void* s = NewSeeded(QES_BRNG_MT19937, 3);
    void* t = CopyOf(s);
    std::vector<int32_t> whole(n), cut(n);
    ASSERT_EQ(_qesiRngNegbinomial(0, s, n, whole.data(), 5, 0.3), 0);
    int32_t done = 0;
    for (int32_t piece : {1, 2047, 1, 2451}) {
        ASSERT_EQ(_qesiRngNegbinomial(0, t, piece, cut.data() + done, 5, 0.3), 0);
        done += piece;
        if (piece == 1) __qesDeleteChunks(t);
    }
    EXPECT_EQ(whole, cut);
    EXPECT_EQ(__qesGetNumChunks(s), 1);
    EXPECT_EQ(HeadChunk(s)->size, 1328u);
    ExpectInStepAndDelete(s, t);
}

// The three ways by the uniforms they ask for, and their moments on either side of
// each threshold.
TEST(RngNegbinomial, EachWayOnEitherSideOfItsThreshold) {
    struct Way {
        Case c;
        char kind; // the uniforms it draws
    };
    const double huge = 10737418.24;
    const Way ways[] = {
        {{60, 0.38}, 'd'},                         // mode 96.3
        {{60, 0.37}, 's'},                         // mode 100.5
        {{1.5, 0.0049}, 's'},                      // mode 101.5
        {{2.0, 2.0 / (huge + 2) * 1.0001}, 's'},   // mean just below, mode far above 100
        {{2.0, 2.0 / (huge + 2) * 0.9999}, 's'},   // mean just above
        {{0.5, 0.5 / (huge + 0.5) * 0.9999}, 's'}, // a below 1: the compound form
        {{1e7, 0.45}, 's'},
        {{1e8, 0.9999995}, 'd'},
    };
    void* s = NewSeeded(CountingBrngId(), 5);
    for (const Way& w : ways) {
        const int32_t n = 100000;
        std::vector<int32_t> r(n);
        Requests().clear();
        ASSERT_EQ(_qesiRngNegbinomial(0, s, n, r.data(), w.c.a, w.c.p), 0);
        for (const Request& q : Requests())
            ASSERT_EQ(q.kind, w.kind) << Name(w.c);
        const double q = 1 - w.c.p, mean = w.c.a * q / w.c.p, var = mean / w.c.p;
        for (int32_t x : r)
            ASSERT_GE(x, 0);
        if (mean < 1e8) ExpectMoments(r, mean, var, 5, Name(w.c).c_str());
    }
    __qesDeleteStream(&s);
}

TEST(RngNegbinomial, FailuresComeBackWithTheFrameUndone) {
    for (const Case& c : {Case{5, 0.3}, Case{60, 0.37}, Case{0.5, 1e-8}})
        ExpectFailuresUndoTheFrame(
            [&](void* s, int32_t n, int32_t* r) {
                return _qesiRngNegbinomial(0, s, n, r, c.a, c.p);
            },
            5000, 3000);
}

} // namespace
