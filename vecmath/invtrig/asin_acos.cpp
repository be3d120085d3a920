/* Asin, Acos, Asinpi and Acospi in single and double, three levels: one body.
 *
 * The fold at 1/2 without a branch: with a = |x|, h = 0.5 - 0.5a (exact from 1/2 on)
 * and q = a*a, w = min(q, h) is the square of the argument of the series, and the lanes
 * where w equals h (a at or above 1/2) are the folded ones, where asin(a) = pi/2 -
 * 2 asin(sqrt(h)). The series asin(s) = s + s^3 P(s^2) then runs on one w for all lanes:
 * the main term u is a, or 2 sqrt(h), and the angle is a whole number of quarter turns
 * plus or minus u(1 + w P(w)) (common.h).
 *
 * Single EP keeps its three-term form in single (u + p(w) u); single LA runs the same
 * steps in single with a five-term series; single HA does too, with six terms, the root
 * of h as an 11-bit head and a quotient, so that base less head is exact; the pi-scaled
 * single LA and HA run the double steps on the widened lanes with a six-term series and
 * narrow once. Double
 * EP, LA and HA use 5 (by Horner's rule; 6 in half-turns), 12 and 13 terms; HA also corrects the square root by its exact
 * residual (over the root, by one division) and joins base and main term by an exact
 * sum, EP takes the base without the tail of pi/4. The pi-scaled rows take the
 * compensated double steps at every double level. Double rounds of sixteen take each
 * step over the round's eight registers before the next.
 *
 * Lanes with |x| above 1 and NaN go to the scalar routine: infinity gives NaN with the
 * domain status, NaN itself none, |x| > 1 NaN with the domain status.
 *
 * Measured (brenn_accuracy, 250000 inputs a row), LA / HA in ulp, EP in bits: sAsin
 * 2.22 / 0.597 / 14.0, sAcos 1.21 / 0.584 / 14.9, sAsinpi 0.506 / 0.506 / 14.0, sAcospi
 * 0.503 / 0.503 / 14.9; dAsin 1.67 / 0.627 / 27.1, dAcos 1.16 / 0.590 / 27.2, dAsinpi
 * 0.823 / 0.740 / 30.8, dAcospi 0.661 / 0.591 / 31.8. */
#include <cmath>

#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/invtrig/common.h"
#include "vecmath/invtrig/series.h"

namespace brenn::vm::invtrig {
namespace {

enum class Fn { Asin, Acos };

// 2 sqrt(h) is 2s + (h - s^2)/s, s the rounded root (double steps, compensated). With s
// cut at 26 bits, s = sh + sl: sh^2 is exact, h - sh^2 exact (Sterbenz), sl*(sh + s) is
// 2 sh*sl + sl^2 within 2^-52 of itself, about 2^-77 h, and the difference of the two,
// far below either, is exact. The quotient rounded once (one division: measured 1 to 2 %
// faster than the single reciprocal estimate, widened, and a product, whose chain after
// the root was the longer); s is held at 2^-60 or more (h = 0 at |x| = 1).
BRENN_VEC __m128d RootCorrection(__m128d h, __m128d s) {
    __m128d sh = And(s, AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull)));
    __m128d sl = Sub(s, sh);
    __m128d r = Sub(Sub(h, Mul(sh, sh)), Mul(sl, Add(sh, s)));
    return Div(r, Max(s, Set<double>(0x1p-60)));
}

// The angle of x (lanes with |x| <= 1 or a safe value) with the series S; Comp: the
// compensated steps of the double HA and pi-scaled kernels. In three steps, so that a
// double round can take each over all its registers before the next (AnglesRound): the
// fold and the root, the series and the root's correction, the angle.
// c where x has its sign bit, else 0: in single by an arithmetic shift of x's bits and a
// mask (a blend on x itself compiles to a compare with zero and a blend).
BRENN_VEC __m128 WhereNegative(__m128 x, __m128 c) {
    return And(AsFloat(ShiftRightSigned<31>(AsInt(x))), c);
}

template <class V>
struct AngleState {
    V x, h, w, fold, s, u, l;
};
template <class V>
BRENN_VEC void RootStep(V x, AngleState<V>& st) {
    using T = ElemOf<V>;
    const V half = Set<T>(0.5);
    V a = Abs(x);
    V h = Sub(half, Mul(a, half));
    V q = Mul(a, a);
    st.x = x;
    st.h = h;
    st.w = Min(q, h);
    st.fold = Ge(st.w, h);
    st.s = Sqrt(h);
    st.u = IfThenElse(st.fold, Add(st.s, st.s), a);
}
template <class S, bool Comp, bool Wide, class V>
BRENN_VEC void TailStep(AngleState<V>& st) {
    V l;
    if constexpr (Wide)
        l = Mul(st.u, Mul(st.w, Estrin(st.w, S::kP))); // S a coefficient set
    else
        l = S::Tail(st.w, st.u);
    if constexpr (Comp) l = Add(l, IfThenElseZero(st.fold, RootCorrection(st.h, st.s)));
    st.l = l;
}
template <Fn F, Unit U, bool Comp, bool Short, class V>
BRENN_VEC V AngleStep(const AngleState<V>& st) {
    using T = ElemOf<V>;
    const V x = st.x, fold = st.fold, u = st.u, l = st.l;
    V sx = SignBit(x);
    V k, flip;
    // The short form (single lanes in double, double EP) takes the base itself, k quarter
    // turns (exact), and no product; so do the single steps in radians (Plain), whose
    // quarter has no tail: base + (u + l) as Finish sums it, with the sign flipped once.
    constexpr bool kBase = Short && U == Unit::Radian;
    constexpr bool kPlain = !Comp && !Short && U == Unit::Radian && Quarter<T, U>::kLo == 0;
    constexpr T c = kBase || kPlain ? Quarter<T, U>::kHi : T(1);
    if constexpr (F == Fn::Asin) {
        // Folded: pi/2 - (u + l); the sign of x goes on at the end.
        k = IfThenElseZero(fold, Set<T>(2 * c));
        flip = And(fold, SignMask<T>());
    } else {
        // Folded: u + l for x >= 0, pi - (u + l) below; unfolded pi/2 -+ (u + l). The flip,
        // fold ^ sign ^ 1 in the sign bit, as ~fold ^ sign.
        // k = 2c - (2c with x's sign) on folded lanes: 0 for x >= 0, 4c below.
        k = Sub(Set<T>(2 * c), And(fold, Xor(sx, Set<T>(2 * c))));
        flip = Xor(AndNot(fold, SignMask<T>()), sx);
    }
    V y;
    if constexpr (kBase) {
        // The order of the last sums is free (single lanes in double, double EP): base
        // + u goes alongside the tail, and the tail's product with u last, off the series.
        y = Add(Add(k, Xor(u, flip)), Xor(l, flip));
    } else if constexpr (kPlain) {
        y = Add(k, Xor(Add(u, l), flip));
    } else {
        y = Finish<U, Comp>(k, Xor(u, flip), Xor(l, flip));
    }
    return F == Fn::Asin ? Xor(y, sx) : y;
}
template <Fn F, Unit U, class S, bool Comp, class V, bool Wide = false>
BRENN_VEC V AngleOf(V x) {
    AngleState<V> st;
    RootStep(x, st);
    TailStep<S, Comp, Wide>(st);
    return AngleStep<F, U, Comp, Wide>(st);
}

// Six terms fitted in single (tools/invtrig/asin_single.sollya, 2^-31.7): the fit keeps
// the tail's error from it to about 0.01 ulp of the result, where LA's five terms
// (2^-27.6) cost up to 0.09.
constexpr float kAsinSingleHA[] = {0x1.555548p-3f, 0x1.3339acp-4f, 0x1.6c8cf4p-5f,
                                   0x1.05790cp-5f, 0x1.cd5cc4p-7f, 0x1.36feeep-5f};

// P(w) = c0 + w Q(w), Q by Estrin's scheme over w^2, c0 + c1 w + ... + c5 w^5: the
// leading term joined last, by one product and one sum, keeps the rounding of Horner's
// rule (one rounding at the scale of P, the others below 0.12 of it), and the chain is
// shorter by three steps.
BRENN_VEC __m128 SeriesSingleHA(__m128 w) {
    const float* c = kAsinSingleHA;
    __m128 w2 = Mul(w, w);
    __m128 hi = Add(Mul(Set<float>(c[4]), w), Set<float>(c[3]));
    hi = Add(Mul(Set<float>(c[5]), w2), hi);
    __m128 lo = Add(Mul(Set<float>(c[2]), w), Set<float>(c[1]));
    __m128 q = Add(Mul(hi, w2), lo);
    return Add(Mul(q, w), Set<float>(c[0]));
}

// Single HA in single arithmetic: the steps of AngleOf with a six-term series and the
// root of h in two parts, sh (s cut to 11 bits) and the rest by one division: sqrt(h) is
// sh + (h - sh^2)/(sqrt(h) + sh), and with s for sqrt(h) and the division rounded the
// rest is good to 2^-23 of itself, at most 2^-10 of sh, so 2 sqrt(h) = u + d to about
// 2^-33 of u, u = 2 sh. The numerator is exact: 1 - a = 2h (a >= 1/2), sh*u has 22 bits
// and the difference is Sterbenz's. u has 11 bits and is at least 2^-11.5 (h >= 2^-25
// below 1), so it lies on the grid of 2^-22 and the base less u, pi/2 - u or pi - u, is
// exact. The series' tail is l = v*wP (v = u or a, exact) and the small terms d(1 + wP)
// and the base's tail go beside it; l is within 0.05 of v and wrong by a few of its own
// ulps, so that the sum of the exact head and l + the small terms is within about 0.6
// ulp (measured 0.601 and 0.605 at 2*10^6 inputs, near |x| = 0.55). Acos's pi/2 - x in the
// unfolded lanes is an exact sum, whose error term stands where the folded lanes have
// d(1 + wP) (one blend: the sum is exact there). Every lane's angle is |y| for a y of
// known sign, Asin's taking x's sign after that.
// In three steps, so that a round can take each over its registers before the next
// (AnglesSingleHARound): the fold, the root and its rest d; the series; the angle.
struct SingleHAState {
    __m128 x, w, fold, v, d, wp;
};
template <Fn F>
BRENN_VEC void SingleHARootStep(__m128 x, SingleHAState& st) {
    const __m128 half = Set<float>(0.5f);
    __m128 a = Abs(x);
    __m128 h = Sub(half, Mul(a, half));
    __m128 w = Min(Mul(a, a), h);
    __m128 fold = Ge(w, h);
    __m128 s = Sqrt(h);
    __m128 sh = And(s, AsFloat(Set<uint32_t>(0xFFFFE000u)));
    __m128 u = Add(sh, sh);
    __m128 r = Sub(Sub(Set<float>(1.0f), a), Mul(sh, u));
    st.x = x;
    st.w = w;
    st.fold = fold;
    st.d = Div(r, Max(Add(s, sh), Set<float>(0x1p-60f)));
    st.v = IfThenElse(fold, u, F == Fn::Asin ? a : x);
}
BRENN_VEC void SingleHASeriesStep(SingleHAState& st) {
    st.wp = Mul(st.w, SeriesSingleHA(st.w));
}
template <Fn F>
BRENN_VEC __m128 SingleHAAngleStep(const SingleHAState& st) {
    using Q = Quarter<float, Unit::Radian>;
    const __m128 x = st.x, fold = st.fold, v = st.v, d = st.d, wp = st.wp;
    if constexpr (F == Fn::Asin) {
        // -y: folded u - pi/2 + (l + d - the tail of pi/2), unfolded a + l.
        __m128 k = And(fold, Set<float>(2 * Q::kHi));
        __m128 c = And(fold, Add(Sub(d, Set<float>(2 * kQuarterTailS)), Mul(d, wp)));
        __m128 l = Mul(v, wp);
        __m128 y = Add(Sub(v, k), Add(l, c));
        return Or(Abs(y), SignBit(x));
    } else {
        // -y: unfolded x - pi/2 + (l - the tail of pi/2); folded u - pi (x < 0) or u (x >
        // 0), + l + d less the base's tail. The base as -k, -pi/2 or -pi or 0.
        __m128 nk = IfThenElse(fold, WhereNegative(x, Set<float>(-4 * Q::kHi)),
                               Set<float>(-2 * Q::kHi));
        __m128 t, e;
        FastTwoSum(nk, v, t, e);
        __m128 c = IfThenElse(fold, Add(d, Mul(d, wp)), e);
        __m128 l = Mul(v, wp);
        __m128 y = Add(t, Add(l, Add(c, Mul(nk, Set<float>(kQuarterTailS / Q::kHi)))));
        return Abs(y);
    }
}
template <Fn F>
BRENN_VEC __m128 AngleSingleHA(__m128 x) {
    SingleHAState st;
    SingleHARootStep<F>(x, st);
    SingleHASeriesStep(st);
    return SingleHAAngleStep<F>(st);
}
// A round of four registers step by step, the values between the steps held apart
// (Opaque): left to itself the compiler sinks each register's root and series into its
// angle, and the round runs as four chains one after another.
template <Fn F>
BRENN_VEC void AnglesSingleHARound(const __m128* x, __m128* y) {
    SingleHAState st[4];
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) {
        SingleHARootStep<F>(x[k], st[k]);
        st[k].w = Opaque(st[k].w);
        st[k].d = Opaque(st[k].d);
        st[k].v = Opaque(st[k].v);
    }
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) {
        SingleHASeriesStep(st[k]);
        st[k].wp = Opaque(st[k].wp);
    }
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k)
        y[k] = SingleHAAngleStep<F>(st[k]);
}

// The single steps (EP, LA, radian HA) as they are, and the others in double on widened
// lanes.
template <Fn F, Unit U, Level L>
BRENN_VEC __m128 AnglesOf(__m128 x) {
    if constexpr (L == Level::EP)
        return AngleOf<F, U, AsinSingleEP, false>(x);
    else if constexpr (L == Level::LA && U == Unit::Radian)
        return AngleOf<F, U, AsinSingleLA, false>(x);
    else if constexpr (L == Level::HA && U == Unit::Radian)
        return AngleSingleHA<F>(x);
    else
        return Narrow(AngleOf<F, U, AsinDouble6Set, false, __m128d, true>(WidenLower(x)),
                      AngleOf<F, U, AsinDouble6Set, false, __m128d, true>(WidenUpper(x)));
}
// EP in radians five terms, in half-turns six (their compensated steps keep the series'
// error apart from the last rounding).
template <Level L, Unit U>
using AsinDoubleOf = std::conditional_t<
    L == Level::EP, std::conditional_t<U == Unit::Radian, AsinDouble5, AsinDouble6>,
    std::conditional_t<L == Level::LA, AsinDouble12, AsinDouble13>>;
template <Level L, Unit U>
constexpr bool kCompOf = L == Level::HA || U == Unit::Pi;
template <Fn F, Unit U, Level L, class V>
BRENN_VEC V DoubleAngleOf(V x) {
    AngleState<V> st;
    RootStep(x, st);
    TailStep<AsinDoubleOf<L, U>, kCompOf<L, U>, false>(st);
    return AngleStep<F, U, kCompOf<L, U>, L == Level::EP>(st);
}
template <Fn F, Unit U, Level L>
BRENN_VEC __m128d AnglesOf(__m128d x) {
    return DoubleAngleOf<F, U, L>(x);
}

// The largest |x| of the vector path, as bits: 1.
template <class T>
constexpr LaneRange<T> kDomain = {Format<T>::kAbs, 0, Format<T>::kOne};

// A double round's eight registers step by step: the roots issue together and the
// series' chains overlap (one register at a time, each chain ran on its own). Returns
// the special-lane bits, lanes outside the domain taken as 0.
template <Fn F, Unit U, Level L, class V>
BRENN_VEC int AnglesRound(const V* x, V* y) {
    constexpr bool kComp = kCompOf<L, U>;
    AngleState<V> st[8];
    int bits = 0;
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k) {
        V special = RangeTest(x[k], kDomain<double>);
        bits |= MaskBits(special) << (2 * k);
        RootStep(IfThenZeroElse(special, x[k]), st[k]);
    }
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        TailStep<AsinDoubleOf<L, U>, kComp, false>(st[k]);
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        y[k] = AngleStep<F, U, kComp, L == Level::EP>(st[k]);
    return bits;
}

// Infinity: NaN, domain status; NaN: itself, none; |x| > 1: NaN, domain status; +-1
// exactly; any other x by the double HA steps, narrowed.
template <Fn F, Unit U, class T>
int Scalar(const T* a, T* y) {
    T x = *a;
    if ((BitsOf(x) & Format<T>::kExpField) == Format<T>::kExpField) {
        *y = Keep(x) / x;
        return __builtin_isinf(x) ? status::kDomain : status::kNone;
    }
    if (std::fabs(x) > T(1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    constexpr double kPi = U == Unit::Pi ? 1.0 : 3.141592653589793;
    constexpr double kPiLo = U == Unit::Pi ? 0.0 : 1.2246467991473532e-16;
    if (x == T(1) || x == T(-1)) {
        double r = F == Fn::Acos ? (x > 0 ? 0.0 : kPi + kPiLo) : (kPi * 0.5 + kPiLo * 0.5);
        *y = F == Fn::Asin && x < 0 ? T(-r) : T(r);
        return status::kNone;
    }
    __m128d p = AngleOf<F, U, AsinDouble13, true>(Set<double>(double(x)));
    *y = T(GetLane(p)); // narrowed once, as the vector path does
    return status::kNone;
}

template <class T, Fn F, Unit U>
constexpr const char* RowName() {
    if constexpr (U == Unit::Radian)
        return F == Fn::Asin ? ZAR_ERROR_NAME_OF(T, Asin) : ZAR_ERROR_NAME_OF(T, Acos);
    else
        return F == Fn::Asin ? ZAR_ERROR_NAME_OF(T, Asinpi) : ZAR_ERROR_NAME_OF(T, Acospi);
}

template <class Tp, Level L, Fn F, Unit U>
struct Body {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = RowName<T, F, U>();
    // Inline in every round: out of line, the double HA body is one call a register and
    // the round's chains do not overlap.
    static BRENN_VEC V Eval(V x, V& special) {
        special = RangeTest(x, kDomain<T>);
        return AnglesOf<F, U, L>(IfThenZeroElse(special, x));
    }
    static int Scalar(const T* a, T* y) { return invtrig::Scalar<F, U>(a, y); }
    // Double rounds of sixteen, step by step over the round's registers (AnglesRound);
    // the single kernels in radians take theirs with the domain tested once a round
    // (EvalTestOnce: the lanes outside run on 0, as in Eval; same bits as by register).
    static constexpr bool kTestOnce = sizeof(T) == 4 && U == Unit::Radian;
    static constexpr int kRound = sizeof(T) == 8 || kTestOnce ? 16 : 8;
    static constexpr LaneRange<T> kWindow = kDomain<T>;
    static BRENN_VEC V Value(V x) { return AnglesOf<F, U, L>(x); }
    static BRENN_VEC void ValueRound(const V* x, V* y)
        requires(sizeof(T) == 4 && L == Level::HA && U == Unit::Radian)
    {
        AnglesSingleHARound<F>(x, y);
    }
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8)
            return AnglesRound<F, U, L>(x, y);
        else if constexpr (kTestOnce)
            return EvalTestOnce<Body>(x, y);
        else
            return EvalByRegister<Body>(x, y);
    }
};

template <class T, Level L>
using AsinBody = Body<T, L, Fn::Asin, Unit::Radian>;
template <class T, Level L>
using AcosBody = Body<T, L, Fn::Acos, Unit::Radian>;
template <class T, Level L>
using AsinpiBody = Body<T, L, Fn::Asin, Unit::Pi>;
template <class T, Level L>
using AcospiBody = Body<T, L, Fn::Acos, Unit::Pi>;

} // namespace
} // namespace brenn::vm::invtrig

using namespace brenn::vm::invtrig;

extern "C" {
// The single kernels flattened: their rounds of sixteen stay in the kernel's loop with the
// constants in registers, not a call a round.
BRENN_FLAT_LEVEL_KERNELS(s, Asin, Unary, AsinBody)
ZAR_LEVEL_KERNELS(d, Asin, Unary, AsinBody)
BRENN_FLAT_LEVEL_KERNELS(s, Acos, Unary, AcosBody)
ZAR_LEVEL_KERNELS(d, Acos, Unary, AcosBody)
// The pi-scaled single kernels flattened: left to itself GCC keeps their LA and HA
// bodies (in double) out of line, one call a quad.
BRENN_FLAT_LEVEL_KERNELS(s, Asinpi, Unary, AsinpiBody)
ZAR_LEVEL_KERNELS(d, Asinpi, Unary, AsinpiBody)
BRENN_FLAT_LEVEL_KERNELS(s, Acospi, Unary, AcospiBody)
ZAR_LEVEL_KERNELS(d, Acospi, Unary, AcospiBody)
}
