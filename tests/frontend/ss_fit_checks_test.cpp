// Statistics in one call and spline objects: the refusals (nothing written), the
// estimates against direct sums, and splines against the functions they reproduce.
#include <cmath>
#include <gtest/gtest.h>
#include <vector>

#include "brenn.h"

namespace {

TEST(FrontendSs, RefusalsWriteNothing) {
    const double x[6] = {1, 2, 3, 4, 5, 6};
    double mean[2] = {-1, -1}, cov[4] = {-1, -1, -1, -1};
    brenn_ss_results_f64 r = {};
    r.mean = mean;
    r.covariance = cov;
    const double badWeights[3] = {1, -1, 1};
    struct Case {
        brenn_ss_matrix_f64 m;
        uint64_t estimates;
        int expected;
    } cases[] = {
        {{2, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, nullptr, nullptr},
         BRENN_SS_MEAN | BRENN_SS_COR,
         BRENN_ERR_NULL_POINTER},
        {{0, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, nullptr, nullptr},
         BRENN_SS_MEAN,
         BRENN_ERR_BAD_SIZE},
        {{2, -3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, nullptr, nullptr},
         BRENN_SS_MEAN,
         BRENN_ERR_BAD_SIZE},
        {{2, 3, 7, x, nullptr, nullptr}, BRENN_SS_MEAN, BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, nullptr, nullptr, nullptr},
         BRENN_SS_MEAN,
         BRENN_ERR_NULL_POINTER},
        {{2, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, badWeights, nullptr},
         BRENN_SS_MEAN,
         BRENN_ERR_BAD_ARGUMENT},
        {{2, 3, BRENN_SS_OBSERVATIONS_IN_ROWS, x, nullptr, nullptr},
         BRENN_SS_QUANTS,
         BRENN_ERR_NOT_AVAILABLE},
    };
    for (const Case& c : cases) {
        EXPECT_EQ(brenn_ss_compute_f64(&c.m, c.estimates, &r), c.expected);
        EXPECT_EQ(mean[0], -1.0);
        EXPECT_EQ(cov[3], -1.0);
    }
    EXPECT_EQ(brenn_ss_compute_f64(nullptr, BRENN_SS_MEAN, &r), BRENN_ERR_NULL_POINTER);
}

// Both layouts and both precisions give the sums' values; an estimate asked for
// alone (correlation without covariance or mean) needs nothing else from the caller.
TEST(FrontendSs, EstimatesOfBothLayoutsAndPrecisions) {
    const int p = 2, n = 5;
    const double v0[n] = {1, 2, 4, 8, 16}, v1[n] = {2, 1, 0, -1, -3};
    std::vector<double> rows(p * n), cols(p * n);
    for (int i = 0; i < n; ++i) {
        rows[i] = v0[i], rows[n + i] = v1[i];
        cols[i * p] = v0[i], cols[i * p + 1] = v1[i];
    }
    double m0 = 6.2, var0 = 0, m1 = -0.2, var1 = 0, c01 = 0;
    for (int i = 0; i < n; ++i) {
        var0 += (v0[i] - m0) * (v0[i] - m0) / (n - 1);
        var1 += (v1[i] - m1) * (v1[i] - m1) / (n - 1);
        c01 += (v0[i] - m0) * (v1[i] - m1) / (n - 1);
    }
    for (const auto& [layout, x] : {std::pair{BRENN_SS_VARIABLES_IN_ROWS, &rows},
                                    std::pair{BRENN_SS_OBSERVATIONS_IN_ROWS, &cols}}) {
        double cor[4], minimum[2], maximum[2];
        brenn_ss_results_f64 r = {};
        r.correlation = cor;
        r.minimum = minimum;
        r.maximum = maximum;
        brenn_ss_matrix_f64 m = {p, n, layout, x->data(), nullptr, nullptr};
        ASSERT_EQ(brenn_ss_compute_f64(&m, BRENN_SS_COR | BRENN_SS_MIN | BRENN_SS_MAX, &r),
                  BRENN_OK);
        EXPECT_NEAR(cor[1], c01 / std::sqrt(var0 * var1), 1e-14);
        EXPECT_EQ(minimum[1], -3.0);
        EXPECT_EQ(maximum[0], 16.0);
        std::vector<float> xs(x->begin(), x->end());
        float mean[2], c2[2];
        brenn_ss_results_f32 rs = {};
        rs.mean = mean;
        rs.central_moment2 = c2;
        brenn_ss_matrix_f32 ms = {p, n, layout, xs.data(), nullptr, nullptr};
        ASSERT_EQ(brenn_ss_compute_f32(&ms, BRENN_SS_MEAN | BRENN_SS_2C_MOM, &rs), BRENN_OK);
        EXPECT_NEAR(mean[0], m0, 1e-5);
        EXPECT_NEAR(c2[1], var1, 1e-5);
    }
}

TEST(FrontendFit, RefusalsLeaveNoSpline) {
    const double x[4] = {0, 1, 2, 3}, y[4] = {0, 1, 4, 9}, unsorted[4] = {0, 2, 1, 3};
    const double infinite[4] = {0, 1, INFINITY, 4};
    brenn_fit_spline_f64* s = nullptr;
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, -4, x, y, 0, nullptr, nullptr),
              BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, 99, 4, x, y, 0, nullptr, nullptr),
              BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, 4, unsorted, y, 0, nullptr, nullptr),
              BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, 4, infinite, y, 0, nullptr, nullptr),
              BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, 4, x, nullptr, 0, nullptr, nullptr),
              BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_QUADRATIC, 4, x, y, FIT_BC_MID_VALUE, nullptr,
                                       nullptr),
              BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_QUADRATIC_KNOTS, 4, x, y, 12, x, nullptr),
              BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(s, nullptr);
    ASSERT_EQ(brenn_fit_spline_new_f64(&s, BRENN_FIT_LINEAR, 4, x, y, 0, nullptr, nullptr),
              BRENN_OK);
    double site[2] = {0.5, NAN}, out[4] = {-1, -1, -1, -1};
    EXPECT_EQ(brenn_fit_spline_eval_f64(s, 2, site, 1, out), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_eval_f64(s, 1, site, 3, out), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_eval_f64(s, 1, site, 0, out), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_eval_f64(s, -1, site, 1, out), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(brenn_fit_spline_eval_f64(s, 1, site, 1, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(out[0], -1.0);
    // Integrals: the same checks, and a NaN limit on either side.
    double lo[2] = {0.5, 1}, hi[2] = {2, NAN};
    const brenn_fit_spline_f64* none = nullptr;
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, -1, lo, hi, 1, out), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(none, 1, lo, hi, 1, out), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 1, nullptr, hi, 1, out), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 1, lo, nullptr, 1, out), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 1, lo, hi, 1, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 2, lo, hi, 1, out), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 2, hi, lo, 0, out), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_fit_spline_integrate_f64(s, 0, nullptr, nullptr, 1, nullptr), BRENN_OK);
    EXPECT_EQ(out[0], -1.0);
    brenn_fit_spline_delete_f64(&s);
    EXPECT_EQ(s, nullptr);
}

// Each kind built reproduces a polynomial of its degree exactly, in value and
// derivative; kinds not built say so, in both precisions.
TEST(FrontendFit, EveryBuiltKindReproducesItsPolynomials) {
    const int nx = 9;
    std::vector<double> x(nx), y1(nx), y2(nx);
    for (int i = 0; i < nx; ++i) {
        x[i] = 0.25 * i * (1 + 0.1 * i);
        y1[i] = 3 * x[i] - 1;
        y2[i] = x[i] * x[i];
    }
    const double sites[3] = {0.1, 1.3, 2.9};
    int built = 0;
    for (int kind = 0; kind < BRENN_FIT_KIND_COUNT; ++kind) {
        brenn_fit_spline_f64* s = nullptr;
        std::vector<double> knots(nx + 1), derivatives(nx);
        for (int i = 0; i <= nx; ++i)
            knots[i] = i == 0 ? x[0] : i == nx ? x[nx - 1] : 0.5 * (x[i - 1] + x[i]);
        for (int i = 0; i < nx; ++i)
            derivatives[i] = 3;
        const double* ic = kind == BRENN_FIT_QUADRATIC_KNOTS ? knots.data()
                           : kind == BRENN_FIT_CUBIC_HERMITE ? derivatives.data()
                                                             : nullptr;
        // A line fits every kind; the boundary numbers are its own.
        int64_t bc = kind == BRENN_FIT_QUADRATIC ? FIT_BC_MID_VALUE
                     : kind == BRENN_FIT_LINEAR  ? FIT_BC_NONE
                                                 : FIT_BC_FIRST_LEFT | FIT_BC_FIRST_RIGHT;
        double bcValues[2] = {kind == BRENN_FIT_QUADRATIC ? 3 * (0.5 * x[1]) - 1 : 3.0, 3.0};
        int status = brenn_fit_spline_new_f64(&s, kind, nx, x.data(), y1.data(), bc, bcValues, ic);
        if (brenn_fit_available(kind) != BRENN_OK) {
            EXPECT_EQ(status, BRENN_ERR_NOT_AVAILABLE) << kind;
            continue;
        }
        ASSERT_EQ(status, BRENN_OK) << kind;
        ++built;
        double out[6];
        ASSERT_EQ(brenn_fit_spline_eval_f64(s, 3, sites, 2, out), BRENN_OK);
        for (int i = 0; i < 3; ++i) {
            EXPECT_NEAR(out[2 * i], 3 * sites[i] - 1, 1e-13) << kind;
            EXPECT_NEAR(out[2 * i + 1], 3.0, 1e-12) << kind;
        }
        // Integrals of the line: inside, beyond both ends (the end cells extended, or NaN
        // without extrapolation), the other way round exactly minus.
        const double lo[4] = {0.1, -1, 1.3, 2.9}, hi[4] = {2.9, 4, 0.2, 2.9};
        double area[4], flat[4];
        ASSERT_EQ(brenn_fit_spline_integrate_f64(s, 4, lo, hi, 1, area), BRENN_OK);
        ASSERT_EQ(brenn_fit_spline_integrate_f64(s, 4, lo, hi, 0, flat), BRENN_OK);
        for (int i = 0; i < 4; ++i) {
            double exact = 1.5 * (hi[i] * hi[i] - lo[i] * lo[i]) - (hi[i] - lo[i]);
            EXPECT_NEAR(area[i], exact, 1e-12) << kind << " " << i;
            EXPECT_EQ(std::isnan(flat[i]), i == 1) << kind << " " << i;
            if (i != 1) {
                EXPECT_EQ(flat[i], area[i]);
            }
        }
        double back;
        ASSERT_EQ(brenn_fit_spline_integrate_f64(s, 1, hi, lo, 1, &back), BRENN_OK);
        EXPECT_EQ(back, -area[0]);
        brenn_fit_spline_delete_f64(&s);
    }
    EXPECT_GE(built, 2);
    // Single precision: the linear spline of a line.
    std::vector<float> xf(x.begin(), x.end()), yf(y1.begin(), y1.end());
    brenn_fit_spline_f32* f = nullptr;
    ASSERT_EQ(brenn_fit_spline_new_f32(&f, BRENN_FIT_LINEAR, nx, xf.data(), yf.data(), 0, nullptr,
                                       nullptr),
              BRENN_OK);
    float site = 1.3f, value;
    ASSERT_EQ(brenn_fit_spline_eval_f32(f, 1, &site, 1, &value), BRENN_OK);
    EXPECT_NEAR(value, 2.9f, 1e-5f);
    float lo[2] = {0.25f, 3}, hi[2] = {2.5f, 4}, area[2];
    ASSERT_EQ(brenn_fit_spline_integrate_f32(f, 2, lo, hi, 0, area), BRENN_OK);
    EXPECT_NEAR(area[0], 1.5f * (2.5f * 2.5f - 0.0625f) - 2.25f, 1e-5f);
    EXPECT_TRUE(std::isnan(area[1]));
    hi[0] = NAN;
    EXPECT_EQ(brenn_fit_spline_integrate_f32(f, 1, lo, hi, 1, area), BRENN_ERR_BAD_ARGUMENT);
    brenn_fit_spline_delete_f32(&f);
}

} // namespace
