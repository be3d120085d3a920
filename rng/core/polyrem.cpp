// x^count mod P(x) over GF(2), the remainder that a polynomial jump of a GF(2)-linear
// generator applies to its state. P is sparse (a list of exponents), so reduction
// folds the part at or above the degree back through the lower terms a word array
// at a time rather than bit by bit.
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/polyrem.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

// Spreads the 16 bits of v so that bit i lands on bit 2i.
inline uint32_t Spread16(uint32_t v) {
    v = (v | (v << 8)) & 0x00FF00FF;
    v = (v | (v << 4)) & 0x0F0F0F0F;
    v = (v | (v << 2)) & 0x33333333;
    v = (v | (v << 1)) & 0x55555555;
    return v;
}

inline bool Bit(const uint32_t* p, int64_t i) {
    return (p[i >> 5] >> (i & 31)) & 1;
}

// destination ^= source << shift, over sourceWords words of source.
void XorShifted(uint32_t* destination, const uint32_t* source, int32_t sourceWords, int32_t shift) {
    int32_t s = shift >> 5, b = shift & 31;
    for (int32_t j = 0; j < sourceWords; ++j) {
        uint32_t w = source[j];
        if (w == 0) continue;
        destination[j + s] ^= w << b;
        if (b != 0) destination[j + s + 1] ^= w >> (32 - b);
    }
}

struct Work {
    int32_t degree, words; // words of a reduced polynomial (bits below degree)
    int32_t termCount;
    const int32_t* terms;
    uint32_t* r;    // 2 * words + 2 words: the current polynomial and its square
    uint32_t* high; // words + 2: the part at or above the degree
};

// Reduces r (bits below 2 * degree) modulo P: r = low + H x^degree, and x^degree is
// the sum of P's lower terms, so H times each lower term goes back into r, until no
// bit at or above the degree is left.
void Reduce(Work& w, int32_t topWords) {
    for (;;) {
        int32_t hw = 0;
        int32_t top = topWords * 32;
        for (int32_t i = w.degree, j = 0; i < top; i += 32, ++j) {
            uint32_t v = 0;
            for (int32_t k = 0; k < 32 && i + k < top; ++k)
                if (Bit(w.r, i + k)) v |= uint32_t{1} << k;
            w.high[j] = v;
            if (v != 0) hw = j + 1;
        }
        if (hw == 0) return;
        // Clear bits at or above the degree.
        int32_t dw = w.degree >> 5;
        w.r[dw] &= (uint32_t{1} << (w.degree & 31)) - 1;
        for (int32_t j = dw + 1; j < topWords; ++j)
            w.r[j] = 0;
        for (int32_t t = 0; t < w.termCount; ++t)
            if (w.terms[t] < w.degree) XorShifted(w.r, w.high, hw, w.terms[t]);
    }
}

void Square(Work& w) {
    for (int32_t j = w.words - 1; j >= 0; --j) {
        uint32_t v = w.r[j];
        w.r[2 * j + 1] = Spread16(v >> 16);
        w.r[2 * j] = Spread16(v & 0xFFFF);
    }
    Reduce(w, 2 * w.words);
}

void TimesX(Work& w) {
    for (int32_t j = w.words; j > 0; --j)
        w.r[j] = (w.r[j] << 1) | (w.r[j - 1] >> 31);
    w.r[0] <<= 1;
    if (Bit(w.r, w.degree)) {
        // Toggling every term of P clears the top bit and adds the lower terms.
        for (int32_t t = 0; t < w.termCount; ++t)
            w.r[w.terms[t] >> 5] ^= uint32_t{1} << (w.terms[t] & 31);
    }
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesPolyRem(uint64_t count, int32_t degree, int32_t termCount,
                                  const int32_t* terms, int32_t wordCount, uint32_t* out) {
    if (count < static_cast<uint64_t>(degree)) {
        memset(out, 0, static_cast<size_t>(wordCount) * 4);
        out[count >> 5] = uint32_t{1} << (count & 31);
        return QES_STATUS_OK;
    }
    Work w;
    w.degree = degree;
    w.words = (degree >> 5) + 1;
    w.termCount = termCount;
    w.terms = terms;
    size_t total = static_cast<size_t>(2 * w.words + 2 + w.words + 2) * 4;
    uint32_t* area = static_cast<uint32_t*>(brenn_serv_allocate(total, kStreamAlignment));
    if (area == nullptr) return QES_STATUS_NO_MEMORY;
    memset(area, 0, total);
    w.r = area;
    w.high = area + 2 * w.words + 2;
    w.r[0] = 1;
    for (int bit = 63 - __builtin_clzll(count); bit >= 0; --bit) {
        Square(w);
        if ((count >> bit) & 1) TimesX(w);
    }
    int32_t n = wordCount < w.words ? wordCount : w.words;
    memcpy(out, w.r, static_cast<size_t>(n) * 4);
    if (wordCount > n) memset(out + n, 0, static_cast<size_t>(wordCount - n) * 4);
    brenn_serv_deallocate(area);
    return QES_STATUS_OK;
}
