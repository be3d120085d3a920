// The location and scatter of a subset of observations and the squared Mahalanobis
// distances from them, the steps that the robust covariance and the outlier nominators
// repeat. Data are a compact matrix, one observation of q values contiguous; sums run
// over the members in the order given, so a fit is the same bits wherever it runs.
// The Cholesky factor is the library's own short loop: its partial state at a pivot
// that fails gives the hyperplane of an exact fit.
#ifndef BRENN_STATS_SUBSET_FIT_H
#define BRENN_STATS_SUBSET_FIT_H

#include <math.h>
#include <stdint.h>
#include <string.h>

#include "stats/qsort.h"

namespace brenn::stats {

// A pivot whose variance given the variables before it is at or below this share of its
// own variance is taken as zero: the subset lies on a hyperplane.
constexpr double kSingularShare = 0x1p-40;

// Mean, covariance (lower triangle, column-major, divisor count - 1) and its Cholesky
// factor, in 2 q (q + 1) doubles (FitDoubles) placed by PlaceFit.
struct SubsetFit {
    double* mean;
    double* cov;
    double* chol;
    double* invDiag;
    double logDet;    // log det of cov when not singular
    int64_t singular; // the first pivot that failed, or q
};

inline size_t FitDoubles(int64_t q) {
    return size_t(2 * q * (q + 1));
}

inline void PlaceFit(SubsetFit* f, double* memory, int64_t q) {
    f->mean = memory;
    f->cov = memory + q;
    f->chol = f->cov + q * q;
    f->invDiag = f->chol + q * q;
}

inline void CopyFit(SubsetFit* to, const SubsetFit& from, int64_t q) {
    memcpy(to->mean, from.mean, FitDoubles(q) * sizeof(double));
    to->logDet = from.logDet;
    to->singular = from.singular;
}

// Factors cov into chol; sets singular and logDet.
inline void FactorFit(SubsetFit* f, int64_t q) {
    const double* c = f->cov;
    double* l = f->chol;
    double logDet = 0;
    for (int64_t j = 0; j < q; ++j) {
        double s = c[j + j * q];
        for (int64_t b = 0; b < j; ++b)
            s -= l[j + b * q] * l[j + b * q];
        if (!(s > kSingularShare * c[j + j * q])) {
            f->singular = j;
            return;
        }
        const double d = sqrt(s), inv = 1 / d;
        l[j + j * q] = d;
        f->invDiag[j] = inv;
        logDet += 2 * log(d);
        for (int64_t a = j + 1; a < q; ++a) {
            double t = c[a + j * q];
            for (int64_t b = 0; b < j; ++b)
                t -= l[a + b * q] * l[j + b * q];
            l[a + j * q] = t * inv;
        }
    }
    f->singular = q;
    f->logDet = logDet;
}

// The fit of the `count` observations `members` (count at least 2).
inline void FitSubset(const double* x, int64_t q, const int64_t* members, int64_t count,
                      SubsetFit* f, double* centred) {
    double* mean = f->mean;
    double* cov = f->cov;
    for (int64_t a = 0; a < q; ++a)
        mean[a] = 0;
    for (int64_t i = 0; i < count; ++i) {
        const double* v = x + members[i] * q;
        for (int64_t a = 0; a < q; ++a)
            mean[a] += v[a];
    }
    for (int64_t a = 0; a < q; ++a)
        mean[a] /= double(count);
    for (int64_t k = 0; k < q * q; ++k)
        cov[k] = 0;
    for (int64_t i = 0; i < count; ++i) {
        const double* v = x + members[i] * q;
        for (int64_t a = 0; a < q; ++a)
            centred[a] = v[a] - mean[a];
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a)
                cov[a + b * q] += centred[a] * centred[b];
    }
    const double scale = 1 / double(count - 1);
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a)
            cov[a + b * q] *= scale;
    FactorFit(f, q);
}

// Forward substitution of the first `k` pivots: z[a] for a < k; returns the sum of their
// squares. With k = q and a factor that did not fail, the squared distance.
inline double ForwardSolve(const SubsetFit& f, int64_t q, int64_t k, const double* v, double* z) {
    double d2 = 0;
    for (int64_t a = 0; a < k; ++a) {
        double t = v[a] - f.mean[a];
        for (int64_t b = 0; b < a; ++b)
            t -= f.chol[a + b * q] * z[b];
        z[a] = t * f.invDiag[a];
        d2 += z[a] * z[a];
    }
    return d2;
}

// Squared distances of observations [0, m) from a fit that did not fail.
inline void SquaredDistances(const double* x, int64_t q, int64_t m, const SubsetFit& f, double* d2,
                             double* z) {
    for (int64_t i = 0; i < m; ++i)
        d2[i] = ForwardSolve(f, q, q, x + i * q, z);
}

// The residual of an observation from the hyperplane of a fit that failed at pivot
// k = f.singular: variable k less its regression on the variables before it.
inline double PlaneResidual(const SubsetFit& f, int64_t q, const double* v, double* z) {
    const int64_t k = f.singular;
    ForwardSolve(f, q, k, v, z);
    double r = v[k] - f.mean[k];
    for (int64_t b = 0; b < k; ++b)
        r -= f.chol[k + b * q] * z[b];
    return r;
}

// Whether an observation lies on that hyperplane: its residual within 2^-18 of the
// subset's spread of variable k.
inline bool OnPlane(const SubsetFit& f, int64_t q, const double* v, double* z) {
    const double r = PlaneResidual(f, q, v, z);
    const int64_t k = f.singular;
    return r * r <= 0x1p-36 * f.cov[k + k * q];
}

// The median of s[0, n) (n at least 1), rearranging s: the middle value, or half the
// sum of the two middle values.
inline double MedianOf(double* s, int64_t n) {
    const int64_t k = (n - 1) / 2;
    SelectRange(Contiguous<double>{s}, 0, n - 1, k);
    if (n % 2) return s[k];
    double next = s[k + 1];
    for (int64_t i = k + 2; i < n; ++i)
        next = s[i] < next ? s[i] : next;
    return 0.5 * s[k] + 0.5 * next;
}

// The h observations of least squared distance into members (ascending observation
// number); ties at the h-th value are taken by observation number. tmp: m doubles.
inline void LeastDistances(const double* d2, int64_t m, int64_t h, double* tmp, int64_t* members) {
    memcpy(tmp, d2, m * sizeof(double));
    SelectRange(Contiguous<double>{tmp}, 0, m - 1, h - 1);
    const double t = tmp[h - 1];
    int64_t below = 0;
    for (int64_t i = 0; i < m; ++i)
        below += d2[i] < t;
    int64_t c = 0, ties = h - below;
    for (int64_t i = 0; i < m; ++i)
        if (d2[i] < t || (d2[i] == t && ties-- > 0)) members[c++] = i;
}

} // namespace brenn::stats

#endif
