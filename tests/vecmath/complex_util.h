// Helpers of the complex-row tests: calls of a row's slot on complex elements with the
// status it leaves, and a recording callback.
#ifndef BRENN_TESTS_VECMATH_COMPLEX_UTIL_H
#define BRENN_TESTS_VECMATH_COMPLEX_UTIL_H

#include <cmath>
#include <complex>
#include <string>

#include "frame/dispatch.h"
#include "tests/vecmath/kernels.h"

namespace brenn::test {

using frame::RowIndex;
using Z = BrennComplex16;
using C = BrennComplex8;

constexpr int kCxSlots[] = {frame::SlotLA, frame::SlotHA, frame::SlotEP};

inline BrennKernel CxRaw(RowIndex row, int slot) {
    return (&BrennDispatchTable[row].kernelLA)[slot];
}

// One element through a slot, with the status it leaves (0 when none was reported).
template <class E>
E CxCall(RowIndex row, int slot, E a, E b, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    E y;
    As<Binary<E>>(CxRaw(row, slot))(1, &a, &b, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}
template <class E>
E CxCall(RowIndex row, int slot, E a, int* status = nullptr) {
    brenn_zar_kernel_SetErrStatus(0);
    E y;
    As<Unary<E>>(CxRaw(row, slot))(1, &a, &y);
    if (status) *status = brenn_zar_kernel_GetErrStatus();
    return y;
}

// The last report a callback saw.
struct CxReport {
    int calls = 0, code = 0, index = -1;
    std::string name;
};
inline CxReport gCxReport;
inline int RecordCxReport(ErrorRecord* r) {
    ++gCxReport.calls;
    gCxReport.code = r->code;
    gCxReport.index = r->index;
    gCxReport.name = r->functionName;
    return 0;
}

// Identical parts, NaNs of any payload counting as equal.
template <class E>
bool SameParts(E x, E y) {
    return SameValue(x.re, y.re) && SameValue(x.im, y.im);
}

} // namespace brenn::test

#endif
