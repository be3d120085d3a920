// A task over a caller's matrix for the tests of the order-based entries, with the
// entries of either precision chosen by the element type.
#ifndef BRENN_TESTS_STATS_ORDER_HARNESS_H
#define BRENN_TESTS_STATS_ORDER_HARNESS_H

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "brenn_stats.h"
#include "platform/threader.h"

namespace brenn::test {

template <typename T>
struct OrderApi;
template <>
struct OrderApi<double> {
    static constexpr auto NewTask = _qesdSSNewTask;
    static constexpr auto Edit = _qesdSSEditTask;
    static constexpr auto EditQuantiles = __qesdSSEditQuantiles;
    static constexpr auto EditStream = __qesdSSEditStreamQuantiles;
    static constexpr auto Quantiles = _qesdSSQuantiles;
    static constexpr auto Sort = _qesdSSSort;
    static constexpr auto Mad = _qesdSSMAD;
    static constexpr auto QSort = __qesdQSort;
    static constexpr auto QSortStep = __qesdQSortStep;
    static constexpr auto Select = __qesdQSortSelect;
};
template <>
struct OrderApi<float> {
    static constexpr auto NewTask = _qessSSNewTask;
    static constexpr auto Edit = _qessSSEditTask;
    static constexpr auto EditQuantiles = __qessSSEditQuantiles;
    static constexpr auto EditStream = __qessSSEditStreamQuantiles;
    static constexpr auto Quantiles = _qessSSQuantiles;
    static constexpr auto Sort = _qessSSSort;
    static constexpr auto Mad = _qessSSMAD;
    static constexpr auto QSort = __qessQSort;
    static constexpr auto QSortStep = __qessQSortStep;
    static constexpr auto Select = __qessQSortSelect;
};

// The bits of a value, so that results compare exactly, NaNs and signed zeros too.
template <typename T>
std::vector<uint64_t> Bits(const std::vector<T>& v) {
    std::vector<uint64_t> b(v.size());
    for (size_t i = 0; i < v.size(); ++i) {
        b[i] = 0;
        std::memcpy(&b[i], &v[i], sizeof(T));
    }
    return b;
}

// Owns a task over x (p variables, n observations, `layout`), with 64-bit words.
template <typename T>
struct OrderTask {
    int64_t p, n, layout;
    std::vector<T> x;
    void* task = nullptr;
    OrderTask(int64_t p_, int64_t n_, int64_t layout_, std::vector<T> x_,
              const int64_t* indices = nullptr)
        : p(p_), n(n_), layout(layout_), x(std::move(x_)) {
        EXPECT_EQ(OrderApi<T>::NewTask(&task, &p, &n, &layout, x.data(), nullptr, indices, 1), 0);
    }
    ~OrderTask() { _qesSSDeleteTask(&task); }
    OrderTask(const OrderTask&) = delete;
    OrderTask& operator=(const OrderTask&) = delete;
};

} // namespace brenn::test

#endif
