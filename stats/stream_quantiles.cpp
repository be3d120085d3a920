// Streaming quantiles: each call feeds a block of observations into the summary that
// the task keeps for each variable (stream_summary.h), one variable a worker over the
// threader's loop, and with BRENN_SS_METHOD_STREAM_READ reads the quantiles of the
// orders from the merge of all levels. The summary depends only on the sequence of
// observations, so any cutting of the data into blocks gives the same results.
#include <math.h>
#include <string.h>

#include "brenn_stats.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"
#include "platform/threader.h"
#include "stats/qsort.h"
#include "stats/stream_summary.h"
#include "stats/task.h"
#include "stats/variable_loop.h"

extern "C" void __qesSQuantilesFreeBuffers(void* task);

namespace brenn::stats {
namespace {

// Observations a variable's ranks can count.
constexpr double kMostObservations = 2147483647.0;

// The relative gap every summary keeps below, against the 2 eps that would answer
// within eps N exactly: a little is left for the rounding of the target rank.
constexpr double kGapShare = 1.8;

// Gives a level `entries` entries of room; false when the block can't be made.
bool MakeLevel(SummaryLevel* l, int64_t entries) {
    size_t bytes;
    if (!BytesFor(entries, sizeof(double) + 2 * sizeof(int32_t), &bytes)) return false;
    void* block = brenn_serv_allocate(bytes, 128);
    if (block == nullptr) return false;
    memset(l, 0, sizeof(*l));
    l->capacity = static_cast<int32_t>(entries);
    l->buffer = block;
    l->values = static_cast<double*>(block);
    l->rankMin = reinterpret_cast<int32_t*>(l->values + entries);
    l->rankMax = l->rankMin + entries;
    return true;
}

void FreeLevels(VariableSummary* v, int32_t levels) {
    for (int32_t l = 0; l < levels; ++l)
        if (v->levels[l].buffer != nullptr) brenn_serv_deallocate(v->levels[l].buffer);
    brenn_serv_deallocate(v->levels);
    v->levels = nullptr;
}

// The first use of a variable: its level 0 and its two work levels.
bool StartVariable(const StreamSummary* s, VariableSummary* v) {
    size_t bytes;
    if (!BytesFor(s->maxLevels + 2, sizeof(SummaryLevel), &bytes)) return false;
    v->levels = static_cast<SummaryLevel*>(brenn_serv_allocate(bytes, 128));
    if (v->levels == nullptr) return false;
    memset(v->levels, 0, bytes);
    const int64_t work = int64_t(s->kept) + 1 + (s->base > s->kept + 1 ? s->base : s->kept + 1);
    SummaryLevel* w = v->levels + s->maxLevels;
    if (!MakeLevel(&v->levels[0], s->base) || !MakeLevel(w, work) || !MakeLevel(w + 1, work)) {
        FreeLevels(v, s->maxLevels + 2);
        return false;
    }
    v->levelCount = 1;
    v->topLevel = -1;
    return true;
}

// Level 0 is full: sorts it and lets it climb to the first empty level, merging and
// compressing on the way. Every level the climb needs is made first, so a failure
// leaves the summary as it was (with level 0 full).
bool Climb(const StreamSummary* s, VariableSummary* v) {
    SummaryLevel* lv = v->levels;
    int32_t empty = 1;
    while (empty < v->levelCount && lv[empty].count != 0)
        ++empty;
    if (empty >= s->maxLevels) return false; // past what int32 ranks can count
    if (empty == v->levelCount) {
        if (!MakeLevel(&lv[empty], int64_t(s->kept) + 1)) return false;
        v->levelCount = empty + 1;
    }
    SummaryLevel& raw = lv[0];
    QuickSort(Contiguous<double>{raw.values}, raw.fill);
    for (int32_t i = 0; i < raw.fill; ++i)
        raw.rankMin[i] = raw.rankMax[i] = i + 1;
    Entries carry = EntriesOf(raw);
    carry.count = raw.fill;
    SummaryLevel* work[2] = {lv + s->maxLevels, lv + s->maxLevels + 1};
    int turn = 0;
    for (int32_t l = 1;; ++l) {
        SummaryLevel& at = lv[l];
        if (at.count == 0) {
            CompressSummary(&carry, s->kept);
            memcpy(at.values, carry.v, carry.fill * sizeof(double));
            memcpy(at.rankMin, carry.lo, carry.fill * sizeof(int32_t));
            memcpy(at.rankMax, carry.hi, carry.fill * sizeof(int32_t));
            at.fill = static_cast<int32_t>(carry.fill);
            at.count = static_cast<int32_t>(carry.count);
            at.weight = static_cast<int32_t>(carry.count / (carry.fill > 0 ? carry.fill : 1));
            if (l > v->topLevel) v->topLevel = l;
            break;
        }
        Entries merged = EntriesOf(*work[turn]);
        MergeSummaries(EntriesOf(at), carry, &merged);
        CompressSummary(&merged, s->kept);
        at.count = at.fill = 0;
        carry = merged;
        turn ^= 1;
    }
    raw.fill = raw.count = 0;
    return true;
}

template <typename T>
struct StreamJob {
    Observations<T> o;
    StreamSummary* summary;
    const T* orders;
    int64_t m;
    T* out; // null when only feeding
};

// The quantiles of variable j from the merge of all its levels.
template <typename T>
int32_t ReadQuantiles(VariableSummary* v, const T* orders, int64_t m, T* out) {
    int64_t total = v->levels[0].fill, n = v->levels[0].fill;
    for (int32_t l = 1; l < v->levelCount; ++l) {
        total += v->levels[l].fill;
        n += v->levels[l].count;
    }
    if (n == 0) return 0; // nothing fed yet: the results are left as they are
    SummaryLevel both[2];
    if (!MakeLevel(&both[0], total)) return BRENN_SS_ERROR_ALLOC;
    if (!MakeLevel(&both[1], total)) {
        brenn_serv_deallocate(both[0].buffer);
        return BRENN_SS_ERROR_ALLOC;
    }
    // Level 0, sorted apart from the buffer that goes on filling, then every level.
    Entries acc = EntriesOf(both[0]);
    const SummaryLevel& raw = v->levels[0];
    memcpy(acc.v, raw.values, raw.fill * sizeof(double));
    QuickSort(Contiguous<double>{acc.v}, raw.fill);
    for (int32_t i = 0; i < raw.fill; ++i)
        acc.lo[i] = acc.hi[i] = i + 1;
    acc.fill = acc.count = raw.fill;
    int turn = 1;
    for (int32_t l = 1; l < v->levelCount; ++l) {
        if (v->levels[l].count == 0) continue;
        Entries next = EntriesOf(both[turn]);
        MergeSummaries(acc, EntriesOf(v->levels[l]), &next);
        acc = next;
        turn ^= 1;
    }
    for (int64_t k = 0; k < m; ++k) {
        // The place the exact quantile rule would read, as a 1-based rank.
        double r = 1 + static_cast<double>(orders[k]) * static_cast<double>(n - 1);
        out[k] = static_cast<T>(acc.v[AnswerRank(acc, r, 0)]);
    }
    brenn_serv_deallocate(both[0].buffer);
    brenn_serv_deallocate(both[1].buffer);
    return 0;
}

template <typename T>
int32_t StreamWorker(VariableLoop* loop, int64_t j, void*) {
    const StreamJob<T>& job = *static_cast<const StreamJob<T>*>(loop->detail);
    StreamSummary* s = job.summary;
    VariableSummary* v = s->variables + j;
    if (v->levels == nullptr && !StartVariable(s, v)) return BRENN_SS_ERROR_ALLOC;
    const T* x = job.o.variableRows ? job.o.x + j * job.o.n : job.o.x + j;
    const int64_t step = job.o.variableRows ? 1 : job.o.p;
    SummaryLevel& raw = v->levels[0];
    for (int64_t i = 0; i < job.o.n;) {
        if (raw.fill == raw.capacity && !Climb(s, v)) return BRENN_SS_ERROR_ALLOC;
        // A chunk bounded by the room left in level 0.
        int64_t take = raw.capacity - raw.fill;
        if (take > job.o.n - i) take = job.o.n - i;
        double* to = raw.values + raw.fill;
        for (int64_t c = 0; c < take; ++c)
            to[c] = static_cast<double>(x[(i + c) * step]);
        raw.fill += static_cast<int32_t>(take);
        raw.count = raw.fill;
        i += take;
    }
    if (raw.fill == raw.capacity && !Climb(s, v)) return BRENN_SS_ERROR_ALLOC;
    if (job.out == nullptr) return 0;
    return ReadQuantiles(v, job.orders, job.m, job.out + j * job.m);
}

// The summary's sizes for accuracy eps: level 0 takes trunc(3 / eps) - trunc(1 / eps)
// values (the first level's block), and a compressed level keeps enough entries that
// 1 / base + maxLevels / kept stays within kGapShare * eps.
bool NewSummary(SSTask* task, int64_t p, double eps, const int64_t* act, int64_t q) {
    StreamSummary head;
    head.p = p;
    // Below eps = 2^-30 or so the sizes pass what a level can hold; the blocks asked
    // for then fail to be made, and the call reports the allocation status.
    constexpr double kMostEntries = 1 << 30;
    const double base = floor(3 / eps) - floor(1 / eps);
    head.base = static_cast<int32_t>(base < 2 ? 2 : base > kMostEntries ? kMostEntries : base);
    head.maxLevels = static_cast<int32_t>(ceil(log2(kMostObservations / head.base))) + 2;
    const double room = kGapShare * eps - 1.0 / head.base;
    const double kept =
        room > head.maxLevels / kMostEntries ? ceil(head.maxLevels / room) : kMostEntries;
    head.kept = static_cast<int32_t>(kept);
    size_t bytes = sizeof(StreamSummary);
    if (!AddBytesFor(&bytes, p, sizeof(VariableSummary))) return false;
    auto* s = static_cast<StreamSummary*>(brenn_serv_allocate(bytes, 128));
    if (s == nullptr) return false;
    *s = head;
    s->variables = reinterpret_cast<VariableSummary*>(s + 1);
    memset(s->variables, 0, p * sizeof(VariableSummary));
    for (int64_t c = 0; c < q; ++c)
        s->variables[act[c]].active = 1;
    task->streamState = s;
    task->cleanup = reinterpret_cast<SSCleanup>(__qesSQuantilesFreeBuffers);
    task->cleanupCount = 1;
    return true;
}

template <typename T>
int32_t StreamQuantiles(void* handle, uint64_t estimates, uint64_t method, const threader* thr) {
    if (handle == nullptr) return BRENN_SS_ERROR_TASK_NULL;
    SSTask* task = static_cast<SSTask*>(handle);
    if ((estimates & BRENN_SS_STREAM_QUANTS) == 0) return BRENN_SS_OK;
    StreamJob<T> job{};
    Observations<T>& o = job.o;
    if (task->observationCount == nullptr ||
        (o.n = ReadIndexWord(task, task->observationCount)) <= 0)
        return BRENN_SS_ERROR_OBSERVATION_COUNT;
    if (task->observations == nullptr) return BRENN_SS_ERROR_OBSERVATIONS_MISSING;
    if (task->dimension == nullptr || (o.p = ReadIndexWord(task, task->dimension)) <= 0)
        return BRENN_SS_ERROR_DIMENSION;
    if (task->observationStorage == nullptr) return BRENN_SS_ERROR_STORAGE_WORD_MISSING;
    const int64_t layout = ReadIndexWord(task, task->observationStorage);
    if (!KnownLayout(layout)) return BRENN_SS_ERROR_STORAGE;
    o.x = static_cast<const T*>(task->observations);
    o.variableRows = layout == BRENN_SS_MATRIX_STORAGE_ROWS;
    if (task->streamQuantiles == nullptr) return BRENN_SS_ERROR_STREAM_QUANTILES_MISSING;
    if (task->streamOrders == nullptr) return BRENN_SS_ERROR_STREAM_ORDERS_MISSING;
    if (task->streamOrderCount == nullptr ||
        (job.m = ReadIndexWord(task, task->streamOrderCount)) < 0)
        return BRENN_SS_ERROR_STREAM_ORDER_COUNT;
    if (task->streamParamCount == nullptr) return BRENN_SS_ERROR_STREAM_PARAM_COUNT_MISSING;
    if (ReadIndexWord(task, task->streamParamCount) != 1) return BRENN_SS_ERROR_STREAM_PARAM_COUNT;
    job.orders = static_cast<const T*>(task->streamOrders);
    for (int64_t k = 0; k < job.m; ++k)
        if (!(job.orders[k] >= T(0) && job.orders[k] <= T(1)))
            return BRENN_SS_ERROR_STREAM_ORDER_COUNT;
    if (task->streamParams == nullptr) return BRENN_SS_ERROR_STREAM_PARAMS_MISSING;
    if ((method & (BRENN_SS_METHOD_STREAM_READ | BRENN_SS_METHOD_STREAM_FEED)) == 0)
        return BRENN_SS_ERROR_METHOD;
    const double eps = static_cast<const T*>(task->streamParams)[0];
    if (!(eps > 0 && eps <= 1)) return BRENN_SS_ERROR_STREAM_ACCURACY;
    auto* s = static_cast<StreamSummary*>(task->streamState);
    if (s != nullptr && task->indices != nullptr)
        for (int64_t j = 0; j < o.p && j < s->p; ++j)
            if (s->variables[j].active == 0 && ReadIndexWord(task, task->indices, j) != 0)
                return BRENN_SS_ERROR_INDICES_MISSING;
    if (s != nullptr && o.p > s->p) return BRENN_SS_ERROR_DIMENSION;
    if (s == nullptr) {
        // The variables kept, gathered as the loop below gathers them.
        size_t bytes;
        if (!BytesFor(o.p, sizeof(int64_t), &bytes)) return BRENN_SS_ERROR_ALLOC;
        auto* act = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
        if (act == nullptr) return BRENN_SS_ERROR_ALLOC;
        const int64_t q = ActiveVariables(task, o.p, act);
        const bool made = NewSummary(task, o.p, eps, act, q);
        brenn_serv_deallocate(act);
        if (!made) return BRENN_SS_ERROR_ALLOC;
        s = static_cast<StreamSummary*>(task->streamState);
    }
    job.summary = s;
    if ((method & BRENN_SS_METHOD_STREAM_READ) != 0)
        job.out = static_cast<T*>(task->streamQuantiles);
    return ForEachVariable(task, o.p, 0, thr, StreamWorker<T>, &job);
}

} // namespace
} // namespace brenn::stats

using namespace brenn::stats;

BRENN_EXPORT void __qesSQuantilesFreeBuffers(void* handle) {
    if (handle == nullptr) return;
    SSTask* task = static_cast<SSTask*>(handle);
    auto* s = static_cast<StreamSummary*>(task->streamState);
    if (s == nullptr) return;
    for (int64_t j = 0; j < s->p; ++j)
        if (s->variables[j].levels != nullptr) FreeLevels(s->variables + j, s->maxLevels + 2);
    brenn_serv_deallocate(s);
    task->streamState = nullptr;
}

BRENN_EXPORT int32_t _qesdSSStreamQuantiles(void* task, uint64_t estimates, uint64_t method,
                                            const threader* thr) {
    return StreamQuantiles<double>(task, estimates, method, thr);
}

BRENN_EXPORT int32_t _qessSSStreamQuantiles(void* task, uint64_t estimates, uint64_t method,
                                            const threader* thr) {
    return StreamQuantiles<float>(task, estimates, method, thr);
}
