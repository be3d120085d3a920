// Cell search: every searcher against the reference cell on random, sorted, clustered
// and uniform sites, nodes and sites outside; the direct and batch paths; the
// selection and its refusals; the user-defined searchers' protocol; threading.
#include <gtest/gtest.h>

#include <cstring>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
using Searcher = int32_t (*)(FitTaskHandle, int64_t, int64_t, const T*, int64_t, const T*, void*,
                             int32_t (*)(const int64_t*, const T*, int64_t*, int32_t*, void*,
                                         int64_t),
                             void*, const threader*, int64_t);

template <typename T>
struct Searchers;
template <>
struct Searchers<double> {
    static constexpr Searcher<double> plain[5] = {
        brenn_df_kernel_dDFUniformSearch1D, brenn_df_kernel_dDFQuasiUniformSearch1D,
        brenn_df_kernel_dDFSortedSearch1D, brenn_df_kernel_dDFPeakSearch1D,
        brenn_df_kernel_dDFHybridSearch1D};
    static constexpr Searcher<double> twin[5] = {
        brenn_df_kernel_dDFUniformSearch1D32, brenn_df_kernel_dDFQuasiUniformSearch1D32,
        brenn_df_kernel_dDFSortedSearch1D32, brenn_df_kernel_dDFPeakSearch1D32,
        brenn_df_kernel_dDFHybridSearch1D32};
};
template <>
struct Searchers<float> {
    static constexpr Searcher<float> plain[5] = {
        brenn_df_kernel_sDFUniformSearch1D, brenn_df_kernel_sDFQuasiUniformSearch1D,
        brenn_df_kernel_sDFSortedSearch1D, brenn_df_kernel_sDFPeakSearch1D,
        brenn_df_kernel_sDFHybridSearch1D};
    static constexpr Searcher<float> twin[5] = {
        brenn_df_kernel_sDFUniformSearch1D32, brenn_df_kernel_sDFQuasiUniformSearch1D32,
        brenn_df_kernel_sDFSortedSearch1D32, brenn_df_kernel_sDFPeakSearch1D32,
        brenn_df_kernel_sDFHybridSearch1D32};
};

// Sites of every kind that matters: random inside and outside, every node, the ends.
template <typename T>
std::vector<T> MixedSites(const std::vector<T>& x, int64_t n, uint64_t seed) {
    T span = x.back() - x.front();
    std::vector<T> s = RandomSites<T>(n, seed, x.front() - 0.1 * span, x.back() + 0.1 * span);
    s.insert(s.end(), x.begin(), x.end());
    s.push_back(x.front() - span);
    s.push_back(x.back() + span);
    // Clustered around one node.
    T mid = x[x.size() / 3];
    for (int i = 0; i < 200; ++i)
        s.push_back(mid + static_cast<T>(i - 100) * span * T(1e-5));
    return s;
}

template <typename T>
void ExpectAllCells(const std::vector<T>& x, const std::vector<T>& sites,
                    const std::vector<int32_t>& cells, const char* what) {
    for (size_t i = 0; i < sites.size(); ++i)
        ASSERT_EQ(cells[i], ReferenceCell(x, sites[i]))
            << what << " site " << i << " = " << sites[i];
}

template <typename T>
void EveryPlainSearcherGivesTheReferenceCell() {
    for (int64_t nx : {2, 3, 21, 100, 5000}) {
        std::vector<T> x = RandomPartition<T>(nx, nx);
        // Uniform searcher needs an exactly uniform partition: integer nodes.
        std::vector<T> xu(nx);
        for (int64_t i = 0; i < nx; ++i)
            xu[i] = static_cast<T>(i) - 7;
        T uniformEnds[2] = {xu.front(), xu.back()};
        for (const threader* thr : Threaders()) {
            for (int k = 0; k < 5; ++k) {
                bool uniform = k == 0;
                const std::vector<T>& px = uniform ? xu : x;
                FitTaskHandle t = nullptr;
                ASSERT_EQ(NewTask<T>(&t, nx, uniform ? uniformEnds : px.data(),
                                     uniform ? FIT_X_UNIFORM : 0, 0, nullptr, 0),
                          0);
                std::vector<T> sites = MixedSites(px, 3000, 11 * nx + k);
                if (k == 2) std::sort(sites.begin(), sites.end());
                // The peak searcher, for every place of the peak.
                T hint[5] = {0, 1, 0, 0, static_cast<T>((nx * 2) / 3)};
                for (auto searcher : {Searchers<T>::plain[k], Searchers<T>::twin[k]}) {
                    std::vector<int32_t> cells(sites.size(), -5);
                    ASSERT_EQ(searcher(t, 0, sites.size(), sites.data(), 0, hint, cells.data(),
                                       nullptr, nullptr, thr, 0),
                              0);
                    ExpectAllCells(px, sites, cells, "searcher");
                }
                brenn_df_kernel_DeleteTask(&t);
            }
        }
    }
}

TEST(FittingSearch, EveryPlainSearcherGivesTheReferenceCellDouble) {
    EveryPlainSearcherGivesTheReferenceCell<double>();
}
TEST(FittingSearch, EveryPlainSearcherGivesTheReferenceCellSingle) {
    EveryPlainSearcherGivesTheReferenceCell<float>();
}

TEST(FittingSearch, PeakSearcherAtEveryPosition) {
    std::vector<double> x = RandomPartition<double>(40, 3);
    std::vector<double> sites = MixedSites(x, 300, 4);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, 40, x.data(), 0, 0, nullptr, 0), 0);
    for (int p = 0; p <= 40; ++p) {
        double hint[5] = {0, 1, 0, 0, p + 0.75};
        if (p == 40) hint[4] = 40; // the right end is allowed, nothing above it
        std::vector<int32_t> cells(sites.size());
        ASSERT_EQ(Search<double>(t, sites.size(), sites.data(), 0, hint, cells.data(), nullptr), 0);
        ExpectAllCells(x, sites, cells, "peak");
    }
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingSearch, SelectionRefusesMalformedDataHints) {
    std::vector<double> x = RandomPartition<double>(10, 5);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, 10, x.data(), 0, 0, nullptr, 0), 0);
    double site = x[3];
    int32_t cell = -1;
    double atEnd[5] = {0, 1, 0, 0, 10}, past[5] = {0, 1, 0, 0, 11}, odd[5] = {0, 2, 0, 0, 0},
           below[5] = {0, 1, 0, 0, -1};
    EXPECT_EQ(Search<double>(t, 1, &site, 0, atEnd, &cell, nullptr), 0);
    EXPECT_EQ(cell, 4);
    EXPECT_EQ(Search<double>(t, 1, &site, 0, past, &cell, nullptr), FIT_STATUS_BAD_DATA_HINT);
    EXPECT_EQ(Search<double>(t, 1, &site, 0, odd, &cell, nullptr), FIT_STATUS_BAD_DATA_HINT);
    EXPECT_EQ(Search<double>(t, 1, &site, 0, below, &cell, nullptr), FIT_STATUS_BAD_DATA_HINT);
    // A higher precedence makes the data hint unread.
    EXPECT_EQ(Search<double>(t, 1, &site, FIT_SITES_SORTED, odd, &cell, nullptr), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_XHINT, FIT_X_QUASI_UNIFORM), 0);
    EXPECT_EQ(Search<double>(t, 1, &site, 0, odd, &cell, nullptr), 0);
    EXPECT_EQ(Search<double>(nullptr, 1, &site, 0, nullptr, &cell, nullptr), FIT_STATUS_NULL_TASK);
    brenn_df_kernel_DeleteTask(&t);
}

// The entry's direct loop (below 32 sites) and the batch frame give the same cells,
// for each selection, in each threading, and with uniform sites.
TEST(FittingSearch, DirectAndBatchPathsAgree) {
    std::vector<double> x = RandomPartition<double>(3000, 8);
    std::vector<double> sites = MixedSites(x, 5000, 9);
    for (int64_t xHint : {0, 2}) {
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<double>(&t, x.size(), x.data(), xHint, 0, nullptr, 0), 0);
        for (const threader* thr : Threaders()) {
            std::vector<int32_t> batch(sites.size());
            ASSERT_EQ(Search<double>(t, sites.size(), sites.data(), 0, nullptr, batch.data(), thr),
                      0);
            for (size_t i = 0; i + 31 <= sites.size(); i += 977) {
                int32_t direct[31];
                ASSERT_EQ(Search<double>(t, 31, sites.data() + i, 0, nullptr, direct, thr), 0);
                ASSERT_EQ(0, std::memcmp(direct, batch.data() + i, sizeof(direct)));
            }
            ExpectAllCells(x, sites, batch, "batch");
        }
        // Uniform sites, small (made in the entry), on the stack and allocated.
        for (int64_t n : {1, 31, 1001, 4095, 5000}) {
            double ends[2] = {x.front() - 0.5, x.back() + 0.5};
            std::vector<double> made(n);
            for (int64_t i = 0; i < n; ++i)
                made[i] = n > 1 ? ends[0] + i * ((ends[1] - ends[0]) / (n - 1)) : ends[0];
            for (const threader* thr : Threaders()) {
                std::vector<int32_t> cells(n);
                ASSERT_EQ(Search<double>(t, n, ends, FIT_SITES_UNIFORM, nullptr, cells.data(), thr),
                          0);
                ExpectAllCells(x, made, cells, "uniform sites");
            }
        }
        brenn_df_kernel_DeleteTask(&t);
    }
}

// A callback that guesses a cell some distance off and vouches only for every third.
struct Guess {
    std::vector<double> x;
    int64_t calls = 0;
    int32_t status = 0;
    int64_t offset = 3;
};

int32_t GuessingCallback(const int64_t* count, const double* site, int64_t* cell, int32_t* flag,
                         void* params, int64_t extra) {
    auto* g = static_cast<Guess*>(params);
    __atomic_add_fetch(&g->calls, 1, __ATOMIC_RELAXED);
    EXPECT_LE(*count, 128);
    for (int64_t j = 0; j < *count; ++j) {
        int64_t c = ReferenceCell(g->x, site[j]);
        bool vouch = j % 3 == 0;
        cell[j] = vouch ? c : c + (j % 2 ? g->offset : -g->offset);
        flag[j] = vouch;
    }
    return g->status;
}

TEST(FittingSearch, UserCallbackGuessesAreCorrected) {
    Guess g;
    g.x = RandomPartition<double>(500, 12);
    std::vector<double> sites = MixedSites(g.x, 2000, 13);
    for (int32_t word : {0, 1}) {
        FitTaskHandle t = nullptr;
        ASSERT_EQ(NewTask<double>(&t, g.x.size(), g.x.data(), 0, 0, nullptr, 0, word), 0);
        for (const threader* thr : Threaders()) {
            g.calls = 0;
            g.status = 7; // a positive status passes through
            std::vector<int64_t> wide(sites.size());
            std::vector<int32_t> narrow(sites.size());
            void* out = word ? static_cast<void*>(wide.data()) : static_cast<void*>(narrow.data());
            EXPECT_EQ(brenn_df_kernel_dDFSearch1D(t, 0, sites.size(), sites.data(), 0, nullptr, out,
                                                  GuessingCallback, &g, thr),
                      7);
            EXPECT_GE(g.calls, static_cast<int64_t>((sites.size() + 127) / 128));
            for (size_t i = 0; i < sites.size(); ++i)
                ASSERT_EQ(word ? wide[i] : narrow[i], ReferenceCell(g.x, sites[i])) << i;
        }
        brenn_df_kernel_DeleteTask(&t);
    }
}

TEST(FittingSearch, UserStatusStopsOrTrustsTheBlock) {
    Guess g;
    g.x = RandomPartition<double>(50, 14);
    g.offset = 1000; // far outside the partition
    std::vector<double> sites = RandomSites<double>(300, 15, -2, 3);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, g.x.size(), g.x.data(), 0, 0, nullptr, 0), 0);
    std::vector<int32_t> cells(sites.size());
    g.status = FIT_SEARCH_ALL_CELLS_RIGHT;
    ASSERT_EQ(brenn_df_kernel_dDFSearch1D(t, 0, sites.size(), sites.data(), 0, nullptr,
                                          cells.data(), GuessingCallback, &g, nullptr),
              0);
    // Nothing corrected, even the cells out of range.
    EXPECT_EQ(cells[1], ReferenceCell(g.x, sites[1]) + 1000);
    g.status = -5;
    g.calls = 0;
    EXPECT_EQ(brenn_df_kernel_dDFSearch1D(t, 0, sites.size(), sites.data(), 0, nullptr,
                                          cells.data(), GuessingCallback, &g, nullptr),
              -5);
    EXPECT_EQ(g.calls, 1);
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingSearch, UniformUserSearcherIgnoresTheGuess) {
    Guess g;
    int64_t nx = 64;
    for (int64_t i = 0; i < nx; ++i)
        g.x.push_back(static_cast<double>(i) * 0.25);
    g.offset = 5;
    double ends[2] = {g.x.front(), g.x.back()};
    std::vector<double> sites = MixedSites(g.x, 700, 16);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, nx, ends, FIT_X_UNIFORM, 0, nullptr, 0), 0);
    std::vector<int32_t> cells(sites.size());
    ASSERT_EQ(brenn_df_kernel_dDFSearch1D(t, 0, sites.size(), sites.data(), 0, nullptr,
                                          cells.data(), GuessingCallback, &g, nullptr),
              0);
    ExpectAllCells(g.x, sites, cells, "uni user");
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingSearch, SortedWalkRestartsAfterTheRightEnd) {
    std::vector<double> x = RandomPartition<double>(1000, 17);
    std::vector<double> sites;
    for (int r = 0; r < 3; ++r) {
        std::vector<double> run = RandomSites<double>(400, 18 + r, x.front(), x.back());
        std::sort(run.begin(), run.end());
        sites.insert(sites.end(), run.begin(), run.end());
        sites.push_back(x.back());
    }
    // Each run starts anew only after the right end; within a run the walk goes on.
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, x.size(), x.data(), 0, 0, nullptr, 0), 0);
    for (int r = 0; r < 3; ++r) {
        std::vector<double> one(sites.begin() + r * 401, sites.begin() + (r + 1) * 401);
        std::vector<int32_t> cells(one.size());
        ASSERT_EQ(Search<double>(t, one.size(), one.data(), FIT_SITES_SORTED, nullptr, cells.data(),
                                 nullptr),
                  0);
        ExpectAllCells(x, one, cells, "sorted");
    }
    brenn_df_kernel_DeleteTask(&t);
}

TEST(FittingSearch, AllocationOfUniformSitesCanFail) {
    std::vector<double> x = RandomPartition<double>(100, 19);
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<double>(&t, x.size(), x.data(), 0, 0, nullptr, 0), 0);
    double ends[2] = {0, 1};
    std::vector<int32_t> cells(5000);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Search<double>(t, 5000, ends, FIT_SITES_UNIFORM, nullptr, cells.data(), nullptr),
              FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
