// The goodness-of-fit driver: draws one case (entry, precision, method, generator,
// seed, n, parameters) from a freshly seeded stream and writes the variates to
// standard output as raw native-endian binary, for the Python runner to test.
//
//   rng_gof_draw ENTRY PRECISION METHOD BRNG SEED N [PARAMETER ...]
//   rng_gof_draw --list
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <vector>

#include "brenn_rng.h"
#include "tests/rng/gof/draw.h"

namespace brenn::gof {

namespace {

DrawTable* tables = nullptr;

struct BrngName {
    const char* name;
    int32_t id;
};

constexpr BrngName kBrngs[] = {
    {"MCG31M1", QES_BRNG_MCG31M1},
    {"R250", QES_BRNG_R250},
    {"MRG32K3A", QES_BRNG_MRG32K3A},
    {"MCG59", QES_BRNG_MCG59},
    {"WH", QES_BRNG_WH},
    {"MT19937", QES_BRNG_MT19937},
    {"MT2203", QES_BRNG_MT2203},
    {"SFMT19937", QES_BRNG_SFMT19937},
    {"ARS5", QES_BRNG_ARS5},
    {"PHILOX4X32X10", QES_BRNG_PHILOX4X32X10},
};

const DrawEntry* FindEntry(const char* name) {
    for (DrawTable* t = tables; t != nullptr; t = t->next)
        for (size_t i = 0; i < t->count; ++i)
            if (strcmp(t->entries[i].name, name) == 0) return &t->entries[i];
    return nullptr;
}

size_t ElementSize(char precision) {
    return precision == 'd' ? 8 : 4;
}

int Fail(const char* what, const char* value) {
    fprintf(stderr, "rng_gof_draw: %s: %s\n", what, value);
    return 2;
}

} // namespace

bool RegisterDrawTable(DrawTable* table) {
    table->next = tables;
    tables = table;
    return true;
}

} // namespace brenn::gof

using namespace brenn::gof;

int main(int argc, char** argv) {
    if (argc == 2 && strcmp(argv[1], "--list") == 0) {
        for (DrawTable* t = tables; t != nullptr; t = t->next)
            for (size_t i = 0; i < t->count; ++i)
                printf("%s %s %d\n", t->entries[i].name, t->entries[i].precisions,
                       t->entries[i].parameterCount);
        return 0;
    }
    if (argc < 7) {
        fprintf(stderr, "usage: rng_gof_draw ENTRY PRECISION METHOD BRNG SEED N [PARAMETER ...]\n"
                        "       rng_gof_draw --list\n");
        return 2;
    }
    const DrawEntry* entry = FindEntry(argv[1]);
    if (entry == nullptr) return Fail("no such entry", argv[1]);
    const char precision = argv[2][0];
    if (argv[2][1] != '\0' || strchr(entry->precisions, precision) == nullptr)
        return Fail("precision not offered", argv[2]);
    const int32_t method = static_cast<int32_t>(strtol(argv[3], nullptr, 0));
    int32_t brng = -1;
    for (const BrngName& b : kBrngs)
        if (strcmp(b.name, argv[4]) == 0) brng = b.id;
    if (brng < 0) return Fail("no such generator", argv[4]);
    const uint32_t seed = static_cast<uint32_t>(strtoul(argv[5], nullptr, 0));
    const long n = strtol(argv[6], nullptr, 0);
    if (n < 0 || n > 0x7FFFFFFF) return Fail("bad count", argv[6]);
    if (argc - 7 != entry->parameterCount) return Fail("wrong parameter count for", argv[1]);
    std::vector<double> p(entry->parameterCount);
    for (int i = 0; i < entry->parameterCount; ++i)
        p[i] = strtod(argv[7 + i], nullptr);

    void* stream = nullptr;
    int32_t status = __qesNewStreamEx(&stream, brng, 1, &seed);
    if (status < 0) return Fail("stream not made", argv[4]);
    std::vector<unsigned char> r(static_cast<size_t>(n) * ElementSize(precision) + 1);
    status = entry->draw(precision, method, stream, static_cast<int32_t>(n), r.data(), p.data());
    __qesDeleteStream(&stream);
    if (status < 0) {
        fprintf(stderr, "rng_gof_draw: %s returned status %d\n", argv[1], int(status));
        return 1;
    }
    const size_t bytes = static_cast<size_t>(n) * ElementSize(precision);
    if (fwrite(r.data(), 1, bytes, stdout) != bytes) return Fail("write failed", "stdout");
    return 0;
}
