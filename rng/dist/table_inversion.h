/* The search of the discrete inversion methods: a table of cumulative probabilities
 * searched from a start index near the mode, down or up, so that a variate costs a
 * few comparisons; a uniform beyond the table's last value is left to the caller's
 * recurrence. And the loop that feeds an inversion its uniforms, a block at a time. */
#ifndef BRENN_RNG_DIST_TABLE_INVERSION_H
#define BRENN_RNG_DIST_TABLE_INVERSION_H

#include <stdint.h>

#include "brenn_rng.h"

namespace brenn::rng {

// The index k whose cumulative value first exceeds u, searched from `start`: below
// cdf[0] it is 0; from `start` down while u stays at or below the neighbour, or up
// until cdf[k] exceeds u. `count` when u is at or above the table's last value.
inline int32_t SearchCumulative(double u, const double* cdf, int32_t count, int32_t start) {
    if (u < cdf[0]) return 0;
    int32_t k = start;
    if (u < cdf[k]) {
        while (k > 0 && u <= cdf[k - 1])
            --k;
        return k;
    }
    while (++k < count && u >= cdf[k]) {
    }
    return k;
}

// Cumulative values of `count` probabilities f, formed from the top down as the
// total less the sum above each index, so that the rounding falls on the rare end.
inline void CumulativeFromTop(int32_t count, const double* f, double* cdf) {
    double total = 0.0;
    for (int32_t k = 0; k < count; ++k)
        total += f[k];
    double above = 0.0;
    for (int32_t k = count - 1; k >= 0; --k) {
        cdf[k] = total - above;
        above += f[k];
    }
}

// n variates by inversion, one double uniform on [0, 1) each, fetched in blocks of
// `Block`: r[i] = invert(u). A failing fetch ends the work with its status.
template <int32_t Block, typename Invert>
int32_t InvertUniformBlocks(void* stream, int32_t n, int32_t* r, Invert invert) {
    double u[Block];
    int32_t status = QES_STATUS_OK;
    for (int32_t done = 0; done < n; done += Block) {
        const int32_t block = n - done < Block ? n - done : Block;
        status = _qesdRngUniform(0, stream, block, u, 0.0, 1.0);
        if (status < 0) return status;
        for (int32_t i = 0; i < block; ++i)
            r[done + i] = invert(u[i]);
    }
    return status;
}

} // namespace brenn::rng

#endif
