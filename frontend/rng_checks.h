// What the random-number entries of the front-end share: the checks before a draw (a
// count that is not negative, a stream, somewhere to put the variates) and the end
// of a stream that a failed making left.
#pragma once

#include "brenn_rand.h"

namespace brenn::fe {

// n < 0, or a null stream or array (the array only with n > 0), in that order.
inline int CheckDraw(const brenn_stream* stream, int n, const void* r) {
    if (n < 0) return BRENN_ERR_BAD_SIZE;
    if (stream == nullptr || (n > 0 && r == nullptr)) return BRENN_ERR_NULL_POINTER;
    return BRENN_OK;
}

// The service's view of the address of a stream.
inline void** Raw(brenn_stream** s) {
    return reinterpret_cast<void**>(s);
}

// Statuses a partly made stream leaves: the record is ended here, so the caller
// holds a stream exactly when the status is not an error.
inline int Conclude(brenn_stream** stream, int status) {
    if (status < 0 && *stream != nullptr) __qesDeleteStream(Raw(stream));
    if (status < 0) *stream = nullptr;
    return status;
}

} // namespace brenn::fe
