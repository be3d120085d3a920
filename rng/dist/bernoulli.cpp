// Bernoulli variates: one single uniform per variate, compared with p by the bit
// patterns as integers, which for non-negative floats orders them as their values
// and keeps the pass in the integer unit, in place in the result array.
#include <string.h>

#include "frame/export.h"
#include "rng/core/stream.h"

BRENN_EXPORT int32_t _qesiRngBernoulli(int32_t method, void* stream, int32_t n, int32_t* r,
                                       double p) {
    float pf = static_cast<float>(p);
    int32_t pBits;
    memcpy(&pBits, &pf, sizeof pBits);
    float* u = reinterpret_cast<float*>(r);
    int32_t status = _qessRngUniform(0, stream, n, u, 0.0f, 1.0f);
    if (status < 0) return status;
    for (int32_t i = 0; i < n; ++i) {
        int32_t uBits;
        memcpy(&uBits, u + i, sizeof uBits);
        r[i] = pBits > uBits ? 1 : 0;
    }
    return status;
}
