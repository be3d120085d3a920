// The mode word: its environment parse (once per thread, at first use), the
// field-wise SetMode rule, and the slot index functions of the dispatch table.
#include "frame/mode.h"

#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"

namespace brenn::frame {

namespace {

volatile int32_t environmentLock = 0;

struct Token {
    const char* text;
    uint32_t length;
    uint32_t low, high;
};

// Matched in this order after the "ZAR_" prefix. Row 5 is one "T" short on purpose:
// the full word then fails on its last letter.
constexpr Token kTokens[18] = {
    {"LA", 2, 0x1, 0},
    {"HA", 2, 0x2, 0},
    {"EP", 2, 0x3, 0},
    {"DEFAULT_PRECISION", 17, 0x0, 0},
    {"FLOAT_CONSISTENT", 16, 0x10, 0},
    {"DOUBLE_CONSISTEN", 16, 0x20, 0},
    {"RESTORE", 7, 0x30, 0},
    {"ERRMODE_IGNORE", 14, 0x100, 0},
    {"ERRMODE_ERRNO", 13, 0x200, 0},
    {"ERRMODE_STDERR", 14, 0x400, 0},
    {"ERRMODE_EXCEPT", 14, 0x800, 0},
    {"ERRMODE_CALLBACK", 16, 0x1000, 0},
    {"ERRMODE_NOERR", 13, 0x2000, 0},
    {"ERRMODE_DEFAULT", 15, 0x1A00, 0},
    {"TRAP_INVALID", 12, 0x1000000, 0},
    {"TRAP_DIVBYZERO", 14, 0x2000000, 0},
    {"TRAP_OVERFLOW", 13, 0x4000000, 0},
    {"TRAP_UNDERFLOW", 14, 0x8000000, 0},
};

// The variable's name, kept out of plain sight: each byte XOR 0x5A.
constexpr unsigned char kScrambledName[12] = {0x00, 0x1B, 0x08, 0x05, 0x09, 0x1F,
                                              0x0E, 0x0E, 0x13, 0x14, 0x1D, 0x09};

constexpr int kValueBufferSize = 256;

} // namespace

ParsedMode ParseModeEnvironment() {
    const ParsedMode failed = {0xFFFFFFFFu, 0xFFFFFFFFu};
    char name[13];
    for (int i = 0; i < 12; ++i) name[i] = static_cast<char>(kScrambledName[i] ^ 0x5A);
    name[12] = '\0';

    // One byte past the value buffer stays NUL, so that the read after a comma in
    // the last position stays inside this frame.
    char buffer[kValueBufferSize + 1];
    memset(buffer, 0, sizeof buffer);
    brenn_serv_lock(&environmentLock);
    int length = brenn_serv_getenv(name, buffer, kValueBufferSize);
    brenn_serv_unlock(&environmentLock);
    if (length < 1 || buffer[0] != 'Z') return failed;

    ParsedMode acc = {0, 0};
    uint32_t pos = 0;
    for (;;) {
        if (buffer[pos + 1] != 'A' || buffer[pos + 2] != 'R' || buffer[pos + 3] != '_')
            return failed;
        const Token* match = nullptr;
        for (const Token& t : kTokens) {
            if (t.length + pos + 4 >= kValueBufferSize) continue;
            if (memcmp(buffer + pos + 4, t.text, t.length) == 0) {
                match = &t;
                break;
            }
        }
        if (match == nullptr) return failed;
        uint32_t end = pos + 4 + match->length;
        char terminator = buffer[end];
        if (terminator != ',' && terminator != '\0') return failed;
        acc.low |= match->low;
        acc.high |= match->high;
        if (terminator == '\0') return acc;
        pos = end + 1;
        if (buffer[pos] != 'Z') return failed;
    }
}

uint32_t InitialiseMode(ThreadContext* context) {
    ParsedMode parsed = ParseModeEnvironment();
    uint32_t mode;
    if (parsed.low == 0xFFFFFFFFu && parsed.high == 0xFFFFFFFFu) {
        mode = kModeDefault;
    } else {
        mode = parsed.low;
        if ((mode & kModeAccuracyMask) == 0) mode |= kModeHA;
        if ((mode & kModeErrorMask) == 0) mode |= kErrDefault;
    }
    context->mode = mode;
    return mode;
}

uint32_t SetMode(uint32_t requested) {
    ThreadContext* context = GetThreadContext();
    uint32_t old = ThreadMode(context);
    uint32_t mode = old;
    if (requested & kModeAccuracyMask)
        mode = (mode & ~kModeAccuracyMask) | (requested & kModeAccuracyMask);
    if (requested & kModeErrorMask) mode = (mode & ~kModeErrorMask) | (requested & kModeErrorMask);
    if (requested & kModeDenormalMask)
        mode = (mode & ~kModeDenormalMask) | (requested & kModeDenormalMask);
    if (requested & kModeTrapMask) mode = (mode & ~kModeTrapMask) | (requested & kModeTrapMask);
    context->mode = mode;
    return old;
}

} // namespace brenn::frame

using namespace brenn::frame;

BRENN_EXPORT uint32_t brenn_zar_kernel_GetMode(void) {
    return ThreadMode();
}

BRENN_EXPORT uint32_t brenn_zar_kernel_SetMode(uint32_t mode) {
    return SetMode(mode);
}

BRENN_EXPORT int32_t brenn_zar_kernel_GetTTableIndex(void) {
    return static_cast<int32_t>(ThreadMode() & kModeAccuracyMask) - 1;
}

BRENN_EXPORT int32_t brenn_zar_kernel_GetTTableIndexM(uint32_t, uint32_t mode) {
    return static_cast<int32_t>(mode & kModeAccuracyMask) - 1;
}

BRENN_EXPORT uint32_t _zarGetMode(void) {
    return ThreadMode();
}

BRENN_EXPORT uint32_t _zarSetMode(uint32_t mode) {
    return SetMode(mode);
}
