// TRNG: words from the processor's RDRAND. Each entry first asks whether the
// processor has the instruction. A failed RDRAND (carry clear) is repeated; the
// repeats must stay below the stream's retry limit, so that a success on repeat
// number `retries` still fails the call, as does running out. Words come in pairs
// tried together; what was made before a failure stays in the result. The stream
// holds nothing to replay: no jumps.
#include <immintrin.h>

#include "frame/export.h"
#include "rng/core/cpu_hooks.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct TrngState {
    uint32_t zero; // kept 0
    uint32_t retries;
};
static_assert(sizeof(StreamHeader) + sizeof(TrngState) <= 24, "record size of TRNG");

constexpr uint32_t kDefaultRetries = 10;

__attribute__((target("rdrnd"))) inline int Step(uint32_t* word) {
    if (testing::rdrandStep != nullptr) return testing::rdrandStep(word);
    unsigned int w;
    int ok = _rdrand32_step(&w);
    if (ok) *word = w;
    return ok;
}

// One try of `count` words (1 or 2), each success stored; true when all succeeded.
inline bool Try(uint32_t* words, int count) {
    bool ok = Step(words) != 0;
    if (count == 2) ok = (Step(words + 1) != 0) && ok;
    return ok;
}

// `count` words with their repeats, or false when the limit is reached.
inline bool Words(uint32_t* words, int count, uint32_t retries) {
    bool ok = Try(words, count);
    uint32_t repeat = 0;
    while (!ok && repeat < retries) {
        ++repeat;
        ok = Try(words, count);
    }
    return ok && repeat < retries;
}

// Pairs of words into Out::Put(i, pair) with the odd last word alone.
template <typename Out>
int32_t Generate(void* stream, int32_t n, Out out) {
    if (!__qesCPUisRDRAND()) return QES_RNG_STATUS_NO_RDRAND;
    const uint32_t retries = StateOf<TrngState>(stream)->retries;
    int32_t i = 0;
    for (; i + 2 <= n; i += 2) {
        uint32_t w[2];
        if (!Words(w, 2, retries)) return QES_RNG_STATUS_RDRAND_FAILED;
        out.Put(i, w[0]);
        out.Put(i + 1, w[1]);
    }
    if (i < n) {
        uint32_t w;
        if (!Words(&w, 1, retries)) return QES_RNG_STATUS_RDRAND_FAILED;
        out.Put(i, w);
    }
    return QES_STATUS_OK;
}

struct TrngWords {
    uint32_t* r;
    void Put(int32_t i, uint32_t w) { r[i] = w; }
};

// float(u) x s + a in single precision, s = (b - a) x 2.3283064e-10f.
struct TrngFloats {
    float* r;
    float scale, a;
    void Put(int32_t i, uint32_t w) { r[i] = static_cast<float>(w) * scale + a; }
};

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngTRNGInitStream(int32_t method, void* stream, int32_t n,
                                             const void* params) {
    if (method != QES_INIT_SEED) return NoJumpStatus(method);
    const uint32_t* words = static_cast<const uint32_t*>(params);
    TrngState* s = StateOf<TrngState>(stream);
    s->zero = 0;
    s->retries = n >= 2 && words[1] != 0 ? words[1] : kDefaultRetries;
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesiBRngTRNG(void* stream, int32_t n, void* r) {
    return Generate(stream, n, TrngWords{static_cast<uint32_t*>(r)});
}

BRENN_EXPORT int32_t __qessBRngTRNG(void* stream, int32_t n, float* r, float a, float b) {
    return Generate(stream, n, TrngFloats{r, (b - a) * 2.3283064e-10f, a});
}

// Each element takes a pair as one unsigned 64-bit integer, first word low.
BRENN_EXPORT int32_t __qesdBRngTRNG(void* stream, int32_t n, double* r, double a, double b) {
    if (!__qesCPUisRDRAND()) return QES_RNG_STATUS_NO_RDRAND;
    const uint32_t retries = StateOf<TrngState>(stream)->retries;
    const double scale = (b - a) * 0x1p-64;
    for (int32_t i = 0; i < n; ++i) {
        uint32_t w[2];
        if (!Words(w, 2, retries)) return QES_RNG_STATUS_RDRAND_FAILED;
        r[i] = static_cast<double>(w[0] | (uint64_t{w[1]} << 32)) * scale + a;
    }
    return QES_STATUS_OK;
}
