// Order statistics for Python: quantiles, sort, median absolute deviation and
// weighted median of a contiguous float32 or float64 matrix in one front-end call
// each, and StreamQuantiles64/32, the front-end's streaming summary. The package's
// stats.py gives them numpy's shapes and axes; every call releases the GIL.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>

#include <utility>

#include "python/src/bindings.h"
#include "python/src/stats_views.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

template <class T>
using Array = py::array_t<T, py::array::c_style>;

template <class T>
struct Api;
template <>
struct Api<double> {
    using Matrix = brenn_ss_matrix_f64;
    using Stream = brenn_ss_stream_f64;
    static constexpr auto quantiles = brenn_ss_quantiles_f64;
    static constexpr auto sort = brenn_ss_sort_f64;
    static constexpr auto mad = brenn_ss_mad_f64;
    static constexpr auto wmedian = brenn_ss_weighted_median_f64;
    static constexpr auto make = brenn_ss_stream_new_f64;
    static constexpr auto feed = brenn_ss_stream_feed_f64;
    static constexpr auto read = brenn_ss_stream_read_f64;
    static constexpr auto count = brenn_ss_stream_count_f64;
    static constexpr auto drop = brenn_ss_stream_delete_f64;
};
template <>
struct Api<float> {
    using Matrix = brenn_ss_matrix_f32;
    using Stream = brenn_ss_stream_f32;
    static constexpr auto quantiles = brenn_ss_quantiles_f32;
    static constexpr auto sort = brenn_ss_sort_f32;
    static constexpr auto mad = brenn_ss_mad_f32;
    static constexpr auto wmedian = brenn_ss_weighted_median_f32;
    static constexpr auto make = brenn_ss_stream_new_f32;
    static constexpr auto feed = brenn_ss_stream_feed_f32;
    static constexpr auto read = brenn_ss_stream_read_f32;
    static constexpr auto count = brenn_ss_stream_count_f32;
    static constexpr auto drop = brenn_ss_stream_delete_f32;
};

int64_t Layout(bool observationsInRows) {
    return observationsInRows ? BRENN_SS_OBSERVATIONS_IN_ROWS : BRENN_SS_VARIABLES_IN_ROWS;
}

template <class T>
typename Api<T>::Matrix View(const Array<T>& x, int64_t p, int64_t n, bool inRows) {
    return MatrixView<T>(x, p, n, inRows);
}

// Runs call(view, results) with the GIL released and checks its status.
template <class T, class Call>
Array<T> Run(typename Api<T>::Matrix view, py::ssize_t size, const char* what, Call call) {
    Array<T> out(size);
    T* to = out.mutable_data();
    int status;
    {
        py::gil_scoped_release release;
        status = call(&view, to);
    }
    Check(status, what);
    return out;
}

template <class T>
Array<T> Quantiles(const Array<T>& x, int64_t p, int64_t n, bool inRows, const Array<T>& orders) {
    const int64_t m = static_cast<int64_t>(orders.size());
    return Run<T>(View(x, p, n, inRows), p * m, "quantiles", [&](const auto* v, T* out) {
        return Api<T>::quantiles(v, m, orders.data(), out);
    });
}

template <class T>
Array<T> Sort(const Array<T>& x, int64_t p, int64_t n, bool inRows) {
    return Run<T>(View(x, p, n, inRows), p * n, "sort",
                  [](const auto* v, T* out) { return Api<T>::sort(v, out); });
}

template <class T>
Array<T> Mad(const Array<T>& x, int64_t p, int64_t n, bool inRows) {
    return Run<T>(View(x, p, n, inRows), p, "median absolute deviation",
                  [](const auto* v, T* out) { return Api<T>::mad(v, out); });
}

template <class T>
Array<T> WeightedMedian(const Array<T>& x, int64_t p, int64_t n, bool inRows,
                        const py::object& weights) {
    auto view = View(x, p, n, inRows);
    Array<T> w;
    AttachWeights<T>(view, weights, n, w);
    return Run<T>(view, p, "weighted median",
                  [](const auto* v, T* out) { return Api<T>::wmedian(v, out); });
}

// The front-end's streaming summary, ended with its owner.
template <class T>
class StreamQuantiles {
  public:
    StreamQuantiles(int64_t p, T eps) : p_(p) { Check(Api<T>::make(&s_, p, eps), "stream"); }
    ~StreamQuantiles() { Api<T>::drop(&s_); }
    StreamQuantiles(const StreamQuantiles&) = delete;
    StreamQuantiles& operator=(const StreamQuantiles&) = delete;
    StreamQuantiles(StreamQuantiles&& o) noexcept : s_(std::exchange(o.s_, nullptr)), p_(o.p_) {}

    void Feed(const Array<T>& x, int64_t n, bool inRows) {
        if (x.size() != p_ * n) throw py::value_error("a block must hold p * n values");
        int status;
        {
            py::gil_scoped_release release;
            status = Api<T>::feed(s_, n, Layout(inRows), x.data());
        }
        Check(status, "stream feed");
    }
    Array<T> Read(const Array<T>& orders) {
        const int64_t m = static_cast<int64_t>(orders.size());
        Array<T> out(p_ * m);
        T* to = out.mutable_data();
        int status;
        {
            py::gil_scoped_release release;
            status = Api<T>::read(s_, m, orders.data(), to);
        }
        Check(status, "stream read");
        return out;
    }
    int64_t Count() const { return Api<T>::count(s_); }
    int64_t P() const { return p_; }

  private:
    typename Api<T>::Stream* s_ = nullptr;
    int64_t p_;
};

template <class T>
void Bind(py::module_& s, const char* streamName) {
    s.def("quantiles", &Quantiles<T>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"), py::arg("orders"));
    s.def("sort", &Sort<T>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"));
    s.def("mad", &Mad<T>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"));
    s.def("weighted_median", &WeightedMedian<T>, py::arg("x"), py::arg("p"), py::arg("n"),
          py::arg("observations_in_rows"), py::arg("weights"));
    py::class_<StreamQuantiles<T>>(s, streamName)
        .def(py::init<int64_t, T>(), py::arg("p"), py::arg("eps"))
        .def("feed", &StreamQuantiles<T>::Feed, py::arg("x"), py::arg("n"),
             py::arg("observations_in_rows"))
        .def("read", &StreamQuantiles<T>::Read, py::arg("orders"))
        .def_property_readonly("count", &StreamQuantiles<T>::Count)
        .def_property_readonly("p", &StreamQuantiles<T>::P);
}

} // namespace

void InitStatsOrder(py::module_& s) {
    // The double forms first: pybind11 tries overloads in order, and a float64 array
    // must not be cast to float32 by the second.
    Bind<double>(s, "StreamQuantiles64");
    Bind<float>(s, "StreamQuantiles32");
}

} // namespace brenn_py
