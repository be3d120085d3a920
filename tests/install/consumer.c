/* A C program built against an installed copy of the library through pkg-config:
 * it runs with the version it was compiled for, the thread's mode word answers, and
 * (when vector mathematics is built) the front-end's exponential is within an ulp of
 * the C library's and a null array is refused with its named status. Headers are
 * reached both as <brenn/...> and by their flat names. */
#include <float.h>
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <brenn/brenn.h>
#include <brenn_vecmath.h>
#include <brenn_version.h>

int main(void) {
    int major = -1, minor = -1, patch = -1;
    const char* version = brenn_get_version(&major, &minor, &patch);
    if (strcmp(version, BRENN_VERSION_STRING) != 0 || major != BRENN_VERSION_MAJOR ||
        minor != BRENN_VERSION_MINOR || patch != BRENN_VERSION_PATCH) {
        fprintf(stderr, "compiled for %s, running %s\n", BRENN_VERSION_STRING, version);
        return 1;
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_EP);
    if ((brenn_zar_kernel_GetMode() & BRENN_MODE_ACCURACY_MASK) != BRENN_MODE_EP ||
        brenn_zar_kernel_GetTTableIndex() != 2) {
        fprintf(stderr, "mode word 0x%X after choosing EP\n", brenn_zar_kernel_GetMode());
        return 1;
    }
#ifdef BRENN_HAVE_VECMATH
    {
        const double a[5] = {0.0, 1.0, -1.0, 10.5, -700.25};
        double y[5];
        int i;
        if (brenn_vm_exp_f64_acc(5, a, y, BRENN_HA) != BRENN_OK) {
            fprintf(stderr, "brenn_vm_exp_f64_acc: %s\n",
                    brenn_status_name(brenn_zar_kernel_GetErrStatus()));
            return 1;
        }
        if (brenn_vm_exp_f64(5, NULL, y) != BRENN_ERR_NULL_POINTER) {
            fprintf(stderr, "a null input was not refused\n");
            return 1;
        }
        for (i = 0; i < 5; ++i) {
            double e = exp(a[i]);
            if (!(fabs(y[i] - e) <= DBL_EPSILON * e)) {
                fprintf(stderr, "exp(%g): %.17g, C library %.17g\n", a[i], y[i], e);
                return 1;
            }
        }
    }
#endif
    printf("C consumer: brenn %s\n", version);
    return 0;
}
