// Draw table of the continuous distributions for the goodness-of-fit driver:
// Gaussian (methods 0 to 2), Lognormal, Exponential, Gumbel, Laplace, Rayleigh,
// Weibull and Cauchy, single and double, parameters in the entries' own order.
#include "brenn_rng.h"
#include "tests/rng/gof/draw.h"

namespace {

using brenn::gof::DrawEntry;

// Calls the single or double form with the parameters converted to its precision.
template <typename S, typename D, typename... I>
int32_t Real(char precision, S sForm, D dForm, int32_t method, void* stream, int32_t n, void* r,
             const double* p, I... index) {
    if (precision == 's')
        return sForm(method, stream, n, static_cast<float*>(r), static_cast<float>(p[index])...);
    return dForm(method, stream, n, static_cast<double*>(r), p[index]...);
}

#define BRENN_GOF_REAL(Name, ...)                                                                  \
    [](char precision, int32_t method, void* stream, int32_t n, void* r, const double* p) {        \
        return Real(precision, _qess##Name, _qesd##Name, method, stream, n, r, p, __VA_ARGS__);    \
    }

const DrawEntry kEntries[] = {
    {"Gaussian", "sd", 2, BRENN_GOF_REAL(RngGaussian, 0, 1)},         // a, sigma
    {"Lognormal", "sd", 4, BRENN_GOF_REAL(RngLognormal, 0, 1, 2, 3)}, // a, sigma, b, beta
    {"Exponential", "sd", 2, BRENN_GOF_REAL(RngExponential, 0, 1)},   // a, beta
    {"Gumbel", "sd", 2, BRENN_GOF_REAL(RngGumbel, 0, 1)},             // a, beta
    {"Laplace", "sd", 2, BRENN_GOF_REAL(RngLaplace, 0, 1)},           // a, beta
    {"Rayleigh", "sd", 2, BRENN_GOF_REAL(RngRayleigh, 0, 1)},         // a, beta
    {"Weibull", "sd", 3, BRENN_GOF_REAL(RngWeibull, 0, 1, 2)},        // alpha, a, beta
    {"Cauchy", "sd", 2, BRENN_GOF_REAL(RngCauchy, 0, 1)},             // a, beta
};

#undef BRENN_GOF_REAL

} // namespace

BRENN_GOF_DRAW_TABLE(kEntries)
