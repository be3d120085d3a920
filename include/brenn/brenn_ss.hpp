/** @file brenn_ss.hpp
 * Summary statistics in C++: the estimates asked for of a matrix view, computed in
 * one call and returned by value. */
#ifndef BRENN_SS_HPP
#define BRENN_SS_HPP

#include <cstdint>
#include <span>
#include <type_traits>
#include <vector>

#include "brenn_result.hpp"
#include "brenn_ss.h"

namespace brenn::ss {

/** How the p x n matrix lies in memory. */
enum class layout : std::int64_t {
    variables_in_rows = BRENN_SS_VARIABLES_IN_ROWS,      /**< x[j*n + i] */
    observations_in_rows = BRENN_SS_OBSERVATIONS_IN_ROWS /**< x[i*p + j] */
};

/** A matrix of observations: p variables by n observations, with optional weights
 * (n) and indices (p words, 0 leaves a variable out). */
template <class T>
struct matrix_view {
    std::span<const T> x;                        /**< p * n values */
    std::int64_t p = 0;                          /**< variables */
    std::int64_t n = 0;                          /**< observations */
    layout order = layout::observations_in_rows; /**< how x lies */
    std::span<const T> weights = {};             /**< empty, or n weights */
    std::span<const std::int64_t> indices = {};  /**< empty, or p words */
};

namespace detail {

template <class T>
using c_matrix =
    std::conditional_t<std::is_same_v<T, double>, brenn_ss_matrix_f64, brenn_ss_matrix_f32>;

// The C view of a view whose spans fit p and n; BRENN_ERR_BAD_SIZE or
// BRENN_ERR_SIZE_MISMATCH when they do not.
template <class T>
status c_view(const matrix_view<T>& m, c_matrix<T>* out) {
    if (m.p < 0 || m.n < 0) return {BRENN_ERR_BAD_SIZE};
    const std::size_t p = static_cast<std::size_t>(m.p), n = static_cast<std::size_t>(m.n);
    if (m.x.size() != p * n || (!m.weights.empty() && m.weights.size() != n) ||
        (!m.indices.empty() && m.indices.size() != p))
        return {BRENN_ERR_SIZE_MISMATCH};
    *out = {m.p,
            m.n,
            static_cast<std::int64_t>(m.order),
            m.x.data(),
            m.weights.empty() ? nullptr : m.weights.data(),
            m.indices.empty() ? nullptr : m.indices.data()};
    return {};
}

} // namespace detail

/** The estimates computed: each vector asked for holds p values (p * p for the two
 * matrices, full storage); the others stay empty. */
template <class T>
struct estimates {
    std::vector<T> mean, raw_moment2, raw_moment3, raw_moment4, central_moment2, central_moment3,
        central_moment4, skewness, kurtosis, variation, minimum, maximum, covariance, correlation;
};

/** Computes the estimates `which` (BRENN_SS_* bits) of a matrix view. Sizes that do
 * not fit p and n give BRENN_ERR_SIZE_MISMATCH. */
template <class T>
result<estimates<T>> compute(const matrix_view<T>& m, std::uint64_t which) {
    result<estimates<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    const std::size_t p = static_cast<std::size_t>(m.p);
    estimates<T>& e = r.value;
    auto take = [&](std::uint64_t bit, std::vector<T>& v, std::size_t size) -> T* {
        if ((which & bit) == 0) return nullptr;
        v.resize(size);
        return v.data();
    };
    using Results =
        std::conditional_t<std::is_same_v<T, double>, brenn_ss_results_f64, brenn_ss_results_f32>;
    const Results out = {take(BRENN_SS_MEAN, e.mean, p),
                         take(BRENN_SS_2R_MOM, e.raw_moment2, p),
                         take(BRENN_SS_3R_MOM, e.raw_moment3, p),
                         take(BRENN_SS_4R_MOM, e.raw_moment4, p),
                         take(BRENN_SS_2C_MOM, e.central_moment2, p),
                         take(BRENN_SS_3C_MOM, e.central_moment3, p),
                         take(BRENN_SS_4C_MOM, e.central_moment4, p),
                         take(BRENN_SS_SKEWNESS, e.skewness, p),
                         take(BRENN_SS_KURTOSIS, e.kurtosis, p),
                         take(BRENN_SS_VARIATION, e.variation, p),
                         take(BRENN_SS_MIN, e.minimum, p),
                         take(BRENN_SS_MAX, e.maximum, p),
                         take(BRENN_SS_COV, e.covariance, p * p),
                         take(BRENN_SS_COR, e.correlation, p * p)};
    if constexpr (std::is_same_v<T, double>)
        r.stat.code = brenn_ss_compute_f64(&view, which, &out);
    else
        r.stat.code = brenn_ss_compute_f32(&view, which, &out);
    if (r.stat.code < 0) e = {};
    return r;
}

} // namespace brenn::ss

#endif
