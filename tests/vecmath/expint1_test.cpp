// ExpInt1, single and double, every slot (LA and HA one kernel, EP its own): the special
// values with their statuses (domain 1 below 0, pole 2 at 0, underflow 4 in the tail) and
// quieted NaNs, values on both sides of the switch at 1, of the cell edges and of the
// vector lanes' limits against a reference of its own (series and continued fraction in
// long double), the caller's x87 control word and MXCSR, and every length and alignment
// against one element at a time.
#include <cfloat>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <xmmintrin.h>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/explog_tables.h"
#include "vecmath/gamma/expint1_table.h"

namespace brenn::test {
namespace {

constexpr int kSlots[] = {0, 1, 2};
constexpr int kSlotEP = 2;

template <class T>
const char* Row() {
    return sizeof(T) == 4 ? "sExpInt1" : "dExpInt1";
}

// From the dispatch table itself: this program links the kernels' objects statically, to
// reach their tables (the row symbols are not looked up).
template <class T>
Unary<T> K(int slot) {
    const frame::RowIndex row = sizeof(T) == 4 ? frame::Row_sExpInt1 : frame::Row_dExpInt1;
    return reinterpret_cast<Unary<T>>((&BrennDispatchTable[row].kernelLA)[slot]);
}

// E1(x) for x > 0 in long double: the power series up to 2, the continued fraction
// e^-x / (x + 1 - 1/(x + 3 - 4/(x + 5 - ...))) by Lentz's method beyond.
long double E1Ref(long double x) {
    if (x <= 2) {
        long double sum = 0, term = 1;
        for (int k = 1; k < 200; ++k) {
            term *= -x / k;
            sum += term / k;
        }
        return -0.57721566490153286060651209008240243L - logl(x) - sum;
    }
    const long double tiny = 1e-4000L;
    long double b = x + 1, c = 1 / tiny, d = 1 / b, h = d;
    for (int i = 1; i < 100000; ++i) {
        long double a = -(long double)i * i;
        b += 2;
        d = 1 / (a * d + b);
        c = b + a / c;
        long double del = c * d;
        h *= del;
        if (fabsl(del - 1) < 1e-21L) break;
    }
    return h * expl(-x);
}

template <class T>
void ExpectSpecialValues() {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T denorm = std::numeric_limits<T>::denorm_min();
    const bool single = sizeof(T) == 4;
    struct Case {
        T x, y;
        int status;
    };
    const Case cases[] = {
        {T(0), inf, 2},
        {T(-0.0), inf, 2},
        {T(-1), nan, 1},
        {-denorm, nan, 1},
        {-inf, nan, 1},
        {inf, T(0), 0},
        {nan, nan, 0},
        {std::numeric_limits<T>::signaling_NaN(), nan, 0},
        {single ? T(120) : T(800), T(0), 4}, // far below the smallest denormal
        {single ? T(1e30) : T(1e300), T(0), 4},
        {std::numeric_limits<T>::max(), T(0), 4},
    };
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots)
        for (const Case& c : cases) {
            int st;
            T y = CallUnary(K<T>(slot), c.x, &st);
            EXPECT_TRUE(SameValue(y, c.y)) << Row<T>() << " x " << c.x << " got " << y;
            EXPECT_EQ(st, c.status) << Row<T>() << " x " << c.x;
            if (std::isnan(y))
                EXPECT_NE(Bits(y) & (single ? 0x400000u : 0x8000000000000ull), 0u)
                    << Row<T>() << " NaN comes back quiet";
        }
}

TEST(ExpInt1, SpecialValuesAndStatuses) {
    ExpectSpecialValues<float>();
    ExpectSpecialValues<double>();
}

// Within an ulp of the reference (EP: 11 or 26 correct bits, or the smallest denormal
// where that is more), reporting nothing while the result is normal and 4 once it is not:
// tiny and denormal arguments (where ln x rules), the switch at 1, the edges of t = 1/x's
// cells and binades, the vector lanes' limits (82 single, 724 double, whose EP lanes give
// the denormals from 701.8 on themselves) and the tail down through the underflow.
template <class T>
void ExpectValues() {
    const bool single = sizeof(T) == 4;
    std::vector<T> xs = {std::numeric_limits<T>::denorm_min(),
                         std::numeric_limits<T>::min(),
                         T(1e-30),
                         T(1e-8),
                         T(0.03125),
                         T(0.5),
                         T(0.96875),
                         T(1.0625)};
    for (T edge :
         {T(1), T(2), T(4), T(1.0L / 0.53125L), T(16), T(64), T(82), T(100), T(512), T(701),
          T(724)})
        for (T x : {std::nextafter(edge, T(0)), edge, std::nextafter(edge, T(1e4))})
            xs.push_back(x);
    for (T x = single ? T(80) : T(690); x < (single ? T(104) : T(745)); x += T(0.375))
        xs.push_back(x);
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots)
        for (T x : xs) {
            if (single && x > T(512)) continue;
            int st;
            T y = CallUnary(K<T>(slot), x, &st);
            long double ref = E1Ref(x);
            if (slot == kSlotEP)
                EXPECT_LE(fabsl(y - ref), fmaxl(ldexpl(ref, single ? -11 : -26),
                                                std::numeric_limits<T>::denorm_min()))
                    << Row<T>() << " EP x " << x;
            else
                EXPECT_LE(UlpError(y, ref), 1.0) << Row<T>() << " slot " << slot << " x " << x;
            EXPECT_EQ(st, y >= std::numeric_limits<T>::min() ? 0 : 4) << Row<T>() << " x " << x;
        }
}

TEST(ExpInt1, ValuesAcrossThePathsAndIntoTheUnderflow) {
    ExpectValues<float>();
    ExpectValues<double>();
}

// The caller's x87 control word (53-bit precision, rounding up, ...) and MXCSR come back
// as they were, and the results do not depend on either.
template <class T>
void ExpectControlsKept() {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const T in[] = {T(0.3), T(1), T(1.5), T(-2.5), T(0), T(7.25), T(30), T(1e-3), T(INFINITY)};
    constexpr int n = sizeof(in) / sizeof(in[0]);
    T expect[n], y[n];
    for (int slot : kSlots) {
        K<T>(slot)(n, in, expect);
        for (uint16_t cw : {uint16_t(0x27F), uint16_t(0xA7F), uint16_t(0x07F), uint16_t(0x37F)})
            for (unsigned csr : {0x1F80u, 0x1F80u | 0x6000u, 0x1F80u | 0x8040u}) {
                const uint16_t saved = ReadX87Cw();
                LoadX87Cw(cw);
                unsigned after;
                {
                    CsrScope scope(csr);
                    K<T>(slot)(n, in, y);
                    after = _mm_getcsr();
                }
                uint16_t cwAfter = ReadX87Cw();
                LoadX87Cw(saved);
                EXPECT_EQ(cwAfter, cw) << Row<T>();
                EXPECT_EQ(after & ~0x3Fu, csr) << Row<T>();
                if (csr == 0x1F80u)
                    for (int i = 0; i < n; ++i)
                        EXPECT_TRUE(SameValue(y[i], expect[i])) << Row<T>() << " x " << in[i];
            }
    }
}

TEST(ExpInt1, CallersControlWordAndCsrComeBack) {
    ExpectControlsKept<float>();
    ExpectControlsKept<double>();
}

// Double LA and HA on [0.96875, 1.0625], the window of the routine's polynomial about
// 1.015625 (ln x near 0), and the arguments next to its ends on both sides: within 0.51
// ulp of the reference on 100000 random arguments.
TEST(ExpInt1, DoubleNearOneWindow) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937_64 gen(31);
    std::uniform_real_distribution<double> u(0.96875, 1.0625);
    std::vector<double> x(100000);
    for (double& v : x)
        v = u(gen);
    for (double edge : {0.96875, 1.0, 1.0625}) {
        double d = std::nextafter(std::nextafter(edge, 0.0), 0.0);
        for (int k = 0; k < 5; ++k, d = std::nextafter(d, 2.0))
            x.push_back(d);
    }
    std::vector<double> y(x.size());
    K<double>(0)(int(x.size()), x.data(), y.data());
    double worst = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        double e = UlpError(y[i], E1Ref(x[i]));
        worst = std::max(worst, e);
        ASSERT_LE(e, 0.51) << "x " << x[i] << " got " << y[i];
    }
    std::printf("dExpInt1 worst %.3f ulp on [0.96875, 1.0625]\n", worst);
}

// Double EP for 1 < x <= 724, the steps of the vector form one at a time in double:
// t = 1/x, the cell of t (16 a binade) and its centre c, G(t) by the cell's first five
// Taylor coefficients in v = t - c (Horner); e^-x 2^60 by the reduction of the double
// exponential on its table of 64 (64/ln2, ln2/64 in two parts, the shifter carrying 60
// steps of 64 more) and that exponential's quintic; e^-x t G(t) as (e^-x 2^60)((t G) 2^-60).
double ExpInt1TailSteps(double x) {
    double t = 1.0 / x;
    uint64_t b;
    memcpy(&b, &t, sizeof b);
    const int row = 16 * (1022 - int(b >> 52)) + int((b >> 48) & 15);
    uint64_t cb = (b & 0xFFFF000000000000ull) | 0x0000800000000000ull;
    double c;
    memcpy(&c, &cb, sizeof c);
    const double v = t - c;
    const double* g = vm::gamma::kExpInt1Tail[row];
    double p = g[4];
    for (int k = 3; k >= 0; --k)
        p = p * v + g[k];
    const double shifter = 0x1.8p52 + 60 * 64;
    const double n = x * -0x1.71547652b82fep+6 + shifter;
    const double k = n - shifter;
    const double r = (k * -0x1.62e42fefa0000p-7 + -x) - k * 0x1.cf79abc9e3b3ap-46;
    const long long ki = static_cast<long long>(k);
    const double th = vm::expTable64[ki & 63][0], tl = vm::expTable64[ki & 63][1];
    const double q = r + (r * r) * (0x1.fffffffffdb3bp-2 +
                                    r * (0x1.555555555653ep-3 +
                                         r * (0x1.555573f218b93p-5 + r * 0x1.111112d9f549bp-7)));
    const double e = (th + (th * q + tl)) * std::ldexp(1.0, int((ki - (ki & 63)) / 64) + 60);
    return e * ((t * p) * 0x1p-60);
}

TEST(ExpInt1, DoubleEpTailIsItsStepsBitForBit) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937_64 gen(1);
    std::uniform_real_distribution<double> u(0.0, std::log(724.0));
    std::vector<double> x;
    for (int i = 0; i < 300000; ++i)
        x.push_back(std::min(724.0, std::nextafter(std::exp(u(gen)), 800.0)));
    // the edges of the cells of t (16 a binade) and of the binades, 1's neighbour, 724
    for (int j = 16; j < 16 * 11; ++j) {
        double edge = 1.0 / std::ldexp(1.0 + (j % 16) / 16.0, -(j / 16));
        if (edge > 1.0 && edge <= 724.0)
            for (double d : {std::nextafter(edge, 0.0), edge, std::nextafter(edge, 800.0)})
                x.push_back(d);
    }
    x.push_back(std::nextafter(1.0, 2.0));
    x.push_back(724.0);
    std::vector<double> y(x.size());
    K<double>(kSlotEP)(int(x.size()), x.data(), y.data());
    for (size_t i = 0; i < x.size(); ++i)
        ASSERT_TRUE(SameValue(y[i], ExpInt1TailSteps(x[i])))
            << "x " << x[i] << " got " << y[i] << " steps " << ExpInt1TailSteps(x[i]);
}

// Double EP, the vector lanes' top from 701 to the limit 724, where the results turn
// denormal: on 200000 random arguments (a vector call, as the lanes run), each within
// 2^-26 or the smallest denormal of the reference, status 4 for exactly the lanes below
// the smallest normal; 724 itself still a vector lane, the argument above it the scalar
// routine's, which the LA slot shares.
TEST(ExpInt1, DoubleEpLanesIntoTheDenormalsUpTo724) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937_64 gen(724);
    std::uniform_real_distribution<double> dist(701.0, 724.0);
    constexpr int n = 200000;
    std::vector<double> x(n), y(n);
    for (double& v : x)
        v = dist(gen);
    x[0] = 724.0;
    x[1] = std::nextafter(724.0, 0.0);
    const Unary<double> ep = K<double>(kSlotEP);
    ep(n, x.data(), y.data());
    int denormals = 0;
    for (int i = 0; i < n; ++i) {
        long double ref = E1Ref(x[i]);
        ASSERT_LE(fabsl(y[i] - ref), fmaxl(ldexpl(ref, -26), DBL_TRUE_MIN)) << "x " << x[i];
        denormals += y[i] < DBL_MIN;
    }
    EXPECT_GT(denormals, n * 9 / 10);
    // Statuses element by element, on a sample.
    for (int i = 0; i < n; i += 997) {
        int st;
        double one = CallUnary(ep, x[i], &st);
        EXPECT_TRUE(SameValue(one, y[i])) << "x " << x[i];
        EXPECT_EQ(st, one < DBL_MIN ? 4 : 0) << "x " << x[i];
    }
    int st;
    double at = CallUnary(ep, 724.0, &st);
    EXPECT_GT(at, 0.0);
    EXPECT_LT(at, 0x1p-1050);
    EXPECT_EQ(st, 4);
    const double above = std::nextafter(724.0, 800.0);
    int stLa;
    double ya = CallUnary(ep, above, &st), yl = CallUnary(K<double>(0), above, &stLa);
    EXPECT_TRUE(SameValue(ya, yl)) << ya << " " << yl;
    EXPECT_EQ(st, 4);
    EXPECT_EQ(stLa, 4);
}

template <class T>
void ExpectRowLanesAgree() {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const T pool[] = {T(0.25), T(-1), T(3.5),     T(0),   T(1),
                      T(NAN),  T(40), T(0.96875), T(200), T(1e-20)};
    constexpr int n = sizeof(pool) / sizeof(pool[0]);
    for (int slot : kSlots) {
        T one[n];
        for (int i = 0; i < n; ++i)
            one[i] = CallUnary(K<T>(slot), pool[i]);
        ExpectLanesAgree(K<T>(slot), pool, one, 21,
                         std::string(Row<T>()) + " slot " + std::to_string(slot));
    }
}

TEST(ExpInt1, EveryLengthAndAlignmentAgreesWithOneElement) {
    ExpectRowLanesAgree<float>();
    ExpectRowLanesAgree<double>();
}

} // namespace
} // namespace brenn::test
