// Draw table of the Poisson family for the goodness-of-fit driver: Poisson (method 0
// or 1), PoissonV with one lambda for every element, and Multinomial rows of ten
// cells (parameters ntrial, p0 to p9; n counts, that is n / 10 rows).
#include <cstring>

#include "brenn_rng.h"
#include "tests/rng/gof/draw.h"

namespace {

using brenn::gof::DrawEntry;

int32_t Poisson(char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
    return _qesiRngPoisson(method, stream, n, static_cast<int32_t*>(r), p[0]);
}

int32_t PoissonV(char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
    double* lambda = new double[n > 0 ? n : 1];
    for (int32_t i = 0; i < n; ++i)
        lambda[i] = p[0];
    int32_t status = _qesiRngPoissonV(method, stream, n, static_cast<int32_t*>(r), lambda);
    delete[] lambda;
    return status;
}

int32_t Multinomial10(char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
    int32_t* x = static_cast<int32_t*>(r);
    std::memset(x, 0, sizeof(int32_t) * static_cast<size_t>(n));
    return _qesiRngMultinomial(method, stream, n / 10, x, static_cast<int32_t>(p[0]), 10, p + 1);
}

const DrawEntry kEntries[] = {
    {"Poisson", "i", 1, Poisson},              // lambda
    {"PoissonV", "i", 1, PoissonV},            // lambda of every element
    {"Multinomial10", "i", 11, Multinomial10}, // ntrial, p0 ... p9
};

} // namespace

BRENN_GOF_DRAW_TABLE(kEntries)
