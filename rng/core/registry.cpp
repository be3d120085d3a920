// The generator registry: the legacy and current tables of BrngRecord rows, member
// counts, the id split, validation, run-time registration and the processor checks.
// A row names its generator's four entries by weak reference, so a family whose
// source is not in this build keeps its sizes and has null entries.
#include <cpuid.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/abstract.h"
#include "rng/core/cpu_hooks.h"
#include "rng/core/stream.h"

#define BRENN_BRNG_WEAK(Name)                                                                      \
    extern "C" __attribute__((weak))                                                               \
    int32_t __qesBRng##Name##InitStream(int32_t, void*, int32_t, const void*);                     \
    extern "C" __attribute__((weak))                                                               \
    int32_t __qessBRng##Name(void*, int32_t, float*, float, float);                                \
    extern "C" __attribute__((weak))                                                               \
    int32_t __qesdBRng##Name(void*, int32_t, double*, double, double);                             \
    extern "C" __attribute__((weak)) int32_t __qesiBRng##Name(void*, int32_t, void*);

BRENN_BRNG_WEAK(MCG31M1)
BRENN_BRNG_WEAK(R250)
BRENN_BRNG_WEAK(MRG32K3A)
BRENN_BRNG_WEAK(MCG59)
BRENN_BRNG_WEAK(WH)
BRENN_BRNG_WEAK(Sobol)
BRENN_BRNG_WEAK(Niederr)
BRENN_BRNG_WEAK(MT19937)
BRENN_BRNG_WEAK(MT2203)
BRENN_BRNG_WEAK(iAbstract)
BRENN_BRNG_WEAK(dAbstract)
BRENN_BRNG_WEAK(sAbstract)
BRENN_BRNG_WEAK(SFMT19937)
BRENN_BRNG_WEAK(TRNG)
BRENN_BRNG_WEAK(ARS5)
BRENN_BRNG_WEAK(PHILOX4X32X10)

// The wrong-kind stub of the abstract rows takes any entry's place, so its type is
// cast to each. The abstract records hold native pointers: their sizes follow the
// pointer width (rng/core/abstract.h).
#define BRENN_WRONG_KIND_S                                                                         \
    reinterpret_cast<QesSGenerateFn>(reinterpret_cast<void (*)()>(__qesdBRngiAbstract))
#define BRENN_WRONG_KIND_I                                                                         \
    reinterpret_cast<QesIGenerateFn>(reinterpret_cast<void (*)()>(__qesdBRngiAbstract))

#define BRENN_ROW(Name, state, seeds, zero, word, bits)                                            \
    {                                                                                              \
        state, seeds, zero, word, bits, __qesBRng##Name##InitStream, __qessBRng##Name,             \
            __qesdBRng##Name, __qesiBRng##Name                                                     \
    }

#define BRENN_ROW_MCG31M1 BRENN_ROW(MCG31M1, 24, 1, 0, 4, 31)
#define BRENN_ROW_R250 BRENN_ROW(R250, 1024, 252, 1, 4, 32)
#define BRENN_ROW_MRG32K3A BRENN_ROW(MRG32K3A, 40, 6, 1, 4, 32)
#define BRENN_ROW_MCG59 BRENN_ROW(MCG59, 32, 1, 0, 8, 59)
#define BRENN_ROW_WH BRENN_ROW(WH, 48, 4, 1, 16, 24)
#define BRENN_ROW_SOBOL BRENN_ROW(Sobol, 11712, 2604, 0, 4, 32)
#define BRENN_ROW_NIEDERR BRENN_ROW(Niederr, 84288, 10498, 0, 4, 32)

#define BRENN_ROW_WH_ONE() BRENN_ROW_WH
#define BRENN_R1(x) x(),
#define BRENN_R2(x) BRENN_R1(x) BRENN_R1(x)
#define BRENN_R4(x) BRENN_R2(x) BRENN_R2(x)
#define BRENN_R8(x) BRENN_R4(x) BRENN_R4(x)
#define BRENN_R16(x) BRENN_R8(x) BRENN_R8(x)
#define BRENN_R32(x) BRENN_R16(x) BRENN_R16(x)
#define BRENN_R64(x) BRENN_R32(x) BRENN_R32(x)
#define BRENN_R128(x) BRENN_R64(x) BRENN_R64(x)
#define BRENN_R256(x) BRENN_R128(x) BRENN_R128(x)

// Legacy ids: 0..3 the four oldest generators, 4..276 one WH row per member id
// (only row 4 is ever selected), 277 Sobol, 278 Niederr, the rest blank.
extern "C" {

__attribute__((visibility("default"))) BrngRecord __RegBrngs[512] = {
    BRENN_ROW_MCG31M1,
    BRENN_ROW_R250,
    BRENN_ROW_MRG32K3A,
    BRENN_ROW_MCG59,
    BRENN_R256(BRENN_ROW_WH_ONE) BRENN_R16(BRENN_ROW_WH_ONE) BRENN_R1(BRENN_ROW_WH_ONE)
        BRENN_ROW_SOBOL,
    BRENN_ROW_NIEDERR,
};

__attribute__((visibility("default"))) BrngRecord __RegBrngsNew[512] = {
    BRENN_ROW_MCG31M1,
    BRENN_ROW_R250,
    BRENN_ROW_MRG32K3A,
    BRENN_ROW_MCG59,
    BRENN_ROW_WH,
    BRENN_ROW_SOBOL,
    BRENN_ROW_NIEDERR,
    BRENN_ROW(MT19937, 2520, 625, 1, 4, 32),
    BRENN_ROW(MT2203, 312, 70, 1, 4, 32),
    {brenn::rng::kIAbstractSize, 0, 1, 4, 32, __qesBRngiAbstractInitStream, BRENN_WRONG_KIND_S,
     __qesdBRngiAbstract, __qesiBRngiAbstract},
    {brenn::rng::kDAbstractSize, 0, 1, 4, 32, __qesBRngdAbstractInitStream, BRENN_WRONG_KIND_S,
     __qesdBRngdAbstract, BRENN_WRONG_KIND_I},
    {brenn::rng::kSAbstractSize, 0, 1, 4, 32, __qesBRngsAbstractInitStream, __qessBRngsAbstract,
     __qesdBRngiAbstract, BRENN_WRONG_KIND_I},
    BRENN_ROW(SFMT19937, 2536, 625, 1, 4, 32),
    BRENN_ROW(TRNG, 24, 1, 0, 4, 32),
    BRENN_ROW(ARS5, 72, 8, 1, 4, 32),
    BRENN_ROW(PHILOX4X32X10, 64, 8, 1, 4, 32),
};

} // extern "C"

namespace brenn::rng {

constexpr int kLegacyRowLimit = 281; // deliberately past the two blank rows 279, 280

int32_t RegisteredMembers[kRegistryRows] = {1, 1, 1, 1, 273, 1, 1, 1, 6024, 1, 1, 1, 1, 1, 1, 1};
int32_t RegisteredCount = 16;

const BrngRecord* ValidRow(int32_t id) {
    int32_t family, member;
    const BrngRecord* table = __qesGetBrngBaseOffset(id, &family, &member);
    if (family < 0 || family >= kRegistryRows) return nullptr;
    if (__qesIsBrngValid(table, family, member) != QES_STATUS_OK) return nullptr;
    return table + family;
}

bool IsBuilt(const BrngRecord* row) {
    return row->initStream != nullptr && row->sGenerate != nullptr && row->dGenerate != nullptr &&
           row->iGenerate != nullptr;
}

const BrngRecord* BuiltRow(int32_t id) {
    const BrngRecord* row = ValidRow(id);
    return row != nullptr && IsBuilt(row) ? row : nullptr;
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT BrngRecord* __qesGetBrngBaseOffset(int32_t id, int32_t* family, int32_t* member) {
    if (id >= kNewIdBase) {
        *family = (id >> 20) - 1;
        *member = id & 0xFFFFF;
        return __RegBrngsNew;
    }
    if (id >= 4 && id <= 276) {
        *family = 4;
        *member = id - 4;
    } else {
        *family = id;
        *member = 0;
    }
    return __RegBrngs;
}

BRENN_EXPORT int32_t __qesIsBrngValid(const BrngRecord* table, int32_t family, int32_t member) {
    if (table == __RegBrngs) return family < kLegacyRowLimit ? 0 : QES_RNG_STATUS_BAD_BRNG;
    if (family < 0 || family >= RegisteredCount) return QES_RNG_STATUS_BAD_BRNG;
    return member < RegisteredMembers[family] ? 0 : QES_RNG_STATUS_BAD_BRNG;
}

BRENN_EXPORT int32_t __qesGetBrngProperties(int32_t id, BrngRecord* record) {
    const BrngRecord* row = ValidRow(id);
    if (row == nullptr) return QES_RNG_STATUS_BAD_BRNG;
    *record = *row;
    return QES_STATUS_OK;
}

BRENN_EXPORT int32_t __qesGetNumRegBrngs(void) {
    return RegisteredCount;
}

BRENN_EXPORT int32_t __qesRegisterBrng(const BrngRecord* record) {
    if (record->stateSize < 0) return QES_RNG_STATUS_BAD_STATE_SIZE;
    int32_t w = record->wordSize;
    if (w != 4 && w != 8 && w != 16) return QES_RNG_STATUS_BAD_WORD_SIZE;
    if (record->seedCount < 1) return QES_RNG_STATUS_BAD_SEED_COUNT;
    if (record->bitCount < 1) return QES_RNG_STATUS_BAD_BIT_COUNT;
    if (record->dGenerate == nullptr || record->sGenerate == nullptr ||
        record->iGenerate == nullptr || record->initStream == nullptr)
        return QES_STATUS_NULL_POINTER;
    // The 512-row capacity is the caller's to respect: there is no status for it.
    int32_t row = RegisteredCount;
    __RegBrngsNew[row] = *record;
    RegisteredMembers[row] = 1;
    RegisteredCount = row + 1;
    return (row << 20) + kNewIdBase;
}

namespace {

void Cpuid1(unsigned* ecx, unsigned* edx) {
    unsigned eax, ebx;
    __cpuid(1, eax, ebx, *ecx, *edx);
}

} // namespace

// Asked at each use and never cached: a process may be moved between machines by
// whatever saved it.
BRENN_EXPORT int32_t __qesCPUisAES(void) {
    unsigned ecx, edx;
    Cpuid1(&ecx, &edx);
    return ((edx >> 26) & 1) && ((ecx >> 25) & 1) && !(testing::hiddenFeatures & testing::kHideAes);
}

BRENN_EXPORT int32_t __qesCPUisRDRAND(void) {
    unsigned ecx, edx;
    Cpuid1(&ecx, &edx);
    return ((ecx >> 30) & 1) && !(testing::hiddenFeatures & testing::kHideRdrand);
}

BRENN_EXPORT int32_t __qesCPUisVAES(void) {
    return brenn_serv_cpuisvectoraes() && !(testing::hiddenFeatures & testing::kHideVaes);
}
