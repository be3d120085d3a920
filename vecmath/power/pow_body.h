/* The vector body of Pow, Powr and the general case of Powx: lanes with x a positive
 * normal (single: positive and finite, denormals included, since they are normal once
 * widened) and y finite run the core of pow_core.h; zeros, negatives, infinities, NaN,
 * |y| from 2^900 (double) and |w| beyond 708.39, where the result leaves the double
 * range of the table form, go to the scalar routine. The special lanes run on x = 1 and
 * y = 0, so that they raise no flags of their own.
 * Single rows widen their lanes and narrow the double result once: a result beyond the
 * single range becomes infinity, zero or a denormal in that rounding, with the flags
 * and no status. */
#ifndef BRENN_VECMATH_POWER_POW_BODY_H
#define BRENN_VECMATH_POWER_POW_BODY_H

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/vec.h"
#include "vecmath/power/pow_core.h"

namespace brenn::vm {

template <class T>
struct PowRanges;
template <>
struct PowRanges<float> {
    // x outside [smallest denormal, largest finite]: zero, negative, infinite, NaN.
    static constexpr Range32 kX{0xFFFFFFFFu, 0x7FFFFFFFu, 0xFF7FFFFEu};
    // |y| infinite or NaN.
    static constexpr Range32 kY{0x7FFFFFFFu, 0u, 0x7F7FFFFFu};
};
template <>
struct PowRanges<double> {
    static constexpr Range64 kX = LogConst<double>::kPositiveNormal;
    // |y| at or above 2^900 (the exact product y*hi needs head room), infinite or NaN.
    static constexpr Range64 kY{0x7FFFFFFFFFFFFFFFull, 0ull, 0x782FFFFFFFFFFFFFull};
};
// |w| above 708.39: e^w leaves the range of the table form's scaling.
constexpr Range64 kPowW{0x7FFFFFFFFFFFFFFFull, 0ull, 0x4086232AFFFFFFFFull};

// e^w of one register of double lanes, the lanes with w out of range marked and run on 0.
template <ExpDegree D>
inline __m128d PowExp(__m128d wh, __m128d wl, __m128d& special) {
    special = RangeTest(wh, kPowW);
    return ExpHiLo<D>(IfThenZeroElse(special, wh), IfThenZeroElse(special, wl));
}

template <Level L>
inline __m128d PowHalf(__m128d x, __m128d y, __m128d& special) {
    __m128d wh, wl;
    PowW<L, true>(y, LnReduce(x), wh, wl);
    return PowExp<kPowExpDegree<L, true>>(wh, wl, special);
}

template <Level L>
inline __m128 PowOf(__m128 x, __m128 y, __m128& special) {
    using R = PowRanges<float>;
    __m128 sxy = Or(RangeTest(x, R::kX), RangeTest(y, R::kY));
    x = IfThenElse(sxy, Set<float>(1.0f), x);
    y = IfThenZeroElse(sxy, y);
    __m128d slo, shi;
    __m128d lo = PowHalf<L>(WidenLower(x), WidenLower(y), slo);
    __m128d hi = PowHalf<L>(WidenUpper(x), WidenUpper(y), shi);
    special = Or(sxy, NarrowMask(slo, shi));
    return Narrow(lo, hi);
}

template <Level L>
inline __m128d PowOf(__m128d x, __m128d y, __m128d& special) {
    using R = PowRanges<double>;
    __m128d sxy = Or(RangeTest(x, R::kX), RangeTest(y, R::kY));
    x = IfThenElse(sxy, Set<double>(1.0), x);
    y = IfThenZeroElse(sxy, y);
    __m128d wh, wl, sw;
    PowW<L, false>(y, LnReduce(x), wh, wl);
    __m128d v = PowExp<kPowExpDegree<L, false>>(wh, wl, sw);
    special = Or(sxy, sw);
    return v;
}

} // namespace brenn::vm

#endif
