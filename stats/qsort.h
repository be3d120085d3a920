// In-place quicksort and select over a view of elements: an explicit stack instead of
// recursion, the median of three as pivot, the larger part pushed and the smaller one
// gone on with (so the stack never holds more than log2(n) ranges), straight insertion
// below 7 elements. Every comparison is a strict greater-than or less-than on the key,
// so a NaN stops the scans as an equal key would; the median-of-three ordering leaves
// an element at each end of a range that stops the scans there, NaN or not, so no scan
// leaves the range whatever the data hold.
//
// A view is anything with `E& operator[](int64_t)`; the key of an element is KeyOf(e),
// so a pair of a value and its weight travels as one element.
#ifndef BRENN_STATS_QSORT_H
#define BRENN_STATS_QSORT_H

#include <stdint.h>

#include <type_traits>

namespace brenn::stats {

template <typename T>
struct Contiguous {
    T* a;
    T& operator[](int64_t i) const { return a[i]; }
};

template <typename T>
struct Strided {
    T* a;
    int64_t step;
    T& operator[](int64_t i) const { return a[i * step]; }
};

// A value and its weight, sorted by the value.
template <typename T>
struct WeightedValue {
    T x, w;
};

template <typename T>
inline T KeyOf(T v) {
    return v;
}
template <typename T>
inline T KeyOf(const WeightedValue<T>& v) {
    return v.x;
}

template <typename E>
inline void Exchange(E& a, E& b) {
    E t = a;
    a = b;
    b = t;
}

// Orders a before b when a's key is greater.
template <typename E>
inline void CompareExchange(E& a, E& b) {
    if (KeyOf(a) > KeyOf(b)) Exchange(a, b);
}

constexpr int64_t kInsertionBelow = 7;

// Partitions [l, r] (at least 3 elements) around the median of a[l], a[mid], a[r];
// returns the pivot's final place j. Afterwards [l, j) holds no key above the pivot's
// and (j, r] none below it (for data without NaN), and the scan of the left side stopped
// at i, the first place of the right part.
template <typename V>
inline int64_t Partition(const V& a, int64_t l, int64_t r, int64_t* rightStart) {
    using E = std::remove_cvref_t<decltype(a[0])>;
    int64_t mid = l + (r - l) / 2;
    Exchange(a[mid], a[l + 1]);
    CompareExchange(a[l], a[r]);
    CompareExchange(a[l + 1], a[r]);
    CompareExchange(a[l], a[l + 1]);
    int64_t i = l + 1, j = r;
    const E pivot = a[l + 1];
    const auto key = KeyOf(pivot);
    for (;;) {
        do
            ++i;
        while (KeyOf(a[i]) < key);
        do
            --j;
        while (KeyOf(a[j]) > key);
        if (j < i) break;
        Exchange(a[i], a[j]);
    }
    a[l + 1] = a[j];
    a[j] = pivot;
    *rightStart = i;
    return j;
}

template <typename V>
inline void InsertionSort(const V& a, int64_t l, int64_t r) {
    using E = std::remove_cvref_t<decltype(a[0])>;
    for (int64_t j = l + 1; j <= r; ++j) {
        const E v = a[j];
        int64_t i = j - 1;
        for (; i >= l && KeyOf(a[i]) > KeyOf(v); --i)
            a[i + 1] = a[i];
        a[i + 1] = v;
    }
}

// Sorts a[0, n) ascending.
template <typename V>
void QuickSort(const V& a, int64_t n) {
    int64_t stack[2 * 64];
    int top = 0;
    int64_t l = 0, r = n - 1;
    for (;;) {
        if (r - l + 1 < kInsertionBelow) {
            InsertionSort(a, l, r);
            if (top == 0) return;
            r = stack[--top];
            l = stack[--top];
            continue;
        }
        int64_t i;
        int64_t j = Partition(a, l, r, &i);
        // [l, j - 1] and [i, r] are left; the larger waits on the stack.
        if (r - i + 1 >= j - l) {
            stack[top++] = i;
            stack[top++] = r;
            r = j - 1;
        } else {
            stack[top++] = l;
            stack[top++] = j - 1;
            l = i;
        }
    }
}

// Rearranges a[l, r] so that a[k] holds the element that a sort would put there, with
// no greater key before it and no smaller one after it (data without NaN).
template <typename V>
void SelectRange(const V& a, int64_t l, int64_t r, int64_t k) {
    for (;;) {
        if (r <= l + 1) {
            if (r == l + 1) CompareExchange(a[l], a[r]);
            return;
        }
        int64_t i;
        int64_t j = Partition(a, l, r, &i);
        if (j >= k) r = j - 1;
        if (j <= k) l = i;
    }
}

} // namespace brenn::stats

#endif
