// The accuracy tool: measures every slot of every row that has a kernel (or the rows
// named with --row), writes the table of docs/accuracy.md, and with --check fails when
// a slot breaks its level's bound: exact rows bit for bit, HA 1 ulp (0.5 for Div, Sqrt
// and Inv), LA 4 ulps, EP 11 correct bits in single precision and 26 in double.
#include <math.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <time.h>

#include <string>
#include <vector>

#include "tools/accuracy/measure.h"

using namespace brenn::tools;

namespace brenn::tools {
int RunSelfTest(); // selftest.cpp
}

namespace {

const char* const kSlotName[3] = {"LA", "HA", "EP"};

bool SinglePrecision(const RowDesc& r) {
    return r.type == 's' || r.type == 'c';
}

// The bound a slot is held to, as text, and whether the result meets it.
bool WithinBound(const RowDesc& r, int slot, const SlotResult& s, std::string* bound) {
    if (s.frameFaults) {
        *bound = "no writes outside y";
        return false;
    }
    if (IsExactRef(r.facts->ref)) {
        *bound = "exact";
        return s.mismatches == 0;
    }
    if (slot == 2) {
        int bits = SinglePrecision(r) ? 11 : 26;
        *bound = ">= " + std::to_string(bits) + " bits";
        return s.minBits >= bits;
    }
    double limit = 4;
    if (slot == 1) {
        Ref f = r.facts->ref;
        bool rounded =
            (r.type == 's' || r.type == 'd') && (f == Ref::Div || f == Ref::Sqrt || f == Ref::Inv);
        limit = rounded ? 0.5 : 1.0;
    }
    char buf[32];
    snprintf(buf, sizeof buf, "<= %g ulp", limit);
    *bound = buf;
    return s.maxUlp <= limit;
}

std::string Fmt(double v, const char* f) {
    if (isinf(v)) return "inf";
    char buf[32];
    snprintf(buf, sizeof buf, f, v);
    return buf;
}

std::string MachineLine() {
    std::string model = "unknown processor";
    if (FILE* f = fopen("/proc/cpuinfo", "r")) {
        char line[256];
        while (fgets(line, sizeof line, f))
            if (strncmp(line, "model name", 10) == 0) {
                const char* p = strchr(line, ':');
                if (p) model = p + 2;
                while (!model.empty() && model.back() == '\n')
                    model.pop_back();
                break;
            }
        fclose(f);
    }
    return model;
}

void ListRow(const RowDesc& r) {
    printf("%-14s", r.name);
    for (int s = 0; s < 3; ++s)
        printf(" %s:%s", kSlotName[s], SlotPresent(r, s) ? "yes" : "-");
    printf("\n");
}

void Usage() {
    fprintf(stderr, "usage: brenn_accuracy [--row NAME]... [--quick] [--samples N] [--seed S]\n"
                    "                      [--out FILE] [--check] [--list] [--selftest]\n"
                    "  --row NAME   measure only this row (e.g. sSqrt); repeatable\n"
                    "  --quick      20000 inputs a row (the ctest run)\n"
                    "  --samples N  random inputs a row (default 250000)\n"
                    "  --out FILE   write the markdown table (docs/accuracy.md)\n"
                    "  --check      exit 1 when a slot breaks its level's bound\n"
                    "  --list       list the rows and which slots have kernels\n"
                    "  --selftest   measure kernels of known quality and check the tool sees it\n");
}

} // namespace

int main(int argc, char** argv) {
    Options options;
    std::vector<std::string> only;
    const char* outPath = nullptr;
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
        else if (a == "--list")
            list = true;
        else if (a == "--selftest")
            return RunSelfTest();
        else {
            Usage();
            return 2;
        }
    }
    if (quick) options.randomSamples = 20000;

    int count = 0;
    const RowDesc* rows = AllRows(&count);
    for (int i = 0; i < count; ++i)
        if (!rows[i].facts) {
            fprintf(stderr, "brenn_accuracy: row %s has no entry in tools/accuracy/rowtable.cpp\n",
                    rows[i].name);
            return 2;
        }
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
    for (int i = 0; i < count; ++i) {
        const RowDesc& r = rows[i];
        if (!only.empty()) {
            bool want = false;
            for (const std::string& name : only)
                want |= name == r.name;
            if (!want) continue;
        }
        SlotResult res[3];
        if (list) {
            ListRow(r);
            continue;
        }
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
                         " | not implemented | | | | | |\n";
                continue;
            }
            ++measured;
            std::string bound;
            bool ok = WithinBound(r, s, x, &bound);
            if (!ok) ++failures;
            bool exact = IsExactRef(r.facts->ref);
            std::string err = exact ? (x.mismatches ? Fmt(x.maxUlp, "%.3g") + " (" +
                                                          std::to_string(x.mismatches) + " differ)"
                                                    : "exact")
                                    : Fmt(x.maxUlp, "%.3f");
            std::string bits = exact ? "" : Fmt(x.minBits, "%.1f");
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
                     bits + " | " + bound + " | " + (ok ? "ok" : "**FAILS**") + " | " +
                     std::to_string(x.checked) + " | " + notes +
                     (notes.empty() || worst.empty() ? "" : "; ") +
                     (worst.empty() ? "" : "worst: " + worst) + " |\n";
            if (!ok)
                fprintf(stderr, "%s %s: %s (bound %s) %s\n", r.name, kSlotName[s], err.c_str(),
                        bound.c_str(), x.worst.c_str());
        }
        fprintf(stderr, "%-14s measured\n", r.name);
    }
    if (list) return 0;

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
        fprintf(f, "%d of %d rows have kernels; %d slots measured, %d outside their bound.\n\n",
                withKernels, only.empty() ? count : static_cast<int>(only.size()), measured,
                failures);
        fprintf(f, "| Row | Slot | Max error (ulp) | Correct bits | Bound | Status | Elements | "
                   "Notes and worst input |\n|---|---|---|---|---|---|---|---|\n");
        fputs(table.c_str(), f);
        if (!missing.empty()) fprintf(f, "\nRows without kernels yet: %s.\n", missing.c_str());
        fclose(f);
    }
    fprintf(stderr, "%d rows with kernels, %d slots measured, %d outside their bound\n",
            withKernels, measured, failures);
    return check && failures ? 1 : 0;
}
