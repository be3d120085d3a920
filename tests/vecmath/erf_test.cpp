// The error-function rows Erf, Erfc and CdfNorm: values against long double references
// where the bodies change path (grid ends, the mirrored side's hold, the scaled rows, the
// range tests), the edge values with their statuses, NaNs, the caller's MXCSR, vectors
// with special lanes against one element at a time, and the printed table rows.
#include <cfenv>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"
#include "vecmath/erf/erf_series.h"
#include "vecmath/erf/erf_tables.h"

namespace brenn::test {
namespace {

constexpr int kSlotLA = 0, kSlotHA = 1, kSlotEP = 2;
constexpr int kSlots[] = {kSlotLA, kSlotHA, kSlotEP};

enum class Fn { Erf, Erfc, CdfNorm };
constexpr Fn kAll[] = {Fn::Erf, Fn::Erfc, Fn::CdfNorm};

template <class T>
std::string RowOf(Fn f) {
    std::string t = sizeof(T) == 4 ? "s" : "d";
    return t + (f == Fn::Erf ? "Erf" : f == Fn::Erfc ? "Erfc" : "CdfNorm");
}

template <class T>
T Call(Fn f, int slot, T x, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    As<Unary<T>>(Slot(RowOf<T>(f), slot))(1, &x, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

long double Ref(Fn f, long double x) {
    switch (f) {
    case Fn::Erf:
        return erfl(x);
    case Fn::Erfc:
        return erfcl(x);
    default:
        return erfcl(-x / sqrtl(2.0L)) / 2;
    }
}

template <class T>
void ExpectWithinLevel(Fn f, int slot, T x) {
    T y = Call(f, slot, x);
    long double ref = Ref(f, x);
    // EP in correct bits, against the least normal where the result is a denormal.
    if (slot == kSlotEP) {
        int bits = sizeof(T) == 4 ? 11 : 26;
        long double scale = std::max<long double>(fabsl(ref), std::numeric_limits<T>::min());
        EXPECT_LE(fabsl(y - ref) / scale, ldexpl(1.0L, -bits))
            << RowOf<T>(f) << " EP x " << x << " got " << y;
    } else {
        EXPECT_LE(UlpError(y, ref), slot == kSlotHA ? 1.0 : 4.0)
            << RowOf<T>(f) << " slot " << slot << " x " << x << " got " << y;
    }
}

TEST(ErfRows, ValuesWhereThePathsMeet) {
    const double points[] = {
        0,          0x1p-1074, 0x1p-1022, 0x1p-300, 0x1p-257,  1e-20,  0x1p-8, 0x1.01p-8, 0x1p-7,
        0.02734375, 0.5,       1.0,       2.0,      3.9296875, 3.93,   5.0,    5.9921875, 6.0,
        6.01,       8.49,      8.5,       8.51,     9.18,      9.1875, 9.19,   9.6,       10.0,
        10.05,      10.09,     12.94,     12.96,    13.5,      14.0,   14.3,   12.99,     13.0,
        13.1,       19.99,     20.0,      20.004,   25.99,     26.0,   26.01,  26.49,     26.5,
        26.7,       27.2,      37.49,     37.5,     37.6,      38.4};
    for (Fn f : kAll)
        for (int slot : kSlots)
            for (double p : points)
                for (double x : {p, -p}) {
                    if (fabs(x) <= 20) ExpectWithinLevel(f, slot, float(x));
                    ExpectWithinLevel(f, slot, x);
                }
}

constexpr double kDenormal = -7;

template <class T>
struct Edge {
    Fn f;
    T x;
    T want; // kDenormal: any denormal
    int status;
};

template <class T>
void ExpectEdges(const std::vector<Edge<T>>& cases) {
    for (const Edge<T>& e : cases)
        for (int slot : kSlots) {
            int st;
            T y = Call(e.f, slot, e.x, &st);
            if (e.want == T(kDenormal))
                EXPECT_EQ(std::fpclassify(y), FP_SUBNORMAL) << RowOf<T>(e.f) << " x " << e.x;
            else
                EXPECT_TRUE(SameValue(y, e.want))
                    << RowOf<T>(e.f) << " slot " << slot << " x " << e.x << " got " << y;
            EXPECT_EQ(st, e.status) << RowOf<T>(e.f) << " slot " << slot << " x " << e.x;
        }
}

// Double Erf EP, step by step in scalar code: the nearest grid point by the shifter 2^45,
// d, t = xj*d, u = d^2 (0 up to 2^-256), P, Q and R = t*P + u*Q with the tuned Taylor
// terms, erf = V + (w + R*w) with w = d*D, x's sign on the sum.
double ErfShortSteps(double x, double limit = 5.9921875) {
    const double ax = fabs(x);
    const double a = ax > limit ? limit : ax;
    const double s = a + 0x1p45;
    const double xj = s - 0x1p45;
    const double d = a - xj;
    const double t = xj * d;
    const double u = a > 0x1p-256 ? d * d : 0.0;
    uint64_t bits;
    memcpy(&bits, &s, sizeof bits);
    const double* row = brenn::vm::erfRows[uint32_t(bits)];
    const double p = 0.6666678110767819 * t + -1.0000014305126206;
    const double q = 0.5000019073510884 * t + -0.33333504994947405;
    const double r = t * p + u * q;
    const double w = d * row[1];
    return copysign(row[0] + (w + r * w), x);
}

// The EP body equals those steps bit for bit over the grid (every offset from its row,
// both signs, both ends of the hold at 5.9921875) and on tiny arguments on both sides of
// 2^-256, where u is held at 0 so that no flag beyond inexact is raised while the result
// is normal; the steps hold 33 bits at the widest offsets of every row.
TEST(ErfRows, DoubleShortExpansionAsStated) {
    std::mt19937_64 gen(20261129);
    std::uniform_real_distribution<double> wide(-6.25, 6.25), expo(-1020, 0);
    std::vector<double> x;
    for (int i = 0; i < 300000; ++i)
        x.push_back(wide(gen));
    for (int i = 0; i < 20000; ++i)
        x.push_back((i & 1 ? -1 : 1) * exp2(expo(gen)));
    for (int j = 0; j < 768; ++j)
        for (double off : {-0.5, -0x1p-20, 0.0, 0x1p-30, 0.4999999})
            if (j + off >= 0) x.push_back((j + off) / 128);
    for (double e : {0x1p-256, 0x1.0000000000001p-256, 0x1.fffffffffffffp-257, 5.9921875,
                     5.9921876, 6.0, 1e300, double(INFINITY), 0.0})
        for (double v : {e, -e})
            x.push_back(v);
    std::vector<double> y(x.size());
    std::feclearexcept(FE_ALL_EXCEPT);
    As<Unary<double>>(Slot("dErf", kSlotEP))(int(x.size()), x.data(), y.data());
    EXPECT_FALSE(std::fetestexcept(FE_UNDERFLOW | FE_INVALID | FE_OVERFLOW | FE_DIVBYZERO));
    for (double e : {0x1p-1074, 0x1.8p-1050, 0x1.fffffffffffffp-1023, 0x1p-1022})
        for (double v : {e, -e}) {
            x.push_back(v);
            y.push_back(Call(Fn::Erf, kSlotEP, v));
        }
    int wrong = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        if (SameValue(y[i], ErfShortSteps(x[i]))) continue;
        if (++wrong <= 10) ADD_FAILURE() << "x " << x[i] << " got " << y[i];
    }
    EXPECT_EQ(wrong, 0);
    for (int j = 0; j < 768; ++j)
        for (double off : {-0.5, 0.4999999}) {
            double v = (j + off) / 128;
            if (v > 0) EXPECT_LE(fabsl((ErfShortSteps(v) - erfl(v)) / erfl(v)), 0x1p-33L) << v;
        }
}

// S(2t, u) - 1 by its Taylor terms, rows in t by Horner's rule, joined in u: t^1..t^5;
// u (t^0..t^3); u^2 (t^0, t^1); and at HA u^3.
double SeriesSteps(double t, double u, bool ha) {
    const auto& c = brenn::vm::kErfSeries;
    auto row = [&](int m, int k0, int n) {
        double h = c[m][k0 + n - 1] * ldexp(1.0, k0 + n - 1);
        for (int i = n - 2; i >= 0; --i)
            h = t * h + c[m][k0 + i] * ldexp(1.0, k0 + i);
        return h;
    };
    double r = ha ? u * row(3, 0, 1) + row(2, 0, 2) : row(2, 0, 2);
    double q = u * r + row(1, 0, 4);
    return u * q + t * row(0, 1, 5);
}

// Double Erf LA: EP's steps with the longer series, V + (w + R*w).
double ErfLASteps(double x) {
    const double ax = fabs(x);
    const double a = ax > 5.9921875 ? 5.9921875 : ax;
    const double s = a + 0x1p45;
    const double xj = s - 0x1p45;
    const double d = a - xj;
    const double t = xj * d;
    const double u = a >= 0x1p-256 ? d * d : 0.0;
    uint64_t bits;
    memcpy(&bits, &s, sizeof bits);
    const double* v = brenn::vm::erfRows[uint32_t(bits)];
    const double w = d * v[1];
    return copysign(v[0] + (w + SeriesSteps(t, u, false) * w), x);
}

// Double Erf HA, step by step: below 0.02734375, a + (a*(c0 - 1) + a*(lo + u*P(u))) with
// c0 - 1 = 2/sqrt(pi) - 1 in two parts, u = a^2 and P the Taylor terms times c0; above, EP's steps with
// R = S(2t, u) - 1 by rows in t (Horner), and w = d*D in two parts, d and D split at their
// high words, V + dh*Dh summed exactly to h + e, V's remainder vlo with the small terms:
// h + (e + (vlo + ((dh*Dl + dl*D) + R*w))).
double ErfLongSteps(double x) {
    const double ax = fabs(x);
    const double a = ax > 5.9921875 ? 5.9921875 : ax;
    if (a < 0.02734375) {
        if (a <= 0x1p-256) return NAN; // ErfTiny: held to erfl below
        const double c0 = 0x1.20dd750429b6dp+0, u = a * a;
        const auto& c = brenn::vm::kErfSeries; // column 0: -1/3, 1/10, -1/42
        double p = u * (c0 / 216) + c[3][0] * c0;
        p = u * p + c[2][0] * c0;
        p = u * p + c[1][0] * c0;
        const double q = -0x1.ca38add6025p-57 + u * p;
        return copysign(a + (a * 0x1.06eba8214db69p-3 + a * q), x);
    }
    const double s = a + 0x1p45;
    const double xj = s - 0x1p45;
    const double d = a - xj;
    const double t = xj * d;
    const double u = d * d;
    const double rr = SeriesSteps(t, u, true);
    uint64_t bits;
    memcpy(&bits, &s, sizeof bits);
    const double* v = brenn::vm::erfRows[uint32_t(bits)];
    auto high = [](double z) {
        uint64_t b;
        memcpy(&b, &z, sizeof b);
        b &= 0xFFFFFFFF00000000ull;
        memcpy(&z, &b, sizeof b);
        return z;
    };
    const double dh = high(d), dl = d - dh, Dh = high(v[1]), Dl = v[1] - Dh;
    const double wh = dh * Dh, wl = dh * Dl + dl * v[1], w = d * v[1];
    const double h = v[0] + wh, e = wh - (h - v[0]);
    const double vlo = brenn::vm::erfRowsHA[uint32_t(bits)][1];
    return copysign(h + (e + (vlo + (wl + rr * w))), x);
}

// The HA and LA bodies equal those steps bit for bit on random arguments over the grid and below
// the small path's end, every row's offsets and the paths' meeting points; below 2^-256 it
// holds 0.5 ulp (with the denormals); the steps hold 0.6 ulp on the rows where the value's
// rounding weighs most and where the results cross below the value's binade.
TEST(ErfRows, DoubleLongExpansionAsStated) {
    std::mt19937_64 gen(20261130);
    std::uniform_real_distribution<double> wide(-6.25, 6.25), near(-0.03, 0.03), expo(-300, 0);
    std::vector<double> x;
    for (int i = 0; i < 200000; ++i)
        x.push_back(wide(gen));
    for (int i = 0; i < 50000; ++i)
        x.push_back(near(gen));
    for (int i = 0; i < 20000; ++i)
        x.push_back((i & 1 ? -1 : 1) * exp2(expo(gen)));
    for (int j = 0; j < 768; ++j)
        for (double off : {-0.5, -0x1p-20, 0.0, 0x1p-30, 0.4999999})
            if (j + off >= 0) x.push_back((j + off) / 128);
    // Beyond the grid's end: up to the last value of its high word, the next one, and
    // values whose low words are all ones (DBL_MAX), which the hold must not let through.
    for (double e : {0.02734375, 0x1.bffffffffffffp-6, 0x1.0000000000001p-256, 5.9921875,
                     5.9921876, 0x1.7f800ffffffffp+2, 0x1.7f80100000000p+2, 0x1.8000000000001p+2,
                     0x1.00000ffffffffp+3, 6.0, 1e300, DBL_MAX, double(INFINITY), 0.0})
        for (double v : {e, -e})
            x.push_back(v);
    std::vector<double> y(x.size());
    std::feclearexcept(FE_ALL_EXCEPT);
    As<Unary<double>>(Slot("dErf", kSlotHA))(int(x.size()), x.data(), y.data());
    EXPECT_FALSE(std::fetestexcept(FE_UNDERFLOW | FE_INVALID | FE_OVERFLOW | FE_DIVBYZERO));
    int wrong = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        if (fabs(x[i]) <= 0x1p-256) continue; // ErfTiny's, held to 0.5 ulp below
        if (SameValue(y[i], ErfLongSteps(x[i]))) continue;
        if (++wrong <= 10) ADD_FAILURE() << "x " << x[i] << " got " << y[i];
    }
    EXPECT_EQ(wrong, 0);
    As<Unary<double>>(Slot("dErf", kSlotLA))(int(x.size()), x.data(), y.data());
    wrong = 0;
    for (size_t i = 0; i < x.size(); ++i) {
        if (SameValue(y[i], ErfLASteps(x[i]))) continue;
        if (++wrong <= 10) ADD_FAILURE() << "LA x " << x[i] << " got " << y[i];
    }
    EXPECT_EQ(wrong, 0);
    for (double e : {0x1p-1074, 0x1.8p-1050, 0x1p-1022, 0x1p-300, 0x1p-256})
        for (double v : {e, -e})
            EXPECT_LE(UlpError(Call(Fn::Erf, kSlotHA, v), erfl(v)), 0.5) << v;
    // Rows whose value rounds nearly half an ulp away, and the two whose results cross
    // below the value's binade.
    std::uniform_real_distribution<double> off(-0.5, 0.5);
    for (int j : {4, 29, 75, 134, 182, 399, 722, 758}) {
        double worst = 0;
        for (int i = 0; i < 50000; ++i) {
            double v = (j + off(gen)) / 128;
            worst = std::max(worst, double(UlpError(ErfLongSteps(v), erfl(v))));
        }
        EXPECT_LE(worst, 0.6) << "row " << j;
    }
}

// Single Erf EP and LA, step by step in single arithmetic: |x| held at 3.9296875, the
// nearest grid point by the shifter 2^16 (the row index the sum's bits less the
// shifter's), d, the single row (v, D); EP v + D*d; LA v + (w + w*R), w = D*d, with
// R = t*(-1 + (2/3)t) - u/3 the first terms of S(2t, u) - 1, t = xj*d, u = d^2 (0 below
// 2^-40). x's sign on the sum.
float ErfSingleSteps(float x, bool la) {
    const float ax = fabsf(x);
    const float a = ax > 3.9296875f ? 3.9296875f : ax;
    const float s = a + 0x1p16f;
    const float xj = s - 0x1p16f;
    const float d = a - xj;
    uint32_t bits, bias;
    const float shifter = 0x1p16f;
    memcpy(&bits, &s, sizeof bits);
    memcpy(&bias, &shifter, sizeof bias);
    const float* row = brenn::vm::erfRowsSingle[bits - bias];
    const float w = row[1] * d;
    if (!la) return copysignf(row[0] + w, x);
    const auto& c = brenn::vm::kErfSeries;
    const float t = xj * d;
    const float u = a < 0x1p-40f ? 0.0f : d * d;
    const float r = u * float(c[1][0]) + t * (t * float(c[0][2] * 4) + float(c[0][1] * 2));
    return copysignf(row[0] + (w + w * r), x);
}

// The single EP and LA bodies equal those steps bit for bit on random arguments, every
// row's offsets, the hold and beyond, tiny arguments and denormals (no flag but inexact
// where the result is normal, HA's too); the steps hold 15 bits (EP) and 2 ulp (LA) at the widest
// offsets of every row.
TEST(ErfRows, SingleShortExpansionOnSingleLanes) {
    std::mt19937 gen(20261131);
    std::uniform_real_distribution<float> wide(-4.5f, 4.5f), expo(-125, 0);
    std::vector<float> x;
    for (int i = 0; i < 300000; ++i)
        x.push_back(wide(gen));
    for (int i = 0; i < 20000; ++i)
        x.push_back((i & 1 ? -1 : 1) * exp2f(expo(gen)));
    for (int j = 0; j < 504; ++j)
        for (float off : {-0.5f, -0x1p-10f, 0.0f, 0x1p-12f, 0.49f})
            if (j + off >= 0) x.push_back((j + off) / 128);
    for (float e : {0x1p-40f, 0x1.fffffep-41f, 0x1p-60f, 0x1p-120f, 3.9296875f, 3.9296877f, 6.0f, 1e30f,
                    float(INFINITY), 0.0f})
        for (float v : {e, -e})
            x.push_back(v);
    std::vector<float> y(x.size());
    for (bool la : {false, true}) {
        const char* level = la ? "LA" : "EP";
        std::feclearexcept(FE_ALL_EXCEPT);
        As<Unary<float>>(Slot("sErf", la ? kSlotLA : kSlotEP))(int(x.size()), x.data(), y.data());
        EXPECT_FALSE(std::fetestexcept(FE_UNDERFLOW | FE_INVALID | FE_OVERFLOW | FE_DIVBYZERO))
            << level;
        std::vector<float> xs = x, ys = y;
        for (float e : {0x1p-149f, 0x1.8p-140f, 0x1p-126f}) // results denormal or near
            for (float v : {e, -e}) {
                xs.push_back(v);
                ys.push_back(Call(Fn::Erf, la ? kSlotLA : kSlotEP, v));
            }
        int wrong = 0;
        for (size_t i = 0; i < xs.size(); ++i) {
            if (SameValue(ys[i], ErfSingleSteps(xs[i], la))) continue;
            if (++wrong <= 10) ADD_FAILURE() << level << " x " << xs[i] << " got " << ys[i];
        }
        EXPECT_EQ(wrong, 0) << level;
    }
    std::feclearexcept(FE_ALL_EXCEPT);
    As<Unary<float>>(Slot("sErf", kSlotHA))(int(x.size()), x.data(), y.data());
    EXPECT_FALSE(std::fetestexcept(FE_UNDERFLOW | FE_INVALID | FE_OVERFLOW | FE_DIVBYZERO)) << "HA";
    for (int j = 0; j < 504; ++j)
        for (float off : {-0.5f, 0.49999f}) {
            float v = (j + off) / 128;
            if (v <= 0) continue;
            long double ref = erfl(v);
            EXPECT_LE(fabsl((ErfSingleSteps(v, false) - ref) / ref), 0x1p-15L) << "EP " << v;
            EXPECT_LE(UlpError(ErfSingleSteps(v, true), ref), 2.0) << "LA " << v;
        }
    for (int slot : {kSlotEP, kSlotLA}) {
        EXPECT_EQ(Call(Fn::Erf, slot, 3.9296877f), 1.0f);
        EXPECT_EQ(Call(Fn::Erf, slot, -6.0f), -1.0f);
    }
}

TEST(ErfRows, EdgeValuesAndStatuses) {
    const double inf = INFINITY;
    ExpectEdges<double>({
        {Fn::Erf, 6.0, 1.0, 0},
        {Fn::Erf, -0.0, -0.0, 0},
        {Fn::Erf, 1.0 / 128, 0.008815282895179188, 0},
        {Fn::Erf, -inf, -1.0, 0},
        {Fn::Erf, 1e300, 1.0, 0},
        {Fn::Erfc, 27.3, 0.0, 4},
        {Fn::Erfc, 26.8, kDenormal, 4},
        {Fn::Erfc, -30.0, 2.0, 0},
        {Fn::Erfc, inf, 0.0, 0},
        {Fn::Erfc, -inf, 2.0, 0},
        {Fn::Erfc, -0.0, 1.0, 0},
        {Fn::CdfNorm, -39.0, 0.0, 4},
        {Fn::CdfNorm, -38.0, kDenormal, 4},
        {Fn::CdfNorm, 40.0, 1.0, 0},
        {Fn::CdfNorm, -inf, 0.0, 0},
        {Fn::CdfNorm, inf, 1.0, 0},
        {Fn::CdfNorm, 0.0, 0.5, 0},
    });
    const float finf = INFINITY;
    ExpectEdges<float>({
        {Fn::Erf, 6.0f, 1.0f, 0},
        {Fn::Erf, -0.0f, -0.0f, 0},
        {Fn::Erf, -finf, -1.0f, 0},
        {Fn::Erfc, 10.5f, 0.0f, 4},
        {Fn::Erfc, 9.5f, kDenormal, 4},
        {Fn::Erfc, -30.0f, 2.0f, 0},
        {Fn::Erfc, finf, 0.0f, 0},
        {Fn::CdfNorm, -14.0f, kDenormal, 4},
        {Fn::CdfNorm, -12.96f, kDenormal, 4}, // just below the least normal result
        {Fn::CdfNorm, -20.0f, 0.0f, 4},
        {Fn::CdfNorm, -finf, 0.0f, 0},
        {Fn::CdfNorm, 20.0f, 1.0f, 0},
    });
}

template <class T>
void ExpectQuietNaNs() {
    using U = decltype(Bits(T()));
    constexpr U quiet = sizeof(T) == 4 ? U(0x00400000u) : U(0x0008000000000000ull);
    const U exp = sizeof(T) == 4 ? U(0x7F800000u) : U(0x7FF0000000000000ull);
    const U sign = U(1) << (sizeof(T) * 8 - 1);
    for (U nan : {U(exp | quiet | 5), U(exp | 5), U(sign | exp | quiet), U(sign | exp | 7)})
        for (Fn f : kAll)
            for (int slot : kSlots) {
                int st;
                T y = Call(f, slot, __builtin_bit_cast(T, nan), &st);
                EXPECT_EQ(Bits(y), nan | quiet) << RowOf<T>(f) << " slot " << slot;
                EXPECT_EQ(st, 0);
            }
}

TEST(ErfRows, NaNsComeBackQuietedWithoutStatus) {
    ExpectQuietNaNs<float>();
    ExpectQuietNaNs<double>();
}

// Every row leaves the caller's MXCSR controls as they were (flags may be added), and
// runs at nearest whatever rounding the caller has set.
template <class T>
void ExpectCallerCsrKept() {
    std::vector<T> in;
    for (int i = 0; i < 64; ++i)
        in.push_back(T(-45 + 1.4 * i));
    in.push_back(T(NAN));
    std::vector<T> out(in.size()), near(in.size());
    for (Fn f : kAll)
        for (int slot : kSlots) {
            auto k = As<Unary<T>>(Slot(RowOf<T>(f), slot));
            k(int(in.size()), in.data(), near.data());
            for (unsigned csr : {0x1F80u, 0x7F80u, 0x3F80u, 0x9F80u}) {
                CsrScope scope(csr);
                k(int(in.size()), in.data(), out.data());
                EXPECT_EQ(_mm_getcsr() & ~0x3Fu, csr) << RowOf<T>(f) << " slot " << slot;
                for (size_t i = 0; i < in.size(); ++i)
                    EXPECT_TRUE(SameValue(out[i], near[i])) << RowOf<T>(f) << " " << in[i];
            }
        }
}

TEST(ErfRows, CallerCsrKept) {
    ExpectCallerCsrKept<float>();
    ExpectCallerCsrKept<double>();
}

// A vector with special lanes scattered through it gives what single elements give.
template <class T>
void ExpectVectorAsElements() {
    const T mix[] = {T(0.3),   T(INFINITY), T(-2),   T(30),  T(-40), T(NAN),  T(9.6),  T(-13.5),
                     T(1e-30), T(27),       T(-0.0), T(5.5), T(38),  T(-6.5), T(0.75), T(14)};
    std::vector<T> in;
    for (int r = 0; r < 5; ++r)
        for (T v : mix)
            in.push_back(v);
    in.insert(in.end(), mix, mix + 11); // a round of eight and a partial block after them
    std::vector<T> out(in.size());
    for (Fn f : kAll)
        for (int slot : kSlots) {
            As<Unary<T>>(Slot(RowOf<T>(f), slot))(int(in.size()), in.data(), out.data());
            for (size_t i = 0; i < in.size(); ++i)
                EXPECT_TRUE(SameValue(out[i], Call(f, slot, in[i])))
                    << RowOf<T>(f) << " slot " << slot << " x " << in[i];
        }
}

TEST(ErfRows, VectorsAsSingleElements) {
    ExpectVectorAsElements<float>();
    ExpectVectorAsElements<double>();
}

// Erf runs NaN lanes at the grid's end with the others and sets them aside after the
// body, one test a round: a NaN at any place of a long vector, quiet or signalling, of
// either sign, comes back quieted, and the lanes beside it (beyond the grid, tiny, in
// range) are what single elements give.
template <class T>
void ExpectErfNaNsInRounds() {
    using U = decltype(Bits(T()));
    constexpr U quiet = sizeof(T) == 4 ? U(0x00400000u) : U(0x0008000000000000ull);
    const U exp = sizeof(T) == 4 ? U(0x7F800000u) : U(0x7FF0000000000000ull);
    const U sign = U(1) << (sizeof(T) * 8 - 1);
    const T base[] = {T(0.4),  T(-1.7),   T(3.95), T(-6.5),   T(INFINITY), T(0x1p-140),
                      T(-2.2), T(1e-300), T(5.99), T(-0.004), T(7),        T(-0.0)};
    std::vector<T> in(48);
    for (size_t i = 0; i < in.size(); ++i)
        in[i] = base[i % 12];
    std::vector<T> out(in.size());
    const U nans[] = {U(exp | quiet | 3), U(exp | 9), U(sign | exp | quiet), U(sign | exp | 1)};
    for (int slot : kSlots)
        for (size_t at = 0; at < in.size(); at += 5) {
            std::vector<T> v = in;
            const U nan = nans[at % 4];
            v[at] = __builtin_bit_cast(T, nan);
            std::feclearexcept(FE_ALL_EXCEPT);
            As<Unary<T>>(Slot(RowOf<T>(Fn::Erf), slot))(int(v.size()), v.data(), out.data());
            // A quiet NaN raises nothing, whatever runs beside it (the small and tiny
            // arguments' path included).
            if (nan & quiet)
                EXPECT_FALSE(std::fetestexcept(FE_INVALID)) << "slot " << slot << " at " << at;
            for (size_t i = 0; i < v.size(); ++i) {
                if (i == at)
                    EXPECT_EQ(Bits(out[i]), nan | quiet) << "slot " << slot << " at " << at;
                else
                    EXPECT_TRUE(SameValue(out[i], Call(Fn::Erf, slot, v[i])))
                        << "slot " << slot << " x " << v[i] << " beside a NaN at " << at;
            }
        }
}

TEST(ErfRows, NaNsSetAsideInRounds) {
    ExpectErfNaNsInRounds<float>();
    ExpectErfNaNsInRounds<double>();
}

int underflowCalls, lastIndex;
int CountUnderflow(ErrorRecord* r) {
    underflowCalls += r->code == 4;
    EXPECT_GT(r->index, lastIndex);
    lastIndex = r->index;
    return 0;
}

// Erfc and CdfNorm give the underflow band's results on the lanes (single in rounds of
// eight, double in rounds of sixteen), zeros beyond the grid's end included; the frame
// reports them element by element to a callback, or once at the end without one.
template <class T>
void ExpectUnderflowLanesInOrder(Fn f, double from, double step) {
    std::vector<T> in(53);
    for (size_t i = 0; i < in.size(); ++i)
        in[i] = i % 5 == 2 ? T(from + step * double(i)) : T(0.5);
    in[30] = T(NAN);
    in[41] = T(f == Fn::Erfc ? INFINITY : -INFINITY); // +0, no status
    std::vector<T> out(in.size()), each(in.size());
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr); // indices count from in
    for (int slot : kSlots) {
        auto k = As<Unary<T>>(Slot(RowOf<T>(f), slot));
        brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_CALLBACK);
        brenn_zar_kernel_SetErrorCallBack(CountUnderflow);
        underflowCalls = 0, lastIndex = -1;
        k(int(in.size()), in.data(), out.data());
        EXPECT_EQ(underflowCalls, 11) << RowOf<T>(f) << " slot " << slot;
        EXPECT_EQ(lastIndex, 52) << RowOf<T>(f) << " slot " << slot;
        brenn_zar_kernel_ClearErrorCallBack();
        brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
        brenn_zar_kernel_ClearErrStatus();
        k(int(in.size()), in.data(), each.data());
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 4) << RowOf<T>(f) << " slot " << slot;
        for (size_t i = 0; i < in.size(); ++i) {
            EXPECT_TRUE(SameValue(out[i], each[i])) << i;
            EXPECT_TRUE(SameValue(out[i], Call(f, slot, in[i]))) << RowOf<T>(f) << " " << in[i];
        }
        EXPECT_EQ(Bits(out[41]), Bits(T(0)));
    }
}

TEST(ErfRows, UnderflowLanesReportedInOrder) {
    // 9.25 to 10.81 (denormals, zeros from 10.1), 26.6 to 28.16 (denormals, zeros
    // from 27.24), -38.1 to -39.66 (denormals, zeros from -38.5)
    ExpectUnderflowLanesInOrder<float>(Fn::Erfc, 9.25, 0.03);
    ExpectUnderflowLanesInOrder<double>(Fn::Erfc, 26.6, 0.03);
    ExpectUnderflowLanesInOrder<double>(Fn::CdfNorm, -38.1, -0.03);
}

// Single Erfc and CdfNorm LA and EP bring their scaled results back by the exponent or,
// below the least normal, as denormal bits: across the crossing the results fall with x
// (rise, for CdfNorm's negative side) and stay within the level, in long vectors.
TEST(ErfRows, SingleResultsAcrossTheLeastNormal) {
    for (Fn f : {Fn::Erfc, Fn::CdfNorm}) {
        const float at = f == Fn::Erfc ? 9.1945f : -12.9574f; // F about 2^-126 there
        std::vector<float> in;
        for (int i = -600; i <= 600; ++i)
            in.push_back(at + 0.00005f * float(i));
        std::vector<float> out(in.size());
        for (int slot : {kSlotLA, kSlotEP}) {
            As<Unary<float>>(Slot(RowOf<float>(f), slot))(int(in.size()), in.data(), out.data());
            int below = 0;
            for (size_t i = 0; i < in.size(); ++i) {
                below += out[i] < FLT_MIN;
                if (i > 0 && f == Fn::Erfc) EXPECT_LE(out[i], out[i - 1]) << in[i];
                if (i > 0 && f == Fn::CdfNorm) EXPECT_GE(out[i], out[i - 1]) << in[i];
                long double ref = Ref(f, in[i]);
                if (slot == kSlotLA)
                    EXPECT_LE(UlpError(out[i], ref), 4.0) << RowOf<float>(f) << " " << in[i];
                else
                    EXPECT_LE(fabsl(out[i] - ref) / std::max<long double>(fabsl(ref), FLT_MIN),
                              ldexpl(1.0L, -11))
                        << RowOf<float>(f) << " " << in[i];
            }
            EXPECT_GT(below, 100) << RowOf<float>(f); // both sides of the crossing seen
            EXPECT_LT(below, int(in.size()) - 100) << RowOf<float>(f);
        }
    }
}

// With denormals flushed by the mode, the band's results are 0, still with status 4.
TEST(ErfRows, FlushModeGivesZeroInTheBand) {
    brenn_zar_kernel_SetMode(BRENN_MODE_FTZDAZ_ON);
    ExpectEdges<float>({{Fn::Erfc, 9.5f, 0.0f, 4}, {Fn::CdfNorm, -13.5f, 0.0f, 4}});
    brenn_zar_kernel_SetMode(BRENN_MODE_FTZDAZ_OFF);
    ExpectEdges<float>({{Fn::Erfc, 9.5f, kDenormal, 4}, {Fn::CdfNorm, -13.5f, kDenormal, 4}});
}

// The EP body reads the table's rows as they stand: at x = 1/128 the result is row 1's
// value, and below the first step D*x is row 0's derivative times x.
TEST(ErfRows, FirstTableRowsAsPrinted) {
    EXPECT_EQ(Call(Fn::Erf, kSlotEP, 1.0 / 128), 0.008815282895179188);
    EXPECT_EQ(Call(Fn::Erf, kSlotEP, 0x1p-300), 1.1283791670955126 * 0x1p-300);
    EXPECT_EQ(Call(Fn::Erf, kSlotEP, -0x1p-300), -1.1283791670955126 * 0x1p-300);
}

} // namespace
} // namespace brenn::test
