// The complex rows that compute their parts in the SSE unit first and round them there
// where an error bound decides (Log10, Atanh, Atan) against MPFR: double parts correctly
// rounded but where the exact value lies within 2^-8 ulp of a midpoint (the extended
// routine's margin, for the elements the vector steps hand on), single parts but within
// 2^-20 ulp; over the cases that stress the bounds: |z| near 1 on both sides, the
// logarithm's rows, the phase's quotient across its rows and below them in every octant,
// the windows' edges, random elements.
#include <gtest/gtest.h>
#include <mpfr.h>

#include <cmath>
#include <random>
#include <vector>

#include "tests/vecmath/complex_util.h"

namespace brenn::test {
namespace {

// Whether r is the correctly rounded v (of r's type), or its neighbour where v lies within
// margin ulps of a midpoint.
template <class R>
bool Acceptable(const mpfr_t v, R r, double margin) {
    const R want = std::is_same_v<R, float> ? R(mpfr_get_flt(v, MPFR_RNDN)) : R(mpfr_get_d(v, MPFR_RNDN));
    if (want == r && std::signbit(want) == std::signbit(r)) return true;
    if (r != std::nextafter(want, R(INFINITY)) && r != std::nextafter(want, R(-INFINITY))) return false;
    // the ulp of want's binade (the denormals' below the normal range)
    const R ulp = std::nextafter(std::fabs(want), R(INFINITY)) - std::fabs(want);
    mpfr_t d;
    mpfr_init2(d, mpfr_get_prec(v));
    mpfr_set_d(d, double(want), MPFR_RNDN);
    mpfr_sub(d, v, d, MPFR_RNDN);
    const double off = std::fabs(mpfr_get_d(d, MPFR_RNDN)) / ulp; // at most 1/2
    mpfr_clear(d);
    return 0.5 - off < margin;
}

// The exact parts of a row's value at x + iy, at the precision of re.
using Reference = void (*)(mpfr_t re, mpfr_t im, const mpfr_t x, const mpfr_t y);

void Log10Of(mpfr_t re, mpfr_t im, const mpfr_t x, const mpfr_t y) {
    mpfr_t ln10;
    mpfr_init2(ln10, mpfr_get_prec(re));
    mpfr_set_ui(ln10, 10, MPFR_RNDN);
    mpfr_log(ln10, ln10, MPFR_RNDN);
    mpfr_hypot(re, x, y, MPFR_RNDN);
    mpfr_log10(re, re, MPFR_RNDN);
    mpfr_atan2(im, y, x, MPFR_RNDN);
    mpfr_div(im, im, ln10, MPFR_RNDN);
    mpfr_clear(ln10);
}

// sign(x) log1p(4|x|/((1 - |x|)^2 + y^2))/4 and atan2(2y, 1 - x^2 - y^2)/2; the squares
// are exact, so the cancellations are too.
void AtanhOf(mpfr_t re, mpfr_t im, const mpfr_t x, const mpfr_t y) {
    mpfr_t a, b, t;
    mpfr_inits2(mpfr_get_prec(re), a, b, t, (mpfr_ptr)nullptr);
    mpfr_abs(a, x, MPFR_RNDN);
    mpfr_ui_sub(b, 1, a, MPFR_RNDN);
    mpfr_sqr(b, b, MPFR_RNDN);
    mpfr_sqr(t, y, MPFR_RNDN);
    mpfr_add(b, b, t, MPFR_RNDN);
    mpfr_mul_ui(a, a, 4, MPFR_RNDN);
    mpfr_div(a, a, b, MPFR_RNDN);
    mpfr_log1p(re, a, MPFR_RNDN);
    mpfr_div_ui(re, re, 4, MPFR_RNDN);
    mpfr_copysign(re, re, x, MPFR_RNDN);
    mpfr_sqr(a, x, MPFR_RNDN);
    mpfr_ui_sub(a, 1, a, MPFR_RNDN);
    mpfr_sub(a, a, t, MPFR_RNDN);
    mpfr_mul_ui(b, y, 2, MPFR_RNDN);
    mpfr_atan2(im, b, a, MPFR_RNDN);
    mpfr_div_ui(im, im, 2, MPFR_RNDN);
    mpfr_clears(a, b, t, (mpfr_ptr)nullptr);
}

// atan z = -i atanh(iz): atanh(-y + ix) = u + iv gives v - iu.
void AtanOf(mpfr_t re, mpfr_t im, const mpfr_t x, const mpfr_t y) {
    mpfr_t ny;
    mpfr_init2(ny, mpfr_get_prec(re));
    mpfr_neg(ny, y, MPFR_RNDN);
    AtanhOf(im, re, ny, x);
    mpfr_neg(im, im, MPFR_RNDN);
    mpfr_clear(ny);
}

// Each element's parts through a row's kernel against the reference; the first failures
// listed by element.
template <class E>
void ExpectRounded(RowIndex row, Reference f, const std::vector<Z>& zs) {
    using R = decltype(E{}.re);
    std::vector<E> a, y(zs.size());
    for (const Z& z : zs) a.push_back({R(z.re), R(z.im)});
    As<Unary<E>>(CxRaw(row, frame::SlotHA))(int(a.size()), a.data(), y.data());
    const double margin = std::is_same_v<R, float> ? 0x1p-20 : 0x1p-8;
    mpfr_t x, w, re, im;
    mpfr_inits2(64, x, w, re, im, (mpfr_ptr)nullptr);
    int wrong = 0;
    for (size_t i = 0; i < a.size() && wrong < 10; ++i) {
        if (a[i].re == 0 || a[i].im == 0 || !std::isfinite(a[i].re) || !std::isfinite(a[i].im))
            continue; // the special cells have tests of their own
        // enough for the squares beside 1 exactly (|z|^2 - 1, 1 - x^2 - y^2), and far
        // enough past the result's precision
        const int e = std::max(std::abs(std::ilogb(a[i].re)), std::abs(std::ilogb(a[i].im)));
        for (mpfr_ptr v : {x, w, re, im}) mpfr_set_prec(v, 2 * (e + 64) + 64);
        mpfr_set_d(x, a[i].re, MPFR_RNDN);
        mpfr_set_d(w, a[i].im, MPFR_RNDN);
        f(re, im, x, w);
        const bool okRe = Acceptable(re, y[i].re, margin), okIm = Acceptable(im, y[i].im, margin);
        if (!okRe || !okIm) {
            ++wrong;
            ADD_FAILURE() << std::hexfloat << "z = " << a[i].re << ", " << a[i].im << " gave "
                          << y[i].re << ", " << y[i].im << (okRe ? "" : " (real part)")
                          << (okIm ? "" : " (imaginary part)");
        }
    }
    mpfr_clears(x, w, re, im, (mpfr_ptr)nullptr);
}

struct Row {
    RowIndex z, c;
    Reference f;
};
const Row kRows[] = {{frame::Row_zLog10, frame::Row_cLog10, Log10Of},
                     {frame::Row_zAtanh, frame::Row_cAtanh, AtanhOf},
                     {frame::Row_zAtan, frame::Row_cAtan, AtanOf}};

void ExpectRoundedEverywhere(const std::vector<Z>& zs) {
    for (const Row& r : kRows) {
        ExpectRounded<Z>(r.z, r.f, zs);
        ExpectRounded<C>(r.c, r.f, zs);
    }
}

// The eight octants of (a, b), a >= b >= 0: both orders, both signs.
void PushOctants(std::vector<Z>& zs, double a, double b) {
    for (int q = 0; q < 8; ++q) {
        const double p = q & 1 ? b : a, s = q & 1 ? a : b;
        zs.push_back({q & 2 ? -p : p, q & 4 ? -s : s});
    }
}

// |z| = 1 + d for d = +-2^-k down to below 2^-60, at angles through the octants, and
// |z|^2 a few ulps off 1: Log10's real part from the rows' first step, where its bound is
// relative to r, and tiny real parts; Atanh's 1 - x^2 - y^2 cancelling.
TEST(ComplexRounded, NearTheUnitCircle) {
    std::vector<Z> zs;
    const double angles[] = {0.1, 0.7, 0.785398, 1.3, 2.9, 0.001, -2.2};
    for (int k = 1; k <= 62; ++k)
        for (double d : {std::ldexp(1.0, -k), -std::ldexp(1.0, -k), std::ldexp(0.77, -k)})
            for (double t : angles) zs.push_back({(1 + d) * std::cos(t), (1 + d) * std::sin(t)});
    for (double t = 0.01; t < 6.3; t += 0.0137) zs.push_back({std::cos(t), std::sin(t)});
    for (int u = -8; u <= 8; ++u) {
        zs.push_back({std::nextafter(1.0, 2.0 * (u > 0)), std::ldexp(double(u), -30)});
        zs.push_back({0.6 + std::ldexp(double(u), -52), 0.8});
    }
    ExpectRoundedEverywhere(zs);
}

// |z|^2 on, beside and between the centres 1 + j/512 of the logarithm's rows and across
// the binades; scales to the windows' ends.
TEST(ComplexRounded, AcrossTheLogarithmsRows) {
    std::vector<Z> zs;
    for (int j = 0; j <= 512; j += 3) {
        for (double off : {0.0, 0x1p-10, -0x1p-10, 0x1.ffp-11, 0x1p-20, 0x1p-45}) {
            const double s = 1 + j / 512.0 + off, b = 0.3;
            const double a = std::sqrt(s - b * b);
            for (double scale : {1.0, 0x1p-300, 0x1p200, 0x1p-449, 0x1p499, 0x1p-250, 0x1p248, 3.0})
                zs.push_back({a * scale, b * scale});
        }
    }
    ExpectRoundedEverywhere(zs);
}

// The quotients on the phase's row edges (cut to 4 bits), an ulp either side, below the
// rows (2^-10) and far below, and on the diagonal, in every octant; for Atanh, x near +-1
// with small y (a huge quotient 4|x|/D) and tiny x (log1p of a tiny one).
TEST(ComplexRounded, AcrossThePhasesRowsInEveryOctant) {
    std::vector<Z> zs;
    for (int e = -12; e <= -1; ++e)
        for (int m = 16; m <= 32; ++m) {
            const double t = std::ldexp(m / 16.0, e);
            for (double v : {t, std::nextafter(t, 0.0), std::nextafter(t, 2.0), t * 1.03})
                if (v <= 1) PushOctants(zs, 1.7, 1.7 * v), PushOctants(zs, 0.3, 0.3 * v);
        }
    for (double t : {0x1p-30, 0x1.3p-200, 0x1p-497, 0x1.8p-40, 0.999999, 1.0})
        PushOctants(zs, 2.5, 2.5 * t);
    PushOctants(zs, 0x1p248, 0x1p-249);
    for (double x : {1.0, std::nextafter(1.0, 0.0), std::nextafter(1.0, 2.0), 1 + 0x1p-30, 0.999})
        for (double y : {0x1p-249, 0x1p-100, 0x1p-30, 0x1p-8, 0.3})
            PushOctants(zs, std::max(x, y), std::min(x, y)), zs.push_back({x, y}), zs.push_back({-x, -y});
    ExpectRoundedEverywhere(zs);
}

// Random elements: parts of random signs and exponents, and parts of like size.
TEST(ComplexRounded, RandomElements) {
    std::mt19937_64 g(20261129);
    std::uniform_real_distribution<double> m(1, 2);
    std::uniform_int_distribution<int> e(-300, 300), near(-3, 3), small(-8, 3), sign(0, 1);
    std::vector<Z> zs;
    for (int i = 0; i < 30000; ++i) {
        const int ea = i % 3 == 2 ? small(g) : e(g), eb = i % 3 ? ea + near(g) : e(g);
        zs.push_back({(sign(g) ? -1 : 1) * std::ldexp(m(g), ea),
                      (sign(g) ? -1 : 1) * std::ldexp(m(g), eb)});
    }
    ExpectRoundedEverywhere(zs);
}

} // namespace
} // namespace brenn::test
