// LAPACK entries of the service library: forwards to the Fortran interface of the LAPACK
// that the build found (OpenBLAS's on Debian). The trailing length arguments are the hidden
// lengths of the character arguments; LAPACK reads only their first character.
#include <stddef.h>

#include "platform/lapack.h"

extern "C" {
void dpotrf_(const char*, const int*, double*, const int*, int*, size_t);
void spotrf_(const char*, const int*, float*, const int*, int*, size_t);
void dpotrs_(const char*, const int*, const int*, const double*, const int*, double*, const int*,
             int*, size_t);
void spotrs_(const char*, const int*, const int*, const float*, const int*, float*, const int*,
             int*, size_t);
void dpotri_(const char*, const int*, double*, const int*, int*, size_t);
void spotri_(const char*, const int*, float*, const int*, int*, size_t);
void dtrtrs_(const char*, const char*, const char*, const int*, const int*, const double*,
             const int*, double*, const int*, int*, size_t, size_t, size_t);
void strtrs_(const char*, const char*, const char*, const int*, const int*, const float*,
             const int*, float*, const int*, int*, size_t, size_t, size_t);
void dsyevd_(const char*, const char*, const int*, double*, const int*, double*, double*,
             const int*, int*, const int*, int*, size_t, size_t);
void ssyevd_(const char*, const char*, const int*, float*, const int*, float*, float*, const int*,
             int*, const int*, int*, size_t, size_t);
}

extern "C" void brenn_lapack_xdpotrf(const char* uplo, const int* n, double* a, const int* lda,
                                     int* info) {
    dpotrf_(uplo, n, a, lda, info, 1);
}

extern "C" void brenn_lapack_xspotrf(const char* uplo, const int* n, float* a, const int* lda,
                                     int* info) {
    spotrf_(uplo, n, a, lda, info, 1);
}

extern "C" void brenn_lapack_xdpotrs(const char* uplo, const int* n, const int* nrhs,
                                     const double* a, const int* lda, double* b, const int* ldb,
                                     int* info) {
    dpotrs_(uplo, n, nrhs, a, lda, b, ldb, info, 1);
}

extern "C" void brenn_lapack_xspotrs(const char* uplo, const int* n, const int* nrhs,
                                     const float* a, const int* lda, float* b, const int* ldb,
                                     int* info) {
    spotrs_(uplo, n, nrhs, a, lda, b, ldb, info, 1);
}

extern "C" void brenn_lapack_xdpotri(const char* uplo, const int* n, double* a, const int* lda,
                                     int* info) {
    dpotri_(uplo, n, a, lda, info, 1);
}

extern "C" void brenn_lapack_xspotri(const char* uplo, const int* n, float* a, const int* lda,
                                     int* info) {
    spotri_(uplo, n, a, lda, info, 1);
}

extern "C" void brenn_lapack_xdtrtrs(const char* uplo, const char* trans, const char* diag,
                                     const int* n, const int* nrhs, const double* a, const int* lda,
                                     double* b, const int* ldb, int* info) {
    dtrtrs_(uplo, trans, diag, n, nrhs, a, lda, b, ldb, info, 1, 1, 1);
}

extern "C" void brenn_lapack_xstrtrs(const char* uplo, const char* trans, const char* diag,
                                     const int* n, const int* nrhs, const float* a, const int* lda,
                                     float* b, const int* ldb, int* info) {
    strtrs_(uplo, trans, diag, n, nrhs, a, lda, b, ldb, info, 1, 1, 1);
}

extern "C" void brenn_lapack_xdsyevd(const char* jobz, const char* uplo, const int* n, double* a,
                                     const int* lda, double* w, double* work, const int* lwork,
                                     int* iwork, const int* liwork, int* info) {
    dsyevd_(jobz, uplo, n, a, lda, w, work, lwork, iwork, liwork, info, 1, 1);
}

extern "C" void brenn_lapack_xssyevd(const char* jobz, const char* uplo, const int* n, float* a,
                                     const int* lda, float* w, float* work, const int* lwork,
                                     int* iwork, const int* liwork, int* info) {
    ssyevd_(jobz, uplo, n, a, lda, w, work, lwork, iwork, liwork, info, 1, 1);
}
