// ARS5 blocks by the 512-bit vector AES instructions: four blocks a register, four
// registers in flight. Only runs whose sixteen counters share the high counter word
// are made here; the caller makes the rest by the 128-bit form, so both give the
// same words.
#include <cpuid.h>
#include <immintrin.h>

#include "rng/brng/ars5.h"

namespace brenn::rng {

namespace {

constexpr int kRegs = 4;
constexpr int64_t kRun = 4 * kRegs;

bool AskWideRegisters() {
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d) || (c & (1u << 27)) == 0) return false; // OSXSAVE
    if (__get_cpuid_max(0, nullptr) < 7) return false;
    __cpuid_count(7, 0, a, b, c, d);
    if ((b & (1u << 16)) == 0) return false; // AVX-512 F
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return (lo & 0xE6) == 0xE6; // the system saves the xmm, ymm and zmm state
}

} // namespace

bool Ars5WideRegisters() {
    static const bool wide = AskWideRegisters();
    return wide;
}

__attribute__((target("avx512f,vaes"))) int64_t
Ars5RunsVaes(const Ars5Keys& keys, uint64_t count[2], int64_t nblocks, uint32_t* out) {
    __m512i k[6];
    for (int i = 0; i < 6; ++i) {
        const int64_t lo = static_cast<int64_t>(keys.k[i][0]),
                      hi = static_cast<int64_t>(keys.k[i][1]);
        k[i] = _mm512_set_epi64(hi, lo, hi, lo, hi, lo, hi, lo);
    }
    const __m512i step = _mm512_set_epi64(0, 4, 0, 4, 0, 4, 0, 4);
    int64_t made = 0;
    while (nblocks - made >= kRun && count[0] <= UINT64_MAX - (kRun - 1)) {
        const int64_t lo = static_cast<int64_t>(count[0]), hi = static_cast<int64_t>(count[1]);
        __m512i c[kRegs];
        c[0] = _mm512_set_epi64(hi, lo + 3, hi, lo + 2, hi, lo + 1, hi, lo);
#pragma GCC unroll 4
        for (int j = 1; j < kRegs; ++j)
            c[j] = _mm512_add_epi64(c[j - 1], step);
#pragma GCC unroll 4
        for (int j = 0; j < kRegs; ++j)
            c[j] = _mm512_xor_si512(c[j], k[0]);
#pragma GCC unroll 4
        for (int r = 1; r < 5; ++r)
#pragma GCC unroll 4
            for (int j = 0; j < kRegs; ++j)
                c[j] = _mm512_aesenc_epi128(c[j], k[r]);
#pragma GCC unroll 4
        for (int j = 0; j < kRegs; ++j)
            _mm512_storeu_si512(out + 16 * j, _mm512_aesenclast_epi128(c[j], k[5]));
        count[0] += kRun;
        if (count[0] == 0) ++count[1];
        out += 4 * kRun;
        made += kRun;
    }
    return made;
}

} // namespace brenn::rng
