// Method word, estimate set and requirement tables of the basic compute. Intermediate
// results live in the caller's arrays, so an estimate needs the arrays of what it is
// built from; the lowest position that is missing names the status.
#include "stats/basic_plan.h"

#include "brenn_stats.h"

namespace brenn::stats {
namespace {

// Estimate bit of each position.
constexpr uint64_t kPositionBits[20] = {
    BRENN_SS_MEAN,     BRENN_SS_2R_MOM,    BRENN_SS_3R_MOM, BRENN_SS_4R_MOM, BRENN_SS_2C_MOM,
    BRENN_SS_3C_MOM,   BRENN_SS_4C_MOM,    BRENN_SS_COV,    BRENN_SS_COR,    BRENN_SS_KURTOSIS,
    BRENN_SS_SKEWNESS, BRENN_SS_VARIATION, BRENN_SS_SUM,    BRENN_SS_2R_SUM, BRENN_SS_3R_SUM,
    BRENN_SS_4R_SUM,   BRENN_SS_2C_SUM,    BRENN_SS_3C_SUM, BRENN_SS_4C_SUM, BRENN_SS_CP};

// Requirement tables: one-pass methods (0x2, 0x100), raw-first (0x1), conversion
// (0x200, 0x400).
constexpr uint32_t kNeedOnePass[20] = {0x1,    0x2,    0x4,     0x8,     0x13,    0x27,   0x4F,
                                       0x81,   0x101,  0x25F,   0x437,   0x813,   0x1000, 0x2000,
                                       0x4000, 0x8000, 0x10001, 0x20001, 0x40001, 0x80001};
constexpr uint32_t kNeedRawFirst[20] = {0x1,    0x2,    0x4,     0x8,     0x13,    0x27,   0x4F,
                                        0x81,   0x101,  0x25F,   0x437,   0x813,   0x1000, 0x2000,
                                        0x4000, 0x8000, 0x10003, 0x20007, 0x4000F, 0x80001};
constexpr uint32_t kNeedFromSums[20] = {
    0x1001, 0x2002, 0x4004,   0x8008,   0x10010,  0x20020,  0x40040,  0x80080,  0x80100,  0x251,
    0x431,  0x811,  0x100000, 0x100000, 0x100000, 0x100000, 0x100000, 0x100000, 0x100000, 0x100000};

constexpr int32_t kStatusByPosition[21] = {-4006, -4007, -4008, -4009, -4010, -4011, -4012,
                                           -4018, -4019, -4013, -4014, -4017, -4074, -4075,
                                           -4076, -4077, -4078, -4079, -4080, -4081, -4029};

} // namespace

bool ParseMethod(uint64_t method, MethodKind* kind) {
    switch (method) {
    case BRENN_SS_METHOD_RAW_FIRST:
        *kind = MethodRawFirst;
        return true;
    case BRENN_SS_METHOD_ONE_PASS:
        *kind = MethodOnePass;
        return true;
    case BRENN_SS_METHOD_ONE_PASS_B:
        *kind = MethodOnePassB;
        return true;
    case BRENN_SS_METHOD_FROM_SUMS_CP:
    case BRENN_SS_METHOD_FROM_SUMS:
    case BRENN_SS_METHOD_FROM_SUMS_CP | BRENN_SS_METHOD_FROM_SUMS:
        *kind = MethodFromSums;
        return true;
    default:
        return false;
    }
}

uint32_t PackEstimates(uint64_t estimates) {
    uint32_t set = 0;
    for (int i = 0; i < 20; ++i)
        if (estimates & kPositionBits[i]) set |= 1u << i;
    return set;
}

void* PositionArray(const SSTask* t, int position) {
    void* const arrays[20] = {
        t->mean,           t->rawMoment2,     t->rawMoment3,  t->rawMoment4,  t->centralMoment2,
        t->centralMoment3, t->centralMoment4, t->covariance,  t->correlation, t->kurtosis,
        t->skewness,       t->variation,      t->sum,         t->rawSum2,     t->rawSum3,
        t->rawSum4,        t->centralSum2,    t->centralSum3, t->centralSum4, t->crossProduct};
    return arrays[position];
}

uint32_t PresentSet(const SSTask* task) {
    uint32_t set = 0;
    for (int i = 0; i < 20; ++i)
        if (PositionArray(task, i) != nullptr) set |= 1u << i;
    return set;
}

int32_t CheckRequirements(uint32_t requested, uint32_t present, MethodKind kind, uint32_t* needed) {
    const uint32_t* table = kind == MethodFromSums   ? kNeedFromSums
                            : kind == MethodRawFirst ? kNeedRawFirst
                                                     : kNeedOnePass;
    uint32_t all = 0;
    for (int i = 0; i < 20; ++i)
        if (Has(requested, i)) all |= table[i];
    *needed = all;
    uint32_t missing = all & ~present;
    if (missing == 0) return 0;
    return kStatusByPosition[__builtin_ctz(missing)];
}

} // namespace brenn::stats
