/* The dispatch table as the library itself sees it: row indices from the row list,
 * typed slot access for kernels and generators that call other kernels at a fixed
 * accuracy, and the per-row facts tests and tools need. */
#ifndef BRENN_FRAME_DISPATCH_H
#define BRENN_FRAME_DISPATCH_H

#include "frame/kernels.h"

namespace brenn::frame {

enum RowIndex : int {
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports) Row_##t##Fn,
#include "frame/rows.def"
#undef ROW
    RowCount
};
static_assert(RowCount == 232, "the dispatch table has 232 rows");

enum Slot : int { SlotLA = 0, SlotHA = 1, SlotEP = 2 };

// Kernel pointer types, one a row: KernelType_sExp.
#define ROW(t, Fn, Shape, Thunk, Share, cLA, cHA, cEP, Reports)                                  \
    typedef void(*KernelType_##t##Fn) BRENN_SIG(t, Shape);
#include "frame/rows.def"
#undef ROW

struct RowInfo {
    const char* name;      // "sExp"
    const char* errorName; // "vsExp", or null for a row that never reports
    char share;            // 'A' all, 'H' LA=HA, 'E' LA=EP, 'O' own
};

extern const RowInfo kRowInfo[RowCount];

} // namespace brenn::frame

// The one table; its rows are exported as brenn_zar_kernel_<row>_ttab/_ctab.
extern "C" __attribute__((visibility("hidden"))) DispatchRecord BrennDispatchTable[232];

// A slot of a row with its kernel type: ZAR_SLOT(sLn, SlotLA)(n, a, y).
#define ZAR_SLOT(row, slot)                                                                      \
    (reinterpret_cast<brenn::frame::KernelType_##row>(                                           \
        (&BrennDispatchTable[brenn::frame::Row_##row].kernelLA)[slot]))

#endif
