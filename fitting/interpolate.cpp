// Interpolation: the preamble (evaluator kind, searcher, layout, derivative rows), the
// site loop in blocks of 64 and chunks of 320 on the threader, the callbacks, and the
// copy of each block to the caller's layout.
#include <cstring>

#include "fitting/evaluate.h"
#include "fitting/first_failure.h"
#include "fitting/search_rules.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {
namespace {

constexpr int64_t kSiteBlock = 64;
constexpr int64_t kChunkSites = 320;
constexpr int64_t kThreadedSites = 512;
constexpr int64_t kDirectSites = 32;
constexpr int64_t kStackResult = 2048;
constexpr int64_t kStackDerivatives = 64;

template <typename T>
using InterpCallback = int32_t (*)(const int64_t* count, T* result, const T* site,
                                   const int64_t* cell, void* params, int64_t function);

template <typename T>
struct Interp {
    const FittingTask* task;
    EvalSetup<T> eval;
    int64_t nf;
    int64_t nsite;
    const T* site;
    bool uniformSites;
    double siteStart, siteStep;
    bool values, cellsGiven, cellsBack, wideCells;
    bool searchUser;
    SearchSetup<T> search;
    T* result;
    int64_t layout;
    void* cell;
    InterpCallback<T> left, right, interior;
    void *leftParams, *rightParams, *interiorParams;
    int64_t blockElements; // 64 * nf * nd: one thread's result block
    T* blocks;             // one block a thread for the layouts that are copied
};

// The evaluator of the kind, for one function over one block.
template <typename T>
void Evaluate(const Interp<T>& in, int64_t f, int64_t n, const T* site, const int32_t* cell,
              const int64_t* node, T* out) {
    const EvalSetup<T>& e = in.eval;
    const FittingTask* task = in.task;
    switch (e.kind) {
    case kEvalLinear:
        EvalPolynomial<T, 2>(e, static_cast<const T*>(task->sCoeff[f]), n, site, cell, out);
        return;
    case kEvalQuadratic:
        EvalPolynomial<T, 3>(e, static_cast<const T*>(task->sCoeff[f]), n, site, cell, out);
        return;
    case kEvalCubic:
        EvalPolynomial<T, 4>(e, static_cast<const T*>(task->sCoeff[f]), n, site, cell, out);
        return;
    case kEvalKnotQuadratic:
        EvalKnotQuadratic<T>(e, static_cast<const T*>(task->sCoeff[f]), n, site, cell, out);
        return;
    case kEvalGeneric:
        // Order 0 here means the callbacks give every value.
        if (e.order == 0)
            std::memset(out, 0, n * e.nd * sizeof(T));
        else
            EvalPolynomial<T, 0>(e, static_cast<const T*>(task->sCoeff[f]), n, site, cell, out);
        return;
    case kEvalLookup: {
        auto put = [&](auto y) {
            for (int64_t j = 0; j < n; ++j)
                out[j] = y[node[j]];
        };
        if (e.yColumns)
            put(FunctionValues<T, true>(task, f));
        else
            put(FunctionValues<T, false>(task, f));
        return;
    }
    default:
        if (e.yColumns)
            EvalStep<T, true>(e, FunctionValues<T, true>(task, f), n, site, cell, out);
        else
            EvalStep<T, false>(e, FunctionValues<T, false>(task, f), n, site, cell, out);
        return;
    }
}

// One side's callback over the sites of the block that lie on that side.
template <typename T>
int32_t RunCallback(const Interp<T>& in, InterpCallback<T> callback, void* params, int side,
                    int64_t f, int64_t n, const T* site, const int32_t* cell, T* out) {
    int64_t nx = in.eval.nx, nd = in.eval.nd;
    T pickedSites[kSiteBlock];
    int64_t pickedCells[kSiteBlock];
    int64_t index[kSiteBlock];
    int64_t count = 0;
    for (int64_t j = 0; j < n; ++j) {
        int64_t c = cell[j];
        int s = c <= 0 ? 0 : (c >= nx ? 2 : 1);
        if (s != side) continue;
        pickedSites[count] = site[j];
        pickedCells[count] = c;
        index[count++] = j;
    }
    if (count == 0) return FIT_STATUS_OK;
    T stackValues[kSiteBlock * kStackDerivatives];
    T* values = stackValues;
    if (nd > kStackDerivatives) {
        size_t bytes;
        if (!BytesFor(nd, kSiteBlock * sizeof(T), &bytes)) return FIT_STATUS_NO_MEMORY;
        values = static_cast<T*>(brenn_serv_allocate(bytes, 128));
        if (values == nullptr) return FIT_STATUS_NO_MEMORY;
    }
    int32_t status = callback(&count, values, pickedSites, pickedCells, params, f);
    if (status >= 0)
        for (int64_t k = 0; k < count; ++k)
            for (int64_t r = 0; r < nd; ++r)
                out[index[k] * nd + r] = values[k * nd + r];
    if (values != stackValues) brenn_serv_deallocate(values);
    return status < 0 ? status : FIT_STATUS_OK;
}

// One block of at most 64 sites starting at site `begin`. block: this thread's result
// block (for the copied layouts). position: the sorted searcher's running cell.
template <typename T>
int32_t DoBlock(const Interp<T>& in, int64_t begin, int64_t n, T* block, int64_t* position) {
    T madeSites[kSiteBlock];
    const T* site = in.site + begin;
    if (in.uniformSites) {
        for (int64_t j = 0; j < n; ++j)
            madeSites[j] =
                static_cast<T>(in.siteStart + static_cast<double>(begin + j) * in.siteStep);
        site = madeSites;
    }
    int32_t cell[kSiteBlock];
    if (in.cellsGiven) {
        for (int64_t j = 0; j < n; ++j)
            cell[j] = in.wideCells
                          ? static_cast<int32_t>(static_cast<const int64_t*>(in.cell)[begin + j])
                          : static_cast<const int32_t*>(in.cell)[begin + j];
    } else if (in.searchUser) {
        int32_t status = SearchUser(in.search, n, site, cell, false);
        if (status < 0) return status;
    } else {
        SearchPlain(in.search, n, site, cell, position);
    }
    if (in.cellsBack) {
        if (in.wideCells)
            for (int64_t j = 0; j < n; ++j)
                static_cast<int64_t*>(in.cell)[begin + j] = cell[j];
        else
            std::memcpy(static_cast<int32_t*>(in.cell) + begin, cell, n * sizeof(int32_t));
    }
    if (!in.values) return FIT_STATUS_OK;

    int32_t status = FIT_STATUS_OK;
    int64_t node[kSiteBlock];
    if (in.eval.kind == kEvalLookup) {
        int64_t good = LookupNodes(in.eval, n, site, cell, node);
        if (good < n) {
            // The sites before the one on no node keep their values.
            status = FIT_STATUS_SITE_NOT_NODE;
            n = good;
        }
    }
    int64_t nd = in.eval.nd, nf = in.nf, ns = in.nsite;
    for (int64_t f = 0; f < nf; ++f) {
        T* out;
        if (in.layout == FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES)
            out = in.result + (f * ns + begin) * nd;
        else if (in.layout == FIT_RESULT_FIRST_ROW)
            out = reinterpret_cast<T* const*>(in.result)[f] + begin * nd;
        else
            out = block + f * kSiteBlock * nd;
        Evaluate(in, f, n, site, cell, node, out);
        for (int side = 0; side < 3; ++side) {
            InterpCallback<T> cb = side == 0 ? in.left : (side == 2 ? in.right : in.interior);
            if (cb == nullptr) continue;
            void* params =
                side == 0 ? in.leftParams : (side == 2 ? in.rightParams : in.interiorParams);
            int32_t s = RunCallback(in, cb, params, side, f, n, site, cell, out);
            if (s < 0) return s;
        }
    }
    switch (in.layout) {
    case FIT_RESULT_SITES_FUNCTIONS_DERIVATIVES:
        for (int64_t j = 0; j < n; ++j)
            for (int64_t f = 0; f < nf; ++f)
                std::memcpy(in.result + ((begin + j) * nf + f) * nd,
                            block + (f * kSiteBlock + j) * nd, nd * sizeof(T));
        break;
    case FIT_RESULT_FUNCTIONS_DERIVATIVES_SITES:
        for (int64_t f = 0; f < nf; ++f)
            for (int64_t r = 0; r < nd; ++r) {
                T* dst = in.result + (f * nd + r) * ns + begin;
                const T* src = block + f * kSiteBlock * nd + r;
                for (int64_t j = 0; j < n; ++j)
                    dst[j] = src[j * nd];
            }
        break;
    case FIT_RESULT_SITES_DERIVATIVES_FUNCTIONS:
        for (int64_t j = 0; j < n; ++j)
            for (int64_t r = 0; r < nd; ++r) {
                T* dst = in.result + ((begin + j) * nd + r) * nf;
                for (int64_t f = 0; f < nf; ++f)
                    dst[f] = block[(f * kSiteBlock + j) * nd + r];
            }
        break;
    default:
        break;
    }
    return status;
}

template <typename T>
int32_t DoSites(const Interp<T>& in, int64_t begin, int64_t count, T* block) {
    int64_t position = 0;
    for (int64_t b = begin; b < begin + count; b += kSiteBlock) {
        int64_t n = begin + count - b < kSiteBlock ? begin + count - b : kSiteBlock;
        if (int32_t s = DoBlock(in, b, n, block, &position)) return s;
    }
    return FIT_STATUS_OK;
}

template <typename T>
struct ChunkRun {
    const Interp<T>* in;
    FirstFailure failure;
};

template <typename T>
void InterpChunk(int64_t k, int threadIndex, int64_t, void* context) {
    auto* run = static_cast<ChunkRun<T>*>(context);
    const Interp<T>& in = *run->in;
    if (run->failure.Skip(k)) return;
    T* block = in.blocks != nullptr ? in.blocks + threadIndex * in.blockElements : nullptr;
    if (int32_t s = DoSites(in, k * kChunkSites, kChunkSites, block)) run->failure.Record(k, s);
}

template <typename T>
int32_t Interpolate(FitTaskHandle handle, int64_t type, int64_t nsite, const T* site,
                    int64_t siteHint, int64_t ndorder, const void* dorder, const T* dataHint,
                    T* result, int64_t resultHint, void* cell, InterpCallback<T> left,
                    void* leftParams, InterpCallback<T> right, void* rightParams,
                    InterpCallback<T> interior, void* interiorParams,
                    SearchCallback<T> searchCallback, void* searchParams, const threader* thr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    Interp<T> in{};
    in.task = task;

    // Preamble: evaluator, searcher, layout, derivative rows.
    int kind;
    bool allCallbacks = left != nullptr && right != nullptr && interior != nullptr;
    if (int32_t s = KindOf(task->sOrder, task->sType, allCallbacks, &kind)) return s;
    int searcher = kSearchHybrid;
    bool cellsGiven = type == FIT_CALL_CELLS_GIVEN || (type & FIT_CALL_CELLS_GIVEN);
    if (!cellsGiven)
        if (int32_t s =
                SelectSearcher<T>(task, dataHint, searchCallback != nullptr, siteHint, &searcher))
            return s;
    int64_t layout = resultHint == 0 ? int64_t{FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES} : resultHint;
    if (layout != 16 && layout != 32 && layout != 128 && layout != 256 && layout != 512)
        return FIT_STATUS_BAD_RESULT_HINT;
    int32_t word = task->frontEndWord;
    bool wide = (word & 1) != 0;
    in.cellsGiven = cellsGiven;
    in.cellsBack = !cellsGiven && (type & FIT_CALL_CELLS);
    in.values = (type & FIT_CALL_VALUES) || cellsGiven;
    in.wideCells = wide;
    bool cellBit = (type & FIT_CALL_CELLS) || cellsGiven;

    int64_t dersStack[kStackDerivatives];
    int64_t* ders = dersStack;
    int64_t nd = 0;
    for (int64_t k = 0; k < ndorder && dorder != nullptr; ++k) {
        int64_t v =
            wide ? static_cast<const int64_t*>(dorder)[k] : static_cast<const int32_t*>(dorder)[k];
        if (v == 0) continue;
        if (nd == kStackDerivatives && ders == dersStack) {
            size_t bytes;
            if (!BytesFor(ndorder, sizeof(int64_t), &bytes)) return FIT_STATUS_NO_MEMORY;
            ders = static_cast<int64_t*>(brenn_serv_allocate(bytes, 128));
            if (ders == nullptr) return FIT_STATUS_NO_MEMORY;
            std::memcpy(ders, dersStack, sizeof(dersStack));
        }
        ders[nd++] = k;
    }
    if (nd == 0) ders[nd++] = 0;
    struct Release {
        int64_t* p;
        int64_t* stack;
        T* blocks;
        ~Release() {
            if (p != stack) brenn_serv_deallocate(p);
            if (blocks != nullptr) brenn_serv_deallocate(blocks);
        }
    } release{ders, dersStack, nullptr};
    if (kind == kEvalLookup && in.values) {
        if (nd != 1) return FIT_STATUS_LOOKUP_DERIVATIVE_COUNT;
        if (ders[0] != 0) return FIT_STATUS_LOOKUP_DERIVATIVE_ORDER;
    }

    // Set-up from the task.
    in.nf = task->ny > 0 ? task->ny : 1;
    in.eval.kind = kind;
    in.eval.nx = task->nx;
    in.eval.order = task->sOrder;
    in.eval.x = NodesOf<T>(task);
    if (kind == kEvalKnotQuadratic) in.eval.knots = KnotsOf<T>(task);
    in.eval.yColumns = task->yHint == FIT_Y_COLUMNS;
    in.eval.ders = ders;
    in.eval.nd = nd;
    if (in.values) {
        bool usesY = kind >= kEvalStepLeftContinuous;
        if (usesY) {
            if (int32_t s = CheckFunctionPointers(task, in.eval.yColumns)) return s;
        } else if (!(kind == kEvalGeneric && task->sOrder == 0)) {
            if (int32_t s = CheckCoefficientPointers(task)) return s;
        }
    }
    in.nsite = nsite;
    in.site = site;
    in.uniformSites = siteHint == FIT_SITES_UNIFORM;
    if (in.uniformSites) {
        in.siteStart = site[0];
        in.siteStep =
            nsite > 1 ? (static_cast<double>(site[1]) - site[0]) / static_cast<double>(nsite - 1)
                      : 0;
    }
    in.searchUser = searcher >= kSearchUserDef;
    in.search = MakeSearchSetup<T>(searcher, task, dataHint, searchCallback, searchParams, 1);
    in.result = result;
    in.layout = layout;
    in.cell = cell;
    in.left = left;
    in.right = right;
    in.interior = interior;
    in.leftParams = leftParams;
    in.rightParams = rightParams;
    in.interiorParams = interiorParams;
    // One thread's result block, in bytes; a size past what can be allocated is
    // refused where a block is needed.
    size_t blockBytes = 0, rowBytes = 0;
    bool blockFits =
        BytesFor(nd, kSiteBlock * sizeof(T), &rowBytes) && BytesFor(in.nf, rowBytes, &blockBytes);
    in.blockElements = blockFits ? static_cast<int64_t>(blockBytes / sizeof(T)) : 0;
    bool copied =
        layout != FIT_RESULT_FUNCTIONS_SITES_DERIVATIVES && layout != FIT_RESULT_FIRST_ROW;
    if (copied && in.values && !blockFits) return FIT_STATUS_NO_MEMORY;

    // A few sites: one block on the calling thread.
    T stackBlock[kStackResult];
    if (nsite < kDirectSites && task->nx < 2147483647 && !wide && !cellBit) {
        T* block = nullptr;
        if (copied && in.values) {
            if (in.blockElements <= kStackResult) {
                block = stackBlock;
            } else {
                block = static_cast<T*>(brenn_serv_allocate(blockBytes, 128));
                if (block == nullptr) return FIT_STATUS_NO_MEMORY;
                release.blocks = block;
            }
        }
        int64_t position = 0;
        return nsite > 0 ? DoBlock(in, 0, nsite, block, &position) : FIT_STATUS_OK;
    }

    int threads = thr != nullptr ? thr->maxThreads() : 1;
    if (threads < 1) threads = 1;
    if (copied && in.values) {
        size_t allBytes;
        if (!BytesFor(threads, blockBytes, &allBytes)) return FIT_STATUS_NO_MEMORY;
        if (allBytes <= sizeof(stackBlock)) {
            in.blocks = stackBlock;
        } else {
            in.blocks = static_cast<T*>(brenn_serv_allocate(allBytes, 128));
            if (in.blocks == nullptr) return FIT_STATUS_NO_MEMORY;
            release.blocks = in.blocks;
        }
    }
    int64_t chunks = nsite / kChunkSites;
    ChunkRun<T> run;
    run.in = &in;
    if (nsite > kThreadedSites && threads > 1) {
        thr->parallelFor(chunks, threads, &run, InterpChunk<T>);
    } else {
        for (int64_t k = 0; k < chunks; ++k) {
            InterpChunk<T>(k, 0, chunks, &run);
            if (run.failure.Failed()) break;
        }
    }
    if (run.failure.Failed()) return run.failure.Status();
    int64_t done = chunks * kChunkSites;
    if (done < nsite) return DoSites(in, done, nsite - done, in.blocks);
    return FIT_STATUS_OK;
}

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFInterpolate1D(
    FitTaskHandle task, int64_t type, int64_t, int64_t nsite, const double* site, int64_t siteHint,
    int64_t ndorder, const void* dorder, const double* dataHint, double* result, int64_t resultHint,
    void* cell, FitdInterpCallback left, void* leftParams, FitdInterpCallback right,
    void* rightParams, FitdInterpCallback interior, void* interiorParams, FitdSearchCallback search,
    void* searchParams, const threader* thr) {
    return Interpolate<double>(task, type, nsite, site, siteHint, ndorder, dorder, dataHint, result,
                               resultHint, cell, left, leftParams, right, rightParams, interior,
                               interiorParams, search, searchParams, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFInterpolate1D(
    FitTaskHandle task, int64_t type, int64_t, int64_t nsite, const float* site, int64_t siteHint,
    int64_t ndorder, const void* dorder, const float* dataHint, float* result, int64_t resultHint,
    void* cell, FitsInterpCallback left, void* leftParams, FitsInterpCallback right,
    void* rightParams, FitsInterpCallback interior, void* interiorParams, FitsSearchCallback search,
    void* searchParams, const threader* thr) {
    return Interpolate<float>(task, type, nsite, site, siteHint, ndorder, dorder, dataHint, result,
                              resultHint, cell, left, leftParams, right, rightParams, interior,
                              interiorParams, search, searchParams, thr);
}
