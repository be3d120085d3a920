// Helpers of the fitting tests: the two precisions as a type list, precision-generic
// calls of the entry points, partitions and sites of several shapes, the reference
// cell, and the three ways of threading.
#ifndef BRENN_TESTS_FITTING_UTIL_H
#define BRENN_TESTS_FITTING_UTIL_H

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <random>
#include <string>
#include <vector>

#include "brenn_fitting.h"
#include "platform/threader.h"

namespace brenn::fittest {

// Typed suites run every case in single and in double.
using Precisions = ::testing::Types<float, double>;

struct PrecisionNames {
    template <typename T>
    static std::string GetName(int) {
        return sizeof(T) == sizeof(double) ? "Double" : "Single";
    }
};

// Unit roundoff of the element type, in double: tolerances are multiples of it.
template <typename T>
constexpr double kEps = std::numeric_limits<T>::epsilon();

// The cell that every searcher must give: the count of nodes not above s, except the
// right end, which lies in cell nx-1. This is numpy.searchsorted(x, s, side='right').
template <typename T>
int64_t ReferenceCell(const std::vector<T>& x, T s) {
    if (s == x.back()) return static_cast<int64_t>(x.size()) - 1;
    return std::upper_bound(x.begin(), x.end(), s) - x.begin();
}

inline std::vector<const threader*> Threaders() {
    return {nullptr, brenn_serv_serial_threader(), brenn_serv_pool_threader()};
}

template <typename T>
std::vector<T> RandomPartition(int64_t n, uint64_t seed, double lo = -2.0, double hi = 3.0) {
    std::mt19937_64 rng(seed);
    std::uniform_real_distribution<double> u(lo, hi);
    std::vector<T> x(n);
    for (auto& v : x)
        v = static_cast<T>(u(rng));
    std::sort(x.begin(), x.end());
    x.erase(std::unique(x.begin(), x.end()), x.end());
    while (static_cast<int64_t>(x.size()) < n)
        x.push_back(x.back() + T(0.5));
    return x;
}

template <typename T>
std::vector<T> RandomSites(int64_t n, uint64_t seed, double lo, double hi) {
    std::mt19937_64 rng(seed);
    std::uniform_real_distribution<double> u(lo, hi);
    std::vector<T> s(n);
    for (auto& v : s)
        v = static_cast<T>(u(rng));
    return s;
}

template <typename T>
int32_t NewTask(FitTaskHandle* t, int64_t nx, const T* x, int64_t xHint, int64_t ny, const T* y,
                int64_t yHint, int32_t word = 0) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dNewTask1D(t, nx, x, xHint, ny, y, yHint, word);
    else
        return brenn_df_kernel_sNewTask1D(t, nx, x, xHint, ny, y, yHint, word);
}

template <typename T>
int32_t EditPP(FitTaskHandle t, int64_t order, int64_t type, int64_t bcType, const T* bc,
               int64_t icType, const T* ic, T* coeff, int64_t hint = 0) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dEditPPSpline1D(t, order, type, bcType, bc, icType, ic, coeff, hint);
    else
        return brenn_df_kernel_sEditPPSpline1D(t, order, type, bcType, bc, icType, ic, coeff, hint);
}

template <typename T>
int32_t EditPtr(FitTaskHandle t, int64_t id, const T* p) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dEditPtr(t, id, p);
    else
        return brenn_df_kernel_sEditPtr(t, id, p);
}

template <typename T>
int32_t EditIdxPtr(FitTaskHandle t, int64_t id, int64_t index, const T* p) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dEditIdxPtr(t, id, index, p);
    else
        return brenn_df_kernel_sEditIdxPtr(t, id, index, p);
}

template <typename T>
int32_t QueryIdxPtr(FitTaskHandle t, int64_t id, int64_t index, T** p) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dQueryIdxPtr(t, id, index, p);
    else
        return brenn_df_kernel_sQueryIdxPtr(t, id, index, p);
}

template <typename T>
int32_t Search(FitTaskHandle t, int64_t n, const T* site, int64_t siteHint, const T* dataHint,
               void* cell, const threader* thr) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dDFSearch1D(t, 0, n, site, siteHint, dataHint, cell, nullptr,
                                           nullptr, thr);
    else
        return brenn_df_kernel_sDFSearch1D(t, 0, n, site, siteHint, dataHint, cell, nullptr,
                                           nullptr, thr);
}

template <typename T>
int32_t Linear(FitTaskHandle t, const threader* thr, int64_t flags = 0) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dDFLinearSpline1D(t, 0, flags, thr);
    else
        return brenn_df_kernel_sDFLinearSpline1D(t, 0, flags, thr);
}

template <typename T>
int32_t Quadratic(FitTaskHandle t, const threader* thr, int64_t flags = 0) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dDFQuadraticSpline1D(t, 0, flags, thr);
    else
        return brenn_df_kernel_sDFQuadraticSpline1D(t, 0, flags, thr);
}

// Interpolation with the arguments that the tests vary; the callbacks are passed
// untyped so that one call serves both precisions.
template <typename T>
int32_t Interpolate(FitTaskHandle t, int64_t type, int64_t n, const T* site, int64_t siteHint,
                    int64_t ndorder, const int32_t* dorder, T* result, int64_t resultHint,
                    void* cell, const threader* thr, void* left = nullptr, void* right = nullptr,
                    void* interior = nullptr, void* params = nullptr, const T* dataHint = nullptr) {
    if constexpr (sizeof(T) == 8)
        return brenn_df_kernel_dDFInterpolate1D(
            t, type, 0, n, site, siteHint, ndorder, dorder, dataHint, result, resultHint, cell,
            reinterpret_cast<FitdInterpCallback>(left), params,
            reinterpret_cast<FitdInterpCallback>(right), params,
            reinterpret_cast<FitdInterpCallback>(interior), params, nullptr, nullptr, thr);
    else
        return brenn_df_kernel_sDFInterpolate1D(
            t, type, 0, n, site, siteHint, ndorder, dorder, dataHint, result, resultHint, cell,
            reinterpret_cast<FitsInterpCallback>(left), params,
            reinterpret_cast<FitsInterpCallback>(right), params,
            reinterpret_cast<FitsInterpCallback>(interior), params, nullptr, nullptr, thr);
}

// The values alone at n sites, layout 16, on the calling thread.
template <typename T>
int32_t Values(FitTaskHandle t, int64_t n, const T* site, T* result) {
    return Interpolate<T>(t, FIT_CALL_VALUES, n, site, 0, 0, nullptr, result, 0, nullptr, nullptr);
}

} // namespace brenn::fittest

#endif
