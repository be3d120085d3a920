/* Inv and Div, single and double, three levels.
 *
 * sInv: EP the approximate reciprocal as it stands (about 11.4 bits); LA one Newton
 * step e = 2 - x*r, y = r*e (within 4 ulp); both in the hand-tuned layout, whose scalar
 * routine covers every input. HA the correctly rounded division, special only for 0.
 * sDiv: the level's reciprocal of b times a; HA the correctly rounded division. At EP and
 * LA, a lane whose quotient reaches 2^(emax-1) (or is not finite) goes to the scalar
 * routine, so that a result near overflow is the true quotient.
 * dInv and dDiv: the correctly rounded division at every level, each level a kernel of
 * its own. A double reciprocal chain (a seed on the significand with the exponent
 * apart, then the series in the residual) takes about twice the division
 * instruction's time or more: dDiv 4.8 ticks an element at LA and 3.8 at EP, dInv 3.0
 * and 2.5, against 1.5 and 1.3 for the instruction.
 *
 * Scalar routines: a division; Inv of +-0 and Div by 0 give the signed infinity with
 * status 2, 0/0 gives NaN with status 1; overflow and underflow of a reciprocal are
 * not reported. */
#include "frame/kernels.h"
#include "vecmath/arith/ranges.h"
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

// Single: the divisor's special lanes made NaN, then its estimate (and step).
template <Level L>
inline __m128 Reciprocal(__m128 b, __m128 special) {
    __m128 bb = NaNWhere(special, b);
    return Refine<L>(bb, ApproxRecip(bb));
}

// The single reciprocal at EP and LA: the estimate (and step) of x as it is; sInv runs
// these levels in the hand-tuned layout, where a block with a special lane goes through
// the scalar routine whole, so its special lanes need no quieting.
template <Level L>
inline __m128 InvOf(__m128 x) {
    return Refine<L>(x, ApproxRecip(x));
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

// HA, and every level in double, is the correctly rounded division, special only for a
// zero divisor.
template <class Tp, Level L>
struct InvBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Inv);
    static constexpr Layout kLayout = L == Level::HA ? Layout::Split : InvLayout<T>::kApprox;
    static V Eval(V x, V& special) {
        if constexpr (L == Level::HA || sizeof(T) == 8) {
            special = ZeroLanes(x);
            return Div(Set<T>(1), NaNWhere(special, x));
        } else {
            special = RangeTest(x, ArithRanges<T>::kRecip);
            return InvOf<L>(x);
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
