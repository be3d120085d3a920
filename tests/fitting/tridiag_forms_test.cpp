// The tridiagonal forms in the sizes and shapes the cubic splines use, in both
// precisions: one, two and three unknowns, rows that need interchanges (as the
// not-a-knot end rows do), two right-hand sides at once, and the factored form against
// the one-pass form.
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <vector>

#include "platform/tridiag.h"
#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingTridiagonalForms : public ::testing::Test {};
TYPED_TEST_SUITE(FittingTridiagonalForms, Precisions, PrecisionNames);

template <typename T>
void OnePass(int64_t n, int64_t nrhs, T* dl, T* d, T* du, T* b, int64_t* info) {
    if constexpr (sizeof(T) == sizeof(double))
        ddtsvb_4dfl(&n, &nrhs, dl, d, du, b, info);
    else
        sdtsvb_4dfl(&n, &nrhs, dl, d, du, b, info);
}

template <typename T>
void Factored(int64_t n, int64_t nrhs, T* dl, T* d, T* du, T* b, int64_t* info) {
    std::vector<T> du2(n > 2 ? n - 2 : 1);
    std::vector<int64_t> ipiv(n);
    if constexpr (sizeof(T) == sizeof(double)) {
        ddttrfb_4dfl(&n, dl, d, du, du2.data(), ipiv.data(), info);
        if (*info == 0) ddttrsb_4dfl(&n, &nrhs, dl, d, du, du2.data(), ipiv.data(), b, info);
    } else {
        sdttrfb_4dfl(&n, dl, d, du, du2.data(), ipiv.data(), info);
        if (*info == 0) sdttrsb_4dfl(&n, &nrhs, dl, d, du, du2.data(), ipiv.data(), b, info);
    }
}

// Both forms on systems of n unknowns whose diagonal is `weight` times a random number
// in [-1, 1] (below 1: interchanges), two right-hand sides; the residual of each
// solution, in double, against the size of the terms.
TYPED_TEST(FittingTridiagonalForms, BothFormsSolveSmallAndPivotingSystems) {
    using T = TypeParam;
    std::mt19937_64 rng(7);
    std::uniform_real_distribution<double> u(-1, 1);
    for (int64_t n : {1, 2, 3, 4, 17, 1000})
        for (double weight : {4.0, 0.1})
            for (int form = 0; form < 2; ++form) {
                int64_t off = n > 1 ? n - 1 : 0;
                std::vector<T> dl(off), d(n), du(off), b(2 * n);
                for (auto& v : dl)
                    v = static_cast<T>(u(rng));
                for (auto& v : du)
                    v = static_cast<T>(u(rng));
                for (auto& v : d)
                    v = static_cast<T>(weight * u(rng) + (weight > 1 ? 3 : 0));
                for (auto& v : b)
                    v = static_cast<T>(u(rng));
                std::vector<T> dl0 = dl, d0 = d, du0 = du, x = b;
                int64_t info = -1;
                (form ? Factored<T> : OnePass<T>)(n, 2, dl.data(), d.data(), du.data(), x.data(),
                                                  &info);
                ASSERT_EQ(info, 0) << n;
                for (int64_t j = 0; j < 2; ++j) {
                    const T* xj = x.data() + j * n;
                    double worst = 0, size = 0;
                    for (int64_t i = 0; i < n; ++i) {
                        double r = double(d0[i]) * xj[i] - b[j * n + i];
                        double s = std::fabs(double(d0[i]) * xj[i]) + std::fabs(b[j * n + i]);
                        if (i > 0) {
                            r += double(dl0[i - 1]) * xj[i - 1];
                            s += std::fabs(double(dl0[i - 1]) * xj[i - 1]);
                        }
                        if (i + 1 < n) {
                            r += double(du0[i]) * xj[i + 1];
                            s += std::fabs(double(du0[i]) * xj[i + 1]);
                        }
                        worst = std::max(worst, std::fabs(r));
                        size = std::max(size, s);
                    }
                    EXPECT_LE(worst, 64 * kEps<T> * size)
                        << "n " << n << " weight " << weight << " form " << form << " rhs " << j;
                }
            }
}

// A singular system (a zero row) is reported by a zero pivot, after the interchange that
// moves it to the last row, in both precisions.
TYPED_TEST(FittingTridiagonalForms, ZeroPivotIsReported) {
    using T = TypeParam;
    for (int form = 0; form < 2; ++form) {
        std::vector<T> dl = {T(0), T(1)}, d = {T(1), T(0), T(1)}, du = {T(0), T(0)};
        std::vector<T> b = {T(1), T(1), T(1)};
        int64_t info = 0;
        (form ? Factored<T> : OnePass<T>)(3, 1, dl.data(), d.data(), du.data(), b.data(), &info);
        EXPECT_EQ(info, 3) << form;
    }
}

} // namespace
