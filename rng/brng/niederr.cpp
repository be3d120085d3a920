// Niederr: the base-2 Niederreiter sequence from irreducible polynomials over GF(2),
// built in for 318 coordinates (rng/brng/niederr_table.cpp) or from the caller's
// polynomials (mode 1) or direction numbers (mode 4). Up to 318 coordinates live in
// the state; wider tables in a private chunk (tag 10) of 33 words a coordinate:
// its 32 direction numbers, then its coordinate of the current point.
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/brng/loadable.h"
#include "rng/brng/qrng_core.h"

namespace brenn::rng {

namespace {

enum NiederrMode : uint32_t { kBuiltIn = 0, kPolynomials = 1, kDirections = 4 };

struct NiederrSource {
    uint32_t mode;
    int64_t dim;
    const uint32_t* params;
};

void NiederrCoordinate(const void* source, int32_t j, uint32_t* out) {
    const NiederrSource& t = *static_cast<const NiederrSource*>(source);
    if (t.mode == kPolynomials)
        NiederrDirections(t.params[3 + j], out);
    else if (t.mode == kDirections)
        memcpy(out, t.params + 3 + static_cast<int64_t>(j) * kQrngBits, kQrngBits * 4);
    else
        memcpy(out, kNiederrDirections[j], kQrngBits * 4);
}

// The user table that params select, or mode kBuiltIn when a test fails.
NiederrSource ReadUserTable(int32_t n, const uint32_t* params) {
    const int64_t dim = static_cast<int32_t>(params[0]);
    NiederrSource t = {params[2], dim, params};
    bool fits = dim >= 1;
    if (t.mode == kPolynomials) {
        fits = fits && n >= dim + 3;
        for (int64_t j = 0; fits && j < dim; ++j) {
            const int e = PolyDegree(params[3 + j]);
            fits = e >= 1 && e <= 31;
        }
    } else {
        fits = fits && t.mode == kDirections && n >= kQrngBits * dim + 3;
    }
    if (!fits) t.mode = kBuiltIn;
    return t;
}

int32_t MakeChunk(void* stream, const NiederrSource& t) {
    const int64_t bytes = 4 * kDirectionSlots * t.dim;
    if (bytes > UINT32_MAX) return QES_STATUS_NO_MEMORY;
    auto* table = static_cast<uint32_t*>(brenn_serv_allocate(bytes, kStreamAlignment));
    if (table == nullptr) return QES_STATUS_NO_MEMORY;
    for (int32_t j = 0; j < t.dim; ++j) {
        uint32_t* row = table + static_cast<int64_t>(j) * kDirectionSlots;
        NiederrCoordinate(&t, j, row);
        row[kQrngBits] = row[0];
    }
    if (__qesAddChunk(stream, kChunkNiederrTable, nullptr, table, static_cast<uint32_t>(bytes)) !=
        0) {
        brenn_serv_deallocate(table);
        return QES_STATUS_NO_MEMORY;
    }
    return QES_STATUS_OK;
}

int32_t Seed(void* stream, int32_t n, const uint32_t* params) {
    NiederrSource t = {kBuiltIn, n >= 1 ? static_cast<int32_t>(params[0]) : 1, params};
    if (n >= 3 && params[1] == 1) t = ReadUserTable(n, params);
    if (t.mode == kBuiltIn && (t.dim < 1 || t.dim > kNiederrMaxDimension)) t.dim = 1;
    const auto dim = static_cast<int32_t>(t.dim);
    if (dim > kNiederrMaxDimension) {
        FillState(stream, kNiederrShape, dim, 0, NiederrCoordinate, &t);
        return MakeChunk(stream, t);
    }
    FillState(stream, kNiederrShape, dim, dim, NiederrCoordinate, &t);
    return QES_STATUS_OK;
}

QrngView View(void* stream) {
    auto* table = static_cast<uint32_t*>(__qesSearchChunk(stream, kChunkNiederrTable));
    if (table == nullptr) return StateView(stream, kNiederrShape);
    return {StateOf<QrngHead>(stream),
            table + kQrngBits,
            kDirectionSlots,
            table,
            1,
            kDirectionSlots,
            true};
}

} // namespace

bool NiederrLoadable(void* stream) {
    const QrngHead& h = *StateOf<QrngHead>(stream);
    const int64_t table = ChunkBytes(stream, kChunkNiederrTable);
    if (table < 0) return QrngHeadSane(h, kNiederrMaxDimension);
    return QrngHeadSane(h, INT32_MAX) && table >= 4 * int64_t{kDirectionSlots} * h.dimension;
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngNiederrInitStream(int32_t method, void* stream, int32_t n,
                                                const void* params) {
    return QrngInit(method, stream, n, params, Seed, View);
}

BRENN_EXPORT int32_t __qesiBRngNiederr(void* stream, int32_t n, void* r) {
    return QrngGenerateWords(View(stream), n, static_cast<uint32_t*>(r));
}

BRENN_EXPORT int32_t __qesdBRngNiederr(void* stream, int32_t n, double* r, double a, double b) {
    return QrngGenerateDoubles(View(stream), n, r, a, b);
}

BRENN_EXPORT int32_t __qessBRngNiederr(void* stream, int32_t n, float* r, float a, float b) {
    return QrngGenerateFloats(View(stream), n, r, a, b);
}
