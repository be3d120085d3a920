/* The stream image shared by files and memory blocks: its version-2 header, the
 * writer that walks a stream into any sink, and the loader that builds a stream
 * from any source. The two media differ only in how bytes move and in the status
 * of a bad image, so each is a small sink or source type around these templates. */
#ifndef BRENN_RNG_CORE_PERSIST_H
#define BRENN_RNG_CORE_PERSIST_H

#include <stdint.h>
#include <string.h>

#include "platform/serv.h"
#include "rng/core/stream.h"

namespace brenn::rng::image {

constexpr int kHeaderBytes = 24;
constexpr int kOldHeaderBytes = 20;
constexpr uint8_t kVersion = 2;

// The header in its version-2 form, as the writer makes it and as the loader
// brings either form to.
struct Header {
    uint8_t version;
    uint16_t headerSize;
    uint32_t stateBytes;
    uint16_t chunkCount;
    int32_t brng;
    bool magic; // "RNG" at offset 4 or at offset 0
};

inline uint16_t Read16(const uint8_t* p) {
    return static_cast<uint16_t>(p[0] | (p[1] << 8));
}
inline uint32_t Read32(const uint8_t* p) {
    return static_cast<uint32_t>(p[0]) | (static_cast<uint32_t>(p[1]) << 8) |
           (static_cast<uint32_t>(p[2]) << 16) | (static_cast<uint32_t>(p[3]) << 24);
}
inline void Write16(uint8_t* p, uint32_t v) {
    p[0] = static_cast<uint8_t>(v);
    p[1] = static_cast<uint8_t>(v >> 8);
}
inline void Write32(uint8_t* p, uint32_t v) {
    Write16(p, v);
    Write16(p + 2, v >> 16);
}

// The undefined bytes of the header are written as zeros.
inline void MakeHeader(uint8_t* h, const void* stream, int32_t stateSize) {
    memset(h, 0, kHeaderBytes);
    h[0] = kVersion;
    memcpy(h + 4, "RNG", 3);
    Write16(h + 8, kHeaderBytes);
    Write32(h + 12, static_cast<uint32_t>(stateSize - static_cast<int32_t>(sizeof(StreamHeader))));
    uint16_t chunks = 0;
    for (const QesChunk* c = brenn::rng::Header(stream)->chunks; c != nullptr; c = c->next)
        ++chunks;
    Write16(h + 16, chunks);
    Write32(h + 20, static_cast<uint32_t>(brenn::rng::Header(stream)->brng));
}

// Reads the first bytes of either header form: 8 bytes, then 16 more when the
// version byte is 2, else 12. `bytes` must hold 24.
inline Header ParseHeader(const uint8_t* bytes) {
    Header h;
    h.version = bytes[0];
    h.magic = memcmp(bytes + 4, "RNG", 3) == 0 || memcmp(bytes, "RNG", 3) == 0;
    if (h.version == kVersion) {
        h.headerSize = Read16(bytes + 8);
        h.stateBytes = Read32(bytes + 12);
        h.chunkCount = Read16(bytes + 16);
        h.brng = static_cast<int32_t>(Read32(bytes + 20));
    } else {
        h.headerSize = kHeaderBytes;
        h.stateBytes = Read16(bytes + 10);
        h.chunkCount = Read16(bytes + 12);
        h.brng = static_cast<int32_t>(Read32(bytes + 16));
    }
    return h;
}

// Writes the whole image. A sink has Put(data, bytes) -> bool. The status of the
// chunks is that of the last chunk's data alone, the small fields not counting. A
// stream that no image can hold (see __qesGetStreamSize) is refused before the sink
// sees a byte.
template <typename Sink>
int32_t WriteImage(Sink& sink, const void* stream, int32_t writeStatus) {
    int32_t size = __qesGetStreamSize(stream);
    if (size < 0) return size;
    const BrngRecord* row = BuiltRowOf(stream);
    uint8_t h[kHeaderBytes];
    MakeHeader(h, stream, row->stateSize);
    if (!sink.Put(h, kHeaderBytes)) return writeStatus;
    size_t stateBytes = static_cast<size_t>(row->stateSize) - sizeof(StreamHeader);
    if (!sink.Put(static_cast<const char*>(stream) + sizeof(StreamHeader), stateBytes))
        return writeStatus;
    int32_t status = QES_STATUS_OK;
    for (const QesChunk* c = brenn::rng::Header(stream)->chunks; c != nullptr; c = c->next) {
        uint8_t fields[4];
        Write32(fields, static_cast<uint32_t>(c->id));
        sink.Put(fields, 4);
        uint8_t guid[16];
        memcpy(guid, c->guid, 16);
        sink.Put(guid, 8);
        sink.Put(guid + 8, 8);
        Write32(fields, c->size);
        sink.Put(fields, 4);
        status = sink.Put(c->data, c->size) ? QES_STATUS_OK : writeStatus;
    }
    return status;
}

// The longest image: what __qesGetStreamSize can announce, and so the longest that
// the writer makes. A loader refuses a chunk that would carry an image past it
// before allocating for it, whatever the medium holds.
constexpr uint64_t kMaxImageBytes = INT32_MAX;

// Whether a stream just read can be run as it stands (rng/brng/loadable.cpp).
bool StateLoadable(void* stream, const BrngRecord& row);

// Builds a stream from an image. A source has Get(data, bytes) -> bool and Left(),
// the bytes it still holds (UINT64_MAX when it cannot tell); `bad` is the medium's
// status for a malformed image. *made is the stream once allocated, also when a
// later step fails: the caller closes its medium first, then keeps or deletes it
// by Conclude.
template <typename Source>
int32_t ReadImage(Source& source, void** made, int32_t bad) {
    *made = nullptr;
    uint8_t bytes[kHeaderBytes];
    if (!source.Get(bytes, 8)) return QES_RNG_STATUS_FILE_READ;
    int rest = bytes[0] == kVersion ? kHeaderBytes - 8 : kOldHeaderBytes - 8;
    if (!source.Get(bytes + 8, static_cast<size_t>(rest))) return QES_RNG_STATUS_FILE_READ;
    Header h = ParseHeader(bytes);
    if (!h.magic) return bad;
    int32_t family, member;
    BrngRecord* table = __qesGetBrngBaseOffset(h.brng, &family, &member);
    // An image is outside data: its id must name a generator that this build can
    // run. Abstract streams are refused too: their state holds the saving process's
    // buffer and callback addresses, which mean nothing (and must not be called) here.
    const BrngRecord* row = BuiltRow(h.brng);
    if (row == nullptr || (table == __RegBrngsNew && family >= 9 && family <= 11)) return bad;
    if (static_cast<int64_t>(row->stateSize) - 16 != static_cast<int64_t>(h.stateBytes) ||
        h.headerSize < kHeaderBytes)
        return bad;
    void* s = nullptr;
    int32_t status = __qesAllocateStream(&s, table, h.brng, family, member);
    if (status != QES_STATUS_OK) return status;
    *made = s;
    uint64_t length = static_cast<uint64_t>(8 + rest) + h.stateBytes;
    if (!source.Get(static_cast<char*>(s) + sizeof(StreamHeader), h.stateBytes))
        status = QES_RNG_STATUS_FILE_READ;
    if (status == QES_STATUS_OK) {
        // The image may come from another machine than the one that loads it.
        if (h.brng == QES_BRNG_TRNG && !__qesCPUisRDRAND()) status = QES_RNG_STATUS_NO_RDRAND;
        if (h.brng == QES_BRNG_ARS5 && !__qesCPUisAES()) status = QES_RNG_STATUS_NO_AES;
    }
    for (uint32_t k = 0; status == QES_STATUS_OK && k < h.chunkCount; ++k) {
        uint8_t fields[4];
        uint64_t guid[2] = {0, 0};
        if (!source.Get(fields, 4)) {
            status = QES_RNG_STATUS_FILE_READ;
            break;
        }
        int32_t id = static_cast<int32_t>(Read32(fields));
        length += 8;
        if (h.version == 1 || h.version == 2) {
            uint8_t g[16];
            if (!source.Get(g, 16)) {
                status = QES_RNG_STATUS_FILE_READ;
                break;
            }
            memcpy(guid, g, 16);
            length += 16;
        } else if (h.version != 0) {
            status = QES_RNG_STATUS_FILE_READ; // no chunk layout for this version
            break;
        }
        if (!source.Get(fields, 4)) {
            status = QES_RNG_STATUS_FILE_READ;
            break;
        }
        uint32_t size = Read32(fields);
        // The claim is weighed before anything is allocated for it: data that the
        // medium does not hold is a short read, an image longer than any written a
        // malformed one.
        length += size;
        if (size > source.Left()) {
            status = QES_RNG_STATUS_FILE_READ;
            break;
        }
        if (length > kMaxImageBytes) {
            status = bad;
            break;
        }
        void* data = brenn_serv_allocate(size, kStreamAlignment);
        if (data == nullptr) {
            status = QES_STATUS_NO_MEMORY;
            break;
        }
        if (!source.Get(data, size)) {
            brenn_serv_deallocate(data);
            status = QES_RNG_STATUS_FILE_READ;
            break;
        }
        status = __qesAddChunk(s, id, guid, data, size);
        if (status != QES_STATUS_OK) {
            brenn_serv_deallocate(data);
            break;
        }
        // A guid already in the shared table (with this size) joins its row; the
        // block just read then has no owner, and is let go here rather than left
        // behind.
        if (brenn::rng::Header(s)->chunks->data != data) brenn_serv_deallocate(data);
    }
    if (status == QES_STATUS_OK && !StateLoadable(s, *row)) status = bad;
    return status;
}

// The caller's pointer gets the stream on success; a failed load deletes what it
// made, so the pointer ends null.
inline int32_t Conclude(void** stream, void* made, int32_t status) {
    if (status < 0) {
        if (made != nullptr) __qesDeleteStream(&made);
        *stream = nullptr;
        return status;
    }
    *stream = made;
    return status;
}

} // namespace brenn::rng::image

#endif
