// Generates vecmath/hyper/hyper_tables.cpp, the interval rows of the single Tanh, from
// MPFR at 256 bits. The rows follow the kernel's index: row 0 holds [0, 2^-5), row k
// for k = 1..132 the k-th sixteenth of a binade from 2^-5 on (the last one [9.5, 10)),
// row 133 everything above, where the kernel sets the argument to 0.
//   tanhRowsLA[k] = {c0, c1, c2, c3}: the cubic through tanh at the four Chebyshev
//                   nodes of the interval; row 0 has c0 = 0 and c1 = 1 and fits
//                   (tanh(a) - a)/a^2 by c2 + c3*a at two nodes, so that the leading
//                   term of a small argument is exact;
//   tanhRowsEP[k] = {c0, c1}: the line through tanh at the two Chebyshev nodes; row 0
//                   is {0, 1}.
// Row 133 is {1, 0, ...}: the kernel evaluates it at 0.
// The single HA rows, 32 a binade (the kernel's index (bits - 0x3CFC0000) >> 18, at least
// 0, with a held at 10): row 0 holds [0, 2^-8), row k for k = 1..360 the k-th 32nd of a
// binade from 2^-8 on (the last one [9.75, 10)), row 361 the argument 10:
//   tanhRowsHA[k] = {c, H, K, 0}: c the single nearest the row's midpoint whose tanh
//                   is within 2^-12 ulp of the single H, and K = 1 - tanh(c)^2
//                   rounded; row 0 is {0, 0, 1, 0}, row 361 {10, 1, 0, 0}; the rows
//                   from 8.75 on, where no such c exists, {midpoint, H, 0, 0}.
// The double rows, 32 a binade (the kernel's index from the high word, (hi - 0x3F6F8000)
// >> 15, at least 0, with a held at 19.5): row 0 holds [0, 2^-8), row k for k = 1..391
// the k-th 32nd of a binade from 2^-8 on (the last one [19, 19.5)), row 392 the argument
// 19.5:
//   tanhRowsD[k] = {c, H, K, 0}: c a double near the row's midpoint whose tanh is within
//                   2^-12 ulp of the double H (on [19, 19.5), where none exists, the
//                   point of the row below), K = 1 - tanh(c)^2 rounded; row 0 is
//                   {0, 0, 1, 0}, row 392 {19.5, 1, 0, 0}.
//   gen_hyper_tables OUT
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <mpfr.h>

namespace {

constexpr mpfr_prec_t kPrec = 256;
constexpr int kRows = 134;
constexpr int kRowsHA = 362;
constexpr int kRowsD = 393;

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

// Whether tanh(c) lies within 2^-12 of an ulp of its single rounding h, at 256 bits; h
// is set.
bool NearSingle(float c, float& h) {
    mpfr_t v, r;
    mpfr_inits2(kPrec, v, r, (mpfr_ptr)0);
    mpfr_set_flt(v, c, MPFR_RNDN);
    mpfr_tanh(v, v, MPFR_RNDN);
    h = mpfr_get_flt(v, MPFR_RNDN);
    mpfr_sub_d(r, v, h, MPFR_RNDN);
    mpfr_abs(r, r, MPFR_RNDN);
    int e;
    std::frexp(h, &e); // ulp(h) = 2^(e - 24)
    bool near = mpfr_cmp_d(r, std::ldexp(1.0, e - 24 - 12)) <= 0;
    mpfr_clears(v, r, (mpfr_ptr)0);
    return near;
}

// The single HA rows {c, H, K, 0}: c the single nearest the row's midpoint, in the order
// 0, +1, -1, +2, ... ulps, whose tanh is within 2^-12 ulp of a single H (a long double
// sieve first, with a margin, so that only candidates near it take MPFR), K = 1 - tanh(c)^2.
void TableHA(FILE* out) {
    std::fprintf(out, "alignas(16) const float tanhRowsHA[%d][4] = {\n", kRowsHA);
    mpfr_t v;
    mpfr_init2(v, kPrec);
    for (int k = 0; k < kRowsHA; ++k) {
        float cf = 0, h = 0, kk = 1;
        if (k == kRowsHA - 1) {
            cf = 10, h = 1, kk = 0;
        } else if (k > 0) {
            unsigned mid = 0x3B800000u + unsigned(k - 1) * 0x40000u + 0x20000u;
            bool found = false;
            for (int d = 0; d > -0x20000 && !found; d = d > 0 ? -d : 1 - d) {
                unsigned bits = mid + unsigned(d);
                __builtin_memcpy(&cf, &bits, 4);
                long double t = tanhl((long double)cf);
                float g = float(t);
                int e;
                std::frexp(g, &e);
                if (fabsl(t - g) <= std::ldexp(1.0L, e - 24 - 10)) found = NearSingle(cf, h);
            }
            if (found) {
                mpfr_set_flt(v, cf, MPFR_RNDN);
                mpfr_tanh(v, v, MPFR_RNDN);
                mpfr_sqr(v, v, MPFR_RNDN);
                mpfr_ui_sub(v, 1, v, MPFR_RNDN);
                kk = mpfr_get_flt(v, MPFR_RNDN);
            } else {
                // Near 1, from 8.75 on, tanh crosses no single: the row is the rounding
                // of tanh at its midpoint, 1 - 2^-24 on [8.75, 9) (right to the rounding)
                // and 1 from 9 on (on [9, 9.0109) within 0.52 ulp).
                __builtin_memcpy(&cf, &mid, 4);
                mpfr_set_flt(v, cf, MPFR_RNDN);
                mpfr_tanh(v, v, MPFR_RNDN);
                h = mpfr_get_flt(v, MPFR_RNDN);
                kk = 0;
            }
        }
        std::fprintf(out, "    {%af, %af, %af, 0x0p+0f},\n", double(cf), double(h), double(kk));
    }
    std::fprintf(out, "};\n\n");
    mpfr_clear(v);
}

// Whether tanh(c) lies within 2^-12 of an ulp of a double h, at 256 bits.
bool NearDouble(double c, double h) {
    mpfr_t v;
    mpfr_init2(v, kPrec);
    mpfr_set_d(v, c, MPFR_RNDN);
    mpfr_tanh(v, v, MPFR_RNDN);
    mpfr_sub_d(v, v, h, MPFR_RNDN);
    mpfr_abs(v, v, MPFR_RNDN);
    int e;
    std::frexp(h, &e); // ulp(h) = 2^(e - 53)
    bool near = mpfr_cmp_d(v, std::ldexp(1.0, e - 53 - 12)) <= 0;
    mpfr_clear(v);
    return near;
}

// The double rows {c, H, K, 0}: for the doubles H nearest tanh at the row's midpoint, in
// the order 0, +1, -1, +2, ... ulps, c = atanh(H) rounded (by MPFR, so that the rows do
// not depend on the C library's long double functions), the first whose tanh is within
// 2^-12 ulp of H and that lies in the row (a long double sieve first, with a margin, so
// that only candidates near it take MPFR); K = 1 - tanh(c)^2. A row with none ([19, 19.5),
// where tanh crosses no double) keeps the point of the row below it, in the same binade,
// so that a - c stays exact (s's error at |t| up to 0.8, under 2^-10, comes to 2^-62 once
// multiplied by K, 2^-52).
void TableD(FILE* out) {
    std::fprintf(out, "alignas(32) const double tanhRowsD[%d][4] = {\n", kRowsD);
    mpfr_t tau, at;
    mpfr_init2(tau, kPrec);
    mpfr_init2(at, 53);
    double c = 0, h = 0;
    for (int k = 0; k < kRowsD; ++k) {
        double kk = 1;
        if (k == 0) {
            c = 0, h = 0;
        } else if (k == kRowsD - 1) {
            c = 19.5, h = 1, kk = 0;
        } else {
            unsigned long long b0 = (0x3F700000ull + (k - 1) * 0x8000ull) << 32;
            unsigned long long b1 = b0 + (0x8000ull << 32), bm = b0 + (0x4000ull << 32);
            double lo, hi, mid;
            __builtin_memcpy(&lo, &b0, 8);
            __builtin_memcpy(&hi, &b1, 8);
            __builtin_memcpy(&mid, &bm, 8);
            const long double tlo = tanhl((long double)lo), thi = tanhl((long double)hi);
            mpfr_set_d(tau, mid, MPFR_RNDN);
            mpfr_tanh(tau, tau, MPFR_RNDN);
            const double h0 = mpfr_get_d(tau, MPFR_RNDN);
            unsigned long long hb;
            __builtin_memcpy(&hb, &h0, 8);
            bool found = false;
            for (long long d = 0; !found; d = d > 0 ? -d : 1 - d) {
                // d ulps from h0; done once both sides have left tanh's range on the row
                unsigned long long b = hb + (unsigned long long)d, o = hb - (unsigned long long)d;
                double hd, other;
                __builtin_memcpy(&hd, &b, 8);
                __builtin_memcpy(&other, &o, 8);
                bool out = hd < tlo || hd > thi || hd >= 1;
                if (out && (other < tlo || other > thi || other >= 1) && d < -1) break;
                if (out) continue;
                mpfr_set_d(at, hd, MPFR_RNDN);
                mpfr_atanh(at, at, MPFR_RNDN); // c = atanh(H) correctly rounded
                double cd = mpfr_get_d(at, MPFR_RNDN);
                if (!(cd >= lo && cd < hi)) continue;
                int e;
                std::frexp(hd, &e);
                if (fabsl(tanhl((long double)cd) - hd) > std::ldexp(1.0L, e - 53 - 9)) continue;
                if (NearDouble(cd, hd)) c = cd, h = hd, found = true;
            }
            if (!found && std::ilogb(c) != std::ilogb(lo)) {
                std::fprintf(stderr, "tanh row %d: no point in its binade\n", k);
                std::exit(1);
            }
            mpfr_set_d(tau, c, MPFR_RNDN);
            mpfr_tanh(tau, tau, MPFR_RNDN);
            mpfr_sqr(tau, tau, MPFR_RNDN);
            mpfr_ui_sub(tau, 1, tau, MPFR_RNDN);
            kk = mpfr_get_d(tau, MPFR_RNDN);
        }
        std::fprintf(out, "    {%a, %a, %a, 0x0p+0},\n", c, h, kk);
    }
    std::fprintf(out, "};\n\n");
    mpfr_clears(tau, at, (mpfr_ptr)0);
}

} // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::fprintf(stderr, "usage: gen_hyper_tables OUT\n");
        return 2;
    }
    FILE* out = std::fopen(argv[1], "w");
    if (!out) return 1;
    std::fprintf(out,
                 "// Generated by tools/hyper/gen_hyper_tables from MPFR; do not edit.\n"
                 "// The interval rows of the single Tanh: cubics (LA) and lines (EP) through\n"
                 "// tanh at the Chebyshev nodes of each interval; tanh and 1 - tanh^2 near the\n"
                 "// midpoints of the HA rows and of the double rows.\n"
                 "#include \"vecmath/hyper/hyper_tables.h\"\n\n"
                 "namespace brenn::vm {\n\n");
    Table(out, "tanhRowsLA", 3, 4);
    TableHA(out);
    TableD(out);
    Table(out, "tanhRowsEP", 1, 2);
    std::fprintf(out, "} // namespace brenn::vm\n");
    return std::fclose(out) == 0 ? 0 : 1;
}
