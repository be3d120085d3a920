// The cyclic tridiagonal solve of the periodic cubics, in both precisions: the residual
// of random row-dominant systems from two unknowns (corners folded onto the
// off-diagonals) to long ones (corners underflowing), the spline's rows on cells of
// very different widths (where a pivoting solve would interchange rows), and kept
// factors giving every further right-hand side the bits of a pass of its own.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <random>
#include <vector>

#include "fitting/cyclic_tridiag.h"
#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;
using brenn::fit::CyclicArrays;
using brenn::fit::CyclicFactors;
using brenn::fit::CyclicPass;
using brenn::fit::SolveCyclic;

namespace {

template <typename T>
class FittingCyclicTridiagonal : public ::testing::Test {};
TYPED_TEST_SUITE(FittingCyclicTridiagonal, Precisions, PrecisionNames);

// A cyclic system and room for its factors.
template <typename T>
struct Cyclic {
    int64_t n;
    std::vector<T> a, b, c, work;
    CyclicFactors<T> fac;
    explicit Cyclic(int64_t nIn) : n(nIn), a(n), b(n), c(n), work(5 * (n - 1)) {
        T* w = work.data();
        fac = {w, w + (n - 1), w + 2 * (n - 1), w + 3 * (n - 1), w + 4 * (n - 1), T(0)};
    }
    // The solution for r by one pass of the given kind.
    template <CyclicPass Pass>
    std::vector<T> Solve(const std::vector<T>& r) {
        std::vector<T> x(n);
        SolveCyclic<T, Pass>(n, CyclicArrays<T>{a.data(), b.data(), c.data(), r.data()}, fac,
                             x.data());
        return x;
    }
    // The largest |A x - r| over the rows, in double, against the largest sum of the
    // magnitudes of a row's terms.
    double Residual(const std::vector<T>& x, const std::vector<T>& r, double* size) const {
        double worst = 0;
        *size = 0;
        for (int64_t i = 0; i < n; ++i) {
            double left = double(a[i]) * x[(i + n - 1) % n];
            double mid = double(b[i]) * x[i];
            double right = double(c[i]) * x[(i + 1) % n];
            worst = std::max(worst, std::fabs(left + mid + right - r[i]));
            *size = std::max(*size, std::fabs(left) + std::fabs(mid) + std::fabs(right) +
                                        std::fabs(double(r[i])));
        }
        return worst;
    }
};

// Random systems whose diagonal exceeds the sum of the off-diagonal magnitudes by a
// random margin (off-diagonals of either sign), random right-hand sides.
TYPED_TEST(FittingCyclicTridiagonal, SolvesRowDominantSystemsOfEverySize) {
    using T = TypeParam;
    std::mt19937_64 rng(11);
    std::uniform_real_distribution<double> u(-1, 1);
    for (int64_t n : {2, 3, 4, 5, 17, 1000, 20000})
        for (double margin : {0.01, 1.0}) {
            Cyclic<T> s(n);
            std::vector<T> r(n);
            for (int64_t i = 0; i < n; ++i) {
                s.a[i] = static_cast<T>(u(rng));
                s.c[i] = static_cast<T>(u(rng));
                double off = std::fabs(double(s.a[i])) + std::fabs(double(s.c[i]));
                double sign = u(rng) < 0 ? -1 : 1;
                s.b[i] = static_cast<T>(sign * (off * (1 + margin) + 0.01));
                r[i] = static_cast<T>(u(rng));
            }
            std::vector<T> x = s.template Solve<CyclicPass::kFactorSolve>(r);
            double size = 0, worst = s.Residual(x, r, &size);
            EXPECT_LE(worst, 32 * kEps<T> * size) << "n " << n << " margin " << margin;
        }
}

// The periodic spline's rows a = h[i], b = 2*(h[i-1] + h[i]), c = h[i-1] on widths from
// 1e-3 to 1e3 in runs, jumps between neighbours included.
TYPED_TEST(FittingCyclicTridiagonal, SolvesSplineRowsOnUnevenCells) {
    using T = TypeParam;
    std::mt19937_64 rng(5);
    std::uniform_real_distribution<double> u(-3, 3);
    for (int64_t n : {2, 3, 9, 400}) {
        std::vector<T> h(n);
        for (int64_t i = 0; i < n; ++i)
            h[i] = static_cast<T>(std::pow(10.0, i % 7 == 3 ? -3.0 : u(rng)));
        Cyclic<T> s(n);
        std::vector<T> r(n);
        for (int64_t i = 0; i < n; ++i) {
            T hl = h[(i + n - 1) % n];
            s.a[i] = h[i];
            s.b[i] = T(2) * (hl + h[i]);
            s.c[i] = hl;
            r[i] = static_cast<T>(u(rng) * (hl + h[i]));
        }
        std::vector<T> x = s.template Solve<CyclicPass::kFactorSolve>(r);
        double size = 0, worst = s.Residual(x, r, &size);
        EXPECT_LE(worst, 32 * kEps<T> * size) << "n " << n;
    }
}

// Three right-hand sides through one kept factorization equal, bit for bit, three
// passes of their own.
TYPED_TEST(FittingCyclicTridiagonal, KeptFactorsGiveTheBitsOfSinglePasses) {
    using T = TypeParam;
    std::mt19937_64 rng(2);
    std::uniform_real_distribution<double> u(0.1, 1);
    for (int64_t n : {2, 3, 4, 300}) {
        Cyclic<T> kept(n), single(n);
        for (int64_t i = 0; i < n; ++i) {
            kept.a[i] = static_cast<T>(u(rng));
            kept.c[i] = static_cast<T>(u(rng));
            kept.b[i] = T(2) * (kept.a[i] + kept.c[i]);
        }
        single.a = kept.a;
        single.b = kept.b;
        single.c = kept.c;
        for (int k = 0; k < 3; ++k) {
            std::vector<T> r(n);
            for (auto& v : r)
                v = static_cast<T>(u(rng) - 0.5);
            std::vector<T> x = k == 0 ? kept.template Solve<CyclicPass::kFactorKeepSolve>(r)
                                      : kept.template Solve<CyclicPass::kSolve>(r);
            std::vector<T> y = single.template Solve<CyclicPass::kFactorSolve>(r);
            EXPECT_EQ(std::memcmp(x.data(), y.data(), n * sizeof(T)), 0) << "n " << n << " " << k;
        }
    }
}

} // namespace
