// x^count mod P(x) over GF(2), the remainder that a polynomial jump of a GF(2)-linear
// generator applies to its state. The polynomial is held in 64-bit words, and each
// square is reduced from the top. A sparse P (MT19937's characteristic polynomial: 135
// terms, the highest lower one 623 below the degree) clears up to 64 bits of the part
// above the degree at once by XORing that chunk, shifted, at each lower term. A P with
// many lower terms (SFMT19937's: 6711) clears four bits at a time by XORing a multiple
// of P from a table of all sixteen at each offset of four bits, whole aligned words,
// or one bit at a time when a lower term lies within 4 of the degree. The cheaper of
// the two by a measured operation count is used.
#include <emmintrin.h>
#include <string.h>

#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "rng/core/bitspread.h"
#include "rng/core/polyrem.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

// The 64 bits of p from bit position on; p has a word beyond the last one read.
inline uint64_t Get64(const uint64_t* p, int64_t position) {
    int64_t w = position >> 6;
    int b = static_cast<int>(position & 63);
    uint64_t v = p[w] >> b;
    if (b != 0) v |= p[w + 1] << (64 - b);
    return v;
}

// p ^= v shifted up to bit position.
inline void Xor64(uint64_t* p, int64_t position, uint64_t v) {
    int64_t w = position >> 6;
    int b = static_cast<int>(position & 63);
    p[w] ^= v << b;
    if (b != 0) p[w + 1] ^= v >> (64 - b);
}

struct Work {
    int32_t degree;
    int32_t words;      // 64-bit words of a reduced polynomial (bits below the degree, and one)
    int32_t lowerCount; // terms below the degree, at the front of lower
    const int32_t* lower;
    int32_t chunk; // bits cleared per sparse step: at most 64, at most the gap
    bool dense;
    uint64_t* r; // 2 * words + 2: the current polynomial and its square
    uint64_t* p; // dense reduction only: v(x) P(x) x^(4 offset) for v and offset below 16,
                 // words + 1 words each
};

// Sparse reduction of r, whose bits lie below top. A chunk H of the bits at and above
// position q >= degree stands for H x^(q - degree) x^degree, and x^degree is the sum of
// P's lower terms; all of them are at least the gap below the degree, so with a chunk
// no wider than the gap the XORs land below q and the walk down never revisits a chunk.
void ReduceSparse(Work& w, int64_t top) {
    while (top > w.degree) {
        int64_t width = top - w.degree < w.chunk ? top - w.degree : w.chunk;
        int64_t q = top - width;
        uint64_t h = Get64(w.r, q);
        if (width < 64) h &= (uint64_t{1} << width) - 1;
        if (h != 0) {
            Xor64(w.r, q, h);
            int64_t base = q - w.degree;
            for (int32_t t = 0; t < w.lowerCount; ++t)
                Xor64(w.r, base + w.lower[t], h);
        }
        top = q;
    }
}

// r[0..span) ^= source[0..span), two words at a time.
inline void XorWords(uint64_t* r, const uint64_t* source, int32_t span) {
    int32_t j = 0;
    for (; j + 2 <= span; j += 2) {
        __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(r + j));
        __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(source + j));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + j), _mm_xor_si128(a, b));
    }
    if (j < span) r[j] ^= source[j];
}

// The table entry holding v(x) P(x) x^(4 offset), for v of at most 4 bits.
inline const uint64_t* Multiple(const Work& w, int offset, uint64_t v) {
    return w.p + static_cast<size_t>(16 * offset + static_cast<int>(v)) *
                     static_cast<size_t>(w.words + 1);
}

// Dense reduction, four bits at a time: the nibble H at position q (q - degree a
// multiple of 4) stands for H x^(q - degree) x^degree; with a gap of at least 4 the
// quotient is H itself, so one XOR of the table's H P, at its word offset, clears the
// nibble and folds it down. The walk goes down by nibbles, below the one just cleared.
void ReduceNibbles(Work& w, int64_t top) {
    const int32_t span = w.words + 1;
    for (int64_t s = (top - 1 - w.degree) & ~int64_t{3}; s >= 0; s -= 4) {
        uint64_t h = (Get64(w.r, s + w.degree)) & 15;
        if (h != 0) XorWords(w.r + (s >> 6), Multiple(w, static_cast<int>((s & 63) >> 2), h), span);
    }
}

// Dense reduction when P has a lower term within 4 of the degree: each set bit i at or
// above the degree is cleared by XORing P shifted up by i - degree, from the table's
// single-bit entries, so that the XOR is of whole aligned words.
void ReduceBits(Work& w, int64_t top) {
    const int32_t span = w.words + 1;
    const int32_t low = w.degree >> 6;
    for (int32_t k = static_cast<int32_t>((top - 1) >> 6); k >= low; --k) {
        uint64_t keep = k == low ? ~((uint64_t{1} << (w.degree & 63)) - 1) : ~uint64_t{0};
        for (;;) {
            uint64_t v = w.r[k] & keep;
            if (v == 0) break;
            int64_t s = int64_t{64} * k + 63 - __builtin_clzll(v) - w.degree;
            int b = static_cast<int>(s & 63);
            XorWords(w.r + (s >> 6), Multiple(w, b >> 2, uint64_t{1} << (b & 3)), span);
        }
    }
}

// The table of multiples: P shifted by each of the 64 bit offsets from P's own words,
// then every 4-bit multiple at each offset of 4 as a sum of two smaller ones.
void BuildMultiples(Work& w, int32_t termCount, const int32_t* terms) {
    const int32_t span = w.words + 1;
    uint64_t* base = w.p; // entry 0 (offset 0, v = 0) is free until the end
    for (int32_t t = 0; t < termCount; ++t)
        if (terms[t] <= w.degree) base[terms[t] >> 6] ^= uint64_t{1} << (terms[t] & 63);
    for (int b = 0; b < 64; ++b) {
        uint64_t* d = const_cast<uint64_t*>(Multiple(w, b >> 2, uint64_t{1} << (b & 3)));
        d[0] = base[0] << b;
        for (int32_t j = 1; j < span; ++j)
            d[j] = b == 0 ? base[j] : (base[j] << b) | (base[j - 1] >> (64 - b));
    }
    memset(base, 0, static_cast<size_t>(span) * 8);
    for (int offset = 0; offset < 16; ++offset) {
        for (uint64_t v = 3; v < 16; ++v) {
            uint64_t lowest = v & (0 - v);
            if (v == lowest) continue;
            uint64_t* d = const_cast<uint64_t*>(Multiple(w, offset, v));
            const uint64_t* x = Multiple(w, offset, lowest);
            const uint64_t* y = Multiple(w, offset, v ^ lowest);
            for (int32_t j = 0; j < span; ++j)
                d[j] = x[j] ^ y[j];
        }
    }
}

void Square(Work& w) {
    int32_t used = w.words;
    while (used > 0 && w.r[used - 1] == 0)
        --used;
    for (int32_t j = used - 1; j >= 0; --j) {
        uint64_t v = w.r[j];
        w.r[2 * j + 1] = Spread32(v >> 32);
        w.r[2 * j] = Spread32(v & 0xFFFFFFFFu);
    }
    int64_t top = int64_t{128} * used;
    if (top <= w.degree) return;
    if (w.dense && w.chunk >= 4)
        ReduceNibbles(w, top);
    else if (w.dense)
        ReduceBits(w, top);
    else
        ReduceSparse(w, top);
}

void TimesX(Work& w) {
    for (int32_t j = w.words; j > 0; --j)
        w.r[j] = (w.r[j] << 1) | (w.r[j - 1] >> 63);
    w.r[0] <<= 1;
    if ((w.r[w.degree >> 6] >> (w.degree & 63)) & 1) {
        // x^degree is the sum of the lower terms.
        w.r[w.degree >> 6] ^= uint64_t{1} << (w.degree & 63);
        for (int32_t t = 0; t < w.lowerCount; ++t)
            w.r[w.lower[t] >> 6] ^= uint64_t{1} << (w.lower[t] & 63);
    }
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesPolyRem(uint64_t count, int32_t degree, int32_t termCount,
                                  const int32_t* terms, int32_t wordCount, uint32_t* out) {
    // The caller's remainder: a count of words that no block can have is refused.
    size_t outBytes;
    if (!BytesFor(wordCount, 4, &outBytes)) return QES_STATUS_NO_MEMORY;
    if (count < static_cast<uint64_t>(degree)) {
        memset(out, 0, outBytes);
        out[count >> 5] = uint32_t{1} << (count & 31);
        return QES_STATUS_OK;
    }
    Work w;
    w.degree = degree;
    w.words = (degree >> 6) + 1;
    // The terms are sorted, so those below the degree come first.
    w.lower = terms;
    w.lowerCount = 0;
    while (w.lowerCount < termCount && terms[w.lowerCount] < degree)
        ++w.lowerCount;
    int32_t gap = w.lowerCount > 0 ? degree - terms[w.lowerCount - 1] : degree;
    w.chunk = gap < 64 ? gap : 64;
    // Per reduction of degree bits: the sparse walk does about degree / chunk steps of
    // one unaligned XOR per lower term; the dense one about degree / 4 nibbles (or
    // degree / 2 set bits when a lower term is within 4 of the degree) of an aligned XOR
    // of every word. Measured on the two generators' polynomials a dense word costs
    // about an eighth of a sparse term (MT19937, 2^40: sparse 1.2 ms, dense bit by bit
    // 14 ms; SFMT19937: sparse 79 ms, dense bit by bit 15 ms).
    const int32_t span = w.words + 1;
    double sparseCost = (static_cast<double>(degree) / w.chunk) * (w.lowerCount + 1);
    double denseCost = (w.chunk >= 4 ? 0.25 : 0.5) * degree * span / 8;
    w.dense = denseCost < sparseCost;

    // The table of multiples grows with the degree, which a caller gives.
    size_t total = 0;
    if (!AddBytesFor(&total, 2 * int64_t{w.words} + 2, 8) ||
        (w.dense && !AddBytesFor(&total, 256 * int64_t{span}, 8)))
        return QES_STATUS_NO_MEMORY;
    uint64_t* area = static_cast<uint64_t*>(brenn_serv_allocate(total, kStreamAlignment));
    if (area == nullptr) return QES_STATUS_NO_MEMORY;
    memset(area, 0, total);
    w.r = area;
    w.p = area + 2 * w.words + 2;
    if (w.dense) BuildMultiples(w, termCount, terms);
    w.r[0] = 1;
    for (int bit = 63 - __builtin_clzll(count); bit >= 0; --bit) {
        Square(w);
        if ((count >> bit) & 1) TimesX(w);
    }
    // Little-endian 64-bit words read as 32-bit words in the same order.
    int32_t n = wordCount < 2 * w.words ? wordCount : 2 * w.words;
    size_t copied = static_cast<size_t>(n) * 4; // n is at most wordCount
    memcpy(out, w.r, copied);
    memset(reinterpret_cast<char*>(out) + copied, 0, outBytes - copied);
    brenn_serv_deallocate(area);
    return QES_STATUS_OK;
}
