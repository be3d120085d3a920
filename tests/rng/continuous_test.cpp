// Exponential, Gumbel, Laplace, Rayleigh, Weibull, Lognormal and Cauchy, both
// precisions: each against its plain transcription over the same uniforms at many
// lengths and alignments, the uniforms taken, calls cut anywhere, the sentinels for
// a uniform of exactly 0, and the caller's settings coming back.
#include <cmath>
#include <cstring>
#include <functional>
#include <random>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "brenn_vecmath.h"
#include "frame/fpenv.h"
#include "tests/rng/continuous_ref.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

template <typename T>
T Max(T x, T m) {
    return x > m ? x : m;
}

// One member in one precision: the call and its transcription from a copy of the
// stream, with fixed parameters.
template <typename T>
struct Member {
    const char* name;
    std::function<int32_t(void*, int32_t, T*)> call;
    std::function<std::vector<T>(void*, int32_t)> expected;
    uint32_t wordsEach; // uniforms a variate
};

template <typename T>
std::vector<T> Map(void* s, int32_t n, T a, T b, std::function<T(T)> f) {
    std::vector<T> u = Ref<T>::Uniforms(s, n, a, b);
    for (T& x : u)
        x = f(x);
    return u;
}

#define BRENN_MEMBERS(t, T)                                                                        \
    std::vector<Member<T>> Members_##t() {                                                         \
        using R = Ref<T>;                                                                          \
        const T a = T(0.75), beta = T(2.5), alpha = T(1.75);                                       \
        return {                                                                                   \
            {"Exponential",                                                                        \
             [=](void* s, int32_t n, T* r) {                                                       \
                 return _qes##t##RngExponential(0, s, n, r, a, beta);                              \
             },                                                                                    \
             [=](void* s, int32_t n) {                                                             \
                 return Map<T>(s, n, 0, 1, [=](T u) { return Max(R::Ln(u) * -beta + a, a); });     \
             },                                                                                    \
             1},                                                                                   \
            {"Gumbel",                                                                             \
             [=](void* s, int32_t n, T* r) { return _qes##t##RngGumbel(0, s, n, r, a, beta); },    \
             [=](void* s, int32_t n) {                                                             \
                 return Map<T>(s, n, 0, 1, [=](T u) {                                              \
                     return R::Ln(Max(R::Ln(u) * T(-1) + T(0), T(0))) * beta + a;                  \
                 });                                                                               \
             },                                                                                    \
             1},                                                                                   \
            {"Rayleigh",                                                                           \
             [=](void* s, int32_t n, T* r) { return _qes##t##RngRayleigh(0, s, n, r, a, beta); },  \
             [=](void* s, int32_t n) {                                                             \
                 return Map<T>(s, n, 0, 1,                                                         \
                               [=](T u) { return Max(R::Sqrt(-R::Ln(u)) * beta + a, a); });        \
             },                                                                                    \
             1},                                                                                   \
            {"Weibull",                                                                            \
             [=](void* s, int32_t n, T* r) {                                                       \
                 return _qes##t##RngWeibull(0, s, n, r, alpha, a, beta);                           \
             },                                                                                    \
             [=](void* s, int32_t n) {                                                             \
                 return Map<T>(s, n, 0, 1, [=](T u) {                                              \
                     return Max(R::Powx(-R::Ln(u), T(1) / alpha) * beta + a, a);                   \
                 });                                                                               \
             },                                                                                    \
             1},                                                                                   \
            {"Cauchy",                                                                             \
             [=](void* s, int32_t n, T* r) { return _qes##t##RngCauchy(0, s, n, r, a, beta); },    \
             [=](void* s, int32_t n) {                                                             \
                 return Map<T>(s, n, -R::kHalfPi, R::kHalfPi,                                      \
                               [=](T v) { return R::Tan(v) * beta + a; });                         \
             },                                                                                    \
             1},                                                                                   \
            {"Laplace",                                                                            \
             [=](void* s, int32_t n, T* r) { return _qes##t##RngLaplace(0, s, n, r, a, beta); },   \
             [=](void* s, int32_t n) {                                                             \
                 std::vector<T> u = R::Uniforms(s, 2 * n, 0, 1), z(n);                             \
                 for (int32_t i = 0; i < n; ++i)                                                   \
                     z[i] = (u[2 * i + 1] <= T(0.5) ? -beta : beta) * R::Ln(u[2 * i]) + a;         \
                 return z;                                                                         \
             },                                                                                    \
             2},                                                                                   \
            {"Lognormal",                                                                          \
             [=](void* s, int32_t n, T* r) {                                                       \
                 return _qes##t##RngLognormal(0, s, n, r, T(0.5), T(0.25), a, beta);               \
             },                                                                                    \
             [=](void* s, int32_t n) {                                                             \
                 std::vector<T> z = UnitPairs<T>(s, n);                                            \
                 for (T & x : z)                                                                   \
                     x = Max(R::Exp(x * T(0.25) + T(0.5)) * beta + a, a);                          \
                 return z;                                                                         \
             },                                                                                    \
             1},                                                                                   \
        };                                                                                         \
    }

BRENN_MEMBERS(s, float)
BRENN_MEMBERS(d, double)
#undef BRENN_MEMBERS

template <typename T>
void ExpectTranscriptions(const std::vector<Member<T>>& members) {
    std::vector<int32_t> lengths;
    for (int32_t n = 0; n <= 17; ++n)
        lengths.push_back(n);
    for (int32_t n : {1023, 1024, 1025, 5000})
        lengths.push_back(n);
    for (const Member<T>& m : members) {
        for (int32_t n : lengths) {
            for (size_t offset : {size_t{0}, size_t{1}, size_t{3}}) {
                void* s = NewSeeded(QES_BRNG_MT19937, 29 + n);
                void* t = CopyOf(s);
                std::vector<T> buffer(n + 4, T(-99));
                T* r = buffer.data() + offset;
                ASSERT_GE(m.call(s, n, r), 0) << m.name;
                std::vector<T> z = m.expected(t, n);
                for (int32_t i = 0; i < n; ++i)
                    ASSERT_EQ(r[i], z[i]) << m.name << " n " << n << " i " << i;
                EXPECT_EQ(r[n], T(-99)) << m.name;
                ExpectInStepAndDelete(s, t);
            }
        }
    }
}

TEST(RngContinuous, EachMemberIsItsTranscription) {
    ExpectTranscriptions(Members_d());
    ExpectTranscriptions(Members_s());
}

template <typename T>
void ExpectTakenAndCuts(const std::vector<Member<T>>& members) {
    std::mt19937 cuts(5);
    for (const Member<T>& m : members) {
        std::vector<T> r(2100);
        void* s = NewStepStream(1u << 30);
        ASSERT_EQ(m.call(s, 2049, r.data()), 0);
        // Lognormal's pair method takes a pair for the odd variate.
        EXPECT_EQ(ToyState(s)[0], m.wordsEach * 2049 + (std::string(m.name) == "Lognormal"))
            << m.name;
        __qesDeleteStream(&s);
        for (int trial = 0; trial < 6; ++trial) {
            int32_t n = trial == 0 ? 8 : static_cast<int32_t>(cuts() % 2100);
            void* x = NewSeeded(QES_BRNG_MCG59, 40 + trial);
            void* y = CopyOf(x);
            std::vector<T> whole(n), pieces(n);
            ASSERT_GE(m.call(x, n, whole.data()), 0);
            for (int32_t done = 0; done < n;) {
                int32_t k = trial == 0 ? (done == 0 ? 3 : 5)
                                       : static_cast<int32_t>(cuts() % (n - done + 1));
                ASSERT_GE(m.call(y, k, pieces.data() + done), 0);
                done += k;
            }
            for (int32_t i = 0; i < n; ++i)
                ASSERT_EQ(whole[i], pieces[i]) << m.name << " n " << n << " i " << i;
            __qesDeleteStream(&x);
            __qesDeleteStream(&y);
        }
    }
}

TEST(RngContinuous, UniformsTakenAndCallsCutAnywhere) {
    ExpectTakenAndCuts(Members_d());
    ExpectTakenAndCuts(Members_s());
}

// A generator that records the counts of its double requests: uniforms k / 8.
std::vector<int32_t> requests;

int32_t RecordInit(int32_t, void*, int32_t, const void*) {
    return 0;
}
int32_t RecordD(void*, int32_t n, double* r, double a, double b) {
    requests.push_back(n);
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * ((i % 8) / 8.0);
    return 0;
}
int32_t RecordS(void*, int32_t n, float* r, float a, float b) {
    requests.push_back(n);
    for (int32_t i = 0; i < n; ++i)
        r[i] = a + (b - a) * ((i % 8) / 8.0f);
    return 0;
}
int32_t RecordI(void*, int32_t n, void* r) {
    std::memset(r, 0, 4 * static_cast<size_t>(n > 0 ? n : 0));
    return 0;
}

TEST(RngContinuous, LaplaceFetchesTheEmptyRest) {
    static const BrngRecord record = {24, 1, 1, 4, 32, RecordInit, RecordS, RecordD, RecordI};
    int32_t id = __qesRegisterBrng(&record);
    ASSERT_GT(id, 0);
    void* s = NewSeeded(id, 1);
    std::vector<double> r(2048);
    for (int32_t n : {0, 1024, 2048, 1025}) {
        requests.clear();
        ASSERT_EQ(_qesdRngLaplace(0, s, n, r.data(), 0.0, 1.0), 0);
        std::vector<int32_t> expected(n / 1024, 2048);
        expected.push_back(2 * (n % 1024)); // also when it is 0
        EXPECT_EQ(requests, expected) << n;
    }
    __qesDeleteStream(&s);
}

TEST(RngContinuous, ZeroUniformsMeetTheSentinels) {
    // The stepping generator's first uniform is exactly 0.
    const double logMin = -744.44007192138122;
    const float logMinS = -103.2789306640625f;
    double d[2];
    float f[2];
    void* s = NewStepStream(100);
    ASSERT_EQ(_qesdRngExponential(0, s, 1, d, 1.0, 2.0), 0);
    EXPECT_EQ(d[0], 1.0 - logMin * 2.0);
    __qesDeleteStream(&s);
    s = NewStepStream(100);
    ASSERT_EQ(_qessRngExponential(0, s, 1, f, 1.0f, 2.0f), 0);
    EXPECT_EQ(f[0], 1.0f - logMinS * 2.0f);
    __qesDeleteStream(&s);
    s = NewStepStream(100);
    ASSERT_EQ(_qesdRngRayleigh(0, s, 1, d, 0.0, 1.0), 0);
    EXPECT_EQ(d[0], Ref<double>::Sqrt(-logMin));
    __qesDeleteStream(&s);
    s = NewStepStream(100);
    ASSERT_EQ(_qessRngWeibull(0, s, 1, f, 1.0f, 0.0f, 1.0f), 0);
    EXPECT_EQ(f[0], -logMinS);
    __qesDeleteStream(&s);
    s = NewStepStream(100);
    // The side word 1/7 is at or below one half: -beta times the logarithm.
    ASSERT_EQ(_qesdRngLaplace(0, s, 1, d, 0.0, 1.0), 0);
    EXPECT_EQ(d[0], -logMin);
    __qesDeleteStream(&s);
    // Gumbel: ln(-ln 0) through both sentinels, finite.
    s = NewStepStream(100);
    ASSERT_EQ(_qesdRngGumbel(0, s, 2, d, 0.0, 1.0), 0);
    EXPECT_TRUE(std::isfinite(d[0]));
    EXPECT_NEAR(d[0], std::log(744.44007192138122), 1e-6);
    __qesDeleteStream(&s);
}

TEST(RngContinuous, WeibullAtAlphaOneIsTheExponential) {
    void* s = NewSeeded(QES_BRNG_MT19937, 3);
    void* t = CopyOf(s);
    std::vector<double> w(999), e(999);
    ASSERT_EQ(_qesdRngWeibull(0, s, 999, w.data(), 1.0, 0.5, 2.0), 0);
    ASSERT_EQ(_qesdRngExponential(0, t, 999, e.data(), 0.5, 2.0), 0);
    for (int i = 0; i < 999; ++i)
        ASSERT_EQ(w[i], e[i]) << i;
    __qesDeleteStream(&s);
    __qesDeleteStream(&t);
}

TEST(RngContinuous, LognormalFollowsItsGaussianMethod) {
    // Any method word but 0 is the inverse CDF: one uniform a variate, and refused
    // with the stream untouched when the library has no ErfInv row.
    for (int32_t method : {1, 2, 7}) {
        void* s = NewSeeded(QES_BRNG_MT19937, 8);
        void* t = CopyOf(s);
        std::vector<double> r(1500), g(1500);
        int32_t status = _qesdRngLognormal(method, s, 1500, r.data(), 0.5, 0.25, 1.0, 2.0);
        if (!Ref<double>::HasErfInv()) {
            EXPECT_EQ(status, QES_STATUS_BAD_METHOD);
        } else {
            ASSERT_EQ(status, 0);
            ASSERT_EQ(_qesdRngGaussian(2, t, 1500, g.data(), 0.5, 0.25), 0);
            for (int i = 0; i < 1500; ++i)
                ASSERT_EQ(r[i], Max(Ref<double>::Exp(g[i]) * 2.0 + 1.0, 1.0)) << i;
        }
        ExpectInStepAndDelete(s, t);
    }
}

int Marker(ErrorRecord*) {
    return 0;
}

TEST(RngContinuous, CallerSettingsComeBack) {
    const uint32_t callerMode = brenn_zar_kernel_GetMode();
    brenn_zar_kernel_SetMode(BRENN_MODE_LA | BRENN_MODE_ERRMODE_STDERR);
    brenn_zar_kernel_SetErrorCallBack(Marker);
    brenn::frame::LoadX87ControlWord(0x037A);
    brenn::frame::LoadCsr((0x1F80 & ~0x0200u) | 0x6000);
    const uint32_t mode = brenn_zar_kernel_GetMode();
    for (const Member<double>& m : Members_d()) {
        for (uint32_t limit : {100000u, 1500u}) {
            void* s = NewStepStream(limit);
            std::vector<double> r(3000);
            int32_t status = m.call(s, 3000, r.data());
            EXPECT_EQ(status, limit == 1500u ? QES_RNG_STATUS_RDRAND_FAILED : 0) << m.name;
            EXPECT_EQ(brenn_zar_kernel_GetMode(), mode) << m.name;
            EXPECT_EQ(brenn_zar_kernel_GetErrorCallBack(), &Marker) << m.name;
            EXPECT_EQ(brenn::frame::ReadX87ControlWord(), 0x037A) << m.name;
            // Members without a guard may raise flags as any caller arithmetic.
            EXPECT_EQ(brenn::frame::ReadCsr() & ~0x3Fu, (0x1F80 & ~0x0200u) | 0x6000u) << m.name;
            __qesDeleteStream(&s);
        }
    }
    brenn::frame::LoadX87ControlWord(0x037F);
    brenn::frame::LoadCsr(0x1F80);
    brenn_zar_kernel_SetErrorCallBack(nullptr);
    brenn_zar_kernel_SetMode(callerMode);
}

} // namespace
