// The weighted median by hand: one case for each way the result is read (the walk
// stopping above half or at it, the odd-n tests, the walk over zero weights, all
// weights zero), cases where one added zero-weight observation turns the odd-n rule
// off, in both layouts and precisions; its statuses and the allocation failure.
// (Unit weights against numpy.median are in the numpy comparison.)
#include <gtest/gtest.h>

#include <vector>

#include "platform/serv.h"
#include "tests/stats/order_harness.h"

namespace brenn::test {
namespace {

template <typename T>
int32_t WMedian(void* task) {
    if constexpr (sizeof(T) == 8)
        return _qesdSSWMedian(task);
    else
        return _qessSSWMedian(task);
}

struct HandCase {
    const char* what;
    std::vector<double> x, w;
    double want;
};

const HandCase kCases[] = {
    {"above half, nothing before k", {3, 1, 2}, {1, 5, 1}, 1},
    {"above half, odd n, prev at (S - w[k]) / 2", {2, 3, 1}, {2, 1, 1}, 2},
    {"above half, interpolated", {5, 1}, {2, 1}, 2},
    {"above half, walk down over zero weights", {8, 2, 1, 5}, {2, 0, 1, 0}, 2.75},
    {"at half, odd n", {3, 1, 2}, {2, 1, 1}, 2},
    {"at half, k the last index", {2, 1}, {1, -1}, 2},
    {"at half, next positive weight", {4, 3, 2, 1}, {2, 0, 1, 1}, 3},
    {"at half, no later positive weight", {3, 1}, {0, 0}, 2},
    {"unit weights, odd", {5, 1, 3}, {1, 1, 1}, 3},
    {"unit weights, even", {4, 1, 3, 2}, {1, 1, 1, 1}, 2.5},
    // One more observation of weight 0 makes n even: the odd-n branches no longer apply.
    {"odd rule above half", {1, 2, 3}, {1, 1, 1}, 2},
    {"odd rule above half, a zero weight added", {1, 2, 3, 10}, {1, 1, 1, 0}, 1.5},
    {"odd rule at half", {1, 2, 3}, {1, 1, 2}, 2},
    {"odd rule at half, a zero weight added", {1, 2, 3, 10}, {1, 1, 2, 0}, 2.5},
};

template <typename T>
class WMedianTest : public ::testing::Test {};
TYPED_TEST_SUITE(WMedianTest, Precisions);

TYPED_TEST(WMedianTest, HandWorkedBranches) {
    using T = TypeParam;
    for (const HandCase& c : kCases)
        for (int64_t layout : {BRENN_SS_MATRIX_STORAGE_ROWS, BRENN_SS_MATRIX_STORAGE_COLS}) {
            // Two variables: the case, and the case doubled (left out by the indices
            // in the second round).
            const int64_t n = c.x.size();
            std::vector<T> x(2 * n), w(c.w.begin(), c.w.end());
            for (int64_t i = 0; i < n; ++i) {
                x[layout == BRENN_SS_MATRIX_STORAGE_ROWS ? i : 2 * i] = T(c.x[i]);
                x[layout == BRENN_SS_MATRIX_STORAGE_ROWS ? n + i : 2 * i + 1] = T(2 * c.x[i]);
            }
            const int64_t keep[2] = {1, 0};
            for (int round = 0; round < 2; ++round) {
                OrderTask<T> t(2, n, layout, x, round ? keep : nullptr);
                T result[2] = {-99, -99};
                SsEntries<T>::edit(t.task, BRENN_SS_ED_WEIGHTS, w.data());
                SsEntries<T>::edit(t.task, BRENN_SS_ED_QUANT_QUANTILES, result);
                ASSERT_EQ(WMedian<T>(t.task), 0);
                EXPECT_EQ(result[0], T(c.want)) << c.what << " layout " << layout;
                EXPECT_EQ(result[1], round ? T(-99) : T(2 * c.want)) << c.what;
            }
        }
}

TYPED_TEST(WMedianTest, Statuses) {
    using T = TypeParam;
    OrderTask<T> t(1, 3, BRENN_SS_MATRIX_STORAGE_ROWS, {1, 2, 3});
    T w[3] = {1, 1, 1}, r = -1;
    EXPECT_EQ(WMedian<T>(nullptr), BRENN_SS_ERROR_TASK_NULL);
    SsEntries<T>::edit(t.task, BRENN_SS_ED_QUANT_QUANTILES, &r);
    EXPECT_EQ(WMedian<T>(t.task), BRENN_SS_ERROR_WEIGHTS_MISSING);
    SsEntries<T>::edit(t.task, BRENN_SS_ED_WEIGHTS, w);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(WMedian<T>(t.task), BRENN_SS_ERROR_ALLOC);
    brenn_serv_fail_allocation(0);
    EXPECT_EQ(r, T(-1));
    EXPECT_EQ(WMedian<T>(t.task), 0);
    EXPECT_EQ(r, T(2));
    int64_t bad = 5;
    _qesiSSEditTask(t.task, BRENN_SS_ED_OBSERV_STORAGE, &bad);
    EXPECT_EQ(WMedian<T>(t.task), BRENN_SS_ERROR_STORAGE);
    OrderTask<T> noResult(1, 3, BRENN_SS_MATRIX_STORAGE_ROWS, {1, 2, 3});
    SsEntries<T>::edit(noResult.task, BRENN_SS_ED_WEIGHTS, w);
    EXPECT_EQ(WMedian<T>(noResult.task), BRENN_SS_ERROR_QUANTILES_MISSING);
}

} // namespace
} // namespace brenn::test
