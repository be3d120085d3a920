// The special values of the complex rows (Exp, Ln, Sqrt, Abs, Arg; Cos, Sin, Tan,
// Cosh, Sinh, Tanh, the inverse trigonometric and hyperbolic functions, Log10), cell by
// cell on every pair of +-0, +-1, +-inf, NaN and finite parts, in
// every slot and both precisions, against the C library's functions of the same
// names; the statuses of those cells; and the branch cuts, whose sides the sign
// of a zero part picks.
#include <gtest/gtest.h>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>
#include <vector>

#include "tests/vecmath/complex_util.h"

// The C library's complex functions, as C declares them: each in double (result R) and
// single (result RF).
#define BRENN_C_COMPLEX(R, RF, fn)                                                                 \
    R fn(double _Complex);                                                                         \
    RF fn##f(float _Complex);
#define BRENN_C_CX(fn) BRENN_C_COMPLEX(double _Complex, float _Complex, fn)
extern "C" {
BRENN_C_COMPLEX(double, float, cabs)
BRENN_C_COMPLEX(double, float, carg)
// clang-format off
BRENN_C_CX(cexp) BRENN_C_CX(clog) BRENN_C_CX(csqrt) BRENN_C_CX(clog10)
BRENN_C_CX(ccos) BRENN_C_CX(csin) BRENN_C_CX(ctan) BRENN_C_CX(ccosh) BRENN_C_CX(csinh)
BRENN_C_CX(ctanh) BRENN_C_CX(cacos) BRENN_C_CX(casin) BRENN_C_CX(catan) BRENN_C_CX(cacosh)
BRENN_C_CX(casinh) BRENN_C_CX(catanh)
// clang-format on
}

namespace brenn::test {
namespace {

// Where C99 Annex G leaves a sign unspecified, or the C library gives a NaN's
// payload or sign, a cell is compared without the sign (named in the table
// below).
enum class Sign { Kept, Free };

struct Fn {
    const char* name;
    RowIndex z, c;
    double _Complex (*ref)(double _Complex);
    float _Complex (*refF)(float _Complex);
};

double _Complex CabsZ(double _Complex x) {
    return cabs(x);
}
float _Complex CabsC(float _Complex x) {
    return cabsf(x);
}
double _Complex CargZ(double _Complex x) {
    return carg(x);
}
float _Complex CargC(float _Complex x) {
    return cargf(x);
}

const Fn kFns[] = {
    {"Exp", frame::Row_zExp, frame::Row_cExp, cexp, cexpf},
    {"Ln", frame::Row_zLn, frame::Row_cLn, clog, clogf},
    {"Sqrt", frame::Row_zSqrt, frame::Row_cSqrt, csqrt, csqrtf},
    {"Abs", frame::Row_zAbs, frame::Row_cAbs, CabsZ, CabsC},
    {"Arg", frame::Row_zArg, frame::Row_cArg, CargZ, CargC},
    {"Cos", frame::Row_zCos, frame::Row_cCos, ccos, ccosf},
    {"Sin", frame::Row_zSin, frame::Row_cSin, csin, csinf},
    {"Cosh", frame::Row_zCosh, frame::Row_cCosh, ccosh, ccoshf},
    {"Sinh", frame::Row_zSinh, frame::Row_cSinh, csinh, csinhf},
    {"Tan", frame::Row_zTan, frame::Row_cTan, ctan, ctanf},
    {"Tanh", frame::Row_zTanh, frame::Row_cTanh, ctanh, ctanhf},
    {"Log10", frame::Row_zLog10, frame::Row_cLog10, clog10, clog10f},
    {"Acos", frame::Row_zAcos, frame::Row_cAcos, cacos, cacosf},
    {"Asin", frame::Row_zAsin, frame::Row_cAsin, casin, casinf},
    {"Atan", frame::Row_zAtan, frame::Row_cAtan, catan, catanf},
    {"Acosh", frame::Row_zAcosh, frame::Row_cAcosh, cacosh, cacoshf},
    {"Asinh", frame::Row_zAsinh, frame::Row_cAsinh, casinh, casinhf},
    {"Atanh", frame::Row_zAtanh, frame::Row_cAtanh, catanh, catanhf},
};

bool IsAbsArg(const Fn& f) {
    return f.z == frame::Row_zAbs || f.z == frame::Row_zArg;
}

// Cells where the sign is free, by Annex G: cexp(-inf + i inf) and cexp(-inf +
// i NaN) are
// +-0 +- 0i; cexp(+inf + i inf) and cexp(+inf + i NaN) have a real part of
// either sign; csqrt(-inf + i NaN) has an imaginary infinity of either sign;
// ccosh(+0 + i inf) and ccosh(+0 + i NaN) are NaN +- 0i, so ccos(inf + i0) and
// ccos(NaN + i0) are NaN +- 0i; csinh(+inf + i inf) and csinh(+inf + i NaN)
// have a real infinity of either sign, so csin(NaN or inf + i inf) an imaginary
// one; ctanh(+inf + i inf) and ctanh(+inf + i NaN) are 1 +- 0i, so ctan(inf or
// NaN + i inf) has a real zero of either sign; cacos(+-inf + i NaN) is NaN +- i inf,
// and so is casin's imaginary part there; casinh(NaN + i inf) is +-inf + i NaN;
// catanh(NaN + i inf) is +-0 + i pi/2, and catan's imaginary zero at +-inf + i NaN
// likewise. NaN parts are compared as NaN whatever their sign.
bool SignFree(const Fn& f, double re, double im) {
    if (f.z == frame::Row_zExp) return std::isinf(re) && !std::isfinite(im);
    if (f.z == frame::Row_zSqrt) return std::isinf(re) && re < 0 && std::isnan(im);
    if (f.z == frame::Row_zCosh) return re == 0 && !std::isfinite(im);
    if (f.z == frame::Row_zCos) return im == 0 && !std::isfinite(re);
    if (f.z == frame::Row_zSinh) return std::isinf(re) && !std::isfinite(im);
    if (f.z == frame::Row_zSin) return std::isinf(im) && !std::isfinite(re);
    if (f.z == frame::Row_zTanh) return std::isinf(re) && !std::isfinite(im);
    if (f.z == frame::Row_zTan) return std::isinf(im) && !std::isfinite(re);
    if (f.z == frame::Row_zAcos || f.z == frame::Row_zAsin || f.z == frame::Row_zAtan)
        return std::isinf(re) && std::isnan(im);
    if (f.z == frame::Row_zAsinh || f.z == frame::Row_zAtanh)
        return std::isnan(re) && std::isinf(im);
    return false;
}

template <class R>
bool SamePart(R got, R want, bool free, double tol) {
    if (std::isnan(want) || std::isnan(got)) return std::isnan(want) && std::isnan(got);
    if (std::isinf(want) || want == 0 || std::isinf(got) || got == 0)
        return free ? std::fabs(got) == std::fabs(want) : Bits(got) == Bits(want);
    return std::fabs(double(got) - double(want)) <= tol * std::fabs(double(want));
}

const double kParts[] = {0.0,
                         -0.0,
                         1.5,
                         -1.5,
                         0.75,
                         -2.0,
                         1.0,
                         -1.0,
                         std::numeric_limits<double>::infinity(),
                         -std::numeric_limits<double>::infinity(),
                         std::numeric_limits<double>::quiet_NaN()};

template <class E, class R>
void CheckCells(const Fn& f, RowIndex row, int slot) {
    // finite cells to the level's accuracy (EP: 11 and 26 correct bits)
    const double tol = slot == frame::SlotEP ? (sizeof(R) == 4 ? 0x1p-11 : 0x1p-26)
                                             : (sizeof(R) == 4 ? 0x1p-22 : 0x1p-50);
    ModeScope quiet(BRENN_MODE_ERRMODE_IGNORE);
    for (double re : kParts)
        for (double im : kParts) {
            E a{R(re), R(im)};
            R gotRe, gotIm = 0, wantRe, wantIm = 0;
            if (IsAbsArg(f)) {
                R y;
                As<void (*)(int, const E*, R*)>(CxRaw(row, slot))(1, &a, &y);
                gotRe = y;
            } else {
                E y;
                As<Unary<E>>(CxRaw(row, slot))(1, &a, &y);
                gotRe = y.re, gotIm = y.im;
            }
            if constexpr (sizeof(R) == 4) {
                float _Complex x;
                __real__ x = float(re), __imag__ x = float(im);
                float _Complex w = f.refF(x);
                wantRe = __real__ w, wantIm = __imag__ w;
            } else {
                double _Complex x;
                __real__ x = re, __imag__ x = im;
                double _Complex w = f.ref(x);
                wantRe = __real__ w, wantIm = __imag__ w;
            }
            const bool free = SignFree(f, re, im);
            EXPECT_TRUE(SamePart(gotRe, wantRe, free, tol) && SamePart(gotIm, wantIm, free, tol))
                << f.name << (sizeof(R) == 4 ? " c" : " z") << " slot " << slot << " at (" << re
                << ", " << im << "): got (" << gotRe << ", " << gotIm << ") want (" << wantRe
                << ", " << wantIm << ")";
        }
}

TEST(ComplexSpecialValues, EveryCellAgreesWithTheCLibrary) {
    for (const Fn& f : kFns)
        for (int slot : kCxSlots) {
            CheckCells<Z, double>(f, f.z, slot);
            CheckCells<C, float>(f, f.c, slot);
        }
}

// Statuses of the special cells: Ln of zero is a pole; Exp of an infinite
// imaginary part with a finite or +inf real part is a domain error; Exp
// overflows from finite parts; Sqrt never reports, and NaNs report nothing
// anywhere.
TEST(ComplexSpecialValues, StatusesOfTheSpecialCells) {
    const double inf = std::numeric_limits<double>::infinity();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    struct Cell {
        RowIndex row;
        Z a;
        int status;
    };
    const Cell cells[] = {
        {frame::Row_zLn, {0.0, -0.0}, 2},   {frame::Row_zLn, {-0.0, 0.0}, 2},
        {frame::Row_zLn, {nan, 0.0}, 0},    {frame::Row_zLn, {-inf, 1}, 0},
        {frame::Row_zExp, {1, inf}, 1},     {frame::Row_zExp, {inf, -inf}, 1},
        {frame::Row_zExp, {-inf, inf}, 0},  {frame::Row_zExp, {800, 0.5}, 3},
        {frame::Row_zExp, {710, 0.8}, 0},   {frame::Row_zExp, {nan, inf}, 0},
        {frame::Row_zSqrt, {-0.0, 0}, 0},   {frame::Row_zSqrt, {-inf, nan}, 0},
        {frame::Row_zAtanh, {1, 0.0}, 2},   {frame::Row_zAtanh, {-1, -0.0}, 2},
        {frame::Row_zAtanh, {1, 0.5}, 0},   {frame::Row_zAtanh, {nan, 0.0}, 0},
        {frame::Row_zAtan, {0.0, 1}, 0},    {frame::Row_zAcos, {inf, nan}, 0},
        {frame::Row_zAsinh, {0.0, inf}, 0}, {frame::Row_zAcosh, {-2, 0.0}, 0},
    };
    for (const Cell& c : cells)
        for (int slot : kCxSlots) {
            int st;
            CxCall(c.row, slot, c.a, &st);
            EXPECT_EQ(st, c.status) << frame::kRowInfo[c.row].name << " (" << c.a.re << ", "
                                    << c.a.im << ") slot " << slot;
            C s{float(c.a.re), float(c.a.im)};
            RowIndex single = RowIndex(c.row - frame::Row_zCos + frame::Row_cCos);
            if (c.a.re == 800 || c.a.re == 710) s.re = 100; // beyond the single range
            CxCall(single, slot, s, &st);
            EXPECT_EQ(st, c.a.re == 710 ? 3 : c.status) << frame::kRowInfo[single].name;
        }
}

// Both sides of the cuts: Ln and Sqrt along the negative reals, by the sign of
// a zero imaginary part, in long vectors (vector bodies) and alone.
TEST(ComplexSpecialValues, BranchCutsFollowTheSignOfZero) {
    const double pi = 3.141592653589793;
    for (int slot : kCxSlots) {
        for (double sign : {1.0, -1.0}) {
            std::vector<Z> a(9, Z{-4, std::copysign(0.0, sign)}), y(9);
            a[3] = {-0.25, std::copysign(0.0, sign)};
            As<Unary<Z>>(CxRaw(frame::Row_zSqrt, slot))(9, a.data(), y.data());
            EXPECT_TRUE(SameParts(y[0], Z{0.0, 2 * sign}));
            EXPECT_TRUE(SameParts(y[3], Z{0.0, 0.5 * sign}));
            As<Unary<Z>>(CxRaw(frame::Row_zLn, slot))(9, a.data(), y.data());
            EXPECT_DOUBLE_EQ(y[0].re, std::log(4.0));
            EXPECT_EQ(y[0].im, sign * pi);
            std::vector<C> c(5, C{-4, std::copysign(0.0f, float(sign))}), w(5);
            As<Unary<C>>(CxRaw(frame::Row_cSqrt, slot))(5, c.data(), w.data());
            EXPECT_TRUE(SameParts(w[4], C{0.0f, 2 * float(sign)}));
            As<Unary<C>>(CxRaw(frame::Row_cLn, slot))(5, c.data(), w.data());
            EXPECT_EQ(w[4].im, float(sign * pi));
            // just off the cut on each side: the imaginary part is near +-pi
            Z near = CxCall(frame::Row_zLn, slot, Z{-1, sign * 1e-300});
            EXPECT_EQ(near.im, sign * pi);
        }
        // Arg on the negative reals and the quadrant rules of atan2
        double arg;
        Z m{-1, -0.0};
        As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zArg, slot))(1, &m, &arg);
        EXPECT_EQ(arg, -pi);
    }
}

// Both sides of the cuts of the inverse functions, by the sign of a zero part and just
// off the cut (a part of +-1e-30, where the result is within rounding of the zero's
// side), against the C library: Acos, Asin and Atanh along the real axis beyond +-1,
// Acosh below 1, Asinh and Atan along the imaginary axis beyond +-i.
TEST(ComplexSpecialValues, CutsOfTheInverseFunctionsOnBothSides) {
    struct Cut {
        RowIndex z, c;
        double _Complex (*ref)(double _Complex);
        float _Complex (*refF)(float _Complex);
        bool imaginaryAxis; // the cut along the imaginary axis
        double at[3];       // points on the cut
    } cuts[] = {
        {frame::Row_zAcos, frame::Row_cAcos, cacos, cacosf, false, {2, -1.25, 1e30}},
        {frame::Row_zAsin, frame::Row_cAsin, casin, casinf, false, {2, -1.25, -1e30}},
        {frame::Row_zAtanh, frame::Row_cAtanh, catanh, catanhf, false, {2, -1.25, 1e30}},
        {frame::Row_zAcosh, frame::Row_cAcosh, cacosh, cacoshf, false, {-2, 0.5, -1e30}},
        {frame::Row_zAsinh, frame::Row_cAsinh, casinh, casinhf, true, {2, -1.25, 1e30}},
        {frame::Row_zAtan, frame::Row_cAtan, catan, catanf, true, {2, -1.25, -1e30}},
    };
    for (const Cut& c : cuts)
        for (double t : c.at)
            for (double off : {0.0, -0.0, 1e-30, -1e-30}) {
                double re = c.imaginaryAxis ? off : t, im = c.imaginaryAxis ? t : off;
                double _Complex x;
                __real__ x = re, __imag__ x = im;
                double _Complex want = c.ref(x);
                Z got = CxCall(c.z, frame::SlotHA, Z{re, im});
                EXPECT_TRUE(SamePart(got.re, double(__real__ want), false, 0x1p-50) &&
                            SamePart(got.im, double(__imag__ want), false, 0x1p-50))
                    << frame::kRowInfo[c.z].name << " (" << re << ", " << im << "): got (" << got.re
                    << ", " << got.im << ")";
                float _Complex xf;
                __real__ xf = float(re), __imag__ xf = float(im);
                float _Complex wantF = c.refF(xf);
                C gotF = CxCall(c.c, frame::SlotEP, C{float(re), float(im)});
                EXPECT_TRUE(SamePart(gotF.re, float(__real__ wantF), false, 0x1p-21) &&
                            SamePart(gotF.im, float(__imag__ wantF), false, 0x1p-21))
                    << frame::kRowInfo[c.c].name << " (" << re << ", " << im << "): got ("
                    << gotF.re << ", " << gotF.im << ")";
            }
}

// Parts near the ends of the double range, denormal parts, points beside +-1 and the
// hyperbolic tangent's switch to +-1 at |x| = 23: the extended routines neither overflow
// nor underflow on the way, and agree with the C library.
TEST(ComplexSpecialValues, ExtremePartsOfTheExtendedRows) {
    const Z parts[] = {
        {1e308, 1e308}, {-1e308, 1e-308}, {1e-308, -1e308},      {-1e-310, 1e300},
        {5e-324, 1},    {1, 5e-324},      {0.9999999999, 1e-20}, {-1.0000000001, -1e-20},
        {23.5, 1},      {-22.9, 0.5},     {-30, 1e-300},         {3e-200, -4e-200},
        {7e15, -2},     {0.5, 1e200}};
    for (const Fn& f : kFns) {
        if (f.z < frame::Row_zTan || f.z > frame::Row_zAtanh || f.z == frame::Row_zCosh ||
            f.z == frame::Row_zSinh)
            continue; // the tangents and the inverse functions
        for (const Z& a : parts) {
            double _Complex x;
            __real__ x = a.re, __imag__ x = a.im;
            double _Complex want = f.ref(x);
            Z got = CxCall(f.z, frame::SlotHA, a);
            EXPECT_TRUE(SamePart(got.re, double(__real__ want), false, 0x1p-49) &&
                        SamePart(got.im, double(__imag__ want), false, 0x1p-49))
                << f.name << " (" << a.re << ", " << a.im << "): got (" << got.re << ", " << got.im
                << ") want (" << __real__ want << ", " << __imag__ want << ")";
        }
    }
}

// Abs without overflow or underflow: the scaled routine.
TEST(ComplexSpecialValues, AbsOfHugeAndTinyParts) {
    struct Case {
        Z a;
        double want;
    } cases[] = {
        {{3e200, 4e200}, 5e200},
        {{3e-200, 4e-200}, 5e-200},
        {{0x1p-1074, 0x1p-1074}, 0x1p-1074},
        {{1.5e308, 1.5e308}, std::numeric_limits<double>::infinity()},
        {{std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN()},
         std::numeric_limits<double>::infinity()}};
    for (int slot : kCxSlots)
        for (const Case& c : cases) {
            std::vector<Z> a(5, c.a);
            std::vector<double> y(5);
            As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zAbs, slot))(5, a.data(),
                                                                               y.data());
            // within an ulp of the decimal (3e200 and 4e200 are not exact: the
            // correctly rounded |z| is the double below 5e200)
            if (std::isinf(c.want))
                EXPECT_EQ(y[2], c.want) << c.a.re << " slot " << slot;
            else
                EXPECT_NEAR(y[2], c.want, 2.3e-16 * c.want) << c.a.re << " slot " << slot;
        }
}

// Double Abs HA about the ends of its vector window (the larger part from 2^-450 to
// 2^500, judged by its high word): the larger part in either place, just inside and just
// outside each end, beside smaller parts from zero and denormals up to an equal one, at
// every position of a long call: each result within half an ulp and a little of |z| in
// extended precision, whichever path took it.
TEST(ComplexSpecialValues, AbsHAAboutItsWindow) {
    const double large[] = {0x1p-450, std::nextafter(0x1p-450, 0.0), 0x1.fffffffffffffp-451,
                            0x1.0000000000001p-450, 0x1.fffffffffffffp500, 0x1p501,
                            0x1.fffff00000000p500,  0x1.8p499, 1.0, 0x1p-600, 0x1p-1074,
                            0x1p700};
    const double small[] = {0.0, -0.0, 0x1p-1074, 0x1p-600, 0x1p-452, 0.75, 1.0};
    std::vector<Z> z;
    for (double l : large)
        for (double f : small)
            for (int swap = 0; swap < 2; ++swap) {
                double a = -l, b = f * l;
                z.push_back(swap ? Z{b, a} : Z{a, b});
            }
    const int n = int(z.size());
    for (int shift = 0; shift < 3; ++shift) {
        std::vector<Z> a(z.begin() + shift, z.end());
        a.insert(a.end(), z.begin(), z.begin() + shift);
        std::vector<double> y(n);
        As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zAbs, frame::SlotHA))(n, a.data(),
                                                                                  y.data());
        for (int i = 0; i < n; ++i) {
            long double want = std::hypot((long double)a[i].re, (long double)a[i].im);
            double ulp = std::nextafter(double(want), INFINITY) - double(want);
            EXPECT_LE(std::fabs((long double)y[i] - want), 0.501L * ulp)
                << a[i].re << " " << a[i].im << " at " << i;
        }
    }
}

// Double Sqrt's parts where its residuals decide the rounding: parts of every ratio from
// equal to 2^-60 (the square of the smaller far below the larger's error), either part
// the larger, every sign, |z|^2 near a power of two, full mantissas drawn at random, the
// larger part across the vector window and beyond it (in rounds of ordinary elements):
// each part within half an ulp and a little of the root taken in extended precision (a
// dropped or misplaced residual costs up to an ulp).
TEST(ComplexSpecialValues, SqrtPartsWithinHalfAnUlp) {
    std::vector<Z> z;
    uint64_t state = 0x9E3779B97F4A7C15ull;
    auto next = [&state] {
        state ^= state << 13, state ^= state >> 7, state ^= state << 17;
        return state;
    };
    auto mantissa = [&] { return 1.0 + double(next() >> 12) * 0x1p-52; };
    const int scales[] = {-449, -300, -1, 0, 1, 37, 300, 499};
    for (int e : scales)
        for (int d = 0; d <= 60; d += 3)
            for (int k = 0; k < 8; ++k) {
                double a = std::ldexp(mantissa(), e), b = std::ldexp(mantissa(), e - d);
                if (k & 1) a = -a;
                if (k & 2) b = -b;
                z.push_back(k & 4 ? Z{b, a} : Z{a, b});
            }
    // |z|^2 just below and above a power of two, and equal parts
    for (double a : {0x1.6a09e667f3bcdp-1, 0x1.6a09e667f3bccp-1, 0x1.fffffffffffffp-1, 1.0})
        for (double b : {0x1.6a09e667f3bcdp-1, 0x1p-27, 0x1.0000001p-26})
            for (double s : {1.0, -1.0, 0x1p200, -0x1p-200}) z.push_back({s * a, b});
    // beyond the window, through the extended routine, among ordinary elements
    const Z outside[] = {{0x1.8p-460, -0x1.3p-470}, {-0x1.5p510, 0x1.7p505},
                         {0x1.3p700, -0x1.1p690},   {-0x1p-1000, 0x1.8p-1010},
                         {0x1p-1070, -0x1p-1073},   {-0x1.fp1023, 0x1.8p1023}};
    for (int i = 0; i < 6; ++i) z.insert(z.begin() + 37 * i * i, outside[i]);
    const int n = int(z.size());
    std::vector<Z> y(n);
    for (int slot : kCxSlots) {
        As<Unary<Z>>(CxRaw(frame::Row_zSqrt, slot))(n, z.data(), y.data());
        for (int i = 0; i < n; ++i) {
            long double x = z[i].re, w = z[i].im;
            long double m = std::sqrt(x * x + w * w);
            long double t = std::sqrt((std::fabs(x) + m) / 2);
            long double q = w / (2 * t);
            long double re = x >= 0 ? t : std::fabs(q), im = x >= 0 ? q : std::copysign(t, w);
            for (auto [got, want] : {std::pair{y[i].re, re}, std::pair{y[i].im, im}}) {
                double r = double(want);
                double ulp = std::nextafter(std::fabs(r), INFINITY) - std::fabs(r);
                EXPECT_LE(std::fabs((long double)got - want), 0.502L * ulp)
                    << std::hexfloat << z[i].re << " " << z[i].im << " slot " << slot;
            }
        }
    }
}

// Double Ln about the unit circle, where ln|z| is far below |z|^2's parts: (cos t, sin t)
// rounded, its real part moved by up to four ulps and by 2^12 and 2^24 ulps, in every
// quadrant, at shifted positions of a long call. |z|^2 is carried in two parts, so that
// the real part is good to 0.6 ulp of its own down to 2^-50 or so, and to 2^-103
// absolutely below (a tail dropped or misplaced costs 2^-53; LA and HA share the
// logarithm's core). The
// reference takes |z|^2 - 1 exactly in binary128 (both parts from 1/8 up, so that the
// squares' sum fits its 113 bits) and ln(1 + u) by three terms.
TEST(ComplexSpecialValues, LnNearTheUnitCircleKeepsItsAccuracy) {
    std::vector<Z> z;
    for (int j = 0; j < 48; ++j) {
        double t = 0.13 + 1.31 * j / 47;
        double c = std::cos(t), s = std::sin(t);
        for (int k : {-4, -3, -2, -1, 0, 1, 2, 3, 4, 1 << 12, -(1 << 12), 1 << 24, -(1 << 24)}) {
            double x = c + std::ldexp(double(k), std::ilogb(c) - 52);
            int q = (j + k + 8) & 3;
            z.push_back({q & 1 ? -x : x, q & 2 ? -s : s});
        }
    }
    const int n = int(z.size());
    for (int slot : {frame::SlotLA, frame::SlotHA})
        for (int shift = 0; shift < 3; ++shift) {
            std::vector<Z> a(z.begin() + shift, z.end());
            a.insert(a.end(), z.begin(), z.begin() + shift);
            std::vector<Z> y(n);
            As<Unary<Z>>(CxRaw(frame::Row_zLn, slot))(n, a.data(), y.data());
            for (int i = 0; i < n; ++i) {
                __float128 x = a[i].re, w = a[i].im;
                __float128 u = x * x + w * w - 1;
                __float128 l = (u - u * u / 2 + u * u * u / 3) / 2;
                double want = double(l), err = std::fabs(double(y[i].re - l));
                double ulp = std::fabs(std::nextafter(want, 2 * want) - want);
                double bound = std::max(0.6 * ulp, 0x1p-103);
                EXPECT_LE(err, bound) << a[i].re << " " << a[i].im << ": " << y[i].re
                                      << " for " << want << " slot " << slot;
            }
        }
}

// Double Arg and Ln test a round's windows once and skip the blends where no part lies
// outside: one element at an end of a window (a part about 2^-500 or 2^500, the larger
// part about 2^-450, zeros, infinities, NaNs) among ordinary ones, at every position of
// a round of 24 elements, gives the bits it gives alone.
TEST(ComplexSpecialValues, ArgAndLnWindowEdgesAmongOrdinaryElements) {
    const double inf = std::numeric_limits<double>::infinity();
    const double below = std::nextafter(0x1p-500, 0.0), under = std::nextafter(0x1p-450, 0.0);
    const Z edges[] = {{0.75, 0x1p-500}, {0.75, below},      {below, -2.0},
                       {0x1p-450, 0x1p-460}, {under, 0x1p-460}, {-0x1p-460, under},
                       {0x1p500, 1.0},   {1.0, std::nextafter(0x1p500, 0.0)},
                       {0.0, 0.0},       {-0.0, 1.5},       {inf, 1.0}, {1.0, std::nan("")}};
    const int n = 24;
    for (const Z& e : edges)
        for (int slot : kCxSlots)
            for (int at = 0; at < n; ++at) {
                std::vector<Z> z(n), ln(n);
                for (int i = 0; i < n; ++i)
                    z[i] = {1.25 + i * 0.5, i % 3 - 1.0 + 0.125 * i};
                z[at] = e;
                std::vector<double> arg(n);
                As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zArg, slot))(n, z.data(),
                                                                                 arg.data());
                As<Unary<Z>>(CxRaw(frame::Row_zLn, slot))(n, z.data(), ln.data());
                for (int i : {at, (at + 1) % n}) {
                    double a1;
                    As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zArg, slot))(1, &z[i],
                                                                                     &a1);
                    Z l1 = CxCall(frame::Row_zLn, slot, z[i]);
                    EXPECT_TRUE(SameValue(arg[i], a1)) << e.re << " " << e.im << " at " << at;
                    EXPECT_TRUE(SameParts(ln[i], l1)) << e.re << " " << e.im << " at " << at;
                }
            }
}

// Double Exp tests its round's windows once as well (|re| to 708.39 by the high word,
// |im| below 2^24): one element at or past an end among ordinary ones, at every position
// of a round, gives the bits it gives alone.
TEST(ComplexSpecialValues, ExpWindowEdgesAmongOrdinaryElements) {
    const double inf = std::numeric_limits<double>::infinity();
    const Z edges[] = {{708.39, 1.0},  {-708.39, 2.0}, {708.4, 1.0},    {-745.0, 0.5},
                       {1.0, 0x1p24},  {1.0, std::nextafter(0x1p24, 0.0)}, {0.5, -0x1p30},
                       {inf, 1.0},     {-inf, 1.0},    {1.0, std::nan("")}, {2.0, inf}};
    const int n = 8;
    for (const Z& e : edges)
        for (int slot : kCxSlots)
            for (int at = 0; at < n; ++at) {
                std::vector<Z> z(n), y(n);
                for (int i = 0; i < n; ++i)
                    z[i] = {0.375 * i - 1.0, 0.75 * i + 0.25};
                z[at] = e;
                As<Unary<Z>>(CxRaw(frame::Row_zExp, slot))(n, z.data(), y.data());
                for (int i : {at, (at + 1) % n}) {
                    Z y1 = CxCall(frame::Row_zExp, slot, z[i]);
                    EXPECT_TRUE(SameParts(y[i], y1)) << e.re << " " << e.im << " at " << at;
                }
            }
}

// Double Arg HA and Ln HA's phase run the real Atan2 HA's steps in their own rounds: the
// same bits as dAtan2 HA of (im, re) wherever an element stands, across magnitudes,
// signs, zeros, denormals, the ends of the range and infinities (NaNs aside: the two
// scalar routines may pick different NaNs of a pair).
TEST(ComplexSpecialValues, ArgAndLnPhaseHAAreTheRealAtan2HA) {
    const double inf = std::numeric_limits<double>::infinity();
    const double edges[] = {0.0,     -0.0,    0x1p-1074, 0x1p-1022, 0x1p-501, 0x1p-500,
                            0x1p499, 0x1p500, 0x1p1023,  inf,       -inf,     1.0};
    const int n = 1003;
    std::vector<Z> z(n);
    std::vector<double> re(n), im(n), arg(n), want(n);
    uint64_t r = 0x9E3779B97F4A7C15ull;
    auto next = [&r] {
        r ^= r << 13, r ^= r >> 7, r ^= r << 17;
        return r;
    };
    for (int i = 0; i < n; ++i) {
        for (double* p : {&re[i], &im[i]}) {
            uint64_t b = next();
            double m = std::ldexp(1.0 + double(b >> 12) * 0x1p-52, int(b % 64) - 32);
            if (b % 29 == 0) m = edges[(b >> 8) % 12];
            if (b % 31 == 0) m = std::ldexp(m, int((b >> 20) % 1200) - 600);
            *p = (b >> 7) & 1 ? -m : m;
        }
        z[i] = {re[i], im[i]};
    }
    As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zArg, frame::SlotHA))(n, z.data(),
                                                                              arg.data());
    As<Binary<double>>(CxRaw(frame::Row_dAtan2, frame::SlotHA))(n, im.data(), re.data(),
                                                                want.data());
    for (int i = 0; i < n; ++i)
        ASSERT_EQ(Bits(arg[i]), Bits(want[i])) << i << ": " << re[i] << " " << im[i];
    // and the same element alone, through the partial group
    for (int i : {0, 1, 500, n - 1}) {
        double y;
        As<void (*)(int, const Z*, double*)>(CxRaw(frame::Row_zArg, frame::SlotHA))(1, &z[i], &y);
        EXPECT_EQ(Bits(y), Bits(want[i])) << i;
    }
    // Ln HA's phase is the same wherever its vector body holds the element (both parts in
    // [2^-450, 2^450]; the others go to its extended scalar routine)
    std::vector<Z> ln(n);
    As<Unary<Z>>(CxRaw(frame::Row_zLn, frame::SlotHA))(n, z.data(), ln.data());
    int inside = 0;
    for (int i = 0; i < n; ++i) {
        auto held = [](double v) {
            return std::fabs(v) >= 0x1p-450 && std::fabs(v) <= 0x1p450;
        };
        if (!held(re[i]) || !held(im[i])) continue;
        ++inside;
        ASSERT_EQ(Bits(ln[i].im), Bits(want[i])) << i << ": " << re[i] << " " << im[i];
    }
    EXPECT_GT(inside, n / 2);
}

} // namespace
} // namespace brenn::test
