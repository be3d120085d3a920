// Integration in both precisions: an interval's bits alone and in any batch (every
// searcher, thread count, layout, trees or not), limits the other way round, the
// callbacks and their parts, the statuses, and values near the ends of the range.
// Exactness against the stored coefficients is integrate_check.py's.
#include <gtest/gtest.h>

#include <atomic>
#include <cmath>
#include <cstring>
#include <limits>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingIntegrate : public ::testing::Test {};
TYPED_TEST_SUITE(FittingIntegrate, Precisions, PrecisionNames);

struct Call {
    int64_t llimHint = 0, rlimHint = 0, resultHint = 0;
    const void *ldataHint = nullptr, *rdataHint = nullptr;
    void *left = nullptr, *right = nullptr, *interior = nullptr, *params = nullptr;
    void *search = nullptr, *searchParams = nullptr;
    const threader* thr = nullptr;
};

template <typename T>
int32_t Integrate(FitTaskHandle t, int64_t n, const T* a, const T* b, T* r, const Call& c = {}) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dDFIntegrate1D(
            t, 0, n, a, c.llimHint, b, c.rlimHint, static_cast<const T*>(c.ldataHint),
            static_cast<const T*>(c.rdataHint), r, c.resultHint,
            reinterpret_cast<FitdIntegCallback>(c.left), c.params,
            reinterpret_cast<FitdIntegCallback>(c.right), c.params,
            reinterpret_cast<FitdIntegCallback>(c.interior), c.params,
            reinterpret_cast<FitdSearchCallback>(c.search), c.searchParams, c.thr);
    else
        return brenn_df_kernel_sDFIntegrate1D(
            t, 0, n, a, c.llimHint, b, c.rlimHint, static_cast<const T*>(c.ldataHint),
            static_cast<const T*>(c.rdataHint), r, c.resultHint,
            reinterpret_cast<FitsIntegCallback>(c.left), c.params,
            reinterpret_cast<FitsIntegCallback>(c.right), c.params,
            reinterpret_cast<FitsIntegCallback>(c.interior), c.params,
            reinterpret_cast<FitsSearchCallback>(c.search), c.searchParams, c.thr);
}

// The spline kinds that integration has a closed form for.
enum Kind { kLinear, kMidQuadratic, kCubic, kKnotQuadratic, kStepRight, kStepLeft, kGeneric };
constexpr int kKinds = 7;

// nf functions of one kind on a partition (uniform: x holds the ends).
template <typename T>
struct Fit {
    std::vector<T> x, y, c, knots;
    FitTaskHandle t = nullptr;
    int64_t nx, nf;

    Fit(int kind, int64_t nxIn, int64_t nfIn, bool uniform, int64_t xHint, uint64_t seed)
        : nx(nxIn), nf(nfIn) {
        x = RandomPartition<T>(nx, seed);
        y = RandomSites<T>(nx * nf, seed + 1, -3, 3);
        if (uniform) x = {T(-2), T(3)};
        EXPECT_EQ(NewTask<T>(&t, nx, x.data(), uniform ? FIT_X_UNIFORM : xHint, nf, y.data(), 16),
                  0);
        int64_t order = kind == kLinear ? 2 : (kind == kCubic ? 4 : (kind == kGeneric ? 6 : 3));
        c.resize(order * nx * nf);
        T bc[2] = {T(0.25), T(-0.5)};
        switch (kind) {
        case kLinear:
            EXPECT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
            EXPECT_EQ(Linear<T>(t, nullptr), 0);
            break;
        case kMidQuadratic:
            EXPECT_EQ(EditPP<T>(t, 3, 0, FIT_BC_MID_VALUE, bc, 0, nullptr, c.data()), 0);
            EXPECT_EQ(Quadratic<T>(t, nullptr), 0);
            break;
        case kKnotQuadratic:
            // Knots at the midpoints of the cells, or evenly spread on a uniform one.
            if (uniform) {
                knots = x;
            } else {
                knots = {x[0]};
                for (int64_t i = 1; i < nx; ++i)
                    knots.push_back((x[i - 1] + x[i]) / 2);
                knots.push_back(x[nx - 1]);
            }
            EXPECT_EQ(EditPP<T>(t, 3, 1, 12, bc, FIT_IC_KNOTS | (uniform ? FIT_IC_UNIFORM : 0),
                                knots.data(), c.data()),
                      0);
            EXPECT_EQ(Quadratic<T>(t, nullptr), 0);
            break;
        case kCubic:
            EXPECT_EQ(EditPP<T>(t, 4, 0, FIT_BC_FREE_END, nullptr, 0, nullptr, c.data()), 0);
            if constexpr (sizeof(T) == 8)
                EXPECT_EQ(brenn_df_kernel_dDFNaturalCubicSpline1D(t, 0, 0, nullptr), 0);
            else
                EXPECT_EQ(brenn_df_kernel_sDFNaturalCubicSpline1D(t, 0, 0, nullptr), 0);
            break;
        case kStepRight:
        case kStepLeft:
            EXPECT_EQ(EditPP<T>(t, 0, kind == kStepRight ? 7 : 8, 0, nullptr, 0, nullptr, nullptr),
                      0);
            break;
        default:
            c = RandomSites<T>(c.size(), seed + 2, -1, 1);
            EXPECT_EQ(EditPP<T>(t, 6, 0, 0, nullptr, 0, nullptr, c.data()), 0);
            break;
        }
    }
    ~Fit() { brenn_df_kernel_DeleteTask(&t); }
};

template <typename T>
bool SameBits(T a, T b) {
    return std::memcmp(&a, &b, sizeof(T)) == 0;
}

// Each interval's integral alone (one call an interval, one function at a time
// through layout 16) is the reference for every batch.
template <typename T>
std::vector<T> Alone(const Fit<T>& fit, const std::vector<T>& a, const std::vector<T>& b) {
    std::vector<T> r(a.size() * fit.nf);
    std::vector<T> one(fit.nf);
    for (size_t k = 0; k < a.size(); ++k) {
        EXPECT_EQ(Integrate<T>(fit.t, 1, &a[k], &b[k], one.data()), 0);
        for (int64_t f = 0; f < fit.nf; ++f)
            r[f * a.size() + k] = one[f];
    }
    return r;
}

TYPED_TEST(FittingIntegrate, AnIntervalHasTheSameBitsAloneAndInEveryBatch) {
    using T = TypeParam;
    const int64_t n = 1501; // chunks on threads and a remainder
    for (int kind = 0; kind < kKinds; ++kind) {
        for (int form = 0; form < 3; ++form) { // non-uniform, quasi-uniform, uniform
            Fit<T> fit(kind, 400, 3, form == 2, form == 1 ? FIT_X_QUASI_UNIFORM : 0, 7 + kind);
            std::vector<T> a = RandomSites<T>(n, 11 + kind, -3, 4);
            std::vector<T> b = RandomSites<T>(n, 12 + kind, -3, 4);
            // Short intervals too, and the partition's ends.
            for (int64_t k = 0; k < 200; ++k)
                b[k] = a[k] + T(1e-3) * static_cast<T>(k % 7);
            a[200] = T(-2);
            b[200] = T(3);
            std::vector<T> ref = Alone(fit, a, b);
            std::vector<T> sortedA = a;
            std::sort(sortedA.begin(), sortedA.end());
            std::vector<T> refSorted = Alone(fit, sortedA, b);
            T peak[5] = {0, 1, 0, 0, 200};
            for (const threader* thr : Threaders()) {
                for (int way = 0; way < 4; ++way) {
                    Call c;
                    c.thr = thr;
                    c.resultHint = way == 1 ? 32 : 0;
                    const std::vector<T>& lows = way == 2 ? sortedA : a;
                    const std::vector<T>& expect = way == 2 ? refSorted : ref;
                    if (way == 2) c.llimHint = FIT_SITES_SORTED;
                    if (way == 3) c.ldataHint = c.rdataHint = peak;
                    std::vector<T> r(n * fit.nf);
                    ASSERT_EQ(Integrate<T>(fit.t, n, lows.data(), b.data(), r.data(), c), 0);
                    for (int64_t f = 0; f < fit.nf; ++f)
                        for (int64_t k = 0; k < n; ++k) {
                            T got = c.resultHint == 32 ? r[k * fit.nf + f] : r[f * n + k];
                            ASSERT_TRUE(SameBits(got, expect[f * n + k]))
                                << "kind " << kind << " form " << form << " way " << way << " f "
                                << f << " k " << k << ": " << got << " vs " << expect[f * n + k];
                        }
                }
            }
        }
    }
}

TYPED_TEST(FittingIntegrate, LimitsTheOtherWayRoundGiveExactlyMinus) {
    using T = TypeParam;
    for (int kind = 0; kind < kKinds; ++kind) {
        Fit<T> fit(kind, 90, 2, kind == kCubic, 0, 40 + kind);
        std::vector<T> a = RandomSites<T>(700, 41, -4, 5), b = RandomSites<T>(700, 42, -4, 5);
        std::vector<T> up(1400), down(1400);
        ASSERT_EQ(Integrate<T>(fit.t, 700, a.data(), b.data(), up.data()), 0);
        ASSERT_EQ(Integrate<T>(fit.t, 700, b.data(), a.data(), down.data()), 0);
        for (size_t k = 0; k < up.size(); ++k)
            ASSERT_TRUE(SameBits<T>(up[k], -down[k])) << kind << " " << k;
    }
}

// Step functions and lines have integrals that the partition alone tells.
TYPED_TEST(FittingIntegrate, StepsAndLinesGiveTheirAreas) {
    using T = TypeParam;
    int64_t nx = 50;
    std::vector<T> x(nx), y(nx), c(2 * nx);
    for (int64_t i = 0; i < nx; ++i) {
        x[i] = T(0.5) * static_cast<T>(i);
        y[i] = static_cast<T>(i % 5) - 2;
    }
    for (int type : {7, 8}) {
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<T>(&t, nx, x.data(), 0, 1, y.data(), 16), 0);
        ASSERT_EQ(EditPP<T>(t, 0, type, 0, nullptr, 0, nullptr, nullptr), 0);
        // Whole cells from x[0], and beyond the ends the end cell's value.
        for (int64_t j = 1; j < nx; ++j) {
            T a = x[0], b = x[j], r;
            ASSERT_EQ(Integrate<T>(t, 1, &a, &b, &r), 0);
            double area = 0;
            for (int64_t i = 0; i < j; ++i)
                area += 0.5 * y[type == 7 ? i : i + 1];
            EXPECT_EQ(r, static_cast<T>(area)) << type << " " << j;
        }
        T a = -3, b = x[0], r;
        ASSERT_EQ(Integrate<T>(t, 1, &a, &b, &r), 0);
        EXPECT_EQ(r, 3 * y[type == 7 ? 0 : 1]);
        brenn_df_kernel_DeleteTask(&t);
    }
    // A line, inside and far outside.
    for (int64_t i = 0; i < nx; ++i)
        y[i] = T(2) * x[i] - T(3);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, nx, x.data(), 0, 1, y.data(), 16), 0);
    ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
    ASSERT_EQ(Linear<T>(t, nullptr), 0);
    std::vector<T> a = RandomSites<T>(300, 5, -40, 60), b = RandomSites<T>(300, 6, -40, 60);
    std::vector<T> r(300);
    ASSERT_EQ(Integrate<T>(t, 300, a.data(), b.data(), r.data()), 0);
    for (int k = 0; k < 300; ++k) {
        double A = a[k], B = b[k], exact = (B * B - A * A) - 3 * (B - A);
        ASSERT_NEAR(r[k], exact, 16 * kEps<T> * (B * B + A * A + 3 * std::fabs(B - A))) << k;
    }
    brenn_df_kernel_DeleteTask(&t);
}

// Callbacks: what each side is asked, and how the parts add up. The pool calls them
// from several threads at once.
template <typename T>
struct Seen {
    std::atomic<int64_t> calls[3]{};
    T x0, xr;
    std::atomic<bool> ok{true};
};

template <typename T, int Side>
int32_t Constant(const int64_t* count, T* result, const T* lo, const T* hi, void* params,
                 int64_t function) {
    auto* s = static_cast<Seen<T>*>(params);
    ++s->calls[Side];
    for (int64_t k = 0; k < *count; ++k) {
        // Left parts end at or before x[0], right ones start at or after the last
        // node, interior ones lie inside; every part ascending.
        if (!(lo[k] <= hi[k])) s->ok = false;
        if (Side == 0 && hi[k] > s->x0) s->ok = false;
        if (Side == 2 && lo[k] < s->xr) s->ok = false;
        if (Side == 1 && (lo[k] < s->x0 || hi[k] > s->xr)) s->ok = false;
        result[k] = static_cast<T>((Side + 1) * (function + 1)) * (hi[k] - lo[k]);
    }
    return 0;
}

template <typename T>
int32_t Refuse(const int64_t*, T*, const T*, const T*, void*, int64_t) {
    return -77;
}

TYPED_TEST(FittingIntegrate, CallbacksTakeTheirSidesAndTheSplineTheRest) {
    using T = TypeParam;
    Fit<T> fit(kCubic, 60, 2, false, 0, 50);
    Seen<T> seen;
    seen.x0 = fit.x.front();
    seen.xr = fit.x.back();
    const int64_t n = 700;
    std::vector<T> a = RandomSites<T>(n, 51, -5, 6), b = RandomSites<T>(n, 52, -5, 6);
    a[0] = b[0] = T(std::numeric_limits<T>::signaling_NaN());
    std::vector<T> plain(2 * n), r(2 * n);
    ASSERT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), plain.data()), 0);
    Call c;
    c.params = &seen;
    c.left = reinterpret_cast<void*>(Constant<T, 0>);
    c.right = reinterpret_cast<void*>(Constant<T, 2>);
    c.thr = brenn_serv_pool_threader();
    ASSERT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), r.data(), c), 0);
    EXPECT_TRUE(seen.ok.load());
    EXPECT_GT(seen.calls[0].load(), 0);
    EXPECT_GT(seen.calls[2].load(), 0);
    EXPECT_TRUE(std::isnan(r[0]) && std::isnan(r[n]));
    // An interval that meets neither side gets the plain bits; one that does gets the
    // callback's part and the spline's inside, each against the plain integral.
    for (int64_t f = 0; f < 2; ++f)
        for (int64_t k = 1; k < n; ++k) {
            T lo = std::min(a[k], b[k]), hi = std::max(a[k], b[k]);
            T sign = b[k] < a[k] ? T(-1) : T(1);
            T got = r[f * n + k];
            if (lo >= seen.x0 && hi <= seen.xr) {
                ASSERT_TRUE(SameBits(got, plain[f * n + k])) << k;
                continue;
            }
            T in0 = std::max(lo, seen.x0), in1 = std::min(hi, seen.xr), inside = 0;
            if (in0 < in1) {
                T both[2];
                ASSERT_EQ(Integrate<T>(fit.t, 1, &in0, &in1, both), 0);
                inside = both[f];
            }
            double outside = 0;
            if (lo < seen.x0) outside += 1.0 * (f + 1) * (std::min(hi, seen.x0) - lo);
            if (hi > seen.xr) outside += 3.0 * (f + 1) * (hi - std::max(lo, seen.xr));
            double expect = sign * (outside + inside);
            ASSERT_NEAR(got, expect, 64 * kEps<T> * (std::fabs(outside) + std::fabs(inside) + 1))
                << f << " " << k;
        }
    // The interior callback replaces the spline inside; with all three even order 0
    // (no spline at all) integrates.
    c.interior = reinterpret_cast<void*>(Constant<T, 1>);
    for (int order0 = 0; order0 < 2; ++order0) {
        if (order0) ASSERT_EQ(EditPP<T>(fit.t, 0, 0, 0, nullptr, 0, nullptr, nullptr), 0);
        ASSERT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), r.data(), c), 0);
        for (int64_t f = 0; f < 2; ++f)
            for (int64_t k = 1; k < n; ++k) {
                double lo = std::min(a[k], b[k]), hi = std::max(a[k], b[k]), e = 0;
                double x0 = seen.x0, xr = seen.xr;
                if (lo < x0) e += (f + 1) * (std::min(hi, x0) - lo);
                if (std::max(lo, x0) < std::min(hi, xr))
                    e += 2.0 * (f + 1) * (std::min(hi, xr) - std::max(lo, x0));
                if (hi > xr) e += 3.0 * (f + 1) * (hi - std::max(lo, xr));
                ASSERT_NEAR(r[f * n + k], b[k] < a[k] ? -e : e, 32 * kEps<T> * (1 + e));
            }
    }
    EXPECT_TRUE(seen.ok.load());
    c.right = reinterpret_cast<void*>(Refuse<T>);
    EXPECT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), r.data(), c), -77);
}

template <typename T>
int32_t ExactCells(const int64_t* count, const T* site, int64_t* cell, int32_t* flag, void* params,
                   int64_t extra) {
    const auto* x = static_cast<const std::vector<T>*>(params);
    for (int64_t k = 0; k < *count; ++k) {
        cell[k] = ReferenceCell(*x, site[k]);
        flag[k] = 1;
    }
    return extra == 2 ? FIT_SEARCH_ALL_CELLS_RIGHT : -5;
}

TYPED_TEST(FittingIntegrate, UserSearchersAndUniformLimitsGiveTheSameBits) {
    using T = TypeParam;
    Fit<T> fit(kCubic, 300, 1, false, 0, 60);
    const int64_t n = 1000;
    std::vector<T> a = RandomSites<T>(n, 61, -3, 4), b = RandomSites<T>(n, 62, -3, 4);
    std::vector<T> ref(n), r(n);
    ASSERT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), ref.data()), 0);
    Call c;
    c.search = reinterpret_cast<void*>(ExactCells<T>);
    c.searchParams = &fit.x;
    ASSERT_EQ(Integrate<T>(fit.t, n, a.data(), b.data(), r.data(), c), 0);
    for (int64_t k = 0; k < n; ++k)
        ASSERT_TRUE(SameBits(r[k], ref[k])) << k;
    // Evenly spread limits: the ones given explicitly at the same places.
    T ends[2] = {T(-2.5), T(3.5)}, ends2[2] = {T(3.25), T(-1)};
    std::vector<T> la(n), lb(n);
    for (int64_t k = 0; k < n; ++k) {
        la[k] = static_cast<T>(-2.5 + k * (6.0 / (n - 1)));
        lb[k] = static_cast<T>(3.25 + k * (-4.25 / (n - 1)));
    }
    ASSERT_EQ(Integrate<T>(fit.t, n, la.data(), lb.data(), ref.data()), 0);
    Call u;
    u.llimHint = u.rlimHint = FIT_SITES_UNIFORM;
    ASSERT_EQ(Integrate<T>(fit.t, n, ends, ends2, r.data(), u), 0);
    for (int64_t k = 0; k < n; ++k)
        ASSERT_TRUE(SameBits(r[k], ref[k])) << k;
}

TYPED_TEST(FittingIntegrate, EveryRefusalHasItsStatus) {
    using T = TypeParam;
    Fit<T> fit(kLinear, 40, 1, false, 0, 70);
    T a[2] = {T(0), T(1)}, b[2] = {T(1), T(2)}, r[2] = {T(7), T(7)};
    EXPECT_EQ(Integrate<T>(nullptr, 2, a, b, r), FIT_STATUS_NULL_TASK);
    for (int64_t hint : {64, 128, 256, 512, -1}) {
        Call c;
        c.resultHint = hint;
        EXPECT_EQ(Integrate<T>(fit.t, 2, a, b, r, c), FIT_STATUS_BAD_RESULT_HINT) << hint;
    }
    T badSelector[5] = {0, 2, 0, 0, 0}, farPeak[5] = {0, 1, 0, 0, 41};
    for (const T* dh : {badSelector, farPeak}) {
        Call c;
        c.rdataHint = dh;
        EXPECT_EQ(Integrate<T>(fit.t, 2, a, b, r, c), FIT_STATUS_BAD_DATA_HINT);
    }
    EXPECT_EQ(r[0], T(7)); // nothing written by a refusal
    // Kinds without an integral: look-up, order 0 without all callbacks, order 1,
    // and a type that its order does not take.
    struct {
        int64_t order, type;
    } bad[] = {{0, 6}, {0, 0}, {1, 0}, {3, 2}, {4, 1}};
    for (auto k : bad) {
        ASSERT_EQ(EditPP<T>(fit.t, k.order, k.type, 0, nullptr, 0, nullptr, fit.c.data()), 0);
        EXPECT_EQ(Integrate<T>(fit.t, 2, a, b, r), FIT_STATUS_BAD_SPLINE_TYPE)
            << k.order << " " << k.type;
    }
    // Missing coefficients, missing values for a step.
    FitTaskHandle bare = nullptr;
    ASSERT_EQ(NewTask<T>(&bare, 40, fit.x.data(), 0, 0, static_cast<const T*>(nullptr), 0), 0);
    ASSERT_EQ(EditPP<T>(bare, 2, 0, 0, nullptr, 0, nullptr, nullptr), 0);
    EXPECT_EQ(Integrate<T>(bare, 2, a, b, r), FIT_STATUS_BAD_COEFF_PTR);
    ASSERT_EQ(EditPP<T>(bare, 0, 7, 0, nullptr, 0, nullptr, nullptr), 0);
    EXPECT_EQ(Integrate<T>(bare, 2, a, b, r), FIT_STATUS_BAD_Y);
    brenn_df_kernel_DeleteTask(&bare);
    // No intervals: success, nothing written. A refused block: the cell grid's (the
    // first) is done without, the same values; the trees' (the second) gives -1001.
    ASSERT_EQ(EditPP<T>(fit.t, 2, 0, 0, nullptr, 0, nullptr, fit.c.data()), 0);
    EXPECT_EQ(Integrate<T>(fit.t, 0, a, b, r), 0);
    EXPECT_EQ(r[0], T(7));
    std::vector<T> la(600, T(-2)), lb(600, T(3)), lr(600), without(600);
    int64_t live = brenn_serv_live_allocations();
    brenn_serv_fail_allocation(2);
    EXPECT_EQ(Integrate<T>(fit.t, 600, la.data(), lb.data(), lr.data()), FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Integrate<T>(fit.t, 600, la.data(), lb.data(), without.data()), 0);
    brenn_serv_fail_allocation(0);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    EXPECT_EQ(Integrate<T>(fit.t, 600, la.data(), lb.data(), lr.data()), 0);
    EXPECT_EQ(lr, without);
}

// Values at the ends of the range: a constant near the largest finite value over a
// short interval stays finite; past it, infinity; tiny values give their subnormal
// integrals; a signalling NaN limit gives a quiet NaN.
TYPED_TEST(FittingIntegrate, ValuesNearOverflowUnderflowAndNaN) {
    using T = TypeParam;
    const T big = std::numeric_limits<T>::max() / 8, tiny = std::numeric_limits<T>::min();
    std::vector<T> x = {T(0), T(1), T(2), T(4)}, y(4), c(8);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 1, y.data(), 16), 0);
    ASSERT_EQ(EditPP<T>(t, 2, 0, 0, nullptr, 0, nullptr, c.data()), 0);
    for (T v : {big, tiny}) {
        std::fill(y.begin(), y.end(), v);
        ASSERT_EQ(Linear<T>(t, nullptr), 0);
        T a[4] = {T(0), T(0), T(0.5), T(0)}, b[4] = {T(4), T(0.125), T(3), T(64)}, r[4];
        ASSERT_EQ(Integrate<T>(t, 4, a, b, r), 0);
        EXPECT_EQ(r[0], 4 * v);
        EXPECT_EQ(r[1], v / 8);
        EXPECT_EQ(r[2], T(2.5) * v);
        if (v == big)
            EXPECT_TRUE(std::isinf(r[3]));
        else
            EXPECT_EQ(r[3], 64 * v);
    }
    T snan = std::numeric_limits<T>::signaling_NaN(), a[2] = {snan, T(1)}, b[2] = {T(1), snan};
    T r[2];
    ASSERT_EQ(Integrate<T>(t, 2, a, b, r), 0);
    EXPECT_TRUE(std::isnan(r[0]) && std::isnan(r[1]));
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
