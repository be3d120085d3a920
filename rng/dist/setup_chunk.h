/* The set-up cache of a discrete generator: a chunk of the stream found by its id,
 * or made of zero bytes on first use, so that a fresh chunk never matches a
 * parameter set and the first call fills it. */
#ifndef BRENN_RNG_DIST_SETUP_CHUNK_H
#define BRENN_RNG_DIST_SETUP_CHUNK_H

#include <stdint.h>
#include <string.h>

#include "brenn_rng.h"
#include "platform/serv.h"

namespace brenn::rng {

// The chunk's data, or null with the status (-4 or the chunk list's) in `status`.
inline void* SetupChunk(void* stream, int32_t id, uint32_t size, int32_t* status) {
    void* data = __qesSearchChunk(stream, id);
    if (data != nullptr) return data;
    data = brenn_serv_allocate(size, 128);
    if (data == nullptr) {
        *status = QES_ERROR_MEM_FAILURE;
        return nullptr;
    }
    memset(data, 0, size);
    *status = __qesAddChunk(stream, id, nullptr, data, size);
    if (*status != QES_STATUS_OK) {
        brenn_serv_deallocate(data);
        return nullptr;
    }
    return data;
}

} // namespace brenn::rng

#endif
