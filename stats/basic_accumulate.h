// Accumulation of the observations of one call into a MomentState: the range is split
// over the threads of the `threader`, each thread runs the one-pass or the blocked
// path over its share with private state, and the calling thread merges the shares by
// weight. Failure in a thread goes to a shared status word.
#ifndef BRENN_STATS_BASIC_ACCUMULATE_H
#define BRENN_STATS_BASIC_ACCUMULATE_H

#include <atomic>
#include <stdint.h>
#include <string.h>

#include "brenn_stats.h"
#include "platform/blas.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/threader.h"
#include "stats/basic_kernels.h"
#include "stats/moments.h"
#include "stats/rank_update.h"

namespace brenn::stats {

template <typename T>
struct Accumulation {
    // What to read.
    const T* x;
    const T* w; // null without weights
    int64_t n;  // observations
    int64_t ld; // leading dimension of x
    bool variableRows;
    const int64_t* act; // active variables
    int64_t q;
    bool compact; // some variables are left out: blocks are gathered first
    // What to compute.
    int order; // 1 to 4
    bool matrix;
    bool blocked;
    bool rawSums; // raw-first method: the blocked path sums raw powers of the data
    // The shares run on a team of the threader: the cross-products by the library's own
    // rank-k update instead of the BLAS, which would start threads of its own inside
    // the team's (platform/lapack.h).
    bool team;
    // Threads: the shares and the memory each thread made for its own.
    int slots;
    MomentState<T>* shares;
    void** memory;
    std::atomic<int32_t> status;
};

// Observations a block: a quarter of a megabyte of data, at least 64.
inline int64_t BlockRows(int64_t q, bool weighted) {
    int64_t rows = 262144 / (8 * q * (weighted ? 2 : 1));
    return rows < 64 ? 64 : rows;
}

inline void Syrk(int n, int k, const double* a, double* c) {
    const double one = 1;
    brenn_blas_xdsyrk("L", "N", &n, &k, &one, a, &n, &one, c, &n);
}
inline void Syrk(int n, int k, const float* a, float* c) {
    const float one = 1;
    brenn_blas_xssyrk("L", "N", &n, &k, &one, a, &n, &one, c, &n);
}
inline void Gemm(int n, int k, const double* a, const double* b, double* c) {
    const double one = 1;
    brenn_blas_xdgemm("N", "T", &n, &n, &k, &one, a, &n, b, &n, &one, c, &n);
}
inline void Gemm(int n, int k, const float* a, const float* b, float* c) {
    const float one = 1;
    brenn_blas_xsgemm("N", "T", &n, &n, &k, &one, a, &n, b, &n, &one, c, &n);
}

// Copies rows [i0, i1) of the active variables into out, in the layout of the data.
template <typename T>
void Gather(const Accumulation<T>& a, int64_t i0, int64_t i1, T* out) {
    const int64_t q = a.q;
    if (a.variableRows) {
        for (int64_t c = 0; c < q; ++c) {
            const T* src = a.x + a.act[c] * a.ld;
            for (int64_t i = i0; i < i1; ++i)
                out[c * (i1 - i0) + (i - i0)] = src[i];
        }
    } else {
        for (int64_t i = i0; i < i1; ++i) {
            const T* row = a.x + i * a.ld;
            T* dst = out + (i - i0) * q;
            for (int64_t c = 0; c < q; ++c)
                dst[c] = row[a.act[c]];
        }
    }
}

// The deviations of a block from `centre`, one observation contiguous (the column-major
// q x rows matrix of the BLAS), and with weights the same scaled by the weight. With
// kSum the weighted sums of the deviations go to sum1 on the way.
template <typename T, bool kVarRows, bool kSum>
void CentredCopy(const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t q, const T* w,
                 const T* centre, T* out, T* weighted, T* sum1) {
    if (kSum)
        for (int64_t j = 0; j < q; ++j)
            sum1[j] = 0;
    if (kVarRows) {
        for (int64_t j = 0; j < q; ++j) {
            const T* src = x + j * ld;
            T c = centre[j], acc = 0;
            for (int64_t i = i0; i < i1; ++i) {
                T d = src[i] - c;
                out[(i - i0) * q + j] = d;
                if (kSum) acc += w != nullptr ? w[i] * d : d;
            }
            if (kSum) sum1[j] = acc;
        }
    } else {
        for (int64_t i = i0; i < i1; ++i) {
            const T* __restrict row = x + i * ld;
            T* __restrict dst = out + (i - i0) * q;
            for (int64_t j = 0; j < q; ++j)
                dst[j] = row[j] - centre[j];
            if (kSum) {
                T wi = w != nullptr ? w[i] : T(1);
                for (int64_t j = 0; j < q; ++j)
                    sum1[j] += wi * dst[j];
            }
        }
    }
    if (weighted != nullptr)
        for (int64_t i = i0; i < i1; ++i) {
            T wi = w[i];
            const T* __restrict src = out + (i - i0) * q;
            T* __restrict dst = weighted + (i - i0) * q;
            for (int64_t j = 0; j < q; ++j)
                dst[j] = src[j] * wi;
        }
}

template <typename T, bool kSum>
void CentredCopyIn(bool varRows, const T* x, int64_t ld, int64_t i0, int64_t i1, int64_t q,
                   const T* w, const T* centre, T* out, T* weighted, T* sum1) {
    if (varRows)
        CentredCopy<T, true, kSum>(x, ld, i0, i1, q, w, centre, out, weighted, sum1);
    else
        CentredCopy<T, false, kSum>(x, ld, i0, i1, q, w, centre, out, weighted, sum1);
}

// Sums of the weights and of their squares over [i0, i1).
template <typename T>
void WeightSums(const T* w, int64_t i0, int64_t i1, T sums[2]) {
    if (w == nullptr) {
        sums[0] = sums[1] = T(i1 - i0);
        return;
    }
    double a = 0, b = 0;
    for (int64_t i = i0; i < i1; ++i) {
        a += w[i];
        b += double(w[i]) * w[i];
    }
    sums[0] = T(a);
    sums[1] = T(b);
}

// Moves central sums of powers 2 to `order` taken around a centre c to the centre
// c + e, where e = (sum of w d) / wb (binomial shift); `sums` holds the sums of powers
// 1 to 4 around c in mean and cen. The result replaces cen.
template <typename T>
inline void ShiftCentre(MomentState<T>& blk, int order, int64_t j, T e, T wb) {
    T s2 = order >= 2 ? blk.cen[0][j] : T(0), s3 = order >= 3 ? blk.cen[1][j] : T(0);
    T s4 = order >= 4 ? blk.cen[2][j] : T(0);
    if (order >= 4)
        blk.cen[2][j] = s4 - T(4) * e * s3 + T(6) * e * e * s2 - T(3) * wb * (e * e) * (e * e);
    if (order >= 3) blk.cen[1][j] = s3 - T(3) * e * s2 + T(2) * wb * e * e * e;
    if (order >= 2) blk.cen[0][j] = s2 - wb * e * e;
}

// One block of the blocked path. The block's moments are taken around a centre: the
// running mean of the share (the first block's own mean for the first block), so that one
// pass gives all sums of powers; the centre is then moved to the block's mean, raw
// moments follow from the binomial expansion around the centre, and the matrix goes
// through the BLAS on the centred copy. With rawSums (the raw-first method) the raw
// sums are taken from the data themselves and the centre is the rounded block mean.
template <typename T>
void BlockStep(const Accumulation<T>& a, const T* x, int64_t ld, bool varRows, int64_t i0,
               int64_t i1, const T* w, MomentState<T>& s, MomentState<T>& blk, T* centre, T* delta,
               T* copy, T* copyW) {
    const int64_t q = a.q;
    const bool weighted = w != nullptr;
    const BasicKernel<T>* table = BasicKernels<T>();
    T wb;
    if (a.rawSums) {
        table[BlockIndex(GroupRaw, a.order, weighted, varRows)](x, ld, i0, i1, 0, q, w, &blk,
                                                                nullptr);
        wb = blk.weight[0];
        if (wb == 0) return; // a run of zero weights adds nothing
        T inv = T(1) / wb;
        for (int64_t j = 0; j < q; ++j) {
            centre[j] = blk.mean[j] * inv;
            for (int k = 0; k + 2 <= a.order; ++k)
                blk.raw[k][j] *= inv;
        }
    } else if (s.weight[0] > 0) {
        WeightSums(w, i0, i1, blk.weight);
        wb = blk.weight[0];
        if (wb == 0) return;
        for (int64_t j = 0; j < q; ++j)
            centre[j] = s.mean[j];
    } else {
        // The share's first block has no running mean yet: its own rounded mean is the
        // centre, at the price of one more pass over this block alone.
        table[BlockIndex(GroupRaw, 1, weighted, varRows)](x, ld, i0, i1, 0, q, w, &blk, nullptr);
        wb = blk.weight[0];
        if (wb == 0) return;
        for (int64_t j = 0; j < q; ++j)
            centre[j] = blk.mean[j] / wb;
    }
    const bool fused = a.matrix && a.order == 1;
    if (fused)
        CentredCopyIn<T, true>(varRows, x, ld, i0, i1, q, w, centre, copy, copyW, blk.mean);
    else
        table[BlockIndex(GroupCentral, a.order, weighted, varRows)](x, ld, i0, i1, 0, q, w, &blk,
                                                                    centre);
    const T inv = T(1) / wb;
    for (int64_t j = 0; j < q; ++j) {
        T c = centre[j], d1 = blk.mean[j];
        if (!a.rawSums && a.order >= 2) {
            // Raw sums around 0 from the sums around c, before the shift.
            T d2 = blk.cen[0][j], d3 = a.order >= 3 ? blk.cen[1][j] : T(0);
            T d4 = a.order >= 4 ? blk.cen[2][j] : T(0);
            T c2 = c * c;
            blk.raw[0][j] = (wb * c2 + T(2) * c * d1 + d2) * inv;
            if (a.order >= 3)
                blk.raw[1][j] = (wb * c2 * c + T(3) * c2 * d1 + T(3) * c * d2 + d3) * inv;
            if (a.order >= 4)
                blk.raw[2][j] =
                    (wb * c2 * c2 + T(4) * c2 * c * d1 + T(6) * c2 * d2 + T(4) * c * d3 + d4) * inv;
        }
        T e = d1 * inv;
        delta[j] = e;
        ShiftCentre(blk, a.order, j, e, wb);
        blk.mean[j] = c + e;
    }
    if (a.matrix) {
        if (!fused)
            CentredCopyIn<T, false>(varRows, x, ld, i0, i1, q, w, centre, copy, copyW, nullptr);
        int rows = static_cast<int>(i1 - i0);
        if (a.team)
            LowerCrossUpdate(q, rows, copy, weighted ? copyW : copy, s.cross);
        else if (weighted)
            Gemm(static_cast<int>(q), rows, copy, copyW, s.cross);
        else
            Syrk(static_cast<int>(q), rows, copy, s.cross);
        Syr(q, -wb, delta, s.cross);
    }
    MergeState(s, blk, a.order, q, true, delta);
}

// Observations a step of the one-pass path: the update runs into a fresh state that
// is then merged, so that the rounding of the running shares (t = 1 / (W + w)) never
// compounds over more than this many observations, which matters in single precision.
constexpr int64_t kOnePassRows = 256;

// Runs one share [i0, i1) into a zeroed state s.
template <typename T>
void AccumulateShare(const Accumulation<T>& a, int64_t i0, int64_t i1, MomentState<T>& s,
                     T* scratch) {
    const int64_t q = a.q;
    const bool weighted = a.w != nullptr;
    const int64_t rows = a.blocked ? BlockRows(q, weighted) : kOnePassRows;
    // scratch: work/centre, delta, block state (with a matrix on the one-pass path),
    // gathered rows, centred copies; the vectors and states on 64-byte boundaries
    const int64_t stride = PadTo64Bytes(q);
    T* work = scratch;
    T* delta = work + stride;
    MomentState<T> blk;
    T* gather = LayOutState(blk, delta + stride, q, a.matrix && !a.blocked, true);
    T* copy = gather + (a.compact ? rows * q : 0);
    T* copyW = weighted ? copy + rows * q : nullptr;

    const BasicKernel<T>* table = BasicKernels<T>();
    const BasicKernel<T> onePass = table[OnePassIndex(a.matrix, a.order, weighted, a.variableRows)];
    const size_t stateBytes = (gather - (delta + stride)) * sizeof(T);
    for (int64_t b0 = i0; b0 < i1;) {
        int64_t b1 = i1 - b0 > rows ? b0 + rows : i1;
        const T* x = a.x;
        int64_t ld = a.ld, r0 = b0, r1 = b1;
        bool varRows = a.variableRows;
        const T* w = a.w;
        if (a.compact) {
            Gather(a, b0, b1, gather);
            x = gather;
            ld = a.variableRows ? b1 - b0 : q;
            r0 = 0;
            r1 = b1 - b0;
            w = weighted ? a.w + b0 : nullptr;
        }
        if (a.blocked) {
            BlockStep(a, x, ld, varRows, r0, r1, w, s, blk, work, delta, copy, copyW);
        } else {
            memset(static_cast<void*>(blk.mean), 0, stateBytes);
            blk.weight[0] = blk.weight[1] = 0;
            onePass(x, ld, r0, r1, 0, q, w, &blk, work);
            MergeState(s, blk, a.order, q, false, delta);
        }
        b0 = b1;
    }
}

// Bytes of a thread's memory: its state and the scratch of AccumulateShare. False when
// they overflow.
template <typename T>
bool ShareScratchBytes(const Accumulation<T>& a, size_t* bytes) {
    const int64_t q = a.q;
    const bool weighted = a.w != nullptr;
    const int64_t rows = a.blocked ? BlockRows(q, weighted) : kOnePassRows;
    // Copies of a block's rows: gathered when variables are left out, and centred (with
    // their weighted twin) for the BLAS on the blocked path.
    const int64_t copies = (a.compact ? 1 : 0) + (a.blocked && a.matrix ? (weighted ? 2 : 1) : 0);
    size_t total = 0, row;
    if (!AddStateBytes(&total, q, a.matrix, true, sizeof(T)) ||
        !AddStateBytes(&total, q, a.matrix && !a.blocked, true, sizeof(T)) ||
        !AddBytesFor(&total, PadTo64Bytes(q), 2 * sizeof(T)) || !BytesFor(q, sizeof(T), &row) ||
        !AddBytesFor(&total, rows * copies, row))
        return false;
    *bytes = total;
    return true;
}

// Shares for a team of `team` threads: at most the slots, and none so small that the
// threads would cost more than they save.
template <typename T>
int ShareCount(const Accumulation<T>& a, int team) {
    int64_t bySize = a.n * a.q / 32768;
    int64_t count = team < a.slots ? team : a.slots;
    if (count > bySize) count = bySize;
    return count < 1 ? 1 : static_cast<int>(count);
}

template <typename T>
void ShareWorker(int thread, int team, void* context) {
    Accumulation<T>& a = *static_cast<Accumulation<T>*>(context);
    int shares = ShareCount(a, team);
    if (thread >= shares) return;
    int64_t i0 = a.n * thread / shares, i1 = a.n * (thread + 1) / shares;
    size_t bytes = 0;
    T* memory =
        ShareScratchBytes(a, &bytes) ? static_cast<T*>(brenn_serv_allocate(bytes, 128)) : nullptr;
    if (memory == nullptr) {
        a.status.store(BRENN_SS_ERROR_ALLOC, std::memory_order_relaxed);
        return;
    }
    a.memory[thread] = memory;
    MomentState<T>& s = a.shares[thread];
    T* scratch = LayOutState(s, memory, a.q, a.matrix, true);
    memset(memory, 0, bytes);
    AccumulateShare(a, i0, i1, s, scratch);
}

// Accumulates all observations into `total` (which may hold former blocks). `delta` is
// q elements of scratch. Returns 0 or a status.
template <typename T>
int32_t Accumulate(Accumulation<T>& a, const threader* thr, MomentState<T>& total, T* delta) {
    int slots = thr != nullptr && thr->maxThreads != nullptr ? thr->maxThreads() : 1;
    if (slots < 1) slots = 1;
    a.slots = slots;
    size_t bytes;
    if (!BytesFor(slots, sizeof(MomentState<T>) + sizeof(void*), &bytes))
        return BRENN_SS_ERROR_ALLOC;
    void* block = brenn_serv_allocate(bytes, 128);
    if (block == nullptr) return BRENN_SS_ERROR_ALLOC;
    a.shares = static_cast<MomentState<T>*>(block);
    a.memory = reinterpret_cast<void**>(a.shares + slots);
    for (int t = 0; t < slots; ++t)
        a.memory[t] = nullptr;
    a.status.store(0, std::memory_order_relaxed);
    a.team = thr != nullptr && thr->runTeam != nullptr && ShareCount(a, slots) > 1;
    if (a.team)
        thr->runTeam(&a, ShareWorker<T>);
    else
        ShareWorker<T>(0, 1, &a);
    int32_t status = a.status.load(std::memory_order_relaxed);
    for (int t = 0; t < slots; ++t) {
        if (a.memory[t] == nullptr) continue;
        if (status == 0) MergeState(total, a.shares[t], a.order, a.q, false, delta);
        brenn_serv_deallocate(a.memory[t]);
    }
    brenn_serv_deallocate(block);
    return status;
}

} // namespace brenn::stats

#endif
