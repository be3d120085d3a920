// Pieces of the last pass of the basic compute shared by the accumulating methods and
// the conversion methods: storage words, the active variables, and the estimates
// built from moments (kurtosis, skewness, variation, correlation) through the vector
// kernels.
#ifndef BRENN_STATS_BASIC_FINISH_H
#define BRENN_STATS_BASIC_FINISH_H

#include <stdint.h>

#include "brenn_stats.h"
#include "stats/basic_plan.h"
#include "stats/matrix_storage.h"
#include "stats/task.h"
#include "stats/vector_ops.h"

namespace brenn::stats {

// Positions whose last pass (or whose reload) needs square roots or reciprocals.
constexpr uint32_t kNeedsVectorOps =
    (1u << PosCor) | (1u << PosKurtosis) | (1u << PosSkewness) | (1u << PosVariation);

// Storage words of covariance, correlation and cross-product, for the matrices needed.
inline int32_t ReadMatrixStorages(const SSTask* task, uint32_t needed, int64_t storage[3]) {
    const int positions[3] = {PosCov, PosCor, PosCrossProduct};
    const void* words[3] = {task->covStorage, task->corStorage, task->crossProductStorage};
    for (int i = 0; i < 3; ++i) {
        if (!Has(needed, positions[i])) continue;
        if (words[i] == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
        storage[i] = ReadIndexWord(task, words[i]);
        if (!KnownMatrixStorage(storage[i])) return BRENN_SS_ERROR_STORAGE;
    }
    return 0;
}

// The variables that `indices` keeps (all without indices); returns their number.
inline int64_t ActiveVariables(const SSTask* task, int64_t p, int64_t* act) {
    int64_t q = 0;
    for (int64_t j = 0; j < p; ++j)
        if (task->indices == nullptr || ReadIndexWord(task, task->indices, j) != 0) act[q++] = j;
    return q;
}

// Kurtosis, skewness and variation of the positions in `set` from the compact moments
// c2 (unbiased), c3, c4 and the means; u and v are q elements of scratch each.
template <typename T>
void FinishShapeEstimates(SSTask* task, uint32_t set, const int64_t* act, int64_t q, const T* mean,
                          const T* c2, const T* c3, const T* c4, T* u, T* v) {
    if (Has(set, PosKurtosis)) {
        for (int64_t c = 0; c < q; ++c)
            v[c] = c2[c] * c2[c];
        VInv(q, v, u);
        T* out = static_cast<T*>(task->kurtosis);
        for (int64_t c = 0; c < q; ++c)
            out[act[c]] = c4[c] * u[c] - T(3);
    }
    if (Has(set, PosSkewness)) {
        for (int64_t c = 0; c < q; ++c)
            v[c] = c2[c] * c2[c] * c2[c];
        VInvSqrt(q, v, u);
        T* out = static_cast<T*>(task->skewness);
        for (int64_t c = 0; c < q; ++c)
            out[act[c]] = c3[c] * u[c];
    }
    if (Has(set, PosVariation)) {
        VSqrt(q, c2, u);
        VInv(q, mean, v);
        T* out = static_cast<T*>(task->variation);
        for (int64_t c = 0; c < q; ++c)
            out[act[c]] = u[c] * v[c];
    }
}

// Correlation from a compact cross-product (or covariance) m: the normalisation
// cancels. u and v are q elements of scratch each.
template <typename T>
void StoreCorrelation(SSTask* task, int64_t storage, int64_t p, const int64_t* act, int64_t q,
                      const T* m, T* u, T* v) {
    for (int64_t c = 0; c < q; ++c)
        v[c] = m[c + c * q];
    VInvSqrt(q, v, u);
    T* out = static_cast<T*>(task->correlation);
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a) {
            T r = m[a + b * q] * u[a] * u[b];
            out[MatrixIndex(storage, p, act[a], act[b])] = r;
            if (storage == BRENN_SS_MATRIX_STORAGE_FULL)
                out[MatrixIndex(storage, p, act[b], act[a])] = r;
        }
}

} // namespace brenn::stats

#endif
