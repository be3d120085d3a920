// Stream records: creation, allocation, copying, state copying, deletion and the
// size a saved image of the stream needs.
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

// The state copy moves wordSize x seedCount bytes, which for WH is twice its state;
// records are made large enough for that copy to stay inside them.
size_t RecordBytes(const BrngRecord* row) {
    size_t state = static_cast<size_t>(row->stateSize);
    size_t copied = sizeof(StreamHeader) +
                    static_cast<size_t>(row->wordSize) * static_cast<size_t>(row->seedCount);
    return state > copied ? state : copied;
}

int32_t NewRecord(void** stream, const BrngRecord* row, int32_t brng) {
    void* p = brenn_serv_allocate(RecordBytes(row), kStreamAlignment);
    if (p == nullptr) return QES_STATUS_NO_MEMORY;
    *stream = p;
    StreamHeader* h = Header(p);
    h->brng = brng;
    h->headerTag = 1;
    h->headerByte = 0;
    h->headerWord = 0;
    h->chunkSlot = 0;
    return QES_STATUS_OK;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesNewStreamEx(void** stream, int32_t brng, int32_t n,
                                      const uint32_t* params) {
    // Abstract streams are fed by callbacks and have constructors of their own.
    if ((brng & ~0x100000) == QES_BRNG_IABSTRACT || brng == QES_BRNG_SABSTRACT)
        return QES_RNG_STATUS_BAD_BRNG;
    const BrngRecord* row = ValidRow(brng);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    int32_t status = NewRecord(stream, row, brng);
    if (status != QES_STATUS_OK) return status;
    // A failed initialisation leaves the record with the caller, who deletes it.
    return row->initStream(QES_INIT_SEED, *stream, n, params);
}

BRENN_EXPORT int32_t __qesAllocateStream(void** stream, BrngRecord* table, int32_t brng,
                                         int32_t family, int32_t member) {
    int32_t status = __qesIsBrngValid(table, family, member);
    if (status != QES_STATUS_OK) return status;
    return NewRecord(stream, table + family, brng);
}

BRENN_EXPORT int32_t __qesCopyStream(void** newStream, const void* source) {
    int32_t brng = Header(source)->brng;
    const BrngRecord* row = ValidRow(brng);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    int32_t status = NewRecord(newStream, row, brng);
    if (status != QES_STATUS_OK) return status;
    memcpy(*newStream, source, static_cast<size_t>(row->stateSize));
    Header(*newStream)->chunkSlot = 0;
    return __qesCopyChunks(*newStream, source);
}

BRENN_EXPORT int32_t __qesCopyStreamState(void* destination, const void* source) {
    if (destination == source) return QES_STATUS_OK;
    const BrngRecord* row = ValidRow(Header(source)->brng);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    // The seed part of the state, by one rule for every generator: a multiplier or a
    // key that lies beyond it stays the destination's own.
    size_t bytes = static_cast<size_t>(row->wordSize) * static_cast<size_t>(row->seedCount);
    memcpy(static_cast<char*>(destination) + sizeof(StreamHeader),
           static_cast<const char*>(source) + sizeof(StreamHeader), bytes);
    __qesDeleteChunks(destination);
    return __qesCopyChunks(destination, source);
}

BRENN_EXPORT int32_t __qesDeleteStream(void** stream) {
    __qesDeleteChunks(*stream);
    brenn_serv_deallocate(*stream);
    *stream = nullptr;
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesGetStreamStateBrng(const void* stream) {
    return Header(stream)->brng;
}

BRENN_EXPORT int32_t __qesGetStreamSize(const void* stream) {
    int32_t size = RowOf(stream)->stateSize + 8;
    for (const QesChunk* c = Header(stream)->chunks; c != nullptr; c = c->next)
        size += static_cast<int32_t>(c->size) + 24;
    return size;
}
