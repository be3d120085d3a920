// The concentration steps of the minimum covariance determinant search: from each
// candidate's fit, the h observations of least distance, then their fit, again and
// again. Candidates run independently through the threader's loop, each a function of
// its own fit and the stage's data only, so the results are the same bits for any
// number of threads.
#ifndef BRENN_STATS_MCD_STAGE_H
#define BRENN_STATS_MCD_STAGE_H

#include <stdint.h>
#include <string.h>

#include "platform/bytes.h"
#include "platform/threader.h"
#include "stats/subset_fit.h"
#include "stats/variable_loop.h"

namespace brenn::stats {

// Candidates: a fit each (FitDoubles(q) doubles from `fits`), with its log determinant,
// its failed pivot (q when none) and whether its subset repeated.
struct McdCandidates {
    int64_t count;
    double* fits;
    double* logDet;
    int64_t* singular;
    uint8_t* settled;
};

// A stage: data x (m observations of q values), subsets of h, and how many fits a
// candidate makes. With `untilSettled` the steps stop when the subset repeats, and a
// candidate whose subset still changed after `steps` fits is left unsettled.
struct McdStage {
    const double* x;
    int64_t q, m, h;
    int64_t steps;
    bool untilSettled;
    McdCandidates* c;
};

inline bool McdStageScratch(int64_t q, int64_t m, int64_t h, size_t* bytes) {
    *bytes = 0;
    if (!AddBytesFor(bytes, m, 2 * sizeof(double)) || !AddBytesFor(bytes, h, 2 * sizeof(int64_t)) ||
        !AddBytesFor(bytes, q, 2 * sizeof(double)))
        return false;
    return true;
}

inline int32_t McdStageWorker(VariableLoop* loop, int64_t c, void* scratch) {
    const McdStage& s = *static_cast<const McdStage*>(loop->detail);
    const int64_t q = s.q, m = s.m, h = s.h;
    double* d2 = static_cast<double*>(scratch);
    double* tmp = d2 + m;
    int64_t* members = reinterpret_cast<int64_t*>(tmp + m);
    int64_t* prev = members + h;
    double* centred = reinterpret_cast<double*>(prev + h);
    double* z = centred + q;
    SubsetFit f;
    PlaceFit(&f, s.c->fits + c * FitDoubles(q), q);
    f.singular = s.c->singular[c];
    f.logDet = s.c->logDet[c];
    s.c->settled[c] = 0;
    if (f.singular < q) return 0;
    const int64_t rounds = s.untilSettled ? s.steps + 1 : s.steps;
    for (int64_t r = 0; r < rounds; ++r) {
        SquaredDistances(s.x, q, m, f, d2, z);
        LeastDistances(d2, m, h, tmp, members);
        if (r > 0 && memcmp(members, prev, h * sizeof(int64_t)) == 0) {
            s.c->settled[c] = 1;
            break;
        }
        if (r == s.steps) break;
        FitSubset(s.x, q, members, h, &f, centred);
        if (f.singular < q) break;
        int64_t* t = members;
        members = prev;
        prev = t;
    }
    s.c->logDet[c] = f.logDet;
    s.c->singular[c] = f.singular;
    return 0;
}

// Runs the stage over candidates [0, c->count); `order` holds 0 .. count - 1.
inline int32_t RunMcdStage(McdStage* s, const int64_t* order, const threader* thr) {
    size_t bytes;
    if (!McdStageScratch(s->q, s->m, s->h, &bytes)) return BRENN_SS_ERROR_ALLOC;
    return ForEachItem(order, s->c->count, bytes, thr, McdStageWorker, s);
}

// The (up to) `keep` candidates of least log determinant among those not singular, in
// that order, ties by candidate number, into best; returns how many.
inline int64_t BestCandidates(const McdCandidates& c, int64_t q, int64_t keep, int64_t* best) {
    int64_t k = 0;
    for (int64_t i = 0; i < c.count; ++i) {
        if (c.singular[i] < q) continue;
        int64_t at = k < keep ? k++ : keep;
        if (at == keep && !(c.logDet[i] < c.logDet[best[keep - 1]])) continue;
        if (at == keep) at = keep - 1;
        while (at > 0 && c.logDet[i] < c.logDet[best[at - 1]]) {
            best[at] = best[at - 1];
            --at;
        }
        best[at] = i;
    }
    return k;
}

} // namespace brenn::stats

#endif
