// The abstract-stream constructors of the front-end: the checks the service leaves to
// its caller (a NaN bound passes there), then its constructor, with no stream left
// when it fails.
#include <cmath>

#include "brenn_rand_abstract.h"
#include "frontend/export.h"
#include "frontend/rng_checks.h"

namespace {

using brenn::fe::Conclude;
using brenn::fe::Raw;

// The refusal of a making, or BRENN_OK; *stream is null either way.
int Refusal(brenn_stream** stream, int size, const void* buffer, const void* refill) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    *stream = nullptr;
    if (size < 1) return BRENN_ERR_BAD_SIZE;
    if (buffer == nullptr || refill == nullptr) return BRENN_ERR_NULL_POINTER;
    return BRENN_OK;
}

template <class T>
bool Bounds(T low, T high) {
    return std::isfinite(low) && std::isfinite(high) && low < high;
}

} // namespace

BRENN_FE_EXPORT int brenn_rng_new_abstract_u32(brenn_stream** stream, int size, uint32_t* buffer,
                                               QesIAbstractCallback refill) {
    if (int s = Refusal(stream, size, buffer, reinterpret_cast<const void*>(refill))) return s;
    return Conclude(stream, __qesiNewAbstractStream(Raw(stream), size, buffer, refill));
}

BRENN_FE_EXPORT int brenn_rng_new_abstract_f64(brenn_stream** stream, int size, double* buffer,
                                               double low, double high,
                                               QesDAbstractCallback refill) {
    if (int s = Refusal(stream, size, buffer, reinterpret_cast<const void*>(refill))) return s;
    if (!Bounds(low, high)) return BRENN_ERR_BAD_ARGUMENT;
    return Conclude(stream, __qesdNewAbstractStream(Raw(stream), size, buffer, low, high, refill));
}

BRENN_FE_EXPORT int brenn_rng_new_abstract_f32(brenn_stream** stream, int size, float* buffer,
                                               float low, float high, QesSAbstractCallback refill) {
    if (int s = Refusal(stream, size, buffer, reinterpret_cast<const void*>(refill))) return s;
    if (!Bounds(low, high)) return BRENN_ERR_BAD_ARGUMENT;
    return Conclude(stream, __qessNewAbstractStream(Raw(stream), size, buffer, low, high, refill));
}
