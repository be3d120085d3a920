// Loads the kernel library, makes per-thread records in several threads (some still
// alive at unload), closes the library, and checks that loading again works. Run
// under valgrind, a record left behind shows as a definite leak.
#include <atomic>
#include <cstdio>
#include <dlfcn.h>
#include <thread>
#include <vector>

using GetModeFn = unsigned (*)();
using SetModeFn = unsigned (*)(unsigned);

static int Cycle(int round) {
    void* lib = dlopen(BRENN_LIBRARY_PATH, RTLD_NOW | RTLD_LOCAL);
    if (lib == nullptr) {
        std::fprintf(stderr, "dlopen: %s\n", dlerror());
        return 1;
    }
    auto getMode = reinterpret_cast<GetModeFn>(dlsym(lib, "brenn_zar_kernel_GetMode"));
    auto setMode = reinterpret_cast<SetModeFn>(dlsym(lib, "brenn_zar_kernel_SetMode"));
    if (getMode == nullptr || setMode == nullptr) return 2;
    if (getMode() != 0x1A02) return 3;

    // Threads that end before the unload free their own records on exit.
    std::vector<std::thread> finished;
    for (int i = 0; i < 4; ++i) finished.emplace_back([&] { setMode(0x1); });
    for (auto& t : finished) t.join();

    // Threads still running at the unload: their records go with the private heap.
    std::atomic<int> ready{0};
    std::atomic<bool> release{false};
    std::vector<std::thread> waiting;
    for (int i = 0; i < 3; ++i)
        waiting.emplace_back([&] {
            getMode();
            ready.fetch_add(1);
            while (!release.load()) std::this_thread::yield();
        });
    while (ready.load() < 3) std::this_thread::yield();
    setMode(0x3);
    if (dlclose(lib) != 0) return 4;
    release.store(true);
    for (auto& t : waiting) t.join();
    std::printf("round %d: loaded, used from 8 threads, closed\n", round);
    return 0;
}

int main() {
    for (int round = 0; round < 3; ++round)
        if (int rc = Cycle(round)) return rc;
    return 0;
}
