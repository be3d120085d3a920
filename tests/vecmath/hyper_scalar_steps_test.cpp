// The steps of the hyperbolic rows that need the library's tables, written out here and
// compared bit for bit. The scalar routines of Cosh and Sinh: thresholds in their order
// (exponent all ones, denormals, 2^-53, the overflow point, 21.487562597358306) and the
// table exponential in double, n = rint(|x|*64/ln2) by the shifter, r in two parts, the
// table of 2^(j/64) in high and low parts at j and at -j, and the routines' own
// polynomial, compared in double, where a change of a coefficient's last bits shows (a
// single result would round it away). Single Tanh LA and EP: the row from the input's
// bits, the row's cubic or line in double, the sign, one narrowing.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/explog_tables.h"
#include "vecmath/frame/status.h"
#include "vecmath/hyper/hyper_scalar.h"
#include "vecmath/hyper/hyper_tables.h"

namespace brenn::test {
namespace {

using vm::expTable64;

double TableExp(double x, double xl = 0.0) {
    const double shifter = 6755399441055744.0;
    double t = x * 92.33248261689366 + shifter;
    double n = t - shifter;
    double r = (x - n * 0.010830424696223417) - n * 2.572804622327669e-14 + xl;
    int ni = int(n), j = ni & 63, m = (ni - j) / 64;
    double p = r + r * r *
                       (0.5 + r * (0.1666666666665788 +
                                   r * (0.04166666666677052 +
                                        r * (0.008333341995140497 + r * 0.0013888870459233254))));
    double y = expTable64[j][0] + (expTable64[j][0] * p + expTable64[j][1]);
    return y * std::ldexp(1.0, m / 2) * std::ldexp(1.0, m - m / 2);
}
double HalfExp(double a) {
    return TableExp(a - 64 * 0.010830424696223417, -64 * 2.572804622327669e-14);
}

TEST(InvHypSteps, CoshSinhScalarRoutinesAsTheirSteps) {
    std::mt19937 gen(5);
    for (auto [lo, hi] : {std::pair{0x1p-52, 0.5}, {0.5, 21.4}, {21.49, 710.47}}) {
        std::uniform_real_distribution<double> u(lo, hi);
        for (int i = 0; i < 100000; ++i) {
            double a = u(gen), x = i & 1 ? -a : a, y;
            ASSERT_EQ(vm::CoshScalar(&x, &y), vm::status::kNone);
            double want = a >= 21.487562597358306 ? HalfExp(a)
                                                  : 0.5 * (TableExp(a) + TableExp(-a));
            ASSERT_EQ(y, want) << std::hexfloat << x;
            if (a < 0.5) continue; // Sinh's series below 1/2
            ASSERT_EQ(vm::SinhScalar(&x, &y), vm::status::kNone);
            want = a >= 21.487562597358306 ? HalfExp(a) : 0.5 * (TableExp(a) - TableExp(-a));
            ASSERT_EQ(y, std::copysign(want, x)) << std::hexfloat << x;
        }
    }
    // The single routine narrows once; from the overflow point of single on, infinity with
    // status 3 (Sinh with x's sign).
    float fx = 89.4159927f, fy;
    EXPECT_EQ(vm::CoshScalar(&fx, &fy), vm::status::kOverflow);
    EXPECT_EQ(fy, INFINITY);
    fx = -89.4159927f;
    EXPECT_EQ(vm::SinhScalar(&fx, &fy), vm::status::kOverflow);
    EXPECT_EQ(fy, -INFINITY);
    fx = 89.4159851f; // the float below
    EXPECT_EQ(vm::CoshScalar(&fx, &fy), vm::status::kNone);
    EXPECT_EQ(fy, float(HalfExp(fx)));
    // Below 2^-53: 1 + |x| and x*(1 + 2^-1022); a denormal Sinh returns x.
    double tiny = 0x1p-54, dy;
    EXPECT_EQ(vm::CoshScalar(&tiny, &dy), vm::status::kNone);
    EXPECT_EQ(dy, 1.0);
    EXPECT_EQ(vm::SinhScalar(&tiny, &dy), vm::status::kNone);
    EXPECT_EQ(dy, tiny);
    float den = -1e-40f;
    EXPECT_EQ(vm::SinhScalar(&den, &fy), vm::status::kNone);
    EXPECT_EQ(fy, den);
}

// Single LA beyond its window, from 87.3365326 up to the overflow point, takes the
// scalar routine's value in the vector path: every float of that band, both signs, in
// long calls where band lanes sit beside window lanes and overflowing ones in every
// position, comes out as the routine gives it, bit for bit, and only the overflowing
// lanes report (status 3, the last of them).
TEST(InvHypSteps, CoshSinhLABeyondTheWindowAsTheScalarRoutine) {
    std::vector<float> x;
    for (uint32_t b = 0x42AEAC4Eu; b <= 0x42B2D4FCu; ++b) {
        float v = __builtin_bit_cast(float, b);
        x.push_back(b & 1 ? -v : v);
        if (b % 7 == 0) x.push_back(b % 3 ? 1.5f : -30.0f); // a window lane between
    }
    for (const char* row : {"sCosh", "sSinh"}) {
        const bool sinh = row[1] == 'S';
        auto k = reinterpret_cast<Unary<float>>(
            BrennDispatchTable[sinh ? frame::Row_sSinh : frame::Row_sCosh].kernelLA);
        auto routine = [&](float v) {
            float y;
            EXPECT_EQ(sinh ? vm::SinhScalar(&v, &y) : vm::CoshScalar(&v, &y), vm::status::kNone);
            return y;
        };
        std::vector<float> y(x.size());
        brenn_zar_kernel_SetErrStatus(0);
        k(int(x.size()), x.data(), y.data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row;
        for (size_t i = 0; i < x.size(); ++i)
            if (std::fabs(x[i]) > 87.0f)
                ASSERT_EQ(Bits(y[i]), Bits(routine(x[i]))) << row << " " << x[i];
        // Overflowing lanes among band lanes: infinity with status 3, the band unchanged.
        std::vector<float> mixed = {88.0f, -90.0f, 89.0f,  87.5f, 89.4159851f,
                                    1e30f, -88.7f, 2.0f, 89.3f};
        std::vector<float> ym(mixed.size());
        brenn_zar_kernel_SetErrStatus(0);
        k(int(mixed.size()), mixed.data(), ym.data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), vm::status::kOverflow) << row;
        for (size_t i = 0; i < mixed.size(); ++i) {
            float a = std::fabs(mixed[i]);
            if (a >= 89.4159927f)
                EXPECT_EQ(ym[i], std::copysign(INFINITY, sinh ? mixed[i] : 1.0f)) << row;
            else if (a > 87.3365326f)
                EXPECT_EQ(Bits(ym[i]), Bits(routine(mixed[i]))) << row << " " << mixed[i];
        }
    }
}

// Row k of the 134: (bits & 0x7FF80000) - 0x3CF80000 clamped to [0, 133 rows], by 2^19.
float TanhSteps(float x, bool ep) {
    int32_t d = int32_t(Bits(x) & 0x7FF80000u) - 0x3CF80000;
    int k = std::min(std::max(d, 0), 133 << 19) >> 19;
    double a = std::fabs(double(x));
    if (a > 10.0) a = 0.0; // the last row's constant gives 1
    double y;
    if (ep) {
        y = vm::tanhRowsEP[k][1] * a + vm::tanhRowsEP[k][0];
    } else {
        const double* c = vm::tanhRowsLA[k];
        y = ((c[3] * a + c[2]) * a + c[1]) * a + c[0];
    }
    return float(std::copysign(y, double(x)));
}

TEST(InvHypSteps, TanhAsItsSteps) {
    EXPECT_EQ(vm::tanhRowsLA[0][0], 0.0); // small arguments keep their leading term
    EXPECT_EQ(vm::tanhRowsLA[0][1], 1.0);
    std::mt19937 gen(3);
    std::uniform_real_distribution<float> e(-30.0f, 4.5f);
    std::vector<float> x;
    for (int i = 0; i < 300000; ++i) {
        float v = std::exp2(e(gen)); // every row, 2^-30 to 22
        x.push_back(gen() & 1 ? -v : v);
    }
    for (float v : {0.0f, -0.0f, 1e-40f, 0x1p-5f, 9.99999905f, 10.0f, 10.5f, -10.5f, 1e30f})
        x.push_back(v);
    // Each row's first argument and the float below it, from row 0's to past the last.
    for (uint32_t k = 0; k <= 134; ++k)
        for (uint32_t b : {0x3CF80000u + (k << 19) - 1, 0x3CF80000u + (k << 19)})
            x.push_back(__builtin_bit_cast(float, b)), x.push_back(-__builtin_bit_cast(float, b));
    // Infinities inside the rounds of sixteen (the scalar routine's 1 with x's sign, the
    // steps' last row), their neighbours still by the rows.
    for (size_t i : {3u, 17u, 18u, 47u})
        x[i] = i & 1 ? INFINITY : -INFINITY;
    for (int slot : {frame::SlotLA, frame::SlotEP}) {
        auto k = reinterpret_cast<Unary<float>>((&BrennDispatchTable[frame::Row_sTanh].kernelLA)[slot]);
        std::vector<float> y(x.size());
        brenn_zar_kernel_SetErrStatus(0);
        k(int(x.size()), x.data(), y.data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i) {
            float want = TanhSteps(x[i], slot == frame::SlotEP);
            if (Bits(y[i]) != Bits(want))
                ++bad, ADD_FAILURE() << "slot " << slot << std::hexfloat << " x = " << x[i]
                                     << ": got " << y[i] << ", steps give " << want;
        }
    }
}

} // namespace
} // namespace brenn::test
