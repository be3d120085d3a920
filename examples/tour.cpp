// A tour of the library: what a caller sees of each service built so far.
#include <cstdio>

#include "brenn_vecmath.h"

int main() {
    std::printf("kernel library for processor branch %d\n", dll_cpu_version());

    unsigned mode = brenn_zar_kernel_GetMode();
    std::printf("mode word of this thread: 0x%X (accuracy slot %d)\n", mode,
                brenn_zar_kernel_GetTTableIndex());
    brenn_zar_kernel_SetMode(BRENN_MODE_EP);
    std::printf("after choosing EP: 0x%X (accuracy slot %d)\n", brenn_zar_kernel_GetMode(),
                brenn_zar_kernel_GetTTableIndex());
    brenn_zar_kernel_SetMode(BRENN_MODE_HA);

    // The dispatch table is one block of 232 rows; sCeil is its first row.
    const DispatchRecord* table = reinterpret_cast<const DispatchRecord*>(brenn_zar_kernel_sCeil_ttab);
    int slots = 0;
    for (int r = 0; r < 232; ++r)
        slots += (table[r].kernelLA != nullptr) + (table[r].kernelHA != nullptr) +
                 (table[r].kernelEP != nullptr);
    std::printf("vector-math slots with kernels: %d of %d\n", slots, 3 * 232);
    std::printf("cost figures of sExp (LA, HA, EP): %g %g %g\n", brenn_zar_kernel_sExp_ctab[0],
                brenn_zar_kernel_sExp_ctab[1], brenn_zar_kernel_sExp_ctab[2]);
    return 0;
}
