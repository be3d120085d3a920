/** @file brenn_vecmath.h
 * Vector mathematics: mode word, status, callback and the entry points of the 232
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

/** @name Mode word fields
 * The four fields of a thread's mode word: accuracy (mask BRENN_MODE_ACCURACY_MASK),
 * error mode (BRENN_MODE_ERRMODE_MASK, bits combine), denormal handling
 * (BRENN_MODE_FTZDAZ_MASK) and traps (BRENN_MODE_TRAP_MASK, bits combine).
 * @{ */
#define BRENN_MODE_LA 0x1u                   /**< low accuracy: row slot 0 */
#define BRENN_MODE_HA 0x2u                   /**< high accuracy: row slot 1 */
#define BRENN_MODE_EP 0x3u                   /**< enhanced performance: row slot 2 */
#define BRENN_MODE_ACCURACY_MASK 0xFu        /**< the accuracy field */
#define BRENN_MODE_FLOAT_CONSISTENT 0x10u    /**< stored and reported only */
#define BRENN_MODE_DOUBLE_CONSISTENT 0x20u   /**< stored and reported only */
#define BRENN_MODE_RESTORE 0x30u             /**< stored and reported only */
#define BRENN_MODE_ERRMODE_IGNORE 0x100u     /**< reported elements set the status only */
#define BRENN_MODE_ERRMODE_ERRNO 0x200u      /**< errno: 33 domain, 34 range */
#define BRENN_MODE_ERRMODE_STDERR 0x400u     /**< a message on standard error */
#define BRENN_MODE_ERRMODE_EXCEPT 0x800u     /**< the x87 flag; SIGFPE with a trap bit */
#define BRENN_MODE_ERRMODE_CALLBACK 0x1000u  /**< the thread's error callback */
#define BRENN_MODE_ERRMODE_NOERR 0x2000u     /**< kernels report nothing */
#define BRENN_MODE_ERRMODE_DEFAULT 0x1A00u   /**< errno, exception and callback */
#define BRENN_MODE_ERRMODE_MASK 0xFF00u      /**< the error-mode field */
#define BRENN_MODE_FTZDAZ_ON 0x280000u       /**< kernels flush denormals (FTZ and DAZ) */
#define BRENN_MODE_FTZDAZ_OFF 0x140000u      /**< kernels keep denormals */
#define BRENN_MODE_FTZDAZ_MASK 0x3C0000u     /**< the denormal field */
#define BRENN_MODE_TRAP_INVALID 0x1000000u   /**< unmask the invalid exception */
#define BRENN_MODE_TRAP_DIVBYZERO 0x2000000u /**< unmask division by zero */
#define BRENN_MODE_TRAP_OVERFLOW 0x4000000u  /**< unmask overflow */
#define BRENN_MODE_TRAP_UNDERFLOW 0x8000000u /**< unmask underflow */
#define BRENN_MODE_TRAP_MASK 0xF000000u      /**< the trap field */
#define BRENN_MODE_DEFAULT 0x1A02u           /**< HA with the default error mode */
/** @} */

/** The processor branch of this library.
 * @return 7: 128-bit SIMD up to SSE4.2. */
int dll_cpu_version(void);

/** The thread's mode word, initialised on the thread's first use from ZAR_SETTINGS.
 * @return the mode word; never zero. */
uint32_t brenn_zar_kernel_GetMode(void);
/** Replaces each field (accuracy, error mode, denormal, traps) that is non-zero in
 * `mode`; zero fields and the precision bits are left, and nothing is refused.
 * @param mode the fields to set
 * @return the previous word. */
uint32_t brenn_zar_kernel_SetMode(uint32_t mode);
/** The slot of the thread's accuracy level in a row: (accuracy - 1); not range-checked.
 * @return 0 LA, 1 HA, 2 EP (or a value outside the row for a bad accuracy field). */
int32_t brenn_zar_kernel_GetTTableIndex(void);
/** The slot of the accuracy level of a mode word given by the caller.
 * @param unused ignored
 * @param mode a mode word
 * @return (mode & 15) - 1; not range-checked. */
int32_t brenn_zar_kernel_GetTTableIndexM(uint32_t unused, uint32_t mode);
/** Same as brenn_zar_kernel_GetMode().
 * @return the thread's mode word. */
uint32_t _zarGetMode(void);
/** Same as brenn_zar_kernel_SetMode().
 * @param mode the fields to set
 * @return the previous word. */
uint32_t _zarSetMode(uint32_t mode);

/** The thread's status word: the code of the last reported element, or what was set.
 * @return one of the BRENN_STATUS_* codes (or any value stored with SetErrStatus). */
int32_t brenn_zar_kernel_GetErrStatus(void);
/** Stores a status, unchecked.
 * @param status the new status
 * @return the previous status. */
int32_t brenn_zar_kernel_SetErrStatus(int32_t status);
/** Stores BRENN_STATUS_OK.
 * @return the previous status. */
int32_t brenn_zar_kernel_ClearErrStatus(void);
/** Registers the thread's error callback. Setting a callback turns the callback bit of
 * the error mode on; null turns it off (through SetMode's rules).
 * @param callback the callback, or null
 * @return the previous callback. */
ErrorCallback brenn_zar_kernel_SetErrorCallBack(ErrorCallback callback);
/** The thread's error callback.
 * @return the callback, or null. */
ErrorCallback brenn_zar_kernel_GetErrorCallBack(void);
/** Same as setting a null callback.
 * @return the previous callback. */
ErrorCallback brenn_zar_kernel_ClearErrorCallBack(void);
/** Start of the caller's whole input vector, so that reported indices count from it
 * when a kernel runs on a block. Set it (if only to null) before relying on indices.
 * @param pointer the start of the whole input vector, or null
 * @return the same pointer. */
const void* brenn_zar_kernel_SetInterfInputVectorPointer(const void* pointer);

/** Same as brenn_zar_kernel_GetErrStatus().
 * @return the thread's status. */
int32_t _zarGetErrStatus(void);
/** Same as brenn_zar_kernel_SetErrStatus().
 * @param status the new status
 * @return the previous status. */
int32_t _zarSetErrStatus(int32_t status);
/** Same as brenn_zar_kernel_ClearErrStatus().
 * @return the previous status. */
int32_t _zarClearErrStatus(void);
/** Same as brenn_zar_kernel_GetErrorCallBack().
 * @return the callback, or null. */
ErrorCallback _zarGetErrorCallBack(void);
/** Same as brenn_zar_kernel_SetErrorCallBack().
 * @param callback the callback, or null
 * @return the previous callback. */
ErrorCallback _zarSetErrorCallBack(ErrorCallback callback);
/** Same as brenn_zar_kernel_ClearErrorCallBack().
 * @return the previous callback. */
ErrorCallback _zarClearErrorCallBack(void);
/** Same as brenn_zar_kernel_SetInterfInputVectorPointer().
 * @param pointer the start of the whole input vector, or null
 * @return the same pointer. */
const void* _zarSetInterfInputVectorPointer(const void* pointer);

#ifdef __cplusplus
}
#endif

#endif
