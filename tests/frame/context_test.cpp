// Per-thread records: lazy creation, zeroed fields, freeing at thread exit, the
// unload and process-end paths, and the failures that end the process.
#include <atomic>
#include <sys/wait.h>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_vecmath.h"
#include "frame/context.h"
#include "frame/mode.h"
#include "tests/support/support.h"

namespace {

using namespace brenn::frame;
namespace process = brenn::process;

TEST(Context, ProcessorBranchIsSeven) {
    EXPECT_EQ(dll_cpu_version(), 7);
}

TEST(Context, NewThreadStartsZeroedAndParsesAtFirstUse) {
    brenn::test::RunInThread([] {
        ThreadContext* c = GetThreadContext();
        EXPECT_EQ(c->mode, 0u);
        EXPECT_EQ(c->status, 0);
        EXPECT_EQ(c->errorCallback, nullptr);
        EXPECT_EQ(c->reserved0, 0u);
        EXPECT_EQ(c->reserved1, 0u);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A02u);
        EXPECT_EQ(c->mode, 0x1A02u);
        EXPECT_EQ(GetThreadContext(), c); // the same record on every later use
    });
}

TEST(Context, RecordsAreMadeLazilyAndFreedAtThreadExit) {
    GetThreadContext();
    const int64_t base = LiveThreadContexts();
    brenn::test::RunInThread([] {}); // never calls the library: nothing made or freed
    EXPECT_EQ(LiveThreadContexts(), base);

    std::atomic<int> made{0};
    std::atomic<bool> release{false};
    std::vector<std::thread> threads;
    for (int i = 0; i < 6; ++i)
        threads.emplace_back([&] {
            brenn_zar_kernel_SetMode(0x3);
            made.fetch_add(1);
            while (!release.load()) std::this_thread::yield();
        });
    while (made.load() < 6) std::this_thread::yield();
    EXPECT_EQ(LiveThreadContexts(), base + 6);
    release.store(true);
    for (auto& t : threads) t.join();
    EXPECT_EQ(LiveThreadContexts(), base);
}

TEST(Context, ThreadDetachFreesAndALaterUseMakesAFreshRecord) {
    brenn::test::RunInThread([] {
        const int64_t before = LiveThreadContexts();
        brenn_zar_kernel_SetMode(0x1);
        EXPECT_EQ(LiveThreadContexts(), before + 1);
        LibraryEntry(3, false);
        EXPECT_EQ(LiveThreadContexts(), before);
        EXPECT_EQ(brenn_zar_kernel_GetMode(), 0x1A02u); // fresh record, mode parsed again
        EXPECT_EQ(LiveThreadContexts(), before + 1);
    });
}

TEST(Context, ProcessEndFreesNothingAndOtherReasonsAreAccepted) {
    GetThreadContext();
    const int64_t before = LiveThreadContexts();
    EXPECT_EQ(LibraryEntry(0, true), 1);
    EXPECT_EQ(LibraryEntry(2, false), 1);
    EXPECT_EQ(LibraryEntry(77, false), 1);
    EXPECT_EQ(LiveThreadContexts(), before);
    EXPECT_EQ(LibraryEntry(1, false), 1); // already attached: no second record
    EXPECT_EQ(LiveThreadContexts(), before);
}

TEST(Context, UnloadDropsEveryRecordAndAReloadStartsOver) {
    int status = brenn::test::RunInChild([] {
        std::atomic<bool> release{false};
        std::atomic<int> ready{0};
        std::vector<std::thread> threads;
        for (int i = 0; i < 3; ++i)
            threads.emplace_back([&] {
                brenn_zar_kernel_GetMode();
                ready.fetch_add(1);
                while (!release.load()) std::this_thread::yield();
            });
        while (ready.load() < 3) std::this_thread::yield();
        brenn_zar_kernel_SetMode(0x3);
        if (LibraryEntry(0, false) != 1) _exit(10);
        if (LiveThreadContexts() != 0) _exit(11);
        if (contextTlsIndex.load() != process::kNoSlot) _exit(12);
        release.store(true);
        for (auto& t : threads) t.join(); // their slot is gone: nothing runs at exit
        if (LibraryEntry(1, false) != 1) _exit(13);
        if (brenn_zar_kernel_GetMode() != 0x1A02u) _exit(14);
        if (LiveThreadContexts() != 1) _exit(15);
    });
    ASSERT_TRUE(WIFEXITED(status));
    EXPECT_EQ(WEXITSTATUS(status), 0);
}

// In a child: unload, plan a failure, then use the library; returns the exit status
// and what was printed.
int FailingUse(process::Fault fault, std::string* text) {
    int result = 0;
    *text = brenn::test::CaptureStderr([&] {
        int status = brenn::test::RunInChild([fault] {
            LibraryEntry(0, false);
            process::InjectFault(fault);
            brenn_zar_kernel_GetMode();
        });
        result = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
    });
    return result;
}

TEST(Context, NoRecordMeansMessage760AndExit3) {
    for (process::Fault fault : {process::Fault::TlsAlloc, process::Fault::HeapCreate,
                                 process::Fault::HeapAlloc, process::Fault::TlsSetValue}) {
        std::string text;
        EXPECT_EQ(FailingUse(fault, &text), 3) << static_cast<int>(fault);
        EXPECT_NE(text.find("per-thread memory"), std::string::npos) << text;
    }
}

TEST(Context, ErrnoBridgeWritesTheCallersErrno) {
    BindCRuntimeErrno();
    errno = 0;
    SetCRuntimeErrno(34);
    EXPECT_EQ(errno, 34);
    std::thread t([] {
        errno = 0;
        SetCRuntimeErrno(33);
        EXPECT_EQ(errno, 33); // the calling thread's errno
    });
    t.join();
    EXPECT_EQ(errno, 34);
}

} // namespace
