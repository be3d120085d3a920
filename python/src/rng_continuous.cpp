// The continuous distributions' bulk draws of a Stream, float64 or float32 by the
// dtype asked for: each a call of the front-end's checked entry, so refusals (a
// method the distribution lacks, a scale not above 0, a NaN) raise ValueError before
// anything is drawn, and results are the library's own bit for bit.
#include "python/src/rng_stream.h"

namespace py = pybind11;

namespace brenn_py {
namespace {

// The array of n variates of the dtype's precision: f64 or f32 draws into it.
template <class F64, class F32>
py::array Draw(int64_t n, bool single, F64 f64, F32 f32) {
    if (single) return Fill<float>(n, f32);
    return Fill<double>(n, f64);
}

} // namespace

void AddContinuous(py::class_<Stream>& stream) {
    stream
        .def("_gaussian",
             [](Stream& s, int64_t n, bool single, int method, double a, double sigma) {
                 return Draw(
                     n, single,
                     [&](int c, double* r) {
                         return brenn_rng_gaussian_f64(s.get(), method, c, r, a, sigma);
                     },
                     [&](int c, float* r) {
                         return brenn_rng_gaussian_f32(s.get(), method, c, r, float(a),
                                                       float(sigma));
                     });
             })
        .def("_lognormal",
             [](Stream& s, int64_t n, bool single, int method, double a, double sigma, double b,
                double beta) {
                 return Draw(
                     n, single,
                     [&](int c, double* r) {
                         return brenn_rng_lognormal_f64(s.get(), method, c, r, a, sigma, b, beta);
                     },
                     [&](int c, float* r) {
                         return brenn_rng_lognormal_f32(s.get(), method, c, r, float(a),
                                                        float(sigma), float(b), float(beta));
                     });
             })
        .def("_weibull",
             [](Stream& s, int64_t n, bool single, double alpha, double a, double beta) {
                 return Draw(
                     n, single,
                     [&](int c, double* r) {
                         return brenn_rng_weibull_f64(s.get(), 0, c, r, alpha, a, beta);
                     },
                     [&](int c, float* r) {
                         return brenn_rng_weibull_f32(s.get(), 0, c, r, float(alpha), float(a),
                                                      float(beta));
                     });
             });
    // The distributions of a location (or shift) a and a scale beta.
    using F64 = int (*)(brenn_stream*, int, int, double*, double, double);
    using F32 = int (*)(brenn_stream*, int, int, float*, float, float);
    const struct {
        const char* name;
        F64 f64;
        F32 f32;
    } two[] = {
        {"_exponential", brenn_rng_exponential_f64, brenn_rng_exponential_f32},
        {"_gumbel", brenn_rng_gumbel_f64, brenn_rng_gumbel_f32},
        {"_laplace", brenn_rng_laplace_f64, brenn_rng_laplace_f32},
        {"_rayleigh", brenn_rng_rayleigh_f64, brenn_rng_rayleigh_f32},
        {"_cauchy", brenn_rng_cauchy_f64, brenn_rng_cauchy_f32},
    };
    for (const auto& d : two)
        stream.def(d.name, [f64 = d.f64, f32 = d.f32](Stream& s, int64_t n, bool single, double a,
                                                      double beta) {
            return Draw(
                n, single, [&](int c, double* r) { return f64(s.get(), 0, c, r, a, beta); },
                [&](int c, float* r) { return f32(s.get(), 0, c, r, float(a), float(beta)); });
        });
}

} // namespace brenn_py
