/* Reference values of the vector functions in MPFR (real) and MPC (complex), at a
 * working precision far above double, so that the error of a kernel's result can be
 * measured in fractions of an ulp. Functions MPFR lacks (inverse error functions,
 * normal distribution, E1) are built from MPFR primitives: the inverses by
 * bracketing and Newton steps at raised precision. */
#ifndef BRENN_TOOLS_ACCURACY_REFERENCE_H
#define BRENN_TOOLS_ACCURACY_REFERENCE_H

#include <mpc.h>
#include <mpfr.h>

#include "tools/accuracy/rowtable.h"

namespace brenn::tools {

// Precision of the references, in bits.
constexpr mpfr_prec_t kRefPrec = 160;

// r = f(x) for the real functions of one argument; SinCos also writes r2 (cosine).
void RefUnary(Ref ref, mpfr_ptr r, mpfr_ptr r2, mpfr_srcptr x);

// r = f(a, b) for the real functions of two arguments (Powx uses Pow).
void RefBinary(Ref ref, mpfr_ptr r, mpfr_srcptr a, mpfr_srcptr b);

// r = f(a, b) for the complex functions; Cis reads the real part of a, and Abs/Arg
// leave their real result in the real part of r.
void RefComplex(Ref ref, mpc_ptr r, mpc_srcptr a, mpc_srcptr b);

} // namespace brenn::tools

#endif
