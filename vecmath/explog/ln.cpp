/* Ln, single and double, three levels each.
 *
 * sLn: the branch-free split (log_core.h) around 2/3, then p = r + r^2*Q(r) with Q of 4
 * (EP), 7 (LA) or 9 (HA) coefficients by Horner's rule, plus k*ln2 (at HA in two parts,
 * the low one first). x = 1 gives k = 0 and r = 0: exactly +0 at every level.
 * dLn: the reciprocal rows of 1 + j/512 with |r| <= 2^-10 (log_core.h), the row found
 * by x's fraction rounded to 9 bits (a carry moves into k); EP r in two terms and
 * k*ln2 + T + r + r^2*(c2 + c3*r), no low parts; LA and HA degree 5 with ln 2 and the table logarithm in two parts, the tail summed
 * before the exact head (the table's 2^-42 grid leaves no cheaper form within 4 ulp, so
 * LA is the same arithmetic); HA with its own polynomial by Horner's rule, LA with the
 * core's by Estrin's scheme.
 * Measured (brenn_accuracy, worst of its inputs): sLn EP 12.8 bits, LA 3.93 ulp, HA
 * 0.97 ulp (LA and HA every float of [1/4, 4)); dLn EP 32.7 bits, LA and HA 0.91 ulp.
 * Scalar routines: log_scalar.h (zero: -inf, singularity; negative: NaN, domain;
 * denormals their correct logarithm). */
#include "frame/kernels.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

// Q(r) of the single body, ln(1 + r) = r + r^2*Q(r) on r in [-1/3, 1/3), by Horner's
// rule from the top at every level: EP four coefficients (LogConst), LA seven, HA nine,
// -0.5 first.
constexpr float kLnLA[] = {-0x1p-1f,       0x1.555dcep-2f,  -0x1.000c3ap-2f, 0x1.95f702p-3f,
                           -0x1.5126bp-3f, 0x1.5b70d6p-3f,  -0x1.36d444p-3f};
constexpr float kLnHA[] = {-0x1p-1f,        0x1.555506p-2f, -0x1.fffefp-3f,  0x1.99d028p-3f,
                           -0x1.559dccp-3f, 0x1.1ed718p-3f, -0x1.f3113cp-4f, 0x1.1e66bap-3f,
                           -0x1.08059p-3f};

// Single: the split around 2/3 (k = 0 for x near 1, r = m - 1 exact), p = r + r^2*Q(r)
// and p + k*ln2; at HA ln 2 in two parts, the low one first, (k*ln2lo + p) + k*ln2hi,
// so that k*ln2hi (exact for |k| < 2^8) meets the rest in the last addition only.
template <Level L>
inline __m128 LnOf(__m128 x) {
    using K = LogConst<float>;
    __m128 r, k;
    LogSplit(x, r, k);
    const __m128 r2 = Mul(r, r);
    if constexpr (L == Level::EP) {
        __m128 p = Add(r, Mul(r2, Horner(r, K::kLnEP)));
        return Add(p, Mul(k, Set<float>(K::kLn2)));
    } else if constexpr (L == Level::LA) {
        __m128 p = Add(r, Mul(r2, Horner(r, kLnLA)));
        return Add(p, Mul(k, Set<float>(K::kLn2)));
    } else {
        __m128 p = Add(r, Mul(r2, Horner(r, kLnHA)));
        return Add(Add(Mul(k, Set<float>(K::kLn2Lo)), p), Mul(k, Set<float>(K::kLn2Hi)));
    }
}

// The same body over the N registers of a round, stage by stage: every split (at EP r
// and k held apart, Opaque, which measured 2 % faster there and 1-2 % slower at LA and
// HA), then each Horner step over every register before the next, then the sums; the
// same operations on every lane, the same bits. One register after another, the
// compiler keeps each register's chain of nine steps whole and the round waits on them
// in turn.
template <Level L>
constexpr const auto& LnCoeffs() {
    if constexpr (L == Level::EP)
        return LogConst<float>::kLnEP;
    else if constexpr (L == Level::LA)
        return kLnLA;
    else
        return kLnHA;
}
template <Level L, int N>
inline void LnRound(const __m128* x, __m128* y) {
    using K = LogConst<float>;
    __m128 r[N], k[N], p[N];
    LogSplitRound<N, L == Level::EP>(x, r, k);
    LogPolyRound<N>(r, LnCoeffs<L>(), p);
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        if constexpr (L == Level::HA)
            y[i] = Add(Add(Mul(k[i], Set<float>(K::kLn2Lo)), p[i]),
                       Mul(k[i], Set<float>(K::kLn2Hi)));
        else
            y[i] = Add(p[i], Mul(k[i], Set<float>(K::kLn2)));
    }
}

// Double EP on the core's reduction: r = a + ml*rcp in two terms (the products exact),
// y = ((k*ln2 + T) + r) + r^2*(c2 + c3*r), ln 2 as one head 0x3FE62E42FEFA4000 (its
// product with k and the sum with the row's head T are exact), c2 = -0.49999999999924227
// as given, c3 = 1/3 rounded (with the rest about 2^-32).
constexpr double kLn2EP = 0x1.62e42fefa4p-1;
constexpr double kLnEPD[] = {-0.49999999999924227, 0x1.5555555555555p-2};
BRENN_VEC __m128d LnEPFrom(const LnReduction& red) {
    __m128d r = Add(red.a, Mul(red.ml, red.rcp));
    __m128d head = Add(Add(Mul(red.k, Set<double>(kLn2EP)), red.th), r);
    return Add(head, Mul(Mul(r, r), Horner(r, kLnEPD)));
}

// Double: the core's head and tail. Special lanes run as they are: the core's m and k
// are in range for any bits.
template <Level L>
inline __m128d LnOf(__m128d x) {
    I64x2 x1;
    if constexpr (L == Level::EP) {
        return LnEPFrom(LnReduceBits(x, x1));
    } else {
        __m128d h, l;
        LnCoreFrom<L, true>(LnReduceBits(x, x1), h, l);
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
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 4) {
            int bits = 0;
#pragma GCC unroll 4
            for (int i = 0; i < 4; ++i) bits |= MaskBits(LogSpecial(x[i])) << (4 * i);
            LnRound<L, 4>(x, y);
            return bits;
        } else {
            // The four pair splits first, their m, k and mh held apart (Opaque), then each
            // pair's rows and sums: the compiler would sink each split into its sums.
            LogPair ps[4];
            __m128d mh[8];
            const int bits = SplitRoundCentres(x, ps, mh);
#pragma GCC unroll 4
            for (int q = 0; q < 4; ++q) {
                const LogPair& p = ps[q];
                LnReduction red[2];
                LoadLnRows(PairRow<0>(lnRows, p), PairRow<1>(lnRows, p), red[0]);
                LoadLnRows(PairRow<2>(lnRows, p), PairRow<3>(lnRows, p), red[1]);
                for (int j = 0; j < 2; ++j) {
                    red[j].mh = mh[2 * q + j];
                    red[j].k = p.k[j];
                    red[j].ml = Sub(p.m[j], red[j].mh);
                }
#pragma GCC unroll 2
                for (int j = 0; j < 2; ++j) {
                    if constexpr (L == Level::EP) {
                        y[2 * q + j] = LnEPFrom(red[j]);
                    } else {
                        __m128d h, l;
                        LnCoreFrom<L, true>(red[j], h, l);
                        y[2 * q + j] = Add(h, l);
                    }
                }
            }
            return bits;
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
