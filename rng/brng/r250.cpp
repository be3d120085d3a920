// R250: the generalised feedback shift register w(n) = w(n-250) XOR w(n-147) over a
// ring of 250 words. A request under 250 words steps the ring word by word; a longer
// one computes straight into the caller's array from a rotated copy of the ring,
// four words to a vector XOR, and leaves the last 250 words as the new ring. Both
// forms give the same sequence. Seeding fills the ring from the congruential
// sequence 69069^k s and forces 32 words into a triangular, independent set.
#include <emmintrin.h>
#include <string.h>

#include "frame/export.h"
#include "rng/brng/loadable.h"
#include "rng/brng/word_forms.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

constexpr int32_t kLength = 250;
constexpr int32_t kLag = 103;              // the lag position's lead on the read position
constexpr int32_t kShort = kLength - kLag; // 147: w(n-147) is the lag word

struct R250State {
    uint32_t ring[kLength];
    uint32_t readPosition;
    uint32_t lagPosition;
};
static_assert(sizeof(StreamHeader) + sizeof(R250State) <= 1024, "record size of R250");

inline uint32_t Next(R250State* s) {
    uint32_t w = s->ring[s->readPosition] ^ s->ring[s->lagPosition];
    s->ring[s->readPosition] = w;
    s->readPosition = s->readPosition == kLength - 1 ? 0 : s->readPosition + 1;
    s->lagPosition = s->lagPosition == kLength - 1 ? 0 : s->lagPosition + 1;
    return w;
}

// r[i] = x[i] XOR y[i] for i < count, four words at a time; the operands may lie
// behind r in the same array (never less than four words behind).
inline void XorRun(uint32_t* r, const uint32_t* x, const uint32_t* y, int32_t count) {
    int32_t i = 0;
    for (; i + 8 <= count; i += 8) {
        __m128i a0 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(x + i));
        __m128i a1 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(x + i + 4));
        __m128i b0 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(y + i));
        __m128i b1 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(y + i + 4));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), _mm_xor_si128(a0, b0));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i + 4), _mm_xor_si128(a1, b1));
    }
    for (; i < count; ++i)
        r[i] = x[i] ^ y[i];
}

// n words into r: word by word under 250, else the block form.
void Words(R250State* s, int32_t n, uint32_t* r) {
    if (n < kLength) {
        for (int32_t i = 0; i < n; ++i)
            r[i] = Next(s);
        return;
    }
    // t holds the words w(-250) .. w(-1), oldest first.
    uint32_t t[kLength];
    const uint32_t p = s->readPosition;
    memcpy(t, s->ring + p, (kLength - p) * sizeof(uint32_t));
    memcpy(t + (kLength - p), s->ring, p * sizeof(uint32_t));
    XorRun(r, t, t + kLag, kShort);
    XorRun(r + kShort, t + kShort, r, kLag);
    XorRun(r + kLength, r, r + kLag, n - kLength);
    memcpy(s->ring, r + (n - kLength), sizeof s->ring);
    s->readPosition = 0;
    s->lagPosition = kLag;
}

constexpr int32_t kChunk = 1024;

// Real forms: words in chunks through a scratch, converted as runs.
template <typename Out>
void Reals(R250State* s, int32_t n, Out out) {
    uint32_t words[kChunk];
    for (int32_t done = 0; done < n;) {
        int32_t c = n - done < kChunk ? n - done : kChunk;
        Words(s, c, words);
        out.Run(done, words, c);
        done += c;
    }
}

void Seed(R250State* s, int32_t n, const uint32_t* params) {
    if (n >= kLength) {
        memcpy(s->ring, params, sizeof s->ring);
    } else {
        uint32_t x = n >= 1 && params[0] != 0 ? params[0] : 1;
        for (int32_t i = 0; i < kLength; ++i) {
            x *= 69069u;
            s->ring[i] = x;
        }
        // Words 3, 10, 17, ... get their top bits forced to 0...01 with the 1 one place
        // lower each time: 32 linearly independent words.
        uint32_t mask = 0xFFFFFFFFu, bit = 0x80000000u;
        for (int j = 0; j < 16; ++j) {
            s->ring[3 + 14 * j] = (s->ring[3 + 14 * j] & mask) | bit;
            s->ring[10 + 14 * j] = (s->ring[10 + 14 * j] & (mask >> 1)) | (bit >> 1);
            mask >>= 2;
            bit >>= 2;
        }
    }
    s->readPosition = 0;
    s->lagPosition = kLag;
}

} // namespace

bool R250Loadable(void* stream) {
    const R250State& s = *StateOf<R250State>(stream);
    return s.readPosition < kLength && s.lagPosition == (s.readPosition + kLag) % kLength;
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngR250InitStream(int32_t method, void* stream, int32_t n,
                                             const void* params) {
    if (method == QES_INIT_SEED) {
        Seed(StateOf<R250State>(stream), n, static_cast<const uint32_t*>(params));
        return QES_STATUS_OK;
    }
    // No jumps: each jump method has its own refusal.
    constexpr int32_t kRefusal[4] = {0, QES_RNG_STATUS_NO_LEAPFROG, QES_RNG_STATUS_NO_SKIPAHEAD,
                                     QES_RNG_STATUS_NO_SKIPAHEAD_EX};
    return method >= QES_INIT_LEAPFROG && method <= QES_INIT_SKIP_EX ? kRefusal[method]
                                                                     : QES_STATUS_BAD_METHOD;
}

BRENN_EXPORT int32_t __qesiBRngR250(void* stream, int32_t n, void* r) {
    Words(StateOf<R250State>(stream), n, static_cast<uint32_t*>(r));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngR250(void* stream, int32_t n, double* r, double a, double b) {
    Reals(StateOf<R250State>(stream), n, DoubleForm(r, a, b, 0x1p-32));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngR250(void* stream, int32_t n, float* r, float a, float b) {
    Reals(StateOf<R250State>(stream), n, SingleForm(r, a, b, 0x1p-32));
    return QES_STATUS_OK;
}
