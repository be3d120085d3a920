// The sort and select routines against the quicksort they stand for, written here one
// element at a time: their partition scans run a block at a time and must leave exactly
// the same arrangement, so signed zeros, NaNs (signalling ones too) and ties come out
// bit for bit as the plain algorithm leaves them. And quantiles of many orders in any
// order, whose later selects run between the places and pivots of the earlier ones:
// each must name the same elements as the sorted data.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <random>

#include "tests/stats/order_harness.h"

namespace brenn::test {
namespace {

// The quicksort element by element: median of three moved to the second place, scans
// from both ends that stop at keys not below and not above the pivot's, the larger part
// pushed, straight insertion below 7. a[i * step] is element i.
template <typename T>
struct PlainSort {
    T* a;
    int64_t step;
    T& at(int64_t i) const { return a[i * step]; }
    void Swap(int64_t i, int64_t j) const { std::swap(at(i), at(j)); }
    void Order(int64_t i, int64_t j) const {
        if (at(i) > at(j)) Swap(i, j);
    }
    int64_t Partition(int64_t l, int64_t r, int64_t* rightStart) const {
        Swap(l + (r - l) / 2, l + 1);
        Order(l, r);
        Order(l + 1, r);
        Order(l, l + 1);
        const T pivot = at(l + 1);
        int64_t i = l + 1, j = r;
        for (;;) {
            while (at(++i) < pivot) {
            }
            while (at(--j) > pivot) {
            }
            if (j < i) break;
            Swap(i, j);
        }
        at(l + 1) = at(j);
        at(j) = pivot;
        *rightStart = i;
        return j;
    }
    void Insertion(int64_t l, int64_t r) const {
        for (int64_t j = l + 1; j <= r; ++j) {
            const T v = at(j);
            int64_t i = j - 1;
            for (; i >= l && at(i) > v; --i)
                at(i + 1) = at(i);
            at(i + 1) = v;
        }
    }
    void Sort(int64_t n) const {
        std::vector<std::pair<int64_t, int64_t>> stack;
        int64_t l = 0, r = n - 1;
        for (;;) {
            if (r - l + 1 < 7) {
                Insertion(l, r);
                if (stack.empty()) return;
                std::tie(l, r) = stack.back();
                stack.pop_back();
                continue;
            }
            int64_t i, j = Partition(l, r, &i);
            if (r - i + 1 >= j - l) {
                stack.push_back({i, r});
                r = j - 1;
            } else {
                stack.push_back({l, j - 1});
                l = i;
            }
        }
    }
    T Select(int64_t n, int64_t k) const {
        int64_t l = 0, r = n - 1;
        while (r > l + 1) {
            int64_t i, j = Partition(l, r, &i);
            if (j >= k) r = j - 1;
            if (j <= k) l = i;
        }
        if (r == l + 1) Order(l, r);
        return at(k);
    }
};

template <typename T>
T SignallingNaN() {
    return std::numeric_limits<T>::signaling_NaN();
}

// Data of kind 0 to 5: normal; both zeros with +-1; few values with quiet and
// signalling NaNs among them; ascending; descending with a run of equal keys; zeros of
// alternating sign only.
template <typename T>
std::vector<T> Kind(int kind, int64_t n, uint64_t seed) {
    std::mt19937_64 gen(seed);
    std::vector<T> v(n);
    for (int64_t i = 0; i < n; ++i) {
        const uint64_t u = gen();
        switch (kind) {
        case 0:
            v[i] = T(std::normal_distribution<>()(gen));
            break;
        case 1:
            v[i] = T(int(u % 3) - 1) + ((u >> 8) & 1 ? T(0) : -T(0));
            break;
        case 2:
            v[i] = u % 7 == 0 ? (u & 8 ? SignallingNaN<T>() : -T(NAN)) : T(int(u % 5));
            break;
        case 3:
            v[i] = T(i);
            break;
        case 4:
            v[i] = i > n / 3 && i < n / 2 ? T(2) : T(n - i);
            break;
        default:
            v[i] = i % 2 ? -T(0) : T(0);
            break;
        }
    }
    return v;
}

template <typename T>
class QSortScanTest : public ::testing::Test {};
TYPED_TEST_SUITE(QSortScanTest, Precisions);

TYPED_TEST(QSortScanTest, SortAndSelectLeaveThePlainArrangement) {
    using T = TypeParam;
    // Around the scan block (64 elements a side) and far past it.
    for (int64_t n : {7, 9, 100, 127, 128, 129, 130, 131, 133, 200, 257, 1000, 4099, 100000})
        for (int kind = 0; kind < 6; ++kind) {
            const std::vector<T> v = Kind<T>(kind, n, n * 13 + kind);
            std::vector<T> want = v, got = v;
            PlainSort<T>{want.data(), 1}.Sort(n);
            SsEntries<T>::qsort(n, got.data());
            ASSERT_EQ(Bits(got), Bits(want)) << "n " << n << " kind " << kind;
            // The strided sort, every other element.
            std::vector<T> wide(2 * n, T(5)), plain(2 * n, T(5));
            for (int64_t i = 0; i < n; ++i)
                wide[2 * i] = plain[2 * i] = v[i];
            PlainSort<T>{plain.data(), 2}.Sort(n);
            SsEntries<T>::qsortStep(n, wide.data(), 2);
            ASSERT_EQ(Bits(wide), Bits(plain)) << "n " << n << " kind " << kind;
            // The selected element's bits, a zero's sign included.
            for (int64_t k : {int64_t(0), n / 3, n / 2, n - 1}) {
                std::vector<T> a = v, b = v;
                const T x = PlainSort<T>{a.data(), 1}.Select(n, k);
                const T y = SsEntries<T>::select(n, b.data(), k);
                ASSERT_EQ(Bits(std::vector<T>{y}), Bits(std::vector<T>{x}))
                    << "n " << n << " kind " << kind << " k " << k;
            }
        }
}

// The quantile of order b from sorted data s, by the same rule and arithmetic.
template <typename T>
T FromSorted(const std::vector<T>& s, T b) {
    const int64_t n = static_cast<int64_t>(s.size());
    const double h = double(b) * double(n - 1);
    const int64_t j = std::min(static_cast<int64_t>(h), n - 1);
    const T f = static_cast<T>(h - double(j));
    if (f == T(0) || j + 1 >= n) return s[j];
    return s[j] * (T(1) - f) + f * s[j + 1];
}

TYPED_TEST(QSortScanTest, ManyOrdersInAnyOrderNameTheSortedElements) {
    using T = TypeParam;
    std::mt19937_64 gen(17);
    // More orders than the pivots kept, repeated ones, 0 and 1, and orders landing on
    // the same element; two variables interleaved, ties and no ties.
    for (int64_t n : {2, 3, 64, 1000, 70001})
        for (int64_t m : {1, 3, 70, 200})
            for (int range : {0, 40}) {
                std::vector<T> x(2 * n);
                for (T& e : x)
                    e = range ? T(int(gen() % range)) : T(std::normal_distribution<>()(gen));
                std::vector<T> orders(m);
                for (int64_t k = 0; k < m; ++k) {
                    const uint64_t u = gen();
                    orders[k] = u % 9 == 0   ? T(u % 2)
                                : u % 9 == 1 ? orders[u % (k + 1)]
                                             : T(double(u >> 11) * 0x1p-53);
                }
                OrderTask<T> t(2, n, BRENN_SS_MATRIX_STORAGE_COLS, x);
                std::vector<T> q(2 * m);
                SsEntries<T>::editQuantiles(t.task, &m, orders.data(), q.data(), nullptr, nullptr);
                ASSERT_EQ(SsEntries<T>::quantiles(t.task, BRENN_SS_QUANTS, 1, nullptr), 0);
                for (int64_t v = 0; v < 2; ++v) {
                    std::vector<T> s(n);
                    for (int64_t i = 0; i < n; ++i)
                        s[i] = x[i * 2 + v];
                    std::sort(s.begin(), s.end());
                    for (int64_t k = 0; k < m; ++k)
                        ASSERT_EQ(q[v * m + k], FromSorted(s, orders[k]))
                            << "n " << n << " m " << m << " order " << orders[k];
                }
            }
}

} // namespace
} // namespace brenn::test
