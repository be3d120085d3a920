// Integration: the preamble (integrand kind, the searchers of the two limit arrays,
// layout), the table of searchers and integrators, the intervals in blocks of 64 and
// chunks of 320 on the threader, the trees of whole-piece sums and their walks, built when
// a batch is long enough to pay for them (otherwise the sums are made on the spot), and
// the grid of the limits' cells for a batch large beside the partition. Every interval's
// integral depends on its own limits alone: the same bits whichever batch, chunk or thread computes
// it.
#include <cstring>

#include "fitting/first_failure.h"
#include "fitting/integrate_block.h"
#include "fitting/integrate_callbacks.h"
#include "fitting/limit_cells.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {
namespace {

constexpr int64_t kBlock = kIntegrationBlock;
constexpr int64_t kChunkIntervals = 320;
constexpr int64_t kThreadedIntervals = 512;
// Intervals searched ahead to judge whether trees pay for themselves.
constexpr int64_t kSampleIntervals = 64;
// Doubles of the trees held at once; functions beyond that go in turns.
constexpr int64_t kTreeBudget = int64_t(1) << 22;
// The extra argument that a user searcher sees from integration.
constexpr int64_t kSearchFromIntegration = 2;

template <typename T>
using BlockSearcher = int32_t (*)(const SearchSetup<T>& st, int64_t n, const T* site, int32_t* cell,
                                  int64_t* position);

// A row of the integration table: a searcher and the integrators that go with its
// partition form, without and with callbacks.
template <typename T>
struct IntegrationRow {
    BlockSearcher<T> search;
    BlockIntegrator<T> plain;
    BlockIntegrator<T> callback;
};

template <typename T, int Index>
int32_t SearchBlock(const SearchSetup<T>& st, int64_t n, const T* site, int32_t* cell,
                    int64_t* position) {
    if constexpr (Index >= kSearchUserDef) {
        return SearchUser(st, n, site, cell, false);
    } else {
        SearchPlain(st, n, site, cell, position);
        return FIT_STATUS_OK;
    }
}

// The table: one row a searcher, the integrators of its partition form beside it (the
// uniform searchers' rows, 0 and 6, place the nodes by the step).
template <typename T, int Index>
constexpr IntegrationRow<T> kRow = {
    SearchBlock<T, Index>, PlainBlock<T, Index == kSearchUniform || Index == kSearchUniUserDef>,
    CallbackBlock<T, Index == kSearchUniform || Index == kSearchUniUserDef>};

template <typename T>
constexpr IntegrationRow<T> kIntegrationTable[7] = {
    kRow<T, kSearchUniform>,   kRow<T, kSearchQuasiUniform>, kRow<T, kSearchSorted>,
    kRow<T, kSearchPeak>,      kRow<T, kSearchHybrid>,       kRow<T, kSearchUserDef>,
    kRow<T, kSearchUniUserDef>};

template <typename T>
inline const T* LimitsOf(const Limits<T>& l, int64_t begin, int64_t n, T* made) {
    if (!l.uniform) return l.v + begin;
    for (int64_t j = 0; j < n; ++j)
        made[j] = static_cast<T>(l.start + static_cast<double>(begin + j) * l.step);
    return made;
}

// The searchers that a grid may stand in for: those that keep no walk and run no
// callback.
inline bool GridServes(int row) {
    return row == kSearchQuasiUniform || row == kSearchPeak || row == kSearchHybrid;
}

template <typename T>
int32_t SearchLimits(const Limits<T>& l, int64_t begin, int64_t n, T* made, const T** site,
                     int32_t* cell, int64_t* position) {
    *site = LimitsOf(l, begin, n, made);
    if (l.grid != nullptr) {
        GridCells(*l.grid, l.search, n, *site, cell);
        return FIT_STATUS_OK;
    }
    return kIntegrationTable<T>[l.row].search(l.search, n, *site, cell, position);
}

// Intervals [begin, begin + count) in blocks; positions: the sorted searchers' walks.
template <typename T>
int32_t DoIntervals(const Integ<T>& in, int64_t begin, int64_t count) {
    int64_t posLo = 0, posHi = 0;
    T madeA[kBlock], madeB[kBlock];
    int32_t ca[kBlock], cb[kBlock];
    for (int64_t k = begin; k < begin + count; k += kBlock) {
        int64_t n = begin + count - k < kBlock ? begin + count - k : kBlock;
        const T *a, *b;
        if (int32_t s = SearchLimits(in.lower, k, n, madeA, &a, ca, &posLo)) return s;
        if (int32_t s = SearchLimits(in.upper, k, n, madeB, &b, cb, &posHi)) return s;
        if (int32_t s = in.integrator(in, k, n, a, b, ca, cb)) return s;
    }
    return FIT_STATUS_OK;
}

template <typename T>
struct ChunkRun {
    const Integ<T>* in;
    FirstFailure failure;
};

template <typename T>
void IntegrateChunk(int64_t k, int, int64_t, void* context) {
    auto* run = static_cast<ChunkRun<T>*>(context);
    if (run->failure.Skip(k)) return;
    if (int32_t s = DoIntervals(*run->in, k * kChunkIntervals, kChunkIntervals))
        run->failure.Record(k, s);
}

template <typename T>
int32_t RunIntervals(const Integ<T>& in, const threader* thr, int threads) {
    int64_t chunks = in.nlim / kChunkIntervals;
    ChunkRun<T> run;
    run.in = &in;
    if (in.nlim > kThreadedIntervals && threads > 1) {
        thr->parallelFor(chunks, threads, &run, IntegrateChunk<T>);
    } else {
        for (int64_t k = 0; k < chunks && !run.failure.Failed(); ++k)
            IntegrateChunk<T>(k, 0, chunks, &run);
    }
    if (run.failure.Failed()) return run.failure.Status();
    int64_t done = chunks * kChunkIntervals;
    return done < in.nlim ? DoIntervals(in, done, in.nlim - done) : FIT_STATUS_OK;
}

// Trees of the functions of a turn, one a function.
template <typename T, bool Uniform, int Form>
void BuildTrees(const Integ<T>& in, double* trees, int64_t f) {
    Integrand<T> g = IntegrandOf(in.task, in.pieces, f);
    const Pieces<T>& p = in.pieces;
    double* tree = trees + (f - in.fBegin) * in.perFunction;
    BuildTree(
        in.shape, [&p, &g](int64_t k) { return WholePiece<T, Uniform, Form>(p, g, k); }, tree);
    if (in.walks) {
        double* left = tree + in.shape.total;
        BuildWalks(in.shape, tree, left, left + WalkTableSize(in.shape));
    }
}

template <typename T>
struct TreeRun {
    const Integ<T>* in;
    double* trees;
};

template <typename T>
void TreeChunk(int64_t k, int, int64_t, void* context) {
    auto* run = static_cast<TreeRun<T>*>(context);
    int64_t f = run->in->fBegin + k;
    const Integ<T>& in = *run->in;
    ByForm(in.pieces.kind, [&](auto form) {
        if (in.pieces.x.uniform)
            BuildTrees<T, true, decltype(form)::value>(in, run->trees, f);
        else
            BuildTrees<T, false, decltype(form)::value>(in, run->trees, f);
    });
}

// Whether trees pay: the whole pieces that the first intervals would sum on the spot,
// scaled to the batch, against the pieces of a tree. A user searcher is not asked
// ahead of its turn; there a batch of more than a sample's intervals takes trees.
template <typename T>
bool TreesPay(const Integ<T>& in) {
    if (in.pieces.count < 2 || in.side[1] != nullptr) return false;
    if (in.lower.row >= kSearchUserDef) return in.nlim > kSampleIntervals;
    int64_t n = in.nlim < kSampleIntervals ? in.nlim : kSampleIntervals;
    T madeA[kSampleIntervals], madeB[kSampleIntervals];
    int32_t ca[kSampleIntervals], cb[kSampleIntervals];
    int64_t posLo = 0, posHi = 0;
    const T *a, *b;
    SearchLimits(in.lower, 0, n, madeA, &a, ca, &posLo);
    SearchLimits(in.upper, 0, n, madeB, &b, cb, &posHi);
    double whole = 0;
    for (int64_t j = 0; j < n; ++j) {
        int64_t gap = ca[j] > cb[j] ? ca[j] - cb[j] : cb[j] - ca[j];
        whole += static_cast<double>(gap);
    }
    return whole * static_cast<double>(in.nlim) / static_cast<double>(n) >
           static_cast<double>(in.pieces.count);
}

// The intervals of a set-up call, with trees where they pay.
template <typename T>
int32_t Run(Integ<T>& in, const threader* thr) {
    const Pieces<T>& p = in.pieces;
    int threads = thr != nullptr ? thr->maxThreads() : 1;
    if (threads < 1) threads = 1;
    if (!TreesPay(in)) {
        in.fBegin = 0;
        in.fEnd = in.nf;
        return RunIntervals(in, thr, threads);
    }
    // Trees, as many functions' at a time as the budget holds (one at least). With
    // twice as many intervals as pieces, and a function's walk tables inside the
    // budget, the walks are kept too: a range sum is then two reads, not a walk of
    // every level.
    int64_t walkSize = 2 * WalkTableSize(in.shape);
    in.walks = in.nlim >= 2 * p.count && walkSize <= kTreeBudget - in.shape.total;
    in.perFunction = in.shape.total + (in.walks ? walkSize : 0);
    int64_t perTurn = kTreeBudget / in.perFunction;
    if (perTurn < 1) perTurn = 1;
    if (perTurn > in.nf) perTurn = in.nf;
    size_t bytes, treeBytes;
    if (!BytesFor(in.perFunction, sizeof(double), &treeBytes) ||
        !BytesFor(perTurn, treeBytes, &bytes))
        return FIT_STATUS_NO_MEMORY;
    auto* trees = static_cast<double*>(brenn_serv_allocate(bytes, 128));
    if (trees == nullptr) return FIT_STATUS_NO_MEMORY;
    in.trees = trees;
    int32_t status = FIT_STATUS_OK;
    for (int64_t f = 0; f < in.nf && status == FIT_STATUS_OK; f += perTurn) {
        in.fBegin = f;
        in.fEnd = f + perTurn < in.nf ? f + perTurn : in.nf;
        TreeRun<T> run{&in, trees};
        int64_t n = in.fEnd - in.fBegin;
        if (n > 1 && threads > 1)
            thr->parallelFor(n, threads, &run, TreeChunk<T>);
        else
            for (int64_t k = 0; k < n; ++k)
                TreeChunk<T>(k, 0, n, &run);
        status = RunIntervals(in, thr, threads);
    }
    brenn_serv_deallocate(trees);
    return status;
}

template <typename T>
int32_t Integrate(FitTaskHandle handle, int64_t nlim, const T* llim, int64_t llimHint,
                  const T* rlim, int64_t rlimHint, const T* ldataHint, const T* rdataHint,
                  T* result, int64_t resultHint, IntegCallback<T> left, void* leftParams,
                  IntegCallback<T> right, void* rightParams, IntegCallback<T> interior,
                  void* interiorParams, SearchCallback<T> searchCallback, void* searchParams,
                  const threader* thr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    Integ<T> in{};
    in.task = task;

    // Preamble: integrand, searchers, layout.
    int kind;
    bool allCallbacks = left != nullptr && right != nullptr && interior != nullptr;
    if (int32_t s = KindOf(task->sOrder, task->sType, allCallbacks, &kind)) return s;
    if (kind == kEvalLookup) return FIT_STATUS_BAD_SPLINE_TYPE;
    bool user = searchCallback != nullptr;
    if (int32_t s = SelectSearcher<T>(task, ldataHint, user, llimHint, &in.lower.row)) return s;
    if (int32_t s = SelectSearcher<T>(task, rdataHint, user, rlimHint, &in.upper.row)) return s;
    int64_t layout = resultHint == 0 ? int64_t{FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES} : resultHint;
    if (layout != FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES &&
        layout != FIT_RESULT_SITES_FUNCTIONS_DERIVATIVES)
        return FIT_STATUS_BAD_RESULT_HINT;

    // Set-up from the task.
    Pieces<T>& p = in.pieces;
    p.kind = kind;
    p.nx = task->nx;
    p.order = task->sOrder;
    p.count = kind == kEvalKnotQuadratic ? task->nx : task->nx - 1;
    p.x = NodesOf<T>(task);
    if (kind == kEvalKnotQuadratic) p.knots = KnotsOf<T>(task);
    p.yColumns = task->yHint == FIT_Y_COLUMNS;
    if (kind == kEvalStepLeftContinuous || kind == kEvalStepRightContinuous) {
        if (int32_t s = CheckFunctionPointers(task, p.yColumns)) return s;
    } else if (!(kind == kEvalGeneric && task->sOrder == 0)) {
        if (int32_t s = CheckCoefficientPointers(task)) return s;
    }
    in.nf = task->ny > 0 ? task->ny : 1;
    in.nlim = nlim;
    in.result = result;
    in.layout = layout;
    in.side[0] = left;
    in.side[1] = interior;
    in.side[2] = right;
    in.sideParams[0] = leftParams;
    in.sideParams[1] = interiorParams;
    in.sideParams[2] = rightParams;
    in.shape = ShapeOf(p.count);
    if (nlim <= 0) return FIT_STATUS_OK;
    Limits<T>* lims[2] = {&in.lower, &in.upper};
    const T* values[2] = {llim, rlim};
    const T* dataHints[2] = {ldataHint, rdataHint};
    int64_t hints[2] = {llimHint, rlimHint};
    for (int i = 0; i < 2; ++i) {
        Limits<T>& l = *lims[i];
        l.v = values[i];
        l.uniform = hints[i] == FIT_SITES_UNIFORM;
        if (l.uniform) {
            l.start = values[i][0];
            l.step = nlim > 1 ? (static_cast<double>(values[i][1]) - values[i][0]) /
                                    static_cast<double>(nlim - 1)
                              : 0;
        }
        l.search = MakeSearchSetup<T>(l.row, task, dataHints[i], searchCallback, searchParams,
                                      kSearchFromIntegration);
    }
    const IntegrationRow<T>& row = kIntegrationTable<T>[in.lower.row];
    bool callbacks = left != nullptr || right != nullptr || interior != nullptr;
    in.integrator = callbacks ? row.callback : row.plain;

    // A grid of the limits' cells, for a batch large beside the partition, standing
    // in for the searchers that keep no walk.
    CellGrid grid{};
    bool gridFor[2] = {GridServes(in.lower.row), GridServes(in.upper.row)};
    size_t gridBytes;
    if ((gridFor[0] || gridFor[1]) && task->nx >= 4 && nlim * 4 >= task->nx &&
        BytesFor(task->nx + 1, sizeof(int32_t), &gridBytes)) {
        grid.buckets = task->nx;
        grid.start = static_cast<int32_t*>(brenn_serv_allocate(gridBytes, 64));
        if (grid.start != nullptr && BuildGrid(static_cast<const T*>(task->x), task->nx, &grid)) {
            for (int i = 0; i < 2; ++i)
                if (gridFor[i]) lims[i]->grid = &grid;
        }
    }
    int32_t status = Run(in, thr);
    if (grid.start != nullptr) brenn_serv_deallocate(grid.start);
    return status;
}

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFIntegrate1D(
    FitTaskHandle task, int64_t, int64_t nlim, const double* llim, int64_t llimHint,
    const double* rlim, int64_t rlimHint, const double* ldataHint, const double* rdataHint,
    double* result, int64_t resultHint, FitdIntegCallback left, void* leftParams,
    FitdIntegCallback right, void* rightParams, FitdIntegCallback interior, void* interiorParams,
    FitdSearchCallback search, void* searchParams, const threader* thr) {
    return Integrate<double>(task, nlim, llim, llimHint, rlim, rlimHint, ldataHint, rdataHint,
                             result, resultHint, left, leftParams, right, rightParams, interior,
                             interiorParams, search, searchParams, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFIntegrate1D(
    FitTaskHandle task, int64_t, int64_t nlim, const float* llim, int64_t llimHint,
    const float* rlim, int64_t rlimHint, const float* ldataHint, const float* rdataHint,
    float* result, int64_t resultHint, FitsIntegCallback left, void* leftParams,
    FitsIntegCallback right, void* rightParams, FitsIntegCallback interior, void* interiorParams,
    FitsSearchCallback search, void* searchParams, const threader* thr) {
    return Integrate<float>(task, nlim, llim, llimHint, rlim, rlimHint, ldataHint, rdataHint,
                            result, resultHint, left, leftParams, right, rightParams, interior,
                            interiorParams, search, searchParams, thr);
}
