// The chunk list of a stream: tagged blocks that generators and distribution
// generators keep with a stream (caches, tables), private or shared through the
// read-only data table by guid. The list runs newest first.
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/chunks.h"
#include "rng/core/globtable.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

// Chunks share a block only while fewer than 127 rows are in use; the exported entry
// that makes a row may use all 128.
constexpr int32_t kChunkRowLimit = 127;

QesChunk* NewCell() {
    return static_cast<QesChunk*>(brenn_serv_allocate(sizeof(QesChunk), kStreamAlignment));
}

// Links a cell with a guid to the table in one locked step: the row's block when
// another stream brought it first, else a new row with the cell's own block. When
// the table is (nearly) full, or the row's block has another size than the cell
// claims, the cell turns private and forgets its guid. So a cell with a guid always
// holds exactly one reference, never owns its block and has the row's size; a cell
// without one owns it.
void ShareByGuid(QesChunk* cell) {
    void* row = GlobShare(cell->guid, cell->data, cell->size, kChunkRowLimit);
    if (row == nullptr) {
        cell->guid[0] = cell->guid[1] = 0;
        return;
    }
    cell->data = row;
}

} // namespace

void DeleteChunkCell(QesChunk* cell) {
    if (!GuidIsZero(cell->guid)) {
        // The table owns shared data and frees it with the last reference.
        GlobReleaseOne(cell->guid);
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
        // When another stream brought the same block first the cell uses its copy;
        // the caller keeps its own block.
        cell->guid[0] = guid[0];
        cell->guid[1] = guid[1];
        ShareByGuid(cell);
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
        QesChunk* cell = NewCell();
        if (cell == nullptr) goto fail;
        cell->id = s->id;
        cell->size = s->size;
        cell->guid[0] = s->guid[0];
        cell->guid[1] = s->guid[1];
        // A shared block gains a reference; a private one (or one whose row went
        // away under the source) is copied.
        cell->data = GuidIsZero(cell->guid) ? nullptr : GlobAcquire(cell->guid, s->size);
        if (cell->data == nullptr) {
            cell->guid[0] = cell->guid[1] = 0;
            if (s->size != 0) {
                cell->data = brenn_serv_allocate(s->size, kStreamAlignment);
                if (cell->data == nullptr) {
                    brenn_serv_deallocate(cell);
                    goto fail;
                }
                memcpy(cell->data, s->data, s->size);
            }
        }
        cell->next = d->chunks;
        d->chunks = cell;
    }
    return QES_STATUS_OK;
fail:
    __qesDeleteChunks(destination);
    return QES_STATUS_NO_MEMORY;
}
