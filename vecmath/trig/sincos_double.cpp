/* Sin, Cos and SinCos in double, three levels.
 *
 * EP and LA: for sine n = round(x/pi) by the shifter, the low bit of the rounded value
 * the sign (-1)^n, r = x - n pi (EP on x with its sign, LA on |x|); for cosine the
 * half-integer n = floor(|x|/pi) + 1/2 and r = n pi - |x|; pi in three parts (EP) or
 * four (LA), and an odd series of five (EP) or eight (LA) terms on [-pi/2, pi/2]
 * (tools/trig/sin_double_ep.sollya, sin_double_la.sollya), its polynomial in r^2 by
 * Estrin's scheme (LA: all but the two lowest terms), EP's as r (1 + u P(u)).
 * HA: the table method at pi/64, j = round(|x| 64/pi), r = |x| - j pi/64 in three parts
 * kept as two doubles, and sin(A) cos(r) + cos(A) sin(r) from the table of sin and cos
 * at multiples of pi/64 (cosine at j + 32).
 *
 * Above 2^24 the LA and HA kernels reduce the lanes concerned in vector form (reduce.h)
 * and finish by the table; the EP kernel sends them to its scalar routine, which runs
 * the same reduction on the one element. SinCos at EP runs the EP bodies of both; at LA
 * and HA it evaluates both results from one reduction by the table, and at HA that
 * reduction runs in x87 extended precision.
 *
 * The kernels run sixteen elements a round: one range test for the round, and with every
 * lane finite and below 2^24 the short path alone, without the large path's lane tests
 * (each step over several registers at a time, so that their chains interleave: four for
 * HA's table, all eight for the pi reduction).
 *
 * Measured (brenn_accuracy, 250000 inputs a row): EP 27.1 bits in dSin, dCos and
 * dSinCos; LA 3.01 ulp (dSin), 3.12 ulp (dCos), 0.976 ulp (dSinCos); HA 0.534 ulp
 * (dSin), 0.527 ulp (dCos), 0.532 ulp (dSinCos). */
#include <bit>

#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/level.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

constexpr double kLimit = 0x1p24; // the table's short reduction below, the large above
constexpr uint64_t kLimitD = std::bit_cast<uint64_t>(kLimit);

// pi in parts for the pi reduction: the first two of 23 and 21 significant bits, so
// that their products with n (24 bits at most) are exact; EP ends with a third, LA with a
// shorter third and a fourth.
constexpr double kInvPi = 0x1.45f306dc9c883p-2;
constexpr double kPiEP[] = {0x1.921fb4p1, 0x1.4442dp-23, 0x1.8469898cc517p-47};
constexpr double kPiLA[] = {0x1.921fb4p1, 0x1.4442dp-23, 0x1.846988p-47, 0x1.8cc51701b839ap-71};

// sin r ~ r + r u P(u), u = r^2, on [-pi/2, pi/2]; P's coefficients lowest degree first.
// EP: five terms (tools/trig/sin_double_ep.sollya measures the set: 2^-27.1).
constexpr double kSinEP[] = {-0.16666658839437162, 0.0083330466452487071, -0.00019808085361787,
                             2.6022725384193179e-06};
// LA: eight terms (tools/trig/sin_double_la.sollya: 2^-52.3), in two parts: the two low
// coefficients by Horner steps after the five high ones by Estrin's scheme.
constexpr double kSinLALow[] = {-0.16666666666666186, 0.0083333333332855416};
constexpr double kSinLAHigh[] = {-0.00019841269825056256, 2.7557316600552628e-06,
                                 -2.5051880273862881e-08, 1.6048095404959637e-10,
                                 -7.3733445331106646e-13};

// Within 2^-27 of a multiple of pi cosine rounds to +-1: there r, reduced to n pi - a, is
// within 2^-27 of +-pi/2, and its square at least (pi/2 - 2^-27)^2, whose bits (rounded
// down) these are.
constexpr uint64_t kCosOneSqBits = 0x4003BD3CC69A0673ull;

// Cosine's half-integer n = floor(a/pi) + 1/2 added to 1.5 * 2^51 (whose last bit is
// 1/2): the sum is exact, and its bit 1 is the parity of floor(a/pi).
constexpr double kHalfShifter = 0x1.8p51;

// sin or cos of M registers below 2^24 by the pi reduction, each step over all of them
// before the next, so that their chains interleave. Sine: n = round(x/pi) by the
// shifter, r = x - n pi and sin x = (-1)^n sin r; EP takes x with its sign (n and r odd
// in x, and its series r (1 + u P(u)) keeps the sign of a zero), LA takes |x| (its series
// r + r u P(u) turns -0 into +0), the caller putting the sign back. Cosine takes
// a = |x|, n = floor(a/pi) + 1/2 and cos a = -(-1)^floor(a/pi) sin(a - n pi), the minus
// sign taken by reducing to n pi - a.
template <Level L, int M>
BRENN_TRIG_HOT void ShortPiEach(const __m128d* a, bool cosine, __m128d* y) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    constexpr int kParts = L == Level::EP ? 3 : 4;
    const double* pi = L == Level::EP ? kPiEP : kPiLA;
    __m128d t[M], n[M], r[M], u[M], p[M], sign[M];
    if (cosine) {
        BRENN_EACH(k, M) {
            __m128d f = Floor(Mul(a[k], Set<double>(kInvPi)));
            t[k] = Add(f, Set<double>(kHalfShifter));
            n[k] = Add(f, Set<double>(0.5));
            sign[k] = AsFloat(ShiftLeft<62>(AsInt(t[k])));
        }
        BRENN_EACH(k, M) r[k] = Sub(Mul(n[k], Set<double>(pi[0])), a[k]);
#pragma GCC unroll 4
        for (int i = 1; i < kParts; ++i)
            BRENN_EACH(k, M) r[k] = Add(r[k], Mul(n[k], Set<double>(pi[i])));
    } else {
        BRENN_EACH(k, M) {
            t[k] = Add(Mul(a[k], Set<double>(kInvPi)), shifter);
            n[k] = Sub(t[k], shifter);
            sign[k] = AsFloat(ShiftLeft<63>(AsInt(t[k]))); // (-1)^n
        }
        BRENN_EACH(k, M) r[k] = Sub(a[k], Mul(n[k], Set<double>(pi[0])));
#pragma GCC unroll 4
        for (int i = 1; i < kParts; ++i)
            BRENN_EACH(k, M) r[k] = Sub(r[k], Mul(n[k], Set<double>(pi[i])));
    }
    BRENN_EACH(k, M) u[k] = Mul(r[k], r[k]);
    if constexpr (L == Level::EP) {
        BRENN_EACH(k, M) p[k] = Estrin(u[k], kSinEP);
        BRENN_EACH(k, M) y[k] = Xor(Mul(r[k], MulAdd(u[k], p[k], Set<double>(1.0))), sign[k]);
    } else {
        BRENN_EACH(k, M) p[k] = Estrin(u[k], kSinLAHigh);
        BRENN_EACH(k, M) p[k] = MulAdd(u[k], p[k], Set<double>(kSinLALow[1]));
        BRENN_EACH(k, M) p[k] = MulAdd(u[k], p[k], Set<double>(kSinLALow[0]));
        BRENN_EACH(k, M) y[k] = Xor(Add(r[k], Mul(Mul(r[k], u[k]), p[k])), sign[k]);
    }
    // cos a within 2^-27 of a multiple of pi (0 and tiny a among them) rounds to +-1:
    // given exactly, with the series' sign. Such lanes are rare: a test of the squares'
    // high words a step (their 32-bit maxima, one compare), the exact test and the blend
    // only when it fires. The squares are at hand, so a need not be kept to the end.
    if (cosine) {
        const I64x2 limit = Set<uint64_t>(kCosOneSqBits - 1);
        I32x4 most = BitCast<I32x4>(AsInt(u[0]));
        BRENN_EACH(k, M - 1) most = Max(most, BitCast<I32x4>(AsInt(u[k + 1])));
        const I32x4 high =
            BitCast<I32x4>(Set<uint64_t>(((kCosOneSqBits >> 32) - 1) << 32 | 0x7FFFFFFFu));
        if (__builtin_expect(MaskBits(Gt(most, high)) != 0, 0)) {
            BRENN_EACH(k, M) {
                __m128d one = Or(And(y[k], SignMask<double>()), Set<double>(1.0));
                y[k] = IfThenElse(AsFloat(Gt(AsInt(u[k]), limit)), one, y[k]);
            }
        }
    }
}

// The same for one register. With kClamp, lanes above the limit (the large path's) are
// clamped and raise no flag; without, the caller has seen that there are none.
template <Level L, bool kClamp = true>
inline __m128d ShortPiRaw(__m128d a, bool cosine) {
    if (kClamp) a = Min(a, Set<double>(kLimit));
    if (kClamp && L == Level::EP && !cosine) a = Max(a, Set<double>(-kLimit));
    __m128d y;
    ShortPiEach<L, 1>(&a, cosine, &y);
    return y;
}

template <Level L>
inline __m128d ShortPi(__m128d a, bool cosine) {
    return ShortPiRaw<L>(a, cosine);
}

// sin (or cos) of every finite lane of a by the table, large lanes reduced in vector form.
BRENN_TRIG_HOT __m128d ByTable(__m128d a, bool cosine, bool exact) {
    alignas(16) int32_t J[2], K[2];
    __m128d rh, rl;
    ShortD(Min(a, Set<double>(kLimit)), J, rh, rl, cosine ? 32 : 0);
    int big = LargeLanes(a, kLimitD);
    if (__builtin_expect(big != 0, 0)) {
        __m128d bh, bl;
        LargeD(a, K, bh, bl);
        if (cosine) K[0] += 32, K[1] += 32;
        PickD(big, K, bh, bl, J, rh, rl);
    }
    return TableSin(J, rh, rl, exact);
}
// sin(A + rh + rl) from a row of sinCosPi64Split, whose fourth column is cos A's rest
// beyond its 26-bit head as Combine's exact form makes it, (ch - chh) + cl, rounded the
// same: the same operations on the same values as Combine and the sum of its parts, but
// the two additions that formed that rest (the round is bound by the adding pipes).
BRENN_TRIG_HOT __m128d SinOfSplitRow(const TableRow& row, __m128d rh, __m128d rl) {
    const __m128d head = SplatBits<double>(0xFFFFFFFFF8000000ull);
    Series r = SeriesOf(rh);
    __m128d t = Add(Mul(row.ch, Add(rl, r.ps)), Mul(row.sh, r.pc));
    __m128d chh = And(row.ch, head), rhh = And(rh, head);
    __m128d rhl = Sub(rh, rhh);
    __m128d p = Mul(chh, rhh);
    t = Add(t, Add(row.sl, Add(Mul(chh, rhl), Mul(row.cl, rh))));
    __m128d hi = Add(row.sh, p);
    __m128d lo = Add(Add(Sub(row.sh, hi), p), t);
    return Add(hi, lo);
}
// ByTable for M registers below the limit (the HA round), each step over all of them
// before the next, so that their chains interleave; the same operations lane by lane.
// Sine's round gives a with its sign (the steps are odd in it).
template <int M>
BRENN_TRIG_HOT void ByTableShort(const __m128d* a, bool cosine, __m128d* y) {
    alignas(16) int32_t J[M][2];
    __m128d rh[M], rl[M];
    BRENN_EACH(k, M) ShortD(a[k], J[k], rh[k], rl[k], cosine ? 32 : 0);
    TableRow t[M];
    BRENN_EACH(k, M) t[k] = LoadRows(J[k], sinCosPi64Split);
    BRENN_EACH(k, M) y[k] = SinOfSplitRow(t[k], rh[k], rl[k]);
}
// The same out of line, for the LA kernels' rare lanes above 2^24.
BRENN_TRIG_COLD __m128d ByTableLarge(__m128d a, bool cosine) {
    return ByTable(a, cosine, false);
}

// Whether the scalar routine's element is finite (EP sends its lanes above 2^24 there).
inline bool Finite(double x) {
    return __builtin_fabs(x) <= 0x1.fffffffffffffp+1023;
}

// Whether any lane of N registers is above the limit or has a zero high word (zeros and
// denormals below 2^-1042), on the high words alone as AnyAboveD: each magnitude's high
// word plus 0x7FFFFFFF (modulo 2^32) takes a zero one to the greatest signed word and
// the others, in order, below every one it had; the low words, unchanged, are compared
// with 0x7FFFFFFF as there.
template <int N>
BRENN_TRIG_HOT bool AnyAboveOrZeroD(const __m128d* x, uint64_t limitBits) {
    const I32x4 bias = BitCast<I32x4>(Set<uint64_t>(0x7FFFFFFFull << 32));
    I32x4 m = Add(BitCast<I32x4>(AsInt(Abs(x[0]))), bias);
    BRENN_EACH(k, N - 1) m = Max(m, Add(BitCast<I32x4>(AsInt(Abs(x[k + 1]))), bias));
    const uint32_t high = uint32_t(limitBits >> 32) - 1 + 0x7FFFFFFFu;
    const I32x4 limit = BitCast<I32x4>(Set<uint64_t>(uint64_t(high) << 32 | 0x7FFFFFFFu));
    return MaskBits(Gt(m, limit)) != 0;
}

// Registers a step in a round: HA's table four (two measured 10.9 ticks an element for
// cosine, four 9.7, eight 9.7 and more for sine), the pi reduction's eight (LA sine 6.8
// with four, 5.6 with eight).
constexpr int kTableStep = 4;
constexpr int kPiStep = 8;

template <Level L, bool kCos>
struct Body {
    using T = double;
    static constexpr const char* kName = kCos ? ZAR_ERROR_NAME(dCos) : ZAR_ERROR_NAME(dSin);
    static __m128d Eval(__m128d x, __m128d& special) {
        __m128d a = Abs(x);
        __m128d p;
        if constexpr (L == Level::EP) {
            special = RangeTest(a, Range64{~0ull, 0, kLimitD});
            return ShortPi<L>(kCos ? a : x, kCos); // sine with the sign of x
        } else {
            special = InfNan(a);
            if constexpr (L == Level::LA) {
                p = ShortPi<L>(a, kCos);
                int big = LargeLanes(a, kLimitD);
                if (__builtin_expect(big != 0, 0))
                    p = IfThenElse(MaskFromBits<double>(big), ByTableLarge(a, kCos), p);
            } else {
                p = ByTable(a, kCos, true);
            }
        }
        if (!kCos) p = Xor(p, SignBit(x));
        return p;
    }
    // A round of sixteen: with every lane finite and below 2^24 (the common case), the
    // eight registers without the large path's tests, and cosine's test for tiny
    // arguments once for the round; otherwise register by register through Eval.
    static constexpr int kRound = 16;
    static int EvalWide(const __m128d* x, __m128d* y) {
        __m128d a[8];
        if constexpr (L == Level::HA && !kCos) {
            // Sine runs on x with its sign: every step is odd in x (rounding to nearest
            // is symmetric, j and r change sign, and the row at -j mod 128 holds sin A
            // negated and cos A as it is), so each lane gets the bits of sin |x| with the
            // sign of x, and no argument stays live for the sign (6.4 -> 5.9 ticks). A
            // zero would lose its sign (the row's +0 plus -0 is +0): zeros and the
            // smallest denormals take the element path with the large lanes.
            if (__builtin_expect(AnyAboveOrZeroD<8>(x, kLimitD), 0))
                return EvalEach<Body, 8>(x, y);
#pragma GCC unroll 8
            for (int g = 0; g < 8; g += kTableStep)
                ByTableShort<kTableStep>(x + g, false, y + g);
            return 0;
        }
        if (__builtin_expect(AnyAboveD<8>(x, a, kLimitD), 0)) return EvalEach<Body, 8>(x, y);
        if constexpr (L == Level::HA) {
#pragma GCC unroll 8
            for (int g = 0; g < 8; g += kTableStep)
                ByTableShort<kTableStep>(a + g, kCos, y + g);
        } else {
            // EP's sine takes x with its sign.
            ShortPiEach<L, kPiStep>(L == Level::EP && !kCos ? x : a, kCos, y);
            if (!kCos && L != Level::EP) BRENN_EACH(k, 8) y[k] = Xor(y[k], SignBit(x[k]));
        }
        return 0;
    }
    // EP: the lanes above 2^24 come here too and are reduced in full.
    static int Scalar(const double* a, double* y) {
        double x = *a;
        if (!Finite(x)) return InfNanScalar(a, y);
        __m128d v = Set<double>(x);
        __m128d p = ByTable(Abs(v), kCos, false);
        if (!kCos) p = Xor(p, SignBit(v));
        *y = GetLane(p);
        return status::kNone;
    }
};

// SinCos: one reduction by the table for both results. HA reduces short lanes in x87
// extended precision: j pi/64 with a 35-bit first part is exact in a 64-bit
// significand, and the remainder is split into two doubles.
template <Level L>
struct Both {
    using T = double;
    static constexpr const char* kName = ZAR_ERROR_NAME(dSinCos);
    static constexpr X87Rule kX87 = L == Level::HA ? X87Rule::Extended : X87Rule::Masked;
    // Both results for the lanes of x (a = |x|). With kLarge = false the caller has seen
    // that every lane is finite and below 2^24: the large path's tests are left out.
    template <bool kLarge>
    static void Pair(__m128d x, __m128d a, __m128d& s, __m128d& c) {
        if constexpr (L == Level::EP) {
            // The two pi reductions and series of Sin and Cos at EP; lanes above 2^24 go
            // to the scalar routine, as in those rows.
            s = ShortPiRaw<L, kLarge>(x, false);
            c = ShortPiRaw<L, kLarge>(a, true);
            return;
        }
        alignas(16) int32_t J[2];
        __m128d rh, rl;
        Reduce<kLarge>(a, J, rh, rl);
        TableSinCos(J, rh, rl, L == Level::HA, s, c);
        s = Xor(s, SignBit(x));
    }
    // LA and HA: the reduction by the table's pi/64, J and r = rh + rl.
    template <bool kLarge>
    static void Reduce(__m128d a, int32_t* J, __m128d& rh, __m128d& rl) {
        alignas(16) int32_t K[2];
        const __m128d as = kLarge ? Min(a, Set<double>(kLimit)) : a;
        if constexpr (L == Level::HA) {
            // j as in ShortD, by the double shifter; the rest in x87 arithmetic.
            const __m128d shifter = Set<double>(Format<double>::kShifter);
            __m128d t = Add(Mul(as, Set<double>(k64OverPi)), shifter);
            J[0] = LowWord<0>(AsInt(t)) & 127;
            J[1] = LowWord<1>(AsInt(t)) & 127;
            alignas(16) double av[2], jv[2], hv[2], lv[2];
            StoreAligned(av, as);
            StoreAligned(jv, Sub(t, shifter));
#pragma GCC unroll 8
            for (int k = 0; k < 2; ++k) {
                // a - j C0 and - j C1 are exact; the last product is rounded once.
                long double j = jv[k];
                long double r = ((long double)av[k] - j * kPi64PartsX[0]) - j * kPi64PartsX[1];
                long double p = j * kPi64PartsX[2];
                long double h = r - p;
                long double l = (r - h) - p; // exact: |r| >= |p| or r - p exact
                hv[k] = double(h);
                lv[k] = double((h - (long double)hv[k]) + l);
            }
            rh = LoadAligned(hv);
            rl = LoadAligned(lv);
        } else {
            ShortD(as, J, rh, rl, 0);
        }
        int big = kLarge ? LargeLanes(a, kLimitD) : 0;
        if (__builtin_expect(big != 0, 0)) {
            __m128d bh, bl;
            LargeD(a, K, bh, bl);
            PickD(big, K, bh, bl, J, rh, rl);
        }
    }
    static void Eval(__m128d x, __m128d& s, __m128d& c, __m128d& special) {
        __m128d a = Abs(x);
        special = L == Level::EP ? RangeTest(a, Range64{~0ull, 0, kLimitD}) : InfNan(a);
        Pair<true>(x, a, s, c);
    }
    // A round of sixteen: one range test for the round; register by register through
    // Eval when a lane is off the short path.
    static constexpr int kRound = 16;
    static int EvalWide(const __m128d* x, __m128d* s, __m128d* c) {
        __m128d a[8];
        if (__builtin_expect(AnyAboveD<8>(x, a, kLimitD), 0)) return EvalEach<Both, 8>(x, s, c);
        if constexpr (L == Level::EP) {
            ShortPiEach<L, kPiStep>(x, false, s);
            ShortPiEach<L, kPiStep>(a, true, c);
        } else if constexpr (L == Level::HA) {
            // Register by register: four at a time measured slower (31.3 -> 33.2 ticks).
#pragma GCC unroll 2
            for (int k = 0; k < 8; ++k)
                Pair<false>(x[k], a[k], s[k], c[k]);
        } else {
            // The table steps over four registers at a time, as in Sin and Cos.
#pragma GCC unroll 8
            for (int g = 0; g < 8; g += kTableStep) {
                alignas(16) int32_t J[kTableStep][2];
                __m128d rh[kTableStep], rl[kTableStep];
                BRENN_EACH(k, kTableStep) Reduce<false>(a[g + k], J[k], rh[k], rl[k]);
                BRENN_EACH(k, kTableStep) {
                    TableSinCos(J[k], rh[k], rl[k], L == Level::HA, s[g + k], c[g + k]);
                    s[g + k] = Xor(s[g + k], SignBit(x[g + k]));
                }
            }
        }
        return 0;
    }
    static int Scalar(const double* a, double* y, double* z) {
        double x = *a;
        if (Finite(x)) { // EP: above 2^24, in full
            __m128d v = Set<double>(x), m = Abs(v);
            *y = GetLane(Xor(ByTable(m, false, false), SignBit(v)));
            *z = GetLane(ByTable(m, true, false));
            return status::kNone;
        }
        return InfNanScalar(a, y, z);
    }
};

// The bodies by element type and level, as the kernel macros name them.
template <class, Level L>
using SinOf = Body<L, false>;
template <class, Level L>
using CosOf = Body<L, true>;
template <class, Level L>
using SinCosOf = Both<L>;

} // namespace
} // namespace brenn::vm::trig

using brenn::vm::trig::CosOf;
using brenn::vm::trig::SinCosOf;
using brenn::vm::trig::SinOf;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(d, Sin, Unary, SinOf)
BRENN_FLAT_LEVEL_KERNELS(d, Cos, Unary, CosOf)
BRENN_FLAT_LEVEL_KERNELS(d, SinCos, TwoRes, SinCosOf)
}
