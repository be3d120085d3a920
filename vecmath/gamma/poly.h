/* Polynomials over coefficient arrays (lowest degree first) in the scalar working types
 * of the gamma family, long double and double, by Estrin's scheme. */
#ifndef BRENN_VECMATH_GAMMA_POLY_H
#define BRENN_VECMATH_GAMMA_POLY_H

#include <stddef.h>

namespace brenn::vm::gamma {

namespace detail {
constexpr int Levels(size_t n) {
    int k = 0;
    while ((size_t(1) << k) < n)
        ++k;
    return k;
}
// c[B] .. c[B + M - 1] as a polynomial in t, from the powers p[k] = t^(2^k).
template <size_t B, size_t M, class W, size_t N>
inline W EstrinPart(const W* p, const W (&c)[N]) {
    if constexpr (M == 1) {
        return c[B];
    } else {
        constexpr int level = Levels(M) - 1;
        constexpr size_t low = size_t(1) << level;
        return p[level] * EstrinPart<B + low, M - low>(p, c) + EstrinPart<B, low>(p, c);
    }
}
} // namespace detail

// c[0] + t c[1] + ... + t^(N-1) c[N-1] by Estrin's scheme: the chain of dependent
// steps is about log2(N) long, which matters on the x87 unit, whose additions and
// multiplications take several cycles each.
template <class W, size_t N>
inline W Poly(W t, const W (&c)[N]) {
    static_assert(N <= 16, "up to 16 coefficients");
    W p[4];
    p[0] = t;
    p[1] = t * t;
    p[2] = p[1] * p[1];
    p[3] = p[2] * p[2];
    return detail::EstrinPart<0, N>(p, c);
}

} // namespace brenn::vm::gamma

#endif
