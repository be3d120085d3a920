/* Exp of single (c) and double (z) complex vectors: exp(a) (cos b + i sin b), one kernel
 * for LA and EP and one for HA in each type.
 *
 * Double: exp(a) from the real exponential's core (explog/exp_core.h): n = a 64/ln2
 * rounded by the shifter, r = a - n ln2/64 in two steps, e^a = 2^m (Thi + (Thi p(r) +
 * Tlo)) with the table of 2^(j/64), kept as the head Thi and the tail Thi p + Tlo.
 * cos b and sin b from the trigonometric table method (trig/reduce.h): |b| reduced at
 * pi/64, the rows of J pi/64 joined with the series of r, each kept as head and tail.
 * Each part is the product of the two-part factors, rounded once, then scaled by 2^m.
 * HA: the polynomial of degree 6, the table joined exactly where sine is near a zero,
 * and the heads' product exact (Dekker); LA/EP: degree 5 and plain products (about an
 * ulp). Lanes with |a| above 708.39 (where 2^m leaves the normal range), |b| from 2^24
 * (the short reduction's limit), infinities and NaNs go to the scalar routine.
 * Single: the double LA/EP computation on widened lanes (or HA's for HA), rounded once to
 * single; lanes whose single result is not finite go to the scalar routine too.
 *
 * The scalar routine works in extended precision: exp, cos and sin of the parts in
 * 80-bit arithmetic, where nothing overflows, rounded once to the element's type; the
 * special values of C99 Annex G for cexp. Statuses: a finite element with an infinite
 * result part is an overflow (3); an infinite imaginary part with a finite or +inf real
 * part is a domain error (1, NaN results with the invalid flag). */
#include <math.h>

#include "vecmath/complex/cframe.h"
#include "vecmath/complex/exact.h"
#include "vecmath/complex/ext_elem.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/frame/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::cx {
namespace {

// One element in extended precision (ext_elem.h), rounded once; a finite element whose
// result has an infinite part is an overflow.
template <class E>
int ExpScalar(const E* x, const E*, E* y) {
    using R = decltype(x->re);
    long double re, im;
    int st = CExpX(x->re, x->im, re, im);
    y->re = R(re);
    y->im = R(im);
    if (st == status::kNone && __builtin_isfinite(x->re) && __builtin_isfinite(x->im) &&
        (__builtin_isinf(y->re) || __builtin_isinf(y->im)))
        st = status::kOverflow;
    return st;
}

// exp(a) (cos b + i sin b) for |a| <= 708.39 and |b| < 2^24, in four stretches: the two
// reductions, the exponential's polynomial, the sine and cosine from the table row and
// series, and the products. A double round of two groups takes each stretch over both
// before the next (ExpZ::EvalGroups), so that their polynomial chains overlap; rounds of
// four measured 4 to 5 % slower (their twelve-register states no longer fit the sixteen
// registers, and the spills cost more than the overlap gains).
struct ExpState {
    __m128d b, t, r, eh, tl, rh, rl, el, sh, sl, ch, cl;
    alignas(16) int32_t J[2];
};

BRENN_VEC void ExpReduce(__m128d a, __m128d b, ExpState& s) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    s.b = b;
    s.t = Add(Mul(a, Set<double>(ExpStep64::kInvStep)), shifter);
    __m128d n = Sub(s.t, shifter);
    s.r = Sub(Sub(a, Mul(n, Set<double>(ExpStep64::kStepHi))), Mul(n, Set<double>(ExpStep64::kStepLo)));
    ExpRows64(s.t, s.eh, s.tl);
    trig::ShortD(Abs(b), s.J, s.rh, s.rl, 0);
}

template <Level L>
BRENN_VEC void ExpPart(ExpState& s) {
    constexpr ExpDegree D = L == Level::HA ? ExpDegree::Six : ExpDegree::Five;
    s.el = Add(Mul(s.eh, ExpPolyD<D>(s.r)), s.tl);
}

template <Level L>
BRENN_VEC void TrigPart(ExpState& s) {
    trig::TableSinCos(s.J, s.rh, s.rl, L == Level::HA, s.sh, s.sl, s.ch, s.cl);
}

template <Level L>
BRENN_VEC Cx<double> ExpJoin(const ExpState& s) {
    const __m128d eh = s.eh, el = s.el, sh = s.sh, sl = s.sl, ch = s.ch, cl = s.cl;
    const __m128d scale = ExpScale64(s.t);
    Cx<double> y;
    // (eh + el)(ch + cl): neither tail is negligible beside the other (el is Thi p, up
    // to 2^-7 of eh; cl the series of r, up to 2^-12 of ch), so all four products count
    __m128d ct = Add(Mul(eh, cl), Mul(el, Add(ch, cl)));
    __m128d st = Add(Mul(eh, sl), Mul(el, Add(sh, sl)));
    if constexpr (L == Level::HA) {
        // eh split once for both products; ch and sh by the mask (halves of 26 and 27
        // bits beside eh's 26: every partial product exact)
        __m128d p, pl;
        auto he = SplitOnce(eh);
        ExactProduct(he, SplitByMask(ch), p, pl);
        y.re = Add(p, Add(pl, ct));
        ExactProduct(he, SplitByMask(sh), p, pl);
        y.im = Add(p, Add(pl, st));
    } else {
        y.re = Add(Mul(eh, ch), ct);
        y.im = Add(Mul(eh, sh), st);
    }
    y.re = Mul(y.re, scale);
    y.im = Xor(Mul(y.im, scale), SignBit(s.b));
    return y;
}

template <Level L>
BRENN_VEC Cx<double> ExpOf(__m128d a, __m128d b) {
    ExpState s;
    ExpReduce(a, b, s);
    ExpPart<L>(s);
    TrigPart<L>(s);
    return ExpJoin<L>(s);
}

// Lanes outside |a| <= 708.39, |b| < 2^24, NaNs and infinities among them.
constexpr int32_t kTopA = 0x40862329, kTopB = 0x416FFFFF;
BRENN_VEC __m128d ExpOutside(__m128d a, __m128d b) {
    return HighWordsToLanes(Or(HighWordOutside<0, kTopA>(a), HighWordOutside<0, kTopB>(b)));
}
// The same windows for N groups at once: each part's magnitudes' high words (low words
// masked to zero) folded by their maximum over the round, against its top.
template <int N>
BRENN_VEC bool AnyExpOutside(const Cx<double>* x) {
    const I32x4 mag = BitCast<I32x4>(Set<uint64_t>(0x7FFFFFFF00000000ull));
    I32x4 a = Zero<int32_t>(), b = Zero<int32_t>();
#pragma GCC unroll 8
    for (int g = 0; g < N; ++g) {
        a = Max(a, And(BitCast<I32x4>(x[g].re), mag));
        b = Max(b, And(BitCast<I32x4>(x[g].im), mag));
    }
    const I32x4 topA = BitCast<I32x4>(Set<uint64_t>((uint64_t(kTopA) << 32) | 0x7FFFFFFFu));
    const I32x4 topB = BitCast<I32x4>(Set<uint64_t>((uint64_t(kTopB) << 32) | 0x7FFFFFFFu));
    return MaskBits(Or(Gt(a, topA), Gt(b, topB))) != 0;
}

template <Level L>
struct ExpZ : ExtendedScalarBody<double, BrennComplex16, BrennComplex16, ExpScalar> {
    static constexpr const char* kName = "vzExp";
    static constexpr int kGroups = 2;
    BRENN_VEC static int Eval(const Cx<double>* x, const Cx<double>*, Cx<double>& y) {
        __m128d special = ExpOutside(x->re, x->im);
        y = ExpOf<L>(IfThenZeroElse(special, x->re), IfThenZeroElse(special, x->im));
        return MaskBits(special);
    }
    // The round's windows tested once: where no part lies outside, no lane is blended.
    // The stages written out here rather than through StepGroups, whose loop over the
    // groups for a second middle stage the compiler left as a call at HA, with the
    // states passed through memory.
    template <bool Test>
    BRENN_VEC static int Steps(const Cx<double>* x, Cx<double>* y) {
        ExpState s[kGroups];
        int bits = 0;
#pragma GCC unroll 8
        for (int g = 0; g < kGroups; ++g) {
            if constexpr (Test) {
                __m128d special = ExpOutside(x[g].re, x[g].im);
                ExpReduce(IfThenZeroElse(special, x[g].re), IfThenZeroElse(special, x[g].im),
                          s[g]);
                bits |= MaskBits(special) << (g * kGroup<double>);
            } else {
                ExpReduce(x[g].re, x[g].im, s[g]);
            }
        }
#pragma GCC unroll 8
        for (int g = 0; g < kGroups; ++g)
            ExpPart<L>(s[g]);
#pragma GCC unroll 8
        for (int g = 0; g < kGroups; ++g)
            TrigPart<L>(s[g]);
#pragma GCC unroll 8
        for (int g = 0; g < kGroups; ++g)
            y[g] = ExpJoin<L>(s[g]);
        return bits;
    }
    BRENN_VEC static int EvalGroups(const Cx<double>* x, const Cx<double>*, Cx<double>* y) {
        if (__builtin_expect(!AnyExpOutside<kGroups>(x), 1)) return Steps<false>(x, y);
        return Steps<true>(x, y);
    }
};

template <Level L>
struct ExpC : ExtendedScalarBody<float, BrennComplex8, BrennComplex8, ExpScalar> {
    static constexpr const char* kName = "vcExp";
    static int Eval(const Cx<float>* x, const Cx<float>*, Cx<float>& y) {
        __m128d a0 = WidenLower(x->re), b0 = WidenLower(x->im);
        __m128d a1 = WidenUpper(x->re), b1 = WidenUpper(x->im);
        __m128d s0 = ExpOutside(a0, b0), s1 = ExpOutside(a1, b1);
        Cx<double> y0 = ExpOf<L>(IfThenZeroElse(s0, a0), IfThenZeroElse(s0, b0));
        Cx<double> y1 = ExpOf<L>(IfThenZeroElse(s1, a1), IfThenZeroElse(s1, b1));
        y.re = Narrow(y0.re, y1.re);
        y.im = Narrow(y0.im, y1.im);
        const I32x4 inf = Set<int32_t>(0x7F800000);
        I32x4 o = Or(Eq(And(AsInt(y.re), inf), inf), Eq(And(AsInt(y.im), inf), inf));
        return MaskBits(o) | MaskBits(s0) | (MaskBits(s1) << 2);
    }
};

} // namespace
} // namespace brenn::vm::cx

using namespace brenn::vm;
using namespace brenn::vm::cx;

extern "C" {
ZAR_COMPLEX_KERNEL(z, Exp, LaEp, Unary, ExpZ<Level::LA>)
ZAR_COMPLEX_KERNEL(z, Exp, HA, Unary, ExpZ<Level::HA>)
ZAR_COMPLEX_KERNEL(c, Exp, LaEp, Unary, ExpC<Level::LA>)
ZAR_COMPLEX_KERNEL(c, Exp, HA, Unary, ExpC<Level::HA>)
}
