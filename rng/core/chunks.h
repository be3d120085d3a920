/* Chunk cells as the chunk functions and the shared read-only table see them: a cell's
 * deletion and the zero guid that marks private data. Kept apart from the stream
 * record so that the shared table depends on neither streams nor generators. */
#ifndef BRENN_RNG_CORE_CHUNKS_H
#define BRENN_RNG_CORE_CHUNKS_H

#include <stdint.h>

#include "brenn_rng.h"

namespace brenn::rng {

// Deletes one cell: releases its reference in the shared table (which frees shared
// data with the last one) or frees private data, then the cell itself.
void DeleteChunkCell(QesChunk* cell);

inline bool GuidIsZero(const uint64_t* guid) {
    return guid == nullptr || (guid[0] == 0 && guid[1] == 0);
}

} // namespace brenn::rng

#endif
