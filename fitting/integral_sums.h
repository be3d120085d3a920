// Sums of whole pieces' integrals by a fixed pairwise tree: level 0 holds the pieces,
// node k of level L the sum of nodes 2k and 2k+1 of level L-1 (a missing right child
// counts as +0). The sum over pieces [i, j) is made of the nodes that cover the range,
// added in one fixed order, so it is a function of i and j alone: the same bits
// whether the nodes come from a tree built for a batch or are summed on the spot for
// one interval. Its error is that of pairwise summation, a few units of the last place
// times log2 of the range of the sum of the range's |integrals|, however far the range
// lies from the first piece.
#ifndef BRENN_FITTING_INTEGRAL_SUMS_H
#define BRENN_FITTING_INTEGRAL_SUMS_H

#include <stdint.h>

#include <bit>
#include <type_traits>

namespace brenn::fit {

constexpr int kMaxLevels = 64;

struct PairwiseShape {
    int levels;
    int64_t size[kMaxLevels];   // nodes of each level
    int64_t offset[kMaxLevels]; // where each level starts in the tree
    int64_t total;              // nodes of all levels
};

inline PairwiseShape ShapeOf(int64_t count) {
    PairwiseShape s{};
    int64_t size = count, at = 0;
    for (int L = 0;; ++L) {
        s.size[L] = size;
        s.offset[L] = at;
        at += size;
        s.levels = L + 1;
        if (size <= 1) break;
        size = (size + 1) / 2;
    }
    s.total = at;
    return s;
}

// Nodes read from a built tree.
struct TreeNodes {
    const PairwiseShape* shape;
    const double* tree;
    double operator()(int level, int64_t k) const { return tree[shape->offset[level] + k]; }
};

// The nodes of a level as a mask selects them: x, or +0 for a zero mask.
inline double Select(double x, uint64_t mask) {
    return std::bit_cast<double>(std::bit_cast<uint64_t>(x) & mask);
}

// Nodes summed on the spot from the leaves, in the tree's order.
template <typename Leaf>
struct SummedNodes {
    const PairwiseShape* shape;
    Leaf leaf;
    double operator()(int level, int64_t k) const {
        if (level == 0) return leaf(k);
        double a = (*this)(level - 1, 2 * k);
        double b = 2 * k + 1 < shape->size[level - 1] ? (*this)(level - 1, 2 * k + 1) : 0.0;
        return a + b;
    }
};

template <typename Leaf>
void BuildTree(const PairwiseShape& s, Leaf leaf, double* tree) {
    for (int64_t k = 0; k < s.size[0]; ++k)
        tree[k] = leaf(k);
    for (int L = 1; L < s.levels; ++L) {
        const double* below = tree + s.offset[L - 1];
        double* level = tree + s.offset[L];
        int64_t n = s.size[L - 1];
        for (int64_t k = 0; k < s.size[L]; ++k)
            level[k] = below[2 * k] + (2 * k + 1 < n ? below[2 * k + 1] : 0.0);
    }
}

// The sum over pieces [i, j), empty (+0) unless i < j. Both partial sums start at +0
// and a sum of nonzero terms that cancels is +0 too, so they never hold -0.
template <typename Nodes>
[[gnu::always_inline]] inline double RangeSum(const Nodes& node, int64_t i, int64_t j) {
    if constexpr (std::is_same_v<Nodes, TreeNodes>) {
        // From a tree, without the branches on the ends' parities, which a random
        // range mispredicts at every other level: both candidate nodes are read (i and
        // j-1 lie in the level while i < j) and the ones not taken add +0, which
        // changes neither partial sum, so the bits are those of the loop below.
        double left = 0.0, right = 0.0;
        for (int L = 0; i < j; ++L) {
            const double* level = node.tree + node.shape->offset[L];
            uint64_t ti = static_cast<uint64_t>(i & 1), tj = static_cast<uint64_t>(j & 1);
            left = left + Select(level[i], 0 - ti);
            right = Select(level[j - 1], 0 - tj) + right;
            i = (i + static_cast<int64_t>(ti)) >> 1;
            j = (j - static_cast<int64_t>(tj)) >> 1;
        }
        return left + right;
    }
    double left = 0.0, right = 0.0;
    for (int L = 0; i < j; ++L) {
        if (i & 1) left = left + node(L, i++);
        if (j & 1) right = node(L, --j) + right;
        i >>= 1;
        j >>= 1;
    }
    return left + right;
}

// The walk of RangeSum, kept. A walk over [i, j) runs K(i, j) levels, and after K
// levels its left sum depends on i alone and its right sum on j alone; the tables hold
// them for every i, j in [0, count] and every K in [0, levels]. The range sum is then
// two reads and the walk's last addition: the same bits as the walk.
inline int64_t WalkTableSize(const PairwiseShape& s) {
    return (static_cast<int64_t>(s.levels) + 1) * (s.size[0] + 1);
}

// The levels that a walk over [i, j), i < j, runs: one more than the height of the
// largest aligned block of nodes inside the range. With h the height of the largest
// power of two not above j - i, that block is of height h or h - 1.
inline int WalkLevels(int64_t i, int64_t j) {
    int h = 63 - __builtin_clzll(static_cast<uint64_t>(j - i));
    int64_t block = int64_t(1) << h;
    int64_t start = ((i + block - 1) >> h) << h;
    return h + (start + block <= j ? 1 : 0);
}

// left and right of WalkTableSize(s) doubles each, from a built tree.
inline void BuildWalks(const PairwiseShape& s, const double* tree, double* left, double* right) {
    int64_t n = s.size[0] + 1;
    for (int64_t i = 0; i < n; ++i)
        left[i] = right[i] = 0.0;
    for (int L = 0; L < s.levels; ++L) {
        const double* level = tree + s.offset[L];
        const double *l0 = left + L * n, *r0 = right + L * n;
        double *l1 = left + (L + 1) * n, *r1 = right + (L + 1) * n;
        int64_t below = (int64_t(1) << L) - 1;
        for (int64_t i = 0; i < n; ++i) {
            // Where a walk from i, and one to i, stand at level L.
            int64_t up = (i >> L) + ((i & below) != 0 ? 1 : 0), down = i >> L;
            l1[i] = (up & 1) != 0 && up < s.size[L] ? l0[i] + level[up] : l0[i];
            r1[i] = (down & 1) != 0 ? level[down - 1] + r0[i] : r0[i];
        }
    }
}

// Tables of a function: left, then right.
struct WalkNodes {
    const double* left;
    const double* right;
    int64_t stride; // count + 1
};

[[gnu::always_inline]] inline double RangeSum(const WalkNodes& w, int64_t i, int64_t j) {
    int64_t at = static_cast<int64_t>(WalkLevels(i, j)) * w.stride;
    return w.left[at + i] + w.right[at + j];
}

} // namespace brenn::fit

#endif
