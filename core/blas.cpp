// BLAS entries of the service library: forwards to the Fortran interface of OpenBLAS.
// The trailing length arguments are the hidden lengths of the character arguments
// that Fortran callers pass; OpenBLAS reads only the first character.
#include <stddef.h>

#include "platform/blas.h"

extern "C" {
void dsyrk_(const char*, const char*, const int*, const int*, const double*, const double*,
            const int*, const double*, double*, const int*, size_t, size_t);
void ssyrk_(const char*, const char*, const int*, const int*, const float*, const float*,
            const int*, const float*, float*, const int*, size_t, size_t);
void dgemm_(const char*, const char*, const int*, const int*, const int*, const double*,
            const double*, const int*, const double*, const int*, const double*, double*,
            const int*, size_t, size_t);
void sgemm_(const char*, const char*, const int*, const int*, const int*, const float*,
            const float*, const int*, const float*, const int*, const float*, float*, const int*,
            size_t, size_t);
void dsyr_(const char*, const int*, const double*, const double*, const int*, double*, const int*,
           size_t);
void ssyr_(const char*, const int*, const float*, const float*, const int*, float*, const int*,
           size_t);
void dtrmm_(const char*, const char*, const char*, const char*, const int*, const int*,
            const double*, const double*, const int*, double*, const int*, size_t, size_t, size_t,
            size_t);
void strmm_(const char*, const char*, const char*, const char*, const int*, const int*,
            const float*, const float*, const int*, float*, const int*, size_t, size_t, size_t,
            size_t);
}

extern "C" void brenn_blas_xdsyrk(const char* uplo, const char* trans, const int* n, const int* k,
                                  const double* alpha, const double* a, const int* lda,
                                  const double* beta, double* c, const int* ldc) {
    dsyrk_(uplo, trans, n, k, alpha, a, lda, beta, c, ldc, 1, 1);
}

extern "C" void brenn_blas_xssyrk(const char* uplo, const char* trans, const int* n, const int* k,
                                  const float* alpha, const float* a, const int* lda,
                                  const float* beta, float* c, const int* ldc) {
    ssyrk_(uplo, trans, n, k, alpha, a, lda, beta, c, ldc, 1, 1);
}

extern "C" void brenn_blas_xdgemm(const char* transa, const char* transb, const int* m,
                                  const int* n, const int* k, const double* alpha, const double* a,
                                  const int* lda, const double* b, const int* ldb,
                                  const double* beta, double* c, const int* ldc) {
    dgemm_(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, 1, 1);
}

extern "C" void brenn_blas_xsgemm(const char* transa, const char* transb, const int* m,
                                  const int* n, const int* k, const float* alpha, const float* a,
                                  const int* lda, const float* b, const int* ldb, const float* beta,
                                  float* c, const int* ldc) {
    sgemm_(transa, transb, m, n, k, alpha, a, lda, b, ldb, beta, c, ldc, 1, 1);
}

extern "C" void brenn_blas_xdsyr(const char* uplo, const int* n, const double* alpha,
                                 const double* x, const int* incx, double* a, const int* lda) {
    dsyr_(uplo, n, alpha, x, incx, a, lda, 1);
}

extern "C" void brenn_blas_xssyr(const char* uplo, const int* n, const float* alpha, const float* x,
                                 const int* incx, float* a, const int* lda) {
    ssyr_(uplo, n, alpha, x, incx, a, lda, 1);
}

extern "C" void brenn_blas_xdtrmm_4zar(const char* side, const char* uplo, const char* transa,
                                       const char* diag, const int* m, const int* n,
                                       const double* alpha, const double* a, const int* lda,
                                       double* b, const int* ldb) {
    dtrmm_(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb, 1, 1, 1, 1);
}

extern "C" void brenn_blas_xstrmm_4zar(const char* side, const char* uplo, const char* transa,
                                       const char* diag, const int* m, const int* n,
                                       const float* alpha, const float* a, const int* lda, float* b,
                                       const int* ldb) {
    strmm_(side, uplo, transa, diag, m, n, alpha, a, lda, b, ldb, 1, 1, 1, 1);
}

extern "C" void brenn_blas4zar_dtrmm(const char* uplo, const char* transa, const int* m,
                                     const int* n, const double* a, const int* lda, double* b,
                                     const int* ldb) {
    const double one = 1;
    brenn_blas_xdtrmm_4zar("L", uplo, transa, "N", m, n, &one, a, lda, b, ldb);
}

extern "C" void brenn_blas4zar_strmm(const char* uplo, const char* transa, const int* m,
                                     const int* n, const float* a, const int* lda, float* b,
                                     const int* ldb) {
    const float one = 1;
    brenn_blas_xstrmm_4zar("L", uplo, transa, "N", m, n, &one, a, lda, b, ldb);
}
