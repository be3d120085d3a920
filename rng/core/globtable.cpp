// The process-wide table of read-only blocks that streams of one kind share (the
// direction tables of quasi-random streams), keyed by a 128-bit guid and counted by
// reference. One spin lock guards it, rows and count alike: the chunk functions test
// the capacity and add the row in one locked step, so two streams bringing the same
// guid cannot both add one.
//
// A guid names one block, so it has one size: beside each row the table keeps the
// size that the chunk which made it gave. A chunk that claims another size for the
// guid (two images that disagree, say) never shares the row; it keeps its own block
// as a private chunk would, so a cell's size always describes the block it holds.
#include <atomic>
#include <x86intrin.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/globtable.h"
#include "rng/core/chunks.h"

namespace brenn::rng {

constexpr int32_t kGlobRows = 128;

namespace {

// Rows made by the exported entry come without a size: no chunk joins them by guid.
constexpr uint64_t kUnknownBytes = UINT64_MAX;

GlobRODataEntry globTable[kGlobRows];
uint64_t globBytes[kGlobRows]; // the block size of each row
int32_t globCount = 0;         // rows in use, under the lock
std::atomic<int32_t> globLock{0};

// Row of a guid, or null; the lock is held by the caller.
GlobRODataEntry* FindLocked(const uint64_t* guid) {
    int32_t count = globCount;
    for (int32_t i = 0; i < count; ++i)
        if (globTable[i].idLow == guid[0] && globTable[i].idHigh == guid[1]) return &globTable[i];
    return nullptr;
}

uint64_t& BytesOf(const GlobRODataEntry* e) {
    return globBytes[e - globTable];
}

// True when a cell of `size` bytes may hold the row's block; the lock is held.
bool SizeFits(const GlobRODataEntry* e, uint32_t size) {
    return BytesOf(e) == size;
}

// A new row with one reference, or null when the table is full; the lock is held.
GlobRODataEntry* AppendLocked(const uint64_t* guid, void* data, uint64_t bytes) {
    int32_t count = globCount;
    if (count >= kGlobRows) return nullptr;
    globTable[count] = GlobRODataEntry{guid[0], guid[1], 1, data};
    globBytes[count] = bytes;
    globCount = count + 1;
    return &globTable[count];
}

// Drops one reference of a row; at zero the row gives its data back and the last row
// takes its place. True when the row went; the lock is held.
bool ReleaseLocked(GlobRODataEntry* e) {
    if (--e->refCount != 0) return false;
    if (e->data != nullptr) brenn_serv_deallocate(e->data);
    int32_t last = globCount - 1;
    GlobRODataEntry* end = &globTable[last];
    if (e != end) {
        *e = *end;
        BytesOf(e) = BytesOf(end);
    }
    *end = GlobRODataEntry{};
    globCount = last;
    return true;
}

} // namespace

void GlobLock() {
    int32_t expected = 0;
    while (!globLock.compare_exchange_weak(expected, 1, std::memory_order_acquire,
                                           std::memory_order_relaxed))
        expected = 0;
}

void GlobUnlock() {
    globLock.store(0, std::memory_order_release);
}

// Looks for a guid under the lock.
static bool GlobContains(const uint64_t* guid) {
    GlobLock();
    bool found = FindLocked(guid) != nullptr;
    GlobUnlock();
    return found;
}

void* GlobAcquire(const uint64_t* guid, uint32_t size) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    void* data = nullptr;
    if (e != nullptr && SizeFits(e, size)) {
        e->refCount += 1;
        data = e->data;
    }
    GlobUnlock();
    return data;
}

void* GlobShare(const uint64_t* guid, void* data, uint32_t size, int32_t rowLimit) {
    GlobLock();
    void* result = nullptr;
    if (GlobRODataEntry* e = FindLocked(guid); e != nullptr) {
        if (SizeFits(e, size)) {
            e->refCount += 1;
            result = e->data;
        }
    } else if (globCount < rowLimit && AppendLocked(guid, data, size) != nullptr) {
        result = data;
    }
    GlobUnlock();
    return result;
}

bool GlobReleaseOne(const uint64_t* guid) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    if (e != nullptr) ReleaseLocked(e);
    GlobUnlock();
    return e != nullptr;
}

// Drops one reference of every row with the guid (rows made by the exported entry may
// share one), freeing data at zero.
static void GlobRelease(const uint64_t* guid) {
    GlobLock();
    // Every matching row loses one reference; a row that goes is replaced by the last
    // row, which is then looked at in its place.
    int32_t i = 0;
    while (i < globCount) {
        GlobRODataEntry* e = &globTable[i];
        if (e->idLow == guid[0] && e->idHigh == guid[1] && ReleaseLocked(e)) continue;
        ++i;
    }
    GlobUnlock();
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesFindGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid) {
    if (GuidIsZero(guid)) return QES_RNG_STATUS_GLOB_NOT_FOUND;
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    GlobUnlock();
    if (e == nullptr) return QES_RNG_STATUS_GLOB_NOT_FOUND;
    *entry = e;
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesCreateGlobRODataTableEntry(GlobRODataEntry** entry, const uint64_t* guid,
                                                     void* data) {
    GlobLock();
    GlobRODataEntry* e = AppendLocked(guid, data, kUnknownBytes);
    GlobUnlock();
    if (e == nullptr) return QES_RNG_STATUS_GLOB_TABLE_FULL;
    *entry = e;
    return QES_STATUS_OK;
}

// A row whose size is known hands its block only to a cell of that size.
BRENN_EXPORT void __qesRegisterGlobRODataReference(QesChunk* chunk, const uint64_t* guid) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    if (e != nullptr && (BytesOf(e) == kUnknownBytes || SizeFits(e, chunk->size))) {
        e->refCount += 1;
        chunk->data = e->data;
    }
    GlobUnlock();
}

BRENN_EXPORT void __qesUnregisterGlobRODataReference(const uint64_t* guid) {
    GlobRelease(guid); // nothing when no row has it
}

BRENN_EXPORT int32_t __qesGenerateNewGlobalRODataTableEntryId(uint64_t* guid, int32_t kind) {
    // The time-stamp counter makes the id; a clash with a live row draws again.
    guid[1] = static_cast<uint64_t>(static_cast<int64_t>(kind));
    for (;;) {
        guid[0] = __rdtsc();
        if (guid[0] == 0 && guid[1] == 0) return 0;
        if (!GlobContains(guid)) return 0;
    }
}
