// Generates the tables of the inverse error functions from MPFR at 256 bits:
//   gen_erfinv_tables OUT         vecmath/erf/erfinv_tables.cpp
//   gen_erfinv_tables tail OUT    vecmath/erf/erfcinv_tail.h (below t = 2^-53)
//   gen_erfinv_tables single OUT  vecmath/erf/erfinv_tables_single.cpp (single rows)
//   gen_erfinv_tables check       the largest relative error of each table's fit
// The argument is t = 1 - |x|, from 2^-53 (the largest double below 1) to 1. Row i
// covers one sixteenth of a binade of t, [lo, lo + 2^e/16) with lo = 2^e*(1 + k/16),
// i = 16*(e + 53) + k; row 848 is that of t = 1 alone. On it P(t) = erfinv(1-t)/(1-t)
// (an even function of 1 - t, sqrt(pi)/2 at t = 1) is interpolated at the Chebyshev
// nodes of the interval in v = t - c, c its midpoint, and the coefficients are
// rounded to double, constant term last so that rows read from the highest degree:
//   erfInvRowsEP[849][6]   degree 5;
//   erfInvRowsLA[849][10]  degree 9;
//   erfInvRowsHA[849][12]  degree 10 and the constant's remainder, last;
//   erfInvRowsCubic[849][4] degree 3 (32-byte rows of the double EP), row 848 fitted
//                          around t = 1, the one argument that reaches it.
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

// The nodes are centred on c + off, the coefficients taken in v = t - c.
struct Interval {
    double lo, width, c, off = 0;
};

Interval Row(int i) {
    if (i == kRows - 1) return {1.0, 1.0 / 16, 1.0 + 1.0 / 32};
    double base = std::ldexp(1.0, i / 16 - 53);
    double lo = base * (1 + (i % 16) / 16.0), width = base / 16;
    return {lo, width, lo + width / 2};
}

using Function = void (*)(mpfr_t out, mpfr_t arg);

// The interpolant of f of degree n at the Chebyshev nodes of the interval r, as
// coefficients of v^k, v = arg - r.c (256 bits).
void Fit(const Interval& r, Function fn, int n, mpfr_t* coef) {
    mpfr_t v[24], f[24], t, w;
    mpfr_inits2(kPrec, t, w, (mpfr_ptr)0);
    for (int k = 0; k <= n; ++k) {
        mpfr_inits2(kPrec, v[k], f[k], (mpfr_ptr)0);
        mpfr_const_pi(t, MPFR_RNDN);
        mpfr_mul_ui(t, t, 2 * k + 1, MPFR_RNDN);
        mpfr_div_ui(t, t, 2 * (n + 1), MPFR_RNDN);
        mpfr_cos(t, t, MPFR_RNDN);
        mpfr_mul_d(v[k], t, r.width / 2, MPFR_RNDN);
        mpfr_add_d(v[k], v[k], r.off, MPFR_RNDN);
        mpfr_add_d(t, v[k], r.c, MPFR_RNDN);
        fn(f[k], t);
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
    Fit(Row(i), P, n, coef);
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

// worst = max(worst, |q/p - 1|), e the scratch.
void KeepWorst(double& worst, mpfr_t q, mpfr_t p, mpfr_t e) {
    mpfr_sub(e, q, p, MPFR_RNDN);
    mpfr_div(e, e, p, MPFR_RNDN);
    double d = std::fabs(mpfr_get_d(e, MPFR_RNDN));
    if (d > worst) worst = d;
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
            KeepWorst(worst, q, p, e);
        }
    }
    mpfr_clears(t, p, q, e, (mpfr_ptr)0);
    return worst;
}

// erfcinv(e^(-s^2)) for s >= 6, by Newton's steps on ln erfc(y) = -s^2 from y = s, in
// MPFR's exponent range (e^(-s^2) reaches 2^-1075 and below).
void TailOfS(mpfr_t out, mpfr_t s) {
    mpfr_t y, f, d, l, q;
    mpfr_inits2(kPrec, y, f, d, l, q, (mpfr_ptr)0);
    mpfr_sqr(l, s, MPFR_RNDN);
    mpfr_set(y, s, MPFR_RNDN);
    mpfr_const_pi(q, MPFR_RNDN);
    mpfr_sqrt(q, q, MPFR_RNDN);
    for (int i = 0; i < 40; ++i) {
        mpfr_erfc(f, y, MPFR_RNDN);
        mpfr_sqr(d, y, MPFR_RNDN);
        mpfr_neg(d, d, MPFR_RNDN);
        mpfr_exp(d, d, MPFR_RNDN);
        mpfr_div(d, d, f, MPFR_RNDN); // -(ln erfc)'(y) sqrt(pi)/2
        mpfr_log(f, f, MPFR_RNDN);
        mpfr_add(f, f, l, MPFR_RNDN);
        mpfr_mul(f, f, q, MPFR_RNDN);
        mpfr_div_ui(f, f, 2, MPFR_RNDN);
        mpfr_div(f, f, d, MPFR_RNDN);
        mpfr_add(y, y, f, MPFR_RNDN);
        if (mpfr_zero_p(f) || mpfr_get_exp(f) < mpfr_get_exp(y) - 250) break;
    }
    mpfr_set(out, y, MPFR_RNDN);
    mpfr_clears(y, f, d, l, q, (mpfr_ptr)0);
}

// The tail's function of u = 1/s: G(u) = u erfcinv(e^(-1/u^2)), about 1 - u^2 ln(...)/2.
void G(mpfr_t out, mpfr_t u) {
    mpfr_t s;
    mpfr_init2(s, kPrec);
    mpfr_ui_div(s, 1, u, MPFR_RNDN);
    TailOfS(out, s);
    mpfr_mul(out, out, u, MPFR_RNDN);
    mpfr_clear(s);
}

// The tail, t = e^(-s^2) below 2^-53 (s above 6.06, u below 0.1651) down to 2^-1075
// (u above 0.0365): G on the cells [1/32 + k/128, 1/32 + (k+1)/128) of u, kTailCells of
// them, each a polynomial of degree kTailDegree in v = u - c, c the cell's midpoint,
// rounded to long double.
constexpr int kTailCells = 18, kTailDegree = 13;

Interval TailCell(int k) {
    double lo = 1.0 / 32 + k / 128.0;
    return {lo, 1.0 / 128, lo + 1.0 / 256};
}

void TailRow(int k, long double* out) {
    mpfr_t coef[kTailDegree + 1];
    for (int j = 0; j <= kTailDegree; ++j)
        mpfr_init2(coef[j], kPrec);
    Fit(TailCell(k), G, kTailDegree, coef);
    for (int j = 0; j <= kTailDegree; ++j) {
        out[kTailDegree - j] = mpfr_get_ld(coef[j], MPFR_RNDN);
        mpfr_clear(coef[j]);
    }
}

// The largest relative error of the tail's cells (as rounded) against G.
double CheckTail() {
    double worst = 0;
    mpfr_t u, g, q, e;
    mpfr_inits2(kPrec, u, g, q, e, (mpfr_ptr)0);
    for (int k = 0; k < kTailCells; ++k) {
        long double row[kTailDegree + 1];
        TailRow(k, row);
        Interval r = TailCell(k);
        for (int s = 0; s <= 32; ++s) {
            double v = -r.width / 2 + r.width * s / 32;
            mpfr_set_d(u, r.c + v, MPFR_RNDN);
            G(g, u);
            mpfr_set_ld(q, row[0], MPFR_RNDN);
            for (int j = 1; j <= kTailDegree; ++j) {
                mpfr_mul_d(q, q, v, MPFR_RNDN);
                mpfr_t c;
                mpfr_init2(c, 64);
                mpfr_set_ld(c, row[j], MPFR_RNDN);
                mpfr_add(q, q, c, MPFR_RNDN);
                mpfr_clear(c);
            }
            KeepWorst(worst, q, g, e);
        }
    }
    mpfr_clears(u, g, q, e, (mpfr_ptr)0);
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

// The cubic rows: row i's interval, but row 848 (t = 1 only, v = -1/32) on the 1/32
// about t = 1, P being even about it; on the whole [1, 1 + 1/16) its cubic would be
// off by 1.7e-8, beyond 2^-26.
void CubicTable(FILE* f) {
    std::fprintf(f, "\nalignas(32) const double erfInvRowsCubic[%d][4] = {\n", kRows);
    mpfr_t coef[4];
    for (int k = 0; k < 4; ++k)
        mpfr_init2(coef[k], kPrec);
    for (int i = 0; i < kRows; ++i) {
        Interval r = Row(i);
        if (i == kRows - 1) r = {1.0, 1.0 / 32, 1.0 + 1.0 / 32, -1.0 / 32};
        Fit(r, P, 3, coef);
        std::fprintf(f, "    {");
        for (int k = 3; k >= 0; --k)
            std::fprintf(f, "%s%a", k < 3 ? ", " : "", mpfr_get_d(coef[k], MPFR_RNDN));
        std::fprintf(f, "},\n");
    }
    for (int k = 0; k < 4; ++k)
        mpfr_clear(coef[k]);
    std::fprintf(f, "};\n");
}

// The single rows, erfInvRowsSingle[849][4]: the cubic of row i in w = (t - c)/2^e,
// 2^e the binade of the row (2^0 for row 848), so that the coefficients stay in the
// single range and w is read from t's significand; rounded to single, highest degree
// first.
void SingleTable(FILE* f) {
    std::fprintf(f, "// Generated by tools/erf/gen_erfinv_tables (MPFR); do not edit.\n"
                    "#include \"vecmath/erf/erfinv_rows_single.h\"\n\nnamespace brenn::vm {\n"
                    "\nalignas(16) const float erfInvRowsSingle[%d][4] = {\n",
                 kRows);
    mpfr_t coef[4];
    for (int k = 0; k < 4; ++k)
        mpfr_init2(coef[k], kPrec);
    for (int i = 0; i < kRows; ++i) {
        Fit(Row(i), P, 3, coef);
        int e = i == kRows - 1 ? 0 : i / 16 - 53;
        std::fprintf(f, "    {");
        for (int k = 3; k >= 0; --k) {
            mpfr_mul_2si(coef[k], coef[k], e * k, MPFR_RNDN);
            std::fprintf(f, "%s%af", k < 3 ? ", " : "", double(mpfr_get_flt(coef[k], MPFR_RNDN)));
        }
        std::fprintf(f, "},\n");
    }
    for (int k = 0; k < 4; ++k)
        mpfr_clear(coef[k]);
    std::fprintf(f, "};\n\n} // namespace brenn::vm\n");
}

void TailTable(FILE* f) {
    std::fprintf(f,
                 "// Generated by tools/erf/gen_erfinv_tables (MPFR); do not edit.\n"
                 "/* The tail of the inverse complementary error function, t = e^(-s^2) below "
                 "2^-53:\n"
                 " * erfcinv(t) = s G(u), u = 1/s, G on the cells [1/32 + k/128, 1/32 + "
                 "(k+1)/128) of u\n"
                 " * by its interpolant at the Chebyshev nodes in v = u - c, c the cell's "
                 "midpoint,\n"
                 " * highest degree first (relative error %.2g). */\n"
                 "#ifndef BRENN_VECMATH_ERF_ERFCINV_TAIL_H\n"
                 "#define BRENN_VECMATH_ERF_ERFCINV_TAIL_H\n\n"
                 "namespace brenn::vm {\n\n"
                 "inline constexpr int kErfcInvTailCells = %d, kErfcInvTailDegree = %d;\n\n"
                 "inline constexpr long double erfcInvTail[%d][%d] = {\n",
                 CheckTail(), kTailCells, kTailDegree, kTailCells, kTailDegree + 1);
    for (int k = 0; k < kTailCells; ++k) {
        long double row[kTailDegree + 1];
        TailRow(k, row);
        std::fprintf(f, "    {");
        for (int j = 0; j <= kTailDegree; ++j)
            std::fprintf(f, "%s%LaL", j ? ", " : "", row[j]);
        std::fprintf(f, "},\n");
    }
    std::fprintf(f, "};\n\n} // namespace brenn::vm\n\n#endif\n");
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2 && argc != 3) {
        std::fprintf(stderr, "usage: gen_erfinv_tables OUT | tail OUT | single OUT | check\n");
        return 2;
    }
    if (argc == 3 && (!std::strcmp(argv[1], "tail") || !std::strcmp(argv[1], "single"))) {
        FILE* f = std::fopen(argv[2], "w");
        if (!f) return 1;
        if (argv[1][0] == 't')
            TailTable(f);
        else
            SingleTable(f);
        return std::fclose(f) ? 1 : 0;
    }
    if (argc == 3) return 2;
    if (!std::strcmp(argv[1], "check")) {
        std::printf("EP %.3g\nLA %.3g\nHA %.3g\ntail %.3g\n", Check(5, false), Check(9, false),
                    Check(10, true), CheckTail());
        return 0;
    }
    FILE* f = std::fopen(argv[1], "w");
    if (!f) return 1;
    std::fprintf(f, "// Generated by tools/erf/gen_erfinv_tables (MPFR); do not edit.\n"
                    "#include \"vecmath/erf/erfinv_tables.h\"\n\nnamespace brenn::vm {\n");
    Table(f, "erfInvRowsEP", 5, false);
    Table(f, "erfInvRowsLA", 9, false);
    Table(f, "erfInvRowsHA", 10, true);
    CubicTable(f);
    std::fprintf(f, "\n} // namespace brenn::vm\n");
    return std::fclose(f) ? 1 : 0;
}
