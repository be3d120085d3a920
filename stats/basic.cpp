// The basic compute: moments, sums, skewness, kurtosis, variation, covariance,
// correlation and cross-product. The caller's arrays are the running state of a
// computation fed in blocks: they are turned back into running sums at the start of a
// call, the new observations are accumulated (basic_accumulate.h) and the estimates
// are written back with the normalisation of brenn_stats.h.
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/threader.h"
#include "stats/basic_accumulate.h"
#include "stats/basic_convert.h"
#include "stats/basic_finish.h"
#include "stats/basic_plan.h"
#include "stats/carried_sums.h"
#include "stats/matrix_storage.h"
#include "stats/task.h"
#include "stats/vector_ops.h"

namespace brenn::stats {
namespace {

int HighestOrder(uint32_t needed) {
    // Positions of raw moments, central moments, raw sums and central sums of order k.
    int order = 1;
    for (int k = 2; k <= 4; ++k) {
        int o = k - 2;
        if (Has(needed, PosRaw2 + o) || Has(needed, PosCen2 + o) || Has(needed, PosRawSum2 + o) ||
            Has(needed, PosCenSum2 + o))
            order = k;
    }
    return order;
}

bool NeedsMatrix(uint32_t needed) {
    return Has(needed, PosCov) || Has(needed, PosCor) || Has(needed, PosCrossProduct);
}

// Central sums of orders 2 to 4 from raw moments and the mean.
template <typename T>
T CentralFromRaw(int k, T w, T m, T r2, T r3, T r4) {
    if (k == 0) return w * (r2 - m * m);
    if (k == 1) return w * (r3 - T(3) * m * r2 + T(2) * m * m * m);
    return w * (r4 - T(4) * m * r3 + T(6) * m * m * r2 - T(3) * (m * m) * (m * m));
}

template <typename T>
T* Arr(const SSTask* task, int position) {
    return static_cast<T*>(PositionArray(task, position));
}

// True when the needed arrays hold the mean and the raw moments up to order k + 2, from
// which the central sum of that order follows.
bool RawGivesCentral(uint32_t needed, int k) {
    if (!Has(needed, PosMean) && !Has(needed, PosSum)) return false;
    for (int i = 0; i <= k; ++i)
        if (!Has(needed, PosRaw2 + i) && !Has(needed, PosRawSum2 + i)) return false;
    return true;
}

// Turns what a former call left in the arrays (and the sums of `carried` orders that it
// kept in the task) back into running state. A central sum that an estimate depends on
// and that nothing holds can't be rebuilt: a block of a data set that this task did not
// feed before can't be joined then.
template <typename T>
int32_t LoadState(const SSTask* task, uint32_t needed, MethodKind kind, int order, uint32_t carried,
                  const int64_t* act, int64_t q, int64_t p, const int64_t storage[3],
                  MomentState<T>& s, T* tmp) {
    const T w = s.weight[0], w2 = s.weight[1];
    const T spread = w * w - w2;
    const T fromUnbiased = spread > 0 ? spread / w : T(0); // one observation: sums are 0
    const double* kept = carried != 0 ? FindCarriedSums(task, p, s.weight) : nullptr;
    auto keptSum = [&](int64_t j, int k, T* v) {
        if (kept == nullptr || k >= kCarriedOrders || isnan(kept[j * kCarriedOrders + k]))
            return false;
        *v = static_cast<T>(kept[j * kCarriedOrders + k]);
        return true;
    };
    for (int64_t c = 0; c < q; ++c) {
        int64_t j = act[c];
        s.mean[c] = Has(needed, PosMean)  ? Arr<T>(task, PosMean)[j]
                    : Has(needed, PosSum) ? Arr<T>(task, PosSum)[j] / w
                                          : T(0);
        for (int k = 0; k + 2 <= order; ++k)
            s.raw[k][c] = Has(needed, PosRaw2 + k)      ? Arr<T>(task, PosRaw2 + k)[j]
                          : Has(needed, PosRawSum2 + k) ? Arr<T>(task, PosRawSum2 + k)[j] / w
                                                        : T(0);
        for (int k = 0; k + 2 <= order; ++k) {
            T v;
            if (!(spread > 0))
                v = 0; // one observation so far: no deviation, whatever the arrays say
            else if (kind != MethodRawFirst && Has(needed, PosCenSum2 + k))
                v = Arr<T>(task, PosCenSum2 + k)[j];
            else if (Has(needed, PosCen2 + k))
                v = Arr<T>(task, PosCen2 + k)[j] * (k == 0 ? fromUnbiased : w);
            else if (!((carried >> k) & 1u) || !keptSum(j, k, &v)) {
                if (((carried >> k) & 1u) && !RawGivesCentral(needed, k))
                    return BRENN_SS_ERROR_METHOD;
                v = CentralFromRaw(k, w, s.mean[c], s.raw[0][c], s.raw[1][c], s.raw[2][c]);
            }
            s.cen[k][c] = v;
        }
    }
    if (s.cross == nullptr) return 0;
    if (!(spread > 0)) {
        for (int64_t e = 0; e < q * q; ++e)
            s.cross[e] = 0;
    } else if (Has(needed, PosCrossProduct)) {
        LoadMatrix(s.cross, Arr<T>(task, PosCrossProduct), storage[2], p, act, q, T(1));
    } else if (Has(needed, PosCov)) {
        LoadMatrix(s.cross, Arr<T>(task, PosCov), storage[0], p, act, q, fromUnbiased);
    } else {
        // Correlation alone: scaled back to a cross-product with the sums of squares.
        T* squares = s.cen[0];
        if (order < 2) {
            squares = tmp + q;
            for (int64_t c = 0; c < q; ++c)
                if (!keptSum(act[c], 0, &squares[c])) return BRENN_SS_ERROR_METHOD;
        }
        VSqrt(q, squares, tmp);
        LoadMatrix(s.cross, Arr<T>(task, PosCor), storage[1], p, act, q, T(1));
        for (int64_t b = 0; b < q; ++b)
            for (int64_t a = b; a < q; ++a)
                s.cross[a + b * q] *= tmp[a] * tmp[b];
    }
    return 0;
}

// Writes the estimates of the needed positions from the running state.
template <typename T>
void StoreEstimates(SSTask* task, uint32_t needed, MethodKind kind, int order, const int64_t* act,
                    int64_t q, int64_t p, const int64_t storage[3], const MomentState<T>& s,
                    T* tmp) {
    const T w = s.weight[0], w2 = s.weight[1];
    const T unbiased = w / (w * w - w2);
    const T invW = T(1) / w;
    T* c2 = tmp;
    T* c3 = tmp + q;
    T* c4 = tmp + 2 * q;
    T* u = tmp + 3 * q;
    T* v = tmp + 4 * q;
    for (int64_t c = 0; c < q; ++c) {
        int64_t j = act[c];
        if (Has(needed, PosMean)) Arr<T>(task, PosMean)[j] = s.mean[c];
        if (Has(needed, PosSum)) Arr<T>(task, PosSum)[j] = s.mean[c] * w;
        for (int k = 0; k + 2 <= order; ++k) {
            if (Has(needed, PosRaw2 + k)) Arr<T>(task, PosRaw2 + k)[j] = s.raw[k][c];
            if (Has(needed, PosRawSum2 + k)) Arr<T>(task, PosRawSum2 + k)[j] = s.raw[k][c] * w;
            if (Has(needed, PosCenSum2 + k))
                Arr<T>(task, PosCenSum2 + k)[j] =
                    kind == MethodRawFirst
                        ? CentralFromRaw(k, w, s.mean[c], s.raw[0][c], s.raw[1][c], s.raw[2][c])
                        : s.cen[k][c];
        }
        if (order >= 2) c2[c] = s.cen[0][c] * unbiased;
        if (order >= 3) c3[c] = s.cen[1][c] * invW;
        if (order >= 4) c4[c] = s.cen[2][c] * invW;
        for (int k = 0; k + 2 <= order; ++k)
            if (Has(needed, PosCen2 + k)) Arr<T>(task, PosCen2 + k)[j] = tmp[k * q + c];
    }
    FinishShapeEstimates(task, needed, act, q, s.mean, c2, c3, c4, u, v);
    if (Has(needed, PosCov))
        StoreMatrix(Arr<T>(task, PosCov), storage[0], p, act, q, s.cross, unbiased);
    if (Has(needed, PosCrossProduct))
        StoreMatrix(Arr<T>(task, PosCrossProduct), storage[2], p, act, q, s.cross, T(1));
    if (Has(needed, PosCor)) StoreCorrelation(task, storage[1], p, act, q, s.cross, u, v);
}

template <typename T>
int32_t Basic(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* task = static_cast<SSTask*>(handle);
    MethodKind kind;
    if (!ParseMethod(method, &kind)) return BRENN_SS_ERROR_METHOD;
    uint32_t needed = 0;
    int32_t status = CheckRequirements(PackEstimates(estimates), PresentSet(task), kind, &needed);
    if (status != 0) return status;

    int64_t n = 0, layout = 0;
    if (kind != MethodFromSums) {
        if (task->observationCount == nullptr ||
            (n = ReadIndexWord(task, task->observationCount)) <= 0)
            return BRENN_SS_ERROR_OBSERVATION_COUNT;
        if (task->observations == nullptr) return BRENN_SS_ERROR_OBSERVATIONS_MISSING;
        if (task->observationStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
        layout = ReadIndexWord(task, task->observationStorage);
        if ((layout & (BRENN_SS_MATRIX_STORAGE_ROWS | BRENN_SS_MATRIX_STORAGE_COLS)) == 0)
            return BRENN_SS_ERROR_STORAGE;
    } else if (task->accumWeight == nullptr &&
               (task->observationCount == nullptr || task->weights == nullptr)) {
        return BRENN_SS_ERROR_ACCUM_WEIGHT_MISSING;
    }
    int64_t p = 0;
    if (task->dimension == nullptr || (p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    int64_t storage[3] = {0, 0, 0};
    status = ReadMatrixStorages(task, needed, storage);
    if (status != 0) return status;
    if ((needed & kNeedsVectorOps) != 0 && !VectorOpsPresent(static_cast<const T*>(nullptr)))
        return BRENN_SS_ERROR_METHOD;
    if (needed == 0) return BRENN_SS_OK;

    if (kind == MethodFromSums)
        return ConvertFromSums<T>(task, PackEstimates(estimates), p, storage);

    const int order = HighestOrder(needed);
    const bool matrix = NeedsMatrix(needed);
    // One block: the active variables, the running state and five vectors of scratch.
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t)) ||
        !AddStateBytes(&bytes, p, matrix, false, sizeof(T)) ||
        !AddBytesFor(&bytes, p, 5 * sizeof(T)))
        return BRENN_SS_ERROR_ALLOC;
    T* aw = static_cast<T*>(task->accumWeight);
    // Only a data set fed in blocks (through accumWeight) carries sums between calls.
    const uint32_t carried = aw != nullptr ? CarriedOrders(needed, kind) : 0;
    if (carried != 0 && !ReserveCarriedSums(task, p)) return BRENN_SS_ERROR_ALLOC;
    void* memory = brenn_serv_allocate(bytes, 128);
    if (memory == nullptr) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(memory);
    int64_t q = ActiveVariables(task, p, act);
    MomentState<T> s;
    T* tmp = LayOutState(s, reinterpret_cast<T*>(act + p), q, matrix, false);
    memset(reinterpret_cast<void*>(s.mean), 0, (tmp - s.mean) * sizeof(T));
    if (aw != nullptr && aw[0] > 0) {
        s.weight[0] = aw[0];
        s.weight[1] = aw[1];
        status = LoadState(task, needed, kind, order, carried, act, q, p, storage, s, tmp);
    }
    const T before = s.weight[0];
    if (status == 0 && q > 0) {
        Accumulation<T> a;
        a.x = static_cast<const T*>(task->observations);
        a.w = static_cast<const T*>(task->weights);
        a.n = n;
        a.variableRows = (layout & BRENN_SS_MATRIX_STORAGE_ROWS) != 0;
        a.ld = a.variableRows ? n : p;
        a.act = act;
        a.q = q;
        a.compact = q < p;
        // One variable is the same walk in both layouts; the contiguous one is faster.
        if (p == 1) a.variableRows = true;
        a.order = order;
        a.matrix = matrix;
        a.blocked = kind != MethodOnePass;
        a.rawSums = kind == MethodRawFirst;
        status = Accumulate(a, thr, s, tmp);
    }
    // A call that added no weight (all weights 0) leaves every result as it was.
    if (status == 0 && q > 0 && s.weight[0] != before) {
        StoreEstimates(task, needed, kind, order, act, q, p, storage, s, tmp);
        if (aw != nullptr) {
            aw[0] = s.weight[0];
            aw[1] = s.weight[1];
        }
        if (carried != 0) KeepCarriedSums(task, p, act, q, order, carried, s);
    }
    brenn_serv_deallocate(memory);
    return status;
}

} // namespace
} // namespace brenn::stats

using brenn::stats::Basic;

BRENN_EXPORT int32_t _qesdSSBasic(void* task, uint64_t estimates, uint64_t method,
                                  const threader* thr) {
    return Basic<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSBasic(void* task, uint64_t estimates, uint64_t method,
                                  const threader* thr) {
    return Basic<float>(task, estimates, method, thr);
}
