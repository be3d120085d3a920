// Speed of the congruential generators: words per cycle of MCG31M1 and MCG59 and
// doubles per cycle of the double uniform, beside a plain scalar recurrence with a
// division, std::minstd_rand and GSL's generators. Each benchmark fills a block of
// 1024 elements per iteration; the counter "per_cycle" is elements per time-stamp
// cycle.
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>
#include <x86intrin.h>

#include "bench/rng/measure.h"
#include "brenn_rng.h"

#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_rng.h>
#endif

namespace {

using brenn::bench::kBlock;
using brenn::bench::Measure;

void* Stream(int32_t brng) {
    void* s = nullptr;
    uint32_t seed = 12345;
    __qesNewStreamEx(&s, brng, 1, &seed);
    return s;
}

void BM_Mcg31m1Words(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MCG31M1);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        _qesiRngUniformBits(0, s, kBlock, r.data());
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void BM_Mcg59Words(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MCG59);
    std::vector<uint64_t> r(kBlock);
    Measure(state, [&] {
        _qesiRngUniformBits(0, s, kBlock, r.data());
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void BM_DoubleUniformMcg31m1(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MCG31M1);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        _qesdRngUniform(0, s, kBlock, r.data(), 0.0, 1.0);
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void BM_DoubleUniformMcg59(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MCG59);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        _qesdRngUniform(0, s, kBlock, r.data(), 0.0, 1.0);
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

// The straightforward loops one would write: a 64-bit remainder per word.
void BM_ScalarLoopMcg31m1(benchmark::State& state) {
    std::vector<uint32_t> r(kBlock);
    uint64_t x = 12345;
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i) {
            r[i] = static_cast<uint32_t>(x);
            x = x * 1132489760u % 2147483647u;
        }
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_ScalarLoopMcg59(benchmark::State& state) {
    std::vector<uint64_t> r(kBlock);
    uint64_t x = 12345;
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i) {
            r[i] = x;
            x = x * 302875106592253ull & ((uint64_t{1} << 59) - 1);
        }
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_ScalarLoopDoubleMcg31m1(benchmark::State& state) {
    std::vector<double> r(kBlock);
    uint64_t x = 12345;
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i) {
            r[i] = static_cast<double>(x) / 2147483647.0;
            x = x * 1132489760u % 2147483647u;
        }
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_StdMinstdRand(benchmark::State& state) {
    std::minstd_rand g(12345);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = static_cast<uint32_t>(g());
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_StdMinstdRandDouble(benchmark::State& state) {
    std::minstd_rand g(12345);
    std::uniform_real_distribution<double> u(0.0, 1.0);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = u(g);
        benchmark::DoNotOptimize(r.data());
    });
}

#ifdef BRENN_BENCH_GSL
void GslWords(benchmark::State& state, const gsl_rng_type* type) {
    gsl_rng* g = gsl_rng_alloc(type);
    gsl_rng_set(g, 12345);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = static_cast<uint32_t>(gsl_rng_get(g));
        benchmark::DoNotOptimize(r.data());
    });
    gsl_rng_free(g);
}

void GslDoubles(benchmark::State& state, const gsl_rng_type* type) {
    gsl_rng* g = gsl_rng_alloc(type);
    gsl_rng_set(g, 12345);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = gsl_rng_uniform(g);
        benchmark::DoNotOptimize(r.data());
    });
    gsl_rng_free(g);
}

void BM_GslMinstdWords(benchmark::State& state) {
    GslWords(state, gsl_rng_minstd);
}
void BM_GslMt19937Words(benchmark::State& state) {
    GslWords(state, gsl_rng_mt19937);
}
void BM_GslMinstdDoubles(benchmark::State& state) {
    GslDoubles(state, gsl_rng_minstd);
}
void BM_GslMt19937Doubles(benchmark::State& state) {
    GslDoubles(state, gsl_rng_mt19937);
}
BENCHMARK(BM_GslMinstdWords);
BENCHMARK(BM_GslMt19937Words);
BENCHMARK(BM_GslMinstdDoubles);
BENCHMARK(BM_GslMt19937Doubles);
#endif

BENCHMARK(BM_Mcg31m1Words);
BENCHMARK(BM_Mcg59Words);
BENCHMARK(BM_DoubleUniformMcg31m1);
BENCHMARK(BM_DoubleUniformMcg59);
BENCHMARK(BM_ScalarLoopMcg31m1);
BENCHMARK(BM_ScalarLoopMcg59);
BENCHMARK(BM_ScalarLoopDoubleMcg31m1);
BENCHMARK(BM_StdMinstdRand);
BENCHMARK(BM_StdMinstdRandDouble);

} // namespace

BENCHMARK_MAIN();
