// The mean and the Cholesky factor of the GaussianMV goodness-of-fit case; the case
// file cases_gamma.py repeats them.
#ifndef BRENN_TESTS_RNG_GOF_GAUSSIAN_MV_CASE_H
#define BRENN_TESTS_RNG_GOF_GAUSSIAN_MV_CASE_H

namespace brenn::gof::mv {

constexpr int kD = 3;
constexpr double kMean[kD] = {1.0, -2.0, 0.5};
constexpr double kFactor[kD][kD] = {{2.0, 0.0, 0.0}, {0.5, 1.0, 0.0}, {-1.0, 0.3, 0.5}};

} // namespace brenn::gof::mv

#endif
