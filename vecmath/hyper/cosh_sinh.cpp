/* Cosh and Sinh, single and double, three levels each (dSinh one kernel for LA and EP).
 *
 * Single LA and EP: one body with both exponentials in it. a = |x|, n = rint(a*log2e) by
 * the shifter, r = a - n*ln2 (two parts); the scales e1 = 2^(n-1) and e2 = 2^(-n-1) made
 * by integer addition on the exponent field of 0.5; S(r) ~ sinh r and C(r) ~ cosh r - 1;
 * with P = e1 + e2 and M = e1 - e2, cosh = P + (C*P + M*S) and sinh = M + (C*M + P*S),
 * x's sign OR-ed back. LA has the longer pair and runs up to 87.3365326, where n reaches
 * 126 (the lanes from there up to the overflow point take the scalar routine's value in
 * the body, UpperBandLA; those beyond, the routine). EP has the shorter pair and
 * runs up to 89.41, its scales a half smaller and the result doubled, so that no lane
 * below that point leaves its vector path.
 * Single HA: one reduction by ln2/32 and a table row of cosh and sinh at n*ln2/32 a lane,
 * in single arithmetic, the row's head leading (HyperSingleHA below).
 * Double: the halves of e^a from the exponential's table of 64 (hyper_core.h); HA sums the
 * heads exactly; LA and EP take e^-a/2 as 1/(4A) from A = e^a/2 alone (Sinh by its
 * series below 1/2).
 * Range test on |x|: from 87.3365326 (single LA), 89.41 (single EP), 89.4160 (single HA:
 * the overflow point) or 710.4702 (double) up, and infinities and NaN, to the scalar routine
 * (hyper_scalar.h), which settles overflow with status 3.
 *
 * Measured (brenn_accuracy): see the rows' lines in docs/accuracy.md. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/hyper_core.h"
#include "vecmath/hyper/hyper_scalar.h"
#include "vecmath/hyper/cosh_tables.h"

namespace brenn::vm {
namespace {

template <class T>
struct CoshWindow;
template <>
struct CoshWindow<float> {
    // HA: |x| >= 89.4159927, where single Cosh and Sinh overflow; EP: |x| >= 89.41,
    // where its error stays clear of that point. Sinh's HA and EP windows also take |x|
    // below 2^-125: denormals for their underflow flag, and the least normals, whose
    // halves in those bodies would be denormal (the scalar routine returns x).
    // LA, Cosh and Sinh alike: |x| >= 87.3365326 (0x42AEAC4E).
    static constexpr Range32 kWindowLA = {0x7FFFFFFFu, 0u, 0x42AEAC4Du};
    static constexpr Range32 kWindowHA = {0x7FFFFFFFu, 0u, 0x42B2D4FCu};
    static constexpr Range32 kSinhWindowHA = {0x7FFFFFFFu, 0x7F000000u, 0xC1B2D4FCu};
    // Sinh HA's rounds of sixteen: |x| outside [1/4, 89.4159927].
    static constexpr Range32 kSinhRoundHA = {0x7FFFFFFFu, 0x41800000u, 0x8432D4FCu};
    static constexpr Range32 kWindowEP = {0x7FFFFFFFu, 0u, 0x42B2D1EBu};
    static constexpr Range32 kSinhWindowEP = {0x7FFFFFFFu, 0x7F000000u, 0xC1B2D1EBu};
};
template <>
struct CoshWindow<double> {
    // |x| >= 710.4702 (high word): below it n = rint(|x|*64/ln2) is at most 64*1024 + 63,
    // so that A's power 2^(m-1) is at most 2^1023, and A below the largest double.
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x408633C2u};
};

// The single both-exponentials body's constants: log2(e), ln 2 in two parts.
constexpr float kLog2eS = 0x1.715476p+0f;  // 1.44269502
constexpr float kLn2HiS = 0x1.62ep-1f;     // 0.693115234
constexpr float kLn2LoS = 0x1.0bfbe8p-15f; // 3.19461833e-05
constexpr float kLn2S = 0x1.62e43p-1f;     // EP's one part, 0.693147182
// S(r) = r + r*r2*Horner(r2, kS), C(r) = r2*Horner(r2, kC).
// LA: the set of the both-exponentials body.
constexpr float kSinhLA[] = {0.16666542f, 0.00836667512f};
constexpr float kCoshLA[] = {0.5f, 0.0416664556f, 0.00139357557f};
// EP: fitted by tools/hyper/cosh_sinh_single.sollya.
constexpr float kSinhEP[] = {0x1.565bbp-3f};
constexpr float kCoshEP[] = {0.5f, 0x1.56044ap-5f};

enum class Fn { Cosh, Sinh };

// RangeTest with the limit kept from the optimiser, which would compare a window with an
// offset (Sinh's) against the limit plus one by a minimum and an equality: three
// instructions in place of one (sSinh LA at n = 1000, 2.5 -> 2.2 ticks an element).
inline __m128 HeldRangeTest(__m128 x, Range32 w) {
    I32x4 bits = Add(And(AsInt(x), Set<uint32_t>(w.mask)), Set<uint32_t>(w.offset));
    return AsFloat(Gt(bits, Opaque(Set<uint32_t>(w.limit))));
}

// Whether a lane of a single round of sixteen is outside the window: the signed maximum
// of the four registers' (bits & mask) + offset against the limit, the same signed test
// HeldRangeTest takes a register.
inline bool OutsideHeld(const __m128* x, Range32 w) {
    const I32x4 mask = Set<uint32_t>(w.mask), offset = Set<uint32_t>(w.offset);
    // Written out, not a loop over an array, which GCC kept (and the gain with it).
    auto t = [&](int k) { return Add(And(AsInt(x[k]), mask), offset); };
    I32x4 m = Max(Max(t(0), t(1)), Max(t(2), t(3)));
    return MaskBits(AsFloat(Gt(m, Opaque(Set<uint32_t>(w.limit))))) != 0;
}

// The single both-exponentials body on a = |x| (special lanes zero). LA: the scales
// e1 = 2^(n-1) and e2 = 2^(-n-1) as bits(0.5) +- (n << 23), for a below 87.3365326 (n at
// most 126, e2 then 0). EP runs on up to 89.41, where n reaches 129 and 2^(n-1) leaves the
// format: its scales are made a half smaller, 2^(n-2) and 2^(-n-2) (held at 0 from n = 125
// on, where it no longer counts), and the result doubled, exactly.
template <Fn F, Level L>
inline __m128 BothExps(__m128 a) {
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    __m128 t = Add(Mul(a, Set<float>(kLog2eS)), shifter);
    __m128 n = Sub(t, shifter);
    __m128 r;
    if constexpr (L == Level::EP) // ln 2 in one part: n*2^-25 (2^-18 at most) in r
        r = Sub(a, Mul(n, Set<float>(kLn2S)));
    else
        r = Sub(Sub(a, Mul(n, Set<float>(kLn2HiS))), Mul(n, Set<float>(kLn2LoS)));
    // The shifter's low bits hold n; shifted into the exponent field, the shifter's own
    // bits leave the word.
    I32x4 nf = ShiftLeft<Format<float>::kMantBits>(AsInt(t));
    __m128 e1, e2;
    if constexpr (L == Level::EP) {
        const I32x4 quarter = Set<uint32_t>(0x3E800000u);
        e1 = AsFloat(Add(quarter, nf));
        e2 = AsFloat(Max(Sub(quarter, nf), Set<int32_t>(0)));
    } else {
        const I32x4 half = Set<uint32_t>(0x3F000000u);
        e1 = AsFloat(Add(half, nf));
        e2 = AsFloat(Sub(half, nf));
    }
    __m128 r2 = Mul(r, r);
    __m128 s, c;
    if constexpr (L == Level::EP) {
        s = Add(r, Mul(Mul(r, r2), Horner(r2, kSinhEP)));
        c = Mul(r2, Horner(r2, kCoshEP));
    } else {
        s = Add(r, Mul(Mul(r, r2), Horner(r2, kSinhLA)));
        c = Mul(r2, Horner(r2, kCoshLA));
    }
    __m128 p = Add(e1, e2), m = Sub(e1, e2);
    __m128 y;
    if constexpr (F == Fn::Cosh)
        y = Add(p, Add(Mul(c, p), Mul(m, s)));
    else
        y = Add(m, Add(Mul(c, m), Mul(p, s)));
    if constexpr (L == Level::EP) y = Add(y, y);
    return y;
}

// The double path on a = |x| in [0, 710.4702]: HA exact sums, HA and LA the degree-5 tail
// (its 2^-51.25 relative to e^r - 1 is below 2^-58 of e^r), EP the degree 4 (Sinh's EP
// is its LA kernel). Every level takes B as 1/(4A) in every register (below); HA from 3
// up, with A in its two exact parts, and B from the table and the exact sums only in a
// register with a lane below 3, blended in there.
template <Level L>
constexpr ExpDegree kHalvesDegree = L == Level::EP ? ExpDegree::Four : ExpDegree::Five;

template <Fn F, Level L>
BRENN_VEC __m128d SumOfHalves(__m128d a, const ExpHalves& h) {
    static_assert(L == Level::HA, "LA and EP take B as 1/(4A)");
    if constexpr (F == Fn::Cosh)
        return Sum(CoshOf<true>(h));
    else
        return Sum(SinhOf<true, SinhSeriesHA>(a, h));
}

// LA and EP: B as 1/(4A), A held at 2^60 (beyond it B is nothing to the result, and
// must not come out denormal), in every register, so that no branch follows where the
// lanes below 21.49 fall (on inputs across the range, one round in three has one, and
// their pattern defeats the branch predictor: with B from the table only in the rounds
// that need it, dSinh LA ran 4.33 ticks an element at n = 1000 and 5.21 at 10^6, where
// the predictor no longer learns the rounds; by 1/(4A) 4.56 at both). A's relative error
// goes into B with the opposite sign, the quotient's rounding is half an ulp of B; Sinh's
// A - B loses at most a bit to it from 1/2 up (A/(A - B) at most 1.6 there), and below
// 1/2 takes the series, in the registers that have such a lane.
template <Fn F, Level L>
constexpr bool kFromA = L != Level::HA;
template <Fn F>
BRENN_VEC __m128d FromA(__m128d A) {
    __m128d b = Div(Set<double>(0.25), Min(A, Set<double>(0x1p60)));
    if constexpr (F == Fn::Cosh)
        return Add(A, b);
    else
        return Sub(A, b);
}
// HA from 3 up: A's head and tail (exact products) and B as 1/(4A) in every register,
// A + B or A - B as ah + (al +- B). There B is at most 0.0025 of the result (e^-6), and
// its error, A's and the quotient's, about 2^-52 of B, a few thousandths of an ulp of
// it; the quotient held at 2^-62 and up, so that it never comes out denormal (no
// underflow flag). Below 3 the exact halves and sums take over in the
// registers that need them, a round in fifteen on inputs across the range, where the
// whole band below 21.49 took them in one round in three and the predictor lost that
// branch at n = 10^6 (dSinh HA 4.41 ticks an element at n = 1000, 5.30 at 10^6).
constexpr double kHalvesExactEnd = 3.0;
template <Fn F>
BRENN_VEC __m128d HalvesFromA(const HalvesState& s) {
    __m128d ah = Mul(s.th, s.sa), al = Mul(s.u, s.sa);
    __m128d b = Div(Set<double>(0.25), Min(Add(ah, al), Set<double>(0x1p60)));
    return Add(ah, F == Fn::Cosh ? Add(al, b) : Sub(al, b));
}
BRENN_VEC __m128d SeriesBelowHalf(__m128d a, __m128d y) {
    __m128d small = Lt(a, Set<double>(kSinhSeriesEnd));
    if (!MaskBits(small)) return y;
    return IfThenElse(small, Add(a, SinhSeriesTail<SinhSeriesLA>(a)), y);
}

template <Fn F, Level L>
BRENN_VEC __m128d HalvesPath(__m128d a) {
    HalvesState s;
    HalfAStep<kHalvesDegree<L>>(a, s);
    if constexpr (kFromA<F, L>) {
        __m128d y = FromA<F>(HalfExpFrom(s));
        if constexpr (F == Fn::Sinh) y = SeriesBelowHalf(a, y);
        return y;
    } else {
        const __m128d both = Lt(a, Set<double>(kHalvesExactEnd));
        const int bits = MaskBits(both);
        const __m128d y = HalvesFromA<F>(s);
        if (!bits) return y;
        HalfBStep(s);
        __m128d v = SumOfHalves<F, L>(a, s.h);
        return bits == 3 ? v : IfThenElse(both, v, y);
    }
}

// The registers of a round with a lane below 3: B and the sums, with A again,
// blended into y. Out of line: on ordinary inputs a few registers take it, and the
// round's main steps keep the registers to themselves.
template <Fn F, Level L>
__attribute__((noinline)) void HalvesBoth(const __m128d* a, __m128d* y) {
    for (int k = 0; k < 8; ++k) {
        const __m128d lt = Lt(a[k], Set<double>(kHalvesExactEnd));
        const int b = MaskBits(lt);
        if (!b) continue;
        __m128d v = SumOfHalves<F, L>(a[k], HalvesOf<kHalvesDegree<L>>(a[k]));
        y[k] = b == 3 ? v : IfThenElse(lt, v, y[k]);
    }
}

// A double round of sixteen step by step over its eight registers: the range tests, then
// A of every register (its chains overlap), then LA and EP B as 1/(4A), HA, where the
// round's least |x| is below 21.49, B and the sums in the registers that need them.
// Sinh LA and EP take a round with a lane below 1/2 register by register, the series in
// it, on a path of its own with no join: the common path stays one block for the
// scheduler (with the series step after it, even out of line, 4.40 -> 4.60 ticks an
// element). Returns the special-lane bits.
template <Fn F, Level L>
BRENN_VEC int HalvesRound(const __m128d* x, __m128d* y) {
    __m128d a[8];
    HalvesState s[8];
    int bits = 0;
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k) {
        __m128d special = RangeTest(x[k], CoshWindow<double>::kWindow);
        bits |= MaskBits(special) << (2 * k);
        a[k] = IfThenElse(special, Zero<double>(), Abs(x[k])); // special lanes run on 0
    }
    const __m128d least = Min(Min(Min(a[0], a[1]), Min(a[2], a[3])),
                              Min(Min(a[4], a[5]), Min(a[6], a[7])));
    int both = 0;
    if constexpr (!kFromA<F, L>) both = MaskBits(Lt(least, Set<double>(kHalvesExactEnd)));
    if constexpr (F == Fn::Sinh && kFromA<F, L>) {
        if (__builtin_expect(MaskBits(Lt(least, Set<double>(kSinhSeriesEnd))), 0)) {
            for (int k = 0; k < 8; ++k)
                y[k] = Or(HalvesPath<F, L>(a[k]), SignBit(x[k]));
            return bits;
        }
    }
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        HalfAStep<kHalvesDegree<L>>(a[k], s[k]);
    if constexpr (kFromA<F, L>) {
#pragma GCC unroll 8
        for (int k = 0; k < 8; ++k) {
            __m128d v = FromA<F>(HalfExpFrom(s[k]));
            if constexpr (F == Fn::Sinh) v = Or(v, SignBit(x[k]));
            y[k] = v;
        }
        return bits;
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < 8; ++k)
            y[k] = HalvesFromA<F>(s[k]);
        if (both) HalvesBoth<F, L>(a, y);
    }
    if constexpr (F == Fn::Sinh) {
#pragma GCC unroll 8
        for (int k = 0; k < 8; ++k)
            y[k] = Or(y[k], SignBit(x[k]));
    }
    return bits;
}

// Single HA, in single arithmetic: one reduction by ln2/32 and one table row a lane.
// n = rint(a*32/ln2) = 32*m + j, r = a - n*ln2/32 (|r| <= ln2/64, two parts of ln2/32,
// the head's nine bits making n*head and a - n*head exact), and the row k = min(n, 480 + j)
// of cosh and sinh of k*ln2/32 scaled by 2^(2-m), C and S in two singles each
// (coshRowsS, tools/hyper/gen_cosh_tables; from m = 15 on, where e^-a is below 2^-30 of
// e^a, the rows of 480 + j, 2^(1 + j/32) in both, serve every m). With
// E = c*r^2 ~ cosh r - 1 and O = r + d*r^3 ~ sinh r (tools/hyper/cosh_sinh_single_ha.sollya:
// E within 2^-17.6 of itself, under 2^-31.6 of the result; O within 2^-34),
//   cosh a = 2^(m-2) * (Ch + (Sh*O + (Cl + Ch*E))),
//   sinh a = 2^(m-2) * (Sh + (Ch*O + (Sl + Sh*E))),
// the bracket under 1.2 % of the result (4.3 % for Sinh at its smallest n, 12), so that
// its roundings (the small terms summed first, two at its own scale) count little beside
// the one of the sum, and the scaling is exact (the
// result normal up to the overflow point, where m = 129). Sinh takes n = 0 below 1/4,
// where the leading value would be small beside the bracket: there the result is O alone
// (C = 4, S = 0, the scale 1/4), fitted on [0, 1/4] (tools/hyper/sinh_single_ha.sollya,
// 2^-34); from 1/4 on its O is Cosh's. A Sinh round of sixteen with no lane below 1/4
// (tested once, with the window) takes Cosh's steps and no blend; the others go register
// by register, each lane choosing its O by its own a.
constexpr float kInvStepS = 0x1.715476p+5f;   // 32/ln2, 46.1662407
constexpr float kStepHiS = 0x1.63p-6f;        // ln2/32, head: 0.0216674805
constexpr float kStepLoS = -0x1.bd0106p-18f;  // and the rest: -6.6310763e-06
constexpr float kEvenHA = 0x1.000054p-1f; // c
constexpr float kOddHA = 0x1.555598p-3f;  // d
constexpr float kSinhSmallHA[] = {0x1.555556p-3f, 0x1.110e5cp-7f, 0x1.a92574p-13f};
constexpr uint32_t kSinhSmallEndHA = 0x3E800000u; // 0.25

// In three steps, so that a round of sixteen takes each over its four registers before
// the next (HyperSingleHARound): the reduction, the rows, the sums.
// Small: Sinh's lanes below 1/4 may be among them (small marks them).
struct HyperHAState {
    __m128 r, ch, cl, sh, sl, small;
    I32x4 tb;
};
template <Fn F, bool Small>
BRENN_VEC void HyperHAReduce(__m128 a, HyperHAState& s) {
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    __m128 an = a;
    if constexpr (F == Fn::Sinh && Small) { // n = 0 below 1/4
        s.small = AsFloat(Gt(Opaque(Set<uint32_t>(kSinhSmallEndHA)), AsInt(a)));
        an = IfThenZeroElse(s.small, a);
    }
    __m128 t = Add(Mul(an, Set<float>(kInvStepS)), shifter);
    __m128 n = Sub(t, shifter);
    s.r = Sub(Sub(a, Mul(n, Set<float>(kStepHiS))), Mul(n, Set<float>(kStepLoS)));
    s.tb = AsInt(t);
}
// The row and the power from t's bits, the shifter's in them (its bits end in 22 zeros):
// the row min(n, 480 + n mod 32) in the vector unit, the four rows moved to the scalar
// unit in two words (LanePairsOf) for the loads; shifted into the exponent field the
// shifter's bits leave the word.
BRENN_VEC void HyperHARows(HyperHAState& s) {
    const I32x4 tb = s.tb;
    I32x4 row = Min(And(tb, Set<int32_t>(0x3FFFFF)), Add(And(tb, Set<int32_t>(31)), Set<int32_t>(480)));
    LanePairs p = LanePairsOf(row);
    LoadTransposed(coshRowsS[uint32_t(p.lower)], coshRowsS[p.lower >> 32],
                   coshRowsS[uint32_t(p.upper)], coshRowsS[p.upper >> 32], s.ch, s.cl, s.sh, s.sl);
}
template <Fn F, bool Small>
BRENN_VEC __m128 HyperHASum(const HyperHAState& s) {
    const __m128 r = s.r, ch = s.ch, cl = s.cl, sh = s.sh, sl = s.sl;
    I32x4 scale = Add(ShiftLeft<Format<float>::kMantBits>(ShiftRight<5>(s.tb)),
                      Set<uint32_t>(0x3E800000u)); // 2^(m-2)
    __m128 r2 = Mul(r, r);
    __m128 e = Mul(r2, Set<float>(kEvenHA));
    __m128 q = Set<float>(kOddHA);
    if constexpr (F == Fn::Sinh && Small) q = IfThenElse(s.small, Horner(r2, kSinhSmallHA), q);
    __m128 o = Add(r, Mul(Mul(r, r2), q));
    __m128 y;
    if constexpr (F == Fn::Cosh)
        y = Add(ch, Add(Mul(sh, o), Add(cl, Mul(ch, e))));
    else
        y = Add(sh, Add(Mul(ch, o), Add(sl, Mul(sh, e))));
    return Mul(y, AsFloat(scale));
}
template <Fn F>
inline __m128 HyperSingleHA(__m128 a) {
    HyperHAState s;
    HyperHAReduce<F, true>(a, s);
    HyperHARows(s);
    return HyperHASum<F, true>(s);
}
// A round of four registers of |x| step by step, the reductions held apart (Opaque) so
// that the compiler does not sink each into its register's rows and sums; no lane below
// 1/4 in a Sinh round.
template <Fn F>
BRENN_VEC void HyperSingleHARound(const __m128* a, __m128* y) {
    HyperHAState s[4];
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k) {
        HyperHAReduce<F, false>(a[k], s[k]);
        s[k].r = Opaque(s[k].r);
        s[k].tb = Opaque(s[k].tb);
    }
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k)
        HyperHARows(s[k]);
#pragma GCC unroll 4
    for (int k = 0; k < 4; ++k)
        y[k] = HyperHASum<F, false>(s[k]);
}

// Single LA beyond its window, from 87.3365326 up to the overflow point: the lanes of
// `band` take the scalar routine's value, e^a/2 by HalfExpScalar narrowed, here, so that
// only the lanes beyond (overflow, infinities and NaN) take the frame's special-lane path
// (the round's results through memory, lane by lane, and back). On arguments across the
// range about one lane in 40 falls in this band; sCosh LA at n = 10^6, 2.86 -> 2.55
// ticks an element.
__attribute__((noinline)) __m128 UpperBandLA(__m128 x, __m128 y, __m128 band) {
    int bits = MaskBits(band);
    if (!bits) return y;
    alignas(16) float xs[4], ys[4];
    StoreAligned(xs, x);
    StoreAligned(ys, y);
    do {
        int i = __builtin_ctz(bits);
        ys[i] = float(HalfExpScalar(std::fabs(double(xs[i]))));
        bits &= bits - 1;
    } while (bits);
    return LoadAligned(ys);
}

template <Fn F, Level L>
inline __m128 HyperOf(__m128 a) {
    if constexpr (L == Level::HA)
        return HyperSingleHA<F>(a);
    else
        return BothExps<F, L>(a);
}
template <Fn F, Level L>
inline __m128d HyperOf(__m128d a) {
    return HalvesPath<F, L>(a);
}

template <Fn F, class Tp, Level L>
struct HyperBody {
    using T = Tp;
    using V = Vec<T>;
    static BRENN_VEC V Eval(V x, V& special) {
        using W = CoshWindow<float>;
        constexpr bool sinh = F == Fn::Sinh;
        if constexpr (sizeof(T) == 8)
            special = RangeTest(x, CoshWindow<T>::kWindow);
        else if constexpr (L == Level::LA)
            special = HeldRangeTest(x, W::kWindowLA);
        else if constexpr (L == Level::EP)
            special = HeldRangeTest(x, sinh ? W::kSinhWindowEP : W::kWindowEP);
        else
            special = HeldRangeTest(x, sinh ? W::kSinhWindowHA : W::kWindowHA);
        V a = IfThenZeroElse(special, Abs(x)); // special lanes run on 0
        V y = HyperOf<F, L>(a);
        if constexpr (sizeof(T) == 4 && L == Level::LA)
            if (__builtin_expect(MaskBits(special) != 0, 0)) {
                V over = HeldRangeTest(x, CoshWindow<float>::kWindowHA);
                y = UpperBandLA(x, y, AndNot(over, special));
                special = over;
            }
        if constexpr (F == Fn::Sinh) y = Or(y, SignBit(x));
        return y;
    }
    // Double rounds of sixteen, step by step over the round's registers (HalvesRound).
    // Single EP rounds of sixteen with the window tested once a round (OutsideHeld): a
    // round with a lane outside takes Eval a register, the others Value alone; same bits
    // as Eval. (LA the same way measured slower at n = 10^6, 2.57 -> 3.13 ticks: about
    // one round in three has a lane in its upper band, a branch the predictor loses.)
    // Single HA the same way, its round's registers step by step (HyperSingleHARound).
    static constexpr bool kTestOnce = sizeof(T) == 4 && L != Level::LA;
    static constexpr int kRound = sizeof(T) == 8 || kTestOnce ? 16 : 8;
    // Sinh HA's rounds: outside also below 1/4 (HyperSingleHARound has no small band).
    static constexpr Range32 kWindow =
        L == Level::HA
            ? (F == Fn::Sinh ? CoshWindow<float>::kSinhRoundHA : CoshWindow<float>::kWindowHA)
            : (F == Fn::Sinh ? CoshWindow<float>::kSinhWindowEP : CoshWindow<float>::kWindowEP);
    static BRENN_VEC V Value(V x) {
        V y = HyperOf<F, L>(Abs(x));
        if constexpr (F == Fn::Sinh) y = Or(y, SignBit(x));
        return y;
    }
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8) {
            return HalvesRound<F, L>(x, y);
        } else if constexpr (kTestOnce) {
            if (__builtin_expect(OutsideHeld(x, kWindow), 0))
                return EvalByRegister<HyperBody>(x, y);
            if constexpr (L == Level::HA) {
                __m128 a[4];
#pragma GCC unroll 4
                for (int k = 0; k < 4; ++k)
                    a[k] = Abs(x[k]);
                HyperSingleHARound<F>(a, y);
                if constexpr (F == Fn::Sinh) {
#pragma GCC unroll 4
                    for (int k = 0; k < 4; ++k)
                        y[k] = Or(y[k], SignBit(x[k]));
                }
                return 0;
            }
#pragma GCC unroll 4
            for (int k = 0; k < 4; ++k)
                y[k] = Value(x[k]);
            return 0;
        } else {
            return EvalByRegister<HyperBody>(x, y);
        }
    }
};

template <class Tp, Level L>
struct CoshBody : HyperBody<Fn::Cosh, Tp, L> {
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(Tp, Cosh);
    static int Scalar(const Tp* a, Tp* y) { return CoshScalar(a, y); }
};
template <class Tp, Level L>
struct SinhBody : HyperBody<Fn::Sinh, Tp, L> {
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(Tp, Sinh);
    static int Scalar(const Tp* a, Tp* y) { return SinhScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

extern "C" {
// Single kernels flattened: their rounds stay in the kernel's loop with the constants in
// registers (HA and EP about 8 % faster, LA 1-3 %).
BRENN_FLAT_LEVEL_KERNELS(s, Cosh, Unary, brenn::vm::CoshBody)
ZAR_LEVEL_KERNELS(d, Cosh, Unary, brenn::vm::CoshBody)
BRENN_FLAT_LEVEL_KERNELS(s, Sinh, Unary, brenn::vm::SinhBody)
ZAR_KERNEL_OF(d, Sinh, LaEp, Unary, brenn::vm::SinhBody<double, brenn::vm::Level::LA>)
ZAR_KERNEL_OF(d, Sinh, HA, Unary, brenn::vm::SinhBody<double, brenn::vm::Level::HA>)
}
