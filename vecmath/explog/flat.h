/* BRENN_FLAT: the whole kernel frame inlined into a kernel of the exponential and
 * logarithm family (GCC's flatten), so that the rounds stay in one loop with the
 * constants in registers, not a call per round. Put before a kernel's definition. */
#ifndef BRENN_VECMATH_EXPLOG_FLAT_H
#define BRENN_VECMATH_EXPLOG_FLAT_H

#define BRENN_FLAT __attribute__((flatten))

// The three level kernels of a row and precision, each flattened (ZAR_LEVEL_KERNELS).
#define BRENN_FLAT_LEVEL_KERNELS(t, Fn, Shape, Body)                                               \
    BRENN_FLAT ZAR_KERNEL_OF(t, Fn, EP, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::EP>)         \
        BRENN_FLAT                                                                                 \
        ZAR_KERNEL_OF(t, Fn, LA, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::LA>) BRENN_FLAT     \
        ZAR_KERNEL_OF(t, Fn, HA, Shape, Body<BRENN_ELEM_##t, brenn::vm::Level::HA>)

#endif
