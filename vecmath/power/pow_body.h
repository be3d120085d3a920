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

// Single EP, all in single: ln x by the split around 2/3 and the seven-term Q of
// ln(1 + r) = r + r^2*Q(r), k*ln2 in two parts; w = y*ln x, within 2^-16 of 1 for the
// |w| that pass; e^w = 2^n * P(w - n*ln2) with the cubic P, 2^n put into the exponent
// field by an integer add. |w| above 87.3 (results near or beyond the range) goes to the
// scalar routine, as do the lanes that are not positive normal x or finite y.
// The two sets are this body's long-standing ones (Q as sLn LA had it, P a cubic for e^r
// on |r| <= ln2/2), kept bit for bit.
constexpr float kPowLnQ[] = {-0x1p-1f,       0x1.555dcep-2f, -0x1.000c3ap-2f, 0x1.95f702p-3f,
                             -0x1.5126bp-3f, 0x1.5b70d6p-3f, -0x1.36d444p-3f};
constexpr float kPowExpP[] = {0x1p+0f, 0x1.0007bcp+0f, 0x1.01e5acp-1f, 0x1.52c758p-3f};
constexpr Range32 kPowWSingle{0x7FFFFFFFu, 0u, 0x42AE9A00u};

inline __m128 PowSingleEP(__m128 x, __m128 y, __m128& special) {
    using K = LogConst<float>;
    __m128 sxy = Or(LogSpecial(x), RangeTest(y, PowRanges<float>::kY));
    x = IfThenElse(sxy, Set<float>(1.0f), x);
    y = IfThenZeroElse(sxy, y);
    __m128 r, k;
    LogSplit(x, r, k);
    __m128 p = Add(r, Mul(Mul(r, r), Horner(r, kPowLnQ)));
    __m128 ln = Add(Add(Mul(k, Set<float>(K::kLn2Lo)), p), Mul(k, Set<float>(K::kLn2Hi)));
    __m128 w = Mul(y, ln);
    __m128 sw = RangeTest(w, kPowWSingle);
    w = IfThenZeroElse(sw, w);
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    __m128 t = Add(Mul(w, Set<float>(0x1.715476p+0f)), shifter);
    __m128 n = Sub(t, shifter);
    __m128 e = Horner(Sub(w, Mul(n, Set<float>(K::kLn2))), kPowExpP);
    special = Or(sxy, sw);
    return AsFloat(Add(ShiftLeft<Format<float>::kMantBits>(AsInt(t)), AsInt(e)));
}

template <Level L>
inline __m128 PowOf(__m128 x, __m128 y, __m128& special) {
    if constexpr (L == Level::EP) return PowSingleEP(x, y, special);
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
    if constexpr (L == Level::EP) {
        __m128d w = PowWEP(y, LnReduce(x));
        __m128d sw = RangeTest(w, kPowW);
        special = Or(sxy, sw);
        return PowExpEP(IfThenZeroElse(sw, w));
    } else {
        __m128d wh, wl, sw;
        PowW<L, false>(y, LnReduce(x), wh, wl);
        __m128d v = PowExp<kPowExpDegree<L, false>>(wh, wl, sw);
        special = Or(sxy, sw);
        return v;
    }
}

} // namespace brenn::vm

#endif
