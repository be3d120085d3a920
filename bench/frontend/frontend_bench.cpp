// The front-end's costs: a checked entry against the dispatch row called directly
// (the slot taken from the thread's mode, or fixed), at n = 1, 8 and 1000; dExp at
// n = 10^7 on one thread and split over the pool; and one thread against the pool
// over a range of n, from which the split threshold is read.
#include <benchmark/benchmark.h>
#include <vector>

#include "brenn.h"
#include "platform/threader.h"

namespace {

using Kernel = void (*)(int, const double*, double*);

struct Data {
    explicit Data(int n) : a(n), y(n) {
        for (int i = 0; i < n; ++i)
            a[i] = -20.0 + 40.0 * i / (n > 1 ? n - 1 : 1);
    }
    std::vector<double> a, y;
};

// The row by the thread's mode, as a caller without the front-end reaches it.
void BM_DirectRow(benchmark::State& state) {
    Data d(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        Kernel k =
            reinterpret_cast<Kernel>(brenn_zar_kernel_dExp_ttab[brenn_zar_kernel_GetTTableIndex()]);
        k(static_cast<int>(d.a.size()), d.a.data(), d.y.data());
        benchmark::DoNotOptimize(d.y.data());
    }
}

void BM_FrontEnd(benchmark::State& state) {
    Data d(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        brenn_vm_exp_f64(static_cast<int>(d.a.size()), d.a.data(), d.y.data());
        benchmark::DoNotOptimize(d.y.data());
    }
}

// A fixed slot, as the explicit-accuracy entry has it.
void BM_DirectSlot(benchmark::State& state) {
    Data d(static_cast<int>(state.range(0)));
    Kernel k = reinterpret_cast<Kernel>(brenn_zar_kernel_dExp_ttab[1]);
    for (auto _ : state) {
        k(static_cast<int>(d.a.size()), d.a.data(), d.y.data());
        benchmark::DoNotOptimize(d.y.data());
    }
}

void BM_FrontEndAcc(benchmark::State& state) {
    Data d(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        brenn_vm_exp_f64_acc(static_cast<int>(d.a.size()), d.a.data(), d.y.data(), BRENN_HA);
        benchmark::DoNotOptimize(d.y.data());
    }
}

// The same call on one thread (threshold out of reach) or split (threshold 0+).
void Split(benchmark::State& state, bool split) {
    Data d(static_cast<int>(state.range(0)));
    double old = brenn_vm_set_split_work(split ? 1e-300 : 1e300);
    for (auto _ : state) {
        brenn_vm_exp_f64(static_cast<int>(d.a.size()), d.a.data(), d.y.data());
        benchmark::DoNotOptimize(d.y.data());
    }
    brenn_vm_set_split_work(old);
    state.counters["threads"] = brenn_qes_serv_threader_get_num_threads_limit();
}
void BM_OneThread(benchmark::State& state) {
    Split(state, false);
}
void BM_Split(benchmark::State& state) {
    Split(state, true);
}

} // namespace

BENCHMARK(BM_DirectRow)->Arg(1)->Arg(8)->Arg(1000);
BENCHMARK(BM_FrontEnd)->Arg(1)->Arg(8)->Arg(1000);
BENCHMARK(BM_DirectSlot)->Arg(1)->Arg(8)->Arg(1000);
BENCHMARK(BM_FrontEndAcc)->Arg(1)->Arg(8)->Arg(1000);
BENCHMARK(BM_OneThread)
    ->RangeMultiplier(2)
    ->Range(1 << 10, 1 << 17)
    ->Arg(10'000'000)
    ->UseRealTime();
BENCHMARK(BM_Split)->RangeMultiplier(2)->Range(1 << 10, 1 << 17)->Arg(10'000'000)->UseRealTime();
BENCHMARK_MAIN();
