// What the robust covariance and the outlier nominators share before their search: the
// parameter array of the task (a count word and reals, absent ones taking defaults),
// and the observations of the kept variables gathered into one compact double matrix,
// one observation contiguous, leaving out observations with a value that is not finite.
#ifndef BRENN_STATS_ROBUST_DATA_H
#define BRENN_STATS_ROBUST_DATA_H

#include <math.h>
#include <stdint.h>

#include "brenn_stats.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "stats/basic_finish.h"
#include "stats/task.h"
#include "stats/variable_loop.h"

namespace brenn::stats {

// Reads up to `most` reals from a parameter array into `out`, which holds the defaults:
// a missing count word reads as 0. A count below 0 or above `most` gives `countStatus`,
// a count above 0 without the array `arrayStatus`.
template <typename T>
int32_t ReadParams(const SSTask* task, const void* count, const void* params, int most, double* out,
                   int32_t countStatus, int32_t arrayStatus) {
    const int64_t k = count == nullptr ? 0 : ReadIndexWord(task, count);
    if (k < 0 || k > most) return countStatus;
    if (k > 0 && params == nullptr) return arrayStatus;
    for (int64_t i = 0; i < k; ++i)
        out[i] = double(static_cast<const T*>(params)[i]);
    return 0;
}

// A whole number in [lo, hi] (a NaN is none).
inline bool WholeIn(double v, double lo, double hi) {
    return v >= lo && v <= hi && v == floor(v);
}

// The gathered data: x[i * q + a] is variable act[a] of observation rows[i].
struct RobustData {
    int64_t p, q, n, m; // variables, kept variables, observations, finite observations
    int64_t* act;       // q kept variables
    int64_t* rows;      // m observation numbers
    double* x;          // m * q values
    void* block;
};

inline void FreeRobustData(RobustData* d) {
    if (d->block != nullptr) brenn_serv_deallocate(d->block);
    d->block = nullptr;
}

// Gathers the finite observations of the kept variables; 0 or BRENN_SS_ERROR_ALLOC.
template <typename T>
int32_t GatherRobustData(const SSTask* task, const Observations<T>& o, RobustData* d) {
    d->p = o.p;
    d->n = o.n;
    size_t bytes = 0;
    if (!AddBytesFor(&bytes, o.p, sizeof(int64_t)) || !AddBytesFor(&bytes, o.n, sizeof(int64_t)))
        return BRENN_SS_ERROR_ALLOC;
    const size_t head = bytes;
    size_t values = 0;
    if (!BytesFor(o.n, sizeof(double), &values) || !AddBytesFor(&bytes, o.p, values))
        return BRENN_SS_ERROR_ALLOC;
    d->block = brenn_serv_allocate(bytes, 128);
    if (d->block == nullptr) return BRENN_SS_ERROR_ALLOC;
    char* b = static_cast<char*>(d->block);
    d->act = reinterpret_cast<int64_t*>(b);
    d->rows = d->act + o.p;
    d->x = reinterpret_cast<double*>(b + head);
    d->q = ActiveVariables(task, o.p, d->act);
    const int64_t q = d->q;
    int64_t m = 0;
    for (int64_t i = 0; i < o.n; ++i) {
        double* out = d->x + m * q;
        bool finite = true;
        for (int64_t a = 0; a < q; ++a) {
            const int64_t j = d->act[a];
            const double v = double(o.variableRows ? o.x[j * o.n + i] : o.x[i * o.p + j]);
            finite = finite && isfinite(v);
            out[a] = v;
        }
        if (finite) d->rows[m++] = i;
    }
    d->m = m;
    return 0;
}

} // namespace brenn::stats

#endif
