// CIS of real vectors: cos x + i sin x in every slot and both precisions beside the C
// library's cexp(0 + ix), signed zeros, arguments beyond the short reductions, and the
// domain error of an infinity reported with the real input and both result parts.
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "tests/vecmath/complex_util.h"

extern "C" {
double _Complex cexp(double _Complex);
float _Complex cexpf(float _Complex);
}

namespace brenn::test {
namespace {

using CisZ = void (*)(int, const double*, Z*);
using CisC = void (*)(int, const float*, C*);

template <class R>
bool Near(R got, R want, double tol) {
    if (std::isnan(want)) return std::isnan(got);
    if (want == 0 || std::isinf(want)) return Bits(got) == Bits(want);
    return std::fabs(double(got) - double(want)) <= tol;
}

// Signed zeros, the single EP reduction's limit and beyond, the double short reduction's
// limit, huge and special arguments: each against cexp(i x) (absolute tolerance of the
// level, since a part may be near a zero of sine or cosine), in a vector long enough for
// the bodies and through the partial group.
TEST(ComplexCis, AgreesWithTheCLibraryEverywhere) {
    const double inf = std::numeric_limits<double>::infinity();
    const double xs[] = {0.0,
                         -0.0,
                         0.5,
                         -0.5,
                         3.14159265358979,
                         -1e-300,
                         1e-40,
                         100.25,
                         0x1p23,
                         0x1.fffffep23,
                         0x1p24,
                         -0x1p24,
                         0x1.8p24,
                         1e10,
                         0x1p53 + 2,
                         -1e300,
                         3e38,
                         1.7e308,
                         inf,
                         -inf,
                         std::numeric_limits<double>::quiet_NaN()};
    const int n = int(std::size(xs));
    ModeScope quiet(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kCxSlots) {
        const double tol = slot == frame::SlotEP ? 0x1p-36 : 0x1p-52;
        const float tolF = slot == frame::SlotEP ? 0x1p-16f : 0x1p-23f;
        std::vector<Z> y(n);
        As<CisZ>(CxRaw(frame::Row_zCIS, slot))(n, xs, y.data());
        std::vector<float> xf(xs, xs + n);
        std::vector<C> w(n);
        As<CisC>(CxRaw(frame::Row_cCIS, slot))(n, xf.data(), w.data());
        for (int i = 0; i < n; ++i) {
            double _Complex a;
            __real__ a = 0, __imag__ a = xs[i];
            double _Complex want = cexp(a);
            EXPECT_TRUE(Near(y[i].re, __real__ want, tol) && Near(y[i].im, __imag__ want, tol))
                << "zCIS slot " << slot << " x " << xs[i] << " got " << y[i].re << ", " << y[i].im;
            float _Complex af;
            __real__ af = 0, __imag__ af = xf[i];
            float _Complex wantF = cexpf(af);
            EXPECT_TRUE(Near(w[i].re, __real__ wantF, tolF) && Near(w[i].im, __imag__ wantF, tolF))
                << "cCIS slot " << slot << " x " << xf[i] << " got " << w[i].re << ", " << w[i].im;
        }
    }
}

// An infinity is a domain error, reported at its index with the row's name, the input
// and both parts of the NaN result; a NaN passes without a report.
TEST(ComplexCis, InfinityIsADomainErrorAtItsIndex) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    for (int slot : kCxSlots) {
        std::vector<double> x(7, 0.25);
        x[5] = -std::numeric_limits<double>::infinity();
        x[2] = std::numeric_limits<double>::quiet_NaN();
        std::vector<Z> y(7);
        gCxReport = {};
        As<CisZ>(CxRaw(frame::Row_zCIS, slot))(7, x.data(), y.data());
        EXPECT_EQ(gCxReport.calls, 1);
        EXPECT_EQ(gCxReport.index, 5);
        EXPECT_EQ(gCxReport.code, 1);
        EXPECT_EQ(gCxReport.name, "vzCIS");
        EXPECT_TRUE(std::isnan(y[5].re) && std::isnan(y[5].im) && std::isnan(y[2].im));
        EXPECT_EQ(y[6].im, std::sin(0.25));
        std::vector<float> xf(x.begin(), x.end());
        std::vector<C> w(7);
        gCxReport = {};
        As<CisC>(CxRaw(frame::Row_cCIS, slot))(7, xf.data(), w.data());
        EXPECT_EQ(gCxReport.calls, 1);
        EXPECT_EQ(gCxReport.index, 5);
        EXPECT_EQ(gCxReport.name, "vcCIS");
    }
    brenn_zar_kernel_SetErrorCallBack(saved);
}

} // namespace
} // namespace brenn::test
