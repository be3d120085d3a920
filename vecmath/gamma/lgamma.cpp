/* LGamma, single and double: ln |Gamma(x)|, one kernel for every level, element by
 * element through the scalar routine, which works in a wider format (gamma_core.h):
 * x87 extended for double, double for single.
 *
 *   (0, 8): the interval [0.75, 2.25] by its expansions near 1, near the minimum at
 *   1.46163214... and near 2 (1 and 2 themselves give +0); below it one step of the
 *   recurrence up, above it the recurrence down with its product under one logarithm;
 *   from 8 on: Stirling's form (x - 1/2) ln x - x + ln sqrt(2 pi) + 1/(12x) -
 *   1/(360x^3) + ..., its correction series in double. Past the largest finite result
 *   (x beyond 2.55e305, 4.08e36 in single) +inf, status 3.
 *   x < 0: ln(pi / (|x| |sin(pi x)|)) - ln Gamma(|x|), reflection, the sine in the wider
 *   format (double: ln(sin(pi r) / (pi r)) by its own polynomial, r = x - rint(x)); near the zeros of the function on the negative axis the local forms of
 *   lgamma_zeros.h take over. From 2^52 (2^23) in magnitude every x is an integer.
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

// Each path is a function of its own, called with the argument and returning the
// result in registers: in one routine holding them all, the x87 register stack is
// spilled at the joins as 80-bit stores and reloads, which cost more than the calls.
template <class T>
[[gnu::noinline]] T LnGammaSmall(T x) {
    using W = gamma::Wide<T>;
    return static_cast<T>(gamma::LnGammaBelowStirling(W(x)));
}
template <class T>
[[gnu::noinline]] T LnGammaLarge(T x) {
    using W = gamma::Wide<T>;
    return static_cast<T>(gamma::LnGammaStirlingForm(W(x), gamma::StirlingSeriesDouble(W(x))));
}

// Near a zero x0 of the negative axis the reflection's result is a small difference of
// logarithms near 1, so its rounding errors, of the working precision in absolute
// terms, would swamp the result. There, with t = x - x0 carried in two parts and d0 the
// zero's distance from its pole, ln|Gamma(x)| = t G(t) - ln(1 + t/d0), both terms of
// t's relative accuracy. Returns false when x lies in no zero's window.
[[gnu::noinline]] bool NearZero(double x, double& r) {
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
        r = static_cast<double>(t * g - gamma::Log1p(t / z.d0));
        return true;
    }
    return false;
}

// x < 0 by reflection, ln(pi / (|x| |sin(pi x)|)) - ln Gamma(|x|), with ln Gamma(|x|)
// as on the positive axis: below the Stirling point (Near) or by Stirling's form (Far).
template <class T>
[[gnu::noinline]] T LnGammaReflectNear(T x) {
    using W = gamma::Wide<T>;
    bool negative;
    W s = gamma::SinPi<T, W>(x, negative);
    W ax = -W(x);
    return static_cast<T>(gamma::Log(gamma::Pi(W()) / (ax * s)) - gamma::LnGammaBelowStirling(ax));
}
template <class T>
[[gnu::noinline]] T LnGammaReflectFar(T x) {
    using W = gamma::Wide<T>;
    bool negative;
    W s = gamma::SinPi<T, W>(x, negative);
    W ax = -W(x);
    return static_cast<T>(gamma::Log(gamma::Pi(W()) / (ax * s)) -
                          gamma::LnGammaStirlingForm(ax, gamma::StirlingSeriesDouble(ax)));
}

// The double row from its double argument (gamma_core.h's steps of that row): below the
// Stirling point the interval's expansions with the recurrence's product under one
// logarithm; the reflection's quotient as -ln(|x| |sin(pi x)| / pi) = -ln(|x| |r|) -
// ln(sin(pi r) / (pi r)), r = x - rint(x), the second a polynomial in r^2 beside the
// logarithm (no division, and no logarithm waiting on the sine), with ln Gamma(|x|)'s
// own logarithm (of |x| below 0.75, of the recurrence's product above 2.25) under the
// first.
[[gnu::noinline]] double LnGammaSmallD(double x) {
    if (x < 0.75)
        return static_cast<double>(gamma::LnGammaInterval(x + 1.0L, x + 1.0) - gamma::ext::LogOfDouble(x));
    if (x <= 2.25) return static_cast<double>(gamma::LnGammaInterval(static_cast<long double>(x), x));
    double z, pd;
    long double p = gamma::RecurrenceDown(x, z, pd);
    return static_cast<double>(gamma::LnGammaInterval(static_cast<long double>(z), z) +
                               gamma::ext::LogBeside(p, pd));
}
[[gnu::noinline]] double LnGammaLargeD(double x) {
    return static_cast<double>(gamma::LnGammaStirlingOfDouble(x));
}
[[gnu::noinline]] double LnGammaReflectNearD(double x) {
    double ax = -x, ar;
    long double l = gamma::LnSinPiRatio<8>(x, ar);
    if (ax < 0.75)
        return static_cast<double>(-gamma::ext::LogOfDouble(ar) -
                                   (l + gamma::LnGammaInterval(ax + 1.0L, ax + 1.0)));
    if (ax <= 2.25)
        return static_cast<double>(-gamma::ext::LogBeside(static_cast<long double>(ax) * ar, ax * ar) -
                                   (l + gamma::LnGammaInterval(static_cast<long double>(ax), ax)));
    double z, pd;
    long double p = gamma::RecurrenceDown(ax, z, pd);
    return static_cast<double>(-gamma::ext::LogBeside(p * ax * ar, pd * ax * ar) -
                               (l + gamma::LnGammaInterval(static_cast<long double>(z), z)));
}
// From the Stirling point: ln |x| of the reflection joins Stirling's (x - 1/2) ln x as
// (|x| + 1/2) ln |x|, and the reflection's logarithm is of |r|, a double.
[[gnu::noinline]] double LnGammaReflectFarD(double x) {
    double ax = -x, ar;
    long double l = gamma::LnSinPiRatio<4>(x, ar);
    double r = 1 / ax;
    double s = r * gamma::Poly(r * r, gamma::GammaData<long double>::kStirlingD);
    long double w = ax;
    long double stirling = ((w + 0.5L) * gamma::ext::LogOfDouble(ax) - w) + (gamma::HalfLn2Pi(0.0L) + s);
    return static_cast<double>(-(gamma::ext::LogOfDouble(ar) + l) - stirling);
}

template <class T>
int LGammaOf(T x, T* y) {
    using D = gamma::GammaData<gamma::Wide<T>>;
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
    T v;
    double near;
    if constexpr (sizeof(T) == sizeof(double)) {
        if (x > 0) {
            v = x < D::kLnStirlingFrom ? LnGammaSmallD(x) : LnGammaLargeD(x);
        } else if (NearZero(x, near)) {
            v = near;
        } else {
            v = -x < D::kLnStirlingFrom ? LnGammaReflectNearD(x) : LnGammaReflectFarD(x);
        }
    } else if (x > 0) {
        if (x < D::kLnStirlingFrom)
            v = LnGammaSmall(x);
        else
            v = LnGammaLarge(x);
    } else if (NearZero(x, near)) {
        v = static_cast<T>(near);
    } else if (-x < D::kLnStirlingFrom) {
        v = LnGammaReflectNear(x);
    } else {
        v = LnGammaReflectFar(x);
    }
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
    // Elements sorted by their path (each.h), by half steps a quarter off the integers:
    // the ends of the paths (0.75, 1.25, 1.75, 2.25 and the recurrence's 3.25, 4.25, ...,
    // on either axis) fall between the buckets. The last holds the poles, NaN and |x| from
    // 16 on; none but the poles reports.
    static constexpr int kBuckets = 65;
    static int Bucket(T x) {
        T f = __builtin_floor(2 * x + T(0.5));
        bool last = ((x <= 0) & (x == __builtin_floor(x))) | !(__builtin_fabs(x) < T(16));
        return last ? 64 : static_cast<int>(f) + 32;
    }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_EACH_KERNEL(s, LGamma, All, brenn::vm::LGammaBody)
ZAR_EACH_KERNEL(d, LGamma, All, brenn::vm::LGammaBody)
}
