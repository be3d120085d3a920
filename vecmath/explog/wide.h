/* Rounds of sixteen for the exponential and logarithm bodies: EvalByRegister runs a
 * body's one-register Eval over the whole round, unrolled, so that the compiler sees all
 * the round's registers at once (independent chains to interleave, the constants loaded
 * once) and the frame tests the special-lane bits once a round. A body opts in with
 *   static constexpr int kRound = 16;
 *   static int EvalWide(const V* x, V* y) { return EvalByRegister<Body>(x, y); }
 * (rounds of eight run one register at a time). Bodies whose round pays more when its
 * stages are written out over all its registers (the single logarithms' LogRound, the
 * staged exponentials) give their own EvalWide, or EvalTestOnce below for a window
 * tested once a round. */
#ifndef BRENN_VECMATH_EXPLOG_WIDE_H
#define BRENN_VECMATH_EXPLOG_WIDE_H

#include <stdint.h>

#include <type_traits>

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
// The unsigned maximum of 32-bit lanes (SSE4.1 pmaxud), for the fold of a split window.
inline I32x4 MaxUnsigned(I32x4 a, I32x4 b) {
    return I32x4{_mm_max_epu32(a.v, b.v)};
}
} // namespace wide_detail

// A window of unequal ends on double x, for rows whose vector path reaches further on
// one side than on the other, by the high words: every x whose high word is at most hi
// (read signed) or, below zero, at most lo (read unsigned) is inside (a positive x above
// hi is a signed integer above it, a negative x below lo an unsigned one above it, NaNs
// and infinities of either sign the same), so that a round folds its registers by a
// signed and an unsigned maximum; the low words are held to limits no word passes
// (0x7FFFFFFF signed, 0xFFFFFFFF unsigned).
struct SplitWindowHigh {
    uint32_t hi, lo; // the high words of the ends
};
namespace wide_detail {
// The limits of a split window over the 32-bit lanes of a register: the signed one and
// the unsigned one moved to signed order (its sign bit flipped).
inline I32x4 AboveLimit(SplitWindowHigh w) {
    return BitCast<I32x4>(Set<uint64_t>((uint64_t(w.hi) << 32) | 0x7FFFFFFFu));
}
inline I32x4 BelowLimit(SplitWindowHigh w) {
    return BitCast<I32x4>(Set<uint64_t>((uint64_t(w.lo ^ 0x80000000u) << 32) | 0x7FFFFFFFu));
}
template <class W>
inline I32x4 Outside(I32x4 above, I32x4 below, W w) {
    const I32x4 sign = Set<int32_t>(INT32_MIN);
    return Or(Gt(above, AboveLimit(w)), Gt(Xor(below, sign), BelowLimit(w)));
}
template <class W>
constexpr bool kSplitWindow =
    std::is_same_v<std::remove_cv_t<decltype(W::kWindow)>, SplitWindowHigh>;
} // namespace wide_detail
// The high words' verdict spread over each whole lane (pshufd), so that the mask blends
// and zeroes the whole double.
inline __m128d RangeTest(__m128d x, SplitWindowHigh w) {
    I32x4 b = BitCast<I32x4>(AsInt(x));
    I32x4 m = wide_detail::Outside(b, b, w);
    return BitCast<__m128d>(I32x4{_mm_shuffle_epi32(m.v, _MM_SHUFFLE(3, 3, 1, 1))});
}

template <class B>
inline bool AnyOutside(const Vec<typename B::T>* x) {
    using T = typename B::T;
    constexpr int N = 16 / kLanes<T>;
    if constexpr (wide_detail::kSplitWindow<B>) {
        I32x4 high = BitCast<I32x4>(AsInt(x[0])), low = high;
#pragma GCC unroll 8
        for (int k = 1; k < N; ++k) {
            I32x4 b = BitCast<I32x4>(AsInt(x[k]));
            high = Max(high, b);
            low = wide_detail::MaxUnsigned(low, b);
        }
        return MaskBits(wide_detail::Outside(high, low, B::kWindow)) != 0;
    } else {
        static_assert(wide_detail::kMagnitudeWindow<B>, "a window on |x| alone");
        I32x4 fold = wide_detail::MagnitudeBits(x[0]);
#pragma GCC unroll 8
        for (int k = 1; k < N; ++k)
            fold = Max(fold, wide_detail::MagnitudeBits(x[k]));
        return MaskBits(Gt(fold, wide_detail::FoldLimit<T>(B::kWindow))) != 0;
    }
}

// The values of a round's registers: the body's whole-round form (ValueRound, e.g. one
// that takes every register's table offsets before their rows) where it has one, else
// Value register by register.
template <class B>
inline void ValuesOfRound(const Vec<typename B::T>* x, Vec<typename B::T>* y) {
    constexpr int N = 16 / kLanes<typename B::T>;
    if constexpr (requires { B::ValueRound(x, y); }) {
        B::ValueRound(x, y);
    } else {
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k)
            y[k] = B::Value(x[k]);
    }
}

// A band just past a single window's upper end, on x's bits read signed: lanes with
// bits in (lo, hi], positive x from the window's end up to the last argument whose
// routine result has status 0. A body that names one (kBand) has those lanes' results
// from its scalar routine (the routine itself, so the same bits and flags) inside the
// round, one call a band lane by the set bits of their mask: they leave the special
// lanes, and a round that holds one takes neither the frame's special path nor its
// branches by quad and lane, which the predictor cannot learn at n = 10^6 (one round in
// eight of the exponentials' inputs holds such a lane).
struct Band32 {
    int32_t lo, hi;
};
namespace wide_detail {
template <class B>
constexpr bool kHasBand = requires { B::kBand; };
inline I32x4 InBand(__m128 x, Band32 band) {
    I32x4 b = AsInt(x);
    return AndNot(Gt(b, Set<int32_t>(band.hi)), Gt(b, Set<int32_t>(band.lo)));
}
} // namespace wide_detail

template <class B>
inline int EvalTestOnce(const Vec<typename B::T>* x, Vec<typename B::T>* y) {
    using T = typename B::T;
    constexpr int L = kLanes<T>;
    constexpr int N = 16 / L;
    if (__builtin_expect(AnyOutside<B>(x), 0)) {
        int bits = 0;
        [[maybe_unused]] int band = 0;
        Vec<T> xs[N];
#pragma GCC unroll 8
        for (int k = 0; k < N; ++k) {
            Vec<T> special = RangeTest(x[k], B::kWindow);
            if constexpr (wide_detail::kHasBand<B>)
                band |= MaskBits(AsFloat(wide_detail::InBand(x[k], B::kBand))) << (k * L);
            bits |= MaskBits(special) << (k * L);
            // Special lanes run on 0, by the mask's sign bit: a double window on the high
            // word leaves the low word's mask clear.
            xs[k] = IfThenElse(special, Zero<T>(), x[k]);
        }
        ValuesOfRound<B>(xs, y);
        if constexpr (wide_detail::kHasBand<B>) {
            static_assert(L == 4, "bands of single windows");
            alignas(16) T xa[16], ya[16];
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k) {
                Store(xa + k * L, x[k]);
                Store(ya + k * L, y[k]);
            }
            for (int m = band; m != 0; m &= m - 1) {
                int j = __builtin_ctz(unsigned(m));
                B::Scalar(xa + j, ya + j);
            }
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k)
                y[k] = Load(ya + k * L);
            bits &= ~band;
        }
        return bits;
    }
    ValuesOfRound<B>(x, y);
    return 0;
}

} // namespace brenn::vm

#endif
