// Exponential, Gumbel, Rayleigh and Weibull variates: each a logarithm of one uniform
// a variate, under the log-of-zero sentinel, then a power or root where the
// distribution needs one and an affine pass. Gumbel nests its frame around the
// exponential's; the maxima keep a shift exact when a logarithm's sign is lost.
#include "frame/export.h"
#include "rng/dist/framed.h"

using namespace brenn::rng;

namespace {

template <typename T>
int32_t Exponential(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    return Framed<T>(C::kLogZeroCallback, [&] {
        int32_t status = C::Uniform(stream, n, r, T(0), T(1));
        if (status < 0) return status;
        C::Ln(n, r);
        AffinePassMax(n, r, -beta, a, a);
        return status;
    });
}

template <typename T>
int32_t Gumbel(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    return Framed<T>(C::kLogZeroCallback, [&] {
        int32_t status = Exponential(stream, n, r, T(0), T(1));
        if (status < 0) return status;
        // An exponential variate of exactly 0 meets the sentinel here.
        C::Ln(n, r);
        AffinePass(n, r, beta, a);
        return status;
    });
}

// -ln u for n uniforms, under the caller's frame.
template <typename T>
int32_t NegatedLogs(void* stream, int32_t n, T* r) {
    using C = Continuous<T>;
    int32_t status = C::Uniform(stream, n, r, T(0), T(1));
    if (status < 0) return status;
    C::Ln(n, r);
    FlipSigns(n, r);
    return status;
}

template <typename T>
int32_t Rayleigh(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    return Framed<T>(C::kLogZeroOnlyCallback, [&] {
        int32_t status = NegatedLogs(stream, n, r);
        if (status < 0) return status;
        C::Sqrt(n, r);
        AffinePassMax(n, r, beta, a, a);
        return status;
    });
}

template <typename T>
int32_t Weibull(void* stream, int32_t n, T* r, T alpha, T a, T beta) {
    using C = Continuous<T>;
    return Framed<T>(C::kLogZeroOnlyCallback, [&] {
        int32_t status = NegatedLogs(stream, n, r);
        if (status < 0) return status;
        // alpha = 1 is the exponential: no power, and exact.
        if (alpha != T(1)) C::Powx(n, r, T(1) / alpha);
        AffinePassMax(n, r, beta, a, a);
        return status;
    });
}

} // namespace

BRENN_EXPORT int32_t _qessRngExponential(int32_t method, void* stream, int32_t n, float* r, float a,
                                         float beta) {
    (void)method;
    return Exponential(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qesdRngExponential(int32_t method, void* stream, int32_t n, double* r,
                                         double a, double beta) {
    (void)method;
    return Exponential(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qessRngGumbel(int32_t method, void* stream, int32_t n, float* r, float a,
                                    float beta) {
    (void)method;
    return Gumbel(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qesdRngGumbel(int32_t method, void* stream, int32_t n, double* r, double a,
                                    double beta) {
    (void)method;
    return Gumbel(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qessRngRayleigh(int32_t method, void* stream, int32_t n, float* r, float a,
                                      float beta) {
    (void)method;
    return Rayleigh(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qesdRngRayleigh(int32_t method, void* stream, int32_t n, double* r, double a,
                                      double beta) {
    (void)method;
    return Rayleigh(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qessRngWeibull(int32_t method, void* stream, int32_t n, float* r, float alpha,
                                     float a, float beta) {
    (void)method;
    return Weibull(stream, n, r, alpha, a, beta);
}

BRENN_EXPORT int32_t _qesdRngWeibull(int32_t method, void* stream, int32_t n, double* r,
                                     double alpha, double a, double beta) {
    (void)method;
    return Weibull(stream, n, r, alpha, a, beta);
}
