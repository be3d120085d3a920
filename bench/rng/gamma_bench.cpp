// Gamma, ChiSquare, Beta and GaussianMV, ns a variate (a vector of 10 for GaussianMV)
// at n = 10^6 on MCG59 and MT19937, beside numpy's Generator (PCG64, timed by
// gamma_numpy_timing.py through /usr/bin/python3 in the same run) and GSL's
// generators on its mt19937. Every side is timed in process CPU time, since on a
// shared machine the wall clock also counts the other programs' turns. The table at
// the end gives each entry's time and the ratios peer / ours (above 1 is faster than
// the peer), best of several rounds.
#include <time.h>

#include <cstdio>
#include <string>
#include <vector>

#include <benchmark/benchmark.h>
#ifdef BRENN_BENCH_GSL
#include <gsl/gsl_matrix.h>
#include <gsl/gsl_randist.h>
#include <gsl/gsl_rng.h>
#include <gsl/gsl_vector.h>
#endif

#include "bench/rng/peer_table.h"
#include "brenn_rng.h"

namespace {

constexpr int32_t kN = 1000000;
constexpr int32_t kD = 10;

// The factor T of the multivariate cases: 1 on the diagonal, 0.1 below it, row by row.
std::vector<double> Factor() {
    std::vector<double> t(kD * kD, 0.0);
    for (int i = 0; i < kD; ++i)
        for (int j = 0; j <= i; ++j)
            t[i * kD + j] = i == j ? 1.0 : 0.1;
    return t;
}

const std::vector<double> kFactor = Factor();
const std::vector<float> kFactorS(kFactor.begin(), kFactor.end());
const std::vector<double> kMean(kD, 0.0);
const std::vector<float> kMeanS(kD, 0.0f);

struct Entry {
    const char* name;
    int32_t (*draw)(void* stream, int32_t n, void* r);
    int32_t width;     // elements a variate
    const char* numpy; // numpy's problem, as gamma_numpy_timing.py names it
    const char* gsl;   // GSL's, as kGsl names it, or null
};

const Entry kEntries[] = {
    {"dGamma_0.3",
     [](void* s, int32_t n, void* r) {
         return _qesdRngGamma(0, s, n, static_cast<double*>(r), 0.3, 0.0, 1.0);
     },
     1, "standard_gamma_0.3", "gsl_ran_gamma_0.3"},
    {"dGamma_3",
     [](void* s, int32_t n, void* r) {
         return _qesdRngGamma(0, s, n, static_cast<double*>(r), 3.0, 0.0, 1.0);
     },
     1, "standard_gamma_3", "gsl_ran_gamma_3"},
    {"sGamma_3",
     [](void* s, int32_t n, void* r) {
         return _qessRngGamma(0, s, n, static_cast<float*>(r), 3.0f, 0.0f, 1.0f);
     },
     1, "standard_gamma_3_f32", "gsl_ran_gamma_3"},
    {"dChiSquare_5",
     [](void* s, int32_t n, void* r) {
         return _qesdRngChiSquare(0, s, n, static_cast<double*>(r), 5);
     },
     1, "chisquare_5", "gsl_ran_chisq_5"},
    {"dBeta_2_3",
     [](void* s, int32_t n, void* r) {
         return _qesdRngBeta(0, s, n, static_cast<double*>(r), 2.0, 3.0, 0.0, 1.0);
     },
     1, "beta_2_3", "gsl_ran_beta_2_3"},
    {"dGaussianMV_10",
     [](void* s, int32_t n, void* r) {
         return _qesdRngGaussianMV(1, s, n, static_cast<double*>(r), kD, QES_RNG_STORAGE_FULL,
                                   kMean.data(), kFactor.data());
     },
     kD, "multivariate_normal_10", "gsl_ran_multivariate_gaussian_10"},
    {"sGaussianMV_10",
     [](void* s, int32_t n, void* r) {
         return _qessRngGaussianMV(1, s, n, static_cast<float*>(r), kD, QES_RNG_STORAGE_FULL,
                                   kMeanS.data(), kFactorS.data());
     },
     kD, "multivariate_normal_10", "gsl_ran_multivariate_gaussian_10"},
};

struct Brng {
    const char* name;
    int32_t id;
};
constexpr Brng kBrngs[] = {{"MCG59", QES_BRNG_MCG59}, {"MT19937", QES_BRNG_MT19937}};

double CpuSeconds() {
    timespec t;
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &t);
    return double(t.tv_sec) + 1e-9 * double(t.tv_nsec);
}

// Each iteration's body timed in process CPU time, as the benchmark's manual time.
template <typename Body>
void Timed(benchmark::State& state, std::vector<double>& r, Body body) {
    for (auto _ : state) {
        double t0 = CpuSeconds();
        body();
        state.SetIterationTime(CpuSeconds() - t0);
        benchmark::DoNotOptimize(r.data());
        benchmark::ClobberMemory();
    }
}

void Ours(benchmark::State& state, const Entry* e, int32_t brng) {
    void* stream = nullptr;
    uint32_t seed = 1;
    __qesNewStreamEx(&stream, brng, 1, &seed);
    std::vector<double> r(size_t(kN) * e->width);
    Timed(state, r, [&] {
        if (e->draw(stream, kN, r.data()) < 0) state.SkipWithError("status");
    });
    __qesDeleteStream(&stream);
}

#ifdef BRENN_BENCH_GSL
struct GslPeer {
    const char* name;
    void (*fill)(const gsl_rng* g, double* r, int32_t n);
};

template <typename One>
void Fill(const gsl_rng* g, double* r, int32_t n, One one) {
    for (int32_t i = 0; i < n; ++i)
        r[i] = one(g);
}

void MultivariateGaussian(const gsl_rng* g, double* r, int32_t n) {
    gsl_matrix* l = gsl_matrix_alloc(kD, kD);
    gsl_vector* mu = gsl_vector_calloc(kD);
    for (int i = 0; i < kD; ++i)
        for (int j = 0; j < kD; ++j)
            gsl_matrix_set(l, i, j, kFactor[i * kD + j]);
    for (int32_t k = 0; k < n; ++k) {
        gsl_vector_view x = gsl_vector_view_array(r + size_t(k) * kD, kD);
        gsl_ran_multivariate_gaussian(g, mu, l, &x.vector);
    }
    gsl_vector_free(mu);
    gsl_matrix_free(l);
}

const GslPeer kGsl[] = {
    {"gsl_ran_gamma_0.3",
     [](const gsl_rng* g, double* r, int32_t n) {
         Fill(g, r, n, [](const gsl_rng* h) { return gsl_ran_gamma(h, 0.3, 1); });
     }},
    {"gsl_ran_gamma_3",
     [](const gsl_rng* g, double* r, int32_t n) {
         Fill(g, r, n, [](const gsl_rng* h) { return gsl_ran_gamma(h, 3, 1); });
     }},
    {"gsl_ran_chisq_5",
     [](const gsl_rng* g, double* r, int32_t n) {
         Fill(g, r, n, [](const gsl_rng* h) { return gsl_ran_chisq(h, 5); });
     }},
    {"gsl_ran_beta_2_3",
     [](const gsl_rng* g, double* r, int32_t n) {
         Fill(g, r, n, [](const gsl_rng* h) { return gsl_ran_beta(h, 2, 3); });
     }},
    {"gsl_ran_multivariate_gaussian_10", MultivariateGaussian},
};

void Gsl(benchmark::State& state, const GslPeer* p, int32_t width) {
    gsl_rng* g = gsl_rng_alloc(gsl_rng_mt19937);
    std::vector<double> r(size_t(kN) * width);
    Timed(state, r, [&] { p->fill(g, r.data(), kN); });
    gsl_rng_free(g);
}
#endif

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    const std::string suffix = "_" + std::to_string(kN);
    for (int round = 0; round < 2; ++round)
        brenn::bench::RegisterPeerTimes(BRENN_GAMMA_NUMPY_TIMING);
    for (const Entry& e : kEntries)
        for (const Brng& b : kBrngs)
            benchmark::RegisterBenchmark((e.name + std::string("_") + b.name + suffix).c_str(),
                                         Ours, &e, b.id)
                ->UseManualTime()
                ->Repetitions(3)
                ->Unit(benchmark::kMillisecond);
#ifdef BRENN_BENCH_GSL
    for (const GslPeer& p : kGsl)
        benchmark::RegisterBenchmark(
            (p.name + suffix).c_str(), Gsl, &p,
            std::string(p.name).find("multivariate") != std::string::npos ? kD : 1)
            ->UseManualTime()
            ->Repetitions(3)
            ->Unit(benchmark::kMillisecond);
#endif
    brenn::bench::Recorder recorder;
    benchmark::RunSpecifiedBenchmarks(&recorder);

    const brenn::bench::PeerTable table(recorder, 16, "entry");
    auto ns = [&](const std::string& name) { return table.Nanos(name + suffix, kN); };
    for (const Entry& e : kEntries)
        for (const Brng& b : kBrngs)
            table.Row(e.name, b.name, ns(e.name + std::string("_") + b.name),
                      ns(std::string("numpy_") + e.numpy), e.gsl ? ns(e.gsl) : 0.0);
    benchmark::Shutdown();
    return 0;
}
