/* A generator's body inside the floating-point guard and the error mode with its
 * sentinel, both undone on every path; refused with QES_STATUS_BAD_METHOD in a build
 * without the kernel rows the continuous members need. And the same for the rejection
 * generators whose unit variates end in the affine pass. */
#ifndef BRENN_RNG_DIST_FRAMED_H
#define BRENN_RNG_DIST_FRAMED_H

#include "rng/dist/continuous.h"

namespace brenn::rng {

template <typename T, typename Body>
int32_t Framed(ErrorCallback sentinel, Body body) {
    if (!Continuous<T>::HasRows()) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(sentinel);
    int32_t status = body();
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}

// A rejection generator's unit variates from `unit` under the frame with the
// log-of-zero-only sentinel, then r = a + beta v.
template <typename T, typename Unit>
int32_t FramedScaled(int32_t n, T* r, T a, T beta, Unit unit) {
    return Framed<T>(Continuous<T>::kLogZeroOnlyCallback, [&] {
        int32_t status = unit();
        if (status < 0) return status;
        AffinePass(n, r, beta, a);
        return status;
    });
}

} // namespace brenn::rng

#endif
