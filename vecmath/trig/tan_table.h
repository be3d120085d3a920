/* The table of the double HA tangent (generated into tan_table.cpp by tools/trig):
 * tan(j pi/64) for j = -16..15, row j + 16, as a rounded double and its rounded rest. */
#ifndef BRENN_VECMATH_TRIG_TAN_TABLE_H
#define BRENN_VECMATH_TRIG_TAN_TABLE_H

namespace brenn::vm {

extern const double tanPi64[32][2];

} // namespace brenn::vm

#endif
