/* The trigonometric tables (generated into tables.cpp by tools/trig): windows of the
 * binary expansion of 1/pi by biased exponent, sin and cos at multiples of pi/64 in two
 * parts, and pi/64 in three parts. */
#ifndef BRENN_VECMATH_TRIG_TABLES_H
#define BRENN_VECMATH_TRIG_TABLES_H

#include <stdint.h>

namespace brenn::vm {

// 96 bits of 1/pi a row for single arguments (row offset = exponent * 12 bytes), 192
// bits a row for double ones; most significant word first.
extern const uint32_t twoOverPiBits[256][3];
extern const uint32_t twoOverPiBits64[2048][6];
// sin(j pi/64) high and low, cos(j pi/64) high and low, j = 0..127.
extern const double sinCosPi64[128][4];
// The same rows with cos(j pi/64)'s low part taken beyond its first 26 significant bits:
// sin high and low, cos high, (cos high - its 26-bit head) + cos low, rounded.
extern const double sinCosPi64Split[128][4];
// pi/64 = [0] + [1] + [2] + [3]; the first three have 24 significant bits.
extern const double kPi64Parts[4];
// pi/64 = [0] + [1] + [2] in x87 extended; the first two have 35 significant bits.
extern const long double kPi64PartsX[3];

} // namespace brenn::vm

#endif
