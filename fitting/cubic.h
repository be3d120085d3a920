// What the cubic families share. Every cubic of the library is a Hermite cubic on each
// cell, fixed by the values and a derivative d[i] at each node; the families differ in
// how the derivatives come about. Here: the work area of a worker, the slopes, the
// blocked job that turns values and derivatives into coefficients, and the end
// routines that the boundary columns select.
#ifndef BRENN_FITTING_CUBIC_H
#define BRENN_FITTING_CUBIC_H

#include <initializer_list>

#include "fitting/construct.h"
#include "fitting/cubic_lanes.h"
#include "fitting/partition.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {

// Column 7 of the local families: no boundary condition (bcType 0).
constexpr int kBcColumnNone = 7;

// A worker's work area: one allocation of element vectors, released by the destructor
// on every path out of the worker.
template <typename T>
class CubicWork {
  public:
    // Elements: the sum of the counts given; false (-1001 for the caller) when the size
    // passes what can be allocated or the allocation fails.
    bool Allocate(std::initializer_list<int64_t> counts) {
        size_t bytes = 0;
        for (int64_t c : counts)
            if (!AddBytesFor(&bytes, c, sizeof(T))) return false;
        block_ = static_cast<T*>(brenn_serv_allocate(bytes > 0 ? bytes : sizeof(T), 128));
        next_ = block_;
        return block_ != nullptr;
    }
    // The next count elements of the block.
    T* Take(int64_t count) {
        T* p = next_;
        next_ += count;
        return p;
    }
    ~CubicWork() {
        if (block_ != nullptr) brenn_serv_deallocate(block_);
    }

  private:
    T* block_ = nullptr;
    T* next_ = nullptr;
};

// The partition as the cubic code reads it: the width of cell i and its reciprocal,
// from the reciprocal step on a uniform partition (the width then its reciprocal),
// else from the reciprocal widths that the worker computes once for all functions.
template <typename T, bool Uniform>
struct CubicCells {
    const T* x;
    T inverseStep;
    T step;
    T* r; // 1 / (x[i+1] - x[i]), nx-1 of them; null on a uniform partition
    T h(int64_t i) const { return Uniform ? step : x[i + 1] - x[i]; }
    T rcp(int64_t i) const { return Uniform ? inverseStep : r[i]; }
};

// The cells of a task; r (nx-1 elements) receives the reciprocal widths of a
// non-uniform partition.
template <typename T, bool Uniform>
inline CubicCells<T, Uniform> CellsOf(const FittingTask* task, T* r) {
    const T* x = static_cast<const T*>(task->x);
    CubicCells<T, Uniform> c{x, T(0), T(0), nullptr};
    if (Uniform) {
        c.inverseStep = static_cast<T>(task->nx - 1) / (x[1] - x[0]);
        c.step = T(1) / c.inverseStep;
    } else {
        ReciprocalWidths(x, task->nx - 1, r);
        c.r = r;
    }
    return c;
}

// Elements of the reciprocal widths in a work area.
template <bool Uniform>
inline int64_t ReciprocalElements(int64_t nx) {
    return Uniform ? 0 : nx - 1;
}

// m[i] = (y[i+1] - y[i]) / h[i], i from 0 to nx-2.
template <typename T, bool Columns, bool Uniform>
inline void Slopes(const YAccess<T, Columns>& y, const CubicCells<T, Uniform>& cells, int64_t nx,
                   T* m) {
    for (int64_t i = 0; i + 1 < nx; ++i)
        m[i] = (y[i + 1] - y[i]) * cells.rcp(i);
}

// The coefficients of the cells from the values and the node derivatives, function f's
// derivatives at d + f*nx: c0 = y[i], c1 = d[i], c2 = (3m - 2d[i] - d[i+1]) / h,
// c3 = (d[i] + d[i+1] - 2m) / h^2; a register of cells at a time, the rest one by one.
template <typename T, bool Columns, bool Uniform>
struct CubicCellJob {
    const FittingTask* task;
    CubicCells<T, Uniform> cells;
    const T* d;
    int64_t nx;
    int64_t order;

    void operator()(const BlockJob& job) const {
        for (int64_t f = job.fBegin; f < job.fEnd; ++f) {
            auto y = FunctionValues<T, Columns>(task, f);
            const T* df = d + f * nx;
            T* c = static_cast<T*>(task->sCoeff[f]) + job.cellBegin * order;
            int64_t i = job.cellBegin;
            constexpr int64_t kWidth = CellLanes<T>::kWidth;
            for (; i + kWidth <= job.cellEnd; i += kWidth, c += kWidth * order) {
                auto r = Uniform ? CellLanes<T>::Broadcast(cells.inverseStep)
                                 : CellLanes<T>::Load(cells.r + i);
                CellsAtOnce(y, df, r, i, c, order);
            }
            T y0 = y[i];
            for (; i < job.cellEnd; ++i, c += order) {
                T y1 = y[i + 1];
                T r = cells.rcp(i);
                T m = (y1 - y0) * r;
                T d0 = df[i], d1 = df[i + 1];
                c[0] = y0;
                c[1] = d0;
                c[2] = (T(3) * m - T(2) * d0 - d1) * r;
                c[3] = (d0 + d1 - T(2) * m) * (r * r);
                y0 = y1;
            }
        }
    }
};

template <typename T, bool Columns, bool Uniform>
inline void WriteCubicCells(FittingTask* task, const CubicCells<T, Uniform>& cells, const T* d,
                            int64_t nf, const threader* thr) {
    CubicCellJob<T, Columns, Uniform> job{task, cells, d, task->nx, task->sOrder};
    RunBlocks(task->nx, nf, thr, job);
}

// The checks that precede every cubic worker's writing: the pointers the worker reads
// and writes, and the equal end values of a periodic condition.
template <typename T, bool Columns>
inline int32_t CheckCubicTask(const FittingTask* task, int64_t nf) {
    if (int32_t s = CheckConstructionPointers(task, Columns)) return s;
    if (task->bcType == FIT_BC_PERIODIC) return CheckPeriodic<T, Columns>(task, nf);
    return FIT_STATUS_OK;
}

} // namespace brenn::fit

#endif
