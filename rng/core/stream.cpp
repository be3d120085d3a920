// Stream records: creation, allocation, copying, state copying, deletion and the
// size a saved image of the stream needs.
#include <string.h>

#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

// The state copy moves wordSize x seedCount bytes, which for WH is twice its state;
// records are made large enough for that copy to stay inside them. A registered
// family's counts can pass any size, so false when they do.
bool RecordBytes(const BrngRecord* row, size_t* bytes) {
    size_t copied = sizeof(StreamHeader);
    if (row->stateSize < 0 || !AddBytesFor(&copied, row->seedCount, row->wordSize)) return false;
    size_t state = static_cast<size_t>(row->stateSize);
    *bytes = state > copied ? state : copied;
    return true;
}

int32_t NewRecord(void** stream, const BrngRecord* row, int32_t brng) {
    size_t bytes;
    if (!RecordBytes(row, &bytes)) return QES_STATUS_NO_MEMORY;
    void* p = brenn_serv_allocate(bytes, kStreamAlignment);
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
    const BrngRecord* row = BuiltRow(brng);
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
    // A row outside the table, or a family without its generator, holds no stream.
    if (family < 0 || family >= kRegistryRows || !IsBuilt(table + family))
        return QES_RNG_STATUS_BAD_BRNG;
    return NewRecord(stream, table + family, brng);
}

BRENN_EXPORT int32_t __qesCopyStream(void** newStream, const void* source) {
    int32_t brng = Header(source)->brng;
    const BrngRecord* row = BuiltRow(brng);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    int32_t status = NewRecord(newStream, row, brng);
    if (status != QES_STATUS_OK) return status;
    memcpy(*newStream, source, static_cast<size_t>(row->stateSize));
    Header(*newStream)->chunkSlot = 0;
    return __qesCopyChunks(*newStream, source);
}

BRENN_EXPORT int32_t __qesCopyStreamState(void* destination, const void* source) {
    if (destination == source) return QES_STATUS_OK;
    const BrngRecord* row = BuiltRow(Header(source)->brng);
    const BrngRecord* into = BuiltRow(Header(destination)->brng);
    if (row == nullptr || into == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    // The seed part of the state, by one rule for every generator: a multiplier or a
    // key that lies beyond it stays the destination's own. The source's generator
    // sets the length, so a destination of a smaller generator cannot take it.
    size_t bytes, room;
    if (!BytesFor(row->seedCount, row->wordSize, &bytes) || !RecordBytes(into, &room) ||
        bytes > room - sizeof(StreamHeader))
        return QES_RNG_STATUS_BAD_BRNG;
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

// A negative result is a status: -1000 when no image can hold the stream (its
// generator is not built, or its state is shorter than the header it counts), -4
// when the image would pass the largest size this function can announce.
BRENN_EXPORT int32_t __qesGetStreamSize(const void* stream) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr || row->stateSize < static_cast<int32_t>(sizeof(StreamHeader)))
        return QES_RNG_STATUS_BAD_BRNG;
    int64_t size = int64_t{row->stateSize} + 8;
    for (const QesChunk* c = Header(stream)->chunks; c != nullptr; c = c->next) {
        size += int64_t{c->size} + 24;
        if (size > INT32_MAX) return QES_STATUS_NO_MEMORY;
    }
    return static_cast<int32_t>(size);
}
