// Binomial variates, the successes in ntrial trials of probability p. With q the
// smaller of p and 1 - p (the results flipped to ntrial - x when p is at or above
// 0.5), ntrial q below 30 takes table inversion, one double uniform a variate, and
// from 30 on BTPE (Kachitvichyanukul and Schmeiser, 1988) in batches of pairs of
// single uniforms. The set-up of either way waits in chunk 5 of the stream for the
// next call with the same parameters.
#include <math.h>
#include <smmintrin.h>
#include <string.h>

#include "frame/export.h"
#include "rng/dist/batch_rejection.h"
#include "rng/dist/log_factorial.h"
#include "rng/dist/setup_chunk.h"
#include "rng/dist/table_inversion.h"

namespace brenn::rng {

namespace {

constexpr int32_t kChunkId = 5;
constexpr uint32_t kChunkSize = 544;
constexpr int32_t kBlock = 1024;
constexpr double kInversionBelow = 30.0;
constexpr int32_t kTail = 32;             // table values from the search start on
constexpr int32_t kTableMax = 29 + kTail; // the start is below 30

struct InversionSetup {
    double s, a; // f(k) = f(k - 1) (a / k - s)
    double last; // the probability of the table's last value
    int32_t start, count;
    double cdf[kTableMax];
};

// BTPE's set-up: its constants in single, as published, except the location terms,
// kept in double so that every count stays reachable beyond 2^24 trials, and the
// ratios f(m + j) / f(m) for |j| up to 20, which the test near the mode reads instead
// of forming their products for each candidate.
constexpr int32_t kNear = 20;

struct BtpeSetup {
    double n, m, xm, xl, xr;
    float npq, p1, p2, p3, p4, c, laml, lamr, r, q, s, a;
    double invC, invLaml, invLamr, invP1; // reciprocals, so that candidates divide by nothing
    double near[2 * kNear + 1];
};

struct BinomialChunk {
    double ntrial, p; // the parameters of the set-up; zero in a fresh chunk
    union {
        InversionSetup inversion;
        BtpeSetup btpe;
    };
};
static_assert(sizeof(BinomialChunk) <= kChunkSize, "the set-up fits chunk 5");

void SetUpInversion(int32_t ntrial, double q, InversionSetup* t) {
    t->s = q / (1.0 - q);
    t->a = (ntrial + 1.0) * t->s;
    double f[kTableMax];
    f[0] = 1.0 - q;
    Bracketed(ZAR_SLOT(dPowx, brenn::frame::SlotHA), 1, f, static_cast<double>(ntrial), f);
    const double mode = trunc(ntrial * q);
    t->start = mode > 0.0 ? static_cast<int32_t>(mode) : 0;
    t->count = t->start + kTail;
    for (int32_t k = 1; k < t->count; ++k)
        f[k] = f[k - 1] * (t->a / k - t->s);
    t->last = f[t->count - 1];
    CumulativeFromTop(t->count, f, t->cdf);
}

// The count of one uniform: the table, then the recurrence past its end, never
// beyond ntrial (where the probabilities have run out).
int32_t Invert(const InversionSetup& t, int32_t ntrial, double u) {
    int32_t k = SearchCumulative(u, t.cdf, t.count, t.start);
    if (k < t.count) return k;
    double f = t.last, sum = t.cdf[t.count - 1];
    for (; k < ntrial; ++k) {
        f *= t.a / k - t.s;
        sum += f;
        if (sum > u) return k;
    }
    return ntrial;
}

void SetUpBtpe(int32_t ntrial, double r, BtpeSetup* b) {
    const double q = 1.0 - r, n = ntrial;
    const double fm = n * r + r;
    b->n = n;
    b->m = floor(fm);
    b->npq = static_cast<float>(n * r * q);
    b->r = static_cast<float>(r);
    b->q = static_cast<float>(q);
    b->p1 = floorf(2.195f * sqrtf(b->npq) - 4.6f * b->q) + 0.5f;
    b->xm = b->m + 0.5;
    b->xl = b->xm - b->p1;
    b->xr = b->xm + b->p1;
    b->c = 0.134f + 20.5f / (15.3f + static_cast<float>(b->m));
    double al = (fm - b->xl) / (fm - b->xl * r);
    b->laml = static_cast<float>(al * (1.0 + 0.5 * al));
    double ar = (b->xr - fm) / (b->xr * q);
    b->lamr = static_cast<float>(ar * (1.0 + 0.5 * ar));
    b->p2 = b->p1 * (1.0f + 2.0f * b->c);
    b->p3 = b->p2 + b->c / b->laml;
    b->p4 = b->p3 + b->c / b->lamr;
    b->s = static_cast<float>(r / q);
    b->a = static_cast<float>((n + 1.0) * (r / q));
    b->invC = 1.0 / b->c;
    b->invLaml = 1.0 / b->laml;
    b->invLamr = 1.0 / b->lamr;
    b->invP1 = 1.0 / b->p1;
    // The products of the ratios a / i - s outward from the mode; 0 off the support.
    double* at = b->near + kNear;
    at[0] = 1.0;
    for (int32_t j = 1; j <= kNear; ++j) {
        const double up = b->m + j, down = b->m - j + 1.0;
        at[j] = up <= n ? at[j - 1] * (b->a / up - b->s) : 0.0;
        at[-j] = down >= 1.0 ? at[1 - j] / (b->a / down - b->s) : 0.0;
    }
}

// BTPE: a triangle at the mode, parallelograms beside it and exponential tails.
struct Btpe {
    const BtpeSetup& b;

    // The triangle's candidates, four at a time: u p4 <= p1 accepts at once with
    // floor(xm - p1 v + u p4), in the same double steps as Candidate.
    int32_t Quick(int32_t pairs, const float* uf, const float* vf, int32_t* y, int8_t* verdict,
                  int32_t* rest) const {
        const __m128d p4 = _mm_set1_pd(b.p4), p1 = _mm_set1_pd(b.p1), xm = _mm_set1_pd(b.xm);
        auto half = [&](__m128 u4, __m128 v4, int* mask) {
            const __m128d u = _mm_mul_pd(_mm_cvtps_pd(u4), p4), v = _mm_cvtps_pd(v4);
            *mask = _mm_movemask_pd(_mm_cmple_pd(u, p1));
            return _mm_cvttpd_epi32(_mm_floor_pd(_mm_add_pd(_mm_sub_pd(xm, _mm_mul_pd(p1, v)), u)));
        };
        int32_t left = 0, i = 0;
        for (; i + 4 <= pairs; i += 4) {
            const __m128 u4 = _mm_loadu_ps(uf + i), v4 = _mm_loadu_ps(vf + i);
            int low, high;
            const __m128i y0 = half(u4, v4, &low);
            const __m128i y1 = half(_mm_movehl_ps(u4, u4), _mm_movehl_ps(v4, v4), &high);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(y + i), _mm_unpacklo_epi64(y0, y1));
            const int mask = low | high << 2;
            for (int32_t l = 0; l < 4; ++l) {
                verdict[i + l] = static_cast<Verdict>(mask >> l & 1);
                rest[left] = i + l;
                left += (mask >> l & 1) ^ 1;
            }
        }
        for (; i < pairs; ++i)
            rest[left++] = i;
        return left;
    }

    Verdict Candidate(float uf, float vf, float lnv, int32_t* y, float* w) const {
        const double u = uf * static_cast<double>(b.p4), v = vf;
        if (u <= b.p1) {
            *y = static_cast<int32_t>(floor(b.xm - b.p1 * v + u));
            return Accept;
        }
        double x, t;
        if (u <= b.p2) {
            const double at = b.xl + (u - b.p1) * b.invC;
            t = v * b.c + 1.0 - fabs(b.xm - at) * b.invP1;
            if (t > 1.0 || t <= 0.0) return Reject;
            x = floor(at);
        } else if (u <= b.p3) {
            x = floor(b.xl + lnv * b.invLaml);
            if (x < 0.0) return Reject;
            t = v * (u - b.p2) * b.laml;
        } else {
            x = floor(b.xr - lnv * b.invLamr);
            if (x > b.n) return Reject;
            t = v * (u - b.p3) * b.lamr;
        }
        *y = static_cast<int32_t>(x);
        const double k = fabs(x - b.m);
        if (k > 20.0 && k < b.npq / 2.0 - 1.0) {
            *w = static_cast<float>(t);
            return Undecided;
        }
        // Near the mode the ratio f(x) / f(m) from the table, far out by its recurrence.
        if (k <= kNear) return t <= b.near[kNear + static_cast<int32_t>(x - b.m)] ? Accept : Reject;
        double f = 1.0;
        if (b.m < x) {
            for (double i = b.m + 1.0; i <= x; ++i)
                f *= b.a / i - b.s;
        } else {
            for (double i = x + 1.0; i <= b.m; ++i)
                f /= b.a / i - b.s;
        }
        return t <= f ? Accept : Reject;
    }

    // The squeeze on ln f(x) / f(m) by its normal approximation, then the bound by
    // Stirling's series.
    bool Final(int32_t y, float lnw) const {
        const double x = y, k = fabs(x - b.m), npq = b.npq, a = lnw;
        const double rho = (k / npq) * ((k * (k / 3.0 + 0.625) + 0.1666666666666) / npq + 0.5);
        const double t = -k * k / (2.0 * npq);
        if (a < t - rho) return true;
        if (a > t + rho) return false;
        const double x1 = x + 1.0, f1 = b.m + 1.0, z = b.n + 1.0 - b.m, w = b.n - x + 1.0;
        const double bound = b.xm * __qesdLn(f1 / x1) + (b.n - b.m + 0.5) * __qesdLn(z / w) +
                             (x - b.m) * __qesdLn(w * b.r / (x1 * b.q)) + StirlingTail(f1) +
                             StirlingTail(z) - StirlingTail(x1) - StirlingTail(w);
        return a <= bound;
    }
};

bool HasRows() {
    return ZAR_SLOT(dPowx, brenn::frame::SlotHA) != nullptr &&
           ZAR_SLOT(sLn, brenn::frame::SlotLA) != nullptr;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngBinomial(int32_t method, void* stream, int32_t n, int32_t* r,
                                      int32_t ntrial, double p) {
    (void)method;
    if (n <= 0) return QES_STATUS_OK;
    if (ntrial == 0) {
        memset(r, 0, sizeof(int32_t) * static_cast<size_t>(n));
        return QES_STATUS_OK;
    }
    if (!HasRows()) return QES_STATUS_BAD_METHOD;
    // Inside the guard, so that the caller's flags stay as they were.
    FpGuard guard = GuardEnter();
    const bool flip = p >= 0.5;
    const double q = flip ? 1.0 - p : p;
    const double test = flip ? ntrial * (1.0 - p) : ntrial * p;
    ErrorFrame errors = ErrorModeEnter(LogZeroCallbackS);
    int32_t status = QES_STATUS_OK;
    auto* chunk = static_cast<BinomialChunk*>(SetupChunk(stream, kChunkId, kChunkSize, &status));
    if (chunk != nullptr) {
        const bool fresh = chunk->ntrial != ntrial || chunk->p != p;
        if (test < kInversionBelow) {
            if (fresh) SetUpInversion(ntrial, q, &chunk->inversion);
            chunk->ntrial = ntrial;
            chunk->p = p;
            status = InvertUniformBlocks<kBlock>(
                stream, n, r, [&](double u) { return Invert(chunk->inversion, ntrial, u); });
        } else {
            if (fresh) SetUpBtpe(ntrial, q, &chunk->btpe);
            chunk->ntrial = ntrial;
            chunk->p = p;
            status = RunRejectionBatches(Btpe{chunk->btpe}, stream, n, r);
        }
        if (status >= 0 && flip)
            for (int32_t i = 0; i < n; ++i)
                r[i] = ntrial - r[i];
    }
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}
