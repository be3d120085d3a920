/** @file brenn_ss_order.h
 * Quantiles and order statistics through the front-end: of each variable of a matrix
 * view (brenn_ss.h), in one checked call each.
 *
 * A quantile of order b of n values: h = b (n - 1), j = trunc(h), f = h - j, and the
 * quantile is a (1 - f) + f c with a and c the j-th and (j + 1)-th smallest values:
 * order 0 gives the minimum, 1 the maximum. Weights are not used. Variables the view's
 * indices leave out keep what their results held.
 *
 * Checks before any compute, with nothing written when one fails: the view's own
 * (brenn_ss.h: a null view or x, BRENN_ERR_NULL_POINTER; p or n below 1,
 * BRENN_ERR_BAD_SIZE; an unknown layout or a bad weight, BRENN_ERR_BAD_ARGUMENT); m
 * below 1, BRENN_ERR_BAD_SIZE; a null orders or results array,
 * BRENN_ERR_NULL_POINTER; an order outside [0, 1] or NaN, or order statistics asked
 * into x itself, BRENN_ERR_BAD_ARGUMENT.
 * Compute statuses are the service's (BRENN_SS_ERROR_*). */
#ifndef BRENN_SS_ORDER_H
#define BRENN_SS_ORDER_H

#include "brenn_ss.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The quantiles of m orders of each variable.
 * @param matrix the observations
 * @param m number of orders
 * @param orders the m orders, each in [0, 1]
 * @param quantiles p * m values: variable v's quantile of order k at quantiles[v * m + k]
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_quantiles_f64(const brenn_ss_matrix_f64* matrix, int64_t m, const double* orders,
                           double* quantiles);
/** The float form of brenn_ss_quantiles_f64(). @copydetails brenn_ss_quantiles_f64 */
int brenn_ss_quantiles_f32(const brenn_ss_matrix_f32* matrix, int64_t m, const float* orders,
                           float* quantiles);

/** The order statistics: each variable's values in ascending order, p * n values in the
 * view's layout (variable j's i-th smallest at sorted[j*n + i] for
 * BRENN_SS_VARIABLES_IN_ROWS, at sorted[i*p + j] for BRENN_SS_OBSERVATIONS_IN_ROWS).
 * @param matrix the observations
 * @param sorted where they go; not x itself
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_order_statistics_f64(const brenn_ss_matrix_f64* matrix, double* sorted);
/** The float form of brenn_ss_order_statistics_f64().
 * @copydetails brenn_ss_order_statistics_f64 */
int brenn_ss_order_statistics_f32(const brenn_ss_matrix_f32* matrix, float* sorted);

#ifdef __cplusplus
}
#endif

#endif
