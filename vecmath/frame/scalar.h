/* Helpers of the scalar routines: bit views of single elements, and Keep, which makes
 * the compiler perform an operation that exists for its flag. */
#ifndef BRENN_VECMATH_FRAME_SCALAR_H
#define BRENN_VECMATH_FRAME_SCALAR_H

#include <stdint.h>

#include "vecmath/frame/constants.h"

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

} // namespace brenn::vm

#endif
