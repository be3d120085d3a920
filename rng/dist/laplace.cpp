// Laplace variates a +- beta ln u1 from two uniforms a variate: the first word's
// logarithm, the second word's side (at or below one half: the positive side),
// a block of 1024 at a time with a last fetch for the rest, also when it is empty.
#include "frame/export.h"
#include "rng/dist/continuous.h"
#include "rng/dist/pair_passes.h"

using namespace brenn::rng;

namespace {

// The first word of each of m pairs to out (any alignment), the second packed down
// in place to words[0, m).
template <typename T>
void Split(int32_t m, T* words, T* out) {
    using L = Lanes<T>;
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount) {
        typename L::V x = L::Load(words + 2 * i), y = L::Load(words + 2 * i + L::kCount);
        L::StoreU(out + i, L::Evens(x, y));
        L::Store(words + i, L::Odds(x, y));
    }
    for (; i < m; ++i) {
        T u1 = words[2 * i], side = words[2 * i + 1];
        Put(out + i, u1);
        words[i] = side;
    }
}

// out[i] = factor * out[i] + a, the factor -beta where the side word is at or below
// one half, else beta.
template <typename T>
void Sides(int32_t m, const T* side, T* out, T a, T beta) {
    using L = Lanes<T>;
    const typename L::V half = L::Set(T(0.5)), b = L::Set(beta), t = L::Set(a);
    const typename L::V sign = L::Set(-T(0));
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount) {
        typename L::V factor = L::Xor(b, L::And(L::AtMost(L::Load(side + i), half), sign));
        L::StoreU(out + i, L::Fma(factor, L::LoadU(out + i), t));
    }
    for (; i < m; ++i) {
        T factor = side[i] <= T(0.5) ? -beta : beta, x;
        memcpy(&x, out + i, sizeof x);
        Put(out + i, factor * x + a);
    }
}

template <typename T>
int32_t Laplace(void* stream, int32_t n, T* r, T a, T beta) {
    using C = Continuous<T>;
    if (!C::HasRows()) return QES_STATUS_BAD_METHOD;
    FpGuard guard = GuardEnter();
    ErrorFrame errors = ErrorModeEnter(C::kLogZeroCallback);
    // The side words are packed down in place into the front of `words`.
    alignas(16) T words[2 * kContinuousBlock];
    int32_t status = QES_STATUS_OK;
    const int32_t whole = n > 0 ? n / kContinuousBlock : 0;
    for (int32_t b = 0; b <= whole; ++b) {
        int32_t m = b < whole ? kContinuousBlock : (n > 0 ? n - whole * kContinuousBlock : 0);
        status = C::Uniform(stream, 2 * m, words, T(0), T(1));
        if (status < 0) break;
        T* out = r + b * kContinuousBlock;
        Split(m, words, out);
        C::Ln(m, out);
        Sides(m, words, out, a, beta);
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
