// Random draws of the statistics estimates, from the library's own MT19937 stream: the
// random subsets of the robust covariance.
#ifndef BRENN_STATS_RANDOM_DRAWS_H
#define BRENN_STATS_RANDOM_DRAWS_H

#include <stdint.h>

#include "brenn_rng.h"
#include "brenn_stats.h"

namespace brenn::stats {

constexpr int32_t kMT19937 = 0x800000;

// Uniforms on [0, 1) taken a block at a time from one stream, in order.
struct UniformDraws {
    void* stream = nullptr;
    double block[256];
    int used = 256;
};

// Seeds an MT19937 stream with one word; BRENN_SS_ERROR_ALLOC when it can't be made.
inline int32_t OpenDraws(UniformDraws* d, uint32_t seed) {
    d->used = 256;
    return __qesNewStreamEx(&d->stream, kMT19937, 1, &seed) == 0 ? 0 : BRENN_SS_ERROR_ALLOC;
}

inline void CloseDraws(UniformDraws* d) {
    if (d->stream != nullptr) __qesDeleteStream(&d->stream);
}

// A uniform index in [0, m).
inline int64_t DrawIndex(UniformDraws* d, int64_t m) {
    if (d->used == 256) {
        _qesdRngUniform(0, d->stream, 256, d->block, 0.0, 1.0);
        d->used = 0;
    }
    int64_t i = static_cast<int64_t>(d->block[d->used++] * double(m));
    return i < m ? i : m - 1;
}

} // namespace brenn::stats

#endif
