// Interpolation in both precisions: values and derivatives against the coefficients
// and against exact lines, the five layouts, the direct and batch paths, threading,
// extrapolation, callbacks, step functions and look-up, and the refusals.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <tuple>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingInterpolate : public ::testing::Test {};
TYPED_TEST_SUITE(FittingInterpolate, Precisions, PrecisionNames);

// A linear spline of nf functions on a random partition, ready to evaluate.
template <typename T>
struct LinearFit {
    std::vector<T> x, y, c;
    FitTaskHandle t = nullptr;
    int64_t nx, nf;

    LinearFit(int64_t nxIn, int64_t nfIn, uint64_t seed) : nx(nxIn), nf(nfIn) {
        x = RandomPartition<T>(nx, seed);
        y = RandomSites<T>(nx * nf, seed + 1, -3, 3);
        c.resize(2 * (nx - 1) * nf);
        EXPECT_EQ(NewTask<T>(&t, nx, x.data(), 0, nf, y.data(), 16), 0);
        EXPECT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
        EXPECT_EQ(Linear<T>(t, nullptr), 0);
    }
    ~LinearFit() { brenn_df_kernel_DeleteTask(&t); }

    // The value or first derivative straight from the coefficients.
    T Direct(int64_t f, T s, int k) const {
        int64_t cell = ReferenceCell(x, s);
        int64_t i = std::min<int64_t>(std::max<int64_t>(cell - 1, 0), nx - 2);
        const T* p = &c[(f * (nx - 1) + i) * 2];
        return k == 0 ? p[1] * (s - x[i]) + p[0] : (k == 1 ? p[1] : T(0));
    }
};

TYPED_TEST(FittingInterpolate, ValuesMatchTheCoefficientsInEveryLayout) {
    using T = TypeParam;
    LinearFit<T> fit(700, 3, 21);
    std::vector<T> sites = RandomSites<T>(2001, 22, -2.5, 3.5);
    sites.push_back(fit.x.back());
    sites.push_back(fit.x.front());
    int64_t ns = sites.size(), nf = fit.nf;
    int32_t dorder[3] = {1, 1, 1}; // value, first and (zero) second derivative
    int64_t nd = 3;
    std::vector<T> ref(nf * ns * nd);
    for (int64_t f = 0; f < nf; ++f)
        for (int64_t s = 0; s < ns; ++s)
            for (int k = 0; k < nd; ++k)
                ref[(f * ns + s) * nd + k] = fit.Direct(f, sites[s], k);
    for (const threader* thr : Threaders()) {
        for (int64_t layout : {0, 16, 32, 128, 256, 512}) {
            std::vector<T> r(nf * ns * nd, T(-1234));
            std::vector<T*> rows(nf);
            for (int64_t f = 0; f < nf; ++f)
                rows[f] = r.data() + f * ns * nd;
            T* out = layout == 128 ? reinterpret_cast<T*>(rows.data()) : r.data();
            ASSERT_EQ(
                Interpolate<T>(fit.t, 1, ns, sites.data(), 0, 3, dorder, out, layout, nullptr, thr),
                0);
            for (int64_t f = 0; f < nf; ++f)
                for (int64_t s = 0; s < ns; ++s)
                    for (int64_t k = 0; k < nd; ++k) {
                        int64_t at;
                        switch (layout) {
                        case 32:
                            at = (s * nf + f) * nd + k;
                            break;
                        case 256:
                            at = (f * nd + k) * ns + s;
                            break;
                        case 512:
                            at = (s * nd + k) * nf + f;
                            break;
                        default:
                            at = (f * ns + s) * nd + k;
                            break;
                        }
                        ASSERT_EQ(r[at], ref[(f * ns + s) * nd + k])
                            << "layout " << layout << " f " << f << " site " << s << " k " << k;
                    }
        }
    }
}

TYPED_TEST(FittingInterpolate, LinearDataGivesTheLineEverywhere) {
    using T = TypeParam;
    int64_t nx = 300;
    std::vector<T> x = RandomPartition<T>(nx, 31), y(nx), c(2 * (nx - 1));
    for (int64_t i = 0; i < nx; ++i)
        y[i] = T(2.5) * x[i] - T(1);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, nx, x.data(), 0, 1, y.data(), 0), 0);
    ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
    ASSERT_EQ(Linear<T>(t, nullptr), 0);
    // Inside and far outside: extrapolation by the end cells is the same line.
    std::vector<T> sites = RandomSites<T>(5000, 32, -20, 20);
    std::vector<T> r(2 * sites.size());
    int32_t dorder[2] = {1, 1};
    ASSERT_EQ(Interpolate<T>(t, 1, sites.size(), sites.data(), 0, 2, dorder, r.data(), 16, nullptr,
                             brenn_serv_pool_threader()),
              0);
    // The slope of a short cell carries the rounding of its two values over its width.
    double tol = 4096 * kEps<T>;
    for (size_t i = 0; i < sites.size(); ++i) {
        ASSERT_NEAR(r[2 * i], 2.5 * sites[i] - 1.0, tol * (1 + std::fabs(sites[i]))) << sites[i];
        ASSERT_NEAR(r[2 * i + 1], 2.5, tol);
    }
    brenn_df_kernel_DeleteTask(&t);
}

TYPED_TEST(FittingInterpolate, DirectAndBatchPathsGiveTheSameBits) {
    using T = TypeParam;
    LinearFit<T> fit(50, 2, 41);
    std::vector<T> sites = RandomSites<T>(32, 42, -2.2, 3.2);
    int32_t dorder[2] = {1, 1};
    std::vector<T> a(2 * 2 * 32), b(2 * 2 * 32);
    ASSERT_EQ(
        Interpolate<T>(fit.t, 1, 32, sites.data(), 0, 2, dorder, a.data(), 32, nullptr, nullptr),
        0);
    // 31 sites take the direct path; the 32nd alone the direct path too.
    ASSERT_EQ(
        Interpolate<T>(fit.t, 1, 31, sites.data(), 0, 2, dorder, b.data(), 32, nullptr, nullptr),
        0);
    ASSERT_EQ(0, std::memcmp(a.data(), b.data(), 31 * 4 * sizeof(T)));
    // Uniform sites: the same places as made by hand in double.
    T ends[2] = {T(-1), T(2)};
    std::vector<T> made(1000);
    for (int i = 0; i < 1000; ++i)
        made[i] = static_cast<T>(-1.0 + i * (3.0 / 999));
    std::vector<T> u(2 * 1000), m(2 * 1000);
    ASSERT_EQ(Interpolate<T>(fit.t, 1, 1000, ends, FIT_SITES_UNIFORM, 0, nullptr, u.data(), 0,
                             nullptr, brenn_serv_pool_threader()),
              0);
    ASSERT_EQ(
        Interpolate<T>(fit.t, 1, 1000, made.data(), 0, 0, nullptr, m.data(), 0, nullptr, nullptr),
        0);
    EXPECT_EQ(0, std::memcmp(u.data(), m.data(), u.size() * sizeof(T)));
}

TYPED_TEST(FittingInterpolate, CellsGoOutAndComeBackIn) {
    using T = TypeParam;
    LinearFit<T> fit(80, 1, 51);
    std::vector<T> sites = RandomSites<T>(1500, 52, -2.5, 3.5);
    std::vector<int32_t> cells(sites.size(), -1);
    std::vector<T> a(sites.size()), b(sites.size());
    ASSERT_EQ(Interpolate<T>(fit.t, FIT_CALL_VALUES | FIT_CALL_CELLS, sites.size(), sites.data(), 0,
                             0, nullptr, a.data(), 0, cells.data(), brenn_serv_pool_threader()),
              0);
    for (size_t i = 0; i < sites.size(); ++i)
        ASSERT_EQ(cells[i], ReferenceCell(fit.x, sites[i]));
    ASSERT_EQ(Interpolate<T>(fit.t, FIT_CALL_CELLS_GIVEN, sites.size(), sites.data(), 0, 0, nullptr,
                             b.data(), 0, cells.data(), nullptr),
              0);
    EXPECT_EQ(0, std::memcmp(a.data(), b.data(), a.size() * sizeof(T)));
}

template <typename T>
int32_t SideCallback(const int64_t* count, T* result, const T* site, const int64_t* cell,
                     void* params, int64_t function) {
    T mark = *static_cast<T*>(params);
    for (int64_t j = 0; j < *count; ++j)
        result[j] = mark + static_cast<T>(cell[j] * 1000 + function);
    return 0;
}

template <typename T>
int32_t FailingCallback(const int64_t*, T*, const T*, const int64_t*, void*, int64_t) {
    return -77;
}

TYPED_TEST(FittingInterpolate, CallbacksTakeTheirSides) {
    using T = TypeParam;
    LinearFit<T> fit(30, 2, 61);
    void* side = reinterpret_cast<void*>(SideCallback<T>);
    void* failing = reinterpret_cast<void*>(FailingCallback<T>);
    std::vector<T> sites = {T(-10), fit.x[0], fit.x[5], fit.x.back(), T(10)};
    T mark = T(0.5);
    std::vector<T> r(2 * sites.size());
    ASSERT_EQ(Interpolate<T>(fit.t, 1, sites.size(), sites.data(), 0, 0, nullptr, r.data(), 16,
                             nullptr, nullptr, side, side, nullptr, &mark),
              0);
    EXPECT_EQ(r[0], T(0.5));                       // left: cell 0
    EXPECT_EQ(r[1], fit.Direct(0, sites[1], 0));   // nodes stay the spline's
    EXPECT_EQ(r[3], fit.Direct(0, sites[3], 0));   // the right end is inside
    EXPECT_EQ(r[4], T(0.5 + 30 * 1000.0));         // right: cell nx
    EXPECT_EQ(r[5 + 4], T(0.5 + 30 * 1000.0 + 1)); // second function
    // The interior callback replaces the polynomial inside.
    ASSERT_EQ(Interpolate<T>(fit.t, 1, sites.size(), sites.data(), 0, 0, nullptr, r.data(), 16,
                             nullptr, nullptr, nullptr, nullptr, side, &mark),
              0);
    EXPECT_EQ(r[2], T(0.5 + 6 * 1000.0));
    EXPECT_EQ(r[0], fit.Direct(0, sites[0], 0));
    EXPECT_EQ(Interpolate<T>(fit.t, 1, sites.size(), sites.data(), 0, 0, nullptr, r.data(), 16,
                             nullptr, nullptr, failing),
              -77);
    std::vector<T> many = RandomSites<T>(5000, 62, -3, 4);
    std::vector<T> big(2 * many.size());
    EXPECT_EQ(Interpolate<T>(fit.t, 1, many.size(), many.data(), 0, 0, nullptr, big.data(), 32,
                             nullptr, brenn_serv_pool_threader(), nullptr, failing),
              -77);
}

TYPED_TEST(FittingInterpolate, StepFunctionsAndLookUp) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2.5, 4}, y = {10, 20, 30, 40};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 1, y.data(), 16), 0);
    std::vector<T> sites = {0.5, 1.0, 2.0, 4.0, 0.0};
    T r[5];
    ASSERT_EQ(EditPP<T>(t, 0, FIT_TYPE_STEP_RIGHT, 0, nullptr, 0, nullptr, nullptr), 0);
    ASSERT_EQ(Values<T>(t, 5, sites.data(), r), 0);
    EXPECT_EQ(std::vector<T>(r, r + 5), (std::vector<T>{10, 20, 20, 40, 10}));
    ASSERT_EQ(EditPP<T>(t, 0, FIT_TYPE_STEP_LEFT, 0, nullptr, 0, nullptr, nullptr), 0);
    ASSERT_EQ(Values<T>(t, 5, sites.data(), r), 0);
    EXPECT_EQ(std::vector<T>(r, r + 5), (std::vector<T>{20, 20, 30, 40, 10}));

    ASSERT_EQ(EditPP<T>(t, 0, FIT_TYPE_LOOKUP, 0, nullptr, 0, nullptr, nullptr), 0);
    std::vector<T> nodes = {2.5, 0.0, 4.0, 1.0, 3.0, 1.0};
    T out[6] = {0, 0, 0, 0, -1, -1};
    EXPECT_EQ(Values<T>(t, 6, nodes.data(), out), FIT_STATUS_SITE_NOT_NODE);
    EXPECT_EQ(std::vector<T>(out, out + 4), (std::vector<T>{30, 10, 40, 20}));
    EXPECT_EQ(out[4], -1);
    int32_t both[2] = {1, 1}, first[2] = {0, 1};
    EXPECT_EQ(Interpolate<T>(t, 1, 1, nodes.data(), 0, 2, both, out, 0, nullptr, nullptr),
              FIT_STATUS_LOOKUP_DERIVATIVE_COUNT);
    EXPECT_EQ(Interpolate<T>(t, 1, 1, nodes.data(), 0, 2, first, out, 0, nullptr, nullptr),
              FIT_STATUS_LOOKUP_DERIVATIVE_ORDER);
    T below = -1;
    EXPECT_EQ(Values<T>(t, 1, &below, out), FIT_STATUS_SITE_NOT_NODE);
    brenn_df_kernel_DeleteTask(&t);
}

// A uniform partition's nodes are computed from its ends, so a site that the caller
// put on a node meets it only within the rounding of either placing: 2^-40 in double,
// a few units of the last place in single. A site further off is on no node.
TYPED_TEST(FittingInterpolate, LookUpFindsTheNodesOfAUniformPartition) {
    using T = TypeParam;
    for (auto [a, b, nx] : {std::tuple<double, double, int64_t>{0.0, 0.3, 4},
                            {-2.0, 3.0, 1001},
                            {0.1, 0.7, 37},
                            {-1e3, 1e3, 257}}) {
        SCOPED_TRACE(::testing::Message() << "[" << a << ", " << b << "] nx " << nx);
        T ends[2] = {static_cast<T>(a), static_cast<T>(b)};
        std::vector<T> y(nx);
        for (int64_t i = 0; i < nx; ++i)
            y[i] = static_cast<T>(i + 1);
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<T>(&t, nx, ends, FIT_X_UNIFORM, 1, y.data(), 16), 0);
        ASSERT_EQ(EditPP<T>(t, 0, FIT_TYPE_LOOKUP, 0, nullptr, 0, nullptr, nullptr), 0);
        double step = (b - a) / (nx - 1);
        // Placed in double and rounded, placed in the element type, and nudged.
        std::vector<T> inDouble(nx), inType(nx), nudged(nx);
        T stepT = (ends[1] - ends[0]) / static_cast<T>(nx - 1);
        double nudge = sizeof(T) == sizeof(double) ? 1e-14 : 0.0;
        for (int64_t i = 0; i < nx; ++i) {
            inDouble[i] = static_cast<T>(a + i * step);
            inType[i] = ends[0] + static_cast<T>(i) * stepT;
            // Left of the left end is cell 0, on no node: that one goes right only.
            bool up = i % 2 == 1 || i == 0;
            T v = static_cast<T>(a + i * step + (up ? nudge : -nudge));
            nudged[i] = sizeof(T) == sizeof(double) ? v : std::nextafter(v, T(up ? 1e9 : -1e9));
        }
        for (const std::vector<T>* sites : {&inDouble, &inType, &nudged}) {
            std::vector<T> r(nx, T(-1));
            // Batch and direct paths alike.
            ASSERT_EQ(Values<T>(t, nx, sites->data(), r.data()), 0);
            EXPECT_EQ(r, y);
            ASSERT_EQ(Values<T>(t, std::min<int64_t>(nx, 31), sites->data(), r.data()), 0);
        }
        // A tenth of a step off, in either direction, is on no node.
        for (int64_t i : {int64_t{1}, nx / 2, nx - 2}) {
            for (double off : {0.1, -0.1}) {
                T s = static_cast<T>(a + (i + off) * step);
                T r = T(-1);
                EXPECT_EQ(Values<T>(t, 1, &s, &r), FIT_STATUS_SITE_NOT_NODE) << i << " " << off;
            }
        }
        brenn_df_kernel_DeleteTask(&t);
    }
}

TYPED_TEST(FittingInterpolate, Refusals) {
    using T = TypeParam;
    LinearFit<T> fit(10, 1, 71);
    T s = 0, r[4];
    EXPECT_EQ(Interpolate<T>(fit.t, 1, 1, &s, 0, 0, nullptr, r, 64, nullptr, nullptr),
              FIT_STATUS_BAD_RESULT_HINT);
    EXPECT_EQ(Interpolate<T>(nullptr, 1, 1, &s, 0, 0, nullptr, r, 0, nullptr, nullptr),
              FIT_STATUS_NULL_TASK);
    for (auto [order, type] : {std::pair<int64_t, int64_t>{3, 2}, {4, 1}, {1, 0}, {0, 0}}) {
        ASSERT_EQ(brenn_df_kernel_iEditVal(fit.t, FIT_PARAM_SORDER, order), 0);
        ASSERT_EQ(brenn_df_kernel_iEditVal(fit.t, FIT_PARAM_STYPE, type), 0);
        EXPECT_EQ(Values<T>(fit.t, 1, &s, r), FIT_STATUS_BAD_SPLINE_TYPE) << order << " " << type;
    }
    ASSERT_EQ(brenn_df_kernel_iEditVal(fit.t, FIT_PARAM_SORDER, 2), 0);
    T hint[5] = {0, 3, 0, 0, 0};
    EXPECT_EQ(Interpolate<T>(fit.t, 1, 1, &s, 0, 0, nullptr, r, 0, nullptr, nullptr, nullptr,
                             nullptr, nullptr, nullptr, hint),
              FIT_STATUS_BAD_DATA_HINT);
    // More functions than the coefficient block was made for.
    ASSERT_EQ(brenn_df_kernel_iEditVal(fit.t, FIT_PARAM_NY, 2), 0);
    EXPECT_EQ(Values<T>(fit.t, 1, &s, r), FIT_STATUS_BAD_COEFF_PTR);
}

// Many functions and derivative rows: the result block outgrows the stack.
TYPED_TEST(FittingInterpolate, LargeBlocksAndAllocationFailure) {
    using T = TypeParam;
    LinearFit<T> fit(60, 40, 81);
    std::vector<T> sites = RandomSites<T>(700, 82, -2, 3);
    int32_t dorder[2] = {1, 1};
    std::vector<T> a(40 * 700 * 2), b(40 * 700 * 2);
    ASSERT_EQ(Interpolate<T>(fit.t, 1, 700, sites.data(), 0, 2, dorder, a.data(), 512, nullptr,
                             brenn_serv_pool_threader()),
              0);
    ASSERT_EQ(
        Interpolate<T>(fit.t, 1, 700, sites.data(), 0, 2, dorder, b.data(), 16, nullptr, nullptr),
        0);
    for (int64_t f = 0; f < 40; ++f)
        for (int64_t s = 0; s < 700; ++s)
            for (int k = 0; k < 2; ++k)
                ASSERT_EQ(a[(s * 2 + k) * 40 + f], b[(f * 700 + s) * 2 + k]);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(
        Interpolate<T>(fit.t, 1, 700, sites.data(), 0, 2, dorder, a.data(), 512, nullptr, nullptr),
        FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
}

} // namespace
