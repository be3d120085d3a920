// Continuous-distribution entries of the front-end: the draw checks, the method id
// and the parameter ranges the service's kernels leave to their caller, then the
// kernel entry itself.
#include <cmath>
#include <initializer_list>

#include "brenn_rand_cont.h"
#include "frontend/export.h"
#include "frontend/rng_checks.h"

namespace {

template <class T>
bool Location(T a) {
    return std::isfinite(a);
}
template <class T>
bool Scale(T s) {
    return std::isfinite(s) && s > T(0);
}

// The refusal of a call, or BRENN_OK: the draw checks, then the method (below
// methods), then the parameters' tests in their order.
int Refusal(const brenn_stream* stream, int n, const void* r, int method, int methods,
            std::initializer_list<bool> parameters) {
    if (int s = brenn::fe::CheckDraw(stream, n, r)) return s;
    if (method < 0 || method >= methods) return BRENN_ERR_BAD_METHOD;
    for (bool ok : parameters)
        if (!ok) return BRENN_ERR_BAD_ARGUMENT;
    return BRENN_OK;
}

// The kernel's call once nothing is refused.
template <class T, class Kernel, class... P>
int Run(Kernel kernel, brenn_stream* stream, int method, int methods, int n, T* r,
        std::initializer_list<bool> parameters, P... p) {
    if (int s = Refusal(stream, n, r, method, methods, parameters)) return s;
    return kernel(method, stream, n, r, p...);
}

} // namespace

BRENN_FE_EXPORT int brenn_rng_gaussian_f64(brenn_stream* stream, int method, int n, double* r,
                                           double a, double sigma) {
    return Run(_qesdRngGaussian, stream, method, 3, n, r, {Location(a), Scale(sigma)}, a, sigma);
}
BRENN_FE_EXPORT int brenn_rng_gaussian_f32(brenn_stream* stream, int method, int n, float* r,
                                           float a, float sigma) {
    return Run(_qessRngGaussian, stream, method, 3, n, r, {Location(a), Scale(sigma)}, a, sigma);
}

BRENN_FE_EXPORT int brenn_rng_lognormal_f64(brenn_stream* stream, int method, int n, double* r,
                                            double a, double sigma, double b, double beta) {
    return Run(_qesdRngLognormal, stream, method, 2, n, r,
               {Location(a), Scale(sigma), Location(b), Scale(beta)}, a, sigma, b, beta);
}
BRENN_FE_EXPORT int brenn_rng_lognormal_f32(brenn_stream* stream, int method, int n, float* r,
                                            float a, float sigma, float b, float beta) {
    return Run(_qessRngLognormal, stream, method, 2, n, r,
               {Location(a), Scale(sigma), Location(b), Scale(beta)}, a, sigma, b, beta);
}

BRENN_FE_EXPORT int brenn_rng_weibull_f64(brenn_stream* stream, int method, int n, double* r,
                                          double alpha, double a, double beta) {
    return Run(_qesdRngWeibull, stream, method, 1, n, r, {Scale(alpha), Location(a), Scale(beta)},
               alpha, a, beta);
}
BRENN_FE_EXPORT int brenn_rng_weibull_f32(brenn_stream* stream, int method, int n, float* r,
                                          float alpha, float a, float beta) {
    return Run(_qessRngWeibull, stream, method, 1, n, r, {Scale(alpha), Location(a), Scale(beta)},
               alpha, a, beta);
}

// The one-method distributions of a location (or shift) a and a scale beta.
#define BRENN_FE_LOCATION_SCALE(name, Kernel)                                                      \
    BRENN_FE_EXPORT int brenn_rng_##name##_f64(brenn_stream* stream, int method, int n, double* r, \
                                               double a, double beta) {                            \
        return Run(_qesdRng##Kernel, stream, method, 1, n, r, {Location(a), Scale(beta)}, a,       \
                   beta);                                                                          \
    }                                                                                              \
    BRENN_FE_EXPORT int brenn_rng_##name##_f32(brenn_stream* stream, int method, int n, float* r,  \
                                               float a, float beta) {                              \
        return Run(_qessRng##Kernel, stream, method, 1, n, r, {Location(a), Scale(beta)}, a,       \
                   beta);                                                                          \
    }
BRENN_FE_LOCATION_SCALE(exponential, Exponential)
BRENN_FE_LOCATION_SCALE(gumbel, Gumbel)
BRENN_FE_LOCATION_SCALE(laplace, Laplace)
BRENN_FE_LOCATION_SCALE(rayleigh, Rayleigh)
BRENN_FE_LOCATION_SCALE(cauchy, Cauchy)
#undef BRENN_FE_LOCATION_SCALE
