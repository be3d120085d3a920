/* The per-thread record of vector mathematics and the routine that finds or makes it
 * for the calling thread; the C runtime errno bridge and the bounded name copy that
 * the reporters use. */
#ifndef BRENN_FRAME_CONTEXT_H
#define BRENN_FRAME_CONTEXT_H

#include <atomic>
#include <stdint.h>

#include "platform/process.h"
#include "brenn_types.h"

namespace brenn::frame {

struct ThreadContext {
    uint32_t mode;            // ModeWord; 0 until the thread's first use
    int32_t status;           // last reported status
    ErrorCallback errorCallback;
    uint32_t reserved0;
    uint32_t reserved1;
    const void* inputVectorPointer; // left as the heap gave it until the front-end sets it
};

// Bytes zeroed at creation: every word before inputVectorPointer.
constexpr size_t kZeroedBytes = offsetof(ThreadContext, inputVectorPointer);

extern std::atomic<uint32_t> contextTlsIndex;

// The calling thread's record as last found in its slot: a thread-local copy of the
// slot's value, so that the hot path reads it without a library call. It is set
// whenever the slot is set and cleared whenever the record is freed.
extern __thread ThreadContext* cachedContext __attribute__((tls_model("initial-exec")));

ThreadContext* GetThreadContextSlow();

// Hot path: one unlocked compare and one thread-local read.
inline ThreadContext* GetThreadContext() {
    ThreadContext* c = cachedContext;
    if (__builtin_expect(c != nullptr, 1)) return c;
    return GetThreadContextSlow();
}

void SetCRuntimeErrno(int value);
void BindCRuntimeErrno();
int CopyFunctionName(const char* source, char* destination);

// Load and unload: reason 1 attach, 0 detach, 3 thread detach (for the calling
// thread); `processEnding` is the non-zero `reserved` of a detach at process end.
int LibraryEntry(uint32_t reason, bool processEnding);

// Records alive in the private heap, for tests of the lifetime rules.
int64_t LiveThreadContexts();

} // namespace brenn::frame

#endif
