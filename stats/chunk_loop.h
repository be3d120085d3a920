// A loop over a fixed number of chunks through the threader's `parallelFor`, with a
// scratch slot for each thread. The chunks are cut by the size of the work alone, never
// by the number of threads, and each chunk writes only its own results, so that sums
// merged afterwards in chunk order give the same bits on any threader.
#ifndef BRENN_STATS_CHUNK_LOOP_H
#define BRENN_STATS_CHUNK_LOOP_H

#include <atomic>
#include <stddef.h>
#include <stdint.h>

#include "brenn_stats.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/threader.h"

namespace brenn::stats {

// `work(context, chunk, scratch)` returns 0 or a status.
typedef int32_t (*ChunkWork)(void* context, int64_t chunk, void* scratch);

// The scratch of a call: one slot a thread that the threader may run, made once and
// reused by every loop of the call.
struct ChunkScratch {
    const threader* thr;
    char* block;
    size_t slotBytes;
    int slots;
};

// Makes the slots (of `slotBytes` each) for the threads of `thr`; -4000 on failure.
inline int32_t MakeChunkScratch(const threader* thr, size_t slotBytes, ChunkScratch* s) {
    const bool threaded = thr != nullptr && thr->parallelFor != nullptr;
    int slots = threaded && thr->maxThreads != nullptr ? thr->maxThreads() : 1;
    if (slots < 1) slots = 1;
    s->thr = threaded ? thr : nullptr;
    s->slotBytes = (slotBytes + 127) & ~size_t(127);
    s->slots = slots;
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, slots, s->slotBytes)) return BRENN_SS_ERROR_ALLOC;
    s->block = static_cast<char*>(brenn_serv_allocate(bytes == 0 ? 128 : bytes, 128));
    return s->block == nullptr ? BRENN_SS_ERROR_ALLOC : 0;
}

inline void FreeChunkScratch(ChunkScratch* s) {
    if (s->block != nullptr) brenn_serv_deallocate(s->block);
    s->block = nullptr;
}

namespace detail {

struct ChunkLoop {
    const ChunkScratch* scratch;
    ChunkWork work;
    void* context;
    std::atomic<int32_t> status;
};

inline void RunChunk(int64_t c, int thread, int64_t, void* context) {
    ChunkLoop* loop = static_cast<ChunkLoop*>(context);
    if (loop->status.load(std::memory_order_relaxed) != 0) return;
    const ChunkScratch* s = loop->scratch;
    void* own = nullptr;
    void* slot = s->block + static_cast<size_t>(thread) * s->slotBytes;
    // A threader that runs more threads than it announced: that thread makes its own.
    if (thread < 0 || thread >= s->slots) {
        slot = own = brenn_serv_allocate(s->slotBytes == 0 ? 128 : s->slotBytes, 128);
        if (own == nullptr) {
            loop->status.store(BRENN_SS_ERROR_ALLOC, std::memory_order_relaxed);
            return;
        }
    }
    int32_t status = loop->work(loop->context, c, slot);
    if (status != 0) loop->status.store(status, std::memory_order_relaxed);
    if (own != nullptr) brenn_serv_deallocate(own);
}

} // namespace detail

// Runs work over chunks 0 to count - 1; returns 0 or the status of a failed chunk.
inline int32_t ForEachChunk(const ChunkScratch* s, int64_t count, ChunkWork work, void* context) {
    detail::ChunkLoop loop;
    loop.scratch = s;
    loop.work = work;
    loop.context = context;
    loop.status.store(0, std::memory_order_relaxed);
    if (s->thr != nullptr && count > 1 && s->slots > 1)
        s->thr->parallelFor(count, 0, &loop, detail::RunChunk);
    else
        for (int64_t c = 0; c < count && loop.status.load(std::memory_order_relaxed) == 0; ++c)
            detail::RunChunk(c, 0, count, &loop);
    return loop.status.load(std::memory_order_relaxed);
}

} // namespace brenn::stats

#endif
