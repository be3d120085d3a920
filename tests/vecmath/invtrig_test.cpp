// The inverse trigonometric rows: values and statuses at the ends of the domain, the
// fold at 1/2 approached from both sides and the last ulps below 1, Atan2's special
// values in every quadrant and its huge and tiny ratios, the exact points of the
// pi-scaled rows, denormals, and no invalid flag for quiet NaN. References are the C
// library's long double functions, far more accurate than a double ulp.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>
#include <vector>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

constexpr int kSlots = 3; // LA, HA, EP
constexpr long double kPi = 3.14159265358979323846264338327950288L;

enum class Fn { Asin, Acos, Atan, Asinpi, Acospi, Atanpi };

long double Ref(Fn f, long double x) {
    switch (f) {
    case Fn::Asin:
        return asinl(x);
    case Fn::Acos:
        return acosl(x);
    case Fn::Atan:
        return atanl(x);
    case Fn::Asinpi:
        return asinl(x) / kPi;
    case Fn::Acospi:
        return acosl(x) / kPi;
    default:
        return atanl(x) / kPi;
    }
}

// Within the slot's bound: 1 ulp HA, 4 ulp LA, 11 or 26 correct bits EP (or, for
// results among the denormals, which have fewer bits, 1 ulp).
template <class T>
bool WithinLevel(int slot, T got, long double ref) {
    if (slot == 2) {
        if (fabsl(ref) < std::numeric_limits<T>::min() && UlpError(got, ref) <= 1) return true;
        long double rel = ref == 0 ? fabsl((long double)got) : fabsl((got - ref) / ref);
        return rel == 0 || -std::log2((double)rel) >= (sizeof(T) == 4 ? 11 : 26);
    }
    return UlpError(got, ref) <= (slot == 1 ? 1.0 : 4.0);
}

template <class T>
std::vector<T> Call2(const std::string& row, int slot, const std::vector<T>& a,
                     const std::vector<T>& b) {
    std::vector<T> y(a.size());
    As<Binary<T>>(Slot(row, slot))(int(a.size()), a.data(), b.data(), y.data());
    return y;
}

struct UnaryRow {
    const char* name;
    Fn fn;
};
const UnaryRow kUnary[] = {{"Asin", Fn::Asin},     {"Acos", Fn::Acos},     {"Atan", Fn::Atan},
                           {"Asinpi", Fn::Asinpi}, {"Acospi", Fn::Acospi}, {"Atanpi", Fn::Atanpi}};

template <class T>
void ExpectAccurate(const UnaryRow& r, const std::vector<T>& x) {
    const std::string row = (sizeof(T) == 4 ? "s" : "d") + std::string(r.name);
    for (int slot = 0; slot < kSlots; ++slot) {
        brenn_zar_kernel_SetErrStatus(0);
        std::vector<T> y = Call(row, slot, x);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row;
        int bad = 0;
        for (size_t i = 0; i < x.size() && bad < 5; ++i)
            if (!WithinLevel(slot, y[i], Ref(r.fn, x[i])))
                ++bad, ADD_FAILURE() << row << " slot " << slot << " x " << std::hexfloat << x[i]
                                     << " got " << y[i];
    }
}

// The last thousand ulps below 1 and around the fold at 1/2 on both sides, of both
// signs, denormals, and random points over the whole line for Atan.
template <class T>
std::vector<T> Band() {
    std::vector<T> x;
    for (T c : {T(1), T(0.5)})
        for (int k = -1000; k <= 1000; ++k) {
            T v = c;
            for (int j = 0; j < std::abs(k); ++j)
                v = std::nextafter(v, k < 0 ? T(0) : T(2));
            if (v <= 1) x.insert(x.end(), {v, -v});
        }
    for (T d : {std::numeric_limits<T>::denorm_min(), std::numeric_limits<T>::min() / 3})
        x.insert(x.end(), {d, -d});
    return x;
}

TEST(InvTrig, FoldAndEndsWithinBound) {
    std::vector<float> xs = Band<float>();
    std::vector<double> xd = Band<double>();
    for (const UnaryRow& r : kUnary) {
        ExpectAccurate(r, xs);
        ExpectAccurate(r, xd);
    }
}

// Asin is increasing: no step back where the fold changes the formula.
TEST(InvTrig, AsinMonotonicAcrossFold) {
    std::vector<float> x;
    for (float v = 0.4999f; v < 0.5001f; v = std::nextafter(v, 1.0f))
        x.push_back(v);
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<float> y = Call("sAsin", slot, x);
        for (size_t i = 1; i < y.size(); ++i)
            ASSERT_LE(y[i - 1], y[i]) << "slot " << slot << " x " << x[i];
    }
}

// Single HA Asin and Acos hold their exact head (base less the root's 11-bit head) and
// their small terms to about 0.62 ulp: every float of the first 2^14 above 1/2 and the
// last 2^14 below 1, where the fold's cancellation and the root's smallest values are,
// and every 16th float of [1/4, 1], of both signs (exhaustive over [1/4, 1]: 0.619
// and 0.610). A dropped term (the base's tail, the root's rest, its share of the series)
// costs a tenth of an ulp or more.
TEST(InvTrig, SingleHAWithinSixTenthsOfAnUlp) {
    std::vector<float> x;
    auto add = [&x](float v) { x.insert(x.end(), {v, -v}); };
    float v = 0.5f;
    for (int k = 0; k < (1 << 14); ++k, v = std::nextafter(v, 1.0f))
        add(v);
    v = 1.0f;
    for (int k = 0; k < (1 << 14); ++k, v = std::nextafter(v, 0.0f))
        add(v);
    for (uint32_t b = Bits(0.25f); b <= Bits(1.0f); b += 16)
        add(__builtin_bit_cast(float, b));
    for (const UnaryRow& r : {kUnary[0], kUnary[1]}) {
        std::vector<float> y = Call("s" + std::string(r.name), 1, x);
        double worst = 0;
        float at = 0;
        for (size_t i = 0; i < x.size(); ++i) {
            double e = UlpError(y[i], Ref(r.fn, x[i]));
            if (e > worst) worst = e, at = x[i];
        }
        EXPECT_LE(worst, 0.62) << r.name << " at " << std::hexfloat << at;
    }
}

template <class T>
void AtanLine(std::mt19937& gen) {
    std::vector<T> x;
    std::uniform_real_distribution<double> e(sizeof(T) == 4 ? -149 : -1074,
                                             sizeof(T) == 4 ? 127 : 1023);
    for (int i = 0; i < 4000; ++i)
        x.push_back(T(std::ldexp(i % 2 ? -1.0 : 1.0, int(e(gen)))) * T(1 + (i % 97) / 97.0));
    ExpectAccurate(kUnary[2], x);
    ExpectAccurate(kUnary[5], x);
}

TEST(InvTrig, AtanOverEveryExponent) {
    std::mt19937 gen(5);
    AtanLine<float>(gen);
    AtanLine<double>(gen);
}

// Statuses and values at the ends: |x| > 1 and infinities NaN with status 1, NaN with
// none; +-1 exact; Atan of infinity +-pi/2 (a half in half-turns) without any status;
// no divide-by-zero flag.
template <class T>
void Ends() {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T pi = T(kPi), snan = std::numeric_limits<T>::signaling_NaN();
    const char* t = sizeof(T) == 4 ? "s" : "d";
    struct Case {
        const char* fn;
        T x, y;
        int status;
    };
    const Case cases[] = {
        {"Acos", T(1), T(0), 0},        {"Acos", T(-1), pi, 0},
        {"Acos", T(1.5), nan, 1},       {"Acos", inf, nan, 1},
        {"Acos", -inf, nan, 1},         {"Acos", nan, nan, 0},
        {"Acos", snan, nan, 0},         {"Asin", T(-1), -pi / 2, 0},
        {"Asin", T(-0.0), T(-0.0), 0},  {"Asin", T(-1.0000001), nan, 1},
        {"Acospi", T(-1), T(1), 0},     {"Acospi", T(1), T(0), 0},
        {"Asinpi", T(1), T(0.5), 0},    {"Asinpi", T(-2), nan, 1},
        {"Atan", inf, pi / 2, 0},       {"Atan", -inf, -pi / 2, 0},
        {"Atan", T(-0.0), T(-0.0), 0},  {"Atan", nan, nan, 0},
        {"Atanpi", -inf, T(-0.5), 0},   {"Atanpi", T(1), T(0.25), 0},
        {"Atanpi", T(-1), T(-0.25), 0},
    };
    for (const Case& c : cases)
        for (int slot = 0; slot < kSlots; ++slot) {
            brenn_zar_kernel_SetErrStatus(0);
            CsrScope csr(0x1F80);
            std::vector<T> y = Call(std::string(t) + c.fn, slot, std::vector<T>{T(0.25), c.x});
            // Single EP's own series on [0, 1] is not exact at 1.
            bool ep = slot == 2 && sizeof(T) == 4 && std::string(c.fn) == "Atanpi";
            EXPECT_TRUE(ep ? WithinLevel(slot, y[1], (long double)c.y) : SameValue(y[1], c.y))
                << t << c.fn << " slot " << slot << " x " << c.x << " got " << y[1] << " want "
                << c.y;
            EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), c.status) << t << c.fn << " " << c.x;
            // Invalid is raised by the domain errors and signalling NaN, never by a quiet NaN.
            if (std::isnan(c.x) && Bits(c.x) == Bits(nan))
                EXPECT_FALSE(_mm_getcsr() & 1) << t << c.fn << " slot " << slot;
            // No case divides by zero (Atan's -1/|x| must not run on a zero).
            EXPECT_FALSE(_mm_getcsr() & 4) << t << c.fn << " slot " << slot << " x " << c.x;
        }
}

TEST(InvTrig, EndsAndStatuses) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    Ends<float>();
    Ends<double>();
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

std::vector<std::pair<int, int>> reports;
int Record(ErrorRecord* r) {
    reports.push_back({r->index, r->code});
    r->r1 = 7.0;
    return 0;
}

// Every special lane of a long vector, in place: each domain error reported once, in
// element order, its value patched by the callback; NaN passes without a report.
TEST(InvTrig, ReportsInOrderInPlace) {
    for (const char* row : {"sAcos", "dAsin", "sAsinpi", "dAcospi"}) {
        const bool single = row[0] == 's';
        for (int slot = 0; slot < kSlots; ++slot) {
            std::vector<double> x(37);
            for (int i = 0; i < 37; ++i)
                x[i] = std::sin(i) * 0.999;
            x[3] = INFINITY, x[8] = 1.5, x[9] = NAN, x[17] = -INFINITY, x[30] = -1.0000001;
            brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_CALLBACK);
            brenn_zar_kernel_SetErrorCallBack(Record);
            brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
            reports.clear();
            std::vector<float> xf(x.begin(), x.end());
            if (single)
                As<Unary<float>>(Slot(row, slot))(37, xf.data(), xf.data());
            else
                As<Unary<double>>(Slot(row, slot))(37, x.data(), x.data());
            const std::vector<std::pair<int, int>> want = {{3, 1}, {8, 1}, {17, 1}, {30, 1}};
            EXPECT_EQ(reports, want) << row << " slot " << slot;
            for (int i : {3, 8, 17, 30})
                EXPECT_EQ(single ? double(xf[i]) : x[i], 7.0) << row << " element " << i;
            EXPECT_TRUE(std::isnan(single ? xf[9] : x[9])) << row;
            brenn_zar_kernel_ClearErrorCallBack();
        }
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// HA rounds the exact points of the pi-scaled rows correctly: Asinpi(1/2) = 1/6.
TEST(InvTrig, PiScaledExactPoints) {
    EXPECT_EQ(Call("sAsinpi", 1, std::vector<float>{0.5f})[0], float(1.0L / 6));
    EXPECT_EQ(Call("dAsinpi", 1, std::vector<double>{0.5})[0], double(1.0L / 6));
    EXPECT_EQ(Call("dAcospi", 1, std::vector<double>{0.5})[0], double(1.0L / 3));
    EXPECT_EQ(Call("dAcospi", 1, std::vector<double>{-0.5})[0], double(2.0L / 3));
}

// C99 Annex F: atan2 of signed zeros and infinities in every quadrant, exactly, with no
// status; in half-turns the same angles over pi.
template <class T>
void Atan2Specials(bool half) {
    const T inf = std::numeric_limits<T>::infinity(), z = 0;
    const T p = half ? T(1) : T(kPi), q = half ? T(0.5) : T(kPi / 2);
    const T p4 = half ? T(0.25) : T(kPi / 4), p34 = half ? T(0.75) : T(3 * kPi / 4);
    const std::vector<std::array<T, 3>> cases = {
        {z, z, z},        {-z, z, -z},         {z, -z, p},      {-z, -z, -p},
        {z, T(-3), p},    {-z, T(-3), -p},     {z, T(3), z},    {-z, T(3), -z},
        {T(-2), z, -q},   {T(2), -z, q},       {T(5), -inf, p}, {T(-5), -inf, -p},
        {T(5), inf, z},   {T(-5), inf, -z},    {inf, T(-7), q}, {-inf, T(7), -q},
        {inf, -inf, p34}, {-inf, -inf, -p34},  {inf, inf, p4},  {-inf, inf, -p4},
        {T(1), T(1), p4}, {T(-1), T(-1), -p34}};
    const std::string row = std::string(sizeof(T) == 4 ? "s" : "d") + (half ? "Atan2pi" : "Atan2");
    std::vector<T> a, b;
    for (const auto& c : cases)
        a.push_back(c[0]), b.push_back(c[1]);
    for (int slot = 0; slot < kSlots; ++slot) {
        brenn_zar_kernel_SetErrStatus(0);
        CsrScope csr(0x1F80);
        std::vector<T> y = Call2(row, slot, a, b);
        for (size_t i = 0; i < cases.size(); ++i)
            EXPECT_TRUE(SameValue(y[i], cases[i][2]) || (slot != 1 && i >= 20))
                << row << " slot " << slot << " (" << a[i] << ", " << b[i] << ") got " << y[i];
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row;
        EXPECT_FALSE(_mm_getcsr() & 1) << row << " slot " << slot;
        T nan = std::numeric_limits<T>::quiet_NaN();
        std::vector<T> yn = Call2(row, slot, std::vector<T>{nan, T(1), nan}, {T(1), nan, inf});
        for (T v : yn)
            EXPECT_TRUE(std::isnan(v)) << row;
        EXPECT_FALSE(_mm_getcsr() & 1) << row << " quiet NaN, slot " << slot;
    }
}

// Special lanes among ordinary ones in the main rounds (the single bodies take a and b as
// they are and quiet the special lanes): no invalid, divide-by-zero or overflow flag,
// the ordinary lanes within the level.
template <class T>
void Atan2SpecialLanesSilent(bool half) {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    const T odd[] = {0, -inf, nan, inf, T(-0.0), std::numeric_limits<T>::denorm_min()};
    std::vector<T> a, b;
    for (int i = 0; i < 48; ++i) {
        a.push_back(i % 5 == 1 ? odd[i % 6] : T(0.37 * (i - 20)));
        b.push_back(i % 7 == 2 ? odd[(i + 3) % 6] : T(1.5 - 0.11 * i));
    }
    const std::string row = std::string(sizeof(T) == 4 ? "s" : "d") + (half ? "Atan2pi" : "Atan2");
    for (int slot = 0; slot < kSlots; ++slot) {
        CsrScope csr(0x1F80);
        std::vector<T> y = Call2(row, slot, a, b);
        EXPECT_FALSE(_mm_getcsr() & 0xD) << row << " slot " << slot;
        for (size_t i = 0; i < a.size(); ++i) {
            if (!std::isfinite(a[i]) || !std::isfinite(b[i]) || a[i] == 0 || b[i] == 0) continue;
            long double ref = atan2l(a[i], b[i]) / (half ? kPi : 1);
            EXPECT_TRUE(WithinLevel(slot, y[i], ref)) << row << " slot " << slot << " " << i;
        }
    }
}

TEST(InvTrig, Atan2SpecialLanesSilentInRounds) {
    for (bool half : {false, true}) {
        Atan2SpecialLanesSilent<float>(half);
        Atan2SpecialLanesSilent<double>(half);
    }
}

TEST(InvTrig, Atan2SpecialValues) {
    for (bool half : {false, true}) {
        Atan2Specials<float>(half);
        Atan2Specials<double>(half);
    }
}

// Atan2 and Atan2pi with a NaN on either side give the first argument's NaN where it has
// one, else the second's, quieted, and raise invalid only for a signalling one, at every
// slot and whatever the kernel's inlining does to the order of the scalar routine's sum;
// in a round, beside ordinary lanes.
TEST(InvTrig, Atan2NaNOfTheFirstArgument) {
    auto nanOf = [](uint64_t bits) { return __builtin_bit_cast(double, bits); };
    const double qa = nanOf(0x7FF8000000000A11ull), qb = nanOf(0xFFF8000000000B22ull);
    const double sb = nanOf(0x7FF0000000000B33ull);
    struct Case {
        double a, b;
        uint64_t want;
        bool invalid;
    };
    const Case cases[] = {{qa, qb, 0x7FF8000000000A11ull, false},
                          {qb, qa, 0xFFF8000000000B22ull, false},
                          {2.0, qb, 0xFFF8000000000B22ull, false},
                          {qa, -3.0, 0x7FF8000000000A11ull, false},
                          {qa, sb, 0x7FF8000000000A11ull, true},
                          {sb, 1.0, 0x7FF8000000000B33ull, true}};
    for (const char* row : {"dAtan2", "dAtan2pi"})
        for (const Case& c : cases)
            for (int slot = 0; slot < kSlots; ++slot) {
                std::vector<double> a(20, 0.75), b(20, -1.25);
                a[9] = c.a, b[9] = c.b;
                CsrScope csr(0x1F80);
                std::vector<double> y = Call2(row, slot, a, b);
                EXPECT_EQ(Bits(y[9]), c.want)
                    << row << " slot " << slot << " " << std::hexfloat << c.a << " " << c.b;
                EXPECT_EQ((_mm_getcsr() & 1) != 0, c.invalid) << row << " slot " << slot;
            }
    // Single, in rounds of sixteen: a's NaN quieted where both are NaN.
    auto nanOfS = [](uint32_t bits) { return __builtin_bit_cast(float, bits); };
    for (const char* row : {"sAtan2", "sAtan2pi"})
        for (int slot = 0; slot < kSlots; ++slot)
            for (int at : {0, 5, 15}) {
                std::vector<float> a(32, 0.75f), b(32, -1.25f);
                a[at] = nanOfS(0x7FC00A11u), b[at] = nanOfS(0xFFC00B22u);
                a[at + 16] = nanOfS(0xFFA00A11u), b[at + 16] = nanOfS(0x7FC00B22u);
                std::vector<float> y = Call2(row, slot, a, b);
                EXPECT_EQ(Bits(y[at]), 0x7FC00A11u) << row << " slot " << slot << " " << at;
                EXPECT_EQ(Bits(y[at + 16]), 0xFFE00A11u) << row << " slot " << slot << " " << at;
            }
}

// Pairs of every sign and exponent, so huge and tiny ratios, denormals and the vector
// range's edges in all four quadrants.
template <class T>
void Atan2Line(bool half, std::mt19937& gen) {
    const int lo = sizeof(T) == 4 ? -149 : -1074, hi = sizeof(T) == 4 ? 127 : 1023;
    std::uniform_int_distribution<int> e(lo, hi);
    std::uniform_real_distribution<double> m(1, 2);
    std::vector<T> a, b;
    for (int i = 0; i < 6000; ++i) {
        a.push_back(T(std::ldexp((i & 1 ? -1 : 1) * m(gen), e(gen))));
        b.push_back(T(std::ldexp((i & 2 ? -1 : 1) * m(gen), i % 3 ? e(gen) : ilogb(a.back()))));
    }
    const std::string row = std::string(sizeof(T) == 4 ? "s" : "d") + (half ? "Atan2pi" : "Atan2");
    for (int slot = 0; slot < kSlots; ++slot) {
        std::vector<T> y = Call2(row, slot, a, b);
        int bad = 0;
        for (size_t i = 0; i < a.size() && bad < 5; ++i) {
            long double ref = atan2l(a[i], b[i]) / (half ? kPi : 1);
            if (!WithinLevel(slot, y[i], ref))
                ++bad, ADD_FAILURE() << row << " slot " << slot << std::hexfloat << " a " << a[i]
                                     << " b " << b[i] << " got " << y[i];
        }
    }
}

TEST(InvTrig, Atan2AllQuadrantsHugeAndTinyRatios) {
    std::mt19937 gen(11);
    for (bool half : {false, true}) {
        Atan2Line<float>(half, gen);
        Atan2Line<double>(half, gen);
    }
}

} // namespace
} // namespace brenn::test
