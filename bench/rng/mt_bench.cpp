// Speed of the Mersenne Twister family: words per cycle of MT19937, SFMT19937 and
// MT2203 iGenerate and doubles per cycle of dGenerate, beside std::mt19937, GSL's
// gsl_rng_mt19937 (in rng_bench.cpp) and a straightforward scalar MT written here;
// and the time of an MT19937 skip-ahead by 2^40. Blocks of 1024 elements, as in
// rng_bench.cpp; "per_cycle" is elements per time-stamp cycle.
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>
#include <x86intrin.h>

#include "bench/rng/measure.h"
#include "brenn_rng.h"

namespace {

using brenn::bench::kBlock;
using brenn::bench::Measure;

void* Stream(int32_t brng) {
    void* s = nullptr;
    uint32_t key[4] = {0x123, 0x234, 0x345, 0x456};
    __qesNewStreamEx(&s, brng, 4, key);
    return s;
}

void Words(benchmark::State& state, int32_t brng) {
    void* s = Stream(brng);
    BrngRecord row;
    __qesGetBrngProperties(brng, &row);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        row.iGenerate(s, kBlock, r.data());
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void Doubles(benchmark::State& state, int32_t brng) {
    void* s = Stream(brng);
    BrngRecord row;
    __qesGetBrngProperties(brng, &row);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        row.dGenerate(s, kBlock, r.data(), 0.0, 1.0);
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void BM_Mt19937Words(benchmark::State& state) {
    Words(state, QES_BRNG_MT19937);
}
void BM_Sfmt19937Words(benchmark::State& state) {
    Words(state, QES_BRNG_SFMT19937);
}
void BM_Mt2203Words(benchmark::State& state) {
    Words(state, QES_BRNG_MT2203);
}
void BM_Mt19937Doubles(benchmark::State& state) {
    Doubles(state, QES_BRNG_MT19937);
}
void BM_Sfmt19937Doubles(benchmark::State& state) {
    Doubles(state, QES_BRNG_SFMT19937);
}

void BM_StdMt19937Words(benchmark::State& state) {
    std::mt19937 g(5489);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = static_cast<uint32_t>(g());
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_StdMt19937Doubles(benchmark::State& state) {
    std::mt19937 g(5489);
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = static_cast<double>(g()) * 0x1p-32;
        benchmark::DoNotOptimize(r.data());
    });
}

// The textbook loop: a block regenerated word by word with index wraps, then one
// tempered word per call.
struct ScalarMt {
    uint32_t mt[624];
    int index = 624;
    ScalarMt() {
        mt[0] = 5489;
        for (int i = 1; i < 624; ++i)
            mt[i] = 1812433253u * (mt[i - 1] ^ (mt[i - 1] >> 30)) + i;
    }
    uint32_t Next() {
        if (index == 624) {
            for (int k = 0; k < 624; ++k) {
                uint32_t y = (mt[k] & 0x80000000u) | (mt[(k + 1) % 624] & 0x7FFFFFFFu);
                mt[k] = mt[(k + 397) % 624] ^ (y >> 1) ^ (y & 1 ? 0x9908B0DFu : 0);
            }
            index = 0;
        }
        uint32_t y = mt[index++];
        y ^= y >> 11;
        y ^= (y << 7) & 0x9D2C5680u;
        y ^= (y << 15) & 0xEFC60000u;
        return y ^ (y >> 18);
    }
};

void BM_ScalarMt19937Words(benchmark::State& state) {
    ScalarMt g;
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = g.Next();
        benchmark::DoNotOptimize(r.data());
    });
}

void BM_ScalarMt19937Doubles(benchmark::State& state) {
    ScalarMt g;
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i)
            r[i] = static_cast<double>(g.Next()) * 0x1p-32;
        benchmark::DoNotOptimize(r.data());
    });
}

// One skip-ahead by 2^40 words per iteration; the time is the figure of interest.
void BM_Mt19937Jump2p40(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MT19937);
    for (auto _ : state)
        __qesSkipAheadStream(s, uint64_t{1} << 40);
    __qesDeleteStream(&s);
}

void BM_Sfmt19937Jump2p40(benchmark::State& state) {
    void* s = Stream(QES_BRNG_SFMT19937);
    for (auto _ : state)
        __qesSkipAheadStream(s, uint64_t{1} << 40);
    __qesDeleteStream(&s);
}

BENCHMARK(BM_Mt19937Words);
BENCHMARK(BM_Sfmt19937Words);
BENCHMARK(BM_Mt2203Words);
BENCHMARK(BM_StdMt19937Words);
BENCHMARK(BM_ScalarMt19937Words);
BENCHMARK(BM_Mt19937Doubles);
BENCHMARK(BM_Sfmt19937Doubles);
BENCHMARK(BM_StdMt19937Doubles);
BENCHMARK(BM_ScalarMt19937Doubles);
BENCHMARK(BM_Mt19937Jump2p40)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Sfmt19937Jump2p40)->Unit(benchmark::kMillisecond)->Iterations(2);

} // namespace
