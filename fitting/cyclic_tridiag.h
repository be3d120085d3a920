// The cyclic tridiagonal solve of the periodic cubic splines: row i reads
// a[i]*x[i-1] + b[i]*x[i] + c[i]*x[i+1] = r[i] with indices modulo n, so a[0] and
// c[n-1] are the corners. One elimination pass without interchanges carries the corner
// column (the coefficients of x[n-1] that rows 0 to n-2 take on) and the corner row (the
// last row, eliminated column by column alongside), then one back substitution: O(n),
// one right-hand side, no second system as a rank-one correction would need.
//
// Why no pivoting: the matrices here are strictly diagonally dominant by rows (the
// spline's rows have 2*(h[i-1] + h[i]) against h[i-1] + h[i]). Elimination keeps that
// dominance in every remaining block, so each pivot exceeds the row's other entries, the
// multipliers stay below 1 in magnitude and nothing grows by more than a factor of two:
// the rounding is that of a backward-stable solve. The corner column and row shrink by
// a multiplier per row and underflow harmlessly to zero on long systems.
//
// Several right-hand sides of one matrix: the first pass keeps its multipliers
// (CyclicPass::kFactorKeepSolve) and later ones reuse them (kSolve); every pass does
// the same operations on a right-hand side in the same order, so each solution has the
// same bits as a pass of its own (kFactorSolve).
#ifndef BRENN_FITTING_CYCLIC_TRIDIAG_H
#define BRENN_FITTING_CYCLIC_TRIDIAG_H

#include <cstdint>

namespace brenn::fit {

// What the elimination leaves for the back substitution and for later right-hand sides;
// each array has n-1 elements, for rows 0 to n-2.
template <typename T>
struct CyclicFactors {
    T* u;   // c[k] / pivot[k]: the reduced super-diagonal
    T* v;   // the corner column's entry of row k / pivot[k]
    T* q;   // 1 / pivot[k] (kept passes only)
    T* l;   // l[k]: multiple of row k-1 taken from row k, k from 1 (kept passes only)
    T* f;   // multiple of row k taken from the last row (kept passes only)
    T last; // the last row's pivot
};

enum class CyclicPass {
    kFactorSolve,     // eliminate and solve; u, v written
    kFactorKeepSolve, // the same, and every multiplier kept
    kSolve,           // solve with the factors a kept pass left
};

// Row i of a cyclic system: a*x[i-1] + b*x[i] + c*x[i+1] = r.
template <typename T>
struct CyclicRow {
    T a, b, c, r;
};

// Rows held as four arrays.
template <typename T>
struct CyclicArrays {
    const T *a, *b, *c, *r;
    CyclicRow<T> Row(int64_t i) const { return {a[i], b[i], c[i], r[i]}; }
};

// Solves the cyclic system of rows.Row(0) to rows.Row(n-1) into x, n >= 2 (with two
// unknowns the corners fall on the same columns as the off-diagonals and are added to
// them). The rows are read once each, in order (the last one first), so a caller may
// form them on the fly; a kSolve pass uses their right-hand sides only.
template <typename T, CyclicPass Pass, class Rows>
void SolveCyclic(int64_t n, const Rows& rows, CyclicFactors<T>& fac, T* x) {
    constexpr bool kFactor = Pass != CyclicPass::kSolve;
    constexpr bool kKeep = Pass == CyclicPass::kFactorKeepSolve;
    const int64_t last = n - 1;
    const CyclicRow<T> lastRow = rows.Row(last);
    CyclicRow<T> row = rows.Row(0);
    CyclicRow<T> next = last > 1 ? rows.Row(1) : row;
    // Row k's pivot and corner-column entry, the last row's entry in column k and its
    // diagonal, as the elimination reaches row k; the pivot of row k+1.
    T pivot = row.b, corner = row.a, edge = lastRow.c, diagonal = lastRow.b;
    T pivotNext = T(0);
    if (n == 2) {
        corner += row.c;
        edge += lastRow.a;
    }
    if (kFactor && last > 1) pivotNext = next.b - next.a * row.c / pivot;
    T y = row.r, rLast = lastRow.r;
    for (int64_t k = 0;; ++k) {
        T q, f;
        if constexpr (kFactor) {
            q = T(1) / pivot;
            f = edge * q;
            diagonal -= f * corner;
            fac.u[k] = row.c * q;
            fac.v[k] = corner * q;
            if constexpr (kKeep) {
                fac.q[k] = q;
                fac.f[k] = f;
            }
        } else {
            q = fac.q[k];
            f = fac.f[k];
        }
        rLast -= f * y;
        x[k] = y * q;
        if (k + 1 == last) break;
        T l;
        if constexpr (kFactor) {
            l = next.a * q;
            corner = -l * corner;
            edge = -f * row.c;
            if (k + 2 == last) {
                // Row n-2's super-diagonal and the last row's sub-diagonal lie in the
                // corner column and row.
                corner += next.c;
                edge += lastRow.a;
            }
            if constexpr (kKeep) fac.l[k + 1] = l;
        } else {
            l = fac.l[k + 1];
        }
        y = next.r - l * y;
        const CyclicRow<T> after = k + 2 < last ? rows.Row(k + 2) : next;
        if (kFactor && k + 2 < last) {
            // The pivot two rows on, p[k+2] = b[k+2] - w[k+2]/p[k+1] with
            // p[k+1] = (b[k+1]*p[k] - w[k+1])/p[k], w[i] = a[i]*c[i-1]: one division for
            // two rows on each of the two chains (even and odd rows), which run side by
            // side. Every term is formed once, so the rounding is that of the one-row
            // step to a few units; the pivots are the only chain of divisions.
            T w = after.a * next.c;
            T p = pivot;
            pivot = pivotNext;
            pivotNext = after.b - w * p / (next.b * p - next.a * row.c);
        } else {
            pivot = pivotNext;
        }
        row = next;
        next = after;
    }
    if constexpr (kFactor) fac.last = diagonal;
    // Back substitution x[k] = s[k] - u[k]*x[k+1], s[k] = z[k] - v[k]*x[n-1], taken two
    // rows at a time as x[k] = (s[k] - u[k]*s[k+1]) + u[k]*u[k+1]*x[k+2]: again two
    // chains side by side, a product and a sum a step. |u| < 1 by the dominance.
    T xLast = rLast / fac.last;
    x[last] = xLast;
    T sNext = x[last - 1] - fac.v[last - 1] * xLast;
    T xNext = sNext, xAfter = xLast;
    x[last - 1] = xNext;
    if (last >= 2) {
        T s = x[last - 2] - fac.v[last - 2] * xLast;
        xAfter = xNext;
        xNext = s - fac.u[last - 2] * xNext;
        x[last - 2] = xNext;
        sNext = s;
    }
    for (int64_t k = last - 3; k >= 0; --k) {
        T s = x[k] - fac.v[k] * xLast;
        T xk = (s - fac.u[k] * sNext) + (fac.u[k] * fac.u[k + 1]) * xAfter;
        x[k] = xk;
        xAfter = xNext;
        xNext = xk;
        sNext = s;
    }
}

} // namespace brenn::fit

#endif
