// ARS5 blocks by the 128-bit AES instructions: eight counters in flight, so that
// the rounds of independent blocks overlap in the AES unit; a tail and a carry from
// the low counter word into the high one go one block at a time.
#include <emmintrin.h>
#include <wmmintrin.h>

#include "rng/brng/ars5.h"

namespace brenn::rng {

namespace {

constexpr int kWide = 8;

__attribute__((target("aes"))) inline __m128i Encrypt(__m128i c, const __m128i* k) {
    c = _mm_xor_si128(c, k[0]);
    c = _mm_aesenc_si128(c, k[1]);
    c = _mm_aesenc_si128(c, k[2]);
    c = _mm_aesenc_si128(c, k[3]);
    c = _mm_aesenc_si128(c, k[4]);
    return _mm_aesenclast_si128(c, k[5]);
}

} // namespace

__attribute__((target("aes"))) void Ars5BlocksAes(const Ars5Keys& keys, uint64_t count[2],
                                                  int64_t nblocks, uint32_t* out) {
    __m128i k[6];
    for (int i = 0; i < 6; ++i)
        k[i] = _mm_loadu_si128(reinterpret_cast<const __m128i*>(keys.k[i]));
    while (nblocks > 0) {
        if (nblocks >= kWide && count[0] <= UINT64_MAX - (kWide - 1)) {
            const __m128i high = _mm_set_epi64x(static_cast<int64_t>(count[1]), 0);
            __m128i c[kWide];
#pragma GCC unroll 8
            for (int j = 0; j < kWide; ++j)
                c[j] = _mm_or_si128(high, _mm_set_epi64x(0, static_cast<int64_t>(count[0] + j)));
#pragma GCC unroll 8
            for (int j = 0; j < kWide; ++j)
                c[j] = _mm_xor_si128(c[j], k[0]);
#pragma GCC unroll 4
            for (int r = 1; r < 5; ++r)
#pragma GCC unroll 8
                for (int j = 0; j < kWide; ++j)
                    c[j] = _mm_aesenc_si128(c[j], k[r]);
#pragma GCC unroll 8
            for (int j = 0; j < kWide; ++j)
                _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 4 * j),
                                 _mm_aesenclast_si128(c[j], k[5]));
            count[0] += kWide;
            if (count[0] == 0) ++count[1];
            out += 4 * kWide;
            nblocks -= kWide;
        } else {
            __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(count));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(out), Encrypt(c, k));
            if (++count[0] == 0) ++count[1];
            out += 4;
            --nblocks;
        }
    }
}

} // namespace brenn::rng
