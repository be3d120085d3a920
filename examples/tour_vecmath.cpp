// Tour step of the vector kernels through the front-end: one function at its three
// accuracy levels, an element reported through a callback with the status of the
// call returned, a refusal that writes nothing, and a long vector split over the
// thread pool whose report still names the element's place in the whole vector.
#include <cstdio>
#include <vector>

#include "brenn/brenn.h"

static int TourCallback(ErrorRecord* r) {
    std::printf("  reported: %s code %d at element %d (argument %g)\n", r->functionName, r->code,
                r->index, r->a1);
    return 0;
}

void TourVectorKernels() {
    const float a[5] = {2.0f, 3.0f, 10.0f, -1.0f, 0.25f};
    float la[5], ha[5], ep[5];
    brenn_vm_sqrt_f32_acc(5, a, la, BRENN_LA);
    brenn_vm_sqrt_f32_acc(5, a, ha, BRENN_HA);
    brenn_vm_sqrt_f32_acc(5, a, ep, BRENN_EP);
    std::printf("sqrt at LA, HA, EP:\n");
    for (int i = 0; i < 5; ++i)
        std::printf("  %-6g %.9g %.9g %.9g\n", a[i], la[i], ha[i], ep[i]);

    ErrorCallback previous = brenn_zar_kernel_SetErrorCallBack(TourCallback);
    const double d[3] = {4.0, 0.0, -0.5};
    double y[3];
    int status = brenn_vm_inv_f64(3, d, y);
    std::printf("1/x of 4, 0, -0.5: %g %g %g, status %d\n", y[0], y[1], y[2], status);
    status = brenn_vm_inv_f64(3, nullptr, y);
    std::printf("1/x of a null vector: %s, nothing written\n", brenn_status_name(status));

    // 10^6 logarithms, split over the pool: the one bad element is reported at its
    // index in the whole vector, and the status comes back to this thread.
    std::vector<double> big(1000000, 2.0), out(big.size());
    big[765432] = -1.0;
    status = brenn_vm_ln_f64(static_cast<int>(big.size()), big.data(), out.data());
    std::printf("ln of 10^6 elements over the thread pool: status %d\n", status);
    brenn_zar_kernel_SetErrorCallBack(previous);
    brenn_zar_kernel_ClearErrStatus();
}
