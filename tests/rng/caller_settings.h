// The caller's settings that a distribution generator must hand back: a mode word, an
// error callback, an x87 control word and an MXCSR that differ from the defaults, set
// by Set() and checked by Expect(), which also puts the defaults back.
#ifndef BRENN_TESTS_RNG_CALLER_SETTINGS_H
#define BRENN_TESTS_RNG_CALLER_SETTINGS_H

#include <stdint.h>

#include <gtest/gtest.h>

#include "brenn_vecmath.h"
#include "frame/fpenv.h"

namespace brenn::test {

struct CallerSettings {
    static int Marker(ErrorRecord*) { return 0; }
    static constexpr uint16_t kCw = 0x037A;
    static constexpr uint32_t kCsr = (0x1F80 & ~0x0200u) | 0x6000;
    uint32_t before = 0, mode = 0;

    void Set() {
        before = brenn_zar_kernel_GetMode();
        brenn_zar_kernel_SetMode(BRENN_MODE_LA | BRENN_MODE_ERRMODE_STDERR);
        brenn_zar_kernel_SetErrorCallBack(Marker);
        frame::LoadX87ControlWord(kCw);
        frame::LoadCsr(kCsr);
        mode = brenn_zar_kernel_GetMode();
    }

    // The whole MXCSR comes back, flags included, from a generator with the guard.
    void Expect(const char* what) {
        EXPECT_EQ(brenn_zar_kernel_GetMode(), mode) << what;
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), &Marker) << what;
        EXPECT_EQ(frame::ReadX87ControlWord(), kCw) << what;
        EXPECT_EQ(frame::ReadCsr(), kCsr) << what;
        frame::LoadX87ControlWord(0x037F);
        frame::LoadCsr(0x1F80);
        brenn_zar_kernel_SetErrorCallBack(nullptr);
        brenn_zar_kernel_SetMode(before);
    }
};

} // namespace brenn::test

#endif
