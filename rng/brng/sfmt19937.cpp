// SFMT19937: the SIMD-oriented Mersenne Twister, 156 groups of 128 bits with the
// published array seeding and period certification. Words are served as they
// stand (there is no tempering); a request never leaves a started group in the
// state: the unread words of its last group wait in `spill`. Skip-ahead runs by
// groups, with Horner's scheme for short jumps and the sliding window above.
#include "frame/export.h"
#include "rng/brng/mt_jump.h"
#include "rng/core/stream.h"

#include <emmintrin.h>
#include <string.h>

namespace brenn::rng {

namespace {

constexpr int kWords = 624;
constexpr int kGroups = 156;
constexpr int kPos1 = 122;

struct SfmtState {
    uint32_t mt[kWords];
    int32_t position; // next unread word, a multiple of 4 between requests
    uint32_t spill[3];
    int32_t spillPosition;
    int32_t spillCount;
};
static_assert(sizeof(StreamHeader) + sizeof(SfmtState) == 2536, "record size of SFMT19937");

constexpr int32_t kStateBytes = 2536;
constexpr uint64_t kHornerGroups = 19968;

inline __m128i Load(const uint32_t* p) {
    return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
}
inline void Store(uint32_t* p, __m128i v) {
    _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v);
}

// The recursion of one group from the group N back (a), the group N - POS1 back
// (b) and the two newest groups (c, d): shifts SL1 = 18 and SR1 = 11 in 32-bit
// lanes, SL2 = SR2 = 1 byte across the 128 bits, and the masks on b.
inline __m128i Recursion(__m128i a, __m128i b, __m128i c, __m128i d) {
    const __m128i mask =
        _mm_set_epi32(static_cast<int>(0xBFFFFFF6u), static_cast<int>(0xBFFAFFFFu),
                      static_cast<int>(0xDDFECB7Fu), static_cast<int>(0xDFFFFFEFu));
    __m128i z = _mm_xor_si128(_mm_srli_si128(c, 1), a);
    z = _mm_xor_si128(z, _mm_slli_epi32(d, 18));
    z = _mm_xor_si128(z, _mm_slli_si128(a, 1));
    return _mm_xor_si128(z, _mm_and_si128(_mm_srli_epi32(b, 11), mask));
}

// A whole new block in place.
void Regenerate(uint32_t* mt) {
    __m128i r1 = Load(mt + 4 * (kGroups - 2)), r2 = Load(mt + 4 * (kGroups - 1));
    int i = 0;
    for (; i < kGroups - kPos1; ++i) {
        __m128i v = Recursion(Load(mt + 4 * i), Load(mt + 4 * (i + kPos1)), r1, r2);
        Store(mt + 4 * i, v);
        r1 = r2;
        r2 = v;
    }
    for (; i < kGroups; ++i) {
        __m128i v = Recursion(Load(mt + 4 * i), Load(mt + 4 * (i + kPos1 - kGroups)), r1, r2);
        Store(mt + 4 * i, v);
        r1 = r2;
        r2 = v;
    }
}

// Groups `from` to `to` - 1 of a run x whose groups from `from` - 156 on are
// already there.
void RunGroups(uint32_t* x, int64_t from, int64_t to) {
    __m128i r1 = Load(x + 4 * (from - 2)), r2 = Load(x + 4 * (from - 1));
    for (int64_t g = from; g < to; ++g) {
        __m128i v =
            Recursion(Load(x + 4 * (g - kGroups)), Load(x + 4 * (g - kGroups + kPos1)), r1, r2);
        Store(x + 4 * g, v);
        r1 = r2;
        r2 = v;
    }
}

void KeepSpill(SfmtState* s, const uint32_t* group, int32_t used) {
    s->spillCount = 4 - used;
    s->spillPosition = 0;
    for (int k = used; k < 4; ++k)
        s->spill[k - used] = group[k];
}

// Serves n words into r: spilled words first, then whole groups; the words of a
// last group beyond the request go to `spill`.
void Serve(SfmtState* s, uint32_t* r, int32_t n) {
    int32_t served = 0;
    // Spill fields out of their range can only come from a damaged image.
    if (s->spillCount < 0 || s->spillCount > 3 || s->spillPosition < 0) {
        s->spillPosition = 0;
        s->spillCount = 0;
    }
    while (s->spillPosition < s->spillCount && served < n)
        r[served++] = s->spill[s->spillPosition++];
    int32_t rest = n - served;
    if (rest <= 0) return;
    r += served;
    const int32_t full = rest >> 2, tail = rest & 3;
    const int32_t m = 4 * (full + (tail != 0));
    // A damaged image may hold any position; it reads as a used-up block.
    int32_t pos = static_cast<uint32_t>(s->position) > kWords ? kWords : s->position & ~3;
    const int32_t unread = kWords - pos;
    if (m - unread > kWords) {
        // More than one new block: the recurrence runs in r over its own groups,
        // and a last partial group is made aside.
        memcpy(r, s->mt + pos, sizeof(uint32_t) * unread);
        Regenerate(s->mt);
        uint32_t* x = r + unread;
        memcpy(x, s->mt, sizeof(uint32_t) * kWords);
        const int64_t groups = (rest - unread) >> 2; // whole groups in r after x
        RunGroups(x, kGroups, groups);
        uint32_t last[4];
        if (tail != 0) {
            __m128i v = Recursion(Load(x + 4 * (groups - kGroups)),
                                  Load(x + 4 * (groups - kGroups + kPos1)),
                                  Load(x + 4 * (groups - 2)), Load(x + 4 * (groups - 1)));
            Store(last, v);
            for (int k = 0; k < tail; ++k)
                x[4 * groups + k] = last[k];
            KeepSpill(s, last, tail);
            memcpy(s->mt, x + 4 * (groups + 1 - kGroups), sizeof(uint32_t) * (kWords - 4));
            memcpy(s->mt + kWords - 4, last, sizeof(last));
        } else {
            memcpy(s->mt, x + 4 * (groups - kGroups), sizeof(uint32_t) * kWords);
        }
        s->position = kWords;
        return;
    }
    const uint32_t* from = s->mt + pos;
    int32_t first = rest;
    if (pos + m > kWords) {
        memcpy(r, s->mt + pos, sizeof(uint32_t) * unread);
        Regenerate(s->mt);
        r += unread;
        first = rest - unread;
        from = s->mt;
        pos = 0;
    }
    memcpy(r, from, sizeof(uint32_t) * first);
    pos += 4 * ((first + 3) >> 2);
    if (tail != 0) KeepSpill(s, s->mt + pos - 4, tail);
    s->position = pos;
}

// ---- Seeding ---------------------------------------------------------------------------

inline uint32_t Mix1(uint32_t x) {
    return (x ^ (x >> 27)) * 1664525u;
}
inline uint32_t Mix2(uint32_t x) {
    return (x ^ (x >> 27)) * 1566083941u;
}

void SeedArray(uint32_t* w, int32_t keyLength, const uint32_t* key) {
    static const uint32_t kDefaultKey = 1;
    if (keyLength < 1) {
        keyLength = 1;
        key = &kDefaultKey;
    }
    const int size = kWords, lag = 11, mid = (size - lag) / 2;
    memset(w, 0x8B, sizeof(uint32_t) * size);
    int64_t count = int64_t{keyLength} + 1 > size ? int64_t{keyLength} + 1 : size;
    uint32_t r = Mix1(w[0] ^ w[mid] ^ w[size - 1]);
    w[mid] += r;
    r += static_cast<uint32_t>(keyLength);
    w[mid + lag] += r;
    w[0] = r;
    --count;
    int i = 1;
    int64_t j = 0;
    for (; j < count; ++j) {
        r = Mix1(w[i] ^ w[(i + mid) % size] ^ w[(i + size - 1) % size]);
        w[(i + mid) % size] += r;
        r += (j < keyLength ? key[j] : 0u) + static_cast<uint32_t>(i);
        w[(i + mid + lag) % size] += r;
        w[i] = r;
        i = (i + 1) % size;
    }
    for (j = 0; j < size; ++j) {
        r = Mix2(w[i] + w[(i + mid) % size] + w[(i + size - 1) % size]);
        w[(i + mid) % size] ^= r;
        r -= static_cast<uint32_t>(i);
        w[(i + mid + lag) % size] ^= r;
        w[i] = r;
        i = (i + 1) % size;
    }
    // Period certification: the state must have a component outside the
    // subspace that the parity vector marks; one flipped bit gives it one.
    const uint32_t parity[4] = {0x00000001u, 0x00000000u, 0x00000000u, 0x13C9E684u};
    uint32_t inner = 0;
    for (int k = 0; k < 4; ++k)
        inner ^= w[k] & parity[k];
    for (int shift = 16; shift > 0; shift >>= 1)
        inner ^= inner >> shift;
    if (inner & 1) return;
    for (int k = 0; k < 4; ++k)
        if (parity[k] != 0) {
            w[k] ^= parity[k] & (0u - parity[k]);
            return;
        }
}

// ---- Jump operations on rings of groups ---------------------------------------------

SfmtState* Ring(void* record) {
    return StateOf<SfmtState>(record);
}
const SfmtState* Ring(const void* record) {
    return reinterpret_cast<const SfmtState*>(static_cast<const char*>(record) +
                                              sizeof(StreamHeader));
}
int32_t OldestGroup(const SfmtState* s) {
    return s->position >= kWords ? 0 : s->position >> 2;
}

void JumpZero(void* state) {
    SfmtState* s = Ring(state);
    memset(s->mt, 0, sizeof(s->mt));
    s->position = kWords;
}

void JumpAdd(void* destination, const void* source) {
    SfmtState* d = Ring(destination);
    const SfmtState* s = Ring(source);
    int32_t pd = OldestGroup(d), ps = OldestGroup(s);
    for (int k = 0; k < kGroups; ++k) {
        uint32_t* to = d->mt + 4 * pd;
        Store(to, _mm_xor_si128(Load(to), Load(s->mt + 4 * ps)));
        pd = pd + 1 == kGroups ? 0 : pd + 1;
        ps = ps + 1 == kGroups ? 0 : ps + 1;
    }
}

void JumpCopy(void* destination, const void* source) {
    memcpy(Ring(destination), Ring(source), sizeof(SfmtState));
}

void JumpStep(void* state) {
    SfmtState* s = Ring(state);
    int32_t p = OldestGroup(s);
    auto at = [&](int32_t back) { return s->mt + 4 * ((p + back) % kGroups); };
    __m128i v =
        Recursion(Load(at(0)), Load(at(kPos1)), Load(at(kGroups - 2)), Load(at(kGroups - 1)));
    Store(at(0), v);
    s->position = 4 * (p + 1);
}

// The ring unrolled with its oldest group first; a started last group keeps its
// unread words in `spill`.
void JumpFinish(void* stream, const void* result, int32_t remainder) {
    const SfmtState* r = Ring(result);
    SfmtState* s = Ring(stream);
    int32_t p = 4 * OldestGroup(r);
    memcpy(s->mt, r->mt + p, sizeof(uint32_t) * (kWords - p));
    memcpy(s->mt + (kWords - p), r->mt, sizeof(uint32_t) * p);
    s->position = kWords;
    s->spillPosition = 0;
    s->spillCount = 0;
    if (remainder != 0) KeepSpill(s, s->mt + kWords - 4, remainder);
}

// Spilled words first; a jump that ends inside the block is a read; otherwise
// the count becomes whole groups past the block, with the words taken from the
// last of them as the remainder.
int32_t JumpPrepare(void* stream, uint64_t* count, int32_t* remainder) {
    SfmtState* s = Ring(stream);
    // Fields out of range can only come from a damaged image: a used-up block.
    if (static_cast<uint32_t>(s->position) > kWords) s->position = kWords;
    s->position &= ~3;
    if (s->spillCount < 0 || s->spillCount > 3 || s->spillPosition < 0 ||
        s->spillPosition > s->spillCount)
        s->spillPosition = s->spillCount = 0;
    uint64_t spilled = static_cast<uint64_t>(s->spillCount - s->spillPosition);
    if (*count <= spilled) {
        s->spillPosition += static_cast<int32_t>(*count);
        return 0;
    }
    uint64_t c = static_cast<uint64_t>(s->position) + (*count - spilled);
    s->spillPosition = 0;
    s->spillCount = 0;
    if (c <= kWords) {
        int32_t end = static_cast<int32_t>(c);
        if (end & 3) KeepSpill(s, s->mt + (end & ~3), end & 3);
        s->position = (end + 3) & ~3;
        return 0;
    }
    s->position = kWords;
    *remainder = static_cast<int32_t>((c - kWords) & 3);
    *count = (c - kWords + 3) >> 2;
    return 1;
}

int32_t Skip(void* stream, uint64_t count) {
    auto driver = count / 4 < kHornerGroups ? __qes_SkipAheadHorner : __qes_SkipAheadSWin;
    return driver(stream, JumpZero, JumpAdd, JumpCopy, JumpStep, JumpFinish, JumpPrepare,
                  static_cast<uint32_t>(count), static_cast<uint32_t>(count >> 32), kWords,
                  kSfmt19937Degree, kStateBytes, kSfmt19937TermCount, kSfmt19937Terms);
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngSFMT19937InitStream(int32_t method, void* stream, int32_t n,
                                                  const void* params) {
    SfmtState* s = StateOf<SfmtState>(stream);
    switch (method) {
    case QES_INIT_SEED:
        SeedArray(s->mt, n, static_cast<const uint32_t*>(params));
        s->position = kWords;
        memset(s->spill, 0, sizeof(s->spill));
        s->spillPosition = 0;
        s->spillCount = 0;
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

BRENN_EXPORT int32_t __qesiBRngSFMT19937(void* stream, int32_t n, void* r) {
    if (n > 0) Serve(StateOf<SfmtState>(stream), static_cast<uint32_t*>(r), n);
    return QES_STATUS_OK;
}

// The centred signed mapping: the word as a signed integer scaled around the
// midpoint, so 0x80000000 gives a and 0 gives (a + b) / 2.
BRENN_EXPORT int32_t __qesdBRngSFMT19937(void* stream, int32_t n, double* r, double a, double b) {
    if (n <= 0) return QES_STATUS_OK;
    Serve(StateOf<SfmtState>(stream), reinterpret_cast<uint32_t*>(r), n);
    const double scale = (b - a) * 0x1p-32, mid = (a + b) * 0.5;
    const int32_t* w = reinterpret_cast<const int32_t*>(r);
    // From the end, so that each word is read before the wider result covers it.
    int32_t i = n;
    while (i % 4 != 0) {
        --i;
        r[i] = static_cast<double>(w[i]) * scale + mid;
    }
    const __m128d vs = _mm_set1_pd(scale), vm = _mm_set1_pd(mid);
    while (i > 0) {
        i -= 4;
        __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(w + i));
        __m128d lo = _mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(v), vs), vm);
        __m128d hi = _mm_add_pd(_mm_mul_pd(_mm_cvtepi32_pd(_mm_srli_si128(v, 8)), vs), vm);
        _mm_storeu_pd(r + i, lo);
        _mm_storeu_pd(r + i + 2, hi);
    }
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngSFMT19937(void* stream, int32_t n, float* r, float a, float b) {
    if (n <= 0) return QES_STATUS_OK;
    Serve(StateOf<SfmtState>(stream), reinterpret_cast<uint32_t*>(r), n);
    const float scale =
        static_cast<float>((static_cast<double>(b) - static_cast<double>(a)) * 0x1p-32);
    const float mid = static_cast<float>((static_cast<double>(a) + static_cast<double>(b)) * 0.5);
    const int32_t* w = reinterpret_cast<const int32_t*>(r);
    const __m128 vs = _mm_set1_ps(scale), vm = _mm_set1_ps(mid);
    int32_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 v = _mm_cvtepi32_ps(_mm_loadu_si128(reinterpret_cast<const __m128i*>(w + i)));
        _mm_storeu_ps(r + i, _mm_add_ps(_mm_mul_ps(v, vs), vm));
    }
    for (; i < n; ++i)
        r[i] = static_cast<float>(w[i]) * scale + mid;
    return QES_STATUS_OK;
}
