/** @file brenn_rand_cont.h
 * Continuous distributions through the front-end: Gaussian, lognormal, exponential,
 * Gumbel, Laplace, Rayleigh, Weibull and Cauchy variates into float or double
 * arrays, brenn_rng_<distribution>_<t>() with <t> f32 or f64.
 *
 * Checks, in this order, before anything is drawn; a refused call writes nothing and
 * leaves the stream where it was:
 * 1. n negative: BRENN_ERR_BAD_SIZE;
 * 2. a null stream, or a null r with n > 0: BRENN_ERR_NULL_POINTER;
 * 3. a method the distribution does not have: BRENN_ERR_BAD_METHOD;
 * 4. a parameter outside its range: BRENN_ERR_BAD_ARGUMENT. Locations and shifts (a,
 *    b) must be finite; scales and shapes (sigma, beta, alpha) finite and above 0.
 *    NaN fails every test.
 * Then the random-number service's status is passed on: BRENN_OK, or a negative
 * QES_* status of the generator (the variates of earlier blocks are kept).
 *
 * The distributions draw from the stream's uniforms, so one call of n equals calls
 * of k and n - k on the same stream. Results are the service's own, bit for bit. */
#ifndef BRENN_RAND_CONT_H
#define BRENN_RAND_CONT_H

#include "brenn_rand.h"

#ifdef __cplusplus
extern "C" {
#endif

/** Methods of the Gaussian (the method word of brenn_rng_gaussian_*()). */
enum {
    BRENN_RNG_GAUSSIAN_BOXMULLER = 0,  /**< Box-Muller, the sine half of each pair */
    BRENN_RNG_GAUSSIAN_BOXMULLER2 = 1, /**< Box-Muller, both halves: two uniforms a pair */
    BRENN_RNG_GAUSSIAN_ICDF = 2        /**< the inverse distribution function, one uniform each */
};
/** Methods of the lognormal: the Gaussian its logarithm is drawn by. */
enum {
    BRENN_RNG_LOGNORMAL_BOXMULLER2 = 0, /**< Gaussian method 1 */
    BRENN_RNG_LOGNORMAL_ICDF = 1        /**< Gaussian method 2 */
};

/** n Gaussian variates a + sigma z, z standard normal.
 * @param stream the stream
 * @param method BRENN_RNG_GAUSSIAN_BOXMULLER, _BOXMULLER2 or _ICDF
 * @param n number of variates
 * @param r where they go
 * @param a mean, finite
 * @param sigma standard deviation, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_gaussian_f64(brenn_stream* stream, int method, int n, double* r, double a,
                           double sigma);
/** The float form of brenn_rng_gaussian_f64(). @copydetails brenn_rng_gaussian_f64 */
int brenn_rng_gaussian_f32(brenn_stream* stream, int method, int n, float* r, float a, float sigma);

/** n lognormal variates b + beta exp(a + sigma z) (at least b).
 * @param stream the stream
 * @param method BRENN_RNG_LOGNORMAL_BOXMULLER2 or BRENN_RNG_LOGNORMAL_ICDF
 * @param n number of variates
 * @param r where they go
 * @param a mean of the Gaussian exponent, finite
 * @param sigma its standard deviation, finite and above 0
 * @param b shift, finite
 * @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_lognormal_f64(brenn_stream* stream, int method, int n, double* r, double a,
                            double sigma, double b, double beta);
/** The float form of brenn_rng_lognormal_f64(). @copydetails brenn_rng_lognormal_f64 */
int brenn_rng_lognormal_f32(brenn_stream* stream, int method, int n, float* r, float a, float sigma,
                            float b, float beta);

/** n exponential variates a - beta ln u (at least a).
 * @param stream the stream
 * @param method 0
 * @param n number of variates
 * @param r where they go
 * @param a shift, finite
 * @param beta scale (the mean above a), finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_exponential_f64(brenn_stream* stream, int method, int n, double* r, double a,
                              double beta);
/** The float form of brenn_rng_exponential_f64(). @copydetails brenn_rng_exponential_f64 */
int brenn_rng_exponential_f32(brenn_stream* stream, int method, int n, float* r, float a,
                              float beta);

/** n Gumbel variates a + beta ln(-ln u): the distribution of a minimum.
 * @param stream the stream @param method 0 @param n number of variates
 * @param r where they go @param a location, finite
 * @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_gumbel_f64(brenn_stream* stream, int method, int n, double* r, double a, double beta);
/** The float form of brenn_rng_gumbel_f64(). @copydetails brenn_rng_gumbel_f64 */
int brenn_rng_gumbel_f32(brenn_stream* stream, int method, int n, float* r, float a, float beta);

/** n Laplace (double exponential) variates a +- beta ln u.
 * @param stream the stream @param method 0 @param n number of variates
 * @param r where they go @param a location, finite
 * @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_laplace_f64(brenn_stream* stream, int method, int n, double* r, double a,
                          double beta);
/** The float form of brenn_rng_laplace_f64(). @copydetails brenn_rng_laplace_f64 */
int brenn_rng_laplace_f32(brenn_stream* stream, int method, int n, float* r, float a, float beta);

/** n Rayleigh variates a + beta sqrt(-ln u) (at least a; no factor 2 under the root).
 * @param stream the stream @param method 0 @param n number of variates
 * @param r where they go @param a shift, finite
 * @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_rayleigh_f64(brenn_stream* stream, int method, int n, double* r, double a,
                           double beta);
/** The float form of brenn_rng_rayleigh_f64(). @copydetails brenn_rng_rayleigh_f64 */
int brenn_rng_rayleigh_f32(brenn_stream* stream, int method, int n, float* r, float a, float beta);

/** n Weibull variates a + beta (-ln u)^(1/alpha) (at least a).
 * @param stream the stream @param method 0 @param n number of variates
 * @param r where they go @param alpha shape, finite and above 0
 * @param a shift, finite @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_weibull_f64(brenn_stream* stream, int method, int n, double* r, double alpha,
                          double a, double beta);
/** The float form of brenn_rng_weibull_f64(). @copydetails brenn_rng_weibull_f64 */
int brenn_rng_weibull_f32(brenn_stream* stream, int method, int n, float* r, float alpha, float a,
                          float beta);

/** n Cauchy variates a + beta tan(v), v uniform on [-pi/2, pi/2).
 * @param stream the stream @param method 0 @param n number of variates
 * @param r where they go @param a location, finite
 * @param beta scale, finite and above 0
 * @return BRENN_OK, a refusal (see above), or the service's status. */
int brenn_rng_cauchy_f64(brenn_stream* stream, int method, int n, double* r, double a, double beta);
/** The float form of brenn_rng_cauchy_f64(). @copydetails brenn_rng_cauchy_f64 */
int brenn_rng_cauchy_f32(brenn_stream* stream, int method, int n, float* r, float a, float beta);

#ifdef __cplusplus
}
#endif

#endif
