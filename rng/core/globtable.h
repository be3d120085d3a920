/* The shared read-only data table, as the chunk functions use it: lock, lookups by
 * guid, reference counting and release. */
#ifndef BRENN_RNG_CORE_GLOBTABLE_H
#define BRENN_RNG_CORE_GLOBTABLE_H

#include <stdint.h>

namespace brenn::rng {

void GlobLock();
void GlobUnlock();
// Adds a reference to the guid's row and returns its data; null when absent or
// when the row's block is not `size` bytes.
void* GlobAcquire(const uint64_t* guid, uint32_t size);
// In one locked step: a reference to the guid's row when there is one with a block
// of `size` bytes (its data is returned); else, when no row has the guid and fewer
// than `rowLimit` rows are in use, a new row holding `data` of `size` bytes (`data`
// is returned); else null: the caller keeps its block privately.
void* GlobShare(const uint64_t* guid, void* data, uint32_t size, int32_t rowLimit);
// Drops one reference of the first row with the guid, freeing data at zero; false
// when no row has it.
bool GlobReleaseOne(const uint64_t* guid);

} // namespace brenn::rng

#endif
