// The spectral test of a multiplicative congruential generator x' = a x mod m:
// the length of the shortest non-zero vector of the dual lattice in t dimensions,
// {s in Z^t : s1 + s2 a + ... + st a^(t-1) = 0 mod m}, by LLL reduction of the
// obvious basis and a Fincke-Pohst enumeration. Exact for moduli below 2^26 and
// t <= 8 (every squared length stays below 2^53).
#ifndef BRENN_TOOLS_RNG_SPECTRAL_H
#define BRENN_TOOLS_RNG_SPECTRAL_H

#include <cstdint>

namespace brenn::tools {

// The squared length nu_t^2 of the shortest dual vector, 2 <= t <= 8.
int64_t ShortestDualSquared(uint64_t a, uint64_t m, int t);

// The best possible nu_t for modulus m: sqrt(gamma_t) m^(1/t), gamma_t the Hermite
// constant of dimension t.
double BestDual(uint64_t m, int t);

} // namespace brenn::tools

#endif
