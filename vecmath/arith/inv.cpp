/* Inv and Div, single and double, three levels.
 *
 * sInv: EP the approximate reciprocal as it stands (about 11.4 bits); LA one Newton
 * step e = 2 - x*r, y = r*e (within 4 ulp); both in the hand-tuned layout, whose scalar
 * routine covers every input. HA the correctly rounded division, special only for 0.
 * dInv: EP and LA a seed on the significand with the exponent apart, residual
 * e = 1 - x*r in double, then r*(1 + e + e^2) (EP, about 34 bits) or r*(1 + e + ... +
 * e^4) (LA, under 2 ulp: 1.97 the worst of 40 million inputs); HA the correctly rounded
 * division.
 * sDiv: the level's reciprocal of b times a; HA the correctly rounded division. At EP and
 * LA, a lane whose quotient reaches 2^(emax-1) (or is not finite) goes to the scalar
 * routine, so that a result near overflow is the true quotient. dDiv: the correctly
 * rounded division at every level, each level a kernel of its own: the double
 * reciprocal chain and a product take more than twice the division instruction's time
 * (4.8 ticks an element at LA and 3.8 at EP, against 1.5).
 *
 * Scalar routines: a division; Inv of +-0 and Div by 0 give the signed infinity with
 * status 2, 0/0 gives NaN with status 1; overflow and underflow of a reciprocal are
 * not reported. */
#include "frame/kernels.h"
#include "vecmath/arith/ranges.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

// Lanes of +-0, by the bits: the HA test.
template <class V>
inline V ZeroLanes(V x) {
    using T = ElemOf<V>;
    return AsFloat(Eq(And(AsInt(x), Set<UInt<T>>(Format<T>::kAbs)), Zero<UInt<T>>()));
}

template <class T>
int DivScalar(const T* a, const T* b, T* y) {
    T x = *a, d = *b;
    *y = Keep(x) / d;
    if (d == 0 && !__builtin_isnan(x)) return x == 0 ? status::kDomain : status::kSingularity;
    return status::kNone;
}
template <class T>
int InvScalar(const T* a, T* y) {
    T one = 1;
    return DivScalar<T>(&one, a, y);
}

// The single reciprocal from its estimate r: r as it stands (EP), or refined by one
// Newton step r*(2 - x*r) (LA).
template <Level L>
inline __m128 Refine(__m128 x, __m128 r) {
    if constexpr (L == Level::LA) r = Mul(r, Sub(Set<float>(2.0f), Mul(x, r)));
    return r;
}

// sInv EP and LA, through x87 extended arithmetic, as the hand-tuned routines do for
// their out-of-range lanes; the level's own value for lanes in range.
template <Level L>
int InvScalarS(const float* a, float* y) {
    float x = *a;
    if (!RangeTest(BitsOf(x), ArithRanges<float>::kRecip)) {
        __m128 v = SetFirst(x);
        *y = GetLane(Refine<L>(v, ApproxRecipFirst(v)));
        return status::kNone;
    }
    long double one = 1.0L;
    *y = float(Keep(one) / x);
    return x == 0 ? status::kSingularity : status::kNone;
}

// Double reciprocal chain. With the seed r's relative error e = 1 - x*r below
// 1.5 * 2^-12, 1/x = r * (1 + e + e^2 + ...). EP cuts the series after e^2, leaving e^3
// (about 2^-34), and writes it in p = x*r as 1 + e + e^2 = 3 - p*(3 - p), one operation
// fewer; the roundings near 1 and 3 cost a few ulps, far below EP's bound. LA cuts
// after e^4, leaving e^5 (about 2^-57), and adds the correction r*e * (1 + e) * (1 + e^2)
// to r last, so that only its own roundings and that of x*r in the residual reach the
// result; the factors are formed side by side, since the chain is bound by latency more
// than by operations. The seed is taken from x as it is (integer operations and rcpps,
// which raise nothing), so it need not wait for the range test; special lanes become
// NaN at the seed. Div multiplies by a last, so that a tiny quotient is rounded once,
// from one product.
template <Level L>
inline __m128d Reciprocal(__m128d x, __m128d special) {
    __m128d r = NaNWhere(special, ReciprocalSeed(x));
    __m128d p = Mul(x, r);
    if constexpr (L == Level::LA) {
        const __m128d one = Set<double>(1.0);
        __m128d e = Sub(one, p);
        __m128d c = Mul(Mul(r, e), Add(one, e));
        c = Mul(c, Add(one, Mul(e, e)));
        return Add(r, c);
    } else {
        const __m128d three = Set<double>(3.0);
        return Mul(r, Sub(three, Mul(p, Sub(three, p))));
    }
}
// Single: the divisor's special lanes made NaN, then its estimate (and step).
template <Level L>
inline __m128 Reciprocal(__m128 b, __m128 special) {
    __m128 bb = NaNWhere(special, b);
    return Refine<L>(bb, ApproxRecip(bb));
}

// The reciprocal at EP and LA. Single: the estimate (and step) of x as it is; sInv runs
// these levels in the hand-tuned layout, where a block with a special lane goes through
// the scalar routine whole, so its special lanes need no quieting. Double: the chain.
template <Level L>
inline __m128 InvOf(__m128 x, __m128) {
    return Refine<L>(x, ApproxRecip(x));
}
template <Level L>
inline __m128d InvOf(__m128d x, __m128d special) {
    return Reciprocal<L>(x, special);
}
template <class T>
struct InvLayout {
    static constexpr Layout kApprox = Layout::Split;
};
template <>
struct InvLayout<float> {
    static constexpr Layout kApprox = Layout::HandTuned;
};
// The scalar routine by level: the hand-tuned single levels have their own.
template <Level L>
int InvLane(const float* a, float* y) {
    if constexpr (L == Level::HA)
        return InvScalar(a, y);
    else
        return InvScalarS<L>(a, y);
}
template <Level L>
int InvLane(const double* a, double* y) {
    return InvScalar(a, y);
}

// HA is the correctly rounded division, special only for a zero divisor.
template <class Tp, Level L>
struct InvBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Inv);
    static constexpr Layout kLayout = L == Level::HA ? Layout::Split : InvLayout<T>::kApprox;
    static V Eval(V x, V& special) {
        if constexpr (L == Level::HA) {
            special = ZeroLanes(x);
            return Div(Set<T>(1), NaNWhere(special, x));
        } else {
            special = RangeTest(x, ArithRanges<T>::kRecip);
            return InvOf<L>(x, special);
        }
    }
    static int Scalar(const T* a, T* y) { return InvLane<L>(a, y); }
};

// Div: in single at EP and LA the level's reciprocal of b times a, and a quotient near
// overflow (or not finite) goes to the scalar routine as well, so that it is the true
// quotient; HA, and every level in double, the correctly rounded division.
template <class Tp, Level L>
struct DivBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Div);
    static V Eval(V a, V b, V& special) {
        if constexpr (L == Level::HA || sizeof(T) == 8) {
            special = ZeroLanes(b);
            return Div(a, NaNWhere(special, b));
        } else {
            special = RangeTest(b, ArithRanges<T>::kRecip);
            V q = Mul(a, Reciprocal<L>(b, special));
            special = Or(special, RangeTest(q, ArithRanges<T>::kBigQuotient));
            return q;
        }
    }
    static int Scalar(const T* a, const T* b, T* y) { return DivScalar(a, b, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_ROW_KERNELS(Inv, Unary, InvBody)
ZAR_ROW_KERNELS(Div, Binary, DivBody)
}
