// Missing values: EM against closed forms (the sample covariance with nothing missing,
// Anderson's factored likelihood for a monotone bivariate pattern), imputations that
// repeat by seed, keep the observed entries and average to the EM mean, the statuses
// and defaults, data near the ends of the exponent range, and the same bits on every
// threader with nothing leaked when an allocation fails.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <random>
#include <thread>

#include "platform/serv.h"
#include "tests/stats/missing_harness.h"
#include "tests/support/support.h"

namespace brenn::test {
namespace {

using Rows = std::vector<std::vector<double>>;
const double kNaN = std::numeric_limits<double>::quiet_NaN();
const int64_t kLayouts[] = {BRENN_SS_MATRIX_STORAGE_ROWS, BRENN_SS_MATRIX_STORAGE_COLS};

// n draws of a correlated normal vector of dimension p (values exact in float), each
// entry missing with probability `drop` except in column 0.
Rows Normal(int64_t n, int64_t p, double drop, unsigned seed) {
    std::mt19937_64 g(seed);
    std::normal_distribution<double> z;
    std::uniform_real_distribution<double> u;
    Rows rows(n, std::vector<double>(p));
    for (auto& r : rows) {
        double common = z(g);
        for (int64_t j = 0; j < p; ++j) {
            r[j] = double(float(3.0 * j + 1.0 + common + (0.5 + 0.25 * j) * z(g)));
            if (j > 0 && u(g) < drop) r[j] = kNaN;
        }
    }
    return rows;
}

int64_t CountNaN(const Rows& rows) {
    int64_t k = 0;
    for (auto& r : rows)
        for (double v : r)
            k += std::isnan(v);
    return k;
}

TEST(StatsMissingValues, NothingMissingIsTheSampleCovarianceWithDivisorN) {
    const Rows rows = Normal(300, 4, 0.0, 1);
    long double mean[4] = {}, cov[4][4] = {};
    for (auto& r : rows)
        for (int j = 0; j < 4; ++j)
            mean[j] += r[j] / 300.0L;
    for (auto& r : rows)
        for (int j = 0; j < 4; ++j)
            for (int l = 0; l < 4; ++l)
                cov[j][l] += (r[j] - mean[j]) * (r[l] - mean[l]) / 300.0L;
    for (int64_t layout : kLayouts) {
        MissingTask<double> d(rows, layout);
        MissingTask<float> f(rows, layout);
        ASSERT_EQ(d.Run(), 0);
        ASSERT_EQ(f.Run(), 0);
        for (int j = 0; j < 4; ++j) {
            EXPECT_NEAR(d.means[j], double(mean[j]), 1e-14 * 10);
            EXPECT_NEAR(f.means[j], double(mean[j]), 4e-7 * 10);
            for (int l = 0; l < 4; ++l) {
                EXPECT_NEAR(d.covs[j * 4 + l], double(cov[j][l]), 1e-14);
                EXPECT_NEAR(f.covs[j * 4 + l], double(cov[j][l]), 1e-6);
            }
        }
    }
}

// y1 always observed, y2 in the first n2 rows: mu1, s11 over all rows, the regression
// of y2 on y1 over the complete rows.
TEST(StatsMissingValues, MonotoneBivariateIsAndersonsClosedForm) {
    Rows rows = Normal(400, 2, 0.0, 2);
    const int n = 400, n2 = 250;
    for (int i = n2; i < n; ++i)
        rows[i][1] = kNaN;
    long double m1 = 0, s11 = 0, c1 = 0, c2 = 0, t11 = 0, t12 = 0, t22 = 0;
    for (int i = 0; i < n; ++i)
        m1 += rows[i][0] / n;
    for (int i = 0; i < n; ++i)
        s11 += (rows[i][0] - m1) * (rows[i][0] - m1) / n;
    for (int i = 0; i < n2; ++i) {
        c1 += rows[i][0] / n2;
        c2 += rows[i][1] / n2;
    }
    for (int i = 0; i < n2; ++i) {
        t11 += (rows[i][0] - c1) * (rows[i][0] - c1) / n2;
        t12 += (rows[i][0] - c1) * (rows[i][1] - c2) / n2;
        t22 += (rows[i][1] - c2) * (rows[i][1] - c2) / n2;
    }
    const long double b1 = t12 / t11, b0 = c2 - b1 * c1;
    const double want[5] = {double(m1), double(b0 + b1 * m1), double(s11), double(b1 * s11),
                            double(t22 - t12 * t12 / t11 + b1 * b1 * s11)};
    // The same pair with a variable between them that the indices leave out.
    Rows wide = rows;
    for (int i = 0; i < n; ++i)
        wide[i] = {rows[i][0], i % 3 ? kNaN : 1e300, rows[i][1]};
    for (int64_t layout : kLayouts) {
        MissingTask<double> d(wide, layout, {1, 0, 1});
        MissingTask<float> f(wide, layout, {1, 0, 1});
        d.Ask(0, 0, {10000, 1e-13});
        f.Ask(0, 0, {10000, 1e-7f});
        ASSERT_EQ(d.Run(), 0);
        ASSERT_EQ(f.Run(), 0);
        const double dgot[5] = {d.means[0], d.means[2], d.covs[0], d.covs[2], d.covs[8]};
        const double fgot[5] = {f.means[0], f.means[2], f.covs[0], f.covs[6], f.covs[8]};
        for (int k = 0; k < 5; ++k) {
            EXPECT_NEAR(dgot[k], want[k], 1e-11 * (1 + std::fabs(want[k]))) << k;
            EXPECT_NEAR(fgot[k], want[k], 2e-5 * (1 + std::fabs(want[k]))) << k;
        }
        EXPECT_EQ(d.means[1], kSentinel);
        for (int k : {1, 3, 4, 5, 7})
            EXPECT_EQ(d.covs[k], kSentinel);
    }
}

// Imputation k's means recomputed from x and its block of imputed entries, read in x's
// order: equal to missingSimMeans, so the block lies in that order and the observed
// entries went into the completed set unchanged.
template <typename T>
void ExpectBlocksAreCompletions(const MissingTask<T>& t, int64_t m, int64_t k, double tol) {
    for (int64_t s = 0; s < m; ++s) {
        std::vector<double> sum(t.p, 0.0);
        const T* block = t.patterns.data() + s * k;
        int64_t e = 0;
        const bool rows = t.layout == BRENN_SS_MATRIX_STORAGE_ROWS;
        for (int64_t a = 0; a < (rows ? t.p : t.n); ++a)
            for (int64_t b = 0; b < (rows ? t.n : t.p); ++b) {
                const int64_t j = rows ? a : b;
                const T v = t.x[a * (rows ? t.n : t.p) + b];
                sum[j] += std::isnan(double(v)) ? double(block[e++]) : double(v);
            }
        EXPECT_EQ(e, k);
        for (int64_t j = 0; j < t.p; ++j)
            EXPECT_NEAR(double(t.simMeans[s * t.p + j]), sum[j] / t.n, tol) << s << " " << j;
    }
}

TEST(StatsMissingValues, ImputationsRepeatBySeedAndCompleteTheObservedData) {
    const Rows rows = Normal(120, 3, 0.3, 3);
    const int64_t k = CountNaN(rows);
    for (int64_t layout : kLayouts) {
        MissingTask<double> a(rows, layout), b(rows, layout), c(rows, layout);
        a.Ask(4, k, {100, 1e-8, 3, 42});
        b.Ask(4, k, {100, 1e-8, 3, 42});
        c.Ask(4, k, {100, 1e-8, 3, 43});
        const std::vector<double> x = a.x;
        ASSERT_EQ(a.Run(), 0);
        ASSERT_EQ(b.Run(brenn_serv_pool_threader()), 0);
        ASSERT_EQ(c.Run(), 0);
        EXPECT_EQ(std::memcmp(a.x.data(), x.data(), x.size() * sizeof(double)), 0);
        EXPECT_EQ(a.patterns, b.patterns);
        EXPECT_EQ(a.simMeans, b.simMeans);
        EXPECT_NE(a.patterns, c.patterns);
        ExpectBlocksAreCompletions(a, 4, k, 1e-13);
        MissingTask<float> f(rows, layout);
        f.Ask(4, k, {100, 1e-6f, 3, 42});
        ASSERT_EQ(f.Run(), 0);
        ExpectBlocksAreCompletions(f, 4, k, 1e-5);
    }
}

TEST(StatsMissingValues, ImputationMeansAverageToTheEmMean) {
    const Rows rows = Normal(400, 3, 0.35, 4);
    const int64_t k = CountNaN(rows), m = 400;
    MissingTask<double> t(rows, BRENN_SS_MATRIX_STORAGE_COLS);
    t.Ask(m, k, {1000, 1e-10, 2, 7});
    ASSERT_EQ(t.Run(brenn_serv_pool_threader()), 0);
    for (int64_t j = 0; j < 3; ++j) {
        double avg = 0;
        for (int64_t s = 0; s < m; ++s)
            avg += t.simMeans[s * 3 + j] / m;
        // One completed mean varies about the posterior's centre by about
        // sqrt(c_jj / n); m draws two steps apart are close to independent.
        const double se = std::sqrt(t.covs[j * 4] / 400.0 / m);
        EXPECT_NEAR(avg, t.means[j], 5 * se) << j;
        // Variable 0 is never missing: its completed mean is the same in every set.
        if (j > 0) EXPECT_NE(t.simMeans[j], t.simMeans[3 + j]) << j;
        if (j == 0) EXPECT_EQ(t.simMeans[j], t.simMeans[3 + j]);
    }
}

void Backwards(int64_t count, int, void* context, ThreaderChunk chunk) {
    for (int64_t i = count - 1; i >= 0; --i)
        chunk(i, int(i % 3), count, context);
}
int Three() {
    return 3;
}
const threader kBackwards = {Backwards, nullptr, nullptr, nullptr, Three};

TEST(StatsMissingValues, ThreadersGiveTheSameBits) {
    const Rows rows = Normal(6000, 7, 0.25, 5); // 64 patterns, 16 chunks of rows
    const int64_t k = CountNaN(rows);
    const threader* threaders[] = {brenn_serv_serial_threader(), brenn_serv_pool_threader(),
                                   &kBackwards};
    MissingTask<double> alone(rows, BRENN_SS_MATRIX_STORAGE_ROWS);
    alone.Ask(2, k, {200, 1e-9, 2, 9});
    ASSERT_EQ(alone.Run(), 0);
    for (const threader* thr : threaders) {
        MissingTask<double> t(rows, BRENN_SS_MATRIX_STORAGE_ROWS);
        t.Ask(2, k, {200, 1e-9, 2, 9});
        ASSERT_EQ(t.Run(thr), 0);
        EXPECT_EQ(std::memcmp(t.means.data(), alone.means.data(), 7 * 8), 0);
        EXPECT_EQ(std::memcmp(t.covs.data(), alone.covs.data(), 49 * 8), 0);
        EXPECT_EQ(std::memcmp(t.patterns.data(), alone.patterns.data(), 2 * k * 8), 0);
        EXPECT_EQ(std::memcmp(t.simMeans.data(), alone.simMeans.data(), 14 * 8), 0);
    }
}

// Scaling the data by a power of two scales every result by it exactly, at 2^+-500 in
// double (squares near 1e301 and 1e-301) and 2^+-60 in float.
template <typename T>
void ExpectScaledExactly(int e) {
    const Rows rows = Normal(80, 3, 0.3, 6);
    Rows big = rows;
    for (auto& r : big)
        for (double& v : r)
            v = std::ldexp(v, e);
    const int64_t k = CountNaN(rows);
    MissingTask<T> a(rows, BRENN_SS_MATRIX_STORAGE_COLS), b(big, BRENN_SS_MATRIX_STORAGE_COLS);
    a.Ask(2, k, {100, T(1e-5), 2, 5});
    b.Ask(2, k, {100, T(1e-5), 2, 5});
    ASSERT_EQ(a.Run(), 0);
    ASSERT_EQ(b.Run(), 0);
    for (int j = 0; j < 3; ++j)
        EXPECT_EQ(b.means[j], std::ldexp(a.means[j], e));
    for (int j = 0; j < 9; ++j)
        EXPECT_EQ(b.covs[j], std::ldexp(a.covs[j], 2 * e));
    for (int64_t j = 0; j < 2 * k; ++j)
        EXPECT_EQ(b.patterns[j], std::ldexp(a.patterns[j], e));
}

TEST(StatsMissingValues, ExtremeMagnitudesScaleExactly) {
    ExpectScaledExactly<double>(500);
    ExpectScaledExactly<double>(-500);
    ExpectScaledExactly<float>(60);
    ExpectScaledExactly<float>(-60);
}

// A signalling NaN is missing as a quiet one is.
template <typename T>
void ExpectSignallingNaNsMissing() {
    Rows rows = Normal(50, 2, 0.3, 7);
    const int64_t k = CountNaN(rows);
    MissingTask<T> quiet(rows, BRENN_SS_MATRIX_STORAGE_COLS),
        loud(rows, BRENN_SS_MATRIX_STORAGE_COLS);
    for (T& v : loud.x)
        if (std::isnan(v)) v = std::numeric_limits<T>::signaling_NaN();
    quiet.Ask(1, k);
    loud.Ask(1, k);
    ASSERT_EQ(quiet.Run(), 0);
    ASSERT_EQ(loud.Run(), 0);
    EXPECT_EQ(quiet.patterns, loud.patterns);
}

TEST(StatsMissingValues, SignallingNaNsAreMissingToo) {
    ExpectSignallingNaNsMissing<double>();
    ExpectSignallingNaNsMissing<float>();
}

TEST(StatsMissingValues, DefaultsAreTheDocumentedValues) {
    const Rows rows = Normal(60, 3, 0.3, 8);
    const int64_t k = CountNaN(rows);
    MissingTask<double> none(rows, BRENN_SS_MATRIX_STORAGE_ROWS),
        two(rows, BRENN_SS_MATRIX_STORAGE_ROWS), all(rows, BRENN_SS_MATRIX_STORAGE_ROWS);
    none.Ask(2, k);
    two.Ask(2, k, {1000, 1e-6});
    all.Ask(2, k, {1000, 1e-6, 10, 1});
    ASSERT_EQ(none.Run(), 0);
    ASSERT_EQ(two.Run(), 0);
    ASSERT_EQ(all.Run(), 0);
    EXPECT_EQ(none.patterns, all.patterns);
    EXPECT_EQ(two.patterns, all.patterns);
    EXPECT_EQ(none.covs, all.covs);
}

TEST(StatsMissingValues, StatusesInTheirOrder) {
    const Rows rows = Normal(40, 3, 0.3, 9);
    const int64_t k = CountNaN(rows);
    struct Case {
        const char* what;
        std::function<void(MissingTask<double>&)> spoil;
        int32_t status;
        bool emWritten;
    };
    const double two32 = 4294967296.0;
    const std::vector<Case> cases = {
        {"estimate bit off", [](auto& t) { t.Ask(1, 0); }, 0, false},
        {"method", [](auto&) {}, BRENN_SS_ERROR_METHOD, false},
        {"storage", [](auto& t) { t.layout = 0x30000; }, BRENN_SS_ERROR_STORAGE, false},
        {"param count",
         [](auto& t) {
             t.Ask(1, 0, {1, 1, 1, 1, 1});
         },
         -4049, false},
        {"params null", [](auto& t) { t.paramCount = 2; }, -4048, false},
        {"limit 0", [](auto& t) { t.Ask(0, 0, {0}); }, -4048, false},
        {"limit 1.5", [](auto& t) { t.Ask(0, 0, {1.5}); }, -4048, false},
        {"tol 0",
         [](auto& t) {
             t.Ask(0, 0, {10, 0});
         },
         -4048, false},
        {"tol NaN",
         [](auto& t) {
             t.Ask(0, 0, {10, kNaN});
         },
         -4048, false},
        {"steps 0",
         [](auto& t) {
             t.Ask(0, 0, {10, 1e-3, 0});
         },
         -4048, false},
        {"seed -1",
         [](auto& t) {
             t.Ask(0, 0, {10, 1e-3, 1, -1});
         },
         -4048, false},
        {"seed 2^32",
         [two32](auto& t) {
             t.Ask(0, 0, {10, 1e-3, 1, two32});
         },
         -4048, false},
        {"mean count", [](auto& t) { t.meanCount = 2; }, -4055, false},
        {"cov count", [](auto& t) { t.covCount = 8; }, -4056, false},
        {"sim count", [](auto& t) { t.sims = -1; }, -4061, false},
        {"pattern count",
         [&](auto& t) {
             t.Ask(2, k);
             t.patternCount = 2 * k - 1;
         },
         -4052, false},
        {"no convergence", [](auto& t) { t.Ask(0, 0, {1}); }, BRENN_SS_ERROR_NO_CONVERGENCE, true},
        {"constant variable",
         [](auto& t) {
             for (int64_t i = 0; i < t.n; ++i)
                 t.x[i * 3 + 2] = std::isnan(t.x[i * 3 + 2]) ? t.x[i * 3 + 2] : 5.0;
         },
         BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE, false},
        {"variable all missing",
         [](auto& t) {
             for (int64_t i = 0; i < t.n; ++i)
                 t.x[i * 3 + 1] = kNaN;
         },
         BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE, false},
    };
    for (const Case& c : cases) {
        MissingTask<double> t(rows, BRENN_SS_MATRIX_STORAGE_COLS);
        c.spoil(t);
        uint64_t estimates = c.status == 0 && std::string(c.what) == "estimate bit off"
                                 ? BRENN_SS_MEAN
                                 : BRENN_SS_MISSING_VALS;
        const uint64_t method = c.status == BRENN_SS_ERROR_METHOD ? 0x2 : BRENN_SS_METHOD_FAST;
        EXPECT_EQ(_qesdSSMissingValues(t.task, estimates, method, nullptr), c.status) << c.what;
        EXPECT_EQ(t.means[0] != kSentinel, c.emWritten) << c.what;
    }
    MissingTask<double> t(rows, BRENN_SS_MATRIX_STORAGE_COLS);
    EXPECT_EQ(_qesdSSMissingValues(nullptr, BRENN_SS_MISSING_VALS, 1, nullptr),
              BRENN_SS_ERROR_TASK_NULL);
    const Rows few(3, {1.0, 2.0, 3.0});
    MissingTask<double> small(few, BRENN_SS_MATRIX_STORAGE_COLS);
    EXPECT_EQ(small.Run(), BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE);
    EXPECT_EQ(small.means[0], kSentinel);
    MissingTask<double> noneKept(rows, BRENN_SS_MATRIX_STORAGE_COLS, {0, 0, 0});
    EXPECT_EQ(noneKept.Run(), 0);
    EXPECT_EQ(noneKept.means[0], kSentinel);
    // Result arrays left unset, one at a time, through the general editors.
    const std::pair<int64_t, int32_t> arrays[] = {
        {55, -4054}, {57, -4057}, {53, -4053}, {59, -4062}};
    for (auto [skip, status] : arrays) {
        MissingTask<double> u(rows, BRENN_SS_MATRIX_STORAGE_COLS);
        u.Ask(1, k);
        void* bare = nullptr;
        ASSERT_EQ(_qesdSSNewTask(&bare, &u.p, &u.n, &u.layout, u.x.data(), nullptr, nullptr, 1), 0);
        const std::pair<int64_t, void*> words[] = {
            {52, &u.patternCount}, {54, &u.meanCount}, {56, &u.covCount}, {58, &u.sims}};
        for (auto [id, address] : words)
            EXPECT_EQ(_qesiSSEditTask(bare, id, address), 0);
        const std::pair<int64_t, void*> reals[] = {{53, u.patterns.data()},
                                                   {55, u.means.data()},
                                                   {57, u.covs.data()},
                                                   {59, u.simMeans.data()}};
        for (auto [id, address] : reals)
            if (id != skip) EXPECT_EQ(_qesdSSEditTask(bare, id, static_cast<double*>(address)), 0);
        EXPECT_EQ(_qesdSSMissingValues(bare, BRENN_SS_MISSING_VALS, 1, nullptr), status) << skip;
        _qesSSDeleteTask(&bare);
    }
}

TEST(StatsMissingValues, AllocationFailuresLeakNothing) {
    const Rows rows = Normal(700, 4, 0.3, 10);
    const int64_t k = CountNaN(rows);
    MissingTask<double> t(rows, BRENN_SS_MATRIX_STORAGE_ROWS);
    t.Ask(2, k, {100, 1e-6, 2, 3});
    ASSERT_EQ(t.Run(brenn_serv_pool_threader()), 0);
    const std::vector<double> means = t.means, patterns = t.patterns;
    SweepAllocationFailures([&] {
        const int32_t s = t.Run(brenn_serv_pool_threader());
        if (s != 0) EXPECT_EQ(s, BRENN_SS_ERROR_ALLOC);
        return s == 0;
    });
    EXPECT_EQ(t.means, means);
    EXPECT_EQ(t.patterns, patterns);
}

} // namespace
} // namespace brenn::test
