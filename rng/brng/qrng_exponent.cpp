// Whole points of the quasi-random generators in double, rounding being to nearest.
// Each coordinate lives in a 64-bit lane as the double 2^(52 + k) + x' 2^k, and the
// rows are prepared as x' words in the low half of a lane, so the Gray-code XOR
// keeps the lane a double of that form: a pair of coordinates costs an XOR and the
// subtraction of 2^(52 + k), which is exact. With the scale s a power of two 2^k
// that is the product x' s, and the sum with a follows (none when a is 0); else k
// is 0 and the product and sum follow.
// The point goes in groups of up to 20 coordinates held in registers across all
// points of the run; it is advanced at the end by the rows used an odd number of
// times.
#include "rng/brng/qrng_exponent.h"

#include <emmintrin.h>
#include <string.h>

#include <algorithm>
#include <array>
#include <utility>

namespace brenn::rng {

namespace {

constexpr int kGroup = 20; // 10 vectors in registers

using Rows = uint64_t[kQrngBits][kGroup];

// w words `stride` apart, shifted right by `shift`, each in the low half of a lane
// whose high half is `high`; an odd w gets a last lane of `high`, which the
// vectors read and never store.
void Widen(const uint32_t* from, ptrdiff_t stride, int w, int shift, uint64_t high, uint64_t* to) {
    int k = 0;
    if (stride == 1) {
        const __m128i h = _mm_set1_epi64x(static_cast<int64_t>(high)), zero = _mm_setzero_si128();
        const __m128i count = _mm_cvtsi32_si128(shift);
        for (; k + 4 <= w; k += 4) {
            const __m128i x =
                _mm_srl_epi32(_mm_loadu_si128(reinterpret_cast<const __m128i*>(from + k)), count);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + k),
                             _mm_or_si128(_mm_unpacklo_epi32(x, zero), h));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(to + k + 2),
                             _mm_or_si128(_mm_unpackhi_epi32(x, zero), h));
        }
    }
    for (; k < w; ++k)
        to[k] = high | (from[k * stride] >> shift);
    if (w % 2 != 0) to[w] = high;
}

// q points of W coordinates from r, rows of the output `stride` apart.
template <int W, bool kMul, bool kAdd>
void RunGroup(const Rows& rows, const uint64_t* lanes, uint32_t c, uint32_t q, double* r,
              int64_t stride, double biasValue, double sValue, double aValue) {
    constexpr int kVectors = (W + 1) / 2;
    const __m128d bias = _mm_set1_pd(biasValue), s = _mm_set1_pd(sValue), a = _mm_set1_pd(aValue);
    __m128i x[kVectors];
    for (int v = 0; v < kVectors; ++v)
        x[v] = _mm_load_si128(reinterpret_cast<const __m128i*>(lanes) + v);
    const auto step = [&](const uint64_t* rowWords) {
        const __m128i* row = reinterpret_cast<const __m128i*>(rowWords);
#pragma GCC unroll 10
        for (int v = 0; v < kVectors; ++v) {
            __m128d y = _mm_sub_pd(_mm_castsi128_pd(x[v]), bias);
            if constexpr (kMul) y = _mm_mul_pd(y, s);
            if constexpr (kAdd) y = _mm_add_pd(y, a);
            if (2 * v + 1 < W)
                _mm_storeu_pd(r + 2 * v, y);
            else
                _mm_store_sd(r + 2 * v, y);
            x[v] = _mm_xor_si128(x[v], _mm_load_si128(row + v));
        }
        r += stride;
    };
    // An even counter takes row 0, so points go in pairs from an even counter.
    uint32_t t = 0;
    if (q > 0 && (c & 1) != 0) {
        step(rows[LowZero(c)]);
        ++c, ++t;
    }
    for (; t + 2 <= q; t += 2, c += 2) {
        step(rows[0]);
        step(rows[LowZero(c + 1)]);
    }
    if (t < q) step(rows[0]);
}

using GroupRun = void (*)(const Rows&, const uint64_t*, uint32_t, uint32_t, double*, int64_t,
                          double, double, double);

template <bool kMul, bool kAdd, size_t... W>
constexpr auto GroupTable(std::index_sequence<W...>) {
    return std::array<GroupRun, sizeof...(W)>{&RunGroup<W + 1, kMul, kAdd>...};
}

} // namespace

// LowZero(k) is c when k is 2^c - 1 modulo 2^(c + 1).
void RowsOfRun(uint32_t c0, uint32_t q, uint32_t* used, uint32_t* odd) {
    const uint64_t begin = c0, end = begin + q;
    *used = *odd = 0;
    for (int c = 0; c < kQrngBits; ++c) {
        const uint64_t half = uint64_t{1} << c, period = half << 1;
        const uint64_t count = (end + half) / period - (begin + half) / period;
        *used |= static_cast<uint32_t>(count != 0) << c;
        *odd |= static_cast<uint32_t>(count & 1) << c;
    }
}

uint32_t RunByExponent(const QrngView& v, uint32_t q, double* r, uint32_t high, double s, double a,
                       int shift, bool multiply) {
    static constexpr auto kAsIs = GroupTable<false, false>(std::make_index_sequence<kGroup>());
    static constexpr auto kSum = GroupTable<false, true>(std::make_index_sequence<kGroup>());
    static constexpr auto kScaled = GroupTable<true, true>(std::make_index_sequence<kGroup>());
    const int32_t d = v.head->dimension;
    const uint32_t c0 = v.head->counter;
    uint32_t used, odd;
    RowsOfRun(c0, q, &used, &odd);
    const uint64_t exponent = static_cast<uint64_t>(high) << 32;
    double biasValue;
    memcpy(&biasValue, &exponent, sizeof biasValue);
    // x' 2^k + a is x' 2^k when a is either zero, rounding being to nearest.
    const auto& table = multiply ? kScaled : a == 0.0 ? kAsIs : kSum;
    alignas(16) Rows rows;
    alignas(16) uint64_t lanes[kGroup];
    for (int32_t j0 = 0; j0 < d; j0 += kGroup) {
        const int w = std::min<int32_t>(kGroup, d - j0);
        for (uint32_t u = used; u != 0; u &= u - 1) {
            const int c = __builtin_ctz(u);
            Widen(v.dirs + c * v.rowStride + j0 * v.colStride, v.colStride, w, shift, 0, rows[c]);
        }
        Widen(&v.Point(j0), v.pointStride, w, shift, exponent, lanes);
        table[w - 1](rows, lanes, c0, q, r + j0, d, biasValue, s, a);
    }
    for (uint32_t u = odd; u != 0; u &= u - 1) {
        const int c = __builtin_ctz(u);
        for (int32_t j = 0; j < d; ++j)
            v.Point(j) ^= v.Dir(j, c);
    }
    return c0 + q;
}

} // namespace brenn::rng
