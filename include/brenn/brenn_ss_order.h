/** @file brenn_ss_order.h
 * Quantiles, order statistics, sorting, the median absolute deviation and the
 * weighted median through the front-end: of each variable of a matrix view
 * (brenn_ss.h), in one checked call each. Streaming quantiles are in brenn_ss_stream.h.
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
 * BRENN_ERR_NULL_POINTER; an order outside [0, 1] or NaN, order statistics asked
 * into x itself, or a sort into x with indices, BRENN_ERR_BAD_ARGUMENT.
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

/** Sorts each variable ascending: p * n values in the view's layout, as
 * brenn_ss_order_statistics_f64() lays them out. The result may be x itself (the
 * matrix sorted in place) when the view has no indices; variables the indices leave
 * out keep what their places held.
 * @param matrix the observations
 * @param sorted where they go, or x
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_sort_f64(const brenn_ss_matrix_f64* matrix, double* sorted);
/** The float form of brenn_ss_sort_f64(). @copydetails brenn_ss_sort_f64 */
int brenn_ss_sort_f32(const brenn_ss_matrix_f32* matrix, float* sorted);

/** The median absolute deviation of each variable, unscaled: median(|x - median(x)|),
 * both medians by the quantile rule at order 0.5. Weights are not used; x is not
 * written.
 * @param matrix the observations
 * @param mad p values
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_mad_f64(const brenn_ss_matrix_f64* matrix, double* mad);
/** The float form of brenn_ss_mad_f64(). @copydetails brenn_ss_mad_f64 */
int brenn_ss_mad_f32(const brenn_ss_matrix_f32* matrix, float* mad);

/** The weighted median of each variable with the view's weights (null: all 1, which
 * gives the plain median: the middle value, or the mean of the two middle ones).
 * With weights w summing to S, sorted with their values: c, the weight summed up the
 * sorted values, first reaches S / 2 at k. Above S / 2, with c' = c - w[k]: x[k] if
 * c' is 0, or if n is odd and c' = (S - w[k]) / 2; else the value y + (S/2 - c') /
 * w[k] * (x[k] - y), y the nearest value below k with a positive weight. At S / 2:
 * x[k] if n is odd or k is the last index, else the mean of x[k] and the next value
 * with a positive weight. n counts observations of weight 0 too.
 * @param matrix the observations and their weights
 * @param median p values
 * @return BRENN_OK, a refusal, BRENN_ERR_NO_MEMORY when the unit weights could not be
 *         made, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_weighted_median_f64(const brenn_ss_matrix_f64* matrix, double* median);
/** The float form of brenn_ss_weighted_median_f64().
 * @copydetails brenn_ss_weighted_median_f64 */
int brenn_ss_weighted_median_f32(const brenn_ss_matrix_f32* matrix, float* median);

#ifdef __cplusplus
}
#endif

#endif
