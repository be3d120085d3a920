/* Pow3o2, single and double: x^(3/2) as x * sqrt(x).
 *
 * Single: x times the root from the reciprocal root estimate r, refined as Sqrt does at
 * the level: EP x*(x*r); LA x times one Goldschmidt step, in single; HA two steps, h
 * corrected in between, and the product in double on widened lanes, rounded once (a
 * result beyond the single range becomes infinity with the flag and no status).
 * Zeros and denormals go to the scalar routine, as for Sqrt. Double: the root s by Sqrt's chain
 * from the rsqrtps estimate of x narrowed to single (r widened, g = x*r, e = 1 - g*r,
 * s = g + g*e*(c1 + e*(c2 + e*(c3 + e*c4)))); LA and EP x*s, within about 1.5 ulp; HA
 * then the chain's final correction, (x - s*s)/(2s) from the exact square and a
 * reciprocal estimate, and x*(s + that) with x*s in two parts: within about 0.5 ulp.
 * Special lanes: negatives (NaN, the domain status, the only status this row returns),
 * zeros, +inf, NaN, denormals; in double also x outside [2^-126, 2^127), where the
 * estimate has no seed, done in extended precision, where the result may overflow or be
 * denormal without a status. */
#include "frame/kernels.h"
#include "vecmath/explog/flat.h"
#include "vecmath/arith/goldschmidt.h"
#include "vecmath/arith/seed.h"
#include "vecmath/frame/kernel_frame.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/scalar.h"

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
    // Outside [2^-126, 2^127) (the high word): x narrowed to single is a positive normal,
    // which the estimate takes.
    static constexpr Range32 kSpecial{0xFFFFFFFFu, 0x47F00000u, 0x8FCFFFFFu};
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

// The series of (1 - e)^(-1/2) - 1 over e, Sqrt's chain: c1 to c4.
constexpr double kRootChain[] = {0.49999999999997785, 0.37500000000001366, 0.31250016501874495,
                                 0.27343754675366555};

// M registers at once (M even), each step over all of them before the next: the
// estimates four lanes a time from two registers narrowed together, the chains, then
// the products (and HA's corrections).
template <Level L, int M>
BRENN_VEC void Pow3o2Round(const __m128d* x, __m128d* y) {
    __m128d s[M];
#pragma GCC unroll 8
    for (int k = 0; k < M; k += 2) {
        const __m128 r = ApproxRecipSqrt(Narrow(x[k], x[k + 1]));
        s[k] = WidenLower(r);
        s[k + 1] = WidenUpper(r);
    }
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        const __m128d g = Mul(x[k], s[k]);
        const __m128d e = Sub(Set<double>(1.0), Mul(g, s[k]));
        s[k] = Add(g, Mul(Mul(g, e), Horner(e, kRootChain)));
    }
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        if constexpr (L != Level::HA) {
            y[k] = Mul(x[k], s[k]);
        } else {
            __m128d qh, ql, ph, pl;
            TwoProduct(s[k], s[k], qh, ql);
            const __m128d d = Sub(Sub(x[k], qh), ql); // x - s^2, exact
            const __m128d ds = Mul(Mul(d, Set<double>(0.5)), ReciprocalSeed(s[k]));
            TwoProduct(x[k], s[k], ph, pl);
            y[k] = Add(ph, Add(pl, Mul(x[k], ds)));
        }
    }
}

// Single, x a positive normal. HA's two steps and product run in double and round once:
// in single they leave about 2 ulp (the steps alone up to 1.5, as Sqrt's), beyond the
// level's bound.
template <Level L>
inline __m128 Pow3o2Lanes(__m128 x) {
    const __m128 r = ApproxRecipSqrt(x);
    if constexpr (L == Level::EP) return Mul(x, Mul(x, r));
    if constexpr (L == Level::LA) return Mul(x, Goldschmidt<1>(x, r));
    const __m128d lo = WidenLower(x), hi = WidenUpper(x);
    return Narrow(Mul(lo, Goldschmidt<2>(lo, WidenLower(r))),
                  Mul(hi, Goldschmidt<2>(hi, WidenUpper(r))));
}
template <Level L>
inline __m128d Pow3o2Lanes(__m128d x) {
    const __m128d xs[2] = {x, x};
    __m128d y[2];
    Pow3o2Round<L, 2>(xs, y);
    return y[0];
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
    // Double in rounds of sixteen: eight registers' chains side by side.
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    static BRENN_VEC int EvalWide(const V* x, V* y) {
        if constexpr (sizeof(T) == 8) {
            V xs[8];
            int bits = 0;
#pragma GCC unroll 8
            for (int k = 0; k < 8; ++k) {
                const V special = RangeTest(x[k], Pow3o2Ranges<T>::kSpecial);
                bits |= MaskBits(special) << (2 * k);
                xs[k] = IfThenElse(special, Set<T>(T(1)), x[k]);
            }
            Pow3o2Round<L, 8>(xs, y);
            return bits;
        } else {
            return EvalByRegister<Pow3o2Body>(x, y);
        }
    }
};

} // namespace
} // namespace brenn::vm

using namespace brenn::vm;

extern "C" {
// The single kernels flattened: the rounds stay in the kernel's loop with the constants
// in registers.
BRENN_FLAT_LEVEL_KERNELS(s, Pow3o2, Unary, Pow3o2Body)
ZAR_LEVEL_KERNELS(d, Pow3o2, Unary, Pow3o2Body)
}
