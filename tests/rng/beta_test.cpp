// Beta, both precisions, in each method's region (Joehnk, Cheng's BB and BC): values
// within [a, a + beta] and never NaN, also at shapes whose powers underflow or whose
// exponential overflows; the mean and variance of the distribution; the uniforms a
// round asks for; failures with the caller's settings.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "tests/rng/caller_settings.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

int32_t Beta(void* s, int32_t n, double* r, double p, double q, double a, double b) {
    return _qesdRngBeta(0, s, n, r, p, q, a, b);
}
int32_t Beta(void* s, int32_t n, float* r, double p, double q, double a, double b) {
    return _qessRngBeta(0, s, n, r, float(p), float(q), float(a), float(b));
}

struct Shapes {
    double p, q;
} const kShapes[] = {
    {0.3, 0.7},  {0.5, 0.5},  {0.999, 0.01}, {0.02, 0.03}, // Joehnk, the last two by logarithms
    {2, 3},      {1.001, 50}, {300, 1.5},    {1e4, 1e4},   // BB
    {1, 1},      {0.5, 2},    {4, 0.3},      {1, 1e3},     // BC
    {60, 0.004}, {0.004, 60},                              // BC whose w overflows
};

// Values in [a, a + beta], and for shapes that single can hold the sample mean and
// variance within 6 standard errors of p / (p + q) and p q / ((p + q)^2 (p + q + 1)).
template <typename T>
void ExpectRangeAndMoments() {
    const int32_t n = 40000;
    for (const Shapes& c : kShapes) {
        void* s = NewSeeded(QES_BRNG_MT19937, 21);
        std::vector<T> r(n);
        ASSERT_EQ(Beta(s, n, r.data(), c.p, c.q, -1.0, 2.0), 0);
        double sum = 0, squares = 0;
        for (T x : r) {
            ASSERT_TRUE(x >= T(-1) && x <= T(1)) << c.p << "," << c.q << " " << x;
            double y = (double(x) + 1) / 2;
            sum += y;
            squares += y * y;
        }
        const double mean = c.p / (c.p + c.q);
        const double var = c.p * c.q / ((c.p + c.q) * (c.p + c.q) * (c.p + c.q + 1));
        const double m = sum / n, v = squares / n - m * m;
        EXPECT_NEAR(m, mean, 6 * std::sqrt(var / n) + 1e-6) << c.p << "," << c.q;
        // The variance of a sample variance is at most its square times 2 / n plus the
        // fourth-moment term, bounded here by mean (1 - mean) var / n.
        EXPECT_NEAR(v, var, 6 * std::sqrt((2 * var * var + mean * (1 - mean) * var) / n) + 1e-6)
            << c.p << "," << c.q;
        __qesDeleteStream(&s);
    }
}

TEST(RngBeta, ValuesInRangeWithTheirMoments) {
    ExpectRangeAndMoments<double>();
    ExpectRangeAndMoments<float>();
}

// p and q change places by x -> 1 - x: a mirrored BB or BC gives the same accepted
// trials, so the values are 1 - x up to the rounding of the quotient.
TEST(RngBeta, SwappedShapesMirror) {
    for (const Shapes& c : {Shapes{2, 3}, Shapes{0.5, 2}, Shapes{1, 7}}) {
        void* s = NewSeeded(QES_BRNG_MCG59, 4);
        void* t = CopyOf(s);
        std::vector<double> x(3000), y(3000);
        ASSERT_EQ(Beta(s, 3000, x.data(), c.p, c.q, 0, 1), 0);
        ASSERT_EQ(Beta(t, 3000, y.data(), c.q, c.p, 0, 1), 0);
        for (int i = 0; i < 3000; ++i)
            ASSERT_NEAR(x[i], 1 - y[i], 1e-14) << c.p << "," << c.q << " " << i;
        ExpectInStepAndDelete(s, t);
    }
}

// Rounds of min(wanted, 512) trials, two uniforms each: the stream moves by an even
// count, at least 2n for n variates.
TEST(RngBeta, RoundsOfTwoUniformsATrial) {
    for (int32_t n : {1, 5, 512, 513}) {
        void* s = NewStepStream(1u << 30);
        std::vector<double> r(n);
        ASSERT_EQ(Beta(s, n, r.data(), 2, 3, 0, 1), 0);
        const uint32_t taken = ToyState(s)[0];
        EXPECT_EQ(taken % 2, 0u);
        EXPECT_GE(taken, uint32_t(2 * n));
        __qesDeleteStream(&s);
    }
}

template <typename T>
void ExpectFailures() {
    for (const Shapes& c : {Shapes{0.5, 0.5}, Shapes{2, 3}, Shapes{0.5, 3}})
        for (uint32_t limit : {0u, 1500u}) {
            CallerSettings settings;
            settings.Set();
            void* s = NewStepStream(limit);
            std::vector<T> r(2000);
            EXPECT_EQ(Beta(s, 2000, r.data(), c.p, c.q, 0, 1), QES_RNG_STATUS_RDRAND_FAILED);
            settings.Expect("Beta");
            __qesDeleteStream(&s);
        }
    // Uniforms of exactly 0 (every seventh word) meet the sentinel: finite values.
    for (const Shapes& c : kShapes) {
        void* s = NewStepStream(1u << 30);
        std::vector<T> r(200);
        ASSERT_EQ(Beta(s, 200, r.data(), c.p, c.q, 0, 1), 0);
        for (T x : r)
            ASSERT_TRUE(x >= T(0) && x <= T(1)) << c.p << "," << c.q;
        __qesDeleteStream(&s);
    }
}

TEST(RngBeta, FailuresAndZeroUniforms) {
    ExpectFailures<double>();
    ExpectFailures<float>();
}

} // namespace
