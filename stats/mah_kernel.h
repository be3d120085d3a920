// The Mahalanobis distances of one tile of observations: their deviations from the mean
// put in lanes (four observations a register group, kMahGroups groups a tile), then the
// forward substitution L z = x - m with the rows of the Cholesky factor streamed from a
// packed copy (each z_a scaled by the stored 1 / L_aa), then z'z. Every lane runs the same
// operations in the same order as any other lane, so an observation's distance has the same bits
// wherever it falls in a tile, a block or a thread's share. The library's own loop
// instead of a triangular solve of the BLAS: it is quicker at these sizes (many short
// right-hand sides) and it starts no threads of its own inside the pool's workers.
#ifndef BRENN_STATS_MAH_KERNEL_H
#define BRENN_STATS_MAH_KERNEL_H

#include <math.h>
#include <stdint.h>

#include "stats/four.h"

namespace brenn::stats {

// Groups of four observations a tile: four registers of sums in flight, enough
// independent chains to hide the latency of the subtractions (more spill registers and
// measured slower).
template <typename T>
constexpr int kMahGroups = sizeof(T) == 8 ? 2 : 4;
template <typename T>
constexpr int64_t kMahTile = 4 * kMahGroups<T>;

// What a tile reads: the data, the active variables, their means and the factor's
// rows packed (row a at a(a+1)/2, its diagonal last).
template <typename T>
struct MahTileInput {
    const T* x;
    int64_t n, p;
    bool variableRows;
    const int64_t* act;
    int64_t q;
    const T* mean;
    const T* rows;
    const T* recip; // 1 / L_aa
};

// Deviations of observations [i0, i0 + m), m <= kMahTile, into dev: variable a's
// lanes at dev + a * kMahTile, lanes past m zero.
template <typename T>
void MahDeviations(const MahTileInput<T>& in, int64_t i0, int64_t m, T* dev) {
    using F = Four<T>;
    constexpr int64_t tile = kMahTile<T>;
    for (int64_t a = 0; a < in.q; ++a) {
        T* out = dev + a * tile;
        const T c = in.mean[a];
        if (m == tile && in.variableRows) {
            const T* v = in.x + in.act[a] * in.n + i0;
            for (int k = 0; k < kMahGroups<T>; ++k)
                F::template Store<true>(out + 4 * k,
                                        F::template Load<false>(v + 4 * k) - F::Splat(c));
        } else if (m == tile) {
            const T* v = in.x + i0 * in.p + in.act[a];
            for (int k = 0; k < kMahGroups<T>; ++k)
                F::template Store<true>(out + 4 * k,
                                        F::Strided(v + 4 * k * in.p, in.p) - F::Splat(c));
        } else {
            for (int64_t i = 0; i < tile; ++i)
                out[i] = i < m ? (in.variableRows ? in.x[in.act[a] * in.n + i0 + i]
                                                  : in.x[(i0 + i) * in.p + in.act[a]]) -
                                     c
                               : T(0);
        }
    }
}

// Solves L z = dev in place for every lane and leaves the lanes' z'z in sum.
template <typename T>
void MahSubstitute(const T* rows, const T* recip, int64_t q, T* dev, T* sum) {
    using F = Four<T>;
    using V = typename F::V;
    constexpr int kG = kMahGroups<T>;
    constexpr int64_t tile = kMahTile<T>;
    const T* row = rows;
    for (int64_t a = 0; a < q; ++a, row += a) {
        V acc[kG];
        T* za = dev + a * tile;
        for (int k = 0; k < kG; ++k)
            acc[k] = F::template Load<true>(za + 4 * k);
        for (int64_t b = 0; b < a; ++b) {
            const V l = F::Splat(row[b]);
            const T* zb = dev + b * tile;
            for (int k = 0; k < kG; ++k)
                acc[k] = acc[k] - l * F::template Load<true>(zb + 4 * k);
        }
        const V r = F::Splat(recip[a]);
        for (int k = 0; k < kG; ++k) {
            acc[k] = acc[k] * r;
            F::template Store<true>(za + 4 * k, acc[k]);
        }
    }
    // z'z, a = 0 .. q - 1 in order.
    for (int k = 0; k < kG; ++k) {
        V s = F::Splat(T(0));
        for (int64_t a = 0; a < q; ++a) {
            const V z = F::template Load<true>(dev + a * tile + 4 * k);
            s = s + z * z;
        }
        F::template Store<true>(sum + 4 * k, s);
    }
}

// Distances of observations [i0, i0 + m) into result[i0, i0 + m). Scratch: dev of
// q * kMahTile and sum of kMahTile elements, both on 16 bytes.
template <typename T>
void MahTile(const MahTileInput<T>& in, int64_t i0, int64_t m, T* dev, T* sum, T* result) {
    MahDeviations(in, i0, m, dev);
    MahSubstitute(in.rows, in.recip, in.q, dev, sum);
    for (int64_t i = 0; i < m; ++i)
        result[i0 + i] = sqrt(sum[i]);
}

// Packs the lower factor l (q x q, column-major) by rows.
template <typename T>
void PackFactorRows(const T* l, int64_t q, T* rows) {
    for (int64_t a = 0; a < q; ++a)
        for (int64_t b = 0; b <= a; ++b)
            *rows++ = l[a + b * q];
}

} // namespace brenn::stats

#endif
