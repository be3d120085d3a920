// Leapfrog and skip-ahead of a stream: each forwards to the generator's initStream
// with its method number; the generator does the mathematics or refuses. A stream
// whose generator is not built has no initStream to forward to.
#include "frame/export.h"
#include "rng/core/stream.h"

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesLeapfrogStream(void* stream, int32_t k, int32_t nstreams) {
    if (nstreams < 0) return QES_RNG_STATUS_BAD_STREAM_COUNT;
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    return row->initStream(QES_INIT_LEAPFROG, stream, nstreams, &k);
}

BRENN_EXPORT int32_t __qesSkipAheadStream(void* stream, uint64_t nskip) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    return row->initStream(QES_INIT_SKIP, stream, 2, &nskip);
}

BRENN_EXPORT int32_t __qesSkipAheadStreamEx(void* stream, int32_t n, const uint64_t* nskip) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    return row->initStream(QES_INIT_SKIP_EX, stream, n, nskip);
}
