/* LGamma, single and double: ln |Gamma(x)|, one kernel for every level, element by
 * element through the scalar routine, which works in a wider format (gamma_core.h):
 * x87 extended for double, double for single.
 *
 *   (0, 3]: ln(1 + (Gamma(x) - 1)), the difference from gamma_core.h, so that the zeros
 *   at 1 and 2 keep their relative accuracy (1 and 2 themselves give +0);
 *   (3, Stirling point): the logarithm of Gamma(x) by the recurrence;
 *   above: Stirling's form with its correction series. Past the largest finite result
 *   (x beyond 2.55e305, 4.08e36 in single) +inf, status 3.
 *   x < 0: ln(pi / |sin(pi x) Gamma(1 - x)|), reflection; near the zeros of the
 *   function on the negative axis the local forms of lgamma_zeros.h take over.
 *   Zero and the negative integers are poles: +inf, status 2. Both infinities give +inf;
 *   NaN comes back quieted.
 * The kernel runs the x87 unit at 64-bit precision, rounding to nearest, and puts the
 * caller's control word back when it leaves; the MXCSR is not touched. */
#include "frame/kernels.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/gamma/each.h"
#include "vecmath/gamma/gamma_core.h"
#include "vecmath/gamma/lgamma_zeros.h"

namespace brenn::vm {
namespace {

template <class W>
W LnGammaPositive(W x) {
    if (x <= 3) return gamma::Log1p(gamma::GammaMinusOne(x));
    if (x < gamma::GammaData<W>::kStirlingFrom) return gamma::Log(gamma::GammaBelowStirling(x));
    return gamma::LnGammaStirling(x);
}

// Near a zero x0 of the negative axis the reflection's result is a small difference of
// logarithms near 1, so its rounding errors, of the working precision in absolute
// terms, would swamp the result. There, with t = x - x0 carried in two parts and d0 the
// zero's distance from its pole, ln|Gamma(x)| = t G(t) - ln(1 + t/d0), both terms of
// t's relative accuracy. Returns false when x lies in no zero's window.
inline bool NearZero(double x, long double& r) {
    int n = static_cast<int>(-x);
    if (n < 2 || n > 16) return false;
    for (int k = 2 * (n - 2); k < 2 * (n - 2) + 2; ++k) {
        const gamma::LGammaZero& z = gamma::kLGammaZeros[k];
        double dt = x - z.x0; // exact: x is within a factor of 2 of x0
        if (dt >= z.window || dt <= -z.window) continue;
        long double t = static_cast<long double>(dt) - z.x0lo;
        long double g = z.g[z.terms - 1];
        for (int j = z.terms - 1; j-- > 0;)
            g = g * t + z.g[j];
        r = t * g - gamma::Log1p(t / z.d0);
        return true;
    }
    return false;
}

template <class T, class W>
W LnGammaNegative(T x) {
    using D = gamma::GammaData<W>;
    bool negative;
    W s = gamma::SinPi<T, W>(x, negative);
    W y = 1 - W(x);
    if (y < D::kStirlingFrom) return gamma::Log(D::kPi / (s * gamma::GammaBelowStirling(y)));
    return gamma::Log(D::kPi / s) - gamma::LnGammaStirling(y);
}

template <class T>
int LGammaOf(T x, T* y) {
    using W = gamma::Wide<T>;
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (__builtin_isinf(x)) {
        *y = x * x;
        return status::kNone;
    }
    if (x <= 0 && x == __builtin_rint(x)) {
        *y = Keep(T(1)) / Keep(T(0));
        return status::kSingularity;
    }
    if (x == 1 || x == 2) {
        *y = 0;
        return status::kNone;
    }
    W r;
    long double near;
    if (x > 0) {
        r = LnGammaPositive(W(x));
    } else if (NearZero(x, near)) {
        r = static_cast<W>(near);
    } else {
        r = LnGammaNegative<T, W>(x);
    }
    T v = static_cast<T>(r);
    *y = v;
    return __builtin_isinf(v) ? status::kOverflow : status::kNone;
}

template <class Tp>
struct LGammaBody {
    using T = Tp;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, LGamma);
    static constexpr CsrRule kCsr = CsrRule::Untouched;
    static constexpr X87Rule kX87 = X87Rule::Extended;
    static int Scalar(const T* a, T* y) { return LGammaOf(*a, y); }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_EACH_KERNEL(s, LGamma, All, brenn::vm::LGammaBody)
ZAR_EACH_KERNEL(d, LGamma, All, brenn::vm::LGammaBody)
}
