// Known answers of Sobol and Niederr against GSL's gsl_qrng_sobol (30 bits) and
// gsl_qrng_niederreiter_2 (31 bits, from its zero point), and the (t, m, s)-net
// property of coordinates and pairs beyond GSL's dimensions, its bounds checked on
// GSL's own points.
#include <algorithm>

#include <gsl/gsl_qrng.h>

#include "tests/rng/qrng_harness.h"

namespace brenn::test {
namespace {

constexpr int kPoints = 1 << 20;
constexpr int kBatch = 4096; // points a request

// Our words shifted right by `shift` against GSL's coordinates times 2^(32 - shift),
// over the first 2^20 points of every dimension up to maxDim.
void ExpectGslPoints(int32_t id, const gsl_qrng_type* type, int maxDim, int shift, bool dropZero) {
    const double scale = static_cast<double>(1u << (32 - shift - 1)) * 2.0;
    for (int dim = 1; dim <= maxDim; ++dim) {
        void* s = NewQrng(id, {static_cast<uint32_t>(dim)});
        gsl_qrng* q = gsl_qrng_alloc(type, dim);
        std::vector<double> x(dim);
        if (dropZero) gsl_qrng_get(q, x.data());
        int bad = 0;
        for (int p = 0; p < kPoints && bad == 0; p += kBatch) {
            QWords w = Draw(id, s, kBatch * dim);
            for (int k = 0; k < kBatch; ++k) {
                gsl_qrng_get(q, x.data());
                for (int j = 0; j < dim; ++j)
                    if ((w[k * dim + j] >> shift) != static_cast<uint32_t>(x[j] * scale) &&
                        bad++ == 0)
                        ADD_FAILURE() << "dimension " << dim << " point " << p + k + 1
                                      << " coordinate " << j + 1;
            }
        }
        gsl_qrng_free(q);
        __qesDeleteStream(&s);
    }
}

TEST(QrngGsl, SobolEveryDimensionMatchesGsl) {
    ExpectGslPoints(QES_BRNG_SOBOL, gsl_qrng_sobol, 40, 2, false);
}

TEST(QrngGsl, NiederrMatchesGslAfterItsZeroPoint) {
    ExpectGslPoints(QES_BRNG_NIEDERR, gsl_qrng_niederreiter_2, 12, 1, true);
}

TEST(QrngGsl, FirstPointIsOneHalfEverywhere) {
    for (int32_t id : {QES_BRNG_SOBOL, QES_BRNG_NIEDERR}) {
        void* s = NewQrng(id, {40});
        std::vector<double> d(40);
        std::vector<float> f(40);
        if (id == QES_BRNG_SOBOL) {
            ASSERT_EQ(__qesdBRngSobol(s, 40, d.data(), 0.0, 1.0), 0);
            ASSERT_EQ(__qessBRngSobol(s, 40, f.data(), 0.0f, 1.0f), 0);
            for (int j = 0; j < 40; ++j)
                EXPECT_EQ(d[j], 0.5) << j;
        } else {
            // Niederr's first coordinates are 0.5 too; the later ones are not.
            ASSERT_EQ(__qesdBRngNiederr(s, 40, d.data(), 0.0, 1.0), 0);
            EXPECT_EQ(d[0], 0.5);
            EXPECT_EQ(d[1], 0.5);
        }
        __qesDeleteStream(&s);
    }
}

// The zero point, then the stream's first points - 1 points, as columns.
std::vector<QWords> Columns(int32_t id, int dim, int points) {
    QWords w = FirstQ(id, {static_cast<uint32_t>(dim)}, (points - 1) * dim);
    std::vector<QWords> c(dim, QWords(points, 0));
    for (int k = 1; k < points; ++k)
        for (int j = 0; j < dim; ++j)
            c[j][k] = w[(k - 1) * dim + j];
    return c;
}

// Every block of 2^m points starting at a multiple of 2^m, every split of m - t bits
// between x and y (y empty for one coordinate): each cell holds 2^t points.
bool IsNet(const QWords& x, const QWords* y, int t, int m) {
    if (t >= m) return true;
    const int k = m - t;
    std::vector<int> count(size_t{1} << k);
    for (size_t start = 0; start + (size_t{1} << m) <= x.size(); start += size_t{1} << m)
        for (int kx = y == nullptr ? k : 0; kx <= k; ++kx) {
            const int ky = k - kx;
            std::fill(count.begin(), count.end(), 0);
            for (size_t p = start; p < start + (size_t{1} << m); ++p) {
                uint32_t cx = kx == 0 ? 0 : x[p] >> (32 - kx);
                uint32_t cy = ky == 0 ? 0 : (*y)[p] >> (32 - ky);
                ++count[(cx << ky) | cy];
            }
            for (int c : count)
                if (c != 1 << t) return false;
        }
    return true;
}

// Degrees as the net bound counts them: Sobol's first coordinate has degree 1.
int SobolDegree(uint32_t j) {
    static const int kDegrees[40] = {1, 1, 2, 3, 3, 4, 4, 5, 5, 5, 5, 5, 5, 6, 6, 6, 6, 6, 6, 7,
                                     7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 7, 8, 8, 8};
    return kDegrees[j];
}

int NiederrDegree(uint32_t j) {
    // Irreducible polynomials by degree: 2, 1, 2, 3, 6, 9, 18, 30, 56, 99, ...
    static const int kCount[] = {2, 1, 2, 3, 6, 9, 18, 30, 56, 99, 186};
    int d = 0;
    for (uint32_t seen = 0; seen + kCount[d] <= j; seen += kCount[d++]) {
    }
    return d + 1;
}

// Each coordinate a (t, m, 1)-net with t from `single`, and each pair among the
// first pairDims a (t, m, 2)-net with t the sum of (degree - 1), for m to 12.
void ExpectNets(const std::vector<QWords>& c, const char* name, int (*degree)(uint32_t),
                bool singleTZero, int pairDims) {
    constexpr int kM = 12;
    const int dim = static_cast<int>(c.size());
    for (int j = 0; j < dim; ++j)
        for (int m = 1; m <= kM; ++m)
            ASSERT_TRUE(IsNet(c[j], nullptr, singleTZero ? 0 : degree(j) - 1, m))
                << name << " coordinate " << j + 1 << " m " << m;
    for (int a = 0; a < std::min(dim, pairDims); ++a)
        for (int b = a + 1; b < std::min(dim, pairDims); ++b)
            for (int m = 1; m <= kM; ++m)
                ASSERT_TRUE(IsNet(c[a], &c[b], degree(a) + degree(b) - 2, m))
                    << name << " pair " << a + 1 << ", " << b + 1 << " m " << m;
}

constexpr int kNetPoints = 1 << 12;

TEST(QrngGsl, CoordinatesAndPairsAreNets) {
    ExpectNets(Columns(QES_BRNG_SOBOL, 40, kNetPoints), "Sobol", SobolDegree, true, 40);
    ExpectNets(Columns(QES_BRNG_NIEDERR, 318, kNetPoints), "Niederr", NiederrDegree, false, 64);
}

// GSL's points, the zero point first, as columns of 32-bit words: the coordinates
// carry 30 or 31 bits, so the products are exact.
std::vector<QWords> GslColumns(const gsl_qrng_type* type, int dim, int points, bool zeroFirst) {
    gsl_qrng* q = gsl_qrng_alloc(type, dim);
    std::vector<QWords> c(dim, QWords(points, 0));
    std::vector<double> x(dim);
    for (int k = zeroFirst ? 1 : 0; k < points; ++k) {
        gsl_qrng_get(q, x.data());
        for (int j = 0; j < dim; ++j)
            c[j][k] = static_cast<uint32_t>(x[j] * 4294967296.0);
    }
    gsl_qrng_free(q);
    return c;
}

// The same bounds hold on GSL's own points, so that they are the construction's and
// not ours; and a Niederreiter coordinate alone is not always a (0, m, 1)-net.
TEST(QrngGsl, GslPointsAreNetsWithTheSameBounds) {
    ExpectNets(GslColumns(gsl_qrng_sobol, 40, kNetPoints, true), "GSL Sobol", SobolDegree, true,
               40);
    const auto nie = GslColumns(gsl_qrng_niederreiter_2, 12, kNetPoints, false);
    ExpectNets(nie, "GSL Niederreiter", NiederrDegree, false, 12);
    int notZero = 0;
    for (int j = 0; j < 12; ++j)
        for (int m = 1; m <= 12; ++m)
            notZero += IsNet(nie[j], nullptr, 0, m) ? 0 : 1;
    EXPECT_GT(notZero, 0);
}

} // namespace
} // namespace brenn::test
