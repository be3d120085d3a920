/* The vector-math runner shared by every row's entry: the checks common to all
 * shapes, the refusal path, and the run of a call on one thread or in blocks on
 * the service library's pool with the caller's settings carried to each block. */
#ifndef BRENN_FRONTEND_VM_RUN_H
#define BRENN_FRONTEND_VM_RUN_H

#include <atomic>
#include <initializer_list>
#include <stddef.h>
#include <stdint.h>

#include "brenn_status.h"
#include "brenn_types.h"
#include "brenn_vecmath.h"

namespace brenn::fe {

// The accuracy argument of the plain entries: read the thread's mode word.
constexpr int kThreadAccuracy = 0;

// The accuracy argument of the explicit entries: BRENN_LA, BRENN_HA, BRENN_EP, or a
// value that the checks refuse (never the plain entries' marker).
constexpr int ExplicitAccuracy(int accuracy) {
    return accuracy >= 1 && accuracy <= 3 ? accuracy : -1;
}

// Runs the kernel on elements [offset, offset + count) of the call's vectors.
using BlockFn = void (*)(const void* args, int64_t offset, int count);

struct Call {
    const void* args;   // the shape's kernel and arguments
    BlockFn block;      // runs one block of them
    const void* input;  // start of the first input vector, as the kernel reports it
    size_t inputStride; // bytes of one element of that input
    size_t reportUnit;  // bytes by which the reporter counts (the row's element type)
    int n;
    float cost;      // the slot's cost figure
    bool splittable; // element-wise: blocks may run on any thread
};

// Stores a refusal in the thread's status word and returns it.
inline int Refuse(int status) {
    brenn_zar_kernel_SetErrStatus(status);
    return status;
}

// The common checks, in the documented order; on success *slot is the row's slot.
// Returns 0 or the refusal (already stored).
inline int Prologue(const BrennKernel* row, int accuracy, int n,
                    std::initializer_list<const void*> arrays, int* slot) {
    if (n < 0) return Refuse(BRENN_ERR_BAD_SIZE);
    int s = accuracy == kThreadAccuracy ? brenn_zar_kernel_GetTTableIndex() : accuracy - 1;
    if (s < 0 || s > 2) return Refuse(BRENN_ERR_BAD_ACCURACY);
    if (n > 0)
        for (const void* p : arrays)
            if (p == nullptr) return Refuse(BRENN_ERR_NULL_POINTER);
    if (row[s] == nullptr) return Refuse(BRENN_ERR_NOT_AVAILABLE);
    *slot = s;
    return BRENN_OK;
}

// The split threshold in cost units (brenn_vm_set_split_work).
extern std::atomic<double> gSplitWork;

// Runs a call in blocks on the pool; the caller has decided that it is worth it.
int RunSplit(const Call& call);

// Whether this thread's input-vector pointer is null by the front-end's own doing.
// On one thread a kernel then counts reported indices from the caller's vector; the
// pointer is written only when a split call (or nothing yet) has left it otherwise,
// which saves a call into the kernel library on every short vector.
extern constinit thread_local bool tInputPointerClear __attribute__((tls_model("initial-exec")));

// Runs a call on the calling thread: `run` calls the kernel on the whole vectors. The
// kernel reports into this thread's record; the status word is cleared first so that
// the call's own status can be told, and put back when the call reported nothing.
template <class F>
inline int RunOneThread(F run) {
    int32_t previous = brenn_zar_kernel_ClearErrStatus();
    if (!tInputPointerClear) {
        brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
        tInputPointerClear = true;
    }
    run();
    int32_t status = brenn_zar_kernel_GetErrStatus();
    if (status == 0 && previous != 0) brenn_zar_kernel_SetErrStatus(previous);
    return status;
}

// Whether a call's work reaches the split threshold.
inline bool WorthSplitting(const Call& call) {
    return call.splittable &&
           static_cast<double>(call.n) * call.cost >= gSplitWork.load(std::memory_order_relaxed);
}

} // namespace brenn::fe

#endif
