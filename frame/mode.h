/* The per-thread mode word: fields, defaults, first-use parse of the environment,
 * and the field-wise SetMode rule. */
#ifndef BRENN_FRAME_MODE_H
#define BRENN_FRAME_MODE_H

#include <stdint.h>

#include "frame/context.h"

namespace brenn::frame {

enum : uint32_t {
    kModeAccuracyMask = 0x0000000F,
    kModeLA = 0x1,
    kModeHA = 0x2,
    kModeEP = 0x3,
    kModePrecisionMask = 0x000000F0,
    kModeErrorMask = 0x0000FF00,
    kErrIgnore = 0x0100,
    kErrErrno = 0x0200,
    kErrStderr = 0x0400,
    kErrExcept = 0x0800,
    kErrCallback = 0x1000,
    kErrNone = 0x2000,
    kErrDefault = 0x1A00,
    kModeDenormalMask = 0x003C0000,
    kDenormalFlush = 0x00280000,
    kDenormalKeep = 0x00140000,
    kModeTrapMask = 0x0F000000,
    kTrapInvalid = 0x01000000,
    kTrapDivByZero = 0x02000000,
    kTrapOverflow = 0x04000000,
    kTrapUnderflow = 0x08000000,
    kModeDefault = 0x1A02,
};

struct ParsedMode {
    uint32_t low, high;
};

// Reads the environment value once; both words all ones when it is absent or bad.
ParsedMode ParseModeEnvironment();

uint32_t InitialiseMode(ThreadContext* context);

// The mode word of the calling thread, parsed from the environment at first use.
inline uint32_t ThreadMode(ThreadContext* context) {
    uint32_t mode = context->mode;
    return __builtin_expect(mode != 0, 1) ? mode : InitialiseMode(context);
}

inline uint32_t ThreadMode() {
    return ThreadMode(GetThreadContext());
}

uint32_t SetMode(uint32_t mode);

} // namespace brenn::frame

#endif
