/* ExpInt1 on double lanes: the vector form of the routine of expint1.cpp, for the EP slot
 * of both precisions and the LA and HA slot of single (whose lanes are widened).
 *
 *   0 < x <= 1: E1(x) = -gamma - ln x + x S(x), S a fit of the series of E1 by
 *   tools/gamma/expint1_ep.sollya (degree 6 where the result must hold 26 bits and more,
 *   degree 3 for the single EP slot) and ln x from the logarithm's double core at EP
 *   (about 2^-33);
 *   1 < x: E1(x) = e^-x t G(t), t = 1/x, G by the Taylor coefficients of its cell of t
 *   (expint1_table.h, 16 cells a binade), the first five (2^-32) or three (2^-19.9), and
 *   e^-x by the double exponential's reduction on its table of 64 (64/ln2, ln2/64 in two
 *   parts), with that exponential's quintic (2^-51), or the core's quartic (2^-39.5) for
 *   the single EP slot.
 * A register whose lanes all lie on one side takes that side's form alone. The caller
 * keeps the lanes in [smallest normal, 724]; from about 701.8 on the results are
 * denormal (down to 2^-1054 at 724), given by the body with the status left to the
 * caller. */
#ifndef BRENN_VECMATH_GAMMA_EXPINT1_VEC_H
#define BRENN_VECMATH_GAMMA_EXPINT1_VEC_H

#include "vecmath/explog/exp_core.h"
#include "vecmath/explog/log_core.h"
#include "vecmath/frame/vec.h"
#include "vecmath/gamma/expint1_table.h"

namespace brenn::vm {

// How much of each form: Fine for 26 bits and more, Coarse for the single EP slot.
enum class ExpInt1Grade { Fine, Coarse };

template <ExpInt1Grade G>
struct ExpInt1Vec;
template <>
struct ExpInt1Vec<ExpInt1Grade::Fine> {
    // The exponential's quintic of its table of 64 (the double exponential at HA):
    // p(r) = r + r^2 (c2 + r (c3 + r (c4 + r c5))), relative 2^-51 on |r| <= ln2/128.
    static constexpr double kExpC[] = {0x1.fffffffffdb3bp-2, 0x1.555555555653ep-3,
                                       0x1.555573f218b93p-5, 0x1.111112d9f549bp-7};
    // S(x), lowest degree first; fitted by tools/gamma/expint1_ep.sollya (double).
    static constexpr double kS[] = {
        0x1.fffffffdcb2cfp-1, -0x1.fffffc92bf387p-3,  0x1.c71b932055ef8p-5, -0x1.554013e2f8adp-7,
        0x1.b2f62714404cp-10, -0x1.cdbb8a84b56c7p-13, 0x1.4700dbe181eaap-16};
    static constexpr int kTerms = 5;
};
template <>
struct ExpInt1Vec<ExpInt1Grade::Coarse> {
    // The quartic of the exponential's core (2^-39.5; exp_core.h).
    static constexpr auto& kExpC = ExpTail<ExpDegree::Four>::kC;
    // Fitted by tools/gamma/expint1_ep.sollya (single).
    static constexpr double kS[] = {0x1.fffec7e49c382p-1, -0x1.ff5e73fc24d54p-3,
                                    0x1.b9f43779da56p-5, -0x1.f5dfb14d681d2p-8};
    static constexpr int kTerms = 3;
};

// -gamma - ln x + x S(x).
template <ExpInt1Grade G>
inline __m128d ExpInt1Near(__m128d x) {
    __m128d h, l;
    LnCore<Level::EP>(x, h, l);
    __m128d s = Mul(x, Estrin(x, ExpInt1Vec<G>::kS));
    return Sub(Sub(s, Set<double>(gamma::kEulerGamma)), Add(h, l));
}

// e^-x t G(t) for 1 < x <= 724.
template <ExpInt1Grade G>
inline __m128d ExpInt1Tail(__m128d x) {
    __m128d t = Div(Set<double>(1.0), x);
    // Row 16 (1022 - E) + j for t = 2^(E - 1023) (1 + j/16 + ...): the top 16 bits
    // are 16 E + j, so the row is 16352 - top + 2 j.
    I64x2 bits = AsInt(t);
    I64x2 top = ShiftRight<48>(bits);
    I64x2 j = And(top, Set<int64_t>(15));
    I64x2 row = Add(Sub(Set<int64_t>(16352), top), Add(j, j));
    __m128d c = AsFloat(
        Or(And(bits, Set<uint64_t>(0xFFFF000000000000ull)), Set<uint64_t>(0x0000800000000000ull)));
    __m128d v = Sub(t, c);
    constexpr int N = ExpInt1Vec<G>::kTerms;
    const double* r0 = gamma::kExpInt1Tail[LowWord<0>(row)];
    const double* r1 = gamma::kExpInt1Tail[LowWord<1>(row)];
    __m128d p = LoadLanes(r0 + N - 1, r1 + N - 1);
    for (int k = N - 2; k >= 0; --k)
        p = MulAdd(p, v, LoadLanes(r0 + k, r1 + k));
    // e^-x 2^60 on the table of 64, so that it stays normal up to the limit 724: the
    // shifter carries 60 steps of 64 more (the same binade, the same rounding of n, the
    // same index bits), taken off again with it for k. The factor 2^-60 goes on t p,
    // exactly, so that the last product is the one rounding also of a denormal result
    // (E1 is near 2^-1054 at 724).
    using S = ExpStep64;
    const __m128d shifter = Set<double>(Format<double>::kShifter + 60 * 64);
    __m128d n = Add(Mul(x, Set<double>(-S::kInvStep)), shifter);
    __m128d k = Sub(n, shifter);
    __m128d r = Sub(Add(Mul(k, Set<double>(-S::kStepHi)), Neg(x)), Mul(k, Set<double>(S::kStepLo)));
    __m128d th, tl;
    ExpRows64(n, th, tl);
    __m128d q = Add(r, Mul(Mul(r, r), Horner(r, ExpInt1Vec<G>::kExpC)));
    __m128d e = Mul(Add(th, Add(Mul(th, q), tl)), ExpScale64(n));
    return Mul(e, Mul(Mul(t, p), Set<double>(0x1p-60)));
}

// E1 on two lanes in [smallest normal, 724]; each form only where a lane needs it.
template <ExpInt1Grade G>
inline __m128d ExpInt1Lanes(__m128d x) {
    const __m128d one = Set<double>(1.0);
    __m128d near = Le(x, one);
    int bits = MaskBits(near);
    if (bits == 3) return ExpInt1Near<G>(x);
    if (bits == 0) return ExpInt1Tail<G>(x);
    __m128d a = ExpInt1Near<G>(Min(x, one));
    __m128d b = ExpInt1Tail<G>(IfThenElse(near, Set<double>(2.0), x));
    return IfThenElse(near, a, b);
}

} // namespace brenn::vm

#endif
