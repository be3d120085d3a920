// The per-element reports of one vector-math call: the library's error callback,
// registered on the calling thread for the call and handed on by the front-end to the
// pool threads of a split call, gathers the reported elements' codes and flat indices.
#pragma once

#include <atomic>
#include <cstdint>
#include <mutex>
#include <vector>

#include "brenn.h"

namespace brenn_py {

class Reports {
  public:
    // Elements kept with their index and code: the first ones in index order.
    static constexpr size_t kKept = 32;

    // Index of the next kernel call's element 0 in the whole call's flat order.
    void SetBase(int64_t base) { base_ = base; }
    void Add(int64_t index, int32_t code);

    // Elements reported, by code (1 to 4; others counted under 0).
    int64_t Count(int code) const { return counts_[code].load(std::memory_order_relaxed); }
    // The kept elements, (flat index, code), in index order.
    std::vector<std::pair<int64_t, int32_t>> Kept();

  private:
    int64_t base_ = 0;
    std::atomic<int64_t> counts_[5] = {};
    // Kept elements beyond this index cannot enter the first kKept: skipped unlocked.
    std::atomic<int64_t> cutoff_{INT64_MAX};
    std::mutex lock_;
    std::vector<std::pair<int64_t, int32_t>> kept_;
};

// Registers a Reports as the calling thread's error callback for its lifetime and puts
// the thread's callback and mode word back afterwards. When every callback slot is
// taken by calls of other threads, the call runs without element reports (active()
// is false).
class ReportScope {
  public:
    explicit ReportScope(Reports* reports);
    ~ReportScope();
    ReportScope(const ReportScope&) = delete;
    ReportScope& operator=(const ReportScope&) = delete;
    bool active() const { return slot_ >= 0; }

  private:
    int slot_ = -1;
    uint32_t mode_ = 0;
    ErrorCallback previous_ = nullptr;
};

} // namespace brenn_py
