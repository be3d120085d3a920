// Random numbers for Python: Stream, the bulk distribution calls of a front-end
// stream (the continuous ones in rng_continuous.cpp, numpy's bit generators in
// rng_bits.cpp), and the stream helpers they share: making, copying, saving, loading.
#include <pybind11/numpy.h>
#include <pybind11/pybind11.h>
#include <pybind11/stl.h>

#include <algorithm>
#include <climits>
#include <string>
#include <vector>

#include "python/src/bindings.h"
#include "python/src/rng_stream.h"

namespace py = pybind11;

namespace brenn_py {

StreamHandle NewStream(int brng, const std::vector<uint32_t>& seed) {
    StreamHandle s;
    int status = seed.size() == 1
                     ? brenn_rng_new(s.out(), brng, seed[0])
                     : brenn_rng_new_ex(s.out(), brng, static_cast<int>(seed.size()), seed.data());
    Check(status, "stream");
    return s;
}

StreamHandle CopyStream(const StreamHandle& from) {
    StreamHandle s;
    Check(brenn_rng_copy(s.out(), from.get()), "copy");
    return s;
}

py::bytes Image(const StreamHandle& s) {
    int64_t size = 0;
    Check(brenn_rng_image_size(s.get(), &size), "image size");
    std::string image(static_cast<size_t>(size), '\0');
    Check(brenn_rng_save_memory(s.get(), image.data(), size), "save");
    return py::bytes(image);
}

StreamHandle Load(const py::bytes& image) {
    std::string_view v = image;
    StreamHandle s;
    Check(brenn_rng_load_memory(s.out(), v.data(), static_cast<int64_t>(v.size())), "load");
    return s;
}

int BrngOf(const StreamHandle& s) {
    int id = 0;
    Check(brenn_rng_get_brng(s.get(), &id), "generator id");
    return id;
}

namespace {

int MethodOf(bool accurate) {
    return accurate ? QES_RNG_METHOD_UNIFORM_ACCURATE : 0;
}

} // namespace

void InitRng(py::module_& m) {
    py::module_ r = m.def_submodule("rng", "Streams of the front-end");
    r.def("check_brng", &brenn_rng_check_brng, "Status of a generator id in this build.");

    py::class_<Stream> stream(r, "Stream");
    stream.def(py::init<int, std::vector<uint32_t>>(), py::arg("brng"), py::arg("seed"))
        .def_property_readonly("brng", [](const Stream& s) { return BrngOf(s.handle()); })
        .def("copy", [](const Stream& s) { return Stream(CopyStream(s.handle())); })
        .def("skip_ahead",
             [](Stream& s, uint64_t n) { Check(brenn_rng_skip_ahead(s.get(), n), "skip ahead"); })
        .def("leapfrog",
             [](Stream& s, int k, int n) { Check(brenn_rng_leapfrog(s.get(), k, n), "leapfrog"); })
        .def("image", [](const Stream& s) { return Image(s.handle()); })
        .def_static("load", [](const py::bytes& image) { return Stream(Load(image)); })
        .def("duniform",
             [](Stream& s, int64_t n, double a, double b, bool accurate) {
                 return Fill<double>(n, [&](int c, double* p) {
                     return brenn_rng_uniform_f64(s.get(), MethodOf(accurate), c, p, a, b);
                 });
             })
        .def("suniform",
             [](Stream& s, int64_t n, float a, float b, bool accurate) {
                 return Fill<float>(n, [&](int c, float* p) {
                     return brenn_rng_uniform_f32(s.get(), MethodOf(accurate), c, p, a, b);
                 });
             })
        .def("iuniform",
             [](Stream& s, int64_t n, int32_t a, int32_t b) {
                 return Fill<int32_t>(n, [&](int c, int32_t* p) {
                     return brenn_rng_uniform_i32(s.get(), 0, c, p, a, b);
                 });
             })
        .def("bits32",
             [](Stream& s, int64_t n) {
                 return Fill<uint32_t>(
                     n, [&](int c, uint32_t* p) { return brenn_rng_bits_u32(s.get(), c, p); });
             })
        .def("bits64",
             [](Stream& s, int64_t n) {
                 return Fill<uint64_t>(
                     n, [&](int c, uint64_t* p) { return brenn_rng_bits_u64(s.get(), c, p); });
             })
        .def("bernoulli",
             [](Stream& s, int64_t n, double p) {
                 return Fill<int32_t>(n, [&](int c, int32_t* r) {
                     return brenn_rng_bernoulli_i32(s.get(), c, r, p);
                 });
             })
        .def("geometric", [](Stream& s, int64_t n, double p) {
            return Fill<int32_t>(
                n, [&](int c, int32_t* r) { return brenn_rng_geometric_i32(s.get(), c, r, p); });
        });
    AddContinuous(stream);
    AddAbstract(r);
    AddBitSources(r);
}

} // namespace brenn_py
