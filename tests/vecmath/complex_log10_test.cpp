// Double complex Log10 against MPFR: both parts correctly rounded, but where the exact
// value lies within 2^-8 ulp of a midpoint (the extended routine's margin, for the
// elements the vector steps hand on), over the cases that stress the vector steps' bounds:
// |z| near 1 on both sides, |z|^2 across the logarithm's rows, the phase's quotient
// across its rows and below them in every octant, the windows' edges, random elements.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <random>
#include <vector>

#include "tests/vecmath/complex_util.h"

namespace brenn::test {
namespace {

// How far r is from the correctly rounded v in ulps of r's binade: 0 when r is it,
// and whether v lies within 2^-8 ulp of a midpoint (either neighbour then passes).
struct Verdict {
    bool exact, nearMidpoint;
};
Verdict Judge(const mpfr_t v, double r) {
    const double rn = mpfr_get_d(v, MPFR_RNDN);
    if (rn == r && std::signbit(rn) == std::signbit(r)) return {true, false};
    const double ulp = std::nextafter(std::fabs(rn), INFINITY) - std::fabs(rn);
    mpfr_t d;
    mpfr_init2(d, 300);
    mpfr_set_d(d, rn, MPFR_RNDN);
    mpfr_sub(d, v, d, MPFR_RNDN);
    const double off = std::fabs(mpfr_get_d(d, MPFR_RNDN)) / ulp; // at most 1/2
    mpfr_clear(d);
    const bool neighbour = r == std::nextafter(rn, INFINITY) || r == std::nextafter(rn, -INFINITY);
    return {false, neighbour && 0.5 - off < 0x1p-8};
}

// Each element's parts against log10|z| and arg z / ln 10; failures listed by element.
void ExpectCorrectlyRounded(const std::vector<Z>& zs) {
    std::vector<Z> y(zs.size());
    As<Unary<Z>>(CxRaw(frame::Row_zLog10, frame::SlotHA))(int(zs.size()), zs.data(), y.data());
    mpfr_t x, w, v, ln10;
    mpfr_inits2(300, x, w, v, ln10, (mpfr_ptr)nullptr);
    mpfr_set_ui(ln10, 10, MPFR_RNDN);
    mpfr_log(ln10, ln10, MPFR_RNDN);
    int wrong = 0;
    for (size_t i = 0; i < zs.size() && wrong < 10; ++i) {
        mpfr_set_d(x, zs[i].re, MPFR_RNDN);
        mpfr_set_d(w, zs[i].im, MPFR_RNDN);
        mpfr_hypot(v, x, w, MPFR_RNDN);
        mpfr_log10(v, v, MPFR_RNDN);
        const Verdict re = Judge(v, y[i].re);
        mpfr_atan2(v, w, x, MPFR_RNDN);
        mpfr_div(v, v, ln10, MPFR_RNDN);
        const Verdict im = Judge(v, y[i].im);
        if (!(re.exact || re.nearMidpoint) || !(im.exact || im.nearMidpoint)) {
            ++wrong;
            ADD_FAILURE() << std::hexfloat << "z = " << zs[i].re << ", " << zs[i].im << " gave "
                          << y[i].re << ", " << y[i].im << (re.exact ? "" : " (real part)")
                          << (im.exact ? "" : " (imaginary part)");
        }
    }
    mpfr_clears(x, w, v, ln10, (mpfr_ptr)nullptr);
}

// The eight octants of (a, b), a >= b >= 0: both orders, both signs.
void PushOctants(std::vector<Z>& zs, double a, double b) {
    for (int q = 0; q < 8; ++q) {
        const double p = q & 1 ? b : a, s = q & 1 ? a : b;
        zs.push_back({q & 2 ? -p : p, q & 4 ? -s : s});
    }
}

// |z| = 1 + d for d = +-2^-k down to below 2^-60, at angles through the octants, and
// |z|^2 a few ulps off 1: the real part from the rows' first step, where its bound is
// relative to r, and tiny real parts that the absolute term hands on.
TEST(ComplexLog10, NearTheUnitCircle) {
    std::vector<Z> zs;
    const double angles[] = {0.1, 0.7, 0.785398, 1.3, 2.9, 0.001};
    for (int k = 1; k <= 62; ++k)
        for (double d : {std::ldexp(1.0, -k), -std::ldexp(1.0, -k), std::ldexp(0.77, -k)})
            for (double t : angles) zs.push_back({(1 + d) * std::cos(t), (1 + d) * std::sin(t)});
    for (double t = 0.01; t < 6.3; t += 0.0137) zs.push_back({std::cos(t), std::sin(t)});
    for (int u = -8; u <= 8; ++u) {
        const double a = std::nextafter(1.0, 2.0 * (u > 0)) , b = std::ldexp(double(u), -30);
        zs.push_back({a, b});
        zs.push_back({0.6 + std::ldexp(double(u), -52), 0.8});
    }
    ExpectCorrectlyRounded(zs);
}

// |z|^2 on, beside and between the centres 1 + j/512 of the logarithm's rows and across
// the binades, the larger part from the smaller's square; scales to the windows' ends.
TEST(ComplexLog10, AcrossTheLogarithmsRows) {
    std::vector<Z> zs;
    for (int j = 0; j <= 512; ++j) {
        for (double off : {0.0, 0x1p-10, -0x1p-10, 0x1.ffp-11, 0x1p-20, 0x1p-45}) {
            const double s = 1 + j / 512.0 + off, b = 0.3;
            if (s <= b * b) continue;
            const double a = std::sqrt(s - b * b);
            for (double scale : {1.0, 0x1p-300, 0x1p200, 0x1p-449, 0x1p499, 3.0})
                zs.push_back({a * scale, b * scale});
        }
    }
    ExpectCorrectlyRounded(zs);
}

// The quotient t = min/max on the phase's row edges (t cut to 4 bits), an ulp either side,
// below the rows (2^-10) and far below, and on the diagonal, in every octant.
TEST(ComplexLog10, AcrossThePhasesRowsInEveryOctant) {
    std::vector<Z> zs;
    for (int e = -12; e <= -1; ++e)
        for (int m = 16; m <= 32; ++m) {
            const double t = std::ldexp(m / 16.0, e);
            if (t > 1) continue;
            for (double v : {t, std::nextafter(t, 0.0), std::nextafter(t, 2.0), t * 1.03})
                if (v <= 1) PushOctants(zs, 1.7, 1.7 * v);
        }
    for (double t : {0x1p-30, 0x1.3p-200, 0x1p-500, 0x1.8p-40, 0.999999, 1.0})
        PushOctants(zs, 2.5, 2.5 * t);
    PushOctants(zs, 0x1p499, 0x1p-499);
    ExpectCorrectlyRounded(zs);
}

// Random elements: parts of random signs and exponents, and parts of like size.
TEST(ComplexLog10, RandomElements) {
    std::mt19937_64 g(20261129);
    std::uniform_real_distribution<double> m(1, 2);
    std::uniform_int_distribution<int> e(-520, 520), near(-3, 3), sign(0, 1);
    std::vector<Z> zs;
    for (int i = 0; i < 60000; ++i) {
        const int ea = e(g), eb = i % 2 ? ea + near(g) : e(g);
        zs.push_back({(sign(g) ? -1 : 1) * std::ldexp(m(g), ea),
                      (sign(g) ? -1 : 1) * std::ldexp(m(g), eb)});
    }
    ExpectCorrectlyRounded(zs);
}

} // namespace
} // namespace brenn::test
