// The cells of a large batch's limits by a grid made for the call: as many equal
// buckets as nodes, each holding the count of nodes in the buckets below it. A site's
// bucket, by the same rounding as a node's, tells every node outside it apart, so
// where its bucket holds three nodes or fewer the cell is that count plus three
// compares. A site's cell is the count of nodes not above it whichever way it is
// found, so the cells are those of the searcher the grid stands in for; sites that
// the grid does not settle (outside [x[0], x[nx-1]), NaN, crowded buckets) go to that
// searcher, gathered.
#ifndef BRENN_FITTING_LIMIT_CELLS_H
#define BRENN_FITTING_LIMIT_CELLS_H

#include "fitting/search_rules.h"

namespace brenn::fit {

struct CellGrid {
    double x0, right, scale;
    int64_t buckets, nx;
    int32_t* start; // buckets + 1 counts; null: no grid
};

// The bucket of v in [x0, right], the last one taking the right end.
inline int64_t GridBucket(const CellGrid& g, double v) {
    int64_t b = static_cast<int64_t>((v - g.x0) * g.scale);
    return b < g.buckets ? b : g.buckets - 1;
}

// Fills g.start (g.buckets + 1 entries) from an ascending partition. False, leaving
// the grid unused, for a partition that is not ascending (or holds a NaN) or whose
// scale is not finite: there the searchers alone say what a cell is.
template <typename T>
bool BuildGrid(const T* x, int64_t nx, CellGrid* g) {
    for (int64_t i = 0; i + 1 < nx; ++i)
        if (!(x[i] <= x[i + 1])) return false;
    g->x0 = x[0];
    g->right = x[nx - 1];
    g->nx = nx;
    g->scale = static_cast<double>(g->buckets) / (g->right - g->x0);
    if (!(g->scale > 0 && g->scale < 1e300)) return false;
    int64_t i = 0;
    for (int64_t b = 0; b <= g->buckets; ++b) {
        while (i < nx && GridBucket(*g, x[i]) < b)
            ++i;
        g->start[b] = static_cast<int32_t>(i);
    }
    return true;
}

// Cells of n sites; the unsettled ones by st's searcher (one that keeps no walk).
template <typename T>
void GridCells(const CellGrid& g, const SearchSetup<T>& st, int64_t n, const T* site,
               int32_t* cell) {
    constexpr int64_t kMost = 64;
    const T* x = st.x;
    int64_t last = g.nx - 1;
    for (int64_t i = 0; i < n; i += kMost) {
        int64_t count = n - i < kMost ? n - i : kMost;
        T rest[kMost];
        int32_t restCell[kMost], at[kMost];
        int64_t m = 0;
        for (int64_t j = i; j < i + count; ++j) {
            double s = site[j];
            if (s >= g.x0 && s < g.right) {
                int64_t b = GridBucket(g, s);
                int64_t k = g.start[b];
                if (g.start[b + 1] - k <= 3) {
                    // Nodes past the bucket lie above s, and so does x[last].
                    int64_t k1 = k + 1 < last ? k + 1 : last, k2 = k + 2 < last ? k + 2 : last;
                    cell[j] = static_cast<int32_t>(k + (x[k] <= site[j]) + (x[k1] <= site[j]) +
                                                   (x[k2] <= site[j]));
                    continue;
                }
            }
            rest[m] = site[j];
            at[m++] = static_cast<int32_t>(j);
        }
        if (m == 0) continue;
        SearchPlain(st, m, rest, restCell, nullptr);
        for (int64_t r = 0; r < m; ++r)
            cell[at[r]] = restCell[r];
    }
}

} // namespace brenn::fit

#endif
