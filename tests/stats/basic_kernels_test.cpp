// The 64-entry kernel tables on their own: every blocked entry against plain sums, with
// result arrays on a 64-byte boundary and off it, and every one-pass entry against the
// two-pass moments of the same data.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "stats/basic_kernels.h"
#include "stats/four.h"

namespace brenn::stats {
namespace {

struct Data {
    int64_t n = 37, q = 7; // odd sizes reach the tails of the four-a-turn loops
    std::vector<double> x, w, centre;
    Data() {
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

TEST(StatsKernels, OnePassEntriesGiveTwoPassMoments) {
    Data d;
    for (int order = 1; order <= 4; ++order)
        for (bool cov : {false, true})
            for (bool weighted : {false, true})
                for (bool varRows : {false, true}) {
                    size_t bytes = 0;
                    ASSERT_TRUE(AddStateBytes(&bytes, d.q, true, false, sizeof(double)));
                    std::vector<double> memory(bytes / sizeof(double) + d.q);
                    MomentState<double> s;
                    double* work = LayOutState(s, memory.data(), d.q, cov, false);
                    int index = OnePassIndex(cov, order, weighted, varRows);
                    BasicKernels<double>()[index](d.x.data(), varRows ? d.n : d.q, 0, d.n, 0, d.q,
                                                  weighted ? d.w.data() : nullptr, &s, work);
                    double W = 0;
                    for (int64_t i = 0; i < d.n; ++i)
                        W += weighted ? d.w[i] : 1.0;
                    EXPECT_NEAR(s.weight[0], W, 1e-12 * W);
                    std::vector<double> m(d.q, 0);
                    for (int64_t j = 0; j < d.q; ++j) {
                        for (int64_t i = 0; i < d.n; ++i)
                            m[j] += (weighted ? d.w[i] : 1.0) * d.At(varRows, i, j);
                        m[j] /= W;
                        EXPECT_NEAR(s.mean[j], m[j], 1e-13 * (1 + std::fabs(m[j]))) << index;
                    }
                    for (int64_t j = 0; j < d.q; ++j)
                        for (int k = 2; k <= order; ++k) {
                            double raw = 0, cen = 0;
                            for (int64_t i = 0; i < d.n; ++i) {
                                double wi = weighted ? d.w[i] : 1.0, v = d.At(varRows, i, j);
                                raw += wi * std::pow(v, k);
                                cen += wi * std::pow(v - m[j], k);
                            }
                            EXPECT_NEAR(s.raw[k - 2][j], raw / W, 1e-12 * std::fabs(raw / W))
                                << index << " raw " << k;
                            EXPECT_NEAR(s.cen[k - 2][j], cen, 1e-11 * (1 + std::fabs(cen)))
                                << index << " central " << k;
                        }
                    if (!cov) continue;
                    for (int64_t l = 0; l < d.q; ++l)
                        for (int64_t j = l; j < d.q; ++j) {
                            double cp = 0;
                            for (int64_t i = 0; i < d.n; ++i)
                                cp += (weighted ? d.w[i] : 1.0) * (d.At(varRows, i, j) - m[j]) *
                                      (d.At(varRows, i, l) - m[l]);
                            EXPECT_NEAR(s.cross[j + l * d.q], cp, 1e-12 * (1 + std::fabs(cp)))
                                << index << " cross " << j << "," << l;
                        }
                }
}

} // namespace
} // namespace brenn::stats
