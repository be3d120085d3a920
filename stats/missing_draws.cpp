// Random steps of data augmentation: the stream, its Gaussians and the posterior draw
// of the normal model's parameters by Bartlett's decomposition (missing_draws.h).
#include "stats/missing_draws.h"

#include <math.h>
#include <string.h>

#include "brenn_rng.h"
#include "brenn_stats.h"

namespace brenn::stats::missing {
namespace {

// The generators take 32-bit counts; their output does not depend on how a request is
// cut, so long requests go in pieces.
constexpr int64_t kPiece = int64_t(1) << 30;

int32_t FromGenerator(int32_t status) {
    if (status == QES_STATUS_NO_MEMORY) return BRENN_SS_ERROR_ALLOC;
    return status < 0 ? status : 0;
}

// A chi-square variate of `dof` degrees of freedom; above the generators' 32-bit range
// the sum of variates of pieces of it.
int32_t ChiSquare(void* stream, int64_t dof, double* r) {
    double sum = 0.0;
    while (dof > 0) {
        const int32_t piece = dof > INT32_MAX ? INT32_MAX : static_cast<int32_t>(dof);
        double v;
        int32_t s = FromGenerator(_qesdRngChiSquare(0, stream, 1, &v, piece));
        if (s != 0) return s;
        sum += v;
        dof -= piece;
    }
    *r = sum;
    return 0;
}

} // namespace

int32_t OpenStream(uint32_t seed, void** stream) {
    *stream = nullptr;
    int32_t s = __qesNewStreamEx(stream, QES_BRNG_MT19937, 1, &seed);
    if (s != 0) {
        if (*stream != nullptr) __qesDeleteStream(stream);
        return s == QES_STATUS_NO_MEMORY ? BRENN_SS_ERROR_ALLOC : s;
    }
    return 0;
}

void CloseStream(void** stream) {
    if (*stream != nullptr) __qesDeleteStream(stream);
}

int32_t Gaussians(void* stream, int64_t count, double* r) {
    for (int64_t k = 0; k < count; k += kPiece) {
        const int32_t piece = static_cast<int32_t>(count - k < kPiece ? count - k : kPiece);
        int32_t s = FromGenerator(_qesdRngGaussian(1, stream, piece, r + k, 0.0, 1.0));
        if (s != 0) return s;
    }
    return 0;
}

int32_t DrawParameters(Model* m, void* stream, double* completedMean, double* work) {
    const int64_t q = m->q, n = m->n;
    const int qi = static_cast<int>(q);
    double* c = work;      // nS, then its Cholesky factor C
    double* a = c + q * q; // Bartlett's triangle A
    double* x = a + q * q; // C', then X = A^-1 C'
    double* z = x + q * q; // q Gaussians for the mean
    int32_t status = CompletedSums(m, completedMean, c);
    if (status != 0) return status;
    if (!CholeskyLower(qi, c)) return BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    memset(a, 0, q * q * sizeof(double));
    for (int64_t i = 0; i < q; ++i) {
        double v;
        if ((status = ChiSquare(stream, n - 1 - i, &v)) != 0) return status;
        a[i + i * q] = sqrt(v);
    }
    // The Gaussians below the diagonal, column by column, drawn into x and placed.
    const int64_t below = q * (q - 1) / 2;
    if ((status = Gaussians(stream, below, x)) != 0) return status;
    int64_t k = 0;
    for (int64_t col = 0; col < q; ++col)
        for (int64_t row = col + 1; row < q; ++row)
            a[row + col * q] = x[k++];
    memset(x, 0, q * q * sizeof(double));
    for (int64_t col = 0; col < q; ++col)
        for (int64_t row = 0; row <= col; ++row)
            x[row + col * q] = c[col + row * q];
    SolveLower(a, q, x, q, false);
    memset(m->cov, 0, q * q * sizeof(double));
    AddGram(x, q, q, 1.0, m->cov);
    MirrorLower(q, m->cov);
    if ((status = Gaussians(stream, q, z)) != 0) return status;
    const double root = 1.0 / sqrt(static_cast<double>(n));
    for (int64_t col = 0; col < q; ++col) {
        double v = 0.0;
        for (int64_t row = 0; row < q; ++row)
            v += x[row + col * q] * z[row];
        m->mean[col] = completedMean[col] + v * root;
    }
    return 0;
}

} // namespace brenn::stats::missing
