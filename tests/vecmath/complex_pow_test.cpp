// Complex Pow and Powx: the special cells against the C library's cpow, the hard
// cases of the phase (|x| near 1 with a large exponent, integer exponents, points on the
// axes and diagonals, results near overflow and underflow), Powx as Pow with its one
// exponent, and the pole at zero.
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "tests/vecmath/complex_util.h"

extern "C" {
double _Complex cpow(double _Complex, double _Complex);
float _Complex cpowf(float _Complex, float _Complex);
}

namespace brenn::test {
namespace {

using PowxZ = void (*)(int, const Z*, Z, Z*);
using PowxC = void (*)(int, const C*, C, C*);

const double kInf = std::numeric_limits<double>::infinity();
const double kNaN = std::numeric_limits<double>::quiet_NaN();

// The parts are the same kind (NaN, infinity of a sign) where either is not finite,
// and otherwise within tol of want in norm.
template <class R>
bool Agree(R gr, R gi, R wr, R wi, double tol) {
    auto kind = [](R v) { return std::isnan(v) ? 2 : std::isinf(v) ? (v > 0 ? 3 : 4) : 0; };
    if (kind(gr) != kind(wr) || kind(gi) != kind(wi)) return false;
    if (kind(gr) || kind(gi)) return true;
    return std::hypot(double(gr) - wr, double(gi) - wi) <= tol * std::hypot(double(wr), wi);
}

// Every pair of special and ordinary parts for x and y, in both precisions, against
// the C library's cpow = cexp(y clog x) in the same precision. Where they differ on
// purpose the case is skipped, and said here:
//   - a zero x: cpow gives NaN for y = 0 and a zero with the sign of its product for
//     Re y > 0; ours are 1 (x^0 = 1 for every x, as the real Pow) and +0;
//   - finite x, y with a result on an axis ((-2)^2, (1 + i)^2, 2i^3): ours has the
//     exact zero part where cpow's rounding of the phase leaves 1e-16 of the modulus,
//     inside the norm tolerance below;
//   - a non-finite x or y follows cpow's own way (exp of the product with Annex G's
//     recovery), so those cells agree as they stand.
TEST(ComplexPow, SpecialCellsAgreeWithTheCLibrary) {
    const double parts[] = {0.0, -0.0, 2.0, -0.5, 1.0, -3.0, kInf, -kInf, kNaN};
    ModeScope quiet(BRENN_MODE_ERRMODE_IGNORE);
    int cells = 0;
    for (double xr : parts)
        for (double xi : parts)
            for (double yr : parts)
                for (double yi : parts) {
                    if (xr == 0 && xi == 0 && std::isfinite(yr) && std::isfinite(yi) && yr >= 0)
                        continue;
                    double _Complex x, y;
                    __real__ x = xr, __imag__ x = xi, __real__ y = yr, __imag__ y = yi;
                    double _Complex w = cpow(x, y);
                    Z z = CxCall(frame::Row_zPow, frame::SlotHA, Z{xr, xi}, Z{yr, yi});
                    EXPECT_TRUE(Agree(z.re, z.im, __real__ w, __imag__ w, 0x1p-48))
                        << "zPow (" << xr << ", " << xi << ")^(" << yr << ", " << yi << "): got ("
                        << z.re << ", " << z.im << ") want (" << __real__ w << ", " << __imag__ w
                        << ")";
                    float _Complex xf, yf;
                    __real__ xf = float(xr), __imag__ xf = float(xi);
                    __real__ yf = float(yr), __imag__ yf = float(yi);
                    float _Complex wf = cpowf(xf, yf);
                    C c = CxCall(frame::Row_cPow, frame::SlotEP, C{float(xr), float(xi)},
                                 C{float(yr), float(yi)});
                    EXPECT_TRUE(Agree(c.re, c.im, __real__ wf, __imag__ wf, 0x1p-20))
                        << "cPow (" << xr << ", " << xi << ")^(" << yr << ", " << yi << ")";
                    ++cells;
                }
    EXPECT_GT(cells, 6000);
}

// Hard cases, values from 300-bit arithmetic, each part within an ulp and a half of its
// own size: |x| near 1 with exponents up to 1e12 (the phase is Re y arg x, many turns),
// integer and half-integer exponents on the axes and diagonals (exact zero parts), huge
// parts whose product overflows only the element's type, and results near the ends of
// the double range.
TEST(ComplexPow, HardCasesOfThePhaseAndTheRange) {
    struct Case {
        Z x, y, want;
    } cases[] = {
        {{0.6, 0.8000000001}, {1e12, 0}, {5.507620720534705e+34, -6.052933653417805e+33}},
        {{0.6, 0.8}, {1e10, 0}, {-0.9996296754790334, -0.027220506809955986}},
        {{1.0000000001, 1e-09}, {3e9, 2e9}, {-0.18237201233594852, -0.010663997661324073}},
        {{-0.7071067811865476, 0.7071067811865475},
         {1e15, 0},
         {0.9868559528082422, 0.07763230202977489}},
        {{-2, 0}, {2, 0}, {4, 0}},
        {{-4, 0}, {0.5, 0}, {0, 2}},
        {{-1, 0}, {1e300, 0}, {1, 0}},
        {{1, 1}, {2, 0}, {0, 2}},
        {{0, 2}, {3, 0}, {0, -8}},
        {{3, 4}, {3, 0}, {-117, 44}},
        {{1e300, 1e300}, {1.02, 0}, {9.910147541058026e+305, 1.0226478947930826e+306}},
        {{2, 1}, {-600, 30}, {-1.691738772942083e-216, -7.595626823201727e-217}},
        {{0.5, 0.5}, {2100, 0}, {-8.289046e-317, -0.0}},
        {{1e-300, 0}, {1.05, 0}, {1e-315, 0}},
        {{1.2, 3.4}, {0.3, -2.5}, {-30.456353420190542, -9.58358310153876}},
        {{1.5, 0.5}, {400, 0}, {-3.85123257840755e+79, 4.0617208910589354e+78}},
        {{1.2, 0.1}, {3000, -1}, {-6.072629594133118e+241, -1.0638064825768409e+242}},
    };
    auto near = [](double got, double want, double scale) {
        return std::fabs(got - want) <= 0x1.8p-52 * scale;
    };
    for (const Case& c : cases)
        for (int slot : kCxSlots) {
            Z z = CxCall(frame::Row_zPow, slot, c.x, c.y);
            EXPECT_TRUE(near(z.re, c.want.re, std::fabs(c.want.re) + 0x1p-1022) &&
                        near(z.im, c.want.im, std::fabs(c.want.im) + 0x1p-1022))
                << "(" << c.x.re << ", " << c.x.im << ")^(" << c.y.re << ", " << c.y.im
                << "): got (" << z.re << ", " << z.im << ")";
        }
}

// Powx is Pow with its one exponent for every element, in both precisions and over
// lengths that reach the last partial run; in place too.
TEST(ComplexPow, PowxIsPowWithOneExponent) {
    std::vector<Z> x(37), w(37), y(37);
    for (int i = 0; i < 37; ++i)
        x[i] = {0.25 * i - 4, 3 - 0.125 * i};
    for (Z b : {Z{2, 0}, Z{-0.5, 1.5}, Z{0.3, -7}}) {
        std::vector<Z> bs(37, b);
        As<Binary<Z>>(CxRaw(frame::Row_zPow, frame::SlotHA))(37, x.data(), bs.data(), w.data());
        As<PowxZ>(CxRaw(frame::Row_zPowx, frame::SlotLA))(37, x.data(), b, y.data());
        for (int i = 0; i < 37; ++i)
            EXPECT_TRUE(SameParts(y[i], w[i])) << i;
        std::vector<C> xc(37), bc(37, C{float(b.re), float(b.im)}), wc(37);
        for (int i = 0; i < 37; ++i)
            xc[i] = {float(x[i].re), float(x[i].im)};
        As<Binary<C>>(CxRaw(frame::Row_cPow, frame::SlotHA))(37, xc.data(), bc.data(), wc.data());
        As<PowxC>(CxRaw(frame::Row_cPowx, frame::SlotEP))(37, xc.data(), bc[0], xc.data());
        for (int i = 0; i < 37; ++i)
            EXPECT_TRUE(SameParts(xc[i], wc[i])) << i;
    }
}

// Zero to a power with a negative real part is a pole, reported with status 2 at its
// index under the row's name; other zeros, overflows and NaNs are silent.
TEST(ComplexPow, ZeroToANegativePowerIsAPole) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    std::vector<Z> a = {{1, 1}, {0, 0}, {0, -0.0}, {1e300, 1e300}}, b(4, Z{-2, 1}), y(4);
    b[2] = {2, 0};
    b[3] = {3, 0};
    gCxReport = {};
    As<Binary<Z>>(CxRaw(frame::Row_zPow, frame::SlotHA))(4, a.data(), b.data(), y.data());
    EXPECT_EQ(gCxReport.calls, 1);
    EXPECT_EQ(gCxReport.index, 1);
    EXPECT_EQ(gCxReport.code, 2);
    EXPECT_EQ(gCxReport.name, "vzPow");
    EXPECT_TRUE(SameParts(y[2], Z{0, 0}));
    EXPECT_TRUE(std::isinf(y[3].re) && std::isinf(y[3].im));
    std::vector<C> c = {{0, 0}, {2, 0}};
    gCxReport = {};
    As<PowxC>(CxRaw(frame::Row_cPowx, frame::SlotHA))(2, c.data(), C{-1, 0}, c.data());
    EXPECT_EQ(gCxReport.calls, 1);
    EXPECT_EQ(gCxReport.name, "vcPowx");
    EXPECT_EQ(c[1].re, 0.5f);
    // a signalling NaN in either operand gives NaN parts, silently
    const double snan = std::numeric_limits<double>::signaling_NaN();
    gCxReport = {};
    Z n1 = CxCall(frame::Row_zPow, frame::SlotLA, Z{snan, 1}, Z{2, 0});
    Z n2 = CxCall(frame::Row_zPow, frame::SlotLA, Z{2, 1}, Z{0.5, snan});
    EXPECT_TRUE(std::isnan(n1.re) && std::isnan(n1.im) && std::isnan(n2.re) && std::isnan(n2.im));
    EXPECT_EQ(gCxReport.calls, 0);
    brenn_zar_kernel_SetErrorCallBack(saved);
}

} // namespace
} // namespace brenn::test
