/** @file brenn_ss_robust.h
 * Robust and derived covariance estimates through the front-end, one checked call
 * each: the minimum covariance determinant estimate, outlier detection, the normal
 * model's estimates with missing values (and imputations), partial and pooled
 * covariance, the nearest correlation matrix and Mahalanobis distances.
 *
 * All matrices are p x p (or of the result variables) in full storage, element
 * (j, l) at j * p + l; symmetric ones are written whole, and of those given, only the
 * lower triangle (j >= l) is read. Variables that a view's indices leave out take no part, and
 * their places in the results keep what they held. The view's weights are checked
 * as everywhere (non-negative and finite) but only the partial covariance uses them.
 *
 * Parameters: an array of up to a stated number of values, `param_count` of them
 * given in order; the ones not given take their default. A count below 0 or above the
 * number gives BRENN_ERR_BAD_SIZE; a null array with a count above 0
 * BRENN_ERR_NULL_POINTER; a value outside its range BRENN_ERR_BAD_ARGUMENT.
 *
 * Checks before any compute, with nothing written when one fails: the view's own
 * (brenn_ss.h: a null view or x, BRENN_ERR_NULL_POINTER; p or n below 1,
 * BRENN_ERR_BAD_SIZE; an unknown layout or a bad weight, BRENN_ERR_BAD_ARGUMENT), the
 * parameters', and each entry's own below. Compute statuses are the service's
 * (BRENN_SS_ERROR_*, brenn_stats.h): BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE (nothing
 * written unless stated), BRENN_SS_ERROR_EXACT_FIT and BRENN_SS_ERROR_NO_CONVERGENCE
 * (the results written, as stated), BRENN_SS_ERROR_OBSERVATION_COUNT for too few
 * usable observations. */
#ifndef BRENN_SS_ROBUST_H
#define BRENN_SS_ROBUST_H

#include "brenn_ss.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Parameters of brenn_ss_robust_covariance_f64(), at most. */
#define BRENN_SS_ROBUST_PARAMS 4
/** Parameters of brenn_ss_outliers_f64(), at most. */
#define BRENN_SS_OUTLIER_PARAMS 3
/** Parameters of brenn_ss_missing_values_f64(), at most. */
#define BRENN_SS_MISSING_PARAMS 4
/** Parameters of brenn_ss_nearest_correlation_f64(), at most. */
#define BRENN_SS_NEAREST_PARAMS 2

/** The minimum covariance determinant estimate by FAST-MCD (Rousseeuw and Van Driessen
 * 1999) of the q kept variables: among subsets of h observations, the one whose
 * covariance has the least determinant; its covariance scaled by med(d^2) / chi2_q(0.5),
 * then reweighted: the observations with d^2 at or below chi2_q(0.975) give the mean
 * and the covariance (divisor count - 1). Observations with a value that is not finite
 * in a kept variable are left out; the draws depend on the seed only, not on the
 * threads.
 * Parameters (BRENN_SS_ROBUST_PARAMS):
 *   [0] h / n, in (0, 1] (h = floor(value n), at least q + 1, else
 *       BRENN_SS_ERROR_ROBUST_PARAMS_MISSING); default h = floor((n + q + 1) / 2)
 *   [1] random starts, a whole number from 1 to 2^31; default 500
 *   [2] limit of concentration steps, a whole number from 1 to 2^31; default 100
 *   [3] seed, a whole number from 0 to 2^32 - 1; default 1
 * @param matrix the observations
 * @param param_count parameters given
 * @param params the parameters, or null for none
 * @param mean p values
 * @param cov p * p values
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status: EXACT_FIT (h or more
 *         observations on a hyperplane: their mean and singular covariance written),
 *         NO_CONVERGENCE (the best subset still changed at the step limit: written),
 *         NOT_POSITIVE_DEFINITE, OBSERVATION_COUNT (fewer than q + 1 finite
 *         observations). */
int brenn_ss_robust_covariance_f64(const brenn_ss_matrix_f64* matrix, int64_t param_count,
                                   const double* params, double* mean, double* cov);
/** The float form of brenn_ss_robust_covariance_f64() (computed in double).
 * @copydetails brenn_ss_robust_covariance_f64 */
int brenn_ss_robust_covariance_f32(const brenn_ss_matrix_f32* matrix, int64_t param_count,
                                   const float* params, float* mean, float* cov);

/** Outlier detection by BACON (Billor, Hadi and Velleman 2000) on the q kept
 * variables: a basic subset of ceil(c q) observations nearest the centre grows to the
 * observations whose Mahalanobis distance from its mean and covariance is below
 * c_npr chi, chi^2 the chi-square quantile of q degrees of freedom with upper tail
 * alpha / n, until the subset repeats. Needs n above 3q + 1 (else
 * BRENN_SS_ERROR_OBSERVATION_COUNT).
 * Parameters (BRENN_SS_OUTLIER_PARAMS):
 *   [0] alpha, in (0, 1); default 0.05
 *   [1] start: BRENN_SS_BACON_INIT_MAHALANOBIS (1, distances from the mean and
 *       covariance of all observations) or BRENN_SS_BACON_INIT_MEDIAN (2, Euclidean
 *       distances from the medians); default 1
 *   [2] c, in (0, 2^31]; default 4
 * @param matrix the observations
 * @param param_count parameters given
 * @param params the parameters, or null for none
 * @param weights n values: 1 for an observation kept, 0 for an outlier (and for an
 *        observation with a value that is not finite)
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status: NOT_POSITIVE_DEFINITE
 *         (a subset's covariance singular), NO_CONVERGENCE (still changing after n
 *         rounds: the last subset's weights written), OBSERVATION_COUNT. */
int brenn_ss_outliers_f64(const brenn_ss_matrix_f64* matrix, int64_t param_count,
                          const double* params, double* weights);
/** The float form of brenn_ss_outliers_f64() (computed in double).
 * @copydetails brenn_ss_outliers_f64 */
int brenn_ss_outliers_f32(const brenn_ss_matrix_f32* matrix, int64_t param_count,
                          const float* params, float* weights);

/** Missing values: a NaN (quiet or signalling) in a kept variable is a missing entry.
 * EM for the multivariate normal gives the maximum-likelihood mean and covariance
 * (divisor n); with nothing missing these are the data's. Then `imputations` imputed
 * data sets by data augmentation (Schafer 1997, Jeffreys prior) on one chain started
 * at the EM estimate, `steps` augmentation steps apart: imputation k's K entries (K
 * the missing entries of the kept variables, in the order they lie in x's memory) go
 * to imputed[k * K + e], its completed data's means to imputed_means[k * p + j]. The
 * draws depend on the seed only; observed entries are never changed.
 * Parameters (BRENN_SS_MISSING_PARAMS):
 *   [0] EM iteration limit, a whole number from 1 to 2^53; default 1000
 *   [1] EM tolerance, above 0 and finite (relative to the standard deviations);
 *       default 1e-6
 *   [2] augmentation steps between two imputations, a whole number from 1 to 2^53;
 *       default 10
 *   [3] seed, a whole number from 0 to 2^32 - 1; default 1
 * Further checks: imputations below 0 or imputed_size below imputations * K,
 * BRENN_ERR_BAD_SIZE; a null imputed or imputed_means with imputations above 0,
 * BRENN_ERR_NULL_POINTER.
 * @param matrix the observations, NaN for missing
 * @param param_count parameters given
 * @param params the parameters, or null for none
 * @param mean p values
 * @param cov p * p values
 * @param imputations imputed data sets wanted (0 for the EM estimate only)
 * @param imputed_size the values imputed can hold
 * @param imputed imputations * K values, or null for none
 * @param imputed_means imputations * p values, or null for none
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status: NOT_POSITIVE_DEFINITE
 *         (n at most the kept variables, a variable with fewer than two distinct
 *         observed values, or a singular covariance: nothing written in EM, the EM
 *         estimate written when the chain fails), NO_CONVERGENCE (EM's last iterate
 *         written, no imputation). */
int brenn_ss_missing_values_f64(const brenn_ss_matrix_f64* matrix, int64_t param_count,
                                const double* params, double* mean, double* cov,
                                int64_t imputations, int64_t imputed_size, double* imputed,
                                double* imputed_means);
/** The float form of brenn_ss_missing_values_f64() (computed in double).
 * @copydetails brenn_ss_missing_values_f64 */
int brenn_ss_missing_values_f32(const brenn_ss_matrix_f32* matrix, int64_t param_count,
                                const float* params, float* mean, float* cov, int64_t imputations,
                                int64_t imputed_size, float* imputed, float* imputed_means);

/** K, the missing entries of a view: the NaNs (quiet or signalling) of its kept
 * variables, the number of values one imputation of brenn_ss_missing_values_f64()
 * writes.
 * @param matrix the observations
 * @param count where K goes
 * @return BRENN_OK or a refusal of the view's checks (count not written). */
int brenn_ss_missing_count_f64(const brenn_ss_matrix_f64* matrix, int64_t* count);
/** The float form of brenn_ss_missing_count_f64(). @copydetails brenn_ss_missing_count_f64 */
int brenn_ss_missing_count_f32(const brenn_ss_matrix_f32* matrix, int64_t* count);

/** Partial covariance and correlation of the result variables Y given the
 * conditioning variables Z: S_YY - S_YZ S_ZZ^-1 S_ZY by the Cholesky factor of S_ZZ,
 * S the view's covariance (unbiased, weighted as brenn_ss.h states); the correlation
 * is its normalisation. Results are ny x ny, ny the kept variables marked 1, in the
 * variables' order; no conditioning variable gives S_YY.
 * Further checks: a null roles, or both results null, BRENN_ERR_NULL_POINTER; a role
 * other than 1, -1, 0, BRENN_ERR_BAD_ARGUMENT.
 * @param matrix the observations
 * @param roles p words: 1 a result variable, -1 a conditioning variable, 0 neither
 * @param partial_cov ny * ny values, or null when not wanted
 * @param partial_cor ny * ny values, or null when not wanted
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status: NOT_POSITIVE_DEFINITE
 *         when S_ZZ is not. */
int brenn_ss_partial_covariance_f64(const brenn_ss_matrix_f64* matrix, const int64_t* roles,
                                    double* partial_cov, double* partial_cor);
/** The float form of brenn_ss_partial_covariance_f64().
 * @copydetails brenn_ss_partial_covariance_f64 */
int brenn_ss_partial_covariance_f32(const brenn_ss_matrix_f32* matrix, const int64_t* roles,
                                    float* partial_cov, float* partial_cor);

/** Group and pooled covariance of observations in g groups: group k's mean into
 * group_means[k * p + j] and its unbiased covariance (divisor n_k - 1) into the k-th
 * p x p block of group_covs; the mean of all observations into mean and the sum of
 * the groups' cross-products over n - g into cov. A group of one observation has a NaN
 * covariance, an empty group NaN means too, n = g a NaN pooled covariance. The results
 * do not depend on the threads.
 * Further checks: groups below 1, BRENN_ERR_BAD_SIZE; a null labels, one of a pair
 * (group_means, group_covs) or (mean, cov) null without the other, or all four null,
 * BRENN_ERR_NULL_POINTER; a label outside 0 to g - 1, BRENN_ERR_BAD_ARGUMENT.
 * @param matrix the observations
 * @param groups g
 * @param labels n words, each observation's group
 * @param group_means g * p values, or null (with group_covs) when not wanted
 * @param group_covs g * p * p values, or null (with group_means) when not wanted
 * @param mean p values, or null (with cov) when not wanted
 * @param cov p * p values, or null (with mean) when not wanted
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_pooled_covariance_f64(const brenn_ss_matrix_f64* matrix, int64_t groups,
                                   const int64_t* labels, double* group_means, double* group_covs,
                                   double* mean, double* cov);
/** The float form of brenn_ss_pooled_covariance_f64().
 * @copydetails brenn_ss_pooled_covariance_f64 */
int brenn_ss_pooled_covariance_f32(const brenn_ss_matrix_f32* matrix, int64_t groups,
                                   const int64_t* labels, float* group_means, float* group_covs,
                                   float* mean, float* cov);

/** The nearest correlation matrix X to a symmetric p x p matrix A (its lower triangle) in the
 * weighted Frobenius norm |W^1/2 (A - X) W^1/2|, W = diag(weights), by alternating projections with
 * Dykstra's correction (Higham 2002). X has a unit diagonal exactly and eigenvalues at or above
 * -tolerance; a correlation matrix comes back unchanged up to rounding. Parameters
 * (BRENN_SS_NEAREST_PARAMS): [0] tolerance, above 0 and finite, on the diagonal's distance from 1
 * and on the step of the iterate; default 1e-12 (float: 1e-5) [1] iteration limit, a whole number
 * from 1 to 2^31 - 1; default 10000 Further checks: p below 1 or above 46340, BRENN_ERR_BAD_SIZE; a
 * null a or x, BRENN_ERR_NULL_POINTER; a value of A's lower triangle that is not finite, a weight
 * not above 0 or not finite, BRENN_ERR_BAD_ARGUMENT.
 * @param p the order
 * @param a p * p values
 * @param weights p values above 0, or null for all 1
 * @param param_count parameters given
 * @param params the parameters, or null for none
 * @param x p * p values; may be a itself
 * @return BRENN_OK, a refusal, or BRENN_SS_ERROR_NO_CONVERGENCE (the limit reached:
 *         the last iterate written). */
int brenn_ss_nearest_correlation_f64(int64_t p, const double* a, const double* weights,
                                     int64_t param_count, const double* params, double* x);
/** The float form of brenn_ss_nearest_correlation_f64().
 * @copydetails brenn_ss_nearest_correlation_f64 */
int brenn_ss_nearest_correlation_f32(int64_t p, const float* a, const float* weights,
                                     int64_t param_count, const float* params, float* x);

/** Mahalanobis distances of the observations: sqrt((x_i - m)' S^-1 (x_i - m)) over the
 * kept variables, by the Cholesky factor of S and a triangular solve (no inverse). The
 * results do not depend on the threads.
 * Further checks: a null mean, cov or distances, BRENN_ERR_NULL_POINTER.
 * @param matrix the observations
 * @param mean p values m
 * @param cov p * p values S (symmetric positive definite over the kept variables)
 * @param distances n values
 * @return BRENN_OK, a refusal, or BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE. */
int brenn_ss_mahalanobis_f64(const brenn_ss_matrix_f64* matrix, const double* mean,
                             const double* cov, double* distances);
/** The float form of brenn_ss_mahalanobis_f64().
 * @copydetails brenn_ss_mahalanobis_f64 */
int brenn_ss_mahalanobis_f32(const brenn_ss_matrix_f32* matrix, const float* mean, const float* cov,
                             float* distances);

#ifdef __cplusplus
}
#endif

#endif
