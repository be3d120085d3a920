// The robust covariance and outlier entries seen from a test: a task over the caller's
// observations in either precision, its editors, the two computes, and the bit views of
// order_harness.h.
#ifndef BRENN_TESTS_STATS_ROBUST_HARNESS_H
#define BRENN_TESTS_STATS_ROBUST_HARNESS_H

#include <cstdint>
#include <cstring>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"
#include "tests/stats/order_harness.h"

namespace brenn::test {

template <typename T>
struct RobustApi;

template <>
struct RobustApi<double> {
    static int32_t New(void** t, const int64_t* p, const int64_t* n, const int64_t* s,
                       const double* x, const int64_t* ind) {
        return _qesdSSNewTask(t, p, n, s, x, nullptr, ind, 1);
    }
    static int32_t EditRCov(void* t, void* st, void* cnt, double* prm, double* mean, double* cov) {
        return __qesdSSEditRCov(t, st, cnt, prm, mean, cov);
    }
    static int32_t EditOut(void* t, void* cnt, double* prm, double* w) {
        return __qesdSSEditOutDetect(t, cnt, prm, w);
    }
    static int32_t Mcd(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qesdSSRobustCovariance(t, e, m, thr);
    }
    static int32_t Bacon(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qesdSSOutliersDetection(t, e, m, thr);
    }
};

template <>
struct RobustApi<float> {
    static int32_t New(void** t, const int64_t* p, const int64_t* n, const int64_t* s,
                       const float* x, const int64_t* ind) {
        return _qessSSNewTask(t, p, n, s, x, nullptr, ind, 1);
    }
    static int32_t EditRCov(void* t, void* st, void* cnt, float* prm, float* mean, float* cov) {
        return __qessSSEditRCov(t, st, cnt, prm, mean, cov);
    }
    static int32_t EditOut(void* t, void* cnt, float* prm, float* w) {
        return __qessSSEditOutDetect(t, cnt, prm, w);
    }
    static int32_t Mcd(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qessSSRobustCovariance(t, e, m, thr);
    }
    static int32_t Bacon(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qessSSOutliersDetection(t, e, m, thr);
    }
};

// A task with its words; the results start at a sentinel so untouched places show.
template <typename T>
struct RobustTask {
    static constexpr T kUntouched = T(12345);
    int64_t p, n, layout, covStorage = BRENN_SS_MATRIX_STORAGE_FULL, count = 0;
    std::vector<T> x, params, mean, cov, weights;
    std::vector<int64_t> indices;
    void* task = nullptr;

    RobustTask(int64_t p_, int64_t n_, int64_t layout_, std::vector<T> x_,
               std::vector<int64_t> ind = {})
        : p(p_), n(n_), layout(layout_), x(std::move(x_)), params(4), mean(p_, kUntouched),
          cov(p_ * p_, kUntouched), weights(n_, kUntouched), indices(std::move(ind)) {
        RobustApi<T>::New(&task, &p, &n, &layout, x.data(),
                          indices.empty() ? nullptr : indices.data());
        RobustApi<T>::EditRCov(task, &covStorage, &count, params.data(), mean.data(), cov.data());
        RobustApi<T>::EditOut(task, &count, params.data(), weights.data());
    }
    ~RobustTask() { _qesSSDeleteTask(&task); }
    RobustTask(const RobustTask&) = delete;
    RobustTask& operator=(const RobustTask&) = delete;

    void Params(std::vector<T> v) {
        count = int64_t(v.size());
        for (size_t i = 0; i < v.size(); ++i)
            params[i] = v[i];
    }
    int32_t Mcd(const threader* thr = nullptr) {
        return RobustApi<T>::Mcd(task, BRENN_SS_ROBUST_COV, BRENN_SS_METHOD_FASTMCD, thr);
    }
    int32_t Bacon(const threader* thr = nullptr) {
        return RobustApi<T>::Bacon(task, BRENN_SS_OUTLIERS, BRENN_SS_METHOD_BACON, thr);
    }
};

} // namespace brenn::test

#endif
