// The accumulation loops of the basic compute: one table of 64 kernels a precision,
// each with the data's shape fixed (moment order, matrix or not, weights or not,
// layout), so that no test of shape stands in an inner loop.
//
// Entries 0 to 31, the one-pass path: cov + 2 * o + 8 * weighted + 16 * variableRows,
// where o is the highest moment order minus 1. The kernel runs the observation-by-
// observation update on a MomentState (means, raw moments, central sums and, with cov,
// the lower triangle of the cross-product, whose stride is j1).
//
// Entries 32 to 63, the blocked path: 32 + 16 * group + mode + 4 * weighted +
// 8 * variableRows. Group 0 sums the powers 1 to mode + 1 of the deviations from the
// centre in `work` into mean (power 1) and cen; group 1 sums the powers 1 to mode + 1
// of the data into mean and raw, and the weights into weight. Both overwrite what they
// write.
//
// variableRows is the 0x10000 layout: x[j * ld + i]; otherwise x[i * ld + j].
#ifndef BRENN_STATS_BASIC_KERNELS_H
#define BRENN_STATS_BASIC_KERNELS_H

#include <stdint.h>

#include "stats/moments.h"

namespace brenn::stats {

template <typename T>
using BasicKernel = void (*)(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t j0, int64_t j1,
                             const T* w, MomentState<T>* s, T* work);

extern const BasicKernel<double> kBasicKernelsD[64];
extern const BasicKernel<float> kBasicKernelsS[64];

template <typename T>
inline const BasicKernel<T>* BasicKernels();
template <>
inline const BasicKernel<double>* BasicKernels<double>() {
    return kBasicKernelsD;
}
template <>
inline const BasicKernel<float>* BasicKernels<float>() {
    return kBasicKernelsS;
}

inline int OnePassIndex(bool cov, int order, bool weighted, bool variableRows) {
    return (cov ? 1 : 0) + 2 * (order - 1) + (weighted ? 8 : 0) + (variableRows ? 16 : 0);
}

enum BlockGroup { GroupCentral = 0, GroupRaw = 1 };

inline int BlockIndex(BlockGroup group, int order, bool weighted, bool variableRows) {
    return 32 + 16 * group + (order - 1) + (weighted ? 4 : 0) + (variableRows ? 8 : 0);
}

} // namespace brenn::stats

#endif
