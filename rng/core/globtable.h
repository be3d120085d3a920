/* The shared read-only data table, as the chunk functions use it: lock, lookups by
 * guid, reference counting and release. */
#ifndef BRENN_RNG_CORE_GLOBTABLE_H
#define BRENN_RNG_CORE_GLOBTABLE_H

#include "rng/core/stream.h"

namespace brenn::rng {

void GlobLock();
void GlobUnlock();
// Looks for a guid under the lock.
bool GlobContains(const uint64_t* guid);
// Adds a reference to the guid's row and returns its data; null when absent.
void* GlobAcquire(const uint64_t* guid);
// Appends a row with one reference when the table has room; false when full.
bool GlobAppend(const uint64_t* guid, void* data);
// Drops one reference of every row with the guid, freeing data at zero.
void GlobRelease(const uint64_t* guid);

} // namespace brenn::rng

#endif
