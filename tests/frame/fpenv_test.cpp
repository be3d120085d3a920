// Entry and exit rules of the floating-point environment around a kernel: what the
// kernel runs with, and that the caller gets its controls back with the flags raised
// inside kept.
#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "brenn_vecmath.h"
#include "frame/fpenv.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::frame;

constexpr uint32_t kRoundTowardZero = 0x6000;
constexpr uint32_t kFtz = 0x8000, kDaz = 0x40;

float Divide(float a, float b) {
    volatile float x = a, y = b;
    return x / y;
}

TEST(FpEnv, CommonRuleRunsAtNearestWithoutFlushAndRestoresTheCaller) {
    brenn::test::RunInThread([] {
        uint32_t caller = 0x1F80 | kRoundTowardZero | kFtz | kDaz; // no flags pending
        LoadCsr(caller);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::Common>(ThreadMode());
        uint32_t inside = ReadCsr();
        float third = Divide(1.0f, 3.0f); // raises inexact inside
        FpLeave(s);
        uint32_t after = ReadCsr();
        LoadCsr(0x1F80);
        EXPECT_EQ(inside & 0xFFC0, 0x1F80u);
        EXPECT_EQ(third, 1.0f / 3.0f); // nearest, not toward zero
        EXPECT_EQ(after & 0xFFC0, caller & 0xFFC0);
        EXPECT_EQ(after & 0x20, 0x20u); // inexact raised inside stays visible
    });
}

TEST(FpEnv, FlushFieldOfTheModeTurnsFtzAndDazOn) {
    brenn::test::RunInThread([] {
        LoadCsr(0x1F80);
        brenn_zar_kernel_SetMode(0x280000);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::Common>(ThreadMode());
        EXPECT_EQ(ReadCsr() & 0xFFC0, 0x9FC0u);
        FpLeave(s);
        EXPECT_EQ(ReadCsr() & 0xFFC0, 0x1F80u);
        brenn_zar_kernel_SetMode(0x140000);
        s = FpEnter<X87Rule::Masked, CsrRule::Common>(ThreadMode());
        EXPECT_EQ(s.changed, 0); // the caller's state was already the wanted one
        FpLeave(s);
    });
}

TEST(FpEnv, MaskOnlyRuleKeepsRoundingAndFlush) {
    brenn::test::RunInThread([] {
        uint32_t caller = (0x1F80 & ~0x0200u) | kRoundTowardZero | kFtz; // divide-by-zero unmasked
        LoadCsr(caller);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::MaskOnly>(ThreadMode());
        EXPECT_EQ(ReadCsr() & 0xFFC0, (caller | 0x1F80) & 0xFFC0);
        FpLeave(s);
        EXPECT_EQ(ReadCsr() & 0xFFC0, caller & 0xFFC0);
        LoadCsr(0x1F80);
        FpState u = FpEnter<X87Rule::Masked, CsrRule::Untouched>(ThreadMode());
        EXPECT_EQ(u.changed, 0);
    });
}

TEST(FpEnv, X87RulesChangeTheControlWordOnlyWhenNeeded) {
    brenn::test::RunInThread([] {
        uint16_t original = ReadX87ControlWord();
        LoadX87ControlWord(0x037F);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::Untouched>(0);
        EXPECT_EQ(s.changed, 0);
        FpLeave(s);

        LoadX87ControlWord(0x0372); // invalid and zero-divide unmasked
        s = FpEnter<X87Rule::Masked, CsrRule::Untouched>(0);
        EXPECT_EQ(ReadX87ControlWord(), 0x037F);
        FpLeave(s);
        EXPECT_EQ(ReadX87ControlWord(), 0x0372);

        LoadX87ControlWord(0x0F7F); // round toward zero, 64-bit precision
        s = FpEnter<X87Rule::Extended, CsrRule::Untouched>(0);
        EXPECT_EQ(ReadX87ControlWord(), 0x037F);
        FpLeave(s);
        s = FpEnter<X87Rule::Double, CsrRule::Untouched>(0);
        EXPECT_EQ(ReadX87ControlWord(), 0x027F);
        FpLeave(s);
        EXPECT_EQ(ReadX87ControlWord(), 0x0F7F);
        {
            X87Precision53 p53;
            EXPECT_EQ(ReadX87ControlWord(), 0x027F);
        }
        {
            X87Precision64 p64;
            EXPECT_EQ(ReadX87ControlWord(), 0x0F7F); // already 64-bit: untouched
        }
        EXPECT_EQ(ReadX87ControlWord(), 0x0F7F);
        LoadX87ControlWord(original);
    });
}

} // namespace
