// Polynomial jumps for generators linear over GF(2): with g(x) = x^count mod P(x),
// g applied to the transition gives the state count steps ahead. Horner's scheme
// costs one state addition per set bit of g; the sliding window of 8 bits cuts the
// additions by about eight at the price of a table of 128 states.
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "rng/core/polyrem.h"
#include "rng/core/stream.h"

using namespace brenn::rng;

namespace {

constexpr int kWindowStates = 128;

int32_t TopBit(const uint32_t* g, int32_t wordCount) {
    for (int32_t j = wordCount - 1; j >= 0; --j)
        if (g[j] != 0) return 32 * j + 31 - __builtin_clz(g[j]);
    return -1;
}

// count blocks of `width` bytes, or null when the size does not fit (a negative
// count among them), as when the allocator refuses.
void* Allocate(int32_t count, size_t width) {
    size_t bytes;
    if (!BytesFor(count, width, &bytes)) return nullptr;
    return brenn_serv_allocate(bytes, kStreamAlignment);
}

} // namespace

BRENN_EXPORT int32_t __qes_SkipAheadHorner(void* stream, QesJumpZeroFn zero, QesJumpAddFn add,
                                           QesJumpCopyFn copy, QesJumpStepFn step,
                                           QesJumpFinishFn finish, QesJumpPrepareFn prepare,
                                           uint32_t countLow, uint32_t countHigh, int32_t wordCount,
                                           int32_t degree, int32_t stateBytes, int32_t termCount,
                                           const int32_t* terms) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    if (count == 0) return QES_STATUS_OK;
    int32_t remainder = 0;
    if (prepare(stream, &count, &remainder) == 0) return QES_STATUS_OK;
    uint32_t* g = static_cast<uint32_t*>(Allocate(wordCount, 8));
    void* scratch = Allocate(stateBytes, 1);
    if (g == nullptr || scratch == nullptr) {
        brenn_serv_deallocate(g);
        brenn_serv_deallocate(scratch);
        return QES_STATUS_NO_MEMORY;
    }
    int32_t status = __qesPolyRem(count, degree, termCount, terms, wordCount, g);
    if (status == QES_STATUS_OK) {
        // g(T) s = T(... T(T s + g[top-1] s) ...) + g[0] s
        int32_t top = TopBit(g, wordCount);
        copy(scratch, stream);
        if (top < 0) zero(scratch);
        for (int32_t i = top - 1; i >= 0; --i) {
            step(scratch);
            if (PolyBit(g, i)) add(scratch, stream);
        }
        finish(stream, scratch, remainder);
    }
    brenn_serv_deallocate(g);
    brenn_serv_deallocate(scratch);
    return status;
}

BRENN_EXPORT int32_t __qes_SkipAheadSWin(void* stream, QesJumpZeroFn zero, QesJumpAddFn add,
                                         QesJumpCopyFn copy, QesJumpStepFn step,
                                         QesJumpFinishFn finish, QesJumpPrepareFn prepare,
                                         uint32_t countLow, uint32_t countHigh, int32_t wordCount,
                                         int32_t degree, int32_t stateBytes, int32_t termCount,
                                         const int32_t* terms) {
    uint64_t count = (static_cast<uint64_t>(countHigh) << 32) | countLow;
    if (count == 0) return QES_STATUS_OK;
    int32_t remainder = 0;
    if (prepare(stream, &count, &remainder) == 0) return QES_STATUS_OK;
    uint32_t* g = static_cast<uint32_t*>(Allocate(wordCount, 8));
    char* table = static_cast<char*>(Allocate(stateBytes, kWindowStates));
    void* result = Allocate(stateBytes, 1);
    void* scratch = Allocate(stateBytes, 1);
    int32_t status = QES_STATUS_NO_MEMORY;
    if (g != nullptr && table != nullptr && result != nullptr && scratch != nullptr)
        status = __qesPolyRem(count, degree, termCount, terms, wordCount, g);
    if (status == QES_STATUS_OK) {
        auto entry = [&](uint32_t value) {
            return table + static_cast<size_t>(stateBytes) * value;
        };
        // Entry v holds (x^7 + v(x)) applied to the stream: the window's leading one
        // and its seven lower bits. Walking the values in reflected Gray order, each
        // entry is the previous one plus a single power of the transition.
        copy(entry(0), stream);
        for (int k = 0; k < 7; ++k)
            step(entry(0));
        uint32_t previous = 0;
        for (uint32_t i = 1; i < kWindowStates; ++i) {
            uint32_t gray = i ^ (i >> 1);
            uint32_t changed = gray ^ previous;
            int power = __builtin_ctz(changed);
            copy(scratch, stream);
            for (int k = 0; k < power; ++k)
                step(scratch);
            copy(entry(gray), entry(previous));
            add(entry(gray), scratch);
            previous = gray;
        }
        zero(result);
        int32_t i = TopBit(g, wordCount);
        while (i >= 7) {
            if (!PolyBit(g, i)) {
                step(result);
                i -= 1;
                continue;
            }
            for (int k = 0; k < 8; ++k)
                step(result);
            uint32_t value = 0;
            for (int k = 1; k <= 7; ++k)
                value = (value << 1) | PolyBit(g, i - k);
            add(result, entry(value));
            i -= 8;
        }
        for (; i >= 0; --i) {
            step(result);
            if (PolyBit(g, i)) add(result, stream);
        }
        finish(stream, result, remainder);
    }
    brenn_serv_deallocate(g);
    brenn_serv_deallocate(table);
    brenn_serv_deallocate(result);
    brenn_serv_deallocate(scratch);
    return status;
}
