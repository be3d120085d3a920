// The inverse complementary error function and the inverse normal distribution function
// (ErfcInv, CdfNormInv): values against a long double inversion where the rows change,
// where the factor 1 - x (2p - 1) stops being exact, at the ends of CdfNormInv's central
// rational (p = 0.075, 0.925), in the tail's cells down to the
// least denormal and next to the ends; the ends and the outside with their statuses;
// NaNs; vectors with special lanes against single elements; the caller's MXCSR and x87
// control word.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <vector>
#include <xmmintrin.h>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

constexpr int kSlotLA = 0, kSlotHA = 1, kSlotEP = 2;
constexpr int kSlots[] = {kSlotLA, kSlotHA, kSlotEP};

enum class Fn { ErfcInv, CdfNormInv };

template <class T>
std::string RowOf(Fn f) {
    return std::string(sizeof(T) == 4 ? "s" : "d") + (f == Fn::ErfcInv ? "ErfcInv" : "CdfNormInv");
}

template <class T>
T Call(Fn f, int slot, T x, int* status = nullptr) {
    return CallUnary(As<Unary<T>>(Slot(RowOf<T>(f).c_str(), slot)), x, status);
}

// erfcinv(t) for 0 < t <= 1 by Newton's steps on erfc(y) = t in long double, from below
// the root (sqrt(-ln t) - 1 is, and erfc is convex on y >= 0: the iterates rise to it).
long double ErfcInvRef(long double t) {
    long double y = t < 1 / M_El ? sqrtl(-logl(t)) - 1 : 0;
    for (int i = 0; i < 400; ++i) {
        long double step = (erfcl(y) - t) / (2 / sqrtl(M_PIl) * expl(-y * y));
        y += step;
        if (fabsl(step) <= 1e-21L * y) break;
    }
    return y;
}

long double Ref(Fn f, long double x) {
    if (f == Fn::ErfcInv) return x <= 1 ? ErfcInvRef(x) : -ErfcInvRef(2 - x);
    long double r = sqrtl(2.0L) * (x <= 0.5L ? -ErfcInvRef(2 * x) : ErfcInvRef(2 * (1 - x)));
    // Next to 1/2 the difference 2(1 - p) - 1 loses digits: the series in p - 1/2.
    long double d = x - 0.5L;
    if (fabsl(d) < 1e-6L) r = sqrtl(2 * M_PIl) * d * (1 + M_PIl * d * d / 3);
    return r;
}

template <class T>
void ExpectWithinLevels(Fn f, T x) {
    const long double ref = Ref(f, x);
    for (int slot : kSlots) {
        T y = Call(f, slot, x);
        if (slot == kSlotEP) {
            int bits = sizeof(T) == 4 ? 11 : 26;
            EXPECT_TRUE(fabsl((y - ref) / ref) <= ldexpl(1.0L, -bits) || UlpError(y, ref) <= 1)
                << RowOf<T>(f) << " EP x " << x << " got " << y << " want " << double(ref);
        } else {
            EXPECT_LE(UlpError(y, ref), slot == kSlotHA ? 1.0 : 4.0)
                << RowOf<T>(f) << " slot " << slot << " x " << double(x) << " got " << y;
        }
    }
}

// Arguments where something changes: the sixteenths of each binade (the rows), the
// quarters and halves (where the factor becomes exact and t switches side), the tail's
// cells of 1/sqrt(-ln t), the least normal and denormal and their neighbours.
template <class T>
std::vector<T> Joins(Fn f) {
    std::vector<T> xs;
    constexpr int kLow = sizeof(T) == 4 ? -149 : -1074;
    for (int e = kLow; e <= 0; e += e < -60 ? 7 : 1)
        for (int k = 0; k < 16; k += e < -60 ? 5 : 1) {
            T t = std::ldexp(T(1 + k / 16.0), e);
            if (t <= 0 || t >= 1) continue;
            for (T x : {t, std::nextafter(t, T(0)), std::nextafter(t, T(1))})
                if (x > 0) xs.push_back(x);
        }
    // The tail's cells: t = e^(-1/u^2) with u = 1/32 + k/128.
    for (int k = 2; k < 18; ++k) {
        double u = 1.0 / 32 + k / 128.0, t = std::exp(-1 / (u * u));
        if (t > std::numeric_limits<T>::denorm_min() && t < 1) xs.push_back(T(t));
    }
    for (T x :
         {std::numeric_limits<T>::min(), std::numeric_limits<T>::denorm_min(),
          T(3) * std::numeric_limits<T>::denorm_min(), T(0.25), T(0.5), T(0.75), T(0.3), T(1e-3)})
        xs.push_back(x);
    // CdfNormInv's centre ends at |p - 1/2| = 0.425, where its rational meets the rows.
    if (f == Fn::CdfNormInv)
        for (T edge : {T(0.075), T(0.925)})
            for (T x : {std::nextafter(edge, T(0)), edge, std::nextafter(edge, T(1))})
                xs.push_back(x);
    // The upper half of the domain, mirrored: 2 - t for ErfcInv, 1 - t/2 for CdfNormInv.
    size_t n = xs.size();
    for (size_t i = 0; i < n; ++i) {
        T m = f == Fn::ErfcInv ? T(2) - xs[i] : T(1) - xs[i] / 2;
        if (m < (f == Fn::ErfcInv ? T(2) : T(1)) && m > 0) xs.push_back(m);
    }
    return xs;
}

TEST(InverseErfcRows, ValuesWhereTheRowsAndTheTailChange) {
    for (Fn f : {Fn::ErfcInv, Fn::CdfNormInv}) {
        for (float x : Joins<float>(f))
            ExpectWithinLevels(f, x);
        for (double x : Joins<double>(f))
            ExpectWithinLevels(f, x);
    }
}

template <class T>
void ExpectEnds() {
    const T inf = std::numeric_limits<T>::infinity(), nan = std::numeric_limits<T>::quiet_NaN();
    struct Case {
        Fn f;
        T x, want;
        int status;
    };
    const T above2 = std::nextafter(T(2), T(3)), above1 = std::nextafter(T(1), T(2));
    for (const Case& c : {
             Case{Fn::ErfcInv, T(0), inf, 2},
             Case{Fn::ErfcInv, T(-0.0), inf, 2},
             Case{Fn::ErfcInv, T(2), -inf, 2},
             Case{Fn::ErfcInv, T(1), T(0), 0},
             Case{Fn::ErfcInv, above2, nan, 1},
             Case{Fn::ErfcInv, -std::numeric_limits<T>::denorm_min(), nan, 1},
             Case{Fn::ErfcInv, inf, nan, 1},
             Case{Fn::ErfcInv, -inf, nan, 1},
             Case{Fn::CdfNormInv, T(0), -inf, 2},
             Case{Fn::CdfNormInv, T(-0.0), -inf, 2},
             Case{Fn::CdfNormInv, T(1), inf, 2},
             Case{Fn::CdfNormInv, T(0.5), T(0), 0},
             Case{Fn::CdfNormInv, above1, nan, 1},
             Case{Fn::CdfNormInv, T(-0.5), nan, 1},
             Case{Fn::CdfNormInv, inf, nan, 1},
             Case{Fn::CdfNormInv, -inf, nan, 1},
         })
        for (int slot : kSlots) {
            int st;
            T y = Call(c.f, slot, c.x, &st);
            if (std::isnan(c.want))
                EXPECT_TRUE(std::isnan(y)) << RowOf<T>(c.f) << " x " << c.x;
            else
                EXPECT_TRUE(SameValue(y, c.want)) << RowOf<T>(c.f) << " x " << c.x << " got " << y;
            EXPECT_EQ(st, c.status) << RowOf<T>(c.f) << " slot " << slot << " x " << c.x;
        }
}

TEST(InverseErfcRows, EndsAndOutsideWithStatuses) {
    ExpectEnds<float>();
    ExpectEnds<double>();
}

TEST(InverseErfcRows, NaNsComeBackQuietedWithoutStatus) {
    for (Fn f : {Fn::ErfcInv, Fn::CdfNormInv})
        for (int slot : kSlots) {
            const std::string what = " slot " + std::to_string(slot);
            ExpectNaNsQuieted(As<Unary<float>>(Slot(RowOf<float>(f).c_str(), slot)),
                              RowOf<float>(f) + what);
            ExpectNaNsQuieted(As<Unary<double>>(Slot(RowOf<double>(f).c_str(), slot)),
                              RowOf<double>(f) + what);
        }
}

// Vectors with special, central and tail lanes (up to five tail lanes in a row, so that
// a register holds any number of them) give what single elements give at every length,
// offset and in place; the caller's MXCSR controls and x87 control word stay as they
// were, and the results are those at nearest whatever rounding the caller set.
template <class T>
void ExpectVectorsAsElements(Fn f) {
    const T top = f == Fn::ErfcInv ? T(2) : T(1);
    const T pool[] = {
        T(0.3),    T(INFINITY),      T(-1),   top,        T(1e-30),
        T(NAN),    T(0.96),          T(0),    T(0.5),     T(1e-20),
        T(0.9999), T(-0.0),          T(0.55), T(top + 1), T(0.03),
        T(0.99),   T(top - T(1e-6)), T(0.01), T(1e-10),   std::numeric_limits<T>::denorm_min()};
    constexpr size_t N = sizeof pool / sizeof pool[0];
    const uint16_t cw = ReadX87Cw();
    for (int slot : kSlots) {
        auto k = As<Unary<T>>(Slot(RowOf<T>(f).c_str(), slot));
        T one[N];
        for (size_t i = 0; i < N; ++i)
            one[i] = Call(f, slot, pool[i]);
        ExpectLanesAgree(k, pool, one, 40, RowOf<T>(f) + " slot " + std::to_string(slot));
        std::vector<T> out(N);
        for (unsigned csr : {0x7F80u, 0x3F80u, 0x5F80u, 0x1F80u | 0x8040u}) {
            CsrScope scope(csr);
            LoadX87Cw(0x027F); // double precision, the caller's choice
            k(int(N), pool, out.data());
            EXPECT_EQ(ReadX87Cw(), 0x027F) << RowOf<T>(f) << " slot " << slot;
            LoadX87Cw(cw);
            EXPECT_EQ(_mm_getcsr() & ~0x3Fu, csr) << RowOf<T>(f) << " slot " << slot;
            for (size_t i = 0; i < N; ++i)
                EXPECT_TRUE(SameValue(out[i], one[i])) << RowOf<T>(f) << " " << pool[i];
        }
    }
}

TEST(InverseErfcRows, VectorsAsElementsAndCallerEnvironmentKept) {
    for (Fn f : {Fn::ErfcInv, Fn::CdfNormInv}) {
        ExpectVectorsAsElements<float>(f);
        ExpectVectorsAsElements<double>(f);
    }
}

} // namespace
} // namespace brenn::test
