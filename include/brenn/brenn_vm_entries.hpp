/** @file brenn_vm_entries.hpp
 * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.
 * brenn::vm::<fn>(spans..., [accuracy]) for every vector-math row: the overload
 * of the element type calls brenn_vm_<fn>_<t>() or brenn_vm_<fn>_<t>_acc(). Sizes
 * that do not match give status BRENN_ERR_SIZE_MISMATCH and write nothing. */
#ifndef BRENN_VM_ENTRIES_HPP
#define BRENN_VM_ENTRIES_HPP

#include <complex>
#include <span>

#include "brenn_vm_call.hpp"

namespace brenn::vm {

/** Ceil, float: y[i] = the least integer not below a[i]. */
inline status ceil(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ceil_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ceil, float, at the accuracy given. */
inline status ceil(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ceil_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Floor, float: y[i] = the greatest integer not above a[i]. */
inline status floor(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_floor_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Floor, float, at the accuracy given. */
inline status floor(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_floor_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Frac, float: y[i] = a[i] less its integer part, with a[i]'s sign. */
inline status frac(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_frac_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Frac, float, at the accuracy given. */
inline status frac(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_frac_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** NearbyInt, float: y[i] = a[i] rounded to an integer in the current mode, no inexact flag. */
inline status nearbyint(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nearbyint_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** NearbyInt, float, at the accuracy given. */
inline status nearbyint(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nearbyint_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Rint, float: y[i] = a[i] rounded to an integer in the current rounding mode. */
inline status rint(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_rint_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Rint, float, at the accuracy given. */
inline status rint(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_rint_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Round, float: y[i] = a[i] rounded to the nearest integer, halves away from 0. */
inline status round(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_round_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Round, float, at the accuracy given. */
inline status round(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_round_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Trunc, float: y[i] = a[i] rounded toward 0. */
inline status trunc(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_trunc_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Trunc, float, at the accuracy given. */
inline status trunc(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_trunc_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Abs, float: y[i] = |a[i]|. */
inline status abs(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Abs, float, at the accuracy given. */
inline status abs(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Inv, float: y[i] = 1 / a[i]. */
inline status inv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_inv_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Inv, float, at the accuracy given. */
inline status inv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_inv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqrt, float: y[i] = the square root of a[i]. */
inline status sqrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqrt, float, at the accuracy given. */
inline status sqrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** InvSqrt, float: y[i] = 1 / sqrt(a[i]). */
inline status invsqrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invsqrt_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** InvSqrt, float, at the accuracy given. */
inline status invsqrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invsqrt_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cbrt, float: y[i] = the cube root of a[i]. */
inline status cbrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cbrt_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cbrt, float, at the accuracy given. */
inline status cbrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cbrt_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** InvCbrt, float: y[i] = 1 / cbrt(a[i]). */
inline status invcbrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invcbrt_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** InvCbrt, float, at the accuracy given. */
inline status invcbrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invcbrt_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp, float: y[i] = e^a[i]. */
inline status exp(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp, float, at the accuracy given. */
inline status exp(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Ln, float: y[i] = the natural logarithm of a[i]. */
inline status ln(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ln, float, at the accuracy given. */
inline status ln(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log10, float: y[i] = the base-10 logarithm of a[i]. */
inline status log10(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log10, float, at the accuracy given. */
inline status log10(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cos, float: y[i] = cos a[i] (radians). */
inline status cos(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cos, float, at the accuracy given. */
inline status cos(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sin, float: y[i] = sin a[i] (radians). */
inline status sin(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sin, float, at the accuracy given. */
inline status sin(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tan, float: y[i] = tan a[i] (radians). */
inline status tan(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tan, float, at the accuracy given. */
inline status tan(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acos, float: y[i] = arccos a[i]. */
inline status acos(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acos, float, at the accuracy given. */
inline status acos(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acosh, float: y[i] = arcosh a[i]. */
inline status acosh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acosh, float, at the accuracy given. */
inline status acosh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asin, float: y[i] = arcsin a[i]. */
inline status asin(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asin, float, at the accuracy given. */
inline status asin(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinh, float: y[i] = arsinh a[i]. */
inline status asinh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinh, float, at the accuracy given. */
inline status asinh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan, float: y[i] = arctan a[i]. */
inline status atan(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atan, float, at the accuracy given. */
inline status atan(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanh, float: y[i] = artanh a[i]. */
inline status atanh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanh, float, at the accuracy given. */
inline status atanh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosh, float: y[i] = cosh a[i]. */
inline status cosh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosh, float, at the accuracy given. */
inline status cosh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinh, float: y[i] = sinh a[i]. */
inline status sinh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinh, float, at the accuracy given. */
inline status sinh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanh, float: y[i] = tanh a[i]. */
inline status tanh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanh, float, at the accuracy given. */
inline status tanh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Erf, float: y[i] = erf a[i]. */
inline status erf(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erf_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Erf, float, at the accuracy given. */
inline status erf(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erf_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Erfc, float: y[i] = 1 - erf a[i]. */
inline status erfc(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfc_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Erfc, float, at the accuracy given. */
inline status erfc(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfc_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ErfInv, float: y[i] = the inverse of erf at a[i]. */
inline status erfinv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfinv_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ErfInv, float, at the accuracy given. */
inline status erfinv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfinv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqr, float: y[i] = a[i]^2. */
inline status sqr(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqr_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqr, float, at the accuracy given. */
inline status sqr(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqr_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Expm1, float: y[i] = e^a[i] - 1. */
inline status expm1(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expm1_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Expm1, float, at the accuracy given. */
inline status expm1(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expm1_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log1p, float: y[i] = ln(1 + a[i]). */
inline status log1p(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log1p_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log1p, float, at the accuracy given. */
inline status log1p(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log1p_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow3o2, float: y[i] = a[i]^(3/2). */
inline status pow3o2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow3o2_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Pow3o2, float, at the accuracy given. */
inline status pow3o2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow3o2_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow2o3, float: y[i] = a[i]^(2/3). */
inline status pow2o3(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow2o3_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Pow2o3, float, at the accuracy given. */
inline status pow2o3(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow2o3_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ErfcInv, float: y[i] = the inverse of erfc at a[i]. */
inline status erfcinv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfcinv_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ErfcInv, float, at the accuracy given. */
inline status erfcinv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfcinv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CdfNorm, float: y[i] = the standard normal distribution function at a[i]. */
inline status cdfnorm(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorm_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CdfNorm, float, at the accuracy given. */
inline status cdfnorm(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorm_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CdfNormInv, float: y[i] = the standard normal quantile of a[i]. */
inline status cdfnorminv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorminv_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CdfNormInv, float, at the accuracy given. */
inline status cdfnorminv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorminv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** LGamma, float: y[i] = ln |Gamma(a[i])|. */
inline status lgamma(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_lgamma_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** LGamma, float, at the accuracy given. */
inline status lgamma(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_lgamma_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** TGamma, float: y[i] = Gamma(a[i]). */
inline status tgamma(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tgamma_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** TGamma, float, at the accuracy given. */
inline status tgamma(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tgamma_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ExpInt1, float: y[i] = the exponential integral E1(a[i]). */
inline status expint1(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expint1_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ExpInt1, float, at the accuracy given. */
inline status expint1(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expint1_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinpi, float: y[i] = sin(pi a[i]). */
inline status sinpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinpi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinpi, float, at the accuracy given. */
inline status sinpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinpi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cospi, float: y[i] = cos(pi a[i]). */
inline status cospi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cospi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cospi, float, at the accuracy given. */
inline status cospi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cospi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanpi, float: y[i] = tan(pi a[i]). */
inline status tanpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanpi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanpi, float, at the accuracy given. */
inline status tanpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanpi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acospi, float: y[i] = arccos(a[i]) / pi. */
inline status acospi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acospi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acospi, float, at the accuracy given. */
inline status acospi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acospi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinpi, float: y[i] = arcsin(a[i]) / pi. */
inline status asinpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinpi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinpi, float, at the accuracy given. */
inline status asinpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinpi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanpi, float: y[i] = arctan(a[i]) / pi. */
inline status atanpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanpi_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanpi, float, at the accuracy given. */
inline status atanpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanpi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp2, float: y[i] = 2^a[i]. */
inline status exp2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp2_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp2, float, at the accuracy given. */
inline status exp2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp2_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp10, float: y[i] = 10^a[i]. */
inline status exp10(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp10_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp10, float, at the accuracy given. */
inline status exp10(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp10_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log2, float: y[i] = the base-2 logarithm of a[i]. */
inline status log2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log2_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log2, float, at the accuracy given. */
inline status log2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log2_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sind, float: y[i] = sin of a[i] degrees. */
inline status sind(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sind_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sind, float, at the accuracy given. */
inline status sind(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sind_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosd, float: y[i] = cos of a[i] degrees. */
inline status cosd(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosd_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosd, float, at the accuracy given. */
inline status cosd(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosd_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tand, float: y[i] = tan of a[i] degrees. */
inline status tand(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tand_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tand, float, at the accuracy given. */
inline status tand(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tand_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Logb, float: y[i] = the binary exponent of a[i], floor(log2 |a[i]|). */
inline status logb(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_logb_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Logb, float, at the accuracy given. */
inline status logb(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_logb_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Ceil, double: y[i] = the least integer not below a[i]. */
inline status ceil(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ceil_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ceil, double, at the accuracy given. */
inline status ceil(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ceil_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Floor, double: y[i] = the greatest integer not above a[i]. */
inline status floor(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_floor_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Floor, double, at the accuracy given. */
inline status floor(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_floor_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Frac, double: y[i] = a[i] less its integer part, with a[i]'s sign. */
inline status frac(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_frac_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Frac, double, at the accuracy given. */
inline status frac(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_frac_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** NearbyInt, double: y[i] = a[i] rounded to an integer in the current mode, no inexact flag. */
inline status nearbyint(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nearbyint_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** NearbyInt, double, at the accuracy given. */
inline status nearbyint(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nearbyint_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Rint, double: y[i] = a[i] rounded to an integer in the current rounding mode. */
inline status rint(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_rint_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Rint, double, at the accuracy given. */
inline status rint(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_rint_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Round, double: y[i] = a[i] rounded to the nearest integer, halves away from 0. */
inline status round(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_round_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Round, double, at the accuracy given. */
inline status round(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_round_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Trunc, double: y[i] = a[i] rounded toward 0. */
inline status trunc(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_trunc_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Trunc, double, at the accuracy given. */
inline status trunc(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_trunc_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Abs, double: y[i] = |a[i]|. */
inline status abs(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Abs, double, at the accuracy given. */
inline status abs(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Inv, double: y[i] = 1 / a[i]. */
inline status inv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_inv_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Inv, double, at the accuracy given. */
inline status inv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_inv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqrt, double: y[i] = the square root of a[i]. */
inline status sqrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqrt, double, at the accuracy given. */
inline status sqrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** InvSqrt, double: y[i] = 1 / sqrt(a[i]). */
inline status invsqrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invsqrt_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** InvSqrt, double, at the accuracy given. */
inline status invsqrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invsqrt_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cbrt, double: y[i] = the cube root of a[i]. */
inline status cbrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cbrt_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cbrt, double, at the accuracy given. */
inline status cbrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cbrt_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** InvCbrt, double: y[i] = 1 / cbrt(a[i]). */
inline status invcbrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invcbrt_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** InvCbrt, double, at the accuracy given. */
inline status invcbrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_invcbrt_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp, double: y[i] = e^a[i]. */
inline status exp(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp, double, at the accuracy given. */
inline status exp(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Ln, double: y[i] = the natural logarithm of a[i]. */
inline status ln(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ln, double, at the accuracy given. */
inline status ln(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log10, double: y[i] = the base-10 logarithm of a[i]. */
inline status log10(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log10, double, at the accuracy given. */
inline status log10(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cos, double: y[i] = cos a[i] (radians). */
inline status cos(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cos, double, at the accuracy given. */
inline status cos(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sin, double: y[i] = sin a[i] (radians). */
inline status sin(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sin, double, at the accuracy given. */
inline status sin(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tan, double: y[i] = tan a[i] (radians). */
inline status tan(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tan, double, at the accuracy given. */
inline status tan(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acos, double: y[i] = arccos a[i]. */
inline status acos(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acos, double, at the accuracy given. */
inline status acos(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acosh, double: y[i] = arcosh a[i]. */
inline status acosh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acosh, double, at the accuracy given. */
inline status acosh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asin, double: y[i] = arcsin a[i]. */
inline status asin(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asin, double, at the accuracy given. */
inline status asin(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinh, double: y[i] = arsinh a[i]. */
inline status asinh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinh, double, at the accuracy given. */
inline status asinh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan, double: y[i] = arctan a[i]. */
inline status atan(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atan, double, at the accuracy given. */
inline status atan(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanh, double: y[i] = artanh a[i]. */
inline status atanh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanh, double, at the accuracy given. */
inline status atanh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosh, double: y[i] = cosh a[i]. */
inline status cosh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosh, double, at the accuracy given. */
inline status cosh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinh, double: y[i] = sinh a[i]. */
inline status sinh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinh, double, at the accuracy given. */
inline status sinh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanh, double: y[i] = tanh a[i]. */
inline status tanh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanh, double, at the accuracy given. */
inline status tanh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Erf, double: y[i] = erf a[i]. */
inline status erf(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erf_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Erf, double, at the accuracy given. */
inline status erf(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erf_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Erfc, double: y[i] = 1 - erf a[i]. */
inline status erfc(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfc_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Erfc, double, at the accuracy given. */
inline status erfc(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfc_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ErfInv, double: y[i] = the inverse of erf at a[i]. */
inline status erfinv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfinv_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ErfInv, double, at the accuracy given. */
inline status erfinv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfinv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqr, double: y[i] = a[i]^2. */
inline status sqr(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqr_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqr, double, at the accuracy given. */
inline status sqr(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqr_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Expm1, double: y[i] = e^a[i] - 1. */
inline status expm1(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expm1_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Expm1, double, at the accuracy given. */
inline status expm1(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expm1_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log1p, double: y[i] = ln(1 + a[i]). */
inline status log1p(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log1p_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log1p, double, at the accuracy given. */
inline status log1p(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log1p_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow3o2, double: y[i] = a[i]^(3/2). */
inline status pow3o2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow3o2_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Pow3o2, double, at the accuracy given. */
inline status pow3o2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow3o2_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow2o3, double: y[i] = a[i]^(2/3). */
inline status pow2o3(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow2o3_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Pow2o3, double, at the accuracy given. */
inline status pow2o3(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow2o3_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ErfcInv, double: y[i] = the inverse of erfc at a[i]. */
inline status erfcinv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfcinv_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ErfcInv, double, at the accuracy given. */
inline status erfcinv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_erfcinv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CdfNorm, double: y[i] = the standard normal distribution function at a[i]. */
inline status cdfnorm(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorm_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CdfNorm, double, at the accuracy given. */
inline status cdfnorm(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorm_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CdfNormInv, double: y[i] = the standard normal quantile of a[i]. */
inline status cdfnorminv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorminv_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CdfNormInv, double, at the accuracy given. */
inline status cdfnorminv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cdfnorminv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** LGamma, double: y[i] = ln |Gamma(a[i])|. */
inline status lgamma(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_lgamma_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** LGamma, double, at the accuracy given. */
inline status lgamma(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_lgamma_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** TGamma, double: y[i] = Gamma(a[i]). */
inline status tgamma(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tgamma_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** TGamma, double, at the accuracy given. */
inline status tgamma(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tgamma_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** ExpInt1, double: y[i] = the exponential integral E1(a[i]). */
inline status expint1(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expint1_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** ExpInt1, double, at the accuracy given. */
inline status expint1(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_expint1_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinpi, double: y[i] = sin(pi a[i]). */
inline status sinpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinpi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinpi, double, at the accuracy given. */
inline status sinpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinpi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cospi, double: y[i] = cos(pi a[i]). */
inline status cospi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cospi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cospi, double, at the accuracy given. */
inline status cospi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cospi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanpi, double: y[i] = tan(pi a[i]). */
inline status tanpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanpi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanpi, double, at the accuracy given. */
inline status tanpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanpi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acospi, double: y[i] = arccos(a[i]) / pi. */
inline status acospi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acospi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acospi, double, at the accuracy given. */
inline status acospi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acospi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinpi, double: y[i] = arcsin(a[i]) / pi. */
inline status asinpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinpi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinpi, double, at the accuracy given. */
inline status asinpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinpi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanpi, double: y[i] = arctan(a[i]) / pi. */
inline status atanpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanpi_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanpi, double, at the accuracy given. */
inline status atanpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanpi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp2, double: y[i] = 2^a[i]. */
inline status exp2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp2_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp2, double, at the accuracy given. */
inline status exp2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp2_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp10, double: y[i] = 10^a[i]. */
inline status exp10(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp10_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp10, double, at the accuracy given. */
inline status exp10(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp10_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log2, double: y[i] = the base-2 logarithm of a[i]. */
inline status log2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log2_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log2, double, at the accuracy given. */
inline status log2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log2_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sind, double: y[i] = sin of a[i] degrees. */
inline status sind(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sind_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sind, double, at the accuracy given. */
inline status sind(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sind_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosd, double: y[i] = cos of a[i] degrees. */
inline status cosd(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosd_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosd, double, at the accuracy given. */
inline status cosd(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosd_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tand, double: y[i] = tan of a[i] degrees. */
inline status tand(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tand_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tand, double, at the accuracy given. */
inline status tand(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tand_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Logb, double: y[i] = the binary exponent of a[i], floor(log2 |a[i]|). */
inline status logb(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_logb_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Logb, double, at the accuracy given. */
inline status logb(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_logb_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cos, complex float: y[i] = cos a[i] (radians). */
inline status cos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cos, complex float, at the accuracy given. */
inline status cos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sin, complex float: y[i] = sin a[i] (radians). */
inline status sin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sin, complex float, at the accuracy given. */
inline status sin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tan, complex float: y[i] = tan a[i] (radians). */
inline status tan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tan, complex float, at the accuracy given. */
inline status tan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosh, complex float: y[i] = cosh a[i]. */
inline status cosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosh, complex float, at the accuracy given. */
inline status cosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinh, complex float: y[i] = sinh a[i]. */
inline status sinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinh, complex float, at the accuracy given. */
inline status sinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanh, complex float: y[i] = tanh a[i]. */
inline status tanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanh, complex float, at the accuracy given. */
inline status tanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acos, complex float: y[i] = arccos a[i]. */
inline status acos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acos, complex float, at the accuracy given. */
inline status acos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asin, complex float: y[i] = arcsin a[i]. */
inline status asin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asin, complex float, at the accuracy given. */
inline status asin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan, complex float: y[i] = arctan a[i]. */
inline status atan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atan, complex float, at the accuracy given. */
inline status atan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acosh, complex float: y[i] = arcosh a[i]. */
inline status acosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acosh, complex float, at the accuracy given. */
inline status acosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinh, complex float: y[i] = arsinh a[i]. */
inline status asinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinh, complex float, at the accuracy given. */
inline status asinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanh, complex float: y[i] = artanh a[i]. */
inline status atanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanh, complex float, at the accuracy given. */
inline status atanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp, complex float: y[i] = e^a[i]. */
inline status exp(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp, complex float, at the accuracy given. */
inline status exp(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Ln, complex float: y[i] = the natural logarithm of a[i]. */
inline status ln(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ln, complex float, at the accuracy given. */
inline status ln(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log10, complex float: y[i] = the base-10 logarithm of a[i]. */
inline status log10(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log10, complex float, at the accuracy given. */
inline status log10(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqrt, complex float: y[i] = the square root of a[i]. */
inline status sqrt(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqrt, complex float, at the accuracy given. */
inline status sqrt(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Conj, complex float: y[i] = the complex conjugate of a[i]. */
inline status conj(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_conj_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Conj, complex float, at the accuracy given. */
inline status conj(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_conj_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cos, complex double: y[i] = cos a[i] (radians). */
inline status cos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cos, complex double, at the accuracy given. */
inline status cos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cos_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sin, complex double: y[i] = sin a[i] (radians). */
inline status sin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sin, complex double, at the accuracy given. */
inline status sin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sin_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tan, complex double: y[i] = tan a[i] (radians). */
inline status tan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tan, complex double, at the accuracy given. */
inline status tan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tan_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Cosh, complex double: y[i] = cosh a[i]. */
inline status cosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Cosh, complex double, at the accuracy given. */
inline status cosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cosh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sinh, complex double: y[i] = sinh a[i]. */
inline status sinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sinh, complex double, at the accuracy given. */
inline status sinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sinh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Tanh, complex double: y[i] = tanh a[i]. */
inline status tanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Tanh, complex double, at the accuracy given. */
inline status tanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_tanh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acos, complex double: y[i] = arccos a[i]. */
inline status acos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acos, complex double, at the accuracy given. */
inline status acos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acos_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asin, complex double: y[i] = arcsin a[i]. */
inline status asin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asin, complex double, at the accuracy given. */
inline status asin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asin_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan, complex double: y[i] = arctan a[i]. */
inline status atan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atan, complex double, at the accuracy given. */
inline status atan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Acosh, complex double: y[i] = arcosh a[i]. */
inline status acosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Acosh, complex double, at the accuracy given. */
inline status acosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_acosh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Asinh, complex double: y[i] = arsinh a[i]. */
inline status asinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Asinh, complex double, at the accuracy given. */
inline status asinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_asinh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atanh, complex double: y[i] = artanh a[i]. */
inline status atanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Atanh, complex double, at the accuracy given. */
inline status atanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atanh_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Exp, complex double: y[i] = e^a[i]. */
inline status exp(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Exp, complex double, at the accuracy given. */
inline status exp(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_exp_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Ln, complex double: y[i] = the natural logarithm of a[i]. */
inline status ln(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Ln, complex double, at the accuracy given. */
inline status ln(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_ln_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Log10, complex double: y[i] = the base-10 logarithm of a[i]. */
inline status log10(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Log10, complex double, at the accuracy given. */
inline status log10(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_log10_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sqrt, complex double: y[i] = the square root of a[i]. */
inline status sqrt(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Sqrt, complex double, at the accuracy given. */
inline status sqrt(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sqrt_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Conj, complex double: y[i] = the complex conjugate of a[i]. */
inline status conj(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_conj_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Conj, complex double, at the accuracy given. */
inline status conj(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_conj_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CIS, complex float: y[i] = cos a[i] + i sin a[i]. */
inline status cis(std::span<const float> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cis_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CIS, complex float, at the accuracy given. */
inline status cis(std::span<const float> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cis_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CIS, complex double: y[i] = cos a[i] + i sin a[i]. */
inline status cis(std::span<const double> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cis_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** CIS, complex double, at the accuracy given. */
inline status cis(std::span<const double> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_cis_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Abs, complex float: y[i] = |a[i]|. */
inline status abs(std::span<const std::complex<float>> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Abs, complex float, at the accuracy given. */
inline status abs(std::span<const std::complex<float>> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Arg, complex float: y[i] = the argument (phase angle) of a[i]. */
inline status arg(std::span<const std::complex<float>> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_arg_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Arg, complex float, at the accuracy given. */
inline status arg(std::span<const std::complex<float>> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_arg_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Abs, complex double: y[i] = |a[i]|. */
inline status abs(std::span<const std::complex<double>> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Abs, complex double, at the accuracy given. */
inline status abs(std::span<const std::complex<double>> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_abs_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Arg, complex double: y[i] = the argument (phase angle) of a[i]. */
inline status arg(std::span<const std::complex<double>> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_arg_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** Arg, complex double, at the accuracy given. */
inline status arg(std::span<const std::complex<double>> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_arg_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Div, float: y[i] = a[i] / b[i]. */
inline status div(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Div, float, at the accuracy given. */
inline status div(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow, float: y[i] = a[i]^b[i]. */
inline status pow(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Pow, float, at the accuracy given. */
inline status pow(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan2, float: y[i] = the angle of the point (b[i], a[i]), atan2(a[i], b[i]). */
inline status atan2(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Atan2, float, at the accuracy given. */
inline status atan2(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Hypot, float: y[i] = sqrt(a[i]^2 + b[i]^2). */
inline status hypot(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_hypot_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Hypot, float, at the accuracy given. */
inline status hypot(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_hypot_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Add, float: y[i] = a[i] + b[i]. */
inline status add(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Add, float, at the accuracy given. */
inline status add(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sub, float: y[i] = a[i] - b[i]. */
inline status sub(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Sub, float, at the accuracy given. */
inline status sub(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Mul, float: y[i] = a[i] * b[i]. */
inline status mul(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Mul, float, at the accuracy given. */
inline status mul(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan2pi, float: y[i] = atan2(a[i], b[i]) / pi. */
inline status atan2pi(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2pi_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Atan2pi, float, at the accuracy given. */
inline status atan2pi(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2pi_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CopySign, float: y[i] = |a[i]| with the sign of b[i]. */
inline status copysign(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_copysign_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** CopySign, float, at the accuracy given. */
inline status copysign(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_copysign_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** NextAfter, float: y[i] = the next number after a[i] toward b[i]. */
inline status nextafter(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nextafter_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** NextAfter, float, at the accuracy given. */
inline status nextafter(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nextafter_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fdim, float: y[i] = a[i] - b[i] when positive, else +0. */
inline status fdim(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fdim_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fdim, float, at the accuracy given. */
inline status fdim(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fdim_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmax, float: y[i] = the larger of a[i] and b[i]. */
inline status fmax(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmax_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmax, float, at the accuracy given. */
inline status fmax(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmax_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmin, float: y[i] = the smaller of a[i] and b[i]. */
inline status fmin(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmin_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmin, float, at the accuracy given. */
inline status fmin(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmin_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MaxMag, float: y[i] = of a[i] and b[i] the larger in magnitude. */
inline status maxmag(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_maxmag_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MaxMag, float, at the accuracy given. */
inline status maxmag(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_maxmag_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MinMag, float: y[i] = of a[i] and b[i] the smaller in magnitude. */
inline status minmag(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_minmag_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MinMag, float, at the accuracy given. */
inline status minmag(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_minmag_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powr, float: y[i] = a[i]^b[i], as e^(b[i] ln a[i]). */
inline status powr(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powr_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Powr, float, at the accuracy given. */
inline status powr(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powr_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Remainder, float: y[i] = a[i] - b[i] n, n the nearest integer to a[i] / b[i]. */
inline status remainder(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_remainder_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Remainder, float, at the accuracy given. */
inline status remainder(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_remainder_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmod, float: y[i] = a[i] - b[i] trunc(a[i] / b[i]). */
inline status fmod(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmod_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmod, float, at the accuracy given. */
inline status fmod(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmod_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Div, double: y[i] = a[i] / b[i]. */
inline status div(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Div, double, at the accuracy given. */
inline status div(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow, double: y[i] = a[i]^b[i]. */
inline status pow(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Pow, double, at the accuracy given. */
inline status pow(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan2, double: y[i] = the angle of the point (b[i], a[i]), atan2(a[i], b[i]). */
inline status atan2(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Atan2, double, at the accuracy given. */
inline status atan2(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Hypot, double: y[i] = sqrt(a[i]^2 + b[i]^2). */
inline status hypot(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_hypot_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Hypot, double, at the accuracy given. */
inline status hypot(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_hypot_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Add, double: y[i] = a[i] + b[i]. */
inline status add(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Add, double, at the accuracy given. */
inline status add(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sub, double: y[i] = a[i] - b[i]. */
inline status sub(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Sub, double, at the accuracy given. */
inline status sub(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Mul, double: y[i] = a[i] * b[i]. */
inline status mul(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Mul, double, at the accuracy given. */
inline status mul(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Atan2pi, double: y[i] = atan2(a[i], b[i]) / pi. */
inline status atan2pi(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2pi_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Atan2pi, double, at the accuracy given. */
inline status atan2pi(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_atan2pi_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** CopySign, double: y[i] = |a[i]| with the sign of b[i]. */
inline status copysign(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_copysign_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** CopySign, double, at the accuracy given. */
inline status copysign(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_copysign_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** NextAfter, double: y[i] = the next number after a[i] toward b[i]. */
inline status nextafter(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nextafter_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** NextAfter, double, at the accuracy given. */
inline status nextafter(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_nextafter_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fdim, double: y[i] = a[i] - b[i] when positive, else +0. */
inline status fdim(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fdim_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fdim, double, at the accuracy given. */
inline status fdim(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fdim_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmax, double: y[i] = the larger of a[i] and b[i]. */
inline status fmax(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmax_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmax, double, at the accuracy given. */
inline status fmax(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmax_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmin, double: y[i] = the smaller of a[i] and b[i]. */
inline status fmin(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmin_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmin, double, at the accuracy given. */
inline status fmin(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmin_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MaxMag, double: y[i] = of a[i] and b[i] the larger in magnitude. */
inline status maxmag(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_maxmag_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MaxMag, double, at the accuracy given. */
inline status maxmag(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_maxmag_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MinMag, double: y[i] = of a[i] and b[i] the smaller in magnitude. */
inline status minmag(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_minmag_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MinMag, double, at the accuracy given. */
inline status minmag(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_minmag_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powr, double: y[i] = a[i]^b[i], as e^(b[i] ln a[i]). */
inline status powr(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powr_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Powr, double, at the accuracy given. */
inline status powr(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powr_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Remainder, double: y[i] = a[i] - b[i] n, n the nearest integer to a[i] / b[i]. */
inline status remainder(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_remainder_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Remainder, double, at the accuracy given. */
inline status remainder(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_remainder_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Fmod, double: y[i] = a[i] - b[i] trunc(a[i] / b[i]). */
inline status fmod(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmod_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Fmod, double, at the accuracy given. */
inline status fmod(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_fmod_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Div, complex float: y[i] = a[i] / b[i]. */
inline status div(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Div, complex float, at the accuracy given. */
inline status div(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow, complex float: y[i] = a[i]^b[i]. */
inline status pow(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Pow, complex float, at the accuracy given. */
inline status pow(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Add, complex float: y[i] = a[i] + b[i]. */
inline status add(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Add, complex float, at the accuracy given. */
inline status add(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sub, complex float: y[i] = a[i] - b[i]. */
inline status sub(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Sub, complex float, at the accuracy given. */
inline status sub(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Mul, complex float: y[i] = a[i] * b[i]. */
inline status mul(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Mul, complex float, at the accuracy given. */
inline status mul(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MulByConj, complex float: y[i] = a[i] * conj(b[i]). */
inline status mulbyconj(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mulbyconj_c64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MulByConj, complex float, at the accuracy given. */
inline status mulbyconj(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mulbyconj_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Div, complex double: y[i] = a[i] / b[i]. */
inline status div(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Div, complex double, at the accuracy given. */
inline status div(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_div_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Pow, complex double: y[i] = a[i]^b[i]. */
inline status pow(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Pow, complex double, at the accuracy given. */
inline status pow(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_pow_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Add, complex double: y[i] = a[i] + b[i]. */
inline status add(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Add, complex double, at the accuracy given. */
inline status add(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_add_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Sub, complex double: y[i] = a[i] - b[i]. */
inline status sub(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Sub, complex double, at the accuracy given. */
inline status sub(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sub_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Mul, complex double: y[i] = a[i] * b[i]. */
inline status mul(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** Mul, complex double, at the accuracy given. */
inline status mul(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mul_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** MulByConj, complex double: y[i] = a[i] * conj(b[i]). */
inline status mulbyconj(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mulbyconj_c128(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** MulByConj, complex double, at the accuracy given. */
inline status mulbyconj(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_mulbyconj_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powx, complex float: y[i] = a[i]^b, b one scalar. */
inline status powx(std::span<const std::complex<float>> a, std::complex<float> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_c64(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()))};
}
/** Powx, complex float, at the accuracy given. */
inline status powx(std::span<const std::complex<float>> a, std::complex<float> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powx, complex double: y[i] = a[i]^b, b one scalar. */
inline status powx(std::span<const std::complex<double>> a, std::complex<double> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_c128(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()))};
}
/** Powx, complex double, at the accuracy given. */
inline status powx(std::span<const std::complex<double>> a, std::complex<double> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powx, float: y[i] = a[i]^b, b one scalar. */
inline status powx(std::span<const float> a, float b, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_f32(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()))};
}
/** Powx, float, at the accuracy given. */
inline status powx(std::span<const float> a, float b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_f32_acc(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** Powx, double: y[i] = a[i]^b, b one scalar. */
inline status powx(std::span<const double> a, double b, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_f64(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()))};
}
/** Powx, double, at the accuracy given. */
inline status powx(std::span<const double> a, double b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_powx_f64_acc(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** SinCos, float: y[i] = sin a[i], z[i] = cos a[i]. */
inline status sincos(std::span<const float> a, std::span<float> y, std::span<float> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sincos_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** SinCos, float, at the accuracy given. */
inline status sincos(std::span<const float> a, std::span<float> y, std::span<float> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sincos_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** Modf, float: y[i] = the integer part of a[i], z[i] its fraction. */
inline status modf(std::span<const float> a, std::span<float> y, std::span<float> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_modf_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** Modf, float, at the accuracy given. */
inline status modf(std::span<const float> a, std::span<float> y, std::span<float> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_modf_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** SinCos, double: y[i] = sin a[i], z[i] = cos a[i]. */
inline status sincos(std::span<const double> a, std::span<double> y, std::span<double> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sincos_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** SinCos, double, at the accuracy given. */
inline status sincos(std::span<const double> a, std::span<double> y, std::span<double> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_sincos_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** Modf, double: y[i] = the integer part of a[i], z[i] its fraction. */
inline status modf(std::span<const double> a, std::span<double> y, std::span<double> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_modf_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** Modf, double, at the accuracy given. */
inline status modf(std::span<const double> a, std::span<double> y, std::span<double> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_modf_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** LinearFrac, float: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb). */
inline status linearfrac(std::span<const float> a, std::span<const float> b, float scalea, float shifta, float scaleb, float shiftb, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_linearfrac_f32(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()))};
}
/** LinearFrac, float, at the accuracy given. */
inline status linearfrac(std::span<const float> a, std::span<const float> b, float scalea, float shifta, float scaleb, float shiftb, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_linearfrac_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** LinearFrac, double: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb). */
inline status linearfrac(std::span<const double> a, std::span<const double> b, double scalea, double shifta, double scaleb, double shiftb, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_linearfrac_f64(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()))};
}
/** LinearFrac, double, at the accuracy given. */
inline status linearfrac(std::span<const double> a, std::span<const double> b, double scalea, double shifta, double scaleb, double shiftb, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_linearfrac_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackI, float: y[i] = a[i*incra]. */
inline status packi(std::span<const float> a, int incra, std::span<float> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_f32(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** PackI, float, at the accuracy given. */
inline status packi(std::span<const float> a, int incra, std::span<float> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_f32_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackI, double: y[i] = a[i*incra]. */
inline status packi(std::span<const double> a, int incra, std::span<double> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_f64(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** PackI, double, at the accuracy given. */
inline status packi(std::span<const double> a, int incra, std::span<double> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_f64_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackI, complex float: y[i] = a[i*incra]. */
inline status packi(std::span<const std::complex<float>> a, int incra, std::span<std::complex<float>> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_c64(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** PackI, complex float, at the accuracy given. */
inline status packi(std::span<const std::complex<float>> a, int incra, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_c64_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackI, complex double: y[i] = a[i*incra]. */
inline status packi(std::span<const std::complex<double>> a, int incra, std::span<std::complex<double>> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_c128(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** PackI, complex double, at the accuracy given. */
inline status packi(std::span<const std::complex<double>> a, int incra, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packi_c128_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackM, float: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const float> a, std::span<const int> ma, std::span<float> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_f32(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** PackM, float, at the accuracy given. */
inline status packm(std::span<const float> a, std::span<const int> ma, std::span<float> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackM, double: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const double> a, std::span<const int> ma, std::span<double> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_f64(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** PackM, double, at the accuracy given. */
inline status packm(std::span<const double> a, std::span<const int> ma, std::span<double> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackM, complex float: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const std::complex<float>> a, std::span<const int> ma, std::span<std::complex<float>> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_c64(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** PackM, complex float, at the accuracy given. */
inline status packm(std::span<const std::complex<float>> a, std::span<const int> ma, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackM, complex double: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const std::complex<double>> a, std::span<const int> ma, std::span<std::complex<double>> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_c128(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** PackM, complex double, at the accuracy given. */
inline status packm(std::span<const std::complex<double>> a, std::span<const int> ma, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packm_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackV, float: y[i] = a[ia[i]]. */
inline status packv(std::span<const float> a, std::span<const int> ia, std::span<float> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_f32(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** PackV, float, at the accuracy given. */
inline status packv(std::span<const float> a, std::span<const int> ia, std::span<float> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackV, double: y[i] = a[ia[i]]. */
inline status packv(std::span<const double> a, std::span<const int> ia, std::span<double> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_f64(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** PackV, double, at the accuracy given. */
inline status packv(std::span<const double> a, std::span<const int> ia, std::span<double> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackV, complex float: y[i] = a[ia[i]]. */
inline status packv(std::span<const std::complex<float>> a, std::span<const int> ia, std::span<std::complex<float>> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_c64(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** PackV, complex float, at the accuracy given. */
inline status packv(std::span<const std::complex<float>> a, std::span<const int> ia, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** PackV, complex double: y[i] = a[ia[i]]. */
inline status packv(std::span<const std::complex<double>> a, std::span<const int> ia, std::span<std::complex<double>> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_c128(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** PackV, complex double, at the accuracy given. */
inline status packv(std::span<const std::complex<double>> a, std::span<const int> ia, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_packv_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** UnpackI, float: y[i*incry] = a[i]. */
inline status unpacki(std::span<const float> a, std::span<float> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** UnpackI, float, at the accuracy given. */
inline status unpacki(std::span<const float> a, std::span<float> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** UnpackI, double: y[i*incry] = a[i]. */
inline status unpacki(std::span<const double> a, std::span<double> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** UnpackI, double, at the accuracy given. */
inline status unpacki(std::span<const double> a, std::span<double> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** UnpackI, complex float: y[i*incry] = a[i]. */
inline status unpacki(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** UnpackI, complex float, at the accuracy given. */
inline status unpacki(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** UnpackI, complex double: y[i*incry] = a[i]. */
inline status unpacki(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** UnpackI, complex double, at the accuracy given. */
inline status unpacki(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpacki_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** UnpackM, float: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const float> a, std::span<float> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** UnpackM, float, at the accuracy given. */
inline status unpackm(std::span<const float> a, std::span<float> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** UnpackM, double: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const double> a, std::span<double> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** UnpackM, double, at the accuracy given. */
inline status unpackm(std::span<const double> a, std::span<double> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** UnpackM, complex float: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** UnpackM, complex float, at the accuracy given. */
inline status unpackm(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** UnpackM, complex double: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** UnpackM, complex double, at the accuracy given. */
inline status unpackm(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackm_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** UnpackV, float: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const float> a, std::span<float> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_f32(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** UnpackV, float, at the accuracy given. */
inline status unpackv(std::span<const float> a, std::span<float> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_f32_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** UnpackV, double: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const double> a, std::span<double> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_f64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** UnpackV, double, at the accuracy given. */
inline status unpackv(std::span<const double> a, std::span<double> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_f64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** UnpackV, complex float: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_c64(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** UnpackV, complex float, at the accuracy given. */
inline status unpackv(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_c64_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** UnpackV, complex double: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_c128(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** UnpackV, complex double, at the accuracy given. */
inline status unpackv(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vm_unpackv_c128_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}

} // namespace brenn::vm

#endif
