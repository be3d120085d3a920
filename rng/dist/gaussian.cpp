// Gaussian variates a + sigma * z: the entry points with their frame (guard, error
// mode, Gaussian sentinel) and the method table, the Box-Muller method that keeps
// the sine half of each pair, and the inverse-CDF method through ErfInv.
#include "frame/export.h"
#include "rng/dist/continuous.h"

namespace brenn::rng {

template <typename T>
int32_t GaussianBoxMuller(void* stream, int32_t n, T* r, T a, T sigma) {
    using C = Continuous<T>;
    // The radius words are packed down in place into the front of `words`; their
    // logarithms go to the back half, since the sentinel reads the argument back.
    T words[2 * kContinuousBlock];
    T* radius = words + kContinuousBlock;
    T angle[kContinuousBlock];
    const T twoPi = C::TwoPi();
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        int32_t m = n - done < kContinuousBlock ? n - done : kContinuousBlock;
        status = C::Uniform(stream, 2 * m, words, T(0), T(1));
        if (status < 0) return status;
        for (int32_t i = 0; i < m; ++i) {
            T u1 = words[2 * i], u2 = words[2 * i + 1];
            words[i] = u1;
            angle[i] = u2 * twoPi;
        }
        C::Sin(m, angle);
        C::LnTo(m, words, radius);
        for (int32_t i = 0; i < m; ++i)
            radius[i] = -(radius[i] + radius[i]);
        C::Sqrt(m, radius);
        for (int32_t i = 0; i < m; ++i)
            r[done + i] = radius[i] * sigma * angle[i] + a;
        done += m;
    }
    return status;
}

template <typename T>
int32_t GaussianInverseCdf(void* stream, int32_t n, T* r, T a, T sigma) {
    using C = Continuous<T>;
    // A build without the inverse error function refuses the method and leaves the
    // stream where it was.
    if (!C::HasErfInv()) return QES_STATUS_BAD_METHOD;
    int32_t status = C::Uniform(stream, n, r, T(-1), T(1));
    if (status < 0) return status;
    C::ErfInv(n, r);
    AffinePass(n, r, C::Sqrt2() * sigma, a);
    return status;
}

namespace {

template <typename T>
using GaussianMethod = int32_t (*)(void*, int32_t, T*, T, T);

template <typename T>
constexpr GaussianMethod<T> kGaussianMethods[3] = {GaussianBoxMuller<T>, GaussianBoxMuller2<T>,
                                                   GaussianInverseCdf<T>};

template <typename T>
int32_t Gaussian(int32_t method, void* stream, int32_t n, T* r, T a, T sigma) {
    using C = Continuous<T>;
    if (!C::HasRows()) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(C::kGaussianCallback);
    // The front-end hands in 0, 1 or 2 only.
    int32_t status = kGaussianMethods<T>[method](stream, n, r, a, sigma);
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qessRngGaussian(int32_t method, void* stream, int32_t n, float* r, float a,
                                      float sigma) {
    return Gaussian(method, stream, n, r, a, sigma);
}

BRENN_EXPORT int32_t _qesdRngGaussian(int32_t method, void* stream, int32_t n, double* r, double a,
                                      double sigma) {
    return Gaussian(method, stream, n, r, a, sigma);
}
