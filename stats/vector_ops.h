// The vector kernels that the statistics entries use, reached through the dispatch
// table at LA as every caller inside the library does, with the element type chosen
// by overload.
#ifndef BRENN_STATS_VECTOR_OPS_H
#define BRENN_STATS_VECTOR_OPS_H

#include <stdint.h>

#include "frame/dispatch.h"

namespace brenn::stats {

inline void VSqrt(int64_t n, const double* a, double* y) {
    ZAR_SLOT(dSqrt, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}
inline void VSqrt(int64_t n, const float* a, float* y) {
    ZAR_SLOT(sSqrt, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}
inline void VInvSqrt(int64_t n, const double* a, double* y) {
    ZAR_SLOT(dInvSqrt, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}
inline void VInvSqrt(int64_t n, const float* a, float* y) {
    ZAR_SLOT(sInvSqrt, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}
inline void VInv(int64_t n, const double* a, double* y) {
    ZAR_SLOT(dInv, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}
inline void VInv(int64_t n, const float* a, float* y) {
    ZAR_SLOT(sInv, brenn::frame::SlotLA)(static_cast<int>(n), a, y);
}

// False when this build of the library lacks one of the kernels (a narrowed
// developer build): the estimates that need them can't be delivered.
inline bool VectorOpsPresent(const double*) {
    return ZAR_SLOT(dSqrt, brenn::frame::SlotLA) != nullptr &&
           ZAR_SLOT(dInvSqrt, brenn::frame::SlotLA) != nullptr &&
           ZAR_SLOT(dInv, brenn::frame::SlotLA) != nullptr;
}
inline bool VectorOpsPresent(const float*) {
    return ZAR_SLOT(sSqrt, brenn::frame::SlotLA) != nullptr &&
           ZAR_SLOT(sInvSqrt, brenn::frame::SlotLA) != nullptr &&
           ZAR_SLOT(sInv, brenn::frame::SlotLA) != nullptr;
}

} // namespace brenn::stats

#endif
