/* Floating-point environment around a kernel: the x87 control-word rules, the MXCSR
 * rules and the exit rule that puts the caller's controls back while keeping the
 * flags raised inside. Every kernel goes through FpEnter/FpLeave; nothing else in the
 * library writes these registers. */
#ifndef BRENN_FRAME_FPENV_H
#define BRENN_FRAME_FPENV_H

#include <stdint.h>

#include "frame/mode.h"

namespace brenn::frame {

enum class X87Rule {
    Masked,   // all six exceptions masked, other fields as the caller had them
    Extended, // masked, 64-bit significand, round to nearest
    Double,   // masked, 53-bit significand, round to nearest
};

enum class CsrRule {
    Common,    // masks on, round to nearest, FTZ/DAZ from the mode word
    MaskOnly,  // masks on; rounding, FTZ and DAZ as the caller set them
    Untouched, // the MXCSR is not read or written
};

struct FpState {
    uint32_t savedCsr;
    uint16_t savedCw;
    uint8_t changed; // bit 0: control word reloaded; bit 1: MXCSR rewritten
};

inline uint16_t ReadX87ControlWord() {
    uint16_t cw;
    __asm__ volatile("fnstcw %0" : "=m"(cw));
    return cw;
}

inline void LoadX87ControlWord(uint16_t cw) {
    __asm__ volatile("fldcw %0" : : "m"(cw) : "memory");
}

inline uint32_t ReadCsr() {
    uint32_t csr;
    __asm__ volatile("stmxcsr %0" : "=m"(csr) : : "memory");
    return csr;
}

inline void LoadCsr(uint32_t csr) {
    __asm__ volatile("ldmxcsr %0" : : "m"(csr) : "memory");
}

constexpr uint32_t kCsrMasks = 0x1F80;
constexpr uint32_t kCsrFlushBits = 0x8040; // FTZ | DAZ
constexpr uint32_t kCsrFlags = 0x3F;

// The MXCSR a common-rule kernel runs with, from the mode's denormal field.
inline uint32_t CsrTarget(uint32_t mode) {
    return (mode & kModeDenormalMask) == kDenormalFlush ? (kCsrMasks | kCsrFlushBits) : kCsrMasks;
}

template <X87Rule X>
inline void EnterX87(FpState& s) {
    uint16_t cw = ReadX87ControlWord();
    uint16_t wanted;
    if constexpr (X == X87Rule::Masked) {
        if ((cw & 0x3F) == 0x3F) return;
        wanted = cw | 0x3F;
    } else if constexpr (X == X87Rule::Extended) {
        if ((cw & 0xF3F) == 0x33F) return;
        wanted = static_cast<uint16_t>((cw & 0xF0C0) + 0x33F);
    } else {
        if ((cw & 0xF3F) == 0x23F) return;
        wanted = static_cast<uint16_t>((cw & 0xF0C0) + 0x23F);
    }
    // Flags the caller had pending are dropped, but only on this path.
    __asm__ volatile("fnclex" ::: "memory");
    LoadX87ControlWord(wanted);
    s.savedCw = cw;
    s.changed |= 1;
}

template <CsrRule C>
inline void EnterCsr(FpState& s, uint32_t mode) {
    if constexpr (C == CsrRule::Common) {
        uint32_t target = CsrTarget(mode);
        uint32_t csr = ReadCsr();
        if ((csr & 0xFFC0) == target) return;
        LoadCsr((csr & 0xFFFF003F) | target);
        s.savedCsr = csr;
        s.changed |= 2;
    } else if constexpr (C == CsrRule::MaskOnly) {
        uint32_t csr = ReadCsr();
        if ((csr & kCsrMasks) == kCsrMasks) return;
        LoadCsr(csr | kCsrMasks);
        s.savedCsr = csr;
        s.changed |= 2;
    }
}

// Entry: x87 first, then the MXCSR. `mode` is the thread's mode word.
template <X87Rule X, CsrRule C>
inline FpState FpEnter(uint32_t mode) {
    FpState s{0, 0, 0};
    EnterX87<X>(s);
    EnterCsr<C>(s, mode);
    return s;
}

// Exit: control word first, then the MXCSR with the flags raised inside merged in.
inline void FpLeave(const FpState& s) {
    if (__builtin_expect(s.changed == 0, 1)) return;
    if (s.changed & 1) LoadX87ControlWord(s.savedCw);
    if (s.changed & 2) LoadCsr(s.savedCsr | (ReadCsr() & kCsrFlags));
}

// Local precision for scalar routines that need a given significand width inside a
// kernel. The 53-bit rule tests precision and rounding together (CW & 0xF00 against
// 0x200) and sets both; the 64-bit rule tests and sets the precision field alone.
// The saved word comes back when the guard ends.
template <uint16_t TestMask, uint16_t Wanted>
struct X87Precision {
    uint16_t saved;
    bool changed;
    X87Precision() : saved(ReadX87ControlWord()), changed((saved & TestMask) != Wanted) {
        if (changed) LoadX87ControlWord(static_cast<uint16_t>((saved & ~TestMask) | Wanted));
    }
    ~X87Precision() {
        if (changed) LoadX87ControlWord(saved);
    }
};
using X87Precision53 = X87Precision<0xF00, 0x200>;
using X87Precision64 = X87Precision<0x300, 0x300>;

} // namespace brenn::frame

#endif
