// Long vectors split over the pool: results bit for bit those of one thread, every
// reported element seen by the callback with its index in the caller's vector, and
// the statuses of the blocks collected into the caller's thread in vector order.
#include <algorithm>
#include <atomic>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <mutex>
#include <thread>
#include <vector>

#include "brenn.h"

namespace {

// Runs with the split threshold given, and puts the default back.
struct SplitWork {
    explicit SplitWork(double work) : previous(brenn_vm_set_split_work(work)) {}
    ~SplitWork() { brenn_vm_set_split_work(previous); }
    double previous;
};

constexpr double kNever = 1e300;
constexpr double kAlways = 1e-300;

TEST(FrontendVmThreads, SplitResultsEqualOneThreadAtTenMillion) {
    if (brenn_zar_kernel_dExp_ttab[1] == nullptr) GTEST_SKIP() << "dExp not built";
    const int n = 10'000'000;
    std::vector<double> a(n), one(n), split(n);
    for (int i = 0; i < n; ++i)
        a[i] = -700.0 + 1400.0 * (i / double(n)) + 1e-7 * (i % 97);
    {
        SplitWork w(kNever);
        EXPECT_EQ(brenn_vm_exp_f64(n, a.data(), one.data()), BRENN_OK);
    }
    // The default threshold splits a call of this size.
    ASSERT_LE(n * brenn_zar_kernel_dExp_ctab[1], 1e300);
    ASSERT_GE(n * brenn_zar_kernel_dExp_ctab[1], brenn_vm_get_split_work());
    EXPECT_EQ(brenn_vm_exp_f64(n, a.data(), split.data()), BRENN_OK);
    EXPECT_EQ(std::memcmp(one.data(), split.data(), n * sizeof(double)), 0);
    float fa[4099], fo[4099], fs[4099];
    for (int i = 0; i < 4099; ++i)
        fa[i] = -100.0f + 0.05f * i;
    SplitWork w(kNever);
    brenn_vm_exp_f32_acc(4099, fa, fo, BRENN_EP);
    brenn_vm_set_split_work(kAlways);
    brenn_vm_exp_f32_acc(4099, fa, fs, BRENN_EP);
    EXPECT_EQ(std::memcmp(fo, fs, sizeof fo), 0);
    brenn_zar_kernel_ClearErrStatus();
}

std::mutex gMutex;
std::vector<int> gSeen;
std::vector<uint32_t> gModes;

int Record(ErrorRecord* r) {
    std::lock_guard<std::mutex> lock(gMutex);
    gSeen.push_back(r->index);
    gModes.push_back(brenn_zar_kernel_GetMode());
    return 0; // go on: errno and the status as the mode says
}

TEST(FrontendVmThreads, ReportsCarryGlobalIndicesAndStatusesAreCollected) {
    if (brenn_zar_kernel_dLn_ttab[1] == nullptr) GTEST_SKIP() << "dLn not built";
    const int n = 200'003;
    std::vector<double> a(n, 3.0), y(n);
    // Domain errors spread over every block, a pole last in vector order.
    std::vector<int> bad;
    for (int i = 17; i < n - 10; i += 9973)
        bad.push_back(i);
    for (int i : bad)
        a[i] = -1.0;
    a[n - 5] = 0.0;
    bad.push_back(n - 5);

    uint32_t mode = brenn_zar_kernel_GetMode();
    brenn_zar_kernel_SetMode(BRENN_MODE_LA);
    ErrorCallback old = brenn_zar_kernel_SetErrorCallBack(Record);
    const uint32_t callerMode = brenn_zar_kernel_GetMode();
    gSeen.clear();
    gModes.clear();
    errno = 0;
    int status;
    {
        SplitWork w(kAlways);
        status = brenn_vm_ln_f64(n, a.data(), y.data());
    }
    EXPECT_EQ(status, BRENN_STATUS_SINGULARITY);
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), BRENN_STATUS_SINGULARITY);
    EXPECT_EQ(errno, 34); // the pole's range error, the last in vector order
    std::sort(gSeen.begin(), gSeen.end());
    EXPECT_EQ(gSeen, bad);
    for (uint32_t m : gModes)
        EXPECT_EQ(m & 0xFFFFu, callerMode & 0xFFFFu);
    // The last report of the vector is a domain error: that is the status then.
    a[n - 5] = 3.0;
    {
        SplitWork w(kAlways);
        EXPECT_EQ(brenn_vm_ln_f64(n, a.data(), y.data()), BRENN_STATUS_DOMAIN);
    }
    brenn_zar_kernel_SetErrorCallBack(old);
    brenn_zar_kernel_SetMode(mode);
    brenn_zar_kernel_ClearErrStatus();
}

// Two callers at once: one has the pool, the other runs alone; both are right.
TEST(FrontendVmThreads, ConcurrentCallersEachGetTheirOwnStatus) {
    if (brenn_zar_kernel_dLn_ttab[1] == nullptr) GTEST_SKIP() << "dLn not built";
    SplitWork w(kAlways);
    auto work = [](double bad, int* status) {
        std::vector<double> a(50'000, 2.0), y(50'000);
        a[30'000] = bad;
        for (int round = 0; round < 20; ++round)
            *status = brenn_vm_ln_f64(50'000, a.data(), y.data());
    };
    int s1 = -99, s2 = -99;
    std::thread t1(work, -1.0, &s1), t2(work, 0.0, &s2);
    t1.join();
    t2.join();
    EXPECT_EQ(s1, BRENN_STATUS_DOMAIN);
    EXPECT_EQ(s2, BRENN_STATUS_SINGULARITY);
}

// A mode with trap bits keeps the call on the caller's thread, where a trap must land:
// every report of such a call comes from the caller.
std::vector<std::thread::id> gThreads;
int RecordThread(ErrorRecord*) {
    std::lock_guard<std::mutex> lock(gMutex);
    gThreads.push_back(std::this_thread::get_id());
    return 1;
}

TEST(FrontendVmThreads, TrapModesAreNotSplit) {
    if (brenn_zar_kernel_dLn_ttab[1] == nullptr) GTEST_SKIP() << "dLn not built";
    SplitWork w(kAlways);
    std::thread t([] {
        brenn_zar_kernel_SetErrorCallBack(RecordThread);
        brenn_zar_kernel_SetMode(BRENN_MODE_TRAP_UNDERFLOW | BRENN_MODE_ERRMODE_CALLBACK);
        std::vector<double> a(100'000, 1.0), y(100'000);
        for (int i = 0; i < 100'000; i += 5'000)
            a[i] = -1.0;
        gThreads.clear();
        EXPECT_EQ(brenn_vm_ln_f64(100'000, a.data(), y.data()), BRENN_STATUS_DOMAIN);
        EXPECT_EQ(gThreads.size(), 20u);
        for (std::thread::id id : gThreads)
            EXPECT_EQ(id, std::this_thread::get_id());
    });
    t.join();
}

} // namespace
