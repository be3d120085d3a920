// Streaming quantiles: the same bits whatever the cutting into blocks and whatever the
// threader; the statuses in their order and the edge cases; every allocation failing
// in turn; the summary freed with the task. (The rank guarantee over 10^7
// observations is stream_rank_test.cpp.)
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "platform/serv.h"
#include "stats/task.h"
#include "tests/stats/stream_feeder.h"

namespace brenn::test {
namespace {

// Blocks of 7, of 1000, of 2^20 and of random sizes, and every threader, give the same
// bits at every reading point; single precision and two interleaved variables too.
template <typename T>
void SameBitsWhateverTheCutting(int64_t p, int64_t layout) {
    const int64_t n = 1000000;
    std::vector<double> d = Kind(0, n);
    std::vector<T> x(d.begin(), d.end());
    std::mt19937_64 gen(9);
    const threader* threaders[3] = {nullptr, brenn_serv_serial_threader(),
                                    brenn_serv_pool_threader()};
    for (double eps : {0.1, 0.01, 0.001}) {
        std::vector<uint64_t> first;
        for (int cutting = 0; cutting < 6; ++cutting) {
            Feeder<T> f(eps, p, layout);
            std::vector<T> seen;
            const threader* thr = threaders[cutting < 3 ? 0 : cutting - 3];
            const int64_t size = cutting == 0 ? 7 : cutting == 1 ? 1000 : int64_t(1) << 20;
            for (int64_t point = 1; point <= 4; ++point) {
                const int64_t end = point * n / 4;
                for (int64_t at = (point - 1) * n / 4; at < end;) {
                    int64_t s = cutting == 2 ? 1 + int64_t(gen() % 200000) : size;
                    const int64_t next = std::min(end, at + s);
                    ASSERT_EQ(f.Feed(x, at, next, next == end, thr), 0);
                    at = next;
                }
                seen.insert(seen.end(), f.out.begin(), f.out.end());
            }
            for (int64_t j = 1; j < p; ++j)
                for (int k = 0; k < kOrders; ++k)
                    ASSERT_EQ(f.out[j * kOrders + k], f.out[k]);
            if (cutting == 0)
                first = Bits(seen);
            else
                EXPECT_EQ(Bits(seen), first) << "eps " << eps << " cutting " << cutting;
        }
    }
}

TEST(StreamQuantiles, SameBitsWhateverTheCuttingAndThreader) {
    SameBitsWhateverTheCutting<double>(1, BRENN_SS_MATRIX_STORAGE_ROWS);
    SameBitsWhateverTheCutting<float>(3, BRENN_SS_MATRIX_STORAGE_COLS);
}

TEST(StreamQuantiles, StatusesInOrderAndEdges) {
    using T = double;
    enum Break {
        NoN,
        NoX,
        NoP,
        NoStorage,
        BadStorage,
        NoOut,
        NoOrders,
        NoCount,
        NegativeCount,
        NoParamCount,
        ParamCountTwo,
        OrderAbove,
        OrderNaN,
        NoParams,
        NoMethod,
        EpsZero,
        EpsAbove,
        EpsOne,
        Fine,
    };
    const int32_t want[] = {-4002, -4032, -4001, -4044, -4003, -4070, -4068, -4069, -4069, -4064,
                            -4066, -4069, -4069, -4065, -4029, -4067, -4067, 0,     0};
    for (int b = NoN; b <= Fine; ++b) {
        Feeder<T> f(0.01);
        std::vector<T> x = {1, 2, 3, 4};
        f.n = 4;
        SsEntries<T>::edit(f.task, BRENN_SS_ED_OBSERV, x.data());
        auto* r = static_cast<stats::SSTask*>(f.task);
        int64_t two = 2, bad = 9, negative = -1;
        if (b == NoN) r->observationCount = nullptr;
        if (b == NoX) r->observations = nullptr;
        if (b == NoP) r->dimension = nullptr;
        if (b == NoStorage) r->observationStorage = nullptr;
        if (b == BadStorage) r->observationStorage = &bad;
        if (b == NoOut) r->streamQuantiles = nullptr;
        if (b == NoOrders) r->streamOrders = nullptr;
        if (b == NoCount) r->streamOrderCount = nullptr;
        if (b == NegativeCount) r->streamOrderCount = &negative;
        if (b == NoParamCount) r->streamParamCount = nullptr;
        if (b == ParamCountTwo) r->streamParamCount = &two;
        if (b == OrderAbove) f.orders[2] = 1.5;
        if (b == OrderNaN) f.orders[2] = NAN;
        if (b == NoParams) r->streamParams = nullptr;
        if (b == EpsZero) f.eps = 0;
        if (b == EpsAbove) f.eps = 1.0000001;
        if (b == EpsOne) f.eps = 1;
        const uint64_t method = b == NoMethod ? 0x1 : BRENN_SS_METHOD_STREAM_READ;
        EXPECT_EQ(Stream<T>(f.task, method), want[b]) << "case " << b;
        EXPECT_EQ(f.out[0], want[b] == 0 ? 1.0 : -777.0) << "case " << b;
        if (want[b] == 0) EXPECT_EQ(f.out[kOrders - 1], 4.0);
        if (want[b] != 0) EXPECT_EQ(r->streamState, nullptr);
    }
    // A variable the indices left out at first can't be taken in later.
    int64_t p = 2, n = 3, layout = BRENN_SS_MATRIX_STORAGE_ROWS, m = 1, one = 1;
    int64_t keep[2] = {1, 0};
    T x[6] = {1, 2, 3, 4, 5, 6}, order = 0.5, out[2] = {-1, -1}, eps = 0.1;
    void* task = nullptr;
    _qesdSSNewTask(&task, &p, &n, &layout, x, nullptr, keep, 1);
    __qesdSSEditStreamQuantiles(task, &m, &order, out, &one, &eps);
    EXPECT_EQ(Stream<T>(task, BRENN_SS_METHOD_STREAM_READ), 0);
    EXPECT_EQ(out[0], 2.0);
    EXPECT_EQ(out[1], -1.0);
    keep[1] = 1;
    EXPECT_EQ(Stream<T>(task, BRENN_SS_METHOD_STREAM_READ), BRENN_SS_ERROR_INDICES_MISSING);
    _qesSSDeleteTask(&task);
    EXPECT_EQ(Stream<T>(nullptr, BRENN_SS_METHOD_STREAM_READ), BRENN_SS_ERROR_TASK_NULL);
}

TEST(StreamQuantiles, EachAllocationFailingInTurnAndFreedWithTheTask) {
    std::vector<double> x = Kind(3, 60000);
    const int64_t live = brenn_serv_live_allocations();
    for (int64_t fail = 1;; ++fail) {
        {
            Feeder<double> f(0.01, 2, BRENN_SS_MATRIX_STORAGE_COLS);
            int32_t status = 0;
            brenn_serv_fail_allocation(fail);
            for (int64_t at = 0; at < 60000 && status == 0; at += 7000)
                status = f.Feed(x, at, std::min<int64_t>(60000, at + 7000), true,
                                brenn_serv_pool_threader());
            const bool never = brenn_serv_fail_allocation(0) > 0;
            if (never) {
                EXPECT_EQ(status, 0);
                break;
            }
            EXPECT_EQ(status, BRENN_SS_ERROR_ALLOC) << "allocation " << fail;
            // The summary is still whole: it takes more data and answers.
            EXPECT_EQ(f.Feed(x, 0, 5000, true), 0) << "allocation " << fail;
        }
        EXPECT_EQ(brenn_serv_live_allocations(), live) << "allocation " << fail;
    }
}

} // namespace
} // namespace brenn::test
