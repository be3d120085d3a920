// Data fitting for Python: a front-end spline of float32 or float64 data, built once
// from its partition, values and conditions, and evaluated at sites (values and
// derivatives) and integrated over intervals without the GIL.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <climits>
#include <string>
#include <utility>

#include "python/src/bindings.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

template <class T>
struct Api;
template <>
struct Api<double> {
    using Handle = brenn_fit_spline_f64;
    static constexpr auto New = &brenn_fit_spline_new_f64;
    static constexpr auto Eval = &brenn_fit_spline_eval_f64;
    static constexpr auto Integrate = &brenn_fit_spline_integrate_f64;
    static constexpr auto Delete = &brenn_fit_spline_delete_f64;
};
template <>
struct Api<float> {
    using Handle = brenn_fit_spline_f32;
    static constexpr auto New = &brenn_fit_spline_new_f32;
    static constexpr auto Eval = &brenn_fit_spline_eval_f32;
    static constexpr auto Integrate = &brenn_fit_spline_integrate_f32;
    static constexpr auto Delete = &brenn_fit_spline_delete_f32;
};

template <class T>
using Array = py::array_t<T, py::array::c_style>;

template <class T>
const T* DataOrNull(const py::object& a, Array<T>& keep) {
    if (a.is_none()) return nullptr;
    keep = a.cast<Array<T>>();
    return keep.data();
}

template <class T>
class Spline {
  public:
    Spline(int kind, const Array<T>& x, const Array<T>& y, int64_t bc_type, const py::object& bc,
           const py::object& ic)
        : order_(brenn_fit_order(kind)) {
        if (x.ndim() != 1 || y.ndim() != 1 || x.shape(0) != y.shape(0))
            throw py::value_error("x and y must be 1-D arrays of one length");
        Array<T> bcKeep, icKeep;
        const T* bcData = DataOrNull<T>(bc, bcKeep);
        const T* icData = DataOrNull<T>(ic, icKeep);
        int status =
            Api<T>::New(&s_, kind, x.shape(0), x.data(), y.data(), bc_type, bcData, icData);
        // The construction's own refusals (a condition the kind does not take, too
        // few points) are about the caller's arguments too.
        if (status < 0 && status != FIT_STATUS_NO_MEMORY && status >= FIT_STATUS_NULL_OUT &&
            status <= FIT_STATUS_NULL_TASK)
            throw py::value_error("spline: the construction refused its arguments (status " +
                                  std::to_string(status) + ")");
        Check(status, "spline");
    }
    Spline(const Spline&) = delete;
    Spline& operator=(const Spline&) = delete;
    Spline(Spline&& o) noexcept : s_(std::exchange(o.s_, nullptr)), order_(o.order_) {}
    ~Spline() { Api<T>::Delete(&s_); }

    // Derivatives 0 .. nderiv-1 at every site: an array of nsite x nderiv.
    py::array_t<T> Eval(const Array<T>& sites, int nderiv) const {
        py::array_t<T> r(
            {static_cast<py::ssize_t>(sites.size()), static_cast<py::ssize_t>(nderiv)});
        const T* in = sites.data();
        T* out = r.mutable_data();
        int64_t n = sites.size();
        int status;
        {
            py::gil_scoped_release release;
            status = Api<T>::Eval(s_, n, in, nderiv, out);
        }
        Check(status, "spline evaluation");
        return r;
    }
    // Integrals from a[i] to b[i], a and b of one length.
    py::array_t<T> Integrate(const Array<T>& a, const Array<T>& b, bool extrapolate) const {
        if (a.ndim() != 1 || b.ndim() != 1 || a.shape(0) != b.shape(0))
            throw py::value_error("the limits must be 1-D arrays of one length");
        py::array_t<T> r(a.shape(0));
        const T *lo = a.data(), *hi = b.data();
        T* out = r.mutable_data();
        int64_t n = a.shape(0);
        int status;
        {
            py::gil_scoped_release release;
            status = Api<T>::Integrate(s_, n, lo, hi, extrapolate ? 1 : 0, out);
        }
        Check(status, "spline integration");
        return r;
    }
    int Order() const { return order_; }

  private:
    typename Api<T>::Handle* s_ = nullptr;
    int order_;
};

template <class T>
void Bind(py::module_& f, const char* name) {
    py::class_<Spline<T>>(f, name)
        .def(py::init<int, const Array<T>&, const Array<T>&, int64_t, const py::object&,
                      const py::object&>(),
             py::arg("kind"), py::arg("x"), py::arg("y"), py::arg("bc_type"), py::arg("bc"),
             py::arg("ic"))
        .def("eval", &Spline<T>::Eval, py::arg("sites"), py::arg("nderiv"))
        .def("integrate", &Spline<T>::Integrate, py::arg("a"), py::arg("b"), py::arg("extrapolate"))
        .def_property_readonly("order", &Spline<T>::Order);
}

} // namespace

void InitFit(py::module_& m) {
    py::module_ f = m.def_submodule("fit", "Splines of the front-end");
    Bind<double>(f, "DSpline");
    Bind<float>(f, "SSpline");
    f.def("available", &brenn_fit_available, "Status of a spline kind in this build.");
    f.def("order", &brenn_fit_order, "The order (coefficients a cell) of a kind.");
    py::dict kinds, bcs;
    kinds["linear"] = int(BRENN_FIT_LINEAR);
    kinds["quadratic"] = int(BRENN_FIT_QUADRATIC);
    kinds["quadratic-knots"] = int(BRENN_FIT_QUADRATIC_KNOTS);
    kinds["cubic"] = int(BRENN_FIT_CUBIC_DEFAULT);
    kinds["natural"] = int(BRENN_FIT_CUBIC_NATURAL);
    kinds["akima"] = int(BRENN_FIT_CUBIC_AKIMA);
    kinds["bessel"] = int(BRENN_FIT_CUBIC_BESSEL);
    kinds["hyman"] = int(BRENN_FIT_CUBIC_HYMAN);
    kinds["hermite"] = int(BRENN_FIT_CUBIC_HERMITE);
    f.attr("KINDS") = kinds;
    bcs["not-a-knot"] = int(FIT_BC_NOT_A_KNOT);
    bcs["free-end"] = int(FIT_BC_FREE_END);
    bcs["first-left"] = int(FIT_BC_FIRST_LEFT);
    bcs["first-right"] = int(FIT_BC_FIRST_RIGHT);
    bcs["second-left"] = int(FIT_BC_SECOND_LEFT);
    bcs["second-right"] = int(FIT_BC_SECOND_RIGHT);
    bcs["periodic"] = int(FIT_BC_PERIODIC);
    bcs["mid-value"] = int(FIT_BC_MID_VALUE);
    f.attr("BC") = bcs;
}

} // namespace brenn_py
