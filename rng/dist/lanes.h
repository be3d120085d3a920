/* The SSE vocabulary of the distribution generators' element passes, one template for
 * double and single: loads and stores, products, sums and negation (never fused: the
 * passes round each step as the scalar code does), the maximum, and the shuffles that
 * split interleaved pairs and interleave two arrays again. */
#ifndef BRENN_RNG_DIST_LANES_H
#define BRENN_RNG_DIST_LANES_H

#include <emmintrin.h>
#include <stdint.h>
#include <string.h>

#include <type_traits>
#include <utility>

namespace brenn::rng {

template <typename T>
struct Lanes {
    static_assert(std::is_same_v<T, double> || std::is_same_v<T, float>);
    static constexpr int kCount = 16 / sizeof(T);
    // The register of __m128d or __m128, with its element operators.
    typedef T V __attribute__((vector_size(16)));
    typedef std::conditional_t<sizeof(T) == 8, int64_t, int32_t> Bits
        __attribute__((vector_size(16)));

    static V Set(T x) { return Splat(x, kIndices); }
    static V Load(const T* p) { return LoadU(p); }
    static V LoadU(const T* p) {
        V v;
        memcpy(&v, p, sizeof v);
        return v;
    }
    static void Store(T* p, V v) { StoreU(p, v); }
    static void StoreU(T* p, V v) { memcpy(p, &v, sizeof v); }
    static V Mul(V x, V y) { return x * y; }
    static V Add(V x, V y) { return x + y; }
    // -x by the sign bit, as the scalar negation does it (zeros and NaNs included).
    static V Neg(V x) { return Xor(x, Set(-T(0))); }
    static V Fma(V x, V s, V t) { return Add(Mul(x, s), t); }
    // x where x > m, else m (so m for a NaN in either), as the SSE maximum.
    static V Max(V x, V m) {
        if constexpr (kCount == 2)
            return _mm_max_pd(x, m);
        else
            return _mm_max_ps(x, m);
    }
    // All ones where x <= y (false for a NaN), zero elsewhere; and the bitwise mixers.
    static V AtMost(V x, V y) { return V(x <= y); }
    static V And(V x, V y) { return V(Bits(x) & Bits(y)); }
    static V Xor(V x, V y) { return V(Bits(x) ^ Bits(y)); }
    // Elements 0, 2, ... and 1, 3, ... of the pairs in x then y.
    static V Evens(V x, V y) { return Shuffle<0>(x, y, kIndices); }
    static V Odds(V x, V y) { return Shuffle<1>(x, y, kIndices); }
    // x0 y0 x1 y1 ...: the first and second halves of the interleaving.
    static V InterleaveLow(V x, V y) { return Shuffle<2>(x, y, kIndices); }
    static V InterleaveHigh(V x, V y) { return Shuffle<3>(x, y, kIndices); }

  private:
    static constexpr std::make_index_sequence<kCount> kIndices{};
    // Lane i of a shuffle of x (lanes 0 to kCount - 1) and y (kCount on).
    template <int Kind>
    static constexpr int Source(int i) {
        if constexpr (Kind < 2) return 2 * i + Kind;
        return (Kind - 2) * (kCount / 2) + i / 2 + (i % 2) * kCount;
    }
    template <size_t... I>
    static V Splat(T x, std::index_sequence<I...>) {
        return V{((void)I, x)...};
    }
    template <int Kind, size_t... I>
    static V Shuffle(V x, V y, std::index_sequence<I...>) {
        return __builtin_shufflevector(x, y, Source<Kind>(int(I))...);
    }
};

} // namespace brenn::rng

#endif
