/* Inv and Div, single and double, three levels.
 *
 * sInv: EP the approximate reciprocal as it stands (about 11.4 bits); LA one Newton
 * step e = 2 - x*r, y = r*e (within 4 ulp); both in the hand-tuned layout, whose scalar
 * routine covers every input. HA the correctly rounded division, special only for 0.
 * sDiv: the level's reciprocal of b times a; HA the correctly rounded division. At EP and
 * LA, b and a are both tested with sInv's window: either zero, denormal, at or above
 * 2^126, infinite or NaN sends the lane to the scalar routine.
 * dInv: at EP and LA the seed of the approximate reciprocal on the significand, the
 * exponent apart (seed.h), the residual e = 1 - x*r in double and the refinement
 * r + r*s with s the series e + e^2 (EP, within 2^-33) or e + e^2 + e^3 + e^4 (LA,
 * within about 1.5 ulp); the lanes outside the seed's window divide. HA the correctly
 * rounded division. dDiv: a times dInv's reciprocal of b at EP and LA, with the same
 * tests on b and on a as sDiv; HA the division.
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

// Double, from the seed r (seed.h): e = 1 - x*r, t = e*e, s = e + t, at LA s = s + s*t
// (e + e^2 + e^3 + e^4, two roundings fewer than by Horner's rule), then r + r*s. The
// seed's relative error is below 1.5*2^-12, so the series left out is below 2^-33 at
// EP and 2^-55 at LA.
template <Level L>
inline __m128d Refine(__m128d x, __m128d r) {
    __m128d e = Sub(Set<double>(1.0), Mul(x, r));
    __m128d t = Mul(e, e);
    __m128d s = Add(e, t);
    if constexpr (L == Level::LA) s = Add(s, Mul(s, t));
    return Add(r, Mul(r, s));
}

// The divisor's special lanes made NaN (x and its seed NaN: the chain raises nothing on
// them), then its estimate and the level's steps.
template <Level L>
inline __m128 Reciprocal(__m128 b, __m128 special) {
    __m128 bb = NaNWhere(special, b);
    return Refine<L>(bb, ApproxRecip(bb));
}
template <Level L>
inline __m128d Reciprocal(__m128d b, __m128d special) {
    __m128d bb = NaNWhere(special, b);
    return Refine<L>(bb, ReciprocalSeed(bb));
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

// HA is the correctly rounded division, special only for a zero divisor; the double EP
// and LA chains have the seed's window.
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
        } else if constexpr (sizeof(T) == 8) {
            special = RangeTest(x, ArithRanges<T>::kRecip);
            return Reciprocal<L>(x, special);
        } else {
            special = RangeTest(x, ArithRanges<T>::kRecip);
            return InvOf<L>(x);
        }
    }
    static int Scalar(const T* a, T* y) { return InvLane<L>(a, y); }
};

// Div: at EP and LA the level's reciprocal of b times a, special where b or a is outside
// the reciprocal's window (both made NaN there); HA the correctly rounded division.
template <class Tp, Level L>
struct DivBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Div);
    static V Eval(V a, V b, V& special) {
        if constexpr (L == Level::HA) {
            special = ZeroLanes(b);
            return Div(a, NaNWhere(special, b));
        } else {
            special =
                Or(RangeTest(b, ArithRanges<T>::kRecip), RangeTest(a, ArithRanges<T>::kRecip));
            return Mul(NaNWhere(special, a), Reciprocal<L>(b, special));
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
