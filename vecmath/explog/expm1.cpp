/* Expm1, single and double.
 *
 * Single, one kernel for every level: the table of 64, e^x - 1 = (S - 1) + S*(p + Tl),
 * S = 2^m*2^(j/64), |r| <= ln2/128, degree 3 with the single constants, the steps in
 * double lanes and rounded once to single (Expm1Table64).
 * The double kernels reduce on the table of 256 (exp_core256.h's step; the rows
 * 2^(j/256) = Thi*(1 + d) in two columns, Thi's less j*2^44 in its bits): e^x - 1 =
 * 2^m*Thi*e^(r + d) - 1, S = 2^m*Thi by the integer addition of n*2^44 to the row.
 * HA (degree 5) takes S - 1 exactly and adds S*p to it (Expm1HaFar) but for |x| < 0.69,
 * where it carries the first difference and its sum with the leading part of the
 * product exactly (Expm1HaNear); a round of sixteen with no such argument runs the far
 * form alone. LA (degree 5) rounds the sums (Expm1LaOf), EP (degree 3) takes the high
 * parts alone (Expm1EpOf, the form of single EP).
 * The scalar routines run the table core of exp_core.h: e^x - 1 = 2^m*T*(1 + p) - 1 with
 * the subtraction of 1 placed by m so that nothing cancels: for -1 <= m <= 52,
 * 2^m*((Thi - 2^-m) + s), the inner difference exact; for m > 52, 2^m*(Thi + (s - 2^-m));
 * for m <= -2, 2^m*(Thi + s) - 1, the result then being near -1. Here s = Thi*p + Tlo.
 * For small |x| (m = 0, j = 0) this is p itself, whose polynomial is fitted for relative
 * error; degree 6 (EP 4), at HA th*r and the middle sum carried exactly.
 * Range test x outside [-708, 709.77] (double, by high words) or |x| above 86.6433945
 * (single); the scalar routine gives +inf above the overflow limit (an overflow),
 * -1 for large negative x, e^x itself above 709 (where the core's scale 2^m would pass
 * 2^1022), and the core's value otherwise. Error mode 0x2000 blends the overflow lanes to +inf.
 * Rounds of sixteen elements, the range tested once a round (wide.h).
 *
 * Measured (brenn_accuracy, full run): sExpm1 0.605 ulp; dExpm1 LA 1.00 ulp, HA 0.50 ulp,
 * EP 35.2 bits. The polynomials: on the table of 256 tools/explog/expm1_double256.sollya,
 * the scalar core's tools/explog/expm1_double.sollya. */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_core256.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

template <ExpDegree D, bool Exact>
inline __m128d Expm1Core(__m128d x) {
    using S = ExpStep64;
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d t = Add(Mul(x, Set<double>(S::kInvStep)), shifter);
    __m128d n = Sub(t, shifter);
    // r = rh + rl: the head exact (the constant's trailing zeros), the tail kept apart
    // for HA, where its rounding into r would be magnified by the table value.
    __m128d rh = Sub(x, Mul(n, Set<double>(S::kStepHi)));
    __m128d rl = Mul(n, Set<double>(-S::kStepLo));
    __m128d r = Add(rh, rl);
    __m128d th, tl;
    ExpRows64(t, th, tl);
    __m128d scale = ExpScale64(t), inv = ExpInvScale64(t);
    __m128d tail = ExpPolyTail<D>(r);
    __m128d s = Add(Mul(th, Add(r, tail)), tl);
    __m128d mid;
    if constexpr (Exact) {
        // Near the ends of the middle range th - 2^-m and th*p are of the result's size
        // and of opposite sign: th*rh and the sum are carried exactly (Dekker, Knuth), so
        // that only the last addition rounds at the result's scale.
        __m128d ph, pl, a = Sub(th, inv);
        TwoProduct(th, rh, ph, pl);
        __m128d sum, err;
        TwoSum(a, ph, sum, err);
        __m128d lo = Add(pl, Add(Mul(th, Add(tail, rl)), tl));
        mid = Mul(scale, Add(sum, Add(err, lo)));
    } else {
        mid = Mul(scale, Add(Sub(th, inv), s));
    }
    __m128d big = Mul(scale, Add(th, Sub(s, inv)));
    __m128d neg = Sub(Mul(scale, Add(th, s)), Set<double>(1.0));
    I32x4 m = DupEven(ExpPower64(t)); // m over the whole lane: 32-bit compares are lane masks
    __m128d isBig = BitCast<__m128d>(Gt(m, Set<int32_t>(52)));
    __m128d isNeg = BitCast<__m128d>(Lt(m, Set<int32_t>(-1)));
    __m128d y = IfThenElse(isNeg, neg, IfThenElse(isBig, big, mid));
    // Below 2^-60 the result is x itself; this also keeps the sign of -0.
    __m128d tiny = Lt(Abs(x), Set<double>(0x1p-60));
    return IfThenElse(tiny, x, y);
}

// On the table of 256 (expScaleRows256 and expRelRest256, the step of exp_core256.h):
// x = (256m + j)*ln2/256 + r, |r| <= ln2/512, T = 2^(j/256) = Thi*(1 + d) with d the
// row's relative rest, and e^x - 1 = S*e^(r + d) - 1 to 2^-105, S = 2^m*Thi exact: d
// joins the low part of the reduced argument, whose polynomial then carries Tlo*r too.
// p is fitted for relative error against e^r - 1, so that where m and j are 0 the
// result is p itself.
// Near 0 (|x| < kNear, m = 0 or -1) S - 1 and S*p may cancel; elsewhere |S*p| is below
// 2^-8.4 of the result (m = 1, j = 0 the most) and HA needs no exact head.
struct Expm1Table256 {
    // c2.. of p(r) = r + r^2*(c2 + c3*r + ...), by tools/explog/expm1_double256.sollya:
    // degree 5 (2^-61) and degree 3 (2^-35).
    static constexpr double kC5[] = {0x1.fffffffffffe6p-2, 0x1.5555555555563p-3,
                                     0x1.555557095ea15p-5, 0x1.1111113a81012p-7};
    static constexpr double kC3[] = {0x1.000001ec0cc9ep-1, 0x1.5555561a1a00dp-3};
};

// 0.69 with a low word of 0, so that |x| < kNear is a test of the high word alone: below
// it n = round(x*256/ln2) lies in [-255, 255].
constexpr double kNear = 0x1.6147Ap-1;
inline __m128d NearZero(__m128d x) {
    return Lt(Abs(x), Set<double>(kNear));
}
// Whether a round holds a lane with |x| < kNear, on the high words as they stand: a
// positive x near 0 has a high word below kNear's read unsigned, a negative one below
// INT_MIN + kNear's read signed; the words are folded by an unsigned and a signed
// minimum (pminud, pminsd: no magnitude taken, no copy of x kept for it), the unsigned
// fold moved to signed order (sign bit flipped), and both compared once (the low words'
// lanes are not read).
// The unsigned minimum of 32-bit lanes (SSE4.1 pminud).
inline I32x4 MinUnsigned(I32x4 a, I32x4 b) {
    return I32x4{_mm_min_epu32(a.v, b.v)};
}
template <int N>
inline bool AnyNearZero(const __m128d* x) {
    I32x4 low = BitCast<I32x4>(AsInt(x[0])), fold = low;
#pragma GCC unroll 8
    for (int k = 1; k < N; ++k) {
        I32x4 b = BitCast<I32x4>(AsInt(x[k]));
        low = MinUnsigned(low, b);
        fold = Min(fold, b);
    }
    fold = Min(fold, Xor(low, Set<int32_t>(INT32_MIN)));
    const int32_t high = int32_t(__builtin_bit_cast(uint64_t, kNear) >> 32);
    return (MaskBits(Lt(fold, Set<int32_t>(INT32_MIN + high))) & 0xA) != 0;
}

// Whether every lane of a round has |x| < kNear: the high words of |x| folded by a signed
// maximum.
template <int N>
inline bool AllNearZero(const __m128d* x) {
    I32x4 fold = BitCast<I32x4>(AsInt(Abs(x[0])));
#pragma GCC unroll 8
    for (int k = 1; k < N; ++k)
        fold = Max(fold, BitCast<I32x4>(AsInt(Abs(x[k]))));
    const int32_t high = int32_t(__builtin_bit_cast(uint64_t, kNear) >> 32);
    return (MaskBits(Lt(fold, Set<int32_t>(high))) & 0xA) == 0xA;
}

// x*256/ln2 + shifter: n in the low word, j its low 8 bits, m the rest.
inline __m128d Expm1Steps(__m128d x) {
    return Add(Mul(x, Set<double>(ExpStep256::kInvStep)), Set<double>(Format<double>::kShifter));
}
// S = 2^m*Thi from the lanes' rows of expScaleRows256 (Thi less j*2^44 in its bits):
// n = 256m + j moved up by 44 bits (the bits of t above n's twenty leave the lane) and
// added to the row's bits, so that j takes back its 2^44s and m goes into the exponent.
// One double a lane from each column, by the index scaled by 8. The indices are read
// before t is shifted in place (no copy of t kept for them).
struct Expm1Rows {
    int32_t j0, j1;
};
inline Expm1Rows Expm1RowsOf(__m128d t) {
    return {LowWord<0>(AsInt(t)) & 255, LowWord<1>(AsInt(t)) & 255};
}
inline __m128d Expm1ScaleOf(Expm1Rows j, __m128d t) {
    __m128d row = LoadLanes(&expScaleRows256[j.j0], &expScaleRows256[j.j1]);
    return AsFloat(Add(AsInt(row), ShiftLeft<44>(AsInt(t))));
}

// For HA and LA: S, rh = x - n*stepHi (exact), rn = n*stepLo - d and r = rh - rn (d
// joins the polynomial's argument). The low part is held negated so that x = -0 gives
// r = -0 - (+0) = -0; every other r is rh + (-n*stepLo + d) to the bit.
struct Expm1Reduced {
    __m128d big, rh, rn, r;
};
inline Expm1Reduced Expm1Reduce256(__m128d x) {
    using S = ExpStep256;
    Expm1Reduced e;
    __m128d t = Expm1Steps(x);
    __m128d n = Sub(t, Set<double>(Format<double>::kShifter));
    Expm1Rows j = Expm1RowsOf(t);
    __m128d d = LoadLanes(&expRelRest256[j.j0], &expRelRest256[j.j1]);
    e.big = Expm1ScaleOf(j, t);
    e.rh = Sub(x, Mul(n, Set<double>(S::kStepHi)));
    e.rn = Sub(Mul(n, Set<double>(S::kStepLo)), d);
    e.r = Sub(e.rh, e.rn);
    return e;
}
// q = r^2*Q(r) of p = r + q.
template <size_t N>
inline __m128d Expm1Tail(__m128d r, const double (&c)[N]) {
    return Mul(Mul(r, r), Estrin(r, c));
}

// HA far from 0: (S - 1) + S*p with S - 1 = a + ea exactly (a rounds for m <= -2 and
// m >= 53), a + (ea + S*p).
inline __m128d Expm1HaFar(const Expm1Reduced& e, __m128d q, __m128d& a) {
    __m128d ea;
    TwoSum(e.big, Set<double>(-1.0), a, ea);
    return Add(a, Add(ea, Mul(e.big, Add(e.r, q))));
}
// HA near 0 (a = S - 1 exact): with p = rh + (q - rn) and S*rh = rh + a*rh, the head
// a + rh by Fast2Sum (|a| >= 2^(1/256) - 1 > |rh| unless a is 0): what is left, a*rh
// and S*(q - rn), is below 2^-8 of the result wherever the head cancels (j near 0), so
// that only the last addition rounds at the result's scale. x's sign bit is put back
// (the sums give every result the sign of x but that of -0).
inline __m128d Expm1HaNear(__m128d x, const Expm1Reduced& e, __m128d q, __m128d a) {
    __m128d s, es;
    FastTwoSum(a, e.rh, s, es);
    __m128d lo = Add(Mul(e.big, Sub(q, e.rn)), Mul(a, e.rh));
    return Or(Add(s, Add(es, lo)), SignBit(x));
}

// LA: S*p - (1 - S) with p = r + q, d in the polynomial's argument (r = rh - rn).
// 1 - S is exact for -1 <= m <= 52 and rounds only beyond, far from any cancellation;
// where 1 - S and S*p have the same sign (j near 0 or 256) |S*p| is at most half of
// |1 - S| but where S is 1, which gives p itself: the rounding of r, of S*p and of the
// difference, under 2 ulps in all. The sign of -0 is kept with no step of its own: r is
// -0 there, q (never negative) goes through a maximum with -0 near 0, which gives -0 for
// q = 0 and q itself otherwise, so that p = -0 and -0 - (+0) = -0; every other result
// is the sum (S - 1) + S*p to the bit.
inline __m128d Expm1LaOf(const Expm1Reduced& e, __m128d q) {
    return Sub(Mul(e.big, Add(e.r, q)), Sub(Set<double>(1.0), e.big));
}
inline __m128d Expm1LaTail(__m128d q) {
    return Max(q, Set<double>(-0.0)); // the second operand where both are zeros
}

// The double EP form: x = (N*m + j)*ln2/N + r (N = 256, on the high parts of the table
// of 256), ln2/N in one part (n times it rounds by 2^-44 of the result), S = 2^m*2^(j/N),
// p(r) = r*(1 + r*(c2 + c3*r)) ~ e^r - 1, and e^x - 1 = S*p -
// (1 - S). Where n = 0, r is x itself and so is p for tiny x (1 + r*Q rounds to 1),
// denormals included; -0 gives p = -0 and -0 - (+0) = -0, so that no sign is put back (the sum S*p + (S - 1)
// gave +0 there; every other result of the difference is the sum's). It does not
// cancel: where S*p and 1 - S meet with the same sign, |S*p| is below half of |1 - S| or
// S = 1.
struct Expm1Plain {
    __m128d s, r;
};
inline __m128d Expm1PlainArg(__m128d x, __m128d t) {
    __m128d n = Sub(t, Set<double>(Format<double>::kShifter));
    return Sub(x, Mul(n, Set<double>(ExpStep256::kStepHi + ExpStep256::kStepLo)));
}
inline Expm1Plain Expm1PlainReduce(__m128d x) {
    __m128d t = Expm1Steps(x);
    __m128d r = Expm1PlainArg(x, t);
    return {Expm1ScaleOf(Expm1RowsOf(t), t), r};
}
inline __m128d Expm1EpSeries(__m128d r) {
    return Add(Set<double>(Expm1Table256::kC3[0]), Mul(r, Set<double>(Expm1Table256::kC3[1])));
}
inline __m128d Expm1EpP(__m128d r, __m128d c) {
    return Mul(r, Add(Set<double>(1.0), Mul(r, c)));
}
inline __m128d Expm1EpSum(__m128d s, __m128d p) {
    return Sub(Mul(s, p), Sub(Set<double>(1.0), s));
}
inline __m128d Expm1EpOf(const Expm1Plain& e, __m128d c) {
    return Expm1EpSum(e.s, Expm1EpP(e.r, c));
}

// The double forms by level. HA: Of for every lane, Far for the lanes (and rounds) with no
// argument near 0, which it gives the same bits.
// A round's registers stage by stage: every register's reduction, then every tail, then
// every sum (HA: the far form, or with Near the near form, for a round whose every
// argument is near 0), so that the code holds the round's chains side by side;
// register by register, the table loads and long chains of one register left too little
// of the next ones in the window (HA 4.71 -> 4.13 ticks an element). Same operations,
// same bits as Expm1Of (HA: as its far lanes).
template <Level L, int N, bool Near = false>
inline void Expm1Staged(const __m128d* x, __m128d* y) {
    if constexpr (L == Level::EP) {
        // EP in finer stages (t, the rows, r, p, the sum): 2.18 -> 2.10 ticks, where
        // the same cut of the HA and LA reductions measured 3 to 6 % slower.
        __m128d t[N], s[N], r[N], p[N];
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            t[k] = Expm1Steps(x[k]);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            s[k] = Expm1ScaleOf(Expm1RowsOf(t[k]), t[k]);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            r[k] = Expm1PlainArg(x[k], t[k]);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            p[k] = Expm1EpP(r[k], Expm1EpSeries(r[k]));
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            y[k] = Expm1EpSum(s[k], p[k]);
    } else {
        Expm1Reduced e[N];
        __m128d q[N];
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            e[k] = Expm1Reduce256(x[k]);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            q[k] = Expm1Tail(e[k].r, Expm1Table256::kC5);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            if constexpr (L == Level::HA && Near) {
                // a = S - 1 as the far form's TwoSum gives it (exact here)
                __m128d a = Sub(e[k].big, Set<double>(1.0));
                y[k] = Expm1HaNear(x[k], e[k], q[k], a);
            } else if constexpr (L == Level::HA) {
                __m128d a;
                y[k] = Expm1HaFar(e[k], q[k], a);
            } else {
                y[k] = Expm1LaOf(e[k], Expm1LaTail(q[k]));
            }
        }
    }
}
template <Level L>
inline __m128d Expm1Of(__m128d x) {
    if constexpr (L == Level::HA) {
        Expm1Reduced e = Expm1Reduce256(x);
        __m128d q = Expm1Tail(e.r, Expm1Table256::kC5), a;
        __m128d far = Expm1HaFar(e, q, a);
        return IfThenElse(NearZero(x), Expm1HaNear(x, e, q, a), far);
    } else if constexpr (L == Level::LA) {
        Expm1Reduced e = Expm1Reduce256(x);
        return Expm1LaOf(e, Expm1LaTail(Expm1Tail(e.r, Expm1Table256::kC5)));
    } else {
        Expm1Plain e = Expm1PlainReduce(x);
        return Expm1EpOf(e, Expm1EpSeries(e.r));
    }
}

// The single kernel, one for every level, on the table of 64: t = x*64/ln2 + shifter,
// n = t - shifter, r = (x - n*stepHi) - n*stepLo with ln2/64 in two parts, T = 2^(j/64) =
// Thi*(1 + Tl) for j = n & 63 (single::expTable64), S = 2^m*Thi (m = n >> 6 added to the
// row's exponent field), p = r + r^2*(c2 + c3*r) ~ e^r - 1, and e^x - 1 = S*(1 + q) - 1
// with q = p + Tl, as (S - 1) + S*q.
// The constants, the table and the polynomial are the single ones, but the steps run in
// double lanes, rounded once to single at the end: in single, where S - 1 and S*q meet
// with opposite signs (m = -1 or 0, j near 63 or 1), the roundings of r, p, q and S*q add
// up to 1.47 ulp of the result (x = -0.0069), beyond the level's bound, even with the
// order of the sums chosen by m. In double S - 1 is exact for every m of the window but
// the lowest (S has the 24 bits of Thi) and no sum needs another order.
struct Expm1Single64 {
    static constexpr double kInvStep = 0x1.715476p+6f; // 92.3324814
    static constexpr double kStepHi = 0x1.63p-7f,
                            kStepLo = -0x1.bd0106p-19f;              // 0x3C318000, 0xB65E8083
    static constexpr double kC[] = {0x1.00001ep-1f, 0x1.55557ep-3f}; // 0.500000894, 0.16666697
};
// The double steps of the single kernel, so that a round can take each over all its
// registers: t and r, the rows (Thi and Tl), p, and the sum.
inline __m128d Expm1S64Reduce(__m128d x, __m128d& t) {
    using C = Expm1Single64;
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    t = Add(Mul(x, Set<double>(C::kInvStep)), shifter);
    __m128d n = Sub(t, shifter);
    return Sub(Sub(x, Mul(n, Set<double>(C::kStepHi))), Mul(n, Set<double>(C::kStepLo)));
}
inline void Expm1S64Rows(__m128d t, __m128d& th, __m128d& tl) {
    const float* row0 = single::expTable64[LowWord<0>(AsInt(t)) & 63];
    const float* row1 = single::expTable64[LowWord<1>(AsInt(t)) & 63];
    th = SetLanes(double(row0[0]), double(row1[0]));
    tl = SetLanes(double(row0[1]), double(row1[1]));
}
inline __m128d Expm1S64Poly(__m128d r) {
    using C = Expm1Single64;
    return Add(r, Mul(Mul(r, r), Add(Set<double>(C::kC[0]), Mul(Set<double>(C::kC[1]), r))));
}
inline __m128d Expm1S64Sum(__m128d t, __m128d th, __m128d tl, __m128d p) {
    const __m128d one = Set<double>(1.0);
    __m128d q = Add(p, tl);
    __m128d s = ScaleByLowWord<6>(th, t);
    return Add(Sub(s, one), Mul(s, q));
}
inline __m128d Expm1Table64(__m128d x) {
    __m128d t;
    __m128d r = Expm1S64Reduce(x, t);
    __m128d th, tl;
    Expm1S64Rows(t, th, tl);
    return Expm1S64Sum(t, th, tl, Expm1S64Poly(r));
}
// A single round of N registers stage by stage over its 2N double halves: every half's
// t and r (held apart, Opaque, so that the compiler does not sink them into their sums),
// then the rows, the polynomials and the sums.
template <int N>
inline void Expm1SingleStaged(const __m128* x, __m128* y) {
    constexpr int H = 2 * N;
    __m128d t[H], r[H], th[H], tl[H], p[H], v[H];
#pragma GCC unroll 8
    for (int k = 0; k < H; ++k) {
        __m128d h = k % 2 ? WidenUpper(x[k / 2]) : WidenLower(x[k / 2]);
        r[k] = Opaque(Expm1S64Reduce(h, t[k]));
        t[k] = Opaque(t[k]);
    }
#pragma GCC unroll 8
    for (int k = 0; k < H; ++k)
        Expm1S64Rows(t[k], th[k], tl[k]);
#pragma GCC unroll 8
    for (int k = 0; k < H; ++k)
        p[k] = Expm1S64Poly(r[k]);
#pragma GCC unroll 8
    for (int k = 0; k < H; ++k)
        v[k] = Expm1S64Sum(t[k], th[k], tl[k], p[k]);
#pragma GCC unroll 4
    for (int k = 0; k < N; ++k)
        y[k] = Or(Narrow(v[2 * k], v[2 * k + 1]), SignBit(x[k]));
}
inline __m128 Expm1Table64(__m128 x) {
    return Narrow(Expm1Table64(WidenLower(x)), Expm1Table64(WidenUpper(x)));
}

// By precision and level: the range window on |x| (in single 86.6433945; in double by
// high words from -708 to 709.77, where 2^m is at most 2^1023), and the table core's
// degree and whether its middle sum is carried exactly, for the double HA kernel and for
// the scalar routines (degree 6, EP degree 4).
template <class T>
struct Expm1Const;
template <>
struct Expm1Const<float> {
    template <Level L>
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x42AD496Bu}; // 86.6433945
    template <Level L>
    static constexpr bool kExact = false;
    template <Level L>
    static constexpr ExpDegree kScalarDegree = ExpDegree::Six;
};
template <>
struct Expm1Const<double> {
    template <Level L>
    static constexpr SplitWindowHigh kWindow = {0x40862E28u, 0xC0862000u};
    template <Level L>
    static constexpr bool kExact = L == Level::HA;
    template <Level L>
    static constexpr ExpDegree kScalarDegree = L == Level::EP ? ExpDegree::Four : ExpDegree::Six;
};

// The scalar routine's value for a finite x below the overflow limit.
template <ExpDegree D, bool Exact>
inline double Expm1Value(double x) {
    if (x < -700.0) return -1.0 + 0x1p-1000; // -1, inexact
    // From 709.08 up (m = 1023) the core's 2^-m is a denormal that its exponent field
    // cannot hold, and from 709.7773 (m = 1024) its 2^m is 2^1024, an overflow where the
    // result is still finite. Up here e^x - 1 is e^x far below its last place, and the
    // scalar exponential applies its power of two in two steps.
    if (x > 709.0) return ExpScalarCore(x);
    return GetLane(Expm1Core<D, Exact>(Set<double>(x)));
}

// The single value, every level: e^x - 1 has the sign of x, which the sums give to
// every result but that of -0.
template <Level L>
inline __m128 Expm1Of(__m128 x) {
    return Or(Expm1Table64(x), SignBit(x));
}

// The band above the single window that the scalar routine gives at status 0 (wide.h):
// up to the overflow limit, 88.7228317.
template <class T, Level L>
struct Expm1Band {};
template <Level L>
struct Expm1Band<float, L> {
    static constexpr Band32 kBand = {int32_t(Expm1Const<float>::kWindow<L>.limit), 0x42B17217};
};

template <class Tp, Level L>
struct Expm1Body : Expm1Band<Tp, L> {
    using T = Tp;
    using V = Vec<T>;
    using K = Expm1Const<T>;
    static constexpr bool kExact = K::template kExact<L>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Expm1);
    static constexpr auto kWindow = K::template kWindow<L>;
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) { return EvalTestOnce<Expm1Body>(x, y); }
    static V Value(V x) { return Expm1Of<L>(x); }
    // Double: the round stage by stage; at HA a round with no argument near 0 takes the
    // far form alone, which is what the blended form gives each of its lanes.
    static void ValueRound(const V* x, V* y)
        requires(sizeof(T) == 8)
    {
        constexpr int N = 16 / kLanes<T>;
        if (L == Level::HA && AnyNearZero<N>(x)) {
            if (AllNearZero<N>(x)) {
                Expm1Staged<L, N, true>(x, y);
                return;
            }
            // Opaque: the two forms' common steps are not hoisted above the branch,
            // which left the far round with the near round's registers on the stack.
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k)
                y[k] = Expm1Of<L>(Opaque(x[k]));
        } else {
            Expm1Staged<L, N>(x, y);
        }
    }
    static void ValueRound(const V* x, V* y)
        requires(sizeof(T) == 4)
    {
        Expm1SingleStaged<16 / kLanes<T>>(x, y);
    }
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        x = IfThenZeroElse(special, x); // special lanes run on 0: no flags of their own
        return Expm1Of<L>(x);
    }
    static int Scalar(const T* a, T* y) {
        T x = *a;
        if (__builtin_isnan(x)) {
            *y = x + x;
            return status::kNone;
        }
        if (__builtin_isinf(x)) {
            *y = x > 0 ? x : T(-1);
            return status::kNone;
        }
        if (x > ExpLimits<T>::kOver) {
            volatile T big = std::numeric_limits<T>::max();
            *y = big * big;
            return status::kOverflow;
        }
        *y = T(Expm1Value<K::template kScalarDegree<L>, kExact>(double(x)));
        return status::kNone;
    }
    static int FixNoError(const V* x, V* y, int bits) {
        return FixExpLimits<T>(x, y, bits, ExpLimits<T>::kOver,
                               -std::numeric_limits<T>::infinity());
    }
};

} // namespace
} // namespace brenn::vm

using brenn::vm::Expm1Body;

extern "C" {
BRENN_FLAT ZAR_KERNEL_OF(s, Expm1, All, Unary, Expm1Body<float, brenn::vm::Level::HA>)
    BRENN_FLAT_LEVEL_KERNELS(d, Expm1, Unary, Expm1Body)
}
