// Mahalanobis distances of the observations from the task's `mean` under its
// `covariance`: d_i = sqrt((x_i - m)' S^-1 (x_i - m)) over the active variables. S is
// factored once on the calling thread, S = L L', and d_i = |L^-1 (x_i - m)|: no inverse
// is formed. The observations go to the threader in fixed blocks of kBlock, each solved
// a tile at a time by the library's own forward substitution (mah_kernel.h); no BLAS
// runs inside the workers, and an observation's distance has the same bits whichever
// thread ran it.
#include <math.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/dense.h"
#include "stats/mah_kernel.h"
#include "stats/variable_loop.h"

namespace brenn::stats {
namespace {

constexpr int64_t kBlock = 384;
static_assert(kBlock % kMahTile<float> == 0 && kBlock % kMahTile<double> == 0);

template <typename T>
struct MahJob {
    MahTileInput<T> in;
    T* result;
};

// Block b: its observations a tile at a time.
template <typename T>
int32_t MahBlock(VariableLoop* loop, int64_t b, void* scratch) {
    const MahJob<T>& job = *static_cast<const MahJob<T>*>(loop->detail);
    const int64_t n = job.in.n, end = (b + 1) * kBlock < n ? (b + 1) * kBlock : n;
    T* sum = static_cast<T*>(scratch);
    T* dev = sum + kMahTile<T>;
    for (int64_t i0 = b * kBlock; i0 < end; i0 += kMahTile<T>)
        MahTile(job.in, i0, end - i0 < kMahTile<T> ? end - i0 : kMahTile<T>, dev, sum, job.result);
    return 0;
}

template <typename T>
int32_t MahDistance(void* handle, uint64_t estimates, uint64_t method, T* result,
                    const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_MAH_DIST) == 0) return BRENN_SS_OK;
    Observations<T> o{};
    if (int32_t s = CheckObservations(task, &o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (task->mean == nullptr) return BRENN_SS_ERROR_MEAN_MISSING;
    int64_t storage = 0;
    if (int32_t s = CheckMatrixArray(task, task->covariance, task->covStorage,
                                     BRENN_SS_ERROR_COV_MISSING, &storage))
        return s;
    if (result == nullptr) return BRENN_SS_ERROR_MAHALANOBIS_MISSING;
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    const int64_t p = o.p;
    if (p > INT32_MAX) return BRENN_SS_ERROR_DIMENSION;
    // The active variables, their means and their covariance's factor.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) || !AddBytesFor(&bytes, p, sizeof(T)) ||
        !AddBytesFor(&bytes, p * p, sizeof(T)) || !AddBytesFor(&bytes, p * (p + 3) / 2, sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    char* block = static_cast<char*>(brenn_serv_allocate(bytes, 128));
    if (block == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = reinterpret_cast<int64_t*>(block);
    T* mean = reinterpret_cast<T*>(act + p);
    T* l = mean + p;
    T* rows = l + p * p;
    const int64_t q = ActiveVariables(task, p, act);
    const T* m = static_cast<const T*>(task->mean);
    for (int64_t a = 0; a < q; ++a)
        mean[a] = m[act[a]];
    LoadMatrix(l, static_cast<const T*>(task->covariance), storage, p, act, q, T(1));
    int32_t status = BRENN_SS_OK;
    if (q > 0 && !CholeskyLower<T>(static_cast<int>(q), l))
        status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    if (status == BRENN_SS_OK) {
        T* recip = rows + q * (q + 1) / 2;
        PackFactorRows(l, q, rows);
        for (int64_t a = 0; a < q; ++a)
            recip[a] = T(1) / l[a + a * q];
        MahJob<T> job{{o.x, o.n, p, o.variableRows, act, q, mean, rows, recip}, result};
        const int64_t blocks = (o.n + kBlock - 1) / kBlock;
        size_t scratch = 0;
        if (!AddBytesFor(&scratch, (q + 1) * kMahTile<T>, sizeof(T)))
            status = BRENN_SS_ERROR_ALLOC;
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
