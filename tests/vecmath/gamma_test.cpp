// The gamma rows LGamma and TGamma, single and double, every slot: the special values
// with their statuses (poles 2, domain 1, overflow 3, underflow 4) and quieted NaNs, the
// values on both sides of every place the routines change path, the overflow limits,
// the caller's x87 control word and MXCSR after every call, the index a report carries,
// and every length and alignment against one element at a time.
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"
#include "vecmath/gamma/lgamma_zeros.h"

namespace brenn::test {
namespace {

constexpr int kSlots[] = {0, 1, 2};

template <class T>
Unary<T> K(const char* row, int slot) {
    return As<Unary<T>>(Slot(row, slot));
}

template <class T>
T Call(const char* row, int slot, T x, int* status = nullptr) {
    return CallUnary(K<T>(row, slot), x, status);
}

template <class T>
const char* RowName(bool lgamma) {
    if (sizeof(T) == 4) return lgamma ? "sLGamma" : "sTGamma";
    return lgamma ? "dLGamma" : "dTGamma";
}

template <class T>
T SignallingNaN() {
    return std::numeric_limits<T>::signaling_NaN();
}

// One case: the input, the result (NaN for any NaN) and the status.
template <class T>
struct Case {
    T x, y;
    int status;
};

template <class T>
void ExpectCases(const char* row, const std::vector<Case<T>>& cases) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots)
        for (const Case<T>& c : cases) {
            int st;
            T y = Call(row, slot, c.x, &st);
            EXPECT_TRUE(SameValue(y, c.y))
                << row << " slot " << slot << " x " << c.x << " got " << y;
            EXPECT_EQ(st, c.status) << row << " x " << c.x;
            if (std::isnan(y)) {
                EXPECT_NE(Bits(y) & (sizeof(T) == 4 ? 0x400000u : 0x8000000000000ull), 0u)
                    << row << " NaN comes back quiet";
            }
        }
}

template <class T>
void ExpectSpecialValues() {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T big = std::numeric_limits<T>::max(), tiny = std::numeric_limits<T>::denorm_min();
    const bool single = sizeof(T) == 4;
    ExpectCases<T>(RowName<T>(true), {
                                         {T(1), T(0), 0},
                                         {T(2), T(0), 0},
                                         {T(0), inf, 2},
                                         {T(-0.0), inf, 2},
                                         {T(-1), inf, 2},
                                         {T(-2), inf, 2},
                                         {T(-1e30), inf, 2}, // every such float is an integer
                                         {inf, inf, 0},
                                         {-inf, inf, 0},
                                         {nan, nan, 0},
                                         {SignallingNaN<T>(), nan, 0},
                                         {big, inf, 3},
                                         {single ? T(4.1e36) : T(2.6e305), inf, 3},
                                     });
    ExpectCases<T>(RowName<T>(false), {
                                          {T(1), T(1), 0},
                                          {T(2), T(1), 0},
                                          {T(3), T(2), 0},
                                          {T(5), T(24), 0},
                                          {T(0), inf, 2},
                                          {T(-0.0), -inf, 2},
                                          {T(-1), nan, 1},
                                          {T(-2), nan, 1},
                                          {-big, nan, 1},
                                          {-inf, nan, 1},
                                          {inf, inf, 0},
                                          {nan, nan, 0},
                                          {SignallingNaN<T>(), nan, 0},
                                          {single ? T(35.0402f) : T(171.7), inf, 3},
                                          {big, inf, 3},
                                          {tiny, inf, 3},
                                          {-tiny, -inf, 3},
                                          {single ? T(-51.5) : T(-185.5), T(0), 4},
                                          {single ? T(-50.5) : T(-186.5), T(-0.0), 4},
                                          {single ? T(-60.25) : T(-1000.25), T(-0.0), 4},
                                      });
}

TEST(Gamma, SpecialValuesAndStatuses) {
    ExpectSpecialValues<float>();
    ExpectSpecialValues<double>();
}

// The long double library's values as references, within the HA bound with room for
// the reference's own error (it is extended precision, far below the double ulp).
template <class T>
void ExpectNear(bool lgamma, T x, double ulps) {
    long double ref = lgamma ? lgammal(x) : tgammal(x);
    for (int slot : kSlots) {
        T y = Call(RowName<T>(lgamma), slot, x);
        EXPECT_LE(UlpError(y, ref), ulps) << RowName<T>(lgamma) << " x " << x << " got " << y;
    }
}

// Both sides of every place the routines change path: the pieces of [1, 2] at 1.25,
// 1.46163214... (double), 1.5, 1.75 (single), the reductions at 1, 2, 3, the Stirling points (8 in single; in double 8
// for LGamma, 12 for TGamma and the reflection), near the overflow limits, tiny
// arguments and reflection.
TEST(Gamma, ValuesWhereThePathsMeet) {
    const double points[] = {
        0x1p-60,   1e-9,    0.1,  0.5,     0.75, 0.9999999, 1.0000001, 1.2499,    1.25,   1.251,
        1.4616321, 1.49999, 1.5,  1.74999, 1.75, 1.9,       1.999,     2.0000001, 2.5,    2.99999,
        3.0,       3.0001,  5.5,  7.999,   8.0,  8.001,     11.999,    12.0,      12.001, 30.5,
        -0.75,     -0.5,    -1.5, -2.5,    -3.3, -7.9,      -11.5,     -12.5,     -30.2,  -0x1p-40};
    for (double p : points) {
        ExpectNear<double>(true, p, 1.0);
        ExpectNear<double>(false, p, 1.0);
        ExpectNear<float>(true, float(p), 1.0);
        ExpectNear<float>(false, float(p), 1.0);
    }
    for (double p : {100.1, 150.5, 170.9, 171.6, 171.62437695630272})
        ExpectNear<double>(false, p, 1.0);
    for (float p : {20.5f, 34.9f, 35.04f, 35.040096f})
        ExpectNear<float>(false, p, 1.0);
    for (double p : {-170.5, -171.5, -180.5, -184.9})
        ExpectNear<double>(false, p, 1.0);
    for (float p : {-30.5f, -33.5f, -34.9f})
        ExpectNear<float>(false, p, 1.0);
    for (double p : {1e10, 1e100, 1e300, 2.5e305})
        ExpectNear<double>(true, p, 1.0);
    for (float p : {1e10f, 1e30f, 4e36f})
        ExpectNear<float>(true, p, 1.0);
}

// LGamma where its value vanishes: around 1 and 2, and around each of its zeros on the
// negative axis (two in each interval (-n-1, -n), n = 2 .. 16), where the reflection's
// terms cancel, at spreads from single ulps up to 2^-5 of the argument; within 1 ulp of
// the extended library's value (which treats these zeros with care of its own).
TEST(Gamma, LGammaNearItsZeros) {
    const double zeros[] = {-2.4570247382208006,
                            -2.7476826467274127,
                            -3.14358088834998,
                            -3.955294284858598,
                            -4.039361839740537,
                            -4.991544640560048,
                            -5.0082181683225935,
                            -5.998607480080875,
                            -6.001385294453155,
                            -6.999801507890638,
                            -7.000198333407325,
                            -7.999975197095821,
                            -8.000024800270682,
                            -8.999997244250977,
                            -9.000002755714823,
                            -9.99999972442663,
                            -10.000000275573013,
                            -10.99999997494789,
                            -11.000000025052106,
                            -11.999999997912324,
                            -12.000000002087676,
                            -12.99999999983941,
                            -13.00000000016059,
                            -13.99999999998853,
                            -14.00000000001147,
                            -14.999999999999236,
                            -15.000000000000764,
                            -15.999999999999952,
                            -16.000000000000046,
                            1.0,
                            2.0};
    for (double z : zeros)
        for (double spread : {0x1p-52, 0x1p-40, 0x1p-30, 0x1p-20, 0x1p-12, 0x1p-8, 0x1p-5})
            for (int k = -8; k <= 8; ++k) {
                double x = z + k * spread * std::fabs(z);
                if (x == std::nearbyint(x) && x <= 0) continue;
                for (int slot : kSlots) {
                    double y = Call("dLGamma", slot, x);
                    EXPECT_LE(UlpError(y, lgammal(x)), 1.0) << "x " << x << " got " << y;
                    float xs = float(x);
                    if (xs == std::nearbyint(xs) && xs <= 0) continue;
                    float ys = Call("sLGamma", slot, xs);
                    EXPECT_LE(UlpError(ys, lgammal(xs)), 1.0) << "x " << xs << " got " << ys;
                }
            }
}

// Double LGamma on either side of the edge of each negative zero's local form, from
// nine tenths to twice its window: outside, the reflection's terms, of the size of
// ln n!, cancel to the result; within 0.6 ulp of the extended library (windows of a
// fixed 2^-5 in the function's value left 1.25 ulp there from -8 on).
TEST(Gamma, LGammaWhereTheZerosLocalFormsEnd) {
    std::mt19937_64 gen(1618);
    std::uniform_real_distribution<double> u(0.9, 2.0);
    std::vector<double> x;
    for (const auto& z : brenn::vm::gamma::kLGammaZeros)
        for (int i = 0; i < 200; ++i)
            x.push_back(z.x0 + (i % 2 ? 1 : -1) * z.window * u(gen));
    std::vector<double> y(x.size());
    double worst = 0;
    for (int slot : kSlots) {
        K<double>("dLGamma", slot)(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            double e = UlpError(y[i], lgammal(x[i]));
            worst = std::max(worst, e);
            EXPECT_LE(e, 0.6) << "slot " << slot << " x " << x[i] << " got " << y[i];
        }
    }
    std::printf("dLGamma at the zeros' windows: worst %.3f ulp\n", worst);
}

// LGamma over each of its paths, random arguments: the interval's three expansions (near
// 1 up to 1.25, the minimum's below 1.75, near 2 up to 2.25), one step up below 0.75
// (down to tiny arguments), the recurrence down up to 8, Stirling's form beyond (up to
// the overflow), and the reflection of each on the negative axis; within 0.55 ulp of the
// extended library's value in double, 0.51 in single (a polynomial or step off by one
// term or one coefficient set is off by far more). From 2^52 (2^23) in magnitude on the
// negative axis every argument is a pole.
template <class T>
void ExpectLGammaPaths(double bound) {
    const char* row = RowName<T>(true);
    std::mt19937_64 gen(sizeof(T) * 7919);
    const double pieces[][2] = {{0.75, 1.25}, {1.25, 1.75}, {1.75, 2.25}, {0x1p-20, 0.75},
                                {2.25, 8},    {8, 1e3},     {1e3, 1e30},  {1e-30, 0x1p-20}};
    double worst = 0;
    for (const auto& piece : pieces)
        for (double sign : {1.0, -1.0}) {
            std::uniform_real_distribution<double> u(std::log(piece[0]), std::log(piece[1]));
            std::vector<T> x(4000), y(x.size());
            for (T& v : x)
                v = T(sign * std::exp(u(gen)));
            K<T>(row, 1)(int(x.size()), x.data(), y.data());
            for (size_t i = 0; i < x.size(); ++i) {
                // the zeros of (-17, -2.4) are LGammaNearItsZeros' (the reflection cancels)
                if (x[i] < 0 && (x[i] == std::nearbyint(x[i]) || (x[i] < -2.4 && x[i] > -17)))
                    continue;
                double e = UlpError(y[i], lgammal(x[i]));
                worst = std::max(worst, e);
                EXPECT_LE(e, bound) << row << " x " << x[i] << " got " << y[i];
            }
        }
    std::printf("%s worst %.3f ulp\n", row, worst);
    const T big = sizeof(T) == 8 ? T(0x1p52) : T(0x1p23);
    ExpectCases<T>(row, {{-big, T(INFINITY), 2}, {-big * 3, T(INFINITY), 2}});
    int st;
    const T half = -big / 2 - T(0.5); // the last non-integers
    EXPECT_LE(UlpError(Call(row, 1, half, &st), lgammal(half)), bound) << row;
    EXPECT_EQ(st, 0);
}

TEST(Gamma, LGammaOverItsPaths) {
    ExpectLGammaPaths<double>(0.55);
    ExpectLGammaPaths<float>(0.51);
}

// Double LGamma through each count of the recurrence's steps (one at (2.25, 3.25], ...,
// six at (7.25, 8)), on either side of every step's end, and on the negative axis through
// each unit interval's sine: near its poles (r tiny), near r = 1/2 and between, against
// the extended library outside the windows of the negative zeros (LGammaNearItsZeros').
// A factor counted twice or left out of the product is off by a whole ln(x - j).
TEST(Gamma, LGammaOverTheRecurrenceStepsAndTheSine) {
    std::mt19937_64 gen(2718);
    std::vector<double> x;
    for (int j = 2; j <= 8; ++j) {
        double end = j + 0.25;
        for (double v : {end, std::nextafter(end, 0.0), std::nextafter(end, 10.0)})
            if (v < 8) x.push_back(v);
        std::uniform_real_distribution<double> u(j, j + 1);
        for (int i = 0; i < 500; ++i)
            x.push_back(u(gen));
    }
    for (int n = 0; n < 20; ++n)
        for (double d : {0x1p-40, 1e-9, 1e-4, 0.01, 0.25, 0.49, 0.5, 0.51, 0.75, 0.99})
            x.push_back(-n - d);
    const size_t positive = x.size();
    for (size_t i = 0; i < positive; ++i)
        if (x[i] > 0) x.push_back(-x[i]);
    std::vector<double> y(x.size());
    double worst = 0;
    for (int slot : kSlots) {
        K<double>("dLGamma", slot)(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            if (x[i] == std::nearbyint(x[i])) continue;
            long double ref = lgammal(x[i]);
            // the zeros' windows, where the reflection cancels and the extended library
            // loses its own accuracy
            if (x[i] < -2 && std::fabs(ref) < 0.25L) continue;
            double e = UlpError(y[i], ref);
            worst = std::max(worst, e);
            EXPECT_LE(e, 0.55) << "slot " << slot << " x " << x[i] << " got " << y[i];
        }
    }
    std::printf("dLGamma steps and sine: worst %.3f ulp\n", worst);
}

// TGamma on [1, 2] through the four pieces of H (double: split at 1.25, the minimum
// 1.46163214... and 1.5; single: 1.25, 1.5, 1.75), below 1 where H serves (1 + x (x - 1)
// H(x)) / x, and one and two steps of the recurrence above 2: random arguments in each
// piece and the arguments next to each split, within 0.51 ulp of the extended library's
// value (a piece on the wrong side of its split, or off by a coefficient, is far more).
template <class T>
void ExpectTGammaPieces(const std::vector<double>& splits) {
    const char* row = RowName<T>(false);
    std::mt19937_64 gen(sizeof(T) * 104729);
    std::vector<double> ends = {1.0};
    ends.insert(ends.end(), splits.begin(), splits.end());
    ends.push_back(2.0);
    double worst = 0;
    auto check = [&](const std::vector<T>& x) {
        std::vector<T> y(x.size());
        K<T>(row, 1)(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            double e = UlpError(y[i], tgammal(x[i]));
            worst = std::max(worst, e);
            EXPECT_LE(e, 0.51) << row << " x " << x[i] << " got " << y[i];
        }
    };
    for (double shift : {-1.0, 0.0, 1.0, 2.0})
        for (size_t p = 0; p + 1 < ends.size(); ++p) {
            std::uniform_real_distribution<double> u(ends[p] + shift, ends[p + 1] + shift);
            std::vector<T> x(10000);
            for (T& v : x)
                v = T(u(gen));
            check(x);
            if (ends[p] + shift <= 0) continue; // 0 is the pole
            std::vector<T> edge;
            T at = T(ends[p] + shift);
            for (int k = 0; k < 4; ++k) {
                edge.push_back(at);
                edge.push_back(std::nextafter(at, T(-1)));
                at = std::nextafter(at, T(4));
            }
            check(edge);
        }
    std::printf("%s worst %.3f ulp on the interval's pieces\n", row, worst);
}

TEST(Gamma, TGammaOnTheIntervalPieces) {
    ExpectTGammaPieces<double>({1.25, 1.4616321449683622, 1.5});
    ExpectTGammaPieces<float>({1.25, 1.5, 1.75});
}

// The last argument with a finite TGamma and the first past it, in both precisions
// (171.62437695630274 and 35.0401001f are already past).
TEST(Gamma, TGammaOverflowLimit) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : kSlots) {
        int st;
        EXPECT_TRUE(std::isfinite(Call("dTGamma", slot, 171.62437695630272, &st)));
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Call("dTGamma", slot, 171.62437695630274, &st), INFINITY);
        EXPECT_EQ(st, 3);
        EXPECT_TRUE(std::isfinite(Call("sTGamma", slot, 35.040096f, &st)));
        EXPECT_EQ(st, 0);
        EXPECT_EQ(Call("sTGamma", slot, 35.0401001f, &st), INFINITY);
        EXPECT_EQ(st, 3);
    }
}

// Double TGamma below 2^-1000 in magnitude is 1/x, rounded once, down to the denormals
// whose reciprocal overflows (status 3); from 2^-1000 on the routine's own form, which
// rounds to the same there.
TEST(Gamma, TGammaOfTinyArgumentsIsTheReciprocal) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (double x : {0x1.fffffffffffffp-1001, 0x1.8p-1010, 1e-305, 0x1p-1022, 0x1p-1023,
                     0x1.8p-1024, 0x1p-1000})
        for (double v : {x, -x})
            for (int slot : kSlots) {
                int st;
                double y = Call("dTGamma", slot, v, &st);
                EXPECT_TRUE(SameValue(y, 1 / v)) << v << " got " << y;
                EXPECT_EQ(st, 0) << v;
            }
    for (double x : {0x1p-1024, 0x1p-1074}) {
        int st;
        EXPECT_EQ(Call("dTGamma", 1, -x, &st), -INFINITY);
        EXPECT_EQ(st, 3);
    }
}

// TGamma between the negative poles keeps the sign of its interval and its size.
TEST(Gamma, TGammaSignsBetweenNegativePoles) {
    for (int n = 1; n < 30; ++n)
        for (double f : {0x1p-30, 0.25, 0.5, 0.75, 1 - 0x1p-30}) {
            double x = -n + f; // in (-n, -n + 1): sign (-1)^n
            double y = Call("dTGamma", 1, x);
            EXPECT_EQ(std::signbit(y), n % 2 == 1) << x;
            EXPECT_LE(UlpError(y, tgammal(x)), 1.0) << x;
            float xs = float(x);
            if (xs != -n && xs != -n + 1)
                EXPECT_EQ(std::signbit(Call("sTGamma", 1, xs)), n % 2 == 1);
        }
}

// The caller's x87 control word (a 53-bit precision with rounding up, say) and MXCSR
// (its rounding and flush controls) come back unchanged after every row and slot, and
// the results do not depend on the caller's x87 precision.

template <class T>
void ExpectControlsKept(const char* row) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const T in[] = {T(0.3), T(1.5), T(-2.5), T(0), T(-3), T(7.25), T(20.5), T(1e-3), T(INFINITY)};
    constexpr int n = sizeof(in) / sizeof(in[0]);
    T expect[n], y[n];
    for (int slot : kSlots) {
        K<T>(row, slot)(n, in, expect);
        for (uint16_t cw : {uint16_t(0x27F), uint16_t(0xA7F), uint16_t(0x07F), uint16_t(0x37F)})
            for (unsigned csr : {0x1F80u, 0x1F80u | 0x6000u, 0x1F80u | 0x8040u}) {
                const uint16_t saved = ReadX87Cw();
                LoadX87Cw(cw);
                unsigned after;
                {
                    CsrScope scope(csr);
                    K<T>(row, slot)(n, in, y);
                    after = _mm_getcsr();
                }
                uint16_t cwAfter = ReadX87Cw();
                LoadX87Cw(saved);
                EXPECT_EQ(cwAfter, cw) << row << " slot " << slot;
                EXPECT_EQ(after & ~0x3Fu, csr) << row << " slot " << slot;
                if (csr == 0x1F80u)
                    for (int i = 0; i < n; ++i)
                        EXPECT_TRUE(SameValue(y[i], expect[i]))
                            << row << " cw " << cw << " x " << in[i];
            }
    }
}

TEST(Gamma, CallersControlWordAndCsrComeBack) {
    for (bool lg : {true, false}) {
        ExpectControlsKept<float>(RowName<float>(lg));
        ExpectControlsKept<double>(RowName<double>(lg));
    }
}

// Each pole is reported once, with its own index, and the callback's result is kept.
int gCalls, gIndex, gCode;
int Record(ErrorRecord* r) {
    ++gCalls;
    gIndex = r->index;
    gCode = r->code;
    r->r1 = 7.0;
    return 0;
}

TEST(Gamma, ReportsCarryTheElement) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(Record);
    std::vector<double> x(13, 2.5), y(13);
    brenn_zar_kernel_SetInterfInputVectorPointer(x.data());
    for (const char* row : {"dLGamma", "dTGamma"})
        for (int at : {0, 5, 12})
            for (int slot : kSlots) {
                std::fill(x.begin(), x.end(), 2.5);
                x[at] = -4.0;
                gCalls = 0;
                K<double>(row, slot)(13, x.data(), y.data());
                EXPECT_EQ(gCalls, 1) << row;
                EXPECT_EQ(gIndex, at);
                EXPECT_EQ(gCode, row[1] == 'L' ? 2 : 1);
                EXPECT_EQ(y[at], 7.0);
            }
    brenn_zar_kernel_SetErrorCallBack(saved);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
}

// Long vectors, whose single elements the kernels take in blocks sorted by path: each
// element as alone, in place too, and the reports (the callback's result put in) in
// index order.
std::vector<int> gOrder;
int RecordOrder(ErrorRecord* r) {
    gOrder.push_back(r->index);
    r->r1 = 7.0;
    return 0;
}
template <class T>
void ExpectLongVectorAgrees(const char* row) {
    std::mt19937 rng(5);
    std::uniform_real_distribution<double> u(-40, 40);
    std::vector<T> x(2500);
    for (T& v : x)
        v = T(u(rng));
    const T marks[] = {T(-3), T(0), T(NAN), T(INFINITY), T(1e-30), T(40), T(4.1e36), T(-7.5)};
    for (int k = 0; k < 24; ++k)
        x[k * 101 + k % 3] = marks[k % 8];
    for (int slot : kSlots) {
        std::vector<T> want(x.size());
        std::vector<int> reports;
        {
            ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
            for (size_t i = 0; i < x.size(); ++i) {
                int st;
                want[i] = Call(row, slot, x[i], &st);
                if (st != 0) reports.push_back(int(i)), want[i] = T(7);
            }
        }
        ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
        ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordOrder);
        for (bool inPlace : {false, true}) {
            std::vector<T> a(x), y(x.size());
            T* out = inPlace ? a.data() : y.data();
            brenn_zar_kernel_SetInterfInputVectorPointer(a.data());
            gOrder.clear();
            K<T>(row, slot)(int(x.size()), a.data(), out);
            EXPECT_EQ(gOrder, reports) << row << " slot " << slot;
            for (size_t i = 0; i < x.size(); ++i)
                ASSERT_TRUE(SameValue(out[i], want[i])) << row << " slot " << slot << " x " << x[i];
        }
        brenn_zar_kernel_SetErrorCallBack(saved);
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    }
}

TEST(Gamma, LongVectorsAgreeAndReportInOrder) {
    for (bool lg : {true, false}) {
        ExpectLongVectorAgrees<float>(RowName<float>(lg));
        ExpectLongVectorAgrees<double>(RowName<double>(lg));
    }
}

// Every length and alignment, in place too: each element as the row gives it alone.
template <class T>
void ExpectRowLanesAgree(const char* row) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const T pool[] = {T(0.1), T(-2.5),  T(0.02),     T(-9.7), T(11),   T(-0.5), T(3.75), T(30.9),
                      T(-95), T(1e-30), T(INFINITY), T(NAN),  T(-0.0), T(1.0),  T(2.0),  T(-1.0)};
    constexpr int n = sizeof(pool) / sizeof(pool[0]);
    for (int slot : kSlots) {
        T one[n];
        for (int i = 0; i < n; ++i)
            one[i] = Call(row, slot, pool[i]);
        ExpectLanesAgree(K<T>(row, slot), pool, one, 21,
                         std::string(row) + " slot " + std::to_string(slot));
    }
}

TEST(Gamma, EveryLengthAndAlignmentAgreesWithOneElement) {
    for (bool lg : {true, false}) {
        ExpectRowLanesAgree<float>(RowName<float>(lg));
        ExpectRowLanesAgree<double>(RowName<double>(lg));
    }
}

} // namespace
} // namespace brenn::test
