// What the entries that work on one variable at a time share: the checks of the
// observation matrix, the copy of one variable into a compact scratch, and the loop
// that hands the active variables to a worker through the threader's `parallelFor`.
// Scratch is one block made by the calling thread before the loop, a slot for each
// thread that the threader may run; a thread whose index lies past the slots (a
// threader that runs more threads than it said) makes its own block.
#ifndef BRENN_STATS_VARIABLE_LOOP_H
#define BRENN_STATS_VARIABLE_LOOP_H

#include <atomic>
#include <stdint.h>
#include <string.h>

#include "brenn_stats.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/threader.h"
#include "stats/basic_finish.h"
#include "stats/task.h"

namespace brenn::stats {

// The observation matrix as the checks found it.
template <typename T>
struct Observations {
    const T* x;
    int64_t n, p;
    bool variableRows; // 0x10000: one variable's observations contiguous
};

inline bool KnownLayout(int64_t storage) {
    return storage == BRENN_SS_MATRIX_STORAGE_ROWS || storage == BRENN_SS_MATRIX_STORAGE_COLS;
}

// x -4032, n -4002, p -4001, the storage word's address -4044. The storage word's
// value is checked by the caller, in its own order among the other checks.
template <typename T>
int32_t CheckObservations(const SSTask* task, Observations<T>* o) {
    if (task->observations == nullptr) return BRENN_SS_ERROR_OBSERVATIONS_MISSING;
    if (task->observationCount == nullptr ||
        (o->n = ReadIndexWord(task, task->observationCount)) <= 0)
        return BRENN_SS_ERROR_OBSERVATION_COUNT;
    if (task->dimension == nullptr || (o->p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    if (task->observationStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    o->x = static_cast<const T*>(task->observations);
    o->variableRows = ReadIndexWord(task, task->observationStorage) == BRENN_SS_MATRIX_STORAGE_ROWS;
    return 0;
}

// Copies variable j into s[0, n).
template <typename T>
void GatherVariable(const Observations<T>& o, int64_t j, T* s) {
    if (o.variableRows) {
        memcpy(s, o.x + j * o.n, o.n * sizeof(T));
        return;
    }
    const T* v = o.x + j;
    for (int64_t i = 0; i < o.n; ++i)
        s[i] = v[i * o.p];
}

// One call of an entry over its active variables. `work(loop, j, scratch)` handles
// variable j with `scratchBytes` of scratch and returns 0 or a status.
struct VariableLoop {
    const int64_t* act;
    int64_t q;
    size_t scratchBytes;
    int slots;
    char* scratch;
    int32_t (*work)(VariableLoop* loop, int64_t j, void* scratch);
    void* detail;
    std::atomic<int32_t> status;
};

inline void RunOneVariable(int64_t c, int thread, int64_t, void* context) {
    VariableLoop* loop = static_cast<VariableLoop*>(context);
    if (loop->status.load(std::memory_order_relaxed) != 0) return;
    void* own = nullptr;
    void* scratch = loop->scratch + static_cast<size_t>(thread) * loop->scratchBytes;
    if (thread < 0 || thread >= loop->slots) {
        scratch = own = brenn_serv_allocate(loop->scratchBytes, 128);
        if (own == nullptr) {
            loop->status.store(BRENN_SS_ERROR_ALLOC, std::memory_order_relaxed);
            return;
        }
    }
    int32_t s = loop->work(loop, loop->act != nullptr ? loop->act[c] : c, scratch);
    if (s != 0) loop->status.store(s, std::memory_order_relaxed);
    if (own != nullptr) brenn_serv_deallocate(own);
}

// Runs `work` over items[0, count) (over 0 .. count - 1 with null items), with
// `scratchBytes` of scratch a thread, through the threader's loop when there is more
// than one item and thread. Returns 0 or the status of a failure (-4000 when the
// scratch can't be made).
inline int32_t ForEachItem(const int64_t* items, int64_t count, size_t scratchBytes,
                           const threader* thr, int32_t (*work)(VariableLoop*, int64_t, void*),
                           void* detail) {
    const bool threaded = thr != nullptr && thr->parallelFor != nullptr;
    int slots = threaded && thr->maxThreads != nullptr ? thr->maxThreads() : 1;
    if (slots < 1) slots = 1;
    // Scratch slots are rounded up to the allocator's alignment, so each starts aligned.
    scratchBytes = (scratchBytes + 127) & ~size_t(127);
    // The slots are only as many as the items.
    int64_t used = slots;
    if (used > count) used = count;
    if (used < 1) used = 1;
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, used, scratchBytes)) return BRENN_SS_ERROR_ALLOC;
    char* block = static_cast<char*>(brenn_serv_allocate(bytes > 0 ? bytes : 1, 128));
    if (block == nullptr) return BRENN_SS_ERROR_ALLOC;
    VariableLoop loop;
    loop.act = items;
    loop.q = count;
    loop.scratchBytes = scratchBytes;
    loop.slots = static_cast<int>(used);
    loop.scratch = block;
    loop.work = work;
    loop.detail = detail;
    loop.status.store(0, std::memory_order_relaxed);
    if (count > 0) {
        if (threaded && count > 1 && used > 1)
            thr->parallelFor(count, 0, &loop, RunOneVariable);
        else
            for (int64_t c = 0; c < count; ++c)
                RunOneVariable(c, 0, count, &loop);
    }
    brenn_serv_deallocate(block);
    return loop.status.load(std::memory_order_relaxed);
}

// Runs `work` over the variables that `indices` keeps, with `scratchBytes` of scratch a
// thread; with a null task, over every index below p. Returns 0 or the status of a
// failure (-4000 when the scratch can't be made).
inline int32_t ForEachVariable(const SSTask* task, int64_t p, size_t scratchBytes,
                               const threader* thr, int32_t (*work)(VariableLoop*, int64_t, void*),
                               void* detail) {
    if (task == nullptr) return ForEachItem(nullptr, p, scratchBytes, thr, work, detail);
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, p, sizeof(int64_t))) return BRENN_SS_ERROR_ALLOC;
    int64_t* act = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
    if (act == nullptr) return BRENN_SS_ERROR_ALLOC;
    const int64_t q = ActiveVariables(task, p, act);
    const int32_t status = ForEachItem(act, q, scratchBytes, thr, work, detail);
    brenn_serv_deallocate(act);
    return status;
}

} // namespace brenn::stats

#endif
