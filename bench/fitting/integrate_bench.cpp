// Integration benchmark: 10^6 intervals on a natural cubic of 10^4 knots, beside GSL's
// gsl_spline_eval_integ (cspline, the same intervals, one call each) and scipy's
// antiderivative evaluated at both limits (integrate_scipy_timing.py beside this file,
// run from here so that all three figures come from the same run). Random intervals
// inside the partition, and short ones (at most two cells) for the case where the
// whole-cell sums do not matter.
#include <benchmark/benchmark.h>
#include <gsl/gsl_errno.h>
#include <gsl/gsl_spline.h>

#include <cstdio>
#include <cstdlib>
#include <random>
#include <string>
#include <vector>

#include "bench/fitting/knots.h"
#include "brenn_fitting.h"
#include "platform/threader.h"

#ifndef BRENN_SCIPY_TIMING
#define BRENN_SCIPY_TIMING ""
#endif

namespace {

constexpr int64_t kKnots = 10000;
constexpr int64_t kIntervals = 1000000;

struct Data {
    std::vector<double> x, y, coeff, result;
    std::vector<double> lo[2], hi[2]; // 0 random, 1 short
    Data() {
        std::mt19937_64 rng(3);
        std::uniform_real_distribution<double> u(0, 1);
        x = JitteredKnots(kKnots, rng);
        y.resize(kKnots);
        for (auto& v : y)
            v = u(rng);
        for (int k = 0; k < 2; ++k) {
            lo[k].resize(kIntervals);
            hi[k].resize(kIntervals);
        }
        for (int64_t i = 0; i < kIntervals; ++i) {
            double a = u(rng), b = u(rng);
            lo[0][i] = a < b ? a : b;
            hi[0][i] = a < b ? b : a;
            double c = u(rng) * (1 - 2e-4);
            lo[1][i] = c;
            hi[1][i] = c + 2e-4 * u(rng);
        }
        coeff.resize(4 * kKnots);
        result.resize(kIntervals);
    }
};

Data& D() {
    static Data d;
    return d;
}

void BM_Integrate(benchmark::State& state) {
    Data& d = D();
    int which = static_cast<int>(state.range(0));
    const threader* thr = state.range(1) ? brenn_serv_pool_threader() : nullptr;
    state.SetLabel(std::string(which ? "short" : "random") + (thr ? ", pool" : ""));
    FitTaskHandle t = nullptr;
    brenn_df_kernel_dNewTask1D(&t, kKnots, d.x.data(), 0, 1, d.y.data(), FIT_Y_ROWS, 0);
    brenn_df_kernel_dEditPPSpline1D(t, 4, 0, FIT_BC_FREE_END, nullptr, 0, nullptr, d.coeff.data(),
                                    0);
    brenn_df_kernel_dDFNaturalCubicSpline1D(t, 0, 0, nullptr);
    for (auto _ : state) {
        int32_t s = brenn_df_kernel_dDFIntegrate1D(
            t, 0, kIntervals, d.lo[which].data(), 0, d.hi[which].data(), 0, nullptr, nullptr,
            d.result.data(), 0, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
            nullptr, thr);
        benchmark::DoNotOptimize(s);
    }
    brenn_df_kernel_DeleteTask(&t);
}
BENCHMARK(BM_Integrate)->ArgsProduct({{0, 1}, {0, 1}})->Unit(benchmark::kMillisecond);

void BM_GslEvalInteg(benchmark::State& state) {
    Data& d = D();
    int which = static_cast<int>(state.range(0));
    state.SetLabel(which ? "short" : "random");
    gsl_set_error_handler_off();
    gsl_spline* spline = gsl_spline_alloc(gsl_interp_cspline, kKnots);
    gsl_interp_accel* acc = gsl_interp_accel_alloc();
    gsl_spline_init(spline, d.x.data(), d.y.data(), kKnots);
    for (auto _ : state) {
        for (int64_t i = 0; i < kIntervals; ++i)
            d.result[i] = gsl_spline_eval_integ(spline, d.lo[which][i], d.hi[which][i], acc);
        benchmark::ClobberMemory();
    }
    gsl_interp_accel_free(acc);
    gsl_spline_free(spline);
}
BENCHMARK(BM_GslEvalInteg)->Arg(0)->Arg(1)->Iterations(1)->Unit(benchmark::kMillisecond);

// scipy's best of several rounds, timed by the script itself, in seconds on its
// standard output.
void BM_ScipyAntiderivative(benchmark::State& state) {
    int which = static_cast<int>(state.range(0));
    state.SetLabel(which ? "short" : "random");
    std::string command =
        std::string("/usr/bin/python3 ") + BRENN_SCIPY_TIMING + (which ? " short" : " random");
    for (auto _ : state) {
        double seconds = -1;
        if (FILE* p = popen(command.c_str(), "r")) {
            if (std::fscanf(p, "%lf", &seconds) != 1) seconds = -1;
            pclose(p);
        }
        if (seconds < 0) {
            state.SkipWithError("scipy timing unavailable");
            break;
        }
        state.SetIterationTime(seconds);
    }
}
BENCHMARK(BM_ScipyAntiderivative)
    ->Arg(0)
    ->Arg(1)
    ->Iterations(1)
    ->UseManualTime()
    ->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
