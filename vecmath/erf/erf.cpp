/* Erf, single and double, three levels each; nothing is reported (a NaN comes back
 * quieted, by a blend, or at single EP and LA as the frame's special lane through Scalar;
 * beyond the grid's last point erf is 1 to the last bit).
 *
 * EP: the short expansion around the nearest grid point j/128 with the row (V, D) of
 * erfRows: t = xj*d, u = d^2 (0 below 2^-256), R = t*P + u*Q with P, Q the Taylor
 * terms of erf(xj + d) in t, slightly tuned; erf = V + (w + R*w), w = d*D, and x's sign
 * OR-ed on. LA: the same with grid_core.h's longer series of S(tau, u) - 1 (u^3 left
 * out), V + (w + w*S1). HA: the same rows, a longer series still, w in two parts split at
 * the high words, V + wh summed exactly and V's remainder added (ErfLongRound), and a path
 * of its own below 0.02734375 (ErfSmall). Single runs on single lanes (grid_single.h), the
 * grid held at 3.9296875, from where erf is 1 in single: EP v + D*d and LA v + (w + w*S1)
 * with S1's first terms on the single rows (15.3 bits, 1.80 ulp); HA the series on single
 * lanes and its last sum on double lanes with erfRows.
 * |x| is held at the grid's end by its bits (in double by the high word, HeldAtLimit), so
 * that a NaN lane runs there and raises nothing; NaN lanes are set aside after the body,
 * one test a round. The levels run rounds of sixteen (single EP and LA of eight), each step
 * over the round's registers where the body has steps (ErfLongRound, GridEvalSingleRound,
 * GridEvalRound). */
#include <bit>

#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/erf/grid_single.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

constexpr double kShifter128 = 0x1p45; // a + 2^45 rounds a to a multiple of 1/128

struct ErfGridLA {
    static constexpr const double (*kRows)[2] = erfRows;
    static constexpr double kShifter = kShifter128, kLimit = 5.9921875;
    static constexpr double kTauScale = 2.0, kUScale = 1.0;
    static constexpr double kMirror = 0, kMirrorLimit = 0;
    static constexpr bool kMirrorPositive = false;
    static constexpr double kScaleFrom = 0;
};
struct ErfGridSingle : ErfGridLA {
    static constexpr const float (*kRowsSingle)[4] = erfRowsSingle;
    static constexpr double kLimitSingle = 3.9296875;
};

// The cuts of the series: terms left out stay below 2^-57 (HA), 2^-50 (LA, the u^3 term -u^3/42 at
// most 2^-53 of S) of the result in double, 2^-30 and 2^-27 in single, at the worst grid point and
// offset (one cut serves both levels where the two bounds give the same).
constexpr SeriesCut kCutHA{5, 4, 2, 1, true}, kCutLA{5, 4, 2, 0, true};
constexpr SeriesCut kCutSingleHA{2, 1, 0, 0}, kCutSingleLA{2, 1, 0, 0}, kCutSingleEP{0, 0, 0, 0};

// The EP expansion around the nearest grid point xj = j/128 (|x| held at the limit by its
// high word, HeldAtLimit, the high words' maximum in `top`): t = xj*d, u = d^2 (0 while a
// is not above 2^-256, so that tiny arguments do not underflow), R = t*P + u*Q with P, Q
// the Taylor terms of erf(xj + d) in t (-1, 2/3; -1/3, 1/2), slightly tuned;
// erf = V + (w + R*w), w = d*D, and x's sign OR-ed on.
BRENN_VEC __m128d ErfShort(__m128d x, I32x4& top) {
    constexpr double kP1 = 0.6666678110767819, kP0 = -1.0000014305126206;
    constexpr double kQ1 = 0.5000019073510884, kQ0 = -0.33333504994947405;
    __m128d ax = Abs(x);
    top = Max(top, BitCast<I32x4>(AsInt(ax)));
    __m128d a = HeldAtLimit(ax);
    __m128d s = Add(a, Set<double>(kShifter128));
    __m128d xj = Sub(s, Set<double>(kShifter128));
    __m128d d = Sub(a, xj);
    __m128d t = Mul(xj, d);
    __m128d dz = IfThenZeroElse(Le(a, Set<double>(0x1p-256)), d); // d*d would raise underflow
    __m128d u = Mul(dz, dz);
    I64x2 row = AsInt(s);
    __m128d v, deriv;
    LoadTransposed(erfRows[uint32_t(LowWord<0>(row))], erfRows[uint32_t(LowWord<1>(row))], v,
                   deriv);
    __m128d p = MulAdd(Set<double>(kP1), t, Set<double>(kP0));
    __m128d q = MulAdd(Set<double>(kQ1), t, Set<double>(kQ0));
    __m128d r = Add(Mul(t, p), Mul(u, q));
    __m128d w = Mul(d, deriv);
    return Or(Add(v, Add(w, Mul(r, w))), SignBit(x));
}

// HA: the scheme of ErfShort with the longer series R = S(2t, u) - 1 of grid_core.h (cut kCutHA,
// the exact Taylor terms, rows by Horner) and w = d*D kept in two parts, d and D split at their
// high words (dh*Dh exact), wl = dh*Dl + dl*D: erf = h + (e + (vlo + (wl + R*w))) with h + e = V +
// wh exactly and vlo = erf(xj) - V. Each step over the round's N registers before the next
// (the chains of the round side by side: 7.8 -> 7.0 ticks an element against one register
// at a time). |x| is held at the limit by its high word (HeldAtLimit; `top` gets the high
// words); lanes below 0.02734375 are ErfSmall's: they run here at 0.02734375, so that u = d^2
// raises nothing, and `least` gets the round's least held |x|, which tells whether there are
// any.
template <int N>
BRENN_VEC void ErfLongRound(const __m128d* x, __m128d* y, I32x4& top, __m128d& least) {
    __m128d sh[N], d[N], r[N], u[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        __m128d ax = Abs(x[k]);
        top = Max(top, BitCast<I32x4>(AsInt(ax)));
        __m128d a = HeldAtLimit(ax);
        least = Min(least, a);
        a = Max(a, Set<double>(0.02734375));
        sh[k] = Add(a, Set<double>(kShifter128));
        __m128d xj = Sub(sh[k], Set<double>(kShifter128));
        d[k] = Sub(a, xj);
        r[k] = Mul(xj, d[k]);
        u[k] = Mul(d[k], d[k]);
    }
    // The series held apart (Opaque): the compiler otherwise sinks each into its sum, one
    // register's chain after another.
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        r[k] = Opaque(SeriesLessOne<kCutHA, 2.0, 1.0>(r[k], u[k]));
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        // Rows by byte offsets: j*16 in erfRows, j*32 in erfRowsHA.
        I64x2 off = ShiftLeft<4>(AsInt(sh[k]));
        const char* rows = reinterpret_cast<const char*>(erfRows);
        const char* wide = reinterpret_cast<const char*>(&erfRowsHA[0][1]);
        uint32_t o0 = uint32_t(LowWord<0>(off)), o1 = uint32_t(LowWord<1>(off));
        __m128d v, deriv;
        LoadTransposed(reinterpret_cast<const double*>(rows + o0),
                       reinterpret_cast<const double*>(rows + o1), v, deriv);
        __m128d vlo = LoadLanes(reinterpret_cast<const double*>(wide + 2 * size_t(o0)),
                                reinterpret_cast<const double*>(wide + 2 * size_t(o1)));
        const __m128d high = AsFloat(Set<int64_t>(int64_t(0xFFFFFFFF00000000ull)));
        __m128d dh = And(d[k], high), dl = Sub(d[k], dh);
        __m128d derivH = And(deriv, high), derivL = Sub(deriv, derivH);
        __m128d wh = Mul(dh, derivH);
        __m128d wl = Add(Mul(dh, derivL), Mul(dl, deriv));
        __m128d w = Mul(d[k], deriv);
        // V + wh split exactly (V above erf(3.5/128) > |wh|), and V's remainder vlo (erf(xj) -
        // V, from the wide rows) added with the small terms: V's own rounding, up to 0.4995 ulp
        // of its binade, with D's and the final one took V + (wh + (wl + R*w)) to 1.0015 ulp
        // (row 75, 1.003 without the exact split).
        __m128d h, e;
        FastTwoSum(v, wh, h, e);
        y[k] = Or(Add(h, Add(e, Add(vlo, Add(wl, Mul(r[k], w))))), SignBit(x[k]));
    }
}

// HA below 0.02734375: erf(a) = a + (a*(c0 - 1) + a*(lo + u*P(u))), c0 - 1 in two parts (lo the
// rest), u = a^2 (0 up to 2^-256), c0 = 2/sqrt(pi) and P the Taylor terms of S(0, u) - 1 times c0
// (all that stay above 2^-60 of the result); below 2^-256 ErfTiny. Taken only for rounds that hold
// such a lane.
BRENN_VEC __m128d ErfSmall(__m128d x, __m128d y) {
    constexpr double kC0 = 0x1.20dd750429b6dp+0;
    constexpr double kC0Less1 = 0x1.06eba8214db69p-3, kC0Less1Lo = -0x1.ca38add6025p-57;
    constexpr double kP1 = kErfSeries[1][0] * kC0, kP2 = kErfSeries[2][0] * kC0,
                     kP3 = kErfSeries[3][0] * kC0, kP4 = kC0 / 216;
    __m128d a = Abs(x);
    // By the bits: a NaN lane is neither, and raises nothing here.
    __m128d tiny =
        AsFloat(Gt(Set<int64_t>(std::bit_cast<int64_t>(0x1.0000000000001p-256)), AsInt(a)));
    __m128d small = AsFloat(Gt(Set<int64_t>(std::bit_cast<int64_t>(0.02734375)), AsInt(a)));
    __m128d az = And(AndNot(tiny, small), a); // the other lanes at 0: no flag of theirs
    __m128d u = Mul(az, az);
    __m128d p = MulAdd(u, Set<double>(kP4), Set<double>(kP3));
    p = MulAdd(u, p, Set<double>(kP2));
    p = MulAdd(u, p, Set<double>(kP1));
    __m128d q = Add(Set<double>(kC0Less1Lo), Mul(u, p));
    __m128d e = Add(az, Add(Mul(az, Set<double>(kC0Less1)), Mul(az, q)));
    if (__builtin_expect(MaskBits(tiny) != 0, 0)) e = IfThenElse(tiny, ErfTiny(And(tiny, a)), e);
    return IfThenElse(small, Or(e, SignBit(x)), y);
}

// Double erf of N registers, the sign OR-ed on; NaN lanes run at the limit and are set
// aside afterwards (x + 0, the NaN quieted), one test for the round: the held lanes
// (beyond the grid, infinities and NaNs) are rare.
template <Level L, int N>
BRENN_VEC void ErfDouble(const __m128d* x, __m128d* y) {
    __m128d beyond = Zero<double>();
    if constexpr (L == Level::EP) {
        I32x4 top = Set<int32_t>(0);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            y[k] = ErfShort(x[k], top);
        if (__builtin_expect(AnyBeyondLimit(top), 0)) beyond = AsFloat(Set<int64_t>(-1));
    } else if constexpr (L == Level::HA) {
        __m128d least = Set<double>(0.02734375);
        I32x4 top = Set<int32_t>(0);
        ErfLongRound<N>(x, y, top, least);
        if (__builtin_expect(MaskBits(Lt(least, Set<double>(0.02734375))) != 0, 0)) {
            for (int k = 0; k < N; ++k)
                y[k] = ErfSmall(x[k], y[k]);
        }
        if (__builtin_expect(AnyBeyondLimit(top), 0)) beyond = AsFloat(Set<int64_t>(-1));
    } else {
        beyond = GridEvalRound<ErfGridLA, kCutLA, GridSum::Plain, N>(x, y);
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            y[k] = Or(y[k], SignBit(x[k]));
    }
    if (__builtin_expect(MaskBits(beyond) != 0, 0)) {
        auto aside = [&](int k) {
            y[k] = IfThenElse(Unordered(x[k], x[k]), Add(x[k], Zero<double>()), y[k]);
        };
        // Unrolled, so that x and y stay in registers (LA 4.58 -> 4.40 ticks an element);
        // HA's longer round measured a little faster with the loop as it stands.
        if constexpr (L == Level::HA) {
            for (int k = 0; k < N; ++k)
                aside(k);
        } else {
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k)
                aside(k);
        }
    }
}

// Single erf of N registers on single lanes: the grid on |x| held by its bits (a NaN
// lane runs at the limit and raises nothing), x's sign OR-ed on, and the NaN lanes (rare,
// one test a round) taken aside afterwards: x + 0, the NaN quieted.
template <Level L, int N, bool kNaNAside = true>
BRENN_VEC void ErfSingle(const __m128* x, __m128* y) {
    constexpr SeriesCut cut = L == Level::EP   ? kCutSingleEP
                              : L == Level::LA ? kCutSingleLA
                                               : kCutSingleHA;
    bool nan = GridEvalSingleRound<ErfGridSingle, cut, L == Level::HA, false, N>(x, y);
#pragma GCC unroll 4
    for (int k = 0; k < N; ++k)
        y[k] = Or(y[k], SignBit(x[k]));
    if (kNaNAside && __builtin_expect(nan, 0)) {
#pragma GCC unroll 4
        for (int k = 0; k < N; ++k)
            y[k] = IfThenElse(Unordered(x[k], x[k]), Add(x[k], Zero<float>()), y[k]);
    }
}

template <class Tp, Level L>
struct ErfBody {
    using T = Tp;
    using V = Vec<T>;
    // Single EP and LA, a register at a time, give their NaN lanes to Scalar: the frame
    // tests a round's lanes once, where the body tested each register.
    static constexpr bool kNaNSpecial = sizeof(T) == 4 && L != Level::HA;
    static V Eval(V x, V& special) {
        V y;
        if constexpr (kNaNSpecial) {
            special = Unordered(x, x);
            ErfSingle<L, 1, false>(&x, &y);
        } else if constexpr (sizeof(T) == 4) {
            ErfSingle<L, 1>(&x, &y);
        } else {
            ErfDouble<L, 1>(&x, &y);
        }
        return y;
    }
    // A NaN lane: x quieted (invalid for a signalling one), no status.
    static int Scalar(const T* a, T* y) {
        *y = *a + *a;
        return status::kNone;
    }
    // Rounds of sixteen, each step over the round's registers where the body has steps;
    // single EP and LA in rounds of eight, a register at a time (their short chains
    // spilled in sixteen: EP 1.18 -> 0.97, LA 1.75 -> 1.57 ticks an element).
    static constexpr int kRound = sizeof(T) == 4 && L != Level::HA ? 8 : 16;
    static int EvalWide(const V* x, V* y) {
        constexpr int N = 16 / kLanes<T>;
        if constexpr (sizeof(T) == 4)
            ErfSingle<L, N>(x, y);
        else
            ErfDouble<L, N>(x, y);
        return 0;
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Erf, Unary, brenn::vm::ErfBody)
BRENN_FLAT_LEVEL_KERNELS(d, Erf, Unary, brenn::vm::ErfBody)
}
