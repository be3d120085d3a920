// Random-number entries of the front-end: the checks the stream and distribution
// entries leave to their caller (ids outside the registry, generators not built,
// null pointers, counts, parameter ranges, image lengths), then the service's call.
#include <string.h>

#include "brenn_rand.h"
#include "frontend/export.h"
#include "frontend/rng_checks.h"

namespace {

using brenn::fe::CheckDraw;
using brenn::fe::Conclude;
using brenn::fe::Raw;

} // namespace

BRENN_FE_EXPORT int brenn_rng_check_brng(int brng) {
    if (brng < 0) return QES_RNG_STATUS_BAD_BRNG;
    int32_t family = 0, member = 0;
    const BrngRecord* table = __qesGetBrngBaseOffset(brng, &family, &member);
    if (__qesIsBrngValid(table, family, member) != QES_STATUS_OK) return QES_RNG_STATUS_BAD_BRNG;
    BrngRecord record;
    if (__qesGetBrngProperties(brng, &record) != QES_STATUS_OK) return QES_RNG_STATUS_BAD_BRNG;
    if (record.initStream == nullptr || record.iGenerate == nullptr) return BRENN_ERR_NOT_AVAILABLE;
    return BRENN_OK;
}

BRENN_FE_EXPORT int brenn_rng_new_ex(brenn_stream** stream, int brng, int n,
                                     const uint32_t* params) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    *stream = nullptr;
    if (n < 0) return BRENN_ERR_BAD_SIZE;
    if (n > 0 && params == nullptr) return BRENN_ERR_NULL_POINTER;
    if (int s = brenn_rng_check_brng(brng)) return s;
    return Conclude(stream, __qesNewStreamEx(Raw(stream), brng, n, params));
}

BRENN_FE_EXPORT int brenn_rng_new(brenn_stream** stream, int brng, uint32_t seed) {
    return brenn_rng_new_ex(stream, brng, 1, &seed);
}

BRENN_FE_EXPORT int brenn_rng_delete(brenn_stream** stream) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    if (*stream != nullptr) __qesDeleteStream(Raw(stream));
    *stream = nullptr;
    return BRENN_OK;
}

BRENN_FE_EXPORT int brenn_rng_copy(brenn_stream** copy, const brenn_stream* source) {
    if (copy == nullptr) return BRENN_ERR_NULL_POINTER;
    *copy = nullptr;
    if (source == nullptr) return BRENN_ERR_NULL_POINTER;
    return Conclude(copy, __qesCopyStream(Raw(copy), source));
}

BRENN_FE_EXPORT int brenn_rng_get_brng(const brenn_stream* stream, int* brng) {
    if (stream == nullptr || brng == nullptr) return BRENN_ERR_NULL_POINTER;
    *brng = __qesGetStreamStateBrng(stream);
    return BRENN_OK;
}

BRENN_FE_EXPORT int brenn_rng_skip_ahead(brenn_stream* stream, uint64_t nskip) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    return __qesSkipAheadStream(stream, nskip);
}

BRENN_FE_EXPORT int brenn_rng_leapfrog(brenn_stream* stream, int k, int nstreams) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    if (nstreams < 1 || k < 0 || k >= nstreams) return BRENN_ERR_BAD_ARGUMENT;
    return __qesLeapfrogStream(stream, k, nstreams);
}

BRENN_FE_EXPORT int brenn_rng_image_size(const brenn_stream* stream, int64_t* size) {
    if (stream == nullptr || size == nullptr) return BRENN_ERR_NULL_POINTER;
    *size = __qesGetStreamSize(stream);
    return BRENN_OK;
}

BRENN_FE_EXPORT int brenn_rng_save_memory(const brenn_stream* stream, void* memory, int64_t size) {
    if (stream == nullptr || memory == nullptr) return BRENN_ERR_NULL_POINTER;
    if (size < __qesGetStreamSize(stream)) return BRENN_ERR_BAD_SIZE;
    return __qesSaveStreamM(stream, memory);
}

BRENN_FE_EXPORT int brenn_rng_load_memory(brenn_stream** stream, const void* memory, int64_t size) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    *stream = nullptr;
    if (memory == nullptr) return BRENN_ERR_NULL_POINTER;
    // The version-2 header: 24 bytes, the state's length at offset 12. A shorter
    // block cannot hold an image whatever its chunks.
    constexpr int64_t kHeader = 24;
    if (size < kHeader) return QES_RNG_STATUS_BAD_IMAGE_FORMAT;
    uint32_t stateBytes;
    memcpy(&stateBytes, static_cast<const char*>(memory) + 12, sizeof stateBytes);
    if (static_cast<int64_t>(stateBytes) > size - kHeader) return QES_RNG_STATUS_BAD_IMAGE_FORMAT;
    int status = Conclude(stream, __qesLoadStreamM(Raw(stream), memory));
    if (status >= 0 && __qesGetStreamSize(*stream) > size) {
        __qesDeleteStream(Raw(stream));
        *stream = nullptr;
        return QES_RNG_STATUS_BAD_IMAGE_FORMAT;
    }
    return status;
}

BRENN_FE_EXPORT int brenn_rng_save_file(const brenn_stream* stream, const char* path) {
    if (stream == nullptr || path == nullptr) return BRENN_ERR_NULL_POINTER;
    return __qesSaveStreamF(stream, path, static_cast<int32_t>(strlen(path)));
}

BRENN_FE_EXPORT int brenn_rng_load_file(brenn_stream** stream, const char* path) {
    if (stream == nullptr) return BRENN_ERR_NULL_POINTER;
    *stream = nullptr;
    if (path == nullptr) return BRENN_ERR_NULL_POINTER;
    return Conclude(stream,
                    __qesLoadStreamF(Raw(stream), path, static_cast<int32_t>(strlen(path))));
}

BRENN_FE_EXPORT int brenn_rng_uniform_f32(brenn_stream* stream, int method, int n, float* r,
                                          float a, float b) {
    if (int s = CheckDraw(stream, n, r)) return s;
    if (!(a < b)) return BRENN_ERR_BAD_ARGUMENT;
    return _qessRngUniform(method, stream, n, r, a, b);
}

BRENN_FE_EXPORT int brenn_rng_uniform_f64(brenn_stream* stream, int method, int n, double* r,
                                          double a, double b) {
    if (int s = CheckDraw(stream, n, r)) return s;
    if (!(a < b)) return BRENN_ERR_BAD_ARGUMENT;
    return _qesdRngUniform(method, stream, n, r, a, b);
}

BRENN_FE_EXPORT int brenn_rng_uniform_i32(brenn_stream* stream, int method, int n, int32_t* r,
                                          int32_t a, int32_t b) {
    if (int s = CheckDraw(stream, n, r)) return s;
    if (a >= b) return BRENN_ERR_BAD_ARGUMENT;
    return _qesiRngUniform(method, stream, n, r, a, b);
}

BRENN_FE_EXPORT int brenn_rng_bits_raw(brenn_stream* stream, int n, void* r) {
    if (int s = CheckDraw(stream, n, r)) return s;
    return _qesiRngUniformBits(0, stream, n, r);
}

BRENN_FE_EXPORT int brenn_rng_bits_u32(brenn_stream* stream, int n, uint32_t* r) {
    if (int s = CheckDraw(stream, n, r)) return s;
    return _qesiRngUniformBits32(0, stream, n, r);
}

BRENN_FE_EXPORT int brenn_rng_bits_u64(brenn_stream* stream, int n, uint64_t* r) {
    if (int s = CheckDraw(stream, n, r)) return s;
    return _qesiRngUniformBits64(0, stream, n, r);
}

BRENN_FE_EXPORT int brenn_rng_bernoulli_i32(brenn_stream* stream, int n, int32_t* r, double p) {
    if (int s = CheckDraw(stream, n, r)) return s;
    if (!(p >= 0.0 && p <= 1.0)) return BRENN_ERR_BAD_ARGUMENT;
    return _qesiRngBernoulli(0, stream, n, r, p);
}

BRENN_FE_EXPORT int brenn_rng_geometric_i32(brenn_stream* stream, int n, int32_t* r, double p) {
    if (int s = CheckDraw(stream, n, r)) return s;
    if (!(p > 0.0 && p < 1.0)) return BRENN_ERR_BAD_ARGUMENT;
    return _qesiRngGeometric(0, stream, n, r, p);
}
