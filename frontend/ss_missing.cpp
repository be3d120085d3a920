// Missing values in one call: the view's and the parameters' checks, the count of
// missing entries that sizes the imputations, a task over the view with the EM and
// imputation arrays, and the service's compute on the thread pool.
#include <cstring>

#include "brenn_ss_robust.h"
#include "frontend/export.h"
#include "frontend/ss_params.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

using brenn::fe::ParamRange;

constexpr ParamRange kMissingRanges[BRENN_SS_MISSING_PARAMS] = {
    {1, 0x1p53, false, false, true},        // EM iteration limit
    {0, HUGE_VAL, true, true, false},       // EM tolerance
    {1, 0x1p53, false, false, true},        // steps between imputations
    {0, 4294967295.0, false, false, true}}; // seed

// A NaN by its bits, so that a signalling one raises no flag.
inline bool IsNan(double v) {
    uint64_t b;
    std::memcpy(&b, &v, 8);
    return (b & 0x7fffffffffffffffULL) > 0x7ff0000000000000ULL;
}
inline bool IsNan(float v) {
    uint32_t b;
    std::memcpy(&b, &v, 4);
    return (b & 0x7fffffffu) > 0x7f800000u;
}

// The NaNs of the kept variables of a checked view.
template <class Matrix>
int64_t MissingCount(const Matrix* m) {
    int64_t count = 0;
    const bool rows = m->layout == BRENN_SS_VARIABLES_IN_ROWS;
    for (int64_t j = 0; j < m->p; ++j) {
        if (m->indices != nullptr && m->indices[j] == 0) continue;
        for (int64_t i = 0; i < m->n; ++i)
            count += IsNan(rows ? m->x[j * m->n + i] : m->x[i * m->p + j]);
    }
    return count;
}

template <class Matrix>
int Count(const Matrix* matrix, int64_t* count) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (count == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    *count = MissingCount(matrix);
    return BRENN_OK;
}

template <class T, class Matrix>
int Missing(const Matrix* matrix, int64_t count, const T* params, T* mean, T* cov,
            int64_t imputations, int64_t imputedSize, T* imputed, T* imputedMeans) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (mean == nullptr || cov == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckParams(count, params, kMissingRanges)) return s;
    if (imputations < 0) return BRENN_ERR_BAD_SIZE;
    if (imputations > 0 && (imputed == nullptr || imputedMeans == nullptr))
        return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    const int64_t k = MissingCount(matrix);
    if (imputations > 0 && (imputedSize < 0 || (k > 0 && imputations > imputedSize / k)))
        return BRENN_ERR_BAD_SIZE;
    int64_t meanCount = matrix->p, covCount = matrix->p * matrix->p;
    int64_t patternCount = imputations * k;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editMissing(
            task.get(), &count, const_cast<T*>(params), &patternCount, imputed, &imputations,
            imputedMeans, &meanCount, mean, &covCount, cov);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::missing(task.get(), BRENN_SS_MISSING_VALS,
                                                  BRENN_SS_METHOD_FAST, brenn_serv_pool_threader());
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_missing_count_f64(const brenn_ss_matrix_f64* matrix, int64_t* count) {
    return Count(matrix, count);
}
BRENN_FE_EXPORT int brenn_ss_missing_count_f32(const brenn_ss_matrix_f32* matrix, int64_t* count) {
    return Count(matrix, count);
}
BRENN_FE_EXPORT int brenn_ss_missing_values_f64(const brenn_ss_matrix_f64* matrix,
                                                int64_t param_count, const double* params,
                                                double* mean, double* cov, int64_t imputations,
                                                int64_t imputed_size, double* imputed,
                                                double* imputed_means) {
    return Missing(matrix, param_count, params, mean, cov, imputations, imputed_size, imputed,
                   imputed_means);
}
BRENN_FE_EXPORT int brenn_ss_missing_values_f32(const brenn_ss_matrix_f32* matrix,
                                                int64_t param_count, const float* params,
                                                float* mean, float* cov, int64_t imputations,
                                                int64_t imputed_size, float* imputed,
                                                float* imputed_means) {
    return Missing(matrix, param_count, params, mean, cov, imputations, imputed_size, imputed,
                   imputed_means);
}
