// Laplace variates a +- beta ln u1 from two uniforms a variate: the first word's
// logarithm, the second word's side (at or below one half: the positive side),
// a block of 1024 at a time with a last fetch for the rest, also when it is empty.
#include "frame/export.h"
#include "rng/dist/continuous.h"

using namespace brenn::rng;

namespace {

template <typename T>
int32_t Laplace(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    if (!C::HasRows()) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(C::kLogZeroCallback);
    // The side words are packed down in place into the front of `words`.
    T words[2 * kContinuousBlock];
    int32_t status = QES_STATUS_OK;
    const int32_t whole = n > 0 ? n / kContinuousBlock : 0;
    for (int32_t b = 0; b <= whole; ++b) {
        int32_t m = b < whole ? kContinuousBlock : (n > 0 ? n - whole * kContinuousBlock : 0);
        status = C::Uniform(stream, 2 * m, words, T(0), T(1));
        if (status < 0) break;
        T* out = r + b * kContinuousBlock;
        for (int32_t i = 0; i < m; ++i) {
            T u1 = words[2 * i], side = words[2 * i + 1];
            out[i] = u1;
            words[i] = side;
        }
        C::Ln(m, out);
        for (int32_t i = 0; i < m; ++i) {
            T factor = words[i] <= T(0.5) ? -beta : beta;
            out[i] = factor * out[i] + a;
        }
    }
    ErrorModeLeave(errors);
    GuardLeave(guard);
    return status;
}

} // namespace

BRENN_EXPORT int32_t _qessRngLaplace(int32_t method, void* stream, int32_t n, float* r, float a,
                                     float beta) {
    (void)method;
    return Laplace(stream, n, r, a, beta);
}

BRENN_EXPORT int32_t _qesdRngLaplace(int32_t method, void* stream, int32_t n, double* r, double a,
                                     double beta) {
    (void)method;
    return Laplace(stream, n, r, a, beta);
}
