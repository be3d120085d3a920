// The id list, the registry model, and image building for the bad-input tests and the
// loader fuzzer.
#include "tests/rng/bad_cases.h"

#include <climits>
#include <cstring>

namespace brenn::test {

namespace {

void Append32(std::vector<uint8_t>& v, uint32_t x) {
    v.resize(v.size() + 4);
    std::memcpy(v.data() + v.size() - 4, &x, 4);
}

} // namespace

std::vector<int32_t> EveryId() {
    std::vector<int32_t> ids;
    for (int32_t family = 0; family < 16; ++family)
        ids.push_back((family + 1) << 20);
    ids.insert(ids.end(), {QES_BRNG_WH + 272, QES_BRNG_WH + 273, QES_BRNG_MT2203 + 6023,
                           QES_BRNG_MT2203 + 6024, QES_BRNG_MCG31M1 + 1, QES_BRNG_TRNG + 1,
                           0x1100000, 0x1FF00000, INT_MAX});
    ids.insert(ids.end(), {0, 1, 2, 3, 4, 5, 150, 276, 277, 278, 279, 280, 281, 511, 512, 0xFFFFF});
    ids.insert(ids.end(), {-1, -5, -4096, INT_MIN, INT_MIN + 0x100000});
    return ids;
}

const BrngRecord* RowNamed(int32_t id) {
    if (id >= 0x100000) {
        int32_t family = (id >> 20) - 1, member = id & 0xFFFFF;
        if (family >= __qesGetNumRegBrngs()) return nullptr;
        int32_t members = family == 4 ? 273 : family == 8 ? 6024 : 1;
        return member < members ? &__RegBrngsNew[family] : nullptr;
    }
    if (id < 0) return nullptr;
    int32_t row = id >= 4 && id <= 276 ? 4 : id;
    return row < 281 ? &__RegBrngs[row] : nullptr;
}

bool HasGenerator(int32_t id) {
    const BrngRecord* r = RowNamed(id);
    return r != nullptr && r->initStream && r->sGenerate && r->dGenerate && r->iGenerate;
}

bool IsAbstract(int32_t id) {
    return id == QES_BRNG_IABSTRACT || id == QES_BRNG_DABSTRACT || id == QES_BRNG_SABSTRACT;
}

std::vector<uint8_t> ImageOf(int32_t id, const std::vector<uint8_t>& state,
                             const std::vector<ChunkImage>& chunks, bool older) {
    std::vector<uint8_t> v(older ? 20 : 24, 0);
    v[0] = older ? 1 : 2;
    std::memcpy(v.data() + 4, "RNG", 3);
    uint32_t count = static_cast<uint32_t>(chunks.size());
    uint32_t stateBytes = static_cast<uint32_t>(state.size());
    uint32_t brng = static_cast<uint32_t>(id);
    if (older) {
        std::memcpy(v.data() + 10, &stateBytes, 2);
        std::memcpy(v.data() + 12, &count, 2);
        std::memcpy(v.data() + 16, &brng, 4);
    } else {
        v[8] = 24;
        std::memcpy(v.data() + 12, &stateBytes, 4);
        std::memcpy(v.data() + 16, &count, 2);
        std::memcpy(v.data() + 20, &brng, 4);
    }
    v.insert(v.end(), state.begin(), state.end());
    for (const ChunkImage& c : chunks) {
        Append32(v, static_cast<uint32_t>(c.tag));
        Append32(v, static_cast<uint32_t>(c.guid[0]));
        Append32(v, static_cast<uint32_t>(c.guid[0] >> 32));
        Append32(v, static_cast<uint32_t>(c.guid[1]));
        Append32(v, static_cast<uint32_t>(c.guid[1] >> 32));
        Append32(v, c.size);
        v.insert(v.end(), c.dataBytes < 0 ? c.size : static_cast<size_t>(c.dataBytes), c.fill);
    }
    return v;
}

std::vector<uint8_t> StateFor(int32_t id, std::vector<uint8_t>* next) {
    const BrngRecord* row = RowNamed(id);
    std::vector<uint8_t> bytes(static_cast<size_t>(row->stateSize) - 16, 0);
    if (!HasGenerator(id) || IsAbstract(id)) return bytes;
    void* s = nullptr;
    uint32_t seed[3] = {2024, 7, 11};
    if (__qesNewStreamEx(&s, id, 3, seed) != 0) {
        if (s != nullptr) __qesDeleteStream(&s);
        return bytes;
    }
    uint8_t words[5 * 16];
    _qesiRngUniformBits(0, s, 5, words); // a state part-way through a block
    std::memcpy(bytes.data(), static_cast<const uint8_t*>(s) + 16, bytes.size());
    if (next != nullptr) {
        _qesiRngUniformBits(0, s, 5, words);
        next->assign(words, words + 5 * row->wordSize);
    }
    __qesDeleteStream(&s);
    return bytes;
}

} // namespace brenn::test
