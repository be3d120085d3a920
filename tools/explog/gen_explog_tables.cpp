// Generates vecmath/explog/explog_tables.cpp, the constant tables of the exponential
// and logarithm kernels, from MPFR at 256 bits:
//   exp tables: 2^(j/N) for N = 64 and 128 in single (a high part and the rest relative to it),
//   N = 64, 128 and 256 in double (a high part and the rounded rest), N = 256 in two
//   columns of their own, the high part less j*2^44 in its bits and the rest relative
//   to the high part, and N = 1024 (double, one part);
//   log rows: for the centres c = 1 + j/512, j = 0..512, a reciprocal of c rounded to
//   43 bits (so that c times it is exact in double), -ln of that reciprocal, split
//   into a high part on the grid of 2^-42 (so that k*ln2hi + high is exact) and the
//   rounded rest, and a = c times the reciprocal less 1 as double arithmetic forms it;
//   the 128 rows of the scalar logarithm: the same for the middles c = 1 + (2j+1)/256;
//   the rows of the double Log10 and Log2: for c = 1 + j/512 a reciprocal rounded
//   to 10 bits, a = c times it less 1 (exact), and T = -log_B of the reciprocal plus
//   a*log_B(e) in two parts as above;
//   the rows of the double Log2 EP: for c = 1 + j/512 the reciprocal of lnRows
//   and -log_B of it rounded to double, a 16-byte row;
//   the rows of the single HA logarithms: -log_B(t/64), t = 48..96, in two singles.
//   gen_explog_tables OUT
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <mpfr.h>

namespace {

constexpr mpfr_prec_t kPrec = 256;

void Pow2(mpfr_t r, long j, long n) {
    mpfr_set_si(r, j, MPFR_RNDN);
    mpfr_div_si(r, r, n, MPFR_RNDN);
    mpfr_exp2(r, r, MPFR_RNDN);
}

// Single rows: the high part and the rest relative to it, (2^(j/N) - hi)/hi, so that
// hi*(1 + lo + r + r^2/2) is the body's whole correction.
void ExpTableF(FILE* out, const char* name, long n) {
    mpfr_t v, t;
    mpfr_inits2(kPrec, v, t, (mpfr_ptr)0);
    std::fprintf(out, "alignas(16) const float %s[%ld][2] = {\n", name, n);
    for (long j = 0; j < n; ++j) {
        Pow2(v, j, n);
        float hi = mpfr_get_flt(v, MPFR_RNDN);
        mpfr_sub_d(t, v, hi, MPFR_RNDN);
        mpfr_div_d(t, t, hi, MPFR_RNDN);
        float lo = mpfr_get_flt(t, MPFR_RNDN);
        std::fprintf(out, "    {%a, %a},\n", hi, lo);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(v, t, (mpfr_ptr)0);
}

// Double rows: a high part and the rounded rest (pair), or the high part alone.
void ExpTableD(FILE* out, const char* name, long n, bool pair) {
    mpfr_t v, t;
    mpfr_inits2(kPrec, v, t, (mpfr_ptr)0);
    if (pair)
        std::fprintf(out, "alignas(16) const double %s[%ld][2] = {\n", name, n);
    else
        std::fprintf(out, "alignas(16) const double %s[%ld] = {\n", name, n);
    for (long j = 0; j < n; ++j) {
        Pow2(v, j, n);
        double hi = mpfr_get_d(v, MPFR_RNDN);
        mpfr_sub_d(t, v, hi, MPFR_RNDN);
        double lo = mpfr_get_d(t, MPFR_RNDN);
        if (pair)
            std::fprintf(out, "    {%a, %a},\n", hi, lo);
        else
            std::fprintf(out, "    %a,\n", hi);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(v, t, (mpfr_ptr)0);
}

// The table of N = 2^k in two arrays: `scale`, the high part of 2^(j/N) with j*2^(52 - k)
// taken from its bits, so that adding n*2^(52 - k) for n = N*m + j (the low bits of the
// shifted n moved up by 52 - k) gives 2^m times the high part, and `rest`, (2^(j/N) -
// hi)/hi. A lane then loads one double from each by the index scaled by 8.
void ExpScaleRestD(FILE* out, const char* scale, const char* rest, long n, int log2n) {
    mpfr_t v, t;
    mpfr_inits2(kPrec, v, t, (mpfr_ptr)0);
    double* hi = new double[n];
    double* lo = new double[n];
    for (long j = 0; j < n; ++j) {
        Pow2(v, j, n);
        hi[j] = mpfr_get_d(v, MPFR_RNDN);
        mpfr_sub_d(t, v, hi[j], MPFR_RNDN);
        mpfr_div_d(t, t, hi[j], MPFR_RNDN);
        lo[j] = mpfr_get_d(t, MPFR_RNDN);
    }
    std::fprintf(out, "alignas(16) const double %s[%ld] = {\n", scale, n);
    for (long j = 0; j < n; ++j) {
        uint64_t bits;
        std::memcpy(&bits, &hi[j], 8);
        bits -= uint64_t(j) << (52 - log2n);
        double d;
        std::memcpy(&d, &bits, 8);
        std::fprintf(out, "    %a,\n", d);
    }
    std::fprintf(out, "};\n\n");
    std::fprintf(out, "alignas(16) const double %s[%ld] = {\n", rest, n);
    for (long j = 0; j < n; ++j)
        std::fprintf(out, "    %a,\n", lo[j]);
    std::fprintf(out, "};\n\n");
    delete[] hi;
    delete[] lo;
    mpfr_clears(v, t, (mpfr_ptr)0);
}

// l as a high part on the grid of 2^-42 (so that k*ln2hi + high is exact) and the
// rounded rest.
void SplitOnGrid42(mpfr_t l, double& hi, double& lo) {
    mpfr_t t, h;
    mpfr_inits2(kPrec, t, h, (mpfr_ptr)0);
    mpfr_mul_2si(t, l, 42, MPFR_RNDN);
    mpfr_rint(t, t, MPFR_RNDN);
    mpfr_div_2si(h, t, 42, MPFR_RNDN);
    mpfr_sub(t, l, h, MPFR_RNDN);
    hi = mpfr_get_d(h, MPFR_RNDN) + 0.0;
    lo = mpfr_get_d(t, MPFR_RNDN) + 0.0;
    mpfr_clears(t, h, (mpfr_ptr)0);
}

// The centre c = (n + j)/n of row j (c = 1 + j/n) and its reciprocal rounded to 43 bits,
// so that c times it is exact in double (c has at most 10 bits).
void CentreAndReciprocal(mpfr_t c, mpfr_t rcp, long j, long n) {
    mpfr_set_si(c, n + j, MPFR_RNDN);
    mpfr_div_si(c, c, n, MPFR_RNDN);
    mpfr_ui_div(rcp, 1, c, MPFR_RNDN); // rcp's own precision, 43 bits
}

void LogRows(FILE* out, const char* name, long n) {
    mpfr_t c, rcp, l, a;
    mpfr_inits2(kPrec, c, l, (mpfr_ptr)0);
    mpfr_init2(rcp, 43);
    mpfr_init2(a, 53);
    std::fprintf(out, "alignas(32) const double %s[%ld][4] = {\n", name, n + 1);
    for (long j = 0; j <= n; ++j) {
        CentreAndReciprocal(c, rcp, j, n);
        mpfr_log(l, rcp, MPFR_RNDN);
        mpfr_neg(l, l, MPFR_RNDN);
        double hi, lo;
        SplitOnGrid42(l, hi, lo);
        // a = c*rcp - 1 as the kernels form it in double: the product rounded to 53 bits
        // (exact where it fits), then the difference with 1 (exact).
        mpfr_mul(a, c, rcp, MPFR_RNDN);
        mpfr_sub_ui(a, a, 1, MPFR_RNDN);
        std::fprintf(out, "    {%a, %a, %a, %a},\n", mpfr_get_d(rcp, MPFR_RNDN), hi, lo,
                     mpfr_get_d(a, MPFR_RNDN) + 0.0);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(c, rcp, l, a, (mpfr_ptr)0);
}

// Rows of the scalar logarithm: centres c = 1 + (2j + 1)/256, j = 0..127, the middles
// of the 128 intervals of [1, 2); the reciprocal and logarithm parts as in LogRows.
void LogRows128(FILE* out, const char* name) {
    mpfr_t c, rcp, l;
    mpfr_inits2(kPrec, c, l, (mpfr_ptr)0);
    mpfr_init2(rcp, 43);
    std::fprintf(out, "alignas(32) const double %s[128][3] = {\n", name);
    for (long j = 0; j < 128; ++j) {
        CentreAndReciprocal(c, rcp, 2 * j + 1, 256);
        mpfr_log(l, rcp, MPFR_RNDN);
        mpfr_neg(l, l, MPFR_RNDN);
        double hi, lo;
        SplitOnGrid42(l, hi, lo);
        std::fprintf(out, "    {%a, %a, %a},\n", mpfr_get_d(rcp, MPFR_RNDN), hi, lo);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(c, rcp, l, (mpfr_ptr)0);
}

// Rows of dLog10 and dLog2: for the centres c = 1 + j/512, j = 0..511 (m in
// [1 - 2^-10, 2 - 2^-10)), the reciprocal of c rounded to 10 bits (so that (m - c)*rcp is
// exact, and c*rcp on the grid of 2^-19), a = c*rcp - 1 (exact), and
// T = -log_B(rcp) + a*log_B(e), the row's constant of log_B x = k*log_B(2) + T +
// log_B(e)*b + (r^2 terms), r = a + b, as a high part on the grid of 2^-42 (so that
// k*log_B(2)hi + high is exact) and the rounded rest.
void LogBaseRows(FILE* out, const char* name, long n, int base) {
    mpfr_t c, rcp, a, l, e;
    mpfr_inits2(kPrec, c, a, l, e, (mpfr_ptr)0);
    mpfr_init2(rcp, 10);
    std::fprintf(out, "alignas(32) const double %s[%ld][4] = {\n", name, n);
    for (long j = 0; j < n; ++j) {
        mpfr_set_si(c, 512 + j, MPFR_RNDN);
        mpfr_div_si(c, c, 512, MPFR_RNDN);
        mpfr_ui_div(rcp, 1, c, MPFR_RNDN); // 10 bits
        mpfr_mul(a, c, rcp, MPFR_RNDN);    // exact at kPrec
        mpfr_sub_ui(a, a, 1, MPFR_RNDN);
        if (base == 2)
            mpfr_log2(l, rcp, MPFR_RNDN);
        else
            mpfr_log10(l, rcp, MPFR_RNDN);
        mpfr_neg(l, l, MPFR_RNDN);
        // a*log_B(e) = a/ln(B)
        mpfr_set_ui(e, base, MPFR_RNDN);
        mpfr_log(e, e, MPFR_RNDN);
        mpfr_div(e, a, e, MPFR_RNDN);
        mpfr_add(l, l, e, MPFR_RNDN);
        double hi, lo;
        SplitOnGrid42(l, hi, lo);
        std::fprintf(out, "    {%a, %a, %a, %a},\n", mpfr_get_d(rcp, MPFR_RNDN),
                     mpfr_get_d(a, MPFR_RNDN) + 0.0, hi, lo);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(c, a, l, e, rcp, (mpfr_ptr)0);
}

// Rows of the double Log2 EP (on the rows alone): for the centres c = 1 + j/512,
// j = 0..512, the reciprocal of lnRows (43 bits) and -log_B of it rounded, one 16-byte
// load a lane. The result needs no exact head: k*log_B(2) + the rounded row is within
// 2^-52 of its value, and at the rows of 1 and 1/2 (x near 1) it is exact.
void LogBaseRowsF(FILE* out, const char* name, long n, int base) {
    mpfr_t c, rcp, l;
    mpfr_inits2(kPrec, c, l, (mpfr_ptr)0);
    mpfr_init2(rcp, 43);
    std::fprintf(out, "alignas(16) const double %s[%ld][2] = {\n", name, n + 1);
    for (long j = 0; j <= n; ++j) {
        CentreAndReciprocal(c, rcp, j, n);
        if (base == 2)
            mpfr_log2(l, rcp, MPFR_RNDN);
        else
            mpfr_log10(l, rcp, MPFR_RNDN);
        mpfr_neg(l, l, MPFR_RNDN);
        std::fprintf(out, "    {%a, %a},\n", mpfr_get_d(rcp, MPFR_RNDN),
                     mpfr_get_d(l, MPFR_RNDN) + 0.0);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(c, rcp, l, (mpfr_ptr)0);
}

// Rows of the single HA logarithms on a reciprocal of m rounded to 2^-6: for t = 48..96,
// row t - 48, T = -log_B(t/64) as a high part on the grid of 2^-14 (so that k times the
// head of log_B(2), on the same grid, plus the high part is exact in single) and the
// rounded rest, two singles a row. base 0 is e.
void LogRecipRowsF(FILE* out, const char* name, int base) {
    mpfr_t l, t;
    mpfr_inits2(kPrec, l, t, (mpfr_ptr)0);
    std::fprintf(out, "alignas(16) const float %s[49][2] = {\n", name);
    for (long j = 48; j <= 96; ++j) {
        mpfr_set_si(l, j, MPFR_RNDN);
        mpfr_div_si(l, l, 64, MPFR_RNDN);
        if (base == 2)
            mpfr_log2(l, l, MPFR_RNDN);
        else if (base == 10)
            mpfr_log10(l, l, MPFR_RNDN);
        else
            mpfr_log(l, l, MPFR_RNDN);
        mpfr_neg(l, l, MPFR_RNDN);
        mpfr_mul_2si(t, l, 14, MPFR_RNDN);
        mpfr_rint(t, t, MPFR_RNDN);
        mpfr_div_2si(t, t, 14, MPFR_RNDN);
        float hi = mpfr_get_flt(t, MPFR_RNDN);
        mpfr_sub(l, l, t, MPFR_RNDN);
        float lo = mpfr_get_flt(l, MPFR_RNDN);
        std::fprintf(out, "    {%a, %a},\n", hi + 0.0f, lo + 0.0f);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(l, t, (mpfr_ptr)0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gen_explog_tables OUT\n");
        return 2;
    }
    FILE* out = std::fopen(argv[1], "w");
    if (!out) return 1;
    std::fprintf(out, "// Generated by tools/explog/gen_explog_tables from MPFR; do not edit.\n"
                      "// Exponential tables 2^(j/N) and the reciprocal and logarithm rows of\n"
                      "// the double logarithm.\n"
                      "#include \"vecmath/explog/explog_tables.h\"\n\n"
                      "namespace brenn::vm {\n\n");
    std::fprintf(out, "namespace single {\n\n");
    ExpTableF(out, "expTable64", 64);
    ExpTableF(out, "expTable128", 128);
    LogRecipRowsF(out, "lnRecipRows", 0);
    LogRecipRowsF(out, "log10RecipRows", 10);
    LogRecipRowsF(out, "log2RecipRows", 2);
    std::fprintf(out, "} // namespace single\n\n");
    ExpTableD(out, "expTable64", 64, true);
    ExpTableD(out, "expTable128", 128, true);
    ExpTableD(out, "expTable256", 256, true);
    ExpScaleRestD(out, "expScaleRows256", "expRelRest256", 256, 8);
    ExpTableD(out, "expTable1024", 1024, false);
    LogRows(out, "lnRows", 512);
    LogRows128(out, "lnTable128");
    LogBaseRows(out, "log10Rows", 512, 10);
    LogBaseRows(out, "log2Rows", 512, 2);
    LogBaseRowsF(out, "log2RowsF", 512, 2);
    std::fprintf(out, "} // namespace brenn::vm\n");
    return std::fclose(out) == 0 ? 0 : 1;
}
