// Generates the tables of the inverse error function from MPFR at 256 bits:
//   gen_erfinv_tables OUT         vecmath/erf/erfinv_tables.cpp
//   gen_erfinv_tables check       the largest relative error of each table's fit
// The argument is t = 1 - |x|, from 2^-53 (the largest double below 1) to 1. Row i
// covers one sixteenth of a binade of t, [lo, lo + 2^e/16) with lo = 2^e*(1 + k/16),
// i = 16*(e + 53) + k; row 848 is that of t = 1 alone. On it P(t) = erfinv(1-t)/(1-t)
// (an even function of 1 - t, sqrt(pi)/2 at t = 1) is interpolated at the Chebyshev
// nodes of the interval in v = t - c, c its midpoint, and the coefficients are
// rounded to double, constant term last so that rows read from the highest degree:
//   erfInvRowsEP[849][6]   degree 5;
//   erfInvRowsLA[849][10]  degree 9;
//   erfInvRowsHA[849][12]  degree 10 and the constant's remainder, last.
#include <cmath>
#include <cstdio>
#include <cstring>
#include <mpfr.h>

namespace {

constexpr mpfr_prec_t kPrec = 256;
constexpr int kRows = 849;

// erfinv(x)/x for 0 <= x < 1 (sqrt(pi)/2 at 0), by Newton's steps on erfc(y) = 1 - x
// from a guess in double: erfc is convex on y >= 0, so from the first step on the
// iterates rise to the root.
void Quotient(mpfr_t out, mpfr_t x) {
    mpfr_t t, y, e, d, pi;
    mpfr_inits2(kPrec, t, y, e, d, pi, (mpfr_ptr)0);
    mpfr_const_pi(pi, MPFR_RNDN);
    if (mpfr_zero_p(x)) {
        mpfr_sqrt(out, pi, MPFR_RNDN);
        mpfr_div_2ui(out, out, 1, MPFR_RNDN);
        mpfr_clears(t, y, e, d, pi, (mpfr_ptr)0);
        return;
    }
    mpfr_ui_sub(t, 1, x, MPFR_RNDN);
    double td = mpfr_get_d(t, MPFR_RNDN), yd = 0;
    for (int i = 0; i < 200; ++i)
        yd += (std::erfc(yd) - td) / (2 / std::sqrt(M_PI) * std::exp(-yd * yd));
    mpfr_set_d(y, yd, MPFR_RNDN);
    for (int i = 0; i < 12; ++i) {
        mpfr_erfc(e, y, MPFR_RNDN);
        mpfr_sub(e, e, t, MPFR_RNDN);
        mpfr_sqr(d, y, MPFR_RNDN);
        mpfr_neg(d, d, MPFR_RNDN);
        mpfr_exp(d, d, MPFR_RNDN);
        mpfr_mul_ui(d, d, 2, MPFR_RNDN);
        mpfr_sqrt(out, pi, MPFR_RNDN);
        mpfr_div(d, d, out, MPFR_RNDN);
        mpfr_div(e, e, d, MPFR_RNDN);
        mpfr_add(y, y, e, MPFR_RNDN);
    }
    mpfr_div(out, y, x, MPFR_RNDN);
    mpfr_clears(t, y, e, d, pi, (mpfr_ptr)0);
}

// P at t = c + v, with 1 - t taken by its magnitude (P is even in it).
void P(mpfr_t out, mpfr_t t) {
    mpfr_t x;
    mpfr_init2(x, kPrec);
    mpfr_ui_sub(x, 1, t, MPFR_RNDN);
    mpfr_abs(x, x, MPFR_RNDN);
    Quotient(out, x);
    mpfr_clear(x);
}

struct Interval {
    double lo, width, c;
};

Interval Row(int i) {
    if (i == kRows - 1) return {1.0, 1.0 / 16, 1.0 + 1.0 / 32};
    double base = std::ldexp(1.0, i / 16 - 53);
    double lo = base * (1 + (i % 16) / 16.0), width = base / 16;
    return {lo, width, lo + width / 2};
}

// The interpolant of degree n at the Chebyshev nodes, as coefficients of v^k (256 bits).
void Fit(int i, int n, mpfr_t* coef) {
    Interval r = Row(i);
    mpfr_t v[16], f[16], t, w;
    mpfr_inits2(kPrec, t, w, (mpfr_ptr)0);
    for (int k = 0; k <= n; ++k) {
        mpfr_inits2(kPrec, v[k], f[k], (mpfr_ptr)0);
        mpfr_const_pi(t, MPFR_RNDN);
        mpfr_mul_ui(t, t, 2 * k + 1, MPFR_RNDN);
        mpfr_div_ui(t, t, 2 * (n + 1), MPFR_RNDN);
        mpfr_cos(t, t, MPFR_RNDN);
        mpfr_mul_d(v[k], t, r.width / 2, MPFR_RNDN);
        mpfr_add_d(t, v[k], r.c, MPFR_RNDN);
        P(f[k], t);
    }
    // Divided differences, then the Newton form expanded into powers of v.
    for (int j = 1; j <= n; ++j)
        for (int k = n; k >= j; --k) {
            mpfr_sub(f[k], f[k], f[k - 1], MPFR_RNDN);
            mpfr_sub(t, v[k], v[k - j], MPFR_RNDN);
            mpfr_div(f[k], f[k], t, MPFR_RNDN);
        }
    for (int k = 0; k <= n; ++k)
        mpfr_set_ui(coef[k], 0, MPFR_RNDN);
    for (int j = n; j >= 0; --j) {
        // coef = coef*(v - v[j]) + f[j]
        for (int k = n; k >= 0; --k) {
            mpfr_mul(w, coef[k], v[j], MPFR_RNDN);
            if (k > 0)
                mpfr_sub(coef[k], coef[k - 1], w, MPFR_RNDN);
            else
                mpfr_neg(coef[k], w, MPFR_RNDN);
        }
        mpfr_add(coef[0], coef[0], f[j], MPFR_RNDN);
    }
    for (int k = 0; k <= n; ++k)
        mpfr_clears(v[k], f[k], (mpfr_ptr)0);
    mpfr_clears(t, w, (mpfr_ptr)0);
}

// The row of degree n in double, highest degree first, and the constant's remainder
// after it when `low`.
void RowOf(int i, int n, bool low, double* out) {
    mpfr_t coef[16], r;
    for (int k = 0; k <= n; ++k)
        mpfr_init2(coef[k], kPrec);
    mpfr_init2(r, kPrec);
    Fit(i, n, coef);
    for (int k = 0; k <= n; ++k)
        out[n - k] = mpfr_get_d(coef[k], MPFR_RNDN);
    if (low) {
        mpfr_sub_d(r, coef[0], out[n], MPFR_RNDN);
        out[n + 1] = mpfr_get_d(r, MPFR_RNDN);
    }
    for (int k = 0; k <= n; ++k)
        mpfr_clear(coef[k]);
    mpfr_clear(r);
}

// The largest relative error of the rows of degree n (as rounded) against P, on 64
// points of each interval, evaluated at 256 bits.
double Check(int n, bool low) {
    double worst = 0;
    mpfr_t t, p, q, e;
    mpfr_inits2(kPrec, t, p, q, e, (mpfr_ptr)0);
    for (int i = 0; i < kRows; ++i) {
        double row[16];
        RowOf(i, n, low, row);
        Interval r = Row(i);
        for (int s = 0; s <= 64; ++s) {
            double v = -r.width / 2 + r.width * s / 64;
            if (i == kRows - 1 && s > 32) break;
            mpfr_set_d(t, r.c, MPFR_RNDN);
            mpfr_add_d(t, t, v, MPFR_RNDN);
            P(p, t);
            mpfr_set_d(q, row[0], MPFR_RNDN);
            for (int k = 1; k <= n; ++k) {
                mpfr_mul_d(q, q, v, MPFR_RNDN);
                mpfr_add_d(q, q, row[k], MPFR_RNDN);
            }
            if (low) mpfr_add_d(q, q, row[n + 1], MPFR_RNDN);
            mpfr_sub(e, q, p, MPFR_RNDN);
            mpfr_div(e, e, p, MPFR_RNDN);
            double d = std::fabs(mpfr_get_d(e, MPFR_RNDN));
            if (d > worst) worst = d;
        }
    }
    mpfr_clears(t, p, q, e, (mpfr_ptr)0);
    return worst;
}

void Table(FILE* f, const char* name, int n, bool low) {
    int w = n + 1 + (low ? 1 : 0);
    std::fprintf(f, "\nalignas(16) const double %s[%d][%d] = {\n", name, kRows, w);
    for (int i = 0; i < kRows; ++i) {
        double row[16];
        RowOf(i, n, low, row);
        std::fprintf(f, "    {");
        for (int k = 0; k < w; ++k)
            std::fprintf(f, "%s%a", k ? ", " : "", row[k]);
        std::fprintf(f, "},\n");
    }
    std::fprintf(f, "};\n");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gen_erfinv_tables OUT | check\n");
        return 2;
    }
    if (!std::strcmp(argv[1], "check")) {
        std::printf("EP %.3g\nLA %.3g\nHA %.3g\n", Check(5, false), Check(9, false),
                    Check(10, true));
        return 0;
    }
    FILE* f = std::fopen(argv[1], "w");
    if (!f) return 1;
    std::fprintf(f, "// Generated by tools/erf/gen_erfinv_tables (MPFR); do not edit.\n"
                    "#include \"vecmath/erf/erfinv_tables.h\"\n\nnamespace brenn::vm {\n");
    Table(f, "erfInvRowsEP", 5, false);
    Table(f, "erfInvRowsLA", 9, false);
    Table(f, "erfInvRowsHA", 10, true);
    std::fprintf(f, "\n} // namespace brenn::vm\n");
    return std::fclose(f) ? 1 : 0;
}
