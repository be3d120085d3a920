// Generation of the quasi-random generators in Gray-code order: the single
// coordinate of a leapfrogged stream, the rest of a partial point, whole points by
// dimension-specialised kernels (1 to 15 coordinates held in registers), by the
// wide point formed in place, or by blocks of 32 coordinates, which the chunk path
// spreads over threads, and the start of the next point. Runs of doubles, rounding
// being to nearest, go by qrng_exponent.cpp instead. The state path delivers
// 31-bit reals, the chunk path 32-bit ones.
#include <algorithm>
#include <array>
#include <utility>

#include <string.h>

#include "platform/threader.h"
#include "rng/brng/qrng_core.h"
#include "rng/brng/qrng_exponent.h"
#include "rng/brng/qrng_forms.h"

namespace brenn::rng {

namespace {

constexpr int kSmallDims = 15;
constexpr int kBlock = 32;

// q points of D coordinates from output place `off`; returns the end counter. The
// point stays in D/4 vector registers, each formed in place and then XORed with its
// part of the row. Rows are read 4 words at a time: the state and chunk rows are at
// least 16 words long.
template <int D, typename Form>
uint32_t RunSmall(uint32_t q, int64_t off, uint32_t counter, uint32_t* point, const uint32_t* dirs,
                  ptrdiff_t rowStride, const Form form) {
    constexpr int kVectors = (D + 3) / 4;
    const Form f = form; // a local copy: stores through r cannot alias it
    alignas(16) uint32_t start[16] = {};
    memcpy(start, point, D * sizeof(uint32_t));
    __m128i p[kVectors];
    for (int v = 0; v < kVectors; ++v)
        p[v] = _mm_load_si128(reinterpret_cast<const __m128i*>(start + 4 * v));
    const auto step = [&]<size_t... V>(std::index_sequence<V...>, const uint32_t* row) {
        ((f.template Lanes<(D - 4 * static_cast<int>(V) < 4 ? D - 4 * static_cast<int>(V) : 4)>(
              off + 4 * static_cast<int64_t>(V), p[V]),
          p[V] = _mm_xor_si128(p[V], _mm_loadu_si128(reinterpret_cast<const __m128i*>(row) + V))),
         ...);
    };
    for (uint32_t t = 0; t < q; ++t, off += D, ++counter)
        step(std::make_index_sequence<kVectors>(), dirs + LowZero(counter) * rowStride);
    for (int v = 0; v < kVectors; ++v)
        _mm_store_si128(reinterpret_cast<__m128i*>(start + 4 * v), p[v]);
    memcpy(point, start, D * sizeof(uint32_t));
    return counter;
}

// One point of n coordinates at p delivered from output place `off`, then advanced
// by `row`: each group of 4 coordinates formed and XORed in one pass.
template <typename Form>
inline void StepPoint(const Form& f, int64_t off, uint32_t* p, const uint32_t* row, int32_t n) {
    int32_t j = 0;
    for (; j + 4 <= n; j += 4) {
        __m128i* at = reinterpret_cast<__m128i*>(p + j);
        const __m128i x = _mm_loadu_si128(at);
        f.template Lanes<4>(off + j, x);
        _mm_storeu_si128(
            at, _mm_xor_si128(x, _mm_loadu_si128(reinterpret_cast<const __m128i*>(row + j))));
    }
    for (; j < n; ++j) {
        f.Put(off + j, p[j]);
        p[j] ^= row[j];
    }
}

// q points of a contiguous point wider than the kernels.
template <typename Form>
uint32_t RunWide(const QrngView& v, uint32_t q, int64_t off, const Form form) {
    const Form f = form;
    const int32_t d = v.head->dimension;
    uint32_t counter = v.head->counter;
    for (uint32_t t = 0; t < q; ++t, off += d, ++counter)
        StepPoint(f, off, v.point, v.dirs + LowZero(counter) * v.rowStride, d);
    return counter;
}

template <typename Form>
using SmallRun = uint32_t (*)(uint32_t, int64_t, uint32_t, uint32_t*, const uint32_t*, ptrdiff_t,
                              const Form);

template <typename Form, size_t... D>
constexpr auto SmallTable(std::index_sequence<D...>) {
    return std::array<SmallRun<Form>, sizeof...(D)>{&RunSmall<D + 1, Form>...};
}

template <typename Form>
struct BlockJob {
    const QrngView* v;
    Form f;
    int64_t off;
    uint32_t counter, q;
    int32_t dimension;
    uint32_t used; // the rows that the run takes
};

// The points of one block: W coordinates (32, held in registers, or the last
// block's width w).
template <int W, typename Form>
void StepBlock(const BlockJob<Form>& job, uint32_t* p, const uint32_t (*rows)[kBlock], int64_t j0,
               int w) {
    const Form f = job.f;
    const int64_t stride = job.dimension;
    uint32_t c = job.counter;
    int64_t o = job.off + j0;
    if constexpr (W == kBlock) {
        constexpr int kVectors = kBlock / 4;
        __m128i x[kVectors];
        for (int k = 0; k < kVectors; ++k)
            x[k] = _mm_load_si128(reinterpret_cast<const __m128i*>(p) + k);
        for (uint32_t t = 0; t < job.q; ++t, o += stride, ++c) {
            const __m128i* row = reinterpret_cast<const __m128i*>(rows[LowZero(c)]);
#pragma GCC unroll 8
            for (int k = 0; k < kVectors; ++k) {
                f.template Lanes<4>(o + 4 * k, x[k]);
                x[k] = _mm_xor_si128(x[k], _mm_load_si128(row + k));
            }
        }
        for (int k = 0; k < kVectors; ++k)
            _mm_store_si128(reinterpret_cast<__m128i*>(p) + k, x[k]);
    } else {
        for (uint32_t t = 0; t < job.q; ++t, o += stride, ++c)
            StepPoint(f, o, p, rows[LowZero(c)], w);
    }
}

// Block b: coordinates 32 b to 32 b + 31 of every point, with the rows that the run
// takes copied next to the point so that both stay in the first-level cache.
template <typename Form>
void RunBlock(int64_t b, const BlockJob<Form>& job) {
    const QrngView& v = *job.v;
    const int64_t j0 = kBlock * b;
    const int w = static_cast<int>(std::min<int64_t>(kBlock, job.dimension - j0));
    alignas(64) uint32_t p[kBlock];
    alignas(64) uint32_t rows[kBlock][kBlock];
    for (int j = 0; j < w; ++j)
        p[j] = v.Point(j0 + j);
    for (uint32_t u = job.used; u != 0; u &= u - 1) {
        const int bit = __builtin_ctz(u);
        for (int j = 0; j < w; ++j)
            rows[bit][j] = v.Dir(j0 + j, bit);
    }
    if (w == kBlock)
        StepBlock<kBlock>(job, p, rows, j0, w);
    else
        StepBlock<0>(job, p, rows, j0, w);
    for (int j = 0; j < w; ++j)
        v.Point(j0 + j) = p[j];
}

template <typename Form>
void BlockKernel(int64_t index, int, int64_t, void* context) {
    RunBlock(index, *static_cast<const BlockJob<Form>*>(context));
}

// The chunk path asks the platform for threads when the point is wide or made of
// whole blocks.
bool UseThreads(const QrngView& v) {
    const int32_t d = v.head->dimension;
    if (!v.chunk || (d < 64 && d % kBlock != 0)) return false;
    auto limit = reinterpret_cast<int (*)(void)>(
        brenn_serv_load_thread_fun("brenn_qes_serv_threader_get_num_threads_limit"));
    return limit != nullptr && limit() > 1;
}

// q whole points from output place off; the counter is updated.
template <typename Form>
void RunPoints(const QrngView& v, uint32_t q, int64_t off, const Form& f) {
    QrngHead* h = v.head;
    const int32_t d = h->dimension;
    const bool threads = UseThreads(v);
    if constexpr (IsDoubleForm<Form>::value) {
        if (f.high != 0 && q >= kExponentMinPoints && !threads) {
            h->counter =
                RunByExponent(v, q, f.r + off, f.high, f.s, f.a, Form::kShift, Form::kMultiply);
            return;
        }
    }
    if (d <= kSmallDims && v.pointStride == 1 && v.colStride == 1) {
        static constexpr auto table = SmallTable<Form>(std::make_index_sequence<kSmallDims>());
        h->counter = table[d - 1](q, off, h->counter, v.point, v.dirs, v.rowStride, f);
        return;
    }
    if (!threads && v.pointStride == 1 && v.colStride == 1) {
        h->counter = RunWide(v, q, off, f);
        return;
    }
    uint32_t used, odd;
    RowsOfRun(h->counter, q, &used, &odd);
    BlockJob<Form> job{&v, f, off, h->counter, q, d, used};
    const int64_t blocks = (d + kBlock - 1) / kBlock;
    if (threads) {
        auto parallelFor = reinterpret_cast<void (*)(int64_t, int, void*, ThreaderChunk)>(
            brenn_serv_load_thread_fun("brenn_qes_serv_threader_for"));
        if (parallelFor != nullptr) {
            parallelFor(blocks, 0, &job, &BlockKernel<Form>);
            h->counter += q;
            return;
        }
    }
    for (int64_t b = 0; b < blocks; ++b)
        RunBlock(b, job);
    h->counter += q;
}

// XOR of direction number c of each coordinate, c by the lowest zero bit.
void Advance(const QrngView& v) {
    XorRows(v, 1u << LowZero(v.head->counter));
    ++v.head->counter;
}

template <typename Form>
int32_t Generate(const QrngView& v, int32_t n, const Form& f) {
    QrngHead* h = v.head;
    if (static_cast<int64_t>(h->counter) + static_cast<int64_t>(n) > 0xFFFFFFFFll)
        return QES_RNG_STATUS_QUASI_PERIOD_ENDED;
    if (n <= 0) return QES_STATUS_OK;
    if (h->leapDimension != kNoLeap) {
        const uint32_t k = h->leapDimension;
        uint32_t x = v.Point(k), c = h->counter;
        for (int32_t i = 0; i < n; ++i, ++c) {
            f.Put(i, x);
            x ^= v.Dir(k, LowZero(c));
        }
        v.Point(k) = x;
        h->counter = c;
        return QES_STATUS_OK;
    }
    const int32_t d = h->dimension;
    int32_t i = 0;
    if (h->component > 0) {
        const int32_t start = d - h->component, take = std::min(h->component, n);
        for (; i < take; ++i)
            f.Put(i, v.Point(start + i));
        h->component -= take;
        if (h->component > 0) return QES_STATUS_OK;
        Advance(v);
    }
    const uint32_t q = static_cast<uint32_t>((n - i) / d);
    const int32_t rest = (n - i) % d;
    if (q > 0) RunPoints(v, q, i, f);
    const int64_t at = i + static_cast<int64_t>(q) * d;
    for (int32_t j = 0; j < rest; ++j)
        f.Put(at + j, v.Point(j));
    h->component = rest == 0 ? 0 : d - rest;
    return QES_STATUS_OK;
}

constexpr double kTwoM31 = 1.0 / 2147483648.0, kTwoM32 = 1.0 / 4294967296.0;

} // namespace

int32_t QrngGenerateWords(const QrngView& v, int32_t n, uint32_t* r) {
    return Generate(v, n, Words{r});
}

// A power-of-two scale, as on [0, 1), forms the doubles without a multiplication.
int32_t QrngGenerateDoubles(const QrngView& v, int32_t n, double* r, double a, double b) {
    const double s = (b - a) * (v.chunk ? kTwoM32 : kTwoM31);
    uint32_t high;
    if (ExponentScale(s, &high)) {
        if (v.chunk) return Generate(v, n, DoubleByExponent<false>{r, s, a, high});
        return Generate(v, n, DoubleByExponent<true>{r, s, a, high});
    }
    // Otherwise runs keep coordinates under the exponent of 2^52, whose subtraction
    // gives +0 for a zero word only when rounding is to nearest.
    high = (_mm_getcsr() & 0x6000u) == 0 ? 0x43300000u : 0u;
    if (v.chunk) return Generate(v, n, Double32{r, s, a, high});
    return Generate(v, n, Double31{r, s, a, high});
}

int32_t QrngGenerateFloats(const QrngView& v, int32_t n, float* r, float a, float b) {
    if (v.chunk) return Generate(v, n, Float32{r, static_cast<float>((b - a) * kTwoM32), a});
    return Generate(v, n, Float31{r, static_cast<float>((b - a) * kTwoM31), a});
}

} // namespace brenn::rng
