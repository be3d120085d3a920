// Atan's table reduction (double LA and HA, single HA, and Atan2 HA by its quotient): the ends of
// every row, where the reduced argument is largest and the row index changes, within 0.6 ulp and
// increasing across each row's start; the ends of the table, where the quotient changes form (a/1
// below, -1/a above); huge and tiny arguments, infinities and NaN. References are the C library's
// long double atanl, far more accurate than a double ulp.
#include <cfloat>
#include <cmath>
#include <gtest/gtest.h>
#include <random>
#include <string>
#include <vector>

#include "tests/vecmath/kernels.h"

namespace brenn::test {
namespace {

constexpr int kLA = 0, kHA = 1;
constexpr long double kPi = 3.14159265358979323846264338327950288L;

// The rows' starts: 2^e (1 + j/2^k) for the table's binades [2^-l, 2^m), then 2^m.
template <class T>
std::vector<T> RowStarts() {
    const int k = sizeof(T) == 4 ? 5 : 4, l = sizeof(T) == 4 ? 16 : 10, m = sizeof(T) == 4 ? 6 : 5;
    std::vector<T> c;
    for (int e = -l; e < m; ++e)
        for (int j = 0; j < (1 << k); ++j)
            c.push_back(std::ldexp(T(1) + T(j) / T(1 << k), e));
    c.push_back(std::ldexp(T(1), m));
    return c;
}


template <class T>
void ExpectWithin(const char* row, int slot, const std::vector<T>& x, double bound) {
    std::vector<T> y = Call(row, slot, x);
    int bad = 0;
    for (size_t i = 0; i < x.size() && bad < 5; ++i)
        if (!(UlpError(y[i], atanl((long double)x[i])) <= bound))
            ++bad, ADD_FAILURE() << row << " slot " << slot << std::hexfloat << " x " << x[i]
                                 << " got " << y[i] << " ulp " << std::defaultfloat
                                 << UlpError(y[i], atanl((long double)x[i]));
}

// Each row's start, the last two values of the row before, the next two, and the
// middle of the row, of both signs; the results within 0.6 ulp and, over each start,
// increasing.
template <class T>
void RowEdges(const char* row, int slot) {
    std::vector<T> x;
    for (T c : RowStarts<T>()) {
        T below = std::nextafter(c, T(0)), above = std::nextafter(c, T(1e30));
        x.insert(x.end(), {std::nextafter(below, T(0)), below, c, above,
                           std::nextafter(above, T(1e30)), c * T(1.03125)});
    }
    std::vector<T> neg(x.size());
    for (size_t i = 0; i < x.size(); ++i)
        neg[i] = -x[i];
    ExpectWithin(row, slot, x, 0.6);
    ExpectWithin(row, slot, neg, 0.6);
    std::vector<T> y = Call(row, slot, x);
    for (size_t i = 0; i + 6 <= x.size(); i += 6)
        for (int j = 0; j < 4; ++j)
            EXPECT_LE(y[i + j], y[i + j + 1])
                << row << " slot " << slot << std::hexfloat << " x " << x[i + j + 1];
}

TEST(AtanTable, RowEdgesWithinBoundAndIncreasing) {
    RowEdges<double>("dAtan", kLA);
    RowEdges<double>("dAtan", kHA);
    RowEdges<float>("sAtan", kHA);
}

// Atan2 HA takes the row of its quotient: ordinates that put the quotient at each row's
// start and an ulp or two either side, at several scales of the abscissa, in all four
// quadrants and swapped (|a| > |b|), within 0.6 ulp of atan2l; in double also the
// quotients below the table, where atan(c) comes from the series.
template <class T>
void Atan2RowEdges(const char* row) {
    std::vector<T> starts = RowStarts<T>();
    if (sizeof(T) == 8)
        for (int e = -11; e >= -40; --e)
            starts.insert(starts.begin(), std::ldexp(T(1.0) + T(e % 16) / 16, e));
    std::vector<T> a, b;
    for (T c : starts) {
        if (c > 1) break;
        for (T x : {T(1), T(3.7), T(0x1.3p-40), T(0x1.8p+45)}) {
            T y = c * x;
            for (T v : {std::nextafter(std::nextafter(y, T(0)), T(0)), std::nextafter(y, T(0)), y,
                        std::nextafter(y, T(1e30))})
                for (int q = 0; q < 8; ++q) {
                    T n = q & 1 ? -v : v, d = q & 2 ? -x : x;
                    a.push_back(q & 4 ? d : n);
                    b.push_back(q & 4 ? n : d);
                }
        }
    }
    std::vector<T> y(a.size());
    As<Binary<T>>(Slot(row, kHA))(int(a.size()), a.data(), b.data(), y.data());
    int bad = 0;
    for (size_t i = 0; i < a.size() && bad < 5; ++i) {
        long double ref = atan2l(a[i], b[i]);
        if (!(UlpError(y[i], ref) <= 0.6))
            ++bad, ADD_FAILURE() << std::hexfloat << row << " (" << a[i] << ", " << b[i] << ") got "
                                 << y[i] << std::defaultfloat << " ulp " << UlpError(y[i], ref);
    }
}

TEST(AtanTable, Atan2QuotientsAtRowEdgesWithinBound) {
    Atan2RowEdges<float>("sAtan2");
    Atan2RowEdges<double>("dAtan2");
}

// Random arguments over the table and a binade beyond each end, log-uniform.
template <class T>
void Dense(const char* row, int slot, std::mt19937& gen) {
    const int m = sizeof(T) == 4 ? 6 : 5;
    std::uniform_real_distribution<double> e(-m - 1, m + 1);
    std::vector<T> x;
    for (int i = 0; i < 40000; ++i)
        x.push_back(T(std::exp2(e(gen))) * (i % 2 ? T(-1) : T(1)));
    ExpectWithin(row, slot, x, 0.6);
}

TEST(AtanTable, DenseOverTheTableWithinBound) {
    std::mt19937 gen(17);
    Dense<double>("dAtan", kHA, gen);
    Dense<float>("sAtan", kHA, gen);
}

// Beyond the table: huge values give pi/2 (the top row's quotient -1/a vanishes), the
// largest finite and infinity without a flag; tiny ones and denormals give themselves;
// NaN comes back quieted with its sign and payload.
template <class T>
void Ends(const char* row, int slot) {
    const T inf = std::numeric_limits<T>::infinity();
    const T half = T(kPi / 2);
    const std::vector<T> x = {std::numeric_limits<T>::max(),
                              T(0x1p100),
                              inf,
                              -inf,
                              std::numeric_limits<T>::denorm_min(),
                              -std::numeric_limits<T>::min(),
                              T(0x1p-30),
                              T(-0.0)};
    const std::vector<T> want = {half, half, half, -half, x[4], x[5], x[6], T(-0.0)};
    CsrScope csr(0x1F80);
    std::vector<T> y = Call(row, slot, x);
    for (size_t i = 0; i < x.size(); ++i)
        EXPECT_TRUE(SameValue(y[i], want[i]) ||
                    (i == 6 && UlpError(y[i], atanl((long double)x[i])) <= 0.5))
            << row << " slot " << slot << std::hexfloat << " x " << x[i] << " got " << y[i];
    EXPECT_FALSE(_mm_getcsr() & 0x5) << row << " slot " << slot; // invalid, divide-by-zero
    ExpectNaNsQuieted(As<Unary<T>>(Slot(row, slot)), row);
}

TEST(AtanTable, BeyondTheTableInfinitiesAndNaN) {
    Ends<double>("dAtan", kLA);
    Ends<double>("dAtan", kHA);
    Ends<float>("sAtan", kHA);
}

} // namespace
} // namespace brenn::test
