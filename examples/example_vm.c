/* Vector mathematics from C through the front-end: the exponential of an array at the
 * thread's accuracy and at EP for one call, the status of a call with an overflow,
 * and a refusal that writes nothing. */
#include <stdio.h>

#include <brenn/brenn.h>

int main(void) {
    const double a[4] = {0.0, 1.0, 2.5, 710.0};
    double y[4] = {0, 0, 0, 0}, ep[4];
    int status = brenn_vm_exp_f64(4, a, y);
    printf("vdexp: %g %g %g %g (status %s)\n", y[0], y[1], y[2], y[3], brenn_status_name(status));
    status = brenn_vm_exp_f64_acc(3, a, ep, BRENN_EP);
    printf("vdexp at EP: %.17g (HA %.17g), status %d\n", ep[2], y[2], status);

    const float angles[3] = {0.0f, 0.5f, 1.0f};
    float s[3], c[3];
    brenn_vm_sincos_f32(3, angles, s, c);
    printf("vssincos(1): %g %g\n", s[2], c[2]);

    status = brenn_vm_ln_f64(4, NULL, y);
    printf("a null input: %s, y[0] still %g\n", brenn_status_name(status), y[0]);
    status = brenn_vm_ln_f64_acc(4, a, y, 7);
    printf("accuracy 7: %s\n", brenn_status_name(status));
    return 0;
}
