// The output entries of abstract streams: what the caller's circular buffer holds is
// handed out first; then the callback refills it, from the index after the unread
// elements, as often as the request needs. The state is stored after each good
// step, so a failing callback leaves the last good state and the elements delivered
// so far. The real kinds map each element from the buffer's interval to [a, b).
#include "frame/export.h"
#include "rng/core/abstract.h"

namespace brenn::rng {

namespace {

// Elements as they stand (uint32) or mapped as (x - low) x scale + a, in the
// element's precision.
struct Identity {
    uint32_t operator()(uint32_t x) const { return x; }
};

template <typename T>
struct Affine {
    T low, scale, a;
    T operator()(T x) const { return (x - low) * scale + a; }
};

// count elements from index `from` of the buffer, wrapping at its end.
template <typename T, typename Map>
void Copy(const T* buffer, int32_t size, int32_t from, int32_t count, T* r, const Map& map) {
    for (int32_t k = 0; k < count; ++k) {
        r[k] = map(buffer[from]);
        if (++from == size) from = 0;
    }
}

inline int32_t Advance(int32_t index, int32_t by, int32_t size) {
    int64_t i = int64_t{index} + by;
    return static_cast<int32_t>(i % size);
}

template <typename State, typename T, typename Map>
int32_t Serve(void* stream, int32_t n, T* r, const Map& map) {
    State* s = StateOf<State>(stream);
    if (s->buffer == nullptr) return QES_STATUS_NULL_POINTER;
    if (n <= 0) return QES_STATUS_OK;
    const int32_t size = s->bufferSize;
    int32_t avail = size - s->freeCount;
    if (n <= avail) {
        Copy(s->buffer, size, s->nextIndex, n, r, map);
        s->nextIndex = Advance(s->nextIndex, n, size);
        s->freeCount += n;
        return QES_STATUS_OK;
    }
    Copy(s->buffer, size, s->nextIndex, avail, r, map);
    s->nextIndex = Advance(s->nextIndex, avail, size);
    s->freeCount = size;
    int32_t done = avail;
    while (done < n) {
        const int32_t free = s->freeCount;
        // The first free index follows the unread elements.
        int32_t start = Advance(s->nextIndex, size - free, size);
        // The callback is handed copies: what it does to them moves nothing here.
        int32_t minimum = n - done < free ? n - done : free;
        int32_t maximum = free, startArg = start;
        int32_t got = s->callback(stream, &s->bufferSize, s->buffer, &minimum, &maximum, &startArg);
        if (got < 0 || got > free) return QES_RNG_STATUS_ABSTRACT_BAD_COUNT;
        if (got == 0) return QES_RNG_STATUS_ABSTRACT_ZERO_COUNT;
        int32_t take = got < n - done ? got : n - done;
        Copy(s->buffer, size, start, take, r + done, map);
        done += take;
        s->nextIndex = Advance(start, take, size);
        s->freeCount = free - got + take;
    }
    return QES_STATUS_OK;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesiBRngiAbstract(void* stream, int32_t n, void* r) {
    return Serve<IAbstractState>(stream, n, static_cast<uint32_t*>(r), Identity{});
}

// The scale is divided out once a call.
BRENN_EXPORT int32_t __qesdBRngdAbstract(void* stream, int32_t n, double* r, double a, double b) {
    const DAbstractState* s = StateOf<DAbstractState>(stream);
    Affine<double> map{s->bufferLow, (b - a) / (s->bufferHigh - s->bufferLow), a};
    return Serve<DAbstractState>(stream, n, r, map);
}

BRENN_EXPORT int32_t __qessBRngsAbstract(void* stream, int32_t n, float* r, float a, float b) {
    const SAbstractState* s = StateOf<SAbstractState>(stream);
    Affine<float> map{s->bufferLow, (b - a) / (s->bufferHigh - s->bufferLow), a};
    return Serve<SAbstractState>(stream, n, r, map);
}
