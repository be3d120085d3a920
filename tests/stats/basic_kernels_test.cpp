// The 64-entry kernel tables on their own: every blocked entry against plain sums, with
// result arrays on a 64-byte boundary and off it, and every one-pass entry against the
// two-pass moments of the same data.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "stats/basic_kernels.h"
#include "stats/four.h"

namespace brenn::stats {
namespace {

struct Data {
    int64_t n, q; // odd sizes reach the tails of the four-a-turn loops
    std::vector<double> x, w, centre;
    explicit Data(int64_t observations = 37, int64_t variables = 7)
        : n(observations), q(variables) {
        std::mt19937_64 gen(11);
        std::normal_distribution<double> normal(2.0, 1.5);
        x.resize(n * q);
        for (double& v : x)
            v = normal(gen);
        w.resize(n);
        for (double& v : w)
            v = std::fabs(normal(gen)) + 0.1;
        centre.resize(q);
        for (double& v : centre)
            v = normal(gen);
    }
    double At(bool varRows, int64_t i, int64_t j) const {
        return varRows ? x[j * n + i] : x[i * q + j];
    }
};

template <typename T>
void CheckBlocked(bool aligned) {
    Data d;
    std::vector<T> x(d.x.begin(), d.x.end()), w(d.w.begin(), d.w.end());
    // A state on a 64-byte boundary, or shifted by one element.
    std::vector<T> memory(64 * 16 + 64);
    T* base = memory.data();
    while (!On64Bytes(base))
        ++base;
    if (!aligned) ++base;
    for (int group = 0; group < 2; ++group)
        for (int order = 1; order <= 4; ++order)
            for (bool weighted : {false, true})
                for (bool varRows : {false, true}) {
                    MomentState<T> s;
                    LayOutState(s, base + 16, d.q, false, true);
                    T* centre = base;
                    for (int64_t j = 0; j < d.q; ++j)
                        centre[j] = T(d.centre[j]);
                    int index =
                        BlockIndex(group == 0 ? GroupCentral : GroupRaw, order, weighted, varRows);
                    BasicKernels<T>()[index](x.data(), varRows ? d.n : d.q, 0, d.n, 0, d.q,
                                             weighted ? w.data() : nullptr, &s, centre);
                    T* outs[4] = {s.mean, group == 0 ? s.cen[0] : s.raw[0],
                                  group == 0 ? s.cen[1] : s.raw[1],
                                  group == 0 ? s.cen[2] : s.raw[2]};
                    for (int64_t j = 0; j < d.q; ++j)
                        for (int k = 1; k <= order; ++k) {
                            double want = 0, scale = 0;
                            for (int64_t i = 0; i < d.n; ++i) {
                                double c = group == 0 ? double(centre[j]) : 0.0;
                                double t = std::pow(double(T(d.At(varRows, i, j))) - c, k) *
                                           (weighted ? double(w[i]) : 1.0);
                                want += t;
                                scale += std::fabs(t);
                            }
                            double tol = (sizeof(T) == 4 ? 1e-5 : 1e-13) * scale;
                            EXPECT_NEAR(double(outs[k - 1][j]), want, tol)
                                << "entry " << index << " power " << k << " variable " << j;
                        }
                    if (group == 1) {
                        double sw = 0;
                        for (int64_t i = 0; i < d.n; ++i)
                            sw += weighted ? double(w[i]) : 1.0;
                        EXPECT_NEAR(double(s.weight[0]), sw, 1e-5 * sw);
                    }
                }
}

TEST(StatsKernels, BlockedEntriesAlignedAndNot) {
    CheckBlocked<double>(true);
    CheckBlocked<double>(false);
    CheckBlocked<float>(true);
    CheckBlocked<float>(false);
}

// Runs one one-pass entry over the observations [split, n) of d on a state that already
// holds [0, split) (fed by the same entry), and checks the state against two-pass
// moments of all n observations.
template <typename T>
void CheckOnePass(const Data& d, int order, bool cov, bool weighted, bool varRows, int64_t split) {
    const double tol = sizeof(T) == 4 ? 2e-5 : 1e-12;
    size_t bytes = 0;
    ASSERT_TRUE(AddStateBytes(&bytes, d.q, true, false, sizeof(T)));
    std::vector<T> memory(bytes / sizeof(T) + d.q);
    MomentState<T> s;
    T* work = LayOutState(s, memory.data(), d.q, cov, false);
    std::vector<T> x(d.x.begin(), d.x.end()), w(d.w.begin(), d.w.end());
    const int index = OnePassIndex(cov, order, weighted, varRows);
    for (auto [i0, i1] : {std::pair<int64_t, int64_t>{0, split}, {split, d.n}})
        BasicKernels<T>()[index](x.data(), varRows ? d.n : d.q, i0, i1, 0, d.q,
                                 weighted ? w.data() : nullptr, &s, work);
    const std::string where = "entry " + std::to_string(index) + " q " + std::to_string(d.q) +
                              " split " + std::to_string(split) + (sizeof(T) == 4 ? " float" : "");
    auto wt = [&](int64_t i) { return weighted ? double(w[i]) : 1.0; };
    auto at = [&](int64_t i, int64_t j) { return double(T(d.At(varRows, i, j))); };
    double W = 0;
    for (int64_t i = 0; i < d.n; ++i)
        W += wt(i);
    EXPECT_NEAR(double(s.weight[0]), W, tol * W) << where;
    std::vector<double> m(d.q, 0);
    for (int64_t j = 0; j < d.q; ++j) {
        for (int64_t i = 0; i < d.n; ++i)
            m[j] += wt(i) * at(i, j);
        m[j] /= W;
        EXPECT_NEAR(double(s.mean[j]), m[j], tol * (1 + std::fabs(m[j]))) << where;
    }
    for (int64_t j = 0; j < d.q; ++j)
        for (int k = 2; k <= order; ++k) {
            double raw = 0, cen = 0, scale = 0;
            for (int64_t i = 0; i < d.n; ++i) {
                raw += wt(i) * std::pow(at(i, j), k);
                cen += wt(i) * std::pow(at(i, j) - m[j], k);
                scale += wt(i) * std::pow(std::fabs(at(i, j) - m[j]), k);
            }
            EXPECT_NEAR(double(s.raw[k - 2][j]), raw / W, tol * std::fabs(raw / W))
                << where << " raw " << k;
            EXPECT_NEAR(double(s.cen[k - 2][j]), cen, 10 * tol * (1 + scale))
                << where << " central " << k;
        }
    if (!cov) return;
    for (int64_t l = 0; l < d.q; ++l)
        for (int64_t j = l; j < d.q; ++j) {
            double cp = 0, scale = 0;
            for (int64_t i = 0; i < d.n; ++i) {
                double t = wt(i) * (at(i, j) - m[j]) * (at(i, l) - m[l]);
                cp += t;
                scale += std::fabs(t);
            }
            EXPECT_NEAR(double(s.cross[j + l * d.q]), cp, 10 * tol * (1 + scale))
                << where << " cross " << j << "," << l;
        }
}

// Every entry, in both precisions, with as many variables as the four-a-turn loop takes
// and with fewer (where each variable's observations run in four interleaved lanes,
// also in the observation-contiguous layout), in one call and in two calls whose first
// one leaves a part of a group of four.
TEST(StatsKernels, OnePassEntriesGiveTwoPassMoments) {
    for (int64_t q : {7, 1, 3}) {
        Data d(38, q);
        for (int order = 1; order <= 4; ++order)
            for (bool cov : {false, true})
                for (bool weighted : {false, true})
                    for (bool varRows : {false, true})
                        for (int64_t split : {int64_t(0), int64_t(5)}) {
                            CheckOnePass<double>(d, order, cov, weighted, varRows, split);
                            CheckOnePass<float>(d, order, cov, weighted, varRows, split);
                        }
    }
}

// A leading run of zero weights is skipped, also where it ends at a different place in
// each lane; a zero weight later in the run adds nothing.
TEST(StatsKernels, OnePassLeadingZeroWeightsInEveryLane) {
    Data d(29, 2);
    for (int64_t i : {0, 1, 2, 3, 4, 6, 11, 17})
        d.w[i] = 0;
    for (int order = 1; order <= 4; ++order)
        for (bool varRows : {false, true}) {
            CheckOnePass<double>(d, order, false, true, varRows, 0);
            CheckOnePass<float>(d, order, false, true, varRows, 0);
            CheckOnePass<double>(d, order, false, true, varRows, 9);
        }
}

} // namespace
} // namespace brenn::stats
