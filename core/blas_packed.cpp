// The packed triangular product B = op(A) B of the service library: the BLAS has a
// packed triangle times a vector only, so the triangle is unpacked into a square (on
// the stack up to order 64, else from the allocator) and multiplied by trmm; when no
// memory can be had, each column goes through the packed matrix-vector product.
#include <stddef.h>
#include <string.h>

#include "platform/blas.h"

extern "C" {
void dtpmv_(const char*, const char*, const char*, const int*, const double*, double*, const int*,
            size_t, size_t, size_t);
void stpmv_(const char*, const char*, const char*, const int*, const float*, float*, const int*,
            size_t, size_t, size_t);
}

namespace {

constexpr int kStackOrder = 64;

template <typename T>
void Unpack(bool upper, int m, const T* ap, T* a) {
    memset(a, 0, sizeof(T) * size_t(m) * size_t(m));
    size_t k = 0;
    for (int j = 0; j < m; ++j) {
        int from = upper ? 0 : j, to = upper ? j : m - 1;
        for (int i = from; i <= to; ++i)
            a[i + size_t(j) * m] = ap[k++];
    }
}

template <typename T, typename Trmm, typename Tpmv>
void PackedProduct(const char* uplo, const char* transa, const int* m, const int* n, const T* ap,
                   T* b, const int* ldb, Trmm trmm, Tpmv tpmv) {
    if (*m <= 0 || *n <= 0) return;
    const bool upper = *uplo == 'U' || *uplo == 'u';
    T stack[kStackOrder * kStackOrder];
    T* a = *m <= kStackOrder
               ? stack
               : static_cast<T*>(brenn_serv_allocate(sizeof(T) * size_t(*m) * size_t(*m), 128));
    if (a == nullptr) {
        const int one = 1;
        for (int j = 0; j < *n; ++j)
            tpmv(uplo, transa, "N", m, ap, b + size_t(j) * *ldb, &one, 1, 1, 1);
        return;
    }
    Unpack(upper, *m, ap, a);
    trmm(uplo, transa, m, n, a, m, b, ldb);
    if (a != stack) brenn_serv_deallocate(a);
}

} // namespace

extern "C" void brenn_blas4zar_dptrmm(const char* uplo, const char* transa, const int* m,
                                      const int* n, const double* ap, double* b, const int* ldb) {
    PackedProduct(uplo, transa, m, n, ap, b, ldb, brenn_blas4zar_dtrmm, dtpmv_);
}

extern "C" void brenn_blas4zar_sptrmm(const char* uplo, const char* transa, const int* m,
                                      const int* n, const float* ap, float* b, const int* ldb) {
    PackedProduct(uplo, transa, m, n, ap, b, ldb, brenn_blas4zar_strmm, stpmv_);
}
