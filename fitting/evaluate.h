// The evaluators of interpolation: for one function and a block of sites with their
// cells, the value and derivatives asked, written at out[j*nd + r]. Sites beyond the
// ends use the polynomial of the end cell.
#ifndef BRENN_FITTING_EVALUATE_H
#define BRENN_FITTING_EVALUATE_H

#include <algorithm>
#include <cmath>
#include <limits>

#include "fitting/partition.h"

namespace brenn::fit {

enum EvaluatorKind {
    kEvalLinear = 0,
    kEvalQuadratic = 1,
    kEvalCubic = 2,
    kEvalKnotQuadratic = 3,
    kEvalGeneric = 4,
    kEvalStepLeftContinuous = 5,  // type 8: the right node's value inside a cell
    kEvalStepRightContinuous = 6, // type 7: the left node's value inside a cell
    kEvalLookup = 7
};

// The evaluator kind of a spline order and type; -1011 for orders and types that
// have none. Order 0 without a step or look-up type is evaluated by the callbacks
// alone, and only when all three are given.
inline int32_t KindOf(int64_t order, int64_t type, bool allCallbacks, int* kind) {
    if (order == 2) {
        *kind = kEvalLinear;
    } else if (order == 3) {
        if (type == 0)
            *kind = kEvalQuadratic;
        else if (type == 1)
            *kind = kEvalKnotQuadratic;
        else
            return FIT_STATUS_BAD_SPLINE_TYPE;
    } else if (order == 4) {
        if (!(type == 0 || (type >= 2 && type <= 5) || type == 9))
            return FIT_STATUS_BAD_SPLINE_TYPE;
        *kind = kEvalCubic;
    } else if (order > 4) {
        *kind = kEvalGeneric;
    } else if (order == 0) {
        if (type == 8)
            *kind = kEvalStepLeftContinuous;
        else if (type == 7)
            *kind = kEvalStepRightContinuous;
        else if (type == 6)
            *kind = kEvalLookup;
        else if (allCallbacks)
            *kind = kEvalGeneric;
        else
            return FIT_STATUS_BAD_SPLINE_TYPE;
    } else {
        return FIT_STATUS_BAD_SPLINE_TYPE;
    }
    return FIT_STATUS_OK;
}

template <typename T>
struct EvalSetup {
    int kind;
    int64_t nx;
    int64_t order; // coefficients a cell
    Nodes<T> x;
    Knots<T> knots;
    bool yColumns;
    const int64_t* ders; // derivative orders asked, ascending
    int64_t nd;
};

// Derivative k of sum c[j] d^j at d, by Horner's rule on the derived coefficients.
template <typename T>
inline T FallingFactorial(int64_t j, int64_t k) {
    T factor = T(1);
    for (int64_t m = j - k + 1; m <= j; ++m)
        factor *= static_cast<T>(m);
    return factor;
}

template <typename T>
inline T Derivative(const T* c, int64_t order, int64_t k, T d) {
    if (k >= order) return T(0);
    T acc = k == 0 ? c[order - 1] : c[order - 1] * FallingFactorial<T>(order - 1, k);
    for (int64_t j = order - 2; j >= k; --j)
        acc = acc * d + (k == 0 ? c[j] : c[j] * FallingFactorial<T>(j, k));
    return acc;
}

// Fixed orders: the Horner forms written out, so that the compiler keeps everything in
// registers; the results are the generic form's to the bit.
template <typename T, int Order>
inline T DerivativeFixed(const T* c, int64_t k, T d) {
    if constexpr (Order == 2) {
        if (k == 0) return c[1] * d + c[0];
        return k == 1 ? c[1] : T(0);
    } else if constexpr (Order == 3) {
        if (k == 0) return (c[2] * d + c[1]) * d + c[0];
        if (k == 1) return (c[2] * T(2)) * d + c[1];
        return k == 2 ? c[2] * T(2) : T(0);
    } else {
        if (k == 0) return ((c[3] * d + c[2]) * d + c[1]) * d + c[0];
        if (k == 1) return ((c[3] * T(3)) * d + c[2] * T(2)) * d + c[1];
        if (k == 2) return (c[3] * T(6)) * d + c[2] * T(2);
        return k == 3 ? c[3] * T(6) : T(0);
    }
}

inline int64_t PolynomialCell(int64_t c, int64_t nx) {
    int64_t i = c - 1;
    if (i < 0) i = 0;
    if (i > nx - 2) i = nx - 2;
    return i;
}

template <typename T, int Order>
void EvalPolynomial(const EvalSetup<T>& e, const T* coeff, int64_t n, const T* site,
                    const int32_t* cell, T* out) {
    int64_t nd = e.nd;
    int64_t order = Order > 0 ? Order : e.order;
    for (int64_t j = 0; j < n; ++j) {
        int64_t i = PolynomialCell(cell[j], e.nx);
        T d = site[j] - e.x[i];
        const T* c = coeff + i * order;
        for (int64_t r = 0; r < nd; ++r) {
            if constexpr (Order > 0)
                out[j * nd + r] = DerivativeFixed<T, Order>(c, e.ders[r], d);
            else
                out[j * nd + r] = Derivative(c, order, e.ders[r], d);
        }
    }
}

// The knot form: nx pieces; a site of cell c lies in the piece of the node c-1 or,
// past the knot between them, of node c.
template <typename T>
void EvalKnotQuadratic(const EvalSetup<T>& e, const T* coeff, int64_t n, const T* site,
                       const int32_t* cell, T* out) {
    int64_t nd = e.nd;
    for (int64_t j = 0; j < n; ++j) {
        int64_t i = PolynomialCell(cell[j], e.nx);
        if (site[j] >= e.knots[i + 1]) ++i;
        T d = site[j] - e.knots[i];
        const T* c = coeff + i * 3;
        for (int64_t r = 0; r < nd; ++r)
            out[j * nd + r] = DerivativeFixed<T, 3>(c, e.ders[r], d);
    }
}

template <typename T, bool Columns>
void EvalStep(const EvalSetup<T>& e, YAccess<T, Columns> y, int64_t n, const T* site,
              const int32_t* cell, T* out) {
    int64_t nd = e.nd;
    bool leftContinuous = e.kind == kEvalStepLeftContinuous;
    for (int64_t j = 0; j < n; ++j) {
        int64_t i = PolynomialCell(cell[j], e.nx);
        T s = site[j];
        int64_t node;
        // A node's own value at a node in either kind.
        if (s == e.x[i])
            node = i;
        else if (s == e.x[i + 1])
            node = i + 1;
        else
            node = leftContinuous ? i + 1 : i;
        T v = y[node];
        for (int64_t r = 0; r < nd; ++r)
            out[j * nd + r] = e.ders[r] == 0 ? v : T(0);
    }
}

// How near a site must lie to a uniform partition's node, whose place is computed, to
// be on it: 2^-40 in double. In single that is far below the rounding of the node
// itself, which a caller's own placing of it differs from by a few units of the last
// place; there it is 16 units of the larger end (2^-40 if more), and never more than
// a quarter step, so that no site between two nodes passes.
constexpr double kLookupTolerance = 9.094947017729282e-13;

template <typename T>
inline T LookupTolerance(const Nodes<T>& x) {
    if constexpr (sizeof(T) == sizeof(double)) {
        return T(kLookupTolerance);
    } else {
        T ends = std::max(std::fabs(x.x[0]), std::fabs(x.x[1]));
        T tolerance = std::max(T(16) * std::numeric_limits<T>::epsilon() * ends,
                               static_cast<T>(kLookupTolerance));
        return std::min(tolerance, std::fabs(x.step) / T(4));
    }
}

// The node of each site for a look-up; the index of the first site on no node, or n.
template <typename T>
int64_t LookupNodes(const EvalSetup<T>& e, int64_t n, const T* site, const int32_t* cell,
                    int64_t* node) {
    int64_t nx = e.nx;
    T tolerance = e.x.uniform ? LookupTolerance(e.x) : T(0);
    for (int64_t j = 0; j < n; ++j) {
        int64_t c = cell[j];
        T s = site[j];
        if (c == 0) return j;
        auto equal = [&](int64_t k) {
            if (k < 0 || k >= nx) return false;
            if (e.x.uniform) return std::fabs(s - e.x[k]) <= tolerance;
            return s == e.x.x[k];
        };
        if (equal(nx - 1) && (c >= nx - 1))
            node[j] = nx - 1;
        else if (equal(c - 1))
            node[j] = c - 1;
        else if (equal(c))
            node[j] = c;
        else
            return j;
    }
    return n;
}

} // namespace brenn::fit

#endif
