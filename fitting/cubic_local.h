// The frame of the local cubic families (Akima, Bessel, Hyman, Hermite): the end
// routines that the boundary columns select, the 20-entry table of a family in one
// precision (eight left ends, eight right ends, four workers), its dispatch, and the
// worker that runs a family's derivative rule, the two end routines and the family's
// last step for each function before the cells are written.
#ifndef BRENN_FITTING_CUBIC_LOCAL_H
#define BRENN_FITTING_CUBIC_LOCAL_H

#include "fitting/cubic.h"
#include "frame/export.h"

namespace brenn::fit {

// The first-row equation of not-a-knot folded with the second row of the global
// system: the cubic through the first three points whose slope at x[1] is d[1] has
// the slope d0 at x[0]. h0, h1 are the first two widths, m0, m1 the first two slopes.
template <typename T>
inline T NotAKnotEnd(T h0, T h1, T m0, T m1, T d1) {
    T w = h0 + h1;
    return ((h0 * h0 * m1 + (h0 + T(2) * w) * h1 * m0) / w - d1 * w) / h1;
}

template <typename T>
inline T NotAKnotEndUniform(T m0, T m1, T d1) {
    return (m1 + T(5) * m0) / T(2) - T(2) * d1;
}

// What an end routine reads: the slopes (m[0] to m[nx-2]), the partition, the
// condition values, and the node derivatives it changes.
template <typename T>
struct CubicEnd {
    int64_t nx;
    T* m; // m[-2] and m[nx-1], m[nx] are there for the families that extend the slopes
    const T* x;
    bool uniform;
    T step; // uniform: 1 / inverseStep
    const T* bc;
    T* d;
    T h(int64_t i) const { return uniform ? step : x[i + 1] - x[i]; }
};

template <typename T>
using CubicEndRoutine = void (*)(const CubicEnd<T>& e);

// The end routines of the first six columns, the same for every local family.
template <typename T>
struct CubicEnds {
    static void NotAKnotLeft(const CubicEnd<T>& e) {
        e.d[0] = e.uniform ? NotAKnotEndUniform(e.m[0], e.m[1], e.d[1])
                           : NotAKnotEnd(e.h(0), e.h(1), e.m[0], e.m[1], e.d[1]);
    }
    static void NotAKnotRight(const CubicEnd<T>& e) {
        int64_t n = e.nx;
        // The mirror image: widths, slopes and the derivative taken from the right.
        e.d[n - 1] = e.uniform
                         ? NotAKnotEndUniform(e.m[n - 2], e.m[n - 3], e.d[n - 2])
                         : NotAKnotEnd(e.h(n - 2), e.h(n - 3), e.m[n - 2], e.m[n - 3], e.d[n - 2]);
    }
    static void FreeLeft(const CubicEnd<T>& e) { e.d[0] = T(1.5) * e.m[0] - T(0.5) * e.d[1]; }
    static void FreeRight(const CubicEnd<T>& e) {
        int64_t n = e.nx;
        e.d[n - 1] = T(1.5) * e.m[n - 2] - T(0.5) * e.d[n - 2];
    }
    static void FirstLeft(const CubicEnd<T>& e) { e.d[0] = e.bc[0]; }
    static void FirstRight(const CubicEnd<T>& e) { e.d[e.nx - 1] = e.bc[1]; }
    static void SecondLeft(const CubicEnd<T>& e) {
        e.d[0] = T(1.5) * e.m[0] - T(0.25) * e.h(0) * e.bc[0] - T(0.5) * e.d[1];
    }
    static void SecondRight(const CubicEnd<T>& e) {
        int64_t n = e.nx;
        e.d[n - 1] = T(1.5) * e.m[n - 2] + T(0.25) * e.h(n - 2) * e.bc[1] - T(0.5) * e.d[n - 2];
    }
    static void Nothing(const CubicEnd<T>&) {}
    // The right end of a periodic condition: the derivative the left end got.
    static void PeriodicRight(const CubicEnd<T>& e) { e.d[e.nx - 1] = e.d[0]; }
};

// The 20 entries of a local family in one precision: the left and right end routines
// by bcColumn, and the workers by yForm, xForm.
using LocalWorker = int32_t (*)(FittingTask* task, int64_t xHint, int64_t yHint, int64_t flags,
                                int bcColumn, const threader* thr);

template <typename T>
struct LocalTable {
    CubicEndRoutine<T> left[8];
    CubicEndRoutine<T> right[8];
    LocalWorker workers[2][2];
};

// The end routines of a family whose periodic left end is Family::PeriodicLeft and
// whose column-7 left end is Family::NoneLeft (right: NoneRight).
template <typename T, class Family>
constexpr LocalTable<T> MakeLocalTable(LocalWorker w00, LocalWorker w01, LocalWorker w10,
                                       LocalWorker w11) {
    using E = CubicEnds<T>;
    return LocalTable<T>{
        {E::NotAKnotLeft, E::FreeLeft, E::FirstLeft, E::FirstLeft, E::SecondLeft, E::SecondLeft,
         Family::template PeriodicLeft<T>, Family::template NoneLeft<T>},
        {E::NotAKnotRight, E::FreeRight, E::FirstRight, E::SecondRight, E::FirstRight,
         E::SecondRight, E::PeriodicRight, Family::template NoneRight<T>},
        {{w00, w01}, {w10, w11}}};
}

// The derivative rule of a family and its ends, run for each function: slopes into m
// (m[-2] to m[nx] exist for the families that extend them), the family's derivatives,
// the end routines of the column, the family's last step. Then the cells.
template <typename T, class Family>
const LocalTable<T>& LocalTableOf();

template <typename T, class Family, bool Columns, bool Uniform>
int32_t LocalCubicWorker(FittingTask* task, int64_t, int64_t, int64_t, int bcColumn,
                         const threader* thr) {
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckCubicTask<T, Columns>(task, nf)) return s;
    CubicWork<T> work;
    if (!work.Allocate({nx + 3, nf * nx, ReciprocalElements<Uniform>(nx)}))
        return FIT_STATUS_NO_MEMORY;
    T* m = work.Take(nx + 3) + 2;
    T* d = work.Take(nf * nx);
    CubicCells<T, Uniform> cells =
        CellsOf<T, Uniform>(task, work.Take(ReciprocalElements<Uniform>(nx)));
    const LocalTable<T>& table = LocalTableOf<T, Family>();
    CubicEnd<T> end{nx, m, cells.x, Uniform, cells.step, static_cast<const T*>(task->bc), d};
    for (int64_t f = 0; f < nf; ++f) {
        auto y = FunctionValues<T, Columns>(task, f);
        Slopes(y, cells, nx, m);
        end.d = d + f * nx;
        Family::template Derivatives<T, Uniform>(end, cells, task, f, bcColumn);
        table.left[bcColumn](end);
        table.right[bcColumn](end);
        Family::template Finish<T>(end, bcColumn);
    }
    WriteCubicCells<T, Columns, Uniform>(task, cells, d, nf, thr);
    return FIT_STATUS_OK;
}

template <typename T, class Family>
const LocalTable<T>& LocalTableOf() {
    static constexpr LocalTable<T> table = MakeLocalTable<T, Family>(
        LocalCubicWorker<T, Family, true, false>, LocalCubicWorker<T, Family, true, true>,
        LocalCubicWorker<T, Family, false, false>, LocalCubicWorker<T, Family, false, true>);
    return table;
}

// The local dispatch, in order: nx below the family's least, the values' storage
// hint, the boundary code and the values it needs.
// A family's own checks, last (Hermite's derivatives), come through check.
template <typename T, class Family>
int32_t DispatchLocal(FitTaskHandle handle, int64_t flags, const threader* thr,
                      int32_t (*check)(const FittingTask*) = nullptr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (task->nx < Family::kLeastNx) return FIT_STATUS_BAD_NX;
    int yForm = YForm(task->yHint);
    if (yForm < 0) return FIT_STATUS_BAD_Y_HINT;
    int bcColumn = task->bcType == FIT_BC_NONE ? kBcColumnNone : BcColumn(task->bcType);
    if (bcColumn < 0) return FIT_STATUS_BAD_BC_TYPE;
    int64_t bcType = task->bcType;
    bool needsBc = bcType == 12 || bcType == 24 || bcType == 36 || bcType == 48 ||
                   (bcType == FIT_BC_PERIODIC && (task->sType == 0 || task->sType == 3));
    if (needsBc && task->bc == nullptr) return FIT_STATUS_BAD_BC;
    if (check != nullptr)
        if (int32_t s = check(task)) return s;
    return LocalTableOf<T, Family>().workers[yForm][XForm(task->xHint)](
        task, task->xHint, task->yHint, flags, bcColumn, thr);
}

// A family without a last step.
struct NoFinish {
    template <typename T>
    static void Finish(const CubicEnd<T>&, int) {}
};

} // namespace brenn::fit

// The double and single entries of a local family, dispatching to Family with the
// family's own checks (a function of the task, or nullptr).
#define BRENN_LOCAL_CUBIC_ENTRIES(Name, Family, check)                                             \
    BRENN_EXPORT int32_t brenn_df_kernel_dDF##Name##CubicSpline1D(                                 \
        FitTaskHandle task, int64_t, int64_t flags, const threader* thr) {                         \
        return brenn::fit::DispatchLocal<double, Family>(task, flags, thr, check);                 \
    }                                                                                              \
    BRENN_EXPORT int32_t brenn_df_kernel_sDF##Name##CubicSpline1D(                                 \
        FitTaskHandle task, int64_t, int64_t flags, const threader* thr) {                         \
        return brenn::fit::DispatchLocal<float, Family>(task, flags, thr, check);                  \
    }

#endif
