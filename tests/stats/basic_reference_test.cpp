// The basic compute against numpy on random data: both layouts, with and without
// weights and indices, p from 1 to 50, n from 1 to a million, both precisions and the
// three accumulating methods, whole or fed in blocks.
#include <gtest/gtest.h>

#include "tests/stats/basic_harness.h"

namespace brenn::test {
namespace {

const std::vector<ReferenceCase>& Cases() {
    static const std::vector<ReferenceCase> cases = ReadReferenceCases(BRENN_STATS_REFERENCE);
    return cases;
}

std::string Describe(const ReferenceCase& c, uint64_t method, int blocks) {
    return "p=" + std::to_string(c.p) + " n=" + std::to_string(c.n) +
           (c.layout == BRENN_SS_MATRIX_STORAGE_ROWS ? " rows" : " cols") +
           (c.weighted ? " weighted" : "") + (c.hasIndices ? " indices" : "") +
           (c.flags & 2 ? " offset" : "") + " method=" + std::to_string(method) +
           " blocks=" + std::to_string(blocks);
}

TEST(StatsBasicReference, CasesAreThere) {
    ASSERT_GT(Cases().size(), 50u) << "reference file " << BRENN_STATS_REFERENCE;
}

TEST(StatsBasicReference, DoubleMatchesNumpy) {
    for (const ReferenceCase& c : Cases())
        for (uint64_t method :
             {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B, BRENN_SS_METHOD_RAW_FIRST}) {
            // The one-observation-at-a-time path is slow on a million rows of 3.
            if (method == BRENN_SS_METHOD_ONE_PASS && c.n * c.p > 2000000) continue;
            Results<double> r;
            ASSERT_EQ(RunCase(c, method, nullptr, 1, r), 0) << Describe(c, method, 1);
            double central = (c.flags & 2) ? 1e-6 : 1e-12;
            ExpectMatches(c, r, 1e-12, central, method == BRENN_SS_METHOD_RAW_FIRST,
                          Describe(c, method, 1));
        }
}

TEST(StatsBasicReference, SingleMatchesNumpy) {
    for (const ReferenceCase& c : Cases()) {
        if (c.flags & 2) continue; // an offset of 1e9 is below a float's resolution of noise
        for (uint64_t method : {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B}) {
            if (method == BRENN_SS_METHOD_ONE_PASS && c.n * c.p > 2000000) continue;
            // numpy's values are of the double data; the float data differ from it by
            // their rounding, which the estimates here carry as well.
            Results<float> r;
            ASSERT_EQ(RunCase(c, method, nullptr, 1, r), 0) << Describe(c, method, 1);
            ExpectMatches(c, r, 1e-5, 1e-5, false, Describe(c, method, 1));
        }
    }
}

// Feeding the data in 2 and 7 blocks gives what one call gives.
TEST(StatsBasicReference, BlocksEqualOneCall) {
    for (const ReferenceCase& c : Cases()) {
        if (c.n > 100000) continue;
        for (uint64_t method :
             {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B, BRENN_SS_METHOD_RAW_FIRST}) {
            for (int blocks : {2, 7}) {
                Results<double> r;
                ASSERT_EQ(RunCase(c, method, nullptr, blocks, r), 0) << Describe(c, method, blocks);
                double central = (c.flags & 2) ? 1e-6 : 1e-12;
                ExpectMatches(c, r, 1e-12, central, method == BRENN_SS_METHOD_RAW_FIRST,
                              Describe(c, method, blocks));
            }
        }
    }
}

} // namespace
} // namespace brenn::test
