/* The machinery that the Sobol and Niederreiter generators share: the state record
 * after the stream header, the view of a stream's point and direction numbers
 * (in the state or in chunks), generation in Gray-code order, and the two jumps.
 * The generators differ only in their tables, limits and chunk layouts. */
#ifndef BRENN_RNG_BRNG_QRNG_CORE_H
#define BRENN_RNG_BRNG_QRNG_CORE_H

#include <stddef.h>
#include <stdint.h>

#include "rng/brng/qrng_tables.h"
#include "rng/core/stream.h"

namespace brenn::rng {

constexpr uint32_t kNoLeap = 0xFFFFFFFFu;
constexpr int kDirectionSlots = 33; // 32 direction numbers and one spare word
constexpr int kChunkSobolRows = 9, kChunkNiederrTable = 10, kChunkSobolPoint = 13;

struct QrngHead {
    uint32_t counter;       // number of the current point; 1 at the start
    int32_t dimension;      // coordinates per point
    uint32_t leapDimension; // kNoLeap, or the one coordinate served
    int32_t component;      // coordinates of the current point still to deliver
};

// Shape of a generator's state: point[capacity], directions[capacity][33], then
// 32 rows of rowWords words, row b holding direction number b of each coordinate.
struct QrngShape {
    int32_t capacity;
    int32_t rowWords;
};
constexpr QrngShape kSobolShape = {kSobolMaxDimension, 48};
constexpr QrngShape kNiederrShape = {kNiederrMaxDimension, 320};

struct QrngState {
    QrngHead* head;
    uint32_t* point;
    uint32_t* directions;
    uint32_t* rows;
};

inline QrngState StateParts(void* stream, QrngShape shape) {
    QrngHead* h = StateOf<QrngHead>(stream);
    uint32_t* point = reinterpret_cast<uint32_t*>(h + 1);
    uint32_t* directions = point + shape.capacity;
    return {h, point, directions, directions + kDirectionSlots * shape.capacity};
}

// Where generation finds the current point and the direction numbers: coordinate j
// of the point at point[j pointStride], its direction number b at
// dirs[b rowStride + j colStride]. `chunk` selects the 32-bit element forms.
struct QrngView {
    QrngHead* head;
    uint32_t* point;
    ptrdiff_t pointStride;
    const uint32_t* dirs;
    ptrdiff_t rowStride, colStride;
    bool chunk;
    uint32_t& Point(int64_t j) const { return point[j * pointStride]; }
    uint32_t Dir(int64_t j, int b) const { return dirs[b * rowStride + j * colStride]; }
};

inline QrngView StateView(void* stream, QrngShape shape) {
    QrngState s = StateParts(stream, shape);
    return {s.head, s.point, 1, s.rows, shape.rowWords, 1, false};
}

// Index of the lowest zero bit; all ones takes 0.
inline int LowZero(uint32_t counter) {
    uint32_t z = ~counter;
    return z == 0 ? 0 : __builtin_ctz(z);
}

// The 32 direction numbers of coordinate j of a table described by `source`.
using CoordinateFn = void (*)(const void* source, int32_t j, uint32_t* out);

// Clears the state and writes the tables of `dimension` coordinates (0 when they
// lie in chunks, else at most the capacity): directions[j], the rows, and the first
// point; counter 1, no leap, component 0, and `dimension` in the head.
void FillState(void* stream, QrngShape shape, int32_t dimension, int32_t stateDimension,
               CoordinateFn coordinate, const void* source);

// XOR of the direction numbers of the rows in the bit mask `rows` into the point.
void XorRows(const QrngView& v, uint32_t rows);

// Whether a head read from an image is one that seeding and the entries could have
// left: 1 to `dims` coordinates, a leap coordinate among them, fewer coordinates
// still to deliver than a point has. The entries index by these fields unchecked.
bool QrngHeadSane(const QrngHead& h, int64_t dims);

// Bytes of the chunk that __qesSearchChunk finds for `id`; -1 when there is none.
int64_t ChunkBytes(const void* stream, int32_t id);

// Entries shared by both generators once the view is found.
int32_t QrngGenerateWords(const QrngView& v, int32_t n, uint32_t* r);
int32_t QrngGenerateDoubles(const QrngView& v, int32_t n, double* r, double a, double b);
int32_t QrngGenerateFloats(const QrngView& v, int32_t n, float* r, float a, float b);
int32_t QrngLeapfrog(const QrngView& v, int32_t n, const void* params);
int32_t QrngSkip(const QrngView& v, int32_t n, const void* params);

// Initial-method dispatch: method 0 by `seed`, the jumps on `view`.
template <typename Seed, typename View>
int32_t QrngInit(int32_t method, void* stream, int32_t n, const void* params, Seed seed,
                 View view) {
    switch (method) {
    case QES_INIT_SEED:
        return seed(stream, n, static_cast<const uint32_t*>(params));
    case QES_INIT_LEAPFROG:
        return QrngLeapfrog(view(stream), n, params);
    case QES_INIT_SKIP:
        return QrngSkip(view(stream), n, params);
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

} // namespace brenn::rng

#endif
