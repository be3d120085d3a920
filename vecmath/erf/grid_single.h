/* grid_core.h's evaluation on single lanes, for the single LA and EP slots of Erf, Erfc
 * and CdfNorm: four lanes a register where the double form has two.
 *
 * The grid point xj is found with a single shifter (2^16 for steps of 1/128, 2^17 for
 * 1/64: the row index is the low half of the sum's bits) and d = a - xj is exact. A
 * lane's row gives V and D (the first element of the value pair and of the derivative
 * pair on the wide rows), both rounded to single; then F = V + w*(1 + S1), w = D*d, the
 * mirrored side as K - F, all in single. The rounding of V (half an ulp of F, an ulp
 * where w takes off up to half of V) and the sums' give about 2 ulp, the LA bound's half;
 * the series is cut for 2^-27 (LA) and 2^-15 (EP) of F, and not taken at all where the
 * cut has no term (Erf EP: |tau/2| is below 2^-16 of F there).
 * The kernels keep lanes whose result would leave the normal range out of these rows
 * (their scaled part is never read), and NaNs. */
#ifndef BRENN_VECMATH_ERF_GRID_SINGLE_H
#define BRENN_VECMATH_ERF_GRID_SINGLE_H

#include "vecmath/erf/grid_core.h"

namespace brenn::vm {

// V and D of the rows picked by the four lanes, rounded to single.
template <size_t W>
BRENN_VEC void GridRowsSingle(const double (*rows)[W], I32x4 index, __m128& v, __m128& deriv) {
    Indices i = IndicesOf(index);
    auto row = [&](int k) {
        const double* p = rows[i.at[k]];
        return _mm_cvtpd_ps(W == 2 ? _mm_load_pd(p) : LoadLanes(p, p + 2));
    };
    __m128 r01 = _mm_unpacklo_ps(row(0), row(1)), r23 = _mm_unpacklo_ps(row(2), row(3));
    v = _mm_movelh_ps(r01, r23);
    deriv = _mm_movehl_ps(r23, r01);
}

template <class G, SeriesCut C>
inline __m128 GridEvalSingle(__m128 x) {
    constexpr float shifter = float(G::kShifter * 0x1p-29);
    __m128 ax = Abs(x);
    __m128 mirror = Zero<float>(), lim = Set<float>(float(G::kLimit));
    if constexpr (G::kMirror != 0) {
        mirror = G::kMirrorPositive ? Xor(x, SignMask<float>()) : x; // by the sign bit
        lim = IfThenElse(mirror, Set<float>(float(G::kMirrorLimit)), lim);
    }
    __m128 a = Min(ax, lim);
    __m128 s = Add(a, Set<float>(shifter));
    __m128 xj = Sub(s, Set<float>(shifter));
    __m128 d = Sub(a, xj);
    __m128 v, deriv;
    GridRowsSingle(G::kRows, And(AsInt(s), Set<int32_t>(0xFFFF)), v, deriv);
    __m128 w = Mul(deriv, d);
    __m128 c = w;
    if constexpr (C.n0 > 0) {
        __m128 tau = Mul(Mul(Set<float>(float(G::kTauScale)), xj), d);
        __m128 u = Mul(d, d);
        if constexpr (G::kUScale != 1.0) u = Mul(u, Set<float>(float(G::kUScale)));
        // Below 2^-60 u is 0, so that tiny arguments raise no underflow of their own.
        u = IfThenZeroElse(Lt(a, Set<float>(0x1p-60f)), u);
        c = Add(w, Mul(w, SeriesLessOne<C>(tau, u)));
    }
    if constexpr (G::kMirror == 0) {
        return Add(v, c);
    } else {
        __m128 flip = And(mirror, SignMask<float>());
        __m128 k = IfThenElse(mirror, Set<float>(float(G::kMirror)), Zero<float>());
        return Add(Add(k, Xor(v, flip)), Xor(c, flip));
    }
}

} // namespace brenn::vm

#endif
