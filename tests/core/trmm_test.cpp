// The triangular products of the service library against plain loops, both precisions:
// the general trmm forward in every side, triangle, transposition and diagonal, and the
// left products of the generators with a full or packed triangle, the packed one also
// past its stack square and with no memory to unpack into.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/blas.h"

namespace {

// A(i, j) of an order-m column-major triangle, zero outside it, 1 on a unit diagonal.
template <typename T>
T Tri(const std::vector<T>& a, int m, bool upper, bool unit, int i, int j) {
    if (upper ? i > j : i < j) return 0;
    if (unit && i == j) return 1;
    return a[i + j * m];
}

template <typename T>
std::vector<T> Filled(size_t n, int seed) {
    std::vector<T> v(n);
    for (size_t i = 0; i < n; ++i)
        v[i] = T(int((i * 37 + seed * 11) % 17) - 8) / T(4);
    return v;
}

template <typename T>
struct Forms {
    void (*general)(const char*, const char*, const char*, const char*, const int*, const int*,
                    const T*, const T*, const int*, T*, const int*);
    void (*left)(const char*, const char*, const int*, const int*, const T*, const int*, T*,
                 const int*);
    void (*packed)(const char*, const char*, const int*, const int*, const T*, T*, const int*);
};

template <typename T>
void ExpectForms(Forms<T> f) {
    const int m = 5, n = 3;
    const T alpha = T(0.5);
    for (const char* side : {"L", "R"})
        for (const char* uplo : {"U", "L"})
            for (const char* trans : {"N", "T"})
                for (const char* diag : {"N", "U"}) {
                    const bool left = *side == 'L';
                    const int k = left ? m : n; // order of A
                    std::vector<T> a = Filled<T>(k * k, 1), b = Filled<T>(m * n, 2), c = b;
                    f.general(side, uplo, trans, diag, &m, &n, &alpha, a.data(), &k, b.data(), &m);
                    for (int i = 0; i < m; ++i)
                        for (int j = 0; j < n; ++j) {
                            T want = 0;
                            for (int l = 0; l < k; ++l) {
                                auto at = [&](int r, int s) {
                                    return *trans == 'T'
                                               ? Tri(a, k, *uplo == 'U', *diag == 'U', s, r)
                                               : Tri(a, k, *uplo == 'U', *diag == 'U', r, s);
                                };
                                want += left ? at(i, l) * c[l + j * m] : c[i + l * m] * at(l, j);
                            }
                            EXPECT_EQ(b[i + j * m], alpha * want)
                                << side << uplo << trans << diag << " " << i << "," << j;
                        }
                }
    // The left products, full and packed, against the general form; orders either side
    // of the packed product's stack square, and the packed one with no memory.
    for (int order : {1, 4, 70})
        for (const char* uplo : {"U", "L"})
            for (const char* trans : {"N", "T"})
                for (int fail : {0, 1}) {
                    if (fail && order <= 64) continue;
                    const int cols = 6;
                    std::vector<T> a = Filled<T>(order * order, 3), b = Filled<T>(order * cols, 4);
                    std::vector<T> ap;
                    for (int j = 0; j < order; ++j)
                        for (int i = *uplo == 'U' ? 0 : j; i <= (*uplo == 'U' ? j : order - 1); ++i)
                            ap.push_back(a[i + j * order]);
                    std::vector<T> want = b, full = b, packed = b;
                    const T one = 1;
                    f.general("L", uplo, trans, "N", &order, &cols, &one, a.data(), &order,
                              want.data(), &order);
                    f.left(uplo, trans, &order, &cols, a.data(), &order, full.data(), &order);
                    if (fail) brenn_serv_fail_allocation(1);
                    f.packed(uplo, trans, &order, &cols, ap.data(), packed.data(), &order);
                    if (fail) EXPECT_EQ(brenn_serv_fail_allocation(0), 0);
                    EXPECT_EQ(full, want) << order << uplo << trans;
                    for (size_t i = 0; i < want.size(); ++i)
                        ASSERT_NEAR(packed[i], want[i], T(1e-4) * (1 + std::abs(want[i])))
                            << order << uplo << trans << fail << " " << i;
                }
}

TEST(CoreTrmm, ProductsAgreeWithLoops) {
    ExpectForms<double>({brenn_blas_xdtrmm_4zar, brenn_blas4zar_dtrmm, brenn_blas4zar_dptrmm});
    ExpectForms<float>({brenn_blas_xstrmm_4zar, brenn_blas4zar_strmm, brenn_blas4zar_sptrmm});
}

} // namespace
