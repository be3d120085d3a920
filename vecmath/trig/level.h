/* Accuracy levels as template parameters of the trigonometric bodies. */
#ifndef BRENN_VECMATH_TRIG_LEVEL_H
#define BRENN_VECMATH_TRIG_LEVEL_H

namespace brenn::vm::trig {

enum class Level { EP, LA, HA };

} // namespace brenn::vm::trig

#endif
