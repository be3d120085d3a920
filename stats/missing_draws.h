// The random steps of data augmentation for the normal model under the Jeffreys prior
// (Schafer 1997): the Gaussians of an imputation step, and the posterior step that
// draws the covariance from an inverted Wishart and the mean given it. Draws come from
// an MT19937 stream of the library's own generators.
#ifndef BRENN_STATS_MISSING_DRAWS_H
#define BRENN_STATS_MISSING_DRAWS_H

#include <stdint.h>

#include "stats/missing_model.h"

namespace brenn::stats::missing {

// An MT19937 stream seeded with `seed`; 0 or BRENN_SS_ERROR_ALLOC.
int32_t OpenStream(uint32_t seed, void** stream);
void CloseStream(void** stream);

// count standard Gaussians into r.
int32_t Gaussians(void* stream, int64_t count, double* r);

// The posterior step from the completed data in m: with ybar and S its means and
// scatter matrix divided by n, Sigma ~ W^-1(n - 1, (nS)^-1) and mu ~ N(ybar, Sigma / n).
// nS = C C' (Cholesky); A is Bartlett's lower triangle (sqrt of ChiSquare(n - 1 - i)
// on the diagonal, standard Gaussians below), so that Sigma^-1 = C'^-1 A A' C^-1 is
// Wishart; then Sigma = X'X with X = A^-1 C', and mu = ybar + X'z / sqrt(n). The new
// parameters go to m->mean and m->cov, ybar to `completedMean`. `work` holds 3 q * q + q
// doubles. BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE when nS does not factor.
int32_t DrawParameters(Model* m, void* stream, double* completedMean, double* work);

} // namespace brenn::stats::missing

#endif
