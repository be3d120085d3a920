/** @file brenn_rand_cont.hpp
 * The continuous distributions as C++ descriptions for brenn::rng::stream::fill():
 * each holds its parameters and method, for float or double spans, and draws through
 * the checked C entry of its type (brenn_rand_cont.h):
 *
 *     s.fill(std::span<double>(y), brenn::rng::gaussian{0.0, 2.0});
 *     s.fill(std::span<float>(z), brenn::rng::weibull{1.5f, 0.0f, 1.0f});
 *
 * The element type is deduced from the parameters. Parameters outside their range and
 * methods a distribution lacks give the C entry's refusal, with nothing drawn. */
#ifndef BRENN_RAND_CONT_HPP
#define BRENN_RAND_CONT_HPP

#include <concepts>
#include <type_traits>

#include "brenn_rand_cont.h"

namespace brenn::rng {

namespace detail {
// The entry of the element type: F for double, S for float.
template <class T, class F, class S>
constexpr auto by_type(F f, S s) {
    static_assert(std::is_same_v<T, double> || std::is_same_v<T, float>,
                  "continuous variates are float or double");
    if constexpr (std::is_same_v<T, double>)
        return f;
    else
        return s;
}
} // namespace detail

/** Gaussian a + sigma z. */
template <class T>
struct gaussian {
    using value_type = T;
    T a = T(0);                                 /**< mean */
    T sigma = T(1);                             /**< standard deviation, above 0 */
    int method = BRENN_RNG_GAUSSIAN_BOXMULLER2; /**< BRENN_RNG_GAUSSIAN_* */
    int draw(brenn_stream* s, int n, T* r) const {
        return detail::by_type<T>(brenn_rng_gaussian_f64, brenn_rng_gaussian_f32)(s, method, n, r,
                                                                                  a, sigma);
    }
};
/** Lognormal b + beta exp(a + sigma z). */
template <class T>
struct lognormal {
    using value_type = T;
    T a = T(0);                                  /**< mean of the exponent */
    T sigma = T(1);                              /**< its standard deviation, above 0 */
    T b = T(0);                                  /**< shift */
    T beta = T(1);                               /**< scale, above 0 */
    int method = BRENN_RNG_LOGNORMAL_BOXMULLER2; /**< BRENN_RNG_LOGNORMAL_* */
    int draw(brenn_stream* s, int n, T* r) const {
        return detail::by_type<T>(brenn_rng_lognormal_f64,
                                  brenn_rng_lognormal_f32)(s, method, n, r, a, sigma, b, beta);
    }
};
/** Weibull a + beta (-ln u)^(1/alpha). */
template <class T>
struct weibull {
    using value_type = T;
    T alpha = T(1); /**< shape, above 0 */
    T a = T(0);     /**< shift */
    T beta = T(1);  /**< scale, above 0 */
    int draw(brenn_stream* s, int n, T* r) const {
        return detail::by_type<T>(brenn_rng_weibull_f64, brenn_rng_weibull_f32)(s, 0, n, r, alpha,
                                                                                a, beta);
    }
};

// The distributions of a location (or shift) a and a scale beta above 0.
#define BRENN_RNG_LOCATION_SCALE(name)                                                             \
    template <class T>                                                                             \
    struct name {                                                                                  \
        using value_type = T;                                                                      \
        T a = T(0);    /**< location or shift */                                                   \
        T beta = T(1); /**< scale, above 0 */                                                      \
        int draw(brenn_stream* s, int n, T* r) const {                                             \
            return detail::by_type<T>(brenn_rng_##name##_f64, brenn_rng_##name##_f32)(s, 0, n, r,  \
                                                                                      a, beta);    \
        }                                                                                          \
    };
/** Exponential a - beta ln u. */
BRENN_RNG_LOCATION_SCALE(exponential)
/** Gumbel a + beta ln(-ln u), the distribution of a minimum. */
BRENN_RNG_LOCATION_SCALE(gumbel)
/** Laplace a +- beta ln u. */
BRENN_RNG_LOCATION_SCALE(laplace)
/** Rayleigh a + beta sqrt(-ln u). */
BRENN_RNG_LOCATION_SCALE(rayleigh)
/** Cauchy a + beta tan(v). */
BRENN_RNG_LOCATION_SCALE(cauchy)
#undef BRENN_RNG_LOCATION_SCALE

/** A description fill() draws a span of value_type from. */
template <class D>
concept continuous_distribution = requires(const D& d, brenn_stream* s, typename D::value_type* r) {
    { d.draw(s, 1, r) } -> std::same_as<int>;
};

} // namespace brenn::rng

#endif
