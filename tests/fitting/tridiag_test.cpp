// The service library's tridiagonal solvers: residuals on random and diagonally weak
// systems (which need row interchanges), agreement with LAPACK's dgtsv, the factored
// form for several right-hand sides, and the zero-pivot report.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "platform/tridiag.h"

extern "C" void dgtsv_(const int* n, const int* nrhs, double* dl, double* d, double* du, double* b,
                       const int* ldb, int* info);

namespace {

struct System {
    std::vector<double> dl, d, du, b;
};

System Random(int64_t n, uint64_t seed, double diagonal) {
    std::mt19937_64 rng(seed);
    std::uniform_real_distribution<double> u(-1, 1);
    System s;
    s.dl.resize(n > 1 ? n - 1 : 0);
    s.du.resize(s.dl.size());
    s.d.resize(n);
    s.b.resize(n);
    for (auto& v : s.dl)
        v = u(rng);
    for (auto& v : s.du)
        v = u(rng);
    for (auto& v : s.d)
        v = diagonal * u(rng);
    for (auto& v : s.b)
        v = u(rng);
    return s;
}

double Residual(const System& s, const std::vector<double>& x) {
    int64_t n = s.d.size();
    double worst = 0;
    for (int64_t i = 0; i < n; ++i) {
        double r = s.d[i] * x[i] - s.b[i];
        if (i > 0) r += s.dl[i - 1] * x[i - 1];
        if (i + 1 < n) r += s.du[i] * x[i + 1];
        worst = std::max(worst, std::fabs(r));
    }
    return worst;
}

TEST(FittingTridiagonal, SolvesAndMatchesLapack) {
    for (int64_t n : {1, 2, 3, 10, 1000}) {
        for (double diagonal : {4.0, 0.1}) { // dominant, and weak enough to pivot
            System s = Random(n, n * 7 + (diagonal > 1), diagonal);
            System mine = s, lapack = s;
            int64_t one = 1, info = -1;
            ddtsvb_4dfl(&n, &one, mine.dl.data(), mine.d.data(), mine.du.data(), mine.b.data(),
                        &info);
            ASSERT_EQ(info, 0);
            EXPECT_LT(Residual(s, mine.b), 1e-9) << n;
            int ni = static_cast<int>(n), nr = 1, ld = ni, li = 0;
            dgtsv_(&ni, &nr, lapack.dl.data(), lapack.d.data(), lapack.du.data(), lapack.b.data(),
                   &ld, &li);
            ASSERT_EQ(li, 0);
            for (int64_t i = 0; i < n; ++i)
                EXPECT_NEAR(mine.b[i], lapack.b[i], 1e-12 * (1 + std::fabs(lapack.b[i])));
        }
    }
}

TEST(FittingTridiagonal, FactorOnceSolveMany) {
    int64_t n = 300, nrhs = 3;
    System s = Random(n, 5, 0.2);
    std::vector<double> dl = s.dl, d = s.d, du = s.du, du2(n), rhs(n * nrhs);
    std::vector<int64_t> ipiv(n);
    std::mt19937_64 rng(6);
    std::uniform_real_distribution<double> u(-1, 1);
    for (auto& v : rhs)
        v = u(rng);
    std::vector<double> b = rhs;
    int64_t info = -1;
    ddttrfb_4dfl(&n, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), &info);
    ASSERT_EQ(info, 0);
    ddttrsb_4dfl(&n, &nrhs, dl.data(), d.data(), du.data(), du2.data(), ipiv.data(), b.data(),
                 &info);
    ASSERT_EQ(info, 0);
    for (int64_t j = 0; j < nrhs; ++j) {
        System one = s;
        one.b.assign(rhs.begin() + j * n, rhs.begin() + (j + 1) * n);
        EXPECT_LT(Residual(one, std::vector<double>(b.begin() + j * n, b.begin() + (j + 1) * n)),
                  1e-9);
    }
    // Single precision twins.
    std::vector<float> fdl(s.dl.begin(), s.dl.end()), fd(s.d.begin(), s.d.end()),
        fdu(s.du.begin(), s.du.end()), fb(s.b.begin(), s.b.end());
    int64_t oneRhs = 1;
    sdtsvb_4dfl(&n, &oneRhs, fdl.data(), fd.data(), fdu.data(), fb.data(), &info);
    ASSERT_EQ(info, 0);
    EXPECT_LT(Residual(s, std::vector<double>(fb.begin(), fb.end())),
              1e-2); // float data of a weak system
}

TEST(FittingTridiagonal, ReportsAZeroPivot) {
    int64_t n = 3, one = 1, info = 0;
    double dl[2] = {0, 0}, d[3] = {1, 0, 1}, du[2] = {0, 0}, b[3] = {1, 1, 1};
    ddtsvb_4dfl(&n, &one, dl, d, du, b, &info);
    EXPECT_EQ(info, 2);
    double dl2[2] = {0, 0}, d2[3] = {1, 1, 0}, du2v[2] = {0, 0}, fill[1];
    int64_t ipiv[3];
    ddttrfb_4dfl(&n, dl2, d2, du2v, fill, ipiv, &info);
    EXPECT_EQ(info, 3);
}

} // namespace
