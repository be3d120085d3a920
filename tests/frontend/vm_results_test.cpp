// What an accepted vector-math call gives: the results of the row's kernel bit for
// bit, at the thread's accuracy or the one given (without touching the mode word),
// and the call's own status returned while the thread's status word keeps its rules.
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <thread>
#include <vector>

#include "brenn.h"

namespace {

bool SameBits(const std::vector<double>& a, const std::vector<double>& b) {
    return a.size() == b.size() && std::memcmp(a.data(), b.data(), a.size() * sizeof(double)) == 0;
}

std::vector<double> Inputs() {
    std::vector<double> a;
    for (int i = 0; i < 200; ++i)
        a.push_back(-30.0 + 0.37 * i);
    for (double v : {0.0, -0.0, 709.78, 710.0, -745.2, -746.0, 1e-310})
        a.push_back(v);
    return a;
}

TEST(FrontendVmResults, EqualTheKernelOfEachLevel) {
    const std::vector<double> a = Inputs();
    const int n = static_cast<int>(a.size());
    using Thunk = void (*)(int, const double*, double*);
    const Thunk thunks[3] = {_zardExp_50, _zardExp_HA, _zardExp_26};
    uint32_t mode = brenn_zar_kernel_GetMode();
    for (int level = 1; level <= 3; ++level) {
        std::vector<double> want(n), got(n), plain(n);
        thunks[level - 1](n, a.data(), want.data());
        EXPECT_GE(brenn_vm_exp_f64_acc(n, a.data(), got.data(), level), 0);
        EXPECT_TRUE(SameBits(want, got)) << level;
        EXPECT_EQ(brenn_zar_kernel_GetMode(), mode) << "the explicit accuracy left the mode";
        brenn_zar_kernel_SetMode(static_cast<uint32_t>(level));
        EXPECT_GE(brenn_vm_exp_f64(n, a.data(), plain.data()), 0);
        EXPECT_TRUE(SameBits(want, plain)) << level;
        brenn_zar_kernel_SetMode(mode);
    }
    brenn_zar_kernel_ClearErrStatus();
}

// The status of the call is its last report; the status word takes it, and a later
// clean call returns 0 without clearing the word.
TEST(FrontendVmResults, ReturnTheCallsLastStatus) {
    brenn_zar_kernel_ClearErrStatus();
    double a[3] = {1.0, 710.0, -746.0}, y[3];
    EXPECT_EQ(brenn_vm_exp_f64(3, a, y), BRENN_STATUS_UNDERFLOW);
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), BRENN_STATUS_UNDERFLOW);
    EXPECT_EQ(y[1], std::numeric_limits<double>::infinity());
    double ok[2] = {0.0, 1.0};
    EXPECT_EQ(brenn_vm_exp_f64(2, ok, y), BRENN_OK);
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), BRENN_STATUS_UNDERFLOW);
    float s[2] = {1.0f, 89.0f}, ys[2];
    EXPECT_EQ(brenn_vm_exp_f32_acc(2, s, ys, BRENN_LA), BRENN_STATUS_OVERFLOW);
    EXPECT_EQ(ys[1], std::numeric_limits<float>::infinity());
    double zero[2] = {2.0, 0.0};
    EXPECT_EQ(brenn_vm_ln_f64(2, zero, y), BRENN_STATUS_SINGULARITY);
    EXPECT_EQ(y[1], -std::numeric_limits<double>::infinity());
    brenn_zar_kernel_ClearErrStatus();
}

// A signalling NaN is no error: it comes back quiet, status 0, in both precisions.
TEST(FrontendVmResults, SignallingNanIsNotAnError) {
    brenn_zar_kernel_ClearErrStatus();
    double a[1] = {std::numeric_limits<double>::signaling_NaN()}, y[1];
    EXPECT_EQ(brenn_vm_exp_f64(1, a, y), BRENN_OK);
    EXPECT_TRUE(std::isnan(y[0]));
    float s[1] = {std::numeric_limits<float>::signaling_NaN()}, ys[1];
    EXPECT_EQ(brenn_vm_ln_f32_acc(1, s, ys, BRENN_EP), BRENN_OK);
    EXPECT_TRUE(std::isnan(ys[0]));
}

// Indices reported on one thread count from the caller's vector: a new thread's
// pointer (never set) and one left by a split call are both put right.
int gIndex = -1;
int RecordIndex(ErrorRecord* r) {
    gIndex = r->index;
    return 1;
}

TEST(FrontendVmResults, OneThreadReportsCountFromTheCallersVector) {
    std::thread([] {
        brenn_zar_kernel_SetErrorCallBack(RecordIndex);
        std::vector<double> a(64, 2.0), y(64);
        a[41] = -1.0;
        EXPECT_EQ(brenn_vm_ln_f64(64, a.data(), y.data()), BRENN_STATUS_DOMAIN);
        EXPECT_EQ(gIndex, 41);
        double old = brenn_vm_set_split_work(1e-300);
        std::vector<double> big(100'000, 2.0), out(100'000);
        big[99'000] = -1.0;
        EXPECT_EQ(brenn_vm_ln_f64(100'000, big.data(), out.data()), BRENN_STATUS_DOMAIN);
        EXPECT_EQ(gIndex, 99'000);
        brenn_vm_set_split_work(old);
        EXPECT_EQ(brenn_vm_ln_f64(64, a.data(), y.data()), BRENN_STATUS_DOMAIN);
        EXPECT_EQ(gIndex, 41);
    }).join();
}

TEST(FrontendVmResults, PackingFollowsStrideMaskAndIndex) {
    const double a[6] = {0, 1, 2, 3, 4, 5};
    double y[3] = {-1, -1, -1};
    EXPECT_EQ(brenn_vm_packi_f64(3, a, 2, y), BRENN_OK);
    EXPECT_EQ(y[2], 4.0);
    const int mask[6] = {0, 1, 0, 0, 1, 0};
    EXPECT_EQ(brenn_vm_packm_f64(6, a, mask, y), BRENN_OK);
    EXPECT_EQ(y[0], 1.0);
    EXPECT_EQ(y[1], 4.0);
    const int index[3] = {5, 0, 3};
    EXPECT_EQ(brenn_vm_packv_f64(3, a, index, y), BRENN_OK);
    EXPECT_EQ(y[0], 5.0);
    EXPECT_EQ(y[2], 3.0);
}

} // namespace
