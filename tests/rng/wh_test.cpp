// The Wichmann-Hill set against a plain four-component recurrence written here: the
// published members and members read from the table, legacy and current ids, the
// integer and real forms across the runs of eight, seeding rules, leapfrog and
// skip-ahead against generating and discarding, and what the family refuses.
#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "rng/brng/wh_table.h"
#include "tests/rng/brng_harness.h"

namespace {

using namespace brenn::test;
using brenn::rng::kWhModuli;
using brenn::rng::kWhMultipliers;

struct Params {
    uint64_t a[4], m[4];
};

const std::pair<int32_t, Params> kPublished[] = {
    {0, {{125, 117, 127, 126}, {16770647, 16770643, 16770623, 16770617}}},
    {1, {{127, 126, 125, 123}, {16770311, 16770283, 16770263, 16770209}}},
    {272, {{126, 127, 125, 124}, {16766363, 16766359, 16766327, 16766231}}},
};

Params FromTable(int32_t member) {
    Params p;
    for (int j = 0; j < 4; ++j) {
        p.a[j] = (kWhMultipliers[member] >> (8 * j)) & 0xFF;
        p.m[j] = kWhModuli[member][j];
    }
    return p;
}

// Element i of the plain recurrence: its four words, and its fraction u.
struct RefWh {
    Params p;
    uint64_t x[4];
    RefWh(const Params& params, const Words32& seed) : p(params) {
        for (int j = 0; j < 4; ++j) {
            x[j] = j < static_cast<int>(seed.size()) ? seed[j] % p.m[j] : 1;
            if (x[j] == 0) x[j] = 1;
        }
    }
    double Fraction() const {
        double v = 0;
        for (int j = 0; j < 4; ++j)
            v += static_cast<double>(x[j]) * (1.0 / static_cast<double>(p.m[j]));
        return v - std::trunc(v);
    }
    void Step() {
        for (int j = 0; j < 4; ++j)
            x[j] = x[j] * p.a[j] % p.m[j];
    }
};

const BrngRecord* Row() {
    return RowOf(QES_BRNG_WH);
}

Words32 Words(void* s, int32_t n) {
    Words32 w(4 * static_cast<size_t>(n > 0 ? n : 0) + 4, 0xA5A5A5A5u);
    EXPECT_EQ(Row()->iGenerate(s, n, w.data()), 0);
    // Exactly four words an element are written.
    EXPECT_EQ(w[w.size() - 4], 0xA5A5A5A5u);
    w.resize(w.size() - 4);
    return w;
}

Words32 RefWords(RefWh ref, size_t n) {
    Words32 w;
    for (size_t i = 0; i < n; ++i, ref.Step())
        for (int j = 0; j < 4; ++j)
            w.push_back(static_cast<uint32_t>(ref.x[j]));
    return w;
}

const Words32 kSeed = {123456789, 987654321, 55555, 0xFFFFFFFFu};

TEST(RngWh, TableHoldsThePublishedMembers) {
    for (const auto& [member, p] : kPublished) {
        Params t = FromTable(member);
        for (int j = 0; j < 4; ++j) {
            EXPECT_EQ(t.a[j], p.a[j]) << member;
            EXPECT_EQ(t.m[j], p.m[j]) << member;
            EXPECT_EQ(brenn::rng::kWhReciprocals[member][j], 1.0 / static_cast<double>(p.m[j]));
        }
    }
}

TEST(RngWh, MembersEqualThePlainRecurrence) {
    const int n = 3000;
    for (int32_t member : {0, 1, 136, 272}) {
        Params p = FromTable(member);
        for (int32_t id : {QES_BRNG_WH + member, 4 + member}) {
            RefWh ref(p, kSeed);
            void* s = NewKeyed(id, kSeed);
            void* t = NewKeyed(id, kSeed);
            void* u = NewKeyed(id, kSeed);
            EXPECT_EQ(Words(s, n), RefWords(ref, n)) << id;
            std::vector<double> d(n);
            std::vector<float> f(n);
            ASSERT_EQ(Row()->dGenerate(t, n, d.data(), -1.0, 3.0), 0);
            ASSERT_EQ(Row()->sGenerate(u, n, f.data(), 0.25f, 0.5f), 0);
            for (int i = 0; i < n; ++i, ref.Step()) {
                double frac = ref.Fraction();
                ASSERT_EQ(d[i], frac * 4.0 + -1.0) << id << " at " << i;
                ASSERT_EQ(f[i], static_cast<float>(frac * 0.25 + 0.25)) << id << " at " << i;
            }
            for (void* x : {s, t, u})
                __qesDeleteStream(&x);
        }
    }
}

TEST(RngWh, AnyCutGivesTheSameSequence) {
    const Params p = FromTable(5);
    Words32 ref = RefWords(RefWh(p, kSeed), 4000);
    std::vector<std::vector<int32_t>> cuts = {
        {7, 8, 9, 16, 1, 15}, {16, 9, 8, 7}, {0, 1, 7, 0, 8, 17, 64, 3}};
    std::mt19937 rng(11);
    std::vector<int32_t> random;
    for (int32_t left = 4000; left > 0;) {
        int32_t c = std::min<int32_t>(left, rng() % 40);
        random.push_back(c);
        left -= c;
    }
    cuts.push_back(random);
    for (const auto& cut : cuts) {
        void* s = NewKeyed(QES_BRNG_WH + 5, kSeed);
        Words32 got;
        for (int32_t c : cut) {
            Words32 w = Words(s, c);
            got.insert(got.end(), w.begin(), w.end());
        }
        EXPECT_TRUE(std::equal(got.begin(), got.end(), ref.begin())) << cut.size();
        __qesDeleteStream(&s);
    }
}

Words32 State(void* s) {
    Words32 w(8);
    std::memcpy(w.data(), static_cast<char*>(s) + 16, 32);
    return w;
}

TEST(RngWh, SeedingAndMembers) {
    const Params p = FromTable(272);
    const Words32 a = {126, 127, 125, 124};
    struct {
        Words32 seed;
        Words32 x;
    } cases[] = {
        {{}, {1, 1, 1, 1}},
        {{0, 0, 0, 0}, {1, 1, 1, 1}},
        {{16766363, 16766359 + 5}, {1, 5, 1, 1}},
        {{7, 8, 9, 10, 11}, {7, 8, 9, 10}},
        {{0xFFFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFFFu, 0xFFFFFFFFu},
         {static_cast<uint32_t>(0xFFFFFFFFu % p.m[0]), static_cast<uint32_t>(0xFFFFFFFFu % p.m[1]),
          static_cast<uint32_t>(0xFFFFFFFFu % p.m[2]),
          static_cast<uint32_t>(0xFFFFFFFFu % p.m[3])}},
    };
    for (int32_t id : {QES_BRNG_WH + 272, 276}) {
        for (const auto& c : cases) {
            void* s = NewKeyed(id, c.seed);
            Words32 st = State(s);
            EXPECT_EQ(Words32(st.begin(), st.begin() + 4), c.x) << id << " " << c.seed.size();
            EXPECT_EQ(Words32(st.begin() + 4, st.end()), a);
            __qesDeleteStream(&s);
        }
    }
    void* none = NewKeyed(QES_BRNG_WH + 273, kSeed, QES_RNG_STATUS_BAD_BRNG);
    EXPECT_EQ(none, nullptr);
    // Members with one seed differ from the first element on.
    std::vector<double> first;
    for (int32_t member = 0; member < 273; member += 17) {
        void* s = NewKeyed(QES_BRNG_WH + member, {1, 1, 1, 1});
        Words(s, 1);
        double d;
        Row()->dGenerate(s, 1, &d, 0.0, 1.0);
        for (double e : first)
            EXPECT_NE(d, e) << member;
        first.push_back(d);
        __qesDeleteStream(&s);
    }
}

// Element indices k, k + n, ... for a leapfrog (k, n), then a skip by s of the
// stream's own elements.
TEST(RngWh, LeapfrogAndSkipEqualGenerateAndDiscard) {
    const Params p = FromTable(136);
    Words32 ref = RefWords(RefWh(p, kSeed), 20000);
    auto expect = [&](size_t element, size_t count) {
        return Words32(ref.begin() + 4 * element, ref.begin() + 4 * (element + count));
    };
    struct {
        int32_t k, n;
        uint64_t skip;
    } cases[] = {{0, 1, 0}, {0, 1, 7},  {1, 3, 0},   {1, 3, 2},
                 {2, 5, 9}, {0, 8, 16}, {7, 9, 100}, {0, 0, 0}};
    for (const auto& c : cases) {
        void* s = NewKeyed(QES_BRNG_WH + 136, kSeed);
        Words32 before = State(s);
        ASSERT_EQ(__qesLeapfrogStream(s, c.k, c.n), 0);
        if (c.k == 0 && c.n == 1) EXPECT_EQ(State(s), before);
        ASSERT_EQ(__qesSkipAheadStream(s, c.skip), 0);
        Words32 got = Words(s, 40);
        for (size_t i = 0; i < 40; ++i) {
            size_t element = c.k + (c.skip + i) * c.n;
            ASSERT_EQ(Words32(got.begin() + 4 * i, got.begin() + 4 * i + 4), expect(element, 1))
                << c.k << " " << c.n << " " << c.skip << " " << i;
        }
        __qesDeleteStream(&s);
    }
    for (uint64_t skip : {0, 1, 7, 8, 9, 16, 17, 4999}) {
        void* s = NewKeyed(QES_BRNG_WH + 136, kSeed);
        Words(s, 3);
        ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
        EXPECT_EQ(Words(s, 100), expect(3 + skip, 100)) << skip;
        __qesDeleteStream(&s);
    }
    // A long skip equals two halves, and reaches past generation: 2^40 then 1000
    // words, against 2^40 - 1000 then generating 2000.
    void* a = NewKeyed(QES_BRNG_WH + 136, kSeed);
    void* b = NewKeyed(QES_BRNG_WH + 136, kSeed);
    ASSERT_EQ(__qesSkipAheadStream(a, uint64_t{1} << 40), 0);
    ASSERT_EQ(__qesSkipAheadStream(b, uint64_t{1} << 39), 0);
    ASSERT_EQ(__qesSkipAheadStream(b, (uint64_t{1} << 39) - 1000), 0);
    Words32 tail = Words(b, 1100);
    EXPECT_EQ(Words(a, 100), Words32(tail.begin() + 4000, tail.end()));
    __qesDeleteStream(&a);
    __qesDeleteStream(&b);
}

TEST(RngWh, RefusedMethodsLeaveTheStream) {
    void* s = NewKeyed(QES_BRNG_WH + 3, kSeed);
    Words32 start = State(s);
    uint64_t words[2] = {5, 0};
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 2, words), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
    EXPECT_EQ(__qesLeapfrogStream(s, 0, -1), QES_RNG_STATUS_BAD_STREAM_COUNT);
    ExpectBadMethodsAndNoBitForms(s);
    EXPECT_EQ(State(s), start);
    __qesDeleteStream(&s);
}

} // namespace
