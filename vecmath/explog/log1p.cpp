/* Log1p, single and double, three levels each.
 *
 * Single: on u = 1 + x split around 2/3 (log_core.h); EP and LA p = r + r^2*Q(r) with
 * Q of sLn at EP or of eight coefficients at LA, ln u = p + k*ln2; HA on a reciprocal of
 * m rounded to 2^-6 and its table (LogByRecip); at every level c/u added last, c the
 * rounding of u (Fast2Sum with the larger of 1 and x first, on x held by its bits where
 * the special lanes would raise a flag). The range test is the logarithm's, on u: it
 * fires for x at or below -1, infinite or NaN; no blend on it stands in front of any
 * body. Tiny x come out as x itself (u = 1, r = 0, c = x).
 * Double: the logarithm core's reduction of u = 1 + x for k
 * and the row, its low part taken from x itself as (2^-k - mh) + x*2^-k (degree 5 at LA and HA; EP
 * on the rows alone, r = (S - 1) + x*S with S = 2^-k*rcp, and the cubic); HA carries h + r exactly
 * before the small terms are added. Its window on u runs from 2^-43 to below
 * 2^1021 - 2^1011; the rest goes to the scalar routine. Special lanes run without a blend
 * on the range test: 2^-k (and x at LA and HA) held by integer steps where they meet products.
 * Measured (brenn_accuracy, worst of its inputs): sLog1p EP 12.8 bits, LA 1.68 ulp,
 * HA 0.50 ulp; dLog1p EP 32.6 bits, LA 0.84 ulp, HA 0.66 ulp.
 * Scalar routine: x = -1 gives -inf with the singularity status, x below -1 (and -inf)
 * NaN with the domain status, NaN and +inf themselves. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/explog/log_scalar.h"
#include "vecmath/explog/wide.h"
#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {
namespace {

template <class T>
int Log1pScalar(const T* a, T* y) {
    T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == T(-1)) {
        *y = T(-1) / Keep(T(0));
        return status::kSingularity;
    }
    if (x < T(-1)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    if (__builtin_isinf(x)) {
        *y = x;
        return status::kNone;
    }
    // A lane the body could have taken; the value in double (in single exactly enough).
    double xd = double(x), u = 1.0 + xd;
    double c = __builtin_fabs(xd) <= 1.0 ? xd - (u - 1.0) : 1.0 - (u - xd);
    *y = T(LnScalarD(u) + c / u);
    return status::kNone;
}

template <class T>
struct Log1pConst;
template <>
struct Log1pConst<float> {
    // Q(r) of ln(1 + r) = r + r^2*Q(r) at LA, on r in [-1/3, 1/3), by Horner's rule:
    // -0.5, 0.333332658, -0.250042379, 0.200079203, -0.164723262, 0.140423089,
    // -0.151221797, 0.138202384.
    static constexpr float kLA[] = {-0.5f,         0.333332658f, -0.250042379f,
                                    0.200079203f,  -0.164723262f, 0.140423089f,
                                    -0.151221797f, 0.138202384f};
};

// Single: ln u + c/u on u = 1 + x split around 2/3: EP and LA p = r + r^2*Q(r) (Q of sLn
// at EP, eight coefficients at LA) and p + k*ln2, then c/u added last; HA on a reciprocal
// of m (log_core.h LogByRecip), c/u joining its small terms. c, the rounding of u, by
// Fast2Sum with the larger of 1 and x first: x - (u - 1) for |x| < 1, else 1 - (u - x),
// as min(x, 1) - (u - max(x, 1)), the held x being above -1. Both come from x held by its
// high bits (+inf and positive NaNs to the largest single by
// a signed minimum, x at or below -1, -inf and negative NaNs among them, to just above -1
// by an unsigned one), so that inf - inf and 0/0 raise no flag of their own where the
// scalar routine raises none; every other x stays, and no blend on the range test stands
// in front of the body. u is held at 2^125 in the quotient alone: beyond it c/u (c is at
// most 1 there) would come out denormal and raise underflow, and either quotient is far
// below half an ulp of ln u (above 86), so that the sum is the same. Tiny x give u = 1,
// r = 0, k = 0 and c = x: x itself, its sign put back for -0.
// u = 1 + x, its special lanes and c/u.
inline __m128 Log1pStart(__m128 x, __m128& special, __m128& cu) {
    const __m128 one = Set<float>(1.0f);
    const __m128 u = Add(one, x);
    special = LogSpecial(u);
    const __m128i b = _mm_min_epi32(AsInt(x).v, _mm_set1_epi32(0x7F7FFFFF));
    const __m128 xc = AsFloat(I32x4{_mm_min_epu32(b, _mm_set1_epi32(int32_t(0xBF7FFFFFu)))});
    const __m128 uc = Add(one, xc);
    const __m128 c = Sub(Min(xc, one), Sub(uc, Max(xc, one)));
    cu = Div(c, Min(uc, Set<float>(0x1p125f)));
    return u;
}

template <Level L>
inline __m128 Log1pOf(__m128 x, __m128& special) {
    using K = LogConst<float>;
    __m128 cu;
    const __m128 u = Log1pStart(x, special, cu);
    if constexpr (L == Level::HA) {
        __m128 m, k;
        LogSplitM(u, m, k);
        return Or(LogByRecip<LogRecipE, true>(m, k, cu), SignBit(x));
    } else {
        __m128 r, k;
        LogSplit(u, r, k);
        const __m128 r2 = Mul(r, r);
        __m128 p;
        if constexpr (L == Level::EP)
            p = Add(r, Mul(r2, Horner(r, K::kLnEP)));
        else
            p = Add(r, Mul(r2, Horner(r, Log1pConst<float>::kLA)));
        return Or(Add(Add(p, Mul(k, Set<float>(K::kLn2))), cu), SignBit(x));
    }
}

// The single body over the N registers of a round, stage by stage: every u, c/u and
// split, then at HA LogByRecip's stages over the round, at EP and LA each Horner step
// over every register before the next, then the sums. The same operations on every
// lane, the same bits as Log1pOf; the special-lane bits of the round.
template <Level L, int N>
inline int Log1pRound(const __m128* x, __m128* y) {
    using K = LogConst<float>;
    __m128 r[N], k[N], cu[N];
    int bits = 0;
#pragma GCC unroll 8
    for (int i = 0; i < N; ++i) {
        __m128 special;
        const __m128 u = Log1pStart(x[i], special, cu[i]);
        bits |= MaskBits(special) << (4 * i);
        if constexpr (L == Level::HA)
            LogSplitM(u, r[i], k[i]); // r holds m here
        else
            LogSplit(u, r[i], k[i]);
    }
    if constexpr (L == Level::HA) {
        __m128 v[N];
        LogByRecipRound<LogRecipE, N, true>(r, k, v, cu);
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i) y[i] = Or(v[i], SignBit(x[i]));
    } else {
        constexpr const auto& c = []() -> const auto& {
            if constexpr (L == Level::EP)
                return K::kLnEP;
            else
                return Log1pConst<float>::kLA;
        }();
        __m128 p[N];
        LogPolyRound<N>(r, c, p);
#pragma GCC unroll 8
        for (int i = 0; i < N; ++i)
            y[i] = Or(Add(Add(p[i], Mul(k[i], Set<float>(K::kLn2))), cu[i]), SignBit(x[i]));
    }
    return bits;
}

// Double: the core on u = 1 + x with the reduction's low part taken from x itself; at
// HA h + r carried exactly (Knuth) with the small terms added to the error. Tiny x come
// through as x itself (u = 1, r = x); the result has x's sign, which is put back for -0.
// The window on u: positive normals from 2^-43 (x within 2^-43 of -1 goes to the scalar
// routine) to below 2^1021 - 2^1011, so that 2^-k, for EP's k too (which the rounding of
// u's fraction to 9 bits may carry up by one), is at least 2^-1020.
constexpr Range64 kLog1pWindow{0xFFFFFFFFFFFFFFFFull, 0x8000000000000000ull - 0x3D40000000000000ull,
                               0x7FCFFBFFFFFFFFFFull + 0x8000000000000000ull -
                                   0x3D40000000000000ull};

// Special lanes run as they are where only integer steps meet them (u = 1 + x raises
// nothing but on a signalling NaN, whose scalar routine raises the same), so that no
// blend on the range test stands in front of the body; the products that would raise a
// flag of their own there (inf - inf, inf*0) take x through SafeArgument and 2^-k
// through InverseOfField.
// x with the special lanes moved to finite values by their high words alone: x at or
// below -1 (-inf and negative NaNs among them) to just above -1 by an unsigned minimum,
// +inf and positive NaNs to a finite value by a signed one; the low words and every x
// inside the window stay as they are.
inline __m128d SafeArgument(__m128d x) {
    __m128i b = _mm_min_epu32(AsInt(x).v,
                              _mm_set_epi32(int32_t(0xBFEFFFFFu), -1, int32_t(0xBFEFFFFFu), -1));
    b = _mm_min_epi32(b, _mm_set_epi32(0x7FEFFFFF, 0x7FFFFFFF, 0x7FEFFFFF, 0x7FFFFFFF));
    return _mm_castsi128_pd(b);
}
// 2^-k for u's exponent field e (bits 52 to 62 of e, the rest 0): inside the window
// (fields 980 to 2044) as it is; the special lanes' fields above it give 2^-1021 and those
// below it (u below 2^-43, or a positive NaN whose fraction of ones the rounding to the
// row carries past the exponent field, leaving 0) 2^-1020: e - 980 held by an unsigned
// minimum, so that the lanes below wrap to the top. Normal numbers whose products with
// SafeArgument's x (at most 2^1024, or about -1 where u is below 2^-43), and the powers of
// r after them, raise nothing.
constexpr uint32_t kFieldLow = 980u << 20, kFieldSpan = 0x7FC00000u - kFieldLow;
inline __m128d InverseOfField(I64x2 e) {
    using F = Format<double>;
    __m128i t = _mm_sub_epi32(e.v, _mm_set_epi32(int32_t(kFieldLow), 0, int32_t(kFieldLow), 0));
    t = _mm_min_epu32(t, _mm_set_epi32(int32_t(kFieldSpan), 0, int32_t(kFieldSpan), 0));
    return AsFloat(Sub(Set<uint64_t>((uint64_t(2 * F::kBias) << F::kMantBits) -
                                     (uint64_t(kFieldLow) << 32)),
                       I64x2{t}));
}

template <Level L>
inline __m128d Log1pFrom(__m128d x, __m128d k, __m128d mh, __m128d s, const double* ra,
                         const double* rb) {
    const __m128d one = Set<double>(1.0);
    if constexpr (L == Level::EP) {
        // The rows alone (LogRowsEP's reduction on u): u's fraction rounded to 9 bits by
        // adding half of 2^-9 to its bits, the row j and k from the sum, and
        // m = u*2^-k = (1 + x)*s with s = 2^-k, so that r = m*rcp - 1 = (S - 1) + x*S,
        // S = s*rcp (exact): u's own rounding does not reach r. (S - 1) is exact for
        // k up to 10 and x*S rounds once; at the row of 1 (S = 1) r is x itself.
        using K = LogConst<double>;
        __m128d rcp, t;
        LoadTransposed(ra, rb, rcp, t);
        // x itself, unheld: S is a normal number (s from 2^43 to 2^-1021), so that x*S
        // raises nothing of its own, and +-inf give r = +-inf, r^2*(c2 + c3*r) of r's
        // sign (c3 > 0) and the sums no inf - inf.
        static_assert(K::kCoreEP[1] > 0, "c3*r of r's sign");
        __m128d sr = Mul(s, rcp);
        __m128d r = Add(Sub(sr, one), Mul(x, sr));
        // r + r^2*(c2 + c3*r), the core's EP form: its leading coefficient is 1, so that
        // tiny x come out as x itself.
        __m128d p = Add(r, Mul(Mul(r, r), Horner(r, K::kCoreEP)));
        __m128d y = Add(Add(Mul(k, Set<double>(K::kLn2)), t), p);
        return Or(y, SignBit(x));
    }
    // 1 + x = 2^k*(mh + ml) with ml = (2^-k - mh) + x*2^-k, one rounding: 2^-k - mh is
    // exact for |k| <= 43 (mh on the 2^-9 grid; beyond, k > 43 and its rounding is far
    // below the result's last place) and x*2^-k is exact, so that the rounding of u
    // itself does not reach r.
    const __m128d xs = SafeArgument(x);
    LnReduction red;
    LoadLnRows(ra, rb, red);
    red.k = k;
    red.mh = mh;
    red.ml = Add(Sub(s, red.mh), Mul(xs, s));
    __m128d h, r, small;
    LnCore3From<L>(red, h, r, small);
    if constexpr (L == Level::HA) {
        __m128d s, err;
        // Exact: h is 0 (row 0 at k = 0, or the last row at k = -1, whose heads cancel)
        // or at least about 2^-10, and |r| <= 2^-10/mh.
        FastTwoSum(h, r, s, err);
        return Or(Add(s, Add(err, small)), SignBit(x));
    } else {
        return Or(Add(h, Add(r, small)), SignBit(x));
    }
}

// One register: u's fraction rounded to 9 bits by adding half of 2^-9 to its bits, the
// row's byte offset two integer steps from the sum, k its exponent.
template <Level L>
inline __m128d Log1pOf(__m128d x, __m128d& special) {
    using F = Format<double>;
    const __m128d u = Add(Set<double>(1.0), x);
    special = RangeTest(u, kLog1pWindow);
    const I64x2 u1 = Add(AsInt(u), Set<uint64_t>(1ull << (F::kMantBits - 10)));
    static_assert(sizeof(lnRows[0]) == 32, "rows of 32 bytes");
    const I64x2 off = And(ShiftRight<F::kMantBits - 9 - 5>(u1), Set<uint64_t>(511ull << 5));
    const char* rows = reinterpret_cast<const char*>(lnRows);
    const I64x2 e1 = And(u1, Set<uint64_t>(F::kExpField));
    __m128d k = Sub(AsFloat(Or(ShiftRight<F::kMantBits>(e1), AsInt(Set<double>(0x1p52)))),
                    Set<double>(0x1p52 + F::kBias));
    __m128d mh = AsFloat(Or(And(u1, Set<uint64_t>(0x000FF80000000000ull)), Set<uint64_t>(F::kOne)));
    return Log1pFrom<L>(
        x, k, mh, InverseOfField(e1),
        reinterpret_cast<const double*>(rows + uint64_t(_mm_cvtsi128_si64(off.v))),
        reinterpret_cast<const double*>(rows + uint64_t(_mm_extract_epi64(off.v, 1))));
}

// 2^-k for a pair's four exponent fields, held as InverseOfField holds them.
inline void InversePair(const LogPair& p, __m128d& s0, __m128d& s1) {
    const __m128i t = _mm_min_epu32(Sub(p.e, Set<uint32_t>(kFieldLow)).v, _mm_set1_epi32(int32_t(kFieldSpan)));
    const __m128 d = _mm_castsi128_ps(Sub(Set<uint32_t>(0x7FE00000u - kFieldLow), I32x4{t}).v);
    const __m128 z = _mm_setzero_ps();
    s0 = _mm_castps_pd(_mm_unpacklo_ps(z, d));
    s1 = _mm_castps_pd(_mm_unpackhi_ps(z, d));
}

// A round of sixteen, u = 1 + x split two registers at once on their high words
// (log_core.h SplitPair, with the window's high words), the same values as Log1pOf.
template <Level L>
inline int Log1pWide(const __m128d* x, __m128d* y) {
    static_assert(kLog1pWindow.offset << 32 == 0 && uint32_t(kLog1pWindow.limit) == 0xFFFFFFFFu,
                  "a window on the high words");
    constexpr uint32_t kOff = uint32_t(kLog1pWindow.offset >> 32);
    constexpr uint32_t kLim = uint32_t(kLog1pWindow.limit >> 32);
    // The four pair splits first, their k, mh and 2^-k held apart (Opaque), then each
    // pair's rows and sums: the compiler would sink each split into its sums.
    int bits = 0;
    LogPair ps[4];
    __m128d mh[8], sc[8];
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        const __m128d one = Set<double>(1.0);
        ps[q] = SplitPair<5, kOff, kLim>(Add(one, x[2 * q]), Add(one, x[2 * q + 1]));
        bits |= ps[q].special << (4 * q);
        PairCentres(ps[q], mh[2 * q], mh[2 * q + 1]);
        InversePair(ps[q], sc[2 * q], sc[2 * q + 1]);
        for (int j = 0; j < 2; ++j) {
            ps[q].k[j] = Opaque(ps[q].k[j]);
            mh[2 * q + j] = Opaque(mh[2 * q + j]);
            sc[2 * q + j] = Opaque(sc[2 * q + j]);
        }
    }
#pragma GCC unroll 4
    for (int q = 0; q < 4; ++q) {
        const LogPair& p = ps[q];
        y[2 * q] = Log1pFrom<L>(x[2 * q], p.k[0], mh[2 * q], sc[2 * q], PairRow<0>(lnRows, p),
                                PairRow<1>(lnRows, p));
        y[2 * q + 1] = Log1pFrom<L>(x[2 * q + 1], p.k[1], mh[2 * q + 1], sc[2 * q + 1],
                                    PairRow<2>(lnRows, p), PairRow<3>(lnRows, p));
    }
    return bits;
}

template <class Tp, Level L>
struct Log1pBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Log1p);
    static constexpr int kRound = 16;
    static int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8)
            return Log1pWide<L>(x, y);
        else
            return Log1pRound<L, 4>(x, y);
    }
    static V Eval(V x, V& special) { return Log1pOf<L>(x, special); }
    static int Scalar(const T* a, T* y) { return Log1pScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Log1p, Unary, Log1pBody)
BRENN_FLAT_LEVEL_KERNELS(d, Log1p, Unary, Log1pBody)
}
