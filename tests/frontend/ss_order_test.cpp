// Quantiles and order statistics in one call: refusals with nothing written, results
// equal to the service's task run by hand (both layouts, both precisions, indices),
// and the orders' ends giving each variable's minimum and maximum.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

#include "brenn.h"
#include "tests/stats/order_harness.h"

namespace {

// The front-end's pair of each precision; the service's own entries are the
// statistics tests' (SsEntries).
template <class T>
struct Api;
template <>
struct Api<double> : brenn::fe::SsEntries<double> {
    using Matrix = brenn_ss_matrix_f64;
    static constexpr auto quantiles = brenn_ss_quantiles_f64;
    static constexpr auto order = brenn_ss_order_statistics_f64;
};
template <>
struct Api<float> : brenn::fe::SsEntries<float> {
    using Matrix = brenn_ss_matrix_f32;
    static constexpr auto quantiles = brenn_ss_quantiles_f32;
    static constexpr auto order = brenn_ss_order_statistics_f32;
};

template <class T>
class FrontendSsOrder : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(FrontendSsOrder, Precisions);

TYPED_TEST(FrontendSsOrder, RefusalsWriteNothing) {
    using T = TypeParam;
    using A = Api<T>;
    const T x[6] = {3, 1, 2, 6, 5, 4};
    const T good[2] = {0, T(0.5)};
    const T nan = std::numeric_limits<T>::quiet_NaN();
    const T snan = std::numeric_limits<T>::signaling_NaN();
    const typename A::Matrix m = {2, 3, BRENN_SS_VARIABLES_IN_ROWS, x, nullptr, nullptr};
    const T badWeights[3] = {1, std::numeric_limits<T>::infinity(), 1};
    struct Case {
        typename A::Matrix m;
        int64_t count;
        std::vector<T> orders;
        int expected;
    } cases[] = {
        {{2, 0, BRENN_SS_VARIABLES_IN_ROWS, x, nullptr, nullptr}, 2, {0, 1}, BRENN_ERR_BAD_SIZE},
        {{2, 3, 5, x, nullptr, nullptr}, 2, {0, 1}, BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_VARIABLES_IN_ROWS, nullptr, nullptr, nullptr},
         2,
         {0, 1},
         BRENN_ERR_NULL_POINTER},
        {m, 0, {0, 1}, BRENN_ERR_BAD_SIZE},
        {m, -1, {0, 1}, BRENN_ERR_BAD_SIZE},
        {m, 2, {0, T(1.0000001)}, BRENN_ERR_BAD_ARGUMENT},
        {m, 2, {-std::numeric_limits<T>::denorm_min(), 1}, BRENN_ERR_BAD_ARGUMENT},
        {m, 2, {nan, T(0.5)}, BRENN_ERR_BAD_ARGUMENT},
        {m, 2, {T(0.5), snan}, BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_VARIABLES_IN_ROWS, x, badWeights, nullptr},
         2,
         {0, 1},
         BRENN_ERR_BAD_ARGUMENT},
    };
    for (const Case& c : cases) {
        std::vector<T> q(4, T(-9));
        EXPECT_EQ(A::quantiles(&c.m, c.count, c.orders.data(), q.data()), c.expected);
        EXPECT_EQ(q, std::vector<T>(4, T(-9)));
    }
    T q[4] = {-9, -9, -9, -9};
    EXPECT_EQ(A::quantiles(nullptr, 2, good, q), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::quantiles(&m, 2, nullptr, q), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::quantiles(&m, 2, good, nullptr), BRENN_ERR_NULL_POINTER);
    std::vector<T> sorted(6, T(-9));
    EXPECT_EQ(A::order(nullptr, sorted.data()), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::order(&m, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::order(&cases[0].m, sorted.data()), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(A::order(&cases[9].m, sorted.data()), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(A::order(&m, const_cast<T*>(x)), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(sorted, std::vector<T>(6, T(-9)));
}

// The front-end's results are the task's own, and orders 0 and 1 are the extremes.
TYPED_TEST(FrontendSsOrder, ResultsAreTheServicesAndTheEndsAreTheExtremes) {
    using T = TypeParam;
    using A = Api<T>;
    const int64_t p = 3, n = 1001;
    std::vector<T> x(p * n);
    uint32_t state = 12345;
    for (T& v : x) {
        state = state * 1664525u + 1013904223u;
        v = T(int32_t(state >> 8) - (1 << 23)) / T(1 << 10);
    }
    x[7] = std::numeric_limits<T>::max();
    x[8] = -std::numeric_limits<T>::max();
    x[9] = std::numeric_limits<T>::denorm_min();
    const std::vector<T> orders = {0, T(0.001), T(0.25), T(0.5), T(0.9999), 1};
    const int64_t m = static_cast<int64_t>(orders.size());
    const int64_t keepFirstAndLast[3] = {1, 0, 1};
    for (int64_t layout : {BRENN_SS_VARIABLES_IN_ROWS, BRENN_SS_OBSERVATIONS_IN_ROWS})
        for (const int64_t* indices : {static_cast<const int64_t*>(nullptr), keepFirstAndLast}) {
            const typename A::Matrix view = {p, n, layout, x.data(), nullptr, indices};
            std::vector<T> mine(p * m, T(-7)), theirs(p * m, T(-7));
            std::vector<T> sorted(p * n, T(-7)), sortedTheirs(p * n, T(-7));
            ASSERT_EQ(A::quantiles(&view, m, orders.data(), mine.data()), BRENN_OK);
            ASSERT_EQ(A::order(&view, sorted.data()), BRENN_OK);

            void* task = nullptr;
            int64_t count = m, storage = layout;
            ASSERT_EQ(A::newTask(&task, &p, &n, &storage, x.data(), nullptr, indices, 1), 0);
            ASSERT_EQ(A::editQuantiles(task, &count, const_cast<T*>(orders.data()), theirs.data(),
                                       sortedTheirs.data(), &storage),
                      0);
            ASSERT_EQ(brenn::fe::SsEntries<T>::quantiles(task,
                                                         BRENN_SS_QUANTS | BRENN_SS_ORDER_STATS,
                                                         BRENN_SS_METHOD_FAST, nullptr),
                      0);
            _qesSSDeleteTask(&task);
            EXPECT_EQ(std::memcmp(mine.data(), theirs.data(), sizeof(T) * mine.size()), 0);
            EXPECT_EQ(std::memcmp(sorted.data(), sortedTheirs.data(), sizeof(T) * sorted.size()),
                      0);

            for (int64_t v = 0; v < p; ++v) {
                if (indices != nullptr && indices[v] == 0) {
                    EXPECT_EQ(mine[v * m], T(-7)); // left out: untouched
                    continue;
                }
                T lo = std::numeric_limits<T>::infinity(), hi = -lo;
                for (int64_t i = 0; i < n; ++i) {
                    T e = layout == BRENN_SS_VARIABLES_IN_ROWS ? x[v * n + i] : x[i * p + v];
                    lo = std::min(lo, e);
                    hi = std::max(hi, e);
                }
                EXPECT_EQ(mine[v * m], lo);
                EXPECT_EQ(mine[v * m + m - 1], hi);
            }
        }
}

} // namespace
