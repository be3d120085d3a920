// Quantiles of the chi-square distribution for the robust estimates: the cut-offs of
// the minimum covariance determinant (its consistency factor and its reweighting) and
// of the outlier nominators. Worked in double whatever the task's precision.
#ifndef BRENN_STATS_CHI_SQUARE_H
#define BRENN_STATS_CHI_SQUARE_H

#include <stdint.h>

namespace brenn::stats {

// The upper regularised incomplete gamma function Q(a, x) = Gamma(a, x) / Gamma(a) for
// a = k / 2, k >= 1, and x >= 0.
double UpperGammaHalf(int64_t k, double x);

// The x with P(X > x) = tail for X chi-square with k >= 1 degrees of freedom, tail in
// (0, 1): the (1 - tail) quantile. Relative error a few units of 1e-15.
double ChiSquareUpperQuantile(int64_t k, double tail);

} // namespace brenn::stats

#endif
