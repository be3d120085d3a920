// The kernel frame as callers see it: no access outside the vectors at any length and
// misalignment, results independent of where the split falls, in-place operation, no
// flags from the filler of partial blocks, the caller's floating-point controls back
// on return, and per-element reporting through the reporter.
#include <cerrno>
#include <cfenv>
#include <cmath>
#include <cstdlib>
#include <gtest/gtest.h>
#include <vector>

#include "tests/vecmath/kernels.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#define BRENN_POISON(p, n) ASAN_POISON_MEMORY_REGION(p, n)
#define BRENN_UNPOISON(p, n) ASAN_UNPOISON_MEMORY_REGION(p, n)
#else
#define BRENN_POISON(p, n) ((void)(p), (void)(n))
#define BRENN_UNPOISON(p, n) ((void)(p), (void)(n))
#endif

namespace brenn::test {
namespace {

enum class Kind { Unary, Binary, TwoRes };
struct RowCase {
    const char* name;
    Kind kind;
};

const RowCase kSingle[] = {
    {"sCeil", Kind::Unary},      {"sFloor", Kind::Unary},   {"sFrac", Kind::Unary},
    {"sNearbyInt", Kind::Unary}, {"sRint", Kind::Unary},    {"sRound", Kind::Unary},
    {"sTrunc", Kind::Unary},     {"sAbs", Kind::Unary},     {"sInv", Kind::Unary},
    {"sSqrt", Kind::Unary},      {"sInvSqrt", Kind::Unary}, {"sSqr", Kind::Unary},
    {"sDiv", Kind::Binary},      {"sAdd", Kind::Binary},    {"sSub", Kind::Binary},
    {"sMul", Kind::Binary},      {"sModf", Kind::TwoRes},
};
const RowCase kDouble[] = {
    {"dCeil", Kind::Unary},      {"dFloor", Kind::Unary},   {"dFrac", Kind::Unary},
    {"dNearbyInt", Kind::Unary}, {"dRint", Kind::Unary},    {"dRound", Kind::Unary},
    {"dTrunc", Kind::Unary},     {"dAbs", Kind::Unary},     {"dInv", Kind::Unary},
    {"dSqrt", Kind::Unary},      {"dInvSqrt", Kind::Unary}, {"dSqr", Kind::Unary},
    {"dDiv", Kind::Binary},      {"dAdd", Kind::Binary},    {"dSub", Kind::Binary},
    {"dMul", Kind::Binary},      {"dModf", Kind::TwoRes},
};

// Inputs with a special lane now and then (negative, zero, infinity) so that the
// scalar routines run in every stage.
template <class T>
T InputAt(int i, int salt) {
    switch ((i * 5 + salt) % 11) {
    case 3:
        return T(-1.5);
    case 7:
        return T(0);
    case 9:
        return T(INFINITY);
    default:
        return T(0.625) + T(i) * T(0.375) + T(salt);
    }
}

// A vector of exactly n elements, starting `mis` elements into its allocation; the
// elements before it are poisoned, and under AddressSanitizer the end of the
// allocation is the end of the vector.
template <class T>
struct Guarded {
    T* base;
    T* v;
    int n, mis;
    Guarded(int n_, int mis_) : n(n_), mis(mis_) {
        base = static_cast<T*>(std::malloc(sizeof(T) * (n + mis) + (n + mis == 0)));
        for (int k = 0; k < mis; ++k)
            base[k] = T(-7.25);
        v = base + mis;
        BRENN_POISON(base, sizeof(T) * mis);
    }
    ~Guarded() {
        BRENN_UNPOISON(base, sizeof(T) * mis);
        for (int k = 0; k < mis; ++k)
            EXPECT_EQ(base[k], T(-7.25)) << "write before the vector";
        std::free(base);
    }
};

template <class T>
void CheckBounds(const RowCase& row) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    constexpr int kMax = 40;
    for (int slot = 0; slot < 3; ++slot) {
        BrennKernel k = Slot(row.name, slot);
        ASSERT_NE(k, nullptr) << row.name << " slot " << slot;
        // Reference: one call on 16-byte-aligned storage.
        alignas(16) T a[kMax], b[kMax], ry[kMax], rz[kMax];
        for (int i = 0; i < kMax; ++i)
            a[i] = InputAt<T>(i, 0), b[i] = InputAt<T>(i, 1) + T(1);
        if (row.kind == Kind::Unary) As<Unary<T>>(k)(kMax, a, ry);
        if (row.kind == Kind::Binary) As<Binary<T>>(k)(kMax, a, b, ry);
        if (row.kind == Kind::TwoRes) As<TwoRes<T>>(k)(kMax, a, ry, rz);
        for (int n = 0; n <= kMax; ++n)
            for (int ma = 0; ma < 4; ++ma) {
                int my = (ma + 1) % 4;
                Guarded<T> ga(n, ma), gb(n, (ma + 2) % 4), gy(n, my), gz(n, (ma + 3) % 4);
                for (int i = 0; i < n; ++i)
                    ga.v[i] = a[i], gb.v[i] = b[i];
                if (row.kind == Kind::Unary) As<Unary<T>>(k)(n, ga.v, gy.v);
                if (row.kind == Kind::Binary) As<Binary<T>>(k)(n, ga.v, gb.v, gy.v);
                if (row.kind == Kind::TwoRes) As<TwoRes<T>>(k)(n, ga.v, gy.v, gz.v);
                for (int i = 0; i < n; ++i) {
                    ASSERT_TRUE(SameValue(gy.v[i], ry[i]))
                        << row.name << " slot " << slot << " n " << n << " misalignment " << ma
                        << " element " << i;
                    if (row.kind == Kind::TwoRes) ASSERT_TRUE(SameValue(gz.v[i], rz[i]));
                }
                // In place: the result overwrites the input.
                if (row.kind == Kind::Unary) As<Unary<T>>(k)(n, ga.v, ga.v);
                if (row.kind == Kind::Binary) As<Binary<T>>(k)(n, ga.v, gb.v, ga.v);
                if (row.kind == Kind::TwoRes) As<TwoRes<T>>(k)(n, ga.v, ga.v, gz.v);
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(SameValue(ga.v[i], ry[i]))
                        << row.name << " in place, n " << n << " element " << i;
            }
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(KernelFrame, EveryKernelStaysInsideItsVectorsAtEveryLengthAndMisalignment) {
    for (const RowCase& r : kSingle)
        CheckBounds<float>(r);
    for (const RowCase& r : kDouble)
        CheckBounds<double>(r);
}

// Flags raised by a call on k copies of 1.0 (an input no kernel may raise anything for
// but inexact) at every split; the filler of partial blocks must add none.
template <class T>
void CheckNoFillerFlags(const RowCase& row) {
    for (int slot = 0; slot < 3; ++slot) {
        BrennKernel k = Slot(row.name, slot);
        for (int n = 1; n <= 11; ++n)
            for (int mis = 0; mis < 4; ++mis) {
                alignas(16) T a[16], b[16], y[16], z[16];
                for (int i = 0; i < 16; ++i)
                    a[i] = b[i] = T(1);
                _mm_setcsr(0x1F80);
                if (row.kind == Kind::Unary) As<Unary<T>>(k)(n, a + mis, y);
                if (row.kind == Kind::Binary) As<Binary<T>>(k)(n, a + mis, b, y);
                if (row.kind == Kind::TwoRes) As<TwoRes<T>>(k)(n, a + mis, y, z);
                EXPECT_EQ(_mm_getcsr() & 0x1F, 0u) << row.name << " slot " << slot << " n " << n;
            }
    }
    _mm_setcsr(0x1F80);
}

TEST(KernelFrame, PartialBlocksRaiseNoFlagsOfTheirOwn) {
    for (const RowCase& r : kSingle)
        CheckNoFillerFlags<float>(r);
    for (const RowCase& r : kDouble)
        CheckNoFillerFlags<double>(r);
}

// The caller's rounding mode, FTZ/DAZ and masks are back on return; flags raised inside
// stay set; inside, the kernel rounds to nearest with denormals kept.
TEST(KernelFrame, CallerControlsComeBackAndInsideFlagsStay) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    const float in[5] = {2.0f, 3.0f, 1e-39f, 7.0f, -1.0f};
    float expectSqrt[5], expectInv[5], y[5];
    _mm_setcsr(0x1F80);
    _zarsSqrt_HA(5, in, expectSqrt);
    _zarsInv_HA(5, in, expectInv);
    const unsigned callers[] = {0x1F80 | 0x6000, 0x1F80 | 0x8040, 0x1F80 | 0x2000 | 0x8000,
                                0x1D80 /* zero-divide unmasked */};
    for (unsigned csr : callers) {
        {
            CsrScope scope(csr);
            _zarsSqrt_HA(5, in, y);
            unsigned after = _mm_getcsr();
            EXPECT_EQ(after & ~0x3Fu, csr) << std::hex << csr;
            EXPECT_NE(after & 0x01, 0u) << "invalid from the square root of -1 stays set";
        }
        for (int i = 0; i < 5; ++i)
            EXPECT_TRUE(SameValue(y[i], expectSqrt[i])) << i;
        {
            const float zero[3] = {4.0f, 0.0f, 3.0f};
            CsrScope scope(csr);
            _zarsInv_HA(5, in, y);
            float yz[3];
            _zarsInv_HA(3, zero, yz);
            unsigned after = _mm_getcsr();
            EXPECT_EQ(after & ~0x3Fu, csr);
            EXPECT_NE(after & 0x04, 0u) << "divide-by-zero of 1/0 stays set";
            EXPECT_EQ(yz[1], INFINITY);
        }
        for (int i = 0; i < 5; ++i)
            EXPECT_TRUE(SameValue(y[i], expectInv[i])) << i;
    }
    // The mode's flush setting is what counts inside: a denormal result goes to zero.
    brenn_zar_kernel_SetMode(BRENN_MODE_FTZDAZ_ON);
    const float tiny[1] = {1e-20f};
    float sq[1];
    _zarsSqr(1, tiny, sq);
    EXPECT_EQ(sq[0], 0.0f);
    brenn_zar_kernel_SetMode(BRENN_MODE_FTZDAZ_OFF);
    _zarsSqr(1, tiny, sq);
    EXPECT_GT(sq[0], 0.0f);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// Abs forces only the masks: a caller's DAZ makes a denormal input zero.
TEST(KernelFrame, AbsKeepsTheCallersDenormalControls) {
    const float in[2] = {-1e-40f, -2.0f};
    float y[2];
    {
        CsrScope scope(0x1F80 | 0x0040);
        _zarsAbs_HA(2, in, y);
    }
    EXPECT_EQ(y[0], 0.0f);
    EXPECT_EQ(y[1], 2.0f);
    _zarsAbs_HA(2, in, y);
    EXPECT_EQ(y[0], 1e-40f);
}

struct Seen {
    int calls = 0;
    int code = 0, index = -1;
    double a1 = 0, r1 = 0;
    char name[64] = {};
};
Seen seen;

int PatchingCallback(ErrorRecord* r) {
    ++seen.calls;
    seen.code = r->code;
    seen.index = r->index;
    seen.a1 = r->a1;
    seen.r1 = r->r1;
    std::memcpy(seen.name, r->functionName, sizeof seen.name);
    r->r1 = 42.0;
    return 0;
}

TEST(KernelFrame, ReportsGoThroughTheReporterLaneByLane) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_CALLBACK);
    brenn_zar_kernel_SetErrorCallBack(PatchingCallback);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    brenn_zar_kernel_ClearErrStatus();
    // Special lanes at 2 (main stage), 13 (tail) and in place; a NaN is special but
    // not an error.
    for (int slot = 0; slot < 3; ++slot) {
        float a[15];
        for (int i = 0; i < 15; ++i)
            a[i] = float(i + 1);
        a[1] = NAN;
        a[2] = -4.0f;
        a[13] = -9.0f;
        seen = Seen{};
        As<Unary<float>>(Slot("sSqrt", slot))(15, a, a);
        EXPECT_EQ(seen.calls, 2);
        EXPECT_EQ(seen.index, 13);
        EXPECT_EQ(seen.code, 1);
        EXPECT_STREQ(seen.name, "vsSqrt");
        EXPECT_TRUE(std::isnan(seen.r1));
        EXPECT_EQ(a[2], 42.0f) << "the callback's r1 is what the kernel stores";
        EXPECT_EQ(a[13], 42.0f);
        EXPECT_TRUE(std::isnan(a[1]));
        EXPECT_NEAR(a[3], 2.0f, 1e-3f);
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 1);
    }
    // The index counts from the registered start of the caller's whole vector.
    double d[12];
    for (int i = 0; i < 12; ++i)
        d[i] = 1.0 + i;
    d[7] = 0.0;
    double y[12];
    brenn_zar_kernel_SetInterfInputVectorPointer(d - 100);
    seen = Seen{};
    _zardInv_50(12, d, y);
    EXPECT_EQ(seen.calls, 1);
    EXPECT_EQ(seen.code, 2);
    EXPECT_EQ(seen.index, 107);
    EXPECT_EQ(seen.r1, INFINITY);
    EXPECT_EQ(y[7], 42.0);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    // The two-argument name and values.
    const float num[3] = {1, 5, 3}, den[3] = {1, 0, 1};
    float q[3];
    seen = Seen{};
    _zarsDiv_11(3, num, den, q);
    EXPECT_EQ(seen.code, 2);
    EXPECT_EQ(seen.index, 1);
    EXPECT_EQ(seen.a1, 5.0);
    EXPECT_STREQ(seen.name, "vsDiv");
    // Error mode exactly 0x2000: nothing is reported, the status stays.
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_NOERR);
    brenn_zar_kernel_SetErrStatus(0);
    seen = Seen{};
    _zarsDiv_11(3, num, den, q);
    EXPECT_EQ(seen.calls, 0);
    EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), 0);
    EXPECT_EQ(q[1], INFINITY);
    brenn_zar_kernel_ClearErrorCallBack();
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// Without a callback or message, a call's reports come out as element by element: the
// status and errno of the last element reported, the x87 flags of all.
TEST(KernelFrame, HeldReportsEndAsTheLastElementSays) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
    brenn_zar_kernel_ClearErrorCallBack();
    for (bool domainLast : {false, true}) {
        float a[13], y[13];
        for (int i = 0; i < 13; ++i)
            a[i] = float(i + 1);
        a[domainLast ? 3 : 11] = 0.0f;  // singularity
        a[domainLast ? 11 : 3] = -1.0f; // domain
        errno = 0;
        __asm__ volatile("fnclex");
        brenn_zar_kernel_ClearErrStatus();
        _zarsLn_HA(13, a, y);
        uint16_t sw;
        __asm__ volatile("fnstsw %0" : "=m"(sw));
        EXPECT_EQ(brenn_zar_kernel_GetErrStatus(), domainLast ? 1 : 2);
        EXPECT_EQ(errno, domainLast ? 33 : 34);
        EXPECT_EQ(sw & 0x05, 0x05);
        EXPECT_EQ(y[domainLast ? 3 : 11], -INFINITY);
        EXPECT_TRUE(std::isnan(y[domainLast ? 11 : 3]));
    }
    __asm__ volatile("fnclex");
}

} // namespace
} // namespace brenn::test
