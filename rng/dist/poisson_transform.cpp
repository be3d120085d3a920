// The transforming Poisson method (method 1): one uniform a variate, no rejection, in
// three ranges of lambda. Below 1, a single uniform on [0, E) with E a polynomial
// bound of exp(lambda) against the partial sums of lambda^j / j!, so that neither
// exp(-lambda) nor a division is needed. From 1 to 100, the Cornish-Fisher row of
// lambda's binary exponent applied to an inverse-CDF Gaussian. From 100, a normal of
// fitted mean and sigma bent by a cubic. Also the row and range-C coefficient
// helpers that PoissonV shares.
#include <emmintrin.h>
#include <math.h>
#include <string.h>

#include "rng/core/stream.h"
#include "rng/dist/poisson.h"

namespace brenn::rng {

namespace {

constexpr int32_t kSums = 11;

// first k with u <= c[k], or 11: the number of partial sums below u, four uniforms
// a turn.
void CountBelow(int32_t n, int32_t* r, const float* c) {
    float* u = reinterpret_cast<float*>(r);
    int32_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 x = _mm_loadu_ps(u + i);
        __m128i count = _mm_setzero_si128();
        for (int32_t k = 0; k < kSums; ++k)
            count = _mm_sub_epi32(count, _mm_castps_si128(_mm_cmplt_ps(_mm_set1_ps(c[k]), x)));
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), count);
    }
    for (; i < n; ++i) {
        float x = u[i];
        int32_t count = 0;
        for (int32_t k = 0; k < kSums; ++k)
            count += c[k] < x;
        r[i] = count;
    }
}

int32_t RangeA(void* stream, int32_t n, int32_t* r, double lambda) {
    float c[kSums];
    double sum = 0.0, term = 1.0;
    for (int32_t k = 0; k < kSums; ++k) {
        sum += term;
        c[k] = static_cast<float>(sum);
        term *= lambda / (k + 1);
    }
    const double l = lambda;
    const float e = static_cast<float>(
        0.99999999789769289 +
        l * (1.0000002352041819 +
             l * (0.49999555884885266 +
                  l * (0.16669916415448055 +
                       l * (0.041548796137890399 +
                            l * (0.0085659307505906532 +
                                 l * (0.0011369805324212754 + l * 0.00033516415953945282)))))));
    int32_t status = _qessRngUniform(0, stream, n, reinterpret_cast<float*>(r), 0.0f, e);
    if (status < 0) return status;
    CountBelow(n, r, c);
    return status;
}

// The counts of standard normals in place, four a turn, by one coefficient set.
void CornishFisherPass(int32_t n, int32_t* r, const CornishFisher& k) {
    float* z = reinterpret_cast<float*>(r);
    const __m128 c0 = _mm_set1_ps(k.c0), c1 = _mm_set1_ps(k.c1), c2 = _mm_set1_ps(k.c2),
                 c3 = _mm_set1_ps(k.c3), c4 = _mm_set1_ps(k.c4), c5 = _mm_set1_ps(k.c5);
    int32_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 x = _mm_loadu_ps(z + i);
        __m128 p = _mm_add_ps(c4, _mm_mul_ps(x, c5));
        p = _mm_add_ps(c3, _mm_mul_ps(x, p));
        p = _mm_add_ps(c2, _mm_mul_ps(x, p));
        __m128 v = _mm_add_ps(c0, _mm_mul_ps(_mm_mul_ps(x, c1), p));
        v = _mm_max_ps(v, _mm_setzero_ps());
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), _mm_cvttps_epi32(v));
    }
    for (; i < n; ++i)
        r[i] = CornishFisherCount(k, z[i]);
}

void LargePass(int32_t n, int32_t* r, const PoissonLarge& k) {
    float* z = reinterpret_cast<float*>(r);
    const __m128 mean = _mm_set1_ps(k.mean), k1 = _mm_set1_ps(k.k1), k2 = _mm_set1_ps(k.k2),
                 k3 = _mm_set1_ps(k.k3), one = _mm_set1_ps(1.0f);
    int32_t i = 0;
    for (; i + 4 <= n; i += 4) {
        __m128 x = _mm_loadu_ps(z + i);
        __m128 d = _mm_sub_ps(x, mean);
        __m128 p = _mm_add_ps(k2, _mm_mul_ps(d, k3));
        p = _mm_add_ps(k1, _mm_mul_ps(d, p));
        __m128 v = _mm_add_ps(_mm_add_ps(x, one), _mm_mul_ps(d, p));
        v = _mm_max_ps(v, _mm_setzero_ps());
        _mm_storeu_si128(reinterpret_cast<__m128i*>(r + i), _mm_cvttps_epi32(v));
    }
    for (; i < n; ++i)
        r[i] = PoissonLargeCount(k, z[i]);
}

} // namespace

CornishFisher CornishFisherOf(float lambda) {
    int exponent;
    const double m = frexp(static_cast<double>(lambda), &exponent); // [0.5, 1)
    const double t = 2.0 * m - 1.0;
    const double* T = kPoissonRows[exponent - 1 + kPoissonRowBias];
    auto cubic = [&](int32_t j) {
        return static_cast<float>(T[j] + t * (T[j + 1] + t * (T[j + 2] + t * T[j + 3])));
    };
    return {static_cast<float>(1.0 + T[0] + t * (T[1] + t * T[2])),
            cubic(3),
            cubic(7),
            cubic(11),
            cubic(15),
            cubic(19)};
}

PoissonLarge PoissonLargeOf(double lambda) {
    const double q = 1.0 / lambda;
    PoissonLarge k;
    k.mean = static_cast<float>(lambda - 0.6666957198 +
                                q * (-0.01941020862 + q * (-0.001288719308 + q * 0.001645153709)));
    k.sigma =
        static_cast<float>(sqrt(lambda - 0.05580667628 +
                                q * (-0.000975814817 + q * (-0.005534854444 + q * 0.00519830812))));
    k.k1 = static_cast<float>(
        q * (0.00774710541609 +
             q * (-0.443911391797447 +
                  q * (2.29098262740971 + q * (-3.85841212878712 + q * 2.02847035732762)))));
    k.k2 = static_cast<float>(
        q * (0.168577008904505 +
             q * (0.0472242348292688 +
                  q * (-0.228162379800275 + q * (0.358642226989579 + q * -0.185436433294704)))));
    k.k3 = static_cast<float>(
        q * (-0.0001145865551857 +
             q * (-0.0126559989233446 +
                  q * (0.0232257954288354 + q * (-0.0291113093667918 + q * 0.014389264627966)))));
    return k;
}

int32_t PoissonTransform(void* stream, int32_t n, int32_t* r, double lambda) {
    if (lambda < kPoissonRangeB) return RangeA(stream, n, r, lambda);
    float* z = reinterpret_cast<float*>(r);
    if (lambda < kPoissonRangeC) {
        int32_t status = _qessRngGaussian(2, stream, n, z, 0.0f, 1.0f);
        if (status < 0) return status;
        CornishFisherPass(n, r, CornishFisherOf(static_cast<float>(lambda)));
        return status;
    }
    const PoissonLarge k = PoissonLargeOf(lambda);
    int32_t status = _qessRngGaussian(2, stream, n, z, k.mean, k.sigma);
    if (status < 0) return status;
    LargePass(n, r, k);
    return status;
}

} // namespace brenn::rng
