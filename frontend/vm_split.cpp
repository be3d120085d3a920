// Vector-math calls in blocks on the service library's pool: each block's thread is
// given the caller's mode word, callback and input-vector pointer before its block,
// and the block's status, errno and floating-point flags are collected so that the
// caller's thread ends as if it had run the whole vector alone.
#include <algorithm>
#include <cerrno>
#include <cfenv>

#include "brenn_vm.h"
#include "frontend/export.h"
#include "frontend/vm_run.h"
#include "platform/threader.h"

namespace brenn::fe {

std::atomic<double> gSplitWork{BRENN_VM_SPLIT_WORK_DEFAULT};
constinit thread_local bool tInputPointerClear __attribute__((tls_model("initial-exec"))) = false;

namespace {

constexpr int kMaxBlocks = 64;
constexpr int kBlocksPerThread = 4; // a little balancing on a shared machine
constexpr int64_t kBlockQuantum = 64;
constexpr uint32_t kDenormalMask = BRENN_MODE_FTZDAZ_MASK;
constexpr uint32_t kTrapMask = BRENN_MODE_TRAP_MASK;

struct Split {
    const Call* call;
    uint32_t mode; // the caller's, with an explicit denormal field
    ErrorCallback callback;
    int64_t blockLength;
    int32_t status[kMaxBlocks];
    int errnoValue[kMaxBlocks];
    int flags[kMaxBlocks];
};

void RunBlock(int64_t block, int threadIndex, int64_t, void* context) {
    Split& s = *static_cast<Split*>(context);
    const Call& c = *s.call;
    // Thread 0 is the caller, which has its own settings already.
    if (threadIndex != 0) {
        brenn_zar_kernel_SetErrorCallBack(s.callback);
        brenn_zar_kernel_SetMode(s.mode);
        feclearexcept(FE_ALL_EXCEPT);
    }
    int64_t offset = block * s.blockLength;
    int count = static_cast<int>(std::min<int64_t>(s.blockLength, c.n - offset));
    // The reporter adds (block input - pointer) / reportUnit to an element's index:
    // the pointer is placed so that this comes to `offset` for every shape.
    const char* blockInput = static_cast<const char*>(c.input) + offset * c.inputStride;
    brenn_zar_kernel_SetInterfInputVectorPointer(blockInput - offset * c.reportUnit);
    tInputPointerClear = false;
    brenn_zar_kernel_ClearErrStatus();
    errno = 0;
    c.block(c.args, offset, count);
    s.status[block] = brenn_zar_kernel_GetErrStatus();
    s.errnoValue[block] = errno;
    s.flags[block] = threadIndex != 0 ? fetestexcept(FE_ALL_EXCEPT) : 0;
}

} // namespace

int RunSplit(const Call& call) {
    int threads = brenn_qes_serv_threader_get_num_threads_limit();
    uint32_t mode = brenn_zar_kernel_GetMode();
    Split s;
    s.call = &call;
    s.mode = (mode & kDenormalMask) == 0 ? (mode | BRENN_MODE_FTZDAZ_OFF) : mode;
    s.callback = brenn_zar_kernel_GetErrorCallBack();
    int64_t blocks =
        std::min<int64_t>(static_cast<int64_t>(threads) * kBlocksPerThread, kMaxBlocks);
    int64_t length = (call.n + blocks - 1) / blocks;
    s.blockLength = (length + kBlockQuantum - 1) / kBlockQuantum * kBlockQuantum;
    blocks = (call.n + s.blockLength - 1) / s.blockLength;

    if (threads <= 1 || blocks <= 1 || (mode & kTrapMask) != 0)
        return RunOneThread([&] { call.block(call.args, 0, call.n); });
    int32_t previous = brenn_zar_kernel_ClearErrStatus();
    int savedErrno = errno;
    brenn_qes_serv_threader_for(blocks, 0, &s, RunBlock);

    // Last report wins, in vector order, as on one thread.
    int32_t status = 0;
    int lastErrno = 0, flags = 0;
    for (int64_t b = 0; b < blocks; ++b) {
        if (s.status[b] != 0) status = s.status[b];
        if (s.errnoValue[b] != 0) lastErrno = s.errnoValue[b];
        flags |= s.flags[b];
    }
    brenn_zar_kernel_SetInterfInputVectorPointer(nullptr);
    tInputPointerClear = true;
    brenn_zar_kernel_SetErrStatus(status != 0 ? status : previous);
    errno = lastErrno != 0 ? lastErrno : savedErrno;
    if (flags != 0) feraiseexcept(flags);
    return status;
}

} // namespace brenn::fe

BRENN_FE_EXPORT double brenn_vm_get_split_work(void) {
    return brenn::fe::gSplitWork.load(std::memory_order_relaxed);
}

BRENN_FE_EXPORT double brenn_vm_set_split_work(double work) {
    double wanted = work > 0 ? work : BRENN_VM_SPLIT_WORK_DEFAULT;
    return brenn::fe::gSplitWork.exchange(wanted, std::memory_order_relaxed);
}
