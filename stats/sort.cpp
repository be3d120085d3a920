// The sorted observations: each active variable's values, ascending, in the result
// matrix in the layout of its storage word. The values are copied into the result
// first (unless the result is x itself) and sorted there in place: a contiguous
// variable by the plain sort, a strided one by the strided sort.
#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/qsort.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

template <typename T>
struct SortJob {
    Observations<T> o;
    T* out;
    bool outRows;
};

template <typename T>
int32_t SortWorker(VariableLoop* loop, int64_t j, void*) {
    const SortJob<T>& s = *static_cast<const SortJob<T>*>(loop->detail);
    const int64_t n = s.o.n, p = s.o.p;
    if (s.outRows) {
        T* v = s.out + j * n;
        if (v != s.o.x + j * n) GatherVariable(s.o, j, v);
        QuickSort(Contiguous<T>{v}, n);
        return 0;
    }
    T* v = s.out + j;
    if (s.out != s.o.x) {
        if (s.o.variableRows) {
            const T* from = s.o.x + j * n;
            for (int64_t i = 0; i < n; ++i)
                v[i * p] = from[i];
        } else {
            for (int64_t i = 0; i < n; ++i)
                v[i * p] = s.o.x[i * p + j];
        }
    }
    QuickSort(Strided<T>{v, p}, n);
    return 0;
}

template <typename T>
int32_t Sort(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_SORTED_OBSERV) == 0) return BRENN_SS_OK;
    SortJob<T> job{};
    if (int32_t s = CheckObservations(task, &job.o)) return s;
    if (task->sortedObservations == nullptr) return BRENN_SS_ERROR_SORTED_MISSING;
    if (task->sortedStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    const int64_t in = ReadIndexWord(task, task->observationStorage);
    const int64_t out = ReadIndexWord(task, task->sortedStorage);
    if (!KnownLayout(in) || !KnownLayout(out)) return BRENN_SS_ERROR_STORAGE;
    job.out = static_cast<T*>(task->sortedObservations);
    job.outRows = out == BRENN_SS_MATRIX_STORAGE_ROWS;
    // In place, a variable would be read from one layout while another is written over
    // it; with indices, the kept variables' places would have to be found as well.
    if (job.out == job.o.x && (in != out || task->indices != nullptr))
        return BRENN_SS_ERROR_SORT_STORAGE;
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    return ForEachVariable(task, job.o.p, 0, thr, SortWorker<T>, &job);
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSSort(void* task, uint64_t estimates, uint64_t method,
                                 const threader* thr) {
    return brenn::stats::Sort<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSSort(void* task, uint64_t estimates, uint64_t method,
                                 const threader* thr) {
    return brenn::stats::Sort<float>(task, estimates, method, thr);
}
