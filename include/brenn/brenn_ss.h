/** @file brenn_ss.h
 * Summary statistics through the front-end: the estimates a caller asks for, of one
 * matrix view of observations, in one checked call. The front-end makes the task,
 * supplies the working arrays the estimates need but the caller did not ask for,
 * runs the compute entries on the service library's thread pool and ends the task.
 *
 * Estimates taken (bits of brenn_stats.h): BRENN_SS_MEAN, BRENN_SS_2R_MOM,
 * BRENN_SS_3R_MOM, BRENN_SS_4R_MOM, BRENN_SS_2C_MOM, BRENN_SS_3C_MOM, BRENN_SS_4C_MOM,
 * BRENN_SS_SKEWNESS, BRENN_SS_KURTOSIS, BRENN_SS_VARIATION, BRENN_SS_MIN,
 * BRENN_SS_MAX, BRENN_SS_COV, BRENN_SS_COR (normalisation as brenn_stats.h states).
 * Other bits give BRENN_ERR_NOT_AVAILABLE.
 *
 * Checks before any compute, with nothing written when one fails: p or n below 1,
 * BRENN_ERR_BAD_SIZE; a layout other than the two, a negative or non-finite weight,
 * BRENN_ERR_BAD_ARGUMENT; a null matrix, x, or result array of an estimate asked for,
 * BRENN_ERR_NULL_POINTER. Compute statuses are the service's (BRENN_SS_ERROR_*). */
#ifndef BRENN_SS_H
#define BRENN_SS_H

#include <stdint.h>

#include "brenn_stats.h"
#include "brenn_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/** How a matrix of p variables by n observations lies in memory. */
enum {
    BRENN_SS_VARIABLES_IN_ROWS = BRENN_SS_MATRIX_STORAGE_ROWS,   /**< x[j*n + i]: variable j */
    BRENN_SS_OBSERVATIONS_IN_ROWS = BRENN_SS_MATRIX_STORAGE_COLS /**< x[i*p + j]: observation i */
};

/** A view of double observations. */
typedef struct brenn_ss_matrix_f64 {
    int64_t p;              /**< variables */
    int64_t n;              /**< observations */
    int64_t layout;         /**< BRENN_SS_VARIABLES_IN_ROWS or BRENN_SS_OBSERVATIONS_IN_ROWS */
    const double* x;        /**< p * n values */
    const double* weights;  /**< n weights (non-negative, finite), or null for all 1 */
    const int64_t* indices; /**< p words, 0 leaves a variable out, or null for all */
} brenn_ss_matrix_f64;

/** A view of float observations. */
typedef struct brenn_ss_matrix_f32 {
    int64_t p;              /**< variables */
    int64_t n;              /**< observations */
    int64_t layout;         /**< BRENN_SS_VARIABLES_IN_ROWS or BRENN_SS_OBSERVATIONS_IN_ROWS */
    const float* x;         /**< p * n values */
    const float* weights;   /**< n weights (non-negative, finite), or null for all 1 */
    const int64_t* indices; /**< p words, 0 leaves a variable out, or null for all */
} brenn_ss_matrix_f32;

/** Where the estimates go: p values each, p * p for the two matrices (full storage).
 * Only the arrays of the estimates asked for are written; the others may be null. */
typedef struct brenn_ss_results_f64 {
    double *mean, *raw_moment2, *raw_moment3, *raw_moment4, *central_moment2, *central_moment3,
        *central_moment4, *skewness, *kurtosis, *variation, *minimum, *maximum, *covariance,
        *correlation;
} brenn_ss_results_f64;

/** The float form of brenn_ss_results_f64. */
typedef struct brenn_ss_results_f32 {
    float *mean, *raw_moment2, *raw_moment3, *raw_moment4, *central_moment2, *central_moment3,
        *central_moment4, *skewness, *kurtosis, *variation, *minimum, *maximum, *covariance,
        *correlation;
} brenn_ss_results_f32;

/** Computes the estimates asked for of a matrix of double observations.
 * @param matrix the observations
 * @param estimates an OR of the estimate bits above
 * @param results where each estimate asked for goes
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_compute_f64(const brenn_ss_matrix_f64* matrix, uint64_t estimates,
                         const brenn_ss_results_f64* results);
/** The float form of brenn_ss_compute_f64(). @copydetails brenn_ss_compute_f64 */
int brenn_ss_compute_f32(const brenn_ss_matrix_f32* matrix, uint64_t estimates,
                         const brenn_ss_results_f32* results);

#ifdef __cplusplus
}
#endif

#endif
