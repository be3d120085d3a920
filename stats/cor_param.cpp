// Parametrization of a correlation matrix: the nearest correlation matrix to the task's
// `correlation` in the weighted Frobenius norm |W^1/2 (A - X) W^1/2|, W = diag(w) from
// `multiplierA` (none: W = I), by Higham's alternating projections with Dykstra's
// correction (N. J. Higham, "Computing the nearest correlation matrix - a problem from
// finance", IMA J. Numer. Anal. 22 (2002), algorithm 3.3):
//   R = Y - dS;  X = P_S(R);  dS = X - R;  Y = P_U(X)
// P_S is the projection onto the positive semidefinite matrices in the W-norm,
// W^-1/2 (W^1/2 R W^1/2)_+ W^-1/2, with ( )_+ the eigen-decomposition's negative
// eigenvalues set to 0; P_U sets the unit diagonal (for a diagonal W this is also the
// W-norm projection). The iteration stops when max |1 - X_ii| and the step of Y,
// |Y_k - Y_k-1|_F, are both within the tolerance; as Y - X is then a diagonal within
// the tolerance and X is semidefinite, Y's eigenvalues are at or above -tolerance.
// Y has its unit diagonal exactly.
#include <math.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/basic_finish.h"
#include "stats/dense.h"
#include "stats/task.h"

namespace brenn::stats {
namespace {

// Tolerance and iteration limit when `multiplierB` is absent.
template <typename T>
constexpr T kDefaultTolerance = sizeof(T) == 8 ? T(1e-12) : T(1e-5);
constexpr int64_t kDefaultIterations = 10000;

template <typename T>
struct Workspace {
    int64_t q;
    T *y, *r, *e, *dS, *lambda, *root, *work;
    int* iwork;
    int lwork, liwork;
};

// x = P_S(r) on lower triangles; e is the eigen scratch. Returns false when the
// eigen-decomposition fails.
template <typename T>
bool ProjectSemidefinite(Workspace<T>& w, const T* r, T* x) {
    const int64_t q = w.q;
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a)
            w.e[a + b * q] = r[a + b * q] * w.root[a] * w.root[b];
    if (SymmetricEigen<T>(static_cast<int>(q), w.e, w.lambda, w.work, w.lwork, w.iwork, w.liwork) !=
        0)
        return false;
    // The eigenvectors of positive eigenvalues (the last ones), scaled by their roots.
    int64_t first = q;
    while (first > 0 && w.lambda[first - 1] > T(0))
        --first;
    for (int64_t c = first; c < q; ++c) {
        const T s = sqrt(w.lambda[c]);
        for (int64_t a = 0; a < q; ++a)
            w.e[a + c * q] *= s;
    }
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a)
            x[a + b * q] = T(0);
    if (first < q)
        RankUpdate<T>("N", static_cast<int>(q), static_cast<int>(q - first), T(1), w.e + first * q,
                      static_cast<int>(q), x);
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a)
            x[a + b * q] /= w.root[a] * w.root[b];
    return true;
}

// Runs the iteration from y (the input, lower triangle); y ends as the last iterate.
// x is q x q scratch. Returns 0 or BRENN_SS_ERROR_NO_CONVERGENCE.
template <typename T>
int32_t Iterate(Workspace<T>& w, T* x, T tolerance, int64_t limit) {
    const int64_t q = w.q;
    for (int64_t e = 0; e < q * q; ++e)
        w.dS[e] = T(0);
    for (int64_t k = 0; k < limit; ++k) {
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a)
                w.r[a + b * q] = w.y[a + b * q] - w.dS[a + b * q];
        if (!ProjectSemidefinite(w, w.r, x)) return BRENN_SS_ERROR_NO_CONVERGENCE;
        T off = T(0), step = T(0);
        for (int64_t b = 0; b < q; ++b) {
            const T d = fabs(T(1) - x[b + b * q]);
            if (!(d <= off)) off = d;
            for (int64_t a = b; a < q; ++a) {
                const int64_t i = a + b * q;
                w.dS[i] = x[i] - w.r[i];
                const T next = a == b ? T(1) : x[i];
                const T dy = next - w.y[i];
                step += (a == b ? T(1) : T(2)) * dy * dy;
                w.y[i] = next;
            }
        }
        if (off <= tolerance && sqrt(step) <= tolerance) return BRENN_SS_OK;
        if (off != off || step != step) break; // a NaN never settles
    }
    return BRENN_SS_ERROR_NO_CONVERGENCE;
}

template <typename T>
int32_t Parametrize(void* handle, uint64_t estimates, uint64_t method) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_PARAMTR_COR) == 0) return BRENN_SS_OK;
    int64_t p = 0;
    if (task->dimension == nullptr || (p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    if (p > 46340) return BRENN_SS_ERROR_DIMENSION; // q * q must fit LAPACK's int
    int64_t inForm = 0, outForm = 0;
    if (int32_t s = CheckMatrixArray(task, task->correlation, task->corStorage,
                                     BRENN_SS_ERROR_COR_MISSING, &inForm))
        return s;
    if (int32_t s = CheckMatrixArray(task, task->parametrizedCor, task->parametrizedCorStorage,
                                     BRENN_SS_ERROR_PARAMETRIZED_COR_MISSING, &outForm))
        return s;
    T tolerance = kDefaultTolerance<T>;
    int64_t limit = kDefaultIterations;
    if (task->multiplierB != nullptr) {
        const T* b = static_cast<const T*>(task->multiplierB);
        if (!(b[0] > T(0)) || !(b[1] >= T(1) && b[1] <= T(2147483647.0)))
            return BRENN_SS_ERROR_MULTIPLIER_B_MISSING;
        tolerance = b[0];
        limit = static_cast<int64_t>(b[1]);
    }
    if (method != BRENN_SS_METHOD_FAST) return BRENN_SS_ERROR_METHOD;

    Workspace<T> w{};
    const T* weights = static_cast<const T*>(task->multiplierA);
    // The eigen workspace sizes for this order, then one block for everything.
    {
        T lworkQuery = T(0);
        int liworkQuery = 0, n = static_cast<int>(p);
        T scratch[2];
        if (SymmetricEigen<T>(n, scratch, scratch, &lworkQuery, -1, &liworkQuery, -1) != 0)
            return BRENN_SS_ERROR_ALLOC;
        w.lwork = static_cast<int>(lworkQuery);
        w.liwork = liworkQuery;
    }
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) || !AddBytesFor(&bytes, 5 * p * p, sizeof(T)) ||
        !AddBytesFor(&bytes, 2 * p + w.lwork, sizeof(T)) ||
        !AddBytesFor(&bytes, w.liwork, sizeof(int)))
        return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
    if (act == nullptr) return BRENN_SS_ERROR_ALLOC;
    const int64_t q = ActiveVariables(task, p, act);
    w.q = q;
    w.y = reinterpret_cast<T*>(act + p);
    w.r = w.y + p * p;
    w.e = w.r + p * p;
    w.dS = w.e + p * p;
    T* x = w.dS + p * p;
    w.lambda = x + p * p;
    w.root = w.lambda + p;
    w.work = w.root + p;
    w.iwork = reinterpret_cast<int*>(w.work + w.lwork);
    int32_t status = BRENN_SS_OK;
    for (int64_t a = 0; a < q; ++a) {
        const T v = weights != nullptr ? weights[act[a]] : T(1);
        if (!(v > T(0) && v < T(INFINITY))) status = BRENN_SS_ERROR_MULTIPLIER_A_MISSING;
        w.root[a] = sqrt(v);
    }
    if (status == BRENN_SS_OK && q > 0) {
        LoadMatrix(w.y, static_cast<const T*>(task->correlation), inForm, p, act, q, T(1));
        status = Iterate(w, x, tolerance, limit);
        StoreMatrix(static_cast<T*>(task->parametrizedCor), outForm, p, act, q, w.y, T(1));
    }
    brenn_serv_deallocate(act);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSCorParametrization(void* task, uint64_t estimates, uint64_t method,
                                               const threader*) {
    return brenn::stats::Parametrize<double>(task, estimates, method);
}

BRENN_EXPORT int32_t _qessSSCorParametrization(void* task, uint64_t estimates, uint64_t method,
                                               const threader*) {
    return brenn::stats::Parametrize<float>(task, estimates, method);
}
