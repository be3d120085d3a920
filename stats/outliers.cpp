// Outlier detection by BACON (Billor, Hadi and Velleman, 2000), the multivariate
// algorithm: a basic subset of m = c q observations nearest the centre (by Mahalanobis
// distance from the mean and covariance of all, or by Euclidean distance from the
// coordinate-wise median), grown while its covariance is singular; then, until the
// subset's size stays the same, the subset becomes every observation whose distance
// from the subset's mean and covariance is below c_npr chi_{q, alpha/n}, with
//   c_npr = c_np + c_hr,  c_np = 1 + (q + 1) / (n - q) + 2 / (n - 1 - 3 q),
//   c_hr = max(0, (h - r) / (h + r)),  h = [(n + q + 1) / 2],  r the subset's size,
// and chi^2_{q, alpha/n} the chi-square quantile of upper tail alpha / n. Observations
// of the last subset weigh 1, the others 0. The distances of each round run over fixed
// blocks of observations through the threader; fits sum in observation order.
#include <math.h>
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/carve.h"
#include "stats/chi_square.h"
#include "stats/robust_data.h"
#include "stats/subset_fit.h"

namespace brenn::stats {
namespace {

constexpr int64_t kBlock = 4096; // observations a distance job

struct DistanceJob {
    const double* x;
    int64_t q, m;
    SubsetFit fit;
    double* d2;
};

int32_t DistanceWorker(VariableLoop* loop, int64_t b, void* scratch) {
    const DistanceJob& j = *static_cast<const DistanceJob*>(loop->detail);
    const int64_t i0 = b * kBlock, i1 = i0 + kBlock < j.m ? i0 + kBlock : j.m;
    SquaredDistances(j.x + i0 * j.q, j.q, i1 - i0, j.fit, j.d2 + i0, static_cast<double*>(scratch));
    return 0;
}

// Squared distances of all observations from `fit`, a block a job.
int32_t AllDistances(DistanceJob* job, const int64_t* blocks, const threader* thr) {
    const int64_t count = (job->m + kBlock - 1) / kBlock;
    return ForEachItem(blocks, count, size_t(job->q) * sizeof(double), thr, DistanceWorker, job);
}

// The initial distances: Mahalanobis from all observations, or Euclidean from the
// coordinate-wise median. False when all observations have a singular covariance.
bool StartDistances(const RobustData& d, bool median, SubsetFit* f, int64_t* members, double* d2,
                    double* tmp, double* centre, double* z) {
    const int64_t q = d.q, m = d.m;
    if (!median) {
        for (int64_t i = 0; i < m; ++i)
            members[i] = i;
        FitSubset(d.x, q, members, m, f, z);
        if (f->singular < q) return false;
        SquaredDistances(d.x, q, m, *f, d2, z);
        return true;
    }
    for (int64_t a = 0; a < q; ++a) {
        for (int64_t i = 0; i < m; ++i)
            tmp[i] = d.x[i * q + a];
        centre[a] = MedianOf(tmp, m);
    }
    for (int64_t i = 0; i < m; ++i) {
        double s = 0;
        for (int64_t a = 0; a < q; ++a) {
            const double t = d.x[i * q + a] - centre[a];
            s += t * t;
        }
        d2[i] = s;
    }
    return true;
}

template <typename T>
int32_t Outliers(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_OUTLIERS) == 0) return BRENN_SS_OK;
    Observations<T> o{};
    if (int32_t s = CheckObservations(task, &o)) return s;
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage))) return BRENN_SS_ERROR_STORAGE;
    if (task->outlierWeights == nullptr) return BRENN_SS_ERROR_OUTLIER_WEIGHTS_MISSING;
    double v[3] = {0.05, BRENN_SS_BACON_INIT_MAHALANOBIS, 4};
    if (int32_t s = ReadParams<T>(task, task->outlierParamCount, task->outlierParams, 3, v,
                                  BRENN_SS_ERROR_OUTLIER_PARAM_COUNT,
                                  BRENN_SS_ERROR_OUTLIER_PARAMS_MISSING))
        return s;
    if (!(v[0] > 0 && v[0] < 1) ||
        (v[1] != BRENN_SS_BACON_INIT_MAHALANOBIS && v[1] != BRENN_SS_BACON_INIT_MEDIAN) ||
        !(v[2] > 0 && v[2] <= 0x1p31))
        return BRENN_SS_ERROR_OUTLIER_PARAMS_MISSING;
    if (method != BRENN_SS_METHOD_BACON) return BRENN_SS_ERROR_METHOD;

    RobustData d{};
    if (int32_t s = GatherRobustData(task, o, &d)) return s;
    const int64_t q = d.q, m = d.m;
    if (q == 0) {
        FreeRobustData(&d);
        return BRENN_SS_OK;
    }
    if (m <= 3 * q + 1) {
        FreeRobustData(&d);
        return BRENN_SS_ERROR_OBSERVATION_COUNT;
    }
    Carve c[2];
    double *d2, *tmp, *fitMemory, *centre, *z;
    int64_t *members, *blocks;
    for (int pass = 0; pass < 2; ++pass) {
        d2 = c[pass].Take<double>(m);
        tmp = c[pass].Take<double>(m);
        fitMemory = c[pass].Take<double>(int64_t(FitDoubles(q)));
        centre = c[pass].Take<double>(q);
        z = c[pass].Take<double>(q);
        members = c[pass].Take<int64_t>(m);
        blocks = c[pass].Take<int64_t>((m + kBlock - 1) / kBlock);
        if (pass == 0) {
            void* block = c[0].ok ? brenn_serv_allocate(c[0].used, 128) : nullptr;
            if (block == nullptr) {
                FreeRobustData(&d);
                return BRENN_SS_ERROR_ALLOC;
            }
            c[1].base = static_cast<char*>(block);
        }
    }
    for (int64_t b = 0; b < (m + kBlock - 1) / kBlock; ++b)
        blocks[b] = b;

    DistanceJob job{d.x, q, m, {}, d2};
    PlaceFit(&job.fit, fitMemory, q);
    int32_t status = 0;
    // The basic subset: the r nearest, r grown while their covariance is singular.
    int64_t r = static_cast<int64_t>(ceil(v[2] * double(q)));
    if (r < q + 1) r = q + 1;
    if (r > m) r = m;
    if (!StartDistances(d, v[1] == BRENN_SS_BACON_INIT_MEDIAN, &job.fit, members, d2, tmp, centre,
                        z)) {
        status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    } else {
        for (;;) {
            LeastDistances(d2, m, r, tmp, members);
            FitSubset(d.x, q, members, r, &job.fit, z);
            if (job.fit.singular == q) break;
            if (r == m) {
                status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
                break;
            }
            ++r;
        }
    }
    if (status == 0) {
        const int64_t h = (m + q + 1) / 2;
        const double cnp = 1 + double(q + 1) / double(m - q) + 2 / double(m - 1 - 3 * q);
        const double chi2 = ChiSquareUpperQuantile(q, v[0] / double(m));
        status = BRENN_SS_ERROR_NO_CONVERGENCE;
        for (int64_t round = 0; round < m; ++round) {
            if ((status = AllDistances(&job, blocks, thr)) != 0) break;
            const double chr = h > r ? double(h - r) / double(h + r) : 0;
            const double cut = (cnp + chr) * (cnp + chr) * chi2;
            int64_t next = 0;
            for (int64_t i = 0; i < m; ++i)
                if (d2[i] < cut) members[next++] = i;
            if (next == r) break;
            status = BRENN_SS_ERROR_NO_CONVERGENCE;
            r = next;
            if (r < q + 1) {
                status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
                break;
            }
            FitSubset(d.x, q, members, r, &job.fit, z);
            if (job.fit.singular < q) {
                status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
                break;
            }
        }
        if (status == 0 || status == BRENN_SS_ERROR_NO_CONVERGENCE) {
            T* w = static_cast<T*>(task->outlierWeights);
            for (int64_t i = 0; i < d.n; ++i)
                w[i] = T(0);
            for (int64_t k = 0; k < r; ++k)
                w[d.rows[members[k]]] = T(1);
        }
    }
    brenn_serv_deallocate(c[1].base);
    FreeRobustData(&d);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSOutliersDetection(void* task, uint64_t estimates, uint64_t method,
                                              const threader* thr) {
    return brenn::stats::Outliers<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSOutliersDetection(void* task, uint64_t estimates, uint64_t method,
                                              const threader* thr) {
    return brenn::stats::Outliers<float>(task, estimates, method, thr);
}
