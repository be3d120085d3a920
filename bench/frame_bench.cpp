// Micro-benchmarks of the frame's hot path: the mode read every kernel makes, and the
// floating-point entry/exit pair when the caller is already in the wanted state
// (against the same loop without it).
#include <benchmark/benchmark.h>

#include "brenn_vecmath.h"
#include "frame/fpenv.h"

namespace {

using namespace brenn::frame;

void BM_GetMode(benchmark::State& state) {
    brenn_zar_kernel_GetMode();
    for (auto _ : state) benchmark::DoNotOptimize(brenn_zar_kernel_GetMode());
}
BENCHMARK(BM_GetMode);

void BM_ThreadModeInline(benchmark::State& state) {
    ThreadMode();
    for (auto _ : state) benchmark::DoNotOptimize(ThreadMode());
}
BENCHMARK(BM_ThreadModeInline);

// Sixteen additions: the work a short kernel call does besides its frame.
float Work(const float* a) {
    float s = 0;
    for (int i = 0; i < 16; ++i) s += a[i];
    return s;
}

void BM_KernelWorkBare(benchmark::State& state) {
    alignas(16) float a[16] = {1};
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        benchmark::DoNotOptimize(Work(a));
    }
}
BENCHMARK(BM_KernelWorkBare);

void BM_KernelWorkWithEntryExit(benchmark::State& state) {
    alignas(16) float a[16] = {1};
    LoadCsr(0x1F80 | (ReadCsr() & 0x3F));
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::Common>(ThreadMode());
        benchmark::DoNotOptimize(Work(a));
        FpLeave(s);
    }
}
BENCHMARK(BM_KernelWorkWithEntryExit);

void BM_KernelWorkWithRestoreNeeded(benchmark::State& state) {
    alignas(16) float a[16] = {1};
    LoadCsr(0x1F80 | 0x6000); // the caller rounds toward zero: the kernel must switch
    for (auto _ : state) {
        benchmark::DoNotOptimize(a);
        FpState s = FpEnter<X87Rule::Masked, CsrRule::Common>(ThreadMode());
        benchmark::DoNotOptimize(Work(a));
        FpLeave(s);
    }
    LoadCsr(0x1F80);
}
BENCHMARK(BM_KernelWorkWithRestoreNeeded);

} // namespace

BENCHMARK_MAIN();
