// Tridiagonal solvers: Gaussian elimination with partial pivoting between neighbouring
// rows, in one pass (factor and solve) or as a factorization kept for many right-hand
// sides. Our own rather than LAPACK's dgtsv/dgttrf/dgttrs: the fitting benchmark's
// tridiagonal lines time both as equal within noise from 16 to 10^5 rows, and ours
// takes 64-bit sizes (LAPACK's are 32-bit) and has single-precision forms that stay
// in float.
#include <cmath>

#include "platform/tridiag.h"

namespace {

template <typename T>
void Solve(int64_t n, int64_t nrhs, T* dl, T* d, T* du, T* b, int64_t* info) {
    *info = 0;
    if (n <= 0 || nrhs <= 0) return;
    // Elimination; with more than one right-hand side each row operation is applied to
    // every column, so that the pivots are chosen once.
    for (int64_t i = 0; i + 1 < n; ++i) {
        bool last = i + 2 == n;
        if (std::fabs(d[i]) >= std::fabs(dl[i])) {
            if (d[i] == T(0)) {
                *info = i + 1;
                return;
            }
            T fact = dl[i] / d[i];
            d[i + 1] -= fact * du[i];
            for (int64_t j = 0; j < nrhs; ++j)
                b[j * n + i + 1] -= fact * b[j * n + i];
            if (!last) dl[i] = T(0);
        } else {
            // Rows i and i+1 change places: the lower row has the larger pivot.
            T fact = d[i] / dl[i];
            d[i] = dl[i];
            T temp = d[i + 1];
            d[i + 1] = du[i] - fact * temp;
            if (!last) {
                dl[i] = du[i + 1];
                du[i + 1] = -fact * dl[i];
            }
            du[i] = temp;
            for (int64_t j = 0; j < nrhs; ++j) {
                T* c = b + j * n;
                T t = c[i];
                c[i] = c[i + 1];
                c[i + 1] = t - fact * c[i + 1];
            }
        }
    }
    if (d[n - 1] == T(0)) {
        *info = n;
        return;
    }
    for (int64_t j = 0; j < nrhs; ++j) {
        T* c = b + j * n;
        c[n - 1] /= d[n - 1];
        if (n > 1) c[n - 2] = (c[n - 2] - du[n - 2] * c[n - 1]) / d[n - 2];
        for (int64_t i = n - 3; i >= 0; --i)
            c[i] = (c[i] - du[i] * c[i + 1] - dl[i] * c[i + 2]) / d[i];
    }
}

template <typename T>
void Factor(int64_t n, T* dl, T* d, T* du, T* du2, int64_t* ipiv, int64_t* info) {
    *info = 0;
    if (n <= 0) return;
    for (int64_t i = 0; i < n; ++i)
        ipiv[i] = i;
    for (int64_t i = 0; i + 2 < n; ++i)
        du2[i] = T(0);
    for (int64_t i = 0; i + 1 < n; ++i) {
        bool last = i + 2 == n;
        if (std::fabs(d[i]) >= std::fabs(dl[i])) {
            // No interchange; a zero pivot is found below.
            if (d[i] != T(0)) {
                T fact = dl[i] / d[i];
                dl[i] = fact;
                d[i + 1] -= fact * du[i];
            }
        } else {
            T fact = d[i] / dl[i];
            d[i] = dl[i];
            dl[i] = fact;
            T temp = du[i];
            du[i] = d[i + 1];
            d[i + 1] = temp - fact * d[i + 1];
            if (!last) {
                du2[i] = du[i + 1];
                du[i + 1] = -fact * du[i + 1];
            }
            ipiv[i] = i + 1;
        }
    }
    for (int64_t i = 0; i < n; ++i)
        if (d[i] == T(0)) {
            *info = i + 1;
            return;
        }
}

template <typename T>
void SolveFactored(int64_t n, int64_t nrhs, const T* dl, const T* d, const T* du, const T* du2,
                   const int64_t* ipiv, T* b, int64_t* info) {
    *info = 0;
    if (n <= 0 || nrhs <= 0) return;
    for (int64_t j = 0; j < nrhs; ++j) {
        T* c = b + j * n;
        for (int64_t i = 0; i + 1 < n; ++i) {
            if (ipiv[i] == i) {
                c[i + 1] -= dl[i] * c[i];
            } else {
                T t = c[i];
                c[i] = c[i + 1];
                c[i + 1] = t - dl[i] * c[i];
            }
        }
        c[n - 1] /= d[n - 1];
        if (n > 1) c[n - 2] = (c[n - 2] - du[n - 2] * c[n - 1]) / d[n - 2];
        for (int64_t i = n - 3; i >= 0; --i)
            c[i] = (c[i] - du[i] * c[i + 1] - du2[i] * c[i + 2]) / d[i];
    }
}

} // namespace

extern "C" {

void ddtsvb_4dfl(const int64_t* n, const int64_t* nrhs, double* dl, double* d, double* du,
                 double* b, int64_t* info) {
    Solve(*n, *nrhs, dl, d, du, b, info);
}

void sdtsvb_4dfl(const int64_t* n, const int64_t* nrhs, float* dl, float* d, float* du, float* b,
                 int64_t* info) {
    Solve(*n, *nrhs, dl, d, du, b, info);
}

void ddttrfb_4dfl(const int64_t* n, double* dl, double* d, double* du, double* du2, int64_t* ipiv,
                  int64_t* info) {
    Factor(*n, dl, d, du, du2, ipiv, info);
}

void sdttrfb_4dfl(const int64_t* n, float* dl, float* d, float* du, float* du2, int64_t* ipiv,
                  int64_t* info) {
    Factor(*n, dl, d, du, du2, ipiv, info);
}

void ddttrsb_4dfl(const int64_t* n, const int64_t* nrhs, const double* dl, const double* d,
                  const double* du, const double* du2, const int64_t* ipiv, double* b,
                  int64_t* info) {
    SolveFactored(*n, *nrhs, dl, d, du, du2, ipiv, b, info);
}

void sdttrsb_4dfl(const int64_t* n, const int64_t* nrhs, const float* dl, const float* d,
                  const float* du, const float* du2, const int64_t* ipiv, float* b, int64_t* info) {
    SolveFactored(*n, *nrhs, dl, d, du, du2, ipiv, b, info);
}
}
