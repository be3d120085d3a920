// libFuzzer target of the stream loaders. An input is a control block of five bytes
// and one or two images:
//   byte 0     flags: kPair, two images that live at once; kFixFirst and kFixSecond
//              rewrite an image's header as a well-formed one for the id that byte 1
//              or 2 picks from every kind of id a caller can pass, so that images of
//              every registered family, built or not, reach past the header checks;
//              kFirstInMemory and kSecondInMemory load a pair's image from a memory
//              block instead of a file.
//   bytes 3-4  the first image's length, when there are two.
// A single image is loaded as a file and as a memory block, one after the other. A
// memory block is padded to the length that its own header and chunk fields claim
// (reading past a shorter block is the caller's fault, not the loader's), so a
// well-formed header makes a loadable image of any family from a few bytes. Every
// loaded stream must have only shared chunks that the table holds; it is saved and
// reloaded, copied, run and jumped. A pair shares the global table, so images that
// give one guid two sizes meet. After each input the count of live blocks must be
// where it was.
//
// With BRENN_FUZZ_SEED_DIR set, the first call writes a seed corpus there: images of
// every id of the list (real states for built generators) with and without chunks,
// and pairs that give one guid one size or two.
#include <unistd.h>

#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <vector>

#include "brenn_rng.h"
#include "platform/serv.h"
#include "tests/rng/bad_cases.h"

namespace {

using brenn::test::ChunkImage;
using Bytes = std::vector<uint8_t>;

enum : uint8_t {
    kPair = 1,
    kFixFirst = 2,
    kFixSecond = 4,
    kFirstInMemory = 8,
    kSecondInMemory = 16,
};
constexpr size_t kControl = 5;
constexpr size_t kMaxClaim = size_t{1} << 18; // room for the longest state and some chunks

const std::vector<int32_t>& Ids() {
    static const std::vector<int32_t> ids = brenn::test::EveryId();
    return ids;
}

uint32_t Le(const Bytes& b, size_t at, int bytes) {
    uint32_t v = 0;
    for (int i = bytes - 1; i >= 0; --i)
        v = (v << 8) | b[at + i];
    return v;
}

// A version-2 header for `id`, with the state length of the id's row when it has one
// and the image's own chunk count.
void FixHeader(Bytes& b, int32_t id) {
    if (b.size() < 24) b.resize(24, 0);
    const BrngRecord* row = brenn::test::RowNamed(id);
    uint32_t stateBytes = row != nullptr && row->stateSize >= 16
                              ? static_cast<uint32_t>(row->stateSize - 16)
                              : Le(b, 12, 4);
    b[0] = 2;
    std::memcpy(b.data() + 4, "RNG", 3);
    b[8] = 24;
    b[9] = 0;
    std::memcpy(b.data() + 12, &stateBytes, 4);
    std::memcpy(b.data() + 20, &id, 4);
}

// The bytes the memory loader may read from this image, growing the zero padding
// until the walk stays inside it; 0 when the claim is too large to try.
size_t Claimed(Bytes& b) {
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

QesChunk* Chunks(const void* s) {
    QesChunk* c;
    std::memcpy(&c, static_cast<const char*>(s) + 8, sizeof c);
    return c;
}

// A cell with a guid holds the block of the guid's row and nothing else.
void CheckShared(const void* s) {
    for (const QesChunk* c = Chunks(s); c != nullptr; c = c->next) {
        if (c->guid[0] == 0 && c->guid[1] == 0) continue;
        GlobRODataEntry* e = nullptr;
        if (__qesFindGlobRODataTableEntry(&e, c->guid) != 0 || e->data != c->data) std::abort();
    }
}

Bytes Save(void* s) {
    int32_t size = __qesGetStreamSize(s);
    if (size < 24) std::abort();
    Bytes image(static_cast<size_t>(size));
    if (__qesSaveStreamM(s, image.data()) != 0) std::abort();
    return image;
}

Bytes Reload(const Bytes& image) {
    void* t = nullptr;
    if (__qesLoadStreamM(&t, image.data()) < 0) std::abort();
    CheckShared(t);
    Bytes again = Save(t);
    __qesDeleteStream(&t);
    return again;
}

// A loaded stream saves to an image that loads again; each load reverses the chunk
// list, so two reloads give the same bytes.
void RoundTrip(void* s) {
    Bytes image = Save(s);
    Bytes once = Reload(image);
    if (once.size() != image.size() || Reload(once) != image) std::abort();
}

// Every stream that loads has a generator of this build; its output status is the
// generator's own business, but nothing may crash or leak.
void Exercise(void* s) {
    CheckShared(s);
    RoundTrip(s);
    void* c = nullptr;
    if (__qesCopyStream(&c, s) != 0) std::abort();
    CheckShared(c);
    Save(c);
    __qesDeleteStream(&c);
    std::vector<uint64_t> words(2 * 1300); // up to 16 bytes a word
    _qesiRngUniformBits(0, s, 1300, words.data());
    __qesSkipAheadStream(s, 3001); // direct stepping, or Horner's scheme for SFMT
    _qesiRngUniformBits64(0, s, 300, words.data());
    double d[64];
    _qesdRngUniform(0, s, 64, d, 0.0, 1.0);
}

std::string FilePath() {
    static const std::string path = std::string("/tmp/brenn_load_fuzz_") + std::to_string(getpid());
    return path;
}

// The stream that `image` loads into, or null when the load fails (which must clear
// the caller's pointer).
void* Load(Bytes image, bool fromMemory) {
    void* s = nullptr;
    int32_t status;
    if (fromMemory) {
        if (Claimed(image) == 0) return nullptr;
        status = __qesLoadStreamM(&s, image.data());
    } else {
        FILE* f = std::fopen(FilePath().c_str(), "wb");
        if (f == nullptr) return nullptr;
        if (!image.empty()) std::fwrite(image.data(), image.size(), 1, f);
        std::fclose(f);
        status = __qesLoadStreamF(&s, FilePath().c_str(), -1);
    }
    if ((status < 0) != (s == nullptr)) std::abort();
    return s;
}

void LoadOne(const Bytes& image, bool fromMemory) {
    if (void* s = Load(image, fromMemory)) {
        Exercise(s);
        __qesDeleteStream(&s);
    }
}

// Both streams live at once; the second outlives the first and must still save
// whatever blocks it holds.
void LoadPair(const Bytes& first, bool firstInMemory, const Bytes& second, bool secondInMemory) {
    void* a = Load(first, firstInMemory);
    void* b = Load(second, secondInMemory);
    if (a != nullptr) Exercise(a);
    if (b != nullptr) Exercise(b);
    if (a != nullptr) __qesDeleteStream(&a);
    if (b != nullptr) {
        Exercise(b);
        __qesDeleteStream(&b);
    }
}

int32_t Pick(uint8_t choice) {
    return Ids()[choice % Ids().size()];
}

// ---- The seed corpus --------------------------------------------------------------

Bytes Control(uint8_t flags, size_t firstId, size_t secondId, size_t firstLength) {
    return {flags, static_cast<uint8_t>(firstId), static_cast<uint8_t>(secondId),
            static_cast<uint8_t>(firstLength), static_cast<uint8_t>(firstLength >> 8)};
}

void WriteSeed(const char* dir, int* n, Bytes control, const Bytes& first,
               const Bytes& second = {}) {
    control.insert(control.end(), first.begin(), first.end());
    control.insert(control.end(), second.begin(), second.end());
    std::string path = std::string(dir) + "/seed" + std::to_string((*n)++);
    if (FILE* f = std::fopen(path.c_str(), "wb")) {
        std::fwrite(control.data(), control.size(), 1, f);
        std::fclose(f);
    }
}

void WriteSeeds(const char* dir) {
    int n = 0;
    const std::vector<ChunkImage> chunks = {{3, {0, 0}, 40, 0x33}, {9, {0xFA, 0x11}, 64, 0x99}};
    for (size_t i = 0; i < Ids().size(); ++i) {
        int32_t id = Ids()[i];
        const BrngRecord* row = brenn::test::RowNamed(id);
        Bytes state(8, 0);
        if (row != nullptr && row->stateSize >= 16) state = brenn::test::StateFor(id);
        for (bool withChunks : {false, true}) {
            Bytes image =
                brenn::test::ImageOf(id, state, withChunks ? chunks : std::vector<ChunkImage>{});
            // A state longer than the fuzzer's inputs: the header alone, which the
            // memory load pads.
            if (image.size() > 4096) image.resize(24);
            WriteSeed(dir, &n, Control(kFixFirst, i, 0, 0), image);
            WriteSeed(dir, &n, Control(0, i, 0, 0), image);
        }
    }
    // Pairs of one family that give one guid two sizes, either order, each medium;
    // and one pair that agrees.
    const int32_t pairId = QES_BRNG_MT2203 + 17;
    Bytes state = brenn::test::StateFor(pairId);
    auto with = [&](uint32_t size, uint8_t fill) {
        return brenn::test::ImageOf(pairId, state, {{9, {0x5EED, 0xF00D}, size, fill}});
    };
    for (auto [x, y] : {std::pair{8u, 1024u}, std::pair{1024u, 8u}, std::pair{64u, 64u}}) {
        Bytes first = with(x, 0x11), second = with(y, 0x22);
        const uint8_t media[] = {0, kFirstInMemory, kSecondInMemory,
                                 kFirstInMemory | kSecondInMemory};
        for (uint8_t m : media)
            WriteSeed(dir, &n, Control(kPair | m, 0, 0, first.size()), first, second);
    }
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    if (const char* dir = std::getenv("BRENN_FUZZ_SEED_DIR")) WriteSeeds(dir);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    int64_t live = brenn_serv_live_allocations();
    Bytes control(kControl, 0);
    std::memcpy(control.data(), data, size < kControl ? size : kControl);
    const uint8_t* body = data + (size < kControl ? size : kControl);
    size_t bodySize = size < kControl ? 0 : size - kControl;
    uint8_t flags = control[0];
    if (flags & kPair) {
        size_t split = Le(control, 3, 2);
        if (split > bodySize) split = bodySize;
        Bytes first(body, body + split), second(body + split, body + bodySize);
        if (flags & kFixFirst) FixHeader(first, Pick(control[1]));
        if (flags & kFixSecond) FixHeader(second, Pick(control[2]));
        LoadPair(first, flags & kFirstInMemory, second, flags & kSecondInMemory);
    } else {
        Bytes image(body, body + bodySize);
        if (flags & kFixFirst) FixHeader(image, Pick(control[1]));
        LoadOne(image, false);
        LoadOne(image, true);
    }
    if (brenn_serv_live_allocations() != live) std::abort(); // a block left behind
    return 0;
}
