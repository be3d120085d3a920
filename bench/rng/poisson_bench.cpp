// Poisson and Multinomial, ns a variate (Poisson, n = 10^6) and ns a row
// (Multinomial(100, ten cells), 10^5 rows) on MCG59 and MT19937, beside numpy's
// Generator (PCG64, timed by poisson_numpy_timing.py through /usr/bin/python3 in the
// same run) and GSL's gsl_ran_poisson and gsl_ran_multinomial on its mt19937. The
// table at the end gives the ratios peer / ours (above 1: faster than the peer), best
// of several rounds on both sides.
#include <cstdio>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#endif

#include "bench/rng/peer_table.h"
#include "brenn_rng.h"

namespace {

const double kTen[10] = {0.3, 0.2, 0.15, 0.1, 0.08, 0.07, 0.05, 0.03, 0.015, 0.005};
constexpr int32_t kVariates = 1000000, kRows = 100000;

struct Entry {
    const char* name;
    int32_t method;
    double lambda;     // 0: Multinomial(100, ten cells)
    const char* numpy; // numpy's problem
    const char* gsl;   // GSL's, or null
};

const Entry kEntries[] = {
    {"Poisson_m0_0.5", 0, 0.5, "numpy_poisson_0.5", nullptr},
    {"Poisson_m1_0.5", 1, 0.5, "numpy_poisson_0.5", nullptr},
    {"Poisson_m0_10", 0, 10.0, "numpy_poisson_10", "gsl_poisson_10"},
    {"Poisson_m1_10", 1, 10.0, "numpy_poisson_10", "gsl_poisson_10"},
    {"Poisson_m0_500", 0, 500.0, "numpy_poisson_500", "gsl_poisson_500"},
    {"Poisson_m1_500", 1, 500.0, "numpy_poisson_500", "gsl_poisson_500"},
    {"PoissonV_10", 0, -10.0, "numpy_poisson_10", "gsl_poisson_10"},
    {"Multinomial_100_10", 0, 0.0, "numpy_multinomial_100_10", "gsl_multinomial_100_10"},
};

// The generators each entry runs on, by name and id.
const char* const kBrngNames[2] = {"MCG59", "MT19937"};
constexpr int32_t kBrngIds[2] = {QES_BRNG_MCG59, QES_BRNG_MT19937};

void Ours(benchmark::State& state, const Entry* e, int32_t brng) {
    const uint32_t seed = 1;
    void* stream = nullptr;
    std::vector<int32_t> r(kVariates);
    __qesNewStreamEx(&stream, brng, 1, &seed);
    std::vector<double> lambdas(e->lambda < 0 ? kVariates : 0, -e->lambda);
    for (auto _ : state) {
        int32_t status;
        if (e->lambda > 0)
            status = _qesiRngPoisson(e->method, stream, kVariates, r.data(), e->lambda);
        else if (e->lambda < 0)
            status = _qesiRngPoissonV(0, stream, kVariates, r.data(), lambdas.data());
        else
            status = _qesiRngMultinomial(0, stream, kRows, r.data(), 100, 10, kTen);
        if (status < 0) state.SkipWithError("status");
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    __qesDeleteStream(&stream);
}

#ifdef BRENN_BENCH_GSL
void GslPoisson(benchmark::State& state, double lambda) {
    gsl_rng* g = gsl_rng_alloc(gsl_rng_mt19937);
    std::vector<int32_t> r(kVariates);
    for (auto _ : state) {
        for (int32_t i = 0; i < kVariates; ++i)
            r[i] = static_cast<int32_t>(gsl_ran_poisson(g, lambda));
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    gsl_rng_free(g);
}

void GslMultinomial(benchmark::State& state) {
    gsl_rng* g = gsl_rng_alloc(gsl_rng_mt19937);
    std::vector<unsigned> r(10 * kRows);
    for (auto _ : state) {
        for (int32_t i = 0; i < kRows; ++i)
            gsl_ran_multinomial(g, 10, 100, kTen, r.data() + 10 * i);
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    gsl_rng_free(g);
}
#endif

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    // numpy twice, at the start, for a best of more rounds.
    brenn::bench::RegisterPeerTimes(BRENN_POISSON_NUMPY_TIMING);
    brenn::bench::RegisterPeerTimes(BRENN_POISSON_NUMPY_TIMING);
    for (const Entry& e : kEntries)
        for (int b = 0; b < 2; ++b)
            benchmark::RegisterBenchmark((e.name + std::string("_") + kBrngNames[b]).c_str(), Ours,
                                         &e, kBrngIds[b])
                ->Repetitions(3)
                ->Unit(benchmark::kMillisecond);
#ifdef BRENN_BENCH_GSL
    benchmark::RegisterBenchmark("gsl_poisson_10", GslPoisson, 10.0)->Repetitions(3);
    benchmark::RegisterBenchmark("gsl_poisson_500", GslPoisson, 500.0)->Repetitions(3);
    benchmark::RegisterBenchmark("gsl_multinomial_100_10", GslMultinomial)->Repetitions(3);
#endif
    brenn::bench::Recorder recorder;
    benchmark::RunSpecifiedBenchmarks(&recorder);

    const brenn::bench::PeerTable table(recorder, 20, "entry",
                                        "   (ns a variate; Multinomial a row)");
    for (const Entry& e : kEntries)
        for (int b = 0; b < 2; ++b) {
            const double per = e.lambda == 0 ? kRows : kVariates;
            table.Row(e.name, kBrngNames[b],
                      table.Nanos(e.name + std::string("_") + kBrngNames[b], per),
                      table.Nanos(e.numpy, per), e.gsl ? table.Nanos(e.gsl, per) : 0.0);
        }
    benchmark::Shutdown();
    return 0;
}
