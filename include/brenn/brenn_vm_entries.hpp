/** @file brenn_vm_entries.hpp
 * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.
 * brenn::vm::<fn>(spans..., [accuracy]) for every vector-math row: the overload
 * of the element type calls brenn_v<t><fn>() or brenn_v<t><fn>_acc(). Sizes
 * that do not match give status BRENN_ERR_SIZE_MISMATCH and write nothing. */
#ifndef BRENN_VM_ENTRIES_HPP
#define BRENN_VM_ENTRIES_HPP

#include <complex>
#include <span>

#include "brenn_vm_call.hpp"

namespace brenn::vm {

/** vsCeil: y[i] = Ceil(a[i]). */
inline status ceil(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsceil(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCeil at the accuracy given. */
inline status ceil(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsceil_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFloor: y[i] = Floor(a[i]). */
inline status floor(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfloor(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsFloor at the accuracy given. */
inline status floor(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfloor_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFrac: y[i] = Frac(a[i]). */
inline status frac(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfrac(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsFrac at the accuracy given. */
inline status frac(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfrac_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsNearbyInt: y[i] = NearbyInt(a[i]). */
inline status nearbyint(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsnearbyint(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsNearbyInt at the accuracy given. */
inline status nearbyint(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsnearbyint_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsRint: y[i] = Rint(a[i]). */
inline status rint(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsrint(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsRint at the accuracy given. */
inline status rint(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsrint_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsRound: y[i] = Round(a[i]). */
inline status round(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsround(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsRound at the accuracy given. */
inline status round(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsround_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTrunc: y[i] = Trunc(a[i]). */
inline status trunc(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstrunc(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTrunc at the accuracy given. */
inline status trunc(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstrunc_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAbs: y[i] = Abs(a[i]). */
inline status abs(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsabs(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAbs at the accuracy given. */
inline status abs(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsabs_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsInv: y[i] = Inv(a[i]). */
inline status inv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsInv at the accuracy given. */
inline status inv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSqrt: y[i] = Sqrt(a[i]). */
inline status sqrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSqrt at the accuracy given. */
inline status sqrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsInvSqrt: y[i] = InvSqrt(a[i]). */
inline status invsqrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinvsqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsInvSqrt at the accuracy given. */
inline status invsqrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinvsqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCbrt: y[i] = Cbrt(a[i]). */
inline status cbrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscbrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCbrt at the accuracy given. */
inline status cbrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscbrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsInvCbrt: y[i] = InvCbrt(a[i]). */
inline status invcbrt(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinvcbrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsInvCbrt at the accuracy given. */
inline status invcbrt(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsinvcbrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsExp: y[i] = Exp(a[i]). */
inline status exp(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsExp at the accuracy given. */
inline status exp(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLn: y[i] = Ln(a[i]). */
inline status ln(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsln(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLn at the accuracy given. */
inline status ln(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsln_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLog10: y[i] = Log10(a[i]). */
inline status log10(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLog10 at the accuracy given. */
inline status log10(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCos: y[i] = Cos(a[i]). */
inline status cos(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCos at the accuracy given. */
inline status cos(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSin: y[i] = Sin(a[i]). */
inline status sin(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSin at the accuracy given. */
inline status sin(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTan: y[i] = Tan(a[i]). */
inline status tan(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTan at the accuracy given. */
inline status tan(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAcos: y[i] = Acos(a[i]). */
inline status acos(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAcos at the accuracy given. */
inline status acos(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAcosh: y[i] = Acosh(a[i]). */
inline status acosh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAcosh at the accuracy given. */
inline status acosh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAsin: y[i] = Asin(a[i]). */
inline status asin(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAsin at the accuracy given. */
inline status asin(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAsinh: y[i] = Asinh(a[i]). */
inline status asinh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAsinh at the accuracy given. */
inline status asinh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAtan: y[i] = Atan(a[i]). */
inline status atan(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAtan at the accuracy given. */
inline status atan(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAtanh: y[i] = Atanh(a[i]). */
inline status atanh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAtanh at the accuracy given. */
inline status atanh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCosh: y[i] = Cosh(a[i]). */
inline status cosh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCosh at the accuracy given. */
inline status cosh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSinh: y[i] = Sinh(a[i]). */
inline status sinh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSinh at the accuracy given. */
inline status sinh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTanh: y[i] = Tanh(a[i]). */
inline status tanh(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTanh at the accuracy given. */
inline status tanh(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsErf: y[i] = Erf(a[i]). */
inline status erf(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserf(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsErf at the accuracy given. */
inline status erf(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserf_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsErfc: y[i] = Erfc(a[i]). */
inline status erfc(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfc(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsErfc at the accuracy given. */
inline status erfc(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfc_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsErfInv: y[i] = ErfInv(a[i]). */
inline status erfinv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsErfInv at the accuracy given. */
inline status erfinv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSqr: y[i] = Sqr(a[i]). */
inline status sqr(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssqr(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSqr at the accuracy given. */
inline status sqr(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssqr_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsExpm1: y[i] = Expm1(a[i]). */
inline status expm1(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexpm1(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsExpm1 at the accuracy given. */
inline status expm1(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexpm1_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLog1p: y[i] = Log1p(a[i]). */
inline status log1p(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog1p(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLog1p at the accuracy given. */
inline status log1p(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog1p_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPow3o2: y[i] = Pow3o2(a[i]). */
inline status pow3o2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow3o2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsPow3o2 at the accuracy given. */
inline status pow3o2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow3o2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPow2o3: y[i] = Pow2o3(a[i]). */
inline status pow2o3(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow2o3(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsPow2o3 at the accuracy given. */
inline status pow2o3(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow2o3_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsErfcInv: y[i] = ErfcInv(a[i]). */
inline status erfcinv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfcinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsErfcInv at the accuracy given. */
inline status erfcinv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vserfcinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCdfNorm: y[i] = CdfNorm(a[i]). */
inline status cdfnorm(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscdfnorm(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCdfNorm at the accuracy given. */
inline status cdfnorm(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscdfnorm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCdfNormInv: y[i] = CdfNormInv(a[i]). */
inline status cdfnorminv(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscdfnorminv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCdfNormInv at the accuracy given. */
inline status cdfnorminv(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscdfnorminv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLGamma: y[i] = LGamma(a[i]). */
inline status lgamma(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslgamma(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLGamma at the accuracy given. */
inline status lgamma(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslgamma_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTGamma: y[i] = TGamma(a[i]). */
inline status tgamma(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstgamma(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTGamma at the accuracy given. */
inline status tgamma(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstgamma_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsExpInt1: y[i] = ExpInt1(a[i]). */
inline status expint1(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexpint1(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsExpInt1 at the accuracy given. */
inline status expint1(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexpint1_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSinpi: y[i] = Sinpi(a[i]). */
inline status sinpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssinpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSinpi at the accuracy given. */
inline status sinpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssinpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCospi: y[i] = Cospi(a[i]). */
inline status cospi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscospi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCospi at the accuracy given. */
inline status cospi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscospi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTanpi: y[i] = Tanpi(a[i]). */
inline status tanpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstanpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTanpi at the accuracy given. */
inline status tanpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstanpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAcospi: y[i] = Acospi(a[i]). */
inline status acospi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacospi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAcospi at the accuracy given. */
inline status acospi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsacospi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAsinpi: y[i] = Asinpi(a[i]). */
inline status asinpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasinpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAsinpi at the accuracy given. */
inline status asinpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsasinpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAtanpi: y[i] = Atanpi(a[i]). */
inline status atanpi(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatanpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsAtanpi at the accuracy given. */
inline status atanpi(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatanpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsExp2: y[i] = Exp2(a[i]). */
inline status exp2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsExp2 at the accuracy given. */
inline status exp2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsExp10: y[i] = Exp10(a[i]). */
inline status exp10(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsExp10 at the accuracy given. */
inline status exp10(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsexp10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLog2: y[i] = Log2(a[i]). */
inline status log2(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLog2 at the accuracy given. */
inline status log2(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslog2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSind: y[i] = Sind(a[i]). */
inline status sind(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssind(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsSind at the accuracy given. */
inline status sind(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssind_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCosd: y[i] = Cosd(a[i]). */
inline status cosd(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscosd(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsCosd at the accuracy given. */
inline status cosd(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscosd_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsTand: y[i] = Tand(a[i]). */
inline status tand(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstand(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsTand at the accuracy given. */
inline status tand(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vstand_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsLogb: y[i] = Logb(a[i]). */
inline status logb(std::span<const float> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslogb(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vsLogb at the accuracy given. */
inline status logb(std::span<const float> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslogb_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCeil: y[i] = Ceil(a[i]). */
inline status ceil(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdceil(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCeil at the accuracy given. */
inline status ceil(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdceil_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFloor: y[i] = Floor(a[i]). */
inline status floor(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfloor(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdFloor at the accuracy given. */
inline status floor(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfloor_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFrac: y[i] = Frac(a[i]). */
inline status frac(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfrac(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdFrac at the accuracy given. */
inline status frac(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfrac_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdNearbyInt: y[i] = NearbyInt(a[i]). */
inline status nearbyint(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdnearbyint(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdNearbyInt at the accuracy given. */
inline status nearbyint(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdnearbyint_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdRint: y[i] = Rint(a[i]). */
inline status rint(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdrint(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdRint at the accuracy given. */
inline status rint(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdrint_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdRound: y[i] = Round(a[i]). */
inline status round(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdround(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdRound at the accuracy given. */
inline status round(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdround_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTrunc: y[i] = Trunc(a[i]). */
inline status trunc(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtrunc(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTrunc at the accuracy given. */
inline status trunc(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtrunc_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAbs: y[i] = Abs(a[i]). */
inline status abs(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdabs(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAbs at the accuracy given. */
inline status abs(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdabs_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdInv: y[i] = Inv(a[i]). */
inline status inv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdInv at the accuracy given. */
inline status inv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSqrt: y[i] = Sqrt(a[i]). */
inline status sqrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSqrt at the accuracy given. */
inline status sqrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdInvSqrt: y[i] = InvSqrt(a[i]). */
inline status invsqrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinvsqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdInvSqrt at the accuracy given. */
inline status invsqrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinvsqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCbrt: y[i] = Cbrt(a[i]). */
inline status cbrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcbrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCbrt at the accuracy given. */
inline status cbrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcbrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdInvCbrt: y[i] = InvCbrt(a[i]). */
inline status invcbrt(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinvcbrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdInvCbrt at the accuracy given. */
inline status invcbrt(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdinvcbrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdExp: y[i] = Exp(a[i]). */
inline status exp(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdExp at the accuracy given. */
inline status exp(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLn: y[i] = Ln(a[i]). */
inline status ln(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdln(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLn at the accuracy given. */
inline status ln(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdln_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLog10: y[i] = Log10(a[i]). */
inline status log10(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLog10 at the accuracy given. */
inline status log10(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCos: y[i] = Cos(a[i]). */
inline status cos(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCos at the accuracy given. */
inline status cos(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSin: y[i] = Sin(a[i]). */
inline status sin(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSin at the accuracy given. */
inline status sin(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTan: y[i] = Tan(a[i]). */
inline status tan(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTan at the accuracy given. */
inline status tan(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAcos: y[i] = Acos(a[i]). */
inline status acos(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAcos at the accuracy given. */
inline status acos(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAcosh: y[i] = Acosh(a[i]). */
inline status acosh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAcosh at the accuracy given. */
inline status acosh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAsin: y[i] = Asin(a[i]). */
inline status asin(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAsin at the accuracy given. */
inline status asin(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAsinh: y[i] = Asinh(a[i]). */
inline status asinh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAsinh at the accuracy given. */
inline status asinh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAtan: y[i] = Atan(a[i]). */
inline status atan(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAtan at the accuracy given. */
inline status atan(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAtanh: y[i] = Atanh(a[i]). */
inline status atanh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAtanh at the accuracy given. */
inline status atanh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCosh: y[i] = Cosh(a[i]). */
inline status cosh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCosh at the accuracy given. */
inline status cosh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSinh: y[i] = Sinh(a[i]). */
inline status sinh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSinh at the accuracy given. */
inline status sinh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTanh: y[i] = Tanh(a[i]). */
inline status tanh(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTanh at the accuracy given. */
inline status tanh(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdErf: y[i] = Erf(a[i]). */
inline status erf(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderf(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdErf at the accuracy given. */
inline status erf(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderf_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdErfc: y[i] = Erfc(a[i]). */
inline status erfc(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfc(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdErfc at the accuracy given. */
inline status erfc(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfc_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdErfInv: y[i] = ErfInv(a[i]). */
inline status erfinv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdErfInv at the accuracy given. */
inline status erfinv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSqr: y[i] = Sqr(a[i]). */
inline status sqr(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsqr(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSqr at the accuracy given. */
inline status sqr(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsqr_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdExpm1: y[i] = Expm1(a[i]). */
inline status expm1(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexpm1(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdExpm1 at the accuracy given. */
inline status expm1(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexpm1_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLog1p: y[i] = Log1p(a[i]). */
inline status log1p(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog1p(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLog1p at the accuracy given. */
inline status log1p(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog1p_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPow3o2: y[i] = Pow3o2(a[i]). */
inline status pow3o2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow3o2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdPow3o2 at the accuracy given. */
inline status pow3o2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow3o2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPow2o3: y[i] = Pow2o3(a[i]). */
inline status pow2o3(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow2o3(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdPow2o3 at the accuracy given. */
inline status pow2o3(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow2o3_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdErfcInv: y[i] = ErfcInv(a[i]). */
inline status erfcinv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfcinv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdErfcInv at the accuracy given. */
inline status erfcinv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vderfcinv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCdfNorm: y[i] = CdfNorm(a[i]). */
inline status cdfnorm(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcdfnorm(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCdfNorm at the accuracy given. */
inline status cdfnorm(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcdfnorm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCdfNormInv: y[i] = CdfNormInv(a[i]). */
inline status cdfnorminv(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcdfnorminv(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCdfNormInv at the accuracy given. */
inline status cdfnorminv(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcdfnorminv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLGamma: y[i] = LGamma(a[i]). */
inline status lgamma(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlgamma(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLGamma at the accuracy given. */
inline status lgamma(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlgamma_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTGamma: y[i] = TGamma(a[i]). */
inline status tgamma(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtgamma(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTGamma at the accuracy given. */
inline status tgamma(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtgamma_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdExpInt1: y[i] = ExpInt1(a[i]). */
inline status expint1(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexpint1(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdExpInt1 at the accuracy given. */
inline status expint1(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexpint1_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSinpi: y[i] = Sinpi(a[i]). */
inline status sinpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsinpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSinpi at the accuracy given. */
inline status sinpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsinpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCospi: y[i] = Cospi(a[i]). */
inline status cospi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcospi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCospi at the accuracy given. */
inline status cospi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcospi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTanpi: y[i] = Tanpi(a[i]). */
inline status tanpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtanpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTanpi at the accuracy given. */
inline status tanpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtanpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAcospi: y[i] = Acospi(a[i]). */
inline status acospi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacospi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAcospi at the accuracy given. */
inline status acospi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdacospi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAsinpi: y[i] = Asinpi(a[i]). */
inline status asinpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasinpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAsinpi at the accuracy given. */
inline status asinpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdasinpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAtanpi: y[i] = Atanpi(a[i]). */
inline status atanpi(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatanpi(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdAtanpi at the accuracy given. */
inline status atanpi(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatanpi_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdExp2: y[i] = Exp2(a[i]). */
inline status exp2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdExp2 at the accuracy given. */
inline status exp2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdExp10: y[i] = Exp10(a[i]). */
inline status exp10(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdExp10 at the accuracy given. */
inline status exp10(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdexp10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLog2: y[i] = Log2(a[i]). */
inline status log2(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog2(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLog2 at the accuracy given. */
inline status log2(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlog2_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSind: y[i] = Sind(a[i]). */
inline status sind(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsind(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdSind at the accuracy given. */
inline status sind(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsind_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCosd: y[i] = Cosd(a[i]). */
inline status cosd(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcosd(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdCosd at the accuracy given. */
inline status cosd(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcosd_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdTand: y[i] = Tand(a[i]). */
inline status tand(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtand(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdTand at the accuracy given. */
inline status tand(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdtand_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLogb: y[i] = Logb(a[i]). */
inline status logb(std::span<const double> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlogb(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vdLogb at the accuracy given. */
inline status logb(std::span<const double> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlogb_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcCos: y[i] = Cos(a[i]). */
inline status cos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcCos at the accuracy given. */
inline status cos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcSin: y[i] = Sin(a[i]). */
inline status sin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcSin at the accuracy given. */
inline status sin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcTan: y[i] = Tan(a[i]). */
inline status tan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vctan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcTan at the accuracy given. */
inline status tan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vctan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcCosh: y[i] = Cosh(a[i]). */
inline status cosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcCosh at the accuracy given. */
inline status cosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcSinh: y[i] = Sinh(a[i]). */
inline status sinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcSinh at the accuracy given. */
inline status sinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcTanh: y[i] = Tanh(a[i]). */
inline status tanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vctanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcTanh at the accuracy given. */
inline status tanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vctanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAcos: y[i] = Acos(a[i]). */
inline status acos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcacos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAcos at the accuracy given. */
inline status acos(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcacos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAsin: y[i] = Asin(a[i]). */
inline status asin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcasin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAsin at the accuracy given. */
inline status asin(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcasin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAtan: y[i] = Atan(a[i]). */
inline status atan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcatan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAtan at the accuracy given. */
inline status atan(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcatan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAcosh: y[i] = Acosh(a[i]). */
inline status acosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcacosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAcosh at the accuracy given. */
inline status acosh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcacosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAsinh: y[i] = Asinh(a[i]). */
inline status asinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcasinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAsinh at the accuracy given. */
inline status asinh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcasinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAtanh: y[i] = Atanh(a[i]). */
inline status atanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcatanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAtanh at the accuracy given. */
inline status atanh(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcatanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcExp: y[i] = Exp(a[i]). */
inline status exp(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcexp(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcExp at the accuracy given. */
inline status exp(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcexp_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcLn: y[i] = Ln(a[i]). */
inline status ln(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcln(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcLn at the accuracy given. */
inline status ln(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcln_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcLog10: y[i] = Log10(a[i]). */
inline status log10(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vclog10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcLog10 at the accuracy given. */
inline status log10(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vclog10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcSqrt: y[i] = Sqrt(a[i]). */
inline status sqrt(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcSqrt at the accuracy given. */
inline status sqrt(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcConj: y[i] = Conj(a[i]). */
inline status conj(std::span<const std::complex<float>> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcconj(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcConj at the accuracy given. */
inline status conj(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcconj_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzCos: y[i] = Cos(a[i]). */
inline status cos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzCos at the accuracy given. */
inline status cos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzSin: y[i] = Sin(a[i]). */
inline status sin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzSin at the accuracy given. */
inline status sin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzTan: y[i] = Tan(a[i]). */
inline status tan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vztan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzTan at the accuracy given. */
inline status tan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vztan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzCosh: y[i] = Cosh(a[i]). */
inline status cosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzCosh at the accuracy given. */
inline status cosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzSinh: y[i] = Sinh(a[i]). */
inline status sinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzSinh at the accuracy given. */
inline status sinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzTanh: y[i] = Tanh(a[i]). */
inline status tanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vztanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzTanh at the accuracy given. */
inline status tanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vztanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAcos: y[i] = Acos(a[i]). */
inline status acos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzacos(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAcos at the accuracy given. */
inline status acos(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzacos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAsin: y[i] = Asin(a[i]). */
inline status asin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzasin(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAsin at the accuracy given. */
inline status asin(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzasin_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAtan: y[i] = Atan(a[i]). */
inline status atan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzatan(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAtan at the accuracy given. */
inline status atan(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzatan_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAcosh: y[i] = Acosh(a[i]). */
inline status acosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzacosh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAcosh at the accuracy given. */
inline status acosh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzacosh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAsinh: y[i] = Asinh(a[i]). */
inline status asinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzasinh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAsinh at the accuracy given. */
inline status asinh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzasinh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAtanh: y[i] = Atanh(a[i]). */
inline status atanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzatanh(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAtanh at the accuracy given. */
inline status atanh(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzatanh_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzExp: y[i] = Exp(a[i]). */
inline status exp(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzexp(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzExp at the accuracy given. */
inline status exp(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzexp_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzLn: y[i] = Ln(a[i]). */
inline status ln(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzln(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzLn at the accuracy given. */
inline status ln(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzln_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzLog10: y[i] = Log10(a[i]). */
inline status log10(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzlog10(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzLog10 at the accuracy given. */
inline status log10(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzlog10_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzSqrt: y[i] = Sqrt(a[i]). */
inline status sqrt(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsqrt(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzSqrt at the accuracy given. */
inline status sqrt(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsqrt_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzConj: y[i] = Conj(a[i]). */
inline status conj(std::span<const std::complex<double>> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzconj(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzConj at the accuracy given. */
inline status conj(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzconj_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcCIS: y[i] = CIS(a[i]). */
inline status cis(std::span<const float> a, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccis(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcCIS at the accuracy given. */
inline status cis(std::span<const float> a, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vccis_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzCIS: y[i] = CIS(a[i]). */
inline status cis(std::span<const double> a, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcis(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzCIS at the accuracy given. */
inline status cis(std::span<const double> a, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzcis_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAbs: y[i] = Abs(a[i]). */
inline status abs(std::span<const std::complex<float>> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcabs(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcAbs at the accuracy given. */
inline status abs(std::span<const std::complex<float>> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcabs_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcArg: y[i] = Arg(a[i]). */
inline status arg(std::span<const std::complex<float>> a, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcarg(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vcArg at the accuracy given. */
inline status arg(std::span<const std::complex<float>> a, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcarg_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAbs: y[i] = Abs(a[i]). */
inline status abs(std::span<const std::complex<double>> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzabs(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzAbs at the accuracy given. */
inline status abs(std::span<const std::complex<double>> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzabs_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzArg: y[i] = Arg(a[i]). */
inline status arg(std::span<const std::complex<double>> a, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzarg(int(n), detail::as_c(a.data()), detail::as_c(y.data()))};
}
/** vzArg at the accuracy given. */
inline status arg(std::span<const std::complex<double>> a, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzarg_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsDiv: y[i] = Div(a[i], b[i]). */
inline status div(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsdiv(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsDiv at the accuracy given. */
inline status div(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsdiv_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPow: y[i] = Pow(a[i], b[i]). */
inline status pow(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsPow at the accuracy given. */
inline status pow(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspow_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAtan2: y[i] = Atan2(a[i], b[i]). */
inline status atan2(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan2(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsAtan2 at the accuracy given. */
inline status atan2(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan2_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsHypot: y[i] = Hypot(a[i], b[i]). */
inline status hypot(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vshypot(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsHypot at the accuracy given. */
inline status hypot(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vshypot_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAdd: y[i] = Add(a[i], b[i]). */
inline status add(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsadd(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsAdd at the accuracy given. */
inline status add(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsadd_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSub: y[i] = Sub(a[i], b[i]). */
inline status sub(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssub(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsSub at the accuracy given. */
inline status sub(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssub_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsMul: y[i] = Mul(a[i], b[i]). */
inline status mul(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmul(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsMul at the accuracy given. */
inline status mul(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmul_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsAtan2pi: y[i] = Atan2pi(a[i], b[i]). */
inline status atan2pi(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan2pi(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsAtan2pi at the accuracy given. */
inline status atan2pi(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsatan2pi_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsCopySign: y[i] = CopySign(a[i], b[i]). */
inline status copysign(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscopysign(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsCopySign at the accuracy given. */
inline status copysign(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vscopysign_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsNextAfter: y[i] = NextAfter(a[i], b[i]). */
inline status nextafter(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsnextafter(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsNextAfter at the accuracy given. */
inline status nextafter(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsnextafter_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFdim: y[i] = Fdim(a[i], b[i]). */
inline status fdim(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfdim(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsFdim at the accuracy given. */
inline status fdim(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfdim_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFmax: y[i] = Fmax(a[i], b[i]). */
inline status fmax(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmax(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsFmax at the accuracy given. */
inline status fmax(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmax_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFmin: y[i] = Fmin(a[i], b[i]). */
inline status fmin(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmin(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsFmin at the accuracy given. */
inline status fmin(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmin_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsMaxMag: y[i] = MaxMag(a[i], b[i]). */
inline status maxmag(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmaxmag(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsMaxMag at the accuracy given. */
inline status maxmag(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmaxmag_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsMinMag: y[i] = MinMag(a[i], b[i]). */
inline status minmag(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsminmag(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsMinMag at the accuracy given. */
inline status minmag(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsminmag_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPowr: y[i] = Powr(a[i], b[i]). */
inline status powr(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspowr(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsPowr at the accuracy given. */
inline status powr(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspowr_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsRemainder: y[i] = Remainder(a[i], b[i]). */
inline status remainder(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsremainder(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsRemainder at the accuracy given. */
inline status remainder(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsremainder_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsFmod: y[i] = Fmod(a[i], b[i]). */
inline status fmod(std::span<const float> a, std::span<const float> b, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmod(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vsFmod at the accuracy given. */
inline status fmod(std::span<const float> a, std::span<const float> b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsfmod_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdDiv: y[i] = Div(a[i], b[i]). */
inline status div(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vddiv(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdDiv at the accuracy given. */
inline status div(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vddiv_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPow: y[i] = Pow(a[i], b[i]). */
inline status pow(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdPow at the accuracy given. */
inline status pow(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpow_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAtan2: y[i] = Atan2(a[i], b[i]). */
inline status atan2(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan2(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdAtan2 at the accuracy given. */
inline status atan2(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan2_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdHypot: y[i] = Hypot(a[i], b[i]). */
inline status hypot(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdhypot(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdHypot at the accuracy given. */
inline status hypot(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdhypot_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAdd: y[i] = Add(a[i], b[i]). */
inline status add(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdadd(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdAdd at the accuracy given. */
inline status add(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdadd_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdSub: y[i] = Sub(a[i], b[i]). */
inline status sub(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsub(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdSub at the accuracy given. */
inline status sub(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsub_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdMul: y[i] = Mul(a[i], b[i]). */
inline status mul(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmul(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdMul at the accuracy given. */
inline status mul(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmul_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdAtan2pi: y[i] = Atan2pi(a[i], b[i]). */
inline status atan2pi(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan2pi(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdAtan2pi at the accuracy given. */
inline status atan2pi(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdatan2pi_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdCopySign: y[i] = CopySign(a[i], b[i]). */
inline status copysign(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcopysign(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdCopySign at the accuracy given. */
inline status copysign(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdcopysign_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdNextAfter: y[i] = NextAfter(a[i], b[i]). */
inline status nextafter(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdnextafter(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdNextAfter at the accuracy given. */
inline status nextafter(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdnextafter_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFdim: y[i] = Fdim(a[i], b[i]). */
inline status fdim(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfdim(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdFdim at the accuracy given. */
inline status fdim(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfdim_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFmax: y[i] = Fmax(a[i], b[i]). */
inline status fmax(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmax(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdFmax at the accuracy given. */
inline status fmax(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmax_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFmin: y[i] = Fmin(a[i], b[i]). */
inline status fmin(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmin(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdFmin at the accuracy given. */
inline status fmin(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmin_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdMaxMag: y[i] = MaxMag(a[i], b[i]). */
inline status maxmag(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmaxmag(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdMaxMag at the accuracy given. */
inline status maxmag(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmaxmag_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdMinMag: y[i] = MinMag(a[i], b[i]). */
inline status minmag(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdminmag(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdMinMag at the accuracy given. */
inline status minmag(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdminmag_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPowr: y[i] = Powr(a[i], b[i]). */
inline status powr(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpowr(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdPowr at the accuracy given. */
inline status powr(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpowr_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdRemainder: y[i] = Remainder(a[i], b[i]). */
inline status remainder(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdremainder(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdRemainder at the accuracy given. */
inline status remainder(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdremainder_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdFmod: y[i] = Fmod(a[i], b[i]). */
inline status fmod(std::span<const double> a, std::span<const double> b, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmod(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vdFmod at the accuracy given. */
inline status fmod(std::span<const double> a, std::span<const double> b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdfmod_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcDiv: y[i] = Div(a[i], b[i]). */
inline status div(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcdiv(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcDiv at the accuracy given. */
inline status div(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcdiv_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcPow: y[i] = Pow(a[i], b[i]). */
inline status pow(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpow(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcPow at the accuracy given. */
inline status pow(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpow_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcAdd: y[i] = Add(a[i], b[i]). */
inline status add(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcadd(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcAdd at the accuracy given. */
inline status add(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcadd_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcSub: y[i] = Sub(a[i], b[i]). */
inline status sub(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsub(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcSub at the accuracy given. */
inline status sub(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcsub_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcMul: y[i] = Mul(a[i], b[i]). */
inline status mul(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcmul(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcMul at the accuracy given. */
inline status mul(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcmul_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcMulByConj: y[i] = MulByConj(a[i], b[i]). */
inline status mulbyconj(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcmulbyconj(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vcMulByConj at the accuracy given. */
inline status mulbyconj(std::span<const std::complex<float>> a, std::span<const std::complex<float>> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcmulbyconj_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzDiv: y[i] = Div(a[i], b[i]). */
inline status div(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzdiv(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzDiv at the accuracy given. */
inline status div(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzdiv_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzPow: y[i] = Pow(a[i], b[i]). */
inline status pow(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpow(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzPow at the accuracy given. */
inline status pow(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpow_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzAdd: y[i] = Add(a[i], b[i]). */
inline status add(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzadd(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzAdd at the accuracy given. */
inline status add(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzadd_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzSub: y[i] = Sub(a[i], b[i]). */
inline status sub(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsub(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzSub at the accuracy given. */
inline status sub(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzsub_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzMul: y[i] = Mul(a[i], b[i]). */
inline status mul(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzmul(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzMul at the accuracy given. */
inline status mul(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzmul_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzMulByConj: y[i] = MulByConj(a[i], b[i]). */
inline status mulbyconj(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzmulbyconj(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()))};
}
/** vzMulByConj at the accuracy given. */
inline status mulbyconj(std::span<const std::complex<double>> a, std::span<const std::complex<double>> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzmulbyconj_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcPowx: y[i] = a[i] to the power b. */
inline status powx(std::span<const std::complex<float>> a, std::complex<float> b, std::span<std::complex<float>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpowx(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()))};
}
/** vcPowx at the accuracy given. */
inline status powx(std::span<const std::complex<float>> a, std::complex<float> b, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpowx_acc(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzPowx: y[i] = a[i] to the power b. */
inline status powx(std::span<const std::complex<double>> a, std::complex<double> b, std::span<std::complex<double>> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpowx(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()))};
}
/** vzPowx at the accuracy given. */
inline status powx(std::span<const std::complex<double>> a, std::complex<double> b, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpowx_acc(int(n), detail::as_c(a.data()), detail::as_c(b), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPowx: y[i] = a[i] to the power b. */
inline status powx(std::span<const float> a, float b, std::span<float> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspowx(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()))};
}
/** vsPowx at the accuracy given. */
inline status powx(std::span<const float> a, float b, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspowx_acc(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPowx: y[i] = a[i] to the power b. */
inline status powx(std::span<const double> a, double b, std::span<double> y) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpowx(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()))};
}
/** vdPowx at the accuracy given. */
inline status powx(std::span<const double> a, double b, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpowx_acc(int(n), detail::as_c(a.data()), b, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsSinCos: (y[i], z[i]) = SinCos(a[i]). */
inline status sincos(std::span<const float> a, std::span<float> y, std::span<float> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssincos(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** vsSinCos at the accuracy given. */
inline status sincos(std::span<const float> a, std::span<float> y, std::span<float> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vssincos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** vsModf: (y[i], z[i]) = Modf(a[i]). */
inline status modf(std::span<const float> a, std::span<float> y, std::span<float> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmodf(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** vsModf at the accuracy given. */
inline status modf(std::span<const float> a, std::span<float> y, std::span<float> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsmodf_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** vdSinCos: (y[i], z[i]) = SinCos(a[i]). */
inline status sincos(std::span<const double> a, std::span<double> y, std::span<double> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsincos(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** vdSinCos at the accuracy given. */
inline status sincos(std::span<const double> a, std::span<double> y, std::span<double> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdsincos_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** vdModf: (y[i], z[i]) = Modf(a[i]). */
inline status modf(std::span<const double> a, std::span<double> y, std::span<double> z) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmodf(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()))};
}
/** vdModf at the accuracy given. */
inline status modf(std::span<const double> a, std::span<double> y, std::span<double> z, accuracy acc) {
    const long n = detail::common_size({a.size(), y.size(), z.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdmodf_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(z.data()), static_cast<int>(acc))};
}
/** vsLinearFrac: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb). */
inline status linearfrac(std::span<const float> a, std::span<const float> b, float scalea, float shifta, float scaleb, float shiftb, std::span<float> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslinearfrac(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()))};
}
/** vsLinearFrac at the accuracy given. */
inline status linearfrac(std::span<const float> a, std::span<const float> b, float scalea, float shifta, float scaleb, float shiftb, std::span<float> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vslinearfrac_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdLinearFrac: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb). */
inline status linearfrac(std::span<const double> a, std::span<const double> b, double scalea, double shifta, double scaleb, double shiftb, std::span<double> y) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlinearfrac(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()))};
}
/** vdLinearFrac at the accuracy given. */
inline status linearfrac(std::span<const double> a, std::span<const double> b, double scalea, double shifta, double scaleb, double shiftb, std::span<double> y, accuracy acc) {
    const long n = detail::common_size({a.size(), b.size(), y.size()});
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdlinearfrac_acc(int(n), detail::as_c(a.data()), detail::as_c(b.data()), scalea, shifta, scaleb, shiftb, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPackI: y[i] = a[i*incra]. */
inline status packi(std::span<const float> a, int incra, std::span<float> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspacki(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** vsPackI at the accuracy given. */
inline status packi(std::span<const float> a, int incra, std::span<float> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspacki_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPackI: y[i] = a[i*incra]. */
inline status packi(std::span<const double> a, int incra, std::span<double> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpacki(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** vdPackI at the accuracy given. */
inline status packi(std::span<const double> a, int incra, std::span<double> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpacki_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcPackI: y[i] = a[i*incra]. */
inline status packi(std::span<const std::complex<float>> a, int incra, std::span<std::complex<float>> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpacki(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** vcPackI at the accuracy given. */
inline status packi(std::span<const std::complex<float>> a, int incra, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpacki_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzPackI: y[i] = a[i*incra]. */
inline status packi(std::span<const std::complex<double>> a, int incra, std::span<std::complex<double>> y) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpacki(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()))};
}
/** vzPackI at the accuracy given. */
inline status packi(std::span<const std::complex<double>> a, int incra, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packi(a, incra, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpacki_acc(int(n), detail::as_c(a.data()), incra, detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPackM: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const float> a, std::span<const int> ma, std::span<float> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspackm(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** vsPackM at the accuracy given. */
inline status packm(std::span<const float> a, std::span<const int> ma, std::span<float> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspackm_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPackM: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const double> a, std::span<const int> ma, std::span<double> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpackm(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** vdPackM at the accuracy given. */
inline status packm(std::span<const double> a, std::span<const int> ma, std::span<double> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcPackM: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const std::complex<float>> a, std::span<const int> ma, std::span<std::complex<float>> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpackm(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** vcPackM at the accuracy given. */
inline status packm(std::span<const std::complex<float>> a, std::span<const int> ma, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzPackM: the elements of a whose ma[i] is non-zero, packed into y. */
inline status packm(std::span<const std::complex<double>> a, std::span<const int> ma, std::span<std::complex<double>> y) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpackm(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()))};
}
/** vzPackM at the accuracy given. */
inline status packm(std::span<const std::complex<double>> a, std::span<const int> ma, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packm(a, ma, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(ma.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsPackV: y[i] = a[ia[i]]. */
inline status packv(std::span<const float> a, std::span<const int> ia, std::span<float> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspackv(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** vsPackV at the accuracy given. */
inline status packv(std::span<const float> a, std::span<const int> ia, std::span<float> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vspackv_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vdPackV: y[i] = a[ia[i]]. */
inline status packv(std::span<const double> a, std::span<const int> ia, std::span<double> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpackv(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** vdPackV at the accuracy given. */
inline status packv(std::span<const double> a, std::span<const int> ia, std::span<double> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vcPackV: y[i] = a[ia[i]]. */
inline status packv(std::span<const std::complex<float>> a, std::span<const int> ia, std::span<std::complex<float>> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpackv(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** vcPackV at the accuracy given. */
inline status packv(std::span<const std::complex<float>> a, std::span<const int> ia, std::span<std::complex<float>> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vzPackV: y[i] = a[ia[i]]. */
inline status packv(std::span<const std::complex<double>> a, std::span<const int> ia, std::span<std::complex<double>> y) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpackv(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()))};
}
/** vzPackV at the accuracy given. */
inline status packv(std::span<const std::complex<double>> a, std::span<const int> ia, std::span<std::complex<double>> y, accuracy acc) {
    const long n = detail::count_packv(a, ia, y);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(ia.data()), detail::as_c(y.data()), static_cast<int>(acc))};
}
/** vsUnpackI: y[i*incry] = a[i]. */
inline status unpacki(std::span<const float> a, std::span<float> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpacki(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** vsUnpackI at the accuracy given. */
inline status unpacki(std::span<const float> a, std::span<float> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpacki_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** vdUnpackI: y[i*incry] = a[i]. */
inline status unpacki(std::span<const double> a, std::span<double> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpacki(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** vdUnpackI at the accuracy given. */
inline status unpacki(std::span<const double> a, std::span<double> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpacki_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** vcUnpackI: y[i*incry] = a[i]. */
inline status unpacki(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpacki(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** vcUnpackI at the accuracy given. */
inline status unpacki(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpacki_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** vzUnpackI: y[i*incry] = a[i]. */
inline status unpacki(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, int incry) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpacki(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry)};
}
/** vzUnpackI at the accuracy given. */
inline status unpacki(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, int incry, accuracy acc) {
    const long n = detail::count_unpacki(a, y, incry);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpacki_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), incry, static_cast<int>(acc))};
}
/** vsUnpackM: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const float> a, std::span<float> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpackm(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** vsUnpackM at the accuracy given. */
inline status unpackm(std::span<const float> a, std::span<float> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** vdUnpackM: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const double> a, std::span<double> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpackm(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** vdUnpackM at the accuracy given. */
inline status unpackm(std::span<const double> a, std::span<double> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** vcUnpackM: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpackm(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** vcUnpackM at the accuracy given. */
inline status unpackm(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** vzUnpackM: y[i] = a[next] where my[i] is non-zero, in order. */
inline status unpackm(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> my) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpackm(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()))};
}
/** vzUnpackM at the accuracy given. */
inline status unpackm(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> my, accuracy acc) {
    const long n = detail::count_unpackm(a, y, my);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpackm_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(my.data()), static_cast<int>(acc))};
}
/** vsUnpackV: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const float> a, std::span<float> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpackv(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** vsUnpackV at the accuracy given. */
inline status unpackv(std::span<const float> a, std::span<float> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vsunpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** vdUnpackV: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const double> a, std::span<double> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpackv(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** vdUnpackV at the accuracy given. */
inline status unpackv(std::span<const double> a, std::span<double> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vdunpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** vcUnpackV: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpackv(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** vcUnpackV at the accuracy given. */
inline status unpackv(std::span<const std::complex<float>> a, std::span<std::complex<float>> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vcunpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}
/** vzUnpackV: y[iy[i]] = a[i]. */
inline status unpackv(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> iy) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpackv(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()))};
}
/** vzUnpackV at the accuracy given. */
inline status unpackv(std::span<const std::complex<double>> a, std::span<std::complex<double>> y, std::span<const int> iy, accuracy acc) {
    const long n = detail::count_unpackv(a, y, iy);
    return n < 0 ? status{static_cast<int>(n)} : status{brenn_vzunpackv_acc(int(n), detail::as_c(a.data()), detail::as_c(y.data()), detail::as_c(iy.data()), static_cast<int>(acc))};
}

} // namespace brenn::vm

#endif
