// Covariance forms in one call each: partial covariance and correlation (the view's
// covariance made on the way), group and pooled covariance, the nearest correlation
// matrix and Mahalanobis distances. Each runs the view's and its own checks, makes a
// task with the arrays in full storage, and calls the service's compute.
#include <cmath>
#include <memory>
#include <new>

#include "brenn_ss_robust.h"
#include "frontend/export.h"
#include "frontend/ss_params.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

using brenn::fe::ParamRange;
using brenn::fe::SsEntries;

constexpr int64_t kFull = BRENN_SS_MATRIX_STORAGE_FULL;
// The service's editors take addresses of words they only read.
int64_t* Full() {
    return const_cast<int64_t*>(&kFull);
}

constexpr ParamRange kNearestRanges[BRENN_SS_NEAREST_PARAMS] = {
    {0, HUGE_VAL, true, true, false},       // tolerance
    {1, 2147483647.0, false, false, true}}; // iteration limit

template <class T, class Matrix>
int Partial(const Matrix* matrix, const int64_t* roles, T* partialCov, T* partialCor) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (roles == nullptr || (partialCov == nullptr && partialCor == nullptr))
        return BRENN_ERR_NULL_POINTER;
    for (int64_t j = 0; j < matrix->p; ++j)
        if (roles[j] != 1 && roles[j] != -1 && roles[j] != 0) return BRENN_ERR_BAD_ARGUMENT;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    // The view's mean and covariance, made by the service on the way.
    const int64_t p = matrix->p;
    std::unique_ptr<T[]> work(new (std::nothrow) T[p + p * p]);
    if (!work) return BRENN_ERR_NO_MEMORY;
    T accumWeight[2] = {0, 0};
    uint64_t estimates = BRENN_SS_MEAN | BRENN_SS_COV;
    if (partialCov != nullptr) estimates |= BRENN_SS_PARTIAL_COV;
    if (partialCor != nullptr) estimates |= BRENN_SS_PARTIAL_COR;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::editCovCor(task.get(), work.get(), work.get() + p, Full(), nullptr,
                                          nullptr);
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::edit(task.get(), BRENN_SS_ED_ACCUM_WEIGHT, accumWeight);
    if (status == BRENN_SS_OK)
        status =
            SsEntries<T>::editPartial(task.get(), const_cast<int64_t*>(roles), nullptr, nullptr,
                                      nullptr, nullptr, partialCov, Full(), partialCor, Full());
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::partial(task.get(), estimates, BRENN_SS_METHOD_FAST,
                                       brenn_serv_pool_threader());
    return status;
}

template <class T, class Matrix>
int Pooled(const Matrix* matrix, int64_t groups, const int64_t* labels, T* groupMeans, T* groupCovs,
           T* mean, T* cov) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (groups < 1) return BRENN_ERR_BAD_SIZE;
    const bool wantGroups = groupMeans != nullptr || groupCovs != nullptr;
    const bool wantPooled = mean != nullptr || cov != nullptr;
    if (labels == nullptr || (!wantGroups && !wantPooled) ||
        (wantGroups && (groupMeans == nullptr || groupCovs == nullptr)) ||
        (wantPooled && (mean == nullptr || cov == nullptr)))
        return BRENN_ERR_NULL_POINTER;
    for (int64_t i = 0; i < matrix->n; ++i)
        if (labels[i] < 0 || labels[i] >= groups) return BRENN_ERR_BAD_ARGUMENT;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    uint64_t estimates = 0;
    if (wantGroups) estimates |= BRENN_SS_GROUP_COV;
    if (wantPooled) estimates |= BRENN_SS_POOLED_COV;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::editPooled(task.get(), &groups, mean, cov,
                                          const_cast<int64_t*>(labels), groupMeans, groupCovs);
    if (status == BRENN_SS_OK)
        status = _qesiSSEditTask(task.get(), BRENN_SS_ED_POOLED_COV_STORAGE, Full());
    if (status == BRENN_SS_OK)
        status = _qesiSSEditTask(task.get(), BRENN_SS_ED_GROUP_COV_STORAGE, Full());
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::pooled(task.get(), estimates, BRENN_SS_METHOD_FAST,
                                      brenn_serv_pool_threader());
    return status;
}

template <class T>
int Nearest(int64_t p, const T* a, const T* weights, int64_t count, const T* params, T* x) {
    if (p < 1 || p > 46340) return BRENN_ERR_BAD_SIZE;
    if (a == nullptr || x == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckParams(count, params, kNearestRanges)) return s;
    for (int64_t j = 0; j < p; ++j) // the lower triangle, which the service reads
        for (int64_t l = 0; l <= j; ++l)
            if (!std::isfinite(a[j * p + l])) return BRENN_ERR_BAD_ARGUMENT;
    if (weights != nullptr)
        for (int64_t j = 0; j < p; ++j)
            if (!(weights[j] > 0 && std::isfinite(weights[j]))) return BRENN_ERR_BAD_ARGUMENT;
    // Tolerance and limit: the service takes both or neither.
    T b[2] = {sizeof(T) == 8 ? T(1e-12) : T(1e-5), T(10000)};
    for (int64_t k = 0; k < count; ++k)
        b[k] = params[k];
    brenn::fe::SsTask<T> task(&p);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::editParametrz(task.get(), const_cast<T*>(a), Full(), x, Full());
    if (status == BRENN_SS_OK && weights != nullptr)
        status = SsEntries<T>::edit(task.get(), BRENN_SS_ED_MULTIPLIER_A, weights);
    if (status == BRENN_SS_OK) status = SsEntries<T>::edit(task.get(), BRENN_SS_ED_MULTIPLIER_B, b);
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::corParam(task.get(), BRENN_SS_PARAMTR_COR, BRENN_SS_METHOD_FAST,
                                        brenn_serv_pool_threader());
    return status;
}

template <class T, class Matrix>
int Mahalanobis(const Matrix* matrix, const T* mean, const T* cov, T* distances) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (mean == nullptr || cov == nullptr || distances == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::editCovCor(task.get(), const_cast<T*>(mean), const_cast<T*>(cov),
                                          Full(), nullptr, nullptr);
    if (status == BRENN_SS_OK)
        status = SsEntries<T>::mahalanobis(task.get(), BRENN_SS_MAH_DIST, BRENN_SS_METHOD_FAST,
                                           distances, brenn_serv_pool_threader());
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_partial_covariance_f64(const brenn_ss_matrix_f64* matrix,
                                                    const int64_t* roles, double* partial_cov,
                                                    double* partial_cor) {
    return Partial(matrix, roles, partial_cov, partial_cor);
}
BRENN_FE_EXPORT int brenn_ss_partial_covariance_f32(const brenn_ss_matrix_f32* matrix,
                                                    const int64_t* roles, float* partial_cov,
                                                    float* partial_cor) {
    return Partial(matrix, roles, partial_cov, partial_cor);
}
BRENN_FE_EXPORT int brenn_ss_pooled_covariance_f64(const brenn_ss_matrix_f64* matrix,
                                                   int64_t groups, const int64_t* labels,
                                                   double* group_means, double* group_covs,
                                                   double* mean, double* cov) {
    return Pooled(matrix, groups, labels, group_means, group_covs, mean, cov);
}
BRENN_FE_EXPORT int brenn_ss_pooled_covariance_f32(const brenn_ss_matrix_f32* matrix,
                                                   int64_t groups, const int64_t* labels,
                                                   float* group_means, float* group_covs,
                                                   float* mean, float* cov) {
    return Pooled(matrix, groups, labels, group_means, group_covs, mean, cov);
}
BRENN_FE_EXPORT int brenn_ss_nearest_correlation_f64(int64_t p, const double* a,
                                                     const double* weights, int64_t param_count,
                                                     const double* params, double* x) {
    return Nearest(p, a, weights, param_count, params, x);
}
BRENN_FE_EXPORT int brenn_ss_nearest_correlation_f32(int64_t p, const float* a,
                                                     const float* weights, int64_t param_count,
                                                     const float* params, float* x) {
    return Nearest(p, a, weights, param_count, params, x);
}
BRENN_FE_EXPORT int brenn_ss_mahalanobis_f64(const brenn_ss_matrix_f64* matrix, const double* mean,
                                             const double* cov, double* distances) {
    return Mahalanobis(matrix, mean, cov, distances);
}
BRENN_FE_EXPORT int brenn_ss_mahalanobis_f32(const brenn_ss_matrix_f32* matrix, const float* mean,
                                             const float* cov, float* distances) {
    return Mahalanobis(matrix, mean, cov, distances);
}
