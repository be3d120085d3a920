// Abstract streams: the three constructors, the seeding entries of the three kinds
// and the stub that stands in every output entry of the wrong kind. A constructor
// checks its arguments, makes the record by the kind's registry row (as for any
// stream) and hands the kind's seeding a record of the arguments.
#include "frame/export.h"
#include "rng/core/abstract.h"

namespace brenn::rng {

namespace {

constexpr int32_t kIFamily = 9, kDFamily = 10, kSFamily = 11;

template <typename State>
int32_t NewAbstract(void** stream, int32_t family, int32_t id, const State& args) {
    // Validates the family first, then allocates its stateSize.
    int32_t status = __qesAllocateStream(stream, __RegBrngsNew, id, family, 0);
    if (status != QES_STATUS_OK) return status;
    return __RegBrngsNew[family].initStream(QES_INIT_SEED, *stream, 0, &args);
}

// Pointers non-null and a buffer of at least one element; a negative size would
// make every index of the buffer a wrong one.
bool Plain(void** stream, int32_t bufferSize, const void* buffer, const void* callback) {
    return stream != nullptr && buffer != nullptr && callback != nullptr && bufferSize > 0;
}

template <typename State>
int32_t InitAbstract(int32_t method, void* stream, const void* params) {
    if (method != QES_INIT_SEED) return NoJumpStatus(method);
    State* s = StateOf<State>(stream);
    *s = *static_cast<const State*>(params);
    s->nextIndex = 0;
    s->freeCount = s->bufferSize; // the buffer counts as empty
    return QES_STATUS_OK;
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
