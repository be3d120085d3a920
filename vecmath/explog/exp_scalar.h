/* Scalar exponential in double for the special lanes of the exponential family: 2^n
 * times a table value of 2^(j/64) times e^r - 1 by the degree-6 polynomial of the
 * vector core (exp_core.h), with the power of two applied in two multiplications, or
 * for a denormal result in a split that rounds it once. Good to about half an ulp of double over the
 * whole finite range, so that a single result rounded from it is within an ulp and a
 * double within one.
 * Also the limits and statuses every exponential shares. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_SCALAR_H
#define BRENN_VECMATH_EXPLOG_EXP_SCALAR_H

#include <stddef.h>

#include <limits>

#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/scalar.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {

// c[I] + r*(c[I+1] + r*(... + r*c[N-1])) over the coefficients P::kC, as the vector
// Horner rounds it; each coefficient taken as a constant expression, a literal.
template <class P, size_t I = 0>
inline double HornerScalar(double r) {
    constexpr size_t N = sizeof(P::kC) / sizeof(P::kC[0]);
    constexpr double c = P::kC[I];
    if constexpr (I + 1 == N)
        return c;
    else
        return c + r * HornerScalar<P, I + 1>(r);
}

// e^r - 1 on |r| <= ln2/128, the double core's polynomial (relative error 2^-62).
inline double ExpPoly6(double r) {
    return r + r * r * HornerScalar<ExpTail<ExpDegree::Six>>(r);
}

// 2^e for a normal power.
inline double Pow2D(int e) {
    return DoubleOf(uint64_t(e + Format<double>::kBias) << Format<double>::kMantBits);
}

// The scalar routines' own exponential on the table of 64 (double Exp's, and Cosh's and
// Sinh's): x + xl = (64 m + j) ln2/64 + r with ln2/64 in two parts, e^r - 1 =
// r + r^2 (1/2 + r (c3 + ...)) with the routines' coefficients, and
// e^(x + xl) = (hi + lo) 2^m, hi the table's head. The caller applies 2^m.
struct ExpRoutinePoly {
    static constexpr double kC[] = {0.5, 0.1666666666665788, 0.04166666666677052,
                                    0.008333341995140497, 0.0013888870459233254};
};
struct ExpParts64 {
    double hi, lo;
    int m;
};
inline ExpParts64 ExpRoutineParts(double x, double xl = 0.0) {
    using S = ExpStep64;
    constexpr double kShifter = Format<double>::kShifter;
    double t = x * S::kInvStep + kShifter;
    double n = t - kShifter;
    double r = (x - n * S::kStepHi) - n * S::kStepLo + xl;
    int k = int(n), j = k & 63;
    double p = r + r * r * HornerScalar<ExpRoutinePoly>(r);
    return {expTable64[j][0], expTable64[j][0] * p + expTable64[j][1], (k - j) / 64};
}

// e^(x + xl) for x in [-746, 710], the pair x + xl being the argument in two parts
// (xl may be 0); the result rounded once, denormal or not.
inline double ExpScalarCore(double x, double xl = 0.0) {
    using S = ExpStep64;
    constexpr double kShifter = Format<double>::kShifter;
    double t = x * S::kInvStep + kShifter;
    double n = t - kShifter;
    double r = (x - n * S::kStepHi) - n * S::kStepLo + xl;
    int ni = int(n);
    int j = ni & 63, m = (ni - j) / 64;
    double p = ExpPoly6(r);
    double hi = expTable64[j][0], lo = expTable64[j][0] * p + expTable64[j][1];
    if (m > -1022) { // the result normal (at m = -1022 it is denormal where T*(1 + p) < 1)
        int m1 = m / 2;
        return (hi + lo) * Pow2D(m1) * Pow2D(m - m1);
    }
    // A denormal result: the parts scaled by 2^(m + 60), the head rounded onto the
    // denormal grid (2^-1014 there: 1.5*2^-962 added and subtracted), and head and rest
    // scaled by 2^-60 apart, so that the result rounds once.
    double scale = Pow2D(m + 60), hs = hi * scale, ls = lo * scale;
    constexpr double kGrid = 0x1.8p-962;
    double hr = (hs + kGrid) - kGrid;
    return hr * 0x1p-60 + ((hs - hr) + ls) * 0x1p-60;
}

// The shared ending of every exponential's scalar routine in type T: NaN quieted, the
// infinities, overflow above `over`, +0 below `under` (underflow), and the value of
// `core` otherwise, an underflow when it is denormal.
template <class T, class Core>
inline int ExpScalarFinish(T x, T* y, T over, T under, Core core) {
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (__builtin_isinf(x)) {
        *y = x > 0 ? x : T(0);
        return status::kNone;
    }
    if (x > over) {
        volatile T big = std::numeric_limits<T>::max();
        *y = big * big;
        return status::kOverflow;
    }
    if (x < under) {
        volatile T tiny = std::numeric_limits<T>::min();
        *y = tiny * tiny;
        return status::kUnderflow;
    }
    T v = core(x);
    *y = v;
    if (__builtin_isinf(v)) return status::kOverflow; // at the limit itself
    return v < std::numeric_limits<T>::min() ? status::kUnderflow : status::kNone;
}

} // namespace brenn::vm

#endif
