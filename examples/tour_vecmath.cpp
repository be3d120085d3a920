// Tour step of the vector kernels: one function at its three accuracy levels, an
// element reported through a callback, and how many dispatch slots hold kernels.
#include <cstdio>

#include "brenn_vecmath.h"
#include "brenn_vecmath_rows.h"

static int TourCallback(ErrorRecord* r) {
    std::printf("  reported: %s code %d at element %d (argument %g)\n", r->functionName, r->code,
                r->index, r->a1);
    return 0;
}

void TourVectorKernels() {
    // A thread's input-vector pointer starts undefined: a caller names its whole input
    // vector (or null: indices count from each call's own vector) before any call whose
    // reported indices it reads. A front-end cutting a vector into blocks names the
    // start of the whole, so that indices still count from it.
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    const float a[5] = {2.0f, 3.0f, 10.0f, -1.0f, 0.25f};
    float la[5], ha[5], ep[5];
    _zarsSqrt_21(5, a, la);
    _zarsSqrt_HA(5, a, ha);
    _zarsSqrt_11(5, a, ep);
    std::printf("sqrt at LA, HA, EP:\n");
    for (int i = 0; i < 5; ++i)
        std::printf("  %-6g %.9g %.9g %.9g\n", a[i], la[i], ha[i], ep[i]);

    ErrorCallback previous = brenn_zar_kernel_SetErrorCallBack(TourCallback);
    const double d[3] = {4.0, 0.0, -0.5};
    double y[3];
    brenn_zar_kernel_SetInterfInputVectorPointer(d);
    _zardInv(3, d, y);
    std::printf("1/x of 4, 0, -0.5: %g %g %g, status %d\n", y[0], y[1], y[2],
                brenn_zar_kernel_GetErrStatus());
    brenn_zar_kernel_SetErrorCallBack(previous);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    brenn_zar_kernel_ClearErrStatus();
}
