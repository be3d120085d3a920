// Quadratic splines. The midpoint form fixes each cell's parabola by its end values
// and its value at the cell's middle, carried from cell to cell by the continuity of
// the first derivative. The knot form has nx pieces between nx+1 knots, one node
// inside each piece; the values at the interior knots solve a tridiagonal system of
// first-derivative continuity, with the two end conditions folded into its end rows.
#include "fitting/construct.h"
#include "fitting/partition.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/tridiag.h"

namespace brenn::fit {
namespace {

template <typename T>
inline void Tridiagonal(int64_t n, T* dl, T* d, T* du, T* b, int64_t* info) {
    int64_t one = 1;
    if constexpr (sizeof(T) == sizeof(double))
        ddtsvb_4dfl(&n, &one, dl, d, du, b, info);
    else
        sdtsvb_4dfl(&n, &one, dl, d, du, b, info);
}

constexpr int64_t kStackPoints = 4095;

template <typename T, bool Columns, bool Uniform>
int32_t MidpointWorker(FittingTask* task, const threader*) {
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckConstructionPointers(task, Columns)) return s;
    Nodes<T> x = NodesOf<T>(task);
    T w0 = static_cast<const T*>(task->bc)[0];
    int64_t order = task->sOrder;
    T stackWork[kStackPoints];
    T* w = stackWork;
    if (nx >= kStackPoints) {
        size_t bytes = sizeof(T); // nx + 1 elements
        if (!AddBytesFor(&bytes, nx, sizeof(T))) return FIT_STATUS_NO_MEMORY;
        w = static_cast<T*>(brenn_serv_allocate(bytes, 128));
        if (w == nullptr) return FIT_STATUS_NO_MEMORY;
    }
    auto h = [&](int64_t i) { return Uniform ? x.step : x[i + 1] - x[i]; };
    for (int64_t f = 0; f < nf; ++f) {
        auto y = FunctionValues<T, Columns>(task, f);
        T* c = static_cast<T*>(task->sCoeff[f]);
        // The midpoint values, in order: each from the one before.
        w[0] = w0;
        for (int64_t i = 0; i + 2 < nx; ++i) {
            T h0 = h(i), h1 = h(i + 1);
            w[i + 1] =
                T(0.25) * h1 * ((y[i] + T(3) * y[i + 1]) / h0 + (T(3) * y[i + 1] + y[i + 2]) / h1) -
                (h1 / h0) * w[i];
        }
        for (int64_t i = 0; i + 1 < nx; ++i) {
            T g = h(i) / T(2);
            T g2 = g * g;
            T c2 = (y[i] + y[i + 1] - T(2) * w[i]) / T(2) / g2;
            c[i * order] = y[i];
            c[i * order + 1] = (w[i] - y[i] - g2 * c2) / g;
            c[i * order + 2] = c2;
        }
    }
    if (w != stackWork) brenn_serv_deallocate(w);
    return FIT_STATUS_OK;
}

// The derivative of a piece's parabola at its ends, as linear forms in the values at
// its two knots and at its node: with xi and eta the node's distances to the left and
// right knot and L = xi + eta, by Lagrange's formula on the three points.
template <typename T>
struct PieceForms {
    T a, b, c; // left end: a*v_left + b*y + c*v_right
    T e, f, g; // right end: e*v_left + f*y + g*v_right
};

template <typename T>
inline PieceForms<T> Forms(T xi, T eta, T len) {
    PieceForms<T> p;
    p.a = -(T(1) / xi + T(1) / len);
    p.b = len / (xi * eta);
    p.c = -xi / (len * eta);
    p.e = eta / (xi * len);
    p.f = -p.b;
    p.g = T(1) / eta + T(1) / len;
    return p;
}

// Columns 2 to 5: 12 first/first, 36 first/second, 24 second/first, 48 second/second.
template <typename T, bool Columns, bool Uniform, bool EvenKnots, int BcColumn>
int32_t KnotWorker(FittingTask* task, const threader*) {
    constexpr bool kLeftFirst = BcColumn == 2 || BcColumn == 3;
    constexpr bool kRightFirst = BcColumn == 2 || BcColumn == 4;
    int64_t nx = task->nx;
    int64_t nf = task->ny > 0 ? task->ny : 1;
    if (int32_t s = CheckConstructionPointers(task, Columns)) return s;
    Nodes<T> x = NodesOf<T>(task);
    Knots<T> knots = KnotsOf<T>(task);
    // EvenKnots is the hint of the caller's ic; KnotsOf reads the same bit.
    (void)EvenKnots;
    const T* bc = static_cast<const T*>(task->bc);
    int64_t order = task->sOrder;

    // Eight vectors of nx + 1 elements, and 64 bytes.
    size_t bytes = 64 + 8 * sizeof(T);
    if (!AddBytesFor(&bytes, nx, 8 * sizeof(T))) return FIT_STATUS_NO_MEMORY;
    auto* work = static_cast<T*>(brenn_serv_allocate(bytes, 128));
    if (work == nullptr) return FIT_STATUS_NO_MEMORY;
    T* t = work;
    T* xi = t + (nx + 1);
    T* eta = xi + (nx + 1);
    T* len = eta + (nx + 1);
    T* dl = len + (nx + 1);
    T* d = dl + (nx + 1);
    T* du = d + (nx + 1);
    T* b = du + (nx + 1);

    for (int64_t j = 0; j <= nx; ++j)
        t[j] = knots[j];
    if (task->ic != nullptr) {
        bool fits = t[0] - x[0] == T(0) && t[nx] - x[nx - 1] == T(0);
        for (int64_t i = 1; fits && i < nx; ++i)
            fits = x[i - 1] < t[i] && t[i] < x[i];
        if (!fits) {
            brenn_serv_deallocate(work);
            return FIT_STATUS_BAD_IC;
        }
    }
    for (int64_t j = 0; j < nx; ++j) {
        xi[j] = x[j] - t[j];
        eta[j] = t[j + 1] - x[j];
        len[j] = t[j + 1] - t[j];
    }
    T bcLeft = bc != nullptr ? bc[0] : T(0);
    T bcRight = bc != nullptr ? bc[1] : T(0);
    int64_t n = nx - 1; // unknowns: the values at knots 1 to nx-1
    T l0 = len[0], ln = len[nx - 1];

    for (int64_t f = 0; f < nf; ++f) {
        auto y = FunctionValues<T, Columns>(task, f);
        T y0 = y[0], yn = y[nx - 1];
        // Piece 0 starts at its node: its right-end derivative is alpha*v1 + beta.
        T alpha = kLeftFirst ? T(2) / l0 : T(1) / l0;
        T beta = kLeftFirst ? -T(2) * y0 / l0 - bcLeft : -y0 / l0 + bcLeft * l0 / T(2);
        // The last piece ends at its node: its left-end derivative is gamma*v + delta.
        T gamma = kRightFirst ? -T(2) / ln : -T(1) / ln;
        T delta = kRightFirst ? T(2) * yn / ln - bcRight : yn / ln - bcRight * ln / T(2);
        for (int64_t j = 1; j < nx; ++j) {
            int64_t p = j - 1, q = j, r = j - 1;
            T diag, rhs = T(0);
            if (p == 0) {
                diag = alpha;
                rhs -= beta;
            } else {
                PieceForms<T> fp = Forms(xi[p], eta[p], len[p]);
                dl[r - 1] = fp.e;
                diag = fp.g;
                rhs -= fp.f * y[p];
            }
            if (q == nx - 1) {
                diag -= gamma;
                rhs += delta;
            } else {
                PieceForms<T> fq = Forms(xi[q], eta[q], len[q]);
                du[r] = -fq.c;
                diag -= fq.a;
                rhs += fq.b * y[q];
            }
            d[r] = diag;
            b[r] = rhs;
        }
        int64_t info = 0;
        Tridiagonal<T>(n, dl, d, du, b, &info);
        if (info != 0) {
            brenn_serv_deallocate(work);
            return FIT_STATUS_BAD_IC;
        }
        auto v = [&](int64_t j) { return j == 0 ? y0 : (j == nx ? yn : b[j - 1]); };
        T* c = static_cast<T*>(task->sCoeff[f]);
        for (int64_t j = 0; j < nx; ++j) {
            T vl = v(j), vr = v(j + 1), c1, right;
            if (j == 0) {
                c1 = kLeftFirst ? bcLeft : (vr - y0) / l0 - bcLeft * l0 / T(2);
                c[0] = y0;
                c[1] = c1;
                c[2] = (vr - y0 - c1 * l0) / (l0 * l0);
                continue;
            }
            if (j == nx - 1) {
                c1 = gamma * vl + delta;
                right = kRightFirst ? bcRight : (yn - vl) / ln + bcRight * ln / T(2);
            } else {
                PieceForms<T> fj = Forms(xi[j], eta[j], len[j]);
                c1 = fj.a * vl + fj.b * y[j] + fj.c * vr;
                right = fj.e * vl + fj.f * y[j] + fj.g * vr;
            }
            c[j * order] = vl;
            c[j * order + 1] = c1;
            c[j * order + 2] = (right - c1) / (T(2) * len[j]);
        }
    }
    brenn_serv_deallocate(work);
    return FIT_STATUS_OK;
}

template <typename T>
constexpr ConstructWorker kMidpointWorkers[2][2] = {
    {MidpointWorker<T, true, false>, MidpointWorker<T, true, true>},
    {MidpointWorker<T, false, false>, MidpointWorker<T, false, true>}};

// [icForm][yForm][xForm][bcColumn]: columns 0, 1 and 6 have no worker.
template <typename T, bool Even, bool Columns, bool Uniform>
constexpr ConstructWorker kKnotRow[7] = {nullptr,
                                         nullptr,
                                         KnotWorker<T, Columns, Uniform, Even, 2>,
                                         KnotWorker<T, Columns, Uniform, Even, 3>,
                                         KnotWorker<T, Columns, Uniform, Even, 4>,
                                         KnotWorker<T, Columns, Uniform, Even, 5>,
                                         nullptr};

template <typename T, bool Even>
constexpr const ConstructWorker* kKnotPlane[2][2] = {
    {kKnotRow<T, Even, true, false>, kKnotRow<T, Even, true, true>},
    {kKnotRow<T, Even, false, false>, kKnotRow<T, Even, false, true>}};

template <typename T>
int32_t Quadratic(FitTaskHandle handle, const threader* thr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    int yForm = YForm(task->yHint);
    if (yForm < 0) return FIT_STATUS_BAD_Y_HINT;
    int xForm = XForm(task->xHint);
    if (task->sType == FIT_TYPE_DEFAULT) {
        if (task->bcType != FIT_BC_MID_VALUE) return FIT_STATUS_BAD_BC_TYPE;
        if (task->bc == nullptr) return FIT_STATUS_BAD_BC;
        return kMidpointWorkers<T>[yForm][xForm](task, thr);
    }
    if (task->sType == FIT_TYPE_KNOTS) {
        if (!(task->icType & FIT_IC_KNOTS)) return FIT_STATUS_BAD_IC_TYPE;
        int column = BcColumn(task->bcType);
        if (column < 0) return FIT_STATUS_BAD_BC_TYPE;
        bool needsBc =
            task->bcType == 12 || task->bcType == 24 || task->bcType == 36 || task->bcType == 48;
        if (needsBc && task->bc == nullptr) return FIT_STATUS_BAD_BC;
        int icForm = (task->icType & FIT_IC_UNIFORM) ? 1 : 0;
        ConstructWorker worker = icForm ? kKnotPlane<T, true>[yForm][xForm][column]
                                        : kKnotPlane<T, false>[yForm][xForm][column];
        if (worker == nullptr) return FIT_STATUS_BAD_BC_TYPE;
        return worker(task, thr);
    }
    return FIT_STATUS_FLAG_REFUSED;
}

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFQuadraticSpline1D(FitTaskHandle task, int64_t, int64_t,
                                                          const threader* thr) {
    return Quadratic<double>(task, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFQuadraticSpline1D(FitTaskHandle task, int64_t, int64_t,
                                                          const threader* thr) {
    return Quadratic<float>(task, thr);
}
