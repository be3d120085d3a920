// The inverse error-function rows ErfInv: values against a long double inversion where
// the rows change (the binades of 1 - |x| and their sixteenths, t = 1 exactly, the last
// double below 1, tiny and denormal arguments), the ends of the domain with their
// statuses, NaNs, the caller's MXCSR, and vectors with special lanes against single
// elements; the double EP against its steps, evaluated one element at a time.
#include <cfloat>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <gtest/gtest.h>
#include <random>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"
#include "vecmath/erf/erfinv_tables.h"

namespace brenn::test {
namespace {

constexpr int kSlotLA = 0, kSlotHA = 1, kSlotEP = 2;
constexpr int kSlots[] = {kSlotLA, kSlotHA, kSlotEP};

template <class T>
const char* RowOf() {
    return sizeof(T) == 4 ? "sErfInv" : "dErfInv";
}

template <class T>
T Call(int slot, T x, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    T y;
    As<Unary<T>>(Slot(RowOf<T>(), slot))(1, &x, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

// erfinv(x) for |x| < 1 by Newton's steps on erfc(y) = 1 - |x| (convex for y >= 0: the
// iterates rise to the root), in long double; tiny x by the series' first terms.
long double Ref(long double x) {
    long double a = fabsl(x);
    if (a < 1e-9L) return x * sqrtl(M_PIl) / 2 * (1 + M_PIl * x * x / 12);
    long double t = 1 - a, y = 0;
    for (int i = 0; i < 400; ++i) {
        long double step = (erfcl(y) - t) / (2 / sqrtl(M_PIl) * expl(-y * y));
        y += step;
        if (fabsl(step) <= 1e-21L * y) break;
    }
    return x < 0 ? -y : y;
}

template <class T>
void ExpectWithinLevel(int slot, T x) {
    T y = Call(slot, x);
    long double ref = Ref(x);
    if (slot == kSlotEP) {
        int bits = sizeof(T) == 4 ? 11 : 26;
        EXPECT_TRUE(fabsl((y - ref) / ref) <= ldexpl(1.0L, -bits) || UlpError(y, ref) <= 1)
            << RowOf<T>() << " EP x " << x << " got " << y;
    } else {
        EXPECT_LE(UlpError(y, ref), slot == kSlotHA ? 1.0 : 4.0)
            << RowOf<T>() << " slot " << slot << " x " << double(x) << " got " << y;
    }
}

template <class T>
void ExpectRowJoins() {
    constexpr int kLow = sizeof(T) == 4 ? -24 : -53;
    std::vector<T> xs;
    for (int e = kLow; e <= -1; ++e)
        for (int k = 0; k < 16; ++k) {
            T t = std::ldexp(T(1 + k / 16.0), e);
            for (T x : {T(1) - t, std::nextafter(T(1) - t, T(0)), std::nextafter(T(1) - t, T(1))})
                if (x < 1 && x > 0) xs.push_back(x);
        }
    for (T x : {T(0.5), std::nextafter(T(0.5), T(0)), T(0.25), T(1e-3), T(2.9e-11), T(1e-30),
                std::numeric_limits<T>::min(), std::numeric_limits<T>::denorm_min(),
                T(3) * std::numeric_limits<T>::denorm_min(), std::nextafter(T(1), T(0))})
        xs.push_back(x);
    for (int slot : kSlots)
        for (T p : xs)
            for (T x : {p, -p})
                ExpectWithinLevel(slot, x);
}

TEST(ErfInvRows, ValuesWhereTheRowsChange) {
    ExpectRowJoins<float>();
    ExpectRowJoins<double>();
}

template <class T>
void ExpectEnds() {
    const T inf = std::numeric_limits<T>::infinity();
    struct Case {
        T x, want;
        int status;
    };
    const T nan = std::numeric_limits<T>::quiet_NaN();
    for (const Case& c :
         {Case{T(1), inf, 2}, Case{T(-1), -inf, 2}, Case{T(1.5), nan, 1}, Case{T(-1.5), nan, 1},
          Case{std::nextafter(T(1), T(2)), nan, 1}, Case{inf, nan, 1}, Case{-inf, nan, 1},
          Case{T(0), T(0), 0}, Case{T(-0.0), T(-0.0), 0}})
        for (int slot : kSlots) {
            int st;
            T y = Call(slot, c.x, &st);
            if (std::isnan(c.want))
                EXPECT_TRUE(std::isnan(y)) << RowOf<T>() << " x " << c.x;
            else
                EXPECT_TRUE(SameValue(y, c.want)) << RowOf<T>() << " x " << c.x << " got " << y;
            EXPECT_EQ(st, c.status) << RowOf<T>() << " slot " << slot << " x " << c.x;
        }
}

TEST(ErfInvRows, EndsOfTheDomainWithStatuses) {
    ExpectEnds<float>();
    ExpectEnds<double>();
}

TEST(ErfInvRows, NaNsComeBackQuietedWithoutStatus) {
    for (int slot : kSlots) {
        const std::string what = " slot " + std::to_string(slot);
        ExpectNaNsQuieted(As<Unary<float>>(Slot(RowOf<float>(), slot)), RowOf<float>() + what);
        ExpectNaNsQuieted(As<Unary<double>>(Slot(RowOf<double>(), slot)), RowOf<double>() + what);
    }
}

// The caller's MXCSR controls stay as they were, results are those at nearest whatever
// rounding is set, and a vector with special lanes gives what single elements give.
template <class T>
void ExpectVectorsAndCsr() {
    const T mix[] = {T(0.3),   T(INFINITY), T(-1),   T(1),    T(-0.999), T(NAN),  T(0.96), T(-1.5),
                     T(1e-30), T(0.9999),   T(-0.0), T(0.55), T(2),      T(-0.7), T(0.75), T(1e-5)};
    std::vector<T> in;
    for (int r = 0; r < 5; ++r)
        for (T v : mix)
            in.push_back(v);
    std::vector<T> out(in.size()), near(in.size());
    for (int slot : kSlots) {
        auto k = As<Unary<T>>(Slot(RowOf<T>(), slot));
        k(int(in.size()), in.data(), near.data());
        for (size_t i = 0; i < in.size(); ++i)
            EXPECT_TRUE(SameValue(near[i], Call(slot, in[i])))
                << RowOf<T>() << " slot " << slot << " x " << in[i];
        for (unsigned csr : {0x1F80u, 0x7F80u, 0x3F80u, 0x5F80u}) {
            CsrScope scope(csr);
            k(int(in.size()), in.data(), out.data());
            EXPECT_EQ(_mm_getcsr() & ~0x3Fu, csr) << RowOf<T>() << " slot " << slot;
            for (size_t i = 0; i < in.size(); ++i)
                EXPECT_TRUE(SameValue(out[i], near[i])) << RowOf<T>() << " " << in[i];
        }
    }
}

TEST(ErfInvRows, VectorsAsElementsAndCallerCsrKept) {
    ExpectVectorsAndCsr<float>();
    ExpectVectorsAndCsr<double>();
}

// The double EP's steps: t = 1 - min(|x|, 0x3FEFFFFFFFFFFFFF), the row of t's top 16
// bits from t = 2^-53 on, c = (t & 0x3FFF000000000000) | 0x0000800000000000, v = t - c,
// P = ((A*v + B)*v + C)*v + D, x*P.
double ErfInvCubicSteps(double x) {
    double t = 1.0 - std::fmin(std::fabs(x), 0x1.fffffffffffffp-1);
    uint64_t bits;
    std::memcpy(&bits, &t, 8);
    const double* r = brenn::vm::erfInvRowsCubic[(bits >> 48) - (1023 - 53) * 16];
    uint64_t cb = (bits & 0x3FFF000000000000ull) | 0x0000800000000000ull;
    double c;
    std::memcpy(&c, &cb, 8);
    double v = t - c;
    double p = ((r[0] * v + r[1]) * v + r[2]) * v + r[3];
    return x * p;
}

// Random arguments over every binade of 1 - |x| (uniform in |x| and uniform in
// log t), and the row joins: bit for bit, and (one in eight) within 2^-26 or an ulp
// of a denormal result.
TEST(ErfInvRows, DoubleEpIsTheCubicOfItsRows) {
    auto k = As<Unary<double>>(Slot("dErfInv", kSlotEP));
    std::mt19937_64 gen(20261129);
    std::uniform_real_distribution<double> unit(0.0, 1.0), logt(-53.0, 0.0);
    std::vector<double> xs;
    for (int i = 0; i < 300000; ++i) {
        double a = i % 2 ? unit(gen) : 1.0 - std::exp2(logt(gen));
        if (a >= 1.0) a = 0x1.fffffffffffffp-1;
        xs.push_back(i % 4 < 2 ? a : -a);
    }
    for (int e = -53; e <= -1; ++e)
        for (int j = 0; j < 16; ++j) {
            double a = 1.0 - std::ldexp(1 + j / 16.0, e);
            for (double b : {a, std::nextafter(a, 0.0), std::nextafter(a, 1.0)})
                if (b > 0 && b < 1) xs.push_back(b);
        }
    for (double a : {0.0, 0x1p-1074, 0x1p-54, 0x1p-53, 2.9103830456733704e-11, 0.5,
                     0x1.fffffffffffffp-1})
        xs.push_back(a);
    std::vector<double> ys(xs.size());
    k(int(xs.size()), xs.data(), ys.data());
    int off = 0, wide = 0;
    for (size_t i = 0; i < xs.size(); ++i) {
        double want = ErfInvCubicSteps(xs[i]);
        if (!SameValue(ys[i], want) && off++ < 10)
            ADD_FAILURE() << "x " << xs[i] << " got " << ys[i] << " steps give " << want;
        if (i % 8) continue;
        long double ref = Ref(xs[i]);
        if (ref != 0 && fabsl((ys[i] - ref) / ref) > 0x1p-26L && UlpError(ys[i], ref) > 1 &&
            wide++ < 10)
            ADD_FAILURE() << "x " << xs[i] << " got " << ys[i] << " relative "
                          << double(fabsl((ys[i] - ref) / ref));
    }
    EXPECT_EQ(off, 0);
    EXPECT_EQ(wide, 0);
    // Tiny arguments run on the row of t = 1: x times the constant's P(1).
    EXPECT_TRUE(SameValue(Call(kSlotEP, 0x1p-1074), ErfInvCubicSteps(0x1p-1074)));
}

} // namespace
} // namespace brenn::test
