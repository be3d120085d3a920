// GaussianMV, both precisions: every storage form equals a + T z with z the Gaussian
// method's variates from a copy of the stream, whatever the dimension (1, the
// block-splitting sizes, past the packed product's stack square), the part of a full
// factor above the diagonal never read, and failures with the caller's settings.
#include <cmath>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "brenn_rng.h"
#include "tests/rng/caller_settings.h"
#include "tests/rng/toy_brng.h"

namespace {

using namespace brenn::test;

int32_t MV(int32_t m, void* s, int32_t n, double* r, int32_t d, int32_t st, const double* a,
           const double* t) {
    return _qesdRngGaussianMV(m, s, n, r, d, st, a, t);
}
int32_t MV(int32_t m, void* s, int32_t n, float* r, int32_t d, int32_t st, const float* a,
           const float* t) {
    return _qessRngGaussianMV(m, s, n, r, d, st, a, t);
}
int32_t Z(int32_t m, void* s, int32_t n, double* r) {
    return _qesdRngGaussian(m, s, n, r, 0, 1);
}
int32_t Z(int32_t m, void* s, int32_t n, float* r) {
    return _qessRngGaussian(m, s, n, r, 0, 1);
}

// A lower factor with entries of both signs; the full form holds NaN above the
// diagonal, which must never be read.
template <typename T>
struct Factor {
    int32_t d;
    std::vector<T> lower, full, packed, diagonal, mean;
    explicit Factor(int32_t dim) : d(dim), lower(dim * dim), full(dim * dim), mean(dim) {
        for (int32_t i = 0; i < d; ++i) {
            mean[i] = T(i % 5) - T(2);
            for (int32_t j = 0; j <= i; ++j) {
                lower[i * d + j] = i == j ? T(1) + T(i % 3) : T(((i * 7 + j * 3) % 11) - 5) / T(8);
                packed.push_back(lower[i * d + j]);
            }
            diagonal.push_back(lower[i * d + i]);
            for (int32_t j = 0; j < d; ++j)
                full[i * d + j] = j <= i ? lower[i * d + j] : std::numeric_limits<T>::quiet_NaN();
        }
    }
    const T* Storage(int32_t st) const {
        return st == QES_RNG_STORAGE_FULL     ? full.data()
               : st == QES_RNG_STORAGE_PACKED ? packed.data()
                                              : diagonal.data();
    }
};

template <typename T>
void ExpectProducts() {
    const T tolerance = sizeof(T) == 8 ? T(1e-12) : T(2e-5);
    for (int32_t d : {1, 3, 10, 70})
        for (int32_t st : {QES_RNG_STORAGE_FULL, QES_RNG_STORAGE_PACKED, QES_RNG_STORAGE_DIAGONAL})
            for (int32_t method : {0, 1}) {
                const Factor<T> f(d);
                // Enough vectors to cross the 65536-element block.
                const int32_t n = d == 1 ? 70001 : 65536 / d + 3;
                void* s = NewSeeded(QES_BRNG_MT19937, 3 + d);
                void* t = CopyOf(s);
                std::vector<T> r(size_t(n) * d + 1, T(-99)), z(size_t(n) * d);
                ASSERT_EQ(MV(method, s, n, r.data(), d, st, f.mean.data(), f.Storage(st)), 0);
                ASSERT_EQ(Z(method, t, n * d, z.data()), 0);
                for (int32_t k = 0; k < n; k += (k < 50 ? 1 : 97))
                    for (int32_t i = 0; i < d; ++i) {
                        T want = f.mean[i];
                        if (st == QES_RNG_STORAGE_DIAGONAL)
                            want += f.diagonal[i] * z[size_t(k) * d + i];
                        else
                            for (int32_t j = 0; j <= i; ++j)
                                want += f.lower[i * d + j] * z[size_t(k) * d + j];
                        ASSERT_NEAR(r[size_t(k) * d + i], want, tolerance * (1 + std::fabs(want)))
                            << "d " << d << " storage " << st << " k " << k << " i " << i;
                    }
                EXPECT_EQ(r[size_t(n) * d], T(-99));
                ExpectInStepAndDelete(s, t);
            }
}

TEST(RngGaussianMV, EachStorageIsMeanPlusFactorTimesZ) {
    ExpectProducts<double>();
    ExpectProducts<float>();
}

template <typename T>
void ExpectFailures() {
    const Factor<T> f(4);
    for (int32_t st : {QES_RNG_STORAGE_FULL, QES_RNG_STORAGE_PACKED, QES_RNG_STORAGE_DIAGONAL}) {
        CallerSettings settings;
        settings.Set();
        void* s = NewStepStream(500);
        std::vector<T> r(4 * 1000);
        EXPECT_EQ(MV(0, s, 1000, r.data(), 4, st, f.mean.data(), f.Storage(st)),
                  QES_RNG_STATUS_RDRAND_FAILED);
        settings.Expect("GaussianMV");
        __qesDeleteStream(&s);
    }
    // n = 0 takes nothing.
    void* s = NewSeeded(QES_BRNG_MT19937, 1);
    void* t = CopyOf(s);
    T r[4];
    EXPECT_EQ(MV(1, s, 0, r, 4, 0, f.mean.data(), f.full.data()), 0);
    ExpectInStepAndDelete(s, t);
}

TEST(RngGaussianMV, FailuresAndEmptyRequests) {
    ExpectFailures<double>();
    ExpectFailures<float>();
}

} // namespace
