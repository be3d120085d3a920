// Minimum and maximum: the caller's arrays are updated, not set, so successive blocks
// accumulate. With indices the extremes of the kept variables are gathered into a
// compact copy first, so that the loops over observations carry no test of the index.
#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/basic_finish.h"
#include "stats/task.h"

namespace brenn::stats {
namespace {

template <typename T>
inline T Lower(T a, T b) {
    return b < a ? b : a; // a NaN observation never replaces a value
}
template <typename T>
inline T Higher(T a, T b) {
    return b > a ? b : a;
}

template <typename T>
void ScanRows(const T* x, int64_t n, const int64_t* act, int64_t q, T* lo, T* hi) {
    // One variable's observations are contiguous: one pass each.
    for (int64_t c = 0; c < q; ++c) {
        const T* v = x + act[c] * n;
        T a = lo[c], b = hi[c];
        for (int64_t i = 0; i < n; ++i) {
            a = Lower(a, v[i]);
            b = Higher(b, v[i]);
        }
        lo[c] = a;
        hi[c] = b;
    }
}

template <typename T>
void ScanColumns(const T* x, int64_t n, int64_t p, const int64_t* act, int64_t q, T* lo, T* hi) {
    for (int64_t i = 0; i < n; ++i) {
        const T* row = x + i * p;
        for (int64_t c = 0; c < q; ++c) {
            T v = row[act[c]];
            lo[c] = Lower(lo[c], v);
            hi[c] = Higher(hi[c], v);
        }
    }
}

template <typename T>
int32_t Minmax(void* handle, uint64_t estimates, uint64_t method) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* task = static_cast<SSTask*>(handle);
    if (task->observationStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    int64_t layout = ReadIndexWord(task, task->observationStorage);
    if ((layout & (BRENN_SS_MATRIX_STORAGE_ROWS | BRENN_SS_MATRIX_STORAGE_COLS)) == 0)
        return BRENN_SS_ERROR_STORAGE;
    const bool wantMin = (estimates & BRENN_SS_MIN) != 0, wantMax = (estimates & BRENN_SS_MAX) != 0;
    if (wantMin && task->minimum == nullptr) return BRENN_SS_ERROR_MINIMUM_MISSING;
    if (wantMax && task->maximum == nullptr) return BRENN_SS_ERROR_MAXIMUM_MISSING;
    if ((method & (BRENN_SS_METHOD_FAST | BRENN_SS_METHOD_ONE_PASS)) == 0)
        return BRENN_SS_ERROR_METHOD;
    if (!wantMin && !wantMax) return BRENN_SS_OK;
    int64_t p = 0, n = 0;
    if (task->dimension == nullptr || (p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    if (task->observationCount == nullptr || (n = ReadIndexWord(task, task->observationCount)) <= 0)
        return BRENN_SS_ERROR_OBSERVATION_COUNT;
    if (task->observations == nullptr) return BRENN_SS_ERROR_OBSERVATIONS_MISSING;

    // The active variables, then the running extremes of each.
    size_t bytes;
    if (!BytesFor(p, sizeof(int64_t) + 2 * sizeof(T), &bytes)) return BRENN_SS_ERROR_ALLOC;
    void* memory = brenn_serv_allocate(bytes, 128);
    if (memory == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(memory);
    int64_t q = ActiveVariables(task, p, act);
    T* lo = reinterpret_cast<T*>(act + p);
    T* hi = lo + q;
    T* minimum = static_cast<T*>(task->minimum);
    T* maximum = static_cast<T*>(task->maximum);
    // An array that isn't wanted is scanned against its own copy and not written back.
    for (int64_t c = 0; c < q; ++c) {
        lo[c] = wantMin ? minimum[act[c]] : T(0);
        hi[c] = wantMax ? maximum[act[c]] : T(0);
    }
    const T* x = static_cast<const T*>(task->observations);
    if (layout & BRENN_SS_MATRIX_STORAGE_ROWS)
        ScanRows(x, n, act, q, lo, hi);
    else
        ScanColumns(x, n, p, act, q, lo, hi);
    for (int64_t c = 0; c < q; ++c) {
        if (wantMin) minimum[act[c]] = lo[c];
        if (wantMax) maximum[act[c]] = hi[c];
    }
    brenn_serv_deallocate(memory);
    return BRENN_SS_OK;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSMinmax(void* task, uint64_t estimates, uint64_t method) {
    return brenn::stats::Minmax<double>(task, estimates, method);
}

BRENN_EXPORT int32_t _qessSSMinmax(void* task, uint64_t estimates, uint64_t method) {
    return brenn::stats::Minmax<float>(task, estimates, method);
}
