/* The cube-root core of Cbrt, InvCbrt and Pow2o3, on double lanes, and its single-lane
 * form (at the end).
 *
 * x = 2^(3q) * M with M = 2^j * m in [1, 8), m the significand in [1, 2): the biased
 * exponent divided by 3 by an integer product with 0xAAAB (the high part), j the
 * remainder. The seed z ~ M^(-1/3) is a quartic in m times 2^(-j/3), about 15 bits.
 * Then e = M*z^3 - 1, and each root is a product times a short series in e:
 *   M^(-1/3) = z * (1 + e)^(-1/3),  M^(1/3) = M*z^2 * (1 + e)^(-2/3),
 *   M^(2/3) = M*z * (1 + e)^(-1/3),
 * and the result's exponent is q, -q or 2q added to the field. For double HA z is first
 * cut to 15 bits, so that its square and cube are exact, and M into its leading 8 bits
 * mh, whose products with them are exact, and the rest ml (below 2^-7 of M): e to about
 * 2^-61 and the leading product in two parts, so that in effect only the last addition
 * rounds, within about 0.51 ulp. The double seed runs by Horner's rule (fewer operations:
 * in rounds of sixteen the bodies are bound by them), the HA series by Estrin's scheme
 * (measured faster: its chain ends the body). Double LA and EP take a fitted cubic in e in
 * place of the series' four terms. */
#ifndef BRENN_VECMATH_POWER_ROOT_CORE_H
#define BRENN_VECMATH_POWER_ROOT_CORE_H

#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

enum class Root { Cbrt, InvCbrt, Pow2o3 };

// m^(-1/3) on [1, 2], fitted by tools/power/cbrt_seed.sollya (relative error 2^-14.7).
constexpr double kRootSeed[] = {0x1.ab85acp0, -0x1.2c4234p0, 0x1.641702p-1, -0x1.c519b2p-3,
                                0x1.d47154p-6};
// 2^(-j/3) in each 64-bit lane for j in 0 to 2 (in the lane's low word), cut to its high
// word (20 bits, far finer than the seed): a byte shuffle of the table of the high words,
// in place of two loads and the extractions of their indices.
BRENN_VEC __m128d RootScaleOf(I64x2 j) {
    const I64x2 words = SetLanes(int64_t(0x3FE965FE3FF00000), int64_t(0x3FE428A2));
    return AsFloat(LookupFourHigh(BitCast<I32x4>(words), j));
}
// The binomial series of (1 + e)^(-1/3) - 1 and (1 + e)^(-2/3) - 1, from e upward.
constexpr double kThirdSeries[] = {-1.0 / 3, 2.0 / 9, -14.0 / 81, 35.0 / 243};
constexpr double kTwoThirdsSeries[] = {-2.0 / 3, 5.0 / 9, -40.0 / 81, 110.0 / 243};

// e*Q(e), the cubic with least absolute error to (1 + e)^(-2/3) - 1 and (1 + e)^(-1/3) - 1
// over |e| <= 2^-13, fitted by tools/power/cbrt_double_la.sollya (2^-55.75 and 2^-57.25;
// the series' fourth term, which it replaces, reaches 2^-53.5).
constexpr double kTwoThirdsCubic[] = {-0x1.5555555555555p-1, 0x1.1c71c74c720bap-1,
                                      -0x1.f9add4566700dp-2};
constexpr double kThirdCubic[] = {-0x1.5555555555555p-2, 0x1.c71c7204340eep-3,
                                  -0x1.61f9ae4789b8bp-3};

// The root of M from its seed z, with e = M*z^3 - 1 and the products rounded, in either
// precision: M*z^2, z or M*z times 1 + e*Q(e). Terms: 0, the seed's 14 bits; 1, the
// series' first term (single LA: with e near 2^-12.6 the term left out is below 2^-28,
// under single's own roundings); 3, the fitted cubic (double LA).
template <Root R, int Terms, class V>
BRENN_VEC V RootFinish(V z, V bigM) {
    using T = ElemOf<V>;
    const V z2 = Mul(z, z);
    const V lead = R == Root::InvCbrt ? z : Mul(bigM, R == Root::Cbrt ? z2 : z);
    if constexpr (Terms == 0) {
        return lead;
    } else {
        // M*z^3 from the lead where it holds M: one product fewer.
        const V mz3 = R == Root::Cbrt     ? Mul(lead, z)
                      : R == Root::Pow2o3 ? Mul(lead, z2)
                                          : Mul(bigM, Mul(z2, z));
        const V e = Sub(mz3, Set<T>(T(1)));
        if constexpr (Terms == 1) {
            const auto& c = R == Root::Cbrt ? kTwoThirdsSeries : kThirdSeries;
            return Add(lead, Mul(Mul(lead, Set<T>(T(c[0]))), e));
        } else {
            static_assert(Terms == 3 && sizeof(T) == 8, "the cubic is the double LA step");
            // Q by Estrin's scheme beside lead*e, a shorter chain.
            const auto& c = R == Root::Cbrt ? kTwoThirdsCubic : kThirdCubic;
            return Add(lead, Mul(Mul(lead, e), Estrin(e, c)));
        }
    }
}

// The single HA step on widened lanes: lead*p(e), p the line fitted to (1 + e)^(-2/3) or
// (1 + e)^(-1/3) by tools/power/cbrt_single_wide.sollya (2^-27.9 and 2^-29.1 relative),
// written as lead*((p0 - p1) + p1*M*z^3), so that M*z^3 is not formed apart from the lead:
// a chain of five operations (double EP takes it too: 27.9 and 29.1 bits, `Scaled` off).
// The result comes times 2^-43q'', the offset of the single
// form's exponent (2^-43 for Cbrt, 2^43 for InvCbrt, 2^-86 for Pow2o3), taken exactly
// with k and p1 (the result stays a normal single), so that q' goes into the exponent
// field as it is.
template <Root R, bool Scaled = true>
inline __m128d RootFinishLine(__m128d z, __m128d bigM) {
    constexpr double s = !Scaled                ? 1.0
                         : R == Root::Cbrt    ? 0x1p-43
                         : R == Root::InvCbrt ? 0x1p43
                                              : 0x1p-86;
    constexpr double p1 = s * (R == Root::Cbrt ? -0x1.5555557cd6e9ep-1 : -0x1.555555781948bp-2);
    constexpr double k = s * (R == Root::Cbrt ? 0x1.aaaaaad032916p0 : 0x1.5555556522c3fp0);
    const __m128d z2 = Mul(z, z);
    __m128d lead, t;
    if constexpr (R == Root::Cbrt) {
        lead = Mul(bigM, z2);
        t = Mul(lead, Mul(z, Set<double>(p1)));
    } else if constexpr (R == Root::Pow2o3) {
        lead = Mul(bigM, z);
        t = Mul(lead, Mul(z2, Set<double>(p1)));
    } else {
        lead = z;
        t = Mul(Mul(bigM, Mul(z, Set<double>(p1))), z2);
    }
    return Mul(lead, Add(Set<double>(k), t));
}

// The word added to the root's bits: the exponent q = qb - 341 (3q = be - 1023 - j),
// negated or doubled, in its field, plus x's sign bit where the root is odd (the root is
// positive, so the sign's addition sets the top bit).
template <Root R>
BRENN_VEC I64x2 ExponentWord(I64x2 qb, I64x2 sign) {
    I64x2 q = Sub(qb, Set<int64_t>(Format<double>::kBias / 3));
    if constexpr (R == Root::InvCbrt) q = Sub(Set<int64_t>(0), q);
    if constexpr (R == Root::Pow2o3) q = Add(q, q);
    const I64x2 w = ShiftLeft<Format<double>::kMantBits>(q);
    return R == Root::Pow2o3 ? w : Add(w, sign);
}

// |x|^a for a = -1/3, 1/3, 2/3 of normal double lanes, with x's sign where the root is
// odd (Cbrt, InvCbrt): HA the exact series (Terms 4, `Exact`), LA the fitted cubic (3), EP
// the fitted line (2). M registers at once, each step over all of them before the next
// (the split, the seeds, the series, the exponents), so that their chains overlap.
// At HA the exponent word is formed in the split, so that neither x nor q stays live
// beside M and the seed, and the seeds and the e are held apart (Opaque): the compiler
// otherwise sinks each register's seed and e into its series, one long chain a register
// after another, which the scheduler cannot overlap (rounds of sixteen measured 10 %
// faster so; the round taken in parts of two or four registers, fewer spills, slower).
template <Root R, int Terms, bool Exact, int M>
BRENN_VEC void RootRound(const __m128d* x, __m128d* v) {
    using F = Format<double>;
    I64x2 adj[M];
    __m128d m[M], bigM[M], z[M];
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        const I64x2 xs = AsInt(x[k]);
        // |x| by the float And in the line and cubic rounds, the integer one in the exact
        // round (each measured a few per cent faster where it stands).
        const I64x2 xi = Exact ? And(xs, Set<uint64_t>(F::kAbs)) : AsInt(Abs(x[k]));
        const I64x2 be = ShiftRight<F::kMantBits>(xi); // biased exponent, 1 to 2046
        const I64x2 qb = ShiftRight<17>(MulLowWords(be, Set<int64_t>(0xAAAB)));
        const I64x2 j = Sub(be, Add(qb, Add(qb, qb)));
        const I64x2 mant = And(xi, Set<uint64_t>(F::kMant));
        m[k] = AsFloat(Or(mant, Set<uint64_t>(F::kOne)));
        bigM[k] = AsFloat(Or(mant, ShiftLeft<F::kMantBits>(Add(j, Set<int64_t>(F::kBias)))));
        z[k] = RootScaleOf(j);
        adj[k] = qb;
        if constexpr (Exact) adj[k] = ExponentWord<R>(qb, Xor(xs, xi));
    }
#pragma GCC unroll 8
    for (int k = 0; k < M; ++k) {
        z[k] = Mul(Horner(m[k], kRootSeed), z[k]);
        if constexpr (Exact) z[k] = Opaque(z[k]);
    }
    if constexpr (Exact) {
        // z cut to 15 bits: z^2 and z^3 are exact, and so are their products with mh
        // (8 bits); mh*z^3 - 1 is exact and ml*z^3 adds its rounding at 2^-61; the lead
        // is mh*f exactly plus ml*f. The root is lead + (lead*e)*Q(e), lead*e beside Q.
        static_assert(Terms == 4, "the HA series has four terms");
        __m128d e[M], hi[M], lo[M];
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k) {
            const __m128d zc = And(z[k], AsFloat(Set<uint64_t>(0xFFFFFFC000000000ull)));
            const __m128d z2 = Mul(zc, zc);
            const __m128d mh = And(bigM[k], AsFloat(Set<uint64_t>(0xFFFFE00000000000ull)));
            const __m128d ml = Sub(bigM[k], mh);
            if constexpr (R == Root::Pow2o3) {
                // mh*z (23 bits) beside z^2, then their product: mh*z^3 one product
                // sooner, mh*z and ml*z shared with the lead.
                e[k] = Opaque(
                    Add(Sub(Mul(Mul(mh, zc), z2), Set<double>(1.0)), Mul(Mul(ml, zc), z2)));
            } else {
                // z^3 exact (45 bits), mh*z^3 exact, ml*z^3 rounded once: one product
                // fewer than through mh*z and ml*z, which the lead does not share here.
                const __m128d z3 = Mul(zc, z2);
                e[k] = Opaque(Add(Sub(Mul(mh, z3), Set<double>(1.0)), Mul(ml, z3)));
            }
            if constexpr (R == Root::InvCbrt) {
                hi[k] = zc;
            } else {
                const __m128d f = R == Root::Cbrt ? z2 : zc;
                hi[k] = Mul(mh, f);
                lo[k] = Mul(ml, f);
            }
        }
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k) {
            const __m128d q = Estrin(e[k], R == Root::Cbrt ? kTwoThirdsSeries : kThirdSeries);
            if constexpr (R == Root::InvCbrt)
                v[k] = Add(hi[k], Mul(Mul(hi[k], e[k]), q));
            else
                v[k] = Add(hi[k], Add(lo[k], Mul(Mul(Add(hi[k], lo[k]), e[k]), q)));
            v[k] = AsFloat(Add(AsInt(v[k]), adj[k]));
        }
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k) {
            if constexpr (Terms == 2)
                v[k] = RootFinishLine<R, false>(z[k], bigM[k]);
            else
                v[k] = RootFinish<R, Terms>(z[k], bigM[k]);
        }
#pragma GCC unroll 8
        for (int k = 0; k < M; ++k)
            v[k] = AsFloat(Add(AsInt(v[k]), ExponentWord<R>(adj[k], AsInt(SignBit(x[k])))));
    }
}

template <Root R, int Terms, bool Exact>
BRENN_VEC __m128d RootOf(__m128d x) {
    __m128d v;
    RootRound<R, Terms, Exact, 1>(&x, &v);
    return v;
}

// The single-lane form, positive normal |x|, all in integer lanes up to the seed: the
// biased exponent plus 2 (3 to 256) is kd = 3q' + j with q' = q + 43, and kd*0x5556 =
// q'*2^16 + (2q' + 21846j) in 16-bit halves (the low half below 2^16: one pair of 16-bit
// multiplies serves), so that the high half is q' and bits 10 and 11 of the low one are j;
// M = m * 2^j by j put into m's exponent field, and the seed's scale 2^(-j/3) by a byte
// shuffle of a four-entry table on those bits. Then the series in single (LA, within
// about 2 ulp; EP takes the seed's products alone, 13 bits, or for Cbrt its fixed cubic
// in m) or, `Wide`, a fitted line in place of its first two terms on widened lanes,
// rounded once to single (HA).
constexpr float kRootSeedS[] = {0x1.ab85acp0f, -0x1.2c4234p0f, 0x1.641702p-1f, -0x1.c519b2p-3f,
                                0x1.d47154p-6f};
// 2^(-j/3) for j = 0, 1, 2 (the fourth entry unused).
alignas(16) constexpr float kRootScaleS[4] = {1.0f, 0x1.965feap-1f, 0x1.428a3p-1f, 1.0f};

// Cbrt's single EP: p = ((c3*m + c2)*m + c1)*m + c0, the body's fixed cubic for m^(1/3) on
// [1, 2] (0x3F0D6308, 0x3F168BB1, 0xBE276FE8, 0x3CBE124C), by Horner's rule from c3 down,
// times 2^(j/3): the root of M without the seed's square and its product with M.
constexpr float kCbrtEPS[] = {0x1.1ac61p-1f, 0x1.2d1762p-1f, -0x1.4edfdp-3f, 0x1.7c2498p-6f};
// 2^(j/3 - 43) for j = 0, 1, 2 (the fourth entry unused): the offset of q' taken with the
// scale, exactly, so that q' goes into the exponent field as it is.
alignas(16) constexpr float kCbrtScaleS[4] = {0x1p-43f, 0x1.428a3p-43f, 0x1.965feap-43f, 0x1p-43f};

// The split of |x| (the exponent's third q', j's bits, the significand m) and the seed z of
// M = m * 2^j, as stated above.
struct SingleSplit {
    I32x4 qd, jbits; // q'; j in bits 10 and 11
    __m128 m;
};
BRENN_VEC SingleSplit SplitSingle(__m128 ax) {
    using F = Format<float>;
    const I32x4 xi = AsInt(ax);
    const I32x4 kd = Add(ShiftRight<F::kMantBits>(xi), Set<int32_t>(2));
    const I32x4 third = Set<int32_t>(0x5556);
    const I32x4 mant = And(xi, Set<uint32_t>(F::kMant));
    return {MulHigh16(kd, third), MulLow16(kd, third), AsFloat(Or(mant, Set<uint32_t>(F::kOne)))};
}
BRENN_VEC void SeedSingle(const SingleSplit& s, __m128& bigM, __m128& z) {
    using F = Format<float>;
    // M = m * 2^j: bits 10 and 11 of jbits moved to 23 and 24 and added to m's exponent.
    const I32x4 jfield =
        And(ShiftLeft<F::kMantBits - 10>(s.jbits), Set<int32_t>(3 << F::kMantBits));
    bigM = AsFloat(Add(AsInt(s.m), jfield));
    z = Mul(Estrin(s.m, kRootSeedS),
            AsFloat(LookupFourBySecondByte(AsInt(Load(kRootScaleS)), s.jbits)));
}

// The single HA form (`Wide`) over M registers at once, each step over all of them before
// the next (the seeds, the lines in double, the exponents), so that their chains overlap:
// the rounds of sixteen take four registers, RootOf one.
template <Root R, int M>
BRENN_VEC void RootRoundWide(const __m128* ax, __m128* v) {
    using F = Format<float>;
    I32x4 qd[M];
    __m128 z[M], bigM[M];
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k) {
        const SingleSplit s = SplitSingle(ax[k]);
        qd[k] = s.qd;
        SeedSingle(s, bigM[k], z[k]);
    }
    __m128d lo[M], hi[M];
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k) {
        lo[k] = RootFinishLine<R>(WidenLower(z[k]), WidenLower(bigM[k]));
        hi[k] = RootFinishLine<R>(WidenUpper(z[k]), WidenUpper(bigM[k]));
    }
#pragma GCC unroll 4
    for (int k = 0; k < M; ++k) {
        // q' itself, negated or doubled: the offset came with the line's constants.
        const __m128 w = Narrow(lo[k], hi[k]);
        if constexpr (R == Root::InvCbrt)
            v[k] = AsFloat(Sub(AsInt(w), ShiftLeft<F::kMantBits>(qd[k])));
        else
            v[k] = AsFloat(Add(AsInt(w), ShiftLeft<F::kMantBits + (R == Root::Pow2o3)>(qd[k])));
    }
}

template <Root R, int Terms, bool Wide>
inline __m128 RootOf(__m128 ax) {
    using F = Format<float>;
    if constexpr (Wide) {
        __m128 v;
        RootRoundWide<R, 1>(&ax, &v);
        return v;
    }
    const SingleSplit s = SplitSingle(ax);
    if constexpr (R == Root::Cbrt && Terms == 0) {
        const __m128 v = Mul(Horner(s.m, kCbrtEPS),
                             AsFloat(LookupFourBySecondByte(AsInt(Load(kCbrtScaleS)), s.jbits)));
        return AsFloat(Add(AsInt(v), ShiftLeft<F::kMantBits>(s.qd)));
    }
    __m128 bigM, z;
    SeedSingle(s, bigM, z);
    const __m128 v = RootFinish<R, Terms>(z, bigM);
    // The exponent q = q' - 43, negated for InvCbrt and doubled for Pow2o3.
    I32x4 q = Sub(s.qd, Set<int32_t>(43));
    if constexpr (R == Root::InvCbrt) q = Sub(Set<int32_t>(0), q);
    if constexpr (R == Root::Pow2o3) q = Add(q, q);
    return AsFloat(Add(AsInt(v), ShiftLeft<F::kMantBits>(q)));
}

} // namespace brenn::vm

#endif
