// In-place quicksort and select over a view of elements: an explicit stack instead of
// recursion, the median of three as pivot, the larger part pushed and the smaller one
// gone on with (so the stack never holds more than log2(n) ranges), straight insertion
// below 7 elements. Every comparison is a strict greater-than or less-than on the key,
// so a NaN stops the scans as an equal key would; the median-of-three ordering leaves
// an element at each end of a range that stops the scans there, NaN or not, so no scan
// leaves the range whatever the data hold.
//
// The scans of a large range run branch-free, a block of elements at a time (block
// partitioning after Edelkamp and Weiss): the places in a block where the left scan
// would stop are listed first, then exchanged pairwise with the places where the right
// scan would stop, in the order the two scans meet them. Those are exactly the
// exchanges of the element-by-element scans, so the result is the same arrangement,
// equal keys, signed zeros and NaNs included; the last few blocks' worth of a range go
// through the element-by-element scans.
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

// Elements a block of the branch-free scans looks at, at most.
constexpr int kScanBlock = 64;

// Lists the places among `count` where the left scan would stop (key not below the
// pivot's), as offsets from a[from]; returns how many.
template <typename V, typename K>
inline int LeftStops(const V& a, K key, int64_t from, int count, uint8_t* offsets) {
    int n = 0;
    for (int k = 0; k < count; ++k) {
        offsets[n] = static_cast<uint8_t>(k);
        n += !(KeyOf(a[from + k]) < key);
    }
    return n;
}

// The same for the right scan (key not above the pivot's), going down from a[from].
template <typename V, typename K>
inline int RightStops(const V& a, K key, int64_t from, int count, uint8_t* offsets) {
    int n = 0;
    for (int k = 0; k < count; ++k) {
        offsets[n] = static_cast<uint8_t>(k);
        n += !(KeyOf(a[from - k]) > key);
    }
    return n;
}

// Runs the scans of a partition over the places (i, j) with the pivot's key `key`,
// block by block; a side whose stops are used up scans a new block, and the blocks
// shrink to what is left between the two scans. On return the element-by-element
// scans go on from the new (i, j): every exchange they would have made so far is made,
// and the places they would have passed are passed.
template <typename V, typename K>
inline void ScanBlocks(const V& a, K key, int64_t* iAt, int64_t* jAt) {
    int64_t lo = *iAt + 1, hi = *jAt - 1; // not yet scanned: [lo, hi]
    uint8_t left[kScanBlock], right[kScanBlock];
    int nLeft = 0, nRight = 0, firstLeft = 0, firstRight = 0;
    int64_t leftBase = 0, rightBase = 0;
    for (;;) {
        const int64_t rest = hi - lo + 1;
        int64_t want = kScanBlock;
        if (nLeft == 0 && nRight == 0) {
            if (rest < 2) break;
            if (rest < 2 * want) want = rest / 2;
        } else {
            if (rest < 1) break;
            if (rest < want) want = rest;
        }
        const int size = static_cast<int>(want);
        if (nLeft == 0) {
            leftBase = lo;
            firstLeft = 0;
            nLeft = LeftStops(a, key, lo, size, left);
            lo += size;
        }
        if (nRight == 0) {
            rightBase = hi;
            firstRight = 0;
            nRight = RightStops(a, key, hi, size, right);
            hi -= size;
        }
        const int m = nLeft < nRight ? nLeft : nRight;
        for (int t = 0; t < m; ++t)
            Exchange(a[leftBase + left[firstLeft + t]], a[rightBase - right[firstRight + t]]);
        nLeft -= m;
        nRight -= m;
        firstLeft += m;
        firstRight += m;
    }
    // A stop listed but not yet exchanged is where that scan resumes; otherwise it
    // resumes at the first place not yet scanned.
    *iAt = nLeft > 0 ? leftBase + left[firstLeft] - 1 : lo - 1;
    *jAt = nRight > 0 ? rightBase - right[firstRight] + 1 : hi + 1;
}

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
    ScanBlocks(a, key, &i, &j);
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
// no greater key before it and no smaller one after it (data without NaN). Returns the
// place of the nearest pivot above k (r + 1 if none): no key in (k, that place] is
// below a[k]'s, and none after it below that place's. `pivot(j)` is told the final
// place of every pivot.
template <typename V, typename OnPivot>
int64_t SelectRange(const V& a, int64_t l, int64_t r, int64_t k, OnPivot pivot) {
    int64_t above = r + 1;
    for (;;) {
        if (r <= l + 1) {
            if (r == l + 1) CompareExchange(a[l], a[r]);
            return above;
        }
        int64_t i;
        int64_t j = Partition(a, l, r, &i);
        pivot(j);
        if (j > k) above = j;
        if (j >= k) r = j - 1;
        if (j <= k) l = i;
    }
}

template <typename V>
int64_t SelectRange(const V& a, int64_t l, int64_t r, int64_t k) {
    return SelectRange(a, l, r, k, [](int64_t) {});
}

} // namespace brenn::stats

#endif
