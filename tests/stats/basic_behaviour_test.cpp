// Behaviour of the basic compute beyond single estimates: storage forms, weights of 0,
// conversion from sums and cross-product, the running state across calls, and the
// accumulation of minimum and maximum.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>

#include "tests/stats/basic_harness.h"

namespace brenn::test {
namespace {

ReferenceCase RandomCase(int64_t p, int64_t n, int64_t layout, bool weighted, unsigned seed) {
    std::mt19937_64 gen(seed);
    std::normal_distribution<double> normal(1.0, 2.0);
    std::uniform_real_distribution<double> uniform(0.1, 2.0);
    ReferenceCase c;
    c.p = p;
    c.n = n;
    c.layout = layout;
    c.weighted = weighted;
    c.x.resize(p * n);
    for (double& v : c.x)
        v = normal(gen);
    if (weighted) {
        c.w.resize(n);
        for (double& v : c.w)
            v = uniform(gen);
    }
    return c;
}

// Packed forms hold the same numbers as the full form, at their own places.
TEST(StatsBasicBehaviour, PackedStorageForms) {
    ReferenceCase c = RandomCase(5, 300, BRENN_SS_MATRIX_STORAGE_COLS, true, 1);
    Results<double> full;
    ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, nullptr, 1, full), 0);
    for (int64_t form : {BRENN_SS_MATRIX_STORAGE_U_PACKED, BRENN_SS_MATRIX_STORAGE_L_PACKED}) {
        Results<double> packed;
        packed.covStorage = form;
        packed.corStorage = form;
        packed.cpStorage = form == BRENN_SS_MATRIX_STORAGE_U_PACKED
                               ? BRENN_SS_MATRIX_STORAGE_L_PACKED
                               : BRENN_SS_MATRIX_STORAGE_U_PACKED;
        ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, nullptr, 1, packed), 0);
        ASSERT_EQ(packed.cov.size(), 15u);
        for (int64_t j = 0; j < 5; ++j)
            for (int64_t l = 0; l < 5; ++l) {
                EXPECT_EQ(packed.cov[FullIndex(form, 5, j, l)], full.cov[j * 5 + l]);
                EXPECT_EQ(packed.cor[FullIndex(form, 5, j, l)], full.cor[j * 5 + l]);
                EXPECT_EQ(packed.cp[FullIndex(packed.cpStorage, 5, j, l)], full.cp[j * 5 + l]);
            }
    }
    // The upper packed form of 3 variables is (0,0) (0,1) (0,2) (1,1) (1,2) (2,2).
    EXPECT_EQ(FullIndex(BRENN_SS_MATRIX_STORAGE_U_PACKED, 3, 1, 2), 4);
    EXPECT_EQ(FullIndex(BRENN_SS_MATRIX_STORAGE_L_PACKED, 3, 1, 2), 4);
    EXPECT_EQ(FullIndex(BRENN_SS_MATRIX_STORAGE_L_PACKED, 3, 2, 0), 3);
}

// Observations of weight 0 change nothing: a leading run of them, and a whole block of
// them after the first, which leaves every array bit for bit as it was.
TEST(StatsBasicBehaviour, ZeroWeightsLeaveResultsUntouched) {
    for (uint64_t method : {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B}) {
        ReferenceCase c = RandomCase(3, 200, BRENN_SS_MATRIX_STORAGE_COLS, true, 2);
        ReferenceCase withZeros = c;
        withZeros.n += 50;
        withZeros.x.insert(withZeros.x.begin(), 150, 1e300); // never looked at
        withZeros.w.insert(withZeros.w.begin(), 50, 0.0);
        Results<double> a, b;
        ASSERT_EQ(RunCase(c, method, nullptr, 1, a), 0);
        ASSERT_EQ(RunCase(withZeros, method, nullptr, 1, b), 0);
        for (int k = 0; k < 17; ++k)
            for (int j = 0; j < 3; ++j)
                EXPECT_NEAR(a.vectors[k][j], b.vectors[k][j],
                            1e-13 * (1 + std::fabs(a.vectors[k][j])));

        // Second block: 60 observations, all of weight 0.
        ReferenceCase twoBlocks = c;
        twoBlocks.n = 260;
        twoBlocks.x.insert(twoBlocks.x.end(), 180, 7.0);
        twoBlocks.w.insert(twoBlocks.w.end(), 60, 0.0);
        // RunCase splits evenly: 13 blocks of 20 put the zero run in the last three, to
        // be compared with the first 200 in 10 blocks.
        Results<double> both;
        ASSERT_EQ(RunCase(twoBlocks, method, nullptr, 13, both), 0);
        Results<double> reference;
        ASSERT_EQ(RunCase(c, method, nullptr, 10, reference), 0);
        for (int k = 0; k < 17; ++k)
            for (int j = 0; j < 3; ++j)
                EXPECT_EQ(both.vectors[k][j], reference.vectors[k][j]);
        EXPECT_EQ(both.cov, reference.cov);
        EXPECT_EQ(both.accumWeight[0], reference.accumWeight[0]);
    }
}

// A call on all-zero weights with a fresh accumulated weight writes nothing.
TEST(StatsBasicBehaviour, AllZeroWeightsWriteNothing) {
    ReferenceCase c = RandomCase(2, 10, BRENN_SS_MATRIX_STORAGE_ROWS, true, 3);
    for (double& v : c.w)
        v = 0;
    Results<double> r;
    ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS, nullptr, 1, r), 0);
    for (auto& v : r.vectors)
        EXPECT_EQ(v, std::vector<double>(2, kUntouched));
    EXPECT_EQ(r.accumWeight[0], 0.0);
}

// Means, moments, covariance and correlation from the sums and cross-product of a
// first compute are those the first compute gave.
TEST(StatsBasicBehaviour, ConversionFromSums) {
    ReferenceCase c = RandomCase(4, 500, BRENN_SS_MATRIX_STORAGE_ROWS, true, 4);
    Results<double> direct;
    ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, nullptr, 1, direct), 0);
    for (uint64_t method : {BRENN_SS_METHOD_FROM_SUMS, BRENN_SS_METHOD_FROM_SUMS_CP}) {
        Results<double> r = direct;
        int64_t p = 4, full = 0, n = c.n;
        void* task = nullptr;
        ASSERT_EQ(_qesdSSNewTask(&task, &p, &n, nullptr, nullptr, nullptr, nullptr, 1), 0);
        std::vector<double> out[10];
        for (int k = 0; k < 10; ++k) {
            out[k].assign(4, kUntouched);
            _qesdSSEditTask(task, kVectorIds[k], out[k].data());
        }
        for (int k = 10; k < 17; ++k)
            _qesdSSEditTask(task, kVectorIds[k], r.vectors[k].data());
        std::vector<double> cov(16, kUntouched), cor(16, kUntouched);
        _qesdSSEditTask(task, BRENN_SS_ED_COV, cov.data());
        _qesdSSEditTask(task, BRENN_SS_ED_COR, cor.data());
        _qesdSSEditTask(task, BRENN_SS_ED_CP, r.cp.data());
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &full);
        _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &full);
        _qesiSSEditTask(task, BRENN_SS_ED_CP_STORAGE, &full);
        _qesdSSEditTask(task, BRENN_SS_ED_ACCUM_WEIGHT, r.accumWeight);
        uint64_t est =
            kAllBasic & ~(BRENN_SS_SUM | BRENN_SS_2R_SUM | BRENN_SS_3R_SUM | BRENN_SS_4R_SUM |
                          BRENN_SS_2C_SUM | BRENN_SS_3C_SUM | BRENN_SS_4C_SUM | BRENN_SS_CP);
        ASSERT_EQ(_qesdSSBasic(task, est, method, nullptr), 0);
        for (int k = 0; k < 10; ++k)
            for (int j = 0; j < 4; ++j)
                EXPECT_NEAR(out[k][j], direct.vectors[k][j],
                            1e-13 * (1 + std::fabs(direct.vectors[k][j])))
                    << k << " " << j;
        for (int e = 0; e < 16; ++e) {
            EXPECT_NEAR(cov[e], direct.cov[e], 1e-13 * (1 + std::fabs(direct.cov[e])));
            EXPECT_NEAR(cor[e], direct.cor[e], 1e-14);
        }
        // Without accumWeight the weights give W and W2.
        void* t2 = nullptr;
        std::vector<double> w(c.w);
        std::vector<double> mean(4, 0);
        ASSERT_EQ(_qesdSSNewTask(&t2, &p, &n, nullptr, nullptr, w.data(), nullptr, 1), 0);
        _qesdSSEditTask(t2, BRENN_SS_ED_SUM, r.vectors[10].data());
        _qesdSSEditTask(t2, BRENN_SS_ED_MEAN, mean.data());
        ASSERT_EQ(_qesdSSBasic(t2, BRENN_SS_MEAN, method, nullptr), 0);
        for (int j = 0; j < 4; ++j)
            EXPECT_NEAR(mean[j], direct.vectors[0][j], 1e-13);
        _qesSSDeleteTask(&t2);
        _qesSSDeleteTask(&task);
    }
}

// Each estimate asked alone (with the arrays it needs) is what the full set gives: the
// running state never depends on what else was asked.
TEST(StatsBasicBehaviour, EstimatesAloneAcrossBlocks) {
    ReferenceCase c = RandomCase(3, 400, BRENN_SS_MATRIX_STORAGE_COLS, false, 5);
    Results<double> all;
    ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS, nullptr, 3, all), 0);
    const uint64_t alone[] = {BRENN_SS_MEAN,     BRENN_SS_2C_MOM, BRENN_SS_KURTOSIS,
                              BRENN_SS_SKEWNESS, BRENN_SS_COV,    BRENN_SS_CP,
                              BRENN_SS_2C_SUM,   BRENN_SS_3R_SUM, BRENN_SS_SUM};
    for (uint64_t est : alone) {
        Results<double> r;
        ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS, nullptr, 3, r, est), 0) << est;
        for (int k = 0; k < 17; ++k)
            for (int j = 0; j < 3; ++j)
                if (r.vectors[k][j] != kUntouched)
                    EXPECT_NEAR(r.vectors[k][j], all.vectors[k][j],
                                1e-12 * (1 + std::fabs(all.vectors[k][j])))
                        << est << " " << k;
    }
}

TEST(StatsMinmax, AccumulatesOverBlocksWithIndicesAndSkipsNaN) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (int64_t layout : {BRENN_SS_MATRIX_STORAGE_ROWS, BRENN_SS_MATRIX_STORAGE_COLS}) {
        // Variable values 0: 1 nan 5 -2, 1: 9 9 9 9, 2: -1 4 2 8 (observation order).
        double v[3][4] = {{1, nan, 5, -2}, {9, 9, 9, 9}, {-1, 4, 2, 8}};
        std::vector<float> x(12);
        for (int j = 0; j < 3; ++j)
            for (int i = 0; i < 4; ++i)
                x[layout == BRENN_SS_MATRIX_STORAGE_ROWS ? j * 4 + i : i * 3 + j] = v[j][i];
        int32_t indices[3] = {1, 0, 1};
        std::vector<float> lo(3, INFINITY), hi(3, -INFINITY);
        void* task = nullptr;
        int32_t p32 = 3, n32 = 4, s32 = static_cast<int32_t>(layout);
        ASSERT_EQ(_qessSSNewTask(&task, &p32, &n32, &s32, x.data(), nullptr, indices, 0), 0);
        _qessSSEditTask(task, BRENN_SS_ED_MIN, lo.data());
        _qessSSEditTask(task, BRENN_SS_ED_MAX, hi.data());
        ASSERT_EQ(_qessSSMinmax(task, BRENN_SS_MIN | BRENN_SS_MAX, BRENN_SS_METHOD_FAST), 0);
        EXPECT_EQ(lo, (std::vector<float>{-2, INFINITY, -1}));
        EXPECT_EQ(hi, (std::vector<float>{5, -INFINITY, 8}));
        // A second block widens the range; only the maximum is asked this time.
        for (float& e : x)
            e = 100;
        ASSERT_EQ(_qessSSMinmax(task, BRENN_SS_MAX, BRENN_SS_METHOD_ONE_PASS), 0);
        EXPECT_EQ(lo, (std::vector<float>{-2, INFINITY, -1}));
        EXPECT_EQ(hi, (std::vector<float>{100, -INFINITY, 100}));
        _qesSSDeleteTask(&task);
    }
}

} // namespace
} // namespace brenn::test

namespace brenn::test {
namespace {

// With an index width of 0 every integer word is 32 bits: dimension, count, storage
// words and indices. The estimates are those of the 64-bit task.
TEST(StatsBasicBehaviour, ThirtyTwoBitWords) {
    ReferenceCase c = RandomCase(4, 100, BRENN_SS_MATRIX_STORAGE_ROWS, false, 6);
    c.hasIndices = true;
    c.indices = {1, 0, 1, 1};
    Results<double> wide;
    ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, nullptr, 1, wide), 0);
    int32_t p = 4, n = 100, storage = BRENN_SS_MATRIX_STORAGE_ROWS, upper = 1;
    int32_t indices[4] = {1, 0, 1, 1};
    std::vector<double> mean(4, kUntouched), cov(10, kUntouched);
    void* task = nullptr;
    ASSERT_EQ(_qesdSSNewTask(&task, &p, &n, &storage, c.x.data(), nullptr, indices, 0), 0);
    __qesdSSEditCovCor(task, mean.data(), cov.data(), &upper, nullptr, nullptr);
    ASSERT_EQ(_qesdSSBasic(task, BRENN_SS_MEAN | BRENN_SS_COV, BRENN_SS_METHOD_ONE_PASS_B, nullptr),
              0);
    for (int j = 0; j < 4; ++j) {
        EXPECT_NEAR(mean[j], wide.vectors[0][j], 1e-13 * std::fabs(wide.vectors[0][j]));
        for (int l = j; l < 4; ++l)
            EXPECT_NEAR(cov[FullIndex(1, 4, j, l)], wide.cov[j * 4 + l],
                        j == 1 || l == 1 ? 0.0 : 1e-13 * std::fabs(wide.cov[j * 4 + l]))
                << j << "," << l;
    }
    _qesSSDeleteTask(&task);
}

} // namespace
} // namespace brenn::test
