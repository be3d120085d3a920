// Cubic splines in both precisions, beside the scipy comparison (cubic_scipy_check.py):
// the end conditions of the local families on every storage form, Bessel's exact
// quadratics, Hyman's monotone cells, Akima on a line, natural equal to default to the
// bit, the same bits from every threader, and the statuses of dispatch and workers.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>

#include "fitting/task.h"
#include "platform/serv.h"
#include "tests/fitting/cubic_families.h"
#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingCubic : public ::testing::Test {};
TYPED_TEST_SUITE(FittingCubic, Precisions, PrecisionNames);

// A task of ny functions f(x) * (1 + k/4) on nx nodes in [a, b], uneven cells unless
// uniform (then the nodes where evaluation puts them), with a cubic's coefficients.
template <typename T>
struct CubicFit {
    int64_t nx, ny, yHint;
    bool uniform;
    std::vector<T> x, y, c, bc, ic, ends; // ends: what a uniform task holds
    FitTaskHandle t = nullptr;

    CubicFit(int64_t nxIn, int64_t nyIn, bool uniformIn, int64_t yHintIn,
             const std::function<double(double)>& f, double a = -1.0, double b = 2.0)
        : nx(nxIn), ny(nyIn), yHint(yHintIn), uniform(uniformIn) {
        x.resize(nx);
        T step = (T(b) - T(a)) / static_cast<T>(nx - 1);
        for (int64_t i = 0; i < nx; ++i) {
            double wobble = uniform || i == 0 || i + 1 == nx ? 0.0 : 0.3 * std::sin(3.0 * i);
            x[i] = uniform ? T(a) + static_cast<T>(i) * step
                           : static_cast<T>(a + (b - a) * (i + wobble) / (nx - 1));
        }
        x[nx - 1] = T(b);
        y.resize(nx * ny);
        for (int64_t k = 0; k < ny; ++k)
            for (int64_t i = 0; i < nx; ++i)
                At(k, i) = static_cast<T>(f(x[i]) * (1.0 + 0.25 * k));
        c.assign(ny * (nx - 1) * 4, T(7));
        ic.assign(nx * ny, T(0));
        bc = {T(0), T(0)};
        ends = {x.front(), x.back()};
        EXPECT_EQ(NewTask<T>(&t, nx, uniform ? ends.data() : x.data(),
                             uniform ? FIT_X_UNIFORM : FIT_X_NO_HINT, ny, y.data(), yHint),
                  0);
    }
    ~CubicFit() { brenn_df_kernel_DeleteTask(&t); }
    T& At(int64_t f, int64_t i) { return yHint == FIT_Y_COLUMNS ? y[i * ny + f] : y[f * nx + i]; }
    T Y(int64_t f, int64_t i) const {
        return yHint == FIT_Y_COLUMNS ? y[i * ny + f] : y[f * nx + i];
    }
    const T* Cell(int64_t f, int64_t i) const { return c.data() + (f * (nx - 1) + i) * 4; }

    // The description of the family's spline (sType -1: the family's own).
    int32_t Edit(int family, int64_t bcType, int64_t sType = -1) {
        bool hermite = family == kHermite;
        return EditPP<T>(t, 4, sType >= 0 ? sType : CubicInfo(family).sType, bcType, bc.data(),
                         hermite ? FIT_IC_FIRST_DERIVATIVES : 0, hermite ? ic.data() : nullptr,
                         c.data());
    }
    int32_t Build(int family, int64_t bcType, int64_t sType = -1, const threader* thr = nullptr) {
        if (int32_t s = Edit(family, bcType, sType)) return s;
        return ConstructCubic<T>(family, t, 0, thr);
    }
};

// Derivative k of a cell's cubic at distance d from its left node, in double.
template <typename T>
double Cubic(const T* c, double d, int k) {
    double c0 = c[0], c1 = c[1], c2 = c[2], c3 = c[3];
    switch (k) {
    case 0:
        return c0 + d * (c1 + d * (c2 + d * c3));
    case 1:
        return c1 + d * (2 * c2 + 3 * d * c3);
    case 2:
        return 2 * c2 + 6 * c3 * d;
    default:
        return 6 * c3;
    }
}

constexpr int kLocal[] = {kAkima, kBessel, kHyman, kHermite};

// Every local family meets each end condition: first and second derivatives as given,
// zero curvature at a free end, the end cell's cubic through the third node from its
// end (not-a-knot), value and slope equal across the seam (periodic). Smooth increasing
// data, so that Hyman's filter leaves the ends alone.
TYPED_TEST(FittingCubic, LocalFamiliesMeetTheirEndConditions) {
    using T = TypeParam;
    auto f = [](double v) { return std::exp(v / 3) + v; };
    auto fp = [](double v) { return std::exp(v / 3) / 3 + 1; };
    auto fpp = [](double v) { return std::exp(v / 3) / 9; };
    double tol = 300 * kEps<T>;
    for (int family : kLocal)
        for (bool uniform : {false, true})
            for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_COLUMNS})
                for (int64_t nx : {CubicInfo(family).leastNx, int64_t(40)})
                    for (int column = 0; column < 7; ++column) {
                        bool periodic = column == 6;
                        CubicFit<T> fit(nx, 3, uniform, yHint,
                                        periodic ? [](double v) { return std::cos(2 * v); }
                                                 : std::function<double(double)>(f),
                                        -1.0, periodic ? -1.0 + M_PI : 2.0);
                        if (periodic)
                            for (int64_t k = 0; k < 3; ++k)
                                fit.At(k, nx - 1) = fit.At(k, 0);
                        for (int64_t k = 0; k < 3; ++k)
                            for (int64_t i = 0; i < nx; ++i)
                                fit.ic[k * nx + i] = static_cast<T>(fp(fit.x[i]));
                        bool leftFirst = column == 2 || column == 3;
                        bool rightFirst = column == 2 || column == 4;
                        fit.bc = {static_cast<T>(leftFirst ? fp(-1.0) : fpp(-1.0)),
                                  static_cast<T>(rightFirst ? fp(2.0) : fpp(2.0))};
                        SCOPED_TRACE(testing::Message() << CubicInfo(family).name << " nx " << nx
                                                        << " uniform " << uniform << " yHint "
                                                        << yHint << " bcType " << kBcTypes[column]);
                        ASSERT_EQ(fit.Build(family, kBcTypes[column]), 0);
                        double h0 = fit.x[1] - fit.x[0], hn = fit.x[nx - 1] - fit.x[nx - 2];
                        for (int64_t k = 0; k < 3; ++k) {
                            const T* first = fit.Cell(k, 0);
                            const T* last = fit.Cell(k, nx - 2);
                            auto near = [&](double got, double want, double size) {
                                EXPECT_NEAR(got, want, tol * (std::fabs(want) + size));
                            };
                            double bigLeft =
                                std::fabs(first[1]) / h0 + std::fabs(first[0]) / h0 / h0;
                            double bigRight =
                                std::fabs(last[1]) / hn + std::fabs(last[0]) / hn / hn;
                            switch (column) {
                            case 0:
                                near(Cubic(first, fit.x[2] - fit.x[0], 0), fit.Y(k, 2), 1);
                                near(Cubic(last, fit.x[nx - 3] - fit.x[nx - 2], 0),
                                     fit.Y(k, nx - 3), 1);
                                break;
                            case 1:
                                near(Cubic(first, 0, 2), 0, bigLeft);
                                near(Cubic(last, hn, 2), 0, bigRight);
                                break;
                            case 6:
                                near(Cubic(last, hn, 0), first[0], 1);
                                near(Cubic(last, hn, 1), first[1], std::fabs(first[1]) + 1);
                                break;
                            default:
                                near(Cubic(first, 0, leftFirst ? 1 : 2), fit.bc[0],
                                     leftFirst ? 1 : bigLeft);
                                near(Cubic(last, hn, rightFirst ? 1 : 2), fit.bc[1],
                                     rightFirst ? 1 : bigRight);
                            }
                        }
                    }
}

// Bessel's derivatives are exact on a parabola, so are the not-a-knot end, exact first
// or second derivatives and the end parabolas of column 7: the cubic is the parabola.
TYPED_TEST(FittingCubic, BesselReproducesQuadratics) {
    using T = TypeParam;
    auto q = [](double v) { return 1 + 2 * v - 3 * v * v; };
    double tol = 200 * kEps<T>;
    for (bool uniform : {false, true})
        for (int64_t nx : {4, 5, 33})
            for (int column : {0, 2, 5, 7}) {
                CubicFit<T> fit(nx, 1, uniform, FIT_Y_ROWS, q);
                fit.bc = column == 5 ? std::vector<T>{T(-6), T(-6)}
                                     : std::vector<T>{T(2 + 6.0), T(2 - 12.0)};
                ASSERT_EQ(fit.Build(kBessel, kBcTypes[column]), 0);
                for (int64_t i = 0; i + 1 < nx; ++i) {
                    const T* cell = fit.Cell(0, i);
                    double xi = fit.x[i];
                    EXPECT_NEAR(cell[1], 2 - 6 * xi, tol * 20) << column << " cell " << i;
                    EXPECT_NEAR(cell[2], -3, tol * 20 * nx) << column << " cell " << i;
                    EXPECT_NEAR(cell[3], 0, tol * 20 * nx * nx) << column << " cell " << i;
                }
            }
}

// Hyman's cells follow monotone data, flat runs and steep jumps included, either way,
// with every end condition that computes the end derivative.
TYPED_TEST(FittingCubic, HymanKeepsMonotoneDataMonotone) {
    using T = TypeParam;
    const double steps[] = {0, 0, 0.1, 5, 0, 0, 0.01, 0.02, 3, 3, 0, 0.5, 20, 0, 0.001};
    for (double sign : {1.0, -1.0})
        for (bool uniform : {false, true})
            for (int column : {0, 1, 7}) {
                int64_t nx = std::size(steps) + 1;
                CubicFit<T> fit(nx, 1, uniform, FIT_Y_ROWS, [](double) { return 0.0; });
                double acc = 0;
                for (int64_t i = 0; i < nx; ++i) {
                    fit.At(0, i) = static_cast<T>(sign * acc);
                    if (i + 1 < nx) acc += steps[i];
                }
                ASSERT_EQ(fit.Build(kHyman, kBcTypes[column]), 0);
                for (int64_t i = 0; i + 1 < nx; ++i) {
                    const T* cell = fit.Cell(0, i);
                    double h = fit.x[i + 1] - fit.x[i];
                    double prev = Cubic(cell, 0, 0);
                    for (int j = 1; j <= 64; ++j) {
                        double v = Cubic(cell, h * j / 64, 0);
                        double slack = 50 * kEps<T> * (std::fabs(v) + 1);
                        EXPECT_GE(sign * (v - prev), -slack)
                            << "bcType " << kBcTypes[column] << " cell " << i << " step " << j;
                        prev = v;
                    }
                }
            }
}

// On a line every Akima weight is zero: each node takes the mean of its slopes, and the
// cubic is the line.
TYPED_TEST(FittingCubic, AkimaOnALineIsTheLine) {
    using T = TypeParam;
    for (bool uniform : {false, true}) {
        CubicFit<T> fit(9, 2, uniform, FIT_Y_COLUMNS, [](double v) { return 0.5 - 1.5 * v; });
        ASSERT_EQ(fit.Build(kAkima, FIT_BC_NONE), 0);
        for (int64_t k = 0; k < 2; ++k)
            for (int64_t i = 0; i < 8; ++i) {
                EXPECT_NEAR(fit.Cell(k, i)[1], -1.5 * (1 + 0.25 * k), 20 * kEps<T>);
                EXPECT_NEAR(fit.Cell(k, i)[3], 0, 200 * kEps<T>);
            }
    }
}

// The natural and the default cubic are one construction: equal coefficients to the
// bit, on every column, storage form and partition.
TYPED_TEST(FittingCubic, NaturalEqualsDefaultInBits) {
    using T = TypeParam;
    for (bool uniform : {false, true})
        for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_COLUMNS})
            for (int64_t nx : {3, 4, 7, 300})
                for (int column = 0; column < 7; ++column) {
                    auto f = [](double v) { return std::sin(3 * v) + 0.1 * v * v; };
                    CubicFit<T> a(nx, 3, uniform, yHint, f, 0.0, 2 * M_PI / 3);
                    CubicFit<T> b(nx, 3, uniform, yHint, f, 0.0, 2 * M_PI / 3);
                    for (CubicFit<T>* fit : {&a, &b}) {
                        fit->bc = {T(0.5), T(-0.25)};
                        for (int64_t k = 0; k < 3; ++k)
                            fit->At(k, nx - 1) = fit->At(k, 0);
                    }
                    ASSERT_EQ(a.Build(kNatural, kBcTypes[column]), 0);
                    ASSERT_EQ(b.Build(kDefault, kBcTypes[column]), 0);
                    EXPECT_EQ(std::memcmp(a.c.data(), b.c.data(), a.c.size() * sizeof(T)), 0)
                        << "nx " << nx << " bcType " << kBcTypes[column];
                }
}

// The blocked cell loop gives the same bits whether the blocks run on the calling
// thread, through the serial threader or through the pool; 17 functions of 3000 nodes
// make 15 blocks.
TYPED_TEST(FittingCubic, EveryThreaderGivesTheSameBits) {
    using T = TypeParam;
    for (int family = 0; family < kCubicFamilies; ++family)
        for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_COLUMNS}) {
            std::vector<T> first;
            for (const threader* thr : Threaders()) {
                CubicFit<T> fit(3000, 17, false, yHint, [](double v) { return std::cos(5 * v); });
                fit.bc = {T(1), T(2)};
                for (int64_t i = 0; i < 3000 * 17; ++i)
                    fit.ic[i] = static_cast<T>(std::sin(0.01 * i));
                ASSERT_EQ(fit.Build(family, 48, -1, thr), 0);
                if (first.empty())
                    first = fit.c;
                else
                    EXPECT_EQ(std::memcmp(first.data(), fit.c.data(), first.size() * sizeof(T)), 0)
                        << CubicInfo(family).name;
            }
        }
}

// Dispatch, in order: task, flags (natural), nx, the storage hint, the boundary code,
// its values, Hermite's derivatives, flags (default); a refusal writes nothing.
TYPED_TEST(FittingCubic, DispatchStatusesInOrder) {
    using T = TypeParam;
    for (int family = 0; family < kCubicFamilies; ++family) {
        const CubicFamilyInfo& info = CubicInfo(family);
        bool global = family == kNatural || family == kDefault;
        SCOPED_TRACE(info.name);
        EXPECT_EQ(ConstructCubic<T>(family, nullptr, 0, nullptr), FIT_STATUS_NULL_TASK);
        struct Case {
            int64_t nx, yHint, bcType, sType;
            bool nullBc, hermiteIc;
            int64_t icType, flags;
            int32_t status;
        };
        int64_t least = info.leastNx, st = info.sType;
        std::vector<Case> cases = {
            {least - 1, 64, 4, st, true, true, 1, 0, FIT_STATUS_BAD_NX},
            {least, 64, 4, st, true, true, 1, 0, FIT_STATUS_BAD_Y_HINT},
            {least, FIT_Y_ROWS, 4, st, true, true, 1, 0, FIT_STATUS_BAD_BC_TYPE},
            {least, FIT_Y_ROWS, 128, st, true, true, 1, 0, FIT_STATUS_BAD_BC_TYPE},
            {least, FIT_Y_ROWS, 3, st, false, true, 1, 0, FIT_STATUS_BAD_BC_TYPE},
            {least, FIT_Y_ROWS, 0, st, false, true, 1, 0,
             global ? FIT_STATUS_BAD_BC_TYPE : FIT_STATUS_OK},
            {least, FIT_Y_ROWS, 64, st, false, true, 1, 0, FIT_STATUS_OK},
            {least, FIT_Y_ROWS, 2, st, true, true, 1, 0, FIT_STATUS_OK},
            {least, FIT_Y_ROWS, 64, 9, true, true, 1, 0, FIT_STATUS_OK},
            {least, FIT_Y_ROWS, 64, 0, true, true, 1, 0,
             global ? FIT_STATUS_OK : FIT_STATUS_BAD_BC},
            {least, FIT_Y_ROWS, 64, 3, true, true, 1, 0,
             global ? FIT_STATUS_OK : FIT_STATUS_BAD_BC},
        };
        for (int64_t bcType : {12, 24, 36, 48})
            cases.push_back({least, FIT_Y_ROWS, bcType, st, true, true, 1, 0, FIT_STATUS_BAD_BC});
        if (family == kNatural) {
            cases.push_back({1, 64, 4, st, true, true, 1, 1, FIT_STATUS_FLAG_REFUSED});
            cases.push_back({2, FIT_Y_ROWS, 1, st, false, true, 1, 0, FIT_STATUS_BAD_NX});
            cases.push_back({2, FIT_Y_ROWS, 2, st, false, true, 1, 0, FIT_STATUS_OK});
        }
        if (family == kDefault) {
            cases.push_back({least - 1, 64, 4, st, true, true, 1, 1, FIT_STATUS_BAD_NX});
            cases.push_back({least, FIT_Y_ROWS, 2, st, false, true, 1, 1, FIT_STATUS_FLAG_REFUSED});
        }
        if (family == kHermite) {
            cases.push_back({least, FIT_Y_ROWS, 2, st, false, true, 2, 0, FIT_STATUS_BAD_IC_TYPE});
            cases.push_back({least, FIT_Y_ROWS, 2, st, false, false, 1, 0, FIT_STATUS_BAD_IC});
            cases.push_back({least, FIT_Y_ROWS, 12, st, true, false, 2, 0, FIT_STATUS_BAD_BC});
        } else {
            cases.push_back({least, FIT_Y_ROWS, 2, st, false, true, 2, 0, FIT_STATUS_OK});
        }
        for (const Case& k : cases) {
            int64_t nx = std::max<int64_t>(k.nx, 2);
            CubicFit<T> fit(nx, 2, false, FIT_Y_ROWS, [](double v) { return v * v; });
            for (int64_t f = 0; f < 2; ++f)
                fit.At(f, nx - 1) = fit.At(f, 0); // a periodic condition holds
            auto* task = static_cast<brenn::fit::FittingTask*>(fit.t);
            task->nx = k.nx;
            // A valid description first; then the fields of the case, as they stand.
            ASSERT_EQ(fit.Edit(family, 2, k.sType), 0);
            task->bcType = k.bcType;
            task->bc = k.nullBc ? nullptr : fit.bc.data();
            if (family == kHermite) task->icType = k.icType;
            if (!k.hermiteIc) task->ic = nullptr;
            task->yHint = k.yHint;
            std::vector<T> before = fit.c;
            int32_t got = ConstructCubic<T>(family, fit.t, k.flags, nullptr);
            task->yHint = FIT_Y_ROWS;
            EXPECT_EQ(got, k.status) << "nx " << k.nx << " yHint " << k.yHint << " bcType "
                                     << k.bcType << " sType " << k.sType << " flags " << k.flags;
            if (got != 0) EXPECT_EQ(fit.c, before);
        }
    }
}

// A periodic condition whose ends differ by one bit in one function (the second) gives
// -1018 before any coefficient is written, on every worker path; a failed work array
// gives -1001 with nothing written and nothing left allocated.
TYPED_TEST(FittingCubic, WorkerFailuresWriteNothing) {
    using T = TypeParam;
    for (int family = 0; family < kCubicFamilies; ++family)
        for (bool uniform : {false, true})
            for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_COLUMNS}) {
                SCOPED_TRACE(testing::Message() << CubicInfo(family).name << " uniform " << uniform
                                                << " yHint " << yHint);
                int64_t nx = 12;
                CubicFit<T> fit(nx, 2, uniform, yHint, [](double v) { return std::sin(v); });
                fit.bc = {T(1), T(1)};
                fit.At(1, nx - 1) = fit.At(1, 0);
                fit.At(0, nx - 1) = std::nextafter(fit.At(0, 0), T(5));
                std::vector<T> before = fit.c;
                EXPECT_EQ(fit.Build(family, 64), FIT_STATUS_BAD_PERIODIC_VAL);
                EXPECT_EQ(fit.c, before);
                fit.At(0, nx - 1) = fit.At(0, 0);
                bool global = family == kNatural || family == kDefault;
                for (int column = 0; column < (global ? 7 : 8); ++column) {
                    int64_t live = brenn_serv_live_allocations();
                    ASSERT_EQ(fit.Edit(family, kBcTypes[column]), 0);
                    brenn_serv_fail_allocation(1);
                    EXPECT_EQ(ConstructCubic<T>(family, fit.t, 0, nullptr), FIT_STATUS_NO_MEMORY)
                        << kBcTypes[column];
                    brenn_serv_fail_allocation(0);
                    EXPECT_EQ(fit.c, before);
                    EXPECT_EQ(brenn_serv_live_allocations(), live);
                    EXPECT_EQ(fit.Build(family, kBcTypes[column]), 0);
                    fit.c = before;
                }
            }
}

} // namespace
