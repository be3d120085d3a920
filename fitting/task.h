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

// Allocates the block of function pointers for the storage hint and fills it (rows:
// one pointer a function nx elements apart; columns and first-row-only: slot 0).
template <typename T>
int32_t SetFunctionPointers(FittingTask* task, const T* y, int64_t ny, int64_t yHint);

// Allocates the block of coefficient pointers: ny slots, slot f at f*stride elements
// (stride sOrder*nx, less one cell unless the knot form's nx pieces), or slot 0 only
// when the hint has the bit 128.
template <typename T>
int32_t SetCoefficientPointers(FittingTask* task, T* sCoeff);

// Checks that the y pointers and the coefficient pointers that a construction needs
// are there: -1008 and -1016 otherwise.
int32_t CheckConstructionPointers(const FittingTask* task, bool columns);

} // namespace brenn::fit

#endif
