// Robust and derived covariance entries in one call: every refusal with nothing
// written, results and statuses equal to the service's task run by hand (both
// precisions and layouts, indices, quiet and signalling NaNs as missing values, data
// near the bottom of the range), and the C++ wrappers' sizes and kept results.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <limits>
#include <vector>

#include "brenn.hpp"
#include "tests/stats/order_harness.h"

namespace {

using brenn::fe::SsEntries;
using brenn::fe::SsTask;
using brenn::test::Bits;

// The front-end's entries of each precision, under the test's short names.
template <class T>
struct Api {
    using E = brenn::ss::robust_entries<T>;
    using Matrix = brenn::ss::detail::c_matrix<T>;
    static constexpr auto robust = E::robust_covariance;
    static constexpr auto outliers = E::outliers;
    static constexpr auto missing = E::missing_values;
    static constexpr auto missingCount = E::missing_count;
    static constexpr auto partial = E::partial_covariance;
    static constexpr auto pooled = E::pooled_covariance;
    static constexpr auto nearest = E::nearest_correlation;
    static constexpr auto mahalanobis = E::mahalanobis;
};

// A parameter count meaning "as many as given".
constexpr int64_t kAuto = INT64_MIN;

template <class T>
class FrontendSsRobust : public ::testing::Test {};
TYPED_TEST_SUITE(FrontendSsRobust, brenn::test::Precisions);

// n observations of p correlated variables (observation by observation), scaled.
template <class T>
std::vector<T> Data(int64_t p, int64_t n, T scale) {
    std::vector<T> x(p * n);
    uint32_t state = 77;
    auto u = [&] {
        state = state * 1664525u + 1013904223u;
        return double(state >> 8) / double(1 << 24) - 0.5;
    };
    for (int64_t i = 0; i < n; ++i) {
        const double common = u();
        for (int64_t j = 0; j < p; ++j)
            x[i * p + j] = T((common + u() * (1 + j)) * scale);
    }
    return x;
}

// x (observations in rows) laid out as `layout` asks.
template <class T>
std::vector<T> Lay(const std::vector<T>& x, int64_t p, int64_t n, int64_t layout) {
    if (layout == BRENN_SS_OBSERVATIONS_IN_ROWS) return x;
    std::vector<T> y(x.size());
    for (int64_t i = 0; i < n; ++i)
        for (int64_t j = 0; j < p; ++j)
            y[j * n + i] = x[i * p + j];
    return y;
}

TYPED_TEST(FrontendSsRobust, RefusalsWriteNothing) {
    using T = TypeParam;
    using A = Api<T>;
    using M = typename A::Matrix;
    const int64_t p = 2, n = 12;
    const std::vector<T> x = Data<T>(p, n, T(1));
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T badWeights[n] = {1, -1};
    const M good = {p, n, BRENN_SS_OBSERVATIONS_IN_ROWS, x.data(), nullptr, nullptr};
    const M views[] = {
        {p, 0, BRENN_SS_OBSERVATIONS_IN_ROWS, x.data(), nullptr, nullptr},
        {0, n, BRENN_SS_OBSERVATIONS_IN_ROWS, x.data(), nullptr, nullptr},
        {p, n, 3, x.data(), nullptr, nullptr},
        {p, n, BRENN_SS_VARIABLES_IN_ROWS, nullptr, nullptr, nullptr},
        {p, n, BRENN_SS_VARIABLES_IN_ROWS, x.data(), badWeights, nullptr},
    };
    const int viewStatus[] = {BRENN_ERR_BAD_SIZE, BRENN_ERR_BAD_SIZE, BRENN_ERR_BAD_ARGUMENT,
                              BRENN_ERR_NULL_POINTER, BRENN_ERR_BAD_ARGUMENT};
    std::vector<T> out(4 * n * p * p, T(-9));
    T* o = out.data();
    int64_t count = -9;
    const int64_t roles[p] = {1, -1}, badRoles[p] = {1, 2};
    std::vector<int64_t> labels(n, 0), badLabels(n, 0);
    badLabels[n - 1] = 2;
    const T a[4] = {1, T(0.5), T(0.5), 1};
    const T infA[4] = {1, inf, inf, 1}, nanA[4] = {1, nan, nan, 1};
    const T w0[2] = {1, 0}, wInf[2] = {1, inf};
    auto p1 = [](T v) { return std::vector<T>{v}; };
    auto p2 = [](T v) { return std::vector<T>{T(0.75), v}; };
    auto p4 = [](T v) { return std::vector<T>{T(0.5), T(10), T(10), v}; };
    using Call = std::function<int(const M*)>;
    auto robust = [&](std::vector<T> q, int64_t k = kAuto) {
        return Call([=](const M* m) {
            return A::robust(m, k == kAuto ? int64_t(q.size()) : k, q.empty() ? nullptr : q.data(),
                             o, o + p);
        });
    };
    auto outliers = [&](std::vector<T> q, int64_t k = kAuto) {
        return Call([=](const M* m) {
            return A::outliers(m, k == kAuto ? int64_t(q.size()) : k,
                               q.empty() ? nullptr : q.data(), o);
        });
    };
    auto missing = [&](std::vector<T> q, int64_t k = kAuto, int64_t imp = 0, int64_t size = 0,
                       T* imputed = nullptr) {
        return Call([=](const M* m) {
            return A::missing(m, k == kAuto ? int64_t(q.size()) : k, q.empty() ? nullptr : q.data(),
                              o, o + p, imp, size, imputed, o + 8 * p);
        });
    };
    auto nearest = [&](int64_t order, const T* in, const T* w, std::vector<T> q,
                       int64_t k = kAuto) {
        return Call([=](const M*) {
            return A::nearest(order, in, w, k == kAuto ? int64_t(q.size()) : k,
                              q.empty() ? nullptr : q.data(), o);
        });
    };
    struct Case {
        Call call;
        int expected;
    };
    // Each entry over the bad views, then its own arguments over the good view.
    const std::vector<Call> entries = {
        robust({}),
        outliers({}),
        missing({}),
        [&](const M* m) { return A::missingCount(m, &count); },
        [&](const M* m) { return A::partial(m, roles, o, o + p * p); },
        [&](const M* m) { return A::pooled(m, 1, labels.data(), o, o + p, o + 3 * p * p, o); },
        [&](const M* m) { return A::mahalanobis(m, x.data(), a, o); },
    };
    std::vector<Case> cases;
    const T big = T(0x1p32), half = T(0.5);
    for (const auto& c : std::vector<Case>{
             {robust({}, 1), BRENN_ERR_NULL_POINTER},
             {robust({}, 5), BRENN_ERR_BAD_SIZE},
             {robust({}, -1), BRENN_ERR_BAD_SIZE},
             {robust(p1(0)), BRENN_ERR_BAD_ARGUMENT},
             {robust(p1(T(1.5))), BRENN_ERR_BAD_ARGUMENT},
             {robust(p1(nan)), BRENN_ERR_BAD_ARGUMENT},
             {robust(p2(0)), BRENN_ERR_BAD_ARGUMENT},
             {robust(p2(T(2.5))), BRENN_ERR_BAD_ARGUMENT},
             {robust(p4(-1)), BRENN_ERR_BAD_ARGUMENT},
             {robust(p4(big)), BRENN_ERR_BAD_ARGUMENT},
             {[&](const M* m) { return A::robust(m, 0, nullptr, nullptr, o); },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::robust(m, 0, nullptr, o, nullptr); },
              BRENN_ERR_NULL_POINTER},
             {outliers({}, 4), BRENN_ERR_BAD_SIZE},
             {outliers(p1(0)), BRENN_ERR_BAD_ARGUMENT},
             {outliers(p1(1)), BRENN_ERR_BAD_ARGUMENT},
             {outliers({T(0.05), 3}), BRENN_ERR_BAD_ARGUMENT},
             {outliers({T(0.05), 1, 0}), BRENN_ERR_BAD_ARGUMENT},
             {[&](const M* m) { return A::outliers(m, 0, nullptr, nullptr); },
              BRENN_ERR_NULL_POINTER},
             {missing({}, 5), BRENN_ERR_BAD_SIZE},
             {missing({}, 2), BRENN_ERR_NULL_POINTER},
             {missing(p1(half)), BRENN_ERR_BAD_ARGUMENT},
             {missing({10, 0}), BRENN_ERR_BAD_ARGUMENT},
             {missing({10, inf}), BRENN_ERR_BAD_ARGUMENT},
             {missing({10, half, 1, -1}), BRENN_ERR_BAD_ARGUMENT},
             {missing({}, 0, -1), BRENN_ERR_BAD_SIZE},
             {missing({}, 0, 1, 0, nullptr), BRENN_ERR_NULL_POINTER},
             {[&](const M* m) {
                  return A::missing(m, 0, nullptr, o, nullptr, 0, 0, nullptr, nullptr);
              },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::missingCount(m, nullptr); }, BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::partial(m, nullptr, o, o); }, BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::partial(m, roles, nullptr, nullptr); },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::partial(m, badRoles, o, o); }, BRENN_ERR_BAD_ARGUMENT},
             {[&](const M* m) { return A::pooled(m, 0, labels.data(), o, o, o, o); },
              BRENN_ERR_BAD_SIZE},
             {[&](const M* m) { return A::pooled(m, 2, nullptr, o, o, o, o); },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::pooled(m, 2, labels.data(), o, nullptr, o, o); },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::pooled(m, 2, labels.data(), o, o, nullptr, o); },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) {
                  return A::pooled(m, 2, labels.data(), nullptr, nullptr, nullptr, nullptr);
              },
              BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::pooled(m, 2, badLabels.data(), o, o, o, o); },
              BRENN_ERR_BAD_ARGUMENT},
             {[&](const M* m) { return A::mahalanobis(m, nullptr, a, o); }, BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::mahalanobis(m, a, nullptr, o); }, BRENN_ERR_NULL_POINTER},
             {[&](const M* m) { return A::mahalanobis(m, a, a, nullptr); }, BRENN_ERR_NULL_POINTER},
             {nearest(0, a, nullptr, {}), BRENN_ERR_BAD_SIZE},
             {nearest(46341, a, nullptr, {}), BRENN_ERR_BAD_SIZE},
             {nearest(2, nullptr, nullptr, {}), BRENN_ERR_NULL_POINTER},
             {[&](const M*) { return A::nearest(2, a, nullptr, 0, nullptr, nullptr); },
              BRENN_ERR_NULL_POINTER},
             {nearest(2, infA, nullptr, {}), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, nanA, nullptr, {}), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, a, w0, {}), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, a, wInf, {}), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, a, nullptr, p1(0)), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, a, nullptr, {T(1e-3), half}), BRENN_ERR_BAD_ARGUMENT},
             {nearest(2, a, nullptr, {}, 3), BRENN_ERR_BAD_SIZE},
             {nearest(2, a, nullptr, {}, 1), BRENN_ERR_NULL_POINTER},
         })
        cases.push_back(c);
    // Too small a place for the imputations: 1 missing entry, 2 imputations, room for 1.
    std::vector<T> holed = x;
    holed[5] = std::numeric_limits<T>::signaling_NaN();
    const M holedView = {p, n, BRENN_SS_OBSERVATIONS_IN_ROWS, holed.data(), nullptr, nullptr};
    const std::vector<T> sentinel = out;
    for (const Call& e : entries)
        for (size_t v = 0; v < std::size(views); ++v) {
            EXPECT_EQ(e(&views[v]), viewStatus[v]) << v;
            EXPECT_EQ(e(nullptr), BRENN_ERR_NULL_POINTER);
        }
    for (size_t c = 0; c < cases.size(); ++c)
        EXPECT_EQ(cases[c].call(&good), cases[c].expected) << c;
    EXPECT_EQ(missing({}, 0, 2, 1, o + 6 * p)(&holedView), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(Bits(out), Bits(sentinel));
    EXPECT_EQ(count, -9);
}

// Runs the service's entry on a task over the view, as the front-end should.
template <class T, class Matrix, class Edit, class Run>
int ByHand(const Matrix* m, Edit edit, Run run) {
    SsTask<T> task(m);
    int s = task.status();
    if (s == 0) s = edit(task.get());
    if (s == 0) s = run(task.get());
    return s;
}

TYPED_TEST(FrontendSsRobust, ResultsAreTheServices) {
    using T = TypeParam;
    using A = Api<T>;
    using E = SsEntries<T>;
    const int64_t p = 4, n = 90, g = 3;
    int64_t full = BRENN_SS_MATRIX_STORAGE_FULL;
    const int64_t keep[p] = {1, 0, 1, 1}, roles[p] = {1, 1, -1, 1};
    std::vector<int64_t> labels(n);
    for (int64_t i = 0; i < n; ++i)
        labels[i] = (i * 7) % g;
    const T robustParams[3] = {T(0.75), 40, 20}, outlierParams[3] = {T(0.01), 2, 3};
    const T missingParams[4] = {200, T(1e-5), 3, 9};
    // Unit data, and data whose squares lie near the bottom of the normal range.
    for (T scale : {T(1), sizeof(T) == 8 ? T(1e-150) : T(1e-18)})
        for (int64_t layout : {BRENN_SS_VARIABLES_IN_ROWS, BRENN_SS_OBSERVATIONS_IN_ROWS})
            for (const int64_t* indices : {static_cast<const int64_t*>(nullptr), keep}) {
                std::vector<T> rows = Data<T>(p, n, scale);
                rows[7 * p] = T(40) * scale; // a far observation for the robust entries
                const std::vector<T> x = Lay(rows, p, n, layout);
                rows[3 * p + 1] = std::numeric_limits<T>::quiet_NaN();
                rows[10 * p + 2] = std::numeric_limits<T>::signaling_NaN();
                rows[11 * p + 3] = std::numeric_limits<T>::quiet_NaN();
                const std::vector<T> holed = Lay(rows, p, n, layout);
                const typename A::Matrix view = {p, n, layout, x.data(), nullptr, indices};
                const typename A::Matrix holedView = {p, n, layout, holed.data(), nullptr, indices};
                auto fresh = [](int64_t size) { return std::vector<T>(size, T(-7)); };
                auto same = [&](int fs, const std::vector<T>& f, int hs, const std::vector<T>& h) {
                    EXPECT_EQ(fs, BRENN_OK);
                    EXPECT_EQ(fs, hs);
                    EXPECT_EQ(Bits(f), Bits(h));
                };
                for (int64_t k : {0, 3}) {
                    // Robust covariance.
                    auto m1 = fresh(p + p * p), m2 = fresh(p + p * p);
                    int64_t kk = k;
                    const int f = A::robust(&view, k, robustParams, m1.data(), m1.data() + p);
                    const int h = ByHand<T>(
                        &view,
                        [&](void* t) {
                            return E::editRobust(t, &full, &kk, const_cast<T*>(robustParams),
                                                 m2.data(), m2.data() + p);
                        },
                        [](void* t) {
                            return E::robust(t, BRENN_SS_ROBUST_COV, BRENN_SS_METHOD_FASTMCD,
                                             nullptr);
                        });
                    same(f, m1, h, m2);
                    // Outliers.
                    auto w1 = fresh(n), w2 = fresh(n);
                    same(A::outliers(&view, k, outlierParams, w1.data()), w1,
                         ByHand<T>(
                             &view,
                             [&](void* t) {
                                 return E::editOutliers(t, &kk, const_cast<T*>(outlierParams),
                                                        w2.data());
                             },
                             [](void* t) {
                                 return E::outliers(t, BRENN_SS_OUTLIERS, BRENN_SS_METHOD_BACON,
                                                    nullptr);
                             }),
                         w2);
                    // Missing values with two imputations.
                    int64_t missing = 0;
                    ASSERT_EQ(A::missingCount(&holedView, &missing), BRENN_OK);
                    EXPECT_EQ(missing, indices == nullptr ? 3 : 2);
                    int64_t sims = 2, pc = 2 * missing, mc = p, cc = p * p;
                    auto e1 = fresh(p + p * p + 2 * missing + 2 * p), e2 = e1;
                    auto parts = [&](std::vector<T>& e) {
                        return std::vector<T*>{e.data(), e.data() + p, e.data() + p + p * p,
                                               e.data() + p + p * p + 2 * missing};
                    };
                    auto q1 = parts(e1), q2 = parts(e2);
                    k = k == 3 ? 4 : k;
                    kk = k;
                    same(A::missing(&holedView, k, missingParams, q1[0], q1[1], 2, 2 * missing,
                                    q1[2], q1[3]),
                         e1,
                         ByHand<T>(
                             &holedView,
                             [&](void* t) {
                                 return E::editMissing(t, &kk, const_cast<T*>(missingParams), &pc,
                                                       q2[2], &sims, q2[3], &mc, q2[0], &cc, q2[1]);
                             },
                             [](void* t) {
                                 return E::missing(t, BRENN_SS_MISSING_VALS, BRENN_SS_METHOD_FAST,
                                                   nullptr);
                             }),
                         e2);
                    k = k == 4 ? 3 : k;
                }
                // Partial covariance from the view's covariance.
                auto c1 = fresh(18), c2 = fresh(18), mc = fresh(p + p * p);
                T accum[2] = {0, 0};
                same(A::partial(&view, roles, c1.data(), c1.data() + 9), c1,
                     ByHand<T>(
                         &view,
                         [&](void* t) {
                             E::editCovCor(t, mc.data(), mc.data() + p, &full, nullptr, nullptr);
                             E::edit(t, BRENN_SS_ED_ACCUM_WEIGHT, accum);
                             return E::editPartial(t, const_cast<int64_t*>(roles), nullptr, nullptr,
                                                   nullptr, nullptr, c2.data(), &full,
                                                   c2.data() + 9, &full);
                         },
                         [](void* t) {
                             return E::partial(t,
                                               BRENN_SS_MEAN | BRENN_SS_COV | BRENN_SS_PARTIAL_COV |
                                                   BRENN_SS_PARTIAL_COR,
                                               BRENN_SS_METHOD_FAST, nullptr);
                         }),
                     c2);
                // Pooled and group covariance.
                const int64_t size = g * p + g * p * p + p + p * p;
                auto g1 = fresh(size), g2 = fresh(size);
                int64_t groups = g;
                auto at = [&](std::vector<T>& v, int part) {
                    const int64_t off[4] = {0, g * p, g * p + g * p * p, g * p + g * p * p + p};
                    return v.data() + off[part];
                };
                same(A::pooled(&view, g, labels.data(), at(g1, 0), at(g1, 1), at(g1, 2), at(g1, 3)),
                     g1,
                     ByHand<T>(
                         &view,
                         [&](void* t) {
                             _qesiSSEditTask(t, BRENN_SS_ED_POOLED_COV_STORAGE, &full);
                             _qesiSSEditTask(t, BRENN_SS_ED_GROUP_COV_STORAGE, &full);
                             return E::editPooled(t, &groups, at(g2, 2), at(g2, 3), labels.data(),
                                                  at(g2, 0), at(g2, 1));
                         },
                         [](void* t) {
                             return E::pooled(t, BRENN_SS_GROUP_COV | BRENN_SS_POOLED_COV,
                                              BRENN_SS_METHOD_FAST, nullptr);
                         }),
                     g2);
                // Mahalanobis distances from the front-end's robust estimate.
                auto rc = fresh(p + p * p);
                A::robust(&view, 0, nullptr, rc.data(), rc.data() + p);
                for (int64_t j = 0; j < p; ++j) // the left-out variable's places stay defined
                    if (indices != nullptr && indices[j] == 0) rc[p + j * p + j] = 1;
                auto d1 = fresh(n), d2 = fresh(n);
                same(A::mahalanobis(&view, rc.data(), rc.data() + p, d1.data()), d1,
                     ByHand<T>(
                         &view,
                         [&](void* t) {
                             return E::editCovCor(t, rc.data(), rc.data() + p, &full, nullptr,
                                                  nullptr);
                         },
                         [&](void* t) {
                             return E::mahalanobis(t, BRENN_SS_MAH_DIST, BRENN_SS_METHOD_FAST,
                                                   d2.data(), nullptr);
                         }),
                     d2);
            }
}

// The nearest correlation matrix against the service's, with weights and parameters;
// a limit reached leaves the last iterate, which the C++ wrapper keeps.
TYPED_TEST(FrontendSsRobust, NearestCorrelationIsTheServices) {
    using T = TypeParam;
    using A = Api<T>;
    using E = SsEntries<T>;
    const int64_t p = 3;
    int64_t full = BRENN_SS_MATRIX_STORAGE_FULL;
    const std::vector<T> a = {1, 1, 0, 1, 1, 1, 0, 1, 1};
    const T w[3] = {1, 2, 4};
    const T defaults[2] = {sizeof(T) == 8 ? T(1e-12) : T(1e-5), 10000};
    const T params[2] = {T(1e-4), 1};
    for (const T* weights : {static_cast<const T*>(nullptr), w})
        for (int64_t k : {0, 2}) {
            std::vector<T> x1(9, T(-7)), x2(9, T(-7));
            const int f = A::nearest(p, a.data(), weights, k, params, x1.data());
            SsTask<T> task(&p);
            E::editParametrz(task.get(), const_cast<T*>(a.data()), &full, x2.data(), &full);
            if (weights != nullptr) E::edit(task.get(), BRENN_SS_ED_MULTIPLIER_A, weights);
            E::edit(task.get(), BRENN_SS_ED_MULTIPLIER_B, k == 0 ? defaults : params);
            const int h =
                E::corParam(task.get(), BRENN_SS_PARAMTR_COR, BRENN_SS_METHOD_FAST, nullptr);
            EXPECT_EQ(f, h);
            EXPECT_EQ(f, k == 0 ? int(BRENN_OK) : int(BRENN_SS_ERROR_NO_CONVERGENCE));
            EXPECT_EQ(Bits(x1), Bits(x2));
            auto r = brenn::ss::nearest_correlation<T>(
                a, p, weights ? std::span<const T>(w) : std::span<const T>(),
                std::span<const T>(params, size_t(k)));
            EXPECT_EQ(r.stat.code, f);
            EXPECT_EQ(Bits(r.value), Bits(x1));
        }
    // In place; the upper triangle is not read.
    std::vector<T> y = a, ref(9);
    y[1] = y[2] = y[5] = std::numeric_limits<T>::quiet_NaN();
    ASSERT_EQ(A::nearest(p, a.data(), nullptr, 0, nullptr, ref.data()), BRENN_OK);
    ASSERT_EQ(A::nearest(p, y.data(), nullptr, 0, nullptr, y.data()), BRENN_OK);
    EXPECT_EQ(Bits(y), Bits(ref));
}

// The C++ wrappers: sizes that do not fit, results of statuses that write them kept,
// the others emptied, and values equal to the C entries'.
TYPED_TEST(FrontendSsRobust, Wrappers) {
    using T = TypeParam;
    using A = Api<T>;
    namespace ss = brenn::ss;
    const int64_t p = 2, n = 20;
    std::vector<T> x = Data<T>(p, n, T(1));
    const ss::matrix_view<T> m{x, p, n};
    // Fourteen observations on the line y = 2x: an exact fit, its estimate kept.
    std::vector<T> line = x;
    for (int64_t i = 0; i < 14; ++i)
        line[i * p + 1] = 2 * line[i * p];
    auto fit = ss::robust_covariance(ss::matrix_view<T>{line, p, n});
    EXPECT_EQ(fit.stat.code, BRENN_SS_ERROR_EXACT_FIT);
    ASSERT_EQ(fit.value.covariance.size(), 4u);
    EXPECT_NEAR(double(fit.value.covariance[1]), 2 * double(fit.value.covariance[0]),
                1e-5 * double(fit.value.covariance[0]));
    // A singular covariance: nothing written, nothing kept.
    const std::vector<T> mean = {0, 0}, singular = {1, 1, 1, 1};
    std::vector<T> d(n, T(-7));
    const typename A::Matrix view = {p,        n,       BRENN_SS_OBSERVATIONS_IN_ROWS,
                                     x.data(), nullptr, nullptr};
    EXPECT_EQ(A::mahalanobis(&view, mean.data(), singular.data(), d.data()),
              BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE);
    EXPECT_EQ(d, std::vector<T>(n, T(-7)));
    auto bad = ss::mahalanobis<T>(m, mean, singular);
    EXPECT_EQ(bad.stat.code, BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE);
    EXPECT_TRUE(bad.value.empty());
    // Sizes.
    const std::vector<int64_t> roles = {1, -1}, labels(n, 0), shortLabels(n - 1, 0);
    EXPECT_EQ(ss::mahalanobis<T>(m, std::vector<T>{0}, singular).stat, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(ss::partial_covariance(m, std::span<const int64_t>(roles.data(), 1)).stat,
              BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(ss::pooled_covariance(m, 1, shortLabels).stat, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(ss::nearest_correlation<T>(singular, 3).stat, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(ss::robust_covariance(ss::matrix_view<T>{x, p, n + 1}).stat, BRENN_ERR_SIZE_MISMATCH);
    // Values as the C entries give them.
    auto partial = ss::partial_covariance(m, roles).or_throw();
    std::vector<T> c(2);
    ASSERT_EQ(A::partial(&view, roles.data(), c.data(), c.data() + 1), BRENN_OK);
    EXPECT_EQ(partial.covariance, std::vector<T>{c[0]});
    EXPECT_EQ(partial.correlation, std::vector<T>{T(1)});
    auto pooled = ss::pooled_covariance(m, 1, labels).or_throw();
    EXPECT_EQ(pooled.group_covariances, pooled.covariance); // one group is all
    EXPECT_EQ(pooled.group_means, pooled.mean);
    std::vector<T> holed = x;
    holed[3] = std::numeric_limits<T>::signaling_NaN();
    auto em = ss::missing_values(ss::matrix_view<T>{holed, p, n}, 3).or_throw();
    EXPECT_EQ(em.imputed.size(), 3u);
    EXPECT_EQ(em.imputed_means.size(), 6u);
    auto plain = ss::missing_values(m, 2).or_throw(); // nothing missing: nothing imputed
    EXPECT_TRUE(plain.imputed.empty());
    EXPECT_EQ(plain.imputed_means.size(), 4u);
    auto w = ss::outliers(m).or_throw();
    EXPECT_EQ(w, std::vector<T>(n, T(1)));
}

} // namespace
