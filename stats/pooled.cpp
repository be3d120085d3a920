// Pooled and group covariance. Each observation carries a group label 0 to g - 1 (the
// task's `pooledStorage` words). Per group: the mean and the unbiased covariance
// (cross-products of the deviations over n_k - 1). Pooled: the overall mean and the
// sum of the groups' cross-products over n - g. The observations are ordered by group
// (a stable counting sort of the labels); one group is one unit of work for the
// threader, its cross-products formed in fixed blocks of deviations by the library's
// own rank-k update (no BLAS inside the workers), so the results do not depend on the
// thread count. The pooled sums run over the
// groups in label order on the calling thread.
#include <math.h>
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/dense.h"
#include "stats/rank_update.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

constexpr int64_t kBlock = 256;

template <typename T>
struct PooledJob {
    Observations<T> o;
    const int64_t* act;
    int64_t q;
    const int64_t* start; // g + 1 offsets into `order`
    const int64_t* order; // the observations, group by group
    T* sums;              // g x q
    T* cross;             // g x (q x q), lower triangles
};

template <typename T>
T Value(const Observations<T>& o, int64_t i, int64_t j) {
    return o.variableRows ? o.x[j * o.n + i] : o.x[i * o.p + j];
}

template <typename T>
int32_t GroupWork(VariableLoop* loop, int64_t k, void* scratch) {
    const PooledJob<T>& job = *static_cast<const PooledJob<T>*>(loop->detail);
    const int64_t q = job.q, i0 = job.start[k], i1 = job.start[k + 1];
    T* sum = job.sums + k * q;
    T* c = job.cross + k * q * q;
    T* d = static_cast<T*>(scratch);
    T* mean = d + q * kBlock;
    for (int64_t a = 0; a < q; ++a)
        sum[a] = T(0);
    for (int64_t r = i0; r < i1; ++r)
        for (int64_t a = 0; a < q; ++a)
            sum[a] += Value(job.o, job.order[r], job.act[a]);
    for (int64_t a = 0; a < q; ++a)
        mean[a] = sum[a] / T(i1 - i0);
    memset(static_cast<void*>(c), 0, q * q * sizeof(T));
    for (int64_t r0 = i0; r0 < i1; r0 += kBlock) {
        const int64_t m = i1 - r0 < kBlock ? i1 - r0 : kBlock;
        for (int64_t i = 0; i < m; ++i)
            for (int64_t a = 0; a < q; ++a)
                d[a + i * q] = Value(job.o, job.order[r0 + i], job.act[a]) - mean[a];
        LowerCrossUpdate(q, m, d, d, c);
    }
    return 0;
}

inline int64_t FormSize(int64_t form, int64_t p) {
    return form == BRENN_SS_MATRIX_STORAGE_FULL ? p * p : p * (p + 1) / 2;
}

template <typename T>
T Reciprocal(int64_t count) {
    return count > 0 ? T(1) / T(count) : T(NAN);
}

template <typename T>
int32_t Pooled(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    const bool wantPooled = (estimates & BRENN_SS_POOLED_COV) != 0;
    const bool wantGroups = (estimates & BRENN_SS_GROUP_COV) != 0;
    if (!wantPooled && !wantGroups) return BRENN_SS_OK;
    PooledJob<T> job{};
    if (int32_t s = CheckObservations(task, &job.o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    int64_t g = 0;
    if (task->pooledGroupCount == nullptr ||
        (g = ReadIndexWord(task, task->pooledGroupCount)) <= 0 || task->pooledStorage == nullptr)
        return BRENN_SS_ERROR_POOLED_GROUPS;
    int64_t groupForm = 0, pooledForm = 0;
    if (wantGroups) {
        if (task->pooledMean == nullptr) return BRENN_SS_ERROR_POOLED_MEAN_MISSING;
        if (int32_t s = CheckMatrixArray(task, task->pooledCov, task->pooledCovStorage,
                                         BRENN_SS_ERROR_POOLED_COV_MISSING, &groupForm))
            return s;
    }
    if (wantPooled) {
        if (task->pooledOutMean == nullptr) return BRENN_SS_ERROR_POOLED_OUT_MEAN_MISSING;
        if (int32_t s = CheckMatrixArray(task, task->pooledOutCov, task->pooledOutCovStorage,
                                         BRENN_SS_ERROR_POOLED_OUT_COV_MISSING, &pooledForm))
            return s;
    }
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    const int64_t n = job.o.n, p = job.o.p;
    if (p > INT32_MAX) return BRENN_SS_ERROR_DIMENSION;
    for (int64_t i = 0; i < n; ++i) {
        const int64_t label = ReadIndexWord(task, task->pooledStorage, i);
        if (label < 0 || label >= g) return BRENN_SS_ERROR_POOLED_GROUPS;
    }
    // One block: active variables, group offsets, the order, the group sums and
    // cross-products and the pooled matrix.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) || !AddBytesFor(&bytes, g + 1, sizeof(int64_t)) ||
        !AddBytesFor(&bytes, n, sizeof(int64_t)) || !AddBytesFor(&bytes, g, p * sizeof(T)) ||
        !AddBytesFor(&bytes, g + 1, p * p * sizeof(T)) || p * p > INT64_MAX / g)
        return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
    if (act == nullptr) return BRENN_SS_ERROR_ALLOC;
    const int64_t q = ActiveVariables(task, p, act);
    int64_t* start = act + p;
    int64_t* order = start + g + 1;
    T* sums = reinterpret_cast<T*>(order + n);
    T* cross = sums + g * q;
    T* total = cross + g * q * q;
    memset(start, 0, (g + 1) * sizeof(int64_t));
    for (int64_t i = 0; i < n; ++i)
        ++start[ReadIndexWord(task, task->pooledStorage, i) + 1];
    for (int64_t k = 0; k < g; ++k)
        start[k + 1] += start[k];
    // `order` filled by group, each label's slot advancing from its start.
    for (int64_t i = 0; i < n; ++i)
        order[start[ReadIndexWord(task, task->pooledStorage, i)]++] = i;
    for (int64_t k = g; k > 0; --k)
        start[k] = start[k - 1];
    start[0] = 0;
    job.act = act;
    job.q = q;
    job.start = start;
    job.order = order;
    job.sums = sums;
    job.cross = cross;
    int32_t status = BRENN_SS_OK;
    size_t scratch = 0;
    if (q > 0) {
        if (!AddBytesFor(&scratch, q * (kBlock + 1), sizeof(T)))
            status = BRENN_SS_ERROR_ALLOC;
        else
            status = ForEachItem(nullptr, g, scratch, thr, GroupWork<T>, &job);
    }
    if (status == BRENN_SS_OK && q > 0) {
        if (wantGroups) {
            T* means = static_cast<T*>(task->pooledMean);
            T* covs = static_cast<T*>(task->pooledCov);
            const int64_t size = FormSize(groupForm, p);
            for (int64_t k = 0; k < g; ++k) {
                const int64_t count = start[k + 1] - start[k];
                for (int64_t a = 0; a < q; ++a)
                    means[k * p + act[a]] = sums[k * q + a] / T(count);
                StoreMatrix(covs + k * size, groupForm, p, act, q, cross + k * q * q,
                            Reciprocal<T>(count - 1));
            }
        }
        if (wantPooled) {
            T* mean = static_cast<T*>(task->pooledOutMean);
            for (int64_t a = 0; a < q; ++a) {
                T s = T(0);
                for (int64_t k = 0; k < g; ++k)
                    s += sums[k * q + a];
                mean[act[a]] = s / T(n);
            }
            memset(static_cast<void*>(total), 0, q * q * sizeof(T));
            for (int64_t k = 0; k < g; ++k)
                for (int64_t e = 0; e < q * q; ++e)
                    total[e] += cross[k * q * q + e];
            StoreMatrix(static_cast<T*>(task->pooledOutCov), pooledForm, p, act, q, total,
                        Reciprocal<T>(n - g));
        }
    }
    brenn_serv_deallocate(act);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSPooledCovariance(void* task, uint64_t estimates, uint64_t method,
                                             const threader* thr) {
    return brenn::stats::Pooled<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSPooledCovariance(void* task, uint64_t estimates, uint64_t method,
                                             const threader* thr) {
    return brenn::stats::Pooled<float>(task, estimates, method, thr);
}
