// Geometric variates: the count from the single LA logarithm of each uniform, one
// uniform a variate, the sentinel for a uniform of exactly 0, the distribution's
// mean and probabilities, and the caller's mode, callback and control words
// coming back on success and on a failing generator.
#include <cmath>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "frame/dispatch.h"
#include "frame/fpenv.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

// The expected count of one uniform, by the same slot and the same rounding.
int32_t Expected(float u, double p) {
    float c = static_cast<float>(1.0 / std::log(1.0 - p));
    float l = -103.2789306640625f; // the sentinel of ln(0)
    if (u != 0.0f) ZAR_SLOT(sLn, brenn::frame::SlotLA)(1, &u, &l);
    return static_cast<int32_t>(std::floor(l * c));
}

TEST(RngGeometric, EachVariateIsTheFloorOfOneScaledLogarithm) {
    for (double p : {0.5, 0.1, 0.9, 1e-3}) {
        for (int32_t n : {1, 5, 1024, 1025, 3000}) {
            void* s = NewSeeded(QES_BRNG_MT19937, 42);
            void* t = CopyOf(s);
            std::vector<int32_t> r(n);
            ASSERT_EQ(_qesiRngGeometric(0, s, n, r.data(), p), 0);
            std::vector<float> u(n);
            ASSERT_EQ(_qessRngUniform(0, t, n, u.data(), 0.0f, 1.0f), 0);
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(r[i], Expected(u[i], p)) << "p " << p << " i " << i;
            ExpectInStepAndDelete(s, t); // one uniform a variate
        }
    }
}

TEST(RngGeometric, ZeroUniformMeetsTheSentinel) {
    void* s = NewStepStream(100);
    std::vector<int32_t> r(14);
    ASSERT_EQ(_qesiRngGeometric(0, s, 14, r.data(), 0.5), 0);
    float c = static_cast<float>(1.0 / std::log(0.5));
    int32_t sentinel = static_cast<int32_t>(std::floor(-103.2789306640625f * c));
    EXPECT_EQ(r[0], sentinel);
    EXPECT_EQ(r[7], sentinel);
    EXPECT_EQ(sentinel, 149);
    for (int i = 1; i < 7; ++i)
        EXPECT_EQ(r[i], Expected(static_cast<float>(i / 7.0), 0.5));
    __qesDeleteStream(&s);
}

TEST(RngGeometric, MeanAndProbabilities) {
    const double p = 0.3;
    const int32_t n = 1000000;
    void* s = NewSeeded(QES_BRNG_MT19937, 7);
    std::vector<int32_t> r(n);
    ASSERT_EQ(_qesiRngGeometric(0, s, n, r.data(), p), 0);
    double mean = 0;
    int64_t zeros = 0, ones = 0;
    for (int32_t x : r) {
        ASSERT_GE(x, 0);
        mean += x;
        zeros += x == 0;
        ones += x == 1;
    }
    mean /= n;
    // Mean (1 - p) / p with standard deviation sqrt(1 - p) / p / sqrt(n).
    EXPECT_NEAR(mean, (1 - p) / p, 5 * std::sqrt(1 - p) / p / std::sqrt(double(n)));
    EXPECT_NEAR(double(zeros) / n, p, 5 * std::sqrt(p * (1 - p) / n));
    EXPECT_NEAR(double(ones) / n, p * (1 - p), 5 * std::sqrt(0.21 * 0.79 / n));
    // p = 1 always succeeds at once.
    ASSERT_EQ(_qesiRngGeometric(0, s, 100, r.data(), 1.0), 0);
    for (int i = 0; i < 100; ++i)
        EXPECT_EQ(r[i], 0);
    __qesDeleteStream(&s);
}

int Marker(ErrorRecord*) {
    return 0;
}

TEST(RngGeometric, CallerSettingsComeBack) {
    brenn_zar_kernel_SetMode(0x2000 | 0x2);
    brenn_zar_kernel_SetErrorCallBack(Marker); // may touch the error field itself
    uint32_t mode = brenn_zar_kernel_GetMode();
    uint32_t csr = brenn::frame::ReadCsr();
    std::vector<int32_t> r(3000, -7);
    for (uint32_t limit : {100000u, 1500u}) {
        void* s = NewStepStream(limit);
        int32_t status = _qesiRngGeometric(0, s, 3000, r.data(), 0.25);
        EXPECT_EQ(status, limit == 1500u ? QES_RNG_STATUS_RDRAND_FAILED : 0);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), mode);
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), &Marker);
        // Control bits as they were (the set-up division before the guard may
        // leave the inexact flag, as any caller arithmetic would).
        EXPECT_EQ(brenn::frame::ReadCsr() & ~0x3Fu, csr & ~0x3Fu);
        __qesDeleteStream(&s);
    }
    // The first block was complete before the failure and stays.
    EXPECT_EQ(r[1], Expected(1.0f / 7, 0.25));
    int32_t untouched = 5;
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    EXPECT_EQ(_qesiRngGeometric(0, s, 0, &untouched, 0.5), 0);
    EXPECT_EQ(untouched, 5);
    __qesDeleteStream(&s);
}

} // namespace
