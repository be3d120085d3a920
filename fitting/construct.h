// What the construction workers share: the index computations of the dispatchers and
// the blocking frame that cuts cells by functions into jobs for the threader.
#ifndef BRENN_FITTING_CONSTRUCT_H
#define BRENN_FITTING_CONSTRUCT_H

#include "fitting/task.h"

namespace brenn::fit {

using ConstructWorker = int32_t (*)(FittingTask* task, const threader* thr);

// yForm: 0 for interleaved columns, 1 for rows; -1 for a hint that is neither.
inline int YForm(int64_t yHint) {
    if (yHint == FIT_Y_COLUMNS) return 0;
    if (yHint == FIT_Y_NO_HINT || yHint == FIT_Y_ROWS || yHint == FIT_Y_FIRST_ROW_ONLY) return 1;
    return -1;
}

inline int XForm(int64_t xHint) {
    return (xHint & FIT_X_UNIFORM) ? 1 : 0;
}

// Column of the cubic-family boundary codes; -1 for a code that is none of them.
inline int BcColumn(int64_t bcType) {
    switch (bcType) {
    case 1:
        return 0;
    case 2:
        return 1;
    case 12:
        return 2;
    case 36:
        return 3;
    case 24:
        return 4;
    case 48:
        return 5;
    case 64:
        return 6;
    default:
        return -1;
    }
}

// Blocks of 1024 cells by 4 functions; below 128 work items one plain job, below 5
// blocks the calling thread, above that the threader.
constexpr int64_t kCellBlock = 1024;
constexpr int64_t kFunctionBlock = 4;
constexpr int64_t kPlainWork = 128;
constexpr int64_t kThreadedBlocks = 5;

struct BlockJob {
    int64_t cellBegin, cellEnd; // cells [cellBegin, cellEnd)
    int64_t fBegin, fEnd;       // functions [fBegin, fEnd)
};

// Runs job(BlockJob) over the blocks of nx-1 cells by nf functions.
template <typename Job>
void RunBlocks(int64_t nx, int64_t nf, const threader* thr, Job& job) {
    int64_t cells = nx - 1;
    // nx * nf below kPlainWork, without forming the product of two caller's counts.
    if (nx <= (kPlainWork - 1) / nf) {
        job(BlockJob{0, cells, 0, nf});
        return;
    }
    int64_t cellBlocks = (cells + kCellBlock - 1) / kCellBlock;
    int64_t functionBlocks = (nf + kFunctionBlock - 1) / kFunctionBlock;
    int64_t blocks = cellBlocks * functionBlocks;
    struct Frame {
        Job* job;
        int64_t cellBlocks, cells, nf;
    } frame{&job, cellBlocks, cells, nf};
    auto one = [](int64_t b, int, int64_t, void* context) {
        auto* fr = static_cast<Frame*>(context);
        int64_t cb = b % fr->cellBlocks, fb = b / fr->cellBlocks;
        BlockJob j;
        j.cellBegin = cb * kCellBlock;
        j.cellEnd = j.cellBegin + kCellBlock < fr->cells ? j.cellBegin + kCellBlock : fr->cells;
        j.fBegin = fb * kFunctionBlock;
        j.fEnd = j.fBegin + kFunctionBlock < fr->nf ? j.fBegin + kFunctionBlock : fr->nf;
        (*fr->job)(j);
    };
    if (blocks < kThreadedBlocks || thr == nullptr) {
        for (int64_t b = 0; b < blocks; ++b)
            one(b, 0, blocks, &frame);
        return;
    }
    int threads = thr->maxThreads();
    if (threads > blocks) threads = static_cast<int>(blocks);
    thr->parallelFor(blocks, threads, &frame, one);
}

// y[0] == y[nx-1] for every function, as a periodic condition needs; -1018 otherwise.
template <typename T, bool Columns>
int32_t CheckPeriodic(const FittingTask* task, int64_t nf) {
    for (int64_t f = 0; f < nf; ++f) {
        auto y = FunctionValues<T, Columns>(task, f);
        if (!(y[0] == y[task->nx - 1])) return FIT_STATUS_BAD_PERIODIC_VAL;
    }
    return FIT_STATUS_OK;
}

} // namespace brenn::fit

#endif
