// The threading layer: every task index runs exactly once, the caller takes part,
// nested and concurrent calls fall back to their own thread, and the limit holds.
#include <atomic>
#include <set>
#include <thread>
#include <vector>

#include <gtest/gtest.h>

#include "platform/threader.h"

namespace {

struct Counts {
    std::vector<std::atomic<int>> hits;
    std::atomic<int> maxThread{0};
    explicit Counts(int64_t n) : hits(static_cast<size_t>(n)) {}
};

void CountChunk(int64_t i, int thread, int64_t, void* context) {
    auto* c = static_cast<Counts*>(context);
    c->hits[static_cast<size_t>(i)].fetch_add(1);
    int seen = c->maxThread.load();
    while (thread > seen && !c->maxThread.compare_exchange_weak(seen, thread)) {
    }
}

void ExpectEachOnce(const threader* t, int64_t n, int threads) {
    Counts c(n);
    t->parallelFor(n, threads, &c, CountChunk);
    for (int64_t i = 0; i < n; ++i) ASSERT_EQ(c.hits[static_cast<size_t>(i)].load(), 1) << i;
    EXPECT_LT(c.maxThread.load(), t->maxThreads());
}

TEST(Threader, PoolAndSerialRunEveryTaskOnce) {
    for (int64_t n : {0, 1, 2, 3, 17, 1000, 100000}) {
        ExpectEachOnce(brenn_serv_pool_threader(), n, 0);
        ExpectEachOnce(brenn_serv_pool_threader(), n, 1);
        ExpectEachOnce(brenn_serv_serial_threader(), n, 0);
    }
    EXPECT_EQ(brenn_serv_serial_threader()->maxThreads(), 1);
    EXPECT_GE(brenn_qes_serv_threader_get_num_threads_limit(), 1);
}

void Nested(int64_t, int, int64_t, void* context) {
    // A call from inside a pool job runs on its own thread and still covers all.
    ExpectEachOnce(brenn_serv_pool_threader(), 50, 0);
    static_cast<std::atomic<int>*>(context)->fetch_add(1);
}

TEST(Threader, NestedAndConcurrentCallsComplete) {
    std::atomic<int> outer{0};
    brenn_qes_serv_threader_for(8, 0, &outer, Nested);
    EXPECT_EQ(outer.load(), 8);

    std::vector<std::thread> callers;
    for (int t = 0; t < 3; ++t)
        callers.emplace_back([] {
            for (int r = 0; r < 20; ++r) ExpectEachOnce(brenn_serv_pool_threader(), 257, 0);
        });
    for (auto& t : callers) t.join();
}

void TeamWorker(int thread, int count, void* context) {
    auto* seen = static_cast<std::vector<std::atomic<int>>*>(context);
    ASSERT_LT(thread, count);
    (*seen)[static_cast<size_t>(thread)].fetch_add(1);
}

TEST(Threader, TeamRunsOneCallPerThreadAndLimitIsLowered) {
    int limit = brenn_qes_serv_threader_get_num_threads_limit();
    std::vector<std::atomic<int>> seen(256);
    brenn_serv_pool_threader()->runTeam(&seen, TeamWorker);
    for (int t = 0; t < limit; ++t) EXPECT_EQ(seen[static_cast<size_t>(t)].load(), 1) << t;

    int previous = brenn_serv_set_num_threads(1);
    EXPECT_EQ(previous, limit);
    EXPECT_EQ(brenn_qes_serv_threader_get_num_threads_limit(), 1);
    ExpectEachOnce(brenn_serv_pool_threader(), 100, 0);
    brenn_serv_set_num_threads(0);
    EXPECT_EQ(brenn_qes_serv_threader_get_num_threads_limit(), limit);
}

TEST(Threader, FunctionsFoundByName) {
    EXPECT_EQ(brenn_serv_load_thread_fun("brenn_qes_serv_threader_for"),
              reinterpret_cast<void*>(&brenn_qes_serv_threader_for));
    EXPECT_EQ(brenn_serv_load_thread_fun("brenn_qes_serv_threader_get_num_threads_limit"),
              reinterpret_cast<void*>(&brenn_qes_serv_threader_get_num_threads_limit));
    EXPECT_EQ(brenn_serv_load_thread_fun("no_such_function"), nullptr);
    EXPECT_EQ(brenn_serv_load_thread_fun(nullptr), nullptr);
}

} // namespace
