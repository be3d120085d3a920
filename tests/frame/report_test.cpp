// The reporters: what each error mode does with one element (status, callback,
// errno, standard error, x87 flag and trap), index adjustment by the input-vector
// pointer, the name cut, and the write-back of patched results.
#include <cerrno>
#include <csignal>
#include <cstring>
#include <string>
#include <sys/wait.h>

#include <gtest/gtest.h>

#include "brenn_vecmath.h"
#include "frame/context.h"
#include "frame/report.h"
#include "tests/support/support.h"

namespace {

using brenn::frame::ReportErrorD;
using brenn::frame::ReportErrorS;
using brenn::frame::ReportErrorZ;

uint16_t X87Status() {
    uint16_t sw;
    __asm__ volatile("fnstsw %0" : "=m"(sw));
    return sw;
}

void ClearX87() {
    __asm__ volatile("fnclex");
}

// The mode for one test: SetMode cannot clear fields, so start from a fresh thread.
template <class F>
void WithMode(uint32_t mode, F body) {
    brenn::test::RunInThread([&] {
        brenn_zar_kernel_SetMode(mode);
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
        body();
    });
}

ErrorRecord lastRecord;
int callbackCalls = 0;
int CaptureAndPass(ErrorRecord* r) {
    lastRecord = *r;
    ++callbackCalls;
    return 0;
}
int CaptureAndHandle(ErrorRecord* r) {
    lastRecord = *r;
    ++callbackCalls;
    return 1;
}
int PatchResult(ErrorRecord* r) {
    r->r1 = 42.0;
    r->r2 = -1.0;
    return 0;
}

TEST(Reporter, NoErrorHandlingIsAnExactCompare) {
    float a[2] = {1, -1}, y[2] = {0, 0};
    WithMode(0x2000, [&] {
        errno = 0;
        brenn_zar_kernel_SetErrStatus(5);
        ReportErrorS(1, 1, a, a, y, y, "vsExpm1");
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 5);
        EXPECT_EQ(errno, 0);
    });
    WithMode(0x2200, [&] { // another bit beside 0x2000: the report goes on
        errno = 0;
        ReportErrorS(1, 1, a, a, y, y, "vsExpm1");
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 1);
        EXPECT_EQ(errno, 33);
    });
}

TEST(Reporter, IgnoreAloneSetsOnlyTheStatus) {
    float a[1] = {0}, y[1] = {0};
    WithMode(0x0100, [&] {
        errno = 0;
        brenn_zar_kernel_SetErrorCallBack(CaptureAndPass);
        brenn_zar_kernel_SetMode(0x0100); // the callback bit is replaced again
        callbackCalls = 0;
        ClearX87();
        std::string text = brenn::test::CaptureStderr([&] { ReportErrorS(2, 0, a, a, y, y, "vsInv"); });
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 2);
        EXPECT_EQ(errno, 0);
        EXPECT_EQ(callbackCalls, 0);
        EXPECT_TRUE(text.empty());
        EXPECT_EQ(X87Status() & 0x3F, 0);
    });
    WithMode(0x0300, [&] { // combined with errno, 0x100 has no effect of its own
        errno = 0;
        ReportErrorS(2, 0, a, a, y, y, "vsInv");
        EXPECT_EQ(errno, 34);
    });
}

TEST(Reporter, ErrnoValuesByCode) {
    const struct {
        int code, errnoValue;
    } cases[] = {{1, 33}, {2, 34}, {3, 34}, {4, 34}, {-1, 22}, {-2, 13}, {9, 14}, {0, 0}};
    double a[1] = {2}, y[1] = {3};
    WithMode(0x0200, [&] {
        for (auto c : cases) {
            errno = 12345;
            ReportErrorD(c.code, 0, a, a, y, y, "vdExp");
            EXPECT_EQ(errno, c.errnoValue) << "code " << c.code;
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), c.code);
        }
    });
}

TEST(Reporter, LaterReportWinsTheStatus) {
    float a[8] = {}, y[8] = {};
    WithMode(0x0100, [&] {
        ReportErrorS(1, 2, a, a, y, y, "vsExp");
        ReportErrorS(3, 5, a, a, y, y, "vsExp");
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 3);
    });
}

TEST(Reporter, CallbackSeesTheRecordAndHandledStopsEverything) {
    float a[4] = {1, 2, 3, 4}, y[4] = {5, 6, 7, 8};
    WithMode(0x1E00, [&] {
        brenn_zar_kernel_SetErrorCallBack(CaptureAndHandle);
        errno = 0;
        ClearX87();
        callbackCalls = 0;
        std::string text = brenn::test::CaptureStderr([&] { ReportErrorS(3, 2, a, a, y, y, "vsExp"); });
        EXPECT_EQ(callbackCalls, 1);
        EXPECT_EQ(lastRecord.code, 3);
        EXPECT_EQ(lastRecord.index, 2);
        EXPECT_EQ(lastRecord.a1, 3.0);
        EXPECT_EQ(lastRecord.a2, 3.0);
        EXPECT_EQ(lastRecord.r1, 7.0);
        EXPECT_EQ(lastRecord.r2, 7.0);
        EXPECT_STREQ(lastRecord.functionName, "vsExp");
        EXPECT_EQ(lastRecord.functionNameLength, 5);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 3);
        EXPECT_EQ(errno, 0);
        EXPECT_TRUE(text.empty());
        EXPECT_EQ(X87Status() & 0x3F, 0);
        EXPECT_EQ(y[2], 7.0f);
    });
}

TEST(Reporter, CallbackThatPassesCanPatchTheResult) {
    double a[3] = {1, 2, 3}, y[3] = {4, 5, 6}, z[3] = {7, 8, 9};
    WithMode(0x1000, [&] {
        brenn_zar_kernel_SetErrorCallBack(PatchResult);
        ReportErrorD(1, 1, a, a, y, y, "vdLn"); // one result vector: r1 is written last
        EXPECT_EQ(y[1], 42.0);
        ReportErrorD(1, 2, a, a, y, z, "vdSinCos");
        EXPECT_EQ(y[2], 42.0);
        EXPECT_EQ(z[2], -1.0);
        EXPECT_EQ(y[0], 4.0);
        EXPECT_EQ(z[1], 8.0);
    });
}

TEST(Reporter, NullCallbackIsPassedOver) {
    float a[1] = {1}, y[1] = {2};
    WithMode(0x1200, [&] {
        errno = 0;
        ReportErrorS(4, 0, a, a, y, y, "vsExp");
        EXPECT_EQ(errno, 34);
        EXPECT_EQ(y[0], 2.0f);
    });
}

TEST(Reporter, IndexCountsFromTheRegisteredInputVector) {
    float whole[200];
    for (int i = 0; i < 200; ++i) whole[i] = static_cast<float>(i);
    float y[200] = {};
    WithMode(0x1000, [&] {
        brenn_zar_kernel_SetErrorCallBack(CaptureAndPass);
        brenn_zar_kernel_SetInterfInputVectorPointer(whole);
        ReportErrorS(1, 7, whole + 100, whole + 100, y + 100, y + 100, "vsExpm1");
        EXPECT_EQ(lastRecord.index, 107);
        EXPECT_EQ(lastRecord.a1, 107.0); // values come from the block's own index
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
        ReportErrorS(1, 7, whole + 100, whole + 100, y + 100, y + 100, "vsExpm1");
        EXPECT_EQ(lastRecord.index, 7);
    });
    BrennComplex16 za[300] = {}, zy[300] = {};
    za[57] = {1.5, -2.5};
    WithMode(0x1000, [&] {
        brenn_zar_kernel_SetErrorCallBack(CaptureAndPass);
        brenn_zar_kernel_SetInterfInputVectorPointer(za);
        ReportErrorZ(2, 7, za + 50, za + 50, zy + 50, zy + 50, "vzLn");
        EXPECT_EQ(lastRecord.index, 57);
        EXPECT_EQ(lastRecord.a1, 1.5);
        EXPECT_EQ(lastRecord.a1Imag, -2.5);
    });
}

TEST(Reporter, NameIsCutAt47Characters) {
    std::string name47(47, 'n'), name48(48, 'm');
    char buffer[64];
    EXPECT_EQ(brenn::frame::CopyFunctionName(name47.c_str(), buffer), 47);
    EXPECT_EQ(std::string(buffer), name47);
    EXPECT_EQ(brenn::frame::CopyFunctionName(name48.c_str(), buffer), 47);
    EXPECT_EQ(std::string(buffer), name48.substr(0, 47));
    EXPECT_EQ(brenn::frame::CopyFunctionName("", buffer), 0);
    EXPECT_EQ(buffer[0], '\0');

    float a[1] = {1}, y[1] = {2};
    WithMode(0x1000, [&] {
        brenn_zar_kernel_SetErrorCallBack(CaptureAndPass);
        std::string longName(80, 'x');
        ReportErrorS(1, 0, a, a, y, y, longName.c_str());
        EXPECT_EQ(lastRecord.functionNameLength, 47);
        EXPECT_EQ(std::string(lastRecord.functionName), longName.substr(0, 47));
    });
}

TEST(Reporter, SizeAndMemoryCodesTouchNoElement) {
    WithMode(0x1E00, [&] {
        brenn_zar_kernel_SetErrorCallBack(CaptureAndPass);
        std::string text = brenn::test::CaptureStderr([&] {
            ReportErrorS(-1, 3, nullptr, nullptr, nullptr, nullptr, "vsAdd");
            ReportErrorD(-2, 0, nullptr, nullptr, nullptr, nullptr, "vdAdd");
        });
        EXPECT_EQ(lastRecord.code, -2);
        EXPECT_NE(text.find("vsAdd"), std::string::npos);
        EXPECT_NE(text.find("argument 3"), std::string::npos);
        EXPECT_NE(text.find("vdAdd: a pointer argument is null"), std::string::npos);
        EXPECT_EQ(text.find("result["), std::string::npos); // no value lines
    });
}

TEST(Reporter, StandardErrorShowsTheNameAndValueLinesByShape) {
    float a[1] = {-1}, b[1] = {2}, y[1] = {0}, z[1] = {5};
    float zero[1] = {0};
    WithMode(0x0400, [&] {
        std::string unary = brenn::test::CaptureStderr([&] { ReportErrorS(1, 0, a, a, y, y, "vsExpm1"); });
        EXPECT_NE(unary.find("vsExpm1: domain error"), std::string::npos) << unary;
        EXPECT_NE(unary.find("    argument[0] = -1"), std::string::npos) << unary;
        EXPECT_NE(unary.find("    result[0] = 0"), std::string::npos) << unary;

        std::string binary = brenn::test::CaptureStderr([&] { ReportErrorS(2, 0, a, b, y, y, "vsDiv"); });
        EXPECT_NE(binary.find("vsDiv: singularity"), std::string::npos) << binary;
        EXPECT_NE(binary.find("second argument[0] = 2"), std::string::npos) << binary;

        std::string twoResults = brenn::test::CaptureStderr([&] { ReportErrorS(3, 0, a, a, y, z, "vsSinCos"); });
        EXPECT_NE(twoResults.find("second result[0] = 5"), std::string::npos) << twoResults;

        std::string both = brenn::test::CaptureStderr([&] { ReportErrorS(4, 0, a, b, y, z, "vsX"); });
        EXPECT_NE(both.find("first argument[0] = -1"), std::string::npos) << both;
        EXPECT_NE(both.find("second result[0] = 5"), std::string::npos) << both;

        // A second argument of zero prints as a unary call.
        std::string zeroSecond = brenn::test::CaptureStderr([&] { ReportErrorS(1, 0, a, zero, y, y, "vsPow"); });
        EXPECT_EQ(zeroSecond.find("second argument"), std::string::npos) << zeroSecond;

        std::string unknown = brenn::test::CaptureStderr([&] { ReportErrorS(77, 0, a, a, y, y, "vsQ"); });
        EXPECT_NE(unknown.find("vsQ: unknown error"), std::string::npos) << unknown;
        std::string none = brenn::test::CaptureStderr([&] { ReportErrorS(0, 0, a, a, y, y, "vsQ"); });
        EXPECT_TRUE(none.empty()) << none;
    });
}

TEST(Reporter, ExceptionModeRaisesTheCodesX87Flag) {
    const struct {
        int code;
        uint16_t flag;
    } cases[] = {{1, 0x01}, {2, 0x04}, {3, 0x08}, {4, 0x10}, {-1, 0}, {-2, 0}, {9, 0}};
    double a[1] = {1}, y[1] = {2};
    WithMode(0x0800, [&] {
        for (auto c : cases) {
            ClearX87();
            ReportErrorD(c.code, 0, a, a, y, y, "vdExp");
            EXPECT_EQ(X87Status() & 0x3F, c.flag) << "code " << c.code;
        }
        ClearX87();
    });
}

int ChildSignal(uint32_t mode, int code) {
    int status = brenn::test::RunInChild([&] {
        signal(SIGFPE, SIG_DFL); // a sanitizer's own handler would turn the fault into an exit
        brenn_zar_kernel_SetMode(mode);
        float a[1] = {1}, y[1] = {2};
        ReportErrorS(code, 0, a, a, y, y, "vsExp");
        ClearX87();
    });
    return WIFSIGNALED(status) ? WTERMSIG(status) : 0;
}

TEST(Reporter, TrapIsDeliveredOnlyWithExceptionModeAndTheMatchingTrapBit) {
    EXPECT_EQ(ChildSignal(0x04000800, 3), SIGFPE);
    EXPECT_EQ(ChildSignal(0x01000800, 1), SIGFPE);
    EXPECT_EQ(ChildSignal(0x02000800, 2), SIGFPE);
    EXPECT_EQ(ChildSignal(0x08000800, 4), SIGFPE);
    EXPECT_EQ(ChildSignal(0x04000200, 3), 0); // trap bit without the exception mode
    EXPECT_EQ(ChildSignal(0x01000800, 3), 0); // trap for another exception
    EXPECT_EQ(ChildSignal(0x0F000800, -1), 0); // size errors carry no flag
}

// Reports may wait for the kernel's end exactly when nothing reads them sooner.
TEST(Reporter, ReportsCanWaitWithoutCallbackMessageOrTrap) {
    auto wait = [](uint32_t mode, ErrorCallback cb = nullptr) {
        bool w = false;
        WithMode(mode, [&] {
            if (cb) brenn_zar_kernel_SetErrorCallBack(cb);
            w = brenn::frame::ReportsCanWait();
        });
        return w;
    };
    EXPECT_TRUE(wait(0x1A00));              // the callback bit with no callback
    EXPECT_FALSE(wait(0x1A00, CaptureAndPass));
    EXPECT_TRUE(wait(0x0100));
    EXPECT_TRUE(wait(0x2000));
    EXPECT_FALSE(wait(0x0600));             // standard error
    EXPECT_FALSE(wait(0x04000800));         // a trap
    EXPECT_TRUE(wait(0x04000200));          // the trap bit without the exception mode
}

} // namespace
