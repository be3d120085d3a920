// Abstract streams through the front-end: every refusal leaves no stream, including
// the NaN bounds the service itself lets pass; a made stream serves the caller's
// buffer across its refills, and a double stream fed with another stream's uniforms
// gives that stream's Gaussians, through the front-end's own distribution entry.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

#include "brenn.h"

namespace {

brenn_stream* const kJunk = reinterpret_cast<brenn_stream*>(0x10);

int32_t NoRefill(void*, int32_t*, uint32_t*, int32_t*, int32_t*, int32_t*) {
    return 0;
}
int32_t NoRefillD(void*, int32_t*, double*, int32_t*, int32_t*, int32_t*) {
    return 0;
}
int32_t NoRefillS(void*, int32_t*, float*, int32_t*, int32_t*, int32_t*) {
    return 0;
}

TEST(FrontendRngAbstract, RefusalsLeaveNoStream) {
    uint32_t words[4];
    double d[4];
    float f[4];
    const double nan = std::numeric_limits<double>::quiet_NaN(),
                 inf = std::numeric_limits<double>::infinity();
    brenn_stream* s = kJunk;
    EXPECT_EQ(brenn_rng_new_abstract_u32(nullptr, 4, words, NoRefill), BRENN_ERR_NULL_POINTER);
    for (int size : {0, -1, INT32_MIN}) {
        EXPECT_EQ(brenn_rng_new_abstract_u32(&s, size, words, NoRefill), BRENN_ERR_BAD_SIZE);
        EXPECT_EQ(s, nullptr);
        s = kJunk;
        EXPECT_EQ(brenn_rng_new_abstract_f64(&s, size, d, 0, 1, NoRefillD), BRENN_ERR_BAD_SIZE);
        EXPECT_EQ(s, nullptr);
    }
    s = kJunk;
    EXPECT_EQ(brenn_rng_new_abstract_u32(&s, 4, nullptr, NoRefill), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(s, nullptr);
    EXPECT_EQ(brenn_rng_new_abstract_u32(&s, 4, words, nullptr), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_rng_new_abstract_f64(&s, 4, nullptr, 0, 1, NoRefillD), BRENN_ERR_NULL_POINTER);
    EXPECT_EQ(brenn_rng_new_abstract_f32(&s, 4, f, 0, 1, nullptr), BRENN_ERR_NULL_POINTER);
    const double bounds[][2] = {{nan, 1}, {0, nan}, {-inf, 1}, {0, inf}, {1, 1}, {2, 1}, {0, -0.0}};
    for (const auto& b : bounds) {
        s = kJunk;
        EXPECT_EQ(brenn_rng_new_abstract_f64(&s, 4, d, b[0], b[1], NoRefillD),
                  BRENN_ERR_BAD_ARGUMENT)
            << b[0] << " " << b[1];
        EXPECT_EQ(s, nullptr);
        s = kJunk;
        EXPECT_EQ(brenn_rng_new_abstract_f32(&s, 4, f, float(b[0]), float(b[1]), NoRefillS),
                  BRENN_ERR_BAD_ARGUMENT);
        EXPECT_EQ(s, nullptr);
    }
    // float bounds that are finite in double but not in float
    s = kJunk;
    EXPECT_EQ(brenn_rng_new_abstract_f32(&s, 4, f, 0.0f, float(1e39), NoRefillS),
              BRENN_ERR_BAD_ARGUMENT);
    EXPECT_EQ(s, nullptr);
}

// A counter refills the buffer with as many words as it may; draws of any length
// read the counter in order across the buffer's wrap.
uint32_t g_next = 0;
int32_t Counter(void*, int32_t* size, uint32_t* buffer, int32_t*, int32_t* maximum,
                int32_t* start) {
    for (int32_t k = 0; k < *maximum; ++k)
        buffer[(*start + k) % *size] = g_next++;
    return *maximum;
}

TEST(FrontendRngAbstract, WordsComeFromTheBufferAcrossRefills) {
    for (int size : {1, 7, 64}) {
        std::vector<uint32_t> buffer(size);
        brenn_stream* s = nullptr;
        ASSERT_EQ(brenn_rng_new_abstract_u32(&s, size, buffer.data(), Counter), BRENN_OK);
        int brng = 0;
        ASSERT_EQ(brenn_rng_get_brng(s, &brng), BRENN_OK);
        EXPECT_EQ(brng, QES_BRNG_IABSTRACT);
        g_next = 100;
        uint32_t expected = 100;
        for (int n : {1, 3, 8, 100}) {
            std::vector<uint32_t> r(n);
            ASSERT_EQ(brenn_rng_bits_raw(s, n, r.data()), BRENN_OK);
            for (uint32_t w : r)
                ASSERT_EQ(w, expected++) << "size " << size;
        }
        EXPECT_EQ(brenn_rng_skip_ahead(s, 5), QES_RNG_STATUS_NO_SKIPAHEAD);
        brenn_rng_delete(&s);
    }
}

// The refill copies the next uniforms of an MT19937 stream made by the front-end.
brenn_stream* g_source = nullptr;
int32_t FromSource(void*, int32_t* size, double* buffer, int32_t*, int32_t* maximum,
                   int32_t* start) {
    int32_t first = std::min(*maximum, *size - *start);
    brenn_rng_uniform_f64(g_source, 0, first, buffer + *start, 0.0, 1.0);
    brenn_rng_uniform_f64(g_source, 0, *maximum - first, buffer, 0.0, 1.0);
    return *maximum;
}

TEST(FrontendRngAbstract, AFedDoubleStreamGivesItsSourcesGaussians) {
    for (int size : {1, 7, 1024}) {
        brenn_stream* direct = nullptr;
        ASSERT_EQ(brenn_rng_new(&direct, QES_BRNG_MT19937, 77), BRENN_OK);
        ASSERT_EQ(brenn_rng_new(&g_source, QES_BRNG_MT19937, 77), BRENN_OK);
        std::vector<double> buffer(size);
        brenn_stream* fed = nullptr;
        ASSERT_EQ(brenn_rng_new_abstract_f64(&fed, size, buffer.data(), 0.0, 1.0, FromSource),
                  BRENN_OK);
        for (int n : {1, 1000, 3}) {
            std::vector<double> a(n), b(n);
            ASSERT_EQ(brenn_rng_gaussian_f64(direct, 1, n, a.data(), 2.0, 0.5), BRENN_OK);
            ASSERT_EQ(brenn_rng_gaussian_f64(fed, 1, n, b.data(), 2.0, 0.5), BRENN_OK);
            ASSERT_EQ(std::memcmp(a.data(), b.data(), sizeof(double) * n), 0) << "size " << size;
        }
        brenn_rng_delete(&fed);
        brenn_rng_delete(&g_source);
        brenn_rng_delete(&direct);
    }
}

} // namespace
