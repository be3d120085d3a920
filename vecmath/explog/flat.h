/* BRENN_FLAT: the whole kernel frame inlined into a kernel of the exponential and
 * logarithm family (GCC's flatten), so that the rounds stay in one loop with the
 * constants in registers, not a call per round. Put before a kernel's definition. */
#ifndef BRENN_VECMATH_EXPLOG_FLAT_H
#define BRENN_VECMATH_EXPLOG_FLAT_H

#define BRENN_FLAT __attribute__((flatten))

#endif
