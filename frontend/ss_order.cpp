// Quantiles, order statistics and the sort in one call each: the view's and the
// orders' checks, a task over the view with the result arrays, and the service's
// order compute on the thread pool.
#include "brenn_ss_order.h"
#include "frontend/export.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace {

template <class T, class Matrix>
int Quantiles(const Matrix* matrix, int64_t m, const T* orders, T* quantiles) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (m < 1) return BRENN_ERR_BAD_SIZE;
    if (orders == nullptr || quantiles == nullptr) return BRENN_ERR_NULL_POINTER;
    for (int64_t k = 0; k < m; ++k)
        if (!(orders[k] >= 0 && orders[k] <= 1)) return BRENN_ERR_BAD_ARGUMENT;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editQuantiles(task.get(), &m, const_cast<T*>(orders),
                                                        quantiles, nullptr, nullptr);
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::quantiles(
            task.get(), BRENN_SS_QUANTS, BRENN_SS_METHOD_FAST, brenn_serv_pool_threader());
    return status;
}

template <class T, class Matrix>
int OrderStatistics(const Matrix* matrix, T* sorted) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (sorted == nullptr) return BRENN_ERR_NULL_POINTER;
    if (sorted == matrix->x) return BRENN_ERR_BAD_ARGUMENT;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::editQuantiles(
            task.get(), nullptr, nullptr, nullptr, sorted, const_cast<int64_t*>(task.storage()));
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::quantiles(
            task.get(), BRENN_SS_ORDER_STATS, BRENN_SS_METHOD_FAST, brenn_serv_pool_threader());
    return status;
}

// The sort may write x itself, which the service allows only without indices.
template <class T, class Matrix>
int Sort(const Matrix* matrix, T* sorted) {
    if (int s = brenn::fe::CheckMatrix(matrix)) return s;
    if (sorted == nullptr) return BRENN_ERR_NULL_POINTER;
    if (sorted == matrix->x && matrix->indices != nullptr) return BRENN_ERR_BAD_ARGUMENT;
    if (int s = brenn::fe::CheckWeights(matrix)) return s;
    brenn::fe::SsTask<T> task(matrix);
    int status = task.status();
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::edit(task.get(), BRENN_SS_ED_SORTED_OBSERV, sorted);
    if (status == BRENN_SS_OK)
        status = _qesiSSEditTask(task.get(), BRENN_SS_ED_SORTED_OBSERV_STORAGE, task.storage());
    if (status == BRENN_SS_OK)
        status = brenn::fe::SsEntries<T>::sort(task.get(), BRENN_SS_SORTED_OBSERV,
                                               BRENN_SS_METHOD_FAST, brenn_serv_pool_threader());
    return status;
}

} // namespace

BRENN_FE_EXPORT int brenn_ss_sort_f64(const brenn_ss_matrix_f64* matrix, double* sorted) {
    return Sort(matrix, sorted);
}
BRENN_FE_EXPORT int brenn_ss_sort_f32(const brenn_ss_matrix_f32* matrix, float* sorted) {
    return Sort(matrix, sorted);
}
BRENN_FE_EXPORT int brenn_ss_quantiles_f64(const brenn_ss_matrix_f64* matrix, int64_t m,
                                           const double* orders, double* quantiles) {
    return Quantiles(matrix, m, orders, quantiles);
}
BRENN_FE_EXPORT int brenn_ss_quantiles_f32(const brenn_ss_matrix_f32* matrix, int64_t m,
                                           const float* orders, float* quantiles) {
    return Quantiles(matrix, m, orders, quantiles);
}
BRENN_FE_EXPORT int brenn_ss_order_statistics_f64(const brenn_ss_matrix_f64* matrix,
                                                  double* sorted) {
    return OrderStatistics(matrix, sorted);
}
BRENN_FE_EXPORT int brenn_ss_order_statistics_f32(const brenn_ss_matrix_f32* matrix,
                                                  float* sorted) {
    return OrderStatistics(matrix, sorted);
}
