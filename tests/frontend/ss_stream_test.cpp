// Streaming quantiles through the front-end: refusals before anything is fed, answers
// equal to the service's task fed the whole sequence at once (whatever the blocks and
// the layout), a read only after a feed, the rank bound, and the C++ owner.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <vector>

#include "brenn.hpp"
#include "tests/stats/order_harness.h"

namespace {

template <class T>
struct Api;
template <>
struct Api<double> : brenn::fe::SsEntries<double> {
    using Stream = brenn_ss_stream_f64;
    static constexpr auto make = brenn_ss_stream_new_f64;
    static constexpr auto feed = brenn_ss_stream_feed_f64;
    static constexpr auto read = brenn_ss_stream_read_f64;
    static constexpr auto count = brenn_ss_stream_count_f64;
    static constexpr auto drop = brenn_ss_stream_delete_f64;
};
template <>
struct Api<float> : brenn::fe::SsEntries<float> {
    using Stream = brenn_ss_stream_f32;
    static constexpr auto make = brenn_ss_stream_new_f32;
    static constexpr auto feed = brenn_ss_stream_feed_f32;
    static constexpr auto read = brenn_ss_stream_read_f32;
    static constexpr auto count = brenn_ss_stream_count_f32;
    static constexpr auto drop = brenn_ss_stream_delete_f32;
};

template <class T>
class FrontendSsStream : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(FrontendSsStream, Precisions);

template <class T>
std::vector<T> Data(int64_t size, uint32_t seed) {
    std::vector<T> x(size);
    for (T& v : x) {
        seed = seed * 1664525u + 1013904223u;
        v = T(int32_t(seed >> 8) - (1 << 23)) / T(1 << 8);
    }
    return x;
}

// The service's answers for the whole of x (observations in rows) fed in one call.
template <class T>
std::vector<T> OneCall(int64_t p, int64_t n, const std::vector<T>& x, T eps,
                       const std::vector<T>& orders) {
    using A = Api<T>;
    int64_t pp = p, nn = n, storage = BRENN_SS_OBSERVATIONS_IN_ROWS, m = int64_t(orders.size()),
            params = 1;
    std::vector<T> q(p * orders.size());
    void* task = nullptr;
    EXPECT_EQ(A::newTask(&task, &pp, &nn, &storage, x.data(), nullptr, nullptr, 1), 0);
    EXPECT_EQ(A::editStream(task, &m, const_cast<T*>(orders.data()), q.data(), &params, &eps), 0);
    EXPECT_EQ(A::stream(task, BRENN_SS_STREAM_QUANTS, BRENN_SS_METHOD_STREAM_READ, nullptr), 0);
    _qesSSDeleteTask(&task);
    return q;
}

TYPED_TEST(FrontendSsStream, RefusalsFeedNothing) {
    using T = TypeParam;
    using A = Api<T>;
    typename A::Stream* s = reinterpret_cast<typename A::Stream*>(&s);
    EXPECT_EQ(A::make(nullptr, 1, T(0.1)), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::make(&s, 0, T(0.1)), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(s, nullptr);
    for (T eps : {T(0), T(-0.1), T(1.0001), std::numeric_limits<T>::quiet_NaN(),
                  std::numeric_limits<T>::signaling_NaN(), std::numeric_limits<T>::infinity()})
        EXPECT_EQ(A::make(&s, 1, eps), BRENN_ERR_BAD_ARGUMENT);
    ASSERT_EQ(A::make(&s, 2, T(1)), BRENN_OK);
    const T x[4] = {1, 2, 3, 4}, orders[2] = {0, 1};
    T q[4] = {-9, -9, -9, -9};
    EXPECT_EQ(A::read(s, 2, orders, q), BRENN_ERR_NOT_AVAILABLE); // nothing fed yet
    EXPECT_EQ(A::feed(nullptr, 2, BRENN_SS_VARIABLES_IN_ROWS, x), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::feed(s, 2, BRENN_SS_VARIABLES_IN_ROWS, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::feed(s, -1, BRENN_SS_VARIABLES_IN_ROWS, x), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(A::feed(s, 2, 3, x), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(A::feed(s, 0, BRENN_SS_VARIABLES_IN_ROWS, x), BRENN_OK);
    EXPECT_EQ(A::count(s), 0);
    ASSERT_EQ(A::feed(s, 2, BRENN_SS_VARIABLES_IN_ROWS, x), BRENN_OK);
    EXPECT_EQ(A::count(s), 2);
    const T bad[2] = {T(0.5), std::numeric_limits<T>::quiet_NaN()}, above[1] = {T(1.5)};
    EXPECT_EQ(A::read(s, 2, bad, q), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(A::read(s, 1, above, q), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(A::read(s, -1, orders, q), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(A::read(s, 2, nullptr, q), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::read(s, 2, orders, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(A::read(nullptr, 2, orders, q), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(std::vector<T>(q, q + 4), std::vector<T>(4, T(-9)));
    // The refused reads kept the held observation: the answer has all four values.
    ASSERT_EQ(A::read(s, 2, orders, q), BRENN_OK);
    EXPECT_EQ(std::vector<T>(q, q + 4), (std::vector<T>{1, 2, 3, 4}));
    EXPECT_EQ(A::read(s, 2, orders, q), BRENN_ERR_NOT_AVAILABLE); // a second read
    EXPECT_EQ(A::count(nullptr), -1);
    A::drop(&s);
    EXPECT_EQ(s, nullptr);
    A::drop(&s);
    A::drop(nullptr);
}

// Blocks of every size and both layouts give the one-call answers bit for bit, and
// reads between feeds do not change what follows.
TYPED_TEST(FrontendSsStream, AnyCuttingGivesTheOneCallAnswer) {
    using T = TypeParam;
    using A = Api<T>;
    using brenn::test::Bits;
    const int64_t p = 3, n = 12000;
    const T eps = T(0.01);
    const std::vector<T> x = Data<T>(p * n, 77); // observations in rows
    const std::vector<T> orders = {0, T(0.01), T(0.25), T(0.5), T(0.99), 1};
    const int64_t m = int64_t(orders.size());
    const std::vector<T> want = OneCall(p, n, x, eps, orders);
    for (int64_t block : {int64_t(1), int64_t(7), int64_t(1000), n})
        for (int64_t layout : {BRENN_SS_VARIABLES_IN_ROWS, BRENN_SS_OBSERVATIONS_IN_ROWS})
            for (bool readBetween : {false, true}) {
                typename A::Stream* s = nullptr;
                ASSERT_EQ(A::make(&s, p, eps), BRENN_OK);
                std::vector<T> q(p * m);
                for (int64_t at = 0; at < n; at += block) {
                    const int64_t take = std::min(block, n - at);
                    std::vector<T> b(p * take);
                    for (int64_t i = 0; i < take; ++i)
                        for (int64_t j = 0; j < p; ++j)
                            (layout == BRENN_SS_VARIABLES_IN_ROWS ? b[j * take + i]
                                                                  : b[i * p + j]) =
                                x[(at + i) * p + j];
                    ASSERT_EQ(A::feed(s, take, layout, b.data()), BRENN_OK);
                    if (readBetween && at % (block * 5) == 0 && at + take < n)
                        ASSERT_EQ(A::read(s, m, orders.data(), q.data()), BRENN_OK);
                }
                EXPECT_EQ(A::count(s), n);
                ASSERT_EQ(A::read(s, m, orders.data(), q.data()), BRENN_OK);
                EXPECT_EQ(Bits(q), Bits(want)) << block << " " << layout << " " << readBetween;
                A::drop(&s);
            }
}

// The answer's rank lies within eps N of the order's, through the C++ owner.
TYPED_TEST(FrontendSsStream, RanksWithinEpsThroughTheOwner) {
    using T = TypeParam;
    namespace ss = brenn::ss;
    const int64_t n = 100000;
    const T eps = T(0.001);
    std::vector<T> x = Data<T>(n, 5);
    auto made = ss::stream_quantiles<T>::make(1, eps);
    ASSERT_TRUE(made.stat.ok());
    ss::stream_quantiles<T> s = std::move(made.value);
    for (int64_t at = 0; at < n; at += 4096)
        ASSERT_TRUE(s.feed(std::span<const T>(x.data() + at, std::min<int64_t>(4096, n - at))));
    const std::vector<T> orders = {0, T(0.01), T(0.5), T(0.99), 1};
    std::vector<T> q = s.read(orders).or_throw();
    EXPECT_EQ(s.read(orders).stat, BRENN_ERR_NOT_AVAILABLE);
    std::sort(x.begin(), x.end());
    for (size_t k = 0; k < orders.size(); ++k) {
        const double lo = double(std::lower_bound(x.begin(), x.end(), q[k]) - x.begin()) + 1;
        const double hi = double(std::upper_bound(x.begin(), x.end(), q[k]) - x.begin());
        const double target = double(orders[k]) * double(n - 1) + 1;
        EXPECT_LE(lo, target + double(eps) * n) << orders[k];
        EXPECT_GE(hi, target - double(eps) * n) << orders[k];
    }
    EXPECT_EQ(s.feed(std::span<const T>(x.data(), 3)).code, BRENN_OK);
    ss::stream_quantiles<T> empty;
    EXPECT_EQ(empty.feed(std::span<const T>(x.data(), 3)).code, BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(empty.count(), -1);
    auto two = ss::stream_quantiles<T>::make(2, eps);
    EXPECT_EQ(two.value.feed(std::span<const T>(x.data(), 3)).code, BRENN_ERR_SIZE_MISMATCH);
}

} // namespace
