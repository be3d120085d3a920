// Helpers of the fitting tests: precision-generic calls of the entry points, partitions
// and sites of several shapes, the reference cell, and the three ways of threading.
#ifndef BRENN_TESTS_FITTING_UTIL_H
#define BRENN_TESTS_FITTING_UTIL_H

#include <algorithm>
#include <random>
#include <vector>

#include "brenn_fitting.h"
#include "platform/threader.h"

namespace brenn::fittest {

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

} // namespace brenn::fittest

#endif
