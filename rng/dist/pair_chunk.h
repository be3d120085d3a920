/* The two-element chunk in which a generator keeps a pending pair between calls (the
 * pair Box-Muller method's raw uniforms, the Gamma squeeze's leftover trial): found by
 * its tag, or made with -1.0 twice, the mark of an empty chunk, on first use. */
#ifndef BRENN_RNG_DIST_PAIR_CHUNK_H
#define BRENN_RNG_DIST_PAIR_CHUNK_H

#include <stdint.h>

#include "brenn_rng.h"
#include "platform/serv.h"

namespace brenn::rng {

// The chunk `id` of the stream; null with the status in `status` when it cannot be
// made (QES_ERROR_MEM_FAILURE, or the status of __qesAddChunk).
template <typename T>
T* PairChunk(void* stream, int32_t id, int32_t* status) {
    T* pending = static_cast<T*>(__qesSearchChunk(stream, id));
    if (pending != nullptr) return pending;
    pending = static_cast<T*>(brenn_serv_allocate(2 * sizeof(T), 128));
    if (pending == nullptr) {
        *status = QES_ERROR_MEM_FAILURE;
        return nullptr;
    }
    pending[0] = T(-1);
    pending[1] = T(-1);
    *status = __qesAddChunk(stream, id, nullptr, pending, 2 * sizeof(T));
    if (*status != QES_STATUS_OK) {
        brenn_serv_deallocate(pending);
        return nullptr;
    }
    return pending;
}

} // namespace brenn::rng

#endif
