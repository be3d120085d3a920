/* The statuses a scalar routine returns for its element, by name: the numbers of the
 * public status codes, which the reporter stores and hands to the callback. */
#ifndef BRENN_VECMATH_FRAME_STATUS_H
#define BRENN_VECMATH_FRAME_STATUS_H

#include "brenn_types.h"

namespace brenn::vm::status {

inline constexpr int kNone = BRENN_STATUS_OK;
inline constexpr int kDomain = BRENN_STATUS_DOMAIN;           // no real result: NaN
inline constexpr int kSingularity = BRENN_STATUS_SINGULARITY; // a pole: an infinity
inline constexpr int kOverflow = BRENN_STATUS_OVERFLOW;
inline constexpr int kUnderflow = BRENN_STATUS_UNDERFLOW;

} // namespace brenn::vm::status

#endif
