// Tour step of the statistics service: moments and a correlation matrix of generated
// data, fed in two blocks the way a long data set would be.
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "brenn_stats.h"

void TourStatistics() {
    // Three variables over 20000 observations, one observation contiguous: a noise
    // source, a variable that follows it, and one that is skewed (exponential).
    const int64_t p = 3, n = 20000, half = n / 2;
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

    std::vector<double> mean(p), raw2(p), raw3(p), raw4(p), c2(p), c3(p), c4(p), skewness(p),
        kurtosis(p), variation(p), cor(p * p);
    double accumWeight[2] = {0, 0};
    int64_t storage = BRENN_SS_MATRIX_STORAGE_COLS, full = BRENN_SS_MATRIX_STORAGE_FULL;
    int64_t count = half;
    void* task = nullptr;
    if (_qesdSSNewTask(&task, &p, &count, &storage, x.data(), nullptr, nullptr, 1) != 0) return;
    __qesdSSEditMoments(task, mean.data(), raw2.data(), raw3.data(), raw4.data(), c2.data(),
                        c3.data(), c4.data());
    __qesdSSEditCovCor(task, nullptr, nullptr, nullptr, cor.data(), &full);
    _qesdSSEditTask(task, BRENN_SS_ED_SKEWNESS, skewness.data());
    _qesdSSEditTask(task, BRENN_SS_ED_KURTOSIS, kurtosis.data());
    _qesdSSEditTask(task, BRENN_SS_ED_VARIATION, variation.data());
    _qesdSSEditTask(task, BRENN_SS_ED_ACCUM_WEIGHT, accumWeight);

    const uint64_t wanted = BRENN_SS_MEAN | BRENN_SS_2C_MOM | BRENN_SS_SKEWNESS |
                            BRENN_SS_KURTOSIS | BRENN_SS_VARIATION | BRENN_SS_COR;
    // The second block is the second half of the rows; the arrays carry the state.
    int32_t status = _qesdSSBasic(task, wanted, BRENN_SS_METHOD_ONE_PASS_B, nullptr);
    if (status == 0) {
        _qesdSSEditTask(task, BRENN_SS_ED_OBSERV, x.data() + half * p);
        status = _qesdSSBasic(task, wanted, BRENN_SS_METHOD_ONE_PASS_B, nullptr);
    }
    if (status != 0) {
        std::printf("statistics: basic compute returned %d\n", status);
        _qesSSDeleteTask(&task);
        return;
    }
    std::printf("statistics of %lld observations (two blocks, weight %.0f):\n",
                static_cast<long long>(n), accumWeight[0]);
    std::printf("  %-9s %10s %10s %10s %10s %10s\n", "variable", "mean", "variance", "skewness",
                "kurtosis", "variation");
    for (int64_t j = 0; j < p; ++j)
        std::printf("  %-9lld %10.4f %10.4f %10.4f %10.4f %10.4f\n", static_cast<long long>(j),
                    mean[j], c2[j], skewness[j], kurtosis[j], variation[j]);
    std::printf("  correlation matrix:\n");
    for (int64_t j = 0; j < p; ++j)
        std::printf("    %8.4f %8.4f %8.4f\n", cor[j * p], cor[j * p + 1], cor[j * p + 2]);
    // The exponential variable has skewness 2 and excess kurtosis 6; the first two
    // correlate at 0.8.
    _qesSSDeleteTask(&task);
}
