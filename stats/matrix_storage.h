// Storage forms of the covariance, correlation and cross-product results: full, or
// one triangle packed row by row (the constants of brenn_stats.h). The compute
// entries work on a compact lower triangle of the active variables and read or write
// the caller's form only here.
#ifndef BRENN_STATS_MATRIX_STORAGE_H
#define BRENN_STATS_MATRIX_STORAGE_H

#include <stdint.h>

#include "brenn_stats.h"

namespace brenn::stats {

inline bool KnownMatrixStorage(int64_t storage) {
    return storage == BRENN_SS_MATRIX_STORAGE_FULL || storage == BRENN_SS_MATRIX_STORAGE_U_PACKED ||
           storage == BRENN_SS_MATRIX_STORAGE_L_PACKED;
}

// Position of element (j, l) of a symmetric p x p matrix in the given form.
inline int64_t MatrixIndex(int64_t storage, int64_t p, int64_t j, int64_t l) {
    if (storage == BRENN_SS_MATRIX_STORAGE_FULL) return j * p + l;
    if (storage == BRENN_SS_MATRIX_STORAGE_U_PACKED) {
        if (j > l) {
            int64_t t = j;
            j = l;
            l = t;
        }
        return j * (2 * p - j + 1) / 2 + (l - j);
    }
    if (j < l) {
        int64_t t = j;
        j = l;
        l = t;
    }
    return j * (j + 1) / 2 + l;
}

// Writes scale * m (compact, lower triangle column-major, q x q) at the places of the
// active variables `act` in the caller's matrix of dimension p.
template <typename T>
void StoreMatrix(T* out, int64_t storage, int64_t p, const int64_t* act, int64_t q, const T* m,
                 T scale) {
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a) {
            T v = m[a + b * q] * scale;
            int64_t j = act[a], l = act[b];
            out[MatrixIndex(storage, p, j, l)] = v;
            if (storage == BRENN_SS_MATRIX_STORAGE_FULL) out[MatrixIndex(storage, p, l, j)] = v;
        }
}

// The reverse: scale times the caller's elements into the compact lower triangle.
template <typename T>
void LoadMatrix(T* m, const T* in, int64_t storage, int64_t p, const int64_t* act, int64_t q,
                T scale) {
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a)
            m[a + b * q] = in[MatrixIndex(storage, p, act[a], act[b])] * scale;
}

} // namespace brenn::stats

#endif
