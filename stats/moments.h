// Running moments of a set of variables and the merge of two such sets by weight.
// Means and raw moments are weighted averages (on the data's scale); central moments
// and the cross-product matrix are unnormalised sums of powers of the deviations, so
// that parts computed apart (blocks, threads, former calls) join without loss:
// the pairwise update of Chan, Golub and LeVeque, extended to orders 3 and 4 by Pebay.
#ifndef BRENN_STATS_MOMENTS_H
#define BRENN_STATS_MOMENTS_H

#include <stdint.h>

#include "platform/bytes.h"
#include "stats/four.h"

namespace brenn::stats {

template <typename T>
struct MomentState {
    T weight[2]; // sum of weights, sum of squared weights
    T* mean;     // q weighted means
    T* raw[3];   // q raw moments of orders 2, 3, 4 (weighted averages)
    T* cen[3];   // q central sums of orders 2, 3, 4: sum of w d^k
    T* cross;    // q x q, lower triangle column-major: (j, l), j >= l, at j + l * q
};

// Lays a state out over `memory`: 7 arrays of q elements, and a q x q matrix. With
// `padded` every array starts on a 64-byte boundary (when memory does), for the
// aligned versions of the kernels. Returns the element after the last one used.
template <typename T>
T* LayOutState(MomentState<T>& s, T* memory, int64_t q, bool matrix, bool padded) {
    const int64_t stride = padded ? PadTo64Bytes(q) : q;
    s.weight[0] = s.weight[1] = 0;
    s.mean = memory;
    for (int k = 0; k < 3; ++k)
        s.raw[k] = memory + (1 + k) * stride;
    for (int k = 0; k < 3; ++k)
        s.cen[k] = memory + (4 + k) * stride;
    T* end = memory + 7 * stride;
    s.cross = matrix ? end : nullptr;
    return matrix ? end + (padded ? PadTo64Bytes(q * q) : q * q) : end;
}

// Adds the bytes that LayOutState uses for q variables of `width` bytes to *total;
// false when the size overflows (platform/bytes.h).
inline bool AddStateBytes(size_t* total, int64_t q, bool matrix, bool padded, size_t width) {
    size_t vector, square = 0;
    if (!BytesFor(q, width, &vector)) return false;
    if (matrix && !BytesFor(q, vector, &square)) return false;
    // Past these checks q * q and the padding of q and of q * q fit an int64_t.
    const int64_t stride = padded ? PadTo64Bytes(q) : q;
    const int64_t squareElements = !matrix ? 0 : padded ? PadTo64Bytes(q * q) : q * q;
    return AddBytesFor(total, stride, 7 * width) && AddBytesFor(total, squareElements, width);
}

// Lower triangle of a (n x n) += alpha x x'. A plain loop, not the BLAS: merges run
// inside the threader's workers, where the BLAS must not start threads of its own.
template <typename T>
void Syr(int64_t n, T alpha, const T* x, T* a) {
    for (int64_t l = 0; l < n; ++l) {
        const T t = alpha * x[l];
        for (int64_t j = l; j < n; ++j)
            a[j + l * n] += x[j] * t;
    }
}

// One variable's part of a state: the mean, the raw moments of orders 2 to 4 and the
// central sums of orders 2 to 4.
template <typename T>
struct Moments1 {
    T mean, raw[3], cen[3];
};

// Joins b into a for one variable, moments up to `order` (1 to 4): fa and fb are the
// two parts' shares of the joint weight n, nab = n * fa * fb. Returns the difference of
// the means, b's minus a's.
template <typename T>
inline T JoinMoments(Moments1<T>& a, const Moments1<T>& b, int order, T fa, T fb, T nab) {
    T d = b.mean - a.mean;
    if (order >= 4) {
        T d2 = d * d;
        a.cen[2] += b.cen[2] + d2 * d2 * nab * (fa * fa - fa * fb + fb * fb) +
                    T(6) * d2 * (fa * fa * b.cen[0] + fb * fb * a.cen[0]) +
                    T(4) * d * (fa * b.cen[1] - fb * a.cen[1]);
    }
    if (order >= 3)
        a.cen[1] +=
            b.cen[1] + d * d * d * nab * (fa - fb) + T(3) * d * (fa * b.cen[0] - fb * a.cen[0]);
    if (order >= 2) a.cen[0] += b.cen[0] + d * d * nab;
    for (int k = 0; k + 2 <= order; ++k)
        a.raw[k] = a.raw[k] * fa + b.raw[k] * fb;
    a.mean += d * fb;
    return d;
}

template <typename T>
inline Moments1<T> MomentsOf(const MomentState<T>& s, int64_t j, int order) {
    Moments1<T> m{s.mean[j], {}, {}};
    for (int k = 0; k + 2 <= order; ++k) {
        m.raw[k] = s.raw[k][j];
        m.cen[k] = s.cen[k][j];
    }
    return m;
}

template <typename T>
inline void StoreMoments(MomentState<T>& s, int64_t j, const Moments1<T>& m, int order) {
    s.mean[j] = m.mean;
    for (int k = 0; k + 2 <= order; ++k) {
        s.raw[k][j] = m.raw[k];
        s.cen[k][j] = m.cen[k];
    }
}

// Joins b into a: moments up to `order` (1 to 4). With a matrix, b's cross-product is
// added unless bCrossAdded says the caller has already added it into a's matrix; the
// term of the two means is always added. `delta` is q elements of scratch.
template <typename T>
void MergeState(MomentState<T>& a, const MomentState<T>& b, int order, int64_t q, bool bCrossAdded,
                T* delta) {
    T bw = b.weight[0];
    if (bw == 0) return; // nothing was seen: leave a exactly as it is
    T aw = a.weight[0];
    T n = aw + bw;
    T fa = aw / n, fb = bw / n;
    T nab = n * fa * fb; // aw * bw / n
    for (int64_t j = 0; j < q; ++j) {
        Moments1<T> m = MomentsOf(a, j, order);
        delta[j] = JoinMoments(m, MomentsOf(b, j, order), order, fa, fb, nab);
        StoreMoments(a, j, m, order);
    }
    if (a.cross != nullptr) {
        if (!bCrossAdded)
            for (int64_t l = 0; l < q; ++l)
                for (int64_t j = l; j < q; ++j)
                    a.cross[j + l * q] += b.cross[j + l * q];
        if (aw != 0) Syr(q, nab, delta, a.cross);
    }
    a.weight[0] = n;
    a.weight[1] += b.weight[1];
}

} // namespace brenn::stats

#endif
