/** @file brenn_ss_order.hpp
 * Order statistics in C++ over a matrix view (brenn_ss.hpp): quantiles, sorted
 * variables, the median absolute deviation and the weighted median returned by value,
 * and stream_quantiles, an owned streaming summary (brenn_ss_stream.h). Sizes that do
 * not fit p and n give BRENN_ERR_SIZE_MISMATCH. */
#ifndef BRENN_SS_ORDER_HPP
#define BRENN_SS_ORDER_HPP

#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "brenn_result.hpp"
#include "brenn_ss.hpp"
#include "brenn_ss_order.h"
#include "brenn_ss_stream.h"

namespace brenn::ss {

namespace detail {

// Runs call(view, data) into a vector of `size` values; empty on a refusal.
template <class T, class Call>
result<std::vector<T>> into_vector(const matrix_view<T>& m, std::size_t size, Call call) {
    result<std::vector<T>> r;
    c_matrix<T> view;
    r.stat = c_view(m, &view);
    if (!r.stat.ok()) return r;
    r.value.resize(size);
    r.stat.code = call(&view, r.value.data());
    if (r.stat.code < 0) r.value.clear();
    return r;
}

template <class T>
std::size_t values_of(const matrix_view<T>& m) {
    return m.p > 0 && m.n > 0 ? static_cast<std::size_t>(m.p) * static_cast<std::size_t>(m.n) : 0;
}

template <class T>
std::size_t variables_of(const matrix_view<T>& m) {
    return m.p > 0 ? static_cast<std::size_t>(m.p) : 0;
}

} // namespace detail

/** The quantiles of each variable at the orders: p * orders.size() values, variable
 * v's of order k at [v * m + k]. */
template <class T>
result<std::vector<T>> quantiles(const matrix_view<T>& m, std::span<const T> orders) {
    const auto count = static_cast<std::int64_t>(orders.size());
    return detail::into_vector(
        m, detail::variables_of(m) * orders.size(), [&](const auto* view, T* out) {
            if constexpr (std::is_same_v<T, double>)
                return brenn_ss_quantiles_f64(view, count, orders.data(), out);
            else
                return brenn_ss_quantiles_f32(view, count, orders.data(), out);
        });
}

/** Each variable's values in ascending order, p * n values in the view's layout. */
template <class T>
result<std::vector<T>> sorted(const matrix_view<T>& m) {
    return detail::into_vector(m, detail::values_of(m), [](const auto* view, T* out) {
        if constexpr (std::is_same_v<T, double>)
            return brenn_ss_sort_f64(view, out);
        else
            return brenn_ss_sort_f32(view, out);
    });
}

/** Sorts each variable of the p x n matrix x in place (all variables). */
template <class T>
status sort_in_place(std::span<T> x, std::int64_t p, std::int64_t n,
                     layout order = layout::observations_in_rows) {
    detail::c_matrix<T> view;
    status s = detail::c_view(matrix_view<T>{x, p, n, order}, &view);
    if (!s.ok()) return s;
    if constexpr (std::is_same_v<T, double>)
        s.code = brenn_ss_sort_f64(&view, x.data());
    else
        s.code = brenn_ss_sort_f32(&view, x.data());
    return s;
}

/** The unscaled median absolute deviation of each variable: p values. */
template <class T>
result<std::vector<T>> median_abs_deviation(const matrix_view<T>& m) {
    return detail::into_vector(m, detail::variables_of(m), [](const auto* view, T* out) {
        if constexpr (std::is_same_v<T, double>)
            return brenn_ss_mad_f64(view, out);
        else
            return brenn_ss_mad_f32(view, out);
    });
}

/** The weighted median of each variable with the view's weights (none: all 1): p values. */
template <class T>
result<std::vector<T>> weighted_median(const matrix_view<T>& m) {
    return detail::into_vector(m, detail::variables_of(m), [](const auto* view, T* out) {
        if constexpr (std::is_same_v<T, double>)
            return brenn_ss_weighted_median_f64(view, out);
        else
            return brenn_ss_weighted_median_f32(view, out);
    });
}

/** An owned streaming summary of p variables: feed blocks, then read quantiles of all
 * that was fed (one read after each run of feeds: brenn_ss_stream.h). */
template <class T>
class stream_quantiles {
    using handle =
        std::conditional_t<std::is_same_v<T, double>, brenn_ss_stream_f64, brenn_ss_stream_f32>;

  public:
    /** An empty object: every call on it is refused with BRENN_ERR_NULL_POINTER. */
    stream_quantiles() noexcept = default;
    /** Makes a summary of p variables with rank accuracy eps. */
    static result<stream_quantiles> make(std::int64_t p, T eps) {
        result<stream_quantiles> r;
        if constexpr (std::is_same_v<T, double>)
            r.stat.code = brenn_ss_stream_new_f64(&r.value.s_, p, eps);
        else
            r.stat.code = brenn_ss_stream_new_f32(&r.value.s_, p, eps);
        if (r.stat.ok()) r.value.p_ = p;
        return r;
    }
    ~stream_quantiles() { release(); }
    stream_quantiles(stream_quantiles&& o) noexcept
        : s_(std::exchange(o.s_, nullptr)), p_(std::exchange(o.p_, 0)) {}
    stream_quantiles& operator=(stream_quantiles&& o) noexcept {
        if (this != &o) {
            release();
            s_ = std::exchange(o.s_, nullptr);
            p_ = std::exchange(o.p_, 0);
        }
        return *this;
    }
    stream_quantiles(const stream_quantiles&) = delete;
    stream_quantiles& operator=(const stream_quantiles&) = delete;

    /** Feeds a block of x.size() / p observations (the size a multiple of p). */
    status feed(std::span<const T> x, layout order = layout::observations_in_rows) {
        if (p_ > 0 && x.size() % static_cast<std::size_t>(p_) != 0)
            return {BRENN_ERR_SIZE_MISMATCH};
        const auto n = p_ > 0 ? static_cast<std::int64_t>(x.size()) / p_ : 0;
        const auto l = static_cast<std::int64_t>(order);
        if constexpr (std::is_same_v<T, double>)
            return {brenn_ss_stream_feed_f64(s_, n, l, x.data())};
        else
            return {brenn_ss_stream_feed_f32(s_, n, l, x.data())};
    }
    /** The quantiles of the orders over all that was fed: p * orders.size() values. */
    result<std::vector<T>> read(std::span<const T> orders) {
        result<std::vector<T>> r;
        r.value.resize(static_cast<std::size_t>(p_) * orders.size());
        const auto m = static_cast<std::int64_t>(orders.size());
        if constexpr (std::is_same_v<T, double>)
            r.stat.code = brenn_ss_stream_read_f64(s_, m, orders.data(), r.value.data());
        else
            r.stat.code = brenn_ss_stream_read_f32(s_, m, orders.data(), r.value.data());
        if (r.stat.code < 0) r.value.clear();
        return r;
    }
    /** The observations of each variable fed so far (-1 for an empty object). */
    std::int64_t count() const noexcept {
        if constexpr (std::is_same_v<T, double>)
            return brenn_ss_stream_count_f64(s_);
        else
            return brenn_ss_stream_count_f32(s_);
    }

  private:
    void release() noexcept {
        if constexpr (std::is_same_v<T, double>)
            brenn_ss_stream_delete_f64(&s_);
        else
            brenn_ss_stream_delete_f32(&s_);
    }
    handle* s_ = nullptr;
    std::int64_t p_ = 0;
};

} // namespace brenn::ss

#endif
