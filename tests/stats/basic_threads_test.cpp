// The basic compute spread over threads: the service library's pool, its serial
// threader, a team of four plain threads and no threader at all give the same
// estimates; a failure in one thread comes back as the call's status with nothing
// leaked.
#include <gtest/gtest.h>

#include <thread>
#include <vector>

#include "platform/serv.h"
#include "tests/stats/basic_harness.h"
#include "tests/support/support.h"

namespace brenn::test {
namespace {

const std::vector<ReferenceCase>& Cases() {
    static const std::vector<ReferenceCase> cases = ReadReferenceCases(BRENN_STATS_REFERENCE);
    return cases;
}

void TeamOfFour(void* context, ThreaderWorker worker) {
    std::vector<std::thread> team;
    for (int t = 1; t < 4; ++t)
        team.emplace_back(worker, t, 4, context);
    worker(0, 4, context);
    for (std::thread& t : team)
        t.join();
}
int Four() {
    return 4;
}
const threader kFour = {nullptr, nullptr, TeamOfFour, nullptr, Four};

template <typename T>
void ExpectSame(const Results<T>& a, const Results<T>& b, double tol, const std::string& what) {
    auto same = [&](const std::vector<T>& x, const std::vector<T>& y) {
        ASSERT_EQ(x.size(), y.size());
        for (size_t i = 0; i < x.size(); ++i) {
            if (std::isnan(double(x[i]))) {
                EXPECT_TRUE(std::isnan(double(y[i]))) << what;
                continue;
            }
            EXPECT_NEAR(double(x[i]), double(y[i]), tol * (1 + std::fabs(double(x[i])))) << what;
        }
    };
    for (int k = 0; k < 17; ++k)
        same(a.vectors[k], b.vectors[k]);
    same(a.cov, b.cov);
    same(a.cor, b.cor);
    same(a.cp, b.cp);
}

TEST(StatsBasicThreads, ThreadersAgree) {
    const threader* threaders[] = {brenn_serv_serial_threader(), brenn_serv_pool_threader(),
                                   &kFour};
    for (const ReferenceCase& c : Cases()) {
        if (c.n * c.p < 60000) continue; // smaller sets run on one thread anyway
        for (uint64_t method : {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B}) {
            if (method == BRENN_SS_METHOD_ONE_PASS && c.n * c.p > 2000000) continue;
            Results<double> alone;
            ASSERT_EQ(RunCase(c, method, nullptr, 1, alone), 0);
            for (const threader* thr : threaders) {
                Results<double> r;
                ASSERT_EQ(RunCase(c, method, thr, 1, r), 0);
                std::string what = "p=" + std::to_string(c.p) + " n=" + std::to_string(c.n) +
                                   " method=" + std::to_string(method);
                ExpectSame(alone, r, 1e-9, what); // variation amplifies a mean near 0
                ExpectMatches(c, r, 1e-12, (c.flags & 2) ? 1e-6 : 1e-12, false, what);
            }
        }
    }
}

TEST(StatsBasicThreads, FloatOnATeamOfFour) {
    for (const ReferenceCase& c : Cases()) {
        if (c.n < 1000000) continue;
        Results<float> alone, pooled;
        ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, nullptr, 1, alone), 0);
        ASSERT_EQ(RunCase(c, BRENN_SS_METHOD_ONE_PASS_B, &kFour, 1, pooled), 0);
        // Two float computations differ by their own roundings: both are held to numpy.
        ExpectMatches(c, alone, 1e-5, 1e-5, false, "float alone");
        ExpectMatches(c, pooled, 1e-5, 1e-5, false, "float on four threads");
    }
}

TEST(StatsBasicThreads, FailureInAThreadIsTheCallsStatus) {
    const ReferenceCase* big = nullptr;
    for (const ReferenceCase& c : Cases())
        if (c.p == 50 && c.weighted && c.hasIndices) big = &c;
    ASSERT_NE(big, nullptr);
    for (uint64_t method : {BRENN_SS_METHOD_ONE_PASS, BRENN_SS_METHOD_ONE_PASS_B}) {
        SweepAllocationFailures([&] {
            Results<double> r;
            int32_t s = RunCase(*big, method, &kFour, 1, r);
            if (s != 0) EXPECT_EQ(s, -4000);
            return s == 0;
        });
    }
}

} // namespace
} // namespace brenn::test
