// The fitting task: creation, owned blocks, the cell-search table, and the editors
// and queries (their refusals are with the other bad input).
#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <vector>

#include "brenn_fitting.h"
#include "fitting/task.h"
#include "platform/serv.h"
#include "tests/support/support.h"

using brenn::fit::FittingTask;

namespace {

FittingTask* Task(FitTaskHandle h) {
    return static_cast<FittingTask*>(h);
}

// Count of nodes not above v, with the right end in the last cell: the cell of v.
int64_t TrueCell(const std::vector<double>& x, double v) {
    if (v == x.back()) return static_cast<int64_t>(x.size()) - 1;
    return std::upper_bound(x.begin(), x.end(), v) - x.begin();
}

TEST(FittingTaskCreate, StoresFieldsAndPointerBlocksByHint) {
    std::vector<double> x = {0, 1, 2, 3, 4}, y(15);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 5, x.data(), 0, 3, y.data(), FIT_Y_ROWS, 1), 0);
    FittingTask* task = Task(t);
    EXPECT_EQ(task->kindTag, 4);
    EXPECT_EQ(task->isDouble, 1);
    EXPECT_EQ(task->editable, 1);
    EXPECT_EQ(task->frontEndWord, 1);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(task->y[i], y.data() + 5 * i);
    ASSERT_EQ(brenn_df_kernel_DeleteTask(&t), 0);
    EXPECT_EQ(t, nullptr);

    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 5, x.data(), 0, 3, y.data(), FIT_Y_FIRST_ROW_ONLY, 0),
              0);
    EXPECT_EQ(Task(t)->y[0], y.data());
    EXPECT_EQ(Task(t)->y[1], nullptr);
    brenn_df_kernel_DeleteTask(&t);

    // No functions: a valid task with no pointer block.
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 5, x.data(), 0, 0, nullptr, 0, 0), 0);
    EXPECT_EQ(Task(t)->y, nullptr);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingTaskCreate, EveryAllocationFailureReportsNoMemoryAndDeleteCleansUp) {
    std::vector<double> x = {0, 1, 2, 3, 4}, y(10);
    brenn::test::SweepAllocationFailures([&] {
        FitTaskHandle t = nullptr;
        int32_t status = brenn_df_kernel_dNewTask1D(&t, 5, x.data(), 0, 2, y.data(), 16, 0);
        if (status != 0) EXPECT_EQ(status, FIT_STATUS_NO_MEMORY);
        // A half-made task is the caller's to delete.
        if (t != nullptr) brenn_df_kernel_DeleteTask(&t);
        return status == 0;
    });
}

TEST(FittingSearchTable, TwoNodesGiveSixteenBucketsSpanningTheCell) {
    double x[2] = {-1, 5};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 2, x, 0, 0, nullptr, 0, 0), 0);
    FittingTask* task = Task(t);
    EXPECT_EQ(task->searchCells, 16);
    EXPECT_DOUBLE_EQ(task->searchScale.d, 16.0 / 6.0);
    for (int b = 0; b <= 16; ++b) {
        EXPECT_EQ(task->searchTable[b].lo, 0) << b;
        EXPECT_EQ(task->searchTable[b].hi, 1) << b;
    }
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingSearchTable, UniformHintBuildsNothing) {
    double x[2] = {0, 1};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 1000, x, FIT_X_UNIFORM, 0, nullptr, 0, 0), 0);
    EXPECT_EQ(Task(t)->searchCells, 0);
    EXPECT_NE(Task(t)->searchTable, nullptr);
    int64_t live = brenn_serv_live_allocations();
    brenn_df_kernel_DeleteTask(&t);
    EXPECT_EQ(brenn_serv_live_allocations(), live - 2); // the record and the table
}

// The invariant that the hybrid searcher relies on: the cell of every value lies
// within its bucket's pair, for clustered, uneven and large partitions.
template <typename T>
void CheckTableBrackets(const std::vector<double>& xd) {
    std::vector<T> x(xd.begin(), xd.end());
    std::vector<double> xs(x.begin(), x.end());
    FitTaskHandle t = nullptr;
    int32_t status =
        sizeof(T) == 8
            ? brenn_df_kernel_dNewTask1D(&t, x.size(), reinterpret_cast<double*>(x.data()), 1, 0,
                                         nullptr, 0, 0)
            : brenn_df_kernel_sNewTask1D(&t, x.size(), reinterpret_cast<float*>(x.data()), 1, 0,
                                         nullptr, 0, 0);
    ASSERT_EQ(status, 0);
    FittingTask* task = Task(t);
    int64_t m = task->searchCells;
    EXPECT_EQ(m, std::min<int64_t>(1024, std::max<int64_t>(16, x.size() / 16)));
    T scale = brenn::fit::SearchScale<T>(task);
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> u(xs.front(), xs.back());
    std::vector<double> probes(xs.begin(), xs.end());
    for (int i = 0; i < 20000; ++i)
        probes.push_back(static_cast<T>(u(rng)));
    for (double v : probes) {
        T q = (static_cast<T>(v) - x[0]) * scale;
        int64_t b = static_cast<int64_t>(q);
        ASSERT_LE(b, m);
        int64_t c = TrueCell(xs, v);
        ASSERT_GE(c, task->searchTable[b].lo) << v;
        ASSERT_LE(c, task->searchTable[b].hi) << v;
    }
    brenn_df_kernel_DeleteTask(&t);
}

std::vector<double> Clustered(int n) {
    std::vector<double> x(n);
    for (int i = 0; i < n; ++i) {
        double u = static_cast<double>(i) / (n - 1);
        x[i] = u * u * u * u * 100.0 - 3.0;
    }
    return x;
}

TEST(FittingSearchTable, BracketsTheCellOfEveryValue) {
    for (int n : {2, 3, 17, 33, 257, 20000}) {
        CheckTableBrackets<double>(Clustered(n));
        CheckTableBrackets<float>(Clustered(n));
    }
    std::vector<double> even(5000);
    for (int i = 0; i < 5000; ++i)
        even[i] = 0.5 * i;
    CheckTableBrackets<double>(even);
}

TEST(FittingSearchTable, OnlyNonUniformHintRebuilds) {
    std::vector<double> x = Clustered(400), x2(400);
    for (int i = 0; i < 400; ++i)
        x2[i] = i;
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 400, x.data(), 0, 0, nullptr, 0, 0), 0);
    FittingTask* task = Task(t);
    double oldScale = task->searchScale.d;
    ASSERT_EQ(brenn_df_kernel_dEditPtr(t, FIT_PARAM_X, x2.data()), 0);
    for (int64_t hint : {0, 2, 4}) {
        ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_XHINT, hint), 0);
        EXPECT_EQ(task->searchScale.d, oldScale); // stale on purpose
    }
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_XHINT, 1), 0);
    EXPECT_DOUBLE_EQ(task->searchScale.d, 25.0 / 399.0);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingEditors, EditPPSplineStoresFieldsAsTheirTestsPass) {
    std::vector<double> x = {0, 1, 2, 3}, y(8), c(32), bc(2), ic(5);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 4, x.data(), 0, 2, y.data(), 16, 0), 0);
    FittingTask* task = Task(t);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(nullptr, 2, 0, 0, nullptr, 0, nullptr, nullptr, 0),
              FIT_STATUS_NULL_TASK);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(t, -1, 0, 0, nullptr, 0, nullptr, nullptr, 0),
              FIT_STATUS_BAD_SPLINE_ORDER);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 4, 0, 12, nullptr, 0, nullptr, nullptr, 0),
              FIT_STATUS_BAD_BC);
    EXPECT_EQ(task->sOrder, 4);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 3, 1, 64, nullptr, 0, ic.data(), nullptr, 0),
              FIT_STATUS_BAD_IC_TYPE);
    EXPECT_EQ(task->sOrder, 3);
    EXPECT_EQ(task->sType, 1);
    EXPECT_EQ(task->bcType, 64);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 3, 1, 12, bc.data(), 8, nullptr, nullptr, 0),
              FIT_STATUS_BAD_IC);
    // The knot form has nx pieces: coefficient blocks nx*sOrder apart.
    ASSERT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 3, 1, 12, bc.data(), 8, ic.data(), c.data(), 0),
              0);
    EXPECT_EQ(task->sCoeff[1], c.data() + 12);
    // Other splines nx-1 cells; a new block replaces the old one without a leak.
    int64_t live = brenn_serv_live_allocations();
    ASSERT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 2, 0, 0, nullptr, 0, nullptr, c.data(), 0), 0);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    EXPECT_EQ(task->sCoeff[1], c.data() + 6);
    ASSERT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 2, 0, 0, nullptr, 0, nullptr, c.data(), 128), 0);
    EXPECT_EQ(task->sCoeff[0], c.data());
    EXPECT_EQ(task->sCoeff[1], nullptr);
    // A failed allocation: the old block is gone, and the hint, stored last, stays.
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(brenn_df_kernel_dEditPPSpline1D(t, 2, 0, 0, nullptr, 0, nullptr, c.data(), 16),
              FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    EXPECT_EQ(task->sCoeff, nullptr);
    EXPECT_EQ(task->sCoeffHint, 128);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingEditors, ValueEditorsStoreWhatTheQueryGivesBack) {
    double x[3] = {0, 1, 2};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 3, x, 0, 0, nullptr, 0, 0), 0);
    struct Case {
        int64_t id, good;
    } cases[] = {{14, 3}, {15, 2},  {16, 1},  {17, 32},  {18, 4},
                 {19, 9}, {20, 12}, {21, 48}, {22, 128}, {23, 1}};
    for (const Case& c : cases) {
        EXPECT_EQ(brenn_df_kernel_iEditVal(t, c.id, c.good), 0) << c.id;
        int64_t v = -7;
        EXPECT_EQ(brenn_df_kernel_iQueryVal(t, c.id, &v), 0);
        EXPECT_EQ(v, c.good) << c.id;
    }
    int64_t v;
    EXPECT_EQ(brenn_df_kernel_iQueryVal(t, 24, &v), FIT_STATUS_BAD_PARAM_ID);
    EXPECT_EQ(brenn_df_kernel_iQueryVal(t, 14, nullptr), FIT_STATUS_NULL_OUT);
    EXPECT_EQ(brenn_df_kernel_iQueryVal(nullptr, 14, &v), FIT_STATUS_NULL_TASK);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingEditors, PointerEditorsAndQueries) {
    std::vector<double> x = {0, 1, 2}, y(6), y2(6), c(8), other(3);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(brenn_df_kernel_dNewTask1D(&t, 3, x.data(), 0, 2, y.data(), 16, 0), 0);
    ASSERT_EQ(brenn_df_kernel_dEditPtr(t, 2, y2.data()), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_SORDER, 2), 0);
    ASSERT_EQ(brenn_df_kernel_dEditPtr(t, 5, c.data()), 0);
    double* p = nullptr;
    ASSERT_EQ(brenn_df_kernel_dQueryPtr(t, 2, &p), 0);
    EXPECT_EQ(p, y2.data());
    ASSERT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 2, 1, &p), 0);
    EXPECT_EQ(p, y2.data() + 3);
    ASSERT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 5, 1, &p), 0);
    EXPECT_EQ(p, c.data() + 4);
    EXPECT_EQ(brenn_df_kernel_dQueryPtr(t, 1, nullptr), FIT_STATUS_NULL_OUT);
    EXPECT_EQ(brenn_df_kernel_dQueryPtr(t, 9, &p), FIT_STATUS_BAD_PARAM_ID);

    ASSERT_EQ(brenn_df_kernel_sEditIdxPtr(t, 2, 1, reinterpret_cast<float*>(other.data())), 0);
    ASSERT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 2, 1, &p), 0);
    EXPECT_EQ(p, other.data());
    // The query's upper bound is inclusive, the editor's is not.
    EXPECT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 2, 3, &p), FIT_STATUS_BAD_INDEX);
    EXPECT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 2, -1, &p), FIT_STATUS_BAD_INDEX);

    // Interleaved storage has no per-function pointers.
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, 32), 0);
    EXPECT_EQ(brenn_df_kernel_dQueryIdxPtr(t, 2, 0, &p), FIT_STATUS_BAD_Y_HINT);
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
