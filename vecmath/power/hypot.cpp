/* Hypot, single and double: sqrt(a^2 + b^2) without overflow or underflow on the way.
 *
 * Single: the sum of squares in single; EP and LA the root from the reciprocal root
 * estimate, refined as Sqrt does (EP none, LA one Goldschmidt step); HA its rounded root
 * r corrected once from the residual of the exact squares in double, within about 0.5
 * ulp. Lanes whose single sum overflows, underflows or is zero go to the scalar routine.
 * Double: where the larger of a register's operands all lie in [2^-400, 2^400), the
 * squares and their tails need no scaling and are taken as they stand; a register with
 * a lane outside (or an infinity or NaN) scales both by 2^-e for the exponent e of the
 * larger, so that it lies in [1, 2). HA: the larger square in two parts, the sum
 * of squares in two parts, its rounded root r and the correction (sum - r^2)/(2r), with
 * r^2 exact and 1/(2r) from an estimate and one Newton step (it need only be good to a
 * few per cent): within about 0.55 ulp. LA and EP: the rounded squares and root,
 * within about 1 ulp (the first test spares them the scaling: as fast as the sum of
 * squares and its root).
 * Special lanes: an infinite or NaN operand; in double also a larger operand that is
 * denormal (or both zero) or at least 2^1023. The scalar routine widens both (single to
 * double, double to extended), adds the squares and takes the root: an infinity gives
 * +inf even beside a NaN, a NaN otherwise NaN, two zeros +0. It returns status 0 in
 * every case: an overflowing Hypot is not reported. */
#include <type_traits>

#include "frame/kernels.h"
#include "vecmath/arith/goldschmidt.h"
#include "vecmath/arith/ranges.h"
#include "vecmath/complex/exact.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/vec_round.h"

namespace brenn::vm {
namespace {

template <class T>
struct HypotRanges;
template <>
struct HypotRanges<double> {
    // |x| outside [2^-400, 2^400), infinite or NaN (the high word of |x|).
    static constexpr Range32 kPlain{0xFFFFFFFFu, 0x59100000u, 0xB1FFFFFFu};
    // |x| at least 2^1023, infinite or NaN.
    static constexpr Range64 kTop{0x7FFFFFFFFFFFFFFFull, 0ull, 0x7FDFFFFFFFFFFFFFull};
    // |x| below the smallest normal (zero or denormal).
    static constexpr Range64 kNotSmall{0x7FFFFFFFFFFFFFFFull, 0ull, 0x000FFFFFFFFFFFFFull};
    // The sum of squares outside [2^-125, 2^127) (single's normal range, a little inside),
    // zero, infinite or NaN (the high word of s).
    static constexpr Range32 kSingleRoot{0xFFFFFFFFu, 0x47E00000u, 0x8FBFFFFFu};
};
// The ends of that range as high words: 2^-125 and 2^127.
constexpr int32_t kSingleRootLow = 0x38200000, kSingleRootHigh = 0x47E00000;

// The wider type the scalar routine works in.
template <class T>
using Wider = std::conditional_t<sizeof(T) == 4, double, long double>;

template <class T>
int HypotScalar(const T* a, const T* b, T* y) {
    using W = Wider<T>;
    const W x = W(*a), z = W(*b);
    if (__builtin_isinf(x) || __builtin_isinf(z)) {
        // The square of the infinite one: +inf, whatever the other is.
        *y = T(__builtin_isinf(x) ? x * x : z * z);
        return status::kNone;
    }
    const W s = x * x + z * z; // NaN for a NaN operand, +0 for two zeros
    *y = T(sizeof(T) == 4 ? W(__builtin_sqrt(double(s))) : W(__builtin_sqrtl(s)));
    return status::kNone;
}

inline __m128d HypotWide(__m128d a, __m128d b) {
    return Sqrt(Add(Mul(a, a), Mul(b, b)));
}

// x^2 as hi^2 + (hi + x)*lo for x = hi + lo, hi x's leading 26 bits (the low 27 masked
// off): hi^2 is exact, and the second part, 2^-24 of x^2 at most, rounds twice by 2^-53
// of itself. The first part goes back as it is, the second rounded.
struct SquareParts {
    __m128d head, tail;
};
inline SquareParts SquareInParts(__m128d x) {
    const auto s = cx::SplitByMask(x);
    return {Mul(s.hi, s.hi), Mul(Add(s.hi, x), s.lo)};
}

// M registers of single HA at once, each step over all of them before the next: the
// special-lane masks, the roots and estimates in single, then the residuals in double.
// Special lanes take s = 1; their double residuals stay quiet (an infinite or NaN operand
// gives an infinite or NaN c, and an overflowing one an overflow the single s raised).
template <int M>
BRENN_VEC void HypotHASteps(const __m128* a, const __m128* b, __m128* y, __m128* special) {
    __m128 r[M], h[M], c[M];
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k) {
        __m128 s = Add(Mul(a[k], a[k]), Mul(b[k], b[k]));
        special[k] = RangeTest(s, ArithRanges<float>::kRoot);
        s = IfThenElse(special[k], Set<float>(1.0f), s);
        r[k] = Sqrt(s);
        h[k] = Mul(ApproxRecipSqrt(s), Set<float>(0.5f));
    }
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k) {
        auto residual = [](__m128d a, __m128d b, __m128d r) {
            return Sub(Add(Mul(a, a), Mul(b, b)), Mul(r, r));
        };
        const __m128d dl = residual(WidenLower(a[k]), WidenLower(b[k]), WidenLower(r[k]));
        const __m128d dh = residual(WidenUpper(a[k]), WidenUpper(b[k]), WidenUpper(r[k]));
        c[k] = Narrow(Mul(dl, WidenLower(h[k])), Mul(dh, WidenUpper(h[k])));
    }
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k)
        y[k] = Add(r[k], c[k]);
}

// s = a^2 + b^2 in single (lanes where it is not a positive normal, overflow and underflow
// among them, are special), then EP g = s*rsqrt(s); LA Sqrt's one Goldschmidt step with
// h = r/2. HA departs from Sqrt's two steps (in single they leave up to 1.71 ulp; run in
// double on the exact sum they were right but cost twelve double operations a pair of
// lanes): r = sqrt(s) rounded and r + c, c = d/(2r) for the residual d = a^2 + b^2 - r^2
// in double, where the squares and r^2 are exact and the sum rounds once (2^-53), with
// 1/(2r) from the estimate (2^-11.4 of c, which is within about 2 ulps of r: 2^-10 ulp),
// c rounded to single and one addition rounding: within 0.501 ulp, no sqrtpd. c stays
// a normal single: d is a multiple of about 2^-53 s, so |c| >= 2^-54 r > 2^-118.
template <Level L>
inline __m128 HypotOf(__m128 a, __m128 b, __m128& special) {
    if constexpr (L == Level::HA) {
        __m128 y;
        HypotHASteps<1>(&a, &b, &y, &special);
        return y;
    }
    __m128 s = Add(Mul(a, a), Mul(b, b));
    special = RangeTest(s, ArithRanges<float>::kRoot);
    s = IfThenElse(special, Set<float>(1.0f), s);
    const __m128 r = ApproxRecipSqrt(s);
    if constexpr (L == Level::EP) return Mul(s, r);
    return Goldschmidt<1>(s, r);
}

// A round of sixteen single elements at HA: the special-lane bits, bit j for element j.
BRENN_VEC int HypotHARound(const __m128* a, const __m128* b, __m128* y) {
    __m128 special[4];
    HypotHASteps<4>(a, b, y, special);
    return RoundMaskBits(special);
}

// The root of x^2 + z^2 for x >= z >= 0 with x in [2^-400, 2^400) (or scaled into
// [1, 2)). HA: r = sqrt(s) rounded, s = x*x + z*z, and r + d/(2r) with the residual
// d = x^2 + z^2 - r^2 from SquareInParts of x, z and r: the heads of x and r are multiples
// of the square of x's last kept bit, and their difference (about z^2) is below 2^52 of
// it, so exact; adding z's head cancels it to about the size of the tails, whose sum
// rounds by 2^-77 of s. |d/(2r)| is within about 1.3 ulp of r, and 1/(2r) is taken as
// 1/(2 sqrt(s)) from the bits of s alone (within 3.5 %, beside the root, two integer
// operations in place of a Newton step after it): at most 0.05 ulp, within about
// 0.55 ulp in all (z^2 rounded instead saved five operations but left 0.64).
template <Level L, int M>
BRENN_VEC void HypotScaled(const __m128d* x, const __m128d* z, __m128d* y) {
    if constexpr (L != Level::HA) {
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k)
            y[k] = HypotWide(x[k], z[k]);
        return;
    }
    // The round's roots first, each held apart (Opaque) so that the compiler does not
    // sink it into its correction, then the corrections: the roots' latency overlaps the
    // other registers' work (4 % faster than register by register, where the compiler's
    // order had each correction wait on its root). Four roots ahead: the correction of
    // register k beside the root of register k + 4 (2-3 % faster than all roots first).
    __m128d r[M], h[M];
    auto root = [&](int k) {
        const __m128d zz = Mul(z[k], z[k]);
        const __m128d s = Add(Mul(x[k], x[k]), zz);
        r[k] = Opaque(Sqrt(s));
        // 1/(2r) as 1/(2 sqrt(s)) from the bits of s (within 3.5 %), beside the root.
        h[k] =
            AsFloat(Sub(Set<int64_t>(0x5FE6EB50C7B537A9ll - (1ll << 52)), ShiftRight<1>(AsInt(s))));
    };
    constexpr int kAhead = M < 4 ? M : 4;
#pragma GCC unroll 8
    for (int k = 0; k < kAhead; ++k)
        root(k);
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        if (k + kAhead < M) root(k + kAhead);
        const SquareParts xp = SquareInParts(x[k]), zp = SquareInParts(z[k]),
                          rp = SquareInParts(r[k]);
        const __m128d d =
            Add(Add(Sub(xp.head, rp.head), zp.head), Add(Sub(xp.tail, rp.tail), zp.tail));
        y[k] = Add(r[k], Mul(d, h[k]));
    }
}
template <Level L>
BRENN_VEC __m128d HypotScaled(__m128d x, __m128d z) {
    __m128d y;
    HypotScaled<L, 1>(&x, &z, &y);
    return y;
}

// Double EP: the roots of s0 and s1 (four lanes in single's normal range) from single,
// where one sqrtps takes four lanes and sqrtpd two: r = sqrt(s) rounded to single (from s
// rounded to single: within 1.5 * 2^-24) and the correction r + (s - r^2)*h in double,
// r^2 exact and h = rsqrt(s)/2 to 2^-11: within about 2^-34 of the root.
inline void RootFromSingle(__m128d s0, __m128d s1, __m128d& y0, __m128d& y1) {
    const __m128 sf = Narrow(s0, s1);
    const __m128 r = Sqrt(sf);
    const __m128 h = Mul(ApproxRecipSqrt(sf), Set<float>(0.5f));
    auto fix = [](__m128d s, __m128d rd, __m128d hd) {
        return Add(rd, Mul(Sub(s, Mul(rd, rd)), hd));
    };
    y0 = fix(s0, WidenLower(r), WidenLower(h));
    y1 = fix(s1, WidenUpper(r), WidenUpper(h));
}

template <Level L>
inline __m128d HypotDouble(__m128d a, __m128d b, __m128d& special) {
    using F = Format<double>;
    using R = HypotRanges<double>;
    const __m128d one = Set<double>(1.0);
    __m128d ax = Abs(a), bx = Abs(b);
    // The larger both ways round, so that a NaN in either shows (maxpd returns its
    // second operand when one is NaN).
    __m128d big = Max(ax, bx), small = Min(ax, bx);
    __m128d wide = Or(RangeTest(big, R::kPlain), RangeTest(Max(bx, ax), R::kPlain));
    if (__builtin_expect(MaskBits(wide) == 0, 1)) {
        special = Zero<double>();
        return HypotScaled<L>(big, small);
    }
    special = Or(Or(RangeTest(ax, R::kTop), RangeTest(bx, R::kTop)),
                 AndNot(Or(RangeTest(ax, R::kNotSmall), RangeTest(bx, R::kNotSmall)),
                        AsFloat(Set<int64_t>(-1))));
    ax = IfThenElse(special, one, ax);
    bx = IfThenElse(special, one, bx);
    // 2^-e and 2^e for the exponent e of the larger, e from -1022 to 1022.
    big = Max(ax, bx), small = Min(ax, bx);
    const I64x2 field = And(AsInt(big), Set<uint64_t>(F::kExpField));
    const __m128d down = AsFloat(Sub(Set<int64_t>(int64_t(2 * F::kBias) << F::kMantBits), field));
    const __m128d up = AsFloat(field);
    return Mul(HypotScaled<L>(Mul(big, down), Mul(small, down)), up);
}

template <Level L>
inline __m128d HypotOf(__m128d a, __m128d b, __m128d& special) {
    if constexpr (L == Level::EP) {
        // The order of the operands does not matter here: s as it stands, tested alone.
        // A lane whose sum lies in single's range takes the single root whatever its
        // neighbour holds (so that an element's result does not depend on where it
        // stands); the others the double path.
        using R = HypotRanges<double>;
        const __m128d s = Add(Mul(a, a), Mul(b, b));
        const __m128d out = RangeTest(s, R::kSingleRoot);
        __m128d y, unused;
        if (__builtin_expect(MaskBits(out) == 0, 1)) {
            special = Zero<double>();
            RootFromSingle(s, s, y, unused);
            return y;
        }
        const __m128d inside = IfThenElse(out, Set<double>(1.0), s);
        RootFromSingle(inside, inside, y, unused);
        return IfThenElse(out, HypotDouble<L>(a, b, special), y);
    }
    return HypotDouble<L>(a, b, special);
}

template <class Tp, Level L>
struct HypotBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V& special) { return HypotOf<L>(a, b, special); }
    static int Scalar(const T* a, const T* b, T* y) { return HypotScalar(a, b, y); }
    // Double HA in rounds of sixteen: where every lane of the round's eight registers lies
    // in the plain range, HypotScaled over all of them; otherwise register by
    // register. EP too, its roots four lanes at a time from single. (LA, a sum and a root
    // a register, is faster in rounds of eight.)
    // Single HA in rounds of sixteen too: the four registers' roots, then their eight
    // double residuals, side by side.
    static constexpr int kRound = L == Level::HA || (sizeof(T) == 8 && L != Level::LA) ? 16 : 8;
    static BRENN_VEC int EvalWide(const V* a, const V* b, V* y) {
        using R = HypotRanges<double>;
        if constexpr (sizeof(T) == 4) {
            return HypotHARound(a, b, y);
        } else if constexpr (L == Level::EP) {
            // The round's eight registers of sums from single roots where every lane's sum
            // lies in single's range; otherwise register by register. The range by the
            // least and the largest high word of the round (a NaN with its sign bit set is
            // the least; the low words' lanes are not read by MaskBits).
            V s[8];
#pragma GCC unroll 8
            for (int k = 0; k < 8; ++k)
                s[k] = Add(Mul(a[k], a[k]), Mul(b[k], b[k]));
            I32x4 least = BitCast<I32x4>(s[0]), most = least;
#pragma GCC unroll 8
            for (int k = 1; k < 8; ++k) {
                least = Min(least, BitCast<I32x4>(s[k]));
                most = Max(most, BitCast<I32x4>(s[k]));
            }
            const I32x4 out = Or(Lt(least, Set<int32_t>(kSingleRootLow)),
                                 Gt(most, Set<int32_t>(kSingleRootHigh - 1)));
            if (__builtin_expect(MaskBits(BitCast<I64x2>(out)) == 0, 1)) {
#pragma GCC unroll 4
                for (int k = 0; k < 8; k += 2)
                    RootFromSingle(s[k], s[k + 1], y[k], y[k + 1]);
                return 0;
            }
        } else {
            // The plain range by the least and the largest high word of the larger operands
            // (the 32-bit maximum of |a| and |b|, whose high word is the larger one's, NaN
            // above infinity; their low words mix in but MaskBits reads the high ones).
            V big[8], small[8];
            I32x4 least, most;
#pragma GCC unroll 8
            for (int k = 0; k < 8; ++k) {
                V ax = Abs(a[k]), bx = Abs(b[k]);
                big[k] = Max(ax, bx), small[k] = Min(ax, bx);
                const I32x4 high = Max(BitCast<I32x4>(ax), BitCast<I32x4>(bx));
                least = k == 0 ? high : Min(least, high);
                most = k == 0 ? high : Max(most, high);
            }
            const V wide = Or(RangeTest(BitCast<V>(least), R::kPlain),
                              RangeTest(BitCast<V>(most), R::kPlain));
            if (__builtin_expect(MaskBits(wide) == 0, 1)) {
                HypotScaled<L, 8>(big, small, y);
                return 0;
            }
        }
        // Register by register, the round's fast form having failed.
        int bits = 0;
        for (int k = 0; k < 8; ++k) {
            V special;
            y[k] = HypotOf<L>(a[k], b[k], special);
            bits |= MaskBits(special) << (2 * k);
        }
        return bits;
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
// Single HA flattened: its rounds of sixteen stay in the kernel's loop with the constants
// in registers (EP measured slower so, LA the same).
ZAR_KERNEL_OF(s, Hypot, EP, Binary, HypotBody<float, brenn::vm::Level::EP>)
ZAR_KERNEL_OF(s, Hypot, LA, Binary, HypotBody<float, brenn::vm::Level::LA>)
BRENN_FLAT ZAR_KERNEL_OF(s, Hypot, HA, Binary, HypotBody<float, brenn::vm::Level::HA>)
BRENN_FLAT_LEVEL_KERNELS(d, Hypot, Binary, HypotBody)
}
