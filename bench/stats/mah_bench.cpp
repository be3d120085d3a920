// Mahalanobis distances of 10^6 observations of 32 variables (observation-major) from
// their mean, beside scipy's cdist(..., 'mahalanobis', VI=...) timed by
// mah_scipy_timing.py in the same run (best runs). The library runs on the calling
// thread (null threader) and on the pool, beside a plain read of the data (the memory
// floor). Prints ours / scipy (and read / ours) after the table: in
// process CPU time (the work done, whatever the load) and in wall-clock time (what a
// caller waits, which on a loaded machine includes the wait for a core).
#include <benchmark/benchmark.h>
#include <emmintrin.h>

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "bench/stats/peer_timing.h"
#include "brenn_stats.h"
#include "platform/threader.h"

namespace {

constexpr int64_t kN = 1000000, kP = 32;

struct Problem {
    std::vector<double> x, mean, cov, d;
    void* task = nullptr;
    int64_t p = kP, n = kN, layout = BRENN_SS_MATRIX_STORAGE_COLS, full = 0;
    Problem() : x(kN * kP), mean(kP), cov(kP * kP), d(kN) {
        for (int64_t i = 0; i < kN; ++i)
            for (int64_t j = 0; j < kP; ++j)
                x[i * kP + j] =
                    std::sin(i * 0.7 + j * 1.3) + 0.25 * std::cos(i * (0.11 + 0.01 * j));
        _qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1);
        _qesdSSEditTask(task, BRENN_SS_ED_MEAN, mean.data());
        _qesdSSEditTask(task, BRENN_SS_ED_COV, cov.data());
        _qesiSSEditTask(task, BRENN_SS_ED_COV_STORAGE, &full);
        _qesdSSBasic(task, BRENN_SS_MEAN | BRENN_SS_COV, BRENN_SS_METHOD_ONE_PASS_B, nullptr);
    }
    ~Problem() { _qesSSDeleteTask(&task); }
};

Problem& Shared() {
    static Problem problem;
    return problem;
}

void Ours(benchmark::State& state, const threader* thr) {
    Problem& p = Shared();
    for (auto _ : state) {
        int32_t s =
            _qesdSSMahDistance(p.task, BRENN_SS_MAH_DIST, BRENN_SS_METHOD_FAST, p.d.data(), thr);
        if (s != 0) state.SkipWithError("status");
        benchmark::DoNotOptimize(p.d.data());
    }
}

// A plain read of the 256 MB of data (two running sums of SSE pairs): the memory floor
// that the distances cannot go below.
void PlainRead(benchmark::State& state) {
    const std::vector<double>& x = Shared().x;
    for (auto _ : state) {
        __m128d s0 = _mm_setzero_pd(), s1 = _mm_setzero_pd();
        for (size_t i = 0; i + 4 <= x.size(); i += 4) {
            s0 = _mm_add_pd(s0, _mm_loadu_pd(&x[i]));
            s1 = _mm_add_pd(s1, _mm_loadu_pd(&x[i + 2]));
        }
        benchmark::DoNotOptimize(s0);
        benchmark::DoNotOptimize(s1);
    }
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    brenn::bench::RegisterPeerTimes(BRENN_PEER_TIMING);
    Shared();
    benchmark::RegisterBenchmark("brenn_mahalanobis_1e6x32", Ours, nullptr)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->Repetitions(5);
    benchmark::RegisterBenchmark("brenn_mahalanobis_1e6x32_pool", Ours, brenn_serv_pool_threader())
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->Repetitions(3);
    benchmark::RegisterBenchmark("plain_read_1e6x32", PlainRead)
        ->Unit(benchmark::kMillisecond)
        ->MeasureProcessCPUTime()
        ->Repetitions(5);
    brenn::bench::Recorder recorder;
    recorder.cpuTime = true;
    benchmark::RunSpecifiedBenchmarks(&recorder);
    std::printf("\n");
    const std::string scipy = "scipy_cdist_mahalanobis_1e6x32";
    std::printf("process CPU time:\n");
    recorder.Ratio("brenn_mahalanobis_1e6x32", scipy);
    recorder.Ratio("brenn_mahalanobis_1e6x32_pool", scipy);
    recorder.Ratio("plain_read_1e6x32", "brenn_mahalanobis_1e6x32");
    std::printf("wall-clock time:\n");
    recorder.Ratio(recorder.wall, "brenn_mahalanobis_1e6x32", scipy + "_wall");
    recorder.Ratio(recorder.wall, "brenn_mahalanobis_1e6x32_pool", scipy + "_wall");
    benchmark::Shutdown();
    return 0;
}
