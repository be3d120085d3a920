// The continuous distributions, ns a variate at n = 1000 and 10^6 on MCG59 and
// MT19937, beside numpy's Generator (PCG64, timed by dist_numpy_timing.py through
// /usr/bin/python3 in the same run) and GSL's generators on its mt19937. The table at
// the end gives each entry's time and the ratios peer / ours (above 1 is faster than
// the peer), with the best of several rounds of CPU time on both sides.
//   build/default/bench/rng/dist_bench [--benchmark_min_time=0.1]
// BRENN_BENCH_NUMPY=0 leaves numpy out, --benchmark_filter=dGaussian picks entries.
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#endif

#include "bench/stats/peer_timing.h"
#include "brenn_rng.h"

namespace {

struct Entry {
    const char* name; // e.g. dGaussian_m1
    int32_t (*draw)(void* stream, int32_t n, void* r);
    bool single;
    const char* numpy; // numpy's problem, by the name dist_numpy_timing.py prints
    const char* gsl;   // GSL's function benchmarked below, or null
};

#define BRENN_ENTRY(t, T, Name, method, ...)                                                       \
    [](void* s, int32_t n, void* r) {                                                              \
        return _qes##t##Rng##Name(method, s, n, static_cast<T*>(r), __VA_ARGS__);                  \
    }

const Entry kEntries[] = {
    {"dGaussian_m0", BRENN_ENTRY(d, double, Gaussian, 0, 0.0, 1.0), false, "standard_normal_f64",
     "gsl_ran_gaussian_ziggurat"},
    {"dGaussian_m1", BRENN_ENTRY(d, double, Gaussian, 1, 0.0, 1.0), false, "standard_normal_f64",
     "gsl_ran_gaussian_ziggurat"},
    {"dGaussian_m2", BRENN_ENTRY(d, double, Gaussian, 2, 0.0, 1.0), false, "standard_normal_f64",
     "gsl_ran_gaussian_ziggurat"},
    {"sGaussian_m0", BRENN_ENTRY(s, float, Gaussian, 0, 0.0f, 1.0f), true, "standard_normal_f32",
     "gsl_ran_gaussian_ziggurat"},
    {"sGaussian_m1", BRENN_ENTRY(s, float, Gaussian, 1, 0.0f, 1.0f), true, "standard_normal_f32",
     "gsl_ran_gaussian_ziggurat"},
    {"sGaussian_m2", BRENN_ENTRY(s, float, Gaussian, 2, 0.0f, 1.0f), true, "standard_normal_f32",
     "gsl_ran_gaussian_ziggurat"},
    {"dLognormal_m0", BRENN_ENTRY(d, double, Lognormal, 0, 0.0, 1.0, 0.0, 1.0), false, "lognormal",
     "gsl_ran_lognormal"},
    {"dLognormal_m1", BRENN_ENTRY(d, double, Lognormal, 1, 0.0, 1.0, 0.0, 1.0), false, "lognormal",
     "gsl_ran_lognormal"},
    {"sLognormal_m0", BRENN_ENTRY(s, float, Lognormal, 0, 0.0f, 1.0f, 0.0f, 1.0f), true,
     "lognormal", "gsl_ran_lognormal"},
    {"sLognormal_m1", BRENN_ENTRY(s, float, Lognormal, 1, 0.0f, 1.0f, 0.0f, 1.0f), true,
     "lognormal", "gsl_ran_lognormal"},
    {"dExponential", BRENN_ENTRY(d, double, Exponential, 0, 0.0, 1.0), false,
     "standard_exponential_f64", "gsl_ran_exponential"},
    {"sExponential", BRENN_ENTRY(s, float, Exponential, 0, 0.0f, 1.0f), true,
     "standard_exponential_f32", "gsl_ran_exponential"},
    {"dGumbel", BRENN_ENTRY(d, double, Gumbel, 0, 0.0, 1.0), false, "gumbel", "gsl_ran_gumbel1"},
    {"sGumbel", BRENN_ENTRY(s, float, Gumbel, 0, 0.0f, 1.0f), true, "gumbel", "gsl_ran_gumbel1"},
    {"dLaplace", BRENN_ENTRY(d, double, Laplace, 0, 0.0, 1.0), false, "laplace", "gsl_ran_laplace"},
    {"sLaplace", BRENN_ENTRY(s, float, Laplace, 0, 0.0f, 1.0f), true, "laplace", "gsl_ran_laplace"},
    {"dRayleigh", BRENN_ENTRY(d, double, Rayleigh, 0, 0.0, 1.0), false, "rayleigh",
     "gsl_ran_rayleigh"},
    {"sRayleigh", BRENN_ENTRY(s, float, Rayleigh, 0, 0.0f, 1.0f), true, "rayleigh",
     "gsl_ran_rayleigh"},
    {"dWeibull", BRENN_ENTRY(d, double, Weibull, 0, 2.0, 0.0, 1.0), false, "weibull",
     "gsl_ran_weibull"},
    {"sWeibull", BRENN_ENTRY(s, float, Weibull, 0, 2.0f, 0.0f, 1.0f), true, "weibull",
     "gsl_ran_weibull"},
    {"dCauchy", BRENN_ENTRY(d, double, Cauchy, 0, 0.0, 1.0), false, "standard_cauchy",
     "gsl_ran_cauchy"},
    {"sCauchy", BRENN_ENTRY(s, float, Cauchy, 0, 0.0f, 1.0f), true, "standard_cauchy",
     "gsl_ran_cauchy"},
};

#undef BRENN_ENTRY

struct Brng {
    const char* name;
    int32_t id;
};
constexpr Brng kBrngs[] = {{"MCG59", QES_BRNG_MCG59}, {"MT19937", QES_BRNG_MT19937}};
constexpr int32_t kSizes[] = {1000, 1000000};

void Ours(benchmark::State& state, const Entry* e, int32_t brng, int32_t n) {
    void* stream = nullptr;
    uint32_t seed = 1;
    __qesNewStreamEx(&stream, brng, 1, &seed);
    std::vector<double> r(n);
    for (auto _ : state) {
        if (e->draw(stream, n, r.data()) < 0) state.SkipWithError("status");
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    __qesDeleteStream(&stream);
}

#ifdef BRENN_BENCH_GSL
struct GslPeer {
    const char* name;
    double (*one)(const gsl_rng*);
};

const GslPeer kGsl[] = {
    {"gsl_ran_gaussian_ziggurat", [](const gsl_rng* g) { return gsl_ran_gaussian_ziggurat(g, 1); }},
    {"gsl_ran_gaussian", [](const gsl_rng* g) { return gsl_ran_gaussian(g, 1); }},
    {"gsl_ran_lognormal", [](const gsl_rng* g) { return gsl_ran_lognormal(g, 0, 1); }},
    {"gsl_ran_exponential", [](const gsl_rng* g) { return gsl_ran_exponential(g, 1); }},
    {"gsl_ran_gumbel1", [](const gsl_rng* g) { return gsl_ran_gumbel1(g, 1, 1); }},
    {"gsl_ran_laplace", [](const gsl_rng* g) { return gsl_ran_laplace(g, 1); }},
    {"gsl_ran_rayleigh", [](const gsl_rng* g) { return gsl_ran_rayleigh(g, 1); }},
    {"gsl_ran_weibull", [](const gsl_rng* g) { return gsl_ran_weibull(g, 1, 2); }},
    {"gsl_ran_cauchy", [](const gsl_rng* g) { return gsl_ran_cauchy(g, 1); }},
};

void Gsl(benchmark::State& state, const GslPeer* p, int32_t n) {
    gsl_rng* g = gsl_rng_alloc(gsl_rng_mt19937);
    std::vector<double> r(n);
    for (auto _ : state) {
        for (int32_t i = 0; i < n; ++i)
            r[i] = p->one(g);
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
    gsl_rng_free(g);
}
#endif

std::string Name(const char* what, int32_t n) {
    return std::string(what) + "_" + std::to_string(n);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    // numpy twice, at the start, for a best of more rounds; BRENN_BENCH_NUMPY=0 leaves it
    // out (when profiling one entry).
    const char* numpy = std::getenv("BRENN_BENCH_NUMPY");
    if (numpy == nullptr || std::strcmp(numpy, "0") != 0)
        for (int round = 0; round < 2; ++round)
            brenn::bench::RegisterPeerTimes(BRENN_DIST_NUMPY_TIMING);
    for (int32_t n : kSizes) {
        for (const Entry& e : kEntries)
            for (const Brng& b : kBrngs)
                benchmark::RegisterBenchmark(
                    Name((e.name + std::string("_") + b.name).c_str(), n).c_str(), Ours, &e, b.id,
                    n)
                    ->Repetitions(3)
                    ->ReportAggregatesOnly(false);
#ifdef BRENN_BENCH_GSL
        for (const GslPeer& p : kGsl)
            benchmark::RegisterBenchmark(Name(p.name, n).c_str(), Gsl, &p, n)->Repetitions(3);
#endif
    }
    brenn::bench::Recorder recorder;
    recorder.cpuTime = true;
    benchmark::RunSpecifiedBenchmarks(&recorder);

    auto ns = [&](const std::string& name, int32_t n) {
        auto at = recorder.seconds.find(name);
        return at == recorder.seconds.end() ? 0.0 : at->second * 1e9 / n;
    };
    std::printf("\n%-16s %-8s %8s %8s %8s %8s %10s %10s\n", "entry", "brng", "n", "ns", "numpy",
                "GSL", "numpy/us", "GSL/us");
    for (const Entry& e : kEntries)
        for (int32_t n : kSizes)
            for (const Brng& b : kBrngs) {
                double t = ns(Name((e.name + std::string("_") + b.name).c_str(), n), n);
                double np = ns(Name((std::string("numpy_") + e.numpy).c_str(), n), n);
                double gsl = e.gsl ? ns(Name(e.gsl, n), n) : 0.0;
                if (t == 0) continue;
                std::printf("%-16s %-8s %8d %8.2f %8.2f %8.2f %10.2f %10.2f\n", e.name, b.name, n,
                            t, np, gsl, np / t, gsl / t);
            }
    benchmark::Shutdown();
    return 0;
}
