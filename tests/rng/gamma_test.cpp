// Gamma and ChiSquare, both precisions: each way against its transcription over the
// same uniforms across every change of way, the uniforms a round asks for, calls cut
// anywhere for the ways that keep a leftover trial, the chunk's empty mark, uniforms
// of exactly 0, extreme shapes, and the failure paths with the caller's settings.
#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "rng/dist/setup_ln_lanes.h"
#include "tests/rng/caller_settings.h"
#include "tests/rng/continuous_ref.h"
#include "tests/rng/toy_brng.h"
#include "vecmath/explog/scalar_log.h"

namespace {

using namespace brenn::test;

template <typename T>
using Bits = std::conditional_t<sizeof(T) == 8, uint64_t, uint32_t>;

template <typename T>
struct Prec;
template <>
struct Prec<double> {
    static double ScalarLn(double x) { return __qesdLn(x); }
    static double Third() { return 0.3333333333333333; }
    static double LnHA(double x) {
        double y;
        ZAR_SLOT(dLn, brenn::frame::SlotHA)(1, &x, &y);
        return y;
    }
    static double ExpHA(double x) {
        double y;
        ZAR_SLOT(dExp, brenn::frame::SlotHA)(1, &x, &y);
        return y;
    }
    static int32_t Gamma(void* s, int32_t n, double* r, double alpha, double a, double beta) {
        return _qesdRngGamma(0, s, n, r, alpha, a, beta);
    }
    static int32_t Chi(void* s, int32_t n, double* r, int32_t v) {
        return _qesdRngChiSquare(0, s, n, r, v);
    }
    static constexpr int32_t kChunk = 7;
};
template <>
struct Prec<float> {
    static float ScalarLn(float x) { return __qessLn(x); }
    static float Third() { return 1.0f / 3.0f; }
    static float LnHA(float x) {
        float y;
        ZAR_SLOT(sLn, brenn::frame::SlotHA)(1, &x, &y);
        return y;
    }
    static float ExpHA(float x) {
        float y;
        ZAR_SLOT(sExp, brenn::frame::SlotHA)(1, &x, &y);
        return y;
    }
    static int32_t Gamma(void* s, int32_t n, float* r, float alpha, float a, float beta) {
        return _qessRngGamma(0, s, n, r, alpha, a, beta);
    }
    static int32_t Chi(void* s, int32_t n, float* r, int32_t v) {
        return _qessRngChiSquare(0, s, n, r, v);
    }
    static constexpr int32_t kChunk = 8;
};

// Marsaglia and Tsang's trial as the paper writes it: d v, or -1 for a rejection.
template <typename T>
T SqueezeTrial(T alpha, T x, T u) {
    T d = alpha - Prec<T>::Third(), c = T(1) / std::sqrt(T(9) * alpha - T(3));
    T t = c * x + T(1);
    if (t <= T(0)) return T(-1);
    T v = t * t * t, x2 = x * x;
    if (u < T(1) - T(0.0331) * x2 * x2) return d * v;
    T w = T(0.5) * x2 + d * (T(1) - v + Prec<T>::ScalarLn(v));
    return w > Prec<T>::ScalarLn(u) ? d * v : T(-1);
}

// Unit Gamma variates of each way from a fresh stream, round by round as the ways
// promise: rounds of min(wanted, 512) trials (rounded up to even above 1), two
// uniforms a trial, the kernels one element at a time but SinCos per round.
template <typename T>
std::vector<T> UnitGamma(void* s, int32_t n, T alpha) {
    using R = Ref<T>;
    std::vector<T> out;
    const T inverse = T(1) / alpha;
    const T bWeibull =
        (T(1) - alpha) * Prec<T>::ExpHA(alpha / (T(1) - alpha) * Prec<T>::LnHA(alpha));
    const T bGS = T(1) + alpha * T(0.36787944117144233);
    while (int32_t(out.size()) < n) {
        int32_t k = std::min<int32_t>(n - int32_t(out.size()), 512);
        if (alpha > T(1)) k += k & 1;
        std::vector<T> u = R::Uniforms(s, 2 * k, T(0), T(1));
        if (alpha > T(1)) {
            std::vector<T> angle(k / 2), sine(k / 2), cosine(k / 2);
            for (int32_t j = 0; j < k / 2; ++j)
                angle[j] = u[4 * j + 1] * R::kTwoPi;
            R::SinCos(k / 2, angle.data(), sine.data(), cosine.data());
            for (int32_t j = 0; j < k / 2 && int32_t(out.size()) < n; ++j) {
                T radius = Radius(u[4 * j]);
                T v = SqueezeTrial(alpha, radius * sine[j], u[4 * j + 2]);
                if (v >= T(0)) out.push_back(v);
                if (int32_t(out.size()) == n) break;
                v = SqueezeTrial(alpha, radius * cosine[j], u[4 * j + 3]);
                if (v >= T(0)) out.push_back(v);
            }
            continue;
        }
        for (int32_t i = 0; i < k && int32_t(out.size()) < n; ++i) {
            if (alpha >= T(0.6)) {
                T e1 = -R::Ln(u[2 * i]), bound = (e1 - R::Ln(u[2 * i + 1])) - bWeibull;
                T x = R::Exp(R::Ln(e1) * inverse);
                if (x <= bound) out.push_back(x);
            } else {
                T p = bGS * u[2 * i];
                T l1 = R::Ln(p <= T(1) ? p : (bGS - p) * inverse), l2 = R::Ln(u[2 * i + 1]);
                T e = R::Exp(p <= T(1) ? l1 * inverse : -l2 / (T(1) - alpha));
                if (p <= T(1) && l2 <= -e) out.push_back(e);
                if (p > T(1) && -l1 <= e) out.push_back(-l1);
            }
        }
    }
    return out;
}

template <typename T>
std::vector<T> GammaRef(void* s, int32_t n, T alpha, T a, T beta) {
    std::vector<T> z;
    if (alpha == T(1)) {
        z = Ref<T>::Uniforms(s, n, T(0), T(1));
        for (T& x : z)
            x = std::max(Ref<T>::Ln(x) * -beta + a, a);
        return z;
    }
    z = UnitGamma(s, n, alpha);
    for (T& x : z)
        x = x * beta + a;
    return z;
}

// ChiSquare: the product of v >> 1 uniforms a variate in blocks of min(4096 / h, 1024)
// variates, then the block's Gaussians; the square of a Gaussian; Gamma above 16.
template <typename T>
std::vector<T> ChiRef(void* s, int32_t n, int32_t v) {
    if (v > 16) return GammaRef<T>(s, n, T(v) / T(2), T(0), T(2));
    if (v == 1) {
        std::vector<T> z = UnitPairs<T>(s, n);
        for (T& x : z)
            x *= x;
        return z;
    }
    const int32_t h = v >> 1, block = std::min<int32_t>(4096 / h, 1024);
    std::vector<T> z;
    for (int32_t done = 0; done < n;) {
        int32_t m = std::min(n - done, block);
        std::vector<T> u = Ref<T>::Uniforms(s, m * h, T(0), T(1));
        std::vector<T> lp(m);
        for (int32_t i = 0; i < m; ++i) {
            T p = u[i * h];
            for (int32_t j = 1; j < h; ++j)
                p *= u[i * h + j];
            lp[i] = Ref<T>::Ln(p);
        }
        std::vector<T> g = v & 1 ? UnitPairs<T>(s, m) : std::vector<T>(m);
        for (int32_t i = 0; i < m; ++i)
            z.push_back(v & 1 ? lp[i] * T(-2) + g[i] * g[i] : lp[i] * T(-2));
        done += m;
    }
    return z;
}

// One row a case: Gamma's shape with its displacement and scale (0 and 1 besides the
// usual 0.5 and 3, where the last pass changes nothing), or ChiSquare's degrees of
// freedom; every length is drawn for each.
struct Transcribed {
    bool chi;
    double shape, a, beta;
};
const Transcribed kTranscribed[] = {
    {false, 0.05, 0.5, 3}, {false, 0.3, 0.5, 3}, {false, 0.5999, 0.5, 3}, {false, 0.6, 0.5, 3},
    {false, 0.99, 0.5, 3}, {false, 1.0, 0.5, 3}, {false, 1.0001, 0.5, 3}, {false, 5.0, 0.5, 3},
    {false, 1e4, 0.5, 3},  {false, 0.3, 0, 1},   {false, 3.0, 0, 1},      {false, 3.0, -0.0, 1},
    {true, 1, 0, 2},       {true, 2, 0, 2},      {true, 3, 0, 2},         {true, 4, 0, 2},
    {true, 9, 0, 2},       {true, 16, 0, 2},     {true, 17, 0, 2},        {true, 40, 0, 2},
};
const double kAlphas[] = {0.05, 0.3, 0.5999, 0.6, 0.99, 1.0, 1.0001, 5.0, 1e4};
const int32_t kLengths[] = {0, 1, 2, 5, 17, 511, 512, 513, 1025, 3000};

template <typename T>
void ExpectTranscriptions() {
    for (const Transcribed& c : kTranscribed)
        for (int32_t n : kLengths) {
            void* s = NewSeeded(c.chi ? QES_BRNG_MCG59 : QES_BRNG_MT19937, (c.chi ? 70 : 7) + n);
            void* t = CopyOf(s);
            std::vector<T> r(n + 1, T(-99)), z;
            if (c.chi) {
                ASSERT_EQ(Prec<T>::Chi(s, n, r.data(), int32_t(c.shape)), 0);
                z = ChiRef<T>(t, n, int32_t(c.shape));
            } else {
                ASSERT_EQ(Prec<T>::Gamma(s, n, r.data(), T(c.shape), T(c.a), T(c.beta)), 0);
                z = GammaRef<T>(t, n, T(c.shape), T(c.a), T(c.beta));
            }
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(std::bit_cast<Bits<T>>(r[i]), std::bit_cast<Bits<T>>(z[i]))
                    << (c.chi ? "v " : "alpha ") << c.shape << " a " << c.a << " n " << n << " i "
                    << i << ": " << r[i] << " against " << z[i];
            EXPECT_EQ(r[n], T(-99));
            ExpectInStepAndDelete(s, t);
        }
}

TEST(RngGamma, EachWayIsItsTranscription) {
    ExpectTranscriptions<double>();
    ExpectTranscriptions<float>();
}

// The squeeze's slow tests take the scalar logarithm two lanes at a time: the same bits
// as __qesdLn on every argument, whichever lane it sits in and whatever its partner
// (subnormals, zeros, negatives, NaNs and infinities send the pair to __qesdLn).
TEST(RngGamma, SlowTestLogarithmsAreTheScalarOnes) {
    std::vector<double> x = {0x1p-1022,
                             0x1.fffffffffffffp-1023,
                             0x1p-1074,
                             0.0,
                             -0.0,
                             -1.0,
                             std::numeric_limits<double>::quiet_NaN(),
                             std::numeric_limits<double>::signaling_NaN(),
                             std::numeric_limits<double>::infinity(),
                             std::numeric_limits<double>::max(),
                             1.0,
                             1.0 + 0x1p-7,
                             1.0 - 0x1p-7,
                             std::nextafter(1.0 + 0x1p-7, 2.0),
                             std::nextafter(1.0 - 0x1p-7, 0.0),
                             std::nextafter(1.0, 0.0),
                             2.0,
                             std::nextafter(2.0, 0.0),
                             0.5,
                             1e-300,
                             1e300};
    std::mt19937_64 bits(5);
    for (int i = 0; i < 2000; ++i) {
        const double u = std::ldexp(double(bits() >> 11), -53);
        x.push_back(i % 2 ? u : std::pow(u, 3.0) * 40.0);
    }
    for (size_t shift = 0; shift < 3; ++shift) {
        std::vector<double> y(x.begin() + shift, x.end());
        std::vector<double> want(y.size());
        for (size_t i = 0; i < y.size(); ++i)
            want[i] = __qesdLn(y[i]);
        brenn::rng::SetupLnLanes(int32_t(y.size()), y.data());
        for (size_t i = 0; i < y.size(); ++i)
            ASSERT_EQ(std::bit_cast<uint64_t>(y[i]), std::bit_cast<uint64_t>(want[i]))
                << "x " << x[i + shift] << " shift " << shift;
    }
}

// Alpha 1 and above, and ChiSquare over Gamma: the leftover trial waits in the chunk,
// so 5 + 5 gives the 10 of one call, and so does any other cut.
template <typename T>
void ExpectCuts() {
    std::mt19937 cuts(11);
    for (double alpha : {1.0, 1.0001, 5.0, 8.5})
        for (int trial = 0; trial < 6; ++trial) {
            const int32_t n = trial == 0 ? 10 : int32_t(cuts() % 3000);
            void* x = NewSeeded(QES_BRNG_MT19937, 5 + trial);
            void* y = CopyOf(x);
            std::vector<T> whole(n), pieces(n);
            ASSERT_EQ(Prec<T>::Gamma(x, n, whole.data(), T(alpha), T(0), T(1)), 0);
            for (int32_t done = 0; done < n;) {
                int32_t k = trial == 0 ? 5 : int32_t(cuts() % (n - done + 1));
                ASSERT_EQ(Prec<T>::Gamma(y, k, pieces.data() + done, T(alpha), T(0), T(1)), 0);
                done += k;
            }
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(whole[i], pieces[i]) << "alpha " << alpha << " n " << n << " i " << i;
            ExpectInStepAndDelete(x, y);
        }
}

TEST(RngGamma, CallsCutAnywhereAboveOne) {
    ExpectCuts<double>();
    ExpectCuts<float>();
}

template <typename T>
void ExpectChunkMarks() {
    // 0.0 in the first element is a pending uniform: the first trial is u = 0 with the
    // normal 0.5, accepted by the squeeze, and no uniform is taken for it.
    void* s = NewSeeded(QES_BRNG_MT19937, 3);
    void* t = CopyOf(s);
    T* chunk = static_cast<T*>(AddPrivate(s, Prec<T>::kChunk, 2 * sizeof(T), 0));
    chunk[0] = T(0);
    chunk[1] = T(0.5);
    T r;
    ASSERT_EQ(Prec<T>::Gamma(s, 1, &r, T(3), T(1), T(2)), 0);
    const T d = T(3) - Prec<T>::Third(), c = T(1) / std::sqrt(T(9) * T(3) - T(3));
    const T w = c * T(0.5) + T(1);
    EXPECT_EQ(r, d * (w * w * w) * T(2) + T(1));
    EXPECT_EQ(chunk[0], T(-1));
    ExpectInStepAndDelete(s, t);
    // -1.0 is empty: the same as a stream without the chunk.
    s = NewSeeded(QES_BRNG_MT19937, 4);
    t = CopyOf(s);
    AddPrivate(s, Prec<T>::kChunk, 2 * sizeof(T), 0);
    T* empty = static_cast<T*>(__qesSearchChunk(s, Prec<T>::kChunk));
    empty[0] = empty[1] = T(-1);
    T x[3], y[3];
    ASSERT_EQ(Prec<T>::Gamma(s, 3, x, T(3), T(0), T(1)), 0);
    ASSERT_EQ(Prec<T>::Gamma(t, 3, y, T(3), T(0), T(1)), 0);
    for (int i = 0; i < 3; ++i)
        EXPECT_EQ(x[i], y[i]);
    ExpectInStepAndDelete(s, t);
}

TEST(RngGamma, ChunkTagsAndTheirEmptyMark) {
    ExpectChunkMarks<double>();
    ExpectChunkMarks<float>();
    // The double and single forms keep separate chunks; the ways below 1 keep none.
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    double d[3];
    float f[3];
    ASSERT_EQ(_qesdRngGamma(0, s, 3, d, 0.5, 0, 1), 0);
    EXPECT_EQ(__qesGetNumChunks(s), 0);
    ASSERT_EQ(_qesdRngGamma(0, s, 3, d, 2.5, 0, 1), 0);
    ASSERT_EQ(_qessRngGamma(0, s, 3, f, 2.5f, 0, 1), 0);
    EXPECT_NE(__qesSearchChunk(s, 7), nullptr);
    EXPECT_NE(__qesSearchChunk(s, 8), nullptr);
    __qesDeleteStream(&s);
}

// A generator that records its requests and serves them from an MT19937 stream (a
// fixed pattern could reject forever).
std::vector<int32_t> requests;
void* inner = nullptr;
int32_t RecordInit(int32_t, void*, int32_t, const void*) {
    return 0;
}
int32_t RecordS(void*, int32_t n, float* r, float a, float b) {
    requests.push_back(n);
    return _qessRngUniform(0, inner, n, r, a, b);
}
int32_t RecordD(void*, int32_t n, double* r, double a, double b) {
    requests.push_back(n);
    return _qesdRngUniform(0, inner, n, r, a, b);
}
int32_t RecordI(void*, int32_t, void*) {
    return 0;
}

TEST(RngGamma, UniformsARoundAsks) {
    static const BrngRecord record = {24, 1, 1, 4, 32, RecordInit, RecordS, RecordD, RecordI};
    static const int32_t id = __qesRegisterBrng(&record);
    ASSERT_GT(id, 0);
    inner = NewSeeded(QES_BRNG_MT19937, 77);
    std::vector<double> r(5000);
    struct Case {
        double alpha;
        int32_t n;
        int32_t first; // the first request
    } cases[] = {{5, 5, 12},   {5, 10, 20},       {5, 3000, 1024}, {1.0001, 1, 4},
                 {0.7, 5, 10}, {0.3, 3000, 1024}, {1, 3000, 3000}};
    for (const Case& c : cases) {
        void* s = NewSeeded(id, 1);
        requests.clear();
        ASSERT_EQ(_qesdRngGamma(0, s, c.n, r.data(), c.alpha, 0, 1), 0);
        ASSERT_FALSE(requests.empty());
        EXPECT_EQ(requests[0], c.first) << c.alpha << " " << c.n;
        for (int32_t q : requests)
            EXPECT_TRUE(c.alpha == 1 || (q <= 1024 && (c.alpha < 1 || q % 4 == 0))) << q;
        __qesDeleteStream(&s);
    }
    // ChiSquare's product blocks: v >> 1 uniforms a variate, min(4096 / h, 1024) variates.
    struct Chi {
        int32_t v, n;
        std::vector<int32_t> expected;
    } chis[] = {
        {2, 2500, {1024, 1024, 452}}, {16, 1100, {4096, 4096, 608}}, {10, 900, {4095, 405}}};
    for (const Chi& c : chis) {
        void* s = NewSeeded(id, 1);
        requests.clear();
        ASSERT_EQ(_qesdRngChiSquare(0, s, c.n, r.data(), c.v), 0);
        EXPECT_EQ(requests, c.expected) << c.v;
        __qesDeleteStream(&s);
    }
    __qesDeleteStream(&inner);
}

// Uniforms of exactly 0 (every seventh word of the stepping generator) meet the
// sentinel: every way gives finite values at or above a.
template <typename T>
void ExpectZeroUniformsFinite() {
    for (double alpha : kAlphas) {
        void* s = NewStepStream(1u << 30);
        std::vector<T> r(300);
        ASSERT_EQ(Prec<T>::Gamma(s, 300, r.data(), T(alpha), T(1), T(1)), 0);
        for (T x : r)
            ASSERT_TRUE(std::isfinite(x) && x >= T(1)) << alpha << " " << x;
        __qesDeleteStream(&s);
    }
    for (int32_t v : {1, 2, 7, 16, 17}) {
        void* s = NewStepStream(1u << 30);
        std::vector<T> r(300);
        ASSERT_EQ(Prec<T>::Chi(s, 300, r.data(), v), 0);
        for (T x : r)
            ASSERT_TRUE(std::isfinite(x) && x >= T(0)) << v << " " << x;
        __qesDeleteStream(&s);
    }
}

TEST(RngGamma, ZeroUniformsGiveFiniteValues) {
    ExpectZeroUniformsFinite<double>();
    ExpectZeroUniformsFinite<float>();
}

// Shapes at the ends: tiny shapes put values near and below the smallest normal (never
// negative or NaN), huge ones near alpha; the mean within 6 standard errors.
template <typename T>
void ExpectExtremeShapes() {
    for (double alpha : {1e-3, 0.05, 2e3, 1e7}) {
        void* s = NewSeeded(QES_BRNG_MT19937, 9);
        const int32_t n = 20000;
        std::vector<T> r(n);
        ASSERT_EQ(Prec<T>::Gamma(s, n, r.data(), T(alpha), T(0), T(1)), 0);
        double sum = 0;
        for (T x : r) {
            ASSERT_TRUE(std::isfinite(x) && x >= T(0)) << alpha;
            sum += x;
        }
        EXPECT_NEAR(sum / n, alpha, 6 * std::sqrt(alpha / n) + alpha * 1e-6) << alpha;
        __qesDeleteStream(&s);
    }
}

TEST(RngGamma, ExtremeShapes) {
    ExpectExtremeShapes<double>();
    ExpectExtremeShapes<float>();
}

// A failing generator: its status comes back, the caller's settings too. A chunk that
// cannot be made: -4 with nothing drawn.
template <typename T>
void ExpectFailures() {
    for (double shape : {0.3, 0.8, 1.0, 4.0})
        for (uint32_t limit : {0u, 700u}) {
            // Rounded before the settings are made: the rounding raises the inexact flag.
            const T alpha = T(shape);
            CallerSettings settings;
            settings.Set();
            void* s = NewStepStream(limit);
            std::vector<T> r(2000);
            EXPECT_EQ(Prec<T>::Gamma(s, 2000, r.data(), alpha, T(0), T(1)),
                      QES_RNG_STATUS_RDRAND_FAILED);
            settings.Expect("Gamma");
            __qesDeleteStream(&s);
        }
    for (int32_t v : {1, 3, 4, 20}) {
        CallerSettings settings;
        settings.Set();
        void* s = NewStepStream(500);
        std::vector<T> r(2000);
        EXPECT_EQ(Prec<T>::Chi(s, 2000, r.data(), v), QES_RNG_STATUS_RDRAND_FAILED) << v;
        settings.Expect("ChiSquare");
        __qesDeleteStream(&s);
    }
    CallerSettings settings;
    settings.Set();
    void* s = NewSeeded(QES_BRNG_MT19937, 2);
    void* t = CopyOf(s);
    T r[4];
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Prec<T>::Gamma(s, 4, r, T(2), T(0), T(1)), QES_ERROR_MEM_FAILURE);
    brenn_serv_fail_allocation(0);
    settings.Expect("chunk");
    EXPECT_EQ(__qesGetNumChunks(s), 0);
    ExpectInStepAndDelete(s, t);
}

TEST(RngGamma, FailuresReturnWithTheFrameUndone) {
    ExpectFailures<double>();
    ExpectFailures<float>();
}

} // namespace
