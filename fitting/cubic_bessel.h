// The Bessel derivative, shared by the Bessel and Hyman cubics: the slope at a node of
// the parabola through the node and its two neighbours; at an end without a condition,
// of the parabola through the end three points; periodic, across the seam.
#ifndef BRENN_FITTING_CUBIC_BESSEL_H
#define BRENN_FITTING_CUBIC_BESSEL_H

#include "fitting/cubic_local.h"

namespace brenn::fit {

// The parabola through three points, left and right widths hl, hr, slopes ml, mr: its
// slope at the middle point, and at the first one.
template <typename T>
inline T ParabolaMiddle(T hl, T hr, T ml, T mr) {
    return (hr * ml + hl * mr) / (hl + hr);
}

template <typename T>
inline T ParabolaFirst(T h0, T h1, T m0, T m1) {
    return ((T(2) * h0 + h1) * m0 - h0 * m1) / (h0 + h1);
}

struct BesselRule {
    template <typename T, bool Uniform>
    static void Derivatives(const CubicEnd<T>& e, const CubicCells<T, Uniform>& cells,
                            const FittingTask*, int64_t, int) {
        int64_t n = e.nx;
        const T* m = e.m;
        if (Uniform) {
            for (int64_t i = 1; i + 1 < n; ++i)
                e.d[i] = (m[i - 1] + m[i]) / T(2);
            e.d[0] = (T(3) * m[0] - m[1]) / T(2);
            e.d[n - 1] = (T(3) * m[n - 2] - m[n - 3]) / T(2);
            return;
        }
        T hl = cells.h(0);
        for (int64_t i = 1; i + 1 < n; ++i) {
            T hr = cells.h(i);
            e.d[i] = ParabolaMiddle(hl, hr, m[i - 1], m[i]);
            hl = hr;
        }
        e.d[0] = ParabolaFirst(cells.h(0), cells.h(1), m[0], m[1]);
        // The mirror image: the sign of the slopes and of the derivative both turn.
        e.d[n - 1] = ParabolaFirst(cells.h(n - 2), cells.h(n - 3), m[n - 2], m[n - 3]);
    }

    // Node 0 between the last cell and the first.
    template <typename T>
    static void PeriodicLeft(const CubicEnd<T>& e) {
        int64_t n = e.nx;
        if (e.uniform)
            e.d[0] = (e.m[n - 2] + e.m[0]) / T(2);
        else
            e.d[0] = ParabolaMiddle(e.h(n - 2), e.h(0), e.m[n - 2], e.m[0]);
    }
    // Without a condition the ends keep the end parabolas' slopes.
    template <typename T>
    static void NoneLeft(const CubicEnd<T>&) {}
    template <typename T>
    static void NoneRight(const CubicEnd<T>&) {}
};

} // namespace brenn::fit

#endif
