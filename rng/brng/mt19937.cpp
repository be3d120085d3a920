// MT19937: the 624-word Mersenne Twister with the published array seeding. The
// stream keeps raw words and the index of the next unread one; every entry serves
// raw words into the caller's array and tempers them there. Skip-ahead steps the
// state directly for short counts and uses the polynomial jump above 0x100000.
#include "frame/export.h"
#include "rng/brng/mt_core.h"
#include "rng/brng/mt_jump.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

constexpr int kN = 624;

struct Mt19937State {
    uint32_t mt[kN];
    int32_t position; // next unread word; kN when the block is used up
    uint32_t unused;  // part of the record size only
};
static_assert(sizeof(StreamHeader) + sizeof(Mt19937State) == 2520, "record size of MT19937");

constexpr mt::Twist kTwist{kN, 397, 0x80000000u, 0x9908B0DFu};
constexpr mt::Temper kTemper{11, 0x9D2C5680u, 0xEFC60000u};

constexpr uint64_t kPolynomialThreshold = 0x100000;
constexpr int32_t kDirectBlock = 2048;

// Scratch states of the polynomial jump have the layout of the whole record, so the
// same functions serve the stream and the scratch. A state is a ring of the last
// 624 words whose oldest word sits at `position` (624 counts as 0).
Mt19937State* Ring(void* record) {
    return StateOf<Mt19937State>(record);
}
const Mt19937State* Ring(const void* record) {
    return reinterpret_cast<const Mt19937State*>(static_cast<const char*>(record) +
                                                 sizeof(StreamHeader));
}
int32_t Oldest(const Mt19937State* s) {
    return s->position == kN ? 0 : s->position;
}

void JumpZero(void* state) {
    Mt19937State* s = Ring(state);
    memset(s->mt, 0, sizeof(s->mt));
    s->position = kN;
}

// XOR of two rings aligned by their oldest words.
void JumpAdd(void* destination, const void* source) {
    Mt19937State* d = Ring(destination);
    const Mt19937State* s = Ring(source);
    int32_t pd = Oldest(d), ps = Oldest(s);
    int32_t k = 0;
    while (k < kN) {
        int32_t run = kN - k;
        if (kN - pd < run) run = kN - pd;
        if (kN - ps < run) run = kN - ps;
        uint32_t* to = d->mt + pd;
        const uint32_t* from = s->mt + ps;
        int32_t i = 0;
        for (; i + 4 <= run; i += 4) {
            __m128i* p = reinterpret_cast<__m128i*>(to + i);
            __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(from + i));
            _mm_storeu_si128(p, _mm_xor_si128(_mm_loadu_si128(p), v));
        }
        for (; i < run; ++i)
            to[i] ^= from[i];
        k += run;
        pd = (pd + run) % kN;
        ps = (ps + run) % kN;
    }
}

void JumpCopy(void* destination, const void* source) {
    memcpy(Ring(destination), Ring(source), sizeof(Mt19937State));
}

// One word of the recurrence in place of the oldest.
void JumpStep(void* state) {
    Mt19937State* s = Ring(state);
    int32_t p = Oldest(s);
    int32_t next = p + 1 == kN ? 0 : p + 1;
    int32_t middle = p + 397 >= kN ? p + 397 - kN : p + 397;
    s->mt[p] = mt::TwistWord(s->mt[p], s->mt[next], s->mt[middle], kTwist);
    s->position = p + 1;
}

// The ring unrolled into the stream with its oldest word first, all counted as used.
void JumpFinish(void* stream, const void* result, int32_t) {
    const Mt19937State* r = Ring(result);
    Mt19937State* s = Ring(stream);
    int32_t p = Oldest(r);
    memcpy(s->mt, r->mt + p, sizeof(uint32_t) * (kN - p));
    memcpy(s->mt + (kN - p), r->mt, sizeof(uint32_t) * p);
    s->position = kN;
}

// Unread words of the current block are passed over first; the polynomial then
// jumps from the state with the block used up.
int32_t JumpPrepare(void* stream, uint64_t* count, int32_t*) {
    Mt19937State* s = Ring(stream);
    // A position out of range can only come from a damaged image: a used-up block.
    if (static_cast<uint32_t>(s->position) > kN) s->position = kN;
    uint64_t unread = static_cast<uint64_t>(kN - s->position);
    if (*count <= unread) {
        s->position += static_cast<int32_t>(*count);
        return 0;
    }
    *count -= unread;
    s->position = kN;
    return 1;
}

int32_t Skip(void* stream, uint64_t count) {
    Mt19937State* s = StateOf<Mt19937State>(stream);
    if (count < kPolynomialThreshold) {
        // Generation without output: the same serving paths with a scratch.
        uint32_t scratch[kDirectBlock];
        while (count > 0) {
            int32_t block = count < kDirectBlock ? static_cast<int32_t>(count) : kDirectBlock;
            mt::Serve(s->mt, &s->position, scratch, block, kTwist);
            count -= static_cast<uint64_t>(block);
        }
        return QES_STATUS_OK;
    }
    return __qes_SkipAheadSWin(stream, JumpZero, JumpAdd, JumpCopy, JumpStep, JumpFinish,
                               JumpPrepare, static_cast<uint32_t>(count),
                               static_cast<uint32_t>(count >> 32), kN, kMt19937Degree,
                               static_cast<int32_t>(sizeof(StreamHeader) + sizeof(Mt19937State)),
                               kMt19937TermCount, kMt19937Terms);
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngMT19937InitStream(int32_t method, void* stream, int32_t n,
                                                const void* params) {
    Mt19937State* s = StateOf<Mt19937State>(stream);
    switch (method) {
    case QES_INIT_SEED:
        mt::SeedArray(s->mt, kN, n, static_cast<const uint32_t*>(params));
        s->position = kN;
        s->unused = 0;
        return QES_STATUS_OK;
    case QES_INIT_LEAPFROG:
        return QES_RNG_STATUS_NO_LEAPFROG;
    case QES_INIT_SKIP:
        return Skip(stream, *static_cast<const uint64_t*>(params));
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngMT19937(void* stream, int32_t n, void* r) {
    if (n <= 0) return QES_STATUS_OK;
    Mt19937State* s = StateOf<Mt19937State>(stream);
    uint32_t* w = static_cast<uint32_t*>(r);
    mt::Serve(s->mt, &s->position, w, n, kTwist);
    mt::TemperInts(w, n, kTemper);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngMT19937(void* stream, int32_t n, double* r, double a, double b) {
    if (n <= 0) return QES_STATUS_OK;
    Mt19937State* s = StateOf<Mt19937State>(stream);
    mt::Serve(s->mt, &s->position, reinterpret_cast<uint32_t*>(r), n, kTwist);
    mt::TemperDoubles(r, n, (b - a) * 0x1p-32, a, kTemper);
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngMT19937(void* stream, int32_t n, float* r, float a, float b) {
    if (n <= 0) return QES_STATUS_OK;
    Mt19937State* s = StateOf<Mt19937State>(stream);
    mt::Serve(s->mt, &s->position, reinterpret_cast<uint32_t*>(r), n, kTwist);
    double span = static_cast<double>(b) - static_cast<double>(a);
    mt::TemperFloats(r, n, span * 0x1p-32, static_cast<double>(a), kTemper);
    return QES_STATUS_OK;
}
