// Speed of R250, MRG32K3A and the Wichmann-Hill set beside their peers: R250's words
// beside GSL's gsl_rng_r250 for requests of 1000 and 16384 words; MRG32K3A's doubles
// beside the published double-precision code of the generator; WH's doubles beside a
// straightforward scalar four-component Wichmann-Hill loop in double. The counter
// "per_cycle" is elements per time-stamp cycle.
#include <cmath>
#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/rng/measure.h"
#include "brenn_rng.h"

#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_rng.h>
#endif

namespace {

using brenn::bench::kBlock;
using brenn::bench::Measure;

void* Stream(int32_t brng, std::vector<uint32_t> seed) {
    void* s = nullptr;
    __qesNewStreamEx(&s, brng, static_cast<int32_t>(seed.size()), seed.data());
    return s;
}

void BM_R250Words(benchmark::State& state) {
    const int32_t n = static_cast<int32_t>(state.range(0));
    void* s = Stream(QES_BRNG_R250, {12345});
    std::vector<uint32_t> r(n);
    Measure(
        state,
        [&] {
            _qesiRngUniformBits(0, s, n, r.data());
            benchmark::DoNotOptimize(r.data());
        },
        n);
    __qesDeleteStream(&s);
}

void BM_Mrg32k3aDoubles(benchmark::State& state) {
    void* s = Stream(QES_BRNG_MRG32K3A, {12345, 12345, 12345, 12345, 12345, 12345});
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        _qesdRngUniform(0, s, kBlock, r.data(), 0.0, 1.0);
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

void BM_WhDoubles(benchmark::State& state) {
    void* s = Stream(QES_BRNG_WH, {12345, 678, 9, 10});
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        _qesdRngUniform(0, s, kBlock, r.data(), 0.0, 1.0);
        benchmark::DoNotOptimize(r.data());
    });
    __qesDeleteStream(&s);
}

// The published double-precision MRG32k3a: each component by one division and a
// truncation, the output scaled by 1 / (m1 + 1).
void BM_PublishedMrg32k3aLoop(benchmark::State& state) {
    const double m1 = 4294967087.0, m2 = 4294944443.0, norm = 2.328306549295728e-10;
    double s10 = 12345, s11 = 12345, s12 = 12345, s20 = 12345, s21 = 12345, s22 = 12345;
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i) {
            double p1 = 1403580.0 * s11 - 810728.0 * s10;
            long k = static_cast<long>(p1 / m1);
            p1 -= static_cast<double>(k) * m1;
            if (p1 < 0.0) p1 += m1;
            s10 = s11, s11 = s12, s12 = p1;
            double p2 = 527612.0 * s22 - 1370589.0 * s20;
            k = static_cast<long>(p2 / m2);
            p2 -= static_cast<double>(k) * m2;
            if (p2 < 0.0) p2 += m2;
            s20 = s21, s21 = s22, s22 = p2;
            r[i] = p1 > p2 ? (p1 - p2) * norm : (p1 - p2 + m1) * norm;
        }
        benchmark::DoNotOptimize(r.data());
    });
}

// Four components x' = a x mod m in double, each reduced by a division and a floor,
// and the fractional part of the sum of the x / m (member 0's constants).
void BM_ScalarWhLoop(benchmark::State& state) {
    const double a[4] = {125, 117, 127, 126};
    const double m[4] = {16770647, 16770643, 16770623, 16770617};
    double x[4] = {12345, 678, 9, 10};
    std::vector<double> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; ++i) {
            double v = 0;
            for (int j = 0; j < 4; ++j) {
                v += x[j] / m[j];
                double y = a[j] * x[j];
                x[j] = y - m[j] * std::floor(y / m[j]);
            }
            r[i] = v - std::floor(v);
        }
        benchmark::DoNotOptimize(r.data());
    });
}

#ifdef BRENN_BENCH_GSL
void BM_GslR250Words(benchmark::State& state) {
    const int32_t n = static_cast<int32_t>(state.range(0));
    gsl_rng* g = gsl_rng_alloc(gsl_rng_r250);
    gsl_rng_set(g, 12345);
    std::vector<uint32_t> r(n);
    Measure(
        state,
        [&] {
            for (int32_t i = 0; i < n; ++i)
                r[i] = static_cast<uint32_t>(gsl_rng_get(g));
            benchmark::DoNotOptimize(r.data());
        },
        n);
    gsl_rng_free(g);
}
BENCHMARK(BM_GslR250Words)->Arg(1000)->Arg(16384);
#endif

BENCHMARK(BM_R250Words)->Arg(1000)->Arg(16384);
BENCHMARK(BM_Mrg32k3aDoubles);
BENCHMARK(BM_PublishedMrg32k3aLoop);
BENCHMARK(BM_WhDoubles);
BENCHMARK(BM_ScalarWhLoop);

} // namespace
