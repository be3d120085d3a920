/* Shared pieces of the logarithm family.
 *
 * Range: every lane that is not a positive normal (zero, denormal, negative, infinite,
 * NaN) goes to the scalar routine; the window is per type in LogConst.
 * Single split: x = 2^k * m with m in [2/3, 4/3), by integer arithmetic on the bits
 * around the centre 0x3F2AAAAB (2/3), so that for x near 1 k is 0 and r = m - 1 is
 * exact: no cancellation.
 * Double core: m in [1, 2) from the significand, mh = m rounded to 9 fraction bits
 * (the 513 rows of lnRows), r = (mh*rcp - 1) + ml*rcp with the first product exact
 * (the row holds it, a),
 * |r| <= 2^-10; ln x = (k*ln2hi + Thi) + (r + r^2*P(r) + k*ln2lo + Tlo), where the
 * first sum is exact (both on the 2^-42 grid). The result comes as that exact head H and
 * a tail L, so that Log10, Log2 and Log1p can scale or correct it without a second
 * rounding. Positive normal doubles only; the range tests keep the rest away. */
#ifndef BRENN_VECMATH_EXPLOG_LOG_CORE_H
#define BRENN_VECMATH_EXPLOG_LOG_CORE_H

#include <bit>

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

template <class T>
struct LogConst;

template <>
struct LogConst<float> {
    // All but the positive normals: bits below 0x00800000 or at 0x7F800000 and above.
    static constexpr Range32 kPositiveNormal{0xFFFFFFFFu, 0x7F800000u, 0xFEFFFFFFu};
    // ln 2 rounded, and in two parts whose head times k (|k| < 2^8) is exact.
    static constexpr float kLn2 = 0x1.62e43p-1f;
    static constexpr float kLn2Hi = 0x1.62e4p-1f, kLn2Lo = 0x1.7f7d1cp-20f;
    // EP (sLn, sLog1p): Q(r) of ln(1 + r) = r + r^2*Q(r) on the split around 2/3,
    // r in [-1/3, 1/3), Horner's rule from the top: -0.5, 0x3EAA7160, 0xBE88E8FE,
    // 0x3E612933 (about 2^-11.6 with the roundings; the level asks for 11 bits).
    static constexpr float kLnEP[] = {-0x1p-1f, 0x1.54e2cp-2f, -0x1.11d1fcp-2f,
                                      0x1.c25266p-3f};
};

template <>
struct LogConst<double> {
    static constexpr Range64 kPositiveNormal{0xFFFFFFFFFFFFFFFFull, 0x7FF0000000000000ull,
                                             0xFFDFFFFFFFFFFFFFull};
    // ln 2 as a head on the 2^-42 grid (k times it, and its sum with a row's head, are
    // exact) and the rest.
    static constexpr double kLn2Hi = 0x1.62e42fefa38p-1, kLn2Lo = 0x1.ef35793c7673p-45;
    static constexpr double kLn2 = 0x1.62e42fefa39efp-1; // rounded
    // P(r) of ln(1 + r) = r + r^2*P(r) on |r| <= 2^-10, fitted by
    // tools/explog/ln_double.sollya: EP degree 3 (about 2^-33 with the rest of the
    // core), LA and HA degree 5.
    static constexpr double kCoreEP[] = {-0x1.000005ffedcddp-1, 0x1.5555602210279p-2};
    static constexpr double kCore[] = {-0x1.ffffffffffcabp-2, 0x1.555555555512dp-2,
                                       -0x1.00000d54efc6fp-2, 0x1.9999b38894dd2p-3};
    // dLn HA: P(r) as given, -0.49999999999995254, 0.33333333333327408,
    // -0.25000019886943392, 0.20000019344205111, by Horner's rule.
    static constexpr double kLnHA[] = {-0.49999999999995254, 0.33333333333327408,
                                       -0.25000019886943392, 0.20000019344205111};
};

// The lanes that are not positive normals. The window's limit is kept from the
// optimiser, which would otherwise compare with the limit plus one and negate (two
// instructions, not one). In single, bits(x) + 0x7F800000 signed above 0xFEFFFFFF is
// (bits(x) + 0x800000) signed below 0x1000000 moved by 2^31: the same lanes by the same
// one compare, without the copy of the constant that the compare below it needs.
template <class V>
inline V LogSpecial(V x) {
    using T = ElemOf<V>;
    constexpr LaneRange<T> w = LogConst<T>::kPositiveNormal;
    return AsFloat(Gt(Add(AsInt(x), Set<UInt<T>>(w.offset)), Opaque(Set<UInt<T>>(w.limit))));
}

// 2^-e for x in the binade [2^e, 2^(e+1)), e from 1 - bias to bias - 1, by the exponent
// field alone (x's sign ignored); +0 for the top binade, where the terms it scales (a
// rounding error of x) are far below a logarithm's last place.
template <class V>
inline V InverseBinade(V x) {
    using T = ElemOf<V>;
    using F = Format<T>;
    constexpr UInt<T> kTwiceBias = UInt<T>(2 * F::kBias) << F::kMantBits;
    return AsFloat(Sub(Set<UInt<T>>(kTwiceBias), And(AsInt(x), Set<UInt<T>>(F::kExpField))));
}

// Single: x = 2^k * (1 + r), m = 1 + r in [2/3, 4/3).
inline void LogSplit(__m128 x, __m128& r, __m128& k, I32x4& ki, uint32_t centre = 0x3F2AAAABu) {
    using F = Format<float>;
    const I32x4 c = Set<uint32_t>(centre);
    I32x4 d = Sub(AsInt(x), c);
    ki = ShiftRightSigned<F::kMantBits>(d);
    k = ToFloat(ki);
    I32x4 m = Add(And(d, Set<uint32_t>(F::kMant)), c);
    r = Sub(AsFloat(m), Set<float>(1.0f));
}
inline void LogSplit(__m128 x, __m128& r, __m128& k) {
    I32x4 ki;
    LogSplit(x, r, k, ki);
}

// Single HA on a reciprocal: x = 2^k * m by the split around 2/3, m in [2/3, 4/3); rcpps
// of m rounded to 2^-6 (to nearest, ties to even), rc = t/64 (t from 48 to 96, whatever
// the estimate's low bits), is the reducer and t - 48 the row. m*rc - 1 =
// (mh*rc - 1) + ml*rc with mh m's top 17 bits: mh*rc and the difference are exact, and
// so is the sum, r: m*rc lies on the grid of 2^-30 (2^-29 above 1) and
// |r| <= (4/3)/128 + 1.5*2^-12 < 2^-6.5.
// log_B x = H + c*r + r^2*Q(r) + (k*log_B(2)lo + Tlo), H = k*log_B(2)hi + Thi exact (both
// on the 2^-14 grid), c = log_B(e) in a 12-bit head and the rest: c*r's head ch*rh (rh
// r's top 12 bits) is exact, H + ch*rh by Fast2Sum (H is 0, or at least |log_B(65/64)|,
// above |c*r|), and the rest, at most 2^-6 of the result, joins the error. About 0.52 ulp.
struct LogRecipE {
    static constexpr const float (*kRows)[2] = single::lnRecipRows;
    static constexpr float kPerKHi = 0x1.62e8p-1f, kPerKLo = -0x1.e8082ep-16f;
    static constexpr float kCHi = 1.0f, kCLo = 0.0f;
    // Q(r), fitted by tools/explog/log_single_rcp.sollya.
    static constexpr float kQ[] = {-0x1p-1f, 0x1.555aa6p-2f, -0x1.0004b2p-2f};
};
struct LogRecip10 {
    static constexpr const float (*kRows)[2] = single::log10RecipRows;
    static constexpr float kPerKHi = 0x1.344p-2f, kPerKLo = 0x1.3509f8p-18f;
    static constexpr float kCHi = 0x1.bccp-2f, kCLo = -0x1.09d5b2p-15f;
    static constexpr float kQ[] = {-0x1.bcb7bp-3f, 0x1.287f14p-3f, -0x1.bd25bcp-4f};
};
struct LogRecip2 {
    static constexpr const float (*kRows)[2] = single::log2RecipRows;
    static constexpr float kPerKHi = 1.0f, kPerKLo = 0.0f;
    static constexpr float kCHi = 0x1.716p+0f, kCLo = -0x1.7135a8p-13f;
    static constexpr float kQ[] = {-0x1.71546ep-1f, 0x1.ec7848p-2f, -0x1.73dcbp-2f};
};

// m and k of the split around 2/3 (LogSplit's, before r = m - 1).
inline void LogSplitM(__m128 x, __m128& m, __m128& k) {
    using F = Format<float>;
    const I32x4 c = Set<uint32_t>(0x3F2AAAABu);
    I32x4 d = Sub(AsInt(x), c);
    k = ToFloat(ShiftRightSigned<F::kMantBits>(d));
    m = AsFloat(Add(And(d, Set<uint32_t>(F::kMant)), c));
}

// The stages of LogByRecip, so that a round can take each over all its registers: the
// reducer (rcpps of m rounded to 2^-6), then its row, then r, then the sums. The rounding
// by the shifter 1.5*2^17, whose ulp is 2^-6: s = rcpps(m) + 1.5*2^17 rounds the estimate
// to nearest on that grid, ties to even (s's last significand bit is t's, 64*1.5*2^17
// being even), the same rc = t/64 as rounding 64*rcpps(m) to an integer, and s holds t
// in its low bits: bits(s) = bits(1.5*2^17) + t.
constexpr float kRecipShifter = 0x1.8p17f;
BRENN_VEC __m128 LogRecipS(__m128 m) {
    return Add(ApproxRecip(m), Set<float>(kRecipShifter));
}
// The row of t (s's low bits): -log_B(rc) in two parts.
template <class B>
BRENN_VEC void LogRecipRow(__m128 s, __m128& thi, __m128& tlo) {
    // The rows' byte offsets, 8*bits(s) in 32 bits (8*t plus a constant, wrapping),
    // taken out two at a time (each word widens to an address as it is moved).
    const I32x4 off = ShiftLeft<3>(AsInt(s));
    const uint64_t o01 = uint64_t(_mm_cvtsi128_si64(off.v));
    const uint64_t o23 = uint64_t(_mm_extract_epi64(off.v, 1));
    // Row 48 is the table's first: the offsets are taken from an address 48 rows and
    // the constant before it, formed as an integer (no pointer leaves the table).
    constexpr uint32_t kShifterOffset = uint32_t(std::bit_cast<uint32_t>(kRecipShifter) << 3);
    const uintptr_t base = reinterpret_cast<uintptr_t>(B::kRows) - 48 * sizeof(B::kRows[0]) -
                           uintptr_t(kShifterOffset);
    LoadTransposed(reinterpret_cast<const float*>(base + uint32_t(o01)),
                   reinterpret_cast<const float*>(base + (o01 >> 32)),
                   reinterpret_cast<const float*>(base + uint32_t(o23)),
                   reinterpret_cast<const float*>(base + (o23 >> 32)), thi, tlo);
}
// log_B of 2^k * m from s and its row.
// r = m*rc - 1, exact.
BRENN_VEC __m128 LogRecipR(__m128 m, __m128 s) {
    const __m128 one = Set<float>(1.0f);
    const __m128 rc = Sub(s, Set<float>(kRecipShifter)); // exact
    const __m128 mh = And(m, AsFloat(Set<uint32_t>(0xFFFFFF80u)));
    const __m128 ml = Sub(m, mh);
    return Add(Sub(Mul(mh, rc), one), Mul(ml, rc)); // exact
}
template <class B, bool kExtra = false>
BRENN_VEC __m128 LogRecipSumR(__m128 r, __m128 k, __m128 thi, __m128 tlo,
                              __m128 extra = _mm_setzero_ps()) {
    const __m128 h = B::kPerKHi == 1.0f ? Add(k, thi) : Add(Mul(k, Set<float>(B::kPerKHi)), thi);
    const __m128 low = B::kPerKLo == 0.0f ? tlo : Add(Mul(k, Set<float>(B::kPerKLo)), tlo);
    const __m128 q = Mul(Mul(r, r), Horner(r, B::kQ));
    __m128 s, e, rest;
    if constexpr (B::kCHi == 1.0f) {
        FastTwoSum(h, r, s, e);
        rest = Add(Add(e, low), q);
    } else {
        const __m128 rh = And(r, AsFloat(Set<uint32_t>(0xFFFFF000u)));
        const __m128 rl = Sub(r, rh);
        const __m128 ch = Set<float>(B::kCHi);
        FastTwoSum(h, Mul(rh, ch), s, e);
        const __m128 lin = Add(Mul(rl, ch), Mul(r, Set<float>(B::kCLo)));
        rest = Add(Add(Add(e, lin), low), q);
    }
    if constexpr (kExtra) rest = Add(rest, extra);
    return Add(s, rest);
}
template <class B, bool kExtra = false>
BRENN_VEC __m128 LogRecipSum(__m128 m, __m128 k, __m128 s, __m128 thi, __m128 tlo,
                             __m128 extra = _mm_setzero_ps()) {
    return LogRecipSumR<B, kExtra>(LogRecipR(m, s), k, thi, tlo, extra);
}

// log_B of 2^k * m (above), with `extra` added to the small terms (Log1p's c/u; zero
// elsewhere). Any m in [2/3, 4/3) gives a row, so special lanes need no blend.
template <class B, bool kExtra = false>
BRENN_VEC __m128 LogByRecip(__m128 m, __m128 k, __m128 extra = _mm_setzero_ps()) {
    const __m128 s = LogRecipS(m);
    __m128 thi, tlo;
    LogRecipRow<B>(s, thi, tlo);
    return LogRecipSum<B, kExtra>(m, k, s, thi, tlo, extra);
}

// LogByRecip over the N registers of a round, stage by stage: every register's s, then
// every row, then every r, then every sum, each stage's values held (Opaque) so that the
// compiler does not sink them back into one register's chain after another. The same
// operations on every lane, the same bits.
template <class B, int N, bool kExtra = false>
BRENN_VEC void LogByRecipRound(const __m128* m, const __m128* k, __m128* y,
                               const __m128* extra = nullptr) {
    __m128 s[N], thi[N], tlo[N];
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) s[i] = Opaque(LogRecipS(m[i]));
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        LogRecipRow<B>(s[i], thi[i], tlo[i]);
        thi[i] = Opaque(thi[i]);
        tlo[i] = Opaque(tlo[i]);
    }
    __m128 r[N];
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) r[i] = Opaque(LogRecipR(m[i], s[i]));
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        if constexpr (kExtra)
            y[i] = LogRecipSumR<B, true>(r[i], k[i], thi[i], tlo[i], extra[i]);
        else
            y[i] = LogRecipSumR<B>(r[i], k[i], thi[i], tlo[i]);
    }
}

// The single split over the N registers of a round; Hold keeps r and k apart (Opaque), so
// that the compiler does not sink them into each register's polynomial.
template <int N, bool Hold>
BRENN_VEC void LogSplitRound(const __m128* x, __m128* r, __m128* k) {
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        LogSplit(x[i], r[i], k[i]);
        if constexpr (Hold) {
            r[i] = Opaque(r[i]);
            k[i] = Opaque(k[i]);
        }
    }
}

// Horner's steps over the N registers of a round, each step over every register before
// the next, so that the registers' chains interleave: q = c[j] + r q for j from Top down
// to 0, q holding the start.
template <int N, int Top, size_t C>
BRENN_VEC void HornerRound(const __m128* r, const float (&c)[C], __m128* q) {
#pragma GCC unroll 16
    for (int j = Top; j >= 0; --j) {
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) q[i] = MulAdd(r[i], q[i], Set<float>(c[j]));
    }
}

// The single forms' p = r + r^2 Q(r) over the N registers of a round, Q's coefficients c
// (lowest degree first) by HornerRound.
template <int N, size_t C>
BRENN_VEC void LogPolyRound(const __m128* r, const float (&c)[C], __m128* p) {
    __m128 q[N];
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) q[i] = Set<float>(c[C - 1]);
    HornerRound<N, int(C) - 2>(r, c, q);
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) p[i] = Add(r[i], Mul(Mul(r[i], r[i]), q[i]));
}

// The reduction of the double core for positive normal x, two lanes: x = 2^k * m,
// m = mh + ml with mh on the 2^-9 grid, and mh's row of lnRows: rcp and -ln(rcp) in
// two parts th + tl. The power kernels start from it too.
struct LnReduction {
    __m128d k, mh, ml, rcp, th, tl;
    __m128d a; // the row's mh*rcp - 1, as the product and difference round (exact)
};
BRENN_VEC LnReduction LnReduce(__m128d x) {
    using F = Format<double>;
    LnReduction red;
    const I64x2 xi = AsInt(x);
    __m128d m = AsFloat(Or(And(xi, Set<uint64_t>(F::kMant)), Set<uint64_t>(F::kOne)));
    // k without a conversion: the exponent field put under the bits of 2^52, less
    // 2^52 + 1023 (exact). Any input gives a finite k and an m in [1, 2), so special
    // lanes need no blend: their results are discarded.
    I64x2 e = ShiftRight<F::kMantBits>(xi);
    red.k = Sub(AsFloat(Or(e, AsInt(Set<double>(0x1p52)))), Set<double>(0x1p52 + F::kBias));
    const __m128d sh = Set<double>(0x1p43); // rounds m to 2^-9
    __m128d ts = Add(m, sh);
    red.mh = Sub(ts, sh);
    red.ml = Sub(m, red.mh);
    const I64x2 ti = AsInt(ts);
    const double* ra = lnRows[LowWord<0>(ti) - 512];
    const double* rb = lnRows[LowWord<1>(ti) - 512];
    LoadTransposed(ra, rb, red.rcp, red.th);
    LoadTransposed(ra + 2, rb + 2, red.tl, red.a);
    return red;
}

// Double EP on the rows alone: log_B x for positive normal x from rows of 2^s bytes
// whose first two doubles are a reciprocal of c = 1 + j/512 and -log_B of it (log2RowsF
// for dLog2 EP). x's fraction is rounded to 9 bits by adding half of 2^-9 to its
// bits, so that the row j (0 to 511) is in bits 43 to 51 of the sum, its byte offset a
// shift and a mask away, and a carry out of the fraction lands in the exponent: k is the
// sum's exponent and m = x*2^-k lies in [1 - 2^-10, 2 - 2^-10), so that x near 1 on
// either side has k = 0 and the row of 1, r = m - 1 exactly. r = m*rcp - 1 rounds once
// (its product, by 2^-53, which at the rows other than 0 is far below 2^-40 of the
// result); log_B x = (k*log_B(2) + T) + r*(c1 + r*(c2 + r*c3)), the cubic fitted for the
// base (about 2^-34 with the rest). The way to the loads is two integer steps after x's
// bits. Any bits give a finite k, a finite m and a row: special lanes need no blend.
BRENN_VEC __m128d LogRowsEPFrom(__m128d m, __m128d k, const double* ra, const double* rb,
                                double perK, const double (&c)[3]) {
    __m128d rcp, t;
    LoadTransposed(ra, rb, rcp, t);
    __m128d r = Sub(Mul(m, rcp), Set<double>(1.0));
    __m128d head = perK == 1.0 ? Add(k, t) : Add(Mul(k, Set<double>(perK)), t);
    return Add(head, Mul(r, Horner(r, c)));
}
template <int S, size_t W>
BRENN_VEC __m128d LogRowsEP(__m128d x, const double (*rows)[W], double perK, const double (&c)[3]) {
    using F = Format<double>;
    static_assert(sizeof(rows[0]) == (size_t(1) << S), "rows of 2^S bytes");
    const I64x2 xi = AsInt(x);
    const I64x2 x1 = Add(xi, Set<uint64_t>(1ull << (F::kMantBits - 10)));
    const I64x2 off = And(ShiftRight<F::kMantBits - 9 - S>(x1), Set<uint64_t>(511ull << S));
    const char* base = reinterpret_cast<const char*>(rows);
    __m128d m = AsFloat(Add(Sub(xi, And(x1, Set<uint64_t>(F::kExpField))), Set<uint64_t>(F::kOne)));
    __m128d k = Sub(AsFloat(Or(ShiftRight<F::kMantBits>(x1), AsInt(Set<double>(0x1p52)))),
                    Set<double>(0x1p52 + F::kBias));
    return LogRowsEPFrom(
        m, k, reinterpret_cast<const double*>(base + uint64_t(_mm_cvtsi128_si64(off.v))),
        reinterpret_cast<const double*>(base + uint64_t(_mm_extract_epi64(off.v, 1))), perK, c);
}

// The same split for two registers at once, on their four high words: all that it needs
// lives there (the sign, the exponent field and the fraction's top 20 bits, the row's 9
// among them; adding half of 2^-9 carries no further than them), so that one compare
// tests the four lanes for positive normals, one shift and one mask give the four rows'
// byte offsets (two moves out), and k and m come from the four rounded exponent fields
// e: k by one conversion a register, m = x - e + 1's field in the high word alone (the
// low words stay). Every value is the one-register split's, bit for bit.
struct LogPair {
    int special;     // a bit a lane: x0's two, then x1's
    __m128d k[2], m[2];
    I32x4 h;         // the high words of x's bits plus half of 2^-9's
    I32x4 e;         // their exponent fields (bits 20 to 30)
    uint64_t off[2]; // the rows' byte offsets, x0's and x1's, two 32-bit words each
};
// The window is taken on the high words, offset and limit as a Range64's high words
// (its limit's low word all ones): by default the positive normals, 0x00100000 to
// 0x7FEFFFFF, moved to the bottom of the signed words, all others above the limit.
template <int S, uint32_t WinOffset = 0x7FF00000u, uint32_t WinLimit = 0xFFDFFFFFu>
BRENN_VEC LogPair SplitPair(__m128d x0, __m128d x1) {
    LogPair p;
    const I32x4 hi{_mm_castps_si128(
        _mm_shuffle_ps(_mm_castpd_ps(x0), _mm_castpd_ps(x1), _MM_SHUFFLE(3, 1, 3, 1)))};
    const I32x4 t = Add(hi, Set<uint32_t>(WinOffset));
    p.special = MaskBits(Gt(t, Opaque(Set<uint32_t>(WinLimit))));
    p.h = Add(hi, Set<int32_t>(1 << 10));
    const I32x4 off = And(ShiftRight<11 - S>(p.h), Set<int32_t>(511 << S));
    p.off[0] = uint64_t(_mm_cvtsi128_si64(off.v));
    p.off[1] = uint64_t(_mm_extract_epi64(off.v, 1));
    const I32x4 e = And(p.h, Set<uint32_t>(0x7FF00000u));
    p.e = e;
    const I32x4 ki = Sub(ShiftRight<20>(e), Set<int32_t>(1023));
    p.k[0] = _mm_cvtepi32_pd(ki.v);
    p.k[1] = _mm_cvtepi32_pd(_mm_shuffle_epi32(ki.v, 0xEE));
    // m = x - e + 1's field: the high words' difference put over zero low words.
    const __m128 d = _mm_castsi128_ps(Sub(Set<uint32_t>(0x3FF00000u), e).v);
    const __m128 z = _mm_setzero_ps();
    p.m[0] = AsFloat(Add(AsInt(x0), I64x2{_mm_castps_si128(_mm_unpacklo_ps(z, d))}));
    p.m[1] = AsFloat(Add(AsInt(x1), I64x2{_mm_castps_si128(_mm_unpackhi_ps(z, d))}));
    return p;
}
// Lane j's row (0 to 3) of a pair.
template <int J>
BRENN_VEC const double* PairRow(const void* rows, const LogPair& p) {
    const uint64_t o = p.off[J / 2];
    return reinterpret_cast<const double*>(static_cast<const char*>(rows) +
                                           (J % 2 == 0 ? uint32_t(o) : (o >> 32)));
}

// A round of sixteen doubles (eight registers) by LogRowsEP's arithmetic, split by pairs;
// the special-lane bits of the round.
template <int S, size_t W>
BRENN_VEC int LogRowsEPWide(const __m128d* x, __m128d* y, const double (*rows)[W], double perK,
                            const double (&c)[3]) {
    static_assert(sizeof(rows[0]) == (size_t(1) << S), "rows of 2^S bytes");
    // The four pair splits first, their m and k held apart (Opaque), then each pair's
    // rows and sums: the compiler would sink each split into its sums.
    int bits = 0;
    LogPair ps[4];
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        ps[q] = SplitPair<S>(x[2 * q], x[2 * q + 1]);
        bits |= ps[q].special << (4 * q);
        for (int j = 0; j < 2; ++j) {
            ps[q].m[j] = Opaque(ps[q].m[j]);
            ps[q].k[j] = Opaque(ps[q].k[j]);
        }
    }
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        const LogPair& p = ps[q];
        y[2 * q] = LogRowsEPFrom(p.m[0], p.k[0], PairRow<0>(rows, p), PairRow<1>(rows, p), perK, c);
        y[2 * q + 1] =
            LogRowsEPFrom(p.m[1], p.k[1], PairRow<2>(rows, p), PairRow<3>(rows, p), perK, c);
    }
    return bits;
}

// The same reduction by x's bits, for the logarithm kernels: x's fraction rounded to 9
// bits by adding half of 2^-9 to its bits, so that the row j (0 to 511) is two integer
// steps from x (its byte offset in the low word of each lane, moved out as an address),
// k is the sum's exponent, m = x*2^-k lies in [1 - 2^-10, 2 - 2^-10) and mh = 1 + j/512
// is the sum's fraction bits from 43 up: x near 1 on either side has k = 0 and the row
// of 1 (no k = -1 with the last row, whose heads cancel). The same rows and the same
// exact steps after it (mh*rcp exact, ml = m - mh exact: |ml| <= 2^-10 on the grid of
// 2^-53); a shorter way to the loads than the shifter's round trip through m. u1, the
// sum's bits, is given back for callers that take m otherwise (Log1p).
BRENN_VEC void LoadLnRows(const double* ra, const double* rb, LnReduction& red) {
    LoadTransposed(ra, rb, red.rcp, red.th);
    LoadTransposed(ra + 2, rb + 2, red.tl, red.a);
}
BRENN_VEC LnReduction LnReduceBits(__m128d x, I64x2& x1) {
    using F = Format<double>;
    LnReduction red;
    const I64x2 xi = AsInt(x);
    x1 = Add(xi, Set<uint64_t>(1ull << (F::kMantBits - 10)));
    static_assert(sizeof(lnRows[0]) == 32, "rows of 32 bytes");
    const I64x2 off = And(ShiftRight<F::kMantBits - 9 - 5>(x1), Set<uint64_t>(511ull << 5));
    const char* rows = reinterpret_cast<const char*>(lnRows);
    LoadLnRows(reinterpret_cast<const double*>(rows + uint64_t(_mm_cvtsi128_si64(off.v))),
               reinterpret_cast<const double*>(rows + uint64_t(_mm_extract_epi64(off.v, 1))), red);
    const I64x2 e1 = And(x1, Set<uint64_t>(F::kExpField));
    __m128d m = AsFloat(Add(Sub(xi, e1), Set<uint64_t>(F::kOne)));
    red.mh = AsFloat(Or(And(x1, Set<uint64_t>(0x000FF80000000000ull)), Set<uint64_t>(F::kOne)));
    red.ml = Sub(m, red.mh);
    red.k = Sub(AsFloat(Or(ShiftRight<F::kMantBits>(e1), AsInt(Set<double>(0x1p52)))),
                Set<double>(0x1p52 + F::kBias));
    return red;
}

// mh = 1 + j/512 of a pair's four lanes, two registers: the rounded fraction's top 9 bits
// under 1's exponent field in the high words, over zero low words.
BRENN_VEC void PairCentres(const LogPair& p, __m128d& mh0, __m128d& mh1) {
    const __m128 c = _mm_castsi128_ps(
        Or(And(p.h, Set<uint32_t>(0x000FF800u)), Set<uint32_t>(0x3FF00000u)).v);
    const __m128 z = _mm_setzero_ps();
    mh0 = _mm_castps_pd(_mm_unpacklo_ps(z, c));
    mh1 = _mm_castps_pd(_mm_unpackhi_ps(z, c));
}

// A round of sixteen (eight registers) split by pairs on rows of 32 bytes, with each
// pair's centres mh: the four splits first, their m, k and mh held apart (Opaque) so
// that the compiler does not sink each into its rows and sums. The round's special-lane
// bits.
BRENN_VEC int SplitRoundCentres(const __m128d* x, LogPair (&ps)[4], __m128d (&mh)[8]) {
    int bits = 0;
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        ps[q] = SplitPair<5>(x[2 * q], x[2 * q + 1]);
        bits |= ps[q].special << (4 * q);
        PairCentres(ps[q], mh[2 * q], mh[2 * q + 1]);
        for (int j = 0; j < 2; ++j) {
            ps[q].m[j] = Opaque(ps[q].m[j]);
            ps[q].k[j] = Opaque(ps[q].k[j]);
            mh[2 * q + j] = Opaque(mh[2 * q + j]);
        }
    }
    return bits;
}

// LnReduceBits for a pair: the two registers' reductions, bit for bit the same.
BRENN_VEC void LnReducePair(const LogPair& p, LnReduction& r0, LnReduction& r1) {
    LoadLnRows(PairRow<0>(lnRows, p), PairRow<1>(lnRows, p), r0);
    LoadLnRows(PairRow<2>(lnRows, p), PairRow<3>(lnRows, p), r1);
    PairCentres(p, r0.mh, r1.mh);
    r0.k = p.k[0];
    r1.k = p.k[1];
    r0.ml = Sub(p.m[0], r0.mh);
    r1.ml = Sub(p.m[1], r1.mh);
}

// ln x = h + r + t from the reduction, h exact and |t| << |r|: the three terms for the
// exact scaling. EP: cubic and no low parts (about 2^-33). kOwnHA: dLn HA's own
// polynomial (kLnHA by Horner's rule) in place of the core's at HA.
template <Level L, bool kOwnHA = false>
BRENN_VEC void LnCore3From(const LnReduction& red, __m128d& h, __m128d& r, __m128d& t) {
    using K = LogConst<double>;
    // mh*rcp - 1 from the row (a), the same value the product and difference give.
    r = Add(red.a, Mul(red.ml, red.rcp));
    __m128d r2 = Mul(r, r);
    if constexpr (L == Level::EP) {
        __m128d p = Horner(r, K::kCoreEP);
        // The exact head keeps x just below 1 (k = -1, last row) free of cancellation.
        h = Add(Mul(red.k, Set<double>(K::kLn2Hi)), red.th);
        t = Mul(r2, p);
    } else {
        // Estrin's scheme: two independent pairs joined by r^2.
        __m128d p;
        if constexpr (kOwnHA && L == Level::HA)
            p = Horner(r, K::kLnHA);
        else
            p = Estrin(r, K::kCore);
        h = Add(Mul(red.k, Set<double>(K::kLn2Hi)), red.th);
        __m128d tail = Add(Mul(red.k, Set<double>(K::kLn2Lo)), red.tl);
        t = Add(Mul(r2, p), tail);
    }
}

template <Level L>
inline void LnCore3(__m128d x, __m128d& h, __m128d& r, __m128d& t) {
    LnCore3From<L>(LnReduce(x), h, r, t);
}

// ln x = h + l from the reduction.
template <Level L, bool kOwnHA = false>
BRENN_VEC void LnCoreFrom(const LnReduction& red, __m128d& h, __m128d& l) {
    __m128d r, t;
    LnCore3From<L, kOwnHA>(red, h, r, t);
    l = Add(r, t);
}

template <Level L>
inline void LnCore(__m128d x, __m128d& h, __m128d& l) {
    __m128d r, t;
    LnCore3<L>(x, h, r, t);
    l = Add(r, t);
}

// A single body that widens its lanes to double, runs Core on each half and rounds once.
template <class Core>
inline __m128 WidenToDouble(__m128 x, Core core) {
    __m128d lo = core(WidenLower(x));
    __m128d hi = core(WidenUpper(x));
    return Narrow(lo, hi);
}

// ln x in double for the four lanes of a positive normal single x, two lanes a half:
// ln x = (k*ln2hi + Thi) + (r + r^2*(c2 + c3*r)), about 2^-33, enough for a single
// result rounded once. The split is taken on the single bits, four lanes at once:
// x = 2^k*m, m in [1, 2), and the row j of lnRows for m rounded to 9 fraction bits, one
// 16-byte load a lane (the reciprocal and the head of -ln of it). r = m*rcp - 1 in
// double: m has 24 bits, so the product's rounding is below 2^-53 and there is none at
// rows 0 and 512 (rcp 1 and 1/2), where x is near 1 and ln x small; there the heads
// k*ln2hi + Thi cancel exactly (both on the 2^-42 grid). `half(lo, hi)` receives ln of
// lanes 0-1 and 2-3.
template <class Half>
inline __m128 LnOfSingleLanes(__m128 x, Half half) {
    using F = Format<float>;
    using K = LogConst<double>;
    const I32x4 b = AsInt(x);
    I32x4 mant = And(b, Set<uint32_t>(F::kMant));
    __m128 m = AsFloat(Or(mant, Set<uint32_t>(F::kOne)));
    I32x4 k = Sub(ShiftRight<F::kMantBits>(b), Set<int32_t>(F::kBias));
    I32x4 j = ShiftRight<F::kMantBits - 9>(Add(mant, Set<int32_t>(1 << (F::kMantBits - 10))));
    Indices at = IndicesOf(j);
    __m128d lnv[2];
    for (int h = 0; h < 2; ++h) {
        __m128d md = h == 0 ? WidenLower(m) : WidenUpper(m);
        __m128d kd = h == 0 ? ToDoubleLower(k) : ToDoubleUpper(k);
        __m128d rcp, th;
        LoadTransposed(lnRows[at.at[2 * h]], lnRows[at.at[2 * h + 1]], rcp, th);
        __m128d r = Sub(Mul(md, rcp), Set<double>(1.0));
        __m128d p = Add(r, Mul(Mul(r, r), Horner(r, K::kCoreEP)));
        lnv[h] = Add(Add(Mul(kd, Set<double>(K::kLn2Hi)), th), p);
    }
    return half(lnv[0], lnv[1]);
}

// Scalar ln in double for any input: NaN quieted, +inf, -inf for zero, NaN for negatives;
// no status, callers decide. Denormals are scaled by 2^60 first. Near 1 (|x - 1| not
// above 2^-7) a degree-8 polynomial on r = x - 1 alone; elsewhere x = 2^k*m, m in [1, 2),
// the row of lnTable128 for m's interval, r = (c*rcp - 1) + (m - c)*rcp with the first
// product exact, the same polynomial, and k*ln2 and the row's logarithm in two parts
// whose heads add exactly. Within 0.69 ulp of double (measured).
// Coefficients c2..c8 of ln(1 + r) = r + r^2*P(r) on |r| <= 2^-7, as given:
// -0.5, 0.33333333333334386, -0.25000000000003386, 0.19999999911565072,
// -0.1666666651884978, 0.1428756883852146, -0.1250214602960357.
constexpr double kLnScalarPoly[] = {-0.5,
                                    0.33333333333334386,
                                    -0.25000000000003386,
                                    0.19999999911565072,
                                    -0.1666666651884978,
                                    0.1428756883852146,
                                    -0.1250214602960357};
inline double LnPolyScalar(double r) {
    const double* c = kLnScalarPoly;
    double p = c[6];
    p = c[5] + r * p;
    p = c[4] + r * p;
    p = c[3] + r * p;
    p = c[2] + r * p;
    p = c[1] + r * p;
    p = c[0] + r * p;
    return r * r * p;
}

inline double LnScalarD(double x) {
    using F = Format<double>;
    using K = LogConst<double>;
    if (!(x > 0)) {
        if (x == 0) return -1.0 / (x * x);
        return (x - x) / (x - x); // negative or NaN: NaN (a NaN input quieted)
    }
    if (__builtin_isinf(x)) return x;
    double r = x - 1.0;
    if (__builtin_fabs(r) <= 0x1p-7) return r + LnPolyScalar(r);
    int bias = 0;
    if (x < 0x1p-1022) {
        x *= 0x1p60;
        bias = -60;
    }
    uint64_t b = BitsOf(x);
    double k = double(int(b >> F::kMantBits) - F::kBias + bias);
    double m = DoubleOf((b & F::kMant) | F::kOne);
    int j = int((m - 1.0) * 128.0);
    const double* row = lnTable128[j];
    double c = 1.0 + double(2 * j + 1) * 0x1p-8; // exact
    r = (c * row[0] - 1.0) + (m - c) * row[0];
    double head = k * K::kLn2Hi + row[1]; // exact: both on the 2^-42 grid
    return head + (r + (LnPolyScalar(r) + (k * K::kLn2Lo + row[2])));
}

} // namespace brenn::vm

#endif
