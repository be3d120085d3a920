/* The accuracy levels, as template parameters of the bodies that differ by level. */
#ifndef BRENN_VECMATH_FRAME_LEVEL_H
#define BRENN_VECMATH_FRAME_LEVEL_H

namespace brenn::vm {

enum class Level { EP, LA, HA };

} // namespace brenn::vm

#endif
