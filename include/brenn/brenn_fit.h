/** @file brenn_fit.h
 * Data fitting through the front-end: a spline object built from its partition,
 * function values and conditions in one checked call, evaluated (values and
 * derivatives) at sites and integrated over intervals. The object owns copies of
 * everything it needs; the caller's arrays may go once brenn_fit_spline_new_f64()
 * returns.
 *
 * Kinds are the construction families of the fitting service. Each kind's
 * construction entry is looked up in the kernel library when a spline is made, so a
 * family built later is taken without a change here; a family not in this build gives
 * BRENN_ERR_NOT_AVAILABLE (brenn_fit_available() tells beforehand).
 *
 * Checks before anything is built: nx or nsite negative, BRENN_ERR_BAD_SIZE; an unknown
 * kind, a partition that is not finite and strictly increasing, a NaN site, or a
 * derivative count outside 1 .. order, BRENN_ERR_BAD_ARGUMENT; a null array that the
 * call needs (x, y, the bc values its codes need, ic where the kind takes it, sites,
 * results), BRENN_ERR_NULL_POINTER. Construction statuses are the service's
 * (FIT_STATUS_*): a condition the family does not take, too few points for it. */
#ifndef BRENN_FIT_H
#define BRENN_FIT_H

#include <stdint.h>

#include "brenn_fitting.h"
#include "brenn_status.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Spline kinds: the construction families, with the order each has. */
enum {
    BRENN_FIT_LINEAR = 0,          /**< order 2 */
    BRENN_FIT_QUADRATIC = 1,       /**< order 3, the midpoint-value form (bc: FIT_BC_MID_VALUE) */
    BRENN_FIT_QUADRATIC_KNOTS = 2, /**< order 3, the knot form; ic holds the nx+1 knots */
    BRENN_FIT_CUBIC_DEFAULT = 3,   /**< order 4 */
    BRENN_FIT_CUBIC_NATURAL = 4,   /**< order 4 */
    BRENN_FIT_CUBIC_AKIMA = 5,     /**< order 4 */
    BRENN_FIT_CUBIC_BESSEL = 6,    /**< order 4 */
    BRENN_FIT_CUBIC_HYMAN = 7,     /**< order 4 */
    BRENN_FIT_CUBIC_HERMITE = 8,   /**< order 4; ic holds the nx node derivatives */
    BRENN_FIT_KIND_COUNT = 9       /**< the number of kinds */
};

/** A spline of doubles, owned by the caller from brenn_fit_spline_new_f64() to _delete(). */
typedef struct brenn_fit_spline_f64 brenn_fit_spline_f64;
/** A spline of floats. */
typedef struct brenn_fit_spline_f32 brenn_fit_spline_f32;

/** Whether a kind's construction is in this build.
 * @param kind a BRENN_FIT_* kind
 * @return BRENN_OK, BRENN_ERR_NOT_AVAILABLE, or BRENN_ERR_BAD_ARGUMENT for no kind. */
int brenn_fit_available(int kind);
/** The order (coefficients a cell) of a kind: 2, 3 or 4; 0 for no kind.
 * @param kind a BRENN_FIT_* kind
 * @return the order. */
int brenn_fit_order(int kind);

/** Builds the spline of one function given by its values on a partition.
 * @param spline where the new spline goes; null on failure
 * @param kind a BRENN_FIT_* kind
 * @param nx number of partition points
 * @param x the partition, strictly increasing
 * @param y the nx function values
 * @param bc_type FIT_BC_* codes, combined
 * @param bc the numbers the codes need, left end first (null when none is needed)
 * @param ic the kind's internal conditions (knots or node derivatives), else null
 * @return BRENN_OK, a refusal, or a FIT_STATUS_* of the construction. */
int brenn_fit_spline_new_f64(brenn_fit_spline_f64** spline, int kind, int64_t nx, const double* x,
                             const double* y, int64_t bc_type, const double* bc, const double* ic);
/** Values and derivatives at sites: result[s * nderiv + d] is derivative d (0 the
 * value) at site s. Sites outside the partition extend the end cells.
 * @param spline the spline
 * @param nsite number of sites
 * @param site the sites
 * @param nderiv derivatives a site, 1 .. the order
 * @param result nsite * nderiv values
 * @return BRENN_OK, a refusal, or a FIT_STATUS_* of the interpolation. */
int brenn_fit_spline_eval_f64(const brenn_fit_spline_f64* spline, int64_t nsite, const double* site,
                              int nderiv, double* result);
/** Integrals over intervals: result[i] is the integral from a[i] to b[i], exactly minus
 * that from b[i] to a[i] when b[i] < a[i]. Each cell's polynomial is integrated in
 * closed form and whole cells are summed pairwise, so the error does not grow with the
 * limits' distance from x[0]; an interval's result does not depend on the others.
 * @param spline the spline
 * @param n number of intervals
 * @param a the lower limits (NaN refused)
 * @param b the upper limits (NaN refused)
 * @param extrapolate nonzero: beyond the partition the end cells' polynomials; zero:
 *        NaN for an interval with a limit outside [x[0], x[nx-1]]
 * @param result n integrals
 * @return BRENN_OK, a refusal, or a FIT_STATUS_* of the integration. */
int brenn_fit_spline_integrate_f64(const brenn_fit_spline_f64* spline, int64_t n, const double* a,
                                   const double* b, int extrapolate, double* result);
/** Ends a spline and sets *spline to null; a null *spline is accepted.
 * @param spline the spline's address
 * @return BRENN_OK, or BRENN_ERR_NULL_POINTER for a null address. */
int brenn_fit_spline_delete_f64(brenn_fit_spline_f64** spline);

/** The float form of brenn_fit_spline_new_f64(). @copydetails brenn_fit_spline_new_f64 */
int brenn_fit_spline_new_f32(brenn_fit_spline_f32** spline, int kind, int64_t nx, const float* x,
                             const float* y, int64_t bc_type, const float* bc, const float* ic);
/** The float form of brenn_fit_spline_eval_f64(). @copydetails brenn_fit_spline_eval_f64 */
int brenn_fit_spline_eval_f32(const brenn_fit_spline_f32* spline, int64_t nsite, const float* site,
                              int nderiv, float* result);
/** The float form of brenn_fit_spline_integrate_f64(). The sums are made in double
 * precision and rounded once. @copydetails brenn_fit_spline_integrate_f64 */
int brenn_fit_spline_integrate_f32(const brenn_fit_spline_f32* spline, int64_t n, const float* a,
                                   const float* b, int extrapolate, float* result);
/** The float form of brenn_fit_spline_delete_f64(). @copydetails brenn_fit_spline_delete_f64 */
int brenn_fit_spline_delete_f32(brenn_fit_spline_f32** spline);

#ifdef __cplusplus
}
#endif

#endif
