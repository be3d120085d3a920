// Bad input to the fitting task in both precisions: negative and zero counts, counts
// whose byte sizes pass what can be allocated, unknown hints and types, indices past
// the pointer blocks, and edits that fail and must leave the task as it was, its owned
// blocks included. Under the address sanitizer these also show that no refusal reads
// or writes outside a block.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "fitting/task.h"
#include "platform/serv.h"
#include "tests/fitting/fitting_test_util.h"

using brenn::fit::FittingTask;
using namespace brenn::fittest;

namespace {

template <typename T>
class FittingBadInput : public ::testing::Test {};
TYPED_TEST_SUITE(FittingBadInput, Precisions, PrecisionNames);

FittingTask* Task(FitTaskHandle h) {
    return static_cast<FittingTask*>(h);
}

// Counts whose byte sizes, at four bytes or more an element, pass 2^63: each one
// either wraps a 64-bit product or lies beyond any allocation.
constexpr int64_t kHugeCounts[] = {int64_t{1} << 61, (int64_t{1} << 61) + 1, int64_t{1} << 62,
                                   INT64_MAX};

// The record byte for byte and the slots of its two pointer blocks.
struct Snapshot {
    unsigned char record[sizeof(FittingTask)];
    std::vector<const void*> y, coeff;

    explicit Snapshot(FitTaskHandle h) {
        const FittingTask* task = Task(h);
        std::memcpy(record, task, sizeof(FittingTask));
        if (task->y != nullptr) y.assign(task->y, task->y + task->ySlots);
        if (task->sCoeff != nullptr) coeff.assign(task->sCoeff, task->sCoeff + task->sCoeffSlots);
    }
    bool operator==(const Snapshot& o) const {
        return std::memcmp(record, o.record, sizeof(record)) == 0 && y == o.y && coeff == o.coeff;
    }
};

TYPED_TEST(FittingBadInput, CreationRefusesInTheDocumentedOrder) {
    using T = TypeParam;
    T x[4] = {0, 1, 2, 3}, y[4] = {};
    FitTaskHandle t = nullptr;
    EXPECT_EQ(NewTask<T>(&t, 1, nullptr, 99, 1, nullptr, 99), FIT_STATUS_BAD_NX);
    EXPECT_EQ(NewTask<T>(&t, 4, nullptr, 99, 1, nullptr, 99), FIT_STATUS_BAD_X);
    EXPECT_EQ(NewTask<T>(&t, 4, x, 3, 1, nullptr, 99), FIT_STATUS_BAD_X_HINT);
    EXPECT_EQ(NewTask<T>(&t, 4, x, 0, -1, nullptr, 99), FIT_STATUS_BAD_NY);
    EXPECT_EQ(NewTask<T>(&t, 4, x, 0, 1, nullptr, 99), FIT_STATUS_BAD_Y);
    EXPECT_EQ(NewTask<T>(&t, 4, x, 0, 0, y, 99), FIT_STATUS_BAD_NY);
    EXPECT_EQ(NewTask<T>(&t, 4, x, 0, 1, y, 64), FIT_STATUS_BAD_Y_HINT);
    for (int64_t nx : {int64_t{0}, int64_t{-1}, INT64_MIN})
        EXPECT_EQ(NewTask<T>(&t, nx, x, 0, 1, y, 16), FIT_STATUS_BAD_NX) << nx;
    for (int64_t ny : {int64_t{-1}, int64_t{-2}, INT64_MIN}) {
        EXPECT_EQ(NewTask<T>(&t, 4, x, 0, ny, y, 16), FIT_STATUS_BAD_NY) << ny;
        EXPECT_EQ(NewTask<T>(&t, 4, x, 0, ny, nullptr, 16), FIT_STATUS_BAD_NY) << ny;
    }
    for (int64_t xHint : {-1, 3, 5, 8, 16})
        EXPECT_EQ(NewTask<T>(&t, 4, x, xHint, 1, y, 16), FIT_STATUS_BAD_X_HINT) << xHint;
    for (int64_t yHint : {-16, 1, 48, 64, 256})
        EXPECT_EQ(NewTask<T>(&t, 4, x, 0, 1, y, yHint), FIT_STATUS_BAD_Y_HINT) << yHint;
    EXPECT_EQ(t, nullptr);
    EXPECT_EQ(brenn_df_kernel_DeleteTask(&t), FIT_STATUS_NULL_TASK);
    EXPECT_EQ(brenn_df_kernel_DeleteTask(nullptr), FIT_STATUS_NULL_TASK);
}

// A failing edit of any kind: its status, and the task as it was.
struct BadEdit {
    const char* what;
    int32_t status;
    std::function<int32_t(FitTaskHandle)> edit;
};

void ExpectEachLeavesTheTask(FitTaskHandle t, const std::vector<BadEdit>& edits) {
    for (const BadEdit& e : edits) {
        Snapshot before(t);
        EXPECT_EQ(e.edit(t), e.status) << e.what;
        EXPECT_TRUE(Snapshot(t) == before) << e.what << " changed the task";
    }
}

template <typename T>
std::vector<BadEdit> ValueEdits() {
    std::vector<BadEdit> edits;
    struct Refused {
        int64_t id;
        int32_t status;
        std::vector<int64_t> values;
    } refused[] = {
        {FIT_PARAM_NX, FIT_STATUS_BAD_NX, {1, 0, -1, INT64_MIN}},
        {FIT_PARAM_XHINT, FIT_STATUS_BAD_X_HINT, {-1, 3, 5, 8, INT64_MAX}},
        {FIT_PARAM_NY, FIT_STATUS_BAD_NY, {0, -1, INT64_MIN}},
        {FIT_PARAM_YHINT, FIT_STATUS_BAD_Y_HINT, {-16, 1, 48, 64}},
        {FIT_PARAM_SORDER, FIT_STATUS_BAD_SPLINE_ORDER, {-1, INT64_MIN}},
        {FIT_PARAM_STYPE, FIT_STATUS_BAD_SPLINE_TYPE, {-1, 6, 7, 8, 10, INT64_MAX}},
        {FIT_PARAM_ICTYPE, FIT_STATUS_BAD_IC_TYPE, {3, 4, 7, 16}},
        {FIT_PARAM_BCTYPE, FIT_STATUS_BAD_BC_TYPE, {-1, INT64_MIN}},
        {FIT_PARAM_SCOEFFHINT, FIT_STATUS_BAD_COEFF_HINT, {-1, 1, 64}},
        {FIT_PARAM_FLAG, FIT_STATUS_BAD_FLAG, {-1, 2}},
        {0, FIT_STATUS_BAD_PARAM_ID, {1}},
        {FIT_PARAM_X, FIT_STATUS_BAD_PARAM_ID, {1}},
        {24, FIT_STATUS_BAD_PARAM_ID, {1}},
        {-1, FIT_STATUS_BAD_PARAM_ID, {1}},
    };
    for (const Refused& r : refused)
        for (int64_t v : r.values)
            edits.push_back({"iEditVal", r.status, [r, v](FitTaskHandle t) {
                                 return brenn_df_kernel_iEditVal(t, r.id, v);
                             }});
    return edits;
}

template <typename T>
std::vector<BadEdit> PointerEdits(const T* some) {
    std::vector<BadEdit> edits;
    struct Null {
        int64_t id;
        int32_t status;
    } nulls[] = {{FIT_PARAM_X, FIT_STATUS_BAD_X},
                 {FIT_PARAM_Y, FIT_STATUS_BAD_Y},
                 {FIT_PARAM_IC, FIT_STATUS_BAD_IC},
                 {FIT_PARAM_BC, FIT_STATUS_BAD_BC},
                 {FIT_PARAM_SCOEFF, FIT_STATUS_BAD_COEFF_PTR}};
    for (Null n : nulls)
        edits.push_back({"EditPtr null", n.status,
                         [n](FitTaskHandle t) { return EditPtr<T>(t, n.id, nullptr); }});
    for (int64_t id : {int64_t{0}, int64_t{6}, int64_t{14}, int64_t{-1}, INT64_MAX})
        edits.push_back({"EditPtr id", FIT_STATUS_BAD_PARAM_ID,
                         [id, some](FitTaskHandle t) { return EditPtr<T>(t, id, some); }});
    for (int64_t index : {int64_t{-1}, int64_t{3}, INT64_MAX, INT64_MIN}) {
        edits.push_back(
            {"EditIdxPtr y index", FIT_STATUS_BAD_INDEX, [index, some](FitTaskHandle t) {
                 return EditIdxPtr<T>(t, FIT_PARAM_Y, index, some);
             }});
        edits.push_back(
            {"EditIdxPtr coeff index", FIT_STATUS_BAD_INDEX, [index, some](FitTaskHandle t) {
                 return EditIdxPtr<T>(t, FIT_PARAM_SCOEFF, index, some);
             }});
    }
    edits.push_back({"EditIdxPtr y null", FIT_STATUS_BAD_Y,
                     [](FitTaskHandle t) { return EditIdxPtr<T>(t, FIT_PARAM_Y, 0, nullptr); }});
    edits.push_back({"EditIdxPtr coeff null", FIT_STATUS_BAD_COEFF_PTR, [](FitTaskHandle t) {
                         return EditIdxPtr<T>(t, FIT_PARAM_SCOEFF, 0, nullptr);
                     }});
    edits.push_back({"EditIdxPtr id", FIT_STATUS_BAD_PARAM_ID,
                     [some](FitTaskHandle t) { return EditIdxPtr<T>(t, FIT_PARAM_IC, 0, some); }});
    return edits;
}

// EditPPSpline1D stores each field once its own test passes; a refusal at a step
// keeps the fields of that step and those after it, and these edits repeat the
// task's earlier fields, so that the task must stay as it was byte for byte.
template <typename T>
std::vector<BadEdit> SplineEdits(const T* bc, const T* ic, T* coeff) {
    return {
        {"order and a negative type", FIT_STATUS_BAD_SPLINE_TYPE,
         [=](FitTaskHandle t) { return EditPP<T>(t, 4, -1, 12, bc, 8, ic, coeff); }},
        {"negative order", FIT_STATUS_BAD_SPLINE_ORDER,
         [=](FitTaskHandle t) { return EditPP<T>(t, -1, 2, 12, bc, 8, ic, coeff); }},
        {"lowest order", FIT_STATUS_BAD_SPLINE_ORDER,
         [=](FitTaskHandle t) { return EditPP<T>(t, INT64_MIN, 2, 12, bc, 8, ic, coeff); }},
        {"boundary values missing", FIT_STATUS_BAD_BC,
         [=](FitTaskHandle t) { return EditPP<T>(t, 3, 1, 36, nullptr, 8, ic, coeff); }},
        {"knots missing", FIT_STATUS_BAD_IC,
         [=](FitTaskHandle t) { return EditPP<T>(t, 3, 1, 12, bc, 8, nullptr, coeff); }},
        {"knots without their code", FIT_STATUS_BAD_IC_TYPE,
         [=](FitTaskHandle t) { return EditPP<T>(t, 3, 1, 12, bc, 0, ic, coeff); }},
    };
}

TYPED_TEST(FittingBadInput, FailedEditsLeaveTheTaskAsItWas) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3, 4}, y(15), c(45), other(5);
    T bc[2] = {1, 2};
    std::vector<T> knots = {0, 0.5, 1.5, 2.5, 3.5, 4};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, 5, x.data(), 0, 3, y.data(), 16), 0);
    ASSERT_EQ(EditPP<T>(t, 3, 1, 12, bc, 8, knots.data(), c.data()), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_FLAG, 1), 0);
    ExpectEachLeavesTheTask(t, ValueEdits<T>());
    ExpectEachLeavesTheTask(t, PointerEdits<T>(other.data()));
    ExpectEachLeavesTheTask(t, SplineEdits<T>(bc, knots.data(), c.data()));

    // Interleaved values have no pointer a function.
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, FIT_Y_COLUMNS), 0);
    ExpectEachLeavesTheTask(t, {{"EditIdxPtr columns", FIT_STATUS_BAD_Y_HINT, [&](FitTaskHandle h) {
                                     return EditIdxPtr<T>(h, FIT_PARAM_Y, 0, other.data());
                                 }}});

    // A task that isn't editable takes every edit, good or bad, as a no-op.
    Task(t)->editable = 0;
    std::vector<BadEdit> ignored = {
        {"x", 0, [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_X, other.data()); }},
        {"y", 0, [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_Y, other.data()); }},
        {"coeff", 0, [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_SCOEFF, c.data()); }},
        {"nx", 0, [](FitTaskHandle h) { return brenn_df_kernel_iEditVal(h, FIT_PARAM_NX, 3); }},
        {"bad nx", 0, [](FitTaskHandle h) { return brenn_df_kernel_iEditVal(h, FIT_PARAM_NX, 0); }},
        {"xHint", 0,
         [](FitTaskHandle h) { return brenn_df_kernel_iEditVal(h, FIT_PARAM_XHINT, 1); }},
        {"index", 0,
         [&](FitTaskHandle h) { return EditIdxPtr<T>(h, FIT_PARAM_SCOEFF, 0, other.data()); }},
    };
    ExpectEachLeavesTheTask(t, ignored);
    Task(t)->editable = 1;
    brenn_df_kernel_DeleteTask(&t);

    // No functions: a coefficient pointer has no function to serve.
    ASSERT_EQ(NewTask<T>(&t, 5, x.data(), 0, 0, nullptr, 0), 0);
    ExpectEachLeavesTheTask(
        t, {{"EditPtr coeff", FIT_STATUS_BAD_NY,
             [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_SCOEFF, c.data()); }},
            {"EditPPSpline coeff", FIT_STATUS_BAD_NY, [&](FitTaskHandle h) {
                 return EditPP<T>(h, 0, 0, 0, nullptr, 0, nullptr, c.data());
             }}});
    brenn_df_kernel_DeleteTask(&t);
}

TYPED_TEST(FittingBadInput, SizesPastAllocationGiveTheMemoryStatus) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3}, y(12), c(12);
    T ends[2] = {0, 1}, bc[2] = {1, 2};
    int64_t live = brenn_serv_live_allocations();
    for (int64_t huge : kHugeCounts) {
        SCOPED_TRACE(huge);
        // Creation: the block of function pointers. The half-made task is the
        // caller's to delete.
        for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_FIRST_ROW_ONLY}) {
            FitTaskHandle t = nullptr;
            EXPECT_EQ(NewTask<T>(&t, 4, x.data(), 0, huge, y.data(), yHint), FIT_STATUS_NO_MEMORY);
            brenn_df_kernel_DeleteTask(&t);
        }

        // ny raised by an edit, then the editors that make blocks of ny slots.
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 3, y.data(), FIT_Y_ROWS), 0);
        ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
        ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_NY, huge), 0);
        ExpectEachLeavesTheTask(
            t, {{"EditPtr y", FIT_STATUS_NO_MEMORY,
                 [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_Y, y.data()); }},
                {"EditPtr coeff", FIT_STATUS_NO_MEMORY,
                 [&](FitTaskHandle h) { return EditPtr<T>(h, FIT_PARAM_SCOEFF, c.data()); }},
                {"EditPPSpline coeff", FIT_STATUS_NO_MEMORY, [&](FitTaskHandle h) {
                     return EditPP<T>(h, 2, 0, 0, nullptr, 0, nullptr, c.data());
                 }}});
        brenn_df_kernel_DeleteTask(&t);

        // Interleaved values need one pointer whatever ny is; the coefficients don't.
        ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, huge, y.data(), FIT_Y_COLUMNS), 0);
        EXPECT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), FIT_STATUS_NO_MEMORY);
        brenn_df_kernel_DeleteTask(&t);

        // The sites of a uniform site hint.
        ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 0, nullptr, 0), 0);
        int32_t cells[4] = {-7, -7, -7, -7};
        EXPECT_EQ(Search<T>(t, huge, ends, FIT_SITES_UNIFORM, nullptr, cells, nullptr),
                  FIT_STATUS_NO_MEMORY);
        EXPECT_EQ(cells[0], -7);
        brenn_df_kernel_DeleteTask(&t);

        // The work arrays of the quadratic forms, over a uniform partition of huge
        // nodes (its two ends are all of x).
        ASSERT_EQ(NewTask<T>(&t, huge, ends, FIT_X_UNIFORM, 1, y.data(), FIT_Y_ROWS), 0);
        c.assign(12, T(-5));
        ASSERT_EQ(EditPP<T>(t, 3, 0, FIT_BC_MID_VALUE, bc, 0, nullptr, c.data()), 0);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_NO_MEMORY);
        ASSERT_EQ(EditPP<T>(t, 3, 1, 12, bc, FIT_IC_KNOTS | FIT_IC_UNIFORM, ends, c.data()), 0);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_NO_MEMORY);
        EXPECT_EQ(c[0], T(-5));
        brenn_df_kernel_DeleteTask(&t);
    }
    EXPECT_EQ(brenn_serv_live_allocations(), live);
}

TYPED_TEST(FittingBadInput, IndicesStayInsideThePointerBlocks) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3}, y(8), c(12), other(4);
    FitTaskHandle t = nullptr;
    for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_FIRST_ROW_ONLY}) {
        ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 2, y.data(), yHint), 0);
        ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
        // Index ny passes the query's bound and reads the null slot past the functions'.
        T* p = other.data();
        ASSERT_EQ(QueryIdxPtr<T>(t, FIT_PARAM_Y, 2, &p), 0);
        EXPECT_EQ(p, nullptr);
        p = other.data();
        ASSERT_EQ(QueryIdxPtr<T>(t, FIT_PARAM_SCOEFF, 2, &p), 0);
        EXPECT_EQ(p, nullptr);

        // ny raised past the blocks: the slots that exist take pointers, the others are
        // out of range for the editor and read as null.
        ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_NY, 6), 0);
        EXPECT_EQ(EditIdxPtr<T>(t, FIT_PARAM_Y, 1, other.data()), 0);
        EXPECT_EQ(EditIdxPtr<T>(t, FIT_PARAM_Y, 2, other.data()), 0);
        for (int64_t index : {3, 5}) {
            EXPECT_EQ(EditIdxPtr<T>(t, FIT_PARAM_Y, index, other.data()), FIT_STATUS_BAD_INDEX);
            EXPECT_EQ(EditIdxPtr<T>(t, FIT_PARAM_SCOEFF, index, other.data()),
                      FIT_STATUS_BAD_INDEX);
        }
        for (int64_t index : {3, 6}) {
            p = other.data();
            ASSERT_EQ(QueryIdxPtr<T>(t, FIT_PARAM_Y, index, &p), 0);
            EXPECT_EQ(p, nullptr);
            p = other.data();
            ASSERT_EQ(QueryIdxPtr<T>(t, FIT_PARAM_SCOEFF, index, &p), 0);
            EXPECT_EQ(p, nullptr);
        }
        // Construction and interpolation find the pointers missing.
        EXPECT_EQ(Linear<T>(t, nullptr), FIT_STATUS_BAD_Y);
        T s = 1, r = 0;
        EXPECT_EQ(Values<T>(t, 1, &s, &r), FIT_STATUS_BAD_COEFF_PTR);
        brenn_df_kernel_DeleteTask(&t);
    }
    // A block made for interleaved values has one pointer, read through any hint.
    ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 2, y.data(), FIT_Y_COLUMNS), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, FIT_Y_ROWS), 0);
    T* p = other.data();
    ASSERT_EQ(QueryIdxPtr<T>(t, FIT_PARAM_Y, 2, &p), 0);
    EXPECT_EQ(p, nullptr);
    EXPECT_EQ(Linear<T>(t, nullptr), FIT_STATUS_BAD_Y);
    brenn_df_kernel_DeleteTask(&t);
}

TYPED_TEST(FittingBadInput, NegativeSiteAndDerivativeCountsTouchNothing) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3}, y = {1, 2, 3, 4}, c(6);
    T ends[2] = {0, 3};
    for (int64_t xHint : {FIT_X_NO_HINT, FIT_X_QUASI_UNIFORM, FIT_X_UNIFORM}) {
        FitTaskHandle t = nullptr;
        ASSERT_EQ(
            NewTask<T>(&t, 4, xHint == FIT_X_UNIFORM ? ends : x.data(), xHint, 1, y.data(), 16), 0);
        ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
        ASSERT_EQ(Linear<T>(t, nullptr), 0);
        for (int64_t n : {int64_t{-1}, int64_t{-1000}, INT64_MIN}) {
            for (int64_t siteHint :
                 {int64_t{0}, int64_t{FIT_SITES_UNIFORM}, int64_t{FIT_SITES_SORTED}}) {
                int32_t cells[2] = {-7, -7};
                T r[2] = {-7, -7};
                EXPECT_EQ(Search<T>(t, n, ends, siteHint, nullptr, cells, nullptr), 0);
                EXPECT_EQ(Interpolate<T>(t, FIT_CALL_VALUES | FIT_CALL_CELLS, n, ends, siteHint, 0,
                                         nullptr, r, 0, cells, nullptr),
                          0);
                EXPECT_EQ(Values<T>(t, n, ends, r), 0);
                EXPECT_EQ(cells[0], -7);
                EXPECT_EQ(r[0], T(-7));
            }
        }
        // A negative count of derivative orders asks for the value alone.
        int32_t dorder[1] = {1};
        T s = T(1.5), r = 0;
        EXPECT_EQ(Interpolate<T>(t, FIT_CALL_VALUES, 1, &s, 0, -3, dorder, &r, 0, nullptr, nullptr),
                  0);
        EXPECT_EQ(r, T(2.5));
        brenn_df_kernel_DeleteTask(&t);
    }
}

} // namespace
