// The fitting task record and the helpers that every fitting source shares: element
// access by storage form, the cell-search table, and the statuses' home header.
#ifndef BRENN_FITTING_TASK_H
#define BRENN_FITTING_TASK_H

#include <stdint.h>

#include "brenn_fitting.h"
#include "platform/threader.h"

namespace brenn::fit {

// One entry of the cell-search table: the range of partition indices that holds the
// cell of any value whose bucket is this entry.
struct SearchPair {
    int32_t lo;
    int32_t hi;
};

// Entries of the table: at most 1024 buckets, the copy for the right end, one spare.
constexpr int64_t kSearchTableEntries = 1026;
constexpr int64_t kSearchTableBytes = kSearchTableEntries * 8; // 8208

// The record, field by field. The double and single records differ only in the
// element type of the last field, so it is a union here and the code of either
// precision reads its own member.
struct FittingTask {
    int32_t frontEndWord;
    int8_t kindTag; // always 4
    int32_t isDouble;
    int32_t editable;
    int64_t nx;
    const void* x;
    int64_t xHint;
    int64_t ny;
    const void** y; // owned block of pointers to the caller's values
    int64_t yHint;
    int64_t sOrder;
    int64_t sType;
    int64_t icType;
    const void* ic;
    int64_t bcType;
    const void* bc;
    void** sCoeff; // owned block of pointers to the caller's coefficient memory
    int64_t sCoeffHint;
    int32_t flagWord;
    int64_t searchCells;
    SearchPair* searchTable; // owned
    union {
        double d;
        float s;
    } searchScale;
    // The library's own, past the record's fields: the slots of the two owned pointer
    // blocks. ny can be edited after a block was made, so every access to a slot is
    // tested against the block that exists, not against ny.
    int64_t ySlots;
    int64_t sCoeffSlots;
};

template <typename T>
inline T& SearchScale(FittingTask* task);
template <>
inline double& SearchScale<double>(FittingTask* task) {
    return task->searchScale.d;
}
template <>
inline float& SearchScale<float>(FittingTask* task) {
    return task->searchScale.s;
}
template <typename T>
inline T SearchScale(const FittingTask* task) {
    return SearchScale<T>(const_cast<FittingTask*>(task));
}

constexpr int64_t kTaskKindTag = 4;

// Fills the cell-search table of the task from its current x and nx.
template <typename T>
void BuildSearchTable(FittingTask* task);

// Function values by storage form: rows (one pointer a function) or columns (one
// interleaved block, value j of function f at j*stride + f).
template <typename T, bool Columns>
struct YAccess {
    const T* base;
    int64_t stride;
    T operator[](int64_t j) const { return Columns ? base[j * stride] : base[j]; }
};

template <typename T, bool Columns>
inline YAccess<T, Columns> FunctionValues(const FittingTask* task, int64_t f) {
    if (Columns) {
        int64_t ny = task->ny > 0 ? task->ny : 1;
        return {static_cast<const T*>(task->y[0]) + f, ny};
    }
    return {static_cast<const T*>(task->y[f]), 1};
}

// base + index*stride elements, formed in unsigned arithmetic. The pointer blocks are
// filled from the caller's counts, whose product need not describe memory that exists
// (such pointers are then the caller's not to use) and must not overflow here.
template <typename T>
inline T* ElementAt(T* base, int64_t index, uint64_t stride) {
    uint64_t bytes = static_cast<uint64_t>(index) * stride * sizeof(T);
    return reinterpret_cast<T*>(reinterpret_cast<uintptr_t>(base) + bytes);
}

// Frees *block and puts a zeroed one of used slots and a null one in its place, with
// its slot count. -1001 when it can't be had: a size past what can be allocated leaves
// the old block as it was, a failed allocation leaves the field null.
template <typename P>
int32_t RenewPointerBlock(P** block, int64_t* slots, int64_t used);

// Renews the block of function pointers for the storage hint and fills it (rows: one
// pointer a function nx elements apart; columns and first-row-only: slot 0). The null
// slot past the functions' is what the query's inclusive bound reads.
template <typename T>
int32_t SetFunctionPointers(FittingTask* task, const T* y, int64_t ny, int64_t yHint);

// The same for the coefficient pointers: ny slots and the null one, slot f at f*stride
// elements (stride sOrder*nx, less one cell unless the knot form's nx pieces), or slot
// 0 only when sCoeffHint has the bit 128.
template <typename T>
int32_t SetCoefficientPointers(FittingTask* task, T* sCoeff, int64_t sCoeffHint);

// The pointers that the functions' values and coefficients need, all of them set:
// -1008 and -1016 otherwise.
int32_t CheckFunctionPointers(const FittingTask* task, bool columns);
int32_t CheckCoefficientPointers(const FittingTask* task);

inline int32_t CheckConstructionPointers(const FittingTask* task, bool columns) {
    if (int32_t s = CheckFunctionPointers(task, columns)) return s;
    return CheckCoefficientPointers(task);
}

} // namespace brenn::fit

#endif
