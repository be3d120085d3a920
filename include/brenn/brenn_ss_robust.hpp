/** @file brenn_ss_robust.hpp
 * Robust and derived covariance estimates in C++ over a matrix view (brenn_ss.hpp),
 * returned by value (brenn_ss_robust.h). Parameter spans hold the leading parameters
 * given; the rest take their defaults. Sizes that do not fit p and n give
 * BRENN_ERR_SIZE_MISMATCH. On an error the values are empty, except for
 * BRENN_SS_ERROR_EXACT_FIT and BRENN_SS_ERROR_NO_CONVERGENCE, whose results the
 * service writes and which are kept. */
#ifndef BRENN_SS_ROBUST_HPP
#define BRENN_SS_ROBUST_HPP

#include <cstdint>
#include <span>
#include <vector>

#include "brenn_result.hpp"
#include "brenn_ss.hpp"
#include "brenn_ss_robust.h"

namespace brenn::ss {

/** A location and a scatter: p means and a p x p matrix. */
template <class T>
struct location_scatter {
    std::vector<T> mean;       /**< p values */
    std::vector<T> covariance; /**< p * p values */
};

/** The estimates with missing values: EM's, and the imputations asked for. */
template <class T>
struct missing_estimates {
    std::vector<T> mean;          /**< p values */
    std::vector<T> covariance;    /**< p * p values */
    std::vector<T> imputed;       /**< imputations * K values, K the missing entries */
    std::vector<T> imputed_means; /**< imputations * p values */
};

/** A partial covariance and its correlation, ny x ny each. */
template <class T>
struct partial_estimates {
    std::vector<T> covariance;  /**< ny * ny values */
    std::vector<T> correlation; /**< ny * ny values */
};

/** Group and pooled covariance. */
template <class T>
struct pooled_estimates {
    std::vector<T> group_means;       /**< g * p values */
    std::vector<T> group_covariances; /**< g * p * p values */
    std::vector<T> mean;              /**< p values */
    std::vector<T> covariance;        /**< p * p values */
};

/** The C entries of each precision by the element type, for generic code. */
template <class T>
struct robust_entries;
/** The double entries. */
template <>
struct robust_entries<double> {
    static constexpr auto robust_covariance = brenn_ss_robust_covariance_f64;
    static constexpr auto outliers = brenn_ss_outliers_f64;
    static constexpr auto missing_count = brenn_ss_missing_count_f64;
    static constexpr auto missing_values = brenn_ss_missing_values_f64;
    static constexpr auto partial_covariance = brenn_ss_partial_covariance_f64;
    static constexpr auto pooled_covariance = brenn_ss_pooled_covariance_f64;
    static constexpr auto nearest_correlation = brenn_ss_nearest_correlation_f64;
    static constexpr auto mahalanobis = brenn_ss_mahalanobis_f64;
};
/** The float entries. */
template <>
struct robust_entries<float> {
    static constexpr auto robust_covariance = brenn_ss_robust_covariance_f32;
    static constexpr auto outliers = brenn_ss_outliers_f32;
    static constexpr auto missing_count = brenn_ss_missing_count_f32;
    static constexpr auto missing_values = brenn_ss_missing_values_f32;
    static constexpr auto partial_covariance = brenn_ss_partial_covariance_f32;
    static constexpr auto pooled_covariance = brenn_ss_pooled_covariance_f32;
    static constexpr auto nearest_correlation = brenn_ss_nearest_correlation_f32;
    static constexpr auto mahalanobis = brenn_ss_mahalanobis_f32;
};

namespace detail {

// Whether a status leaves the results written.
inline bool results_written(int code) {
    return code >= 0 || code == BRENN_SS_ERROR_EXACT_FIT || code == BRENN_SS_ERROR_NO_CONVERGENCE;
}

template <class T>
std::vector<T> sized(std::int64_t count) {
    return std::vector<T>(count > 0 ? static_cast<std::size_t>(count) : 0);
}

} // namespace detail

/** The minimum covariance determinant estimate (brenn_ss_robust_covariance_f64()). */
template <class T>
result<location_scatter<T>> robust_covariance(const matrix_view<T>& m,
                                              std::span<const T> params = {}) {
    result<location_scatter<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    r.value = {detail::sized<T>(m.p), detail::sized<T>(m.p * m.p)};
    const auto k = static_cast<std::int64_t>(params.size());
    r.stat.code = robust_entries<T>::robust_covariance(&view, k, params.data(), r.value.mean.data(),
                                                       r.value.covariance.data());
    if (!detail::results_written(r.stat.code)) r.value = {};
    return r;
}

/** BACON's outlier weights, n values: 1 kept, 0 an outlier (brenn_ss_outliers_f64()). */
template <class T>
result<std::vector<T>> outliers(const matrix_view<T>& m, std::span<const T> params = {}) {
    result<std::vector<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    r.value = detail::sized<T>(m.n);
    const auto k = static_cast<std::int64_t>(params.size());
    r.stat.code = robust_entries<T>::outliers(&view, k, params.data(), r.value.data());
    if (!detail::results_written(r.stat.code)) r.value.clear();
    return r;
}

/** EM's mean and covariance and `imputations` imputed data sets
 * (brenn_ss_missing_values_f64()). */
template <class T>
result<missing_estimates<T>> missing_values(const matrix_view<T>& m, std::int64_t imputations = 0,
                                            std::span<const T> params = {}) {
    result<missing_estimates<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    std::int64_t missing = 0;
    r.stat.code = robust_entries<T>::missing_count(&view, &missing);
    if (!r.stat.ok()) return r;
    missing_estimates<T>& e = r.value;
    e = {detail::sized<T>(m.p), detail::sized<T>(m.p * m.p),
         detail::sized<T>(imputations * missing), detail::sized<T>(imputations * m.p)};
    const auto k = static_cast<std::int64_t>(params.size());
    const auto size = static_cast<std::int64_t>(e.imputed.size());
    // A null array when none is asked; a place for each when the data miss nothing.
    T none[1];
    T* imputed = imputations > 0 ? (size > 0 ? e.imputed.data() : none) : nullptr;
    T* means = imputations > 0 ? e.imputed_means.data() : nullptr;
    r.stat.code =
        robust_entries<T>::missing_values(&view, k, params.data(), e.mean.data(),
                                          e.covariance.data(), imputations, size, imputed, means);
    if (!detail::results_written(r.stat.code)) e = {};
    return r;
}

/** The partial covariance and correlation of the variables marked 1 given those
 * marked -1 (brenn_ss_partial_covariance_f64()). */
template <class T>
result<partial_estimates<T>> partial_covariance(const matrix_view<T>& m,
                                                std::span<const std::int64_t> roles) {
    result<partial_estimates<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    if (roles.size() != static_cast<std::size_t>(m.p)) return {{BRENN_ERR_SIZE_MISMATCH}, {}};
    std::int64_t ny = 0;
    for (std::size_t j = 0; j < roles.size(); ++j)
        ny += roles[j] == 1 && (m.indices.empty() || m.indices[j] != 0);
    // Places for the empty result too: the entry refuses null arrays.
    r.value = {std::vector<T>(static_cast<std::size_t>(ny * ny) + (ny == 0)),
               std::vector<T>(static_cast<std::size_t>(ny * ny) + (ny == 0))};
    r.stat.code = robust_entries<T>::partial_covariance(
        &view, roles.data(), r.value.covariance.data(), r.value.correlation.data());
    if (r.stat.code < 0 || ny == 0) r.value = {};
    return r;
}

/** Group and pooled covariance of observations labelled 0 to groups - 1
 * (brenn_ss_pooled_covariance_f64()). */
template <class T>
result<pooled_estimates<T>> pooled_covariance(const matrix_view<T>& m, std::int64_t groups,
                                              std::span<const std::int64_t> labels) {
    result<pooled_estimates<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    if (labels.size() != static_cast<std::size_t>(m.n)) return {{BRENN_ERR_SIZE_MISMATCH}, {}};
    const std::int64_t g = groups > 0 ? groups : 0;
    pooled_estimates<T>& e = r.value;
    e = {detail::sized<T>(g * m.p), detail::sized<T>(g * m.p * m.p), detail::sized<T>(m.p),
         detail::sized<T>(m.p * m.p)};
    r.stat.code = robust_entries<T>::pooled_covariance(
        &view, groups, labels.data(), e.group_means.data(), e.group_covariances.data(),
        e.mean.data(), e.covariance.data());
    if (r.stat.code < 0) e = {};
    return r;
}

/** The nearest correlation matrix to the symmetric p x p matrix a, with p weights or
 * none (brenn_ss_nearest_correlation_f64()). */
template <class T>
result<std::vector<T>> nearest_correlation(std::span<const T> a, std::int64_t p,
                                           std::span<const T> weights = {},
                                           std::span<const T> params = {}) {
    result<std::vector<T>> r;
    if (p < 1) return {{BRENN_ERR_BAD_SIZE}, {}};
    const auto size = static_cast<std::size_t>(p);
    if (a.size() != size * size || (!weights.empty() && weights.size() != size))
        return {{BRENN_ERR_SIZE_MISMATCH}, {}};
    r.value.resize(size * size);
    const T* w = weights.empty() ? nullptr : weights.data();
    const auto k = static_cast<std::int64_t>(params.size());
    r.stat.code =
        robust_entries<T>::nearest_correlation(p, a.data(), w, k, params.data(), r.value.data());
    if (!detail::results_written(r.stat.code)) r.value.clear();
    return r;
}

/** The Mahalanobis distance of each observation from mean under cov: n values
 * (brenn_ss_mahalanobis_f64()). */
template <class T>
result<std::vector<T>> mahalanobis(const matrix_view<T>& m, std::span<const T> mean,
                                   std::span<const T> cov) {
    result<std::vector<T>> r;
    detail::c_matrix<T> view;
    r.stat = detail::c_view(m, &view);
    if (!r.stat.ok()) return r;
    const auto p = static_cast<std::size_t>(m.p);
    if (mean.size() != p || cov.size() != p * p) return {{BRENN_ERR_SIZE_MISMATCH}, {}};
    r.value = detail::sized<T>(m.n);
    r.stat.code = robust_entries<T>::mahalanobis(&view, mean.data(), cov.data(), r.value.data());
    if (r.stat.code < 0) r.value.clear();
    return r;
}

} // namespace brenn::ss

#endif
