// MT2203: a family of 69-word Mersenne Twisters of exponent 2203, one twist constant
// and tempering pair a member, for independent parallel streams. The member's
// constants are copied into the state at seeding, so a loaded stream needs no
// table. Serving and tempering are those of MT19937 with this family's sizes.
#include "frame/export.h"
#include "rng/brng/mt2203_table.h"
#include "rng/brng/mt_core.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

constexpr int kN = 69;

struct Mt2203State {
    uint32_t mt[kN];
    int32_t position;
    uint32_t matrixA;
    uint32_t temperB;
    uint32_t temperC;
    uint32_t unused;
};
static_assert(sizeof(StreamHeader) + sizeof(Mt2203State) == 312, "record size of MT2203");

mt::Twist TwistOf(const Mt2203State* s) {
    return mt::Twist{kN, 34, 0xFFFFFFE0u, s->matrixA};
}
mt::Temper TemperOf(const Mt2203State* s) {
    return mt::Temper{12, s->temperB, s->temperC};
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngMT2203InitStream(int32_t method, void* stream, int32_t n,
                                               const void* params) {
    Mt2203State* s = StateOf<Mt2203State>(stream);
    switch (method) {
    case QES_INIT_SEED: {
        int32_t family, member;
        __qesGetBrngBaseOffset(Header(stream)->brng, &family, &member);
        const Mt2203Member* row = FindMt2203Member(member);
        if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG; // not a member of the family
        mt::SeedArray(s->mt, kN, n, static_cast<const uint32_t*>(params));
        s->position = kN;
        s->matrixA = row->matrixA;
        s->temperB = row->temperB;
        s->temperC = row->temperC;
        s->unused = 0;
        return QES_STATUS_OK;
    }
    case QES_INIT_LEAPFROG:
        return QES_RNG_STATUS_NO_LEAPFROG;
    case QES_INIT_SKIP:
        return QES_RNG_STATUS_NO_SKIPAHEAD;
    case QES_INIT_SKIP_EX:
        return QES_RNG_STATUS_NO_SKIPAHEAD_EX;
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngMT2203(void* stream, int32_t n, void* r) {
    if (n <= 0) return QES_STATUS_OK;
    Mt2203State* s = StateOf<Mt2203State>(stream);
    uint32_t* w = static_cast<uint32_t*>(r);
    mt::Serve(s->mt, &s->position, w, n, TwistOf(s));
    mt::TemperInts(w, n, TemperOf(s));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngMT2203(void* stream, int32_t n, double* r, double a, double b) {
    if (n <= 0) return QES_STATUS_OK;
    Mt2203State* s = StateOf<Mt2203State>(stream);
    mt::Serve(s->mt, &s->position, reinterpret_cast<uint32_t*>(r), n, TwistOf(s));
    mt::TemperDoubles(r, n, (b - a) * 0x1p-32, a, TemperOf(s));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngMT2203(void* stream, int32_t n, float* r, float a, float b) {
    if (n <= 0) return QES_STATUS_OK;
    Mt2203State* s = StateOf<Mt2203State>(stream);
    mt::Serve(s->mt, &s->position, reinterpret_cast<uint32_t*>(r), n, TwistOf(s));
    double span = static_cast<double>(b) - static_cast<double>(a);
    mt::TemperFloats(r, n, span * 0x1p-32, static_cast<double>(a), TemperOf(s));
    return QES_STATUS_OK;
}
