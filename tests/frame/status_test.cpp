// Status word, callback registration and its side effect on the mode word.
#include <gtest/gtest.h>

#include "brenn_vecmath.h"
#include "tests/support/support.h"

namespace {

int Handled(ErrorRecord*) {
    return 1;
}
int Passed(ErrorRecord*) {
    return 0;
}

TEST(Status, StoredWithoutCheckAndClearedToZero) {
    brenn::test::RunInThread([] {
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
        EXPECT_EQ(brenn_zar_kernel_SetErrStatus(7), 0);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 7);
        EXPECT_EQ(_zarSetErrStatus(-3), 7);
        EXPECT_EQ(_zarGetErrStatus(), -3);
        EXPECT_EQ(brenn_zar_kernel_ClearErrStatus(), -3);
        EXPECT_EQ(_zarClearErrStatus(), 0);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
    });
}

TEST(Callback, RegistrationTogglesTheCallbackBit) {
    brenn::test::RunInThread([] {
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), nullptr);
        brenn_zar_kernel_SetMode(0x0200);
        EXPECT_EQ(brenn_zar_kernel_SetErrorCallBack(Handled), nullptr);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1202u);
        EXPECT_EQ(_zarSetErrorCallBack(Passed), Handled);
        EXPECT_EQ(_zarGetErrorCallBack(), Passed);
        EXPECT_EQ(brenn_zar_kernel_ClearErrorCallBack(), Passed);
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), nullptr);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x0202u);
    });
}

TEST(Callback, ClearingWithCallbackOnlyErrorModeLeavesTheBit) {
    brenn::test::RunInThread([] {
        brenn_zar_kernel_SetMode(0x1000);
        brenn_zar_kernel_SetErrorCallBack(Handled);
        EXPECT_EQ(_zarClearErrorCallBack(), Handled);
        // SetMode sees an empty error byte and leaves the field as it was.
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1002u);
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), nullptr);
    });
}

TEST(Callback, SettingsArePerThread) {
    brenn::test::RunInThread([] {
        brenn_zar_kernel_SetErrorCallBack(Handled);
        brenn_zar_kernel_SetErrStatus(3);
        int pointer = 0;
        EXPECT_EQ(brenn_zar_kernel_SetInterfInputVectorPointer(&pointer), &pointer);
        EXPECT_EQ(_zarSetInterfInputVectorPointer(nullptr), nullptr);
        brenn::test::RunInThread([] {
            EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), nullptr);
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
            EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A02u);
        });
        EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), Handled);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 3);
    });
}

} // namespace
