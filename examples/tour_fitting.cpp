// Tour step of data fitting: a task over a partition, a linear and a quadratic spline
// of a function given by its values, and both evaluated with derivatives at a few
// sites, one of them outside the partition.
#include <cmath>
#include <cstdio>

#include "brenn_fitting.h"

void TourFitting() {
    const int64_t nx = 9;
    double x[nx], y[nx];
    for (int64_t i = 0; i < nx; ++i) {
        x[i] = 0.5 * i;
        y[i] = std::sin(x[i]);
    }
    FitTaskHandle task = nullptr;
    if (brenn_df_kernel_dNewTask1D(&task, nx, x, FIT_X_NON_UNIFORM, 1, y, FIT_Y_ROWS, 0) != 0) {
        std::printf("fitting: could not make a task\n");
        return;
    }
    double linear[2 * (nx - 1)];
    brenn_df_kernel_dEditPPSpline1D(task, FIT_ORDER_LINEAR, FIT_TYPE_DEFAULT, FIT_BC_NONE, nullptr,
                                    FIT_IC_NONE, nullptr, linear, FIT_Y_ROWS);
    int32_t status = brenn_df_kernel_dDFLinearSpline1D(task, 0, 0, nullptr);
    double sites[4] = {0.3, 1.7, 4.0, 4.6};
    int32_t dorder[2] = {1, 1}; // the value and the first derivative
    double result[8];
    int32_t cells[4];
    status = status ? status
                    : brenn_df_kernel_dDFInterpolate1D(
                          task, FIT_CALL_VALUES | FIT_CALL_CELLS, 0, 4, sites, 0, 2, dorder,
                          nullptr, result, FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES, cells, nullptr,
                          nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr);
    std::printf("fitting: linear spline of sin on %d nodes (status %d)\n", static_cast<int>(nx),
                status);
    for (int i = 0; i < 4; ++i)
        std::printf("  s = %.2f  cell %d  value %+.5f  slope %+.5f  (sin %+.5f)\n", sites[i],
                    cells[i], result[2 * i], result[2 * i + 1], std::sin(sites[i]));

    // The quadratic of the midpoint form, given its value in the middle of cell 0.
    double quadratic[3 * (nx - 1)];
    double midValue[1] = {std::sin(0.25)};
    brenn_df_kernel_dEditPPSpline1D(task, FIT_ORDER_QUADRATIC, FIT_TYPE_DEFAULT, FIT_BC_MID_VALUE,
                                    midValue, FIT_IC_NONE, nullptr, quadratic, FIT_Y_ROWS);
    status = brenn_df_kernel_dDFQuadraticSpline1D(task, 0, 0, nullptr);
    status = status ? status
                    : brenn_df_kernel_dDFInterpolate1D(task, FIT_CALL_VALUES, 0, 4, sites, 0, 2,
                                                       dorder, nullptr, result, 0, nullptr, nullptr,
                                                       nullptr, nullptr, nullptr, nullptr, nullptr,
                                                       nullptr, nullptr, nullptr);
    std::printf("fitting: quadratic spline (status %d)\n", status);
    for (int i = 0; i < 4; ++i)
        std::printf("  s = %.2f  value %+.5f  slope %+.5f  (cos %+.5f)\n", sites[i], result[2 * i],
                    result[2 * i + 1], std::cos(sites[i]));

    // Cubics: the natural spline (free ends) and Akima's, values and slopes.
    double cubic[4 * (nx - 1)];
    const char* names[2] = {"natural", "Akima"};
    for (int k = 0; k < 2; ++k) {
        brenn_df_kernel_dEditPPSpline1D(
            task, FIT_ORDER_CUBIC, k ? FIT_TYPE_CUBIC_AKIMA : FIT_TYPE_CUBIC_NATURAL,
            k ? FIT_BC_NONE : FIT_BC_FREE_END, nullptr, FIT_IC_NONE, nullptr, cubic, FIT_Y_ROWS);
        status = k ? brenn_df_kernel_dDFAkimaCubicSpline1D(task, 0, 0, nullptr)
                   : brenn_df_kernel_dDFNaturalCubicSpline1D(task, 0, 0, nullptr);
        status = status ? status
                        : brenn_df_kernel_dDFInterpolate1D(
                              task, FIT_CALL_VALUES, 0, 4, sites, 0, 2, dorder, nullptr, result, 0,
                              nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr,
                              nullptr, nullptr, nullptr);
        std::printf("fitting: %s cubic spline (status %d)\n", names[k], status);
        for (int i = 0; i < 4; ++i)
            std::printf("  s = %.2f  value %+.5f  slope %+.5f\n", sites[i], result[2 * i],
                        result[2 * i + 1]);
    }
    brenn_df_kernel_DeleteTask(&task);
}
