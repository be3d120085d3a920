/* The threading layer: the `threader` record that front-ends hand to the statistics
 * and fitting entries, and the pool-backed functions of the service library.
 * A null threader argument means: run on the calling thread. */
#ifndef BRENN_PLATFORM_THREADER_H
#define BRENN_PLATFORM_THREADER_H

#include <stdint.h>
#include "serv.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef void (*ThreaderChunk)(int64_t taskIndex, int threadIndex, int64_t taskCount, void* context);
typedef void (*ThreaderWorker)(int threadIndex, int threadCount, void* context);

typedef struct threader {
    /* entry 0: calls chunk(i, thread, taskCount, context) once for each i below
     * taskCount; threadCount 0 means as many threads as allowed. Returns when all
     * calls have returned. */
    void (*parallelFor)(int64_t taskCount, int threadCount, void* context, ThreaderChunk chunk);
    void* reserved1;
    /* entry 2: calls worker(t, team, context) for t below the team size, one call a thread. */
    void (*runTeam)(void* context, ThreaderWorker worker);
    void* reserved3;
    /* entry 4: the number of threads a parallel call may use. */
    int (*maxThreads)(void);
} threader;

BRENN_SERV_API void brenn_qes_serv_threader_for(int64_t taskCount, int threadCount, void* context,
                                                ThreaderChunk chunk);
BRENN_SERV_API int brenn_qes_serv_threader_get_num_threads_limit(void);
BRENN_SERV_API void brenn_qes_serv_threader_team(void* context, ThreaderWorker worker);

/* Lowers (or restores, with 0) the pool's thread limit; returns the previous limit. */
BRENN_SERV_API int brenn_serv_set_num_threads(int limit);

/* Ready records: one on the persistent pool, one that runs everything on the
 * calling thread in order. */
BRENN_SERV_API const threader* brenn_serv_pool_threader(void);
BRENN_SERV_API const threader* brenn_serv_serial_threader(void);

#ifdef __cplusplus
}
#endif

#endif
