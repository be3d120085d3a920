// Linux forms of the process services the frame needs: a pthread key as the
// thread-local slot, a private block heap for the per-thread records, and the
// lookup of the running C library's errno location.
#include <atomic>
#include <dlfcn.h>
#include <pthread.h>
#include <new>
#include <stdlib.h>

#include "platform/process.h"
#include "platform/serv.h"

namespace brenn::process {

namespace {

std::atomic<Fault> pendingFault{Fault::None};

bool TakeFault(Fault f) {
    return pendingFault.load(std::memory_order_relaxed) == f;
}

} // namespace

void InjectFault(Fault fault) {
    pendingFault.store(fault);
}

uint32_t TlsAlloc(void (*onThreadExit)(void*)) {
    if (TakeFault(Fault::TlsAlloc)) return kNoSlot;
    pthread_key_t key;
    if (pthread_key_create(&key, onThreadExit) != 0) return kNoSlot;
    return static_cast<uint32_t>(key);
}

void* TlsGetValue(uint32_t slot) {
    if (slot == kNoSlot) return nullptr;
    return pthread_getspecific(static_cast<pthread_key_t>(slot));
}

bool TlsSetValue(uint32_t slot, void* value) {
    if (TakeFault(Fault::TlsSetValue) || slot == kNoSlot) return false;
    return pthread_setspecific(static_cast<pthread_key_t>(slot), value) == 0;
}

void TlsFree(uint32_t slot) {
    if (slot != kNoSlot) pthread_key_delete(static_cast<pthread_key_t>(slot));
}

// The private heap hands out blocks of one size class from pages of its own, keeps
// freed blocks on a list, and gives every page back at once when destroyed. Blocks
// never come from the caller's allocator after creation, and one destroy drops the
// records of all threads.
struct PrivateHeap {
    struct Page {
        Page* next;
    };
    static constexpr size_t kPageSize = 4096;
    static constexpr size_t kBlockSize = 32; // a 24-byte record, rounded to 16
    volatile int32_t lock = 0;
    Page* pages = nullptr;
    void* freeList = nullptr;
    char* bump = nullptr;
    char* bumpEnd = nullptr;
    int64_t live = 0;
};

PrivateHeap* HeapCreate(size_t) {
    if (TakeFault(Fault::HeapCreate)) return nullptr;
    void* p = malloc(sizeof(PrivateHeap));
    return p ? new (p) PrivateHeap() : nullptr;
}

void* HeapAlloc(PrivateHeap* heap, size_t size) {
    if (TakeFault(Fault::HeapAlloc) || heap == nullptr || size > PrivateHeap::kBlockSize)
        return nullptr;
    brenn_serv_lock(&heap->lock);
    void* block = heap->freeList;
    if (block != nullptr) {
        heap->freeList = *static_cast<void**>(block);
    } else {
        if (heap->bump == heap->bumpEnd) {
            auto* page = static_cast<PrivateHeap::Page*>(malloc(PrivateHeap::kPageSize));
            if (page == nullptr) {
                brenn_serv_unlock(&heap->lock);
                return nullptr;
            }
            page->next = heap->pages;
            heap->pages = page;
            heap->bump = reinterpret_cast<char*>(page) + PrivateHeap::kBlockSize;
            heap->bumpEnd = reinterpret_cast<char*>(page) + PrivateHeap::kPageSize;
        }
        block = heap->bump;
        heap->bump += PrivateHeap::kBlockSize;
    }
    ++heap->live;
    brenn_serv_unlock(&heap->lock);
    return block;
}

void HeapFree(PrivateHeap* heap, void* block) {
    if (heap == nullptr || block == nullptr) return;
    brenn_serv_lock(&heap->lock);
    *static_cast<void**>(block) = heap->freeList;
    heap->freeList = block;
    --heap->live;
    brenn_serv_unlock(&heap->lock);
}

void HeapDestroy(PrivateHeap* heap) {
    if (heap == nullptr) return;
    for (PrivateHeap::Page* p = heap->pages; p != nullptr;) {
        PrivateHeap::Page* next = p->next;
        free(p);
        p = next;
    }
    heap->~PrivateHeap();
    free(heap);
}

int64_t HeapLiveBlocks(const PrivateHeap* heap) {
    return heap ? heap->live : 0;
}

ErrnoFunction FindErrnoFunction() {
    // Only a C library already in the process is searched; none is loaded for this.
    return reinterpret_cast<ErrnoFunction>(dlsym(RTLD_DEFAULT, "__errno_location"));
}

} // namespace brenn::process
