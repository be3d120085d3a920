/* Checked byte counts. Every block whose size grows with a caller's count (elements,
 * dimensions, observations, sites) is sized through these, so that a count near the
 * top of its type gives the allocation status instead of a small block that the
 * caller's count then overruns. They also refuse sizes that the allocator's alignment
 * padding would wrap and, on 32-bit targets, sizes that do not fit a size_t. */
#ifndef BRENN_PLATFORM_BYTES_H
#define BRENN_PLATFORM_BYTES_H

#include <stddef.h>
#include <stdint.h>

#ifdef __cplusplus

// Headroom kept below SIZE_MAX for the allocator's alignment and bookkeeping.
inline constexpr size_t kBytesCeiling = SIZE_MAX / 2;

// count * width in *bytes; false when count is negative or the product passes the
// ceiling.
template <typename Count>
inline bool BytesFor(Count count, size_t width, size_t* bytes) {
    if (count < 0) return false;
    unsigned long long n = static_cast<unsigned long long>(count), product;
    if (__builtin_mul_overflow(n, static_cast<unsigned long long>(width), &product)) return false;
    if (product > kBytesCeiling) return false;
    *bytes = static_cast<size_t>(product);
    return true;
}

// *total += more, false when the sum passes the ceiling.
inline bool AddBytes(size_t* total, size_t more) {
    size_t sum;
    if (__builtin_add_overflow(*total, more, &sum) || sum > kBytesCeiling) return false;
    *total = sum;
    return true;
}

// *total += count * width, false on any overflow or a negative count.
template <typename Count>
inline bool AddBytesFor(size_t* total, Count count, size_t width) {
    size_t bytes;
    return BytesFor(count, width, &bytes) && AddBytes(total, bytes);
}

#endif /* __cplusplus */
#endif /* BRENN_PLATFORM_BYTES_H */
