// The minimum covariance determinant estimate and BACON's outlier detection in one
// call each: the view's and the parameters' checks, a task over the view with the
// result arrays, and the service's compute on the thread pool.
#include "brenn_ss_robust.h"
#include "frontend/export.h"
#include "frontend/ss_params.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

using brenn::fe::ParamRange;

constexpr ParamRange kRobustRanges[BRENN_SS_ROBUST_PARAMS] = {
    {0, 1, true, false, false},           // h / n
    {1, 0x1p31, false, false, true},      // starts
    {1, 0x1p31, false, false, true},      // step limit
    {0, 0x1p32 - 1, false, false, true}}; // seed
constexpr ParamRange kOutlierRanges[BRENN_SS_OUTLIER_PARAMS] = {
    {0, 1, true, true, false},                                                         // alpha
    {BRENN_SS_BACON_INIT_MAHALANOBIS, BRENN_SS_BACON_INIT_MEDIAN, false, false, true}, // start
    {0, 0x1p31, true, false, false}};                                                  // c

template <class T, class Matrix>
int Robust(const Matrix* matrix, int64_t count, const T* params, T* mean, T* cov) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (mean == nullptr || cov == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckParams(count, params, kRobustRanges)) return s;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    const int64_t full = BRENN_SS_MATRIX_STORAGE_FULL;
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editRobust(task.get(), const_cast<int64_t*>(&full),
                                                     &count, const_cast<T*>(params), mean, cov);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::robust(
            task.get(), BRENN_SS_ROBUST_COV, BRENN_SS_METHOD_FASTMCD, brenn_serv_pool_threader());
    return status;
}

template <class T, class Matrix>
int Outliers(const Matrix* matrix, int64_t count, const T* params, T* weights) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (weights == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckParams(count, params, kOutlierRanges)) return s;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editOutliers(task.get(), &count, const_cast<T*>(params),
                                                       weights);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::outliers(
            task.get(), BRENN_SS_OUTLIERS, BRENN_SS_METHOD_BACON, brenn_serv_pool_threader());
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_robust_covariance_f64(const brenn_ss_matrix_f64* matrix,
                                                   int64_t param_count, const double* params,
                                                   double* mean, double* cov) {
    return Robust(matrix, param_count, params, mean, cov);
}
BRENN_FE_EXPORT int brenn_ss_robust_covariance_f32(const brenn_ss_matrix_f32* matrix,
                                                   int64_t param_count, const float* params,
                                                   float* mean, float* cov) {
    return Robust(matrix, param_count, params, mean, cov);
}
BRENN_FE_EXPORT int brenn_ss_outliers_f64(const brenn_ss_matrix_f64* matrix, int64_t param_count,
                                          const double* params, double* weights) {
    return Outliers(matrix, param_count, params, weights);
}
BRENN_FE_EXPORT int brenn_ss_outliers_f32(const brenn_ss_matrix_f32* matrix, int64_t param_count,
                                          const float* params, float* weights) {
    return Outliers(matrix, param_count, params, weights);
}
