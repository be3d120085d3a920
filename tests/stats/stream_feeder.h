// A task fed with a stream of observations block by block, for the tests of the
// streaming quantiles; the kinds of data they are fed.
#ifndef BRENN_TESTS_STATS_STREAM_FEEDER_H
#define BRENN_TESTS_STATS_STREAM_FEEDER_H

#include <random>
#include <vector>

#include "stats/stream_summary.h"
#include "stats/task.h"
#include "tests/stats/order_harness.h"

namespace brenn::test {

template <typename T>
int32_t Stream(void* task, uint64_t method, const threader* thr = nullptr) {
    if constexpr (sizeof(T) == 8)
        return _qesdSSStreamQuantiles(task, BRENN_SS_STREAM_QUANTS, method, thr);
    else
        return _qessSSStreamQuantiles(task, BRENN_SS_STREAM_QUANTS, method, thr);
}

constexpr int kOrders = 6;
const double kOrderValues[kOrders] = {0, 0.01, 0.25, 0.5, 0.99, 1};

// A task fed block by block from one variable (or p copies of it, interleaved).
template <typename T>
struct Feeder {
    int64_t p, n = 1, layout, m = kOrders, one = 1;
    T orders[kOrders], eps;
    std::vector<T> block, out;
    void* task = nullptr;
    Feeder(double eps_, int64_t p_ = 1, int64_t layout_ = BRENN_SS_MATRIX_STORAGE_ROWS)
        : p(p_), layout(layout_), eps(T(eps_)), out(p_ * kOrders, T(-777)) {
        for (int k = 0; k < kOrders; ++k)
            orders[k] = T(kOrderValues[k]);
        block.resize(1);
        SsEntries<T>::newTask(&task, &p, &n, &layout, block.data(), nullptr, nullptr, 1);
        SsEntries<T>::editStream(task, &m, orders, out.data(), &one, &eps);
    }
    ~Feeder() { _qesSSDeleteTask(&task); }
    // Feeds x[from, to) (every variable the same values) and reads when asked.
    int32_t Feed(const std::vector<T>& x, int64_t from, int64_t to, bool read,
                 const threader* thr = nullptr) {
        n = to - from;
        block.resize(n * p);
        for (int64_t i = 0; i < n; ++i)
            for (int64_t j = 0; j < p; ++j)
                block[layout == BRENN_SS_MATRIX_STORAGE_ROWS ? j * n + i : i * p + j] = x[from + i];
        SsEntries<T>::edit(task, BRENN_SS_ED_OBSERV, block.data());
        return Stream<T>(task, read ? BRENN_SS_METHOD_STREAM_READ : BRENN_SS_METHOD_STREAM_FEED,
                         thr);
    }
    // Entries the summary holds for variable 0.
    int64_t Entries() const {
        auto* s =
            static_cast<stats::StreamSummary*>(static_cast<stats::SSTask*>(task)->streamState);
        const stats::VariableSummary& v = s->variables[0];
        int64_t e = 0;
        for (int32_t l = 0; l < v.levelCount; ++l)
            e += l == 0 ? v.levels[0].capacity : v.levels[l].fill;
        return e;
    }
};

inline std::vector<double> Kind(int kind, int64_t n) {
    std::vector<double> x(n);
    std::mt19937_64 gen(kind + 1);
    std::normal_distribution<double> normal;
    for (int64_t i = 0; i < n; ++i)
        x[i] = kind == 0   ? normal(gen)
               : kind == 1 ? double(i)
               : kind == 2 ? double(n - i)
               : kind == 3 ? double(gen() % 5)
                           : 3.25;
    return x;
}

} // namespace brenn::test

#endif
