// Raw bits in fixed widths: 32 or 64 random bits per element, by family. Generators
// with full 32-bit words hand them on directly (two for 64 bits); MCG59 gives the
// top 32 of its 59 bits; families whose words have fewer random bits refuse.
#include "frame/export.h"
#include "rng/core/stream.h"

using namespace brenn::rng;

namespace {

constexpr int32_t kBlock = 2048;

using BitsFn = int32_t (*)(int32_t method, void* stream, int32_t n, uint32_t* r);

int32_t Refuse(int32_t, void*, int32_t, uint32_t*) {
    return QES_RNG_ERROR_BITS_NOT_SUPPORTED;
}

int32_t Direct(int32_t method, void* stream, int32_t n, uint32_t* r) {
    return _qesiRngUniformBits(method, stream, n, r);
}

// Bits 27 to 58 of each 59-bit word, fetched in blocks. The rest after the whole
// blocks is fetched by one more call even when it is empty, and that call's status
// is the result.
int32_t Top32(int32_t method, void* stream, int32_t n, uint32_t* r) {
    uint64_t scratch[kBlock];
    int32_t whole = n / kBlock;
    for (int32_t b = 0; b < whole; ++b) {
        int32_t status = _qesiRngUniformBits(method, stream, kBlock, scratch);
        if (status < 0) return status;
        for (int32_t i = 0; i < kBlock; ++i)
            r[i] = static_cast<uint32_t>(scratch[i] >> 27);
        r += kBlock;
    }
    int32_t rest = n - whole * kBlock;
    int32_t status = _qesiRngUniformBits(method, stream, rest, scratch);
    if (status < 0) return status;
    for (int32_t i = 0; i < rest; ++i)
        r[i] = static_cast<uint32_t>(scratch[i] >> 27);
    return status;
}

// Elements of a 64-bit request a piece: twice as many words still count as an int32.
constexpr int32_t kPiece = 1 << 29;

// A 64-bit element is two consecutive 32-bit results, the first in the low half. A
// request too long to count in words goes in pieces, which the generators serve as
// one (output does not depend on how a request is cut).
int32_t Twice(BitsFn words, int32_t method, void* stream, int32_t n, uint32_t* r) {
    int32_t status;
    do {
        int32_t piece = n < kPiece ? (n > 0 ? n : 0) : kPiece;
        status = words(method, stream, 2 * piece, r);
        if (status < 0) return status;
        r += 2 * static_cast<size_t>(piece);
        n -= piece;
    } while (n > 0);
    return status;
}

int32_t Doubled(int32_t method, void* stream, int32_t n, uint32_t* r) {
    return Twice(Direct, method, stream, n, r);
}

int32_t TwoTop32(int32_t method, void* stream, int32_t n, uint32_t* r) {
    return Twice(Top32, method, stream, n, r);
}

const BitsFn kBits32[16] = {Refuse, Refuse, Refuse, Top32,  Refuse, Refuse, Refuse, Direct,
                            Direct, Refuse, Refuse, Refuse, Direct, Direct, Direct, Direct};
const BitsFn kBits64[16] = {Refuse,  Refuse, Refuse, TwoTop32, Refuse,  Refuse,  Refuse,  Doubled,
                            Doubled, Refuse, Refuse, Refuse,   Doubled, Doubled, Doubled, Doubled};

int32_t Unknown(int32_t, void*, int32_t, uint32_t*) {
    return QES_RNG_STATUS_BAD_BRNG;
}

// Indexed by the family that the registry's split gives; legacy ids land on the
// same first five families, and anything past the sixteen built-in ones (the legacy
// quasi-random ids, registered families) has no bit form. A stream whose generator
// is unknown or not built is refused as such, whatever its family's form.
BitsFn Pick(const BitsFn* table, void* stream) {
    if (BuiltRowOf(stream) == nullptr) return Unknown;
    int32_t family, member;
    __qesGetBrngBaseOffset(Header(stream)->brng, &family, &member);
    return family >= 0 && family < 16 ? table[family] : Refuse;
}

} // namespace

BRENN_EXPORT int32_t _qesiRngUniformBits32(int32_t method, void* stream, int32_t n, uint32_t* r) {
    return Pick(kBits32, stream)(method, stream, n, r);
}

BRENN_EXPORT int32_t _qesiRngUniformBits64(int32_t method, void* stream, int32_t n, uint64_t* r) {
    return Pick(kBits64, stream)(method, stream, n, reinterpret_cast<uint32_t*>(r));
}
