// Tour step of the statistics service through the front-end: moments and a
// correlation matrix of generated data, every estimate asked for in one call; then
// quartiles, MAD and streaming quantiles of the same data.
#include <cmath>
#include <cstdio>
#include <random>
#include <vector>

#include "brenn/brenn.hpp"

// Quartiles, the median absolute deviation and streaming quantiles of the same data,
// through the statistics entries of the kernel library (the front-end's one call
// covers the moments only).
static void TourOrderStatistics(std::vector<double>& x, int64_t p, int64_t n) {
    int64_t layout = BRENN_SS_MATRIX_STORAGE_COLS, m = 3;
    double orders[3] = {0.25, 0.5, 0.75}, quartiles[9], mad[3];
    void* task = nullptr;
    if (_qesdSSNewTask(&task, &p, &n, &layout, x.data(), nullptr, nullptr, 1) != 0) return;
    __qesdSSEditQuantiles(task, &m, orders, quartiles, nullptr, nullptr);
    int s = _qesdSSQuantiles(task, BRENN_SS_QUANTS, BRENN_SS_METHOD_FAST, nullptr);
    if (s == 0) s = _qesdSSMAD(task, BRENN_SS_MDAD, BRENN_SS_METHOD_FAST, mad, nullptr);
    _qesSSDeleteTask(&task);
    if (s != 0) {
        std::printf("  quantiles: status %d\n", s);
        return;
    }
    std::printf("  %-9s %10s %10s %10s %10s\n", "variable", "Q1", "median", "Q3", "MAD");
    for (int64_t j = 0; j < p; ++j)
        std::printf("  %-9lld %10.4f %10.4f %10.4f %10.4f\n", static_cast<long long>(j),
                    quartiles[3 * j], quartiles[3 * j + 1], quartiles[3 * j + 2], mad[j]);
    // The normal variable's MAD is 0.6745 sigma; the exponential's median is 2 ln 2.

    // Streaming: the exponential variable arrives in four blocks; a summary with
    // accuracy 0.01 answers after each, within 1 % of the ranks, in bounded memory.
    int64_t one = 1, block = n / 4, rows = BRENN_SS_MATRIX_STORAGE_ROWS;
    double eps = 0.01, median = 0.5, streamed = 0;
    std::vector<double> values(n);
    for (int64_t i = 0; i < n; ++i)
        values[i] = x[i * p + 2];
    if (_qesdSSNewTask(&task, &one, &block, &rows, values.data(), nullptr, nullptr, 1) != 0) return;
    __qesdSSEditStreamQuantiles(task, &one, &median, &streamed, &one, &eps);
    std::printf("  streaming median of variable 2 (eps 0.01):");
    for (int64_t b = 0; b < 4; ++b) {
        _qesdSSEditTask(task, BRENN_SS_ED_OBSERV, values.data() + b * block);
        if (_qesdSSStreamQuantiles(task, BRENN_SS_STREAM_QUANTS, BRENN_SS_METHOD_STREAM_READ,
                                   nullptr) != 0)
            break;
        std::printf(" %.4f", streamed);
    }
    std::printf(" (exact %.4f)\n", quartiles[7]);
    _qesSSDeleteTask(&task);
}

// Outliers: the first two variables with every thousandth observation moved 10 standard
// deviations up in the second, nominated by BACON (weight 0) with its defaults, through
// the front-end's C++ call.
static void TourOutliers(const std::vector<double>& x, int64_t p, int64_t n) {
    int64_t flagged = 0, planted = 0;
    std::vector<double> y(2 * n);
    for (int64_t i = 0; i < n; ++i)
        y[2 * i] = x[i * p], y[2 * i + 1] = x[i * p + 1] + (i % 1000 == 0 ? 10 : 0);
    const auto weights = brenn::ss::outliers(brenn::ss::matrix_view<double>{y, 2, n});
    for (int64_t i = 0; i < static_cast<int64_t>(weights.value.size()); ++i) {
        flagged += weights.value[i] == 0;
        planted += weights.value[i] == 0 && i % 1000 == 0;
    }
    std::printf("  outliers (BACON): status %d, %lld nominated, %lld of the %lld planted\n",
                weights.stat.code, static_cast<long long>(flagged), static_cast<long long>(planted),
                static_cast<long long>((n + 999) / 1000));
}

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
    TourOrderStatistics(x, p, n);
    TourOutliers(x, p, n);
}
