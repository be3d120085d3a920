/* Sqrt of single (c) and double (z) complex vectors: the principal root, with the cut
 * along the negative reals, where the sign of a zero imaginary part picks the side
 * (sqrt(-4 +- 0i) = 0 +- 2i). Nothing is reported.
 *
 * With t = sqrt((|x| + |z|)/2): x >= 0 gives t + i y/(2t); x < 0 gives |y|/(2t) + i t
 * with t taking y's sign. No step cancels.
 * Double, one kernel for all levels: |z|^2 in two parts (the squares' errors from the
 * halves by the mask, to 2^-77 of them; the head the rounded sum of the rounded squares,
 * not renormalised, so that its root starts after two products and an addition), |z|
 * from its rounded root and the residual (to 2^-77 of |z|^2), |x| + |z| summed exactly,
 * t from the rounded root of the half and its residual, and y/(2t) from the reciprocal of t's head with one
 * correction by the exact residual, so that each part is rounded about once. Lanes
 * whose larger part lies outside [2^-450, 2^500] (both parts zero among them) and
 * non-finite lanes go to the scalar routine.
 * Single (one kernel for LA and EP, one for HA, the same arithmetic): the steps in double
 * on widened lanes, where the squares are exact and nothing overflows, rounded once to
 * single; zeros and non-finite lanes go to the scalar routine.
 *
 * The scalar routine: the special values of C99 Annex G for csqrt (an infinite imaginary
 * part gives +inf + i y; -inf + iy gives 0 + i inf, +inf + iy gives inf + 0i with y's
 * sign, NaNs pass), zeros give +0 + i y, and finite elements the same steps in extended
 * precision. */
#include <math.h>

#include "vecmath/complex/cframe.h"
#include "vecmath/complex/exact.h"

namespace brenn::vm::cx {
namespace {

template <class E>
int SqrtScalar(const E* z, const E*, E* y) {
    using R = decltype(z->re);
    const double a = z->re, b = z->im, inf = __builtin_inf();
    double re, im;
    if (__builtin_isinf(b)) {
        re = inf, im = b;
    } else if (__builtin_isinf(a) && a < 0) {
        re = __builtin_isnan(b) ? b + b : 0.0;
        im = __builtin_copysign(inf, b);
    } else if (__builtin_isinf(a)) {
        re = a;
        im = __builtin_isnan(b) ? b + b : __builtin_copysign(0.0, b);
    } else if (__builtin_isnan(a) || __builtin_isnan(b)) {
        re = im = a + b;
    } else if (a == 0 && b == 0) {
        re = 0, im = b;
    } else {
        long double x = a, w = b;
        long double m = sqrtl(x * x + w * w);
        long double t = sqrtl((fabsl(x) + m) * 0.5L);
        long double q = w / (2 * t);
        re = double(a >= 0 ? t : fabsl(q));
        im = double(a >= 0 ? q : copysignl(t, w));
    }
    y->re = R(re);
    y->im = R(im);
    return status::kNone;
}

// The root's parts from t = sqrt((|x| + |z|)/2) and q = y/(2t), by the sign bit of x.
template <class V>
BRENN_VEC void Place(V x, V y, V t, V q, Cx<ElemOf<V>>& r) {
    r.re = IfThenElse(x, Abs(q), t);
    r.im = IfThenElse(x, Or(t, SignBit(y)), q);
}

// The double steps of one group, in three stretches that end at a root: |z| = mh + ml
// from the squares, t's head from v = (|x| + |z|)/2, and the parts from t's reciprocal.
// A round of six groups takes each stretch over all of them before the next (EvalGroups),
// so that the roots and divisions of the groups issue together (rounds of four measured
// 2 to 3 % slower, of two 25 %).
struct SqrtState {
    __m128d special, x, w, sh, sl, mh, vh, vl, th;
};

constexpr int32_t kLo = 0x23D00000, kHi = 0x5F2FFFFF; // 2^-450, 2^500

// Whether a larger part of N groups lies outside the window: the verdicts of their high
// words gathered by one OR, one mask extraction for the round.
template <int N>
BRENN_VEC bool AnyLargerOutside(const Cx<double>* z) {
    I32x4 o = LargerHighWordOutside<kLo, kHi>(z[0].re, z[0].im);
#pragma GCC unroll 8
    for (int g = 1; g < N; ++g)
        o = Or(o, LargerHighWordOutside<kLo, kHi>(z[g].re, z[g].im));
    return (MaskBits(o) & 0xA) != 0;
}

// Test: the lanes outside the window taken as 1 + 0i (their results discarded); without
// it, a round known to lie inside, the parts as they are.
template <bool Test = true>
BRENN_VEC void SqrtSquares(const Cx<double>& z, SqrtState& s) {
    if constexpr (Test) {
        s.special = HighWordsToLanes(LargerHighWordOutside<kLo, kHi>(z.re, z.im));
        s.x = IfThenElse(s.special, Set<double>(1), z.re);
        s.w = IfThenZeroElse(s.special, z.im);
    } else {
        s.x = z.re;
        s.w = z.im;
    }
    RawSumOfSquaresNear(SplitByMask(s.x), SplitByMask(s.w), s.sh, s.sl);
    s.mh = Sqrt(s.sh);
}

// 0.5/m to 2^-12 for m in the window's range: the reciprocal from the bits (one integer
// subtraction, within 12.4 %) and two Newton steps (1.5 %, then 2^-12.1), halved.
constexpr uint64_t kRecipBits = 0x7FDE623822FC16E6ull;
BRENN_VEC __m128d HalfRecip(__m128d m) {
    const __m128d two = Set<double>(2);
    __m128d v = AsFloat(Sub(Set<uint64_t>(kRecipBits), AsInt(m)));
    v = Mul(v, Sub(two, Mul(m, v)));
    v = Mul(v, Sub(two, Mul(m, v)));
    return Mul(v, Set<double>(0.5));
}

BRENN_VEC void SqrtHalf(SqrtState& s) {
    const __m128d half = Set<double>(0.5);
    // |z|'s tail: the residual over 2 mh, at most an ulp or so of mh, so that the
    // reciprocal's 2^-12 moves it by 2^-12 of an ulp of |z| at most (the divider is left
    // to the roots and t's reciprocal)
    __m128d ml = Mul(Add(RootResidual(s.sh, SplitByMask(s.mh)), s.sl), HalfRecip(s.mh));
    // v = (|x| + |z|)/2 = vh + vl
    TwoSum(Abs(s.x), s.mh, s.vh, s.vl);
    s.vh = Mul(s.vh, half);
    s.vl = Mul(Add(s.vl, ml), half);
    s.th = Sqrt(s.vh);
}

BRENN_VEC void SqrtParts(const SqrtState& s, Cx<double>& y) {
    const __m128d half = Set<double>(0.5);
    // t = th + tl, and its reciprocal
    __m128d th = s.th;
    __m128d inv = Div(Set<double>(1), th);
    auto ht = SplitByMask(th);
    __m128d tl = Mul(Mul(Add(RootResidual(s.vh, ht), s.vl), half), inv);
    // q = (w/2)/t, corrected by the residual w/2 - q th, taken from both halves by the
    // mask as (w/2 - qh thh) - ql th - qh thl: qh thh is exact and within 2^-24 of w/2, so
    // the first difference is exact, and the rest, about 2^-25 w/2, is rounded three
    // times (within 2^-77 of w/2)
    __m128d w2 = Mul(s.w, half);
    __m128d q = Mul(w2, inv);
    auto hq = SplitByMask(q);
    __m128d res =
        Sub(Sub(Sub(w2, Mul(hq.hi, ht.hi)), Mul(hq.lo, th)), Mul(hq.hi, ht.lo));
    q = Add(q, Mul(Sub(res, Mul(q, tl)), inv));
    q = Xor(Abs(q), SignBit(s.w)); // y's sign, also where q is a zero

    Place(s.x, s.w, Add(th, tl), q, y);
}

struct SqrtZ : ExtendedScalarBody<double, BrennComplex16, BrennComplex16, SqrtScalar> {
    static constexpr int kGroups = 6;
    BRENN_VEC static int Eval(const Cx<double>* z, const Cx<double>*, Cx<double>& y) {
        SqrtState s;
        SqrtSquares(*z, s);
        SqrtHalf(s);
        SqrtParts(s, y);
        return MaskBits(s.special);
    }
    // The round's window tested once: where every larger part lies inside, no lane is
    // blended and no group's verdict is gathered.
    template <bool Test>
    BRENN_VEC static int Steps(const Cx<double>* z, Cx<double>* y) {
        return StepGroups<SqrtState, kGroups>(
            z, y,
            [](const Cx<double>& x, SqrtState& s) BRENN_STEP {
                SqrtSquares<Test>(x, s);
                if constexpr (Test) return MaskBits(s.special);
                return 0;
            },
            [](const SqrtState& s, Cx<double>& r) BRENN_STEP { SqrtParts(s, r); },
            [](SqrtState& s) BRENN_STEP { SqrtHalf(s); });
    }
    BRENN_VEC static int EvalGroups(const Cx<double>* z, const Cx<double>*, Cx<double>* y) {
        if (__builtin_expect(!AnyLargerOutside<kGroups>(z), 1)) return Steps<false>(z, y);
        return Steps<true>(z, y);
    }
};

struct SqrtC : ExtendedScalarBody<float, BrennComplex8, BrennComplex8, SqrtScalar> {
    static void Half(__m128d x, __m128d w, __m128d& t, __m128d& q) {
        __m128d m = Sqrt(Add(Mul(x, x), Mul(w, w)));
        t = Sqrt(Mul(Add(Abs(x), m), Set<double>(0.5)));
        q = Div(w, Add(t, t));
    }
    static int Eval(const Cx<float>* z, const Cx<float>*, Cx<float>& y) {
        // both parts zero, or either not finite
        const I32x4 inf = Set<int32_t>(0x7F800000);
        I32x4 ar = AsInt(Abs(z->re)), ai = AsInt(Abs(z->im));
        I32x4 o =
            Or(Eq(Or(ar, ai), Set<int32_t>(0)), Or(Eq(And(ar, inf), inf), Eq(And(ai, inf), inf)));
        __m128 special = AsFloat(o);
        __m128 x = IfThenElse(special, Set<float>(1), z->re);
        __m128 w = IfThenZeroElse(special, z->im);
        __m128d t0, q0, t1, q1;
        Half(WidenLower(x), WidenLower(w), t0, q0);
        Half(WidenUpper(x), WidenUpper(w), t1, q1);
        Place(x, w, Narrow(t0, t1), Narrow(q0, q1), y);
        return MaskBits(special);
    }
};

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

extern "C" {
ZAR_COMPLEX_KERNEL(z, Sqrt, All, Unary, SqrtZ)
ZAR_COMPLEX_KERNEL(c, Sqrt, LaEp, Unary, SqrtC)
ZAR_COMPLEX_KERNEL(c, Sqrt, HA, Unary, SqrtC)
}
