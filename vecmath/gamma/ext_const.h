/* Extended constants for the x87 unit held as doubles. An 80-bit load is microcoded on
 * current x86 cores and costs about ten times a double load; a 64-bit constant is
 * instead two doubles whose sum is exact (53 + 11 bits), loaded and added, and a
 * coefficient whose term needs no more than 53 bits is one double. The splits are made
 * at compile time from the generated long double tables, so the values are the
 * tables' own. */
#ifndef BRENN_VECMATH_GAMMA_EXT_CONST_H
#define BRENN_VECMATH_GAMMA_EXT_CONST_H

#include <stddef.h>

namespace brenn::vm::gamma {

// v = hi + lo exactly.
struct Ext2 {
    double hi, lo;
};
constexpr Ext2 Split2(long double v) {
    double hi = static_cast<double>(v);
    return {hi, static_cast<double>(v - hi)};
}
// The address is hidden from the optimiser, which would otherwise fold the sum of two
// known doubles back into one 80-bit constant.
[[gnu::always_inline]] inline long double Join(const Ext2& c) {
    const Ext2* p = &c;
    __asm__("" : "+r"(p));
    return static_cast<long double>(p->hi) + p->lo;
}

template <size_t N>
struct Ext2Table {
    Ext2 v[N];
};
template <size_t N>
constexpr Ext2Table<N> Split2(const long double (&a)[N]) {
    Ext2Table<N> t{};
    for (size_t i = 0; i < N; ++i)
        t.v[i] = Split2(a[i]);
    return t;
}

// A polynomial's coefficients, lowest degree first: the first K in two parts, the rest
// rounded to double.
template <size_t K, size_t N>
struct ExtPoly {
    static_assert(K <= N && N >= 2);
    Ext2 head[K == 0 ? 1 : K];
    double tail[N];
};
template <size_t K, size_t N>
constexpr ExtPoly<K, N> SplitPoly(const long double (&c)[N]) {
    ExtPoly<K, N> p{};
    for (size_t i = 0; i < N; ++i) {
        if (i < K) p.head[i] = Split2(c[i]);
        p.tail[i] = static_cast<double>(c[i]);
    }
    return p;
}
template <size_t K, size_t N, size_t R>
constexpr auto SplitPolys(const long double (&c)[R][N]) {
    struct Rows {
        ExtPoly<K, N> row[R];
    } r{};
    for (size_t i = 0; i < R; ++i)
        r.row[i] = SplitPoly<K>(c[i]);
    return r;
}

namespace detail {
template <size_t I, size_t K, size_t N>
[[gnu::always_inline]] inline long double CoefAt(const ExtPoly<K, N>& c) {
    if constexpr (I < K)
        return Join(c.head[I]);
    else
        return c.tail[I];
}
// c[I] + c[I + 2] s + c[I + 4] s^2 + ..., by Horner in s.
template <size_t I, size_t K, size_t N>
[[gnu::always_inline]] inline long double Chain(long double s, const ExtPoly<K, N>& c) {
    if constexpr (I + 2 >= N)
        return CoefAt<I>(c);
    else
        return Chain<I + 2>(s, c) * s + CoefAt<I>(c);
}
} // namespace detail

// The polynomial at t as two Horner chains in t^2, the even and the odd terms: half the
// dependent steps of one chain, and few enough values live that none is spilled from
// the register stack (a spill is an 80-bit store and load).
// The set's address is hidden, as in Join, so that every coefficient is a double operand
// in memory.
template <size_t K, size_t N>
[[gnu::always_inline]] inline long double Poly(long double t, const ExtPoly<K, N>& c) {
    const ExtPoly<K, N>* p = &c;
    __asm__ volatile("" : "+r"(p));
    long double s = t * t;
    return detail::Chain<0>(s, *p) + t * detail::Chain<1>(s, *p);
}

} // namespace brenn::vm::gamma

#endif
