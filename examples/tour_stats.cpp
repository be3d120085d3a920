// Tour step of the statistics service through the front-end: moments and a
// correlation matrix of generated data, every estimate asked for in one call.
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "brenn/brenn.hpp"

void TourStatistics() {
    // Three variables over 20000 observations, one observation contiguous: a noise
    // source, a variable that follows it, and one that is skewed (exponential).
    const int64_t p = 3, n = 20000;
    std::vector<double> x(p * n);
    std::mt19937_64 gen(7);
    std::normal_distribution<double> normal;
    std::exponential_distribution<double> exponential(0.5);
    for (int64_t i = 0; i < n; ++i) {
        double a = normal(gen);
        x[i * p + 0] = 10 + a;
        x[i * p + 1] = 0.8 * a + 0.6 * normal(gen);
        x[i * p + 2] = exponential(gen);
    }

    const uint64_t wanted = BRENN_SS_MEAN | BRENN_SS_2C_MOM | BRENN_SS_SKEWNESS |
                            BRENN_SS_KURTOSIS | BRENN_SS_VARIATION | BRENN_SS_COR;
    auto r = brenn::ss::compute(brenn::ss::matrix_view<double>{x, p, n}, wanted);
    if (!r) {
        std::printf("statistics: compute returned %d\n", r.stat.code);
        return;
    }
    const auto& e = r.value;
    std::printf("statistics of %lld observations:\n", static_cast<long long>(n));
    std::printf("  %-9s %10s %10s %10s %10s %10s\n", "variable", "mean", "variance", "skewness",
                "kurtosis", "variation");
    for (int64_t j = 0; j < p; ++j)
        std::printf("  %-9lld %10.4f %10.4f %10.4f %10.4f %10.4f\n", static_cast<long long>(j),
                    e.mean[j], e.central_moment2[j], e.skewness[j], e.kurtosis[j], e.variation[j]);
    std::printf("  correlation matrix:\n");
    for (int64_t j = 0; j < p; ++j)
        std::printf("    %8.4f %8.4f %8.4f\n", e.correlation[j * p], e.correlation[j * p + 1],
                    e.correlation[j * p + 2]);
    // The exponential variable has skewness 2 and excess kurtosis 6; the first two
    // correlate at 0.8.
}
