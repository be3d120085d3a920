/* Scalar exponential in double for the special lanes of the exponential family: 2^n
 * times a table value of 2^(j/64) times e^r - 1 by a degree-6 polynomial, with the
 * power of two applied in two multiplications so that a denormal result is rounded once.
 * Good to about half an ulp of double over the whole finite range, so that a single
 * result rounded from it is within an ulp and a double within one.
 * Also the limits and statuses every exponential shares. */
#ifndef BRENN_VECMATH_EXPLOG_EXP_SCALAR_H
#define BRENN_VECMATH_EXPLOG_EXP_SCALAR_H

#include <float.h>

#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/simd.h"

namespace brenn::vm {

enum : int {
    kStatusOk = 0,
    kStatusDomain = 1,
    kStatusPole = 2,
    kStatusOverflow = 3,
    kStatusUnderflow = 4
};

// e^r - 1 on |r| <= ln2/128, the double core's polynomial (relative error 2^-62).
inline double ExpPoly6(double r) {
    // Fitted by tools/explog/expm1_double.sollya (degree 6).
    constexpr double c2 = 0.5, c3 = 0.1666666666665931606505779427607194520533084869384765625,
                     c4 = 4.1666666666663722262686775366091751493513584136962890625e-2,
                     c5 = 8.33334143449560027505640391609631478786468505859375e-3,
                     c6 = 1.3888896963737515539982769752214153413660824298858642578125e-3;
    return r + r * r * (c2 + r * (c3 + r * (c4 + r * (c5 + r * c6))));
}

// 2^e for a normal power.
inline double Pow2D(int e) {
    return DoubleOf(uint64_t(e + 1023) << 52);
}

// e^(x + xl) for x in [-746, 710], the pair x + xl being the argument in two parts
// (xl may be 0); the result rounded once, denormal or not.
inline double ExpScalarCore(double x, double xl = 0.0) {
    constexpr double kInvLn2x64 = 92.332482616893657, kShifter = 6755399441055744.0;
    constexpr double kLn2Hi = 0.010830424696223417, kLn2Lo = 2.5728046223276691e-14;
    double t = x * kInvLn2x64 + kShifter;
    double n = t - kShifter;
    double r = (x - n * kLn2Hi) - n * kLn2Lo + xl;
    int ni = int(n);
    int j = ni & 63, m = (ni - j) / 64;
    double p = ExpPoly6(r);
    double y = expTable64[j][0] + (expTable64[j][0] * p + expTable64[j][1]);
    int m1 = m / 2;
    return y * Pow2D(m1) * Pow2D(m - m1);
}

// The shared ending of every exponential's scalar routine in type T: NaN quieted, the
// infinities, overflow above `over` (status 3), +0 below `under` (status 4), and the
// value of `core` otherwise, status 4 when it is denormal.
template <class T, class Core>
inline int ExpScalarFinish(T x, T* y, T over, T under, Core core) {
    if (__builtin_isnan(x)) {
        *y = x + x;
        return kStatusOk;
    }
    if (__builtin_isinf(x)) {
        *y = x > 0 ? x : T(0);
        return kStatusOk;
    }
    if (x > over) {
        volatile T big = sizeof(T) == 4 ? T(FLT_MAX) : T(DBL_MAX);
        *y = big * big;
        return kStatusOverflow;
    }
    if (x < under) {
        volatile T tiny = sizeof(T) == 4 ? T(FLT_MIN) : T(DBL_MIN);
        *y = tiny * tiny;
        return kStatusUnderflow;
    }
    T v = core(x);
    *y = v;
    if (__builtin_isinf(v)) return kStatusOverflow; // at the limit itself
    constexpr T kMinNormal = sizeof(T) == 4 ? T(FLT_MIN) : T(DBL_MIN);
    return v < kMinNormal ? kStatusUnderflow : kStatusOk;
}

} // namespace brenn::vm

#endif
