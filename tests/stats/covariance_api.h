// The partial, pooled and parametrized covariance and the Mahalanobis distances by
// precision, for the covariance tests and the numpy comparison's driver.
#ifndef BRENN_TESTS_STATS_COVARIANCE_API_H
#define BRENN_TESTS_STATS_COVARIANCE_API_H

#include <stdint.h>

#include "brenn_stats.h"
#include "platform/threader.h"

namespace brenn::test::covariance {

template <typename T>
struct Api;
template <>
struct Api<double> {
    static int32_t New(void** t, const int64_t* p, const int64_t* n, const int64_t* s,
                       const double* x, const int64_t* idx) {
        return _qesdSSNewTask(t, p, n, s, x, nullptr, idx, 1);
    }
    static int32_t Edit(void* t, int64_t id, double* a) { return _qesdSSEditTask(t, id, a); }
    static int32_t Partial(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qesdSSPartialCovariance(t, e, m, thr);
    }
    static int32_t Pooled(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qesdSSPooledCovariance(t, e, m, thr);
    }
    static int32_t Param(void* t, uint64_t e, uint64_t m) {
        return _qesdSSCorParametrization(t, e, m, nullptr);
    }
    static int32_t Mah(void* t, uint64_t e, uint64_t m, double* r, const threader* thr) {
        return _qesdSSMahDistance(t, e, m, r, thr);
    }
};
template <>
struct Api<float> {
    static int32_t New(void** t, const int64_t* p, const int64_t* n, const int64_t* s,
                       const float* x, const int64_t* idx) {
        return _qessSSNewTask(t, p, n, s, x, nullptr, idx, 1);
    }
    static int32_t Edit(void* t, int64_t id, float* a) { return _qessSSEditTask(t, id, a); }
    static int32_t Partial(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qessSSPartialCovariance(t, e, m, thr);
    }
    static int32_t Pooled(void* t, uint64_t e, uint64_t m, const threader* thr) {
        return _qessSSPooledCovariance(t, e, m, thr);
    }
    static int32_t Param(void* t, uint64_t e, uint64_t m) {
        return _qessSSCorParametrization(t, e, m, nullptr);
    }
    static int32_t Mah(void* t, uint64_t e, uint64_t m, float* r, const threader* thr) {
        return _qessSSMahDistance(t, e, m, r, thr);
    }
};

} // namespace brenn::test::covariance

#endif
