// The vector-math entries refuse what the kernels trust: a negative count, a null
// array with elements, an accuracy outside the three, a slot without a kernel, a
// packing stride below 1. Each refusal writes no element, returns its named status
// and leaves it in the thread's status word.
#include <cmath>
#include <cstring>
#include <gtest/gtest.h>
#include <vector>

#include "brenn.h"

namespace {

constexpr double kSentinel = -12345.5;

struct Case {
    const char* what;
    int expected;
    int (*call)(double* y);
};

const double kInput[4] = {0.5, 1.0, 2.0, 3.0};

const Case kCases[] = {
    {"negative n", BRENN_ERR_BAD_SIZE, [](double* y) { return brenn_vm_exp_f64(-1, kInput, y); }},
    {"negative n beats a null array", BRENN_ERR_BAD_SIZE,
     [](double*) { return brenn_vm_exp_f64(-5, nullptr, nullptr); }},
    {"null input", BRENN_ERR_NULL_POINTER,
     [](double* y) { return brenn_vm_exp_f64(4, nullptr, y); }},
    {"null result", BRENN_ERR_NULL_POINTER,
     [](double*) { return brenn_vm_exp_f64(4, kInput, nullptr); }},
    {"null second input", BRENN_ERR_NULL_POINTER,
     [](double* y) { return brenn_vm_add_f64(4, kInput, nullptr, y); }},
    {"null second result", BRENN_ERR_NULL_POINTER,
     [](double* y) { return brenn_vm_sincos_f64(4, kInput, y, nullptr); }},
    {"accuracy 0", BRENN_ERR_BAD_ACCURACY,
     [](double* y) { return brenn_vm_exp_f64_acc(4, kInput, y, 0); }},
    {"accuracy 4", BRENN_ERR_BAD_ACCURACY,
     [](double* y) { return brenn_vm_exp_f64_acc(4, kInput, y, 4); }},
    {"accuracy -1", BRENN_ERR_BAD_ACCURACY,
     [](double* y) { return brenn_vm_exp_f64_acc(4, kInput, y, -1); }},
    {"bad accuracy beats a null array", BRENN_ERR_BAD_ACCURACY,
     [](double*) { return brenn_vm_ln_f64_acc(4, nullptr, nullptr, 9); }},
    {"stride 0", BRENN_ERR_BAD_ARGUMENT,
     [](double* y) { return brenn_vm_packi_f64(2, kInput, 0, y); }},
    {"negative stride", BRENN_ERR_BAD_ARGUMENT,
     [](double* y) { return brenn_vm_unpacki_f64(2, kInput, y, -2); }},
    {"null mask", BRENN_ERR_NULL_POINTER,
     [](double* y) { return brenn_vm_packm_f64(4, kInput, nullptr, y); }},
};

TEST(FrontendVmChecks, RefusalsWriteNothingAndNameTheirStatus) {
    for (const Case& c : kCases) {
        std::vector<double> y(4, kSentinel);
        brenn_zar_kernel_SetErrStatus(77);
        EXPECT_EQ(c.call(y.data()), c.expected) << c.what;
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), c.expected) << c.what;
        for (double v : y)
            EXPECT_EQ(v, kSentinel) << c.what;
    }
    brenn_zar_kernel_ClearErrStatus();
}

TEST(FrontendVmChecks, SinglePrecisionAndComplexShapesAreCheckedAlike) {
    float ys[3] = {-1, -1, -1};
    EXPECT_EQ(brenn_vm_exp_f32(-3, nullptr, ys), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(brenn_vm_sqrt_f32_acc(3, nullptr, ys, BRENN_HA), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_vm_powx_f32_acc(3, ys, 2.0f, ys, 5), BRENN_ERR_BAD_ACCURACY);
    EXPECT_EQ(ys[0], -1.0f);
    BrennComplex16 z[2] = {{1, 1}, {2, 2}};
    EXPECT_EQ(brenn_vm_mul_c128(2, z, nullptr, z), BRENN_ERR_NULL_POINTER);
    double r[2] = {kSentinel, kSentinel};
    EXPECT_EQ(brenn_vm_abs_c128(2, nullptr, r), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_vm_cis_c128_acc(-2, r, z, BRENN_LA), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(r[0], kSentinel);
    EXPECT_EQ(z[0].re, 1.0);
    brenn_zar_kernel_ClearErrStatus();
}

TEST(FrontendVmChecks, EmptyCallsAcceptNullArrays) {
    brenn_zar_kernel_SetErrStatus(3);
    EXPECT_EQ(brenn_vm_exp_f64(0, nullptr, nullptr), BRENN_OK);
    EXPECT_EQ(brenn_vm_linearfrac_f32(0, nullptr, nullptr, 1, 0, 1, 0, nullptr), BRENN_OK);
    EXPECT_EQ(brenn_vm_packv_c128(0, nullptr, nullptr, nullptr), BRENN_OK);
    // An accepted call with nothing reported leaves the status word as it was.
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 3);
    brenn_zar_kernel_ClearErrStatus();
}

// Rows whose slot holds no kernel in this build answer "not available", at the
// thread's accuracy and at each given one; rows with kernels never do.
TEST(FrontendVmChecks, EmptySlotsAreNotAvailable) {
    int empty = 0;
    for (int slot = 0; slot < 3; ++slot) {
        uint32_t saved = brenn_zar_kernel_SetMode(static_cast<uint32_t>(slot + 1));
        struct Row {
            BrennKernel* ttab;
            int (*plain)(int, const double*, double*);
            int (*acc)(int, const double*, double*, int);
        };
        const Row rows[] = {
            {brenn_zar_kernel_dErf_ttab, brenn_vm_erf_f64, brenn_vm_erf_f64_acc},
            {brenn_zar_kernel_dAcos_ttab, brenn_vm_acos_f64, brenn_vm_acos_f64_acc},
            {brenn_zar_kernel_dLGamma_ttab, brenn_vm_lgamma_f64, brenn_vm_lgamma_f64_acc},
            {brenn_zar_kernel_dExp_ttab, brenn_vm_exp_f64, brenn_vm_exp_f64_acc},
        };
        for (const Row& r : rows) {
            std::vector<double> y(4, kSentinel);
            if (r.ttab[slot] != nullptr) {
                EXPECT_GE(r.plain(4, kInput, y.data()), 0);
                EXPECT_GE(r.acc(4, kInput, y.data(), slot + 1), 0);
                continue;
            }
            ++empty;
            EXPECT_EQ(r.plain(4, kInput, y.data()), BRENN_ERR_NOT_AVAILABLE);
            EXPECT_EQ(r.acc(4, kInput, y.data(), slot + 1), BRENN_ERR_NOT_AVAILABLE);
            for (double v : y)
                EXPECT_EQ(v, kSentinel);
        }
        brenn_zar_kernel_SetMode(saved);
    }
    brenn_zar_kernel_ClearErrStatus();
    std::printf("empty slots met among the rows tried: %d\n", empty);
}

} // namespace
