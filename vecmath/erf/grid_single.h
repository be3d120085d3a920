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

#include "vecmath/erf/grid_core.h"

namespace brenn::vm {

inline constexpr int kSingleScale = 100; // the rows' scale on single lanes, 2^100

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

// The rows of the four lanes' indices j (rows of 16 or 32 bytes): their byte offsets
// stored once and read back by the scalar unit, one load each (taken from the register,
// each costs an extraction, a sign extension and a shift).
template <class Row>
BRENN_VEC void RowsOf(const Row* rows, I32x4 j, const Row*& r0, const Row*& r1, const Row*& r2,
                      const Row*& r3) {
    static_assert(sizeof(Row) == 16 || sizeof(Row) == 32);
    alignas(16) uint32_t offset[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(offset),
                    ShiftLeft<sizeof(Row) == 16 ? 4 : 5>(j).v);
    const volatile uint32_t* o = offset; // read from memory, not extracted again
    const char* base = reinterpret_cast<const char*>(rows);
    r0 = reinterpret_cast<const Row*>(base + o[0]);
    r1 = reinterpret_cast<const Row*>(base + o[1]);
    r2 = reinterpret_cast<const Row*>(base + o[2]);
    r3 = reinterpret_cast<const Row*>(base + o[3]);
}

template <class G, SeriesCut C, bool kTwoPart, bool kScaled = false>
inline __m128 GridEvalSingle(__m128 x) {
    constexpr float scale = kScaled ? 0x1p100f : 1.0f;
    constexpr float shifter = float(G::kShifter * 0x1p-29);
    // HA: the series on single lanes, the last sum in double on the double rows.
    constexpr bool kWide = kTwoPart;
    __m128 ax = Abs(x);
    __m128 mirror = Zero<float>(), lim = Set<float>(float(G::kLimitSingle));
    if constexpr (G::kMirror != 0) {
        mirror = G::kMirrorPositive ? Xor(x, SignMask<float>()) : x; // by the sign bit
        lim = IfThenElse(mirror, Set<float>(float(G::kMirrorLimit)), lim);
    }
    // Erfc and Q are F(0) to the last bit below 2^-60: those run at 2^-60, so that
    // u = d^2 raises no underflow. Erf takes u = 0 there instead.
    constexpr bool kHeld = G::kMirror != 0;
    // HA holds |x| by its bits, so that a NaN lane (Erf takes it aside afterwards) runs
    // at the limit and raises nothing.
    __m128 a = kWide ? AsFloat(Min(AsInt(ax), AsInt(lim))) : Min(ax, lim);
    __m128 tiny = Lt(a, Set<float>(0x1p-60f));
    if constexpr (kHeld) a = Max(a, Set<float>(0x1p-60f));
    __m128 s = Add(a, Set<float>(shifter));
    __m128 xj = Sub(s, Set<float>(shifter));
    __m128 d = Sub(a, xj);
    I32x4 j = Sub(AsInt(s), AsInt(Set<float>(shifter)));
    __m128 v, deriv;
    using Row = std::remove_pointer_t<decltype(G::kRows)>; // double[W]
    const Row *q0, *q1, *q2, *q3;
    if constexpr (kWide) {
        RowsOf(G::kRows, j, q0, q1, q2, q3);
    } else {
        using RowS = std::remove_pointer_t<decltype(G::kRowsSingle)>;
        const RowS *r0, *r1, *r2, *r3;
        RowsOf(G::kRowsSingle, j, r0, r1, r2, r3);
        LoadTransposed(*r0, *r1, *r2, *r3, v, deriv);
    }
    __m128 s1 = Zero<float>();
    if constexpr (C.n0 > 0) {
        __m128 tau = Mul(Mul(Set<float>(float(G::kTauScale)), xj), d);
        __m128 u = Mul(d, d);
        if constexpr (G::kUScale != 1.0) u = Mul(u, Set<float>(float(G::kUScale)));
        if constexpr (!kHeld) u = IfThenZeroElse(tiny, u);
        s1 = SeriesLessOne<C>(tau, u);
    }
    __m128 flip = Zero<float>(), k = Zero<float>();
    if constexpr (G::kMirror != 0) {
        flip = And(mirror, SignMask<float>());
        k = IfThenElse(mirror, Set<float>(float(G::kMirror) * scale), Zero<float>());
    }
    if constexpr (kTwoPart) {
        // F = V + (w + w*S1), w = D*d, in double with the double rows (V, D; or V, dh:
        // dh's 2^-27 weighs below 2^-3 of F),
        // the mirrored side as K - F, rounded once to single (below the least normal
        // too); S1's single rounding weighs 2^-24 of a share below 2^-3 of F. No operand
        // or product is a denormal in double, and these rows are unscaled in single's
        // range.
        constexpr int W = sizeof(Row) / sizeof(double);
        __m128 kf = Zero<float>();
        if constexpr (G::kMirror != 0) kf = IfThenElse(mirror, Set<float>(float(G::kMirror)), kf);
        auto sum = [](__m128d dd, __m128d sd, __m128d kd, __m128d fd, const Row* p, const Row* q) {
            __m128d deriv = LoadLanes(&(*p)[W / 2], &(*q)[W / 2]); // D, or dh
            __m128d w = Mul(deriv, dd);
            __m128d f = Add(LoadLanes(&(*p)[0], &(*q)[0]), Add(w, Mul(w, sd)));
            if constexpr (G::kMirror != 0) f = Add(kd, Xor(f, fd)); // fd: -0 or +0
            return f;
        };
        // The flip's sign mask widens to double's: -0 to -0.
        return Narrow(sum(WidenLower(d), WidenLower(s1), WidenLower(kf), WidenLower(flip), q0, q1),
                      sum(WidenUpper(d), WidenUpper(s1), WidenUpper(kf), WidenUpper(flip), q2, q3));
    } else {
        __m128 w = Mul(deriv, d);
        __m128 c = C.n0 > 0 ? Add(w, Mul(w, s1)) : w;
        __m128 r = G::kMirror == 0 ? Add(v, c) : Add(Add(k, Xor(v, flip)), Xor(c, flip));
        if constexpr (kScaled) r = UnscaleSingle(r);
        return r;
    }
}

} // namespace brenn::vm

#endif
