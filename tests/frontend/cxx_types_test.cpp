// The C++ interface: span sizes checked (nothing written on a mismatch), the owning
// types moved, copied and ended on every path (the sanitizer build checks for
// leaks), the stream as a standard random bit generator, errors as values unless
// the caller asks for an exception.
#include <cstdio>
#include <gtest/gtest.h>
#include <random>
#include <vector>

#include "brenn.hpp"

namespace {

static_assert(std::uniform_random_bit_generator<brenn::rng::stream>);
static_assert(!std::is_copy_constructible_v<brenn::rng::stream>);
static_assert(std::is_nothrow_move_constructible_v<brenn::rng::stream>);
static_assert(!std::is_copy_constructible_v<brenn::fit::spline>);

TEST(FrontendCxx, SpanSizesAreChecked) {
    std::vector<double> a(4, 1.0), y(3, -1.0);
    EXPECT_EQ(brenn::vm::exp(a, y).code, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(brenn::vm::add(a, a, y, brenn::accuracy::ep).code, BRENN_ERR_SIZE_MISMATCH);
    for (double v : y)
        EXPECT_EQ(v, -1.0);
    std::vector<double> out(4);
    EXPECT_TRUE(brenn::vm::exp(a, out, brenn::accuracy::la).ok());
    EXPECT_NEAR(out[3], std::exp(1.0), 1e-15);
    std::vector<std::complex<double>> z(2, {0.0, 1.0}), zy(2);
    if (brenn_zar_kernel_zMul_ttab[0] != nullptr) {
        EXPECT_TRUE(brenn::vm::mul(z, z, zy, brenn::accuracy::la).ok());
        EXPECT_EQ(zy[0], std::complex<double>(-1.0, 0.0));
    } else {
        EXPECT_EQ(brenn::vm::mul(z, z, zy).code, BRENN_ERR_NOT_AVAILABLE);
    }
    // Packing: the strided side must hold what the stride reaches, indices must lie in.
    std::vector<double> dense(3, -1.0);
    EXPECT_EQ(brenn::vm::packi(a, 2, dense).code, BRENN_ERR_SIZE_MISMATCH);
    std::vector<int> index = {0, 3, 4};
    EXPECT_EQ(brenn::vm::packv(a, index, dense).code, BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(dense[0], -1.0);
    EXPECT_EQ(brenn::vm::exp(a, out, static_cast<brenn::accuracy>(7)).code, BRENN_ERR_BAD_ACCURACY);
}

TEST(FrontendCxx, StreamsOwnTheirRecordOnEveryPath) {
    auto bad = brenn::rng::stream::make(-5, 1);
    EXPECT_EQ(bad.stat.code, QES_RNG_STATUS_BAD_BRNG);
    EXPECT_FALSE(bad.value);
    auto made = brenn::rng::stream::make(QES_BRNG_MT19937, 2024);
    ASSERT_TRUE(made.stat.ok());
    brenn::rng::stream s = std::move(made.value);
    EXPECT_FALSE(made.value);
    auto twin = s.copy();
    ASSERT_TRUE(twin.stat.ok());
    std::vector<double> a(5), b(5);
    ASSERT_TRUE(s.fill(std::span<double>(a), brenn::rng::uniform{2.0, 3.0}).ok());
    ASSERT_TRUE(twin.value.fill(std::span<double>(b), brenn::rng::uniform{2.0, 3.0}).ok());
    EXPECT_EQ(a, b);
    auto image = s.save();
    ASSERT_TRUE(image.stat.ok());
    auto loaded = brenn::rng::stream::load(image.value);
    ASSERT_TRUE(loaded.stat.ok());
    std::vector<std::byte> cut(image.value.begin(), image.value.end() - 8);
    EXPECT_EQ(brenn::rng::stream::load(cut).stat.code, QES_RNG_STATUS_BAD_IMAGE_FORMAT);
    const std::string path = testing::TempDir() + "brenn_frontend_stream.bin";
    ASSERT_TRUE(s.save(path).ok());
    auto fromFile = brenn::rng::stream::load(path);
    ASSERT_TRUE(fromFile.stat.ok());
    std::remove(path.c_str());
    const uint32_t next = s();
    EXPECT_EQ(loaded.value(), next);
    EXPECT_EQ(fromFile.value(), next);
    // Move-assigning over a live stream ends the old one.
    s = std::move(loaded.value);
    std::vector<int32_t> dice(100);
    ASSERT_TRUE(s.fill(std::span<int32_t>(dice), brenn::rng::uniform{1, 7}).ok());
    for (int d : dice)
        EXPECT_TRUE(d >= 1 && d < 7);
    ASSERT_TRUE(s.fill(std::span<int32_t>(dice), brenn::rng::bernoulli{0.25}).ok());
    ASSERT_TRUE(s.fill(std::span<int32_t>(dice), brenn::rng::geometric{0.25}).ok());
    std::vector<uint64_t> w(3);
    EXPECT_TRUE(s.fill(std::span<uint64_t>(w)).ok());
    EXPECT_EQ(brenn::rng::stream{}.fill(std::span<double>(a)).code, BRENN_ERR_NULL_POINTER);
}

// The standard normal distribution over the stream: its moments, and the same
// sequence from a stream and its copy. MCG31M1 has 31 bits a word and is served
// through two 16-bit halves.
TEST(FrontendCxx, StandardDistributionsDrawFromTheStream) {
    for (int brng : {QES_BRNG_MT19937, QES_BRNG_MCG31M1}) {
        auto s = brenn::rng::stream::make(brng, 99).or_throw();
        auto twin = s.copy().or_throw();
        std::normal_distribution<double> normal(1.5, 2.0), other(1.5, 2.0);
        double sum = 0, sum2 = 0;
        const int n = 200'000;
        for (int i = 0; i < n; ++i) {
            double v = normal(s);
            sum += v;
            sum2 += v * v;
        }
        double mean = sum / n, var = sum2 / n - mean * mean;
        EXPECT_NEAR(mean, 1.5, 0.03) << brng;
        EXPECT_NEAR(var, 4.0, 0.06) << brng;
        // The copy, made before the draws, gives the same variates again.
        std::normal_distribution<double> first(1.5, 2.0);
        auto fresh = brenn::rng::stream::make(brng, 99).or_throw();
        for (int i = 0; i < 5; ++i)
            EXPECT_EQ(other(twin), first(fresh));
    }
}

TEST(FrontendCxx, StatisticsAndSplinesReturnValues) {
    std::vector<double> x = {1, 2, 3, 4, 5, 6};
    brenn::ss::matrix_view<double> m{x, 3, 2, brenn::ss::layout::variables_in_rows};
    auto e = brenn::ss::compute(m, BRENN_SS_MEAN | BRENN_SS_MAX);
    ASSERT_TRUE(e.stat.ok());
    EXPECT_EQ(e.value.mean, (std::vector<double>{1.5, 3.5, 5.5}));
    EXPECT_EQ(e.value.maximum[2], 6.0);
    EXPECT_TRUE(e.value.covariance.empty());
    m.p = 4;
    EXPECT_EQ(brenn::ss::compute(m, BRENN_SS_MEAN).stat.code, BRENN_ERR_SIZE_MISMATCH);

    std::vector<double> knots = {0, 1, 2, 4}, values = {1, 3, 5, 9};
    auto s = brenn::fit::spline::make(brenn::fit::kind::linear, knots, values);
    ASSERT_TRUE(s.stat.ok());
    auto v = s.value.eval(std::vector<double>{3.0}, 2);
    ASSERT_TRUE(v.stat.ok());
    EXPECT_EQ(v.value, (std::vector<double>{7.0, 2.0}));
    auto area =
        s.value.integrate(std::vector<double>{0.0, 4.0}, std::vector<double>{4.0, 5.0}, false);
    ASSERT_TRUE(area.stat.ok());
    EXPECT_EQ(area.value[0], 20.0);
    EXPECT_TRUE(std::isnan(area.value[1]));
    brenn::fit::spline moved = std::move(s.value);
    EXPECT_FALSE(s.value);
    EXPECT_TRUE(moved);
    std::vector<double> shortValues = {1, 2};
    auto bad = brenn::fit::spline::make(brenn::fit::kind::linear, knots, shortValues);
    EXPECT_EQ(bad.stat.code, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_FALSE(bad.value);
    std::vector<double> out(3);
    EXPECT_EQ(moved.eval(std::vector<double>{1.0}, 2, out).code, BRENN_ERR_SIZE_MISMATCH);
    EXPECT_EQ(moved.integrate(std::vector<double>{1.0}, std::vector<double>{2.0}, out).code,
              BRENN_ERR_SIZE_MISMATCH);
}

TEST(FrontendCxx, ExceptionsOnlyWhenAsked) {
    auto r = brenn::rng::stream::make(0x7FFFFFFF, 1);
    EXPECT_EQ(r.stat.code, QES_RNG_STATUS_BAD_BRNG);
    EXPECT_THROW(r.or_throw(), brenn::error);
    try {
        brenn::status{BRENN_ERR_NULL_POINTER}.or_throw();
    } catch (const brenn::error& e) {
        EXPECT_EQ(e.code(), BRENN_ERR_NULL_POINTER);
    }
    EXPECT_NO_THROW(brenn::status{BRENN_STATUS_OVERFLOW}.or_throw());
}

} // namespace
