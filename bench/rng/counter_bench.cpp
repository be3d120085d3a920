// Speed of the counter-based generators and TRNG: PHILOX4X32X10 and ARS5 iGenerate
// in blocks of 1024 words (PHILOX on 256-bit registers where the processor has them
// and on 128-bit ones; ARS5 on its 128-bit AES path, and on the 512-bit vector AES
// path when the processor has it), beside Random123's headers called a block a
// call; and the rate of TRNG words from RDRAND. "per_cycle" is words per time-stamp
// cycle; items per second give the time a word.
#include <cstdint>
#include <vector>

#include <benchmark/benchmark.h>

#include "bench/rng/measure.h"
#include "brenn_rng.h"
#include "rng/brng/ars5.h"
#include "rng/core/cpu_hooks.h"

#if __has_include(<Random123/philox.h>)
#include <Random123/philox.h>
#define BRENN_BENCH_R123 1
#if defined(__AES__)
#include <Random123/ars.h>
#define BRENN_BENCH_R123_ARS 1
#endif
#endif

namespace {

using brenn::bench::kBlock;
using brenn::bench::Measure;
namespace hooks = brenn::rng::testing;

void Words(benchmark::State& state, int32_t brng, uint32_t hidden) {
    void* s = nullptr;
    uint32_t key[8] = {0x123, 0x234, 0x345, 0x456, 1, 2, 3, 4};
    __qesNewStreamEx(&s, brng, 8, key);
    BrngRecord row;
    __qesGetBrngProperties(brng, &row);
    std::vector<uint32_t> r(kBlock);
    hooks::hiddenFeatures = hidden;
    if (row.iGenerate(s, kBlock, r.data()) != 0) {
        state.SkipWithError("the generator refuses on this processor");
    } else {
        Measure(state, [&] {
            row.iGenerate(s, kBlock, r.data());
            benchmark::DoNotOptimize(r.data());
        });
    }
    hooks::hiddenFeatures = 0;
    __qesDeleteStream(&s);
}

void BM_Philox4x32x10Words(benchmark::State& state) {
    Words(state, QES_BRNG_PHILOX4X32X10, 0);
}
void BM_Philox4x32x10Words128(benchmark::State& state) {
    Words(state, QES_BRNG_PHILOX4X32X10, hooks::kHideAvx2);
}
void BM_Ars5WordsAes(benchmark::State& state) {
    Words(state, QES_BRNG_ARS5, hooks::kHideVaes);
}
void BM_Ars5WordsVectorAes(benchmark::State& state) {
    if (!__qesCPUisVAES()) {
        state.SkipWithError("no vector AES on this processor");
        return;
    }
    Words(state, QES_BRNG_ARS5, 0);
}
// The entries ask the processor for AES (and for vector AES from 256 words) at each
// call; where that query is slow (a hypervisor that traps it), the block paths alone
// and requests of 2^20 words show the generator itself.
void Blocks(benchmark::State& state, bool wide) {
    if (!__qesCPUisAES() || (wide && (!__qesCPUisVAES() || !brenn::rng::Ars5WideRegisters()))) {
        state.SkipWithError("no AES (or no vector AES) on this processor");
        return;
    }
    brenn::rng::Ars5Keys keys{};
    for (int i = 1; i < 6; ++i) {
        keys.k[i][0] = keys.k[i - 1][0] + 0x9E3779B97F4A7C15ull;
        keys.k[i][1] = keys.k[i - 1][1] + 0xBB67AE8584CAA73Bull;
    }
    uint64_t count[2] = {1, 2};
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        if (wide)
            brenn::rng::Ars5RunsVaes(keys, count, kBlock / 4, r.data());
        else
            brenn::rng::Ars5BlocksAes(keys, count, kBlock / 4, r.data());
        benchmark::DoNotOptimize(r.data());
    });
}
void BM_Ars5BlocksAes(benchmark::State& state) {
    Blocks(state, false);
}
void BM_Ars5BlocksVectorAes(benchmark::State& state) {
    Blocks(state, true);
}
void BM_Ars5WordsLong(benchmark::State& state) {
    void* s = nullptr;
    uint32_t key[8] = {0x123, 0x234, 0x345, 0x456, 1, 2, 3, 4};
    __qesNewStreamEx(&s, QES_BRNG_ARS5, 8, key);
    const int32_t n = 1 << 20;
    std::vector<uint32_t> r(n);
    if (__qesiBRngARS5(s, n, r.data()) != 0) {
        state.SkipWithError("no AES on this processor");
    } else {
        Measure(
            state,
            [&] {
                __qesiBRngARS5(s, n, r.data());
                benchmark::DoNotOptimize(r.data());
            },
            n);
    }
    __qesDeleteStream(&s);
}
void BM_TrngWords(benchmark::State& state) {
    Words(state, QES_BRNG_TRNG, 0);
}
BENCHMARK(BM_Philox4x32x10Words);
BENCHMARK(BM_Philox4x32x10Words128);
BENCHMARK(BM_Ars5WordsAes);
BENCHMARK(BM_Ars5WordsVectorAes);
BENCHMARK(BM_Ars5BlocksAes);
BENCHMARK(BM_Ars5BlocksVectorAes);
BENCHMARK(BM_Ars5WordsLong);
BENCHMARK(BM_TrngWords);

#if defined(BRENN_BENCH_R123)
// A block a call, the counter raised after each.
template <typename Cbrng>
void Reference(benchmark::State& state) {
    Cbrng g;
    typename Cbrng::ctr_type c = {{1, 2, 3, 4}};
    typename Cbrng::ukey_type uk = {{0x123, 0x234}};
    typename Cbrng::key_type k(uk);
    std::vector<uint32_t> r(kBlock);
    Measure(state, [&] {
        for (int i = 0; i < kBlock; i += 4) {
            auto out = g(c, k);
            c.incr();
            r[i] = out[0];
            r[i + 1] = out[1];
            r[i + 2] = out[2];
            r[i + 3] = out[3];
        }
        benchmark::DoNotOptimize(r.data());
    });
}
void BM_Random123Philox4x32x10(benchmark::State& state) {
    Reference<r123::Philox4x32_R<10>>(state);
}
BENCHMARK(BM_Random123Philox4x32x10);
#if defined(BRENN_BENCH_R123_ARS)
void BM_Random123Ars4x32x5(benchmark::State& state) {
    if (!__qesCPUisAES()) {
        state.SkipWithError("no AES on this processor");
        return;
    }
    Reference<r123::ARS4x32_R<5>>(state);
}
BENCHMARK(BM_Random123Ars4x32x5);
#endif
#endif

} // namespace
