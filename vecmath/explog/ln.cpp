/* Ln, single and double, three levels each.
 *
 * sLn: the branch-free split (log_core.h) around 2/3 (LA, HA) or 1/sqrt(2) (EP), then
 * r*P(r) with P of 4 coefficients (EP) or r + r^2*Q(r) with Q of 8 (LA) or 9 (HA), plus
 * k*ln2 (in two parts at HA, with the sums carried exactly so that only the last one
 * rounds). x = 1 gives k = 0 and r = 0: exactly +0 at every level.
 * dLn: the 513-row reciprocal table with |r| <= 2^-10 (log_core.h); EP on the rows alone
 * (LogRowsEP: the row found by two integer steps, r = m*rcp - 1, a cubic, no low parts);
 * LA and HA degree 5 with ln 2 and the table logarithm in two parts,
 * the tail summed before the exact head: the table's 2^-42 grid leaves no cheaper
 * form within 4 ulp, so LA is the same arithmetic.
 * Measured (brenn_accuracy, worst of its inputs): sLn EP 11.5 bits, LA 1.57 ulp, HA
 * 0.83 ulp; dLn EP 32.7 bits, LA and HA 0.91 ulp.
 * Scalar routines: log_scalar.h (zero: -inf, singularity; negative: NaN, domain;
 * denormals their correct logarithm). */
#include "frame/kernels.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// Q(r) of the single body at LA and HA, on r in [-1/3, 1/3), both fitted by
// tools/explog/ln_single.sollya (LA about 2^-25.1). At HA the two low coefficients
// are Horner steps after the seven high ones.
constexpr float kLnLA[] = {-0x1.ffffd6p-2f, 0x1.5554fcp-2f, -0x1.00144ep-2f, 0x1.99d398p-3f,
                           -0x1.5038e4p-3f, 0x1.1eaacap-3f, -0x1.3b0c36p-3f, 0x1.1f1bb8p-3f};
constexpr float kLnHALow[] = {-0x1p-1f, 0x1.555502p-2f};
constexpr float kLnHAHigh[] = {-0x1.ffff14p-3f, 0x1.99d1c6p-3f, -0x1.559804p-3f, 0x1.1ec0dp-3f,
                               -0x1.f3a788p-4f, 0x1.1ec6ep-3f,  -0x1.06cedcp-3f};

// Single: the split around 2/3 and r + r^2*Q(r) + k*ln2. LA uses Estrin's scheme, so
// that the chain is four steps deep and not eight: the body is bound by that latency,
// not by the arithmetic.
template <Level L>
inline __m128 LnOf(__m128 x) {
    using K = LogConst<float>;
    __m128 r, k;
    I32x4 ki;
    LogSplit(x, r, k, ki, L == Level::EP ? K::kCentreEP : 0x3F2AAAABu);
    if constexpr (L == Level::EP) {
        return Add(Mul(r, Horner(r, K::kLnEP)), Mul(k, Set<float>(K::kLn2)));
    } else if constexpr (L == Level::LA) {
        // k*ln2 + r first, beside the polynomial: the chain after r^2*Q is one sum.
        __m128 head = Add(Mul(k, Set<float>(K::kLn2)), r);
        return Add(head, Mul(Mul(r, r), Estrin(r, kLnLA)));
    } else {
        // The seven high coefficients by Estrin's scheme (their rounding is scaled down
        // by r^2), the two low ones by Horner steps, so that Q's error is about the last
        // step's half ulp while the chain stays short.
        __m128 r2 = Mul(r, r);
        __m128 q = MulAdd(r, Estrin(r, kLnHAHigh), Set<float>(kLnHALow[1]));
        q = MulAdd(r, q, Set<float>(kLnHALow[0]));
        // k*ln2hi + r is carried exactly with its rounding error (|k*ln2hi| is above |r|
        // whenever k is not 0, and for k = 0 the sum is r itself), and r^2*Q and
        // k*ln2lo join that error, so that only the last addition rounds at the result's
        // scale: near x = 2/3, where p = r + r^2*Q is of the result's size, two roundings
        // would otherwise reach an ulp. Carrying the sum at r rather than at p takes one
        // exact step, not two.
        __m128 s, e;
        FastTwoSum(Mul(k, Set<float>(K::kLn2Hi)), r, s, e);
        // The terms that are ready early are summed first: r^2*Q ends the longest chain.
        __m128 lo = Add(Add(e, Mul(k, Set<float>(K::kLn2Lo))), Mul(r2, q));
        return Add(s, lo);
    }
}

// Double: the core's head and tail. Special lanes run as they are: the core's m and k
// are in range for any bits.
template <Level L>
inline __m128d LnOf(__m128d x) {
    if constexpr (L == Level::EP) {
        using K = LogConst<double>;
        return LogRowsEP<5>(x, lnRows, K::kLn2, K::kEP);
    } else {
        __m128d h, l;
        I64x2 x1;
        LnCoreFrom<L>(LnReduceBits(x, x1), h, l);
        return Add(h, l);
    }
}

// The value of the scalar routine: the double core rounded once (single), fyl2x times
// ln 2 (double).
inline float LnValue(float v) {
    return float(LnScalarD(double(v)));
}
inline double LnValue(double v) {
    return Fyl2x(v, kLn2L);
}

template <class Tp, Level L>
struct LnBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Ln);
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8 && L == Level::EP) {
            return LogRowsEPWide<5>(x, y, lnRows, LogConst<double>::kLn2, LogConst<double>::kEP);
        } else if constexpr (sizeof(T) == 8) {
            int bits = 0;
#pragma GCC unroll 4
            for (int q = 0; q < 4; ++q) {
                LogPair p = SplitPair<5>(x[2 * q], x[2 * q + 1]);
                bits |= p.special << (4 * q);
                LnReduction red[2];
                LnReducePair(p, red[0], red[1]);
#pragma GCC unroll 2
                for (int j = 0; j < 2; ++j) {
                    __m128d h, l;
                    LnCoreFrom<L>(red[j], h, l);
                    y[2 * q + j] = Add(h, l);
                }
            }
            return bits;
        } else {
            return EvalByRegister<LnBody>(x, y);
        }
    }
    static V Eval(V x, V& special) {
        special = LogSpecial(x);
        return LnOf<L>(x);
    }
    static int Scalar(const T* a, T* y) {
        return LogScalar<T>(*a, y, [](T v) { return LnValue(v); });
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Ln, Unary, LnBody)
BRENN_FLAT_LEVEL_KERNELS(d, Ln, Unary, LnBody)
}
