/* The vector body of Pow, Powr and the general case of Powx: lanes with x a positive
 * normal and y finite run the kernels below; zeros, denormals, negatives, infinities,
 * NaN, and for double |y| from 2^900 and |w| beyond 708.39, where the result leaves the
 * double range of the table form, go to the scalar routine. The special lanes run on
 * x = 1 and y = 0, so that they raise no flags of their own.
 * Single LA and HA work in double lanes and narrow the result once: a result beyond the
 * single range becomes infinity, zero or a denormal in that rounding, with the flags and
 * no status, as the scalar routine gives it. */
#ifndef BRENN_VECMATH_POWER_POW_BODY_H
#define BRENN_VECMATH_POWER_POW_BODY_H

#include "vecmath/explog/log_core.h"
#include "vecmath/frame/vec.h"
#include "vecmath/frame/vec_round.h"
#include "vecmath/power/pow_core.h"
#include "vecmath/power/power_tables.h"

namespace brenn::vm {

template <class T>
struct PowRanges;
template <>
struct PowRanges<float> {
    // x outside [smallest denormal, largest finite]: zero, negative, infinite, NaN.
    static constexpr Range32 kX{0xFFFFFFFFu, 0x7FFFFFFFu, 0xFF7FFFFEu};
    // |y| infinite or NaN.
    static constexpr Range32 kY{0x7FFFFFFFu, 0u, 0x7F7FFFFFu};
};
template <>
struct PowRanges<double> {
    static constexpr Range64 kX = LogConst<double>::kPositiveNormal;
    // |y| at or above 2^900 (the exact product y*hi needs head room), infinite or NaN.
    static constexpr Range64 kY{0x7FFFFFFFFFFFFFFFull, 0ull, 0x782FFFFFFFFFFFFFull};
};
// |w| above 708.39: e^w leaves the range of the table form's scaling.
constexpr Range64 kPowW{0x7FFFFFFFFFFFFFFFull, 0ull, 0x4086232AFFFFFFFFull};

// Single EP, all in single, with the body's fixed constants: ln x by the split around 2/3,
// p = r + r^2*Q(r) by Horner's rule from Q's top, and k*ln2 in two parts, the low one
// first (0x35BFBE8E, then 0x3F317200); w = y*ln x; e^w as t = w*log2(e) + 1.5*2^23,
// n = t - 1.5*2^23, r = w - n*ln2 and P(r) = 1 + r*(c1 + r*(c2 + r*c3)), 2^n put into the
// exponent field by adding t's bits shifted up 23 to P's. |w| above 87.3007812
// (0x42AE9A00: results near or beyond the range) goes to the scalar routine, as do the
// lanes that are not positive normal x or finite y. Q is sLn LA's seven terms for Pow,
// a shorter set of six for Powx (`Short`).
constexpr float kPowLnQ[] = {-0x1p-1f,       0x1.555dcep-2f, -0x1.000c3ap-2f, 0x1.95f702p-3f,
                             -0x1.5126bp-3f, 0x1.5b70d6p-3f, -0x1.36d444p-3f};
constexpr float kPowxLnQ[] = {-0x1p-1f,       0x1.555a06p-2f,  -0x1.fe1e1ep-3f,
                              0x1.96c58p-3f, -0x1.84968cp-3f, 0x1.566a18p-3f};
// 1.00011802 (0x3F8003DE), 0.503705382 (0x3F00F2D6), 0.165419281 (0x3E2963AC).
constexpr float kPowExpP[] = {0x1p+0f, 0x1.0007bcp+0f, 0x1.01e5acp-1f, 0x1.52c758p-3f};
constexpr Range32 kPowWSingle{0x7FFFFFFFu, 0u, 0x42AE9A00u};
struct PowSingleConst {
    static constexpr float kLn2Hi = 0x1.62e4p-1f;      // 0x3F317200
    static constexpr float kLn2Lo = 0x1.7f7d1cp-20f;   // 0x35BFBE8E
    static constexpr float kLog2e = 0x1.715476p+0f;    // 1.44269502
    static constexpr float kLn2 = 0x1.62e43p-1f;       // 0.693147182
};

// The logarithm's half of single EP: the special lanes of x and y (which run on x = 1
// and y = 0) and w = y*ln x.
template <bool Short = false>
inline __m128 PowSingleEPW(__m128 x, __m128 y, __m128& sxy) {
    using K = PowSingleConst;
    sxy = Or(LogSpecial(x), RangeTest(y, PowRanges<float>::kY));
    x = IfThenElse(sxy, Set<float>(1.0f), x);
    y = IfThenZeroElse(sxy, y);
    __m128 r, k;
    LogSplit(x, r, k);
    __m128 q;
    if constexpr (Short)
        q = Horner(r, kPowxLnQ);
    else
        q = Horner(r, kPowLnQ);
    __m128 p = Add(r, Mul(Mul(r, r), q));
    __m128 ln = Add(Add(Mul(k, Set<float>(K::kLn2Lo)), p), Mul(k, Set<float>(K::kLn2Hi)));
    return Mul(y, ln);
}
// The exponential's half: e^w, with the lanes of |w| beyond the window added to special.
inline __m128 PowSingleEPExp(__m128 w, __m128& special) {
    using K = PowSingleConst;
    __m128 sw = RangeTest(w, kPowWSingle);
    w = IfThenZeroElse(sw, w);
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    __m128 t = Add(Mul(w, Set<float>(K::kLog2e)), shifter);
    __m128 n = Sub(t, shifter);
    __m128 e = Horner(Sub(w, Mul(n, Set<float>(K::kLn2))), kPowExpP);
    special = Or(special, sw);
    return AsFloat(Add(ShiftLeft<Format<float>::kMantBits>(AsInt(t)), AsInt(e)));
}
template <bool Short = false>
inline __m128 PowSingleEP(__m128 x, __m128 y, __m128& special) {
    const __m128 w = PowSingleEPW<Short>(x, y, special);
    return PowSingleEPExp(w, special);
}

// Single LA and HA in double lanes, narrowed once at the end. e^w as both levels take it
// from w: n = w*1024/ln2 rounded, u = w - n*ln2/1024 (|u| <= 2^-11.47), 2^(n/1024) *
// (1 + u + u^2/2) at HA (2^-37), (1 + u) at LA (2^-24), the power of two added to the
// row's exponent field.
// w is held to [-200, 200] first: beyond about 104 the single result is infinity or zero
// either way, and the narrowing of e^(+-200) gives it with the flags the scalar routine
// would raise (overflow or underflow, and inexact), so no lane leaves for w.
struct PowSingleStep {
    static constexpr double kInvStep = 0x1.71547652b82fep+10; // 1024/ln2
    static constexpr double kStep = 0x1.62e42fefa39efp-11;    // ln2/1024
    static constexpr double kWLimit = 200.0;
    static constexpr double kLn2 = 0x1.62e42fefa39efp-1;
};

template <Level L>
BRENN_VEC __m128d PowSingleExp(__m128d w) {
    using S = PowSingleStep;
    w = Max(Min(w, Set<double>(S::kWLimit)), Set<double>(-S::kWLimit));
    const __m128d shifter = Set<double>(Format<double>::kShifter);
    __m128d n = Add(Mul(w, Set<double>(S::kInvStep)), shifter);
    __m128d u = Sub(w, Mul(Sub(n, shifter), Set<double>(S::kStep)));
    __m128d row = Gather(expTable1024, AsInt(n), 1023);
    if constexpr (L == Level::HA) u = Add(u, Mul(Mul(u, u), Set<double>(0.5)));
    return ScaleByLowWord<10>(Add(row, Mul(row, u)), n);
}

// Single LA does not run EP's body with sLn LA's seven-term Q: measured with the
// accuracy tool (250000 random pairs and the special pairs), that body gives 1822 ulp
// (12.7 bits); with its single logarithm kept and w and e^w taken in double, 198 ulp;
// with the split and the seven-term Q evaluated in double, 193 ulp. The error of ln x is
// multiplied by |w| (up to 104), so LA's 4 ulp needs ln x to about 2^-30 relative, which
// no polynomial on the split's [-1/3, 1/3] of that degree gives. LA therefore keeps the
// form below, a table of rows and a short polynomial in double lanes (1.41 ulp).
// Single LA's logarithm: x = 2^k * m is split on the single bits, four lanes at once,
// m in [1, 2) and its row j of powLnRows (m rounded to 9 fraction bits: lnRows'
// reciprocal and -ln of it in one double T); then, two lanes a half, r = m*rcp - 1 (m
// has 24 bits: rounded below 2^-53, exact at rows 0 and 512, where x is near 1) and
// ln x = (k*ln2 + T) + (r + r^2*Q(r)) with the cubic of the EP core (about 2^-35 of
// ln x). k*ln2 + T is within 2^-53 of its size plus 2^-53 (the two roundings of ln 2 and
// T), and exactly 0 at row 512 for k = -1 (T is ln 2 rounded): within 2^-43 of ln x
// wherever it does not vanish. w = y*ln x in one double.
// x must be a positive normal here: denormal x goes to the scalar routine.
BRENN_VEC __m128d PowSingleLAW(__m128d m, __m128d k, __m128d y, const double* ra,
                               const double* rb) {
    using K = LogConst<double>;
    using S = PowSingleStep;
    __m128d rcp, tv;
    LoadTransposed(ra, rb, rcp, tv);
    __m128d r = Sub(Mul(m, rcp), Set<double>(1.0));
    __m128d h = Add(Mul(k, Set<double>(S::kLn2)), tv);
    __m128d t = Mul(Mul(r, r), Horner(r, K::kCoreEP));
    return Mul(y, Add(h, Add(r, t)));
}

// Single HA's logarithm in double: x = 2^k * m, m in [1, 2) from the single bits; the
// single estimate of 1/m (rcpps), widened, rounded to a multiple of 2^-10 (roundpd on
// 1024 times it), is c = q/1024 with q in [512, 1024], and picks the row q - 512 of
// powRcpLn, T = -ln(c) in one double. r = m*c - 1 is exact (m has 24 bits, c 11), and
// |r| < 0.00135 (the estimate within 1.5*2^-12, the rounding within 2^-11 of it);
// ln(1 + r) = r + r^2*Q(r) with Q of degree 2 (2^-42.5 relative, tools/power/
// pow_log_single_ha.sollya). ln x = (k*ln2 + T) + (r + r^2*Q(r)): near x = 1 the first
// part is exactly 0 (k = 0 with q = 1024, or k = -1 with q = 512, whose T is ln 2
// rounded), elsewhere it is within 2^-52 of its size, so that ln x is within about 2^-41
// of itself; w = y*ln x in one double, e^w by PowSingleExp.
constexpr double kPowLnQHA[] = {-0x1.ffffffffffe0dp-2, 0x1.555567ade28bap-2,
                                -0x1.00001153e4dc5p-2};

// w = y*ln x of one half, as stated above.
BRENN_VEC __m128d PowSingleHAW(__m128d q, __m128d m, __m128d k, __m128d y, const double* ta,
                               const double* tb) {
    using S = PowSingleStep;
    __m128d r = Sub(Mul(m, Mul(q, Set<double>(0x1p-10))), Set<double>(1.0));
    __m128d h = Add(Mul(k, Set<double>(S::kLn2)), LoadLanes(ta, tb));
    __m128d t = Mul(Mul(r, r), Horner(r, kPowLnQHA));
    return Mul(y, Add(h, Add(r, t)));
}

// w of the four lanes of single HA, lanes 0-1 in lo and 2-3 in hi: m the significands in
// [1, 2), k the exponents, y the exponents of the power.
BRENN_VEC void PowSingleHALogs(__m128 m, I32x4 k, __m128 y, __m128d& lo, __m128d& hi) {
    // 1024*e is exact in single, so it is scaled before the widening, four lanes at once,
    // and its conversion to integers rounds to nearest even as roundpd does: the rows'
    // q in one conversion for the four lanes.
    const __m128 e = Mul(ApproxRecip(m), Set<float>(1024.0f));
    const __m128d qlo = RoundEven(WidenLower(e));
    const __m128d qhi = RoundEven(WidenUpper(e));
    Indices at = IndicesOf(Sub(RoundToInt(e), Set<int32_t>(512)));
    lo = PowSingleHAW(qlo, WidenLower(m), ToDoubleLower(k), WidenLower(y), powRcpLn + at.at[0],
                      powRcpLn + at.at[1]);
    hi = PowSingleHAW(qhi, WidenUpper(m), ToDoubleUpper(k), WidenUpper(y), powRcpLn + at.at[2],
                      powRcpLn + at.at[3]);
}

// The four lanes of single HA before the narrowing: their w, then e^w.
BRENN_VEC void PowSingleHAWide(__m128 m, I32x4 k, __m128 y, __m128d& lo, __m128d& hi) {
    PowSingleHALogs(m, k, y, lo, hi);
    lo = PowSingleExp<Level::HA>(lo);
    hi = PowSingleExp<Level::HA>(hi);
}

// The special lanes of single LA and HA (x not a positive normal, or y not finite
// unless `FiniteY`), which run on x = 1 and y = 0; m and k of x = 2^k * m.
template <bool FiniteY>
BRENN_VEC __m128 PowSingleSplit(__m128& x, __m128& y, __m128& m, I32x4& k, I32x4& mant) {
    using F = Format<float>;
    __m128 sxy = LogSpecial(x);
    if constexpr (!FiniteY) sxy = Or(sxy, RangeTest(y, PowRanges<float>::kY));
    x = IfThenElse(sxy, Set<float>(1.0f), x);
    if constexpr (!FiniteY) y = IfThenZeroElse(sxy, y);
    const I32x4 b = AsInt(x);
    mant = And(b, Set<uint32_t>(F::kMant));
    m = AsFloat(Or(mant, Set<uint32_t>(F::kOne)));
    k = Sub(ShiftRight<F::kMantBits>(b), Set<int32_t>(F::kBias));
    return sxy;
}

// w of the four lanes of single LA, lanes 0-1 in lo and 2-3 in hi, as stated above.
BRENN_VEC void PowSingleLALogs(__m128 m, I32x4 k, I32x4 mant, __m128 y, __m128d& lo,
                               __m128d& hi) {
    using F = Format<float>;
    // The row's offset in doubles, 2j: the index shifted one place less, its low bit
    // cleared.
    I32x4 j2 = And(ShiftRight<F::kMantBits - 10>(Add(mant, Set<int32_t>(1 << (F::kMantBits - 10)))),
                   Set<int32_t>(~1));
    Indices at = IndicesOf(j2);
    const double* rows = powLnRows[0];
    lo = PowSingleLAW(WidenLower(m), ToDoubleLower(k), WidenLower(y), rows + uint32_t(at.at[0]),
                      rows + uint32_t(at.at[1]));
    hi = PowSingleLAW(WidenUpper(m), ToDoubleUpper(k), WidenUpper(y), rows + uint32_t(at.at[2]),
                      rows + uint32_t(at.at[3]));
}

// M registers of single lanes at once: their logarithms and w, held apart (Opaque) so
// that the compiler does not sink each into its exponential, then the e^w (LA and HA: of
// the double halves), so that the chains of the registers overlap. `FiniteY` and `Powx`
// as for PowOf.
template <Level L, int M, bool FiniteY = false, bool Powx = false>
BRENN_VEC void PowSingleRound(const __m128* x, const __m128* y, __m128* v, __m128* special) {
    if constexpr (L == Level::EP) {
        __m128 w[M];
#pragma GCC unroll 4
        for (int j = 0; j < M; ++j)
            w[j] = Opaque(PowSingleEPW<Powx>(x[j], y[j], special[j]));
#pragma GCC unroll 4
        for (int j = 0; j < M; ++j)
            v[j] = PowSingleEPExp(w[j], special[j]);
        return;
    }
    __m128d w[2 * M];
#pragma GCC unroll 4
    for (int j = 0; j < M; ++j) {
        __m128 xs = x[j], ys = y[j], m;
        I32x4 k, mant;
        special[j] = PowSingleSplit<FiniteY>(xs, ys, m, k, mant);
        if constexpr (L == Level::HA)
            PowSingleHALogs(m, k, ys, w[2 * j], w[2 * j + 1]);
        else
            PowSingleLALogs(m, k, mant, ys, w[2 * j], w[2 * j + 1]);
        w[2 * j] = Opaque(w[2 * j]);
        w[2 * j + 1] = Opaque(w[2 * j + 1]);
    }
#pragma GCC unroll 8
    for (int h = 0; h < 2 * M; ++h)
        w[h] = PowSingleExp<L>(w[h]);
#pragma GCC unroll 4
    for (int j = 0; j < M; ++j)
        v[j] = Narrow(w[2 * j], w[2 * j + 1]);
}

// `FiniteY`: y finite in every lane (Powx's general body with a finite b), so that only x
// is tested and y stays as it is: a special lane runs on x = 1, where ln x and w are 0.
// `Powx`: the general body of Powx, whose EP takes the shorter logarithm.
template <Level L, bool FiniteY = false, bool Powx = false>
BRENN_VEC __m128 PowOf(__m128 x, __m128 y, __m128& special) {
    if constexpr (L == Level::EP) {
        return PowSingleEP<Powx>(x, y, special);
    } else {
        __m128 m;
        I32x4 k, mant;
        const __m128 sxy = PowSingleSplit<FiniteY>(x, y, m, k, mant);
        __m128d lo, hi;
        if constexpr (L == Level::HA) {
            PowSingleHAWide(m, k, y, lo, hi);
        } else {
            PowSingleLALogs(m, k, mant, y, lo, hi);
            lo = PowSingleExp<L>(lo);
            hi = PowSingleExp<L>(hi);
        }
        special = sxy;
        return Narrow(lo, hi);
    }
}

// M registers of double lanes at once, each step over all of them before the next, so
// that their chains overlap (one register's whole chain at a time leaves the processor
// waiting on each step): the range tests, the reductions of x (their table rows), w,
// the tests of w, then e^w. special[k] marks register k's lanes for the scalar routine.
template <Level L, int M>
BRENN_VEC void PowRound(const __m128d* x, const __m128d* y, __m128d* v, __m128d* special) {
    using R = PowRanges<double>;
    __m128d ys[M], wh[M], wl[M], sw[M], ph[M];
    LnReduction red[M];
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        special[k] = Or(RangeTest(x[k], R::kX), RangeTest(y[k], R::kY));
        ys[k] = IfThenZeroElse(special[k], y[k]);
        red[k] = LnReduce(IfThenElse(special[k], Set<double>(1.0), x[k]));
    }
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        if constexpr (L == Level::EP) {
            PowWEP(ys[k], red[k], ph[k], wl[k]);
            wh[k] = Add(ph[k], wl[k]);
        } else {
            PowW<L, false>(ys[k], red[k], wh[k], wl[k]);
        }
        wh[k] = Opaque(wh[k]);
        wl[k] = Opaque(wl[k]);
    }
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        sw[k] = RangeTest(wh[k], kPowW);
        special[k] = Or(special[k], sw[k]);
        wh[k] = IfThenZeroElse(sw[k], wh[k]);
    }
    if constexpr (L == Level::EP) {
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k)
            v[k] = PowExpEP(wh[k], IfThenZeroElse(sw[k], ph[k]), IfThenZeroElse(sw[k], wl[k]));
    } else {
        __m128d t[M], r[M];
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k)
            r[k] = ExpReduce<ExpStep256>(wh[k], IfThenZeroElse(sw[k], wl[k]), t[k]);
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k)
            v[k] = ExpAssemble256(t[k], r[k]);
    }
}

// A round of sixteen double elements (eight registers) through PowRound: the results in
// v and the special-lane bits, bit j for element j.
template <Level L>
BRENN_VEC int PowWide(const __m128d* x, const __m128d* y, __m128d* v) {
    __m128d special[8];
    PowRound<L, 8>(x, y, v, special);
    return RoundMaskBits(special);
}

template <Level L, bool FiniteY = false, bool Powx = false>
BRENN_VEC __m128d PowOf(__m128d x, __m128d y, __m128d& special) {
    __m128d v;
    PowRound<L, 1>(&x, &y, &v, &special);
    return v;
}

} // namespace brenn::vm

#endif
