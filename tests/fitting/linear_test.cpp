// Linear spline construction in both precisions, over one table of cases: exact
// coefficients, the storage forms, the blocking frame across threaders, and the
// refusals.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingLinear : public ::testing::Test {};
TYPED_TEST_SUITE(FittingLinear, Precisions, PrecisionNames);

template <typename T>
void CoefficientsAreTheSlopes(int64_t nx, int64_t ny, int64_t yHint, int64_t xHint) {
    std::vector<T> x = RandomPartition<T>(nx, nx + ny);
    if (xHint == FIT_X_UNIFORM)
        for (int64_t i = 0; i < nx; ++i)
            x[i] = static_cast<T>(i) * T(0.25) - 1;
    T ends[2] = {x.front(), x.back()};
    std::vector<T> y = RandomSites<T>(nx * ny, 3 * nx, -5, 5);
    std::vector<std::vector<T>> runs;
    for (const threader* thr : Threaders()) {
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<T>(&t, nx, xHint == FIT_X_UNIFORM ? ends : x.data(), xHint, ny, y.data(),
                             yHint),
                  0);
        std::vector<T> c(2 * (nx - 1) * ny, T(-99));
        ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
        ASSERT_EQ(Linear<T>(t, thr), 0);
        for (int64_t f = 0; f < ny; ++f)
            for (int64_t i = 0; i + 1 < nx; ++i) {
                auto yv = [&](int64_t j) {
                    return yHint == FIT_Y_COLUMNS ? y[j * ny + f] : y[f * nx + j];
                };
                const T* cell = &c[(f * (nx - 1) + i) * 2];
                ASSERT_EQ(cell[0], yv(i));
                // Exact to rounding: the slope from a division, a reciprocal or the step.
                double slope = (static_cast<double>(yv(i + 1)) - yv(i)) /
                               (static_cast<double>(x[i + 1]) - x[i]);
                ASSERT_NEAR(cell[1], slope, 4 * kEps<T> * (std::fabs(slope) + 1e-3))
                    << f << " " << i;
            }
        runs.push_back(c);
        brenn_df_kernel_DeleteTask(&t);
    }
    // The same bits whoever runs the blocks.
    for (const auto& r : runs)
        ASSERT_EQ(0, std::memcmp(r.data(), runs[0].data(), r.size() * sizeof(T)));
}

TYPED_TEST(FittingLinear, CoefficientsAcrossFormsAndBlocks) {
    struct Case {
        int64_t nx, ny, yHint, xHint;
    } cases[] = {
        {2, 1, 16, 0},     // one cell, plain loop
        {128, 1, 16, 0},   // blocked, one block
        {1026, 17, 16, 0}, // 2 x 5 blocks: the threader
        {1026, 17, 32, 0}, // interleaved values
        {777, 9, 0, 0},    // no storage hint: rows
        {3000, 6, 16, 4},  // uniform partition
        {5000, 3, 32, 4},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(::testing::Message() << "nx " << c.nx << " ny " << c.ny << " yHint " << c.yHint
                                          << " xHint " << c.xHint);
        CoefficientsAreTheSlopes<TypeParam>(c.nx, c.ny, c.yHint, c.xHint);
    }
}

TYPED_TEST(FittingLinear, Refusals) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3}, y = {1, 2, 3, 1}, c(6);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 1, y.data(), 16), 0);
    ASSERT_EQ(EditPP<T>(t, 2, 0, 64, nullptr, 0, nullptr, c.data()), 0);
    EXPECT_EQ(Linear<T>(t, nullptr, 1), FIT_STATUS_FLAG_REFUSED);
    EXPECT_EQ(Linear<T>(nullptr, nullptr), FIT_STATUS_NULL_TASK);
    ASSERT_EQ(Linear<T>(t, nullptr), 0); // periodic: ends equal
    y[3] = std::nextafter(T(1), T(2));
    c.assign(6, -7);
    EXPECT_EQ(Linear<T>(t, nullptr), FIT_STATUS_BAD_PERIODIC_VAL);
    EXPECT_EQ(c[0], -7); // nothing written
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_BCTYPE, 0), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, 128), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_NY, 2), 0);
    // A function whose pointer never came through EditIdxPtr.
    ASSERT_EQ(EditPtr<T>(t, FIT_PARAM_Y, y.data()), 0);
    EXPECT_EQ(Linear<T>(t, nullptr), FIT_STATUS_BAD_Y);
    // A coefficient block made for fewer functions than ny has now.
    ASSERT_EQ(EditIdxPtr<T>(t, FIT_PARAM_Y, 1, y.data()), 0);
    EXPECT_EQ(Linear<T>(t, nullptr), FIT_STATUS_BAD_COEFF_PTR);
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
