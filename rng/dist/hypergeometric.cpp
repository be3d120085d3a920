// Hypergeometric variates: the marked elements among s drawn without replacement
// from a lot of l that holds m marked. The parameters are folded first so that the
// sample and the marked count are at most half the lot (a variate of the folded
// distribution maps back by x -> offset + sign x, a last pass over r). A mode below
// 10 takes table inversion, one double uniform a variate; above, H2PE (Kachitvichyanukul
// and Schmeiser, 1985) in batches of pairs of single uniforms. The set-up sits in
// chunk 6 of the stream, which is deleted and made anew when the parameters change.
#include <math.h>
#include <stdint.h>

#include "frame/export.h"
#include "rng/dist/batch_rejection.h"
#include "rng/dist/log_factorial.h"
#include "rng/dist/setup_chunk.h"
#include "rng/dist/table_inversion.h"

namespace brenn::rng {

namespace {

constexpr int32_t kChunkId = 6;
constexpr uint32_t kChunkSize = 600;
constexpr int32_t kBlock = 1024;
constexpr double kInversionBelow = 10.0; // the mode, above the lowest count
constexpr int32_t kTableMax = 66;
constexpr double kFourLnSqrt2Pi = 3.6757541328; // 4 ln sqrt(2 pi)

struct InversionSetup {
    double last; // the probability of the table's last value
    int32_t count, start;
    double cdf[kTableMax];
};

struct H2peSetup {
    double m, a, xl, xr, laml, lamr, p1, p2, p3;
};

struct HypergeometricChunk {
    double l, s, m;       // the parameters of the set-up
    int32_t n1, n2, k;    // the folded marked, unmarked and sample counts
    int32_t sign, offset; // x = offset + sign x' undoes the fold
    int32_t way;          // 0 inversion, 1 H2PE
    union {
        InversionSetup inversion;
        H2peSetup h2pe;
    };
};
static_assert(sizeof(HypergeometricChunk) <= kChunkSize, "the set-up fits chunk 6");

// ln a! + ln b! + ln c! + ln d! at once: from 16 on, Stirling's series for all four
// with their logarithms and reciprocals from the HA kernels; below, any count takes
// its value from the table and the others the series one by one.
double LogFactorialSum4(double a, double b, double c, double d) {
    if (a < kLogFactorialTableSize || b < kLogFactorialTableSize || c < kLogFactorialTableSize ||
        d < kLogFactorialTableSize)
        return LogFactorial(a) + LogFactorial(b) + LogFactorial(c) + LogFactorial(d);
    const double x[4] = {a, b, c, d};
    double ln[4], inv[4];
    Bracketed(ZAR_SLOT(dLn, brenn::frame::SlotHA), 4, x, ln);
    Bracketed(ZAR_SLOT(dInv, brenn::frame::SlotHA), 4, x, inv);
    double sum = kFourLnSqrt2Pi;
    for (int32_t i = 0; i < 4; ++i)
        sum += (x[i] + 0.5) * ln[i] - x[i] + StirlingTailOfInverse(inv[i]);
    return sum;
}

// f(x + 1) / f(x) of the folded distribution.
inline double Ratio(const HypergeometricChunk& h, double x) {
    return (h.n1 - x) * (h.k - x) / ((x + 1.0) * (h.n2 - h.k + x + 1.0));
}

void SetUpInversion(HypergeometricChunk* h, double mode) {
    InversionSetup& t = h->inversion;
    // f(0) = C(N - k, n1) / C(N, n1) as the shorter of its two products.
    const double lot = static_cast<double>(h->n1) + h->n2;
    const int32_t terms = h->n1 < h->k ? h->n1 : h->k;
    const double other = h->n1 < h->k ? h->k : h->n1;
    double f[kTableMax];
    f[0] = 1.0;
    for (int32_t i = 0; i < terms; ++i)
        f[0] *= (lot - other - i) / (lot - i);
    t.count = terms + 1 < kTableMax ? terms + 1 : kTableMax;
    t.start = static_cast<int32_t>(mode) < t.count ? static_cast<int32_t>(mode) : t.count - 1;
    for (int32_t x = 1; x < t.count; ++x)
        f[x] = f[x - 1] * Ratio(*h, x - 1);
    t.last = f[t.count - 1];
    CumulativeFromTop(t.count, f, t.cdf);
}

// The count of one uniform: the table, then the recurrence up to the largest count.
int32_t Invert(const HypergeometricChunk& h, double u) {
    const InversionSetup& t = h.inversion;
    int32_t x = SearchCumulative(u, t.cdf, t.count, t.start);
    if (x < t.count) return x;
    const int32_t top = h.n1 < h.k ? h.n1 : h.k;
    double f = t.last, sum = t.cdf[t.count - 1];
    for (; x < top; ++x) {
        f *= Ratio(h, x - 1);
        sum += f;
        if (sum > u) return x;
    }
    return top;
}

void SetUpH2pe(HypergeometricChunk* h, double mode) {
    H2peSetup& s = h->h2pe;
    const double n1 = h->n1, n2 = h->n2, k = h->k, lot = n1 + n2, nk = n2 - k;
    s.m = mode;
    s.a = LogFactorialSum4(mode, n1 - mode, k - mode, nk + mode);
    const double d = floor(1.5 * sqrt((lot - k) * k * n1 * n2 / ((lot - 1.0) * lot * lot))) + 0.5;
    s.xl = mode - d + 0.5;
    s.xr = mode + d + 0.5;
    const double kl = exp(s.a - LogFactorialSum4(s.xl, n1 - s.xl, k - s.xl, nk + s.xl));
    const double kr =
        exp(s.a - LogFactorialSum4(s.xr - 1.0, n1 - s.xr + 1.0, k - s.xr + 1.0, nk + s.xr - 1.0));
    s.laml = -__qesdLn(s.xl * (nk + s.xl) / ((n1 - s.xl + 1.0) * (k - s.xl + 1.0)));
    s.lamr = -__qesdLn((n1 - s.xr + 1.0) * (k - s.xr + 1.0) / (s.xr * (nk + s.xr)));
    s.p1 = d + d;
    s.p2 = s.p1 + kl / s.laml;
    s.p3 = s.p2 + kr / s.lamr;
}

// H2PE: a rectangle about the mode with exponential tails on both sides.
struct H2pe {
    const HypergeometricChunk& h;

    Verdict Candidate(float uf, float vf, float lnv, int32_t* y, float* w) const {
        const H2peSetup& s = h.h2pe;
        const double u = uf * s.p3, top = h.n1 < h.k ? h.n1 : h.k;
        double x, t;
        if (u < s.p1) {
            x = floor(s.xl + u);
            t = vf;
        } else if (u < s.p2) {
            x = floor(s.xl + lnv / s.laml);
            t = vf * (u - s.p1) * s.laml;
        } else {
            x = floor(s.xr - lnv / s.lamr);
            t = vf * (u - s.p2) * s.lamr;
        }
        if (x < 0.0 || x > top) return Reject;
        *y = static_cast<int32_t>(x);
        if (s.m >= 100.0 && x > 50.0) {
            *w = static_cast<float>(t);
            return Undecided;
        }
        // f(x) / f(m) by its recurrence.
        double f = 1.0;
        for (double i = s.m; i < x; ++i)
            f *= Ratio(h, i);
        for (double i = x; i < s.m; ++i)
            f /= Ratio(h, i);
        return t <= f ? Accept : Reject;
    }

    // The squeeze of ln f(x) / f(m) between the bounds of the published method, then
    // the exact value from the four log-factorials.
    bool Final(int32_t y, float lnw) const {
        const H2peSetup& s = h.h2pe;
        const double x = y, m = s.m, n1 = h.n1, k = h.k, nk = h.n2 - h.k, av = lnw;
        const double x1 = x + 1.0, xm = x - m, xn = n1 - x + 1.0, xk = k - x + 1.0, xnk = nk + x1;
        const double r = -xm / x1, sn = xm / xn, t = xm / xk, e = -xm / xnk;
        const double g = xn * xk / (x1 * xnk) - 1.0;
        const double dg = g < 0.0 ? 1.0 + g : 1.0;
        const double gu = g * (1.0 + g * (-0.5 + g / 3.0));
        const double gl = gu - g * g * g * g / (4.0 * dg);
        const double mm = m + 0.5, mn = n1 - m + 0.5, mk = k - m + 0.5, mnk = nk + mm;
        auto cubic = [](double z) { return z * (1.0 + z * (-0.5 + z / 3.0)); };
        const double ub = mm * cubic(r) + mn * cubic(sn) + mk * cubic(t) + mnk * cubic(e) + x * gu -
                          m * gl + 0.0034;
        if (av > ub) return false;
        auto fourth = [](double z, double c) {
            const double z4 = z * z * z * z;
            return z < 0.0 ? c * z4 / (1.0 + z) : c * z4;
        };
        const double d = fourth(r, mm) + fourth(sn, mn) + fourth(t, mk) + fourth(e, mnk);
        if (av < ub - 0.25 * d + (x + m) * (gl - gu) - 0.0078) return true;
        return av <= s.a - LogFactorialSum4(x, n1 - x, k - x, nk + x);
    }
};

// Folds (l, s, m) into the chunk: the sample to its complement when it is more than
// half the lot (x = m - x'), then the marked to the unmarked likewise (x = s' - x').
void Fold(int32_t l, int32_t s, int32_t m, HypergeometricChunk* h) {
    h->sign = 1;
    h->offset = 0;
    int32_t k = s, n1 = m;
    if (2 * static_cast<int64_t>(k) > l) {
        h->offset += h->sign * n1;
        h->sign = -h->sign;
        k = l - k;
    }
    if (2 * static_cast<int64_t>(n1) > l) {
        h->offset += h->sign * k;
        h->sign = -h->sign;
        n1 = l - n1;
    }
    h->n1 = n1;
    h->n2 = l - n1;
    h->k = k;
}

// The chunk for (l, s, m): the stream's own when it was set up for them, else a
// new one in place of any old one. Null with the status when it cannot be made.
HypergeometricChunk* ChunkFor(void* stream, int32_t l, int32_t s, int32_t m, int32_t* status) {
    auto* h = static_cast<HypergeometricChunk*>(__qesSearchChunk(stream, kChunkId));
    if (h != nullptr && h->l == l && h->s == s && h->m == m) return h;
    if (h != nullptr) __qesDeleteChunksById(stream, kChunkId);
    h = static_cast<HypergeometricChunk*>(SetupChunk(stream, kChunkId, kChunkSize, status));
    if (h == nullptr) return nullptr;
    Fold(l, s, m, h);
    const double mode = floor((h->k + 1.0) * (h->n1 + 1.0) / (static_cast<double>(l) + 2.0));
    h->way = mode < kInversionBelow ? 0 : 1;
    if (h->way == 0)
        SetUpInversion(h, mode);
    else
        SetUpH2pe(h, mode);
    h->l = l;
    h->s = s;
    h->m = m;
    return h;
}

bool HasRows() {
    return ZAR_SLOT(dLn, brenn::frame::SlotHA) != nullptr &&
           ZAR_SLOT(dInv, brenn::frame::SlotHA) != nullptr &&
           ZAR_SLOT(sLn, brenn::frame::SlotLA) != nullptr;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngHypergeometric(int32_t method, void* stream, int32_t n, int32_t* r,
                                            int32_t l, int32_t s, int32_t m) {
    (void)method;
    if (n <= 0) return QES_STATUS_OK;
    if (!HasRows()) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(LogZeroCallbackS);
    int32_t status = QES_STATUS_OK;
    const HypergeometricChunk* h = ChunkFor(stream, l, s, m, &status);
    if (h != nullptr) {
        status = h->way == 0 ? InvertUniformBlocks<kBlock>(stream, n, r,
                                                           [&](double u) { return Invert(*h, u); })
                             : RunRejectionBatches(H2pe{*h}, stream, n, r);
        if (status >= 0 && (h->sign != 1 || h->offset != 0))
            for (int32_t i = 0; i < n; ++i)
                r[i] = h->offset + h->sign * r[i];
    }
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}
