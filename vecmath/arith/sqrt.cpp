/* Sqrt, single and double, three levels.
 *
 * sSqrt, from r = rsqrt(x) (special lanes NaN): EP g = x*r (about 11.4 bits); LA one
 * Goldschmidt step on g and h = r/2; HA that step twice, h corrected in between, in
 * double on the widened x and r, rounded once to single.
 * dSqrt: LA the estimate of x narrowed to single, widened, g = x*r, e = 1 - g*r and
 * y = g + g*e*P(e), P the series of (1 - e)^(-1/2) after its 1 to fourth order; HA that
 * chain and one correction by the exact residual x - y*y; both for x from 2^-126 to
 * below 2^127, where the narrowing keeps x a normal single. EP the seed on the
 * significand with the exponent apart (seed.h), then the series to second order, for
 * every positive normal x. Lanes outside the windows go to the scalar routine; their
 * body result is made a quiet NaN first so that they raise no flag of their own.
 *
 * Scalar routines: -inf and negatives give NaN with status 1; -0 gives -0, +inf and NaN
 * themselves (NaN quieted), all with status 0. Other singles (denormals and the top of
 * the range) from a table of seeds and Goldschmidt steps in double; other doubles the
 * root instruction. */
#include "frame/kernels.h"
#include "vecmath/arith/goldschmidt.h"
#include "vecmath/arith/ranges.h"
#include "vecmath/arith/seed.h"
#include "vecmath/arith/root_scalar.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

// Double: -inf and negatives NaN with status 1; -0, +inf and NaN themselves (NaN
// quieted); denormals and the top of the range the root instruction, correctly rounded.
int SqrtScalar(const double* a, double* y) {
    double x = *a;
    if (__builtin_isinf(x) && x < 0) {
        *y = Keep(x) - x; // inf - inf: NaN with the invalid flag
        return status::kDomain;
    }
    if (__builtin_isnan(x) || __builtin_isinf(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == 0) {
        *y = x;
        return status::kNone;
    }
    if (x < 0) {
        *y = Keep(0.0) / Keep(0.0);
        return status::kDomain;
    }
    *y = __builtin_sqrt(x);
    return status::kNone;
}

// Single: the exponent field all ones gives x + x (+inf, NaN quieted), or NaN with status
// 1 for -inf; +-0 gives itself; negatives NaN with status 1; other x the root from the
// table's seed and Goldschmidt steps in double (root_scalar.h), narrowed once.
int SqrtScalar(const float* a, float* y) {
    float x = *a;
    uint32_t bits = BitsOf(x);
    if ((bits & Format<float>::kExpField) == Format<float>::kExpField) {
        if (x == -__builtin_inff()) {
            *y = Keep(x) - x; // inf - inf: NaN with the invalid flag
            return status::kDomain;
        }
        *y = x + x;
        return status::kNone;
    }
    if (x == 0) {
        *y = x;
        return status::kNone;
    }
    if (x < 0) {
        *y = Keep(0.0f) / Keep(0.0f);
        return status::kDomain;
    }
    RootParts parts = SingleRootSteps(x);
    *y = float(parts.g * TwoTo(parts.q));
    return status::kNone;
}

// Single from the root reciprocal estimate r (special lanes NaN): EP g = x*r; LA one
// Goldschmidt step; HA two. The two steps in single leave up to 1.47 ulp (the rounding
// of g*h near 0.5 alone is a quarter of an ulp of the root, and the first step's
// errors go through the second unmended), so HA runs them in double on the widened x
// and r and rounds once to single: within 0.5 ulp and about 2^-19.
template <Level L>
inline __m128 RootOf(__m128 x, __m128 special) {
    __m128 r = NaNWhere(special, ApproxRecipSqrt(x));
    if constexpr (L == Level::EP) return Mul(x, r);
    if constexpr (L == Level::LA) return Goldschmidt<1>(x, r);
    return Narrow(Goldschmidt<2>(WidenLower(x), WidenLower(r)),
                  Goldschmidt<2>(WidenUpper(x), WidenUpper(r)));
}

// Double. LA and HA: r the estimate of x narrowed to single, widened; g = x*r, e =
// 1 - g*r, y = g + g*e*(c1 + e*(c2 + e*(c3 + e*c4))). HA then y + d*h with h = r*(0.5 +
// 0.25*e), 1/(2 sqrt(x)) to about 2^-21, and d = x - y*y from y's top 26 bits yh and
// the rest yl: (x - yh*yh) - 2*yh*yl is exact (the products have at most 53 bits, the
// first difference cancels), and yl*yl rounds below 2^-100 of x. The correction, an
// ulp or two, is then good to 2^-20 ulp before the one rounding. EP: r the seed on the
// significand, the same g and e, y = g + g*e*(c1 + e*c2), within 2^-32.
template <Level L>
inline __m128d RootOf(__m128d x, __m128d special) {
    const __m128d one = Set<double>(1.0);
    __m128d xx = NaNWhere(special, x);
    if constexpr (L == Level::EP) {
        __m128d r = RootSeed(xx);
        __m128d g = Mul(xx, r);
        __m128d e = Sub(one, Mul(g, r));
        __m128d p = Add(Set<double>(kRootSeries[0]), Mul(e, Set<double>(kRootSeries[1])));
        return Add(g, Mul(Mul(g, e), p));
    } else {
        __m128d r = WidenLower(ApproxRecipSqrt(Narrow(xx, xx)));
        __m128d g = Mul(xx, r);
        __m128d e = Sub(one, Mul(g, r));
        __m128d y = Add(g, Mul(Mul(g, e), Horner(e, kRootSeries)));
        if constexpr (L == Level::LA) return y;
        __m128d yh = And(y, SplatBits<double>(0xFFFFFFFFF8000000ull));
        __m128d yl = Sub(y, yh);
        __m128d d = Sub(Sub(Sub(xx, Mul(yh, yh)), Mul(Add(yh, yh), yl)), Mul(yl, yl));
        __m128d h = Mul(r, Add(Set<double>(0.5), Mul(Set<double>(0.25), e)));
        return Add(y, Mul(d, h));
    }
}

template <class T, Level L>
constexpr Range32 kSqrtWindow = sizeof(T) == 8 && L != Level::EP ? ArithRanges<double>::kNarrowRoot
                                                                 : ArithRanges<T>::kRoot;

template <class Tp, Level L>
struct SqrtBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Sqrt);
    static V Eval(V x, V& special) {
        special = RangeTest(x, kSqrtWindow<T, L>);
        return RootOf<L>(x, special);
    }
    static int Scalar(const T* a, T* y) { return SqrtScalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_ROW_KERNELS(Sqrt, Unary, SqrtBody)
}
