// Multinomial rows, _qesiRngMultinomial: n rows of k counts that add up to ntrial.
// The only distribution generator that checks its arguments (k, the signs of p and
// their sum), since it writes n * k elements. Rows come from independent Poisson
// counts of mean t p[j] (PoissonV, its coefficients made once for all rows), t a
// total reduced below ntrial so that a row
// rarely overshoots: a row above ntrial is drawn again, one below is completed by
// single trials, each a double uniform on [0, sum p) placed by a search of the
// cumulative sums. With many more cells than trials (k >= 16 ntrial, ntrial <= 16)
// every trial is placed that way.
#include <math.h>
#include <string.h>

#include "frame/export.h"
#include "platform/serv.h"
#include "rng/core/stream.h"
#include "rng/dist/poisson.h"

namespace {

// The first j with u < cumulative[j]; the last cell when rounding leaves u above all.
int32_t CellOf(double u, const double* cumulative, int32_t k) {
    int32_t lo = 0, hi = k - 1;
    while (lo < hi) {
        int32_t mid = lo + (hi - lo) / 2;
        if (u < cumulative[mid])
            hi = mid;
        else
            lo = mid + 1;
    }
    return lo;
}

// Places `count` trials into `row`; `u` has room for them.
int32_t AddTrials(void* stream, int32_t count, int32_t* row, const double* cumulative, int32_t k,
                  double* u) {
    int32_t status = _qesdRngUniform(0, stream, count, u, 0.0, cumulative[k - 1]);
    if (status < 0) return status;
    for (int32_t i = 0; i < count; ++i)
        ++row[CellOf(u[i], cumulative, k)];
    return status;
}

struct Work {
    brenn::rng::PoissonVCell* cells; // PoissonV's coefficients of each t p[j], made once
    double* cumulative;
    double* u;
};

void Free(Work& w) {
    brenn_serv_deallocate(w.cells);
    brenn_serv_deallocate(w.cumulative);
    brenn_serv_deallocate(w.u);
}

int32_t Rows(void* stream, int32_t n, int32_t* r, int32_t ntrial, int32_t k, const Work& w) {
    const bool sparse = int64_t{k} >= 16 * int64_t{ntrial} && ntrial <= 16;
    int32_t status = QES_STATUS_OK;
    for (int32_t row = 0; row < n; ++row) {
        int32_t* x = r + static_cast<int64_t>(row) * k;
        if (sparse) {
            memset(x, 0, sizeof(int32_t) * static_cast<size_t>(k));
            status = AddTrials(stream, ntrial, x, w.cumulative, k, w.u);
            if (status < 0) return status;
            continue;
        }
        int64_t sum;
        do {
            status = brenn::rng::PoissonVDraw(stream, k, x, w.cells);
            if (status < 0) return status;
            sum = 0;
            for (int32_t j = 0; j < k; ++j)
                sum += x[j];
        } while (sum > ntrial);
        if (sum < ntrial) {
            status = AddTrials(stream, static_cast<int32_t>(ntrial - sum), x, w.cumulative, k, w.u);
            if (status < 0) return status;
        }
    }
    return status;
}

} // namespace

BRENN_EXPORT int32_t _qesiRngMultinomial(int32_t method, void* stream, int32_t n, int32_t* r,
                                         int32_t ntrial, int32_t k, const double* p) {
    (void)method;
    if (ntrial == 0) {
        if (n > 0 && k > 0) memset(r, 0, sizeof(int32_t) * static_cast<size_t>(n) * k);
        return QES_STATUS_OK;
    }
    if (k < 1) return QES_RNG_ERROR_BAD_MULTINOMIAL;
    double total = 0.0;
    for (int32_t j = 0; j < k; ++j) {
        if (p[j] < 0.0) return QES_RNG_ERROR_BAD_MULTINOMIAL;
        total += p[j];
    }
    if (!(total >= 0.999 && total <= 1.001)) return QES_RNG_ERROR_BAD_MULTINOMIAL;
    if (k == 1) {
        for (int32_t i = 0; i < n; ++i)
            r[i] = ntrial;
        return QES_STATUS_OK;
    }
    if (n <= 0) return QES_STATUS_OK;
    Work w{};
    w.cells = static_cast<brenn::rng::PoissonVCell*>(
        brenn_serv_allocate(sizeof(brenn::rng::PoissonVCell) * size_t(k), 128));
    w.cumulative = static_cast<double*>(brenn_serv_allocate(sizeof(double) * size_t(k), 128));
    w.u = static_cast<double*>(brenn_serv_allocate(sizeof(double) * size_t(ntrial), 128));
    if (w.cells == nullptr || w.cumulative == nullptr || w.u == nullptr) {
        Free(w);
        return QES_ERROR_MEM_FAILURE;
    }
    // The reduced total: ntrial - k when sqrt(ntrial) >= k, else ntrial - w - sqrt(k - w).
    const double root = sqrt(static_cast<double>(ntrial));
    const double t = root >= k ? double(ntrial) - k : double(ntrial) - root - sqrt(k - root);
    double running = 0.0;
    for (int32_t j = 0; j < k; ++j) {
        brenn::rng::PoissonVCellOf(t * p[j], &w.cells[j]);
        running += p[j];
        w.cumulative[j] = running;
    }
    int32_t status = Rows(stream, n, r, ntrial, k, w);
    Free(w);
    return status;
}
