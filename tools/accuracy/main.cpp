// The accuracy tool: measures every slot of every row that has a kernel (or the rows
// named with --row), writes the table of docs/accuracy.md, and with --check fails when
// a slot breaks its level's bound (exact rows bit for bit, HA 1 ulp, 0.5 for Rounded
// rows, LA 4 ulps, EP 11 correct bits in single precision and 26 in double) or the
// ceiling kept for it in ceilings.def; --write-ceilings rewrites those ceilings from
// the run.
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include <string>
#include <vector>

#include "tools/accuracy/ceilings.h"
#include "tools/accuracy/measure.h"

using namespace brenn::tools;

namespace brenn::tools {
int RunSelfTest(); // selftest.cpp
}

namespace {

const char* const kSlotName[3] = {"LA", "HA", "EP"};

// The figure a slot is judged by: ulps for LA and HA, correct bits for EP.
double Figure(int slot, const SlotResult& s) {
    return slot == 2 ? s.minBits : s.maxUlp;
}

std::string LimitText(int slot, double limit) {
    char buf[32];
    snprintf(buf, sizeof buf, slot == 2 ? ">= %g bits" : "<= %g ulp", limit);
    return buf;
}

// The bound a slot is held to, as text, and whether the result meets it.
bool WithinBound(const RowDesc& r, int slot, const SlotResult& s, std::string* bound) {
    if (s.frameFaults) {
        *bound = "no writes outside y";
        return false;
    }
    if (IsExact(*r.facts)) {
        *bound = "exact";
        return s.mismatches == 0;
    }
    double limit = LevelBound(*r.facts, slot);
    *bound = LimitText(slot, limit);
    return WithinLimit(slot, Figure(slot, s), limit);
}

// The ceiling kept for a slot, as text, and whether the result stays under it. Exact
// rows are held by their bound alone.
bool WithinCeiling(const RowDesc& r, int slot, const SlotResult& s, std::string* ceiling) {
    if (IsExact(*r.facts)) {
        *ceiling = "exact";
        return true;
    }
    const CeilingLine* c = FindCeiling(r.index, slot);
    if (!c) {
        *ceiling = "none";
        return false;
    }
    *ceiling = LimitText(slot, c->value);
    return WithinLimit(slot, Figure(slot, s), c->value);
}

std::string Fmt(double v, const char* f) {
    if (isinf(v)) return "inf";
    char buf[32];
    snprintf(buf, sizeof buf, f, v);
    return buf;
}

// The processor by its family and model numbers: the figures depend on the
// microarchitecture, and the numbers name it without a vendor's brand string.
std::string MachineLine() {
    std::string family = "?", model = "?";
    if (FILE* f = fopen("/proc/cpuinfo", "r")) {
        char line[256];
        // The first processor's block ends at the first empty line.
        while (fgets(line, sizeof line, f) && line[0] != '\n') {
            char value[64];
            if (sscanf(line, "cpu family : %63s", value) == 1) family = value;
            if (sscanf(line, "model : %63s", value) == 1) model = value;
        }
        fclose(f);
    }
    return "x86-64 processor, family " + family + " model " + model;
}

void ListRow(const RowDesc& r) {
    printf("%-14s", r.name);
    for (int s = 0; s < 3; ++s)
        printf(" %s:%s", kSlotName[s], SlotPresent(r, s) ? "yes" : "-");
    printf("\n");
}

void Usage() {
    fprintf(stderr,
            "usage: brenn_accuracy [--row NAME]... [--quick] [--samples N] [--seed S]\n"
            "                      [--out FILE] [--check] [--write-ceilings FILE] [--list]\n"
            "                      [--selftest]\n"
            "  --row NAME   measure only this row (e.g. sSqrt); repeatable\n"
            "  --quick      %ld inputs a row (the ctest)\n"
            "  --samples N  random inputs a row (default %ld)\n"
            "  --out FILE   write the markdown table (docs/accuracy.md)\n"
            "  --check      exit 1 when a slot breaks its level's bound or its ceiling\n"
            "  --write-ceilings FILE  write ceilings.def with the measured rows' ceilings\n"
            "               (the other rows' kept as they are); full runs only\n"
            "  --list       list the rows and which slots have kernels\n"
            "  --selftest   measure kernels of known quality and check the tool sees it\n",
            kQuickSamples, kFullSamples);
}

bool Wanted(const std::vector<std::string>& only, const char* name) {
    if (only.empty()) return true;
    for (const std::string& n : only)
        if (n == name) return true;
    return false;
}

// The ceilings the file at path holds now, by row and slot; false when it cannot be
// read. Other rows' lines are taken from here rather than from the ceilings compiled
// into this build, which may be older than the file (someone else's rows rewritten
// since) or lack rows a narrowed build leaves out.
bool ReadCeilingsFile(const char* path, const RowDesc* rows, int count,
                      std::vector<CeilingLine>* lines) {
    FILE* f = fopen(path, "r");
    if (!f) return false;
    char line[256];
    while (fgets(line, sizeof line, f)) {
        char name[64], slot[4];
        double value = 0;
        if (sscanf(line, "CEILING(%63[^,], %3[^,], %lf)", name, slot, &value) != 3) continue;
        int s = -1;
        for (int k = 0; k < 3; ++k)
            if (strcmp(slot, kSlotName[k]) == 0) s = k;
        for (int i = 0; i < count && s >= 0; ++i)
            if (strcmp(name, rows[i].name) == 0) lines->push_back({rows[i].index, s, value});
    }
    fclose(f);
    return true;
}

// The ceilings of a run's measured rows, with the other rows' lines as the file holds
// them (or as this build kept them, when there is no file yet), in row and slot order.
// Reports each change.
std::vector<CeilingLine> NewCeilings(const RowDesc* rows, int count,
                                     const std::vector<std::string>& only,
                                     const std::vector<std::vector<SlotResult>>& results,
                                     const char* path) {
    std::vector<CeilingLine> onDisk;
    bool haveFile = ReadCeilingsFile(path, rows, count, &onDisk);
    auto other = [&](int row, int slot) -> const CeilingLine* {
        if (!haveFile) return FindCeiling(row, slot);
        for (const CeilingLine& c : onDisk)
            if (c.row == row && c.slot == slot) return &c;
        return nullptr;
    };
    std::vector<CeilingLine> lines;
    for (int i = 0; i < count; ++i) {
        const RowDesc& r = rows[i];
        bool measured = Wanted(only, r.name);
        for (int s = 0; s < 3; ++s) {
            if (!measured) {
                if (const CeilingLine* c = other(r.index, s)) lines.push_back(*c);
                continue;
            }
            const CeilingLine* kept = other(r.index, s);
            const SlotResult& x = results[i][s];
            if (!x.present || IsExact(*r.facts)) continue;
            CeilingLine c{r.index, s, CeilingFor(*r.facts, s, Figure(s, x))};
            lines.push_back(c);
            if (!kept || kept->value != c.value)
                fprintf(stderr, "%s %s ceiling: %s -> %s\n", r.name, kSlotName[s],
                        kept ? LimitText(s, kept->value).c_str() : "none",
                        LimitText(s, c.value).c_str());
        }
    }
    return lines;
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    std::vector<std::string> only;
    const char* outPath = nullptr;
    const char* ceilingsPath = nullptr;
    bool check = false, list = false, quick = false;
    for (int i = 1; i < argc; ++i) {
        std::string a = argv[i];
        auto next = [&]() -> const char* {
            if (i + 1 >= argc) {
                Usage();
                exit(2);
            }
            return argv[++i];
        };
        if (a == "--row")
            only.push_back(next());
        else if (a == "--quick")
            quick = true;
        else if (a == "--samples")
            options.randomSamples = atol(next());
        else if (a == "--seed")
            options.seed = strtoull(next(), nullptr, 0);
        else if (a == "--out")
            outPath = next();
        else if (a == "--check")
            check = true;
        else if (a == "--write-ceilings")
            ceilingsPath = next();
        else if (a == "--list")
            list = true;
        else if (a == "--selftest")
            return RunSelfTest();
        else {
            Usage();
            return 2;
        }
    }
    if (quick) options.randomSamples = kQuickSamples;
    if (ceilingsPath && (options.randomSamples != kFullSamples || options.seed != kDefaultSeed)) {
        // a quick run sees a subset of the full run's inputs, so only ceilings taken
        // from the full run on the default seed are sure to hold in it
        fprintf(stderr, "brenn_accuracy: --write-ceilings needs a full run (default samples "
                        "and seed)\n");
        return 2;
    }

    int count = 0;
    const RowDesc* rows = AllRows(&count);
    for (const std::string& name : only) {
        bool found = false;
        for (int i = 0; i < count; ++i)
            found |= name == rows[i].name;
        if (!found) {
            fprintf(stderr, "brenn_accuracy: no row named %s\n", name.c_str());
            return 2;
        }
    }

    std::string table, missing;
    int measured = 0, failures = 0, withKernels = 0;
    std::vector<std::vector<SlotResult>> results(count, std::vector<SlotResult>(3));
    for (int i = 0; i < count; ++i) {
        const RowDesc& r = rows[i];
        if (!Wanted(only, r.name)) continue;
        if (list) {
            ListRow(r);
            continue;
        }
        SlotResult* res = results[i].data();
        MeasureRow(r, options, res);
        if (!res[0].present && !res[1].present && !res[2].present) {
            missing += missing.empty() ? r.name : std::string(", ") + r.name;
            continue;
        }
        ++withKernels;
        for (int s = 0; s < 3; ++s) {
            const SlotResult& x = res[s];
            if (!x.present) {
                table += std::string("| ") + r.name + " | " + kSlotName[s] +
                         " | not implemented | | | | | | |\n";
                continue;
            }
            ++measured;
            std::string bound, ceiling;
            bool inBound = WithinBound(r, s, x, &bound);
            bool underCeiling = WithinCeiling(r, s, x, &ceiling);
            if (!inBound || !underCeiling) ++failures;
            bool exact = IsExact(*r.facts);
            std::string err = exact ? (x.mismatches ? Fmt(x.maxUlp, "%.3g") + " (" +
                                                          std::to_string(x.mismatches) + " differ)"
                                                    : "exact")
                                    : Fmt(x.maxUlp, "%.3f");
            std::string bits = exact ? "" : Fmt(x.minBits, "%.1f");
            std::string status = !inBound        ? "**FAILS**"
                                 : !underCeiling ? "**above ceiling**"
                                                 : "ok";
            std::string notes;
            if (x.sameAs >= 0) notes = std::string("kernel of ") + kSlotName[x.sameAs];
            if (x.zeroSign)
                notes += (notes.empty() ? "" : "; ") + std::to_string(x.zeroSign) +
                         " zero(s) of the wrong sign";
            if (x.frameFaults)
                notes += (notes.empty() ? "" : "; ") + std::to_string(x.frameFaults) +
                         " bytes written outside y";
            std::string worst = x.worst.empty() ? "" : "`" + x.worst + "`";
            table += std::string("| ") + r.name + " | " + kSlotName[s] + " | " + err + " | " +
                     bits + " | " + ceiling + " | " + bound + " | " + status + " | " +
                     std::to_string(x.checked) + " | " + notes +
                     (notes.empty() || worst.empty() ? "" : "; ") +
                     (worst.empty() ? "" : "worst: " + worst) + " |\n";
            if (!inBound)
                fprintf(stderr, "%s %s: %s (bound %s) %s\n", r.name, kSlotName[s], err.c_str(),
                        bound.c_str(), x.worst.c_str());
            else if (!underCeiling && ceiling == "none")
                fprintf(stderr,
                        "%s %s: no ceiling; measure it with brenn_accuracy --row %s "
                        "--write-ceilings tools/accuracy/ceilings.def\n",
                        r.name, kSlotName[s], r.name);
            else if (!underCeiling)
                fprintf(stderr, "%s %s: %s, %s bits (ceiling %s) %s\n", r.name, kSlotName[s],
                        err.c_str(), bits.c_str(), ceiling.c_str(), x.worst.c_str());
        }
        fprintf(stderr, "%-14s measured\n", r.name);
    }
    if (list) return 0;

    if (ceilingsPath) {
        std::string text = CeilingsFileText(NewCeilings(rows, count, only, results, ceilingsPath));
        FILE* f = fopen(ceilingsPath, "w");
        if (!f || fputs(text.c_str(), f) < 0 || fclose(f) != 0) {
            fprintf(stderr, "brenn_accuracy: cannot write %s\n", ceilingsPath);
            return 2;
        }
    }

    if (outPath) {
        FILE* f = fopen(outPath, "w");
        if (!f) {
            fprintf(stderr, "brenn_accuracy: cannot write %s\n", outPath);
            return 2;
        }
        time_t now = time(nullptr);
        char date[32];
        strftime(date, sizeof date, "%Y-%m-%d", gmtime(&now));
        fprintf(f, "# Accuracy of the vector-math kernels\n\n");
        fprintf(f,
                "Generated by `tools/accuracy` (brenn_accuracy%s) on %s, %s.\n"
                "Do not edit: rerun the tool (see tools/accuracy/README.md).\n\n",
                quick ? " --quick" : "", date, MachineLine().c_str());
        fprintf(f,
                "Each slot is called through the dispatch table on %ld random inputs a row "
                "(a third uniform in the bit patterns, a third log-uniform in magnitude over "
                "the domain, a third uniform over the function's interesting range; a fifth of "
                "that for references that are slow to compute) plus special values (zeros, "
                "denormals, extremes, infinities, quiet and signalling NaNs, range ends), on "
                "long vectors and on every length 1 to 40 at every alignment of input and "
                "output and in place. Errors are in ulps of the correctly rounded result "
                "against MPFR/MPC at %d bits (complex results: the larger component error in "
                "ulps of the larger component). Correct bits are -log2 of the largest relative "
                "error. Exact rows are compared bit for bit with the IEEE operation; a NaN "
                "input must come out as the same NaN, quieted, where the operation is "
                "arithmetic, and pack/unpack must move every word unchanged, signalling NaNs "
                "included. `LinearFrac` is measured against its formula evaluated as written "
                "in the element's precision. Bounds: exact rows exact; HA <= 1 ulp "
                "(Div, Sqrt, Inv <= 0.5 ulp, correctly rounded); LA <= 4 ulp; EP >= 11 "
                "correct bits in single and 26 in double.\n\n",
                options.randomSamples, static_cast<int>(160));
        fprintf(f,
                "Each implemented slot is also held to a ceiling (`tools/accuracy/ceilings.def`), "
                "taken from a full run: its worst error plus max(0.05 ulp, 10 %%), or its "
                "fewest correct bits less 0.5 (EP), never beyond the bound, so that a kernel "
                "that gets worse fails the check while still inside its level's bound. "
                "Status: ok, **FAILS** (outside the bound) or **above ceiling**.\n\n");
        fprintf(f,
                "%d of %d rows have kernels; %d slots measured, %d outside their bound or "
                "ceiling.\n\n",
                withKernels, only.empty() ? count : static_cast<int>(only.size()), measured,
                failures);
        fprintf(f, "| Row | Slot | Max error (ulp) | Correct bits | Ceiling | Bound | Status | "
                   "Elements | Notes and worst input |\n|---|---|---|---|---|---|---|---|---|\n");
        fputs(table.c_str(), f);
        if (!missing.empty()) fprintf(f, "\nRows without kernels yet: %s.\n", missing.c_str());
        fclose(f);
    }
    fprintf(stderr, "%d rows with kernels, %d slots measured, %d outside their bound or ceiling\n",
            withKernels, measured, failures);
    return check && failures ? 1 : 0;
}
