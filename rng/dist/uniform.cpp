// The uniform distribution generators: single and double uniforms straight from the
// basic generator's real entries (with the optional clamp to [a, b]), and integer
// uniforms as floors of double uniforms taken in blocks. A stream whose generator is
// not built (or whose id is unknown) is refused before any entry is called.
#include <math.h>

#include "frame/export.h"
#include "rng/core/stream.h"

using namespace brenn::rng;

namespace {

constexpr int32_t kBlock = 1024;

// Rounding of a + u (b - a) can reach b or fall below a; the accurate mode puts such
// results back on the interval.
template <typename T>
void Clamp(int32_t n, T* r, T a, T b) {
    for (int32_t i = 0; i < n; ++i) {
        T v = r[i] < a ? a : r[i];
        r[i] = v > b ? b : v;
    }
}

} // namespace

BRENN_EXPORT int32_t _qessRngUniform(int32_t method, void* stream, int32_t n, float* r, float a,
                                     float b) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    int32_t status = row->sGenerate(stream, n, r, a, b);
    if (status < 0) return status;
    if ((method & QES_RNG_METHOD_UNIFORM_ACCURATE) && n >= 1) Clamp(n, r, a, b);
    return status;
}

BRENN_EXPORT int32_t _qesdRngUniform(int32_t method, void* stream, int32_t n, double* r, double a,
                                     double b) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    int32_t status = row->dGenerate(stream, n, r, a, b);
    if (status < 0) return status;
    if ((method & QES_RNG_METHOD_UNIFORM_ACCURATE) && n >= 1) Clamp(n, r, a, b);
    return status;
}

BRENN_EXPORT int32_t _qesiRngUniform(int32_t method, void* stream, int32_t n, int32_t* r, int32_t a,
                                     int32_t b) {
    double da = a, db = b;
    double scratch[kBlock];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        int32_t block = n - done < kBlock ? n - done : kBlock;
        status = _qesdRngUniform(0, stream, block, scratch, da, db);
        if (status < 0) return status;
        for (int32_t i = 0; i < block; ++i)
            r[done + i] = static_cast<int32_t>(floor(scratch[i]));
        done += block;
    }
    return status;
}

BRENN_EXPORT int32_t _qesiRngUniformBits(int32_t method, void* stream, int32_t n, void* r) {
    const BrngRecord* row = BuiltRowOf(stream);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    return row->iGenerate(stream, n, r);
}
