// Aligned allocation for the kernel library, with the counters and the fault control
// that the tests use to reach every out-of-memory path.
#include <atomic>
#include <cstdlib>

#include "platform/serv.h"

namespace {

std::atomic<int64_t> liveBlocks{0};
// 0: no fault planned; n > 0: the n-th allocation from now fails; < 0: all fail.
std::atomic<int64_t> failCountdown{0};

bool ShouldFail() {
    int64_t c = failCountdown.load(std::memory_order_relaxed);
    while (c != 0) {
        if (c < 0) return true;
        if (failCountdown.compare_exchange_weak(c, c - 1, std::memory_order_relaxed))
            return c == 1;
    }
    return false;
}

} // namespace

extern "C" void* brenn_serv_allocate(size_t size, int alignment) {
    if (ShouldFail()) return nullptr;
    size_t align = alignment <= 0 ? 16 : static_cast<size_t>(alignment);
    if ((align & (align - 1)) != 0) return nullptr;
    if (align < sizeof(void*)) align = sizeof(void*);
    void* p = nullptr;
    if (posix_memalign(&p, align, size == 0 ? 1 : size) != 0) return nullptr;
    liveBlocks.fetch_add(1, std::memory_order_relaxed);
    return p;
}

extern "C" void brenn_serv_deallocate(void* pointer) {
    if (pointer == nullptr) return;
    liveBlocks.fetch_sub(1, std::memory_order_relaxed);
    free(pointer);
}

extern "C" int64_t brenn_serv_fail_allocation(int64_t n) {
    return failCountdown.exchange(n, std::memory_order_relaxed);
}

extern "C" int64_t brenn_serv_live_allocations(void) {
    return liveBlocks.load(std::memory_order_relaxed);
}
