/* The streaming frame of Add, Sub, Mul and Sqr: no range test, no report, flags as
 * the hardware raises them. A body gives Op on registers and on single elements. Three
 * copies of the loop are chosen at entry (y is a, y is b, neither), so that the one
 * without aliasing may be scheduled freely; each runs 32 single (16 double) elements a
 * round and one element at a time for the rest, never touching memory beyond n. */
#ifndef BRENN_VECMATH_FRAME_STREAM_FRAME_H
#define BRENN_VECMATH_FRAME_STREAM_FRAME_H

#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {

enum class Alias { None, YisA, YisB };

template <class B, Alias A>
inline void StreamLoop(const B& body, int n, const typename B::T* a, const typename B::T* b,
                       typename B::T* y) {
    using T = typename B::T;
    using Sd = Simd<T>;
    using V = typename Sd::V;
    constexpr int L = Sd::kLanes;
    constexpr int kRound = 8 * L;
    const T* __restrict pa = A == Alias::YisA ? y : a;
    const T* __restrict pb = A == Alias::YisB ? y : b;
    int i = 0;
    if constexpr (A == Alias::None) {
        T* __restrict py = y;
        for (; i + kRound <= n; i += kRound) {
            V r[8];
            for (int k = 0; k < 8; ++k)
                r[k] = body.Op(Sd::Load(pa + i + k * L), Sd::Load(pb + i + k * L));
            for (int k = 0; k < 8; ++k)
                Sd::Store(py + i + k * L, r[k]);
        }
    } else {
        for (; i + kRound <= n; i += kRound) {
            V r[8];
            for (int k = 0; k < 8; ++k)
                r[k] = body.Op(Sd::Load(pa + i + k * L), Sd::Load(pb + i + k * L));
            for (int k = 0; k < 8; ++k)
                Sd::Store(y + i + k * L, r[k]);
        }
    }
    for (; i < n; ++i)
        y[i] = body.Op(pa[i], pb[i]);
}

template <class B>
inline void RunStream(const B& body, int n, const typename B::T* a, const typename B::T* b,
                      typename B::T* y) {
    Env<B> env = Enter<B>();
    if (n > 0) {
        if (y == a)
            StreamLoop<B, Alias::YisA>(body, n, a, b, y);
        else if (y == b)
            StreamLoop<B, Alias::YisB>(body, n, a, b, y);
        else
            StreamLoop<B, Alias::None>(body, n, a, b, y);
    }
    Leave(env);
}

} // namespace brenn::vm

#endif
