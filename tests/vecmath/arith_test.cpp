// Values of the elementary kernels: special inputs against the C library (bit for bit,
// NaN for NaN) at every level, statuses left by special inputs, exactness of the exact
// rows, and the accuracy of each level of Sqrt, Inv, InvSqrt and Div over random
// inputs across the whole range.
#include <cfloat>
#include <cmath>
#include <immintrin.h>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

template <class T>
std::vector<T> SpecialInputs() {
    using L = std::numeric_limits<T>;
    T big = sizeof(T) == 4 ? T(8388608.0) : T(4503599627370496.0); // 2^23 / 2^52
    std::vector<T> v = {T(0),
                        -T(0),
                        L::infinity(),
                        -L::infinity(),
                        L::quiet_NaN(),
                        -L::quiet_NaN(),
                        L::signaling_NaN(),
                        L::denorm_min(),
                        -L::denorm_min(),
                        L::min(),
                        -L::min(),
                        L::min() / 2,
                        L::max(),
                        -L::max(),
                        T(1),
                        T(-1),
                        T(0.5),
                        T(-0.5),
                        T(1.5),
                        T(2.5),
                        T(-2.5),
                        T(0.49999997),
                        big,
                        big + T(1),
                        -big - T(1),
                        big / 2 + T(0.5),
                        T(1e-30),
                        T(3)};
    return v;
}

template <class T>
void ExpectUnaryMatches(const char* row, T (*ref)(T), bool allSlots = true) {
    std::vector<T> in = SpecialInputs<T>(), y(in.size());
    for (int slot = 0; slot < 3; ++slot) {
        if (!allSlots && slot != 1) continue;
        As<Unary<T>>(Slot(row, slot))(int(in.size()), in.data(), y.data());
        for (size_t i = 0; i < in.size(); ++i) {
            T want = ref(in[i]);
            EXPECT_TRUE(SameValue(y[i], want)) << row << " slot " << slot << " of " << in[i]
                                               << " gave " << y[i] << ", want " << want;
            if (std::isnan(y[i])) {
                EXPECT_TRUE(std::isnan(want));
                // Signalling NaN in, quiet NaN out.
                if constexpr (sizeof(T) == 4)
                    EXPECT_NE(Bits(y[i]) & 0x00400000u, 0u);
                else
                    EXPECT_NE(Bits(y[i]) & 0x0008000000000000ull, 0u);
            }
        }
    }
}

template <class T>
T Frac(T x) {
    if (std::isinf(x)) return std::copysign(T(0), x);
    T f = x - std::trunc(x);
    return std::copysign(f, x);
}

TEST(Elementary, ExactRowsMatchTheCLibraryOnSpecialInputs) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    ExpectUnaryMatches<float>("sCeil", [](float x) { return std::ceil(x); });
    ExpectUnaryMatches<float>("sFloor", [](float x) { return std::floor(x); });
    ExpectUnaryMatches<float>("sTrunc", [](float x) { return std::trunc(x); });
    ExpectUnaryMatches<float>("sRint", [](float x) { return std::nearbyint(x); });
    ExpectUnaryMatches<float>("sNearbyInt", [](float x) { return std::nearbyint(x); });
    ExpectUnaryMatches<float>("sRound", [](float x) { return std::round(x); });
    ExpectUnaryMatches<float>("sAbs", [](float x) { return std::fabs(x); });
    ExpectUnaryMatches<float>("sSqr", [](float x) { return x * x; });
    ExpectUnaryMatches<float>("sFrac", Frac<float>);
    ExpectUnaryMatches<double>("dCeil", [](double x) { return std::ceil(x); });
    ExpectUnaryMatches<double>("dFloor", [](double x) { return std::floor(x); });
    ExpectUnaryMatches<double>("dTrunc", [](double x) { return std::trunc(x); });
    ExpectUnaryMatches<double>("dRint", [](double x) { return std::nearbyint(x); });
    ExpectUnaryMatches<double>("dNearbyInt", [](double x) { return std::nearbyint(x); });
    ExpectUnaryMatches<double>("dRound", [](double x) { return std::round(x); });
    ExpectUnaryMatches<double>("dAbs", [](double x) { return std::fabs(x); });
    ExpectUnaryMatches<double>("dSqr", [](double x) { return x * x; });
    ExpectUnaryMatches<double>("dFrac", Frac<double>);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(Elementary, CorrectlyRoundedRowsMatchTheCLibraryOnSpecialInputs) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    // Special lanes go to scalar routines that every level shares, so every level
    // agrees with the C library there; HA also everywhere else.
    ExpectUnaryMatches<float>(
        "sSqrt", [](float x) { return std::sqrt(x); }, false);
    ExpectUnaryMatches<float>(
        "sInv", [](float x) { return 1.0f / x; }, false);
    ExpectUnaryMatches<double>(
        "dSqrt", [](double x) { return std::sqrt(x); }, false);
    ExpectUnaryMatches<double>(
        "dInv", [](double x) { return 1.0 / x; }, false);
    ExpectUnaryMatches<float>(
        "sInvSqrt", [](float x) { return float(1.0 / std::sqrt(double(x))); }, false);
    for (int slot = 0; slot < 3; ++slot) {
        const float in[8] = {0.0f, -0.0f, INFINITY, -INFINITY, NAN, -1.0f, -FLT_MIN, 4.0f};
        float y[8];
        As<Unary<float>>(Slot("sSqrt", slot))(8, in, y);
        EXPECT_EQ(Bits(y[1]), 0x80000000u) << "sqrt(-0) is -0";
        EXPECT_EQ(y[2], INFINITY);
        EXPECT_TRUE(std::isnan(y[3]) && std::isnan(y[5]) && std::isnan(y[6]));
        As<Unary<float>>(Slot("sInv", slot))(8, in, y);
        EXPECT_EQ(y[0], INFINITY);
        EXPECT_EQ(y[1], -INFINITY);
        EXPECT_EQ(Bits(y[2]), 0u);
        EXPECT_EQ(Bits(y[3]), 0x80000000u);
        As<Unary<float>>(Slot("sInvSqrt", slot))(8, in, y);
        EXPECT_EQ(y[0], INFINITY);
        EXPECT_EQ(y[1], -INFINITY);
        EXPECT_EQ(Bits(y[2]), 0u);
        EXPECT_TRUE(std::isnan(y[3]) && std::isnan(y[5]));
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// The status each special input leaves, one element a call.
template <class T>
int StatusOf(const char* row, int slot, T x, T b = T(1)) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    if (row[1] == 'D')
        As<Binary<T>>(Slot(row, slot))(1, &x, &b, &y);
    else
        As<Unary<T>>(Slot(row, slot))(1, &x, &y);
    return brenn_zar_kernel_GetErrStatus();
}

TEST(Elementary, StatusesOfSpecialInputs) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot = 0; slot < 3; ++slot) {
        for (const char* r : {"sSqrt", "sInvSqrt"}) {
            EXPECT_EQ(StatusOf<float>(r, slot, -1.0f), 1) << r;
            EXPECT_EQ(StatusOf<float>(r, slot, -INFINITY), 1) << r;
            EXPECT_EQ(StatusOf<float>(r, slot, -FLT_TRUE_MIN), 1) << r;
            EXPECT_EQ(StatusOf<float>(r, slot, NAN), 0) << r;
            EXPECT_EQ(StatusOf<float>(r, slot, INFINITY), 0) << r;
            EXPECT_EQ(StatusOf<float>(r, slot, FLT_TRUE_MIN), 0) << r;
        }
        for (const char* r : {"dSqrt", "dInvSqrt"}) {
            EXPECT_EQ(StatusOf<double>(r, slot, -1.0), 1) << r;
            EXPECT_EQ(StatusOf<double>(r, slot, -INFINITY), 1) << r;
            EXPECT_EQ(StatusOf<double>(r, slot, NAN), 0) << r;
            EXPECT_EQ(StatusOf<double>(r, slot, 5e-324), 0) << r;
        }
        EXPECT_EQ(StatusOf<float>("sSqrt", slot, -0.0f), 0);
        EXPECT_EQ(StatusOf<double>("dSqrt", slot, -0.0), 0);
        EXPECT_EQ(StatusOf<float>("sInvSqrt", slot, -0.0f), 2);
        EXPECT_EQ(StatusOf<double>("dInvSqrt", slot, 0.0), 2);
        EXPECT_EQ(StatusOf<float>("sInv", slot, 0.0f), 2);
        EXPECT_EQ(StatusOf<float>("sInv", slot, -0.0f), 2);
        EXPECT_EQ(StatusOf<double>("dInv", slot, -0.0), 2);
        // Overflow and underflow of a reciprocal are not reported.
        EXPECT_EQ(StatusOf<float>("sInv", slot, FLT_TRUE_MIN), 0);
        EXPECT_EQ(StatusOf<float>("sInv", slot, FLT_MAX), 0);
        EXPECT_EQ(StatusOf<double>("dInv", slot, 5e-324), 0);
        EXPECT_EQ(StatusOf<float>("sInv", slot, NAN), 0);
        EXPECT_EQ(StatusOf<float>("sDiv", slot, 3.0f, 0.0f), 2);
        EXPECT_EQ(StatusOf<float>("sDiv", slot, 0.0f, 0.0f), 1);
        EXPECT_EQ(StatusOf<float>("sDiv", slot, NAN, 0.0f), 0);
        EXPECT_EQ(StatusOf<double>("dDiv", slot, -3.0, 0.0), 2);
        EXPECT_EQ(StatusOf<double>("dDiv", slot, 1e300, 1e-300), 0);
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(Elementary, RoundingCornerCases) {
    const float in[6] = {0.5f, 2.5f, -0.5f, 0.49999997f, -3.0f, -0.0f};
    float y[6], z[6];
    _zarsRound(6, in, y);
    EXPECT_EQ(y[0], 1.0f);
    EXPECT_EQ(y[1], 3.0f);
    EXPECT_EQ(y[2], -1.0f);
    EXPECT_EQ(y[3], 0.0f);
    // Rint rounds to nearest even under any caller mode and raises inexact;
    // NearbyInt does not raise it.
    {
        CsrScope scope(0x1F80 | 0x4000); // caller rounds up
        _zarsRint(6, in, y);
        EXPECT_EQ(y[1], 2.0f);
        EXPECT_NE(_mm_getcsr() & 0x20, 0u);
    }
    {
        CsrScope scope(0x1F80);
        _zarsNearbyInt(6, in, y);
        EXPECT_EQ(y[1], 2.0f);
        EXPECT_EQ(_mm_getcsr() & 0x20, 0u);
    }
    _zarsFrac(6, in, y);
    EXPECT_EQ(Bits(y[4]), 0x80000000u) << "a negative integer's fraction is -0";
    _zarsModf(6, in, y, z);
    EXPECT_EQ(y[1], 2.0f);
    EXPECT_EQ(z[1], 0.5f);
    EXPECT_EQ(Bits(y[5]), 0x80000000u);
    EXPECT_EQ(Bits(z[4]), 0x80000000u);
    const double inf[2] = {-INFINITY, NAN};
    double dy[2], dz[2];
    _zardModf(2, inf, dy, dz);
    EXPECT_EQ(dy[0], -INFINITY);
    EXPECT_EQ(Bits(dz[0]), 0x8000000000000000ull);
    EXPECT_TRUE(std::isnan(dy[1]) && std::isnan(dz[1]));
    _zarsAbs(6, in, y);
    EXPECT_EQ(Bits(y[5]), 0u) << "Abs of -0 is +0";
}

TEST(Elementary, ArithmeticRowsAreIeeeExactInEveryAliasing) {
    std::mt19937 g(7);
    std::uniform_real_distribution<float> u(-1e3f, 1e3f);
    for (int n : {0, 1, 31, 32, 33, 100}) {
        std::vector<float> a(n), b(n), y(n);
        for (int i = 0; i < n; ++i)
            a[i] = u(g), b[i] = u(g);
        _zarsSub(n, a.data(), b.data(), y.data());
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(y[i], a[i] - b[i]);
        std::vector<float> c = b;
        _zarsMul(n, a.data(), c.data(), c.data()); // y is b
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(c[i], a[i] * b[i]);
        c = a;
        _zarsAdd(n, c.data(), b.data(), c.data()); // y is a
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(c[i], a[i] + b[i]);
        std::vector<double> d(n), dy(n);
        for (int i = 0; i < n; ++i)
            d[i] = double(a[i]) * 1e-160;
        _zardSqr(n, d.data(), dy.data());
        for (int i = 0; i < n; ++i)
            ASSERT_EQ(dy[i], d[i] * d[i]);
    }
}

// Random inputs over the whole finite range (positive only for the roots).
template <class T>
std::vector<T> RandomInputs(int n, bool signedValues, uint32_t seed) {
    std::mt19937_64 g(seed);
    std::vector<T> v(n);
    for (T& x : v) {
        if constexpr (sizeof(T) == 4) {
            uint32_t b = uint32_t(g() % 0x7F000000u) + 0x00800000u;
            if (signedValues && (g() & 1)) b |= 0x80000000u;
            x = __builtin_bit_cast(float, b);
        } else {
            uint64_t b = g() % 0x7FE0000000000000ull + 0x0010000000000000ull;
            if (signedValues && (g() & 1)) b |= 1ull << 63;
            x = __builtin_bit_cast(double, b);
        }
    }
    return v;
}

struct Bound {
    double la, ha, ep; // ulps for LA and HA, relative error for EP
};

template <class T>
void CheckAccuracy(const char* row, long double (*ref)(long double, long double), bool binary,
                   bool positive, Bound bound) {
    const int n = 20000;
    std::vector<T> a = RandomInputs<T>(n, !positive, 11), b = RandomInputs<T>(n, true, 12);
    std::vector<T> y(n);
    const double limit[3] = {bound.la, bound.ha, bound.ep};
    for (int slot = 0; slot < 3; ++slot) {
        if (binary)
            As<Binary<T>>(Slot(row, slot))(n, a.data(), b.data(), y.data());
        else
            As<Unary<T>>(Slot(row, slot))(n, a.data(), y.data());
        double worst = 0, worstRelative = 0;
        for (int i = 0; i < n; ++i) {
            long double r = ref(a[i], b[i]);
            if (fabsl(r) > (long double)std::numeric_limits<T>::max()) continue;
            if (fabsl(r) < (long double)std::numeric_limits<T>::min()) continue;
            worst = std::max(worst, UlpError(y[i], r));
            worstRelative = std::max(worstRelative, double(fabsl((y[i] - r) / r)));
        }
        if (slot == 2)
            EXPECT_LE(worstRelative, limit[slot]) << row << " EP";
        else
            EXPECT_LE(worst, limit[slot]) << row << " slot " << slot;
    }
}

TEST(Elementary, EachLevelMeetsItsAccuracy) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    auto sqrtRef = [](long double x, long double) { return sqrtl(x); };
    auto invRef = [](long double x, long double) { return 1.0L / x; };
    auto rsqrtRef = [](long double x, long double) { return 1.0L / sqrtl(x); };
    auto divRef = [](long double x, long double y) { return x / y; };
    // LA and HA in ulps; EP as relative error: 11 correct bits in single, 26 in double.
    const Bound single{4, 0.5, 0x1p-11}, singleRsqrt{4, 0.5001, 0x1p-11};
    const Bound dbl{4, 0.5, 0x1p-26}, dblRsqrt{4, 1, 0x1p-26};
    CheckAccuracy<float>("sSqrt", sqrtRef, false, true, single);
    CheckAccuracy<float>("sInv", invRef, false, false, single);
    CheckAccuracy<float>("sInvSqrt", rsqrtRef, false, true, singleRsqrt);
    CheckAccuracy<float>("sDiv", divRef, true, false, single);
    CheckAccuracy<double>("dSqrt", sqrtRef, false, true, dbl);
    CheckAccuracy<double>("dInv", invRef, false, false, dbl);
    CheckAccuracy<double>("dInvSqrt", rsqrtRef, false, true, dblRsqrt);
    CheckAccuracy<double>("dDiv", divRef, true, false, dbl);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// The steps of the root and reciprocal bodies, written out one element at a time from
// the approximate instructions, against the kernels bit for bit: random inputs across
// each body's window, and the window's edges, outside of which the result is the
// correctly rounded one of the scalar routine.
namespace steps {

float Rcp(float x) {
    return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(x)));
}
float Rsqrt(float x) {
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(x)));
}

int BiasedExponent(double x) {
    return int((Bits(x) >> 52) & 0x7FF);
}
// 2^k for k in the normal range.
double Pow2(int k) {
    return __builtin_bit_cast(double, uint64_t(k + 1023) << 52);
}
// The significand cut to single's 23 bits, in [1, 2).
float SignificandOf(double x) {
    return __builtin_bit_cast(float, uint32_t((Bits(x) >> 29) & 0x7FFFFF) | 0x3F800000u);
}
// 1/x to 12 bits: the estimate of the significand, scaled by the exponent, x's sign.
double RecipSeed(double x) {
    return std::copysign(double(Rcp(SignificandOf(x))) * Pow2(1023 - BiasedExponent(x)), x);
}
// 1/sqrt(x) to 12 bits: x = m * 2^(2q), m in [0.5, 2) by the exponent's parity.
double RootSeed(double x) {
    int E = BiasedExponent(x);
    float m = SignificandOf(x) * ((E & 1) ? 1.0f : 0.5f);
    return double(Rsqrt(m)) * Pow2(511 - (E >> 1));
}

const double c1 = 0.49999999999997785, c2 = 0.37500000000001366, c3 = 0.31250016501874495,
             c4 = 0.27343754675366555;

double DInv(double x, int slot) {
    if (slot == 1) return 1.0 / x;
    double r = RecipSeed(x);
    double e = 1.0 - x * r;
    double t = e * e;
    double s = e + t;
    if (slot == 0) s = s + s * t;
    return r + r * s;
}
double DDiv(double a, double b, int slot) {
    return slot == 1 ? a / b : a * DInv(b, slot);
}

double DSqrt(double x, int slot) {
    if (slot == 2) {
        double r = RootSeed(x);
        double g = x * r;
        double e = 1.0 - g * r;
        return g + (g * e) * (c1 + e * c2);
    }
    double r = double(Rsqrt(float(x)));
    double g = x * r;
    double e = 1.0 - g * r;
    double y = g + (g * e) * (c1 + e * (c2 + e * (c3 + e * c4)));
    if (slot == 0) return y;
    double hi = y * y, lo = std::fma(y, y, -hi);
    double d = (x - hi) - lo;
    return y + d * (r * (0.5 + 0.25 * e));
}

template <class T>
T Goldschmidt(T x, T r, int steps) {
    T g = x * r, h = T(0.5) * r;
    T e = T(0.5) - g * h;
    for (int k = 1; k < steps; ++k) {
        T g1 = g + g * e;
        h = h + h * e;
        g = g1;
        e = T(0.5) - g * h;
    }
    return g + g * e;
}
float SSqrt(float x, int slot) {
    float r = Rsqrt(x);
    if (slot == 2) return x * r;
    if (slot == 0) return Goldschmidt(x, r, 1);
    return float(Goldschmidt(double(x), double(r), 2));
}

template <class T>
T Newton(T x, T r) {
    return (T(-0.5) * r) * (x * r * r - T(3));
}
float SInvSqrt(float x, int slot) {
    float r = Rsqrt(x);
    if (slot == 2) return r;
    if (slot == 0) return Newton(x, r);
    return float(Newton(double(x), Newton(double(x), double(r))));
}

float SDiv(float a, float b, int slot) {
    if (slot == 1) return a / b;
    float r = Rcp(b);
    if (slot == 0) r = r * (2.0f - b * r);
    return a * r;
}

// The single Sqrt and InvSqrt scalar routines for a positive finite x: x in double (a
// denormal times 2^200), M = m * 2^p for m in [1, 2) and p the exponent's parity, the
// seed r = 1/sqrt((1 + i/256) * 2^p) at m's top eight bits i (through long double, which
// rounds all 512 seeds as the table has them); g = M*r, h = r/2 and three Goldschmidt
// steps; the root g * 2^q, the reciprocal root 2h * 2^-q.
struct RootParts {
    double g, h;
    int q;
};
RootParts SingleRootSteps(float x) {
    double xd = x;
    int scale = 0;
    if (x < FLT_MIN) xd *= 0x1p200, scale = -100;
    int e = BiasedExponent(xd) - 1023, p = e & 1;
    double m =
        __builtin_bit_cast(double, (Bits(xd) & 0x000FFFFFFFFFFFFFull) | 0x3FF0000000000000ull);
    int i = int((Bits(xd) >> 44) & 0xFF);
    double r = double(1.0L / sqrtl((256.0L + i) / 256.0L * (p ? 2 : 1)));
    double mm = m * (p ? 2.0 : 1.0), g = mm * r, h = 0.5 * r;
    for (int k = 0; k < 3; ++k) {
        double d = 0.5 - g * h;
        g = g + g * d;
        h = h + h * d;
    }
    return {g, h, (e - p) / 2 + scale};
}
float SSqrtScalar(float x) {
    RootParts s = SingleRootSteps(x);
    return float(s.g * Pow2(s.q));
}
float SInvSqrtScalar(float x) {
    RootParts s = SingleRootSteps(x);
    return float(2 * s.h * Pow2(-s.q));
}

// Uniform bit patterns of magnitude in [lo, hi), of either sign where asked.
template <class T>
std::vector<T> Window(int n, T lo, T hi, bool signs, uint32_t seed) {
    std::mt19937_64 g(seed);
    auto bl = Bits(lo), bh = Bits(hi);
    std::vector<T> v(n);
    for (T& x : v) {
        auto b = decltype(bl)(bl + g() % (bh - bl));
        x = __builtin_bit_cast(T, b);
        if (signs && (g() & 1)) x = -x;
    }
    return v;
}

template <class T>
void ExpectUnarySteps(const char* row, int slot, const std::vector<T>& in, T (*steps)(T, int),
                      T (*exact)(T)) {
    std::vector<T> y(in.size());
    As<Unary<T>>(Slot(row, slot))(int(in.size()), in.data(), y.data());
    ExpectEachElement(std::string(row) + " slot " + std::to_string(slot), in, y,
                      [&](T v) { return exact ? exact(v) : steps(v, slot); });
}

} // namespace steps

TEST(ElementarySteps, DoubleReciprocalAndQuotientChains) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    // The seed's window: |x| from the least normal to below 2^1022.
    std::vector<double> x = steps::Window<double>(300000, DBL_MIN, 0x1p1022, true, 21);
    for (double v : {DBL_MIN, 1.0, 3.0, 0x1.fffffffffffffp+1021, 0x1.0000000000001p-1022})
        x.push_back(v), x.push_back(-v);
    for (int slot = 0; slot < 3; ++slot)
        steps::ExpectUnarySteps<double>("dInv", slot, x, steps::DInv, nullptr);
    // Outside it, the division.
    std::vector<double> out = {0x1p1022, -0x1p1022, DBL_MAX, std::nextafter(DBL_MIN, 0.0), 5e-324};
    for (int slot = 0; slot < 3; ++slot)
        steps::ExpectUnarySteps<double>("dInv", slot, out, nullptr, [](double v) { return 1 / v; });
    // Quotients: a and b both in the window, a times the reciprocal; either outside,
    // the division (the quotient near overflow or underflow included).
    const int n = 200000;
    std::vector<double> a = steps::Window<double>(n, 0x1p-500, 0x1p500, true, 22);
    std::vector<double> b = steps::Window<double>(n, 0x1p-500, 0x1p500, true, 23);
    const double ea[] = {0x1.8p1022, 3.0, 0x1p-1030, 3.0, 0x1p1021, 0x1p-1021, DBL_MIN};
    const double eb[] = {3.0, 0x1.8p1022, 3.0, 0x1p-1030, 0x1p-1, 0x1p1, 0x1.fffffffffffffp1021};
    a.insert(a.end(), std::begin(ea), std::end(ea));
    b.insert(b.end(), std::begin(eb), std::end(eb));
    std::vector<double> y(a.size());
    for (int slot = 0; slot < 3; ++slot) {
        As<Binary<double>>(Slot("dDiv", slot))(int(a.size()), a.data(), b.data(), y.data());
        for (size_t i = 0; i < a.size(); ++i) {
            bool inside = std::fabs(a[i]) >= DBL_MIN && std::fabs(a[i]) < 0x1p1022 &&
                          std::fabs(b[i]) >= DBL_MIN && std::fabs(b[i]) < 0x1p1022;
            double want = inside ? steps::DDiv(a[i], b[i], slot) : a[i] / b[i];
            ASSERT_TRUE(SameValue(y[i], want)) << "dDiv slot " << slot << " of " << a[i] << ", "
                                               << b[i] << ": " << y[i] << ", want " << want;
        }
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(ElementarySteps, SingleQuotientTestsBothOperands) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    const int n = 200000;
    std::vector<float> a = steps::Window<float>(n, FLT_MIN, 0x1p126f, true, 24);
    std::vector<float> b = steps::Window<float>(n, FLT_MIN, 0x1p126f, true, 25);
    // a outside its window with b inside: the true quotient, also where a*rcp(b) would
    // overflow or come out denormal; a inside with the quotient beyond the range: the
    // product as it rounds.
    const float ea[] = {0x1.8p126f, 0x1p-127f, 0.0f, -0.0f, 0x1.fffffep125f, 0x1p-125f, 3.0f};
    const float eb[] = {0x1p1f, 0x1p-1f, 3.0f, 3.0f, 0x1p-2f, 0x1p2f, 3.0f};
    a.insert(a.end(), std::begin(ea), std::end(ea));
    b.insert(b.end(), std::begin(eb), std::end(eb));
    std::vector<float> y(a.size());
    for (int slot = 0; slot < 3; ++slot) {
        As<Binary<float>>(Slot("sDiv", slot))(int(a.size()), a.data(), b.data(), y.data());
        for (size_t i = 0; i < a.size(); ++i) {
            bool inside = std::fabs(a[i]) >= FLT_MIN && std::fabs(a[i]) < 0x1p126f;
            float want = inside ? steps::SDiv(a[i], b[i], slot) : a[i] / b[i];
            ASSERT_TRUE(SameValue(y[i], want)) << "sDiv slot " << slot << " of " << a[i] << ", "
                                               << b[i] << ": " << y[i] << ", want " << want;
        }
    }
    // EP of 1 by 3: the estimate's product, not the nearest single to 1/3.
    float one = 1, three = 3, q;
    As<Binary<float>>(Slot("sDiv", 2))(1, &one, &three, &q);
    EXPECT_NE(q, 1.0f / 3.0f);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(ElementarySteps, RootChains) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    auto sqrtd = [](double v) { return std::sqrt(v); };
    // dSqrt LA and HA: x narrowed to single, so from 2^-126 to below 2^127.
    std::vector<double> narrow = steps::Window<double>(300000, 0x1p-126, 0x1p127, false, 26);
    for (double v : {0x1p-126, 0x1.fffffffffffffp126, 1.0, 2.0, 0x1.fffffffp-1})
        narrow.push_back(v);
    // EP: every positive normal.
    std::vector<double> all = steps::Window<double>(300000, DBL_MIN, DBL_MAX, false, 27);
    for (double v : {DBL_MIN, DBL_MAX, 0x1p-1021, 0x1p1023, 1.0})
        all.push_back(v);
    for (int slot : {0, 1})
        steps::ExpectUnarySteps<double>("dSqrt", slot, narrow, steps::DSqrt, nullptr);
    steps::ExpectUnarySteps<double>("dSqrt", 2, all, steps::DSqrt, nullptr);
    const std::vector<double> beyond = {std::nextafter(0x1p-126, 0.0), 0x1p127, 0x1p200, 1e-300};
    for (int slot : {0, 1})
        steps::ExpectUnarySteps<double>("dSqrt", slot, beyond, nullptr, +sqrtd);
    // The single bodies on every positive normal below the last few.
    std::vector<float> xs = steps::Window<float>(300000, FLT_MIN, 0x1.ffe000p127f, false, 28);
    for (float v : {FLT_MIN, 1.0f, 2.0f, 4.0f, 0x1.ffdffep127f})
        xs.push_back(v);
    for (int slot = 0; slot < 3; ++slot) {
        steps::ExpectUnarySteps<float>("sSqrt", slot, xs, steps::SSqrt, nullptr);
        steps::ExpectUnarySteps<float>("sInvSqrt", slot, xs, steps::SInvSqrt, nullptr);
    }
    // EP of 4 is the estimate's product, in a call of one element too.
    EXPECT_EQ(CallUnary(As<Unary<float>>(Slot("sSqrt", 2)), 4.0f), steps::SSqrt(4.0f, 2));
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(ElementarySteps, SingleRootScalarRoutines) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    // Every 13th positive denormal and every value above the bodies' windows: the
    // routine's steps bit for bit and the correctly rounded root and reciprocal root, at
    // every level (the routines are the same for all three).
    std::vector<float> x;
    for (uint32_t b = 1; b < 0x00800000u; b += 13)
        x.push_back(__builtin_bit_cast(float, b));
    for (uint32_t b = 0x7F7FF002u; b < 0x7F800000u; ++b)
        x.push_back(__builtin_bit_cast(float, b));
    std::vector<float> y(x.size());
    for (int slot = 0; slot < 3; ++slot) {
        As<Unary<float>>(Slot("sSqrt", slot))(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            ASSERT_EQ(Bits(y[i]), Bits(steps::SSqrtScalar(x[i])))
                << "sSqrt slot " << slot << " of " << x[i];
            ASSERT_EQ(y[i], float(std::sqrt(double(x[i]))))
                << "sSqrt slot " << slot << " of " << x[i];
        }
        As<Unary<float>>(Slot("sInvSqrt", slot))(int(x.size()), x.data(), y.data());
        for (size_t i = 0; i < x.size(); ++i) {
            ASSERT_EQ(Bits(y[i]), Bits(steps::SInvSqrtScalar(x[i])))
                << "sInvSqrt slot " << slot << " of " << x[i];
            ASSERT_EQ(y[i], float(1.0L / sqrtl(x[i])))
                << "sInvSqrt slot " << slot << " of " << x[i];
        }
    }
    // One element a call, the status too: the smallest denormal, the largest, the top.
    for (float v : {FLT_TRUE_MIN, std::nextafter(FLT_MIN, 0.0f), FLT_MAX}) {
        int st = -1;
        EXPECT_EQ(CallUnary(As<Unary<float>>(Slot("sSqrt", 1)), v, &st), steps::SSqrtScalar(v));
        EXPECT_EQ(st, 0);
        EXPECT_EQ(CallUnary(As<Unary<float>>(Slot("sInvSqrt", 0)), v, &st),
                  steps::SInvSqrtScalar(v));
        EXPECT_EQ(st, 0);
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

} // namespace
} // namespace brenn::test
