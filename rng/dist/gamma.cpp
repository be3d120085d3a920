// Gamma variates a + beta v, v of shape alpha and unit scale, by one of four ways
// chosen by alpha alone: above 1 Marsaglia and Tsang's squeeze with Box-Muller
// normals, at 1 the Exponential, from 0.6 to 1 rejection from a Weibull form, below
// 0.6 Ahrens and Dieter's two-uniform rejection (GS). The squeeze way keeps a trial
// left over at the end of a call in chunk 7 (double) or 8 (single), so that its
// variates do not depend on how a request is cut into calls.
#include <string.h>

#include <cmath>

#include "frame/export.h"
#include "rng/dist/framed.h"
#include "rng/dist/gamma.h"
#include "rng/dist/pair_chunk.h"
#include "rng/dist/pair_passes.h"
#include "rng/dist/setup_ln_lanes.h"

namespace brenn::rng {

namespace {

constexpr int32_t kTrials = 512; // trials a round at most: 1024 uniforms

int32_t Min(int32_t x, int32_t y) {
    return x < y ? x : y;
}

// Marsaglia and Tsang's test of one normal x with its uniform u: the variate d v,
// or a negative value for a rejection.
template <typename T>
struct Squeeze {
    T d, c, s;
    // The first tests of a round's trials, a register at a time. Pair j gives trial
    // 2j its sine normal and trial 2j + 1 its cosine normal, which go to `normal`, with
    // the test uniforms words[4j + 2] and words[4j + 3]. To `value`: d v when the
    // squeeze accepts, -1 when t is not positive, -2 when Slow must decide; the trials
    // left open are listed in `open`, and their count returned.
    int32_t Squeezed(int32_t pairs, const T* radius, const T* sine, const T* cosine, const T* words,
                     T* normal, T* value, int32_t* open) const {
        typedef T V __attribute__((vector_size(16)));
        constexpr int32_t kLanes = 16 / sizeof(T), kPer = kLanes / 2;
        auto one = [&](auto xi, auto ui, auto k1, auto k0) {
            auto t = c * xi + k1;
            auto v = d * (t * t * t), x2 = xi * xi;
            auto open = t > k0 ? k1 * T(-2) : -k1;
            return (t > k0) & (ui < k1 - s * x2 * x2) ? v : open;
        };
        int32_t opened = 0, j = 0;
        for (; j + kPer <= pairs; j += kPer) {
            V x{}, u{};
            for (int32_t l = 0; l < kPer; ++l) {
                x[2 * l] = radius[j + l] * sine[j + l];
                x[2 * l + 1] = radius[j + l] * cosine[j + l];
                u[2 * l] = words[4 * (j + l) + 2];
                u[2 * l + 1] = words[4 * (j + l) + 3];
            }
            V r = one(x, u, V{} + T(1), V{});
            memcpy(normal + 2 * j, &x, sizeof x);
            memcpy(value + 2 * j, &r, sizeof r);
            for (int32_t l = 0; l < kLanes; ++l) {
                open[opened] = 2 * j + l;
                opened += r[l] == T(-2);
            }
        }
        for (int32_t i = 2 * j; i < 2 * pairs; ++i) {
            T x = radius[i / 2] * (i & 1 ? cosine[i / 2] : sine[i / 2]);
            T t = c * x + T(1), v = d * (t * t * t), x2 = x * x;
            normal[i] = x;
            value[i] = t > T(0) && Test(words, i) < T(1) - s * x2 * x2 ? v
                       : t > T(0)                                      ? T(-2)
                                                                       : T(-1);
            open[opened] = i;
            opened += value[i] == T(-2);
        }
        return opened;
    }
    // The test uniform of trial i in its round's words.
    static T Test(const T* words, int32_t i) { return words[2 * i + 2 - (i & 1)]; }
    // The logarithmic test of a trial whose t is positive and which the squeeze left
    // open, given ln v and ln u: d v or -1.
    T Decide(T x, T lnv, T lnu) const {
        T t = c * x + T(1), v = t * t * t, x2 = x * x;
        T w = T(0.5) * x2 + d * (T(1) - v + lnv);
        return w > lnu ? d * v : T(-1);
    }
    T Slow(T x, T u) const {
        using G = GammaOf<T>;
        T t = c * x + T(1), v = t * t * t;
        return Decide(x, G::ScalarLn(v), G::ScalarLn(u));
    }
    // The tests of the open trials, their v and u side by side in `logs` (in double,
    // in which the single logarithm is taken too), the logarithms two lanes at a time.
    void Decided(int32_t opened, const int32_t* open, const T* normal, const T* words, double* logs,
                 T* value) const {
        for (int32_t j = 0; j < opened; ++j) {
            T t = c * normal[open[j]] + T(1);
            logs[2 * j] = t * t * t;
            logs[2 * j + 1] = Test(words, open[j]);
        }
        SetupLnLanes(2 * opened, logs);
        for (int32_t j = 0; j < opened; ++j)
            value[open[j]] = Decide(normal[open[j]], T(logs[2 * j]), T(logs[2 * j + 1]));
    }
    T Trial(T x, T u) const {
        T t = c * x + T(1);
        if (!(t > T(0))) return T(-1);
        T x2 = x * x;
        if (u < T(1) - s * x2 * x2) return d * (t * t * t);
        return Slow(x, u);
    }
};

// Alpha above 1. A round of k trials (the count still wanted, at most 512, rounded up
// to even) takes 2k uniforms; pair j of normals owns words 4j to 4j + 3: the radius and
// the angle of Box-Muller, then the test uniforms of its sine and its cosine normal.
// Trials thus run through the stream in a fixed order, and since a round has at most
// one trial more than wanted, only a cosine trial can be left over: it waits in the
// chunk as its uniform and its normal.
template <typename T>
int32_t SqueezeWay(void* stream, int32_t n, T* r, T alpha) {
    using C = Continuous<T>;
    using G = GammaOf<T>;
    const Squeeze<T> q{alpha - G::Third(), T(1) / std::sqrt(T(9) * alpha - T(3)), G::Squeeze()};
    if (n <= 0) return QES_STATUS_OK;
    int32_t status = QES_STATUS_OK;
    T* pending = PairChunk<T>(stream, G::kChunk, &status);
    if (pending == nullptr) return status;
    int32_t written = 0;
    if (!(pending[0] < T(0))) {
        T v = q.Trial(pending[1], pending[0]);
        pending[0] = T(-1);
        if (v >= T(0)) r[written++] = v;
    }
    constexpr int32_t kPairs = kTrials / 2;
    T words[2 * kTrials];
    T radius[kPairs], angle[kPairs], sine[kPairs], cosine[kPairs];
    // Trial 2j is the sine normal of pair j with its test uniform, 2j + 1 the cosine's.
    T normal[kTrials], value[kTrials];
    int32_t open[kTrials];
    double logs[2 * kTrials];
    const T twoPi = C::TwoPi();
    while (written < n) {
        int32_t k = Min(n - written, kTrials);
        k += k & 1;
        status = C::Uniform(stream, 2 * k, words, T(0), T(1));
        if (status < 0) return status;
        const int32_t pairs = k / 2;
        for (int32_t j = 0; j < pairs; ++j) {
            radius[j] = words[4 * j];
            angle[j] = words[4 * j + 1] * twoPi;
        }
        C::SinCos(pairs, angle, sine, cosine);
        C::Ln(pairs, radius);
        MinusTwice(pairs, radius);
        C::Sqrt(pairs, radius);
        // The squeeze of every trial at once, branch-free; then the logarithmic tests of
        // the trials it left open, in a row of their own.
        const int32_t opened = q.Squeezed(pairs, radius, sine, cosine, words, normal, value, open);
        q.Decided(opened, open, normal, words, logs, value);
        if (k <= n - written) {
            // All k may be taken: the accepted ones go out without a branch.
            for (int32_t i = 0; i < k; ++i) {
                r[written] = value[i];
                written += value[i] >= T(0);
            }
            continue;
        }
        for (int32_t i = 0; i < k && written < n; ++i) {
            if (value[i] >= T(0)) r[written++] = value[i];
            if (written == n && (i & 1) == 0) {
                pending[0] = q.Test(words, i + 1);
                pending[1] = normal[i + 1];
            }
        }
    }
    return status;
}

// Alpha from 0.6 to 1: x = e1^(1/alpha) is Weibull for an exponential e1, and with a
// second exponential e2 it is accepted when x <= e1 + e2 - b, b = (1 - alpha)
// alpha^(alpha / (1 - alpha)) the largest value of x^alpha - x. Trial i takes words
// 2i (e1) and 2i + 1 (e2) of its round.
template <typename T>
int32_t WeibullWay(void* stream, int32_t n, T* r, T alpha) {
    using C = Continuous<T>;
    using G = GammaOf<T>;
    const T b = (T(1) - alpha) * G::ExpHA(alpha / (T(1) - alpha) * G::LnHA(alpha));
    const T inverse = T(1) / alpha;
    T words[2 * kTrials];
    T e1[kTrials], bound[kTrials];
    int32_t status = QES_STATUS_OK;
    for (int32_t written = 0; written < n;) {
        const int32_t k = Min(n - written, kTrials);
        status = C::Uniform(stream, 2 * k, words, T(0), T(1));
        if (status < 0) return status;
        C::Ln(2 * k, words);
        for (int32_t i = 0; i < k; ++i) {
            e1[i] = -words[2 * i];
            bound[i] = (e1[i] - words[2 * i + 1]) - b;
        }
        // e1^(1/alpha) as exp(ln(e1) / alpha), in place over the block.
        C::LnTo(k, e1, words);
        for (int32_t i = 0; i < k; ++i)
            words[i] *= inverse;
        C::Exp(k, words);
        for (int32_t i = 0; i < k && written < n; ++i)
            if (words[i] <= bound[i]) r[written++] = words[i];
    }
    return status;
}

// Alpha below 0.6, Ahrens and Dieter's GS: p = b u1 with b = 1 + alpha / e. For p <= 1
// the candidate is x = p^(1/alpha), accepted when u2 <= exp(-x); above, x = -ln((b - p)
// / alpha), accepted when u2 <= x^(alpha - 1), that is when x <= u2^(-1/(1 - alpha)).
// One logarithm call over the 2k arguments of a round and one exponential over k:
// exp(ln p / alpha) below, exp(-ln u2 / (1 - alpha)) above. Trial i takes words 2i
// (u1) and 2i + 1 (u2).
template <typename T>
int32_t RejectionWay(void* stream, int32_t n, T* r, T alpha) {
    using C = Continuous<T>;
    const T inverse = T(1) / alpha, oneMinus = T(1) - alpha;
    const T b = T(1) + alpha * T(0.36787944117144233);
    T words[2 * kTrials], logs[2 * kTrials];
    T* lu2 = logs + kTrials;
    T e[kTrials];
    int32_t status = QES_STATUS_OK;
    for (int32_t written = 0; written < n;) {
        const int32_t k = Min(n - written, kTrials);
        status = C::Uniform(stream, 2 * k, words, T(0), T(1));
        if (status < 0) return status;
        for (int32_t i = 0; i < k; ++i) {
            T p = b * words[2 * i];
            e[i] = p; // kept to tell the branch
            logs[i] = p <= T(1) ? p : (b - p) * inverse;
            lu2[i] = words[2 * i + 1];
        }
        C::LnTo(k, logs, words);
        C::LnTo(k, lu2, words + kTrials);
        for (int32_t i = 0; i < k; ++i)
            logs[i] = e[i] <= T(1) ? words[i] * inverse : -words[kTrials + i] / oneMinus;
        C::Exp(k, logs);
        for (int32_t i = 0; i < k && written < n; ++i) {
            if (e[i] <= T(1)) {
                if (words[kTrials + i] <= -logs[i]) r[written++] = logs[i];
            } else {
                T x = -words[i];
                if (x <= logs[i]) r[written++] = x;
            }
        }
    }
    return status;
}

template <typename T>
int32_t Gamma(void* stream, int32_t n, T* r, T alpha, T a, T beta) {
    if (alpha == T(1)) {
        if constexpr (sizeof(T) == 8)
            return _qesdRngExponential(0, stream, n, r, a, beta);
        else
            return _qessRngExponential(0, stream, n, r, a, beta);
    }
    // The squeeze way's values are positive or +0, which 0 + 1 v leaves as they are:
    // the standard form skips the last pass.
    if (alpha > T(1) && a == T(0) && beta == T(1))
        return Framed<T>(Continuous<T>::kLogZeroOnlyCallback,
                         [&] { return SqueezeWay(stream, n, r, alpha); });
    return FramedScaled(n, r, a, beta, [&] {
        return alpha > T(1)      ? SqueezeWay(stream, n, r, alpha)
               : alpha >= T(0.6) ? WeibullWay(stream, n, r, alpha)
                                 : RejectionWay(stream, n, r, alpha);
    });
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qessRngGamma(int32_t method, void* stream, int32_t n, float* r, float alpha,
                                   float a, float beta) {
    (void)method;
    return Gamma(stream, n, r, alpha, a, beta);
}

BRENN_EXPORT int32_t _qesdRngGamma(int32_t method, void* stream, int32_t n, double* r, double alpha,
                                   double a, double beta) {
    (void)method;
    return Gamma(stream, n, r, alpha, a, beta);
}
