// Speed of the quasi-random generators: Sobol and Niederr dGenerate per coordinate
// at 3, 12 and 40 dimensions on [0, 1) (Sobol also on bounds whose scale is not a
// power of two) beside GSL's gsl_qrng_sobol and
// gsl_qrng_niederreiter_2 (which fill one point of doubles a call), and a Sobol
// user table of 1000 coordinates (the chunk path) with the thread limit at 1 and 2.
// Each body makes 12000 coordinates; "per_cycle" is coordinates per time-stamp cycle.
#include <cstdint>
#include <random>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/rng/measure.h"
#include "brenn_rng.h"
#include "platform/threader.h"

#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_qrng.h>
#endif

namespace {

using brenn::bench::Measure;

constexpr int kCoordinates = 12000; // a multiple of 3, 12, 40 and 1000

void Ours(benchmark::State& state, int32_t brng, std::vector<uint32_t> params, int threads,
          double a = 0.0, double b = 1.0) {
    void* s = nullptr;
    __qesNewStreamEx(&s, brng, static_cast<int32_t>(params.size()), params.data());
    BrngRecord row;
    __qesGetBrngProperties(brng, &row);
    std::vector<double> r(kCoordinates);
    int previous = threads > 0 ? brenn_serv_set_num_threads(threads) : 0;
    Measure(
        state,
        [&] {
            if (row.dGenerate(s, kCoordinates, r.data(), a, b) != 0) {
                __qesDeleteStream(&s);
                __qesNewStreamEx(&s, brng, static_cast<int32_t>(params.size()), params.data());
            }
            benchmark::DoNotOptimize(r.data());
        },
        kCoordinates);
    if (threads > 0) brenn_serv_set_num_threads(previous);
    __qesDeleteStream(&s);
}

void Sobol(benchmark::State& state) {
    Ours(state, QES_BRNG_SOBOL, {static_cast<uint32_t>(state.range(0))}, 0);
}
// On [-1.25, 3.5), whose scale is not a power of two: a multiplication a coordinate.
void SobolScaled(benchmark::State& state) {
    Ours(state, QES_BRNG_SOBOL, {static_cast<uint32_t>(state.range(0))}, 0, -1.25, 3.5);
}
void Niederr(benchmark::State& state) {
    Ours(state, QES_BRNG_NIEDERR, {static_cast<uint32_t>(state.range(0))}, 0);
}

// 1000 coordinates of random direction numbers (mode 4): only the speed counts.
void SobolUser1000(benchmark::State& state) {
    std::mt19937 g(1);
    std::vector<uint32_t> p = {1000, 1, 4};
    for (int j = 0; j < 1000; ++j)
        for (int b = 0; b < 32; ++b)
            p.push_back((g() | 0x80000000u) >> b);
    Ours(state, QES_BRNG_SOBOL, p, static_cast<int>(state.range(0)));
}

BENCHMARK(Sobol)->Arg(3)->Arg(12)->Arg(40);
BENCHMARK(SobolScaled)->Arg(3)->Arg(12)->Arg(40);
BENCHMARK(Niederr)->Arg(3)->Arg(12);
BENCHMARK(SobolUser1000)->Arg(1)->Arg(2)->UseRealTime();

#ifdef BRENN_BENCH_GSL
void Gsl(benchmark::State& state, const gsl_qrng_type* type) {
    const int d = static_cast<int>(state.range(0));
    gsl_qrng* q = gsl_qrng_alloc(type, d);
    std::vector<double> r(kCoordinates);
    Measure(
        state,
        [&] {
            for (int i = 0; i < kCoordinates; i += d)
                if (gsl_qrng_get(q, r.data() + i) != 0) gsl_qrng_init(q);
            benchmark::DoNotOptimize(r.data());
        },
        kCoordinates);
    gsl_qrng_free(q);
}
void GslSobol(benchmark::State& state) {
    Gsl(state, gsl_qrng_sobol);
}
void GslNiederreiter2(benchmark::State& state) {
    Gsl(state, gsl_qrng_niederreiter_2);
}
BENCHMARK(GslSobol)->Arg(3)->Arg(12)->Arg(40);
BENCHMARK(GslNiederreiter2)->Arg(3)->Arg(12);
#endif

} // namespace
