// The tools' row list and ceilings against the dispatch table: rows.def names every
// dispatch row once, in order; a row names the family file of its kernels exactly when
// it has kernels, and that file defines them; every implemented slot of a row that is
// not exact has one ceiling, within its level's bound, and ceilings.def is the tool's
// own text.
#include <math.h>

#include <fstream>
#include <regex>
#include <sstream>
#include <string>

#include <gtest/gtest.h>

#include "frame/dispatch.h"
#include "tools/accuracy/ceilings.h"
#include "tools/accuracy/rowtable.h"

namespace brenn::tools {
namespace {

const RowFacts* Facts(int* count) {
    return AllRowFacts(count);
}

bool ReadSource(const std::string& path, std::string* text) {
    std::ifstream in(std::string(BRENN_SOURCE_DIR) + "/" + path);
    if (!in) return false;
    std::ostringstream s;
    s << in.rdbuf();
    *text = s.str();
    return true;
}

bool HasKernel(int row, int slot) {
    return (&BrennDispatchTable[row].kernelLA)[slot] != nullptr;
}

bool HasAnyKernel(int row) {
    return HasKernel(row, 0) || HasKernel(row, 1) || HasKernel(row, 2);
}

TEST(AccuracyRowList, NamesEveryDispatchRowOnceInItsOrder) {
    int count = 0;
    const RowFacts* f = Facts(&count);
    ASSERT_EQ(count, frame::RowCount);
    for (int i = 0; i < count; ++i) {
        EXPECT_STREQ(f[i].row, frame::kRowInfo[i].name) << "line " << i + 1 << " of the rows";
        EXPECT_EQ(FindRowFacts(frame::kRowInfo[i].name), &f[i]);
    }
    EXPECT_EQ(FindRowFacts("sNoSuchRow"), nullptr);
}

TEST(AccuracyRowList, RowsNameTheirFamilyExactlyWhenTheyHaveKernels) {
    int count = 0;
    const RowFacts* f = Facts(&count);
    for (int i = 0; i < count; ++i)
        EXPECT_EQ(f[i].family != nullptr, HasAnyKernel(i))
            << f[i].row
            << (f[i].family ? " names a family but has no kernel"
                            : " has kernels but names no family file");
}

// The file defines kernels (ZAR_KERNEL and the macros built on it, BRENN_FLAT_LEVEL_KERNELS
// among them) and names the row, whole (sSind) or as a function argument beside its type
// (ZAR_KERNEL_OF(s, Fmod, ...), ZAR_ROW_KERNELS(Sqrt, ...), ZAR_KERNEL(t##Ceil, All)): what
// a grep for the row finds.
bool DefinesKernels(const std::string& text, const std::string& row) {
    const std::string fn = row.substr(1);
    const std::regex named("\\b" + row + "\\b|(\\b|##)" + fn + "\\s*,");
    const bool kernels = text.find("ZAR_") != std::string::npos ||
                         text.find("BRENN_FLAT_LEVEL_KERNELS") != std::string::npos;
    return kernels && std::regex_search(text, named);
}

TEST(AccuracyRowList, FamilyFilesExistAndDefineTheirRowsKernels) {
    int count = 0;
    const RowFacts* f = Facts(&count);
    for (int i = 0; i < count; ++i) {
        if (!f[i].family) continue;
        std::string text;
        if (!ReadSource(f[i].family, &text)) {
            ADD_FAILURE() << f[i].row << ": no file " << f[i].family;
            continue;
        }
        EXPECT_TRUE(DefinesKernels(text, f[i].row))
            << f[i].family << " defines no kernel of " << f[i].row;
    }
}

TEST(AccuracyCeilings, EveryImplementedSlotOfAnInexactRowHasOne) {
    int count = 0;
    const RowFacts* f = Facts(&count);
    for (int i = 0; i < count; ++i)
        for (int s = 0; s < 3; ++s) {
            int kept = 0;
            for (const CeilingLine& c : KeptCeilings())
                kept += c.row == i && c.slot == s;
            const bool wanted = HasKernel(i, s) && !IsExact(f[i]);
            EXPECT_EQ(kept, wanted ? 1 : 0)
                << f[i].row << " slot " << s
                << (wanted ? ": measure it (brenn_accuracy --row ... --write-ceilings)"
                           : ": a ceiling for a slot without kernel, or of an exact row");
        }
}

TEST(AccuracyCeilings, LieWithinTheLevelBounds) {
    int count = 0;
    const RowFacts* f = Facts(&count);
    for (const CeilingLine& c : KeptCeilings()) {
        const double bound = LevelBound(f[c.row], c.slot);
        if (c.slot == 2) {
            EXPECT_GE(c.value, bound) << f[c.row].row << " EP";
            EXPECT_LE(c.value, 53) << f[c.row].row << " EP";
        } else {
            EXPECT_LE(c.value, bound) << f[c.row].row << " slot " << c.slot;
            EXPECT_GT(c.value, 0) << f[c.row].row << " slot " << c.slot;
        }
    }
}

TEST(AccuracyCeilings, FileIsTheToolsOwnText) {
    std::string text;
    ASSERT_TRUE(ReadSource("tools/accuracy/ceilings.def", &text));
    EXPECT_EQ(text, CeilingsFileText(KeptCeilings()))
        << "ceilings.def was edited by hand; rewrite it with brenn_accuracy --write-ceilings";
}

TEST(AccuracyCeilings, MarginAboveTheWorstAndNeverPastTheBound) {
    const RowFacts& exp = *FindRowFacts("dExp");
    const RowFacts& sqrt = *FindRowFacts("sSqrt");
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 0, 0.2), 0.25);   // 0.05 ulp at least
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 0, 2.0), 2.2);    // 10 % above
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 0, 0.551), 0.61); // rounded up to 0.01
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 1, 0.98), 1.0);   // HA bound
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 0, INFINITY), 4.0);
    EXPECT_DOUBLE_EQ(CeilingFor(sqrt, 1, 0.5), 0.5);   // correctly rounded stays so
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 2, 40.26), 39.7); // 0.5 bit below, rounded down
    EXPECT_DOUBLE_EQ(CeilingFor(exp, 2, 26.3), 26.0);  // EP bound in double
    EXPECT_DOUBLE_EQ(CeilingFor(sqrt, 2, 0.0), 11.0);  // and in single
    EXPECT_TRUE(WithinLimit(0, 0.61, 0.61));
    EXPECT_FALSE(WithinLimit(0, 0.62, 0.61));
    EXPECT_TRUE(WithinLimit(2, 39.7, 39.7));
    EXPECT_FALSE(WithinLimit(2, 39.6, 39.7));
}

} // namespace
} // namespace brenn::tools
