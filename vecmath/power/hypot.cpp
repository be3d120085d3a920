/* Hypot, single and double: sqrt(a^2 + b^2) without overflow or underflow on the way.
 *
 * Single: in double on widened lanes, where the squares are exact and cannot overflow,
 * one rounded sum and the root, rounded once more to single: within about 0.5 ulp.
 * Double: both scaled by 2^-e for the exponent e of the larger, so that it lies in
 * [1, 2). HA: the squares and their sum in two parts, the root s, and its error
 * (sum - s^2)/(2s) from the exact square and a reciprocal estimate: within about
 * 0.5 ulp. LA and EP: the rounded squares and root, within about 1 ulp.
 * Special lanes: an infinite or NaN operand; in double also a larger operand that is
 * denormal (or both zero) or at least 2^1023. The scalar routine widens both (single to
 * double, double to extended), adds the squares and takes the root: an infinity gives
 * +inf even beside a NaN, a NaN otherwise NaN, two zeros +0. It returns status 0 in
 * every case: an overflowing Hypot is not reported. */
#include <type_traits>

#include "frame/kernels.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"

namespace brenn::vm {
namespace {

template <class T>
struct HypotRanges;
template <>
struct HypotRanges<float> {
    // |x| infinite or NaN.
    static constexpr Range32 kNotFinite{0x7FFFFFFFu, 0u, 0x7F7FFFFFu};
};
template <>
struct HypotRanges<double> {
    // |x| at least 2^1023, infinite or NaN.
    static constexpr Range64 kTop{0x7FFFFFFFFFFFFFFFull, 0ull, 0x7FDFFFFFFFFFFFFFull};
    // |x| below the smallest normal (zero or denormal).
    static constexpr Range64 kNotSmall{0x7FFFFFFFFFFFFFFFull, 0ull, 0x000FFFFFFFFFFFFFull};
};

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

template <Level L>
inline __m128 HypotOf(__m128 a, __m128 b, __m128& special) {
    using R = HypotRanges<float>;
    special = Or(RangeTest(a, R::kNotFinite), RangeTest(b, R::kNotFinite));
    a = IfThenZeroElse(special, a);
    b = IfThenZeroElse(special, b);
    return Narrow(HypotWide(WidenLower(a), WidenLower(b)), HypotWide(WidenUpper(a), WidenUpper(b)));
}

template <Level L>
inline __m128d HypotOf(__m128d a, __m128d b, __m128d& special) {
    using F = Format<double>;
    using R = HypotRanges<double>;
    const __m128d one = Set<double>(1.0);
    __m128d ax = Abs(a), bx = Abs(b);
    special = Or(Or(RangeTest(ax, R::kTop), RangeTest(bx, R::kTop)),
                 AndNot(Or(RangeTest(ax, R::kNotSmall), RangeTest(bx, R::kNotSmall)),
                        AsFloat(Set<int64_t>(-1))));
    ax = IfThenElse(special, one, ax);
    bx = IfThenElse(special, one, bx);
    // 2^-e and 2^e for the exponent e of the larger, e from -1022 to 1022.
    const I64x2 field = And(AsInt(Max(ax, bx)), Set<uint64_t>(F::kExpField));
    const __m128d down = AsFloat(Sub(Set<int64_t>(int64_t(2 * F::kBias) << F::kMantBits), field));
    const __m128d up = AsFloat(field);
    __m128d x = Mul(ax, down), z = Mul(bx, down);
    if constexpr (L != Level::HA) return Mul(HypotWide(x, z), up);
    __m128d xh, xl, zh, zl, s, se;
    TwoProduct(x, x, xh, xl);
    TwoProduct(z, z, zh, zl);
    TwoSum(xh, zh, s, se);
    __m128d t = Add(se, Add(xl, zl));
    __m128d r = Sqrt(s);
    __m128d qh, ql;
    TwoProduct(r, r, qh, ql);
    __m128d d = Add(Sub(Sub(s, qh), ql), t);
    __m128d corr = Mul(Mul(d, Set<double>(0.5)), ReciprocalSeed(r));
    return Mul(Add(r, corr), up);
}

template <class Tp, Level L>
struct HypotBody {
    using T = Tp;
    using V = Vec<T>;
    static V Eval(V a, V b, V& special) { return HypotOf<L>(a, b, special); }
    static int Scalar(const T* a, const T* b, T* y) { return HypotScalar(a, b, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_ROW_KERNELS(Hypot, Binary, HypotBody)
}
