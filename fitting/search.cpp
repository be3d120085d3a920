// Cell search: the public search entry, the batch frame of the seven searchers (sites
// made for a uniform site hint, chunks on the threader) and the user-defined searchers.
#include <cstring>

#include "fitting/search_rules.h"
#include "frame/export.h"
#include "platform/bytes.h"
#include "platform/serv.h"

namespace brenn::fit {

constexpr int64_t kUserBlock = 128;
constexpr int64_t kThreadedSites = 1000;
constexpr int64_t kStackSites = 4096;

template <typename T>
int32_t SearchUser(const SearchSetup<T>& st, int64_t n, const T* site, void* cell, bool wide) {
    int64_t blockCells[kUserBlock];
    int32_t flags[kUserBlock];
    int32_t status = FIT_STATUS_OK;
    int64_t nx = st.nx;
    const T* x = st.x;
    for (int64_t i = 0; i < n; i += kUserBlock) {
        int64_t count = n - i < kUserBlock ? n - i : kUserBlock;
        std::memset(flags, 0, sizeof(flags));
        status = st.callback(&count, site + i, blockCells, flags, st.params, st.extra);
        if (status < 0) return status;
        if (status != FIT_SEARCH_ALL_CELLS_RIGHT) {
            for (int64_t j = 0; j < count; ++j) {
                if (flags[j] != 0) continue;
                T s = site[i + j];
                if (st.index == kSearchUniUserDef) {
                    // The callback's guess is not used on a uniform partition: the
                    // position alone gives the cell.
                    blockCells[j] = UniformCell(nx, x[0], x[1], st.scale, s);
                } else {
                    int64_t c = blockCells[j] < 0 ? 0 : blockCells[j];
                    blockCells[j] = QuasiUniformCell(nx, x, st.scale, s, c > nx ? nx : c);
                }
            }
        }
        if (wide) {
            std::memcpy(static_cast<int64_t*>(cell) + i, blockCells, count * sizeof(int64_t));
        } else {
            int32_t* out = static_cast<int32_t*>(cell) + i;
            for (int64_t j = 0; j < count; ++j)
                out[j] = static_cast<int32_t>(blockCells[j]);
        }
    }
    return status == FIT_SEARCH_ALL_CELLS_RIGHT ? FIT_STATUS_OK : status;
}

template int32_t SearchUser<double>(const SearchSetup<double>&, int64_t, const double*, void*,
                                    bool);
template int32_t SearchUser<float>(const SearchSetup<float>&, int64_t, const float*, void*, bool);

namespace {

// Sites of a uniform site hint: the products in double whatever the element type,
// so that both precisions put the sites at the same places.
template <typename T>
void MakeUniformSites(int64_t nsite, const T* ends, T* out) {
    double a = ends[0];
    double step =
        nsite > 1 ? (static_cast<double>(ends[1]) - a) / static_cast<double>(nsite - 1) : 0;
    int64_t i = 0;
    for (; i + 8 <= nsite; i += 8)
        for (int k = 0; k < 8; ++k)
            out[i + k] = static_cast<T>(a + static_cast<double>(i + k) * step);
    for (; i < nsite; ++i)
        out[i] = static_cast<T>(a + static_cast<double>(i) * step);
}

template <typename T>
struct SearchChunks {
    const SearchSetup<T>* st;
    const T* site;
    void* cell;
    bool wide;
    int64_t perChunk;
    int32_t* statuses; // one a chunk
};

template <typename T>
int32_t SearchSlice(const SearchSetup<T>& st, int64_t begin, int64_t count, const T* site,
                    void* cell, bool wide) {
    if (st.index >= kSearchUserDef) {
        void* out = wide ? static_cast<void*>(static_cast<int64_t*>(cell) + begin)
                         : static_cast<void*>(static_cast<int32_t*>(cell) + begin);
        return SearchUser(st, count, site + begin, out, wide);
    }
    // Each slice starts its own sorted walk at 0.
    int64_t position = 0;
    SearchPlain(st, count, site + begin, static_cast<int32_t*>(cell) + begin, &position);
    return FIT_STATUS_OK;
}

template <typename T>
void SearchChunk(int64_t k, int, int64_t, void* context) {
    auto* c = static_cast<SearchChunks<T>*>(context);
    c->statuses[k] = SearchSlice(*c->st, k * c->perChunk, c->perChunk, c->site, c->cell, c->wide);
}

// The batch frame shared by every searcher.
template <typename T>
int32_t SearchBatch(const SearchSetup<T>& st, int64_t nsite, const T* site, int64_t siteHint,
                    void* cell, bool wide, const threader* thr) {
    T buffer[kStackSites];
    T* made = nullptr;
    T* heap = nullptr;
    if (siteHint == FIT_SITES_UNIFORM) {
        if (nsite < kStackSites) {
            made = buffer;
        } else {
            size_t bytes;
            if (!BytesFor(nsite, sizeof(T), &bytes)) return FIT_STATUS_NO_MEMORY;
            heap = static_cast<T*>(brenn_serv_allocate(bytes, 128));
            if (heap == nullptr) return FIT_STATUS_NO_MEMORY;
            made = heap;
        }
        MakeUniformSites(nsite, site, made);
        site = made;
    }
    int threads = thr != nullptr ? thr->maxThreads() : 1;
    int32_t status = FIT_STATUS_OK;
    int64_t done = 0;
    if (nsite > kThreadedSites && threads > 1) {
        int32_t statuses[256];
        if (threads > 256) threads = 256;
        SearchChunks<T> chunks{&st, site, cell, wide, nsite / threads, statuses};
        thr->parallelFor(threads, threads, &chunks, SearchChunk<T>);
        done = chunks.perChunk * threads;
        // The last callback's status in site order, or the first refusal.
        for (int k = 0; k < threads; ++k) {
            if (statuses[k] < 0) {
                status = statuses[k];
                break;
            }
            status = statuses[k];
        }
    }
    if (status >= 0 && done < nsite) status = SearchSlice(st, done, nsite - done, site, cell, wide);
    if (heap != nullptr) brenn_serv_deallocate(heap);
    return status;
}

template <typename T>
int32_t Search(FitTaskHandle handle, int64_t nsite, const T* site, int64_t siteHint,
               const T* dataHint, void* cell, SearchCallback<T> callback, void* params,
               const threader* thr);

template <typename T>
int32_t Worker(int index, FitTaskHandle handle, int64_t nsite, const T* site, int64_t siteHint,
               const T* dataHint, void* cell, SearchCallback<T> callback, void* params,
               const threader* thr, int64_t extra) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    if (index >= kSearchUserDef && callback == nullptr) return FIT_STATUS_BAD_PARAM_ID;
    SearchSetup<T> st = MakeSearchSetup<T>(index, task, dataHint, callback, params, extra);
    return SearchBatch(st, nsite, site, siteHint, cell, task->frontEndWord != 0, thr);
}

template <typename T>
int32_t Search(FitTaskHandle handle, int64_t nsite, const T* site, int64_t siteHint,
               const T* dataHint, void* cell, SearchCallback<T> callback, void* params,
               const threader* thr) {
    auto* task = static_cast<FittingTask*>(handle);
    if (task == nullptr) return FIT_STATUS_NULL_TASK;
    int index;
    if (int32_t s = SelectSearcher<T>(task, dataHint, callback != nullptr, siteHint, &index))
        return s;
    if (nsite >= 32 || index >= kSearchUserDef)
        return Worker<T>(index, handle, nsite, site, siteHint, dataHint, cell, callback, params,
                         thr, 0);
    // A few sites: the rule site by site on the calling thread.
    T made[32];
    if (siteHint == FIT_SITES_UNIFORM && nsite > 0) {
        MakeUniformSites(nsite, site, made);
        site = made;
    }
    SearchSetup<T> st = MakeSearchSetup<T>(index, task, dataHint, nullptr, nullptr, 0);
    int64_t position = 0;
    SearchPlain(st, nsite, site, static_cast<int32_t*>(cell), &position);
    return FIT_STATUS_OK;
}

} // namespace
} // namespace brenn::fit

using namespace brenn::fit;

BRENN_EXPORT int32_t brenn_df_kernel_dDFSearch1D(FitTaskHandle task, int64_t, int64_t nsite,
                                                 const double* site, int64_t siteHint,
                                                 const double* dataHint, void* cell,
                                                 FitdSearchCallback callback, void* params,
                                                 const threader* thr) {
    return Search<double>(task, nsite, site, siteHint, dataHint, cell, callback, params, thr);
}

BRENN_EXPORT int32_t brenn_df_kernel_sDFSearch1D(FitTaskHandle task, int64_t, int64_t nsite,
                                                 const float* site, int64_t siteHint,
                                                 const float* dataHint, void* cell,
                                                 FitsSearchCallback callback, void* params,
                                                 const threader* thr) {
    return Search<float>(task, nsite, site, siteHint, dataHint, cell, callback, params, thr);
}

#define BRENN_DEFINE_SEARCHER(t, T, name, index, suffix)                                           \
    BRENN_EXPORT int32_t brenn_df_kernel_##t##DF##name##Search1D##suffix(                          \
        FitTaskHandle task, int64_t, int64_t nsite, const T* site, int64_t siteHint,               \
        const T* dataHint, void* cell, Fit##t##SearchCallback callback, void* params,              \
        const threader* thr, int64_t extra) {                                                      \
        return Worker<T>(index, task, nsite, site, siteHint, dataHint, cell, callback, params,     \
                         thr, extra);                                                              \
    }
#define BRENN_DEFINE_SEARCHERS(t, T, suffix)                                                       \
    BRENN_DEFINE_SEARCHER(t, T, Uniform, kSearchUniform, suffix)                                   \
    BRENN_DEFINE_SEARCHER(t, T, QuasiUniform, kSearchQuasiUniform, suffix)                         \
    BRENN_DEFINE_SEARCHER(t, T, Sorted, kSearchSorted, suffix)                                     \
    BRENN_DEFINE_SEARCHER(t, T, Peak, kSearchPeak, suffix)                                         \
    BRENN_DEFINE_SEARCHER(t, T, Hybrid, kSearchHybrid, suffix)                                     \
    BRENN_DEFINE_SEARCHER(t, T, UserDef, kSearchUserDef, suffix)                                   \
    BRENN_DEFINE_SEARCHER(t, T, UniUserDef, kSearchUniUserDef, suffix)
BRENN_DEFINE_SEARCHERS(d, double, )
BRENN_DEFINE_SEARCHERS(s, float, )
BRENN_DEFINE_SEARCHERS(d, double, 32)
BRENN_DEFINE_SEARCHERS(s, float, 32)
