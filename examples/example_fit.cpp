// Data fitting through the C++ front-end: a spline of every kind built in this
// library through the values of sin on nine nodes, evaluated with its slope.
#include <cmath>
#include <cstdio>
#include <vector>

#include <brenn/brenn.hpp>

int main() {
    std::vector<double> x(9), y(9);
    for (int i = 0; i < 9; ++i)
        x[i] = 0.5 * i, y[i] = std::sin(x[i]);
    const std::vector<double> sites = {0.3, 1.7, 3.9};
    using brenn::fit::kind;
    const struct {
        kind k;
        const char* name;
        brenn::fit::boundary bc;
    } kinds[] = {
        {kind::linear, "linear", {}},
        {kind::quadratic, "quadratic", {FIT_BC_MID_VALUE, {std::sin(0.25), 0}}},
        {kind::cubic_natural,
         "natural cubic",
         {FIT_BC_SECOND_LEFT | FIT_BC_SECOND_RIGHT, {0, -std::sin(4.0)}}},
        {kind::cubic_akima, "Akima cubic", {}},
    };
    for (const auto& k : kinds) {
        if (!brenn::fit::available(k.k)) {
            std::printf("%-14s not in this build\n", k.name);
            continue;
        }
        auto s = brenn::fit::spline::make(k.k, x, y, k.bc);
        auto v = s.value.eval(sites, 2); // value and first derivative at each site
        if (!s || !v) return std::printf("%s: %d %d\n", k.name, s.stat.code, v.stat.code), 1;
        for (size_t i = 0; i < sites.size(); ++i)
            std::printf("%-14s s=%.1f value %+.5f (sin %+.5f) slope %+.5f (cos %+.5f)\n", k.name,
                        sites[i], v.value[2 * i], std::sin(sites[i]), v.value[2 * i + 1],
                        std::cos(sites[i]));
    }
    return 0;
}
