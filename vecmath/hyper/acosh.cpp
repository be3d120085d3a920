/* Acosh, single and double, three levels each.
 *
 * acosh x = ln(w), w = x + sqrt(x^2 - 1), x >= 1; the logarithm of the pair w by the
 * explog core (log_pair.h).
 * Double HA: x^2 - 1 as a pair, below 2 as d^2 + 2d with d = x - 1 (exact there), from 2
 * on as x^2 - 1; its root corrected once; w = x + root as a pair.
 * Double LA and EP, and the single LA and HA rows on widened lanes: w = 1 + u, u = d + sqrt(d*(x +
 * 1)), the rounding of 1 + u recovered, so that near 1 the result keeps its relative accuracy.
 * Above 2^28 the square is left out: ln(2x) as ln x plus ln 2.
 * Single EP in single arithmetic: the fold at 1.5, the root by rsqrtps and a Newton step,
 * a quadratic near one and the logarithm by exponent and significand above.
 * Double rounds of sixteen take each step over their eight registers (the roots, then
 * the logarithms).
 * Range test: everything outside [1, infinity) (single: outside (1, about 2^64], the
 * test of the single EP body) and NaN go to the scalar routine, which gives NaN with the
 * domain status below 1. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/hyper/inverse_scalar.h"
#include "vecmath/hyper/log_pair.h"
#include "vecmath/hyper/single_ep.h"

namespace brenn::vm {
namespace {

template <class T>
struct AcoshWindow;
template <>
struct AcoshWindow<float> {
    // bits(x) - 0xBF800001 read as signed above 0x9FFFFFFE: outside (1, about 2^64].
    static constexpr Range32 kWindow = {0xFFFFFFFFu, 0x407FFFFFu, 0x9FFFFFFEu};
};
template <>
struct AcoshWindow<double> {
    // High word outside [0x3FF00000, 0x7FF00000): below 1, negative, infinite, NaN.
    static constexpr Range32 kWindow = {0xFFFFFFFFu, 0x40100000u, 0xBFFFFFFFu};
};

// w = x + sqrt(x^2 - 1) as a pair, and the powers of two its logarithm takes on top (1
// where x is above 2^28 and goes in as it stands). Without kBig, x is at most 2^28.
template <Level L, bool kBig = true>
BRENN_VEC Pair AcoshPairOf(__m128d x, __m128d& extra) {
    const __m128d one = Set<double>(1.0);
    extra = Zero<double>();
    __m128d xc = kBig ? Min(x, Set<double>(kSquareEnd)) : x;
    __m128d d = Sub(xc, one);
    Pair w;
    if constexpr (L == Level::HA) {
        // u^2 + v: (d, 2d) below 2, (x, -1) from 2 on, one square and one sum a lane,
        // the larger of u^2 and v first (v below 2, u^2 from 2 on) for the fast sum.
        __m128d near = Lt(xc, Set<double>(2.0));
        __m128d u = IfThenElse(near, d, xc);
        __m128d v = IfThenElse(near, Add(d, d), Set<double>(-1.0));
        Pair p = SquareOf(u), q;
        __m128d e;
        FastTwoSum(IfThenElse(near, v, p.hi), IfThenElse(near, p.hi, v), q.hi, e);
        q.lo = Add(e, p.lo);
        Pair s = SqrtOfPair(q);
        FastTwoSum(xc, s.hi, w.hi, e); // x is the larger
        w.lo = Add(e, s.lo);
    } else {
        w = OnePlus(Add(d, Sqrt(Mul(d, Add(xc, one)))));
    }
    if constexpr (kBig) {
        __m128d big = Gt(x, Set<double>(kSquareEnd));
        w.hi = IfThenElse(big, x, w.hi);
        w.lo = IfThenZeroElse(big, w.lo);
        extra = IfThenElseZero(big, one);
    }
    return w;
}

template <Level L>
inline __m128d AcoshOf(__m128d x) {
    __m128d extra;
    Pair w = AcoshPairOf<L>(x, extra);
    return LnOfPair<L>(w, extra);
}

// Single EP, x in (1, 2^64]: folded at 1.5, u = x - 1 below and x^2 - 1 from there;
// s = sqrt(u) by rsqrtps and one Newton step; near one s times a quadratic in u, else
// ln(x + s) by exponent and significand.
constexpr float kAcoshNearEP[] = {1.41419041f, -0.116985172f, 0.0215848032f};

inline __m128 AcoshSingleEP(__m128 x) {
    const __m128 one = Set<float>(1.0f);
    __m128 near = Lt(x, Set<float>(1.5f));
    __m128 u = IfThenElse(near, Sub(x, one), Sub(Mul(x, x), one));
    __m128 r = ApproxRecipSqrt(u);
    __m128 g = Mul(u, r);
    __m128 s = Mul(Mul(Set<float>(-0.5f), g), Sub(Mul(g, r), Set<float>(3.0f)));
    __m128 yn = Mul(s, Horner(u, kAcoshNearEP));
    return IfThenElse(near, yn, LnByFields<kLnSignificandAcosh>(Add(x, s)));
}

// Single LA and HA on widened lanes: for a single x, (x - 1)*(x + 1) is exact in double,
// so w = x + sqrt of it is within 2^-52 of itself, and its logarithm (the EP core, 2^-33)
// far below a single ulp; the window keeps x below 2^64, where the square is in range.
inline __m128d AcoshWide(__m128d x) {
    const __m128d one = Set<double>(1.0);
    __m128d h, l;
    LnCore<Level::EP>(Add(x, Sqrt(Mul(Sub(x, one), Add(x, one)))), h, l);
    return Add(h, l);
}

template <Level L>
inline __m128 AcoshOf(__m128 x) {
    if constexpr (L == Level::EP)
        return AcoshSingleEP(x);
    else
        return WidenToDouble(x, AcoshWide);
}

// The range test of a lane: special lanes run on 2.
template <class V>
BRENN_VEC V AcoshInput(V x, V& special) {
    using T = ElemOf<V>;
    special = RangeTest(x, AcoshWindow<T>::kWindow);
    return IfThenElse(special, Set<T>(T(2)), x);
}

// A double round of sixteen step by step over its eight registers (the roots, then the
// logarithms), so that the square roots issue together and the logarithms' chains
// overlap; without a lane above 2^28 (tested once a round), with none of their blends.
// Returns the special-lane bits.
template <Level L, bool kBig>
BRENN_VEC void AcoshSteps(const __m128d* x, __m128d* y) {
    Pair w[8];
    __m128d extra[8];
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        w[k] = AcoshPairOf<L, kBig>(x[k], extra[k]);
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k)
        y[k] = kBig ? LnOfPair<L>(w[k], extra[k]) : LnOfPair<L, false>(w[k], extra[k]);
}
template <Level L>
BRENN_VEC int AcoshRound(const __m128d* x, __m128d* y) {
    __m128d xs[8];
    int bits = 0, big = 0;
#pragma GCC unroll 8
    for (int k = 0; k < 8; ++k) {
        __m128d special;
        xs[k] = AcoshInput(x[k], special);
        bits |= MaskBits(special) << (2 * k);
        big |= MaskBits(Gt(xs[k], Set<double>(kSquareEnd)));
    }
    if (big)
        AcoshSteps<L, true>(xs, y);
    else
        AcoshSteps<L, false>(xs, y);
    return bits;
}

template <class Tp, Level L>
struct AcoshBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Acosh);
    static V Eval(V x, V& special) { return AcoshOf<L>(AcoshInput(x, special)); }
    static int Scalar(const T* a, T* y) { return AcoshScalar(a, y); }
    // Double rounds of sixteen, step by step over the round's registers (AcoshRound).
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    static int EvalWide(const V* x, V* y)
        requires(sizeof(T) == 8)
    {
        return AcoshRound<L>(x, y);
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
// The single kernels flattened: the rounds stay in the kernel's loop with the constants
// in registers.
BRENN_FLAT_LEVEL_KERNELS(s, Acosh, Unary, brenn::vm::AcoshBody)
ZAR_LEVEL_KERNELS(d, Acosh, Unary, brenn::vm::AcoshBody)
}
