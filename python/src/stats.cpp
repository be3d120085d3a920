// Summary statistics for Python: one front-end compute of the estimates asked for,
// on a contiguous matrix of float32 or float64 observations, each estimate in an
// array of its own (p values, or p x p for covariance and correlation).
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <string>

#include "python/src/bindings.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

template <class T>
struct Api;
template <>
struct Api<double> {
    using Matrix = brenn_ss_matrix_f64;
    using Results = brenn_ss_results_f64;
    static int Compute(const Matrix* m, uint64_t e, const Results* r) {
        return brenn_ss_compute_f64(m, e, r);
    }
};
template <>
struct Api<float> {
    using Matrix = brenn_ss_matrix_f32;
    using Results = brenn_ss_results_f32;
    static int Compute(const Matrix* m, uint64_t e, const Results* r) {
        return brenn_ss_compute_f32(m, e, r);
    }
};

// The estimates by the names of the result arrays, with their bits.
template <class R>
struct Slot {
    const char* name;
    uint64_t bit;
    decltype(&R::mean) field;
    bool matrix;
};
template <class R>
constexpr Slot<R> kSlots[] = {
    {"mean", BRENN_SS_MEAN, &R::mean, false},
    {"raw_moment2", BRENN_SS_2R_MOM, &R::raw_moment2, false},
    {"raw_moment3", BRENN_SS_3R_MOM, &R::raw_moment3, false},
    {"raw_moment4", BRENN_SS_4R_MOM, &R::raw_moment4, false},
    {"central_moment2", BRENN_SS_2C_MOM, &R::central_moment2, false},
    {"central_moment3", BRENN_SS_3C_MOM, &R::central_moment3, false},
    {"central_moment4", BRENN_SS_4C_MOM, &R::central_moment4, false},
    {"skewness", BRENN_SS_SKEWNESS, &R::skewness, false},
    {"kurtosis", BRENN_SS_KURTOSIS, &R::kurtosis, false},
    {"variation", BRENN_SS_VARIATION, &R::variation, false},
    {"min", BRENN_SS_MIN, &R::minimum, false},
    {"max", BRENN_SS_MAX, &R::maximum, false},
    {"covariance", BRENN_SS_COV, &R::covariance, true},
    {"correlation", BRENN_SS_COR, &R::correlation, true},
};

template <class T>
py::dict Compute(const py::array_t<T, py::array::c_style>& x, int64_t p, int64_t n,
                 bool observations_in_rows, const py::object& weights, const py::list& names) {
    using R = typename Api<T>::Results;
    typename Api<T>::Matrix m{p,
                              n,
                              observations_in_rows ? BRENN_SS_OBSERVATIONS_IN_ROWS
                                                   : BRENN_SS_VARIABLES_IN_ROWS,
                              x.data(),
                              nullptr,
                              nullptr};
    py::array_t<T, py::array::c_style> w;
    if (!weights.is_none()) {
        w = weights.cast<py::array_t<T, py::array::c_style>>();
        if (w.ndim() != 1 || w.shape(0) != n)
            throw py::value_error("weights must be one value an observation");
        m.weights = w.data();
    }
    R results{};
    uint64_t estimates = 0;
    py::dict out;
    for (const auto& item : names) {
        std::string name = item.cast<std::string>();
        bool found = false;
        for (const auto& slot : kSlots<R>) {
            if (name != slot.name) continue;
            py::array_t<T> a = slot.matrix ? py::array_t<T>({p, p}) : py::array_t<T>(p);
            results.*(slot.field) = a.mutable_data();
            estimates |= slot.bit;
            out[slot.name] = a;
            found = true;
        }
        if (!found) throw py::value_error("no estimate named " + name);
    }
    int status;
    {
        py::gil_scoped_release release;
        status = Api<T>::Compute(&m, estimates, &results);
    }
    Check(status, "summary statistics");
    return out;
}

} // namespace

void InitStats(py::module_& m) {
    py::module_ s = m.def_submodule("stats", "Summary statistics of the front-end");
    s.def("compute", &Compute<double>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"), py::arg("weights"), py::arg("names"));
    s.def("compute", &Compute<float>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"), py::arg("weights"), py::arg("names"));
    py::list names;
    for (const auto& slot : kSlots<brenn_ss_results_f64>)
        names.append(slot.name);
    s.attr("ESTIMATES") = py::tuple(names);
    InitStatsOrder(s);
}

} // namespace brenn_py
