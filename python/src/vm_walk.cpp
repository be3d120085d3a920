// The C-order walk of strided operands: runs along the last axis, copied by memcpy
// where that axis is contiguous and element by element otherwise.
#include "python/src/vm_walk.h"

#include <algorithm>
#include <cstring>

namespace brenn_py {
namespace {

template <size_t kSize, bool kToBuffer>
void Run(char* p, int64_t stride, int64_t count, char* buffer) {
    for (int64_t i = 0; i < count; ++i, p += stride, buffer += kSize) {
        if constexpr (kToBuffer)
            std::memcpy(buffer, p, kSize);
        else
            std::memcpy(p, buffer, kSize);
    }
}

template <bool kToBuffer>
void Move(const Strided& a, const std::vector<int64_t>& shape, int64_t at, int64_t count,
          char* buffer) {
    const int nd = static_cast<int>(shape.size());
    if (nd == 0) { // a 0-d walk: its one element
        if (count > 0)
            kToBuffer ? std::memcpy(buffer, a.base, a.size) : std::memcpy(a.base, buffer, a.size);
        return;
    }
    std::vector<int64_t> index(nd);
    for (int d = nd - 1; d >= 0; --d) {
        index[d] = at % shape[d];
        at /= shape[d];
    }
    const int64_t inner = shape[nd - 1], stride = a.strides[nd - 1];
    const size_t size = a.size;
    while (count > 0) {
        char* p = a.base;
        for (int d = 0; d < nd; ++d)
            p += index[d] * a.strides[d];
        int64_t run = std::min(count, inner - index[nd - 1]);
        if (stride == static_cast<int64_t>(size)) {
            kToBuffer ? std::memcpy(buffer, p, run * size) : std::memcpy(p, buffer, run * size);
        } else if (size == 4) {
            Run<4, kToBuffer>(p, stride, run, buffer);
        } else if (size == 8) {
            Run<8, kToBuffer>(p, stride, run, buffer);
        } else {
            Run<16, kToBuffer>(p, stride, run, buffer);
        }
        buffer += run * size;
        count -= run;
        index[nd - 1] += run;
        for (int d = nd - 1; d > 0 && index[d] == shape[d]; --d) {
            index[d] = 0;
            ++index[d - 1];
        }
    }
}

} // namespace

void Gather(const Strided& a, const std::vector<int64_t>& shape, int64_t at, int64_t count,
            void* buffer) {
    Move<true>(a, shape, at, count, static_cast<char*>(buffer));
}

void Scatter(const Strided& a, const std::vector<int64_t>& shape, int64_t at, int64_t count,
             const void* buffer) {
    Move<false>(a, shape, at, count, static_cast<char*>(const_cast<void*>(buffer)));
}

} // namespace brenn_py
