/** @file brenn_ss_stream.h
 * Streaming quantiles through the front-end: a summary of p variables that takes
 * blocks of observations one call at a time and answers quantiles of everything fed
 * so far within a rank error of eps N (N the observations fed), in memory that grows
 * as log2(eps N) / eps, not with N.
 *
 * The value given for an order b has a rank in the sorted data within eps N of
 * b (N - 1) + 1. The summary depends only on the sequence of observations, not on how
 * it is cut into blocks. A variable takes fewer than 2^31 observations.
 *
 * The summary holds back the last observation fed, and a read feeds it before
 * answering: so one read follows each run of feeds, and a second read with no
 * observation fed since gives BRENN_ERR_NOT_AVAILABLE (ask for every order in one
 * read).
 *
 * Checks before any compute, with nothing fed or written when one fails: a null
 * stream, x, orders or results array, BRENN_ERR_NULL_POINTER; p below 1, n or m
 * below 0, BRENN_ERR_BAD_SIZE; eps outside (0, 1] or NaN, a layout other than the
 * two, an order outside [0, 1] or NaN, BRENN_ERR_BAD_ARGUMENT. Compute statuses are
 * the service's (BRENN_SS_ERROR_*; BRENN_SS_ERROR_ALLOC when the summary could not
 * grow, after which it holds the observations fed before). */
#ifndef BRENN_SS_STREAM_H
#define BRENN_SS_STREAM_H

#include <stdint.h>

#include "brenn_ss.h"

#ifdef __cplusplus
extern "C" {
#endif

/** A summary of double observations. */
typedef struct brenn_ss_stream_f64 brenn_ss_stream_f64;
/** A summary of float observations. */
typedef struct brenn_ss_stream_f32 brenn_ss_stream_f32;

/** Makes an empty summary of p variables with accuracy eps.
 * @param stream receives the summary (null when the call fails)
 * @param p number of variables
 * @param eps the rank accuracy, in (0, 1]
 * @return BRENN_OK, a refusal, or BRENN_ERR_NO_MEMORY. */
int brenn_ss_stream_new_f64(brenn_ss_stream_f64** stream, int64_t p, double eps);
/** The float form of brenn_ss_stream_new_f64(). @copydetails brenn_ss_stream_new_f64 */
int brenn_ss_stream_new_f32(brenn_ss_stream_f32** stream, int64_t p, float eps);

/** Feeds n observations of the p variables.
 * @param stream the summary
 * @param n number of observations (0 feeds nothing)
 * @param layout BRENN_SS_VARIABLES_IN_ROWS (x[j*n + i]) or BRENN_SS_OBSERVATIONS_IN_ROWS
 *        (x[i*p + j])
 * @param x p * n values
 * @return BRENN_OK, a refusal, or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_stream_feed_f64(brenn_ss_stream_f64* stream, int64_t n, int64_t layout,
                             const double* x);
/** The float form of brenn_ss_stream_feed_f64(). @copydetails brenn_ss_stream_feed_f64 */
int brenn_ss_stream_feed_f32(brenn_ss_stream_f32* stream, int64_t n, int64_t layout,
                             const float* x);

/** The quantiles of m orders of each variable, over every observation fed.
 * @param stream the summary
 * @param m number of orders
 * @param orders m orders, each in [0, 1]
 * @param quantiles p * m values: variable v's quantile of order k at quantiles[v * m + k]
 * @return BRENN_OK; a refusal; BRENN_ERR_NOT_AVAILABLE when nothing was fed since the
 *         last read (or ever); or a BRENN_SS_ERROR_* status of the compute. */
int brenn_ss_stream_read_f64(brenn_ss_stream_f64* stream, int64_t m, const double* orders,
                             double* quantiles);
/** The float form of brenn_ss_stream_read_f64(). @copydetails brenn_ss_stream_read_f64 */
int brenn_ss_stream_read_f32(brenn_ss_stream_f32* stream, int64_t m, const float* orders,
                             float* quantiles);

/** The observations of each variable fed so far; -1 for a null stream. */
int64_t brenn_ss_stream_count_f64(const brenn_ss_stream_f64* stream);
/** The float form of brenn_ss_stream_count_f64(). @copydetails brenn_ss_stream_count_f64 */
int64_t brenn_ss_stream_count_f32(const brenn_ss_stream_f32* stream);

/** Frees a summary and sets *stream to null; a null stream or *stream is passed over. */
void brenn_ss_stream_delete_f64(brenn_ss_stream_f64** stream);
/** The float form of brenn_ss_stream_delete_f64(). @copydetails brenn_ss_stream_delete_f64 */
void brenn_ss_stream_delete_f32(brenn_ss_stream_f32** stream);

#ifdef __cplusplus
}
#endif

#endif
