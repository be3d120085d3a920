/* Rounds of sixteen for the exponential and logarithm bodies: EvalByRegister runs a
 * body's one-register Eval over the whole round, unrolled, so that the compiler sees all
 * the round's registers at once (independent chains to interleave, the constants loaded
 * once) and the frame tests the special-lane bits once a round. The double bodies of
 * the family opt in (their rounds of eight run one register at a time; measured 5 to
 * 13 % faster); the single ones keep rounds of eight, which measured as fast or faster:
 *   static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
 *   static int EvalWide(const V* x, V* y) { return EvalByRegister<Body>(x, y); } */
#ifndef BRENN_VECMATH_EXPLOG_WIDE_H
#define BRENN_VECMATH_EXPLOG_WIDE_H

#include "vecmath/frame/vec.h"

namespace brenn::vm {

template <class B>
inline int EvalByRegister(const Vec<typename B::T>* x, Vec<typename B::T>* y) {
    using T = typename B::T;
    constexpr int L = kLanes<T>;
    constexpr int N = 16 / L;
    int bits = 0;
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k) {
        Vec<T> special;
        y[k] = B::Eval(x[k], special);
        bits |= MaskBits(special) << (k * L);
    }
    return bits;
}

} // namespace brenn::vm

#endif
