/* TGamma, single and double: one kernel for every level, element by element through
 * the scalar routine, which works in a wider format (gamma_core.h): x87 extended for
 * double, double for single.
 *
 *   |x| below 2^-1000 in double: 1/x.
 *   x > 0: Gamma(x) from [1, 2] by the recurrence below the Stirling point, by
 *   exp(ln Gamma) above it; above 171.62437695630274 (35.0401001 in single) +inf,
 *   status 3; a denormal x whose 1/x passes the range overflows the same way.
 *   x < 0: by reflection; a negative integer (and -inf) is a domain error, NaN with
 *   status 1; a result below the smallest normal is an underflow, status 4 (every x at
 *   or below -185, -50 in single, whose results are zeros).
 *   +-0: the infinity of 1/x, status 2. +inf stays, NaN comes back quieted.
 * The kernel runs the x87 unit at 64-bit precision, rounding to nearest, and puts the
 * caller's control word back when it leaves; the MXCSR follows the common entry rule. */
#include <limits>

#include "frame/kernels.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/gamma/each.h"
#include "vecmath/gamma/gamma_core.h"

namespace brenn::vm {
namespace {

template <class T>
struct TGammaLimits;
template <>
struct TGammaLimits<double> {
    static constexpr double kOverflow = 171.62437695630274;
    static constexpr double kUnderflow = -185.0;
};
template <>
struct TGammaLimits<float> {
    static constexpr float kOverflow = 35.0401001f;
    static constexpr float kUnderflow = -50.0f;
};

// Each path is a function of its own, called with the argument and returning the
// result in registers: in one routine holding them all, the x87 register stack is
// spilled at the joins as 80-bit stores and reloads, which cost more than the calls.
template <class T>
[[gnu::noinline]] T GammaBelow(T x) {
    return static_cast<T>(gamma::GammaBelowStirling(gamma::Wide<T>(x)));
}
template <class T>
[[gnu::noinline]] T GammaAbove(T x) {
    if constexpr (sizeof(T) == 8)
        return static_cast<T>(gamma::GammaStirlingOfDouble(x));
    else
        return static_cast<T>(gamma::GammaStirling(gamma::Wide<T>(x)));
}
// pi / (sin(pi x) Gamma(1 - x)) for x < 0 not an integer, Gamma(1 - x) by the recurrence
// (Near, 1 - x below the Stirling point) or Stirling's form (Far).
template <class T, bool kFar>
[[gnu::noinline]] T GammaReflect(T x) {
    using W = gamma::Wide<T>;
    bool negative;
    W s = gamma::SinPi<T, W>(x, negative);
    W y = 1 - W(x);
    W g = gamma::Pi(W()) / (s * (kFar ? gamma::GammaStirling(y) : gamma::GammaFromOne(y)));
    return static_cast<T>(negative ? -g : g);
}

template <class T>
int TGammaOf(T x, T* y) {
    using W = gamma::Wide<T>;
    using Lim = TGammaLimits<T>;
    constexpr T kHuge = std::numeric_limits<T>::max();
    constexpr T kTiny = std::numeric_limits<T>::min();
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == 0) {
        *y = Keep(T(1)) / x;
        return status::kSingularity;
    }
    // Below 2^-1000 (9.332636185032189e-302, 1/1.0715086071862673e+301) Gamma(x) is 1/x
    // to the last bit of a double; from the denormals on 1/x overflows.
    if (sizeof(T) == 8 && __builtin_fabs(x) < T(0x1p-1000)) {
        *y = 1 / x;
        return __builtin_isinf(*y) ? status::kOverflow : status::kNone;
    }
    if (x > 0) {
        if (x > Lim::kOverflow) {
            *y = __builtin_isinf(x) ? x : Keep(kHuge) * T(2);
            return __builtin_isinf(x) ? status::kNone : status::kOverflow;
        }
        T r = x < gamma::GammaData<W>::kStirlingFrom ? GammaBelow(x) : GammaAbove(x);
        *y = r;
        return __builtin_isinf(r) ? status::kOverflow : status::kNone;
    }
    if (x == __builtin_rint(x)) { // negative integers and -inf
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    bool negative;
    if (x <= Lim::kUnderflow) {
        gamma::SinPi<T, W>(x, negative);
        T z = Keep(kTiny) * kTiny;
        *y = negative ? -z : z;
        return status::kUnderflow;
    }
    // near the Stirling point 1 - x is exact
    T r = 1 - x < gamma::GammaData<W>::kStirlingFrom ? GammaReflect<T, false>(x)
                                                     : GammaReflect<T, true>(x);
    *y = r;
    if (__builtin_isinf(r)) return status::kOverflow; // -x denormal: 1/x beyond the range
    return (r < kTiny && r > -kTiny) ? status::kUnderflow : status::kNone;
}

template <class Tp>
struct TGammaBody {
    using T = Tp;
    static constexpr const char* kName = ZAR_ERROR_NAME_OF(T, TGamma);
    static constexpr X87Rule kX87 = X87Rule::Extended;
    static int Scalar(const T* a, T* y) { return TGammaOf(*a, y); }
    // Single elements sorted by their path (each.h); below 32 in magnitude none but the
    // poles and those below 2^-100 (1/x near the overflow) reports.
    static constexpr int kBuckets = sizeof(T) == 4 ? 65 : 0;
    static int Bucket(T x) { return FloorBucket<T, 32>(x, !(__builtin_fabs(x) >= T(0x1p-100))); }
};

} // namespace
} // namespace brenn::vm

extern "C" {
ZAR_EACH_KERNEL(s, TGamma, All, brenn::vm::TGammaBody)
ZAR_EACH_KERNEL(d, TGamma, All, brenn::vm::TGammaBody)
}
