// Generates the tables of the error-function rows from MPFR at 256 bits:
//   gen_erf_tables tables OUT   vecmath/erf/erf_tables.cpp
//   gen_erf_tables series OUT   vecmath/erf/erf_series.h
//   gen_erf_tables single OUT   vecmath/erf/erf_tables_single.cpp
// Every row sits on the grid point xj = j/128 (Erf, Erfc) or j/64 (CdfNorm). A value
// rounded to double is v, its remainder rounded vlo; a derivative is given as dh, rounded
// to 26 significant bits (so that its product with 26 bits of d is exact), and dl, the
// remainder rounded to double.
//   erfRows[768]          {erf(xj), 2/sqrt(pi)*exp(-xj^2)}, up to 767/128 = 5.9921875;
//   erfRowsHA[768]        {v, vlo, dh, dl} of erf;
//   erfcRows[3488]        {v, vlo, dh, dl} of erfc up to 27.2421875, times 2^128 from
//                         xj = 20 on, so that they stay normal;
//   cdfNormRows[2465]     {v, vlo, dh, dl} of Q(x) = Phi(-x), whose derivative is -phi(x)
//                         with phi the normal density, up to 38.5, times 2^128 from 26 on.
// The single rows, {v, dh, vlo, dl} rounded to single (dh to 24 bits), stop where the
// single result is 1 (erf) or rounds to 0; those of erfc and Q are times 2^100, so that
// their values and remainders are normal singles:
//   erfRowsSingle[504]      erf, up to 503/128 = 3.9296875;
//   erfcRowsSingle[1297]    erfc up to 10.125;
//   cdfNormRowsSingle[913]  Q up to 14.25.
// The derivative is signed, so that for all three
// F(xj + d) = F(xj) + F'(xj)*d*S(tau, u), where
// S(tau, u) = integral over s in [0, 1] of exp(-tau*s - u*s^2), with tau = 2*xj*d and
// u = d^2 for erf and erfc, tau = xj*d and u = d^2/2 for Phi; its Taylor coefficients
// are exact: S = sum over m, k of (-1)^(m+k) tau^k u^m / (m! k! (2m + k + 1)).
#include <cstdio>
#include <cstring>
#include <mpfr.h>

namespace {

constexpr mpfr_prec_t kPrec = 256;

void Print(FILE* f, double v) {
    if (v == 0)
        std::fprintf(f, "0x0p+0");
    else
        std::fprintf(f, "%a", v);
}

// v rounded to `bits` significant bits, and the remainder rounded to double.
void Pair(mpfr_t v, double& hi, double& lo, int bits = 53) {
    mpfr_t r;
    mpfr_init2(r, kPrec);
    mpfr_set(r, v, MPFR_RNDN);
    mpfr_prec_round(r, bits, MPFR_RNDN);
    hi = mpfr_get_d(r, MPFR_RNDN);
    mpfr_set_prec(r, kPrec);
    mpfr_sub_d(r, v, hi, MPFR_RNDN);
    lo = mpfr_get_d(r, MPFR_RNDN);
    mpfr_clear(r);
}

// The density 2/sqrt(pi)*exp(-x^2) (erf) or exp(-x^2/2)/sqrt(2*pi) (Phi) at x.
void Density(mpfr_t out, mpfr_t x, bool normal) {
    mpfr_t t;
    mpfr_init2(t, kPrec);
    mpfr_sqr(out, x, MPFR_RNDN);
    if (normal) mpfr_div_2ui(out, out, 1, MPFR_RNDN);
    mpfr_neg(out, out, MPFR_RNDN);
    mpfr_exp(out, out, MPFR_RNDN);
    mpfr_const_pi(t, MPFR_RNDN);
    if (normal) mpfr_mul_2ui(t, t, 1, MPFR_RNDN);
    mpfr_sqrt(t, t, MPFR_RNDN);
    mpfr_div(out, out, t, MPFR_RNDN);
    if (!normal) mpfr_mul_2ui(out, out, 1, MPFR_RNDN);
    mpfr_clear(t);
}

// A row of four; `suffix` after each value ("f" for single rows).
void Row4(FILE* f, double a, double b, double c, double d, const char* suffix = "") {
    std::fprintf(f, "    {");
    Print(f, a);
    std::fprintf(f, "%s, ", suffix);
    Print(f, b);
    std::fprintf(f, "%s, ", suffix);
    Print(f, c);
    std::fprintf(f, "%s, ", suffix);
    Print(f, d);
    std::fprintf(f, "%s},\n", suffix);
}

// erfc(x) (normal false) or Q(x) = erfc(x/sqrt(2))/2 (normal true).
void TailValue(mpfr_t v, mpfr_t x, bool normal) {
    mpfr_set(v, x, MPFR_RNDN);
    if (normal) {
        mpfr_sqrt_ui(v, 2, MPFR_RNDN);
        mpfr_div(v, x, v, MPFR_RNDN);
    }
    mpfr_erfc(v, v, MPFR_RNDN);
    if (normal) mpfr_div_2ui(v, v, 1, MPFR_RNDN);
}

// The wide rows of erfc (normal false) or Q (normal true) on j/per, times 2^128 from
// xj = scaleFrom on; the derivative, -(the density), is signed.
void TailRows(FILE* f, const char* name, int rows, int per, double scaleFrom, bool normal) {
    std::fprintf(f, "};\n\nalignas(32) const double %s[%d][4] = {\n", name, rows);
    mpfr_t x, v, dv;
    mpfr_inits2(kPrec, x, v, dv, (mpfr_ptr)0);
    for (int j = 0; j < rows; ++j) {
        double xj = double(j) / per, hi, lo, dhi, dlo;
        mpfr_set_d(x, xj, MPFR_RNDN);
        TailValue(v, x, normal);
        Density(dv, x, normal);
        mpfr_neg(dv, dv, MPFR_RNDN);
        int s = xj >= scaleFrom ? 128 : 0;
        mpfr_mul_2si(v, v, s, MPFR_RNDN);
        mpfr_mul_2si(dv, dv, s, MPFR_RNDN);
        Pair(v, hi, lo);
        Pair(dv, dhi, dlo, 26);
        Row4(f, hi, lo, dhi, dlo);
    }
    mpfr_clears(x, v, dv, (mpfr_ptr)0);
}

// v rounded to single, and the remainder rounded to single.
void PairSingle(mpfr_t v, float& hi, float& lo) {
    mpfr_t r;
    mpfr_init2(r, kPrec);
    hi = mpfr_get_flt(v, MPFR_RNDN);
    mpfr_sub_d(r, v, hi, MPFR_RNDN);
    lo = mpfr_get_flt(r, MPFR_RNDN);
    mpfr_clear(r);
}

// The single rows of erf (kind 0), erfc (1) or Q (2) on j/per, times 2^scale.
void SingleRows(FILE* f, const char* name, int rows, int per, int kind, int scale) {
    std::fprintf(f, "alignas(16) const float %s[%d][4] = {\n", name, rows);
    mpfr_t x, v, dv;
    mpfr_inits2(kPrec, x, v, dv, (mpfr_ptr)0);
    for (int j = 0; j < rows; ++j) {
        mpfr_set_d(x, double(j) / per, MPFR_RNDN);
        if (kind == 0)
            mpfr_erf(v, x, MPFR_RNDN);
        else
            TailValue(v, x, kind == 2);
        Density(dv, x, kind == 2);
        if (kind != 0) mpfr_neg(dv, dv, MPFR_RNDN);
        mpfr_mul_2si(v, v, scale, MPFR_RNDN);
        mpfr_mul_2si(dv, dv, scale, MPFR_RNDN);
        float hi, lo, dhi, dlo;
        PairSingle(v, hi, lo);
        PairSingle(dv, dhi, dlo);
        Row4(f, hi, dhi, lo, dlo, "f");
    }
    std::fprintf(f, "};\n");
    mpfr_clears(x, v, dv, (mpfr_ptr)0);
}

void SingleTables(FILE* f) {
    std::fprintf(f, "// Generated by tools/erf/gen_erf_tables from MPFR; do not edit.\n"
                    "// The single rows of Erf, Erfc and CdfNorm on their grids (erf_tables.h).\n"
                    "#include \"vecmath/erf/erf_tables.h\"\n\nnamespace brenn::vm {\n\n");
    SingleRows(f, "erfRowsSingle", 504, 128, 0, 0);
    std::fprintf(f, "\n");
    SingleRows(f, "erfcRowsSingle", 1297, 128, 1, 100);
    std::fprintf(f, "\n");
    SingleRows(f, "cdfNormRowsSingle", 913, 64, 2, 100);
    std::fprintf(f, "\n} // namespace brenn::vm\n");
}

void Tables(FILE* f) {
    std::fprintf(f, "// Generated by tools/erf/gen_erf_tables from MPFR; do not edit.\n"
                    "// The rows of Erf, Erfc and CdfNorm on their grids (erf_tables.h).\n"
                    "#include \"vecmath/erf/erf_tables.h\"\n\nnamespace brenn::vm {\n\n");
    mpfr_t x, v, dv;
    mpfr_inits2(kPrec, x, v, dv, (mpfr_ptr)0);
    double hi, lo, dhi, dlo;

    std::fprintf(f, "alignas(16) const double erfRows[768][2] = {\n");
    for (int j = 0; j < 768; ++j) {
        mpfr_set_d(x, j / 128.0, MPFR_RNDN);
        mpfr_erf(v, x, MPFR_RNDN);
        Density(dv, x, false);
        std::fprintf(f, "    {");
        Print(f, mpfr_get_d(v, MPFR_RNDN));
        std::fprintf(f, ", ");
        Print(f, mpfr_get_d(dv, MPFR_RNDN));
        std::fprintf(f, "},\n");
    }
    std::fprintf(f, "};\n\nalignas(32) const double erfRowsHA[768][4] = {\n");
    for (int j = 0; j < 768; ++j) {
        mpfr_set_d(x, j / 128.0, MPFR_RNDN);
        mpfr_erf(v, x, MPFR_RNDN);
        Density(dv, x, false);
        Pair(v, hi, lo);
        Pair(dv, dhi, dlo, 26);
        Row4(f, hi, lo, dhi, dlo);
    }
    TailRows(f, "erfcRows", 3488, 128, 20, false);
    TailRows(f, "cdfNormRows", 2465, 64, 26, true);
    std::fprintf(f, "};\n\n} // namespace brenn::vm\n");
    mpfr_clears(x, v, dv, (mpfr_ptr)0);
}

constexpr int kPowersOfU = 4, kPowersOfTau = 14;

void Series(FILE* f) {
    std::fprintf(
        f,
        "// Generated by tools/erf/gen_erf_tables from MPFR; do not edit.\n"
        "// The Taylor coefficients of S(tau, u) = integral over [0, 1] of\n"
        "// exp(-tau*s - u*s^2) ds: kErfSeries[m][k] is the coefficient of\n"
        "// tau^k u^m, (-1)^(m+k) / (m! k! (2m + k + 1)), rounded to double.\n"
        "#ifndef BRENN_VECMATH_ERF_ERF_SERIES_H\n#define BRENN_VECMATH_ERF_ERF_SERIES_H\n\n"
        "namespace brenn::vm {\n\ninline constexpr double kErfSeries[%d][%d] = {\n",
        kPowersOfU, kPowersOfTau);
    mpfr_t c;
    mpfr_init2(c, kPrec);
    for (int m = 0; m < kPowersOfU; ++m) {
        std::fprintf(f, "    {");
        for (int k = 0; k < kPowersOfTau; ++k) {
            mpfr_set_ui(c, 1, MPFR_RNDN);
            for (int i = 2; i <= m; ++i)
                mpfr_div_ui(c, c, i, MPFR_RNDN);
            for (int i = 2; i <= k; ++i)
                mpfr_div_ui(c, c, i, MPFR_RNDN);
            mpfr_div_ui(c, c, 2 * m + k + 1, MPFR_RNDN);
            if ((m + k) & 1) mpfr_neg(c, c, MPFR_RNDN);
            Print(f, mpfr_get_d(c, MPFR_RNDN));
            std::fprintf(f, k + 1 < kPowersOfTau ? ", " : "},\n");
        }
    }
    std::fprintf(f, "};\n\n} // namespace brenn::vm\n\n#endif\n");
    mpfr_clear(c);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 3 || (std::strcmp(argv[1], "tables") && std::strcmp(argv[1], "series") &&
                      std::strcmp(argv[1], "single"))) {
        std::fprintf(stderr, "usage: gen_erf_tables tables|series|single OUT\n");
        return 2;
    }
    FILE* f = std::fopen(argv[2], "w");
    if (!f) return 1;
    if (!std::strcmp(argv[1], "tables"))
        Tables(f);
    else if (!std::strcmp(argv[1], "single"))
        SingleTables(f);
    else
        Series(f);
    return std::fclose(f) == 0 ? 0 : 1;
}
