/* Tridiagonal solvers of the service library, for the spline constructions. Arguments
 * by reference, as the LAPACK routines they mirror: dl, d, du are the sub-, main and
 * super-diagonal (n-1, n, n-1 elements), b holds nrhs right-hand sides of n elements
 * one after the other and is overwritten with the solutions. info is 0 on success
 * and i > 0 when the pivot of row i (counting from 1) is exactly zero. Gaussian
 * elimination with partial pivoting, so diagonally weak systems are safe too.
 *
 *   xdtsvb_4dfl:  factor and solve at once; dl, d, du are overwritten.
 *   xdttrfb_4dfl: factor once (dl, d, du overwritten; du2 gets n-2 fill elements,
 *                 ipiv n row indices) ...
 *   xdttrsb_4dfl: ... and solve for any number of right-hand sides. */
#ifndef BRENN_PLATFORM_TRIDIAG_H
#define BRENN_PLATFORM_TRIDIAG_H

#include <stdint.h>
#include "serv.h"

#ifdef __cplusplus
extern "C" {
#endif

BRENN_SERV_API void ddtsvb_4dfl(const int64_t* n, const int64_t* nrhs, double* dl, double* d,
                                double* du, double* b, int64_t* info);
BRENN_SERV_API void sdtsvb_4dfl(const int64_t* n, const int64_t* nrhs, float* dl, float* d,
                                float* du, float* b, int64_t* info);
BRENN_SERV_API void ddttrfb_4dfl(const int64_t* n, double* dl, double* d, double* du, double* du2,
                                 int64_t* ipiv, int64_t* info);
BRENN_SERV_API void sdttrfb_4dfl(const int64_t* n, float* dl, float* d, float* du, float* du2,
                                 int64_t* ipiv, int64_t* info);
BRENN_SERV_API void ddttrsb_4dfl(const int64_t* n, const int64_t* nrhs, const double* dl,
                                 const double* d, const double* du, const double* du2,
                                 const int64_t* ipiv, double* b, int64_t* info);
BRENN_SERV_API void sdttrsb_4dfl(const int64_t* n, const int64_t* nrhs, const float* dl,
                                 const float* d, const float* du, const float* du2,
                                 const int64_t* ipiv, float* b, int64_t* info);

#ifdef __cplusplus
}
#endif

#endif
