// Speed of the order-based estimates beside numpy, timed by /usr/bin/python3 in the
// same run: quantiles of 10^7 doubles (one order and three), of 32 variables of
// 312,500 by rows and interleaved, one select of the median of 10^7, and the sort of
// 10^7; all on the calling thread (a null threader) unless the name says pool. The
// streaming quantiles (eps 0.001, blocks of 2^20) are timed in ns an observation. Ratios (ours /
// numpy) and the targets met or not are printed after the table. Both sides are compared
// in CPU time (the pool row in the whole process's): on a loaded machine the wall clock
// mostly measures the wait for a core.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <cstring>
#include <random>
#include <vector>

#include "bench/stats/peer_timing.h"
#include "brenn_stats.h"
#include "platform/threader.h"

namespace {

constexpr int64_t kN = 10000000, kP = 32, kPerVariable = 312500;

const std::vector<double>& Data() {
    static std::vector<double> v = [] {
        std::vector<double> x(kN);
        std::mt19937_64 gen(3);
        std::normal_distribution<double> normal;
        for (double& e : x)
            e = normal(gen);
        return x;
    }();
    return v;
}

// The same values, variable j's observation i at i * 32 + j.
const std::vector<double>& Interleaved() {
    static std::vector<double> v = [] {
        const std::vector<double>& x = Data();
        std::vector<double> t(kN);
        for (int64_t j = 0; j < kP; ++j)
            for (int64_t i = 0; i < kPerVariable; ++i)
                t[i * kP + j] = x[j * kPerVariable + i];
        return t;
    }();
    return v;
}

void Quantiles(benchmark::State& state, int64_t p, int64_t layout, int64_t m, const threader* thr) {
    const std::vector<double>& x = layout == BRENN_SS_MATRIX_STORAGE_ROWS ? Data() : Interleaved();
    int64_t n = kN / p;
    double orders[3] = {0.5, 0.25, 0.75};
    std::vector<double> q(p * m);
    void* task = nullptr;
    _qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1);
    __qesdSSEditQuantiles(task, &m, orders, q.data(), nullptr, nullptr);
    for (auto _ : state) {
        if (_qesdSSQuantiles(task, BRENN_SS_QUANTS, BRENN_SS_METHOD_FAST, thr) != 0)
            state.SkipWithError("quantiles failed");
        benchmark::DoNotOptimize(q.data());
    }
    _qesSSDeleteTask(&task);
}

void SelectMedian(benchmark::State& state) {
    std::vector<double> a(kN);
    for (auto _ : state) {
        std::memcpy(a.data(), Data().data(), kN * sizeof(double));
        benchmark::DoNotOptimize(__qesdQSortSelect(kN, a.data(), kN / 2));
    }
}

void Sort(benchmark::State& state) {
    int64_t p = 1, n = kN, rows = BRENN_SS_MATRIX_STORAGE_ROWS;
    std::vector<double> out(kN);
    void* task = nullptr;
    _qesdSSNewTask(&task, &p, &n, &rows, Data().data(), nullptr, nullptr, 1);
    _qesdSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV, out.data());
    _qesiSSEditTask(task, BRENN_SS_ED_SORTED_OBSERV_STORAGE, &rows);
    for (auto _ : state) {
        if (_qesdSSSort(task, BRENN_SS_SORTED_OBSERV, BRENN_SS_METHOD_FAST, nullptr) != 0)
            state.SkipWithError("sort failed");
        benchmark::DoNotOptimize(out.data());
    }
    _qesSSDeleteTask(&task);
}

// Feeds the 10^7 values in blocks of 2^20 into a fresh summary (eps 0.001) and reads
// six orders at the end; the time an observation goes to the counter.
void StreamQuantiles(benchmark::State& state) {
    const int64_t block = int64_t(1) << 20;
    for (auto _ : state) {
        int64_t p = 1, n = block, rows = BRENN_SS_MATRIX_STORAGE_ROWS, m = 6, one = 1;
        double orders[6] = {0, 0.01, 0.25, 0.5, 0.99, 1}, out[6], eps = 0.001;
        void* task = nullptr;
        _qesdSSNewTask(&task, &p, &n, &rows, Data().data(), nullptr, nullptr, 1);
        __qesdSSEditStreamQuantiles(task, &m, orders, out, &one, &eps);
        for (int64_t at = 0; at < kN; at += n) {
            n = at + block < kN ? block : kN - at;
            _qesdSSEditTask(task, BRENN_SS_ED_OBSERV, Data().data() + at);
            uint64_t method =
                at + n < kN ? BRENN_SS_METHOD_STREAM_FEED : BRENN_SS_METHOD_STREAM_READ;
            if (_qesdSSStreamQuantiles(task, BRENN_SS_STREAM_QUANTS, method, nullptr) != 0)
                state.SkipWithError("streaming quantiles failed");
        }
        benchmark::DoNotOptimize(out);
        _qesSSDeleteTask(&task);
    }
    state.counters["ns_per_observation"] = benchmark::Counter(
        double(kN) * state.iterations(), benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

} // namespace

int main(int argc, char** argv) {
    benchmark::Initialize(&argc, argv);
    brenn::bench::RegisterPeerTimes(BRENN_PEER_TIMING);
    const int64_t rows = BRENN_SS_MATRIX_STORAGE_ROWS, cols = BRENN_SS_MATRIX_STORAGE_COLS;
    const threader* pool = brenn_serv_pool_threader();
    struct Q {
        const char* name;
        int64_t p, layout, m;
        const threader* thr;
    } qs[] = {
        {"quantile_1e7_one", 1, rows, 1, nullptr},
        {"quantile_1e7_three", 1, rows, 3, nullptr},
        {"quantile_32_rows_one", kP, rows, 1, nullptr},
        {"quantile_32_rows_three", kP, rows, 3, nullptr},
        {"quantile_32_cols_one", kP, cols, 1, nullptr},
        {"quantile_32_cols_three", kP, cols, 3, nullptr},
        {"quantile_32_rows_three_pool", kP, rows, 3, pool},
    };
    for (const Q& q : qs) {
        auto* b = benchmark::RegisterBenchmark(q.name, Quantiles, q.p, q.layout, q.m, q.thr)
                      ->Unit(benchmark::kMillisecond)
                      ->UseRealTime()
                      ->Repetitions(5);
        if (q.thr != nullptr) b->MeasureProcessCPUTime();
    }
    benchmark::RegisterBenchmark("select_median_1e7", SelectMedian)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Repetitions(5);
    benchmark::RegisterBenchmark("sort_1e7", Sort)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Repetitions(3);
    benchmark::RegisterBenchmark("stream_quantiles_1e7_eps0.001", StreamQuantiles)
        ->Unit(benchmark::kMillisecond)
        ->UseRealTime()
        ->Repetitions(3);
    brenn::bench::Recorder recorder;
    recorder.cpuTime = true;
    benchmark::RunSpecifiedBenchmarks(&recorder);
    // Targets: ours / numpy at most 1 for p = 1 and the sort, at most 0.5 for p = 32.
    struct Target {
        const char* ours;
        const char* numpy;
        double most;
    } targets[] = {
        {"quantile_1e7_one", "numpy_quantile_1e7_one", 1},
        {"quantile_1e7_three", "numpy_quantile_1e7_three", 1},
        {"select_median_1e7", "numpy_partition_1e7", 1},
        {"quantile_32_rows_one", "numpy_quantile_32_rows_one", 0.5},
        {"quantile_32_rows_three", "numpy_quantile_32_rows_three", 0.5},
        {"quantile_32_cols_one", "numpy_quantile_32_cols_one", 0.5},
        {"quantile_32_cols_three", "numpy_quantile_32_cols_three", 0.5},
        {"sort_1e7", "numpy_sort_1e7", 1},
    };
    for (const Target& t : targets) {
        double r = recorder.Ratio(t.ours, t.numpy);
        if (r > 0)
            std::printf("    target at most %.2f: %s\n", t.most, r <= t.most ? "met" : "not met");
    }
    benchmark::Shutdown();
    return 0;
}
