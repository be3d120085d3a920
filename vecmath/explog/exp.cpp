/* Exp, single and double, three levels each.
 *
 * sExp: EP works in base 2 (y = x*log2e split by the shifter, cubic in the fraction,
 * 2^n put in by an integer add on the exponent field); LA reduces in base e with a
 * two-part ln 2 and a degree-5 polynomial, 2^n put in the same way; HA reduces by
 * ln2/128 with the 128-entry table and a second-order correction, 2^m as a float scale.
 * dExp: n and j from x*N/ln2 by the shifter; T*(1 + p(r)) with the table of N entries:
 * LA N = 1024, ln 2 in two parts and a cubic; HA N = 64 in two parts, ln 2 in two
 * parts and degree 5; EP N = 128 (the high parts), ln 2 in one part and 1 + r + c*r^2.
 * Range test on |x| above 87.33654 in single (a little inside the last normal results),
 * on x from -708.39 to 709.77 in double; the special lanes, overflow, underflow and
 * denormal results go to the scalar routines: in single one for LA and EP in single
 * arithmetic and one for HA on the body's table, in double from the double core of
 * exp_scalar.h. In error mode 0x2000 overflow and underflow lanes are settled by blends
 * (exp_fixup.h). Rounds of sixteen elements, the range tested once a round (wide.h),
 * every level flattened.
 *
 * Measured (brenn_accuracy, 2*10^6 samples): sExp LA 2.76 ulp, HA 0.55 ulp, EP 12.4 bits;
 * dExp LA 1.79 ulp, HA 0.67 ulp, EP 30.2 bits.
 * Every coefficient is the family's given one; none is fitted here. */
#include "frame/kernels.h"
#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/exp_fixup.h"
#include "vecmath/explog/exp_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

// The range window: on |x| in single, bits(|x|) above 0x42AEAC4F (87.33654, a little
// inside the last normal results), the same at every level (HA's test, bits(|x|) at
// least 0x42AEAC50, is this one).
template <class T, Level L>
struct ExpWindow;
template <Level L>
struct ExpWindow<float, L> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x42AEAC4Fu};
};
template <Level L>
struct ExpWindow<double, L> {
    // In double on the high word of |x|, above 0x4086232A (708.39, inside the last normal
    // results).
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x4086232Au};
};

// The double scalar routine: the special values, 1 + x for |x| below 2^-52 (a biased
// exponent below 971), the limits, then the table of 64 with ln2/64 in two parts and
// degree 6 (ExpRoutineParts, exp_scalar.h). A denormal result: the two parts scaled by 2^(m + 60) (exact), the head
// rounded to the denormal grid by a split (C = 1.5*2^-962 added and subtracted: its last
// place is the grid's, 2^-1014 before the final 2^-60), and the head and the rest scaled
// by 2^-60 apart: the head exactly, the rest (below a grid step and a half) rounded to
// the grid, so that the result rounds once.
template <Level L>
int ExpScalar(const double* a, double* y) {
    using K = ExpLimits<double>;
    const double x = *a;
    const uint64_t b = BitsOf(x);
    const unsigned e = unsigned(b >> 52) & 0x7FF;
    if (e == 0x7FF) {
        *y = b == 0xFFF0000000000000ull ? 0.0 : x * x; // -inf to +0; +inf stays, NaN quieted
        return status::kNone;
    }
    if (e < 971) {
        *y = 1.0 + x;
        return status::kNone;
    }
    if (x > K::kOver) {
        volatile double big = std::numeric_limits<double>::max();
        *y = big * big;
        return status::kOverflow;
    }
    if (x < K::kUnder) {
        volatile double tiny = std::numeric_limits<double>::min();
        *y = tiny * tiny;
        return status::kUnderflow;
    }
    const auto [hi, lo, m] = ExpRoutineParts(x);
    if (x >= -0x1.6232bdd7abcd2p+9) { // -708.3964185322641: a normal result
        const int m1 = m / 2;         // 2^m in two steps: m reaches 1024
        *y = (hi + lo) * Pow2D(m1) * Pow2D(m - m1);
        return status::kNone;
    }
    const double scale = Pow2D(m + 60);
    const double hs = hi * scale, ls = lo * scale;
    constexpr double kGrid = 0x1.8p-962;
    const double hr = (hs + kGrid) - kGrid;
    *y = hr * 0x1p-60 + ((hs - hr) + ls) * 0x1p-60;
    return status::kUnderflow;
}

// Single EP: y = x*log2e, t = y + shifter, n = t - shifter, r = y - n (|r| <= 1/2),
// q = ((c3*r + c2)*r + c1)*r + 1 ~ 2^r, and 2^n*q by adding t's low bits shifted into
// the exponent field to q's bits. About 13 good bits: e is not the nearest float to
// e^1 here.
constexpr float kLog2eS = 0x1.715476p+0f; // 0x3FB8AA3B
constexpr float kExpEP[] = {0x1p+0f, 0x1.62e844p-1f, 0x1.efacd4p-3f, 0x1.c6b056p-5f};
// Single LA: the same t and n, the rest in base e with ln 2 in two parts (the head ends
// in eight zero bits, so that n*head is exact for |n| <= 2^16), and degree 5 on
// |r| <= ln2/2.
constexpr float kLn2HiS = 0x1.62e4p-1f, kLn2LoS = 0x1.7f7d1cp-20f; // 0x3F317200, 0x35BFBE8E
constexpr float kExpLA[] = {0x1p+0f,        0x1.fffffcp-1f, 0x1.fffe68p-2f,
                            0x1.555958p-3f, 0x1.570724p-5f, 0x1.0fb3fcp-7f};
// Single HA: ln2/128 steps with the 128-entry table. The shifter is 1.375 * 2^23, whose
// bits end in seven zeros (see below); the step is in two parts, negated.
constexpr float kShifter128S = 0x1.6p+23f, kInvStep128S = 0x1.715476p+7f;
constexpr float kNegStepHiS = 0x1.63p-8f, kNegStepLoS = -0x1.bd0106p-20f;

// 2^n from the integer in t's low bits (t went through the single shifter): its bits
// shifted into the exponent field and added to y's.
inline __m128 ScaleByLowBits(__m128 y, __m128 t) {
    I32x4 e = ShiftLeft<Format<float>::kMantBits>(AsInt(t));
    return AsFloat(Add(e, AsInt(y)));
}

template <Level L>
inline __m128 ExpOf(__m128 x) {
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    if constexpr (L == Level::EP) {
        __m128 yy = Mul(x, Set<float>(kLog2eS));
        __m128 t = Add(yy, shifter);
        __m128 r = Sub(yy, Sub(t, shifter));
        return ScaleByLowBits(Horner(r, kExpEP), t);
    } else if constexpr (L == Level::LA) {
        __m128 t = Add(Mul(x, Set<float>(kLog2eS)), shifter);
        __m128 n = Sub(t, shifter);
        __m128 r = Sub(Sub(x, Mul(n, Set<float>(kLn2HiS))), Mul(n, Set<float>(kLn2LoS)));
        return ScaleByLowBits(Horner(r, kExpLA), t);
    } else {
        const __m128 shifter128 = Set<float>(kShifter128S);
        __m128 t = Add(Mul(x, Set<float>(kInvStep128S)), shifter128);
        __m128 n = Sub(shifter128, t); // the negated integer
        __m128 r = Add(Add(x, Mul(n, Set<float>(kNegStepHiS))), Mul(n, Set<float>(kNegStepLoS)));
        // The shifter's bits end in seven zeros, so the index is bits(t) & 0x7F, masked in
        // the scalar unit (the vector pipes are the busy ones), and the binary exponent
        // (bits(t) - bits(shifter)) >> 7 is bits(t) >> 7 once shifted into the exponent
        // field: the shifter's part leaves the word.
        // Rows of (T, Tl) pairs, Tl relative to T, transposed into a T and a Tl register.
        __m128 tv, tl;
        GatherPairs(single::expTable128, AsInt(t), 0x7F, tv, tl);
        __m128 s = Add(Add(r, tl), Mul(Set<float>(0.5f), Mul(r, r)));
        __m128 p = Add(Mul(s, tv), tv);
        // 2^m as a float scale, multiplied in (inside the window p*2^m is normal: at its
        // lower end, x = -87.33654, m = -126 comes with r > 0).
        static_assert(((0x4B300000u >> 7) << 23) == 0);
        I32x4 k = ShiftLeft<Format<float>::kMantBits>(
            Add(ShiftRight<7>(AsInt(t)), Set<int32_t>(Format<float>::kBias)));
        return Mul(p, AsFloat(k));
    }
}

// The single scalar routine of LA and EP, in single: the body of LA with its own
// polynomial, 2^n applied through the exponent field in one of three ways.
int ExpScalarLaEp(const float* a, float* y) {
    using K = ExpLimits<float>;
    const float x = *a;
    const uint32_t b = BitsOf(x);
    if ((b & 0x7F800000u) == 0x7F800000u) {
        *y = b == 0xFF800000u ? 0.0f : x * x; // -inf to +0; +inf stays, NaN quieted
        return status::kNone;
    }
    if (x > K::kOver) {
        volatile float big = std::numeric_limits<float>::max();
        *y = big * big;
        return status::kOverflow;
    }
    if (x < K::kUnder) {
        volatile float tiny = std::numeric_limits<float>::denorm_min();
        *y = tiny * tiny;
        return status::kUnderflow;
    }
    constexpr float kShifter = 0x1.8p+23f;
    const float t = 0x1.715476p+0f * x + kShifter; // 1.442695
    const float n = t - kShifter;
    const float r = x - n * 0x1.62e4p-1f - n * 0x1.7f7d1cp-20f; // 0.69314575, 1.4286068e-6
    // 1.0000001, 0.0083811125, 0.041917525, 0.16666326, 0.4999887
    constexpr float c0 = 0x1.000002p+0f;
    const float p =
        c0 +
        ((((0x1.12a1dep-7f * r + 0x1.57636cp-5f) * r + 0x1.55538cp-3f) * r + 0x1.fffd0ap-2f) * r +
         c0) *
            r;
    const int ni = int(n);
    auto field = [](int e) { return FloatOf(uint32_t(e & 255) << 23); };
    if (x < -0x1.5d589ep+6f) { // -87.33654: the result denormal or near it
        *y = p * field(ni - 69) * 0x1p-60f;
        return status::kUnderflow;
    }
    if (ni < -127 || ni > 127) {
        *y = p * field(ni + 126) * 2.0f;
        return status::kNone;
    }
    *y = p * field(ni + 127);
    return status::kNone;
}

// The single scalar routine of HA: the body's reduction and table in single, the
// correction and the power of two applied in double, so that a denormal result is
// rounded once.
int ExpScalarHA(const float* a, float* y) {
    const float x = *a;
    const uint32_t b = BitsOf(x), mag = b & 0x7FFFFFFFu;
    if (mag > 0x7F800000u) {
        *y = x + x;
        return status::kNone;
    }
    if (mag == 0x7F800000u) {
        *y = b >> 31 ? 0.0f : x;
        return status::kNone;
    }
    if (int32_t(b) > 0x42B17218) {
        volatile float big = std::numeric_limits<float>::max();
        *y = big * big;
        return status::kOverflow;
    }
    if (b > BitsOf(ExpLimits<float>::kUnder)) {
        volatile float tiny = std::numeric_limits<float>::denorm_min();
        *y = tiny * tiny;
        return status::kUnderflow;
    }
    const float t = x * kInvStep128S + kShifter128S;
    const float n = kShifter128S - t;
    const float r = (x + n * kNegStepHiS) + n * kNegStepLoS;
    const int32_t bt = int32_t(BitsOf(t));
    const float* row = single::expTable128[bt & 0x7F];
    // From r on in double: rounded to single first, p's error and the rounding into a
    // denormal result would add up (0.74 ulp at -87.96).
    const double rd = r, th = row[0];
    const double s = (rd + row[1]) + 0.5 * (rd * rd);
    const double p = s * th + th;
    const int m = (bt - int32_t(BitsOf(kShifter128S))) >> 7;
    const float v = float(p * DoubleOf(uint64_t(m + 1023) << 52));
    *y = v;
    if (__builtin_isinf(v)) return status::kOverflow; // 88.7228394 itself
    return v < std::numeric_limits<float>::min() ? status::kUnderflow : status::kNone;
}

template <Level L>
int ExpScalar(const float* a, float* y) {
    return L == Level::HA ? ExpScalarHA(a, y) : ExpScalarLaEp(a, y);
}

// Double EP: ln2/128 steps with ln 2 in one part, the table of 128 (its high parts) and
// T*(1 + r + c*r^2).
constexpr double kInvStep128 = 0x1.71547652b82fep+7, kStep128 = 0x1.62e42fefa39efp-8;
constexpr double kExpEpC = 0x1.ffffc2808f7e8p-2; // 0.49999908361121337
// Double LA: ln2/1024 steps in two parts, r + r^2*(c2 + r*c3), the table of 1024.
constexpr double kInvStep1024 = 0x1.71547652b82fep+10, kStep1024Hi = 0x1.62e42fec00000p-11,
                 kStep1024Lo = 0x1.d1cf79abc9e3bp-42;
constexpr double kExpLaC[] = {0x1.0000001ebfbe0p-1, 0x1.5555555555556p-3};
// Double HA: ln2/64 steps in two parts (exp_core.h ExpStep64), the two-part table of 64
// and degree 5, r + r^2*(c2 + r*(c3 + r*(c4 + r*c5))).
// 0.49999999999947747, 0.16666666666677971, 0.041666723686623851, 0.0083333341644141103
constexpr double kExpHaC[] = {0x1.fffffffffdb3bp-2, 0x1.555555555653ep-3, 0x1.555573f218b93p-5,
                              0x1.111112d9f549bp-7};

// The double body in its steps, so that a round can take each over all its registers:
// the reduction (t and r), the table rows, the polynomial and the sum.
struct ExpRowsD {
    __m128d th, tl; // tl: HA's low parts only
};
template <Level L>
inline __m128d ExpReduceOf(__m128d x, __m128d& t) {
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    if constexpr (L == Level::EP) {
        t = Add(Mul(x, Set<double>(kInvStep128)), shifter);
        __m128d n = Sub(t, shifter);
        return Sub(x, Mul(n, Set<double>(kStep128)));
    } else if constexpr (L == Level::LA) {
        t = Add(Mul(x, Set<double>(kInvStep1024)), shifter);
        __m128d n = Sub(t, shifter);
        return Sub(Sub(x, Mul(n, Set<double>(kStep1024Hi))), Mul(n, Set<double>(kStep1024Lo)));
    } else {
        using S = ExpStep64;
        t = Add(Mul(x, Set<double>(S::kInvStep)), shifter);
        __m128d n = Sub(t, shifter);
        return Sub(Sub(x, Mul(n, Set<double>(S::kStepHi))), Mul(n, Set<double>(S::kStepLo)));
    }
}
template <Level L>
inline ExpRowsD ExpRowsOf(__m128d t) {
    ExpRowsD rows;
    if constexpr (L == Level::EP) {
        rows.th = GatherColumn(expTable128, AsInt(t), 127);
    } else if constexpr (L == Level::LA) {
        double lane0 = expTable1024[LowWord<0>(AsInt(t)) & 1023];
        double lane1 = expTable1024[LowWord<1>(AsInt(t)) & 1023];
        rows.th = SetLanes(lane0, lane1);
    } else {
        ExpRows64(t, rows.th, rows.tl);
    }
    return rows;
}
// EP: 1 + r + c*r^2; LA and HA: p = e^r - 1.
template <Level L>
inline __m128d ExpPolyOf(__m128d r) {
    if constexpr (L == Level::EP) {
        const __m128d one = Set<double>(1.0);
        return Add(Mul(Add(Mul(Set<double>(kExpEpC), r), one), r), one);
    } else if constexpr (L == Level::LA) {
        __m128d p = Add(Set<double>(kExpLaC[0]), Mul(r, Set<double>(kExpLaC[1])));
        return Add(r, Mul(Mul(r, r), p));
    } else {
        return Add(r, Mul(Mul(r, r), Horner(r, kExpHaC)));
    }
}
// T*(1 + p) scaled by 2^m: inside the window 2^m*y is normal, so that m goes into the
// exponent field by an integer addition.
template <Level L>
inline __m128d ExpSumOf(__m128d t, ExpRowsD rows, __m128d p) {
    if constexpr (L == Level::EP)
        return ScaleByLowWord<7>(Mul(rows.th, p), t);
    else if constexpr (L == Level::LA)
        return ScaleByLowWord<10>(Add(rows.th, Mul(rows.th, p)), t);
    else
        return ScaleByLowWord<6>(Add(rows.th, Add(Mul(rows.th, p), rows.tl)), t);
}

template <Level L>
inline __m128d ExpOf(__m128d x) {
    __m128d t;
    __m128d r = ExpReduceOf<L>(x, t);
    __m128d p = ExpPolyOf<L>(r);
    return ExpSumOf<L>(t, ExpRowsOf<L>(t), p);
}

// A double round in stages. HA: every register's reduction, then every table read, every
// polynomial, every sum, the reduction's r and t held between the stages (Opaque), where
// the compiler would sink each register's reduction into its polynomial and sum and run
// the round as one chain a register after another. LA: every register's reduction and
// row first, the rows held, then the polynomials and the sums (HA's stages measured
// 2.40 -> 2.50 ticks there). EP keeps the round register by register: either form
// measured slower (1.95 -> 2.21, 2.07 -> 2.17).
template <Level L, int N>
inline void ExpStagedPart(const __m128d* x, __m128d* y) {
    __m128d t[N], r[N], p[N];
    ExpRowsD rows[N];
    if constexpr (L == Level::HA) {
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            r[k] = Opaque(ExpReduceOf<L>(x[k], t[k]));
            t[k] = Opaque(t[k]);
        }
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            rows[k] = ExpRowsOf<L>(t[k]);
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            r[k] = ExpReduceOf<L>(x[k], t[k]);
            rows[k] = ExpRowsOf<L>(t[k]);
            rows[k].th = Opaque(rows[k].th);
        }
    }
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        p[k] = ExpPolyOf<L>(r[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = ExpSumOf<L>(t[k], rows[k], p[k]);
}
// HA takes its round as two halves of four registers, each half in the stages above:
// the r, t and rows of all eight registers at once did not fit the registers and were
// spilled (ticks: the whole round 3.38, halves 3.23, quarters 3.37).
template <Level L, int N>
inline void ExpStaged(const __m128d* x, __m128d* y) {
    constexpr int G = L == Level::HA ? 4 : N;
#pragma GCC unroll 8
    for (int g = 0; g < N; g += G)
        ExpStagedPart<L, G>(x + g, y + g);
}

// The band above the single window that the scalar routines give at status 0 (wide.h):
// up to bits(kOver), 88.7228317 (HA reports 88.7228394 as an overflow).
template <class T>
struct ExpBand {};
template <>
struct ExpBand<float> {
    static constexpr Band32 kBand = {0x42AEAC4F, 0x42B17217};
};

template <class Tp, Level L>
struct ExpBody : ExpBand<Tp> {
    using T = Tp;
    using V = Vec<T>;
    using K = ExpLimits<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Exp);
    static constexpr auto kWindow = ExpWindow<T, L>::kWindow;
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) { return EvalTestOnce<ExpBody>(x, y); }
    static V Value(V x) { return ExpOf<L>(x); }
    static void ValueRound(const V* x, V* y)
        requires(sizeof(T) == 8 && L != Level::EP)
    {
        ExpStaged<L, 16 / kLanes<T>>(x, y);
    }
    static V Eval(V x, V& special) {
        special = RangeTest(x, kWindow);
        x = IfThenElse(special, Zero<T>(), x); // special lanes run on 0: no flags of their own
        return ExpOf<L>(x);
    }
    static int Scalar(const T* a, T* y) { return ExpScalar<L>(a, y); }
    static int FixNoError(const V* x, V* y, int bits) {
        return FixExpLimits<T>(x, y, bits, K::kOver, K::kUnder);
    }
};

} // namespace
} // namespace brenn::vm

using brenn::vm::ExpBody;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Exp, Unary, ExpBody)
BRENN_FLAT_LEVEL_KERNELS(d, Exp, Unary, ExpBody)
}
