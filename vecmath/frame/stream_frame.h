/* The streaming frame of Add, Sub, Mul and Sqr: no range test, no report, flags as
 * the hardware raises them. A body gives Op on registers and on single elements. Three
 * copies of the loop are chosen at entry (y is a, y is b, neither), so that the one
 * without aliasing may be scheduled freely; each runs 32 single (16 double) elements a
 * round, then one register at a time and one element at a time for the rest, never
 * touching memory beyond n.
 *
 * The round is written out register by register: left as a loop over an array of eight
 * registers, the compiler keeps the array on the stack at -O2 and every result makes a
 * round trip through memory, which costs more than the arithmetic itself.
 *
 * A long call without aliasing writes y with non-temporal stores: y is then written
 * without first being read into the cache (the read for ownership would otherwise be a
 * third input stream), and the inputs are not evicted by it. Those stores need 16-byte
 * aligned addresses, so the first few elements, up to y's boundary, go through the
 * element loop; a y that is not aligned to its element size keeps the ordinary stores.
 * A store fence before returning orders the streamed results before anything the caller
 * does next. Short calls keep ordinary stores, since their results are usually read
 * again soon and are best left in the cache. */
#ifndef BRENN_VECMATH_FRAME_STREAM_FRAME_H
#define BRENN_VECMATH_FRAME_STREAM_FRAME_H

#include <stdint.h>

#include "vecmath/frame/kernel_frame.h"

namespace brenn::vm {

enum class Alias { None, YisA, YisB };

// Bytes of y from which a call without aliasing streams its results past the cache.
constexpr uintptr_t kStreamBytes = uintptr_t(1) << 20;

// One round: eight registers of a and b, their results, eight stores (plain or
// non-temporal). Loads come first so that the stores of a round, in place, cannot be
// read back by the same round.
template <bool NonTemporal, class B>
inline void StreamRound(const B& body, const typename B::T* pa, const typename B::T* pb,
                        typename B::T* py) {
    using T = typename B::T;
    using V = Vec<T>;
    constexpr int L = kLanes<T>;
    V r0 = body.Op(Load(pa + 0 * L), Load(pb + 0 * L));
    V r1 = body.Op(Load(pa + 1 * L), Load(pb + 1 * L));
    V r2 = body.Op(Load(pa + 2 * L), Load(pb + 2 * L));
    V r3 = body.Op(Load(pa + 3 * L), Load(pb + 3 * L));
    V r4 = body.Op(Load(pa + 4 * L), Load(pb + 4 * L));
    V r5 = body.Op(Load(pa + 5 * L), Load(pb + 5 * L));
    V r6 = body.Op(Load(pa + 6 * L), Load(pb + 6 * L));
    V r7 = body.Op(Load(pa + 7 * L), Load(pb + 7 * L));
    if constexpr (NonTemporal) {
        StoreStream(py + 0 * L, r0);
        StoreStream(py + 1 * L, r1);
        StoreStream(py + 2 * L, r2);
        StoreStream(py + 3 * L, r3);
        StoreStream(py + 4 * L, r4);
        StoreStream(py + 5 * L, r5);
        StoreStream(py + 6 * L, r6);
        StoreStream(py + 7 * L, r7);
    } else {
        Store(py + 0 * L, r0);
        Store(py + 1 * L, r1);
        Store(py + 2 * L, r2);
        Store(py + 3 * L, r3);
        Store(py + 4 * L, r4);
        Store(py + 5 * L, r5);
        Store(py + 6 * L, r6);
        Store(py + 7 * L, r7);
    }
}

// The elements from i to n, a register at a time while a whole one is left, then one by
// one, with plain stores.
template <class B>
inline void StreamRest(const B& body, int i, int n, const typename B::T* pa,
                       const typename B::T* pb, typename B::T* py) {
    constexpr int L = kLanes<typename B::T>;
    for (; i + L <= n; i += L)
        Store(py + i, body.Op(Load(pa + i), Load(pb + i)));
    for (; i < n; ++i)
        py[i] = body.Op(pa[i], pb[i]);
}

template <class B, Alias A>
inline void StreamLoop(const B& body, int n, const typename B::T* a, const typename B::T* b,
                       typename B::T* y) {
    using T = typename B::T;
    constexpr int kRound = 8 * kLanes<T>;
    int i = 0;
    if constexpr (A == Alias::None) {
        const T* __restrict pa = a;
        const T* __restrict pb = b;
        T* __restrict py = y;
        const uintptr_t addr = reinterpret_cast<uintptr_t>(y);
        if (uintptr_t(n) * sizeof(T) >= kStreamBytes && addr % sizeof(T) == 0) {
            const int head = int(((16 - (addr & 15)) & 15) / sizeof(T));
            for (; i < head; ++i)
                py[i] = body.Op(pa[i], pb[i]);
            for (; i + kRound <= n; i += kRound)
                StreamRound<true>(body, pa + i, pb + i, py + i);
            StreamFence();
        } else {
            for (; i + kRound <= n; i += kRound)
                StreamRound<false>(body, pa + i, pb + i, py + i);
        }
        StreamRest(body, i, n, pa, pb, py);
    } else {
        // y is one of the inputs: plain pointers, since the stores write what was read
        const T* pa = A == Alias::YisA ? y : a;
        const T* pb = A == Alias::YisB ? y : b;
        for (; i + kRound <= n; i += kRound)
            StreamRound<false>(body, pa + i, pb + i, y + i);
        StreamRest(body, i, n, pa, pb, y);
    }
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
