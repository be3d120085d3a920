/* Process services of the kernel library's frame: the thread-local slot, the private
 * block heap of per-thread records, and the lookup of the C runtime's errno. These
 * are the Linux forms of a slot index with get/set, a growable private heap that can
 * be dropped at once, and a by-name search of an already loaded runtime. */
#ifndef BRENN_PLATFORM_PROCESS_H
#define BRENN_PLATFORM_PROCESS_H

#include <stddef.h>
#include <stdint.h>

namespace brenn::process {

constexpr uint32_t kNoSlot = 0xFFFFFFFFu;

// Thread-local slot. `onThreadExit` runs for a thread that ends with a non-null value
// in the slot (the slot already reads null then).
uint32_t TlsAlloc(void (*onThreadExit)(void*));
void* TlsGetValue(uint32_t slot);
bool TlsSetValue(uint32_t slot, void* value);
void TlsFree(uint32_t slot);

struct PrivateHeap;
PrivateHeap* HeapCreate(size_t initialSize);
void* HeapAlloc(PrivateHeap* heap, size_t size);
void HeapFree(PrivateHeap* heap, void* block);
void HeapDestroy(PrivateHeap* heap);
int64_t HeapLiveBlocks(const PrivateHeap* heap);

// The errno location function of the C runtime loaded in the process, or null.
using ErrnoFunction = int* (*)();
ErrnoFunction FindErrnoFunction();

// Test control: make every call of one operation fail until reset with Fault::None.
enum class Fault { None, TlsAlloc, TlsSetValue, HeapCreate, HeapAlloc };
void InjectFault(Fault fault);

} // namespace brenn::process

#endif
