// Robust covariance: the minimum covariance determinant by FAST-MCD (Rousseeuw and Van
// Driessen, 1999). Random (q + 1)-subsets, each grown by random observations while its
// covariance is singular, start concentration steps (mcd_stage.h); two steps a start,
// then the ten best go on until their subset repeats or the step limit is reached. Above
// 600 observations (and q below 150) the starts run in up to five disjoint random subsets
// of about 300 (their share of the starts each), the ten best of each are stepped twice
// in the merged 1500 (or all), and the ten best of those on the whole data. The raw
// estimate is the mean and covariance of the best h-subset scaled by med(d^2) /
// chi2_q(0.5); one reweighting keeps the observations with d^2 at or below chi2_q(0.975)
// and gives their mean and covariance (divisor count - 1). An h-subset on a hyperplane
// ends the search: every observation on it is gathered and their mean and covariance
// stored, with BRENN_SS_ERROR_EXACT_FIT. With one variable the search is exact: the
// best of the windows of h consecutive sorted values.
#include <math.h>
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/threader.h"
#include "stats/carve.h"
#include "stats/chi_square.h"
#include "stats/matrix_storage.h"
#include "stats/mcd_stage.h"
#include "stats/random_draws.h"
#include "stats/robust_data.h"

namespace brenn::stats {
namespace {

constexpr int64_t kKeep = 10;         // candidates carried from stage to stage
constexpr int64_t kNestedAbove = 600; // observations above which the starts run in subsets
constexpr int64_t kSubsetSize = 300;  // observations of a subset
constexpr int64_t kMostSubsets = 5;
constexpr int64_t kStartSteps = 3; // the first subset's fit, then two concentration steps
constexpr int64_t kMergedSteps = 2;

// Whether the starts run in subsets: many observations, and subsets of 300 that hold
// twice the q + 1 observations a start needs.
inline bool Nested(int64_t m, int64_t q) {
    return m > kNestedAbove && kSubsetSize >= 2 * (q + 1);
}

struct McdSettings {
    int64_t h, starts, limit;
    uint32_t seed;
};

// Parameters: h / n, starts, step limit, seed.
template <typename T>
int32_t ReadMcdSettings(const SSTask* task, int64_t m, int64_t q, McdSettings* s) {
    double v[4] = {-1, 500, 100, 1};
    if (int32_t st =
            ReadParams<T>(task, task->robustParamCount, task->robustParams, 4, v,
                          BRENN_SS_ERROR_ROBUST_PARAM_COUNT, BRENN_SS_ERROR_ROBUST_PARAMS_MISSING))
        return st;
    if (v[0] == -1) {
        s->h = (m + q + 1) / 2;
    } else {
        if (!(v[0] > 0 && v[0] <= 1)) return BRENN_SS_ERROR_ROBUST_PARAMS_MISSING;
        s->h = static_cast<int64_t>(floor(v[0] * double(m)));
        if (s->h < q + 1) return BRENN_SS_ERROR_ROBUST_PARAMS_MISSING;
    }
    if (!WholeIn(v[1], 1, 0x1p31) || !WholeIn(v[2], 1, 0x1p31) || !WholeIn(v[3], 0, 0x1p32 - 1))
        return BRENN_SS_ERROR_ROBUST_PARAMS_MISSING;
    s->starts = static_cast<int64_t>(v[1]);
    s->limit = static_cast<int64_t>(v[2]);
    s->seed = static_cast<uint32_t>(v[3]);
    if (s->h > m) s->h = m;
    return 0;
}

struct McdWork {
    const RobustData* d;
    McdSettings set;
    const threader* thr;
    UniformDraws draws;
    McdCandidates first, merged, last;
    int64_t* order;               // 0, 1, 2, ...
    uint8_t* marks;               // m
    int64_t* members;             // m
    int64_t* perm;                // m, the nested draw
    double* xs;                   // the merged subsets' data
    double* d2;                   // m
    double* tmp;                  // m
    WeightedValue<double>* pairs; // m with one variable: values and observation numbers
    double* fit;                  // FitDoubles(q)
    double* z;                    // 2 q
};

void PlaceCandidates(Carve* c, McdCandidates* k, int64_t count, int64_t q) {
    k->count = count;
    k->fits = c->Take<double>(count * int64_t(FitDoubles(q)));
    k->logDet = c->Take<double>(count);
    k->singular = c->Take<int64_t>(count);
    k->settled = c->Take<uint8_t>(count);
}

// Lays out every array of a search; with a null base only sizes them.
void LayOut(Carve* c, McdWork* w, int64_t nestedTotal) {
    const int64_t q = w->d->q, m = w->d->m;
    int64_t most = w->set.starts > kMostSubsets * kKeep ? w->set.starts : kMostSubsets * kKeep;
    PlaceCandidates(c, &w->first, w->set.starts, q);
    PlaceCandidates(c, &w->merged, kMostSubsets * kKeep, q);
    PlaceCandidates(c, &w->last, kKeep, q);
    w->order = c->Take<int64_t>(most);
    w->marks = c->Take<uint8_t>(m);
    w->members = c->Take<int64_t>(m);
    w->perm = c->Take<int64_t>(nestedTotal > 0 ? m : 0);
    w->xs = c->Take<double>(nestedTotal * q);
    w->d2 = c->Take<double>(m);
    w->tmp = c->Take<double>(m);
    w->pairs = c->Take<WeightedValue<double>>(q == 1 ? m : 0);
    w->fit = c->Take<double>(int64_t(FitDoubles(q)));
    w->z = c->Take<double>(2 * q);
}

// The fit of a random (q + 1)-subset of data x (ms observations), grown one random
// observation at a time while singular, into candidate k of c.
void RandomStart(McdWork* w, const double* x, int64_t ms, McdCandidates* c, int64_t k) {
    const int64_t q = w->d->q;
    int64_t count = 0;
    SubsetFit f;
    PlaceFit(&f, c->fits + k * FitDoubles(q), q);
    f.singular = 0;
    while (count < ms && (count < q + 1 || f.singular < q)) {
        int64_t i;
        do
            i = DrawIndex(&w->draws, ms);
        while (w->marks[i]);
        w->marks[i] = 1;
        w->members[count++] = i;
        if (count >= q + 1) FitSubset(x, q, w->members, count, &f, w->z);
    }
    for (int64_t i = 0; i < count; ++i)
        w->marks[w->members[i]] = 0;
    c->logDet[k] = f.logDet;
    c->singular[k] = f.singular;
}

// Copies the best `kKeep` candidates of `from` to the end of `to`.
void CarryBest(const McdCandidates& from, int64_t q, McdCandidates* to) {
    int64_t best[kKeep];
    const int64_t k = BestCandidates(from, q, kKeep, best);
    const size_t fd = FitDoubles(q);
    for (int64_t i = 0; i < k; ++i) {
        memcpy(to->fits + to->count * fd, from.fits + best[i] * fd, fd * sizeof(double));
        to->logDet[to->count] = from.logDet[best[i]];
        to->singular[to->count] = q;
        ++to->count;
    }
}

// Stores the mean and the covariance of the kept variables, the covariance in the form
// of its storage word.
template <typename T>
void StoreEstimate(const SSTask* task, const RobustData& d, int64_t storage, const SubsetFit& f) {
    T* mean = static_cast<T*>(task->robustMean);
    T* cov = static_cast<T*>(task->robustCov);
    const int64_t q = d.q;
    for (int64_t a = 0; a < q; ++a)
        mean[d.act[a]] = T(f.mean[a]);
    for (int64_t b = 0; b < q; ++b)
        for (int64_t a = b; a < q; ++a) {
            const T v = T(f.cov[a + b * q]);
            cov[MatrixIndex(storage, d.p, d.act[a], d.act[b])] = v;
            cov[MatrixIndex(storage, d.p, d.act[b], d.act[a])] = v;
        }
}

// An exact fit found in candidate k: true when h or more of all observations lie on its
// hyperplane, whose mean and covariance are then in w->fit.
bool ExactFit(McdWork* w, const McdCandidates& c, int64_t k) {
    const RobustData& d = *w->d;
    SubsetFit plane;
    PlaceFit(&plane, c.fits + k * FitDoubles(d.q), d.q);
    plane.singular = c.singular[k];
    int64_t count = 0;
    for (int64_t i = 0; i < d.m; ++i)
        if (OnPlane(plane, d.q, d.x + i * d.q, w->z)) w->members[count++] = i;
    if (count < w->set.h) return false;
    SubsetFit f;
    PlaceFit(&f, w->fit, d.q);
    FitSubset(d.x, d.q, w->members, count, &f, w->z);
    return true;
}

// Looks for an exact fit among the singular candidates, in candidate order.
bool AnyExactFit(McdWork* w, const McdCandidates& c) {
    for (int64_t k = 0; k < c.count; ++k)
        if (c.singular[k] < w->d->q && ExactFit(w, c, k)) return true;
    return false;
}

enum SearchEnd { kFound, kExact, kNoneLeft };

// One variable: the MCD exactly (Rousseeuw and Leroy, 1987). The h-subset of least
// variance is h consecutive values in sorted order; windows are compared by their sums
// of squares, slid along the values centred at the median. The winner's fit is in
// w->fit; h equal values are an exact fit with every observation of that value.
SearchEnd UnivariateMcd(McdWork* w) {
    const RobustData& d = *w->d;
    const int64_t m = d.m, h = w->set.h;
    WeightedValue<double>* v = w->pairs;
    for (int64_t i = 0; i < m; ++i)
        v[i] = {d.x[i], double(i)};
    QuickSort(Contiguous<WeightedValue<double>>{v}, m);
    const double centre = v[(m - 1) / 2].x;
    double s1 = 0, s2 = 0;
    for (int64_t i = 0; i < h; ++i) {
        const double t = v[i].x - centre;
        s1 += t;
        s2 += t * t;
    }
    double least = s2 - s1 * s1 / double(h);
    int64_t at = 0;
    for (int64_t j = 1; j + h <= m; ++j) {
        const double out = v[j - 1].x - centre, in = v[j + h - 1].x - centre;
        s1 += in - out;
        s2 += in * in - out * out;
        const double ss = s2 - s1 * s1 / double(h);
        if (ss < least) least = ss, at = j;
    }
    for (int64_t k = 0; k < h; ++k)
        w->members[k] = static_cast<int64_t>(v[at + k].w);
    SubsetFit f;
    PlaceFit(&f, w->fit, 1);
    FitSubset(d.x, 1, w->members, h, &f, w->z);
    if (f.singular == 1) return kFound;
    int64_t count = 0;
    for (int64_t i = 0; i < m; ++i)
        if (d.x[i] == v[at].x) w->members[count++] = i;
    FitSubset(d.x, 1, w->members, count, &f, w->z);
    return kExact;
}

// Random starts in data x (ms observations, subsets of hs), two steps each; the best
// go to `to`.
int32_t StartsIn(McdWork* w, const double* x, int64_t ms, int64_t hs, int64_t starts,
                 McdCandidates* to, bool* exact) {
    const int64_t q = w->d->q;
    w->first.count = starts;
    for (int64_t k = 0; k < starts; ++k)
        RandomStart(w, x, ms, &w->first, k);
    McdStage st{x, q, ms, hs, kStartSteps, false, &w->first};
    if (int32_t s = RunMcdStage(&st, w->order, w->thr)) return s;
    *exact = AnyExactFit(w, w->first);
    if (!*exact) CarryBest(w->first, q, to);
    return 0;
}

// The search; the raw estimate's fit in w->fit (kFound), an exact fit's there (kExact).
int32_t Search(McdWork* w, SearchEnd* end, bool* settled) {
    const RobustData& d = *w->d;
    const int64_t q = d.q, m = d.m, h = w->set.h;
    bool exact = false;
    w->merged.count = 0;
    w->last.count = 0;
    if (Nested(m, q)) {
        const int64_t total = m < kMostSubsets * kSubsetSize ? m : kMostSubsets * kSubsetSize;
        const int64_t parts =
            total / kSubsetSize < kMostSubsets ? total / kSubsetSize : kMostSubsets;
        for (int64_t i = 0; i < m; ++i)
            w->perm[i] = i;
        for (int64_t i = 0; i < total; ++i) {
            const int64_t j = i + DrawIndex(&w->draws, m - i);
            const int64_t t = w->perm[i];
            w->perm[i] = w->perm[j];
            w->perm[j] = t;
            memcpy(w->xs + i * q, d.x + w->perm[i] * q, q * sizeof(double));
        }
        int64_t at = 0;
        const int64_t share = w->set.starts / parts > 0 ? w->set.starts / parts : 1;
        for (int64_t j = 0; j < parts && !exact; ++j) {
            const int64_t size = total / parts + (j < total % parts);
            int64_t hs = size * h / m;
            if (hs < q + 1) hs = q + 1;
            if (hs > size) hs = size;
            if (int32_t s = StartsIn(w, w->xs + at * q, size, hs, share, &w->merged, &exact))
                return s;
            at += size;
        }
        if (!exact) {
            int64_t hm = total * h / m;
            if (hm < q + 1) hm = q + 1;
            McdStage st{w->xs, q, total, hm, kMergedSteps, false, &w->merged};
            if (int32_t s = RunMcdStage(&st, w->order, w->thr)) return s;
            exact = AnyExactFit(w, w->merged);
            if (!exact) CarryBest(w->merged, q, &w->last);
        }
    } else {
        const int64_t starts = w->set.starts;
        if (int32_t s = StartsIn(w, d.x, m, h, starts, &w->last, &exact)) return s;
    }
    if (exact) {
        *end = kExact;
        return 0;
    }
    McdStage st{d.x, q, m, h, w->set.limit, true, &w->last};
    if (int32_t s = RunMcdStage(&st, w->order, w->thr)) return s;
    if (AnyExactFit(w, w->last)) {
        *end = kExact;
        return 0;
    }
    int64_t best = 0;
    if (BestCandidates(w->last, q, 1, &best) == 0) {
        *end = kNoneLeft;
        return 0;
    }
    memcpy(w->fit, w->last.fits + best * FitDoubles(q), FitDoubles(q) * sizeof(double));
    *settled = w->last.settled[best] != 0;
    *end = kFound;
    return 0;
}

template <typename T>
int32_t RobustCovariance(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    const SSTask* task = static_cast<const SSTask*>(handle);
    if ((estimates & BRENN_SS_ROBUST_COV) == 0) return BRENN_SS_OK;
    Observations<T> o{};
    if (int32_t s = CheckObservations(task, &o)) return s;
    if (task->robustCovStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    const int64_t storage = ReadIndexWord(task, task->robustCovStorage);
    if (!KnownLayout(ReadIndexWord(task, task->observationStorage)) || !KnownMatrixStorage(storage))
        return BRENN_SS_ERROR_STORAGE;
    if (task->robustCov == nullptr) return BRENN_SS_ERROR_ROBUST_COV_MISSING;
    if (task->robustMean == nullptr) return BRENN_SS_ERROR_ROBUST_MEAN_MISSING;
    double probe[4] = {0, 0, 0, 0};
    if (int32_t s =
            ReadParams<T>(task, task->robustParamCount, task->robustParams, 4, probe,
                          BRENN_SS_ERROR_ROBUST_PARAM_COUNT, BRENN_SS_ERROR_ROBUST_PARAMS_MISSING))
        return s;
    if (method != BRENN_SS_METHOD_FASTMCD) return BRENN_SS_ERROR_METHOD;

    RobustData d{};
    if (int32_t s = GatherRobustData(task, o, &d)) return s;
    McdWork w{};
    w.d = &d;
    w.thr = thr;
    int32_t status = 0;
    if (d.q == 0) {
        FreeRobustData(&d);
        return BRENN_SS_OK;
    }
    if (d.m < d.q + 1) {
        FreeRobustData(&d);
        return BRENN_SS_ERROR_OBSERVATION_COUNT;
    }
    if ((status = ReadMcdSettings<T>(task, d.m, d.q, &w.set)) != 0) {
        FreeRobustData(&d);
        return status;
    }
    const int64_t nestedTotal =
        Nested(d.m, d.q) ? (d.m < kMostSubsets * kSubsetSize ? d.m : kMostSubsets * kSubsetSize)
                         : 0;
    Carve sizes;
    LayOut(&sizes, &w, nestedTotal);
    void* block = sizes.ok ? brenn_serv_allocate(sizes.used, 128) : nullptr;
    if (block == nullptr) {
        FreeRobustData(&d);
        return BRENN_SS_ERROR_ALLOC;
    }
    Carve cut;
    cut.base = static_cast<char*>(block);
    LayOut(&cut, &w, nestedTotal);
    memset(w.marks, 0, size_t(d.m));
    for (int64_t i = 0; i < (w.set.starts > 50 ? w.set.starts : 50); ++i)
        w.order[i] = i;

    const int64_t q = d.q, m = d.m;
    SearchEnd end = kFound;
    bool settled = true;
    SubsetFit f;
    PlaceFit(&f, w.fit, q);
    if (w.set.h == m) {
        // The whole data set is the only h-subset.
        for (int64_t i = 0; i < m; ++i)
            w.members[i] = i;
        FitSubset(d.x, q, w.members, m, &f, w.z);
        if (f.singular < q) end = kExact;
    } else if (q == 1) {
        end = UnivariateMcd(&w);
    } else if ((status = OpenDraws(&w.draws, w.set.seed)) == 0) {
        status = Search(&w, &end, &settled);
        CloseDraws(&w.draws);
    }
    if (status == 0 && end == kFound) {
        // Consistency at the normal: the median squared distance to chi2_q(0.5).
        SquaredDistances(d.x, q, m, f, w.d2, w.z);
        memcpy(w.tmp, w.d2, size_t(m) * sizeof(double));
        const double factor = MedianOf(w.tmp, m) / ChiSquareUpperQuantile(q, 0.5);
        const double cut975 = ChiSquareUpperQuantile(q, 0.025) * factor;
        int64_t count = 0;
        for (int64_t i = 0; i < m; ++i)
            if (w.d2[i] <= cut975) w.members[count++] = i;
        FitSubset(d.x, q, w.members, count, &f, w.z);
        StoreEstimate<T>(task, d, storage, f);
        if (!settled) status = BRENN_SS_ERROR_NO_CONVERGENCE;
    } else if (status == 0 && end == kExact) {
        // The covariance of the hyperplane's observations, singular by construction.
        StoreEstimate<T>(task, d, storage, f);
        status = BRENN_SS_ERROR_EXACT_FIT;
    } else if (status == 0) {
        status = BRENN_SS_ERROR_NOT_POSITIVE_DEFINITE;
    }
    brenn_serv_deallocate(block);
    FreeRobustData(&d);
    return status;
}

} // namespace
} // namespace brenn::stats

BRENN_EXPORT int32_t _qesdSSRobustCovariance(void* task, uint64_t estimates, uint64_t method,
                                             const threader* thr) {
    return brenn::stats::RobustCovariance<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSRobustCovariance(void* task, uint64_t estimates, uint64_t method,
                                             const threader* thr) {
    return brenn::stats::RobustCovariance<float>(task, estimates, method, thr);
}
