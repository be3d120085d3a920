// The library's own rank-k update of a lower triangle, C += A B' (B = A for the plain
// cross-products), for the work that runs inside the threader's workers: the BLAS
// starts threads of its own, and those inside a pool's workers oversubscribe the
// cores (see platform/lapack.h). Tiles of four rows by up to four columns, the rows in
// one register group, each entry summed over the observations in their order.
#ifndef BRENN_STATS_RANK_UPDATE_H
#define BRENN_STATS_RANK_UPDATE_H

#include <stdint.h>

#include "stats/four.h"

namespace brenn::stats {

// acc[j] += sum over i of a[0..3 + i * q] * b[j + i * q], j < kCols.
template <typename T, int kCols>
inline void TileSums(const T* a, const T* b, int64_t q, int64_t k, typename Four<T>::V* acc) {
    using F = Four<T>;
    using V = typename F::V;
    V s[kCols];
    for (int j = 0; j < kCols; ++j)
        s[j] = acc[j];
    for (int64_t i = 0; i < k; ++i) {
        const V x = F::template Load<false>(a + i * q);
        for (int j = 0; j < kCols; ++j)
            s[j] = s[j] + x * F::Splat(b[j + i * q]);
    }
    for (int j = 0; j < kCols; ++j)
        acc[j] = s[j];
}

// Lower triangle of c (q x q, column-major) += a b' over observations [0, k): one
// chunk of observations, small enough to stay in the first-level cache, at a time.
template <typename T>
void LowerCrossChunk(int64_t q, int64_t k, const T* a, const T* b, T* c) {
    using F = Four<T>;
    using V = typename F::V;
    for (int64_t c0 = 0; c0 < q; c0 += 4) {
        const int nc = q - c0 < 4 ? static_cast<int>(q - c0) : 4;
        int64_t r0 = c0;
        for (; r0 + 4 <= q; r0 += 4) {
            V acc[4] = {F::Splat(T(0)), F::Splat(T(0)), F::Splat(T(0)), F::Splat(T(0))};
            if (nc == 4)
                TileSums<T, 4>(a + r0, b + c0, q, k, acc);
            else
                for (int j = 0; j < nc; ++j)
                    TileSums<T, 1>(a + r0, b + c0 + j, q, k, acc + j);
            T lanes[4];
            for (int j = 0; j < nc; ++j) {
                F::template Store<false>(lanes, acc[j]);
                for (int r = 0; r < 4; ++r)
                    if (r0 + r >= c0 + j) c[r0 + r + (c0 + j) * q] += lanes[r];
            }
        }
        for (; r0 < q; ++r0)
            for (int j = 0; j < nc && c0 + j <= r0; ++j) {
                T s = T(0);
                for (int64_t i = 0; i < k; ++i)
                    s += a[r0 + i * q] * b[c0 + j + i * q];
                c[r0 + (c0 + j) * q] += s;
            }
    }
}

// Lower triangle of c (q x q, column-major) += a b', a and b q x k with leading
// dimension q (observation i's values at a + i * q). Each entry gets the sums of fixed
// chunks of observations in their order.
template <typename T>
void LowerCrossUpdate(int64_t q, int64_t k, const T* a, const T* b, T* c) {
    int64_t chunk = 2048 / (q > 0 ? q : 1);
    if (chunk < 8) chunk = 8;
    for (int64_t i0 = 0; i0 < k; i0 += chunk)
        LowerCrossChunk(q, k - i0 < chunk ? k - i0 : chunk, a + i0 * q, b + i0 * q, c);
}

} // namespace brenn::stats

#endif
