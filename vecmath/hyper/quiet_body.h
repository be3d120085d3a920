/* The body of the hyperbolic rows that never report, Tanh and Asinh: only lanes whose
 * exponent is all ones (infinities and NaN) go to the scalar routine, and they run through
 * the arithmetic as 0. Op supplies the arithmetic, Of<L>(x) for both register types
 * (and optionally Round<L>(x, y), a double round of sixteen), and the scalar routine;
 * BRENN_QUIET_BODY(Fn) makes them of FnOf<L> and FnScalar, and the body template
 * FnBody<T, L>. */
#ifndef BRENN_VECMATH_HYPER_QUIET_BODY_H
#define BRENN_VECMATH_HYPER_QUIET_BODY_H

#include "vecmath/explog/wide.h"
#include "vecmath/frame/level.h"
#include "vecmath/frame/vec.h"

namespace brenn::vm {

template <class T>
struct InfNaNWindow;
template <>
struct InfNaNWindow<float> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x7F7FFFFFu};
};
template <>
struct InfNaNWindow<double> {
    static constexpr Range32 kWindow = {0x7FFFFFFFu, 0u, 0x7FEFFFFFu}; // high word
};

template <class Op, class Tp, Level L>
struct QuietBody {
    using T = Tp;
    using V = Vec<T>;
    static BRENN_VEC V Eval(V x, V& special) {
        special = RangeTest(x, InfNaNWindow<T>::kWindow);
        return Op::template Of<L>(IfThenZeroElse(special, x)); // special lanes on 0
    }
    static int Scalar(const T* a, T* y) { return Op::Scalar(a, y); }
    // Double rounds of sixteen: Op's own Round<L>(x, y) where it has one (the round step
    // by step over its registers, special lanes on 0), else the compiler interleaves the
    // round's eight chains.
    static constexpr int kRound = sizeof(T) == 8 ? 16 : 8;
    static int EvalWide(const V* x, V* y) {
        if constexpr (requires { Op::template Round<L>(x, y); }) {
            constexpr int N = 16 / kLanes<T>;
            V xs[N];
            int bits = 0;
#pragma GCC unroll 8
            for (int k = 0; k < N; ++k) {
                V special = RangeTest(x[k], InfNaNWindow<T>::kWindow);
                bits |= MaskBits(special) << (k * kLanes<T>);
                xs[k] = IfThenZeroElse(special, x[k]);
            }
            Op::template Round<L>(xs, y);
            return bits;
        } else {
            return EvalByRegister<QuietBody>(x, y);
        }
    }
};

} // namespace brenn::vm

#define BRENN_QUIET_BODY(Fn)                                                                       \
    struct Fn##Op {                                                                                \
        template <Level L, class V>                                                                \
        static V Of(V x) {                                                                         \
            return Fn##Of<L>(x);                                                                   \
        }                                                                                          \
        template <class T>                                                                         \
        static int Scalar(const T* a, T* y) {                                                      \
            return Fn##Scalar(a, y);                                                               \
        }                                                                                          \
    };                                                                                             \
    template <class Tp, Level L>                                                                   \
    using Fn##Body = QuietBody<Fn##Op, Tp, L>;

#endif
