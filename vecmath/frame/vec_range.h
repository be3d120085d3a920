/* The range test: which lanes a body leaves to its scalar routine, decided on the
 * integer view of the input by one signed compare, so that it runs beside the
 * arithmetic with no branch. A window (mask, offset, limit) marks a lane special when
 * (bits & mask) + offset, wrapping and read as signed, is above limit: the offset
 * moves an unsigned interval of bit patterns to the bottom of the signed range, so
 * that one compare tests both of its ends. A mask of all ones and an offset of 0 cost
 * nothing.
 *
 * Range32 on single lanes tests their bits; Range64 on double lanes tests all 64 bits;
 * Range32 on double lanes tests their high words alone, which is cheaper (a 32-bit
 * compare, not pcmpgtq). For that the low words must neither carry into the high
 * words nor decide the compare: the test ANDs them with all ones, adds 0 and compares
 * them against 0x7FFFFFFF, so the result is all ones in the high word of a special
 * lane and zero elsewhere. As a mask it has the sign bits of the 64-bit test (enough
 * for IfThenElse and MaskBits) and, OR-ed onto a double by NaNWhere, it makes that lane
 * a quiet NaN; IfThenElseZero and the like would see half a lane. */
#ifndef BRENN_VECMATH_FRAME_VEC_RANGE_H
#define BRENN_VECMATH_FRAME_VEC_RANGE_H

#include <type_traits>

#include "vecmath/frame/vec_int.h"

namespace brenn::vm {

struct Range32 {
    uint32_t mask, offset, limit;
};
struct Range64 {
    uint64_t mask, offset, limit;
};
// The window on the whole lane of an element type.
template <class T>
using LaneRange = std::conditional_t<sizeof(T) == 4, Range32, Range64>;

namespace range_detail {
// The limit is kept from the optimiser (Opaque), which would otherwise fold the offset
// into the compare as an unsigned minimum and an equality (or compare with the limit
// plus one and negate): three or two instructions in place of one.
template <class I, class U>
BRENN_VEC I Window(I bits, U mask, U offset, U limit) {
    if (mask != U(~U(0))) bits = And(bits, Set<U>(mask));
    if (offset != 0) bits = Add(bits, Set<U>(offset));
    return Gt(bits, Opaque(Set<U>(limit)));
}
} // namespace range_detail

// The same test on the bits of one element (of a double, its high word for Range32).
BRENN_VEC bool RangeTest(uint32_t bits, Range32 r) {
    return int32_t((bits & r.mask) + r.offset) > int32_t(r.limit);
}
BRENN_VEC bool RangeTest(uint64_t bits, Range64 r) {
    return int64_t((bits & r.mask) + r.offset) > int64_t(r.limit);
}

BRENN_VEC __m128 RangeTest(__m128 x, Range32 r) {
    return AsFloat(range_detail::Window(AsInt(x), r.mask, r.offset, r.limit));
}
BRENN_VEC __m128d RangeTest(__m128d x, Range64 r) {
    return AsFloat(range_detail::Window(AsInt(x), r.mask, r.offset, r.limit));
}
BRENN_VEC __m128d RangeTest(__m128d x, Range32 r) {
    I32x4 b = BitCast<I32x4>(x);
    if (r.mask != 0xFFFFFFFFu)
        b = And(b, BitCast<I32x4>(Set<uint64_t>((uint64_t(r.mask) << 32) | 0xFFFFFFFFu)));
    if (r.offset != 0) b = Add(b, BitCast<I32x4>(Set<uint64_t>(uint64_t(r.offset) << 32)));
    return BitCast<__m128d>(
        Gt(b, Opaque(BitCast<I32x4>(Set<uint64_t>((uint64_t(r.limit) << 32) | 0x7FFFFFFFu)))));
}

} // namespace brenn::vm

#endif
