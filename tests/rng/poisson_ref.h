// The Poisson methods written out plainly for the tests, each variate from its own
// uniform or Gaussian by the steps of the method in their order: the inversion
// table and its search, the three ranges of the transforming method and PoissonV's
// two groups. One-element kernel calls of the same slots.
#ifndef BRENN_TESTS_RNG_POISSON_REF_H
#define BRENN_TESTS_RNG_POISSON_REF_H

#include <stdint.h>

#include <cmath>
#include <vector>

#include "brenn_rng.h"
#include "frame/dispatch.h"
#include "rng/dist/poisson.h"

namespace brenn::test {

// The first k with u < F(k), F from exp(-lambda) by the HA exponential and forward
// sums over 84 entries, then the recurrence.
inline int32_t InversionRef(double lambda, double u) {
    double p = -lambda;
    ZAR_SLOT(dExp, frame::SlotHA)(1, &p, &p);
    double sum = p;
    for (int32_t k = 0;; ++k) {
        if (k > 0) {
            p *= lambda / k;
            double next = sum + p;
            if (k >= 84 && next == sum) return k;
            sum = next;
        }
        if (u < sum) return k;
    }
}

// Range A: the count of partial sums below u.
inline std::vector<int32_t> RangeARef(void* t, int32_t n, double lambda) {
    float c[11];
    double s = 0, term = 1;
    for (int k = 0; k < 11; ++k) {
        s += term;
        c[k] = static_cast<float>(s);
        term *= lambda / (k + 1);
    }
    const double l = lambda;
    float e = static_cast<float>(
        0.99999999789769289 +
        l * (1.0000002352041819 +
             l * (0.49999555884885266 +
                  l * (0.16669916415448055 +
                       l * (0.041548796137890399 +
                            l * (0.0085659307505906532 +
                                 l * (0.0011369805324212754 + l * 0.00033516415953945282)))))));
    std::vector<float> u(n);
    EXPECT_GE(_qessRngUniform(0, t, n, u.data(), 0.0f, e), 0);
    std::vector<int32_t> r(n);
    for (int32_t i = 0; i < n; ++i) {
        int32_t k = 0;
        while (k < 11 && !(u[i] <= c[k]))
            ++k;
        r[i] = k;
    }
    return r;
}

// The row's six coefficients at lambda's mantissa fraction, each rounded to float.
inline std::vector<float> RowRef(float lambda) {
    int e = static_cast<int>(std::floor(std::log2(lambda)));
    double t = lambda / std::ldexp(1.0, e) - 1.0;
    const double* T = rng::kPoissonRows[e + 4];
    std::vector<float> c{static_cast<float>(1.0 + T[0] + t * (T[1] + t * T[2]))};
    for (int j = 3; j < 23; j += 4)
        c.push_back(static_cast<float>(T[j] + t * (T[j + 1] + t * (T[j + 2] + t * T[j + 3]))));
    return c;
}

inline int32_t RowCountRef(const std::vector<float>& c, float z) {
    float v = c[0] + (z * c[1]) * (c[2] + z * (c[3] + z * (c[4] + z * c[5])));
    return static_cast<int32_t>(std::trunc(std::max(v, 0.0f)));
}

// Range C: mean, sigma, k1, k2, k3 of lambda, rounded to float.
inline std::vector<float> LargeRef(double l) {
    double q = 1 / l;
    return {
        static_cast<float>(l - 0.6666957198 +
                           q * (-0.01941020862 + q * (-0.001288719308 + q * 0.001645153709))),
        static_cast<float>(std::sqrt(
            l - 0.05580667628 + q * (-0.000975814817 + q * (-0.005534854444 + q * 0.00519830812)))),
        static_cast<float>(
            q * (0.00774710541609 +
                 q * (-0.443911391797447 +
                      q * (2.29098262740971 + q * (-3.85841212878712 + q * 2.02847035732762))))),
        static_cast<float>(
            q * (0.168577008904505 + q * (0.0472242348292688 +
                                          q * (-0.228162379800275 +
                                               q * (0.358642226989579 + q * -0.185436433294704))))),
        static_cast<float>(q * (-0.0001145865551857 +
                                q * (-0.0126559989233446 +
                                     q * (0.0232257954288354 +
                                          q * (-0.0291113093667918 + q * 0.014389264627966)))))};
}

inline int32_t LargeCountRef(const std::vector<float>& k, float z) {
    float d = z - k[0];
    float v = z + 1.0f + d * (k[2] + d * (k[3] + d * k[4]));
    return static_cast<int32_t>(std::trunc(std::max(v, 0.0f)));
}

inline std::vector<float> GaussiansRef(void* t, int32_t n, float a, float sigma) {
    std::vector<float> z(n);
    EXPECT_GE(_qessRngGaussian(2, t, n, z.data(), a, sigma), 0);
    return z;
}

// The transforming method over n variates from the stream t.
inline std::vector<int32_t> TransformRef(void* t, int32_t n, double lambda) {
    if (lambda < 1) return RangeARef(t, n, lambda);
    std::vector<int32_t> r(n);
    if (lambda < 100) {
        std::vector<float> z = GaussiansRef(t, n, 0, 1), c = RowRef(static_cast<float>(lambda));
        for (int32_t i = 0; i < n; ++i)
            r[i] = RowCountRef(c, z[i]);
        return r;
    }
    std::vector<float> k = LargeRef(lambda), z = GaussiansRef(t, n, k[0], k[1]);
    for (int32_t i = 0; i < n; ++i)
        r[i] = LargeCountRef(k, z[i]);
    return r;
}

// PoissonV: a Gaussian each, then by the element's lambda.
inline std::vector<int32_t> PoissonVRef(void* t, const std::vector<double>& lambda) {
    const int32_t n = static_cast<int32_t>(lambda.size());
    std::vector<float> z = GaussiansRef(t, n, 0, 1);
    std::vector<int32_t> r(n);
    for (int32_t i = 0; i < n; ++i) {
        const double l = lambda[i];
        if (l < 0.0625) {
            float x = z[i] * 0.70710677f, u;
            ZAR_SLOT(sErf, frame::SlotLA)(1, &x, &u);
            double bound = (0.99999999789769289 +
                            l * (1.000000235204182 +
                                 l * (0.49999555884885266 + l * l * 0.16669916415448055))) *
                           std::fabs(u);
            double sum = 1, term = 1;
            int32_t k = 0;
            while (k < 11 && static_cast<float>(sum) < bound) {
                ++k;
                term *= l / k;
                sum += term;
            }
            r[i] = k;
        } else if (l < 100) {
            r[i] = RowCountRef(RowRef(static_cast<float>(l)), z[i]);
        } else {
            std::vector<float> k = LargeRef(l);
            r[i] = LargeCountRef(k, z[i] * k[1] + k[0]);
        }
    }
    return r;
}

} // namespace brenn::test

#endif
