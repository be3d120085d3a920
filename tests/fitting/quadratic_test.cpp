// Quadratic splines: the midpoint form and the knot form interpolate, are C1 at their
// joins and meet their end conditions; interpolation of them matches the pieces; the
// dispatch refusals and the knot checks.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

double Poly(const double* c, double d, int k) {
    if (k == 0) return c[0] + d * (c[1] + d * c[2]);
    if (k == 1) return c[1] + 2 * c[2] * d;
    return 2 * c[2];
}

void ExpectClose(double a, double b, double scale, const char* what, int64_t i) {
    EXPECT_NEAR(a, b, 1e-12 * scale) << what << " at " << i;
}

TEST(FittingQuadratic, MidpointFormInterpolatesAndIsSmooth) {
    for (int64_t xHint : {0, 4}) {
        for (int64_t nx : {2, 3, 50, 5000}) { // 5000: the work array is allocated
            std::vector<double> x = RandomPartition<double>(nx, nx, 0, 10);
            if (xHint == 4)
                for (int64_t i = 0; i < nx; ++i)
                    x[i] = 10.0 * i / (nx - 1);
            double ends[2] = {x.front(), x.back()};
            std::vector<double> y(nx), c(3 * (nx - 1));
            for (int64_t i = 0; i < nx; ++i)
                y[i] = std::sin(x[i]) + 0.1 * x[i];
            double bc[1] = {0.7};
            FitTaskHandle t = nullptr;
            ASSERT_EQ(NewTask<double>(&t, nx, xHint ? ends : x.data(), xHint, 1, y.data(), 16), 0);
            ASSERT_EQ(EditPP<double>(t, 3, 0, FIT_BC_MID_VALUE, bc, 0, nullptr, c.data()), 0);
            ASSERT_EQ(Quadratic<double>(t, nullptr), 0);
            double scale = 0;
            for (double v : c)
                scale = std::max(scale, std::fabs(v));
            EXPECT_NEAR(Poly(&c[0], (x[1] - x[0]) / 2, 0), 0.7, 1e-12 * scale);
            for (int64_t i = 0; i + 1 < nx; ++i) {
                double h = x[i + 1] - x[i];
                ExpectClose(Poly(&c[3 * i], 0, 0), y[i], 1 + std::fabs(y[i]), "value", i);
                ExpectClose(Poly(&c[3 * i], h, 0), y[i + 1], scale * 10, "end value", i);
                if (i + 2 < nx)
                    ExpectClose(Poly(&c[3 * i], h, 1), c[3 * (i + 1) + 1], scale * 10, "C1", i);
            }
            brenn_df_kernel_DeleteTask(&t);
        }
    }
}

struct KnotCase {
    int64_t bcType;
    bool leftFirst, rightFirst;
};

TEST(FittingQuadratic, KnotFormInterpolatesIsSmoothAndMeetsItsEnds) {
    for (KnotCase kc :
         {KnotCase{12, true, true}, {36, true, false}, {24, false, true}, {48, false, false}}) {
        for (int64_t nx : {2, 3, 40}) {
            for (bool evenKnots : {false, true}) {
                std::vector<double> x(nx), y(nx), c(3 * nx), knots(nx + 1);
                for (int64_t i = 0; i < nx; ++i)
                    x[i] = i + 0.3 * std::sin(3.0 * i);
                for (int64_t i = 0; i < nx; ++i)
                    y[i] = std::cos(x[i]);
                if (evenKnots) {
                    // Evenly spaced knots fit a partition of evenly spaced nodes.
                    for (int64_t i = 0; i < nx; ++i)
                        x[i] = i;
                    knots[0] = 0;
                    knots[1] = nx - 1;
                } else {
                    knots[0] = x[0];
                    knots[nx] = x[nx - 1];
                    for (int64_t i = 1; i < nx; ++i)
                        knots[i] = x[i - 1] + 0.3 * (x[i] - x[i - 1]);
                }
                double bc[2] = {0.25, -0.5};
                FitTaskHandle t = nullptr;
                ASSERT_EQ(NewTask<double>(&t, nx, x.data(), 0, 1, y.data(), 16), 0);
                ASSERT_EQ(EditPP<double>(t, 3, 1, kc.bcType, bc, evenKnots ? 12 : 8, knots.data(),
                                         c.data()),
                          0);
                ASSERT_EQ(Quadratic<double>(t, nullptr), 0) << kc.bcType << " " << nx;
                auto knot = [&](int64_t j) { return evenKnots ? j * (nx - 1.0) / nx : knots[j]; };
                double scale = 1;
                for (double v : c)
                    scale = std::max(scale, std::fabs(v));
                for (int64_t j = 0; j < nx; ++j) {
                    double len = knot(j + 1) - knot(j);
                    ExpectClose(Poly(&c[3 * j], x[j] - knot(j), 0), y[j], scale, "node", j);
                    if (j + 1 < nx) {
                        ExpectClose(Poly(&c[3 * j], len, 0), c[3 * (j + 1)], scale, "C0", j);
                        ExpectClose(Poly(&c[3 * j], len, 1), c[3 * (j + 1) + 1], scale, "C1", j);
                    }
                }
                double lastLen = x[nx - 1] - knot(nx - 1);
                ExpectClose(Poly(&c[0], 0, kc.leftFirst ? 1 : 2), 0.25, scale, "left", 0);
                ExpectClose(Poly(&c[3 * (nx - 1)], lastLen, kc.rightFirst ? 1 : 2), -0.5, scale,
                            "right", nx - 1);

                // Interpolation picks the piece by the knots.
                std::vector<double> sites = RandomSites<double>(300, 5, x[0] - 1, x[nx - 1] + 1);
                std::vector<double> r(sites.size());
                ASSERT_EQ(brenn_df_kernel_dDFInterpolate1D(
                              t, 1, 0, sites.size(), sites.data(), 0, 0, nullptr, nullptr, r.data(),
                              0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                              nullptr, nullptr, nullptr),
                          0);
                for (size_t i = 0; i < sites.size(); ++i) {
                    int64_t j = 0;
                    while (j + 1 < nx && sites[i] >= knot(j + 1))
                        ++j;
                    ASSERT_NEAR(r[i], Poly(&c[3 * j], sites[i] - knot(j), 0), 1e-12 * scale);
                }
                brenn_df_kernel_DeleteTask(&t);
            }
        }
    }
}

TEST(FittingQuadratic, Refusals) {
    std::vector<double> x = {0, 1, 2, 3}, y = {0, 1, 0, 1}, c(12);
    double bc[2] = {0, 0};
    std::vector<double> knots = {0, 0.5, 1.5, 2.5, 3};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, 4, x.data(), 0, 1, y.data(), 16), 0);
    ASSERT_EQ(EditPP<double>(t, 3, 0, 12, bc, 0, nullptr, c.data()), 0);
    EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_BAD_BC_TYPE); // midpoint form needs 128
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_BCTYPE, 128), 0);
    ASSERT_EQ(EditPP<double>(t, 3, 0, 0, nullptr, 0, nullptr, nullptr), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_BCTYPE, 128), 0);
    EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_BAD_BC);
    ASSERT_EQ(EditPP<double>(t, 3, 2, 128, bc, 0, nullptr, nullptr), 0);
    EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_FLAG_REFUSED);

    ASSERT_EQ(EditPP<double>(t, 3, 1, 12, bc, 1, knots.data(), c.data()), 0);
    EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_BAD_IC_TYPE);
    for (int64_t bcType : {1, 2, 64, 128}) {
        ASSERT_EQ(EditPP<double>(t, 3, 1, bcType, bc, 8, knots.data(), c.data()), 0);
        EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_BAD_BC_TYPE) << bcType;
    }
    ASSERT_EQ(EditPP<double>(t, 3, 1, 12, bc, 8, knots.data(), c.data()), 0);
    ASSERT_EQ(Quadratic<double>(t, nullptr), 0);
    int64_t live = brenn_serv_live_allocations();
    for (int k : {0, 1, 4}) {
        std::vector<double> bad = knots;
        bad[k] = k == 0 ? -0.1 : (k == 4 ? 3.1 : 1.0); // ends off, a knot on a node
        ASSERT_EQ(brenn_df_kernel_dEditPtr(t, FIT_PARAM_IC, bad.data()), 0);
        c.assign(12, 9);
        EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_BAD_IC) << k;
        EXPECT_EQ(c[0], 9);
    }
    EXPECT_EQ(brenn_serv_live_allocations(), live); // the work area went back
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, 32), 0);
    ASSERT_EQ(brenn_df_kernel_dEditPtr(t, FIT_PARAM_IC, knots.data()), 0);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Quadratic<double>(t, nullptr), FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingQuadratic, SinglePrecisionAndColumns) {
    int64_t nx = 200, ny = 3;
    std::vector<float> x(nx), y(nx * ny), c(3 * (nx - 1) * ny);
    for (int64_t i = 0; i < nx; ++i)
        x[i] = i * 0.05f;
    for (int64_t i = 0; i < nx; ++i)
        for (int64_t f = 0; f < ny; ++f)
            y[i * ny + f] = std::sin(x[i] * (f + 1));
    float bc[1] = {std::sin(0.025f)};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<float>(&t, nx, x.data(), 0, ny, y.data(), 32), 0);
    ASSERT_EQ(EditPP<float>(t, 3, 0, 128, bc, 0, nullptr, c.data()), 0);
    ASSERT_EQ(Quadratic<float>(t, nullptr), 0);
    for (int64_t f = 0; f < ny; ++f)
        for (int64_t i = 0; i + 1 < nx; ++i)
            ASSERT_EQ(c[(f * (nx - 1) + i) * 3], y[i * ny + f]);
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
