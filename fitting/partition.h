// Nodes and knots as the construction and evaluation code reads them: a partition is
// either the caller's nx values or, with the uniform hint, its two ends; the knots of
// the quadratic knot form are the caller's nx+1 values, its two ends (evenly spaced
// knots) or, when none are given, the midpoints of the cells.
#ifndef BRENN_FITTING_PARTITION_H
#define BRENN_FITTING_PARTITION_H

#include "fitting/task.h"

namespace brenn::fit {

template <typename T>
struct Nodes {
    const T* x;
    bool uniform;
    T x0, step;
    int64_t last; // nx-1

    // A uniform partition's right end is the one given, not x0 + (nx-1)*step, which
    // rounding can put beside it: knots and sites placed at the end must meet it.
    T operator[](int64_t i) const {
        if (!uniform) return x[i];
        return i == last ? x[1] : x0 + static_cast<T>(i) * step;
    }
};

template <typename T>
inline Nodes<T> NodesOf(const FittingTask* task) {
    const T* x = static_cast<const T*>(task->x);
    bool uniform = (task->xHint & FIT_X_UNIFORM) != 0;
    T step = uniform ? (x[1] - x[0]) / static_cast<T>(task->nx - 1) : T(0);
    return {x, uniform, x[0], step, task->nx - 1};
}

template <typename T>
struct Knots {
    enum Mode { kGiven, kEven, kMidpoints } mode;
    const T* t;
    Nodes<T> x;
    int64_t nx;
    T t0, step;

    T operator[](int64_t j) const {
        switch (mode) {
        case kGiven:
            return t[j];
        case kEven:
            return j == nx ? t[1] : t0 + static_cast<T>(j) * step;
        default:
            if (j == 0) return x[0];
            if (j == nx) return x[nx - 1];
            return (x[j - 1] + x[j]) * T(0.5);
        }
    }
};

template <typename T>
inline Knots<T> KnotsOf(const FittingTask* task) {
    Knots<T> k{};
    k.t = static_cast<const T*>(task->ic);
    k.x = NodesOf<T>(task);
    k.nx = task->nx;
    if (k.t == nullptr) {
        k.mode = Knots<T>::kMidpoints;
    } else if (task->icType & FIT_IC_UNIFORM) {
        k.mode = Knots<T>::kEven;
        k.t0 = k.t[0];
        k.step = (k.t[1] - k.t[0]) / static_cast<T>(task->nx);
    } else {
        k.mode = Knots<T>::kGiven;
    }
    return k;
}

} // namespace brenn::fit

#endif
