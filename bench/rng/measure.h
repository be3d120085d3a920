// Timing shared by the random-number benchmarks: each iteration fills one block of
// kBlock elements, and the counter "per_cycle" is elements per time-stamp cycle.
#ifndef BRENN_BENCH_RNG_MEASURE_H
#define BRENN_BENCH_RNG_MEASURE_H

#include <cstdint>

#include <benchmark/benchmark.h>
#include <x86intrin.h>

namespace brenn::bench {

constexpr int kBlock = 1024;

// `perBody` is the number of elements one call of body makes.
template <typename Body>
void Measure(benchmark::State& state, Body body, int64_t perBody = kBlock) {
    uint64_t cycles = 0;
    int64_t elements = 0;
    for (auto _ : state) {
        uint64_t t0 = __rdtsc();
        body();
        cycles += __rdtsc() - t0;
        elements += perBody;
    }
    state.counters["per_cycle"] = static_cast<double>(elements) / static_cast<double>(cycles);
    state.SetItemsProcessed(elements);
}

} // namespace brenn::bench

#endif
