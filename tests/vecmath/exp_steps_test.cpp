// The exponential bodies against plain scalar transcriptions of their steps, bit for bit:
// the constants, the tables, the order of the roundings and the range windows may not
// drift for speed. Each body over a few hundred thousand random arguments across its
// window in one long call (so that every round's fast path runs), the window's edges
// element by element, and the values the single scalar routines give at their limits.
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"
#include "vecmath/explog/explog_tables.h"

namespace brenn::test {
namespace {

using frame::RowIndex;
namespace vm = brenn::vm;

template <class T>
Unary<T> K(RowIndex row, int slot) {
    return reinterpret_cast<Unary<T>>((&BrennDispatchTable[row].kernelLA)[slot]);
}

float F(uint32_t b) {
    return std::bit_cast<float>(b);
}
double D(uint64_t b) {
    return std::bit_cast<double>(b);
}

// n random arguments uniform on [lo, hi] with the edges and zeros among them.
template <class T>
std::vector<T> Uniform(T lo, T hi, int n, unsigned seed) {
    std::mt19937_64 g(seed);
    std::uniform_real_distribution<T> u(lo, hi);
    std::vector<T> x = {lo, hi, T(0), -T(0), std::nextafter(lo, hi), std::nextafter(hi, lo)};
    while (int(x.size()) < n)
        x.push_back(u(g));
    return x;
}

// The kernel of (row, slot) on x in one call against ref element by element, bit for bit,
// status 0 throughout.
template <class T, class Ref>
void ExpectSteps(RowIndex row, int slot, const std::vector<T>& x, Ref ref) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<T> y(x.size());
    brenn_zar_kernel_SetErrStatus(0);
    K<T>(row, slot)(int(x.size()), x.data(), y.data());
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0) << frame::kRowInfo[row].name << " " << slot;
    ExpectEachElement(std::string(frame::kRowInfo[row].name) + " slot " + std::to_string(slot), x,
                      y, ref, true);
}

// ---- sExp ----

constexpr float kShifterS = 0x1.8p+23f; // 0x4B400000

// EP: y = x*log2e, t = y + shifter, n = t - shifter, r = y - n, the cubic, and the bits
// of t shifted left 23 added to those of p.
float SExpEP(float x) {
    float y = x * F(0x3FB8AA3B);
    float t = y + kShifterS;
    float n = t - kShifterS;
    float r = y - n;
    float p = ((F(0x3D63582B) * r + F(0x3E77D66A)) * r + F(0x3F317422)) * r + 1.0f;
    return F((Bits(t) << 23) + Bits(p));
}

float SExpLA(float x) {
    float t = x * F(0x3FB8AA3B) + kShifterS;
    float n = t - kShifterS;
    float r = x - n * F(0x3F317200) - n * F(0x35BFBE8E);
    float p = F(0x3C07D9FE);
    for (uint32_t c : {0x3D2B8392u, 0x3E2AACACu, 0x3EFFFF34u, 0x3F7FFFFEu, 0x3F800000u})
        p = p * r + F(c);
    return F((Bits(t) << 23) + Bits(p));
}

float SExpHA(float x) {
    float t = x * F(0x4338AA3B) + 11534336.0f;
    float n = 11534336.0f - t;
    float r = x + n * F(0x3BB18000) + n * F(0xB5DE8083);
    const float* row = vm::single::expTable128[Bits(t) & 0x7F];
    float s = (r + row[1]) + 0.5f * r * r;
    float p = s * row[0] + row[0];
    float scale = F((((Bits(t) >> 7) + 127) << 23));
    return p * scale;
}

TEST(ExpSteps, SingleExpBodies) {
    const float edge = F(0x42AEAC4F);
    std::vector<float> x = Uniform(-edge, edge, 300000, 1);
    ExpectSteps(frame::Row_sExp, frame::SlotEP, x, SExpEP);
    ExpectSteps(frame::Row_sExp, frame::SlotLA, x, SExpLA);
    ExpectSteps(frame::Row_sExp, frame::SlotHA, x, SExpHA);
    // EP's eleven-odd bits: e^1 is not the nearest float to e.
    EXPECT_NE(CallUnary(K<float>(frame::Row_sExp, frame::SlotEP), 1.0f), float(M_E));
    EXPECT_EQ(CallUnary(K<float>(frame::Row_sExp, frame::SlotEP), 1.0f), SExpEP(1.0f));
}

// Single scalar routine of LA and EP: the stated ladder, its polynomial and the three
// ways of applying 2^n.
float SExpScalarLaEp(float x, int* status) {
    float t = 1.442695f * x + kShifterS;
    float n = t - kShifterS;
    float r = x - n * 0.69314575f - n * 1.4286068e-6f;
    float p = 1.0000001f +
              ((((0.0083811125f * r + 0.041917525f) * r + 0.16666326f) * r + 0.4999887f) * r +
               1.0000001f) *
                  r;
    int k = int(n);
    *status = 0;
    if (x < -87.33654f) {
        *status = 4;
        return p * F(uint32_t((k - 69) & 255) << 23) * 8.6736174e-19f;
    }
    if (k < -127 || k > 127) return p * F(uint32_t((k + 126) & 255) << 23) * 2.0f;
    return p * F(uint32_t((k + 127) & 255) << 23);
}

TEST(ExpSteps, SingleExpWindowAndScalarRoutines) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    const float in = F(0x42AEAC4F), out = F(0x42AEAC50);
    for (int slot : {frame::SlotLA, frame::SlotHA, frame::SlotEP}) {
        auto k = K<float>(frame::Row_sExp, slot);
        int status;
        // The window's last arguments take the body, the next ones the scalar routine: a
        // denormal result below, status 4; a normal one above, status 0.
        for (float v : {in, -in}) {
            float y = CallUnary(k, v, &status);
            EXPECT_EQ(status, 0) << slot << " " << v;
            EXPECT_EQ(Bits(y), Bits(slot == frame::SlotHA   ? SExpHA(v)
                                    : slot == frame::SlotLA ? SExpLA(v)
                                                            : SExpEP(v)));
        }
        CallUnary(k, -out, &status);
        EXPECT_EQ(status, 4) << slot;
        EXPECT_LT(CallUnary(k, -out, &status), FLT_MIN);
        CallUnary(k, out, &status);
        EXPECT_EQ(status, 0) << slot;
        // The limits: 88.72283172607422 the last finite, -103.97207641601562 the last
        // non-zero result.
        EXPECT_TRUE(std::isfinite(CallUnary(k, F(0x42B17217), &status)));
        EXPECT_EQ(status, 0);
        EXPECT_EQ(CallUnary(k, F(0x42B17218), &status), INFINITY);
        EXPECT_EQ(status, 3);
        EXPECT_GT(CallUnary(k, F(0xC2CFF1B4), &status), 0.0f);
        EXPECT_EQ(status, 4);
        EXPECT_EQ(Bits(CallUnary(k, F(0xC2CFF1B5), &status)), 0u);
        EXPECT_EQ(status, 4);
        EXPECT_EQ(CallUnary(k, -INFINITY, &status), 0.0f);
        EXPECT_EQ(status, 0);
    }
    // LA and EP share the scalar routine: its value over both bands outside the window.
    std::vector<float> x;
    for (float v = out; v <= F(0x42B17217); v = std::nextafter(v, 100.0f))
        x.push_back(v);
    for (float v = -out; v >= F(0xC2CFF1B4); v = std::nextafter(v, -200.0f))
        x.push_back(v);
    for (int slot : {frame::SlotLA, frame::SlotEP}) {
        int shown = 0;
        for (float v : x) {
            int status, want;
            float y = CallUnary(K<float>(frame::Row_sExp, slot), v, &status);
            float w = SExpScalarLaEp(v, &want);
            if ((Bits(y) != Bits(w) || status != want) && shown++ < 5)
                ADD_FAILURE() << slot << " x " << std::hexfloat << v << " got " << y << " want "
                              << w;
        }
    }
}

// ---- sExp2, sExp10: one kernel for every level ----

float SExp2(float x) {
    float t = x + 196608.0f;
    float n = t - 196608.0f;
    float r = x - n;
    float p = r * (F(0x3E75FDFC) * r + F(0x3F317243));
    const float* row = vm::single::expTable64[Bits(t) & 0x3F];
    float y = (p + row[1]) * row[0] + row[0];
    return F(Bits(y) + ((Bits(t) >> 6) << 23));
}

float SExp10(float x) {
    float t = x * F(0x43D49A78) + kShifterS;
    float n = t - kShifterS;
    float r = x - n * F(0x3B1A4000) - n * F(0xB5FB2BD8);
    float p = r * (F(0x4029A929) * r + F(0x40135D97));
    const float* row = vm::single::expTable128[Bits(t) & 0x7F];
    float y = (p + row[1]) * row[0] + row[0];
    return F(Bits(y) + ((Bits(t) >> 7) << 23));
}

// One kernel in all three slots, the body's value bit for bit across the window and at
// its last arguments (126.0, 37.9297791).
template <class Ref>
void ExpectOneKernel(RowIndex row, float edge, Ref ref, unsigned seed) {
    auto k = K<float>(row, frame::SlotHA);
    EXPECT_EQ(k, K<float>(row, frame::SlotLA));
    EXPECT_EQ(k, K<float>(row, frame::SlotEP));
    ExpectSteps(row, frame::SlotHA, Uniform(-edge, edge, 300000, seed), ref);
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (float v : {edge, -edge}) {
        int status;
        EXPECT_EQ(Bits(CallUnary(k, v, &status)), Bits(ref(v))) << v;
        EXPECT_EQ(status, 0);
    }
}

TEST(ExpSteps, SingleExp2AndExp10) {
    ExpectOneKernel(frame::Row_sExp2, 126.0f, SExp2, 2);
    ExpectOneKernel(frame::Row_sExp10, F(0x4217B818), SExp10, 3);
    // Exact at integers inside the window.
    auto k = K<float>(frame::Row_sExp2, frame::SlotHA);
    for (int i = -126; i <= 126; ++i)
        EXPECT_EQ(CallUnary(k, float(i)), std::ldexp(1.0f, i)) << i;
    // Just below the windows the results are denormal: the scalar routine's, status 4.
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    int status;
    EXPECT_EQ(CallUnary(k, -126.5f, &status), float(exp2l(-126.5L)));
    EXPECT_EQ(status, 4);
    float y = CallUnary(K<float>(frame::Row_sExp10, frame::SlotHA), -38.0f, &status);
    EXPECT_EQ(status, 4);
    EXPECT_LE(UlpError(y, exp10l(-38.0L)), 1.0);
}

// ---- dExp ----

constexpr double kShifterD = 0x1.8p+52;

// EP: 128/ln 2, ln2/128 in one part, T*(1 + r + c*r^2) on the table of 128's high parts.
double DExpEP(double x) {
    double t = x * D(0x40671547652B82FEull) + kShifterD;
    double n = t - kShifterD;
    double r = x - n * D(0x3F762E42FEFA39EFull);
    double q = (D(0x3FDFFFFC2808F7E8ull) * r + 1.0) * r + 1.0;
    int64_t k = int64_t(n);
    return std::ldexp(vm::expTable128[k & 127][0] * q, int(k >> 7));
}

// LA: 1024/ln 2, ln2/1024 in two parts, degree 3 on the one-part table of 1024.
double DExpLA(double x) {
    double t = x * D(0x40971547652B82FEull) + kShifterD;
    double n = t - kShifterD;
    double r = x - n * D(0x3F462E42FEC00000ull) - n * D(0x3D5D1CF79ABC9E3Bull);
    double p = r + r * r * (0.50000000357965391 + r * 0.16666666666666669);
    int64_t k = int64_t(n);
    double T = vm::expTable1024[k & 1023];
    return std::ldexp(T + T * p, int(k >> 10));
}

// HA: 64/ln 2, ln2/64 in two parts, degree 5 on the two-part table of 64.
double DExpHA(double x) {
    double t = x * D(0x40571547652B82FEull) + kShifterD;
    double n = t - kShifterD;
    double r = x - n * D(0x3F862E42FEFA0000ull) - n * D(0x3D1CF79ABC9E3B3Aull);
    double h = 0.0083333341644141103;
    for (double c : {0.041666723686623851, 0.16666666666677971, 0.49999999999947747})
        h = h * r + c;
    double p = r + r * r * h;
    int64_t k = int64_t(n);
    const double* row = vm::expTable64[k & 63];
    return std::ldexp(row[0] + (row[0] * p + row[1]), int(k >> 6));
}

TEST(ExpSteps, DoubleExpBodies) {
    const double edge = D(0x4086232AFFFFFFFFull);
    std::vector<double> x = Uniform(-edge, edge, 300000, 4);
    ExpectSteps(frame::Row_dExp, frame::SlotEP, x, DExpEP);
    ExpectSteps(frame::Row_dExp, frame::SlotLA, x, DExpLA);
    ExpectSteps(frame::Row_dExp, frame::SlotHA, x, DExpHA);
    // Past the window's high word the scalar routine: the results just below the least
    // normal one are denormal, status 4.
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    for (int slot : {frame::SlotLA, frame::SlotHA, frame::SlotEP}) {
        int status;
        double y = CallUnary(K<double>(frame::Row_dExp, slot), -708.5, &status);
        EXPECT_EQ(status, 4) << slot;
        EXPECT_LE(UlpError(y, expl(-708.5L)), 1.0) << slot;
        CallUnary(K<double>(frame::Row_dExp, slot), D(0x4086232B00000000ull), &status);
        EXPECT_EQ(status, 0) << slot;
    }
}

// The double scalar routine beyond the window, at every level: the top band to the last
// finite result and the denormal results within half an ulp and a little (expl's own
// error, larger up there), so that a denormal result is rounded once (scaled after a rounded sum,
// it is off by up to 0.73 ulp), with statuses 0 and 4.
TEST(ExpSteps, DoubleExpScalarRoutine) {
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<double> top = Uniform(D(0x4086232B00000000ull), 709.78271289338397, 20000, 9);
    std::vector<double> low = Uniform(-745.1332191019411, -708.3964185322642, 20000, 10);
    for (int slot : {frame::SlotLA, frame::SlotHA, frame::SlotEP}) {
        auto k = K<double>(frame::Row_dExp, slot);
        int shown = 0;
        for (const auto* band : {&top, &low})
            for (double v : *band) {
                int status;
                double y = CallUnary(k, v, &status);
                double err = UlpError(y, expl((long double)v));
                if ((err > (v < 0 ? 0.502 : 0.52) || status != (v < 0 ? 4 : 0)) && shown++ < 5)
                    ADD_FAILURE() << slot << " x " << std::hexfloat << v << " y " << y << " err "
                                  << std::defaultfloat << err << " status " << status;
            }
    }
}

// ---- dExp2, dExp10: one kernel for every level, the single layout in double ----

double DExp2(double x) {
    const double sh = 0x1.8p+52 * 0x1p-6;
    double t = x + sh;
    double r = x - (t - sh);
    double h = 0x1.5d86c1b63892bp-10;
    for (double c :
         {0x1.3b2ad318a479fp-7, 0x1.c6b08d707d06dp-5, 0x1.ebfbdff82a2c3p-3, 0x1.62e42fefa39efp-1})
        h = h * r + c;
    double p = r * h;
    int64_t k = int64_t((t - sh) * 64);
    const double* row = vm::expTable64[k & 63];
    return std::ldexp(row[0] + (row[0] * p + row[1]), int(k >> 6));
}

double DExp10(double x) {
    double t = x * 0x1.a934f0979a371p+8 + kShifterD;
    double n = t - kShifterD;
    double r = x - n * 0x1.3441350ap-9 - n * -0x1.0c0219dc1da99p-46;
    double h = 0x1.1457f0fb90cc4p-1;
    for (double c :
         {0x1.2bd7673f39d41p+0, 0x1.0470591c9b9fap+1, 0x1.53524c73ce8eep+1, 0x1.26bb1bbb55516p+1})
        h = h * r + c;
    double p = r * h;
    int64_t k = int64_t(n);
    const double* row = vm::expTable128[k & 127];
    return std::ldexp(row[0] + (row[0] * p + row[1]), int(k >> 7));
}

TEST(ExpSteps, DoubleExp2AndExp10) {
    for (RowIndex row : {frame::Row_dExp2, frame::Row_dExp10}) {
        EXPECT_EQ(K<double>(row, frame::SlotHA), K<double>(row, frame::SlotLA));
        EXPECT_EQ(K<double>(row, frame::SlotHA), K<double>(row, frame::SlotEP));
    }
    const double e2 = D(0x408FEFFFFFFFFFFFull), e10 = D(0x40733A70FFFFFFFFull);
    ExpectSteps(frame::Row_dExp2, frame::SlotHA, Uniform(-e2, e2, 300000, 5), DExp2);
    ExpectSteps(frame::Row_dExp10, frame::SlotHA, Uniform(-e10, e10, 300000, 6), DExp10);
    // Exact at integers, and from the windows' ends on the scalar routine's denormals.
    auto k2 = K<double>(frame::Row_dExp2, frame::SlotHA);
    for (int i = -1021; i <= 1021; i += 7)
        EXPECT_EQ(CallUnary(k2, double(i)), std::ldexp(1.0, i)) << i;
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    int status;
    EXPECT_EQ(CallUnary(k2, -1022.5, &status), double(exp2l(-1022.5L)));
    EXPECT_EQ(status, 4);
    // Their denormal results rounded once by the scalar routine (0.71 ulp when the
    // power of two was applied after the sum's rounding; Exp10 where the results have at
    // most 44 bits, which expl's reference holds).
    int shown = 0;
    for (double v : Uniform(-1074.0, -1022.001, 20000, 11)) {
        if (v == 0) continue;
        double y = CallUnary(k2, v, &status);
        if ((UlpError(y, exp2l(v)) > 0.502 || status != 4) && shown++ < 5)
            ADD_FAILURE() << std::hexfloat << v << " " << y << " " << status << " "
                          << UlpError(y, exp2l(v));
    }
    for (double v : Uniform(-323.3, -310.0, 20000, 12)) {
        if (v == 0) continue;
        double y = CallUnary(K<double>(frame::Row_dExp10, frame::SlotHA), v, &status);
        if ((UlpError(y, expl((long double)v * 2.30258509299404568402L)) > 0.51 || status != 4) &&
            shown++ < 5)
            ADD_FAILURE() << std::hexfloat << v << " " << y << " " << status << " "
                          << UlpError(y, expl((long double)v * 2.30258509299404568402L));
    }
}

// ---- sExpm1: one kernel for every level, the single steps in double lanes ----

float SExpm1(float x) {
    double xd = x;
    double t = xd * double(F(0x42B8AA3B)) + kShifterD;
    double n = t - kShifterD;
    double r = xd - n * double(F(0x3C318000)) - n * double(F(0xB65E8083));
    int64_t k = int64_t(n);
    const float* row = vm::single::expTable64[k & 63];
    double p = r + r * r * (double(F(0x3F00000F)) + double(F(0x3E2AAABF)) * r);
    double q = p + row[1];
    double s = std::ldexp(double(row[0]), int(k >> 6));
    float y = float((s - 1.0) + s * q);
    return F(Bits(y) | (Bits(x) & 0x80000000u));
}

TEST(ExpSteps, SingleExpm1) {
    const RowIndex row = frame::Row_sExpm1;
    auto k = K<float>(row, frame::SlotHA);
    EXPECT_EQ(k, K<float>(row, frame::SlotLA));
    EXPECT_EQ(k, K<float>(row, frame::SlotEP));
    const float edge = F(0x42AD496B); // 86.6433945
    std::vector<float> x = Uniform(-edge, edge, 200000, 7);
    for (float v : Uniform(-1.0f, 1.0f, 100000, 8)) // where S - 1 and S*q cancel
        x.push_back(v);
    ExpectSteps(row, frame::SlotHA, x, SExpm1);
    ModeScope mode(BRENN_MODE_ERRMODE_IGNORE);
    int status;
    EXPECT_EQ(Bits(CallUnary(k, -0.0f, &status)), 0x80000000u);
    // Beyond the window: -1 for large negative x, the scalar routine's value up to the
    // last finite result, status 0.
    for (float v : {-std::nextafter(edge, 100.0f), -100.0f, -1e30f}) {
        EXPECT_EQ(CallUnary(k, v, &status), -1.0f) << v;
        EXPECT_EQ(status, 0);
    }
    for (float v : {std::nextafter(edge, 100.0f), 88.0f, F(0x42B17217)}) {
        EXPECT_LE(UlpError(CallUnary(k, v, &status), expm1l(v)), 1.0) << v;
        EXPECT_EQ(status, 0);
    }
}

} // namespace
} // namespace brenn::test
