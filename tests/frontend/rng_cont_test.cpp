// Continuous-distribution entries: every refusal (count, pointers, method, each
// parameter's range) comes before any draw, writes nothing and leaves the stream
// where it was; an accepted call gives the service's own variates bit for bit, in
// both precisions and through the C++ descriptions, at the ends of the ranges too.
#include <gtest/gtest.h>

#include <climits>
#include <cstring>
#include <functional>
#include <limits>
#include <span>
#include <string>
#include <vector>

#include "brenn.hpp"

namespace {

using brenn::rng::detail::by_type;

// One entry as the tests drive it: the front-end call, the kernel entry it must
// equal (both over a parameter array), its method count, and for each parameter
// whether it is a scale (finite and above 0) or a location (finite).
template <class T>
struct Entry {
    std::string name;
    int methods;
    std::vector<bool> scale;
    std::function<int(brenn_stream*, int, int, T*, const T*)> front;
    std::function<int(void*, int, int, T*, const T*)> kernel;
};

// clang-format off
#define TWO(name, Kernel, methods, s0, s1)                                                   \
    Entry<T>{#name, methods, {s0, s1},                                                       \
        [](brenn_stream* s, int m, int n, T* r, const T* p) {                                \
            return by_type<T>(brenn_rng_##name##_f64, brenn_rng_##name##_f32)(s, m, n, r, p[0], p[1]); }, \
        [](void* s, int m, int n, T* r, const T* p) {                                        \
            return by_type<T>(_qesdRng##Kernel, _qessRng##Kernel)(m, s, n, r, p[0], p[1]); }}
// clang-format on

template <class T>
std::vector<Entry<T>> Entries() {
    std::vector<Entry<T>> e = {
        TWO(gaussian, Gaussian, 3, false, true), TWO(exponential, Exponential, 1, false, true),
        TWO(gumbel, Gumbel, 1, false, true),     TWO(laplace, Laplace, 1, false, true),
        TWO(rayleigh, Rayleigh, 1, false, true), TWO(cauchy, Cauchy, 1, false, true),
    };
    e.push_back({"lognormal",
                 2,
                 {false, true, false, true},
                 [](brenn_stream* s, int m, int n, T* r, const T* p) {
                     return by_type<T>(brenn_rng_lognormal_f64,
                                       brenn_rng_lognormal_f32)(s, m, n, r, p[0], p[1], p[2], p[3]);
                 },
                 [](void* s, int m, int n, T* r, const T* p) {
                     return by_type<T>(_qesdRngLognormal, _qessRngLognormal)(m, s, n, r, p[0], p[1],
                                                                             p[2], p[3]);
                 }});
    e.push_back({"weibull",
                 1,
                 {true, false, true},
                 [](brenn_stream* s, int m, int n, T* r, const T* p) {
                     return by_type<T>(brenn_rng_weibull_f64,
                                       brenn_rng_weibull_f32)(s, m, n, r, p[0], p[1], p[2]);
                 },
                 [](void* s, int m, int n, T* r, const T* p) {
                     return by_type<T>(_qesdRngWeibull, _qessRngWeibull)(m, s, n, r, p[0], p[1],
                                                                         p[2]);
                 }});
    return e;
}
#undef TWO

// A valid parameter set: locations 0.5, scales 2 (Weibull's shape 1.5).
template <class T>
std::vector<T> Good(const Entry<T>& e) {
    std::vector<T> p;
    for (bool s : e.scale)
        p.push_back(s ? T(2) : T(0.5));
    if (e.name == "weibull") p[0] = T(1.5);
    return p;
}

// The next words of a stream, to tell whether it moved.
std::vector<uint32_t> Next(brenn_stream* s) {
    std::vector<uint32_t> w(8);
    EXPECT_EQ(brenn_rng_uniform_i32(s, 0, 8, reinterpret_cast<int32_t*>(w.data()), 0, INT_MAX),
              BRENN_OK);
    return w;
}

struct Streams {
    brenn_stream* s = nullptr;
    brenn_stream* copy = nullptr;
    explicit Streams(int brng, uint32_t seed = 2026) {
        EXPECT_EQ(brenn_rng_new(&s, brng, seed), BRENN_OK);
        EXPECT_EQ(brenn_rng_copy(&copy, s), BRENN_OK);
    }
    ~Streams() {
        brenn_rng_delete(&s);
        brenn_rng_delete(&copy);
    }
};

template <class T>
class FrontendRngContinuous : public ::testing::Test {};
using Precisions = ::testing::Types<float, double>;
TYPED_TEST_SUITE(FrontendRngContinuous, Precisions);

TYPED_TEST(FrontendRngContinuous, RefusalsComeFirstWriteNothingAndLeaveTheStream) {
    using T = TypeParam;
    using L = std::numeric_limits<T>;
    const T kSentinel = T(-12345);
    for (const Entry<T>& e : Entries<T>()) {
        SCOPED_TRACE(e.name);
        Streams st(QES_BRNG_MCG59);
        const std::vector<T> good = Good(e);
        std::vector<T> r(4, kSentinel);
        auto expect = [&](int status, brenn_stream* s, int method, int n, T* out,
                          const std::vector<T>& p) {
            EXPECT_EQ(e.front(s, method, n, out, p.data()), status) << "method " << method;
            for (T v : r)
                ASSERT_EQ(v, kSentinel);
        };
        // The order: count, pointers, method, parameters.
        expect(BRENN_ERR_BAD_SIZE, nullptr, -1, -1, nullptr, good);
        expect(BRENN_ERR_BAD_SIZE, st.s, 0, INT_MIN, r.data(), good);
        expect(BRENN_ERR_NULL_POINTER, nullptr, -1, 4, r.data(), good);
        expect(BRENN_ERR_NULL_POINTER, st.s, -1, 4, nullptr, good);
        for (int m : {-1, e.methods, 7, INT_MIN, INT_MAX, QES_RNG_METHOD_UNIFORM_ACCURATE})
            expect(BRENN_ERR_BAD_METHOD, st.s, m, 4, r.data(), good);
        const T bad[] = {L::quiet_NaN(), -L::quiet_NaN(), L::signaling_NaN(), L::infinity(),
                         -L::infinity()};
        const T notPositive[] = {T(0), -T(0), -L::denorm_min(), -L::max(), T(-1)};
        for (size_t i = 0; i < good.size(); ++i) {
            std::vector<T> p = good;
            for (T v : bad) {
                p[i] = v;
                expect(BRENN_ERR_BAD_ARGUMENT, st.s, 0, 4, r.data(), p);
            }
            if (!e.scale[i]) continue;
            for (T v : notPositive) {
                p[i] = v;
                expect(BRENN_ERR_BAD_ARGUMENT, st.s, 0, 4, r.data(), p);
            }
        }
        // An empty call is accepted with no array.
        EXPECT_EQ(e.front(st.s, 0, 0, nullptr, good.data()), BRENN_OK);
        EXPECT_EQ(Next(st.s), Next(st.copy));
    }
}

// Accepted calls equal the kernel entry on a copy of the stream, variates and the
// stream's position both, for every method, lengths across the block sizes, both
// generators of the benchmarks, and parameters at the ends of their ranges (results
// that overflow or underflow included).
TYPED_TEST(FrontendRngContinuous, ResultsAreTheKernelsBitForBit) {
    using T = TypeParam;
    using L = std::numeric_limits<T>;
    for (const Entry<T>& e : Entries<T>()) {
        const std::vector<T> good = Good(e);
        std::vector<std::vector<T>> sets = {good};
        for (size_t i = 0; i < good.size(); ++i)
            for (T v : e.scale[i] ? std::vector<T>{L::denorm_min(), L::min(), L::max()}
                                  : std::vector<T>{-L::max(), L::max(), -L::denorm_min()}) {
                sets.push_back(good);
                sets.back()[i] = v;
            }
        for (int brng : {QES_BRNG_MCG59, QES_BRNG_MT19937})
            for (int method = 0; method < e.methods; ++method)
                for (int n : {1, 17, 1025, 5000})
                    for (const std::vector<T>& p : sets) {
                        SCOPED_TRACE(e.name + " method " + std::to_string(method) + " n " +
                                     std::to_string(n));
                        Streams st(brng, static_cast<uint32_t>(n));
                        std::vector<T> mine(n), theirs(n);
                        ASSERT_EQ(e.front(st.s, method, n, mine.data(), p.data()), BRENN_OK);
                        ASSERT_EQ(e.kernel(st.copy, method, n, theirs.data(), p.data()), 0);
                        ASSERT_EQ(std::memcmp(mine.data(), theirs.data(), n * sizeof(T)), 0);
                        ASSERT_EQ(Next(st.s), Next(st.copy));
                    }
    }
}

// The C++ descriptions draw through the C entries: the same variates, and the same
// refusals as status values.
TEST(FrontendRngContinuousCxx, FillDrawsThroughTheCheckedEntries) {
    namespace rng = brenn::rng;
    auto s = rng::stream::make(QES_BRNG_MT19937, 11).value;
    auto c = s.copy().value;
    std::vector<double> y(1001), z(1001);
    ASSERT_TRUE(s.fill(y, rng::gaussian{1.0, 3.0, BRENN_RNG_GAUSSIAN_ICDF}).ok());
    ASSERT_EQ(brenn_rng_gaussian_f64(c.get(), 2, 1001, z.data(), 1.0, 3.0), BRENN_OK);
    EXPECT_EQ(std::memcmp(y.data(), z.data(), sizeof(double) * y.size()), 0);

    std::vector<float> f(33), g(33);
    ASSERT_TRUE(s.fill(f, rng::weibull{1.5f, 0.0f, 2.0f}).ok());
    ASSERT_EQ(brenn_rng_weibull_f32(c.get(), 0, 33, g.data(), 1.5f, 0.0f, 2.0f), BRENN_OK);
    EXPECT_EQ(std::memcmp(f.data(), g.data(), sizeof(float) * f.size()), 0);
    ASSERT_TRUE(s.fill(f, rng::lognormal<float>{}).ok());
    ASSERT_EQ(brenn_rng_lognormal_f32(c.get(), 0, 33, g.data(), 0, 1, 0, 1), BRENN_OK);
    EXPECT_EQ(std::memcmp(f.data(), g.data(), sizeof(float) * f.size()), 0);

    EXPECT_EQ(s.fill(y, rng::cauchy{0.0, -1.0}).code, BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(s.fill(y, rng::gaussian{0.0, 1.0, 3}).code, BRENN_ERR_BAD_METHOD);
    rng::stream empty;
    EXPECT_EQ(empty.fill(y, rng::exponential{0.0, 1.0}).code, BRENN_ERR_NULL_POINTER);
}

} // namespace
