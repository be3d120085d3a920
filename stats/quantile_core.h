// Exact quantiles of one variable held in a compact scratch. For an order b and n
// values: h = b (n - 1), j = trunc(h), f = h - j; the quantile is a (1 - f) + f b' with
// a the j-th smallest value and b' the (j + 1)-th (the j-th again at the top), 1 - f
// formed first. The j-th comes from a select; every value after it up to the nearest
// pivot above is then at or above it, and everything past that pivot at or above the
// pivot, so the (j + 1)-th is the least of that short stretch, found in one pass. The
// places already selected and the pivots placed on the way stay in order (`fences`),
// and a later order selects only between the two fences around it: the scratch, partly
// ordered by the earlier orders, is reused and never copied again.
#ifndef BRENN_STATS_QUANTILE_CORE_H
#define BRENN_STATS_QUANTILE_CORE_H

#include <stdint.h>
#include <string.h>

#include "stats/qsort.h"

namespace brenn::stats {

// The least of s[0, n) (n at least 1), over four independent running minima so that
// the compares don't wait on each other. A NaN never replaces a value.
template <typename T>
T LeastOf(const T* s, int64_t n) {
    T m[4] = {s[0], s[0], s[0], s[0]};
    int64_t i = 0;
    for (; i + 4 <= n; i += 4)
        for (int l = 0; l < 4; ++l)
            m[l] = s[i + l] < m[l] ? s[i + l] : m[l];
    for (; i < n; ++i)
        m[0] = s[i] < m[0] ? s[i] : m[0];
    for (int l = 1; l < 4; ++l)
        m[0] = m[l] < m[0] ? m[l] : m[0];
    return m[0];
}

// The places already selected in a scratch, ascending: everything before a fence is at
// or below it and everything after at or above it. `reserved` places are kept free for
// the orders still to come; pivots fill what room is left.
struct Fences {
    int64_t* at;
    int64_t count, capacity, reserved;
};

// Pivot places kept for later orders, besides the orders' own places.
constexpr int64_t kPivotFences = 64;

// Room for the fences of m orders.
inline int64_t FenceCapacity(int64_t m) {
    return m + kPivotFences;
}

// Inserts place k before the fence at index i.
inline void AddFence(Fences& f, int64_t i, int64_t k) {
    memmove(f.at + i + 1, f.at + i, (f.count - i) * sizeof(int64_t));
    f.at[i] = k;
    ++f.count;
}

// The index in f of the first fence at or above k.
inline int64_t FirstFenceFrom(const Fences& f, int64_t k) {
    int64_t lo = 0, hi = f.count;
    while (lo < hi) {
        int64_t mid = lo + (hi - lo) / 2;
        if (f.at[mid] < k)
            lo = mid + 1;
        else
            hi = mid;
    }
    return lo;
}

// Puts the k-th smallest of s[0, n) at s[k], selecting only between the fences around
// k, and records k (one of the reserved places) and the pivots as fences; returns the
// nearest fence or pivot above k (n if none).
template <typename T>
int64_t SelectFenced(T* s, int64_t n, int64_t k, Fences& f) {
    --f.reserved;
    const int64_t i = FirstFenceFrom(f, k);
    if (i < f.count && f.at[i] == k) return i + 1 < f.count ? f.at[i + 1] : n;
    const int64_t below = i > 0 ? f.at[i - 1] : -1;
    const int64_t above = i < f.count ? f.at[i] : n;
    // k's own place comes out of the room the pivots may take.
    const int64_t room = f.capacity - f.reserved - 1;
    const int64_t next = SelectRange(Contiguous<T>{s}, below + 1, above - 1, k, [&](int64_t j) {
        if (j != k && f.count < room) AddFence(f, FirstFenceFrom(f, j), j);
    });
    AddFence(f, FirstFenceFrom(f, k), k);
    return next;
}

// The quantiles of `m` orders of s[0, n) into out[0, m); the orders are in [0, 1].
// `fenceMemory` has room for FenceCapacity(m) places. With `sorted` the scratch is
// already in order.
template <typename T>
void QuantilesOf(T* s, int64_t n, const T* orders, int64_t m, T* out, int64_t* fenceMemory,
                 bool sorted) {
    Fences f{fenceMemory, 0, FenceCapacity(m), m};
    for (int64_t k = 0; k < m; ++k) {
        // The place is found in double whatever T, so that a single-precision order
        // over many observations still names the right element.
        const double h = static_cast<double>(orders[k]) * static_cast<double>(n - 1);
        int64_t j = static_cast<int64_t>(h);
        if (j > n - 1) j = n - 1;
        const T frac = static_cast<T>(h - static_cast<double>(j));
        const int64_t above = sorted ? j + 1 : SelectFenced(s, n, j, f);
        const T a = s[j];
        // An order that falls on an element gives it, with no second value to weigh
        // at 0 (which would turn an infinite neighbour into a NaN).
        if (frac == T(0) || j + 1 >= n) {
            out[k] = a;
            continue;
        }
        const T b = sorted ? s[j + 1] : LeastOf(s + j + 1, (above < n ? above + 1 : n) - (j + 1));
        const T g = T(1) - frac;
        out[k] = a * g + frac * b;
    }
}

} // namespace brenn::stats

#endif
