/* The stream record as the random-number code sees it: the 16-byte header in front
 * of every generator's state and the registry lookups that go with it. */
#ifndef BRENN_RNG_CORE_STREAM_H
#define BRENN_RNG_CORE_STREAM_H

#include <stddef.h>
#include <stdint.h>

#include "brenn_rng.h"

namespace brenn::rng {

struct StreamHeader {
    int32_t brng;
    uint8_t headerTag;   // 1 at creation
    uint8_t headerByte;  // 0
    uint16_t headerWord; // 0
    union {
        QesChunk* chunks;   // newest first
        uint64_t chunkSlot; // keeps the header 16 bytes wide with 32-bit pointers too
    };
};
static_assert(sizeof(StreamHeader) == 16, "the stream header is 16 bytes");

constexpr int kStreamAlignment = 128;
constexpr int32_t kNewIdBase = 0x100000;
constexpr int32_t kRegistryRows = 512; // rows of each table

inline StreamHeader* Header(void* stream) {
    return static_cast<StreamHeader*>(stream);
}
inline const StreamHeader* Header(const void* stream) {
    return static_cast<const StreamHeader*>(stream);
}

// Generator state, right after the header.
template <typename State>
inline State* StateOf(void* stream) {
    return reinterpret_cast<State*>(static_cast<char*>(stream) + sizeof(StreamHeader));
}

// Member counts of the current table's families, and its filled rows.
extern int32_t RegisteredMembers[kRegistryRows];
extern int32_t RegisteredCount;

// Split and validate: the row, or null when the id is unknown. The legacy test
// passes negative ids (refusing them is the front-end's duty towards callers), but
// no row lies below the table, so here they are unknown.
const BrngRecord* ValidRow(int32_t id);

// The row of an id whose generator is in this build, or null. A registered family
// whose source is not built has sizes and null entries; to every entry that would
// run, copy, save or load its streams it is an unknown id, so that nothing ever
// calls through a null entry.
const BrngRecord* BuiltRow(int32_t id);
bool IsBuilt(const BrngRecord* row);

// The status of a jump method (1 to 3) for a generator that has none, or of an
// unknown method.
inline int32_t NoJumpStatus(int32_t method) {
    switch (method) {
    case QES_INIT_LEAPFROG:
        return QES_RNG_STATUS_NO_LEAPFROG;
    case QES_INIT_SKIP:
        return QES_RNG_STATUS_NO_SKIPAHEAD;
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

// The row of a stream's generator when it is built, else null.
inline const BrngRecord* BuiltRowOf(const void* stream) {
    return BuiltRow(Header(stream)->brng);
}

} // namespace brenn::rng

#endif
