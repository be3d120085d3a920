// The failure of the lowest-numbered chunk of a threaded batch: chunks after it are
// skipped, chunks before it still run, and the call returns the status that the same
// batch run chunk by chunk on one thread would have stopped at.
#ifndef BRENN_FITTING_FIRST_FAILURE_H
#define BRENN_FITTING_FIRST_FAILURE_H

#include <atomic>
#include <stdint.h>

namespace brenn::fit {

struct FirstFailure {
    // (chunk << 32) | status bits; all ones: no failure.
    std::atomic<uint64_t> word{~uint64_t(0)};

    // A chunk above a failed one has no need to run.
    bool Skip(int64_t chunk) const {
        return (word.load(std::memory_order_relaxed) >> 32) < static_cast<uint64_t>(chunk);
    }
    void Record(int64_t chunk, int32_t status) {
        uint64_t mine = (static_cast<uint64_t>(chunk) << 32) | static_cast<uint32_t>(status);
        uint64_t seen = word.load(std::memory_order_relaxed);
        while (mine < seen && !word.compare_exchange_weak(seen, mine)) {
        }
    }
    bool Failed() const { return word.load() != ~uint64_t(0); }
    int32_t Status() const {
        uint64_t w = word.load();
        return w == ~uint64_t(0) ? 0 : static_cast<int32_t>(static_cast<uint32_t>(w));
    }
};

} // namespace brenn::fit

#endif
