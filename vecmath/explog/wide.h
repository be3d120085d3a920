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

// Rounds of sixteen whose range test is taken once a round, for bodies whose window is
// on |x| alone (mask the magnitude bits, offset 0): the magnitudes' bits of the round's
// registers folded by signed maxima (all below 2^31) and compared once, against the
// limit's high word in double (a lane of the fold above it is above the window's limit
// or, when the limit's low word is not all ones, at most equal to its high word: the
// exact test then decides). Only a round with such a lane takes the test a register and
// runs its special lanes on 0; every round runs the body's Value(x), its arithmetic
// alone: a register an and-mask and a maximum, where the test a register costs a
// compare, a blend and a mask extraction beside it. The two paths each run the round's
// Values and return, with no join (the common one no longer waits on the copies of x
// that a join kept: double rounds 1 to 2 % faster).
// The body supplies kWindow and Value(V x) beside Eval.
namespace wide_detail {
inline I32x4 MagnitudeBits(__m128 x) {
    return AsInt(Abs(x));
}
inline I32x4 MagnitudeBits(__m128d x) {
    return BitCast<I32x4>(AsInt(Abs(x)));
}
// The fold's limit: the window's in single; in double the high word's limit (less one
// when a lane equal to it in its high word may still be inside) and the low words'
// 0x7FFFFFFF, which no signed word passes.
template <class T>
inline I32x4 FoldLimit(Range32 r) {
    if constexpr (sizeof(T) == 4)
        return Set<int32_t>(int32_t(r.limit));
    else
        return BitCast<I32x4>(Set<uint64_t>((uint64_t(r.limit) << 32) | 0x7FFFFFFFu));
}
template <class T>
inline I32x4 FoldLimit(Range64 r) {
    uint32_t hi = uint32_t(r.limit >> 32);
    if (uint32_t(r.limit) != 0xFFFFFFFFu) hi -= 1;
    return BitCast<I32x4>(Set<uint64_t>((uint64_t(hi) << 32) | 0x7FFFFFFFu));
}
template <class W>
constexpr bool kMagnitudeWindow = W::kWindow.offset == 0 &&
                                  (W::kWindow.mask == 0x7FFFFFFFu ||
                                   W::kWindow.mask == 0x7FFFFFFFFFFFFFFFull);
} // namespace wide_detail

template <class B>
inline int EvalTestOnce(const Vec<typename B::T>* x, Vec<typename B::T>* y) {
    using T = typename B::T;
    constexpr int L = kLanes<T>;
    constexpr int N = 16 / L;
    static_assert(wide_detail::kMagnitudeWindow<B>, "a window on |x| alone");
    I32x4 fold = wide_detail::MagnitudeBits(x[0]);
#pragma GCC unroll 8
    for (int k = 1; k < N; ++k)
        fold = Max(fold, wide_detail::MagnitudeBits(x[k]));
    if (__builtin_expect(MaskBits(Gt(fold, wide_detail::FoldLimit<T>(B::kWindow))) != 0, 0)) {
        int bits = 0;
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            Vec<T> special = RangeTest(x[k], B::kWindow);
            bits |= MaskBits(special) << (k * L);
            y[k] = B::Value(IfThenZeroElse(special, x[k])); // special lanes run on 0
        }
        return bits;
    }
#pragma GCC unroll 8
    for (int k = 0; k < N; ++k)
        y[k] = B::Value(x[k]);
    return 0;
}

} // namespace brenn::vm

#endif
