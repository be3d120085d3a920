// Values of the elementary kernels: special inputs against the C library (bit for bit,
// NaN for NaN) at every level, statuses left by special inputs, exactness of the exact
// rows, and the accuracy of each level of Sqrt, Inv, InvSqrt and Div over random
// inputs across the whole range.
#include <cfloat>
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
        if (slot == 2) EXPECT_LE(worstRelative, limit[slot]) << row << " EP";
        else EXPECT_LE(worst, limit[slot]) << row << " slot " << slot;
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

} // namespace
} // namespace brenn::test
