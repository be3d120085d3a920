/* Pack and unpack between strided, masked or indexed vectors and dense ones, for all
 * four element types: one kernel for all levels. Elements are copied as raw words, so
 * no NaN pattern changes and no flag is raised; the floating-point state is not
 * touched. The last argument picks the index width: 1 reads the count, the increment
 * and the mask or index elements as 32-bit integers (the count is the low word of its
 * place), anything else as 64-bit. A count of zero or below does nothing. */
#include <string.h>

#include "frame/kernels.h"

namespace {

// Copied as bytes, never through a floating-point register.
template <class E>
inline void Copy(E* dst, const E* src) {
    memcpy(dst, src, sizeof(E));
}

inline int64_t Count(int64_t n, int32_t flag) {
    return flag == 1 ? int64_t(int32_t(uint32_t(uint64_t(n)))) : n;
}
inline int64_t Element(const void* p, int64_t i, int32_t flag) {
    return flag == 1 ? int64_t(static_cast<const int32_t*>(p)[i])
                     : static_cast<const int64_t*>(p)[i];
}

template <class E>
void PackI(int64_t n, const E* a, int64_t inc, E* y, int32_t flag) {
    n = Count(n, flag);
    if (flag == 1) inc = int32_t(uint32_t(uint64_t(inc)));
    for (int64_t i = 0; i < n; ++i)
        Copy(y + i, a + i * inc);
}
template <class E>
void PackM(int64_t n, const E* a, const void* mask, E* y, int32_t flag) {
    n = Count(n, flag);
    for (int64_t i = 0, j = 0; i < n; ++i)
        if (Element(mask, i, flag) != 0) Copy(y + j++, a + i);
}
template <class E>
void PackV(int64_t n, const E* a, const void* index, E* y, int32_t flag) {
    n = Count(n, flag);
    for (int64_t i = 0; i < n; ++i)
        Copy(y + i, a + Element(index, i, flag));
}
template <class E>
void UnpackI(int64_t n, const E* a, E* y, int64_t inc, int32_t flag) {
    n = Count(n, flag);
    if (flag == 1) inc = int32_t(uint32_t(uint64_t(inc)));
    for (int64_t i = 0; i < n; ++i)
        Copy(y + i * inc, a + i);
}
template <class E>
void UnpackM(int64_t n, const E* a, E* y, const void* mask, int32_t flag) {
    n = Count(n, flag);
    for (int64_t i = 0, j = 0; i < n; ++i)
        if (Element(mask, i, flag) != 0) Copy(y + i, a + j++);
}
template <class E>
void UnpackV(int64_t n, const E* a, E* y, const void* index, int32_t flag) {
    n = Count(n, flag);
    for (int64_t i = 0; i < n; ++i)
        Copy(y + Element(index, i, flag), a + i);
}

} // namespace

#define BRENN_PACK_KERNELS(t)                                                                      \
    void ZAR_KERNEL(t##PackI, All) BRENN_SIG(t, PackI) {                                           \
        PackI(n, a, increment, y, flag);                                                           \
    }                                                                                              \
    void ZAR_KERNEL(t##PackM, All) BRENN_SIG(t, PackM) {                                           \
        PackM(n, a, mask, y, flag);                                                                \
    }                                                                                              \
    void ZAR_KERNEL(t##PackV, All) BRENN_SIG(t, PackV) {                                           \
        PackV(n, a, index, y, flag);                                                               \
    }                                                                                              \
    void ZAR_KERNEL(t##UnpackI, All) BRENN_SIG(t, UnpackI) {                                       \
        UnpackI(n, a, y, increment, flag);                                                         \
    }                                                                                              \
    void ZAR_KERNEL(t##UnpackM, All) BRENN_SIG(t, UnpackM) {                                       \
        UnpackM(n, a, y, mask, flag);                                                              \
    }                                                                                              \
    void ZAR_KERNEL(t##UnpackV, All) BRENN_SIG(t, UnpackV) {                                       \
        UnpackV(n, a, y, index, flag);                                                             \
    }

extern "C" {
BRENN_PACK_KERNELS(s)
BRENN_PACK_KERNELS(d)
BRENN_PACK_KERNELS(c)
BRENN_PACK_KERNELS(z)
}
