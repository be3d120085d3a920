// Poisson variates with a lambda for each element, _qesiRngPoissonV: n inverse-CDF
// Gaussians first (exactly n uniforms, whatever the lambdas), then the elements a
// block at a time, split by lambda. Below 0.0625 the Gaussian goes back to a uniform
// through Erf (one kernel call for the block's small group) and the count is the
// first partial sum of lambda^j / j! that reaches E(lambda) u; above, the
// Cornish-Fisher row of lambda's exponent (rows from 2^-4) or, from 100, range C of
// the transforming method, each element with its own lambda. The coefficients of a
// lambda are made once for a run of equal lambdas (and once for all rows by
// Multinomial); the counts do not depend on how the elements are blocked.
#include <math.h>
#include <string.h>

#include "frame/export.h"
#include "rng/core/stream.h"
#include "rng/dist/frame.h"
#include "rng/dist/poisson.h"

namespace brenn::rng {

namespace {

constexpr int32_t kBlock = 2048;
constexpr int32_t kCellBlock = 512; // the entry's cells, made a part of a block at a time
constexpr double kSmall = 0.0625;
constexpr int32_t kMaxSmallCount = 11;

// E(lambda), a bound of exp(lambda) for small lambda, with lambda squared in the last
// term as the method has it.
inline double SmallBound(double l) {
    return 0.99999999789769289 +
           l * (1.000000235204182 + l * (0.49999555884885266 + l * l * 0.16669916415448055));
}

inline int32_t SmallCount(const PoissonVCell& c, float u) {
    const double bound = c.small.bound * u;
    double sum = 1.0, term = 1.0;
    int32_t k = 0;
    while (k < kMaxSmallCount && static_cast<float>(sum) < bound) {
        ++k;
        term *= c.small.lambda / k;
        sum += term;
    }
    return k;
}

inline int32_t LargerCount(const PoissonVCell& c, float z) {
    if (c.way == 1) return CornishFisherCount(c.row, z);
    return PoissonLargeCount(c.large, z * c.large.sigma + c.large.mean);
}

// The counts of one block of Gaussians in place; cell i of `cells` serves element i.
void Block(int32_t n, int32_t* r, const PoissonVCell* cells) {
    float* z = reinterpret_cast<float*>(r);
    float small[kBlock];
    int32_t where[kBlock];
    int32_t count = 0;
    for (int32_t i = 0; i < n; ++i) {
        if (cells[i].way == 0) {
            small[count] = z[i] * 0.70710677f;
            where[count++] = i;
        } else {
            r[i] = LargerCount(cells[i], z[i]);
        }
    }
    if (count == 0) return;
    Bracketed(ZAR_SLOT(sErf, frame::SlotLA), int(count), small, small);
    for (int32_t j = 0; j < count; ++j)
        r[where[j]] = SmallCount(cells[where[j]], fabsf(small[j]));
}

bool HasRows() {
    return ZAR_SLOT(sErf, frame::SlotLA) && ZAR_SLOT(sErfInv, frame::SlotLA);
}

} // namespace

void PoissonVCellOf(double lambda, PoissonVCell* cell) {
    memset(cell, 0, sizeof *cell);
    if (lambda < kSmall) {
        cell->way = 0;
        cell->small.lambda = lambda;
        cell->small.bound = SmallBound(lambda);
    } else if (lambda < kPoissonRangeC) {
        cell->way = 1;
        cell->row = CornishFisherOf(static_cast<float>(lambda));
    } else {
        cell->way = 2;
        cell->large = PoissonLargeOf(lambda);
    }
}

int32_t PoissonVDraw(void* stream, int32_t n, int32_t* r, const PoissonVCell* cells) {
    if (!HasRows()) return QES_STATUS_BAD_METHOD;
    int32_t status = _qessRngGaussian(2, stream, n, reinterpret_cast<float*>(r), 0.0f, 1.0f);
    if (status < 0) return status;
    FpGuard guard = GuardEnter();
    for (int32_t done = 0; done < n; done += kBlock)
        Block(n - done < kBlock ? n - done : kBlock, r + done, cells + done);
    GuardLeave(guard);
    return status;
}

} // namespace brenn::rng

using namespace brenn::rng;

BRENN_EXPORT int32_t _qesiRngPoissonV(int32_t method, void* stream, int32_t n, int32_t* r,
                                      const double* lambda) {
    (void)method;
    if (n <= 0) return QES_STATUS_OK;
    if (!HasRows()) return QES_STATUS_BAD_METHOD;
    int32_t status = _qessRngGaussian(2, stream, n, reinterpret_cast<float*>(r), 0.0f, 1.0f);
    if (status < 0) return status;
    FpGuard guard = GuardEnter();
    PoissonVCell cells[kCellBlock];
    for (int32_t done = 0; done < n; done += kCellBlock) {
        const int32_t block = n - done < kCellBlock ? n - done : kCellBlock;
        for (int32_t i = 0; i < block; ++i) {
            if (i > 0 && lambda[done + i] == lambda[done + i - 1])
                cells[i] = cells[i - 1];
            else
                PoissonVCellOf(lambda[done + i], &cells[i]);
        }
        Block(block, r + done, cells);
    }
    GuardLeave(guard);
    return status;
}
