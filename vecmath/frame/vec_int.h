/* Operations on the integer views I32x4 and I64x2: wrapping arithmetic, logic, signed
 * compares, shifts by constants, the unsigned 32 by 32-bit and 16 by 16-bit products,
 * lane extraction, lane shuffles and a four-entry table lookup, and the blends and mask bits of
 * integer masks. SSE4.2 has no 64-bit arithmetic right shift, minimum or maximum; those are left
 * out rather than emulated. */
#ifndef BRENN_VECMATH_FRAME_VEC_INT_H
#define BRENN_VECMATH_FRAME_VEC_INT_H

#include "vecmath/frame/vec_types.h"

// One operation, two overloads: _epi32 for 32-bit lanes, _epi64 for 64-bit lanes.
#define BRENN_VEC_INT_BINARY(Name, op32, op64)                                                     \
    BRENN_VEC I32x4 Name(I32x4 a, I32x4 b) {                                                       \
        return {op32(a.v, b.v)};                                                                   \
    }                                                                                              \
    BRENN_VEC I64x2 Name(I64x2 a, I64x2 b) {                                                       \
        return {op64(a.v, b.v)};                                                                   \
    }

namespace brenn::vm {

// Wrapping (modulo 2^32, 2^64) addition and subtraction.
BRENN_VEC_INT_BINARY(Add, _mm_add_epi32, _mm_add_epi64)
BRENN_VEC_INT_BINARY(Sub, _mm_sub_epi32, _mm_sub_epi64)
BRENN_VEC_INT_BINARY(And, _mm_and_si128, _mm_and_si128)
BRENN_VEC_INT_BINARY(Or, _mm_or_si128, _mm_or_si128)
BRENN_VEC_INT_BINARY(Xor, _mm_xor_si128, _mm_xor_si128)
// (not a) and b.
BRENN_VEC_INT_BINARY(AndNot, _mm_andnot_si128, _mm_andnot_si128)
// Signed compares into lane masks.
BRENN_VEC_INT_BINARY(Eq, _mm_cmpeq_epi32, _mm_cmpeq_epi64)
BRENN_VEC_INT_BINARY(Gt, _mm_cmpgt_epi32, _mm_cmpgt_epi64)

template <class I>
BRENN_VEC I Not(I a) {
    return Xor(a, FromRawBits<I>(_mm_set1_epi32(-1)));
}
BRENN_VEC I32x4 Lt(I32x4 a, I32x4 b) {
    return {_mm_cmplt_epi32(a.v, b.v)};
}
BRENN_VEC I64x2 Lt(I64x2 a, I64x2 b) {
    return Gt(b, a);
}
// Signed minimum and maximum, 32-bit lanes.
BRENN_VEC I32x4 Min(I32x4 a, I32x4 b) {
    return {_mm_min_epi32(a.v, b.v)};
}
BRENN_VEC I32x4 Max(I32x4 a, I32x4 b) {
    return {_mm_max_epi32(a.v, b.v)};
}

// Shifts of every lane by a constant count: ShiftRight fills with zeros,
// ShiftRightSigned (32-bit lanes) with copies of the sign bit.
template <int K>
BRENN_VEC I32x4 ShiftLeft(I32x4 a) {
    return {_mm_slli_epi32(a.v, K)};
}
template <int K>
BRENN_VEC I64x2 ShiftLeft(I64x2 a) {
    return {_mm_slli_epi64(a.v, K)};
}
template <int K>
BRENN_VEC I32x4 ShiftRight(I32x4 a) {
    return {_mm_srli_epi32(a.v, K)};
}
template <int K>
BRENN_VEC I64x2 ShiftRight(I64x2 a) {
    return {_mm_srli_epi64(a.v, K)};
}
template <int K>
BRENN_VEC I32x4 ShiftRightSigned(I32x4 a) {
    return {_mm_srai_epi32(a.v, K)};
}

// The 64-bit products of the low 32-bit words of each 64-bit lane, unsigned: the high
// words of a and b are ignored.
BRENN_VEC I64x2 MulLowWords(I64x2 a, I64x2 b) {
    return {_mm_mul_epu32(a.v, b.v)};
}

// The low 16 bits of the products of the 16-bit halves (pmullw): for 32-bit lanes whose
// values and products lie in 0 to 2^16 - 1, the 32-bit products, in one multiply.
BRENN_VEC I32x4 MulLow16(I32x4 a, I32x4 b) {
    return {_mm_mullo_epi16(a.v, b.v)};
}

// The high 16 bits of the unsigned products of the 16-bit halves (pmulhuw): with
// MulLow16 on the same operands, both halves of each 32-bit product.
BRENN_VEC I32x4 MulHigh16(I32x4 a, I32x4 b) {
    return {_mm_mulhi_epu16(a.v, b.v)};
}

// Lane j of a four-entry table in each 32-bit lane, for j in 0 to 3: a byte shuffle of
// the table by the lane's bytes 4j to 4j + 3.
BRENN_VEC I32x4 LookupFour(I32x4 table, I32x4 j) {
    const __m128i first = _mm_setr_epi8(0, 0, 0, 0, 4, 4, 4, 4, 8, 8, 8, 8, 12, 12, 12, 12);
    __m128i at = _mm_shuffle_epi8(_mm_slli_epi32(j.v, 2), first);
    return {_mm_shuffle_epi8(table.v, _mm_add_epi8(at, _mm_set1_epi32(0x03020100)))};
}
// The same with j in bits 10 and 11 of each lane, bits 2 and 3 of its second byte (the
// byte's other bits, and the lane's other bytes, anything): that byte spread over the
// lane, masked to 4j and given the byte offsets 0 to 3.
BRENN_VEC I32x4 LookupFourBySecondByte(I32x4 table, I32x4 b) {
    const __m128i second = _mm_setr_epi8(1, 1, 1, 1, 5, 5, 5, 5, 9, 9, 9, 9, 13, 13, 13, 13);
    __m128i at = _mm_and_si128(_mm_shuffle_epi8(b.v, second), _mm_set1_epi8(0x0C));
    return {_mm_shuffle_epi8(table.v, _mm_or_si128(at, _mm_set1_epi32(0x03020100)))};
}
// The same into the high word of each 64-bit lane, for j in 0 to 3 in the lane's low word;
// the low word 0 (the high half of a double from a table of four, in four operations).
BRENN_VEC I64x2 LookupFourHigh(I32x4 table, I64x2 j) {
    const __m128i spread = _mm_setr_epi8(-128, -128, -128, -128, 0, 0, 0, 0, -128, -128, -128,
                                         -128, 8, 8, 8, 8);
    __m128i at = _mm_shuffle_epi8(_mm_slli_epi32(j.v, 2), spread);
    const __m128i bytes = _mm_setr_epi8(-128, -128, -128, -128, 0, 1, 2, 3, -128, -128, -128,
                                        -128, 0, 1, 2, 3);
    return {_mm_shuffle_epi8(table.v, _mm_or_si128(at, bytes))};
}

// One 32-bit lane as a scalar (lane 0 by movd, the others by pextrd).
template <int K>
BRENN_VEC int32_t ExtractLane(I32x4 a) {
    if constexpr (K == 0)
        return _mm_cvtsi128_si32(a.v);
    else
        return _mm_extract_epi32(a.v, K);
}
// The low 32-bit word of 64-bit lane K: where a double that went through the shifter
// holds its integer, and where a table index is read from.
template <int K>
BRENN_VEC int32_t LowWord(I64x2 a) {
    return ExtractLane<2 * K>(I32x4{a.v});
}

// Lane shuffles. InterleaveLower(a, b) is a0 b0 (a1 b1 for 32-bit lanes), InterleaveUpper
// the same of the upper halves; OddEven(odd, even) takes the odd lanes of `odd` and the
// even lanes of `even`.
BRENN_VEC_INT_BINARY(InterleaveLower, _mm_unpacklo_epi32, _mm_unpacklo_epi64)
BRENN_VEC_INT_BINARY(InterleaveUpper, _mm_unpackhi_epi32, _mm_unpackhi_epi64)
BRENN_VEC I32x4 OddEven(I32x4 odd, I32x4 even) {
    return {_mm_blend_epi16(even.v, odd.v, 0xCC)};
}
// Each even lane copied into the odd lane above it: a 32-bit result in the low word of a
// 64-bit lane spread over the whole lane (a 32-bit compare of it is then a 64-bit mask).
BRENN_VEC I32x4 DupEven(I32x4 a) {
    return {_mm_shuffle_epi32(a.v, _MM_SHUFFLE(2, 2, 0, 0))};
}

// Blends of integer lanes (sign bit of each mask lane), and the sign bits as lane bits.
BRENN_VEC I32x4 IfThenElse(I32x4 mask, I32x4 yes, I32x4 no) {
    return AsInt(_mm_blendv_ps(AsFloat(no), AsFloat(yes), AsFloat(mask)));
}
BRENN_VEC I64x2 IfThenElse(I64x2 mask, I64x2 yes, I64x2 no) {
    return AsInt(_mm_blendv_pd(AsFloat(no), AsFloat(yes), AsFloat(mask)));
}
BRENN_VEC int MaskBits(I32x4 mask) {
    return _mm_movemask_ps(AsFloat(mask));
}
BRENN_VEC int MaskBits(I64x2 mask) {
    return _mm_movemask_pd(AsFloat(mask));
}

} // namespace brenn::vm

#undef BRENN_VEC_INT_BINARY

#endif
