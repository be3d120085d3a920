/* The face of the service library (libbrenn_core.so): memory, locks, environment,
 * messages, process exit and processor queries that the kernel library calls.
 * The kernels never reach the C runtime for these directly, so that a host can
 * replace the service library as a whole. */
#ifndef BRENN_PLATFORM_SERV_H
#define BRENN_PLATFORM_SERV_H

#include <stddef.h>
#include <stdint.h>

#if defined(BRENN_CORE_BUILD)
#define BRENN_SERV_API __attribute__((visibility("default")))
#else
#define BRENN_SERV_API
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Aligned allocation; alignment is a power of two (0 means 16). Null on failure. */
BRENN_SERV_API void* brenn_serv_allocate(size_t size, int alignment);
BRENN_SERV_API void brenn_serv_deallocate(void* pointer);

/* Test control: the n-th allocation from now fails (1 = the next one); 0 turns it off.
 * A negative n makes every allocation fail until the control is reset. Returns the
 * countdown left from the previous setting (above 0: that failure never came). */
BRENN_SERV_API int64_t brenn_serv_fail_allocation(int64_t n);
/* Number of blocks handed out by brenn_serv_allocate and not yet given back. */
BRENN_SERV_API int64_t brenn_serv_live_allocations(void);

/* Copy that honours the destination size: 0 on success; with count above
 * destinationSize (or a null pointer) the destination is cleared and a non-zero
 * value is returned. */
BRENN_SERV_API int brenn_serv_memcpy_s(void* destination, size_t destinationSize,
                                       const void* source, size_t count);

/* Spin lock on a 32-bit word: 0 is free. */
BRENN_SERV_API void brenn_serv_lock(volatile int32_t* lock);
BRENN_SERV_API void brenn_serv_unlock(volatile int32_t* lock);

/* Copies the value of variable `name` into buffer (at most size bytes, terminated
 * when it fits) and returns the value's full length; below 1 when unset or empty. */
BRENN_SERV_API int brenn_serv_getenv(const char* name, char* buffer, int size);

/* Prints message `number` with `count` further arguments to standard error.
 * `first` is a channel word, 1 for every message the kernels print. */
BRENN_SERV_API void brenn_serv_print(int first, int number, int count, ...);

/* Non-zero once the process has begun to exit. The first call arms the watch; the
 * service library is never unloaded, so the watch outlives any kernel library that
 * armed it. */
BRENN_SERV_API int brenn_serv_process_ending(void);

/* Ends the process with the given code. */
BRENN_SERV_API void brenn_serv_exit(int code) __attribute__((noreturn));

/* Non-zero when the processor and the operating system support 256-bit AES. */
BRENN_SERV_API int brenn_serv_cpuisvectoraes(void);

/* Looks up a threading-layer function by name ("brenn_qes_serv_threader_for",
 * "brenn_qes_serv_threader_get_num_threads_limit"); null when unknown. */
BRENN_SERV_API void* brenn_serv_load_thread_fun(const char* name);

#ifdef __cplusplus
}
#endif

#endif
