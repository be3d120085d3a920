// numpy arrays as the front-end's statistics matrices, shared by the statistics bindings:
// the view of a p x n array in either layout and the optional weights of its observations.
#pragma once

#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <cstdint>

#include "brenn_ss.hpp"

namespace brenn_py {

template <class T>
using StatsArray = pybind11::array_t<T, pybind11::array::c_style>;

template <class T>
brenn::ss::detail::c_matrix<T> MatrixView(const StatsArray<T>& x, int64_t p, int64_t n,
                                          bool inRows) {
    if (x.size() != p * n) throw pybind11::value_error("x must hold p * n values");
    return {p,        n,       inRows ? BRENN_SS_OBSERVATIONS_IN_ROWS : BRENN_SS_VARIABLES_IN_ROWS,
            x.data(), nullptr, nullptr};
}

// Gives the view the weights (None: none), one value an observation; `kept` holds the
// array for as long as the view is used.
template <class T>
void AttachWeights(brenn::ss::detail::c_matrix<T>& view, const pybind11::object& weights, int64_t n,
                   StatsArray<T>& kept) {
    if (weights.is_none()) return;
    kept = weights.cast<StatsArray<T>>();
    if (kept.ndim() != 1 || kept.shape(0) != n)
        throw pybind11::value_error("weights must be one value an observation");
    view.weights = kept.data();
}

} // namespace brenn_py
