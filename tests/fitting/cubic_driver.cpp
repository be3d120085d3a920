// Driver of the scipy comparison (cubic_scipy_check.py): reads cases from a file, builds
// each cubic spline, evaluates values and derivatives 1 to 3 through interpolation, and
// writes status, coefficients and results to a file for the script to compare.
//
// A case: int64 family, single, nx, ny, uniform, yHint, bcType, sites, sType; then
// float64 bc[2], x[nx], y[ny*nx] (function after function), ic[ny*nx], sites. Its
// answer: int64 status; float64 coefficients ny*(nx-1)*4 and results ny*sites*4
// ([function][site][derivative]), zeros after a failure.
#include <cstdio>
#include <vector>

#include "brenn_fitting.h"
#include "cubic_families.h"
#include "driver_files.h"

using namespace brenn::fittest;

namespace {

template <typename T>
int64_t Run(const int64_t* h, const std::vector<double>& bc, const std::vector<double>& xs,
            const std::vector<double>& ys, const std::vector<double>& ics,
            const std::vector<double>& ss, std::vector<double>* coeff, std::vector<double>* res) {
    int64_t family = h[0], nx = h[2], ny = h[3], uniform = h[4], yHint = h[5], bcType = h[6];
    int64_t ns = h[7], sType = h[8];
    std::vector<T> x(xs.begin(), xs.end()), y(ys.size()), ic(ics.begin(), ics.end());
    std::vector<T> b(bc.begin(), bc.end()), s(ss.begin(), ss.end());
    for (int64_t f = 0; f < ny; ++f)
        for (int64_t i = 0; i < nx; ++i)
            y[yHint == FIT_Y_COLUMNS ? i * ny + f : f * nx + i] = static_cast<T>(ys[f * nx + i]);
    if (uniform) x = {x.front(), x.back()};
    std::vector<T> c(ny * (nx - 1) * 4), r(ny * ns * 4);
    FitTaskHandle task = nullptr;
    int32_t status;
    if constexpr (sizeof(T) == sizeof(double))
        status = brenn_df_kernel_dNewTask1D(&task, nx, x.data(), uniform ? FIT_X_UNIFORM : 0, ny,
                                            y.data(), yHint, 0);
    else
        status = brenn_df_kernel_sNewTask1D(&task, nx, x.data(), uniform ? FIT_X_UNIFORM : 0, ny,
                                            y.data(), yHint, 0);
    if (status != 0) return status;
    bool hermite = family == kHermite;
    if constexpr (sizeof(T) == sizeof(double))
        status = brenn_df_kernel_dEditPPSpline1D(task, 4, sType, bcType, b.data(),
                                                 hermite ? FIT_IC_FIRST_DERIVATIVES : 0,
                                                 hermite ? ic.data() : nullptr, c.data(), 0);
    else
        status = brenn_df_kernel_sEditPPSpline1D(task, 4, sType, bcType, b.data(),
                                                 hermite ? FIT_IC_FIRST_DERIVATIVES : 0,
                                                 hermite ? ic.data() : nullptr, c.data(), 0);
    if (status == 0) status = ConstructCubic<T>(static_cast<int>(family), task, 0, nullptr);
    int32_t dorder[4] = {1, 1, 1, 1};
    if (status == 0) {
        if constexpr (sizeof(T) == sizeof(double))
            status = brenn_df_kernel_dDFInterpolate1D(
                task, FIT_CALL_VALUES, 0, ns, s.data(), 0, 4, dorder, nullptr, r.data(),
                FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES, nullptr, nullptr, nullptr, nullptr, nullptr,
                nullptr, nullptr, nullptr, nullptr, nullptr);
        else
            status = brenn_df_kernel_sDFInterpolate1D(
                task, FIT_CALL_VALUES, 0, ns, s.data(), 0, 4, dorder, nullptr, r.data(),
                FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES, nullptr, nullptr, nullptr, nullptr, nullptr,
                nullptr, nullptr, nullptr, nullptr, nullptr);
    }
    brenn_df_kernel_DeleteTask(&task);
    coeff->assign(c.begin(), c.end());
    res->assign(r.begin(), r.end());
    return status;
}

} // namespace

int main(int argc, char** argv) {
    FILE *in, *out;
    if (!OpenDriverFiles(argc, argv, &in, &out)) return 2;
    int64_t h[9];
    while (Read(in, h, 9)) {
        int64_t nx = h[2], ny = h[3], ns = h[7];
        std::vector<double> bc(2), x(nx), y(ny * nx), ic(ny * nx), s(ns);
        if (!Read(in, bc.data(), 2) || !Read(in, x.data(), nx) || !Read(in, y.data(), ny * nx) ||
            !Read(in, ic.data(), ny * nx) || !Read(in, s.data(), ns))
            return 3;
        std::vector<double> c, r;
        int64_t status =
            h[1] ? Run<float>(h, bc, x, y, ic, s, &c, &r) : Run<double>(h, bc, x, y, ic, s, &c, &r);
        c.resize(ny * (nx - 1) * 4);
        r.resize(ny * ns * 4);
        std::fwrite(&status, sizeof(status), 1, out);
        std::fwrite(c.data(), sizeof(double), c.size(), out);
        std::fwrite(r.data(), sizeof(double), r.size(), out);
    }
    std::fclose(in);
    std::fclose(out);
    return 0;
}
