/* The logarithm of a pair for the inverse hyperbolic rows: ln(wh + wl) for wh >= 1 (a
 * positive normal double) and |wl| small beside it, as the logarithm core of the explog
 * family (log_core.h) on wh plus wl/wh; `extra` powers of two (0 or 1 a lane) added to the
 * core's exponent, which lets a huge argument go in as a and come out as ln(2a).
 * Also the pair arithmetic these rows build w with: 1 + u split exactly, and the square
 * root of a pair, corrected once. */
#ifndef BRENN_VECMATH_HYPER_LOG_PAIR_H
#define BRENN_VECMATH_HYPER_LOG_PAIR_H

#include "vecmath/explog/log_core.h"
#include "vecmath/hyper/hyper_core.h"

namespace brenn::vm {

// ln(w.hi + w.lo) + extra*ln2. HA adds the core's head and first-order term exactly
// before the small terms; LA and EP add the small terms to the core's tail.
template <Level L>
inline __m128d LnOfPair(const Pair& w, __m128d extra) {
    LnReduction red = LnReduce(w.hi);
    red.k = Add(red.k, extra);
    __m128d h, r, t;
    LnCore3From<L>(red, h, r, t);
    __m128d c = Div(w.lo, w.hi);
    if constexpr (L == Level::HA) {
        __m128d s, e;
        TwoSum(h, r, s, e);
        return Add(s, Add(e, Add(t, c)));
    } else {
        return Add(h, Add(r, Add(t, c)));
    }
}

// 1 + u as a head and its exact rounding error (u >= 0).
inline Pair OnePlus(__m128d u) {
    Pair w;
    TwoSum(Set<double>(1.0), u, w.hi, w.lo);
    return w;
}

// sqrt(q.hi + q.lo) for q >= 0, q.hi in [2^-120, 2^120] or 0: the root of the head,
// corrected once by the remainder q - s^2 (the square split exactly) over the estimate of
// 2s; 0 for q = 0.
inline Pair SqrtOfPair(const Pair& q) {
    Pair s;
    s.hi = Sqrt(q.hi);
    __m128d ph, pl;
    TwoProduct(s.hi, s.hi, ph, pl);
    __m128d rem = Add(Sub(Sub(q.hi, ph), pl), q.lo);
    __m128d lo = Mul(rem, RecipEstimate(Add(s.hi, s.hi)));
    s.lo = IfThenElseZero(Gt(q.hi, Zero<double>()), lo);
    return s;
}

// a*b as a pair.
inline Pair ProductOf(__m128d a, __m128d b) {
    Pair p;
    TwoProduct(a, b, p.hi, p.lo);
    return p;
}

// p + q for pairs, the heads summed exactly.
inline Pair SumOf(const Pair& p, const Pair& q) {
    Pair s;
    __m128d e;
    TwoSum(p.hi, q.hi, s.hi, e);
    s.lo = Add(e, Add(p.lo, q.lo));
    return s;
}

// Above this the square of the argument is left out: sqrt(a^2 +- 1) is a to the last bit,
// and w = 2a goes in as a with one more power of two.
constexpr double kSquareEnd = 0x1p28;

} // namespace brenn::vm

#endif
