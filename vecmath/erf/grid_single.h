/* The evaluation of Erf, Erfc and CdfNorm on single lanes, every single slot: four lanes
 * a register where the double form of grid_core.h has two (Erf HA adds up in double).
 *
 * The grid point xj is found with a single shifter (2^16 for steps of 1/128, 2^17 for
 * 1/64: the row index j is the sum's bits less the shifter's) and d = a - xj is exact.
 * The rows are the single ones of erf_tables.h, {v, D, vlo, dl}, one 16-byte row a lane
 * (LA and EP read its first two columns). The series S1 is grid_core.h's, cut for 2^-27
 * (LA, HA) and 2^-15 (EP) of F, and not taken at all where the cut has no term (Erf EP:
 * |tau/2| is below 2^-16 of F there).
 *   LA, EP: F = v + w*(1 + S1), w = D*d, the mirrored side as K - F: the rounding of v
 *           (half an ulp of F, an ulp where w takes off up to half of v) and the sums'
 *           give about 2 ulp, the LA bound's half.
 *   HA:     erf: S1 on single lanes, then V + (w + w*S1), w = D*d, on double lanes with
 *           the double rows (V, D) of erfRows, rounded once to single (0.501 ulp; no
 *           product underflows in double). Erfc and Q: v + vlo in two parts and the sum
 *           rounded once, (K - v) in two parts + (vlo + d (D + dl + D*S1)), where d D is
 *           at most a tenth of F; about 0.6 ulp (0.63 at worst, Q's far tail).
 * Erfc and CdfNorm run scaled (kScaled): their rows are times 2^100, and K with them, so
 * that no operand in the underflow band is a denormal (each operation with a denormal
 * operand or result costs a microcode assist, some 40 ticks a register). The result
 * comes back by its exponent where it is normal (exactly: the same bits as the unscaled
 * sum), and below the least normal rounded once to the denormal grid: as an integer (LA,
 * EP), or (HA) by summing the two parts again onto 2^-26 (2^-126 scaled), whose binade
 * has the denormals' spacing. The rows end where F is 1 or rounds to 0 (|x| held there).
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

// The rows of the four lanes' indices j (16-byte rows: four singles or two doubles):
// their byte offsets stored once and read back by the scalar unit, one load each (taken
// from the register, each costs an extraction, a sign extension and a shift).
template <class E>
BRENN_VEC void RowsOf(const E (*rows)[16 / sizeof(E)], I32x4 j, const E*& r0, const E*& r1,
                      const E*& r2, const E*& r3) {
    alignas(16) uint32_t offset[4];
    _mm_store_si128(reinterpret_cast<__m128i*>(offset), ShiftLeft<4>(j).v);
    const volatile uint32_t* o = offset; // read from memory, not extracted again
    const char* base = reinterpret_cast<const char*>(rows);
    r0 = reinterpret_cast<const E*>(base + o[0]);
    r1 = reinterpret_cast<const E*>(base + o[1]);
    r2 = reinterpret_cast<const E*>(base + o[2]);
    r3 = reinterpret_cast<const E*>(base + o[3]);
}

template <class G, SeriesCut C, bool kTwoPart, bool kScaled = false>
inline __m128 GridEvalSingle(__m128 x) {
    constexpr float scale = kScaled ? 0x1p100f : 1.0f;
    constexpr float shifter = float(G::kShifter * 0x1p-29);
    // Erf HA: the series on single lanes, the last sum in double on the double rows.
    constexpr bool kWide = kTwoPart && G::kMirror == 0;
    __m128 ax = Abs(x);
    __m128 mirror = Zero<float>(), lim = Set<float>(float(G::kLimitSingle));
    if constexpr (G::kMirror != 0) {
        mirror = G::kMirrorPositive ? Xor(x, SignMask<float>()) : x; // by the sign bit
        lim = IfThenElse(mirror, Set<float>(float(G::kMirrorLimit)), lim);
    }
    // Erfc and Q are F(0) to the last bit below 2^-60: those run at 2^-60, so that
    // u = d^2 raises no underflow. Erf takes u = 0 there instead.
    constexpr bool kHeld = G::kMirror != 0;
    // Erf HA holds |x| by its bits, so that a NaN lane (taken aside by the kernel
    // afterwards) runs at the limit and raises nothing.
    __m128 a = kWide ? AsFloat(Min(AsInt(ax), AsInt(lim))) : Min(ax, lim);
    __m128 tiny = Lt(a, Set<float>(0x1p-60f));
    if constexpr (kHeld) a = Max(a, Set<float>(0x1p-60f));
    __m128 s = Add(a, Set<float>(shifter));
    __m128 xj = Sub(s, Set<float>(shifter));
    __m128 d = Sub(a, xj);
    I32x4 j = Sub(AsInt(s), AsInt(Set<float>(shifter)));
    __m128 v, deriv, vlo = Zero<float>(), dlo = Zero<float>();
    const double *q0, *q1, *q2, *q3;
    if constexpr (kWide) {
        RowsOf(G::kRows, j, q0, q1, q2, q3);
    } else {
        const float *r0, *r1, *r2, *r3;
        RowsOf(G::kRowsSingle, j, r0, r1, r2, r3);
        if constexpr (kTwoPart)
            LoadTransposed(r0, r1, r2, r3, v, deriv, vlo, dlo);
        else
            LoadTransposed(r0, r1, r2, r3, v, deriv);
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
    __m128 r;
    if constexpr (!kTwoPart) {
        __m128 w = Mul(deriv, d);
        __m128 c = C.n0 > 0 ? Add(w, Mul(w, s1)) : w;
        r = G::kMirror == 0 ? Add(v, c) : Add(Add(k, Xor(v, flip)), Xor(c, flip));
    } else if constexpr (G::kMirror == 0) {
        // erf: F = V + (w + w*S1), w = D*d, in double with the double rows (V, D), and
        // rounded once to single; S1's single rounding weighs 2^-24 of a share below
        // 2^-5 of F. No product underflows in double (erf below 2^-126 included).
        __m128d v0 = LoadLanes(q0, q1), v1 = LoadLanes(q2, q3);
        __m128d d0 = LoadLanes(q0 + 1, q1 + 1), d1 = LoadLanes(q2 + 1, q3 + 1), w0, w1;
        w0 = Mul(d0, WidenLower(d));
        w1 = Mul(d1, WidenUpper(d));
        r = Narrow(Add(v0, Add(w0, Mul(w0, WidenLower(s1)))),
                   Add(v1, Add(w1, Mul(w1, WidenUpper(s1)))));
    } else {
        __m128 c = Mul(d, Add(deriv, Add(dlo, Mul(deriv, s1))));
        __m128 h, e;
        FastTwoSum(k, Xor(v, flip), h, e); // k = 0, or k = K > v
        __m128 rest = Add(e, Xor(Add(vlo, c), flip));
        r = Add(h, rest);
        if constexpr (kScaled) {
            // A result below the least normal (2^-26 scaled) is summed again onto
            // B = 2^-26, whose binade has the denormals' spacing (2^-49 scaled): that sum
            // rounds once to the denormal grid, and its significand is the denormal's bits.
            const __m128 least = Set<float>(0x1p-26f);
            __m128 band = Lt(r, least), b = And(band, least), hb, eb;
            FastTwoSum(b, h, hb, eb);
            I32x4 denormal = Sub(AsInt(Add(hb, Add(eb, rest))), AsInt(least));
            I32x4 normal = Sub(AsInt(r), Set<int32_t>(kSingleScale << 23));
            return IfThenElse(band, AsArithmeticDenormal(denormal), AsFloat(normal));
        }
    }
    if constexpr (kScaled) r = UnscaleSingle(r);
    return r;
}

} // namespace brenn::vm

#endif
