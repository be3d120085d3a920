// Exact quantiles and order statistics of each active variable, one variable a worker
// over the threader's loop. Each worker copies its variable into a compact scratch
// (the caller's x is never written), sorts it for the order statistics or selects in
// it for the quantiles (quantile_core.h), and writes variable v's quantile of order k
// to quantiles[v * m + k], its order statistics in the layout of their storage word.
#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/quantile_core.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

template <typename T>
struct QuantileJob {
    Observations<T> o;
    const T* orders;
    int64_t m;
    T* quantiles;       // null when not asked
    T* orderStatistics; // null when not asked
    bool statisticsRows;
};

template <typename T>
int32_t QuantileWorker(VariableLoop* loop, int64_t j, void* scratch) {
    const QuantileJob<T>& q = *static_cast<const QuantileJob<T>*>(loop->detail);
    const int64_t n = q.o.n;
    int64_t* fences = static_cast<int64_t*>(scratch);
    T* s = reinterpret_cast<T*>(fences + FenceCapacity(q.m));
    GatherVariable(q.o, j, s);
    if (q.orderStatistics != nullptr) {
        QuickSort(Contiguous<T>{s}, n);
        if (q.statisticsRows) {
            memcpy(q.orderStatistics + j * n, s, n * sizeof(T));
        } else {
            T* out = q.orderStatistics + j;
            for (int64_t i = 0; i < n; ++i)
                out[i * q.o.p] = s[i];
        }
    }
    if (q.quantiles != nullptr)
        QuantilesOf(s, n, q.orders, q.m, q.quantiles + j * q.m, fences,
                    q.orderStatistics != nullptr);
    return 0;
}

template <typename T>
int32_t Quantiles(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    const bool wantQuantiles = (estimates & BRENN_SS_QUANTS) != 0;
    const bool wantStatistics = (estimates & BRENN_SS_ORDER_STATS) != 0;
    QuantileJob<T> job{};
    if (int32_t s = CheckObservations(task, &job.o)) return s;
    if (wantStatistics && task->orderStatisticsStorage == nullptr)
        return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (wantStatistics) {
        int64_t storage = ReadIndexWord(task, task->orderStatisticsStorage);
        if (!KnownLayout(storage)) return BRENN_SS_ERROR_STORAGE;
        job.statisticsRows = storage == BRENN_SS_MATRIX_STORAGE_ROWS;
    }
    if (wantQuantiles) {
        if (task->quantileOrders == nullptr) return BRENN_SS_ERROR_QUANTILE_ORDERS_MISSING;
        if (task->quantiles == nullptr) return BRENN_SS_ERROR_QUANTILES_MISSING;
        if (task->quantileOrderCount == nullptr ||
            (job.m = ReadIndexWord(task, task->quantileOrderCount)) < 0)
            return BRENN_SS_ERROR_QUANTILE_ORDER_COUNT;
        job.orders = static_cast<const T*>(task->quantileOrders);
        // An order outside [0, 1] (or NaN) would name an element outside the variable.
        for (int64_t k = 0; k < job.m; ++k)
            if (!(job.orders[k] >= T(0) && job.orders[k] <= T(1)))
                return BRENN_SS_ERROR_QUANTILE_ORDER_COUNT;
        job.quantiles = static_cast<T*>(task->quantiles);
    }
    if (wantStatistics) {
        if (task->orderStatistics == nullptr) return BRENN_SS_ERROR_ORDER_STATISTICS_MISSING;
        job.orderStatistics = static_cast<T*>(task->orderStatistics);
    }
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    if (!wantStatistics && (!wantQuantiles || job.m == 0)) return BRENN_SS_OK;
    // A slot holds the fences of the m orders, then the variable.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, FenceCapacity(job.m), sizeof(int64_t)) ||
        !AddBytesFor(&bytes, job.o.n, sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    return ForEachVariable(task, job.o.p, bytes, thr, QuantileWorker<T>, &job);
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSQuantiles(void* task, uint64_t estimates, uint64_t method,
                                      const threader* thr) {
    return brenn::stats::Quantiles<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSQuantiles(void* task, uint64_t estimates, uint64_t method,
                                      const threader* thr) {
    return brenn::stats::Quantiles<float>(task, estimates, method, thr);
}
