/* Log10 and Log2, single and double.
 *
 * Single EP and LA: the split of log_core.h around 1/sqrt(2) (EP) or 2/3 (LA) and
 * r*P(r) with P of 4 (EP) or 9 (LA) coefficients fitted for the base, plus k*log10(2)
 * (two parts at LA) or k itself.
 * Single HA: in double lanes on rows of the base's own (log10RowsF, log2RowsF: the
 * reciprocal and -log_B of it, one 16-byte load a lane), k*log_B(2) + T + r*P(r) with P
 * a cubic fitted for the base (about 2^-34), rounded once.
 * Double LA and HA: a reduction on rows of log_B itself with 10-bit reciprocals, so that
 * the reduced argument is an exact sum, and log_B(1 + r) = c*r + r^2*Q(r) with Q fitted
 * for the base; at HA c*r carried exactly in effect (log_base_double.h). Double EP: the
 * single HA rows alone and their cubic (log_core.h LogRowsEP).
 * Measured (brenn_accuracy, worst of its inputs): sLog10 EP 11.5 bits, LA 1.81 ulp,
 * HA 0.50 ulp; sLog2 EP 11.5 bits, LA 2.28 ulp, HA 0.50 ulp; dLog10 EP 34.0 bits, LA
 * 1.52 ulp, HA 0.500 ulp; dLog2 EP 34.0 bits, LA 1.32 ulp, HA 0.500 ulp.
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
    // Single: P(r) of log10(1 + r) = r*P(r), EP on r in [c - 1, 2c - 1), c = 1/sqrt(2),
    // LA on r in [-1/3, 1/3), fitted by tools/explog/log_single.sollya.
    static constexpr float kEP[] = {0x1.bc963p-2f, -0x1.be8932p-3f, 0x1.3b344ap-3f,
                                    -0x1.942596p-4f};
    // LA in two parts: the four low coefficients by Horner steps after the high five.
    static constexpr float kLALow[] = {0x1.bcb7b2p-2f, -0x1.bcb78ap-3f, 0x1.28798cp-3f,
                                       -0x1.bcdc26p-4f};
    static constexpr float kLAHigh[] = {0x1.641fa2p-4f, -0x1.23f7d8p-4f, 0x1.ee5948p-5f,
                                        -0x1.11f9ccp-4f, 0x1.00a40ep-4f};
    // log10(2) for k: rounded (EP), and as a head whose product with k is exact and the
    // rest (LA).
    static constexpr float kPerK = 0x1.344136p-2f;
    static constexpr float kPerKHi = 0x1.3442p-2f, kPerKLo = -0x1.95ec1p-19f;
    // HA, in double lanes: the rows, log10(2) rounded, and log10(1 + r) = r*(c1 + r*(c2 +
    // r*c3)) on |r| <= 2^-10, fitted by tools/explog/log_single.sollya (about 2^-34).
    static constexpr const double (*kRowsF)[2] = log10RowsF;
    static constexpr double kPerKD = 0x1.34413509f79ffp-2;
    static constexpr double kHA[] = {0x1.bcb7b1526e489p-2, -0x1.bcb7bbbebe21cp-3,
                                     0x1.287a80a2af3b7p-3};
};

template <>
struct LogBase<2> {
    static constexpr double kPerLn = 0x1.71547652b82fep0;
    static constexpr long double kOfLog2 = 1.0L;
    // Fitted by tools/explog/log_single.sollya.
    static constexpr float kEP[] = {0x1.7138a2p0f, -0x1.72d70ap-1f, 0x1.05c59cp-1f,
                                    -0x1.4fa37cp-2f};
    // LA in two parts: the two low coefficients by Horner steps after the high seven.
    static constexpr float kLALow[] = {0x1.715476p0f, -0x1.715456p-1f};
    static constexpr float kLAHigh[] = {0x1.ec70c6p-2f,  -0x1.717298p-2f, 0x1.278a7p-2f,
                                        -0x1.e4f75ep-3f, 0x1.9fb0f6p-3f,  -0x1.c6faf6p-3f,
                                        0x1.95a2acp-3f};
    // k is log2's own integer part: times 1, which the compiler drops.
    static constexpr float kPerK = 1.0f;
    static constexpr float kPerKHi = 1.0f, kPerKLo = 0.0f;
    static constexpr const double (*kRowsF)[2] = log2RowsF;
    static constexpr double kPerKD = 1.0;
    static constexpr double kHA[] = {0x1.71547652b828fp0, -0x1.71547efab456cp-1,
                                     0x1.ec70af15278cdp-2};
};

// Single HA in double lanes: x = 2^k*m, m in [1, 2), and the row j of the base's rows
// for m rounded to 9 fraction bits (one 16-byte load a lane: the reciprocal and -log_B of
// it); r = m*rcp - 1 in double (m has 24 bits: the product's rounding is below 2^-53, and
// there is none at rows 0 and 512, rcp 1 and 1/2, where x is near 1 and the result
// small), log_B x = (k*log_B(2) + T) + r*P(r), rounded once. At those two rows k*log_B(2)
// + T is exactly 0 (k = 0, T = 0; k = -1, T = log_B(2)). Any bits give a finite k, an m
// in [1, 2) and a row, so special lanes need no blend: their results are discarded.
template <int Base>
inline __m128 LogOfSingleLanes(__m128 x) {
    using F = Format<float>;
    using K = LogBase<Base>;
    const I32x4 b = AsInt(x);
    const I32x4 b1 = Add(b, Set<int32_t>(1 << (F::kMantBits - 10)));
    const I32x4 e1 = And(b1, Set<uint32_t>(F::kExpField));
    __m128 m = AsFloat(Add(Sub(b, e1), Set<uint32_t>(F::kOne)));
    I32x4 k = Sub(ShiftRight<F::kMantBits>(e1), Set<int32_t>(F::kBias));
    // The rows' byte offsets, j*16, formed in the vector and taken out two at a time
    // (unsigned, so that each widens to an address as it is moved).
    static_assert(sizeof(K::kRowsF[0]) == 16, "rows of 16 bytes");
    I32x4 off = And(ShiftRight<F::kMantBits - 9 - 4>(b1), Set<int32_t>(511 << 4));
    const uint64_t o01 = uint64_t(_mm_cvtsi128_si64(off.v));
    const uint64_t o23 = uint64_t(_mm_extract_epi64(off.v, 1));
    const char* rows = reinterpret_cast<const char*>(K::kRowsF);
    __m128d y[2];
#pragma GCC unroll 2
    for (int h = 0; h < 2; ++h) {
        const uint64_t o = h == 0 ? o01 : o23;
        __m128d md = h == 0 ? WidenLower(m) : WidenUpper(m);
        // k's upper lanes by a word shuffle, not a byte shift (a shuffle runs on any pipe).
        __m128d kd = h == 0 ? ToDoubleLower(k) : _mm_cvtepi32_pd(_mm_shuffle_epi32(k.v, 0xEE));
        __m128d rcp, t;
        LoadTransposed(reinterpret_cast<const double*>(rows + uint32_t(o)),
                       reinterpret_cast<const double*>(rows + (o >> 32)), rcp, t);
        __m128d r = Sub(Mul(md, rcp), Set<double>(1.0));
        __m128d p = Mul(r, Horner(r, K::kHA));
        __m128d head = K::kPerKD == 1.0 ? Add(kd, t) : Add(Mul(kd, Set<double>(K::kPerKD)), t);
        y[h] = Add(head, p);
    }
    return Narrow(y[0], y[1]);
}

// Single EP and LA: r*P(r) + k times the base's log of 2; HA in double (above).
template <int Base, Level L>
inline __m128 LogOf(__m128 x) {
    using K = LogBase<Base>;
    if constexpr (L == Level::HA) {
        return LogOfSingleLanes<Base>(x);
    } else {
        __m128 r, k;
        I32x4 ki;
        LogSplit(x, r, k, ki, L == Level::EP ? LogConst<float>::kCentreEP : 0x3F2AAAABu);
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

// Double: on the base's own rows (log_base_double.h).
template <int Base, Level L>
inline __m128d LogOf(__m128d x) {
    if constexpr (L == Level::EP) {
        // EP on the single HA kernels' rows alone, with their cubic (log_core.h).
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
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8 && L == Level::EP) {
            using K = LogBase<Base>;
            return LogRowsEPWide<4>(x, y, K::kRowsF, K::kPerKD, K::kHA);
        } else if constexpr (sizeof(T) == 8) {
            return LogBaseWide<Base, L>(x, y);
        } else {
            return EvalByRegister<LogBody>(x, y);
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
BRENN_FLAT_LEVEL_KERNELS(d, Log10, Unary, Log10Body)
BRENN_FLAT_LEVEL_KERNELS(d, Log2, Unary, Log2Body)
}
