// The single inverse trigonometric and hyperbolic bodies held to their steps: each body
// below is written out again as plain scalar code, operation by operation in the
// kernel's rounding order (the estimates by the same instructions on one lane), and the
// kernel must give the same bits on a few hundred thousand random inputs across its
// window and at the window's ends. A change of a constant, a step, a fold point or a
// window shows up here as a difference in the last bits, which an accuracy bound would
// let through.
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <string>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

constexpr int kLA = 0, kEP = 2;

float F(uint32_t b) {
    return __builtin_bit_cast(float, b);
}
float Rcp(float v) {
    return _mm_cvtss_f32(_mm_rcp_ss(_mm_set_ss(v)));
}
float Rsqrt(float v) {
    return _mm_cvtss_f32(_mm_rsqrt_ss(_mm_set_ss(v)));
}
float WithSignOf(float v, float x) {
    return F(Bits(v) | (Bits(x) & 0x80000000u));
}
float XorSign(float v, float x) {
    return F(Bits(v) ^ (Bits(x) & 0x80000000u));
}

// Random floats uniform in [lo, hi), both signs where `bothSigns`, then the listed edges.
std::vector<float> Inputs(float lo, float hi, bool bothSigns, std::vector<float> edges,
                          int n = 300000, unsigned seed = 7) {
    std::mt19937 gen(seed);
    std::uniform_real_distribution<float> u(lo, hi);
    std::vector<float> x;
    for (int i = 0; i < n; ++i) {
        float v = u(gen);
        x.push_back(bothSigns && (gen() & 1) ? -v : v);
    }
    x.insert(x.end(), edges.begin(), edges.end());
    return x;
}

// Every element of the kernel's one long call equals the transcription's value, bit for
// bit, and the call reports nothing.
template <class Fn>
void ExpectSteps(const std::string& row, int slot, const std::vector<float>& x, Fn steps) {
    std::vector<float> y(x.size());
    brenn_zar_kernel_SetErrStatus(0);
    As<Unary<float>>(Slot(row, slot))(int(x.size()), x.data(), y.data());
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << row << " slot " << slot;
    ExpectEachElement(row + " slot " + std::to_string(slot), x, y, steps);
}

// ---- Atan ----

// EP: t = a up to 1, else the estimate of 1/a with the sign bit set; P in two halves.
float AtanEP(float x) {
    float a = std::fabs(x);
    bool big = Bits(a) > 0x3F800000u;
    float t = big ? F(Bits(Rcp(a)) | 0x80000000u) : a;
    float base = big ? F(0x3FC90FDBu) : 0.0f;
    float z = t * t, z2 = z * z;
    float p = (F(0x3CBEDCD4u) * z2 + F(0x3E3D1CD1u)) * z2 + F(0x3F7FFDE4u) +
              z * (F(0xBDBA3A94u) * z2 + F(0xBEA9C8F7u));
    return WithSignOf(t * p + base, x);
}

// LA: the same fold with one Newton step on the estimate, r0*(r0*a - 2); infinities apart
// (pi/2); eight terms in two chains over z^2 and the leading 1.
float AtanLA(float x) {
    float a = std::fabs(x);
    bool big = Bits(a) > 0x3F800000u;
    float t = a;
    if (big) {
        float r0 = Rcp(a);
        t = Bits(a) == 0x7F800000u ? 0.0f : r0 * (r0 * a - 2.0f);
    }
    float base = big ? F(0x3FC90FDBu) : 0.0f;
    float z = t * t, z2 = z * z;
    float even = ((F(0x3B3AC537u) * z2 + F(0x3D2EDD4Eu)) * z2 + F(0x3DD9ED24u)) * z2 + F(0x3E4CB974u);
    float odd = ((F(0xBC83A25Cu) * z2 + F(0xBD99B01Eu)) * z2 + F(0xBE117200u)) * z2 + F(0xBEAAAA53u);
    float p = 1.0f + (z * odd + z2 * even);
    return WithSignOf(t * p + base, x);
}

const std::vector<float> kAtanEdges = {0.0f, -0.0f, 1.0f, -1.0f, F(0x3F800001u), F(0x00000001u),
                                       F(0x00800000u), 1e-20f, 1e20f, -3e30f, 0x1p126f,
                                       0x1.fffffep127f, -0x1.fffffep127f, INFINITY, -INFINITY};

TEST(InvHypSteps, AtanAsItsSteps) {
    for (auto [lo, hi] : {std::pair{0.0f, 1.0f}, {1.0f, 64.0f}, {64.0f, 1e30f}}) {
        std::vector<float> x = Inputs(lo, hi, true, kAtanEdges, 150000);
        ExpectSteps("sAtan", kEP, x, AtanEP);
        ExpectSteps("sAtan", kLA, x, AtanLA);
    }
    // The infinities give pi/2 with their sign at both levels, the NaN passes.
    for (int slot : {kLA, kEP}) {
        float y[3], in[3] = {INFINITY, -INFINITY, std::numeric_limits<float>::quiet_NaN()};
        As<Unary<float>>(Slot("sAtan", slot))(3, in, y);
        EXPECT_EQ(Bits(y[0]), 0x3FC90FDBu);
        EXPECT_EQ(Bits(y[1]), 0xBFC90FDBu);
        EXPECT_TRUE(std::isnan(y[2]));
    }
}

// ---- Cosh and Sinh LA: both exponentials in one body ----

template <bool kSinh>
float BothExpsLA(float x) {
    float a = std::fabs(x);
    const float shifter = F(0x4B400000u);
    float t = a * F(0x3FB8AA3Bu) + shifter;
    float n = t - shifter;
    float r = a - n * F(0x3F317000u) - n * F(0x3805FDF4u);
    uint32_t nf = Bits(t) << 23;
    float e1 = F(0x3F000000u + nf), e2 = F(0x3F000000u - nf);
    float r2 = r * r;
    float s = r + r * r2 * (0.16666542f + 0.00836667512f * r2);
    float c = r2 * (0.5f + r2 * (0.0416664556f + 0.00139357557f * r2));
    float p = e1 + e2, m = e1 - e2;
    if (kSinh) return WithSignOf(m + (c * m + p * s), x);
    return p + (c * p + m * s);
}

TEST(InvHypSteps, CoshSinhLAAsTheirSteps) {
    const float top = F(0x42AEAC4Du); // the last float of the window
    std::vector<float> edges = {0.0f, -0.0f, F(1), -F(1), F(0x00800000u), 1e-20f, 0.5f, 1.0f,
                                top, -top, 0.34657359f, 0.34657362f};
    for (auto [lo, hi] : {std::pair{0.0f, 1.0f}, {1.0f, 87.3365326f}}) {
        std::vector<float> x = Inputs(lo, hi, true, edges, 150000);
        ExpectSteps("sCosh", kLA, x, BothExpsLA<false>);
        ExpectSteps("sSinh", kLA, x, BothExpsLA<true>);
    }
    // From 87.3365326 (0x42AEAC4E) on the scalar routine: finite up to the overflow point,
    // rounded once from double (the body's own error would show beyond half an ulp),
    // infinity with status 3 beyond.
    for (const char* row : {"sCosh", "sSinh"}) {
        Unary<float> k = As<Unary<float>>(Slot(row, kLA));
        std::vector<float> band = Inputs(87.3365326f, 89.4159927f, false, {}, 20000);
        std::vector<float> yb(band.size());
        k(int(band.size()), band.data(), yb.data());
        double worst = 0;
        for (size_t i = 0; i < band.size(); ++i)
            worst = std::max(worst, UlpError(yb[i], std::cosh((long double)band[i])));
        EXPECT_LE(worst, 0.501) << row;
        for (float v : {F(0x42AEAC4Eu), 88.5f, 89.41f}) {
            int st;
            float y = CallUnary(k, v, &st);
            EXPECT_EQ(st, 0) << row << " " << v;
            EXPECT_LE(UlpError(y, std::cosh((long double)v)), 1.0) << row << " " << v;
        }
        int st;
        float y = CallUnary(k, -90.0f, &st);
        EXPECT_EQ(st, 3) << row;
        EXPECT_EQ(y, std::string(row) == "sCosh" ? INFINITY : -INFINITY) << row;
    }
}


// ---- Acos and Asin EP: one fold at 1/2 and three terms ----

template <bool kAcos>
float AngleEP(float x) {
    float a = std::fabs(x);
    float h = 0.5f * (-a) + 0.5f, q = a * a, w = std::fmin(q, h);
    bool fold = w >= h;
    float p = (F(0x3DC4C6AEu) * w + F(0x3E2876B2u)) * w + F(0x380561A3u);
    if (kAcos) {
        float u = XorSign(fold ? 2.0f * std::sqrt(h) : -a, x);
        float base = fold ? (x < w ? F(0x40490FDBu) : 0.0f) : F(0x3FC90FDBu);
        return base + (u + p * u);
    }
    float u = fold ? -2.0f * std::sqrt(h) : a;
    float base = fold ? F(0x3FC90FDBu) : 0.0f;
    return XorSign(base + (u + p * u), x);
}

TEST(InvHypSteps, AcosAsinEPAsTheirSteps) {
    std::vector<float> edges = {0.0f, -0.0f, 0.5f, -0.5f, F(0x3EFFFFFFu), F(0xBF000001u), 1.0f,
                                -1.0f, F(0x3F7FFFFFu), F(0xBF7FFFFFu), F(0x00000003u), 1e-30f};
    std::vector<float> x = Inputs(0.0f, 1.0f, true, edges);
    ExpectSteps("sAcos", kEP, x, AngleEP<true>);
    ExpectSteps("sAsin", kEP, x, AngleEP<false>);
}

// ---- Atan2 EP: the swap, one Newton step, Atan EP's polynomial ----

float Atan2EP(float a, float b) {
    float ay = std::fabs(a), ax = std::fabs(b);
    bool swap = ay > ax;
    float n = swap ? ax : ay, d = swap ? ay : ax;
    float r = Rcp(d);
    r = r * (2.0f - d * r);
    float t = n * r;
    if (swap != std::signbit(b)) t = -t;
    float base = swap ? F(0x3FC90FDBu) : (std::signbit(b) ? F(0x40490FDBu) : 0.0f);
    float z = t * t, z2 = z * z;
    float p = (F(0x3CBEDCD4u) * z2 + F(0x3E3D1CD1u)) * z2 + F(0x3F7FFDE4u) +
              z * (F(0xBDBA3A94u) * z2 + F(0xBEA9C8F7u));
    return WithSignOf(t * p + base, a);
}

TEST(InvHypSteps, Atan2EPAsItsSteps) {
    std::mt19937 gen(11);
    std::uniform_real_distribution<float> e(-124.0f, 122.0f);
    std::vector<float> a, b;
    for (int i = 0; i < 300000; ++i) {
        // Magnitudes log-uniform over the vector range, every quadrant, near-equal pairs.
        float va = std::exp2(e(gen)), vb = i % 8 == 0 ? va * 1.0000001f : std::exp2(e(gen));
        a.push_back(gen() & 1 ? -va : va);
        b.push_back(gen() & 1 ? -vb : vb);
    }
    for (float v : {1.0f, F(0x01000000u), F(0x7D000000u)})
        for (float w : {1.0f, -1.0f, F(0x01000000u), -F(0x7D000000u)}) a.push_back(v), b.push_back(w);
    std::vector<float> y(a.size());
    As<Binary<float>>(Slot("sAtan2", kEP))(int(a.size()), a.data(), b.data(), y.data());
    int bad = 0;
    for (size_t i = 0; i < a.size() && bad < 5; ++i)
        if (!SameValue(y[i], Atan2EP(a[i], b[i])))
            ++bad, ADD_FAILURE() << std::hexfloat << "sAtan2 EP (" << a[i] << ", " << b[i]
                                 << "): got " << y[i] << ", steps give " << Atan2EP(a[i], b[i]);
    // Outside [2^-125, 2^123] the scalar routine: its values, not the body's.
    float sa[4] = {0.0f, F(0x00FFFFFFu), 1.0f, F(0x7D000001u)}, sb[4] = {-1.0f, 1.0f, 0.0f, 1.0f};
    float sy[4];
    As<Binary<float>>(Slot("sAtan2", kEP))(4, sa, sb, sy);
    EXPECT_EQ(Bits(sy[0]), 0x40490FDBu); // atan2(0, -1) = pi
    EXPECT_EQ(sy[1], F(0x00FFFFFFu));   // the quotient itself
    EXPECT_EQ(Bits(sy[2]), 0x3FC90FDBu); // pi/2
    EXPECT_EQ(Bits(sy[3]), 0x3FC90FDBu);
}

// ---- Asinh, Acosh, Atanh EP ----

// e*ln2 + P(m), P of degree 4 with c0 first.
float LnByFields(float s, const float (&c)[5]) {
    uint32_t b = Bits(s);
    float e = float(int32_t(b >> 23) - 127);
    float m = F((b & 0x007FFFFFu) | 0x3F800000u);
    return e * F(0x3F317218u) + ((((c[4] * m + c[3]) * m + c[2]) * m + c[1]) * m + c[0]);
}
constexpr float kAsinhLn[] = {-0x1.d09788p0f, 0x1.841c2ep1f, -1.69454777f, 0.551397383f,
                              -0.0743431002f};
constexpr float kAcoshLn[] = {-0x1.d2e5c8p0f, 0x1.864decp1f, -0x1.b3fb2ep0f, 0x1.1a2934p-1f,
                              -0.0736413747f};

float AsinhEP(float x) {
    float a = std::fabs(x), q = a * a;
    float y;
    if (a <= F(0x3F99999Au)) {
        y = a + a * q * (-0.163027272f + q * (0.056370344f - 0.011921552f * q));
    } else if (Bits(a) > 0x5F7FFFFFu) {
        y = LnByFields(a, kAsinhLn) + F(0x3F317218u); // ln(2a): the square left out
    } else {
        float p = 1.0f + q;
        y = LnByFields(a + p * Rsqrt(p), kAsinhLn);
    }
    return WithSignOf(y, x);
}

float AcoshEP(float x) {
    if (x == 1.0f) return 0.0f; // outside the body's window: the scalar routine's value
    bool near = x < 1.5f;
    float u = near ? x - 1.0f : x * x - 1.0f;
    float r = Rsqrt(u), g = u * r;
    float s = -0.5f * g * (g * r - 3.0f);
    if (near) return s * (1.41419041f + u * (-0.116985172f + u * 0.0215848032f));
    return LnByFields(x + s, kAcoshLn);
}

float AtanhEP(float x) {
    float a = std::fabs(x), x2 = x * x;
    float y;
    if (x2 < 0.25f) {
        y = a + a * x2 * (0.327951103f + x2 * 0.263935477f);
    } else {
        float w = (1.0f + a) * Rcp(1.0f - a);
        uint32_t b = Bits(w);
        float e = float(int32_t(b >> 23) - 127);
        float f = F((b & 0x007FFFFFu) | 0x3F800000u) - 1.0f;
        y = e * 0.346573591f +
            f * (0.499970585f +
                 f * (-0.24844794f + f * (0.15290828f + f * (-0.0782667622f + f * 0.0204208214f))));
    }
    return WithSignOf(y, x);
}

TEST(InvHypSteps, InverseHyperbolicEPAsTheirSteps) {
    ExpectSteps("sAsinh", kEP,
                Inputs(0.0f, 1.5f, true, {0.0f, -0.0f, 1.2f, F(0x3F99999Au), F(0x3F99999Bu)}),
                AsinhEP);
    ExpectSteps("sAsinh", kEP,
                Inputs(1.5f, 1e30f, true,
                       {F(0x5F7FFFFFu), F(0x5F800000u), -F(0x5F800001u), 0x1.fffffep127f}),
                AsinhEP);
    std::vector<float> acoshEdges = {F(0x3F800001u), F(0x3FBFFFFFu), 1.5f, 0x1p63f, F(0x5F7FFFFFu)};
    ExpectSteps("sAcosh", kEP, Inputs(1.0f, 1.5f, false, acoshEdges), AcoshEP);
    ExpectSteps("sAcosh", kEP, Inputs(1.5f, 1e19f, false, {}), AcoshEP);
    ExpectSteps("sAtanh", kEP,
                Inputs(0.0f, 1.0f, true, {0.0f, -0.0f, 0.5f, -0.5f, F(0x3EFFFFFFu), F(0x3F7FFFFFu)}),
                AtanhEP);
    // The ends: acosh(1) = 0, below 1 NaN with status 1; atanh(+-1) = +-inf with status 2,
    // beyond NaN with status 1.
    int st;
    EXPECT_EQ(CallUnary(As<Unary<float>>(Slot("sAcosh", kEP)), 1.0f, &st), 0.0f);
    EXPECT_EQ(st, 0);
    EXPECT_TRUE(std::isnan(CallUnary(As<Unary<float>>(Slot("sAcosh", kEP)), 0.5f, &st)));
    EXPECT_EQ(st, 1);
    Unary<float> atanh = As<Unary<float>>(Slot("sAtanh", kEP));
    EXPECT_EQ(CallUnary(atanh, 1.0f, &st), INFINITY);
    EXPECT_EQ(st, 2);
    EXPECT_EQ(CallUnary(atanh, -1.0f, &st), -INFINITY);
    EXPECT_EQ(st, 2);
    EXPECT_TRUE(std::isnan(CallUnary(atanh, 1.5f, &st)));
    EXPECT_EQ(st, 1);
}

} // namespace
} // namespace brenn::test
