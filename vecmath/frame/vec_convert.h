/* Conversions between lane types, and the moves of lanes between float registers that
 * go with them: single lanes widened to double two at a time and narrowed back,
 * integers to floats and floats to integers, masks of double lanes packed into a
 * single mask. Widening and integer-to-double conversion are exact; narrowing and
 * integer-to-single round once; float-to-integer gives 0x80000000 for NaN and out of
 * range values (the instruction's "integer indefinite"). */
#ifndef BRENN_VECMATH_FRAME_VEC_CONVERT_H
#define BRENN_VECMATH_FRAME_VEC_CONVERT_H

#include "vecmath/frame/vec_types.h"

namespace brenn::vm {

// Single lanes 0-1 (WidenLower) or 2-3 (WidenUpper) as double lanes 0-1.
BRENN_VEC __m128d WidenLower(__m128 x) {
    return _mm_cvtps_pd(x);
}
BRENN_VEC __m128d WidenUpper(__m128 x) {
    return _mm_cvtps_pd(_mm_movehl_ps(x, x));
}
// Two double registers rounded to single lanes: lo's in lanes 0-1, hi's in 2-3.
BRENN_VEC __m128 Narrow(__m128d lo, __m128d hi) {
    return _mm_movelh_ps(_mm_cvtpd_ps(lo), _mm_cvtpd_ps(hi));
}
// Two double lane masks as one single lane mask, in the same order.
BRENN_VEC __m128 NarrowMask(__m128d lo, __m128d hi) {
    return _mm_shuffle_ps(_mm_castpd_ps(lo), _mm_castpd_ps(hi), _MM_SHUFFLE(2, 0, 2, 0));
}

// Signed 32-bit lanes to single (rounded in the MXCSR's mode), or lanes 0-1 (ToDoubleLower)
// and 2-3 (ToDoubleUpper) to double (exact).
BRENN_VEC __m128 ToFloat(I32x4 a) {
    return _mm_cvtepi32_ps(a.v);
}
BRENN_VEC __m128d ToDoubleLower(I32x4 a) {
    return _mm_cvtepi32_pd(a.v);
}
BRENN_VEC __m128d ToDoubleUpper(I32x4 a) {
    return _mm_cvtepi32_pd(_mm_srli_si128(a.v, 8));
}
// The signed low 32-bit word of each 64-bit lane to double, exactly: the conversion
// for 64-bit integers known to fit in 32 bits (SSE4.2 has none for 64-bit lanes).
BRENN_VEC __m128d LowWordsToDouble(I64x2 a) {
    return _mm_cvtepi32_pd(_mm_shuffle_epi32(a.v, _MM_SHUFFLE(3, 1, 2, 0)));
}

// Float lanes to signed 32-bit integers: rounded in the MXCSR's mode (nearest even in a
// kernel), or truncated. Double lanes give lanes 0-1, with 2-3 zero.
BRENN_VEC I32x4 RoundToInt(__m128 x) {
    return {_mm_cvtps_epi32(x)};
}
BRENN_VEC I32x4 RoundToInt(__m128d x) {
    return {_mm_cvtpd_epi32(x)};
}
BRENN_VEC I32x4 TruncToInt(__m128 x) {
    return {_mm_cvttps_epi32(x)};
}
BRENN_VEC I32x4 TruncToInt(__m128d x) {
    return {_mm_cvttpd_epi32(x)};
}

// Float lane shuffles: InterleaveLower(a, b) is a0 b0 (a0 b0 a1 b1 for single lanes),
// InterleaveUpper the same of the upper halves. On double lanes they transpose two rows
// of two.
BRENN_VEC __m128d InterleaveLower(__m128d a, __m128d b) {
    return _mm_unpacklo_pd(a, b);
}
BRENN_VEC __m128d InterleaveUpper(__m128d a, __m128d b) {
    return _mm_unpackhi_pd(a, b);
}
BRENN_VEC __m128 InterleaveLower(__m128 a, __m128 b) {
    return _mm_unpacklo_ps(a, b);
}
BRENN_VEC __m128 InterleaveUpper(__m128 a, __m128 b) {
    return _mm_unpackhi_ps(a, b);
}

} // namespace brenn::vm

#endif
