/** @file brenn_vm_entries.h
 * Generated from frame/rows.def by frontend/gen/gen_vm; do not edit.
 * The checked entries of every vector-math row: brenn_v<t><fn>() at the thread's
 * accuracy and brenn_v<t><fn>_acc() at the accuracy given (BRENN_LA, BRENN_HA,
 * BRENN_EP). Each returns BRENN_OK, the last element status of the call
 * (BRENN_STATUS_DOMAIN .. BRENN_STATUS_UNDERFLOW) or a refusal (BRENN_ERR_*); see
 * brenn_vm.h for the rules they share. */
#ifndef BRENN_VM_ENTRIES_H
#define BRENN_VM_ENTRIES_H

#include "brenn_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/** @brief vsCeil: y[i] = Ceil(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsceil(int n, const float* a, float* y);
/** @brief vsCeil at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsceil */
int brenn_vsceil_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsFloor: y[i] = Floor(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfloor(int n, const float* a, float* y);
/** @brief vsFloor at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfloor */
int brenn_vsfloor_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsFrac: y[i] = Frac(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfrac(int n, const float* a, float* y);
/** @brief vsFrac at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfrac */
int brenn_vsfrac_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsNearbyInt: y[i] = NearbyInt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsnearbyint(int n, const float* a, float* y);
/** @brief vsNearbyInt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsnearbyint */
int brenn_vsnearbyint_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsRint: y[i] = Rint(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsrint(int n, const float* a, float* y);
/** @brief vsRint at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsrint */
int brenn_vsrint_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsRound: y[i] = Round(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsround(int n, const float* a, float* y);
/** @brief vsRound at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsround */
int brenn_vsround_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTrunc: y[i] = Trunc(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstrunc(int n, const float* a, float* y);
/** @brief vsTrunc at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstrunc */
int brenn_vstrunc_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAbs: y[i] = Abs(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsabs(int n, const float* a, float* y);
/** @brief vsAbs at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsabs */
int brenn_vsabs_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsInv: y[i] = Inv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsinv(int n, const float* a, float* y);
/** @brief vsInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsinv */
int brenn_vsinv_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSqrt: y[i] = Sqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssqrt(int n, const float* a, float* y);
/** @brief vsSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssqrt */
int brenn_vssqrt_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsInvSqrt: y[i] = InvSqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsinvsqrt(int n, const float* a, float* y);
/** @brief vsInvSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsinvsqrt */
int brenn_vsinvsqrt_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCbrt: y[i] = Cbrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscbrt(int n, const float* a, float* y);
/** @brief vsCbrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscbrt */
int brenn_vscbrt_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsInvCbrt: y[i] = InvCbrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsinvcbrt(int n, const float* a, float* y);
/** @brief vsInvCbrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsinvcbrt */
int brenn_vsinvcbrt_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsExp: y[i] = Exp(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsexp(int n, const float* a, float* y);
/** @brief vsExp at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsexp */
int brenn_vsexp_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLn: y[i] = Ln(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsln(int n, const float* a, float* y);
/** @brief vsLn at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsln */
int brenn_vsln_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLog10: y[i] = Log10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslog10(int n, const float* a, float* y);
/** @brief vsLog10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslog10 */
int brenn_vslog10_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCos: y[i] = Cos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscos(int n, const float* a, float* y);
/** @brief vsCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscos */
int brenn_vscos_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSin: y[i] = Sin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssin(int n, const float* a, float* y);
/** @brief vsSin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssin */
int brenn_vssin_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTan: y[i] = Tan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstan(int n, const float* a, float* y);
/** @brief vsTan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstan */
int brenn_vstan_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAcos: y[i] = Acos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsacos(int n, const float* a, float* y);
/** @brief vsAcos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsacos */
int brenn_vsacos_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAcosh: y[i] = Acosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsacosh(int n, const float* a, float* y);
/** @brief vsAcosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsacosh */
int brenn_vsacosh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAsin: y[i] = Asin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsasin(int n, const float* a, float* y);
/** @brief vsAsin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsasin */
int brenn_vsasin_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAsinh: y[i] = Asinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsasinh(int n, const float* a, float* y);
/** @brief vsAsinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsasinh */
int brenn_vsasinh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAtan: y[i] = Atan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsatan(int n, const float* a, float* y);
/** @brief vsAtan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsatan */
int brenn_vsatan_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAtanh: y[i] = Atanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsatanh(int n, const float* a, float* y);
/** @brief vsAtanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsatanh */
int brenn_vsatanh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCosh: y[i] = Cosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscosh(int n, const float* a, float* y);
/** @brief vsCosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscosh */
int brenn_vscosh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSinh: y[i] = Sinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssinh(int n, const float* a, float* y);
/** @brief vsSinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssinh */
int brenn_vssinh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTanh: y[i] = Tanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstanh(int n, const float* a, float* y);
/** @brief vsTanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstanh */
int brenn_vstanh_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsErf: y[i] = Erf(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vserf(int n, const float* a, float* y);
/** @brief vsErf at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vserf */
int brenn_vserf_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsErfc: y[i] = Erfc(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vserfc(int n, const float* a, float* y);
/** @brief vsErfc at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vserfc */
int brenn_vserfc_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsErfInv: y[i] = ErfInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vserfinv(int n, const float* a, float* y);
/** @brief vsErfInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vserfinv */
int brenn_vserfinv_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSqr: y[i] = Sqr(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssqr(int n, const float* a, float* y);
/** @brief vsSqr at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssqr */
int brenn_vssqr_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsExpm1: y[i] = Expm1(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsexpm1(int n, const float* a, float* y);
/** @brief vsExpm1 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsexpm1 */
int brenn_vsexpm1_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLog1p: y[i] = Log1p(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslog1p(int n, const float* a, float* y);
/** @brief vsLog1p at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslog1p */
int brenn_vslog1p_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsPow3o2: y[i] = Pow3o2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspow3o2(int n, const float* a, float* y);
/** @brief vsPow3o2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspow3o2 */
int brenn_vspow3o2_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsPow2o3: y[i] = Pow2o3(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspow2o3(int n, const float* a, float* y);
/** @brief vsPow2o3 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspow2o3 */
int brenn_vspow2o3_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsErfcInv: y[i] = ErfcInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vserfcinv(int n, const float* a, float* y);
/** @brief vsErfcInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vserfcinv */
int brenn_vserfcinv_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCdfNorm: y[i] = CdfNorm(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscdfnorm(int n, const float* a, float* y);
/** @brief vsCdfNorm at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscdfnorm */
int brenn_vscdfnorm_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCdfNormInv: y[i] = CdfNormInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscdfnorminv(int n, const float* a, float* y);
/** @brief vsCdfNormInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscdfnorminv */
int brenn_vscdfnorminv_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLGamma: y[i] = LGamma(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslgamma(int n, const float* a, float* y);
/** @brief vsLGamma at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslgamma */
int brenn_vslgamma_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTGamma: y[i] = TGamma(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstgamma(int n, const float* a, float* y);
/** @brief vsTGamma at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstgamma */
int brenn_vstgamma_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsExpInt1: y[i] = ExpInt1(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsexpint1(int n, const float* a, float* y);
/** @brief vsExpInt1 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsexpint1 */
int brenn_vsexpint1_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSinpi: y[i] = Sinpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssinpi(int n, const float* a, float* y);
/** @brief vsSinpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssinpi */
int brenn_vssinpi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCospi: y[i] = Cospi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscospi(int n, const float* a, float* y);
/** @brief vsCospi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscospi */
int brenn_vscospi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTanpi: y[i] = Tanpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstanpi(int n, const float* a, float* y);
/** @brief vsTanpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstanpi */
int brenn_vstanpi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAcospi: y[i] = Acospi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsacospi(int n, const float* a, float* y);
/** @brief vsAcospi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsacospi */
int brenn_vsacospi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAsinpi: y[i] = Asinpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsasinpi(int n, const float* a, float* y);
/** @brief vsAsinpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsasinpi */
int brenn_vsasinpi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsAtanpi: y[i] = Atanpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsatanpi(int n, const float* a, float* y);
/** @brief vsAtanpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsatanpi */
int brenn_vsatanpi_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsExp2: y[i] = Exp2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsexp2(int n, const float* a, float* y);
/** @brief vsExp2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsexp2 */
int brenn_vsexp2_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsExp10: y[i] = Exp10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsexp10(int n, const float* a, float* y);
/** @brief vsExp10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsexp10 */
int brenn_vsexp10_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLog2: y[i] = Log2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslog2(int n, const float* a, float* y);
/** @brief vsLog2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslog2 */
int brenn_vslog2_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsSind: y[i] = Sind(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssind(int n, const float* a, float* y);
/** @brief vsSind at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssind */
int brenn_vssind_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsCosd: y[i] = Cosd(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscosd(int n, const float* a, float* y);
/** @brief vsCosd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscosd */
int brenn_vscosd_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsTand: y[i] = Tand(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vstand(int n, const float* a, float* y);
/** @brief vsTand at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vstand */
int brenn_vstand_acc(int n, const float* a, float* y, int accuracy);
/** @brief vsLogb: y[i] = Logb(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslogb(int n, const float* a, float* y);
/** @brief vsLogb at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslogb */
int brenn_vslogb_acc(int n, const float* a, float* y, int accuracy);
/** @brief vdCeil: y[i] = Ceil(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdceil(int n, const double* a, double* y);
/** @brief vdCeil at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdceil */
int brenn_vdceil_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdFloor: y[i] = Floor(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfloor(int n, const double* a, double* y);
/** @brief vdFloor at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfloor */
int brenn_vdfloor_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdFrac: y[i] = Frac(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfrac(int n, const double* a, double* y);
/** @brief vdFrac at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfrac */
int brenn_vdfrac_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdNearbyInt: y[i] = NearbyInt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdnearbyint(int n, const double* a, double* y);
/** @brief vdNearbyInt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdnearbyint */
int brenn_vdnearbyint_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdRint: y[i] = Rint(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdrint(int n, const double* a, double* y);
/** @brief vdRint at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdrint */
int brenn_vdrint_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdRound: y[i] = Round(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdround(int n, const double* a, double* y);
/** @brief vdRound at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdround */
int brenn_vdround_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTrunc: y[i] = Trunc(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtrunc(int n, const double* a, double* y);
/** @brief vdTrunc at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtrunc */
int brenn_vdtrunc_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAbs: y[i] = Abs(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdabs(int n, const double* a, double* y);
/** @brief vdAbs at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdabs */
int brenn_vdabs_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdInv: y[i] = Inv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdinv(int n, const double* a, double* y);
/** @brief vdInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdinv */
int brenn_vdinv_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSqrt: y[i] = Sqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsqrt(int n, const double* a, double* y);
/** @brief vdSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsqrt */
int brenn_vdsqrt_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdInvSqrt: y[i] = InvSqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdinvsqrt(int n, const double* a, double* y);
/** @brief vdInvSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdinvsqrt */
int brenn_vdinvsqrt_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCbrt: y[i] = Cbrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcbrt(int n, const double* a, double* y);
/** @brief vdCbrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcbrt */
int brenn_vdcbrt_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdInvCbrt: y[i] = InvCbrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdinvcbrt(int n, const double* a, double* y);
/** @brief vdInvCbrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdinvcbrt */
int brenn_vdinvcbrt_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdExp: y[i] = Exp(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdexp(int n, const double* a, double* y);
/** @brief vdExp at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdexp */
int brenn_vdexp_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLn: y[i] = Ln(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdln(int n, const double* a, double* y);
/** @brief vdLn at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdln */
int brenn_vdln_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLog10: y[i] = Log10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlog10(int n, const double* a, double* y);
/** @brief vdLog10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlog10 */
int brenn_vdlog10_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCos: y[i] = Cos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcos(int n, const double* a, double* y);
/** @brief vdCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcos */
int brenn_vdcos_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSin: y[i] = Sin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsin(int n, const double* a, double* y);
/** @brief vdSin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsin */
int brenn_vdsin_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTan: y[i] = Tan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtan(int n, const double* a, double* y);
/** @brief vdTan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtan */
int brenn_vdtan_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAcos: y[i] = Acos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdacos(int n, const double* a, double* y);
/** @brief vdAcos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdacos */
int brenn_vdacos_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAcosh: y[i] = Acosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdacosh(int n, const double* a, double* y);
/** @brief vdAcosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdacosh */
int brenn_vdacosh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAsin: y[i] = Asin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdasin(int n, const double* a, double* y);
/** @brief vdAsin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdasin */
int brenn_vdasin_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAsinh: y[i] = Asinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdasinh(int n, const double* a, double* y);
/** @brief vdAsinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdasinh */
int brenn_vdasinh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAtan: y[i] = Atan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdatan(int n, const double* a, double* y);
/** @brief vdAtan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdatan */
int brenn_vdatan_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAtanh: y[i] = Atanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdatanh(int n, const double* a, double* y);
/** @brief vdAtanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdatanh */
int brenn_vdatanh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCosh: y[i] = Cosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcosh(int n, const double* a, double* y);
/** @brief vdCosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcosh */
int brenn_vdcosh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSinh: y[i] = Sinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsinh(int n, const double* a, double* y);
/** @brief vdSinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsinh */
int brenn_vdsinh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTanh: y[i] = Tanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtanh(int n, const double* a, double* y);
/** @brief vdTanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtanh */
int brenn_vdtanh_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdErf: y[i] = Erf(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vderf(int n, const double* a, double* y);
/** @brief vdErf at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vderf */
int brenn_vderf_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdErfc: y[i] = Erfc(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vderfc(int n, const double* a, double* y);
/** @brief vdErfc at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vderfc */
int brenn_vderfc_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdErfInv: y[i] = ErfInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vderfinv(int n, const double* a, double* y);
/** @brief vdErfInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vderfinv */
int brenn_vderfinv_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSqr: y[i] = Sqr(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsqr(int n, const double* a, double* y);
/** @brief vdSqr at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsqr */
int brenn_vdsqr_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdExpm1: y[i] = Expm1(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdexpm1(int n, const double* a, double* y);
/** @brief vdExpm1 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdexpm1 */
int brenn_vdexpm1_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLog1p: y[i] = Log1p(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlog1p(int n, const double* a, double* y);
/** @brief vdLog1p at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlog1p */
int brenn_vdlog1p_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdPow3o2: y[i] = Pow3o2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpow3o2(int n, const double* a, double* y);
/** @brief vdPow3o2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpow3o2 */
int brenn_vdpow3o2_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdPow2o3: y[i] = Pow2o3(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpow2o3(int n, const double* a, double* y);
/** @brief vdPow2o3 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpow2o3 */
int brenn_vdpow2o3_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdErfcInv: y[i] = ErfcInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vderfcinv(int n, const double* a, double* y);
/** @brief vdErfcInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vderfcinv */
int brenn_vderfcinv_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCdfNorm: y[i] = CdfNorm(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcdfnorm(int n, const double* a, double* y);
/** @brief vdCdfNorm at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcdfnorm */
int brenn_vdcdfnorm_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCdfNormInv: y[i] = CdfNormInv(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcdfnorminv(int n, const double* a, double* y);
/** @brief vdCdfNormInv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcdfnorminv */
int brenn_vdcdfnorminv_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLGamma: y[i] = LGamma(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlgamma(int n, const double* a, double* y);
/** @brief vdLGamma at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlgamma */
int brenn_vdlgamma_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTGamma: y[i] = TGamma(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtgamma(int n, const double* a, double* y);
/** @brief vdTGamma at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtgamma */
int brenn_vdtgamma_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdExpInt1: y[i] = ExpInt1(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdexpint1(int n, const double* a, double* y);
/** @brief vdExpInt1 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdexpint1 */
int brenn_vdexpint1_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSinpi: y[i] = Sinpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsinpi(int n, const double* a, double* y);
/** @brief vdSinpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsinpi */
int brenn_vdsinpi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCospi: y[i] = Cospi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcospi(int n, const double* a, double* y);
/** @brief vdCospi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcospi */
int brenn_vdcospi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTanpi: y[i] = Tanpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtanpi(int n, const double* a, double* y);
/** @brief vdTanpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtanpi */
int brenn_vdtanpi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAcospi: y[i] = Acospi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdacospi(int n, const double* a, double* y);
/** @brief vdAcospi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdacospi */
int brenn_vdacospi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAsinpi: y[i] = Asinpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdasinpi(int n, const double* a, double* y);
/** @brief vdAsinpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdasinpi */
int brenn_vdasinpi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdAtanpi: y[i] = Atanpi(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdatanpi(int n, const double* a, double* y);
/** @brief vdAtanpi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdatanpi */
int brenn_vdatanpi_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdExp2: y[i] = Exp2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdexp2(int n, const double* a, double* y);
/** @brief vdExp2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdexp2 */
int brenn_vdexp2_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdExp10: y[i] = Exp10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdexp10(int n, const double* a, double* y);
/** @brief vdExp10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdexp10 */
int brenn_vdexp10_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLog2: y[i] = Log2(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlog2(int n, const double* a, double* y);
/** @brief vdLog2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlog2 */
int brenn_vdlog2_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdSind: y[i] = Sind(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsind(int n, const double* a, double* y);
/** @brief vdSind at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsind */
int brenn_vdsind_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdCosd: y[i] = Cosd(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcosd(int n, const double* a, double* y);
/** @brief vdCosd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcosd */
int brenn_vdcosd_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdTand: y[i] = Tand(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdtand(int n, const double* a, double* y);
/** @brief vdTand at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdtand */
int brenn_vdtand_acc(int n, const double* a, double* y, int accuracy);
/** @brief vdLogb: y[i] = Logb(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlogb(int n, const double* a, double* y);
/** @brief vdLogb at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlogb */
int brenn_vdlogb_acc(int n, const double* a, double* y, int accuracy);
/** @brief vcCos: y[i] = Cos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vccos(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vccos */
int brenn_vccos_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcSin: y[i] = Sin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcsin(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcSin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcsin */
int brenn_vcsin_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcTan: y[i] = Tan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vctan(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcTan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vctan */
int brenn_vctan_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcCosh: y[i] = Cosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vccosh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcCosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vccosh */
int brenn_vccosh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcSinh: y[i] = Sinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcsinh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcSinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcsinh */
int brenn_vcsinh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcTanh: y[i] = Tanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vctanh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcTanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vctanh */
int brenn_vctanh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAcos: y[i] = Acos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcacos(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAcos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcacos */
int brenn_vcacos_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAsin: y[i] = Asin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcasin(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAsin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcasin */
int brenn_vcasin_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAtan: y[i] = Atan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcatan(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAtan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcatan */
int brenn_vcatan_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAcosh: y[i] = Acosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcacosh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAcosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcacosh */
int brenn_vcacosh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAsinh: y[i] = Asinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcasinh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAsinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcasinh */
int brenn_vcasinh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcAtanh: y[i] = Atanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcatanh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcAtanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcatanh */
int brenn_vcatanh_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcExp: y[i] = Exp(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcexp(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcExp at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcexp */
int brenn_vcexp_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcLn: y[i] = Ln(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcln(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcLn at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcln */
int brenn_vcln_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcLog10: y[i] = Log10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vclog10(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcLog10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vclog10 */
int brenn_vclog10_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcSqrt: y[i] = Sqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcsqrt(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcsqrt */
int brenn_vcsqrt_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vcConj: y[i] = Conj(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcconj(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief vcConj at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcconj */
int brenn_vcconj_acc(int n, const BrennComplex8* a, BrennComplex8* y, int accuracy);
/** @brief vzCos: y[i] = Cos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzcos(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzcos */
int brenn_vzcos_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzSin: y[i] = Sin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzsin(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzSin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzsin */
int brenn_vzsin_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzTan: y[i] = Tan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vztan(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzTan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vztan */
int brenn_vztan_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzCosh: y[i] = Cosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzcosh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzCosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzcosh */
int brenn_vzcosh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzSinh: y[i] = Sinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzsinh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzSinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzsinh */
int brenn_vzsinh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzTanh: y[i] = Tanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vztanh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzTanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vztanh */
int brenn_vztanh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAcos: y[i] = Acos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzacos(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAcos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzacos */
int brenn_vzacos_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAsin: y[i] = Asin(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzasin(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAsin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzasin */
int brenn_vzasin_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAtan: y[i] = Atan(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzatan(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAtan at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzatan */
int brenn_vzatan_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAcosh: y[i] = Acosh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzacosh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAcosh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzacosh */
int brenn_vzacosh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAsinh: y[i] = Asinh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzasinh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAsinh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzasinh */
int brenn_vzasinh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzAtanh: y[i] = Atanh(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzatanh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzAtanh at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzatanh */
int brenn_vzatanh_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzExp: y[i] = Exp(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzexp(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzExp at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzexp */
int brenn_vzexp_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzLn: y[i] = Ln(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzln(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzLn at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzln */
int brenn_vzln_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzLog10: y[i] = Log10(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzlog10(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzLog10 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzlog10 */
int brenn_vzlog10_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzSqrt: y[i] = Sqrt(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzsqrt(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzSqrt at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzsqrt */
int brenn_vzsqrt_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vzConj: y[i] = Conj(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzconj(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief vzConj at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzconj */
int brenn_vzconj_acc(int n, const BrennComplex16* a, BrennComplex16* y, int accuracy);
/** @brief vcCIS: y[i] = CIS(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vccis(int n, const float* a, BrennComplex8* y);
/** @brief vcCIS at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vccis */
int brenn_vccis_acc(int n, const float* a, BrennComplex8* y, int accuracy);
/** @brief vzCIS: y[i] = CIS(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzcis(int n, const double* a, BrennComplex16* y);
/** @brief vzCIS at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzcis */
int brenn_vzcis_acc(int n, const double* a, BrennComplex16* y, int accuracy);
/** @brief vcAbs: y[i] = Abs(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcabs(int n, const BrennComplex8* a, float* y);
/** @brief vcAbs at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcabs */
int brenn_vcabs_acc(int n, const BrennComplex8* a, float* y, int accuracy);
/** @brief vcArg: y[i] = Arg(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcarg(int n, const BrennComplex8* a, float* y);
/** @brief vcArg at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcarg */
int brenn_vcarg_acc(int n, const BrennComplex8* a, float* y, int accuracy);
/** @brief vzAbs: y[i] = Abs(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzabs(int n, const BrennComplex16* a, double* y);
/** @brief vzAbs at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzabs */
int brenn_vzabs_acc(int n, const BrennComplex16* a, double* y, int accuracy);
/** @brief vzArg: y[i] = Arg(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzarg(int n, const BrennComplex16* a, double* y);
/** @brief vzArg at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzarg */
int brenn_vzarg_acc(int n, const BrennComplex16* a, double* y, int accuracy);
/** @brief vsDiv: y[i] = Div(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsdiv(int n, const float* a, const float* b, float* y);
/** @brief vsDiv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsdiv */
int brenn_vsdiv_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsPow: y[i] = Pow(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspow(int n, const float* a, const float* b, float* y);
/** @brief vsPow at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspow */
int brenn_vspow_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsAtan2: y[i] = Atan2(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsatan2(int n, const float* a, const float* b, float* y);
/** @brief vsAtan2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsatan2 */
int brenn_vsatan2_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsHypot: y[i] = Hypot(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vshypot(int n, const float* a, const float* b, float* y);
/** @brief vsHypot at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vshypot */
int brenn_vshypot_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsAdd: y[i] = Add(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsadd(int n, const float* a, const float* b, float* y);
/** @brief vsAdd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsadd */
int brenn_vsadd_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsSub: y[i] = Sub(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssub(int n, const float* a, const float* b, float* y);
/** @brief vsSub at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssub */
int brenn_vssub_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsMul: y[i] = Mul(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsmul(int n, const float* a, const float* b, float* y);
/** @brief vsMul at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsmul */
int brenn_vsmul_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsAtan2pi: y[i] = Atan2pi(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsatan2pi(int n, const float* a, const float* b, float* y);
/** @brief vsAtan2pi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsatan2pi */
int brenn_vsatan2pi_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsCopySign: y[i] = CopySign(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vscopysign(int n, const float* a, const float* b, float* y);
/** @brief vsCopySign at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vscopysign */
int brenn_vscopysign_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsNextAfter: y[i] = NextAfter(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsnextafter(int n, const float* a, const float* b, float* y);
/** @brief vsNextAfter at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsnextafter */
int brenn_vsnextafter_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsFdim: y[i] = Fdim(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfdim(int n, const float* a, const float* b, float* y);
/** @brief vsFdim at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfdim */
int brenn_vsfdim_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsFmax: y[i] = Fmax(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfmax(int n, const float* a, const float* b, float* y);
/** @brief vsFmax at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfmax */
int brenn_vsfmax_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsFmin: y[i] = Fmin(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfmin(int n, const float* a, const float* b, float* y);
/** @brief vsFmin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfmin */
int brenn_vsfmin_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsMaxMag: y[i] = MaxMag(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsmaxmag(int n, const float* a, const float* b, float* y);
/** @brief vsMaxMag at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsmaxmag */
int brenn_vsmaxmag_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsMinMag: y[i] = MinMag(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsminmag(int n, const float* a, const float* b, float* y);
/** @brief vsMinMag at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsminmag */
int brenn_vsminmag_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsPowr: y[i] = Powr(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspowr(int n, const float* a, const float* b, float* y);
/** @brief vsPowr at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspowr */
int brenn_vspowr_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsRemainder: y[i] = Remainder(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsremainder(int n, const float* a, const float* b, float* y);
/** @brief vsRemainder at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsremainder */
int brenn_vsremainder_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vsFmod: y[i] = Fmod(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsfmod(int n, const float* a, const float* b, float* y);
/** @brief vsFmod at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsfmod */
int brenn_vsfmod_acc(int n, const float* a, const float* b, float* y, int accuracy);
/** @brief vdDiv: y[i] = Div(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vddiv(int n, const double* a, const double* b, double* y);
/** @brief vdDiv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vddiv */
int brenn_vddiv_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdPow: y[i] = Pow(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpow(int n, const double* a, const double* b, double* y);
/** @brief vdPow at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpow */
int brenn_vdpow_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdAtan2: y[i] = Atan2(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdatan2(int n, const double* a, const double* b, double* y);
/** @brief vdAtan2 at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdatan2 */
int brenn_vdatan2_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdHypot: y[i] = Hypot(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdhypot(int n, const double* a, const double* b, double* y);
/** @brief vdHypot at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdhypot */
int brenn_vdhypot_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdAdd: y[i] = Add(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdadd(int n, const double* a, const double* b, double* y);
/** @brief vdAdd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdadd */
int brenn_vdadd_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdSub: y[i] = Sub(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsub(int n, const double* a, const double* b, double* y);
/** @brief vdSub at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsub */
int brenn_vdsub_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdMul: y[i] = Mul(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdmul(int n, const double* a, const double* b, double* y);
/** @brief vdMul at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdmul */
int brenn_vdmul_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdAtan2pi: y[i] = Atan2pi(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdatan2pi(int n, const double* a, const double* b, double* y);
/** @brief vdAtan2pi at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdatan2pi */
int brenn_vdatan2pi_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdCopySign: y[i] = CopySign(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdcopysign(int n, const double* a, const double* b, double* y);
/** @brief vdCopySign at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdcopysign */
int brenn_vdcopysign_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdNextAfter: y[i] = NextAfter(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdnextafter(int n, const double* a, const double* b, double* y);
/** @brief vdNextAfter at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdnextafter */
int brenn_vdnextafter_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdFdim: y[i] = Fdim(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfdim(int n, const double* a, const double* b, double* y);
/** @brief vdFdim at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfdim */
int brenn_vdfdim_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdFmax: y[i] = Fmax(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfmax(int n, const double* a, const double* b, double* y);
/** @brief vdFmax at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfmax */
int brenn_vdfmax_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdFmin: y[i] = Fmin(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfmin(int n, const double* a, const double* b, double* y);
/** @brief vdFmin at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfmin */
int brenn_vdfmin_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdMaxMag: y[i] = MaxMag(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdmaxmag(int n, const double* a, const double* b, double* y);
/** @brief vdMaxMag at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdmaxmag */
int brenn_vdmaxmag_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdMinMag: y[i] = MinMag(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdminmag(int n, const double* a, const double* b, double* y);
/** @brief vdMinMag at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdminmag */
int brenn_vdminmag_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdPowr: y[i] = Powr(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpowr(int n, const double* a, const double* b, double* y);
/** @brief vdPowr at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpowr */
int brenn_vdpowr_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdRemainder: y[i] = Remainder(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdremainder(int n, const double* a, const double* b, double* y);
/** @brief vdRemainder at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdremainder */
int brenn_vdremainder_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vdFmod: y[i] = Fmod(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdfmod(int n, const double* a, const double* b, double* y);
/** @brief vdFmod at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdfmod */
int brenn_vdfmod_acc(int n, const double* a, const double* b, double* y, int accuracy);
/** @brief vcDiv: y[i] = Div(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcdiv(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcDiv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcdiv */
int brenn_vcdiv_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vcPow: y[i] = Pow(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcpow(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcPow at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcpow */
int brenn_vcpow_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vcAdd: y[i] = Add(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcadd(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcAdd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcadd */
int brenn_vcadd_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vcSub: y[i] = Sub(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcsub(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcSub at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcsub */
int brenn_vcsub_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vcMul: y[i] = Mul(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcmul(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcMul at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcmul */
int brenn_vcmul_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vcMulByConj: y[i] = MulByConj(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcmulbyconj(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief vcMulByConj at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcmulbyconj */
int brenn_vcmulbyconj_acc(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y, int accuracy);
/** @brief vzDiv: y[i] = Div(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzdiv(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzDiv at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzdiv */
int brenn_vzdiv_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vzPow: y[i] = Pow(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzpow(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzPow at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzpow */
int brenn_vzpow_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vzAdd: y[i] = Add(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzadd(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzAdd at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzadd */
int brenn_vzadd_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vzSub: y[i] = Sub(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzsub(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzSub at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzsub */
int brenn_vzsub_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vzMul: y[i] = Mul(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzmul(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzMul at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzmul */
int brenn_vzmul_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vzMulByConj: y[i] = MulByConj(a[i], b[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzmulbyconj(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief vzMulByConj at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzmulbyconj */
int brenn_vzmulbyconj_acc(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y, int accuracy);
/** @brief vcPowx: y[i] = a[i] to the power b for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcpowx(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** @brief vcPowx at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcpowx */
int brenn_vcpowx_acc(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y, int accuracy);
/** @brief vzPowx: y[i] = a[i] to the power b for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzpowx(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** @brief vzPowx at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzpowx */
int brenn_vzpowx_acc(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y, int accuracy);
/** @brief vsPowx: y[i] = a[i] to the power b for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspowx(int n, const float* a, float b, float* y);
/** @brief vsPowx at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspowx */
int brenn_vspowx_acc(int n, const float* a, float b, float* y, int accuracy);
/** @brief vdPowx: y[i] = a[i] to the power b for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpowx(int n, const double* a, double b, double* y);
/** @brief vdPowx at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpowx */
int brenn_vdpowx_acc(int n, const double* a, double b, double* y, int accuracy);
/** @brief vsSinCos: (y[i], z[i]) = SinCos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vssincos(int n, const float* a, float* y, float* z);
/** @brief vsSinCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vssincos */
int brenn_vssincos_acc(int n, const float* a, float* y, float* z, int accuracy);
/** @brief vsModf: (y[i], z[i]) = Modf(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsmodf(int n, const float* a, float* y, float* z);
/** @brief vsModf at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsmodf */
int brenn_vsmodf_acc(int n, const float* a, float* y, float* z, int accuracy);
/** @brief vdSinCos: (y[i], z[i]) = SinCos(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdsincos(int n, const double* a, double* y, double* z);
/** @brief vdSinCos at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdsincos */
int brenn_vdsincos_acc(int n, const double* a, double* y, double* z, int accuracy);
/** @brief vdModf: (y[i], z[i]) = Modf(a[i]) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdmodf(int n, const double* a, double* y, double* z);
/** @brief vdModf at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdmodf */
int brenn_vdmodf_acc(int n, const double* a, double* y, double* z, int accuracy);
/** @brief vsLinearFrac: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vslinearfrac(int n, const float* a, const float* b, float scalea, float shifta, float scaleb, float shiftb, float* y);
/** @brief vsLinearFrac at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vslinearfrac */
int brenn_vslinearfrac_acc(int n, const float* a, const float* b, float scalea, float shifta, float scaleb, float shiftb, float* y, int accuracy);
/** @brief vdLinearFrac: y[i] = (scalea*a[i] + shifta) / (scaleb*b[i] + shiftb) for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdlinearfrac(int n, const double* a, const double* b, double scalea, double shifta, double scaleb, double shiftb, double* y);
/** @brief vdLinearFrac at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdlinearfrac */
int brenn_vdlinearfrac_acc(int n, const double* a, const double* b, double scalea, double shifta, double scaleb, double shiftb, double* y, int accuracy);
/** @brief vsPackI: y[i] = a[i*incra] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspacki(int n, const float* a, int incra, float* y);
/** @brief vsPackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspacki */
int brenn_vspacki_acc(int n, const float* a, int incra, float* y, int accuracy);
/** @brief vdPackI: y[i] = a[i*incra] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpacki(int n, const double* a, int incra, double* y);
/** @brief vdPackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpacki */
int brenn_vdpacki_acc(int n, const double* a, int incra, double* y, int accuracy);
/** @brief vcPackI: y[i] = a[i*incra] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcpacki(int n, const BrennComplex8* a, int incra, BrennComplex8* y);
/** @brief vcPackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcpacki */
int brenn_vcpacki_acc(int n, const BrennComplex8* a, int incra, BrennComplex8* y, int accuracy);
/** @brief vzPackI: y[i] = a[i*incra] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzpacki(int n, const BrennComplex16* a, int incra, BrennComplex16* y);
/** @brief vzPackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzpacki */
int brenn_vzpacki_acc(int n, const BrennComplex16* a, int incra, BrennComplex16* y, int accuracy);
/** @brief vsPackM: the elements of a whose ma[i] is non-zero, packed into y for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspackm(int n, const float* a, const int* ma, float* y);
/** @brief vsPackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspackm */
int brenn_vspackm_acc(int n, const float* a, const int* ma, float* y, int accuracy);
/** @brief vdPackM: the elements of a whose ma[i] is non-zero, packed into y for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpackm(int n, const double* a, const int* ma, double* y);
/** @brief vdPackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpackm */
int brenn_vdpackm_acc(int n, const double* a, const int* ma, double* y, int accuracy);
/** @brief vcPackM: the elements of a whose ma[i] is non-zero, packed into y for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcpackm(int n, const BrennComplex8* a, const int* ma, BrennComplex8* y);
/** @brief vcPackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcpackm */
int brenn_vcpackm_acc(int n, const BrennComplex8* a, const int* ma, BrennComplex8* y, int accuracy);
/** @brief vzPackM: the elements of a whose ma[i] is non-zero, packed into y for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzpackm(int n, const BrennComplex16* a, const int* ma, BrennComplex16* y);
/** @brief vzPackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzpackm */
int brenn_vzpackm_acc(int n, const BrennComplex16* a, const int* ma, BrennComplex16* y, int accuracy);
/** @brief vsPackV: y[i] = a[ia[i]] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vspackv(int n, const float* a, const int* ia, float* y);
/** @brief vsPackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vspackv */
int brenn_vspackv_acc(int n, const float* a, const int* ia, float* y, int accuracy);
/** @brief vdPackV: y[i] = a[ia[i]] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdpackv(int n, const double* a, const int* ia, double* y);
/** @brief vdPackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdpackv */
int brenn_vdpackv_acc(int n, const double* a, const int* ia, double* y, int accuracy);
/** @brief vcPackV: y[i] = a[ia[i]] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcpackv(int n, const BrennComplex8* a, const int* ia, BrennComplex8* y);
/** @brief vcPackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcpackv */
int brenn_vcpackv_acc(int n, const BrennComplex8* a, const int* ia, BrennComplex8* y, int accuracy);
/** @brief vzPackV: y[i] = a[ia[i]] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzpackv(int n, const BrennComplex16* a, const int* ia, BrennComplex16* y);
/** @brief vzPackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzpackv */
int brenn_vzpackv_acc(int n, const BrennComplex16* a, const int* ia, BrennComplex16* y, int accuracy);
/** @brief vsUnpackI: y[i*incry] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsunpacki(int n, const float* a, float* y, int incry);
/** @brief vsUnpackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsunpacki */
int brenn_vsunpacki_acc(int n, const float* a, float* y, int incry, int accuracy);
/** @brief vdUnpackI: y[i*incry] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdunpacki(int n, const double* a, double* y, int incry);
/** @brief vdUnpackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdunpacki */
int brenn_vdunpacki_acc(int n, const double* a, double* y, int incry, int accuracy);
/** @brief vcUnpackI: y[i*incry] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcunpacki(int n, const BrennComplex8* a, BrennComplex8* y, int incry);
/** @brief vcUnpackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcunpacki */
int brenn_vcunpacki_acc(int n, const BrennComplex8* a, BrennComplex8* y, int incry, int accuracy);
/** @brief vzUnpackI: y[i*incry] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzunpacki(int n, const BrennComplex16* a, BrennComplex16* y, int incry);
/** @brief vzUnpackI at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzunpacki */
int brenn_vzunpacki_acc(int n, const BrennComplex16* a, BrennComplex16* y, int incry, int accuracy);
/** @brief vsUnpackM: y[i] = a[next] where my[i] is non-zero, in order for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsunpackm(int n, const float* a, float* y, const int* my);
/** @brief vsUnpackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsunpackm */
int brenn_vsunpackm_acc(int n, const float* a, float* y, const int* my, int accuracy);
/** @brief vdUnpackM: y[i] = a[next] where my[i] is non-zero, in order for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdunpackm(int n, const double* a, double* y, const int* my);
/** @brief vdUnpackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdunpackm */
int brenn_vdunpackm_acc(int n, const double* a, double* y, const int* my, int accuracy);
/** @brief vcUnpackM: y[i] = a[next] where my[i] is non-zero, in order for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcunpackm(int n, const BrennComplex8* a, BrennComplex8* y, const int* my);
/** @brief vcUnpackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcunpackm */
int brenn_vcunpackm_acc(int n, const BrennComplex8* a, BrennComplex8* y, const int* my, int accuracy);
/** @brief vzUnpackM: y[i] = a[next] where my[i] is non-zero, in order for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzunpackm(int n, const BrennComplex16* a, BrennComplex16* y, const int* my);
/** @brief vzUnpackM at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzunpackm */
int brenn_vzunpackm_acc(int n, const BrennComplex16* a, BrennComplex16* y, const int* my, int accuracy);
/** @brief vsUnpackV: y[iy[i]] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vsunpackv(int n, const float* a, float* y, const int* iy);
/** @brief vsUnpackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vsunpackv */
int brenn_vsunpackv_acc(int n, const float* a, float* y, const int* iy, int accuracy);
/** @brief vdUnpackV: y[iy[i]] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vdunpackv(int n, const double* a, double* y, const int* iy);
/** @brief vdUnpackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vdunpackv */
int brenn_vdunpackv_acc(int n, const double* a, double* y, const int* iy, int accuracy);
/** @brief vcUnpackV: y[iy[i]] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vcunpackv(int n, const BrennComplex8* a, BrennComplex8* y, const int* iy);
/** @brief vcUnpackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vcunpackv */
int brenn_vcunpackv_acc(int n, const BrennComplex8* a, BrennComplex8* y, const int* iy, int accuracy);
/** @brief vzUnpackV: y[iy[i]] = a[i] for i below n, at the thread's accuracy.
 * @return BRENN_OK, the call's last element status, or a refusal (brenn_vm.h) */
int brenn_vzunpackv(int n, const BrennComplex16* a, BrennComplex16* y, const int* iy);
/** @brief vzUnpackV at the accuracy given (BRENN_LA, BRENN_HA, BRENN_EP). @copydetails brenn_vzunpackv */
int brenn_vzunpackv_acc(int n, const BrennComplex16* a, BrennComplex16* y, const int* iy, int accuracy);

#ifdef __cplusplus
}
#endif

#endif
