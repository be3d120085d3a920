/* A generator's body inside the floating-point guard and the error mode with its
 * sentinel, both undone on every path; refused with QES_STATUS_BAD_METHOD in a build
 * without the kernel rows the continuous members need. */
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

} // namespace brenn::rng

#endif
