// Gathering of reported elements: a fixed set of callback slots, each its own
// function (the library's callback takes no context pointer, and the pool threads of
// a split call get the caller's callback, so the function itself names the call).
#include "python/src/vm_reports.h"

#include <algorithm>
#include <array>
#include <utility>

namespace brenn_py {
namespace {

constexpr int kSlots = 64;
std::atomic<Reports*> gSlots[kSlots];

template <int I>
int Collect(ErrorRecord* record) {
    gSlots[I].load(std::memory_order_acquire)->Add(record->index, record->code);
    return 0; // not handled: the error mode's other actions and the result stand
}

template <int... I>
constexpr std::array<ErrorCallback, kSlots> MakeCallbacks(std::integer_sequence<int, I...>) {
    return {&Collect<I>...};
}
constexpr auto kCallbacks = MakeCallbacks(std::make_integer_sequence<int, kSlots>());

} // namespace

void Reports::Add(int64_t index, int32_t code) {
    counts_[code >= 1 && code <= 4 ? code : 0].fetch_add(1, std::memory_order_relaxed);
    int64_t at = base_ + index;
    if (at >= cutoff_.load(std::memory_order_relaxed)) return;
    std::lock_guard<std::mutex> hold(lock_);
    kept_.emplace_back(at, code);
    // Blocks of a split call report out of order: keep the smallest indices.
    if (kept_.size() >= 2 * kKept) {
        std::nth_element(kept_.begin(), kept_.begin() + kKept - 1, kept_.end());
        kept_.resize(kKept);
        cutoff_.store(std::max_element(kept_.begin(), kept_.end())->first,
                      std::memory_order_relaxed);
    }
}

std::vector<std::pair<int64_t, int32_t>> Reports::Kept() {
    std::lock_guard<std::mutex> hold(lock_);
    std::sort(kept_.begin(), kept_.end());
    if (kept_.size() > kKept) kept_.resize(kKept);
    return kept_;
}

ReportScope::ReportScope(Reports* reports) {
    for (int i = 0; i < kSlots; ++i) {
        Reports* empty = nullptr;
        if (gSlots[i].compare_exchange_strong(empty, reports, std::memory_order_acq_rel)) {
            slot_ = i;
            break;
        }
    }
    if (slot_ < 0) return;
    mode_ = brenn_zar_kernel_GetMode();
    previous_ = brenn_zar_kernel_SetErrorCallBack(kCallbacks[slot_]);
}

ReportScope::~ReportScope() {
    if (slot_ < 0) return;
    brenn_zar_kernel_SetErrorCallBack(previous_);
    brenn_zar_kernel_SetMode(mode_);
    gSlots[slot_].store(nullptr, std::memory_order_release);
}

} // namespace brenn_py
