// Strided operands of a vector-math call: the C-order walk over a result shape of an
// array with any strides (broadcast axes have stride 0, reversed ones a negative
// stride), its elements moved in runs to and from a contiguous block buffer.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace brenn_py {

struct Strided {
    char* base;                   // the element at index (0, ..., 0)
    std::vector<int64_t> strides; // bytes, one per axis of the walk
    size_t size;                  // bytes of one element: 4, 8 or 16
};

// Copies elements [at, at + count) of the walk over `shape` of `a` into `buffer`
// (gather) or from `buffer` into `a` (scatter).
void Gather(const Strided& a, const std::vector<int64_t>& shape, int64_t at, int64_t count,
            void* buffer);
void Scatter(const Strided& a, const std::vector<int64_t>& shape, int64_t at, int64_t count,
             const void* buffer);

} // namespace brenn_py
