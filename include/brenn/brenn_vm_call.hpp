/** @file brenn_vm_call.hpp
 * What the generated C++ vector-math overloads share: the accuracy enum, the view of
 * std::complex as the C complex types, and the span size checks. */
#ifndef BRENN_VM_CALL_HPP
#define BRENN_VM_CALL_HPP

#include <climits>
#include <complex>
#include <cstddef>
#include <initializer_list>
#include <span>

#include "brenn_result.hpp"
#include "brenn_vm.h"

namespace brenn {

/** Accuracy of one call; the thread's mode word is not touched. */
enum class accuracy : int { la = BRENN_LA, ha = BRENN_HA, ep = BRENN_EP };

namespace vm::detail {

// std::complex<T> has the layout of {re, im}, as the C complex types do.
inline const float* as_c(const float* p) {
    return p;
}
inline float* as_c(float* p) {
    return p;
}
inline const double* as_c(const double* p) {
    return p;
}
inline double* as_c(double* p) {
    return p;
}
inline const int* as_c(const int* p) {
    return p;
}
inline const BrennComplex8* as_c(const std::complex<float>* p) {
    return reinterpret_cast<const BrennComplex8*>(p);
}
inline BrennComplex8* as_c(std::complex<float>* p) {
    return reinterpret_cast<BrennComplex8*>(p);
}
inline const BrennComplex16* as_c(const std::complex<double>* p) {
    return reinterpret_cast<const BrennComplex16*>(p);
}
inline BrennComplex16* as_c(std::complex<double>* p) {
    return reinterpret_cast<BrennComplex16*>(p);
}
inline BrennComplex8 as_c(std::complex<float> v) {
    return {v.real(), v.imag()};
}
inline BrennComplex16 as_c(std::complex<double> v) {
    return {v.real(), v.imag()};
}

// The element count of element-wise spans: all sizes equal and below 2^31.
inline long checked(std::size_t n) {
    return n > static_cast<std::size_t>(INT_MAX) ? BRENN_ERR_TOO_LONG : static_cast<long>(n);
}
inline long common_size(std::initializer_list<std::size_t> sizes) {
    std::size_t n = *sizes.begin();
    for (std::size_t s : sizes)
        if (s != n) return BRENN_ERR_SIZE_MISMATCH;
    return checked(n);
}

// The packing rows: the dense side gives the count; the other side must hold every
// element the stride, mask or indices reach.
template <class A, class Y>
long count_packi(A a, int inc, Y y) {
    std::size_t n = y.size();
    if (inc < 1) return BRENN_ERR_BAD_ARGUMENT;
    if (n > 0 && a.size() < (n - 1) * static_cast<std::size_t>(inc) + 1)
        return BRENN_ERR_SIZE_MISMATCH;
    return checked(n);
}
template <class A, class Y>
long count_unpacki(A a, Y y, int inc) {
    return count_packi(y, inc, a);
}
inline std::size_t nonzero(std::span<const int> m) {
    std::size_t k = 0;
    for (int v : m)
        k += v != 0;
    return k;
}
template <class A, class Y>
long count_packm(A a, std::span<const int> m, Y y) {
    if (m.size() != a.size() || y.size() < nonzero(m)) return BRENN_ERR_SIZE_MISMATCH;
    return checked(a.size());
}
template <class A, class Y>
long count_unpackm(A a, Y y, std::span<const int> m) {
    if (m.size() != y.size() || a.size() < nonzero(m)) return BRENN_ERR_SIZE_MISMATCH;
    return checked(y.size());
}
inline bool indices_within(std::span<const int> index, std::size_t size) {
    for (int v : index)
        if (v < 0 || static_cast<std::size_t>(v) >= size) return false;
    return true;
}
template <class A, class Y>
long count_packv(A a, std::span<const int> index, Y y) {
    if (index.size() != y.size()) return BRENN_ERR_SIZE_MISMATCH;
    if (!indices_within(index, a.size())) return BRENN_ERR_BAD_ARGUMENT;
    return checked(y.size());
}
template <class A, class Y>
long count_unpackv(A a, Y y, std::span<const int> index) {
    if (index.size() != a.size()) return BRENN_ERR_SIZE_MISMATCH;
    if (!indices_within(index, y.size())) return BRENN_ERR_BAD_ARGUMENT;
    return checked(a.size());
}

} // namespace vm::detail
} // namespace brenn

#endif
