// Quadratic splines in both precisions, over one table of cases: the midpoint form and
// the knot form interpolate, are C1 at their joins and meet their end conditions on
// every storage form of the values and of the partition; interpolation of them
// follows the pieces; the dispatch refusals and the knot checks.
#include <gtest/gtest.h>

#include <cmath>

#include "tests/fitting/fitting_test_util.h"

using namespace brenn::fittest;

namespace {

template <typename T>
class FittingQuadratic : public ::testing::Test {};
TYPED_TEST_SUITE(FittingQuadratic, Precisions, PrecisionNames);

// Derivative k of a piece, in double from the stored coefficients.
template <typename T>
double Poly(const T* c, double d, int k) {
    if (k == 0) return c[0] + d * (c[1] + d * static_cast<double>(c[2]));
    if (k == 1) return c[1] + 2.0 * c[2] * d;
    return 2.0 * c[2];
}

struct Shape {
    int64_t xHint, yHint, nx, ny;
};

std::vector<Shape> Shapes(std::initializer_list<int64_t> nxs) {
    std::vector<Shape> shapes;
    for (int64_t xHint : {FIT_X_NO_HINT, FIT_X_UNIFORM})
        for (int64_t yHint : {FIT_Y_ROWS, FIT_Y_COLUMNS})
            for (int64_t nx : nxs)
                for (int64_t ny : {1, 3})
                    shapes.push_back({xHint, yHint, nx, ny});
    return shapes;
}

// A task over ny smooth functions on the nodes of a shape, with room for `pieces`
// pieces of each. A uniform partition's nodes are kept here as the interpolation
// rules place them from its two ends; evenNodes spaces the nodes of a full partition
// so too.
template <typename T>
struct Fit {
    Shape shape;
    int64_t pieces;
    std::vector<T> x, y, c;
    T ends[2];
    FitTaskHandle t = nullptr;

    Fit(Shape s, int64_t piecesIn, bool evenNodes) : shape(s), pieces(piecesIn) {
        int64_t nx = s.nx;
        bool even = evenNodes || s.xHint == FIT_X_UNIFORM;
        T a = T(-1.3), b = T(2.9), step = (b - a) / static_cast<T>(nx - 1);
        x.resize(nx);
        for (int64_t i = 0; i < nx; ++i) {
            // Uneven cells, no two more than four times apart.
            double wobble = even || i + 1 == nx ? 0.0 : 0.3 * std::sin(3.0 * i);
            x[i] = i + 1 == nx ? b : a + static_cast<T>(i + wobble) * step;
        }
        ends[0] = x.front();
        ends[1] = x.back();
        y.resize(nx * s.ny);
        for (int64_t f = 0; f < s.ny; ++f)
            for (int64_t j = 0; j < nx; ++j)
                Y(f, j) = static_cast<T>(std::sin((f + 1) * double(x[j])) + 0.1 * double(x[j]));
        c.assign(3 * pieces * s.ny, T(-99));
        EXPECT_EQ(NewTask<T>(&t, nx, s.xHint == FIT_X_UNIFORM ? ends : x.data(), s.xHint, s.ny,
                             y.data(), s.yHint),
                  0);
    }
    ~Fit() { brenn_df_kernel_DeleteTask(&t); }

    T& Y(int64_t f, int64_t j) {
        return shape.yHint == FIT_Y_COLUMNS ? y[j * shape.ny + f] : y[f * shape.nx + j];
    }
    const T* Piece(int64_t f, int64_t j) const { return &c[(f * pieces + j) * 3]; }
    double Scale(int64_t f) const {
        double s = 1;
        for (int64_t k = 0; k < 3 * pieces; ++k)
            s = std::max(s, std::fabs(double(c[f * 3 * pieces + k])));
        return s;
    }
};

std::string Describe(const Shape& s) {
    return "xHint " + std::to_string(s.xHint) + " yHint " + std::to_string(s.yHint) + " nx " +
           std::to_string(s.nx) + " ny " + std::to_string(s.ny);
}

TYPED_TEST(FittingQuadratic, MidpointFormInterpolatesAndIsSmooth) {
    using T = TypeParam;
    // 5000 points: the work array is allocated rather than on the stack.
    for (Shape s : Shapes({2, 3, 50, 5000})) {
        SCOPED_TRACE(Describe(s));
        Fit<T> fit(s, s.nx - 1, false);
        T bc[1] = {T(0.7)};
        ASSERT_EQ(EditPP<T>(fit.t, 3, 0, FIT_BC_MID_VALUE, bc, 0, nullptr, fit.c.data()), 0);
        ASSERT_EQ(Quadratic<T>(fit.t, nullptr), 0);
        const std::vector<T>& x = fit.x;
        for (int64_t f = 0; f < s.ny; ++f) {
            // Values are met to rounding; the C1 joins to rounding over the step, as
            // each midpoint value comes from the cell before through a division by it.
            double tol = 64 * kEps<T> * fit.Scale(f);
            ASSERT_NEAR(Poly(fit.Piece(f, 0), (double(x[1]) - x[0]) / 2, 0), 0.7, tol);
            for (int64_t i = 0; i + 1 < s.nx; ++i) {
                double h = double(x[i + 1]) - x[i];
                const T* p = fit.Piece(f, i);
                ASSERT_EQ(p[0], fit.Y(f, i)) << f << " " << i;
                ASSERT_NEAR(Poly(p, h, 0), fit.Y(f, i + 1), tol) << f << " " << i;
                if (i + 2 < s.nx)
                    ASSERT_NEAR(Poly(p, h, 1), fit.Piece(f, i + 1)[1], tol / h) << f << " " << i;
            }
        }
    }
}

enum KnotSource { kGivenKnots, kEvenKnots, kMidpointKnots };

struct KnotCase {
    int64_t bcType;
    bool leftFirst, rightFirst;
};

TYPED_TEST(FittingQuadratic, KnotFormInterpolatesIsSmoothAndMeetsItsEnds) {
    using T = TypeParam;
    for (KnotCase kc :
         {KnotCase{12, true, true}, {36, true, false}, {24, false, true}, {48, false, false}})
        for (KnotSource source : {kGivenKnots, kEvenKnots, kMidpointKnots})
            for (Shape s : Shapes({2, 3, 40})) {
                SCOPED_TRACE(Describe(s) + " bcType " + std::to_string(kc.bcType) + " knots " +
                             std::to_string(source));
                int64_t nx = s.nx;
                Fit<T> fit(s, nx, source == kEvenKnots);
                const std::vector<T>& x = fit.x;
                std::vector<T> knots(nx + 1);
                std::vector<double> knot(nx + 1); // as the pieces are placed
                knot[0] = x[0];
                knot[nx] = x[nx - 1];
                for (int64_t j = 1; j < nx; ++j) {
                    if (source == kGivenKnots)
                        knot[j] = static_cast<T>(x[j - 1] + T(0.3) * (x[j] - x[j - 1]));
                    else if (source == kEvenKnots)
                        knot[j] = x[0] + j * (double(x[nx - 1]) - x[0]) / nx;
                    else
                        knot[j] = (double(x[j - 1]) + x[j]) / 2;
                }
                for (int64_t j = 0; j <= nx; ++j)
                    knots[j] = static_cast<T>(knot[j]);
                if (source == kEvenKnots) knots[1] = x[nx - 1];
                T bc[2] = {T(0.25), T(-0.5)};
                int64_t icType =
                    source == kEvenKnots ? FIT_IC_KNOTS | FIT_IC_UNIFORM : FIT_IC_KNOTS;
                if (source == kMidpointKnots) {
                    ASSERT_EQ(EditPP<T>(fit.t, 3, 1, kc.bcType, bc, 0, nullptr, fit.c.data()), 0);
                    ASSERT_EQ(brenn_df_kernel_iEditVal(fit.t, FIT_PARAM_ICTYPE, icType), 0);
                } else {
                    ASSERT_EQ(
                        EditPP<T>(fit.t, 3, 1, kc.bcType, bc, icType, knots.data(), fit.c.data()),
                        0);
                }
                ASSERT_EQ(Quadratic<T>(fit.t, nullptr), 0);

                std::vector<T> sites = RandomSites<T>(300, 5, x[0] - 1, x[nx - 1] + 1);
                std::vector<T> r(sites.size() * s.ny);
                ASSERT_EQ(Interpolate<T>(fit.t, FIT_CALL_VALUES, sites.size(), sites.data(), 0, 0,
                                         nullptr, r.data(), 0, nullptr, nullptr),
                          0);
                for (int64_t f = 0; f < s.ny; ++f) {
                    double scale = fit.Scale(f);
                    double tol = 64 * kEps<T> * scale;
                    for (int64_t j = 0; j < nx; ++j) {
                        const T* p = fit.Piece(f, j);
                        double len = knot[j + 1] - knot[j];
                        ASSERT_NEAR(Poly(p, x[j] - knot[j], 0), fit.Y(f, j), tol) << "node " << j;
                        if (j + 1 < nx) {
                            const T* q = fit.Piece(f, j + 1);
                            ASSERT_NEAR(Poly(p, len, 0), q[0], tol) << "C0 " << j;
                            ASSERT_NEAR(Poly(p, len, 1), q[1], tol / len) << "C1 " << j;
                        }
                    }
                    double lastLen = x[nx - 1] - knot[nx - 1];
                    double firstLen = knot[1] - knot[0];
                    ASSERT_NEAR(Poly(fit.Piece(f, 0), 0, kc.leftFirst ? 1 : 2), 0.25,
                                tol / (firstLen * (kc.leftFirst ? 1 : firstLen)));
                    ASSERT_NEAR(Poly(fit.Piece(f, nx - 1), lastLen, kc.rightFirst ? 1 : 2), -0.5,
                                tol / (lastLen * (kc.rightFirst ? 1 : lastLen)));

                    // Interpolation takes each site's piece by the knots.
                    for (size_t i = 0; i < sites.size(); ++i) {
                        int64_t j = 0;
                        while (j + 1 < nx && sites[i] >= knot[j + 1])
                            ++j;
                        ASSERT_NEAR(r[f * sites.size() + i],
                                    Poly(fit.Piece(f, j), sites[i] - knot[j], 0), 4 * tol)
                            << "site " << sites[i];
                    }
                }
            }
}

TYPED_TEST(FittingQuadratic, Refusals) {
    using T = TypeParam;
    std::vector<T> x = {0, 1, 2, 3}, y = {0, 1, 0, 1}, c(12);
    T bc[2] = {0, 0};
    std::vector<T> knots = {0, 0.5, 1.5, 2.5, 3};
    FitTaskHandle t = nullptr;
    ASSERT_EQ(NewTask<T>(&t, 4, x.data(), 0, 1, y.data(), 16), 0);
    EXPECT_EQ(Quadratic<T>(nullptr, nullptr), FIT_STATUS_NULL_TASK);
    ASSERT_EQ(EditPP<T>(t, 3, 0, 12, bc, 0, nullptr, c.data()), 0);
    EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_BC_TYPE); // midpoint form needs 128
    ASSERT_EQ(EditPP<T>(t, 3, 0, 0, nullptr, 0, nullptr, nullptr), 0);
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_BCTYPE, 128), 0);
    EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_BC);
    for (int64_t type : {2, 3, 9}) {
        ASSERT_EQ(EditPP<T>(t, 3, type, 128, bc, 0, nullptr, nullptr), 0);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_FLAG_REFUSED) << type;
    }

    ASSERT_EQ(EditPP<T>(t, 3, 1, 12, bc, 1, knots.data(), c.data()), 0);
    EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_IC_TYPE);
    for (int64_t bcType : {0, 1, 2, 64, 128, 4, 8, 16, 32, 60}) {
        ASSERT_EQ(EditPP<T>(t, 3, 1, bcType, bc, 8, knots.data(), c.data()), 0);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_BC_TYPE) << bcType;
    }
    for (int64_t bcType : {12, 24, 36, 48}) {
        ASSERT_EQ(EditPP<T>(t, 3, 1, 0, nullptr, 8, knots.data(), c.data()), 0);
        ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_BCTYPE, bcType), 0);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_BC) << bcType;
    }
    ASSERT_EQ(EditPP<T>(t, 3, 1, 12, bc, 8, knots.data(), c.data()), 0);
    ASSERT_EQ(Quadratic<T>(t, nullptr), 0);
    int64_t live = brenn_serv_live_allocations();
    for (int k : {0, 1, 4}) {
        std::vector<T> bad = knots;
        bad[k] = k == 0 ? T(-0.1) : (k == 4 ? T(3.1) : T(1)); // ends off, a knot on a node
        ASSERT_EQ(EditPtr<T>(t, FIT_PARAM_IC, bad.data()), 0);
        c.assign(12, 9);
        EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_BAD_IC) << k;
        EXPECT_EQ(c[0], 9);
    }
    EXPECT_EQ(brenn_serv_live_allocations(), live); // the work area went back
    ASSERT_EQ(brenn_df_kernel_iEditVal(t, FIT_PARAM_YHINT, 32), 0);
    ASSERT_EQ(EditPtr<T>(t, FIT_PARAM_IC, knots.data()), 0);
    brenn_serv_fail_allocation(1);
    EXPECT_EQ(Quadratic<T>(t, nullptr), FIT_STATUS_NO_MEMORY);
    brenn_serv_fail_allocation(0);
    brenn_df_kernel_DeleteTask(&t);
}

} // namespace
