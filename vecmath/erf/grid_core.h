/* The table-driven evaluation that Erf, Erfc and CdfNorm share, on double lanes (single
 * runs grid_single.h, whose HA adds up on double lanes with these rows).
 *
 * a = min(|x|, limit) is rounded to the grid by the shifter (a + 2^45 for steps of 1/128,
 * a + 2^46 for 1/64: the row index is the low word of the sum, xj the sum less the
 * shifter); d = a - xj is exact and at most half a step. With the row's value V and
 * signed derivative D of F (erf, erfc, or Q(x) = Phi(-x)) at xj,
 *   F(xj + d) = V + D*d*S(tau, u),   S = integral over [0, 1] of exp(-tau*s - u*s^2) ds,
 * tau = 2*xj*d and u = d^2 for erf and erfc, tau = xj*d and u = d^2/2 for Q. S - 1 is
 * the Taylor series of erf_series.h (exact coefficients), cut where the terms left out
 * fall below the level's bound: tau*P0(tau) + u*(P1(tau) + u*(P2(tau) + u*P3(tau))),
 * taken in t = xj*d and v = d^2 with tau's and u's scales in the coefficients (SeriesPart).
 *
 * The other side of Erfc and CdfNorm is 2 - erfc(|x|) and 1 - Q(x): their lanes take
 * K - F with K - V split exactly (FastTwoSum, V being at most 1). The sum is
 * V + w*(1 + S1), w = D*d (D = dh + dl on four-double rows).
 * (Double Erfc and CdfNorm at LA and HA have a body of their own, tail_double.h.)
 * Rows from kScaleFrom on are times 2^128; the sum is multiplied by 2^-128 there, exactly
 * while the result is normal; lanes whose result would not be are the kernels' special
 * lanes.
 * Erf's NaN lanes run at the limit (|x| is held by its bits) and the kernels set them
 * aside; the other kernels keep NaNs out (special lanes). */
#ifndef BRENN_VECMATH_ERF_GRID_CORE_H
#define BRENN_VECMATH_ERF_GRID_CORE_H

#include <bit>

#include "vecmath/erf/erf_series.h"
#include "vecmath/erf/erf_tables.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

enum class GridSum { Plain };

// Numbers of coefficients kept of P0 .. P3 (P0 from tau^1 on), and whether the rows go
// by Horner's rule (double LA, whose sixteen-element rounds hide the longer chain) or
// Estrin's scheme.
struct SeriesCut {
    int n0, n1, n2, n3;
    bool horner = false;
};

// The first N coefficients of row m of the series from column k0, as an array for
// Estrin, for the variables t = tau/S and v = u/H: the coefficient of tau^k u^m times
// S^k H^m. S and H are powers of two, so that the scaled series rounds as the plain one
// at every step (each partial result is the plain one's times a power of two) and
// tau = S*xj*d and u = H*d^2 cost no multiplication of their own.
template <int M, int K0, int N, double S, double H>
struct SeriesPart {
    static constexpr double c[N > 0 ? N : 1] = {};
};
template <int M, int K0, int N, double S, double H>
requires(N > 0) struct SeriesPart<M, K0, N, S, H> {
    static constexpr auto Make() {
        struct A {
            double v[N];
        } a{};
        double h = 1;
        for (int m = 0; m < M; ++m)
            h *= H;
        for (int i = 0; i < N; ++i) {
            double scale = h;
            for (int k = 0; k < K0 + i; ++k)
                scale *= S;
            a.v[i] = kErfSeries[M][K0 + i] * scale;
        }
        return a;
    }
    static constexpr auto kA = Make();
    static constexpr const double (&c)[N] = kA.v;
};

template <int M, int K0, int N, double S, double H, bool kHorner, class V>
BRENN_VEC V SeriesRow(V t) {
    if constexpr (kHorner)
        return Horner(t, SeriesPart<M, K0, N, S, H>::c);
    else
        return Estrin(t, SeriesPart<M, K0, N, S, H>::c);
}

// S - 1 at tau = S*t and u = H*v (S, H powers of two), on double lanes or (the
// coefficients rounded to single) single ones; the long rows by Estrin (a shorter chain
// than Horner's: dErfc 27 ticks an element, was 37) or Horner (fewer operations).
template <SeriesCut C, double S, double H, class V>
BRENN_VEC V SeriesLessOne(V t, V v) {
    V s = Mul(t, SeriesRow<0, 1, C.n0, S, H, C.horner>(t));
    if constexpr (C.n1 > 0) {
        V q = SeriesRow<1, 0, C.n1, S, H, C.horner>(t);
        if constexpr (C.n2 > 0) {
            V r = SeriesRow<2, 0, C.n2, S, H, C.horner>(t);
            if constexpr (C.n3 > 0) r = MulAdd(v, SeriesRow<3, 0, C.n3, S, H, C.horner>(t), r);
            q = MulAdd(v, r, q);
        }
        s = MulAdd(v, q, s);
    }
    return s;
}

/* A function's grid, as the per-function struct gives it:
 *   kRows (double[][W], W 2 or 4), kShifter, kLimit, kTauScale, kUScale;
 *   kMirror (K, 0 for none), kMirrorLimit, kMirrorPositive (Q mirrors x > 0);
 *   kScaleFrom: the first scaled grid point (0 for none). */

// erf(a) = a 2/sqrt(pi) for a below 2^-256 (rare; d*g would lose bits as a denormal):
// a + a (2/sqrt(pi) - 1) on a times 2^600, and where that is below the least normal
// (2^-422 scaled) summed onto 2^-422, whose binade has the denormals' spacing, so that
// the result rounds once.
[[gnu::noinline, gnu::cold]] inline __m128d ErfTiny(__m128d a) {
    const __m128d least = Set<double>(0x1p-422);
    __m128d as = Mul(a, Set<double>(0x1p600));
    // 2/sqrt(pi) - 1 in two parts.
    __m128d p = Add(Mul(as, Set<double>(0x1.06eba8214db69p-3)),
                    Mul(as, Set<double>(-0x1.ca38add6025p-57)));
    __m128d r = Add(as, p);
    __m128d band = Lt(r, least);
    I64x2 denormal = Sub(AsInt(Add(Add(least, as), p)), AsInt(least));
    // Max: 0 for a denormal when denormals are flushed, as the arithmetic would give.
    return IfThenElse(band, Max(AsFloat(denormal), Zero<double>()), Mul(r, Set<double>(0x1p-600)));
}

// Erf's |x| held at most at the grid's end (a limit whose low word is 0) by the high words
// alone: an unsigned minimum of the 32-bit lanes, the low words against all ones. A lane
// above runs at the limit and at most 2^-18 more (2^32 ulps), where erf is 1 to the last
// bit (single: to its last bit at 3.9296875) as at the end, and a NaN lane raises nothing.
// The round's largest high word (a signed maximum; the low words', never above 0x7FFFFFFF,
// pass no test) tells whether there is such a lane.
template <double kLimit>
constexpr uint64_t kLimitHigh = std::bit_cast<uint64_t>(kLimit) >> 32;
template <double kLimit = 5.9921875>
BRENN_VEC __m128d HeldAtLimit(__m128d ax) {
    static_assert(uint32_t(std::bit_cast<uint64_t>(kLimit)) == 0, "the limit's low word is 0");
    const I32x4 k = BitCast<I32x4>(Set<uint64_t>((kLimitHigh<kLimit> << 32) | 0xFFFFFFFFu));
    return AsFloat(BitCast<I64x2>(I32x4{_mm_min_epu32(BitCast<I32x4>(AsInt(ax)).v, k.v)}));
}
template <double kLimit = 5.9921875>
BRENN_VEC bool AnyBeyondLimit(I32x4 top) {
    const I32x4 k = BitCast<I32x4>(Set<uint64_t>((kLimitHigh<kLimit> << 32) | 0x7FFFFFFFu));
    return MaskBits(Gt(top, k)) != 0;
}

// F at the N registers x (a round of the kernels' or one register), each step taken over
// every register before the next, so that the table loads issue together and the
// series' chains overlap. Erf holds |x| at the limit by its high word (HeldAtLimit), so
// that a NaN lane runs there and raises nothing, and gets all ones when the round has a
// lane beyond the limit's high word (infinities, NaNs), else 0; the mirrored grids see
// no NaN.
template <class G, SeriesCut C, GridSum Sum, int N>
BRENN_VEC __m128d GridEvalRound(const __m128d* x, __m128d* y) {
    constexpr size_t W = sizeof(G::kRows[0]) / sizeof(double);
    // Carried between the steps: the shifted sums (the row index and xj), d, and tau and u
    // (then the series); the rest is read or made again where it is used.
    __m128d sh[N], d[N], s1[N], u[N];
    // a = min(|x|, the side's limit), and whether x's side is mirrored and whether held.
    auto held = [](__m128d xk, __m128d& mirror, I32x4& top) {
        __m128d lim = Set<double>(G::kLimit);
        mirror = Zero<double>();
        if constexpr (G::kMirror != 0) {
            mirror = G::kMirrorPositive ? Xor(xk, SignMask<double>()) : xk; // by the sign bit
            lim = IfThenElse(mirror, Set<double>(G::kMirrorLimit), lim);
        }
        __m128d ax = Abs(xk);
        if constexpr (G::kMirror != 0) { // no NaN comes here
            return Min(ax, lim);
        } else {
            top = Max(top, BitCast<I32x4>(AsInt(ax)));
            return HeldAtLimit<G::kLimit>(ax);
        }
    };
    I32x4 top = Set<int32_t>(0);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        __m128d mirror;
        __m128d a = held(x[k], mirror, top);
        sh[k] = Add(a, Set<double>(G::kShifter));
        __m128d xj = Sub(sh[k], Set<double>(G::kShifter));
        d[k] = Sub(a, xj);
        s1[k] = Mul(xj, d[k]); // tau / kTauScale
        // d^2, u / kUScale; below 2^-256 0, so that tiny arguments raise no underflow
        // of their own.
        __m128d tiny = Lt(a, Set<double>(0x1p-256));
        u[k] = IfThenZeroElse(tiny, Mul(d[k], d[k]));
    }
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        s1[k] = Opaque(SeriesLessOne<C, G::kTauScale, G::kUScale>(s1[k], u[k]));
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        __m128d mirror = Zero<double>();
        if constexpr (G::kMirror != 0)
            mirror = G::kMirrorPositive ? Xor(x[k], SignMask<double>()) : x[k]; // sign bit
        I64x2 row = AsInt(sh[k]);
        const double* r0 = G::kRows[uint32_t(LowWord<0>(row))];
        const double* r1 = G::kRows[uint32_t(LowWord<1>(row))];
        __m128d v, vlo = Zero<double>(), deriv, dl = Zero<double>();
        if constexpr (W == 2) {
            LoadTransposed(r0, r1, v, deriv);
        } else {
            LoadTransposed(r0, r1, v, vlo);
            LoadTransposed(r0 + 2, r1 + 2, deriv, dl);
        }
        __m128d flip = Zero<double>(), kk = Zero<double>();
        if constexpr (G::kMirror != 0) {
            flip = And(mirror, SignMask<double>());
            kk = IfThenElse(mirror, Set<double>(G::kMirror), kk);
        }
        __m128d vs = Xor(v, flip);
        if constexpr (W == 4) deriv = Add(deriv, dl);
        __m128d w = Mul(deriv, d[k]);
        __m128d c = Add(w, Mul(w, s1[k]));
        y[k] = Add(Add(kk, vs), Xor(c, flip));
        if constexpr (G::kScaleFrom != 0) {
            __m128d xj = Sub(sh[k], Set<double>(G::kShifter));
            y[k] = Mul(y[k], IfThenElse(Lt(xj, Set<double>(G::kScaleFrom)), Set<double>(1.0),
                                        Set<double>(0x1p-128)));
        }
    }
    if constexpr (G::kMirror == 0)
        if (__builtin_expect(AnyBeyondLimit<G::kLimit>(top), 0)) return AsFloat(Set<int64_t>(-1));
    return Zero<double>();
}

template <class G, SeriesCut C, GridSum Sum>
inline __m128d GridEval(__m128d x) {
    __m128d y;
    GridEvalRound<G, C, Sum, 1>(&x, &y);
    return y;
}

// f on x with the NaN lanes set to 0 first, and those lanes' results x + 0, the NaN
// quieted (an invalid flag for a signalling one only): no NaN reaches a compare or min.
template <class V, class F>
BRENN_VEC V NaNQuiet(V x, F f) {
    V nan = Unordered(x, x);
    return IfThenElse(nan, Add(x, Zero<ElemOf<V>>()), f(IfThenZeroElse(nan, x)));
}

} // namespace brenn::vm

#endif
