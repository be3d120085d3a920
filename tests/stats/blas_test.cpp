// The BLAS forwards of the service library against plain loops on small matrices,
// in the column-major, by-reference convention the statistics kernels use.
#include <gtest/gtest.h>

#include <vector>

#include "platform/blas.h"

namespace {

template <typename T>
void CheckForwards(void (*syrk)(const char*, const char*, const int*, const int*, const T*,
                                const T*, const int*, const T*, T*, const int*),
                   void (*gemm)(const char*, const char*, const int*, const int*, const int*,
                                const T*, const T*, const int*, const T*, const int*, const T*, T*,
                                const int*),
                   void (*syr)(const char*, const int*, const T*, const T*, const int*, T*,
                               const int*)) {
    const int n = 3, k = 5;
    std::vector<T> a(n * k), b(n * k);
    for (int i = 0; i < n * k; ++i) {
        a[i] = T(i % 7) - 2;
        b[i] = T((3 * i) % 5) + 1;
    }
    // Lower triangle of A A' with beta = 1 on a matrix of ones; upper stays untouched.
    std::vector<T> c(n * n, T(1));
    const T one = 1, two = 2;
    syrk("L", "N", &n, &k, &one, a.data(), &n, &one, c.data(), &n);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) {
            T want = 1;
            if (i >= j)
                for (int l = 0; l < k; ++l)
                    want += a[i + l * n] * a[j + l * n];
            EXPECT_EQ(c[i + j * n], want) << i << "," << j;
        }
    // A B' scaled by 2 into a zeroed matrix.
    std::vector<T> d(n * n, T(0));
    const T zero = 0;
    gemm("N", "T", &n, &n, &k, &two, a.data(), &n, b.data(), &n, &zero, d.data(), &n);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i) {
            T want = 0;
            for (int l = 0; l < k; ++l)
                want += a[i + l * n] * b[j + l * n];
            EXPECT_EQ(d[i + j * n], 2 * want);
        }
    // Rank-one update on the upper triangle with a stride of 2 in x.
    std::vector<T> e(n * n, T(0));
    T x[6] = {1, 9, 2, 9, 3, 9};
    const int inc = 2;
    syr("U", &n, &two, x, &inc, e.data(), &n);
    for (int j = 0; j < n; ++j)
        for (int i = 0; i < n; ++i)
            EXPECT_EQ(e[i + j * n], i <= j ? 2 * x[2 * i] * x[2 * j] : T(0));
}

TEST(ServiceBlas, Forwards) {
    CheckForwards<double>(brenn_blas_xdsyrk, brenn_blas_xdgemm, brenn_blas_xdsyr);
    CheckForwards<float>(brenn_blas_xssyrk, brenn_blas_xsgemm, brenn_blas_xssyr);
}

} // namespace
