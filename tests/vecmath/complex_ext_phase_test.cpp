// The extended-precision phase and logarithm of the complex rows (ext_phase.h) against
// MPFR: errors in extended ulps on grids through the tables' cells and their edges,
// the octants' boundaries, tiny and huge arguments, both signs and signed zeros.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <vector>

#include "vecmath/complex/ext_phase.h"

namespace brenn::test {
namespace {

using LD = long double;
using vm::cx::Log1pX;
using vm::cx::LnSum;
using vm::cx::LnX;
using vm::cx::Phase;

// The error of r in ulps of the extended format at the exact value (an ulp of the
// smallest normal below that).
struct Exact {
    mpfr_t v;
    Exact() { mpfr_init2(v, 200); }
    ~Exact() { mpfr_clear(v); }
    double UlpsOff(LD r) const {
        mpfr_t d;
        mpfr_init2(d, 200);
        mpfr_set_ld(d, r, MPFR_RNDN);
        mpfr_sub(d, d, v, MPFR_RNDN);
        long e = mpfr_zero_p(v) ? -16382 : std::max<long>(mpfr_get_exp(v), -16381);
        mpfr_mul_2si(d, d, 64 - e, MPFR_RNDN); // ulp = 2^(e - 64), v in [2^(e-1), 2^e)
        double u = std::fabs(mpfr_get_d(d, MPFR_RNDN));
        mpfr_clear(d);
        return u;
    }
};

double PhaseError(LD y, LD x) {
    Exact ex;
    mpfr_t my, mx;
    mpfr_inits2(64, my, mx, (mpfr_ptr)nullptr);
    mpfr_set_ld(my, y, MPFR_RNDN);
    mpfr_set_ld(mx, x, MPFR_RNDN);
    mpfr_atan2(ex.v, my, mx, MPFR_RNDN);
    mpfr_clears(my, mx, (mpfr_ptr)nullptr);
    return ex.UlpsOff(Phase(y, x));
}

// ln(h + l)
double LnError(LD h, LD l, LD r) {
    Exact ex;
    mpfr_t a;
    mpfr_init2(a, 200);
    mpfr_set_ld(a, h, MPFR_RNDN);
    mpfr_set_ld(ex.v, l, MPFR_RNDN);
    mpfr_add(a, a, ex.v, MPFR_RNDN);
    mpfr_log(ex.v, a, MPFR_RNDN);
    mpfr_clear(a);
    return ex.UlpsOff(r);
}

double Log1pError(LD g) {
    Exact ex;
    mpfr_t a;
    mpfr_init2(a, 64);
    mpfr_set_ld(a, g, MPFR_RNDN);
    mpfr_log1p(ex.v, a, MPFR_RNDN);
    mpfr_clear(a);
    return ex.UlpsOff(Log1pX(g));
}

// Magnitudes through the phase's steps j/256, a few ulps either side of each edge
// (j + 1/2)/256 and on the steps, tiny and large ratios.
std::vector<LD> Ratios() {
    std::vector<LD> t;
    for (int j = 0; j <= 512; ++j) {
        const LD s = LD(j) / 512;
        t.push_back(s);
        t.push_back(nextafterl(s, 0));
        t.push_back(nextafterl(s, 2));
        t.push_back(s + LD(0.37) / 1024);
    }
    for (int k = 10; k < 16000; k += 97) t.push_back(ldexpl(1.0L + LD(k) / 16384, -k));
    t.push_back(0x1p-9L), t.push_back(nextafterl(0x1p-9L, 0)), t.push_back(1);
    return t;
}

// Every quadrant and octant: (y, x) = (+-t, +-1) and (+-1, +-t) for the ratios above,
// with scales that keep the ratio exact and ones that round it, and the axes.
TEST(ComplexExtPhase, WithinTwoUlpsInEveryOctant) {
    const LD scales[] = {1, 0x1p-1000L, 0x1p1000L, 3.0L, 0.1L};
    double worst = 0;
    for (LD t : Ratios())
        for (LD s : scales)
            for (int q = 0; q < 8; ++q) {
                LD a = t * s, b = s;
                const LD y = (q & 4 ? -1 : 1) * (q & 1 ? b : a);
                const LD x = (q & 2 ? -1 : 1) * (q & 1 ? a : b);
                if (y == 0 && x == 0) continue;
                const double e = PhaseError(y, x);
                worst = std::max(worst, e);
                ASSERT_LE(e, 2.0) << "atan2(" << double(y) << ", " << double(x) << ")";
            }
    EXPECT_GT(worst, 0.3); // the grid does reach rounded cases
}

// Signed zeros and the axes as atan2 places them.
TEST(ComplexExtPhase, ZerosAndAxes) {
    const LD pi = 3.141592653589793238462643383279502884L, z = 0;
    EXPECT_TRUE(Phase(z, 1) == 0 && !std::signbit(Phase(z, 1)));
    EXPECT_TRUE(Phase(-z, 1) == 0 && std::signbit(Phase(-z, 1)));
    EXPECT_TRUE(Phase(z, z) == 0 && !std::signbit(Phase(z, z)));
    EXPECT_TRUE(Phase(-z, z) == 0 && std::signbit(Phase(-z, z)));
    EXPECT_EQ(Phase(z, -z), pi);
    EXPECT_EQ(Phase(-z, -z), -pi);
    EXPECT_EQ(Phase(z, -3), pi);
    EXPECT_EQ(Phase(-z, -3), -pi);
    EXPECT_EQ(Phase(2, z), pi / 2);
    EXPECT_EQ(Phase(2, -z), pi / 2);
    EXPECT_EQ(Phase(-2, -z), -pi / 2);
    EXPECT_EQ(Phase(1, 1), pi / 4);
    EXPECT_LE(PhaseError(-1, -1), 0.5);
    EXPECT_LE(PhaseError(-1, 1), 0.5);
    // the smallest double beside the largest: a ratio far below the double range
    EXPECT_LE(PhaseError(0x1p-1074L, 0x1.fffffffffffffp1023L), 1.0);
    EXPECT_LE(PhaseError(0x1.fffffffffffffp1023L, -0x1p-1074L), 1.0);
}

// ln over whole binades, the steps' edges of [sqrt(1/2), sqrt 2), both sides of 1 closely,
// and arguments beyond the double's range (squares of double parts).
TEST(ComplexExtPhase, LnWithinTwoUlps) {
    std::vector<LD> xs;
    for (int j = -80; j <= 110; ++j) {
        const LD c = 1 + LD(j) / 256, edge = c + LD(1) / 512;
        for (LD v : {c, edge, nextafterl(edge, 0), nextafterl(edge, 2), c + LD(1) / 1000})
            xs.push_back(v);
    }
    for (int k = 1; k < 64; ++k) xs.push_back(1 + ldexpl(1, -k)), xs.push_back(1 - ldexpl(1, -k));
    xs.push_back(nextafterl(1, 2)), xs.push_back(nextafterl(1, 0));
    xs.push_back(0.70710678118654752440L), xs.push_back(1.41421356237309504880L);
    std::vector<LD> all;
    for (LD x : xs)
        for (int e : {0, 1, -1, 7, -300, 1021, -1021, 1022, 1023, -1022, -1023, 2047, -2147})
            all.push_back(ldexpl(x, e));
    all.push_back(0x1p-16000L), all.push_back(0x1.8p16000L);
    double worst = 0;
    for (LD x : all) {
        const double e = LnError(x, 0, LnX(x));
        worst = std::max(worst, e);
        ASSERT_LE(e, 2.0) << "ln " << double(x) << " at 2^" << std::ilogb(x);
    }
    EXPECT_GT(worst, 0.3);
    EXPECT_EQ(LnX(1), 0);
}

// The low word counts: ln(h + l) for l below an ulp of h, where h alone would be off.
TEST(ComplexExtPhase, LnOfAnUnevaluatedSum) {
    for (LD h : {1.0L, 1.0L + 0x1p-30L, 0.75L, 1.3L, 5.0L, 0x1p1500L, 0x1p-1500L})
        for (LD f : {0.5L, -0.25L, 0.49L, -0.7L}) {
            const LD l = h * f * 0x1p-63L;
            EXPECT_LE(LnError(h, l, LnSum(h, l)), 2.0) << double(h) << " + " << double(l);
        }
    EXPECT_LE(LnError(1, 0x1p-100L, LnSum(1, 0x1p-100L)), 0.5); // ln(1 + tiny) = tiny
}

// ln(1 + g) keeps g's relative accuracy: tiny g of both signs, g near the rounding of
// 1 + g, across the steps, huge g and g near -1.
TEST(ComplexExtPhase, Log1pWithinTwoUlps) {
    std::vector<LD> gs;
    for (int k = 1; k < 200; k += 3) {
        const LD g = ldexpl(1.2345678901234567891L, -k);
        gs.push_back(g), gs.push_back(-g), gs.push_back(nextafterl(g, 1));
    }
    for (int k = 64; k < 2000; k += 61) gs.push_back(ldexpl(1.7L, -k)), gs.push_back(-ldexpl(1.7L, -k));
    for (int j = -74; j < 300; ++j) gs.push_back(LD(j) / 256 + LD(1) / 3000);
    for (LD g : {0.3L, 0.9999L, 1.0L, 1.5L, 7.0L, 1e10L, 0x1.fp70L, 0x1p1100L, 0x1p2150L,
                 -0.5L, -0.9L, -0.999999L, -1 + 0x1p-60L, -1 + 0x1p-64L})
        gs.push_back(g);
    for (LD g : gs) EXPECT_LE(Log1pError(g), 2.0) << "log1p " << double(g);
    EXPECT_TRUE(Log1pX(0) == 0);
    EXPECT_EQ(Log1pX(0x1p-1074L), 0x1p-1074L);
}

} // namespace
} // namespace brenn::test
