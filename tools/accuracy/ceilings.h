/* Ceilings: the largest error each implemented slot may show before the accuracy check
 * fails, taken from a full run of the tool plus a small margin, so that a kernel that
 * gets worse fails even while it stays inside its level's bound. Kept by row and slot in
 * tools/accuracy/ceilings.def, which the tool writes (--write-ceilings); ulps for LA
 * and HA, correct bits for EP. Exact rows have none: they stay exact. */
#ifndef BRENN_TOOLS_ACCURACY_CEILINGS_H
#define BRENN_TOOLS_ACCURACY_CEILINGS_H

#include <string>
#include <vector>

#include "tools/accuracy/rowtable.h"

namespace brenn::tools {

// The bound of a slot's level: LA 4 ulps, HA 1 ulp (0.5 for Rounded rows), EP 11
// correct bits in single precision and 26 in double. Not for exact rows.
double LevelBound(const RowFacts& f, int slot);

// Whether a figure meets a limit: at most so many ulps (LA, HA), at least so many
// bits (EP). Serves bounds and ceilings alike.
bool WithinLimit(int slot, double figure, double limit);

// The ceiling a slot earns from the worst figure of a full run: ulps raised by
// max(0.05, 10 %) and rounded up to 0.01, bits lowered by 0.5 and rounded down to 0.1;
// never beyond the level's bound.
double CeilingFor(const RowFacts& f, int slot, double worst);

struct CeilingLine {
    int row;  // dispatch row index
    int slot; // 0 LA, 1 HA, 2 EP
    double value;
};

// The ceilings of ceilings.def, in row and slot order.
const std::vector<CeilingLine>& KeptCeilings();

// The kept ceiling of a slot, or null when ceilings.def has none.
const CeilingLine* FindCeiling(int row, int slot);

// The text of ceilings.def holding the given lines.
std::string CeilingsFileText(const std::vector<CeilingLine>& lines);

} // namespace brenn::tools

#endif
