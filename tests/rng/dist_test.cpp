// The distribution frame and the generators that are nothing but the frame:
// uniforms with and without the clamp, integer uniforms, raw bits by family,
// Bernoulli; the guard, error mode and bracket restoring the caller's settings on
// every path, the sentinel values, and the affine post-pass in all its shapes.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "frame/fpenv.h"
#include "rng/dist/frame.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::rng;
using namespace brenn::test;

// ---- Caller settings --------------------------------------------------------------

struct Settings {
    uint32_t mode;
    ErrorCallback callback;
    uint16_t cw;
    uint32_t csr;
};

Settings Read() {
    return {brenn_zar_kernel_GetMode(), brenn_zar_kernel_GetErrorCallBack(),
            brenn::frame::ReadX87ControlWord(), brenn::frame::ReadCsr()};
}

// Entries without a guard do plain arithmetic in the caller's environment, which
// may raise the inexact flag like any arithmetic; the controls must not move.
void ExpectSame(const Settings& a, const Settings& b, uint32_t csrMask = 0xFFFFFFFF) {
    EXPECT_EQ(a.mode, b.mode);
    EXPECT_EQ(a.callback, b.callback);
    EXPECT_EQ(a.cw, b.cw);
    EXPECT_EQ(a.csr & csrMask, b.csr & csrMask);
}

int CallerCallback(ErrorRecord*) {
    return 1;
}

// A caller with unusual settings: some exceptions unmasked, round toward zero,
// a pending flag, a callback, a trap bit and the flush mode.
Settings Unusual() {
    brenn_zar_kernel_SetMode(BRENN_MODE_LA | BRENN_MODE_ERRMODE_STDERR | BRENN_MODE_FTZDAZ_ON);
    brenn_zar_kernel_SetErrorCallBack(CallerCallback);
    brenn::frame::LoadX87ControlWord(0x037A);
    brenn::frame::LoadCsr((0x1F80 & ~0x0200u) | 0x6000 | 0x0001);
    return Read();
}

void Restore() {
    brenn::frame::LoadX87ControlWord(0x037F);
    brenn::frame::LoadCsr(0x1F80);
    brenn_zar_kernel_SetErrorCallBack(nullptr);
}

TEST(RngDistFrame, GuardErrorModeAndBracketRestoreTheCaller) {
    Settings before = Unusual();
    FpGuard g = GuardEnter();
    EXPECT_EQ(brenn::frame::ReadX87ControlWord() & 0x3F, 0x3F);
    EXPECT_EQ(brenn::frame::ReadCsr() & 0x1F80, 0x1F80u);
    ErrorFrame e = ErrorModeEnter(LogZeroCallbackS);
    EXPECT_EQ(brenn_zar_kernel_GetMode() & BRENN_MODE_ERRMODE_MASK, 0x1000u);
    EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), LogZeroCallbackS);
    uint32_t inside = brenn_zar_kernel_GetMode();
    uint32_t seen = 0;
    Bracketed([&](int) { seen = brenn_zar_kernel_GetMode(); }, 0);
    EXPECT_EQ(seen & BRENN_MODE_FTZDAZ_MASK, 0x140000u);
    EXPECT_EQ(brenn_zar_kernel_GetMode(), inside);
    volatile double z = 0.0;
    volatile double q = 1.0 / z; // raises a flag inside; masked, so no trap
    (void)q;
    ErrorModeLeave(e);
    GuardLeave(g);
    ExpectSame(Read(), before);
    Restore();
}

// A thread whose mode word was never set has an empty denormal field: the bracket
// must not leave its own value there.
TEST(RngDistFrame, BracketRestoresAnEmptyField) {
    uint32_t before = brenn_zar_kernel_GetMode();
    ASSERT_EQ(before & BRENN_MODE_FTZDAZ_MASK, 0u);
    Bracketed([](int) {}, 0);
    EXPECT_EQ(brenn_zar_kernel_GetMode(), before);
}

TEST(RngDistFrame, EveryEntryLeavesTheCallerAsItWas) {
    void* ok = NewSeeded(QES_BRNG_MCG31M1, 5);
    void* failing = NewStepStream(1500);
    std::vector<double> d(3000);
    std::vector<float> f(3000);
    std::vector<int32_t> i(3000);
    std::vector<uint64_t> w(3000);
    for (void* s : {ok, failing}) {
        Settings before = Unusual();
        _qesdRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, s, 100, d.data(), 0.0, 1.0);
        _qessRngUniform(0, s, 100, f.data(), 0.0f, 1.0f);
        _qesiRngUniform(0, s, 3000, i.data(), -5, 5);
        _qesiRngBernoulli(0, s, 2000, i.data(), 0.5);
        _qesiRngUniformBits(0, s, 2000, w.data());
        _qesiRngUniformBits32(0, s, 100, reinterpret_cast<uint32_t*>(w.data()));
        _qesiRngUniformBits64(0, s, 100, w.data());
        ExpectSame(Read(), before, ~0x3Fu);
        Restore();
    }
    __qesDeleteStream(&ok);
    __qesDeleteStream(&failing);
}

TEST(RngDistFrame, SentinelsWriteTheirValues) {
    auto run = [](ErrorCallback cb, int code, double a1) {
        ErrorRecord r{};
        r.code = code;
        r.a1 = a1;
        r.r1 = r.r2 = 42.0;
        EXPECT_EQ(cb(&r), 0);
        EXPECT_EQ(r.r1, r.r2);
        return r.r1;
    };
    const double logMinD = -744.44007192138122, logMinS = -103.2789306640625;
    const double erfD = 5.8635847487551676;
    float erfSingle;
    const uint32_t erfBits = 0x407547CB;
    std::memcpy(&erfSingle, &erfBits, 4);
    const double erfS = erfSingle;
    EXPECT_EQ(run(LogZeroCallbackD, 1, 0.0), logMinD);
    EXPECT_EQ(run(LogZeroCallbackD, 3, 0.0), logMinD);
    EXPECT_EQ(run(LogZeroCallbackS, 2, 0.0), logMinS);
    EXPECT_EQ(run(LogZeroOnlyCallbackD, 2, 0.0), logMinD);
    EXPECT_EQ(run(LogZeroOnlyCallbackD, 1, -1.0), 42.0);
    EXPECT_EQ(run(LogZeroOnlyCallbackS, 2, 0.0), logMinS);
    EXPECT_EQ(run(LogZeroOnlyCallbackS, 3, 0.0), 42.0);
    EXPECT_EQ(run(GaussianCallbackD, 2, 0.0), logMinD);
    EXPECT_EQ(run(GaussianCallbackD, 2, -1.0), -erfD);
    EXPECT_EQ(run(GaussianCallbackD, 1, 1.0), erfD);
    EXPECT_EQ(run(GaussianCallbackD, 4, 1.0), 42.0);
    EXPECT_EQ(run(GaussianCallbackS, 2, 0.0), logMinS);
    EXPECT_EQ(run(GaussianCallbackS, 1, -2.0), -erfS);
    EXPECT_EQ(run(GaussianCallbackS, 2, 1.0), erfS);
    uint64_t bits;
    std::memcpy(&bits, &logMinD, 8);
    EXPECT_EQ(bits, 0xC0874385446D71C3ull);
    std::memcpy(&bits, &erfD, 8);
    EXPECT_EQ(bits, 0x4017744F8F74E94Aull);
}

TEST(RngDistFrame, AffinePassShapesGiveTheScalarResult) {
    std::vector<double> d(80);
    std::vector<float> f(80);
    for (int n = 0; n < 40; ++n) {
        for (int offset = 0; offset < 4; ++offset) {
            for (int k = 0; k < 80; ++k) {
                d[k] = std::sin(k * 0.7) * 3;
                f[k] = static_cast<float>(d[k]);
            }
            AffinePass(n, d.data() + offset, 1.7, -0.3);
            AffinePassMax(n, f.data() + offset, 1.7f, -0.3f, 0.5f);
            for (int k = 0; k < 80; ++k) {
                double x = std::sin(k * 0.7) * 3;
                float y = static_cast<float>(x);
                bool in = k >= offset && k < offset + n;
                ASSERT_EQ(d[k], in ? x * 1.7 + -0.3 : x) << n << " " << offset << " " << k;
                float e = y * 1.7f + -0.3f;
                ASSERT_EQ(f[k], in ? (e > 0.5f ? e : 0.5f) : y) << n << " " << offset;
            }
        }
    }
    // An array that is not element-aligned takes the scalar path.
    alignas(16) unsigned char raw[8 * 20 + 1];
    double* odd = reinterpret_cast<double*>(raw + 1);
    for (int k = 0; k < 20; ++k) {
        double v = k;
        std::memcpy(raw + 1 + 8 * k, &v, 8);
    }
    AffinePass(20, odd, 2.0, 1.0);
    for (int k = 0; k < 20; ++k) {
        double v;
        std::memcpy(&v, raw + 1 + 8 * k, 8);
        EXPECT_EQ(v, 2.0 * k + 1.0);
    }
}

// ---- Uniforms -----------------------------------------------------------------

TEST(RngUniform, AccurateModeKeepsResultsOnTheInterval) {
    // The largest MCG31M1 word on a narrow interval far from 0 rounds to b itself,
    // which the clamp keeps; on an interval whose width overflows, every raw result
    // leaves the interval and the clamp brings it back.
    void* s0 = NewSeeded(QES_BRNG_MCG31M1, 0x7FFFFFFE);
    void* c0 = CopyOf(s0);
    double raw, clamped;
    _qesdRngUniform(0, s0, 1, &raw, 1e10, 1e10 + 1);
    _qesdRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, c0, 1, &clamped, 1e10, 1e10 + 1);
    EXPECT_EQ(raw, 1e10 + 1);
    EXPECT_EQ(clamped, 1e10 + 1);
    std::vector<double> wide(100), wideRaw(100);
    _qesdRngUniform(0, s0, 100, wideRaw.data(), -1.5e308, 1.5e308);
    _qesdRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, c0, 100, wide.data(), -1.5e308, 1.5e308);
    for (int k = 0; k < 100; ++k) {
        EXPECT_FALSE(wideRaw[k] >= -1.5e308 && wideRaw[k] <= 1.5e308);
        EXPECT_TRUE(wide[k] >= -1.5e308 && wide[k] <= 1.5e308);
    }
    __qesDeleteStream(&s0);
    __qesDeleteStream(&c0);
    void* s = NewSeeded(QES_BRNG_MCG59, 3);
    std::vector<float> f(5000);
    _qessRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, s, 5000, f.data(), 1.0f, 1.0000002f);
    for (float v : f)
        ASSERT_TRUE(v >= 1.0f && v <= 1.0000002f);
    __qesDeleteStream(&s);
}

TEST(RngUniform, IntegersAreFloorsOfDoubleUniforms) {
    void* s = NewSeeded(QES_BRNG_MCG59, 11);
    void* c = CopyOf(s);
    std::vector<int32_t> r(2500);
    std::vector<double> d(2500);
    ASSERT_EQ(_qesiRngUniform(0, s, 2500, r.data(), -1000, 1000), 0);
    _qesdRngUniform(0, c, 2500, d.data(), -1000.0, 1000.0);
    for (int k = 0; k < 2500; ++k)
        ASSERT_EQ(r[k], static_cast<int32_t>(std::floor(d[k])));
    // Nothing is consumed for n = 0, and a = b - 1 gives only a.
    ASSERT_EQ(_qesiRngUniform(0, s, 0, r.data(), 0, 1), 0);
    _qesdRngUniform(0, c, 1, d.data(), 0.0, 1.0);
    double next;
    _qesdRngUniform(0, s, 1, &next, 0.0, 1.0);
    EXPECT_EQ(next, d[0]);
    ASSERT_EQ(_qesiRngUniform(0, s, 100, r.data(), 7, 8), 0);
    for (int k = 0; k < 100; ++k)
        ASSERT_EQ(r[k], 7);
    __qesDeleteStream(&s);
    __qesDeleteStream(&c);
}

// A generator failure stops the work: earlier blocks stay written.
TEST(RngUniform, FailureKeepsEarlierBlocks) {
    void* s = NewStepStream(1500);
    std::vector<int32_t> r(3000, -99);
    EXPECT_EQ(_qesiRngUniform(0, s, 3000, r.data(), 0, 7), QES_RNG_STATUS_RDRAND_FAILED);
    for (int k = 0; k < 1024; ++k)
        ASSERT_EQ(r[k], k % 7);
    EXPECT_EQ(r[2999], -99);
    std::vector<double> d(10);
    EXPECT_EQ(_qesdRngUniform(QES_RNG_METHOD_UNIFORM_ACCURATE, s, 1000, d.data(), 0.0, 1.0),
              QES_RNG_STATUS_RDRAND_FAILED);
    __qesDeleteStream(&s);
}

// ---- Raw bits -------------------------------------------------------------------

TEST(RngBits, FamiliesGiveTheirBitFormsOrRefuse) {
    void* s = NewSeeded(QES_BRNG_MCG59, 123);
    void* c = CopyOf(s);
    const int n = 4096 + 5; // two whole blocks and a rest
    std::vector<uint32_t> top(n);
    std::vector<uint64_t> words(2 * n);
    ASSERT_EQ(_qesiRngUniformBits32(0, s, n, top.data()), 0);
    ASSERT_EQ(_qesiRngUniformBits(0, c, n, words.data()), 0);
    for (int k = 0; k < n; ++k)
        ASSERT_EQ(top[k], static_cast<uint32_t>(words[k] >> 27));
    std::vector<uint64_t> pairs(n);
    ASSERT_EQ(_qesiRngUniformBits64(0, s, n, pairs.data()), 0);
    ASSERT_EQ(_qesiRngUniformBits(0, c, 2 * n, words.data()), 0);
    for (int k = 0; k < n; ++k) {
        uint64_t expect = (words[2 * k] >> 27) | ((words[2 * k + 1] >> 27) << 32);
        ASSERT_EQ(pairs[k], expect);
    }
    // A whole number of blocks still ends with an empty call; the stream goes on.
    ASSERT_EQ(_qesiRngUniformBits32(0, s, 2048, top.data()), 0);
    ASSERT_EQ(_qesiRngUniformBits(0, c, 2048, words.data()), 0);
    EXPECT_EQ(top[2047], static_cast<uint32_t>(words[2047] >> 27));
    __qesDeleteStream(&s);
    __qesDeleteStream(&c);

    // The legacy id of MCG59 takes the same path; MCG31M1 (31 bits) refuses and
    // its stream stays where it was.
    void* l = NewSeeded(3, 123);
    uint32_t word;
    EXPECT_EQ(_qesiRngUniformBits32(0, l, 1, &word), 0);
    __qesDeleteStream(&l);
    for (int32_t id : {int32_t{QES_BRNG_MCG31M1}, int32_t{0}, StepBrngId()}) {
        void* r = NewSeeded(id, 10); // the stepping generator: 10 words
        void* rc = CopyOf(r);
        uint32_t word = 0xAAAA;
        uint64_t wide = 0xBBBB;
        EXPECT_EQ(_qesiRngUniformBits32(0, r, 1, &word), QES_RNG_ERROR_BITS_NOT_SUPPORTED);
        EXPECT_EQ(_qesiRngUniformBits64(0, r, 1, &wide), QES_RNG_ERROR_BITS_NOT_SUPPORTED);
        EXPECT_EQ(word, 0xAAAAu);
        EXPECT_EQ(wide, 0xBBBBu);
        ExpectInStepAndDelete(r, rc);
    }
}

// ---- Bernoulli ------------------------------------------------------------------

TEST(RngBernoulli, OneUniformPerVariateComparedWithP) {
    void* s = NewSeeded(QES_BRNG_MCG31M1, 77);
    void* c = CopyOf(s);
    std::vector<int32_t> r(3000);
    std::vector<float> u(3000);
    ASSERT_EQ(_qesiRngBernoulli(0, s, 3000, r.data(), 0.3), 0);
    _qessRngUniform(0, c, 3000, u.data(), 0.0f, 1.0f);
    int ones = 0;
    for (int k = 0; k < 3000; ++k) {
        ASSERT_EQ(r[k], u[k] < 0.3f ? 1 : 0);
        ones += r[k];
    }
    EXPECT_NEAR(ones / 3000.0, 0.3, 0.04);
    ASSERT_EQ(_qesiRngBernoulli(0, s, 1000, r.data(), 0.0), 0);
    for (int k = 0; k < 1000; ++k)
        ASSERT_EQ(r[k], 0);
    ASSERT_EQ(_qesiRngBernoulli(0, s, 1000, r.data(), 1.0), 0);
    for (int k = 0; k < 1000; ++k)
        ASSERT_EQ(r[k], 1);
    __qesDeleteStream(&s);
    __qesDeleteStream(&c);
}

} // namespace
