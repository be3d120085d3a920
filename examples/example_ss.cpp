// Summary statistics through the C++ front-end: means, variances, extremes and the
// correlation of a 3 x 1000 matrix view in one call, with weights.
#include <cmath>
#include <cstdio>
#include <vector>

#include <brenn/brenn.hpp>

int main() {
    const int64_t p = 3, n = 1000;
    std::vector<double> x(p * n), w(n); // one observation's three values together
    for (int64_t i = 0; i < n; ++i) {
        double t = 0.01 * i;
        x[i * p + 0] = std::sin(t);
        x[i * p + 1] = 2 * std::sin(t) + 0.1 * std::cos(7 * t);
        x[i * p + 2] = t;
        w[i] = i < n / 2 ? 1.0 : 2.0;
    }
    brenn::ss::matrix_view<double> m{x, p, n, brenn::ss::layout::observations_in_rows, w};
    auto e = brenn::ss::compute(m, BRENN_SS_MEAN | BRENN_SS_2C_MOM | BRENN_SS_MIN | BRENN_SS_MAX |
                                       BRENN_SS_COR);
    if (!e) return std::printf("statistics: %d\n", e.stat.code), 1;
    for (int64_t j = 0; j < p; ++j)
        std::printf("variable %lld: mean %.5f variance %.5f range [%.3f, %.3f]\n",
                    static_cast<long long>(j), e.value.mean[j], e.value.central_moment2[j],
                    e.value.minimum[j], e.value.maximum[j]);
    std::printf("correlation of the first two: %.5f\n", e.value.correlation[1]);
    brenn::ss::matrix_view<double> wrong{x, p, n + 1};
    std::printf("a view larger than its data: %d\n",
                brenn::ss::compute(wrong, BRENN_SS_MEAN).stat.code);
    return 0;
}
