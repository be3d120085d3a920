/* Atanh and the trigonometric Atan of single (c) and double (z) complex vectors, one
 * kernel for every level.
 *
 * atanh(x + iy), from ln((1 + z)/(1 - z))/2 taken apart:
 *   real part       sign(x) log1p(4|x| / ((1 - |x|)^2 + y^2)) / 4
 *   imaginary part  atan2(2y, (1 - |x|)(1 + |x|) - y^2) / 2
 * atan z = -i atanh(iz): atanh of -y + ix, its parts turned.
 *
 * In the SSE unit first, two elements a register (double_words.h), each part as an
 * unevaluated sum of doubles with an error bound, rounded there where the bound decides
 * the rounding; the other elements go to the extended routine below. 1 - |x| and 1 + |x|
 * are exact in two words each, the squares exact (Dekker), so that
 *   D = (1 - |x|)^2 + y^2 (no cancellation) is within 2^-105 in two words, and
 *     Q = 4|x|/D too (the rounded quotient's remainder by Dekker's product); U = 1 + Q
 *     exactly in two words, and log1p Q = LnWords of U's reduction and its second word
 *     over U: the bound 2^-58 |r| + 2^-70 (2^-104 where the rows' rests vanish) + 2^-100
 *     of the part, as in Log10;
 *   N = (1 - |x|)(1 + |x|) - y^2 is within 2^-104 of the larger of |N| and 2|y| (where N
 *     cancels, y^2 is below 2|y|), which moves the angle by no more than 2^-103 of it;
 *     PhaseQuotient and PhaseFinish of 2y and N's two words, within 2^-62.2: the bound 2^-61 of the part.
 * Parts with magnitudes in [2^-250, 2^249) keep every square, quotient and product
 * normal and finite (N below 2^499, 2^-750 < Q < 2^503); the others, zeros, infinities
 * and NaNs go to the extended routine. Single elements take the same formulas on their
 * parts widened, in plain double (AtanhC below).
 *
 * The extended routine, element by element in 80-bit extended precision (extended.h):
 * 1 - |x| is exact for the element's parts, the squares of double parts neither
 * overflow nor underflow in the extended range, and log1p keeps the real part's
 * relative accuracy where it is small. The cuts lie on the real axis beyond +-1,
 * where the sign of a zero imaginary part picks +-pi/2. atan z through the turn of
 * extended.h.
 *
 * Special values follow C99 Annex G (catanh G.6.2.3): +-1 + i0 gives +-inf + i0
 * with the divide-by-zero flag and the singularity status 2 (Atanh's status, as
 * the real kernel's at +-1; Atan's row never reports, and atan(+-i) gives its
 * infinity silently); an infinite part gives +-0 + i pi/2 with the signs of the
 * parts; NaNs spread, except beside an infinite part and for a zero real part,
 * which stays. */
#include <math.h>

#include "vecmath/complex/double_words.h"
#include "vecmath/complex/ext_core.h"
#include "vecmath/complex/ext_phase.h"
#include "vecmath/complex/extended.h"

namespace brenn::vm::cx {
namespace {

constexpr LD kPiOver2 = 1.57079632679489661923132169163975144L;

[[gnu::always_inline]] inline int AtanhOf(LD x, LD y, LD& re, LD& im) {
    if (__builtin_isnan(x) || __builtin_isnan(y)) {
        if (__builtin_isinf(x)) {
            re = __builtin_copysignl(0, x);
            im = y + y;
        } else if (__builtin_isinf(y)) { // +-0 + i pi/2, the real zero's sign free
            re = __builtin_copysignl(0, x);
            im = __builtin_copysignl(kPiOver2, y);
        } else {
            re = x == 0 ? x : x + y;
            im = x + y;
        }
    } else if (__builtin_isinf(x) || __builtin_isinf(y)) {
        re = __builtin_copysignl(0, x);
        im = __builtin_copysignl(kPiOver2, y);
    } else {
        const LD ax = fabsl(x), d = 1 - ax;
        if (d == 0 && y == 0) {
            re = __builtin_copysignl(1, x) / Keep(0.0L);
            im = y;
            return status::kSingularity;
        }
        re = __builtin_copysignl(0.25L * Log1pX(4 * ax / (d * d + y * y)), x);
        im = 0.5L * Phase(2 * y, d * (1 + ax) - y * y);
    }
    return status::kNone;
}

// Atan's row never reports: the status of atanh's pole is dropped.
[[gnu::always_inline]] inline int AtanOf(LD x, LD y, LD& re, LD& im) {
    Rotated<AtanhOf, true>(x, y, re, im);
    return status::kNone;
}

// The window of both parts: high words from 2^-250 to below 2^249.
constexpr int32_t kAtanhLo = 0x30500000, kAtanhTop = 0x4F7FFFFF;

// atanh(x + iy) as two sums of doubles p + q a part with their error bounds, for parts
// inside the window.
struct AtanhWordsOf {
    __m128d reP, reQ, reE, imP, imQ, imE;
};
// In two steps for the rounds: the squares, D and the rounded Q, N in two words and the
// phase's quotient; then the rest.
struct AtanhStart {
    __m128d n4, dH, dL, q, nL;
    PhaseStart phase;
};
BRENN_VEC AtanhStart AtanhBegin(__m128d x, __m128d y) {
    AtanhStart st;
    const __m128d one = Set<double>(1);
    const __m128d ax = Abs(x);
    __m128d dh, dl, eh, el;
    TwoDiff(one, ax, dh, dl); // 1 - |x|
    TwoSum(one, ax, eh, el);  // 1 + |x|
    __m128d d2, d2l, y2, y2l;
    ExactSquare(SplitOnce(dh), d2, d2l);
    ExactSquare(SplitOnce(y), y2, y2l);
    // D = d^2 + y^2 and Q = 4|x|/D, two words each
    __m128d s, se;
    TwoSum(d2, y2, s, se);
    FastTwoSum(s, Add(se, Add(Add(d2l, y2l), Mul(Add(dh, dh), dl))), st.dH, st.dL);
    st.n4 = Mul(ax, Set<double>(4));
    st.q = Div(st.n4, st.dH);
    // N = (1 - |x|)(1 + |x|) - y^2 in two words
    __m128d m, ml;
    TwoProductExact(dh, eh, m, ml);
    ml = Add(ml, Add(Mul(dh, el), Mul(dl, eh)));
    __m128d nh, ne, nH;
    TwoDiff(m, y2, nh, ne);
    FastTwoSum(nh, Add(ne, Sub(ml, y2l)), nH, st.nL);
    st.phase = PhaseQuotient(Add(y, y), nH);
    return st;
}
BRENN_VEC AtanhWordsOf AtanhFinish(const AtanhStart& st) {
    const __m128d one = Set<double>(1);
    const __m128d q = st.q;
    __m128d ph, pl;
    TwoProductExact(q, st.dH, ph, pl);
    const __m128d ql = Div(Sub(Sub(Sub(st.n4, ph), pl), Mul(q, st.dL)), st.dH);
    // log1p Q = ln(U + ul)
    __m128d u, ue;
    TwoSum(one, q, u, ue);
    const __m128d ul = Add(ue, ql);
    __m128d lh, ll, r, rowsExact;
    LnWords(LnReduce(u), Div(ul, u), lh, ll, r, rowsExact);
    AtanhWordsOf w;
    const __m128d quarter = Set<double>(0.25);
    w.reP = Mul(lh, quarter);
    w.reQ = Mul(ll, quarter);
    const __m128d fixed = IfThenElse(rowsExact, Set<double>(0x1p-104), Set<double>(0x1p-70));
    w.reE = Add(Add(Mul(Abs(r), Set<double>(0x1p-58)), fixed), Mul(Abs(w.reP), Set<double>(0x1p-100)));
    // atan2(2y, N)/2
    __m128d ah, al;
    PhaseFinish<true>(st.phase, st.nL, ah, al);
    const __m128d half = Set<double>(0.5);
    w.imP = Mul(ah, half);
    w.imQ = Mul(al, half);
    w.imE = Mul(Abs(w.imP), Set<double>(0x1p-61));
    return w;
}

// Lanes outside the window, and the parts made safe there.
BRENN_VEC __m128d AtanhOutside(__m128d& x, __m128d& y) {
    const __m128d out = HighWordsToLanes(
        Or(HighWordOutside<kAtanhLo, kAtanhTop>(x), HighWordOutside<kAtanhLo, kAtanhTop>(y)));
    x = IfThenElse(out, Set<double>(0.5), x);
    y = IfThenElse(out, Set<double>(0.5), y);
    return out;
}

// Double elements: atanh(x + iy), or for Atan atanh(-y + ix) turned (re = its imaginary
// part, im = minus its real part); the lanes the bounds do not decide go on.
template <bool Turn>
struct AtanhZ : ExtendedScalarBody<double, BrennComplex16, BrennComplex16,
                                   ExtendedScalar<BrennComplex16, Turn ? AtanOf : AtanhOf>>,
                TwoStepRounds<AtanhZ<Turn>, double> {
    static constexpr const char* kName = Turn ? "vzAtan" : "vzAtanh";
    struct Start {
        __m128d special, signA, signB;
        AtanhStart st;
    };
    BRENN_VEC static void Begin(const Cx<double>& z, Start& s) {
        __m128d a = Turn ? Neg(z.im) : z.re, b = Turn ? z.re : z.im;
        s.signA = SignBit(a);
        s.signB = SignBit(b);
        s.special = AtanhOutside(a, b);
        s.st = AtanhBegin(a, b);
    }
    BRENN_VEC static int Finish(const Start& s, Cx<double>& y) {
        __m128d special = s.special;
        const AtanhWordsOf w = AtanhFinish(s.st);
        const __m128d re = Or(Decided(w.reP, w.reQ, w.reE, special), s.signA);
        const __m128d im = Or(Decided(w.imP, w.imQ, w.imE, special), s.signB);
        if constexpr (Turn) {
            y.re = im;
            y.im = Neg(re);
        } else {
            y.re = re;
            y.im = im;
        }
        return MaskBits(special);
    }
    // Rounds of four groups: every group's first steps, these held apart, then the rest.
    BRENN_VEC static void Hold(Start& s) {
        s.st.q = Opaque(s.st.q);
        s.st.phase.t = Opaque(s.st.phase.t);
    }
};

// Single elements on their parts widened, in plain double: 1 - |x| is exact where |x| is
// within [1/2, 2] (the only place N cancels), within 2^-53 elsewhere; the squares of
// single parts are exact, so D, Q and N's product are within a few roundings, U = 1 + Q
// exact in two words and log1p Q = ln U + ul/U by the double logarithm's core, the angle
// by the real Atan2 (HA): both parts within about 2^-50 of themselves, rounded to single
// correctly but within about 2^-26 ulp of a midpoint. Zeros, infinities and NaNs go on,
// and the rare N outside Atan2's window (a cancelling to zero or below 2^-500).
template <bool Turn>
struct AtanhC : ExtendedScalarBody<float, BrennComplex8, BrennComplex8,
                                   ExtendedScalar<BrennComplex8, Turn ? AtanOf : AtanhOf>>,
                TwoStepRounds<AtanhC<Turn>, float> {
    static constexpr const char* kName = Turn ? "vcAtan" : "vcAtanh";
    // A half (two elements widened) in two steps for the rounds: the quotients Q and t of
    // the phase, then the rest.
    struct HalfStart {
        __m128d x, q, special;
        invtrig::Atan2DoubleState phase;
    };
    BRENN_VEC static void HalfBegin(__m128d x, __m128d y, __m128d outside, HalfStart& h) {
        const __m128d one = Set<double>(1), ax = Abs(x);
        const __m128d d = Sub(one, ax), y2 = Mul(y, y);
        h.x = x;
        h.q = Div(Mul(ax, Set<double>(4)), Add(Mul(d, d), y2));
        const __m128d n = Sub(Mul(d, Add(one, ax)), y2);
        h.special = Or(outside, RangeTest(n, invtrig::kRange<double>));
        invtrig::Atan2DoubleQuotient(Add(y, y), n, h.special, h.phase);
    }
    BRENN_VEC static void HalfFinish(HalfStart& h, __m128d& re, __m128d& im) {
        const __m128d one = Set<double>(1);
        __m128d u, ul, lh, r, t;
        TwoSum(one, h.q, u, ul);
        LnCore3<Level::HA>(u, lh, r, t);
        re = Or(Mul(Add(lh, Add(r, Add(t, Div(ul, u)))), Set<double>(0.25)), SignBit(h.x));
        invtrig::Atan2DoubleReduced(h.phase);
        im = Mul(invtrig::Atan2DoubleAngle(h.phase), Set<double>(0.5));
    }
    // A group: zeros, infinities and NaNs (the magnitudes' bits outside [the least
    // denormal, the largest finite]) made safe (1/2), the halves begun.
    BRENN_VEC static void Begin(const Cx<float>& z, HalfStart (&h)[2]) {
        const __m128 a0 = Turn ? Neg(z.im) : z.re, b0 = Turn ? z.re : z.im;
        const I32x4 top = Set<int32_t>(0x7F7FFFFF), abs = Set<int32_t>(0x7FFFFFFF);
        const I32x4 ma = And(AsInt(a0), abs), mb = And(AsInt(b0), abs), zero = Zero<int32_t>();
        const __m128 out = AsFloat(Or(Or(Eq(ma, zero), Gt(ma, top)), Or(Eq(mb, zero), Gt(mb, top))));
        const __m128 a = IfThenElse(out, Set<float>(0.5f), a0), b = IfThenElse(out, Set<float>(0.5f), b0);
        HalfBegin(WidenLower(a), WidenLower(b), WidenLower(out), h[0]);
        HalfBegin(WidenUpper(a), WidenUpper(b), WidenUpper(out), h[1]);
    }
    BRENN_VEC static int Finish(HalfStart (&h)[2], Cx<float>& y) {
        __m128d r0, i0, r1, i1;
        HalfFinish(h[0], r0, i0);
        HalfFinish(h[1], r1, i1);
        const __m128 re = Narrow(r0, r1), im = Narrow(i0, i1);
        if constexpr (Turn) {
            y.re = im;
            y.im = Neg(re);
        } else {
            y.re = re;
            y.im = im;
        }
        return MaskBits(h[0].special) | (MaskBits(h[1].special) << 2);
    }
    // Rounds of four groups: every half's quotients, these held apart, then the rest.
    using Start = HalfStart[2];
    BRENN_VEC static void Hold(Start& h) {
        for (HalfStart& half : h) {
            half.q = Opaque(half.q);
            half.phase.t = Opaque(half.phase.t);
        }
    }
};

} // namespace
} // namespace brenn::vm::cx

extern "C" {
ZAR_COMPLEX_KERNEL(z, Atanh, All, Unary, brenn::vm::cx::AtanhZ<false>)
ZAR_COMPLEX_KERNEL(z, Atan, All, Unary, brenn::vm::cx::AtanhZ<true>)
ZAR_COMPLEX_KERNEL(c, Atanh, All, Unary, brenn::vm::cx::AtanhC<false>)
ZAR_COMPLEX_KERNEL(c, Atan, All, Unary, brenn::vm::cx::AtanhC<true>)
}
