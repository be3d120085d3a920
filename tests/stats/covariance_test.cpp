// Partial, pooled and parametrized covariance and Mahalanobis distances: each status in
// its order, allocation failures with nothing leaked, the same bits with the serial,
// pooled and null threaders, results under power-of-two scaling near overflow and
// underflow, signalling NaNs, and the small cases whose answers are known by hand, in
// both precisions. (Comparisons with numpy and scipy are in covariance_numpy_check.py.)
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <limits>
#include <tuple>
#include <vector>

#include "brenn_stats.h"
#include "platform/serv.h"
#include "platform/threader.h"
#include "tests/stats/covariance_api.h"
#include "tests/support/support.h"

namespace brenn::test {
namespace {

using covariance::Api;

constexpr uint64_t kFast = BRENN_SS_METHOD_FAST;

// A task over n x p observations (COLS layout unless asked) with 64-bit words.
template <typename T>
struct Task {
    int64_t p, n, layout, full = 0;
    std::vector<T> x;
    void* task = nullptr;
    Task(int64_t p_, int64_t n_, std::vector<T> x_, int64_t layout_ = BRENN_SS_MATRIX_STORAGE_COLS)
        : p(p_), n(n_), layout(layout_), x(std::move(x_)) {
        EXPECT_EQ(Api<T>::New(&task, &p, &n, &layout, x.data(), nullptr), 0);
    }
    ~Task() { _qesSSDeleteTask(&task); }
    void Edit(int64_t id, T* a) { ASSERT_EQ(Api<T>::Edit(task, id, a), 0); }
    void EditInt(int64_t id, const int64_t* a) {
        ASSERT_EQ(_qesiSSEditTask(task, id, const_cast<int64_t*>(a)), 0);
    }
};

// Deterministic correlated data, observation-major: x[i * p + j].
template <typename T>
std::vector<T> Data(int64_t n, int64_t p, double scale = 1) {
    std::vector<T> x(n * p);
    uint64_t s = 0x9e3779b97f4a7c15u;
    for (int64_t i = 0; i < n; ++i) {
        double prev = 0;
        for (int64_t j = 0; j < p; ++j) {
            s = s * 6364136223846793005u + 1442695040888963407u;
            double u = double(s >> 11) * 0x1p-53 - 0.5;
            prev = 0.5 * prev + u + 0.1 * j;
            x[i * p + j] = T(prev * scale);
        }
    }
    return x;
}

const threader* Threaders(int k) {
    return k == 0 ? nullptr : k == 1 ? brenn_serv_serial_threader() : brenn_serv_pool_threader();
}

template <typename T>
class CovarianceTest : public ::testing::Test {};
using Precisions = ::testing::Types<double, float>;
TYPED_TEST_SUITE(CovarianceTest, Precisions);

TYPED_TEST(CovarianceTest, MahalanobisStatusesInOrder) {
    using T = TypeParam;
    Task<T> t(2, 3, {1, 2, 3, 5, 4, 4});
    T mean[2] = {0, 0}, cov[4] = {1, 0, 0, 1}, d[3] = {-1, -1, -1};
    const uint64_t e = BRENN_SS_MAH_DIST;
    EXPECT_EQ(Api<T>::Mah(nullptr, e, kFast, d, nullptr), BRENN_SS_ERROR_TASK_NULL);
    EXPECT_EQ(Api<T>::Mah(t.task, 0, 77, nullptr, nullptr), BRENN_SS_OK); // nothing asked
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_MEAN_MISSING);
    t.Edit(BRENN_SS_ED_MEAN, mean);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_COV_MISSING);
    t.Edit(BRENN_SS_ED_COV, cov);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_STORAGE_WORD_MISSING);
    int64_t bad = 3;
    t.EditInt(BRENN_SS_ED_COV_STORAGE, &bad);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_STORAGE);
    t.EditInt(BRENN_SS_ED_COV_STORAGE, &t.full);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, nullptr, nullptr), BRENN_SS_ERROR_MAHALANOBIS_MISSING);
    EXPECT_EQ(Api<T>::Mah(t.task, e, 0x2, d, nullptr), BRENN_SS_ERROR_METHOD);
    cov[3] = 0; // singular: not positive definite, nothing written
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE);
    EXPECT_EQ(d[0], T(-1));
    cov[3] = 4;
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_OK);
    EXPECT_EQ(d[0], std::sqrt(T(1 + 1))); // (1, 2): 1 + 4 / 4
    EXPECT_EQ(d[1], T(std::sqrt(T(9 + 25 / T(4)))));
    int64_t zero = 0;
    t.EditInt(BRENN_SS_ED_OBSERV_N, &zero);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_OBSERVATION_COUNT);
    int64_t three = 3, layout = 5;
    t.EditInt(BRENN_SS_ED_OBSERV_N, &three);
    t.EditInt(BRENN_SS_ED_OBSERV_STORAGE, &layout);
    EXPECT_EQ(Api<T>::Mah(t.task, e, kFast, d, nullptr), BRENN_SS_ERROR_STORAGE);
}

// Distances of a data set, its copy in the other layout, and with a variable left out.
TYPED_TEST(CovarianceTest, MahalanobisLayoutsIndicesThreadersAndScaling) {
    using T = TypeParam;
    const int64_t p = 5, n = 1001; // two full blocks and a part that ends in a part tile
    // Covariances up to 2^1000 (single 2^120) and down to 2^-1000 (single 2^-80: below,
    // its small entries would be subnormal and lose bits).
    const int upExp = sizeof(T) == 8 ? 500 : 60, downExp = sizeof(T) == 8 ? 500 : 40;
    std::vector<T> ref;
    for (int scaled : {0, 1, -1}) {
        const int exp2 = scaled * (scaled > 0 ? upExp : downExp);
        const double scale = std::ldexp(1.0, exp2);
        std::vector<T> x = Data<T>(n, p, scale), rows(n * p);
        for (int64_t i = 0; i < n; ++i)
            for (int64_t j = 0; j < p; ++j)
                rows[j * n + i] = x[i * p + j];
        // Mean and covariance of the unscaled data, scaled by powers of two: exact.
        std::vector<T> mean(p), cov(p * p);
        std::vector<double> u = Data<double>(n, p);
        for (int64_t j = 0; j < p; ++j) {
            double s = 0;
            for (int64_t i = 0; i < n; ++i)
                s += u[i * p + j];
            mean[j] = T(T(s / n) * scale);
        }
        for (int64_t j = 0; j < p; ++j)
            for (int64_t l = 0; l < p; ++l) {
                double s = 0;
                for (int64_t i = 0; i < n; ++i)
                    s += (u[i * p + j] - mean[j] / scale) * (u[i * p + l] - mean[l] / scale);
                cov[j * p + l] = T(T(s / (n - 1)) * scale * scale);
            }
        for (int k = 0; k < 3; ++k)
            for (int64_t layout : {BRENN_SS_MATRIX_STORAGE_COLS, BRENN_SS_MATRIX_STORAGE_ROWS}) {
                Task<T> t(p, n, layout == BRENN_SS_MATRIX_STORAGE_COLS ? x : rows, layout);
                t.Edit(BRENN_SS_ED_MEAN, mean.data());
                t.Edit(BRENN_SS_ED_COV, cov.data());
                t.EditInt(BRENN_SS_ED_COV_STORAGE, &t.full);
                std::vector<T> d(n);
                ASSERT_EQ(Api<T>::Mah(t.task, BRENN_SS_MAH_DIST, kFast, d.data(), Threaders(k)), 0);
                if (ref.empty()) ref = d;
                // Power-of-two scaling cancels exactly; layouts and threaders agree.
                EXPECT_EQ(0, std::memcmp(d.data(), ref.data(), n * sizeof(T)))
                    << "scale 2^" << exp2 << " threader " << k << " layout " << layout;
            }
    }
    // Variable 2 left out: the distances of the other four alone.
    std::vector<T> x = Data<T>(n, p), x4(n * 4);
    for (int64_t i = 0; i < n; ++i)
        for (int64_t j = 0, c = 0; j < p; ++j)
            if (j != 2) x4[i * 4 + c++] = x[i * p + j];
    T mean[5] = {0.1f, 0.2f, 99, 0.3f, 0.4f}, cov[25] = {}, mean4[4] = {0.1f, 0.2f, 0.3f, 0.4f},
      cov4[16] = {};
    for (int j = 0; j < 5; ++j)
        cov[j * 5 + j] = T(1 + j);
    cov[2 * 5 + 2] = -1; // would fail the factor if read
    for (int j = 0, c = 0; j < 5; ++j)
        if (j != 2) cov4[c * 4 + c] = T(1 + j), ++c;
    int64_t idx[5] = {1, 1, 0, 1, 1};
    int64_t p5 = 5, p4 = 4, nn = n, cols = BRENN_SS_MATRIX_STORAGE_COLS, full = 0;
    void *a = nullptr, *b = nullptr;
    ASSERT_EQ(Api<T>::New(&a, &p5, &nn, &cols, x.data(), idx), 0);
    ASSERT_EQ(Api<T>::New(&b, &p4, &nn, &cols, x4.data(), nullptr), 0);
    for (auto [task, m, c] : {std::tuple{a, mean, cov}, std::tuple{b, mean4, cov4}}) {
        Api<T>::Edit(task, BRENN_SS_ED_MEAN, m);
        Api<T>::Edit(task, BRENN_SS_ED_COV, c);
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &full);
    }
    std::vector<T> da(n), db(n);
    EXPECT_EQ(Api<T>::Mah(a, BRENN_SS_MAH_DIST, kFast, da.data(), nullptr), 0);
    EXPECT_EQ(Api<T>::Mah(b, BRENN_SS_MAH_DIST, kFast, db.data(), nullptr), 0);
    EXPECT_EQ(0, std::memcmp(da.data(), db.data(), n * sizeof(T)));
    _qesSSDeleteTask(&a);
    _qesSSDeleteTask(&b);
}

TYPED_TEST(CovarianceTest, MahalanobisNaNsStayInTheirObservation) {
    using T = TypeParam;
    std::vector<T> x = Data<T>(300, 3);
    x[7 * 3 + 1] = std::numeric_limits<T>::signaling_NaN();
    x[200 * 3] = std::numeric_limits<T>::infinity();
    Task<T> t(3, 300, x);
    T mean[3] = {0, 0, 0}, cov[6] = {1, 0.5f, 2, 0, 0, 3}; // lower packed
    int64_t lower = BRENN_SS_MATRIX_STORAGE_L_PACKED;
    t.Edit(BRENN_SS_ED_MEAN, mean);
    t.Edit(BRENN_SS_ED_COV, cov);
    t.EditInt(BRENN_SS_ED_COV_STORAGE, &lower);
    std::vector<T> d(300);
    ASSERT_EQ(Api<T>::Mah(t.task, BRENN_SS_MAH_DIST, kFast, d.data(), nullptr), 0);
    for (int64_t i = 0; i < 300; ++i) {
        if (i == 7)
            EXPECT_TRUE(std::isnan(d[i]));
        else if (i == 200)
            EXPECT_FALSE(std::isfinite(d[i])); // inf, or NaN from 0 * inf in the solve
        else
            EXPECT_TRUE(std::isfinite(d[i]) && d[i] >= 0) << i;
    }
}

// Partial covariance: statuses, the hand-worked 3-variable case, indices.
TYPED_TEST(CovarianceTest, PartialStatusesAndHandCase) {
    using T = TypeParam;
    Task<T> t(3, 4, Data<T>(4, 3));
    // S = [[4, 2, 2], [2, 3, 2], [2, 2, 4]]; Y = {0, 1}, Z = {2}:
    // S_YY - S_YZ S_ZY / 4 = [[3, 1], [1, 2]], exactly.
    T cov[9] = {4, 2, 2, 2, 3, 2, 2, 2, 4}, pc[3] = {-1, -1, -1}, pr[4] = {-1, -1, -1, -1};
    int64_t words[3] = {1, 1, -1}, upper = BRENN_SS_MATRIX_STORAGE_U_PACKED;
    const uint64_t e = BRENN_SS_PARTIAL_COV | BRENN_SS_PARTIAL_COR;
    EXPECT_EQ(Api<T>::Partial(nullptr, e, kFast, nullptr), BRENN_SS_ERROR_TASK_NULL);
    EXPECT_EQ(Api<T>::Partial(t.task, BRENN_SS_COV, 9, nullptr), BRENN_SS_OK); // nothing asked
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_PARTIAL_INDICES);
    int64_t two[3] = {1, 2, -1};
    t.EditInt(BRENN_SS_ED_PARTIAL_COV_IDX, two);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_PARTIAL_INDICES);
    t.EditInt(BRENN_SS_ED_PARTIAL_COV_IDX, words);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_PARTIAL_COV_MISSING);
    t.Edit(BRENN_SS_ED_PARTIAL_COV, pc);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_STORAGE_WORD_MISSING);
    t.EditInt(BRENN_SS_ED_PARTIAL_COV_STORAGE, &upper);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_PARTIAL_COR_MISSING);
    t.Edit(BRENN_SS_ED_PARTIAL_COR, pr);
    t.EditInt(BRENN_SS_ED_PARTIAL_COR_STORAGE, &t.full);
    EXPECT_EQ(Api<T>::Partial(t.task, e, 0x100, nullptr), BRENN_SS_ERROR_METHOD);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_COV_MISSING);
    // The basic compute's own statuses come through: no mean array.
    EXPECT_EQ(Api<T>::Partial(t.task, e | BRENN_SS_COV, kFast, nullptr),
              BRENN_SS_ERROR_MEAN_MISSING);
    t.Edit(BRENN_SS_ED_COV, cov);
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_STORAGE_WORD_MISSING);
    t.EditInt(BRENN_SS_ED_COV_STORAGE, &t.full);
    cov[8] = 0; // S_ZZ singular
    EXPECT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE);
    EXPECT_EQ(pc[0], T(-1));
    cov[8] = 4;
    ASSERT_EQ(Api<T>::Partial(t.task, e, kFast, nullptr), BRENN_SS_OK);
    EXPECT_EQ(pc[0], T(3));
    EXPECT_EQ(pc[1], T(1));
    EXPECT_EQ(pc[2], T(2));
    EXPECT_EQ(pr[0], T(1));
    EXPECT_NEAR(pr[1], 1 / std::sqrt(6.0), 2 * std::numeric_limits<T>::epsilon());
    EXPECT_EQ(pr[2], pr[1]);
    EXPECT_EQ(pr[3], T(1));
    // Indices leave the conditioning variable out: the result is S_YY itself.
    int64_t idx[3] = {1, 1, 0};
    t.EditInt(BRENN_SS_ED_INDC, idx);
    ASSERT_EQ(Api<T>::Partial(t.task, BRENN_SS_PARTIAL_COV, kFast, nullptr), BRENN_SS_OK);
    EXPECT_EQ(pc[0], T(4));
    EXPECT_EQ(pc[1], T(2));
    EXPECT_EQ(pc[2], T(3));
}

// With the covariance asked too, the entry gives what the basic compute and a partial
// call on its covariance give, on every threader.
TYPED_TEST(CovarianceTest, PartialMakesTheCovarianceFirst) {
    using T = TypeParam;
    const int64_t p = 4, n = 200;
    std::vector<T> x = Data<T>(n, p);
    int64_t words[4] = {-1, 1, 0, 1};
    std::vector<T> want;
    for (int k = 0; k < 3; ++k)
        for (bool together : {true, false}) {
            Task<T> t(p, n, x);
            std::vector<T> cov(p * p), mean(p), pc(4);
            t.EditInt(BRENN_SS_ED_PARTIAL_COV_IDX, words);
            t.EditInt(BRENN_SS_ED_COV_STORAGE, &t.full);
            t.EditInt(BRENN_SS_ED_PARTIAL_COV_STORAGE, &t.full);
            t.Edit(BRENN_SS_ED_MEAN, mean.data());
            t.Edit(BRENN_SS_ED_COV, cov.data());
            t.Edit(BRENN_SS_ED_PARTIAL_COV, pc.data());
            if (together) {
                ASSERT_EQ(Api<T>::Partial(t.task,
                                          BRENN_SS_MEAN | BRENN_SS_COV | BRENN_SS_PARTIAL_COV,
                                          kFast, Threaders(k)),
                          0);
            } else {
                if constexpr (sizeof(T) == 8)
                    ASSERT_EQ(_qesdSSBasic(t.task, BRENN_SS_MEAN | BRENN_SS_COV,
                                           BRENN_SS_METHOD_ONE_PASS_B, Threaders(k)),
                              0);
                else
                    ASSERT_EQ(_qessSSBasic(t.task, BRENN_SS_MEAN | BRENN_SS_COV,
                                           BRENN_SS_METHOD_ONE_PASS_B, Threaders(k)),
                              0);
                ASSERT_EQ(Api<T>::Partial(t.task, BRENN_SS_PARTIAL_COV, kFast, Threaders(k)), 0);
            }
            if (want.empty()) want = pc;
            EXPECT_EQ(0, std::memcmp(pc.data(), want.data(), 4 * sizeof(T)))
                << "threader " << k << " together " << together;
        }
}

TYPED_TEST(CovarianceTest, PooledStatusesAndHandCase) {
    using T = TypeParam;
    // Two variables, groups {0: (0,0) (2,4)}, {1: (1,1) (1,3) (4,2)}, {2: empty}.
    Task<T> t(2, 5, {0, 0, 1, 1, 2, 4, 1, 3, 4, 2});
    int64_t g = 3, labels[5] = {0, 1, 0, 1, 1}, upper = BRENN_SS_MATRIX_STORAGE_U_PACKED;
    T gm[6], gc[9], pm[2], pcov[4];
    const uint64_t e = BRENN_SS_POOLED_COV | BRENN_SS_GROUP_COV;
    EXPECT_EQ(Api<T>::Pooled(nullptr, e, kFast, nullptr), BRENN_SS_ERROR_TASK_NULL);
    EXPECT_EQ(Api<T>::Pooled(t.task, 0, 0, nullptr), BRENN_SS_OK);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_GROUPS);
    int64_t zero = 0;
    t.EditInt(BRENN_SS_ED_POOLED_GROUP_N, &zero);
    t.EditInt(BRENN_SS_ED_POOLED_STORAGE, labels);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_GROUPS);
    t.EditInt(BRENN_SS_ED_POOLED_GROUP_N, &g);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_MEAN_MISSING);
    t.Edit(BRENN_SS_ED_GROUP_MEAN, gm);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_COV_MISSING);
    t.Edit(BRENN_SS_ED_GROUP_COV, gc);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_STORAGE_WORD_MISSING);
    t.EditInt(BRENN_SS_ED_GROUP_COV_STORAGE, &upper);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_OUT_MEAN_MISSING);
    t.Edit(BRENN_SS_ED_POOLED_MEAN, pm);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_OUT_COV_MISSING);
    t.Edit(BRENN_SS_ED_POOLED_COV, pcov);
    t.EditInt(BRENN_SS_ED_POOLED_COV_STORAGE, &t.full);
    EXPECT_EQ(Api<T>::Pooled(t.task, e, 0x2, nullptr), BRENN_SS_ERROR_METHOD);
    for (int64_t bad : {-1, 3}) {
        labels[4] = bad;
        EXPECT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_ERROR_POOLED_GROUPS);
    }
    labels[4] = 1;
    ASSERT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_OK);
    // Group 0: mean (1, 2), cov [[2, 4], [4, 8]]; group 1: mean (2, 2),
    // cov [[3, 0], [0, 1]]; group 2 empty: NaN.
    const T wantMean[4] = {1, 2, 2, 2}, wantCov[6] = {2, 4, 8, 3, 0, 1};
    for (int k = 0; k < 4; ++k)
        EXPECT_EQ(gm[k], wantMean[k]) << k;
    for (int k = 0; k < 6; ++k)
        EXPECT_EQ(gc[k], wantCov[k]) << k;
    EXPECT_TRUE(std::isnan(gm[4]) && std::isnan(gc[6]) && std::isnan(gc[8]));
    // Pooled: mean (1.6, 2), cross-products [[2 + 6, 4 + 0], [4 + 0, 8 + 2]] / (5 - 3).
    EXPECT_EQ(pm[0], T(8) / T(5));
    EXPECT_EQ(pm[1], T(2));
    const T wantPooled[4] = {4, 2, 2, 5};
    for (int k = 0; k < 4; ++k)
        EXPECT_EQ(pcov[k], wantPooled[k]) << k;
    // One observation a group: n - g = 0 gives NaN, each group's covariance NaN.
    int64_t five = 5, own[5] = {0, 1, 2, 3, 4};
    T gm5[10], gc5[15];
    t.EditInt(BRENN_SS_ED_POOLED_GROUP_N, &five);
    t.EditInt(BRENN_SS_ED_POOLED_STORAGE, own);
    t.Edit(BRENN_SS_ED_GROUP_MEAN, gm5);
    t.Edit(BRENN_SS_ED_GROUP_COV, gc5);
    ASSERT_EQ(Api<T>::Pooled(t.task, e, kFast, nullptr), BRENN_SS_OK);
    EXPECT_EQ(gm5[2], T(1));
    EXPECT_TRUE(std::isnan(gc5[0]) && std::isnan(pcov[0]));
}

// Many groups of uneven sizes: every threader and both layouts give the same bits.
TYPED_TEST(CovarianceTest, PooledSameBitsOnEveryThreaderAndLayout) {
    using T = TypeParam;
    const int64_t p = 6, n = 3001, g = 7;
    std::vector<T> x = Data<T>(n, p), rows(n * p);
    for (int64_t i = 0; i < n; ++i)
        for (int64_t j = 0; j < p; ++j)
            rows[j * n + i] = x[i * p + j];
    std::vector<int64_t> labels(n);
    for (int64_t i = 0; i < n; ++i)
        labels[i] = (i * i + 3 * i) % g;
    int64_t gw = g, lower = BRENN_SS_MATRIX_STORAGE_L_PACKED;
    std::vector<T> want;
    for (int k = 0; k < 3; ++k)
        for (int64_t layout : {BRENN_SS_MATRIX_STORAGE_COLS, BRENN_SS_MATRIX_STORAGE_ROWS}) {
            Task<T> t(p, n, layout == BRENN_SS_MATRIX_STORAGE_COLS ? x : rows, layout);
            std::vector<T> out(g * p + g * 21 + p + 21);
            t.EditInt(BRENN_SS_ED_POOLED_GROUP_N, &gw);
            t.EditInt(BRENN_SS_ED_POOLED_STORAGE, labels.data());
            t.EditInt(BRENN_SS_ED_GROUP_COV_STORAGE, &lower);
            t.EditInt(BRENN_SS_ED_POOLED_COV_STORAGE, &lower);
            t.Edit(BRENN_SS_ED_GROUP_MEAN, out.data());
            t.Edit(BRENN_SS_ED_GROUP_COV, out.data() + g * p);
            t.Edit(BRENN_SS_ED_POOLED_MEAN, out.data() + g * p + g * 21);
            t.Edit(BRENN_SS_ED_POOLED_COV, out.data() + g * p + g * 21 + p);
            ASSERT_EQ(Api<T>::Pooled(t.task, BRENN_SS_POOLED_COV | BRENN_SS_GROUP_COV, kFast,
                                     Threaders(k)),
                      0);
            if (want.empty()) want = out;
            EXPECT_EQ(0, std::memcmp(out.data(), want.data(), out.size() * sizeof(T)))
                << "threader " << k << " layout " << layout;
        }
}

TYPED_TEST(CovarianceTest, ParametrizationStatusesAndHighamsExample) {
    using T = TypeParam;
    Task<T> t(3, 1, {0, 0, 0});
    T a[9] = {1, 1, 0, 1, 1, 1, 0, 1, 1}, r[6], b[2] = {T(sizeof(T) == 8 ? 1e-14 : 1e-6), 1e6};
    int64_t upper = BRENN_SS_MATRIX_STORAGE_U_PACKED;
    const uint64_t e = BRENN_SS_PARAMTR_COR;
    EXPECT_EQ(Api<T>::Param(nullptr, e, kFast), BRENN_SS_ERROR_TASK_NULL);
    EXPECT_EQ(Api<T>::Param(t.task, 0, 0), BRENN_SS_OK);
    EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_COR_MISSING);
    t.Edit(BRENN_SS_ED_COR, a);
    EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_STORAGE_WORD_MISSING);
    t.EditInt(BRENN_SS_ED_COR_STORAGE, &t.full);
    EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_PARAMETRIZED_COR_MISSING);
    t.Edit(BRENN_SS_ED_PARAMTR_COR, r);
    t.EditInt(BRENN_SS_ED_PARAMTR_COR_STORAGE, &upper);
    EXPECT_EQ(Api<T>::Param(t.task, e, 0x2), BRENN_SS_ERROR_METHOD);
    const T nan = std::numeric_limits<T>::quiet_NaN();
    for (auto [tol, limit] :
         {std::pair<T, T>{0, 10}, {-1, 10}, {nan, 10}, {1e-6f, 0}, {1e-6f, nan}, {1e-6f, 3e9f}}) {
        T bad[2] = {tol, limit};
        t.Edit(BRENN_SS_ED_MULTIPLIER_B, bad);
        EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_MULTIPLIER_B_MISSING);
    }
    for (T wbad : {T(0), T(-1), nan, std::numeric_limits<T>::infinity()}) {
        T w[3] = {1, wbad, 1};
        t.Edit(BRENN_SS_ED_MULTIPLIER_B, b);
        t.Edit(BRENN_SS_ED_MULTIPLIER_A, w);
        EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_MULTIPLIER_A_MISSING);
    }
    T ones[3] = {1, 1, 1};
    t.Edit(BRENN_SS_ED_MULTIPLIER_A, ones);
    ASSERT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_OK);
    // Upper packed: r00 r01 r02 r11 r12 r22.
    EXPECT_EQ(r[0], T(1));
    EXPECT_EQ(r[3], T(1));
    EXPECT_EQ(r[5], T(1));
    EXPECT_NEAR(r[1], 0.76069, 1e-5);
    EXPECT_NEAR(r[4], 0.76069, 1e-5);
    EXPECT_NEAR(r[2], 0.15729, 1e-5);
    // Two iterations are not enough: the last iterate, unit-diagonal, with the status.
    T two[2] = {b[0], 2};
    t.Edit(BRENN_SS_ED_MULTIPLIER_B, two);
    EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_NO_CONVERGENCE);
    EXPECT_EQ(r[0], T(1));
    EXPECT_GT(std::fabs(r[2] - T(0.15729)), T(1e-4));
    // A NaN never settles.
    a[1] = a[3] = std::numeric_limits<T>::signaling_NaN();
    t.Edit(BRENN_SS_ED_MULTIPLIER_B, b);
    EXPECT_EQ(Api<T>::Param(t.task, e, kFast), BRENN_SS_ERROR_NO_CONVERGENCE);
}

// Defaults (no multipliers), indices, and the input scaled near the ends of the range:
// a correlation matrix comes back as it was.
TYPED_TEST(CovarianceTest, ParametrizationDefaultsAndIndices) {
    using T = TypeParam;
    Task<T> t(4, 1, {0, 0, 0, 0});
    // Variable 1 left out; the others hold a correlation matrix (semidefinite already).
    T a[16] = {1, 9, 0.5f, 0.25f, 9, 9, 9, 9, 0.5f, 9, 1, 0.5f, 0.25f, 9, 0.5f, 1}, r[16];
    for (T& v : r)
        v = -7;
    int64_t idx[4] = {1, 0, 1, 1};
    t.EditInt(BRENN_SS_ED_INDC, idx);
    t.Edit(BRENN_SS_ED_COR, a);
    t.EditInt(BRENN_SS_ED_COR_STORAGE, &t.full);
    t.Edit(BRENN_SS_ED_PARAMTR_COR, r);
    t.EditInt(BRENN_SS_ED_PARAMTR_COR_STORAGE, &t.full);
    ASSERT_EQ(Api<T>::Param(t.task, BRENN_SS_PARAMTR_COR, kFast), BRENN_SS_OK);
    for (int j = 0; j < 4; ++j)
        for (int l = 0; l < 4; ++l) {
            if (j == 1 || l == 1)
                EXPECT_EQ(r[j * 4 + l], T(-7));
            else
                EXPECT_NEAR(r[j * 4 + l], a[j * 4 + l], 8 * std::numeric_limits<T>::epsilon());
        }
}

// Every allocation of each entry failing in turn: its status, nothing leaked.
TYPED_TEST(CovarianceTest, AllocationFailures) {
    using T = TypeParam;
    const int64_t p = 3, n = 600;
    Task<T> t(p, n, Data<T>(n, p));
    std::vector<T> mean(p), cov(p * p), d(n), pc(4), gm(2 * p), gc(2 * p * p), pm(p), pcov(p * p),
        r(p * p);
    std::vector<int64_t> labels(n);
    for (int64_t i = 0; i < n; ++i)
        labels[i] = i % 2;
    int64_t words[3] = {1, -1, 1}, g = 2;
    t.EditInt(BRENN_SS_ED_COV_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_COR_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_PARTIAL_COV_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_GROUP_COV_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_POOLED_COV_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_PARAMTR_COR_STORAGE, &t.full);
    t.EditInt(BRENN_SS_ED_PARTIAL_COV_IDX, words);
    t.EditInt(BRENN_SS_ED_POOLED_GROUP_N, &g);
    t.EditInt(BRENN_SS_ED_POOLED_STORAGE, labels.data());
    t.Edit(BRENN_SS_ED_MEAN, mean.data());
    t.Edit(BRENN_SS_ED_COV, cov.data());
    t.Edit(BRENN_SS_ED_COR, cov.data());
    t.Edit(BRENN_SS_ED_PARTIAL_COV, pc.data());
    t.Edit(BRENN_SS_ED_GROUP_MEAN, gm.data());
    t.Edit(BRENN_SS_ED_GROUP_COV, gc.data());
    t.Edit(BRENN_SS_ED_POOLED_MEAN, pm.data());
    t.Edit(BRENN_SS_ED_POOLED_COV, pcov.data());
    t.Edit(BRENN_SS_ED_PARAMTR_COR, r.data());
    for (int k = 0; k < 3; ++k) {
        const threader* thr = Threaders(k);
        SweepAllocationFailures([&] {
            return Api<T>::Partial(t.task, BRENN_SS_MEAN | BRENN_SS_COV | BRENN_SS_PARTIAL_COV,
                                   kFast, thr) == 0;
        });
        SweepAllocationFailures(
            [&] { return Api<T>::Mah(t.task, BRENN_SS_MAH_DIST, kFast, d.data(), thr) == 0; });
        SweepAllocationFailures([&] {
            return Api<T>::Pooled(t.task, BRENN_SS_POOLED_COV | BRENN_SS_GROUP_COV, kFast, thr) ==
                   0;
        });
    }
    // The covariance of the data, normalised, is a correlation matrix.
    const std::vector<T> c = cov;
    for (int j = 0; j < p; ++j)
        for (int l = 0; l < p; ++l)
            cov[j * p + l] = c[j * p + l] / std::sqrt(c[j * p + j] * c[l * p + l]);
    SweepAllocationFailures(
        [&] { return Api<T>::Param(t.task, BRENN_SS_PARAMTR_COR, kFast) != BRENN_SS_ERROR_ALLOC; });
}

} // namespace
} // namespace brenn::test
