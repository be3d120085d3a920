/* Sqrt, single and double, three levels.
 *
 * sSqrt: EP x*rsqrt(x) (about 11.4 bits); LA one Goldschmidt step on that seed (within
 * 4 ulp); HA the correctly rounded root instruction. dSqrt: the correctly rounded root
 * instruction at every level, each level a kernel of its own: a seed on the significand
 * and the series of (1 - e)^(-1/2) took 6.4 ticks an element at LA and 5.0 at EP,
 * against 2.2 for the instruction. Lanes that are not positive normals go to the scalar routine;
 * their body result is made a quiet NaN first so that they raise no flag of their own.
 *
 * Scalar routine: -inf and negatives give NaN with status 1; -0 gives -0, +inf and NaN
 * themselves (NaN quieted), denormals their correctly rounded root, all with status 0. */
#include "frame/kernels.h"
#include "vecmath/arith/ranges.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"

namespace brenn::vm {
namespace {

template <class T>
int SqrtScalar(const T* a, T* y) {
    T x = *a;
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
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    // Positive (denormal or near the top): the root instruction in double is
    // correctly rounded, and for single its 53 bits round again correctly to 24.
    *y = T(__builtin_sqrt(double(x)));
    return status::kNone;
}

// Single EP and LA from the root reciprocal estimate r (special lanes NaN): x*r, and at
// LA one Goldschmidt step with h = r/2.
template <Level L>
inline __m128 RootOf(__m128 x, __m128 special) {
    __m128 r = NaNWhere(special, ApproxRecipSqrt(x));
    __m128 g = Mul(x, r);
    if constexpr (L == Level::EP) return g;
    __m128 h = Mul(Set<float>(0.5f), r);
    __m128 e = Sub(Set<float>(0.5f), Mul(g, h));
    return Add(g, Mul(g, e));
}

// HA, and every level in double, is the correctly rounded root instruction.
template <class Tp, Level L>
struct SqrtBody {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Sqrt);
    static V Eval(V x, V& special) {
        special = RangeTest(x, ArithRanges<T>::kRoot);
        if constexpr (L == Level::HA || sizeof(T) == 8)
            return Sqrt(NaNWhere(special, x));
        else
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
