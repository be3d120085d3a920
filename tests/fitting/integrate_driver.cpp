// Driver of the exact and scipy comparison of integration (integrate_check.py): reads
// cases from a file, builds each spline (or takes the given coefficients), integrates
// it over the case's intervals, and writes status, coefficients and integrals.
//
// A case: int64 kind, single, nx, uniform, intervals, order; then float64 x[nx] (all
// nodes; a uniform task gets the two ends), y[nx], extra[nx+1] (the knots of the knot
// form, the mid value and end slopes in extra[0..2] otherwise), coefficients
// [(nx-1)*order] (the generic kind's), llim[intervals], rlim[intervals]. Its answer:
// int64 status; float64 coefficients [pieces*order] and integrals [intervals], zeros
// after a failure. Kinds: integrate_check.py's KINDS.
#include <cstdio>
#include <vector>

#include "brenn_fitting.h"
#include "cubic_families.h"
#include "driver_files.h"

using namespace brenn::fittest;

namespace {

enum Kind {
    kLinear,
    kMidQuadratic,
    kNaturalFree,
    kNaturalNotAKnot,
    kAkima,
    kKnotQuadratic,
    kStepRight,
    kStepLeft,
    kGenericOrder
};

template <typename T>
int32_t Build(FitTaskHandle t, int64_t kind, int64_t order, std::vector<T>& extra,
              std::vector<T>& coeff) {
    bool d = sizeof(T) == sizeof(double);
    auto edit = [&](int64_t o, int64_t type, int64_t bcType, const T* bc, int64_t icType,
                    const T* ic) {
        if constexpr (sizeof(T) == sizeof(double))
            return brenn_df_kernel_dEditPPSpline1D(t, o, type, bcType, bc, icType, ic, coeff.data(),
                                                   0);
        else
            return brenn_df_kernel_sEditPPSpline1D(t, o, type, bcType, bc, icType, ic, coeff.data(),
                                                   0);
    };
    static const T slopes[2] = {T(0.5), T(-0.25)};
    int32_t s;
    switch (kind) {
    case kLinear:
        if ((s = edit(2, 0, 0, nullptr, 0, nullptr))) return s;
        return d ? brenn_df_kernel_dDFLinearSpline1D(t, 0, 0, nullptr)
                 : brenn_df_kernel_sDFLinearSpline1D(t, 0, 0, nullptr);
    case kMidQuadratic:
        if ((s = edit(3, 0, FIT_BC_MID_VALUE, extra.data(), 0, nullptr))) return s;
        return d ? brenn_df_kernel_dDFQuadraticSpline1D(t, 0, 0, nullptr)
                 : brenn_df_kernel_sDFQuadraticSpline1D(t, 0, 0, nullptr);
    case kKnotQuadratic:
        // extra holds the knots; the end slopes are in bc, which the task keeps.
        if ((s = edit(3, 1, FIT_BC_FIRST_LEFT | FIT_BC_FIRST_RIGHT, slopes, FIT_IC_KNOTS,
                      extra.data())))
            return s;
        return d ? brenn_df_kernel_dDFQuadraticSpline1D(t, 0, 0, nullptr)
                 : brenn_df_kernel_sDFQuadraticSpline1D(t, 0, 0, nullptr);
    case kNaturalFree:
    case kNaturalNotAKnot:
        if ((s = edit(4, 0, kind == kNaturalFree ? FIT_BC_FREE_END : FIT_BC_NOT_A_KNOT, nullptr, 0,
                      nullptr)))
            return s;
        return ConstructCubic<T>(kNatural, t, 0, nullptr);
    case kAkima:
        if ((s = edit(4, FIT_TYPE_CUBIC_AKIMA, 0, nullptr, 0, nullptr))) return s;
        return ConstructCubic<T>(kAkima, t, 0, nullptr);
    case kStepRight:
        return edit(0, FIT_TYPE_STEP_RIGHT, 0, nullptr, 0, nullptr);
    case kStepLeft:
        return edit(0, FIT_TYPE_STEP_LEFT, 0, nullptr, 0, nullptr);
    default: // the coefficients as given
        return edit(order, 0, 0, nullptr, 0, nullptr);
    }
}

template <typename T>
int64_t Run(const int64_t* h, const std::vector<double>& xs, const std::vector<double>& ys,
            const std::vector<double>& es, const std::vector<double>& cs,
            const std::vector<double>& ls, const std::vector<double>& rs,
            std::vector<double>* coeffOut, std::vector<double>* out) {
    int64_t kind = h[0], nx = h[2], uniform = h[3], n = h[4], order = h[5];
    std::vector<T> x(xs.begin(), xs.end()), y(ys.begin(), ys.end()), e(es.begin(), es.end());
    std::vector<T> c(cs.begin(), cs.end()), l(ls.begin(), ls.end()), r(rs.begin(), rs.end());
    std::vector<T> result(n);
    c.resize(nx * (order > 0 ? order : 1));
    if (uniform) x = {x.front(), x.back()};
    FitTaskHandle t = nullptr;
    int32_t s;
    if constexpr (sizeof(T) == sizeof(double))
        s = brenn_df_kernel_dNewTask1D(&t, nx, x.data(), uniform ? FIT_X_UNIFORM : 0, 1, y.data(),
                                       FIT_Y_ROWS, 0);
    else
        s = brenn_df_kernel_sNewTask1D(&t, nx, x.data(), uniform ? FIT_X_UNIFORM : 0, 1, y.data(),
                                       FIT_Y_ROWS, 0);
    if (s == 0) s = Build<T>(t, kind, order, e, c);
    if (s == 0) {
        if constexpr (sizeof(T) == sizeof(double))
            s = brenn_df_kernel_dDFIntegrate1D(t, 0, n, l.data(), 0, r.data(), 0, nullptr, nullptr,
                                               result.data(), 0, nullptr, nullptr, nullptr, nullptr,
                                               nullptr, nullptr, nullptr, nullptr, nullptr);
        else
            s = brenn_df_kernel_sDFIntegrate1D(t, 0, n, l.data(), 0, r.data(), 0, nullptr, nullptr,
                                               result.data(), 0, nullptr, nullptr, nullptr, nullptr,
                                               nullptr, nullptr, nullptr, nullptr, nullptr);
    }
    brenn_df_kernel_DeleteTask(&t);
    coeffOut->assign(c.begin(), c.end());
    out->assign(result.begin(), result.end());
    return s;
}

} // namespace

int main(int argc, char** argv) {
    FILE *in, *out;
    if (!OpenDriverFiles(argc, argv, &in, &out)) return 2;
    int64_t h[6];
    while (Read(in, h, 6)) {
        int64_t nx = h[2], n = h[4], order = h[5];
        int64_t ncoef = (nx - 1) * order;
        std::vector<double> x(nx), y(nx), e(nx + 1), c(ncoef), l(n), r(n);
        if (!Read(in, x.data(), nx) || !Read(in, y.data(), nx) || !Read(in, e.data(), nx + 1) ||
            !Read(in, c.data(), ncoef) || !Read(in, l.data(), n) || !Read(in, r.data(), n))
            return 3;
        std::vector<double> coeff, result;
        int64_t status = h[1] ? Run<float>(h, x, y, e, c, l, r, &coeff, &result)
                              : Run<double>(h, x, y, e, c, l, r, &coeff, &result);
        int64_t pieces = h[0] == kKnotQuadratic ? nx : nx - 1;
        coeff.resize(pieces * order);
        result.resize(n);
        std::fwrite(&status, sizeof(status), 1, out);
        std::fwrite(coeff.data(), sizeof(double), coeff.size(), out);
        std::fwrite(result.data(), sizeof(double), result.size(), out);
    }
    std::fclose(in);
    std::fclose(out);
    return 0;
}
