// The exact Poisson method from lambda 27 up: PTPE of Schmeiser and Kachitvichyanukul,
// a hat of a triangle and a parallelogram over [xl, xr] around the mode M and two
// exponential tails, with the published constants (as floats widened to double):
// half-width p1 = floor(2.195 sqrt(lambda) - 2.2) + 0.5, parallelogram and right-tail
// height c = 0.133 + 8.56 / (6.83 + lambda), left-tail height 0.109 + 8.25 / (10.86 +
// lambda). tools/poisson/check_ptpe.py checks that this hat covers the pmf and that
// the squeeze holds, over lambdas from 27 to 3e5.
//
// Candidates run in batches of up to 1024 pairs of single uniforms. A batch goes
// through four passes: the logarithms of all the v (single LA Ln, under the entry's
// sentinel); the triangle two lanes at a time, then for the rest the region, the
// count y and the height v', deciding the rejections and, near the mode or far out,
// the exact ratio
// f(y) / f(M) by products; for the rest the double HA Ln of v' and Inv of y with the
// squeeze of BTPE; and for the few that the squeeze leaves, the log ratio by
// Stirling's series. Accepted counts are written in order; the rest of the last batch
// is dropped.
#include <math.h>
#include <smmintrin.h>

#include "rng/core/stream.h"
#include "rng/dist/frame.h"
#include "rng/dist/poisson.h"

namespace brenn::rng {

namespace {

constexpr int32_t kBatch = 1024;
constexpr int32_t kNear = 20; // counts this close to the mode take their ratio from the chunk

enum : uint8_t { kReject = 0, kAccept = 1, kSqueeze = 2 };

// Constants of the method, kept as floats.
constexpr float kWidthA = 2.195f, kWidthB = 2.2f;
constexpr float kHeightA = 0.133f, kHeightB = 8.56f, kHeightC = 6.83f;
constexpr float kLeftA = 0.109f, kLeftB = 8.25f, kLeftC = 10.86f;

// Stirling's correction to ln k!, 1/(12 k) - 1/(360 k^3), from 1/k, in single.
inline float StirlingTail(float inv) {
    return inv * (1.0f / 12.0f - inv * inv * (1.0f / 360.0f));
}

// f(y) / f(M) against v' by products, leaving as soon as the ratio falls below v'
// (far from the mode, where the squeeze does not hold).
inline uint8_t ByProducts(int32_t y, double v, double m, double lambda) {
    double f = 1.0;
    const int32_t mode = static_cast<int32_t>(m);
    if (y > mode) {
        for (int32_t i = mode + 1; i <= y && f >= v; ++i)
            f *= lambda / i;
    } else {
        for (int32_t i = mode; i > y && f >= v; --i)
            f *= i / lambda;
    }
    return v < f ? kAccept : kReject;
}

// The triangle, whose counts need no test: y = floor(xm - p1 v + u), accepted where
// u = p4 U is at most p1; every other candidate is marked refused for now.
void TrianglePass(int32_t m, const float* uv, const decltype(PoissonChunk::ptpe)& s, int32_t* y,
                  uint8_t* verdict) {
    const __m128d p4 = _mm_set1_pd(s.p4), p1 = _mm_set1_pd(s.p1), xm = _mm_set1_pd(s.xm);
    int32_t i = 0;
    for (; i + 2 <= m; i += 2) {
        __m128 pair = _mm_loadu_ps(uv + 2 * i); // u0 v0 u1 v1
        pair = _mm_shuffle_ps(pair, pair, _MM_SHUFFLE(3, 1, 2, 0));
        const __m128d u = _mm_mul_pd(p4, _mm_cvtps_pd(pair));
        const __m128d v = _mm_cvtps_pd(_mm_movehl_ps(pair, pair));
        const __m128d x = _mm_add_pd(_mm_sub_pd(xm, _mm_mul_pd(p1, v)), u);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(y + i), _mm_cvttpd_epi32(_mm_floor_pd(x)));
        const int inside = _mm_movemask_pd(_mm_cmple_pd(u, p1));
        verdict[i] = (inside & 1) ? kAccept : kReject;
        verdict[i + 1] = (inside & 2) ? kAccept : kReject;
    }
    for (; i < m; ++i) {
        const double u = s.p4 * uv[2 * i], v = uv[2 * i + 1];
        y[i] = static_cast<int32_t>(floor(s.xm - s.p1 * v + u));
        verdict[i] = u <= s.p1 ? kAccept : kReject;
    }
}

} // namespace

void PoissonPtpeSetUp(double lambda, PoissonChunk* chunk) {
    auto& s = chunk->ptpe;
    s.m = floor(lambda);
    s.p1 = floor(double(kWidthA) * sqrt(lambda) - double(kWidthB)) + 0.5;
    s.c = double(kHeightA) + double(kHeightB) / (double(kHeightC) + lambda);
    s.inverseC = 1.0 / s.c;
    s.cornerL = double(kLeftA) + double(kLeftB) / (double(kLeftC) + lambda);
    s.xm = s.m + 0.5;
    s.xl = s.xm - s.p1;
    s.xr = s.xm + s.p1;
    double a = (lambda - s.xl) / lambda;
    s.lambdaL = a * (1.0 + 0.5 * a);
    a = (s.xr - lambda) / s.xr;
    s.lambdaR = a * (1.0 + 0.5 * a);
    s.p2 = s.p1 * (1.0 + 2.0 * s.c);
    s.p3 = s.p2 + s.cornerL / s.lambdaL;
    s.p4 = s.p3 + s.c / s.lambdaR;
    s.stirlingM = StirlingTail(1.0f / static_cast<float>(s.m));
    const int32_t mode = static_cast<int32_t>(s.m);
    s.near[kNear] = 1.0;
    for (int32_t k = 1; k <= kNear; ++k) {
        s.near[kNear + k] = s.near[kNear + k - 1] * (lambda / (mode + k));
        s.near[kNear - k] = s.near[kNear - k + 1] * ((mode - k + 1) / lambda);
    }
    chunk->way = 1;
    chunk->count = 0;
    chunk->lambda = lambda;
}

int32_t PoissonPtpe(void* stream, int32_t n, int32_t* r, const PoissonChunk* chunk) {
    const auto& s = chunk->ptpe;
    const double lambda = chunk->lambda;
    float uv[2 * kBatch], lnv[kBatch];
    double height[kBatch], inv[kBatch], ratioL[kBatch], ratioM[kBatch];
    int32_t y[kBatch], pending[kBatch], outside[kBatch];
    uint8_t verdict[kBatch];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        const int32_t m = n - done < kBatch ? n - done : kBatch;
        status = _qessRngUniform(0, stream, 2 * m, uv, 0.0f, 1.0f);
        if (status < 0) return status;
        // Pass 1: the v of each pair is its odd word.
        for (int32_t i = 0; i < m; ++i)
            lnv[i] = uv[2 * i + 1];
        Bracketed(ZAR_SLOT(sLn, frame::SlotLA), int(m), lnv, lnv);
        // Pass 2: the triangle for every candidate, two lanes at a time; then the
        // other regions for the candidates outside it, listed without a branch.
        TrianglePass(m, uv, s, y, verdict);
        int32_t others = 0;
        for (int32_t i = 0; i < m; ++i) {
            outside[others] = i;
            others += verdict[i] != kAccept;
        }
        int32_t waiting = 0;
        for (int32_t j = 0; j < others; ++j) {
            const int32_t i = outside[j];
            const double u = s.p4 * uv[2 * i], v = uv[2 * i + 1];
            double x, h;
            if (u <= s.p2) { // the parallelogram
                x = s.xl + (u - s.p1) * s.inverseC;
                h = v * s.c + 1.0 - fabs(x - s.xm) / s.p1;
                if (h > 1.0) {
                    verdict[i] = kReject;
                    continue;
                }
            } else if (v == 0.0) { // a tail point at minus infinity
                verdict[i] = kReject;
                continue;
            } else if (u <= s.p3) { // the left tail
                x = s.xl + lnv[i] / s.lambdaL;
                h = v * (u - s.p2) * s.lambdaL;
            } else { // the right tail
                x = s.xr - lnv[i] / s.lambdaR;
                h = v * (u - s.p3) * s.lambdaR;
            }
            if (x < 0.0 || x >= 2147483647.0) {
                verdict[i] = kReject;
                continue;
            }
            y[i] = static_cast<int32_t>(floor(x));
            const double k = fabs(y[i] - s.m);
            if (k <= kNear) {
                verdict[i] =
                    h < s.near[kNear + y[i] - static_cast<int32_t>(s.m)] ? kAccept : kReject;
                continue;
            }
            if (k >= 0.5 * lambda - 1.0) {
                verdict[i] = ByProducts(y[i], h, s.m, lambda);
                continue;
            }
            verdict[i] = kSqueeze;
            height[waiting] = h;
            inv[waiting] = y[i];
            pending[waiting++] = i;
        }
        // Pass 3: the squeeze, ln v' against -k^2 / (2 lambda) within rho.
        if (waiting > 0) {
            Bracketed(ZAR_SLOT(dLn, frame::SlotHA), int(waiting), height, height);
            Bracketed(ZAR_SLOT(dInv, frame::SlotHA), int(waiting), inv, inv);
        }
        int32_t finals = 0;
        for (int32_t j = 0; j < waiting; ++j) {
            const int32_t i = pending[j];
            const double k = fabs(y[i] - s.m);
            const double rho = (k / lambda) * ((k * (k / 3.0 + 0.625) + 1.0 / 6.0) / lambda + 0.5);
            const double t = -k * k / (2.0 * lambda);
            if (height[j] < t - rho) {
                verdict[i] = kAccept;
            } else if (height[j] > t + rho) {
                verdict[i] = kReject;
            } else {
                pending[finals] = i;
                height[finals] = height[j];
                inv[finals] = inv[j];
                ratioL[finals] = lambda * inv[j];
                ratioM[finals++] = s.m * inv[j];
            }
        }
        // Pass 4: ln f(y)/f(M) = (y - M)(1 + ln(lambda / y)) + (M + 1/2) ln(M / y)
        // + tail(M) - tail(y), Stirling's series for both factorials.
        if (finals > 0) {
            Bracketed(ZAR_SLOT(dLn, frame::SlotHA), int(finals), ratioL, ratioL);
            Bracketed(ZAR_SLOT(dLn, frame::SlotHA), int(finals), ratioM, ratioM);
        }
        for (int32_t j = 0; j < finals; ++j) {
            const int32_t i = pending[j];
            const double d = y[i] - s.m;
            const double g = d * (1.0 + ratioL[j]) + (s.m + 0.5) * ratioM[j] + s.stirlingM -
                             StirlingTail(static_cast<float>(inv[j]));
            verdict[i] = height[j] <= g ? kAccept : kReject;
        }
        // In order of the batch, without a branch: a refused count is overwritten.
        for (int32_t i = 0; i < m && done < n; ++i) {
            r[done] = y[i];
            done += verdict[i] == kAccept;
        }
    }
    return status;
}

} // namespace brenn::rng
