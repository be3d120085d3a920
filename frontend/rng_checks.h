// The checks every random-number entry of the front-end makes before it draws: a
// count that is not negative, a stream, and somewhere to put the variates.
#pragma once

#include "brenn_rand.h"

namespace brenn::fe {

// n < 0, or a null stream or array (the array only with n > 0), in that order.
inline int CheckDraw(const brenn_stream* stream, int n, const void* r) {
    if (n < 0) return BRENN_ERR_BAD_SIZE;
    if (stream == nullptr || (n > 0 && r == nullptr)) return BRENN_ERR_NULL_POINTER;
    return BRENN_OK;
}

} // namespace brenn::fe
