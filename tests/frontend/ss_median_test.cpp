// Sort, median absolute deviation and weighted median in one call: refusals with
// nothing written, results equal to the service's task run by hand (both layouts and
// precisions, indices, NaNs and values near the ends of the range), the sort in place,
// unit weights made for an unweighted view, and the C++ wrappers.
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
    using Matrix = brenn_ss_matrix_f64;
    static constexpr auto sort = brenn_ss_sort_f64;
    static constexpr auto mad = brenn_ss_mad_f64;
    static constexpr auto wmedian = brenn_ss_weighted_median_f64;
};
template <>
struct Api<float> : brenn::fe::SsEntries<float> {
    using Matrix = brenn_ss_matrix_f32;
    static constexpr auto sort = brenn_ss_sort_f32;
    static constexpr auto mad = brenn_ss_mad_f32;
    static constexpr auto wmedian = brenn_ss_weighted_median_f32;
};

template <class T>
class FrontendSsMedian : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(FrontendSsMedian, Precisions);

// Values spread over the range, with the largest finite values, a denormal and NaNs.
template <class T>
std::vector<T> Data(int64_t size, bool nans) {
    std::vector<T> x(size);
    uint32_t state = 2024;
    for (T& v : x) {
        state = state * 1664525u + 1013904223u;
        v = T(int32_t(state >> 8) - (1 << 23)) / T(1 << 12);
    }
    x[3] = std::numeric_limits<T>::max() / 4;
    x[4] = -std::numeric_limits<T>::max() / 4;
    x[5] = std::numeric_limits<T>::denorm_min();
    if (nans) {
        x[1] = std::numeric_limits<T>::quiet_NaN();
        x[size - 1] = std::numeric_limits<T>::signaling_NaN();
    }
    return x;
}

TYPED_TEST(FrontendSsMedian, RefusalsWriteNothing) {
    using T = TypeParam;
    using A = Api<T>;
    const T x[6] = {3, 1, 2, 6, 5, 4};
    const T negative[3] = {1, -1, 1}, nanWeight[3] = {1, std::numeric_limits<T>::quiet_NaN(), 1};
    const int64_t keepOne[2] = {1, 0};
    using M = typename A::Matrix;
    struct Case {
        M m;
        int expected;
    } cases[] = {
        {{2, 0, BRENN_SS_VARIABLES_IN_ROWS, x, nullptr, nullptr}, BRENN_ERR_BAD_SIZE},
        {{0, 3, BRENN_SS_VARIABLES_IN_ROWS, x, nullptr, nullptr}, BRENN_ERR_BAD_SIZE},
        {{2, 3, 7, x, nullptr, nullptr}, BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_VARIABLES_IN_ROWS, nullptr, nullptr, nullptr}, BRENN_ERR_NULL_POINTER},
        {{2, 3, BRENN_SS_VARIABLES_IN_ROWS, x, negative, nullptr}, BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, nanWeight, nullptr}, BRENN_ERR_BAD_ARGUMENT},
    };
    for (const Case& c : cases) {
        std::vector<T> out(6, T(-9));
        EXPECT_EQ(A::sort(&c.m, out.data()), c.expected);
        EXPECT_EQ(A::mad(&c.m, out.data()), c.expected);
        EXPECT_EQ(A::wmedian(&c.m, out.data()), c.expected);
        EXPECT_EQ(out, std::vector<T>(6, T(-9)));
    }
    const M good = {2, 3, BRENN_SS_VARIABLES_IN_ROWS, x, nullptr, nullptr};
    for (auto f : {A::sort, A::mad, A::wmedian}) {
        EXPECT_EQ(f(nullptr, const_cast<T*>(x)), BRENN_ERR_NULL_POINTER);
        EXPECT_EQ(f(&good, nullptr), BRENN_ERR_NULL_POINTER);
    }
    // Sorting x itself while indices leave a variable out.
    std::vector<T> mine(x, x + 6);
    const M indexed = {2, 3, BRENN_SS_VARIABLES_IN_ROWS, mine.data(), nullptr, keepOne};
    EXPECT_EQ(A::sort(&indexed, mine.data()), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(mine, std::vector<T>(x, x + 6));
}

// Each entry equals the service's own task, NaNs included; variables left out stay.
TYPED_TEST(FrontendSsMedian, ResultsAreTheServices) {
    using T = TypeParam;
    using A = Api<T>;
    using brenn::test::Bits;
    const int64_t p = 3, n = 999;
    const int64_t keepOuter[3] = {1, 0, 1};
    for (bool nans : {false, true})
        for (int64_t layout : {BRENN_SS_VARIABLES_IN_ROWS, BRENN_SS_OBSERVATIONS_IN_ROWS})
            for (const int64_t* indices : {static_cast<const int64_t*>(nullptr), keepOuter}) {
                const std::vector<T> x = Data<T>(p * n, nans);
                std::vector<T> w(n);
                for (int64_t i = 0; i < n; ++i)
                    w[i] = T(i % 7) * T(0.25);
                const typename A::Matrix view = {p, n, layout, x.data(), w.data(), indices};
                std::vector<T> sorted(p * n, T(-7)), mad(p, T(-7)), med(p, T(-7));
                ASSERT_EQ(A::sort(&view, sorted.data()), BRENN_OK);
                ASSERT_EQ(A::mad(&view, mad.data()), BRENN_OK);
                ASSERT_EQ(A::wmedian(&view, med.data()), BRENN_OK);

                std::vector<T> sorted2(p * n, T(-7)), mad2(p, T(-7)), med2(p, T(-7));
                int64_t pp = p, nn = n, storage = layout;
                void* task = nullptr;
                ASSERT_EQ(A::newTask(&task, &pp, &nn, &storage, x.data(), w.data(), indices, 1), 0);
                ASSERT_EQ(A::edit(task, BRENN_SS_ED_SORTED_OBSERV, sorted2.data()), 0);
                ASSERT_EQ(_qesiSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, &storage), 0);
                ASSERT_EQ(brenn::fe::SsEntries<T>::sort(task, BRENN_SS_SORTED_OBSERV,
                                                        BRENN_SS_METHOD_FAST, nullptr),
                          0);
                ASSERT_EQ(brenn::fe::SsEntries<T>::mad(task, BRENN_SS_MDAD, BRENN_SS_METHOD_FAST,
                                                       mad2.data(), nullptr),
                          0);
                ASSERT_EQ(A::editQuantiles(task, nullptr, nullptr, med2.data(), nullptr, nullptr),
                          0);
                ASSERT_EQ(A::weightedMedian(task), 0);
                _qesSSDeleteTask(&task);
                EXPECT_EQ(Bits(sorted), Bits(sorted2));
                EXPECT_EQ(Bits(mad), Bits(mad2));
                EXPECT_EQ(Bits(med), Bits(med2));
                if (indices != nullptr) EXPECT_EQ(mad[1], T(-7));
            }
}

// In place, unit weights for an unweighted view, and the C++ wrappers' sizes.
TYPED_TEST(FrontendSsMedian, InPlaceUnitWeightsAndWrappers) {
    using T = TypeParam;
    using A = Api<T>;
    const int64_t p = 2, n = 6;
    std::vector<T> x = {5, -1, 4, 2, 0, 3, /**/ 9, 9, 1, 9, 2, std::numeric_limits<T>::max()};
    const std::vector<T> original = x;
    typename A::Matrix view = {p, n, BRENN_SS_VARIABLES_IN_ROWS, x.data(), nullptr, nullptr};
    std::vector<T> med(p);
    ASSERT_EQ(A::wmedian(&view, med.data()), BRENN_OK);
    EXPECT_EQ(med[0], T(2.5)); // the mean of the middle two, as the plain median
    EXPECT_EQ(med[1], T(9));
    std::vector<T> mad(p);
    ASSERT_EQ(A::mad(&view, mad.data()), BRENN_OK);
    EXPECT_EQ(mad[0], T(2)); // |x - 2.5| = 2.5 3.5 1.5 0.5 2.5 0.5
    EXPECT_EQ(x, original);  // x is not written
    ASSERT_EQ(A::sort(&view, x.data()), BRENN_OK);
    EXPECT_EQ(x, (std::vector<T>{-1, 0, 2, 3, 4, 5, 1, 2, 9, 9, 9, std::numeric_limits<T>::max()}));

    namespace ss = brenn::ss;
    const ss::matrix_view<T> m{original, p, n, ss::layout::variables_in_rows};
    EXPECT_EQ(ss::median_abs_deviation(m).or_throw(), mad);
    EXPECT_EQ(ss::weighted_median(m).or_throw(), med);
    EXPECT_EQ(ss::sorted(m).or_throw(), x);
    const T orders[2] = {0, 1};
    EXPECT_EQ(ss::quantiles(m, std::span<const T>(orders)).or_throw(),
              (std::vector<T>{-1, 5, 1, std::numeric_limits<T>::max()}));
    std::vector<T> y = original;
    EXPECT_TRUE(ss::sort_in_place(std::span<T>(y), p, n, ss::layout::variables_in_rows).ok());
    EXPECT_EQ(y, x);
    const ss::matrix_view<T> bad{original, p, n + 1, ss::layout::variables_in_rows};
    EXPECT_EQ(ss::weighted_median(bad).stat, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_TRUE(ss::weighted_median(bad).value.empty());
    EXPECT_EQ(ss::sort_in_place(std::span<T>(y), p, n - 1).code, BRENN_ERR_SIZE_MISMATCH);
}

} // namespace
