// The pieces of a spline as integration sees them: where each piece begins, which
// piece holds a limit, and the integral of one function's polynomial (or step value)
// over a whole piece or over a part of one, in closed form, in double precision
// whatever the task's precision.
//
// A part [u, v] of a piece, in the piece's own coordinate d = s - (left end), has the
// integral w * M with w = v - u and M the mean value of the polynomial over the part:
// M = sum c[k] * h[k](u, v) / (k+1), where h[k] = u^k + u^(k-1) v + ... + v^k. For u and
// v of one sign, as inside the partition, no h[k] cancels, so the only cancellation
// left is that of the polynomial's own terms. w is the difference of the limits taken
// directly, not of the local coordinates, and a local coordinate is a difference of
// nearby numbers: both are exact or within a rounding of the piece's width, never of
// the limits' distance from x[0] (which is what a difference of antiderivatives would
// lose).
#ifndef BRENN_FITTING_INTEGRAL_PIECES_H
#define BRENN_FITTING_INTEGRAL_PIECES_H

#include "fitting/evaluate.h"

namespace brenn::fit {

// What the integrands of a call share: the kind, the partition or the knots, and the
// number of pieces (nx-1 cells, or the nx pieces between the knots of the knot form).
template <typename T>
struct Pieces {
    int kind;
    int64_t nx;
    int64_t order; // coefficients a piece
    int64_t count; // pieces
    Nodes<T> x;
    Knots<T> knots;
    bool yColumns;
};

// The left end of piece k (k = count: the right end). Uniform: the places that
// construction and interpolation use, x0 + k*step in the task's precision.
template <typename T, bool Uniform>
inline double Break(const Pieces<T>& p, int64_t k) {
    if (p.kind == kEvalKnotQuadratic) return static_cast<double>(p.knots[k]);
    if constexpr (Uniform)
        return static_cast<double>(k == p.x.last ? p.x.x[1]
                                                 : p.x.x0 + static_cast<T>(k) * p.x.step);
    else
        return static_cast<double>(p.x.x[k]);
}

// The piece of a limit s in cell c: the cell's polynomial, beyond the ends the end
// cell's; in the knot form the piece of the knot at or below s within the cell.
template <typename T, bool Uniform>
inline int64_t PieceOf(const Pieces<T>& p, double s, int64_t c) {
    int64_t i = PolynomialCell(c, p.nx);
    if (p.kind == kEvalKnotQuadratic && s >= static_cast<double>(p.knots[i + 1])) ++i;
    return i;
}

// h[k](u, v) / (k+1) for k = 1, 2, 3: the weights of c1, c2, c3 in the mean value.
// The third by a product with its reciprocal: a rounding more than a division, and a
// division less for every limit.
constexpr double kThird = 1.0 / 3.0;

inline void MeanWeights(double u, double v, double* q) {
    double h1 = u + v;
    double h2 = v * h1 + u * u;
    double h3 = v * h2 + u * u * u;
    q[0] = h1 * 0.5;
    q[1] = h2 * kThird;
    q[2] = h3 * 0.25;
}

// One interval [lo, hi] cut into pieces: the part in the piece of lo, whole pieces
// first+1 to last-1, and the part in the piece of hi when that is another piece.
struct Span {
    int64_t first, last;
    double uA, vA, wA; // the first part, [uA, vA] in its piece's coordinate
    double vB;         // the last part, [0, vB]
    double qA[3], qB[3];
};

template <typename T, bool Uniform>
[[gnu::always_inline]] inline void MakeSpan(const Pieces<T>& p, double lo, double hi,
                                            int64_t cellLo, int64_t cellHi, Span* s) {
    s->first = PieceOf<T, Uniform>(p, lo, cellLo);
    s->last = PieceOf<T, Uniform>(p, hi, cellHi);
    double left = Break<T, Uniform>(p, s->first);
    s->uA = lo - left;
    if (s->first == s->last) {
        s->vA = hi - left;
        s->wA = hi - lo;
        s->vB = 0;
    } else {
        double right = Break<T, Uniform>(p, s->first + 1);
        s->vA = right - left;
        s->wA = right - lo;
        s->vB = hi - Break<T, Uniform>(p, s->last);
    }
    if (p.order <= 4) {
        MeanWeights(s->uA, s->vA, s->qA);
        MeanWeights(0.0, s->vB, s->qB);
    }
}

// One function's integrand: its coefficients, or for the steps its values.
template <typename T>
struct Integrand {
    const T* coeff;
    const T* y;
    int64_t yStride;
};

template <typename T>
inline Integrand<T> IntegrandOf(const FittingTask* task, const Pieces<T>& p, int64_t f) {
    Integrand<T> g{};
    if (p.kind == kEvalStepLeftContinuous || p.kind == kEvalStepRightContinuous) {
        if (p.yColumns) {
            g.y = static_cast<const T*>(task->y[0]) + f;
            g.yStride = task->ny > 0 ? task->ny : 1;
        } else {
            g.y = static_cast<const T*>(task->y[f]);
            g.yStride = 1;
        }
    } else {
        g.coeff = static_cast<const T*>(task->sCoeff[f]);
    }
    return g;
}

// The mean value over a part of piece k, from the weights of MakeSpan (fixed orders)
// or from the part's ends (any order).
template <typename T, int Form>
inline double PartMean(const Pieces<T>& p, const Integrand<T>& g, int64_t k, const double* q,
                       double u, double v) {
    if constexpr (Form == kEvalStepLeftContinuous || Form == kEvalStepRightContinuous) {
        int64_t node = Form == kEvalStepLeftContinuous ? k + 1 : k;
        return static_cast<double>(g.y[node * g.yStride]);
    } else if constexpr (Form == kEvalLinear) {
        const T* c = g.coeff + k * 2;
        return c[0] + static_cast<double>(c[1]) * q[0];
    } else if constexpr (Form == kEvalQuadratic || Form == kEvalKnotQuadratic) {
        const T* c = g.coeff + k * 3;
        return c[0] + (static_cast<double>(c[1]) * q[0] + static_cast<double>(c[2]) * q[1]);
    } else if constexpr (Form == kEvalCubic) {
        const T* c = g.coeff + k * 4;
        return c[0] + (static_cast<double>(c[1]) * q[0] +
                       (static_cast<double>(c[2]) * q[1] + static_cast<double>(c[3]) * q[2]));
    } else {
        // Any order: h[k] by h[k] = v h[k-1] + u^k.
        int64_t order = p.order;
        const T* c = g.coeff + k * order;
        double h = 1, power = 1, sum = 0;
        for (int64_t j = 1; j < order; ++j) {
            power *= u;
            h = v * h + power;
            sum += static_cast<double>(c[j]) * (h / static_cast<double>(j + 1));
        }
        return c[0] + sum;
    }
}

// The integral over the whole piece k.
template <typename T, bool Uniform, int Form>
inline double WholePiece(const Pieces<T>& p, const Integrand<T>& g, int64_t k) {
    double h = Break<T, Uniform>(p, k + 1) - Break<T, Uniform>(p, k);
    double q[3] = {0, 0, 0};
    if constexpr (Form <= kEvalKnotQuadratic) MeanWeights(0.0, h, q);
    return h * PartMean<T, Form>(p, g, k, q, 0.0, h);
}

} // namespace brenn::fit

#endif
