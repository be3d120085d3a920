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

// ln(wh*(1 + c)) + extra*ln2 for |c| a few units of 2^-53 at most:
// ln wh by the core, plus c.
// HA adds the core's head and first-order term exactly before the small terms; LA and EP
// add the small terms to the core's tail. With wh >= 1 the head is 0 or at least
// ln(1 + 2^-9) (k >= 0, the rows' -ln(rcp) >= 0), above |r| <= 2^-10: the fast sum is exact.
template <Level L, bool kExtra = true>
BRENN_VEC __m128d LnOfScaled(__m128d wh, __m128d c, __m128d extra) {
    LnReduction red = LnReduce(wh);
    if constexpr (kExtra) red.k = Add(red.k, extra);
    __m128d h, r, t;
    LnCore3From<L>(red, h, r, t);
    if constexpr (L == Level::HA) {
        __m128d s, e;
        FastTwoSum(h, r, s, e);
        return Add(s, Add(e, Add(t, c)));
    } else {
        return Add(h, Add(r, Add(t, c)));
    }
}

// ln(w.hi + w.lo) + extra*ln2 (without kExtra, extra is 0 and not read).
template <Level L, bool kExtra = true>
BRENN_VEC __m128d LnOfPair(const Pair& w, __m128d extra) {
    return LnOfScaled<L, kExtra>(w.hi, Div(w.lo, w.hi), extra);
}

// 1 + u as a head and its exact rounding error (u >= 0): the fast sum with the larger
// of the two first.
BRENN_VEC Pair OnePlus(__m128d u) {
    const __m128d one = Set<double>(1.0);
    Pair w;
    FastTwoSum(Max(u, one), Min(u, one), w.hi, w.lo);
    return w;
}

// sqrt(q.hi + q.lo) for q >= 0, q.hi in [2^-120, 2^120] or q = 0: the root s of the
// head, corrected once by the remainder q - s^2 over the estimate of 2s; 0 for q = 0. With s
// cut, s = sh + sl: sh^2 is exact, q.hi - sh^2 exact (Sterbenz), sl*(sh + s) is
// 2 sh*sl + sl^2 within 2^-52 of itself, about 2^-77 q, and the difference of the two,
// far below either, exact.
BRENN_VEC Pair SqrtOfPair(const Pair& q) {
    Pair s;
    s.hi = Sqrt(q.hi);
    __m128d sh, sl;
    CutHalves(s.hi, sh, sl);
    __m128d rem = Add(Sub(Sub(q.hi, Mul(sh, sh)), Mul(sl, Add(sh, s.hi))), q.lo);
    // 2s held at 2^-100 and up: for q = 0 the remainder is 0 and the estimate finite.
    s.lo = Mul(rem, RecipEstimate(Max(Add(s.hi, s.hi), Set<double>(0x1p-100))));
    return s;
}

// a^2 as a pair, |a| within 2^-400..2^400: from the halves of a, ah^2 - a^2 rounded is
// exact (both on the grid of the rounded square's last bit, 2^-25 of it apart) and
// al*(ah + a) is 2 ah*al + al^2 within about 2^-77 a^2.
BRENN_VEC Pair SquareOf(__m128d a) {
    Pair p;
    __m128d ah, al;
    CutHalves(a, ah, al);
    p.hi = Mul(a, a);
    p.lo = Add(Sub(Mul(ah, ah), p.hi), Mul(al, Add(ah, a)));
    return p;
}

// a*b as a pair.
BRENN_VEC Pair ProductOf(__m128d a, __m128d b) {
    Pair p;
    TwoProduct(a, b, p.hi, p.lo);
    return p;
}

// p + q for pairs, the heads summed exactly.
BRENN_VEC Pair SumOf(const Pair& p, const Pair& q) {
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
