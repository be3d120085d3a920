/* Kernel names and argument lists, made from the row list.
 *
 * A kernel of row <t><Fn> is named after the slots it fills:
 *   Kernel_<t><Fn>_All   one kernel for LA, HA and EP
 *   Kernel_<t><Fn>_LaHa  LA and HA          (with Kernel_<t><Fn>_EP)
 *   Kernel_<t><Fn>_LaEp  LA and EP          (with Kernel_<t><Fn>_HA)
 *   Kernel_<t><Fn>_LA, _HA, _EP             one a slot
 * A family source defines its kernels under these names (ZAR_KERNEL), and the
 * dispatch table picks them up; a slot whose kernel is not defined stays null.
 * Including this header makes a definition with the wrong argument list a compile
 * error. */
#ifndef BRENN_FRAME_KERNELS_H
#define BRENN_FRAME_KERNELS_H

#include <stdint.h>

#include "brenn_types.h"

#define BRENN_ELEM_s float
#define BRENN_ELEM_d double
#define BRENN_ELEM_c BrennComplex8
#define BRENN_ELEM_z BrennComplex16
#define BRENN_REAL_s float
#define BRENN_REAL_d double
#define BRENN_REAL_c float
#define BRENN_REAL_z double

/* Argument lists by shape; E is the element type, R its real part. */
#define BRENN_SIG_Unary(E, R) (int n, const E* a, E* y)
#define BRENN_SIG_AbsArg(E, R) (int n, const E* a, R* y)
#define BRENN_SIG_Cis(E, R) (int n, const R* a, E* y)
#define BRENN_SIG_Binary(E, R) (int n, const E* a, const E* b, E* y)
#define BRENN_SIG_Powx(E, R) (int n, const E* a, E b, E* y)
#define BRENN_SIG_TwoRes(E, R) (int n, const E* a, E* y, E* z)
#define BRENN_SIG_LinFrac(E, R)                                                                  \
    (int n, const E* a, const E* b, E scaleA, E shiftA, E scaleB, E shiftB, E* y)
#define BRENN_SIG_PackI(E, R) (int64_t n, const E* a, int64_t increment, E* y, int32_t flag)
#define BRENN_SIG_PackM(E, R) (int64_t n, const E* a, const void* mask, E* y, int32_t flag)
#define BRENN_SIG_PackV(E, R) (int64_t n, const E* a, const void* index, E* y, int32_t flag)
#define BRENN_SIG_UnpackI(E, R) (int64_t n, const E* a, E* y, int64_t increment, int32_t flag)
#define BRENN_SIG_UnpackM(E, R) (int64_t n, const E* a, E* y, const void* mask, int32_t flag)
#define BRENN_SIG_UnpackV(E, R) (int64_t n, const E* a, E* y, const void* index, int32_t flag)

#define BRENN_SIG(t, Shape) BRENN_SIG_##Shape(BRENN_ELEM_##t, BRENN_REAL_##t)

/* The name of a kernel: ZAR_KERNEL(sExp, HA), ZAR_KERNEL(sCeil, All). */
#define ZAR_KERNEL(row, level) Kernel_##row##_##level

/* The public error name of a row, as the reporter shows it: "vsExp". */
#define ZAR_ERROR_NAME(row) "v" #row

#define BRENN_DECL_All(t, Fn, Shape) void Kernel_##t##Fn##_All BRENN_SIG(t, Shape);
#define BRENN_DECL_LaHa(t, Fn, Shape)                                                            \
    void Kernel_##t##Fn##_LaHa BRENN_SIG(t, Shape);                                              \
    void Kernel_##t##Fn##_EP BRENN_SIG(t, Shape);
#define BRENN_DECL_LaEp(t, Fn, Shape)                                                            \
    void Kernel_##t##Fn##_LaEp BRENN_SIG(t, Shape);                                              \
    void Kernel_##t##Fn##_HA BRENN_SIG(t, Shape);
#define BRENN_DECL_Own(t, Fn, Shape)                                                             \
    void Kernel_##t##Fn##_LA BRENN_SIG(t, Shape);                                                \
    void Kernel_##t##Fn##_HA BRENN_SIG(t, Shape);                                                \
    void Kernel_##t##Fn##_EP BRENN_SIG(t, Shape);

#ifdef __cplusplus
extern "C" {
#endif
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports) BRENN_DECL_##Share(t, Fn, Shape)
#include "frame/rows.def"
#undef ROW
#ifdef __cplusplus
}
#endif

#endif
