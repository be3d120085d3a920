// Chi-square variates of v degrees of freedom: the square of a Gaussian for v = 1,
// Gamma of shape v / 2 and scale 2 above 16, and otherwise -2 ln of the product of
// v >> 1 uniforms, plus the square of a Gaussian when v is odd. The Gaussians are
// those of the pair Box-Muller method (Gaussian method 1), whose chunk carries a
// waiting half from call to call.
#include "frame/export.h"
#include "rng/dist/framed.h"

namespace brenn::rng {

namespace {

constexpr int32_t kWords = 4096; // uniforms a block of the product way

template <typename T>
int32_t UnitGaussians(void* stream, int32_t n, T* r) {
    if constexpr (sizeof(T) == 8)
        return _qesdRngGaussian(1, stream, n, r, 0.0, 1.0);
    else
        return _qessRngGaussian(1, stream, n, r, 0.0f, 1.0f);
}

// v = 1: Gaussians in blocks of 1024, squared.
template <typename T>
int32_t SquaredGaussians(void* stream, int32_t n, T* r) {
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        const int32_t m = n - done < kContinuousBlock ? n - done : kContinuousBlock;
        status = UnitGaussians(stream, m, r + done);
        if (status < 0) return status;
        for (int32_t i = done; i < done + m; ++i)
            r[i] *= r[i];
        done += m;
    }
    return status;
}

// v from 2 to 16: a block of m variates takes m h uniforms (h = v >> 1, variate i the
// words i h to i h + h - 1), then for odd v m Gaussians.
template <typename T>
int32_t ProductWay(void* stream, int32_t n, T* r, int32_t v) {
    using C = Continuous<T>;
    const int32_t h = v >> 1;
    const int32_t block = kWords / h < kContinuousBlock ? kWords / h : kContinuousBlock;
    T words[kWords];
    T gauss[kContinuousBlock];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        const int32_t m = n - done < block ? n - done : block;
        status = C::Uniform(stream, m * h, words, T(0), T(1));
        if (status < 0) return status;
        T* out = r + done;
        for (int32_t i = 0; i < m; ++i) {
            T p = words[i * h];
            for (int32_t j = 1; j < h; ++j)
                p *= words[i * h + j];
            out[i] = p;
        }
        C::Ln(m, out);
        if (v & 1) {
            status = UnitGaussians(stream, m, gauss);
            if (status < 0) return status;
            for (int32_t i = 0; i < m; ++i)
                out[i] = out[i] * T(-2) + gauss[i] * gauss[i];
        } else {
            for (int32_t i = 0; i < m; ++i)
                out[i] *= T(-2);
        }
        done += m;
    }
    return status;
}

template <typename T>
int32_t ChiSquare(void* stream, int32_t n, T* r, int32_t v) {
    using C = Continuous<T>;
    if (v > 16) {
        if constexpr (sizeof(T) == 8)
            return _qesdRngGamma(0, stream, n, r, T(v) / T(2), T(0), T(2));
        else
            return _qessRngGamma(0, stream, n, r, T(v) / T(2), T(0), T(2));
    }
    if (v == 1) return SquaredGaussians(stream, n, r);
    return Framed<T>(C::kLogZeroOnlyCallback, [&] { return ProductWay(stream, n, r, v); });
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qessRngChiSquare(int32_t method, void* stream, int32_t n, float* r,
                                       int32_t v) {
    (void)method;
    return ChiSquare(stream, n, r, v);
}

BRENN_EXPORT int32_t _qesdRngChiSquare(int32_t method, void* stream, int32_t n, double* r,
                                       int32_t v) {
    (void)method;
    return ChiSquare(stream, n, r, v);
}
