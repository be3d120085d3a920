/* The element passes of the Box-Muller methods, in SSE lanes with scalar tails:
 * splitting 2m interleaved uniforms into radius words and angles, and delivering
 * finished variates into a result array of any alignment. Each lane rounds every
 * step as the scalar tail does, so where a block's edge falls changes nothing. */
#ifndef BRENN_RNG_DIST_PAIR_PASSES_H
#define BRENN_RNG_DIST_PAIR_PASSES_H

#include <stdint.h>
#include <string.h>

#include "rng/dist/continuous.h"
#include "rng/dist/lanes.h"

namespace brenn::rng {

// A store into a result array that need not be element-aligned.
template <typename T>
inline void Put(T* r, T v) {
    memcpy(r, &v, sizeof v);
}

// The first word of each of m pairs packed down in place to words[0, m), the second
// times 2 pi into angle. words is 16-byte aligned; a lane reads a pair block before
// it writes below it.
template <typename T>
inline void SplitPairs(int32_t m, T* words, T* angle) {
    using L = Lanes<T>;
    const T twoPi = Continuous<T>::TwoPi();
    const typename L::V k = L::Set(twoPi);
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount) {
        typename L::V x = L::Load(words + 2 * i), y = L::Load(words + 2 * i + L::kCount);
        L::Store(words + i, L::Evens(x, y));
        L::StoreU(angle + i, L::Mul(L::Odds(x, y), k));
    }
    for (; i < m; ++i) {
        T u1 = words[2 * i], u2 = words[2 * i + 1];
        words[i] = u1;
        angle[i] = u2 * twoPi;
    }
}

// radius[i] = -(radius[i] + radius[i]), -2 ln u from ln u.
template <typename T>
inline void MinusTwice(int32_t m, T* radius) {
    using L = Lanes<T>;
    int32_t i = 0;
    for (; i + L::kCount <= m; i += L::kCount) {
        typename L::V x = L::LoadU(radius + i);
        L::StoreU(radius + i, L::Neg(L::Add(x, x)));
    }
    for (; i < m; ++i)
        radius[i] = -(radius[i] + radius[i]);
}

} // namespace brenn::rng

#endif
