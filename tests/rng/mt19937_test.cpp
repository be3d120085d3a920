// MT19937 against a plain textbook implementation written here (array seeding,
// whole-block regeneration, tempering word by word): the published reference key,
// every way of cutting a request, the element forms, the seeding rules, and
// skip-ahead against generating and discarding on both sides of the switch to the
// polynomial jump.
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "tests/support/support.h"

namespace {

// ---- The reference: the published algorithm, written plainly --------------------

struct RefMt {
    uint32_t mt[624];
    int index = 624;

    explicit RefMt(std::vector<uint32_t> key) {
        if (key.empty()) key = {1};
        mt[0] = 19650218u;
        for (int i = 1; i < 624; ++i)
            mt[i] = 1812433253u * (mt[i - 1] ^ (mt[i - 1] >> 30)) + i;
        int i = 1;
        size_t j = 0;
        for (size_t k = std::max<size_t>(624, key.size()); k; --k) {
            mt[i] = (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1664525u)) + key[j] + j;
            if (++i >= 624) {
                mt[0] = mt[623];
                i = 1;
            }
            if (++j >= key.size()) j = 0;
        }
        for (int k = 623; k; --k) {
            mt[i] = (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1566083941u)) - i;
            if (++i >= 624) {
                mt[0] = mt[623];
                i = 1;
            }
        }
        mt[0] = 0x80000000u;
    }

    uint32_t Next() {
        if (index == 624) {
            for (int k = 0; k < 624; ++k) {
                uint32_t y = (mt[k] & 0x80000000u) | (mt[(k + 1) % 624] & 0x7FFFFFFFu);
                mt[k] = mt[(k + 397) % 624] ^ (y >> 1) ^ (y & 1 ? 0x9908B0DFu : 0);
            }
            index = 0;
        }
        uint32_t y = mt[index++];
        y ^= y >> 11;
        y ^= (y << 7) & 0x9D2C5680u;
        y ^= (y << 15) & 0xEFC60000u;
        return y ^ (y >> 18);
    }

    std::vector<uint32_t> Take(size_t n) {
        std::vector<uint32_t> v(n);
        for (auto& x : v)
            x = Next();
        return v;
    }
};

const std::vector<uint32_t> kKey = {0x123, 0x234, 0x345, 0x456};

void* NewMt(const std::vector<uint32_t>& key) {
    void* s = nullptr;
    EXPECT_EQ(__qesNewStreamEx(&s, QES_BRNG_MT19937, static_cast<int32_t>(key.size()), key.data()),
              0);
    return s;
}

std::vector<uint32_t> Words(void* s, int32_t n) {
    std::vector<uint32_t> w(n > 0 ? n : 1);
    EXPECT_EQ(__qesiBRngMT19937(s, n, w.data()), 0);
    w.resize(n > 0 ? n : 0);
    return w;
}

int32_t Position(void* s) {
    int32_t p;
    std::memcpy(&p, static_cast<char*>(s) + 16 + 624 * 4, 4);
    return p;
}

// ---- Known answers -----------------------------------------------------------------

TEST(RngMt19937, PublishedReferenceKey) {
    void* s = NewMt(kKey);
    auto got = Words(s, 1000);
    // The first words of the published reference output of this key.
    EXPECT_EQ(got[0], 1067595299u);
    EXPECT_EQ(got[1], 955945823u);
    EXPECT_EQ(got[2], 477289528u);
    EXPECT_EQ(got[3], 4107218783u);
    EXPECT_EQ(got[4], 4228976476u);
    EXPECT_EQ(got, RefMt(kKey).Take(1000));
    __qesDeleteStream(&s);
}

TEST(RngMt19937, SeedingAlwaysUsesTheArrayForm) {
    // The single-word key 5489 is not the single-word published initialisation.
    std::mt19937 single(5489);
    void* s = NewMt({5489});
    EXPECT_NE(Words(s, 1)[0], single());
    __qesDeleteStream(&s);
    // No key means the key {1}; keys longer than the state are used in full.
    void* e = NewMt({});
    EXPECT_EQ(Words(e, 700), RefMt({1}).Take(700));
    __qesDeleteStream(&e);
    std::vector<uint32_t> longKey(1500);
    for (size_t i = 0; i < longKey.size(); ++i)
        longKey[i] = static_cast<uint32_t>(i * 2654435761u);
    void* l = NewMt(longKey);
    auto w = Words(l, 700);
    EXPECT_EQ(w, RefMt(longKey).Take(700));
    longKey.back() ^= 1; // the last word counts
    void* l2 = NewMt(longKey);
    EXPECT_NE(Words(l2, 700), w);
    __qesDeleteStream(&l);
    __qesDeleteStream(&l2);
    // A fresh stream has all words used, so the first request runs the recurrence.
    void* f = NewMt(kKey);
    EXPECT_EQ(Position(f), 624);
    __qesDeleteStream(&f);
}

// ---- Cutting a request ------------------------------------------------------------

TEST(RngMt19937, AnyCutGivesTheSameSequence) {
    const std::vector<std::vector<int32_t>> cuts = {
        {624, 1, 623, 625}, {625, 1, 1},        {1, 623, 1, 1248, 1249, 3},
        {5000, 17},         {0, 3, 0, 1500, 2}, {623, 2, 622, 627, 1},
    };
    for (const auto& cut : cuts) {
        size_t total = 0;
        for (int32_t c : cut)
            total += c;
        auto ref = RefMt(kKey).Take(total);
        void* s = NewMt(kKey);
        std::vector<uint32_t> got;
        for (int32_t c : cut) {
            auto w = Words(s, c);
            got.insert(got.end(), w.begin(), w.end());
        }
        EXPECT_EQ(got, ref);
        __qesDeleteStream(&s);
    }
    std::mt19937 rng(7);
    auto ref = RefMt(kKey).Take(200000);
    void* s = NewMt(kKey);
    size_t at = 0;
    while (at < ref.size()) {
        int32_t c = static_cast<int32_t>(std::min<size_t>(rng() % 3000, ref.size() - at));
        auto w = Words(s, c);
        ASSERT_TRUE(std::equal(w.begin(), w.end(), ref.begin() + at)) << "at " << at;
        at += c;
    }
    __qesDeleteStream(&s);
}

TEST(RngMt19937, BlockBoundaryPositions) {
    auto ref = RefMt(kKey).Take(1300);
    void* s = NewMt(kKey);
    Words(s, 624);
    EXPECT_EQ(Position(s), 624); // the whole block, with no new block made yet
    EXPECT_EQ(Words(s, 1)[0], ref[624]);
    EXPECT_EQ(Position(s), 1);
    __qesDeleteStream(&s);
    void* t = NewMt(kKey);
    Words(t, 625);
    EXPECT_EQ(Position(t), 624);
    EXPECT_EQ(Words(t, 1)[0], ref[625]);
    __qesDeleteStream(&t);
}

// ---- Element forms -----------------------------------------------------------------

TEST(RngMt19937, RealFormsScaleTheTemperedWord) {
    const int n = 2000; // past a block, with a tail that is not a multiple of four
    for (int len : {1, 3, 7, 624, 625, n - 3}) {
        auto ref = RefMt(kKey).Take(len);
        void* s = NewMt(kKey);
        void* t = NewMt(kKey);
        std::vector<double> d(len);
        std::vector<float> f(len);
        ASSERT_EQ(__qesdBRngMT19937(s, len, d.data(), -2.5, 7.0), 0);
        ASSERT_EQ(__qessBRngMT19937(t, len, f.data(), 1.0f, 3.0f), 0);
        for (int i = 0; i < len; ++i) {
            double u = static_cast<double>(ref[i]);
            ASSERT_EQ(d[i], u * ((7.0 - -2.5) * 0x1p-32) + -2.5) << i;
            ASSERT_EQ(f[i], static_cast<float>(u * (2.0 * 0x1p-32) + 1.0)) << i;
        }
        __qesDeleteStream(&s);
        __qesDeleteStream(&t);
    }
    // The uniform on [0, 1) through the distribution layer is the same word.
    void* s = NewMt(kKey);
    double u;
    _qesdRngUniform(0, s, 1, &u, 0.0, 1.0);
    EXPECT_EQ(u, 1067595299.0 * 0x1p-32);
    __qesDeleteStream(&s);
}

// ---- Jumps ----------------------------------------------------------------------------

std::vector<uint32_t> AfterSkip(size_t read, uint64_t skip, int32_t n) {
    void* s = NewMt(kKey);
    Words(s, static_cast<int32_t>(read));
    EXPECT_EQ(__qesSkipAheadStream(s, skip), 0);
    auto w = Words(s, n);
    __qesDeleteStream(&s);
    return w;
}

TEST(RngMt19937, SkipEqualsGenerateAndDiscard) {
    const uint64_t counts[] = {0, 1, 623, 624, 625, 0xFFFFF, 0x100000, 0x100001, 10000000};
    RefMt ref(kKey);
    auto seq = ref.Take(10000000 + 1300 + 2000);
    for (size_t read : {size_t{0}, size_t{1}, size_t{300}, size_t{624}, size_t{1000}}) {
        for (uint64_t c : counts) {
            auto w = AfterSkip(read, c, 1300);
            ASSERT_TRUE(std::equal(w.begin(), w.end(), seq.begin() + read + c))
                << "read " << read << " skip " << c;
        }
    }
}

TEST(RngMt19937, LongJumpsCommuteAndCompose) {
    const uint64_t big = uint64_t{1} << 40, other = 10000000 + 7;
    void* a = NewMt(kKey);
    void* b = NewMt(kKey);
    void* c = NewMt(kKey);
    Words(a, 5);
    Words(b, 5);
    Words(c, 5);
    ASSERT_EQ(__qesSkipAheadStream(a, big), 0);
    ASSERT_EQ(__qesSkipAheadStream(a, other), 0);
    ASSERT_EQ(__qesSkipAheadStream(b, other), 0);
    ASSERT_EQ(__qesSkipAheadStream(b, big), 0);
    ASSERT_EQ(__qesSkipAheadStream(c, big / 2), 0);
    ASSERT_EQ(__qesSkipAheadStream(c, other), 0);
    ASSERT_EQ(__qesSkipAheadStream(c, big / 2), 0);
    auto wa = Words(a, 2000);
    EXPECT_EQ(wa, Words(b, 2000));
    EXPECT_EQ(wa, Words(c, 2000));
    // And the short part of the jump is the generated sequence.
    void* d = NewMt(kKey);
    Words(d, 5);
    __qesSkipAheadStream(d, big);
    auto ref = Words(d, static_cast<int32_t>(other) + 2000);
    EXPECT_TRUE(std::equal(wa.begin(), wa.end(), ref.begin() + other));
    for (void* s : {a, b, c, d})
        __qesDeleteStream(&s);
}

TEST(RngMt19937, UnsupportedMethodsAndFailedJumps) {
    void* s = NewMt(kKey);
    EXPECT_EQ(__qesLeapfrogStream(s, 0, 2), QES_RNG_STATUS_NO_LEAPFROG);
    uint64_t words[2] = {5, 0};
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, words), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
    EXPECT_EQ(__qesBRngMT19937InitStream(4, s, 0, nullptr), QES_STATUS_BAD_METHOD);
    // A polynomial jump that cannot allocate leaves the stream as it was. (The
    // unread words of the block are passed over before the allocation, so the
    // stream starts with its block used up.)
    Words(s, 624);
    void* before = nullptr;
    ASSERT_EQ(__qesCopyStream(&before, s), 0);
    auto expect = Words(before, 50);
    __qesDeleteStream(&before);
    brenn::test::SweepAllocationFailures([&] {
        void* t = nullptr;
        if (__qesCopyStream(&t, s) != 0) return false;
        int32_t status = __qesSkipAheadStream(t, uint64_t{1} << 30);
        if (status != 0) {
            EXPECT_EQ(status, QES_STATUS_NO_MEMORY);
            EXPECT_EQ(Words(t, 50), expect);
        }
        __qesDeleteStream(&t);
        return status == 0;
    });
    __qesDeleteStream(&s);
}

} // namespace
