/* Erfc and CdfNorm in double at LA and HA (dErfc's one kernel, dCdfNorm's LA and HA): the
 * grid of erf_tables.h as grid_core.h reads it, with a shorter series and a cheaper
 * special path.
 *
 * a = |x| held in [2^-256, limit] (below 2^-256 the result is F(0) to the last bit, and
 * d^2 stays normal), xj the grid point nearest to a, d = a - xj (exact). With
 * t = d (xj + a) = a^2 - xj^2 and v = d^2,
 *   F(a) = V + D d S,   S - 1 = t P0(t) + v (P1(t) + v (P2(t) + v P3)),
 * the series of S = integral over [0, 1] of exp(-t s + v s (1 - s)) ds in these
 * variables (the exponent of Q's grid is half as large, folded into its coefficients):
 * v's terms are smaller than in (2 xj d, d^2), and fitted polynomials in t
 * (tools/erf/tail_series_double.sollya) replace the Taylor rows, their errors below
 * 2^-57 of the result at both levels. The other side of Erfc and CdfNorm is K - F as in
 * grid_core.h; HA adds up in two parts, D*dh exact with dh the top 26 bits of d (by
 * truncation), LA as V + (Vlo + w (1 + S1)).
 *
 * Every finite lane is computed on the lanes, the underflow band's denormals and zeros
 * included, and the frame reports those below the least normal (kUnderflowLanes); NaNs
 * and infinities are the only special lanes. */
#ifndef BRENN_VECMATH_ERF_TAIL_DOUBLE_H
#define BRENN_VECMATH_ERF_TAIL_DOUBLE_H

#include <float.h>

#include <bit>

#include "vecmath/erf/erf_tables.h"
#include "vecmath/erf/grid_core.h"
#include "vecmath/frame/status.h"
#include "vecmath/frame/vec.h"
#include "vecmath/frame/vec_round.h"

namespace brenn::vm {

// P0 .. P2 of erfc in t on |t| <= 0.2129 (errors 2^-53.3, 2^-40.4, 2^-25.5; v^3 left
// out); lowest degree first, for Estrin.
struct ErfcSeriesD {
    static constexpr double kP0[9] = {
        -0x1p-1,           0x1.55555555554cfp-3,  -0x1.55555555554ccp-5,
        0x1.11111111ab3a7p-7, -0x1.6c16c16cdd3dfp-10, 0x1.a019f5acea611p-13,
        -0x1.a019f61fbfc76p-16, 0x1.723611dcaa8dp-19,  -0x1.2829a69c6ed0fp-22};
    static constexpr double kP1[7] = {
        0x1.555555555533dp-3,  -0x1.55555556e0ad5p-4, 0x1.9999999bdb41dp-6,
        -0x1.6c16b06365ea1p-8, 0x1.04103412f2514p-10, -0x1.3871707449ddfp-13,
        0x1.440543df0708ap-16};
    static constexpr double kP2[4] = {0x1.1110fa3fb035ap-6, -0x1.1110f7828289cp-7,
                                      0x1.38915499e1b18p-9, -0x1.0479f294ff50ap-11};
};
// Q's on |t| <= 0.6017 (2^-55.9, 2^-43.9, 2^-31.1, P3 2^-15.4).
struct QSeriesD {
    static constexpr double kP0[10] = {
        -0x1p-2,           0x1.5555555555556p-5,  -0x1.5555555554fadp-8,
        0x1.111111111091ep-11, -0x1.6c16c170c69f4p-15, 0x1.a01a01a6dcee5p-19,
        -0x1.a019dacbc1676p-23, 0x1.71de141f811dfp-27, -0x1.28640dd6e6d1p-31,
        0x1.af23eeebbe6cp-36};
    static constexpr double kP1[8] = {
        0x1.55555555544abp-4,  -0x1.5555555553ca5p-6, 0x1.999999a51b204p-9,
        -0x1.6c16c177cee11p-12, 0x1.0410194c0c213p-15, -0x1.38134f33bba1dp-19,
        0x1.4451ec24afdcbp-23, -0x1.2887755fdec9ep-27};
    static constexpr double kP2[5] = {0x1.11111122f8b84p-8, -0x1.1110d1552c929p-10,
                                      0x1.381330df6d7e7p-13, -0x1.04c0395ddb1e7p-16,
                                      0x1.5baf3bc6c26fdp-20};
    static constexpr double kP3 = 0x1.3c02b63f3628bp-13;
};
template <class S>
BRENN_VEC __m128d TailSeries(__m128d t, __m128d v) {
    __m128d q = Estrin(t, S::kP2);
    if constexpr (requires { S::kP3; }) q = MulAdd(v, Set<double>(S::kP3), q);
    q = MulAdd(v, q, Estrin(t, S::kP1));
    return MulAdd(v, q, Mul(t, Estrin(t, S::kP0)));
}

// F at the N registers x (no NaN) on the grid G of grid_core.h, two parts (HA) or with
// the row's remainder (LA); each step over every register before the next (a round's
// table loads together, its series' chains side by side).
template <class G, class S, bool kTwoPart, int N>
BRENN_VEC void TailGridRound(const __m128d* x, __m128d* y) {
    // Carried between the steps: the shifted sums (the row index and xj), d and the series;
    // the rest is read or made again where it is used.
    __m128d sh[N], d[N], s1[N];
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        __m128d mirror = G::kMirrorPositive ? Xor(x[k], SignMask<double>()) : x[k];
        __m128d lim = IfThenElse(mirror, Set<double>(G::kMirrorLimit), Set<double>(G::kLimit));
        __m128d a = Max(Min(Abs(x[k]), lim), Set<double>(0x1p-256));
        sh[k] = Add(a, Set<double>(G::kShifter));
        __m128d xj = Sub(sh[k], Set<double>(G::kShifter));
        d[k] = Sub(a, xj);
        s1[k] = Mul(d[k], Add(xj, a)); // t, the series' variable
    }
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        s1[k] = TailSeries<S>(s1[k], Mul(d[k], d[k]));
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        __m128d mirror = G::kMirrorPositive ? Xor(x[k], SignMask<double>()) : x[k]; // sign bit
        I64x2 row = AsInt(sh[k]);
        const double* r0 = G::kRows[uint32_t(LowWord<0>(row))];
        const double* r1 = G::kRows[uint32_t(LowWord<1>(row))];
        __m128d v, vlo, deriv, dl;
        LoadTransposed(r0, r1, v, vlo);
        LoadTransposed(r0 + 2, r1 + 2, deriv, dl);
        __m128d flip = And(mirror, SignMask<double>());
        __m128d kk = IfThenElse(mirror, Set<double>(G::kMirror), Zero<double>());
        __m128d vs = Xor(v, flip);
        __m128d r;
        if constexpr (kTwoPart) {
            __m128d dh = And(d[k], AsFloat(Set<uint64_t>(0xFFFFFFFFF8000000ull)));
            __m128d ph = Mul(deriv, dh);
            __m128d pl = Add(Mul(deriv, Sub(d[k], dh)), Mul(dl, d[k]));
            __m128d rest = Add(Mul(Add(ph, pl), s1[k]), pl);
            __m128d hi, e1, sum, e2;
            FastTwoSum(kk, vs, hi, e1);
            FastTwoSum(hi, Xor(ph, flip), sum, e2);
            r = Add(sum, Add(Add(e1, e2), Xor(Add(vlo, rest), flip)));
        } else {
            __m128d w = Mul(Add(deriv, dl), d[k]);
            r = Add(Add(kk, vs), Xor(Add(vlo, Add(w, Mul(w, s1[k]))), flip));
        }
        // xj < kScaleFrom, on the shifted sum (exact: kShifter + kScaleFrom is a double).
        __m128d scaled = Lt(sh[k], Set<double>(G::kShifter + G::kScaleFrom));
        y[k] = Mul(r, IfThenElse(scaled, Set<double>(1.0), Set<double>(0x1p-128)));
    }
}
template <class G, class S, bool kTwoPart>
BRENN_VEC __m128d TailGrid(__m128d x) {
    __m128d y;
    TailGridRound<G, S, kTwoPart, 1>(&x, &y);
    return y;
}

// The body of a function Fn of tail_body.h (its grid, tail limit and side, and name)
// with the series S, in rounds of sixteen. Every finite lane runs the grid, |x| held at
// its ends: beyond the tail limit the result rounds to +0, past the mirrored side's
// limit it is K. The frame reports the results below the least normal, zeros and
// denormals, with status 4 (kUnderflowLanes); NaNs and infinities are the special lanes.
template <class Fn, class S, bool kTwoPart>
struct TailDoubleBody {
    using T = double;
    using V = Vec<double>;
    static constexpr const char* kName = Fn::kNameD;
    static constexpr bool kUnderflowLanes = true;
    static constexpr int kRound = 16;
    // The special lanes (NaNs, infinities), and x with them at 0.
    BRENN_VEC static V Held(V x, V& special) {
        special = RangeTest(x, Range64{0x7FFFFFFFFFFFFFFFull, 0u, 0x7FEFFFFFFFFFFFFFull});
        return IfThenElse(special, Zero<double>(), x);
    }
    static int EvalWide(const V* x, V* y) {
        constexpr int N = 8;
        V xs[N], special[N], any = Zero<double>();
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            xs[k] = Held(x[k], special[k]);
            any = Or(any, special[k]);
        }
        TailGridRound<typename Fn::Grid, S, kTwoPart, N>(xs, y);
        // The lanes' bits only when there is one (NaNs and infinities are rare).
        return __builtin_expect(MaskBits(any) != 0, 0) ? RoundMaskBits(special) : 0;
    }
    static V Eval(V x, V& special) {
        return TailGrid<typename Fn::Grid, S, kTwoPart>(Held(x, special));
    }
    // A NaN comes back quieted, an infinity as the limit of its side.
    static int Scalar(const double* a, double* y) {
        double x = *a;
        *y = __builtin_isnan(x) ? x + x : (x > 0) == Fn::kTailPositive ? 0.0 : Fn::Grid::kMirror;
        return status::kNone;
    }
};

} // namespace brenn::vm

#endif
