// Tour step of data fitting through the front-end: spline objects of a function given
// by its values (linear, quadratic, natural and Akima cubic), each evaluated with its
// first derivative at a few sites, one of them outside the partition, and integrated
// over an interval beside the exact integral.
#include <cmath>
#include <cstdio>
#include <vector>

#include "brenn/brenn.hpp"

void TourFitting() {
    const int nx = 9;
    std::vector<double> x(nx), y(nx);
    for (int i = 0; i < nx; ++i) {
        x[i] = 0.5 * i;
        y[i] = std::sin(x[i]);
    }
    const std::vector<double> sites = {0.3, 1.7, 4.0, 4.6};
    using brenn::fit::kind;
    const struct {
        kind k;
        const char* name;
        brenn::fit::boundary bc;
    } splines[] = {
        {kind::linear, "linear", {}},
        // The quadratic of the midpoint form, given its value in the middle of cell 0.
        {kind::quadratic, "quadratic", {FIT_BC_MID_VALUE, {std::sin(0.25), 0}}},
        // Cubics: the natural spline (free ends) and Akima's.
        {kind::cubic_natural, "natural cubic", {FIT_BC_FREE_END, {0, 0}}},
        {kind::cubic_akima, "Akima cubic", {}},
    };
    for (const auto& s : splines) {
        auto made = brenn::fit::spline::make(s.k, x, y, s.bc);
        auto v = made.value.eval(sites, 2); // the value and the first derivative
        std::printf("fitting: %s spline of sin on %d nodes (status %d)\n", s.name, nx,
                    made ? v.stat.code : made.stat.code);
        if (!made || !v) continue;
        for (size_t i = 0; i < sites.size(); ++i)
            std::printf("  s = %.2f  value %+.5f  slope %+.5f  (sin %+.5f, cos %+.5f)\n", sites[i],
                        v.value[2 * i], v.value[2 * i + 1], std::sin(sites[i]), std::cos(sites[i]));
        // The integral over [0.3, 4], beside that of sin.
        auto area = made.value.integrate(std::vector<double>{0.3}, std::vector<double>{4.0});
        if (area)
            std::printf("  integral over [0.30, 4.00] %+.5f  (exact %+.5f)\n", area.value[0],
                        std::cos(0.3) - std::cos(4.0));
    }
}
