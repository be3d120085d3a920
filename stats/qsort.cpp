// The exported sort and select routines, double and single: whole arrays, arrays with
// a stride (one variable of an interleaved matrix), and the select of one element.
#include "frame/export.h"
#include "stats/qsort.h"

using namespace brenn::stats;

BRENN_EXPORT void __qesdQSort(int64_t n, double* a) {
    if (n > 1) QuickSort(Contiguous<double>{a}, n);
}

BRENN_EXPORT void __qessQSort(int64_t n, float* a) {
    if (n > 1) QuickSort(Contiguous<float>{a}, n);
}

BRENN_EXPORT void __qesdQSortStep(int64_t n, double* a, int64_t step) {
    if (n > 1) QuickSort(Strided<double>{a, step}, n);
}

BRENN_EXPORT void __qessQSortStep(int64_t n, float* a, int64_t step) {
    if (n > 1) QuickSort(Strided<float>{a, step}, n);
}

BRENN_EXPORT double __qesdQSortSelect(int64_t n, double* a, int64_t k) {
    SelectRange(Contiguous<double>{a}, 0, n - 1, k);
    return a[k];
}

BRENN_EXPORT float __qessQSortSelect(int64_t n, float* a, int64_t k) {
    SelectRange(Contiguous<float>{a}, 0, n - 1, k);
    return a[k];
}
