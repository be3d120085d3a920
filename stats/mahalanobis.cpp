// Mahalanobis distances of the observations from the task's `mean` under its
// `covariance`: d_i = sqrt((x_i - m)' S^-1 (x_i - m)) over the active variables. S is
// factored once, S = L L', and d_i = |L^-1 (x_i - m)|: no inverse is formed. The
// observations go in fixed blocks of kBlock, each a matrix of deviations solved with L
// at once (a triangular solve with many right-hand sides), so a block's results do not
// depend on which thread ran it.
#include <math.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/dense.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

constexpr int64_t kBlock = 256;

template <typename T>
struct MahJob {
    Observations<T> o;
    const int64_t* act;
    int64_t q;
    const T* mean; // compact: q values
    const T* l;    // q x q lower factor
    T* result;
};

// Block b: the deviations of its observations as the columns of a q x m matrix.
template <typename T>
int32_t MahBlock(VariableLoop* loop, int64_t b, void* scratch) {
    const MahJob<T>& job = *static_cast<const MahJob<T>*>(loop->detail);
    const int64_t n = job.o.n, q = job.q, i0 = b * kBlock;
    const int64_t m = n - i0 < kBlock ? n - i0 : kBlock;
    T* d = static_cast<T*>(scratch);
    if (job.o.variableRows) {
        for (int64_t a = 0; a < q; ++a) {
            const T* v = job.o.x + job.act[a] * n + i0;
            const T c = job.mean[a];
            for (int64_t i = 0; i < m; ++i)
                d[a + i * q] = v[i] - c;
        }
    } else {
        for (int64_t i = 0; i < m; ++i) {
            const T* row = job.o.x + (i0 + i) * job.o.p;
            T* col = d + i * q;
            for (int64_t a = 0; a < q; ++a)
                col[a] = row[job.act[a]] - job.mean[a];
        }
    }
    SolveLower<T>(static_cast<int>(q), static_cast<int>(m), job.l, d, static_cast<int>(q));
    for (int64_t i = 0; i < m; ++i) {
        const T* col = d + i * q;
        T s = T(0);
        for (int64_t a = 0; a < q; ++a)
            s += col[a] * col[a];
        job.result[i0 + i] = sqrt(s);
    }
    return 0;
}

template <typename T>
int32_t MahDistance(void* handle, uint64_t estimates, uint64_t method, T* result,
                    const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_MAH_DIST) == 0) return BRENN_SS_OK;
    MahJob<T> job{};
    if (int32_t s = CheckObservations(task, &job.o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (task->mean == nullptr) return BRENN_SS_ERROR_MEAN_MISSING;
    int64_t storage = 0;
    if (int32_t s = CheckMatrixArray(task, task->covariance, task->covStorage,
                                     BRENN_SS_ERROR_COV_MISSING, &storage))
        return s;
    if (result == nullptr) return BRENN_SS_ERROR_MAHALANOBIS_MISSING;
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    const int64_t p = job.o.p;
    if (p > INT32_MAX) return BRENN_SS_ERROR_DIMENSION;
    // The active variables, their means and their covariance's factor.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) || !AddBytesFor(&bytes, p, sizeof(T)) ||
        !AddBytesFor(&bytes, p * p, sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    char* block = static_cast<char*>(brenn_serv_allocate(bytes, 128));
    if (block == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = reinterpret_cast<int64_t*>(block);
    T* mean = reinterpret_cast<T*>(act + p);
    T* l = mean + p;
    const int64_t q = ActiveVariables(task, p, act);
    const T* m = static_cast<const T*>(task->mean);
    for (int64_t a = 0; a < q; ++a)
        mean[a] = m[act[a]];
    LoadMatrix(l, static_cast<const T*>(task->covariance), storage, p, act, q, T(1));
    int32_t status = BRENN_SS_OK;
    if (q > 0 && !CholeskyLower<T>(static_cast<int>(q), l))
        status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    if (status == BRENN_SS_OK) {
        job.act = act;
        job.q = q;
        job.mean = mean;
        job.l = l;
        job.result = result;
        const int64_t blocks = (job.o.n + kBlock - 1) / kBlock;
        size_t scratch = 0;
        if (!AddBytesFor(&scratch, q * kBlock, sizeof(T)))
            status = BRENN_SS_ERROR_ALLOC;
        else if (q == 0)
            for (int64_t i = 0; i < job.o.n; ++i)
                result[i] = T(0);
        else
            status = ForEachItem(nullptr, blocks, scratch, thr, MahBlock<T>, &job);
    }
    brenn_serv_deallocate(block);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSMahDistance(void* task, uint64_t estimates, uint64_t method,
                                        double* result, const threader* thr) {
    return brenn::stats::MahDistance<double>(task, estimates, method, result, thr);
}

BRENN_EXPORT int32_t _qessSSMahDistance(void* task, uint64_t estimates, uint64_t method,
                                        float* result, const threader* thr) {
    return brenn::stats::MahDistance<float>(task, estimates, method, result, thr);
}
