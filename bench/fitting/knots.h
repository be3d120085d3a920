// The partition of the cubic and integration benchmarks: n knots whose steps are drawn
// from 0.5 to 1.5, scaled to run from 0 to 1.
#ifndef BRENN_BENCH_FITTING_KNOTS_H
#define BRENN_BENCH_FITTING_KNOTS_H

#include <random>
#include <vector>

inline std::vector<double> JitteredKnots(int64_t n, std::mt19937_64& rng) {
    std::uniform_real_distribution<double> u(0, 1);
    std::vector<double> x(n);
    double acc = 0;
    for (auto& v : x) {
        v = acc;
        acc += 0.5 + u(rng);
    }
    for (auto& v : x)
        v /= x.back();
    return x;
}

#endif
