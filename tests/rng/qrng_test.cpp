// Sobol and Niederr: seeding by dimension and by user tables with their fallbacks,
// requests cut anywhere, the thread split of the chunk path, the end of the
// sequence, chunks shared on copy, save and load, and allocation failures.
#include <random>

#include "platform/threader.h"
#include "rng/brng/qrng_tables.h"
#include "rng/core/stream.h"
#include "tests/rng/brng_harness.h"
#include "tests/rng/qrng_harness.h"

namespace brenn::test {
namespace {

using rng::kSobolInitial;
using rng::kSobolPolynomial;

constexpr int32_t kSobol = QES_BRNG_SOBOL, kNiederr = QES_BRNG_NIEDERR;

TEST(Qrng, DimensionFromParams) {
    struct Case {
        int32_t id;
        QWords params;
        int32_t dimension;
    };
    const Case cases[] = {
        {kSobol, {}, 1},        {kSobol, {40}, 40},          {kSobol, {41}, 1},
        {kSobol, {0}, 1},       {kSobol, {0xFFFFFFFF}, 1},   {kSobol, {7, 0}, 7},
        {kSobol, {7, 1, 1}, 7}, {kSobol, {50, 1, 99, 0}, 1}, {kNiederr, {318}, 318},
        {kNiederr, {319}, 1},   {kNiederr, {12, 1, 7}, 12},  {kNiederr, {12, 1, 1}, 12},
    };
    for (const Case& c : cases) {
        void* s = NewQrng(c.id, c.params);
        QHead h = HeadOf(s);
        EXPECT_EQ(h.dimension, c.dimension) << c.params.size();
        EXPECT_EQ(h.counter, 1u);
        EXPECT_EQ(h.leapDimension, 0xFFFFFFFFu);
        EXPECT_EQ(h.component, 0);
        __qesDeleteStream(&s);
    }
}

// The built-in direction numbers of Sobol coordinate j (0-based).
QWords SobolDirs(int j) {
    QWords v(32);
    rng::SobolDirections(kSobolPolynomial[j], kSobolInitial[j], v.data());
    return v;
}

TEST(Qrng, SobolUserModesReproduceTheBuiltInPoints) {
    constexpr int kDim = 40, kWords = kDim * 300;
    const QWords ref = FirstQ(kSobol, {kDim}, kWords);
    QWords m1 = {kDim, 1, 1}, m2 = {kDim, 1, 2, 8}, m3 = {kDim, 1, 3}, m11 = {kDim, 1, 11};
    QWords m4 = {kDim, 1, 4};
    for (int j = 1; j < kDim; ++j) {
        m1.push_back(kSobolPolynomial[j]);
        m3.push_back(kSobolPolynomial[j]);
    }
    m3.push_back(8);
    m11.push_back(1);
    for (int j = 1; j < kDim; ++j)
        m11.push_back(kSobolPolynomial[j]);
    m11.push_back(8);
    for (int i = 0; i < 8; ++i)
        m11.push_back(1);
    for (int j = 1; j < kDim; ++j)
        for (int i = 0; i < 8; ++i) {
            m2.push_back(kSobolInitial[j][i]);
            m3.push_back(kSobolInitial[j][i]);
            m11.push_back(kSobolInitial[j][i]);
        }
    for (int j = 0; j < kDim; ++j)
        for (uint32_t v : SobolDirs(j))
            m4.push_back(v);
    for (const QWords* p : {&m1, &m2, &m3, &m11, &m4})
        EXPECT_EQ(FirstQ(kSobol, *p, kWords), ref) << "mode " << (*p)[2];
}

// Mode 3 beyond 40 coordinates goes to chunks; its first 40 are the built-in ones.
TEST(Qrng, SobolModeThreeBeyondTheStateUsesChunks) {
    constexpr int kDim = 41, kPoints = 500;
    QWords p = {kDim, 1, 3};
    for (int j = 1; j < 40; ++j)
        p.push_back(kSobolPolynomial[j]);
    p.push_back(355); // a primitive polynomial of degree 8 that the table leaves out
    p.push_back(8);
    for (int j = 1; j < 40; ++j)
        for (int i = 0; i < 8; ++i)
            p.push_back(kSobolInitial[j][i]);
    for (int i = 0; i < 8; ++i)
        p.push_back(2 * i + 1);
    void* s = NewQrng(kSobol, p);
    EXPECT_EQ(__qesGetNumChunks(s), 2);
    const QWords w = Draw(kSobol, s, kDim * kPoints);
    __qesDeleteStream(&s);
    const QWords ref = FirstQ(kSobol, {40}, 40 * kPoints);
    for (int k = 0; k < kPoints; ++k)
        for (int j = 0; j < 40; ++j)
            ASSERT_EQ(w[k * kDim + j], ref[k * 40 + j]) << k << " " << j;
}

TEST(Qrng, NiederrUserModesReproduceTheBuiltInPoints) {
    constexpr int kDim = 20, kWords = kDim * 300;
    const QWords ref = FirstQ(kNiederr, {kDim}, kWords);
    QWords m1 = {kDim, 1, 1}, m4 = {kDim, 1, 4};
    for (int j = 0; j < kDim; ++j) {
        m1.push_back(rng::kNiederrPolynomial[j]);
        for (uint32_t v : rng::kNiederrDirections[j])
            m4.push_back(v);
    }
    EXPECT_EQ(FirstQ(kNiederr, m1, kWords), ref);
    EXPECT_EQ(FirstQ(kNiederr, m4, kWords), ref);
}

TEST(Qrng, FallbacksGiveTheBuiltInTables) {
    constexpr int kDim = 5, kWords = kDim * 64;
    const QWords sobol = FirstQ(kSobol, {kDim}, kWords);
    const QWords fallbacks[] = {
        {kDim, 1, 1, 3, 7, 11},           // mode 1 one polynomial short
        {kDim, 1, 2, 3, 1, 1, 1, 1, 1},   // mode 2 short of initial numbers
        {kDim, 1, 2, 1, 1, 1, 1, 1},      // mode 2 degree above its max-degree
        {kDim, 1, 3, 3, 7, 11, 13},       // mode 3 without its max-degree
        {kDim, 1, 3, 3, 7, 11, 13, 2, 1}, // mode 3 short of initial numbers
        {kDim, 1, 11, 1, 3, 7, 11, 13},   // mode 11 without its max-degree
        {kDim, 1, 4, 0x80000000},         // mode 4 short
        {kDim, 1, 5, 0},                  // no such mode
        {kDim, 2, 1, 3, 7, 11, 13},       // flag not 1
        {kDim, 1, 1},                     // n below 4
    };
    for (const QWords& p : fallbacks)
        EXPECT_EQ(FirstQ(kSobol, p, kWords), sobol) << p.size();
    const QWords m1Long = {41, 1, 1};
    EXPECT_EQ(FirstQ(kSobol, m1Long, 10), FirstQ(kSobol, {1}, 10));
    const QWords niederr = FirstQ(kNiederr, {kDim}, kWords);
    const QWords nFallbacks[] = {
        {kDim, 1, 1, 2, 3, 7, 11},     // mode 1 short
        {kDim, 1, 1, 2, 3, 7, 11, 1},  // a polynomial of degree 0
        {kDim, 1, 4, 1},               // mode 4 short
        {kDim, 1, 2, 2, 3, 7, 11, 13}, // no such mode
    };
    for (const QWords& p : nFallbacks)
        EXPECT_EQ(FirstQ(kNiederr, p, kWords), niederr) << p.size();
}

TEST(Qrng, SobolModeOneRefusesDegreeNine) {
    void* s = NewQrng(kSobol, {3, 1, 1, 3, 0x200 | 0x11}, QES_STATUS_BAD_ARGUMENT);
    __qesDeleteStream(&s);
    s = NewQrng(kSobol, {3, 1, 1, 3, 0x100 | 0x1D});
    __qesDeleteStream(&s);
}

// One long request against random cuts of the same length, for each generator form.
void ExpectRandomCuts(int32_t id, const QWords& params, int32_t total, uint32_t seed) {
    const QWords ref = FirstQ(id, params, total);
    std::mt19937 g(seed);
    void* s = NewQrng(id, params);
    QWords got;
    while (static_cast<int32_t>(got.size()) < total) {
        int32_t n = std::min<int32_t>(total - static_cast<int32_t>(got.size()), g() % 300);
        QWords w = Draw(id, s, n);
        got.insert(got.end(), w.begin(), w.end());
    }
    EXPECT_EQ(got, ref) << "dimension " << params[0];
    __qesDeleteStream(&s);
}

TEST(Qrng, AnyCuttingGivesTheSameWords) {
    void* s = NewQrng(kSobol, {3});
    QWords a = Draw(kSobol, s, 4);
    EXPECT_EQ(HeadOf(s).component, 2);
    QWords b = Draw(kSobol, s, 5);
    a.insert(a.end(), b.begin(), b.end());
    EXPECT_EQ(a, FirstQ(kSobol, {3}, 9));
    EXPECT_EQ(HeadOf(s).component, 0);
    __qesDeleteStream(&s);
    for (uint32_t d : {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 31, 32, 33}) {
        ExpectRandomCuts(kSobol, {d}, 4000, d);
        ExpectRandomCuts(kNiederr, {d}, 4000, d);
    }
    ExpectRandomCuts(kNiederr, {64}, 8000, 64);
    for (int d : {5, 64, 1000}) {
        ExpectRandomCuts(kSobol, UserTable(d, d), 20 * d, d);
        ExpectRandomCuts(kNiederr, UserTable(d, d), 20 * d, d);
    }
}

TEST(Qrng, ThreadLimitDoesNotChangeTheChunkPath) {
    for (int d : {64, 96, 1000}) {
        for (int32_t id : {kSobol, kNiederr}) {
            const QWords p = UserTable(d, 7);
            int previous = brenn_serv_set_num_threads(1);
            const QWords one = FirstQ(id, p, 100 * d + 17);
            brenn_serv_set_num_threads(2);
            const QWords two = FirstQ(id, p, 100 * d + 17);
            brenn_serv_set_num_threads(previous);
            EXPECT_EQ(one, two) << d;
            // The first point is the first direction numbers.
            for (int j = 0; j < d; ++j)
                ASSERT_EQ(one[j], p[3 + 32 * j]);
        }
    }
}

TEST(Qrng, CounterLimit) {
    for (int32_t id : {kSobol, kNiederr}) {
        void* s = NewQrng(id, {1});
        uint64_t skip = 0xFFFFFFF0ull - 1;
        ASSERT_EQ(__qesSkipAheadStream(s, skip), 0);
        ASSERT_EQ(HeadOf(s).counter, 0xFFFFFFF0u);
        std::vector<char> before(static_cast<char*>(s), static_cast<char*>(s) + 64);
        Draw(id, s, 0x10, QES_RNG_STATUS_QUASI_PERIOD_ENDED);
        EXPECT_TRUE(std::equal(before.begin(), before.end(), static_cast<char*>(s)));
        QWords w = Draw(id, s, 0xF);
        // Dimension 1 has v(i) = 2^(32 - i): the point is the bit-reversed Gray code.
        uint32_t g = 0xFFFFFFF0u ^ (0xFFFFFFF0u >> 1);
        uint32_t reversed = 0;
        for (int b = 0; b < 32; ++b)
            reversed |= ((g >> b) & 1u) << (31 - b);
        EXPECT_EQ(w[0], reversed);
        EXPECT_EQ(HeadOf(s).counter, 0xFFFFFFFFu);
        Draw(id, s, 1, QES_RNG_STATUS_QUASI_PERIOD_ENDED);
        Draw(id, s, 0);
        __qesDeleteStream(&s);
    }
}

uint64_t RefCountOf(const QesChunk* c) {
    GlobRODataEntry* e = nullptr;
    if (__qesFindGlobRODataTableEntry(&e, c->guid) != 0) return 0;
    return e->refCount;
}

const QesChunk* Cell(const void* s, int32_t id) {
    for (const QesChunk* c = rng::Header(s)->chunks; c != nullptr; c = c->next)
        if (c->id == id) return c;
    return nullptr;
}

TEST(Qrng, ChunksSharedOnCopyAndCarriedBySaveAndLoad) {
    const QWords p = UserTable(100, 100);
    void* s = NewQrng(kSobol, p);
    ASSERT_EQ(__qesGetNumChunks(s), 2);
    Draw(kSobol, s, 1234);
    void* copy = nullptr;
    ASSERT_EQ(__qesCopyStream(&copy, s), 0);
    const QesChunk *rows = Cell(s, 9), *rowsCopy = Cell(copy, 9);
    ASSERT_NE(rows, nullptr);
    ASSERT_NE(rowsCopy, nullptr);
    EXPECT_EQ(rows->data, rowsCopy->data);
    EXPECT_EQ(RefCountOf(rows), 2u);
    EXPECT_EQ(rows->size, (64u * 100 - 32 * ((4 * 100) & 63) + 2048) * 4);
    EXPECT_NE(Cell(s, 13)->data, Cell(copy, 13)->data);
    EXPECT_EQ(Cell(s, 13)->size, 400u);
    EXPECT_EQ(Draw(kSobol, copy, 777), Draw(kSobol, s, 777));

    std::vector<char> image(__qesGetStreamSize(s));
    ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
    void* loaded = nullptr;
    ASSERT_EQ(__qesLoadStreamM(&loaded, image.data()), 0);
    EXPECT_EQ(Draw(kSobol, loaded, 5000), Draw(kSobol, s, 5000));
    __qesDeleteStream(&loaded);
    __qesDeleteStream(&copy);
    EXPECT_EQ(RefCountOf(rows), 1u);
    __qesDeleteStream(&s);

    // Niederr above 318 coordinates: one private table.
    s = NewQrng(kNiederr, UserTable(400, 4));
    ASSERT_EQ(__qesGetNumChunks(s), 1);
    ASSERT_NE(Cell(s, 10), nullptr);
    EXPECT_EQ(Cell(s, 10)->size, 132u * 400);
    Draw(kNiederr, s, 999);
    image.resize(__qesGetStreamSize(s));
    ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
    ASSERT_EQ(__qesLoadStreamM(&loaded, image.data()), 0);
    EXPECT_EQ(Draw(kNiederr, loaded, 2000), Draw(kNiederr, s, 2000));
    __qesDeleteStream(&loaded);
    __qesDeleteStream(&s);
}

// An image whose head no seeding could leave, or whose chunks are too small for
// its dimension, is refused by the loader: the entries index by these fields.
TEST(Qrng, DamagedImagesAreRefused) {
    struct Case {
        int32_t id;
        QWords params;
    };
    const Case cases[] = {{kSobol, {5}},
                          {kNiederr, {5}},
                          {kSobol, UserTable(100, 100)},
                          {kNiederr, UserTable(400, 4)}};
    for (const Case& c : cases) {
        void* s = NewQrng(c.id, c.params);
        Draw(c.id, s, 7); // a point part-way delivered
        std::vector<char> image(__qesGetStreamSize(s));
        ASSERT_EQ(__qesSaveStreamM(s, image.data()), 0);
        int32_t head[4];
        memcpy(head, image.data() + 24, sizeof head); // counter, dimension, leap, component
        const int32_t d = head[1];
        void* loaded = nullptr;
        ASSERT_EQ(__qesLoadStreamM(&loaded, image.data()), 0) << d;
        __qesDeleteStream(&loaded);
        const int32_t capacity = c.id == kSobol ? 40 : 318;
        const int32_t wider = d <= capacity ? capacity + 1 : d + 1;
        const int32_t damaged[][2] = {{1, 0}, {1, -3},    {1, wider}, {1, 0x7FFFFFFF},
                                      {2, d}, {2, d + 9}, {3, d},     {3, -1}};
        // The legacy table names the same generators by ids 277 and 278.
        const int32_t legacy = c.id == kSobol ? 277 : 278;
        for (const auto& field : damaged)
            for (int32_t id : {c.id, legacy}) {
                std::vector<char> bad = image;
                memcpy(bad.data() + 20, &id, 4);
                memcpy(bad.data() + 24 + 4 * field[0], &field[1], 4);
                loaded = reinterpret_cast<void*>(1);
                EXPECT_EQ(__qesLoadStreamM(&loaded, bad.data()), QES_RNG_STATUS_BAD_IMAGE_FORMAT)
                    << id << " dimension " << d << " field " << field[0] << " = " << field[1];
                EXPECT_EQ(loaded, nullptr);
            }
        __qesDeleteStream(&s);
    }
}

TEST(Qrng, AllocationFailuresGiveNoMemory) {
    for (int32_t id : {kSobol, kNiederr}) {
        const QWords p = UserTable(id == kSobol ? 100 : 400, 9);
        SweepNoMemory([&] {
            void* s = nullptr;
            int32_t status = __qesNewStreamEx(&s, id, static_cast<int32_t>(p.size()), p.data());
            if (s != nullptr) {
                // Chunks made before the failure stay on the stream for deletion.
                if (status == QES_STATUS_NO_MEMORY && id == kSobol)
                    EXPECT_LE(__qesGetNumChunks(s), 1);
                __qesDeleteStream(&s);
            }
            return status;
        });
    }
}

} // namespace
} // namespace brenn::test
