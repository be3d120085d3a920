/* Polynomials over coefficient arrays, lowest degree first, as a body's per-type struct
 * holds them (static constexpr T kP[] = {c0, c1, ...}): Horner's rule and Estrin's
 * scheme. Each step is a MulAdd, two roundings, in the order stated; the coefficients
 * become broadcast constants, as if written out. */
#ifndef BRENN_VECMATH_FRAME_VEC_POLY_H
#define BRENN_VECMATH_FRAME_VEC_POLY_H

#include <stddef.h>

#include "vecmath/frame/vec_float.h"

namespace brenn::vm {

namespace poly_detail {

template <class V, class T>
BRENN_VEC V Coeff(T c) {
    return Set<ElemOf<V>>(ElemOf<V>(c));
}

template <size_t I, class V, class T, size_t N>
BRENN_VEC V HornerFrom(V x, const T (&c)[N]) {
    if constexpr (I + 1 == N)
        return Coeff<V>(c[I]);
    else
        return MulAdd(x, HornerFrom<I + 1>(x, c), Coeff<V>(c[I]));
}

// x^(2^k) for k below K.
template <class V, int K>
struct Powers {
    V at[K];
};
constexpr int LevelsFor(size_t n) {
    int k = 0;
    while ((size_t(1) << k) < n)
        ++k;
    return k;
}
// The part c[B] .. c[B + M - 1], as a polynomial in x: the lower part is the largest
// power of two of terms below M, the upper one is joined to it by that power of x.
template <size_t B, size_t M, class V, int K, class T, size_t N>
BRENN_VEC V EstrinPart(const Powers<V, K>& p, const T (&c)[N]) {
    if constexpr (M == 1) {
        return Coeff<V>(c[B]);
    } else {
        constexpr int level = LevelsFor(M) - 1;
        constexpr size_t low = size_t(1) << level;
        return MulAdd(p.at[level], EstrinPart<B + low, M - low>(p, c), EstrinPart<B, low>(p, c));
    }
}

} // namespace poly_detail

// c[0] + x*(c[1] + x*(... + x*c[N-1])): a chain of N - 1 dependent steps.
template <class V, class T, size_t N>
BRENN_VEC V Horner(V x, const T (&c)[N]) {
    return poly_detail::HornerFrom<0>(x, c);
}

// The same polynomial by Estrin's scheme: pairs c[2k] + x*c[2k+1], joined by x^2, then
// by x^4, and so on, a chain of about log2(N) steps for a few more multiplications; the
// rounding differs a little from Horner's, so a fit states which one it was made for.
template <class V, class T, size_t N>
BRENN_VEC V Estrin(V x, const T (&c)[N]) {
    constexpr int levels = poly_detail::LevelsFor(N);
    static_assert(levels <= 4, "up to 16 coefficients");
    poly_detail::Powers<V, 4> p;
    p.at[0] = x;
    if constexpr (levels > 1) p.at[1] = Mul(x, x);
    if constexpr (levels > 2) p.at[2] = Mul(p.at[1], p.at[1]);
    if constexpr (levels > 3) p.at[3] = Mul(p.at[2], p.at[2]);
    return poly_detail::EstrinPart<0, N>(p, c);
}

} // namespace brenn::vm

#endif
