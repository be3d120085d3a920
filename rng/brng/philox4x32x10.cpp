// PHILOX4X32X10: the Philox 4x32 bijection with ten rounds applied to a 128-bit
// counter under a 64-bit key. A round multiplies c0 and c2 by two constants and
// mixes the halves of the products with c1, c3 and the round key; the key rises by
// two Weyl constants between rounds.
//
// Whole blocks are made six at a time, two to a vector: each 64-bit lane holds one
// block's word in its low half, so one unsigned 32 x 32 multiplication gives both
// halves of a product in place, and the high halves the lanes carry along are never
// read by the next multiplication. A run stops short of a carry out of the low
// counter word, which one block made word by word then takes. Where the processor
// has 256-bit integer registers, long requests run four blocks a register
// (philox_avx2.cpp) with the same words.
#include <emmintrin.h>

#include "frame/export.h"
#include "rng/brng/counter_core.h"
#include "rng/brng/philox.h"
#include "rng/core/cpu_hooks.h"
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
constexpr int kRun = 6; // blocks a run: three pairs of vectors keep the registers

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

// Two blocks, one in the low half of each 64-bit lane of four vectors.
struct Pair {
    __m128i c0, c1, c2, c3;

    __attribute__((always_inline)) void Round(const __m128i key[2]) {
        const __m128i m0 = _mm_set1_epi64x(kMul0), m1 = _mm_set1_epi64x(kMul1);
        __m128i p0 = _mm_mul_epu32(c0, m0), p1 = _mm_mul_epu32(c2, m1);
        // The high halves moved down by a shuffle, which leaves the shift and
        // multiply units to the products; the key goes in beside the product, off
        // its path.
        c0 = _mm_xor_si128(_mm_shuffle_epi32(p1, 0xF5), _mm_xor_si128(c1, key[0]));
        c2 = _mm_xor_si128(_mm_shuffle_epi32(p0, 0xF5), _mm_xor_si128(c3, key[1]));
        c1 = p1;
        c3 = p0;
    }

    // The low halves of the lanes, block by block.
    void Store(uint32_t* out) const {
        __m128i a = _mm_unpacklo_epi32(c0, c1), b = _mm_unpacklo_epi32(c2, c3);
        __m128i c = _mm_unpackhi_epi32(c0, c1), d = _mm_unpackhi_epi32(c2, c3);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out), _mm_unpacklo_epi64(a, b));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(out + 4), _mm_unpacklo_epi64(c, d));
    }
};

struct PhiloxMaker {
    uint32_t k0, k1;

    // kRun blocks for counters whose low words do not wrap in the run. The pairs are
    // named one by one: kept in arrays, they would live in memory.
    static void Run(const __m128i keys[kRounds][2], uint64_t lowWord, uint64_t highWord,
                    uint32_t* out) {
        const uint32_t low = static_cast<uint32_t>(lowWord);
        const __m128i c1 = _mm_set1_epi64x(static_cast<int64_t>(lowWord >> 32));
        const __m128i c2 = _mm_set1_epi64x(static_cast<int64_t>(highWord & 0xFFFFFFFFu));
        const __m128i c3 = _mm_set1_epi64x(static_cast<int64_t>(highWord >> 32));
        Pair a{_mm_set_epi64x(low + 1, low), c1, c2, c3};
        Pair b{_mm_set_epi64x(low + 3, low + 2), c1, c2, c3};
        Pair c{_mm_set_epi64x(low + 5, low + 4), c1, c2, c3};
        for (int round = 0; round < kRounds; ++round) {
            a.Round(keys[round]);
            b.Round(keys[round]);
            c.Round(keys[round]);
        }
        a.Store(out);
        b.Store(out + 8);
        c.Store(out + 16);
    }

    void Blocks(uint64_t count[2], int64_t nblocks, uint32_t* out) {
        if (nblocks >= 12 && PhiloxWideRegisters() &&
            !(testing::hiddenFeatures & testing::kHideAvx2)) {
            int64_t made = PhiloxRunsAvx2(k0, k1, count, nblocks, out);
            out += 4 * made;
            nblocks -= made;
        }
        __m128i keys[kRounds][2];
        if (nblocks >= kRun) {
            uint32_t a = k0, b = k1;
            for (int round = 0; round < kRounds; ++round, a += kBump0, b += kBump1) {
                keys[round][0] = _mm_set1_epi64x(a);
                keys[round][1] = _mm_set1_epi64x(b);
            }
        }
        while (nblocks > 0) {
            if (nblocks >= kRun && static_cast<uint32_t>(count[0]) <= 0xFFFFFFFFu - (kRun - 1)) {
                Run(keys, count[0], count[1], out);
                AddToCount(count, kRun);
                out += 4 * kRun;
                nblocks -= kRun;
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
