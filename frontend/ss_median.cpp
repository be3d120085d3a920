// The median absolute deviation and the weighted median in one call each: the view's
// checks, a task over the view (with unit weights made here for a weighted median of
// an unweighted view), and the service's compute.
#include <memory>
#include <new>

#include "brenn_ss_order.h"
#include "frontend/export.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

template <class T, class Matrix>
int Mad(const Matrix* matrix, T* mad) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (mad == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::mad(task.get(), BRENN_SS_MDAD, BRENN_SS_METHOD_FAST, mad,
                                              brenn_serv_pool_threader());
    return status;
}

template <class T, class Matrix>
int WeightedMedian(const Matrix* matrix, T* median) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (median == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    Matrix view = *matrix;
    std::unique_ptr<T[]> ones;
    if (view.weights == nullptr) {
        ones.reset(new (std::nothrow) T[view.n]);
        if (!ones) return BRENN_ERR_NO_MEMORY;
        for (int64_t i = 0; i < view.n; ++i)
            ones[i] = T(1);
        view.weights = ones.get();
    }
    brenn::fe::SsTask<T> task(&view);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editQuantiles(task.get(), nullptr, nullptr, median,
                                                        nullptr, nullptr);
    if (status == BRENN_SS_OK) status = brenn::fe::SsEntries<T>::weightedMedian(task.get());
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_mad_f64(const brenn_ss_matrix_f64* matrix, double* mad) {
    return Mad(matrix, mad);
}
BRENN_FE_EXPORT int brenn_ss_mad_f32(const brenn_ss_matrix_f32* matrix, float* mad) {
    return Mad(matrix, mad);
}
BRENN_FE_EXPORT int brenn_ss_weighted_median_f64(const brenn_ss_matrix_f64* matrix,
                                                 double* median) {
    return WeightedMedian(matrix, median);
}
BRENN_FE_EXPORT int brenn_ss_weighted_median_f32(const brenn_ss_matrix_f32* matrix, float* median) {
    return WeightedMedian(matrix, median);
}
