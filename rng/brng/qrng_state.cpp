// State set-up and the two jumps of the quasi-random generators: filling the
// state from direction numbers, advancing the point by a set of rows, leapfrog by coordinate (a
// stream that serves one coordinate of every point) and skip-ahead by coordinates, which forms a
// point directly from the Gray code of its number.
#include <emmintrin.h>
#include <string.h>

#include "rng/brng/qrng_core.h"

namespace brenn::rng {

namespace {

// Coordinate j of point number `counter`: the XOR of the direction numbers at the
// set bits of counter ^ (counter >> 1), taken as v(0) for bit 0 and v(i) ^ v(i - 1)
// for each further set bit i of counter.
uint32_t GrayCoordinate(const QrngView& v, int64_t j, uint32_t counter) {
    uint32_t x = (counter & 1) ? v.Dir(j, 0) : 0;
    for (uint32_t rest = counter >> 1, i = 0; rest != 0; rest >>= 1, ++i)
        if (rest & 1) x ^= v.Dir(j, i + 1) ^ v.Dir(j, i);
    return x;
}

} // namespace

void FillState(void* stream, QrngShape shape, int32_t dimension, int32_t stateDimension,
               CoordinateFn coordinate, const void* source) {
    QrngState s = StateParts(stream, shape);
    const size_t words = static_cast<size_t>(shape.capacity) * (1 + kDirectionSlots) +
                         static_cast<size_t>(kQrngBits) * shape.rowWords;
    memset(s.point, 0, words * sizeof(uint32_t));
    for (int32_t j = 0; j < stateDimension; ++j) {
        uint32_t v[kQrngBits];
        coordinate(source, j, v);
        for (int b = 0; b < kQrngBits; ++b) {
            s.directions[j * kDirectionSlots + b] = v[b];
            s.rows[b * shape.rowWords + j] = v[b];
        }
        s.point[j] = v[0];
    }
    *s.head = {1, dimension, kNoLeap, 0};
}

void XorRows(const QrngView& v, uint32_t rows) {
    const int32_t d = v.head->dimension;
    int32_t j = 0;
    if (v.pointStride == 1 && v.colStride == 1) {
        for (; j + 4 <= d; j += 4) {
            __m128i* at = reinterpret_cast<__m128i*>(v.point + j);
            __m128i x = _mm_loadu_si128(at);
            for (uint32_t u = rows; u != 0; u &= u - 1)
                x = _mm_xor_si128(x, _mm_loadu_si128(reinterpret_cast<const __m128i*>(
                                         v.dirs + __builtin_ctz(u) * v.rowStride + j)));
            _mm_storeu_si128(at, x);
        }
    }
    for (; j < d; ++j) {
        uint32_t x = v.Point(j);
        for (uint32_t u = rows; u != 0; u &= u - 1)
            x ^= v.Dir(j, __builtin_ctz(u));
        v.Point(j) = x;
    }
}

bool QrngHeadSane(const QrngHead& h, int64_t dims) {
    return h.dimension >= 1 && h.dimension <= dims && h.component >= 0 &&
           h.component < h.dimension &&
           (h.leapDimension == kNoLeap || h.leapDimension < static_cast<uint32_t>(h.dimension));
}

int64_t ChunkBytes(const void* stream, int32_t id) {
    for (const QesChunk* c = Header(stream)->chunks; c != nullptr; c = c->next)
        if (c->id == id) return c->size;
    return -1;
}

int32_t QrngLeapfrog(const QrngView& v, int32_t n, const void* params) {
    QrngHead* h = v.head;
    const uint32_t k = *static_cast<const uint32_t*>(params);
    if (n != 0x7FFFFFFF || k >= static_cast<uint32_t>(h->dimension))
        return QES_RNG_STATUS_NO_LEAPFROG;
    if (h->leapDimension == k) return QES_STATUS_OK;
    if (h->leapDimension != kNoLeap) {
        // The new coordinate starts at the next point.
        ++h->counter;
        v.Point(k) = GrayCoordinate(v, k, h->counter);
    } else if (h->component != 0 && k < static_cast<uint32_t>(h->dimension - h->component)) {
        // Coordinate k of the current point was delivered already.
        v.Point(k) ^= v.Dir(k, LowZero(h->counter));
        ++h->counter;
    }
    h->component = 0;
    h->leapDimension = k;
    return QES_STATUS_OK;
}

int32_t QrngSkip(const QrngView& v, int32_t n, const void* params) {
    QrngHead* h = v.head;
    if (n < 1) return QES_RNG_STATUS_NO_SKIPAHEAD;
    const uint64_t nskip = *static_cast<const uint64_t*>(params);
    const uint64_t d = static_cast<uint64_t>(h->dimension);
    uint64_t q = nskip / d;
    if (q >= 0xFFFFFFFFull || q + h->counter >= 0xFFFFFFFFull) return QES_RNG_STATUS_NO_SKIPAHEAD;
    const uint64_t component = static_cast<uint64_t>(h->component);
    if (nskip < component) {
        h->component -= static_cast<int32_t>(nskip);
        return QES_STATUS_OK;
    }
    uint64_t rest;
    if (component > 0) {
        // Finishing the current point counts as one point.
        const uint64_t s = nskip - component;
        q = s / d + 1;
        rest = s % d;
    } else {
        rest = nskip % d;
    }
    h->component = rest == 0 ? 0 : static_cast<int32_t>(d - rest);
    if (q == 0) return QES_STATUS_OK;
    h->counter += static_cast<uint32_t>(q);
    for (uint64_t j = 0; j < d; ++j)
        v.Point(static_cast<int64_t>(j)) = GrayCoordinate(v, static_cast<int64_t>(j), h->counter);
    return QES_STATUS_OK;
}

} // namespace brenn::rng
