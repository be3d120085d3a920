/* A round's lanes: the sign bits of the masks of a round's registers as one word, bit j
 * for element j of the round (register k's lanes after those of the registers before
 * it), as the frame takes a round body's special lanes. */
#ifndef BRENN_VECMATH_FRAME_VEC_ROUND_H
#define BRENN_VECMATH_FRAME_VEC_ROUND_H

#include "vecmath/frame/vec_float.h"
#include "vecmath/frame/vec_types.h"

namespace brenn::vm {

template <int M, class V>
BRENN_VEC int RoundMaskBits(const V (&mask)[M]) {
    int bits = 0;
#pragma GCC unroll 16
    for (int k = 0; k < M; ++k)
        bits |= MaskBits(mask[k]) << (kLanes<ElemOf<V>> * k);
    return bits;
}

} // namespace brenn::vm

#endif
