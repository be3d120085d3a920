// PHILOX4X32X10 on 256-bit registers: the 128-bit form's layout (one block's word in
// the low half of each 64-bit lane) four blocks a register, three registers a word
// of the block in flight. The 32 x 32 products are the half of the round that the
// wider registers double.
#include <cpuid.h>
#include <immintrin.h>

#include "rng/brng/philox.h"

namespace brenn::rng {

namespace {

constexpr uint32_t kMul0 = 0xD2511F53u, kMul1 = 0xCD9E8D57u;
constexpr uint32_t kBump0 = 0x9E3779B9u, kBump1 = 0xBB67AE85u;
constexpr int kRounds = 10;
constexpr int64_t kRun = 12;

bool AskWideRegisters() {
    unsigned a, b, c, d;
    if (!__get_cpuid(1, &a, &b, &c, &d) || (c & (1u << 27)) == 0) return false; // OSXSAVE
    if (__get_cpuid_max(0, nullptr) < 7) return false;
    __cpuid_count(7, 0, a, b, c, d);
    if ((b & (1u << 5)) == 0) return false; // AVX2
    unsigned lo, hi;
    __asm__ volatile("xgetbv" : "=a"(lo), "=d"(hi) : "c"(0));
    return (lo & 6) == 6; // the system saves the xmm and ymm state
}

struct Quad {
    __m256i c0, c1, c2, c3;

    __attribute__((target("avx2"), always_inline)) void Round(__m256i k0, __m256i k1) {
        const __m256i m0 = _mm256_set1_epi64x(kMul0), m1 = _mm256_set1_epi64x(kMul1);
        __m256i p0 = _mm256_mul_epu32(c0, m0), p1 = _mm256_mul_epu32(c2, m1);
        c0 = _mm256_xor_si256(_mm256_shuffle_epi32(p1, 0xF5), _mm256_xor_si256(c1, k0));
        c2 = _mm256_xor_si256(_mm256_shuffle_epi32(p0, 0xF5), _mm256_xor_si256(c3, k1));
        c1 = p1;
        c3 = p0;
    }

    // Each 128-bit half holds two blocks; they are put back in counter order.
    __attribute__((target("avx2"), always_inline)) void Store(uint32_t* out) const {
        __m256i a = _mm256_unpacklo_epi32(c0, c1), b = _mm256_unpacklo_epi32(c2, c3);
        __m256i c = _mm256_unpackhi_epi32(c0, c1), d = _mm256_unpackhi_epi32(c2, c3);
        __m256i even = _mm256_unpacklo_epi64(a, b), odd = _mm256_unpacklo_epi64(c, d);
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(out),
                            _mm256_permute2x128_si256(even, odd, 0x20));
        _mm256_storeu_si256(reinterpret_cast<__m256i*>(out + 8),
                            _mm256_permute2x128_si256(even, odd, 0x31));
    }
};

} // namespace

bool PhiloxWideRegisters() {
    static const bool wide = AskWideRegisters();
    return wide;
}

__attribute__((target("avx2"))) int64_t PhiloxRunsAvx2(uint32_t k0, uint32_t k1, uint64_t count[2],
                                                       int64_t nblocks, uint32_t* out) {
    __m256i keys[kRounds][2];
    for (int round = 0; round < kRounds; ++round, k0 += kBump0, k1 += kBump1) {
        keys[round][0] = _mm256_set1_epi64x(k0);
        keys[round][1] = _mm256_set1_epi64x(k1);
    }
    int64_t made = 0;
    while (nblocks - made >= kRun && static_cast<uint32_t>(count[0]) <= 0xFFFFFFFFu - (kRun - 1)) {
        const int64_t low = static_cast<uint32_t>(count[0]);
        const __m256i c1 = _mm256_set1_epi64x(static_cast<int64_t>(count[0] >> 32));
        const __m256i c2 = _mm256_set1_epi64x(static_cast<int64_t>(count[1] & 0xFFFFFFFFu));
        const __m256i c3 = _mm256_set1_epi64x(static_cast<int64_t>(count[1] >> 32));
        Quad a{_mm256_set_epi64x(low + 3, low + 2, low + 1, low), c1, c2, c3};
        Quad b{_mm256_set_epi64x(low + 7, low + 6, low + 5, low + 4), c1, c2, c3};
        Quad c{_mm256_set_epi64x(low + 11, low + 10, low + 9, low + 8), c1, c2, c3};
        for (int round = 0; round < kRounds; ++round) {
            a.Round(keys[round][0], keys[round][1]);
            b.Round(keys[round][0], keys[round][1]);
            c.Round(keys[round][0], keys[round][1]);
        }
        a.Store(out);
        b.Store(out + 16);
        c.Store(out + 32);
        uint64_t next = count[0] + kRun;
        count[1] += next < count[0] ? 1 : 0;
        count[0] = next;
        out += 4 * kRun;
        made += kRun;
    }
    return made;
}

} // namespace brenn::rng
