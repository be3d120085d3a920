// The process-wide table of read-only blocks that streams of one kind share (the
// direction tables of quasi-random streams), keyed by a 128-bit guid and counted by
// reference. One spin lock guards it; the count is also read without the lock by
// the capacity tests of the chunk functions, which is why it is atomic.
#include <atomic>
#include <x86intrin.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/globtable.h"

namespace brenn::rng {

constexpr int32_t kGlobRows = 128;

namespace {

GlobRODataEntry globTable[kGlobRows];
std::atomic<int32_t> globCount{0};
std::atomic<int32_t> globLock{0};

// Row of a guid, or null; the lock is held by the caller.
GlobRODataEntry* FindLocked(const uint64_t* guid) {
    int32_t count = globCount.load(std::memory_order_relaxed);
    for (int32_t i = 0; i < count; ++i)
        if (globTable[i].idLow == guid[0] && globTable[i].idHigh == guid[1]) return &globTable[i];
    return nullptr;
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

int32_t GlobTableCountUnlocked() {
    return globCount.load(std::memory_order_relaxed);
}

bool GlobContains(const uint64_t* guid) {
    GlobLock();
    bool found = FindLocked(guid) != nullptr;
    GlobUnlock();
    return found;
}

void* GlobAcquire(const uint64_t* guid) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    void* data = nullptr;
    if (e != nullptr) {
        e->refCount += 1;
        data = e->data;
    }
    GlobUnlock();
    return data;
}

void* GlobShare(const uint64_t* guid, void* data, int32_t rowLimit) {
    GlobLock();
    void* result = nullptr;
    if (GlobRODataEntry* e = FindLocked(guid); e != nullptr) {
        e->refCount += 1;
        result = e->data;
    } else {
        int32_t count = globCount.load(std::memory_order_relaxed);
        if (count < rowLimit && count < kGlobRows) {
            globTable[count] = GlobRODataEntry{guid[0], guid[1], 1, data};
            globCount.store(count + 1, std::memory_order_relaxed);
            result = data;
        }
    }
    GlobUnlock();
    return result;
}

bool GlobReleaseOne(const uint64_t* guid) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    if (e != nullptr && --e->refCount == 0) {
        if (e->data != nullptr) brenn_serv_deallocate(e->data);
        int32_t last = globCount.load(std::memory_order_relaxed) - 1;
        GlobRODataEntry* end = &globTable[last];
        if (e != end) *e = *end;
        *end = GlobRODataEntry{};
        globCount.store(last, std::memory_order_relaxed);
    }
    GlobUnlock();
    return e != nullptr;
}

void GlobRelease(const uint64_t* guid) {
    GlobLock();
    // Every matching row loses one reference; a row at zero gives its data back and
    // is replaced by the last row.
    int32_t i = 0;
    while (i < globCount.load(std::memory_order_relaxed)) {
        GlobRODataEntry& e = globTable[i];
        if (e.idLow == guid[0] && e.idHigh == guid[1]) {
            e.refCount -= 1;
            if (e.refCount == 0) {
                if (e.data != nullptr) brenn_serv_deallocate(e.data);
                int32_t last = globCount.load(std::memory_order_relaxed) - 1;
                if (i != last) globTable[i] = globTable[last];
                globTable[last] = GlobRODataEntry{};
                globCount.store(last, std::memory_order_relaxed);
                continue; // the moved row is looked at in its new place
            }
        }
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
    int32_t count = globCount.load(std::memory_order_relaxed);
    if (count >= kGlobRows) {
        GlobUnlock();
        return QES_RNG_STATUS_GLOB_TABLE_FULL;
    }
    globTable[count] = GlobRODataEntry{guid[0], guid[1], 1, data};
    globCount.store(count + 1, std::memory_order_relaxed);
    *entry = &globTable[count];
    GlobUnlock();
    return QES_STATUS_OK;
}

BRENN_EXPORT void __qesRegisterGlobRODataReference(QesChunk* chunk, const uint64_t* guid) {
    GlobLock();
    GlobRODataEntry* e = FindLocked(guid);
    if (e != nullptr) {
        e->refCount += 1;
        chunk->data = e->data;
    }
    GlobUnlock();
}

BRENN_EXPORT void __qesUnregisterGlobRODataReference(const uint64_t* guid) {
    if (GlobContains(guid)) GlobRelease(guid);
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
