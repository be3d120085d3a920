/* The word machinery shared by MT19937 and MT2203: the array seeding, the twist
 * recurrence in 128-bit lanes, the three ways of serving a request from the raw
 * state, and tempering. The state always holds raw words; a request is served raw
 * into the caller's array and tempered there in one pass. */
#ifndef BRENN_RNG_BRNG_MT_CORE_H
#define BRENN_RNG_BRNG_MT_CORE_H

#include <emmintrin.h>
#include <smmintrin.h>
#include <stdint.h>
#include <string.h>

namespace brenn::rng::mt {

// Constants of one twisted generalised feedback shift register.
struct Twist {
    int n;            // words of state
    int m;            // middle distance
    uint32_t upper;   // bits taken from the older word
    uint32_t matrixA; // twist constant
};

struct Temper {
    int shiftU;     // first right shift: 11, or 12 for MT2203
    uint32_t maskB; // after the shift left by 7
    uint32_t maskC; // after the shift left by 15
};

inline uint32_t TwistWord(uint32_t a, uint32_t b, uint32_t c, const Twist& t) {
    uint32_t y = (a & t.upper) | (b & ~t.upper);
    return c ^ (y >> 1) ^ ((0u - (y & 1)) & t.matrixA);
}

// out[i] = c[i] ^ twist(a[i], b[i]) for i < count. Each output may overwrite a[i]
// (the words are read before the store) and the c operand lies at least four
// words behind or ahead, so four lanes at a time give the scalar sequence.
inline void TwistRun(uint32_t* out, const uint32_t* a, const uint32_t* b, const uint32_t* c,
                     int count, const Twist& t) {
    const __m128i upper = _mm_set1_epi32(static_cast<int>(t.upper));
    const __m128i lower = _mm_set1_epi32(static_cast<int>(~t.upper));
    const __m128i matrix = _mm_set1_epi32(static_cast<int>(t.matrixA));
    const __m128i one = _mm_set1_epi32(1);
    int i = 0;
    for (; i + 4 <= count; i += 4) {
        __m128i va = _mm_loadu_si128(reinterpret_cast<const __m128i*>(a + i));
        __m128i vb = _mm_loadu_si128(reinterpret_cast<const __m128i*>(b + i));
        __m128i vc = _mm_loadu_si128(reinterpret_cast<const __m128i*>(c + i));
        __m128i y = _mm_or_si128(_mm_and_si128(va, upper), _mm_and_si128(vb, lower));
        // An odd y gives an all-ones lane that selects the twist constant.
        __m128i odd = _mm_cmpeq_epi32(_mm_and_si128(y, one), one);
        __m128i v = _mm_xor_si128(vc, _mm_srli_epi32(y, 1));
        v = _mm_xor_si128(v, _mm_and_si128(odd, matrix));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + i), v);
    }
    for (; i < count; ++i)
        out[i] = TwistWord(a[i], b[i], c[i], t);
}

// A whole new block in place, in the three stretches that avoid index wraps.
inline void Regenerate(uint32_t* mt, const Twist& t) {
    const int n = t.n, m = t.m;
    TwistRun(mt, mt, mt + 1, mt + m, n - m, t);
    TwistRun(mt + n - m, mt + n - m, mt + n - m + 1, mt, m - 1, t);
    mt[n - 1] = TwistWord(mt[n - 1], mt[0], mt[m - 1], t);
}

// The published array initialisation; the key of one word 1 stands in for an
// empty key.
inline void SeedArray(uint32_t* mt, int n, int32_t keyLength, const uint32_t* key) {
    static const uint32_t kDefaultKey = 1;
    if (keyLength < 1) {
        keyLength = 1;
        key = &kDefaultKey;
    }
    mt[0] = 19650218u;
    for (int i = 1; i < n; ++i)
        mt[i] = (mt[i - 1] ^ (mt[i - 1] >> 30)) * 1812433253u + static_cast<uint32_t>(i);
    int i = 1;
    int32_t j = 0;
    for (int32_t k = n > keyLength ? n : keyLength; k > 0; --k) {
        mt[i] = (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1664525u)) + key[j] +
                static_cast<uint32_t>(j);
        ++i;
        ++j;
        if (i >= n) {
            mt[0] = mt[n - 1];
            i = 1;
        }
        if (j >= keyLength) j = 0;
    }
    for (int k = n - 1; k > 0; --k) {
        mt[i] =
            (mt[i] ^ ((mt[i - 1] ^ (mt[i - 1] >> 30)) * 1566083941u)) - static_cast<uint32_t>(i);
        ++i;
        if (i >= n) {
            mt[0] = mt[n - 1];
            i = 1;
        }
    }
    mt[0] = 0x80000000u; // no all-zero state, whatever the key
}

// Serves count raw words into r from the state (mt, position):
//  - more than a block: the unread words, a new block, and then the recurrence run
//    straight in r, whose own earlier words are the operands; the last n words of
//    r become the state, all counted as used;
//  - past the end of the block: the unread words, one new block, the rest;
//  - inside the block: a copy.
inline void Serve(uint32_t* mt, int32_t* position, uint32_t* r, int32_t count, const Twist& t) {
    const int n = t.n, m = t.m;
    // A position outside the block can only come from a damaged image; it reads as
    // a used-up block rather than as an index.
    const int32_t pos = static_cast<uint32_t>(*position) > static_cast<uint32_t>(n) ? n : *position;
    const int32_t unread = n - pos;
    if (count > n) {
        memcpy(r, mt + pos, sizeof(uint32_t) * unread);
        Regenerate(mt, t);
        int32_t rest = count - unread;
        int32_t fromBlock = rest < n ? rest : n;
        memcpy(r + unread, mt, sizeof(uint32_t) * fromBlock);
        if (rest > n) {
            uint32_t* x = r + unread; // x[k] is word k of the new block and beyond
            TwistRun(x + n, x, x + 1, x + m, rest - n, t);
        }
        memcpy(mt, r + count - n, sizeof(uint32_t) * n);
        *position = n;
    } else if (pos + count > n) {
        memcpy(r, mt + pos, sizeof(uint32_t) * unread);
        Regenerate(mt, t);
        memcpy(r + unread, mt, sizeof(uint32_t) * (count - unread));
        *position = count - unread;
    } else {
        memcpy(r, mt + pos, sizeof(uint32_t) * count);
        *position = pos + count;
    }
}

inline uint32_t TemperWord(uint32_t y, const Temper& t) {
    y ^= y >> t.shiftU;
    y ^= (y << 7) & t.maskB;
    y ^= (y << 15) & t.maskC;
    return y ^ (y >> 18);
}

inline __m128i TemperVec(__m128i y, const Temper& t) {
    const __m128i b = _mm_set1_epi32(static_cast<int>(t.maskB));
    const __m128i c = _mm_set1_epi32(static_cast<int>(t.maskC));
    y = _mm_xor_si128(y, _mm_srl_epi32(y, _mm_cvtsi32_si128(t.shiftU)));
    y = _mm_xor_si128(y, _mm_and_si128(_mm_slli_epi32(y, 7), b));
    y = _mm_xor_si128(y, _mm_and_si128(_mm_slli_epi32(y, 15), c));
    return _mm_xor_si128(y, _mm_srli_epi32(y, 18));
}

// Exact conversion of four unsigned words to double, two at a time: the word under
// the exponent of 2^52, less 2^52.
inline __m128d LowWordsToDouble(__m128i w) {
    const __m128i exponent = _mm_set1_epi32(0x43300000);
    return _mm_sub_pd(_mm_castsi128_pd(_mm_unpacklo_epi32(w, exponent)),
                      _mm_set1_pd(4503599627370496.0));
}
inline __m128d HighWordsToDouble(__m128i w) {
    const __m128i exponent = _mm_set1_epi32(0x43300000);
    return _mm_sub_pd(_mm_castsi128_pd(_mm_unpackhi_epi32(w, exponent)),
                      _mm_set1_pd(4503599627370496.0));
}

// Tempering in place, sixteen words a turn and a scalar tail.
inline void TemperInts(uint32_t* r, int32_t count, const Temper& t) {
    int32_t i = 0;
    for (; i + 16 <= count; i += 16)
        for (int k = 0; k < 16; k += 4) {
            __m128i* p = reinterpret_cast<__m128i*>(r + i + k);
            _mm_storeu_si128(p, TemperVec(_mm_loadu_si128(p), t));
        }
    for (; i < count; ++i)
        r[i] = TemperWord(r[i], t);
}

// double(u) x scale + a for the raw words held in the first half of the result
// array. Walking from the end keeps every word read before its bytes are written
// over by the wider results.
inline void TemperDoubles(double* r, int32_t count, double scale, double shift, const Temper& t) {
    const uint32_t* w = reinterpret_cast<const uint32_t*>(r);
    int32_t i = count;
    while (i % 4 != 0) {
        --i;
        r[i] = static_cast<double>(TemperWord(w[i], t)) * scale + shift;
    }
    const __m128d vs = _mm_set1_pd(scale), va = _mm_set1_pd(shift);
    while (i > 0) {
        i -= 4;
        __m128i y = TemperVec(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + i)), t);
        __m128d lo = _mm_add_pd(_mm_mul_pd(LowWordsToDouble(y), vs), va);
        __m128d hi = _mm_add_pd(_mm_mul_pd(HighWordsToDouble(y), vs), va);
        _mm_storeu_pd(r + i, lo);
        _mm_storeu_pd(r + i + 2, hi);
    }
}

// Single results computed in double and narrowed at the store; the float array
// has the words' width, so the pass runs forward in place.
inline void TemperFloats(float* r, int32_t count, double scale, double shift, const Temper& t) {
    uint32_t* w = reinterpret_cast<uint32_t*>(r);
    const __m128d vs = _mm_set1_pd(scale), va = _mm_set1_pd(shift);
    int32_t i = 0;
    for (; i + 4 <= count; i += 4) {
        __m128i y = TemperVec(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + i)), t);
        __m128 lo = _mm_cvtpd_ps(_mm_add_pd(_mm_mul_pd(LowWordsToDouble(y), vs), va));
        __m128 hi = _mm_cvtpd_ps(_mm_add_pd(_mm_mul_pd(HighWordsToDouble(y), vs), va));
        _mm_storeu_ps(r + i, _mm_movelh_ps(lo, hi));
    }
    for (; i < count; ++i)
        r[i] = static_cast<float>(static_cast<double>(TemperWord(w[i], t)) * scale + shift);
}

} // namespace brenn::rng::mt

#endif
