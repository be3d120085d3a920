// A tour of the library: what a caller sees of each service built so far, through the
// front-end (brenn/brenn.h, brenn/brenn.hpp). Each service's step lives in its own
// tour_<service>.cpp; a step not built is skipped.
#include <cstdio>
#include <dlfcn.h>

#include "brenn/brenn.h"

void TourRandom() __attribute__((weak));
void TourStatistics() __attribute__((weak));
void TourFitting() __attribute__((weak));
void TourVectorKernels() __attribute__((weak));

static void TourFrame() {
    std::printf("kernel library for processor branch %d\n", dll_cpu_version());
    unsigned mode = brenn_zar_kernel_GetMode();
    std::printf("mode word of this thread: 0x%X (accuracy slot %d)\n", mode,
                brenn_zar_kernel_GetTTableIndex());
    brenn_zar_kernel_SetMode(BRENN_MODE_EP);
    std::printf("after choosing EP: 0x%X (accuracy slot %d)\n", brenn_zar_kernel_GetMode(),
                brenn_zar_kernel_GetTTableIndex());
    brenn_zar_kernel_SetMode(BRENN_MODE_HA);

    // The dispatch table is one block of 232 rows; sCeil is its first row. Row
    // addresses are taken from the library itself: a program's own reference to a
    // data symbol may be a copy of that one row.
    const DispatchRecord* table =
        static_cast<const DispatchRecord*>(dlsym(RTLD_DEFAULT, "brenn_zar_kernel_sCeil_ttab"));
    int slots = 0;
    for (int r = 0; r < 232; ++r)
        slots += (table[r].kernelLA != nullptr) + (table[r].kernelHA != nullptr) +
                 (table[r].kernelEP != nullptr);
    std::printf("vector-math slots with kernels: %d of %d\n", slots, 3 * 232);
    std::printf("cost figures of sExp (LA, HA, EP): %g %g %g\n", brenn_zar_kernel_sExp_ctab[0],
                brenn_zar_kernel_sExp_ctab[1], brenn_zar_kernel_sExp_ctab[2]);
}

int main() {
    TourFrame();
    if (TourVectorKernels) TourVectorKernels();
    if (TourRandom) TourRandom();
    if (TourStatistics) TourStatistics();
    if (TourFitting) TourFitting();
    return 0;
}
