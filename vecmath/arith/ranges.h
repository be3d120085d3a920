/* The range windows of the root and reciprocal bodies, by element type: which lanes
 * Sqrt, InvSqrt, Inv and Div leave to their scalar routines. The double windows test
 * the high words (Range32 on double lanes, vec_range.h). */
#ifndef BRENN_VECMATH_ARITH_RANGES_H
#define BRENN_VECMATH_ARITH_RANGES_H

#include "vecmath/frame/vec_range.h"

namespace brenn::vm {

template <class T>
struct ArithRanges;

template <>
struct ArithRanges<float> {
    // Positive normals pass; zero, negatives, denormals, infinities, NaN and the last
    // few values below the largest finite are special.
    static constexpr Range32 kRoot{0xFFFFFFFFu, 0x7F800000u, 0xFEFFF000u};
    // The same for the InvSqrt chains, which let the top one of those few through.
    static constexpr Range32 kInvRoot{0xFFFFFFFFu, 0x7F800000u, 0xFEFFF001u};
    // |x| zero, denormal, at least 2^126, infinite or NaN: 1/x stays normal otherwise.
    static constexpr Range32 kRecip{0x7FFFFFFFu, 0x7F800000u, 0xFDFFFFFFu};
};

template <>
struct ArithRanges<double> {
    static constexpr Range32 kRoot{0xFFFFFFFFu, 0x7FF00000u, 0xFFDFFFFFu};
    // Positive x from 2^-126 to below 2^127, which narrow to positive normal singles:
    // the window of the chains seeded on x narrowed to single.
    static constexpr Range32 kNarrowRoot{0xFFFFFFFFu, 0x47F00000u, 0x8FCFFFFFu};
    // Positive normals below 2^995, where the exact products of the HA chain have room.
    static constexpr Range32 kInvRoot{0xFFFFFFFFu, 0x7FF00000u, 0xFE0FFFFFu};
    // |x| zero, denormal, at least 2^1022, infinite or NaN.
    static constexpr Range32 kRecip{0x7FFFFFFFu, 0x7FF00000u, 0xFFBFFFFFu};
};

} // namespace brenn::vm

#endif
