// Leapfrog by coordinate and skip-ahead by coordinates of Sobol and Niederr against
// picking and discarding coordinates of one long request, from the start, inside a
// point and after a partial one, in the state path and the chunk path.
#include <random>

#include "tests/rng/qrng_harness.h"

namespace brenn::test {
namespace {

struct Table {
    int32_t id;
    QWords params;
};

// Built-in tables, and user tables in chunks (Sobol tags 9 and 13, Niederr tag 10).
std::vector<Table> Tables() {
    std::vector<Table> t = {{QES_BRNG_SOBOL, {2}},
                            {QES_BRNG_SOBOL, {7}},
                            {QES_BRNG_SOBOL, {40}},
                            {QES_BRNG_NIEDERR, {5}},
                            {QES_BRNG_NIEDERR, {100}}};
    for (int32_t id : {QES_BRNG_SOBOL, QES_BRNG_NIEDERR}) {
        std::mt19937 g(id);
        const int dim = id == QES_BRNG_SOBOL ? 50 : 330;
        QWords p = {static_cast<uint32_t>(dim), 1, 4};
        for (int j = 0; j < dim; ++j)
            for (int b = 0; b < 32; ++b)
                p.push_back((g() | 0x80000000u) >> b);
        t.push_back({id, p});
    }
    return t;
}

int Leap(void* s, uint32_t k, int32_t n = 0x7FFFFFFF) {
    return __qesLeapfrogStream(s, static_cast<int32_t>(k), n);
}

TEST(QrngJumps, LeapfrogPicksOneCoordinate) {
    for (const Table& t : Tables()) {
        const int d = static_cast<int>(t.params[0]);
        const int pointsRef = 40;
        const QWords ref = FirstQ(t.id, t.params, d * pointsRef);
        auto coord = [&](int point, int k) { return ref[point * d + k]; };
        // After `before` words, coordinate k: from this point when not yet delivered.
        for (int before : {0, 1, d - 1, d, d + 1, 2 * d + d / 2}) {
            for (int k : {0, d / 2, d - 1}) {
                void* s = NewQrng(t.id, t.params);
                Draw(t.id, s, before);
                ASSERT_EQ(Leap(s, k), 0);
                const int first = before / d + (k < before % d ? 1 : 0);
                QWords w = Draw(t.id, s, 10);
                for (int i = 0; i < 10; ++i)
                    ASSERT_EQ(w[i], coord(first + i, k))
                        << t.params[0] << " before " << before << " k " << k;
                // Selecting it again changes nothing; another starts a point later.
                ASSERT_EQ(Leap(s, k), 0);
                const int other = (k + 1) % d;
                ASSERT_EQ(Leap(s, other), 0);
                w = Draw(t.id, s, 5);
                for (int i = 0; i < 5; ++i)
                    ASSERT_EQ(w[i], coord(first + 11 + i, other)) << i;
                __qesDeleteStream(&s);
            }
        }
    }
}

TEST(QrngJumps, LeapfrogRefusals) {
    void* s = NewQrng(QES_BRNG_SOBOL, {2});
    const QHead before = HeadOf(s);
    for (int32_t n : {1, 2, 0x7FFFFFFE})
        EXPECT_EQ(Leap(s, 1, n), QES_RNG_STATUS_NO_LEAPFROG) << n;
    for (uint32_t k : {2u, 3u, 0xFFFFFFFFu, 0x80000000u})
        EXPECT_EQ(Leap(s, k), QES_RNG_STATUS_NO_LEAPFROG) << k;
    EXPECT_EQ(HeadOf(s).counter, before.counter);
    EXPECT_EQ(HeadOf(s).leapDimension, 0xFFFFFFFFu);
    // k = 1 on two dimensions serves the second coordinate.
    const QWords ref = FirstQ(QES_BRNG_SOBOL, {2}, 40);
    ASSERT_EQ(Leap(s, 1), 0);
    QWords w = Draw(QES_BRNG_SOBOL, s, 20);
    for (int i = 0; i < 20; ++i)
        EXPECT_EQ(w[i], ref[2 * i + 1]);
    uint64_t nskip = 1;
    EXPECT_EQ(__qesSkipAheadStreamEx(s, 1, &nskip), QES_RNG_STATUS_NO_SKIPAHEAD_EX);
    __qesDeleteStream(&s);
}

TEST(QrngJumps, SkipDiscardsCoordinates) {
    for (const Table& t : Tables()) {
        const uint64_t d = t.params[0];
        const QWords ref = FirstQ(t.id, t.params, static_cast<int32_t>(d * 60));
        for (uint64_t read : {uint64_t{0}, uint64_t{1}, d - 1, d, d + 1, 3 * d / 2}) {
            for (uint64_t skip : {uint64_t{0}, uint64_t{1}, d - 1, d, d + 1, 7 * d + 3, 20 * d}) {
                void* s = NewQrng(t.id, t.params);
                Draw(t.id, s, static_cast<int32_t>(read));
                ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
                QWords w = Draw(t.id, s, static_cast<int32_t>(2 * d + 1));
                ASSERT_TRUE(std::equal(w.begin(), w.end(), ref.begin() + read + skip))
                    << d << " read " << read << " skip " << skip;
                __qesDeleteStream(&s);
            }
        }
    }
}

TEST(QrngJumps, SkipLimits) {
    void* s = NewQrng(QES_BRNG_SOBOL, {3});
    const QHead before = HeadOf(s);
    // q = nskip / dimension: 0xFFFFFFFF points, or a counter reaching it, is too far.
    for (uint64_t nskip : {0xFFFFFFFFull * 3, 0xFFFFFFFEull * 3, ~0ull})
        EXPECT_EQ(__qesSkipAheadStream(s, nskip), QES_RNG_STATUS_NO_SKIPAHEAD) << nskip;
    EXPECT_EQ(HeadOf(s).counter, before.counter);
    EXPECT_EQ(__qesSkipAheadStream(s, 0xFFFFFFFDull * 3), 0);
    EXPECT_EQ(HeadOf(s).counter, 0xFFFFFFFEu);
    uint64_t one = 1;
    EXPECT_EQ(__qesBRngSobolInitStream(QES_INIT_SKIP, s, 0, &one), QES_RNG_STATUS_NO_SKIPAHEAD);
    EXPECT_EQ(__qesBRngSobolInitStream(7, s, 1, &one), QES_STATUS_BAD_METHOD);
    __qesDeleteStream(&s);
}

} // namespace
} // namespace brenn::test
