// Process services: spin locks, the environment, bounded copies, exit, and the
// processor query for 256-bit AES.
#include <atomic>
#include <cpuid.h>
#include <cstdlib>
#include <cstring>
#include <sched.h>

#include "platform/serv.h"

extern "C" void brenn_serv_lock(volatile int32_t* lock) {
    for (int spins = 0;; ++spins) {
        if (__atomic_exchange_n(lock, 1, __ATOMIC_ACQUIRE) == 0) return;
        while (__atomic_load_n(lock, __ATOMIC_RELAXED) != 0) {
            if (++spins < 64)
                __builtin_ia32_pause();
            else
                sched_yield();
        }
    }
}

extern "C" void brenn_serv_unlock(volatile int32_t* lock) {
    __atomic_store_n(lock, 0, __ATOMIC_RELEASE);
}

extern "C" int brenn_serv_getenv(const char* name, char* buffer, int size) {
    if (name == nullptr) return 0;
    const char* value = getenv(name);
    if (value == nullptr) return 0;
    size_t length = strlen(value);
    if (buffer != nullptr && size > 0) {
        size_t n = length < static_cast<size_t>(size) ? length : static_cast<size_t>(size);
        memcpy(buffer, value, n);
        if (n < static_cast<size_t>(size)) buffer[n] = '\0';
    }
    return length > 0x7FFFFFFF ? 0x7FFFFFFF : static_cast<int>(length);
}

extern "C" int brenn_serv_memcpy_s(void* destination, size_t destinationSize, const void* source,
                                   size_t count) {
    if (destination == nullptr) return 22;
    if (source == nullptr || count > destinationSize) {
        memset(destination, 0, destinationSize);
        return source == nullptr ? 22 : 34;
    }
    memmove(destination, source, count);
    return 0;
}

namespace {
std::atomic<int> processEnding{0};
void MarkProcessEnding() {
    processEnding.store(1);
}
} // namespace

extern "C" int brenn_serv_process_ending(void) {
    // Exit handlers run in reverse order of registration, and the loader's own
    // finaliser (which runs library destructors) is registered when the program
    // starts; arming from a later call puts this handler before it.
    static const bool armed = atexit(MarkProcessEnding) == 0;
    (void)armed;
    return processEnding.load();
}

extern "C" void brenn_serv_exit(int code) {
    exit(code);
}

extern "C" int brenn_serv_cpuisvectoraes(void) {
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d)) return 0;
    const unsigned osxsave = 1u << 27, avx = 1u << 28;
    if ((c & osxsave) == 0 || (c & avx) == 0) return 0;
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    if ((lo & 6) != 6) return 0; // the OS must save the ymm state
    if (__get_cpuid_max(0, nullptr) < 7) return 0;
    __cpuid_count(7, 0, a, b, c, d);
    return (c >> 9) & 1; // VAES
}
