/* The vector vocabulary that kernel bodies are written in: free functions over the
 * float registers (Vec<float> = __m128, Vec<double> = __m128d) and their integer views
 * (I32x4, I64x2), overloaded so that one template body serves both precisions.
 *
 * Rules:
 * - Only SSE up to 4.2, so that results do not depend on the machine. Each operation
 *   is one instruction, or a short fixed sequence stated at its definition, and is
 *   always inlined: a body compiles to the instructions it names.
 * - No fused multiply-add. MulAdd(a, b, c) is Add(Mul(a, b), c), rounded twice; with
 *   -ffp-contract=off every operation rounds where it is written, in that order.
 * - Exact (no rounding): sign and bit operations (Abs, Neg, SignBit, And, Or, Xor,
 *   AndNot), blends, Min, Max, compares, RoundBy and its named forms, bit casts,
 *   integer operations, shifts, WidenLower/WidenUpper, int32 to double. Rounded once:
 *   Add, Sub, Mul, Div, Sqrt, Narrow, int32 to single. Estimates: ApproxRecip and
 *   ApproxRecipSqrt (relative error below 1.5 * 2^-12), whose low bits differ between
 *   processor models.
 * - Flags: Lt, Le, Gt, Ge on floats raise invalid for a NaN operand; Eq, Ne and
 *   Unordered do not. Arithmetic on a lane the body will discard should be made quiet
 *   first (NaNWhere, or running it on a safe value).
 * - Masks are whole lanes of ones or zeros (compares, RangeTest). IfThenElse and
 *   MaskBits read only the sign bit of a lane; IfThenElseZero, IfThenZeroElse and
 *   NaNWhere read every bit.
 * - Nullary operations name the element type: Set<T>(v), Zero<T>(), SplatBits<T>(b),
 *   SignMask<T>(), MaskFromBits<T>(bits); integer vectors by the integer type,
 *   Set<int32_t>, Set<UInt<T>>. Constants are written as values (hex floats where the
 *   bits matter) or as bit patterns, and live in one place: Format<T> for the formats'
 *   own (constants.h), a body's per-type struct for its own.
 *
 * A body: template <class T> struct XBody { using V = Vec<T>; using K = XConst<T>; ... },
 * with XConst<float> and XConst<double> holding only what differs (range windows,
 * coefficients, names). Where the two precisions run different algorithms, the part
 * that differs is a pair of overloads on the register type and the body stays one. */
#ifndef BRENN_VECMATH_FRAME_VEC_H
#define BRENN_VECMATH_FRAME_VEC_H

#include "vecmath/frame/constants.h"
#include "vecmath/frame/vec_convert.h"
#include "vecmath/frame/vec_exact.h"
#include "vecmath/frame/vec_float.h"
#include "vecmath/frame/vec_gather.h"
#include "vecmath/frame/vec_int.h"
#include "vecmath/frame/vec_poly.h"
#include "vecmath/frame/vec_range.h"
#include "vecmath/frame/vec_types.h"

#endif
