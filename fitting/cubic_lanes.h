// The coefficients and reciprocal widths of several cubic cells at once: one SSE
// register holds a quantity of two (double) or four (float) neighbouring cells. Each
// lane does the operations of the one-cell formula in the same order, so every value
// has the bits the cell loop gives; only the cells are formed side by side.
#ifndef BRENN_FITTING_CUBIC_LANES_H
#define BRENN_FITTING_CUBIC_LANES_H

#include <xmmintrin.h>
#include <emmintrin.h>

#include <cstdint>

#include "fitting/task.h"

namespace brenn::fit {

template <typename T>
struct CellLanes;

template <>
struct CellLanes<double> {
    using V = __m128d;
    static constexpr int64_t kWidth = 2;
    static V Load(const double* p) { return _mm_loadu_pd(p); }
    static V Broadcast(double v) { return _mm_set1_pd(v); }
    // y[i] and y[i+1], neighbours in memory unless the values lie in columns.
    template <bool Columns>
    static V Values(const YAccess<double, Columns>& y, int64_t i) {
        if constexpr (Columns) return _mm_setr_pd(y[i], y[i + 1]);
        return _mm_loadu_pd(y.base + i);
    }
    static V Add(V a, V b) { return _mm_add_pd(a, b); }
    static V Sub(V a, V b) { return _mm_sub_pd(a, b); }
    static V Mul(V a, V b) { return _mm_mul_pd(a, b); }
    static V Div(V a, V b) { return _mm_div_pd(a, b); }
    static void StoreLanes(double* p, V v) { _mm_storeu_pd(p, v); }
    // The cells of the lanes, one after the other order elements apart: c0 to c3.
    static void Store(double* c, int64_t order, V c0, V c1, V c2, V c3) {
        _mm_storeu_pd(c, _mm_unpacklo_pd(c0, c1));
        _mm_storeu_pd(c + 2, _mm_unpacklo_pd(c2, c3));
        _mm_storeu_pd(c + order, _mm_unpackhi_pd(c0, c1));
        _mm_storeu_pd(c + order + 2, _mm_unpackhi_pd(c2, c3));
    }
};

template <>
struct CellLanes<float> {
    using V = __m128;
    static constexpr int64_t kWidth = 4;
    static V Load(const float* p) { return _mm_loadu_ps(p); }
    static V Broadcast(float v) { return _mm_set1_ps(v); }
    template <bool Columns>
    static V Values(const YAccess<float, Columns>& y, int64_t i) {
        if constexpr (Columns) return _mm_setr_ps(y[i], y[i + 1], y[i + 2], y[i + 3]);
        return _mm_loadu_ps(y.base + i);
    }
    static V Add(V a, V b) { return _mm_add_ps(a, b); }
    static V Sub(V a, V b) { return _mm_sub_ps(a, b); }
    static V Mul(V a, V b) { return _mm_mul_ps(a, b); }
    static V Div(V a, V b) { return _mm_div_ps(a, b); }
    static void StoreLanes(float* p, V v) { _mm_storeu_ps(p, v); }
    static void Store(float* c, int64_t order, V c0, V c1, V c2, V c3) {
        _MM_TRANSPOSE4_PS(c0, c1, c2, c3);
        _mm_storeu_ps(c, c0);
        _mm_storeu_ps(c + order, c1);
        _mm_storeu_ps(c + 2 * order, c2);
        _mm_storeu_ps(c + 3 * order, c3);
    }
};

// r[i] = 1 / (x[i+1] - x[i]), i below count, a register of cells at a time (packed
// division: the divider's time per cell falls by the width).
template <typename T>
inline void ReciprocalWidths(const T* x, int64_t count, T* r) {
    using L = CellLanes<T>;
    int64_t i = 0;
    const auto one = L::Broadcast(T(1));
    for (; i + L::kWidth <= count; i += L::kWidth)
        L::StoreLanes(r + i, L::Div(one, L::Sub(L::Load(x + i + 1), L::Load(x + i))));
    for (; i < count; ++i)
        r[i] = T(1) / (x[i + 1] - x[i]);
}

// Cells i to i + kWidth - 1 from the values y, the derivatives d and the reciprocal
// widths r: c0 = y[i], c1 = d[i], c2 = (3m - 2d[i] - d[i+1]) * r,
// c3 = (d[i] + d[i+1] - 2m) * r^2 with m = (y[i+1] - y[i]) * r.
template <typename T, bool Columns>
inline void CellsAtOnce(const YAccess<T, Columns>& y, const T* d, typename CellLanes<T>::V r,
                        int64_t i, T* c, int64_t order) {
    using L = CellLanes<T>;
    auto y0 = L::template Values<Columns>(y, i);
    auto y1 = L::template Values<Columns>(y, i + 1);
    auto d0 = L::Load(d + i), d1 = L::Load(d + i + 1);
    auto m = L::Mul(L::Sub(y1, y0), r);
    auto c2 = L::Mul(
        L::Sub(L::Sub(L::Mul(L::Broadcast(T(3)), m), L::Mul(L::Broadcast(T(2)), d0)), d1), r);
    auto c3 = L::Mul(L::Sub(L::Add(d0, d1), L::Mul(L::Broadcast(T(2)), m)), L::Mul(r, r));
    L::Store(c, order, y0, d0, c2, c3);
}

} // namespace brenn::fit

#endif
