// Draw table of the Gamma family for the goodness-of-fit driver: Gamma (alpha, a,
// beta), ChiSquare (v), Beta (p, q, a, beta), and GaussianMV on a fixed three-dimensional
// factor (parameter: the storage form), whose n results are n / 3 vectors in a row.
#include "brenn_rng.h"
#include "tests/rng/gof/draw.h"
#include "tests/rng/gof/gaussian_mv_case.h"

namespace {

using brenn::gof::DrawEntry;

int32_t Gamma(char precision, int32_t method, void* stream, int32_t n, void* r, const double* p) {
    if (precision == 's')
        return _qessRngGamma(method, stream, n, static_cast<float*>(r), float(p[0]), float(p[1]),
                             float(p[2]));
    return _qesdRngGamma(method, stream, n, static_cast<double*>(r), p[0], p[1], p[2]);
}

int32_t Beta(char precision, int32_t method, void* stream, int32_t n, void* r, const double* p) {
    if (precision == 's')
        return _qessRngBeta(method, stream, n, static_cast<float*>(r), float(p[0]), float(p[1]),
                            float(p[2]), float(p[3]));
    return _qesdRngBeta(method, stream, n, static_cast<double*>(r), p[0], p[1], p[2], p[3]);
}

int32_t ChiSquare(char precision, int32_t method, void* stream, int32_t n, void* r,
                  const double* p) {
    const int32_t v = static_cast<int32_t>(p[0]);
    if (precision == 's') return _qessRngChiSquare(method, stream, n, static_cast<float*>(r), v);
    return _qesdRngChiSquare(method, stream, n, static_cast<double*>(r), v);
}

// The factor in the storage form p[0] (0 full, 1 packed, 2 diagonal), as the case file
// spells it out.
template <typename T>
void Factor(int32_t storage, T* t) {
    namespace c = brenn::gof::mv;
    if (storage == QES_RNG_STORAGE_DIAGONAL) {
        for (int i = 0; i < c::kD; ++i)
            t[i] = T(c::kFactor[i][i]);
        return;
    }
    int k = 0;
    for (int i = 0; i < c::kD; ++i)
        for (int j = 0; j <= i; ++j) {
            if (storage == QES_RNG_STORAGE_PACKED)
                t[k++] = T(c::kFactor[i][j]);
            else
                t[i * c::kD + j] = T(c::kFactor[i][j]);
        }
}

int32_t GaussianMV(char precision, int32_t method, void* stream, int32_t n, void* r,
                   const double* p) {
    namespace c = brenn::gof::mv;
    const int32_t storage = static_cast<int32_t>(p[0]);
    if (precision == 's') {
        float t[c::kD * c::kD] = {}, a[c::kD];
        for (int i = 0; i < c::kD; ++i)
            a[i] = float(c::kMean[i]);
        Factor(storage, t);
        return _qessRngGaussianMV(method, stream, n / c::kD, static_cast<float*>(r), c::kD, storage,
                                  a, t);
    }
    double t[c::kD * c::kD] = {};
    Factor(storage, t);
    return _qesdRngGaussianMV(method, stream, n / c::kD, static_cast<double*>(r), c::kD, storage,
                              c::kMean, t);
}

const DrawEntry kEntries[] = {
    {"Gamma", "sd", 3, Gamma},           // alpha, a, beta
    {"ChiSquare", "sd", 1, ChiSquare},   // v
    {"Beta", "sd", 4, Beta},             // p, q, a, beta
    {"GaussianMV", "sd", 1, GaussianMV}, // storage
};

} // namespace

BRENN_GOF_DRAW_TABLE(kEntries)
