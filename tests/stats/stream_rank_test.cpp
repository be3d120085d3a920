// Streaming quantiles over 10^7 observations of five kinds (normal, ascending,
// descending, heavy ties, constant) at accuracies 0.1, 0.01 and 0.001, read at ten
// points: each answer's ranks in the sorted data so far must meet [bN - eps N,
// bN + eps N]. Prints the most entries held against (1/eps) log2(eps N).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdio>

#include "tests/stats/stream_feeder.h"

namespace brenn::test {
namespace {

constexpr int64_t kN = 10000000, kPoints = 10;

TEST(StreamQuantiles, RankWithinEpsAtTenPoints) {
    const char* kinds[] = {"normal", "ascending", "descending", "heavy ties", "constant"};
    for (int kind = 0; kind < 5; ++kind) {
        std::vector<double> x = Kind(kind, kN);
        Feeder<double> f[3] = {Feeder<double>(0.1), Feeder<double>(0.01), Feeder<double>(0.001)};
        double worstShare = 0;
        for (int64_t point = 1; point <= kPoints; ++point) {
            const int64_t from = (point - 1) * kN / kPoints, to = point * kN / kPoints;
            std::vector<double> sorted(x.begin(), x.begin() + to);
            std::sort(sorted.begin(), sorted.end());
            for (Feeder<double>& fe : f) {
                ASSERT_EQ(fe.Feed(x, from, to, true), 0);
                const double eps = fe.eps, N = double(to);
                for (int k = 0; k < kOrders; ++k) {
                    const double v = fe.out[k];
                    const double lo =
                        std::lower_bound(sorted.begin(), sorted.end(), v) - sorted.begin();
                    const double hi =
                        std::upper_bound(sorted.begin(), sorted.end(), v) - sorted.begin() - 1;
                    const double target = kOrderValues[k] * N;
                    EXPECT_TRUE(hi >= target - eps * N && lo <= target + eps * N)
                        << kinds[kind] << " eps " << eps << " N " << to << " order "
                        << kOrderValues[k] << " ranks " << lo << ".." << hi;
                }
                const double share = fe.Entries() / (std::log2(eps * N) / eps);
                worstShare = std::max(worstShare, share);
            }
        }
        std::printf("%s: entries held at most %.1f x (1/eps) log2(eps N)\n", kinds[kind],
                    worstShare);
    }
}

} // namespace
} // namespace brenn::test
