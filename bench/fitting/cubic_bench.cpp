// Cubic spline benchmark: construction on 10^4 knots, alone and followed by the values
// at 10^6 random sites, for each family (natural with not-a-knot and periodic ends,
// Akima, Bessel, Hyman, Hermite), beside GSL's gsl_spline (cspline, cspline_periodic,
// akima, steffen). scipy's figures for the same sizes come from cubic_scipy_timing.py
// beside this file, run in the same session.
#include <benchmark/benchmark.h>
#include <gsl/gsl_spline.h>

#include <cmath>
#include <random>
#include <vector>

#include "bench/fitting/knots.h"
#include "brenn_fitting.h"
#include "platform/threader.h"

namespace {

constexpr int64_t kKnots = 10000;
constexpr int64_t kSites = 1000000;

struct Data {
    std::vector<double> x, y, yPeriodic, slopes, sites, coeff, result;
    Data() {
        std::mt19937_64 rng(3);
        std::uniform_real_distribution<double> u(0, 1);
        x = JitteredKnots(kKnots, rng);
        y.resize(kKnots);
        slopes.resize(kKnots);
        for (auto& v : y)
            v = u(rng);
        for (auto& v : slopes)
            v = u(rng) - 0.5;
        yPeriodic = y;
        yPeriodic.back() = yPeriodic.front();
        sites.resize(kSites);
        for (auto& v : sites)
            v = u(rng);
        coeff.resize(4 * kKnots);
        result.resize(kSites);
    }
};

Data& D() {
    static Data d;
    return d;
}

// Families: 0 natural not-a-knot, 1 natural periodic, 2 Akima, 3 Bessel, 4 Hyman,
// 5 Hermite (bcType 0 for the local ones).
struct Family {
    const char* name;
    int32_t (*build)(FitTaskHandle, int64_t, int64_t, const threader*);
    int64_t sType, bcType;
};

const Family kFamilies[] = {
    {"natural/not-a-knot", brenn_df_kernel_dDFNaturalCubicSpline1D, 0, FIT_BC_NOT_A_KNOT},
    {"natural/periodic", brenn_df_kernel_dDFNaturalCubicSpline1D, 0, FIT_BC_PERIODIC},
    {"akima", brenn_df_kernel_dDFAkimaCubicSpline1D, 2, FIT_BC_NONE},
    {"bessel", brenn_df_kernel_dDFBesselCubicSpline1D, 4, FIT_BC_NONE},
    {"hyman", brenn_df_kernel_dDFHymanCubicSpline1D, 5, FIT_BC_NONE},
    {"hermite", brenn_df_kernel_dDFHermiteCubicSpline1D, 3, FIT_BC_NONE},
};

FitTaskHandle Task(const Family& f) {
    Data& d = D();
    FitTaskHandle t = nullptr;
    const double* y = f.bcType == FIT_BC_PERIODIC ? d.yPeriodic.data() : d.y.data();
    brenn_df_kernel_dNewTask1D(&t, kKnots, d.x.data(), 0, 1, y, FIT_Y_ROWS, 0);
    bool hermite = f.build == brenn_df_kernel_dDFHermiteCubicSpline1D;
    brenn_df_kernel_dEditPPSpline1D(t, 4, f.sType, f.bcType, nullptr,
                                    hermite ? FIT_IC_FIRST_DERIVATIVES : 0,
                                    hermite ? d.slopes.data() : nullptr, d.coeff.data(), 0);
    return t;
}

void BM_CubicConstruct(benchmark::State& state) {
    const Family& f = kFamilies[state.range(0)];
    state.SetLabel(f.name);
    FitTaskHandle t = Task(f);
    for (auto _ : state) {
        int32_t s = f.build(t, 0, 0, nullptr);
        benchmark::DoNotOptimize(s);
    }
    brenn_df_kernel_DeleteTask(&t);
}
BENCHMARK(BM_CubicConstruct)->DenseRange(0, 5)->Unit(benchmark::kMicrosecond);

void BM_CubicConstructInterpolate(benchmark::State& state) {
    const Family& f = kFamilies[state.range(0)];
    bool pool = state.range(1) != 0;
    state.SetLabel(f.name);
    Data& d = D();
    FitTaskHandle t = Task(f);
    const threader* thr = pool ? brenn_serv_pool_threader() : nullptr;
    for (auto _ : state) {
        f.build(t, 0, 0, thr);
        int32_t s = brenn_df_kernel_dDFInterpolate1D(t, FIT_CALL_VALUES, 0, kSites, d.sites.data(),
                                                     0, 0, nullptr, nullptr, d.result.data(), 0,
                                                     nullptr, nullptr, nullptr, nullptr, nullptr,
                                                     nullptr, nullptr, nullptr, nullptr, thr);
        benchmark::DoNotOptimize(s);
    }
    brenn_df_kernel_DeleteTask(&t);
}
BENCHMARK(BM_CubicConstructInterpolate)
    ->ArgsProduct({{0, 1, 2, 3, 4, 5}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

// GSL: 0 cspline, 1 cspline_periodic, 2 akima, 3 steffen.
const gsl_interp_type* GslType(int64_t which) {
    const gsl_interp_type* types[] = {gsl_interp_cspline, gsl_interp_cspline_periodic,
                                      gsl_interp_akima, gsl_interp_steffen};
    return types[which];
}

void BM_GslConstruct(benchmark::State& state) {
    Data& d = D();
    const gsl_interp_type* type = GslType(state.range(0));
    state.SetLabel(type->name);
    const double* y = state.range(0) == 1 ? d.yPeriodic.data() : d.y.data();
    gsl_spline* spline = gsl_spline_alloc(type, kKnots);
    for (auto _ : state) {
        int s = gsl_spline_init(spline, d.x.data(), y, kKnots);
        benchmark::DoNotOptimize(s);
    }
    gsl_spline_free(spline);
}
BENCHMARK(BM_GslConstruct)->DenseRange(0, 3)->Unit(benchmark::kMicrosecond);

void BM_GslConstructInterpolate(benchmark::State& state) {
    Data& d = D();
    const gsl_interp_type* type = GslType(state.range(0));
    const double* y = state.range(0) == 1 ? d.yPeriodic.data() : d.y.data();
    gsl_spline* spline = gsl_spline_alloc(type, kKnots);
    gsl_interp_accel* acc = gsl_interp_accel_alloc();
    state.SetLabel(gsl_spline_name(spline));
    for (auto _ : state) {
        gsl_spline_init(spline, d.x.data(), y, kKnots);
        for (int64_t i = 0; i < kSites; ++i)
            d.result[i] = gsl_spline_eval(spline, d.sites[i], acc);
        benchmark::ClobberMemory();
    }
    gsl_interp_accel_free(acc);
    gsl_spline_free(spline);
}
BENCHMARK(BM_GslConstructInterpolate)->DenseRange(0, 3)->Unit(benchmark::kMillisecond);

} // namespace

BENCHMARK_MAIN();
