// Whole points of the quasi-random generators in double, rounding being to nearest.
// Each coordinate lives in a 64-bit lane as the double 2^(52 + k) + x' 2^k, and the
// rows are prepared as x' words in the low half of a lane, so the Gray-code XOR
// keeps the lane a double of that form: a pair of coordinates costs an XOR and the
// subtraction of 2^(52 + k), which is exact. With the scale s a power of two 2^k
// that is the product x' s, and the sum with a follows (none when a is 0); else k
// is 0 and the product and sum follow.
// The point goes in groups of up to 24 coordinates held in registers, one pass over
// the output a group. When a point fills whole cache lines (8 coordinates a line)
// the groups are cut at line boundaries, so no line is written by two passes: the
// output is then taken from its first line boundary on, as points rotated by the
// coordinates before it, whose tail lanes run one point ahead (see RunRotated).
// Each output line is fetched about 1 KiB before it is written: the stores then find
// their lines in the first-level cache instead of waiting on the fetch. The point is
// advanced at the end by the rows used an odd number of times.
#include "rng/brng/qrng_exponent.h"

#include <emmintrin.h>
#include <string.h>

#include <algorithm>
#include <array>
#include <utility>

namespace brenn::rng {

namespace {

constexpr int kGroup = 24; // 12 vectors in registers
constexpr int kLine = 8;   // coordinates a cache line
// Lanes of the run's rows and its point (16 KiB): with all 32 rows a span of
// coordinates still holds two groups.
constexpr int kSpanLanes = 2048;
// How far ahead of the stores the output lines are fetched.
constexpr int64_t kAheadBytes = 1024;

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

// q points of W coordinates from r, rows of the output `stride` apart. A point of
// odd counter c is advanced by odd[LowZero(c)], of even counter c by row 0,
// even[0], or with kPaired by even[LowZero(c + 1)]. The lanes are advanced past
// the q points.
template <int W, bool kMul, bool kAdd, bool kPaired>
void RunGroup(const uint64_t* const* even, const uint64_t* const* odd, uint64_t* lanes, uint32_t c,
              uint32_t q, double* r, int64_t stride, int64_t ahead, double biasValue, double sValue,
              double aValue) {
    constexpr int kVectors = (W + 1) / 2;
    const __m128d bias = _mm_set1_pd(biasValue), s = _mm_set1_pd(sValue), a = _mm_set1_pd(aValue);
    __m128i x[kVectors];
    for (int v = 0; v < kVectors; ++v)
        x[v] = _mm_load_si128(reinterpret_cast<const __m128i*>(lanes) + v);
    const auto step = [&](const uint64_t* rowWords) __attribute__((always_inline)) {
        const __m128i* row = reinterpret_cast<const __m128i*>(rowWords);
#pragma GCC unroll 12
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
        // The lines of a point `ahead` elements on, fetched before they are written.
        for (int l = 0; l < W; l += kLine)
            _mm_prefetch(reinterpret_cast<const char*>(r + ahead + l), _MM_HINT_T0);
        r += stride;
    };
    uint32_t t = 0;
    if (q > 0 && (c & 1) != 0) {
        step(odd[LowZero(c)]);
        ++c, ++t;
    }
    if constexpr (kPaired) {
        for (; t + 2 <= q; t += 2, c += 2) {
            const int k = LowZero(c + 1);
            step(even[k]);
            step(odd[k]);
        }
        if (t < q) step(even[LowZero(c + 1)]);
    } else {
        const uint64_t* row0 = even[0];
        for (; t + 2 <= q; t += 2, c += 2) {
            step(row0);
            step(odd[LowZero(c + 1)]);
        }
        if (t < q) step(row0);
    }
    for (int v = 0; v < kVectors; ++v)
        _mm_store_si128(reinterpret_cast<__m128i*>(lanes) + v, x[v]);
}

using GroupRun = void (*)(const uint64_t* const*, const uint64_t* const*, uint64_t*, uint32_t,
                          uint32_t, double*, int64_t, int64_t, double, double, double);

// Kernels of widths unit, 2 unit, ...
template <bool kMul, bool kAdd, bool kPaired, int kUnit, size_t... I>
constexpr auto GroupTable(std::index_sequence<I...>) {
    return std::array<GroupRun, sizeof...(I)>{
        &RunGroup<static_cast<int>(I + 1) * kUnit, kMul, kAdd, kPaired>...};
}
template <bool kMul, bool kAdd>
constexpr auto kWhole = GroupTable<kMul, kAdd, false, 1>(std::make_index_sequence<kGroup>());
template <bool kMul, bool kAdd>
constexpr auto
    kPairs = GroupTable<kMul, kAdd, true, kLine>(std::make_index_sequence<kGroup / kLine>());

// What a run forms: the group kernels, by width (whole points) and by width / 8
// (rotated points), and their constants.
struct RunForm {
    const GroupRun* whole;
    const GroupRun* pairs;
    double bias, s, a;
    bool multiply;
    // The element of one lane, by the operations of the kernels.
    double Of(uint64_t lane) const {
        double y;
        memcpy(&y, &lane, sizeof y);
        y -= bias;
        if (multiply) y *= s;
        if (multiply || a != 0.0) y += a;
        return y;
    }
};

// q points of the w lanes at `point`, in groups as even as whole units of `unit`
// lanes allow; `paired` for rotated points (unit 8).
void RunGroups(const RunForm& f, const uint64_t* const* even, const uint64_t* const* odd,
               uint64_t* point, int w, int unit, bool paired, uint32_t c, uint32_t q, double* r,
               int64_t stride) {
    const int units = (w + unit - 1) / unit;
    const int n = (units * unit + kGroup - 1) / kGroup;
    const int64_t ahead = std::max<int64_t>(1, kAheadBytes / (8 * stride)) * stride;
    for (int i = 0; i < n; ++i) {
        const int g = i * units / n * unit, e = std::min(w, (i + 1) * units / n * unit);
        const uint64_t* evenAt[kQrngBits];
        const uint64_t* oddAt[kQrngBits];
        for (int k = 0; k < kQrngBits; ++k)
            evenAt[k] = even[k] + g, oddAt[k] = odd[k] + g;
        const GroupRun run = paired ? f.pairs[(e - g) / kLine - 1] : f.whole[e - g - 1];
        run(evenAt, oddAt, point + g, c, q, r + g, stride, ahead, f.bias, f.s, f.a);
    }
}

// Coordinates j0 to j0 + w - 1 of q points, r at coordinate j0 of the first.
void RunSpan(const QrngView& v, const RunForm& f, uint32_t used, int shift, uint64_t exponent,
             int32_t j0, int32_t w, int unit, uint32_t q, double* r, uint64_t* lanes) {
    const int32_t laneStride = (w + 1) & ~1;
    const uint64_t* odd[kQrngBits];
    const uint64_t* even[kQrngBits];
    uint64_t* slot = lanes;
    std::fill(odd, odd + kQrngBits, slot);
    for (uint32_t u = used; u != 0; u &= u - 1, slot += laneStride) {
        const int c = __builtin_ctz(u);
        Widen(v.dirs + c * v.rowStride + j0 * v.colStride, v.colStride, w, shift, 0, slot);
        odd[c] = slot;
    }
    std::fill(even, even + kQrngBits, odd[0]);
    Widen(&v.Point(j0), v.pointStride, w, shift, exponent, slot);
    RunGroups(f, even, odd, slot, w, unit, false, v.head->counter, q, r, v.head->dimension);
}

// q points of d coordinates, d a multiple of 8, from r, with r + u the first line
// boundary (0 < u < 8): the output from r + u on is taken as points of d
// coordinates rotated by u, with m = d - u, lanes 0 to m - 1 holding coordinates u to
// d - 1 of point t and lanes m to d - 1 coordinates 0 to u - 1 of point t + 1, so
// that the groups, cut at multiples of 8 lanes, each write whole lines. Point t's
// step XORs row LowZero(c) into the first lanes and row LowZero(c + 1) into the
// last, c its counter; one of the two is row 0, so the rows are prepared in pairs:
// even[k] (row 0, row k) and odd[k] (row k, row 0). The first u coordinates of the
// first point and the last m of the last are formed one by one.
void RunRotated(const QrngView& v, const RunForm& f, uint32_t used, int shift, uint64_t exponent,
                int u, uint32_t q, double* r, uint64_t* lanes) {
    const int32_t d = v.head->dimension, m = d - u;
    const uint32_t c0 = v.head->counter;
    const auto row = [&](int k, int32_t j) { return v.dirs + k * v.rowStride + j * v.colStride; };
    // Each slot is filled in order, so the spare lane that Widen writes after an odd
    // count of lanes lands in the next part or slot before that is filled.
    const auto fill = [&](uint64_t* to, const uint32_t* first, const uint32_t* last,
                          ptrdiff_t stride, uint64_t high) {
        Widen(first, stride, m, shift, high, to);
        Widen(last, stride, u, shift, high, to + m);
    };
    // Row 0 rotated, then the pairs copied from it.
    uint64_t* row0 = lanes;
    fill(row0, row(0, u), row(0, 0), v.colStride, 0);
    const uint64_t* even[kQrngBits];
    const uint64_t* odd[kQrngBits];
    uint64_t* slot = lanes + d;
    std::fill(even, even + kQrngBits, row0);
    std::fill(odd, odd + kQrngBits, row0);
    for (uint32_t z = used; z != 0; z &= z - 1) {
        const int k = __builtin_ctz(z);
        memcpy(slot, row0, m * sizeof *slot);
        Widen(row(k, 0), v.colStride, u, shift, 0, slot + m);
        even[k] = slot;
        slot += d;
        Widen(row(k, u), v.colStride, m, shift, 0, slot);
        memcpy(slot + m, row0 + m, u * sizeof *slot);
        odd[k] = slot;
        slot += d;
    }
    fill(slot, &v.Point(u), &v.Point(0), v.pointStride, exponent);
    const uint64_t* ahead = even[LowZero(c0)];
    for (int j = 0; j < u; ++j) {
        r[j] = f.Of(slot[m + j]);
        slot[m + j] ^= ahead[m + j];
    }
    RunGroups(f, even, odd, slot, d, kLine, true, c0, q - 1, r + u, d);
    double* last = r + u + static_cast<int64_t>(q - 1) * d;
    for (int j = 0; j < m; ++j)
        last[j] = f.Of(slot[j]);
}

} // namespace

// LowZero(k) is c when k is 2^c - 1 modulo 2^(c + 1).
void RowsOfRun(uint32_t c0, uint32_t q, uint32_t* used, uint32_t* odd) {
    const uint64_t begin = c0, end = begin + q;
    *used = *odd = 0;
    for (int c = 0; c < kQrngBits && (uint64_t{1} << c) <= end; ++c) {
        const uint64_t half = uint64_t{1} << c;
        const uint64_t count = ((end + half) >> (c + 1)) - ((begin + half) >> (c + 1));
        *used |= static_cast<uint32_t>(count != 0) << c;
        *odd |= static_cast<uint32_t>(count & 1) << c;
    }
}

uint32_t RunByExponent(const QrngView& v, uint32_t q, double* r, uint32_t high, double s, double a,
                       int shift, bool multiply) {
    const int32_t d = v.head->dimension;
    const uint32_t c0 = v.head->counter;
    uint32_t used, odd;
    RowsOfRun(c0, q, &used, &odd);
    const uint64_t exponent = static_cast<uint64_t>(high) << 32;
    // x' 2^k + a is x' 2^k when a is either zero, rounding being to nearest.
    double bias;
    memcpy(&bias, &exponent, sizeof bias);
    const RunForm f =
        multiply ? RunForm{kWhole<true, true>.data(), kPairs<true, true>.data(), bias, s, a, true}
        : a == 0.0
            ? RunForm{kWhole<false, false>.data(), kPairs<false, false>.data(), bias, s, a, false}
            : RunForm{kWhole<false, true>.data(), kPairs<false, true>.data(), bias, s, a, false};
    alignas(16) uint64_t lanes[kSpanLanes];
    const int rowCount = __builtin_popcount(used);
    // Coordinates before the first line boundary of r, when points fill whole lines.
    const auto address = reinterpret_cast<uintptr_t>(r);
    const int u = address % sizeof(double) == 0 ? static_cast<int>(-address / 8 % kLine) : 0;
    const bool lines = d % kLine == 0 && d > kGroup;
    if (lines && u != 0 && (2 * rowCount + 2) * d + 1 <= kSpanLanes) {
        RunRotated(v, f, used, shift, exponent, u, q, r, lanes);
    } else {
        // Spans of coordinates whose used rows and point fit the lanes.
        const int32_t span = std::max(kGroup, kSpanLanes / (rowCount + 1) / kGroup * kGroup);
        const int unit = lines && u == 0 ? kLine : 2;
        for (int32_t j0 = 0; j0 < d; j0 += span)
            RunSpan(v, f, used, shift, exponent, j0, std::min(span, d - j0), unit, q, r + j0,
                    lanes);
    }
    XorRows(v, odd);
    return c0 + q;
}

} // namespace brenn::rng
