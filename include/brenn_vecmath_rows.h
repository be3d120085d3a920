/* Generated from frame/rows.def by frame/gen/gen_exports; do not edit.
 * Entry points of every vector-math row: the LA name (_21 single, _50 double),
 * the HA names (plain and _HA), the EP name (_11 single, _26 double), and the
 * row's slot and cost views, indexed by brenn_zar_kernel_GetTTableIndex(). */
#ifndef BRENN_VECMATH_ROWS_H
#define BRENN_VECMATH_ROWS_H

#include <stdint.h>
#include "brenn_types.h"

#ifdef __cplusplus
extern "C" {
#endif

/* sCeil (cost figures 0.5, 0.5, 0.5) */
void _zarsCeil_21(int n, const float* a, float* y);
void _zarsCeil(int n, const float* a, float* y);
void _zarsCeil_HA(int n, const float* a, float* y);
void _zarsCeil_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCeil_ttab[3];
extern float brenn_zar_kernel_sCeil_ctab[3];

/* sFloor (cost figures 0.4, 0.4, 0.4) */
void _zarsFloor_21(int n, const float* a, float* y);
void _zarsFloor(int n, const float* a, float* y);
void _zarsFloor_HA(int n, const float* a, float* y);
void _zarsFloor_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sFloor_ttab[3];
extern float brenn_zar_kernel_sFloor_ctab[3];

/* sFrac (cost figures 1.27, 1.27, 1.27) */
void _zarsFrac_21(int n, const float* a, float* y);
void _zarsFrac(int n, const float* a, float* y);
void _zarsFrac_HA(int n, const float* a, float* y);
void _zarsFrac_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sFrac_ttab[3];
extern float brenn_zar_kernel_sFrac_ctab[3];

/* sNearbyInt (cost figures 0.42, 0.42, 0.42) */
void _zarsNearbyInt_21(int n, const float* a, float* y);
void _zarsNearbyInt(int n, const float* a, float* y);
void _zarsNearbyInt_HA(int n, const float* a, float* y);
void _zarsNearbyInt_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sNearbyInt_ttab[3];
extern float brenn_zar_kernel_sNearbyInt_ctab[3];

/* sRint (cost figures 0.4, 0.4, 0.4) */
void _zarsRint_21(int n, const float* a, float* y);
void _zarsRint(int n, const float* a, float* y);
void _zarsRint_HA(int n, const float* a, float* y);
void _zarsRint_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sRint_ttab[3];
extern float brenn_zar_kernel_sRint_ctab[3];

/* sRound (cost figures 1.05, 1.05, 1.05) */
void _zarsRound_21(int n, const float* a, float* y);
void _zarsRound(int n, const float* a, float* y);
void _zarsRound_HA(int n, const float* a, float* y);
void _zarsRound_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sRound_ttab[3];
extern float brenn_zar_kernel_sRound_ctab[3];

/* sTrunc (cost figures 0.4, 0.4, 0.4) */
void _zarsTrunc_21(int n, const float* a, float* y);
void _zarsTrunc(int n, const float* a, float* y);
void _zarsTrunc_HA(int n, const float* a, float* y);
void _zarsTrunc_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTrunc_ttab[3];
extern float brenn_zar_kernel_sTrunc_ctab[3];

/* sAbs (cost figures 0.53, 0.53, 0.53) */
void _zarsAbs_21(int n, const float* a, float* y);
void _zarsAbs(int n, const float* a, float* y);
void _zarsAbs_HA(int n, const float* a, float* y);
void _zarsAbs_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAbs_ttab[3];
extern float brenn_zar_kernel_sAbs_ctab[3];

/* sInv (cost figures 1.37, 3.09, 1.01) */
void _zarsInv_21(int n, const float* a, float* y);
void _zarsInv(int n, const float* a, float* y);
void _zarsInv_HA(int n, const float* a, float* y);
void _zarsInv_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sInv_ttab[3];
extern float brenn_zar_kernel_sInv_ctab[3];

/* sSqrt (cost figures 2.06, 3.56, 1.15) */
void _zarsSqrt_21(int n, const float* a, float* y);
void _zarsSqrt(int n, const float* a, float* y);
void _zarsSqrt_HA(int n, const float* a, float* y);
void _zarsSqrt_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSqrt_ttab[3];
extern float brenn_zar_kernel_sSqrt_ctab[3];

/* sInvSqrt (cost figures 1.42, 5.12, 0.95) */
void _zarsInvSqrt_21(int n, const float* a, float* y);
void _zarsInvSqrt(int n, const float* a, float* y);
void _zarsInvSqrt_HA(int n, const float* a, float* y);
void _zarsInvSqrt_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sInvSqrt_ttab[3];
extern float brenn_zar_kernel_sInvSqrt_ctab[3];

/* sCbrt (cost figures 4.6, 5.5, 3.4) */
void _zarsCbrt_21(int n, const float* a, float* y);
void _zarsCbrt(int n, const float* a, float* y);
void _zarsCbrt_HA(int n, const float* a, float* y);
void _zarsCbrt_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCbrt_ttab[3];
extern float brenn_zar_kernel_sCbrt_ctab[3];

/* sInvCbrt (cost figures 5.0, 6.0, 3.7) */
void _zarsInvCbrt_21(int n, const float* a, float* y);
void _zarsInvCbrt(int n, const float* a, float* y);
void _zarsInvCbrt_HA(int n, const float* a, float* y);
void _zarsInvCbrt_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sInvCbrt_ttab[3];
extern float brenn_zar_kernel_sInvCbrt_ctab[3];

/* sExp (cost figures 4.29, 5.86, 3.12) */
void _zarsExp_21(int n, const float* a, float* y);
void _zarsExp(int n, const float* a, float* y);
void _zarsExp_HA(int n, const float* a, float* y);
void _zarsExp_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sExp_ttab[3];
extern float brenn_zar_kernel_sExp_ctab[3];

/* sLn (cost figures 5.29, 7.0, 2.98) */
void _zarsLn_21(int n, const float* a, float* y);
void _zarsLn(int n, const float* a, float* y);
void _zarsLn_HA(int n, const float* a, float* y);
void _zarsLn_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLn_ttab[3];
extern float brenn_zar_kernel_sLn_ctab[3];

/* sLog10 (cost figures 6.96, 11.63, 3.61) */
void _zarsLog10_21(int n, const float* a, float* y);
void _zarsLog10(int n, const float* a, float* y);
void _zarsLog10_HA(int n, const float* a, float* y);
void _zarsLog10_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLog10_ttab[3];
extern float brenn_zar_kernel_sLog10_ctab[3];

/* sCos (cost figures 8.25, 10.52, 4.98) */
void _zarsCos_21(int n, const float* a, float* y);
void _zarsCos(int n, const float* a, float* y);
void _zarsCos_HA(int n, const float* a, float* y);
void _zarsCos_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCos_ttab[3];
extern float brenn_zar_kernel_sCos_ctab[3];

/* sSin (cost figures 5.2, 9.51, 3.75) */
void _zarsSin_21(int n, const float* a, float* y);
void _zarsSin(int n, const float* a, float* y);
void _zarsSin_HA(int n, const float* a, float* y);
void _zarsSin_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSin_ttab[3];
extern float brenn_zar_kernel_sSin_ctab[3];

/* sTan (cost figures 18.88, 18.91, 7.33) */
void _zarsTan_21(int n, const float* a, float* y);
void _zarsTan(int n, const float* a, float* y);
void _zarsTan_HA(int n, const float* a, float* y);
void _zarsTan_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTan_ttab[3];
extern float brenn_zar_kernel_sTan_ctab[3];

/* sAcos (cost figures 6.4, 8.8, 4.3) */
void _zarsAcos_21(int n, const float* a, float* y);
void _zarsAcos(int n, const float* a, float* y);
void _zarsAcos_HA(int n, const float* a, float* y);
void _zarsAcos_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAcos_ttab[3];
extern float brenn_zar_kernel_sAcos_ctab[3];

/* sAcosh (cost figures 9.8, 12.1, 6.9) */
void _zarsAcosh_21(int n, const float* a, float* y);
void _zarsAcosh(int n, const float* a, float* y);
void _zarsAcosh_HA(int n, const float* a, float* y);
void _zarsAcosh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAcosh_ttab[3];
extern float brenn_zar_kernel_sAcosh_ctab[3];

/* sAsin (cost figures 6.2, 8.6, 4.2) */
void _zarsAsin_21(int n, const float* a, float* y);
void _zarsAsin(int n, const float* a, float* y);
void _zarsAsin_HA(int n, const float* a, float* y);
void _zarsAsin_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAsin_ttab[3];
extern float brenn_zar_kernel_sAsin_ctab[3];

/* sAsinh (cost figures 10.4, 12.9, 7.3) */
void _zarsAsinh_21(int n, const float* a, float* y);
void _zarsAsinh(int n, const float* a, float* y);
void _zarsAsinh_HA(int n, const float* a, float* y);
void _zarsAsinh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAsinh_ttab[3];
extern float brenn_zar_kernel_sAsinh_ctab[3];

/* sAtan (cost figures 6.9, 8.2, 4.6) */
void _zarsAtan_21(int n, const float* a, float* y);
void _zarsAtan(int n, const float* a, float* y);
void _zarsAtan_HA(int n, const float* a, float* y);
void _zarsAtan_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAtan_ttab[3];
extern float brenn_zar_kernel_sAtan_ctab[3];

/* sAtanh (cost figures 8.7, 10.9, 6.1) */
void _zarsAtanh_21(int n, const float* a, float* y);
void _zarsAtanh(int n, const float* a, float* y);
void _zarsAtanh_HA(int n, const float* a, float* y);
void _zarsAtanh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAtanh_ttab[3];
extern float brenn_zar_kernel_sAtanh_ctab[3];

/* sCosh (cost figures 7.1, 9.0, 4.9) */
void _zarsCosh_21(int n, const float* a, float* y);
void _zarsCosh(int n, const float* a, float* y);
void _zarsCosh_HA(int n, const float* a, float* y);
void _zarsCosh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCosh_ttab[3];
extern float brenn_zar_kernel_sCosh_ctab[3];

/* sSinh (cost figures 7.9, 9.8, 5.4) */
void _zarsSinh_21(int n, const float* a, float* y);
void _zarsSinh(int n, const float* a, float* y);
void _zarsSinh_HA(int n, const float* a, float* y);
void _zarsSinh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSinh_ttab[3];
extern float brenn_zar_kernel_sSinh_ctab[3];

/* sTanh (cost figures 8.3, 10.4, 5.5) */
void _zarsTanh_21(int n, const float* a, float* y);
void _zarsTanh(int n, const float* a, float* y);
void _zarsTanh_HA(int n, const float* a, float* y);
void _zarsTanh_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTanh_ttab[3];
extern float brenn_zar_kernel_sTanh_ctab[3];

/* sErf (cost figures 6.6, 8.4, 4.4) */
void _zarsErf_21(int n, const float* a, float* y);
void _zarsErf(int n, const float* a, float* y);
void _zarsErf_HA(int n, const float* a, float* y);
void _zarsErf_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sErf_ttab[3];
extern float brenn_zar_kernel_sErf_ctab[3];

/* sErfc (cost figures 9.1, 11.6, 6.5) */
void _zarsErfc_21(int n, const float* a, float* y);
void _zarsErfc(int n, const float* a, float* y);
void _zarsErfc_HA(int n, const float* a, float* y);
void _zarsErfc_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sErfc_ttab[3];
extern float brenn_zar_kernel_sErfc_ctab[3];

/* sErfInv (cost figures 8.8, 11.2, 6.3) */
void _zarsErfInv_21(int n, const float* a, float* y);
void _zarsErfInv(int n, const float* a, float* y);
void _zarsErfInv_HA(int n, const float* a, float* y);
void _zarsErfInv_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sErfInv_ttab[3];
extern float brenn_zar_kernel_sErfInv_ctab[3];

/* sSqr (cost figures 0.58, 0.58, 0.58) */
void _zarsSqr_21(int n, const float* a, float* y);
void _zarsSqr(int n, const float* a, float* y);
void _zarsSqr_HA(int n, const float* a, float* y);
void _zarsSqr_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSqr_ttab[3];
extern float brenn_zar_kernel_sSqr_ctab[3];

/* sExpm1 (cost figures 18.0, 18.0, 18.0) */
void _zarsExpm1_21(int n, const float* a, float* y);
void _zarsExpm1(int n, const float* a, float* y);
void _zarsExpm1_HA(int n, const float* a, float* y);
void _zarsExpm1_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sExpm1_ttab[3];
extern float brenn_zar_kernel_sExpm1_ctab[3];

/* sLog1p (cost figures 9.44, 15.03, 6.46) */
void _zarsLog1p_21(int n, const float* a, float* y);
void _zarsLog1p(int n, const float* a, float* y);
void _zarsLog1p_HA(int n, const float* a, float* y);
void _zarsLog1p_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLog1p_ttab[3];
extern float brenn_zar_kernel_sLog1p_ctab[3];

/* sPow3o2 (cost figures 3.4, 4.8, 2.5) */
void _zarsPow3o2_21(int n, const float* a, float* y);
void _zarsPow3o2(int n, const float* a, float* y);
void _zarsPow3o2_HA(int n, const float* a, float* y);
void _zarsPow3o2_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sPow3o2_ttab[3];
extern float brenn_zar_kernel_sPow3o2_ctab[3];

/* sPow2o3 (cost figures 6.1, 7.4, 4.4) */
void _zarsPow2o3_21(int n, const float* a, float* y);
void _zarsPow2o3(int n, const float* a, float* y);
void _zarsPow2o3_HA(int n, const float* a, float* y);
void _zarsPow2o3_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sPow2o3_ttab[3];
extern float brenn_zar_kernel_sPow2o3_ctab[3];

/* sErfcInv (cost figures 12.4, 15.2, 9.1) */
void _zarsErfcInv_21(int n, const float* a, float* y);
void _zarsErfcInv(int n, const float* a, float* y);
void _zarsErfcInv_HA(int n, const float* a, float* y);
void _zarsErfcInv_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sErfcInv_ttab[3];
extern float brenn_zar_kernel_sErfcInv_ctab[3];

/* sCdfNorm (cost figures 9.6, 12.2, 6.8) */
void _zarsCdfNorm_21(int n, const float* a, float* y);
void _zarsCdfNorm(int n, const float* a, float* y);
void _zarsCdfNorm_HA(int n, const float* a, float* y);
void _zarsCdfNorm_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCdfNorm_ttab[3];
extern float brenn_zar_kernel_sCdfNorm_ctab[3];

/* sCdfNormInv (cost figures 11.7, 14.3, 8.6) */
void _zarsCdfNormInv_21(int n, const float* a, float* y);
void _zarsCdfNormInv(int n, const float* a, float* y);
void _zarsCdfNormInv_HA(int n, const float* a, float* y);
void _zarsCdfNormInv_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCdfNormInv_ttab[3];
extern float brenn_zar_kernel_sCdfNormInv_ctab[3];

/* sLGamma (cost figures 96.0, 96.0, 96.0) */
void _zarsLGamma_21(int n, const float* a, float* y);
void _zarsLGamma(int n, const float* a, float* y);
void _zarsLGamma_HA(int n, const float* a, float* y);
void _zarsLGamma_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLGamma_ttab[3];
extern float brenn_zar_kernel_sLGamma_ctab[3];

/* sTGamma (cost figures 88.0, 88.0, 88.0) */
void _zarsTGamma_21(int n, const float* a, float* y);
void _zarsTGamma(int n, const float* a, float* y);
void _zarsTGamma_HA(int n, const float* a, float* y);
void _zarsTGamma_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTGamma_ttab[3];
extern float brenn_zar_kernel_sTGamma_ctab[3];

/* sExpInt1 (cost figures 62.0, 62.0, 31.0) */
void _zarsExpInt1_21(int n, const float* a, float* y);
void _zarsExpInt1(int n, const float* a, float* y);
void _zarsExpInt1_HA(int n, const float* a, float* y);
void _zarsExpInt1_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sExpInt1_ttab[3];
extern float brenn_zar_kernel_sExpInt1_ctab[3];

/* sSinpi (cost figures 220.2, 220.3, 220.1) */
void _zarsSinpi_21(int n, const float* a, float* y);
void _zarsSinpi(int n, const float* a, float* y);
void _zarsSinpi_HA(int n, const float* a, float* y);
void _zarsSinpi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSinpi_ttab[3];
extern float brenn_zar_kernel_sSinpi_ctab[3];

/* sCospi (cost figures 220.2, 220.3, 220.1) */
void _zarsCospi_21(int n, const float* a, float* y);
void _zarsCospi(int n, const float* a, float* y);
void _zarsCospi_HA(int n, const float* a, float* y);
void _zarsCospi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCospi_ttab[3];
extern float brenn_zar_kernel_sCospi_ctab[3];

/* sTanpi (cost figures 220.2, 220.3, 220.1) */
void _zarsTanpi_21(int n, const float* a, float* y);
void _zarsTanpi(int n, const float* a, float* y);
void _zarsTanpi_HA(int n, const float* a, float* y);
void _zarsTanpi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTanpi_ttab[3];
extern float brenn_zar_kernel_sTanpi_ctab[3];

/* sAcospi (cost figures 220.2, 220.3, 220.1) */
void _zarsAcospi_21(int n, const float* a, float* y);
void _zarsAcospi(int n, const float* a, float* y);
void _zarsAcospi_HA(int n, const float* a, float* y);
void _zarsAcospi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAcospi_ttab[3];
extern float brenn_zar_kernel_sAcospi_ctab[3];

/* sAsinpi (cost figures 220.2, 220.3, 220.1) */
void _zarsAsinpi_21(int n, const float* a, float* y);
void _zarsAsinpi(int n, const float* a, float* y);
void _zarsAsinpi_HA(int n, const float* a, float* y);
void _zarsAsinpi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAsinpi_ttab[3];
extern float brenn_zar_kernel_sAsinpi_ctab[3];

/* sAtanpi (cost figures 220.2, 220.3, 220.1) */
void _zarsAtanpi_21(int n, const float* a, float* y);
void _zarsAtanpi(int n, const float* a, float* y);
void _zarsAtanpi_HA(int n, const float* a, float* y);
void _zarsAtanpi_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sAtanpi_ttab[3];
extern float brenn_zar_kernel_sAtanpi_ctab[3];

/* sExp2 (cost figures 220.3, 220.3, 220.3) */
void _zarsExp2_21(int n, const float* a, float* y);
void _zarsExp2(int n, const float* a, float* y);
void _zarsExp2_HA(int n, const float* a, float* y);
void _zarsExp2_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sExp2_ttab[3];
extern float brenn_zar_kernel_sExp2_ctab[3];

/* sExp10 (cost figures 220.3, 220.3, 220.3) */
void _zarsExp10_21(int n, const float* a, float* y);
void _zarsExp10(int n, const float* a, float* y);
void _zarsExp10_HA(int n, const float* a, float* y);
void _zarsExp10_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sExp10_ttab[3];
extern float brenn_zar_kernel_sExp10_ctab[3];

/* sLog2 (cost figures 220.2, 220.3, 220.1) */
void _zarsLog2_21(int n, const float* a, float* y);
void _zarsLog2(int n, const float* a, float* y);
void _zarsLog2_HA(int n, const float* a, float* y);
void _zarsLog2_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLog2_ttab[3];
extern float brenn_zar_kernel_sLog2_ctab[3];

/* sSind (cost figures 220.2, 220.3, 220.1) */
void _zarsSind_21(int n, const float* a, float* y);
void _zarsSind(int n, const float* a, float* y);
void _zarsSind_HA(int n, const float* a, float* y);
void _zarsSind_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sSind_ttab[3];
extern float brenn_zar_kernel_sSind_ctab[3];

/* sCosd (cost figures 220.2, 220.3, 220.1) */
void _zarsCosd_21(int n, const float* a, float* y);
void _zarsCosd(int n, const float* a, float* y);
void _zarsCosd_HA(int n, const float* a, float* y);
void _zarsCosd_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sCosd_ttab[3];
extern float brenn_zar_kernel_sCosd_ctab[3];

/* sTand (cost figures 220.2, 220.3, 220.1) */
void _zarsTand_21(int n, const float* a, float* y);
void _zarsTand(int n, const float* a, float* y);
void _zarsTand_HA(int n, const float* a, float* y);
void _zarsTand_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sTand_ttab[3];
extern float brenn_zar_kernel_sTand_ctab[3];

/* sLogb (cost figures 220.3, 220.3, 220.3) */
void _zarsLogb_21(int n, const float* a, float* y);
void _zarsLogb(int n, const float* a, float* y);
void _zarsLogb_HA(int n, const float* a, float* y);
void _zarsLogb_11(int n, const float* a, float* y);
extern BrennKernel brenn_zar_kernel_sLogb_ttab[3];
extern float brenn_zar_kernel_sLogb_ctab[3];

/* dCeil (cost figures 0.74, 0.74, 0.74) */
void _zardCeil_50(int n, const double* a, double* y);
void _zardCeil(int n, const double* a, double* y);
void _zardCeil_HA(int n, const double* a, double* y);
void _zardCeil_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCeil_ttab[3];
extern float brenn_zar_kernel_dCeil_ctab[3];

/* dFloor (cost figures 0.74, 0.74, 0.74) */
void _zardFloor_50(int n, const double* a, double* y);
void _zardFloor(int n, const double* a, double* y);
void _zardFloor_HA(int n, const double* a, double* y);
void _zardFloor_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dFloor_ttab[3];
extern float brenn_zar_kernel_dFloor_ctab[3];

/* dFrac (cost figures 2.8, 2.8, 2.8) */
void _zardFrac_50(int n, const double* a, double* y);
void _zardFrac(int n, const double* a, double* y);
void _zardFrac_HA(int n, const double* a, double* y);
void _zardFrac_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dFrac_ttab[3];
extern float brenn_zar_kernel_dFrac_ctab[3];

/* dNearbyInt (cost figures 0.76, 0.76, 0.76) */
void _zardNearbyInt_50(int n, const double* a, double* y);
void _zardNearbyInt(int n, const double* a, double* y);
void _zardNearbyInt_HA(int n, const double* a, double* y);
void _zardNearbyInt_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dNearbyInt_ttab[3];
extern float brenn_zar_kernel_dNearbyInt_ctab[3];

/* dRint (cost figures 0.92, 0.92, 0.92) */
void _zardRint_50(int n, const double* a, double* y);
void _zardRint(int n, const double* a, double* y);
void _zardRint_HA(int n, const double* a, double* y);
void _zardRint_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dRint_ttab[3];
extern float brenn_zar_kernel_dRint_ctab[3];

/* dRound (cost figures 2.08, 2.08, 2.08) */
void _zardRound_50(int n, const double* a, double* y);
void _zardRound(int n, const double* a, double* y);
void _zardRound_HA(int n, const double* a, double* y);
void _zardRound_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dRound_ttab[3];
extern float brenn_zar_kernel_dRound_ctab[3];

/* dTrunc (cost figures 0.76, 0.76, 0.76) */
void _zardTrunc_50(int n, const double* a, double* y);
void _zardTrunc(int n, const double* a, double* y);
void _zardTrunc_HA(int n, const double* a, double* y);
void _zardTrunc_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTrunc_ttab[3];
extern float brenn_zar_kernel_dTrunc_ctab[3];

/* dAbs (cost figures 1.19, 1.19, 1.19) */
void _zardAbs_50(int n, const double* a, double* y);
void _zardAbs(int n, const double* a, double* y);
void _zardAbs_HA(int n, const double* a, double* y);
void _zardAbs_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAbs_ttab[3];
extern float brenn_zar_kernel_dAbs_ctab[3];

/* dInv (cost figures 7.65, 3.69, 6.46) */
void _zardInv_50(int n, const double* a, double* y);
void _zardInv(int n, const double* a, double* y);
void _zardInv_HA(int n, const double* a, double* y);
void _zardInv_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dInv_ttab[3];
extern float brenn_zar_kernel_dInv_ctab[3];

/* dSqrt (cost figures 9.28, 6.67, 7.54) */
void _zardSqrt_50(int n, const double* a, double* y);
void _zardSqrt(int n, const double* a, double* y);
void _zardSqrt_HA(int n, const double* a, double* y);
void _zardSqrt_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSqrt_ttab[3];
extern float brenn_zar_kernel_dSqrt_ctab[3];

/* dInvSqrt (cost figures 9.26, 12.66, 9.26) */
void _zardInvSqrt_50(int n, const double* a, double* y);
void _zardInvSqrt(int n, const double* a, double* y);
void _zardInvSqrt_HA(int n, const double* a, double* y);
void _zardInvSqrt_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dInvSqrt_ttab[3];
extern float brenn_zar_kernel_dInvSqrt_ctab[3];

/* dCbrt (cost figures 11.04, 13.2, 11.04) */
void _zardCbrt_50(int n, const double* a, double* y);
void _zardCbrt(int n, const double* a, double* y);
void _zardCbrt_HA(int n, const double* a, double* y);
void _zardCbrt_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCbrt_ttab[3];
extern float brenn_zar_kernel_dCbrt_ctab[3];

/* dInvCbrt (cost figures 12.0, 12.0, 12.0) */
void _zardInvCbrt_50(int n, const double* a, double* y);
void _zardInvCbrt(int n, const double* a, double* y);
void _zardInvCbrt_HA(int n, const double* a, double* y);
void _zardInvCbrt_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dInvCbrt_ttab[3];
extern float brenn_zar_kernel_dInvCbrt_ctab[3];

/* dExp (cost figures 8.49, 14.11, 7.82) */
void _zardExp_50(int n, const double* a, double* y);
void _zardExp(int n, const double* a, double* y);
void _zardExp_HA(int n, const double* a, double* y);
void _zardExp_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dExp_ttab[3];
extern float brenn_zar_kernel_dExp_ctab[3];

/* dLn (cost figures 14.56, 15.95, 10.21) */
void _zardLn_50(int n, const double* a, double* y);
void _zardLn(int n, const double* a, double* y);
void _zardLn_HA(int n, const double* a, double* y);
void _zardLn_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLn_ttab[3];
extern float brenn_zar_kernel_dLn_ctab[3];

/* dLog10 (cost figures 17.46, 25.87, 17.46) */
void _zardLog10_50(int n, const double* a, double* y);
void _zardLog10(int n, const double* a, double* y);
void _zardLog10_HA(int n, const double* a, double* y);
void _zardLog10_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLog10_ttab[3];
extern float brenn_zar_kernel_dLog10_ctab[3];

/* dCos (cost figures 18.33, 34.47, 11.97) */
void _zardCos_50(int n, const double* a, double* y);
void _zardCos(int n, const double* a, double* y);
void _zardCos_HA(int n, const double* a, double* y);
void _zardCos_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCos_ttab[3];
extern float brenn_zar_kernel_dCos_ctab[3];

/* dSin (cost figures 13.22, 21.31, 9.88) */
void _zardSin_50(int n, const double* a, double* y);
void _zardSin(int n, const double* a, double* y);
void _zardSin_HA(int n, const double* a, double* y);
void _zardSin_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSin_ttab[3];
extern float brenn_zar_kernel_dSin_ctab[3];

/* dTan (cost figures 47.13, 60.07, 19.54) */
void _zardTan_50(int n, const double* a, double* y);
void _zardTan(int n, const double* a, double* y);
void _zardTan_HA(int n, const double* a, double* y);
void _zardTan_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTan_ttab[3];
extern float brenn_zar_kernel_dTan_ctab[3];

/* dAcos (cost figures 15.36, 21.12, 10.32) */
void _zardAcos_50(int n, const double* a, double* y);
void _zardAcos(int n, const double* a, double* y);
void _zardAcos_HA(int n, const double* a, double* y);
void _zardAcos_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAcos_ttab[3];
extern float brenn_zar_kernel_dAcos_ctab[3];

/* dAcosh (cost figures 23.52, 29.04, 16.56) */
void _zardAcosh_50(int n, const double* a, double* y);
void _zardAcosh(int n, const double* a, double* y);
void _zardAcosh_HA(int n, const double* a, double* y);
void _zardAcosh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAcosh_ttab[3];
extern float brenn_zar_kernel_dAcosh_ctab[3];

/* dAsin (cost figures 14.88, 20.64, 10.08) */
void _zardAsin_50(int n, const double* a, double* y);
void _zardAsin(int n, const double* a, double* y);
void _zardAsin_HA(int n, const double* a, double* y);
void _zardAsin_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAsin_ttab[3];
extern float brenn_zar_kernel_dAsin_ctab[3];

/* dAsinh (cost figures 24.96, 30.96, 24.96) */
void _zardAsinh_50(int n, const double* a, double* y);
void _zardAsinh(int n, const double* a, double* y);
void _zardAsinh_HA(int n, const double* a, double* y);
void _zardAsinh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAsinh_ttab[3];
extern float brenn_zar_kernel_dAsinh_ctab[3];

/* dAtan (cost figures 16.56, 16.56, 11.04) */
void _zardAtan_50(int n, const double* a, double* y);
void _zardAtan(int n, const double* a, double* y);
void _zardAtan_HA(int n, const double* a, double* y);
void _zardAtan_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAtan_ttab[3];
extern float brenn_zar_kernel_dAtan_ctab[3];

/* dAtanh (cost figures 20.88, 26.16, 14.64) */
void _zardAtanh_50(int n, const double* a, double* y);
void _zardAtanh(int n, const double* a, double* y);
void _zardAtanh_HA(int n, const double* a, double* y);
void _zardAtanh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAtanh_ttab[3];
extern float brenn_zar_kernel_dAtanh_ctab[3];

/* dCosh (cost figures 17.04, 21.6, 11.76) */
void _zardCosh_50(int n, const double* a, double* y);
void _zardCosh(int n, const double* a, double* y);
void _zardCosh_HA(int n, const double* a, double* y);
void _zardCosh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCosh_ttab[3];
extern float brenn_zar_kernel_dCosh_ctab[3];

/* dSinh (cost figures 18.96, 23.52, 18.96) */
void _zardSinh_50(int n, const double* a, double* y);
void _zardSinh(int n, const double* a, double* y);
void _zardSinh_HA(int n, const double* a, double* y);
void _zardSinh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSinh_ttab[3];
extern float brenn_zar_kernel_dSinh_ctab[3];

/* dTanh (cost figures 19.92, 24.96, 19.92) */
void _zardTanh_50(int n, const double* a, double* y);
void _zardTanh(int n, const double* a, double* y);
void _zardTanh_HA(int n, const double* a, double* y);
void _zardTanh_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTanh_ttab[3];
extern float brenn_zar_kernel_dTanh_ctab[3];

/* dErf (cost figures 15.84, 20.16, 10.56) */
void _zardErf_50(int n, const double* a, double* y);
void _zardErf(int n, const double* a, double* y);
void _zardErf_HA(int n, const double* a, double* y);
void _zardErf_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dErf_ttab[3];
extern float brenn_zar_kernel_dErf_ctab[3];

/* dErfc (cost figures 21.84, 21.84, 21.84) */
void _zardErfc_50(int n, const double* a, double* y);
void _zardErfc(int n, const double* a, double* y);
void _zardErfc_HA(int n, const double* a, double* y);
void _zardErfc_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dErfc_ttab[3];
extern float brenn_zar_kernel_dErfc_ctab[3];

/* dErfInv (cost figures 21.12, 26.88, 15.12) */
void _zardErfInv_50(int n, const double* a, double* y);
void _zardErfInv(int n, const double* a, double* y);
void _zardErfInv_HA(int n, const double* a, double* y);
void _zardErfInv_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dErfInv_ttab[3];
extern float brenn_zar_kernel_dErfInv_ctab[3];

/* dSqr (cost figures 1.13, 1.13, 1.13) */
void _zardSqr_50(int n, const double* a, double* y);
void _zardSqr(int n, const double* a, double* y);
void _zardSqr_HA(int n, const double* a, double* y);
void _zardSqr_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSqr_ttab[3];
extern float brenn_zar_kernel_dSqr_ctab[3];

/* dExpm1 (cost figures 22.6, 33.07, 19.25) */
void _zardExpm1_50(int n, const double* a, double* y);
void _zardExpm1(int n, const double* a, double* y);
void _zardExpm1_HA(int n, const double* a, double* y);
void _zardExpm1_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dExpm1_ttab[3];
extern float brenn_zar_kernel_dExpm1_ctab[3];

/* dLog1p (cost figures 23.52, 25.24, 18.06) */
void _zardLog1p_50(int n, const double* a, double* y);
void _zardLog1p(int n, const double* a, double* y);
void _zardLog1p_HA(int n, const double* a, double* y);
void _zardLog1p_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLog1p_ttab[3];
extern float brenn_zar_kernel_dLog1p_ctab[3];

/* dPow3o2 (cost figures 8.16, 11.52, 6.0) */
void _zardPow3o2_50(int n, const double* a, double* y);
void _zardPow3o2(int n, const double* a, double* y);
void _zardPow3o2_HA(int n, const double* a, double* y);
void _zardPow3o2_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dPow3o2_ttab[3];
extern float brenn_zar_kernel_dPow3o2_ctab[3];

/* dPow2o3 (cost figures 14.64, 17.76, 10.56) */
void _zardPow2o3_50(int n, const double* a, double* y);
void _zardPow2o3(int n, const double* a, double* y);
void _zardPow2o3_HA(int n, const double* a, double* y);
void _zardPow2o3_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dPow2o3_ttab[3];
extern float brenn_zar_kernel_dPow2o3_ctab[3];

/* dErfcInv (cost figures 29.76, 36.48, 21.84) */
void _zardErfcInv_50(int n, const double* a, double* y);
void _zardErfcInv(int n, const double* a, double* y);
void _zardErfcInv_HA(int n, const double* a, double* y);
void _zardErfcInv_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dErfcInv_ttab[3];
extern float brenn_zar_kernel_dErfcInv_ctab[3];

/* dCdfNorm (cost figures 23.04, 29.28, 16.32) */
void _zardCdfNorm_50(int n, const double* a, double* y);
void _zardCdfNorm(int n, const double* a, double* y);
void _zardCdfNorm_HA(int n, const double* a, double* y);
void _zardCdfNorm_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCdfNorm_ttab[3];
extern float brenn_zar_kernel_dCdfNorm_ctab[3];

/* dCdfNormInv (cost figures 28.08, 34.32, 20.64) */
void _zardCdfNormInv_50(int n, const double* a, double* y);
void _zardCdfNormInv(int n, const double* a, double* y);
void _zardCdfNormInv_HA(int n, const double* a, double* y);
void _zardCdfNormInv_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCdfNormInv_ttab[3];
extern float brenn_zar_kernel_dCdfNormInv_ctab[3];

/* dLGamma (cost figures 328.5, 328.5, 328.5) */
void _zardLGamma_50(int n, const double* a, double* y);
void _zardLGamma(int n, const double* a, double* y);
void _zardLGamma_HA(int n, const double* a, double* y);
void _zardLGamma_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLGamma_ttab[3];
extern float brenn_zar_kernel_dLGamma_ctab[3];

/* dTGamma (cost figures 211.2, 211.2, 211.2) */
void _zardTGamma_50(int n, const double* a, double* y);
void _zardTGamma(int n, const double* a, double* y);
void _zardTGamma_HA(int n, const double* a, double* y);
void _zardTGamma_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTGamma_ttab[3];
extern float brenn_zar_kernel_dTGamma_ctab[3];

/* dExpInt1 (cost figures 148.8, 148.8, 74.4) */
void _zardExpInt1_50(int n, const double* a, double* y);
void _zardExpInt1(int n, const double* a, double* y);
void _zardExpInt1_HA(int n, const double* a, double* y);
void _zardExpInt1_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dExpInt1_ttab[3];
extern float brenn_zar_kernel_dExpInt1_ctab[3];

/* dSinpi (cost figures 220.2, 220.3, 220.1) */
void _zardSinpi_50(int n, const double* a, double* y);
void _zardSinpi(int n, const double* a, double* y);
void _zardSinpi_HA(int n, const double* a, double* y);
void _zardSinpi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSinpi_ttab[3];
extern float brenn_zar_kernel_dSinpi_ctab[3];

/* dCospi (cost figures 220.2, 220.3, 220.1) */
void _zardCospi_50(int n, const double* a, double* y);
void _zardCospi(int n, const double* a, double* y);
void _zardCospi_HA(int n, const double* a, double* y);
void _zardCospi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCospi_ttab[3];
extern float brenn_zar_kernel_dCospi_ctab[3];

/* dTanpi (cost figures 220.2, 220.3, 220.1) */
void _zardTanpi_50(int n, const double* a, double* y);
void _zardTanpi(int n, const double* a, double* y);
void _zardTanpi_HA(int n, const double* a, double* y);
void _zardTanpi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTanpi_ttab[3];
extern float brenn_zar_kernel_dTanpi_ctab[3];

/* dAcospi (cost figures 220.2, 220.3, 220.1) */
void _zardAcospi_50(int n, const double* a, double* y);
void _zardAcospi(int n, const double* a, double* y);
void _zardAcospi_HA(int n, const double* a, double* y);
void _zardAcospi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAcospi_ttab[3];
extern float brenn_zar_kernel_dAcospi_ctab[3];

/* dAsinpi (cost figures 220.2, 220.3, 220.1) */
void _zardAsinpi_50(int n, const double* a, double* y);
void _zardAsinpi(int n, const double* a, double* y);
void _zardAsinpi_HA(int n, const double* a, double* y);
void _zardAsinpi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAsinpi_ttab[3];
extern float brenn_zar_kernel_dAsinpi_ctab[3];

/* dAtanpi (cost figures 220.2, 220.3, 220.1) */
void _zardAtanpi_50(int n, const double* a, double* y);
void _zardAtanpi(int n, const double* a, double* y);
void _zardAtanpi_HA(int n, const double* a, double* y);
void _zardAtanpi_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dAtanpi_ttab[3];
extern float brenn_zar_kernel_dAtanpi_ctab[3];

/* dExp2 (cost figures 220.3, 220.3, 220.3) */
void _zardExp2_50(int n, const double* a, double* y);
void _zardExp2(int n, const double* a, double* y);
void _zardExp2_HA(int n, const double* a, double* y);
void _zardExp2_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dExp2_ttab[3];
extern float brenn_zar_kernel_dExp2_ctab[3];

/* dExp10 (cost figures 220.3, 220.3, 220.3) */
void _zardExp10_50(int n, const double* a, double* y);
void _zardExp10(int n, const double* a, double* y);
void _zardExp10_HA(int n, const double* a, double* y);
void _zardExp10_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dExp10_ttab[3];
extern float brenn_zar_kernel_dExp10_ctab[3];

/* dLog2 (cost figures 220.2, 220.3, 220.1) */
void _zardLog2_50(int n, const double* a, double* y);
void _zardLog2(int n, const double* a, double* y);
void _zardLog2_HA(int n, const double* a, double* y);
void _zardLog2_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLog2_ttab[3];
extern float brenn_zar_kernel_dLog2_ctab[3];

/* dSind (cost figures 220.2, 220.3, 220.1) */
void _zardSind_50(int n, const double* a, double* y);
void _zardSind(int n, const double* a, double* y);
void _zardSind_HA(int n, const double* a, double* y);
void _zardSind_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dSind_ttab[3];
extern float brenn_zar_kernel_dSind_ctab[3];

/* dCosd (cost figures 220.2, 220.3, 220.1) */
void _zardCosd_50(int n, const double* a, double* y);
void _zardCosd(int n, const double* a, double* y);
void _zardCosd_HA(int n, const double* a, double* y);
void _zardCosd_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dCosd_ttab[3];
extern float brenn_zar_kernel_dCosd_ctab[3];

/* dTand (cost figures 220.2, 220.3, 220.1) */
void _zardTand_50(int n, const double* a, double* y);
void _zardTand(int n, const double* a, double* y);
void _zardTand_HA(int n, const double* a, double* y);
void _zardTand_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dTand_ttab[3];
extern float brenn_zar_kernel_dTand_ctab[3];

/* dLogb (cost figures 220.3, 220.3, 220.3) */
void _zardLogb_50(int n, const double* a, double* y);
void _zardLogb(int n, const double* a, double* y);
void _zardLogb_HA(int n, const double* a, double* y);
void _zardLogb_26(int n, const double* a, double* y);
extern BrennKernel brenn_zar_kernel_dLogb_ttab[3];
extern float brenn_zar_kernel_dLogb_ctab[3];

/* cCos (cost figures 600.0, 600.0, 600.0) */
void _zarcCos_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCos(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCos_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCos_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cCos_ttab[3];
extern float brenn_zar_kernel_cCos_ctab[3];

/* cSin (cost figures 600.0, 600.0, 600.0) */
void _zarcSin_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSin(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSin_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSin_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cSin_ttab[3];
extern float brenn_zar_kernel_cSin_ctab[3];

/* cTan (cost figures 900.0, 900.0, 900.0) */
void _zarcTan_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTan(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTan_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTan_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cTan_ttab[3];
extern float brenn_zar_kernel_cTan_ctab[3];

/* cCosh (cost figures 610.0, 610.0, 610.0) */
void _zarcCosh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCosh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCosh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcCosh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cCosh_ttab[3];
extern float brenn_zar_kernel_cCosh_ctab[3];

/* cSinh (cost figures 610.0, 610.0, 610.0) */
void _zarcSinh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSinh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSinh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSinh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cSinh_ttab[3];
extern float brenn_zar_kernel_cSinh_ctab[3];

/* cTanh (cost figures 880.0, 880.0, 880.0) */
void _zarcTanh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTanh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTanh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcTanh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cTanh_ttab[3];
extern float brenn_zar_kernel_cTanh_ctab[3];

/* cAcos (cost figures 1110.0, 1110.0, 1110.0) */
void _zarcAcos_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcos(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcos_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcos_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAcos_ttab[3];
extern float brenn_zar_kernel_cAcos_ctab[3];

/* cAsin (cost figures 1080.0, 1080.0, 1080.0) */
void _zarcAsin_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsin(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsin_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsin_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAsin_ttab[3];
extern float brenn_zar_kernel_cAsin_ctab[3];

/* cAtan (cost figures 840.0, 840.0, 840.0) */
void _zarcAtan_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtan(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtan_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtan_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAtan_ttab[3];
extern float brenn_zar_kernel_cAtan_ctab[3];

/* cAcosh (cost figures 1150.0, 1150.0, 1150.0) */
void _zarcAcosh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcosh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcosh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAcosh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAcosh_ttab[3];
extern float brenn_zar_kernel_cAcosh_ctab[3];

/* cAsinh (cost figures 1120.0, 1120.0, 1120.0) */
void _zarcAsinh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsinh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsinh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAsinh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAsinh_ttab[3];
extern float brenn_zar_kernel_cAsinh_ctab[3];

/* cAtanh (cost figures 860.0, 860.0, 860.0) */
void _zarcAtanh_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtanh(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtanh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcAtanh_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAtanh_ttab[3];
extern float brenn_zar_kernel_cAtanh_ctab[3];

/* cExp (cost figures 48.6, 71.2, 48.6) */
void _zarcExp_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcExp(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcExp_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcExp_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cExp_ttab[3];
extern float brenn_zar_kernel_cExp_ctab[3];

/* cLn (cost figures 96.4, 118.3, 62.1) */
void _zarcLn_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLn(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLn_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLn_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cLn_ttab[3];
extern float brenn_zar_kernel_cLn_ctab[3];

/* cLog10 (cost figures 128.0, 128.0, 128.0) */
void _zarcLog10_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLog10(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLog10_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcLog10_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cLog10_ttab[3];
extern float brenn_zar_kernel_cLog10_ctab[3];

/* cSqrt (cost figures 42.7, 61.5, 42.7) */
void _zarcSqrt_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSqrt(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSqrt_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcSqrt_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cSqrt_ttab[3];
extern float brenn_zar_kernel_cSqrt_ctab[3];

/* cConj (cost figures 1.0, 1.0, 1.0) */
void _zarcConj_21(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcConj(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcConj_HA(int n, const BrennComplex8* a, BrennComplex8* y);
void _zarcConj_11(int n, const BrennComplex8* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cConj_ttab[3];
extern float brenn_zar_kernel_cConj_ctab[3];

/* zCos (cost figures 1320.0, 1320.0, 1320.0) */
void _zarzCos_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCos(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCos_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCos_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zCos_ttab[3];
extern float brenn_zar_kernel_zCos_ctab[3];

/* zSin (cost figures 1320.0, 1320.0, 1320.0) */
void _zarzSin_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSin(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSin_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSin_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zSin_ttab[3];
extern float brenn_zar_kernel_zSin_ctab[3];

/* zTan (cost figures 1980.0, 1980.0, 1980.0) */
void _zarzTan_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTan(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTan_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTan_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zTan_ttab[3];
extern float brenn_zar_kernel_zTan_ctab[3];

/* zCosh (cost figures 1342.0, 1342.0, 1342.0) */
void _zarzCosh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCosh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCosh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzCosh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zCosh_ttab[3];
extern float brenn_zar_kernel_zCosh_ctab[3];

/* zSinh (cost figures 1342.0, 1342.0, 1342.0) */
void _zarzSinh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSinh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSinh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSinh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zSinh_ttab[3];
extern float brenn_zar_kernel_zSinh_ctab[3];

/* zTanh (cost figures 1936.0, 1936.0, 1936.0) */
void _zarzTanh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTanh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTanh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzTanh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zTanh_ttab[3];
extern float brenn_zar_kernel_zTanh_ctab[3];

/* zAcos (cost figures 2442.0, 2442.0, 2442.0) */
void _zarzAcos_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcos(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcos_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcos_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAcos_ttab[3];
extern float brenn_zar_kernel_zAcos_ctab[3];

/* zAsin (cost figures 2376.0, 2376.0, 2376.0) */
void _zarzAsin_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsin(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsin_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsin_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAsin_ttab[3];
extern float brenn_zar_kernel_zAsin_ctab[3];

/* zAtan (cost figures 1848.0, 1848.0, 1848.0) */
void _zarzAtan_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtan(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtan_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtan_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAtan_ttab[3];
extern float brenn_zar_kernel_zAtan_ctab[3];

/* zAcosh (cost figures 2530.0, 2530.0, 2530.0) */
void _zarzAcosh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcosh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcosh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAcosh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAcosh_ttab[3];
extern float brenn_zar_kernel_zAcosh_ctab[3];

/* zAsinh (cost figures 2464.0, 2464.0, 2464.0) */
void _zarzAsinh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsinh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsinh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAsinh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAsinh_ttab[3];
extern float brenn_zar_kernel_zAsinh_ctab[3];

/* zAtanh (cost figures 1892.0, 1892.0, 1892.0) */
void _zarzAtanh_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtanh(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtanh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzAtanh_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAtanh_ttab[3];
extern float brenn_zar_kernel_zAtanh_ctab[3];

/* zExp (cost figures 106.92, 156.64, 106.92) */
void _zarzExp_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzExp(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzExp_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzExp_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zExp_ttab[3];
extern float brenn_zar_kernel_zExp_ctab[3];

/* zLn (cost figures 212.08, 260.26, 136.62) */
void _zarzLn_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLn(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLn_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLn_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zLn_ttab[3];
extern float brenn_zar_kernel_zLn_ctab[3];

/* zLog10 (cost figures 281.6, 281.6, 281.6) */
void _zarzLog10_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLog10(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLog10_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzLog10_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zLog10_ttab[3];
extern float brenn_zar_kernel_zLog10_ctab[3];

/* zSqrt (cost figures 180.5, 180.5, 180.5) */
void _zarzSqrt_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSqrt(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSqrt_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzSqrt_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zSqrt_ttab[3];
extern float brenn_zar_kernel_zSqrt_ctab[3];

/* zConj (cost figures 2.0, 2.0, 2.0) */
void _zarzConj_50(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzConj(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzConj_HA(int n, const BrennComplex16* a, BrennComplex16* y);
void _zarzConj_26(int n, const BrennComplex16* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zConj_ttab[3];
extern float brenn_zar_kernel_zConj_ctab[3];

/* cCIS (cost figures 22.4, 41.3, 14.6) */
void _zarcCIS_21(int n, const float* a, BrennComplex8* y);
void _zarcCIS(int n, const float* a, BrennComplex8* y);
void _zarcCIS_HA(int n, const float* a, BrennComplex8* y);
void _zarcCIS_11(int n, const float* a, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cCIS_ttab[3];
extern float brenn_zar_kernel_cCIS_ctab[3];

/* zCIS (cost figures 49.28, 90.86, 32.12) */
void _zarzCIS_50(int n, const double* a, BrennComplex16* y);
void _zarzCIS(int n, const double* a, BrennComplex16* y);
void _zarzCIS_HA(int n, const double* a, BrennComplex16* y);
void _zarzCIS_26(int n, const double* a, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zCIS_ttab[3];
extern float brenn_zar_kernel_zCIS_ctab[3];

/* cAbs (cost figures 3.2, 6.8, 2.2) */
void _zarcAbs_21(int n, const BrennComplex8* a, float* y);
void _zarcAbs(int n, const BrennComplex8* a, float* y);
void _zarcAbs_HA(int n, const BrennComplex8* a, float* y);
void _zarcAbs_11(int n, const BrennComplex8* a, float* y);
extern BrennKernel brenn_zar_kernel_cAbs_ttab[3];
extern float brenn_zar_kernel_cAbs_ctab[3];

/* cArg (cost figures 12.3, 15.6, 8.4) */
void _zarcArg_21(int n, const BrennComplex8* a, float* y);
void _zarcArg(int n, const BrennComplex8* a, float* y);
void _zarcArg_HA(int n, const BrennComplex8* a, float* y);
void _zarcArg_11(int n, const BrennComplex8* a, float* y);
extern BrennKernel brenn_zar_kernel_cArg_ttab[3];
extern float brenn_zar_kernel_cArg_ctab[3];

/* zAbs (cost figures 7.04, 14.96, 4.84) */
void _zarzAbs_50(int n, const BrennComplex16* a, double* y);
void _zarzAbs(int n, const BrennComplex16* a, double* y);
void _zarzAbs_HA(int n, const BrennComplex16* a, double* y);
void _zarzAbs_26(int n, const BrennComplex16* a, double* y);
extern BrennKernel brenn_zar_kernel_zAbs_ttab[3];
extern float brenn_zar_kernel_zAbs_ctab[3];

/* zArg (cost figures 27.06, 34.32, 18.48) */
void _zarzArg_50(int n, const BrennComplex16* a, double* y);
void _zarzArg(int n, const BrennComplex16* a, double* y);
void _zarzArg_HA(int n, const BrennComplex16* a, double* y);
void _zarzArg_26(int n, const BrennComplex16* a, double* y);
extern BrennKernel brenn_zar_kernel_zArg_ttab[3];
extern float brenn_zar_kernel_zArg_ctab[3];

/* sDiv (cost figures 2.24, 1.11, 1.56) */
void _zarsDiv_21(int n, const float* a, const float* b, float* y);
void _zarsDiv(int n, const float* a, const float* b, float* y);
void _zarsDiv_HA(int n, const float* a, const float* b, float* y);
void _zarsDiv_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sDiv_ttab[3];
extern float brenn_zar_kernel_sDiv_ctab[3];

/* sPow (cost figures 21.26, 22.23, 9.87) */
void _zarsPow_21(int n, const float* a, const float* b, float* y);
void _zarsPow(int n, const float* a, const float* b, float* y);
void _zarsPow_HA(int n, const float* a, const float* b, float* y);
void _zarsPow_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sPow_ttab[3];
extern float brenn_zar_kernel_sPow_ctab[3];

/* sAtan2 (cost figures 11.6, 14.4, 7.9) */
void _zarsAtan2_21(int n, const float* a, const float* b, float* y);
void _zarsAtan2(int n, const float* a, const float* b, float* y);
void _zarsAtan2_HA(int n, const float* a, const float* b, float* y);
void _zarsAtan2_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sAtan2_ttab[3];
extern float brenn_zar_kernel_sAtan2_ctab[3];

/* sHypot (cost figures 2.9, 4.1, 2.0) */
void _zarsHypot_21(int n, const float* a, const float* b, float* y);
void _zarsHypot(int n, const float* a, const float* b, float* y);
void _zarsHypot_HA(int n, const float* a, const float* b, float* y);
void _zarsHypot_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sHypot_ttab[3];
extern float brenn_zar_kernel_sHypot_ctab[3];

/* sAdd (cost figures 0.64, 0.64, 0.64) */
void _zarsAdd_21(int n, const float* a, const float* b, float* y);
void _zarsAdd(int n, const float* a, const float* b, float* y);
void _zarsAdd_HA(int n, const float* a, const float* b, float* y);
void _zarsAdd_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sAdd_ttab[3];
extern float brenn_zar_kernel_sAdd_ctab[3];

/* sSub (cost figures 0.61, 0.61, 0.61) */
void _zarsSub_21(int n, const float* a, const float* b, float* y);
void _zarsSub(int n, const float* a, const float* b, float* y);
void _zarsSub_HA(int n, const float* a, const float* b, float* y);
void _zarsSub_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sSub_ttab[3];
extern float brenn_zar_kernel_sSub_ctab[3];

/* sMul (cost figures 0.61, 0.61, 0.61) */
void _zarsMul_21(int n, const float* a, const float* b, float* y);
void _zarsMul(int n, const float* a, const float* b, float* y);
void _zarsMul_HA(int n, const float* a, const float* b, float* y);
void _zarsMul_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sMul_ttab[3];
extern float brenn_zar_kernel_sMul_ctab[3];

/* sAtan2pi (cost figures 220.2, 220.3, 220.1) */
void _zarsAtan2pi_21(int n, const float* a, const float* b, float* y);
void _zarsAtan2pi(int n, const float* a, const float* b, float* y);
void _zarsAtan2pi_HA(int n, const float* a, const float* b, float* y);
void _zarsAtan2pi_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sAtan2pi_ttab[3];
extern float brenn_zar_kernel_sAtan2pi_ctab[3];

/* sCopySign (cost figures 220.3, 220.3, 220.3) */
void _zarsCopySign_21(int n, const float* a, const float* b, float* y);
void _zarsCopySign(int n, const float* a, const float* b, float* y);
void _zarsCopySign_HA(int n, const float* a, const float* b, float* y);
void _zarsCopySign_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sCopySign_ttab[3];
extern float brenn_zar_kernel_sCopySign_ctab[3];

/* sNextAfter (cost figures 220.3, 220.3, 220.3) */
void _zarsNextAfter_21(int n, const float* a, const float* b, float* y);
void _zarsNextAfter(int n, const float* a, const float* b, float* y);
void _zarsNextAfter_HA(int n, const float* a, const float* b, float* y);
void _zarsNextAfter_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sNextAfter_ttab[3];
extern float brenn_zar_kernel_sNextAfter_ctab[3];

/* sFdim (cost figures 220.3, 220.3, 220.3) */
void _zarsFdim_21(int n, const float* a, const float* b, float* y);
void _zarsFdim(int n, const float* a, const float* b, float* y);
void _zarsFdim_HA(int n, const float* a, const float* b, float* y);
void _zarsFdim_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sFdim_ttab[3];
extern float brenn_zar_kernel_sFdim_ctab[3];

/* sFmax (cost figures 220.3, 220.3, 220.3) */
void _zarsFmax_21(int n, const float* a, const float* b, float* y);
void _zarsFmax(int n, const float* a, const float* b, float* y);
void _zarsFmax_HA(int n, const float* a, const float* b, float* y);
void _zarsFmax_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sFmax_ttab[3];
extern float brenn_zar_kernel_sFmax_ctab[3];

/* sFmin (cost figures 220.3, 220.3, 220.3) */
void _zarsFmin_21(int n, const float* a, const float* b, float* y);
void _zarsFmin(int n, const float* a, const float* b, float* y);
void _zarsFmin_HA(int n, const float* a, const float* b, float* y);
void _zarsFmin_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sFmin_ttab[3];
extern float brenn_zar_kernel_sFmin_ctab[3];

/* sMaxMag (cost figures 220.3, 220.3, 220.3) */
void _zarsMaxMag_21(int n, const float* a, const float* b, float* y);
void _zarsMaxMag(int n, const float* a, const float* b, float* y);
void _zarsMaxMag_HA(int n, const float* a, const float* b, float* y);
void _zarsMaxMag_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sMaxMag_ttab[3];
extern float brenn_zar_kernel_sMaxMag_ctab[3];

/* sMinMag (cost figures 220.3, 220.3, 220.3) */
void _zarsMinMag_21(int n, const float* a, const float* b, float* y);
void _zarsMinMag(int n, const float* a, const float* b, float* y);
void _zarsMinMag_HA(int n, const float* a, const float* b, float* y);
void _zarsMinMag_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sMinMag_ttab[3];
extern float brenn_zar_kernel_sMinMag_ctab[3];

/* sPowr (cost figures 220.2, 220.3, 220.1) */
void _zarsPowr_21(int n, const float* a, const float* b, float* y);
void _zarsPowr(int n, const float* a, const float* b, float* y);
void _zarsPowr_HA(int n, const float* a, const float* b, float* y);
void _zarsPowr_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sPowr_ttab[3];
extern float brenn_zar_kernel_sPowr_ctab[3];

/* sRemainder (cost figures 220.3, 220.3, 220.3) */
void _zarsRemainder_21(int n, const float* a, const float* b, float* y);
void _zarsRemainder(int n, const float* a, const float* b, float* y);
void _zarsRemainder_HA(int n, const float* a, const float* b, float* y);
void _zarsRemainder_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sRemainder_ttab[3];
extern float brenn_zar_kernel_sRemainder_ctab[3];

/* sFmod (cost figures 220.3, 220.3, 220.3) */
void _zarsFmod_21(int n, const float* a, const float* b, float* y);
void _zarsFmod(int n, const float* a, const float* b, float* y);
void _zarsFmod_HA(int n, const float* a, const float* b, float* y);
void _zarsFmod_11(int n, const float* a, const float* b, float* y);
extern BrennKernel brenn_zar_kernel_sFmod_ttab[3];
extern float brenn_zar_kernel_sFmod_ctab[3];

/* dDiv (cost figures 9.41, 3.59, 8.07) */
void _zardDiv_50(int n, const double* a, const double* b, double* y);
void _zardDiv(int n, const double* a, const double* b, double* y);
void _zardDiv_HA(int n, const double* a, const double* b, double* y);
void _zardDiv_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dDiv_ttab[3];
extern float brenn_zar_kernel_dDiv_ctab[3];

/* dPow (cost figures 40.11, 42.21, 21.63) */
void _zardPow_50(int n, const double* a, const double* b, double* y);
void _zardPow(int n, const double* a, const double* b, double* y);
void _zardPow_HA(int n, const double* a, const double* b, double* y);
void _zardPow_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dPow_ttab[3];
extern float brenn_zar_kernel_dPow_ctab[3];

/* dAtan2 (cost figures 27.84, 34.56, 18.96) */
void _zardAtan2_50(int n, const double* a, const double* b, double* y);
void _zardAtan2(int n, const double* a, const double* b, double* y);
void _zardAtan2_HA(int n, const double* a, const double* b, double* y);
void _zardAtan2_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dAtan2_ttab[3];
extern float brenn_zar_kernel_dAtan2_ctab[3];

/* dHypot (cost figures 6.96, 9.84, 4.8) */
void _zardHypot_50(int n, const double* a, const double* b, double* y);
void _zardHypot(int n, const double* a, const double* b, double* y);
void _zardHypot_HA(int n, const double* a, const double* b, double* y);
void _zardHypot_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dHypot_ttab[3];
extern float brenn_zar_kernel_dHypot_ctab[3];

/* dAdd (cost figures 1.16, 1.16, 1.16) */
void _zardAdd_50(int n, const double* a, const double* b, double* y);
void _zardAdd(int n, const double* a, const double* b, double* y);
void _zardAdd_HA(int n, const double* a, const double* b, double* y);
void _zardAdd_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dAdd_ttab[3];
extern float brenn_zar_kernel_dAdd_ctab[3];

/* dSub (cost figures 1.16, 1.16, 1.16) */
void _zardSub_50(int n, const double* a, const double* b, double* y);
void _zardSub(int n, const double* a, const double* b, double* y);
void _zardSub_HA(int n, const double* a, const double* b, double* y);
void _zardSub_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dSub_ttab[3];
extern float brenn_zar_kernel_dSub_ctab[3];

/* dMul (cost figures 1.13, 1.13, 1.13) */
void _zardMul_50(int n, const double* a, const double* b, double* y);
void _zardMul(int n, const double* a, const double* b, double* y);
void _zardMul_HA(int n, const double* a, const double* b, double* y);
void _zardMul_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dMul_ttab[3];
extern float brenn_zar_kernel_dMul_ctab[3];

/* dAtan2pi (cost figures 220.2, 220.3, 220.1) */
void _zardAtan2pi_50(int n, const double* a, const double* b, double* y);
void _zardAtan2pi(int n, const double* a, const double* b, double* y);
void _zardAtan2pi_HA(int n, const double* a, const double* b, double* y);
void _zardAtan2pi_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dAtan2pi_ttab[3];
extern float brenn_zar_kernel_dAtan2pi_ctab[3];

/* dCopySign (cost figures 220.3, 220.3, 220.3) */
void _zardCopySign_50(int n, const double* a, const double* b, double* y);
void _zardCopySign(int n, const double* a, const double* b, double* y);
void _zardCopySign_HA(int n, const double* a, const double* b, double* y);
void _zardCopySign_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dCopySign_ttab[3];
extern float brenn_zar_kernel_dCopySign_ctab[3];

/* dNextAfter (cost figures 220.3, 220.3, 220.3) */
void _zardNextAfter_50(int n, const double* a, const double* b, double* y);
void _zardNextAfter(int n, const double* a, const double* b, double* y);
void _zardNextAfter_HA(int n, const double* a, const double* b, double* y);
void _zardNextAfter_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dNextAfter_ttab[3];
extern float brenn_zar_kernel_dNextAfter_ctab[3];

/* dFdim (cost figures 220.3, 220.3, 220.3) */
void _zardFdim_50(int n, const double* a, const double* b, double* y);
void _zardFdim(int n, const double* a, const double* b, double* y);
void _zardFdim_HA(int n, const double* a, const double* b, double* y);
void _zardFdim_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dFdim_ttab[3];
extern float brenn_zar_kernel_dFdim_ctab[3];

/* dFmax (cost figures 220.3, 220.3, 220.3) */
void _zardFmax_50(int n, const double* a, const double* b, double* y);
void _zardFmax(int n, const double* a, const double* b, double* y);
void _zardFmax_HA(int n, const double* a, const double* b, double* y);
void _zardFmax_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dFmax_ttab[3];
extern float brenn_zar_kernel_dFmax_ctab[3];

/* dFmin (cost figures 220.3, 220.3, 220.3) */
void _zardFmin_50(int n, const double* a, const double* b, double* y);
void _zardFmin(int n, const double* a, const double* b, double* y);
void _zardFmin_HA(int n, const double* a, const double* b, double* y);
void _zardFmin_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dFmin_ttab[3];
extern float brenn_zar_kernel_dFmin_ctab[3];

/* dMaxMag (cost figures 220.3, 220.3, 220.3) */
void _zardMaxMag_50(int n, const double* a, const double* b, double* y);
void _zardMaxMag(int n, const double* a, const double* b, double* y);
void _zardMaxMag_HA(int n, const double* a, const double* b, double* y);
void _zardMaxMag_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dMaxMag_ttab[3];
extern float brenn_zar_kernel_dMaxMag_ctab[3];

/* dMinMag (cost figures 220.3, 220.3, 220.3) */
void _zardMinMag_50(int n, const double* a, const double* b, double* y);
void _zardMinMag(int n, const double* a, const double* b, double* y);
void _zardMinMag_HA(int n, const double* a, const double* b, double* y);
void _zardMinMag_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dMinMag_ttab[3];
extern float brenn_zar_kernel_dMinMag_ctab[3];

/* dPowr (cost figures 220.2, 220.3, 220.1) */
void _zardPowr_50(int n, const double* a, const double* b, double* y);
void _zardPowr(int n, const double* a, const double* b, double* y);
void _zardPowr_HA(int n, const double* a, const double* b, double* y);
void _zardPowr_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dPowr_ttab[3];
extern float brenn_zar_kernel_dPowr_ctab[3];

/* dRemainder (cost figures 220.3, 220.3, 220.3) */
void _zardRemainder_50(int n, const double* a, const double* b, double* y);
void _zardRemainder(int n, const double* a, const double* b, double* y);
void _zardRemainder_HA(int n, const double* a, const double* b, double* y);
void _zardRemainder_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dRemainder_ttab[3];
extern float brenn_zar_kernel_dRemainder_ctab[3];

/* dFmod (cost figures 220.3, 220.3, 220.3) */
void _zardFmod_50(int n, const double* a, const double* b, double* y);
void _zardFmod(int n, const double* a, const double* b, double* y);
void _zardFmod_HA(int n, const double* a, const double* b, double* y);
void _zardFmod_26(int n, const double* a, const double* b, double* y);
extern BrennKernel brenn_zar_kernel_dFmod_ttab[3];
extern float brenn_zar_kernel_dFmod_ctab[3];

/* cDiv (cost figures 9.6, 9.6, 6.1) */
void _zarcDiv_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcDiv(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcDiv_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcDiv_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cDiv_ttab[3];
extern float brenn_zar_kernel_cDiv_ctab[3];

/* cPow (cost figures 520.0, 520.0, 520.0) */
void _zarcPow_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcPow(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcPow_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcPow_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cPow_ttab[3];
extern float brenn_zar_kernel_cPow_ctab[3];

/* cAdd (cost figures 1.28, 1.28, 1.1) */
void _zarcAdd_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcAdd(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcAdd_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcAdd_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cAdd_ttab[3];
extern float brenn_zar_kernel_cAdd_ctab[3];

/* cSub (cost figures 1.28, 1.28, 1.1) */
void _zarcSub_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcSub(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcSub_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcSub_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cSub_ttab[3];
extern float brenn_zar_kernel_cSub_ctab[3];

/* cMul (cost figures 4.9, 4.9, 2.1) */
void _zarcMul_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMul(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMul_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMul_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cMul_ttab[3];
extern float brenn_zar_kernel_cMul_ctab[3];

/* cMulByConj (cost figures 5.1, 5.1, 2.2) */
void _zarcMulByConj_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMulByConj(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMulByConj_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
void _zarcMulByConj_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cMulByConj_ttab[3];
extern float brenn_zar_kernel_cMulByConj_ctab[3];

/* zDiv (cost figures 21.12, 21.12, 13.42) */
void _zarzDiv_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzDiv(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzDiv_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzDiv_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zDiv_ttab[3];
extern float brenn_zar_kernel_zDiv_ctab[3];

/* zPow (cost figures 1144.0, 1144.0, 1144.0) */
void _zarzPow_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzPow(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzPow_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzPow_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zPow_ttab[3];
extern float brenn_zar_kernel_zPow_ctab[3];

/* zAdd (cost figures 2.82, 2.82, 2.42) */
void _zarzAdd_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzAdd(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzAdd_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzAdd_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zAdd_ttab[3];
extern float brenn_zar_kernel_zAdd_ctab[3];

/* zSub (cost figures 2.82, 2.82, 2.42) */
void _zarzSub_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzSub(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzSub_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzSub_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zSub_ttab[3];
extern float brenn_zar_kernel_zSub_ctab[3];

/* zMul (cost figures 58.72, 58.72, 4.63) */
void _zarzMul_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMul(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMul_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMul_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zMul_ttab[3];
extern float brenn_zar_kernel_zMul_ctab[3];

/* zMulByConj (cost figures 11.22, 11.22, 4.84) */
void _zarzMulByConj_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMulByConj(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMulByConj_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
void _zarzMulByConj_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zMulByConj_ttab[3];
extern float brenn_zar_kernel_zMulByConj_ctab[3];

/* cPowx (cost figures 540.0, 540.0, 540.0) */
void _zarcPowx_21(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
void _zarcPowx(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
void _zarcPowx_HA(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
void _zarcPowx_11(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
extern BrennKernel brenn_zar_kernel_cPowx_ttab[3];
extern float brenn_zar_kernel_cPowx_ctab[3];

/* zPowx (cost figures 1188.0, 1188.0, 1188.0) */
void _zarzPowx_50(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
void _zarzPowx(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
void _zarzPowx_HA(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
void _zarzPowx_26(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
extern BrennKernel brenn_zar_kernel_zPowx_ttab[3];
extern float brenn_zar_kernel_zPowx_ctab[3];

/* sPowx (cost figures 21.0, 22.0, 9.9) */
void _zarsPowx_21(int n, const float* a, float b, float* y);
void _zarsPowx(int n, const float* a, float b, float* y);
void _zarsPowx_HA(int n, const float* a, float b, float* y);
void _zarsPowx_11(int n, const float* a, float b, float* y);
extern BrennKernel brenn_zar_kernel_sPowx_ttab[3];
extern float brenn_zar_kernel_sPowx_ctab[3];

/* dPowx (cost figures 39.8, 41.9, 21.4) */
void _zardPowx_50(int n, const double* a, double b, double* y);
void _zardPowx(int n, const double* a, double b, double* y);
void _zardPowx_HA(int n, const double* a, double b, double* y);
void _zardPowx_26(int n, const double* a, double b, double* y);
extern BrennKernel brenn_zar_kernel_dPowx_ttab[3];
extern float brenn_zar_kernel_dPowx_ctab[3];

/* sSinCos (cost figures 16.35, 21.44, 10.89) */
void _zarsSinCos_21(int n, const float* a, float* y, float* z);
void _zarsSinCos(int n, const float* a, float* y, float* z);
void _zarsSinCos_HA(int n, const float* a, float* y, float* z);
void _zarsSinCos_11(int n, const float* a, float* y, float* z);
extern BrennKernel brenn_zar_kernel_sSinCos_ttab[3];
extern float brenn_zar_kernel_sSinCos_ctab[3];

/* sModf (cost figures 1.45, 1.45, 1.45) */
void _zarsModf_21(int n, const float* a, float* y, float* z);
void _zarsModf(int n, const float* a, float* y, float* z);
void _zarsModf_HA(int n, const float* a, float* y, float* z);
void _zarsModf_11(int n, const float* a, float* y, float* z);
extern BrennKernel brenn_zar_kernel_sModf_ttab[3];
extern float brenn_zar_kernel_sModf_ctab[3];

/* dSinCos (cost figures 37.58, 76.82, 20.02) */
void _zardSinCos_50(int n, const double* a, double* y, double* z);
void _zardSinCos(int n, const double* a, double* y, double* z);
void _zardSinCos_HA(int n, const double* a, double* y, double* z);
void _zardSinCos_26(int n, const double* a, double* y, double* z);
extern BrennKernel brenn_zar_kernel_dSinCos_ttab[3];
extern float brenn_zar_kernel_dSinCos_ctab[3];

/* dModf (cost figures 3.35, 3.35, 3.35) */
void _zardModf_50(int n, const double* a, double* y, double* z);
void _zardModf(int n, const double* a, double* y, double* z);
void _zardModf_HA(int n, const double* a, double* y, double* z);
void _zardModf_26(int n, const double* a, double* y, double* z);
extern BrennKernel brenn_zar_kernel_dModf_ttab[3];
extern float brenn_zar_kernel_dModf_ctab[3];

/* sLinearFrac (cost figures 1.13, 1.13, 1.13) */
void _zarsLinearFrac_21(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
void _zarsLinearFrac(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
void _zarsLinearFrac_HA(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
void _zarsLinearFrac_11(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
extern BrennKernel brenn_zar_kernel_sLinearFrac_ttab[3];
extern float brenn_zar_kernel_sLinearFrac_ctab[3];

/* dLinearFrac (cost figures 3.77, 3.77, 3.77) */
void _zardLinearFrac_50(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
void _zardLinearFrac(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
void _zardLinearFrac_HA(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
void _zardLinearFrac_26(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
extern BrennKernel brenn_zar_kernel_dLinearFrac_ttab[3];
extern float brenn_zar_kernel_dLinearFrac_ctab[3];

/* sPackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsPackI_21(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
void _zarsPackI(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
void _zarsPackI_HA(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
void _zarsPackI_11(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_sPackI_ttab[3];
extern float brenn_zar_kernel_sPackI_ctab[3];

/* dPackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zardPackI_50(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
void _zardPackI(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
void _zardPackI_HA(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
void _zardPackI_26(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_dPackI_ttab[3];
extern float brenn_zar_kernel_dPackI_ctab[3];

/* cPackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcPackI_21(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
void _zarcPackI(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
void _zarcPackI_HA(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
void _zarcPackI_11(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_cPackI_ttab[3];
extern float brenn_zar_kernel_cPackI_ctab[3];

/* zPackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzPackI_50(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
void _zarzPackI(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
void _zarzPackI_HA(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
void _zarzPackI_26(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_zPackI_ttab[3];
extern float brenn_zar_kernel_zPackI_ctab[3];

/* sPackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsPackM_21(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
void _zarsPackM(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
void _zarsPackM_HA(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
void _zarsPackM_11(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_sPackM_ttab[3];
extern float brenn_zar_kernel_sPackM_ctab[3];

/* dPackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zardPackM_50(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
void _zardPackM(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
void _zardPackM_HA(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
void _zardPackM_26(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_dPackM_ttab[3];
extern float brenn_zar_kernel_dPackM_ctab[3];

/* cPackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcPackM_21(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
void _zarcPackM(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
void _zarcPackM_HA(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
void _zarcPackM_11(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_cPackM_ttab[3];
extern float brenn_zar_kernel_cPackM_ctab[3];

/* zPackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzPackM_50(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
void _zarzPackM(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
void _zarzPackM_HA(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
void _zarzPackM_26(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_zPackM_ttab[3];
extern float brenn_zar_kernel_zPackM_ctab[3];

/* sPackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsPackV_21(int64_t n, const float* a, const void* index, float* y, int32_t flag);
void _zarsPackV(int64_t n, const float* a, const void* index, float* y, int32_t flag);
void _zarsPackV_HA(int64_t n, const float* a, const void* index, float* y, int32_t flag);
void _zarsPackV_11(int64_t n, const float* a, const void* index, float* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_sPackV_ttab[3];
extern float brenn_zar_kernel_sPackV_ctab[3];

/* dPackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zardPackV_50(int64_t n, const double* a, const void* index, double* y, int32_t flag);
void _zardPackV(int64_t n, const double* a, const void* index, double* y, int32_t flag);
void _zardPackV_HA(int64_t n, const double* a, const void* index, double* y, int32_t flag);
void _zardPackV_26(int64_t n, const double* a, const void* index, double* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_dPackV_ttab[3];
extern float brenn_zar_kernel_dPackV_ctab[3];

/* cPackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcPackV_21(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
void _zarcPackV(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
void _zarcPackV_HA(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
void _zarcPackV_11(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_cPackV_ttab[3];
extern float brenn_zar_kernel_cPackV_ctab[3];

/* zPackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzPackV_50(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
void _zarzPackV(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
void _zarzPackV_HA(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
void _zarzPackV_26(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
extern BrennKernel brenn_zar_kernel_zPackV_ttab[3];
extern float brenn_zar_kernel_zPackV_ctab[3];

/* sUnpackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsUnpackI_21(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
void _zarsUnpackI(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
void _zarsUnpackI_HA(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
void _zarsUnpackI_11(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
extern BrennKernel brenn_zar_kernel_sUnpackI_ttab[3];
extern float brenn_zar_kernel_sUnpackI_ctab[3];

/* dUnpackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zardUnpackI_50(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
void _zardUnpackI(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
void _zardUnpackI_HA(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
void _zardUnpackI_26(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
extern BrennKernel brenn_zar_kernel_dUnpackI_ttab[3];
extern float brenn_zar_kernel_dUnpackI_ctab[3];

/* cUnpackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcUnpackI_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
void _zarcUnpackI(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
void _zarcUnpackI_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
void _zarcUnpackI_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
extern BrennKernel brenn_zar_kernel_cUnpackI_ttab[3];
extern float brenn_zar_kernel_cUnpackI_ctab[3];

/* zUnpackI (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzUnpackI_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
void _zarzUnpackI(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
void _zarzUnpackI_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
void _zarzUnpackI_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
extern BrennKernel brenn_zar_kernel_zUnpackI_ttab[3];
extern float brenn_zar_kernel_zUnpackI_ctab[3];

/* sUnpackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsUnpackM_21(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
void _zarsUnpackM(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
void _zarsUnpackM_HA(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
void _zarsUnpackM_11(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
extern BrennKernel brenn_zar_kernel_sUnpackM_ttab[3];
extern float brenn_zar_kernel_sUnpackM_ctab[3];

/* dUnpackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zardUnpackM_50(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
void _zardUnpackM(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
void _zardUnpackM_HA(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
void _zardUnpackM_26(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
extern BrennKernel brenn_zar_kernel_dUnpackM_ttab[3];
extern float brenn_zar_kernel_dUnpackM_ctab[3];

/* cUnpackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcUnpackM_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
void _zarcUnpackM(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
void _zarcUnpackM_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
void _zarcUnpackM_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
extern BrennKernel brenn_zar_kernel_cUnpackM_ttab[3];
extern float brenn_zar_kernel_cUnpackM_ctab[3];

/* zUnpackM (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzUnpackM_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
void _zarzUnpackM(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
void _zarzUnpackM_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
void _zarzUnpackM_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
extern BrennKernel brenn_zar_kernel_zUnpackM_ttab[3];
extern float brenn_zar_kernel_zUnpackM_ctab[3];

/* sUnpackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarsUnpackV_21(int64_t n, const float* a, float* y, const void* index, int32_t flag);
void _zarsUnpackV(int64_t n, const float* a, float* y, const void* index, int32_t flag);
void _zarsUnpackV_HA(int64_t n, const float* a, float* y, const void* index, int32_t flag);
void _zarsUnpackV_11(int64_t n, const float* a, float* y, const void* index, int32_t flag);
extern BrennKernel brenn_zar_kernel_sUnpackV_ttab[3];
extern float brenn_zar_kernel_sUnpackV_ctab[3];

/* dUnpackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zardUnpackV_50(int64_t n, const double* a, double* y, const void* index, int32_t flag);
void _zardUnpackV(int64_t n, const double* a, double* y, const void* index, int32_t flag);
void _zardUnpackV_HA(int64_t n, const double* a, double* y, const void* index, int32_t flag);
void _zardUnpackV_26(int64_t n, const double* a, double* y, const void* index, int32_t flag);
extern BrennKernel brenn_zar_kernel_dUnpackV_ttab[3];
extern float brenn_zar_kernel_dUnpackV_ctab[3];

/* cUnpackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarcUnpackV_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
void _zarcUnpackV(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
void _zarcUnpackV_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
void _zarcUnpackV_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
extern BrennKernel brenn_zar_kernel_cUnpackV_ttab[3];
extern float brenn_zar_kernel_cUnpackV_ctab[3];

/* zUnpackV (cost figures 1111.0, 1111.0, 1111.0) */
void _zarzUnpackV_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
void _zarzUnpackV(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
void _zarzUnpackV_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
void _zarzUnpackV_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
extern BrennKernel brenn_zar_kernel_zUnpackV_ttab[3];
extern float brenn_zar_kernel_zUnpackV_ctab[3];

#ifdef __cplusplus
}
#endif

#endif
