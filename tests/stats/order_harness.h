// A task over a caller's matrix for the tests of the order-based entries, with the
// entries of either precision chosen by the element type, and the bits of results.
#ifndef BRENN_TESTS_STATS_ORDER_HARNESS_H
#define BRENN_TESTS_STATS_ORDER_HARNESS_H

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "brenn_stats.h"
#include "frontend/ss_task.h"
#include "platform/threader.h"

namespace brenn::test {

// The statistics service's entries of each precision (sort and select routines too)
// and the task over a matrix view are the front-end's.
using fe::SsEntries;

// The precisions of the typed tests.
using Precisions = ::testing::Types<double, float>;

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
    struct View {
        int64_t p, n, layout;
        const T* x;
        const T* weights;
        const int64_t* indices;
    };
    std::vector<T> x;
    View view;
    fe::SsTask<T> owner;
    void* task;
    OrderTask(int64_t p, int64_t n, int64_t layout, std::vector<T> x_,
              const int64_t* indices = nullptr)
        : x(std::move(x_)), view{p, n, layout, x.data(), nullptr, indices}, owner(&view),
          task(owner.get()) {
        EXPECT_EQ(owner.status(), 0);
    }
};

} // namespace brenn::test

#endif
