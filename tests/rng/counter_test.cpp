// ARS5 and PHILOX4X32X10: published known answers, long runs against Random123's
// headers when they are installed, requests cut any way, skip-ahead by both methods
// against the counter arithmetic for every unread count, counter carries, the
// centred real forms, the two AES instruction sets against each other, a processor
// without AES, and streams saved and loaded.
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "rng/core/cpu_hooks.h"
#include "tests/rng/bad_input.h"
#include "tests/rng/brng_harness.h"

#if __has_include(<Random123/philox.h>)
#include <Random123/philox.h>
#define BRENN_HAVE_R123 1
#if defined(__AES__)
#include <Random123/ars.h>
#define BRENN_HAVE_R123_ARS 1
#endif
#endif

namespace {

using namespace brenn::test;
namespace hooks = brenn::rng::testing;

struct Counter {
    const char* name;
    int32_t id;
    int keyWords; // seed words before the four counter words
    WordBrng brng;
};

const Counter kArs5{
    "ARS5",
    QES_BRNG_ARS5,
    4,
    {QES_BRNG_ARS5, {1, 2, 3, 4, 5, 6, 7, 8}, __qesiBRngARS5, __qessBRngARS5, __qesdBRngARS5}};
const Counter kPhilox{"PHILOX4X32X10",
                      QES_BRNG_PHILOX4X32X10,
                      2,
                      {QES_BRNG_PHILOX4X32X10,
                       {0xDEADBEEF, 0x12345678, 0xFFFFFFF0, 0xFFFFFFFF, 7, 0},
                       __qesiBRngPHILOX4X32X10,
                       __qessBRngPHILOX4X32X10,
                       __qesdBRngPHILOX4X32X10}};

bool Runs(const Counter& g) {
    return g.id != QES_BRNG_ARS5 || __qesCPUisAES();
}

std::vector<const Counter*> Available() {
    std::vector<const Counter*> v = {&kPhilox};
    if (__qesCPUisAES())
        v.push_back(&kArs5);
    else
        std::printf("ARS5 not checked: this processor has no AES\n");
    return v;
}

// The seed of a stream at a 128-bit counter (low word first) under g's key.
Words32 SeedAt(const Counter& g, uint64_t low, uint64_t high) {
    Words32 seed(g.brng.key.begin(), g.brng.key.begin() + g.keyWords);
    for (uint64_t w : {low, high}) {
        seed.push_back(static_cast<uint32_t>(w));
        seed.push_back(static_cast<uint32_t>(w >> 32));
    }
    return seed;
}

// Words from element `index` (192 bits, low word first) of the sequence of g's key at
// its seeded counter: block counter + index / 4 (modulo 2^128), then index mod 4 words
// dropped.
Words32 WordsFrom(const Counter& g, const uint64_t index[3], int32_t n) {
    const Words32& k = g.brng.key;
    uint64_t low = k[g.keyWords] | (uint64_t{k[g.keyWords + 1]} << 32);
    uint64_t high = k[g.keyWords + 2] | (uint64_t{k[g.keyWords + 3]} << 32);
    uint64_t blocksLow = (index[0] >> 2) | (index[1] << 62);
    uint64_t blocksHigh = (index[1] >> 2) | (index[2] << 62);
    uint64_t sum = low + blocksLow;
    high += blocksHigh + (sum < low ? 1 : 0);
    Words32 w = FirstWords(g.brng, SeedAt(g, sum, high), n + 3);
    return Words32(w.begin() + (index[0] & 3), w.begin() + (index[0] & 3) + n);
}

TEST(RngCounter, PublishedKnownAnswers) {
    struct {
        const Counter* g;
        Words32 seed, block;
    } cases[] = {
        {&kPhilox, {0, 0, 0, 0, 0, 0}, {0x6627e8d5, 0xe169c58d, 0xbc57ac4c, 0x9b00dbd8}},
        {&kPhilox, Words32(6, 0xffffffff), {0x408f276d, 0x41c83b0e, 0xa20bc7c6, 0x6d5451fd}},
        {&kPhilox,
         {0xa4093822, 0x299f31d0, 0x243f6a88, 0x85a308d3, 0x13198a2e, 0x03707344},
         {0xd16cfe09, 0x94fdcceb, 0x5001e420, 0x24126ea1}},
        {&kArs5, Words32(8, 0), {0x7ecce06f, 0x7cdc3bca, 0x15513c87, 0x29d24c9b}},
    };
    for (auto& c : cases) {
        if (!Runs(*c.g)) continue;
        EXPECT_EQ(FirstWords(c.g->brng, c.seed, 4), c.block) << c.g->name;
        // Seeds shorter than the state leave the rest 0: a key alone is counter 0.
        if (c.seed == Words32(c.seed.size(), 0))
            EXPECT_EQ(FirstWords(c.g->brng, {}, 4), c.block) << c.g->name << " without seed";
    }
}

#if defined(BRENN_HAVE_R123)
template <typename Cbrng>
Words32 Reference(const Words32& seed, int keyWords, size_t blocks) {
    typename Cbrng::ctr_type c;
    typename Cbrng::ukey_type uk;
    for (int i = 0; i < keyWords; ++i)
        uk[i] = seed[i];
    for (int i = 0; i < 4; ++i)
        c[i] = seed[keyWords + i];
    typename Cbrng::key_type k(uk);
    Cbrng g;
    Words32 w;
    for (size_t b = 0; b < blocks; ++b) {
        auto out = g(c, k);
        w.insert(w.end(), out.begin(), out.end());
        c.incr();
    }
    return w;
}
#endif

// Random keys and counters, counters whose low 32 or 64 bits are all ones among them,
// each in one request and against the reference block by block.
TEST(RngCounter, LongRunsEqualRandom123) {
#if !defined(BRENN_HAVE_R123)
    GTEST_SKIP() << "Random123's headers (librandom123-dev) are not installed";
#else
    std::mt19937 rng(2026);
    for (const Counter* g : Available()) {
#if !defined(BRENN_HAVE_R123_ARS)
        if (g->id == QES_BRNG_ARS5) {
            std::printf("ARS5 not compared: Random123's ars.h needs AES at compile time\n");
            continue;
        }
#endif
        for (int trial = 0; trial < 8; ++trial) {
            Words32 seed(g->keyWords + 4);
            for (auto& w : seed)
                w = rng();
            if (trial == 1) seed[g->keyWords] = 0xffffffff - 5;
            if (trial >= 2 && trial < 5) seed[g->keyWords] = seed[g->keyWords + 1] = 0xffffffff;
            if (trial == 3) seed[g->keyWords] -= 40;
            if (trial == 4) seed[g->keyWords + 2] = seed[g->keyWords + 3] = 0xffffffff;
            const size_t blocks = 2600;
            Words32 ref;
#if defined(BRENN_HAVE_R123_ARS)
            if (g->id == QES_BRNG_ARS5)
                ref = Reference<r123::ARS4x32_R<5>>(seed, 4, blocks);
            else
#endif
                ref = Reference<r123::Philox4x32_R<10>>(seed, 2, blocks);
            EXPECT_EQ(FirstWords(g->brng, seed, static_cast<int32_t>(blocks * 4)), ref)
                << g->name << " trial " << trial;
        }
    }
#endif
}

TEST(RngCounter, AnyCuttingGivesTheSameWords) {
    for (const Counter* g : Available()) {
        Words32 ref = FirstWords(g->brng, g->brng.key, 40000);
        ExpectCutsMatch(g->brng, ref,
                        {{1, 1, 1, 1, 1},
                         {3, 1, 4, 1, 5, 9, 2, 6},
                         {0, 2, 0, 7, 33, 0},
                         {255, 256, 257, 1031, 13},
                         {1, 300, 2, 5000}},
                        17);
    }
}

// Every unread count 0 to 3 (reads 0 to 7), counts around a block and beyond 2^32 and
// 2^64, by method 2 where a count fits one word and by method 3 always.
TEST(RngCounter, SkipAheadEqualsTheCounterArithmetic) {
    const uint64_t kTwo32 = uint64_t{1} << 32;
    struct {
        uint64_t low, high;
    } counts[] = {{0, 0}, {1, 0}, {3, 0}, {4, 0}, {5, 0}, {7, 0}, {kTwo32, 0}, {3, 1}, {~0ull, 2}};
    for (const Counter* g : Available()) {
        for (uint64_t read = 0; read < 8; ++read) {
            for (auto& c : counts) {
                for (int method : {QES_INIT_SKIP, QES_INIT_SKIP_EX}) {
                    if (method == QES_INIT_SKIP && c.high != 0) continue;
                    void* s = New(g->brng);
                    Take(g->brng, s, static_cast<int32_t>(read));
                    uint64_t words[3] = {c.low, c.high, 0};
                    int32_t status = method == QES_INIT_SKIP ? __qesSkipAheadStream(s, c.low)
                                                             : __qesSkipAheadStreamEx(s, 3, words);
                    ASSERT_EQ(status, 0);
                    uint64_t low = c.low + read;
                    const uint64_t index[3] = {low, c.high + (low < read ? 1 : 0), 0};
                    EXPECT_EQ(Take(g->brng, s, 9), WordsFrom(*g, index, 9))
                        << g->name << " read " << read << " skip " << c.low << " + 2^64 " << c.high
                        << " method " << method;
                    __qesDeleteStream(&s);
                }
            }
        }
        // Skip and generate-and-discard agree on counts that can be generated.
        ExpectSkipsMatch(g->brng, FirstWords(g->brng, g->brng.key, 6000), {0, 1, 2, 3, 6},
                         {0, 1, 3, 4, 5, 2047, 4096}, 300);
    }
}

// A count of three words moves the counter by its low 128 bits shifted by two; it is
// the same as two jumps that add up to it, and a fourth word is not read.
TEST(RngCounter, ThreeWordCountsAreTwoJumps) {
    for (const Counter* g : Available()) {
        const uint64_t whole[4] = {9, 0x8000000000000001ull, 6, 77};
        const uint64_t first[3] = {9, 0x8000000000000001ull, 0}, second[3] = {0, 0, 6};
        void* a = New(g->brng);
        void* b = New(g->brng);
        Take(g->brng, a, 2);
        Take(g->brng, b, 2);
        ASSERT_EQ(__qesSkipAheadStreamEx(a, 4, whole), 0);
        ASSERT_EQ(__qesSkipAheadStreamEx(b, 3, first), 0);
        ASSERT_EQ(__qesSkipAheadStreamEx(b, 3, second), 0);
        Words32 got = Take(g->brng, a, 20);
        EXPECT_EQ(got, Take(g->brng, b, 20)) << g->name;
        const uint64_t index[3] = {11, 0x8000000000000001ull, 6};
        EXPECT_EQ(got, WordsFrom(*g, index, 20)) << g->name;
        __qesDeleteStream(&a);
        __qesDeleteStream(&b);
    }
}

// The low 64-bit counter word carries into the high one (and PHILOX's low 32-bit
// word into the next) in every request length, on every path.
TEST(RngCounter, CountersCarryIntoTheHighWord) {
    for (const Counter* g : Available()) {
        for (uint64_t low : {~0ull, ~0ull - 5, ~0ull - 21, 0xFFFFFFFFull, 0xFFFFFFFDull}) {
            Words32 seed = SeedAt(*g, low, 41);
            for (int32_t n : {8, 40, 300, 1030}) {
                Words32 w = FirstWords(g->brng, seed, n);
                for (int32_t b = 0; b * 4 < n; ++b) {
                    uint64_t c = low + static_cast<uint64_t>(b);
                    Words32 one = FirstWords(g->brng, SeedAt(*g, c, c < low ? 42 : 41), 4);
                    one.resize(std::min<size_t>(4, static_cast<size_t>(n - 4 * b)));
                    ASSERT_TRUE(std::equal(one.begin(), one.end(), w.begin() + 4 * b))
                        << g->name << " low " << low << " n " << n << " block " << b;
                }
            }
        }
    }
}

TEST(RngCounter, SmallRequestsAndJumpStatuses) {
    for (const Counter* g : Available()) {
        Words32 block = FirstWords(g->brng, g->brng.key, 8);
        void* s = New(g->brng);
        for (int i = 0; i < 4; ++i)
            EXPECT_EQ(Take(g->brng, s, 1)[0], block[i]) << g->name;
        EXPECT_EQ(__qesSkipAheadStream(s, 0), 0);
        EXPECT_EQ(Take(g->brng, s, 1)[0], block[4]) << g->name << ": a skip of 0";
        EXPECT_EQ(__qesSkipAheadStream(s, 1), 0);
        EXPECT_EQ(Take(g->brng, s, 1)[0], block[6]) << g->name << ": a skip of 1 after a read";
        EXPECT_EQ(__qesLeapfrogStream(s, 1, 3), QES_RNG_STATUS_NO_LEAPFROG);
        for (int32_t method : {-1, 4, 0x7FFFFFFF})
            EXPECT_EQ(RowOf(g->id)->initStream(method, s, 0, nullptr), QES_STATUS_BAD_METHOD);
        EXPECT_EQ(Take(g->brng, s, 1)[0], block[7]) << g->name << ": refusals moved it";
        __qesDeleteStream(&s);
    }
    // PHILOX seeded by its key alone starts at counter 0.
    EXPECT_EQ(FirstWords(kPhilox.brng, {5, 6}, 4), FirstWords(kPhilox.brng, {5, 6, 0, 0, 0, 0}, 4));
}

// double(w) (b - a) 2^-32 + (a + b) / 2 with w signed; the single form in single
// precision with s = float(double(b - a) 2^-32).
TEST(RngCounter, RealFormsAreCentredOnTheInterval) {
    RealForm form{-3.0,
                  5.5,
                  -1.25f,
                  2.0f,
                  [](uint32_t w, double a, double b) {
                      return static_cast<double>(static_cast<int32_t>(w)) * ((b - a) * 0x1p-32) +
                             (a + b) * 0.5;
                  },
                  [](uint32_t w, float a, float b) {
                      float s = static_cast<float>(static_cast<double>(b - a) * 0x1p-32);
                      return static_cast<float>(static_cast<int32_t>(w)) * s + (a + b) * 0.5f;
                  }};
    for (const Counter* g : Available())
        ExpectRealForms(g->brng, FirstWords(g->brng, g->brng.key, 2100), {1, 3, 4, 7, 257, 2100},
                        form);
}

// From a fresh stream of `seed` with `hidden` features: `first` words read and
// dropped, then n words and five more, which show the state the n left.
Words32 ReadHiding(uint32_t hidden, const Counter& g, const Words32& seed, int32_t first,
                   int32_t n) {
    hooks::hiddenFeatures = hidden;
    void* s = NewKeyed(g.id, seed);
    Take(g.brng, s, first);
    Words32 got = Take(g.brng, s, n);
    Words32 after = Take(g.brng, s, 5);
    got.insert(got.end(), after.begin(), after.end());
    __qesDeleteStream(&s);
    hooks::hiddenFeatures = 0;
    return got;
}

// n from 250 to 1030 from streams at every unread count: the 512-bit path and the
// 128-bit one give the same words and leave the same state.
TEST(RngCounter, VectorAesAndAesGiveTheSameWords) {
    if (!__qesCPUisAES()) GTEST_SKIP() << "no AES on this processor";
    if (!__qesCPUisVAES())
        std::printf("no vector AES on this processor: both runs take the 128-bit path\n");
    Words32 seed = SeedAt(kArs5, ~0ull - 600, 3); // crosses the carry on the way
    for (int32_t n = 250; n <= 1030; ++n)
        ASSERT_EQ(ReadHiding(0, kArs5, seed, n % 5, n),
                  ReadHiding(hooks::kHideVaes, kArs5, seed, n % 5, n))
            << "n " << n;
}

// PHILOX4X32X10's 256-bit runs and its 128-bit ones give the same words, near the
// wrap of the low counter word too.
TEST(RngCounter, PhiloxRegisterWidthsGiveTheSameWords) {
    for (uint64_t low : {0ull, 0xFFFFFFFFull - 50, ~0ull - 30}) {
        Words32 seed = SeedAt(kPhilox, low, 9);
        for (int32_t n : {47, 48, 49, 100, 1030, 4099})
            ASSERT_EQ(ReadHiding(0, kPhilox, seed, n % 3, n),
                      ReadHiding(hooks::kHideAvx2, kPhilox, seed, n % 3, n))
                << "low " << low << " n " << n;
    }
}

// Without AES every ARS5 entry but seeding refuses and leaves r and the stream alone,
// and an image loads as nothing.
TEST(RngCounter, WithoutAesArs5RefusesEverythingButSeeding) {
    void* s = nullptr;
    hooks::hiddenFeatures = hooks::kHideAes;
    ASSERT_EQ(__qesNewStreamEx(&s, QES_BRNG_ARS5, 2, kArs5.brng.key.data()), 0);
    uint32_t words[5] = {7, 7, 7, 7, 7};
    float f[5] = {7, 7, 7, 7, 7};
    double d[5] = {7, 7, 7, 7, 7};
    EXPECT_EQ(__qesiBRngARS5(s, 5, words), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(__qessBRngARS5(s, 5, f, 0, 1), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(__qesdBRngARS5(s, 5, d, 0, 1), QES_RNG_STATUS_NO_AES);
    for (int i = 0; i < 5; ++i)
        EXPECT_TRUE(words[i] == 7 && f[i] == 7 && d[i] == 7) << i;
    uint64_t count[2] = {5, 0};
    EXPECT_EQ(__qesSkipAheadStream(s, 5), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, count), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(__qesLeapfrogStream(s, 0, 2), QES_RNG_STATUS_NO_AES);
    std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
    ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
    TempFile file("ars5");
    file.Write(image);
    int64_t live = brenn_serv_live_allocations();
    void* loaded = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesLoadStreamM(&loaded, image.data()), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(loaded, nullptr);
    loaded = reinterpret_cast<void*>(1);
    EXPECT_EQ(__qesLoadStreamF(&loaded, file.path.c_str(), -1), QES_RNG_STATUS_NO_AES);
    EXPECT_EQ(loaded, nullptr);
    EXPECT_EQ(brenn_serv_live_allocations(), live);
    hooks::hiddenFeatures = 0;
    if (__qesCPUisAES())
        EXPECT_EQ(Take(kArs5.brng, s, 4),
                  FirstWords(kArs5.brng, {kArs5.brng.key[0], kArs5.brng.key[1]}, 4));
    __qesDeleteStream(&s);
}

TEST(RngCounter, SavedStreamsContinue) {
    for (const Counter* g : Available()) {
        for (int32_t read : {0, 5, 8, 1031}) {
            void* s = New(g->brng);
            Take(g->brng, s, read);
            std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
            ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
            TempFile file("counter");
            ASSERT_EQ(__qesSaveStreamF(s, file.path.c_str(), -1), 0);
            Words32 next = Take(g->brng, s, 700);
            for (bool fromFile : {false, true}) {
                void* t = nullptr;
                ASSERT_EQ(fromFile ? __qesLoadStreamF(&t, file.path.c_str(), -1)
                                   : __qesLoadStreamM(&t, image.data()),
                          0);
                EXPECT_EQ(Take(g->brng, t, 700), next) << g->name << " read " << read;
                __qesDeleteStream(&t);
            }
            __qesDeleteStream(&s);
        }
    }
}

} // namespace
