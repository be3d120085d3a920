// Draw table of the trial-counting distributions for the goodness-of-fit driver:
// Binomial (ntrial, p), Hypergeometric (l, s, m) and Negbinomial (a, p), integer
// results, counts converted to int32.
#include "brenn_rng.h"
#include "tests/rng/gof/draw.h"

namespace {

using brenn::gof::DrawEntry;

int32_t Count(double x) {
    return static_cast<int32_t>(x);
}

const DrawEntry kEntries[] = {
    {"Binomial", "i", 2,
     [](char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
         return _qesiRngBinomial(method, stream, n, static_cast<int32_t*>(r), Count(p[0]), p[1]);
     }},
    {"Hypergeometric", "i", 3,
     [](char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
         return _qesiRngHypergeometric(method, stream, n, static_cast<int32_t*>(r), Count(p[0]),
                                       Count(p[1]), Count(p[2]));
     }},
    {"Negbinomial", "i", 2,
     [](char, int32_t method, void* stream, int32_t n, void* r, const double* p) {
         return _qesiRngNegbinomial(method, stream, n, static_cast<int32_t*>(r), p[0], p[1]);
     }},
};

} // namespace

BRENN_GOF_DRAW_TABLE(kEntries)
