// A missing-value task over a caller's matrix for the tests of _qes{d,s}SSMissingValues:
// the matrix in either layout, the result arrays primed with a sentinel, 64-bit words.
#ifndef BRENN_TESTS_STATS_MISSING_HARNESS_H
#define BRENN_TESTS_STATS_MISSING_HARNESS_H

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"

namespace brenn::test {

template <typename T>
struct MissingApi;
template <>
struct MissingApi<double> {
    static constexpr auto NewTask = _qesdSSNewTask;
    static constexpr auto Edit = __qesdSSEditMissingVals;
    static constexpr auto Run = _qesdSSMissingValues;
};
template <>
struct MissingApi<float> {
    static constexpr auto NewTask = _qessSSNewTask;
    static constexpr auto Edit = __qessSSEditMissingVals;
    static constexpr auto Run = _qessSSMissingValues;
};

constexpr double kSentinel = -7777.0;

// rows[i][j] is observation i of variable j; NaN where missing.
template <typename T>
struct MissingTask {
    int64_t p, n, layout;
    std::vector<T> x;
    std::vector<int64_t> indices;
    int64_t paramCount = 0, patternCount, sims = 0, meanCount, covCount;
    std::vector<T> params, patterns, simMeans, means, covs;
    void* task = nullptr;

    MissingTask(const std::vector<std::vector<double>>& rows, int64_t layout_,
                std::vector<int64_t> keep = {})
        : p(int64_t(rows[0].size())), n(int64_t(rows.size())), layout(layout_),
          indices(std::move(keep)) {
        x.resize(n * p);
        for (int64_t i = 0; i < n; ++i)
            for (int64_t j = 0; j < p; ++j)
                x[layout == BRENN_SS_MATRIX_STORAGE_ROWS ? j * n + i : i * p + j] = T(rows[i][j]);
        meanCount = p;
        covCount = p * p;
        means.assign(p, T(kSentinel));
        covs.assign(p * p, T(kSentinel));
        EXPECT_EQ(MissingApi<T>::NewTask(&task, &p, &n, &layout, x.data(), nullptr,
                                         indices.empty() ? nullptr : indices.data(), 1),
                  0);
        Edit();
    }
    ~MissingTask() { _qesSSDeleteTask(&task); }
    MissingTask(const MissingTask&) = delete;
    MissingTask& operator=(const MissingTask&) = delete;

    // M imputations of k missing entries each, with the given parameters.
    void Ask(int64_t m, int64_t k, std::vector<T> ps = {}) {
        sims = m;
        patternCount = m * k;
        patterns.assign(m * k, T(kSentinel));
        simMeans.assign(m * p, T(kSentinel));
        params = std::move(ps);
        paramCount = int64_t(params.size());
        Edit();
    }
    void Edit() {
        EXPECT_EQ(MissingApi<T>::Edit(task, &paramCount, params.empty() ? nullptr : params.data(),
                                      &patternCount, patterns.empty() ? nullptr : patterns.data(),
                                      &sims, simMeans.empty() ? nullptr : simMeans.data(),
                                      &meanCount, means.data(), &covCount, covs.data()),
                  0);
    }
    int32_t Run(const threader* thr = nullptr, uint64_t method = BRENN_SS_METHOD_FAST) {
        return MissingApi<T>::Run(task, BRENN_SS_MISSING_VALS, method, thr);
    }
};

} // namespace brenn::test

#endif
