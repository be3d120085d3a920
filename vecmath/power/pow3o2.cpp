/* Pow3o2, single and double: x^(3/2) as x * sqrt(x).
 *
 * Single: x times the root from the reciprocal root estimate r, refined as Sqrt does at
 * the level: EP x*(x*r); LA x times one Goldschmidt step, in single; HA two steps, h
 * corrected in between, and the product in double on widened lanes, rounded once (a
 * result beyond the single range becomes infinity with the flag and no status).
 * Zeros and denormals go to the scalar routine, as for Sqrt. Double HA: s = sqrt(x) rounded, its
 * error (x - s*s)/(2s) from the exact square and a reciprocal estimate, and
 * x*(s + that) with x*s in two parts: within about 0.5 ulp. Double LA and EP: x*sqrt(x)
 * rounded twice, within about 1 ulp.
 * Special lanes: negatives (NaN, the domain status, the only status this row returns),
 * -0 (+0), +inf, NaN; in double also x outside [2^-600, 2^600), done in extended
 * precision, where the result may overflow or be denormal without a status. */
#include "frame/kernels.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/power/root_core.h"

namespace brenn::vm {
namespace {

template <class T>
struct Pow3o2Ranges;
template <>
struct Pow3o2Ranges<float> {
    // Positive normals pass, but for the last few below the largest finite (Sqrt's
    // window); zeros, denormals, negatives, +inf and NaN are special.
    static constexpr Range32 kSpecial{0xFFFFFFFFu, 0x7F800000u, 0xFEFFF000u};
};
template <>
struct Pow3o2Ranges<double> {
    // Outside [2^-600, 2^600): the exact products of HA have room, the result is normal.
    static constexpr Range64 kSpecial{0xFFFFFFFFFFFFFFFFull, 0x6590000000000000ull,
                                      0xCAFFFFFFFFFFFFFFull};
};

template <class T>
int Pow3o2Scalar(const T* a, T* y) {
    const T x = *a;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x < T(0)) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    // -0 gives +0; the rest in extended precision, rounded once more to T.
    const long double v = (long double)x;
    *y = T(v * __builtin_sqrtl(v));
    return status::kNone;
}

template <Level L>
inline __m128d Pow3o2Of(__m128d x) {
    __m128d s = Sqrt(x);
    if constexpr (L != Level::HA) return Mul(x, s);
    __m128d qh, ql, ph, pl;
    TwoProduct(s, s, qh, ql);
    __m128d d = Sub(Sub(x, qh), ql); // x - s^2, exact
    __m128d ds = Mul(Mul(d, Set<double>(0.5)), ReciprocalSeed(s));
    TwoProduct(x, s, ph, pl);
    return Add(ph, Add(pl, Mul(x, ds)));
}

// Single, x a positive normal. HA's two steps and product run in double and round once:
// in single they leave about 2 ulp (the steps alone up to 1.5, as Sqrt's), beyond the
// level's bound.
template <Level L>
inline __m128 Pow3o2Lanes(__m128 x) {
    const __m128 r = ApproxRecipSqrt(x);
    if constexpr (L == Level::EP) return Mul(x, Mul(x, r));
    if constexpr (L == Level::LA) {
        const __m128 half = Set<float>(0.5f);
        const __m128 g = Mul(x, r);
        const __m128 e = Sub(half, Mul(g, Mul(half, r)));
        return Mul(x, Add(g, Mul(g, e)));
    }
    const __m128d lo = WidenLower(x), hi = WidenUpper(x);
    return Narrow(Mul(lo, GoldschmidtTwice(lo, WidenLower(r))),
                  Mul(hi, GoldschmidtTwice(hi, WidenUpper(r))));
}
template <Level L>
inline __m128d Pow3o2Lanes(__m128d x) {
    return Pow3o2Of<L>(x);
}

template <class Tp, Level L>
struct Pow3o2Body {
    using T = Tp;
    using V = Vec<T>;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, Pow3o2);
    static V Eval(V x, V& special) {
        special = RangeTest(x, Pow3o2Ranges<T>::kSpecial);
        return Pow3o2Lanes<L>(IfThenElse(special, Set<T>(T(1)), x));
    }
    static int Scalar(const T* a, T* y) { return Pow3o2Scalar(a, y); }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
ZAR_ROW_KERNELS(Pow3o2, Unary, Pow3o2Body)
}
