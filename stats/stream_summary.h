// The streaming summary of one variable, after the multi-level summary of Zhang and
// Wang, and the two operations on summaries: merge and compress.
//
// A summary of M observations is a list of entries in ascending order of value, each
// with the lowest and highest rank (1-based, in some order of the observations by
// value) that its observation can have. Its gap is the largest rankMax(i + 1) -
// rankMin(i); the first and last entries are always the minimum and the maximum with
// exact ranks. A summary whose gap is at most 2E answers any rank r within E: some
// entry has r - E <= rankMin and rankMax <= r + E.
//
// Level 0 is a buffer of raw values. When it is full it is sorted (exact ranks, gap 1)
// and climbs: an empty level takes it, a taken one is merged with it (the gaps add:
// the relative gap of the merge is no more than the larger of the two), the merge is
// compressed to at most `kept` entries at equally spaced ranks (which adds M / kept to
// the gap), and the result climbs on. Level l then summarises 2^(l - 1) buffers, with
// relative gap at most 1 / base + l / kept; `kept` is set from the most levels that
// int32 ranks allow, so that every level stays within the accuracy asked.
#ifndef BRENN_STATS_STREAM_SUMMARY_H
#define BRENN_STATS_STREAM_SUMMARY_H

#include <stdint.h>

namespace brenn::stats {

// One level. Level 0 holds raw values (ranks set when it is sorted); level l >= 1 one
// summary of `count` observations in `fill` entries.
struct SummaryLevel {
    int32_t reserved;
    int32_t capacity; // entries the level can hold
    int32_t count;    // observations the level summarises (0: empty)
    int32_t weight;   // observations an entry stands for, about: 2^(l - 1) buffers / kept
    int32_t fill;     // entries in use
    void* buffer;     // the block behind the three arrays
    double* values;
    int32_t* rankMin;
    int32_t* rankMax;
};

struct VariableSummary {
    int32_t levelCount; // levels allocated
    int32_t topLevel;   // highest level that holds a summary, -1 when none
    int32_t active;     // 0: the indices left the variable out when the summary was made
    SummaryLevel* levels;
};

// What `streamState` points to: the sizes fixed at the first call, then one summary a
// variable. Beside the levels each variable has two work levels for the climb.
struct StreamSummary {
    int64_t p;
    int32_t base;      // raw values of level 0
    int32_t kept;      // entries a compressed level keeps
    int32_t maxLevels; // levels 0 .. maxLevels - 1, then the two work levels
    VariableSummary* variables;
};

// A view of a summary's arrays.
struct Entries {
    double* v;
    int32_t* lo;
    int32_t* hi;
    int64_t fill;
    int64_t count;
};

inline Entries EntriesOf(const SummaryLevel& l) {
    return {l.values, l.rankMin, l.rankMax, l.fill, l.count};
}

// Merges a and b into out (room for a.fill + b.fill): values in order, a's first at a
// tie. An entry's bounds add those of its neighbours in the other summary: below, the
// lower bound of the last entry before it; above, the upper bound of the first entry
// after it less one (the other's count when there is none).
inline void MergeSummaries(const Entries& a, const Entries& b, Entries* out) {
    int64_t i = 0, j = 0, k = 0;
    while (i < a.fill || j < b.fill) {
        if (j >= b.fill || (i < a.fill && a.v[i] <= b.v[j])) {
            out->v[k] = a.v[i];
            out->lo[k] = a.lo[i] + (j > 0 ? b.lo[j - 1] : 0);
            out->hi[k] = a.hi[i] + (j < b.fill ? b.hi[j] - 1 : static_cast<int32_t>(b.count));
            ++i;
        } else {
            out->v[k] = b.v[j];
            out->lo[k] = b.lo[j] + (i > 0 ? a.lo[i - 1] : 0);
            out->hi[k] = b.hi[j] + (i < a.fill ? a.hi[i] - 1 : static_cast<int32_t>(a.count));
            ++j;
        }
        ++k;
    }
    out->fill = k;
    out->count = a.count + b.count;
}

// The index of the entry that answers rank r best: the least of max(r - rankMin,
// rankMax - r). Entries are scanned from `from`, and the scan stops once rankMin has
// passed r by more than the best found (rankMin only grows).
inline int64_t AnswerRank(const Entries& s, double r, int64_t from) {
    int64_t best = from;
    double bestError = 1e300;
    for (int64_t i = from; i < s.fill; ++i) {
        double below = r - s.lo[i], above = s.hi[i] - r;
        double e = below > above ? below : above;
        if (e < bestError) {
            bestError = e;
            best = i;
        }
        if (-below > bestError) break;
    }
    return best;
}

// Keeps at most `kept` + 1 entries of s, in place: the entries that answer the ranks
// 1 + k (M - 1) / kept for k = 0 .. kept, each once. The first and last entries (the
// exact minimum and maximum) are always among them.
inline void CompressSummary(Entries* s, int64_t kept) {
    if (s->fill <= kept + 1) return;
    int64_t out = 0, at = 0;
    for (int64_t k = 0; k <= kept; ++k) {
        double r = 1 + static_cast<double>(k) * static_cast<double>(s->count - 1) / kept;
        int64_t i = k == kept ? s->fill - 1 : AnswerRank(*s, r, at);
        if (out > 0 && i <= at) continue; // the same entry again
        s->v[out] = s->v[i];
        s->lo[out] = s->lo[i];
        s->hi[out] = s->hi[i];
        ++out;
        at = i;
    }
    s->fill = out;
}

} // namespace brenn::stats

#endif
