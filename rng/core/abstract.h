/* Abstract streams: the state of the three kinds (the caller's circular buffer, its
 * refill callback, and for the real kinds the interval the buffer's values cover;
 * a constructor hands the kind's seeding one such state as its record of
 * arguments), and the record sizes of the registry rows. The state holds native
 * pointers, so the records are as long as the fields with natural alignment make
 * them: 40, 56 and 48 bytes with 32-bit pointers, 48, 64 and 56 with 64-bit ones. */
#ifndef BRENN_RNG_CORE_ABSTRACT_H
#define BRENN_RNG_CORE_ABSTRACT_H

#include <stdint.h>

#include "brenn_rng.h"
#include "rng/core/stream.h"

namespace brenn::rng {

// T is the element type; Callback the kind's refill function.
template <typename T, typename Callback>
struct AbstractPlain {
    int32_t bufferSize;
    int32_t nextIndex; // next element to hand out
    int32_t freeCount; // consumed elements, free for refilling
    T* buffer;
    Callback callback;
};

template <typename T, typename Callback>
struct AbstractRanged {
    int32_t bufferSize;
    int32_t nextIndex;
    int32_t freeCount;
    T bufferLow, bufferHigh; // the interval of the buffer's values
    T* buffer;
    Callback callback;
};

using IAbstractState = AbstractPlain<uint32_t, QesIAbstractCallback>;
using DAbstractState = AbstractRanged<double, QesDAbstractCallback>;
using SAbstractState = AbstractRanged<float, QesSAbstractCallback>;

constexpr int32_t RecordSize(size_t stateBytes) {
    return static_cast<int32_t>((sizeof(StreamHeader) + stateBytes + 7) / 8 * 8);
}
constexpr int32_t kIAbstractSize = RecordSize(sizeof(IAbstractState));
constexpr int32_t kDAbstractSize = RecordSize(sizeof(DAbstractState));
constexpr int32_t kSAbstractSize = RecordSize(sizeof(SAbstractState));

} // namespace brenn::rng

#endif
