// The weighted median of each active variable, into quantiles[v]. The values are
// sorted with their weights travelling along (the sort of qsort.h on pairs), the
// cumulative weight c is run up to the first index k where it reaches half the total
// weight S, and the result is read there:
//   c above half: prev = c - w[k]; x[k] when prev is at or below 0, or when n is odd
//     and prev is (S - w[k]) / 2; otherwise the value between the nearest positive-
//     weight element below k (y) and x[k], at (half - prev) / w[k] of the way.
//   c at half: x[k] when n is odd or k is the last index; otherwise the mean of x[k]
//     and the next value of positive weight (or of the last value, if none has).
// n counts zero-weight observations too, so adding one can change the odd-n branch.
// With unit weights this is the plain median: the middle value, or the mean of the two.
#include "brenn_stats.h"
#include "frame/export.h"
#include "stats/qsort.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

template <typename T>
T WeightedMedianOf(WeightedValue<T>* v, int64_t n, T total) {
    QuickSort(Contiguous<WeightedValue<T>>{v}, n);
    const T half = total * T(0.5);
    T c = 0;
    int64_t k = 0;
    for (; k < n; ++k) {
        c += v[k].w;
        if (c >= half) break;
    }
    if (k == n) return v[n - 1].x; // NaN weights: c never reached half
    const bool odd = (n & 1) != 0;
    if (c > half) {
        const T prev = c - v[k].w;
        if (prev <= T(0)) return v[k].x;
        int64_t below = k - 1;
        while (below >= 0 && !(v[below].w > T(0)))
            --below;
        if (below < 0) return v[k].x; // only with negative weights
        if (odd && prev == (total - v[k].w) * T(0.5)) return v[k].x;
        const T y = v[below].x;
        return y + (half - prev) / v[k].w * (v[k].x - y);
    }
    if (odd || k == n - 1) return v[k].x;
    int64_t next = k + 1;
    while (next < n && !(v[next].w > T(0)))
        ++next;
    return (v[k].x + v[next < n ? next : n - 1].x) * T(0.5);
}

template <typename T>
int32_t WeightedMedian(void* handle) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    Observations<T> o;
    if (int32_t s = CheckObservations(task, &o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (task->weights == nullptr) return BRENN_SS_ERROR_WEIGHTS_MISSING;
    if (task->quantiles == nullptr) return BRENN_SS_ERROR_QUANTILES_MISSING;
    const T* w = static_cast<const T*>(task->weights);
    T* result = static_cast<T*>(task->quantiles);
    size_t bytes;
    if (!BytesFor(o.n, sizeof(WeightedValue<T>), &bytes)) return BRENN_SS_ERROR_ALLOC;
    auto* pairs = static_cast<WeightedValue<T>*>(brenn_serv_allocate(bytes, 128));
    if (pairs == nullptr) return BRENN_SS_ERROR_ALLOC;
    T total = 0;
    for (int64_t i = 0; i < o.n; ++i)
        total += w[i];
    for (int64_t j = 0; j < o.p; ++j) {
        if (task->indices != nullptr && ReadIndexWord(task, task->indices, j) == 0) continue;
        const T* x = o.variableRows ? o.x + j * o.n : o.x + j;
        const int64_t step = o.variableRows ? 1 : o.p;
        for (int64_t i = 0; i < o.n; ++i)
            pairs[i] = {x[i * step], w[i]};
        result[j] = WeightedMedianOf(pairs, o.n, total);
    }
    brenn_serv_deallocate(pairs);
    return BRENN_SS_OK;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSWMedian(void* task) {
    return brenn::stats::WeightedMedian<double>(task);
}

BRENN_EXPORT int32_t _qessSSWMedian(void* task) {
    return brenn::stats::WeightedMedian<float>(task);
}
