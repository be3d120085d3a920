/* Vector mathematics: mode word, status, callback and the entry points of the 232
 * element-wise functions.
 *
 * Every setting here is per thread. The mode word holds the accuracy level, the
 * error mode, the denormal handling and the trap set; a thread's first use reads
 * the start-up value from the environment variable ZAR_SETTINGS, a comma-separated
 * list of tokens (ZAR_LA, ZAR_HA, ZAR_EP, ZAR_ERRMODE_IGNORE, ZAR_ERRMODE_ERRNO,
 * ZAR_ERRMODE_STDERR, ZAR_ERRMODE_EXCEPT, ZAR_ERRMODE_CALLBACK, ZAR_ERRMODE_NOERR,
 * ZAR_ERRMODE_DEFAULT, ZAR_TRAP_INVALID, ZAR_TRAP_DIVBYZERO, ZAR_TRAP_OVERFLOW,
 * ZAR_TRAP_UNDERFLOW, ...). A bad value gives the default word 0x1A02.
 *
 * Kernels do not stop on a bad element: they store the IEEE result and report the
 * element (status 1 domain, 2 singularity, 3 overflow, 4 underflow) as the error
 * mode says: status word, callback, errno (33 domain, 34 range), a message on
 * standard error, an x87 flag and, with a trap bit, SIGFPE.
 *
 * The entry points of a row (see brenn_vecmath_rows.h) fix the accuracy level by
 * their name; the row's _ttab view, indexed by brenn_zar_kernel_GetTTableIndex(),
 * follows the thread's mode. A null slot means the kernel is not in this build. */
#ifndef BRENN_VECMATH_H
#define BRENN_VECMATH_H

#include <stdint.h>

#include "brenn_types.h"
#include "brenn_vecmath_rows.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Mode word fields. */
#define BRENN_MODE_LA 0x1u
#define BRENN_MODE_HA 0x2u
#define BRENN_MODE_EP 0x3u
#define BRENN_MODE_ACCURACY_MASK 0xFu
#define BRENN_MODE_FLOAT_CONSISTENT 0x10u
#define BRENN_MODE_DOUBLE_CONSISTENT 0x20u
#define BRENN_MODE_RESTORE 0x30u
#define BRENN_MODE_ERRMODE_IGNORE 0x100u
#define BRENN_MODE_ERRMODE_ERRNO 0x200u
#define BRENN_MODE_ERRMODE_STDERR 0x400u
#define BRENN_MODE_ERRMODE_EXCEPT 0x800u
#define BRENN_MODE_ERRMODE_CALLBACK 0x1000u
#define BRENN_MODE_ERRMODE_NOERR 0x2000u
#define BRENN_MODE_ERRMODE_DEFAULT 0x1A00u
#define BRENN_MODE_ERRMODE_MASK 0xFF00u
#define BRENN_MODE_FTZDAZ_ON 0x280000u
#define BRENN_MODE_FTZDAZ_OFF 0x140000u
#define BRENN_MODE_FTZDAZ_MASK 0x3C0000u
#define BRENN_MODE_TRAP_INVALID 0x1000000u
#define BRENN_MODE_TRAP_DIVBYZERO 0x2000000u
#define BRENN_MODE_TRAP_OVERFLOW 0x4000000u
#define BRENN_MODE_TRAP_UNDERFLOW 0x8000000u
#define BRENN_MODE_TRAP_MASK 0xF000000u
#define BRENN_MODE_DEFAULT 0x1A02u

/* The processor branch of this library: 7 for 128-bit SIMD up to SSE4.2. */
int dll_cpu_version(void);

/* The thread's mode word, initialised on first use. */
uint32_t brenn_zar_kernel_GetMode(void);
/* Replaces each field (accuracy, error mode, denormal, traps) that is non-zero in
 * `mode`; zero fields and the precision bits are left. Returns the previous word. */
uint32_t brenn_zar_kernel_SetMode(uint32_t mode);
/* (accuracy - 1): the slot of the thread's level in a row; not range-checked. */
int32_t brenn_zar_kernel_GetTTableIndex(void);
int32_t brenn_zar_kernel_GetTTableIndexM(uint32_t unused, uint32_t mode);
uint32_t _zarGetMode(void);
uint32_t _zarSetMode(uint32_t mode);

int32_t brenn_zar_kernel_GetErrStatus(void);
int32_t brenn_zar_kernel_SetErrStatus(int32_t status);   /* returns the previous status */
int32_t brenn_zar_kernel_ClearErrStatus(void);           /* returns the previous status */
/* Setting a callback turns the callback bit of the error mode on; null turns it off. */
ErrorCallback brenn_zar_kernel_SetErrorCallBack(ErrorCallback callback);
ErrorCallback brenn_zar_kernel_GetErrorCallBack(void);
ErrorCallback brenn_zar_kernel_ClearErrorCallBack(void);
/* Start of the caller's whole input vector, so that reported indices count from it
 * when a kernel runs on a block. Set it (if only to null) before relying on indices. */
const void* brenn_zar_kernel_SetInterfInputVectorPointer(const void* pointer);

int32_t _zarGetErrStatus(void);
int32_t _zarSetErrStatus(int32_t status);
int32_t _zarClearErrStatus(void);
ErrorCallback _zarGetErrorCallBack(void);
ErrorCallback _zarSetErrorCallBack(ErrorCallback callback);
ErrorCallback _zarClearErrorCallBack(void);
const void* _zarSetInterfInputVectorPointer(const void* pointer);

#ifdef __cplusplus
}
#endif

#endif
