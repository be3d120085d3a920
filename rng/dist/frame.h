/* The frame that distribution generators share: the floating-point guard, the
 * error mode with a sentinel callback, the bracket around each vector-kernel call,
 * the fixed-accuracy slot calls and the affine post-pass. A generator takes the
 * pieces it needs; each one restores exactly what it found. */
#ifndef BRENN_RNG_DIST_FRAME_H
#define BRENN_RNG_DIST_FRAME_H

#include <stdint.h>

#include "brenn_types.h"
#include "frame/dispatch.h"
#include "frame/fpenv.h"

namespace brenn::rng {

// Sentinel callbacks: they write a finite extreme value for a logarithm of 0 (and,
// for the Gaussian ones, an inverse error function at +-1) and return 0, so that
// the kernel stores the sentinel and goes on.
int LogZeroCallbackD(ErrorRecord* record);
int LogZeroCallbackS(ErrorRecord* record);
int LogZeroOnlyCallbackD(ErrorRecord* record);
int LogZeroOnlyCallbackS(ErrorRecord* record);
int GaussianCallbackD(ErrorRecord* record);
int GaussianCallbackS(ErrorRecord* record);

constexpr uint32_t kDistErrorMode = 0x1000;        // callback only
constexpr uint32_t kKernelDenormalMode = 0x140000; // the denormal field kernels run with

// Floating-point guard: every exception masked for the call, the caller's x87
// control word and MXCSR (flags included) back afterwards.
struct FpGuard {
    uint32_t savedCsr;
    uint16_t savedCw;
    uint8_t changed;
};

inline FpGuard GuardEnter() {
    FpGuard g{frame::ReadCsr(), frame::ReadX87ControlWord(), 0};
    __asm__ volatile("fnclex" ::: "memory");
    if ((g.savedCw & 0x3F) != 0x3F) {
        frame::LoadX87ControlWord(static_cast<uint16_t>(g.savedCw | 0x3F));
        g.changed |= 1;
    }
    if ((g.savedCsr & frame::kCsrMasks) != frame::kCsrMasks)
        frame::LoadCsr(g.savedCsr | frame::kCsrMasks);
    return g;
}

inline void GuardLeave(const FpGuard& g) {
    __asm__ volatile("fnclex" ::: "memory");
    if (g.changed & 1) frame::LoadX87ControlWord(g.savedCw);
    // The whole register comes back, so flags raised inside stay inside.
    frame::LoadCsr(g.savedCsr);
}

// Error mode and sentinel: the thread's mode word and callback, saved and restored
// exactly (restoring through the field-wise SetMode could leave a field behind).
struct ErrorFrame {
    uint32_t savedMode;
    ErrorCallback savedCallback;
};

ErrorFrame ErrorModeEnter(ErrorCallback sentinel);
void ErrorModeLeave(const ErrorFrame& f);

// The kernel bracket: the denormal field fixed for one kernel call, the whole mode
// word back afterwards.
uint32_t BracketEnter();
void BracketLeave(uint32_t saved);

// A kernel call in its bracket, repeated around every call.
template <typename Kernel, typename... Args>
inline void Bracketed(Kernel kernel, Args... args) {
    uint32_t saved = BracketEnter();
    kernel(args...);
    BracketLeave(saved);
}

// r[i] = r[i] * scale + shift, then at least `floor` when one is given: a scalar peel
// to the 16-byte boundary, eight a turn, then two, then one. The order of operations
// is the same in every path, so the results are too.
void AffinePass(int32_t n, double* r, double scale, double shift);
void AffinePass(int32_t n, float* r, float scale, float shift);
void AffinePassMax(int32_t n, double* r, double scale, double shift, double floor);
void AffinePassMax(int32_t n, float* r, float scale, float shift, float floor);

} // namespace brenn::rng

#endif
