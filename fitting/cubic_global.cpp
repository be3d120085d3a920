// Natural and default cubic splines: the node derivatives of the C2 cubic, from the
// tridiagonal system h[i]*d[i-1] + 2*(h[i-1] + h[i])*d[i] + h[i-1]*d[i+1] =
// 3*(h[i]*m[i-1] + h[i-1]*m[i]) with the end rows of the boundary column. The matrix
// depends on the partition only: one function is solved at once, several share one
// factorization. The periodic system (nx-1 unknowns, cyclic) is solved by one
// elimination pass that carries its corners (cyclic_tridiag.h), its multipliers kept
// for further functions. On a uniform partition the rows are divided by the step.
#include "fitting/cubic.h"
#include "fitting/cyclic_tridiag.h"
#include "frame/export.h"
#include "platform/tridiag.h"

namespace brenn::fit {
namespace {

template <typename T>
inline void SolveOnce(int64_t n, int64_t nrhs, T* dl, T* d, T* du, T* b) {
    int64_t info = 0;
    if constexpr (sizeof(T) == sizeof(double))
        ddtsvb_4dfl(&n, &nrhs, dl, d, du, b, &info);
    else
        sdtsvb_4dfl(&n, &nrhs, dl, d, du, b, &info);
}

template <typename T>
inline void Factor(int64_t n, T* dl, T* d, T* du, T* du2, int64_t* ipiv) {
    int64_t info = 0;
    if constexpr (sizeof(T) == sizeof(double))
        ddttrfb_4dfl(&n, dl, d, du, du2, ipiv, &info);
    else
        sdttrfb_4dfl(&n, dl, d, du, du2, ipiv, &info);
}

template <typename T>
inline void SolveFactored(int64_t n, const T* dl, const T* d, const T* du, const T* du2,
                          const int64_t* ipiv, T* b) {
    int64_t info = 0, one = 1;
    if constexpr (sizeof(T) == sizeof(double))
        ddttrsb_4dfl(&n, &one, dl, d, du, du2, ipiv, b, &info);
    else
        sdttrsb_4dfl(&n, &one, dl, d, du, du2, ipiv, b, &info);
}

// The system of one boundary column. hh is the width in the rows (1 on a uniform
// partition, whose rows are divided by the step), h the true width for the terms of
// a second derivative.
template <typename T, bool Columns, bool Uniform, int Column>
struct GlobalSystem {
    static constexpr bool kPeriodic = Column == 6;
    static constexpr bool kNotAKnot = Column == 0;
    static constexpr bool kLeftFirst = Column == 2 || Column == 3;
    static constexpr bool kRightFirst = Column == 2 || Column == 4;
    static constexpr bool kLeftSecond = Column == 4 || Column == 5;
    static constexpr bool kRightSecond = Column == 3 || Column == 5;

    CubicCells<T, Uniform> cells;
    int64_t nx;
    const T* bc;

    T hh(int64_t i) const { return Uniform ? T(1) : cells.x[i + 1] - cells.x[i]; }
    T m(const YAccess<T, Columns>& y, int64_t i) const { return (y[i + 1] - y[i]) * cells.rcp(i); }

    // The matrix of the open (not periodic) system.
    void Matrix(T* dl, T* d, T* du) const {
        int64_t n = nx;
        for (int64_t i = 1; i + 1 < n; ++i) {
            T hl = hh(i - 1), hr = hh(i);
            dl[i - 1] = hr;
            d[i] = T(2) * (hl + hr);
            du[i] = hl;
        }
        if (kNotAKnot) {
            d[0] = hh(1);
            du[0] = hh(0) + hh(1);
            dl[n - 2] = hh(n - 3) + hh(n - 2);
            d[n - 1] = hh(n - 3);
        } else {
            d[0] = kLeftFirst ? T(1) : T(2);
            du[0] = kLeftFirst ? T(0) : T(1);
            dl[n - 2] = kRightFirst ? T(0) : T(1);
            d[n - 1] = kRightFirst ? T(1) : T(2);
        }
    }

    // Row i of the periodic system of one function, formed when the solve reads it:
    // the cell before node 0 is the last one.
    struct PeriodicRows {
        const GlobalSystem* sys;
        YAccess<T, Columns> y;
        int64_t n; // unknowns
        CyclicRow<T> Row(int64_t i) const {
            int64_t left = i == 0 ? n - 1 : i - 1;
            T hl = sys->hh(left), hr = sys->hh(i);
            T r = T(3) * (hr * sys->m(y, left) + hl * sys->m(y, i));
            return {hr, T(2) * (hl + hr), hl, r};
        }
    };

    // The right-hand side of one function, open system.
    void Rhs(const YAccess<T, Columns>& y, T* b) const {
        int64_t n = nx;
        T m0 = m(y, 0);
        T mPrev = m0;
        T hPrev = hh(0);
        for (int64_t i = 1; i + 1 < n; ++i) {
            T mi = m(y, i), hi = hh(i);
            b[i] = T(3) * (hi * mPrev + hPrev * mi);
            mPrev = mi;
            hPrev = hi;
        }
        T mLast = mPrev; // m[nx-2]
        if (kNotAKnot) {
            T m1 = m(y, 1), mBefore = m(y, n - 3);
            T h0 = hh(0), h1 = hh(1), w = h0 + h1;
            b[0] = ((h0 + T(2) * w) * h1 * m0 + h0 * h0 * m1) / w;
            T hn = hh(n - 2), hp = hh(n - 3), v = hn + hp;
            b[n - 1] = (hn * hn * mBefore + (T(2) * v + hn) * hp * mLast) / v;
        } else {
            if (kLeftFirst)
                b[0] = bc[0];
            else if (kLeftSecond)
                b[0] = T(3) * m0 - T(0.5) * cells.h(0) * bc[0];
            else
                b[0] = T(3) * m0;
            if (kRightFirst)
                b[n - 1] = bc[1];
            else if (kRightSecond)
                b[n - 1] = T(3) * mLast + T(0.5) * cells.h(nx - 2) * bc[1];
            else
                b[n - 1] = T(3) * mLast;
        }
    }

    // The not-a-knot spline of three points: the parabola through them.
    void Parabola(const YAccess<T, Columns>& y, T* d) const {
        T h0 = hh(0), h1 = hh(1), m0 = m(y, 0), m1 = m(y, 1), w = h0 + h1;
        d[0] = ((T(2) * h0 + h1) * m0 - h0 * m1) / w;
        d[1] = (h1 * m0 + h0 * m1) / w;
        d[2] = ((T(2) * h1 + h0) * m1 - h1 * m0) / w;
    }
};

// Work elements of the open solve: the pivot indices first, at the block's alignment,
// then the diagonals and the fill of the factorization (the pivots and the fill for
// several functions only).
template <typename T>
inline int64_t PivotElements(int64_t n, bool factored) {
    return factored ? n * static_cast<int64_t>(sizeof(int64_t) / sizeof(T)) : 0;
}

template <typename T>
inline int64_t OpenElements(int64_t n, bool factored) {
    return PivotElements<T>(n, factored) + (factored ? 4 : 3) * n;
}

// The derivatives of nf functions (function f's at d + f*nx) from the open system.
template <typename T, bool Columns, bool Uniform, int Column>
void OpenDerivatives(const GlobalSystem<T, Columns, Uniform, Column>& sys, const FittingTask* task,
                     int64_t nf, T* work, T* d) {
    int64_t n = sys.nx;
    if (GlobalSystem<T, Columns, Uniform, Column>::kNotAKnot && n == 3) {
        for (int64_t f = 0; f < nf; ++f)
            sys.Parabola(FunctionValues<T, Columns>(task, f), d + f * n);
        return;
    }
    bool factored = nf > 1;
    auto* ipiv = reinterpret_cast<int64_t*>(work);
    T* dl = work + PivotElements<T>(n, factored);
    T* dd = dl + n;
    T* du = dd + n;
    T* du2 = du + n;
    sys.Matrix(dl, dd, du);
    if (!factored) {
        sys.Rhs(FunctionValues<T, Columns>(task, 0), d);
        SolveOnce<T>(n, 1, dl, dd, du, d);
        return;
    }
    Factor<T>(n, dl, dd, du, du2, ipiv);
    for (int64_t f = 0; f < nf; ++f) {
        T* df = d + f * n;
        sys.Rhs(FunctionValues<T, Columns>(task, f), df);
        SolveFactored<T>(n, dl, dd, du, du2, ipiv, df);
    }
}

// Work elements of the periodic solve on n unknowns: the reduced super-diagonal and
// corner column, and the multipliers kept for several functions.
inline int64_t PeriodicElements(int64_t n, bool factored) {
    return n < 2 ? 0 : (factored ? 5 : 2) * (n - 1);
}

// The derivatives of nf periodic functions: nx-1 unknowns, the last node's derivative
// that of the first.
template <typename T, bool Columns, bool Uniform, int Column>
void PeriodicDerivatives(const GlobalSystem<T, Columns, Uniform, Column>& sys,
                         const FittingTask* task, int64_t nf, T* work, T* d) {
    int64_t nx = sys.nx, n = nx - 1;
    if (n == 1) {
        // One cell whose ends agree: the derivative of the cell's line, at both ends.
        for (int64_t f = 0; f < nf; ++f) {
            auto y = FunctionValues<T, Columns>(task, f);
            d[f * nx] = d[f * nx + 1] = sys.m(y, 0);
        }
        return;
    }
    T* w = work;
    CyclicFactors<T> fac{w, w + n - 1, w + 2 * (n - 1), w + 3 * (n - 1), w + 4 * (n - 1), T(0)};
    using Rows = typename GlobalSystem<T, Columns, Uniform, Column>::PeriodicRows;
    for (int64_t f = 0; f < nf; ++f) {
        T* df = d + f * nx;
        Rows rows{&sys, FunctionValues<T, Columns>(task, f), n};
        if (nf == 1)
            SolveCyclic<T, CyclicPass::kFactorSolve>(n, rows, fac, df);
        else if (f == 0)
            SolveCyclic<T, CyclicPass::kFactorKeepSolve>(n, rows, fac, df);
        else
            SolveCyclic<T, CyclicPass::kSolve>(n, rows, fac, df);
        df[nx - 1] = df[0];
    }
}

template <typename T, bool Columns, bool Uniform, int Column>
int32_t GlobalWorker(FittingTask* task, const threader* thr) {
    using System = GlobalSystem<T, Columns, Uniform, Column>;
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckCubicTask<T, Columns>(task, nf)) return s;
    bool factored = nf > 1;
    int64_t solveElements =
        System::kPeriodic ? PeriodicElements(nx - 1, factored) : OpenElements<T>(nx, factored);
    // The solve's work first, at the block's alignment; the reciprocal widths and the
    // derivatives.
    CubicWork<T> work;
    if (!work.Allocate({solveElements, ReciprocalElements<Uniform>(nx), nf * nx}))
        return FIT_STATUS_NO_MEMORY;
    T* solveWork = work.Take(solveElements);
    System sys{CellsOf<T, Uniform>(task, work.Take(ReciprocalElements<Uniform>(nx))), nx,
               static_cast<const T*>(task->bc)};
    T* d = work.Take(nf * nx);
    if constexpr (System::kPeriodic)
        PeriodicDerivatives(sys, task, nf, solveWork, d);
    else
        OpenDerivatives(sys, task, nf, solveWork, d);
    WriteCubicCells<T, Columns, Uniform>(task, sys.cells, d, nf, thr);
    return FIT_STATUS_OK;
}

template <typename T, bool Columns, bool Uniform>
constexpr ConstructWorker kGlobalRow[7] = {
    GlobalWorker<T, Columns, Uniform, 0>, GlobalWorker<T, Columns, Uniform, 1>,
    GlobalWorker<T, Columns, Uniform, 2>, GlobalWorker<T, Columns, Uniform, 3>,
    GlobalWorker<T, Columns, Uniform, 4>, GlobalWorker<T, Columns, Uniform, 5>,
    GlobalWorker<T, Columns, Uniform, 6>};

// [yForm][xForm][bcColumn]
template <typename T>
constexpr const ConstructWorker* kGlobalWorkers[2][2] = {
    {kGlobalRow<T, true, false>, kGlobalRow<T, true, true>},
    {kGlobalRow<T, false, false>, kGlobalRow<T, false, true>}};

// The dispatch of both families. Natural takes no flags; Default passes them on to a
// worker that, for now, knows none. Natural takes two points, but not for not-a-knot.
template <typename T>
int32_t Global(FitTaskHandle handle, int64_t flags, const threader* thr, bool natural) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (natural && flags != 0) return FIT_STATUS_FLAG_REFUSED;
    int64_t least = natural ? 2 : 3;
    if (task->nx < least || (task->nx == 2 && task->bcType == FIT_BC_NOT_A_KNOT))
        return FIT_STATUS_BAD_NX;
    int yForm = YForm(task->yHint);
    if (yForm < 0) return FIT_STATUS_BAD_Y_HINT;
    int column = BcColumn(task->bcType);
    if (column < 0) return FIT_STATUS_BAD_BC_TYPE;
    int64_t bcType = task->bcType;
    bool needsBc = bcType == 12 || bcType == 24 || bcType == 36 || bcType == 48;
    if (needsBc && task->bc == nullptr) return FIT_STATUS_BAD_BC;
    if (flags != 0) return FIT_STATUS_FLAG_REFUSED;
    return kGlobalWorkers<T>[yForm][XForm(task->xHint)][column](task, thr);
}

} // namespace
} // namespace brenn::fit

// The double and single entries of one family.
#define BRENN_GLOBAL_CUBIC_ENTRIES(Name, natural)                                                  \
    BRENN_EXPORT int32_t brenn_df_kernel_dDF##Name##CubicSpline1D(                                 \
        FitTaskHandle task, int64_t, int64_t flags, const threader* thr) {                         \
        return brenn::fit::Global<double>(task, flags, thr, natural);                              \
    }                                                                                              \
    BRENN_EXPORT int32_t brenn_df_kernel_sDF##Name##CubicSpline1D(                                 \
        FitTaskHandle task, int64_t, int64_t flags, const threader* thr) {                         \
        return brenn::fit::Global<float>(task, flags, thr, natural);                               \
    }

BRENN_GLOBAL_CUBIC_ENTRIES(Natural, true)
BRENN_GLOBAL_CUBIC_ENTRIES(Default, false)
