// Saving a stream into a caller's memory block and loading it back. The block must
// be as long as __qesGetStreamSize says (on save) or as the image says (on load):
// the memory forms read and write with a running position and make no length test
// beyond refusing an image longer than any that the writer makes.
#include "frame/export.h"
#include "rng/core/persist.h"

namespace brenn::rng {

namespace {

struct MemorySink {
    uint8_t* at;
    bool Put(const void* data, size_t bytes) {
        memcpy(at, data, bytes);
        at += bytes;
        return true;
    }
};

// The block's length is not given, so a chunk's claim is bounded only by the
// longest image there is.
struct MemorySource {
    const uint8_t* at;
    bool Get(void* data, size_t bytes) {
        memcpy(data, at, bytes);
        at += bytes;
        return true;
    }
    uint64_t Left() const { return UINT64_MAX; }
};

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesSaveStreamM(const void* stream, void* memory) {
    MemorySink sink{static_cast<uint8_t*>(memory)};
    return image::WriteImage(sink, stream, QES_STATUS_OK);
}

BRENN_EXPORT int32_t __qesLoadStreamM(void** stream, const void* memory) {
    MemorySource source{static_cast<const uint8_t*>(memory)};
    void* made;
    int32_t status = image::ReadImage(source, &made, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    return image::Conclude(stream, made, status);
}
