// Abstract streams: the three constructors, the seeding entries of the three kinds
// and the stub that stands in every output entry of the wrong kind. A constructor
// checks its arguments, makes the record by the kind's registry row and hands the
// kind's seeding a record of the arguments.
#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/abstract.h"

namespace brenn::rng {

namespace {

constexpr int32_t kIFamily = 9, kDFamily = 10, kSFamily = 11;

template <typename State>
int32_t NewAbstract(void** stream, int32_t family, int32_t id, const State& args) {
    if (__qesIsBrngValid(__RegBrngsNew, family, 0) != QES_STATUS_OK) return QES_RNG_STATUS_BAD_BRNG;
    const BrngRecord& row = __RegBrngsNew[family];
    void* p = brenn_serv_allocate(static_cast<size_t>(row.stateSize), kStreamAlignment);
    if (p == nullptr) return QES_STATUS_NO_MEMORY;
    *stream = p;
    StreamHeader* h = Header(p);
    h->brng = id;
    h->headerTag = 1;
    h->headerByte = 0;
    h->headerWord = 0;
    h->chunkSlot = 0;
    return row.initStream(QES_INIT_SEED, p, 0, &args);
}

// Pointers non-null and a buffer of at least one element; a negative size would
// make every index of the buffer a wrong one.
bool Plain(void** stream, int32_t bufferSize, const void* buffer, const void* callback) {
    return stream != nullptr && buffer != nullptr && callback != nullptr && bufferSize > 0;
}

template <typename State>
int32_t InitAbstract(int32_t method, void* stream, const void* params) {
    switch (method) {
    case QES_INIT_SEED: {
        State* s = StateOf<State>(stream);
        *s = *static_cast<const State*>(params);
        s->nextIndex = 0;
        s->freeCount = s->bufferSize; // the buffer counts as empty
        return QES_STATUS_OK;
    }
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

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesiNewAbstractStream(void** stream, int32_t bufferSize, uint32_t* buffer,
                                             QesIAbstractCallback callback) {
    if (!Plain(stream, bufferSize, buffer, reinterpret_cast<const void*>(callback)))
        return QES_STATUS_BAD_ARGUMENT;
    IAbstractState args{bufferSize, 0, 0, buffer, callback};
    return NewAbstract(stream, kIFamily, QES_BRNG_IABSTRACT, args);
}

// The interval test is !(low >= high): a NaN bound passes it.
BRENN_EXPORT int32_t __qesdNewAbstractStream(void** stream, int32_t bufferSize, double* buffer,
                                             double low, double high,
                                             QesDAbstractCallback callback) {
    if (!Plain(stream, bufferSize, buffer, reinterpret_cast<const void*>(callback)) || low >= high)
        return QES_STATUS_BAD_ARGUMENT;
    DAbstractState args{bufferSize, 0, 0, low, high, buffer, callback};
    return NewAbstract(stream, kDFamily, QES_BRNG_DABSTRACT, args);
}

BRENN_EXPORT int32_t __qessNewAbstractStream(void** stream, int32_t bufferSize, float* buffer,
                                             float low, float high, QesSAbstractCallback callback) {
    if (!Plain(stream, bufferSize, buffer, reinterpret_cast<const void*>(callback)) || low >= high)
        return QES_STATUS_BAD_ARGUMENT;
    SAbstractState args{bufferSize, 0, 0, low, high, buffer, callback};
    return NewAbstract(stream, kSFamily, QES_BRNG_SABSTRACT, args);
}

BRENN_EXPORT int32_t __qesBRngiAbstractInitStream(int32_t method, void* stream, int32_t,
                                                  const void* params) {
    return InitAbstract<IAbstractState>(method, stream, params);
}

BRENN_EXPORT int32_t __qesBRngdAbstractInitStream(int32_t method, void* stream, int32_t,
                                                  const void* params) {
    return InitAbstract<DAbstractState>(method, stream, params);
}

BRENN_EXPORT int32_t __qesBRngsAbstractInitStream(int32_t method, void* stream, int32_t,
                                                  const void* params) {
    return InitAbstract<SAbstractState>(method, stream, params);
}

// The output entry of the wrong kind, in whichever slot: nothing is read or written.
BRENN_EXPORT int32_t __qesdBRngiAbstract(void*, int32_t, double*, double, double) {
    return QES_RNG_STATUS_ABSTRACT_WRONG_KIND;
}
