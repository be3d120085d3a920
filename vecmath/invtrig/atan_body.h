/* The bodies of Atan, Atan2, Atanpi and Atan2pi in single and double (atan.cpp tells
 * the method and its measured errors), and Atan2's scalar routine: the kernels of those
 * rows in atan.cpp, and the phase of the complex Arg and Ln, are made from them. */
#ifndef BRENN_VECMATH_INVTRIG_ATAN_BODY_H
#define BRENN_VECMATH_INVTRIG_ATAN_BODY_H

#include <cmath>

#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/invtrig/atan_tables.h"
#include "vecmath/invtrig/common.h"
#include "vecmath/invtrig/series.h"

namespace brenn::vm::invtrig {

// min(v, c) for v >= 0 or NaN, by the bits: minpd would raise invalid for a NaN.
BRENN_VEC __m128d AtMost(__m128d v, double limit) {
    const __m128d c = Set<double>(limit);
    return IfThenElse(AsFloat(Gt(AsInt(v), AsInt(c))), c, v);
}

// The fold points of the double steps, tan(pi/8) and tan(3pi/8), rounded to double.
constexpr double kTanEighth = 0x1.a827999fcef32p-2;
constexpr double kTanThreeEighths = 0x1.3504f333f9de6p+1;

// The double steps: the angle of (b, a) with the series S, compensated or not. Lanes
// of Atan2 hold magnitudes in [2^-500, 2^500), lanes of Atan (EP) have b = 1 and any a.
// Wide: single lanes in double (the pi-scaled single rows and the complex Arg's single
// HA), where the order of the last steps is free (S a coefficient set): the tail's
// product with q comes last, off the series, and base + q runs alongside it.
// In three steps, the quotient, its series and correction, the angle, so that a round
// of several registers can take each over all of them before the next (Atan2Body's
// EvalSteps, for the complex Arg and Ln).
struct AngleState {
    __m128d a, k, flip, fold, nh, nl, dh, dl, q, l;
};
template <bool Comp>
BRENN_VEC void AngleQuotient(__m128d a, __m128d b, AngleState& s) {
    __m128d ay = Abs(a), ax = Abs(b);
    __m128d swap = AsFloat(Gt(AsInt(ay), AsInt(ax)));
    __m128d n = IfThenElse(swap, ax, ay);
    __m128d d = IfThenElse(swap, ay, ax);
    s.a = a;
    s.k = IfThenElse(swap, Set<double>(2), IfThenElse(b, Set<double>(4), Zero<double>()));
    s.flip = Xor(And(swap, SignMask<double>()), SignBit(b));
    // Above tan(pi/8): atan(n/d) = pi/4 + atan((n - d)/(n + d)). Compared as integers:
    // both are magnitudes, and a NaN raises nothing (it lands in one branch or the other
    // and comes out of the quotient).
    __m128d fold = AsFloat(Gt(AsInt(n), AsInt(Mul(d, Set<double>(kTanEighth)))));
    s.fold = fold;
    if constexpr (Comp) {
        // Folded lanes have d below 2^500; the others must not make inf - inf here.
        // n is at most d (and at most 1 where d is clamped), so the fast exact sums.
        __m128d dc = AtMost(d, 0x1p510);
        FastTwoSum(Neg(dc), n, s.nh, s.nl);
        FastTwoSum(dc, n, s.dh, s.dl);
        s.nh = IfThenElse(fold, s.nh, n);
        s.nl = IfThenElseZero(fold, s.nl);
        s.dh = IfThenElse(fold, s.dh, d);
        s.dl = IfThenElseZero(fold, s.dl);
    } else {
        s.nh = IfThenElse(fold, Sub(n, d), n);
        s.dh = IfThenElse(fold, Add(n, d), d);
    }
    s.q = Div(s.nh, s.dh);
}
// Cut: the residual nh - q*dm by halves cut at 26 bits, as Atan's (AtanTail): fewer
// operations than the product's Veltkamp splits, the one rounded term q*(dm - dmh)
// below 2^-78 of nh (the complex Arg and Ln).
template <class S, bool Comp, bool Wide, bool Cut = false>
BRENN_VEC void AngleTail(AngleState& s) {
    __m128d q = s.q;
    if constexpr (Wide)
        s.l = Mul(q, Mul(Mul(q, q), Estrin(Mul(q, q), S::kP)));
    else
        s.l = S::Tail(Mul(q, q), q);
    if constexpr (Comp) {
        // The quotient's error from the exact residual. The product's split needs d below
        // about 2^995; the clamp also keeps an infinite d out of it.
        __m128d dm = AtMost(s.dh, 0x1p510);
        __m128d r;
        if constexpr (Cut) {
            const __m128d cut = AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull));
            __m128d qh = And(q, cut), dmh = And(dm, cut);
            r = Sub(Sub(s.nh, Mul(qh, dmh)), Mul(Sub(q, qh), dmh));
            r = Add(Sub(r, Mul(q, Sub(dm, dmh))), Sub(s.nl, Mul(q, s.dl)));
        } else {
            __m128d ph, pl;
            TwoProduct(q, dm, ph, pl);
            r = Sub(Add(Sub(Sub(s.nh, ph), pl), s.nl), Mul(q, s.dl));
        }
        s.l = Add(s.l, Div(r, s.dh));
    }
}
template <Unit U, bool Comp, bool Wide>
BRENN_VEC __m128d AngleFinish(const AngleState& s) {
    const __m128d one = Set<double>(1.0);
    __m128d k = Add(s.k, IfThenElseZero(s.fold, Or(one, And(s.flip, SignMask<double>()))));
    __m128d y;
    if constexpr (Wide && U == Unit::Radian)
        y = Add(Add(Mul(k, Set<double>(Quarter<double, U>::kHi)), Xor(s.q, s.flip)),
                Xor(s.l, s.flip));
    else
        y = Finish<U, Comp>(k, Xor(s.q, s.flip), Xor(s.l, s.flip));
    return Xor(y, SignBit(s.a));
}
template <Unit U, class S, bool Comp, bool Wide = false>
BRENN_VEC __m128d AngleOf(__m128d a, __m128d b) {
    AngleState s;
    AngleQuotient<Comp>(a, b, s);
    AngleTail<S, Comp, Wide>(s);
    return AngleFinish<U, Comp, Wide>(s);
}

// Single Atan EP and LA on [0, 1] after the fold t = -1/|x| above 1.
// In three steps, the quotient t, the series, the angle, so that a round of sixteen takes
// each over its four registers before the next (AtanSingleRound).
struct AtanSingleState {
    __m128 x, big, t, p;
};
template <Level L>
BRENN_VEC void AtanSingleQuotient(__m128 x, AtanSingleState& s) {
    __m128 a = Abs(x);
    __m128 big = AsFloat(Gt(AsInt(a), Set<uint32_t>(Format<float>::kOne)));
    __m128 t;
    if constexpr (L == Level::EP) {
        t = IfThenElse(big, Or(ApproxRecip(a), SignMask<float>()), a);
    } else {
        // -1/a from the estimate r0 and one Newton step, r0*(r0*a - 2). The step runs on
        // the larger of a and 1 by the bits (a zero would meet the estimate's infinity;
        // a NaN stays one), and an infinity, set apart by its bits, on the largest float
        // (its bits less one): the estimate is 0 there, t = -0 and the angle pi/2.
        const I32x4 one = Set<uint32_t>(Format<float>::kOne);
        I32x4 ai = AsInt(a);
        I32x4 inf = Eq(ai, Set<uint32_t>(Format<float>::kExpField));
        __m128 d = AsFloat(Add(Max(ai, one), inf));
        __m128 r0 = ApproxRecip(d);
        __m128 r = Mul(r0, Sub(Mul(r0, d), Set<float>(2.0f)));
        t = IfThenElse(big, r, a);
    }
    s.x = x, s.big = big, s.t = t;
}
template <Unit U, Level L>
BRENN_VEC void AtanSingleSeries(AtanSingleState& s) {
    __m128 t = s.t;
    __m128 z = Mul(t, t);
    s.p = Mul(t, L == Level::EP ? AtanSingleEP(z) : AtanSingleLA(z));
    if constexpr (U == Unit::Pi) s.p = Mul(s.p, Set<float>(InvPi<float>::kHi));
}
template <Unit U>
BRENN_VEC __m128 AtanSingleAngle(const AtanSingleState& s) {
    __m128 base = IfThenElseZero(s.big, Set<float>(2 * Quarter<float, U>::kHi));
    return Or(Add(s.p, base), SignBit(s.x));
}
template <Unit U, Level L>
BRENN_VEC __m128 AtanSingle(__m128 x) {
    AtanSingleState s;
    AtanSingleQuotient<L>(x, s);
    AtanSingleSeries<U, L>(s);
    return AtanSingleAngle<U>(s);
}
// A round of N registers, each step over all of them before the next.
template <Unit U, Level L, int N>
BRENN_VEC void AtanSingleRound(const __m128* x, __m128* y) {
    AtanSingleState s[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        AtanSingleQuotient<L>(x[k], s[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        AtanSingleSeries<U, L>(s[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = AtanSingleAngle<U>(s[k]);
}

// The single bodies' magnitudes: n = min(|a|, |b|) and d = max(|a|, |b|) by their bits
// (exact, silent for any input), made a quiet NaN on the special lanes, so that a body
// takes a and b as they are and raises nothing on lanes it leaves to the scalar routine
// (in place of running those lanes on 1: two blends and the mask's sign fewer).
// swap: |a| the larger; below b's sign as a mask.
struct Magnitudes {
    __m128 n, d, swap, below;
};
BRENN_VEC Magnitudes MagnitudesOf(__m128 a, __m128 b, __m128 special) {
    I32x4 ay = AsInt(Abs(a)), ax = AsInt(Abs(b));
    return {NaNWhere(special, AsFloat(Min(ay, ax))), NaNWhere(special, AsFloat(Max(ay, ax))),
            AsFloat(Gt(ay, ax)), AsFloat(ShiftRightSigned<31>(AsInt(b)))};
}

// Single Atan2 EP and LA: lanes in the vector range, special lanes quiet NaN.
template <Unit U, Level L>
BRENN_VEC __m128 Atan2Single(__m128 a, __m128 b, __m128 special) {
    using Q = Quarter<float, U>;
    const auto [n, d, swap, below] = MagnitudesOf(a, b, special);
    __m128 t;
    if constexpr (L == Level::EP) {
        __m128 r = ApproxRecip(d);
        r = Mul(r, Sub(Set<float>(2.0f), Mul(d, r)));
        t = Mul(n, r);
    } else {
        t = Div(n, d);
    }
    t = Xor(t, Xor(And(swap, SignMask<float>()), SignBit(b)));
    __m128 base = IfThenElse(swap, Set<float>(2 * Q::kHi), And(below, Set<float>(4 * Q::kHi)));
    __m128 z = Mul(t, t);
    __m128 p = Mul(t, L == Level::EP ? AtanSingleEP(z) : AtanSingleLA(z));
    if constexpr (U == Unit::Pi) p = Mul(p, Set<float>(InvPi<float>::kHi));
    return Or(Add(p, base), SignBit(a));
}

// Whether a level runs in single (its own single steps) or in double.
template <Unit U, Level L>
constexpr bool kInSingle = L == Level::EP || (L == Level::LA && U == Unit::Radian);

template <Level L>
using DoubleSeriesOf = std::conditional_t<L == Level::EP, AtanDouble5, AtanDouble11>;

// Single Atan HA (and the pi-scaled LA and HA) in double, on a = |x| widened, the sign
// put back on the single lanes; double Atan EP on a = |x| itself. Between tan(pi/8) and
// tan(3pi/8) the angle is pi/4 + atan((a - 1)/(a + 1)), above tan(3pi/8) pi/2 +
// atan(-1/a), below tan(pi/8) atan(a): one quotient with the sign in it, the odd series
// on it, and a base of 0, 1 or 2 quarter turns.
// In two steps, the quotient and base, then the angle, for the double EP round.
struct AtanWideState {
    __m128d q, base;
};
template <Unit U>
BRENN_VEC AtanWideState AtanWideQuotient(__m128d a) {
    const __m128d one = Set<double>(1.0);
    const __m128d quarter = Set<double>(Quarter<double, U>::kHi);
    __m128d above = AsFloat(Gt(AsInt(a), AsInt(Set<double>(kTanThreeEighths))));
    __m128d over = AsFloat(Gt(AsInt(a), AsInt(Set<double>(kTanEighth))));
    // num = c*a - e and den = c + e*a, c = 0 above tan(3pi/8) and 1 below, e = 1 above
    // tan(pi/8) and 0 below: a/1, (a - 1)/(a + 1) or -1/a, the products by masks (exact).
    __m128d num = Sub(AndNot(above, a), And(over, one));
    __m128d den = Add(AndNot(above, one), And(over, a));
    __m128d base = Add(And(over, quarter), And(above, quarter));
    return {Div(num, den), base};
}
template <Unit U>
BRENN_VEC __m128d AtanWideAngle(AtanWideState s) {
    using S = AtanDouble5Set;
    __m128d q = s.q;
    // Double EP (radians, the only one in radians here) by Horner's rule: its rounds of
    // sixteen are bound by the operations, not the chain; the pi-scaled single rows keep
    // Estrin's scheme.
    __m128d z = Mul(q, q);
    __m128d l = Mul(q, Mul(z, U == Unit::Radian ? Horner(z, S::kP) : Estrin(z, S::kP)));
    if constexpr (U == Unit::Pi)
        return Add(s.base, Mul(Add(q, l), Set<double>(InvPi<double>::kHi)));
    else
        return Add(Add(s.base, q), l);
}
template <Unit U>
BRENN_VEC __m128d AtanWide(__m128d a) {
    return AtanWideAngle<U>(AtanWideQuotient<U>(a));
}

// Atan's folds on a = |x| (the pi-scaled double LA and HA): the lanes above tan(pi/8)
// and above tan(3pi/8), and the signed quotient's n and d as exact pairs, a/1,
// (a - 1)/(a + 1) or -1/a. The fast sums from -1 and 1 are exact across the fold (a - 1
// is exact above 1/2) and run on the fold's lanes only, the others on 0 (-1 and 1, no
// error; an infinity must not make inf - inf).
template <class V>
struct AtanFold {
    V over, above, nh, nl, dh, dl;
};
template <class V>
BRENN_VEC AtanFold<V> AtanFoldOf(V a) {
    using T = ElemOf<V>;
    const V one = Set<T>(T(1));
    AtanFold<V> f;
    f.over = AsFloat(Gt(AsInt(a), AsInt(Set<T>(T(kTanEighth)))));
    f.above = AsFloat(Gt(AsInt(a), AsInt(Set<T>(T(kTanThreeEighths)))));
    V af = And(AndNot(f.above, f.over), a);
    FastTwoSum(Neg(one), af, f.nh, f.nl);
    FastTwoSum(one, af, f.dh, f.dl);
    f.nh = IfThenElse(f.over, f.nh, a);
    f.dh = IfThenElse(f.above, a, f.dh);
    return f;
}

// Atan by the table (atan_tables.h), double (the one LA and HA kernel) and single HA: the
// row of a = |x| from its exponent and top k bits (the bits shifted down, less the first
// row's, held to [0, N + 1] by integer min and max: a NaN takes the top row and comes out
// of the quotient), u = ((a & mask) - c)/((1 & mask) + a c) by one division: a/1, the
// exact (a - c)/(1 + a c) or -1/a (an infinity gives -0, the angle pi/2), |u| <= 2^-5
// (2^-6 in single); then atan(a) = hi + u + (lo + u^3 P(u^2)). The quotient's rounding,
// 1.5 ulp of u at most, moves the result by |u|/atan(a) of it, below 1/12 (1/25 in
// single) of an ulp of the result. Double joins hi and u by the fast exact sum (hi is 0
// or above |u|); single adds u to the tail first and hi last, where the sum's rounding is
// again scaled by |u|/atan(a) (over every single input: 0.549 ulp at most).
// In two steps, the row and quotient, then the angle, for the rounds of sixteen.
template <class T>
struct AtanTableState {
    Vec<T> x, u, hi, lo;
};
// The double row of a >= 0, in the low word of each lane.
BRENN_VEC I64x2 AtanRowIndex(__m128d a) {
    I32x4 i = BitCast<I32x4>(ShiftRight<48>(AsInt(a)));
    i = Min(Max(Sub(i, Set<int32_t>((1023 - 10) * 16 - 1)), Zero<int32_t>()), Set<int32_t>(241));
    return BitCast<I64x2>(i);
}
BRENN_VEC void AtanRowOf(__m128d x, __m128d& mask, __m128d& c, __m128d& hi, __m128d& lo) {
    I64x2 i = AtanRowIndex(Abs(x));
    GatherPairs(atanRowsD, i, -1, mask, c, 0);
    GatherPairs(atanRowsD, i, -1, hi, lo, 2);
}
// The single rows' byte offsets, sixteen times the index: the scalar unit adds them as
// they are (no widening, no scaling).
BRENN_VEC I32x4 AtanRowOffsets(__m128 x) {
    I32x4 i = And(ShiftRight<14>(AsInt(x)), Set<int32_t>(0x1FFF0));
    return Min(Max(Sub(i, Set<int32_t>(((127 - 16) * 32 - 1) * 16)), Zero<int32_t>()),
               Set<int32_t>(705 * 16));
}
BRENN_VEC const float* AtanRowAt(int32_t offset) {
    return reinterpret_cast<const float*>(reinterpret_cast<const char*>(atanRowsS) +
                                          uint32_t(offset));
}
BRENN_VEC void AtanRowOf(__m128 x, __m128& mask, __m128& c, __m128& hi, __m128& lo) {
    LanePairs o = LanePairsOf(AtanRowOffsets(x)); // two moves to the scalar unit, not four
    LoadTransposed(AtanRowAt(int32_t(o.lower)), AtanRowAt(int32_t(o.lower >> 32)),
                   AtanRowAt(int32_t(o.upper)), AtanRowAt(int32_t(o.upper >> 32)), mask, c, hi, lo);
}
template <class V>
BRENN_VEC AtanTableState<ElemOf<V>> AtanTableQuotient(V x) {
    using T = ElemOf<V>;
    V a = Abs(x), mask, c;
    AtanTableState<T> s;
    AtanRowOf(x, mask, c, s.hi, s.lo);
    s.x = x;
    s.u = Div(Sub(And(a, mask), c), Add(And(mask, Set<T>(T(1))), Mul(a, c)));
    return s;
}
template <class T>
BRENN_VEC Vec<T> AtanTableAngle(const AtanTableState<T>& s) {
    using V = Vec<T>;
    V z = Mul(s.u, s.u);
    V t = Mul(Mul(s.u, z), Horner(z, AtanTableSeries<T>::kP));
    if constexpr (sizeof(T) == 4)
        return Or(Add(s.hi, Add(s.u, Add(s.lo, t))), SignBit(s.x));
    V y, e;
    FastTwoSum(s.hi, s.u, y, e);
    return Or(Add(y, Add(e, Add(s.lo, t))), SignBit(s.x));
}
template <class V>
BRENN_VEC V AtanByTable(V x) {
    return AtanTableAngle(AtanTableQuotient(x));
}
template <int N, class V>
BRENN_VEC void AtanTableRound(const V* x, V* y) {
    AtanTableState<ElemOf<V>> s[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        s[k] = AtanTableQuotient(x[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = AtanTableAngle(s[k]);
}

// Single Atan2 HA on Atan's table, four lanes a register: t = n/d (divps, n <= d the
// magnitudes), c = t with its significand cut to 5 bits (0 below the table, 2^-16), and
// atan(t) = atan(c) + atan(u) with u = tan(atan(t) - atan(c)) = (n - c d)/(d + c n), from
// n and d themselves, so that the rounding of t only moves c. c has 6 bits and d is cut
// at 12, so c dh and c dl are exact, n - c dh too (Sterbenz: c is within 2^-5 below t),
// and the numerator rounds once; with the denominator's two roundings and the
// division's, u is within 2^-22 of itself, which moves the angle by |u|/atan(t) (below
// 1/25) of it. Below the table u is the rounded t, and t^3/3 below 2^-33 of it. The base
// is AngleOf's, 0, 2 or 4 quarter turns (exact in single, its tail beside it), hi
// flipped or not joined to it by the fast exact sum, the rest (u and the tails, below
// 2^-5 of the result where the base is not 0) added to the sum's error. Lanes hold
// magnitudes in [2^-50, 2^50) (kRangeHA), so that t is at least 2^-100 and the products
// that matter stay out of the denormals.
// In three steps, the quotient t, the reduced quotient u, the angle, so that a round of
// sixteen takes each over its four registers before the next (Atan2Body::EvalWide).
struct Atan2SingleState {
    __m128 a, b, n, d, swap, below, t, u, hi, lo;
};
BRENN_VEC void Atan2SingleQuotient(__m128 a, __m128 b, __m128 special, Atan2SingleState& s) {
    const auto [n, d, swap, below] = MagnitudesOf(a, b, special);
    s.a = a, s.b = b, s.n = n, s.d = d, s.swap = swap, s.below = below;
    s.t = Div(n, d);
}
BRENN_VEC void Atan2SingleReduced(Atan2SingleState& s) {
    __m128 n = s.n, d = s.d;
    I32x4 i = AtanRowOffsets(s.t);
    // The offsets to the scalar unit as two words (movq, pextrq), not four extractions.
    LanePairs o = LanePairsOf(i);
    LoadTransposed(AtanRowAt(int32_t(o.lower)) + 2, AtanRowAt(int32_t(o.lower >> 32)) + 2,
                   AtanRowAt(int32_t(o.upper)) + 2, AtanRowAt(int32_t(o.upper >> 32)) + 2, s.hi,
                   s.lo);
    __m128 below = AsFloat(Eq(i, Zero<int32_t>()));
    __m128 c = AndNot(below, And(s.t, AsFloat(Set<uint32_t>(0xFFFC0000u))));
    __m128 dh = And(d, AsFloat(Set<uint32_t>(0xFFFFF000u)));
    __m128 num = Sub(Sub(n, Mul(c, dh)), Mul(c, Sub(d, dh)));
    s.u = Div(num, Add(d, Mul(c, n)));
}
BRENN_VEC __m128 Atan2SingleAngle(const Atan2SingleState& s) {
    using Q = Quarter<float, Unit::Radian>;
    __m128 u = s.u;
    __m128 v = Add(u, Add(s.lo, Mul(Mul(u, Mul(u, u)), Set<float>(AtanTableSeries<float>::kP[0]))));
    __m128 flip = Xor(And(s.swap, SignMask<float>()), SignBit(s.b));
    __m128 k = IfThenElse(s.swap, Set<float>(2), And(s.below, Set<float>(4)));
    __m128 y, e;
    FastTwoSum(Mul(k, Set<float>(Q::kHi)), Xor(s.hi, flip), y, e);
    return Or(Add(y, Add(e, Add(Mul(k, Set<float>(kQuarterTailS)), Xor(v, flip)))), SignBit(s.a));
}
BRENN_VEC __m128 Atan2SingleHA(__m128 a, __m128 b, __m128 special) {
    Atan2SingleState s;
    Atan2SingleQuotient(a, b, special, s);
    Atan2SingleReduced(s);
    return Atan2SingleAngle(s);
}

// Double Atan2 HA (the row's own) on Atan's table, the single steps' form in double: t =
// n/d, c = t with its significand cut to 4 bits, atan(t) = atan(c) + atan(u) with u =
// (n - c d)/(d + c n), c d as two exact products (d cut at 27 bits, c of 5), the
// numerator rounded once (n - c dh is exact: c is within 2^-4 below t). atan(c) is the
// row's hi + lo from 2^-10 on, c + c^3 (p0 + p1 c^2) below (the first two terms of the
// series of u, within 2^-62 of it there), so that no rounded quotient is the angle. u is
// within 2^-51 of itself, which moves the angle by |u|/atan(t) (below 1/12) of it; the
// base of 0, 2 or 4 quarter turns is joined to hi by the fast exact sum, the rest (u and
// the tails) to its error. In three steps, the quotient, the reduced quotient, the
// angle, for the rounds of sixteen (Atan2Body::EvalWide). Lanes hold magnitudes in
// [2^-500, 2^500), the special ones 1.
struct Atan2DoubleState {
    __m128d a, b, n, d, swap, t, u, hi, lo;
};
BRENN_VEC void Atan2DoubleQuotient(__m128d a, __m128d b, __m128d special, Atan2DoubleState& s) {
    const __m128d one = Set<double>(1.0);
    a = IfThenElse(special, one, a);
    b = IfThenElse(special, one, b);
    __m128d ay = Abs(a), ax = Abs(b);
    s.swap = AsFloat(Gt(AsInt(ay), AsInt(ax)));
    s.a = a, s.b = b;
    s.n = IfThenElse(s.swap, ax, ay);
    s.d = IfThenElse(s.swap, ay, ax);
    s.t = Div(s.n, s.d);
}
BRENN_VEC void Atan2DoubleReduced(Atan2DoubleState& s) {
    using P = AtanTableSeries<double>;
    __m128d n = s.n, d = s.d;
    I64x2 i = AtanRowIndex(s.t);
    GatherPairs(atanRowsD, i, -1, s.hi, s.lo, 2);
    __m128d c = And(s.t, AsFloat(Set<uint64_t>(0xFFFF000000000000ull)));
    __m128d below = AsFloat(Eq(i, Zero<uint64_t>()));
    __m128d z = Mul(c, c);
    __m128d cl = Mul(Mul(c, z), Add(Mul(z, Set<double>(P::kP[1])), Set<double>(P::kP[0])));
    s.hi = IfThenElse(below, c, s.hi);
    s.lo = IfThenElse(below, cl, s.lo);
    __m128d dh = And(d, AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull)));
    __m128d num = Sub(Sub(n, Mul(c, dh)), Mul(c, Sub(d, dh)));
    s.u = Div(num, Add(d, Mul(c, n)));
}
BRENN_VEC __m128d Atan2DoubleAngle(const Atan2DoubleState& s) {
    using Q = Quarter<double, Unit::Radian>;
    __m128d u = s.u, z = Mul(u, u);
    __m128d v = Add(u, Add(s.lo, Mul(Mul(u, z), Horner(z, AtanTableSeries<double>::kP))));
    __m128d flip = Xor(And(s.swap, SignMask<double>()), SignBit(s.b));
    __m128d k = IfThenElse(s.swap, Set<double>(2), IfThenElse(s.b, Set<double>(4), Zero<double>()));
    __m128d y, e;
    FastTwoSum(Mul(k, Set<double>(Q::kHi)), Xor(s.hi, flip), y, e);
    return Or(Add(y, Add(e, Add(Mul(k, Set<double>(Q::kLo)), Xor(v, flip)))), SignBit(s.a));
}
BRENN_VEC __m128d Atan2DoubleHA(__m128d a, __m128d b, __m128d special) {
    Atan2DoubleState s;
    Atan2DoubleQuotient(a, b, special, s);
    Atan2DoubleReduced(s);
    return Atan2DoubleAngle(s);
}

// The double steps on four single lanes, widened, with the short series.
template <Unit U>
BRENN_VEC __m128 InDouble(__m128 a, __m128 b) {
    return Narrow(AngleOf<U, AtanDouble5Set, false, true>(WidenLower(a), WidenLower(b)),
                  AngleOf<U, AtanDouble5Set, false, true>(WidenUpper(a), WidenUpper(b)));
}

template <Unit U, Level L>
BRENN_VEC __m128 AtanOf(__m128 x) {
    if constexpr (kInSingle<U, L>) {
        return AtanSingle<U, L>(x);
    } else if constexpr (U == Unit::Radian) {
        return AtanByTable(x);
    } else {
        __m128 a = Abs(x);
        return Or(Narrow(AtanWide<U>(WidenLower(a)), AtanWide<U>(WidenUpper(a))), SignBit(x));
    }
}
// Double Atanpi LA and HA, compensated, on a = |x| with AtanWide's one signed quotient
// (AtanFoldOf) and the base of 0, 1 or 2 quarter turns; no swap, no flip. The residual is
// AngleOf's with b = 1; the sign goes back on at the end. In three steps, so that a round
// can take each over all its registers before the next (AtanUnitRound): the quotient,
// its series and correction, the angle.
struct AtanUnitState {
    __m128d x, k, nh, nl, dh, dl, q, l;
};
BRENN_VEC void AtanQuotient(__m128d x, AtanUnitState& s) {
    const auto [over, above, nh, nl, dh, dl] = AtanFoldOf(Abs(x));
    s.x = x;
    s.k = IfThenElse(above, Set<double>(2), And(over, Set<double>(1.0)));
    s.nh = nh, s.nl = nl, s.dh = dh, s.dl = dl;
    s.q = Div(nh, dh);
}
BRENN_VEC void AtanTail(AtanUnitState& s) {
    __m128d q = s.q;
    __m128d l = AtanDouble11::Tail(Mul(q, q), q);
    // nh - q*dh by halves cut at 26 bits (AngleOf); d above 2^100 only with q below
    // 2^-100, where the correction is nothing to the result.
    const __m128d cut = AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull));
    __m128d dm = AtMost(s.dh, 0x1p100);
    __m128d qh = And(q, cut), dmh = And(dm, cut);
    __m128d r = Sub(Sub(s.nh, Mul(qh, dmh)), Mul(Sub(q, qh), dmh));
    r = Add(Sub(r, Mul(q, Sub(dm, dmh))), Sub(s.nl, Mul(q, s.dl)));
    s.l = Add(l, Mul(r, WidenLower(ApproxRecip(Narrow(dm, dm)))));
}
template <Unit U>
BRENN_VEC __m128d AtanAngle(const AtanUnitState& s) {
    return Or(Finish<U, true>(s.k, s.q, s.l), SignBit(s.x));
}
template <Unit U>
BRENN_VEC __m128d AtanUnit(__m128d x) {
    AtanUnitState s;
    AtanQuotient(x, s);
    AtanTail(s);
    return AtanAngle<U>(s);
}
// A round's registers step by step: the divisions issue together and the chains of the
// series overlap (one register at a time, each chain ran on its own).
// Double EP the same way, in two steps.
template <Unit U, int N>
BRENN_VEC void AtanWideRound(const __m128d* x, __m128d* y) {
    AtanWideState s[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        s[k] = AtanWideQuotient<U>(Abs(x[k]));
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = Or(AtanWideAngle<U>(s[k]), SignBit(x[k]));
}
template <Unit U, int N>
BRENN_VEC void AtanUnitRound(const __m128d* x, __m128d* y) {
    AtanUnitState s[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        AtanQuotient(x[k], s[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        AtanTail(s[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = AtanAngle<U>(s[k]);
}
template <Unit U, Level L>
BRENN_VEC __m128d AtanOf(__m128d x) {
    if constexpr (L == Level::EP)
        return Or(AtanWide<U>(Abs(x)), SignBit(x));
    else if constexpr (U == Unit::Radian)
        return AtanByTable(x);
    else
        return AtanUnit<U>(x);
}
// Fast: single HA in single arithmetic (the row's kernel); without it the double steps
// (the phase of the complex Arg, whose HA keeps their 0.50 ulp).
// The special lanes: quiet NaN in the single bodies, 1 elsewhere.
template <Unit U, Level L, bool Fast = false>
BRENN_VEC __m128 Atan2Of(__m128 a, __m128 b, __m128 special) {
    const __m128 one = Set<float>(1.0f);
    if constexpr (kInSingle<U, L>)
        return Atan2Single<U, L>(a, b, special);
    else if constexpr (U == Unit::Radian && Fast)
        return Atan2SingleHA(a, b, special);
    else
        return InDouble<U>(IfThenElse(special, one, a), IfThenElse(special, one, b));
}
template <Unit U, Level L, bool Fast = false>
BRENN_VEC __m128d Atan2Of(__m128d a, __m128d b, __m128d special) {
    const __m128d one = Set<double>(1.0);
    // The row's own EP kernel takes the five terms by Horner's rule (fewer operations;
    // the complex Arg and Ln keep Estrin's scheme).
    // LA takes HA's table steps too: the double steps it had were slower than them.
    if constexpr (Fast && L != Level::EP && U == Unit::Radian) return Atan2DoubleHA(a, b, special);
    using S = std::conditional_t<Fast && L == Level::EP && U == Unit::Radian,
                                 DoubleSeriesHorner<AtanDouble5Set>, DoubleSeriesOf<L>>;
    return AngleOf<U, S, L == Level::HA || U == Unit::Pi>(IfThenElse(special, one, a),
                                                          IfThenElse(special, one, b));
}

// The vector range of Atan2's magnitudes: [2^-125, 2^123] in single, by the whole bits,
// [2^-500, 2^500) in double, by the high words.
template <class T>
constexpr LaneRange<T> kRange = {Format<float>::kAbs, 0x7F000000, 0xFC000000};
template <>
constexpr Range32 kRange<double> = {0x7FFFFFFF, 0x5F500000, 0xBE7FFFFF};
// Single Atan2 HA in single arithmetic: [2^-50, 2^50).
constexpr Range32 kRangeHA = {Format<float>::kAbs, 0x59800000, 0xB1FFFFFF};
template <class T, Level L, Unit U, bool Fast>
constexpr auto kRangeOf = kRange<T>;
// The single test with its limit kept from the optimiser, which would compare the
// offset bits with the limit plus one by a minimum and an equality (three instructions,
// not one); the double test as it stands.
BRENN_VEC __m128 HeldRangeTest(__m128 x, Range32 w) {
    I32x4 bits = Add(And(AsInt(x), Set<uint32_t>(w.mask)), Set<uint32_t>(w.offset));
    return AsFloat(Gt(bits, Opaque(Set<uint32_t>(w.limit))));
}
BRENN_VEC __m128d HeldRangeTest(__m128d x, Range32 w) {
    return RangeTest(x, w);
}
template <>
constexpr auto kRangeOf<float, Level::HA, Unit::Radian, true> = kRangeHA;

// Atan2's special values (C99 Annex F) in the unit's half turn, and the other pairs by
// the compensated double steps: single pairs as they are, double ones scaled by a
// common power of two unless the quotient is so small that it is the result.
template <Unit U, class T>
int Atan2Scalar(const T* pa, const T* pb, T* y) {
    T a = *pa, b = *pb;
    if (__builtin_isnan(a) || __builtin_isnan(b)) {
        // a's NaN where a is one, else b's, quieted, and the invalid flag for a signalling
        // one: what a + b gives with a as the first operand, whichever order the compiler
        // puts the operands of a + b in.
        if (__builtin_isnan(a)) {
            *y = a + a;
            Keep(Keep(b) + Keep(T(0)));
        } else {
            *y = b + b;
        }
        return status::kNone;
    }
    constexpr double kHalf = U == Unit::Pi ? 1.0 : 3.141592653589793;
    double r;
    if (__builtin_isinf(a) && __builtin_isinf(b)) {
        r = b > 0 ? 0.25 * kHalf : 0.75 * kHalf;
    } else if (a == 0) {
        r = std::signbit(b) ? kHalf : 0.0;
    } else if (__builtin_isinf(b)) {
        r = b > 0 ? 0.0 : kHalf;
    } else if (b == 0 || __builtin_isinf(a)) {
        r = 0.5 * kHalf;
    } else {
        double da = a, db = b;
        if constexpr (sizeof(T) == 8) {
            int ea = std::ilogb(da), eb = std::ilogb(db);
            if (eb - ea > 60 && db > 0) {
                // atan(t) = t (1 - t^2/3 ...) with t below 2^-59: the quotient is the
                // angle. In radians it is rounded once (also where it is denormal); in
                // half-turns it is taken at b's scale, where it is normal, and scaled back.
                if constexpr (U == Unit::Radian) {
                    *y = da / db;
                } else {
                    double n = std::scalbn(da, eb - ea);
                    double q = n / db;
                    double ql = std::fma(-q, db, n) / db;
                    double p = q * InvPi<double>::kHi;
                    double pl = std::fma(q, InvPi<double>::kHi, -p) +
                                (ql * InvPi<double>::kHi + q * InvPi<double>::kLo);
                    *y = std::scalbn(p + pl, ea - eb);
                }
                return status::kNone;
            }
            // One power of two for both, the larger near 1; a part below 2^-60 of the
            // other is lost in the result and becomes a zero of its sign.
            int e = ea > eb ? ea : eb;
            da = ea - eb < -60 ? std::copysign(0.0, da) : std::scalbn(da, -e);
            db = eb - ea < -60 ? std::copysign(0.0, db) : std::scalbn(db, -e);
        }
        __m128d p = AngleOf<U, AtanDouble11, true>(Set<double>(da), Set<double>(db));
        *y = T(GetLane(p)); // narrowed once, as the vector path does
        return status::kNone;
    }
    *y = T(std::copysign(r, double(a)));
    return status::kNone;
}

template <class Tp, Level L, Unit U>
struct AtanBody {
    using T = Tp;
    using V = Vec<T>;
    static BRENN_VEC V Eval(V x, V& special) {
        special = Zero<T>(); // no lane leaves the vector path
        return AtanOf<U, L>(x);
    }
    // Double rounds of sixteen, step by step through the round's eight registers
    // (AtanUnitRound, AtanWideRound, AtanTableRound), and single HA's through its four.
    static constexpr bool kTable =
        U == Unit::Radian && L != Level::EP && (sizeof(T) == 8 || L == Level::HA);
    static constexpr bool kSingleRound = sizeof(T) == 4 && U == Unit::Radian && L == Level::LA;
    static constexpr int kRound = sizeof(T) == 8 || kTable || kSingleRound ? 16 : 8;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 4 && kTable) {
            AtanTableRound<4>(x, y);
            return 0;
        } else if constexpr (kSingleRound) {
            AtanSingleRound<U, L, 4>(x, y);
            return 0;
        } else if constexpr (sizeof(T) == 8) {
            if constexpr (L == Level::EP)
                AtanWideRound<U, 8>(x, y);
            else if constexpr (U == Unit::Radian)
                AtanTableRound<8>(x, y);
            else
                AtanUnitRound<U, 8>(x, y);
            return 0;
        } else {
            return EvalByRegister<AtanBody>(x, y);
        }
    }
};

template <class Tp, Level L, Unit U, bool Fast = false>
struct Atan2Body {
    using T = Tp;
    using V = Vec<T>;
    static BRENN_VEC V Eval(V a, V b, V& special) {
        special = Or(HeldRangeTest(a, kRangeOf<T, L, U, Fast>),
                     HeldRangeTest(b, kRangeOf<T, L, U, Fast>));
        return Atan2Of<U, L, Fast>(a, b, special);
    }
    static int Scalar(const T* a, const T* b, T* y) {
        return Atan2Scalar<U, T>(a, b, y);
    }
    // HA (the row's own), and double LA on HA's steps: rounds of sixteen, each of the
    // three steps over the round's registers before the next.
    static constexpr bool kWide =
        U == Unit::Radian && Fast && (L == Level::HA || (L == Level::LA && sizeof(T) == 8));
    static constexpr int kRound = kWide ? 16 : 8;
    using WideState = std::conditional_t<sizeof(T) == 4, Atan2SingleState, Atan2DoubleState>;
    template <bool Test>
    static BRENN_VEC int WideSteps(const V* a, const V* b, V* y) {
        constexpr int N = 16 / kLanes<T>;
        WideState s[N];
        int bits = 0;
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            V special = Zero<T>();
            if constexpr (Test) {
                special = Or(HeldRangeTest(a[k], kRangeOf<T, L, U, Fast>),
                             HeldRangeTest(b[k], kRangeOf<T, L, U, Fast>));
                bits |= MaskBits(special) << (kLanes<T> * k);
            }
            if constexpr (sizeof(T) == 4)
                Atan2SingleQuotient(a[k], b[k], special, s[k]);
            else
                Atan2DoubleQuotient(a[k], b[k], special, s[k]);
        }
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            if constexpr (sizeof(T) == 4)
                Atan2SingleReduced(s[k]);
            else
                Atan2DoubleReduced(s[k]);
        }
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            if constexpr (sizeof(T) == 4)
                y[k] = Atan2SingleAngle(s[k]);
            else
                y[k] = Atan2DoubleAngle(s[k]);
        }
        return bits;
    }
    // The range test once a round: the offset bits of every a and b (the high words in
    // double, the low words held below any limit) folded by signed maxima and compared
    // once (the test is a signed compare of each); a round without a special lane runs
    // the steps with no mask (no test, no quieting or blending a register), the others
    // test register by register.
    static int EvalWide(const V* a, const V* b, V* y)
        requires kWide
    {
        constexpr Range32 w = kRangeOf<T, L, U, Fast>;
        constexpr int N = 16 / kLanes<T>;
        const bool single = sizeof(T) == 4;
        const I32x4 mask = single ? Set<uint32_t>(w.mask)
                                  : BitCast<I32x4>(Set<uint64_t>(uint64_t(w.mask) << 32));
        const I32x4 offset = single ? Set<uint32_t>(w.offset)
                                    : BitCast<I32x4>(Set<uint64_t>(uint64_t(w.offset) << 32));
        I32x4 fold = Set<int32_t>(INT32_MIN);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            for (V v : {a[k], b[k]})
                fold = Max(fold, Add(And(BitCast<I32x4>(v), mask), offset));
        const I32x4 limit =
            single ? Set<uint32_t>(w.limit)
                   : BitCast<I32x4>(Set<uint64_t>((uint64_t(w.limit) << 32) | 0x7FFFFFFFu));
        if (__builtin_expect(MaskBits(Gt(fold, limit)) == 0, 1)) return WideSteps<false>(a, b, y);
        return WideSteps<true>(a, b, y);
    }

    // Double: N pairs of registers, each step of the angle over all of them before the
    // next (the same arithmetic as Eval's, register by register).
    static constexpr bool kComp = L == Level::HA || U == Unit::Pi;
    struct Steps {
        V special;
        AngleState s;
    };
    static BRENN_VEC void Start(V a, V b, Steps& t) {
        t.special = Or(RangeTest(a, kRangeOf<T, L, U, Fast>), RangeTest(b, kRangeOf<T, L, U, Fast>));
        const V one = Set<T>(1);
        AngleQuotient<kComp>(IfThenElse(t.special, one, a), IfThenElse(t.special, one, b), t.s);
    }
    static BRENN_VEC void Middle(Steps& t) { AngleTail<DoubleSeriesOf<L>, kComp, false, true>(t.s); }
    static BRENN_VEC V End(const Steps& t) { return AngleFinish<U, kComp, false>(t.s); }
};

template <class T, Level L>
using AtanRadian = AtanBody<T, L, Unit::Radian>;
template <class T, Level L>
using AtanpiBody = AtanBody<T, L, Unit::Pi>;
template <class T, Level L>
using Atan2Radian = Atan2Body<T, L, Unit::Radian, true>;
template <class T, Level L>
using Atan2piBody = Atan2Body<T, L, Unit::Pi>;

} // namespace brenn::vm::invtrig

#endif
