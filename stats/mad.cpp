// The median absolute deviation, unscaled: for each active variable the median of
// |x - median(x)|. Both medians are the quantile of order 0.5 by the exact-quantile
// path (quantile_core.h) on a compact scratch copy of the variable, so the caller's
// observations are never written.
#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/quantile_core.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

template <typename T>
struct MadJob {
    Observations<T> o;
    T* result;
};

template <typename T>
int32_t MadWorker(VariableLoop* loop, int64_t j, void* scratch) {
    const MadJob<T>& job = *static_cast<const MadJob<T>*>(loop->detail);
    const int64_t n = job.o.n;
    int64_t* fence = static_cast<int64_t*>(scratch);
    T* s = reinterpret_cast<T*>(fence + FenceCapacity(1));
    GatherVariable(job.o, j, s);
    const T half = T(0.5);
    T median;
    QuantilesOf(s, n, &half, 1, &median, fence, false);
    for (int64_t i = 0; i < n; ++i) {
        T d = s[i] - median;
        s[i] = d < T(0) ? -d : d;
    }
    QuantilesOf(s, n, &half, 1, job.result + j, fence, false);
    return 0;
}

template <typename T>
int32_t Mad(void* handle, uint64_t estimates, uint64_t method, T* result, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_MDAD) == 0) return BRENN_SS_OK;
    MadJob<T> job{};
    if (int32_t s = CheckObservations(task, &job.o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (result == nullptr) return BRENN_SS_ERROR_MAD_MISSING;
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    job.result = result;
    // A slot: the fences of one order, then the variable.
    size_t bytes = FenceCapacity(1) * sizeof(int64_t);
    if (!AddBytesFor(&bytes, job.o.n, sizeof(T))) return BRENN_SS_ERROR_ALLOC;
    return ForEachVariable(task, job.o.p, bytes, thr, MadWorker<T>, &job);
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSMAD(void* task, uint64_t estimates, uint64_t method, double* result,
                                const threader* thr) {
    return brenn::stats::Mad<double>(task, estimates, method, result, thr);
}

BRENN_EXPORT int32_t _qessSSMAD(void* task, uint64_t estimates, uint64_t method, float* result,
                                const threader* thr) {
    return brenn::stats::Mad<float>(task, estimates, method, result, thr);
}
