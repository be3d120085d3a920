// The two continuous generators without a frame of their own: Lognormal, the
// exponential of a Gaussian (whose frame is complete in itself), and Cauchy, the
// tangent of a uniform angle, which has no singular report on its interval.
#include "frame/export.h"
#include "rng/dist/continuous.h"

using namespace brenn::rng;

namespace {

int32_t GaussianOf(int32_t method, void* stream, int32_t n, float* r, float a, float sigma) {
    return _qessRngGaussian(method, stream, n, r, a, sigma);
}
int32_t GaussianOf(int32_t method, void* stream, int32_t n, double* r, double a, double sigma) {
    return _qesdRngGaussian(method, stream, n, r, a, sigma);
}

template <typename T>
int32_t Lognormal(int32_t method, void* stream, int32_t n, T* r, T a, T sigma, T b, T beta) {
    // Method 0 is the Box-Muller pair method, any other the inverse CDF.
    int32_t status = GaussianOf(method == 0 ? 1 : 2, stream, n, r, a, sigma);
    if (status < 0) return status;
    Continuous<T>::Exp(n, r);
    AffinePassMax(n, r, beta, b, b);
    return status;
}

template <typename T>
int32_t Cauchy(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    if (!C::HasRows()) return QES_STATUS_BAD_METHOD;
    int32_t status = C::Uniform(stream, n, r, -C::HalfPi(), C::HalfPi());
    if (status < 0) return status;
    C::Tan(n, r);
    AffinePass(n, r, beta, a);
    return status;
}

} // namespace

BRENN_EXPORT int32_t _qessRngLognormal(int32_t method, void* stream, int32_t n, float* r, float a,
                                       float sigma, float b, float beta) {
    return Lognormal(method, stream, n, r, a, sigma, b, beta);
}

BRENN_EXPORT int32_t _qesdRngLognormal(int32_t method, void* stream, int32_t n, double* r, double a,
                                       double sigma, double b, double beta) {
    return Lognormal(method, stream, n, r, a, sigma, b, beta);
}

BRENN_EXPORT int32_t _qessRngCauchy(int32_t method, void* stream, int32_t n, float* r, float a,
                                    float beta) {
    (void)method;
    return Cauchy(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qesdRngCauchy(int32_t method, void* stream, int32_t n, double* r, double a,
                                    double beta) {
    (void)method;
    return Cauchy(stream, n, r, a, beta);
}
