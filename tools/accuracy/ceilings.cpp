// Ceilings of the implemented slots: the kept figures of ceilings.def (keyed by dispatch
// row, so a ceiling on a row that does not exist is a build error), the margin a
// measured figure earns, and the text the tool writes back.
#include "tools/accuracy/ceilings.h"

#include <math.h>
#include <stdio.h>

#include <algorithm>

#include "frame/dispatch.h"

namespace brenn::tools {

namespace {

const CeilingLine kKept[] = {
#define CEILING(row, slot, value) {frame::Row_##row, frame::Slot##slot, value},
#include "tools/accuracy/ceilings.def"
#undef CEILING
    {-1, -1, 0}, // end
};

const char* const kSlotName[3] = {"LA", "HA", "EP"};

} // namespace

double LevelBound(const RowFacts& f, int slot) {
    if (slot == 2) return (f.row[0] == 's' || f.row[0] == 'c') ? 11 : 26;
    if (slot == 1) return f.rule == Rule::Rounded ? 0.5 : 1.0;
    return 4;
}

bool WithinLimit(int slot, double figure, double limit) {
    return slot == 2 ? figure >= limit : figure <= limit;
}

double CeilingFor(const RowFacts& f, int slot, double worst) {
    // the slack keeps a sum that lands on a step (2 + 0.2) from rounding a step further
    const double bound = LevelBound(f, slot), slack = 1e-9;
    if (slot == 2) return std::max(bound, floor((worst - 0.5) * 10 + slack) / 10);
    return std::min(bound, ceil((worst + std::max(0.05, 0.1 * worst)) * 100 - slack) / 100);
}

const std::vector<CeilingLine>& KeptCeilings() {
    static const std::vector<CeilingLine> lines(std::begin(kKept), std::end(kKept) - 1);
    return lines;
}

const CeilingLine* FindCeiling(int row, int slot) {
    for (const CeilingLine& c : KeptCeilings())
        if (c.row == row && c.slot == slot) return &c;
    return nullptr;
}

std::string CeilingsFileText(const std::vector<CeilingLine>& lines) {
    std::string text =
        "/* Ceilings of the implemented slots, by row and slot: ulps for LA and HA (the most\n"
        " * a slot may show), correct bits for EP (the fewest). Written by\n"
        " *   brenn_accuracy --write-ceilings tools/accuracy/ceilings.def [--row NAME]...\n"
        " * from a full run (default samples and seed): the worst figure plus max(0.05 ulp,\n"
        " * 10 %), rounded up to 0.01, or less 0.5 bit, rounded down to 0.1, and never\n"
        " * beyond the level's bound. --check fails a slot above its ceiling, or an\n"
        " * implemented slot of a non-exact row without one; exact rows have none. Rewrite\n"
        " * it when a kernel changes on purpose, never by hand. */\n"
        "/* clang-format off */\n";
    int count = 0;
    const RowFacts* facts = AllRowFacts(&count);
    for (const CeilingLine& c : lines) {
        char buf[96];
        snprintf(buf, sizeof buf,
                 c.slot == 2 ? "CEILING(%s, %s, %.1f)\n" : "CEILING(%s, %s, %.2f)\n",
                 facts[c.row].row, kSlotName[c.slot], c.value);
        text += buf;
    }
    text += "/* clang-format on */\n";
    return text;
}

} // namespace brenn::tools
