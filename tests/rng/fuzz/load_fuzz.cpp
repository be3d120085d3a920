// libFuzzer target of the stream loaders: every input is loaded as a file and as a
// memory block padded to the length that its own header and chunk fields claim
// (reading past a shorter block is the caller's fault, not the loader's). A loaded
// stream of a generator that exists is run for a block of words, then deleted, and
// the count of live blocks must come back to where it was.
//
// With BRENN_FUZZ_SEED_DIR set, the first call writes images of the built
// generators there, with and without chunks, as a starting corpus.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "brenn_rng.h"
#include "platform/serv.h"

namespace {

constexpr size_t kMaxClaim = size_t{1} << 22;

uint32_t Le(const std::vector<uint8_t>& b, size_t at, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i)
        v = (v << 8) | b[at + i];
    return v;
}

// The bytes the memory loader may read from this image, growing the zero padding
// until the walk stays inside it; 0 when the claim is too large to try.
size_t Claimed(std::vector<uint8_t>& b) {
    for (;;) {
        if (b.size() < 24) b.resize(24, 0);
        bool v2 = b[0] == 2;
        size_t at = v2 ? 24 : 20;
        uint32_t stateBytes = v2 ? Le(b, 12, 4) : Le(b, 10, 2);
        uint32_t chunks = v2 ? Le(b, 16, 2) : Le(b, 12, 2);
        size_t need = at + stateBytes;
        int guid = b[0] == 0 ? 0 : (b[0] <= 2 ? 16 : -1);
        // A version without a chunk layout still reads the first chunk's id.
        if (guid < 0 && chunks > 0) need += 4;
        bool inside = need <= b.size();
        for (uint32_t k = 0; inside && guid >= 0 && k < chunks; ++k) {
            need += 4 + guid + 4;
            if (need > b.size()) {
                inside = false;
                break;
            }
            need += Le(b, need - 4, 4);
            inside = need <= b.size();
        }
        if (need > kMaxClaim) return 0;
        if (inside) return need;
        b.resize(need + 64 > 2 * b.size() ? need + 64 : 2 * b.size(), 0); // geometric growth
    }
}

std::vector<uint8_t> Save(void* s) {
    std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
    if (__qesSaveStreamM(s, image.data()) != 0) std::abort();
    return image;
}

std::vector<uint8_t> Reload(const std::vector<uint8_t>& image) {
    void* t = nullptr;
    if (__qesLoadStreamM(&t, image.data()) < 0) std::abort();
    std::vector<uint8_t> again = Save(t);
    __qesDeleteStream(&t);
    return again;
}

// A loaded stream saves to an image that loads again; each load reverses the
// chunk list, so two reloads give the same bytes.
void RoundTrip(void* s) {
    std::vector<uint8_t> image = Save(s);
    std::vector<uint8_t> once = Reload(image);
    if (once.size() != image.size() || Reload(once) != image) std::abort();
}

void Exercise(void* s) {
    RoundTrip(s);
    int32_t id = __qesGetStreamStateBrng(s);
    if (id == QES_BRNG_MCG31M1 || id == QES_BRNG_MCG59 || id == QES_BRNG_MT19937 || id == 0 ||
        id == 3 || id == QES_BRNG_SFMT19937 ||
        (id >= QES_BRNG_MT2203 && id < QES_BRNG_MT2203 + 6024)) {
        std::vector<uint64_t> words(1300);
        _qesiRngUniformBits(0, s, 1300, words.data());
        __qesSkipAheadStream(s, 3001); // direct stepping, or Horner's scheme for SFMT
        _qesiRngUniformBits(0, s, 700, words.data());
    }
}

void WriteSeeds(const char* dir) {
    int n = 0;
    for (int32_t id : {QES_BRNG_MCG31M1, QES_BRNG_MCG59, QES_BRNG_MT19937, QES_BRNG_SFMT19937,
                       QES_BRNG_MT2203}) {
        for (int chunks = 0; chunks < 3; ++chunks) {
            uint32_t seed = 7;
            void* s = nullptr;
            __qesNewStreamEx(&s, id, 1, &seed);
            for (int c = 0; c < chunks; ++c) {
                void* data = brenn_serv_allocate(16, 128);
                std::memset(data, c, 16);
                uint64_t guid[2] = {static_cast<uint64_t>(c), 0};
                __qesAddChunk(s, 5 + c, guid, data, 16);
            }
            std::vector<uint8_t> image(static_cast<size_t>(__qesGetStreamSize(s)));
            __qesSaveStreamM(s, image.data());
            std::string path = std::string(dir) + "/seed" + std::to_string(n++);
            if (FILE* f = std::fopen(path.c_str(), "wb")) {
                std::fwrite(image.data(), image.size(), 1, f);
                std::fclose(f);
            }
            __qesDeleteStream(&s);
        }
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (const char* dir = std::getenv("BRENN_FUZZ_SEED_DIR")) WriteSeeds(dir);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    static const std::string path = std::string("/tmp/brenn_load_fuzz_") + std::to_string(getpid());
    int64_t live = brenn_serv_live_allocations();
    if (FILE* f = std::fopen(path.c_str(), "wb")) {
        if (size != 0) std::fwrite(data, size, 1, f);
        std::fclose(f);
        void* s = nullptr;
        if (__qesLoadStreamF(&s, path.c_str(), -1) >= 0) {
            Exercise(s);
            __qesDeleteStream(&s);
        } else if (s != nullptr) {
            std::abort(); // a failed load must clear the caller's pointer
        }
    }
    std::vector<uint8_t> block(data, data + size);
    if (Claimed(block) != 0) {
        void* s = nullptr;
        if (__qesLoadStreamM(&s, block.data()) >= 0) {
            Exercise(s);
            __qesDeleteStream(&s);
        } else if (s != nullptr) {
            std::abort();
        }
    }
    if (brenn_serv_live_allocations() != live) std::abort(); // a block left behind
    return 0;
}
