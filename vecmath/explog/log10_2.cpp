/* Log10 and Log2, single and double.
 *
 * Single EP and LA: the split around 2/3 of log_core.h and r*P(r) with P of 5 (EP) or 9
 * (LA) coefficients fitted for the base, plus k*log10(2) (two parts at LA) or k itself.
 * Single HA: ln in double from the split of the single bits and the table core's EP
 * polynomial (LnOfSingleLanes, about 2^-33) times the base's constant, rounded once.
 * Double: a reduction on rows of log_B itself with 10-bit reciprocals, so that the
 * reduced argument is an exact sum, and log_B(1 + r) = c*r + r^2*Q(r) with Q fitted for
 * the base; at HA c*r carried exactly in effect (log_base_double.h).
 * Measured (brenn_accuracy, worst of its inputs): sLog10 EP 14.0 bits, LA 1.81 ulp,
 * HA 0.50 ulp; sLog2 EP 13.8 bits, LA 2.28 ulp, HA 0.50 ulp; dLog10 EP 31.7 bits, LA
 * 1.52 ulp, HA 0.500 ulp; dLog2 EP 32.2 bits, LA 1.32 ulp, HA 0.500 ulp.
 * Scalar routines: log_scalar.h; the double ones by fyl2x with log10(2) or 1. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/log_base_double.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/explog/wide.h"
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
    // Single: P(r) of log10(1 + r) = r*P(r) on r in [-1/3, 1/3). LA fitted by
    // tools/explog/log_single.sollya; EP keeps its own set (that script prints it and its
    // error beside the fit, which measures 13.8 bits against this set's 14.0).
    static constexpr float kEP[] = {0x1.bcb95cp-2f, -0x1.bc1244p-3f, 0x1.26fb7cp-3f,
                                    -0x1.e9dae2p-4f, 0x1.9b824ep-4f};
    static constexpr float kLA[] = {0x1.bcb7b2p-2f,  -0x1.bcb78ap-3f, 0x1.28798cp-3f,
                                    -0x1.bcdc26p-4f, 0x1.641fa2p-4f,  -0x1.23f7d8p-4f,
                                    0x1.ee5948p-5f,  -0x1.11f9ccp-4f, 0x1.00a40ep-4f};
    // log10(2) for k: rounded (EP), and as a head whose product with k is exact and the
    // rest (LA).
    static constexpr float kPerK = 0x1.344136p-2f;
    static constexpr float kPerKHi = 0x1.3442p-2f, kPerKLo = -0x1.95ec1p-19f;
};

template <>
struct LogBase<2> {
    static constexpr double kPerLn = 0x1.71547652b82fep0;
    static constexpr long double kOfLog2 = 1.0L;
    // Fitted by tools/explog/log_single.sollya.
    static constexpr float kEP[] = {0x1.715508p0f, -0x1.70cb38p-1f, 0x1.eae082p-2f, -0x1.96cd6ap-2f,
                                    0x1.4d736p-2f};
    // LA in two parts: the two low coefficients by Horner steps after the high seven.
    static constexpr float kLALow[] = {0x1.715476p0f, -0x1.715456p-1f};
    static constexpr float kLAHigh[] = {0x1.ec70c6p-2f,  -0x1.717298p-2f, 0x1.278a7p-2f,
                                        -0x1.e4f75ep-3f, 0x1.9fb0f6p-3f,  -0x1.c6faf6p-3f,
                                        0x1.95a2acp-3f};
    // k is log2's own integer part: times 1, which the compiler drops.
    static constexpr float kPerK = 1.0f;
    static constexpr float kPerKHi = 1.0f, kPerKLo = 0.0f;
};

// Single EP and LA: r*P(r) + k times the base's log of 2; HA in double on the EP core.
template <int Base, Level L>
inline __m128 LogOf(__m128 x) {
    using K = LogBase<Base>;
    if constexpr (L == Level::HA) {
        // Special lanes need no blend: any bits give an m in [1, 2), a row and a finite k.
        return LnOfSingleLanes(x, [](__m128d lo, __m128d hi) {
            const __m128d c = Set<double>(K::kPerLn);
            return Narrow(Mul(lo, c), Mul(hi, c));
        });
    } else {
        __m128 r, k;
        LogSplit(x, r, k);
        // Log2 LA: the seven high coefficients by Estrin's scheme (their rounding is
        // scaled by r^2), the two low ones by Horner steps: a chain of five steps, not
        // nine (2.28 ulp, Horner 2.35). Log10 LA keeps Horner's rule: near x = 4/3, where
        // k*log10(2) and r*P cancel to about 0.125, the mixed scheme measured 2.6 ulp.
        __m128 q;
        if constexpr (L == Level::EP) {
            q = Horner(r, K::kEP);
        } else if constexpr (Base == 10) {
            q = Horner(r, K::kLA);
        } else {
            q = MulAdd(r, Estrin(r, K::kLAHigh), Set<float>(K::kLALow[1]));
            q = MulAdd(r, q, Set<float>(K::kLALow[0]));
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

// Double: on the base's own rows (log_base_double.h).
template <int Base, Level L>
inline __m128d LogOf(__m128d x) {
    return LogBaseOf<Base, L>(x);
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
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8; // single: rounds of eight pay more
    static int EvalWide(const V* x, V* y) { return EvalByRegister<LogBody>(x, y); }
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
BRENN_FLAT_LEVEL_KERNELS(d, Log10, Unary, Log10Body)
BRENN_FLAT_LEVEL_KERNELS(d, Log2, Unary, Log2Body)
}
