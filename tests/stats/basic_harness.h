// Runs the basic compute of either precision on a reference case (whole or fed in
// blocks) and compares its estimates with numpy's.
#ifndef BRENN_TESTS_STATS_BASIC_HARNESS_H
#define BRENN_TESTS_STATS_BASIC_HARNESS_H

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "brenn_stats.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"
#include "tests/stats/reference_cases.h"

namespace brenn::test {

using fe::SsEntries; // the service's entries of each precision

constexpr uint64_t kAllBasic =
    BRENN_SS_MEAN | BRENN_SS_2R_MOM | BRENN_SS_3R_MOM | BRENN_SS_4R_MOM | BRENN_SS_2C_MOM |
    BRENN_SS_3C_MOM | BRENN_SS_4C_MOM | BRENN_SS_KURTOSIS | BRENN_SS_SKEWNESS | BRENN_SS_VARIATION |
    BRENN_SS_COV | BRENN_SS_COR | BRENN_SS_SUM | BRENN_SS_2R_SUM | BRENN_SS_3R_SUM |
    BRENN_SS_4R_SUM | BRENN_SS_2C_SUM | BRENN_SS_3C_SUM | BRENN_SS_4C_SUM | BRENN_SS_CP;

// Editor ids of the 17 reference vectors, in their order.
constexpr int64_t kVectorIds[17] = {7,  8,  9,  10, 11, 12, 13, 14, 15,
                                    18, 67, 68, 69, 70, 71, 72, 73};
// Their positions in the packed estimate set, and the positions of the matrices.
constexpr int kVectorPositions[17] = {0, 1, 2, 3, 4, 5, 6, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18};
constexpr int kCovPosition = 7, kCorPosition = 8, kCpPosition = 19;
constexpr uint32_t kAllPositions = 0xFFFFF;
constexpr double kUntouched = 12345.0;

inline bool InSet(uint32_t set, int position) {
    return (set >> position) & 1u;
}

template <typename T>
struct Results {
    std::vector<T> vectors[17];
    std::vector<T> cov, cor, cp;
    T accumWeight[2] = {0, 0};
    int64_t covStorage = BRENN_SS_MATRIX_STORAGE_FULL;
    int64_t corStorage = BRENN_SS_MATRIX_STORAGE_FULL;
    int64_t cpStorage = BRENN_SS_MATRIX_STORAGE_FULL;
    uint32_t present = kAllPositions; // positions whose arrays the task is given
};

// The basic compute over the case's data in `blocks` calls of nearly equal size. The
// arrays start at kUntouched so that left-out variables can be checked.
template <typename T>
int32_t RunCase(const ReferenceCase& c, uint64_t method, const threader* thr, int blocks,
                Results<T>& r, uint64_t estimates = kAllBasic) {
    const int64_t p = c.p;
    std::vector<T> x(c.x.begin(), c.x.end()), w(c.w.begin(), c.w.end());
    for (auto& v : r.vectors)
        v.assign(p, T(kUntouched));
    int64_t packed = p * (p + 1) / 2;
    auto size = [&](int64_t s) { return s == BRENN_SS_MATRIX_STORAGE_FULL ? p * p : packed; };
    r.cov.assign(size(r.covStorage), T(kUntouched));
    r.cor.assign(size(r.corStorage), T(kUntouched));
    r.cp.assign(size(r.cpStorage), T(kUntouched));
    r.accumWeight[0] = r.accumWeight[1] = 0;
    int64_t nBlock = 0, layout = c.layout;
    void* task = nullptr;
    int32_t s = SsEntries<T>::newTask(&task, &p, &nBlock, &layout, nullptr, nullptr,
                                      c.hasIndices ? c.indices.data() : nullptr, 1);
    if (s != 0) return s;
    for (int k = 0; k < 17; ++k)
        if (InSet(r.present, kVectorPositions[k]))
            SsEntries<T>::edit(task, kVectorIds[k], r.vectors[k].data());
    if (InSet(r.present, kCovPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_COV, r.cov.data());
    if (InSet(r.present, kCorPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_COR, r.cor.data());
    if (InSet(r.present, kCpPosition)) SsEntries<T>::edit(task, BRENN_SS_ED_CP, r.cp.data());
    SsEntries<T>::edit(task, BRENN_SS_ED_ACCUM_WEIGHT, r.accumWeight);
    _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &r.covStorage);
    _qesiSSEditTask(task, BRENN_SS_ED_COR_STORAGE, &r.corStorage);
    _qesiSSEditTask(task, BRENN_SS_ED_CP_STORAGE, &r.cpStorage);
    std::vector<T> copy;
    for (int b = 0; b < blocks && s == 0; ++b) {
        int64_t i0 = c.n * b / blocks, i1 = c.n * (b + 1) / blocks;
        if (i1 == i0) continue;
        nBlock = i1 - i0;
        const T* data = x.data() + i0 * p;
        if (c.layout == BRENN_SS_MATRIX_STORAGE_ROWS) {
            copy.resize(nBlock * p);
            for (int64_t j = 0; j < p; ++j)
                for (int64_t i = i0; i < i1; ++i)
                    copy[j * nBlock + i - i0] = x[j * c.n + i];
            data = copy.data();
        }
        SsEntries<T>::edit(task, BRENN_SS_ED_OBSERV, data);
        if (c.weighted) SsEntries<T>::edit(task, BRENN_SS_ED_WEIGHTS, w.data() + i0);
        s = SsEntries<T>::basic(task, estimates, method, thr);
    }
    _qesSSDeleteTask(&task);
    return s;
}

inline bool Active(const ReferenceCase& c, int64_t j) {
    return !c.hasIndices || c.indices[j] != 0;
}

inline int64_t FullIndex(int64_t storage, int64_t p, int64_t j, int64_t l) {
    if (storage == BRENN_SS_MATRIX_STORAGE_FULL) return j * p + l;
    if (storage == BRENN_SS_MATRIX_STORAGE_U_PACKED) {
        if (j > l) std::swap(j, l);
        return j * (2 * p - j + 1) / 2 + (l - j);
    }
    if (j < l) std::swap(j, l);
    return j * (j + 1) / 2 + l;
}

inline bool Close(double got, double want, double tol, double scale) {
    if (std::isnan(want)) return std::isnan(got);
    return std::fabs(got - want) <= tol * scale;
}

// Compares every estimate with the reference. tol is relative to a scale that fits
// each estimate (the spread for central values, the magnitude for raw ones); the
// central values of an offset case get `centralTol`. rawFirst marks central sums
// formed from raw moments, which carry the error of the raw scale. Only the positions
// in `check` are compared.
template <typename T>
void ExpectMatches(const ReferenceCase& c, const Results<T>& r, double tol, double centralTol,
                   bool rawFirst, const std::string& what, uint32_t check = kAllPositions) {
    const int64_t p = c.p;
    const double W = c.weighted ? [&] {
        double s = 0;
        for (double v : c.w) s += v;
        return s;
    }()
                                : double(c.n);
    for (int64_t j = 0; j < p; ++j) {
        if (!Active(c, j)) {
            for (int k = 0; k < 17; ++k)
                if (InSet(check, kVectorPositions[k]))
                    EXPECT_EQ(r.vectors[k][j], T(kUntouched)) << what;
            continue;
        }
        double m = std::fabs(c.vectors[0][j]);
        double sd = std::sqrt(c.vectors[4][j]);
        if (std::isnan(sd)) sd = 0;
        double big = m + sd;
        for (int k = 0; k < 17; ++k) {
            if (!InSet(check, kVectorPositions[k])) continue;
            double scale, t = tol;
            int order = (k >= 1 && k <= 3) ? k + 1 : (k >= 4 && k <= 6) ? k - 2 : 1;
            if (k >= 11 && k <= 13) order = k - 9;
            if (k >= 14) order = k - 12;
            bool central = (k >= 4 && k <= 9) || k >= 14;
            if (k == 0 || k == 10)
                scale = big;
            else if (k <= 3 || (k >= 11 && k <= 13))
                scale = std::pow(big, order) + std::fabs(c.vectors[k][j]);
            else if (k <= 6)
                scale = std::pow(std::max(sd, 1e-4 * big), order);
            else if (k <= 8)
                scale = 10;
            else if (k == 9)
                scale = std::fabs(c.vectors[9][j]) * big / m; // mean near 0
            else
                scale = std::pow(std::max(rawFirst ? big : sd, 1e-4 * big), order);
            if (k >= 10) scale *= W;
            if (central) t = centralTol;
            if (rawFirst && k >= 14) t = tol * 16;
            if (rawFirst && k >= 14 && (c.flags & 2)) continue; // unstable by request
            EXPECT_TRUE(Close(r.vectors[k][j], c.vectors[k][j], t, scale))
                << what << " estimate " << k << " variable " << j << ": " << r.vectors[k][j]
                << " vs " << c.vectors[k][j];
        }
        for (int64_t l = 0; l < p; ++l) {
            const bool cov = InSet(check, kCovPosition), cor = InSet(check, kCorPosition);
            if (!Active(c, l)) {
                if (cov) EXPECT_EQ(r.cov[FullIndex(r.covStorage, p, j, l)], T(kUntouched)) << what;
                if (cor) EXPECT_EQ(r.cor[FullIndex(r.corStorage, p, j, l)], T(kUntouched)) << what;
                continue;
            }
            double sl = std::sqrt(c.cov[l * p + l]), sj = std::sqrt(c.cov[j * p + j]);
            double scale = (std::isnan(sl * sj) ? 0 : sl * sj) + 1e-300;
            if (cov)
                EXPECT_TRUE(Close(r.cov[FullIndex(r.covStorage, p, j, l)], c.cov[j * p + l],
                                  centralTol, scale))
                    << what << " cov " << j << "," << l;
            if (cor)
                EXPECT_TRUE(
                    Close(r.cor[FullIndex(r.corStorage, p, j, l)], c.cor[j * p + l], centralTol, 1))
                    << what << " cor " << j << "," << l;
            double cpScale = std::sqrt(c.cp[j * p + j] * c.cp[l * p + l]) + 1e-300;
            if (InSet(check, kCpPosition))
                EXPECT_TRUE(Close(r.cp[FullIndex(r.cpStorage, p, j, l)], c.cp[j * p + l],
                                  centralTol, cpScale))
                    << what << " cp " << j << "," << l;
        }
    }
    EXPECT_NEAR(double(r.accumWeight[0]), W, tol * W) << what;
}

} // namespace brenn::test

#endif
