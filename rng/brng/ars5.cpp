// ARS5: five rounds of AES encryption applied to a 128-bit counter, with round keys
// made from the 128-bit key by adding two 64-bit Weyl constants lane by lane. Every
// output entry and every jump first asks whether the processor has AES; seeding does
// not. Requests of at least 256 words run four blocks a 512-bit register when the
// processor has vector AES, with the same words as the 128-bit form.
#include "frame/export.h"
#include "rng/brng/ars5.h"
#include "rng/brng/counter_core.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct Ars5State {
    uint32_t key[4];
    CounterTail tail;
};
static_assert(sizeof(StreamHeader) + sizeof(Ars5State) <= 72, "record size of ARS5");

constexpr uint64_t kWeyl[2] = {0x9E3779B97F4A7C15ull, 0xBB67AE8584CAA73Bull};
constexpr int32_t kWideFrom = 256; // words of a request that may take the vector form

struct Ars5Maker {
    Ars5Keys keys;
    bool wide;

    Ars5Maker(const uint32_t key[4], bool wideRun) : wide(wideRun) {
        keys.k[0][0] = key[0] | (uint64_t{key[1]} << 32);
        keys.k[0][1] = key[2] | (uint64_t{key[3]} << 32);
        for (int i = 1; i < 6; ++i) {
            keys.k[i][0] = keys.k[i - 1][0] + kWeyl[0];
            keys.k[i][1] = keys.k[i - 1][1] + kWeyl[1];
        }
    }

    void Blocks(uint64_t count[2], int64_t nblocks, uint32_t* out) {
        if (wide) {
            int64_t made = Ars5RunsVaes(keys, count, nblocks, out);
            out += 4 * made;
            nblocks -= made;
        }
        Ars5BlocksAes(keys, count, nblocks, out);
    }
};

bool WideFor(int32_t n) {
    return n >= kWideFrom && Ars5WideRegisters() && __qesCPUisVAES();
}

template <typename Out>
int32_t Generate(void* stream, int32_t n, Out out) {
    if (!__qesCPUisAES()) return QES_RNG_STATUS_NO_AES;
    Ars5State* s = StateOf<Ars5State>(stream);
    Ars5Maker maker(s->key, WideFor(n));
    Serve(&s->tail, maker, n, out);
    return QES_STATUS_OK;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngARS5InitStream(int32_t method, void* stream, int32_t n,
                                             const void* params) {
    Ars5State* s = StateOf<Ars5State>(stream);
    if (method == QES_INIT_SEED) {
        const uint32_t* words = static_cast<const uint32_t*>(params);
        for (int32_t k = 0; k < 4; ++k)
            s->key[k] = k < n ? words[k] : 0;
        SeedTail(&s->tail, n > 4 ? n - 4 : 0, n > 4 ? words + 4 : nullptr);
        return QES_STATUS_OK;
    }
    if (method < QES_INIT_LEAPFROG || method > QES_INIT_SKIP_EX) return QES_STATUS_BAD_METHOD;
    if (!__qesCPUisAES()) return QES_RNG_STATUS_NO_AES;
    Ars5Maker maker(s->key, false);
    return CounterJump(&s->tail, maker, method, n, params);
}

BRENN_EXPORT int32_t __qesiBRngARS5(void* stream, int32_t n, void* r) {
    return Generate(stream, n, SignedWordsOut{static_cast<uint32_t*>(r)});
}

BRENN_EXPORT int32_t __qesdBRngARS5(void* stream, int32_t n, double* r, double a, double b) {
    return Generate(stream, n, CentredDouble(r, a, b));
}

BRENN_EXPORT int32_t __qessBRngARS5(void* stream, int32_t n, float* r, float a, float b) {
    return Generate(stream, n, CentredFloat(r, a, b));
}
