// Pow and Powx of complex vectors: the special cells against the C library's cpow, the
// cases where a^b must come out exact or on the principal branch, values whose
// exponent needs more than extended precision, Powx as Pow with one exponent, the
// statuses of a zero base, and the caller's x87 control word and MXCSR.
#include <gtest/gtest.h>
#include <limits>
#include <vector>

#include "frame/fpenv.h"
#include "tests/vecmath/complex_util.h"

extern "C" {
double _Complex cpow(double _Complex, double _Complex);
float _Complex cpowf(float _Complex, float _Complex);
}

namespace brenn::test {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

template <class E>
E PowxCall(RowIndex row, E a, E b, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    E y;
    As<void (*)(int, const E*, E, E*)>(CxRaw(row, frame::SlotHA))(1, &a, b, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

// Within tol relatively, or the same zero, infinity or NaN; free: a zero's or an
// infinity's sign is not compared.
bool Close(double got, double want, double tol, bool free = false) {
    if (std::isnan(want) || std::isnan(got)) return std::isnan(want) && std::isnan(got);
    if (std::isinf(want) || want == 0 || std::isinf(got) || got == 0)
        return free ? std::fabs(got) == std::fabs(want) : Bits(got) == Bits(want);
    return std::fabs(got - want) <= tol * std::fabs(want);
}

// The C library computes cpow(a, b) as cexp(b clog a) with C's product; so do we for
// infinite and NaN parts, and the cells agree except where we choose otherwise:
//   b = 0: 1 + 0i for every a, NaN and infinite ones included (C: NaN, or whatever
//     exp(0 * inf) gives);
//   a = 0: Re b > 0 gives +0 + 0i; Re b < 0 +inf + 0i, a pole; Re b = 0 NaN + i NaN
//     (C: the cexp of a real part +-inf beside an imaginary part that is often NaN,
//     which gives zeros, infinities and NaNs of any sign);
//   a finite, b finite: the signs of zero parts follow the angle exactly (C's zero parts
//     are rounding residues of sin(b pi)), so finite cells are compared without zero
//     signs, and a real negative a to a real b is exact: integer powers real.
//   Annex G leaves the signs of cexp(+-inf + i inf or NaN) free; those cells are compared
//     without signs too.
template <class E, class R>
void CheckPowCells(RowIndex row) {
    const double parts[] = {0.0, -0.0, 1.5, -2.0, 1.0, kInf, -kInf, kNaN};
    // C's cpow rounds b clog a in the element's precision and loses up to a dozen bits of
    // finite results; their accuracy is measured against MPC elsewhere
    const double tol = sizeof(R) == 4 ? 0x1p-12 : 0x1p-40;
    ModeScope quiet(BRENN_MODE_ERRMODE_IGNORE);
    for (double ar : parts)
        for (double ai : parts)
            for (double br : parts)
                for (double bi : parts) {
                    const E a{R(ar), R(ai)}, b{R(br), R(bi)};
                    const E got = CxCall(row, frame::SlotHA, a, b);
                    double wr, wi;
                    if constexpr (sizeof(R) == 4) {
                        float _Complex x, w;
                        __real__ x = a.re, __imag__ x = a.im, __real__ w = b.re, __imag__ w = b.im;
                        const float _Complex r = cpowf(x, w);
                        wr = __real__ r, wi = __imag__ r;
                    } else {
                        double _Complex x, w;
                        __real__ x = a.re, __imag__ x = a.im, __real__ w = b.re, __imag__ w = b.im;
                        const double _Complex r = cpow(x, w);
                        wr = __real__ r, wi = __imag__ r;
                    }
                    const bool finite = std::isfinite(ar) && std::isfinite(ai) &&
                                        std::isfinite(br) && std::isfinite(bi);
                    bool free = finite;
                    if (br == 0 && bi == 0) {
                        wr = 1, wi = 0;
                    } else if (ar == 0 && ai == 0) {
                        free = false;
                        if (std::isnan(br) || std::isnan(bi))
                            wr = wi = kNaN;
                        else if (br > 0)
                            wr = wi = 0;
                        else if (br < 0)
                            wr = kInf, wi = 0;
                        else
                            wr = wi = kNaN;
                    } else if (finite && ai == 0 && bi == 0 && ar < 0) {
                        // (-2)^1.5 imaginary, (-2)^1 and (-2)^-2 real, exactly
                        const double m = std::pow(-ar, br);
                        wr = br == 1.5 ? 0 : br == 1.0 ? -m : m;
                        wi = br == 1.5 ? (std::signbit(ai) ? m : -m) : 0;
                    } else if (!finite) {
                        free = true; // cexp's free signs at infinite real parts
                    }
                    // finite results in norm: C's rounding residues of sin(k pi/2) beside
                    // our exact zeros or closer residues
                    const double norm = finite && std::isfinite(wr) && std::isfinite(wi)
                                            ? std::fmax(std::fabs(wr), std::fabs(wi))
                                            : 0;
                    auto near = [&](double g, double w) {
                        return norm > 0 && std::isfinite(g) ? std::fabs(g - w) <= tol * norm
                                                            : Close(g, w, tol, free);
                    };
                    EXPECT_TRUE(near(got.re, wr) && near(got.im, wi))
                        << frame::kRowInfo[row].name << " (" << ar << ", " << ai << ")^(" << br
                        << ", " << bi << "): got (" << got.re << ", " << got.im << ") want (" << wr
                        << ", " << wi << ")";
                }
}

TEST(ComplexPow, SpecialCellsAgreeWithTheCLibrary) {
    CheckPowCells<Z, double>(frame::Row_zPow);
    CheckPowCells<C, float>(frame::Row_cPow);
}

// Exact and principal-branch cases, and results whose exponent b ln a must be known
// beyond extended precision (near the ends of the range, many turns of the angle, a
// near the unit circle): values from 300-bit arithmetic, each part within an ulp.
TEST(ComplexPow, HardCases) {
    struct Case {
        Z a, b, want;
    } cases[] = {
        {{-8, 0.0}, {1.0 / 3.0, 0}, {1.0, 1.7320508075688772}},
        {{-8, -0.0}, {1.0 / 3.0, 0}, {1.0, -1.7320508075688772}},
        {{-2, 0.0}, {3, 0}, {-8, 0.0}},
        {{-2, -0.0}, {3, 0}, {-8, -0.0}},
        {{-0.5, 0.0}, {-1020, 0}, {0x1p1020, -0.0}},
        {{-4, 0.0}, {0.5, 0}, {0.0, 2}},
        {{-1, -0.0}, {0.25, 0}, {0.7071067811865476, -0.7071067811865476}},
        {{7, -0.0}, {364, 0}, {4.1274950888965186e+307, -0.0}},
        {{1.5, 0.5}, {700, 3}, {6.654799103378711e+138, 2.854115519746208e+138}},
        {{-3, 1e-3}, {-160, 100}, {-1.7261090476957493e-213, 7.111294309986722e-215}},
        {{0.999, 0.04}, {12345, -20}, {-0.1314899072488836, -0.13656819278601784}},
        {{2, 0.0}, {0.5, 1e12}, {-0.6483391307198221, 1.2568438135176008}},
        {{1e-3, 2e-3}, {-100.25, 0.75}, {-1.7689971007665002e+265, -1.4014722514679958e+265}},
        {{3, -4}, {2.5, -1.5}, {0.27827619844076823, 13.907827651791408}},
        // near the limits of the step in pairs of doubles (2^24 quarter turns, |a| near
        // 2^449 and 2^-449, an exponent near 2^28) and inside it, a part 10^-4 of the other
        {{0.6, 0.8 + 0x1p-40}, {25000000.375, 0.5}, {-0.6288536620044519, 0.01340902067057233}},
        {{-1.25, 0.75}, {100.125, 13.325564146651324}, {-0.002161961801014736, 21.619617938066426}},
        {{1.3 * 0x1p449, -0.7 * 0x1p449}, {0.75, -0.002}, {1.7187953248043343e+101, -2.6400254132022402e+101}},
        {{-0.3 * 0x1p-449, 0.9 * 0x1p-449}, {-0.5, 0.25}, {-2.3772015902053153e+67, 5.4507913113053864e+66}},
        {{1.0000001, -2e-9}, {-3e8, 1e3}, {7.722678303843663e-14, 5.2845016063457e-14}}};
    for (const Case& c : cases) {
        const Z y = CxCall(frame::Row_zPow, frame::SlotLA, c.a, c.b);
        EXPECT_TRUE(Close(y.re, c.want.re, 0x1p-52) && Close(y.im, c.want.im, 0x1p-52))
            << "(" << c.a.re << ", " << c.a.im << ")^(" << c.b.re << ", " << c.b.im << ") = ("
            << y.re << ", " << y.im << ")";
    }
    const C y = CxCall(frame::Row_cPow, frame::SlotEP, C{-8, 0.0f}, C{1.0f / 3, 0});
    EXPECT_TRUE(Close(y.re, 1.0f, 0x1p-23) && Close(y.im, 1.7320508f, 0x1p-23));
}

// Powx is Pow with the exponent repeated, in place too; a zero base reports its pole and
// its domain error at their index, with the row's name.
TEST(ComplexPow, PowxIsPowWithOneExponentAndZeroBasesReport) {
    std::vector<Z> a = {{0.5, 0.25}, {-3, 0.0}, {1e-3, -7}, {0.0, -0.0}, {12, 0.5}, {-0.0, 0.0}};
    const Z b{-2.5, 0.75};
    std::vector<Z> bs(a.size(), b), y(a.size()), x = a;
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    gCxReport = {};
    As<Binary<Z>>(CxRaw(frame::Row_zPow, frame::SlotEP))(int(a.size()), a.data(), bs.data(),
                                                         y.data());
    EXPECT_EQ(gCxReport.calls, 2);
    EXPECT_EQ(gCxReport.index, 5);
    EXPECT_EQ(gCxReport.code, 2);
    EXPECT_EQ(gCxReport.name, "vzPow");
    gCxReport = {};
    As<void (*)(int, const Z*, Z, Z*)>(CxRaw(frame::Row_zPowx, frame::SlotLA))(
        int(x.size()), x.data(), b, x.data());
    EXPECT_EQ(gCxReport.calls, 2);
    EXPECT_EQ(gCxReport.name, "vzPowx");
    for (size_t i = 0; i < a.size(); ++i)
        EXPECT_TRUE(SameParts(x[i], y[i])) << "element " << i;
    EXPECT_TRUE(std::isinf(y[3].re) && y[3].im == 0);
    brenn_zar_kernel_SetErrorCallBack(saved);
    int st = 0;
    const C z = PowxCall(frame::Row_cPowx, C{0.0f, 0.0f}, C{0.0f, 2}, &st);
    EXPECT_TRUE(std::isnan(z.re) && std::isnan(z.im));
    EXPECT_EQ(st, 1);
    EXPECT_TRUE(SameParts(PowxCall(frame::Row_zPowx, Z{kNaN, kInf}, Z{0.0, -0.0}), Z{1, 0}));
}

// One kernel in the three slots, results that do not depend on the caller's x87
// precision, and the caller's control word back.
TEST(ComplexPow, OneKernelWhateverTheCallersPrecision) {
    for (RowIndex row : {frame::Row_zPow, frame::Row_cPow, frame::Row_zPowx, frame::Row_cPowx}) {
        EXPECT_EQ(CxRaw(row, frame::SlotLA), CxRaw(row, frame::SlotHA));
        EXPECT_EQ(CxRaw(row, frame::SlotEP), CxRaw(row, frame::SlotHA));
    }
    const Z a[] = {{0.5, 0.25}, {-3, 2}, {0.999, 0.04}, {12, 0.5}};
    const Z b[] = {{1.5, -0.5}, {-160, 100}, {12345, -20}, {0.1, 3}};
    Z y[4], w[4];
    const auto pow = As<Binary<Z>>(CxRaw(frame::Row_zPow, frame::SlotHA));
    pow(4, a, b, y);
    const uint16_t saved = frame::ReadX87ControlWord();
    const uint16_t doublePrecision = uint16_t((saved & ~0x300) | 0x200);
    frame::LoadX87ControlWord(doublePrecision);
    pow(4, a, b, w);
    EXPECT_EQ(frame::ReadX87ControlWord(), doublePrecision);
    frame::LoadX87ControlWord(saved);
    for (int i = 0; i < 4; ++i)
        EXPECT_TRUE(SameParts(y[i], w[i])) << "element " << i;
}

// Results, partly computed in SSE, do not depend on the caller's MXCSR: rounding toward
// zero with FTZ and DAZ, or every SSE exception unmasked (which must not trap), give the
// results of the default control within an ulp, and the control word comes back as set.
template <class T>
void CheckAgainstMxcsr(RowIndex row, const T* a, const T* b, double tol) {
    const auto pow = As<Binary<T>>(CxRaw(row, frame::SlotHA));
    T y[4], w[4];
    pow(4, a, b, y);
    const uint32_t saved = frame::ReadCsr();
    for (uint32_t csr : {(saved | 0x6000u | frame::kCsrFlushBits) & ~0x3Fu, 0x0000u}) {
        frame::LoadCsr(csr);
        pow(4, a, b, w);
        const uint32_t after = frame::ReadCsr() & ~0x3Fu;
        frame::LoadCsr(saved);
        EXPECT_EQ(after, csr);
        for (int i = 0; i < 4; ++i)
            EXPECT_TRUE(Close(w[i].re, y[i].re, tol) && Close(w[i].im, y[i].im, tol))
                << "element " << i << " csr " << std::hex << csr;
    }
}
TEST(ComplexPow, ResultsWhateverTheCallersMxcsr) {
    const C a[] = {{0.5f, 0.25f}, {-3, 2}, {0.999f, 0.04f}, {3.5f, -1.25f}};
    const C b[] = {{1.5f, -0.5f}, {-16, 10}, {7, -2}, {0.1f, 3}};
    CheckAgainstMxcsr(frame::Row_cPow, a, b, 0x1p-23);
    const Z za[] = {{0.5, 0.25}, {-3, 2}, {0.999, 0.04}, {3.5, 0x1p-1060}};
    const Z zb[] = {{1.5, -0.5}, {-160, 100}, {700, -2}, {0.1, 3}};
    CheckAgainstMxcsr(frame::Row_zPow, za, zb, 0x1p-52);
}

} // namespace
} // namespace brenn::test
