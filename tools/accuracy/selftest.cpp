// The tool's own test: it measures kernels of known quality, written here, and checks
// that it sees what they are: correct ones pass at their true error, and planted faults
// (a word written past the end, a NaN pattern changed, a signalling NaN quieted by a
// copy, a result one ulp off, a truncated reciprocal) are found. Every argument list
// is driven once, so the tool is known to work on rows before their kernels land. And
// the quick run's inputs are checked to nest in the full run's, which is what lets the
// quick ctest hold each slot to a ceiling taken from a full run.
#include <math.h>
#include <stdio.h>
#include <string.h>

#include <string>

#include "tools/accuracy/measure.h"
#include "tools/accuracy/reference.h"

namespace brenn::tools {

namespace {

extern "C" double _Complex cexp(double _Complex); // C99 libm, as the peers use it

extern "C" {
void GoodAdd(int n, const float* a, const float* b, float* y) {
    for (int i = 0; i < n; ++i)
        y[i] = a[i] + b[i];
}
void OverrunAdd(int n, const float* a, const float* b, float* y) {
    for (int i = 0; i < n; ++i)
        y[i] = a[i] + b[i];
    y[n] = 0; // one past the end
}
void GoodAbs(int n, const float* a, float* y) {
    for (int i = 0; i < n; ++i) {
        volatile float unit = copysignf(1.0f, a[i]); // kept from being folded to fabsf
        y[i] = a[i] * unit;
    }
}
void MaskAbs(int n, const float* a, float* y) { // clears the sign of NaNs and keeps sNaN
    for (int i = 0; i < n; ++i) {
        uint32_t u;
        memcpy(&u, &a[i], 4);
        u &= 0x7FFFFFFFu;
        memcpy(&y[i], &u, 4);
    }
}
void GoodSqrt(int n, const double* a, double* y) {
    for (int i = 0; i < n; ++i)
        y[i] = sqrt(a[i]);
}
void UlpOffSqrt(int n, const double* a, double* y) {
    for (int i = 0; i < n; ++i) {
        y[i] = sqrt(a[i]);
        if (a[i] > 2 && a[i] < 3) y[i] = nextafter(y[i], INFINITY);
    }
}
void RcpInv(int n, const float* a, float* y) { // 12 good bits, as an EP body
    for (int i = 0; i < n; ++i) {
        float r = 1.0f / a[i];
        uint32_t u;
        memcpy(&u, &r, 4);
        if (isfinite(r) && fabsf(r) >= 0x1p-126f) u &= ~0xFFFu;
        memcpy(&y[i], &u, 4);
    }
}
void LibmExp(int n, const double* a, double* y) {
    for (int i = 0; i < n; ++i)
        y[i] = exp(a[i]);
}
void LibmSinCos(int n, const float* a, float* y, float* z) {
    for (int i = 0; i < n; ++i)
        sincosf(a[i], &y[i], &z[i]);
}
void LibmPowx(int n, const float* a, float b, float* y) {
    for (int i = 0; i < n; ++i)
        y[i] = powf(a[i], b);
}
void PlainLinearFrac(int n, const double* a, const double* b, double sa, double ha, double sb,
                     double hb, double* y) {
    for (int i = 0; i < n; ++i) // a zero scale drops its vector, as the row's loops do
        y[i] = (sa == 0 ? ha : sa * a[i] + ha) / (sb == 0 ? hb : sb * b[i] + hb);
}
void LibmCExp(int n, const BrennComplex16* a, BrennComplex16* y) {
    for (int i = 0; i < n; ++i) {
        double _Complex z;
        __real__ z = a[i].re;
        __imag__ z = a[i].im;
        double _Complex r = cexp(z);
        y[i].re = __real__ r;
        y[i].im = __imag__ r;
    }
}
void LibmCAbs(int n, const BrennComplex8* a, float* y) {
    for (int i = 0; i < n; ++i)
        y[i] = hypotf(a[i].re, a[i].im);
}
void GoodModf(int n, const double* a, double* y, double* z) {
    for (int i = 0; i < n; ++i) {
        if (isnan(a[i])) {
            y[i] = z[i] = a[i] + a[i];
            continue;
        }
        z[i] = modf(a[i], &y[i]);
    }
}
// Inverse error function and normal quantile by bisection on glibc's erf/erfc in
// double, rounded to single: checks the tool's own inverses, which MPFR lacks.
float Bisect(double (*f)(double), double target, double lo, double hi) {
    for (;;) {
        double mid = 0.5 * (lo + hi);
        if (mid <= lo || mid >= hi) return static_cast<float>(mid);
        (f(mid) < target ? lo : hi) = mid;
    }
}
double CdfNormD(double y) {
    return 0.5 * erfc(-y / sqrt(2.0));
}
void BisectErfInv(int n, const float* a, float* y) {
    for (int i = 0; i < n; ++i) {
        float x = a[i];
        y[i] = isnan(x) || fabsf(x) > 1 ? NAN
               : fabsf(x) == 1          ? copysignf(INFINITY, x)
               : x == 0                 ? x
                                        : Bisect(erf, x, -6, 6);
    }
}
void BisectCdfNormInv(int n, const float* a, float* y) {
    for (int i = 0; i < n; ++i) {
        float p = a[i];
        y[i] = isnan(p) || p < 0 || p > 1 ? NAN
               : p == 0                   ? -INFINITY
               : p == 1                   ? INFINITY
               : p == 0.5f                ? 0.0f // the root, which bisection on erfc misses
                                          : Bisect(CdfNormD, p, -40, 40);
    }
}
void LibmLogb(int n, const double* a, double* y) {
    for (int i = 0; i < n; ++i)
        y[i] = logb(a[i]);
}
void LibmAtan2(int n, const float* a, const float* b, float* y) {
    for (int i = 0; i < n; ++i)
        y[i] = atan2f(a[i], b[i]);
}
void GoodPackI(int64_t n, const double* a, int64_t inc, double* y, int32_t flag) {
    if (flag == 1) {
        n = static_cast<int32_t>(n);
        inc = static_cast<int32_t>(inc);
    }
    for (int64_t i = 0; i < n; ++i)
        memcpy(&y[i], &a[i * inc], 8);
}
void QuietingPackI(int64_t n, const float* a, int64_t inc, float* y, int32_t flag) {
    if (flag == 1) {
        n = static_cast<int32_t>(n);
        inc = static_cast<int32_t>(inc);
    }
    volatile float one = 1.0f; // a real multiplication, which quiets signalling NaNs
    for (int64_t i = 0; i < n; ++i)
        y[i] = a[i * inc] * one;
}
void WideMaskPackM(int64_t n, const BrennComplex8* a, const void* mask, BrennComplex8* y,
                   int32_t flag) { // reads masks as 32-bit whatever the flag: a fault
    n = static_cast<int32_t>(n);
    const int32_t* m = static_cast<const int32_t*>(mask);
    for (int64_t i = 0, j = 0; i < n; ++i)
        if (m[i]) y[j++] = a[i];
}
}

const RowDesc* Row(const char* name) {
    int count;
    const RowDesc* rows = AllRows(&count);
    for (int i = 0; i < count; ++i)
        if (strcmp(rows[i].name, name) == 0) return &rows[i];
    return nullptr;
}

int gFailures = 0;

void Expect(bool ok, const char* what, const SlotResult& r) {
    printf("%-4s %s: max %.3g ulp, %.1f bits, %ld differ, %ld bytes outside%s%s\n",
           ok ? "ok" : "FAIL", what, r.maxUlp, r.minBits, r.mismatches, r.frameFaults,
           r.worst.empty() ? "" : "; worst ", r.worst.c_str());
    if (!ok) ++gFailures;
}

SlotResult Measure(const char* row, void (*fn)()) {
    Options o;
    o.randomSamples = 2000;
    BrennKernel slots[3] = {reinterpret_cast<BrennKernel>(fn), nullptr, nullptr};
    SlotResult out[3];
    MeasureKernels(*Row(row), o, slots, out);
    return out[0];
}

template <class F>
void (*K(F f))() {
    return reinterpret_cast<void (*)()>(f);
}

// Every row's quick inputs nest in its full run's; a run on another seed does not.
void CheckNesting() {
    Options quick, full, other;
    quick.randomSamples = kQuickSamples;
    other.randomSamples = kQuickSamples;
    other.seed = kDefaultSeed + 1;
    int count = 0, nested = 0;
    const RowDesc* rows = AllRows(&count);
    std::string why, first;
    for (int i = 0; i < count; ++i) {
        if (InputsNest(rows[i], quick, full, &why))
            ++nested;
        else if (first.empty())
            first = std::string(rows[i].name) + ": " + why;
    }
    bool ok = nested == count;
    printf("%-4s the quick run's inputs nest in the full run's (%d of %d rows)%s%s\n",
           ok ? "ok" : "FAIL", nested, count, first.empty() ? "" : "; ", first.c_str());
    if (!ok) ++gFailures;
    ok = !InputsNest(*Row("sExp"), other, full, &why);
    printf("%-4s a quick run on another seed does not nest (%s)\n", ok ? "ok" : "FAIL",
           why.c_str());
    if (!ok) ++gFailures;
}

// The references of Tan and Tanh, made by a formula of their own at a fixed precision,
// agree with MPC's to 2^-150 in each part on inputs where MPC is quick: parts up to 8 in
// magnitude, a tenth of them beside the poles at +-pi/2 and some with a zero part.
void CheckTangentReferences() {
    mpc_t a, ours, mpcs;
    mpc_init2(a, 53);
    mpc_init2(ours, kRefPrec);
    mpc_init2(mpcs, kRefPrec);
    mpfr_t d;
    mpfr_init2(d, kRefPrec);
    uint64_t state = 0x9E3779B97F4A7C15u;
    auto uniform = [&state] {
        state = state * 6364136223846793005u + 1442695040888963407u;
        return double(state >> 11) * 0x1p-53 * 16 - 8;
    };
    int checked = 0, off = 0;
    for (int i = 0; i < 3000; ++i)
        for (Ref ref : {Ref::CTan, Ref::CTanh}) {
            double x = uniform(), y = uniform();
            if (i % 10 == 0) (ref == Ref::CTanh ? y : x) = 1.5707963267948966 * (1 + 1e-9 * x);
            if (i % 37 == 0) x = i % 2 ? 0.0 : -0.0;
            mpc_set_d_d(a, x, y, MPC_RNDNN);
            RefComplex(ref, ours, a, a);
            (ref == Ref::CTan ? mpc_tan : mpc_tanh)(mpcs, a, MPC_RNDNN);
            for (int part = 0; part < 2; ++part) {
                mpfr_ptr p = part ? mpc_imagref(ours) : mpc_realref(ours);
                mpfr_ptr q = part ? mpc_imagref(mpcs) : mpc_realref(mpcs);
                mpfr_sub(d, p, q, MPFR_RNDN);
                bool same = mpfr_zero_p(q)
                                ? mpfr_zero_p(p) && mpfr_signbit(p) == mpfr_signbit(q)
                                : mpfr_zero_p(d) || mpfr_get_exp(d) <= mpfr_get_exp(q) - 150;
                off += !same;
            }
            ++checked;
        }
    printf("%-4s the Tan and Tanh references agree with MPC's on %d inputs (%d parts off)\n",
           off == 0 ? "ok" : "FAIL", checked, off);
    if (off) ++gFailures;
    mpfr_clear(d);
    mpc_clear(a);
    mpc_clear(ours);
    mpc_clear(mpcs);
}

} // namespace

int RunSelfTest() {
    SlotResult r;
    r = Measure("sAdd", K(GoodAdd));
    Expect(r.present && r.mismatches == 0 && r.frameFaults == 0, "IEEE sAdd is exact", r);
    r = Measure("sAdd", K(OverrunAdd));
    Expect(r.frameFaults > 0, "a write past the end is caught", r);
    r = Measure("sAbs", K(GoodAbs));
    Expect(r.mismatches == 0, "Abs by multiplication keeps NaN patterns, quieted", r);
    r = Measure("sAbs", K(MaskAbs));
    Expect(r.mismatches > 0, "Abs that masks NaN signs and keeps sNaN is caught", r);
    r = Measure("dSqrt", K(GoodSqrt));
    Expect(r.maxUlp <= 0.5 && r.maxUlp > 0.4, "correctly rounded dSqrt is within 0.5 ulp", r);
    r = Measure("dSqrt", K(UlpOffSqrt));
    Expect(r.maxUlp > 1.0 && r.maxUlp < 1.5, "a result one ulp off shows as 1 to 1.5 ulp", r);
    r = Measure("sInv", K(RcpInv));
    Expect(r.minBits >= 11 && r.minBits < 13, "a 12-bit reciprocal has 11 to 13 correct bits", r);
    r = Measure("dExp", K(LibmExp));
    Expect(r.maxUlp < 1.0, "glibc exp is under 1 ulp", r);
    r = Measure("sSinCos", K(LibmSinCos));
    Expect(r.maxUlp < 1.0, "glibc sincosf is under 1 ulp on both results", r);
    r = Measure("sPowx", K(LibmPowx));
    Expect(r.maxUlp < 1.0, "glibc powf with a scalar exponent is under 1 ulp", r);
    r = Measure("dLinearFrac", K(PlainLinearFrac));
    Expect(r.maxUlp == 0, "LinearFrac as written matches its formula", r);
    r = Measure("zExp", K(LibmCExp));
    Expect(r.maxUlp < 2.0, "glibc cexp is within 2 ulp normwise", r);
    r = Measure("cAbs", K(LibmCAbs));
    Expect(r.maxUlp < 1.0, "hypotf as cAbs is under 1 ulp", r);
    r = Measure("dModf", K(GoodModf));
    Expect(r.mismatches == 0, "modf as Modf is exact on both results", r);
    r = Measure("sErfInv", K(BisectErfInv));
    Expect(r.maxUlp < 0.6, "erfinv by bisection on erf agrees with the tool's inverse", r);
    r = Measure("sCdfNormInv", K(BisectCdfNormInv));
    Expect(r.maxUlp < 0.6, "the normal quantile by bisection agrees with the tool's", r);
    r = Measure("dLogb", K(LibmLogb));
    Expect(r.maxUlp == 0, "glibc logb matches the exponent reference exactly", r);
    r = Measure("sAtan2", K(LibmAtan2));
    Expect(r.maxUlp < 1.0, "glibc atan2f takes a as the ordinate, under 1 ulp", r);
    r = Measure("dPackI", K(GoodPackI));
    Expect(r.mismatches == 0 && r.checked > 0, "dPackI by raw copy is exact", r);
    r = Measure("sPackI", K(QuietingPackI));
    Expect(r.mismatches > 0, "sPackI that quiets signalling NaNs is caught", r);
    r = Measure("cPackM", K(WideMaskPackM));
    Expect(r.mismatches > 0, "cPackM that ignores the 64-bit flag is caught", r);
    CheckNesting();
    CheckTangentReferences();
    printf("%d self-test failure(s)\n", gFailures);
    return gFailures ? 1 : 0;
}

} // namespace brenn::tools
