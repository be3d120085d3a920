/* LAPACK entries of the service library that the statistics estimates call: Cholesky
 * factorisation, solves and inverse, triangular solves and the symmetric eigenproblem.
 * Arguments are passed by reference as the Fortran LAPACK takes them; integers are 32-bit;
 * matrices are column-major with leading dimensions. `info` follows LAPACK: 0 success, -i
 * the i-th argument was illegal, positive a numerical failure (for potrf: the order of the
 * leading minor that is not positive definite).
 *
 * Threads. OpenBLAS runs a call on threads of its own, and its 0.3.21 (Debian 12)
 * exports no per-call or per-thread setting of their count (only the process-wide
 * openblas_set_num_threads, which is the host program's to set, not ours). A BLAS or
 * LAPACK call made inside the workers of a threader therefore starts its threads on
 * cores that the team already fills; under load such a call took tens of seconds of
 * wall clock for a fraction of a second of work. So these entries and those of blas.h
 * are called from the calling thread only, outside the threader; the work that runs
 * inside workers (Mahalanobis solves, group and team cross-products, the Cholesky
 * factors and solves of the missing-value model, rank-one merges) is the statistics
 * service's own code. */
#ifndef BRENN_PLATFORM_LAPACK_H
#define BRENN_PLATFORM_LAPACK_H

#include "serv.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A = U'U (uplo "U") or L L' ("L"), overwriting that triangle. */
BRENN_SERV_API void brenn_lapack_xdpotrf(const char* uplo, const int* n, double* a, const int* lda,
                                         int* info);
BRENN_SERV_API void brenn_lapack_xspotrf(const char* uplo, const int* n, float* a, const int* lda,
                                         int* info);

/* Solves A X = B with A factored by potrf; B (n by nrhs) is overwritten by X. */
BRENN_SERV_API void brenn_lapack_xdpotrs(const char* uplo, const int* n, const int* nrhs,
                                         const double* a, const int* lda, double* b, const int* ldb,
                                         int* info);
BRENN_SERV_API void brenn_lapack_xspotrs(const char* uplo, const int* n, const int* nrhs,
                                         const float* a, const int* lda, float* b, const int* ldb,
                                         int* info);

/* The inverse of A from its potrf factor, on the same triangle. */
BRENN_SERV_API void brenn_lapack_xdpotri(const char* uplo, const int* n, double* a, const int* lda,
                                         int* info);
BRENN_SERV_API void brenn_lapack_xspotri(const char* uplo, const int* n, float* a, const int* lda,
                                         int* info);

/* Solves op(A) X = B for a triangular A (diag "U": unit diagonal); B overwritten by X;
 * info > 0 names a zero diagonal entry. */
BRENN_SERV_API void brenn_lapack_xdtrtrs(const char* uplo, const char* trans, const char* diag,
                                         const int* n, const int* nrhs, const double* a,
                                         const int* lda, double* b, const int* ldb, int* info);
BRENN_SERV_API void brenn_lapack_xstrtrs(const char* uplo, const char* trans, const char* diag,
                                         const int* n, const int* nrhs, const float* a,
                                         const int* lda, float* b, const int* ldb, int* info);

/* Eigenvalues (ascending, into w) and, with jobz "V", eigenvectors (into a's columns) of a
 * symmetric matrix by divide and conquer. A workspace query (lwork or liwork -1) returns
 * the sizes in work[0] and iwork[0]. */
BRENN_SERV_API void brenn_lapack_xdsyevd(const char* jobz, const char* uplo, const int* n,
                                         double* a, const int* lda, double* w, double* work,
                                         const int* lwork, int* iwork, const int* liwork,
                                         int* info);
BRENN_SERV_API void brenn_lapack_xssyevd(const char* jobz, const char* uplo, const int* n, float* a,
                                         const int* lda, float* w, float* work, const int* lwork,
                                         int* iwork, const int* liwork, int* info);

#ifdef __cplusplus
}
#endif

#endif
