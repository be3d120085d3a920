/** @file brenn_vm_entries.h
 * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.
 * The checked entries of every vector-math row: brenn_vm_<fn>_<t>() at the
 * thread's accuracy and brenn_vm_<fn>_<t>_acc() at the accuracy given (BRENN_LA,
 * BRENN_HA, BRENN_EP); <t> is f32, f64, c64 or c128. Each returns BRENN_OK, the last element status of the call
 * (BRENN_STATUS_DOMAIN .. BRENN_STATUS_UNDERFLOW) or a refusal (BRENN_ERR_*); see
 * brenn_vm.h for the rules they share. */
#ifndef BRENN_VM_ENTRIES_H
#define BRENN_VM_ENTRIES_H

#include "brenn_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @brief Ceil, float: y[i] = the least integer not below a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ceil_f32(int n, const float* a, float* y);
/** @brief Ceil, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ceil_f32 */
int brenn_vm_ceil_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Floor, float: y[i] = the greatest integer not above a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_floor_f32(int n, const float* a, float* y);
/** @brief Floor, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_floor_f32 */
int brenn_vm_floor_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Frac, float: y[i] = a[i] less its integer part, with a[i]'s sign, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_frac_f32(int n, const float* a, float* y);
/** @brief Frac, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_frac_f32 */
int brenn_vm_frac_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief NearbyInt, float: y[i] = a[i] rounded to an integer in the current mode, no inexact flag, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_nearbyint_f32(int n, const float* a, float* y);
/** @brief NearbyInt, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_nearbyint_f32 */
int brenn_vm_nearbyint_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Rint, float: y[i] = a[i] rounded to an integer in the current rounding mode, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_rint_f32(int n, const float* a, float* y);
/** @brief Rint, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_rint_f32 */
int brenn_vm_rint_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Round, float: y[i] = a[i] rounded to the nearest integer, halves away from 0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_round_f32(int n, const float* a, float* y);
/** @brief Round, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_round_f32 */
int brenn_vm_round_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Trunc, float: y[i] = a[i] rounded toward 0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_trunc_f32(int n, const float* a, float* y);
/** @brief Trunc, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_trunc_f32 */
int brenn_vm_trunc_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Abs, float: y[i] = |a[i]|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_abs_f32(int n, const float* a, float* y);
/** @brief Abs, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_abs_f32 */
int brenn_vm_abs_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Inv, float: y[i] = 1 / a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_inv_f32(int n, const float* a, float* y);
/** @brief Inv, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_inv_f32 */
int brenn_vm_inv_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sqrt, float: y[i] = the square root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqrt_f32(int n, const float* a, float* y);
/** @brief Sqrt, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqrt_f32 */
int brenn_vm_sqrt_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief InvSqrt, float: y[i] = 1 / sqrt(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_invsqrt_f32(int n, const float* a, float* y);
/** @brief InvSqrt, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_invsqrt_f32 */
int brenn_vm_invsqrt_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Cbrt, float: y[i] = the cube root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cbrt_f32(int n, const float* a, float* y);
/** @brief Cbrt, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cbrt_f32 */
int brenn_vm_cbrt_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief InvCbrt, float: y[i] = 1 / cbrt(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_invcbrt_f32(int n, const float* a, float* y);
/** @brief InvCbrt, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_invcbrt_f32 */
int brenn_vm_invcbrt_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Exp, float: y[i] = e^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp_f32(int n, const float* a, float* y);
/** @brief Exp, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp_f32 */
int brenn_vm_exp_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Ln, float: y[i] = the natural logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ln_f32(int n, const float* a, float* y);
/** @brief Ln, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ln_f32 */
int brenn_vm_ln_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Log10, float: y[i] = the base-10 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log10_f32(int n, const float* a, float* y);
/** @brief Log10, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log10_f32 */
int brenn_vm_log10_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Cos, float: y[i] = cos a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cos_f32(int n, const float* a, float* y);
/** @brief Cos, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cos_f32 */
int brenn_vm_cos_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sin, float: y[i] = sin a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sin_f32(int n, const float* a, float* y);
/** @brief Sin, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sin_f32 */
int brenn_vm_sin_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Tan, float: y[i] = tan a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tan_f32(int n, const float* a, float* y);
/** @brief Tan, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tan_f32 */
int brenn_vm_tan_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Acos, float: y[i] = arccos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acos_f32(int n, const float* a, float* y);
/** @brief Acos, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acos_f32 */
int brenn_vm_acos_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Acosh, float: y[i] = arcosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acosh_f32(int n, const float* a, float* y);
/** @brief Acosh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acosh_f32 */
int brenn_vm_acosh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Asin, float: y[i] = arcsin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asin_f32(int n, const float* a, float* y);
/** @brief Asin, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asin_f32 */
int brenn_vm_asin_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Asinh, float: y[i] = arsinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinh_f32(int n, const float* a, float* y);
/** @brief Asinh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinh_f32 */
int brenn_vm_asinh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Atan, float: y[i] = arctan a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan_f32(int n, const float* a, float* y);
/** @brief Atan, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan_f32 */
int brenn_vm_atan_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Atanh, float: y[i] = artanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanh_f32(int n, const float* a, float* y);
/** @brief Atanh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanh_f32 */
int brenn_vm_atanh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Cosh, float: y[i] = cosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosh_f32(int n, const float* a, float* y);
/** @brief Cosh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosh_f32 */
int brenn_vm_cosh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sinh, float: y[i] = sinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinh_f32(int n, const float* a, float* y);
/** @brief Sinh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinh_f32 */
int brenn_vm_sinh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Tanh, float: y[i] = tanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanh_f32(int n, const float* a, float* y);
/** @brief Tanh, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanh_f32 */
int brenn_vm_tanh_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Erf, float: y[i] = erf a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erf_f32(int n, const float* a, float* y);
/** @brief Erf, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erf_f32 */
int brenn_vm_erf_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Erfc, float: y[i] = 1 - erf a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfc_f32(int n, const float* a, float* y);
/** @brief Erfc, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfc_f32 */
int brenn_vm_erfc_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief ErfInv, float: y[i] = the inverse of erf at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfinv_f32(int n, const float* a, float* y);
/** @brief ErfInv, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfinv_f32 */
int brenn_vm_erfinv_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sqr, float: y[i] = a[i]^2, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqr_f32(int n, const float* a, float* y);
/** @brief Sqr, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqr_f32 */
int brenn_vm_sqr_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Expm1, float: y[i] = e^a[i] - 1, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_expm1_f32(int n, const float* a, float* y);
/** @brief Expm1, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_expm1_f32 */
int brenn_vm_expm1_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Log1p, float: y[i] = ln(1 + a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log1p_f32(int n, const float* a, float* y);
/** @brief Log1p, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log1p_f32 */
int brenn_vm_log1p_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Pow3o2, float: y[i] = a[i]^(3/2), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow3o2_f32(int n, const float* a, float* y);
/** @brief Pow3o2, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow3o2_f32 */
int brenn_vm_pow3o2_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Pow2o3, float: y[i] = a[i]^(2/3), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow2o3_f32(int n, const float* a, float* y);
/** @brief Pow2o3, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow2o3_f32 */
int brenn_vm_pow2o3_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief ErfcInv, float: y[i] = the inverse of erfc at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfcinv_f32(int n, const float* a, float* y);
/** @brief ErfcInv, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfcinv_f32 */
int brenn_vm_erfcinv_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief CdfNorm, float: y[i] = the standard normal distribution function at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cdfnorm_f32(int n, const float* a, float* y);
/** @brief CdfNorm, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cdfnorm_f32 */
int brenn_vm_cdfnorm_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief CdfNormInv, float: y[i] = the standard normal quantile of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cdfnorminv_f32(int n, const float* a, float* y);
/** @brief CdfNormInv, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cdfnorminv_f32 */
int brenn_vm_cdfnorminv_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief LGamma, float: y[i] = ln |Gamma(a[i])|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_lgamma_f32(int n, const float* a, float* y);
/** @brief LGamma, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_lgamma_f32 */
int brenn_vm_lgamma_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief TGamma, float: y[i] = Gamma(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tgamma_f32(int n, const float* a, float* y);
/** @brief TGamma, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tgamma_f32 */
int brenn_vm_tgamma_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief ExpInt1, float: y[i] = the exponential integral E1(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_expint1_f32(int n, const float* a, float* y);
/** @brief ExpInt1, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_expint1_f32 */
int brenn_vm_expint1_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sinpi, float: y[i] = sin(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinpi_f32(int n, const float* a, float* y);
/** @brief Sinpi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinpi_f32 */
int brenn_vm_sinpi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Cospi, float: y[i] = cos(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cospi_f32(int n, const float* a, float* y);
/** @brief Cospi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cospi_f32 */
int brenn_vm_cospi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Tanpi, float: y[i] = tan(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanpi_f32(int n, const float* a, float* y);
/** @brief Tanpi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanpi_f32 */
int brenn_vm_tanpi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Acospi, float: y[i] = arccos(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acospi_f32(int n, const float* a, float* y);
/** @brief Acospi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acospi_f32 */
int brenn_vm_acospi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Asinpi, float: y[i] = arcsin(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinpi_f32(int n, const float* a, float* y);
/** @brief Asinpi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinpi_f32 */
int brenn_vm_asinpi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Atanpi, float: y[i] = arctan(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanpi_f32(int n, const float* a, float* y);
/** @brief Atanpi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanpi_f32 */
int brenn_vm_atanpi_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Exp2, float: y[i] = 2^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp2_f32(int n, const float* a, float* y);
/** @brief Exp2, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp2_f32 */
int brenn_vm_exp2_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Exp10, float: y[i] = 10^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp10_f32(int n, const float* a, float* y);
/** @brief Exp10, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp10_f32 */
int brenn_vm_exp10_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Log2, float: y[i] = the base-2 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log2_f32(int n, const float* a, float* y);
/** @brief Log2, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log2_f32 */
int brenn_vm_log2_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Sind, float: y[i] = sin of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sind_f32(int n, const float* a, float* y);
/** @brief Sind, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sind_f32 */
int brenn_vm_sind_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Cosd, float: y[i] = cos of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosd_f32(int n, const float* a, float* y);
/** @brief Cosd, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosd_f32 */
int brenn_vm_cosd_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Tand, float: y[i] = tan of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tand_f32(int n, const float* a, float* y);
/** @brief Tand, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tand_f32 */
int brenn_vm_tand_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Logb, float: y[i] = the binary exponent of a[i], floor(log2 |a[i]|), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_logb_f32(int n, const float* a, float* y);
/** @brief Logb, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_logb_f32 */
int brenn_vm_logb_f32_acc(int n, const float* a, float* y, int accuracy);
/** @brief Ceil, double: y[i] = the least integer not below a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ceil_f64(int n, const double* a, double* y);
/** @brief Ceil, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ceil_f64 */
int brenn_vm_ceil_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Floor, double: y[i] = the greatest integer not above a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_floor_f64(int n, const double* a, double* y);
/** @brief Floor, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_floor_f64 */
int brenn_vm_floor_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Frac, double: y[i] = a[i] less its integer part, with a[i]'s sign, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_frac_f64(int n, const double* a, double* y);
/** @brief Frac, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_frac_f64 */
int brenn_vm_frac_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief NearbyInt, double: y[i] = a[i] rounded to an integer in the current mode, no inexact flag, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_nearbyint_f64(int n, const double* a, double* y);
/** @brief NearbyInt, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_nearbyint_f64 */
int brenn_vm_nearbyint_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Rint, double: y[i] = a[i] rounded to an integer in the current rounding mode, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_rint_f64(int n, const double* a, double* y);
/** @brief Rint, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_rint_f64 */
int brenn_vm_rint_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Round, double: y[i] = a[i] rounded to the nearest integer, halves away from 0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_round_f64(int n, const double* a, double* y);
/** @brief Round, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_round_f64 */
int brenn_vm_round_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Trunc, double: y[i] = a[i] rounded toward 0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_trunc_f64(int n, const double* a, double* y);
/** @brief Trunc, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_trunc_f64 */
int brenn_vm_trunc_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Abs, double: y[i] = |a[i]|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_abs_f64(int n, const double* a, double* y);
/** @brief Abs, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_abs_f64 */
int brenn_vm_abs_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Inv, double: y[i] = 1 / a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_inv_f64(int n, const double* a, double* y);
/** @brief Inv, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_inv_f64 */
int brenn_vm_inv_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sqrt, double: y[i] = the square root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqrt_f64(int n, const double* a, double* y);
/** @brief Sqrt, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqrt_f64 */
int brenn_vm_sqrt_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief InvSqrt, double: y[i] = 1 / sqrt(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_invsqrt_f64(int n, const double* a, double* y);
/** @brief InvSqrt, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_invsqrt_f64 */
int brenn_vm_invsqrt_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cbrt, double: y[i] = the cube root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cbrt_f64(int n, const double* a, double* y);
/** @brief Cbrt, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cbrt_f64 */
int brenn_vm_cbrt_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief InvCbrt, double: y[i] = 1 / cbrt(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_invcbrt_f64(int n, const double* a, double* y);
/** @brief InvCbrt, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_invcbrt_f64 */
int brenn_vm_invcbrt_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Exp, double: y[i] = e^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp_f64(int n, const double* a, double* y);
/** @brief Exp, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp_f64 */
int brenn_vm_exp_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Ln, double: y[i] = the natural logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ln_f64(int n, const double* a, double* y);
/** @brief Ln, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ln_f64 */
int brenn_vm_ln_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Log10, double: y[i] = the base-10 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log10_f64(int n, const double* a, double* y);
/** @brief Log10, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log10_f64 */
int brenn_vm_log10_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cos, double: y[i] = cos a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cos_f64(int n, const double* a, double* y);
/** @brief Cos, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cos_f64 */
int brenn_vm_cos_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sin, double: y[i] = sin a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sin_f64(int n, const double* a, double* y);
/** @brief Sin, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sin_f64 */
int brenn_vm_sin_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Tan, double: y[i] = tan a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tan_f64(int n, const double* a, double* y);
/** @brief Tan, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tan_f64 */
int brenn_vm_tan_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Acos, double: y[i] = arccos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acos_f64(int n, const double* a, double* y);
/** @brief Acos, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acos_f64 */
int brenn_vm_acos_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Acosh, double: y[i] = arcosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acosh_f64(int n, const double* a, double* y);
/** @brief Acosh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acosh_f64 */
int brenn_vm_acosh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Asin, double: y[i] = arcsin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asin_f64(int n, const double* a, double* y);
/** @brief Asin, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asin_f64 */
int brenn_vm_asin_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Asinh, double: y[i] = arsinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinh_f64(int n, const double* a, double* y);
/** @brief Asinh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinh_f64 */
int brenn_vm_asinh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Atan, double: y[i] = arctan a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan_f64(int n, const double* a, double* y);
/** @brief Atan, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan_f64 */
int brenn_vm_atan_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Atanh, double: y[i] = artanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanh_f64(int n, const double* a, double* y);
/** @brief Atanh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanh_f64 */
int brenn_vm_atanh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cosh, double: y[i] = cosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosh_f64(int n, const double* a, double* y);
/** @brief Cosh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosh_f64 */
int brenn_vm_cosh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sinh, double: y[i] = sinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinh_f64(int n, const double* a, double* y);
/** @brief Sinh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinh_f64 */
int brenn_vm_sinh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Tanh, double: y[i] = tanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanh_f64(int n, const double* a, double* y);
/** @brief Tanh, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanh_f64 */
int brenn_vm_tanh_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Erf, double: y[i] = erf a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erf_f64(int n, const double* a, double* y);
/** @brief Erf, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erf_f64 */
int brenn_vm_erf_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Erfc, double: y[i] = 1 - erf a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfc_f64(int n, const double* a, double* y);
/** @brief Erfc, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfc_f64 */
int brenn_vm_erfc_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief ErfInv, double: y[i] = the inverse of erf at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfinv_f64(int n, const double* a, double* y);
/** @brief ErfInv, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfinv_f64 */
int brenn_vm_erfinv_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sqr, double: y[i] = a[i]^2, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqr_f64(int n, const double* a, double* y);
/** @brief Sqr, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqr_f64 */
int brenn_vm_sqr_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Expm1, double: y[i] = e^a[i] - 1, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_expm1_f64(int n, const double* a, double* y);
/** @brief Expm1, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_expm1_f64 */
int brenn_vm_expm1_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Log1p, double: y[i] = ln(1 + a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log1p_f64(int n, const double* a, double* y);
/** @brief Log1p, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log1p_f64 */
int brenn_vm_log1p_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Pow3o2, double: y[i] = a[i]^(3/2), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow3o2_f64(int n, const double* a, double* y);
/** @brief Pow3o2, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow3o2_f64 */
int brenn_vm_pow3o2_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Pow2o3, double: y[i] = a[i]^(2/3), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow2o3_f64(int n, const double* a, double* y);
/** @brief Pow2o3, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow2o3_f64 */
int brenn_vm_pow2o3_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief ErfcInv, double: y[i] = the inverse of erfc at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_erfcinv_f64(int n, const double* a, double* y);
/** @brief ErfcInv, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_erfcinv_f64 */
int brenn_vm_erfcinv_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief CdfNorm, double: y[i] = the standard normal distribution function at a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cdfnorm_f64(int n, const double* a, double* y);
/** @brief CdfNorm, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cdfnorm_f64 */
int brenn_vm_cdfnorm_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief CdfNormInv, double: y[i] = the standard normal quantile of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cdfnorminv_f64(int n, const double* a, double* y);
/** @brief CdfNormInv, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cdfnorminv_f64 */
int brenn_vm_cdfnorminv_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief LGamma, double: y[i] = ln |Gamma(a[i])|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_lgamma_f64(int n, const double* a, double* y);
/** @brief LGamma, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_lgamma_f64 */
int brenn_vm_lgamma_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief TGamma, double: y[i] = Gamma(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tgamma_f64(int n, const double* a, double* y);
/** @brief TGamma, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tgamma_f64 */
int brenn_vm_tgamma_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief ExpInt1, double: y[i] = the exponential integral E1(a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_expint1_f64(int n, const double* a, double* y);
/** @brief ExpInt1, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_expint1_f64 */
int brenn_vm_expint1_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sinpi, double: y[i] = sin(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinpi_f64(int n, const double* a, double* y);
/** @brief Sinpi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinpi_f64 */
int brenn_vm_sinpi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cospi, double: y[i] = cos(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cospi_f64(int n, const double* a, double* y);
/** @brief Cospi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cospi_f64 */
int brenn_vm_cospi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Tanpi, double: y[i] = tan(pi a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanpi_f64(int n, const double* a, double* y);
/** @brief Tanpi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanpi_f64 */
int brenn_vm_tanpi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Acospi, double: y[i] = arccos(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acospi_f64(int n, const double* a, double* y);
/** @brief Acospi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acospi_f64 */
int brenn_vm_acospi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Asinpi, double: y[i] = arcsin(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinpi_f64(int n, const double* a, double* y);
/** @brief Asinpi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinpi_f64 */
int brenn_vm_asinpi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Atanpi, double: y[i] = arctan(a[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanpi_f64(int n, const double* a, double* y);
/** @brief Atanpi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanpi_f64 */
int brenn_vm_atanpi_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Exp2, double: y[i] = 2^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp2_f64(int n, const double* a, double* y);
/** @brief Exp2, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp2_f64 */
int brenn_vm_exp2_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Exp10, double: y[i] = 10^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp10_f64(int n, const double* a, double* y);
/** @brief Exp10, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp10_f64 */
int brenn_vm_exp10_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Log2, double: y[i] = the base-2 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log2_f64(int n, const double* a, double* y);
/** @brief Log2, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log2_f64 */
int brenn_vm_log2_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Sind, double: y[i] = sin of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sind_f64(int n, const double* a, double* y);
/** @brief Sind, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sind_f64 */
int brenn_vm_sind_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cosd, double: y[i] = cos of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosd_f64(int n, const double* a, double* y);
/** @brief Cosd, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosd_f64 */
int brenn_vm_cosd_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Tand, double: y[i] = tan of a[i] degrees, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tand_f64(int n, const double* a, double* y);
/** @brief Tand, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tand_f64 */
int brenn_vm_tand_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Logb, double: y[i] = the binary exponent of a[i], floor(log2 |a[i]|), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_logb_f64(int n, const double* a, double* y);
/** @brief Logb, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_logb_f64 */
int brenn_vm_logb_f64_acc(int n, const double* a, double* y, int accuracy);
/** @brief Cos, complex float: y[i] = cos a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cos_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Cos, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cos_c64 */
int brenn_vm_cos_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Sin, complex float: y[i] = sin a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sin_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Sin, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sin_c64 */
int brenn_vm_sin_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Tan, complex float: y[i] = tan a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tan_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Tan, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tan_c64 */
int brenn_vm_tan_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Cosh, complex float: y[i] = cosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Cosh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosh_c64 */
int brenn_vm_cosh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Sinh, complex float: y[i] = sinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Sinh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinh_c64 */
int brenn_vm_sinh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Tanh, complex float: y[i] = tanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Tanh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanh_c64 */
int brenn_vm_tanh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Acos, complex float: y[i] = arccos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acos_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Acos, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acos_c64 */
int brenn_vm_acos_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Asin, complex float: y[i] = arcsin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asin_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Asin, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asin_c64 */
int brenn_vm_asin_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Atan, complex float: y[i] = arctan a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Atan, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan_c64 */
int brenn_vm_atan_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Acosh, complex float: y[i] = arcosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acosh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Acosh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acosh_c64 */
int brenn_vm_acosh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Asinh, complex float: y[i] = arsinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Asinh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinh_c64 */
int brenn_vm_asinh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Atanh, complex float: y[i] = artanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanh_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Atanh, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanh_c64 */
int brenn_vm_atanh_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Exp, complex float: y[i] = e^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Exp, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp_c64 */
int brenn_vm_exp_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Ln, complex float: y[i] = the natural logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ln_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Ln, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ln_c64 */
int brenn_vm_ln_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Log10, complex float: y[i] = the base-10 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log10_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Log10, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log10_c64 */
int brenn_vm_log10_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Sqrt, complex float: y[i] = the square root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqrt_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Sqrt, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqrt_c64 */
int brenn_vm_sqrt_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Conj, complex float: y[i] = the complex conjugate of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_conj_c64(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief Conj, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_conj_c64 */
int brenn_vm_conj_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief Cos, complex double: y[i] = cos a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cos_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Cos, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cos_c128 */
int brenn_vm_cos_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Sin, complex double: y[i] = sin a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sin_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Sin, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sin_c128 */
int brenn_vm_sin_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Tan, complex double: y[i] = tan a[i] (radians), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tan_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Tan, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tan_c128 */
int brenn_vm_tan_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Cosh, complex double: y[i] = cosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cosh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Cosh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cosh_c128 */
int brenn_vm_cosh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Sinh, complex double: y[i] = sinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sinh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Sinh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sinh_c128 */
int brenn_vm_sinh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Tanh, complex double: y[i] = tanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_tanh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Tanh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_tanh_c128 */
int brenn_vm_tanh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Acos, complex double: y[i] = arccos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acos_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Acos, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acos_c128 */
int brenn_vm_acos_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Asin, complex double: y[i] = arcsin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asin_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Asin, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asin_c128 */
int brenn_vm_asin_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Atan, complex double: y[i] = arctan a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Atan, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan_c128 */
int brenn_vm_atan_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Acosh, complex double: y[i] = arcosh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_acosh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Acosh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_acosh_c128 */
int brenn_vm_acosh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Asinh, complex double: y[i] = arsinh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_asinh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Asinh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_asinh_c128 */
int brenn_vm_asinh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Atanh, complex double: y[i] = artanh a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atanh_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Atanh, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atanh_c128 */
int brenn_vm_atanh_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Exp, complex double: y[i] = e^a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_exp_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Exp, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_exp_c128 */
int brenn_vm_exp_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Ln, complex double: y[i] = the natural logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_ln_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Ln, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_ln_c128 */
int brenn_vm_ln_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Log10, complex double: y[i] = the base-10 logarithm of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_log10_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Log10, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_log10_c128 */
int brenn_vm_log10_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Sqrt, complex double: y[i] = the square root of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sqrt_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Sqrt, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sqrt_c128 */
int brenn_vm_sqrt_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief Conj, complex double: y[i] = the complex conjugate of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_conj_c128(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief Conj, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_conj_c128 */
int brenn_vm_conj_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief CIS, complex float: y[i] = cos a[i] + i sin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cis_c64(int n, const float* a, BrennComplex8* y);
/** @brief CIS, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cis_c64 */
int brenn_vm_cis_c64_acc(int n, const float* a, BrennComplex8* y, int accuracy);
/** @brief CIS, complex double: y[i] = cos a[i] + i sin a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_cis_c128(int n, const double* a, BrennComplex16* y);
/** @brief CIS, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_cis_c128 */
int brenn_vm_cis_c128_acc(int n, const double* a, BrennComplex16* y, int accuracy);
/** @brief Abs, complex float: y[i] = |a[i]|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_abs_c64(int n, const BrennComplex8* a, float* y);
/** @brief Abs, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_abs_c64 */
int brenn_vm_abs_c64_acc(int n, const BrennComplex8* a, float* y, int accuracy);
/** @brief Arg, complex float: y[i] = the argument (phase angle) of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_arg_c64(int n, const BrennComplex8* a, float* y);
/** @brief Arg, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_arg_c64 */
int brenn_vm_arg_c64_acc(int n, const BrennComplex8* a, float* y, int accuracy);
/** @brief Abs, complex double: y[i] = |a[i]|, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_abs_c128(int n, const BrennComplex16* a, double* y);
/** @brief Abs, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_abs_c128 */
int brenn_vm_abs_c128_acc(int n, const BrennComplex16* a, double* y, int accuracy);
/** @brief Arg, complex double: y[i] = the argument (phase angle) of a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_arg_c128(int n, const BrennComplex16* a, double* y);
/** @brief Arg, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_arg_c128 */
int brenn_vm_arg_c128_acc(int n, const BrennComplex16* a, double* y, int accuracy);
/** @brief Div, float: y[i] = a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_div_f32(int n, const float* a, const float* b, float* y);
/** @brief Div, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_div_f32 */
int brenn_vm_div_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Pow, float: y[i] = a[i]^b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow_f32(int n, const float* a, const float* b, float* y);
/** @brief Pow, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow_f32 */
int brenn_vm_pow_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Atan2, float: y[i] = the angle of the point (b[i], a[i]), atan2(a[i], b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan2_f32(int n, const float* a, const float* b, float* y);
/** @brief Atan2, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan2_f32 */
int brenn_vm_atan2_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Hypot, float: y[i] = sqrt(a[i]^2 + b[i]^2), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_hypot_f32(int n, const float* a, const float* b, float* y);
/** @brief Hypot, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_hypot_f32 */
int brenn_vm_hypot_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Add, float: y[i] = a[i] + b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_add_f32(int n, const float* a, const float* b, float* y);
/** @brief Add, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_add_f32 */
int brenn_vm_add_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Sub, float: y[i] = a[i] - b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sub_f32(int n, const float* a, const float* b, float* y);
/** @brief Sub, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sub_f32 */
int brenn_vm_sub_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Mul, float: y[i] = a[i] * b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mul_f32(int n, const float* a, const float* b, float* y);
/** @brief Mul, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mul_f32 */
int brenn_vm_mul_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Atan2pi, float: y[i] = atan2(a[i], b[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan2pi_f32(int n, const float* a, const float* b, float* y);
/** @brief Atan2pi, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan2pi_f32 */
int brenn_vm_atan2pi_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief CopySign, float: y[i] = |a[i]| with the sign of b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_copysign_f32(int n, const float* a, const float* b, float* y);
/** @brief CopySign, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_copysign_f32 */
int brenn_vm_copysign_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief NextAfter, float: y[i] = the next number after a[i] toward b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_nextafter_f32(int n, const float* a, const float* b, float* y);
/** @brief NextAfter, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_nextafter_f32 */
int brenn_vm_nextafter_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Fdim, float: y[i] = a[i] - b[i] when positive, else +0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fdim_f32(int n, const float* a, const float* b, float* y);
/** @brief Fdim, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fdim_f32 */
int brenn_vm_fdim_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Fmax, float: y[i] = the larger of a[i] and b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmax_f32(int n, const float* a, const float* b, float* y);
/** @brief Fmax, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmax_f32 */
int brenn_vm_fmax_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Fmin, float: y[i] = the smaller of a[i] and b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmin_f32(int n, const float* a, const float* b, float* y);
/** @brief Fmin, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmin_f32 */
int brenn_vm_fmin_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief MaxMag, float: y[i] = of a[i] and b[i] the larger in magnitude, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_maxmag_f32(int n, const float* a, const float* b, float* y);
/** @brief MaxMag, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_maxmag_f32 */
int brenn_vm_maxmag_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief MinMag, float: y[i] = of a[i] and b[i] the smaller in magnitude, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_minmag_f32(int n, const float* a, const float* b, float* y);
/** @brief MinMag, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_minmag_f32 */
int brenn_vm_minmag_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Powr, float: y[i] = a[i]^b[i], as e^(b[i] ln a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powr_f32(int n, const float* a, const float* b, float* y);
/** @brief Powr, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powr_f32 */
int brenn_vm_powr_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Remainder, float: y[i] = a[i] - b[i] n, n the nearest integer to a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_remainder_f32(int n, const float* a, const float* b, float* y);
/** @brief Remainder, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_remainder_f32 */
int brenn_vm_remainder_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Fmod, float: y[i] = a[i] - b[i] trunc(a[i] / b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmod_f32(int n, const float* a, const float* b, float* y);
/** @brief Fmod, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmod_f32 */
int brenn_vm_fmod_f32_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief Div, double: y[i] = a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_div_f64(int n, const double* a, const double* b, double* y);
/** @brief Div, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_div_f64 */
int brenn_vm_div_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Pow, double: y[i] = a[i]^b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow_f64(int n, const double* a, const double* b, double* y);
/** @brief Pow, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow_f64 */
int brenn_vm_pow_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Atan2, double: y[i] = the angle of the point (b[i], a[i]), atan2(a[i], b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan2_f64(int n, const double* a, const double* b, double* y);
/** @brief Atan2, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan2_f64 */
int brenn_vm_atan2_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Hypot, double: y[i] = sqrt(a[i]^2 + b[i]^2), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_hypot_f64(int n, const double* a, const double* b, double* y);
/** @brief Hypot, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_hypot_f64 */
int brenn_vm_hypot_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Add, double: y[i] = a[i] + b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_add_f64(int n, const double* a, const double* b, double* y);
/** @brief Add, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_add_f64 */
int brenn_vm_add_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Sub, double: y[i] = a[i] - b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sub_f64(int n, const double* a, const double* b, double* y);
/** @brief Sub, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sub_f64 */
int brenn_vm_sub_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Mul, double: y[i] = a[i] * b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mul_f64(int n, const double* a, const double* b, double* y);
/** @brief Mul, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mul_f64 */
int brenn_vm_mul_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Atan2pi, double: y[i] = atan2(a[i], b[i]) / pi, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_atan2pi_f64(int n, const double* a, const double* b, double* y);
/** @brief Atan2pi, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_atan2pi_f64 */
int brenn_vm_atan2pi_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief CopySign, double: y[i] = |a[i]| with the sign of b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_copysign_f64(int n, const double* a, const double* b, double* y);
/** @brief CopySign, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_copysign_f64 */
int brenn_vm_copysign_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief NextAfter, double: y[i] = the next number after a[i] toward b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_nextafter_f64(int n, const double* a, const double* b, double* y);
/** @brief NextAfter, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_nextafter_f64 */
int brenn_vm_nextafter_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Fdim, double: y[i] = a[i] - b[i] when positive, else +0, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fdim_f64(int n, const double* a, const double* b, double* y);
/** @brief Fdim, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fdim_f64 */
int brenn_vm_fdim_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Fmax, double: y[i] = the larger of a[i] and b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmax_f64(int n, const double* a, const double* b, double* y);
/** @brief Fmax, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmax_f64 */
int brenn_vm_fmax_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Fmin, double: y[i] = the smaller of a[i] and b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmin_f64(int n, const double* a, const double* b, double* y);
/** @brief Fmin, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmin_f64 */
int brenn_vm_fmin_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief MaxMag, double: y[i] = of a[i] and b[i] the larger in magnitude, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_maxmag_f64(int n, const double* a, const double* b, double* y);
/** @brief MaxMag, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_maxmag_f64 */
int brenn_vm_maxmag_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief MinMag, double: y[i] = of a[i] and b[i] the smaller in magnitude, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_minmag_f64(int n, const double* a, const double* b, double* y);
/** @brief MinMag, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_minmag_f64 */
int brenn_vm_minmag_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Powr, double: y[i] = a[i]^b[i], as e^(b[i] ln a[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powr_f64(int n, const double* a, const double* b, double* y);
/** @brief Powr, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powr_f64 */
int brenn_vm_powr_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Remainder, double: y[i] = a[i] - b[i] n, n the nearest integer to a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_remainder_f64(int n, const double* a, const double* b, double* y);
/** @brief Remainder, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_remainder_f64 */
int brenn_vm_remainder_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Fmod, double: y[i] = a[i] - b[i] trunc(a[i] / b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_fmod_f64(int n, const double* a, const double* b, double* y);
/** @brief Fmod, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_fmod_f64 */
int brenn_vm_fmod_f64_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief Div, complex float: y[i] = a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_div_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief Div, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_div_c64 */
int brenn_vm_div_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief Pow, complex float: y[i] = a[i]^b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief Pow, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow_c64 */
int brenn_vm_pow_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief Add, complex float: y[i] = a[i] + b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_add_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief Add, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_add_c64 */
int brenn_vm_add_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief Sub, complex float: y[i] = a[i] - b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sub_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief Sub, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sub_c64 */
int brenn_vm_sub_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief Mul, complex float: y[i] = a[i] * b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mul_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief Mul, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mul_c64 */
int brenn_vm_mul_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief MulByConj, complex float: y[i] = a[i] * conj(b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mulbyconj_c64(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief MulByConj, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mulbyconj_c64 */
int brenn_vm_mulbyconj_c64_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief Div, complex double: y[i] = a[i] / b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_div_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief Div, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_div_c128 */
int brenn_vm_div_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief Pow, complex double: y[i] = a[i]^b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_pow_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief Pow, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_pow_c128 */
int brenn_vm_pow_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief Add, complex double: y[i] = a[i] + b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_add_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief Add, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_add_c128 */
int brenn_vm_add_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief Sub, complex double: y[i] = a[i] - b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sub_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief Sub, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sub_c128 */
int brenn_vm_sub_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief Mul, complex double: y[i] = a[i] * b[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mul_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief Mul, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mul_c128 */
int brenn_vm_mul_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief MulByConj, complex double: y[i] = a[i] * conj(b[i]), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_mulbyconj_c128(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief MulByConj, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_mulbyconj_c128 */
int brenn_vm_mulbyconj_c128_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief Powx, complex float: y[i] = a[i]^b, b one scalar, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powx_c64(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** @brief Powx, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powx_c64 */
int brenn_vm_powx_c64_acc(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y, int accuracy);
/** @brief Powx, complex double: y[i] = a[i]^b, b one scalar, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powx_c128(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** @brief Powx, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powx_c128 */
int brenn_vm_powx_c128_acc(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y, int accuracy);
/** @brief Powx, float: y[i] = a[i]^b, b one scalar, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powx_f32(int n, const float* a, float b, float* y);
/** @brief Powx, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powx_f32 */
int brenn_vm_powx_f32_acc(int n, const float* a, float b, float* y, int accuracy);
/** @brief Powx, double: y[i] = a[i]^b, b one scalar, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_powx_f64(int n, const double* a, double b, double* y);
/** @brief Powx, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_powx_f64 */
int brenn_vm_powx_f64_acc(int n, const double* a, double b, double* y, int accuracy);
/** @brief SinCos, float: y[i] = sin a[i], z[i] = cos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sincos_f32(int n, const float* a, float* y, float* z);
/** @brief SinCos, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sincos_f32 */
int brenn_vm_sincos_f32_acc(int n, const float* a, float* y, float* z, int accuracy);
/** @brief Modf, float: y[i] = the integer part of a[i], z[i] its fraction, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_modf_f32(int n, const float* a, float* y, float* z);
/** @brief Modf, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_modf_f32 */
int brenn_vm_modf_f32_acc(int n, const float* a, float* y, float* z, int accuracy);
/** @brief SinCos, double: y[i] = sin a[i], z[i] = cos a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_sincos_f64(int n, const double* a, double* y, double* z);
/** @brief SinCos, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_sincos_f64 */
int brenn_vm_sincos_f64_acc(int n, const double* a, double* y, double* z, int accuracy);
/** @brief Modf, double: y[i] = the integer part of a[i], z[i] its fraction, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_modf_f64(int n, const double* a, double* y, double* z);
/** @brief Modf, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_modf_f64 */
int brenn_vm_modf_f64_acc(int n, const double* a, double* y, double* z, int accuracy);
/** @brief LinearFrac, float: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_linearfrac_f32(int n, const float* a, const float* b, float scalea, float shifta, float scaleb, float shiftb, float* y);
/** @brief LinearFrac, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_linearfrac_f32 */
int brenn_vm_linearfrac_f32_acc(int n, const float* a, const float* b, float scalea, float shifta, float scaleb, float shiftb, float* y, int accuracy);
/** @brief LinearFrac, double: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb), for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_linearfrac_f64(int n, const double* a, const double* b, double scalea, double shifta, double scaleb, double shiftb, double* y);
/** @brief LinearFrac, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_linearfrac_f64 */
int brenn_vm_linearfrac_f64_acc(int n, const double* a, const double* b, double scalea, double shifta, double scaleb, double shiftb, double* y, int accuracy);
/** @brief PackI, float: y[i] = a[i*incra], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packi_f32(int n, const float* a, int incra, float* y);
/** @brief PackI, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packi_f32 */
int brenn_vm_packi_f32_acc(int n, const float* a, int incra, float* y, int accuracy);
/** @brief PackI, double: y[i] = a[i*incra], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packi_f64(int n, const double* a, int incra, double* y);
/** @brief PackI, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packi_f64 */
int brenn_vm_packi_f64_acc(int n, const double* a, int incra, double* y, int accuracy);
/** @brief PackI, complex float: y[i] = a[i*incra], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packi_c64(int n, const BrennComplex8* a, int incra, BrennComplex8* y);
/** @brief PackI, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packi_c64 */
int brenn_vm_packi_c64_acc(int n, const BrennComplex8* a, int incra, BrennComplex8* y, int accuracy);
/** @brief PackI, complex double: y[i] = a[i*incra], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packi_c128(int n, const BrennComplex16* a, int incra, BrennComplex16* y);
/** @brief PackI, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packi_c128 */
int brenn_vm_packi_c128_acc(int n, const BrennComplex16* a, int incra, BrennComplex16* y, int accuracy);
/** @brief PackM, float: the elements of a whose ma[i] is non-zero, packed into y, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packm_f32(int n, const float* a, const int* ma, float* y);
/** @brief PackM, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packm_f32 */
int brenn_vm_packm_f32_acc(int n, const float* a, const int* ma, float* y, int accuracy);
/** @brief PackM, double: the elements of a whose ma[i] is non-zero, packed into y, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packm_f64(int n, const double* a, const int* ma, double* y);
/** @brief PackM, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packm_f64 */
int brenn_vm_packm_f64_acc(int n, const double* a, const int* ma, double* y, int accuracy);
/** @brief PackM, complex float: the elements of a whose ma[i] is non-zero, packed into y, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packm_c64(int n, const BrennComplex8* a, const int* ma, BrennComplex8* y);
/** @brief PackM, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packm_c64 */
int brenn_vm_packm_c64_acc(int n, const BrennComplex8* a, const int* ma, BrennComplex8* y, int accuracy);
/** @brief PackM, complex double: the elements of a whose ma[i] is non-zero, packed into y, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packm_c128(int n, const BrennComplex16* a, const int* ma, BrennComplex16* y);
/** @brief PackM, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packm_c128 */
int brenn_vm_packm_c128_acc(int n, const BrennComplex16* a, const int* ma, BrennComplex16* y, int accuracy);
/** @brief PackV, float: y[i] = a[ia[i]], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packv_f32(int n, const float* a, const int* ia, float* y);
/** @brief PackV, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packv_f32 */
int brenn_vm_packv_f32_acc(int n, const float* a, const int* ia, float* y, int accuracy);
/** @brief PackV, double: y[i] = a[ia[i]], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packv_f64(int n, const double* a, const int* ia, double* y);
/** @brief PackV, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packv_f64 */
int brenn_vm_packv_f64_acc(int n, const double* a, const int* ia, double* y, int accuracy);
/** @brief PackV, complex float: y[i] = a[ia[i]], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packv_c64(int n, const BrennComplex8* a, const int* ia, BrennComplex8* y);
/** @brief PackV, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packv_c64 */
int brenn_vm_packv_c64_acc(int n, const BrennComplex8* a, const int* ia, BrennComplex8* y, int accuracy);
/** @brief PackV, complex double: y[i] = a[ia[i]], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_packv_c128(int n, const BrennComplex16* a, const int* ia, BrennComplex16* y);
/** @brief PackV, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_packv_c128 */
int brenn_vm_packv_c128_acc(int n, const BrennComplex16* a, const int* ia, BrennComplex16* y, int accuracy);
/** @brief UnpackI, float: y[i*incry] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpacki_f32(int n, const float* a, float* y, int incry);
/** @brief UnpackI, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpacki_f32 */
int brenn_vm_unpacki_f32_acc(int n, const float* a, float* y, int incry, int accuracy);
/** @brief UnpackI, double: y[i*incry] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpacki_f64(int n, const double* a, double* y, int incry);
/** @brief UnpackI, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpacki_f64 */
int brenn_vm_unpacki_f64_acc(int n, const double* a, double* y, int incry, int accuracy);
/** @brief UnpackI, complex float: y[i*incry] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpacki_c64(int n, const BrennComplex8* a, BrennComplex8* y, int incry);
/** @brief UnpackI, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpacki_c64 */
int brenn_vm_unpacki_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, int incry, int accuracy);
/** @brief UnpackI, complex double: y[i*incry] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpacki_c128(int n, const BrennComplex16* a, BrennComplex16* y, int incry);
/** @brief UnpackI, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpacki_c128 */
int brenn_vm_unpacki_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, int incry, int accuracy);
/** @brief UnpackM, float: y[i] = a[next] where my[i] is non-zero, in order, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackm_f32(int n, const float* a, float* y, const int* my);
/** @brief UnpackM, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackm_f32 */
int brenn_vm_unpackm_f32_acc(int n, const float* a, float* y, const int* my, int accuracy);
/** @brief UnpackM, double: y[i] = a[next] where my[i] is non-zero, in order, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackm_f64(int n, const double* a, double* y, const int* my);
/** @brief UnpackM, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackm_f64 */
int brenn_vm_unpackm_f64_acc(int n, const double* a, double* y, const int* my, int accuracy);
/** @brief UnpackM, complex float: y[i] = a[next] where my[i] is non-zero, in order, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackm_c64(int n, const BrennComplex8* a, BrennComplex8* y, const int* my);
/** @brief UnpackM, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackm_c64 */
int brenn_vm_unpackm_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, const int* my, int accuracy);
/** @brief UnpackM, complex double: y[i] = a[next] where my[i] is non-zero, in order, for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackm_c128(int n, const BrennComplex16* a, BrennComplex16* y, const int* my);
/** @brief UnpackM, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackm_c128 */
int brenn_vm_unpackm_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, const int* my, int accuracy);
/** @brief UnpackV, float: y[iy[i]] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackv_f32(int n, const float* a, float* y, const int* iy);
/** @brief UnpackV, float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackv_f32 */
int brenn_vm_unpackv_f32_acc(int n, const float* a, float* y, const int* iy, int accuracy);
/** @brief UnpackV, double: y[iy[i]] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackv_f64(int n, const double* a, double* y, const int* iy);
/** @brief UnpackV, double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackv_f64 */
int brenn_vm_unpackv_f64_acc(int n, const double* a, double* y, const int* iy, int accuracy);
/** @brief UnpackV, complex float: y[iy[i]] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackv_c64(int n, const BrennComplex8* a, BrennComplex8* y, const int* iy);
/** @brief UnpackV, complex float, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackv_c64 */
int brenn_vm_unpackv_c64_acc(int n, const BrennComplex8* a, BrennComplex8* y, const int* iy, int accuracy);
/** @brief UnpackV, complex double: y[iy[i]] = a[i], for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vm_unpackv_c128(int n, const BrennComplex16* a, BrennComplex16* y, const int* iy);
/** @brief UnpackV, complex double, at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vm_unpackv_c128 */
int brenn_vm_unpackv_c128_acc(int n, const BrennComplex16* a, BrennComplex16* y, const int* iy, int accuracy);

#ifdef __cplusplus
}
#endif

#endif
