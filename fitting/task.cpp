// Creation and deletion of the fitting task, and the cell-search table that the
// hybrid searcher reads.
#include <cmath>
#include <cstring>

#include "fitting/task.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {

template <typename T>
void BuildSearchTable(FittingTask* task) {
    const T* x = static_cast<const T*>(task->x);
    int64_t nx = task->nx;
    int64_t m = nx / 16;
    if (m < 16) m = 16;
    if (m > 1024) m = 1024;
    T scale = static_cast<T>(m) / (x[nx - 1] - x[0]);
    SearchPair* table = task->searchTable;
    task->searchCells = m;
    SearchScale<T>(task) = scale;

    for (int64_t b = 0; b < m; ++b)
        table[b] = {-1, -1};
    table[m] = {-1, -1};
    table[m + 1] = {-1, -1};
    table[0].lo = 0;
    for (int64_t i = 1; i + 1 < nx; ++i) {
        T q = (x[i] - x[0]) * scale;
        // A partition that is not ascending would put a node outside the buckets;
        // keep the writes inside the block whatever the data.
        int64_t b = q >= static_cast<T>(m) ? m : (q > 0 ? static_cast<int64_t>(q) : 0);
        if (b == 0) continue;
        if (table[b - 1].hi == -1) table[b - 1].hi = static_cast<int32_t>(i);
        table[b + 1].lo = static_cast<int32_t>(i);
    }
    table[m - 1].hi = static_cast<int32_t>(nx - 1);
    // Gaps: a bucket without a node of its own borrows the bound of its neighbour,
    // lower bounds from below and upper bounds from above.
    for (int64_t b = 1, d = m - 2; b < m; ++b, --d) {
        if (table[b].lo == -1) table[b].lo = table[b - 1].lo;
        if (d >= 0 && table[d].hi == -1) table[d].hi = table[d + 1].hi;
    }
    table[m] = table[m - 1];
}

template void BuildSearchTable<double>(FittingTask*);
template void BuildSearchTable<float>(FittingTask*);

namespace {

bool KnownXHint(int64_t h) {
    return h == FIT_X_NO_HINT || h == FIT_X_NON_UNIFORM || h == FIT_X_QUASI_UNIFORM ||
           h == FIT_X_UNIFORM;
}

bool KnownYHint(int64_t h) {
    return h == FIT_Y_NO_HINT || h == FIT_Y_ROWS || h == FIT_Y_COLUMNS || h == FIT_Y_FIRST_ROW_ONLY;
}

template <typename T>
int32_t NewTask(FitTaskHandle* handle, int64_t nx, const T* x, int64_t xHint, int64_t ny,
                const T* y, int64_t yHint, int32_t frontEndWord) {
    if (nx < 2) return FIT_STATUS_BAD_NX;
    if (x == nullptr) return FIT_STATUS_BAD_X;
    if (!KnownXHint(xHint)) return FIT_STATUS_BAD_X_HINT;
    if (ny < 0) return FIT_STATUS_BAD_NY;
    if (ny != 0 && y == nullptr) return FIT_STATUS_BAD_Y;
    if (ny == 0 && y != nullptr) return FIT_STATUS_BAD_NY;
    if (!KnownYHint(yHint)) return FIT_STATUS_BAD_Y_HINT;

    auto* task = static_cast<FittingTask*>(brenn_serv_allocate(sizeof(FittingTask), 128));
    if (task == nullptr) return FIT_STATUS_NO_MEMORY;
    std::memset(static_cast<void*>(task), 0, sizeof(FittingTask));
    *handle = task;
    task->nx = nx;
    task->x = x;
    task->xHint = xHint;
    if (y != nullptr) {
        int32_t status = SetFunctionPointers<T>(task, y, ny, yHint);
        if (status != 0) return status;
    }
    task->ny = ny;
    task->yHint = yHint;
    task->frontEndWord = frontEndWord;
    task->kindTag = kTaskKindTag;
    task->isDouble = sizeof(T) == sizeof(double) ? 1 : 0;
    task->editable = 1;

    task->searchTable = static_cast<SearchPair*>(brenn_serv_allocate(kSearchTableBytes, 128));
    if (task->searchTable == nullptr) return FIT_STATUS_NO_MEMORY;
    if (xHint == FIT_X_UNIFORM) return FIT_STATUS_OK;
    BuildSearchTable<T>(task);
    return FIT_STATUS_OK;
}

} // namespace

template <typename P>
int32_t RenewPointerBlock(P** block, int64_t* slots, int64_t used) {
    // A size past what can be allocated is refused before the old block goes, so that
    // the edit leaves the task as it was; only the allocator's own failure loses it.
    size_t bytes = sizeof(void*);
    if (!AddBytesFor(&bytes, used, sizeof(void*))) return FIT_STATUS_NO_MEMORY;
    if (*block != nullptr) brenn_serv_deallocate(static_cast<void*>(*block));
    *slots = 0;
    *block = static_cast<P*>(brenn_serv_allocate(bytes, 128));
    if (*block == nullptr) return FIT_STATUS_NO_MEMORY;
    std::memset(static_cast<void*>(*block), 0, bytes);
    *slots = used + 1;
    return FIT_STATUS_OK;
}

template int32_t RenewPointerBlock<const void*>(const void***, int64_t*, int64_t);
template int32_t RenewPointerBlock<void*>(void***, int64_t*, int64_t);

template <typename T>
int32_t SetFunctionPointers(FittingTask* task, const T* y, int64_t ny, int64_t yHint) {
    int64_t used = yHint == FIT_Y_COLUMNS ? 1 : (ny > 0 ? ny : 1);
    if (int32_t s = RenewPointerBlock(&task->y, &task->ySlots, used)) return s;
    const void** block = task->y;
    if (yHint == FIT_Y_NO_HINT || yHint == FIT_Y_ROWS) {
        for (int64_t i = 0; i < used; ++i)
            block[i] = ElementAt(y, i, static_cast<uint64_t>(task->nx));
    } else if (yHint == FIT_Y_COLUMNS || yHint == FIT_Y_FIRST_ROW_ONLY) {
        block[0] = y;
    }
    return FIT_STATUS_OK;
}

template int32_t SetFunctionPointers<double>(FittingTask*, const double*, int64_t, int64_t);
template int32_t SetFunctionPointers<float>(FittingTask*, const float*, int64_t, int64_t);

namespace {

// Slots 0 to used-1 all inside the block and set.
template <typename P>
bool AllSet(P* const* block, int64_t slots, int64_t used) {
    if (block == nullptr || used > slots) return false;
    for (int64_t f = 0; f < used; ++f)
        if (block[f] == nullptr) return false;
    return true;
}

} // namespace

int32_t CheckFunctionPointers(const FittingTask* task, bool columns) {
    int64_t used = columns ? 1 : (task->ny > 0 ? task->ny : 1);
    return AllSet(task->y, task->ySlots, used) ? FIT_STATUS_OK : FIT_STATUS_BAD_Y;
}

int32_t CheckCoefficientPointers(const FittingTask* task) {
    int64_t used = task->ny > 0 ? task->ny : 1;
    return AllSet(task->sCoeff, task->sCoeffSlots, used) ? FIT_STATUS_OK : FIT_STATUS_BAD_COEFF_PTR;
}

} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dNewTask1D(FitTaskHandle* task, int64_t nx, const double* x,
                                                int64_t xHint, int64_t ny, const double* y,
                                                int64_t yHint, int32_t frontEndWord) {
    return NewTask<double>(task, nx, x, xHint, ny, y, yHint, frontEndWord);
}

BRENN_EXPORT int32_t brenn_df_kernel_sNewTask1D(FitTaskHandle* task, int64_t nx, const float* x,
                                                int64_t xHint, int64_t ny, const float* y,
                                                int64_t yHint, int32_t frontEndWord) {
    return NewTask<float>(task, nx, x, xHint, ny, y, yHint, frontEndWord);
}

BRENN_EXPORT int32_t brenn_df_kernel_DeleteTask(FitTaskHandle* handle) {
    if (handle == nullptr || *handle == nullptr) return FIT_STATUS_NULL_TASK;
    auto* task = static_cast<FittingTask*>(*handle);
    if (task->y != nullptr) brenn_serv_deallocate(static_cast<void*>(task->y));
    if (task->sCoeff != nullptr) brenn_serv_deallocate(static_cast<void*>(task->sCoeff));
    if (task->searchTable != nullptr) brenn_serv_deallocate(task->searchTable);
    brenn_serv_deallocate(task);
    *handle = nullptr;
    return FIT_STATUS_OK;
}
