// Dense linear algebra of the covariance estimates in one type-generic form: the
// Cholesky factor (the library's own loop), the service library's BLAS and LAPACK
// forwards chosen by precision (triangular solve, rank-k update, matrix product,
// symmetric eigenproblem: for the calling thread only, never inside the threader's
// workers), and the
// read of a covariance-like matrix of the task (its array, its storage word, the
// active variables' compact lower triangle).
#ifndef BRENN_STATS_DENSE_H
#define BRENN_STATS_DENSE_H

#include <math.h>
#include <stdint.h>

#include "brenn_stats.h"
#include "platform/blas.h"
#include "platform/lapack.h"
#include "stats/matrix_storage.h"
#include "stats/task.h"

namespace brenn::stats {

// Lower Cholesky factor of the n x n matrix a (leading dimension n) in place; false
// when a is not positive definite (a pivot not above 0, or NaN). The library's own
// loop, column by column (each column scaled, then taken from the columns right of
// it), not LAPACK's: it runs inside the threader's workers as well, where the BLAS
// must not start threads of its own (platform/lapack.h), and its bits do not depend on
// the machine the BLAS was tuned for. The upper triangle is left as it was.
template <typename T>
bool CholeskyLower(int n, T* a) {
    for (int64_t j = 0; j < n; ++j) {
        T* col = a + j * n;
        if (!(col[j] > T(0))) return false;
        const T d = sqrt(col[j]);
        col[j] = d;
        for (int64_t i = j + 1; i < n; ++i)
            col[i] /= d;
        for (int64_t k = j + 1; k < n; ++k) {
            T* ck = a + k * n;
            const T t = col[k];
            for (int64_t i = k; i < n; ++i)
                ck[i] -= col[i] * t;
        }
    }
    return true;
}

// b (n x k, leading dimension ldb) becomes L^-1 b, L the lower factor of CholeskyLower.
template <typename T>
void SolveLower(int n, int k, const T* l, T* b, int ldb) {
    int info = 0;
    if constexpr (sizeof(T) == 8)
        brenn_lapack_xdtrtrs("L", "N", "N", &n, &k, l, &n, b, &ldb, &info);
    else
        brenn_lapack_xstrtrs("L", "N", "N", &n, &k, l, &n, b, &ldb, &info);
}

// Lower triangle of c (n x n) += alpha * a a' (trans "N", a n x k) or alpha * a' a
// (trans "T", a k x n).
template <typename T>
void RankUpdate(const char* trans, int n, int k, T alpha, const T* a, int lda, T* c) {
    const T one = T(1);
    if constexpr (sizeof(T) == 8)
        brenn_blas_xdsyrk("L", trans, &n, &k, &alpha, a, &lda, &one, c, &n);
    else
        brenn_blas_xssyrk("L", trans, &n, &k, &alpha, a, &lda, &one, c, &n);
}

// c (m x n) = a (m x k) * b' (b n x k), all with their row counts as leading dimensions.
template <typename T>
void ProductTransposed(int m, int n, int k, const T* a, const T* b, T* c) {
    const T one = T(1), zero = T(0);
    if constexpr (sizeof(T) == 8)
        brenn_blas_xdgemm("N", "T", &m, &n, &k, &one, a, &m, b, &n, &zero, c, &m);
    else
        brenn_blas_xsgemm("N", "T", &m, &n, &k, &one, a, &m, b, &n, &zero, c, &m);
}

// Eigenvalues w (ascending) and eigenvectors (a's columns) of the symmetric a (lower
// triangle read). With lwork or liwork -1 a size query: the sizes come back in
// work[0] and iwork[0]. Returns LAPACK's info.
template <typename T>
int SymmetricEigen(int n, T* a, T* w, T* work, int lwork, int* iwork, int liwork) {
    int info = 0;
    if constexpr (sizeof(T) == 8)
        brenn_lapack_xdsyevd("V", "L", &n, a, &n, w, work, &lwork, iwork, &liwork, &info);
    else
        brenn_lapack_xssyevd("V", "L", &n, a, &n, w, work, &lwork, iwork, &liwork, &info);
    return info;
}

// A matrix of the task, input or result: the array (missing: `missingStatus`), its
// storage word (missing: -4044, unknown: -4003). On success the form is in *storage.
inline int32_t CheckMatrixArray(const SSTask* task, const void* array, const void* storageWord,
                                int32_t missingStatus, int64_t* storage) {
    if (array == nullptr) return missingStatus;
    if (storageWord == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    *storage = ReadIndexWord(task, storageWord);
    return KnownMatrixStorage(*storage) ? 0 : BRENN_SS_ERROR_STORAGE;
}

// Mirrors the lower triangle of the n x n column-major m into its upper one.
template <typename T>
void MirrorLower(int64_t n, T* m) {
    for (int64_t b = 0; b < n; ++b)
        for (int64_t a = b + 1; a < n; ++a)
            m[b + a * n] = m[a + b * n];
}

} // namespace brenn::stats

#endif
