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
 * Erfc and CdfNorm run scaled (kScaled): the rows' values and derivatives are taken
 * times 2^100 (on the double's exponent, before the rounding to single), and K with
 * them, so that no operand in the underflow band is a denormal (each operation with a
 * denormal operand or result costs a microcode assist, some 40 ticks a register). The
 * result comes back by its exponent where it is normal (exactly: the same bits as the
 * unscaled sum), and below the least normal rounded once to the denormal grid as an
 * integer. Rows from kScaleFrom on hold a further 2^128 and are not unscaled: their
 * values are far below the least denormal and round to 0, as the result does.
 * NaNs are kept out of these rows by the kernels. */
#ifndef BRENN_VECMATH_ERF_GRID_SINGLE_H
#define BRENN_VECMATH_ERF_GRID_SINGLE_H

#include "vecmath/erf/grid_core.h"

namespace brenn::vm {

inline constexpr int kSingleScale = 100; // the rows' scale on single lanes, 2^100

// V and D of the rows picked by the four lanes, times 2^E, rounded to single.
template <int E, size_t W>
BRENN_VEC void GridRowsSingle(const double (*rows)[W], I32x4 index, __m128& v, __m128& deriv) {
    Indices i = IndicesOf(index);
    auto row = [&](int k) {
        const double* p = rows[i.at[k]];
        __m128d r = W == 2 ? _mm_load_pd(p) : LoadLanes(p, p + 2);
        if constexpr (E != 0) r = AsFloat(Add(AsInt(r), Set<int64_t>(int64_t(E) << 52)));
        return _mm_cvtpd_ps(r);
    };
    __m128 r01 = _mm_unpacklo_ps(row(0), row(1)), r23 = _mm_unpacklo_ps(row(2), row(3));
    v = _mm_movelh_ps(r01, r23);
    deriv = _mm_movehl_ps(r23, r01);
}

// A denormal made from its bits, as arithmetic would give it: 0 when the kernel runs
// with denormals flushed (under DAZ the maximum reads it as 0; Max raises no assist).
BRENN_VEC __m128 AsArithmeticDenormal(I32x4 bits) {
    return Max(AsFloat(bits), Zero<float>());
}

// r = F * 2^100 (F >= 0) back to F: below 2^-26 (F below 2^-126), F's denormal bits are
// r * 2^49 rounded to an integer.
BRENN_VEC __m128 UnscaleSingle(__m128 r) {
    static_assert(kSingleScale == 100);
    const __m128 least = Set<float>(0x1p-26f);
    I32x4 denormal = RoundToInt(Mul(Min(r, least), Set<float>(0x1p49f)));
    I32x4 normal = Sub(AsInt(r), Set<int32_t>(kSingleScale << 23));
    return IfThenElse(Lt(r, least), AsArithmeticDenormal(denormal), AsFloat(normal));
}

template <class G, SeriesCut C, bool kScaled = false>
inline __m128 GridEvalSingle(__m128 x) {
    constexpr float scale = kScaled ? 0x1p100f : 1.0f;
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
    GridRowsSingle<kScaled ? kSingleScale : 0>(G::kRows, And(AsInt(s), Set<int32_t>(0xFFFF)), v,
                                               deriv);
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
    __m128 r;
    if constexpr (G::kMirror == 0) {
        r = Add(v, c);
    } else {
        __m128 flip = And(mirror, SignMask<float>());
        __m128 k = IfThenElse(mirror, Set<float>(float(G::kMirror) * scale), Zero<float>());
        r = Add(Add(k, Xor(v, flip)), Xor(c, flip));
    }
    if constexpr (kScaled) r = UnscaleSingle(r);
    return r;
}

} // namespace brenn::vm

#endif
