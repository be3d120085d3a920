// The chunk list of a stream: tagged blocks that generators and distribution
// generators keep with a stream (caches, tables), private or shared through the
// read-only data table by guid. The list runs newest first.
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/globtable.h"

namespace brenn::rng {

namespace {

constexpr int32_t kGlobUnlockedLimit = 127; // the locked tests use 128; kept apart on purpose

QesChunk* NewCell() {
    return static_cast<QesChunk*>(brenn_serv_allocate(sizeof(QesChunk), kStreamAlignment));
}

// A cell whose guid is not in the table yet: it becomes the row's first reference
// when there is room, or turns private when the table is (nearly) full.
void ShareNewGuid(QesChunk* cell) {
    if (GlobTableCountUnlocked() >= kGlobUnlockedLimit) {
        cell->guid[0] = cell->guid[1] = 0;
        return;
    }
    GlobAppend(cell->guid, cell->data);
}

} // namespace

void DeleteChunkCell(QesChunk* cell) {
    if (!GuidIsZero(cell->guid) && GlobContains(cell->guid)) {
        // The table owns shared data and frees it with the last reference.
        GlobRelease(cell->guid);
    } else if (cell->data != nullptr) {
        brenn_serv_deallocate(cell->data);
    }
    brenn_serv_deallocate(cell);
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesAddChunk(void* stream, int32_t id, const uint64_t* guid, void* data,
                                   uint32_t size) {
    QesChunk* cell = NewCell();
    if (cell == nullptr) return QES_STATUS_NO_MEMORY;
    cell->id = id;
    cell->size = size;
    cell->data = data;
    cell->guid[0] = cell->guid[1] = 0;
    if (!GuidIsZero(guid)) {
        cell->guid[0] = guid[0];
        cell->guid[1] = guid[1];
        if (GlobContains(guid)) {
            // Another stream brought the same block first: use its copy. The caller
            // keeps its own block.
            void* shared = GlobAcquire(guid);
            if (shared != nullptr) {
                cell->data = shared;
            } else {
                // The last holder let the row go between the two looks. Linking the
                // cell with its guid but no reference would let its deletion take a
                // reference that a later row gives to another stream, so the cell
                // starts the row again instead.
                ShareNewGuid(cell);
            }
        } else {
            ShareNewGuid(cell);
        }
    }
    StreamHeader* h = Header(stream);
    cell->next = h->chunks;
    h->chunks = cell;
    return QES_STATUS_OK;
}

BRENN_EXPORT void* __qesSearchChunk(const void* stream, int32_t id) {
    for (QesChunk* c = Header(stream)->chunks; c != nullptr; c = c->next)
        if (c->id == id) return c->data;
    return nullptr;
}

BRENN_EXPORT int32_t __qesGetNumChunks(const void* stream) {
    int32_t n = 0;
    for (QesChunk* c = Header(stream)->chunks; c != nullptr; c = c->next)
        ++n;
    return n;
}

BRENN_EXPORT void __qesDeleteChunks(void* stream) {
    StreamHeader* h = Header(stream);
    QesChunk* c = h->chunks;
    while (c != nullptr) {
        QesChunk* next = c->next;
        DeleteChunkCell(c);
        c = next;
    }
    h->chunks = nullptr;
}

// The head ends at the last kept cell, not the first: with several survivors the
// ones before it drop out of the list. The one caller, which replaces its own
// single cell, never meets that case.
BRENN_EXPORT void __qesDeleteChunksById(void* stream, int32_t id) {
    StreamHeader* h = Header(stream);
    QesChunk* lastKept = nullptr;
    QesChunk* c = h->chunks;
    while (c != nullptr) {
        QesChunk* next = c->next;
        if (c->id == id) {
            DeleteChunkCell(c);
            if (lastKept != nullptr) lastKept->next = next;
        } else {
            lastKept = c;
        }
        c = next;
    }
    h->chunks = lastKept;
}

BRENN_EXPORT int32_t __qesCopyChunks(void* destination, const void* source) {
    StreamHeader* d = Header(destination);
    for (const QesChunk* s = Header(source)->chunks; s != nullptr; s = s->next) {
        bool shared = !GuidIsZero(s->guid) && GlobContains(s->guid);
        void* data = s->data;
        bool copied = false;
        if (!shared) {
            data = brenn_serv_allocate(s->size, kStreamAlignment);
            if (data == nullptr && s->size != 0) goto fail;
            if (s->size != 0) memcpy(data, s->data, s->size);
            copied = true;
        }
        {
            QesChunk* cell = NewCell();
            if (cell == nullptr) {
                if (copied) brenn_serv_deallocate(data);
                goto fail;
            }
            cell->id = s->id;
            cell->size = s->size;
            cell->data = data;
            cell->guid[0] = s->guid[0];
            cell->guid[1] = s->guid[1];
            if (!GuidIsZero(cell->guid)) {
                void* row = GlobAcquire(cell->guid);
                if (row != nullptr) {
                    if (copied) brenn_serv_deallocate(data); // the shared block serves
                    cell->data = row;
                } else {
                    ShareNewGuid(cell);
                }
            }
            cell->next = d->chunks;
            d->chunks = cell;
        }
    }
    return QES_STATUS_OK;
fail:
    __qesDeleteChunks(destination);
    return QES_STATUS_NO_MEMORY;
}
