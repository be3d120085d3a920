// The extension module brenn._brenn: the front-end's four services for the Python
// package, and the translation of the front-end's statuses into exceptions.
#include <string>

#include "python/src/bindings.h"

namespace py = pybind11;

namespace brenn_py {

void Check(int status, const char* what) {
    if (status >= 0) return;
    std::string message =
        std::string(what) + ": " + brenn_status_name(status) + " (" + std::to_string(status) + ")";
    switch (status) {
    case BRENN_ERR_BAD_SIZE:
    case BRENN_ERR_BAD_ARGUMENT:
    case BRENN_ERR_BAD_ACCURACY:
    case BRENN_ERR_SIZE_MISMATCH:
    case BRENN_ERR_TOO_LONG:
    case BRENN_ERR_BAD_METHOD:
    case QES_STATUS_BAD_ARGUMENT:
        throw py::value_error(message);
    case QES_RNG_STATUS_NO_SKIPAHEAD: // the generator has no jump or leapfrog
    case QES_RNG_STATUS_NO_LEAPFROG:
    case BRENN_ERR_NOT_AVAILABLE:
        PyErr_SetString(PyExc_NotImplementedError, message.c_str());
        throw py::error_already_set();
    case BRENN_ERR_NO_MEMORY:
        PyErr_SetString(PyExc_MemoryError, message.c_str());
        throw py::error_already_set();
    default:
        throw std::runtime_error(message);
    }
}

} // namespace brenn_py

PYBIND11_MODULE(_brenn, m) {
    m.doc() = "The compiled part of the brenn package: bindings of the front-end libbrenn.";
    m.def("status_name", &brenn_status_name, "The front-end's short name of a status code.");
    m.def("set_num_threads", &brenn_set_num_threads,
          "Bounds the threads the front-end's parallel work uses (0: all); returns the old bound.");
    brenn_py::InitVm(m);
    brenn_py::InitRng(m);
    brenn_py::InitStats(m);
    brenn_py::InitStatsRobust(m);
    brenn_py::InitFit(m);
}
