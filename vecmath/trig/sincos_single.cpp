/* Sin, Cos and SinCos in single, three levels.
 *
 * Short path (|x| <= 10000): sine takes x with its sign, t = x/pi + shifter, n = t - shifter
 * and r = x - n pi, all odd in x (the same bits as reducing |x| and putting the sign of x
 * back), and sin x = (-1)^n sin r with (-1)^n from the low bit of t. Cosine takes a = |x|,
 * cos a = sin(a + pi/2): t = (a/pi + 1/2) + shifter, the half-integer n = (t - shifter) - 1/2,
 * r = a - n pi and cos a = (-1)^(n + 1/2) sin r. r lies in [-pi/2, pi/2]; an odd series in r.
 * EP: pi in three single parts, the first two short so that their products with n are
 * exact, and r (c1 + u (c3 + u c5)), sine and cosine each with its own c3
 * (tools/trig/sin_single_ep.sollya). LA: the same reduction, good to 2^-35 absolute; a
 * remainder below 2^-9 (a lane near a multiple of pi, seen by its square) is redone in
 * double with pi in two parts and narrowed to single, since the single one alone misses
 * the level there (some 400 ulp at the floats nearest the multiples of pi); a five-term
 * single series (tools/trig/sin_single.sollya). HA: r in double with pi in two parts and
 * r (1 + u (c3 + u (c5 + u (c7 + u c9)))) in double (tools/trig/sin_single_ha.sollya),
 * grouped by Estrin's scheme.
 *
 * Measured (brenn_accuracy, 250000 inputs a row): EP 12.7 bits in sSin, sCos and
 * sSinCos; LA 1.79 ulp (sSin), 1.72 ulp (sCos), 1.85 ulp (sSinCos); HA 0.600 ulp (sSin,
 * sCos), 0.601 ulp (sSinCos).
 *
 * Lanes above 10000 in a block take the vector large path of reduce.h as well, and its
 * results are kept for them by mask: the block stays in vector code. Cosine of
 * arguments below 2^-12 is the constant 1.0 at LA and EP (the series at pi/2 is not
 * exactly 1); HA's double value rounds to 1.0 there by itself. Infinity and NaN go to the
 * scalar routine (NaN with status::kDomain for an infinity). */
#include "frame/kernels.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/level.h"
#include "vecmath/trig/sin_series_single.h"
#include "vecmath/trig/reduce.h"

namespace brenn::vm::trig {
namespace {

constexpr uint32_t kLimitS = 0x461C4000; // 10000.0, as bits: the large path above

// The short path's constants. pi in three parts: the first two of 8 and 11 significant
// bits, so that their products with n (13 bits at most, 14 with cosine's half) are exact;
// pi in two double parts for HA and LA's redone lanes, the first with its low 18 bits
// clear.
constexpr float kInvPi = 0x1.45f306p-2f; // 0x3EA2F983
// Bits 0x40490000, 0x3A7DA000, 0x34222169; double 0x400921FB54440000, 0x3D968C234C4C6629.
constexpr float kPiEP[] = {0x1.92p1f, 0x1.fb4p-11f, 0x1.4442d2p-23f};
constexpr double kPiD[] = {0x1.921fb5444p1, 0x1.68c234c4c6629p-38};
// Below it cosine rounds to 1.0 in single.
constexpr float kCosOne = 0x1p-12f;
constexpr uint32_t kCosOneBits = 0x39800000; // kCosOne's bits

// The odd series on r in [-pi/2, pi/2], each as the coefficients of a polynomial in
// u = r^2, lowest degree first.
// EP: sin r ~ r (c1 + c3 u + c5 u^2) in single coefficients (0x3F7FF87C, 0xBE29E72F,
// 0x3BF84524); cosine's set differs in c3 (0xBE29E73F). tools/trig/sin_single_ep.sollya.
constexpr float kSinEP[] = {0x1.fff0f8p-1f, -0x1.53ce5ep-3f, 0x1.f08a48p-8f};
constexpr float kCosEP[] = {0x1.fff0f8p-1f, -0x1.53ce7ep-3f, 0x1.f08a48p-8f};
// LA and HA: kSinLA and kSinHA (sin_series_single.h).

// q[k] = c[0] + u[k] (c[1] + u[k] (...)) for a round's N registers, each step over all
// of them before the next, so that the chains interleave.
template <size_t I = 0, int N, class V, class C, size_t M>
BRENN_TRIG_HOT void HornerEach(const V* u, const C (&c)[M], V* q) {
    using T = ElemOf<V>;
    if constexpr (I + 1 == M) {
        BRENN_EACH(k, N) q[k] = Set<T>(T(c[I]));
    } else {
        HornerEach<I + 1, N>(u, c, q);
        BRENN_EACH(k, N) q[k] = MulAdd(u[k], q[k], Set<T>(T(c[I])));
    }
}

// EP: r P(u), P sine's or cosine's set.
template <int N>
BRENN_TRIG_HOT void SeriesEP(const __m128* r, const __m128* u, bool cosine, __m128* p) {
    __m128 q[N];
    if (cosine)
        HornerEach<0, N>(u, kCosEP, q);
    else
        HornerEach<0, N>(u, kSinEP, q);
    BRENN_EACH(k, N) p[k] = Mul(r[k], q[k]);
}
// LA: r + r u P(u) in single, from u = r^2.
template <int N, class C, size_t M>
BRENN_TRIG_HOT void SeriesOdd(const __m128* r, const __m128* u, const C (&c)[M], __m128* p) {
    __m128 q[N];
    HornerEach<0, N>(u, c, q);
    BRENN_EACH(k, N) p[k] = Add(r[k], Mul(Mul(r[k], u[k]), q[k]));
}
// HA: r (1 + u P(u)) in double, 1 + u P(u) by Estrin's scheme as
// (1 + c3 u) + u^2 ((c5 + c7 u) + c9 u^2): 21 cycles of latency from r where Horner's rule
// took 30, for one multiplication more (the round is bound by the adding pipes, which
// the conversions share; the multiplying ones have room). Either way the double value is
// within 2^-50 of the polynomial's, far below the single result's rounding; the product
// keeps the sign of a zero r.
template <int N>
BRENN_TRIG_HOT void SeriesHA(const __m128d* r, __m128d* p) {
    __m128d u[N], u2[N], lo[N], hi[N];
    BRENN_EACH(k, N) u[k] = Mul(r[k], r[k]);
    BRENN_EACH(k, N) u2[k] = Mul(u[k], u[k]);
    BRENN_EACH(k, N) {
        hi[k] = MulAdd(u[k], Set<double>(kSinHA[2]), Set<double>(kSinHA[1]));
        lo[k] = MulAdd(u[k], Set<double>(kSinHA[0]), Set<double>(1.0));
    }
    BRENN_EACH(k, N) hi[k] = MulAdd(u2[k], Set<double>(kSinHA[3]), hi[k]);
    BRENN_EACH(k, N) lo[k] = MulAdd(u2[k], hi[k], lo[k]);
    BRENN_EACH(k, N) p[k] = Mul(r[k], lo[k]);
}

// r = a - n pi in single with pi in three parts. The first two differences are exact (n
// has at most 13 bits, 14 with cosine's half, and a - n P0 is a short multiple of a's
// ulp); the third product rounds, and the parts stop 2^-48 short of pi: at most 2^-35 in
// all below the limit.
template <int N>
BRENN_TRIG_HOT void ReduceS(const __m128* a, const __m128* n, __m128* r) {
    BRENN_EACH(k, N) r[k] = Sub(a[k], Mul(n[k], Set<float>(kPiEP[0])));
    BRENN_EACH(k, N) r[k] = Sub(r[k], Mul(n[k], Set<float>(kPiEP[1])));
    BRENN_EACH(k, N) r[k] = Sub(r[k], Mul(n[k], Set<float>(kPiEP[2])));
}

// r = a - n pi in double, lanes 0-1 of register k in r[2k], 2-3 in r[2k+1].
template <int N>
BRENN_TRIG_HOT void ReduceD(const __m128* a, const __m128* n, __m128d* r) {
    const __m128d ph = Set<double>(kPiD[0]), pl = Set<double>(kPiD[1]);
    __m128d ad[2 * N], nd[2 * N];
    BRENN_EACH(k, N) {
        ad[2 * k] = WidenLower(a[k]);
        ad[2 * k + 1] = WidenUpper(a[k]);
        nd[2 * k] = WidenLower(n[k]);
        nd[2 * k + 1] = WidenUpper(n[k]);
    }
    BRENN_EACH(k, 2 * N) r[k] = Sub(Sub(ad[k], Mul(nd[k], ph)), Mul(nd[k], pl));
}

// sin(x) (cosine = false) or cos(x) (true) by the short path for N registers, each step
// over all of them before the next. Sine takes x as it is: n = round(x/pi) and r = x - n pi
// are odd in x, so sin x = (-1)^n sin r keeps the sign of x (and of a zero) with no step
// of its own. Cosine takes a = |x|: t = (a/pi + 1/2) + shifter, the half-integer
// n = (t - shifter) - 1/2 and cos a = sin(a + pi/2) = (-1)^(n + 1/2) sin(a - n pi), the
// sign from t's low bit. Lanes above the limit are the large path's: with kClamp they are
// clamped and raise no flag here; without, the caller has seen that there are none (then
// the clamp changes nothing).
template <Level L, int N, bool kClamp>
BRENN_TRIG_HOT void ShortN(const __m128* x, bool cosine, __m128* p) {
    __m128 a[N], t[N], n[N];
    bool nearZero = false;
    const __m128 limit = SplatBits<float>(kLimitS);
    const __m128 shifter = Set<float>(Format<float>::kShifter);
    BRENN_EACH(k, N) a[k] = x[k];
    if (kClamp) {
        BRENN_EACH(k, N) a[k] = Min(a[k], limit);
        if (!cosine) BRENN_EACH(k, N) a[k] = Max(a[k], Neg(limit));
    }
    BRENN_EACH(k, N) t[k] = Mul(a[k], Set<float>(kInvPi));
    if (cosine) BRENN_EACH(k, N) t[k] = Add(t[k], Set<float>(0.5f));
    BRENN_EACH(k, N) t[k] = Add(t[k], shifter);
    // n from t, and the sign (-1)^n from t's low bit where it is used.
    auto nOf = [&](const __m128* tt, __m128* nn) {
        BRENN_EACH(k, N) nn[k] = Sub(tt[k], shifter);
        if (cosine) BRENN_EACH(k, N) nn[k] = Sub(nn[k], Set<float>(0.5f));
    };
    auto signOf = [](__m128 tk) { return AsFloat(ShiftLeft<31>(AsInt(tk))); };
    nOf(t, n);
    bool tiny = false; // LA and EP cosine: a lane below 2^-12 (below)
    if (cosine && L != Level::HA) {
        I32x4 least = AsInt(a[0]);
        BRENN_EACH(k, N - 1) least = Min(least, AsInt(a[k + 1]));
        tiny = MaskBits(Lt(least, Set<uint32_t>(kCosOneBits))) != 0;
    }
    if constexpr (L == Level::EP) {
        __m128 r[N], u[N];
        // The sign (-1)^n on r rather than on the result: the series is odd and every
        // step rounds alike at either sign, so the bits are the same, and the sign is dead
        // once r is.
        ReduceS<N>(a, n, r);
        BRENN_EACH(k, N) r[k] = Opaque(Xor(r[k], signOf(t[k])));
        BRENN_EACH(k, N) u[k] = Mul(r[k], r[k]);
        SeriesEP<N>(r, u, cosine, p);
    } else if constexpr (L == Level::LA) {
        // The single reduction is good to 2^-35 absolute; only a remainder below 2^-9
        // (u below 2^-18: a lane near a multiple of pi, a few in a thousand) needs the
        // double one, and only those lanes take it.
        __m128 r[N], u[N];
        ReduceS<N>(a, n, r);
        BRENN_EACH(k, N) u[k] = Mul(r[k], r[k]);
        nearZero = AnyNearZeroSq<N>(u);
        if (__builtin_expect(nearZero, 0)) {
            // n again from t (held apart), rather than n kept through the common path.
            __m128 tt[N], nn[N];
            BRENN_EACH(k, N) tt[k] = Opaque(t[k]);
            nOf(tt, nn);
            __m128d rd[2 * N];
            ReduceD<N>(a, nn, rd);
            __m128 wide[N];
            BRENN_EACH(k, N) wide[k] = Narrow(rd[2 * k], rd[2 * k + 1]);
            TakeNearZeroSq<N>(r, u, wide);
        }
        // The sign on r as at EP (r is never a zero here but at x = 0, where n is 0).
        BRENN_EACH(k, N) r[k] = Opaque(Xor(r[k], signOf(t[k])));
        SeriesOdd<N>(r, u, kSinLA, p);
    } else {
        // Every register's remainder first, held, then the series a single register's
        // two halves at a time, each result held: over all eight halves at once the
        // compiler keeps a few of them and spills the rest.
        __m128d r[2 * N];
        ReduceD<N>(a, n, r);
        BRENN_EACH(k, 2 * N) r[k] = Opaque(r[k]);
        __m128d pd[2 * N];
        BRENN_EACH(k, N) {
            SeriesHA<2>(r + 2 * k, pd + 2 * k);
            pd[2 * k] = Opaque(pd[2 * k]);
            pd[2 * k + 1] = Opaque(pd[2 * k + 1]);
        }
        BRENN_EACH(k, N) p[k] = Xor(Narrow(pd[2 * k], pd[2 * k + 1]), signOf(t[k]));
    }
    // LA's series r + r u P(u) turns r = -0 (sine of x = -0) into +0: zeros are among the
    // lanes near zero, which alone take the sign of x back (a signed zero, also for a
    // denormal x read as zero).
    if (L == Level::LA && !cosine && __builtin_expect(nearZero, 0))
        BRENN_EACH(k, N) p[k] = IfThenElse(Eq(x[k], Zero<float>()), SignBit(x[k]), p[k]);
    // cos of tiny arguments: exactly 1.0, as the rounded value is. Such lanes are rare:
    // one compare a round on the least magnitude, the blend only when it fires. HA needs
    // none: its double value is within 2^-27 of cos a, so that below 2^-13 it rounds to
    // 1.0 (and at 0, where the series at pi/2 is within 2^-27 of 1).
    if (cosine && L != Level::HA && __builtin_expect(tiny, 0)) {
        BRENN_EACH(k, N) {
            p[k] = IfThenElse(Lt(a[k], Set<float>(kCosOne)), Set<float>(1.0f), p[k]);
        }
    }
}

template <Level L>
BRENN_TRIG_HOT __m128 Short(__m128 x, bool cosine) {
    __m128 p;
    ShortN<L, 1, true>(&x, cosine, &p);
    return p;
}

template <Level L, bool kCos>
struct SinCosBody {
    using T = float;
    static constexpr const char* kName = kCos ? ZAR_ERROR_NAME(sCos) : ZAR_ERROR_NAME(sSin);
    static constexpr int kRound = 16;
    static __m128 Eval(__m128 x, __m128& special) {
        __m128 a = Abs(x);
        special = InfNan(a);
        __m128 p = Short<L>(kCos ? a : x, kCos);
        int big = LargeLanes(a, kLimitS);
        // The lanes above the limit replaced by the large path's result (sine's with the
        // sign of x).
        if (__builtin_expect(big != 0, 0)) {
            __m128 large = LargeSinS(a, kCos);
            if (!kCos) large = Xor(large, SignBit(x));
            p = IfThenElse(MaskFromBits<float>(big), large, p);
        }
        return p;
    }
    // A round of sixteen: with no lane above the limit (the common case), the short
    // path on the four registers together, unclamped; otherwise quad by quad.
    static int EvalWide(const __m128* x, __m128* y) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitS), 0)) return EvalEach<SinCosBody, 4>(x, y);
        ShortN<L, 4, false>(kCos ? a : x, kCos, y);
        return 0;
    }
    static int Scalar(const float* a, float* y) { return InfNanScalar(a, y); }
};

template <Level L>
struct BothBody {
    using T = float;
    static constexpr const char* kName = ZAR_ERROR_NAME(sSinCos);
    static constexpr int kRound = 16;
    static void Eval(__m128 x, __m128& s, __m128& c, __m128& special) {
        __m128 a = Abs(x);
        special = InfNan(a);
        s = Short<L>(x, false);
        c = Short<L>(a, true);
        int big = LargeLanes(a, kLimitS);
        if (__builtin_expect(big != 0, 0)) {
            alignas(16) int32_t J[4], K[4];
            __m128d r0, r1;
            LargeS(a, J, r0, r1);
            for (int k = 0; k < 4; ++k)
                K[k] = J[k] + 32;
            __m128 ls = Xor(Narrow(TableSinS(J, r0), TableSinS(J + 2, r1)), SignBit(x));
            __m128 lc = Narrow(TableSinS(K, r0), TableSinS(K + 2, r1));
            __m128 m = MaskFromBits<float>(big);
            s = IfThenElse(m, ls, s);
            c = IfThenElse(m, lc, c);
        }
    }
    static int EvalWide(const __m128* x, __m128* s, __m128* c) {
        __m128 a[4];
        if (__builtin_expect(AnyAboveS(x, a, kLimitS), 0)) return EvalEach<BothBody, 4>(x, s, c);
        ShortN<L, 4, false>(x, false, s);
        ShortN<L, 4, false>(a, true, c);
        return 0;
    }
    static int Scalar(const float* a, float* y, float* z) { return InfNanScalar(a, y, z); }
};

// The bodies by element type and level, as the kernel macros name them.
template <class, Level L>
using SinOf = SinCosBody<L, false>;
template <class, Level L>
using CosOf = SinCosBody<L, true>;
template <class, Level L>
using SinCosOf = BothBody<L>;

} // namespace
} // namespace brenn::vm::trig

using brenn::vm::trig::CosOf;
using brenn::vm::trig::SinCosOf;
using brenn::vm::trig::SinOf;

extern "C" {
BRENN_FLAT_LEVEL_KERNELS(s, Sin, Unary, SinOf)
BRENN_FLAT_LEVEL_KERNELS(s, Cos, Unary, CosOf)
BRENN_FLAT_LEVEL_KERNELS(s, SinCos, TwoRes, SinCosOf)
}
