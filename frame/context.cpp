// Per-thread context: lazy creation on a private heap, the thread-exit and unload
// paths, the processor-branch number, the errno bridge and the bounded name copy.
#include "frame/context.h"

#include <stdlib.h>
#include <string.h>

#include "platform/serv.h"

namespace brenn::frame {

std::atomic<uint32_t> contextTlsIndex{process::kNoSlot};
__thread ThreadContext* cachedContext __attribute__((tls_model("initial-exec"))) = nullptr;

namespace {

std::atomic<process::PrivateHeap*> contextHeap{nullptr};
volatile int32_t tlsLock = 0;
volatile int32_t heapLock = 0;

std::atomic<process::ErrnoFunction> errnoFunction{nullptr};
std::atomic<int32_t> errnoBound{0};

constexpr int kMessageNoContext = 760;

void OnThreadExit(void* record);

bool MakeRecord(uint32_t index, ThreadContext** out) {
    if (contextHeap.load(std::memory_order_acquire) == nullptr) {
        brenn_serv_lock(&heapLock);
        if (contextHeap.load(std::memory_order_relaxed) == nullptr)
            contextHeap.store(process::HeapCreate(sizeof(ThreadContext)),
                              std::memory_order_release);
        brenn_serv_unlock(&heapLock);
    }
    process::PrivateHeap* heap = contextHeap.load(std::memory_order_acquire);
    if (heap == nullptr) return false;
    void* block = process::HeapAlloc(heap, sizeof(ThreadContext));
    if (block == nullptr) return false;
    if (!process::TlsSetValue(index, block)) {
        process::HeapFree(heap, block);
        return false;
    }
    memset(block, 0, kZeroedBytes);
    *out = static_cast<ThreadContext*>(block);
    cachedContext = *out;
    return true;
}

void FreeCallingThreadRecord(uint32_t index) {
    if (index == process::kNoSlot) return;
    void* p = process::TlsGetValue(index);
    if (p != nullptr) process::HeapFree(contextHeap.load(std::memory_order_acquire), p);
    process::TlsSetValue(index, nullptr);
    cachedContext = nullptr;
}

// The thread-detach path. The slot already reads null here; the record is freed.
void OnThreadExit(void* record) {
    cachedContext = nullptr;
    process::HeapFree(contextHeap.load(std::memory_order_acquire), record);
}

[[noreturn]] void FailNoRecord() {
    brenn_serv_print(1, kMessageNoContext, 0);
    brenn_serv_exit(3);
}

__attribute__((constructor)) void OnLoad() {
    // A loader here cannot be told to refuse the load: when the first record cannot
    // be made, message 760 has been printed and the lazy path tries again at use.
    LibraryEntry(1, false);
}

// The destructor runs both when the library is closed and when the process ends;
// only the service library can tell the two apart (it stays loaded, and its exit
// handler is armed after the program has started).
__attribute__((destructor)) void OnUnload() {
    LibraryEntry(0, brenn_serv_process_ending() != 0);
}

} // namespace

ThreadContext* GetThreadContextSlow() {
    brenn_serv_process_ending(); // arms the exit watch once threads start using the library
    uint32_t index = contextTlsIndex.load(std::memory_order_acquire);
    ThreadContext* record = nullptr;
    if (index == process::kNoSlot) {
        brenn_serv_lock(&tlsLock);
        index = contextTlsIndex.load(std::memory_order_relaxed);
        if (index == process::kNoSlot) {
            index = process::TlsAlloc(OnThreadExit);
            contextTlsIndex.store(index, std::memory_order_release);
            brenn_serv_unlock(&tlsLock);
            if (index == process::kNoSlot) {
                brenn_serv_print(1, kMessageNoContext, 0);
            } else {
                if (MakeRecord(index, &record)) return record;
                brenn_serv_print(1, kMessageNoContext, 0);
            }
        } else {
            brenn_serv_unlock(&tlsLock);
        }
        void* p = process::TlsGetValue(index);
        if (p != nullptr) return cachedContext = static_cast<ThreadContext*>(p);
    } else {
        void* p = process::TlsGetValue(index);
        if (p != nullptr) return cachedContext = static_cast<ThreadContext*>(p);
    }
    if (MakeRecord(index, &record)) return record;
    FailNoRecord();
}

int LibraryEntry(uint32_t reason, bool processEnding) {
    switch (reason) {
    case 1: {
        brenn_serv_lock(&tlsLock);
        if (contextTlsIndex.load(std::memory_order_relaxed) != process::kNoSlot) {
            brenn_serv_unlock(&tlsLock);
            return 1;
        }
        uint32_t index = process::TlsAlloc(OnThreadExit);
        contextTlsIndex.store(index, std::memory_order_release);
        brenn_serv_unlock(&tlsLock);
        ThreadContext* record;
        if (index == process::kNoSlot || !MakeRecord(index, &record)) {
            brenn_serv_print(1, kMessageNoContext, 0);
            return 0;
        }
        return 1;
    }
    case 3:
        FreeCallingThreadRecord(contextTlsIndex.load(std::memory_order_acquire));
        return 1;
    case 0: {
        if (processEnding) return 1;
        uint32_t index = contextTlsIndex.load(std::memory_order_acquire);
        FreeCallingThreadRecord(index);
        if (index != process::kNoSlot) {
            contextTlsIndex.store(process::kNoSlot, std::memory_order_release);
            process::TlsFree(index);
        }
        process::HeapDestroy(contextHeap.exchange(nullptr));
        return 1;
    }
    default:
        return 1;
    }
}

int64_t LiveThreadContexts() {
    return process::HeapLiveBlocks(contextHeap.load(std::memory_order_acquire));
}

void BindCRuntimeErrno() {
    if (errnoBound.load(std::memory_order_acquire) != 0) return;
    errnoFunction.store(process::FindErrnoFunction(), std::memory_order_relaxed);
    errnoBound.store(1, std::memory_order_release);
}

void SetCRuntimeErrno(int value) {
    process::ErrnoFunction f = errnoFunction.load(std::memory_order_relaxed);
    if (f != nullptr) *f() = value;
}

int CopyFunctionName(const char* source, char* destination) {
    int count = 0;
    while (count < 47 && source[count] != '\0') {
        destination[count] = source[count];
        ++count;
    }
    destination[count] = '\0';
    return count;
}

} // namespace brenn::frame

// The processor branch of this kernel library: 128-bit SIMD up to SSE4.2.
extern "C" __attribute__((visibility("default"))) int dll_cpu_version(void) {
    return 7;
}
