// Generates vecmath/hyper/hyper_tables.cpp, the interval rows of the single Tanh, from
// MPFR at 256 bits. The rows follow the kernel's index: row 0 holds [0, 2^-5), row k
// for k = 1..132 the k-th sixteenth of a binade from 2^-5 on (the last one [9.5, 10)),
// row 133 everything above, where the kernel sets the argument to 0.
//   tanhRowsLA[k] = {c0, c1, c2, c3}: the cubic through tanh at the four Chebyshev
//                   nodes of the interval; row 0 has c0 = 0 and c1 = 1 and fits
//                   (tanh(a) - a)/a^2 by c2 + c3*a at two nodes, so that the leading
//                   term of a small argument is exact;
//   tanhRowsHA[k] = {c0, ..., c4, 0, 0, 0}: the quartic through tanh at the five
//                   Chebyshev nodes, in rows of eight; row 0 fits (tanh(a) - a)/a^2 by
//                   c2 + c3*a + c4*a^2 at three nodes, as the cubic does;
//   tanhRowsEP[k] = {c0, c1}: the line through tanh at the two Chebyshev nodes; row 0
//                   is {0, 1}.
// Row 133 is {1, 0, ...}: the kernel evaluates it at 0.
// Also the exponential rows of the single HA Cosh and Sinh:
//   hyperExpRowsS[j] = {Thi, Tlo, Uhi, Ulo}, T = 2^(j/64) and U = 2^(-j/64) for j = 0..63,
//                   each as its single rounding and the single rounding of the rest.
//   gen_hyper_tables OUT
#include <cstdio>
#include <mpfr.h>

namespace {

constexpr mpfr_prec_t kPrec = 256;
constexpr int kRows = 134;

// The ends of row k (1 to 132): the single bit patterns 0x3D000000 + (k-1)*2^19 on.
double RowStart(int k) {
    unsigned bits = 0x3D000000u + unsigned(k - 1) * 0x80000u;
    float f;
    __builtin_memcpy(&f, &bits, 4);
    return f;
}

// Coefficients c[0..n-1] of the polynomial of degree n-1 through (x[i], y[i]), by
// Gaussian elimination on the Vandermonde system.
void Solve(int n, mpfr_t* x, mpfr_t* y, mpfr_t* c) {
    mpfr_t m[5][6], t;
    mpfr_init2(t, kPrec);
    for (int i = 0; i < n; ++i) {
        for (int j = 0; j <= n; ++j)
            mpfr_init2(m[i][j], kPrec);
        mpfr_set_ui(m[i][0], 1, MPFR_RNDN);
        for (int j = 1; j < n; ++j)
            mpfr_mul(m[i][j], m[i][j - 1], x[i], MPFR_RNDN);
        mpfr_set(m[i][n], y[i], MPFR_RNDN);
    }
    for (int p = 0; p < n; ++p)
        for (int i = p + 1; i < n; ++i) {
            mpfr_div(t, m[i][p], m[p][p], MPFR_RNDN);
            for (int j = p; j <= n; ++j) {
                mpfr_t u;
                mpfr_init2(u, kPrec);
                mpfr_mul(u, t, m[p][j], MPFR_RNDN);
                mpfr_sub(m[i][j], m[i][j], u, MPFR_RNDN);
                mpfr_clear(u);
            }
        }
    for (int i = n - 1; i >= 0; --i) {
        mpfr_set(c[i], m[i][n], MPFR_RNDN);
        for (int j = i + 1; j < n; ++j) {
            mpfr_mul(t, m[i][j], c[j], MPFR_RNDN);
            mpfr_sub(c[i], c[i], t, MPFR_RNDN);
        }
        mpfr_div(c[i], c[i], m[i][i], MPFR_RNDN);
    }
    for (int i = 0; i < n; ++i)
        for (int j = 0; j <= n; ++j)
            mpfr_clear(m[i][j]);
    mpfr_clear(t);
}

// The n Chebyshev nodes of [lo, hi] in x, and f at them in y: tanh, or for `small`
// (tanh(a) - a)/a^2.
void Nodes(int n, double lo, double hi, bool small, mpfr_t* x, mpfr_t* y) {
    mpfr_t t, u;
    mpfr_inits2(kPrec, t, u, (mpfr_ptr)0);
    for (int i = 0; i < n; ++i) {
        mpfr_const_pi(t, MPFR_RNDN);
        mpfr_mul_si(t, t, 2 * i + 1, MPFR_RNDN);
        mpfr_div_si(t, t, 2 * n, MPFR_RNDN);
        mpfr_cos(t, t, MPFR_RNDN);
        mpfr_set_d(u, hi - lo, MPFR_RNDN);
        mpfr_mul(t, t, u, MPFR_RNDN);
        mpfr_div_2ui(t, t, 1, MPFR_RNDN);
        mpfr_set_d(u, lo, MPFR_RNDN);
        mpfr_add_d(u, u, hi, MPFR_RNDN);
        mpfr_div_2ui(u, u, 1, MPFR_RNDN);
        mpfr_add(x[i], u, t, MPFR_RNDN);
        mpfr_tanh(y[i], x[i], MPFR_RNDN);
        if (small) {
            mpfr_sub(y[i], y[i], x[i], MPFR_RNDN);
            mpfr_sqr(t, x[i], MPFR_RNDN);
            mpfr_div(y[i], y[i], t, MPFR_RNDN);
        }
    }
    mpfr_clears(t, u, (mpfr_ptr)0);
}

// One row of `degree` + 1 coefficients for row k, padded with zeros to `width`.
void Row(FILE* out, int k, int degree, int width) {
    double c[5] = {0, 0, 0, 0, 0};
    mpfr_t x[5], y[5], m[5];
    for (int i = 0; i < 5; ++i) {
        mpfr_init2(x[i], kPrec);
        mpfr_init2(y[i], kPrec);
        mpfr_init2(m[i], kPrec);
    }
    if (k == kRows - 1) {
        c[0] = 1;
    } else if (k == 0) {
        c[1] = 1;
        if (degree > 1) {
            Nodes(degree - 1, 0.0, 0x1p-5, true, x, y);
            Solve(degree - 1, x, y, m);
            for (int i = 2; i <= degree; ++i)
                c[i] = mpfr_get_d(m[i - 2], MPFR_RNDN);
        }
    } else {
        double lo = RowStart(k), hi = RowStart(k + 1);
        Nodes(degree + 1, lo, hi, false, x, y);
        Solve(degree + 1, x, y, m);
        for (int i = 0; i <= degree; ++i)
            c[i] = mpfr_get_d(m[i], MPFR_RNDN);
    }
    std::fprintf(out, "    {%a", c[0] + 0.0);
    for (int i = 1; i < width; ++i)
        std::fprintf(out, ", %a", i <= degree ? c[i] + 0.0 : 0.0);
    std::fprintf(out, "},\n");
    for (int i = 0; i < 5; ++i) {
        mpfr_clear(x[i]);
        mpfr_clear(y[i]);
        mpfr_clear(m[i]);
    }
}

void Table(FILE* out, const char* name, int degree, int width) {
    std::fprintf(out, "alignas(32) const double %s[%d][%d] = {\n", name, kRows, width);
    for (int k = 0; k < kRows; ++k)
        Row(out, k, degree, width);
    std::fprintf(out, "};\n\n");
}

// The rows of 2^(j/64) and 2^(-j/64) in two singles each.
void ExpRowsSingle(FILE* out) {
    std::fprintf(out, "alignas(16) const float hyperExpRowsS[64][4] = {\n");
    mpfr_t v, w;
    mpfr_inits2(kPrec, v, w, (mpfr_ptr)0);
    for (int j = 0; j < 64; ++j) {
        std::fprintf(out, "    {");
        for (int sign = 1; sign >= -1; sign -= 2) {
            mpfr_set_si(v, sign * j, MPFR_RNDN);
            mpfr_div_2ui(v, v, 6, MPFR_RNDN);
            mpfr_exp2(v, v, MPFR_RNDN);
            float hi = mpfr_get_flt(v, MPFR_RNDN);
            mpfr_sub_d(w, v, hi, MPFR_RNDN);
            float lo = mpfr_get_flt(w, MPFR_RNDN);
            std::fprintf(out, "%af, %af%s", double(hi), double(lo) + 0.0, sign > 0 ? ", " : "");
        }
        std::fprintf(out, "},\n");
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(v, w, (mpfr_ptr)0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gen_hyper_tables OUT\n");
        return 2;
    }
    FILE* out = std::fopen(argv[1], "w");
    if (!out) return 1;
    std::fprintf(out, "// Generated by tools/hyper/gen_hyper_tables from MPFR; do not edit.\n"
                      "// The interval rows of the single Tanh: cubics (LA), quartics (HA) and\n"
                      "// lines (EP) through tanh at the Chebyshev nodes of each interval; the\n"
                      "// rows of 2^(j/64) and 2^(-j/64) of the single HA Cosh and Sinh.\n"
                      "#include \"vecmath/hyper/hyper_tables.h\"\n\n"
                      "namespace brenn::vm {\n\n");
    Table(out, "tanhRowsLA", 3, 4);
    Table(out, "tanhRowsHA", 4, 8);
    Table(out, "tanhRowsEP", 1, 2);
    ExpRowsSingle(out);
    std::fprintf(out, "} // namespace brenn::vm\n");
    return std::fclose(out) == 0 ? 0 : 1;
}
