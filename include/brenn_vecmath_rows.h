/** @file brenn_vecmath_rows.h
 * Generated from frame/rows.def by frame/gen/gen_exports; do not edit.
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

/** @name sCeil
 * Ceil of single-precision vectors (cost figures 0.5, 0.5, 0.5).
 * @{ */
/** @brief sCeil at the LA level.
 * @details y[i] = Ceil(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCeil_21(int n, const float* a, float* y);
/** @brief sCeil at the HA level (the plain name). @copydetails _zarsCeil_21 */
void _zarsCeil(int n, const float* a, float* y);
/** @brief sCeil at the HA level. @copydetails _zarsCeil_21 */
void _zarsCeil_HA(int n, const float* a, float* y);
/** @brief sCeil at the EP level. @copydetails _zarsCeil_21 */
void _zarsCeil_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCeil_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.5, 0.5, 0.5. */
extern float brenn_zar_kernel_sCeil_ctab[3];
/** @} */

/** @name sFloor
 * Floor of single-precision vectors (cost figures 0.4, 0.4, 0.4).
 * @{ */
/** @brief sFloor at the LA level.
 * @details y[i] = Floor(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsFloor_21(int n, const float* a, float* y);
/** @brief sFloor at the HA level (the plain name). @copydetails _zarsFloor_21 */
void _zarsFloor(int n, const float* a, float* y);
/** @brief sFloor at the HA level. @copydetails _zarsFloor_21 */
void _zarsFloor_HA(int n, const float* a, float* y);
/** @brief sFloor at the EP level. @copydetails _zarsFloor_21 */
void _zarsFloor_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFloor_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.4, 0.4, 0.4. */
extern float brenn_zar_kernel_sFloor_ctab[3];
/** @} */

/** @name sFrac
 * Frac of single-precision vectors (cost figures 1.27, 1.27, 1.27).
 * @{ */
/** @brief sFrac at the LA level.
 * @details y[i] = Frac(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsFrac_21(int n, const float* a, float* y);
/** @brief sFrac at the HA level (the plain name). @copydetails _zarsFrac_21 */
void _zarsFrac(int n, const float* a, float* y);
/** @brief sFrac at the HA level. @copydetails _zarsFrac_21 */
void _zarsFrac_HA(int n, const float* a, float* y);
/** @brief sFrac at the EP level. @copydetails _zarsFrac_21 */
void _zarsFrac_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFrac_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.27, 1.27, 1.27. */
extern float brenn_zar_kernel_sFrac_ctab[3];
/** @} */

/** @name sNearbyInt
 * NearbyInt of single-precision vectors (cost figures 0.42, 0.42, 0.42).
 * @{ */
/** @brief sNearbyInt at the LA level.
 * @details y[i] = NearbyInt(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsNearbyInt_21(int n, const float* a, float* y);
/** @brief sNearbyInt at the HA level (the plain name). @copydetails _zarsNearbyInt_21 */
void _zarsNearbyInt(int n, const float* a, float* y);
/** @brief sNearbyInt at the HA level. @copydetails _zarsNearbyInt_21 */
void _zarsNearbyInt_HA(int n, const float* a, float* y);
/** @brief sNearbyInt at the EP level. @copydetails _zarsNearbyInt_21 */
void _zarsNearbyInt_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sNearbyInt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.42, 0.42, 0.42. */
extern float brenn_zar_kernel_sNearbyInt_ctab[3];
/** @} */

/** @name sRint
 * Rint of single-precision vectors (cost figures 0.4, 0.4, 0.4).
 * @{ */
/** @brief sRint at the LA level.
 * @details y[i] = Rint(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsRint_21(int n, const float* a, float* y);
/** @brief sRint at the HA level (the plain name). @copydetails _zarsRint_21 */
void _zarsRint(int n, const float* a, float* y);
/** @brief sRint at the HA level. @copydetails _zarsRint_21 */
void _zarsRint_HA(int n, const float* a, float* y);
/** @brief sRint at the EP level. @copydetails _zarsRint_21 */
void _zarsRint_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sRint_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.4, 0.4, 0.4. */
extern float brenn_zar_kernel_sRint_ctab[3];
/** @} */

/** @name sRound
 * Round of single-precision vectors (cost figures 1.05, 1.05, 1.05).
 * @{ */
/** @brief sRound at the LA level.
 * @details y[i] = Round(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsRound_21(int n, const float* a, float* y);
/** @brief sRound at the HA level (the plain name). @copydetails _zarsRound_21 */
void _zarsRound(int n, const float* a, float* y);
/** @brief sRound at the HA level. @copydetails _zarsRound_21 */
void _zarsRound_HA(int n, const float* a, float* y);
/** @brief sRound at the EP level. @copydetails _zarsRound_21 */
void _zarsRound_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sRound_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.05, 1.05, 1.05. */
extern float brenn_zar_kernel_sRound_ctab[3];
/** @} */

/** @name sTrunc
 * Trunc of single-precision vectors (cost figures 0.4, 0.4, 0.4).
 * @{ */
/** @brief sTrunc at the LA level.
 * @details y[i] = Trunc(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTrunc_21(int n, const float* a, float* y);
/** @brief sTrunc at the HA level (the plain name). @copydetails _zarsTrunc_21 */
void _zarsTrunc(int n, const float* a, float* y);
/** @brief sTrunc at the HA level. @copydetails _zarsTrunc_21 */
void _zarsTrunc_HA(int n, const float* a, float* y);
/** @brief sTrunc at the EP level. @copydetails _zarsTrunc_21 */
void _zarsTrunc_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTrunc_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.4, 0.4, 0.4. */
extern float brenn_zar_kernel_sTrunc_ctab[3];
/** @} */

/** @name sAbs
 * Abs of single-precision vectors (cost figures 0.53, 0.53, 0.53).
 * @{ */
/** @brief sAbs at the LA level.
 * @details y[i] = Abs(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAbs_21(int n, const float* a, float* y);
/** @brief sAbs at the HA level (the plain name). @copydetails _zarsAbs_21 */
void _zarsAbs(int n, const float* a, float* y);
/** @brief sAbs at the HA level. @copydetails _zarsAbs_21 */
void _zarsAbs_HA(int n, const float* a, float* y);
/** @brief sAbs at the EP level. @copydetails _zarsAbs_21 */
void _zarsAbs_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAbs_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.53, 0.53, 0.53. */
extern float brenn_zar_kernel_sAbs_ctab[3];
/** @} */

/** @name sInv
 * Inv of single-precision vectors (cost figures 1.37, 3.09, 1.01).
 * @{ */
/** @brief sInv at the LA level.
 * @details y[i] = Inv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsInv_21(int n, const float* a, float* y);
/** @brief sInv at the HA level (the plain name). @copydetails _zarsInv_21 */
void _zarsInv(int n, const float* a, float* y);
/** @brief sInv at the HA level. @copydetails _zarsInv_21 */
void _zarsInv_HA(int n, const float* a, float* y);
/** @brief sInv at the EP level. @copydetails _zarsInv_21 */
void _zarsInv_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.37, 3.09, 1.01. */
extern float brenn_zar_kernel_sInv_ctab[3];
/** @} */

/** @name sSqrt
 * Sqrt of single-precision vectors (cost figures 2.06, 3.56, 1.15).
 * @{ */
/** @brief sSqrt at the LA level.
 * @details y[i] = Sqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSqrt_21(int n, const float* a, float* y);
/** @brief sSqrt at the HA level (the plain name). @copydetails _zarsSqrt_21 */
void _zarsSqrt(int n, const float* a, float* y);
/** @brief sSqrt at the HA level. @copydetails _zarsSqrt_21 */
void _zarsSqrt_HA(int n, const float* a, float* y);
/** @brief sSqrt at the EP level. @copydetails _zarsSqrt_21 */
void _zarsSqrt_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.06, 3.56, 1.15. */
extern float brenn_zar_kernel_sSqrt_ctab[3];
/** @} */

/** @name sInvSqrt
 * InvSqrt of single-precision vectors (cost figures 1.42, 5.12, 0.95).
 * @{ */
/** @brief sInvSqrt at the LA level.
 * @details y[i] = InvSqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsInvSqrt_21(int n, const float* a, float* y);
/** @brief sInvSqrt at the HA level (the plain name). @copydetails _zarsInvSqrt_21 */
void _zarsInvSqrt(int n, const float* a, float* y);
/** @brief sInvSqrt at the HA level. @copydetails _zarsInvSqrt_21 */
void _zarsInvSqrt_HA(int n, const float* a, float* y);
/** @brief sInvSqrt at the EP level. @copydetails _zarsInvSqrt_21 */
void _zarsInvSqrt_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sInvSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.42, 5.12, 0.95. */
extern float brenn_zar_kernel_sInvSqrt_ctab[3];
/** @} */

/** @name sCbrt
 * Cbrt of single-precision vectors (cost figures 4.6, 5.5, 3.4).
 * @{ */
/** @brief sCbrt at the LA level.
 * @details y[i] = Cbrt(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCbrt_21(int n, const float* a, float* y);
/** @brief sCbrt at the HA level (the plain name). @copydetails _zarsCbrt_21 */
void _zarsCbrt(int n, const float* a, float* y);
/** @brief sCbrt at the HA level. @copydetails _zarsCbrt_21 */
void _zarsCbrt_HA(int n, const float* a, float* y);
/** @brief sCbrt at the EP level. @copydetails _zarsCbrt_21 */
void _zarsCbrt_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCbrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 4.6, 5.5, 3.4. */
extern float brenn_zar_kernel_sCbrt_ctab[3];
/** @} */

/** @name sInvCbrt
 * InvCbrt of single-precision vectors (cost figures 5.0, 6.0, 3.7).
 * @{ */
/** @brief sInvCbrt at the LA level.
 * @details y[i] = InvCbrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsInvCbrt_21(int n, const float* a, float* y);
/** @brief sInvCbrt at the HA level (the plain name). @copydetails _zarsInvCbrt_21 */
void _zarsInvCbrt(int n, const float* a, float* y);
/** @brief sInvCbrt at the HA level. @copydetails _zarsInvCbrt_21 */
void _zarsInvCbrt_HA(int n, const float* a, float* y);
/** @brief sInvCbrt at the EP level. @copydetails _zarsInvCbrt_21 */
void _zarsInvCbrt_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sInvCbrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 5.0, 6.0, 3.7. */
extern float brenn_zar_kernel_sInvCbrt_ctab[3];
/** @} */

/** @name sExp
 * Exp of single-precision vectors (cost figures 4.29, 5.86, 3.12).
 * @{ */
/** @brief sExp at the LA level.
 * @details y[i] = Exp(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsExp_21(int n, const float* a, float* y);
/** @brief sExp at the HA level (the plain name). @copydetails _zarsExp_21 */
void _zarsExp(int n, const float* a, float* y);
/** @brief sExp at the HA level. @copydetails _zarsExp_21 */
void _zarsExp_HA(int n, const float* a, float* y);
/** @brief sExp at the EP level. @copydetails _zarsExp_21 */
void _zarsExp_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sExp_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 4.29, 5.86, 3.12. */
extern float brenn_zar_kernel_sExp_ctab[3];
/** @} */

/** @name sLn
 * Ln of single-precision vectors (cost figures 5.29, 7.0, 2.98).
 * @{ */
/** @brief sLn at the LA level.
 * @details y[i] = Ln(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLn_21(int n, const float* a, float* y);
/** @brief sLn at the HA level (the plain name). @copydetails _zarsLn_21 */
void _zarsLn(int n, const float* a, float* y);
/** @brief sLn at the HA level. @copydetails _zarsLn_21 */
void _zarsLn_HA(int n, const float* a, float* y);
/** @brief sLn at the EP level. @copydetails _zarsLn_21 */
void _zarsLn_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLn_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 5.29, 7.0, 2.98. */
extern float brenn_zar_kernel_sLn_ctab[3];
/** @} */

/** @name sLog10
 * Log10 of single-precision vectors (cost figures 6.96, 11.63, 3.61).
 * @{ */
/** @brief sLog10 at the LA level.
 * @details y[i] = Log10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLog10_21(int n, const float* a, float* y);
/** @brief sLog10 at the HA level (the plain name). @copydetails _zarsLog10_21 */
void _zarsLog10(int n, const float* a, float* y);
/** @brief sLog10 at the HA level. @copydetails _zarsLog10_21 */
void _zarsLog10_HA(int n, const float* a, float* y);
/** @brief sLog10 at the EP level. @copydetails _zarsLog10_21 */
void _zarsLog10_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLog10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.96, 11.63, 3.61. */
extern float brenn_zar_kernel_sLog10_ctab[3];
/** @} */

/** @name sCos
 * Cos of single-precision vectors (cost figures 8.25, 10.52, 4.98).
 * @{ */
/** @brief sCos at the LA level.
 * @details y[i] = Cos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCos_21(int n, const float* a, float* y);
/** @brief sCos at the HA level (the plain name). @copydetails _zarsCos_21 */
void _zarsCos(int n, const float* a, float* y);
/** @brief sCos at the HA level. @copydetails _zarsCos_21 */
void _zarsCos_HA(int n, const float* a, float* y);
/** @brief sCos at the EP level. @copydetails _zarsCos_21 */
void _zarsCos_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.25, 10.52, 4.98. */
extern float brenn_zar_kernel_sCos_ctab[3];
/** @} */

/** @name sSin
 * Sin of single-precision vectors (cost figures 5.2, 9.51, 3.75).
 * @{ */
/** @brief sSin at the LA level.
 * @details y[i] = Sin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSin_21(int n, const float* a, float* y);
/** @brief sSin at the HA level (the plain name). @copydetails _zarsSin_21 */
void _zarsSin(int n, const float* a, float* y);
/** @brief sSin at the HA level. @copydetails _zarsSin_21 */
void _zarsSin_HA(int n, const float* a, float* y);
/** @brief sSin at the EP level. @copydetails _zarsSin_21 */
void _zarsSin_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 5.2, 9.51, 3.75. */
extern float brenn_zar_kernel_sSin_ctab[3];
/** @} */

/** @name sTan
 * Tan of single-precision vectors (cost figures 18.88, 18.91, 7.33).
 * @{ */
/** @brief sTan at the LA level.
 * @details y[i] = Tan(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTan_21(int n, const float* a, float* y);
/** @brief sTan at the HA level (the plain name). @copydetails _zarsTan_21 */
void _zarsTan(int n, const float* a, float* y);
/** @brief sTan at the HA level. @copydetails _zarsTan_21 */
void _zarsTan_HA(int n, const float* a, float* y);
/** @brief sTan at the EP level. @copydetails _zarsTan_21 */
void _zarsTan_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 18.88, 18.91, 7.33. */
extern float brenn_zar_kernel_sTan_ctab[3];
/** @} */

/** @name sAcos
 * Acos of single-precision vectors (cost figures 6.4, 8.8, 4.3).
 * @{ */
/** @brief sAcos at the LA level.
 * @details y[i] = Acos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAcos_21(int n, const float* a, float* y);
/** @brief sAcos at the HA level (the plain name). @copydetails _zarsAcos_21 */
void _zarsAcos(int n, const float* a, float* y);
/** @brief sAcos at the HA level. @copydetails _zarsAcos_21 */
void _zarsAcos_HA(int n, const float* a, float* y);
/** @brief sAcos at the EP level. @copydetails _zarsAcos_21 */
void _zarsAcos_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAcos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.4, 8.8, 4.3. */
extern float brenn_zar_kernel_sAcos_ctab[3];
/** @} */

/** @name sAcosh
 * Acosh of single-precision vectors (cost figures 9.8, 12.1, 6.9).
 * @{ */
/** @brief sAcosh at the LA level.
 * @details y[i] = Acosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAcosh_21(int n, const float* a, float* y);
/** @brief sAcosh at the HA level (the plain name). @copydetails _zarsAcosh_21 */
void _zarsAcosh(int n, const float* a, float* y);
/** @brief sAcosh at the HA level. @copydetails _zarsAcosh_21 */
void _zarsAcosh_HA(int n, const float* a, float* y);
/** @brief sAcosh at the EP level. @copydetails _zarsAcosh_21 */
void _zarsAcosh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAcosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.8, 12.1, 6.9. */
extern float brenn_zar_kernel_sAcosh_ctab[3];
/** @} */

/** @name sAsin
 * Asin of single-precision vectors (cost figures 6.2, 8.6, 4.2).
 * @{ */
/** @brief sAsin at the LA level.
 * @details y[i] = Asin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAsin_21(int n, const float* a, float* y);
/** @brief sAsin at the HA level (the plain name). @copydetails _zarsAsin_21 */
void _zarsAsin(int n, const float* a, float* y);
/** @brief sAsin at the HA level. @copydetails _zarsAsin_21 */
void _zarsAsin_HA(int n, const float* a, float* y);
/** @brief sAsin at the EP level. @copydetails _zarsAsin_21 */
void _zarsAsin_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAsin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.2, 8.6, 4.2. */
extern float brenn_zar_kernel_sAsin_ctab[3];
/** @} */

/** @name sAsinh
 * Asinh of single-precision vectors (cost figures 10.4, 12.9, 7.3).
 * @{ */
/** @brief sAsinh at the LA level.
 * @details y[i] = Asinh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAsinh_21(int n, const float* a, float* y);
/** @brief sAsinh at the HA level (the plain name). @copydetails _zarsAsinh_21 */
void _zarsAsinh(int n, const float* a, float* y);
/** @brief sAsinh at the HA level. @copydetails _zarsAsinh_21 */
void _zarsAsinh_HA(int n, const float* a, float* y);
/** @brief sAsinh at the EP level. @copydetails _zarsAsinh_21 */
void _zarsAsinh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAsinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 10.4, 12.9, 7.3. */
extern float brenn_zar_kernel_sAsinh_ctab[3];
/** @} */

/** @name sAtan
 * Atan of single-precision vectors (cost figures 6.9, 8.2, 4.6).
 * @{ */
/** @brief sAtan at the LA level.
 * @details y[i] = Atan(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAtan_21(int n, const float* a, float* y);
/** @brief sAtan at the HA level (the plain name). @copydetails _zarsAtan_21 */
void _zarsAtan(int n, const float* a, float* y);
/** @brief sAtan at the HA level. @copydetails _zarsAtan_21 */
void _zarsAtan_HA(int n, const float* a, float* y);
/** @brief sAtan at the EP level. @copydetails _zarsAtan_21 */
void _zarsAtan_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAtan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.9, 8.2, 4.6. */
extern float brenn_zar_kernel_sAtan_ctab[3];
/** @} */

/** @name sAtanh
 * Atanh of single-precision vectors (cost figures 8.7, 10.9, 6.1).
 * @{ */
/** @brief sAtanh at the LA level.
 * @details y[i] = Atanh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAtanh_21(int n, const float* a, float* y);
/** @brief sAtanh at the HA level (the plain name). @copydetails _zarsAtanh_21 */
void _zarsAtanh(int n, const float* a, float* y);
/** @brief sAtanh at the HA level. @copydetails _zarsAtanh_21 */
void _zarsAtanh_HA(int n, const float* a, float* y);
/** @brief sAtanh at the EP level. @copydetails _zarsAtanh_21 */
void _zarsAtanh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAtanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.7, 10.9, 6.1. */
extern float brenn_zar_kernel_sAtanh_ctab[3];
/** @} */

/** @name sCosh
 * Cosh of single-precision vectors (cost figures 7.1, 9.0, 4.9).
 * @{ */
/** @brief sCosh at the LA level.
 * @details y[i] = Cosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCosh_21(int n, const float* a, float* y);
/** @brief sCosh at the HA level (the plain name). @copydetails _zarsCosh_21 */
void _zarsCosh(int n, const float* a, float* y);
/** @brief sCosh at the HA level. @copydetails _zarsCosh_21 */
void _zarsCosh_HA(int n, const float* a, float* y);
/** @brief sCosh at the EP level. @copydetails _zarsCosh_21 */
void _zarsCosh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 7.1, 9.0, 4.9. */
extern float brenn_zar_kernel_sCosh_ctab[3];
/** @} */

/** @name sSinh
 * Sinh of single-precision vectors (cost figures 7.9, 9.8, 5.4).
 * @{ */
/** @brief sSinh at the LA level.
 * @details y[i] = Sinh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSinh_21(int n, const float* a, float* y);
/** @brief sSinh at the HA level (the plain name). @copydetails _zarsSinh_21 */
void _zarsSinh(int n, const float* a, float* y);
/** @brief sSinh at the HA level. @copydetails _zarsSinh_21 */
void _zarsSinh_HA(int n, const float* a, float* y);
/** @brief sSinh at the EP level. @copydetails _zarsSinh_21 */
void _zarsSinh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 7.9, 9.8, 5.4. */
extern float brenn_zar_kernel_sSinh_ctab[3];
/** @} */

/** @name sTanh
 * Tanh of single-precision vectors (cost figures 8.3, 10.4, 5.5).
 * @{ */
/** @brief sTanh at the LA level.
 * @details y[i] = Tanh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTanh_21(int n, const float* a, float* y);
/** @brief sTanh at the HA level (the plain name). @copydetails _zarsTanh_21 */
void _zarsTanh(int n, const float* a, float* y);
/** @brief sTanh at the HA level. @copydetails _zarsTanh_21 */
void _zarsTanh_HA(int n, const float* a, float* y);
/** @brief sTanh at the EP level. @copydetails _zarsTanh_21 */
void _zarsTanh_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.3, 10.4, 5.5. */
extern float brenn_zar_kernel_sTanh_ctab[3];
/** @} */

/** @name sErf
 * Erf of single-precision vectors (cost figures 6.6, 8.4, 4.4).
 * @{ */
/** @brief sErf at the LA level.
 * @details y[i] = Erf(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsErf_21(int n, const float* a, float* y);
/** @brief sErf at the HA level (the plain name). @copydetails _zarsErf_21 */
void _zarsErf(int n, const float* a, float* y);
/** @brief sErf at the HA level. @copydetails _zarsErf_21 */
void _zarsErf_HA(int n, const float* a, float* y);
/** @brief sErf at the EP level. @copydetails _zarsErf_21 */
void _zarsErf_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sErf_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.6, 8.4, 4.4. */
extern float brenn_zar_kernel_sErf_ctab[3];
/** @} */

/** @name sErfc
 * Erfc of single-precision vectors (cost figures 9.1, 11.6, 6.5).
 * @{ */
/** @brief sErfc at the LA level.
 * @details y[i] = Erfc(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsErfc_21(int n, const float* a, float* y);
/** @brief sErfc at the HA level (the plain name). @copydetails _zarsErfc_21 */
void _zarsErfc(int n, const float* a, float* y);
/** @brief sErfc at the HA level. @copydetails _zarsErfc_21 */
void _zarsErfc_HA(int n, const float* a, float* y);
/** @brief sErfc at the EP level. @copydetails _zarsErfc_21 */
void _zarsErfc_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sErfc_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.1, 11.6, 6.5. */
extern float brenn_zar_kernel_sErfc_ctab[3];
/** @} */

/** @name sErfInv
 * ErfInv of single-precision vectors (cost figures 8.8, 11.2, 6.3).
 * @{ */
/** @brief sErfInv at the LA level.
 * @details y[i] = ErfInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsErfInv_21(int n, const float* a, float* y);
/** @brief sErfInv at the HA level (the plain name). @copydetails _zarsErfInv_21 */
void _zarsErfInv(int n, const float* a, float* y);
/** @brief sErfInv at the HA level. @copydetails _zarsErfInv_21 */
void _zarsErfInv_HA(int n, const float* a, float* y);
/** @brief sErfInv at the EP level. @copydetails _zarsErfInv_21 */
void _zarsErfInv_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sErfInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.8, 11.2, 6.3. */
extern float brenn_zar_kernel_sErfInv_ctab[3];
/** @} */

/** @name sSqr
 * Sqr of single-precision vectors (cost figures 0.58, 0.58, 0.58).
 * @{ */
/** @brief sSqr at the LA level.
 * @details y[i] = Sqr(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSqr_21(int n, const float* a, float* y);
/** @brief sSqr at the HA level (the plain name). @copydetails _zarsSqr_21 */
void _zarsSqr(int n, const float* a, float* y);
/** @brief sSqr at the HA level. @copydetails _zarsSqr_21 */
void _zarsSqr_HA(int n, const float* a, float* y);
/** @brief sSqr at the EP level. @copydetails _zarsSqr_21 */
void _zarsSqr_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSqr_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.58, 0.58, 0.58. */
extern float brenn_zar_kernel_sSqr_ctab[3];
/** @} */

/** @name sExpm1
 * Expm1 of single-precision vectors (cost figures 18.0, 18.0, 18.0).
 * @{ */
/** @brief sExpm1 at the LA level.
 * @details y[i] = Expm1(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsExpm1_21(int n, const float* a, float* y);
/** @brief sExpm1 at the HA level (the plain name). @copydetails _zarsExpm1_21 */
void _zarsExpm1(int n, const float* a, float* y);
/** @brief sExpm1 at the HA level. @copydetails _zarsExpm1_21 */
void _zarsExpm1_HA(int n, const float* a, float* y);
/** @brief sExpm1 at the EP level. @copydetails _zarsExpm1_21 */
void _zarsExpm1_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sExpm1_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 18.0, 18.0, 18.0. */
extern float brenn_zar_kernel_sExpm1_ctab[3];
/** @} */

/** @name sLog1p
 * Log1p of single-precision vectors (cost figures 9.44, 15.03, 6.46).
 * @{ */
/** @brief sLog1p at the LA level.
 * @details y[i] = Log1p(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLog1p_21(int n, const float* a, float* y);
/** @brief sLog1p at the HA level (the plain name). @copydetails _zarsLog1p_21 */
void _zarsLog1p(int n, const float* a, float* y);
/** @brief sLog1p at the HA level. @copydetails _zarsLog1p_21 */
void _zarsLog1p_HA(int n, const float* a, float* y);
/** @brief sLog1p at the EP level. @copydetails _zarsLog1p_21 */
void _zarsLog1p_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLog1p_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.44, 15.03, 6.46. */
extern float brenn_zar_kernel_sLog1p_ctab[3];
/** @} */

/** @name sPow3o2
 * Pow3o2 of single-precision vectors (cost figures 3.4, 4.8, 2.5).
 * @{ */
/** @brief sPow3o2 at the LA level.
 * @details y[i] = Pow3o2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsPow3o2_21(int n, const float* a, float* y);
/** @brief sPow3o2 at the HA level (the plain name). @copydetails _zarsPow3o2_21 */
void _zarsPow3o2(int n, const float* a, float* y);
/** @brief sPow3o2 at the HA level. @copydetails _zarsPow3o2_21 */
void _zarsPow3o2_HA(int n, const float* a, float* y);
/** @brief sPow3o2 at the EP level. @copydetails _zarsPow3o2_21 */
void _zarsPow3o2_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPow3o2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 3.4, 4.8, 2.5. */
extern float brenn_zar_kernel_sPow3o2_ctab[3];
/** @} */

/** @name sPow2o3
 * Pow2o3 of single-precision vectors (cost figures 6.1, 7.4, 4.4).
 * @{ */
/** @brief sPow2o3 at the LA level.
 * @details y[i] = Pow2o3(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsPow2o3_21(int n, const float* a, float* y);
/** @brief sPow2o3 at the HA level (the plain name). @copydetails _zarsPow2o3_21 */
void _zarsPow2o3(int n, const float* a, float* y);
/** @brief sPow2o3 at the HA level. @copydetails _zarsPow2o3_21 */
void _zarsPow2o3_HA(int n, const float* a, float* y);
/** @brief sPow2o3 at the EP level. @copydetails _zarsPow2o3_21 */
void _zarsPow2o3_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPow2o3_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.1, 7.4, 4.4. */
extern float brenn_zar_kernel_sPow2o3_ctab[3];
/** @} */

/** @name sErfcInv
 * ErfcInv of single-precision vectors (cost figures 12.4, 15.2, 9.1).
 * @{ */
/** @brief sErfcInv at the LA level.
 * @details y[i] = ErfcInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsErfcInv_21(int n, const float* a, float* y);
/** @brief sErfcInv at the HA level (the plain name). @copydetails _zarsErfcInv_21 */
void _zarsErfcInv(int n, const float* a, float* y);
/** @brief sErfcInv at the HA level. @copydetails _zarsErfcInv_21 */
void _zarsErfcInv_HA(int n, const float* a, float* y);
/** @brief sErfcInv at the EP level. @copydetails _zarsErfcInv_21 */
void _zarsErfcInv_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sErfcInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 12.4, 15.2, 9.1. */
extern float brenn_zar_kernel_sErfcInv_ctab[3];
/** @} */

/** @name sCdfNorm
 * CdfNorm of single-precision vectors (cost figures 9.6, 12.2, 6.8).
 * @{ */
/** @brief sCdfNorm at the LA level.
 * @details y[i] = CdfNorm(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCdfNorm_21(int n, const float* a, float* y);
/** @brief sCdfNorm at the HA level (the plain name). @copydetails _zarsCdfNorm_21 */
void _zarsCdfNorm(int n, const float* a, float* y);
/** @brief sCdfNorm at the HA level. @copydetails _zarsCdfNorm_21 */
void _zarsCdfNorm_HA(int n, const float* a, float* y);
/** @brief sCdfNorm at the EP level. @copydetails _zarsCdfNorm_21 */
void _zarsCdfNorm_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCdfNorm_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.6, 12.2, 6.8. */
extern float brenn_zar_kernel_sCdfNorm_ctab[3];
/** @} */

/** @name sCdfNormInv
 * CdfNormInv of single-precision vectors (cost figures 11.7, 14.3, 8.6).
 * @{ */
/** @brief sCdfNormInv at the LA level.
 * @details y[i] = CdfNormInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCdfNormInv_21(int n, const float* a, float* y);
/** @brief sCdfNormInv at the HA level (the plain name). @copydetails _zarsCdfNormInv_21 */
void _zarsCdfNormInv(int n, const float* a, float* y);
/** @brief sCdfNormInv at the HA level. @copydetails _zarsCdfNormInv_21 */
void _zarsCdfNormInv_HA(int n, const float* a, float* y);
/** @brief sCdfNormInv at the EP level. @copydetails _zarsCdfNormInv_21 */
void _zarsCdfNormInv_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCdfNormInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 11.7, 14.3, 8.6. */
extern float brenn_zar_kernel_sCdfNormInv_ctab[3];
/** @} */

/** @name sLGamma
 * LGamma of single-precision vectors (cost figures 96.0, 96.0, 96.0).
 * @{ */
/** @brief sLGamma at the LA level.
 * @details y[i] = LGamma(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLGamma_21(int n, const float* a, float* y);
/** @brief sLGamma at the HA level (the plain name). @copydetails _zarsLGamma_21 */
void _zarsLGamma(int n, const float* a, float* y);
/** @brief sLGamma at the HA level. @copydetails _zarsLGamma_21 */
void _zarsLGamma_HA(int n, const float* a, float* y);
/** @brief sLGamma at the EP level. @copydetails _zarsLGamma_21 */
void _zarsLGamma_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLGamma_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 96.0, 96.0, 96.0. */
extern float brenn_zar_kernel_sLGamma_ctab[3];
/** @} */

/** @name sTGamma
 * TGamma of single-precision vectors (cost figures 88.0, 88.0, 88.0).
 * @{ */
/** @brief sTGamma at the LA level.
 * @details y[i] = TGamma(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTGamma_21(int n, const float* a, float* y);
/** @brief sTGamma at the HA level (the plain name). @copydetails _zarsTGamma_21 */
void _zarsTGamma(int n, const float* a, float* y);
/** @brief sTGamma at the HA level. @copydetails _zarsTGamma_21 */
void _zarsTGamma_HA(int n, const float* a, float* y);
/** @brief sTGamma at the EP level. @copydetails _zarsTGamma_21 */
void _zarsTGamma_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTGamma_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 88.0, 88.0, 88.0. */
extern float brenn_zar_kernel_sTGamma_ctab[3];
/** @} */

/** @name sExpInt1
 * ExpInt1 of single-precision vectors (cost figures 62.0, 62.0, 31.0).
 * @{ */
/** @brief sExpInt1 at the LA level.
 * @details y[i] = ExpInt1(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsExpInt1_21(int n, const float* a, float* y);
/** @brief sExpInt1 at the HA level (the plain name). @copydetails _zarsExpInt1_21 */
void _zarsExpInt1(int n, const float* a, float* y);
/** @brief sExpInt1 at the HA level. @copydetails _zarsExpInt1_21 */
void _zarsExpInt1_HA(int n, const float* a, float* y);
/** @brief sExpInt1 at the EP level. @copydetails _zarsExpInt1_21 */
void _zarsExpInt1_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sExpInt1_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 62.0, 62.0, 31.0. */
extern float brenn_zar_kernel_sExpInt1_ctab[3];
/** @} */

/** @name sSinpi
 * Sinpi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sSinpi at the LA level.
 * @details y[i] = Sinpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSinpi_21(int n, const float* a, float* y);
/** @brief sSinpi at the HA level (the plain name). @copydetails _zarsSinpi_21 */
void _zarsSinpi(int n, const float* a, float* y);
/** @brief sSinpi at the HA level. @copydetails _zarsSinpi_21 */
void _zarsSinpi_HA(int n, const float* a, float* y);
/** @brief sSinpi at the EP level. @copydetails _zarsSinpi_21 */
void _zarsSinpi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSinpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sSinpi_ctab[3];
/** @} */

/** @name sCospi
 * Cospi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sCospi at the LA level.
 * @details y[i] = Cospi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCospi_21(int n, const float* a, float* y);
/** @brief sCospi at the HA level (the plain name). @copydetails _zarsCospi_21 */
void _zarsCospi(int n, const float* a, float* y);
/** @brief sCospi at the HA level. @copydetails _zarsCospi_21 */
void _zarsCospi_HA(int n, const float* a, float* y);
/** @brief sCospi at the EP level. @copydetails _zarsCospi_21 */
void _zarsCospi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCospi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sCospi_ctab[3];
/** @} */

/** @name sTanpi
 * Tanpi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sTanpi at the LA level.
 * @details y[i] = Tanpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTanpi_21(int n, const float* a, float* y);
/** @brief sTanpi at the HA level (the plain name). @copydetails _zarsTanpi_21 */
void _zarsTanpi(int n, const float* a, float* y);
/** @brief sTanpi at the HA level. @copydetails _zarsTanpi_21 */
void _zarsTanpi_HA(int n, const float* a, float* y);
/** @brief sTanpi at the EP level. @copydetails _zarsTanpi_21 */
void _zarsTanpi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTanpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sTanpi_ctab[3];
/** @} */

/** @name sAcospi
 * Acospi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sAcospi at the LA level.
 * @details y[i] = Acospi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAcospi_21(int n, const float* a, float* y);
/** @brief sAcospi at the HA level (the plain name). @copydetails _zarsAcospi_21 */
void _zarsAcospi(int n, const float* a, float* y);
/** @brief sAcospi at the HA level. @copydetails _zarsAcospi_21 */
void _zarsAcospi_HA(int n, const float* a, float* y);
/** @brief sAcospi at the EP level. @copydetails _zarsAcospi_21 */
void _zarsAcospi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAcospi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sAcospi_ctab[3];
/** @} */

/** @name sAsinpi
 * Asinpi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sAsinpi at the LA level.
 * @details y[i] = Asinpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAsinpi_21(int n, const float* a, float* y);
/** @brief sAsinpi at the HA level (the plain name). @copydetails _zarsAsinpi_21 */
void _zarsAsinpi(int n, const float* a, float* y);
/** @brief sAsinpi at the HA level. @copydetails _zarsAsinpi_21 */
void _zarsAsinpi_HA(int n, const float* a, float* y);
/** @brief sAsinpi at the EP level. @copydetails _zarsAsinpi_21 */
void _zarsAsinpi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAsinpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sAsinpi_ctab[3];
/** @} */

/** @name sAtanpi
 * Atanpi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sAtanpi at the LA level.
 * @details y[i] = Atanpi(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsAtanpi_21(int n, const float* a, float* y);
/** @brief sAtanpi at the HA level (the plain name). @copydetails _zarsAtanpi_21 */
void _zarsAtanpi(int n, const float* a, float* y);
/** @brief sAtanpi at the HA level. @copydetails _zarsAtanpi_21 */
void _zarsAtanpi_HA(int n, const float* a, float* y);
/** @brief sAtanpi at the EP level. @copydetails _zarsAtanpi_21 */
void _zarsAtanpi_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAtanpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sAtanpi_ctab[3];
/** @} */

/** @name sExp2
 * Exp2 of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sExp2 at the LA level.
 * @details y[i] = Exp2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsExp2_21(int n, const float* a, float* y);
/** @brief sExp2 at the HA level (the plain name). @copydetails _zarsExp2_21 */
void _zarsExp2(int n, const float* a, float* y);
/** @brief sExp2 at the HA level. @copydetails _zarsExp2_21 */
void _zarsExp2_HA(int n, const float* a, float* y);
/** @brief sExp2 at the EP level. @copydetails _zarsExp2_21 */
void _zarsExp2_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sExp2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sExp2_ctab[3];
/** @} */

/** @name sExp10
 * Exp10 of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sExp10 at the LA level.
 * @details y[i] = Exp10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsExp10_21(int n, const float* a, float* y);
/** @brief sExp10 at the HA level (the plain name). @copydetails _zarsExp10_21 */
void _zarsExp10(int n, const float* a, float* y);
/** @brief sExp10 at the HA level. @copydetails _zarsExp10_21 */
void _zarsExp10_HA(int n, const float* a, float* y);
/** @brief sExp10 at the EP level. @copydetails _zarsExp10_21 */
void _zarsExp10_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sExp10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sExp10_ctab[3];
/** @} */

/** @name sLog2
 * Log2 of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sLog2 at the LA level.
 * @details y[i] = Log2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLog2_21(int n, const float* a, float* y);
/** @brief sLog2 at the HA level (the plain name). @copydetails _zarsLog2_21 */
void _zarsLog2(int n, const float* a, float* y);
/** @brief sLog2 at the HA level. @copydetails _zarsLog2_21 */
void _zarsLog2_HA(int n, const float* a, float* y);
/** @brief sLog2 at the EP level. @copydetails _zarsLog2_21 */
void _zarsLog2_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLog2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sLog2_ctab[3];
/** @} */

/** @name sSind
 * Sind of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sSind at the LA level.
 * @details y[i] = Sind(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsSind_21(int n, const float* a, float* y);
/** @brief sSind at the HA level (the plain name). @copydetails _zarsSind_21 */
void _zarsSind(int n, const float* a, float* y);
/** @brief sSind at the HA level. @copydetails _zarsSind_21 */
void _zarsSind_HA(int n, const float* a, float* y);
/** @brief sSind at the EP level. @copydetails _zarsSind_21 */
void _zarsSind_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSind_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sSind_ctab[3];
/** @} */

/** @name sCosd
 * Cosd of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sCosd at the LA level.
 * @details y[i] = Cosd(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsCosd_21(int n, const float* a, float* y);
/** @brief sCosd at the HA level (the plain name). @copydetails _zarsCosd_21 */
void _zarsCosd(int n, const float* a, float* y);
/** @brief sCosd at the HA level. @copydetails _zarsCosd_21 */
void _zarsCosd_HA(int n, const float* a, float* y);
/** @brief sCosd at the EP level. @copydetails _zarsCosd_21 */
void _zarsCosd_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCosd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sCosd_ctab[3];
/** @} */

/** @name sTand
 * Tand of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sTand at the LA level.
 * @details y[i] = Tand(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsTand_21(int n, const float* a, float* y);
/** @brief sTand at the HA level (the plain name). @copydetails _zarsTand_21 */
void _zarsTand(int n, const float* a, float* y);
/** @brief sTand at the HA level. @copydetails _zarsTand_21 */
void _zarsTand_HA(int n, const float* a, float* y);
/** @brief sTand at the EP level. @copydetails _zarsTand_21 */
void _zarsTand_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sTand_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sTand_ctab[3];
/** @} */

/** @name sLogb
 * Logb of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sLogb at the LA level.
 * @details y[i] = Logb(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarsLogb_21(int n, const float* a, float* y);
/** @brief sLogb at the HA level (the plain name). @copydetails _zarsLogb_21 */
void _zarsLogb(int n, const float* a, float* y);
/** @brief sLogb at the HA level. @copydetails _zarsLogb_21 */
void _zarsLogb_HA(int n, const float* a, float* y);
/** @brief sLogb at the EP level. @copydetails _zarsLogb_21 */
void _zarsLogb_11(int n, const float* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLogb_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sLogb_ctab[3];
/** @} */

/** @name dCeil
 * Ceil of double-precision vectors (cost figures 0.74, 0.74, 0.74).
 * @{ */
/** @brief dCeil at the LA level.
 * @details y[i] = Ceil(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCeil_50(int n, const double* a, double* y);
/** @brief dCeil at the HA level (the plain name). @copydetails _zardCeil_50 */
void _zardCeil(int n, const double* a, double* y);
/** @brief dCeil at the HA level. @copydetails _zardCeil_50 */
void _zardCeil_HA(int n, const double* a, double* y);
/** @brief dCeil at the EP level. @copydetails _zardCeil_50 */
void _zardCeil_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCeil_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.74, 0.74, 0.74. */
extern float brenn_zar_kernel_dCeil_ctab[3];
/** @} */

/** @name dFloor
 * Floor of double-precision vectors (cost figures 0.74, 0.74, 0.74).
 * @{ */
/** @brief dFloor at the LA level.
 * @details y[i] = Floor(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardFloor_50(int n, const double* a, double* y);
/** @brief dFloor at the HA level (the plain name). @copydetails _zardFloor_50 */
void _zardFloor(int n, const double* a, double* y);
/** @brief dFloor at the HA level. @copydetails _zardFloor_50 */
void _zardFloor_HA(int n, const double* a, double* y);
/** @brief dFloor at the EP level. @copydetails _zardFloor_50 */
void _zardFloor_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFloor_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.74, 0.74, 0.74. */
extern float brenn_zar_kernel_dFloor_ctab[3];
/** @} */

/** @name dFrac
 * Frac of double-precision vectors (cost figures 2.8, 2.8, 2.8).
 * @{ */
/** @brief dFrac at the LA level.
 * @details y[i] = Frac(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardFrac_50(int n, const double* a, double* y);
/** @brief dFrac at the HA level (the plain name). @copydetails _zardFrac_50 */
void _zardFrac(int n, const double* a, double* y);
/** @brief dFrac at the HA level. @copydetails _zardFrac_50 */
void _zardFrac_HA(int n, const double* a, double* y);
/** @brief dFrac at the EP level. @copydetails _zardFrac_50 */
void _zardFrac_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFrac_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.8, 2.8, 2.8. */
extern float brenn_zar_kernel_dFrac_ctab[3];
/** @} */

/** @name dNearbyInt
 * NearbyInt of double-precision vectors (cost figures 0.76, 0.76, 0.76).
 * @{ */
/** @brief dNearbyInt at the LA level.
 * @details y[i] = NearbyInt(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardNearbyInt_50(int n, const double* a, double* y);
/** @brief dNearbyInt at the HA level (the plain name). @copydetails _zardNearbyInt_50 */
void _zardNearbyInt(int n, const double* a, double* y);
/** @brief dNearbyInt at the HA level. @copydetails _zardNearbyInt_50 */
void _zardNearbyInt_HA(int n, const double* a, double* y);
/** @brief dNearbyInt at the EP level. @copydetails _zardNearbyInt_50 */
void _zardNearbyInt_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dNearbyInt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.76, 0.76, 0.76. */
extern float brenn_zar_kernel_dNearbyInt_ctab[3];
/** @} */

/** @name dRint
 * Rint of double-precision vectors (cost figures 0.92, 0.92, 0.92).
 * @{ */
/** @brief dRint at the LA level.
 * @details y[i] = Rint(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardRint_50(int n, const double* a, double* y);
/** @brief dRint at the HA level (the plain name). @copydetails _zardRint_50 */
void _zardRint(int n, const double* a, double* y);
/** @brief dRint at the HA level. @copydetails _zardRint_50 */
void _zardRint_HA(int n, const double* a, double* y);
/** @brief dRint at the EP level. @copydetails _zardRint_50 */
void _zardRint_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dRint_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.92, 0.92, 0.92. */
extern float brenn_zar_kernel_dRint_ctab[3];
/** @} */

/** @name dRound
 * Round of double-precision vectors (cost figures 2.08, 2.08, 2.08).
 * @{ */
/** @brief dRound at the LA level.
 * @details y[i] = Round(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardRound_50(int n, const double* a, double* y);
/** @brief dRound at the HA level (the plain name). @copydetails _zardRound_50 */
void _zardRound(int n, const double* a, double* y);
/** @brief dRound at the HA level. @copydetails _zardRound_50 */
void _zardRound_HA(int n, const double* a, double* y);
/** @brief dRound at the EP level. @copydetails _zardRound_50 */
void _zardRound_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dRound_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.08, 2.08, 2.08. */
extern float brenn_zar_kernel_dRound_ctab[3];
/** @} */

/** @name dTrunc
 * Trunc of double-precision vectors (cost figures 0.76, 0.76, 0.76).
 * @{ */
/** @brief dTrunc at the LA level.
 * @details y[i] = Trunc(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTrunc_50(int n, const double* a, double* y);
/** @brief dTrunc at the HA level (the plain name). @copydetails _zardTrunc_50 */
void _zardTrunc(int n, const double* a, double* y);
/** @brief dTrunc at the HA level. @copydetails _zardTrunc_50 */
void _zardTrunc_HA(int n, const double* a, double* y);
/** @brief dTrunc at the EP level. @copydetails _zardTrunc_50 */
void _zardTrunc_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTrunc_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.76, 0.76, 0.76. */
extern float brenn_zar_kernel_dTrunc_ctab[3];
/** @} */

/** @name dAbs
 * Abs of double-precision vectors (cost figures 1.19, 1.19, 1.19).
 * @{ */
/** @brief dAbs at the LA level.
 * @details y[i] = Abs(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAbs_50(int n, const double* a, double* y);
/** @brief dAbs at the HA level (the plain name). @copydetails _zardAbs_50 */
void _zardAbs(int n, const double* a, double* y);
/** @brief dAbs at the HA level. @copydetails _zardAbs_50 */
void _zardAbs_HA(int n, const double* a, double* y);
/** @brief dAbs at the EP level. @copydetails _zardAbs_50 */
void _zardAbs_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAbs_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.19, 1.19, 1.19. */
extern float brenn_zar_kernel_dAbs_ctab[3];
/** @} */

/** @name dInv
 * Inv of double-precision vectors (cost figures 7.65, 3.69, 6.46).
 * @{ */
/** @brief dInv at the LA level.
 * @details y[i] = Inv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardInv_50(int n, const double* a, double* y);
/** @brief dInv at the HA level (the plain name). @copydetails _zardInv_50 */
void _zardInv(int n, const double* a, double* y);
/** @brief dInv at the HA level. @copydetails _zardInv_50 */
void _zardInv_HA(int n, const double* a, double* y);
/** @brief dInv at the EP level. @copydetails _zardInv_50 */
void _zardInv_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 7.65, 3.69, 6.46. */
extern float brenn_zar_kernel_dInv_ctab[3];
/** @} */

/** @name dSqrt
 * Sqrt of double-precision vectors (cost figures 9.28, 6.67, 7.54).
 * @{ */
/** @brief dSqrt at the LA level.
 * @details y[i] = Sqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSqrt_50(int n, const double* a, double* y);
/** @brief dSqrt at the HA level (the plain name). @copydetails _zardSqrt_50 */
void _zardSqrt(int n, const double* a, double* y);
/** @brief dSqrt at the HA level. @copydetails _zardSqrt_50 */
void _zardSqrt_HA(int n, const double* a, double* y);
/** @brief dSqrt at the EP level. @copydetails _zardSqrt_50 */
void _zardSqrt_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.28, 6.67, 7.54. */
extern float brenn_zar_kernel_dSqrt_ctab[3];
/** @} */

/** @name dInvSqrt
 * InvSqrt of double-precision vectors (cost figures 9.26, 12.66, 9.26).
 * @{ */
/** @brief dInvSqrt at the LA level.
 * @details y[i] = InvSqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardInvSqrt_50(int n, const double* a, double* y);
/** @brief dInvSqrt at the HA level (the plain name). @copydetails _zardInvSqrt_50 */
void _zardInvSqrt(int n, const double* a, double* y);
/** @brief dInvSqrt at the HA level. @copydetails _zardInvSqrt_50 */
void _zardInvSqrt_HA(int n, const double* a, double* y);
/** @brief dInvSqrt at the EP level. @copydetails _zardInvSqrt_50 */
void _zardInvSqrt_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dInvSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.26, 12.66, 9.26. */
extern float brenn_zar_kernel_dInvSqrt_ctab[3];
/** @} */

/** @name dCbrt
 * Cbrt of double-precision vectors (cost figures 11.04, 13.2, 11.04).
 * @{ */
/** @brief dCbrt at the LA level.
 * @details y[i] = Cbrt(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCbrt_50(int n, const double* a, double* y);
/** @brief dCbrt at the HA level (the plain name). @copydetails _zardCbrt_50 */
void _zardCbrt(int n, const double* a, double* y);
/** @brief dCbrt at the HA level. @copydetails _zardCbrt_50 */
void _zardCbrt_HA(int n, const double* a, double* y);
/** @brief dCbrt at the EP level. @copydetails _zardCbrt_50 */
void _zardCbrt_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCbrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 11.04, 13.2, 11.04. */
extern float brenn_zar_kernel_dCbrt_ctab[3];
/** @} */

/** @name dInvCbrt
 * InvCbrt of double-precision vectors (cost figures 12.0, 12.0, 12.0).
 * @{ */
/** @brief dInvCbrt at the LA level.
 * @details y[i] = InvCbrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardInvCbrt_50(int n, const double* a, double* y);
/** @brief dInvCbrt at the HA level (the plain name). @copydetails _zardInvCbrt_50 */
void _zardInvCbrt(int n, const double* a, double* y);
/** @brief dInvCbrt at the HA level. @copydetails _zardInvCbrt_50 */
void _zardInvCbrt_HA(int n, const double* a, double* y);
/** @brief dInvCbrt at the EP level. @copydetails _zardInvCbrt_50 */
void _zardInvCbrt_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dInvCbrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 12.0, 12.0, 12.0. */
extern float brenn_zar_kernel_dInvCbrt_ctab[3];
/** @} */

/** @name dExp
 * Exp of double-precision vectors (cost figures 8.49, 14.11, 7.82).
 * @{ */
/** @brief dExp at the LA level.
 * @details y[i] = Exp(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardExp_50(int n, const double* a, double* y);
/** @brief dExp at the HA level (the plain name). @copydetails _zardExp_50 */
void _zardExp(int n, const double* a, double* y);
/** @brief dExp at the HA level. @copydetails _zardExp_50 */
void _zardExp_HA(int n, const double* a, double* y);
/** @brief dExp at the EP level. @copydetails _zardExp_50 */
void _zardExp_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dExp_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.49, 14.11, 7.82. */
extern float brenn_zar_kernel_dExp_ctab[3];
/** @} */

/** @name dLn
 * Ln of double-precision vectors (cost figures 14.56, 15.95, 10.21).
 * @{ */
/** @brief dLn at the LA level.
 * @details y[i] = Ln(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLn_50(int n, const double* a, double* y);
/** @brief dLn at the HA level (the plain name). @copydetails _zardLn_50 */
void _zardLn(int n, const double* a, double* y);
/** @brief dLn at the HA level. @copydetails _zardLn_50 */
void _zardLn_HA(int n, const double* a, double* y);
/** @brief dLn at the EP level. @copydetails _zardLn_50 */
void _zardLn_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLn_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 14.56, 15.95, 10.21. */
extern float brenn_zar_kernel_dLn_ctab[3];
/** @} */

/** @name dLog10
 * Log10 of double-precision vectors (cost figures 17.46, 25.87, 17.46).
 * @{ */
/** @brief dLog10 at the LA level.
 * @details y[i] = Log10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLog10_50(int n, const double* a, double* y);
/** @brief dLog10 at the HA level (the plain name). @copydetails _zardLog10_50 */
void _zardLog10(int n, const double* a, double* y);
/** @brief dLog10 at the HA level. @copydetails _zardLog10_50 */
void _zardLog10_HA(int n, const double* a, double* y);
/** @brief dLog10 at the EP level. @copydetails _zardLog10_50 */
void _zardLog10_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLog10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 17.46, 25.87, 17.46. */
extern float brenn_zar_kernel_dLog10_ctab[3];
/** @} */

/** @name dCos
 * Cos of double-precision vectors (cost figures 18.33, 34.47, 11.97).
 * @{ */
/** @brief dCos at the LA level.
 * @details y[i] = Cos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCos_50(int n, const double* a, double* y);
/** @brief dCos at the HA level (the plain name). @copydetails _zardCos_50 */
void _zardCos(int n, const double* a, double* y);
/** @brief dCos at the HA level. @copydetails _zardCos_50 */
void _zardCos_HA(int n, const double* a, double* y);
/** @brief dCos at the EP level. @copydetails _zardCos_50 */
void _zardCos_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 18.33, 34.47, 11.97. */
extern float brenn_zar_kernel_dCos_ctab[3];
/** @} */

/** @name dSin
 * Sin of double-precision vectors (cost figures 13.22, 21.31, 9.88).
 * @{ */
/** @brief dSin at the LA level.
 * @details y[i] = Sin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSin_50(int n, const double* a, double* y);
/** @brief dSin at the HA level (the plain name). @copydetails _zardSin_50 */
void _zardSin(int n, const double* a, double* y);
/** @brief dSin at the HA level. @copydetails _zardSin_50 */
void _zardSin_HA(int n, const double* a, double* y);
/** @brief dSin at the EP level. @copydetails _zardSin_50 */
void _zardSin_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 13.22, 21.31, 9.88. */
extern float brenn_zar_kernel_dSin_ctab[3];
/** @} */

/** @name dTan
 * Tan of double-precision vectors (cost figures 47.13, 60.07, 19.54).
 * @{ */
/** @brief dTan at the LA level.
 * @details y[i] = Tan(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTan_50(int n, const double* a, double* y);
/** @brief dTan at the HA level (the plain name). @copydetails _zardTan_50 */
void _zardTan(int n, const double* a, double* y);
/** @brief dTan at the HA level. @copydetails _zardTan_50 */
void _zardTan_HA(int n, const double* a, double* y);
/** @brief dTan at the EP level. @copydetails _zardTan_50 */
void _zardTan_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 47.13, 60.07, 19.54. */
extern float brenn_zar_kernel_dTan_ctab[3];
/** @} */

/** @name dAcos
 * Acos of double-precision vectors (cost figures 15.36, 21.12, 10.32).
 * @{ */
/** @brief dAcos at the LA level.
 * @details y[i] = Acos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAcos_50(int n, const double* a, double* y);
/** @brief dAcos at the HA level (the plain name). @copydetails _zardAcos_50 */
void _zardAcos(int n, const double* a, double* y);
/** @brief dAcos at the HA level. @copydetails _zardAcos_50 */
void _zardAcos_HA(int n, const double* a, double* y);
/** @brief dAcos at the EP level. @copydetails _zardAcos_50 */
void _zardAcos_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAcos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 15.36, 21.12, 10.32. */
extern float brenn_zar_kernel_dAcos_ctab[3];
/** @} */

/** @name dAcosh
 * Acosh of double-precision vectors (cost figures 23.52, 29.04, 16.56).
 * @{ */
/** @brief dAcosh at the LA level.
 * @details y[i] = Acosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAcosh_50(int n, const double* a, double* y);
/** @brief dAcosh at the HA level (the plain name). @copydetails _zardAcosh_50 */
void _zardAcosh(int n, const double* a, double* y);
/** @brief dAcosh at the HA level. @copydetails _zardAcosh_50 */
void _zardAcosh_HA(int n, const double* a, double* y);
/** @brief dAcosh at the EP level. @copydetails _zardAcosh_50 */
void _zardAcosh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAcosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 23.52, 29.04, 16.56. */
extern float brenn_zar_kernel_dAcosh_ctab[3];
/** @} */

/** @name dAsin
 * Asin of double-precision vectors (cost figures 14.88, 20.64, 10.08).
 * @{ */
/** @brief dAsin at the LA level.
 * @details y[i] = Asin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAsin_50(int n, const double* a, double* y);
/** @brief dAsin at the HA level (the plain name). @copydetails _zardAsin_50 */
void _zardAsin(int n, const double* a, double* y);
/** @brief dAsin at the HA level. @copydetails _zardAsin_50 */
void _zardAsin_HA(int n, const double* a, double* y);
/** @brief dAsin at the EP level. @copydetails _zardAsin_50 */
void _zardAsin_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAsin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 14.88, 20.64, 10.08. */
extern float brenn_zar_kernel_dAsin_ctab[3];
/** @} */

/** @name dAsinh
 * Asinh of double-precision vectors (cost figures 24.96, 30.96, 24.96).
 * @{ */
/** @brief dAsinh at the LA level.
 * @details y[i] = Asinh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAsinh_50(int n, const double* a, double* y);
/** @brief dAsinh at the HA level (the plain name). @copydetails _zardAsinh_50 */
void _zardAsinh(int n, const double* a, double* y);
/** @brief dAsinh at the HA level. @copydetails _zardAsinh_50 */
void _zardAsinh_HA(int n, const double* a, double* y);
/** @brief dAsinh at the EP level. @copydetails _zardAsinh_50 */
void _zardAsinh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAsinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 24.96, 30.96, 24.96. */
extern float brenn_zar_kernel_dAsinh_ctab[3];
/** @} */

/** @name dAtan
 * Atan of double-precision vectors (cost figures 16.56, 16.56, 11.04).
 * @{ */
/** @brief dAtan at the LA level.
 * @details y[i] = Atan(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAtan_50(int n, const double* a, double* y);
/** @brief dAtan at the HA level (the plain name). @copydetails _zardAtan_50 */
void _zardAtan(int n, const double* a, double* y);
/** @brief dAtan at the HA level. @copydetails _zardAtan_50 */
void _zardAtan_HA(int n, const double* a, double* y);
/** @brief dAtan at the EP level. @copydetails _zardAtan_50 */
void _zardAtan_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAtan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 16.56, 16.56, 11.04. */
extern float brenn_zar_kernel_dAtan_ctab[3];
/** @} */

/** @name dAtanh
 * Atanh of double-precision vectors (cost figures 20.88, 26.16, 14.64).
 * @{ */
/** @brief dAtanh at the LA level.
 * @details y[i] = Atanh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAtanh_50(int n, const double* a, double* y);
/** @brief dAtanh at the HA level (the plain name). @copydetails _zardAtanh_50 */
void _zardAtanh(int n, const double* a, double* y);
/** @brief dAtanh at the HA level. @copydetails _zardAtanh_50 */
void _zardAtanh_HA(int n, const double* a, double* y);
/** @brief dAtanh at the EP level. @copydetails _zardAtanh_50 */
void _zardAtanh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAtanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 20.88, 26.16, 14.64. */
extern float brenn_zar_kernel_dAtanh_ctab[3];
/** @} */

/** @name dCosh
 * Cosh of double-precision vectors (cost figures 17.04, 21.6, 11.76).
 * @{ */
/** @brief dCosh at the LA level.
 * @details y[i] = Cosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCosh_50(int n, const double* a, double* y);
/** @brief dCosh at the HA level (the plain name). @copydetails _zardCosh_50 */
void _zardCosh(int n, const double* a, double* y);
/** @brief dCosh at the HA level. @copydetails _zardCosh_50 */
void _zardCosh_HA(int n, const double* a, double* y);
/** @brief dCosh at the EP level. @copydetails _zardCosh_50 */
void _zardCosh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 17.04, 21.6, 11.76. */
extern float brenn_zar_kernel_dCosh_ctab[3];
/** @} */

/** @name dSinh
 * Sinh of double-precision vectors (cost figures 18.96, 23.52, 18.96).
 * @{ */
/** @brief dSinh at the LA level.
 * @details y[i] = Sinh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSinh_50(int n, const double* a, double* y);
/** @brief dSinh at the HA level (the plain name). @copydetails _zardSinh_50 */
void _zardSinh(int n, const double* a, double* y);
/** @brief dSinh at the HA level. @copydetails _zardSinh_50 */
void _zardSinh_HA(int n, const double* a, double* y);
/** @brief dSinh at the EP level. @copydetails _zardSinh_50 */
void _zardSinh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 18.96, 23.52, 18.96. */
extern float brenn_zar_kernel_dSinh_ctab[3];
/** @} */

/** @name dTanh
 * Tanh of double-precision vectors (cost figures 19.92, 24.96, 19.92).
 * @{ */
/** @brief dTanh at the LA level.
 * @details y[i] = Tanh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTanh_50(int n, const double* a, double* y);
/** @brief dTanh at the HA level (the plain name). @copydetails _zardTanh_50 */
void _zardTanh(int n, const double* a, double* y);
/** @brief dTanh at the HA level. @copydetails _zardTanh_50 */
void _zardTanh_HA(int n, const double* a, double* y);
/** @brief dTanh at the EP level. @copydetails _zardTanh_50 */
void _zardTanh_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 19.92, 24.96, 19.92. */
extern float brenn_zar_kernel_dTanh_ctab[3];
/** @} */

/** @name dErf
 * Erf of double-precision vectors (cost figures 15.84, 20.16, 10.56).
 * @{ */
/** @brief dErf at the LA level.
 * @details y[i] = Erf(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardErf_50(int n, const double* a, double* y);
/** @brief dErf at the HA level (the plain name). @copydetails _zardErf_50 */
void _zardErf(int n, const double* a, double* y);
/** @brief dErf at the HA level. @copydetails _zardErf_50 */
void _zardErf_HA(int n, const double* a, double* y);
/** @brief dErf at the EP level. @copydetails _zardErf_50 */
void _zardErf_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dErf_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 15.84, 20.16, 10.56. */
extern float brenn_zar_kernel_dErf_ctab[3];
/** @} */

/** @name dErfc
 * Erfc of double-precision vectors (cost figures 21.84, 21.84, 21.84).
 * @{ */
/** @brief dErfc at the LA level.
 * @details y[i] = Erfc(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardErfc_50(int n, const double* a, double* y);
/** @brief dErfc at the HA level (the plain name). @copydetails _zardErfc_50 */
void _zardErfc(int n, const double* a, double* y);
/** @brief dErfc at the HA level. @copydetails _zardErfc_50 */
void _zardErfc_HA(int n, const double* a, double* y);
/** @brief dErfc at the EP level. @copydetails _zardErfc_50 */
void _zardErfc_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dErfc_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 21.84, 21.84, 21.84. */
extern float brenn_zar_kernel_dErfc_ctab[3];
/** @} */

/** @name dErfInv
 * ErfInv of double-precision vectors (cost figures 21.12, 26.88, 15.12).
 * @{ */
/** @brief dErfInv at the LA level.
 * @details y[i] = ErfInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardErfInv_50(int n, const double* a, double* y);
/** @brief dErfInv at the HA level (the plain name). @copydetails _zardErfInv_50 */
void _zardErfInv(int n, const double* a, double* y);
/** @brief dErfInv at the HA level. @copydetails _zardErfInv_50 */
void _zardErfInv_HA(int n, const double* a, double* y);
/** @brief dErfInv at the EP level. @copydetails _zardErfInv_50 */
void _zardErfInv_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dErfInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 21.12, 26.88, 15.12. */
extern float brenn_zar_kernel_dErfInv_ctab[3];
/** @} */

/** @name dSqr
 * Sqr of double-precision vectors (cost figures 1.13, 1.13, 1.13).
 * @{ */
/** @brief dSqr at the LA level.
 * @details y[i] = Sqr(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSqr_50(int n, const double* a, double* y);
/** @brief dSqr at the HA level (the plain name). @copydetails _zardSqr_50 */
void _zardSqr(int n, const double* a, double* y);
/** @brief dSqr at the HA level. @copydetails _zardSqr_50 */
void _zardSqr_HA(int n, const double* a, double* y);
/** @brief dSqr at the EP level. @copydetails _zardSqr_50 */
void _zardSqr_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSqr_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.13, 1.13, 1.13. */
extern float brenn_zar_kernel_dSqr_ctab[3];
/** @} */

/** @name dExpm1
 * Expm1 of double-precision vectors (cost figures 22.6, 33.07, 19.25).
 * @{ */
/** @brief dExpm1 at the LA level.
 * @details y[i] = Expm1(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardExpm1_50(int n, const double* a, double* y);
/** @brief dExpm1 at the HA level (the plain name). @copydetails _zardExpm1_50 */
void _zardExpm1(int n, const double* a, double* y);
/** @brief dExpm1 at the HA level. @copydetails _zardExpm1_50 */
void _zardExpm1_HA(int n, const double* a, double* y);
/** @brief dExpm1 at the EP level. @copydetails _zardExpm1_50 */
void _zardExpm1_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dExpm1_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 22.6, 33.07, 19.25. */
extern float brenn_zar_kernel_dExpm1_ctab[3];
/** @} */

/** @name dLog1p
 * Log1p of double-precision vectors (cost figures 23.52, 25.24, 18.06).
 * @{ */
/** @brief dLog1p at the LA level.
 * @details y[i] = Log1p(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLog1p_50(int n, const double* a, double* y);
/** @brief dLog1p at the HA level (the plain name). @copydetails _zardLog1p_50 */
void _zardLog1p(int n, const double* a, double* y);
/** @brief dLog1p at the HA level. @copydetails _zardLog1p_50 */
void _zardLog1p_HA(int n, const double* a, double* y);
/** @brief dLog1p at the EP level. @copydetails _zardLog1p_50 */
void _zardLog1p_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLog1p_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 23.52, 25.24, 18.06. */
extern float brenn_zar_kernel_dLog1p_ctab[3];
/** @} */

/** @name dPow3o2
 * Pow3o2 of double-precision vectors (cost figures 8.16, 11.52, 6.0).
 * @{ */
/** @brief dPow3o2 at the LA level.
 * @details y[i] = Pow3o2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardPow3o2_50(int n, const double* a, double* y);
/** @brief dPow3o2 at the HA level (the plain name). @copydetails _zardPow3o2_50 */
void _zardPow3o2(int n, const double* a, double* y);
/** @brief dPow3o2 at the HA level. @copydetails _zardPow3o2_50 */
void _zardPow3o2_HA(int n, const double* a, double* y);
/** @brief dPow3o2 at the EP level. @copydetails _zardPow3o2_50 */
void _zardPow3o2_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPow3o2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 8.16, 11.52, 6.0. */
extern float brenn_zar_kernel_dPow3o2_ctab[3];
/** @} */

/** @name dPow2o3
 * Pow2o3 of double-precision vectors (cost figures 14.64, 17.76, 10.56).
 * @{ */
/** @brief dPow2o3 at the LA level.
 * @details y[i] = Pow2o3(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardPow2o3_50(int n, const double* a, double* y);
/** @brief dPow2o3 at the HA level (the plain name). @copydetails _zardPow2o3_50 */
void _zardPow2o3(int n, const double* a, double* y);
/** @brief dPow2o3 at the HA level. @copydetails _zardPow2o3_50 */
void _zardPow2o3_HA(int n, const double* a, double* y);
/** @brief dPow2o3 at the EP level. @copydetails _zardPow2o3_50 */
void _zardPow2o3_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPow2o3_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 14.64, 17.76, 10.56. */
extern float brenn_zar_kernel_dPow2o3_ctab[3];
/** @} */

/** @name dErfcInv
 * ErfcInv of double-precision vectors (cost figures 29.76, 36.48, 21.84).
 * @{ */
/** @brief dErfcInv at the LA level.
 * @details y[i] = ErfcInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardErfcInv_50(int n, const double* a, double* y);
/** @brief dErfcInv at the HA level (the plain name). @copydetails _zardErfcInv_50 */
void _zardErfcInv(int n, const double* a, double* y);
/** @brief dErfcInv at the HA level. @copydetails _zardErfcInv_50 */
void _zardErfcInv_HA(int n, const double* a, double* y);
/** @brief dErfcInv at the EP level. @copydetails _zardErfcInv_50 */
void _zardErfcInv_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dErfcInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 29.76, 36.48, 21.84. */
extern float brenn_zar_kernel_dErfcInv_ctab[3];
/** @} */

/** @name dCdfNorm
 * CdfNorm of double-precision vectors (cost figures 23.04, 29.28, 16.32).
 * @{ */
/** @brief dCdfNorm at the LA level.
 * @details y[i] = CdfNorm(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCdfNorm_50(int n, const double* a, double* y);
/** @brief dCdfNorm at the HA level (the plain name). @copydetails _zardCdfNorm_50 */
void _zardCdfNorm(int n, const double* a, double* y);
/** @brief dCdfNorm at the HA level. @copydetails _zardCdfNorm_50 */
void _zardCdfNorm_HA(int n, const double* a, double* y);
/** @brief dCdfNorm at the EP level. @copydetails _zardCdfNorm_50 */
void _zardCdfNorm_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCdfNorm_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 23.04, 29.28, 16.32. */
extern float brenn_zar_kernel_dCdfNorm_ctab[3];
/** @} */

/** @name dCdfNormInv
 * CdfNormInv of double-precision vectors (cost figures 28.08, 34.32, 20.64).
 * @{ */
/** @brief dCdfNormInv at the LA level.
 * @details y[i] = CdfNormInv(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCdfNormInv_50(int n, const double* a, double* y);
/** @brief dCdfNormInv at the HA level (the plain name). @copydetails _zardCdfNormInv_50 */
void _zardCdfNormInv(int n, const double* a, double* y);
/** @brief dCdfNormInv at the HA level. @copydetails _zardCdfNormInv_50 */
void _zardCdfNormInv_HA(int n, const double* a, double* y);
/** @brief dCdfNormInv at the EP level. @copydetails _zardCdfNormInv_50 */
void _zardCdfNormInv_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCdfNormInv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 28.08, 34.32, 20.64. */
extern float brenn_zar_kernel_dCdfNormInv_ctab[3];
/** @} */

/** @name dLGamma
 * LGamma of double-precision vectors (cost figures 328.5, 328.5, 328.5).
 * @{ */
/** @brief dLGamma at the LA level.
 * @details y[i] = LGamma(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLGamma_50(int n, const double* a, double* y);
/** @brief dLGamma at the HA level (the plain name). @copydetails _zardLGamma_50 */
void _zardLGamma(int n, const double* a, double* y);
/** @brief dLGamma at the HA level. @copydetails _zardLGamma_50 */
void _zardLGamma_HA(int n, const double* a, double* y);
/** @brief dLGamma at the EP level. @copydetails _zardLGamma_50 */
void _zardLGamma_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLGamma_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 328.5, 328.5, 328.5. */
extern float brenn_zar_kernel_dLGamma_ctab[3];
/** @} */

/** @name dTGamma
 * TGamma of double-precision vectors (cost figures 211.2, 211.2, 211.2).
 * @{ */
/** @brief dTGamma at the LA level.
 * @details y[i] = TGamma(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTGamma_50(int n, const double* a, double* y);
/** @brief dTGamma at the HA level (the plain name). @copydetails _zardTGamma_50 */
void _zardTGamma(int n, const double* a, double* y);
/** @brief dTGamma at the HA level. @copydetails _zardTGamma_50 */
void _zardTGamma_HA(int n, const double* a, double* y);
/** @brief dTGamma at the EP level. @copydetails _zardTGamma_50 */
void _zardTGamma_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTGamma_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 211.2, 211.2, 211.2. */
extern float brenn_zar_kernel_dTGamma_ctab[3];
/** @} */

/** @name dExpInt1
 * ExpInt1 of double-precision vectors (cost figures 148.8, 148.8, 74.4).
 * @{ */
/** @brief dExpInt1 at the LA level.
 * @details y[i] = ExpInt1(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardExpInt1_50(int n, const double* a, double* y);
/** @brief dExpInt1 at the HA level (the plain name). @copydetails _zardExpInt1_50 */
void _zardExpInt1(int n, const double* a, double* y);
/** @brief dExpInt1 at the HA level. @copydetails _zardExpInt1_50 */
void _zardExpInt1_HA(int n, const double* a, double* y);
/** @brief dExpInt1 at the EP level. @copydetails _zardExpInt1_50 */
void _zardExpInt1_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dExpInt1_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 148.8, 148.8, 74.4. */
extern float brenn_zar_kernel_dExpInt1_ctab[3];
/** @} */

/** @name dSinpi
 * Sinpi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dSinpi at the LA level.
 * @details y[i] = Sinpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSinpi_50(int n, const double* a, double* y);
/** @brief dSinpi at the HA level (the plain name). @copydetails _zardSinpi_50 */
void _zardSinpi(int n, const double* a, double* y);
/** @brief dSinpi at the HA level. @copydetails _zardSinpi_50 */
void _zardSinpi_HA(int n, const double* a, double* y);
/** @brief dSinpi at the EP level. @copydetails _zardSinpi_50 */
void _zardSinpi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSinpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dSinpi_ctab[3];
/** @} */

/** @name dCospi
 * Cospi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dCospi at the LA level.
 * @details y[i] = Cospi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCospi_50(int n, const double* a, double* y);
/** @brief dCospi at the HA level (the plain name). @copydetails _zardCospi_50 */
void _zardCospi(int n, const double* a, double* y);
/** @brief dCospi at the HA level. @copydetails _zardCospi_50 */
void _zardCospi_HA(int n, const double* a, double* y);
/** @brief dCospi at the EP level. @copydetails _zardCospi_50 */
void _zardCospi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCospi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dCospi_ctab[3];
/** @} */

/** @name dTanpi
 * Tanpi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dTanpi at the LA level.
 * @details y[i] = Tanpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTanpi_50(int n, const double* a, double* y);
/** @brief dTanpi at the HA level (the plain name). @copydetails _zardTanpi_50 */
void _zardTanpi(int n, const double* a, double* y);
/** @brief dTanpi at the HA level. @copydetails _zardTanpi_50 */
void _zardTanpi_HA(int n, const double* a, double* y);
/** @brief dTanpi at the EP level. @copydetails _zardTanpi_50 */
void _zardTanpi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTanpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dTanpi_ctab[3];
/** @} */

/** @name dAcospi
 * Acospi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dAcospi at the LA level.
 * @details y[i] = Acospi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAcospi_50(int n, const double* a, double* y);
/** @brief dAcospi at the HA level (the plain name). @copydetails _zardAcospi_50 */
void _zardAcospi(int n, const double* a, double* y);
/** @brief dAcospi at the HA level. @copydetails _zardAcospi_50 */
void _zardAcospi_HA(int n, const double* a, double* y);
/** @brief dAcospi at the EP level. @copydetails _zardAcospi_50 */
void _zardAcospi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAcospi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dAcospi_ctab[3];
/** @} */

/** @name dAsinpi
 * Asinpi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dAsinpi at the LA level.
 * @details y[i] = Asinpi(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAsinpi_50(int n, const double* a, double* y);
/** @brief dAsinpi at the HA level (the plain name). @copydetails _zardAsinpi_50 */
void _zardAsinpi(int n, const double* a, double* y);
/** @brief dAsinpi at the HA level. @copydetails _zardAsinpi_50 */
void _zardAsinpi_HA(int n, const double* a, double* y);
/** @brief dAsinpi at the EP level. @copydetails _zardAsinpi_50 */
void _zardAsinpi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAsinpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dAsinpi_ctab[3];
/** @} */

/** @name dAtanpi
 * Atanpi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dAtanpi at the LA level.
 * @details y[i] = Atanpi(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardAtanpi_50(int n, const double* a, double* y);
/** @brief dAtanpi at the HA level (the plain name). @copydetails _zardAtanpi_50 */
void _zardAtanpi(int n, const double* a, double* y);
/** @brief dAtanpi at the HA level. @copydetails _zardAtanpi_50 */
void _zardAtanpi_HA(int n, const double* a, double* y);
/** @brief dAtanpi at the EP level. @copydetails _zardAtanpi_50 */
void _zardAtanpi_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAtanpi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dAtanpi_ctab[3];
/** @} */

/** @name dExp2
 * Exp2 of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dExp2 at the LA level.
 * @details y[i] = Exp2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardExp2_50(int n, const double* a, double* y);
/** @brief dExp2 at the HA level (the plain name). @copydetails _zardExp2_50 */
void _zardExp2(int n, const double* a, double* y);
/** @brief dExp2 at the HA level. @copydetails _zardExp2_50 */
void _zardExp2_HA(int n, const double* a, double* y);
/** @brief dExp2 at the EP level. @copydetails _zardExp2_50 */
void _zardExp2_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dExp2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dExp2_ctab[3];
/** @} */

/** @name dExp10
 * Exp10 of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dExp10 at the LA level.
 * @details y[i] = Exp10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardExp10_50(int n, const double* a, double* y);
/** @brief dExp10 at the HA level (the plain name). @copydetails _zardExp10_50 */
void _zardExp10(int n, const double* a, double* y);
/** @brief dExp10 at the HA level. @copydetails _zardExp10_50 */
void _zardExp10_HA(int n, const double* a, double* y);
/** @brief dExp10 at the EP level. @copydetails _zardExp10_50 */
void _zardExp10_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dExp10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dExp10_ctab[3];
/** @} */

/** @name dLog2
 * Log2 of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dLog2 at the LA level.
 * @details y[i] = Log2(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLog2_50(int n, const double* a, double* y);
/** @brief dLog2 at the HA level (the plain name). @copydetails _zardLog2_50 */
void _zardLog2(int n, const double* a, double* y);
/** @brief dLog2 at the HA level. @copydetails _zardLog2_50 */
void _zardLog2_HA(int n, const double* a, double* y);
/** @brief dLog2 at the EP level. @copydetails _zardLog2_50 */
void _zardLog2_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLog2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dLog2_ctab[3];
/** @} */

/** @name dSind
 * Sind of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dSind at the LA level.
 * @details y[i] = Sind(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardSind_50(int n, const double* a, double* y);
/** @brief dSind at the HA level (the plain name). @copydetails _zardSind_50 */
void _zardSind(int n, const double* a, double* y);
/** @brief dSind at the HA level. @copydetails _zardSind_50 */
void _zardSind_HA(int n, const double* a, double* y);
/** @brief dSind at the EP level. @copydetails _zardSind_50 */
void _zardSind_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSind_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dSind_ctab[3];
/** @} */

/** @name dCosd
 * Cosd of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dCosd at the LA level.
 * @details y[i] = Cosd(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardCosd_50(int n, const double* a, double* y);
/** @brief dCosd at the HA level (the plain name). @copydetails _zardCosd_50 */
void _zardCosd(int n, const double* a, double* y);
/** @brief dCosd at the HA level. @copydetails _zardCosd_50 */
void _zardCosd_HA(int n, const double* a, double* y);
/** @brief dCosd at the EP level. @copydetails _zardCosd_50 */
void _zardCosd_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCosd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dCosd_ctab[3];
/** @} */

/** @name dTand
 * Tand of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dTand at the LA level.
 * @details y[i] = Tand(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardTand_50(int n, const double* a, double* y);
/** @brief dTand at the HA level (the plain name). @copydetails _zardTand_50 */
void _zardTand(int n, const double* a, double* y);
/** @brief dTand at the HA level. @copydetails _zardTand_50 */
void _zardTand_HA(int n, const double* a, double* y);
/** @brief dTand at the EP level. @copydetails _zardTand_50 */
void _zardTand_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dTand_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dTand_ctab[3];
/** @} */

/** @name dLogb
 * Logb of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dLogb at the LA level.
 * @details y[i] = Logb(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zardLogb_50(int n, const double* a, double* y);
/** @brief dLogb at the HA level (the plain name). @copydetails _zardLogb_50 */
void _zardLogb(int n, const double* a, double* y);
/** @brief dLogb at the HA level. @copydetails _zardLogb_50 */
void _zardLogb_HA(int n, const double* a, double* y);
/** @brief dLogb at the EP level. @copydetails _zardLogb_50 */
void _zardLogb_26(int n, const double* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLogb_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dLogb_ctab[3];
/** @} */

/** @name cCos
 * Cos of single-precision complex vectors (cost figures 600.0, 600.0, 600.0).
 * @{ */
/** @brief cCos at the LA level.
 * @details y[i] = Cos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcCos_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCos at the HA level (the plain name). @copydetails _zarcCos_21 */
void _zarcCos(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCos at the HA level. @copydetails _zarcCos_21 */
void _zarcCos_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCos at the EP level. @copydetails _zarcCos_21 */
void _zarcCos_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 600.0, 600.0, 600.0. */
extern float brenn_zar_kernel_cCos_ctab[3];
/** @} */

/** @name cSin
 * Sin of single-precision complex vectors (cost figures 600.0, 600.0, 600.0).
 * @{ */
/** @brief cSin at the LA level.
 * @details y[i] = Sin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcSin_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSin at the HA level (the plain name). @copydetails _zarcSin_21 */
void _zarcSin(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSin at the HA level. @copydetails _zarcSin_21 */
void _zarcSin_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSin at the EP level. @copydetails _zarcSin_21 */
void _zarcSin_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cSin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 600.0, 600.0, 600.0. */
extern float brenn_zar_kernel_cSin_ctab[3];
/** @} */

/** @name cTan
 * Tan of single-precision complex vectors (cost figures 900.0, 900.0, 900.0).
 * @{ */
/** @brief cTan at the LA level.
 * @details y[i] = Tan(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcTan_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTan at the HA level (the plain name). @copydetails _zarcTan_21 */
void _zarcTan(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTan at the HA level. @copydetails _zarcTan_21 */
void _zarcTan_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTan at the EP level. @copydetails _zarcTan_21 */
void _zarcTan_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cTan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 900.0, 900.0, 900.0. */
extern float brenn_zar_kernel_cTan_ctab[3];
/** @} */

/** @name cCosh
 * Cosh of single-precision complex vectors (cost figures 610.0, 610.0, 610.0).
 * @{ */
/** @brief cCosh at the LA level.
 * @details y[i] = Cosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcCosh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCosh at the HA level (the plain name). @copydetails _zarcCosh_21 */
void _zarcCosh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCosh at the HA level. @copydetails _zarcCosh_21 */
void _zarcCosh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cCosh at the EP level. @copydetails _zarcCosh_21 */
void _zarcCosh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cCosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 610.0, 610.0, 610.0. */
extern float brenn_zar_kernel_cCosh_ctab[3];
/** @} */

/** @name cSinh
 * Sinh of single-precision complex vectors (cost figures 610.0, 610.0, 610.0).
 * @{ */
/** @brief cSinh at the LA level.
 * @details y[i] = Sinh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcSinh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSinh at the HA level (the plain name). @copydetails _zarcSinh_21 */
void _zarcSinh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSinh at the HA level. @copydetails _zarcSinh_21 */
void _zarcSinh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSinh at the EP level. @copydetails _zarcSinh_21 */
void _zarcSinh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cSinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 610.0, 610.0, 610.0. */
extern float brenn_zar_kernel_cSinh_ctab[3];
/** @} */

/** @name cTanh
 * Tanh of single-precision complex vectors (cost figures 880.0, 880.0, 880.0).
 * @{ */
/** @brief cTanh at the LA level.
 * @details y[i] = Tanh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcTanh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTanh at the HA level (the plain name). @copydetails _zarcTanh_21 */
void _zarcTanh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTanh at the HA level. @copydetails _zarcTanh_21 */
void _zarcTanh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cTanh at the EP level. @copydetails _zarcTanh_21 */
void _zarcTanh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cTanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 880.0, 880.0, 880.0. */
extern float brenn_zar_kernel_cTanh_ctab[3];
/** @} */

/** @name cAcos
 * Acos of single-precision complex vectors (cost figures 1110.0, 1110.0, 1110.0).
 * @{ */
/** @brief cAcos at the LA level.
 * @details y[i] = Acos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAcos_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcos at the HA level (the plain name). @copydetails _zarcAcos_21 */
void _zarcAcos(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcos at the HA level. @copydetails _zarcAcos_21 */
void _zarcAcos_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcos at the EP level. @copydetails _zarcAcos_21 */
void _zarcAcos_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAcos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1110.0, 1110.0, 1110.0. */
extern float brenn_zar_kernel_cAcos_ctab[3];
/** @} */

/** @name cAsin
 * Asin of single-precision complex vectors (cost figures 1080.0, 1080.0, 1080.0).
 * @{ */
/** @brief cAsin at the LA level.
 * @details y[i] = Asin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAsin_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsin at the HA level (the plain name). @copydetails _zarcAsin_21 */
void _zarcAsin(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsin at the HA level. @copydetails _zarcAsin_21 */
void _zarcAsin_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsin at the EP level. @copydetails _zarcAsin_21 */
void _zarcAsin_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAsin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1080.0, 1080.0, 1080.0. */
extern float brenn_zar_kernel_cAsin_ctab[3];
/** @} */

/** @name cAtan
 * Atan of single-precision complex vectors (cost figures 840.0, 840.0, 840.0).
 * @{ */
/** @brief cAtan at the LA level.
 * @details y[i] = Atan(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAtan_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtan at the HA level (the plain name). @copydetails _zarcAtan_21 */
void _zarcAtan(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtan at the HA level. @copydetails _zarcAtan_21 */
void _zarcAtan_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtan at the EP level. @copydetails _zarcAtan_21 */
void _zarcAtan_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAtan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 840.0, 840.0, 840.0. */
extern float brenn_zar_kernel_cAtan_ctab[3];
/** @} */

/** @name cAcosh
 * Acosh of single-precision complex vectors (cost figures 1150.0, 1150.0, 1150.0).
 * @{ */
/** @brief cAcosh at the LA level.
 * @details y[i] = Acosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAcosh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcosh at the HA level (the plain name). @copydetails _zarcAcosh_21 */
void _zarcAcosh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcosh at the HA level. @copydetails _zarcAcosh_21 */
void _zarcAcosh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAcosh at the EP level. @copydetails _zarcAcosh_21 */
void _zarcAcosh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAcosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1150.0, 1150.0, 1150.0. */
extern float brenn_zar_kernel_cAcosh_ctab[3];
/** @} */

/** @name cAsinh
 * Asinh of single-precision complex vectors (cost figures 1120.0, 1120.0, 1120.0).
 * @{ */
/** @brief cAsinh at the LA level.
 * @details y[i] = Asinh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAsinh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsinh at the HA level (the plain name). @copydetails _zarcAsinh_21 */
void _zarcAsinh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsinh at the HA level. @copydetails _zarcAsinh_21 */
void _zarcAsinh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAsinh at the EP level. @copydetails _zarcAsinh_21 */
void _zarcAsinh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAsinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1120.0, 1120.0, 1120.0. */
extern float brenn_zar_kernel_cAsinh_ctab[3];
/** @} */

/** @name cAtanh
 * Atanh of single-precision complex vectors (cost figures 860.0, 860.0, 860.0).
 * @{ */
/** @brief cAtanh at the LA level.
 * @details y[i] = Atanh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcAtanh_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtanh at the HA level (the plain name). @copydetails _zarcAtanh_21 */
void _zarcAtanh(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtanh at the HA level. @copydetails _zarcAtanh_21 */
void _zarcAtanh_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cAtanh at the EP level. @copydetails _zarcAtanh_21 */
void _zarcAtanh_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAtanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 860.0, 860.0, 860.0. */
extern float brenn_zar_kernel_cAtanh_ctab[3];
/** @} */

/** @name cExp
 * Exp of single-precision complex vectors (cost figures 48.6, 71.2, 48.6).
 * @{ */
/** @brief cExp at the LA level.
 * @details y[i] = Exp(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcExp_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cExp at the HA level (the plain name). @copydetails _zarcExp_21 */
void _zarcExp(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cExp at the HA level. @copydetails _zarcExp_21 */
void _zarcExp_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cExp at the EP level. @copydetails _zarcExp_21 */
void _zarcExp_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cExp_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 48.6, 71.2, 48.6. */
extern float brenn_zar_kernel_cExp_ctab[3];
/** @} */

/** @name cLn
 * Ln of single-precision complex vectors (cost figures 96.4, 118.3, 62.1).
 * @{ */
/** @brief cLn at the LA level.
 * @details y[i] = Ln(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcLn_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLn at the HA level (the plain name). @copydetails _zarcLn_21 */
void _zarcLn(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLn at the HA level. @copydetails _zarcLn_21 */
void _zarcLn_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLn at the EP level. @copydetails _zarcLn_21 */
void _zarcLn_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cLn_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 96.4, 118.3, 62.1. */
extern float brenn_zar_kernel_cLn_ctab[3];
/** @} */

/** @name cLog10
 * Log10 of single-precision complex vectors (cost figures 128.0, 128.0, 128.0).
 * @{ */
/** @brief cLog10 at the LA level.
 * @details y[i] = Log10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcLog10_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLog10 at the HA level (the plain name). @copydetails _zarcLog10_21 */
void _zarcLog10(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLog10 at the HA level. @copydetails _zarcLog10_21 */
void _zarcLog10_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cLog10 at the EP level. @copydetails _zarcLog10_21 */
void _zarcLog10_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cLog10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 128.0, 128.0, 128.0. */
extern float brenn_zar_kernel_cLog10_ctab[3];
/** @} */

/** @name cSqrt
 * Sqrt of single-precision complex vectors (cost figures 42.7, 61.5, 42.7).
 * @{ */
/** @brief cSqrt at the LA level.
 * @details y[i] = Sqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcSqrt_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSqrt at the HA level (the plain name). @copydetails _zarcSqrt_21 */
void _zarcSqrt(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSqrt at the HA level. @copydetails _zarcSqrt_21 */
void _zarcSqrt_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cSqrt at the EP level. @copydetails _zarcSqrt_21 */
void _zarcSqrt_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 42.7, 61.5, 42.7. */
extern float brenn_zar_kernel_cSqrt_ctab[3];
/** @} */

/** @name cConj
 * Conj of single-precision complex vectors (cost figures 1.0, 1.0, 1.0).
 * @{ */
/** @brief cConj at the LA level.
 * @details y[i] = Conj(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarcConj_21(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cConj at the HA level (the plain name). @copydetails _zarcConj_21 */
void _zarcConj(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cConj at the HA level. @copydetails _zarcConj_21 */
void _zarcConj_HA(int n, const BrennComplex8* a, BrennComplex8* y);
/** @brief cConj at the EP level. @copydetails _zarcConj_21 */
void _zarcConj_11(int n, const BrennComplex8* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cConj_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.0, 1.0, 1.0. */
extern float brenn_zar_kernel_cConj_ctab[3];
/** @} */

/** @name zCos
 * Cos of double-precision complex vectors (cost figures 1320.0, 1320.0, 1320.0).
 * @{ */
/** @brief zCos at the LA level.
 * @details y[i] = Cos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzCos_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCos at the HA level (the plain name). @copydetails _zarzCos_50 */
void _zarzCos(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCos at the HA level. @copydetails _zarzCos_50 */
void _zarzCos_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCos at the EP level. @copydetails _zarzCos_50 */
void _zarzCos_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1320.0, 1320.0, 1320.0. */
extern float brenn_zar_kernel_zCos_ctab[3];
/** @} */

/** @name zSin
 * Sin of double-precision complex vectors (cost figures 1320.0, 1320.0, 1320.0).
 * @{ */
/** @brief zSin at the LA level.
 * @details y[i] = Sin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzSin_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSin at the HA level (the plain name). @copydetails _zarzSin_50 */
void _zarzSin(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSin at the HA level. @copydetails _zarzSin_50 */
void _zarzSin_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSin at the EP level. @copydetails _zarzSin_50 */
void _zarzSin_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zSin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1320.0, 1320.0, 1320.0. */
extern float brenn_zar_kernel_zSin_ctab[3];
/** @} */

/** @name zTan
 * Tan of double-precision complex vectors (cost figures 1980.0, 1980.0, 1980.0).
 * @{ */
/** @brief zTan at the LA level.
 * @details y[i] = Tan(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzTan_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTan at the HA level (the plain name). @copydetails _zarzTan_50 */
void _zarzTan(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTan at the HA level. @copydetails _zarzTan_50 */
void _zarzTan_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTan at the EP level. @copydetails _zarzTan_50 */
void _zarzTan_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zTan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1980.0, 1980.0, 1980.0. */
extern float brenn_zar_kernel_zTan_ctab[3];
/** @} */

/** @name zCosh
 * Cosh of double-precision complex vectors (cost figures 1342.0, 1342.0, 1342.0).
 * @{ */
/** @brief zCosh at the LA level.
 * @details y[i] = Cosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzCosh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCosh at the HA level (the plain name). @copydetails _zarzCosh_50 */
void _zarzCosh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCosh at the HA level. @copydetails _zarzCosh_50 */
void _zarzCosh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zCosh at the EP level. @copydetails _zarzCosh_50 */
void _zarzCosh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zCosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1342.0, 1342.0, 1342.0. */
extern float brenn_zar_kernel_zCosh_ctab[3];
/** @} */

/** @name zSinh
 * Sinh of double-precision complex vectors (cost figures 1342.0, 1342.0, 1342.0).
 * @{ */
/** @brief zSinh at the LA level.
 * @details y[i] = Sinh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzSinh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSinh at the HA level (the plain name). @copydetails _zarzSinh_50 */
void _zarzSinh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSinh at the HA level. @copydetails _zarzSinh_50 */
void _zarzSinh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSinh at the EP level. @copydetails _zarzSinh_50 */
void _zarzSinh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zSinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1342.0, 1342.0, 1342.0. */
extern float brenn_zar_kernel_zSinh_ctab[3];
/** @} */

/** @name zTanh
 * Tanh of double-precision complex vectors (cost figures 1936.0, 1936.0, 1936.0).
 * @{ */
/** @brief zTanh at the LA level.
 * @details y[i] = Tanh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzTanh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTanh at the HA level (the plain name). @copydetails _zarzTanh_50 */
void _zarzTanh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTanh at the HA level. @copydetails _zarzTanh_50 */
void _zarzTanh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zTanh at the EP level. @copydetails _zarzTanh_50 */
void _zarzTanh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zTanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1936.0, 1936.0, 1936.0. */
extern float brenn_zar_kernel_zTanh_ctab[3];
/** @} */

/** @name zAcos
 * Acos of double-precision complex vectors (cost figures 2442.0, 2442.0, 2442.0).
 * @{ */
/** @brief zAcos at the LA level.
 * @details y[i] = Acos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAcos_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcos at the HA level (the plain name). @copydetails _zarzAcos_50 */
void _zarzAcos(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcos at the HA level. @copydetails _zarzAcos_50 */
void _zarzAcos_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcos at the EP level. @copydetails _zarzAcos_50 */
void _zarzAcos_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAcos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2442.0, 2442.0, 2442.0. */
extern float brenn_zar_kernel_zAcos_ctab[3];
/** @} */

/** @name zAsin
 * Asin of double-precision complex vectors (cost figures 2376.0, 2376.0, 2376.0).
 * @{ */
/** @brief zAsin at the LA level.
 * @details y[i] = Asin(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAsin_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsin at the HA level (the plain name). @copydetails _zarzAsin_50 */
void _zarzAsin(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsin at the HA level. @copydetails _zarzAsin_50 */
void _zarzAsin_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsin at the EP level. @copydetails _zarzAsin_50 */
void _zarzAsin_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAsin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2376.0, 2376.0, 2376.0. */
extern float brenn_zar_kernel_zAsin_ctab[3];
/** @} */

/** @name zAtan
 * Atan of double-precision complex vectors (cost figures 1848.0, 1848.0, 1848.0).
 * @{ */
/** @brief zAtan at the LA level.
 * @details y[i] = Atan(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAtan_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtan at the HA level (the plain name). @copydetails _zarzAtan_50 */
void _zarzAtan(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtan at the HA level. @copydetails _zarzAtan_50 */
void _zarzAtan_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtan at the EP level. @copydetails _zarzAtan_50 */
void _zarzAtan_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAtan_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1848.0, 1848.0, 1848.0. */
extern float brenn_zar_kernel_zAtan_ctab[3];
/** @} */

/** @name zAcosh
 * Acosh of double-precision complex vectors (cost figures 2530.0, 2530.0, 2530.0).
 * @{ */
/** @brief zAcosh at the LA level.
 * @details y[i] = Acosh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAcosh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcosh at the HA level (the plain name). @copydetails _zarzAcosh_50 */
void _zarzAcosh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcosh at the HA level. @copydetails _zarzAcosh_50 */
void _zarzAcosh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAcosh at the EP level. @copydetails _zarzAcosh_50 */
void _zarzAcosh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAcosh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2530.0, 2530.0, 2530.0. */
extern float brenn_zar_kernel_zAcosh_ctab[3];
/** @} */

/** @name zAsinh
 * Asinh of double-precision complex vectors (cost figures 2464.0, 2464.0, 2464.0).
 * @{ */
/** @brief zAsinh at the LA level.
 * @details y[i] = Asinh(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAsinh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsinh at the HA level (the plain name). @copydetails _zarzAsinh_50 */
void _zarzAsinh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsinh at the HA level. @copydetails _zarzAsinh_50 */
void _zarzAsinh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAsinh at the EP level. @copydetails _zarzAsinh_50 */
void _zarzAsinh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAsinh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2464.0, 2464.0, 2464.0. */
extern float brenn_zar_kernel_zAsinh_ctab[3];
/** @} */

/** @name zAtanh
 * Atanh of double-precision complex vectors (cost figures 1892.0, 1892.0, 1892.0).
 * @{ */
/** @brief zAtanh at the LA level.
 * @details y[i] = Atanh(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzAtanh_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtanh at the HA level (the plain name). @copydetails _zarzAtanh_50 */
void _zarzAtanh(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtanh at the HA level. @copydetails _zarzAtanh_50 */
void _zarzAtanh_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zAtanh at the EP level. @copydetails _zarzAtanh_50 */
void _zarzAtanh_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAtanh_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1892.0, 1892.0, 1892.0. */
extern float brenn_zar_kernel_zAtanh_ctab[3];
/** @} */

/** @name zExp
 * Exp of double-precision complex vectors (cost figures 106.92, 156.64, 106.92).
 * @{ */
/** @brief zExp at the LA level.
 * @details y[i] = Exp(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzExp_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zExp at the HA level (the plain name). @copydetails _zarzExp_50 */
void _zarzExp(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zExp at the HA level. @copydetails _zarzExp_50 */
void _zarzExp_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zExp at the EP level. @copydetails _zarzExp_50 */
void _zarzExp_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zExp_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 106.92, 156.64, 106.92. */
extern float brenn_zar_kernel_zExp_ctab[3];
/** @} */

/** @name zLn
 * Ln of double-precision complex vectors (cost figures 212.08, 260.26, 136.62).
 * @{ */
/** @brief zLn at the LA level.
 * @details y[i] = Ln(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzLn_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLn at the HA level (the plain name). @copydetails _zarzLn_50 */
void _zarzLn(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLn at the HA level. @copydetails _zarzLn_50 */
void _zarzLn_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLn at the EP level. @copydetails _zarzLn_50 */
void _zarzLn_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zLn_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 212.08, 260.26, 136.62. */
extern float brenn_zar_kernel_zLn_ctab[3];
/** @} */

/** @name zLog10
 * Log10 of double-precision complex vectors (cost figures 281.6, 281.6, 281.6).
 * @{ */
/** @brief zLog10 at the LA level.
 * @details y[i] = Log10(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzLog10_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLog10 at the HA level (the plain name). @copydetails _zarzLog10_50 */
void _zarzLog10(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLog10 at the HA level. @copydetails _zarzLog10_50 */
void _zarzLog10_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zLog10 at the EP level. @copydetails _zarzLog10_50 */
void _zarzLog10_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zLog10_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 281.6, 281.6, 281.6. */
extern float brenn_zar_kernel_zLog10_ctab[3];
/** @} */

/** @name zSqrt
 * Sqrt of double-precision complex vectors (cost figures 180.5, 180.5, 180.5).
 * @{ */
/** @brief zSqrt at the LA level.
 * @details y[i] = Sqrt(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzSqrt_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSqrt at the HA level (the plain name). @copydetails _zarzSqrt_50 */
void _zarzSqrt(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSqrt at the HA level. @copydetails _zarzSqrt_50 */
void _zarzSqrt_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zSqrt at the EP level. @copydetails _zarzSqrt_50 */
void _zarzSqrt_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zSqrt_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 180.5, 180.5, 180.5. */
extern float brenn_zar_kernel_zSqrt_ctab[3];
/** @} */

/** @name zConj
 * Conj of double-precision complex vectors (cost figures 2.0, 2.0, 2.0).
 * @{ */
/** @brief zConj at the LA level.
 * @details y[i] = Conj(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y results, n elements
 */
void _zarzConj_50(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zConj at the HA level (the plain name). @copydetails _zarzConj_50 */
void _zarzConj(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zConj at the HA level. @copydetails _zarzConj_50 */
void _zarzConj_HA(int n, const BrennComplex16* a, BrennComplex16* y);
/** @brief zConj at the EP level. @copydetails _zarzConj_50 */
void _zarzConj_26(int n, const BrennComplex16* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zConj_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.0, 2.0, 2.0. */
extern float brenn_zar_kernel_zConj_ctab[3];
/** @} */

/** @name cCIS
 * CIS of single-precision complex vectors (cost figures 22.4, 41.3, 14.6).
 * @{ */
/** @brief cCIS at the LA level.
 * @details y[i] = CIS(a[i]) for i below n: real arguments, complex results.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a real arguments, n elements
 * @param y complex results, n elements
 */
void _zarcCIS_21(int n, const float* a, BrennComplex8* y);
/** @brief cCIS at the HA level (the plain name). @copydetails _zarcCIS_21 */
void _zarcCIS(int n, const float* a, BrennComplex8* y);
/** @brief cCIS at the HA level. @copydetails _zarcCIS_21 */
void _zarcCIS_HA(int n, const float* a, BrennComplex8* y);
/** @brief cCIS at the EP level. @copydetails _zarcCIS_21 */
void _zarcCIS_11(int n, const float* a, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cCIS_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 22.4, 41.3, 14.6. */
extern float brenn_zar_kernel_cCIS_ctab[3];
/** @} */

/** @name zCIS
 * CIS of double-precision complex vectors (cost figures 49.28, 90.86, 32.12).
 * @{ */
/** @brief zCIS at the LA level.
 * @details y[i] = CIS(a[i]) for i below n: real arguments, complex results.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a real arguments, n elements
 * @param y complex results, n elements
 */
void _zarzCIS_50(int n, const double* a, BrennComplex16* y);
/** @brief zCIS at the HA level (the plain name). @copydetails _zarzCIS_50 */
void _zarzCIS(int n, const double* a, BrennComplex16* y);
/** @brief zCIS at the HA level. @copydetails _zarzCIS_50 */
void _zarzCIS_HA(int n, const double* a, BrennComplex16* y);
/** @brief zCIS at the EP level. @copydetails _zarzCIS_50 */
void _zarzCIS_26(int n, const double* a, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zCIS_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 49.28, 90.86, 32.12. */
extern float brenn_zar_kernel_zCIS_ctab[3];
/** @} */

/** @name cAbs
 * Abs of single-precision complex vectors (cost figures 3.2, 6.8, 2.2).
 * @{ */
/** @brief cAbs at the LA level.
 * @details y[i] = Abs(a[i]) for i below n: complex arguments, real results.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a complex arguments, n elements
 * @param y real results, n elements
 */
void _zarcAbs_21(int n, const BrennComplex8* a, float* y);
/** @brief cAbs at the HA level (the plain name). @copydetails _zarcAbs_21 */
void _zarcAbs(int n, const BrennComplex8* a, float* y);
/** @brief cAbs at the HA level. @copydetails _zarcAbs_21 */
void _zarcAbs_HA(int n, const BrennComplex8* a, float* y);
/** @brief cAbs at the EP level. @copydetails _zarcAbs_21 */
void _zarcAbs_11(int n, const BrennComplex8* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAbs_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 3.2, 6.8, 2.2. */
extern float brenn_zar_kernel_cAbs_ctab[3];
/** @} */

/** @name cArg
 * Arg of single-precision complex vectors (cost figures 12.3, 15.6, 8.4).
 * @{ */
/** @brief cArg at the LA level.
 * @details y[i] = Arg(a[i]) for i below n: complex arguments, real results.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a complex arguments, n elements
 * @param y real results, n elements
 */
void _zarcArg_21(int n, const BrennComplex8* a, float* y);
/** @brief cArg at the HA level (the plain name). @copydetails _zarcArg_21 */
void _zarcArg(int n, const BrennComplex8* a, float* y);
/** @brief cArg at the HA level. @copydetails _zarcArg_21 */
void _zarcArg_HA(int n, const BrennComplex8* a, float* y);
/** @brief cArg at the EP level. @copydetails _zarcArg_21 */
void _zarcArg_11(int n, const BrennComplex8* a, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cArg_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 12.3, 15.6, 8.4. */
extern float brenn_zar_kernel_cArg_ctab[3];
/** @} */

/** @name zAbs
 * Abs of double-precision complex vectors (cost figures 7.04, 14.96, 4.84).
 * @{ */
/** @brief zAbs at the LA level.
 * @details y[i] = Abs(a[i]) for i below n: complex arguments, real results.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a complex arguments, n elements
 * @param y real results, n elements
 */
void _zarzAbs_50(int n, const BrennComplex16* a, double* y);
/** @brief zAbs at the HA level (the plain name). @copydetails _zarzAbs_50 */
void _zarzAbs(int n, const BrennComplex16* a, double* y);
/** @brief zAbs at the HA level. @copydetails _zarzAbs_50 */
void _zarzAbs_HA(int n, const BrennComplex16* a, double* y);
/** @brief zAbs at the EP level. @copydetails _zarzAbs_50 */
void _zarzAbs_26(int n, const BrennComplex16* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAbs_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 7.04, 14.96, 4.84. */
extern float brenn_zar_kernel_zAbs_ctab[3];
/** @} */

/** @name zArg
 * Arg of double-precision complex vectors (cost figures 27.06, 34.32, 18.48).
 * @{ */
/** @brief zArg at the LA level.
 * @details y[i] = Arg(a[i]) for i below n: complex arguments, real results.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a complex arguments, n elements
 * @param y real results, n elements
 */
void _zarzArg_50(int n, const BrennComplex16* a, double* y);
/** @brief zArg at the HA level (the plain name). @copydetails _zarzArg_50 */
void _zarzArg(int n, const BrennComplex16* a, double* y);
/** @brief zArg at the HA level. @copydetails _zarzArg_50 */
void _zarzArg_HA(int n, const BrennComplex16* a, double* y);
/** @brief zArg at the EP level. @copydetails _zarzArg_50 */
void _zarzArg_26(int n, const BrennComplex16* a, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zArg_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 27.06, 34.32, 18.48. */
extern float brenn_zar_kernel_zArg_ctab[3];
/** @} */

/** @name sDiv
 * Div of single-precision vectors (cost figures 2.24, 1.11, 1.56).
 * @{ */
/** @brief sDiv at the LA level.
 * @details y[i] = Div(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsDiv_21(int n, const float* a, const float* b, float* y);
/** @brief sDiv at the HA level (the plain name). @copydetails _zarsDiv_21 */
void _zarsDiv(int n, const float* a, const float* b, float* y);
/** @brief sDiv at the HA level. @copydetails _zarsDiv_21 */
void _zarsDiv_HA(int n, const float* a, const float* b, float* y);
/** @brief sDiv at the EP level. @copydetails _zarsDiv_21 */
void _zarsDiv_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sDiv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.24, 1.11, 1.56. */
extern float brenn_zar_kernel_sDiv_ctab[3];
/** @} */

/** @name sPow
 * Pow of single-precision vectors (cost figures 21.26, 22.23, 9.87).
 * @{ */
/** @brief sPow at the LA level.
 * @details y[i] = Pow(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsPow_21(int n, const float* a, const float* b, float* y);
/** @brief sPow at the HA level (the plain name). @copydetails _zarsPow_21 */
void _zarsPow(int n, const float* a, const float* b, float* y);
/** @brief sPow at the HA level. @copydetails _zarsPow_21 */
void _zarsPow_HA(int n, const float* a, const float* b, float* y);
/** @brief sPow at the EP level. @copydetails _zarsPow_21 */
void _zarsPow_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPow_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 21.26, 22.23, 9.87. */
extern float brenn_zar_kernel_sPow_ctab[3];
/** @} */

/** @name sAtan2
 * Atan2 of single-precision vectors (cost figures 11.6, 14.4, 7.9).
 * @{ */
/** @brief sAtan2 at the LA level.
 * @details y[i] = Atan2(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsAtan2_21(int n, const float* a, const float* b, float* y);
/** @brief sAtan2 at the HA level (the plain name). @copydetails _zarsAtan2_21 */
void _zarsAtan2(int n, const float* a, const float* b, float* y);
/** @brief sAtan2 at the HA level. @copydetails _zarsAtan2_21 */
void _zarsAtan2_HA(int n, const float* a, const float* b, float* y);
/** @brief sAtan2 at the EP level. @copydetails _zarsAtan2_21 */
void _zarsAtan2_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAtan2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 11.6, 14.4, 7.9. */
extern float brenn_zar_kernel_sAtan2_ctab[3];
/** @} */

/** @name sHypot
 * Hypot of single-precision vectors (cost figures 2.9, 4.1, 2.0).
 * @{ */
/** @brief sHypot at the LA level.
 * @details y[i] = Hypot(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsHypot_21(int n, const float* a, const float* b, float* y);
/** @brief sHypot at the HA level (the plain name). @copydetails _zarsHypot_21 */
void _zarsHypot(int n, const float* a, const float* b, float* y);
/** @brief sHypot at the HA level. @copydetails _zarsHypot_21 */
void _zarsHypot_HA(int n, const float* a, const float* b, float* y);
/** @brief sHypot at the EP level. @copydetails _zarsHypot_21 */
void _zarsHypot_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sHypot_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.9, 4.1, 2.0. */
extern float brenn_zar_kernel_sHypot_ctab[3];
/** @} */

/** @name sAdd
 * Add of single-precision vectors (cost figures 0.64, 0.64, 0.64).
 * @{ */
/** @brief sAdd at the LA level.
 * @details y[i] = Add(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsAdd_21(int n, const float* a, const float* b, float* y);
/** @brief sAdd at the HA level (the plain name). @copydetails _zarsAdd_21 */
void _zarsAdd(int n, const float* a, const float* b, float* y);
/** @brief sAdd at the HA level. @copydetails _zarsAdd_21 */
void _zarsAdd_HA(int n, const float* a, const float* b, float* y);
/** @brief sAdd at the EP level. @copydetails _zarsAdd_21 */
void _zarsAdd_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAdd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.64, 0.64, 0.64. */
extern float brenn_zar_kernel_sAdd_ctab[3];
/** @} */

/** @name sSub
 * Sub of single-precision vectors (cost figures 0.61, 0.61, 0.61).
 * @{ */
/** @brief sSub at the LA level.
 * @details y[i] = Sub(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsSub_21(int n, const float* a, const float* b, float* y);
/** @brief sSub at the HA level (the plain name). @copydetails _zarsSub_21 */
void _zarsSub(int n, const float* a, const float* b, float* y);
/** @brief sSub at the HA level. @copydetails _zarsSub_21 */
void _zarsSub_HA(int n, const float* a, const float* b, float* y);
/** @brief sSub at the EP level. @copydetails _zarsSub_21 */
void _zarsSub_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSub_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.61, 0.61, 0.61. */
extern float brenn_zar_kernel_sSub_ctab[3];
/** @} */

/** @name sMul
 * Mul of single-precision vectors (cost figures 0.61, 0.61, 0.61).
 * @{ */
/** @brief sMul at the LA level.
 * @details y[i] = Mul(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsMul_21(int n, const float* a, const float* b, float* y);
/** @brief sMul at the HA level (the plain name). @copydetails _zarsMul_21 */
void _zarsMul(int n, const float* a, const float* b, float* y);
/** @brief sMul at the HA level. @copydetails _zarsMul_21 */
void _zarsMul_HA(int n, const float* a, const float* b, float* y);
/** @brief sMul at the EP level. @copydetails _zarsMul_21 */
void _zarsMul_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sMul_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 0.61, 0.61, 0.61. */
extern float brenn_zar_kernel_sMul_ctab[3];
/** @} */

/** @name sAtan2pi
 * Atan2pi of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sAtan2pi at the LA level.
 * @details y[i] = Atan2pi(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsAtan2pi_21(int n, const float* a, const float* b, float* y);
/** @brief sAtan2pi at the HA level (the plain name). @copydetails _zarsAtan2pi_21 */
void _zarsAtan2pi(int n, const float* a, const float* b, float* y);
/** @brief sAtan2pi at the HA level. @copydetails _zarsAtan2pi_21 */
void _zarsAtan2pi_HA(int n, const float* a, const float* b, float* y);
/** @brief sAtan2pi at the EP level. @copydetails _zarsAtan2pi_21 */
void _zarsAtan2pi_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sAtan2pi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sAtan2pi_ctab[3];
/** @} */

/** @name sCopySign
 * CopySign of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sCopySign at the LA level.
 * @details y[i] = CopySign(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsCopySign_21(int n, const float* a, const float* b, float* y);
/** @brief sCopySign at the HA level (the plain name). @copydetails _zarsCopySign_21 */
void _zarsCopySign(int n, const float* a, const float* b, float* y);
/** @brief sCopySign at the HA level. @copydetails _zarsCopySign_21 */
void _zarsCopySign_HA(int n, const float* a, const float* b, float* y);
/** @brief sCopySign at the EP level. @copydetails _zarsCopySign_21 */
void _zarsCopySign_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sCopySign_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sCopySign_ctab[3];
/** @} */

/** @name sNextAfter
 * NextAfter of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sNextAfter at the LA level.
 * @details y[i] = NextAfter(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsNextAfter_21(int n, const float* a, const float* b, float* y);
/** @brief sNextAfter at the HA level (the plain name). @copydetails _zarsNextAfter_21 */
void _zarsNextAfter(int n, const float* a, const float* b, float* y);
/** @brief sNextAfter at the HA level. @copydetails _zarsNextAfter_21 */
void _zarsNextAfter_HA(int n, const float* a, const float* b, float* y);
/** @brief sNextAfter at the EP level. @copydetails _zarsNextAfter_21 */
void _zarsNextAfter_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sNextAfter_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sNextAfter_ctab[3];
/** @} */

/** @name sFdim
 * Fdim of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sFdim at the LA level.
 * @details y[i] = Fdim(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsFdim_21(int n, const float* a, const float* b, float* y);
/** @brief sFdim at the HA level (the plain name). @copydetails _zarsFdim_21 */
void _zarsFdim(int n, const float* a, const float* b, float* y);
/** @brief sFdim at the HA level. @copydetails _zarsFdim_21 */
void _zarsFdim_HA(int n, const float* a, const float* b, float* y);
/** @brief sFdim at the EP level. @copydetails _zarsFdim_21 */
void _zarsFdim_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFdim_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sFdim_ctab[3];
/** @} */

/** @name sFmax
 * Fmax of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sFmax at the LA level.
 * @details y[i] = Fmax(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsFmax_21(int n, const float* a, const float* b, float* y);
/** @brief sFmax at the HA level (the plain name). @copydetails _zarsFmax_21 */
void _zarsFmax(int n, const float* a, const float* b, float* y);
/** @brief sFmax at the HA level. @copydetails _zarsFmax_21 */
void _zarsFmax_HA(int n, const float* a, const float* b, float* y);
/** @brief sFmax at the EP level. @copydetails _zarsFmax_21 */
void _zarsFmax_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFmax_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sFmax_ctab[3];
/** @} */

/** @name sFmin
 * Fmin of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sFmin at the LA level.
 * @details y[i] = Fmin(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsFmin_21(int n, const float* a, const float* b, float* y);
/** @brief sFmin at the HA level (the plain name). @copydetails _zarsFmin_21 */
void _zarsFmin(int n, const float* a, const float* b, float* y);
/** @brief sFmin at the HA level. @copydetails _zarsFmin_21 */
void _zarsFmin_HA(int n, const float* a, const float* b, float* y);
/** @brief sFmin at the EP level. @copydetails _zarsFmin_21 */
void _zarsFmin_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFmin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sFmin_ctab[3];
/** @} */

/** @name sMaxMag
 * MaxMag of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sMaxMag at the LA level.
 * @details y[i] = MaxMag(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsMaxMag_21(int n, const float* a, const float* b, float* y);
/** @brief sMaxMag at the HA level (the plain name). @copydetails _zarsMaxMag_21 */
void _zarsMaxMag(int n, const float* a, const float* b, float* y);
/** @brief sMaxMag at the HA level. @copydetails _zarsMaxMag_21 */
void _zarsMaxMag_HA(int n, const float* a, const float* b, float* y);
/** @brief sMaxMag at the EP level. @copydetails _zarsMaxMag_21 */
void _zarsMaxMag_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sMaxMag_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sMaxMag_ctab[3];
/** @} */

/** @name sMinMag
 * MinMag of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sMinMag at the LA level.
 * @details y[i] = MinMag(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsMinMag_21(int n, const float* a, const float* b, float* y);
/** @brief sMinMag at the HA level (the plain name). @copydetails _zarsMinMag_21 */
void _zarsMinMag(int n, const float* a, const float* b, float* y);
/** @brief sMinMag at the HA level. @copydetails _zarsMinMag_21 */
void _zarsMinMag_HA(int n, const float* a, const float* b, float* y);
/** @brief sMinMag at the EP level. @copydetails _zarsMinMag_21 */
void _zarsMinMag_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sMinMag_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sMinMag_ctab[3];
/** @} */

/** @name sPowr
 * Powr of single-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief sPowr at the LA level.
 * @details y[i] = Powr(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsPowr_21(int n, const float* a, const float* b, float* y);
/** @brief sPowr at the HA level (the plain name). @copydetails _zarsPowr_21 */
void _zarsPowr(int n, const float* a, const float* b, float* y);
/** @brief sPowr at the HA level. @copydetails _zarsPowr_21 */
void _zarsPowr_HA(int n, const float* a, const float* b, float* y);
/** @brief sPowr at the EP level. @copydetails _zarsPowr_21 */
void _zarsPowr_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPowr_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_sPowr_ctab[3];
/** @} */

/** @name sRemainder
 * Remainder of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sRemainder at the LA level.
 * @details y[i] = Remainder(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsRemainder_21(int n, const float* a, const float* b, float* y);
/** @brief sRemainder at the HA level (the plain name). @copydetails _zarsRemainder_21 */
void _zarsRemainder(int n, const float* a, const float* b, float* y);
/** @brief sRemainder at the HA level. @copydetails _zarsRemainder_21 */
void _zarsRemainder_HA(int n, const float* a, const float* b, float* y);
/** @brief sRemainder at the EP level. @copydetails _zarsRemainder_21 */
void _zarsRemainder_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sRemainder_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sRemainder_ctab[3];
/** @} */

/** @name sFmod
 * Fmod of single-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief sFmod at the LA level.
 * @details y[i] = Fmod(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarsFmod_21(int n, const float* a, const float* b, float* y);
/** @brief sFmod at the HA level (the plain name). @copydetails _zarsFmod_21 */
void _zarsFmod(int n, const float* a, const float* b, float* y);
/** @brief sFmod at the HA level. @copydetails _zarsFmod_21 */
void _zarsFmod_HA(int n, const float* a, const float* b, float* y);
/** @brief sFmod at the EP level. @copydetails _zarsFmod_21 */
void _zarsFmod_11(int n, const float* a, const float* b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sFmod_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_sFmod_ctab[3];
/** @} */

/** @name dDiv
 * Div of double-precision vectors (cost figures 9.41, 3.59, 8.07).
 * @{ */
/** @brief dDiv at the LA level.
 * @details y[i] = Div(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardDiv_50(int n, const double* a, const double* b, double* y);
/** @brief dDiv at the HA level (the plain name). @copydetails _zardDiv_50 */
void _zardDiv(int n, const double* a, const double* b, double* y);
/** @brief dDiv at the HA level. @copydetails _zardDiv_50 */
void _zardDiv_HA(int n, const double* a, const double* b, double* y);
/** @brief dDiv at the EP level. @copydetails _zardDiv_50 */
void _zardDiv_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dDiv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.41, 3.59, 8.07. */
extern float brenn_zar_kernel_dDiv_ctab[3];
/** @} */

/** @name dPow
 * Pow of double-precision vectors (cost figures 40.11, 42.21, 21.63).
 * @{ */
/** @brief dPow at the LA level.
 * @details y[i] = Pow(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardPow_50(int n, const double* a, const double* b, double* y);
/** @brief dPow at the HA level (the plain name). @copydetails _zardPow_50 */
void _zardPow(int n, const double* a, const double* b, double* y);
/** @brief dPow at the HA level. @copydetails _zardPow_50 */
void _zardPow_HA(int n, const double* a, const double* b, double* y);
/** @brief dPow at the EP level. @copydetails _zardPow_50 */
void _zardPow_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPow_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 40.11, 42.21, 21.63. */
extern float brenn_zar_kernel_dPow_ctab[3];
/** @} */

/** @name dAtan2
 * Atan2 of double-precision vectors (cost figures 27.84, 34.56, 18.96).
 * @{ */
/** @brief dAtan2 at the LA level.
 * @details y[i] = Atan2(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardAtan2_50(int n, const double* a, const double* b, double* y);
/** @brief dAtan2 at the HA level (the plain name). @copydetails _zardAtan2_50 */
void _zardAtan2(int n, const double* a, const double* b, double* y);
/** @brief dAtan2 at the HA level. @copydetails _zardAtan2_50 */
void _zardAtan2_HA(int n, const double* a, const double* b, double* y);
/** @brief dAtan2 at the EP level. @copydetails _zardAtan2_50 */
void _zardAtan2_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAtan2_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 27.84, 34.56, 18.96. */
extern float brenn_zar_kernel_dAtan2_ctab[3];
/** @} */

/** @name dHypot
 * Hypot of double-precision vectors (cost figures 6.96, 9.84, 4.8).
 * @{ */
/** @brief dHypot at the LA level.
 * @details y[i] = Hypot(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardHypot_50(int n, const double* a, const double* b, double* y);
/** @brief dHypot at the HA level (the plain name). @copydetails _zardHypot_50 */
void _zardHypot(int n, const double* a, const double* b, double* y);
/** @brief dHypot at the HA level. @copydetails _zardHypot_50 */
void _zardHypot_HA(int n, const double* a, const double* b, double* y);
/** @brief dHypot at the EP level. @copydetails _zardHypot_50 */
void _zardHypot_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dHypot_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 6.96, 9.84, 4.8. */
extern float brenn_zar_kernel_dHypot_ctab[3];
/** @} */

/** @name dAdd
 * Add of double-precision vectors (cost figures 1.16, 1.16, 1.16).
 * @{ */
/** @brief dAdd at the LA level.
 * @details y[i] = Add(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardAdd_50(int n, const double* a, const double* b, double* y);
/** @brief dAdd at the HA level (the plain name). @copydetails _zardAdd_50 */
void _zardAdd(int n, const double* a, const double* b, double* y);
/** @brief dAdd at the HA level. @copydetails _zardAdd_50 */
void _zardAdd_HA(int n, const double* a, const double* b, double* y);
/** @brief dAdd at the EP level. @copydetails _zardAdd_50 */
void _zardAdd_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAdd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.16, 1.16, 1.16. */
extern float brenn_zar_kernel_dAdd_ctab[3];
/** @} */

/** @name dSub
 * Sub of double-precision vectors (cost figures 1.16, 1.16, 1.16).
 * @{ */
/** @brief dSub at the LA level.
 * @details y[i] = Sub(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardSub_50(int n, const double* a, const double* b, double* y);
/** @brief dSub at the HA level (the plain name). @copydetails _zardSub_50 */
void _zardSub(int n, const double* a, const double* b, double* y);
/** @brief dSub at the HA level. @copydetails _zardSub_50 */
void _zardSub_HA(int n, const double* a, const double* b, double* y);
/** @brief dSub at the EP level. @copydetails _zardSub_50 */
void _zardSub_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSub_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.16, 1.16, 1.16. */
extern float brenn_zar_kernel_dSub_ctab[3];
/** @} */

/** @name dMul
 * Mul of double-precision vectors (cost figures 1.13, 1.13, 1.13).
 * @{ */
/** @brief dMul at the LA level.
 * @details y[i] = Mul(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardMul_50(int n, const double* a, const double* b, double* y);
/** @brief dMul at the HA level (the plain name). @copydetails _zardMul_50 */
void _zardMul(int n, const double* a, const double* b, double* y);
/** @brief dMul at the HA level. @copydetails _zardMul_50 */
void _zardMul_HA(int n, const double* a, const double* b, double* y);
/** @brief dMul at the EP level. @copydetails _zardMul_50 */
void _zardMul_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dMul_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.13, 1.13, 1.13. */
extern float brenn_zar_kernel_dMul_ctab[3];
/** @} */

/** @name dAtan2pi
 * Atan2pi of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dAtan2pi at the LA level.
 * @details y[i] = Atan2pi(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardAtan2pi_50(int n, const double* a, const double* b, double* y);
/** @brief dAtan2pi at the HA level (the plain name). @copydetails _zardAtan2pi_50 */
void _zardAtan2pi(int n, const double* a, const double* b, double* y);
/** @brief dAtan2pi at the HA level. @copydetails _zardAtan2pi_50 */
void _zardAtan2pi_HA(int n, const double* a, const double* b, double* y);
/** @brief dAtan2pi at the EP level. @copydetails _zardAtan2pi_50 */
void _zardAtan2pi_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dAtan2pi_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dAtan2pi_ctab[3];
/** @} */

/** @name dCopySign
 * CopySign of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dCopySign at the LA level.
 * @details y[i] = CopySign(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardCopySign_50(int n, const double* a, const double* b, double* y);
/** @brief dCopySign at the HA level (the plain name). @copydetails _zardCopySign_50 */
void _zardCopySign(int n, const double* a, const double* b, double* y);
/** @brief dCopySign at the HA level. @copydetails _zardCopySign_50 */
void _zardCopySign_HA(int n, const double* a, const double* b, double* y);
/** @brief dCopySign at the EP level. @copydetails _zardCopySign_50 */
void _zardCopySign_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dCopySign_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dCopySign_ctab[3];
/** @} */

/** @name dNextAfter
 * NextAfter of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dNextAfter at the LA level.
 * @details y[i] = NextAfter(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardNextAfter_50(int n, const double* a, const double* b, double* y);
/** @brief dNextAfter at the HA level (the plain name). @copydetails _zardNextAfter_50 */
void _zardNextAfter(int n, const double* a, const double* b, double* y);
/** @brief dNextAfter at the HA level. @copydetails _zardNextAfter_50 */
void _zardNextAfter_HA(int n, const double* a, const double* b, double* y);
/** @brief dNextAfter at the EP level. @copydetails _zardNextAfter_50 */
void _zardNextAfter_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dNextAfter_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dNextAfter_ctab[3];
/** @} */

/** @name dFdim
 * Fdim of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dFdim at the LA level.
 * @details y[i] = Fdim(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardFdim_50(int n, const double* a, const double* b, double* y);
/** @brief dFdim at the HA level (the plain name). @copydetails _zardFdim_50 */
void _zardFdim(int n, const double* a, const double* b, double* y);
/** @brief dFdim at the HA level. @copydetails _zardFdim_50 */
void _zardFdim_HA(int n, const double* a, const double* b, double* y);
/** @brief dFdim at the EP level. @copydetails _zardFdim_50 */
void _zardFdim_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFdim_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dFdim_ctab[3];
/** @} */

/** @name dFmax
 * Fmax of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dFmax at the LA level.
 * @details y[i] = Fmax(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardFmax_50(int n, const double* a, const double* b, double* y);
/** @brief dFmax at the HA level (the plain name). @copydetails _zardFmax_50 */
void _zardFmax(int n, const double* a, const double* b, double* y);
/** @brief dFmax at the HA level. @copydetails _zardFmax_50 */
void _zardFmax_HA(int n, const double* a, const double* b, double* y);
/** @brief dFmax at the EP level. @copydetails _zardFmax_50 */
void _zardFmax_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFmax_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dFmax_ctab[3];
/** @} */

/** @name dFmin
 * Fmin of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dFmin at the LA level.
 * @details y[i] = Fmin(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardFmin_50(int n, const double* a, const double* b, double* y);
/** @brief dFmin at the HA level (the plain name). @copydetails _zardFmin_50 */
void _zardFmin(int n, const double* a, const double* b, double* y);
/** @brief dFmin at the HA level. @copydetails _zardFmin_50 */
void _zardFmin_HA(int n, const double* a, const double* b, double* y);
/** @brief dFmin at the EP level. @copydetails _zardFmin_50 */
void _zardFmin_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFmin_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dFmin_ctab[3];
/** @} */

/** @name dMaxMag
 * MaxMag of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dMaxMag at the LA level.
 * @details y[i] = MaxMag(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardMaxMag_50(int n, const double* a, const double* b, double* y);
/** @brief dMaxMag at the HA level (the plain name). @copydetails _zardMaxMag_50 */
void _zardMaxMag(int n, const double* a, const double* b, double* y);
/** @brief dMaxMag at the HA level. @copydetails _zardMaxMag_50 */
void _zardMaxMag_HA(int n, const double* a, const double* b, double* y);
/** @brief dMaxMag at the EP level. @copydetails _zardMaxMag_50 */
void _zardMaxMag_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dMaxMag_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dMaxMag_ctab[3];
/** @} */

/** @name dMinMag
 * MinMag of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dMinMag at the LA level.
 * @details y[i] = MinMag(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardMinMag_50(int n, const double* a, const double* b, double* y);
/** @brief dMinMag at the HA level (the plain name). @copydetails _zardMinMag_50 */
void _zardMinMag(int n, const double* a, const double* b, double* y);
/** @brief dMinMag at the HA level. @copydetails _zardMinMag_50 */
void _zardMinMag_HA(int n, const double* a, const double* b, double* y);
/** @brief dMinMag at the EP level. @copydetails _zardMinMag_50 */
void _zardMinMag_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dMinMag_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dMinMag_ctab[3];
/** @} */

/** @name dPowr
 * Powr of double-precision vectors (cost figures 220.2, 220.3, 220.1).
 * @{ */
/** @brief dPowr at the LA level.
 * @details y[i] = Powr(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardPowr_50(int n, const double* a, const double* b, double* y);
/** @brief dPowr at the HA level (the plain name). @copydetails _zardPowr_50 */
void _zardPowr(int n, const double* a, const double* b, double* y);
/** @brief dPowr at the HA level. @copydetails _zardPowr_50 */
void _zardPowr_HA(int n, const double* a, const double* b, double* y);
/** @brief dPowr at the EP level. @copydetails _zardPowr_50 */
void _zardPowr_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPowr_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.2, 220.3, 220.1. */
extern float brenn_zar_kernel_dPowr_ctab[3];
/** @} */

/** @name dRemainder
 * Remainder of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dRemainder at the LA level.
 * @details y[i] = Remainder(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardRemainder_50(int n, const double* a, const double* b, double* y);
/** @brief dRemainder at the HA level (the plain name). @copydetails _zardRemainder_50 */
void _zardRemainder(int n, const double* a, const double* b, double* y);
/** @brief dRemainder at the HA level. @copydetails _zardRemainder_50 */
void _zardRemainder_HA(int n, const double* a, const double* b, double* y);
/** @brief dRemainder at the EP level. @copydetails _zardRemainder_50 */
void _zardRemainder_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dRemainder_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dRemainder_ctab[3];
/** @} */

/** @name dFmod
 * Fmod of double-precision vectors (cost figures 220.3, 220.3, 220.3).
 * @{ */
/** @brief dFmod at the LA level.
 * @details y[i] = Fmod(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zardFmod_50(int n, const double* a, const double* b, double* y);
/** @brief dFmod at the HA level (the plain name). @copydetails _zardFmod_50 */
void _zardFmod(int n, const double* a, const double* b, double* y);
/** @brief dFmod at the HA level. @copydetails _zardFmod_50 */
void _zardFmod_HA(int n, const double* a, const double* b, double* y);
/** @brief dFmod at the EP level. @copydetails _zardFmod_50 */
void _zardFmod_26(int n, const double* a, const double* b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dFmod_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 220.3, 220.3, 220.3. */
extern float brenn_zar_kernel_dFmod_ctab[3];
/** @} */

/** @name cDiv
 * Div of single-precision complex vectors (cost figures 9.6, 9.6, 6.1).
 * @{ */
/** @brief cDiv at the LA level.
 * @details y[i] = Div(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcDiv_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cDiv at the HA level (the plain name). @copydetails _zarcDiv_21 */
void _zarcDiv(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cDiv at the HA level. @copydetails _zarcDiv_21 */
void _zarcDiv_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cDiv at the EP level. @copydetails _zarcDiv_21 */
void _zarcDiv_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cDiv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 9.6, 9.6, 6.1. */
extern float brenn_zar_kernel_cDiv_ctab[3];
/** @} */

/** @name cPow
 * Pow of single-precision complex vectors (cost figures 520.0, 520.0, 520.0).
 * @{ */
/** @brief cPow at the LA level.
 * @details y[i] = Pow(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcPow_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cPow at the HA level (the plain name). @copydetails _zarcPow_21 */
void _zarcPow(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cPow at the HA level. @copydetails _zarcPow_21 */
void _zarcPow_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cPow at the EP level. @copydetails _zarcPow_21 */
void _zarcPow_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cPow_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 520.0, 520.0, 520.0. */
extern float brenn_zar_kernel_cPow_ctab[3];
/** @} */

/** @name cAdd
 * Add of single-precision complex vectors (cost figures 1.28, 1.28, 1.1).
 * @{ */
/** @brief cAdd at the LA level.
 * @details y[i] = Add(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcAdd_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cAdd at the HA level (the plain name). @copydetails _zarcAdd_21 */
void _zarcAdd(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cAdd at the HA level. @copydetails _zarcAdd_21 */
void _zarcAdd_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cAdd at the EP level. @copydetails _zarcAdd_21 */
void _zarcAdd_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cAdd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.28, 1.28, 1.1. */
extern float brenn_zar_kernel_cAdd_ctab[3];
/** @} */

/** @name cSub
 * Sub of single-precision complex vectors (cost figures 1.28, 1.28, 1.1).
 * @{ */
/** @brief cSub at the LA level.
 * @details y[i] = Sub(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcSub_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cSub at the HA level (the plain name). @copydetails _zarcSub_21 */
void _zarcSub(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cSub at the HA level. @copydetails _zarcSub_21 */
void _zarcSub_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cSub at the EP level. @copydetails _zarcSub_21 */
void _zarcSub_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cSub_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.28, 1.28, 1.1. */
extern float brenn_zar_kernel_cSub_ctab[3];
/** @} */

/** @name cMul
 * Mul of single-precision complex vectors (cost figures 4.9, 4.9, 2.1).
 * @{ */
/** @brief cMul at the LA level.
 * @details y[i] = Mul(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcMul_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMul at the HA level (the plain name). @copydetails _zarcMul_21 */
void _zarcMul(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMul at the HA level. @copydetails _zarcMul_21 */
void _zarcMul_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMul at the EP level. @copydetails _zarcMul_21 */
void _zarcMul_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cMul_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 4.9, 4.9, 2.1. */
extern float brenn_zar_kernel_cMul_ctab[3];
/** @} */

/** @name cMulByConj
 * MulByConj of single-precision complex vectors (cost figures 5.1, 5.1, 2.2).
 * @{ */
/** @brief cMulByConj at the LA level.
 * @details y[i] = MulByConj(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarcMulByConj_21(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMulByConj at the HA level (the plain name). @copydetails _zarcMulByConj_21 */
void _zarcMulByConj(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMulByConj at the HA level. @copydetails _zarcMulByConj_21 */
void _zarcMulByConj_HA(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** @brief cMulByConj at the EP level. @copydetails _zarcMulByConj_21 */
void _zarcMulByConj_11(int n, const BrennComplex8* a, const BrennComplex8* b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cMulByConj_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 5.1, 5.1, 2.2. */
extern float brenn_zar_kernel_cMulByConj_ctab[3];
/** @} */

/** @name zDiv
 * Div of double-precision complex vectors (cost figures 21.12, 21.12, 13.42).
 * @{ */
/** @brief zDiv at the LA level.
 * @details y[i] = Div(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzDiv_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zDiv at the HA level (the plain name). @copydetails _zarzDiv_50 */
void _zarzDiv(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zDiv at the HA level. @copydetails _zarzDiv_50 */
void _zarzDiv_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zDiv at the EP level. @copydetails _zarzDiv_50 */
void _zarzDiv_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zDiv_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 21.12, 21.12, 13.42. */
extern float brenn_zar_kernel_zDiv_ctab[3];
/** @} */

/** @name zPow
 * Pow of double-precision complex vectors (cost figures 1144.0, 1144.0, 1144.0).
 * @{ */
/** @brief zPow at the LA level.
 * @details y[i] = Pow(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzPow_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zPow at the HA level (the plain name). @copydetails _zarzPow_50 */
void _zarzPow(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zPow at the HA level. @copydetails _zarzPow_50 */
void _zarzPow_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zPow at the EP level. @copydetails _zarzPow_50 */
void _zarzPow_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zPow_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1144.0, 1144.0, 1144.0. */
extern float brenn_zar_kernel_zPow_ctab[3];
/** @} */

/** @name zAdd
 * Add of double-precision complex vectors (cost figures 2.82, 2.82, 2.42).
 * @{ */
/** @brief zAdd at the LA level.
 * @details y[i] = Add(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzAdd_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zAdd at the HA level (the plain name). @copydetails _zarzAdd_50 */
void _zarzAdd(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zAdd at the HA level. @copydetails _zarzAdd_50 */
void _zarzAdd_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zAdd at the EP level. @copydetails _zarzAdd_50 */
void _zarzAdd_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zAdd_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.82, 2.82, 2.42. */
extern float brenn_zar_kernel_zAdd_ctab[3];
/** @} */

/** @name zSub
 * Sub of double-precision complex vectors (cost figures 2.82, 2.82, 2.42).
 * @{ */
/** @brief zSub at the LA level.
 * @details y[i] = Sub(a[i], b[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzSub_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zSub at the HA level (the plain name). @copydetails _zarzSub_50 */
void _zarzSub(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zSub at the HA level. @copydetails _zarzSub_50 */
void _zarzSub_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zSub at the EP level. @copydetails _zarzSub_50 */
void _zarzSub_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zSub_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 2.82, 2.82, 2.42. */
extern float brenn_zar_kernel_zSub_ctab[3];
/** @} */

/** @name zMul
 * Mul of double-precision complex vectors (cost figures 58.72, 58.72, 4.63).
 * @{ */
/** @brief zMul at the LA level.
 * @details y[i] = Mul(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzMul_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMul at the HA level (the plain name). @copydetails _zarzMul_50 */
void _zarzMul(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMul at the HA level. @copydetails _zarzMul_50 */
void _zarzMul_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMul at the EP level. @copydetails _zarzMul_50 */
void _zarzMul_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zMul_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 58.72, 58.72, 4.63. */
extern float brenn_zar_kernel_zMul_ctab[3];
/** @} */

/** @name zMulByConj
 * MulByConj of double-precision complex vectors (cost figures 11.22, 11.22, 4.84).
 * @{ */
/** @brief zMulByConj at the LA level.
 * @details y[i] = MulByConj(a[i], b[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b second arguments, n elements
 * @param y results, n elements
 */
void _zarzMulByConj_50(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMulByConj at the HA level (the plain name). @copydetails _zarzMulByConj_50 */
void _zarzMulByConj(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMulByConj at the HA level. @copydetails _zarzMulByConj_50 */
void _zarzMulByConj_HA(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** @brief zMulByConj at the EP level. @copydetails _zarzMulByConj_50 */
void _zarzMulByConj_26(int n, const BrennComplex16* a, const BrennComplex16* b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zMulByConj_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 11.22, 11.22, 4.84. */
extern float brenn_zar_kernel_zMulByConj_ctab[3];
/** @} */

/** @name cPowx
 * Powx of single-precision complex vectors (cost figures 540.0, 540.0, 540.0).
 * @{ */
/** @brief cPowx at the LA level.
 * @details y[i] = Powx(a[i], b) for i below n, with one second argument for all.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b the second argument
 * @param y results, n elements
 */
void _zarcPowx_21(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** @brief cPowx at the HA level (the plain name). @copydetails _zarcPowx_21 */
void _zarcPowx(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** @brief cPowx at the HA level. @copydetails _zarcPowx_21 */
void _zarcPowx_HA(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** @brief cPowx at the EP level. @copydetails _zarcPowx_21 */
void _zarcPowx_11(int n, const BrennComplex8* a, BrennComplex8 b, BrennComplex8* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cPowx_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 540.0, 540.0, 540.0. */
extern float brenn_zar_kernel_cPowx_ctab[3];
/** @} */

/** @name zPowx
 * Powx of double-precision complex vectors (cost figures 1188.0, 1188.0, 1188.0).
 * @{ */
/** @brief zPowx at the LA level.
 * @details y[i] = Powx(a[i], b) for i below n, with one second argument for all.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b the second argument
 * @param y results, n elements
 */
void _zarzPowx_50(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** @brief zPowx at the HA level (the plain name). @copydetails _zarzPowx_50 */
void _zarzPowx(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** @brief zPowx at the HA level. @copydetails _zarzPowx_50 */
void _zarzPowx_HA(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** @brief zPowx at the EP level. @copydetails _zarzPowx_50 */
void _zarzPowx_26(int n, const BrennComplex16* a, BrennComplex16 b, BrennComplex16* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zPowx_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1188.0, 1188.0, 1188.0. */
extern float brenn_zar_kernel_zPowx_ctab[3];
/** @} */

/** @name sPowx
 * Powx of single-precision vectors (cost figures 21.0, 22.0, 9.9).
 * @{ */
/** @brief sPowx at the LA level.
 * @details y[i] = Powx(a[i], b) for i below n, with one second argument for all.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b the second argument
 * @param y results, n elements
 */
void _zarsPowx_21(int n, const float* a, float b, float* y);
/** @brief sPowx at the HA level (the plain name). @copydetails _zarsPowx_21 */
void _zarsPowx(int n, const float* a, float b, float* y);
/** @brief sPowx at the HA level. @copydetails _zarsPowx_21 */
void _zarsPowx_HA(int n, const float* a, float b, float* y);
/** @brief sPowx at the EP level. @copydetails _zarsPowx_21 */
void _zarsPowx_11(int n, const float* a, float b, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPowx_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 21.0, 22.0, 9.9. */
extern float brenn_zar_kernel_sPowx_ctab[3];
/** @} */

/** @name dPowx
 * Powx of double-precision vectors (cost figures 39.8, 41.9, 21.4).
 * @{ */
/** @brief dPowx at the LA level.
 * @details y[i] = Powx(a[i], b) for i below n, with one second argument for all.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a first arguments, n elements
 * @param b the second argument
 * @param y results, n elements
 */
void _zardPowx_50(int n, const double* a, double b, double* y);
/** @brief dPowx at the HA level (the plain name). @copydetails _zardPowx_50 */
void _zardPowx(int n, const double* a, double b, double* y);
/** @brief dPowx at the HA level. @copydetails _zardPowx_50 */
void _zardPowx_HA(int n, const double* a, double b, double* y);
/** @brief dPowx at the EP level. @copydetails _zardPowx_50 */
void _zardPowx_26(int n, const double* a, double b, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPowx_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 39.8, 41.9, 21.4. */
extern float brenn_zar_kernel_dPowx_ctab[3];
/** @} */

/** @name sSinCos
 * SinCos of single-precision vectors (cost figures 16.35, 21.44, 10.89).
 * @{ */
/** @brief sSinCos at the LA level.
 * @details y[i] and z[i] are the two results of SinCos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y first results, n elements
 * @param z second results, n elements
 */
void _zarsSinCos_21(int n, const float* a, float* y, float* z);
/** @brief sSinCos at the HA level (the plain name). @copydetails _zarsSinCos_21 */
void _zarsSinCos(int n, const float* a, float* y, float* z);
/** @brief sSinCos at the HA level. @copydetails _zarsSinCos_21 */
void _zarsSinCos_HA(int n, const float* a, float* y, float* z);
/** @brief sSinCos at the EP level. @copydetails _zarsSinCos_21 */
void _zarsSinCos_11(int n, const float* a, float* y, float* z);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sSinCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 16.35, 21.44, 10.89. */
extern float brenn_zar_kernel_sSinCos_ctab[3];
/** @} */

/** @name sModf
 * Modf of single-precision vectors (cost figures 1.45, 1.45, 1.45).
 * @{ */
/** @brief sModf at the LA level.
 * @details y[i] and z[i] are the two results of Modf(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y first results, n elements
 * @param z second results, n elements
 */
void _zarsModf_21(int n, const float* a, float* y, float* z);
/** @brief sModf at the HA level (the plain name). @copydetails _zarsModf_21 */
void _zarsModf(int n, const float* a, float* y, float* z);
/** @brief sModf at the HA level. @copydetails _zarsModf_21 */
void _zarsModf_HA(int n, const float* a, float* y, float* z);
/** @brief sModf at the EP level. @copydetails _zarsModf_21 */
void _zarsModf_11(int n, const float* a, float* y, float* z);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sModf_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.45, 1.45, 1.45. */
extern float brenn_zar_kernel_sModf_ctab[3];
/** @} */

/** @name dSinCos
 * SinCos of double-precision vectors (cost figures 37.58, 76.82, 20.02).
 * @{ */
/** @brief dSinCos at the LA level.
 * @details y[i] and z[i] are the two results of SinCos(a[i]) for i below n.
 * Elements outside the function's domain, poles, overflows and underflows are
 * reported as the thread's error mode says (BRENN_STATUS_DOMAIN to
 * BRENN_STATUS_UNDERFLOW, under the row's public error name);
 * the other elements leave the status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y first results, n elements
 * @param z second results, n elements
 */
void _zardSinCos_50(int n, const double* a, double* y, double* z);
/** @brief dSinCos at the HA level (the plain name). @copydetails _zardSinCos_50 */
void _zardSinCos(int n, const double* a, double* y, double* z);
/** @brief dSinCos at the HA level. @copydetails _zardSinCos_50 */
void _zardSinCos_HA(int n, const double* a, double* y, double* z);
/** @brief dSinCos at the EP level. @copydetails _zardSinCos_50 */
void _zardSinCos_26(int n, const double* a, double* y, double* z);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dSinCos_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 37.58, 76.82, 20.02. */
extern float brenn_zar_kernel_dSinCos_ctab[3];
/** @} */

/** @name dModf
 * Modf of double-precision vectors (cost figures 3.35, 3.35, 3.35).
 * @{ */
/** @brief dModf at the LA level.
 * @details y[i] and z[i] are the two results of Modf(a[i]) for i below n.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a arguments, n elements
 * @param y first results, n elements
 * @param z second results, n elements
 */
void _zardModf_50(int n, const double* a, double* y, double* z);
/** @brief dModf at the HA level (the plain name). @copydetails _zardModf_50 */
void _zardModf(int n, const double* a, double* y, double* z);
/** @brief dModf at the HA level. @copydetails _zardModf_50 */
void _zardModf_HA(int n, const double* a, double* y, double* z);
/** @brief dModf at the EP level. @copydetails _zardModf_50 */
void _zardModf_26(int n, const double* a, double* y, double* z);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dModf_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 3.35, 3.35, 3.35. */
extern float brenn_zar_kernel_dModf_ctab[3];
/** @} */

/** @name sLinearFrac
 * LinearFrac of single-precision vectors (cost figures 1.13, 1.13, 1.13).
 * @{ */
/** @brief sLinearFrac at the LA level.
 * @details y[i] = (scaleA * a[i] + shiftA) / (scaleB * b[i] + shiftB) for i below n (LinearFrac).
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a numerator arguments, n elements
 * @param b denominator arguments, n elements
 * @param scaleA scale of a
 * @param shiftA shift of a
 * @param scaleB scale of b
 * @param shiftB shift of b
 * @param y results, n elements
 */
void _zarsLinearFrac_21(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
/** @brief sLinearFrac at the HA level (the plain name). @copydetails _zarsLinearFrac_21 */
void _zarsLinearFrac(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
/** @brief sLinearFrac at the HA level. @copydetails _zarsLinearFrac_21 */
void _zarsLinearFrac_HA(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
/** @brief sLinearFrac at the EP level. @copydetails _zarsLinearFrac_21 */
void _zarsLinearFrac_11(int n, const float* a, const float* b, float scaleA, float shiftA, float scaleB, float shiftB, float* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sLinearFrac_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1.13, 1.13, 1.13. */
extern float brenn_zar_kernel_sLinearFrac_ctab[3];
/** @} */

/** @name dLinearFrac
 * LinearFrac of double-precision vectors (cost figures 3.77, 3.77, 3.77).
 * @{ */
/** @brief dLinearFrac at the LA level.
 * @details y[i] = (scaleA * a[i] + shiftA) / (scaleB * b[i] + shiftB) for i below n (LinearFrac).
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements
 * @param a numerator arguments, n elements
 * @param b denominator arguments, n elements
 * @param scaleA scale of a
 * @param shiftA shift of a
 * @param scaleB scale of b
 * @param shiftB shift of b
 * @param y results, n elements
 */
void _zardLinearFrac_50(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
/** @brief dLinearFrac at the HA level (the plain name). @copydetails _zardLinearFrac_50 */
void _zardLinearFrac(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
/** @brief dLinearFrac at the HA level. @copydetails _zardLinearFrac_50 */
void _zardLinearFrac_HA(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
/** @brief dLinearFrac at the EP level. @copydetails _zardLinearFrac_50 */
void _zardLinearFrac_26(int n, const double* a, const double* b, double scaleA, double shiftA, double scaleB, double shiftB, double* y);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dLinearFrac_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 3.77, 3.77, 3.77. */
extern float brenn_zar_kernel_dLinearFrac_ctab[3];
/** @} */

/** @name sPackI
 * PackI of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sPackI at the LA level.
 * @details y[i] = a[i * increment] for i below n (PackI by stride). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the strided source
 * @param increment the stride of a in elements, read as 32 bits
 * @param y the dense destination
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarsPackI_21(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
/** @brief sPackI at the HA level (the plain name). @copydetails _zarsPackI_21 */
void _zarsPackI(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
/** @brief sPackI at the HA level. @copydetails _zarsPackI_21 */
void _zarsPackI_HA(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
/** @brief sPackI at the EP level. @copydetails _zarsPackI_21 */
void _zarsPackI_11(int64_t n, const float* a, int64_t increment, float* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sPackI_ctab[3];
/** @} */

/** @name dPackI
 * PackI of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dPackI at the LA level.
 * @details y[i] = a[i * increment] for i below n (PackI by stride). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the strided source
 * @param increment the stride of a in elements, read as 32 bits
 * @param y the dense destination
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zardPackI_50(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
/** @brief dPackI at the HA level (the plain name). @copydetails _zardPackI_50 */
void _zardPackI(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
/** @brief dPackI at the HA level. @copydetails _zardPackI_50 */
void _zardPackI_HA(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
/** @brief dPackI at the EP level. @copydetails _zardPackI_50 */
void _zardPackI_26(int64_t n, const double* a, int64_t increment, double* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dPackI_ctab[3];
/** @} */

/** @name cPackI
 * PackI of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cPackI at the LA level.
 * @details y[i] = a[i * increment] for i below n (PackI by stride). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the strided source
 * @param increment the stride of a in elements, read as 32 bits
 * @param y the dense destination
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarcPackI_21(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
/** @brief cPackI at the HA level (the plain name). @copydetails _zarcPackI_21 */
void _zarcPackI(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
/** @brief cPackI at the HA level. @copydetails _zarcPackI_21 */
void _zarcPackI_HA(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
/** @brief cPackI at the EP level. @copydetails _zarcPackI_21 */
void _zarcPackI_11(int64_t n, const BrennComplex8* a, int64_t increment, BrennComplex8* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cPackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cPackI_ctab[3];
/** @} */

/** @name zPackI
 * PackI of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zPackI at the LA level.
 * @details y[i] = a[i * increment] for i below n (PackI by stride). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the strided source
 * @param increment the stride of a in elements, read as 32 bits
 * @param y the dense destination
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarzPackI_50(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
/** @brief zPackI at the HA level (the plain name). @copydetails _zarzPackI_50 */
void _zarzPackI(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
/** @brief zPackI at the HA level. @copydetails _zarzPackI_50 */
void _zarzPackI_HA(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
/** @brief zPackI at the EP level. @copydetails _zarzPackI_50 */
void _zarzPackI_26(int64_t n, const BrennComplex16* a, int64_t increment, BrennComplex16* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zPackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zPackI_ctab[3];
/** @} */

/** @name sPackM
 * PackM of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sPackM at the LA level.
 * @details For i below n, each a[i] whose mask[i] is non-zero goes to the next place of y (PackM by mask). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source, n elements
 * @param mask n 32-bit mask words
 * @param y the dense destination
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarsPackM_21(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
/** @brief sPackM at the HA level (the plain name). @copydetails _zarsPackM_21 */
void _zarsPackM(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
/** @brief sPackM at the HA level. @copydetails _zarsPackM_21 */
void _zarsPackM_HA(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
/** @brief sPackM at the EP level. @copydetails _zarsPackM_21 */
void _zarsPackM_11(int64_t n, const float* a, const void* mask, float* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sPackM_ctab[3];
/** @} */

/** @name dPackM
 * PackM of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dPackM at the LA level.
 * @details For i below n, each a[i] whose mask[i] is non-zero goes to the next place of y (PackM by mask). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source, n elements
 * @param mask n 32-bit mask words
 * @param y the dense destination
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zardPackM_50(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
/** @brief dPackM at the HA level (the plain name). @copydetails _zardPackM_50 */
void _zardPackM(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
/** @brief dPackM at the HA level. @copydetails _zardPackM_50 */
void _zardPackM_HA(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
/** @brief dPackM at the EP level. @copydetails _zardPackM_50 */
void _zardPackM_26(int64_t n, const double* a, const void* mask, double* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dPackM_ctab[3];
/** @} */

/** @name cPackM
 * PackM of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cPackM at the LA level.
 * @details For i below n, each a[i] whose mask[i] is non-zero goes to the next place of y (PackM by mask). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source, n elements
 * @param mask n 32-bit mask words
 * @param y the dense destination
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarcPackM_21(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
/** @brief cPackM at the HA level (the plain name). @copydetails _zarcPackM_21 */
void _zarcPackM(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
/** @brief cPackM at the HA level. @copydetails _zarcPackM_21 */
void _zarcPackM_HA(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
/** @brief cPackM at the EP level. @copydetails _zarcPackM_21 */
void _zarcPackM_11(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cPackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cPackM_ctab[3];
/** @} */

/** @name zPackM
 * PackM of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zPackM at the LA level.
 * @details For i below n, each a[i] whose mask[i] is non-zero goes to the next place of y (PackM by mask). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source, n elements
 * @param mask n 32-bit mask words
 * @param y the dense destination
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarzPackM_50(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
/** @brief zPackM at the HA level (the plain name). @copydetails _zarzPackM_50 */
void _zarzPackM(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
/** @brief zPackM at the HA level. @copydetails _zarzPackM_50 */
void _zarzPackM_HA(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
/** @brief zPackM at the EP level. @copydetails _zarzPackM_50 */
void _zarzPackM_26(int64_t n, const BrennComplex16* a, const void* mask, BrennComplex16* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zPackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zPackM_ctab[3];
/** @} */

/** @name sPackV
 * PackV of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sPackV at the LA level.
 * @details y[i] = a[index[i]] for i below n (PackV by index). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source
 * @param index n 32-bit indices into a
 * @param y the dense destination, n elements
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarsPackV_21(int64_t n, const float* a, const void* index, float* y, int32_t flag);
/** @brief sPackV at the HA level (the plain name). @copydetails _zarsPackV_21 */
void _zarsPackV(int64_t n, const float* a, const void* index, float* y, int32_t flag);
/** @brief sPackV at the HA level. @copydetails _zarsPackV_21 */
void _zarsPackV_HA(int64_t n, const float* a, const void* index, float* y, int32_t flag);
/** @brief sPackV at the EP level. @copydetails _zarsPackV_21 */
void _zarsPackV_11(int64_t n, const float* a, const void* index, float* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sPackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sPackV_ctab[3];
/** @} */

/** @name dPackV
 * PackV of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dPackV at the LA level.
 * @details y[i] = a[index[i]] for i below n (PackV by index). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source
 * @param index n 32-bit indices into a
 * @param y the dense destination, n elements
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zardPackV_50(int64_t n, const double* a, const void* index, double* y, int32_t flag);
/** @brief dPackV at the HA level (the plain name). @copydetails _zardPackV_50 */
void _zardPackV(int64_t n, const double* a, const void* index, double* y, int32_t flag);
/** @brief dPackV at the HA level. @copydetails _zardPackV_50 */
void _zardPackV_HA(int64_t n, const double* a, const void* index, double* y, int32_t flag);
/** @brief dPackV at the EP level. @copydetails _zardPackV_50 */
void _zardPackV_26(int64_t n, const double* a, const void* index, double* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dPackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dPackV_ctab[3];
/** @} */

/** @name cPackV
 * PackV of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cPackV at the LA level.
 * @details y[i] = a[index[i]] for i below n (PackV by index). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source
 * @param index n 32-bit indices into a
 * @param y the dense destination, n elements
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarcPackV_21(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
/** @brief cPackV at the HA level (the plain name). @copydetails _zarcPackV_21 */
void _zarcPackV(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
/** @brief cPackV at the HA level. @copydetails _zarcPackV_21 */
void _zarcPackV_HA(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
/** @brief cPackV at the EP level. @copydetails _zarcPackV_21 */
void _zarcPackV_11(int64_t n, const BrennComplex8* a, const void* index, BrennComplex8* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cPackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cPackV_ctab[3];
/** @} */

/** @name zPackV
 * PackV of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zPackV at the LA level.
 * @details y[i] = a[index[i]] for i below n (PackV by index). Elements are copied as raw bits.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the source
 * @param index n 32-bit indices into a
 * @param y the dense destination, n elements
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarzPackV_50(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
/** @brief zPackV at the HA level (the plain name). @copydetails _zarzPackV_50 */
void _zarzPackV(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
/** @brief zPackV at the HA level. @copydetails _zarzPackV_50 */
void _zarzPackV_HA(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
/** @brief zPackV at the EP level. @copydetails _zarzPackV_50 */
void _zarzPackV_26(int64_t n, const BrennComplex16* a, const void* index, BrennComplex16* y, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zPackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zPackV_ctab[3];
/** @} */

/** @name sUnpackI
 * UnpackI of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sUnpackI at the LA level.
 * @details y[i * increment] = a[i] for i below n (UnpackI by stride). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the strided destination
 * @param increment the stride of y in elements, read as 32 bits
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarsUnpackI_21(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
/** @brief sUnpackI at the HA level (the plain name). @copydetails _zarsUnpackI_21 */
void _zarsUnpackI(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
/** @brief sUnpackI at the HA level. @copydetails _zarsUnpackI_21 */
void _zarsUnpackI_HA(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
/** @brief sUnpackI at the EP level. @copydetails _zarsUnpackI_21 */
void _zarsUnpackI_11(int64_t n, const float* a, float* y, int64_t increment, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sUnpackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sUnpackI_ctab[3];
/** @} */

/** @name dUnpackI
 * UnpackI of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dUnpackI at the LA level.
 * @details y[i * increment] = a[i] for i below n (UnpackI by stride). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the strided destination
 * @param increment the stride of y in elements, read as 32 bits
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zardUnpackI_50(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
/** @brief dUnpackI at the HA level (the plain name). @copydetails _zardUnpackI_50 */
void _zardUnpackI(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
/** @brief dUnpackI at the HA level. @copydetails _zardUnpackI_50 */
void _zardUnpackI_HA(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
/** @brief dUnpackI at the EP level. @copydetails _zardUnpackI_50 */
void _zardUnpackI_26(int64_t n, const double* a, double* y, int64_t increment, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dUnpackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dUnpackI_ctab[3];
/** @} */

/** @name cUnpackI
 * UnpackI of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cUnpackI at the LA level.
 * @details y[i * increment] = a[i] for i below n (UnpackI by stride). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the strided destination
 * @param increment the stride of y in elements, read as 32 bits
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarcUnpackI_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
/** @brief cUnpackI at the HA level (the plain name). @copydetails _zarcUnpackI_21 */
void _zarcUnpackI(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
/** @brief cUnpackI at the HA level. @copydetails _zarcUnpackI_21 */
void _zarcUnpackI_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
/** @brief cUnpackI at the EP level. @copydetails _zarcUnpackI_21 */
void _zarcUnpackI_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, int64_t increment, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cUnpackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cUnpackI_ctab[3];
/** @} */

/** @name zUnpackI
 * UnpackI of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zUnpackI at the LA level.
 * @details y[i * increment] = a[i] for i below n (UnpackI by stride). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the strided destination
 * @param increment the stride of y in elements, read as 32 bits
 * @param flag ignored: the entry reads n and increment as 32-bit integers
 */
void _zarzUnpackI_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
/** @brief zUnpackI at the HA level (the plain name). @copydetails _zarzUnpackI_50 */
void _zarzUnpackI(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
/** @brief zUnpackI at the HA level. @copydetails _zarzUnpackI_50 */
void _zarzUnpackI_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
/** @brief zUnpackI at the EP level. @copydetails _zarzUnpackI_50 */
void _zarzUnpackI_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, int64_t increment, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zUnpackI_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zUnpackI_ctab[3];
/** @} */

/** @name sUnpackM
 * UnpackM of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sUnpackM at the LA level.
 * @details For i below n, each y[i] whose mask[i] is non-zero takes the next element of a (UnpackM by mask). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source
 * @param y the destination, n elements
 * @param mask n 32-bit mask words
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarsUnpackM_21(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
/** @brief sUnpackM at the HA level (the plain name). @copydetails _zarsUnpackM_21 */
void _zarsUnpackM(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
/** @brief sUnpackM at the HA level. @copydetails _zarsUnpackM_21 */
void _zarsUnpackM_HA(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
/** @brief sUnpackM at the EP level. @copydetails _zarsUnpackM_21 */
void _zarsUnpackM_11(int64_t n, const float* a, float* y, const void* mask, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sUnpackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sUnpackM_ctab[3];
/** @} */

/** @name dUnpackM
 * UnpackM of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dUnpackM at the LA level.
 * @details For i below n, each y[i] whose mask[i] is non-zero takes the next element of a (UnpackM by mask). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source
 * @param y the destination, n elements
 * @param mask n 32-bit mask words
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zardUnpackM_50(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
/** @brief dUnpackM at the HA level (the plain name). @copydetails _zardUnpackM_50 */
void _zardUnpackM(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
/** @brief dUnpackM at the HA level. @copydetails _zardUnpackM_50 */
void _zardUnpackM_HA(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
/** @brief dUnpackM at the EP level. @copydetails _zardUnpackM_50 */
void _zardUnpackM_26(int64_t n, const double* a, double* y, const void* mask, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dUnpackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dUnpackM_ctab[3];
/** @} */

/** @name cUnpackM
 * UnpackM of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cUnpackM at the LA level.
 * @details For i below n, each y[i] whose mask[i] is non-zero takes the next element of a (UnpackM by mask). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source
 * @param y the destination, n elements
 * @param mask n 32-bit mask words
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarcUnpackM_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
/** @brief cUnpackM at the HA level (the plain name). @copydetails _zarcUnpackM_21 */
void _zarcUnpackM(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
/** @brief cUnpackM at the HA level. @copydetails _zarcUnpackM_21 */
void _zarcUnpackM_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
/** @brief cUnpackM at the EP level. @copydetails _zarcUnpackM_21 */
void _zarcUnpackM_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* mask, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cUnpackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cUnpackM_ctab[3];
/** @} */

/** @name zUnpackM
 * UnpackM of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zUnpackM at the LA level.
 * @details For i below n, each y[i] whose mask[i] is non-zero takes the next element of a (UnpackM by mask). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source
 * @param y the destination, n elements
 * @param mask n 32-bit mask words
 * @param flag ignored: the entry reads n and the mask as 32-bit integers
 */
void _zarzUnpackM_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
/** @brief zUnpackM at the HA level (the plain name). @copydetails _zarzUnpackM_50 */
void _zarzUnpackM(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
/** @brief zUnpackM at the HA level. @copydetails _zarzUnpackM_50 */
void _zarzUnpackM_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
/** @brief zUnpackM at the EP level. @copydetails _zarzUnpackM_50 */
void _zarzUnpackM_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* mask, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zUnpackM_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zUnpackM_ctab[3];
/** @} */

/** @name sUnpackV
 * UnpackV of single-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief sUnpackV at the LA level.
 * @details y[index[i]] = a[i] for i below n (UnpackV by index). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the destination
 * @param index n 32-bit indices into y
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarsUnpackV_21(int64_t n, const float* a, float* y, const void* index, int32_t flag);
/** @brief sUnpackV at the HA level (the plain name). @copydetails _zarsUnpackV_21 */
void _zarsUnpackV(int64_t n, const float* a, float* y, const void* index, int32_t flag);
/** @brief sUnpackV at the HA level. @copydetails _zarsUnpackV_21 */
void _zarsUnpackV_HA(int64_t n, const float* a, float* y, const void* index, int32_t flag);
/** @brief sUnpackV at the EP level. @copydetails _zarsUnpackV_21 */
void _zarsUnpackV_11(int64_t n, const float* a, float* y, const void* index, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_sUnpackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_sUnpackV_ctab[3];
/** @} */

/** @name dUnpackV
 * UnpackV of double-precision vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief dUnpackV at the LA level.
 * @details y[index[i]] = a[i] for i below n (UnpackV by index). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the destination
 * @param index n 32-bit indices into y
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zardUnpackV_50(int64_t n, const double* a, double* y, const void* index, int32_t flag);
/** @brief dUnpackV at the HA level (the plain name). @copydetails _zardUnpackV_50 */
void _zardUnpackV(int64_t n, const double* a, double* y, const void* index, int32_t flag);
/** @brief dUnpackV at the HA level. @copydetails _zardUnpackV_50 */
void _zardUnpackV_HA(int64_t n, const double* a, double* y, const void* index, int32_t flag);
/** @brief dUnpackV at the EP level. @copydetails _zardUnpackV_50 */
void _zardUnpackV_26(int64_t n, const double* a, double* y, const void* index, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_dUnpackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_dUnpackV_ctab[3];
/** @} */

/** @name cUnpackV
 * UnpackV of single-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief cUnpackV at the LA level.
 * @details y[index[i]] = a[i] for i below n (UnpackV by index). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the destination
 * @param index n 32-bit indices into y
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarcUnpackV_21(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
/** @brief cUnpackV at the HA level (the plain name). @copydetails _zarcUnpackV_21 */
void _zarcUnpackV(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
/** @brief cUnpackV at the HA level. @copydetails _zarcUnpackV_21 */
void _zarcUnpackV_HA(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
/** @brief cUnpackV at the EP level. @copydetails _zarcUnpackV_21 */
void _zarcUnpackV_11(int64_t n, const BrennComplex8* a, BrennComplex8* y, const void* index, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_cUnpackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_cUnpackV_ctab[3];
/** @} */

/** @name zUnpackV
 * UnpackV of double-precision complex vectors (cost figures 1111.0, 1111.0, 1111.0).
 * @{ */
/** @brief zUnpackV at the LA level.
 * @details y[index[i]] = a[i] for i below n (UnpackV by index). Elements are copied as raw bits; the others of y stay.
 * Reports no element and leaves the thread's status as it is.
 * @param n number of elements, read as 32 bits
 * @param a the dense source, n elements
 * @param y the destination
 * @param index n 32-bit indices into y
 * @param flag ignored: the entry reads n and the indices as 32-bit integers
 */
void _zarzUnpackV_50(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
/** @brief zUnpackV at the HA level (the plain name). @copydetails _zarzUnpackV_50 */
void _zarzUnpackV(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
/** @brief zUnpackV at the HA level. @copydetails _zarzUnpackV_50 */
void _zarzUnpackV_HA(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
/** @brief zUnpackV at the EP level. @copydetails _zarzUnpackV_50 */
void _zarzUnpackV_26(int64_t n, const BrennComplex16* a, BrennComplex16* y, const void* index, int32_t flag);
/** The row's kernels by slot (LA, HA, EP), indexed by
 * brenn_zar_kernel_GetTTableIndex(); a null slot's kernel is not in this build. */
extern BrennKernel brenn_zar_kernel_zUnpackV_ttab[3];
/** The row's cost figures by slot (LA, HA, EP): 1111.0, 1111.0, 1111.0. */
extern float brenn_zar_kernel_zUnpackV_ctab[3];
/** @} */

#ifdef __cplusplus
}
#endif

#endif
