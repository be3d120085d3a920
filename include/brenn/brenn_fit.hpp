/** @file brenn_fit.hpp
 * Data fitting in C++: brenn::fit::spline (double) and brenn::fit::sspline (float)
 * own a spline built from knots, values and a boundary condition (movable, not
 * copyable), and give values and derivatives at sites and integrals over intervals. */
#ifndef BRENN_FIT_HPP
#define BRENN_FIT_HPP

#include <cstdint>
#include <span>
#include <type_traits>
#include <utility>
#include <vector>

#include "brenn_fit.h"
#include "brenn_result.hpp"

namespace brenn::fit {

/** The spline kinds (construction families). */
enum class kind : int {
    linear = BRENN_FIT_LINEAR,
    quadratic = BRENN_FIT_QUADRATIC,
    quadratic_knots = BRENN_FIT_QUADRATIC_KNOTS,
    cubic_default = BRENN_FIT_CUBIC_DEFAULT,
    cubic_natural = BRENN_FIT_CUBIC_NATURAL,
    cubic_akima = BRENN_FIT_CUBIC_AKIMA,
    cubic_bessel = BRENN_FIT_CUBIC_BESSEL,
    cubic_hyman = BRENN_FIT_CUBIC_HYMAN,
    cubic_hermite = BRENN_FIT_CUBIC_HERMITE
};

/** @return whether a kind's construction is in this build */
inline bool available(kind k) {
    return brenn_fit_available(static_cast<int>(k)) == BRENN_OK;
}

/** A boundary condition: FIT_BC_* codes and the numbers they need, left end first. */
struct boundary {
    std::int64_t type = FIT_BC_NONE; /**< FIT_BC_* codes, combined */
    double values[2] = {0, 0};       /**< the numbers the codes need */
};

/** A spline of one function, owned. */
template <class T>
class basic_spline {
    using Handle =
        std::conditional_t<std::is_same_v<T, double>, brenn_fit_spline_f64, brenn_fit_spline_f32>;

  public:
    basic_spline() noexcept = default;
    /** Builds the spline of values y on the partition x (strictly increasing); ic
     * holds the kind's internal conditions where it takes them. */
    static result<basic_spline> make(kind k, std::span<const T> x, std::span<const T> y,
                                     boundary bc = {}, std::span<const T> ic = {}) {
        result<basic_spline> r;
        const std::size_t need = k == kind::quadratic_knots ? x.size() + 1 : x.size();
        if (y.size() != x.size() ||
            ((k == kind::quadratic_knots || k == kind::cubic_hermite) && ic.size() != need)) {
            r.stat.code = BRENN_ERR_SIZE_MISMATCH;
            return r;
        }
        const T values[2] = {static_cast<T>(bc.values[0]), static_cast<T>(bc.values[1])};
        const T* icData = ic.empty() ? nullptr : ic.data();
        const auto nx = static_cast<std::int64_t>(x.size());
        if constexpr (std::is_same_v<T, double>)
            r.stat.code = brenn_fit_spline_new_f64(&r.value.h_, static_cast<int>(k), nx, x.data(),
                                                   y.data(), bc.type, values, icData);
        else
            r.stat.code = brenn_fit_spline_new_f32(&r.value.h_, static_cast<int>(k), nx, x.data(),
                                                   y.data(), bc.type, values, icData);
        return r;
    }
    ~basic_spline() { release(); }
    basic_spline(basic_spline&& o) noexcept : h_(std::exchange(o.h_, nullptr)) {}
    basic_spline& operator=(basic_spline&& o) noexcept {
        if (this != &o) {
            release();
            h_ = std::exchange(o.h_, nullptr);
        }
        return *this;
    }
    basic_spline(const basic_spline&) = delete;
    basic_spline& operator=(const basic_spline&) = delete;
    /** @return whether the object holds a spline */
    explicit operator bool() const noexcept { return h_ != nullptr; }

    /** Values and derivatives at sites into out: out[s * nderiv + d]. */
    status eval(std::span<const T> sites, int nderiv, std::span<T> out) const {
        if (nderiv < 1 || out.size() != sites.size() * static_cast<std::size_t>(nderiv))
            return {nderiv < 1 ? BRENN_ERR_BAD_ARGUMENT : BRENN_ERR_SIZE_MISMATCH};
        const auto ns = static_cast<std::int64_t>(sites.size());
        if constexpr (std::is_same_v<T, double>)
            return {brenn_fit_spline_eval_f64(h_, ns, sites.data(), nderiv, out.data())};
        else
            return {brenn_fit_spline_eval_f32(h_, ns, sites.data(), nderiv, out.data())};
    }
    /** Values and derivatives at sites, returned: element s * nderiv + d. */
    result<std::vector<T>> eval(std::span<const T> sites, int nderiv = 1) const {
        result<std::vector<T>> r;
        r.value.resize(nderiv > 0 ? sites.size() * static_cast<std::size_t>(nderiv) : 0);
        r.stat = eval(sites, nderiv, std::span<T>(r.value));
        if (r.stat.code < 0) r.value.clear();
        return r;
    }

    /** Integrals from a[i] to b[i] into out; extrapolate: beyond the partition the end
     * cells' polynomials, else NaN for an interval with a limit outside it. */
    status integrate(std::span<const T> a, std::span<const T> b, std::span<T> out,
                     bool extrapolate = true) const {
        if (b.size() != a.size() || out.size() != a.size()) return {BRENN_ERR_SIZE_MISMATCH};
        const auto n = static_cast<std::int64_t>(a.size());
        if constexpr (std::is_same_v<T, double>)
            return {
                brenn_fit_spline_integrate_f64(h_, n, a.data(), b.data(), extrapolate, out.data())};
        else
            return {
                brenn_fit_spline_integrate_f32(h_, n, a.data(), b.data(), extrapolate, out.data())};
    }
    /** Integrals from a[i] to b[i], returned. */
    result<std::vector<T>> integrate(std::span<const T> a, std::span<const T> b,
                                     bool extrapolate = true) const {
        result<std::vector<T>> r;
        r.value.resize(a.size());
        r.stat = integrate(a, b, std::span<T>(r.value), extrapolate);
        if (r.stat.code < 0) r.value.clear();
        return r;
    }

  private:
    void release() noexcept {
        if constexpr (std::is_same_v<T, double>)
            brenn_fit_spline_delete_f64(&h_);
        else
            brenn_fit_spline_delete_f32(&h_);
    }
    Handle* h_ = nullptr;
};

/** A spline of doubles. */
using spline = basic_spline<double>;
/** A spline of floats. */
using sspline = basic_spline<float>;

} // namespace brenn::fit

#endif
