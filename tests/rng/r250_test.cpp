// R250 against GSL's gsl_rng_r250 for seeds of one word, and against a plain ring
// recurrence written here for 250 seed words; the seeding cases; the word-by-word
// and block forms as one sequence however a request is cut; the real forms; and
// the jumps and bit forms it refuses.
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "tests/rng/brng_harness.h"

#ifdef BRENN_TEST_GSL
#include <gsl/gsl_rng.h>
#endif

namespace {

using namespace brenn::test;

// w(n) = w(n-250) XOR w(n-147) from the ring as the seeding leaves it.
struct RefR250 {
    Words32 ring;
    size_t at = 0;
    uint32_t Next() {
        uint32_t w = ring[at] ^ ring[(at + 103) % 250];
        ring[at] = w;
        at = (at + 1) % 250;
        return w;
    }
};

WordBrng R250(const Words32& key) {
    const BrngRecord* row = RowOf(QES_BRNG_R250);
    return {QES_BRNG_R250, key, row->iGenerate, row->sGenerate, row->dGenerate};
}

Words32 Ring(void* s) {
    Words32 w(252);
    std::memcpy(w.data(), static_cast<char*>(s) + 16, w.size() * 4);
    return w;
}

Words32 Counting(uint32_t from, size_t n) {
    Words32 w(n);
    for (size_t i = 0; i < n; ++i)
        w[i] = from + 0x9E3779B9u * static_cast<uint32_t>(i);
    return w;
}

#ifdef BRENN_TEST_GSL
TEST(RngR250, OneSeedWordEqualsGsl) {
    for (uint32_t seed : {1u, 12345u, 0xFFFFFFFFu}) {
        gsl_rng* g = gsl_rng_alloc(gsl_rng_r250);
        gsl_rng_set(g, seed);
        Words32 ref(100000);
        for (auto& w : ref)
            w = static_cast<uint32_t>(gsl_rng_get(g));
        gsl_rng_free(g);
        // Only the first of up to 249 words counts.
        for (Words32 key : {Words32{seed}, Counting(seed, 249)}) {
            key[0] = seed;
            EXPECT_EQ(FirstWords(R250(key), key, 100000), ref) << seed << " " << key.size();
        }
    }
}
#endif

TEST(RngR250, SeedingCases) {
    // No seed, seed 0 and seed 1 are one state; positions start at 0 and 103.
    void* a = NewKeyed(QES_BRNG_R250, {});
    void* b = NewKeyed(QES_BRNG_R250, {0});
    void* c = NewKeyed(1, {1});
    EXPECT_EQ(Ring(a), Ring(b));
    EXPECT_EQ(Ring(a), Ring(c));
    Words32 r = Ring(a);
    EXPECT_EQ(r[250], 0u);
    EXPECT_EQ(r[251], 103u);
    EXPECT_EQ(r[0], 69069u);
    EXPECT_EQ(r[1], 475559465u);
    EXPECT_EQ(r[3] >> 31, 1u);  // forced top bit
    EXPECT_EQ(r[10] >> 30, 1u); // 01 on top
    EXPECT_EQ(r[213] >> 1, 1u); // j = 15: bit 1 set, nothing above it
    EXPECT_EQ(r[220], 1u);      // and bit 0 alone
    for (void* s : {a, b, c})
        __qesDeleteStream(&s);
    // 250 words and more are the ring exactly, with no independence step.
    for (size_t n : {250, 252, 600}) {
        Words32 key = Counting(7, n);
        key[3] = 0;
        void* s = NewKeyed(QES_BRNG_R250, key);
        Words32 got = Ring(s);
        EXPECT_TRUE(std::equal(got.begin(), got.begin() + 250, key.begin())) << n;
        __qesDeleteStream(&s);
    }
}

TEST(RngR250, FormsAndCutsGiveOneSequence) {
    for (const Words32& key : {Counting(5, 250), Words32{0xFFFFFFFFu}, Words32(250, 0xFFFFFFFFu)}) {
        void* seeded = NewKeyed(QES_BRNG_R250, key);
        Words32 ring = Ring(seeded);
        __qesDeleteStream(&seeded);
        ring.resize(250);
        Words32 ref = Draw(RefR250{ring}, 12000);
        EXPECT_EQ(FirstWords(R250(key), key, 12000), ref);
        ExpectCutsMatch(
            R250(key), ref,
            {{249, 250, 251}, {251, 249, 250}, {1, 249, 1, 250, 500, 999}, {0, 103, 147, 250, 1}},
            static_cast<uint32_t>(key.size()));
        ExpectRealForms(R250(key), ref, {1, 249, 250, 1023, 1024, 1025, 3000},
                        {-1.0, 2.0, 0.0f, 1.0f, UnsignedD, UnsignedF});
    }
}

TEST(RngR250, RefusesJumpsAndBitForms) {
    void* s = NewKeyed(QES_BRNG_R250, {42});
    Words32 start = Ring(s);
    EXPECT_EQ(__qesSkipAheadStream(s, 1), QES_RNG_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(__qesSkipAheadStream(s, 0), QES_RNG_STATUS_NO_SKIPAHEAD);
    ExpectNoLeapfrogNorSkipEx(s);
    ExpectBadMethodsAndNoBitForms(s);
    EXPECT_EQ(Ring(s), start);
    __qesDeleteStream(&s);
}

// The read and lag positions sit after the ring; the block form relies on the lag
// being 103 words ahead of the read position, so an image that breaks this is refused.
TEST(RngR250, ImagesWithPositionsNoStreamCanReachAreRefused) {
    void* s = NewKeyed(QES_BRNG_R250, {42});
    Words32 w(7);
    ASSERT_EQ(_qesiRngUniformBits(0, s, 7, w.data()), 0);
    std::vector<char> image(__qesGetStreamSize(s));
    ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
    void* loaded = nullptr;
    ASSERT_EQ(__qesLoadStreamM(&loaded, image.data()), 0);
    __qesDeleteStream(&loaded);
    const size_t positions = 24 + 250 * 4;
    const uint32_t damaged[][2] = {{250, 103}, {7, 7}, {7, 109}, {200, 303}, {0xFFFFFFFF, 102}};
    for (const auto& p : damaged) {
        std::vector<char> bad = image;
        std::memcpy(bad.data() + positions, p, sizeof p);
        loaded = reinterpret_cast<void*>(1);
        EXPECT_EQ(__qesLoadStreamM(&loaded, bad.data()), QES_RNG_STATUS_BAD_IMAGE_FORMAT)
            << p[0] << " " << p[1];
        EXPECT_EQ(loaded, nullptr);
    }
    // The lag wraps round the ring.
    const uint32_t wrapped[2] = {200, 53};
    std::vector<char> good = image;
    std::memcpy(good.data() + positions, wrapped, sizeof wrapped);
    EXPECT_EQ(__qesLoadStreamM(&loaded, good.data()), 0);
    __qesDeleteStream(&loaded);
    __qesDeleteStream(&s);
}

} // namespace
