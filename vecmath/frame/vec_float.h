/* Operations on float registers, each one overload for __m128 and one for __m128d:
 * arithmetic, the multiply-add pair, rounding to integral values, the estimates,
 * compares into lane masks, logic, blends and mask bits. What rounds and what is exact
 * is stated in vec.h. */
#ifndef BRENN_VECMATH_FRAME_VEC_FLOAT_H
#define BRENN_VECMATH_FRAME_VEC_FLOAT_H

#include "vecmath/frame/vec_types.h"

// One operation, two overloads: _ps for single lanes, _pd for double lanes.
#define BRENN_VEC_FLOAT_BINARY(Name, op)                                                           \
    BRENN_VEC __m128 Name(__m128 a, __m128 b) {                                                    \
        return _mm_##op##_ps(a, b);                                                                \
    }                                                                                              \
    BRENN_VEC __m128d Name(__m128d a, __m128d b) {                                                 \
        return _mm_##op##_pd(a, b);                                                                \
    }

namespace brenn::vm {

// Arithmetic: each one IEEE operation, rounded once in the MXCSR's mode.
BRENN_VEC_FLOAT_BINARY(Add, add)
BRENN_VEC_FLOAT_BINARY(Sub, sub)
BRENN_VEC_FLOAT_BINARY(Mul, mul)
BRENN_VEC_FLOAT_BINARY(Div, div)
// minps/maxps: b when either is NaN or both are zeros, so Min(+0, -0) is -0.
BRENN_VEC_FLOAT_BINARY(Min, min)
BRENN_VEC_FLOAT_BINARY(Max, max)

BRENN_VEC __m128 Sqrt(__m128 x) {
    return _mm_sqrt_ps(x);
}
BRENN_VEC __m128d Sqrt(__m128d x) {
    return _mm_sqrt_pd(x);
}

// a*b + c and its kin as two operations, two roundings: there is no fused form below
// AVX2, and the order is the one written.
template <class V>
BRENN_VEC V MulAdd(V a, V b, V c) {
    return Add(Mul(a, b), c);
}
template <class V>
BRENN_VEC V MulSub(V a, V b, V c) {
    return Sub(Mul(a, b), c);
}
// c - a*b.
template <class V>
BRENN_VEC V NegMulAdd(V a, V b, V c) {
    return Sub(c, Mul(a, b));
}

// Logic on the bits. AndNot(a, b) is (not a) and b, as the instruction has it.
BRENN_VEC_FLOAT_BINARY(And, and)
BRENN_VEC_FLOAT_BINARY(Or, or)
BRENN_VEC_FLOAT_BINARY(Xor, xor)
BRENN_VEC_FLOAT_BINARY(AndNot, andnot)

// The sign and magnitude masks of the element type, as registers.
template <class T>
BRENN_VEC Vec<T> SignMask() {
    return SplatBits<T>(Format<T>::kSign);
}
template <class T>
BRENN_VEC Vec<T> AbsMask() {
    return SplatBits<T>(Format<T>::kAbs);
}

// Sign operations on the bits alone: exact, NaN payloads kept, no flag.
template <class V>
BRENN_VEC V Abs(V x) {
    return And(x, AbsMask<ElemOf<V>>());
}
template <class V>
BRENN_VEC V Neg(V x) {
    return Xor(x, SignMask<ElemOf<V>>());
}
// x's sign bit alone (+0 or -0 in each lane): Xor(p, SignBit(x)) gives p the sign of
// x times its own, Or(a, SignBit(x)) gives a non-negative a the sign of x.
template <class V>
BRENN_VEC V SignBit(V x) {
    return And(x, SignMask<ElemOf<V>>());
}

// Rounding to an integral value with the SSE4.1 immediate: a direction, or kByMode for
// the MXCSR's (nearest even under the kernel frame), with kNoInexact added to keep the
// inexact flag clear: RoundBy<rounding::kTowardZero | rounding::kNoInexact>(x). Exact;
// NaN quieted.
namespace rounding {
inline constexpr int kToNearest = _MM_FROUND_TO_NEAREST_INT;
inline constexpr int kDown = _MM_FROUND_TO_NEG_INF;
inline constexpr int kUp = _MM_FROUND_TO_POS_INF;
inline constexpr int kTowardZero = _MM_FROUND_TO_ZERO;
inline constexpr int kByMode = _MM_FROUND_CUR_DIRECTION;
inline constexpr int kNoInexact = _MM_FROUND_NO_EXC;
} // namespace rounding
template <int Mode>
BRENN_VEC __m128 RoundBy(__m128 x) {
    return _mm_round_ps(x, Mode);
}
template <int Mode>
BRENN_VEC __m128d RoundBy(__m128d x) {
    return _mm_round_pd(x, Mode);
}
template <class V>
BRENN_VEC V Floor(V x) {
    return RoundBy<rounding::kDown>(x);
}
template <class V>
BRENN_VEC V Ceil(V x) {
    return RoundBy<rounding::kUp>(x);
}
template <class V>
BRENN_VEC V Trunc(V x) {
    return RoundBy<rounding::kTowardZero>(x);
}
// Nearest, ties to even, whatever the MXCSR says.
template <class V>
BRENN_VEC V RoundEven(V x) {
    return RoundBy<rounding::kToNearest>(x);
}

// Estimates of 1/x and 1/sqrt(x), single only: relative error below 1.5 * 2^-12; their
// low bits differ between processor models (the only operations here whose results do).
BRENN_VEC __m128 ApproxRecip(__m128 x) {
    return _mm_rcp_ps(x);
}
BRENN_VEC __m128 ApproxRecipSqrt(__m128 x) {
    return _mm_rsqrt_ps(x);
}
// The estimate of lane 0 alone, the other lanes of x passed through: with SetFirst, a
// scalar routine gets the vector body's value of one element without estimating the
// zeros of the other lanes (whose infinities would raise flags in a refinement).
BRENN_VEC __m128 ApproxRecipFirst(__m128 x) {
    return _mm_rcp_ss(x);
}

// Compares into lane masks (all ones where true). Lt, Le, Gt and Ge are the signalling
// predicates: a NaN operand raises invalid. Eq, Ne and Unordered are quiet.
BRENN_VEC_FLOAT_BINARY(Eq, cmpeq)
BRENN_VEC_FLOAT_BINARY(Ne, cmpneq)
BRENN_VEC_FLOAT_BINARY(Lt, cmplt)
BRENN_VEC_FLOAT_BINARY(Le, cmple)
BRENN_VEC_FLOAT_BINARY(Gt, cmpgt)
BRENN_VEC_FLOAT_BINARY(Ge, cmpge)
BRENN_VEC_FLOAT_BINARY(Unordered, cmpunord)

// Blends. IfThenElse reads only the sign bit of each mask lane (blendv); the others
// use every bit and want whole-lane masks, as compares and range tests give.
BRENN_VEC __m128 IfThenElse(__m128 mask, __m128 yes, __m128 no) {
    return _mm_blendv_ps(no, yes, mask);
}
BRENN_VEC __m128d IfThenElse(__m128d mask, __m128d yes, __m128d no) {
    return _mm_blendv_pd(no, yes, mask);
}
template <class V>
BRENN_VEC V IfThenElseZero(V mask, V yes) {
    return And(mask, yes);
}
template <class V>
BRENN_VEC V IfThenZeroElse(V mask, V no) {
    return AndNot(mask, no);
}
// x with the lanes of mask made a quiet NaN (all ones; for a high-word mask of a double,
// all ones in the high word), so that arithmetic on those lanes raises nothing of its
// own.
template <class V>
BRENN_VEC V NaNWhere(V mask, V x) {
    return Or(x, mask);
}

// The sign bits of the lanes, lane k in bit k.
BRENN_VEC int MaskBits(__m128 mask) {
    return _mm_movemask_ps(mask);
}
BRENN_VEC int MaskBits(__m128d mask) {
    return _mm_movemask_pd(mask);
}

} // namespace brenn::vm

#undef BRENN_VEC_FLOAT_BINARY

#endif
