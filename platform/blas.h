/* BLAS entries of the service library that the statistics kernels and the multivariate
 * Gaussian generators call. Arguments are passed by reference, as the Fortran BLAS
 * takes them; integers are the BLAS's 32-bit integers. Matrices are column-major with leading
 * dimensions, as in the BLAS. */
#ifndef BRENN_PLATFORM_BLAS_H
#define BRENN_PLATFORM_BLAS_H

#include "serv.h"

#ifdef __cplusplus
extern "C" {
#endif

/* C = alpha * A * A' + beta * C (trans "N") or alpha * A' * A + beta * C (trans "T"),
 * on the triangle of C that uplo names ("U" or "L"). */
BRENN_SERV_API void brenn_blas_xdsyrk(const char* uplo, const char* trans, const int* n,
                                      const int* k, const double* alpha, const double* a,
                                      const int* lda, const double* beta, double* c,
                                      const int* ldc);
BRENN_SERV_API void brenn_blas_xssyrk(const char* uplo, const char* trans, const int* n,
                                      const int* k, const float* alpha, const float* a,
                                      const int* lda, const float* beta, float* c, const int* ldc);

/* C = alpha * op(A) * op(B) + beta * C. */
BRENN_SERV_API void brenn_blas_xdgemm(const char* transa, const char* transb, const int* m,
                                      const int* n, const int* k, const double* alpha,
                                      const double* a, const int* lda, const double* b,
                                      const int* ldb, const double* beta, double* c,
                                      const int* ldc);
BRENN_SERV_API void brenn_blas_xsgemm(const char* transa, const char* transb, const int* m,
                                      const int* n, const int* k, const float* alpha,
                                      const float* a, const int* lda, const float* b,
                                      const int* ldb, const float* beta, float* c, const int* ldc);

/* A = alpha * x * x' + A on the triangle that uplo names. */
BRENN_SERV_API void brenn_blas_xdsyr(const char* uplo, const int* n, const double* alpha,
                                     const double* x, const int* incx, double* a, const int* lda);
BRENN_SERV_API void brenn_blas_xssyr(const char* uplo, const int* n, const float* alpha,
                                     const float* x, const int* incx, float* a, const int* lda);

/* Triangular matrix products for the multivariate Gaussian generators.
 * B = alpha * op(A) * B (side "L") or alpha * B * op(A) (side "R"), A triangular on the
 * triangle that uplo names, unit diagonal when diag is "U": the BLAS's trmm. */
BRENN_SERV_API void brenn_blas_xdtrmm_4zar(const char* side, const char* uplo, const char* transa,
                                           const char* diag, const int* m, const int* n,
                                           const double* alpha, const double* a, const int* lda,
                                           double* b, const int* ldb);
BRENN_SERV_API void brenn_blas_xstrmm_4zar(const char* side, const char* uplo, const char* transa,
                                           const char* diag, const int* m, const int* n,
                                           const float* alpha, const float* a, const int* lda,
                                           float* b, const int* ldb);

/* B = op(A) * B for the m by n matrix B, A the m by m triangle that uplo names with its
 * own diagonal: the product from the left that the generators take, alpha 1. */
BRENN_SERV_API void brenn_blas4zar_dtrmm(const char* uplo, const char* transa, const int* m,
                                         const int* n, const double* a, const int* lda, double* b,
                                         const int* ldb);
BRENN_SERV_API void brenn_blas4zar_strmm(const char* uplo, const char* transa, const int* m,
                                         const int* n, const float* a, const int* lda, float* b,
                                         const int* ldb);

/* The same with A packed as the BLAS packs a triangle column by column: for uplo "U"
 * A(i, j), i <= j, at ap[i + j (j + 1) / 2]; for "L" A(i, j), i >= j, at
 * ap[i + j (2 m - j - 1) / 2]. */
BRENN_SERV_API void brenn_blas4zar_dptrmm(const char* uplo, const char* transa, const int* m,
                                          const int* n, const double* ap, double* b,
                                          const int* ldb);
BRENN_SERV_API void brenn_blas4zar_sptrmm(const char* uplo, const char* transa, const int* m,
                                          const int* n, const float* ap, float* b, const int* ldb);

#ifdef __cplusplus
}
#endif

#endif
