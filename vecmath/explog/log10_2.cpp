/* Log10 and Log2, single and double.
 *
 * Single EP and LA: the split of log_core.h around 2/3 and r*P(r) with P of 5 (EP) or
 * 9 (LA) coefficients for the base, plus k*log10(2) (two parts at LA) or k itself.
 * Single HA: the same split, the table of -log_B(rc) for rcpps of m rounded to 2^-6
 * (rc, the reducer), r = m*rc - 1 exact, log_B(2)*k + T + c*r + r^2*Q(r) with c*r's head
 * and the exact head summed by Fast2Sum (log_core.h LogByRecip).
 * Double LA and HA: a reduction on rows of log_B itself with 10-bit reciprocals, so that
 * the reduced argument is an exact sum, and log_B(1 + r) = c*r + r^2*Q(r) with Q fitted
 * for the base; at HA c*r carried exactly in effect (log_base_double.h). dLog10 EP is
 * its LA kernel (one kernel for the two slots); dLog2 EP: the single HA rows alone and
 * their cubic (log_core.h LogRowsEP).
 * Measured (brenn_accuracy, worst of its inputs): sLog10 EP 14.0 bits, LA 1.81 ulp,
 * HA 0.50 ulp; sLog2 EP 13.8 bits, LA 2.28 ulp, HA 0.50 ulp; dLog10 LA and EP 1.52 ulp,
 * HA 0.500 ulp; dLog2 EP 34.0 bits, LA 1.32 ulp, HA 0.500 ulp.
 * Scalar routines: log_scalar.h; the double ones by fyl2x with log10(2) or 1. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/log_base_double.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <int Base>
struct LogBase;

template <>
struct LogBase<10> {
    // log10(e) rounded.
    static constexpr double kPerLn = 0x1.bcb7b1526e50ep-2;
    // The factor of fyl2x: log10(2).
    static constexpr long double kOfLog2 = kLog10Of2L;
    // Single: P(r) of log10(1 + r) = r*P(r) on r in [-1/3, 1/3), by Horner's rule: EP
    // 0.43430084, -0.216831714, 0.144034356, -0.119593509, 0.100466065 (about 2^-14);
    // LA fitted by tools/explog/log_single.sollya.
    static constexpr float kEP[] = {0.43430084f, -0.216831714f, 0.144034356f, -0.119593509f,
                                    0.100466065f};
    // LA in two parts: the four low coefficients by Horner steps after the high five.
    static constexpr float kLALow[] = {0x1.bcb7b2p-2f, -0x1.bcb78ap-3f, 0x1.28798cp-3f,
                                       -0x1.bcdc26p-4f};
    static constexpr float kLAHigh[] = {0x1.641fa2p-4f, -0x1.23f7d8p-4f, 0x1.ee5948p-5f,
                                        -0x1.11f9ccp-4f, 0x1.00a40ep-4f};
    // log10(2) for k: rounded (EP), and as a head whose product with k is exact and the
    // rest (LA).
    static constexpr float kPerK = 0x1.344136p-2f;
    static constexpr float kPerKHi = 0x1.3442p-2f, kPerKLo = -0x1.95ec1p-19f;
};

template <>
struct LogBase<2> {
    static constexpr double kPerLn = 0x1.71547652b82fep0;
    static constexpr long double kOfLog2 = 1.0L;
    // EP of Log10's degree pattern, five coefficients on r in [-1/3, 1/3), fitted by
    // tools/explog/log_single.sollya (about 2^-14.3).
    static constexpr float kEP[] = {0x1.715508p0f, -0x1.70cb38p-1f, 0x1.eae082p-2f,
                                    -0x1.96cd6ap-2f, 0x1.4d736p-2f};
    // LA in two parts: the two low coefficients by Horner steps after the high seven.
    static constexpr float kLALow[] = {0x1.715476p0f, -0x1.715456p-1f};
    static constexpr float kLAHigh[] = {0x1.ec70c6p-2f,  -0x1.717298p-2f, 0x1.278a7p-2f,
                                        -0x1.e4f75ep-3f, 0x1.9fb0f6p-3f,  -0x1.c6faf6p-3f,
                                        0x1.95a2acp-3f};
    // k is log2's own integer part: times 1, which the compiler drops.
    static constexpr float kPerK = 1.0f;
    static constexpr float kPerKHi = 1.0f, kPerKLo = 0.0f;
    // Double EP: the rows of log2RowsF, and log2(1 + r) = r*(c1 + r*(c2 + r*c3)) on
    // |r| <= 2^-10, fitted by tools/explog/log_single.sollya (about 2^-34).
    static constexpr const double (*kRowsF)[2] = log2RowsF;
    static constexpr double kPerKD = 1.0;
    static constexpr double kHA[] = {0x1.71547652b828fp0, -0x1.71547efab456cp-1,
                                     0x1.ec70af15278cdp-2};
};

// Single EP and LA: r*P(r) + k times the base's log of 2; HA on a reciprocal of m
// (log_core.h LogByRecip).
template <int Base, Level L>
inline __m128 LogOf(__m128 x) {
    using K = LogBase<Base>;
    if constexpr (L == Level::HA) {
        using R = std::conditional_t<Base == 10, LogRecip10, LogRecip2>;
        __m128 m, k;
        LogSplitM(x, m, k);
        return LogByRecip<R>(m, k);
    } else {
        __m128 r, k;
        I32x4 ki;
        LogSplit(x, r, k, ki);
        // LA: the high coefficients by Estrin's scheme (their rounding is scaled by a power
        // of r), the low ones by Horner steps. Log2: seven and two, a chain of five steps,
        // not nine (2.28 ulp, Horner 2.35). Log10: five and four, seven steps (1.81 ulp,
        // as Horner's rule): near x = 4/3, where k*log10(2) and r*P cancel to about
        // 0.125, the rounding of the third coefficient's step is not yet small enough
        // (seven and two, or six and three: 2.65 ulp).
        __m128 q;
        if constexpr (L == Level::EP) {
            q = Horner(r, K::kEP);
        } else {
            constexpr int n = sizeof(K::kLALow) / sizeof(K::kLALow[0]);
            q = Estrin(r, K::kLAHigh);
#pragma GCC unroll 4
            for (int i = n - 1; i >= 0; --i)
                q = MulAdd(r, q, Set<float>(K::kLALow[i]));
        }
        __m128 p = Mul(r, q);
        if constexpr (L == Level::LA && K::kPerKLo != 0) {
            __m128 lo = Add(Mul(k, Set<float>(K::kPerKLo)), p);
            return Add(lo, Mul(k, Set<float>(K::kPerKHi)));
        } else {
            return Add(p, Mul(k, Set<float>(K::kPerK)));
        }
    }
}

// The single EP and LA body over the N registers of a round, stage by stage: every
// split (r and k held apart, Opaque), then at LA every register's Estrin part (held
// too), then each Horner step over every register before the next, then the sums. The same operations
// on every lane as LogOf, the same bits; one register after another, the compiler ran
// each register's chain to its sum before the next.
template <int Base, Level L, int N>
inline void LogRound(const __m128* x, __m128* y) {
    using K = LogBase<Base>;
    __m128 r[N], k[N], q[N];
    LogSplitRound<N, true>(x, r, k);
    const auto& c = [&]() -> const auto& {
        if constexpr (L == Level::EP)
            return K::kEP;
        else
            return K::kLALow;
    }();
    constexpr int C = sizeof(c) / sizeof(c[0]);
    if constexpr (L == Level::EP) {
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) q[i] = Set<float>(c[C - 1]);
    } else {
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) q[i] = Opaque(Estrin(r[i], K::kLAHigh));
    }
    HornerRound<N, L == Level::EP ? C - 2 : C - 1>(r, c, q);
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        const __m128 p = Mul(r[i], q[i]);
        if constexpr (L == Level::LA && K::kPerKLo != 0)
            y[i] = Add(Add(Mul(k[i], Set<float>(K::kPerKLo)), p), Mul(k[i], Set<float>(K::kPerKHi)));
        else
            y[i] = Add(p, Mul(k[i], Set<float>(K::kPerK)));
    }
}

// Double: on the base's own rows (log_base_double.h).
template <int Base, Level L>
inline __m128d LogOf(__m128d x) {
    if constexpr (L == Level::EP) {
        // dLog2 EP on the rows alone, with their cubic (log_core.h).
        using K = LogBase<Base>;
        return LogRowsEP<4>(x, K::kRowsF, K::kPerKD, K::kHA);
    } else {
        return LogBaseOf<Base, L>(x);
    }
}

// The value of the scalar routine: the double ln times the base's constant, rounded
// once (single); fyl2x (double).
template <int Base>
inline float LogValue(float v) {
    return float(LnScalarD(double(v)) * LogBase<Base>::kPerLn);
}
template <int Base>
inline double LogValue(double v) {
    return Fyl2x(v, LogBase<Base>::kOfLog2);
}

template <class Tp, Level L, int Base>
struct LogBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName =
        Base == 10 ? ZAR_ERROR_NAME_OF(T, Log10) : ZAR_ERROR_NAME_OF(T, Log2);
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 4 && L == Level::HA) {
            // Single HA: the round's splits, then LogByRecip stage by stage.
            using R = std::conditional_t<Base == 10, LogRecip10, LogRecip2>;
            constexpr int N = 4;
            __m128 m[N], k[N];
            int bits = 0;
#pragma GCC unroll 4
            for (int i = 0; i < N; ++i) {
                bits |= MaskBits(LogSpecial(x[i])) << (4 * i);
                LogSplitM(x[i], m[i], k[i]);
            }
            LogByRecipRound<R, N>(m, k, y);
            return bits;
        } else if constexpr (sizeof(T) == 4) {
            constexpr int N = 4;
            int bits = 0;
#pragma GCC unroll 4
            for (int i = 0; i < N; ++i) bits |= MaskBits(LogSpecial(x[i])) << (4 * i);
            LogRound<Base, L, N>(x, y);
            return bits;
        } else if constexpr (sizeof(T) == 8 && L == Level::EP) {
            using K = LogBase<Base>;
            return LogRowsEPWide<4>(x, y, K::kRowsF, K::kPerKD, K::kHA);
        } else {
            return LogBaseWide<Base, L>(x, y);
        }
    }
    static V Eval(V x, V& special) {
        special = LogSpecial(x);
        return LogOf<Base, L>(x);
    }
    static int Scalar(const T* a, T* y) {
        return LogScalar<T>(*a, y, [](T v) { return LogValue<Base>(v); });
    }
};
template <class T, Level L>
using Log10Body = LogBody<T, L, 10>;
template <class T, Level L>
using Log2Body = LogBody<T, L, 2>;

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Log10, Unary, Log10Body)
BRENN_FLAT_LEVEL_KERNELS(s, Log2, Unary, Log2Body)
// One kernel for LA and EP (the double LA body, within LA's bound), HA its own.
BRENN_FLAT ZAR_KERNEL_OF(d, Log10, LaEp, Unary, Log10Body<double, Level::LA>)
BRENN_FLAT ZAR_KERNEL_OF(d, Log10, HA, Unary, Log10Body<double, Level::HA>)
BRENN_FLAT_LEVEL_KERNELS(d, Log2, Unary, Log2Body)
}
