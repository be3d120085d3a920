// The complex rows computed element by element in extended precision (Cos, Sin, Tan,
// Cosh, Sinh, Tanh, the inverse functions, Log10): one kernel whatever the accuracy,
// results that do not depend on the caller's x87 precision and leave its control word as
// it was, overflow and pole reports with the row's name at their index, and the
// tangents near their poles.
#include <gtest/gtest.h>
#include <cmath>
#include <limits>
#include <vector>

#include "frame/fpenv.h"
#include "tests/vecmath/complex_util.h"

namespace brenn::test {
namespace {

const RowIndex kExtendedRows[] = {
    frame::Row_zCos,  frame::Row_zSin,   frame::Row_zTan,   frame::Row_zTanh,  frame::Row_cTan,
    frame::Row_cTanh, frame::Row_zCosh,  frame::Row_zSinh,  frame::Row_zAcos,  frame::Row_zAsin,
    frame::Row_zAtan, frame::Row_zAcosh, frame::Row_zAsinh, frame::Row_zAtanh, frame::Row_zLog10,
    frame::Row_cCos,  frame::Row_cSin,   frame::Row_cCosh,  frame::Row_cSinh,  frame::Row_cAcos,
    frame::Row_cAsin, frame::Row_cAtan,  frame::Row_cAcosh, frame::Row_cAsinh, frame::Row_cAtanh,
    frame::Row_cLog10};

// One kernel in the three slots; with the caller's x87 unit at double precision
// the results are those of extended precision, and the caller's word comes
// back.
TEST(ComplexExtended, OneKernelWhateverTheModeAndTheCallersPrecision) {
    std::vector<Z> a = {{0.5, 0.25}, {-3, 2}, {1e-3, -7}, {12, 0.5}, {0.3, 0.4}};
    for (RowIndex row : kExtendedRows) {
        EXPECT_EQ(CxRaw(row, frame::SlotLA), CxRaw(row, frame::SlotHA));
        EXPECT_EQ(CxRaw(row, frame::SlotEP), CxRaw(row, frame::SlotHA));
        if (row >= frame::Row_cCos && row <= frame::Row_cConj) continue;
        std::vector<Z> y(a.size()), w(a.size());
        As<Unary<Z>>(CxRaw(row, frame::SlotHA))(int(a.size()), a.data(), y.data());
        const uint16_t saved = frame::ReadX87ControlWord();
        const uint16_t doublePrecision = uint16_t((saved & ~0x300) | 0x200);
        frame::LoadX87ControlWord(doublePrecision);
        As<Unary<Z>>(CxRaw(row, frame::SlotHA))(int(a.size()), a.data(), w.data());
        EXPECT_EQ(frame::ReadX87ControlWord(), doublePrecision);
        frame::LoadX87ControlWord(saved);
        for (size_t i = 0; i < a.size(); ++i)
            EXPECT_TRUE(SameParts(y[i], w[i])) << frame::kRowInfo[row].name << " element " << i;
    }
}

// Finite parts with an infinite result are overflows of Cos, Sin, Cosh and
// Sinh, and Atanh's poles at +-1 singularities, reported at their index.
TEST(ComplexExtended, OverflowsAreReportedAtTheirIndex) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    struct Case {
        RowIndex row;
        Z big;
        const char* name;
        int code;
    } cases[] = {{frame::Row_zCosh, {800, 0.5}, "vzCosh", 3},
                 {frame::Row_zSinh, {-800, 0.5}, "vzSinh", 3},
                 {frame::Row_zCos, {0.5, 800}, "vzCos", 3},
                 {frame::Row_zSin, {0.5, -800}, "vzSin", 3},
                 {frame::Row_zAtanh, {-1, 0.0}, "vzAtanh", 2}};
    for (const Case& c : cases) {
        std::vector<Z> a(6, Z{0.5, 0.5}), y(6);
        a[4] = c.big;
        gCxReport = {};
        As<Unary<Z>>(CxRaw(c.row, frame::SlotHA))(6, a.data(), y.data());
        EXPECT_EQ(gCxReport.calls, 1) << c.name;
        EXPECT_EQ(gCxReport.index, 4);
        EXPECT_EQ(gCxReport.code, c.code);
        EXPECT_EQ(gCxReport.name, c.name);
        EXPECT_TRUE(std::isinf(y[4].re) && (c.code == 2 || std::isinf(y[4].im))) << c.name;
    }
    // single: finite in double, beyond the single range
    std::vector<C> a(3, C{100, 0.5f}), y(3);
    gCxReport = {};
    As<Unary<C>>(CxRaw(frame::Row_cCosh, frame::SlotLA))(3, a.data(), y.data());
    EXPECT_EQ(gCxReport.calls, 3);
    EXPECT_EQ(gCxReport.name, "vcCosh");
    brenn_zar_kernel_SetErrorCallBack(saved);
}

// Tanh beside its poles at i pi/2 (nearest double), where tan of the imaginary part is
// 1.6e16, beyond the switch to +-1 at |x| = 23 with imaginary parts that underflow, and
// with a huge imaginary part; Tan at the same points turned, tan(y - ix) = v - iu for
// tanh(x + iy) = u + iv. Values from 300-bit arithmetic, each part within an ulp.
TEST(ComplexExtended, TangentsNearThePolesAndFarOut) {
    struct Case {
        Z a, want;
    } cases[] = {
        {{0.0, 1.5707963267948966}, {0.0, 1.633123935319537e+16}},
        {{1e-10, 1.5707963267948966}, {9999999999.99625, 6123.233995734469}},
        {{-1e-300, -1.5707963267948966}, {-2.6670937881135714e-268, -1.633123935319537e+16}},
        {{3.0, 4.71238898038469}, {1.0049698233136892, 1.8304206231350115e-18}},
        {{22.9, 1.5707963267948966}, {1.0, 3.1503120632737575e-36}},
        {{23.5, 1.0}, {1.0, 7.045232150588104e-21}},
        {{-400.0, 2.0}, {-1.0, -0.0}},
        {{1e300, 0.5}, {1.0, 0.0}},
        {{-0.5, 1e22}, {-1.0775848725701984, -0.8176947865908228}},
        {{1e-05, 355.0}, {1.0000000008753488e-05, 3.014435337016983e-05}}};
    auto near = [](double got, double want) {
        return want == 0 ? Bits(got) == Bits(want)
                         : std::fabs(got - want) <= 0x1p-52 * std::fabs(want);
    };
    for (const Case& c : cases) {
        Z h = CxCall(frame::Row_zTanh, frame::SlotHA, c.a);
        EXPECT_TRUE(near(h.re, c.want.re) && near(h.im, c.want.im))
            << "tanh(" << c.a.re << ", " << c.a.im << ") = (" << h.re << ", " << h.im << ")";
        Z t = CxCall(frame::Row_zTan, frame::SlotLA, Z{c.a.im, -c.a.re});
        EXPECT_TRUE(near(t.re, c.want.im) && near(t.im, -c.want.re))
            << "tan(" << c.a.im << ", " << -c.a.re << ") = (" << t.re << ", " << t.im << ")";
    }
}

// The cores' edges: sinh's series below |x| = 1/4, the table-driven sine below |y| = 2^26
// (the C library's reduction from there), parts near the zeros of sin y and cos y, tiny
// and huge results; sin(y - ix) = v - iu of sinh(x + iy) = u + iv.
TEST(ComplexExtended, SinhAndSinAtTheEdgesOfTheirCores) {
    struct Case {
        Z a, want;
    } cases[] = {{{0.2499999999999999, 3.0}, {-0.2500842981889411, 0.145553024968058}},
                 {{0.25, -3.0}, {-0.25008429818894123, -0.145553024968058}},
                 {{1.0, 67108863.99999999}, {-1.0661096594503767, 0.6492664605675718}},
                 {{-1.0, 67108864.0}, {1.0661096631345215, 0.649266450137954}},
                 {{0.5, 3.141592653589793}, {-0.5210953054937474, 1.380943528925439e-16}},
                 {{2.0, 1.5707963267948966}, {2.2208114947120577e-16, 3.7621956910836314}},
                 {{-1e-300, 1e-300}, {-1e-300, 1e-300}},
                 {{0.0, 355.0}, {-0.0, -3.014435335948845e-05}}, // 0 cos 355 = -0
                 {{700.0, -7.0}, {3.8231591624598093e+303, -3.3316843397595967e+303}}};
    auto near = [](double got, double want) {
        return want == 0 ? Bits(got) == Bits(want)
                         : std::fabs(got - want) <= 0x1p-53 * std::fabs(want);
    };
    for (const Case& c : cases) {
        Z h = CxCall(frame::Row_zSinh, frame::SlotHA, c.a);
        EXPECT_TRUE(near(h.re, c.want.re) && near(h.im, c.want.im))
            << "sinh(" << c.a.re << ", " << c.a.im << ") = (" << h.re << ", " << h.im << ")";
        Z s = CxCall(frame::Row_zSin, frame::SlotEP, Z{c.a.im, -c.a.re});
        EXPECT_TRUE(near(s.re, c.want.im) && near(s.im, -c.want.re))
            << "sin(" << c.a.im << ", " << -c.a.re << ") = (" << s.re << ", " << s.im << ")";
    }
}

// Parts on and beside the half-steps of the cores' reductions, where the step taken from
// the part rounded to double may be either neighbour: y = (k + 1/2) pi/64 (below and
// above 2^20 steps, where the sine's second reduction in double gives way to r rounded)
// and |x| = (n + 1/2) ln2/64 from the series' edge to the extended scale past 709; every
// part within an ulp of the C library's long double formulas rounded, and sinh(-x + iy)
// the mirror of sinh(x + iy) to the bit, cosh(-x + iy) = conj of cosh(x - iy) likewise.
TEST(ComplexExtended, CoresOnTheHalfStepsOfTheirReductions) {
    auto within = [](double got, long double want) {
        const double w = static_cast<double>(want);
        if (!std::isfinite(w)) return got == w;
        const double ulp = std::nextafter(std::fabs(w), INFINITY) - std::fabs(w);
        return std::fabs(got - w) <= ulp;
    };
    const long double pi64 = 3.14159265358979323846264338327950288L / 64;
    const long double ln2o64 = 0.693147180559945309417232121458176568L / 64;
    std::vector<double> ys, xs;
    for (long long k : {0LL, 1LL, 2LL, 31LL, 32LL, 63LL, 64LL, 100LL, 127LL, 128LL, 1000LL, 65535LL,
                        (1LL << 20) - 2, (1LL << 20) + 1, 3LL << 21})
        for (int sign : {1, -1}) {
            const double y = static_cast<double>(sign * (k + 0.5L) * pi64);
            ys.insert(ys.end(), {std::nextafter(y, -INFINITY), y, std::nextafter(y, INFINITY)});
        }
    for (long long n : {23LL, 24LL, 63LL, 64LL, 200LL, 1000LL, 65471LL, 65472LL, 65535LL, 65600LL,
                        800000LL, 1015000LL}) {
        const double x = static_cast<double>((n + 0.5L) * ln2o64);
        xs.insert(xs.end(), {std::nextafter(x, 0.0), x, std::nextafter(x, INFINITY)});
    }
    for (double x : xs)
        for (double y : ys) {
            const long double sx = sinhl(x), cx = coshl(x), sy = sinl(y), cy = cosl(y);
            const Z h = CxCall(frame::Row_zSinh, frame::SlotHA, Z{x, y});
            EXPECT_TRUE(within(h.re, sx * cy) && within(h.im, cx * sy))
                << "sinh(" << x << ", " << y << ") = (" << h.re << ", " << h.im << ")";
            const Z m = CxCall(frame::Row_zSinh, frame::SlotHA, Z{-x, y});
            EXPECT_EQ(Bits(m.re), Bits(-h.re)) << "sinh(" << -x << ", " << y << ")";
            EXPECT_EQ(Bits(m.im), Bits(h.im)) << "sinh(" << -x << ", " << y << ")";
            const Z c = CxCall(frame::Row_zCosh, frame::SlotHA, Z{x, y});
            EXPECT_TRUE(within(c.re, cx * cy) && within(c.im, sx * sy))
                << "cosh(" << x << ", " << y << ") = (" << c.re << ", " << c.im << ")";
            const Z d = CxCall(frame::Row_zCosh, frame::SlotHA, Z{-x, -y});
            EXPECT_EQ(Bits(d.re), Bits(c.re)) << "cosh(" << -x << ", " << -y << ")";
            EXPECT_EQ(Bits(d.im), Bits(c.im)) << "cosh(" << -x << ", " << -y << ")";
        }
}

} // namespace
} // namespace brenn::test
