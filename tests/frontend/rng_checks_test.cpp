// Random-number entries: ids outside the registry and families not built are told
// apart, bad arguments are refused before any draw, and a stream is left with the
// caller exactly when the status is not an error.
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <gtest/gtest.h>
#include <vector>

#include "brenn.h"

namespace {

TEST(FrontendRngChecks, GeneratorIdsOutsideTheRegistryAreRefused) {
    for (int id : {-1, -0x100000, 0x7FFFFFFF, QES_BRNG_MT2203 + 6024, QES_BRNG_MT19937 + 1,
                   (__qesGetNumRegBrngs() + 1) << 20}) {
        brenn_stream* s = reinterpret_cast<brenn_stream*>(0x1);
        EXPECT_EQ(brenn_rng_new(&s, id, 1), QES_RNG_STATUS_BAD_BRNG) << std::hex << id;
        EXPECT_EQ(s, nullptr);
    }
}

// Every registered family is either made or said not to be built; the set follows
// the registry, so families built later are taken as they come.
TEST(FrontendRngChecks, EveryRegisteredFamilyIsMadeOrNotAvailable) {
    int made = 0;
    for (int family = 0; family < __qesGetNumRegBrngs(); ++family) {
        int id = (family + 1) << 20;
        if (id == QES_BRNG_IABSTRACT || id == QES_BRNG_DABSTRACT || id == QES_BRNG_SABSTRACT)
            continue;
        int check = brenn_rng_check_brng(id);
        brenn_stream* s = nullptr;
        int status = brenn_rng_new(&s, id, 5);
        if (check == BRENN_ERR_NOT_AVAILABLE) {
            EXPECT_EQ(status, BRENN_ERR_NOT_AVAILABLE) << std::hex << id;
            EXPECT_EQ(s, nullptr);
            continue;
        }
        EXPECT_EQ(check, BRENN_OK);
        if (status < 0) {
            EXPECT_EQ(s, nullptr) << std::hex << id; // refused by the generator itself
            continue;
        }
        ++made;
        double u[4];
        EXPECT_GE(brenn_rng_uniform_f64(s, 0, 4, u, 0.0, 1.0), 0) << std::hex << id;
        EXPECT_EQ(brenn_rng_delete(&s), BRENN_OK);
        EXPECT_EQ(s, nullptr);
    }
    EXPECT_GE(made, 1);
}

TEST(FrontendRngChecks, DrawArgumentsAreCheckedBeforeAnyDraw) {
    brenn_stream* s = nullptr;
    ASSERT_EQ(brenn_rng_new(&s, QES_BRNG_MCG31M1, 7), BRENN_OK);
    brenn_stream* copy = nullptr;
    ASSERT_EQ(brenn_rng_copy(&copy, s), BRENN_OK);
    int32_t r[4] = {-7, -7, -7, -7};
    EXPECT_EQ(brenn_rng_bernoulli_i32(s, 4, r, 1.5), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_rng_bernoulli_i32(s, 4, r, std::nan("")), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_rng_geometric_i32(s, 4, r, 0.0), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_rng_geometric_i32(s, -1, r, 0.5), BRENN_ERR_BAD_SIZE);
    EXPECT_EQ(brenn_rng_uniform_i32(s, 0, 4, nullptr, 0, 6), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_rng_uniform_i32(nullptr, 0, 4, r, 0, 6), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_rng_leapfrog(s, 3, 3), BRENN_ERR_BAD_ARGUMENT);
    // Empty, reversed and NaN ranges of the uniforms.
    EXPECT_EQ(brenn_rng_uniform_i32(s, 0, 4, r, 6, 6), BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(brenn_rng_uniform_i32(s, 0, 4, r, 6, -6), BRENN_ERR_BAD_ARGUMENT);
    double d[4] = {-7, -7, -7, -7};
    float f[4] = {-7, -7, -7, -7};
    for (double b : {0.5, 0.25, std::nan("")}) {
        EXPECT_EQ(brenn_rng_uniform_f64(s, 0, 4, d, 0.5, b), BRENN_ERR_BAD_ARGUMENT) << b;
        const auto fb = static_cast<float>(b);
        EXPECT_EQ(brenn_rng_uniform_f32(s, 0, 4, f, 0.5f, fb), BRENN_ERR_BAD_ARGUMENT) << b;
    }
    EXPECT_EQ(brenn_rng_uniform_f64(s, 0, 4, d, std::nan(""), 1.0), BRENN_ERR_BAD_ARGUMENT);
    for (int k = 0; k < 4; ++k) {
        EXPECT_EQ(d[k], -7.0);
        EXPECT_EQ(f[k], -7.0f);
    }
    for (int v : r)
        EXPECT_EQ(v, -7);
    // Nothing was drawn: the stream and its copy still agree.
    double a, b;
    brenn_rng_uniform_f64(s, 0, 1, &a, 0.0, 1.0);
    brenn_rng_uniform_f64(copy, 0, 1, &b, 0.0, 1.0);
    EXPECT_EQ(a, b);
    brenn_rng_delete(&copy);
    brenn_rng_delete(&s);
    EXPECT_EQ(brenn_rng_delete(nullptr), BRENN_ERR_NULL_POINTER);
}

TEST(FrontendRngChecks, ImagesShorterThanTheyClaimAreRefused) {
    brenn_stream* s = nullptr;
    ASSERT_EQ(brenn_rng_new(&s, QES_BRNG_MT19937, 11), BRENN_OK);
    int64_t size = 0;
    ASSERT_EQ(brenn_rng_image_size(s, &size), BRENN_OK);
    std::vector<unsigned char> image(size);
    EXPECT_EQ(brenn_rng_save_memory(s, image.data(), size - 1), BRENN_ERR_BAD_SIZE);
    ASSERT_EQ(brenn_rng_save_memory(s, image.data(), size), BRENN_OK);
    brenn_stream* loaded = nullptr;
    for (int64_t cut : {int64_t{0}, int64_t{10}, size / 2, size - 1})
        EXPECT_EQ(brenn_rng_load_memory(&loaded, image.data(), cut),
                  QES_RNG_STATUS_BAD_IMAGE_FORMAT)
            << cut;
    EXPECT_EQ(loaded, nullptr);
    ASSERT_EQ(brenn_rng_load_memory(&loaded, image.data(), size), BRENN_OK);
    uint32_t x, y;
    brenn_rng_bits_u32(s, 1, &x);
    brenn_rng_bits_u32(loaded, 1, &y);
    EXPECT_EQ(x, y);
    brenn_rng_delete(&loaded);
    EXPECT_EQ(brenn_rng_load_file(&loaded, "/nonexistent/brenn/stream"), QES_RNG_STATUS_FILE_OPEN);
    EXPECT_EQ(loaded, nullptr);
    brenn_rng_delete(&s);
}

} // namespace
