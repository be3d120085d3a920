// The hyperbolic rows Cosh, Sinh and Tanh: values against long double references at the
// places where the bodies change path (the series' end, the range tests, the tables'
// first and last rows, saturation), overflow with its status on both sides of the limit,
// the special values and the flags they may raise, denormal inputs, and every length and
// alignment against one element at a time.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

using RowIndex = const char*;

template <class T>
Unary<T> K(RowIndex row, int slot) {
    return As<Unary<T>>(Slot(row, slot));
}

constexpr int kSlotLA = 0, kSlotHA = 1, kSlotEP = 2;
constexpr int kSlots[] = {kSlotLA, kSlotHA, kSlotEP};

template <class T>
T Call(RowIndex row, int slot, T x, int* status = nullptr) {
    return CallUnary(K<T>(row, slot), x, status);
}

enum class Fn { Cosh, Sinh, Tanh, Asinh, Acosh, Atanh };
constexpr Fn kAll[] = {Fn::Cosh, Fn::Sinh, Fn::Tanh, Fn::Asinh, Fn::Acosh, Fn::Atanh};

template <class T>
RowIndex RowOf(Fn f) {
    constexpr bool s = sizeof(T) == 4;
    switch (f) {
    case Fn::Cosh:
        return s ? "sCosh" : "dCosh";
    case Fn::Sinh:
        return s ? "sSinh" : "dSinh";
    case Fn::Tanh:
        return s ? "sTanh" : "dTanh";
    case Fn::Asinh:
        return s ? "sAsinh" : "dAsinh";
    case Fn::Acosh:
        return s ? "sAcosh" : "dAcosh";
    default:
        return s ? "sAtanh" : "dAtanh";
    }
}

long double Ref(Fn f, long double x) {
    switch (f) {
    case Fn::Cosh:
        return coshl(x);
    case Fn::Sinh:
        return sinhl(x);
    case Fn::Tanh:
        return tanhl(x);
    case Fn::Asinh:
        return asinhl(x);
    case Fn::Acosh:
        return acoshl(x);
    default:
        return atanhl(x);
    }
}

// Within the slot's bound: 1 ulp at HA, 4 at LA, 11 or 26 correct bits at EP.
template <class T>
void ExpectWithinLevel(Fn f, int slot, T x) {
    T y = Call(RowOf<T>(f), slot, x);
    long double ref = Ref(f, x);
    if (slot == kSlotEP && ref != 0) {
        double bits = sizeof(T) == 4 ? 11 : 26;
        EXPECT_LE(fabsl((y - ref) / ref), ldexpl(1.0L, -int(bits)))
            << int(f) << " slot " << slot << " x " << x << " got " << y;
    } else {
        EXPECT_LE(UlpError(y, ref), slot == kSlotHA ? 1.0 : 4.0)
            << int(f) << " slot " << slot << " x " << x << " got " << y;
    }
}

// Both sides of every place a body changes path, and some between.
TEST(Hyper, ValuesWhereThePathsMeet) {
    const float single[] = {0x1p-126f, 0x1p-40f, 0x1p-12f,      0.0311f,  0x1p-5f, 0x1.02p-5f,
                            0x1.fffffep-4f, 0x1p-3f, 0.25f,     0.3465f,  0.3467f,       0.49999f, 0.5f,    0.50001f,
                            1.0f,      2.1008f,  5.0f,          9.49f,    9.99f,   10.0f,
                            10.01f,    15.5f,    21.4875f,      21.4876f, 40.0f,   87.3365f,
                            87.33654f, 88.5f,    89.4099f,      89.41f,   0x1.65a9f8p+6f,
                            0x1.fffffep-126f, 0x1p-125f};
    const double dbl[] = {0x1p-1022,
                          0x1p-60,
                          0x1p-53,
                          0x1p-30,
                          0.01,
                          0.2,
                          0.49999999999999994,
                          0.5,
                          0.7,
                          1.0,
                          2.1008803436239916,
                          2.9999999999999996,
                          3.0,
                          10.0,
                          19.0,
                          21.99,
                          22.0,
                          22.5,
                          21.487562597358306,
                          300.0,
                          707.999,
                          708.0,
                          709.5,
                          710.0,
                          710.4702148437499,
                          710.47021484375,
                          710.4758600739435};
    for (Fn f : {Fn::Cosh, Fn::Sinh, Fn::Tanh})
        for (int slot : kSlots) {
            for (float x : single)
                for (float s : {x, -x})
                    if (f != Fn::Tanh || fabsf(s) < 30) ExpectWithinLevel(f, slot, s);
            for (double x : dbl)
                for (double s : {x, -x})
                    if (f != Fn::Tanh || fabs(s) < 30) ExpectWithinLevel(f, slot, s);
        }
}

// Overflow on both sides of the limit, with status 3 and the sign of Sinh; the last
// finite arguments finite and silent.
template <class T>
void ExpectOverflowAt(T below, T at) {
    for (int slot : kSlots)
        for (T s : {T(1), T(-1)}) {
            int status;
            T y = Call(RowOf<T>(Fn::Cosh), slot, s * below, &status);
            EXPECT_TRUE(std::isfinite(y)) << slot;
            EXPECT_EQ(status, 0);
            y = Call(RowOf<T>(Fn::Sinh), slot, s * below, &status);
            EXPECT_TRUE(std::isfinite(y)) << slot;
            EXPECT_EQ(status, 0);
            EXPECT_EQ(Call(RowOf<T>(Fn::Cosh), slot, s * at, &status), INFINITY);
            EXPECT_EQ(status, 3);
            EXPECT_EQ(Call(RowOf<T>(Fn::Sinh), slot, s * at, &status), s * INFINITY);
            EXPECT_EQ(status, 3);
            EXPECT_EQ(Call(RowOf<T>(Fn::Cosh), slot, s * std::numeric_limits<T>::max(), &status),
                      INFINITY);
            EXPECT_EQ(status, 3);
        }
}

TEST(Hyper, OverflowOnBothSidesOfTheLimit) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    ExpectOverflowAt(0x1.65a9f8p+6f, 0x1.65a9fap+6f); // 89.4159927368164
    ExpectOverflowAt(0x1.633ce8fb9f87dp+9, 0x1.633ce8fb9f87ep+9);
    for (int slot : kSlots) {
        int status;
        EXPECT_TRUE(std::isfinite(Call("sCosh", slot, 88.5f, &status)));
        EXPECT_EQ(status, 0);
        EXPECT_EQ(Call("sCosh", slot, 90.0f, &status), INFINITY);
        EXPECT_EQ(status, 3);
    }
}

// Single Cosh and Sinh in long calls over the last stretch of the vector path, 80 to
// 89.41, where the scales leave the format's ordinary range (n = 116 to 129, 2^(-n) no
// longer normal): every level within its bound and silent, through the main rounds.
TEST(Hyper, SingleTopRangeInLongCalls) {
    std::vector<float> x;
    for (float v = 80.0f; v <= 89.41f; v = nextafterf(v, 100.0f) + 0x1p-12f)
        for (float s : {v, -v})
            x.push_back(s);
    std::vector<float> y(x.size());
    for (Fn f : {Fn::Cosh, Fn::Sinh})
        for (int slot : kSlots) {
            ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
            K<float>(RowOf<float>(f), slot)(int(x.size()), x.data(), y.data());
            double worst = 0, bits = 64;
            for (size_t i = 0; i < x.size(); ++i) {
                long double ref = Ref(f, x[i]);
                ASSERT_TRUE(std::isfinite(y[i])) << int(f) << " " << slot << " " << x[i];
                worst = std::max(worst, UlpError(y[i], ref));
                bits = std::min(bits, double(-log2l(fabsl((y[i] - ref) / ref))));
            }
            if (slot == kSlotEP)
                EXPECT_GE(bits, 11.0) << int(f);
            else
                EXPECT_LE(worst, slot == kSlotHA ? 1.0 : 4.0) << int(f) << " " << slot;
        }
}

// Single HA Cosh and Sinh, every float in stretches around the places where the body
// changes row or scale: Sinh's small band ending at 1/4, the rows of 2^(j/32) taking over
// at n = 480 (10.397) and serving every n beyond (11.09, 22.18, m = 64 and 128), and the
// top of the range. Within 0.6 ulp, the level's aim, in long calls.
TEST(Hyper, SingleHAWhereTheRowsChange) {
    const float centres[] = {0.25f, 10.3972077f, 11.0903549f, 22.1807098f, 44.3614197f,
                             88.7228394f, 89.4099f};
    std::vector<float> x;
    for (float c : centres) {
        float v = c;
        for (int k = 0; k < 3000; ++k)
            v = nextafterf(v, 0.0f);
        for (int k = 0; k < 6000 && v < 89.4159f; ++k, v = nextafterf(v, 100.0f))
            x.push_back(k & 1 ? -v : v);
    }
    std::vector<float> y(x.size());
    for (Fn f : {Fn::Cosh, Fn::Sinh}) {
        brenn_zar_kernel_SetErrStatus(0);
        K<float>(RowOf<float>(f), kSlotHA)(int(x.size()), x.data(), y.data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
        double worst = 0;
        float at = 0;
        for (size_t i = 0; i < x.size(); ++i) {
            double e = UlpError(y[i], Ref(f, x[i]));
            if (e > worst) worst = e, at = x[i];
        }
        EXPECT_LE(worst, 0.6) << int(f) << " at " << at;
    }
}

// Where Tanh rounds to 1: past the single table's last row, past 22 in double.
template <class T>
constexpr T kSaturated = sizeof(T) == 4 ? T(10.5) : T(22.5);

// Infinities and NaN come back without a status: Cosh +inf, Sinh the infinity, Tanh 1
// with x's sign; a NaN (signalling too) quieted. Tanh saturates without a report.
template <class T>
void ExpectSpecials() {
    const T inf = std::numeric_limits<T>::infinity();
    const T snan = std::numeric_limits<T>::signaling_NaN();
    for (int slot : kSlots)
        for (T s : {T(1), T(-1)}) {
            int status;
            EXPECT_EQ(Call(RowOf<T>(Fn::Cosh), slot, s * inf, &status), inf);
            EXPECT_EQ(status, 0);
            EXPECT_EQ(Call(RowOf<T>(Fn::Sinh), slot, s * inf, &status), s * inf);
            EXPECT_EQ(status, 0);
            EXPECT_EQ(Call(RowOf<T>(Fn::Tanh), slot, s * inf, &status), s);
            EXPECT_EQ(status, 0);
            EXPECT_EQ(Call(RowOf<T>(Fn::Tanh), slot, s * kSaturated<T>, &status), s);
            EXPECT_EQ(Call(RowOf<T>(Fn::Tanh), slot, s * T(1e30), &status), s);
            EXPECT_EQ(status, 0);
            for (Fn f : {Fn::Cosh, Fn::Sinh, Fn::Tanh})
                for (T nan : {T(NAN), snan}) {
                    T y = Call(RowOf<T>(f), slot, std::copysign(nan, s), &status);
                    EXPECT_TRUE(std::isnan(y));
                    EXPECT_EQ(status, 0);
                    T q = y;
                    EXPECT_FALSE(issignaling(q)) << int(f) << " " << slot;
                }
        }
}

TEST(Hyper, SpecialValuesWithoutStatus) {
    ExpectSpecials<float>();
    ExpectSpecials<double>();
}

// Zeros: Cosh 1, Sinh and Tanh the zero with its sign. Denormals: Sinh and Tanh give x,
// Cosh 1; Sinh of a denormal raises the underflow flag.
template <class T>
void ExpectZerosAndDenormals() {
    const T tiny = std::numeric_limits<T>::denorm_min() * 5;
    for (int slot : kSlots)
        for (T s : {T(1), T(-1)}) {
            EXPECT_EQ(Call(RowOf<T>(Fn::Cosh), slot, s * T(0)), T(1));
            EXPECT_EQ(Bits(Call(RowOf<T>(Fn::Sinh), slot, s * T(0))), Bits(s * T(0)));
            EXPECT_EQ(Bits(Call(RowOf<T>(Fn::Tanh), slot, s * T(0))), Bits(s * T(0)));
            EXPECT_EQ(Call(RowOf<T>(Fn::Cosh), slot, s * tiny), T(1));
            EXPECT_EQ(Call(RowOf<T>(Fn::Sinh), slot, s * tiny), s * tiny);
            EXPECT_EQ(Call(RowOf<T>(Fn::Tanh), slot, s * tiny), s * tiny);
            CsrScope csr(0x1F80);
            T x = s * tiny, y;
            K<T>(RowOf<T>(Fn::Sinh), slot)(1, &x, &y);
            EXPECT_TRUE(_mm_getcsr() & 0x10) << "underflow flag, slot " << slot;
        }
}

TEST(Hyper, ZerosAndDenormals) {
    ExpectZerosAndDenormals<float>();
    ExpectZerosAndDenormals<double>();
}

// A lone denormal, or a least normal, among ordinary arguments, at every position of long
// calls of single Sinh: where a round's window is tested once, only the window's offset
// catches these lanes. Each comes back as x, the denormal with the underflow flag.
TEST(Hyper, SingleSinhTinyLaneInLongCalls) {
    for (float tiny : {std::numeric_limits<float>::denorm_min() * 3, -0x1p-126f, 0x1.8p-126f})
        for (int slot : kSlots)
            for (int at = 0; at < 32; ++at) {
                std::vector<float> x(32), y(32);
                for (int i = 0; i < 32; ++i)
                    x[i] = 0.25f + 0.7f * float(i);
                x[at] = tiny;
                CsrScope csr(0x1F80);
                K<float>(RowOf<float>(Fn::Sinh), slot)(32, x.data(), y.data());
                if (std::fpclassify(tiny) == FP_SUBNORMAL)
                    EXPECT_TRUE(_mm_getcsr() & 0x10) << tiny << " slot " << slot << " at " << at;
                EXPECT_EQ(Bits(y[at]), Bits(tiny)) << tiny << " slot " << slot << " at " << at;
                EXPECT_EQ(y[(at + 1) % 32], Call(RowOf<float>(Fn::Sinh), slot, x[(at + 1) % 32]));
            }
}

// The special lanes raise nothing of their own: no invalid for infinities or a quiet
// NaN, no overflow for the infinities.
template <class T>
unsigned FlagsOf(RowIndex row, int slot, T x) {
    CsrScope csr(0x1F80);
    T in[5] = {T(1), T(1), x, T(1), T(1)}, y[5];
    K<T>(row, slot)(5, in, y);
    return _mm_getcsr() & 0x3F & ~0x20u; // inexact aside
}

TEST(Hyper, SpecialLanesRaiseNoFlags) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (Fn f : {Fn::Cosh, Fn::Sinh, Fn::Tanh})
        for (int slot : kSlots)
            for (int sign : {1, -1}) {
                EXPECT_EQ(FlagsOf<float>(RowOf<float>(f), slot, sign * INFINITY), 0u);
                EXPECT_EQ(FlagsOf<double>(RowOf<double>(f), slot, sign * INFINITY), 0u);
                EXPECT_EQ(FlagsOf<float>(RowOf<float>(f), slot, NAN), 0u);
                EXPECT_EQ(FlagsOf<double>(RowOf<double>(f), slot, NAN), 0u);
                EXPECT_EQ(FlagsOf<float>(RowOf<float>(f), slot, sign * 30.0f), 0u);
            }
}

// Long calls of dCosh and dSinh whose rounds mix arguments near the top of the vector
// range with small ones (below 21.49, where e^-a still counts, and below 1/2, Sinh's
// series): every lane within its level (LA within 2 ulp, where B = 1/(4A) puts it), the
// sign of Sinh's, and no flag but inexact, in particular no underflow from e^-a at the
// top of the range.
TEST(Hyper, RoundsMixingLargeAndSmallArguments) {
    std::vector<double> x;
    for (int i = 0; i < 200; ++i) {
        double top = 700.0 + 10.47 * (i % 37) / 36; // 700 to 710.47
        double small = (i % 23) * 0.97 - 0.5;       // -0.5 to 20.84
        x.push_back(i % 11 == 4 ? small : (i % 2 ? -top : top));
    }
    for (Fn f : {Fn::Cosh, Fn::Sinh})
        for (int slot : kSlots) {
            CsrScope csr(0x1F80);
            std::vector<double> y(x.size());
            K<double>(RowOf<double>(f), slot)(int(x.size()), x.data(), y.data());
            EXPECT_EQ(_mm_getcsr() & 0x3F & ~0x20u, 0u) << "slot " << slot;
            for (size_t i = 0; i < x.size(); ++i) {
                long double ref = f == Fn::Cosh ? coshl(x[i]) : sinhl(x[i]);
                if (slot == kSlotEP)
                    EXPECT_LE(fabsl((y[i] - ref) / ref), 0x1p-26L) << x[i];
                else
                    EXPECT_LE(UlpError(y[i], ref), slot == kSlotHA ? 1.0 : 2.0)
                        << int(f) << " slot " << slot << " x " << x[i];
                if (f == Fn::Sinh) EXPECT_EQ(std::signbit(y[i]), std::signbit(x[i])) << x[i];
            }
        }
}

// Double HA within 0.6 ulp where e^-a/2 comes from e^a/2 by a quotient (from 3 up) and
// where it comes from its own table row (below 3, a register at a time), in long calls
// whose rounds mix both bands and the one past 21.49.
TEST(Hyper, DoubleHAAcrossTheBandsOfTheSecondHalf) {
    std::vector<double> x;
    for (int i = 0; i < 40000; ++i) {
        const double t = (i * 0.6180339887498949) - int(i * 0.6180339887498949); // in [0, 1)
        const double a = i % 5 == 0 ? 2.0 + 1.5 * t : i % 5 == 1 ? 20.0 + 3.0 * t : 3.0 + 19.0 * t;
        x.push_back(i % 2 ? -a : a);
    }
    for (Fn f : {Fn::Cosh, Fn::Sinh}) {
        std::vector<double> y(x.size());
        K<double>(RowOf<double>(f), kSlotHA)(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            const long double ref = f == Fn::Cosh ? coshl(x[i]) : sinhl(x[i]);
            ASSERT_LE(UlpError(y[i], ref), 0.6) << int(f) << " x " << x[i] << " got " << y[i];
        }
    }
}

// The overflow report names the element and takes the callback's result.
int gIndex, gCode;
int Record(ErrorRecord* r) {
    gIndex = r->index;
    gCode = r->code;
    r->r1 = 7.0;
    return 0;
}

TEST(Hyper, OverflowReportNamesTheElement) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(Record);
    std::vector<double> x(19, 1.0), y(19);
    brenn_zar_kernel_SetInterfInputVectorPointer(x.data());
    for (int at : {0, 6, 18})
        for (int slot : kSlots) {
            std::fill(x.begin(), x.end(), 1.0);
            x[at] = -800.0;
            gIndex = -1;
            K<double>("dSinh", slot)(19, x.data(), y.data());
            EXPECT_EQ(gIndex, at);
            EXPECT_EQ(gCode, 3);
            EXPECT_EQ(y[at], 7.0);
        }
    brenn_zar_kernel_SetErrorCallBack(saved);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
}

// Every length and alignment, in place too: each element as the row gives it alone.
template <class T>
void ExpectRowLanesAgree(Fn f) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const T pool[] = {T(0.1),  T(-2.5), T(0.02),  T(-9.7),   T(11),       T(-0.5),
                      T(3.75), T(88.9), T(-95),   T(1e-30),  T(INFINITY), T(NAN),
                      T(-0.0), T(0.34), T(21.49), T(-709.9), T(5e-3),     T(-1.0),
                      T(1.5),  T(0.99), T(1.0),   T(-1e30),  T(1.0001),   T(3e9),
                      T(30),   T(-25),  T(0.7)};
    constexpr int n = sizeof(pool) / sizeof(pool[0]);
    for (int slot : kSlots) {
        T one[n];
        for (int i = 0; i < n; ++i)
            one[i] = Call(RowOf<T>(f), slot, pool[i]);
        ExpectLanesAgree(K<T>(RowOf<T>(f), slot), pool, one, 40,
                         std::string(RowOf<T>(f)) + " slot " + std::to_string(slot));
    }
}

TEST(Hyper, EveryLengthAndAlignmentAgreesWithOneElement) {
    for (Fn f : kAll) {
        ExpectRowLanesAgree<float>(f);
        ExpectRowLanesAgree<double>(f);
    }
}

// The inverse functions where their paths meet: the tiny and series ends, the fold of
// Acosh at 2 (and 1.5 in single), where the square is left out, the single guards, close
// to the singular points, the largest finite arguments and denormals.
TEST(Hyper, InverseValuesWhereThePathsMeet) {
    const double asinh[] = {0x1p-1074, 0x1p-1022, 0x1p-40,       0x1.fffffp-29, 0x1p-28, 0x1.fffp-8,
                            0x1p-7,    0x1.01p-7, 0.3,           1.2,           1.20001, 2.0,
                            1e5,       0x1p28,    0x1.000001p28, 3e9,           0x1p64,  1e300};
    const double acosh[] = {1.0,          1.0 + 0x1p-52, 1.0 + 0x1p-23, 1.0001, 1.25, 1.4999,
                            1.5,          1.99,          2.0,           2.01,   10.0, 0x1p28,
                            0x1.00001p28, 0x1p63,        0x1.fffffep63, 1e30,   1e300};
    const double atanh[] = {0x1p-1074, 0x1p-1022, 0x1p-53, 0x1p-28,     0x1.fffp-8,
                            0x1p-7,    0x1.01p-7, 0.25,    0.4999,      0.5,
                            0.5001,    0.9,       0.999,   1 - 0x1p-24, 1 - 0x1p-53};
    auto check = [](Fn f, double x, bool both) {
        for (int slot : kSlots)
            for (double s : {1.0, -1.0}) {
                if (s < 0 && !both) continue;
                float xf = float(s * x);
                if (std::isfinite(xf) && xf != 0 && (f != Fn::Atanh || fabsf(xf) < 1) &&
                    (f != Fn::Acosh || xf >= 1))
                    ExpectWithinLevel(f, slot, xf);
                ExpectWithinLevel(f, slot, s * x);
            }
    };
    for (double x : asinh)
        check(Fn::Asinh, x, true);
    for (double x : acosh)
        check(Fn::Acosh, x, false);
    for (double x : atanh)
        check(Fn::Atanh, x, true);
}

// Domains and statuses: Acosh of 1 is 0 and of anything below 1 NaN with status 1;
// Atanh of +-1 the signed infinity with status 2, beyond NaN with status 1; the
// infinities and NaN of Asinh and Acosh without a status; zeros and denormals keep
// their sign and value.
template <class T>
void ExpectInverseDomains() {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T tiny = std::numeric_limits<T>::denorm_min() * 3;
    struct Case {
        Fn f;
        T x, want;
        int status;
    };
    const Case cases[] = {
        {Fn::Acosh, T(1), T(0), 0},   {Fn::Acosh, T(0.5), nan, 1},
        {Fn::Acosh, T(-1), nan, 1},   {Fn::Acosh, T(0), nan, 1},
        {Fn::Acosh, -inf, nan, 1},    {Fn::Acosh, inf, inf, 0},
        {Fn::Acosh, nan, nan, 0},     {Fn::Acosh, std::nextafter(T(1), T(0)), nan, 1},
        {Fn::Atanh, T(1), inf, 2},    {Fn::Atanh, T(-1), -inf, 2},
        {Fn::Atanh, T(1.5), nan, 1},  {Fn::Atanh, T(-1.5), nan, 1},
        {Fn::Atanh, inf, nan, 1},     {Fn::Atanh, -inf, nan, 1},
        {Fn::Atanh, nan, nan, 0},     {Fn::Atanh, T(-0.0), T(-0.0), 0},
        {Fn::Atanh, tiny, tiny, 0},   {Fn::Atanh, -tiny, -tiny, 0},
        {Fn::Asinh, inf, inf, 0},     {Fn::Asinh, -inf, -inf, 0},
        {Fn::Asinh, nan, nan, 0},     {Fn::Asinh, T(-0.0), T(-0.0), 0},
        {Fn::Asinh, -tiny, -tiny, 0}, {Fn::Asinh, T(0), T(0), 0},
    };
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (const Case& c : cases)
        for (int slot : kSlots) {
            int status;
            T y = Call(RowOf<T>(c.f), slot, c.x, &status);
            EXPECT_TRUE(SameValue(y, c.want))
                << RowOf<T>(c.f) << " slot " << slot << " x " << c.x << " got " << y;
            EXPECT_EQ(status, c.status) << RowOf<T>(c.f) << " slot " << slot << " x " << c.x;
        }
}

TEST(Hyper, InverseDomainsAndStatuses) {
    ExpectInverseDomains<float>();
    ExpectInverseDomains<double>();
}

// Atanh reports each lane outside its domain once, with its own index and status.
int gReports;
int Count(ErrorRecord* r) {
    ++gReports;
    gIndex = r->index;
    gCode = r->code;
    return 0;
}

template <class T>
void ExpectOneReportPerLane() {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(Count);
    std::vector<T> x(13, T(0.5)), y(13);
    brenn_zar_kernel_SetInterfInputVectorPointer(x.data());
    for (int at : {0, 3, 7, 12})
        for (T bad : {T(1), T(-1), T(2), T(NAN)})
            for (int slot : kSlots) {
                std::fill(x.begin(), x.end(), T(0.5));
                x[at] = bad;
                gReports = 0;
                gIndex = -1;
                K<T>(RowOf<T>(Fn::Atanh), slot)(13, x.data(), y.data());
                EXPECT_EQ(gReports, std::isnan(bad) ? 0 : 1);
                if (!std::isnan(bad)) {
                    EXPECT_EQ(gIndex, at);
                    EXPECT_EQ(gCode, std::fabs(bad) == 1 ? 2 : 1);
                }
                EXPECT_TRUE(std::isnan(bad) || std::fabs(bad) > 1 ? std::isnan(y[at])
                                                                  : std::isinf(y[at]));
            }
    brenn_zar_kernel_SetErrorCallBack(saved);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
}

TEST(Hyper, AtanhReportsEachLaneOnce) {
    ExpectOneReportPerLane<float>();
    ExpectOneReportPerLane<double>();
}

} // namespace
} // namespace brenn::test
