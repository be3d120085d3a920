// Multivariate Gaussian vectors x = a + T z: z a vector of standard Gaussians from the
// Gaussian generator's method, T the caller's lower triangular Cholesky factor of the
// covariance T T', in full, packed or diagonal storage. Vectors are filled with their
// Gaussians in place, in blocks, and multiplied there: a block of m vectors is a
// column-major d by m matrix whose columns are the vectors, and the factor's rows read
// column-major are T' (upper, full or packed), so the block becomes T' ' Z by the
// service library's triangular products.
#include "frame/export.h"
#include "platform/blas.h"
#include "rng/dist/continuous.h"

namespace brenn::rng {

namespace {

constexpr int32_t kBlockElements = 1 << 16; // Gaussians a block, at least one vector

void Triangle(int32_t storage, int d, int m, const double* t, double* b) {
    if (storage == QES_RNG_STORAGE_PACKED)
        brenn_blas4zar_dptrmm("U", "T", &d, &m, t, b, &d);
    else
        brenn_blas4zar_dtrmm("U", "T", &d, &m, t, &d, b, &d);
}

void Triangle(int32_t storage, int d, int m, const float* t, float* b) {
    if (storage == QES_RNG_STORAGE_PACKED)
        brenn_blas4zar_sptrmm("U", "T", &d, &m, t, b, &d);
    else
        brenn_blas4zar_strmm("U", "T", &d, &m, t, &d, b, &d);
}

int32_t Gaussians(int32_t method, void* stream, int32_t n, double* r) {
    return _qesdRngGaussian(method, stream, n, r, 0.0, 1.0);
}

int32_t Gaussians(int32_t method, void* stream, int32_t n, float* r) {
    return _qessRngGaussian(method, stream, n, r, 0.0f, 1.0f);
}

template <typename T>
int32_t Vectors(int32_t method, void* stream, int32_t n, T* r, int32_t d, int32_t storage,
                const T* a, const T* t) {
    const int32_t block = kBlockElements / d > 0 ? kBlockElements / d : 1;
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n;) {
        const int32_t m = n - done < block ? n - done : block;
        T* b = r + static_cast<size_t>(done) * d;
        status = Gaussians(method, stream, m * d, b);
        if (status < 0) return status;
        if (storage == QES_RNG_STORAGE_DIAGONAL) {
            for (int32_t k = 0; k < m; ++k)
                for (int32_t i = 0; i < d; ++i)
                    b[k * d + i] = b[k * d + i] * t[i] + a[i];
        } else {
            Triangle(storage, d, m, t, b);
            for (int32_t k = 0; k < m; ++k)
                for (int32_t i = 0; i < d; ++i)
                    b[k * d + i] += a[i];
        }
        done += m;
    }
    return status;
}

// The guard keeps the products' flags from the caller's MXCSR.
template <typename T>
int32_t GaussianMV(int32_t method, void* stream, int32_t n, T* r, int32_t d, int32_t storage,
                   const T* a, const T* t) {
    if (n <= 0 || d <= 0) return QES_STATUS_OK;
    FpGuard guard = GuardEnter();
    int32_t status = Vectors(method, stream, n, r, d, storage, a, t);
    GuardLeave(guard);
    return status;
}

} // namespace

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qessRngGaussianMV(int32_t method, void* stream, int32_t n, float* r,
                                        int32_t dimen, int32_t mstorage, const float* a,
                                        const float* t) {
    return GaussianMV(method, stream, n, r, dimen, mstorage, a, t);
}

BRENN_EXPORT int32_t _qesdRngGaussianMV(int32_t method, void* stream, int32_t n, double* r,
                                        int32_t dimen, int32_t mstorage, const double* a,
                                        const double* t) {
    return GaussianMV(method, stream, n, r, dimen, mstorage, a, t);
}
