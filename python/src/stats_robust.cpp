// Robust and derived covariance estimates for Python: one front-end call each on a
// contiguous float32 or float64 matrix (or, for the nearest correlation matrix, a
// square one), the results in new arrays. The package's stats.py gives them numpy's
// shapes and names; every call releases the GIL.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <string>

#include "brenn_ss_robust.hpp"
#include "python/src/bindings.h"
#include "python/src/stats_views.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

template <class T>
using Array = py::array_t<T, py::array::c_style>;
using Words = py::array_t<int64_t, py::array::c_style>;

template <class T>
using Api = brenn::ss::robust_entries<T>;
template <class T>
using Matrix = brenn::ss::detail::c_matrix<T>;

template <class T>
Matrix<T> View(const Array<T>& x, int64_t p, int64_t n, bool inRows) {
    return MatrixView<T>(x, p, n, inRows);
}

// The compute statuses a caller can meet, in words.
std::string Why(const char* what, int status) {
    std::string s = what;
    switch (status) {
    case BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE:
        return s + ": a covariance is not positive definite";
    case BRENN_SS_ERROR_EXACT_FIT:
        return s + ": exact fit (h or more observations lie on a hyperplane)";
    case BRENN_SS_ERROR_NO_CONVERGENCE:
        return s + ": no convergence within the iteration limit";
    case BRENN_SS_ERROR_OBSERVATION_COUNT:
        return s + ": too few usable observations";
    case BRENN_SS_ERROR_ROBUST_PARAMS_MISSING:
        return s + ": h is below the number of variables + 1";
    default:
        return s;
    }
}

// Runs call() with the GIL released and raises for a failed status.
template <class Call>
void Run(const char* what, Call call) {
    int status;
    {
        py::gil_scoped_release release;
        status = call();
    }
    if (status < 0) Check(status, Why(what, status).c_str());
}

template <class T>
py::tuple Robust(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Array<T>& params) {
    const auto view = View(x, p, n, inRows);
    Array<T> mean(p), cov({p, p});
    T *m = mean.mutable_data(), *c = cov.mutable_data();
    Run("robust covariance",
        [&] { return Api<T>::robust_covariance(&view, params.size(), params.data(), m, c); });
    return py::make_tuple(mean, cov);
}

template <class T>
Array<T> Outliers(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Array<T>& params) {
    const auto view = View(x, p, n, inRows);
    Array<T> weights(n);
    T* w = weights.mutable_data();
    Run("outliers", [&] { return Api<T>::outliers(&view, params.size(), params.data(), w); });
    return weights;
}

// EM's mean and covariance and the imputations: (mean, cov, imputed M x K, means M x p),
// the imputed entries in the order they lie in x.
template <class T>
py::tuple Missing(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Array<T>& params,
                  int64_t imputations) {
    const auto view = View(x, p, n, inRows);
    int64_t k = 0;
    Check(Api<T>::missing_count(&view, &k), "missing values");
    if (imputations < 0) throw py::value_error("imputations must be 0 or more");
    Array<T> mean(p), cov({p, p}), imputed({imputations, k}), means({imputations, p});
    T *m = mean.mutable_data(), *c = cov.mutable_data();
    T none[1];
    T* e = imputations == 0 ? nullptr : k == 0 ? none : imputed.mutable_data();
    T* em = imputations == 0 ? nullptr : means.mutable_data();
    Run("missing values", [&] {
        return Api<T>::missing_values(&view, params.size(), params.data(), m, c, imputations,
                                      imputations * k, e, em);
    });
    return py::make_tuple(mean, cov, imputed, means);
}

template <class T>
py::tuple Partial(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Words& roles,
                  const py::object& weights) {
    auto view = View(x, p, n, inRows);
    if (roles.size() != p) throw py::value_error("roles must be one word a variable");
    Array<T> w;
    AttachWeights<T>(view, weights, n, w);
    int64_t ny = 0;
    for (int64_t j = 0; j < p; ++j)
        ny += roles.data()[j] == 1;
    Array<T> cov({ny, ny}), cor({ny, ny});
    T *c = cov.mutable_data(), *r = cor.mutable_data();
    Run("partial covariance",
        [&] { return Api<T>::partial_covariance(&view, roles.data(), c, r); });
    return py::make_tuple(cov, cor);
}

template <class T>
py::tuple Pooled(const Array<T>& x, int64_t p, int64_t n, bool inRows, int64_t groups,
                 const Words& labels) {
    const auto view = View(x, p, n, inRows);
    if (labels.size() != n) throw py::value_error("labels must be one word an observation");
    const int64_t g = groups > 0 ? groups : 0;
    Array<T> groupMeans({g, p}), groupCovs({g, p, p}), mean(p), cov({p, p});
    T *gm = groupMeans.mutable_data(), *gc = groupCovs.mutable_data();
    T *m = mean.mutable_data(), *c = cov.mutable_data();
    Run("pooled covariance",
        [&] { return Api<T>::pooled_covariance(&view, groups, labels.data(), gm, gc, m, c); });
    return py::make_tuple(groupMeans, groupCovs, mean, cov);
}

template <class T>
Array<T> Nearest(const Array<T>& a, int64_t p, const py::object& weights, const Array<T>& params) {
    if (a.size() != p * p) throw py::value_error("a must be p x p");
    Array<T> w;
    const T* wp = nullptr;
    if (!weights.is_none()) {
        w = weights.cast<Array<T>>();
        if (w.size() != p) throw py::value_error("weights must be one value a variable");
        wp = w.data();
    }
    Array<T> out({p, p});
    T* o = out.mutable_data();
    Run("nearest correlation", [&] {
        return Api<T>::nearest_correlation(p, a.data(), wp, params.size(), params.data(), o);
    });
    return out;
}

template <class T>
Array<T> Mahalanobis(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Array<T>& mean,
                     const Array<T>& cov) {
    const auto view = View(x, p, n, inRows);
    if (mean.size() != p || cov.size() != p * p)
        throw py::value_error("mean must hold p values and cov p x p");
    Array<T> out(n);
    T* o = out.mutable_data();
    Run("mahalanobis", [&] { return Api<T>::mahalanobis(&view, mean.data(), cov.data(), o); });
    return out;
}

template <class T>
void Bind(py::module_& s) {
    const auto x = py::arg("x"), p = py::arg("p"), n = py::arg("n"),
               rows = py::arg("observations_in_rows");
    s.def("robust_covariance", &Robust<T>, x, p, n, rows, py::arg("params"));
    s.def("outliers", &Outliers<T>, x, p, n, rows, py::arg("params"));
    s.def("missing_values", &Missing<T>, x, p, n, rows, py::arg("params"), py::arg("imputations"));
    s.def("partial_covariance", &Partial<T>, x, p, n, rows, py::arg("roles"), py::arg("weights"));
    s.def("pooled_covariance", &Pooled<T>, x, p, n, rows, py::arg("groups"), py::arg("labels"));
    s.def("nearest_correlation", &Nearest<T>, py::arg("a"), p, py::arg("weights"),
          py::arg("params"));
    s.def("mahalanobis", &Mahalanobis<T>, x, p, n, rows, py::arg("mean"), py::arg("cov"));
}

} // namespace

void InitStatsRobust(py::module_& m) {
    py::module_ s = m.attr("stats").cast<py::module_>();
    // The double forms first: a float64 array must not be cast to float32.
    Bind<double>(s);
    Bind<float>(s);
}

} // namespace brenn_py
