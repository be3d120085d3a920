// The searchers' fast paths against their plain forms. The hybrid searcher's lanes
// (sixteen sites in step) against the lone-site rule, cell for cell: every block
// length around the lane count, sites at and beside nodes, outside, at the ends,
// infinite and NaN; fresh, stale and arbitrary tables, and no table. The lone rule is
// the reference even where no cell is "right" (a stale table, a NaN), because the
// searcher must give what its steps give. The guess walks, four nodes a test, against
// a walk node by node.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

#include "fitting/search_rules.h"
#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fit;
using namespace brenn::fittest;

namespace {

// The hybrid rule for one site, step by step: the table's bucket narrows the range,
// bisection down to 20 nodes, then the nodes not above the site are counted.
template <typename T>
inline int64_t HybridCell(int64_t nx, const T* x, const SearchPair* table, T scale, T s) {
    if (s < x[0]) return 0;
    if (s > x[nx - 1]) return nx;
    if (s == x[nx - 1]) return nx - 1;
    int64_t lo = 0, hi = nx - 1;
    if (table != nullptr) {
        int64_t b = HybridBucket(x[0], scale, s);
        lo = table[b].lo;
        hi = table[b].hi;
    }
    while (lo < hi - kHybridLinearNodes) {
        int64_t m = (lo + hi) >> 1;
        if (x[m] > s)
            hi = m;
        else
            lo = m;
    }
    if (hi - lo < 2) return hi;
    return lo + CountNotAbove(x, lo, hi, s);
}

template <typename T>
std::vector<T> AwkwardSites(const std::vector<T>& x, int64_t n, uint64_t seed) {
    std::mt19937_64 rng(seed);
    std::uniform_int_distribution<size_t> node(0, x.size() - 1);
    T lo = x.front(), hi = x.back(), span = hi - lo;
    std::uniform_real_distribution<double> u(lo - 0.05 * span, hi + 0.05 * span);
    const T special[] = {std::numeric_limits<T>::quiet_NaN(),
                         std::numeric_limits<T>::infinity(),
                         -std::numeric_limits<T>::infinity(),
                         lo,
                         hi,
                         std::nextafter(hi, T(-1e30)),
                         std::nextafter(lo, T(-1e30))};
    std::vector<T> s(n);
    for (auto& v : s) {
        switch (rng() % 8) {
        case 0:
            v = x[node(rng)];
            break;
        case 1:
            v = std::nextafter(x[node(rng)], T(1e30));
            break;
        case 2:
            v = std::nextafter(x[node(rng)], T(-1e30));
            break;
        case 3:
            v = special[rng() % 7];
            break;
        default:
            v = static_cast<T>(u(rng));
        }
    }
    return s;
}

template <typename T>
void ExpectLanesMatchLoneRule(const std::vector<T>& x, const SearchPair* table, T scale,
                              const std::vector<T>& sites, const char* what) {
    int64_t nx = x.size();
    // Every length from 1 to three groups and a bit, from a few offsets, so that the
    // idle lanes of a short last group are exercised at every count.
    for (int64_t offset : {0, 5, 16}) {
        for (int64_t n = 1; n <= 3 * kHybridLanes + 3; ++n) {
            if (offset + n > static_cast<int64_t>(sites.size())) break;
            std::vector<int32_t> cells(n, -7);
            HybridCells(nx, x.data(), table, scale, n, sites.data() + offset, cells.data());
            for (int64_t j = 0; j < n; ++j)
                ASSERT_EQ(cells[j], static_cast<int32_t>(
                                        HybridCell(nx, x.data(), table, scale, sites[offset + j])))
                    << what << ": nx " << nx << " block " << n << " site " << sites[offset + j];
        }
    }
    std::vector<int32_t> all(sites.size());
    HybridCells(nx, x.data(), table, scale, sites.size(), sites.data(), all.data());
    for (size_t j = 0; j < sites.size(); ++j)
        ASSERT_EQ(all[j], static_cast<int32_t>(HybridCell(nx, x.data(), table, scale, sites[j])))
            << what << ": nx " << nx << " site " << j << " = " << sites[j];
}

template <typename T>
void LanesMatchTheLoneRule() {
    for (int64_t nx : {2, 5, 21, 22, 41, 300, 4099, 30000}) {
        std::vector<T> x = RandomPartition<T>(nx, 100 + nx);
        std::vector<T> sites = AwkwardSites(x, 3000, 200 + nx);
        FitTaskHandle handle = nullptr;
        ASSERT_EQ(NewTask<T>(&handle, nx, x.data(), 0, 0, nullptr, 0), 0);
        auto* task = static_cast<FittingTask*>(handle);
        T scale = SearchScale<T>(task);
        ExpectLanesMatchLoneRule(x, task->searchTable, scale, sites, "fresh table");
        // Without a table the bisection starts from the whole partition.
        ExpectLanesMatchLoneRule(x, static_cast<const SearchPair*>(nullptr), scale, sites,
                                 "no table");
        // A stale table: nodes moved inside the old range, the table kept.
        std::vector<T> moved(x);
        for (auto& v : moved)
            v = v * T(0.75) + T(0.25);
        ExpectLanesMatchLoneRule(moved, task->searchTable, scale, AwkwardSites(moved, 3000, 3),
                                 "stale table");
        brenn_df_kernel_DeleteTask(&handle);
    }
}

TEST(FittingSearchLanes, LanesMatchTheLoneRuleDouble) {
    LanesMatchTheLoneRule<double>();
}
TEST(FittingSearchLanes, LanesMatchTheLoneRuleSingle) {
    LanesMatchTheLoneRule<float>();
}

// Bounds that no fresh table holds: empty and reversed ranges, windows that end at the
// partition's end, ranges of every width up to 60, over nodes not in order. Only the
// indices are kept valid; the steps must still agree one by one.
template <typename T>
void ArbitraryTablesAndUnorderedNodes() {
    std::mt19937_64 rng(31);
    for (int64_t nx : {3, 25, 64, 500}) {
        std::vector<T> x = RandomSites<T>(nx, 40 + nx, -1.0, 1.0);
        // The ends stay the ends, so that sites between them reach the table.
        std::sort(x.begin(), x.end());
        std::shuffle(x.begin() + 1, x.end() - 1, rng);
        constexpr int64_t kBuckets = 16;
        std::vector<SearchPair> table(kBuckets + 2);
        std::uniform_int_distribution<int64_t> index(0, nx - 1), width(-3, 60);
        for (auto& e : table) {
            int64_t lo = index(rng), hi = lo + width(rng);
            if (rng() % 4 == 0) lo = nx - 1 - (rng() % 22); // windows at the end
            hi = hi < 0 ? 0 : (hi > nx - 1 ? nx - 1 : hi);
            lo = lo < 0 ? 0 : lo;
            e = {static_cast<int32_t>(lo), static_cast<int32_t>(hi)};
        }
        T scale = static_cast<T>(kBuckets) / (x.back() - x.front());
        ExpectLanesMatchLoneRule(x, table.data(), scale, AwkwardSites(x, 2000, nx), "arbitrary");
    }
}

TEST(FittingSearchLanes, ArbitraryTablesAndUnorderedNodesDouble) {
    ArbitraryTablesAndUnorderedNodes<double>();
}
TEST(FittingSearchLanes, ArbitraryTablesAndUnorderedNodesSingle) {
    ArbitraryTablesAndUnorderedNodes<float>();
}

} // namespace

namespace {

// The guess walks of the quasi-uniform and user-defined searchers skip four nodes at a
// time; they must stop where a walk node by node stops, from every guess, over nodes
// in order and out of order, with sites between, on and beyond the nodes.
template <typename T>
int64_t NodeByNodeWalk(int64_t nx, const T* x, T s, int64_t e) {
    int64_t c = e >= nx ? nx : e;
    if (e < nx && s >= x[e]) {
        while (c < nx && x[c] <= s)
            ++c;
    } else {
        while (c > 0 && x[c - 1] > s)
            --c;
    }
    return c;
}

template <typename T>
void WalksStopWhereANodeByNodeWalkStops() {
    for (int64_t nx : {1, 2, 3, 4, 5, 7, 8, 9, 33}) {
        for (bool ordered : {true, false}) {
            std::vector<T> x = RandomSites<T>(nx, 90 + nx, -1.0, 1.0);
            if (ordered) std::sort(x.begin(), x.end());
            std::vector<T> sites = RandomSites<T>(40, nx, -1.2, 1.2);
            sites.insert(sites.end(), x.begin(), x.end());
            sites.push_back(std::numeric_limits<T>::quiet_NaN());
            for (T s : sites)
                for (int64_t e = 0; e <= nx; ++e)
                    ASSERT_EQ(WalkFrom(nx, x.data(), s, e), NodeByNodeWalk(nx, x.data(), s, e))
                        << "nx " << nx << " ordered " << ordered << " guess " << e << " site " << s;
        }
    }
}

TEST(FittingSearchLanes, WalksStopWhereANodeByNodeWalkStopsDouble) {
    WalksStopWhereANodeByNodeWalkStops<double>();
}
TEST(FittingSearchLanes, WalksStopWhereANodeByNodeWalkStopsSingle) {
    WalksStopWhereANodeByNodeWalkStops<float>();
}

} // namespace
