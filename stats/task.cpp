// Creation and deletion of the statistics task record.
#include <string.h>

#include "frame/export.h"
#include "brenn_stats.h"
#include "platform/serv.h"
#include "stats/task.h"

namespace brenn::stats {
namespace {

int32_t NewTask(void** handle, const void* p, const void* n, const void* storage, void* x,
                void* weights, const void* indices, int32_t indexWidth, int32_t isDouble) {
    if (p == nullptr || ReadIndexWord(indexWidth, p) <= 0) return BRENN_SS_ERROR_DIMENSION;
    // Without observations the count and the layout are not looked at: a task can be
    // made for the conversion methods, or have its data attached later.
    if (x != nullptr) {
        if (storage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
        int64_t s = ReadIndexWord(indexWidth, storage);
        if (s != BRENN_SS_MATRIX_STORAGE_ROWS && s != BRENN_SS_MATRIX_STORAGE_COLS)
            return BRENN_SS_ERROR_STORAGE;
        if (n == nullptr || ReadIndexWord(indexWidth, n) <= 0)
            return BRENN_SS_ERROR_OBSERVATION_COUNT;
    }
    SSTask* task = static_cast<SSTask*>(brenn_serv_allocate(sizeof(SSTask), 128));
    if (task == nullptr) return BRENN_SS_ERROR_ALLOC;
    memset(task, 0, sizeof(SSTask));
    task->indexWidth = indexWidth;
    task->taskTag = kTaskTag;
    task->isDouble = isDouble;
    task->dimension = p;
    task->observationCount = n;
    task->observations = x;
    task->observationStorage = storage;
    task->weights = weights;
    task->indices = indices;
    *handle = task;
    return BRENN_SS_OK;
}

} // namespace
} // namespace brenn::stats

using namespace brenn::stats;

BRENN_EXPORT int32_t _qesdSSNewTask(void** task, const void* p, const void* n, const void* storage,
                                    const double* x, const double* weights, const void* indices,
                                    int32_t indexWidth) {
    return NewTask(task, p, n, storage, const_cast<double*>(x), const_cast<double*>(weights),
                   indices, indexWidth, 1);
}

BRENN_EXPORT int32_t _qessSSNewTask(void** task, const void* p, const void* n, const void* storage,
                                    const float* x, const float* weights, const void* indices,
                                    int32_t indexWidth) {
    return NewTask(task, p, n, storage, const_cast<float*>(x), const_cast<float*>(weights), indices,
                   indexWidth, 0);
}

BRENN_EXPORT int32_t _qesSSDeleteTask(void** handle) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* task = static_cast<SSTask*>(*handle);
    if (task->privateBuffer != nullptr) brenn_serv_deallocate(task->privateBuffer);
    // The hook frees what compute functions left in the task (streaming summaries). The
    // record has one hook word, so a count above 1 still calls it once: a second call
    // would free the same blocks again.
    if (task->cleanupCount > 0 && task->cleanup != nullptr) task->cleanup(task);
    brenn_serv_deallocate(task);
    *handle = nullptr;
    return BRENN_SS_OK;
}
