/* Log-factorials for the acceptance tests of the discrete rejection methods:
 * Stirling's series ln k! = (k + 1/2) ln k - k + ln sqrt(2 pi) + tail(k), with the
 * tail 1/(12k) - 1/(360k^3) + 1/(1260k^5) - 1/(1680k^7) + 1/(1188k^9), and the exact
 * values of ln k! below 16, where the series is not yet close enough; ln Gamma of a
 * real argument by the series at a shifted argument. */
#ifndef BRENN_RNG_DIST_LOG_FACTORIAL_H
#define BRENN_RNG_DIST_LOG_FACTORIAL_H

#include <stdint.h>

#include "vecmath/explog/scalar_log.h"

namespace brenn::rng {

// ln sqrt(2 pi) as the series takes it.
constexpr double kLnSqrt2Pi = 0.9189385332;

// ln k! for k = 0 to 15.
constexpr int32_t kLogFactorialTableSize = 16;
constexpr double kLogFactorialTable[kLogFactorialTableSize] = {
    0.0,
    0.0,
    0.69314718055994530942,
    1.7917594692280550008,
    3.1780538303479456196,
    4.7874917427820459942,
    6.5792512120101009951,
    8.5251613610654143002,
    10.604602902745250228,
    12.801827480081469611,
    15.104412573075515295,
    17.502307845873885839,
    19.98721449566188615,
    22.552163853123422886,
    25.1912211827386815,
    27.899271383840891566,
};

// The tail of Stirling's series from w = 1/x, in powers of 1/x^2.
inline double StirlingTailOfInverse(double w) {
    const double w2 = w * w;
    return (1.0 / 12 - w2 * (1.0 / 360 - w2 * (1.0 / 1260 - w2 * (1.0 / 1680 - w2 / 1188)))) * w;
}

// The tail of Stirling's series at x.
inline double StirlingTail(double x) {
    return StirlingTailOfInverse(1.0 / x);
}

// ln k! for an integer k at or above 0, held in a double.
inline double LogFactorial(double k) {
    if (k < kLogFactorialTableSize) return kLogFactorialTable[static_cast<int32_t>(k)];
    return (k + 0.5) * __qesdLn(k) - k + kLnSqrt2Pi + StirlingTail(k);
}

// ln Gamma(x) for a real x above 0 by the same series, taken at x + j of at least 16
// and brought back by the product x (x + 1) ... (x + j - 1).
inline double LogGamma(double x) {
    double shift = 1.0;
    for (; x < kLogFactorialTableSize; x += 1.0)
        shift *= x;
    return (x - 0.5) * __qesdLn(x) - x + kLnSqrt2Pi + StirlingTail(x) - __qesdLn(shift);
}

} // namespace brenn::rng

#endif
