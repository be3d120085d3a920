/* The double Log10 and Log2 on rows of their own base (log10Rows, log2Rows).
 *
 * x = 2^k * m, m in [1 - 2^-10, 2 - 2^-10), mh = m rounded to 9 fraction bits (1 + j/512,
 * j = 0 to 511) and ml = m - mh; the row of mh holds rcp, 1/mh to 10 bits, a = mh*rcp - 1 (exact) and
 * T = -log_B(rcp) + c*a in two parts, Thi on the 2^-42 grid, c = log_B(e). With
 * b = ml*rcp, exact (|ml| <= 2^-10 on the grid of 2^-53 and rcp of 10 bits), m*rcp = 1 + r
 * with r = a + b exactly, |r| <= 1.5*2^-10,
 * and log_B(1 + r) = c*r + r^2*Q(r), so that
 *   log_B x = (k*log_B(2)hi + Thi) + c*b + r^2*Q(r) + (k*log_B(2)lo + Tlo),
 * Q fitted for the base (tools/explog/log10_2_double.sollya). The head H is exact: both
 * terms on the 2^-42 grid (k is the integer itself for Log2). c*a in the row leaves c*b
 * alone to be carried: LA: Q of degree 3 with the low parts. HA: degree 4 and c*b carried
 * exactly in effect: b's top 26 bits bh (bl = b - bh exact), bh*chi exact for the 26-bit
 * head of c, H + bh*chi by Fast2Sum (H is 0 or at least of the binade of c*b), and the
 * rest small beside it. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_BASE_DOUBLE_H
#define BRENN_VECMATH_EXPLOG_LOG_BASE_DOUBLE_H

#include "vecmath/explog/explog_tables.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

template <int Base>
struct LogRowsD;

template <>
struct LogRowsD<10> {
    static constexpr const double (*kRows)[4] = log10Rows;
    // log10(2) on the 2^-42 grid (the last row's head) and the rest.
    static constexpr double kPerKHi = 0x1.34413509f8p-2, kPerKLo = -0x1.80433b83b532ap-44;
    // log10(e): rounded, and as a 26-bit head and the rest.
    static constexpr double kPerLn = 0x1.bcb7b1526e50ep-2;
    static constexpr double kPerLnHi = 0x1.bcb7b18p-2, kPerLnLo = -0x1.6c8d78e6acaa4p-29;
    // Q(r), by tools/explog/log10_2_double.sollya (relative error of the whole: HA
    // 2^-63.75, LA 2^-53.75).
    static constexpr double kHA[] = {-0x1.bcb7b1526e50ep-3, 0x1.287a7636f320fp-3,
                                     -0x1.bcb7b15316ea5p-4, 0x1.63c65933276fdp-4,
                                     -0x1.2876c6cfda466p-4};
    static constexpr double kLA[] = {-0x1.bcb7b1526d667p-3, 0x1.287a7636f3115p-3,
                                     -0x1.bcb7e56ecd0a3p-4, 0x1.63c65a2592c84p-4};
};

template <>
struct LogRowsD<2> {
    static constexpr const double (*kRows)[4] = log2Rows;
    // k is log2's own integer part.
    static constexpr double kPerKHi = 1.0, kPerKLo = 0.0;
    static constexpr double kPerLn = 0x1.71547652b82fep0;
    static constexpr double kPerLnHi = 0x1.7154768p0, kPerLnLo = -0x1.6a3e80f444178p-27;
    static constexpr double kHA[] = {-0x1.71547652b82fep-1, 0x1.ec709dc39e73bp-2,
                                     -0x1.71547653058a3p-2, 0x1.2776ee5fa62f8p-2,
                                     -0x1.ec6d54771cbdbp-3};
    static constexpr double kLA[] = {-0x1.71547652b76d2p-1, 0x1.ec709dc39e59cp-2,
                                     -0x1.7154a19a7fb5ap-2, 0x1.2776ef284b331p-2};
};

// log_B x from the reduction: m in [1 - 2^-10, 2 - 2^-10), mh = 1 + j/512, k, and the
// row of mh at ra (lane 0) and rb (lane 1).
template <int Base, Level L>
BRENN_VEC __m128d LogBaseFrom(__m128d m, __m128d mh, __m128d k, const double* ra,
                              const double* rb) {
    using K = LogRowsD<Base>;
    __m128d rcp, a, th, tl;
    LoadTransposed(ra, rb, rcp, a);
    LoadTransposed(ra + 2, rb + 2, th, tl);
    __m128d ml = Sub(m, mh);  // exact
    __m128d b = Mul(ml, rcp); // exact
    __m128d r = Add(a, b);
    __m128d r2 = Mul(r, r);
    // The row's T holds c*a already: log_B x = (k*log_B(2) + T) + c*b + r^2*Q(r).
    __m128d h = Add(Mul(k, Set<double>(K::kPerKHi)), th); // exact
    // Log2's k is exact as it is: no low part to scale (k*0 would stay, a product and a
    // sum the compiler may not drop).
    __m128d tail = K::kPerKLo == 0.0 ? tl : Add(Mul(k, Set<double>(K::kPerKLo)), tl);
    static_assert(L != Level::EP, "EP runs on the rows alone (LogRowsEP)");
    if constexpr (L == Level::LA) {
        __m128d small = Add(Mul(r2, Estrin(r, K::kLA)), tail);
        return Add(h, Add(Mul(b, Set<double>(K::kPerLn)), small));
    } else {
        // c*b carried exactly in effect: b's top 26 bits bh (bl = b - bh exact), bh*chi
        // exact for the 26-bit head of c, and h + bh*chi by Fast2Sum (h is 0 in the row of
        // 1, or at least of the binade of c*b: |T| is about log_B of the row's centre).
        __m128d bh = And(b, AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull)));
        __m128d bl = Sub(b, bh);
        __m128d ph = Mul(bh, Set<double>(K::kPerLnHi)); // exact
        __m128d s = Add(h, ph);
        __m128d err = Sub(ph, Sub(s, h));
        __m128d lo =
            Add(Add(Mul(bh, Set<double>(K::kPerLnLo)), Mul(bl, Set<double>(K::kPerLn))), tail);
        __m128d small = Add(Mul(r2, Estrin(r, K::kHA)), lo);
        return Add(s, Add(err, small));
    }
}

// log_B x for positive normal x; any other bits give a finite k, an m in [1, 2) and a
// row, so special lanes need no blend (their results are discarded).
template <int Base, Level L>
BRENN_VEC __m128d LogBaseOf(__m128d x) {
    using F = Format<double>;
    using K = LogRowsD<Base>;
    // x's fraction rounded to 9 bits by adding half of 2^-9 to its bits: the row j (0 to
    // 511) is in bits 43 to 51 of the sum, its byte offset a shift and a mask away (two
    // integer steps after x's bits, in the low word of each lane: an address as it is
    // moved out), and a carry out of the fraction lands in the exponent, so that k is the
    // sum's exponent, m = x*2^-k lies in [1 - 2^-10, 2 - 2^-10) and mh = 1 + j/512 is the
    // sum's fraction bits from 43 up. x near 1 on either side has k = 0 and the row of 1.
    const I64x2 xi = AsInt(x);
    const I64x2 x1 = Add(xi, Set<uint64_t>(1ull << (F::kMantBits - 10)));
    const I64x2 off = And(ShiftRight<F::kMantBits - 9 - 5>(x1), Set<uint64_t>(511ull << 5));
    const char* rows = reinterpret_cast<const char*>(K::kRows);
    const double* ra = reinterpret_cast<const double*>(rows + uint64_t(_mm_cvtsi128_si64(off.v)));
    const double* rb =
        reinterpret_cast<const double*>(rows + uint64_t(_mm_extract_epi64(off.v, 1)));
    const I64x2 e1 = And(x1, Set<uint64_t>(F::kExpField));
    __m128d m = AsFloat(Add(Sub(xi, e1), Set<uint64_t>(F::kOne)));
    __m128d mh = AsFloat(Or(And(x1, Set<uint64_t>(0x000FF80000000000ull)), Set<uint64_t>(F::kOne)));
    __m128d k = Sub(AsFloat(Or(ShiftRight<F::kMantBits>(e1), AsInt(Set<double>(0x1p52)))),
                    Set<double>(0x1p52 + F::kBias));
    return LogBaseFrom<Base, L>(m, mh, k, ra, rb);
}

// A round of sixteen (eight registers) split by pairs (log_core.h SplitPair): the same
// values, and the round's special-lane bits.
template <int Base, Level L>
BRENN_VEC int LogBaseWide(const __m128d* x, __m128d* y) {
    using K = LogRowsD<Base>;
    static_assert(sizeof(K::kRows[0]) == 32, "rows of 32 bytes");
    LogPair p[4];
    __m128d mh[8];
    const int bits = SplitRoundCentres(x, p, mh);
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        y[2 * q] = LogBaseFrom<Base, L>(p[q].m[0], mh[2 * q], p[q].k[0],
                                        PairRow<0>(K::kRows, p[q]), PairRow<1>(K::kRows, p[q]));
        y[2 * q + 1] =
            LogBaseFrom<Base, L>(p[q].m[1], mh[2 * q + 1], p[q].k[1],
                                 PairRow<2>(K::kRows, p[q]), PairRow<3>(K::kRows, p[q]));
    }
    return bits;
}

} // namespace brenn::vm

#endif
