// The LAPACK forwards of the service library, both precisions, checked by what each
// result must satisfy: L L' gives A back, solves and the inverse give the identity's
// residuals, eigenpairs satisfy A v = lambda v, and a matrix that is not positive
// definite reports the failing minor.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "platform/lapack.h"

namespace {

constexpr int kN = 4;

// A symmetric positive definite matrix: B'B + n I for a fixed B, column-major.
template <typename T>
std::vector<T> Spd() {
    std::vector<T> a(kN * kN);
    for (int i = 0; i < kN; ++i)
        for (int j = 0; j < kN; ++j) {
            T s = i == j ? T(kN) : T(0);
            for (int k = 0; k < kN; ++k)
                s += T((i * 3 + k * 5) % 7 - 3) * T((j * 3 + k * 5) % 7 - 3);
            a[i + j * kN] = s;
        }
    return a;
}

template <typename T>
struct Lapack {
    void (*potrf)(const char*, const int*, T*, const int*, int*);
    void (*potrs)(const char*, const int*, const int*, const T*, const int*, T*, const int*, int*);
    void (*potri)(const char*, const int*, T*, const int*, int*);
    void (*trtrs)(const char*, const char*, const char*, const int*, const int*, const T*,
                  const int*, T*, const int*, int*);
    void (*syevd)(const char*, const char*, const int*, T*, const int*, T*, T*, const int*, int*,
                  const int*, int*);
};

template <typename T>
void Check(Lapack<T> f, T tol) {
    const int n = kN, one = 1;
    int info = -1;
    const std::vector<T> a = Spd<T>();
    for (const char* uplo : {"L", "U"}) {
        const bool lower = *uplo == 'L';
        std::vector<T> c = a;
        f.potrf(uplo, &n, c.data(), &n, &info);
        ASSERT_EQ(info, 0);
        // The factor's product gives A back.
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
                T s = 0;
                for (int k = 0; k < n; ++k) {
                    T l_ik = lower ? (k <= i ? c[i + k * n] : 0) : (k <= i ? c[k + i * n] : 0);
                    T l_jk = lower ? (k <= j ? c[j + k * n] : 0) : (k <= j ? c[k + j * n] : 0);
                    s += l_ik * l_jk;
                }
                EXPECT_NEAR(s, a[i + j * n], tol * 10) << uplo << i << j;
            }
        // A x = b through the factor, and through two triangular solves.
        std::vector<T> b = {1, -2, 3, 0.5}, x = b, y = b;
        f.potrs(uplo, &n, &one, c.data(), &n, x.data(), &n, &info);
        ASSERT_EQ(info, 0);
        f.trtrs(uplo, lower ? "N" : "T", "N", &n, &one, c.data(), &n, y.data(), &n, &info);
        f.trtrs(uplo, lower ? "T" : "N", "N", &n, &one, c.data(), &n, y.data(), &n, &info);
        ASSERT_EQ(info, 0);
        for (int i = 0; i < n; ++i) {
            T s = 0;
            for (int k = 0; k < n; ++k)
                s += a[i + k * n] * x[k];
            EXPECT_NEAR(s, b[i], tol);
            EXPECT_NEAR(y[i], x[i], tol);
        }
        // The inverse from the factor, on the named triangle.
        f.potri(uplo, &n, c.data(), &n, &info);
        ASSERT_EQ(info, 0);
        for (int i = 0; i < n; ++i)
            for (int j = 0; j < n; ++j) {
                T s = 0;
                for (int k = 0; k < n; ++k) {
                    bool stored = lower ? k >= j : k <= j;
                    s += a[i + k * n] * (stored ? c[k + j * n] : c[j + k * n]);
                }
                EXPECT_NEAR(s, i == j ? T(1) : T(0), tol);
            }
    }
    // A zero diagonal entry in a triangular solve and a matrix with a negative minor.
    std::vector<T> tri = {1, 0, 0, 0}, rhs = {1, 1};
    int two = 2;
    f.trtrs("L", "N", "N", &two, &one, tri.data(), &two, rhs.data(), &two, &info);
    EXPECT_EQ(info, 2);
    std::vector<T> indefinite = {1, 2, 2, 1};
    f.potrf("L", &two, indefinite.data(), &two, &info);
    EXPECT_EQ(info, 2);
    // Eigenpairs, after a workspace query.
    std::vector<T> v = a, w(n);
    T query = 0;
    int iquery = 0, minus = -1;
    f.syevd("V", "L", &n, v.data(), &n, w.data(), &query, &minus, &iquery, &minus, &info);
    ASSERT_EQ(info, 0);
    int lwork = int(query), liwork = iquery;
    std::vector<T> work(lwork);
    std::vector<int> iwork(liwork);
    f.syevd("V", "L", &n, v.data(), &n, w.data(), work.data(), &lwork, iwork.data(), &liwork,
            &info);
    ASSERT_EQ(info, 0);
    for (int e = 0; e < n; ++e) {
        if (e > 0) EXPECT_LE(w[e - 1], w[e]);
        for (int i = 0; i < n; ++i) {
            T s = 0;
            for (int k = 0; k < n; ++k)
                s += a[i + k * n] * v[k + e * n];
            EXPECT_NEAR(s, w[e] * v[i + e * n], tol * 10);
        }
    }
}

TEST(Lapack, Double) {
    Check<double>({brenn_lapack_xdpotrf, brenn_lapack_xdpotrs, brenn_lapack_xdpotri,
                   brenn_lapack_xdtrtrs, brenn_lapack_xdsyevd},
                  1e-12);
}

TEST(Lapack, Single) {
    Check<float>({brenn_lapack_xspotrf, brenn_lapack_xspotrs, brenn_lapack_xspotri,
                  brenn_lapack_xstrtrs, brenn_lapack_xssyevd},
                 2e-4f);
}

} // namespace
