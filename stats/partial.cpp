// Partial covariance and correlation: with the result variables Y and the conditioning
// variables Z that `partialParamIndexCount` marks (1 and -1), the covariance of Y given
// Z is the Schur complement S_YY - S_YZ S_ZZ^-1 S_ZY. S_ZZ = L L' is factored and
// W = L^-1 S_ZY solved, so the complement is S_YY - W'W (a rank update): no inverse.
// The covariance is the task's `covariance`, made first by the basic compute when the
// covariance estimate is asked too. Results are matrices of the result variables in
// the order of their indices, in the forms of their storage words.
#include <math.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/dense.h"
#include "stats/task.h"

namespace brenn::stats {
namespace {

template <typename T>
int32_t Basic(void* task, uint64_t estimates, uint64_t method, const threader* thr) {
    if constexpr (sizeof(T) == 8)
        return _qesdSSBasic(task, estimates, method, thr);
    else
        return _qessSSBasic(task, estimates, method, thr);
}

// The Schur complement into syy (ny x ny lower) from the covariance `c` (form
// `storage`, dimension p); y and z the variables. False when S_ZZ is not positive
// definite. szz is nz x nz and szy nz x ny of scratch.
template <typename T>
bool Complement(const T* c, int64_t storage, int64_t p, const int64_t* y, int64_t ny,
                const int64_t* z, int64_t nz, T* syy, T* szz, T* szy) {
    for (int64_t b = 0; b < ny; ++b)
        for (int64_t a = b; a < ny; ++a)
            syy[a + b * ny] = c[MatrixIndex(storage, p, y[a], y[b])];
    if (nz == 0) return true;
    for (int64_t b = 0; b < nz; ++b)
        for (int64_t a = b; a < nz; ++a)
            szz[a + b * nz] = c[MatrixIndex(storage, p, z[a], z[b])];
    for (int64_t b = 0; b < ny; ++b)
        for (int64_t a = 0; a < nz; ++a)
            szy[a + b * nz] = c[MatrixIndex(storage, p, z[a], y[b])];
    if (!CholeskyLower<T>(static_cast<int>(nz), szz)) return false;
    SolveLower<T>(static_cast<int>(nz), static_cast<int>(ny), szz, szy, static_cast<int>(nz));
    RankUpdate<T>("T", static_cast<int>(ny), static_cast<int>(nz), T(-1), szy, static_cast<int>(nz),
                  syy);
    return true;
}

template <typename T>
int32_t Partial(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* task = static_cast<SSTask*>(handle);
    const bool wantCov = (estimates & BRENN_SS_PARTIAL_COV) != 0;
    const bool wantCor = (estimates & BRENN_SS_PARTIAL_COR) != 0;
    if (!wantCov && !wantCor) return BRENN_SS_OK;
    int64_t p = 0;
    if (task->dimension == nullptr || (p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    if (p > INT32_MAX) return BRENN_SS_ERROR_DIMENSION;
    if (task->partialParamIndexCount == nullptr) return BRENN_SS_ERROR_PARTIAL_INDICES;
    for (int64_t j = 0; j < p; ++j) {
        const int64_t r = ReadIndexWord(task, task->partialParamIndexCount, j);
        if (r != 1 && r != -1 && r != 0) return BRENN_SS_ERROR_PARTIAL_INDICES;
    }
    int64_t covForm = 0, corForm = 0, inForm = 0;
    if (wantCov)
        if (int32_t s = CheckMatrixArray(task, task->partialCov, task->partialCovStorage,
                                         BRENN_SS_ERROR_PARTIAL_COV_MISSING, &covForm))
            return s;
    if (wantCor)
        if (int32_t s = CheckMatrixArray(task, task->partialCor, task->partialCorStorage,
                                         BRENN_SS_ERROR_PARTIAL_COR_MISSING, &corForm))
            return s;
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;
    // The covariance asked too is made first, by the blocked basic path.
    const uint64_t basic = estimates & (BRENN_SS_MEAN | BRENN_SS_COV | BRENN_SS_COR);
    if ((basic & BRENN_SS_COV) != 0)
        if (int32_t s = Basic<T>(task, basic, BRENN_SS_METHOD_ONE_PASS_B, thr)) return s;
    if (int32_t s = CheckMatrixArray(task, task->covariance, task->covStorage,
                                     BRENN_SS_ERROR_COV_MISSING, &inForm))
        return s;

    // One block: y and z, the identity order of the results, S_YY, S_ZZ, S_ZY.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, 3 * p, sizeof(int64_t)) || !AddBytesFor(&bytes, 2 * p * p, sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    int64_t* y = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
    if (y == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t ny = 0, nz = 0;
    int64_t* z = y + p;
    int64_t* order = z + p;
    for (int64_t j = 0; j < p; ++j) {
        if (task->indices != nullptr && ReadIndexWord(task, task->indices, j) == 0) continue;
        const int64_t r = ReadIndexWord(task, task->partialParamIndexCount, j);
        if (r == 1) y[ny++] = j;
        if (r == -1) z[nz++] = j;
    }
    for (int64_t a = 0; a < ny; ++a)
        order[a] = a;
    T* syy = reinterpret_cast<T*>(order + p);
    T* szz = syy + ny * ny;
    T* szy = szz + nz * nz;
    int32_t status = BRENN_SS_OK;
    if (!Complement(static_cast<const T*>(task->covariance), inForm, p, y, ny, z, nz, syy, szz,
                    szy)) {
        status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    } else {
        if (wantCov)
            StoreMatrix(static_cast<T*>(task->partialCov), covForm, ny, order, ny, syy, T(1));
        if (wantCor) {
            // r_ab = s_ab / sqrt(s_aa s_bb), the diagonal's roots kept in szz; r_aa = 1.
            for (int64_t a = 0; a < ny; ++a)
                szz[a] = sqrt(syy[a + a * ny]);
            for (int64_t b = 0; b < ny; ++b)
                for (int64_t a = b; a < ny; ++a)
                    syy[a + b * ny] = a == b ? T(1) : syy[a + b * ny] / (szz[a] * szz[b]);
            StoreMatrix(static_cast<T*>(task->partialCor), corForm, ny, order, ny, syy, T(1));
        }
    }
    brenn_serv_deallocate(y);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSPartialCovariance(void* task, uint64_t estimates, uint64_t method,
                                              const threader* thr) {
    return brenn::stats::Partial<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSPartialCovariance(void* task, uint64_t estimates, uint64_t method,
                                              const threader* thr) {
    return brenn::stats::Partial<float>(task, estimates, method, thr);
}
