// Sort, select, quantiles, order statistics, the sort entry and the MAD: what the numpy
// comparison can't show. The in-place routines against std::sort on sizes around the
// insertion threshold and with ties, NaNs anywhere (the routines stay in bounds; run
// under AddressSanitizer), the statuses of each entry in their order, the edge cases
// of the quantile rule, results of left-out variables kept, the same bits whatever
// the threader, and every allocation failing in turn.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>

#include "platform/serv.h"
#include "stats/task.h"
#include "tests/stats/order_harness.h"

namespace brenn::test {
namespace {

template <typename T>
class OrderTest : public ::testing::Test {};
TYPED_TEST_SUITE(OrderTest, Precisions);

template <typename T>
std::vector<T> Random(int64_t n, int range, uint64_t seed) {
    std::mt19937_64 gen(seed);
    std::vector<T> v(n);
    for (T& e : v)
        e = range > 0 ? T(static_cast<int>(gen() % range)) : T(std::normal_distribution<>()(gen));
    return v;
}

TYPED_TEST(OrderTest, SortAndSelectAgreeWithStdSort) {
    using T = TypeParam;
    for (int64_t n : {1, 2, 3, 5, 6, 7, 8, 9, 31, 1000, 100000})
        for (int range : {0, 2, 50}) {
            std::vector<T> v = Random<T>(n, range, n * 7 + range), want = v;
            std::sort(want.begin(), want.end());
            std::vector<T> s = v;
            SsEntries<T>::qsort(n, s.data());
            EXPECT_EQ(Bits(s), Bits(want)) << "n " << n << " range " << range;
            // Strided: every third element, the others untouched.
            std::vector<T> wide(3 * n, T(-7));
            for (int64_t i = 0; i < n; ++i)
                wide[3 * i] = v[i];
            SsEntries<T>::qsortStep(n, wide.data(), 3);
            for (int64_t i = 0; i < n; ++i) {
                ASSERT_EQ(wide[3 * i], want[i]);
                ASSERT_EQ(wide[3 * i + 1], T(-7));
            }
            for (int64_t k : {int64_t(0), n / 3, n / 2, n - 1}) {
                std::vector<T> a = v;
                ASSERT_EQ(SsEntries<T>::select(n, a.data(), k), want[k]) << n << " " << k;
                for (int64_t i = 0; i < n; ++i)
                    ASSERT_TRUE(i < k ? a[i] <= a[k] : a[i] >= a[k]);
            }
        }
}

TYPED_TEST(OrderTest, NaNsAnywhereStayInBounds) {
    using T = TypeParam;
    const T nan = std::numeric_limits<T>::quiet_NaN();
    // NaN at the ends, the middle, everywhere, and as every other element: the scans
    // must stop inside the range whatever the pivot; the values are kept.
    for (int64_t n : {2, 3, 7, 8, 64, 5000})
        for (int pattern = 0; pattern < 5; ++pattern) {
            std::vector<T> v = Random<T>(n, pattern == 4 ? 3 : 0, pattern);
            for (int64_t i = 0; i < n; ++i)
                if ((pattern == 0 && i == 0) || (pattern == 1 && i == n - 1) ||
                    (pattern == 2 && i == n / 2) || pattern == 3 || (pattern == 4 && i % 2))
                    v[i] = nan;
            std::vector<T> s = v;
            SsEntries<T>::qsort(n, s.data());
            std::vector<T> step(2 * n);
            for (int64_t i = 0; i < n; ++i)
                step[2 * i] = v[i];
            SsEntries<T>::qsortStep(n, step.data(), 2);
            for (int64_t k : {int64_t(0), n / 2, n - 1}) {
                std::vector<T> a = v;
                SsEntries<T>::select(n, a.data(), k);
            }
            auto nans = [](const std::vector<T>& a) {
                return std::count_if(a.begin(), a.end(), [](T e) { return std::isnan(e); });
            };
            EXPECT_EQ(nans(s), nans(v));
            // Quantiles and the MAD over such data run to the end as well.
            OrderTask<T> t(1, n, BRENN_SS_MATRIX_STORAGE_ROWS, v);
            int64_t m = 3;
            T orders[3] = {0, T(0.5), 1}, q[3];
            SsEntries<T>::editQuantiles(t.task, &m, orders, q, nullptr, nullptr);
            EXPECT_EQ(
                SsEntries<T>::quantiles(t.task, BRENN_SS_QUANTS, BRENN_SS_METHOD_FAST, nullptr), 0);
            T mad;
            EXPECT_EQ(SsEntries<T>::mad(t.task, BRENN_SS_MDAD, BRENN_SS_METHOD_FAST, &mad, nullptr),
                      0);
        }
}

TYPED_TEST(OrderTest, QuantileRuleEdges) {
    using T = TypeParam;
    // One observation: every order gives it.
    {
        OrderTask<T> t(2, 1, BRENN_SS_MATRIX_STORAGE_COLS, {T(4.5), T(-2)});
        int64_t m = 4;
        T orders[4] = {0, T(0.3), T(0.999), 1}, q[8];
        SsEntries<T>::editQuantiles(t.task, &m, orders, q, nullptr, nullptr);
        ASSERT_EQ(SsEntries<T>::quantiles(t.task, BRENN_SS_QUANTS, BRENN_SS_METHOD_FAST, nullptr),
                  0);
        for (int k = 0; k < 4; ++k) {
            EXPECT_EQ(q[k], T(4.5));
            EXPECT_EQ(q[4 + k], T(-2));
        }
    }
    // 0 and 1 give the extremes, even past infinities; an order that falls on an
    // element gives it exactly; orders repeated and descending reuse the scratch.
    std::vector<T> v = {3, -1, T(INFINITY), 7, 2, -T(INFINITY), 5, 0, 4};
    OrderTask<T> t(1, 9, BRENN_SS_MATRIX_STORAGE_ROWS, v);
    int64_t m = 7;
    T orders[7] = {1, 0, T(0.5), T(0.5), T(0.25), T(0.75), T(0.125)};
    T q[7], os[9];
    int64_t osLayout = BRENN_SS_MATRIX_STORAGE_ROWS;
    SsEntries<T>::editQuantiles(t.task, &m, orders, q, os, &osLayout);
    for (uint64_t e : {BRENN_SS_QUANTS, BRENN_SS_QUANTS | BRENN_SS_ORDER_STATS}) {
        ASSERT_EQ(SsEntries<T>::quantiles(t.task, e, BRENN_SS_METHOD_FAST, nullptr), 0);
        const T want[7] = {T(INFINITY), -T(INFINITY), 3, 3, 0, 5, T(-1)};
        for (int k = 0; k < 7; ++k)
            EXPECT_EQ(q[k], want[k]) << "order " << orders[k];
        EXPECT_EQ(t.x, v); // the caller's observations are never written
    }
}

// Each row: what to break, and the status that must come back.
enum Break {
    NoX,
    NoN,
    ZeroN,
    NoP,
    NoStorage,
    NoOsStorage,
    BadStorage,
    BadOsStorage,
    NoOrders,
    NoQuantiles,
    NoCount,
    NegativeCount,
    OrderAbove,
    OrderNaN,
    OrderNegative,
    NoOs,
    BadMethod,
};

TYPED_TEST(OrderTest, QuantileStatusesInOrder) {
    using T = TypeParam;
    struct Case {
        Break what;
        int32_t status;
    };
    const Case cases[] = {
        {NoX, -4032},        {NoN, -4002},         {ZeroN, -4002},         {NoP, -4001},
        {NoStorage, -4044},  {NoOsStorage, -4044}, {BadStorage, -4003},    {BadOsStorage, -4003},
        {NoOrders, -4021},   {NoQuantiles, -4023}, {NoCount, -4022},       {NegativeCount, -4022},
        {OrderAbove, -4022}, {OrderNaN, -4022},    {OrderNegative, -4022}, {NoOs, -4024},
        {BadMethod, -4029},
    };
    for (const Case& c : cases) {
        int64_t p = 2, n = 5, layout = BRENN_SS_MATRIX_STORAGE_ROWS, m = 2;
        int64_t osLayout = BRENN_SS_MATRIX_STORAGE_COLS, zero = 0, bad = 7, negative = -1;
        std::vector<T> x = Random<T>(10, 0, 3);
        T orders[2] = {T(0.5), T(0.2)}, q[4] = {9, 9, 9, 9}, os[10];
        void* task = nullptr;
        ASSERT_EQ(SsEntries<T>::newTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1), 0);
        SsEntries<T>::editQuantiles(task, &m, orders, q, os, &osLayout);
        // The editors refuse a null address, so missing fields are cleared in the record.
        auto* r = static_cast<brenn::stats::SSTask*>(task);
        if (c.what == NoX) r->observations = nullptr;
        if (c.what == NoN) r->observationCount = nullptr;
        if (c.what == ZeroN) _qesiSSEditTask(task, BRENN_SS_ED_OBSERV_N, &zero);
        if (c.what == NoP) r->dimension = nullptr;
        if (c.what == NoStorage) r->observationStorage = nullptr;
        if (c.what == NoOsStorage) r->orderStatisticsStorage = nullptr;
        if (c.what == BadStorage) _qesiSSEditTask(task, BRENN_SS_ED_OBSERV_STORAGE, &bad);
        if (c.what == BadOsStorage) _qesiSSEditTask(task, BRENN_SS_ED_ORDER_STATS_STORAGE, &bad);
        if (c.what == NoOrders) r->quantileOrders = nullptr;
        if (c.what == NoQuantiles) r->quantiles = nullptr;
        if (c.what == NoCount) r->quantileOrderCount = nullptr;
        if (c.what == NegativeCount) _qesiSSEditTask(task, BRENN_SS_ED_QUANT_ORDER_N, &negative);
        if (c.what == OrderAbove) orders[1] = T(1.0000001);
        if (c.what == OrderNaN) orders[1] = std::numeric_limits<T>::quiet_NaN();
        if (c.what == OrderNegative) orders[0] = T(-0.25);
        if (c.what == NoOs) r->orderStatistics = nullptr;
        const uint64_t method = c.what == BadMethod ? 0x2 : BRENN_SS_METHOD_FAST;
        const int64_t live = brenn_serv_live_allocations();
        EXPECT_EQ(
            SsEntries<T>::quantiles(task, BRENN_SS_QUANTS | BRENN_SS_ORDER_STATS, method, nullptr),
            c.status)
            << "case " << c.what;
        EXPECT_EQ(brenn_serv_live_allocations(), live);
        for (T e : q)
            EXPECT_EQ(e, T(9));
        _qesSSDeleteTask(&task);
    }
    EXPECT_EQ(SsEntries<T>::quantiles(nullptr, BRENN_SS_QUANTS, 1, nullptr), -4031);
}

TYPED_TEST(OrderTest, SortStatusesAndLayouts) {
    using T = TypeParam;
    const int64_t rows = BRENN_SS_MATRIX_STORAGE_ROWS, cols = BRENN_SS_MATRIX_STORAGE_COLS;
    std::vector<T> x = {5, 1, 4, 2, 3, 0}; // 2 variables of 3, interleaved
    int64_t keep[2] = {0, 1}, bad = 3;
    struct Case {
        bool inPlace;
        const int64_t* storage;
        bool indices;
        uint64_t method;
        int32_t status;
    };
    const Case cases[] = {
        {false, nullptr, false, 1, -4044}, {false, &bad, false, 1, -4003},
        {true, &rows, false, 1, -4085},    {true, &cols, true, 1, -4085},
        {false, &rows, false, 2, -4029},   {true, &cols, false, 1, 0},
        {false, &rows, true, 1, 0},
    };
    for (const Case& c : cases) {
        OrderTask<T> t(2, 3, cols, x, c.indices ? keep : nullptr);
        std::vector<T> out(6, T(-1));
        T* target = c.inPlace ? t.x.data() : out.data();
        SsEntries<T>::edit(t.task, BRENN_SS_ED_SORTED_OBSERV, target);
        if (c.storage) _qesiSSEditTask(t.task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, c.storage);
        EXPECT_EQ(SsEntries<T>::sort(t.task, BRENN_SS_SORTED_OBSERV, c.method, nullptr), c.status);
        if (c.status != 0) continue;
        const std::vector<T> want =
            c.inPlace ? std::vector<T>{3, 0, 4, 1, 5, 2} : std::vector<T>{-1, -1, -1, 0, 1, 2};
        EXPECT_EQ(c.inPlace ? t.x : out, want);
    }
    // No result array at all.
    OrderTask<T> t(2, 3, cols, x);
    EXPECT_EQ(SsEntries<T>::sort(t.task, BRENN_SS_SORTED_OBSERV, 1, nullptr), -4084);
}

TYPED_TEST(OrderTest, MadStatusesAndConstant) {
    using T = TypeParam;
    OrderTask<T> t(2, 4, BRENN_SS_MATRIX_STORAGE_ROWS, {2, 2, 2, 2, 1, 9, 3, 4});
    T r[2] = {-1, -1};
    EXPECT_EQ(SsEntries<T>::mad(t.task, BRENN_SS_MDAD, 1, nullptr, nullptr), -4082);
    EXPECT_EQ(SsEntries<T>::mad(t.task, BRENN_SS_MDAD, 3, r, nullptr), -4029);
    EXPECT_EQ(SsEntries<T>::mad(nullptr, BRENN_SS_MDAD, 1, r, nullptr), -4031);
    ASSERT_EQ(SsEntries<T>::mad(t.task, BRENN_SS_MDAD, 1, r, nullptr), 0);
    EXPECT_EQ(r[0], T(0));
    // median 3.5; deviations 2.5 5.5 0.5 0.5: median 1.5.
    EXPECT_EQ(r[1], T(1.5));
}

TYPED_TEST(OrderTest, ThreadersGiveTheSameBits) {
    using T = TypeParam;
    const int64_t p = 9, n = 20001;
    const int64_t keep[9] = {1, 1, 0, 1, 1, 1, 1, 0, 1};
    std::vector<T> x = Random<T>(p * n, 0, 11);
    const threader* threaders[3] = {nullptr, brenn_serv_serial_threader(),
                                    brenn_serv_pool_threader()};
    std::vector<uint64_t> first[3];
    for (int which = 0; which < 3; ++which) {
        OrderTask<T> t(p, n, BRENN_SS_MATRIX_STORAGE_COLS, x, keep);
        int64_t m = 3, rows = BRENN_SS_MATRIX_STORAGE_ROWS;
        T orders[3] = {T(0.1), T(0.5), T(0.9)};
        std::vector<T> q(p * m, T(7)), os(p * n, T(7)), mad(p, T(7)), sorted(p * n, T(7));
        SsEntries<T>::editQuantiles(t.task, &m, orders, q.data(), os.data(), &rows);
        SsEntries<T>::edit(t.task, BRENN_SS_ED_SORTED_OBSERV, sorted.data());
        _qesiSSEditTask(t.task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, &rows);
        const threader* thr = threaders[which];
        ASSERT_EQ(SsEntries<T>::quantiles(t.task, BRENN_SS_QUANTS | BRENN_SS_ORDER_STATS, 1, thr),
                  0);
        ASSERT_EQ(SsEntries<T>::mad(t.task, BRENN_SS_MDAD, 1, mad.data(), thr), 0);
        ASSERT_EQ(SsEntries<T>::sort(t.task, BRENN_SS_SORTED_OBSERV, 1, thr), 0);
        EXPECT_EQ(q[2 * m], T(7));
        EXPECT_EQ(mad[7], T(7));
        EXPECT_EQ(os, sorted);
        std::vector<T> all = q;
        all.insert(all.end(), os.begin(), os.end());
        all.insert(all.end(), mad.begin(), mad.end());
        first[which] = Bits(all);
        if (which > 0) EXPECT_EQ(first[which], first[0]) << "threader " << which;
    }
}

TYPED_TEST(OrderTest, EachAllocationFailingInTurn) {
    using T = TypeParam;
    std::vector<T> x = Random<T>(3 * 500, 0, 5);
    for (int entry = 0; entry < 3; ++entry)
        for (int64_t fail = 1;; ++fail) {
            OrderTask<T> t(3, 500, BRENN_SS_MATRIX_STORAGE_COLS, x);
            int64_t m = 2, rows = BRENN_SS_MATRIX_STORAGE_ROWS;
            T orders[2] = {T(0.5), T(0.9)}, q[6], mad[3];
            std::vector<T> os(x.size());
            SsEntries<T>::editQuantiles(t.task, &m, orders, q, os.data(), &rows);
            SsEntries<T>::edit(t.task, BRENN_SS_ED_SORTED_OBSERV, os.data());
            _qesiSSEditTask(t.task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, &rows);
            const int64_t live = brenn_serv_live_allocations();
            brenn_serv_fail_allocation(fail);
            const threader* pool = brenn_serv_pool_threader();
            int32_t s = entry == 0   ? SsEntries<T>::quantiles(t.task, BRENN_SS_QUANTS, 1, pool)
                        : entry == 1 ? SsEntries<T>::mad(t.task, BRENN_SS_MDAD, 1, mad, pool)
                                     : SsEntries<T>::sort(t.task, BRENN_SS_SORTED_OBSERV, 1, pool);
            const bool never = brenn_serv_fail_allocation(0) > 0;
            EXPECT_EQ(brenn_serv_live_allocations(), live);
            if (never) {
                EXPECT_EQ(s, 0);
                break;
            }
            EXPECT_EQ(s, BRENN_SS_ERROR_ALLOC) << "entry " << entry << " allocation " << fail;
        }
}

} // namespace
} // namespace brenn::test
