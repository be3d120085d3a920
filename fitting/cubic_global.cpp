// Natural and default cubic splines: the node derivatives of the C2 cubic, from the
// tridiagonal system h[i]*d[i-1] + 2*(h[i-1] + h[i])*d[i] + h[i-1]*d[i+1] =
// 3*(h[i]*m[i-1] + h[i-1]*m[i]) with the end rows of the boundary column. The matrix
// depends on the partition only: one function is solved at once, several share one
// factorization. The periodic system (nx-1 unknowns, cyclic) is solved by
// Sherman-Morrison: one factorization, the correction vector as a second right-hand
// side. On a uniform partition the rows are divided by the step.
#include "fitting/cubic.h"
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

    // Unknowns: nx, or nx-1 for the periodic system.
    int64_t Unknowns() const { return kPeriodic ? nx - 1 : nx; }

    // The matrix. Periodic: the cyclic rows without their corners, which Corners gives;
    // with two unknowns the corners fall on the off-diagonals and are added there.
    void Matrix(T* dl, T* d, T* du) const {
        int64_t n = Unknowns();
        if (kPeriodic) {
            for (int64_t i = 0; i < n; ++i) {
                int64_t left = i == 0 ? n - 1 : i - 1;
                T hl = hh(left), hr = hh(i);
                d[i] = T(2) * (hl + hr);
                if (i > 0) dl[i - 1] = hr;
                if (i + 1 < n) du[i] = hl;
            }
            if (n == 2) {
                dl[0] += hh(0);
                du[0] += hh(0);
            }
            return;
        }
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

    // The right-hand side of one function.
    void Rhs(const YAccess<T, Columns>& y, T* b) const {
        int64_t n = Unknowns();
        if (kPeriodic) {
            T mPrev = m(y, n - 1);
            T hPrev = hh(n - 1);
            for (int64_t i = 0; i < n; ++i) {
                T mi = m(y, i), hi = hh(i);
                b[i] = T(3) * (hi * mPrev + hPrev * mi);
                mPrev = mi;
                hPrev = hi;
            }
            return;
        }
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

// x - (x[0] + alpha/gamma*x[n-1]) / (1 + z[0] + alpha/gamma*z[n-1]) * z: the solution of
// the cyclic system from those of the reduced one with the two right-hand sides.
template <typename T>
inline void ShermanMorrison(int64_t n, T ratio, const T* z, T* x) {
    T factor = (x[0] + ratio * x[n - 1]) / (T(1) + z[0] + ratio * z[n - 1]);
    for (int64_t i = 0; i < n; ++i)
        x[i] -= factor * z[i];
}

template <typename T, bool Columns, bool Uniform, int Column>
int32_t GlobalWorker(FittingTask* task, const threader* thr) {
    using System = GlobalSystem<T, Columns, Uniform, Column>;
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckCubicTask<T, Columns>(task, nf)) return s;
    int64_t n = System::kPeriodic ? nx - 1 : nx;
    bool cyclic = System::kPeriodic && n >= 3;
    bool factored = nf > 1;

    // The pivot indices first, at the block's alignment (several functions only); the
    // diagonals, the fill of the factorization (several functions), the two right-hand
    // sides of the cyclic system, the reciprocal widths and the derivatives.
    int64_t pivotElements = factored ? n * static_cast<int64_t>(sizeof(int64_t) / sizeof(T)) : 0;
    int64_t fill = factored ? n : 0, sides = cyclic ? 2 * n : 0;
    CubicWork<T> work;
    if (!work.Allocate(
            {pivotElements, 3 * n, fill, sides, ReciprocalElements<Uniform>(nx), nf * nx}))
        return FIT_STATUS_NO_MEMORY;
    auto* ipiv = reinterpret_cast<int64_t*>(work.Take(pivotElements));
    T* dl = work.Take(n);
    T* dd = work.Take(n);
    T* du = work.Take(n);
    T* du2 = work.Take(fill);
    T* z = work.Take(sides);
    System sys{CellsOf<T, Uniform>(task, work.Take(ReciprocalElements<Uniform>(nx))), nx,
               static_cast<const T*>(task->bc)};
    T* d = work.Take(nf * nx);

    if (System::kPeriodic && n == 1) {
        // One cell whose ends agree: the derivative of the cell's line, at both ends.
        for (int64_t f = 0; f < nf; ++f) {
            auto y = FunctionValues<T, Columns>(task, f);
            d[f * nx] = d[f * nx + 1] = sys.m(y, 0);
        }
    } else if (System::kNotAKnot && nx == 3) {
        for (int64_t f = 0; f < nf; ++f)
            sys.Parabola(FunctionValues<T, Columns>(task, f), d + f * nx);
    } else {
        sys.Matrix(dl, dd, du);
        T ratio = T(0);
        if (cyclic) {
            // The corners alpha (row 0) and beta (row n-1) leave the matrix as the
            // outer product u v^T, u = (gamma, 0, ..., beta), v = (1, 0, ..., alpha/gamma).
            T alpha = sys.hh(0), beta = sys.hh(n - 2), gamma = -dd[0];
            dd[0] -= gamma;
            dd[n - 1] -= alpha * beta / gamma;
            ratio = alpha / gamma;
            for (int64_t i = 0; i < n; ++i)
                z[n + i] = T(0);
            z[n] = gamma;
            z[2 * n - 1] = beta;
        }
        if (!factored) {
            auto y = FunctionValues<T, Columns>(task, 0);
            if (cyclic) {
                sys.Rhs(y, z);
                SolveOnce<T>(n, 2, dl, dd, du, z);
                ShermanMorrison(n, ratio, z + n, z);
                for (int64_t i = 0; i < n; ++i)
                    d[i] = z[i];
            } else {
                sys.Rhs(y, d);
                SolveOnce<T>(n, 1, dl, dd, du, d);
            }
        } else {
            Factor<T>(n, dl, dd, du, du2, ipiv);
            if (cyclic) SolveFactored<T>(n, dl, dd, du, du2, ipiv, z + n);
            for (int64_t f = 0; f < nf; ++f) {
                T* df = d + f * nx;
                sys.Rhs(FunctionValues<T, Columns>(task, f), df);
                SolveFactored<T>(n, dl, dd, du, du2, ipiv, df);
                if (cyclic) ShermanMorrison(n, ratio, z + n, df);
            }
        }
        if (System::kPeriodic)
            for (int64_t f = 0; f < nf; ++f)
                d[f * nx + nx - 1] = d[f * nx];
    }
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
