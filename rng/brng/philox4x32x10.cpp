// PHILOX4X32X10: the Philox 4x32 bijection with ten rounds applied to a 128-bit
// counter under a 64-bit key. A round multiplies c0 and c2 by two constants and
// mixes the halves of the products with c1, c3 and the round key; the key rises by
// two Weyl constants between rounds.
//
// Whole blocks are made eight at a time, two to a vector: each 64-bit lane holds one
// block's word in its low half, so one unsigned 32 x 32 multiplication gives both
// halves of a product in place, and the high halves the lanes carry along are never
// read by the next multiplication. A run stops short of a carry out of the low
// counter word, which one block made word by word then takes.
#include <emmintrin.h>

#include "frame/export.h"
#include "rng/brng/counter_core.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct PhiloxState {
    uint32_t key[2];
    CounterTail tail;
};
static_assert(sizeof(StreamHeader) + sizeof(PhiloxState) <= 64, "record size of PHILOX4X32X10");

constexpr uint32_t kMul0 = 0xD2511F53u, kMul1 = 0xCD9E8D57u;
constexpr uint32_t kBump0 = 0x9E3779B9u, kBump1 = 0xBB67AE85u;
constexpr int kRounds = 10;
constexpr int kPairs = 4; // two blocks a vector, eight blocks a run

void OneBlock(uint32_t k0, uint32_t k1, const uint64_t count[2], uint32_t* out) {
    uint32_t c0 = static_cast<uint32_t>(count[0]), c1 = static_cast<uint32_t>(count[0] >> 32);
    uint32_t c2 = static_cast<uint32_t>(count[1]), c3 = static_cast<uint32_t>(count[1] >> 32);
    for (int round = 0; round < kRounds; ++round) {
        uint64_t p0 = uint64_t{kMul0} * c0, p1 = uint64_t{kMul1} * c2;
        c0 = static_cast<uint32_t>(p1 >> 32) ^ c1 ^ k0;
        c1 = static_cast<uint32_t>(p1);
        c2 = static_cast<uint32_t>(p0 >> 32) ^ c3 ^ k1;
        c3 = static_cast<uint32_t>(p0);
        k0 += kBump0;
        k1 += kBump1;
    }
    out[0] = c0;
    out[1] = c1;
    out[2] = c2;
    out[3] = c3;
}

struct PhiloxMaker {
    uint32_t k0, k1;

    // Eight blocks for counters whose low words base .. base + 7 do not wrap.
    static void Run8(const __m128i keys[kRounds][2], uint64_t lowWord, uint64_t highWord,
                     uint32_t* out) {
        const __m128i m0 = _mm_set1_epi64x(kMul0), m1 = _mm_set1_epi64x(kMul1);
        __m128i c0[kPairs], c1[kPairs], c2[kPairs], c3[kPairs];
        const uint32_t low = static_cast<uint32_t>(lowWord);
        for (int j = 0; j < kPairs; ++j) {
            c0[j] = _mm_set_epi64x(low + 2 * j + 1, low + 2 * j);
            c1[j] = _mm_set1_epi64x(static_cast<int64_t>(lowWord >> 32));
            c2[j] = _mm_set1_epi64x(static_cast<int64_t>(highWord & 0xFFFFFFFFu));
            c3[j] = _mm_set1_epi64x(static_cast<int64_t>(highWord >> 32));
        }
        for (int round = 0; round < kRounds; ++round) {
            for (int j = 0; j < kPairs; ++j) {
                __m128i p0 = _mm_mul_epu32(c0[j], m0), p1 = _mm_mul_epu32(c2[j], m1);
                c0[j] = _mm_xor_si128(_mm_xor_si128(_mm_srli_epi64(p1, 32), c1[j]), keys[round][0]);
                c2[j] = _mm_xor_si128(_mm_xor_si128(_mm_srli_epi64(p0, 32), c3[j]), keys[round][1]);
                c1[j] = p1;
                c3[j] = p0;
            }
        }
        // The low halves of the lanes, block by block.
        for (int j = 0; j < kPairs; ++j) {
            __m128i a = _mm_unpacklo_epi32(c0[j], c1[j]), b = _mm_unpacklo_epi32(c2[j], c3[j]);
            __m128i c = _mm_unpackhi_epi32(c0[j], c1[j]), d = _mm_unpackhi_epi32(c2[j], c3[j]);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 8 * j), _mm_unpacklo_epi64(a, b));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 8 * j + 4), _mm_unpacklo_epi64(c, d));
        }
    }

    void Blocks(uint64_t count[2], int64_t nblocks, uint32_t* out) {
        __m128i keys[kRounds][2];
        if (nblocks >= 8) {
            uint32_t a = k0, b = k1;
            for (int round = 0; round < kRounds; ++round, a += kBump0, b += kBump1) {
                keys[round][0] = _mm_set1_epi64x(a);
                keys[round][1] = _mm_set1_epi64x(b);
            }
        }
        while (nblocks > 0) {
            if (nblocks >= 8 && static_cast<uint32_t>(count[0]) <= 0xFFFFFFFFu - 7) {
                Run8(keys, count[0], count[1], out);
                AddToCount(count, 8);
                out += 32;
                nblocks -= 8;
            } else {
                OneBlock(k0, k1, count, out);
                AddToCount(count, 1);
                out += 4;
                --nblocks;
            }
        }
    }
};

template <typename Out>
void Generate(void* stream, int32_t n, Out out) {
    PhiloxState* s = StateOf<PhiloxState>(stream);
    PhiloxMaker maker{s->key[0], s->key[1]};
    Serve(&s->tail, maker, n, out);
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngPHILOX4X32X10InitStream(int32_t method, void* stream, int32_t n,
                                                      const void* params) {
    PhiloxState* s = StateOf<PhiloxState>(stream);
    if (method == QES_INIT_SEED) {
        const uint32_t* words = static_cast<const uint32_t*>(params);
        s->key[0] = n > 0 ? words[0] : 0;
        s->key[1] = n > 1 ? words[1] : 0;
        SeedTail(&s->tail, n > 2 ? n - 2 : 0, n > 2 ? words + 2 : nullptr);
        return QES_STATUS_OK;
    }
    PhiloxMaker maker{s->key[0], s->key[1]};
    return CounterJump(&s->tail, maker, method, n, params);
}

BRENN_EXPORT int32_t __qesiBRngPHILOX4X32X10(void* stream, int32_t n, void* r) {
    Generate(stream, n, SignedWordsOut{static_cast<uint32_t*>(r)});
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngPHILOX4X32X10(void* stream, int32_t n, double* r, double a,
                                             double b) {
    Generate(stream, n, CentredDouble(r, a, b));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngPHILOX4X32X10(void* stream, int32_t n, float* r, float a, float b) {
    Generate(stream, n, CentredFloat(r, a, b));
    return QES_STATUS_OK;
}
