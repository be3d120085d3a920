// MRG32K3A: the combined multiple recursive generator of two order-3 components,
//   x(n) = (1403580 x(n-2) - 810728 x(n-3)) mod 4294967087,
//   y(n) = (527612 y(n-1) - 1370589 y(n-3)) mod 4294944443,
// with output z = (x - y) mod 4294967087, in exact 64-bit integer arithmetic. A long
// request runs in blocks of 16 words converted as one run; skip-ahead powers the
// components' companion matrices (rng/core/vect3.cpp), by the table of squares for
// counts below 2^256 and by generic powering above.
#include "frame/export.h"
#include "rng/brng/word_forms.h"
#include "rng/core/jumptables.h"
#include "rng/core/stream.h"

namespace brenn::rng {

namespace {

struct MrgState {
    uint32_t x[3]; // first component, oldest first
    uint32_t y[3]; // second component, oldest first
};
static_assert(sizeof(StreamHeader) + sizeof(MrgState) <= 40, "record size of MRG32K3A");

constexpr uint64_t kM1 = kMrgModulus1;
constexpr uint64_t kM2 = kMrgModulus2;
// 2^32 mod m: the fold of the high word.
constexpr uint64_t kFold1 = (uint64_t{1} << 32) - kM1; // 209
constexpr uint64_t kFold2 = (uint64_t{1} << 32) - kM2; // 22853
// The subtracted terms enter as multiplier x (m - x), which keeps the sums
// non-negative; the constant parts are these.
constexpr uint64_t kBias1 = 810728 * kM1;
constexpr uint64_t kBias2 = 1370589 * kM2;
static_assert(kBias1 == 0xC5EE7F5E68498ull && kBias2 == 5886603609186927ull);
// 1 / m1: the largest word maps just below 1.
constexpr double kScale = 2.328306549837829e-10;

inline uint64_t Fold(uint64_t p, uint64_t f) {
    return (p >> 32) * f + (p & 0xFFFFFFFFu);
}

// The sums lie below 2^54; two folds bring them below 2^32 + f, one subtraction
// below m.
inline uint32_t Reduce(uint64_t p, uint64_t f, uint64_t m) {
    p = Fold(Fold(p, f), f);
    return static_cast<uint32_t>(p >= m ? p - m : p);
}

struct Regs {
    uint64_t x0, x1, x2, y0, y1, y2;

    uint32_t Step() {
        uint64_t nx = Reduce(1403580 * x1 + kBias1 - 810728 * x0, kFold1, kM1);
        uint64_t ny = Reduce(527612 * y2 + kBias2 - 1370589 * y0, kFold2, kM2);
        x0 = x1;
        x1 = x2;
        x2 = nx;
        y0 = y1;
        y1 = y2;
        y2 = ny;
        return static_cast<uint32_t>(nx >= ny ? nx - ny : nx + kM1 - ny);
    }
};

constexpr int32_t kBlock = 16;

template <typename Out>
void Generate(void* stream, int32_t n, Out out) {
    MrgState* s = StateOf<MrgState>(stream);
    Regs g{s->x[0], s->x[1], s->x[2], s->y[0], s->y[1], s->y[2]};
    int32_t i = 0;
    for (; i + kBlock <= n; i += kBlock) {
        uint32_t z[kBlock];
        for (int k = 0; k < kBlock; ++k)
            z[k] = g.Step();
        out.Run(i, z, kBlock);
    }
    for (; i < n; ++i)
        out.Put(i, g.Step());
    *s = {{static_cast<uint32_t>(g.x0), static_cast<uint32_t>(g.x1), static_cast<uint32_t>(g.x2)},
          {static_cast<uint32_t>(g.y0), static_cast<uint32_t>(g.y1), static_cast<uint32_t>(g.y2)}};
}

void Seed(MrgState* s, int32_t n, const uint32_t* params) {
    uint32_t w[6] = {1, 1, 1, 1, 1, 1};
    for (int32_t j = 0; j < 6 && j < n; ++j)
        w[j] = params[j];
    for (int j = 0; j < 3; ++j) {
        if (w[j] >= kM1) w[j] = static_cast<uint32_t>(w[j] - kM1);
        if (w[3 + j] >= kM2) w[3 + j] = static_cast<uint32_t>(w[3 + j] - kM2);
    }
    if ((w[0] | w[1] | w[2]) == 0) w[0] = 1;
    if ((w[3] | w[4] | w[5]) == 0) w[3] = 1;
    *s = {{w[0], w[1], w[2]}, {w[3], w[4], w[5]}};
}

// The negative 32-bit forms of the moduli, as the matrix powers take them.
constexpr int32_t kNegM1 = -static_cast<int32_t>(kFold1);
constexpr int32_t kNegM2 = -static_cast<int32_t>(kFold2);

// Skip by a count of n 64-bit words. Counts below 2^256 take the tables of squares;
// longer ones the generic powering, whose scratch may fail to allocate: then the
// stream is left as it was.
int32_t LongSkip(MrgState* s, int32_t n, const uint64_t* words) {
    uint32_t x[3] = {s->x[0], s->x[1], s->x[2]}, y[3] = {s->y[0], s->y[1], s->y[2]};
    bool shortCount = true;
    for (int32_t w = 4; w < n; ++w)
        if (words[w] != 0) shortCount = false;
    if (shortCount) {
        __qesiVect3PowArrayMod_M1(x, n, words, kMrgJumpTable1);
        __qesiVect3PowArrayMod_M2(y, n, words, kMrgJumpTable2);
    } else {
        int32_t status = __qesiVect3PowArrayMod(x, kMrgRow1, kNegM1, n, words);
        if (status == QES_STATUS_OK) status = __qesiVect3PowArrayMod(y, kMrgRow2, kNegM2, n, words);
        if (status != QES_STATUS_OK) return status;
    }
    *s = {{x[0], x[1], x[2]}, {y[0], y[1], y[2]}};
    return QES_STATUS_OK;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t __qesBRngMRG32K3AInitStream(int32_t method, void* stream, int32_t n,
                                                 const void* params) {
    MrgState* s = StateOf<MrgState>(stream);
    switch (method) {
    case QES_INIT_SEED:
        Seed(s, n, static_cast<const uint32_t*>(params));
        return QES_STATUS_OK;
    case QES_INIT_LEAPFROG:
        return QES_RNG_STATUS_NO_LEAPFROG;
    case QES_INIT_SKIP: {
        uint64_t count = *static_cast<const uint64_t*>(params);
        uint32_t lo = static_cast<uint32_t>(count), hi = static_cast<uint32_t>(count >> 32);
        __qesiVect3PowMod(s->x, kMrgRow1, kNegM1, lo, hi);
        __qesiVect3PowMod(s->y, kMrgRow2, kNegM2, lo, hi);
        return QES_STATUS_OK;
    }
    case QES_INIT_SKIP_EX:
        return LongSkip(s, n, static_cast<const uint64_t*>(params));
    default:
        return QES_STATUS_BAD_METHOD;
    }
}

BRENN_EXPORT int32_t __qesiBRngMRG32K3A(void* stream, int32_t n, void* r) {
    Generate(stream, n, WordsOut{static_cast<uint32_t*>(r)});
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesdBRngMRG32K3A(void* stream, int32_t n, double* r, double a, double b) {
    Generate(stream, n, DoubleForm(r, a, b, kScale));
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qessBRngMRG32K3A(void* stream, int32_t n, float* r, float a, float b) {
    Generate(stream, n, SingleForm(r, a, b, kScale));
    return QES_STATUS_OK;
}
