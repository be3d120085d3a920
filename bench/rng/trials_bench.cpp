// Binomial, Hypergeometric and Negbinomial, ns a variate at n = 10^6 on MCG59 and
// MT19937, beside numpy's Generator (timed by trials_numpy_timing.py through
// /usr/bin/python3 in the same run) and GSL's gsl_ran_* on its mt19937. Our side and
// GSL's are timed in process CPU time, numpy's likewise in its script; the table at the
// end gives ratios peer / ours (above 1: faster than the peer), best of the rounds.
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

constexpr int32_t kN = 1000000;

struct Problem {
    const char* name; // also numpy's problem in trials_numpy_timing.py
    int32_t (*ours)(void* stream, int32_t n, int32_t* r);
#ifdef BRENN_BENCH_GSL
    unsigned (*gsl)(const gsl_rng* g);
#endif
};

const Problem kProblems[] = {
    {"binomial_1000_0.3",
     [](void* s, int32_t n, int32_t* r) { return _qesiRngBinomial(0, s, n, r, 1000, 0.3); },
#ifdef BRENN_BENCH_GSL
     [](const gsl_rng* g) { return gsl_ran_binomial(g, 0.3, 1000); }
#endif
    },
    // numpy's (ngood 30, nbad 70, nsample 20) is a lot of 100 with 30 marked, 20 drawn.
    {"hypergeometric_30_70_20",
     [](void* s, int32_t n, int32_t* r) { return _qesiRngHypergeometric(0, s, n, r, 100, 20, 30); },
#ifdef BRENN_BENCH_GSL
     [](const gsl_rng* g) { return gsl_ran_hypergeometric(g, 30, 70, 20); }
#endif
    },
    {"negative_binomial_5_0.3",
     [](void* s, int32_t n, int32_t* r) { return _qesiRngNegbinomial(0, s, n, r, 5.0, 0.3); },
#ifdef BRENN_BENCH_GSL
     [](const gsl_rng* g) { return gsl_ran_negative_binomial(g, 0.3, 5.0); }
#endif
    },
};

struct Brng {
    const char* name;
    int32_t id;
};
constexpr Brng kBrngs[] = {{"MCG59", QES_BRNG_MCG59}, {"MT19937", QES_BRNG_MT19937}};

void Ours(benchmark::State& state, const Problem* p, int32_t brng) {
    void* stream = nullptr;
    uint32_t seed = 1;
    __qesNewStreamEx(&stream, brng, 1, &seed);
    std::vector<int32_t> r(kN);
    for (auto _ : state) {
        if (p->ours(stream, kN, r.data()) < 0) state.SkipWithError("status");
        benchmark::DoNotOptimize(r.data());
    }
    __qesDeleteStream(&stream);
}

#ifdef BRENN_BENCH_GSL
void Gsl(benchmark::State& state, const Problem* p) {
    gsl_rng* g = gsl_rng_alloc(gsl_rng_mt19937);
    std::vector<int32_t> r(kN);
    for (auto _ : state) {
        for (int32_t i = 0; i < kN; ++i)
            r[i] = static_cast<int32_t>(p->gsl(g));
        benchmark::DoNotOptimize(r.data());
    }
    gsl_rng_free(g);
}
#endif

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::string suffix = "_" + std::to_string(kN);
    for (int round = 0; round < 2; ++round)
        brenn::bench::RegisterPeerTimes(BRENN_TRIALS_NUMPY_TIMING);
    for (const Problem& p : kProblems) {
        for (const Brng& b : kBrngs)
            benchmark::RegisterBenchmark((std::string(p.name) + "_" + b.name + suffix).c_str(),
                                         Ours, &p, b.id)
                ->Repetitions(5)
                ->Unit(benchmark::kMillisecond);
#ifdef BRENN_BENCH_GSL
        benchmark::RegisterBenchmark((std::string("gsl_") + p.name + suffix).c_str(), Gsl, &p)
            ->Repetitions(5)
            ->Unit(benchmark::kMillisecond);
#endif
    }
    brenn::bench::Recorder recorder;
    recorder.cpuTime = true;
    benchmark::RunSpecifiedBenchmarks(&recorder);

    const brenn::bench::PeerTable table(recorder, 24, "problem");
    auto ns = [&](const std::string& name) { return table.Nanos(name + suffix, kN); };
    for (const Problem& p : kProblems)
        for (const Brng& b : kBrngs)
            table.Row(p.name, b.name, ns(std::string(p.name) + "_" + b.name),
                      ns(std::string("numpy_") + p.name), ns(std::string("gsl_") + p.name));
    benchmark::Shutdown();
    return 0;
}
