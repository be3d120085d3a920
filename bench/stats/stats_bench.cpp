// Speed of the basic statistics compute: covariance of 10^6 x 32 doubles beside
// numpy.cov and a bare OpenBLAS dsyrk on data already centred, and mean and variance
// of 10^7 doubles beside numpy. numpy is timed by /usr/bin/python3 in the same run and
// its times enter the table as manual timings; ratios are printed at the end.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <map>
#include <random>
#include <string>
#include <vector>

#include "bench/stats/peer_timing.h"
#include "brenn_stats.h"
#include "platform/threader.h"

// OpenBLAS's own entry, called without the service library's forward.
extern "C" void dsyrk_(const char*, const char*, const int*, const int*, const double*,
                       const double*, const int*, const double*, double*, const int*, size_t,
                       size_t);

namespace {

constexpr int64_t kCovN = 1000000, kCovP = 32, kVarN = 10000000;

std::vector<double>& CovData() {
    static std::vector<double> x = [] {
        std::vector<double> v(kCovN * kCovP);
        std::mt19937_64 gen(1);
        std::normal_distribution<double> normal;
        for (double& e : v)
            e = normal(gen);
        return v;
    }();
    return x;
}

std::vector<double>& VarData() {
    static std::vector<double> x = [] {
        std::vector<double> v(kVarN);
        std::mt19937_64 gen(2);
        std::normal_distribution<double> normal(3.0, 1.0);
        for (double& e : v)
            e = normal(gen);
        return v;
    }();
    return x;
}

void Covariance(benchmark::State& state, uint64_t method, const threader* thr) {
    std::vector<double>& x = CovData();
    int64_t p = kCovP, n = kCovN, storage = BRENN_SS_MATRIX_STORAGE_COLS, full = 0;
    std::vector<double> mean(p), cov(p * p);
    void* task = nullptr;
    _qesdSSNewTask(&task, &p, &n, &storage, x.data(), nullptr, nullptr, 1);
    __qesdSSEditCovCor(task, mean.data(), cov.data(), &full, nullptr, nullptr);
    for (auto _ : state) {
        int32_t s = _qesdSSBasic(task, BRENN_SS_MEAN | BRENN_SS_COV, method, thr);
        if (s != 0) state.SkipWithError("basic compute failed");
        benchmark::DoNotOptimize(cov.data());
    }
    _qesSSDeleteTask(&task);
}

void BareDsyrk(benchmark::State& state) {
    // The same data centred beforehand: the matrix product alone.
    static std::vector<double> centred = [] {
        std::vector<double> c = CovData();
        for (int64_t j = 0; j < kCovP; ++j) {
            double m = 0;
            for (int64_t i = 0; i < kCovN; ++i)
                m += c[i * kCovP + j];
            m /= kCovN;
            for (int64_t i = 0; i < kCovN; ++i)
                c[i * kCovP + j] -= m;
        }
        return c;
    }();
    std::vector<double> c(kCovP * kCovP);
    const int n = kCovP, k = kCovN;
    const double alpha = 1.0 / (kCovN - 1), beta = 0;
    for (auto _ : state) {
        dsyrk_("L", "N", &n, &k, &alpha, centred.data(), &n, &beta, c.data(), &n, 1, 1);
        benchmark::DoNotOptimize(c.data());
    }
}

void MeanVariance(benchmark::State& state, uint64_t method) {
    std::vector<double>& x = VarData();
    int64_t p = 1, n = kVarN, storage = BRENN_SS_MATRIX_STORAGE_ROWS;
    double mean = 0, raw2 = 0, c2 = 0;
    void* task = nullptr;
    _qesdSSNewTask(&task, &p, &n, &storage, x.data(), nullptr, nullptr, 1);
    __qesdSSEditMoments(task, &mean, &raw2, nullptr, nullptr, &c2, nullptr, nullptr);
    for (auto _ : state) {
        int32_t s = _qesdSSBasic(task, BRENN_SS_MEAN | BRENN_SS_2C_MOM, method, nullptr);
        if (s != 0) state.SkipWithError("basic compute failed");
        benchmark::DoNotOptimize(c2);
    }
    _qesSSDeleteTask(&task);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    brenn::bench::RegisterPeerTimes(BRENN_PEER_TIMING);
    benchmark::RegisterBenchmark("bare_dsyrk_1e6x32", BareDsyrk)->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("cov_1e6x32_blocked", Covariance, BRENN_SS_METHOD_ONE_PASS_B,
                                 nullptr)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("cov_1e6x32_blocked_pool", Covariance, BRENN_SS_METHOD_ONE_PASS_B,
                                 brenn_serv_pool_threader())
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("cov_1e6x32_onepass_pool", Covariance, BRENN_SS_METHOD_ONE_PASS,
                                 brenn_serv_pool_threader())
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime();
    benchmark::RegisterBenchmark("mean_var_1e7_blocked", MeanVariance, BRENN_SS_METHOD_ONE_PASS_B)
        ->Unit(benchmark::kMillisecond);
    benchmark::RegisterBenchmark("mean_var_1e7_onepass", MeanVariance, BRENN_SS_METHOD_ONE_PASS)
        ->Unit(benchmark::kMillisecond);
    brenn::bench::Recorder recorder;
    benchmark::RunSpecifiedBenchmarks(&recorder);
    auto ratio = [&](const char* a, const char* b) { recorder.Ratio(a, b); };
    ratio("cov_1e6x32_blocked/real_time", "bare_dsyrk_1e6x32");
    ratio("cov_1e6x32_blocked_pool/real_time", "bare_dsyrk_1e6x32");
    ratio("cov_1e6x32_blocked/real_time", "numpy_cov_1e6x32/iterations:1/manual_time");
    ratio("mean_var_1e7_blocked", "numpy_mean_var_1e7/iterations:1/manual_time");
    ratio("mean_var_1e7_onepass", "numpy_mean_var_1e7/iterations:1/manual_time");
    benchmark::Shutdown();
    return 0;
}
