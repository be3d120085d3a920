/* Measuring one row: inputs across the domain and a set of special values, a
 * reference for each, the kernels of the three slots called on long vectors and on
 * every length 1 to 40 at every alignment (in place too), and the largest error. */
#ifndef BRENN_TOOLS_ACCURACY_MEASURE_H
#define BRENN_TOOLS_ACCURACY_MEASURE_H

#include <stdint.h>

#include <string>

#include "brenn_types.h"
#include "tools/accuracy/rowtable.h"

namespace brenn::tools {

// Argument lists of the row list (frame/kernels.h), for calling a slot.
enum class Shape {
    Unary,
    AbsArg,
    Cis,
    Binary,
    Powx,
    TwoRes,
    LinFrac,
    PackI,
    PackM,
    PackV,
    UnpackI,
    UnpackM,
    UnpackV
};

struct RowDesc {
    const char* name;
    char type; // s d c z
    Shape shape;
    int index; // row index in the dispatch table
    const RowFacts* facts;
};

// The rows of the dispatch table, in order, with their shapes and facts.
const RowDesc* AllRows(int* count);

struct SlotResult {
    bool present = false;
    int sameAs = -1;      // slot whose kernel this one shares, measured once
    double maxUlp = 0;    // largest error in ulps (exact rows: ulps between bit patterns)
    double minBits = 0;   // correct bits at the worst relative error
    long checked = 0;     // elements compared
    long mismatches = 0;  // exact rows: elements not bit-identical (by the NaN rule)
    long zeroSign = 0;    // results of the wrong zero sign
    long frameFaults = 0; // writes outside the output, or results that moved with position
    std::string worst;    // input, result and reference at the largest error
};

// Random inputs a row of a full run (the report and the ceilings) and of a quick one
// (the ctest).
constexpr long kFullSamples = 250000;
constexpr long kQuickSamples = 20000;
constexpr uint64_t kDefaultSeed = 0x5EED2026;

struct Options {
    long randomSamples = kFullSamples; // random inputs a row (a third from each kind)
    uint64_t seed = kDefaultSeed;
};

// Whether a slot of the row has a kernel in the dispatch table.
bool SlotPresent(const RowDesc& row, int slot);

// Measures the present slots of a row.
void MeasureRow(const RowDesc& row, const Options& options, SlotResult out[3]);

// Measures given kernels as the three slots of a row (null: no kernel); the self-test
// hands it kernels of known quality.
void MeasureKernels(const RowDesc& row, const Options& options, const BrennKernel slots[3],
                    SlotResult out[3]);

// Whether a run with the options `fewer` (fewer samples, same seed) calls the row's
// kernels on a subset of the elements, in the same rounds, that a run with `more` does,
// so that it cannot see a larger error; says why not otherwise.
bool InputsNest(const RowDesc& row, const Options& fewer, const Options& more, std::string* why);

// Checks a pack or unpack row bit for bit (both index widths). Defined in pack.cpp.
void MeasurePackRow(const RowDesc& row, const Options& options, const BrennKernel slots[3],
                    SlotResult out[3]);

} // namespace brenn::tools

#endif
