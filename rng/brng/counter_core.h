/* What the two counter-based generators (ARS5, PHILOX4X32X10) share: the state
 * after the key (a 128-bit counter, the unread words of the last block and that
 * block), the serving of a request (unread words first, whole blocks straight into
 * the result, a rest from one new block kept in the state), the centred element
 * forms of a signed word, and the skip-ahead by element counts of one or three
 * 64-bit words.
 *
 * A generator supplies a block maker: an object with Blocks(count, nblocks, out),
 * which writes nblocks blocks of four words for the counters count, count + 1, ...
 * and leaves count past the last one. */
#ifndef BRENN_RNG_BRNG_COUNTER_CORE_H
#define BRENN_RNG_BRNG_COUNTER_CORE_H

#include <emmintrin.h>
#include <stdint.h>
#include <string.h>

#include "brenn_rng.h"

namespace brenn::rng {

// The state after the key: count as two 64-bit words, low first.
struct CounterTail {
    uint64_t count[2];
    int32_t left;      // unread words of block, its last `left` words
    uint32_t block[4]; // the last block made
};

// The unread words, as serving and jumps may trust them: a stored `left` outside 0
// to 4 (only an image written by hand holds one) counts as an empty block.
inline uint32_t UnreadWords(const CounterTail* t) {
    uint32_t left = static_cast<uint32_t>(t->left);
    return left <= 4 ? left : 0;
}

inline void AddToCount(uint64_t count[2], uint64_t blocks) {
    uint64_t low = count[0] + blocks;
    count[1] += low < count[0] ? 1 : 0;
    count[0] = low;
}

// ---- Element forms ------------------------------------------------------------------

struct SignedWordsOut {
    uint32_t* r;
    static constexpr bool kDirect = true;
    void Put(int32_t i, uint32_t w) { r[i] = w; }
    uint32_t* Into(int32_t i) { return r + i; }
    void Run(int32_t, const uint32_t*, int32_t) {}
};

// double(w) x ((b - a) 2^-32) + (a + b) / 2, w the word as signed.
struct CentredDoubleOut {
    double* r;
    double scale, mid;
    static constexpr bool kDirect = false;
    void Put(int32_t i, uint32_t w) {
        r[i] = static_cast<double>(static_cast<int32_t>(w)) * scale + mid;
    }
    uint32_t* Into(int32_t) { return nullptr; }
    void Run(int32_t i, const uint32_t* w, int32_t count) {
        const __m128d s = _mm_set1_pd(scale), m = _mm_set1_pd(mid);
        int32_t k = 0;
        for (; k + 4 <= count; k += 4) {
            __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(w + k));
            __m128d lo = _mm_cvtepi32_pd(v), hi = _mm_cvtepi32_pd(_mm_srli_si128(v, 8));
            _mm_storeu_pd(r + i + k, _mm_add_pd(_mm_mul_pd(lo, s), m));
            _mm_storeu_pd(r + i + k + 2, _mm_add_pd(_mm_mul_pd(hi, s), m));
        }
        for (; k < count; ++k)
            Put(i + k, w[k]);
    }
};

// The single form in single precision: float(w) x s + (a + b) x 0.5f with
// s = float(double(b - a) 2^-32).
struct CentredFloatOut {
    float* r;
    float scale, mid;
    static constexpr bool kDirect = false;
    void Put(int32_t i, uint32_t w) {
        r[i] = static_cast<float>(static_cast<int32_t>(w)) * scale + mid;
    }
    uint32_t* Into(int32_t) { return nullptr; }
    void Run(int32_t i, const uint32_t* w, int32_t count) {
        const __m128 s = _mm_set1_ps(scale), m = _mm_set1_ps(mid);
        int32_t k = 0;
        for (; k + 4 <= count; k += 4) {
            __m128 v = _mm_cvtepi32_ps(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + k)));
            _mm_storeu_ps(r + i + k, _mm_add_ps(_mm_mul_ps(v, s), m));
        }
        for (; k < count; ++k)
            Put(i + k, w[k]);
    }
};

inline CentredDoubleOut CentredDouble(double* r, double a, double b) {
    return {r, (b - a) * 0x1p-32, (a + b) * 0.5};
}
inline CentredFloatOut CentredFloat(float* r, float a, float b) {
    float span = b - a;
    return {r, static_cast<float>(static_cast<double>(span) * 0x1p-32), (a + b) * 0.5f};
}

// ---- Serving --------------------------------------------------------------------------

constexpr int32_t kScratchBlocks = 256; // whole blocks made at once for a real form

template <typename Maker, typename Out>
void Serve(CounterTail* t, Maker& maker, int32_t n, Out out) {
    int32_t i = 0;
    uint32_t left = UnreadWords(t);
    for (; left > 0 && i < n; ++i, --left)
        out.Put(i, t->block[4 - left]);
    int64_t whole = (n - i) / 4;
    if constexpr (Out::kDirect) {
        if (whole > 0) maker.Blocks(t->count, whole, out.Into(i));
        i += static_cast<int32_t>(whole * 4);
    } else {
        uint32_t scratch[4 * kScratchBlocks];
        while (whole > 0) {
            int64_t c = whole < kScratchBlocks ? whole : kScratchBlocks;
            maker.Blocks(t->count, c, scratch);
            out.Run(i, scratch, static_cast<int32_t>(c * 4));
            i += static_cast<int32_t>(c * 4);
            whole -= c;
        }
    }
    if (i < n) {
        maker.Blocks(t->count, 1, t->block);
        left = 4;
        for (; i < n; ++i, --left)
            out.Put(i, t->block[4 - left]);
    }
    t->left = static_cast<int32_t>(left);
}

// ---- Skip-ahead ----------------------------------------------------------------------

// Skips c elements, c given as three 64-bit words (least significant first): the
// unread words first; then t = c - left elements, t / 4 whole blocks passed over by
// the counter and the last t mod 4 words read from a new block.
template <typename Maker>
void SkipElements(CounterTail* t, Maker& maker, const uint64_t c[3]) {
    uint64_t left = UnreadWords(t);
    if (c[1] == 0 && c[2] == 0 && c[0] <= left) {
        t->left = static_cast<int32_t>(left - c[0]);
        return;
    }
    uint64_t r[3];
    r[0] = c[0] - left;
    uint64_t borrow = c[0] < left ? 1 : 0;
    r[1] = c[1] - borrow;
    borrow = c[1] < borrow ? 1 : 0;
    r[2] = c[2] - borrow;
    uint32_t rest = static_cast<uint32_t>(r[0] & 3);
    // t >> 2 over 192 bits; the counter is 128 bits, so the top word's bits above
    // them fall away.
    uint64_t blocks0 = (r[0] >> 2) | (r[1] << 62);
    uint64_t blocks1 = (r[1] >> 2) | (r[2] << 62);
    AddToCount(t->count, blocks0);
    t->count[1] += blocks1;
    maker.Blocks(t->count, 1, t->block);
    t->left = static_cast<int32_t>(4 - rest);
}

// The jump methods of both generators: 1 has no meaning for them, 2 takes one count,
// 3 a count of n words of which the first three are read.
template <typename Maker>
int32_t CounterJump(CounterTail* t, Maker& maker, int32_t method, int32_t n, const void* params) {
    uint64_t c[3] = {0, 0, 0};
    switch (method) {
    case QES_INIT_LEAPFROG:
        return QES_RNG_STATUS_NO_LEAPFROG;
    case QES_INIT_SKIP:
        c[0] = *static_cast<const uint64_t*>(params);
        break;
    case QES_INIT_SKIP_EX:
        for (int32_t k = 0; k < n && k < 3; ++k)
            c[k] = static_cast<const uint64_t*>(params)[k];
        break;
    default:
        return QES_STATUS_BAD_METHOD;
    }
    SkipElements(t, maker, c);
    return QES_STATUS_OK;
}

// Seeding of the tail: the counter from four words (missing ones 0), an empty block.
inline void SeedTail(CounterTail* t, int32_t n, const uint32_t* words) {
    uint32_t w[4] = {0, 0, 0, 0};
    for (int32_t k = 0; k < n && k < 4; ++k)
        w[k] = words[k];
    t->count[0] = w[0] | (uint64_t{w[1]} << 32);
    t->count[1] = w[2] | (uint64_t{w[3]} << 32);
    t->left = 0;
    memset(t->block, 0, sizeof t->block);
}

} // namespace brenn::rng

#endif
