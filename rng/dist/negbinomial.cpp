// Negative binomial variates, the failures before the a-th success (a real) of trials
// of probability p. Three ways by the mean a (1 - p) / p and the mode m = (a - 1) (1 -
// p) / p: table inversion while the mean is below 10737418.24 and the mode below 100,
// one double uniform a variate, with the table in chunk 4 of the stream; above, a
// ratio-of-uniforms rejection whose hat is fitted to the distribution at set-up, in
// one function for modes from 100 and in one for huge means, which takes the
// compound Poisson-logarithmic form when a is below 1 (the counts are then not
// log-concave). Both rejection functions draw single uniforms in batches and drop
// what a batch has left.
#include <limits.h>
#include <math.h>

#include "frame/export.h"
#include "rng/dist/frame.h"
#include "rng/dist/log_factorial.h"
#include "rng/dist/setup_chunk.h"
#include "rng/dist/table_inversion.h"

namespace brenn::rng {

namespace {

constexpr int32_t kChunkId = 4;
constexpr uint32_t kChunkSize = 1328;
constexpr int32_t kBlock = 2048;
constexpr double kHugeMean = 10737418.24;
constexpr double kLargeMode = 100.0;
constexpr int32_t kTail = 61;                     // table values past the mode's index
constexpr int32_t kTableMax = 99 + kTail;         // the mode is below 100
constexpr double kPositionSplit = 1.0 / 16777216; // 2^-24: a second single's weight

struct InversionSetup {
    double last; // the probability of the table's last value
    int32_t start, count;
    double cdf[kTableMax];
};

// Ratio of uniforms about c: x = c + v / u with u on (0, 1] and v on [-left, right),
// accepted when u^2 <= f(floor x) / f(mode).
struct RatioSetup {
    double c, left, width, lnMode, lnq, a;
    double lambda; // the compound form: the Poisson mean of the number of terms
    double lnp;
};

struct NegbinomialChunk {
    double a, p; // the parameters of the set-up; zero in a fresh chunk
    union {
        InversionSetup inversion;
        RatioSetup ratio;
    };
};
static_assert(sizeof(NegbinomialChunk) <= kChunkSize, "the set-up fits chunk 4");

void SetUpInversion(double a, double p, double mode, InversionSetup* t) {
    double f[kTableMax];
    f[0] = p;
    Bracketed(ZAR_SLOT(dPowx, brenn::frame::SlotHA), 1, f, a, f);
    const double q = 1.0 - p;
    t->start = mode > 0.0 ? static_cast<int32_t>(mode) : 0;
    t->count = t->start + kTail;
    for (int32_t k = 0; k + 1 < t->count; ++k)
        f[k + 1] = f[k] * q * (a + k) / (k + 1);
    t->last = f[t->count - 1];
    CumulativeFromTop(t->count, f, t->cdf);
}

// The count of one uniform: the table, then the recurrence past its end until the
// sum passes u or stops growing.
int32_t Invert(const InversionSetup& t, double a, double q, double u) {
    int32_t k = SearchCumulative(u, t.cdf, t.count, t.start);
    if (k < t.count) return k;
    double f = t.last, sum = t.cdf[t.count - 1];
    for (; k < INT_MAX; ++k) {
        f *= q * (a + (k - 1)) / k;
        const double next = sum + f;
        if (next > u || next == sum) return k;
        sum = next;
    }
    return k;
}

// ln f(k) up to a constant: ln Gamma(a + k) - ln k! + k ln(1 - p).
double LogCount(const RatioSetup& s, double k) {
    return LogGamma(s.a + k) - LogGamma(k + 1.0) + k * s.lnq;
}

// The largest of g over the integers lo to hi, g concave there (a golden search
// narrowed to a few integers, then each of those).
template <typename G>
double ConcaveMax(double lo, double hi, G g) {
    constexpr double kInvPhi = 0.6180339887498949;
    while (hi - lo > 8.0) {
        double x1 = floor(hi - kInvPhi * (hi - lo)), x2 = floor(lo + kInvPhi * (hi - lo));
        if (x1 == x2) x2 = x1 + 1.0;
        if (g(x1) < g(x2))
            lo = x1;
        else
            hi = x2;
    }
    double best = g(lo);
    for (double x = lo + 1.0; x <= hi; ++x)
        best = fmax(best, g(x));
    return best;
}

// The hat of the ratio of uniforms for a log-concave count (a from 1): about the
// mode plus a half, as wide on each side as the largest |x - c| sqrt(f(x) / f(mode))
// over the steps x of that side, found by the search since its logarithm is concave.
void SetUpRatio(double a, double p, RatioSetup* s) {
    s->a = a;
    s->lnq = log1p(-p);
    s->lnp = __qesdLn(p);
    s->lambda = -a * s->lnp;
    if (a < 1.0) return; // the compound form needs no hat
    const double q = 1.0 - p;
    const double mode = floor((a - 1.0) * q / p);
    const double sd = sqrt(a * q) / p;
    s->c = mode + 0.5;
    s->lnMode = LogCount(*s, mode);
    auto right = [&](double k) {
        return __qesdLn(k + 1.0 - s->c) + 0.5 * (LogCount(*s, k) - s->lnMode);
    };
    auto left = [&](double k) { return __qesdLn(s->c - k) + 0.5 * (LogCount(*s, k) - s->lnMode); };
    const double hr = exp(ConcaveMax(mode, mode + 40.0 * sd + 40.0, right));
    const double hl = exp(ConcaveMax(0.0, mode, left));
    s->left = hl;
    s->width = hl + hr;
}

// Single uniforms served one at a time from blocks; what a call leaves is dropped.
struct Feed {
    void* stream;
    int32_t owed; // variates still wanted, which sizes the next block
    int32_t status, at, size;
    float u[kBlock];

    bool Next(float* x) {
        if (at == size) {
            size = owed * 6 + 6 < kBlock ? owed * 6 + 6 : kBlock;
            status = _qessRngUniform(0, stream, size, u, 0.0f, 1.0f);
            at = 0;
            if (status < 0) return false;
        }
        *x = u[at++];
        return true;
    }
};

// One count by the ratio of uniforms; false when the generator fails. A wide hat
// takes the position from two singles, so that every count stays reachable.
bool RatioCount(const RatioSetup& s, bool wide, Feed* feed, int32_t* x) {
    for (;;) {
        float uf, vf, wf = 0.0f;
        if (!feed->Next(&uf) || !feed->Next(&vf) || (wide && !feed->Next(&wf))) return false;
        const double u = 1.0 - static_cast<double>(uf); // (0, 1]
        const double v = (vf + wf * kPositionSplit) * s.width - s.left;
        const double k = floor(s.c + v / u);
        if (k < 0.0 || k > INT_MAX) continue;
        const double t = LogCount(s, k) - s.lnMode;
        if (u * (4.0 - u) - 3.0 <= t || (u * (u - t) < 1.0 && 2.0 * __qesdLn(u) <= t)) {
            *x = static_cast<int32_t>(k);
            return true;
        }
    }
}

// One count as a sum of logarithmic counts (parameter 1 - p), as many as a Poisson
// variate of mean -a ln p, by Kemp's geometric mixture; saturated at INT_MAX.
bool CompoundCount(const RatioSetup& s, Feed* feed, int32_t* x) {
    double sum = 0.0, time = 0.0;
    for (;;) {
        float e;
        if (!feed->Next(&e)) return false;
        time -= __qesdLn(1.0 - static_cast<double>(e));
        if (time > s.lambda) break;
        float uf, vf;
        do {
            if (!feed->Next(&uf) || !feed->Next(&vf)) return false;
        } while (vf == 0.0f);
        const double y = -expm1(static_cast<double>(uf) * s.lnp);
        sum += y > 0.0 ? floor(1.0 + __qesdLn(vf) / __qesdLn(y)) : 1.0;
    }
    *x = sum < INT_MAX ? static_cast<int32_t>(sum) : INT_MAX;
    return true;
}

// The two rejection functions, for modes from 100 and for huge means.
int32_t LargeMode(const RatioSetup& s, void* stream, int32_t n, int32_t* r) {
    Feed feed{stream, n, QES_STATUS_OK, 0, 0, {}};
    for (int32_t i = 0; i < n; ++i, --feed.owed)
        if (!RatioCount(s, false, &feed, r + i)) return feed.status;
    return feed.status;
}

int32_t HugeMean(const RatioSetup& s, void* stream, int32_t n, int32_t* r) {
    Feed feed{stream, n, QES_STATUS_OK, 0, 0, {}};
    for (int32_t i = 0; i < n; ++i, --feed.owed) {
        bool ok = s.a < 1.0 ? CompoundCount(s, &feed, r + i) : RatioCount(s, true, &feed, r + i);
        if (!ok) return feed.status;
    }
    return feed.status;
}

bool HasRows() {
    return ZAR_SLOT(dPowx, brenn::frame::SlotHA) != nullptr;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngNegbinomial(int32_t method, void* stream, int32_t n, int32_t* r,
                                         double a, double p) {
    (void)method;
    if (n <= 0) return QES_STATUS_OK;
    if (!HasRows()) return QES_STATUS_BAD_METHOD;
    // Inside the guard, so that the caller's flags stay as they were.
    FpGuard guard = GuardEnter();
    const double mean = a * (1.0 - p) / p, mode = (a - 1.0) * (1.0 - p) / p;
    ErrorFrame errors = ErrorModeEnter(LogZeroCallbackD);
    int32_t status = QES_STATUS_OK;
    auto* chunk = static_cast<NegbinomialChunk*>(SetupChunk(stream, kChunkId, kChunkSize, &status));
    if (chunk != nullptr) {
        const bool fresh = chunk->a != a || chunk->p != p;
        if (mean >= kHugeMean || mode >= kLargeMode) {
            if (fresh) SetUpRatio(a, p, &chunk->ratio);
        } else if (fresh) {
            SetUpInversion(a, p, mode, &chunk->inversion);
        }
        chunk->a = a;
        chunk->p = p;
        if (mean >= kHugeMean)
            status = HugeMean(chunk->ratio, stream, n, r);
        else if (mode >= kLargeMode)
            status = LargeMode(chunk->ratio, stream, n, r);
        else
            status = InvertUniformBlocks<kBlock>(
                stream, n, r, [&](double u) { return Invert(chunk->inversion, a, 1.0 - p, u); });
    }
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}
