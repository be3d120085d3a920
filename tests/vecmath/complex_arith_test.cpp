// Complex arithmetic rows: Mul, MulByConj and Div exact where products cancel and free
// of spurious overflow and underflow through the scaled scalar routine, the vector
// bodies agreeing with that routine lane by lane, statuses and their reports, single
// precision against double, and Add, Sub, Conj bit for bit at every length, in place.
#include <cfloat>
#include <gtest/gtest.h>
#include <limits>
#include <random>
#include <vector>

#include "tests/vecmath/complex_util.h"
#include "vecmath/complex/arith_scalar.h"

namespace brenn::test {
namespace {

constexpr double kInf = std::numeric_limits<double>::infinity();
constexpr double kNaN = std::numeric_limits<double>::quiet_NaN();

struct ZCase {
    Z a, b, want;
    int status;
};

// Hard elements of Mul, every slot: the scaled routine decides them.
TEST(ComplexArith, MulHardCasesAreExact) {
    const double e = 0x1p-52;
    const ZCase cases[] = {
        // ac and bd of 2e600: the real part overflows, the imaginary part cancels to +0
        {{1e300, 1e300}, {1e300, -1e300}, {kInf, 0.0}, 3},
        // ac = 1 - 2^-104 and bd = 1: the exact difference, which the plain formula loses
        {{1 + e, 1}, {1 - e, 1}, {-0x1p-104, 2}, 0},
        // huge times tiny, finite results
        {{0x1p1000, 0x3p1000}, {0x2p-1000, 0x1p-1000}, {-1, 7}, 0},
        // a denormal part and a huge one
        {{0x1p-1070, 0}, {0x1p1000, 0}, {0x1p-70, 0}, 0},
        // a product below the range: 1.5 * 2^-1074 rounds (to even) to 2^-1073
        {{3 * 0x1p-540, 0}, {0x1p-535, 0}, {0x1p-1073, 0}, 0},
    };
    for (const ZCase& c : cases)
        for (int slot : kCxSlots) {
            int st;
            Z y = CxCall(frame::Row_zMul, slot, c.a, c.b, &st);
            EXPECT_TRUE(SameParts(y, c.want)) << "slot " << slot << " (" << c.a.re << ", " << c.a.im
                                              << ") got (" << y.re << ", " << y.im << ")";
            EXPECT_EQ(st, c.status);
        }
}

// Products that cancel exactly: the real part is +0, in every slot, in single too.
TEST(ComplexArith, MulOfCancellingProductsIsExact) {
    for (int slot : kCxSlots) {
        Z y = CxCall(frame::Row_zMul, slot, Z{3, 5}, Z{5, 3});
        EXPECT_TRUE(SameParts(y, Z{0.0, 34}));
        C c = CxCall(frame::Row_cMul, slot, C{3, 5}, C{5, 3});
        EXPECT_TRUE(SameParts(c, C{0.0f, 34}));
        // MulByConj is Mul by the conjugate
        y = CxCall(frame::Row_zMulByConj, slot, Z{3, 5}, Z{5, -3});
        EXPECT_TRUE(SameParts(y, Z{0.0, 34}));
    }
}

TEST(ComplexArith, DivHasNoSpuriousOverflowOrUnderflow) {
    const ZCase cases[] = {
        // |divisor|^2 = 2e-620 underflows in the plain formula
        {{0x1p-1000, 0}, {0x1p-1030, 0x1p-1030}, {0x1p29, -0x1p29}, 0},
        // and 2e600 overflows
        {{1e300, 1e300}, {1e300, 1e300}, {1, 0}, 0},
        {{1e308, -1e308}, {1e-308, 1e-308}, {0, -kInf}, 3},
        {{1, 0}, {0x1p600, 0x1p600}, {0x1p-601, -0x1p-601}, 0},
        // zero divisors: a pole, and no value for zero over zero
        {{1, 2}, {0, 0}, {kInf, kInf}, 2},
        {{0, 0}, {0, 0}, {kNaN, kNaN}, 1},
        // infinite dividend over a finite divisor, finite over an infinite one
        {{kInf, 0}, {1, 1}, {kInf, -kInf}, 0},
        {{1, 1}, {kInf, kNaN}, {0, 0}, 0},
    };
    for (const ZCase& c : cases)
        for (int slot : kCxSlots) {
            int st;
            Z y = CxCall(frame::Row_zDiv, slot, c.a, c.b, &st);
            EXPECT_TRUE(SameParts(y, c.want) ||
                        (std::fabs(y.re - c.want.re) <= 1e-15 * std::fabs(c.want.re) &&
                         std::fabs(y.im - c.want.im) <= 1e-15 * std::fabs(c.want.im)))
                << "slot " << slot << " (" << c.a.re << ", " << c.a.im << ")/(" << c.b.re << ", "
                << c.b.im << ") got (" << y.re << ", " << y.im << ")";
            EXPECT_EQ(st, c.status) << "slot " << slot;
        }
}

// Annex G recovery of infinities in products (the plain formula gives NaN + NaN i).
TEST(ComplexArith, InfiniteFactorsGiveInfiniteProducts) {
    for (int slot : kCxSlots) {
        Z y = CxCall(frame::Row_zMul, slot, Z{kInf, kNaN}, Z{1, 0});
        EXPECT_TRUE(std::isinf(y.re) || std::isinf(y.im));
        C c = CxCall(frame::Row_cMul, slot, C{INFINITY, NAN}, C{1, 0});
        EXPECT_TRUE(std::isinf(c.re) || std::isinf(c.im));
        y = CxCall(frame::Row_zMul, slot, Z{kInf, kInf}, Z{kInf, kInf});
        EXPECT_TRUE(SameParts(y, Z{kNaN, kInf}) || std::isinf(y.re) || std::isinf(y.im));
    }
}

// Random elements with exponents up to spread (the whole range, or parts of like size),
// special lanes at every position of the groups: each element of a long call equals the
// scalar routine's result for it (LA/HA bodies form the same exact sums, or in Div's
// short form the same value to within an ulp; single forms them in double).
template <class E, class Fn>
void CheckAgainstScalar(RowIndex row, int slot, Fn scalar, double tolerance, int spread = 600) {
    using R = decltype(E{}.re);
    std::mt19937_64 gen(11);
    std::uniform_real_distribution<double> mant(-2, 2);
    if (sizeof(R) == 4 && spread > 70) spread = 70;
    std::uniform_int_distribution<int> ex(-spread, spread);
    const int n = 203;
    std::vector<E> a(n), b(n), y(n);
    for (int i = 0; i < n; ++i) {
        a[i] = {R(std::ldexp(mant(gen), ex(gen))), R(std::ldexp(mant(gen), ex(gen)))};
        b[i] = {R(std::ldexp(mant(gen), ex(gen))), R(std::ldexp(mant(gen), ex(gen)))};
        if (i % 7 == 3) b[i].im = 0; // a zero part: a special lane
        if (i % 11 == 5) a[i].re = std::numeric_limits<R>::infinity();
    }
    ModeScope quiet(BRENN_MODE_ERRMODE_IGNORE);
    As<Binary<E>>(CxRaw(row, slot))(n, a.data(), b.data(), y.data());
    for (int i = 0; i < n; ++i) {
        E want;
        scalar(&a[i], &b[i], &want);
        bool close = SameParts(y[i], want) ||
                     (std::fabs(double(y[i].re) - want.re) <= tolerance * std::fabs(want.re) &&
                      std::fabs(double(y[i].im) - want.im) <= tolerance * std::fabs(want.im));
        EXPECT_TRUE(close) << frame::kRowInfo[row].name << " element " << i << " slot " << slot
                           << std::hexfloat << " a (" << a[i].re << ", " << a[i].im << ") b ("
                           << b[i].re << ", " << b[i].im << ") got (" << y[i].re << ", " << y[i].im
                           << ") want (" << want.re << ", " << want.im << ")";
    }
}

TEST(ComplexArith, VectorBodiesAgreeWithTheScalarRoutine) {
    auto mulZ = [](const Z* a, const Z* b, Z* y) { vm::cx::MulScalar(a, b, y, false); };
    auto conjZ = [](const Z* a, const Z* b, Z* y) { vm::cx::MulScalar(a, b, y, true); };
    auto divZ = [](const Z* a, const Z* b, Z* y) { vm::cx::DivScalar(a, b, y); };
    auto mulC = [](const C* a, const C* b, C* y) { vm::cx::MulScalar(a, b, y, false); };
    auto divC = [](const C* a, const C* b, C* y) { vm::cx::DivScalar(a, b, y); };
    for (int slot : {frame::SlotLA, frame::SlotHA})
        for (int spread : {600, 3}) {
            CheckAgainstScalar<Z>(frame::Row_zMul, slot, mulZ, 0, spread);
            CheckAgainstScalar<Z>(frame::Row_zMulByConj, slot, conjZ, 0, spread);
            CheckAgainstScalar<Z>(frame::Row_zDiv, slot, divZ, 0x1p-52, spread);
        }
    CheckAgainstScalar<Z>(frame::Row_zMul, frame::SlotEP, mulZ, 0x1p-32);
    CheckAgainstScalar<Z>(frame::Row_zDiv, frame::SlotEP, divZ, 0x1p-50);
    for (int slot : kCxSlots) {
        // single EP: the plain products in single, cancellation below 10 bits kept
        CheckAgainstScalar<C>(frame::Row_cMul, slot, mulC, slot == frame::SlotEP ? 0x1p-12 : 0);
        CheckAgainstScalar<C>(frame::Row_cDiv, slot, divC, 0x1p-23);
    }
}

// Overflow and pole statuses reach the reporter with the row's public name and the
// element's index; a product that is merely huge reports nothing.
TEST(ComplexArith, StatusesAreReportedWithTheRowName) {
    ModeScope mode(BRENN_MODE_ERRMODE_CALLBACK);
    ErrorCallback saved = brenn_zar_kernel_SetErrorCallBack(RecordCxReport);
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    struct Row {
        RowIndex row;
        const char* name;
        Z b;
        int code;
    };
    const Row rows[] = {{frame::Row_zMul, "vzMul", {1e300, -1e300}, 3},
                        {frame::Row_zMulByConj, "vzMulByConj", {1e300, 1e300}, 3},
                        {frame::Row_zDiv, "vzDiv", {0, 0}, 2}};
    for (const Row& r : rows)
        for (int slot : kCxSlots) {
            std::vector<Z> a(9, Z{1, 2}), b(9, Z{3, 4}), y(9);
            a[6] = {1e300, 1e300};
            b[6] = r.b;
            gCxReport = {};
            As<Binary<Z>>(CxRaw(r.row, slot))(9, a.data(), b.data(), y.data());
            EXPECT_EQ(gCxReport.calls, 1) << r.name << " slot " << slot;
            EXPECT_EQ(gCxReport.index, 6);
            EXPECT_EQ(gCxReport.code, r.code);
            EXPECT_EQ(gCxReport.name, r.name);
        }
    std::vector<C> a(5, C{3e19f, 3e19f}), b(5, C{3e19f, -3e19f}), y(5);
    gCxReport = {};
    As<Binary<C>>(CxRaw(frame::Row_cMul, frame::SlotHA))(5, a.data(), b.data(), y.data());
    EXPECT_EQ(gCxReport.calls, 5);
    EXPECT_EQ(gCxReport.name, "vcMul");
    EXPECT_TRUE(std::isinf(y[4].re));
    brenn_zar_kernel_SetErrorCallBack(saved);
}

// Single Div and Mul against the same formulas in long double: within an ulp.
TEST(ComplexArith, SingleResultsAreWithinAnUlp) {
    std::mt19937 gen(5);
    std::uniform_real_distribution<float> u(-1e3f, 1e3f);
    const int n = 101;
    std::vector<C> a(n), b(n), m(n), d(n);
    for (int i = 0; i < n; ++i)
        a[i] = {u(gen), u(gen)}, b[i] = {u(gen), u(gen)};
    for (int slot : kCxSlots) {
        As<Binary<C>>(CxRaw(frame::Row_cMul, slot))(n, a.data(), b.data(), m.data());
        As<Binary<C>>(CxRaw(frame::Row_cDiv, slot))(n, a.data(), b.data(), d.data());
        for (int i = 0; i < n; ++i) {
            std::complex<long double> x(a[i].re, a[i].im), w(b[i].re, b[i].im);
            long double dv = w.real() * w.real() + w.imag() * w.imag();
            // EP Mul keeps 13 bits where a part cancels: held to 2^-11 of |z| there
            const long double re = x.real() * w.real() - x.imag() * w.imag();
            if (slot == frame::SlotEP)
                EXPECT_LE(std::fabs(m[i].re - re), 0x1p-11L * std::abs(x * w));
            else
                EXPECT_LE(UlpError(m[i].re, re), 1.0);
            EXPECT_LE(UlpError(d[i].im, (x.imag() * w.real() - x.real() * w.imag()) / dv), 1.0);
        }
    }
}

// Add, Sub and Conj at every length and offset, in place too, bit for bit; Conj turns
// only the imaginary sign, even of a signalling NaN.
TEST(ComplexArith, AddSubConjBitForBitAtEveryLength) {
    const float sNaN = std::numeric_limits<float>::signaling_NaN();
    std::vector<C> a(24), b(24);
    for (int i = 0; i < 24; ++i)
        a[i] = {float(i) - 7.5f, 1.25f * i}, b[i] = {0.5f * i, -float(i)};
    a[5].im = sNaN;
    for (int slot : kCxSlots)
        for (int off = 0; off < 3; ++off)
            for (int n = 0; n <= 17; ++n) {
                std::vector<C> y(26, C{-9, -9}), w(a);
                As<Binary<C>>(CxRaw(frame::Row_cAdd, slot))(n, a.data() + off, b.data() + off,
                                                            y.data() + 1);
                As<Unary<C>>(CxRaw(frame::Row_cConj, slot))(n, w.data() + off, w.data() + off);
                for (int i = 0; i < 26; ++i) {
                    int k = i - 1;
                    if (k < 0 || k >= n) {
                        EXPECT_EQ(y[i].re, -9.0f);
                        continue;
                    }
                    EXPECT_TRUE(SameValue(y[i].re, a[k + off].re + b[k + off].re));
                    EXPECT_TRUE(SameValue(y[i].im, a[k + off].im + b[k + off].im));
                    EXPECT_EQ(Bits(w[k + off].im), Bits(a[k + off].im) ^ 0x80000000u);
                    EXPECT_EQ(Bits(w[k + off].re), Bits(a[k + off].re));
                }
            }
    // a long call out of place streams its results: every element still turned, from an
    // output off the 16-byte boundary by one single element too
    for (int off = 0; off < 2; ++off) {
        const int n = 150001;
        std::vector<C> src(n), dst(n + 1);
        std::vector<Z> zsrc(n), zdst(n);
        for (int i = 0; i < n; ++i)
            src[i] = {float(i), -0.5f * i}, zsrc[i] = {-1.0 * i, 0.25 * i};
        As<Unary<C>>(CxRaw(frame::Row_cConj, frame::SlotHA))(n, src.data(), dst.data() + off);
        As<Unary<Z>>(CxRaw(frame::Row_zConj, frame::SlotHA))(n, zsrc.data(), zdst.data());
        for (int i = 0; i < n; ++i) {
            ASSERT_EQ(Bits(dst[i + off].im), Bits(src[i].im) ^ 0x80000000u) << i;
            ASSERT_TRUE(dst[i + off].re == src[i].re && zdst[i].re == zsrc[i].re);
            ASSERT_EQ(std::signbit(zdst[i].im), !std::signbit(zsrc[i].im)) << i;
            ASSERT_EQ(std::fabs(zdst[i].im), std::fabs(zsrc[i].im));
        }
    }
    // double Conj by the bits, long and short, out of place to an output on and off the
    // 16-byte boundary (by one part) and in place: a signalling NaN keeps its bits
    const double zNaN = std::numeric_limits<double>::signaling_NaN();
    for (int n : {150003, 13})
        for (int place = 0; place < 3; ++place) {
            std::vector<double> src(2 * n), buf(2 * n + 2, -9.0);
            for (int i = 0; i < 2 * n; ++i)
                src[i] = i % 7 == 3 ? zNaN : 0.5 * i - 11;
            Z* out = place == 2 ? reinterpret_cast<Z*>(src.data())
                                : reinterpret_cast<Z*>(buf.data() + place);
            std::vector<double> want(src);
            for (int i = 1; i < 2 * n; i += 2)
                want[i] = -want[i];
            As<Unary<Z>>(CxRaw(frame::Row_zConj, frame::SlotLA))(
                n, reinterpret_cast<const Z*>(src.data()), out);
            const double* got = &out->re;
            for (int i = 0; i < 2 * n; ++i)
                ASSERT_EQ(Bits(got[i]), Bits(want[i])) << n << " " << place << " " << i;
            if (place < 2) {
                EXPECT_EQ(buf[2 * n + place], -9.0); // nothing written past the end
                if (place == 1) EXPECT_EQ(buf[0], -9.0);
            }
        }
    std::vector<Z> za(7, Z{1, 2}), zb(7, Z{0.5, 4});
    As<Binary<Z>>(CxRaw(frame::Row_zSub, frame::SlotEP))(7, za.data(), zb.data(), za.data());
    EXPECT_TRUE(SameParts(za[6], Z{0.5, -2}));
}

} // namespace
} // namespace brenn::test
