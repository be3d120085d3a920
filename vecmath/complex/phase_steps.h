/* The phase of double complex lanes, atan2(im, re), in the three steps that the rounds
 * of Arg and Ln interleave over their groups (Start: range test and quotient; Middle:
 * the series; End: the angle), with the lanes that go to the real Atan2's scalar
 * routine. HA: the real Atan2's table steps, those of dAtan2's own kernel (the quotient
 * t, the row of atan(c) for t cut to 4 bits and the reduced quotient u, the short series
 * of u joined to the row and the quarter turns); LA and EP: Atan2's double steps at the
 * level (AngleOf, the quotient and the series by Estrin's scheme), which measured as fast
 * as the table in LA. The range (magnitudes in [2^-500, 2^500)) is Atan2's at every
 * level. */
#ifndef BRENN_VECMATH_COMPLEX_PHASE_STEPS_H
#define BRENN_VECMATH_COMPLEX_PHASE_STEPS_H

#include "vecmath/frame/level.h"
#include "vecmath/invtrig/atan_body.h"

namespace brenn::vm::cx {

// The window of both parts, the same at every level: high words (signs cleared) from
// kPartLo to kPartTop. StartInside begins the steps of lanes known to lie inside it,
// without the test and its blends (a round tested once, AnyOutside in exact.h).
constexpr int32_t kPartLo = 0x20B00000, kPartTop = 0x5F2FFFFF; // 2^-500, below 2^500
static_assert(invtrig::kRange<double>.mask == 0x7FFFFFFFu &&
              invtrig::kRange<double>.offset == 0x80000000u - uint32_t(kPartLo) &&
              invtrig::kRange<double>.limit == uint32_t(kPartTop) + 0x5F500000u);

template <Level L>
struct PhaseSteps {
    using Atan2 = invtrig::Atan2Body<double, L, invtrig::Unit::Radian>;
    using State = typename Atan2::Steps;
    BRENN_VEC static __m128d Start(__m128d im, __m128d re, State& s) {
        Atan2::Start(im, re, s);
        return s.special;
    }
    BRENN_VEC static void StartInside(__m128d im, __m128d re, State& s) {
        s.special = Zero<double>();
        invtrig::AngleQuotient<Atan2::kComp>(im, re, s.s);
    }
    BRENN_VEC static void Middle(State& s) { Atan2::Middle(s); }
    BRENN_VEC static __m128d End(const State& s) { return Atan2::End(s); }
};
template <>
struct PhaseSteps<Level::HA> {
    using State = invtrig::Atan2DoubleState;
    BRENN_VEC static __m128d Start(__m128d im, __m128d re, State& s) {
        constexpr Range32 w = invtrig::kRange<double>;
        __m128d special = Or(RangeTest(im, w), RangeTest(re, w));
        invtrig::Atan2DoubleQuotient(im, re, special, s);
        return special;
    }
    BRENN_VEC static void StartInside(__m128d im, __m128d re, State& s) {
        invtrig::Atan2DoubleQuotient(im, re, Zero<double>(), s);
    }
    BRENN_VEC static void Middle(State& s) { invtrig::Atan2DoubleReduced(s); }
    BRENN_VEC static __m128d End(const State& s) { return invtrig::Atan2DoubleAngle(s); }
};

} // namespace brenn::vm::cx

#endif
