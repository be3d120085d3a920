// Sobol: the quasi-random sequence from primitive polynomials over GF(2), built in
// for 40 coordinates (rng/brng/sobol_table.cpp) or from the caller's polynomials,
// initial numbers or whole direction tables. Up to 40 coordinates of polynomial
// tables live in the state; wider tables and whole user tables live in a shared
// chunk of direction rows (tag 9) with the point in a private one (tag 13).
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/brng/loadable.h"
#include "rng/brng/qrng_core.h"

namespace brenn::rng {

namespace {

enum SobolMode : uint32_t {
    kBuiltIn = 0,
    kPolynomials = 1,
    kInitials = 2,
    kBoth = 3,
    kDirections = 4,
    kBothFirstToo = 11,
};

// A table to build: the mode and where its parts lie in params.
struct SobolSource {
    uint32_t mode;
    int64_t dim;
    const uint32_t* params;
    int64_t maxDegree;
};

uint32_t PolynomialOf(const SobolSource& t, int32_t j) {
    switch (t.mode) {
    case kPolynomials:
    case kBoth:
        return j == 0 ? 1 : t.params[2 + j];
    case kBothFirstToo:
        return t.params[3 + j];
    default:
        return kSobolPolynomial[j];
    }
}

const uint32_t* InitialsOf(const SobolSource& t, int32_t j) {
    switch (t.mode) {
    case kInitials:
        return j == 0 ? kSobolInitial[0] : t.params + 4 + (j - 1) * t.maxDegree;
    case kBoth:
        return j == 0 ? kSobolInitial[0] : t.params + t.dim + 3 + (j - 1) * t.maxDegree;
    case kBothFirstToo:
        return t.params + t.dim + 4 + j * t.maxDegree;
    default:
        return kSobolInitial[j];
    }
}

void SobolCoordinate(const void* source, int32_t j, uint32_t* out) {
    const SobolSource& t = *static_cast<const SobolSource*>(source);
    if (t.mode == kDirections) {
        memcpy(out, t.params + 3 + static_cast<int64_t>(j) * kQrngBits, kQrngBits * 4);
        return;
    }
    SobolDirections(PolynomialOf(t, j), InitialsOf(t, j), out);
}

// Every polynomial of coordinates `first` on has at most maxDegree.
bool DegreesFit(const SobolSource& t, int32_t first) {
    for (int32_t j = first; j < t.dim; ++j)
        if (PolyDegree(PolynomialOf(t, j)) > t.maxDegree) return false;
    return true;
}

// The user table that params select, or mode kBuiltIn when a test fails; -3 for a
// mode-1 polynomial above degree 8.
int32_t ReadUserTable(int32_t n, const uint32_t* params, SobolSource* t) {
    const int64_t dim = static_cast<int32_t>(params[0]);
    *t = {params[2], dim, params, 0};
    bool fits = dim >= 1;
    switch (t->mode) {
    case kPolynomials:
        fits = fits && dim <= kSobolMaxDimension && n >= dim + 2;
        if (fits)
            for (int32_t j = 1; j < dim; ++j)
                if (PolyDegree(params[2 + j]) > kSobolInitialColumns)
                    return QES_STATUS_BAD_ARGUMENT;
        break;
    case kInitials:
        t->maxDegree = params[3];
        fits = fits && dim <= kSobolMaxDimension && n >= (dim - 1) * t->maxDegree + 4 &&
               DegreesFit(*t, 1);
        break;
    case kBoth:
        fits = fits && n >= dim + 3;
        if (fits) t->maxDegree = params[dim + 2];
        fits = fits && n >= (dim - 1) * (t->maxDegree + 1) + 4 && DegreesFit(*t, 1);
        break;
    case kBothFirstToo:
        fits = fits && n >= dim + 4;
        if (fits) t->maxDegree = params[dim + 3];
        fits = fits && n >= (t->maxDegree + 1) * dim + 4 && DegreesFit(*t, 0);
        break;
    case kDirections:
        fits = fits && n >= kQrngBits * dim + 3;
        break;
    default:
        fits = false;
    }
    if (!fits) t->mode = kBuiltIn;
    return QES_STATUS_OK;
}

// Row length in words of the tag-9 table: 4 dim with its low 6 bits cleared, plus 64,
// in bytes.
int64_t RowWords(int64_t dim) {
    return ((4 * dim & ~int64_t{63}) + 64) / 4;
}

// The shared direction rows under a new guid, then the private point. A failure
// leaves the chunks made before it on the stream.
int32_t MakeChunks(void* stream, const SobolSource& t) {
    const int64_t dim = t.dim, rowWords = RowWords(dim);
    const int64_t bytes = (64 * dim - 32 * ((4 * dim) & 63) + 2048) * 4;
    if (bytes > UINT32_MAX) return QES_STATUS_NO_MEMORY;
    auto* rows = static_cast<uint32_t*>(brenn_serv_allocate(bytes, kStreamAlignment));
    if (rows == nullptr) return QES_STATUS_NO_MEMORY;
    memset(rows, 0, static_cast<size_t>(bytes));
    for (int32_t j = 0; j < dim; ++j) {
        uint32_t v[kQrngBits];
        SobolCoordinate(&t, j, v);
        for (int b = 0; b < kQrngBits; ++b)
            rows[b * rowWords + j] = v[b];
    }
    uint64_t guid[2];
    __qesGenerateNewGlobalRODataTableEntryId(guid, kChunkSobolRows);
    if (__qesAddChunk(stream, kChunkSobolRows, guid, rows, static_cast<uint32_t>(bytes)) != 0) {
        brenn_serv_deallocate(rows);
        return QES_STATUS_NO_MEMORY;
    }
    auto* point = static_cast<uint32_t*>(brenn_serv_allocate(4 * dim, kStreamAlignment));
    if (point == nullptr) return QES_STATUS_NO_MEMORY;
    memcpy(point, rows, 4 * dim);
    if (__qesAddChunk(stream, kChunkSobolPoint, nullptr, point, static_cast<uint32_t>(4 * dim)) !=
        0) {
        brenn_serv_deallocate(point);
        return QES_STATUS_NO_MEMORY;
    }
    return QES_STATUS_OK;
}

int32_t Seed(void* stream, int32_t n, const uint32_t* params) {
    SobolSource t = {kBuiltIn, n >= 1 ? static_cast<int32_t>(params[0]) : 1, params, 0};
    if (n >= 4 && params[1] == 1) {
        int32_t status = ReadUserTable(n, params, &t);
        if (status != QES_STATUS_OK) return status;
    }
    if (t.mode == kBuiltIn && (t.dim < 1 || t.dim > kSobolMaxDimension)) t.dim = 1;
    const auto dim = static_cast<int32_t>(t.dim);
    if (t.mode == kDirections || dim > kSobolMaxDimension) {
        FillState(stream, kSobolShape, dim, 0, SobolCoordinate, &t);
        return MakeChunks(stream, t);
    }
    FillState(stream, kSobolShape, dim, dim, SobolCoordinate, &t);
    return QES_STATUS_OK;
}

QrngView View(void* stream) {
    auto* rows = static_cast<const uint32_t*>(__qesSearchChunk(stream, kChunkSobolRows));
    auto* point = static_cast<uint32_t*>(__qesSearchChunk(stream, kChunkSobolPoint));
    if (rows == nullptr || point == nullptr) return StateView(stream, kSobolShape);
    QrngHead* h = StateOf<QrngHead>(stream);
    return {h, point, 1, rows, RowWords(h->dimension), 1, true};
}

} // namespace

bool SobolLoadable(void* stream) {
    const QrngHead& h = *StateOf<QrngHead>(stream);
    const int64_t rows = ChunkBytes(stream, kChunkSobolRows);
    const int64_t point = ChunkBytes(stream, kChunkSobolPoint);
    if (rows < 0 || point < 0) return QrngHeadSane(h, kSobolMaxDimension);
    return QrngHeadSane(h, INT32_MAX) && rows >= 4 * kQrngBits * RowWords(h.dimension) &&
           point >= 4 * static_cast<int64_t>(h.dimension);
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngSobolInitStream(int32_t method, void* stream, int32_t n,
                                              const void* params) {
    return QrngInit(method, stream, n, params, Seed, View);
}

BRENN_EXPORT int32_t __qesiBRngSobol(void* stream, int32_t n, void* r) {
    return QrngGenerateWords(View(stream), n, static_cast<uint32_t*>(r));
}

BRENN_EXPORT int32_t __qesdBRngSobol(void* stream, int32_t n, double* r, double a, double b) {
    return QrngGenerateDoubles(View(stream), n, r, a, b);
}

BRENN_EXPORT int32_t __qessBRngSobol(void* stream, int32_t n, float* r, float a, float b) {
    return QrngGenerateFloats(View(stream), n, r, a, b);
}
