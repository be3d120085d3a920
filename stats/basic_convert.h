// The conversion methods of the basic compute (0x200, 0x400): no observations are
// read; means and moments come from the sums, covariance and correlation from the
// cross-product, and kurtosis, skewness and variation from the moment arrays as they
// stand after that.
#ifndef BRENN_STATS_BASIC_CONVERT_H
#define BRENN_STATS_BASIC_CONVERT_H

#include <stdint.h>

#include "brenn_stats.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/basic_finish.h"

namespace brenn::stats {

template <typename T>
int32_t ConvertFromSums(SSTask* task, uint32_t requested, int64_t p, const int64_t storage[3]) {
    T w = 0, w2 = 0;
    if (task->accumWeight != nullptr) {
        const T* aw = static_cast<const T*>(task->accumWeight);
        w = aw[0];
        w2 = aw[1];
    } else {
        int64_t n = ReadIndexWord(task, task->observationCount);
        if (n <= 0) return BRENN_SS_ERROR_OBSERVATION_COUNT;
        const T* weights = static_cast<const T*>(task->weights);
        for (int64_t i = 0; i < n; ++i) {
            w += weights[i];
            w2 += weights[i] * weights[i];
        }
    }
    // The active variables, then the means, c2, c3, c4 and two vectors of scratch.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) || !AddBytesFor(&bytes, p, 6 * sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    void* memory = brenn_serv_allocate(bytes, 128);
    if (memory == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(memory);
    int64_t q = ActiveVariables(task, p, act);
    T* mean = reinterpret_cast<T*>(act + p);
    T* c2 = mean + q;
    T* c3 = c2 + q;
    T* c4 = c3 + q;
    T* u = c4 + q;
    T* v = u + q;
    const T unbiased = w / (w * w - w2);
    const T invW = T(1) / w;
    // Moments from sums, in position order: the sum of position k + 12 feeds position k.
    for (int pos = PosMean; pos <= PosCen2 + 2; ++pos) {
        if (!Has(requested, pos)) continue;
        const T* in = static_cast<const T*>(PositionArray(task, pos + 12));
        T* out = static_cast<T*>(PositionArray(task, pos));
        T scale = pos == PosCen2 ? unbiased : invW;
        for (int64_t c = 0; c < q; ++c)
            out[act[c]] = in[act[c]] * scale;
    }
    const T* cp = static_cast<const T*>(task->crossProduct);
    if (Has(requested, PosCov)) {
        T* out = static_cast<T*>(task->covariance);
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a) {
                T val = cp[MatrixIndex(storage[2], p, act[a], act[b])] * unbiased;
                out[MatrixIndex(storage[0], p, act[a], act[b])] = val;
                if (storage[0] == BRENN_SS_MATRIX_STORAGE_FULL)
                    out[MatrixIndex(storage[0], p, act[b], act[a])] = val;
            }
    }
    if (Has(requested, PosCor)) {
        for (int64_t c = 0; c < q; ++c)
            v[c] = cp[MatrixIndex(storage[2], p, act[c], act[c])];
        VInvSqrt(q, v, u);
        T* out = static_cast<T*>(task->correlation);
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a) {
                T val = cp[MatrixIndex(storage[2], p, act[a], act[b])] * u[a] * u[b];
                out[MatrixIndex(storage[1], p, act[a], act[b])] = val;
                if (storage[1] == BRENN_SS_MATRIX_STORAGE_FULL)
                    out[MatrixIndex(storage[1], p, act[b], act[a])] = val;
            }
    }
    const uint32_t shape =
        requested & ((1u << PosKurtosis) | (1u << PosSkewness) | (1u << PosVariation));
    if (shape != 0) {
        auto gather = [&](void* array, T* dst) {
            if (array == nullptr) return;
            for (int64_t c = 0; c < q; ++c)
                dst[c] = static_cast<const T*>(array)[act[c]];
        };
        gather(task->mean, mean);
        gather(task->centralMoment2, c2);
        gather(task->centralMoment3, c3);
        gather(task->centralMoment4, c4);
        FinishShapeEstimates(task, shape, act, q, mean, c2, c3, c4, u, v);
    }
    brenn_serv_deallocate(memory);
    return BRENN_SS_OK;
}

} // namespace brenn::stats

#endif
