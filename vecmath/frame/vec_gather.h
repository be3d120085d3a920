/* Table lookups by lane: the rows of a constant table picked by an integer in each lane
 * (the low word of a double that went through the shifter, or a 32-bit lane), read by
 * the scalar unit and transposed into registers of columns. An index is ANDed with a
 * mask first (the table's length less one for a power-of-two table, -1 for none), in
 * the scalar unit, where it costs the vector pipes nothing. Nothing checks the range:
 * the index, masked, must be a row of the table. */
#ifndef BRENN_VECMATH_FRAME_VEC_GATHER_H
#define BRENN_VECMATH_FRAME_VEC_GATHER_H

#include <stddef.h>

#include "vecmath/frame/vec_int.h"

namespace brenn::vm {

// *p0 and *p1 as lanes 0 and 1.
BRENN_VEC __m128d LoadLanes(const double* p0, const double* p1) {
    return _mm_loadh_pd(_mm_load_sd(p0), p1);
}
// Rows r0 and r1 of two doubles each (16-byte aligned), transposed: their first
// elements in `first`, their second ones in `second`.
BRENN_VEC void LoadTransposed(const double* r0, const double* r1, __m128d& first, __m128d& second) {
    __m128d a = _mm_load_pd(r0), b = _mm_load_pd(r1);
    first = _mm_unpacklo_pd(a, b);
    second = _mm_unpackhi_pd(a, b);
}
// Rows r0 to r3 of two singles each (8-byte aligned), transposed.
BRENN_VEC void LoadTransposed(const float* r0, const float* r1, const float* r2, const float* r3,
                              __m128& first, __m128& second) {
    __m128 p01 = _mm_castpd_ps(_mm_loadh_pd(_mm_load_sd(reinterpret_cast<const double*>(r0)),
                                            reinterpret_cast<const double*>(r1)));
    __m128 p23 = _mm_castpd_ps(_mm_loadh_pd(_mm_load_sd(reinterpret_cast<const double*>(r2)),
                                            reinterpret_cast<const double*>(r3)));
    first = _mm_shuffle_ps(p01, p23, _MM_SHUFFLE(2, 0, 2, 0));
    second = _mm_shuffle_ps(p01, p23, _MM_SHUFFLE(3, 1, 3, 1));
}
// Rows r0 to r3 of four singles each (16-byte aligned), transposed: column k of the
// rows in ck.
BRENN_VEC void LoadTransposed(const float* r0, const float* r1, const float* r2, const float* r3,
                              __m128& c0, __m128& c1, __m128& c2, __m128& c3) {
    __m128 a = _mm_load_ps(r0), b = _mm_load_ps(r1), c = _mm_load_ps(r2), d = _mm_load_ps(r3);
    _MM_TRANSPOSE4_PS(a, b, c, d);
    c0 = a;
    c1 = b;
    c2 = c;
    c3 = d;
}

// table[i0], table[i1] for the indices in the low words of the two lanes.
BRENN_VEC __m128d Gather(const double* table, I64x2 index, int32_t mask) {
    return LoadLanes(table + (LowWord<0>(index) & mask), table + (LowWord<1>(index) & mask));
}
// Column `column` of the rows picked by the two lanes.
template <size_t W>
BRENN_VEC __m128d GatherColumn(const double (*table)[W], I64x2 index, int32_t mask,
                               int column = 0) {
    return LoadLanes(&table[LowWord<0>(index) & mask][column],
                     &table[LowWord<1>(index) & mask][column]);
}
// Columns `column` and `column` + 1 of the rows picked by the two lanes, as one 16-byte
// load a row: the rows and the column pair must be 16-byte aligned.
template <size_t W>
BRENN_VEC void GatherPairs(const double (*table)[W], I64x2 index, int32_t mask, __m128d& first,
                           __m128d& second, int column = 0) {
    LoadTransposed(&table[LowWord<0>(index) & mask][column],
                   &table[LowWord<1>(index) & mask][column], first, second);
}

// The four 32-bit lanes as indices for the scalar unit (GCC reads them back as movd and
// three pextrd, whether or not they go through memory).
struct Indices {
    alignas(16) int32_t at[4];
};
BRENN_VEC Indices IndicesOf(I32x4 index) {
    Indices r;
    _mm_store_si128(reinterpret_cast<__m128i*>(r.at), index.v);
    return r;
}
// The four 32-bit lanes as two 64-bit words, lanes 0 and 1 in the lower (movq, pextrq):
// two moves to the scalar unit a register, where IndicesOf takes four (5 to 10 % faster
// on single Tanh's rows, whose loads wait on those moves). Lane 2k is the low half.
struct LanePairs {
    uint64_t lower, upper;
};
BRENN_VEC LanePairs LanePairsOf(I32x4 lanes) {
    return {uint64_t(_mm_cvtsi128_si64(lanes.v)), uint64_t(_mm_extract_epi64(lanes.v, 1))};
}
// table[i] for the four lanes.
BRENN_VEC __m128 Gather(const float* table, I32x4 index, int32_t mask) {
    Indices i = IndicesOf(index);
    return _mm_set_ps(table[i.at[3] & mask], table[i.at[2] & mask], table[i.at[1] & mask],
                      table[i.at[0] & mask]);
}
// The rows of two singles picked by the four lanes, transposed.
BRENN_VEC void GatherPairs(const float (*table)[2], I32x4 index, int32_t mask, __m128& first,
                           __m128& second) {
    Indices i = IndicesOf(index);
    LoadTransposed(table[i.at[0] & mask], table[i.at[1] & mask], table[i.at[2] & mask],
                   table[i.at[3] & mask], first, second);
}

} // namespace brenn::vm

#endif
