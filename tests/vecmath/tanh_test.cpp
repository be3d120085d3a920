// Tanh at HA where its bodies change path. Single: the rows' points (each inside its own
// interval, so that a - c is exact, with tanh(c) a single to 2^-12 ulp), every row's ends
// and middle against long double, the constant rows near 1 and the rounding point 9.0109
// among them, and small arguments, which come back as themselves without the underflow
// flag. Double: the rows' points and parts, every row's ends and middle against long
// double, the rounding points 18.71 and 19.06 near 1, and small arguments.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>
#include <xmmintrin.h>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/hyper/hyper_tables.h"

namespace brenn::test {
namespace {

constexpr int kRowsHA = 362;

// A kernel of a row, from the library's dispatch table.
template <class T>
Unary<T> KernelOf(int row, int slot) {
    return reinterpret_cast<Unary<T>>((&BrennDispatchTable[row].kernelLA)[slot]);
}
template <class T>
Unary<T> HA(int row) {
    return KernelOf<T>(row, frame::SlotHA);
}

float AsFloat(uint32_t b) {
    return __builtin_bit_cast(float, b);
}
// The first argument of HA row k, 1 to 361 (361: the argument 10).
uint32_t RowStart(int k) {
    return 0x3B800000u + uint32_t(k - 1) * 0x40000u;
}

TEST(Tanh, SingleRowsHoldTheirPoints) {
    EXPECT_EQ(vm::tanhRowsHA[0][0], 0.0f); // row 0: s itself
    EXPECT_EQ(vm::tanhRowsHA[0][1], 0.0f);
    EXPECT_EQ(vm::tanhRowsHA[0][2], 1.0f);
    EXPECT_EQ(AsFloat(RowStart(kRowsHA - 1)), 10.0f);
    EXPECT_EQ(vm::tanhRowsHA[kRowsHA - 1][1], 1.0f);
    EXPECT_EQ(vm::tanhRowsHA[kRowsHA - 1][2], 0.0f);
    int constants = 0;
    for (int k = 1; k < kRowsHA - 1; ++k) {
        const float* r = vm::tanhRowsHA[k];
        EXPECT_GE(Bits(r[0]), RowStart(k)) << k;
        EXPECT_LT(Bits(r[0]), RowStart(k + 1)) << k;
        long double tau = tanhl(r[0]);
        if (r[2] == 0) {
            // A constant row: within 0.52 ulp over the whole interval.
            ++constants;
            EXPECT_GE(r[0], 8.75f) << k;
            EXPECT_LE(UlpError(r[1], tanhl(AsFloat(RowStart(k)))), 0.52) << k;
            EXPECT_LE(UlpError(r[1], tanhl(AsFloat(RowStart(k + 1) - 1))), 0.52) << k;
        } else {
            EXPECT_LE(UlpError(r[1], tau), 0x1p-12) << k;
            EXPECT_LE(fabsl(r[2] - (1 - tau * tau)), 0x1p-24L * r[2]) << k;
        }
    }
    EXPECT_EQ(constants, 5); // [8.75, 9), [9, 9.25), ..., [9.75, 10)
}

float TanhHA(float x) {
    return CallUnary(HA<float>(frame::Row_sTanh), x);
}

// Both ends of every row and its middle, both signs, and the steps around the rounding
// points near 1: within 0.55 ulp (the row's neglected rest and roundings are a few
// hundredths).
TEST(Tanh, SingleEveryRowWithinItsBound) {
    std::vector<float> x;
    for (int k = 1; k < kRowsHA; ++k)
        for (uint32_t b : {RowStart(k) - 1, RowStart(k), RowStart(k) + 1, RowStart(k) + 0x20000u,
                           RowStart(k) + 0x3FFFFu})
            x.push_back(AsFloat(b));
    for (float v : {8.664f, 8.66434f, 8.75f, 8.99999f, 9.0f, 9.01f, 9.0109f, 9.011f, 9.5f, 9.99999f,
                    10.0f, 10.00001f, 12.0f})
        x.push_back(v);
    for (float v : x)
        for (float s : {v, -v}) {
            float y = TanhHA(s);
            EXPECT_LE(UlpError(y, tanhl(s)), 0.55) << std::hexfloat << s << " got " << y;
        }
}

// Below 2^-13 tanh rounds to its argument: zeros with their sign, denormals and the
// smallest normals given back exactly, and no underflow flag (the short tanh's square is
// not taken below 2^-40); above the cut the cube counts again.
TEST(Tanh, SingleSmallArgumentsAsThemselves) {
    const float small[] = {
        0.0f,           FLT_TRUE_MIN,    5 * FLT_TRUE_MIN, 1e-40f,          FLT_MIN,
        0x1.8p-100f,    0x1.fffffep-41f, 0x1p-40f,         0x1.000002p-40f, 0x1p-30f,
        0x1.fffffep-14f};
    for (float v : small)
        for (float s : {v, -v}) {
            CsrScope csr(0x1F80);
            float y;
            HA<float>(frame::Row_sTanh)(1, &s, &y);
            EXPECT_EQ(_mm_getcsr() & 0x10, 0u) << std::hexfloat << s;
            EXPECT_EQ(Bits(y), Bits(s)) << std::hexfloat << s;
        }
    for (float v : {0x1p-13f, 0x1.8p-9f, 0x1p-6f, 0x1.fffffep-6f, 0x1p-5f})
        EXPECT_LE(UlpError(TanhHA(v), tanhl(v)), 0.55) << v;
}

constexpr int kRowsD = 393;

double AsDouble(uint64_t b) {
    return __builtin_bit_cast(double, b);
}
// The first argument of double row k, 1 to 392 (392: the argument 19.5), and half a row.
uint64_t RowStartD(int k) {
    return (uint64_t(0x3F700000u) + uint64_t(k - 1) * 0x8000u) << 32;
}
constexpr uint64_t kHalfRowD = uint64_t(0x4000u) << 32;

// Each row's point lies in its own interval (on [19, 19.5), where tanh crosses no double,
// in the binade's row below it), its tanh is H (to 2^-10 ulp, what long double can tell),
// and K = 1 - tanh^2 = 1/cosh^2.
TEST(Tanh, DoubleRowsHoldTheirPoints) {
    EXPECT_EQ(AsDouble(RowStartD(kRowsD - 1)), 19.5);
    EXPECT_EQ(vm::tanhRowsD[kRowsD - 1][1], 1.0);
    EXPECT_EQ(vm::tanhRowsD[kRowsD - 1][2], 0.0);
    EXPECT_EQ(vm::tanhRowsD[0][1], 0.0);
    EXPECT_EQ(vm::tanhRowsD[0][2], 1.0);
    int borrowed = 0;
    for (int k = 1; k < kRowsD - 1; ++k) {
        const double* r = vm::tanhRowsD[k];
        EXPECT_LT(Bits(r[0]), RowStartD(k + 1)) << k;
        if (Bits(r[0]) < RowStartD(k)) {
            ++borrowed;
            EXPECT_GE(r[0], 18.5) << k;
            EXPECT_EQ(std::ilogb(r[0]), std::ilogb(AsDouble(RowStartD(k)))) << k;
        }
        EXPECT_LE(UlpError(r[1], tanhl((long double)r[0])), 0x1p-10) << k;
        long double sech = 1 / coshl((long double)r[0]);
        EXPECT_LE(fabsl(r[2] - sech * sech), 0x1p-50L * r[2]) << k;
    }
    EXPECT_EQ(borrowed, 1); // [19, 19.5)
}

double TanhHAD(double x) {
    return CallUnary(HA<double>(frame::Row_dTanh), x);
}

// Both ends of every row and its middle, both signs, and the rounding points near 1
// (1 - 2^-53 from 18.71 on, 1 from 19.06 on): within 0.55 ulp of long double's tanh
// (whose own error is 2^-11 ulp of a double) at HA; at LA and EP, whose short tanh is a
// degree shorter, within 2 (1.9 on [4, 8)).
TEST(Tanh, DoubleEveryRowWithinItsBound) {
    std::vector<double> x;
    for (int k = 1; k < kRowsD; ++k)
        for (uint64_t b : {RowStartD(k) - 1, RowStartD(k), RowStartD(k) + 1,
                           RowStartD(k) + kHalfRowD, RowStartD(k + 1) - 1})
            x.push_back(AsDouble(b));
    for (double v :
         {18.7149, 18.715, 19.0, 19.06, 19.0615, 19.062, 19.4999, 19.5, 20.0, 22.0, 1e300})
        x.push_back(v);
    for (double v : x)
        for (double s : {v, -v}) {
            double y = TanhHAD(s);
            EXPECT_LE(UlpError(y, tanhl(s)), 0.55) << std::hexfloat << s << " got " << y;
            y = CallUnary(KernelOf<double>(frame::Row_dTanh, frame::SlotLA), s);
            EXPECT_LE(UlpError(y, tanhl(s)), 2.0) << std::hexfloat << s << " LA got " << y;
        }
    for (int slot : {frame::SlotLA, frame::SlotHA}) {
        Unary<double> k = KernelOf<double>(frame::Row_dTanh, slot);
        EXPECT_EQ(CallUnary(k, 19.07), 1.0) << slot;
        EXPECT_EQ(CallUnary(k, -19.5), -1.0) << slot;
        EXPECT_EQ(CallUnary(k, 18.8), 1 - 0x1p-53) << slot;
    }
}

// Below 2^-27 tanh rounds to its argument: zeros with their sign, denormals and small
// normals given back exactly; below 2^-8 the short tanh is the result.
TEST(Tanh, DoubleSmallArgumentsAsThemselves) {
    for (double v : {0.0, 5e-324, 1e-310, DBL_MIN, 0x1.8p-600, 0x1p-300, 0x1.fffffffffffffp-28})
        for (double s : {v, -v})
            EXPECT_EQ(Bits(TanhHAD(s)), Bits(s)) << std::hexfloat << s;
    for (double v : {0x1p-27, 0x1.8p-20, 0x1p-9, 0x1.fffffffffffffp-9, 0x1p-8})
        EXPECT_LE(UlpError(TanhHAD(v), tanhl(v)), 0.55) << v;
}

} // namespace
} // namespace brenn::test
