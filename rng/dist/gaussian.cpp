// Gaussian variates a + sigma * z: the entry points with their frame (guard, error
// mode, Gaussian sentinel) and the method table, the Box-Muller method that keeps
// the sine half of each pair, and the inverse-CDF method through ErfInv.
#include "frame/export.h"
#include "rng/dist/continuous.h"
#include "rng/dist/pair_passes.h"

namespace brenn::rng {

namespace {

// r[i] = radius[i] * sigma * sine[i] + a, the product taken in that order.
template <typename T>
void DeliverSines(int32_t m, const T* radius, const T* sine, T* r, T sigma, T a) {
    using L = Lanes<T>;
    const typename L::V s = L::Set(sigma), t = L::Set(a);
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount)
        L::StoreU(r + i, L::Add(L::Mul(L::Mul(L::Load(radius + i), s), L::Load(sine + i)), t));
    for (; i < m; ++i)
        Put(r + i, radius[i] * sigma * sine[i] + a);
}

} // namespace

template <typename T>
int32_t GaussianBoxMuller(void* stream, int32_t n, T* r, T a, T sigma) {
    using C = Continuous<T>;
    // The radius words are packed down in place into the front of `words`; their
    // logarithms go to the back half, since the sentinel reads the argument back.
    alignas(16) T words[2 * kContinuousBlock];
    T* radius = words + kContinuousBlock;
    alignas(16) T angle[kContinuousBlock];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        int32_t m = n - done < kContinuousBlock ? n - done : kContinuousBlock;
        status = C::Uniform(stream, 2 * m, words, T(0), T(1));
        if (status < 0) return status;
        SplitPairs(m, words, angle);
        C::Sin(m, angle);
        C::LnTo(m, words, radius);
        MinusTwice(m, radius);
        C::Sqrt(m, radius);
        DeliverSines(m, radius, angle, r + done, sigma, a);
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
