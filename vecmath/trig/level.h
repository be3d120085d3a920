/* The trigonometric bodies take the accuracy level of the frame (vecmath/frame/level.h),
 * brenn::vm::Level, which names them inside brenn::vm::trig as well. */
#ifndef BRENN_VECMATH_TRIG_LEVEL_H
#define BRENN_VECMATH_TRIG_LEVEL_H

#include "vecmath/frame/level.h"

#endif
