/* Helpers of the scalar routines: bit views of single elements, Keep, which makes the
 * compiler perform an operation that exists for its flag, and the special-value ladder
 * of the functions with a pole at zero and no real value below it. */
#ifndef BRENN_VECMATH_FRAME_SCALAR_H
#define BRENN_VECMATH_FRAME_SCALAR_H

#include <stdint.h>

#include "vecmath/frame/constants.h"
#include "vecmath/frame/status.h"

namespace brenn::vm {

inline uint32_t BitsOf(float x) {
    return __builtin_bit_cast(uint32_t, x);
}
inline uint64_t BitsOf(double x) {
    return __builtin_bit_cast(uint64_t, x);
}
inline float FloatOf(uint32_t b) {
    return __builtin_bit_cast(float, b);
}
inline double DoubleOf(uint64_t b) {
    return __builtin_bit_cast(double, b);
}
// The element of type T whose bits are b.
template <class T>
inline T FromBits(UInt<T> b) {
    return __builtin_bit_cast(T, b);
}

// Forces a value through memory so that the compiler keeps an operation that exists
// for its flag (a division making an infinity, an invalid operation making a NaN).
template <class T>
inline T Keep(T v) {
    volatile T t = v;
    return t;
}

// The ladder of a function with a pole at zero and no real value below it (the
// logarithms, the reciprocal root): NaN comes back quieted; a zero of either sign is
// the pole, whose infinity `atZero(x)` makes by a division (for the divide-by-zero
// flag); negatives, -inf included, give NaN with the invalid flag; +inf gives `atInf`;
// every other x (denormals included) `fn(x)`.
template <class T, class AtZero, class Fn>
inline int PoleAtZeroScalar(T x, T* y, AtZero atZero, T atInf, Fn fn) {
    if (__builtin_isnan(x)) {
        *y = x + x;
        return status::kNone;
    }
    if (x == 0) {
        *y = atZero(x);
        return status::kSingularity;
    }
    if (x < 0) {
        *y = Keep(T(0)) / Keep(T(0));
        return status::kDomain;
    }
    if (__builtin_isinf(x)) {
        *y = atInf;
        return status::kNone;
    }
    *y = fn(x);
    return status::kNone;
}

} // namespace brenn::vm

#endif
