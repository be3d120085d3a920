/* The evaluation of Erf, Erfc and CdfNorm on single lanes, every single slot: four lanes
 * a register where the double form of grid_core.h has two (HA adds up on double lanes).
 *
 * The grid point xj is found with a single shifter (2^16 for steps of 1/128, 2^17 for
 * 1/64: the row index j is the sum's bits less the shifter's) and d = a - xj is exact.
 * LA and EP read the first two columns (v, D) of the single rows of erf_tables.h, one
 * 16-byte row a lane; HA the double rows (V and D, or V and dh). The series S1
 * is grid_core.h's, cut for 2^-27 (LA, HA) and 2^-15 (EP) of F, and not taken at all
 * where the cut has no term (Erf EP: |tau/2| is below 2^-16 of F there).
 *   LA, EP: F = v + w*(1 + S1), w = D*d, the mirrored side as K - F: the rounding of v
 *           (half an ulp of F, an ulp where w takes off up to half of v) and the sums'
 *           give about 2 ulp, the LA bound's half.
 *   HA:     S1 on single lanes, then V + (w + w*S1), w = D*d, and K - that on the
 *           mirrored side, on double lanes, rounded once to single, below the least
 *           normal too (0.52 ulp at worst; in double no operand or product is a
 *           denormal, and the double rows are unscaled over single's range).
 * Erfc and CdfNorm LA and EP run scaled (kScaled): their rows are times 2^100, and K with
 * them, so that no operand in the underflow band is a denormal (each operation with a
 * denormal operand or result costs a microcode assist, some 40 ticks a register). The
 * result comes back by its exponent where it is normal (exactly: the same bits as the
 * unscaled sum), and below the least normal rounded once to the denormal grid as an
 * integer. The rows end where F is 1 or rounds to 0 (|x| held there).
 * NaNs are kept out of these rows by the kernels. */
#ifndef BRENN_VECMATH_ERF_GRID_SINGLE_H
#define BRENN_VECMATH_ERF_GRID_SINGLE_H

#include <bit>

#include "vecmath/erf/grid_core.h"

namespace brenn::vm {

inline constexpr int kSingleScale = 100; // the rows' scale on single lanes, 2^100

// A denormal made from its bits, as arithmetic would give it: 0 when the kernel runs
// with denormals flushed (under DAZ the maximum reads it as 0; Max raises no assist).
BRENN_VEC __m128 AsArithmeticDenormal(I32x4 bits) {
    return Max(AsFloat(bits), Zero<float>());
}

// r = F * 2^100 (F >= 0) back to F: below 2^-26 (F below 2^-126), F's denormal bits are
// r * 2^49 rounded to an integer, else r's bits less 100 in the exponent. The larger of
// the two as integers is the one that applies: below 2^-26 the second is below the
// first (negative from 2^-27 down), from 2^-26 on the first is held at 2^23, the second's
// least. The result is a denormal made so from its bits (AsArithmeticDenormal's maximum
// with 0, which leaves the normal ones as they are).
BRENN_VEC __m128 UnscaleSingle(__m128 r) {
    static_assert(kSingleScale == 100);
    I32x4 denormal = RoundToInt(Mul(Min(r, Set<float>(0x1p-26f)), Set<float>(0x1p49f)));
    I32x4 normal = Sub(AsInt(r), Set<int32_t>(kSingleScale << 23));
    return AsArithmeticDenormal(Max(denormal, normal));
}

// The rows of the four lanes' indices j (rows of 16 or 32 bytes), given as j + bias in
// each lane (the shifted sum's bits; bias those of the shifter): their byte offsets, less
// the bias's (in 32 bits: no lane's wraps), stored once and read back by the scalar unit,
// one load each (taken from the register, each costs an extraction, a sign extension and
// a shift), and added to the table's address less the bias's offset.
template <class Row>
BRENN_VEC void RowsOf(const Row* rows, I32x4 biased, uint32_t bias, const Row*& r0, const Row*& r1,
                      const Row*& r2, const Row*& r3) {
    static_assert(sizeof(Row) == 16 || sizeof(Row) == 32);
    constexpr int kShift = sizeof(Row) == 16 ? 4 : 5;
    alignas(16) uint32_t offset[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(offset), ShiftLeft<kShift>(biased).v);
    const volatile uint32_t* o = offset; // read from memory, not extracted again
    const uintptr_t base = reinterpret_cast<uintptr_t>(rows) - uint32_t(bias << kShift);
    r0 = reinterpret_cast<const Row*>(base + o[0]);
    r1 = reinterpret_cast<const Row*>(base + o[1]);
    r2 = reinterpret_cast<const Row*>(base + o[2]);
    r3 = reinterpret_cast<const Row*>(base + o[3]);
}

// The steps of the evaluation on one register: the grid point and the rows, the series,
// and the sum (GridEvalSingle takes them in turn; GridEvalSingleRound takes each over a
// round's registers before the next).
template <class G, bool kWide>
struct SinglePoint {
    using Row = std::remove_pointer_t<decltype(G::kRows)>; // double[W]
    __m128 xj, d, tiny;
    __m128 v, deriv;              // the single rows' (v, D): LA, EP
    const Row *q0, *q1, *q2, *q3; // the double rows: HA
};

// Erf's `top` gets the largest |x| as an integer (above +infinity's bits for a NaN).
template <class G, bool kWide>
BRENN_VEC SinglePoint<G, kWide> SingleNearest(__m128 x, I32x4& top) {
    constexpr float shifter = float(G::kShifter * 0x1p-29);
    SinglePoint<G, kWide> p;
    __m128 ax = Abs(x);
    __m128 lim = Set<float>(float(G::kLimitSingle));
    if constexpr (G::kMirror != 0) {
        __m128 mirror = G::kMirrorPositive ? Xor(x, SignMask<float>()) : x; // by the sign bit
        lim = IfThenElse(mirror, Set<float>(float(G::kMirrorLimit)), lim);
    }
    // |x| held by its bits, so that a NaN lane (Erf takes it aside afterwards) runs at the
    // limit and raises nothing.
    if constexpr (G::kMirror == 0) top = Max(top, AsInt(ax));
    __m128 a = AsFloat(Min(AsInt(ax), AsInt(lim)));
    // Erfc and Q are F(0) to the last bit below 2^-60: those run at 2^-60, so that
    // u = d^2 raises no underflow. Erf takes u = 0 there instead, and on single lanes
    // (LA) below 2^-40, where w*u/3 of the sum would fall below the least normal from
    // 2^-41.5 down (u/3 is below 2^-81 of F there).
    if constexpr (G::kMirror != 0)
        a = Max(a, Set<float>(0x1p-60f));
    else
        p.tiny = Lt(a, Set<float>(kWide ? 0x1p-60f : 0x1p-40f));
    __m128 s = Add(a, Set<float>(shifter));
    p.xj = Sub(s, Set<float>(shifter));
    p.d = Sub(a, p.xj);
    // The row index j is s's bits less the shifter's.
    constexpr uint32_t bias = std::bit_cast<uint32_t>(shifter);
    if constexpr (kWide) {
        RowsOf(G::kRows, AsInt(s), bias, p.q0, p.q1, p.q2, p.q3);
    } else {
        using RowS = std::remove_pointer_t<decltype(G::kRowsSingle)>;
        const RowS *r0, *r1, *r2, *r3;
        RowsOf(G::kRowsSingle, AsInt(s), bias, r0, r1, r2, r3);
        LoadTransposed(*r0, *r1, *r2, *r3, p.v, p.deriv);
    }
    return p;
}

// S - 1 at the point, 0 where the cut has no term.
template <class G, SeriesCut C, bool kWide>
BRENN_VEC __m128 SingleSeries(const SinglePoint<G, kWide>& p) {
    if constexpr (C.n0 > 0) {
        __m128 t = Mul(p.xj, p.d); // tau / kTauScale
        // u / kUScale; d zeroed first where Erf takes u = 0, so that d*d raises no underflow
        __m128 dz = G::kMirror == 0 ? IfThenZeroElse(p.tiny, p.d) : p.d;
        __m128 v = Mul(dz, dz);
        return SeriesLessOne<C, G::kTauScale, G::kUScale>(t, v);
    } else {
        return Zero<float>();
    }
}

template <class G, SeriesCut C, bool kTwoPart, bool kScaled>
BRENN_VEC __m128 SingleSum(__m128 x, const SinglePoint<G, kTwoPart>& p, __m128 s1) {
    constexpr float scale = kScaled ? 0x1p100f : 1.0f;
    using Row = typename SinglePoint<G, kTwoPart>::Row;
    __m128 mirror = Zero<float>(), flip = Zero<float>();
    if constexpr (G::kMirror != 0) {
        mirror = G::kMirrorPositive ? Xor(x, SignMask<float>()) : x; // by the sign bit
        flip = And(mirror, SignMask<float>());
    }
    if constexpr (kTwoPart) {
        // F = V + (w + w*S1), w = D*d, in double with the double rows (V, D; or V, dh:
        // dh's 2^-27 weighs below 2^-3 of F), the mirrored side as K - F, rounded once
        // to single (below the least normal too); S1's single rounding weighs 2^-24 of a
        // share below 2^-3 of F. No operand or product is a denormal in double, and these
        // rows are unscaled in single's range.
        constexpr int W = sizeof(Row) / sizeof(double);
        __m128 kf = Zero<float>();
        if constexpr (G::kMirror != 0) kf = IfThenElse(mirror, Set<float>(float(G::kMirror)), kf);
        auto sum = [](__m128d dd, __m128d sd, __m128d kd, __m128d fd, const Row* r0,
                      const Row* r1) {
            __m128d v, deriv; // V and D, or V and dh
            if constexpr (W == 2) {
                LoadTransposed(*r0, *r1, v, deriv);
            } else {
                v = LoadLanes(&(*r0)[0], &(*r1)[0]);
                deriv = LoadLanes(&(*r0)[W / 2], &(*r1)[W / 2]);
            }
            __m128d w = Mul(deriv, dd);
            __m128d f = Add(v, Add(w, Mul(w, sd)));
            if constexpr (G::kMirror != 0) f = Add(kd, Xor(f, fd)); // fd: -0 or +0
            return f;
        };
        // The flip's sign mask widens to double's: -0 to -0.
        return Narrow(
            sum(WidenLower(p.d), WidenLower(s1), WidenLower(kf), WidenLower(flip), p.q0, p.q1),
            sum(WidenUpper(p.d), WidenUpper(s1), WidenUpper(kf), WidenUpper(flip), p.q2, p.q3));
    } else {
        __m128 w = Mul(p.deriv, p.d);
        __m128 c = C.n0 > 0 ? Add(w, Mul(w, s1)) : w;
        __m128 r;
        if constexpr (G::kMirror == 0) {
            r = Add(p.v, c);
        } else {
            __m128 k = IfThenElse(mirror, Set<float>(float(G::kMirror) * scale), Zero<float>());
            r = Add(Add(k, Xor(p.v, flip)), Xor(c, flip));
        }
        if constexpr (kScaled) r = UnscaleSingle(r);
        return r;
    }
}

// HA: the series on single lanes, the last sum in double on the double rows.
template <class G, SeriesCut C, bool kTwoPart, bool kScaled = false>
inline __m128 GridEvalSingle(__m128 x) {
    I32x4 top = Zero<int32_t>(); // the largest |x|, unused here
    SinglePoint<G, kTwoPart> p = SingleNearest<G, kTwoPart>(x, top);
    return SingleSum<G, C, kTwoPart, kScaled>(x, p, SingleSeries<G, C>(p));
}

// The same on the N registers x, each step over every register before the next (the
// rows' loads of the round issue together, the series' chains side by side); for Erf,
// whether the round has a NaN lane.
template <class G, SeriesCut C, bool kTwoPart, bool kScaled, int N>
BRENN_VEC bool GridEvalSingleRound(const __m128* x, __m128* y) {
    SinglePoint<G, kTwoPart> p[N];
    __m128 s1[N];
    I32x4 top = Set<int32_t>(0);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        p[k] = SingleNearest<G, kTwoPart>(x[k], top);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        s1[k] = SingleSeries<G, C>(p[k]);
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = SingleSum<G, C, kTwoPart, kScaled>(x[k], p[k], s1[k]);
    return G::kMirror == 0 && MaskBits(Gt(top, Set<int32_t>(0x7F800000))) != 0;
}

} // namespace brenn::vm

#endif
