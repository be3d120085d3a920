// Multinomial rows: the refused arguments, ntrial 0 and one cell, the sparse path as
// single trials over the cumulative sums, the Poisson path's rows (each adds up to
// ntrial, its marginals binomial), the statuses of a failing generator and a failed
// allocation with every work array freed, and the caller's settings.
#include <cmath>
#include <numeric>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "platform/serv.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

TEST(RngMultinomial, ArgumentsAreChecked) {
    struct Case {
        int32_t k;
        std::vector<double> p;
        int32_t status;
    };
    const int32_t bad = QES_RNG_ERROR_BAD_MULTINOMIAL;
    EXPECT_EQ(bad, -1150);
    for (const Case& c :
         {Case{0, {}, bad}, Case{-3, {}, bad}, Case{2, {-0.1, 1.1}, bad}, Case{2, {1.0, -0.0}, 0},
          Case{3, {0.5, 0.5, 0.002}, bad}, Case{3, {0.5, 0.4, 0.098}, bad},
          Case{2, {0.5, 0.5005}, 0}, Case{2, {0.5, 0.4995}, 0}, Case{2, {0.5, 0.501}, 0},
          Case{2, {0.5, 0.5011}, bad}, Case{1, {1.0}, 0}, Case{1, {0.99}, bad},
          Case{2, {0.5, NAN}, bad}}) {
        void* s = NewSeeded(QES_BRNG_MT19937, 1);
        void* t = CopyOf(s);
        std::vector<int32_t> r(4 * std::max(c.k, 1), -7);
        EXPECT_EQ(_qesiRngMultinomial(0, s, 4, r.data(), 10, c.k, c.p.data()), c.status)
            << c.k << " " << (c.p.empty() ? 0 : c.p[0]);
        if (c.status < 0) {
            EXPECT_EQ(r[0], -7);
            ExpectInStepAndDelete(s, t); // refused before any uniform
        } else {
            __qesDeleteStream(&s);
            __qesDeleteStream(&t);
        }
    }
}

TEST(RngMultinomial, NoTrialsAndOneCellTakeNoUniforms) {
    const std::vector<double> p{0.2, 0.3, 0.5};
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    void* t = CopyOf(s);
    std::vector<int32_t> r(16, -7);
    ASSERT_EQ(_qesiRngMultinomial(0, s, 5, r.data(), 0, 3, p.data()), 0);
    for (int i = 0; i < 15; ++i)
        EXPECT_EQ(r[i], 0);
    EXPECT_EQ(r[15], -7);
    // ntrial 0 is not checked further: no cells, nothing written.
    ASSERT_EQ(_qesiRngMultinomial(0, s, 5, r.data(), 0, 0, nullptr), 0);
    const double one = 1.0;
    ASSERT_EQ(_qesiRngMultinomial(0, s, 5, r.data(), 123, 1, &one), 0);
    for (int i = 0; i < 5; ++i)
        EXPECT_EQ(r[i], 123);
    EXPECT_EQ(r[5], 0);
    ExpectInStepAndDelete(s, t);
}

TEST(RngMultinomial, SparseRowsAreSingleTrials) {
    // k >= 16 ntrial with ntrial <= 16: every trial a double uniform on [0, sum p),
    // its cell the first whose cumulative sum exceeds it.
    for (int32_t ntrial : {1, 4, 16}) {
        const int32_t k = 16 * ntrial + 3;
        std::vector<double> p(k), cumulative(k);
        for (int32_t j = 0; j < k; ++j)
            p[j] = (j % 5 == 0 ? 0.0 : 1.0 + j % 3);
        const double sum = std::accumulate(p.begin(), p.end(), 0.0);
        double running = 0;
        for (int32_t j = 0; j < k; ++j) {
            p[j] /= sum;
            running += p[j];
            cumulative[j] = running;
        }
        const int32_t n = 50;
        void* s = NewSeeded(QES_BRNG_MCG59, ntrial);
        void* t = CopyOf(s);
        std::vector<int32_t> r(n * k);
        ASSERT_EQ(_qesiRngMultinomial(0, s, n, r.data(), ntrial, k, p.data()), 0);
        for (int32_t row = 0; row < n; ++row) {
            std::vector<double> u(ntrial);
            ASSERT_EQ(_qesdRngUniform(0, t, ntrial, u.data(), 0.0, cumulative[k - 1]), 0);
            std::vector<int32_t> want(k, 0);
            for (double x : u) {
                int32_t j = 0;
                while (j < k - 1 && !(x < cumulative[j]))
                    ++j;
                ++want[j];
            }
            for (int32_t j = 0; j < k; ++j)
                ASSERT_EQ(r[row * k + j], want[j]) << "row " << row << " cell " << j;
        }
        ExpectInStepAndDelete(s, t);
    }
}

TEST(RngMultinomial, RowsAddUpAndMarginalsAreBinomial) {
    struct Case {
        int32_t ntrial;
        std::vector<double> p;
    };
    const std::vector<double> ten{0.3, 0.2, 0.15, 0.1, 0.08, 0.07, 0.05, 0.03, 0.015, 0.005};
    for (const Case& c : {Case{100, ten}, Case{3, {0.25, 0.75}}, Case{1, {0.6, 0.4}},
                          Case{20, {0.0, 0.5, 0.0, 0.5}}, Case{1000000, {0.1, 0.2, 0.7}},
                          Case{7, std::vector<double>(60, 1.0 / 60)}}) {
        const int32_t k = static_cast<int32_t>(c.p.size()), n = 40000;
        void* s = NewSeeded(QES_BRNG_MT19937, 31);
        std::vector<int32_t> r(static_cast<size_t>(n) * k);
        ASSERT_EQ(_qesiRngMultinomial(0, s, n, r.data(), c.ntrial, k, c.p.data()), 0);
        std::vector<double> mean(k, 0.0), m2(k, 0.0);
        for (int32_t row = 0; row < n; ++row) {
            int64_t sum = 0;
            for (int32_t j = 0; j < k; ++j) {
                int32_t x = r[static_cast<size_t>(row) * k + j];
                ASSERT_GE(x, 0);
                sum += x;
                mean[j] += x;
                m2[j] += double(x) * x;
            }
            ASSERT_EQ(sum, c.ntrial) << "row " << row;
        }
        for (int32_t j = 0; j < k; ++j) {
            const double np = c.ntrial * c.p[j], var = np * (1 - c.p[j]);
            mean[j] /= n;
            const double v = m2[j] / n - mean[j] * mean[j];
            EXPECT_NEAR(mean[j], np, 5 * std::sqrt(var / n) + 1e-12) << c.ntrial << " cell " << j;
            EXPECT_NEAR(v, var, 6 * var * std::sqrt(2.0 / n) + 1e-12) << c.ntrial << " cell " << j;
        }
        __qesDeleteStream(&s);
    }
}

TEST(RngMultinomial, FailuresFreeTheirArraysAndLeaveTheCaller) {
    const std::vector<double> p{0.3, 0.3, 0.4};
    const std::vector<double> sparse(40, 1.0 / 40);
    struct Case {
        int32_t ntrial;
        const std::vector<double>* p;
        uint32_t limit;
    };
    brenn_zar_kernel_SetErrorCallBack(nullptr);
    const uint32_t mode = brenn_zar_kernel_GetMode();
    for (Case c : {Case{50, &p, 300}, Case{50, &p, 5}, Case{2, &sparse, 40}}) {
        const int64_t live = brenn_serv_live_allocations();
        void* s = NewStepStream(c.limit);
        const int32_t k = static_cast<int32_t>(c.p->size());
        std::vector<int32_t> r(100 * k);
        EXPECT_EQ(_qesiRngMultinomial(0, s, 100, r.data(), c.ntrial, k, c.p->data()),
                  QES_RNG_STATUS_RDRAND_FAILED);
        __qesDeleteStream(&s);
        EXPECT_EQ(brenn_serv_live_allocations(), live);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), mode);
    }
    for (int64_t failure : {1, 2, 3}) {
        const int64_t live = brenn_serv_live_allocations();
        void* s = NewSeeded(QES_BRNG_MT19937, 1);
        void* t = CopyOf(s);
        std::vector<int32_t> r(30, -7);
        brenn_serv_fail_allocation(failure);
        EXPECT_EQ(_qesiRngMultinomial(0, s, 10, r.data(), 50, 3, p.data()), QES_ERROR_MEM_FAILURE);
        brenn_serv_fail_allocation(0);
        EXPECT_EQ(brenn_serv_live_allocations(), live + 2); // the two streams
        EXPECT_EQ(r[0], -7);
        ExpectInStepAndDelete(s, t);
    }
}

} // namespace
