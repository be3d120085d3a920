// Integration: the preamble (integrand kind, the searchers of the two limit arrays,
// layout), the table of searchers and integrators, the intervals in blocks of 64 and
// chunks of 320 on the threader, and the whole-piece sums, from trees built for a batch
// or summed on the spot. Every interval's integral depends on its own limits alone:
// the same bits whichever batch, chunk or thread computes it.
#include <cstring>

#include "fitting/first_failure.h"
#include "fitting/integral_pieces.h"
#include "fitting/integral_sums.h"
#include "fitting/search_rules.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {
namespace {

constexpr int64_t kBlock = 64;
constexpr int64_t kChunkIntervals = 320;
constexpr int64_t kThreadedIntervals = 512;
// Intervals searched ahead to judge whether trees pay for themselves.
constexpr int64_t kSampleIntervals = 64;
// Doubles of the trees held at once; functions beyond that go in turns.
constexpr int64_t kTreeBudget = int64_t(1) << 22;
// The extra argument that a user searcher sees from integration.
constexpr int64_t kSearchFromIntegration = 2;

template <typename T>
using IntegCallback = int32_t (*)(const int64_t* count, T* result, const T* llim, const T* rlim,
                                  void* params, int64_t function);

// One array of limits: the caller's, or the ends of evenly spread ones.
template <typename T>
struct Limits {
    const T* v;
    bool uniform;
    double start, step;
    SearchSetup<T> search;
    int row;
};

template <typename T>
struct Integ;

template <typename T>
using BlockSearcher = int32_t (*)(const SearchSetup<T>& st, int64_t n, const T* site, int32_t* cell,
                                  int64_t* position);
template <typename T>
using BlockIntegrator = int32_t (*)(const Integ<T>& in, int64_t begin, int64_t n, const T* a,
                                    const T* b, const int32_t* ca, const int32_t* cb);

// A row of the integration table: a searcher and the integrators that go with its
// partition form, without and with callbacks.
template <typename T>
struct IntegrationRow {
    BlockSearcher<T> search;
    BlockIntegrator<T> plain;
    BlockIntegrator<T> callback;
};

template <typename T>
struct Integ {
    const FittingTask* task;
    Pieces<T> pieces;
    int64_t nf, nlim;
    Limits<T> lower, upper;
    BlockIntegrator<T> integrator;
    T* result;
    int64_t layout;
    IntegCallback<T> side[3]; // left, interior, right
    void* sideParams[3];
    // The functions of this turn, and their trees (null: sums on the spot).
    int64_t fBegin, fEnd;
    PairwiseShape shape;
    const double* trees;
};

template <typename T>
inline void Store(const Integ<T>& in, int64_t f, int64_t k, double v) {
    int64_t at =
        in.layout == FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES ? f * in.nlim + k : k * in.nf + f;
    in.result[at] = static_cast<T>(v);
}

// Whole pieces [i, j) of function f.
template <typename T, bool Uniform, int Form>
[[gnu::always_inline]] inline double Middle(const Integ<T>& in, int64_t f, const Integrand<T>& g,
                                            int64_t i, int64_t j) {
    if (i >= j) return 0.0;
    if (in.trees != nullptr)
        return RangeSum(TreeNodes{&in.shape, in.trees + (f - in.fBegin) * in.shape.total}, i, j);
    const Pieces<T>& p = in.pieces;
    auto leaf = [&p, &g](int64_t k) { return WholePiece<T, Uniform, Form>(p, g, k); };
    return RangeSum(SummedNodes<decltype(leaf)>{&in.shape, leaf}, i, j);
}

// The integral of function f's spline over one span.
template <typename T, bool Uniform, int Form>
[[gnu::always_inline]] inline double SpanIntegral(const Integ<T>& in, int64_t f,
                                                  const Integrand<T>& g, const Span& s) {
    const Pieces<T>& p = in.pieces;
    double v = s.wA * PartMean<T, Form>(p, g, s.first, s.qA, s.uA, s.vA);
    if (s.first == s.last) return v;
    double mid = Middle<T, Uniform, Form>(in, f, g, s.first + 1, s.last);
    return (v + mid) + s.vB * PartMean<T, Form>(p, g, s.last, s.qB, 0.0, s.vB);
}

template <typename T, bool Uniform>
double SpanIntegralOfKind(const Integ<T>& in, int64_t f, const Integrand<T>& g, const Span& s) {
    switch (in.pieces.kind) {
    case kEvalLinear:
        return SpanIntegral<T, Uniform, kEvalLinear>(in, f, g, s);
    case kEvalQuadratic:
        return SpanIntegral<T, Uniform, kEvalQuadratic>(in, f, g, s);
    case kEvalCubic:
        return SpanIntegral<T, Uniform, kEvalCubic>(in, f, g, s);
    case kEvalKnotQuadratic:
        return SpanIntegral<T, Uniform, kEvalKnotQuadratic>(in, f, g, s);
    case kEvalStepLeftContinuous:
        return SpanIntegral<T, Uniform, kEvalStepLeftContinuous>(in, f, g, s);
    case kEvalStepRightContinuous:
        return SpanIntegral<T, Uniform, kEvalStepRightContinuous>(in, f, g, s);
    default:
        return SpanIntegral<T, Uniform, kEvalGeneric>(in, f, g, s);
    }
}

// Limits in ascending order; an interval given the other way round is negated at
// the end, so that it is exactly minus the ascending one.
template <typename T>
inline bool Ascending(const T* a, const T* b, const int32_t* ca, const int32_t* cb, int64_t j,
                      double* lo, double* hi, int64_t* cl, int64_t* ch) {
    bool swap = b[j] < a[j];
    *lo = swap ? b[j] : a[j];
    *hi = swap ? a[j] : b[j];
    *cl = swap ? cb[j] : ca[j];
    *ch = swap ? ca[j] : cb[j];
    return swap;
}

template <typename T, bool Uniform, int Form>
void PlainForm(const Integ<T>& in, int64_t begin, int64_t n, const Span* spans,
               const bool* negate) {
    for (int64_t f = in.fBegin; f < in.fEnd; ++f) {
        Integrand<T> g = IntegrandOf(in.task, in.pieces, f);
        for (int64_t j = 0; j < n; ++j) {
            double v = SpanIntegral<T, Uniform, Form>(in, f, g, spans[j]);
            Store(in, f, begin + j, negate[j] ? -v : v);
        }
    }
}

template <typename T, bool Uniform>
int32_t PlainBlock(const Integ<T>& in, int64_t begin, int64_t n, const T* a, const T* b,
                   const int32_t* ca, const int32_t* cb) {
    Span spans[kBlock];
    bool negate[kBlock];
    for (int64_t j = 0; j < n; ++j) {
        double lo, hi;
        int64_t cl, ch;
        negate[j] = Ascending(a, b, ca, cb, j, &lo, &hi, &cl, &ch);
        MakeSpan<T, Uniform>(in.pieces, lo, hi, cl, ch, &spans[j]);
    }
    switch (in.pieces.kind) {
    case kEvalLinear:
        PlainForm<T, Uniform, kEvalLinear>(in, begin, n, spans, negate);
        break;
    case kEvalQuadratic:
        PlainForm<T, Uniform, kEvalQuadratic>(in, begin, n, spans, negate);
        break;
    case kEvalCubic:
        PlainForm<T, Uniform, kEvalCubic>(in, begin, n, spans, negate);
        break;
    case kEvalKnotQuadratic:
        PlainForm<T, Uniform, kEvalKnotQuadratic>(in, begin, n, spans, negate);
        break;
    case kEvalStepLeftContinuous:
        PlainForm<T, Uniform, kEvalStepLeftContinuous>(in, begin, n, spans, negate);
        break;
    case kEvalStepRightContinuous:
        PlainForm<T, Uniform, kEvalStepRightContinuous>(in, begin, n, spans, negate);
        break;
    default:
        PlainForm<T, Uniform, kEvalGeneric>(in, begin, n, spans, negate);
        break;
    }
    return FIT_STATUS_OK;
}

// With callbacks an interval is cut at the two ends of the partition into at most
// three parts, left of x[0], inside, right of x[nx-1]. A part whose side has a
// callback is the callback's; neighbouring parts that have none are one span of the
// spline, so that an interval that meets no callback's side gets the plain
// integrator's bits.
constexpr int kPoly = 3;

struct Part {
    int source; // 0 left, 1 interior, 2 right: that side's callback; kPoly: the spline
    double lo, hi;
    int64_t cellLo, cellHi;
    Span span;
};

inline Part MakePart(int source, double lo, double hi, int64_t cellLo, int64_t cellHi) {
    Part p{};
    p.source = source;
    p.lo = lo;
    p.hi = hi;
    p.cellLo = cellLo;
    p.cellHi = cellHi;
    return p;
}

template <typename T, bool Uniform>
int32_t CallbackBlock(const Integ<T>& in, int64_t begin, int64_t n, const T* a, const T* b,
                      const int32_t* ca, const int32_t* cb) {
    const Pieces<T>& p = in.pieces;
    int64_t nx = p.nx;
    double x0 = p.x.x[0], xr = Uniform ? p.x.x[1] : p.x.x[nx - 1];
    Part parts[kBlock][3];
    int count[kBlock];
    bool negate[kBlock];
    double nan[kBlock];
    // Each side's parts for its callback: the limits and where the answers go.
    T sideLo[3][kBlock], sideHi[3][kBlock], sideValue[kBlock];
    int64_t sideCount[3] = {0, 0, 0};
    int sideOwner[3][kBlock]; // interval * 3 + part
    for (int64_t j = 0; j < n; ++j) {
        double lo, hi;
        int64_t cl, ch;
        negate[j] = Ascending(a, b, ca, cb, j, &lo, &hi, &cl, &ch);
        count[j] = 0;
        nan[j] = 0;
        if (lo != lo || hi != hi) {
            nan[j] = lo + hi;
            continue;
        }
        Part cut[3];
        int m = 0;
        bool left = lo<x0, right = hi> xr;
        if (left) cut[m++] = MakePart(0, lo, hi < x0 ? hi : x0, cl, hi < x0 ? ch : 1);
        double mlo = lo < x0 ? x0 : lo, mhi = hi > xr ? xr : hi;
        if (mlo < mhi || (!left && !right))
            cut[m++] = MakePart(1, mlo, mhi, lo < x0 ? 1 : cl, hi > xr ? nx - 1 : ch);
        if (right) cut[m++] = MakePart(2, lo > xr ? lo : xr, hi, lo > xr ? cl : nx - 1, ch);
        Part* out = parts[j];
        int k = 0;
        for (int i = 0; i < m; ++i) {
            Part c = cut[i];
            if (in.side[c.source] != nullptr) {
                out[k++] = c;
                continue;
            }
            c.source = kPoly;
            if (k > 0 && out[k - 1].source == kPoly) {
                out[k - 1].hi = c.hi;
                out[k - 1].cellHi = c.cellHi;
            } else {
                out[k++] = c;
            }
        }
        for (int i = 0; i < k; ++i) {
            Part& c = out[i];
            if (c.source == kPoly) {
                MakeSpan<T, Uniform>(p, c.lo, c.hi, c.cellLo, c.cellHi, &c.span);
            } else {
                int64_t& s = sideCount[c.source];
                sideLo[c.source][s] = static_cast<T>(c.lo);
                sideHi[c.source][s] = static_cast<T>(c.hi);
                sideOwner[c.source][s++] = static_cast<int>(j * 3 + i);
            }
        }
        count[j] = k;
    }
    double values[kBlock][3];
    for (int64_t f = in.fBegin; f < in.fEnd; ++f) {
        for (int side = 0; side < 3; ++side) {
            if (sideCount[side] == 0) continue;
            int32_t status = in.side[side](&sideCount[side], sideValue, sideLo[side], sideHi[side],
                                           in.sideParams[side], f);
            if (status < 0) return status;
            for (int64_t s = 0; s < sideCount[side]; ++s) {
                int owner = sideOwner[side][s];
                values[owner / 3][owner % 3] = static_cast<double>(sideValue[s]);
            }
        }
        Integrand<T> g{};
        bool spline = in.pieces.order > 0 || in.pieces.kind != kEvalGeneric;
        if (spline) g = IntegrandOf(in.task, p, f);
        for (int64_t j = 0; j < n; ++j) {
            double v = nan[j];
            for (int i = 0; i < count[j]; ++i) {
                const Part& c = parts[j][i];
                double part = c.source == kPoly ? SpanIntegralOfKind<T, Uniform>(in, f, g, c.span)
                                                : values[j][i];
                v = i == 0 ? part : v + part;
            }
            Store(in, f, begin + j, negate[j] ? -v : v);
        }
    }
    return FIT_STATUS_OK;
}

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

template <typename T>
int32_t SearchLimits(const Limits<T>& l, int64_t begin, int64_t n, T* made, const T** site,
                     int32_t* cell, int64_t* position) {
    *site = LimitsOf(l, begin, n, made);
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
    BuildTree(
        in.shape, [&p, &g](int64_t k) { return WholePiece<T, Uniform, Form>(p, g, k); },
        trees + (f - in.fBegin) * in.shape.total);
}

template <typename T, bool Uniform>
void BuildTreesOfKind(const Integ<T>& in, double* trees, int64_t f) {
    switch (in.pieces.kind) {
    case kEvalLinear:
        return BuildTrees<T, Uniform, kEvalLinear>(in, trees, f);
    case kEvalQuadratic:
        return BuildTrees<T, Uniform, kEvalQuadratic>(in, trees, f);
    case kEvalCubic:
        return BuildTrees<T, Uniform, kEvalCubic>(in, trees, f);
    case kEvalKnotQuadratic:
        return BuildTrees<T, Uniform, kEvalKnotQuadratic>(in, trees, f);
    case kEvalStepLeftContinuous:
        return BuildTrees<T, Uniform, kEvalStepLeftContinuous>(in, trees, f);
    case kEvalStepRightContinuous:
        return BuildTrees<T, Uniform, kEvalStepRightContinuous>(in, trees, f);
    default:
        return BuildTrees<T, Uniform, kEvalGeneric>(in, trees, f);
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
    if (run->in->pieces.x.uniform)
        BuildTreesOfKind<T, true>(*run->in, run->trees, f);
    else
        BuildTreesOfKind<T, false>(*run->in, run->trees, f);
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

    int threads = thr != nullptr ? thr->maxThreads() : 1;
    if (threads < 1) threads = 1;
    if (!TreesPay(in)) {
        in.fBegin = 0;
        in.fEnd = in.nf;
        return RunIntervals(in, thr, threads);
    }
    // Trees, as many functions' at a time as the budget holds (one at least).
    int64_t perTurn = kTreeBudget / in.shape.total;
    if (perTurn < 1) perTurn = 1;
    if (perTurn > in.nf) perTurn = in.nf;
    size_t bytes, treeBytes;
    if (!BytesFor(in.shape.total, sizeof(double), &treeBytes) ||
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
