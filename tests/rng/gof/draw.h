// The draw tables of the goodness-of-fit driver: each table file names the
// distribution entries it can call (name, precisions, parameter count, a function
// that makes n variates), and registers itself at start-up, so that a new family
// is a new draw_<family>.cpp beside the others and no edit of the driver.
#ifndef BRENN_TESTS_RNG_GOF_DRAW_H
#define BRENN_TESTS_RNG_GOF_DRAW_H

#include <cstddef>
#include <cstdint>

namespace brenn::gof {

// Makes n variates of one precision into r: 's' float, 'd' double, 'i' int32.
// p holds the case's parameters as doubles, in the entry's own order; an entry
// converts them (float for 's', int32 where a parameter is a count).
using DrawFunction = int32_t (*)(char precision, int32_t method, void* stream, int32_t n, void* r,
                                 const double* p);

struct DrawEntry {
    const char* name;       // what the case table calls it, e.g. "Gaussian"
    const char* precisions; // the precisions it has: "sd", "i"
    int parameterCount;
    DrawFunction draw;
};

struct DrawTable {
    const DrawEntry* entries;
    size_t count;
    DrawTable* next;
};

// Adds a table to the list the driver searches; returns true for use in a static
// initialiser.
bool RegisterDrawTable(DrawTable* table);

} // namespace brenn::gof

// One line at the end of a table file: BRENN_GOF_DRAW_TABLE(kEntries);
#define BRENN_GOF_DRAW_TABLE(entries)                                                              \
    namespace {                                                                                    \
    ::brenn::gof::DrawTable drawTable{entries, sizeof(entries) / sizeof(entries[0]), nullptr};     \
    const bool drawTableRegistered = ::brenn::gof::RegisterDrawTable(&drawTable);                  \
    }

#endif
