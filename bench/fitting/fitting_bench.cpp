// Fitting benchmark: search of 10^6 random sites in a 10^5-node partition by each
// searcher, and linear construction + interpolation of 10^6 sites, beside GSL's
// gsl_interp_accel / gsl_interp_linear. The numpy figures (searchsorted, interp) for
// the same sizes come from numpy_reference.py beside this file. Also the tridiagonal
// solver against LAPACK's dgtsv, which decided the service library's choice.
#include <benchmark/benchmark.h>
#include <gsl/gsl_interp.h>

#include <algorithm>
#include <random>
#include <vector>

#include "brenn_fitting.h"
#include "platform/threader.h"
#include "platform/tridiag.h"

extern "C" void dgtsv_(const int* n, const int* nrhs, double* dl, double* d, double* du, double* b,
                       const int* ldb, int* info);

namespace {

constexpr int64_t kNodes = 100000;
constexpr int64_t kSites = 1000000;

struct Data {
    std::vector<double> x, y, sites, sorted, clustered, coeff;
    std::vector<int32_t> cells;
    std::vector<double> result;
    Data() {
        std::mt19937_64 rng(1);
        std::uniform_real_distribution<double> u(0, 1);
        x.resize(kNodes);
        for (auto& v : x)
            v = u(rng);
        std::sort(x.begin(), x.end());
        x.front() = 0;
        x.back() = 1;
        y.resize(kNodes);
        for (auto& v : y)
            v = u(rng);
        sites.resize(kSites);
        for (auto& v : sites)
            v = u(rng);
        sorted = sites;
        std::sort(sorted.begin(), sorted.end());
        // Around the middle node, within about 20 nodes: what the peak hint is for.
        std::normal_distribution<double> g(x[kNodes / 2], 10.0 / kNodes);
        clustered.resize(kSites);
        for (auto& v : clustered)
            v = g(rng);
        cells.resize(kSites);
        result.resize(kSites);
        coeff.resize(2 * kNodes);
    }
};

Data& D() {
    static Data d;
    return d;
}

const threader* Pool() {
    return brenn_serv_pool_threader();
}

// Searchers: 0 uniform (on a uniform partition), 1 quasi-uniform, 2 sorted (sorted
// sites), 3 peak (sites clustered around it), 4 hybrid.
void BM_Search(benchmark::State& state) {
    Data& d = D();
    int which = static_cast<int>(state.range(0));
    bool threads = state.range(1) != 0;
    FitTaskHandle t = nullptr;
    double ends[2] = {0, 1};
    int64_t xHint = which == 0 ? FIT_X_UNIFORM : (which == 1 ? FIT_X_QUASI_UNIFORM : 0);
    brenn_df_kernel_dNewTask1D(&t, kNodes, which == 0 ? ends : d.x.data(), xHint, 0, nullptr, 0, 0);
    const double* sites =
        which == 2 ? d.sorted.data() : (which == 3 ? d.clustered.data() : d.sites.data());
    double peak[5] = {0, 1, 0, 0, kNodes / 2.0};
    for (auto _ : state) {
        int32_t s = brenn_df_kernel_dDFSearch1D(
            t, 0, kSites, sites, which == 2 ? FIT_SITES_SORTED : 0, which == 3 ? peak : nullptr,
            d.cells.data(), nullptr, nullptr, threads ? Pool() : nullptr);
        benchmark::DoNotOptimize(s);
    }
    state.SetItemsProcessed(state.iterations() * kSites);
    brenn_df_kernel_DeleteTask(&t);
}
BENCHMARK(BM_Search)->ArgsProduct({{0, 1, 2, 3, 4}, {0, 1}})->Unit(benchmark::kMillisecond);

void BM_GslAccelSearch(benchmark::State& state) {
    Data& d = D();
    gsl_interp_accel* acc = gsl_interp_accel_alloc();
    for (auto _ : state) {
        for (int64_t i = 0; i < kSites; ++i)
            d.cells[i] =
                static_cast<int32_t>(gsl_interp_accel_find(acc, d.x.data(), kNodes, d.sites[i]));
        benchmark::ClobberMemory();
    }
    state.SetItemsProcessed(state.iterations() * kSites);
    gsl_interp_accel_free(acc);
}
BENCHMARK(BM_GslAccelSearch)->Unit(benchmark::kMillisecond);

void BM_LinearFitInterpolate(benchmark::State& state) {
    Data& d = D();
    bool threads = state.range(0) != 0;
    for (auto _ : state) {
        FitTaskHandle t = nullptr;
        brenn_df_kernel_dNewTask1D(&t, kNodes, d.x.data(), 0, 1, d.y.data(), 16, 0);
        brenn_df_kernel_dEditPPSpline1D(t, 2, 0, 0, nullptr, 0, nullptr, d.coeff.data(), 0);
        brenn_df_kernel_dDFLinearSpline1D(t, 0, 0, threads ? Pool() : nullptr);
        int32_t s = brenn_df_kernel_dDFInterpolate1D(t, 1, 0, kSites, d.sites.data(), 0, 0, nullptr,
                                                     nullptr, d.result.data(), 0, nullptr, nullptr,
                                                     nullptr, nullptr, nullptr, nullptr, nullptr,
                                                     nullptr, nullptr, threads ? Pool() : nullptr);
        benchmark::DoNotOptimize(s);
        brenn_df_kernel_DeleteTask(&t);
    }
    state.SetItemsProcessed(state.iterations() * kSites);
}
BENCHMARK(BM_LinearFitInterpolate)->Arg(0)->Arg(1)->Unit(benchmark::kMillisecond);

void BM_GslLinearFitInterpolate(benchmark::State& state) {
    Data& d = D();
    for (auto _ : state) {
        gsl_interp* interp = gsl_interp_alloc(gsl_interp_linear, kNodes);
        gsl_interp_accel* acc = gsl_interp_accel_alloc();
        gsl_interp_init(interp, d.x.data(), d.y.data(), kNodes);
        for (int64_t i = 0; i < kSites; ++i)
            d.result[i] = gsl_interp_eval(interp, d.x.data(), d.y.data(), d.sites[i], acc);
        benchmark::ClobberMemory();
        gsl_interp_accel_free(acc);
        gsl_interp_free(interp);
    }
    state.SetItemsProcessed(state.iterations() * kSites);
}
BENCHMARK(BM_GslLinearFitInterpolate)->Unit(benchmark::kMillisecond);

// The tridiagonal solver at spline sizes: ours and LAPACK's.
void BM_Tridiagonal(benchmark::State& state) {
    int64_t n = state.range(0);
    bool lapack = state.range(1) != 0;
    std::vector<double> dl(n, 1), d(n, 4), du(n, 1), b(n, 1);
    std::vector<double> wdl(n), wd(n), wdu(n), wb(n);
    for (auto _ : state) {
        std::copy(dl.begin(), dl.end(), wdl.begin());
        std::copy(d.begin(), d.end(), wd.begin());
        std::copy(du.begin(), du.end(), wdu.begin());
        std::copy(b.begin(), b.end(), wb.begin());
        if (lapack) {
            int ni = static_cast<int>(n), one = 1, info = 0;
            dgtsv_(&ni, &one, wdl.data(), wd.data(), wdu.data(), wb.data(), &ni, &info);
        } else {
            int64_t one = 1, info = 0;
            ddtsvb_4dfl(&n, &one, wdl.data(), wd.data(), wdu.data(), wb.data(), &info);
        }
        benchmark::DoNotOptimize(wb.data());
    }
    state.SetItemsProcessed(state.iterations() * n);
}
BENCHMARK(BM_Tridiagonal)->ArgsProduct({{16, 1000, 100000}, {0, 1}});

} // namespace

BENCHMARK_MAIN();
