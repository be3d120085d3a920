// The small exact kernels (CopySign, NextAfter, Fdim, Fmax, Fmin, MaxMag, MinMag, Fmod,
// Remainder) against the C library on special values and random bit patterns (the
// min/max rows with C99's rule for a signalling NaN, where the library differs), the
// min/max rows' NaN lanes and invalid flag, their statuses, LinearFrac against its
// expression, and every length and misalignment without a touch outside the vectors.
#define _GNU_SOURCE 1
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"

#if defined(__SANITIZE_ADDRESS__)
#include <sanitizer/asan_interface.h>
#define SMALL_POISON(p, n) ASAN_POISON_MEMORY_REGION(p, n)
#define SMALL_UNPOISON(p, n) ASAN_UNPOISON_MEMORY_REGION(p, n)
#else
#define SMALL_POISON(p, n) ((void)(p), (void)(n))
#define SMALL_UNPOISON(p, n) ((void)(p), (void)(n))
#endif

namespace brenn::test {
namespace {

template <class T>
struct Oracle {
    const char* row; // without its type letter
    T (*ref)(T, T);
};

// The C library's own functions, called through pointers so that the compiler's
// inline expansions (which may order signed zeros otherwise) stay out of the way.
template <class T>
struct Libm;
template <>
struct Libm<float> {
    static inline float (*volatile copysign)(float, float) = ::copysignf;
    static inline float (*volatile nextafter)(float, float) = ::nextafterf;
    static inline float (*volatile fdim)(float, float) = ::fdimf;
    static inline float (*volatile fmax)(float, float) = ::fmaxf;
    static inline float (*volatile fmin)(float, float) = ::fminf;
    static inline float (*volatile fmod)(float, float) = ::fmodf;
    static inline float (*volatile remainder)(float, float) = ::remainderf;
};
template <>
struct Libm<double> {
    static inline double (*volatile copysign)(double, double) = ::copysign;
    static inline double (*volatile nextafter)(double, double) = ::nextafter;
    static inline double (*volatile fdim)(double, double) = ::fdim;
    static inline double (*volatile fmax)(double, double) = ::fmax;
    static inline double (*volatile fmin)(double, double) = ::fmin;
    static inline double (*volatile fmod)(double, double) = ::fmod;
    static inline double (*volatile remainder)(double, double) = ::remainder;
};

// C99's fmax and fmin take a NaN operand, signalling or quiet, as missing data: the
// other operand; only two NaNs give a NaN. The C library's functions return a quiet NaN
// for a signalling operand instead, so they serve for the other operands only.
template <class T>
T MissingData(T a, T b, T (*ordered)(T, T)) {
    if (std::isnan(a)) return std::isnan(b) ? a + b : b;
    if (std::isnan(b)) return a;
    return ordered(a, b);
}

// Magnitude selection as the rows define it: the larger (smaller) magnitude, and on a
// tie or a NaN what Fmax (Fmin) gives.
template <class T>
T MaxMagRef(T a, T b) {
    if (std::isgreater(std::fabs(a), std::fabs(b))) return a;
    if (std::isless(std::fabs(a), std::fabs(b))) return b;
    return MissingData<T>(a, b, Libm<T>::fmax);
}
template <class T>
T MinMagRef(T a, T b) {
    if (std::isless(std::fabs(a), std::fabs(b))) return a;
    if (std::isgreater(std::fabs(a), std::fabs(b))) return b;
    return MissingData<T>(a, b, Libm<T>::fmin);
}

template <class T>
std::vector<Oracle<T>> Oracles() {
    using M = Libm<T>;
    return {
        {"CopySign", [](T a, T b) { return M::copysign(a, b); }},
        {"NextAfter", [](T a, T b) { return M::nextafter(a, b); }},
        {"Fdim", [](T a, T b) { return M::fdim(a, b); }},
        {"Fmax", [](T a, T b) { return MissingData<T>(a, b, M::fmax); }},
        {"Fmin", [](T a, T b) { return MissingData<T>(a, b, M::fmin); }},
        {"MaxMag", MaxMagRef<T>},
        {"MinMag", MinMagRef<T>},
        {"Fmod", [](T a, T b) { return M::fmod(a, b); }},
        {"Remainder", [](T a, T b) { return M::remainder(a, b); }},
    };
}

template <class T>
std::string RowName(const char* fn) {
    return std::string(sizeof(T) == 4 ? "s" : "d") + fn;
}

template <class T>
T FromU(uint64_t u) {
    if constexpr (sizeof(T) == 4)
        return __builtin_bit_cast(float, uint32_t(u));
    else
        return __builtin_bit_cast(double, u);
}

// Equal bits; for NaN, both NaN with the same quiet bit (sign and payload of a NaN
// made by arithmetic are the hardware's choice).
template <class T>
bool Same(T got, T want) {
    if (std::isnan(got) && std::isnan(want)) {
        constexpr uint64_t keep = sizeof(T) == 4 ? 0x7FC00000u : 0x7FF8000000000000ull;
        return (Bits(got) & keep) == (Bits(want) & keep);
    }
    return Bits(got) == Bits(want);
}

template <class T>
std::vector<T> SpecialValues() {
    constexpr bool s = sizeof(T) == 4;
    T snan = s ? FromU<T>(0x7FA00001u) : FromU<T>(0x7FF4000000000001ull);
    T qnan = s ? FromU<T>(0x7FC12345u) : FromU<T>(0x7FF8000000012345ull);
    T tiny = std::numeric_limits<T>::denorm_min();
    T bigDen = std::numeric_limits<T>::min() - tiny;
    std::vector<T> v = {T(0),     tiny,          T(3) * tiny, bigDen, std::numeric_limits<T>::min(),
                        T(0.75),  T(1),          T(1.5),      T(2),   T(2.5),
                        T(3),     T(7),          T(1e6),      T(0.1), std::numeric_limits<T>::max(),
                        INFINITY, T(123456789.0)};
    size_t k = v.size();
    for (size_t i = 0; i < k; ++i)
        v.push_back(-v[i]);
    v.push_back(qnan);
    v.push_back(-qnan);
    v.push_back(snan);
    return v;
}

// Runs a row's slot on a and b at once and checks each element against the oracle.
template <class T>
void CheckAgainst(const Oracle<T>& o, int slot, const std::vector<T>& a, const std::vector<T>& b) {
    std::vector<T> y(a.size());
    As<Binary<T>>(Slot(RowName<T>(o.row), slot))(int(a.size()), a.data(), b.data(), y.data());
    int shown = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        T want = o.ref(a[i], b[i]);
        if (!Same(y[i], want) && shown++ < 5)
            ADD_FAILURE() << RowName<T>(o.row) << " slot " << slot << " of " << a[i] << " ("
                          << std::hex << Bits(a[i]) << ") and " << b[i] << " (" << Bits(b[i])
                          << ") gives " << Bits(y[i]) << ", wanted " << Bits(want) << std::dec;
    }
}

template <class T>
void SpecialPairs() {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<T> v = SpecialValues<T>(), a, b;
    for (T x : v)
        for (T w : v)
            a.push_back(x), b.push_back(w);
    for (const Oracle<T>& o : Oracles<T>())
        for (int slot = 0; slot < 3; ++slot)
            CheckAgainst(o, slot, a, b);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(SmallKernels, SpecialOperandPairsMatchTheCLibrary) {
    SpecialPairs<float>();
    SpecialPairs<double>();
}

// Random bit patterns over the whole format, and pairs whose exponents are close, so
// that Fmod and Remainder run long divisions of every length and hit ties.
template <class T>
void RandomPairs() {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    std::mt19937_64 gen(20261121);
    constexpr int kN = 1 << 15;
    constexpr int kMant = sizeof(T) == 4 ? 23 : 52;
    std::vector<T> a(kN), b(kN);
    for (int i = 0; i < kN; ++i) {
        uint64_t u = gen(), w = gen();
        if constexpr (sizeof(T) == 4) u >>= 32, w >>= 32;
        if (i % 4 == 1) { // exponents within 20 of each other, denormals included
            constexpr uint64_t sign = uint64_t(1) << (sizeof(T) * 8 - 1);
            constexpr uint64_t sig = (uint64_t(1) << kMant) - 1;
            uint64_t e = (u >> kMant) % (sizeof(T) == 4 ? 200 : 2000);
            uint64_t f = e + (w >> kMant) % 41;
            u = (u & sign) | ((e + 20) << kMant) | (u & sig);
            w = (w & sign) | (f < 20 ? 0 : (f - 20) << kMant) | (w & sig);
        } else if (i % 4 == 2) { // small integers: ties of Remainder
            a[i] = T(int64_t(u % 2001) - 1000);
            b[i] = T(int64_t(w % 41) - 20) * T(i % 8 == 2 ? 1 : 0.5);
            continue;
        }
        a[i] = FromU<T>(u);
        b[i] = FromU<T>(w);
    }
    for (const Oracle<T>& o : Oracles<T>())
        for (int slot = 0; slot < 3; slot += 2)
            CheckAgainst(o, slot, a, b);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(SmallKernels, RandomOperandsMatchTheCLibraryBitForBit) {
    RandomPairs<float>();
    RandomPairs<double>();
}

// Fmax, Fmin, MaxMag and MinMag take a NaN of either kind and sign as missing data, in
// either operand, at every level, in any lane of the head, the body or the tail, among
// ordered lanes: the other operand, to the bit. Invalid is raised exactly when an
// operand is signalling; two NaNs give a quiet NaN.
template <class T>
bool IsQuiet(T x) {
    constexpr uint64_t quietBit = sizeof(T) == 4 ? 0x00400000u : 0x0008000000000000ull;
    return std::isnan(x) && (Bits(x) & quietBit);
}

// One NaN-bearing pair at lane `at` of a call of eleven elements (a head, a round of
// eight and a tail at either offset) among ordered pairs: the pair's result, and
// whether the call raised invalid.
template <class T>
bool MinMaxLane(const char* fn, int slot, int off, int at, T x, T w, T& y) {
    constexpr int kLen = 11;
    alignas(16) T a[kLen + 1], b[kLen + 1], r[kLen + 1];
    for (int i = 0; i <= kLen; ++i)
        a[i] = T(i + 1), b[i] = T(-i - 1.5);
    a[off + at] = x;
    b[off + at] = w;
    unsigned flags;
    {
        CsrScope csr(0x1F80);
        As<Binary<T>>(Slot(RowName<T>(fn), slot))(kLen, a + off, b + off, r + off);
        flags = _mm_getcsr();
    }
    y = r[off + at];
    return flags & 0x1;
}

template <class T>
void MinMaxNaNs() {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    constexpr bool s = sizeof(T) == 4;
    const T nans[] = {s ? FromU<T>(0x7FC00000u) : FromU<T>(0x7FF8000000000000ull),
                      s ? FromU<T>(0xFFC12345u) : FromU<T>(0xFFF8000000012345ull),
                      s ? FromU<T>(0x7F800001u) : FromU<T>(0x7FF0000000000001ull),
                      s ? FromU<T>(0xFFA00000u) : FromU<T>(0xFFF4000000000000ull),
                      s ? FromU<T>(0x7FBFFFFFu) : FromU<T>(0x7FF7FFFFFFFFFFFFull)};
    const T others[] = {T(1.5),
                        T(-2),
                        T(0),
                        T(-0.0),
                        INFINITY,
                        -INFINITY,
                        std::numeric_limits<T>::denorm_min(),
                        std::numeric_limits<T>::max()};
    int shown = 0;
    auto check = [&](const char* fn, int slot, int off, int at, T x, T w, bool wantInvalid,
                     bool (*right)(T, T)) {
        T y;
        bool invalid = MinMaxLane(fn, slot, off, at, x, w, y);
        if ((invalid != wantInvalid || !right(y, std::isnan(x) ? w : x)) && shown++ < 8)
            ADD_FAILURE() << RowName<T>(fn) << " slot " << slot << " lane " << off + at << " of "
                          << std::hex << Bits(x) << " and " << Bits(w) << " gives " << Bits(y)
                          << std::dec << (invalid ? ", invalid" : ", no invalid");
    };
    auto isOther = [](T y, T other) { return Bits(y) == Bits(other); };
    auto isQuietNaN = [](T y, T) { return IsQuiet(y); };
    for (const char* fn : {"Fmax", "Fmin", "MaxMag", "MinMag"})
        for (int slot = 0; slot < 3; ++slot)
            for (int off = 0; off < 2; ++off)
                for (int at = 0; at < 11; ++at)
                    for (T x : nans) {
                        for (T w : others) {
                            check(fn, slot, off, at, x, w, !IsQuiet(x), isOther);
                            check(fn, slot, off, at, w, x, !IsQuiet(x), isOther);
                        }
                        for (T w : nans)
                            check(fn, slot, off, at, x, w, !IsQuiet(x) || !IsQuiet(w), isQuietNaN);
                    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(SmallKernels, MinAndMaxTakeEveryNaNAsMissingData) {
    MinMaxNaNs<float>();
    MinMaxNaNs<double>();
}

template <class T>
int StatusOf(const char* row, T x, T w, T* y) {
    brenn_zar_kernel_SetErrStatus(0);
    As<Binary<T>>(Slot(row, 1))(1, &x, &w, y);
    return brenn_zar_kernel_GetErrStatus();
}

TEST(SmallKernels, FmodAndRemainderReportOnlyTheSingularCases) {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    float y;
    EXPECT_EQ(StatusOf("sFmod", 7.0f, 0.0f, &y), 2);
    EXPECT_TRUE(std::isnan(y));
    EXPECT_EQ(StatusOf("sFmod", 7.0f, INFINITY, &y), 0);
    EXPECT_EQ(y, 7.0f);
    EXPECT_EQ(StatusOf("sFmod", -3.0f, 1.0f, &y), 0);
    EXPECT_EQ(Bits(y), Bits(-0.0f));
    EXPECT_EQ(StatusOf("sFmod", INFINITY, 1.0f, &y), 2);
    EXPECT_EQ(StatusOf("sFmod", -INFINITY, 3.0f, &y), 2);
    EXPECT_EQ(StatusOf("sFmod", NAN, 0.0f, &y), 0) << "a NaN is not an error";
    EXPECT_EQ(StatusOf("sRemainder", 5.0f, 2.0f, &y), 0);
    EXPECT_EQ(y, 1.0f);
    EXPECT_EQ(StatusOf("sRemainder", 7.0f, 2.0f, &y), 0);
    EXPECT_EQ(y, -1.0f) << "a tie goes to the even quotient";
    EXPECT_EQ(StatusOf("sRemainder", 1.0f, -0.0f, &y), 2);
    double d;
    EXPECT_EQ(StatusOf<double>("dFmod", 7.0, 0.0, &d), 2);
    EXPECT_EQ(StatusOf<double>("dRemainder", INFINITY, 2.0, &d), 2);
    EXPECT_EQ(StatusOf<double>("dRemainder", 7.0, NAN, &d), 0);
    // The other rows never report, NaN and infinities included.
    for (const Oracle<float>& o : Oracles<float>()) {
        std::string row = RowName<float>(o.row);
        if (row == "sFmod" || row == "sRemainder") continue;
        for (float x : SpecialValues<float>())
            EXPECT_EQ(StatusOf(row.c_str(), x, 0.0f, &y), 0) << row;
    }
    // The report carries the row's public name and the element's index.
    // The record's input-vector pointer is not cleared at creation: set it, so that the
    // index counts from this call's vector.
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_CALLBACK);
    static int index;
    static char name[32];
    brenn_zar_kernel_SetErrorCallBack([](ErrorRecord* r) {
        index = r->index;
        std::snprintf(name, sizeof name, "%s", r->functionName);
        return 0;
    });
    const double a[11] = {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11};
    double b[11] = {3, 3, 3, 3, 3, 3, 3, 3, 3, 0, 3}, r[11];
    _zardFmod(11, a, b, r);
    EXPECT_EQ(index, 9);
    EXPECT_STREQ(name, "vdFmod");
    EXPECT_EQ(r[8], 0.0);
    EXPECT_EQ(r[10], 2.0);
    brenn_zar_kernel_ClearErrorCallBack();
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

// LinearFrac against the expression in the element type, in the general loop and in
// the ones for a zero scale (a NaN scale is not zero).
template <class T>
void LinearFracCases() {
    using Fn = void (*)(int, const T*, const T*, T, T, T, T, T*);
    std::mt19937 gen(7);
    std::uniform_real_distribution<T> u(-4, 4);
    std::vector<T> a(37), b(37), y(37);
    for (int i = 0; i < 37; ++i)
        a[i] = u(gen), b[i] = u(gen);
    a[3] = INFINITY, b[5] = NAN, b[6] = T(-0.25); // b[6] with scale 4 and shift 1: 0 denominator
    const T cases[][4] = {{T(1.5), T(-0.5), T(4), T(1)}, {T(0), T(2), T(-3), T(0.5)},
                          {T(2), T(1), T(0), T(-0.75)},  {T(0), T(2), T(0), T(0)},
                          {T(NAN), T(1), T(1), T(1)},    {T(-0.0), T(1), T(2), T(1)}};
    for (int slot = 0; slot < 3; ++slot) {
        Fn k = As<Fn>(Slot(RowName<T>("LinearFrac"), slot));
        for (const auto& c : cases) {
            k(37, a.data(), b.data(), c[0], c[1], c[2], c[3], y.data());
            for (int i = 0; i < 37; ++i) {
                T num = c[0] == 0 ? c[1] : c[0] * a[i] + c[1];
                T den = c[2] == 0 ? c[3] : c[2] * b[i] + c[3];
                ASSERT_TRUE(Same(y[i], T(num / den)))
                    << "scales " << c[0] << ", " << c[2] << " element " << i << ": " << y[i];
            }
        }
    }
}

TEST(SmallKernels, LinearFracIsItsExpressionWithConstantSidesForZeroScales) {
    LinearFracCases<float>();
    LinearFracCases<double>();
}

// A vector of n elements `mis` elements into a block with four fence elements on each
// side: the fences are poisoned under AddressSanitizer (a read fails) and hold a
// pattern that a stray write would change.
template <class T>
struct Fenced {
    static constexpr int kFence = 4;
    std::vector<T> block;
    T* v;
    int n;
    Fenced(int n_, int mis) : block(size_t(n_ + mis + 2 * kFence)), n(n_) {
        for (T& x : block)
            x = T(-7.25);
        v = block.data() + kFence + mis;
        SMALL_POISON(block.data(), sizeof(T) * (kFence + mis));
        SMALL_POISON(v + n, sizeof(T) * kFence);
    }
    void Check() {
        SMALL_UNPOISON(block.data(), sizeof(T) * block.size());
        for (T* p = block.data(); p < v; ++p)
            EXPECT_EQ(*p, T(-7.25)) << "write before the vector";
        for (T* p = v + n; p < block.data() + block.size(); ++p)
            EXPECT_EQ(*p, T(-7.25)) << "write after the vector";
    }
};

template <class T>
void LengthsAndMisalignments() {
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_IGNORE);
    std::vector<T> sv = SpecialValues<T>();
    constexpr int kMax = 40;
    T a[kMax], b[kMax];
    for (int i = 0; i < kMax; ++i)
        a[i] = sv[(i * 7) % sv.size()], b[i] = sv[(i * 11 + 3) % sv.size()];
    std::vector<std::string> rows;
    for (const Oracle<T>& o : Oracles<T>())
        rows.push_back(RowName<T>(o.row));
    rows.push_back(RowName<T>("LinearFrac"));
    for (const std::string& row : rows) {
        BrennKernel k = Slot(row, 0);
        ASSERT_NE(k, nullptr) << row;
        bool lin = row.find("LinearFrac") != std::string::npos;
        T full[kMax];
        auto call = [&](int n, const T* pa, const T* pb, T* py) {
            if (lin)
                As<void (*)(int, const T*, const T*, T, T, T, T, T*)>(k)(n, pa, pb, T(2), T(1),
                                                                         T(3), T(-1), py);
            else
                As<Binary<T>>(k)(n, pa, pb, py);
        };
        call(kMax, a, b, full);
        for (int n = 0; n <= kMax; ++n)
            for (int mis = 0; mis < 4; ++mis) {
                Fenced<T> fa(n, mis), fb(n, 3 - mis), fy(n, (mis + 1) % 4);
                for (int i = 0; i < n; ++i)
                    fa.v[i] = a[i], fb.v[i] = b[i];
                call(n, fa.v, fb.v, fy.v);
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(Same(fy.v[i], full[i]))
                        << row << " n " << n << " misalignment " << mis << " element " << i;
                call(n, fa.v, fb.v, fb.v); // in place over b, then over a
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(Same(fb.v[i], full[i])) << row << " in place, element " << i;
                for (int i = 0; i < n; ++i)
                    fb.v[i] = b[i];
                call(n, fa.v, fb.v, fa.v);
                for (int i = 0; i < n; ++i)
                    ASSERT_TRUE(Same(fa.v[i], full[i])) << row << " in place, element " << i;
                fa.Check();
                fb.Check();
                fy.Check();
            }
    }
    brenn_zar_kernel_SetMode(BRENN_MODE_ERRMODE_DEFAULT);
}

TEST(SmallKernels, EveryLengthAndMisalignmentStaysInsideTheVectors) {
    LengthsAndMisalignments<float>();
    LengthsAndMisalignments<double>();
}

} // namespace
} // namespace brenn::test
